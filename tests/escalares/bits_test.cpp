// Bit arrays: bits packed eight to a byte, counted in bits.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

using Bits = PruebaArrays;

std::vector<BOOL> bits_de(const ARRAY *array)
{
    std::vector<BOOL> bits;
    for (ULONG i = 0; i < arr_NumElemsBIT(array); ++i)
        bits.push_back(arr_GetBIT(array, i));
    return bits;
}

TEST_F(Bits, TenBitsAreTenFalseBitsInTwoBytes)
{
    ARRAY *array = arr_CreaBIT(10);
    EXPECT_EQ(arr_NumElemsBIT(array), 10u);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    EXPECT_EQ(bits_de(array), std::vector<BOOL>(10, FALSO));
    arr_DestruyeBIT(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Bits, AFalseBitAppendedAfterATrueFillReadsFalse)
{
    ARRAY *array = arr_CreaBIT(3);
    arr_InicializaBIT(array, CIERTO);
    arr_AppendBIT(array, FALSO);
    EXPECT_EQ(bits_de(array), (std::vector<BOOL>{CIERTO, CIERTO, CIERTO, FALSO}));
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, NineAppendedBitsUseTwoBytes)
{
    ARRAY *array = arr_CreaBIT(0);
    for (int i = 0; i < 9; ++i)
        arr_AppendBIT(array, i % 3 == 0 ? CIERTO : FALSO);
    EXPECT_EQ(arr_NumElemsBIT(array), 9u);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    EXPECT_EQ(bits_de(array),
              (std::vector<BOOL>{CIERTO, FALSO, FALSO, CIERTO, FALSO, FALSO, CIERTO, FALSO,
                                 FALSO}));
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, GetAtTheBitCountIsReported)
{
    ARRAY *array = arr_CreaBIT(4);
    EXPECT_EQ(arr_GetBIT(array, 4), FALSO);
    EXPECT_EQ(informes(), Textos{"pos < array->num_bits"});
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, SettingTheValueTwoSetsTheBit)
{
    ARRAY *array = arr_CreaBIT(8);
    arr_SetBIT(array, 5, 2);
    EXPECT_EQ(arr_GetBIT(array, 5), 1);
    EXPECT_EQ(array->buffer[0][0], 1 << 5);
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, BitZeroIsTheLowestBitOfTheFirstByte)
{
    ARRAY *array = arr_CreaBIT(16);
    arr_SetBIT(array, 0, CIERTO);
    arr_SetBIT(array, 15, CIERTO);
    EXPECT_EQ(static_cast<BYTE>(array->buffer[0][0]), 0x01);
    EXPECT_EQ(static_cast<BYTE>(array->buffer[0][1]), 0x80);
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, SettingFalseClearsOnlyThatBit)
{
    ARRAY *array = arr_CreaBIT(8);
    arr_InicializaBIT(array, CIERTO);
    arr_SetBIT(array, 3, FALSO);
    EXPECT_EQ(static_cast<BYTE>(array->buffer[0][0]), 0xF7);
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, APositionPastTheBitsInsideTheLastByteIsReportedAndStillRead)
{
    ARRAY *array = arr_CreaBIT(3);
    arr_InicializaBIT(array, CIERTO);
    EXPECT_EQ(arr_GetBIT(array, 6), CIERTO);
    EXPECT_EQ(informes(), Textos{"pos < array->num_bits"});
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, APositionPastTheStoredBytesIsReportedTwiceAndReadsFalse)
{
    ARRAY *array = arr_CreaBIT(3);
    arr_InicializaBIT(array, CIERTO);
    EXPECT_EQ(arr_GetBIT(array, 8), FALSO);
    EXPECT_EQ(informes(), (Textos{"pos < array->num_bits", "real_pos < array->num_elems"}));
    arr_SetBIT(array, 8, CIERTO);
    EXPECT_EQ(informes(), (Textos{"pos < array->num_bits", "real_pos < array->num_elems"}));
    EXPECT_EQ(size_t{array->num_elems}, 1u);
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, AppendIntoTheLastByteFollowsTheRowLayout)
{
    ARRAY *array = arr_CreaBIT(2048 * 8 + 1);
    ASSERT_EQ(size_t{array->num_filas}, 2u);
    arr_AppendBIT(array, CIERTO);
    EXPECT_EQ(size_t{array->num_elems}, 2049u);
    EXPECT_EQ(arr_GetBIT(array, 2048 * 8 + 1), CIERTO);
    EXPECT_EQ(arr_GetBIT(array, 2048 * 8), FALSO);
    arr_DestruyeBIT(&array);
}

// Get and set go on from the tag's report to the position's: the array holds no bits.
TEST_F(Bits, AnArrayOfAnotherTagIsReportedByItsTagAndTheBitPositionAndLeftAsItWas)
{
    ARRAY *array = arr_CreaBYTE(2);
    EXPECT_EQ(arr_GetBIT(array, 0), FALSO);
    arr_SetBIT(array, 0, CIERTO);
    arr_AppendBIT(array, CIERTO);
    EXPECT_EQ(informes(), (Textos{"array->tipo_elem == elem_BIT_NO_USAR", "pos < array->num_bits",
                                  "array->tipo_elem == elem_BIT_NO_USAR", "pos < array->num_bits",
                                  "array->tipo_elem == elem_BIT_NO_USAR"}));
    EXPECT_EQ(arr_NumElemsBYTE(array), 2u);
    EXPECT_EQ(arr_GetBYTE(array, 0), 0);
    arr_DestruyeBYTE(&array);
}

// The bytes that hold the bits are plain bytes: a byte read reports the tag and gives them.
TEST_F(Bits, AByteReadOfABitArrayIsReportedAndGivesTheStoredByte)
{
    ARRAY *array = arr_CreaBIT(10);
    arr_SetBIT(array, 1, CIERTO);
    arr_SetBIT(array, 3, CIERTO);
    EXPECT_EQ(arr_GetBYTE(array, 0), 0x0A);
    arr_SetBYTE(array, 0, 0xFF);
    EXPECT_EQ(informes(), Textos(2, "array->tipo_elem == tipo_elem"));
    EXPECT_EQ(arr_GetBIT(array, 0), FALSO) << "a byte write to a bit array is refused";
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, ANullHandleIsReportedFromTheBitModule)
{
    EXPECT_EQ(arr_GetBIT(nullptr, 0), FALSO);
    EXPECT_EQ(informes_completos().at(0).ubicacion, "a_bit (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(Bits, AppendDuringAWritingTraversalIsReportedAndStillAppends)
{
    ARRAY *array = arr_CreaBIT(1);
    array->en_bucle = CIERTO;
    arr_AppendBIT(array, CIERTO);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    array->en_bucle = FALSO;
    EXPECT_EQ(bits_de(array), (std::vector<BOOL>{FALSO, CIERTO}));
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, GetAndSetIgnoreTheTraversalGuards)
{
    ARRAY *array = arr_CreaBIT(2);
    array->en_bucle = CIERTO;
    array->en_bucle_lectura = CIERTO;
    arr_SetBIT(array, 1, CIERTO);
    EXPECT_EQ(arr_GetBIT(array, 1), CIERTO);
    array->en_bucle = FALSO;
    array->en_bucle_lectura = FALSO;
    arr_DestruyeBIT(&array);
}

TEST_F(Bits, ACopyKeepsTheBitCountAndTheBits)
{
    ARRAY *array = arr_CreaBIT(11);
    arr_SetBIT(array, 10, CIERTO);
    ARRAY *copia = arr_CopiaBIT(array);
    EXPECT_EQ(arr_NumElemsBIT(copia), 11u);
    EXPECT_EQ(bits_de(copia), bits_de(array));
    arr_DestruyeBIT(&array);
    arr_DestruyeBIT(&copia);
}

TEST_F(Bits, GrowingAndShrinkingCountInBits)
{
    ARRAY *array = arr_CreaBIT(3);
    arr_AumentaTamanyoBIT(array, 20);
    EXPECT_EQ(arr_NumElemsBIT(array), 20u);
    EXPECT_EQ(size_t{array->num_elems}, 3u);
    arr_ReduceTamanyoBIT(array, 9);
    EXPECT_EQ(arr_NumElemsBIT(array), 9u);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    arr_DestruyeBIT(&array);
}

} // namespace
