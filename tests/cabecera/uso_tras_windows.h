/* What the header tests after the Windows type names run: Windows' BOOL beside the library's
 * wide strings, declared with the prefixed types. */
int main(void)
{
    BOOL de_windows = 1;
    arr_wchar_t ancha[2] = {0x41, 0};
    ARRAY *array = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(array, ancha);
    de_windows = arr_NumElemsCADENA_u(array) == 1;
    arr_DestruyeCADENA_u(&array);
    return de_windows ? 0 : 1;
}
