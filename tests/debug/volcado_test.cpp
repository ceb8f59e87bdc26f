// The text dump: the header line, the line of every element type, the messages for NULL and
// unreadable handles, and the cut of long lines.
#include "debug/salidas.h"

#include <climits>
#include <cstdint>
#include <string>

namespace {

using Volcado = PruebaDebug;

const std::string NO_IMPLEMENTADO = "\r\nTipo de array no implementado.\r\n";

TEST_F(Volcado, TwoPointArrayCountsItsLinesFromZeroPaddedToTwo)
{
    ARRAY *array = arr_CreaPunto2D(0);
    arr_AppendPunto2D(array, 1.5, -2);
    arr_AppendPunto2D(array, 3, 4.25);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n",
                                    "[ 0]: \tx=1.500000, \ty=-2.000000\r\n",
                                    "[ 1]: \tx=3.000000, \ty=4.250000\r\n"}));
    arr_DestruyePunto2D(&array);
}

TEST_F(Volcado, LongArrayOfThreeCountsItsLinesFromOne)
{
    ARRAY *array = arr_CreaLong(0);
    arr_AppendLong(array, 7);
    arr_AppendLong(array, INT32_MIN);
    arr_AppendLong(array, INT32_MAX);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 3 elementos:\r\n", "[1]: 7\r\n",
                                    "[2]: -2147483648\r\n", "[3]: 2147483647\r\n"}));
    arr_DestruyeLong(&array);
}

TEST_F(Volcado, BytesUnsignedAndSignedCharactersPrintAsZeroTo255)
{
    ARRAY *bytes = arr_CreaBYTE(0);
    arr_AppendBYTE(bytes, 200);
    ARRAY *uchars = arr_CreaUChar(0);
    arr_AppendUChar(uchars, 255);
    ARRAY *chars = arr_CreaChar(0);
    arr_AppendChar(chars, -1);
    arr_AppendChar(chars, 'A');
    debugarr_outputDebug(bytes);
    debugarr_outputDebug(uchars);
    debugarr_outputDebug(chars);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n", "[1]: 200\r\n",
                                    "\r\nArray de 1 elementos:\r\n", "[1]: 255\r\n",
                                    "\r\nArray de 2 elementos:\r\n", "[1]: 255\r\n", "[2]: 65\r\n"}));
    arr_DestruyeBYTE(&bytes);
    arr_DestruyeUChar(&uchars);
    arr_DestruyeChar(&chars);
}

TEST_F(Volcado, BooleansPrintCiertoOnlyForOne)
{
    ARRAY *array = arr_CreaBOOL(0);
    arr_AppendBOOL(array, CIERTO);
    arr_AppendBOOL(array, FALSO);
    arr_AppendBOOL(array, 2);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 3 elementos:\r\n", "[1]: CIERTO\r\n",
                                    "[2]: FALSO\r\n", "[3]: FALSO\r\n"}));
    arr_DestruyeBOOL(&array);
}

TEST_F(Volcado, ShortsPrintUnsignedOrSignExtended)
{
    ARRAY *sin_signo = arr_CreaUShort(0);
    arr_AppendUShort(sin_signo, 65535);
    ARRAY *con_signo = arr_CreaShort(0);
    arr_AppendShort(con_signo, -32768);
    debugarr_outputDebug(sin_signo);
    debugarr_outputDebug(con_signo);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n", "[1]: 65535\r\n",
                                    "\r\nArray de 1 elementos:\r\n", "[1]: -32768\r\n"}));
    arr_DestruyeUShort(&sin_signo);
    arr_DestruyeShort(&con_signo);
}

TEST_F(Volcado, ThirtyTwoAndSixtyFourBitIntegersPrintWhole)
{
    ARRAY *ulong = arr_CreaULong(0);
    arr_AppendULong(ulong, UINT32_MAX);
    ARRAY *ulong64 = arr_CreaULong64(0);
    arr_AppendULong64(ulong64, UINT64_MAX);
    ARRAY *long64 = arr_CreaLong64(0);
    arr_AppendLong64(long64, INT64_MIN);
    debugarr_outputDebug(ulong);
    debugarr_outputDebug(ulong64);
    debugarr_outputDebug(long64);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n", "[1]: 4294967295\r\n",
                                    "\r\nArray de 1 elementos:\r\n",
                                    "[1]: 18446744073709551615\r\n",
                                    "\r\nArray de 1 elementos:\r\n",
                                    "[1]: -9223372036854775808\r\n"}));
    arr_DestruyeULong(&ulong);
    arr_DestruyeULong64(&ulong64);
    arr_DestruyeLong64(&long64);
}

