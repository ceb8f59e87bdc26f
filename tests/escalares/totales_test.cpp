// arr_SumatorioX and arr_MinimoMaximoDouble.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

#include <cfloat>
#include <cmath>
#include <cstdint>

namespace {

using Totales = PruebaArrays;

struct Extremos {
    double minimo = 0.0;
    ULONG pos_minimo = 0;
    double maximo = 0.0;
    ULONG pos_maximo = 0;
};

Extremos extremos_de(const ARRAY *array)
{
    Extremos e;
    arr_MinimoMaximoDouble(array, &e.minimo, &e.pos_minimo, &e.maximo, &e.pos_maximo);
    return e;
}

TEST_F(Totales, MinimumAndMaximumAreTakenAtTheirFirstPositions)
{
    ARRAY *array = array_con<FamiliaDouble>({3, 1, 1, 5, 5});
    const Extremos e = extremos_de(array);
    EXPECT_EQ(e.minimo, 1.0);
    EXPECT_EQ(e.pos_minimo, 1u);
    EXPECT_EQ(e.maximo, 5.0);
    EXPECT_EQ(e.pos_maximo, 3u);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, MinimumAndMaximumOfAnEmptyArrayAreReportedAndTheStartingValues)
{
    ARRAY *array = array_con<FamiliaDouble>({});
    const Extremos e = extremos_de(array);
    EXPECT_EQ(informes(), Textos{"array->num_elems > 0"});
    EXPECT_EQ(e.minimo, DBL_MAX);
    EXPECT_EQ(e.pos_minimo, ARR_ULONG_MAX);
    EXPECT_EQ(e.maximo, -DBL_MAX);
    EXPECT_EQ(e.pos_maximo, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, NaNIsNeverTheMinimumOrTheMaximum)
{
    ARRAY *array = array_con<FamiliaDouble>({std::nan("")});
    const Extremos e = extremos_de(array);
    EXPECT_EQ(e.minimo, DBL_MAX);
    EXPECT_EQ(e.pos_minimo, ARR_ULONG_MAX);
    EXPECT_EQ(e.maximo, -DBL_MAX);
    EXPECT_EQ(e.pos_maximo, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, MinimumAndMaximumAreWrittenOnlyThroughTheGivenPointers)
{
    ARRAY *array = array_con<FamiliaDouble>({2, -7, 4});
    ULONG pos_minimo = 0;
    double maximo = 0.0;
    arr_MinimoMaximoDouble(array, nullptr, &pos_minimo, &maximo, nullptr);
    EXPECT_EQ(pos_minimo, 1u);
    EXPECT_EQ(maximo, 4.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, MinimumAndMaximumAreFoundInAnyRow)
{
    ARRAY *array = arr_CreaDouble(1000);
    arr_SetDouble(array, 700, -3.0);
    arr_SetDouble(array, 999, 8.0);
    const Extremos e = extremos_de(array);
    EXPECT_EQ(e.pos_minimo, 700u);
    EXPECT_EQ(e.pos_maximo, 999u);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, MinimumAndMaximumOfAnotherFamilyAreRefused)
{
    ARRAY *array = arr_CreaLong64(2);
    const Extremos e = extremos_de(array);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_DOUBLE_NO_USAR"});
    EXPECT_EQ(e.pos_minimo, ARR_ULONG_MAX);
    EXPECT_EQ(e.pos_maximo, ARR_ULONG_MAX);
    arr_DestruyeLong64(&array);
}

TEST_F(Totales, SumOfAnEmptyDoubleArrayIsZero)
{
    ARRAY *array = array_con<FamiliaDouble>({});
    EXPECT_EQ(arr_SumatorioDouble(array), 0.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, DoubleSumAddsEveryRowInPositionOrderWithoutCompensation)
{
    ARRAY *array = arr_CreaDouble(600);
    arr_SetDouble(array, 0, 1e16);
    arr_SetDouble(array, 300, 0.5);
    arr_SetDouble(array, 599, -1e16);
    // 1e16 + 0.5 rounds back to 1e16, so the half is lost before -1e16 is added.
    EXPECT_EQ(arr_SumatorioDouble(array), 0.0);
    arr_SetDouble(array, 0, 0.25);
    arr_SetDouble(array, 599, 0.25);
    EXPECT_EQ(arr_SumatorioDouble(array), 1.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Totales, DoubleSumOfAnotherFamilyIsRefused)
{
    ARRAY *array = arr_CreaULong(1);
    EXPECT_EQ(arr_SumatorioDouble(array), 0.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_DOUBLE_NO_USAR"});
    arr_DestruyeULong(&array);
}

TEST_F(Totales, ULongSumWrapsModuloTwoToThe32)
{
    ARRAY *array = arr_CreaULong(0);
    arr_AppendULong(array, 4294967295u);
    arr_AppendULong(array, 2);
    EXPECT_EQ(arr_SumatorioULong(array), 1u);
    arr_DestruyeULong(&array);
}

TEST_F(Totales, ULong64SumWrapsModuloTwoToThe64)
{
    ARRAY *array = arr_CreaULong64(0);
    arr_AppendULong64(array, UINT64_MAX);
    arr_AppendULong64(array, 2);
    EXPECT_EQ(arr_SumatorioULong64(array), 1u);
    arr_DestruyeULong64(&array);
}

TEST_F(Totales, ULongSumAddsEveryRow)
{
    ARRAY *array = arr_CreaULong(1500);
    arr_InicializaULong(array, 3);
    EXPECT_EQ(arr_SumatorioULong(array), 4500u);
    arr_DestruyeULong(&array);
}

} // namespace
