// Traversal with action tables, the range traversal, the walks over pointers and private data,
// and the loop guards that mark an array busy while a callback runs.
#include "core/arrayprv.h"

#include "services/informes.h"

#include <atomic>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// The lenient loop-guard check runs only while this equals exactly 1.
std::atomic<BOOL> comprobar_en_bucle{1};

// The scalar members of the action table: tag, member, element type.
#define ACCIONES_ESCALARES(X)                                                                     \
    X(elem_BYTE_NO_USAR, fnc_accion_BYTE, BYTE)                                                   \
    X(elem_BOOL_NO_USAR, fnc_accion_BOOL, BOOL)                                                   \
    X(elem_UCHAR_NO_USAR, fnc_accion_uchar, UCHAR)                                                \
    X(elem_CHAR_NO_USAR, fnc_accion_char, char)                                                   \
    X(elem_USHORT_NO_USAR, fnc_accion_ushort, USHORT)                                             \
    X(elem_SHORT_NO_USAR, fnc_accion_short, SHORT)                                                \
    X(elem_ULONG_NO_USAR, fnc_accion_ulong, ULONG)                                                \
    X(elem_LONG_NO_USAR, fnc_accion_long, LONG)                                                   \
    X(elem_ULONG64_NO_USAR, fnc_accion_ulong64, ULONG64)                                          \
    X(elem_LONG64_NO_USAR, fnc_accion_long64, LONG64)                                             \
    X(elem_DOUBLE_NO_USAR, fnc_accion_double, double)                                             \
    X(elem_PUNTERO_NO_USAR, fnc_accion_puntero, void *)                                           \
    X(elem_CADENA_NO_USAR, fnc_accion_CADENA, char *)                                             \
    X(elem_CADENA_U_NO_USAR, fnc_accion_CADENA_U, WCHAR *)

// Reports a missing action for the tag; false when the traversal cannot run.
bool hay_accion(const fnc_accion *acciones, tipo_elem_array tipo)
{
    switch (tipo) {
#define COMPRUEBA_ESCALAR(TAG, MIEMBRO, T)                                                        \
    case TAG:                                                                                     \
        return ARR_EXIGE(acciones->MIEMBRO != nullptr, "(fnc_accion->" #MIEMBRO ") != NULL");
        ACCIONES_ESCALARES(COMPRUEBA_ESCALAR)
#undef COMPRUEBA_ESCALAR
    case elem_PUNTO2D_NO_USAR:
        return ARR_EXIGE(acciones->fnc_accion_punto2D != nullptr,
                         "(fnc_accion->fnc_accion_punto2D) != NULL");
    case elem_PUNTO2DX_NO_USAR:
        return ARR_EXIGE(acciones->fnc_accion_punto2DX != nullptr,
                         "(fnc_accion->fnc_accion_punto2DX) != NULL");
    case elem_PUNTO3D_NO_USAR:
        return ARR_EXIGE(acciones->fnc_accion_punto3D != nullptr,
                         "(fnc_accion->fnc_accion_punto3D) != NULL");
    default:
        ARR_CASO_DESCONOCIDO();
        return false;
    }
}

// Applies the tag's action to up to `cuantos` elements from `desde` on.
void aplica(ARRAY *array, posicion_array desde, size_t cuantos, const fnc_accion *a, void *datos)
{
    switch (array->tipo_elem) {
#define APLICA_ESCALAR(TAG, MIEMBRO, T)                                                           \
    case TAG:                                                                                     \
        arrayprv_visita(array, desde, cuantos,                                                    \
                        [&](char *e) { a->MIEMBRO(reinterpret_cast<T *>(e), datos); });           \
        break;
        ACCIONES_ESCALARES(APLICA_ESCALAR)
#undef APLICA_ESCALAR
    case elem_PUNTO2D_NO_USAR:
        arrayprv_visita(array, desde, cuantos, [&](char *e) {
            double *p = reinterpret_cast<double *>(e);
            a->fnc_accion_punto2D(p, p + 1, datos);
        });
        break;
    case elem_PUNTO2DX_NO_USAR:
        arrayprv_visita(array, desde, cuantos, [&](char *e) {
            double *p = reinterpret_cast<double *>(e);
            a->fnc_accion_punto2DX(p, p + 1, reinterpret_cast<void **>(p + 2), datos);
        });
        break;
    case elem_PUNTO3D_NO_USAR:
        arrayprv_visita(array, desde, cuantos, [&](char *e) {
            double *p = reinterpret_cast<double *>(e);
            a->fnc_accion_punto3D(p, p + 1, p + 2, datos);
        });
        break;
    default:
        break;
    }
}

// The pointer an element carries: the element itself, or a 2D point's private data.
void **puntero_de(const ARRAY *array, char *elemento)
{
    const size_t desplazamiento = array->tipo_elem == elem_PUNTO2DX_NO_USAR ? 2 * sizeof(double) : 0;
    return reinterpret_cast<void **>(elemento + desplazamiento);
}

// Common part of the pointer walks: checks, marks the array busy and visits from `real_pos`.
template <typename Operacion>
void opera(ARRAY *array, ULONG real_pos, Operacion &&operacion)
{
    if (array == nullptr || !arrayprv_marca_valida(array) ||
        !ARR_EXIGE(array->tipo_elem == elem_PUNTERO_NO_USAR ||
                       array->tipo_elem == elem_PUNTO2DX_NO_USAR,
                   "array->tipo_elem == elem_PUNTERO_NO_USAR || "
                   "array->tipo_elem == elem_PUNTO2DX_NO_USAR"))
        return;
    posicion_array desde{0, 0};
    if (real_pos > 0 && !arrayprv_posicion(array, real_pos, &desde))
        return;
    array->en_bucle = CIERTO;
    arrayprv_visita(array, desde, array->num_elems - real_pos,
                    [&](char *e) { operacion(puntero_de(array, e)); });
    array->en_bucle = FALSO;
}

} // namespace

