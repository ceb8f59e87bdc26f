// arr_cambio_precio_pesetas_a_euros: every price divided by 166.386 and rounded to cents.
#include "soporte/prueba_arrays.h"

namespace {

using Pesetas = PruebaArrays;

TEST_F(Pesetas, PricesBecomeEurosRoundedToCents)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_AppendDouble(array, 1000.0);
    arr_AppendDouble(array, 166.386);
    arr_cambio_precio_pesetas_a_euros(array);
    EXPECT_EQ(arr_GetDouble(array, 0), 6.01);
    EXPECT_EQ(arr_GetDouble(array, 1), 1.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Pesetas, EveryRowIsConverted)
{
    ARRAY *array = arr_CreaDouble(700);
    arr_InicializaDouble(array, 16638.6);
    arr_cambio_precio_pesetas_a_euros(array);
    EXPECT_EQ(arr_GetDouble(array, 0), 100.0);
    EXPECT_EQ(arr_GetDouble(array, 699), 100.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Pesetas, AnArrayOfAnotherFamilyWithElementsOfAnotherSizeIsRefusedUnchanged)
{
    ARRAY *array = arr_CreaULong(0);
    arr_AppendULong(array, 1000);
    arr_AppendULong(array, 2000);
    arr_cambio_precio_pesetas_a_euros(array);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_GetULong(array, 0), 1000u);
    arr_DestruyeULong(&array);
}

} // namespace
