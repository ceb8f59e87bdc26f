// Equality of Double arrays within a tolerance, and of pointer arrays holding such arrays, one
// and two levels deep. Pointer arrays are read through the engine, element by element.
#include "families/familia_escalar.h"

#include <cmath>

namespace {

// Both arrays live and of the tag, the same count, and iguales(element of 1, element of 2) for
// every position in order, stopping at the first unequal pair.
template <typename Iguales>
BOOL iguales_por_pares(const ARRAY *array1, const ARRAY *array2, tipo_elem_array tipo,
                       Iguales iguales)
{
    if (!arrayprv_entrada_tipo(array1, TEXTOS_ARRAY, false, Modo::leniente, tipo) ||
        !arrayprv_entrada_tipo(array2, TEXTOS_ARRAY, false, Modo::leniente, tipo) ||
        array1->num_elems != array2->num_elems)
        return FALSO;
    bool todos = true;
    arrayprv_visita_pares(array1, array2, [&](const char *elemento1, const char *elemento2) {
        todos = iguales(elemento1, elemento2);
        return todos;
    });
    return todos ? CIERTO : FALSO;
}

// The pointer arrays' elements are arrays, compared pairwise by `iguales_internos`.
template <typename IgualesInternos>
BOOL iguales_arrays_de_arrays(const ARRAY *array1, const ARRAY *array2, double tolerancia,
                              IgualesInternos iguales_internos)
{
    return iguales_por_pares(array1, array2, elem_PUNTERO_NO_USAR,
                             [&](const char *elemento1, const char *elemento2) {
                                 const auto *interno1 = lee_elemento<const ARRAY *>(elemento1);
                                 const auto *interno2 = lee_elemento<const ARRAY *>(elemento2);
                                 return iguales_internos(interno1, interno2, tolerancia) != FALSO;
                             });
}

} // namespace

// A difference equal to the tolerance, or a NaN difference, counts as equal.
extern "C" BOOL arr_SonIgualesDoubleConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                  double tolerancia) noexcept
{
    return iguales_por_pares(array1, array2, elem_DOUBLE_NO_USAR,
                             [&](const char *elemento1, const char *elemento2) {
                                 const double a = lee_elemento<double>(elemento1);
                                 const double b = lee_elemento<double>(elemento2);
                                 return !(std::fabs(a - b) > tolerancia);
                             });
}

extern "C" BOOL arr_SonIgualesArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                               const ARRAY *array2,
                                                               double tolerancia) noexcept
{
    return iguales_arrays_de_arrays(array1, array2, tolerancia, arr_SonIgualesDoubleConTolerancia);
}

extern "C" BOOL arr_SonIgualesArrArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                                  const ARRAY *array2,
                                                                  double tolerancia) noexcept
{
    return iguales_arrays_de_arrays(array1, array2, tolerancia,
                                    arr_SonIgualesArrPunteroArrDoubleConTolerancia);
}
