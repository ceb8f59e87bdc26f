// Equality that ignores letter case, per code point with Unicode's simple case folding, alike
// in UTF-8 and UTF-16; ill-formed UTF-8 compares bytewise, a lone UTF-16 surrogate as itself.
#include "soporte/prueba_arrays.h"

#include "services/cadenas.h"
#include "services/codificaciones.h"

#include <ostream>
#include <string>

namespace {

struct Par {
    const char *nombre;
    const char *a; // UTF-8
    const char *b;
    bool iguales;
};

void PrintTo(const Par &par, std::ostream *os) { *os << '"' << par.a << "\" / \"" << par.b << '"'; }

std::string nombre_de(const ::testing::TestParamInfo<Par> &info) { return info.param.nombre; }

std::u16string utf16(const char *utf8)
{
    std::u16string texto;
    int32_t punto;
    while ((punto = utf8_siguiente(utf8)) > 0) {
        if (punto >= 0x10000) {
            texto += static_cast<char16_t>(0xD800 + ((punto - 0x10000) >> 10));
            texto += static_cast<char16_t>(0xDC00 + ((punto - 0x10000) & 0x3FF));
        } else {
            texto += static_cast<char16_t>(punto);
        }
    }
    EXPECT_EQ(punto, 0) << "ill-formed UTF-8 in a test word";
    return texto;
}

class IgualesSinMayusculas : public PruebaArrays, public ::testing::WithParamInterface<Par> {};

TEST_P(IgualesSinMayusculas, Utf8StringsFoldCasePerCodePoint)
{
    const Par par = GetParam();
    EXPECT_EQ(cad_cadenas_iguales_may_o_min(par.a, par.b), par.iguales);
    EXPECT_EQ(cad_cadenas_iguales_may_o_min(par.b, par.a), par.iguales);
}

TEST_P(IgualesSinMayusculas, Utf16StringsFoldCasePerCodePoint)
{
    const Par par = GetParam();
    const std::u16string a = utf16(par.a);
    const std::u16string b = utf16(par.b);
    EXPECT_EQ(widestr_fun_cadenas_iguales_may_o_min(a.c_str(), b.c_str()), par.iguales);
    EXPECT_EQ(widestr_fun_cadenas_iguales_may_o_min(b.c_str(), a.c_str()), par.iguales);
}

const Par PALABRAS[] = {
    {"SpanishAcute", "ÁRBOL", "árbol", true},
    {"SpanishTilde", "ÑANDÚ", "ñandú", true},
    {"GermanDoubleS", "STRASSE", "strasse", true},
    {"GreekFinalSigma", "ΣΟΦΟΣ", "σοφος", true},
    {"GreekMedialSigma", "ΣΟΦΟΣ", "σοφοσ", true},
    {"GreekBothSigmas", "σοφος", "σοφοσ", true},
    {"Cyrillic", "МОСКВА", "москва", true},
    {"DeseretBeyondTheBmp", "\U00010400", "\U00010428", true},
    {"Empty", "", "", true},
    {"SharpSIsNotSimplyFoldedToSs", "straße", "STRASSE", false},
    {"AccentStillCounts", "árbol", "arbol", false},
    {"LongerDiffers", "abc", "abcd", false},
    {"PluralDiffers", "ÁRBOL", "árboles", false},
};

INSTANTIATE_TEST_SUITE_P(Palabras, IgualesSinMayusculas, ::testing::ValuesIn(PALABRAS), nombre_de);

using CadenasMalFormadas = PruebaArrays;

TEST_F(CadenasMalFormadas, IllFormedUtf8ComparesBytewise)
{
    EXPECT_TRUE(cad_cadenas_iguales_may_o_min("\xFF", "\xFF"));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min("A\xFF", "a\xFF"));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min("\xC3\x81\xFF", "\xC3\xA1\xFF"));
    EXPECT_TRUE(cad_cadenas_iguales_may_o_min("\xC0\xAF", "\xC0\xAF"));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min("\xC0\xAF", "/"));
}

TEST_F(CadenasMalFormadas, TruncatedUtf8SequenceStopsAtTheTerminator)
{
    EXPECT_TRUE(cad_cadenas_iguales_may_o_min("\xC3", "\xC3"));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min("\xC3", "\xC3\x81"));
    EXPECT_TRUE(cad_cadenas_iguales_may_o_min("ab\xE2\x82", "ab\xE2\x82"));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min("ab\xE2\x82", "AB\xE2\x82"));
}

TEST_F(CadenasMalFormadas, LoneUtf16SurrogateComparesAsItself)
{
    EXPECT_TRUE(widestr_fun_cadenas_iguales_may_o_min(u"\xD800", u"\xD800"));
    EXPECT_FALSE(widestr_fun_cadenas_iguales_may_o_min(u"\xD800", u"\xDC00"));
    EXPECT_FALSE(widestr_fun_cadenas_iguales_may_o_min(u"\xD800", u"\xD800\xDC00"));
    EXPECT_TRUE(widestr_fun_cadenas_iguales_may_o_min(u"a\xDC00", u"A\xDC00"));
    EXPECT_TRUE(widestr_fun_cadenas_iguales_may_o_min(u"x\xD801", u"X\xD801"));
    EXPECT_FALSE(widestr_fun_cadenas_iguales_may_o_min(u"x\xD801", u"x"));
}

TEST_F(CadenasMalFormadas, NullEqualsOnlyNull)
{
    EXPECT_TRUE(cad_cadenas_iguales_may_o_min(nullptr, nullptr));
    EXPECT_FALSE(cad_cadenas_iguales_may_o_min(nullptr, ""));
    EXPECT_TRUE(widestr_fun_cadenas_iguales_may_o_min(nullptr, nullptr));
    EXPECT_FALSE(widestr_fun_cadenas_iguales_may_o_min(u"", nullptr));
}

} // namespace
