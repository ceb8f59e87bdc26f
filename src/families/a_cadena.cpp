// The narrow string family (module a_cadena): its exports, and the growth that only it has, which
// fills the new elements with empty strings.
#include "families/a_cadena.h"

ARR_DEFINE_FAMILIA_CADENA(, char)

extern "C" ULONG arr_AumentaTamanyoCADENA(ARRAY *array, ULONG nuevo_tamanyo) noexcept
{
    return FamiliaCadena<char>::aumenta_tamanyo(array, nuevo_tamanyo);
}
