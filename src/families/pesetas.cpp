// The currency conversion of a Double array of prices: pesetas to euros, rounded to cents.
#include "families/familia_escalar.h"
#include "services/matematicas.h"

namespace {

constexpr double PESETAS_POR_EURO = 166.386;
constexpr BYTE DECIMALES_DEL_EURO = 2;

} // namespace

// Element by element through the family's element access, whose checks are the only ones; an
// element that cannot be reached ends the conversion.
extern "C" void arr_cambio_precio_pesetas_a_euros(ARRAY *array) noexcept
{
    using Double = FamiliaEscalar<elem_DOUBLE_NO_USAR>;
    const ULONG n = arrayprv_num_elems(array);
    for (ULONG i = 0; i < n; ++i) {
        const void *elemento = arrayprv_get(array, i, elem_DOUBLE_NO_USAR);
        if (elemento == nullptr)
            return;
        const double pesetas = lee_elemento<double>(elemento);
        Double::set(array, i,
                    prec_redondea_numero_decimales(pesetas / PESETAS_POR_EURO, DECIMALES_DEL_EURO));
    }
}
