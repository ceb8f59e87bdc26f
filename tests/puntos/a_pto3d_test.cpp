// The 3D point family: element operations, search, sort, equality with and without tolerance,
// reversal and traversal.
#include "puntos/ayudas_puntos.h"

namespace {

class Punto3DTest : public PruebaArrays {};

TEST_F(Punto3DTest, CreateGivesThatManyPointsAtTheOrigin)
{
    ARRAY *array = arr_CreaPunto3D(2);
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{0, 0, 0}, {0, 0, 0}}));
    arr_DestruyePunto3D(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Punto3DTest, AppendInsertSetAndDeleteKeepThePointsInOrder)
{
    ARRAY *array = crea_puntos3D({{1, 2, 3}, {7, 8, 9}});
    arr_InsertarPunto3D(array, 1, 4, 5, 6);
    arr_SetPunto3D(array, 2, -7, -8, -9);
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{1, 2, 3}, {4, 5, 6}, {-7, -8, -9}}));
    arr_BorrarPunto3D(array, 0);
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{4, 5, 6}, {-7, -8, -9}}));
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, GetWithAllOutPointersNullOnlyChecksThatThePointExists)
{
    ARRAY *array = crea_puntos3D({{1, 2, 3}});
    arr_GetPunto3D(array, 0, nullptr, nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{});
    arr_GetPunto3D(array, 1, nullptr, nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, GetWritesOnlyTheCoordinatesAskedFor)
{
    ARRAY *array = crea_puntos3D({{1, 2, 3}});
    double x = 0;
    double z = 0;
    arr_GetPunto3D(array, 0, &x, nullptr, &z);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(z, 3);
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, DeleteRefusesATwoDimensionalArray)
{
    ARRAY *array = crea_puntos2D({{1, 2}});
    arr_BorrarPunto3D(array, 0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 1u);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto3DTest, SearchAndExistsUseThePredicate)
{
    ARRAY *array = crea_puntos3D({{1, 1, 1}, {2, 2, 2}, {2, 2, 2}});
    EXPECT_EQ(arr_BuscarPunto3D(array, 2, 2, 2, iguales3D), 1u);
    EXPECT_EQ(arr_BuscarUnicoPunto3D(array, 1, 1, 1, iguales3D), 0u);
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExistePunto3D(array, 2, 2, 3, iguales3D, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(arr_ExisteUnicoPunto3D(array, 2, 2, 2, iguales3D, &posicion), CIERTO);
    EXPECT_EQ(informes(), Textos{"!ya_encontrado"});
    EXPECT_EQ(posicion, 2u);
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, SearchWithoutAPredicateReportsIt)
{
    ARRAY *array = crea_puntos3D({{1, 1, 1}});
    EXPECT_EQ(arr_BuscarPunto3D(array, 1, 1, 1, nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_punto3D) != NULL"});
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, SortOrdersByTheComparator)
{
    ARRAY *array = crea_puntos3D({{2, 0, 0}, {1, 5, 1}, {1, 5, 0}});
    arr_QSortPunto3D(array, orden3D);
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{1, 5, 0}, {1, 5, 1}, {2, 0, 0}}));
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, SortWithoutAComparatorReportsIt)
{
    ARRAY *array = crea_puntos3D({{2, 0, 0}, {1, 0, 0}});
    arr_QSortPunto3D(array, nullptr);
    EXPECT_EQ(informes(), Textos{"(func_compara_punto3D) != NULL"});
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{2, 0, 0}, {1, 0, 0}}));
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, EqualityComparesByThePredicate)
{
    ARRAY *a = crea_puntos3D({{1, 2, 3}});
    ARRAY *b = crea_puntos3D({{1, 2, 3}});
    ARRAY *c = crea_puntos3D({{1, 2, 4}});
    EXPECT_EQ(arr_SonIgualesPunto3D(a, b, iguales3D), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunto3D(a, c, iguales3D), FALSO);
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&b);
    arr_DestruyePunto3D(&c);
}

TEST_F(Punto3DTest, TwoEmptyArraysAreEqualWithAnyTolerance)
{
    ARRAY *a = arr_CreaPunto3D(0);
    ARRAY *b = arr_CreaPunto3D(0);
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, b, 0), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, b, -1), CIERTO);
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&b);
}

TEST_F(Punto3DTest, ArraysOfDifferentLengthsAreNeverEqualWithinTolerance)
{
    ARRAY *a = crea_puntos3D({{0, 0, 0}});
    ARRAY *b = crea_puntos3D({{0, 0, 0}, {0, 0, 0}});
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, b, 1e9), FALSO);
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&b);
}

TEST_F(Punto3DTest, ToleranceIsABoxPerCoordinateNotADistance)
{
    ARRAY *a = crea_puntos3D({{0, 0, 0}});
    ARRAY *b = crea_puntos3D({{0.1, 0.1, 0.1}});
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, b, 0.1), CIERTO);
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&b);
}

TEST_F(Punto3DTest, AZDifferenceAboveTheToleranceMakesArraysUnequal)
{
    ARRAY *a = crea_puntos3D({{1, 1, 1}, {2, 2, 2}});
    ARRAY *b = crea_puntos3D({{1, 1, 1}, {2, 2, 2.5}});
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, b, 0.4), FALSO);
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&b);
}

TEST_F(Punto3DTest, ToleranceComparisonChecksBothArrays)
{
    ARRAY *a = crea_puntos3D({});
    ARRAY *b = crea_puntos2D({});
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(b, a, 1), FALSO);
    EXPECT_EQ(informes(), Textos{"array1->tipo_elem == elem_PUNTO3D_NO_USAR"});
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a, nullptr, 1), FALSO);
    EXPECT_EQ(informes(), Textos{"(array2) != NULL"});
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto2D(&b);
}

TEST_F(Punto3DTest, ReversalReturnsANewArrayAndLeavesTheArgument)
{
    ARRAY *array = crea_puntos3D({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}});
    ARRAY *invertida = arr_InvertirPunto3D(array);
    EXPECT_EQ(puntos3D(invertida), (std::vector<P3>{{3, 3, 3}, {2, 2, 2}, {1, 1, 1}}));
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{1, 1, 1}, {2, 2, 2}, {3, 3, 3}}));
    arr_DestruyePunto3D(&array);
    arr_DestruyePunto3D(&invertida);
}

BOOL eleva(double *x, double *y, double *z, void *altura)
{
    EXPECT_EQ(y, x + 1);
    EXPECT_EQ(z, x + 2);
    *z += *static_cast<double *>(altura);
    return CIERTO;
}

TEST_F(Punto3DTest, TraversalHandsEachPointsCoordinatesForChangeInPlace)
{
    ARRAY *array = crea_puntos3D({{1, 1, 1}, {2, 2, 2}});
    double altura = 10;
    arr_nousar_RecorrePunto3D(array, eleva, &altura, __FILE__, __LINE__);
    EXPECT_EQ(puntos3D(array), (std::vector<P3>{{1, 1, 11}, {2, 2, 12}}));
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto3DTest, CopyAndConcatenationKeepThePoints)
{
    ARRAY *a = crea_puntos3D({{1, 2, 3}});
    ARRAY *copia = arr_CopiaPunto3D(a);
    arr_ConcatenaPunto3D(copia, a);
    EXPECT_EQ(puntos3D(copia), (std::vector<P3>{{1, 2, 3}, {1, 2, 3}}));
    arr_DestruyePunto3D(&a);
    arr_DestruyePunto3D(&copia);
}

} // namespace
