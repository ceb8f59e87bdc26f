// Doubles are never compared without the caller's predicate: a search or an equality of arrays
// without one is reported.
#include "soporte/prueba_arrays.h"

namespace {

using Predicados = PruebaArrays;

BOOL cerca(double a, double b) { return a - b < 0.5 && b - a < 0.5 ? CIERTO : FALSO; }

TEST_F(Predicados, DoubleSearchWithoutPredicateIsReportedAndFindsNothing)
{
    ARRAY *array = arr_CreaDouble(2);
    EXPECT_EQ(arr_BuscarDouble(array, 0.0, nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_double) != NULL"});
    arr_DestruyeDouble(&array);
}

TEST_F(Predicados, DoubleEqualityWithoutPredicateIsReported)
{
    ARRAY *array1 = arr_CreaDouble(1);
    ARRAY *array2 = arr_CreaDouble(1);
    EXPECT_EQ(arr_SonIgualesDouble(array1, array2, nullptr), FALSO);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_double) != NULL"});
    arr_DestruyeDouble(&array1);
    arr_DestruyeDouble(&array2);
}

TEST_F(Predicados, DoubleEqualityFollowsThePredicate)
{
    ARRAY *array1 = arr_CreaDouble(0);
    ARRAY *array2 = arr_CreaDouble(0);
    arr_AppendDouble(array1, 1.0);
    arr_AppendDouble(array2, 1.25);
    EXPECT_EQ(arr_SonIgualesDouble(array1, array2, cerca), CIERTO);
    arr_DestruyeDouble(&array1);
    arr_DestruyeDouble(&array2);
}

} // namespace
