// Traversals of pointer arrays: over the stored pointers, over their slots with the engine's
// action table, and the simple form with the caller's datos. The array is marked busy meanwhile.
#include "families/a_punter.h"

#include "services/informes.h"

#include <cstring>

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

} // namespace

extern "C" void arr_RecorrePunteroConTipo(ARRAY *array, arr_opera_PunteroConTipo accion) noexcept
{
    if (punteros_cabecera(array, TEXTOS_ARRAY, false, Modo::leniente) && array->num_elems > 0)
        arrayprv_opera_todos(array, accion);
}

extern "C" void arr_RecorreEstructuraConTipo(ARRAY *array, arr_accion_PunteroConTipo accion,
                                             void *datos, const char *ubicacion, LONG linea) noexcept
{
    if (!punteros_hay_array(array))
        return;
    fnc_accion acciones{};
    acciones.fnc_accion_puntero = accion;
    arrayprv_recorre(array, &acciones, datos, elem_PUNTERO_NO_USAR, 0, 0, ubicacion, linea);
}

extern "C" void arr_RecorreEstructuraSimpleConTipo(ARRAY *array,
                                                   arr_accion_EstructuraSimpleConTipo accion,
                                                   void *datos) noexcept
{
    const bool usable = punteros_cabecera(array, TEXTOS_ARRAY, false, Modo::leniente);
    const bool hay_accion = ARR_EXIGE(accion != nullptr, "(accion) != NULL");
    if (!usable || !hay_accion || !ARR_EXIGE(array->tipo_elem == elem_PUNTERO_NO_USAR, TEXTO_TIPO_PUNTERO))
        return;
    punteros_visita_desde(array, 0, [&](void **slot) { accion(*slot, datos); });
}
