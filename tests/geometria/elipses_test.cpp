// Elliptical arcs appended as polylines: single points, closed ellipses, direction, rotation,
// dropped near-duplicates, the step from a side length, and the reports.
#include "geometria/ayudas_geometria.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;

using ArcosDeElipse = ConPuntos;

TEST_F(ArcosDeElipse, EqualAnglesGiveOnePointAtThatAngleTurned)
{
    arr_AnyadirArcoElipsePunto2D(array_, 1, 2, 3, 1, pi / 2, pi / 2, pi / 2, 0, 8);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 1u);
    // (1, 3) on the ellipse, turned a quarter about (1, 2).
    espera_cerca(puntos[0], {0, 2});
}

TEST_F(ArcosDeElipse, FromZeroToATurnIsClosedByRepeatingTheFirstVertex)
{
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 0, 2 * pi, 0, 0, 8);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 9u);
    EXPECT_EQ(puntos.front(), (P{2, 0}));
    espera_cerca(puntos.back(), puntos.front());
    espera_cerca(puntos[2], {0, 1});
}

TEST_F(ArcosDeElipse, SentidoTwoIsClockwiseForCircularArcsButNotForEllipses)
{
    arr_AnyadirArcoPunto2D_numPuntosArco(array_, 0, 0, 1, 0, 0, 1, 2, 3);
    const Puntos arco = puntos_de(array_);
    ASSERT_EQ(arco.size(), 3u);
    espera_cerca(arco[1], {-std::sqrt(0.5), -std::sqrt(0.5)});

    arr_ReduceTamanyoPunto2D(array_, 0);
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 1, 1, 0, pi / 2, 0, 2, 8);
    const Puntos elipse = puntos_de(array_);
    ASSERT_EQ(elipse.size(), 3u);
    espera_cerca(elipse[1], {std::sqrt(0.5), std::sqrt(0.5)});
}

TEST_F(ArcosDeElipse, SentidoOneRunsClockwiseFromTheStartAngle)
{
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 0, pi / 2, 0, 1, 4);
    const Puntos puntos = puntos_de(array_);
    // From angle 0 clockwise through 3π/2 and π to π/2.
    ASSERT_EQ(puntos.size(), 4u);
    espera_cerca(puntos[0], {2, 0});
    espera_cerca(puntos[1], {0, -1});
    espera_cerca(puntos[2], {-2, 0});
    espera_cerca(puntos[3], {0, 1});
}

TEST_F(ArcosDeElipse, AnglesAreEccentricAndTakenBeforeTheTurn)
{
    arr_AnyadirArcoElipsePunto2D(array_, 1, 1, 2, 1, 0, pi / 2, pi / 2, 0, 4);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 2u);
    espera_cerca(puntos[0], {1, 3});
    espera_cerca(puntos[1], {0, 1});
}

TEST_F(ArcosDeElipse, ArcIsAppendedAfterThePointsAlreadyThereWithoutMergingDuplicates)
{
    arr_AppendPunto2D(array_, 2, 0);
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 0, pi, 0, 0, 2);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 3u);
    EXPECT_EQ(puntos_de(array_)[1], (P{2, 0}));
}

TEST_F(ArcosDeElipse, VertexCloserThanAHundredThousandthToTheOneBeforeIsDropped)
{
    // Semi-axes of 1e-6: every vertex, the end included, is within 1e-5 of the first.
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 1e-6, 1e-6, 0, pi, 0, 0, 16);
    EXPECT_EQ(puntos_de(array_), (Puntos{{1e-6, 0}}));
}

TEST_F(ArcosDeElipse, ZeroCountStepsOverTheWholeArc)
{
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 0, pi / 2, 0, 0, 0);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 2u);
    espera_cerca(puntos[1], {0, 1});
}

TEST_F(ArcosDeElipse, SideLengthOnAHalfEllipseOfLargerAxisTenGivesThirtyThreePoints)
{
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 4, 0, pi, 0, 0, 8, 1.0);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 33u);
    EXPECT_EQ(puntos.front(), (P{10, 0}));
    espera_cerca(puntos.back(), {-10, 0}, 1e-14);
}

TEST_F(ArcosDeElipse, SideLengthCountIsCappedAtTenThousand)
{
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 1e6, 1e6, 0, pi, 0, 0, 8,
                                                          1.0);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 10000u);
}

