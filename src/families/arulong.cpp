// The arulong_ and arulong64_ functions of their own: creation without a size, and the repeated
// append, whose count precondition ("num_valores > 1") differs on purpose from arr_AppendNULongs'.
// The other second names are aliases, next to the functions they name (escalares.cpp,
// comunes.cpp).
#include "families/familia_escalar.h"

namespace {

constexpr ReglaVeces MAS_DE_UN_VALOR{2, "num_valores > 1"};

} // namespace

#define ARR_DEFINE_ARULONG(P, TAG, T)                                                             \
    extern "C" ARRAY *P##_crea(void) noexcept { return FamiliaEscalar<TAG>::crea(0); }            \
    extern "C" void P##_append_n(ARRAY *array, ULONG num_valores, T valor) noexcept               \
    {                                                                                             \
        FamiliaEscalar<TAG>::append_n(array, num_valores, valor, #P " (ARRAYS.DLL)",              \
                                      MAS_DE_UN_VALOR);                                           \
    }

ARR_DEFINE_ARULONG(arulong, elem_ULONG_NO_USAR, ULONG)
ARR_DEFINE_ARULONG(arulong64, elem_ULONG64_NO_USAR, ULONG64)
