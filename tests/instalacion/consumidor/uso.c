/* A program outside the project that uses an installed libarrays: it must compile against the
 * installed header alone and print "3 1.5 libarrays". */
#include <arrays.h>
#include <stdio.h>

int main(void)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_AppendDouble(array, 2.5);
    arr_AppendDouble(array, 1.5);
    arr_AppendDouble(array, 7);
    arr_QSortDouble(array, NULL);
    printf("%lu %g libarrays\n", (unsigned long)arr_NumElemsDouble(array), arr_GetDouble(array, 0));
    arr_DestruyeDouble(&array);
    return 0;
}
