// Arrays of arrays: pointer arrays whose elements are structure arrays. Destroying, shrinking and
// deleting release the inner arrays and their structures; copying keeps NULL inner arrays while
// concatenating skips them.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

using Valores = std::vector<int>;

size_t igualdades = 0;

BOOL mismo_valor(const void *elemento, const void *dato)
{
    ++igualdades;
    return valor_de(elemento) == valor_de(dato);
}

ARRAY *interior_en(ARRAY *array_de_arrays, ULONG pos)
{
    return static_cast<ARRAY *>(arr_GetPunteroConTipo(array_de_arrays, pos));
}

// An array of arrays holding the given inner arrays (NULL allowed).
ARRAY *crea_arrays(std::initializer_list<ARRAY *> interiores)
{
    ARRAY *array_de_arrays = arr_CreaPunteroConTipo(0);
    for (ARRAY *interior : interiores)
        arr_AppendPunteroConTipo(array_de_arrays, interior);
    return array_de_arrays;
}

class ArraysDeArrays : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        igualdades = 0;
    }
};

TEST_F(ArraysDeArrays, ConcatenateFromANullBAppendsTwoCopies)
{
    ARRAY *origen = crea_arrays({crea_estructuras({1, 2}), nullptr, crea_estructuras({3})});
    ARRAY *destino = arr_CreaPunteroConTipo(0);
    arr_ConcatenaEstructurasArrayConTipo(destino, origen, copia_estructura);
    ASSERT_EQ(arrayprv_num_elems(destino), 2u);
    EXPECT_EQ(valores_de(interior_en(destino, 0)), (Valores{1, 2}));
    EXPECT_EQ(valores_de(interior_en(destino, 1)), (Valores{3}));
    EXPECT_NE(interior_en(destino, 0), interior_en(origen, 0));
    EXPECT_EQ(llamadas_copia(), 3u);
    arr_DestruyeEstructurasArrayConTipo(&destino, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&origen, libera_estructura);
}

// Rows of two pointers, so that the copies need rows the origin did not have.
TEST_F(ArraysDeArrays, ConcatenatingToItselfAppendsACopyOfEachInnerArray)
{
    ARRAY *array_de_arrays = arr_CreaPunteroConTipoEx(0, 2 * sizeof(void *));
    for (int i = 0; i < 3; ++i)
        arr_AppendPunteroConTipo(array_de_arrays, crea_estructuras({i, 10 + i}));
    arr_ConcatenaEstructurasArrayConTipo(array_de_arrays, array_de_arrays, copia_estructura);
    EXPECT_TRUE(informes().empty());
    ASSERT_EQ(arrayprv_num_elems(array_de_arrays), 6u);
    for (ULONG i = 0; i < 3; ++i) {
        EXPECT_EQ(valores_de(interior_en(array_de_arrays, 3 + i)),
                  valores_de(interior_en(array_de_arrays, i)));
        EXPECT_NE(interior_en(array_de_arrays, 3 + i), interior_en(array_de_arrays, i));
    }
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
    EXPECT_EQ(llamadas_libera(), 12u);
}

TEST_F(ArraysDeArrays, CopyOfANullBKeepsTheMiddleNull)
{
    ARRAY *origen = crea_arrays({crea_estructuras({1, 2}), nullptr, crea_estructuras({3})});
    ARRAY *copia = arr_CopiaEstructurasArrayConTipo(origen, copia_estructura);
    ASSERT_EQ(arrayprv_num_elems(copia), 3u);
    EXPECT_EQ(valores_de(interior_en(copia, 0)), (Valores{1, 2}));
    EXPECT_EQ(interior_en(copia, 1), nullptr);
    EXPECT_EQ(valores_de(interior_en(copia, 2)), (Valores{3}));
    EXPECT_NE(interior_en(copia, 2), interior_en(origen, 2));
    EXPECT_EQ(estructuras_vivas(), 6u);
    arr_DestruyeEstructurasArrayConTipo(&copia, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&origen, libera_estructura);
}

