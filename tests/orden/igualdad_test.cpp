// Equality of two arrays: lengths first, then element by element through the type's equality,
// with the tables each type accepts and the reports of bad arguments.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"
#include "services/cadenas.h"

namespace {

using Igualdad = PruebaArrays;

size_t comparados = 0;

BOOL iguales_contando(double a, double b)
{
    ++comparados;
    return a == b;
}

TEST_F(Igualdad, ArraysOfDifferentLengthsAreUnequalWithoutComparingElements)
{
    ARRAY *corto = crea_doubles({1.0, 2.0});
    ARRAY *largo = crea_doubles({1.0, 2.0, 3.0});
    comparados = 0;
    EXPECT_EQ(arr_SonIgualesDouble(corto, largo, iguales_contando), FALSO);
    EXPECT_EQ(comparados, 0u);
    arr_DestruyeDouble(&corto);
    arr_DestruyeDouble(&largo);
}

TEST_F(Igualdad, TwoEmptyArraysAreEqual)
{
    ARRAY *a = arr_CreaDouble(0);
    ARRAY *b = arr_CreaDouble(0);
    comparados = 0;
    EXPECT_EQ(arr_SonIgualesDouble(a, b, iguales_contando), CIERTO);
    EXPECT_EQ(comparados, 0u);
    arr_DestruyeDouble(&a);
    arr_DestruyeDouble(&b);
}

TEST_F(Igualdad, FirstUnequalPairEndsTheComparison)
{
    ARRAY *a = crea_doubles({1.0, 2.0, 3.0, 4.0});
    ARRAY *b = crea_doubles({1.0, 9.0, 3.0, 4.0});
    comparados = 0;
    EXPECT_EQ(arr_SonIgualesDouble(a, b, iguales_contando), FALSO);
    EXPECT_EQ(comparados, 2u);
    arr_DestruyeDouble(&a);
    arr_DestruyeDouble(&b);
}

TEST_F(Igualdad, EqualElementsInDifferentRowLayoutsAreEqual)
{
    ARRAY *seguidos = crea_doubles(uno_a(600));
    ARRAY *partidos = crea_doubles(uno_a(600));
    arr_InsertarDouble(partidos, 10, 0.5);
    arr_BorrarDouble(partidos, 10);
    ASSERT_NE(disposicion(seguidos), disposicion(partidos));
    comparados = 0;
    EXPECT_EQ(arr_SonIgualesDouble(seguidos, partidos, iguales_contando), CIERTO);
    EXPECT_EQ(comparados, 600u);
    arr_DestruyeDouble(&seguidos);
    arr_DestruyeDouble(&partidos);
}

TEST_F(Igualdad, IntegerArraysCompareExactlyAtTheTypesWidth)
{
    ARRAY *a = crea_con<SHORT>(elem_SHORT_NO_USAR, {1, -1});
    ARRAY *b = crea_con<SHORT>(elem_SHORT_NO_USAR, {1, -1});
    ARRAY *c = crea_con<SHORT>(elem_SHORT_NO_USAR, {1, 0x7FFF});
    EXPECT_EQ(arrayprv_son_iguales(a, b, nullptr, elem_SHORT_NO_USAR), CIERTO);
    EXPECT_EQ(arrayprv_son_iguales(a, c, nullptr, elem_SHORT_NO_USAR), FALSO);
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
    arrayprv_destruye(&c);
}

TEST_F(Igualdad, IntegerEqualityWithATableIsReportedAndStillExact)
{
    ARRAY *a = crea_con<LONG>(elem_LONG_NO_USAR, {3, 4});
    ARRAY *b = crea_con<LONG>(elem_LONG_NO_USAR, {3, 4});
    fnc_compara tabla{};
    EXPECT_EQ(arrayprv_son_iguales(a, b, &tabla, elem_LONG_NO_USAR), CIERTO);
    EXPECT_EQ(informes(), Textos{"fnc_compara == NULL"});
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
}

TEST_F(Igualdad, BoolEqualityWithATableIsReportedAndStillExact)
{
    ARRAY *a = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO, FALSO});
    ARRAY *b = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO, CIERTO});
    fnc_compara tabla{};
    EXPECT_EQ(arrayprv_son_iguales(a, b, &tabla, elem_BOOL_NO_USAR), FALSO);
    EXPECT_EQ(informes(), Textos{"fnc_compara == NULL"});
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
}

TEST_F(Igualdad, DoubleEqualityWithoutATableIsReportedAndUnequal)
{
    ARRAY *a = crea_doubles({1.0});
    ARRAY *b = crea_doubles({1.0});
    EXPECT_EQ(arrayprv_son_iguales(a, b, nullptr, elem_DOUBLE_NO_USAR), FALSO);
    EXPECT_EQ(informes(), Textos{"(fnc_compara) != NULL"});
    arr_DestruyeDouble(&a);
    arr_DestruyeDouble(&b);
}

