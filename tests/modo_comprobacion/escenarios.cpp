// The two situations that behave differently with and without checking mode.
#include "modo_comprobacion/escenarios.h"

#include "core/arrayprv.h"

ARRAY *crea_con_suma_corrupta()
{
    ARRAY *array = arr_CreaDouble(300);
    array->acumulado_filas[1] = 255;
    return array;
}

void repara_suma(ARRAY *array) { array->acumulado_filas[1] = 256; }

namespace {

BOOL anyade_en_la_primera_visita(double *, void *datos)
{
    auto *pendiente = static_cast<ARRAY **>(datos);
    if (*pendiente != nullptr)
        arr_AppendDouble(*pendiente, 7);
    *pendiente = nullptr;
    return CIERTO;
}

} // namespace

void append_dentro_de_lectura(ARRAY *array)
{
    fnc_accion acciones{};
    acciones.fnc_accion_double = anyade_en_la_primera_visita;
    ARRAY *pendiente = array;
    arrayprv_recorre(array, &acciones, &pendiente, elem_DOUBLE_NO_USAR, 0, 1, "prueba (MODO)",
                     __LINE__);
}
