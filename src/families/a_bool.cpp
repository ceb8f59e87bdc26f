// The BOOL family's own operation: reversal in place.
#include "core/comparadores.h"

// Swaps elements i and n - 1 - i for every i below n / 2 through the element read and write, so
// an odd count leaves the middle element where it is. The values are not negated.
extern "C" void arr_InvertirBOOL(ARRAY *array) noexcept
{
    arrayprv_invierte(array, elem_BOOL_NO_USAR);
}
