// Circular arcs and full circles appended as polylines: the counts of each way of counting, the
// ends given exactly, the direction conventions, the reports and the arrays they go into.
#include "geometria/ayudas_geometria.h"

#include "core/arrayprv.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

using ArcosYCirculos = ConPuntos;

TEST_F(ArcosYCirculos, QuarterArcWithAFourPointCircleGivesOnlyItsEnds)
{
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, 0, 1, 0, 4);
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {0, 1}}));
}

TEST_F(ArcosYCirculos, HalfCircleWithAFourPointCircleAddsTheQuarterPoint)
{
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, -1, 0, 0, 4);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 3u);
    EXPECT_EQ(puntos[0], (P{1, 0}));
    espera_cerca(puntos[1], {0, 1});
    EXPECT_EQ(puntos[2], (P{-1, 0}));
}

TEST_F(ArcosYCirculos, EndsAtTheSameAngleGiveOnlyTheEndsInEitherCount)
{
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, 2, 0, 0, 8);
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, 2, 0, 0, 5);
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, 2, 0, 1, 5);
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {2, 0}, {1, 0}, {2, 0}, {1, 0}, {2, 0}}));
}

TEST_F(ArcosYCirculos, AnyNonZeroSentidoRunsTheArcClockwise)
{
    for (const SHORT sentido : {SHORT{1}, SHORT{2}, SHORT{-1}}) {
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, 0, 1, sentido, 4);
        const Puntos puntos = puntos_de(array_);
        ASSERT_EQ(puntos.size(), 4u) << sentido;
        espera_cerca(puntos[1], {0, -1});
        espera_cerca(puntos[2], {-1, 0});
    }
}

TEST_F(ArcosYCirculos, SideLengthOnAHalfCircleOfRadiusTenGivesThirtyThreePoints)
{
    arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 0, -10, 0, 0, 8, 1.0);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 33u);
    EXPECT_EQ(puntos.front(), (P{10, 0}));
    EXPECT_EQ(puntos.back(), (P{-10, 0}));
    for (size_t i = 1; i < puntos.size(); ++i)
        EXPECT_LE(std::hypot(puntos[i].x - puntos[i - 1].x, puntos[i].y - puntos[i - 1].y), 1.0);
}

TEST_F(ArcosYCirculos, SideLengthCountUsesTheLargerRadius)
{
    // Radii 5 and 10 over a half turn: 10π + 1 points by the side, as for radius 10.
    arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(array_, 0, 0, 5, 0, -10, 0, 0, 8, 1.0);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 33u);
}

TEST_F(ArcosYCirculos, SideLengthCountFiltersTheAnglesButTheArcTakesSentidoTwoAsClockwise)
{
    // Counted over the counter-clockwise quarter (2 points by the circle of 8, 17 by the side),
    // drawn clockwise over three quarters in those 17 points.
    arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 0, 0, 10, 2, 8, 1.0);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 17u);
    espera_cerca({puntos[1].x / 10, puntos[1].y / 10},
                 {std::cos(-3 * pi / 32), std::sin(-3 * pi / 32)});
}

TEST_F(ArcosYCirculos, SideLengthThatIsNotPositiveIsReportedAndTheCircleCounts)
{
    arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 0, -10, 0, 0, 8, 0.0);
    EXPECT_EQ(informes(), Textos{"longitud_maxima_lado > 0."});
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 4u);
}

TEST_F(ArcosYCirculos, EndsAtDifferentRadiiGiveASpiralThroughTheInterpolatedRadius)
{
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, 0, 3, 0, 3);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 3u);
    EXPECT_EQ(puntos[0], (P{1, 0}));
    espera_cerca(puntos[1], {std::sqrt(2.0), std::sqrt(2.0)});
    EXPECT_EQ(puntos[2], (P{0, 3}));
}

TEST_F(ArcosYCirculos, ClockwiseSpiralInterpolatesFromTheStartRadius)
{
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 0, 3, 1, 0, 1, 3);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 3u);
    espera_cerca(puntos[1], {std::sqrt(2.0), std::sqrt(2.0)});
}

TEST_F(ArcosYCirculos, ArcCountGivesExactlyThatManyPointsAroundAnOffCentre)
{
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 5, -2, 7, -2, 3, -2, 0, 5);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 5u);
    espera_cerca(puntos[1], {5 + 2 * std::cos(pi / 4), -2 + 2 * std::sin(pi / 4)});
    espera_cerca(puntos[2], {5, 0});
}

TEST_F(ArcosYCirculos, ArcIsAppendedAfterThePointsAlreadyThereWithoutMergingDuplicates)
{
    arr_AppendPunto2D(array_, 1, 0);
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, 0, 1, 0, 4);
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {1, 0}, {0, 1}}));
}

TEST_F(ArcosYCirculos, CircleCountBelowThreeIsReportedAndTheArcStillDrawn)
{
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, -1, 0, 0, 2);
    EXPECT_EQ(informes(), Textos{"num_puntos >= 3"});
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {-1, 0}}));
}

TEST_F(ArcosYCirculos, ArcCountBelowTwoIsReportedAndOnlyTheEndsDrawn)
{
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, -1, 0, 0, 1);
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, -1, 0, 0, 0);
    EXPECT_EQ(informes(), (Textos{"num_puntos >= 2", "num_puntos >= 2"}));
    EXPECT_EQ(puntos_de(array_), (Puntos{{1, 0}, {-1, 0}, {1, 0}, {-1, 0}}));
}

