/* The public header after <X11/Xmd.h>, whose BOOL and BYTE are unsigned char: they stay the X
 * types, and the interface's own types are reached by their prefixed names. */
#include <X11/Xmd.h>

#include "arrays.h"

int main(void)
{
    BOOL x_bool = 1; /* X's, one byte */
    arr_bool_t hay = FALSO;
    ARRAY *array = arr_CreaLong(0);
    arr_AppendLong(array, 7);
    hay = arr_ExisteLong(array, 7, 0, 0);
    arr_DestruyeLong(&array);
    return sizeof x_bool == 1 && sizeof hay == 2 && hay == CIERTO ? 0 : 1;
}
