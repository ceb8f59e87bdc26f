// The angle and point-count rules of the generators: the angle filter, the orientation of a
// circular sweep, the step between arc vertices and the count from a maximum side length.
#include "soporte/prueba_arrays.h"

#include "points/geometria_interna.h"

#include <numbers>

namespace {

using namespace geometria;
using std::numbers::pi;

using FiltroDeAngulos = PruebaArrays;

struct Intervalo {
    double desde = -99.0;
    double hasta = -99.0;
};

Intervalo filtra(double inicial, double final_, SHORT sentido)
{
    Intervalo intervalo;
    filtra_angulos(inicial, final_, sentido, &intervalo.desde, &intervalo.hasta);
    return intervalo;
}

TEST_F(FiltroDeAngulos, CounterClockwiseKeepsAnIncreasingInterval)
{
    const Intervalo intervalo = filtra(1.0, 2.0, 0);
    EXPECT_EQ(intervalo.desde, 1.0);
    EXPECT_EQ(intervalo.hasta, 2.0);
}

TEST_F(FiltroDeAngulos, CounterClockwiseUnwrapsAnEndBelowTheStart)
{
    const Intervalo intervalo = filtra(2.0, 1.0, 0);
    EXPECT_EQ(intervalo.desde, 2.0);
    EXPECT_EQ(intervalo.hasta, 1.0 + 2 * pi);
}

TEST_F(FiltroDeAngulos, ClockwiseRunsFromTheEndToTheStart)
{
    const Intervalo intervalo = filtra(2.0, 1.0, 1);
    EXPECT_EQ(intervalo.desde, 1.0);
    EXPECT_EQ(intervalo.hasta, 2.0);
}

TEST_F(FiltroDeAngulos, ClockwiseUnwrapsTheStartWhenTheEndIsAbove)
{
    const Intervalo intervalo = filtra(1.0, 2.0, 1);
    EXPECT_EQ(intervalo.desde, 2.0);
    EXPECT_EQ(intervalo.hasta, 1.0 + 2 * pi);
}

TEST_F(FiltroDeAngulos, OnlySentidoOneIsClockwise)
{
    for (const SHORT sentido : {SHORT{2}, SHORT{-1}}) {
        const Intervalo intervalo = filtra(1.0, 2.0, sentido);
        EXPECT_EQ(intervalo.desde, 1.0) << sentido;
        EXPECT_EQ(intervalo.hasta, 2.0) << sentido;
    }
}

TEST_F(FiltroDeAngulos, EqualAnglesGiveAnEmptyInterval)
{
    for (const SHORT sentido : {SHORT{0}, SHORT{1}}) {
        const Intervalo intervalo = filtra(1.5, 1.5, sentido);
        EXPECT_EQ(intervalo.desde, 1.5) << sentido;
        EXPECT_EQ(intervalo.hasta, 1.5) << sentido;
    }
}

TEST_F(FiltroDeAngulos, NullStartOutputIsReportedAndTheEndStillWritten)
{
    double hasta = -99.0;
    filtra_angulos(2.0, 1.0, 0, nullptr, &hasta);
    EXPECT_EQ(informes(), Textos{"(angulo_inicial_filtrado) != NULL"});
    EXPECT_EQ(hasta, 1.0 + 2 * pi);
}

TEST_F(FiltroDeAngulos, NullEndOutputIsReportedAndTheStartStillWritten)
{
    double desde = -99.0;
    filtra_angulos(2.0, 1.0, 1, &desde, nullptr);
    EXPECT_EQ(informes(), Textos{"(angulo_final_filtrado) != NULL"});
    EXPECT_EQ(desde, 1.0);
}

TEST_F(FiltroDeAngulos, ReportsGoToThePointModule)
{
    filtra_angulos(0.0, 1.0, 0, nullptr, nullptr);
    ASSERT_EQ(informes_completos().size(), 2u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_pto2d (ARRAYS.DLL)");
    EXPECT_EQ(informes_completos()[1].ubicacion, "a_pto2d (ARRAYS.DLL)");
    EXPECT_EQ(informes(), (Textos{"(angulo_inicial_filtrado) != NULL",
                                  "(angulo_final_filtrado) != NULL"}));
}

using BarridoCircular = PruebaArrays;

TEST_F(BarridoCircular, CounterClockwiseUnwrapsTheEndPastTheStart)
{
    const Barrido barrido = orienta_barrido(3 * pi / 2, pi / 2, 0);
    EXPECT_FALSE(barrido.horario);
    EXPECT_EQ(barrido.alfa1, 3 * pi / 2);
    EXPECT_EQ(barrido.alfa2, pi / 2 + 2 * pi);
    EXPECT_DOUBLE_EQ(barrido.arco, pi);
}

TEST_F(BarridoCircular, ClockwiseUnwrapsTheStartPastTheEnd)
{
    const Barrido barrido = orienta_barrido(pi / 2, 3 * pi / 2, 1);
    EXPECT_TRUE(barrido.horario);
    EXPECT_EQ(barrido.alfa1, pi / 2 + 2 * pi);
    EXPECT_EQ(barrido.alfa2, 3 * pi / 2);
    EXPECT_DOUBLE_EQ(barrido.arco, pi);
}

TEST_F(BarridoCircular, AnyNonZeroSentidoIsClockwise)
{
    for (const SHORT sentido : {SHORT{1}, SHORT{2}, SHORT{-1}}) {
        const Barrido barrido = orienta_barrido(0.5, 1.0, sentido);
        EXPECT_TRUE(barrido.horario) << sentido;
        EXPECT_DOUBLE_EQ(barrido.arco, 2 * pi - 0.5) << sentido;
    }
}

TEST_F(BarridoCircular, EqualAnglesSweepNothing)
{
    EXPECT_EQ(orienta_barrido(1.0, 1.0, 0).arco, 0.0);
    EXPECT_EQ(orienta_barrido(1.0, 1.0, 1).arco, 0.0);
}

TEST_F(BarridoCircular, StartAngleBeyondATurnIsReportedAndSwept)
{
    const Barrido barrido = orienta_barrido(7.0, 1.0, 1);
    EXPECT_EQ(informes(), Textos{"alfa1 > -1e-6 && alfa1 < 2. * PI + 1e-6"});
    EXPECT_DOUBLE_EQ(barrido.arco, 6.0);
}

TEST_F(BarridoCircular, StartAngleBoundsAreAMillionthOutsideTheTurnAndStrict)
{
    orienta_barrido(-0.9e-6, 0.0, 0);
    orienta_barrido(6.2831863, 0.0, 0);
    EXPECT_EQ(informes(), Textos{});
    orienta_barrido(-1e-6, 0.0, 0);
    orienta_barrido(6.283186307179586, 0.0, 0);
    EXPECT_EQ(informes(), (Textos{"alfa1 > -1e-6 && alfa1 < 2. * PI + 1e-6",
                                  "alfa1 > -1e-6 && alfa1 < 2. * PI + 1e-6"}));
}

using PasoDelArco = PruebaArrays;

TEST_F(PasoDelArco, CircleCountGivesOnlyTheEndsBelowOnePointOneSteps)
{
    const Paso paso = paso_del_arco(pi / 2, 4, Cuenta::circulo);
    EXPECT_TRUE(paso.solo_extremos);
    EXPECT_FALSE(paso_del_arco(1.1 * pi / 2 + 1e-12, 4, Cuenta::circulo).solo_extremos);
}

TEST_F(PasoDelArco, CircleCountDividesTheArcIntoEqualStepsNoLongerThanTheCircles)
{
    const Paso media_vuelta = paso_del_arco(pi, 4, Cuenta::circulo);
    EXPECT_FALSE(media_vuelta.solo_extremos);
    EXPECT_DOUBLE_EQ(media_vuelta.paso, pi / 2);
    // 1 radian with the 12-point circle's step of 0.52: two steps of 0.5.
    EXPECT_DOUBLE_EQ(paso_del_arco(1.0, 12, Cuenta::circulo).paso, 0.5);
}

TEST_F(PasoDelArco, CircleCountBelowThreeIsReportedAndUsed)
{
    const Paso paso = paso_del_arco(4.0, 2, Cuenta::circulo);
    EXPECT_EQ(informes(), Textos{"num_puntos >= 3"});
    EXPECT_FALSE(paso.solo_extremos);
    EXPECT_DOUBLE_EQ(paso.paso, 2.0);
}

TEST_F(PasoDelArco, ArcCountSplitsTheArcIntoCountMinusOneSteps)
{
    const Paso paso = paso_del_arco(3.0, 4, Cuenta::arco);
    EXPECT_FALSE(paso.solo_extremos);
    EXPECT_DOUBLE_EQ(paso.paso, 1.0);
}

TEST_F(PasoDelArco, ArcCountOfTwoGivesOnlyTheEnds)
{
    EXPECT_TRUE(paso_del_arco(3.0, 2, Cuenta::arco).solo_extremos);
}

TEST_F(PasoDelArco, ArcCountBelowTwoIsReportedAndGivesOnlyTheEnds)
{
    EXPECT_TRUE(paso_del_arco(3.0, 1, Cuenta::arco).solo_extremos);
    EXPECT_TRUE(paso_del_arco(3.0, 0, Cuenta::arco).solo_extremos);
    EXPECT_EQ(informes(), (Textos{"num_puntos >= 2", "num_puntos >= 2"}));
}

using CuentaPorLado = PruebaArrays;

TEST_F(CuentaPorLado, HalfCircleOfRadiusTenWithSideOneNeedsThirtyThreePoints)
{
    EXPECT_EQ(num_puntos_por_lado(10.0, 0.0, pi, 0, 8, 1.0), 33u);
}

TEST_F(CuentaPorLado, CircleCountWinsWhenSidesAreLong)
{
    EXPECT_EQ(num_puntos_por_lado(1.0, 0.0, pi, 0, 32, 100.0), 16u);
}

TEST_F(CuentaPorLado, CountIsNeverBelowTwo)
{
    EXPECT_EQ(num_puntos_por_lado(1.0, 0.0, 0.01, 0, 4, 100.0), 2u);
    EXPECT_EQ(num_puntos_por_lado(1.0, 1.0, 1.0, 0, 4, 100.0), 2u);
}

TEST_F(CuentaPorLado, SpanFollowsTheAngleFilter)
{
    // Clockwise from 0 to π/2 is three quarters of a turn; sentido 2 is counter-clockwise.
    EXPECT_EQ(num_puntos_por_lado(1.0, 0.0, pi / 2, 1, 5, 1e9), 4u);
    EXPECT_EQ(num_puntos_por_lado(1.0, 0.0, pi / 2, 2, 5, 1e9), 2u);
}

TEST_F(CuentaPorLado, NonPositiveSideIsReportedAndTheCircleCountDecides)
{
    EXPECT_EQ(num_puntos_por_lado(10.0, 0.0, pi, 0, 8, 0.0), 4u);
    EXPECT_EQ(num_puntos_por_lado(10.0, 0.0, pi, 0, 8, -1.0), 4u);
    EXPECT_EQ(informes(), (Textos{"longitud_maxima_lado > 0.", "longitud_maxima_lado > 0."}));
}

} // namespace
