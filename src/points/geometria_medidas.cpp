// Measures of a 2D point array read as a polyline: signed area of the closed polygon, length with
// its longest side, distance from a point to the open or closed polyline, and the nearest vertex.
#include "points/geometria_interna.h"

#include "services/informes.h"
#include "services/matematicas.h"

using namespace geometria;

namespace {

// The distance measures start from a point of the polyline: an empty one is reported, and its
// point 0, which the family then fails to read, ends the measure.
bool tiene_puntos(const Polilinea &polilinea)
{
    if (ARR_EXIGE(polilinea.num_puntos > 0, "numPuntos > 0"))
        return true;
    arr_GetPunto2D(polilinea.array, 0, nullptr, nullptr);
    return false;
}

void escribe(double *x, double *y, const Punto &punto)
{
    if (x != nullptr)
        *x = punto.x;
    if (y != nullptr)
        *y = punto.y;
}

// Distance from (x, y) to the sides of the polyline, closed by its last side back to point 0
// when `cerrada`; the nearest point goes to (x_cercano, y_cercano). Ties keep the earlier side.
double distancia_a_polilinea(const ARRAY *array, double x, double y, double *x_cercano,
                             double *y_cercano, bool cerrada)
{
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    if (!polilinea || !tiene_puntos(*polilinea))
        return 0.0;
    const ULONG n = polilinea->num_puntos;
    // The walk starts at the last point of a closed polyline, so that its first side closes it.
    Punto a = polilinea->punto(cerrada ? n - 1 : 0);
    double mejor = mt_distancia(a.x, a.y, x, y);
    escribe(x_cercano, y_cercano, a);
    for (ULONG i = cerrada ? 0 : 1; i < n; ++i) {
        const Punto b = polilinea->punto(i);
        Punto pie{0.0, 0.0};
        const double distancia = mt_distancia_a_segmento(x, y, a.x, a.y, b.x, b.y, &pie.x, &pie.y);
        if (distancia < mejor) {
            mejor = distancia;
            escribe(x_cercano, y_cercano, pie);
        }
        a = b;
    }
    return mejor;
}

} // namespace

extern "C" double arr_CalcularAreaPunto2D(const ARRAY *array) noexcept
{
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    if (!polilinea || polilinea->num_puntos <= 2)
        return 0.0;
    const ULONG n = polilinea->num_puntos;
    // Shoelace over the closed polygon: positive counter-clockwise, negative clockwise.
    Punto anterior = polilinea->punto(n - 1);
    double suma = 0.0;
    for (ULONG i = 0; i < n; ++i) {
        const Punto actual = polilinea->punto(i);
        suma += (anterior.x - actual.x) * (anterior.y + actual.y);
        anterior = actual;
    }
    return suma / 2;
}

extern "C" double arr_LongitudPunto2D(const ARRAY *array, ULONG *indice_lado_mayor,
                                      double *longitud_lado_mayor) noexcept
{
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    const ULONG n = polilinea ? polilinea->num_puntos : 0;
    // No side yet: no index, and a length below any real side.
    ULONG indice = ARR_ULONG_MAX;
    double mayor = -1.0;
    double total = 0.0;
    if (n >= 2) {
        Punto anterior = polilinea->punto(0);
        for (ULONG i = 1; i < n; ++i) {
            const Punto actual = polilinea->punto(i);
            const double lado = mt_distancia(anterior.x, anterior.y, actual.x, actual.y);
            if (lado > mayor) {
                mayor = lado;
                indice = i - 1;
            }
            total += lado;
            anterior = actual;
        }
    }
    if (indice_lado_mayor != nullptr)
        *indice_lado_mayor = indice;
    if (longitud_lado_mayor != nullptr)
        *longitud_lado_mayor = mayor;
    return total;
}

extern "C" double arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) noexcept
{
    return distancia_a_polilinea(array, x, y, x_cercano, y_cercano, false);
}

extern "C" double arr_DistanciaDePuntoAPolilineaCerradaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) noexcept
{
    return distancia_a_polilinea(array, x, y, x_cercano, y_cercano, true);
}

extern "C" void arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(
    const ARRAY *array, double x, double y, double *x_cercano, double *y_cercano, ULONG *indice,
    double *distancia) noexcept
{
    const std::optional<Polilinea> polilinea = lee_polilinea(array);
    if (!polilinea || !tiene_puntos(*polilinea))
        return;
    ULONG mejor_indice = 0;
    Punto mejor_punto = polilinea->punto(0);
    double mejor = mt_distancia(x, y, mejor_punto.x, mejor_punto.y);
    for (ULONG i = 1; i < polilinea->num_puntos; ++i) {
        const Punto punto = polilinea->punto(i);
        const double d = mt_distancia(x, y, punto.x, punto.y);
        if (d < mejor) {
            mejor = d;
            mejor_indice = i;
            mejor_punto = punto;
        }
    }
    escribe(x_cercano, y_cercano, mejor_punto);
    if (indice != nullptr)
        *indice = mejor_indice;
    if (distancia != nullptr)
        *distancia = mejor;
}
