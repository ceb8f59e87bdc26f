// The 2D point family: element operations, the reads and writes that accept either kind of 2D
// array, search, sort, equality with and without tolerance, bounding box, segments, reversal.
#include "puntos/ayudas_puntos.h"

#include "core/arrayprv.h"

#include <algorithm>

namespace {

class Punto2DTest : public PruebaArrays {};

TEST_F(Punto2DTest, CreateGivesThatManyPointsAtTheOrigin)
{
    ARRAY *array = arr_CreaPunto2D(3);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 0}, {0, 0}, {0, 0}}));
    arr_DestruyePunto2D(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Punto2DTest, AppendedPointsReadBackInOrder)
{
    ARRAY *array = crea_puntos2D({{1, 2}, {3, 4}, {-5, 6.5}});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 3u);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 2}, {3, 4}, {-5, 6.5}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, InsertPutsThePointBeforeThePosition)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {3, 3}});
    arr_InsertarPunto2D(array, 1, 2, 2);
    arr_InsertarPunto2D(array, 3, 4, 4);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 1}, {2, 2}, {3, 3}, {4, 4}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, InitialiseSetsEveryPoint)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}});
    arr_InicializaPunto2D(array, 7, -7);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{7, -7}, {7, -7}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, GetWithBothOutPointersNullOnlyChecksThatThePointExists)
{
    ARRAY *array = crea_puntos2D({{1, 2}});
    arr_GetPunto2D(array, 0, nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{});
    arr_GetPunto2D(array, 1, nullptr, nullptr);
    EXPECT_EQ(informes(), (Textos{"real_pos < array->num_elems", "(pto2D) != NULL"}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, GetWritesOnlyTheCoordinatesAskedFor)
{
    ARRAY *array = crea_puntos2D({{1, 2}});
    double y = 0;
    arr_GetPunto2D(array, 0, nullptr, &y);
    EXPECT_EQ(y, 2);
    double x = 0;
    arr_GetPunto2D(array, 0, &x, nullptr);
    EXPECT_EQ(x, 1);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, GetOfAMissingPointLeavesTheOutputsAlone)
{
    ARRAY *array = crea_puntos2D({{1, 2}});
    double x = 9;
    double y = 9;
    arr_GetPunto2D(array, 4, &x, &y);
    EXPECT_EQ(informes(), (Textos{"real_pos < array->num_elems", "(pto2D) != NULL"}));
    EXPECT_EQ(x, 9);
    EXPECT_EQ(y, 9);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, GetReadsAPointOfAPrivateDataArray)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    int dato = 0;
    arr_AppendPunto2DXPriv(array, 5, 6, &dato);
    double x = 0;
    double y = 0;
    arr_GetPunto2D(array, 0, &x, &y);
    EXPECT_EQ(x, 5);
    EXPECT_EQ(y, 6);
    arr_SetPunto2D(array, 0, 5, 6); // clears the data before destruction
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DTest, GetOfAMissingPointOfAPrivateDataArrayNamesThatKind)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    arr_GetPunto2D(array, 0, nullptr, nullptr);
    EXPECT_EQ(informes(),
              (Textos{"array->num_elems > 0", "real_pos < array->num_elems", "(pto2DX) != NULL"}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DTest, GetOnANullHandleReportsItAndEnds)
{
    double x = 3;
    arr_GetPunto2D(nullptr, 0, &x, nullptr);
    EXPECT_EQ(informes(), Textos{"array"});
    EXPECT_EQ(x, 3);
}

TEST_F(Punto2DTest, GetOnAThreeDimensionalArrayReportsTheType)
{
    ARRAY *array = crea_puntos3D({{1, 2, 3}});
    double x = 0;
    arr_GetPunto2D(array, 0, &x, nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(x, 0);
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto2DTest, SetOverwritesThePoint)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}});
    arr_SetPunto2D(array, 1, -3, 4);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 1}, {-3, 4}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SetOnAPrivateDataArrayStoresTheCoordinatesWithNullData)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    int dato = 0;
    arr_AppendPunto2DXPriv(array, 1, 1, &dato);
    arr_SetPunto2D(array, 0, 8, 9);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{8, 9}}));
    EXPECT_EQ(datos_de(array), std::vector<void *>{nullptr});
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

BOOL reescribe_el_punto(double *x, double *y, void *array)
{
    const ULONG pos = static_cast<ULONG>(*x);
    arr_SetPunto2D(static_cast<ARRAY *>(array), pos, *x, *y * 10);
    return CIERTO;
}

