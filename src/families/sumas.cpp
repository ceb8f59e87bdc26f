// arr_SumarX: adds a delta to one element in place. The sum is formed in a wider type (int for
// UShort, double for the others), reported when it is not strictly inside the family's range,
// and then stored in the element's own width whatever the check said.
#include "families/familia_escalar.h"
#include "families/tabla_familias.h"

#include <climits>
#include <cstdint>

namespace {

// 2^63, the first double past the signed 64-bit range.
constexpr double DOS_A_LA_63 = 9223372036854775808.0;

// The double sum as the unsigned 64-bit value it converts to: from 2^63 up by taking 2^63 off
// first and adding it back, below 0 wrapping as a signed value would.
ULONG64 a_entero_sin_signo(double suma)
{
    ULONG64 base = 0;
    // Invariant: base + suma is the original sum, modulo 2^64.
    while (suma >= DOS_A_LA_63) {
        suma -= DOS_A_LA_63;
        base += static_cast<ULONG64>(1) << 63;
    }
    return base + static_cast<ULONG64>(static_cast<LONG64>(suma));
}

// How each family forms, checks and stores its sum.
template <tipo_elem_array TAG> struct Suma;

template <> struct Suma<elem_USHORT_NO_USAR> {
    static USHORT suma(USHORT elemento, SHORT delta)
    {
        constexpr const char *UBICACION = Escalar<elem_USHORT_NO_USAR>::UBICACION;
        const int long_elem = elemento + delta;
        ARR_EXIGE(long_elem >= 0, "long_elem >= 0");
        ARR_EXIGE(static_cast<unsigned long>(long_elem) < USHRT_MAX,
                  "(unsigned long)long_elem < USHRT_MAX");
        return static_cast<USHORT>(long_elem);
    }
};

template <> struct Suma<elem_LONG_NO_USAR> {
    static LONG suma(LONG elemento, LONG delta)
    {
        constexpr const char *UBICACION = Escalar<elem_LONG_NO_USAR>::UBICACION;
        const double double_elem = static_cast<double>(elemento) + delta;
        ARR_EXIGE(static_cast<double>(INT32_MIN) < double_elem &&
                      double_elem < static_cast<double>(INT32_MAX),
                  "(double)LONG_MIN < double_elem && double_elem < (double)LONG_MAX");
        return static_cast<LONG>(static_cast<ULONG>(elemento) + static_cast<ULONG>(delta));
    }
};

template <> struct Suma<elem_ULONG_NO_USAR> {
    static ULONG suma(ULONG elemento, LONG delta)
    {
        constexpr const char *UBICACION = Escalar<elem_ULONG_NO_USAR>::UBICACION;
        const double double_elem = static_cast<double>(elemento) + delta;
        ARR_EXIGE(0. <= double_elem && double_elem < static_cast<double>(ARR_ULONG_MAX),
                  "0. <= double_elem && double_elem < (double)ULONG_MAX");
        return static_cast<ULONG>(static_cast<LONG64>(double_elem));
    }
};

template <> struct Suma<elem_LONG64_NO_USAR> {
    static LONG64 suma(LONG64 elemento, LONG64 delta)
    {
        constexpr const char *UBICACION = Escalar<elem_LONG64_NO_USAR>::UBICACION;
        const double double_elem = static_cast<double>(elemento) + static_cast<double>(delta);
        ARR_EXIGE(static_cast<double>(INT64_MIN) < double_elem &&
                      double_elem < static_cast<double>(INT64_MAX),
                  "(double)INTSAFE_INT64_MIN < double_elem && double_elem < "
                  "(double)INTSAFE_INT64_MAX");
        return static_cast<LONG64>(static_cast<ULONG64>(elemento) + static_cast<ULONG64>(delta));
    }
};

template <> struct Suma<elem_ULONG64_NO_USAR> {
    static ULONG64 suma(ULONG64 elemento, LONG64 delta)
    {
        constexpr const char *UBICACION = Escalar<elem_ULONG64_NO_USAR>::UBICACION;
        const double double_elem = static_cast<double>(elemento) + static_cast<double>(delta);
        ARR_EXIGE(0. <= double_elem && double_elem < static_cast<double>(UINT64_MAX),
                  "0. <= double_elem && double_elem < (double)INTSAFE_ULONGLONG_MAX");
        return a_entero_sin_signo(double_elem);
    }
};

// Reaches the element through the engine's element access with the family's tag; nothing is
// summed when the element cannot be reached.
template <tipo_elem_array TAG, typename Delta>
void suma_en_sitio(ARRAY *array, ULONG pos, Delta delta)
{
    using T = typename Escalar<TAG>::T;
    void *elemento = arrayprv_get(array, pos, TAG);
    if (elemento == nullptr)
        return;
    const T suma = Suma<TAG>::suma(lee_elemento<T>(elemento), delta);
    std::memcpy(elemento, &suma, sizeof suma);
}

} // namespace

#define ARR_DEFINE_SUMAR(D, F, TAG)                                                               \
    extern "C" void arr_Sumar##F(ARRAY *array, ULONG pos, D delta) noexcept                       \
    {                                                                                             \
        suma_en_sitio<TAG>(array, pos, delta);                                                    \
    }
#define ARR_DEFINE_SUMAR_DE(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO,       \
                            RECORRE)                                                              \
    SUMAR(ARR_DEFINE_SUMAR, F, TAG)

ARR_FAMILIAS_ESCALARES(ARR_DEFINE_SUMAR_DE)
