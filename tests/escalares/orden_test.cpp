// The default orders that are not plain ascending numbers: Char orders as signed 8-bit values
// and UChar as unsigned ones on every platform; BOOL's default never answers "less", so it only
// partly orders.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

#include <vector>

namespace {

using Orden = PruebaArrays;

std::vector<BOOL> bools_ordenados(std::initializer_list<BOOL> valores)
{
    ARRAY *array = array_con<FamiliaBOOL>(valores);
    arr_QSortBOOL(array, nullptr);
    const std::vector<BOOL> resultado = contenido<FamiliaBOOL>(array);
    arr_DestruyeBOOL(&array);
    return resultado;
}

TEST_F(Orden, CharSortsSignedSo0x80ComesBefore0x7F)
{
    ARRAY *array = arr_CreaChar(0);
    arr_AppendChar(array, static_cast<char>(0x7F));
    arr_AppendChar(array, static_cast<char>(0x80));
    arr_AppendChar(array, 0);
    arr_QSortChar(array, nullptr);
    EXPECT_EQ(arr_GetChar(array, 0), static_cast<char>(0x80));
    EXPECT_EQ(arr_GetChar(array, 1), 0);
    EXPECT_EQ(arr_GetChar(array, 2), static_cast<char>(0x7F));
    arr_DestruyeChar(&array);
}

TEST_F(Orden, UCharSortsUnsignedSo0x7FComesBefore0x80)
{
    ARRAY *array = arr_CreaUChar(0);
    arr_AppendUChar(array, 0x80);
    arr_AppendUChar(array, 0x7F);
    arr_AppendUChar(array, 0);
    arr_QSortUChar(array, nullptr);
    EXPECT_EQ(arr_GetUChar(array, 0), 0);
    EXPECT_EQ(arr_GetUChar(array, 1), 0x7F);
    EXPECT_EQ(arr_GetUChar(array, 2), 0x80);
    arr_DestruyeUChar(&array);
}

TEST_F(Orden, BoolTrueFalseBecomesFalseTrue)
{
    EXPECT_EQ(bools_ordenados({CIERTO, FALSO}), (std::vector<BOOL>{FALSO, CIERTO}));
}

TEST_F(Orden, BoolFalseTrueStays)
{
    EXPECT_EQ(bools_ordenados({FALSO, CIERTO}), (std::vector<BOOL>{FALSO, CIERTO}));
}

TEST_F(Orden, BoolFalseTrueFalseIsLeftUnchanged)
{
    EXPECT_EQ(bools_ordenados({FALSO, CIERTO, FALSO}), (std::vector<BOOL>{FALSO, CIERTO, FALSO}));
}

TEST_F(Orden, BoolTrueFalseFalseTrueBecomesFalseTrueFalseTrue)
{
    EXPECT_EQ(bools_ordenados({CIERTO, FALSO, FALSO, CIERTO}),
              (std::vector<BOOL>{FALSO, CIERTO, FALSO, CIERTO}));
}

} // namespace
