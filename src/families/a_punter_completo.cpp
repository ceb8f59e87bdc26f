// Whole-array operations on pointer arrays: sort, equality, copy through the caller's copy
// function, concatenation and reversal in place.
#include "families/a_punter.h"

#include "core/comparadores.h"
#include "core/quicksort.h"
#include "services/informes.h"

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

// What the concatenation's action needs: where to append and how to copy.
struct Concatenacion {
    ARRAY *dest;
    funcion_copia copia;
};

BOOL anyade_a_destino(void **elemento, void *datos)
{
    const auto *concatenacion = static_cast<const Concatenacion *>(datos);
    void *puntero = concatenacion->copia != nullptr ? concatenacion->copia(*elemento) : *elemento;
    arrayprv_append(concatenacion->dest, &puntero, elem_PUNTERO_NO_USAR);
    return CIERTO;
}

// Appends org's elements (or their copies) to dest inside a read traversal of org that names the
// caller. An array appended to itself would never reach the end of its growing count.
void concatena(ARRAY *dest, ARRAY *org, funcion_copia copia, const char *ubicacion, LONG linea)
{
    if (!punteros_entrada_concatenacion(dest, org) || !ARR_EXIGE(dest != org, "dest != org"))
        return;
    fnc_accion acciones{};
    acciones.fnc_accion_puntero = anyade_a_destino;
    Concatenacion concatenacion{dest, copia};
    arrayprv_recorre(org, &acciones, &concatenacion, elem_PUNTERO_NO_USAR, 0, 1, ubicacion, linea);
}

} // namespace

extern "C" void arr_QSortPunteroConTipo(ARRAY *array, arr_orden_PunteroConTipo compara) noexcept
{
    if (punteros_cabecera(array, TEXTOS_ARRAY, false, Modo::ninguno) && array->num_elems >= 2)
        arrayprv_ordena<elem_PUNTERO_NO_USAR>(array, compara);
}
extern "C" __attribute__((alias("arr_QSortPunteroConTipo")))
decltype(arr_QSortPunteroConTipo) arr_QSortPunteroConTipoConst;

extern "C" BOOL arr_SonIgualesPunteroConTipo(ARRAY *array1, ARRAY *array2,
                                             arr_igualdad_PunteroConTipo igualdad) noexcept
{
    fnc_compara tabla{};
    tabla.fnc_compara_puntero = igualdad;
    return arrayprv_son_iguales(array1, array2, &tabla, elem_PUNTERO_NO_USAR);
}

extern "C" ARRAY *arr_CopiaEstructurasConTipo(const ARRAY *array,
                                              arr_copia_EstructuraConTipo copia) noexcept
{
    return punteros_entrada(array, false, Modo::leniente) ? arrayprv_copia(array, copia) : nullptr;
}

extern "C" void arr_ConcatenaEstructurasConTipo(ARRAY *dest, ARRAY *org,
                                                arr_copia_EstructuraConTipo copia,
                                                const char *ubicacion, LONG linea) noexcept
{
    concatena(dest, org, copia, ubicacion, linea);
}

extern "C" void arr_ConcatenaEstructurasConTipoConst(ARRAY *dest, ARRAY *org, const char *ubicacion,
                                                     LONG linea) noexcept
{
    concatena(dest, org, nullptr, ubicacion, linea);
}

extern "C" void arr_nousar_InvierteOrdenPunteroConTipo(ARRAY *array) noexcept
{
    if (punteros_cabecera(array, TEXTOS_ARRAY, false, Modo::ninguno) && array->num_elems >= 2)
        arrayprv_invierte(array, elem_PUNTERO_NO_USAR);
}
