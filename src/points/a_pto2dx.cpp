// The exports of the 2D points with private data: the family operations, the plane transforms,
// and what the data pointer needs. The data belongs to the caller: it is released only by the
// caller's destroy function, duplicated only by the caller's copy function, and must be NULL
// when the array is destroyed or shrunk otherwise (the engine reports each one still set).
#include "points/a_pto2dx.h"
#include "points/transformaciones.h"

#include "services/memoria.h"

namespace {

constexpr tipo_elem_array TAG = elem_PUNTO2DX_NO_USAR;
using Familia = FamiliaPunto<TAG>;
constexpr const char *UBICACION = Escalar<TAG>::UBICACION;

// The context of the traversal that appends the points of one array to another.
struct Anyadido {
    ARRAY *dest;
    arr_copia_datos_Punto2DXPriv copia;
};

BOOL anyade_punto(double *x, double *y, void **datos_punto, void *contexto)
{
    const auto *anyadido = static_cast<const Anyadido *>(contexto);
    void *datos = anyadido->copia != nullptr ? anyadido->copia(*datos_punto) : *datos_punto;
    Familia::append(anyadido->dest, {*x, *y, datos});
    return CIERTO;
}

// Appends every point of org to dest by a read traversal of org that names the caller.
void anyade_todos(ARRAY *dest, ARRAY *org, arr_copia_datos_Punto2DXPriv copia,
                  const char *ubicacion, LONG linea)
{
    Anyadido anyadido{dest, copia};
    fnc_accion acciones{};
    acciones.fnc_accion_punto2DX = anyade_punto;
    arrayprv_recorre(org, &acciones, &anyadido, TAG, 0, 1, ubicacion, linea);
}

// A reversed copy must not share data: each point's data is reported unless NULL, and dropped.
void exige_y_quita_datos(void **datos)
{
    ARR_EXIGE(*datos == nullptr, "datos == NULL");
    *datos = nullptr;
}

} // namespace

ARR_DEFINE_FAMILIA_PUNTO(Punto2DXPriv, TAG, (double x, double y, void *datos), (x, y, datos))

BOOL sonda_tiene_datos(double, double, void *item1, double x2, double y2, void *item2)
{
    ARR_EXIGE(x2 == 0.0, "x2 == 0.0");
    ARR_EXIGE(y2 == 0.0, "y2 == 0.0");
    ARR_EXIGE(item2 == nullptr, "item2 == NULL");
    return item1 != nullptr ? CIERTO : FALSO;
}

extern "C" void arr_GetPunto2DXPriv(const ARRAY *array, ULONG pos, double *x, double *y,
                                    void **datos) noexcept
{
    ARR_EXIGE(x != nullptr, "(x) != NULL");
    ARR_EXIGE(y != nullptr, "(y) != NULL");
    const Punto2DX *punto = punto_en<TAG>(array, pos);
    if (punto == nullptr)
        return;
    if (x != nullptr)
        *x = punto->x;
    if (y != nullptr)
        *y = punto->y;
    if (datos != nullptr)
        *datos = punto->datos;
}

extern "C" void arr_SetPunto2DXPriv(ARRAY *array, ULONG pos, double x, double y,
                                    void *datos) noexcept
{
    pon_punto<TAG>(array, pos, {x, y, datos});
}

extern "C" void arr_BorrarPunto2DXPriv(ARRAY *array, ULONG pos) noexcept
{
    Familia::borra(array, pos);
}

extern "C" void arr_RecorrePunto2DXPriv(ARRAY *array, arr_accion_Punto2DXPriv accion,
                                        void *datos) noexcept
{
    Familia::recorre(array, accion, datos, UBICACION, __LINE__);
}

extern "C" void arr_MoverPunto2DXPriv(ARRAY *array, double dx, double dy) noexcept
{
    Transformacion<TAG>::mueve(array, dx, dy);
}

extern "C" void arr_MultiplicarPunto2DXPriv(ARRAY *array, double factor) noexcept
{
    Transformacion<TAG>::multiplica(array, factor);
}

extern "C" void arr_Girar_seno_y_cosenoPunto2DXPriv(ARRAY *array, double xc, double yc,
                                                    double seno, double coseno) noexcept
{
    Transformacion<TAG>::gira_seno_coseno(array, xc, yc, seno, coseno);
}

