// The exports of the 3D point family: the family operations and a whole-array comparison with a
// tolerance per coordinate.
#include "points/familia_punto.h"

namespace {

constexpr tipo_elem_array TAG = elem_PUNTO3D_NO_USAR;
using Familia = FamiliaPunto<TAG>;

} // namespace

ARR_DEFINE_FAMILIA_PUNTO(Punto3D, TAG, (double x, double y, double z), (x, y, z))

extern "C" void arr_GetPunto3D(const ARRAY *array, ULONG pos, double *x, double *y,
                               double *z) noexcept
{
    const Punto3D *punto = punto_en<TAG>(array, pos);
    if (punto == nullptr)
        return;
    if (x != nullptr)
        *x = punto->x;
    if (y != nullptr)
        *y = punto->y;
    if (z != nullptr)
        *z = punto->z;
}

extern "C" void arr_SetPunto3D(ARRAY *array, ULONG pos, double x, double y, double z) noexcept
{
    pon_punto<TAG>(array, pos, {x, y, z});
}

extern "C" void arr_BorrarPunto3D(ARRAY *array, ULONG pos) noexcept { Familia::borra(array, pos); }

extern "C" BOOL arr_SonIgualesPunto3DConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                   double tolerancia) noexcept
{
    const bool comparables =
        todas({arrayprv_entrada_tipo(array1, TEXTOS_ARRAY1, false, Modo::leniente, TAG,
                                     "array1->tipo_elem == elem_PUNTO3D_NO_USAR"),
               arrayprv_entrada_tipo(array2, TEXTOS_ARRAY2, false, Modo::leniente, TAG,
                                     "array2->tipo_elem == elem_PUNTO3D_NO_USAR")});
    return comparables && coordenadas_dentro_de_tolerancia(array1, array2, tolerancia, 3);
}

extern "C" ARRAY *arr_InvertirPunto3D(const ARRAY *array) noexcept
{
    return arrayprv_invertida(array, TAG);
}

extern "C" void arr_nousar_RecorrePunto3D(ARRAY *array, arr_accion_Punto3D accion, void *datos,
                                          const char *ubicacion, LONG linea) noexcept
{
    Familia::recorre(array, accion, datos, ubicacion, linea);
}
