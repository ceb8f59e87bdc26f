// The polyline measures against Boost.Geometry on random polygons and polylines: signed area,
// length, and distance from a point to the open and the closed polyline.
//
// Orientation: arr_CalcularAreaPunto2D is positive for counter-clockwise vertex order. Boost's
// area follows the ring type's declared orientation, so the rings here are declared
// counter-clockwise and open (model::ring<point, false, false>): Boost then gives the same sign
// for either order, and the same closing side from the last point back to the first.
#include "geometria/ayudas_geometria.h"

#include <boost/geometry.hpp>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

namespace bg = boost::geometry;
using PuntoBoost = bg::model::d2::point_xy<double>;
using AnilloAntihorarioAbierto = bg::model::ring<PuntoBoost, false, false>;
using LineaBoost = bg::model::linestring<PuntoBoost>;

constexpr int CASOS = 1000;

class ContrasteConBoost : public ConPuntos {
protected:
    double uniforme(double desde, double hasta) { return azar_.uniforme(desde, hasta); }
    size_t cuantos(size_t desde, size_t hasta) { return azar_.entero(desde, hasta); }

    // A simple polygon: star-shaped about a random centre, in either orientation.
    Puntos poligono()
    {
        const P centro{uniforme(-100, 100), uniforme(-100, 100)};
        std::vector<double> angulos(cuantos(3, 60));
        for (double &angulo : angulos)
            angulo = uniforme(0, 2 * std::numbers::pi);
        std::sort(angulos.begin(), angulos.end());
        Puntos puntos;
        for (const double angulo : angulos) {
            const double radio = uniforme(1, 50);
            puntos.push_back(
                {centro.x + radio * std::cos(angulo), centro.y + radio * std::sin(angulo)});
        }
        if (cuantos(0, 1) == 1)
            std::reverse(puntos.begin(), puntos.end());
        return puntos;
    }

    // Any polyline, self-crossings allowed.
    Puntos polilinea()
    {
        Puntos puntos(cuantos(2, 60));
        for (P &punto : puntos)
            punto = {uniforme(-100, 100), uniforme(-100, 100)};
        return puntos;
    }

    // Replaces the array's points by `puntos`.
    void carga(const Puntos &puntos)
    {
        arr_ReduceTamanyoPunto2D(array_, 0);
        for (const P &punto : puntos)
            arr_AppendPunto2D(array_, punto.x, punto.y);
    }

    Azar azar_{19700101};
};

template <typename Geometria> Geometria a_boost(const Puntos &puntos)
{
    Geometria geometria;
    for (const P &punto : puntos)
        bg::append(geometria, PuntoBoost(punto.x, punto.y));
    return geometria;
}

// The polyline with its closing side as a last segment back to the first point.
LineaBoost cerrada(const Puntos &puntos)
{
    LineaBoost linea = a_boost<LineaBoost>(puntos);
    bg::append(linea, PuntoBoost(puntos.front().x, puntos.front().y));
    return linea;
}

TEST_F(ContrasteConBoost, SignedAreaMatchesCounterClockwiseRings)
{
    int negativas = 0;
    for (int caso = 0; caso < CASOS; ++caso) {
        const Puntos puntos = poligono();
        carga(puntos);
        const double esperada = bg::area(a_boost<AnilloAntihorarioAbierto>(puntos));
        negativas += esperada < 0;
        ASSERT_NEAR(arr_CalcularAreaPunto2D(array_), esperada, 1e-9 * std::fabs(esperada))
            << "case " << caso;
    }
    // Both orientations were measured.
    EXPECT_GT(negativas, CASOS / 4);
    EXPECT_LT(negativas, 3 * CASOS / 4);
}

TEST_F(ContrasteConBoost, LengthMatchesAndTheLongestSideIsTheLongestSegment)
{
    for (int caso = 0; caso < CASOS; ++caso) {
        const Puntos puntos = polilinea();
        carga(puntos);
        ULONG indice = ARR_ULONG_MAX;
        double mayor = -1.0;
        const double esperada = bg::length(a_boost<LineaBoost>(puntos));
        ASSERT_NEAR(arr_LongitudPunto2D(array_, &indice, &mayor), esperada, 1e-9 * esperada)
            << "case " << caso;
        ASSERT_LT(indice + 1, puntos.size());
        const double lado = bg::distance(PuntoBoost(puntos[indice].x, puntos[indice].y),
                                         PuntoBoost(puntos[indice + 1].x, puntos[indice + 1].y));
        ASSERT_NEAR(mayor, lado, 1e-9 * lado);
        for (size_t i = 1; i < puntos.size(); ++i)
            ASSERT_LE(bg::distance(PuntoBoost(puntos[i - 1].x, puntos[i - 1].y),
                                   PuntoBoost(puntos[i].x, puntos[i].y)),
                      mayor * (1 + 1e-9));
    }
}

// Checks a measured distance against Boost's, and that the nearest point given lies on the
// polyline at that distance from the reference point.
void espera_distancia(double medida, const P &cercano, const P &referencia, const LineaBoost &linea)
{
    const PuntoBoost punto(referencia.x, referencia.y);
    const double esperada = bg::distance(punto, linea);
    ASSERT_NEAR(medida, esperada, 1e-9 * esperada);
    ASSERT_NEAR(bg::distance(punto, PuntoBoost(cercano.x, cercano.y)), esperada, 1e-9 * esperada);
    ASSERT_LE(bg::distance(PuntoBoost(cercano.x, cercano.y), linea), 1e-9 * 100);
}

TEST_F(ContrasteConBoost, DistanceToTheOpenPolylineMatches)
{
    for (int caso = 0; caso < CASOS; ++caso) {
        const Puntos puntos = polilinea();
        carga(puntos);
        const P referencia{uniforme(-150, 150), uniforme(-150, 150)};
        P cercano{};
        const double medida = arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(
            array_, referencia.x, referencia.y, &cercano.x, &cercano.y);
        espera_distancia(medida, cercano, referencia, a_boost<LineaBoost>(puntos));
        ASSERT_FALSE(HasFatalFailure()) << "case " << caso;
    }
}

TEST_F(ContrasteConBoost, DistanceToTheClosedPolylineMatches)
{
    for (int caso = 0; caso < CASOS; ++caso) {
        const Puntos puntos = caso % 2 == 0 ? polilinea() : poligono();
        carga(puntos);
        const P referencia{uniforme(-150, 150), uniforme(-150, 150)};
        P cercano{};
        const double medida = arr_DistanciaDePuntoAPolilineaCerradaPunto2D(
            array_, referencia.x, referencia.y, &cercano.x, &cercano.y);
        espera_distancia(medida, cercano, referencia, cerrada(puntos));
        ASSERT_FALSE(HasFatalFailure()) << "case " << caso;
    }
}

} // namespace
