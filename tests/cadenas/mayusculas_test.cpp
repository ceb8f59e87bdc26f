// The MayMin searches ignore letter case in Spanish, German, Greek and Cyrillic text, in UTF-8
// and in UTF-16, with simple case folding per code point; ill-formed UTF-8 compares byte for
// byte and a lone UTF-16 surrogate only equals itself.
#include "cadenas/anchura.h"

#include <utility>

namespace {

// Where the MayMin search finds a key, and where the exact search does; NO: nowhere.
using Posiciones = std::pair<ULONG, ULONG>;
constexpr ULONG NO = ARR_ULONG_MAX;

template <typename A> class SinMayusculas : public PruebaCadenas<A> {
public:
    using C = typename A::C;

    // The positions of `clave` in an array of `cadenas`.
    static Posiciones busca(std::initializer_list<const C *> cadenas, const C *clave)
    {
        ARRAY *array = PruebaCadenas<A>::crea_con(cadenas);
        const Posiciones encontradas{A::BuscarMayMin(array, clave), A::Buscar(array, clave)};
        A::Destruye(&array);
        return encontradas;
    }
};
TYPED_TEST_SUITE(SinMayusculas, Anchuras, NombreAnchura);

TYPED_TEST(SinMayusculas, SpanishCapitalWithAcuteMatchesLowerCase)
{
    EXPECT_EQ(this->busca({TXT("ÁRBOL")}, TXT("árbol")), Posiciones(0, NO));
}

TYPED_TEST(SinMayusculas, SpanishCapitalsWithTildeAndAcuteMatchLowerCase)
{
    EXPECT_EQ(this->busca({TXT("x"), TXT("ÑANDÚ")}, TXT("ñandú")), Posiciones(1, NO));
}

TYPED_TEST(SinMayusculas, SpanishAccentIsNotIgnored)
{
    EXPECT_EQ(this->busca({TXT("ÁRBOL"), TXT("ÑANDÚ")}, TXT("arbol")), Posiciones(NO, NO));
    EXPECT_EQ(this->busca({TXT("ÁRBOL"), TXT("ÑANDÚ")}, TXT("nandu")), Posiciones(NO, NO));
}

TYPED_TEST(SinMayusculas, GermanUmlautsMatchLowerCase)
{
    EXPECT_EQ(this->busca({TXT("ÄPFEL"), TXT("ÖL"), TXT("ÜBER")}, TXT("über")), Posiciones(2, NO));
}

TYPED_TEST(SinMayusculas, GermanCapitalSharpSMatchesSharpS)
{
    EXPECT_EQ(this->busca({TXT("GROẞ")}, TXT("groß")), Posiciones(0, NO));
}

TYPED_TEST(SinMayusculas, GermanSharpSDoesNotMatchDoubleS)
{
    EXPECT_EQ(this->busca({TXT("STRASSE")}, TXT("straße")), Posiciones(NO, NO));
}

TYPED_TEST(SinMayusculas, GreekCapitalSigmaMatchesFinalSigma)
{
    EXPECT_EQ(this->busca({TXT("ΛΟΓΟΣ")}, TXT("λογος")), Posiciones(0, NO));
}

TYPED_TEST(SinMayusculas, GreekCapitalSigmaMatchesMedialSigma)
{
    EXPECT_EQ(this->busca({TXT("ΛΟΓΟΣ")}, TXT("λογοσ")), Posiciones(0, NO));
}

TYPED_TEST(SinMayusculas, GreekCapitalWithTonosMatchesLowerCaseWithTonosOnly)
{
    EXPECT_EQ(this->busca({TXT("ΆΝΘΡΩΠΟΣ")}, TXT("άνθρωπος")), Posiciones(0, NO));
    EXPECT_EQ(this->busca({TXT("ΆΝΘΡΩΠΟΣ")}, TXT("ανθρωπος")), Posiciones(NO, NO));
}

TYPED_TEST(SinMayusculas, CyrillicCapitalsMatchLowerCase)
{
    EXPECT_EQ(this->busca({TXT("МОСКВА"), TXT("ЁЖИК")}, TXT("ёжик")), Posiciones(1, NO));
}

TYPED_TEST(SinMayusculas, LatinLetterDoesNotMatchItsCyrillicLookalike)
{
    EXPECT_EQ(this->busca({TXT("A")}, TXT("а")), Posiciones(NO, NO));
}

TYPED_TEST(SinMayusculas, LettersBeyondTheBasicPlaneMatchTheirOtherCase)
{
    EXPECT_EQ(this->busca({TXT("\U00010400")}, TXT("\U00010428")), Posiciones(0, NO));
}

TYPED_TEST(SinMayusculas, ExistsUniqueMayMinFindsAGreekWordOnce)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("ΑΘΗΝΑ"), TXT("ΣΠΑΡΤΗ")});
    ULONG posicion = 0;
    EXPECT_EQ(A::ExisteUnicaMayMin(array, TXT("σπαρτη"), &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    A::Destruye(&array);
}

using Utf8MalFormado = SinMayusculas<Estrecha>;

TEST_F(Utf8MalFormado, IllFormedStringDoesNotMatchItsOtherCase)
{
    EXPECT_EQ(busca({"\xC3(ABC"}, "\xC3(abc"), Posiciones(NO, NO));
}

TEST_F(Utf8MalFormado, IllFormedStringMatchesItsOwnBytes)
{
    EXPECT_EQ(busca({"x", "A\xFF"}, "A\xFF"), Posiciones(1, 1));
}

TEST_F(Utf8MalFormado, LettersBeforeAnIllFormedByteAreComparedByteForByte)
{
    EXPECT_EQ(busca({"A\xFF"}, "a\xFF"), Posiciones(NO, NO));
}

TEST_F(Utf8MalFormado, SequenceCutByTheTerminatorComparesByteForByte)
{
    EXPECT_EQ(busca({"\xC3\x81RBOL\xE2\x82"}, "\xC3\xA1rbol\xE2\x82"), Posiciones(NO, NO));
    EXPECT_EQ(busca({"\xC3\x81RBOL\xE2\x82"}, "\xC3\x81RBOL\xE2\x82"), Posiciones(0, 0));
}

TEST_F(Utf8MalFormado, IllFormedKeyDoesNotMatchAWellFormedElement)
{
    EXPECT_EQ(busca({"\xC3\xA1rbol"}, "\xC3\x81RBOL\xFF"), Posiciones(NO, NO));
}

TEST_F(Utf8MalFormado, LoneLeadByteMatchesOnlyItself)
{
    EXPECT_EQ(busca({"\xC3\xA1", "\xC3"}, "\xC3"), Posiciones(1, 1));
}

using Utf16MalFormado = SinMayusculas<Ancha>;

TEST_F(Utf16MalFormado, LoneSurrogateMatchesOnlyItself)
{
    EXPECT_EQ(busca({u"\xD800", u"\xDC00"}, u"\xDC00"), Posiciones(1, 1));
    EXPECT_EQ(busca({u"\xD800"}, u"\xD800\xDC00"), Posiciones(NO, NO));
    EXPECT_EQ(busca({u"\xD800"}, u"\xD801"), Posiciones(NO, NO));
}

TEST_F(Utf16MalFormado, LettersAroundALoneSurrogateStillIgnoreCase)
{
    EXPECT_EQ(busca({u"\xD800" u"ABC"}, u"\xD800" u"abc"), Posiciones(0, NO));
    EXPECT_EQ(busca({u"ÁRBOL\xDBFF"}, u"árbol\xDBFF"), Posiciones(0, NO));
    EXPECT_EQ(busca({u"ÁRBOL\xDBFF"}, u"árbol"), Posiciones(NO, NO));
}

} // namespace
