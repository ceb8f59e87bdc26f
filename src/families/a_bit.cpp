// Bit arrays: bits packed eight to a byte in an ordinary byte array of tag elem_BIT_NO_USAR,
// whose header also counts the bits (num_bits). Bit pos is bit pos & 7, from the least
// significant, of byte pos / 8. This module reads and writes bits inside those bytes; rows and
// positions are the engine's. The bits of the last byte past num_bits mean nothing (a fill
// writes whole bytes).
#include "core/arrayprv.h"

#include "services/informes.h"

namespace {

constexpr const char *UBICACION = "a_bit (ARRAYS.DLL)";

// The direct checks of get, set and append, which never use checking mode: a live array, then
// one of bits. False when the handle cannot be used so.
bool es_array_vivo(const ARRAY *array)
{
    return ARR_EXIGE(array != nullptr, "(array) != NULL") &&
           ARR_EXIGE(arrayprv_marca_valida(array), "array->mascara_debug == MASCARA_DEBUG");
}
bool es_de_bits(const ARRAY *array)
{
    return ARR_EXIGE(array->tipo_elem == elem_BIT_NO_USAR, "array->tipo_elem == elem_BIT_NO_USAR");
}

BYTE mascara_de(ULONG pos) { return static_cast<BYTE>(1u << (pos & 7)); }

// The byte that holds bit pos. A pos past the bits is reported and the byte still looked up;
// NULL when that byte is not stored. A live array of another type is reported by its tag and
// then, holding no bits, by the position, and gives no byte.
BYTE *byte_de(const ARRAY *array, ULONG pos)
{
    if (!es_array_vivo(array))
        return nullptr;
    const bool de_bits = es_de_bits(array);
    const ULONG num_bits = de_bits ? array->num_bits : 0;
    if (!ARR_EXIGE(pos < num_bits, "pos < array->num_bits") && !de_bits)
        return nullptr;
    posicion_array posi;
    if (!arrayprv_posicion(array, pos / 8, &posi))
        return nullptr;
    return reinterpret_cast<BYTE *>(array->buffer[posi.fila] + posi.pos);
}

// Sets the bits of `mascara` in *byte for a non-zero valor, clears them for FALSO.
void pon_bits(BYTE *byte, BYTE mascara, BOOL valor)
{
    *byte = static_cast<BYTE>(valor != FALSO ? *byte | mascara : *byte & ~mascara);
}

} // namespace

extern "C" ARRAY *arr_CreaBIT(ULONG n) noexcept
{
    return arrayprv_crea(n, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
}

extern "C" BOOL arr_GetBIT(const ARRAY *array, ULONG pos) noexcept
{
    const BYTE *byte = byte_de(array, pos);
    return byte != nullptr && (*byte & mascara_de(pos)) != 0 ? CIERTO : FALSO;
}

extern "C" void arr_SetBIT(ARRAY *array, ULONG pos, BOOL valor) noexcept
{
    if (BYTE *byte = byte_de(array, pos))
        pon_bits(byte, mascara_de(pos), valor);
}

// A bit past a whole number of bytes starts a new byte; any other goes into the last byte, the
// last of the last row, and is written both ways because a fill may have set it.
extern "C" void arr_AppendBIT(ARRAY *array, BOOL valor) noexcept
{
    if (!es_array_vivo(array) || !es_de_bits(array))
        return;
    ARR_EXIGE(array->en_bucle == FALSO, "array->en_bucle == FALSO");
    const ULONG k = array->num_bits & 7;
    if (k != 0 && array->num_filas > 0) {
        const size_t ultima = array->num_filas - 1;
        BYTE *byte =
            reinterpret_cast<BYTE *>(array->buffer[ultima] + array->long_filas[ultima] - 1);
        pon_bits(byte, mascara_de(k), valor);
    } else {
        const BYTE byte = valor != FALSO ? 1 : 0;
        arrayprv_append(array, &byte, elem_BIT_NO_USAR);
    }
    ++array->num_bits;
}

extern "C" void arr_InicializaBIT(ARRAY *array, BOOL valor) noexcept
{
    const BYTE byte = valor != FALSO ? 0xFF : 0x00;
    arrayprv_inicializa(array, &byte, elem_BIT_NO_USAR);
}
