// The rows of the plane geometry of 2D point arrays: the arcs, ellipses and circles appended as
// polylines, the removals of repeated and collinear points, and the measures, whose reads by
// position build the direct table of a large array.
#include "servicios/sin_memoria/operaciones.h"

#include <cmath>

namespace
{

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

// A polygon of 64 rows of points and more, its first row split by an insert at 0: the reads by
// position of the measures go through the direct table, which the first of them builds.
ARRAY *poligono()
{
    ARRAY *array = arr_CreaPunto2D(0);
    for (int i = 0; i < 64 * FILA + 1; ++i)
        arr_AppendPunto2D(array, std::cos(i * 0.001), std::sin(i * 0.001));
    arr_InsertarPunto2D(array, 0, 0, 0);
    return array;
}

// A pointer array of 64 rows of four 2D point arrays and more, its first row split in the same
// way; the point arrays are alike from one call to the next.
ARRAY *arrays_de_puntos()
{
    constexpr ULONG POR_FILA = 4;
    const auto puntos = [](int i) {
        ARRAY *array = arr_CreaPunto2D(0);
        arr_AppendPunto2D(array, i, -i);
        return array;
    };
    ARRAY *array = arr_CreaPunteroConTipoEx(0, POR_FILA * sizeof(void *));
    for (int i = 0; i < 64 * static_cast<int>(POR_FILA) + 1; ++i)
        arr_AppendPunteroConTipo(array, puntos(i));
    arr_InsertarPunteroConTipo(array, 0, puntos(-1));
    return array;
}

// `mide(array, resultados)`: a measure of the polygon, its results (up to four) as numbers.
template <typename Mide> Operacion mide(const char *nombre, Mide mide)
{
    return {nombre, [mide](Caso &caso) {
                ARRAY *array = caso.guarda(poligono());
                double resultados[4] = {0, 0, 0, 0};
                caso.llama([&] { mide(array, resultados); });
                for (const double resultado : resultados)
                    caso.anota(std::to_string(resultado));
            }};
}

} // namespace

std::vector<Operacion> operaciones_geometria()
{
    return {
        cambia("arr_AnyadirArcoPunto2D", vacio,
               [](ARRAY *a) { arr_AnyadirArcoPunto2D(a, 0, 0, 10, 0, 0, 10, 0, 720); }),
        cambia(
            "arr_AnyadirArcoPunto2D_numPuntosArco", vacio,
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
                   arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(a, 1, 2, 10, 4, 0, 3, 0.5,
                                                                         1, 8, 0.1);
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
        mide("arr_CalcularAreaPunto2D",
             [](ARRAY *a, double *r) { r[0] = arr_CalcularAreaPunto2D(a); }),
        mide("arr_LongitudPunto2D",
             [](ARRAY *a, double *r) {
                 ULONG indice = 0;
                 r[0] = arr_LongitudPunto2D(a, &indice, &r[1]);
                 r[2] = indice;
             }),
        mide("arr_DistanciaDePuntoAPolilineaAbiertaPunto2D",
             [](ARRAY *a, double *r) {
                 r[0] = arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(a, 3, 1, &r[1], &r[2]);
             }),
        mide("arr_DistanciaDePuntoAPolilineaCerradaPunto2D",
             [](ARRAY *a, double *r) {
                 r[0] = arr_DistanciaDePuntoAPolilineaCerradaPunto2D(a, 3, 1, &r[1], &r[2]);
             }),
        mide("arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D",
             [](ARRAY *a, double *r) {
                 ULONG indice = 0;
                 arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(a, 3, 1, &r[0], &r[1],
                                                                      &indice, &r[2]);
                 r[3] = indice;
             }),
        mide("arr_GetMinimaxPunto2D",
             [](ARRAY *a, double *r) { arr_GetMinimaxPunto2D(a, &r[0], &r[1], &r[2], &r[3]); }),
        mide("arr_GetSegmentoPunto2D",
             [](ARRAY *a, double *r) {
                 arr_GetSegmentoPunto2D(a, 2 * FILA, &r[0], &r[1], &r[2], &r[3]);
             }),
        {"arr_SonIgualesArrPunteroArrPunto2DConTolerancia",
         [](Caso &caso) {
             ARRAY *uno = caso.guarda(arrays_de_puntos(), Clase::arrays_de_puntos);
             ARRAY *otro = caso.guarda(arrays_de_puntos(), Clase::arrays_de_puntos);
             caso.anota(std::to_string(caso.llama(
                 [&] { return arr_SonIgualesArrPunteroArrPunto2DConTolerancia(uno, otro, 0.5); })));
         }},
        cambia("arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D", alineados,
               [](ARRAY *a) {
                   arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(a, 1, 0.01);
               }),
    };
}