TEST_F(ArcosDeElipse, SideLengthThatIsNotPositiveIsReportedAndTheCircleCounts)
{
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 4, 0, pi, 0, 0, 8, 0.0);
    EXPECT_EQ(informes(), Textos{"longitud_maxima_lado > 0."});
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 4u);
}

TEST_F(ArcosDeElipse, SideLengthOverAnEmptyFilteredSpanEndsAtItsOnlyPoint)
{
    // From 2π to 0 counter-clockwise filters to an empty span, counted as 2 points and a step of
    // 0; the whole turn then asked for cannot be walked with it.
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 2, 1, 2 * pi, 0, 0, 0, 8,
                                                          0.5);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 1u);
    espera_cerca(puntos[0], {2, 0});
}

TEST_F(ArcosDeElipse, StartMoreThanATurnAboveTheEndIsReported)
{
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 10, 0, 0, 0, 8);
    EXPECT_EQ(informes(), Textos{"angulo_inicial_filtrado < angulo_final_filtrado"});
    // Nothing is walked from 10 up to 2π: only the end vertex.
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 1u);
    espera_cerca(puntos[0], {2, 0});
}

TEST_F(ArcosDeElipse, CoincidentFilteredAnglesNotATurnApartAreReported)
{
    // At 2^40 the end a turn below the start rounds a turn plus 1.8e-5 below it, yet adding a
    // turn back lands on the start exactly.
    const double inicial = 1099511627776.0;
    const double final_ = inicial - 2 * pi;
    ASSERT_GE(std::fabs(inicial - final_ - 2 * pi), 1e-5);
    ASSERT_EQ(final_ + 2 * pi, inicial);
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, inicial, final_, 0, 0, 8);
    EXPECT_EQ(informes(), Textos{"fabs(diferencia - 2 * PI) < 1e-5"});
    // The whole ellipse is drawn all the same, back to its first vertex.
    const Puntos puntos = puntos_de(array_);
    ASSERT_GE(puntos.size(), 9u);
    espera_cerca(puntos.back(), puntos.front(), 1e-3);
    for (const P &punto : puntos)
        EXPECT_NEAR(punto.x * punto.x / 4 + punto.y * punto.y, 1.0, 1e-12);
}

TEST_F(ArcosDeElipse, SideLengthCountBelowTwoIsReported)
{
    // An end angle that is not a number makes the count 0.
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 2, 1, 0, std::nan(""), 0,
                                                          0, 8, 1.0);
    EXPECT_EQ(informes(), (Textos{"num_puntos_arco > 1",
                                  "angulo_inicial_filtrado < angulo_final_filtrado"}));
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 1u);
    EXPECT_TRUE(std::isnan(puntos[0].x));
}

using ArcosDeElipseConDatos = ConPuntosConDatos;

TEST_F(ArcosDeElipseConDatos, ClockwiseArcGoesInAsPointsWithoutData)
{
    arr_AnyadirArcoElipsePunto2D(array_, 0, 0, 2, 1, 0, pi / 2, 0, 1, 4);
    const Puntos puntos = puntos_de(array_);
    ASSERT_EQ(puntos.size(), 4u);
    espera_cerca(puntos[1], {0, -1});
    EXPECT_TRUE(sin_datos());
}

TEST_F(ArcosDeElipseConDatos, SideLengthArcGoesInAsPointsWithoutData)
{
    arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(array_, 0, 0, 10, 4, 0, pi, 0, 0, 8, 1.0);
    EXPECT_EQ(arr_NumElemsPunto2D(array_), 33u);
    EXPECT_TRUE(sin_datos());
}

using ArcosDeElipseEnOtrosArrays = PruebaArrays;

TEST_F(ArcosDeElipseEnOtrosArrays, NullArrayIsReportedAndNothingElse)
{
    arr_AnyadirArcoElipsePunto2D(nullptr, 0, 0, 2, 1, 0, pi, 0, 0, 8);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(ArcosDeElipseEnOtrosArrays, ArrayOfDoublesRefusesTheArcAsAWhole)
{
    ARRAY *doubles = arr_CreaDouble(0);
    arr_AnyadirArcoElipsePunto2D(doubles, 0, 0, 2, 1, 0, pi, 0, 1, 8);
    EXPECT_EQ(informes(), Textos{"org->tipo_elem == dest->tipo_elem"});
    EXPECT_EQ(arr_NumElemsDouble(doubles), 0u);
    arr_DestruyeDouble(&doubles);
}

} // namespace
