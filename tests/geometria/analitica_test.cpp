// Generated arcs checked against analytic facts over many random cases: circular vertices lie on
// their circle, the vertex counts follow the counting rules over sweeps of every size, a full
// circle has the area of its regular polygon, and ellipse vertices satisfy the rotated ellipse's
// equation.
#include "geometria/ayudas_geometria.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

class ArcosAnaliticos : public ConPuntos {
protected:
    double uniforme(double desde, double hasta) { return azar_.uniforme(desde, hasta); }
    ULONG entero(ULONG desde, ULONG hasta)
    {
        return static_cast<ULONG>(azar_.entero(desde, hasta));
    }
    double magnitud(double desde, double hasta) { return azar_.magnitud(desde, hasta); }
    SHORT sentido() { return static_cast<SHORT>(azar_.entero(0, 1)); }

    Azar azar_{20240611};
};

// Whether x is within `margen` of a whole number: a count taken by a ceiling there could go
// either way with the rounding of the angles.
bool casi_entero(double x, double margen) { return std::fabs(x - std::round(x)) < margen; }

TEST_F(ArcosAnaliticos, CircularArcVerticesWithEqualEndRadiiLieOnTheCircle)
{
    for (int caso = 0; caso < 600; ++caso) {
        arr_ReduceTamanyoPunto2D(array_, 0);
        const double radio = magnitud(1e-3, 1e4);
        const double xc = radio * uniforme(-10, 10);
        const double yc = radio * uniforme(-10, 10);
        const double a1 = uniforme(0, 2 * pi);
        const double a2 = uniforme(0, 2 * pi);
        const double x1 = xc + radio * std::cos(a1);
        const double y1 = yc + radio * std::sin(a1);
        const double x2 = xc + radio * std::cos(a2);
        const double y2 = yc + radio * std::sin(a2);
        switch (caso % 3) {
        case 0:
            arr_AnyadirArcoPunto2D(array_, xc, yc, x1, y1, x2, y2, sentido(), entero(3, 400));
            break;
        case 1:
            arr_AnyadirArcoPunto2D_numPuntosArco(array_, xc, yc, x1, y1, x2, y2, sentido(),
                                                 entero(2, 400));
            break;
        default:
            arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(array_, xc, yc, x1, y1, x2, y2,
                                                            sentido(), entero(3, 64),
                                                            radio * magnitud(1e-2, 1));
            break;
        }
        for (const P &vertice : puntos_de(array_))
            ASSERT_NEAR(std::hypot(vertice.x - xc, vertice.y - yc), radio, 1e-12 * radio)
                << "case " << caso;
    }
}

// The arc of a sweep from a1 by `arco` radians in the direction `sentido` (0 or 1).
struct ArcoDePrueba {
    double a1;
    double arco;
    SHORT sentido;
    P inicio() const { return {std::cos(a1), std::sin(a1)}; }
    P fin() const
    {
        const double a2 = sentido == 0 ? a1 + arco : a1 - arco;
        return {std::cos(a2), std::sin(a2)};
    }
};

TEST_F(ArcosAnaliticos, CircleCountGivesEndsOnlyBelowOnePointOneStepsElseEvenSteps)
{
    int comprobados = 0;
    for (int caso = 0; caso < 2000; ++caso) {
        const ArcoDePrueba arco{uniforme(0, 2 * pi), uniforme(1e-3, 2 * pi - 1e-3), sentido()};
        const ULONG num_puntos = entero(3, 720);
        const double paso_circulo = 2 * pi / num_puntos;
        if (std::fabs(1.1 * paso_circulo - arco.arco) < 1e-9 ||
            casi_entero(arco.arco / paso_circulo, 1e-9))
            continue;
        const ULONG esperados = 1.1 * paso_circulo > arco.arco
                                    ? 2
                                    : static_cast<ULONG>(std::ceil(arco.arco / paso_circulo)) + 1;
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirArcoPunto2D(array_, 0, 0, arco.inicio().x, arco.inicio().y, arco.fin().x,
                               arco.fin().y, arco.sentido, num_puntos);
        ASSERT_EQ(arr_NumElemsPunto2D(array_), esperados) << "case " << caso;
        ++comprobados;
    }
    EXPECT_GT(comprobados, 1900);
}

TEST_F(ArcosAnaliticos, ArcCountGivesExactlyThatManyPoints)
{
    for (int caso = 0; caso < 2000; ++caso) {
        const ArcoDePrueba arco{uniforme(0, 2 * pi), uniforme(1e-2, 2 * pi - 1e-3), sentido()};
        const ULONG num_puntos = entero(2, 2000);
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, arco.inicio().x, arco.inicio().y,
                                             arco.fin().x, arco.fin().y, arco.sentido, num_puntos);
        ASSERT_EQ(arr_NumElemsPunto2D(array_), num_puntos) << "case " << caso;
    }
}