TEST_F(Punto2DTest, SetFromInsideATraversalOfTheSameArrayIsAccepted)
{
    ARRAY *array = crea_puntos2D({{0, 1}, {1, 2}});
    arr_nousar_RecorrePunto2D(array, reescribe_el_punto, array, __FILE__, __LINE__);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 10}, {1, 20}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, DeleteRemovesAPointOfEitherKindOfArray)
{
    ARRAY *plano = crea_puntos2D({{1, 1}, {2, 2}, {3, 3}});
    ARRAY *con_datos = crea_puntos2DX({{1, 1}, {2, 2}, {3, 3}});
    arr_BorrarPunto2D(plano, 1);
    arr_BorrarPunto2D(con_datos, 0);
    EXPECT_EQ(puntos2D(plano), (std::vector<P2>{{1, 1}, {3, 3}}));
    EXPECT_EQ(puntos2D(con_datos), (std::vector<P2>{{2, 2}, {3, 3}}));
    arr_DestruyePunto2D(&plano);
    arr_DestruyePunto2DXPriv(&con_datos, nullptr);
}

TEST_F(Punto2DTest, DeleteOnAnArrayOfAnotherTypeReportsItAndKeepsTheElements)
{
    ARRAY *array = crea_puntos3D({{1, 2, 3}});
    arr_BorrarPunto2D(array, 0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTO2D_NO_USAR || "
                                 "array->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_EQ(arr_NumElemsPunto3D(array), 1u);
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto2DTest, AppendToAnArrayOfAnotherTypeIsCaughtByTheEngine)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    arr_AppendPunto2D(array, 2, 2);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 1u);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DTest, SearchFindsTheFirstPointThePredicateAccepts)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}, {2, 2}});
    EXPECT_EQ(arr_BuscarPunto2D(array, 2, 2, iguales2D), 1u);
    EXPECT_EQ(arr_BuscarPunto2D(array, 5, 5, iguales2D), ARR_ULONG_MAX);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, UniqueSearchReportsASecondMatchAndKeepsTheLast)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}, {2, 2}});
    EXPECT_EQ(arr_BuscarUnicoPunto2D(array, 2, 2, iguales2D), 2u);
    EXPECT_EQ(informes(), Textos{"!ya_encontrado"});
    EXPECT_EQ(arr_BuscarUnicoPunto2D(array, 1, 1, iguales2D), 0u);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, ExistsTellsWhetherAndWhere)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}});
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExistePunto2D(array, 2, 2, iguales2D, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    EXPECT_EQ(arr_ExistePunto2D(array, 3, 3, iguales2D, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(arr_ExisteUnicoPunto2D(array, 1, 1, iguales2D, nullptr), CIERTO);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SearchWithoutAPredicateReportsItAndFindsNothing)
{
    ARRAY *array = crea_puntos2D({{1, 1}});
    EXPECT_EQ(arr_BuscarPunto2D(array, 1, 1, nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_punto2D) != NULL"});
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SortOrdersByTheComparator)
{
    ARRAY *array = crea_puntos2D({{3, 1}, {1, 2}, {3, 0}, {2, 5}});
    arr_QSortPunto2D(array, orden2D);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 2}, {2, 5}, {3, 0}, {3, 1}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SortWithoutAComparatorReportsItAndKeepsTheOrder)
{
    ARRAY *array = crea_puntos2D({{3, 1}, {1, 2}});
    arr_QSortPunto2D(array, nullptr);
    EXPECT_EQ(informes(), Textos{"(func_compara_punto2D) != NULL"});
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{3, 1}, {1, 2}}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, EqualityComparesPointByPointWithThePredicate)
{
    ARRAY *a = crea_puntos2D({{1, 1}, {2, 2}});
    ARRAY *b = crea_puntos2D({{1, 1}, {2, 2}});
    ARRAY *c = crea_puntos2D({{1, 1}, {2, 3}});
    EXPECT_EQ(arr_SonIgualesPunto2D(a, b, iguales2D), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunto2D(a, c, iguales2D), FALSO);
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2D(&b);
    arr_DestruyePunto2D(&c);
}

TEST_F(Punto2DTest, CopyAndConcatenationKeepThePoints)
{
    ARRAY *a = crea_puntos2D({{1, 1}, {2, 2}});
    ARRAY *copia = arr_CopiaPunto2D(a);
    arr_ConcatenaPunto2D(copia, a);
    EXPECT_EQ(puntos2D(copia), (std::vector<P2>{{1, 1}, {2, 2}, {1, 1}, {2, 2}}));
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2D(&copia);
}

TEST_F(Punto2DTest, ToleranceIsASquarePerCoordinateNotADistance)
{
    ARRAY *a = crea_puntos2D({{0, 0}});
    ARRAY *b = crea_puntos2D({{0.1, 0.1}});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 0.1), CIERTO);
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2D(&b);
}

