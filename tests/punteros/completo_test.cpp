// Whole-array operations on pointer arrays: sort, equality, copy and concatenation through the
// caller's copy function, and reversal in place.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

using Valores = std::vector<int>;
using Punteros = std::vector<void *>;

size_t comparaciones = 0;

int compara_valores(const void *a, const void *b)
{
    ++comparaciones;
    const int va = valor_de(a);
    const int vb = valor_de(b);
    return va < vb ? comparac_PRIMERO_MENOR : va > vb ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}

BOOL mismo_valor(const void *elemento, const void *dato) { return valor_de(elemento) == valor_de(dato); }

// The origin of a concatenation, as the copy function sees it during the call.
ARRAY *origen_observado = nullptr;
std::vector<BOOL> lectura_al_copiar;

void *copia_observando(const void *elemento)
{
    lectura_al_copiar.push_back(origen_observado->en_bucle_lectura);
    return copia_estructura(elemento);
}

class CompletoPunteros : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        comparaciones = 0;
        lectura_al_copiar.clear();
    }

    // Concatenates one structure into a destination that `guarda` marks busy; checks that the
    // element was still appended and returns the reports.
    Textos concatena_con_guarda(BOOL ARRAY::*guarda)
    {
        ARRAY *dest = arr_CreaPunteroConTipo(0);
        ARRAY *org = crea_estructuras({1});
        dest->*guarda = CIERTO;
        arr_ConcatenaEstructurasConTipo(dest, org, copia_estructura, "llamante.cpp", 10);
        Textos textos = informes();
        dest->*guarda = FALSO;
        EXPECT_EQ(valores_de(dest), (Valores{1}));
        arr_DestruyeEstructurasConTipo(&dest, libera_estructura);
        arr_DestruyeEstructurasConTipo(&org, libera_estructura);
        return textos;
    }
};

