// Totals over a whole array: arr_SumatorioX (unsigned families wrap, with no report) and
// arr_MinimoMaximoDouble.
#include "families/familia_escalar.h"
#include "families/tabla_familias.h"

#include <cfloat>

namespace {

constexpr const char *UBICACION = Escalar<elem_DOUBLE_NO_USAR>::UBICACION;

// The check of the Double operations that walk the rows themselves: the standard entry check,
// then the tag. False when the rows cannot be walked.
bool es_array_double(const ARRAY *array)
{
    return arrayprv_entrada(array, TEXTOS_ARRAY, false, Modo::leniente) &&
           ARR_EXIGE(array->tipo_elem == elem_DOUBLE_NO_USAR,
                     "array->tipo_elem == elem_DOUBLE_NO_USAR");
}

// The elements added in position order through the family's element read.
template <tipo_elem_array TAG> typename Escalar<TAG>::T sumatorio(const ARRAY *array)
{
    typename Escalar<TAG>::T total = 0;
    const ULONG n = arrayprv_num_elems(array);
    for (ULONG i = 0; i < n; ++i)
        total += FamiliaEscalar<TAG>::get(array, i);
    return total;
}

// Doubles: the rows walked directly, in position order, into one accumulator.
template <> double sumatorio<elem_DOUBLE_NO_USAR>(const ARRAY *array)
{
    double total = 0.0;
    if (es_array_double(array))
        arrayprv_visita_todos(array, [&](const char *elemento) {
            total += lee_elemento<double>(elemento);
        });
    return total;
}

} // namespace

#define ARR_DEFINE_SUMATORIO(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO,      \
                             RECORRE)                                                             \
    SUMATORIO(extern "C" T arr_Sumatorio##F(const ARRAY *array) noexcept {                        \
        return sumatorio<TAG>(array);                                                             \
    })

ARR_FAMILIAS_ESCALARES(ARR_DEFINE_SUMATORIO)

extern "C" void arr_MinimoMaximoDouble(const ARRAY *array, double *minimo, ULONG *pos_minimo,
                                       double *maximo, ULONG *pos_maximo) noexcept
{
    double menor = DBL_MAX;
    double mayor = -DBL_MAX;
    ULONG pos_menor = ARR_ULONG_MAX;
    ULONG pos_mayor = ARR_ULONG_MAX;
    if (es_array_double(array)) {
        ARR_EXIGE(array->num_elems > 0, "array->num_elems > 0");
        ULONG pos = 0;
        // Invariant: menor and mayor are the extremes of the elements before pos, each at the
        // first position that holds it; a NaN is never strictly smaller or greater.
        arrayprv_visita_todos(array, [&](const char *elemento) {
            const double valor = lee_elemento<double>(elemento);
            if (valor < menor) {
                menor = valor;
                pos_menor = pos;
            }
            if (valor > mayor) {
                mayor = valor;
                pos_mayor = pos;
            }
            ++pos;
        });
    }
    if (minimo != nullptr)
        *minimo = menor;
    if (pos_minimo != nullptr)
        *pos_minimo = pos_menor;
    if (maximo != nullptr)
        *maximo = mayor;
    if (pos_maximo != nullptr)
        *pos_maximo = pos_mayor;
}
