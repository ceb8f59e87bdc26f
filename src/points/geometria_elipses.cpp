// Elliptical arcs as polylines: one generator, fed the angular step either from the count of the
// whole ellipse or from a maximum side length. The parameter is the eccentric angle of the
// ellipse before its rotation, not the polar angle of the point.
#include "points/geometria_interna.h"

#include "services/informes.h"
#include "services/matematicas.h"

#include <algorithm>
#include <cmath>

using namespace geometria;

namespace {

// An ellipse about (xc, yc) with its semi-axes along x and y, then turned counter-clockwise by the
// angle of cosine cg and sine sg.
struct Elipse {
    double xc;
    double yc;
    double semieje_x;
    double semieje_y;
    double cg;
    double sg;
};

// The vertices of an elliptical arc, appended to `destino` in order; a vertex closer than 1e-5 to
// the one before it is dropped (only the one immediately before: a closed arc keeps its last).
class TrazoElipse {
public:
    TrazoElipse(ARRAY *destino, const Elipse &elipse) : salida_(destino), elipse_(elipse) {}

    void vertice(double t)
    {
        double x = elipse_.xc + elipse_.semieje_x * std::cos(t);
        double y = elipse_.yc + elipse_.semieje_y * std::sin(t);
        mt_gira_coords_respecto_a_un_punto(&x, &y, elipse_.xc, elipse_.yc, elipse_.cg, elipse_.sg);
        if (hay_ultimo_ && !(mt_distancia(ultimo_.x, ultimo_.y, x, y) >= 1e-5))
            return;
        salida_.emite(x, y);
        ultimo_ = {x, y};
        hay_ultimo_ = true;
    }

private:
    Salida salida_;
    Elipse elipse_;
    Punto ultimo_{0.0, 0.0};
    bool hay_ultimo_ = false;
};

// The counter-clockwise walk over the filtered interval: a vertex every step from its start, then
// its end. Coincident filtered angles that differ by a turn ask for the whole ellipse.
void recorre_intervalo(TrazoElipse &trazo, double angulo_inicial, double angulo_final,
                       SHORT sentido, double diferencia, double paso)
{
    double desde = 0.0;
    double hasta = 0.0;
    filtra_angulos(angulo_inicial, angulo_final, sentido, &desde, &hasta);
    if (std::fabs(hasta - desde) < 1e-5) {
        ARR_EXIGE(std::fabs(diferencia - 2 * PI) < 1e-5, "fabs(diferencia - 2 * PI) < 1e-5");
        hasta += VUELTA;
    }
    ARR_EXIGE(desde < hasta, "angulo_inicial_filtrado < angulo_final_filtrado");
    for (double t = desde; t < hasta;) {
        trazo.vertice(t);
        const double siguiente = t + paso;
        // A step that cannot move t (none at all, or below its precision) would never end.
        if (!(siguiente > t))
            break;
        t = siguiente;
    }
    trazo.vertice(hasta);
}

// The arc is built in a temporary array of the destination's kind, reversed for sentido 1 so that
// it runs clockwise from angulo_inicial, and then appended to the destination as a whole.
void genera_arco_elipse(ARRAY *array, const Elipse &elipse, double angulo_inicial,
                        double angulo_final, SHORT sentido, double paso)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL"))
        return;
    const double diferencia = std::fabs(angulo_inicial - angulo_final);
    const Clase clase = clase_de(array);
    ARRAY *temporal = crea_vacio(clase);
    TrazoElipse trazo(temporal, elipse);
    if (diferencia <= 1e-5)
        trazo.vertice(angulo_final);
    else
        recorre_intervalo(trazo, angulo_inicial, angulo_final, sentido, diferencia,
                          std::min(paso, diferencia));
    if (sentido == 1) {
        ARRAY *invertido = clase == Clase::plano ? arr_InvertirPunto2D(temporal)
                                                 : arr_InvertirPunto2DXPriv(temporal);
        arr_DestruyePunto2D(&temporal);
        temporal = invertido;
    }
    arr_ConcatenaPunto2D(array, temporal);
    arr_DestruyePunto2D(&temporal);
}

Elipse elipse_de(double xc, double yc, double semieje_x, double semieje_y, double angulo_giro)
{
    return {xc, yc, semieje_x, semieje_y, std::cos(angulo_giro), std::sin(angulo_giro)};
}

} // namespace

extern "C" void arr_AnyadirArcoElipsePunto2D(ARRAY *array, double xc, double yc, double semieje_x,
                                             double semieje_y, double angulo_inicial,
                                             double angulo_final, double angulo_giro,
                                             SHORT sentido, ULONG num_puntos) noexcept
{
    genera_arco_elipse(array, elipse_de(xc, yc, semieje_x, semieje_y, angulo_giro), angulo_inicial,
                       angulo_final, sentido, VUELTA / num_puntos);
}

extern "C" void arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double semieje_x, double semieje_y, double angulo_inicial,
    double angulo_final, double angulo_giro, SHORT sentido, ULONG num_puntos,
    double longitud_maxima_lado) noexcept
{
    const ULONG num_puntos_arco =
        std::min(num_puntos_por_lado(std::max(semieje_x, semieje_y), angulo_inicial, angulo_final,
                                     sentido, num_puntos, longitud_maxima_lado),
                 ULONG{10000});
    double desde = 0.0;
    double hasta = 0.0;
    filtra_angulos(angulo_inicial, angulo_final, sentido, &desde, &hasta);
    ARR_EXIGE(num_puntos_arco > 1, "num_puntos_arco > 1");
    genera_arco_elipse(array, elipse_de(xc, yc, semieje_x, semieje_y, angulo_giro), angulo_inicial,
                       angulo_final, sentido, std::fabs(hasta - desde) / (num_puntos_arco - 1.0));
}
