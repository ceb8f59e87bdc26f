// Joining the strings of an array into one new string: an opening character, the strings with a
// separator between them, a closing character; a 0 character is left out.
#include "cadenas/anchura.h"

namespace {

template <typename A> class Referencias : public PruebaCadenas<A> {
public:
    using C = typename A::C;

    // The text that arr_cadena_de_referencias gives for an array of `cadenas` (freed after).
    static typename PruebaCadenas<A>::Elemento une(std::initializer_list<const C *> cadenas,
                                                   C inicio, C separador, C fin)
    {
        ARRAY *array = PruebaCadenas<A>::crea_con(cadenas);
        C *unida = A::Referencias(array, inicio, separador, fin);
        const auto texto = PruebaCadenas<A>::elemento(unida);
        A::libera(unida);
        A::Destruye(&array);
        return texto;
    }
};
TYPED_TEST_SUITE(Referencias, Anchuras, NombreAnchura);

TYPED_TEST(Referencias, JoinPutsOpeningSeparatorsAndClosing)
{
    EXPECT_EQ(this->une({TXT("a"), TXT("b"), TXT("c")}, '(', ',', ')'), TXT("(a,b,c)"));
}

TYPED_TEST(Referencias, JoinWithoutCharactersConcatenatesTheStrings)
{
    EXPECT_EQ(this->une({TXT("a"), TXT("b"), TXT("c")}, 0, 0, 0), TXT("abc"));
}

TYPED_TEST(Referencias, JoinOfOneElementHasNoSeparator)
{
    EXPECT_EQ(this->une({TXT("x")}, '[', ';', ']'), TXT("[x]"));
}

TYPED_TEST(Referencias, JoinOfAnEmptyArrayReportsAndGivesTheOpeningCharacter)
{
    EXPECT_EQ(this->une({}, '(', ',', ')'), TXT("("));
    EXPECT_EQ(this->informes(), Textos{"num_cadenas > 0"});
}

TYPED_TEST(Referencias, JoinOfAnEmptyArrayWithoutOpeningGivesAnEmptyString)
{
    EXPECT_EQ(this->une({}, 0, ',', ')'), TXT(""));
    EXPECT_EQ(this->informes(), Textos{"num_cadenas > 0"});
}

TYPED_TEST(Referencias, JoinReportIsMadeByTheFamilyModule)
{
    this->une({}, '(', ',', ')');
    ASSERT_EQ(this->informes_completos().size(), 1u);
    EXPECT_EQ(this->informes_completos()[0].ubicacion, TypeParam::ubicacion);
    EXPECT_EQ(this->informes(), Textos{"num_cadenas > 0"});
}

TYPED_TEST(Referencias, JoinTakesNullElementsAsEmpty)
{
    EXPECT_EQ(this->une({TXT("a"), nullptr, TXT("b")}, 0, '|', 0), TXT("a||b"));
}

TYPED_TEST(Referencias, JoinKeepsNonAsciiText)
{
    EXPECT_EQ(this->une({TXT("ñandú"), TXT("Ωμέγα")}, '<', ' ', '>'), TXT("<ñandú Ωμέγα>"));
}

TYPED_TEST(Referencias, JoinOfANullArrayReportsAndReturnsNull)
{
    EXPECT_EQ(TypeParam::Referencias(nullptr, '(', ',', ')'), nullptr);
    EXPECT_EQ(this->informes(), Textos{"(array) != NULL"});
}

using ReferenciasAnchas = Referencias<Ancha>;

TEST_F(ReferenciasAnchas, WideJoinTakesWideCharacters)
{
    EXPECT_EQ(une({u"a", u"b"}, u'«', u'·', u'»'), u"«a·b»");
}

} // namespace