TEST_F(ArcosAnaliticos, SideLengthCountIsTheLargerOfTheSideAndCircleCounts)
{
    int comprobados = 0;
    for (int caso = 0; caso < 2000; ++caso) {
        const ArcoDePrueba arco{uniforme(0, 2 * pi), uniforme(1e-3, 2 * pi - 1e-3), sentido()};
        const double radio = magnitud(1e-2, 1e3);
        const double lado = radio * magnitud(1e-3, 10);
        const ULONG num_puntos = entero(3, 720);
        const double por_lado = arco.arco * radio / lado + 1;
        const double por_circulo = arco.arco * num_puntos / (2 * pi);
        if (casi_entero(por_lado, 1e-9) || casi_entero(por_circulo, 1e-9))
            continue;
        const ULONG esperados =
            static_cast<ULONG>(std::ceil(std::max({por_lado, por_circulo, 2.0})));
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(
            array_, 0, 0, radio * arco.inicio().x, radio * arco.inicio().y, radio * arco.fin().x,
            radio * arco.fin().y, arco.sentido, num_puntos, lado);
        ASSERT_EQ(arr_NumElemsPunto2D(array_), esperados) << "case " << caso;
        ++comprobados;
    }
    EXPECT_GT(comprobados, 1900);
}

TEST_F(ArcosAnaliticos, FullCircleHasTheSignedAreaOfTheRegularPolygon)
{
    for (int caso = 0; caso < 400; ++caso) {
        const ULONG n = caso < 300 ? static_cast<ULONG>(caso) + 3 : entero(300, 3000);
        const double radio = magnitud(1e-3, 1e4);
        const SHORT giro = sentido();
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirCirculoPunto2D(array_, 0, 0, radio, giro, n);
        ASSERT_EQ(arr_NumElemsPunto2D(array_), n);
        const double poligono = n / 2.0 * radio * radio * std::sin(2 * pi / n);
        const double esperada = giro == 0 ? poligono : -poligono;
        ASSERT_NEAR(arr_CalcularAreaPunto2D(array_), esperada, 1e-12 * poligono)
            << "n " << n << " radius " << radio;
    }
}

TEST_F(ArcosAnaliticos, EllipseVerticesSatisfyTheRotatedEllipseEquation)
{
    for (int caso = 0; caso < 600; ++caso) {
        const double a = magnitud(1e-2, 1e3);
        const double b = a * magnitud(1e-2, 1e2);
        const double xc = std::max(a, b) * uniforme(-1, 1);
        const double yc = std::max(a, b) * uniforme(-1, 1);
        const double giro = uniforme(-pi, pi);
        const double inicial = uniforme(0, 2 * pi);
        const double final_ = uniforme(0, 2 * pi);
        arr_ReduceTamanyoPunto2D(array_, 0);
        if (caso % 2 == 0)
            arr_AnyadirArcoElipsePunto2D(array_, xc, yc, a, b, inicial, final_, giro, sentido(),
                                         entero(3, 400));
        else
            arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(
                array_, xc, yc, a, b, inicial, final_, giro, sentido(), entero(3, 64),
                std::max(a, b) * magnitud(1e-2, 1));
        const Puntos vertices = puntos_de(array_);
        ASSERT_FALSE(vertices.empty());
        for (const P &vertice : vertices) {
            // Back into the ellipse's own axes.
            const double dx = vertice.x - xc;
            const double dy = vertice.y - yc;
            const double u = dx * std::cos(giro) + dy * std::sin(giro);
            const double v = -dx * std::sin(giro) + dy * std::cos(giro);
            ASSERT_NEAR(u * u / (a * a) + v * v / (b * b), 1.0, 1e-12) << "case " << caso;
        }
    }
}

TEST_F(ArcosAnaliticos, EllipseArcRunsFromItsStartAngleToItsEndAngle)
{
    for (int caso = 0; caso < 600; ++caso) {
        const double a = magnitud(1e-1, 1e2);
        const double b = magnitud(1e-1, 1e2);
        const double inicial = uniforme(0, 2 * pi);
        const double final_ = uniforme(0, 2 * pi);
        if (std::fabs(inicial - final_) < 1e-3)
            continue;
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirArcoElipsePunto2D(array_, 0, 0, a, b, inicial, final_, 0, sentido(),
                                     entero(3, 400));
        const Puntos vertices = puntos_de(array_);
        ASSERT_GE(vertices.size(), 2u);
        const double escala = 1e-12 * std::max(a, b);
        espera_cerca(vertices.front(), {a * std::cos(inicial), b * std::sin(inicial)}, escala);
        // The end vertex itself is dropped when the last step fell within 1e-5 of it.
        const P fin{a * std::cos(final_), b * std::sin(final_)};
        ASSERT_LT(std::hypot(vertices.back().x - fin.x, vertices.back().y - fin.y), 1e-5);
    }
}

} // namespace
