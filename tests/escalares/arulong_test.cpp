// The arulong_ and arulong64_ names: the same arrays as the ULong and ULong64 families, with a
// creation of their own and a repeated append whose count must exceed one.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "escalares/familias.h"

namespace {

using Arulong = PruebaArrays;

TEST_F(Arulong, CreatedArrayIsEmpty)
{
    ARRAY *array = arulong_crea();
    EXPECT_EQ(arulong_numelems(array), 0u);
    EXPECT_EQ(tipo_elem_array{array->tipo_elem}, elem_ULONG_NO_USAR);
    arulong_destruye(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Arulong, CreatedArrayAcceptsSumarULong)
{
    ARRAY *array = arulong_crea();
    arulong_append(array, 40);
    arr_SumarULong(array, 0, 2);
    EXPECT_EQ(arulong_get(array, 0), 42u);
    arulong_destruye(&array);
}

TEST_F(Arulong, AppendNWithCountOneIsReportedAndAppendsOneValue)
{
    EXPECT_EQ(tras_append_n<FamiliaULong>(arulong_append_n, 1, 9), std::vector<ULONG>{9});
    EXPECT_EQ(informes_completos().at(0).ubicacion, "arulong (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_valores > 1"});
}

TEST_F(Arulong, AppendNWithCountZeroIsReportedAndAppendsNothing)
{
    EXPECT_EQ(tras_append_n<FamiliaULong>(arulong_append_n, 0, 9), std::vector<ULONG>{});
    EXPECT_EQ(informes(), Textos{"num_valores > 1"});
}

TEST_F(Arulong, AppendNWithCountTwoAppendsTwiceWithoutReport)
{
    EXPECT_EQ(tras_append_n<FamiliaULong>(arulong_append_n, 2, 9), (std::vector<ULONG>{9, 9}));
}

TEST_F(Arulong, AnArrayOfTheULongFamilyServesTheSecondNames)
{
    ARRAY *array = arr_CreaULong(0);
    arulong_append(array, 5);
    arulong_inserta(array, 0, 7);
    arulong_set(array, 1, 6);
    arulong_qsort(array, nullptr);
    EXPECT_EQ(arulong_busca(array, 7, nullptr), 1u);
    arulong_borra(array, 0);
    EXPECT_EQ(arr_GetULong(array, 0), 7u);
    arr_DestruyeULong(&array);
}

TEST_F(Arulong, SixtyFourBitCreatedArrayIsAnEmptyULong64Array)
{
    ARRAY *array = arulong64_crea();
    EXPECT_EQ(tipo_elem_array{array->tipo_elem}, elem_ULONG64_NO_USAR);
    EXPECT_EQ(arulong64_numelems(array), 0u);
    arr_AppendULong64(array, UINT64_MAX);
    EXPECT_EQ(arulong64_get(array, 0), UINT64_MAX);
    arulong64_destruye(&array);
}

TEST_F(Arulong, SixtyFourBitAppendNWithCountOneIsReportedFromItsModule)
{
    EXPECT_EQ(tras_append_n<FamiliaULong64>(arulong64_append_n, 1, 3), std::vector<ULONG64>{3});
    EXPECT_EQ(informes_completos().at(0).ubicacion, "arulong64 (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_valores > 1"});
}

TEST_F(Arulong, SixtyFourBitAppendNWithCountZeroIsReportedAndAppendsNothing)
{
    EXPECT_EQ(tras_append_n<FamiliaULong64>(arulong64_append_n, 0, 3), std::vector<ULONG64>{});
    EXPECT_EQ(informes(), Textos{"num_valores > 1"});
}

TEST_F(Arulong, EqualityComparesExactlyUnderTheSecondName)
{
    ARRAY *array1 = arulong_crea();
    ARRAY *array2 = arulong_crea();
    arulong_append(array1, 1);
    arulong_append(array2, 1);
    EXPECT_EQ(arulong_iguales(array1, array2), CIERTO);
    arulong_set(array2, 0, 2);
    EXPECT_EQ(arulong_iguales(array1, array2), FALSO);
    arulong_destruye(&array1);
    arulong_destruye(&array2);
}

TEST_F(Arulong, UniqueExistenceStoresThePositionUnderTheSecondName)
{
    ARRAY *array = arulong64_crea();
    arulong64_append(array, 4);
    arulong64_append(array, 1);
    ULONG posicion = 0;
    EXPECT_EQ(arulong64_existe_unico(array, 1, nullptr, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    arulong64_destruye(&array);
}

} // namespace