TEST_F(Punto2DTest, ADifferenceAboveTheToleranceInOneCoordinateMakesArraysUnequal)
{
    ARRAY *a = crea_puntos2D({{0, 0}, {1, 1}});
    ARRAY *b = crea_puntos2D({{0, 0}, {1, 1.25}});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 0.2), FALSO);
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 0.25), CIERTO);
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2D(&b);
}

TEST_F(Punto2DTest, ArraysOfDifferentLengthsAreNeverEqualWithinTolerance)
{
    ARRAY *a = crea_puntos2D({{0, 0}});
    ARRAY *b = crea_puntos2D({{0, 0}, {0, 0}});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 1e9), FALSO);
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2D(&b);
}

TEST_F(Punto2DTest, ToleranceComparisonAcceptsAPrivateDataArray)
{
    ARRAY *a = crea_puntos2D({{1, 2}});
    ARRAY *b = crea_puntos2DX({{1, 2.05}});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 0.1), CIERTO);
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto2DXPriv(&b, nullptr);
}

TEST_F(Punto2DTest, ToleranceComparisonOfAnotherTypeReportsItAndIsFalse)
{
    ARRAY *a = crea_puntos2D({});
    ARRAY *b = crea_puntos3D({});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a, b, 0.1), FALSO);
    EXPECT_EQ(informes(), Textos{"array2->tipo_elem == elem_PUNTO2D_NO_USAR || "
                                 "array2->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_EQ(arr_ArraysDePunto2DIguales(nullptr, a, 0.1), FALSO);
    EXPECT_EQ(informes(), Textos{"(array1) != NULL"});
    arr_DestruyePunto2D(&a);
    arr_DestruyePunto3D(&b);
}

class ArraysDeArraysTest : public PruebaArrays {
protected:
    void SetUp() override
    {
        PruebaArrays::SetUp();
        cuadrado_ = crea_puntos2D({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
        casi_cuadrado_ = crea_puntos2D({{0, 0}, {1.0625, 0}, {1, 1}, {0, 0.9375}});
        linea_ = crea_puntos2D({{0, 0}, {5, 5}});
    }
    void TearDown() override
    {
        arr_DestruyePunto2D(&cuadrado_);
        arr_DestruyePunto2D(&casi_cuadrado_);
        arr_DestruyePunto2D(&linea_);
        PruebaArrays::TearDown();
    }
    ARRAY *cuadrado_ = nullptr;
    ARRAY *casi_cuadrado_ = nullptr;
    ARRAY *linea_ = nullptr;
};

TEST_F(ArraysDeArraysTest, PointerArraysAreEqualWhenEveryPairIsWithinTolerance)
{
    const ArrayDePunteros a({cuadrado_, linea_});
    const ArrayDePunteros b({casi_cuadrado_, linea_});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(a.get(), b.get(), 0.0625), CIERTO);
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(a.get(), b.get(), 0.0624), FALSO);
}

TEST_F(ArraysDeArraysTest, PointerArraysDifferWhenOnePairDiffers)
{
    const ArrayDePunteros a({cuadrado_, linea_});
    const ArrayDePunteros b({cuadrado_, cuadrado_});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(a.get(), b.get(), 100), FALSO);
}

TEST_F(ArraysDeArraysTest, PointerArraysOfDifferentLengthsDiffer)
{
    const ArrayDePunteros a({cuadrado_});
    const ArrayDePunteros b({cuadrado_, cuadrado_});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(a.get(), b.get(), 0.1), FALSO);
}

TEST_F(ArraysDeArraysTest, TwoEmptyPointerArraysAreEqual)
{
    const ArrayDePunteros a(std::vector<ARRAY *>{});
    const ArrayDePunteros b(std::vector<ARRAY *>{});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(a.get(), b.get(), 0), CIERTO);
}

TEST_F(ArraysDeArraysTest, ComparingPointArraysAsPointerArraysReportsTheType)
{
    const ArrayDePunteros b({cuadrado_});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrPunto2DConTolerancia(cuadrado_, b.get(), 0.1), FALSO);
    EXPECT_EQ(informes(), Textos{"array1->tipo_elem == elem_PUNTERO_NO_USAR"});
}

