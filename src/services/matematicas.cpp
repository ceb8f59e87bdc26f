// Numbers and plane geometry used by the point families and the engine's counts.
#include "services/matematicas.h"

#include "services/informes.h"

#include <cmath>
#include <numbers>

namespace {

const char *const UBICACION = "zarpmath (ARRAYS.DLL)";

// Projection parameter of (x, y) on the line from (x1, y1) to (x2, y2); 0 for a degenerate line.
double proyeccion(double x, double y, double x1, double y1, double x2, double y2)
{
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const double longitud2 = dx * dx + dy * dy;
    return longitud2 > 0.0 ? ((x - x1) * dx + (y - y1) * dy) / longitud2 : 0.0;
}

double distancia_al_punto_de(double t, double x, double y, double x1, double y1, double x2,
                             double y2, double *px, double *py)
{
    const double fx = x1 + t * (x2 - x1);
    const double fy = y1 + t * (y2 - y1);
    if (px != nullptr)
        *px = fx;
    if (py != nullptr)
        *py = fy;
    return mt_distancia(x, y, fx, fy);
}

} // namespace

ULONG cambtipo_size_t_a_unsigned_long(size_t valor)
{
    if (!ARR_EXIGE(valor <= ARR_ULONG_MAX, "valor <= ULONG_MAX"))
        return ARR_ULONG_MAX;
    return static_cast<ULONG>(valor);
}

double prec_redondea_numero_decimales(double valor, BYTE decimales)
{
    const double escala = std::pow(10.0, decimales);
    return std::round(valor * escala) / escala;
}

BOOL SON_IGUALES(double a, double b) { return std::fabs(a - b) <= 1e-9; }

ULONG CEIL(double valor)
{
    const double techo = std::ceil(valor);
    if (!(techo > 0.0))
        return 0;
    return techo >= 4294967295.0 ? ARR_ULONG_MAX : static_cast<ULONG>(techo);
}

double mt_distancia(double x1, double y1, double x2, double y2)
{
    return std::hypot(x2 - x1, y2 - y1);
}

double mt_angulo(double xc, double yc, double x, double y)
{
    double angulo = std::atan2(y - yc, x - xc);
    if (angulo < 0.0)
        angulo += 2.0 * std::numbers::pi;
    return angulo < 2.0 * std::numbers::pi ? angulo : 0.0;
}

double mt_distancia_a_segmento(double x, double y, double x1, double y1, double x2, double y2,
                               double *px, double *py)
{
    const double t = std::fmin(1.0, std::fmax(0.0, proyeccion(x, y, x1, y1, x2, y2)));
    return distancia_al_punto_de(t, x, y, x1, y1, x2, y2, px, py);
}

double mt_distancia_a_recta(double x, double y, double x1, double y1, double x2, double y2,
                            double *px, double *py)
{
    return distancia_al_punto_de(proyeccion(x, y, x1, y1, x2, y2), x, y, x1, y1, x2, y2, px, py);
}

void mt_gira_xy_sentido_horario(double dx, double dy, double coseno, double seno, double *x,
                                double *y)
{
    *x = dx * coseno + dy * seno;
    *y = -dx * seno + dy * coseno;
}

void mt_gira_coords_respecto_a_un_punto(double *x, double *y, double xc, double yc, double coseno,
                                        double seno)
{
    const double dx = *x - xc;
    const double dy = *y - yc;
    *x = xc + dx * coseno - dy * seno;
    *y = yc + dx * seno + dy * coseno;
}
