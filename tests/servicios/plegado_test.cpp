// The table of simple case folding: notable folds, written here from the Unicode Character
// Database's CaseFolding.txt (simple and common lines only), and the code points left alone.
#include "services/plegado.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Plegado, AsciiAndLatinCapitalsFoldToSmallLetters)
{
    EXPECT_EQ(plegado_simple(U'A'), U'a');
    EXPECT_EQ(plegado_simple(U'Z'), U'z');
    EXPECT_EQ(plegado_simple(U'\u00D1'), U'\u00F1'); // Ñ
    EXPECT_EQ(plegado_simple(U'\u00C1'), U'\u00E1'); // Á
    EXPECT_EQ(plegado_simple(U'a'), U'a');
    EXPECT_EQ(plegado_simple(U'0'), U'0');
}

TEST(Plegado, GreekSigmasFoldTogether)
{
    EXPECT_EQ(plegado_simple(U'\u03A3'), U'\u03C3'); // capital sigma
    EXPECT_EQ(plegado_simple(U'\u03C2'), U'\u03C3'); // final sigma
}

TEST(Plegado, SimpleFoldsOfLettersWithAFullFoldToo)
{
    EXPECT_EQ(plegado_simple(U'\u1E9E'), U'\u00DF'); // capital sharp s: S line
    EXPECT_EQ(plegado_simple(U'\u00DF'), U'\u00DF'); // sharp s: only a full fold
    EXPECT_EQ(plegado_simple(U'\u0130'), U'\u0130'); // dotted capital I: only full and Turkic folds
}

TEST(Plegado, FoldsOutsideLatinAndAboveTheBasicPlane)
{
    EXPECT_EQ(plegado_simple(U'\u01C5'), U'\u01C6');     // titlecase digraph Dž
    EXPECT_EQ(plegado_simple(U'\u212A'), U'k');          // Kelvin sign
    EXPECT_EQ(plegado_simple(U'\u1E9B'), U'\u1E61');     // long s with dot above
    EXPECT_EQ(plegado_simple(U'\u13F8'), U'\u13F0');     // Cherokee small ye
    EXPECT_EQ(plegado_simple(U'\uAB70'), U'\u13A0');     // Cherokee small a to its capital
    EXPECT_EQ(plegado_simple(U'\U00010400'), U'\U00010428'); // Deseret
}

TEST(Plegado, CodePointsWithoutAFoldAndPastUnicodeAreThemselves)
{
    EXPECT_EQ(plegado_simple(U'\u4E2D'), U'\u4E2D');
    EXPECT_EQ(plegado_simple(char32_t{0xD800}), char32_t{0xD800});
    EXPECT_EQ(plegado_simple(char32_t{0x10FFFF}), char32_t{0x10FFFF});
    EXPECT_EQ(plegado_simple(char32_t{0x110000}), char32_t{0x110000});
}

TEST(Plegado, TableNamesTheUnicodeVersionItFollows)
{
    EXPECT_EQ(std::string(PLEGADO_VERSION_UNICODE), "15.0.0");
}

} // namespace