extern "C" void arr_GirarPunto2DXPriv(ARRAY *array, double xc, double yc, double angulo) noexcept
{
    Transformacion<TAG>::gira_angulo(array, xc, yc, angulo);
}

extern "C" ARRAY *arr_InvertirPunto2DXPriv(const ARRAY *array) noexcept
{
    ARRAY *invertida = arrayprv_invertida(array, TAG);
    if (invertida != nullptr)
        arrayprv_opera_direccion_todos(invertida, exige_y_quita_datos);
    return invertida;
}

extern "C" BOOL arr_TieneDatosExtrasAlgunPunto2DXPriv(ARRAY *array) noexcept
{
    return arr_ExistePunto2DXPriv(array, 0.0, 0.0, nullptr, sonda_tiene_datos, nullptr);
}

extern "C" void arr_DestruyePunto2DXPriv(ARRAY **array,
                                         arr_destruye_datos_Punto2DXPriv destruye) noexcept
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !arrayprv_entrada(*array, TEXTOS_HANDLE, true, Modo::estricto))
        return;
    // A plain 2D point array is reported by its tag and destroyed all the same: it holds no data
    // to release. Any other type is left to its own destroyer.
    const bool con_datos =
        ARR_EXIGE((*array)->tipo_elem == TAG, "(*array)->tipo_elem == elem_PUNTO2DX_NO_USAR");
    if ((!con_datos && (*array)->tipo_elem != elem_PUNTO2D_NO_USAR) ||
        !arrayprv_admite_cambio(*array, TEXTOS_HANDLE))
        return;
    if (con_datos && (*array)->num_elems > 0) {
        if (destruye != nullptr)
            arrayprv_opera_direccion_todos(*array, destruye);
        arrayprv_libera_contenido(*array);
    }
    arrayprv_libera_filas(*array);
    (*array)->mascara_debug = 0;
    zarpspy_libera_cabecera(array);
}

extern "C" void arr_ReduceTamanyoPunto2DXPriv(ARRAY *array, ULONG nuevo_tamanyo,
                                              arr_destruye_datos_Punto2DXPriv destruye) noexcept
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY, true, Modo::estricto, TAG,
                               "array->tipo_elem == elem_PUNTO2DX_NO_USAR") ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY))
        return;
    ARR_EXIGE(nuevo_tamanyo <= array->num_elems, "nuevo_tamanyo <= array->num_elems");
    if (nuevo_tamanyo >= array->num_elems)
        return;
    if (destruye != nullptr)
        arrayprv_opera_direccion_desde(array, nuevo_tamanyo, destruye);
    arrayprv_libera_contenido_desde(array, nuevo_tamanyo);
    arrayprv_recorta(array, nuevo_tamanyo);
}

extern "C" ARRAY *arr_CopiaPunto2DXPriv_nousar(ARRAY *array, arr_copia_datos_Punto2DXPriv copia,
                                               const char *ubicacion, LONG linea) noexcept
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY, false, Modo::leniente, TAG,
                               "array->tipo_elem == elem_PUNTO2DX_NO_USAR"))
        return nullptr;
    ARRAY *copia_array = Familia::crea(0);
    anyade_todos(copia_array, array, copia, ubicacion, linea);
    return copia_array;
}

extern "C" void arr_ConcatenaPunto2DXPriv_nousar(ARRAY *dest, ARRAY *org,
                                                 arr_copia_datos_Punto2DXPriv copia,
                                                 const char *ubicacion, LONG linea) noexcept
{
    if (!ARR_EXIGE(org != nullptr, "(org) != NULL") ||
        !arrayprv_entrada_tipo(dest, TEXTOS_DESTINO, true, Modo::estricto, TAG,
                               "dest->tipo_elem == elem_PUNTO2DX_NO_USAR") ||
        !ARR_EXIGE(arrayprv_marca_valida(org), "org->mascara_debug == MASCARA_DEBUG") ||
        !arrayprv_admite_cambio(dest, TEXTOS_DESTINO))
        return;
    // An array appended to itself would never reach the end of its growing count.
    if (ARR_EXIGE(dest != org, "dest != org"))
        anyade_todos(dest, org, copia, ubicacion, linea);
}
