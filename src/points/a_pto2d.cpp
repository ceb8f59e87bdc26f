// The exports of the 2D point family: the family operations, the reads that accept either kind
// of 2D point array (plain or with private data), tolerance comparisons, bounding box, closed
// polyline segments, reversal and the plane transforms.
#include "points/transformaciones.h"

namespace {

constexpr tipo_elem_array TAG = elem_PUNTO2D_NO_USAR;
using Familia = FamiliaPunto<TAG>;
constexpr const char *UBICACION = Escalar<TAG>::UBICACION;

// The tag a 2D operation reads `array` with: its own for a live private-data array, otherwise
// the plain one (whose check then reports any other type).
tipo_elem_array tipo_punto2D(const ARRAY *array)
{
    const bool con_datos = array != nullptr && arrayprv_marca_valida(array) &&
                           array->tipo_elem == elem_PUNTO2DX_NO_USAR;
    return con_datos ? elem_PUNTO2DX_NO_USAR : elem_PUNTO2D_NO_USAR;
}

// x and y of point pos of either kind of 2D point array; NULL after the reports when the array
// cannot be read, and also after "(pto2D) != NULL" or "(pto2DX) != NULL" when the point does not
// exist.
const double *coordenadas_en(const ARRAY *array, ULONG pos)
{
    const tipo_elem_array tipo = tipo_punto2D(array);
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, false, Modo::ninguno, tipo))
        return nullptr;
    const void *punto = arrayprv_get(array, pos, tipo);
    ARR_EXIGE(punto != nullptr,
              tipo == elem_PUNTO2DX_NO_USAR ? "(pto2DX) != NULL" : "(pto2D) != NULL");
    return static_cast<const double *>(punto);
}

void escribe(const double *punto, double *x, double *y)
{
    if (x != nullptr)
        *x = punto[0];
    if (y != nullptr)
        *y = punto[1];
}

// A live array of either 2D kind, checked under the texts of one of two arguments.
bool es_array_punto2D(const ARRAY *array, const TextosEntrada &textos, const char *texto_tipo)
{
    return arrayprv_entrada(array, textos, false, Modo::leniente) &&
           ARR_EXIGE(es_punto2D(array->tipo_elem), texto_tipo);
}

// The 2D point array held at position pos of a pointer array.
const ARRAY *array_en(const ARRAY *punteros, ULONG pos)
{
    const ARRAY *array = nullptr;
    if (const void *elemento = arrayprv_get(punteros, pos, elem_PUNTERO_NO_USAR))
        std::memcpy(&array, elemento, sizeof array);
    return array;
}

} // namespace

ARR_DEFINE_FAMILIA_PUNTO(Punto2D, TAG, (double x, double y), (x, y))

extern "C" void arr_InicializaPunto2D(ARRAY *array, double x, double y) noexcept
{
    Familia::inicializa(array, {x, y});
}

extern "C" void arr_GetPunto2D(const ARRAY *array, ULONG pos, double *x, double *y) noexcept
{
    if (const double *punto = coordenadas_en(array, pos))
        escribe(punto, x, y);
}

extern "C" void arr_SetPunto2D(ARRAY *array, ULONG pos, double x, double y) noexcept
{
    if (tipo_punto2D(array) == elem_PUNTO2DX_NO_USAR)
        arr_SetPunto2DXPriv(array, pos, x, y, nullptr);
    else
        pon_punto<TAG>(array, pos, {x, y});
}

extern "C" void arr_BorrarPunto2D(ARRAY *array, ULONG pos) noexcept
{
    if (arrayprv_entrada(array, TEXTOS_ARRAY_CORTO, false, Modo::ninguno) &&
        ARR_EXIGE(es_punto2D(array->tipo_elem), "array->tipo_elem == elem_PUNTO2D_NO_USAR || "
                                                "array->tipo_elem == elem_PUNTO2DX_NO_USAR"))
        arrayprv_borra(array, pos, array->tipo_elem);
}