void arrayprv_comprueba_en_bucle(BOOL guarda, BOOL modo, const char *ubicacion, LONG linea)
{
    if (guarda && (modo == 1 || comprobar_en_bucle.load(std::memory_order_relaxed) == 1))
        error_interno_origen(u"en_bucle == FALSO", UBICACION, __LINE__, ubicacion, linea, 0);
}

extern "C" ARRAYS_API BOOL arrayprv_set_comprobar_en_bucle(BOOL valor) noexcept
{
    comprobar_en_bucle.store(valor, std::memory_order_relaxed);
    return valor;
}

void arrayprv_recorre(ARRAY *array, const fnc_accion *acciones, void *datos,
                      tipo_elem_array tipo_elem, BOOL modo, BOOL lectura, const char *ubicacion,
                      LONG linea)
{
    if (arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(array, modo);
        if (array == nullptr || !arrayprv_marca_valida(array))
            return;
    } else {
        if (!ARR_EXIGE(array, "array") ||
            !ARR_EXIGE(arrayprv_marca_valida(array), "array->mascara_debug == MASCARA_DEBUG"))
            return;
        arrayprv_comprueba_en_bucle(array->en_bucle, modo, ubicacion, linea);
        if (lectura == 0)
            arrayprv_comprueba_en_bucle(array->en_bucle_lectura, modo, ubicacion, linea);
    }
    if (!ARR_EXIGE(array->tipo_elem == tipo_elem, "array->tipo_elem == tipo_elem") ||
        !ARR_EXIGE(acciones != nullptr, "(fnc_accion) != NULL") || !hay_accion(acciones, tipo_elem))
        return;
    BOOL &guarda = lectura == 1 ? array->en_bucle_lectura : array->en_bucle;
    guarda = CIERTO;
    // Only the elements there at the start: an action that appends (a reported misuse) must not
    // keep the traversal going forever.
    aplica(array, posicion_array{0, 0}, array->num_elems, acciones, datos);
    guarda = FALSO;
}

void arrayprv_recorre_rango(ARRAY *array, ULONG inic, ULONG fin, const fnc_accion *acciones,
                            void *datos, tipo_elem_array tipo_elem, BOOL modo)
{
    if (arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(array, modo);
        if (array == nullptr || !arrayprv_marca_valida(array))
            return;
    } else {
        if (!ARR_EXIGE(array, "array") ||
            !ARR_EXIGE(arrayprv_marca_valida(array), "array->mascara_debug == MASCARA_DEBUG"))
            return;
        arrayprv_comprueba_en_bucle(array->en_bucle, modo, UBICACION, __LINE__);
        arrayprv_comprueba_en_bucle(array->en_bucle_lectura, modo, UBICACION, __LINE__);
    }
    if (!ARR_EXIGE(array->tipo_elem == tipo_elem, "array->tipo_elem == tipo_elem") ||
        !ARR_EXIGE(acciones != nullptr, "(fnc_accion) != NULL") || !hay_accion(acciones, tipo_elem))
        return;
    array->en_bucle = CIERTO;
    posicion_array desde;
    posicion_array hasta;
    if (arrayprv_posicion(array, inic, &desde) && arrayprv_posicion(array, fin, &hasta) &&
        ARR_EXIGE(inic <= fin, "arr_EsAnteriorIgualPosicion(&inic, &fin)"))
        aplica(array, desde, size_t{fin} - inic + 1, acciones, datos);
    array->en_bucle = FALSO;
}

void arrayprv_opera_todos(ARRAY *array, operacion_puntero operacion)
{
    if (ARR_EXIGE(operacion != nullptr, "operacion"))
        opera(array, 0, [&](void **ptr) { operacion(*ptr); });
}

void arrayprv_opera_direccion_todos(ARRAY *array, operacion_direccion operacion)
{
    if (ARR_EXIGE(operacion != nullptr, "(operacion) != NULL"))
        opera(array, 0, operacion);
}

void arrayprv_opera_desde(ARRAY *array, ULONG real_pos, operacion_puntero operacion)
{
    if (ARR_EXIGE(operacion != nullptr, "(operacion) != NULL"))
        opera(array, real_pos, [&](void **ptr) { operacion(*ptr); });
}

void arrayprv_opera_direccion_desde(ARRAY *array, ULONG real_pos, operacion_direccion operacion)
{
    if (ARR_EXIGE(operacion != nullptr, "(operacion) != NULL"))
        opera(array, real_pos, operacion);
}
