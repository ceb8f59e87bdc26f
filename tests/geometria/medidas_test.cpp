// Measures of a polyline: signed area, length with its longest side, distance from a point to the
// open and the closed polyline, and the nearest vertex, on both kinds of 2D point array.
#include "geometria/ayudas_geometria.h"

#include "core/arrayprv.h"

#include <cmath>

namespace {

// Owns the arrays that a test builds from point lists.
class MedidasDePolilinea : public PruebaArrays {
protected:
    void TearDown() override
    {
        for (ARRAY *&array : arrays_)
            arr_DestruyePunto2D(&array);
        PruebaArrays::TearDown();
    }

    const ARRAY *polilinea(const Puntos &puntos)
    {
        return arrays_.emplace_back(crea_puntos(puntos));
    }
    const ARRAY *polilinea_con_datos(const Puntos &puntos)
    {
        return arrays_.emplace_back(crea_puntos_con_datos(puntos));
    }
    // What the family reports when point 0 of `array` cannot be read.
    Textos informes_al_leer_el_punto_0(const ARRAY *array)
    {
        arr_GetPunto2D(array, 0, nullptr, nullptr);
        const Textos textos = informes();
        EXPECT_NE(textos, Textos{});
        return textos;
    }

private:
    std::vector<ARRAY *> arrays_;
};

const Puntos CUADRADO_UNIDAD{{0, 0}, {1, 0}, {1, 1}, {0, 1}};
const Puntos CUADRADO_DE_DOS{{0, 0}, {2, 0}, {2, 2}, {0, 2}};

TEST_F(MedidasDePolilinea, AreaOfTheUnitSquareCounterClockwiseIsOne)
{
    EXPECT_EQ(arr_CalcularAreaPunto2D(polilinea(CUADRADO_UNIDAD)), 1.0);
}

TEST_F(MedidasDePolilinea, AreaOfTheUnitSquareClockwiseIsMinusOne)
{
    EXPECT_EQ(arr_CalcularAreaPunto2D(polilinea({{0, 0}, {0, 1}, {1, 1}, {1, 0}})), -1.0);
}

TEST_F(MedidasDePolilinea, AreaOfTwoPointsIsZero)
{
    EXPECT_EQ(arr_CalcularAreaPunto2D(polilinea({{0, 0}, {5, 7}})), 0.0);
}

TEST_F(MedidasDePolilinea, AreaClosesTheLastPointBackToTheFirst)
{
    // A right triangle away from the origin, its hypotenuse being the closing side.
    EXPECT_EQ(arr_CalcularAreaPunto2D(polilinea({{10, 10}, {14, 10}, {14, 13}})), 6.0);
}

TEST_F(MedidasDePolilinea, AreaOfPointsWithDataIsMeasuredToo)
{
    EXPECT_EQ(arr_CalcularAreaPunto2D(polilinea_con_datos(CUADRADO_DE_DOS)), 4.0);
}

TEST_F(MedidasDePolilinea, LengthOfAThreeFourPathIsSevenWithLongestSideFourAtIndexOne)
{
    ULONG indice = 99;
    double mayor = 99.0;
    EXPECT_EQ(arr_LongitudPunto2D(polilinea({{0, 0}, {3, 0}, {3, 4}}), &indice, &mayor), 7.0);
    EXPECT_EQ(indice, 1u);
    EXPECT_EQ(mayor, 4.0);
}

TEST_F(MedidasDePolilinea, LengthOfOnePointIsZeroWithNoSide)
{
    ULONG indice = 99;
    double mayor = 99.0;
    EXPECT_EQ(arr_LongitudPunto2D(polilinea({{3, 4}}), &indice, &mayor), 0.0);
    EXPECT_EQ(indice, ARR_ULONG_MAX);
    EXPECT_EQ(mayor, -1.0);
}

TEST_F(MedidasDePolilinea, LengthIsOpenAndTheFirstOfEqualSidesIsTheLongest)
{
    ULONG indice = 99;
    EXPECT_EQ(arr_LongitudPunto2D(polilinea(CUADRADO_UNIDAD), &indice, nullptr), 3.0);
    EXPECT_EQ(indice, 0u);
}

TEST_F(MedidasDePolilinea, LengthWritesNothingThroughNullPointers)
{
    EXPECT_EQ(arr_LongitudPunto2D(polilinea_con_datos({{0, 0}, {3, 4}}), nullptr, nullptr), 5.0);
}

TEST_F(MedidasDePolilinea, ClosedDistanceCountsTheClosingSide)
{
    P cercano{-9, -9};
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaCerradaPunto2D(polilinea(CUADRADO_DE_DOS), 1, 1,
                                                           &cercano.x, &cercano.y),
              1.0);
    // The closing side (0, 2) -> (0, 0) is walked first, and later sides only tie with it.
    EXPECT_EQ(cercano, (P{0, 1}));
}

TEST_F(MedidasDePolilinea, OpenDistanceStartsWithTheFirstSide)
{
    P cercano{-9, -9};
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(polilinea(CUADRADO_DE_DOS), 1, 1,
                                                           &cercano.x, &cercano.y),
              1.0);
    EXPECT_EQ(cercano, (P{1, 0}));
}

