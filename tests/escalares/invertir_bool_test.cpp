// arr_InvertirBOOL reverses the order of the elements in place; it does not negate them.
#include "soporte/prueba_arrays.h"

#include "escalares/familias.h"

#include <vector>

namespace {

using InvertirBOOL = PruebaArrays;

TEST_F(InvertirBOOL, FiveElementsKeepTheMiddleOneInPlace)
{
    ARRAY *array = array_con<FamiliaBOOL>({CIERTO, CIERTO, FALSO, CIERTO, FALSO});
    arr_InvertirBOOL(array);
    EXPECT_EQ(contenido<FamiliaBOOL>(array),
              (std::vector<BOOL>{FALSO, CIERTO, FALSO, CIERTO, CIERTO}));
    arr_DestruyeBOOL(&array);
}

TEST_F(InvertirBOOL, AnEvenCountIsReversedWithoutNegation)
{
    ARRAY *array = array_con<FamiliaBOOL>({CIERTO, FALSO, FALSO, FALSO});
    arr_InvertirBOOL(array);
    EXPECT_EQ(contenido<FamiliaBOOL>(array), (std::vector<BOOL>{FALSO, FALSO, FALSO, CIERTO}));
    arr_DestruyeBOOL(&array);
}

TEST_F(InvertirBOOL, ZeroOrOneElementIsLeftAsItIs)
{
    ARRAY *vacio = array_con<FamiliaBOOL>({});
    ARRAY *uno = array_con<FamiliaBOOL>({CIERTO});
    arr_InvertirBOOL(vacio);
    arr_InvertirBOOL(uno);
    EXPECT_EQ(arr_NumElemsBOOL(vacio), 0u);
    EXPECT_EQ(contenido<FamiliaBOOL>(uno), std::vector<BOOL>{CIERTO});
    arr_DestruyeBOOL(&vacio);
    arr_DestruyeBOOL(&uno);
}

TEST_F(InvertirBOOL, ElementsInEveryRowAreReversed)
{
    ARRAY *array = arr_CreaBOOL(3000);
    arr_SetBOOL(array, 0, CIERTO);
    arr_SetBOOL(array, 1100, CIERTO);
    arr_InvertirBOOL(array);
    EXPECT_EQ(arr_GetBOOL(array, 2999), CIERTO);
    EXPECT_EQ(arr_GetBOOL(array, 1899), CIERTO);
    EXPECT_EQ(arr_GetBOOL(array, 0), FALSO);
    EXPECT_EQ(arr_GetBOOL(array, 1100), FALSO);
    arr_DestruyeBOOL(&array);
}

} // namespace