TEST_F(Punto2DTest, BoundingBoxMatchesTheExtremesOfRandomPoints)
{
    const std::vector<P2> puntos = puntos_al_azar(600, 7);
    ARRAY *array = crea_puntos2D(puntos);
    double xmin, ymin, xmax, ymax;
    arr_GetMinimaxPunto2D(array, &xmin, &ymin, &xmax, &ymax);
    auto por_eje = [&](int eje) {
        return std::minmax_element(puntos.begin(), puntos.end(),
                                   [eje](const P2 &a, const P2 &b) { return a[eje] < b[eje]; });
    };
    EXPECT_EQ(xmin, (*por_eje(0).first)[0]);
    EXPECT_EQ(xmax, (*por_eje(0).second)[0]);
    EXPECT_EQ(ymin, (*por_eje(1).first)[1]);
    EXPECT_EQ(ymax, (*por_eje(1).second)[1]);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, BoundingBoxWritesOnlyTheOutputsGiven)
{
    ARRAY *array = crea_puntos2D({{1, 5}, {-2, 3}});
    double ymin = 0;
    double xmax = 0;
    arr_GetMinimaxPunto2D(array, nullptr, &ymin, &xmax, nullptr);
    EXPECT_EQ(ymin, 3);
    EXPECT_EQ(xmax, 1);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, BoundingBoxOfAnEmptyArrayReportsTheMissingPointAndWritesNothing)
{
    ARRAY *array = arr_CreaPunto2D(0);
    double xmin = 42;
    arr_GetMinimaxPunto2D(array, &xmin, nullptr, nullptr, nullptr);
    EXPECT_EQ(informes(),
              (Textos{"array->num_elems > 0", "real_pos < array->num_elems", "(pto2D) != NULL"}));
    EXPECT_EQ(xmin, 42);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SegmentJoinsAPointToTheNext)
{
    ARRAY *array = crea_puntos2D({{0, 0}, {1, 0}, {1, 1}});
    double x1, y1, x2, y2;
    arr_GetSegmentoPunto2D(array, 1, &x1, &y1, &x2, &y2);
    EXPECT_EQ((std::vector<double>{x1, y1, x2, y2}), (std::vector<double>{1, 0, 1, 1}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, LastSegmentClosesThePolylineBackToPointZero)
{
    ARRAY *array = crea_puntos2D({{0, 0}, {1, 0}, {1, 1}});
    double x1, y1, x2, y2;
    arr_GetSegmentoPunto2D(array, 2, &x1, &y1, &x2, &y2);
    EXPECT_EQ((std::vector<double>{x1, y1, x2, y2}), (std::vector<double>{1, 1, 0, 0}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, SegmentPastTheEndReportsTheMissingPoint)
{
    ARRAY *array = crea_puntos2D({{0, 0}, {1, 0}});
    double x1 = 7;
    arr_GetSegmentoPunto2D(array, 2, &x1, nullptr, nullptr, nullptr);
    EXPECT_EQ(informes(), (Textos{"real_pos < array->num_elems", "(pto2D) != NULL"}));
    EXPECT_EQ(x1, 7);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DTest, ReversalReturnsANewArrayAndLeavesTheArgument)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}, {3, 3}});
    ARRAY *invertida = arr_InvertirPunto2D(array);
    EXPECT_EQ(puntos2D(invertida), (std::vector<P2>{{3, 3}, {2, 2}, {1, 1}}));
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 1}, {2, 2}, {3, 3}}));
    arr_DestruyePunto2D(&array);
    arr_DestruyePunto2D(&invertida);
}

TEST_F(Punto2DTest, ReversingTwiceGivesAnEqualArray)
{
    ARRAY *array = crea_puntos2D(puntos_al_azar(300, 3));
    ARRAY *una = arr_InvertirPunto2D(array);
    ARRAY *dos = arr_InvertirPunto2D(una);
    EXPECT_EQ(arr_SonIgualesPunto2D(array, dos, iguales2D), CIERTO);
    arr_DestruyePunto2D(&array);
    arr_DestruyePunto2D(&una);
    arr_DestruyePunto2D(&dos);
}

TEST_F(Punto2DTest, ReversingAPrivateDataArrayAsPlainReportsTheType)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    EXPECT_EQ(arr_InvertirPunto2D(array), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

BOOL anota_direcciones(double *x, double *y, void *direcciones)
{
    static_cast<std::vector<std::ptrdiff_t> *>(direcciones)
        ->push_back(reinterpret_cast<char *>(y) - reinterpret_cast<char *>(x));
    *x += 1;
    return CIERTO;
}

TEST_F(Punto2DTest, TraversalHandsEachPointsCoordinatesForChangeInPlace)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}});
    std::vector<std::ptrdiff_t> separaciones;
    arr_nousar_RecorrePunto2D(array, anota_direcciones, &separaciones, __FILE__, __LINE__);
    EXPECT_EQ(separaciones, (std::vector<std::ptrdiff_t>{sizeof(double), sizeof(double)}));
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{2, 1}, {3, 2}}));
    arr_DestruyePunto2D(&array);
}

} // namespace
