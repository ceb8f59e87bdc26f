// Circular arcs and full circles as polylines. The three arc exports are one generator that
// differs only in how the vertices are counted: from the circle's count, the arc's own count, or
// a maximum side length.
#include "points/geometria_interna.h"

#include "services/informes.h"
#include "services/matematicas.h"

#include <algorithm>
#include <cmath>

using namespace geometria;

namespace {

// The vertices strictly inside the sweep, a step apart, up to 1e-6 short of its end. The radius
// goes linearly with the angle from d1 at the start to d2 at the end, so ends at different
// distances from the centre give a spiral segment.
void emite_interiores(Salida &salida, double xc, double yc, double d1, double d2,
                      const Barrido &barrido, double paso)
{
    const double avance = barrido.horario ? -1.0 : 1.0;
    double a = barrido.alfa1 + avance * paso;
    while (barrido.horario ? a > barrido.alfa2 + 1e-6 : a < barrido.alfa2 - 1e-6) {
        const double r =
            (d1 * avance * (barrido.alfa2 - a) + d2 * avance * (a - barrido.alfa1)) / barrido.arco;
        salida.emite(xc + r * std::cos(a), yc + r * std::sin(a));
        const double siguiente = a + avance * paso;
        // A step below the precision of the angle would never reach the end.
        if (siguiente == a)
            return;
        a = siguiente;
    }
}

// The arc from (x1, y1) to (x2, y2) about (xc, yc): the given start point, the interior vertices,
// the given end point. Nothing is compared with what the array already holds.
void genera_arco(ARRAY *array, double xc, double yc, double x1, double y1, double x2, double y2,
                 SHORT sentido, ULONG num_puntos, Cuenta cuenta)
{
    const double d1 = mt_distancia(xc, yc, x1, y1);
    const double d2 = mt_distancia(xc, yc, x2, y2);
    const Barrido barrido =
        orienta_barrido(mt_angulo(xc, yc, x1, y1), mt_angulo(xc, yc, x2, y2), sentido);
    const Paso paso = paso_del_arco(barrido.arco, num_puntos, cuenta);
    Salida salida(array);
    salida.emite(x1, y1);
    if (!paso.solo_extremos)
        emite_interiores(salida, xc, yc, d1, d2, barrido, paso.paso);
    salida.emite(x2, y2);
}

} // namespace

extern "C" void arr_AnyadirArcoPunto2D(ARRAY *array, double xc, double yc, double x1, double y1,
                                       double x2, double y2, SHORT sentido,
                                       ULONG num_puntos) noexcept
{
    genera_arco(array, xc, yc, x1, y1, x2, y2, sentido, num_puntos, Cuenta::circulo);
}

extern "C" void arr_AnyadirArcoPunto2D_numPuntosArco(ARRAY *array, double xc, double yc, double x1,
                                                     double y1, double x2, double y2,
                                                     SHORT sentido, ULONG num_puntos) noexcept
{
    genera_arco(array, xc, yc, x1, y1, x2, y2, sentido, num_puntos, Cuenta::arco);
}

extern "C" void arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double x1, double y1, double x2, double y2, SHORT sentido,
    ULONG num_puntos, double longitud_maxima_lado) noexcept
{
    const double radio = std::max(mt_distancia(xc, yc, x1, y1), mt_distancia(xc, yc, x2, y2));
    const ULONG num_puntos_arco =
        num_puntos_por_lado(radio, mt_angulo(xc, yc, x1, y1), mt_angulo(xc, yc, x2, y2), sentido,
                            num_puntos, longitud_maxima_lado);
    genera_arco(array, xc, yc, x1, y1, x2, y2, sentido, num_puntos_arco, Cuenta::arco);
}

extern "C" void arr_AnyadirCirculoPunto2D(ARRAY *array, double xc, double yc, double radio,
                                          SHORT sentido, ULONG numPtosCirculo) noexcept
{
    ARR_EXIGE(arr_NumElemsPunto2D(array) == 0, "arr_NumElemsPunto2D(ARR) == 0");
    ARR_EXIGE(numPtosCirculo >= 3, "numPtosCirculo >= 3");
    const double paso = VUELTA / numPtosCirculo;
    // A clockwise circle mirrors the sine rather than running the angle backwards.
    const double factor = sentido == 0 ? 1.0 : -1.0;
    Salida salida(array);
    // The angle is accumulated, not recomputed from i; the first vertex is not repeated at the end.
    double a = 0.0;
    for (ULONG i = 0; i < numPtosCirculo; ++i) {
        salida.emite(xc + radio * std::cos(a), yc + factor * radio * std::sin(a));
        a += paso;
    }
}
