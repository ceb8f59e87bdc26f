// Concatenation: org's elements appended to dest in order, strings copied, org unchanged, and
// the arrays it refuses.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"

namespace {

using Concatenacion = PruebaArrays;

BOOL iguales(double a, double b) { return a == b; }

TEST_F(Concatenacion, EmptyOrgLeavesDestUnchanged)
{
    ARRAY *dest = crea_doubles(uno_a(300));
    ARRAY *org = arr_CreaDouble(0);
    const Disposicion antes = disposicion(dest);
    arr_ConcatenaDouble(dest, org);
    EXPECT_EQ(doubles_de(dest), uno_a(300));
    EXPECT_EQ(disposicion(dest), antes);
    arr_DestruyeDouble(&dest);
    arr_DestruyeDouble(&org);
}

TEST_F(Concatenacion, OrgConcatenatedOntoAnEmptyDestMakesThemEqual)
{
    ARRAY *dest = arr_CreaDouble(0);
    ARRAY *org = crea_doubles(uno_a(700));
    arr_ConcatenaDouble(dest, org);
    EXPECT_EQ(arr_SonIgualesDouble(dest, org, iguales), CIERTO);
    arr_DestruyeDouble(&dest);
    arr_DestruyeDouble(&org);
}

TEST_F(Concatenacion, OrgElementsFollowDestElementsInOrderAndOrgIsUnchanged)
{
    ARRAY *dest = crea_doubles(uno_a(300));
    std::vector<double> de_org;
    for (double valor : uno_a(300))
        de_org.push_back(-valor);
    ARRAY *org = crea_doubles(de_org);
    arr_InsertarDouble(org, 2, 0.25);
    de_org.insert(de_org.begin() + 2, 0.25);
    arr_ConcatenaDouble(dest, org);
    std::vector<double> esperado = uno_a(300);
    esperado.insert(esperado.end(), de_org.begin(), de_org.end());
    EXPECT_EQ(doubles_de(dest), esperado);
    EXPECT_EQ(doubles_de(org), de_org);
    arr_DestruyeDouble(&dest);
    arr_DestruyeDouble(&org);
}

// The rows a concatenation leaves are those that appending org's elements one by one leaves, from
// every state of dest's last row (none, partly filled, full, still growing, after inserts).
TEST_F(Concatenacion, RowsAreThoseOfAppendingTheElementsOneByOne)
{
    for (size_t en_dest : {0, 5, 11, 256, 300, 512, 1000})
        for (size_t en_org : {1, 10, 11, 12, 255, 256, 257, 3000}) {
            ARRAY *dest = crea_doubles(uno_a(en_dest));
            ARRAY *una_a_una = crea_doubles(uno_a(en_dest));
            for (ARRAY *array : {dest, una_a_una})
                if (en_dest > 100)
                    for (ULONG pos : {3u, 40u, 99u})
                        arr_InsertarDouble(array, pos, -1.0);
            ARRAY *org = arr_CreaDouble(0);
            for (size_t i = 0; i < en_org; ++i)
                arr_InsertarDouble(org, static_cast<ULONG>(i / 2), 1000.0 + static_cast<double>(i));
            arr_ConcatenaDouble(dest, org);
            for (double valor : doubles_de(org))
                arr_AppendDouble(una_a_una, valor);
            EXPECT_EQ(disposicion(dest), disposicion(una_a_una)) << en_dest << " + " << en_org;
            EXPECT_EQ(bits_de(doubles_de(dest)), bits_de(doubles_de(una_a_una)));
            for (ARRAY *array : {dest, una_a_una, org})
                arr_DestruyeDouble(&array);
        }
}

TEST_F(Concatenacion, StringsAreCopiedIntoDest)
{
    ARRAY *dest = crea_cadenas({"a"});
    ARRAY *org = crea_cadenas({"b", "c"});
    arr_ConcatenaCADENA(dest, org);
    EXPECT_EQ(cadenas_de(dest), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_NE(elementos<const char *>(dest, elem_CADENA_NO_USAR)[1],
              elementos<const char *>(org, elem_CADENA_NO_USAR)[0]);
    EXPECT_EQ(org->en_bucle, FALSO);
    arrayprv_destruye(&org);
    EXPECT_EQ(cadenas_de(dest), (std::vector<std::string>{"a", "b", "c"}));
    arrayprv_destruye(&dest);
}

TEST_F(Concatenacion, WideStringsAreCopiedIntoDest)
{
    ARRAY *dest = arrayprv_crea(0, elem_CADENA_U_NO_USAR, LONG_FILA_POR_DEFECTO);
    ARRAY *org = arrayprv_crea(0, elem_CADENA_U_NO_USAR, LONG_FILA_POR_DEFECTO);
    WCHAR *cadena = widestr_fun_copia(u"ñu");
    arrayprv_append(org, &cadena, elem_CADENA_U_NO_USAR);
    arr_ConcatenaCADENA_u(dest, org);
    const std::vector<const WCHAR *> copiadas =
        elementos<const WCHAR *>(dest, elem_CADENA_U_NO_USAR);
    ASSERT_EQ(copiadas.size(), 1u);
    EXPECT_NE(copiadas[0], cadena);
    EXPECT_EQ(std::u16string(copiadas[0]), u"ñu");
    arrayprv_destruye(&org);
    arrayprv_destruye(&dest);
}

TEST_F(Concatenacion, ArraysOfDifferentTypesAreReportedAndDestIsUnchanged)
{
    ARRAY *dest = crea_doubles({1.0});
    ARRAY *org = crea_con<LONG64>(elem_LONG64_NO_USAR, {5});
    arr_ConcatenaDouble(dest, org);
    EXPECT_EQ(informes(), Textos{"org->tipo_elem == dest->tipo_elem"});
    EXPECT_EQ(doubles_de(dest), std::vector<double>{1.0});
    arr_DestruyeDouble(&dest);
    arrayprv_destruye(&org);
}

TEST_F(Concatenacion, BitArraysAreReportedAndDestIsUnchanged)
{
    ARRAY *dest = arrayprv_crea(8, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    ARRAY *org = arrayprv_crea(8, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    arrayprv_concatena(dest, org);
    EXPECT_EQ(informes(), Textos{"org->tipo_elem != elem_BIT_NO_USAR"});
    EXPECT_EQ(campo(dest->num_elems), 1u);
    EXPECT_EQ(campo(dest->num_bits), 8u);
    arrayprv_destruye(&dest);
    arrayprv_destruye(&org);
}

TEST_F(Concatenacion, PointerArraysAreReportedAndDestIsUnchanged)
{
    ARRAY *dest = arrayprv_crea(1, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    ARRAY *org = arrayprv_crea(2, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), (Textos{"tipo_elemento != elem_PUNTERO_NO_USAR",
                                  "tipo_elemento != elem_PUNTERO_NO_USAR"}));
    arrayprv_concatena(dest, org);
    EXPECT_EQ(informes(), Textos{"org->tipo_elem != elem_PUNTERO_NO_USAR"});
    EXPECT_EQ(campo(dest->num_elems), 1u);
    arrayprv_destruye(&dest);
    arrayprv_destruye(&org);
}

TEST_F(Concatenacion, AnArrayConcatenatedOntoItselfIsRefused)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    arr_ConcatenaDouble(array, array);
    EXPECT_EQ(informes(), Textos{"dest != org"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&array);
}

TEST_F(Concatenacion, MissingArraysAreReported)
{
    arr_ConcatenaDouble(nullptr, nullptr);
    EXPECT_EQ(informes(), (Textos{"(org) != NULL", "(dest) != NULL"}));
}

TEST_F(Concatenacion, DeadHeadersAreReportedAndNothingIsAppended)
{
    ARRAY *array = crea_doubles({1.0});
    ARRAY dest = *array;
    ARRAY org = *array;
    dest.mascara_debug = 0;
    org.mascara_debug = 0;
    arr_ConcatenaDouble(&dest, &org);
    EXPECT_EQ(informes(), (Textos{"dest->mascara_debug == MASCARA_DEBUG",
                                  "org->mascara_debug == MASCARA_DEBUG"}));
    EXPECT_EQ(doubles_de(array), std::vector<double>{1.0});
    arr_DestruyeDouble(&array);
}

TEST_F(Concatenacion, BusyDestIsReportedAndStillReceivesTheElements)
{
    ARRAY *dest = crea_doubles({1.0});
    ARRAY *org = crea_doubles({2.0, 3.0});
    dest->en_bucle = CIERTO;
    dest->en_bucle_lectura = CIERTO;
    arr_ConcatenaDouble(dest, org);
    EXPECT_EQ(informes(), (Textos{"dest->en_bucle == FALSO", "dest->en_bucle_lectura == FALSO",
                                  "array->en_bucle == FALSO", "array->en_bucle_lectura == FALSO",
                                  "array->en_bucle == FALSO", "array->en_bucle_lectura == FALSO"}));
    dest->en_bucle = FALSO;
    dest->en_bucle_lectura = FALSO;
    EXPECT_EQ(doubles_de(dest), (std::vector<double>{1.0, 2.0, 3.0}));
    arr_DestruyeDouble(&dest);
    arr_DestruyeDouble(&org);
}

TEST_F(Concatenacion, OrgInsideATraversalIsConcatenatedWithoutAReport)
{
    ARRAY *dest = crea_doubles({1.0});
    ARRAY *org = crea_doubles({2.0});
    org->en_bucle_lectura = CIERTO;
    arr_ConcatenaDouble(dest, org);
    EXPECT_EQ(doubles_de(dest), (std::vector<double>{1.0, 2.0}));
    org->en_bucle_lectura = FALSO;
    arr_DestruyeDouble(&dest);
    arr_DestruyeDouble(&org);
}

} // namespace
