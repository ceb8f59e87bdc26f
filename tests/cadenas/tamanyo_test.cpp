// Growing and shrinking string arrays: the narrow growth fills empty strings and returns the new
// count, the wide growth (the shared one) leaves NULL elements, and a shrink frees the strings it
// cuts off, skipping NULL ones.
#include "cadenas/anchura.h"

#include "services/memoria.h"

namespace {

using CrecimientoEstrecho = PruebaCadenas<Estrecha>;
using CrecimientoAncho = PruebaCadenas<Ancha>;

TEST_F(CrecimientoEstrecho, GrowthFromTwoToFiveGivesThreeEmptyStrings)
{
    ARRAY *array = crea_con({"a", "b"});
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 5), 5u);
    EXPECT_EQ(lee(array), lista({"a", "b", "", "", ""}));
    EXPECT_NE(arr_GetCADENA(array, 2), arr_GetCADENA(array, 3));
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoAncho, GrowthFromTwoToFiveGivesThreeNullElements)
{
    ARRAY *array = crea_con({u"a", u"b"});
    arr_AumentaTamanyoCADENA_u(array, 5);
    EXPECT_EQ(lee(array), lista({u"a", u"b", nullptr, nullptr, nullptr}));
    arr_DestruyeCADENA_u(&array);
}

TEST_F(CrecimientoEstrecho, GrowthToTheCurrentSizeReportsAndChangesNothing)
{
    ARRAY *array = crea_con({"a", "b"});
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 2), 2u);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo > num_elems_ant"});
    EXPECT_EQ(lee(array), lista({"a", "b"}));
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoEstrecho, GrowthToASmallerSizeReportsHereAndInTheEngine)
{
    ARRAY *array = crea_con({"a", "b", "c"});
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 1), 3u);
    EXPECT_EQ(informes(), (Textos{"nuevo_tamanyo > num_elems_ant", "nuevo_tamanyo >= array->num_elems",
                                  "nuevo_tamanyo > array->num_elems"}));
    EXPECT_EQ(lee(array), lista({"a", "b", "c"}));
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoEstrecho, GrowthReportIsMadeByTheNarrowModule)
{
    ARRAY *array = crea_con({"a"});
    arr_AumentaTamanyoCADENA(array, 1);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_cadena (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo > num_elems_ant"});
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoEstrecho, GrowthOfANullArrayReportsOnceAndReturnsZero)
{
    EXPECT_EQ(arr_AumentaTamanyoCADENA(nullptr, 3), 0u);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(CrecimientoEstrecho, GrowthOfAnArrayOfAnotherTypeReportsTheTagAndChangesNothing)
{
    ARRAY *array = arr_CreaDouble(1);
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 3), 0u);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsDouble(array), 1u);
    arr_DestruyeDouble(&array);
}

TEST_F(CrecimientoEstrecho, GrowthOfAnEmptyArrayFillsEveryElement)
{
    ARRAY *array = arr_CreaCADENA(0);
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 300), 300u);
    EXPECT_STREQ(arr_GetCADENA(array, 0), "");
    EXPECT_STREQ(arr_GetCADENA(array, 299), "");
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoEstrecho, ShrinkToZeroThenGrowGivesEmptyStringsNotOldOnes)
{
    ARRAY *array = crea_con({"a", "b", "c"});
    arr_ReduceTamanyoCADENA(array, 0);
    EXPECT_EQ(arr_AumentaTamanyoCADENA(array, 2), 2u);
    EXPECT_EQ(lee(array), lista({"", ""}));
    arr_DestruyeCADENA(&array);
}

TEST_F(CrecimientoAncho, ShrinkThenGrowGivesNullElementsNotOldOnes)
{
    ARRAY *array = crea_con({u"a", u"b", u"c"});
    arr_ReduceTamanyoCADENA_u(array, 1);
    arr_AumentaTamanyoCADENA_u(array, 3);
    EXPECT_EQ(lee(array), lista({u"a", nullptr, nullptr}));
    arr_DestruyeCADENA_u(&array);
}

template <typename A> using Reduccion = PruebaCadenas<A>;
TYPED_TEST_SUITE(Reduccion, Anchuras, NombreAnchura);

TYPED_TEST(Reduccion, ShrinkFreesTheCutStringsAndSkipsNullOnes)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), nullptr, TXT("b"), nullptr, TXT("c")});
    const size_t bloques = zarpspy_bloques_vivos();
    A::ReduceTamanyo(array, 1);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques - 2);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a")}));
    A::Destruye(&array);
}

TYPED_TEST(Reduccion, ShrinkToZeroDestroysEveryString)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("b")});
    A::ReduceTamanyo(array, 0);
    EXPECT_EQ(A::NumElems(array), 0u);
    A::Destruye(&array);
}

TYPED_TEST(Reduccion, ShrinkOfAnArrayOfOnlyNullElementsFreesNothing)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(4);
    const size_t bloques = zarpspy_bloques_vivos();
    A::ReduceTamanyo(array, 2);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    EXPECT_EQ(this->lee(array), this->lista({nullptr, nullptr}));
    A::Destruye(&array);
}

TYPED_TEST(Reduccion, ShrinkAcrossRowsFreesEveryCutString)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendN(array, 600, TXT("x"));
    const size_t bloques = zarpspy_bloques_vivos();
    A::ReduceTamanyo(array, 100);
    EXPECT_LE(zarpspy_bloques_vivos(), bloques - 500);
    EXPECT_EQ(A::NumElems(array), 100u);
    A::Destruye(&array);
}

} // namespace
