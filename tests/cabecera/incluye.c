/* The public header alone, compiled as each C and C++ standard it promises (see CMakeLists.txt):
 * it must need nothing else and raise no warning. */
#include "arrays.h"

int main(void)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_DestruyeDouble(&array);
    return array == 0 ? 0 : 1;
}