TEST_F(ArcosYCirculos, StepBelowThePrecisionOfTheAngleEndsTheArc)
{
    // 1.5e-6 radians near angle 6 in 2^32 - 1 points: each step is under half the angle's ulp.
    const double desde = 6.0;
    const double hasta = 6.0 + 1.5e-6;
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, std::cos(desde), std::sin(desde),
                                         std::cos(hasta), std::sin(hasta), 0, 0xFFFFFFFFu);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 3u);
}

TEST_F(ArcosYCirculos, CircleStartsAtAngleZeroAndIsNotClosed)
{
    arr_AnyadirCirculoPunto2D(array_, 1, 1, 2, 0, 4);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 4u);
    EXPECT_EQ(puntos[0], (P{3, 1}));
    espera_cerca(puntos[1], {1, 3});
    espera_cerca(puntos[2], {-1, 1});
    espera_cerca(puntos[3], {1, -1});
}

TEST_F(ArcosYCirculos, AnyNonZeroSentidoMirrorsTheCircle)
{
    for (const SHORT sentido : {SHORT{1}, SHORT{2}}) {
        arr_ReduceTamanyoPunto2D(array_, 0);
        arr_AnyadirCirculoPunto2D(array_, 1, 1, 2, sentido, 4);
        const Puntos puntos = puntos_de(array_);
        ASSERT_EQ(puntos.size(), 4u) << sentido;
        EXPECT_EQ(puntos[0], (P{3, 1}));
        espera_cerca(puntos[1], {1, -1});
        espera_cerca(puntos[3], {1, 3});
    }
}

TEST_F(ArcosYCirculos, CircleIntoAnArrayWithPointsIsReportedAndAppendedAfterThem)
{
    arr_AppendPunto2D(array_, 5, 5);
    arr_AnyadirCirculoPunto2D(array_, 0, 0, 1, 0, 4);
    EXPECT_EQ(informes(), Textos{"arr_NumElemsPunto2D(ARR) == 0"});
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 5u);
    EXPECT_EQ(puntos[0], (P{5, 5}));
    EXPECT_EQ(puntos[1], (P{1, 0}));
}

TEST_F(ArcosYCirculos, CircleOfFewerThanThreePointsIsReportedAndDrawn)
{
    arr_AnyadirCirculoPunto2D(array_, 0, 0, 1, 0, 2);
    EXPECT_EQ(informes(), Textos{"numPtosCirculo >= 3"});
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 2u);
    EXPECT_EQ(puntos[0], (P{1, 0}));
    espera_cerca(puntos[1], {-1, 0});
}

TEST_F(ArcosYCirculos, ReportsNameThePointModule)
{
    arr_AnyadirCirculoPunto2D(array_, 0, 0, 1, 0, 0);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_pto2d (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"numPtosCirculo >= 3"});
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 0u);
}

TEST_F(ArcosYCirculos, ArcIntoABrokenHeaderIsRefusedOnce)
{
    array_->mascara_debug = 'X';
    arr_AppendPunto2DXPriv(array_, 0, 0, nullptr);
    const Textos rechazo = informes();
    ASSERT_NE(rechazo, Textos{});
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, -1, 0, 0, 8);
    EXPECT_EQ(informes(), rechazo);
    array_->mascara_debug = MASCARA_DEBUG;
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 0u);
}

using ArcosConDatos = ConPuntosConDatos;

TEST_F(ArcosConDatos, ArcGoesInAsPointsWithoutData)
{
    arr_AnyadirArcoPunto2D(array_, 0, 0, 1, 0, -1, 0, 0, 4);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 3u);
    espera_cerca(puntos[1], {0, 1});
    EXPECT_TRUE(sin_datos());
}

TEST_F(ArcosConDatos, CircleGoesInAsPointsWithoutData)
{
    arr_AnyadirCirculoPunto2D(array_, 0, 0, 1, 0, 6);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 6u);
    EXPECT_TRUE(sin_datos());
}

using ArcosEnOtrosArrays = PruebaArrays;

TEST_F(ArcosEnOtrosArrays, ArcIntoANullArrayIsReportedOnce)
{
    arr_AnyadirArcoPunto2D(nullptr, 0, 0, 1, 0, -1, 0, 0, 8);
    EXPECT_EQ(informes(), Textos{"array"});
}

TEST_F(ArcosEnOtrosArrays, ArcIntoAnArrayOfDoublesIsRefusedOnceAndLeavesIt)
{
    ARRAY *doubles = arr_CreaDouble(0);
    arr_AnyadirArcoPunto2D_numPuntosArco(doubles, 0, 0, 1, 0, -1, 0, 0, 8);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsDouble(doubles), 0u);
    arr_DestruyeDouble(&doubles);
}

TEST_F(ArcosEnOtrosArrays, CircleIntoANullArrayIsReportedByTheCountAndTheAppend)
{
    arr_AnyadirCirculoPunto2D(nullptr, 0, 0, 1, 0, 8);
    EXPECT_EQ(informes(), (Textos{"(array) != NULL", "array"}));
}

} // namespace
