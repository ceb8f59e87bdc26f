// Numbers and plane geometry: distances, angles in [0, 2π), nearest points, turns, the tolerant
// comparison, rounding up, rounding to decimals and the narrowing of counts.
#include "soporte/prueba_arrays.h"

#include "services/matematicas.h"

#include <numbers>

namespace {

constexpr double PI = std::numbers::pi;

using Matematicas = PruebaArrays;

// A distance and the nearest point that goes with it.
struct Cercano {
    double distancia;
    double x;
    double y;
};

Cercano al_segmento(double x, double y, double x1, double y1, double x2, double y2)
{
    Cercano cercano{0, -1, -1};
    cercano.distancia = mt_distancia_a_segmento(x, y, x1, y1, x2, y2, &cercano.x, &cercano.y);
    return cercano;
}

Cercano a_la_recta(double x, double y, double x1, double y1, double x2, double y2)
{
    Cercano cercano{0, -1, -1};
    cercano.distancia = mt_distancia_a_recta(x, y, x1, y1, x2, y2, &cercano.x, &cercano.y);
    return cercano;
}

void espera(const Cercano &cercano, double distancia, double x, double y)
{
    EXPECT_DOUBLE_EQ(cercano.distancia, distancia);
    EXPECT_DOUBLE_EQ(cercano.x, x);
    EXPECT_DOUBLE_EQ(cercano.y, y);
}

TEST_F(Matematicas, DistanceIsEuclidean)
{
    EXPECT_DOUBLE_EQ(mt_distancia(1, 2, 4, 6), 5.0);
    EXPECT_DOUBLE_EQ(mt_distancia(4, 6, 1, 2), 5.0);
    EXPECT_DOUBLE_EQ(mt_distancia(3, 3, 3, 3), 0.0);
}

TEST_F(Matematicas, AngleOfEachQuadrantIsCountedCounterClockwiseFromX)
{
    EXPECT_DOUBLE_EQ(mt_angulo(2, 3, 3, 4), PI / 4);
    EXPECT_DOUBLE_EQ(mt_angulo(2, 3, 1, 4), 3 * PI / 4);
    EXPECT_DOUBLE_EQ(mt_angulo(2, 3, 1, 2), 5 * PI / 4);
    EXPECT_DOUBLE_EQ(mt_angulo(2, 3, 3, 2), 7 * PI / 4);
}

TEST_F(Matematicas, AngleOnTheAxes)
{
    EXPECT_DOUBLE_EQ(mt_angulo(0, 0, 1, 0), 0.0);
    EXPECT_DOUBLE_EQ(mt_angulo(0, 0, 0, 1), PI / 2);
    EXPECT_DOUBLE_EQ(mt_angulo(0, 0, -1, 0), PI);
    EXPECT_DOUBLE_EQ(mt_angulo(0, 0, 0, -1), 3 * PI / 2);
}

TEST_F(Matematicas, AngleJustBelowTheXAxisStaysBelowTwoPi)
{
    const double angulo = mt_angulo(0, 0, 1, -1e-300);
    EXPECT_GE(angulo, 0.0);
    EXPECT_LT(angulo, 2 * PI);
}

TEST_F(Matematicas, DistanceToSegmentIsToTheNearestPointInside)
{
    espera(al_segmento(4, 3, 0, 0, 10, 0), 3, 4, 0);
}

TEST_F(Matematicas, DistanceToSegmentIsClampedToEitherEnd)
{
    espera(al_segmento(-3, 4, 0, 0, 10, 0), 5, 0, 0);
    espera(al_segmento(13, -4, 0, 0, 10, 0), 5, 10, 0);
}

TEST_F(Matematicas, DistanceToASegmentOfOnePointIsToThatPoint)
{
    espera(al_segmento(4, 5, 1, 1, 1, 1), 5, 1, 1);
}

TEST_F(Matematicas, DistanceToLineIsToTheFootOfThePerpendicular)
{
    espera(a_la_recta(-3, 4, 0, 0, 10, 0), 4, -3, 0);
    espera(a_la_recta(0, 2, 0, 0, 1, 1), std::numbers::sqrt2, 1, 1);
}

TEST_F(Matematicas, ClockwiseTurnByAQuarterTakesXToMinusY)
{
    double x = 0;
    double y = 0;
    mt_gira_xy_sentido_horario(1, 0, 0, 1, &x, &y);
    EXPECT_DOUBLE_EQ(x, 0.0);
    EXPECT_DOUBLE_EQ(y, -1.0);
    mt_gira_xy_sentido_horario(0, 1, 0, 1, &x, &y);
    EXPECT_DOUBLE_EQ(x, 1.0);
    EXPECT_DOUBLE_EQ(y, 0.0);
}

TEST_F(Matematicas, TurnAboutACentreIsCounterClockwise)
{
    double x = 3;
    double y = 2;
    mt_gira_coords_respecto_a_un_punto(&x, &y, 2, 2, 0, 1);
    EXPECT_DOUBLE_EQ(x, 2.0);
    EXPECT_DOUBLE_EQ(y, 3.0);
    mt_gira_coords_respecto_a_un_punto(&x, &y, 2, 2, -1, 0);
    EXPECT_DOUBLE_EQ(x, 2.0);
    EXPECT_DOUBLE_EQ(y, 1.0);
}

TEST_F(Matematicas, EqualWithinTheFixedTolerance)
{
    EXPECT_TRUE(SON_IGUALES(1.0, 1.0 + 1e-12));
    EXPECT_TRUE(SON_IGUALES(0.0, -0.0));
    EXPECT_FALSE(SON_IGUALES(1.0, 1.0 + 1e-6));
    EXPECT_FALSE(SON_IGUALES(-1.0, 1.0));
}

TEST_F(Matematicas, CeilIsTheSmallestWholeNumberNotBelow)
{
    EXPECT_EQ(CEIL(2.1), 3u);
    EXPECT_EQ(CEIL(3.0), 3u);
    EXPECT_EQ(CEIL(0.0), 0u);
    EXPECT_EQ(CEIL(-0.5), 0u);
}

TEST_F(Matematicas, RoundsToTheGivenDecimals)
{
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(1000 / 166.386, 2), 6.01);
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(1.23456, 3), 1.235);
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(7.4, 0), 7.0);
}

TEST_F(Matematicas, RoundsHalvesAwayFromZero)
{
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(2.5, 0), 3.0);
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(-2.5, 0), -3.0);
    EXPECT_DOUBLE_EQ(prec_redondea_numero_decimales(0.125, 2), 0.13);
}

TEST_F(Matematicas, CountThatFitsIsNarrowedUnchanged)
{
    EXPECT_EQ(cambtipo_size_t_a_unsigned_long(0), 0u);
    EXPECT_EQ(cambtipo_size_t_a_unsigned_long(4294967295u), 4294967295u);
}

TEST_F(Matematicas, CountThatDoesNotFitIsReportedAndSaturates)
{
    EXPECT_EQ(cambtipo_size_t_a_unsigned_long(size_t{4294967296}), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"valor <= ULONG_MAX"});
}

} // namespace