TEST_F(MedidasDePolilinea, OpenDistanceLeavesOutTheClosingSide)
{
    const ARRAY *ele = polilinea({{0, 2}, {0, 0}, {2, 0}});
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(ele, 2, 2, nullptr, nullptr), 2.0);
    EXPECT_DOUBLE_EQ(arr_DistanciaDePuntoAPolilineaCerradaPunto2D(ele, 2, 2, nullptr, nullptr),
                     std::sqrt(2.0));
}

TEST_F(MedidasDePolilinea, DistanceToOnePointIsToThatPoint)
{
    P cercano{-9, -9};
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(polilinea({{3, 4}}), 0, 0, &cercano.x,
                                                           &cercano.y),
              5.0);
    EXPECT_EQ(cercano, (P{3, 4}));
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaCerradaPunto2D(polilinea({{3, 4}}), 0, 0, nullptr,
                                                           nullptr),
              5.0);
}

TEST_F(MedidasDePolilinea, DistanceToPointsWithDataIsMeasuredToo)
{
    P cercano{-9, -9};
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(polilinea_con_datos({{0, 0}, {10, 0}}),
                                                           4, 3, &cercano.x, &cercano.y),
              3.0);
    EXPECT_EQ(cercano, (P{4, 0}));
}

TEST_F(MedidasDePolilinea, DistanceToAnEmptyPolylineIsReportedThenEndsAtItsPointZero)
{
    const ARRAY *vacia = polilinea({});
    Textos esperados{"numPuntos > 0"};
    for (const std::string &texto : informes_al_leer_el_punto_0(vacia))
        esperados.push_back(texto);
    P cercano{-9, -9};
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(vacia, 1, 1, &cercano.x, &cercano.y),
              0.0);
    EXPECT_EQ(informes(), esperados);
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaCerradaPunto2D(vacia, 1, 1, &cercano.x, &cercano.y),
              0.0);
    EXPECT_EQ(informes(), esperados);
    EXPECT_EQ(cercano, (P{-9, -9}));
}

TEST_F(MedidasDePolilinea, NearestVertexGivesItsPointIndexAndDistance)
{
    P cercano{-9, -9};
    ULONG indice = 99;
    double distancia = 99.0;
    arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(polilinea({{0, 0}, {10, 0}, {10, 10}}), 9,
                                                         8, &cercano.x, &cercano.y, &indice,
                                                         &distancia);
    EXPECT_EQ(cercano, (P{10, 10}));
    EXPECT_EQ(indice, 2u);
    EXPECT_EQ(distancia, std::hypot(1.0, 2.0));
}

TEST_F(MedidasDePolilinea, NearestVertexTieKeepsTheLowestIndex)
{
    ULONG indice = 99;
    arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(
        polilinea_con_datos({{5, 5}, {0, 1}, {1, 0}, {0, 1}}), 0, 0, nullptr, nullptr, &indice,
        nullptr);
    EXPECT_EQ(indice, 1u);
}

TEST_F(MedidasDePolilinea, NearestVertexOfAnEmptyPolylineIsReportedAndWritesNothing)
{
    const ARRAY *vacia = polilinea({});
    Textos esperados{"numPuntos > 0"};
    for (const std::string &texto : informes_al_leer_el_punto_0(vacia))
        esperados.push_back(texto);
    ULONG indice = 99;
    double distancia = 99.0;
    arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(vacia, 0, 0, nullptr, nullptr, &indice,
                                                         &distancia);
    EXPECT_EQ(informes(), esperados);
    EXPECT_EQ(indice, 99u);
    EXPECT_EQ(distancia, 99.0);
}

using MedidasEnOtrosArrays = MedidasDePolilinea;

TEST_F(MedidasEnOtrosArrays, NullArrayIsReportedByTheCountAndMeasuresNothing)
{
    ULONG indice = 99;
    EXPECT_EQ(arr_CalcularAreaPunto2D(nullptr), 0.0);
    EXPECT_EQ(arr_LongitudPunto2D(nullptr, &indice, nullptr), 0.0);
    EXPECT_EQ(arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(nullptr, 0, 0, nullptr, nullptr), 0.0);
    EXPECT_EQ(informes(), (Textos{"(array) != NULL", "(array) != NULL", "(array) != NULL"}));
    EXPECT_EQ(indice, ARR_ULONG_MAX);
}

TEST_F(MedidasEnOtrosArrays, BrokenHeaderIsReportedByTheCountAndMeasuresNothing)
{
    ARRAY *roto = crea_puntos({{0, 0}, {1, 0}, {1, 1}});
    roto->mascara_debug = 'X';
    EXPECT_EQ(arr_CalcularAreaPunto2D(roto), 0.0);
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
    roto->mascara_debug = MASCARA_DEBUG;
    arr_DestruyePunto2D(&roto);
}

TEST_F(MedidasEnOtrosArrays, ArrayOfDoublesIsRefusedByItsFirstRead)
{
    ARRAY *doubles = arr_CreaDouble(0);
    arr_AppendDouble(doubles, 1.0);
    arr_AppendDouble(doubles, 2.0);
    arr_AppendDouble(doubles, 3.0);
    const Textos rechazo = informes_al_leer_el_punto_0(doubles);
    EXPECT_EQ(arr_CalcularAreaPunto2D(doubles), 0.0);
    EXPECT_EQ(informes(), rechazo);
    EXPECT_EQ(arr_LongitudPunto2D(doubles, nullptr, nullptr), 0.0);
    EXPECT_EQ(informes(), rechazo);
    arr_DestruyeDouble(&doubles);
}

} // namespace