TEST_F(ArraysDeArrays, CopyOfAnotherTypeReportsAndReturnsNull)
{
    ARRAY *doubles = arr_CreaDouble(1);
    EXPECT_EQ(arr_CopiaEstructurasArrayConTipo(doubles, copia_estructura), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR"});
    arr_DestruyeDouble(&doubles);
}

TEST_F(ArraysDeArrays, ConcatenateIntoABusyDestinationReportsAndStillAppends)
{
    ARRAY *origen = crea_arrays({crea_estructuras({1})});
    ARRAY *destino = arr_CreaPunteroConTipo(0);
    destino->en_bucle_lectura = CIERTO;
    arr_ConcatenaEstructurasArrayConTipo(destino, origen, copia_estructura);
    EXPECT_EQ(informes(), (Textos{"dest->en_bucle_lectura == FALSO", "array->en_bucle_lectura == FALSO"}));
    destino->en_bucle_lectura = FALSO;
    EXPECT_EQ(arrayprv_num_elems(destino), 1u);
    arr_DestruyeEstructurasArrayConTipo(&destino, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&origen, libera_estructura);
}

TEST_F(ArraysDeArrays, DestroyReleasesEveryInnerArrayAndItsStructures)
{
    ARRAY *array_de_arrays = crea_arrays({crea_estructuras({1, 2}), nullptr, crea_estructuras({3})});
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
    EXPECT_EQ(array_de_arrays, nullptr);
    EXPECT_EQ(llamadas_libera(), 3u);
}

TEST_F(ArraysDeArrays, DestroyConstReleasesTheInnerArraysButNotTheStructures)
{
    ARRAY *interior = crea_estructuras({1, 2});
    std::vector<void *> estructuras = punteros_de(interior);
    ARRAY *array_de_arrays = crea_arrays({interior, nullptr});
    arr_DestruyeEstructurasConstArrayConTipo(&array_de_arrays);
    EXPECT_EQ(array_de_arrays, nullptr);
    EXPECT_EQ(informes(), Textos{});
    EXPECT_EQ(estructuras_vivas(), 2u);
    for (void *estructura : estructuras)
        libera_estructura(&estructura);
}

TEST_F(ArraysDeArrays, DestroyThroughNullAddressReports)
{
    arr_DestruyeEstructurasArrayConTipo(nullptr, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(array_de_arrays) != NULL"});
}

TEST_F(ArraysDeArrays, DestroyOfAnotherTypeReportsAndDestroysNothing)
{
    ARRAY *doubles = arr_CreaDouble(1);
    arr_DestruyeEstructurasArrayConTipo(&doubles, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(*array)->tipo_elem == elem_PUNTERO_NO_USAR"});
    ASSERT_NE(doubles, nullptr);
    arr_DestruyeDouble(&doubles);
}

TEST_F(ArraysDeArrays, ShrinkDestroysTheInnerArraysCutOff)
{
    ARRAY *primero = crea_estructuras({1});
    ARRAY *array_de_arrays = crea_arrays({primero, crea_estructuras({2, 3}), nullptr});
    arr_ReduceEstructurasArrayConTipo(array_de_arrays, 1, libera_estructura);
    EXPECT_EQ(informes(), Textos{});
    EXPECT_EQ(llamadas_libera(), 2u);
    ASSERT_EQ(arrayprv_num_elems(array_de_arrays), 1u);
    EXPECT_EQ(interior_en(array_de_arrays, 0), primero);
    EXPECT_EQ(estructuras_vivas(), 1u);
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
}

TEST_F(ArraysDeArrays, ShrinkAboveTheCountReportsAndDestroysNothing)
{
    ARRAY *array_de_arrays = crea_arrays({crea_estructuras({1})});
    arr_ReduceEstructurasArrayConTipo(array_de_arrays, 2, libera_estructura);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo <= array->num_elems"});
    EXPECT_EQ(llamadas_libera(), 0u);
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
}

TEST_F(ArraysDeArrays, DeleteDestroysTheInnerArrayThenRemovesItsSlot)
{
    ARRAY *ultimo = crea_estructuras({3});
    ARRAY *array_de_arrays = crea_arrays({crea_estructuras({1, 2}), ultimo});
    arr_BorrarEstructuraArrayConTipo(array_de_arrays, 0, libera_estructura);
    EXPECT_EQ(llamadas_libera(), 2u);
    ASSERT_EQ(arrayprv_num_elems(array_de_arrays), 1u);
    EXPECT_EQ(interior_en(array_de_arrays, 0), ultimo);
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
}

TEST_F(ArraysDeArrays, DeleteANullInnerArrayReportsItAndRemovesTheSlot)
{
    ARRAY *array_de_arrays = crea_arrays({nullptr});
    arr_BorrarEstructuraArrayConTipo(array_de_arrays, 0, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(*array) != NULL"});
    EXPECT_EQ(arrayprv_num_elems(array_de_arrays), 0u);
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
}

TEST_F(ArraysDeArrays, DeleteWithoutLiberaReportsAndFreesNoStructure)
{
    ARRAY *interior = crea_estructuras({1});
    void *estructura = arr_GetPunteroConTipo(interior, 0);
    ARRAY *array_de_arrays = crea_arrays({interior});
    arr_BorrarEstructuraArrayConTipo(array_de_arrays, 0, nullptr);
    EXPECT_EQ(informes(), Textos{"(libera) != NULL"});
    EXPECT_EQ(arrayprv_num_elems(array_de_arrays), 0u);
    EXPECT_TRUE(esta_viva(estructura));
    libera_estructura(&estructura);
    arr_DestruyeEstructurasArrayConTipo(&array_de_arrays, libera_estructura);
}

TEST_F(ArraysDeArrays, EqualityComparesTheInnerArraysPairwise)
{
    ARRAY *array1 = crea_arrays({crea_estructuras({1, 2}), crea_estructuras({3})});
    ARRAY *array2 = crea_arrays({crea_estructuras({1, 2}), crea_estructuras({3})});
    EXPECT_EQ(arr_SonIgualesEstructurasArrayConTipo(array1, array2, mismo_valor), CIERTO);
    EXPECT_EQ(igualdades, 3u);
    arr_DestruyeEstructurasArrayConTipo(&array1, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&array2, libera_estructura);
}

TEST_F(ArraysDeArrays, EqualityStopsAtTheFirstUnequalPair)
{
    ARRAY *array1 = crea_arrays({crea_estructuras({1}), crea_estructuras({3})});
    ARRAY *array2 = crea_arrays({crea_estructuras({9}), crea_estructuras({3})});
    EXPECT_EQ(arr_SonIgualesEstructurasArrayConTipo(array1, array2, mismo_valor), FALSO);
    EXPECT_EQ(igualdades, 1u);
    arr_DestruyeEstructurasArrayConTipo(&array1, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&array2, libera_estructura);
}

TEST_F(ArraysDeArrays, EqualityOfDifferentCountsIsFalseWithoutComparing)
{
    ARRAY *array1 = crea_arrays({crea_estructuras({1})});
    ARRAY *array2 = crea_arrays({crea_estructuras({1}), nullptr});
    EXPECT_EQ(arr_SonIgualesEstructurasArrayConTipo(array1, array2, mismo_valor), FALSO);
    EXPECT_EQ(igualdades, 0u);
    arr_DestruyeEstructurasArrayConTipo(&array1, libera_estructura);
    arr_DestruyeEstructurasArrayConTipo(&array2, libera_estructura);
}

TEST_F(ArraysDeArrays, EqualityOfNullArraysReportsBoth)
{
    EXPECT_EQ(arr_SonIgualesEstructurasArrayConTipo(nullptr, nullptr, mismo_valor), FALSO);
    EXPECT_EQ(informes(), (Textos{"(array1) != NULL", "(array2) != NULL"}));
}

} // namespace