TEST_F(Igualdad, NullArraysAreReportedAndUnequal)
{
    EXPECT_EQ(arrayprv_son_iguales(nullptr, nullptr, nullptr, elem_LONG_NO_USAR), FALSO);
    EXPECT_EQ(informes(), (Textos{"(array1) != NULL", "(array2) != NULL"}));
}

TEST_F(Igualdad, DeadHeadersAreReportedAndUnequal)
{
    ARRAY *array = crea_doubles({});
    ARRAY muerto1 = *array;
    ARRAY muerto2 = *array;
    muerto1.mascara_debug = 0;
    muerto2.mascara_debug = 0;
    EXPECT_EQ(arr_SonIgualesDouble(&muerto1, &muerto2, iguales_contando), FALSO);
    EXPECT_EQ(informes(), (Textos{"array1->mascara_debug == MASCARA_DEBUG",
                                  "array2->mascara_debug == MASCARA_DEBUG"}));
    arr_DestruyeDouble(&array);
}

TEST_F(Igualdad, ArraysOfAnotherTypeAreReportedAndUnequal)
{
    ARRAY *a = crea_doubles({});
    ARRAY *b = crea_con<LONG64>(elem_LONG64_NO_USAR, {});
    EXPECT_EQ(arr_SonIgualesDouble(a, b, iguales_contando), FALSO);
    EXPECT_EQ(informes(),
              Textos{"array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_SonIgualesDouble(b, a, iguales_contando), FALSO);
    EXPECT_EQ(informes(),
              Textos{"array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem"});
    arr_DestruyeDouble(&a);
    arrayprv_destruye(&b);
}

TEST_F(Igualdad, ArraysInsideAWritingTraversalAreReportedAndStillCompared)
{
    ARRAY *a = crea_doubles({1.0});
    ARRAY *b = crea_doubles({1.0});
    a->en_bucle = CIERTO;
    b->en_bucle = CIERTO;
    EXPECT_EQ(arr_SonIgualesDouble(a, b, iguales_contando), CIERTO);
    EXPECT_EQ(informes(), (Textos{"en_bucle == FALSO", "en_bucle == FALSO"}));
    a->en_bucle = FALSO;
    b->en_bucle = FALSO;
    arr_DestruyeDouble(&a);
    arr_DestruyeDouble(&b);
}

TEST_F(Igualdad, ArraysInsideAReadTraversalAreComparedWithoutAReport)
{
    ARRAY *a = crea_doubles({1.0});
    ARRAY *b = crea_doubles({2.0});
    a->en_bucle_lectura = CIERTO;
    EXPECT_EQ(arr_SonIgualesDouble(a, b, iguales_contando), FALSO);
    a->en_bucle_lectura = FALSO;
    arr_DestruyeDouble(&a);
    arr_DestruyeDouble(&b);
}

TEST_F(Igualdad, BitArraysAreReportedAsAnUnhandledType)
{
    ARRAY *a = arrayprv_crea(8, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    ARRAY *b = arrayprv_crea(8, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(arrayprv_son_iguales(a, b, nullptr, elem_BIT_NO_USAR), FALSO);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(informes(), Textos{""});
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
}

TEST_F(Igualdad, StringArraysCompareThroughThePredicate)
{
    ARRAY *a = crea_cadenas({"uno", "dos"});
    ARRAY *b = crea_cadenas({"UNO", "DOS"});
    fnc_compara tabla{};
    tabla.fnc_compara_CADENA = cad_cadenas_iguales_may_o_min;
    EXPECT_EQ(arrayprv_son_iguales(a, b, &tabla, elem_CADENA_NO_USAR), CIERTO);
    tabla.fnc_compara_CADENA = cad_cadenas_iguales;
    EXPECT_EQ(arrayprv_son_iguales(a, b, &tabla, elem_CADENA_NO_USAR), FALSO);
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
}

class IgualdadSinPredicado : public PruebaArrays,
                             public ::testing::WithParamInterface<PredicadoRequerido> {};

TEST_P(IgualdadSinPredicado, EqualityWithoutTheTypesPredicateIsReportedAndUnequal)
{
    const tipo_elem_array tipo = GetParam().tipo;
    ARRAY *a = arrayprv_crea(1, tipo, LONG_FILA_POR_DEFECTO);
    ARRAY *b = arrayprv_crea(1, tipo, LONG_FILA_POR_DEFECTO);
    const Textos al_crear = tipo == elem_PUNTERO_NO_USAR
                                ? Textos{"tipo_elemento != elem_PUNTERO_NO_USAR",
                                         "tipo_elemento != elem_PUNTERO_NO_USAR"}
                                : Textos{};
    EXPECT_EQ(informes(), al_crear);
    fnc_compara tabla{};
    EXPECT_EQ(arrayprv_son_iguales(a, b, &tabla, tipo), FALSO);
    EXPECT_EQ(informes(), Textos{GetParam().texto});
    arrayprv_destruye(&a);
    arrayprv_destruye(&b);
}

INSTANTIATE_TEST_SUITE_P(TiposConPredicado, IgualdadSinPredicado,
                         ::testing::ValuesIn(predicados_requeridos()), nombre_de_tipo);

} // namespace
