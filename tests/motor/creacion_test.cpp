// Creation, counting and destruction of arrays.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"

namespace {

using Creacion = PruebaArrays;

TEST_F(Creacion, EmptyDoubleArrayHasNoRowsAndNoTables)
{
    ARRAY *array = arr_CreaDouble(0);
    EXPECT_EQ(array->num_filas, 0u);
    EXPECT_EQ(array->num_elems, 0u);
    EXPECT_EQ(array->buffer, nullptr);
    EXPECT_EQ(array->long_filas, nullptr);
    EXPECT_EQ(array->max_long_filas, nullptr);
    EXPECT_EQ(array->acumulado_filas, nullptr);
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Creacion, ThreeHundredDoublesFillTwoRows)
{
    ARRAY *array = arr_CreaDouble(300);
    ASSERT_EQ(array->num_filas, 2u);
    EXPECT_EQ(array->long_filas[0], 256u);
    EXPECT_EQ(array->max_long_filas[0], 256u);
    EXPECT_EQ(array->long_filas[1], 44u);
    EXPECT_EQ(array->max_long_filas[1], 44u);
    EXPECT_EQ(array->acumulado_filas[0], 0u);
    EXPECT_EQ(array->acumulado_filas[1], 256u);
    for (ULONG i = 0; i < 300; ++i)
        EXPECT_EQ(arr_GetDouble(array, i), 0.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Creacion, DestroyingThroughANullHandleIsReported)
{
    ARRAY *array = nullptr;
    arr_DestruyeDouble(&array);
    EXPECT_EQ(informes(), Textos{"(*array) != NULL"});
    arr_DestruyeDouble(nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

} // namespace
