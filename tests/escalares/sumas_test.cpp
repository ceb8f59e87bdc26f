// arr_SumarX: the sum is checked against the family's open range, reported when outside it, and
// stored in the element's width whether or not the check passed.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

#include <cstdint>

namespace {

using Sumas = PruebaArrays;

constexpr const char *FUERA_USHORT = "(unsigned long)long_elem < USHRT_MAX";
constexpr const char *FUERA_LONG =
    "(double)LONG_MIN < double_elem && double_elem < (double)LONG_MAX";
constexpr const char *FUERA_ULONG = "0. <= double_elem && double_elem < (double)ULONG_MAX";
constexpr const char *FUERA_LONG64 =
    "(double)INTSAFE_INT64_MIN < double_elem && double_elem < (double)INTSAFE_INT64_MAX";
constexpr const char *FUERA_ULONG64 =
    "0. <= double_elem && double_elem < (double)INTSAFE_ULONGLONG_MAX";

// The element that arr_SumarF leaves after adding `delta` to `inicio`, in a one-element array.
template <typename F, typename Delta>
typename F::Valor tras_sumar(void (*sumar)(ARRAY *, ULONG, Delta), typename F::Valor inicio,
                             Delta delta)
{
    ARRAY *array = array_con<F>({inicio});
    sumar(array, 0, delta);
    const typename F::Valor resultado = F::get(array, 0);
    F::destruye(&array);
    return resultado;
}

TEST_F(Sumas, UShortSumInsideTheRangeIsStoredWithoutReport)
{
    EXPECT_EQ(tras_sumar<FamiliaUShort>(arr_SumarUShort, 10, SHORT{-3}), 7);
}

TEST_F(Sumas, UShortSumReachingTheMaximumIsReportedAndStored)
{
    EXPECT_EQ(tras_sumar<FamiliaUShort>(arr_SumarUShort, 65534, SHORT{1}), 65535);
    EXPECT_EQ(informes(), Textos{FUERA_USHORT});
}

TEST_F(Sumas, UShortNegativeSumIsReportedByBothChecksAndWraps)
{
    EXPECT_EQ(tras_sumar<FamiliaUShort>(arr_SumarUShort, 0, SHORT{-1}), 65535);
    EXPECT_EQ(informes(), (Textos{"long_elem >= 0", FUERA_USHORT}));
}

TEST_F(Sumas, LongSumInsideTheRangeIsStoredWithoutReport)
{
    EXPECT_EQ(tras_sumar<FamiliaLong>(arr_SumarLong, -5, LONG{12}), 7);
}

TEST_F(Sumas, LongSumReachingTheMaximumIsReportedAndStored)
{
    EXPECT_EQ(tras_sumar<FamiliaLong>(arr_SumarLong, 2147483646, LONG{1}), 2147483647);
    EXPECT_EQ(informes(), Textos{FUERA_LONG});
}

TEST_F(Sumas, LongSumReachingTheMinimumIsReportedAndStored)
{
    EXPECT_EQ(tras_sumar<FamiliaLong>(arr_SumarLong, -2147483647, LONG{-1}), INT32_MIN);
    EXPECT_EQ(informes(), Textos{FUERA_LONG});
}

TEST_F(Sumas, LongSumPastTheMaximumWraps)
{
    EXPECT_EQ(tras_sumar<FamiliaLong>(arr_SumarLong, INT32_MAX, LONG{1}), INT32_MIN);
    EXPECT_EQ(informes(), Textos{FUERA_LONG});
}

TEST_F(Sumas, ULongSumJustBelowTheMaximumIsStoredWithoutReport)
{
    EXPECT_EQ(tras_sumar<FamiliaULong>(arr_SumarULong, 4294967293u, LONG{1}), 4294967294u);
}

TEST_F(Sumas, ULongSumReachingTheMaximumIsReportedAndStored)
{
    EXPECT_EQ(tras_sumar<FamiliaULong>(arr_SumarULong, 4294967294u, LONG{1}), 4294967295u);
    EXPECT_EQ(informes(), Textos{FUERA_ULONG});
}

TEST_F(Sumas, ULongSumBelowZeroIsReportedAndWraps)
{
    EXPECT_EQ(tras_sumar<FamiliaULong>(arr_SumarULong, 0, LONG{-1}), 4294967295u);
    EXPECT_EQ(informes(), Textos{FUERA_ULONG});
}

TEST_F(Sumas, Long64StoresTheExactIntegerSum)
{
    EXPECT_EQ(tras_sumar<FamiliaLong64>(arr_SumarLong64, INT64_C(9007199254740992), LONG64{1}),
              INT64_C(9007199254740993));
}

TEST_F(Sumas, Long64SumPastTheMaximumIsReportedAndWraps)
{
    EXPECT_EQ(tras_sumar<FamiliaLong64>(arr_SumarLong64, INT64_MAX, LONG64{1}), INT64_MIN);
    EXPECT_EQ(informes(), Textos{FUERA_LONG64});
}

TEST_F(Sumas, Long64SumAtTheMinimumIsReported)
{
    EXPECT_EQ(tras_sumar<FamiliaLong64>(arr_SumarLong64, INT64_MIN + 1, LONG64{-1}), INT64_MIN);
    EXPECT_EQ(informes(), Textos{FUERA_LONG64});
}

TEST_F(Sumas, ULong64SumBelowZeroIsReportedAndWraps)
{
    EXPECT_EQ(tras_sumar<FamiliaULong64>(arr_SumarULong64, 0, LONG64{-1}), UINT64_MAX);
    EXPECT_EQ(informes(), Textos{FUERA_ULONG64});
}

TEST_F(Sumas, ULong64SumAboveTwoToThe63IsStoredWithDoublePrecision)
{
    const ULONG64 grande = (UINT64_C(1) << 63) + 4096;
    EXPECT_EQ(tras_sumar<FamiliaULong64>(arr_SumarULong64, grande, LONG64{1}), grande);
}

TEST_F(Sumas, ULong64SumReachingTwoToThe64IsReportedAndWrapsToZero)
{
    EXPECT_EQ(tras_sumar<FamiliaULong64>(arr_SumarULong64, UINT64_MAX, LONG64{1}), 0u);
    EXPECT_EQ(informes(), Textos{FUERA_ULONG64});
}

TEST_F(Sumas, ReportsNameTheFamilysModule)
{
    tras_sumar<FamiliaUShort>(arr_SumarUShort, 65534, SHORT{1});
    tras_sumar<FamiliaLong>(arr_SumarLong, 0, LONG{INT32_MAX});
    tras_sumar<FamiliaULong>(arr_SumarULong, 0, LONG{-1});
    tras_sumar<FamiliaLong64>(arr_SumarLong64, 0, LONG64{INT64_MAX});
    tras_sumar<FamiliaULong64>(arr_SumarULong64, 0, LONG64{-1});
    std::vector<std::string> ubicaciones;
    for (const InformeCapturado &informe : informes_completos())
        ubicaciones.push_back(informe.ubicacion);
    EXPECT_EQ(ubicaciones, (Textos{"a_ushort (ARRAYS.DLL)", "a_long (ARRAYS.DLL)",
                                   "a_ulong (ARRAYS.DLL)", "a_long64 (ARRAYS.DLL)",
                                   "a_ulong64 (ARRAYS.DLL)"}));
    EXPECT_EQ(informes(),
              (Textos{FUERA_USHORT, FUERA_LONG, FUERA_ULONG, FUERA_LONG64, FUERA_ULONG64}));
}

TEST_F(Sumas, SumAtAPositionPastTheEndIsReportedAndChangesNothing)
{
    ARRAY *array = array_con<FamiliaULong>({5});
    arr_SumarULong(array, 1, 5);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(contenido<FamiliaULong>(array), std::vector<ULONG>{5});
    arr_DestruyeULong(&array);
}

TEST_F(Sumas, SumOnAnArrayOfAnotherFamilyWithElementsOfTheSameSizeIsReportedAndDone)
{
    ARRAY *array = arr_CreaBOOL(1);
    arr_SumarUShort(array, 0, 1);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_GetBOOL(array, 0), CIERTO);
    arr_DestruyeBOOL(&array);
}

TEST_F(Sumas, SumOnAnArrayOfAnotherFamilyWithElementsOfAnotherSizeIsRefused)
{
    ARRAY *array = arr_CreaBOOL(1);
    arr_SumarLong(array, 0, 1);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_GetBOOL(array, 0), FALSO);
    arr_DestruyeBOOL(&array);
}

} // namespace
