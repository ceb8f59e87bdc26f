// How the geometry reaches the points of an array: it tells the two kinds of 2D point array
// apart by the array's tag and appends, reads and deletes through the kind's exported operations.
#include "points/geometria_interna.h"

namespace geometria {

Clase clase_de(const ARRAY *array)
{
    int32_t tipo = -1;
    arryprv_es_array_correcto(array, &tipo, nullptr, nullptr);
    switch (tipo) {
    case -1:
        return Clase::sin_array;
    case elem_PUNTO2D_NO_USAR:
        return Clase::plano;
    case elem_PUNTO2DX_NO_USAR:
        return Clase::con_datos;
    default:
        return Clase::otro_tipo;
    }
}

ARRAY *crea_vacio(Clase clase)
{
    return clase == Clase::plano ? arr_CreaPunto2D(0) : arr_CreaPunto2DXPriv(0);
}

Salida::Salida(ARRAY *array) : array_(array), clase_(clase_de(array)) {}

void Salida::emite(double x, double y)
{
    if (rechazada_)
        return;
    if (clase_ == Clase::plano) {
        arr_AppendPunto2D(array_, x, y);
        return;
    }
    arr_AppendPunto2DXPriv(array_, x, y, nullptr);
    rechazada_ = clase_ != Clase::con_datos;
}

Punto Polilinea::punto(ULONG i) const
{
    Punto punto{0.0, 0.0};
    arr_GetPunto2D(array, i, &punto.x, &punto.y);
    return punto;
}

void borra_punto(ARRAY *array, Clase clase, ULONG i)
{
    if (clase == Clase::plano)
        arr_BorrarPunto2D(array, i);
    else
        arr_BorrarPunto2DXPriv(array, i);
}

std::optional<Polilinea> lee_polilinea(const ARRAY *array)
{
    const ULONG num_puntos = arr_NumElemsPunto2D(array);
    const Clase clase = clase_de(array);
    if (clase == Clase::plano || clase == Clase::con_datos)
        return Polilinea{array, clase, num_puntos};
    if (clase == Clase::otro_tipo)
        arr_GetPunto2D(array, 0, nullptr, nullptr);
    return std::nullopt;
}

} // namespace geometria