TEST_F(Volcado, DoublesPrintWithSixDecimals)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_AppendDouble(array, 3.14159265);
    arr_AppendDouble(array, -0.5);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n", "[1]: 3.141593\r\n",
                                    "[2]: -0.500000\r\n"}));
    arr_DestruyeDouble(&array);
}

TEST_F(Volcado, ThreeDimensionalPointsCountFromOne)
{
    ARRAY *array = arr_CreaPunto3D(0);
    arr_AppendPunto3D(array, 1, 2, 3);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n",
                                    "[ 1]: \tx=1.000000, \ty=2.000000, \tz=3.000000\r\n"}));
    arr_DestruyePunto3D(&array);
}

TEST_F(Volcado, PointsWithPrivateDataPrintAsPlainPoints)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    arr_AppendPunto2DXPriv(array, 0.25, 8, nullptr);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n",
                                    "[ 0]: \tx=0.250000, \ty=8.000000\r\n"}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Volcado, NarrowStringsPrintBetweenDoubleQuotesByteForByte)
{
    ARRAY *array = arr_CreaCADENA(0);
    arr_AppendCADENA(array, "direcci\xC3\xB3n \"uno\"");
    arr_AppendCADENA(array, "");
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n",
                                    "[1]: \"direcci\xC3\xB3n \"uno\"\"\r\n", "[2]: \"\"\r\n"}));
    arr_DestruyeCADENA(&array);
}

TEST_F(Volcado, NullStringElementPrintsAsTheRuntimeDoes)
{
    ARRAY *array = arr_CreaCADENA(1);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 1 elementos:\r\n", "[1]: \"(null)\"\r\n"}));
    arr_DestruyeCADENA(&array);
}

TEST_F(Volcado, WideStringLinesGoThroughTheWideSink)
{
    ARRAY *array = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(array, u"\u00D1and\u00FA \U0001F600");
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), (Salidas{{false, "\r\nArray de 1 elementos:\r\n"},
                                  {true, "[1]: \"\xC3\x91\x61nd\xC3\xBA \xF0\x9F\x98\x80\"\r\n"}}));
    arr_DestruyeCADENA_u(&array);
}

TEST_F(Volcado, LinesLongerThanTheBufferAreCutAt65535Characters)
{
    const std::string larga(70000, 'x');
    ARRAY *array = arr_CreaCADENA(0);
    arr_AppendCADENA(array, larga.c_str());
    debugarr_outputDebug(array);
    const Salidas escritas = salidas();
    ASSERT_EQ(escritas.size(), 2u);
    EXPECT_EQ(escritas[1].texto, "[1]: \"" + larga.substr(0, 65535 - 6));
    arr_DestruyeCADENA(&array);
}

TEST_F(Volcado, WideLinesAreCutAt65535CodeUnits)
{
    const std::u16string larga(70000, u'y');
    ARRAY *array = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(array, larga.c_str());
    debugarr_outputDebug(array);
    const Salidas escritas = salidas();
    ASSERT_EQ(escritas.size(), 2u);
    EXPECT_EQ(escritas[1].texto, "[1]: \"" + std::string(65535 - 6, 'y'));
    arr_DestruyeCADENA_u(&array);
}

TEST_F(Volcado, BitArrayDumpsOnlyTheHeaderLineAndNotImplemented)
{
    ARRAY *array = arr_CreaBIT(0);
    for (int i = 0; i < 9; ++i)
        arr_AppendBIT(array, CIERTO);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 9 elementos:\r\n", NO_IMPLEMENTADO}));
    arr_DestruyeBIT(&array);
}

TEST_F(Volcado, PointerArrayDumpsOnlyTheHeaderLineAndNotImplemented)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    arr_AppendPunteroConTipo(array, nullptr);
    arr_AppendPunteroConTipo(array, nullptr);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n", NO_IMPLEMENTADO}));
    arr_DestruyePunteroConTipo(&array);
}

TEST_F(Volcado, EmptyArrayDumpsItsHeaderLineOnly)
{
    ARRAY *array = arr_CreaDouble(0);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 0 elementos:\r\n"}));
    arr_DestruyeDouble(&array);
}

TEST_F(Volcado, ElementsOfManyRowsAreListedInPositionOrder)
{
    ARRAY *array = arr_CreaLong(0);
    for (LONG i = 0; i < 1000; ++i)
        arr_InsertarLong(array, static_cast<ULONG>(i / 2), i);
    debugarr_outputDebug(array);
    const Salidas escritas = salidas();
    ASSERT_EQ(escritas.size(), 1001u);
    for (ULONG i = 0; i < 1000; ++i)
        ASSERT_EQ(escritas[i + 1].texto, "[" + std::to_string(i + 1) + "]: " +
                                             std::to_string(arr_GetLong(array, i)) + "\r\n");
    arr_DestruyeLong(&array);
}

} // namespace