extern "C" BOOL arr_ArraysDePunto2DIguales(const ARRAY *array1, const ARRAY *array2,
                                           double tolerancia) noexcept
{
    const bool comparables =
        todas({es_array_punto2D(array1, TEXTOS_ARRAY1,
                                "array1->tipo_elem == elem_PUNTO2D_NO_USAR || "
                                "array1->tipo_elem == elem_PUNTO2DX_NO_USAR"),
               es_array_punto2D(array2, TEXTOS_ARRAY2,
                                "array2->tipo_elem == elem_PUNTO2D_NO_USAR || "
                                "array2->tipo_elem == elem_PUNTO2DX_NO_USAR")});
    return comparables && coordenadas_dentro_de_tolerancia(array1, array2, tolerancia, 2);
}

extern "C" BOOL arr_SonIgualesArrPunteroArrPunto2DConTolerancia(const ARRAY *array1,
                                                                const ARRAY *array2,
                                                                double tolerancia) noexcept
{
    constexpr tipo_elem_array PUNTEROS = elem_PUNTERO_NO_USAR;
    const bool comparables =
        todas({arrayprv_entrada_tipo(array1, TEXTOS_ARRAY1, false, Modo::leniente, PUNTEROS,
                                     "array1->tipo_elem == elem_PUNTERO_NO_USAR"),
               arrayprv_entrada_tipo(array2, TEXTOS_ARRAY2, false, Modo::leniente, PUNTEROS,
                                     "array2->tipo_elem == elem_PUNTERO_NO_USAR")});
    if (!comparables || array1->num_elems != array2->num_elems)
        return FALSO;
    const ULONG n = static_cast<ULONG>(array1->num_elems);
    for (ULONG i = 0; i < n; ++i)
        if (!arr_ArraysDePunto2DIguales(array_en(array1, i), array_en(array2, i), tolerancia))
            return FALSO;
    return CIERTO;
}

extern "C" void arr_nousar_RecorrePunto2D(ARRAY *array, arr_accion_Punto2D accion, void *datos,
                                          const char *ubicacion, LONG linea) noexcept
{
    Familia::recorre(array, accion, datos, ubicacion, linea);
}

extern "C" void arr_MoverPunto2D(ARRAY *array, double dx, double dy) noexcept
{
    Transformacion<TAG>::mueve(array, dx, dy);
}

extern "C" void arr_MultiplicarPunto2D(ARRAY *array, double factor) noexcept
{
    Transformacion<TAG>::multiplica(array, factor);
}

extern "C" void arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D(ARRAY *array, double xc,
                                                                    double yc, double seno,
                                                                    double coseno) noexcept
{
    Transformacion<TAG>::gira_seno_coseno(array, xc, yc, seno, coseno);
}

extern "C" void arr_GirarPunto2D(ARRAY *array, double xc, double yc, double angulo) noexcept
{
    Transformacion<TAG>::gira_angulo(array, xc, yc, angulo);
}

extern "C" void arr_GetMinimaxPunto2D(const ARRAY *array, double *xmin, double *ymin, double *xmax,
                                      double *ymax) noexcept
{
    const double *primero = coordenadas_en(array, 0);
    if (primero == nullptr)
        return;
    double minimo[2] = {primero[0], primero[1]};
    double maximo[2] = {primero[0], primero[1]};
    // Invariant: minimo and maximo bound every point visited so far, coordinate by coordinate.
    arrayprv_visita_todos(array, [&](const char *elemento) {
        const double *punto = reinterpret_cast<const double *>(elemento);
        for (int eje = 0; eje < 2; ++eje) {
            if (minimo[eje] > punto[eje])
                minimo[eje] = punto[eje];
            if (punto[eje] > maximo[eje])
                maximo[eje] = punto[eje];
        }
    });
    escribe(minimo, xmin, ymin);
    escribe(maximo, xmax, ymax);
}

extern "C" void arr_GetSegmentoPunto2D(const ARRAY *array, ULONG i, double *x1, double *y1,
                                       double *x2, double *y2) noexcept
{
    const double *inicio = coordenadas_en(array, i);
    if (inicio == nullptr)
        return;
    // The last segment closes the polyline back to point 0.
    const ULONG j = i == array->num_elems - 1 ? 0 : i + 1;
    if (const double *fin = coordenadas_en(array, j)) {
        escribe(inicio, x1, y1);
        escribe(fin, x2, y2);
    }
}

extern "C" ARRAY *arr_InvertirPunto2D(const ARRAY *array) noexcept
{
    return arrayprv_invertida(array, TAG);
}