TEST_F(CompletoPunteros, SortOfOneElementNeverCallsTheComparisonEvenWhenNull)
{
    ARRAY *array = crea_estructuras({1});
    arr_QSortPunteroConTipo(array, compara_valores);
    arr_QSortPunteroConTipo(array, nullptr);
    EXPECT_EQ(comparaciones, 0u);
    EXPECT_EQ(informes(), Textos{});
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, SortOrdersByTheCallersComparison)
{
    ARRAY *array = crea_estructuras({3, 1, 4, 1, 5, 9, 2, 6});
    arr_QSortPunteroConTipo(array, compara_valores);
    EXPECT_EQ(valores_de(array), (Valores{1, 1, 2, 3, 4, 5, 6, 9}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, SortWithoutComparisonReportsAndChangesNothing)
{
    ARRAY *array = crea_estructuras({2, 1});
    arr_QSortPunteroConTipo(array, nullptr);
    EXPECT_EQ(informes(), Textos{"(func_compara_puntero) != NULL"});
    EXPECT_EQ(valores_de(array), (Valores{2, 1}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, SortConstIsTheSameFunction)
{
    EXPECT_EQ(direccion_en_ejecucion(&arr_QSortPunteroConTipoConst), direccion_en_ejecucion(&arr_QSortPunteroConTipo));
    ARRAY *array = crea_estructuras({2, 1});
    arr_QSortPunteroConTipoConst(array, compara_valores);
    EXPECT_EQ(valores_de(array), (Valores{1, 2}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, EqualityUsesTheCallersFunction)
{
    ARRAY *array1 = crea_estructuras({1, 2});
    ARRAY *array2 = crea_estructuras({1, 2});
    ARRAY *array3 = crea_estructuras({1, 3});
    EXPECT_EQ(arr_SonIgualesPunteroConTipo(array1, array2, mismo_valor), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunteroConTipo(array1, array3, mismo_valor), FALSO);
    arr_DestruyeEstructurasConTipo(&array1, libera_estructura);
    arr_DestruyeEstructurasConTipo(&array2, libera_estructura);
    arr_DestruyeEstructurasConTipo(&array3, libera_estructura);
}

TEST_F(CompletoPunteros, CopyPassesEveryElementThroughTheCopyFunction)
{
    ARRAY *array = crea_estructuras({1, 2});
    arr_InsertarPunteroConTipo(array, 1, nullptr);
    ARRAY *copia = arr_CopiaEstructurasConTipo(array, copia_estructura);
    EXPECT_EQ(llamadas_copia(), 3u);
    EXPECT_EQ(valores_de(copia), (Valores{1, -1, 2}));
    EXPECT_NE(arr_GetPunteroConTipo(copia, 0), arr_GetPunteroConTipo(array, 0));
    EXPECT_EQ(estructuras_vivas(), 4u);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
    EXPECT_EQ(valores_de(copia), (Valores{1, -1, 2}));
    arr_DestruyeEstructurasConTipo(&copia, libera_estructura);
}

TEST_F(CompletoPunteros, CopyWithoutCopyFunctionSharesThePointers)
{
    ARRAY *array = crea_estructuras({1, 2});
    ARRAY *copia = arr_CopiaEstructurasConTipo(array, nullptr);
    EXPECT_EQ(punteros_de(copia), punteros_de(array));
    arr_DestruyeEstructurasConstConTipo(&copia);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, CopyOfAnotherTypeReportsAndReturnsNull)
{
    ARRAY *doubles = arr_CreaDouble(1);
    EXPECT_EQ(arr_CopiaEstructurasConTipo(doubles, copia_estructura), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR"});
    EXPECT_EQ(llamadas_copia(), 0u);
    arr_DestruyeDouble(&doubles);
}

TEST_F(CompletoPunteros, ConcatenateAppendsACopyOfEveryElement)
{
    ARRAY *dest = crea_estructuras({1});
    ARRAY *org = crea_estructuras({2, 3});
    arr_ConcatenaEstructurasConTipo(dest, org, copia_estructura, "llamante.cpp", 10);
    EXPECT_EQ(valores_de(dest), (Valores{1, 2, 3}));
    EXPECT_EQ(llamadas_copia(), 2u);
    EXPECT_NE(arr_GetPunteroConTipo(dest, 1), arr_GetPunteroConTipo(org, 0));
    arr_DestruyeEstructurasConTipo(&dest, libera_estructura);
    arr_DestruyeEstructurasConTipo(&org, libera_estructura);
}

TEST_F(CompletoPunteros, ConcatenateWithoutCopyFunctionSharesThePointers)
{
    ARRAY *dest = arr_CreaPunteroConTipo(0);
    ARRAY *org = crea_estructuras({2, 3});
    arr_ConcatenaEstructurasConTipo(dest, org, nullptr, "llamante.cpp", 10);
    EXPECT_EQ(punteros_de(dest), punteros_de(org));
    arr_DestruyeEstructurasConstConTipo(&dest);
    arr_DestruyeEstructurasConTipo(&org, libera_estructura);
}

TEST_F(CompletoPunteros, ConcatenateConstSharesThePointers)
{
    ARRAY *dest = crea_estructuras({1});
    ARRAY *org = crea_estructuras({2});
    arr_ConcatenaEstructurasConTipoConst(dest, org, "llamante.cpp", 10);
    EXPECT_EQ(punteros_de(dest)[1], punteros_de(org)[0]);
    EXPECT_EQ(llamadas_copia(), 0u);
    arr_BorrarPuntero(dest, 1);
    arr_DestruyeEstructurasConTipo(&dest, libera_estructura);
    arr_DestruyeEstructurasConTipo(&org, libera_estructura);
}

TEST_F(CompletoPunteros, ConcatenateMarksTheOriginAsBeingRead)
{
    ARRAY *dest = arr_CreaPunteroConTipo(0);
    ARRAY *org = crea_estructuras({1, 2});
    origen_observado = org;
    arr_ConcatenaEstructurasConTipo(dest, org, copia_observando, "llamante.cpp", 10);
    EXPECT_EQ(lectura_al_copiar, (std::vector<BOOL>{CIERTO, CIERTO}));
    EXPECT_EQ(org->en_bucle_lectura, FALSO);
    arr_DestruyeEstructurasConTipo(&dest, libera_estructura);
    arr_DestruyeEstructurasConTipo(&org, libera_estructura);
}

TEST_F(CompletoPunteros, ConcatenateFromAnOriginInAWritingTraversalNamesTheCaller)
{
    ARRAY *dest = arr_CreaPunteroConTipo(0);
    ARRAY *org = crea_estructuras({1});
    org->en_bucle = CIERTO;
    arr_ConcatenaEstructurasConTipo(dest, org, copia_estructura, "llamante.cpp", 42);
    org->en_bucle = FALSO;
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informes_completos()[0].ubicacion_origen, "llamante.cpp");
    EXPECT_EQ(informes_completos()[0].linea_origen, 42);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(valores_de(dest), (Valores{1}));
    arr_DestruyeEstructurasConTipo(&dest, libera_estructura);
    arr_DestruyeEstructurasConTipo(&org, libera_estructura);
}

TEST_F(CompletoPunteros, ConcatenateNullArraysReportsBoth)
{
    arr_ConcatenaEstructurasConTipo(nullptr, nullptr, copia_estructura, "llamante.cpp", 10);
    EXPECT_EQ(informes(), (Textos{"(org) != NULL", "(dest) != NULL"}));
}

TEST_F(CompletoPunteros, ConcatenateDeadArraysReportsBothMarks)
{
    ARRAY *dest = arr_CreaPunteroConTipo(0);
    ARRAY *org = arr_CreaPunteroConTipo(0);
    dest->mascara_debug = 0;
    org->mascara_debug = 0;
    arr_ConcatenaEstructurasConTipo(dest, org, copia_estructura, "llamante.cpp", 10);
    EXPECT_EQ(informes(), (Textos{"org->mascara_debug == MASCARA_DEBUG", "dest->mascara_debug == MASCARA_DEBUG"}));
    dest->mascara_debug = MASCARA_DEBUG;
    org->mascara_debug = MASCARA_DEBUG;
    arr_DestruyePunteroConTipo(&dest);
    arr_DestruyePunteroConTipo(&org);
}

TEST_F(CompletoPunteros, ConcatenateIntoADestinationInAWritingTraversalReportsAndGoesOn)
{
    EXPECT_EQ(concatena_con_guarda(&ARRAY::en_bucle), (Textos{"dest->en_bucle == FALSO", "array->en_bucle == FALSO"}));
}

TEST_F(CompletoPunteros, ConcatenateIntoADestinationInAReadTraversalReportsAndGoesOn)
{
    EXPECT_EQ(concatena_con_guarda(&ARRAY::en_bucle_lectura),
              (Textos{"dest->en_bucle_lectura == FALSO", "array->en_bucle_lectura == FALSO"}));
}

TEST_F(CompletoPunteros, ConcatenateArraysOfAnotherTypeReportsAndChangesNothing)
{
    ARRAY *dest = arr_CreaPunteroConTipo(0);
    ARRAY *doubles = arr_CreaDouble(1);
    arr_ConcatenaEstructurasConTipo(dest, doubles, copia_estructura, "llamante.cpp", 10);
    EXPECT_EQ(informes(),
              Textos{"org->tipo_elem == elem_PUNTERO_NO_USAR && dest->tipo_elem == elem_PUNTERO_NO_USAR"});
    EXPECT_EQ(arrayprv_num_elems(dest), 0u);
    arr_DestruyePunteroConTipo(&dest);
    arr_DestruyeDouble(&doubles);
}

TEST_F(CompletoPunteros, ConcatenateOntoItselfReportsAndChangesNothing)
{
    ARRAY *array = crea_estructuras({1});
    arr_ConcatenaEstructurasConTipo(array, array, copia_estructura, "llamante.cpp", 10);
    EXPECT_EQ(informes(), Textos{"dest != org"});
    EXPECT_EQ(valores_de(array), (Valores{1}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CompletoPunteros, ReverseOrderOfPQRGivesRQP)
{
    int p = 1;
    int q = 2;
    int r = 3;
    ARRAY *array = crea_punteros({&p, &q, &r});
    arr_nousar_InvierteOrdenPunteroConTipo(array);
    EXPECT_EQ(punteros_de(array), (Punteros{&r, &q, &p}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(CompletoPunteros, ReverseOrderAcrossRowsSwapsEveryPair)
{
    ARRAY *array = arr_CreaPunteroConTipoEx(0, 16);
    int valores[4] = {1, 2, 3, 4};
    for (int &valor : valores)
        arr_AppendPunteroConTipo(array, &valor);
    arr_nousar_InvierteOrdenPunteroConTipo(array);
    EXPECT_EQ(punteros_de(array), (Punteros{&valores[3], &valores[2], &valores[1], &valores[0]}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(CompletoPunteros, ReverseOrderOfOneElementChangesNothing)
{
    int p = 1;
    ARRAY *array = crea_punteros({&p});
    array->en_bucle = CIERTO; // nothing is written, so nothing is refused
    arr_nousar_InvierteOrdenPunteroConTipo(array);
    EXPECT_EQ(informes(), Textos{});
    array->en_bucle = FALSO;
    EXPECT_EQ(punteros_de(array), (Punteros{&p}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(CompletoPunteros, ReverseOrderInsideATraversalReportsTheGuard)
{
    int p = 1;
    int q = 2;
    ARRAY *array = crea_punteros({&p, &q});
    array->en_bucle = CIERTO;
    arr_nousar_InvierteOrdenPunteroConTipo(array);
    EXPECT_EQ(informes(), (Textos{"array->en_bucle == FALSO", "array->en_bucle == FALSO"}));
    array->en_bucle = FALSO;
    EXPECT_EQ(punteros_de(array), (Punteros{&q, &p}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

} // namespace
