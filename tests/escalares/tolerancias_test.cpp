// Equality of Double arrays within a tolerance, directly and through one or two levels of
// pointer arrays.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

#include <cmath>

namespace {

using Tolerancias = PruebaArrays;

ARRAY *doubles(std::initializer_list<double> valores) { return array_con<FamiliaDouble>(valores); }

// A pointer array holding the given arrays.
ARRAY *punteros(std::initializer_list<ARRAY *> arrays)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    for (ARRAY *interno : arrays)
        arr_AppendPunteroConTipo(array, interno);
    return array;
}

// Destroys an array and, below it, `niveles` levels of the arrays it points to.
void destruye(ARRAY *array, int niveles)
{
    if (niveles == 0) {
        arr_DestruyeDouble(&array);
        return;
    }
    // The count shared by every family serves pointer arrays too.
    for (ULONG i = 0; i < arr_NumElemsDouble(array); ++i)
        destruye(static_cast<ARRAY *>(arr_GetPunteroConTipo(array, i)), niveles - 1);
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(Tolerancias, ADifferenceEqualToTheToleranceCountsAsEqual)
{
    ARRAY *array1 = doubles({1.0});
    ARRAY *array2 = doubles({1.5});
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 0.5), CIERTO);
    destruye(array1, 0);
    destruye(array2, 0);
}

TEST_F(Tolerancias, ADifferenceAboveTheToleranceIsUnequal)
{
    ARRAY *array1 = doubles({1.0});
    ARRAY *array2 = doubles({1.5});
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 0.4999), FALSO);
    destruye(array1, 0);
    destruye(array2, 0);
}

TEST_F(Tolerancias, ArraysOfDifferentLengthsAreNeverEqual)
{
    ARRAY *array1 = doubles({1.0});
    ARRAY *array2 = doubles({1.0, 1.0});
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 1e300), FALSO);
    destruye(array1, 0);
    destruye(array2, 0);
}

TEST_F(Tolerancias, ANaNDifferenceCountsAsEqual)
{
    ARRAY *array1 = doubles({std::nan(""), 2.0});
    ARRAY *array2 = doubles({1.0, 2.0});
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 0.0), CIERTO);
    destruye(array1, 0);
    destruye(array2, 0);
}

TEST_F(Tolerancias, EveryPositionOfEveryRowIsCompared)
{
    ARRAY *array1 = arr_CreaDouble(700);
    ARRAY *array2 = arr_CreaDouble(700);
    arr_SetDouble(array2, 650, 0.25);
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 0.2), FALSO);
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 0.3), CIERTO);
    destruye(array1, 0);
    destruye(array2, 0);
}

TEST_F(Tolerancias, AnArrayOfAnotherFamilyWithElementsOfAnotherSizeIsRefused)
{
    ARRAY *array1 = doubles({});
    ARRAY *array2 = arr_CreaLong(0);
    EXPECT_EQ(arr_SonIgualesDoubleConTolerancia(array1, array2, 1.0), FALSO);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    destruye(array1, 0);
    arr_DestruyeLong(&array2);
}

TEST_F(Tolerancias, PointerArraysOfCloseDoubleArraysAreEqual)
{
    ARRAY *array1 = punteros({doubles({1.0}), doubles({2.0, 3.0})});
    ARRAY *array2 = punteros({doubles({1.1}), doubles({2.0, 2.9})});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrDoubleConTolerancia(array1, array2, 0.2), CIERTO);
    destruye(array1, 1);
    destruye(array2, 1);
}

TEST_F(Tolerancias, PointerArraysDifferingInOneInnerArrayAreUnequal)
{
    ARRAY *array1 = punteros({doubles({1.0}), doubles({2.0, 3.0})});
    ARRAY *array2 = punteros({doubles({1.0}), doubles({2.0})});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrDoubleConTolerancia(array1, array2, 0.2), FALSO);
    destruye(array1, 1);
    destruye(array2, 1);
}

TEST_F(Tolerancias, PointerArraysOfDifferentCountsAreUnequal)
{
    ARRAY *array1 = punteros({doubles({1.0})});
    ARRAY *array2 = punteros({doubles({1.0}), doubles({1.0})});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrDoubleConTolerancia(array1, array2, 0.2), FALSO);
    destruye(array1, 1);
    destruye(array2, 1);
}

TEST_F(Tolerancias, TheComparisonStopsAtTheFirstUnequalPair)
{
    ARRAY *array1 = punteros({doubles({1.0}), nullptr});
    ARRAY *array2 = punteros({doubles({5.0}), nullptr});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrDoubleConTolerancia(array1, array2, 0.2), FALSO);
    arr_BorrarPuntero(array1, 1);
    arr_BorrarPuntero(array2, 1);
    destruye(array1, 1);
    destruye(array2, 1);
}

TEST_F(Tolerancias, TwoLevelsOfPointerArraysAreComparedPairwise)
{
    ARRAY *array1 = punteros({punteros({doubles({1.0})}), punteros({doubles({4.0})})});
    ARRAY *array2 = punteros({punteros({doubles({1.0})}), punteros({doubles({4.3})})});
    EXPECT_EQ(arr_SonIgualesArrArrPunteroArrDoubleConTolerancia(array1, array2, 0.5), CIERTO);
    EXPECT_EQ(arr_SonIgualesArrArrPunteroArrDoubleConTolerancia(array1, array2, 0.1), FALSO);
    destruye(array1, 2);
    destruye(array2, 2);
}

TEST_F(Tolerancias, ADoubleArrayWhereAPointerArrayIsExpectedIsRefused)
{
    ARRAY *array1 = doubles({1.0});
    ARRAY *array2 = doubles({1.0});
    EXPECT_EQ(arr_SonIgualesArrPunteroArrDoubleConTolerancia(array1, array2, 0.2), FALSO);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    destruye(array1, 0);
    destruye(array2, 0);
}

} // namespace
