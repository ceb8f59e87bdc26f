/* An includer with BOOL, LONG, ULONG, WCHAR of its own, of other types than the interface's,
 * asks for the prefixed names only (ARRAYS_NO_SHORT_TYPES). */
typedef int BOOL;
typedef long LONG;
typedef unsigned long ULONG;
typedef unsigned short WCHAR;

#define ARRAYS_NO_SHORT_TYPES
#include "arrays.h"

int main(void)
{
    BOOL propio = 1;
    arr_ulong_t num = 0;
    ARRAY *array = arr_CreaDouble(3);
    num = arr_NumElemsDouble(array);
    arr_DestruyeDouble(&array);
    return propio == 1 && num == 3 ? 0 : 1;
}
