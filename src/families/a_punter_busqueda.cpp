// Linear search in pointer arrays: by pointer identity, or by the caller's equality of an element
// with a datum (first, next, unique, exists), and the unique element itself.
#include "families/a_punter.h"

#include "core/comparadores.h"
#include "services/informes.h"

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

// The core search from `pos_inicial` with `igualdad` as the pointer member of the table.
ULONG busca(ARRAY *array, ULONG pos_inicial, const void *dato,
            BOOL (*igualdad)(const void *elemento, const void *dato), BOOL unico)
{
    ULONG posicion = ARR_ULONG_MAX;
    if (!punteros_hay_array(array))
        return posicion;
    fnc_compara tabla{};
    tabla.fnc_compara_puntero = igualdad;
    arrayprv_busca(array, pos_inicial, &dato, &tabla, &posicion, elem_PUNTERO_NO_USAR, unico);
    return posicion;
}

BOOL existe(ARRAY *array, const void *dato, arr_igualdad_PunteroConTipo igualdad, ULONG *posicion,
            BOOL unico)
{
    const ULONG encontrada = busca(array, 0, dato, igualdad, unico);
    if (posicion != nullptr)
        *posicion = encontrada;
    return encontrada < ARR_ULONG_MAX;
}

} // namespace

extern "C" ULONG arr_BuscarPunteroConTipo(ARRAY *array, const void *puntero) noexcept
{
    return busca(array, 0, puntero, arrayprv_mismo_puntero, FALSO);
}

extern "C" ULONG arr_BuscarEstructuraConTipo(ARRAY *array, const void *dato,
                                             arr_igualdad_PunteroConTipo igualdad) noexcept
{
    return busca(array, 0, dato, igualdad, FALSO);
}

extern "C" ULONG arr_BuscarSiguienteEstructuraConTipo(ARRAY *array, ULONG pos_inicial,
                                                      const void *dato,
                                                      arr_igualdad_PunteroConTipo igualdad) noexcept
{
    return busca(array, pos_inicial, dato, igualdad, FALSO);
}

extern "C" ULONG arr_BuscarUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) noexcept
{
    return busca(array, 0, dato, igualdad, CIERTO);
}

extern "C" BOOL arr_ExisteEstructuraConTipo(ARRAY *array, const void *dato,
                                            arr_igualdad_PunteroConTipo igualdad,
                                            ULONG *posicion) noexcept
{
    return existe(array, dato, igualdad, posicion, FALSO);
}

extern "C" BOOL arr_ExisteUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                 arr_igualdad_PunteroConTipo igualdad,
                                                 ULONG *posicion) noexcept
{
    return existe(array, dato, igualdad, posicion, CIERTO);
}

extern "C" void *nousar_arr_dame_unica_estructura(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) noexcept
{
    const ULONG posicion = busca(array, 0, dato, igualdad, CIERTO);
    if (array == nullptr || !arrayprv_marca_valida(array) ||
        array->tipo_elem != elem_PUNTERO_NO_USAR) // reported by the search
        return nullptr;
    // A missing match goes on to read position ULONG_MAX, which the element read reports.
    ARR_EXIGE(posicion != ARR_ULONG_MAX, "posicion != ULONG_MAX");
    return punteros_get(array, posicion);
}
extern "C" __attribute__((alias("nousar_arr_dame_unica_estructura")))
decltype(nousar_arr_dame_unica_estructura) nousar_arr_dame_unica_estructura_const;
