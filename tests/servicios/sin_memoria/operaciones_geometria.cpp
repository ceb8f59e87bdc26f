// The rows of the plane geometry that builds or rebuilds polylines: the arcs, ellipses and
// circles appended to a 2D point array, and the removals of repeated and collinear points.
#include "servicios/sin_memoria/operaciones.h"

namespace {

// Points in a row of 2048 bytes.
constexpr int FILA = 2048 / (2 * sizeof(double));

// Five rows of points along the x axis, those after the second row all equal to its last point:
// removing them empties three rows, and the row tables, a quarter used, shrink.
ARRAY *repetidos()
{
    ARRAY *array = arr_CreaPunto2D(0);
    for (int i = 0; i < 4 * FILA + 1; ++i)
        arr_AppendPunto2D(array, i < 2 * FILA ? i : 2 * FILA - 1, 0);
    return array;
}

// A full row of a zigzag, every other point of which lies on the line through its neighbours;
// closing it appends a copy of the first point, which needs a new row.
ARRAY *alineados()
{
    ARRAY *array = arr_CreaPunto2D(0);
    for (int i = 0; i < FILA; ++i)
        arr_AppendPunto2D(array, i, (i / 2) % 2 == 0 ? 0.0 : 1.0);
    return array;
}

ARRAY *vacio() { return arr_CreaPunto2D(0); }

} // namespace

std::vector<Operacion> operaciones_geometria()
{
    return {
        cambia("arr_AnyadirArcoPunto2D", vacio,
               [](ARRAY *a) { arr_AnyadirArcoPunto2D(a, 0, 0, 10, 0, 0, 10, 0, 720); }),
        cambia("arr_AnyadirArcoPunto2D_numPuntosArco", vacio,
               [](ARRAY *a) { arr_AnyadirArcoPunto2D_numPuntosArco(a, 0, 0, 10, 0, -10, 0, 1, 200); }),
        cambia("arr_AnyadirArcoPunto2D_con_longitud_maxima_lado", vacio,
               [](ARRAY *a) {
                   arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(a, 0, 0, 10, 0, 0, -10, 0, 8,
                                                                  0.1);
               }),
        cambia("arr_AnyadirArcoElipsePunto2D", vacio,
               [](ARRAY *a) { arr_AnyadirArcoElipsePunto2D(a, 1, 2, 10, 4, 0, 6, 0.5, 0, 720); }),
        cambia("arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado", vacio,
               [](ARRAY *a) {
                   arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(a, 1, 2, 10, 4, 0, 3,
                                                                        0.5, 1, 8, 0.1);
               }),
        cambia("arr_AnyadirCirculoPunto2D", vacio,
               [](ARRAY *a) { arr_AnyadirCirculoPunto2D(a, 3, 4, 5, 0, 300); }),
        {"arr_EliminarPuntosContiguosRepetidosPunto2D",
         [](Caso &caso) {
             ARRAY *array = caso.guarda(repetidos());
             ULONG eliminados = 0;
             caso.llama([&] { arr_EliminarPuntosContiguosRepetidosPunto2D(array, &eliminados); });
             caso.anota(std::to_string(eliminados));
         }},
        cambia("arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D", alineados,
               [](ARRAY *a) { arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(a, 1, 0.01); }),
    };
}
