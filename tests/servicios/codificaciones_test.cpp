// Conversions to UTF-8 and the validity test of UTF-8.
#include "services/codificaciones.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8Valido, AcceptsAsciiAndWellFormedSequences)
{
    EXPECT_TRUE(utf8_valido(""));
    EXPECT_TRUE(utf8_valido("plain"));
    EXPECT_TRUE(utf8_valido("direcci\xC3\xB3n \xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF"));
}

TEST(Utf8Valido, RefusesWindows1252Bytes)
{
    EXPECT_FALSE(utf8_valido("direcci\xF3n"));
    EXPECT_FALSE(utf8_valido("v\xE1lida"));
}

TEST(Utf8Valido, RefusesOverlongSurrogateTooLargeAndCutSequences)
{
    EXPECT_FALSE(utf8_valido("\xC0\xAF"));         // overlong '/'
    EXPECT_FALSE(utf8_valido("\xE0\x80\xAF"));     // overlong '/'
    EXPECT_FALSE(utf8_valido("\xED\xA0\x80"));     // U+D800
    EXPECT_FALSE(utf8_valido("\xF4\x90\x80\x80")); // above U+10FFFF
    EXPECT_FALSE(utf8_valido("\xE2\x82"));         // cut by the end
    EXPECT_FALSE(utf8_valido("\x80"));             // a lone continuation byte
}

TEST(Cp1252AUtf8, ConvertsLatinLettersAndTheBytesWhereItDepartsFromLatin1)
{
    EXPECT_EQ(cp1252_a_utf8("direcci\xF3n no v\xE1lida"), "direcci\xC3\xB3n no v\xC3\xA1lida");
    EXPECT_EQ(cp1252_a_utf8("\x80\x99\x9F"), "\xE2\x82\xAC\xE2\x84\xA2\xC5\xB8");
    EXPECT_EQ(cp1252_a_utf8("\x81"), "\xEF\xBF\xBD"); // unassigned
}

TEST(Utf16AUtf8, ConvertsPairsAndReplacesUnpairedSurrogates)
{
    EXPECT_EQ(utf16_a_utf8(u"\u00D1and\u00FA"), "\xC3\x91\x61nd\xC3\xBA");
    EXPECT_EQ(utf16_a_utf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    const WCHAR sueltos[] = {0xD800, u'a', 0xDC00, 0};
    EXPECT_EQ(utf16_a_utf8(sueltos), "\xEF\xBF\xBD\x61\xEF\xBF\xBD");
}

} // namespace
