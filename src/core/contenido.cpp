// Ownership of element contents: string arrays own their strings; pointer arrays and the private
// data of 2D points belong to the caller, who must have released and cleared them first.
#include "core/arrayprv.h"

#include "services/cadenas.h"
#include "services/informes.h"

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

void exige_puntero_nulo(void *ptr) { ARR_EXIGE(ptr == nullptr, "ptr == NULL"); }

BOOL destruye_cadena(char **cad_ptr, void *)
{
    ARR_EXIGE(cad_ptr != nullptr, "(cad_ptr) != NULL");
    zarpstr_destruye(cad_ptr);
    return CIERTO;
}

BOOL destruye_cadena_ancha(WCHAR **cad_ptr, void *)
{
    ARR_EXIGE(cad_ptr != nullptr, "(cad_ptr) != NULL");
    widestr_nousar_destruye(cad_ptr, UBICACION, __LINE__);
    return CIERTO;
}

fnc_accion acciones_de_destruccion()
{
    fnc_accion acciones{};
    acciones.fnc_accion_CADENA = destruye_cadena;
    acciones.fnc_accion_CADENA_U = destruye_cadena_ancha;
    return acciones;
}

} // namespace

void arrayprv_libera_contenido_desde(ARRAY *array, ULONG real_pos)
{
    const fnc_accion acciones = acciones_de_destruccion();
    switch (array->tipo_elem) {
    case elem_PUNTERO_NO_USAR:
    case elem_PUNTO2DX_NO_USAR:
        arrayprv_opera_desde(array, real_pos, exige_puntero_nulo);
        break;
    case elem_CADENA_NO_USAR:
    case elem_CADENA_U_NO_USAR:
        arrayprv_recorre_rango(array, real_pos, static_cast<ULONG>(array->num_elems - 1), &acciones,
                               nullptr, array->tipo_elem, 1);
        break;
    default:
        break;
    }
}

void arrayprv_libera_contenido(ARRAY *array)
{
    const fnc_accion acciones = acciones_de_destruccion();
    switch (array->tipo_elem) {
    case elem_PUNTERO_NO_USAR:
    case elem_PUNTO2DX_NO_USAR:
        arrayprv_opera_todos(array, exige_puntero_nulo);
        break;
    case elem_CADENA_NO_USAR:
    case elem_CADENA_U_NO_USAR:
        arrayprv_recorre(array, &acciones, nullptr, array->tipo_elem, 0, 0, UBICACION, __LINE__);
        break;
    default:
        break;
    }
}
