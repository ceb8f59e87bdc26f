// The quicksort on arrays: small and equal inputs, rows, the one-sided BOOL order, the guards
// and the reports of the sort and of its element helpers.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "core/quicksort.h"
#include "orden/ayudas_orden.h"

#include <climits>
#include <random>

namespace {

using Qsort = PruebaArrays;

TEST_F(Qsort, SortOfFewerThanTwoElementsNeverTouchesTheBusyFlag)
{
    for (size_t n : {0, 1}) {
        ARRAY *array = crea_doubles(uno_a(n));
        array->en_bucle = CIERTO;
        ComparadorAnotado comparador(arrayprv_orden_double);
        arr_QSortDouble(array, ComparadorAnotado::compara);
        EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
        EXPECT_EQ(array->en_bucle, CIERTO) << n << " elements";
        EXPECT_EQ(comparador.llamadas(), std::vector<Llamada>{});
        array->en_bucle = FALSO;
        arr_DestruyeDouble(&array);
    }
}

TEST_F(Qsort, SortInsideAWritingTraversalIsReportedAndStillSortsAndClearsTheFlag)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    array->en_bucle = CIERTO;
    arr_QSortDouble(array, nullptr);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, TwoElementsInReverseOrderAreSwapped)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    arr_QSortDouble(array, nullptr);
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, TwoElementsInOrderStayAfterOneComparison)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    ComparadorAnotado comparador(arrayprv_orden_double);
    arr_QSortDouble(array, ComparadorAnotado::compara);
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(comparador.llamadas(), (std::vector<Llamada>{{bits(1.0), bits(2.0)}}));
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ManyIdenticalElementsAreSortedWithoutAComparatorCall)
{
    ARRAY *array = crea_doubles(std::vector<double>(1000, 3.5));
    ComparadorAnotado comparador(arrayprv_orden_double);
    arr_QSortDouble(array, ComparadorAnotado::compara);
    EXPECT_EQ(comparador.llamadas(), std::vector<Llamada>{});
    EXPECT_EQ(doubles_de(array), std::vector<double>(1000, 3.5));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ElementsTheComparatorFindsEqualStayInPlaceAndAreSplitAtTheMiddle)
{
    const std::vector<double> valores = uno_a(1000);
    ARRAY *array = crea_doubles(valores);
    ComparadorAnotado comparador([](double, double) { return comparac_IGUALES; });
    arr_QSortDouble(array, ComparadorAnotado::compara);
    EXPECT_EQ(doubles_de(array), valores);
    // The first range 0..999 takes element 499 as its pivot; its scans meet in the middle, so
    // the next range is 500..999 with element 749 as its pivot. The first range makes three
    // calls per step, except the step where the scan up reaches the pivot itself.
    const std::vector<Llamada> &llamadas = comparador.llamadas();
    ASSERT_GT(llamadas.size(), 1499u);
    EXPECT_EQ(llamadas[0], Llamada(bits(valores[0]), bits(valores[499])));
    EXPECT_EQ(llamadas[1], Llamada(bits(valores[499]), bits(valores[999])));
    EXPECT_EQ(llamadas[1498], Llamada(bits(valores[499]), bits(valores[500])));
    EXPECT_EQ(llamadas[1499], Llamada(bits(valores[500]), bits(valores[749])));
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ElementsSpanningSeveralRowsSortExactlyAsInOneRow)
{
    std::mt19937 azar(7);
    std::vector<double> valores;
    for (int i = 0; i < 1000; ++i)
        valores.push_back(static_cast<double>(azar() % 300));
    ARRAY *en_filas = crea_doubles(valores);
    ARRAY *en_una = crea_con<double>(elem_DOUBLE_NO_USAR, valores, 1000 * sizeof(double));
    ASSERT_EQ(campo(en_filas->num_filas), 4u);
    ASSERT_EQ(campo(en_una->num_filas), 1u);
    ComparadorAnotado por_filas(arrayprv_orden_double);
    arr_QSortDouble(en_filas, ComparadorAnotado::compara);
    ComparadorAnotado por_una(arrayprv_orden_double);
    arr_QSortDouble(en_una, ComparadorAnotado::compara);
    EXPECT_EQ(por_filas.llamadas(), por_una.llamadas());
    EXPECT_EQ(doubles_de(en_filas), doubles_de(en_una));
    std::sort(valores.begin(), valores.end());
    EXPECT_EQ(doubles_de(en_filas), valores);
    arr_DestruyeDouble(&en_filas);
    arr_DestruyeDouble(&en_una);
}

// A BOOL array before and after the sort with the default BOOL order.
struct OrdenBool {
    std::vector<BOOL> antes;
    std::vector<BOOL> despues;
};

class QsortBool : public PruebaArrays, public ::testing::WithParamInterface<OrdenBool> {};

TEST_P(QsortBool, DefaultBoolOrderLeavesThisPartialOrder)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, GetParam().antes);
    arrayprv_ordena<elem_BOOL_NO_USAR>(array, arrayprv_orden_bool);
    EXPECT_EQ(elementos<BOOL>(array, elem_BOOL_NO_USAR), GetParam().despues);
    arrayprv_destruye(&array);
}

INSTANTIATE_TEST_SUITE_P(
    Booleanos, QsortBool,
    ::testing::Values(OrdenBool{{CIERTO, FALSO}, {FALSO, CIERTO}},
                      OrdenBool{{FALSO, CIERTO}, {FALSO, CIERTO}},
                      OrdenBool{{FALSO, CIERTO, FALSO}, {FALSO, CIERTO, FALSO}},
                      OrdenBool{{CIERTO, FALSO, FALSO, CIERTO}, {FALSO, CIERTO, FALSO, CIERTO}}));

size_t llamadas_bool = 0;

int orden_bool_contando(BOOL a, BOOL b)
{
    ++llamadas_bool;
    return arrayprv_orden_bool(a, b);
}

TEST_F(Qsort, EqualBoolsAreSortedWithoutAComparatorCall)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, std::vector<BOOL>(50, CIERTO));
    llamadas_bool = 0;
    arrayprv_ordena<elem_BOOL_NO_USAR>(array, orden_bool_contando);
    EXPECT_EQ(llamadas_bool, 0u);
    EXPECT_EQ(elementos<BOOL>(array, elem_BOOL_NO_USAR), std::vector<BOOL>(50, CIERTO));
    arrayprv_destruye(&array);
}

TEST_F(Qsort, PlanePointsWithoutAComparatorAreReportedAndLeftAsTheyAre)
{
    ARRAY *array = crea_con<Punto2D>(elem_PUNTO2D_NO_USAR, {{2, 0}, {1, 0}});
    arrayprv_ordena<elem_PUNTO2D_NO_USAR>(array, nullptr);
    EXPECT_EQ(informes(), Textos{"(func_compara_punto2D) != NULL"});
    const std::vector<Punto2D> puntos = elementos<Punto2D>(array, elem_PUNTO2D_NO_USAR);
    EXPECT_EQ(puntos[0].x, 2.0);
    EXPECT_EQ(puntos[1].x, 1.0);
    arrayprv_destruye(&array);
}

// Plane points by x, then by y.
int por_x_luego_y(double x1, double y1, double x2, double y2)
{
    if (x1 != x2)
        return x1 < x2 ? comparac_PRIMERO_MENOR : comparac_PRIMERO_MAYOR;
    return y1 < y2 ? comparac_PRIMERO_MENOR : y1 > y2 ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}

TEST_F(Qsort, PlanePointsSortWithTheCallersComparator)
{
    ARRAY *array = crea_con<Punto2D>(elem_PUNTO2D_NO_USAR, {{2, 1}, {1, 5}, {2, 0}, {1, 4}});
    arrayprv_ordena<elem_PUNTO2D_NO_USAR>(array, por_x_luego_y);
    std::vector<std::pair<double, double>> ordenados;
    for (const Punto2D &p : elementos<Punto2D>(array, elem_PUNTO2D_NO_USAR))
        ordenados.emplace_back(p.x, p.y);
    EXPECT_EQ(ordenados, (std::vector<std::pair<double, double>>{{1, 4}, {1, 5}, {2, 0}, {2, 1}}));
    arrayprv_destruye(&array);
}

TEST_F(Qsort, StringsSortByTheDefaultStringOrder)
{
    ARRAY *array = crea_cadenas({"pera", "manzana", "uva", "kiwi", "manzana"});
    arrayprv_ordena<elem_CADENA_NO_USAR>(array, arrayprv_orden_cadena);
    EXPECT_EQ(cadenas_de(array),
              (std::vector<std::string>{"kiwi", "manzana", "manzana", "pera", "uva"}));
    arrayprv_destruye(&array);
}

// The array a read traversal visits, and its guards seen right after a sort made from inside it.
struct OrdenaLeyendo {
    ARRAY *array;
    bool ordenado;
    BOOL lectura_tras_ordenar;
    BOOL bucle_tras_ordenar;
};

BOOL ordena_la_primera_vez(double *, void *datos)
{
    auto *estado = static_cast<OrdenaLeyendo *>(datos);
    if (!estado->ordenado) {
        arr_QSortDouble(estado->array, nullptr);
        estado->ordenado = true;
        estado->lectura_tras_ordenar = estado->array->en_bucle_lectura;
        estado->bucle_tras_ordenar = estado->array->en_bucle;
    }
    return CIERTO;
}

TEST_F(Qsort, SortDuringAReadTraversalIsReportedAndStillSorts)
{
    ARRAY *array = crea_doubles({3.0, 1.0, 2.0});
    OrdenaLeyendo estado{array, false, FALSO, CIERTO};
    fnc_accion acciones{};
    acciones.fnc_accion_double = ordena_la_primera_vez;
    arrayprv_recorre(array, &acciones, &estado, elem_DOUBLE_NO_USAR, 0, 1, "prueba", 1);
    EXPECT_EQ(informes(), Textos{"array->en_bucle_lectura == FALSO"});
    EXPECT_EQ(estado.lectura_tras_ordenar, CIERTO);
    EXPECT_EQ(estado.bucle_tras_ordenar, FALSO);
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0, 3.0}));
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ArrayOfMoreThanLongMaxElementsIsReportedAndLeftAsItIs)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    ARRAY enorme = *array;
    enorme.num_elems = size_t{LONG_MAX} + 1;
    ComparadorAnotado comparador(arrayprv_orden_double);
    arr_QSortDouble(&enorme, ComparadorAnotado::compara);
    EXPECT_EQ(informes(), Textos{"array->num_elems <= LONG_MAX"});
    EXPECT_EQ(comparador.llamadas(), std::vector<Llamada>{});
    EXPECT_EQ(enorme.en_bucle, FALSO);
    EXPECT_EQ(doubles_de(array), (std::vector<double>{2.0, 1.0}));
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, SortWithoutAnAdapterIsReportedAndSortsNothing)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    funciones_ordenacion *tabla =
        arrayprv_crea_ordenacion<elem_DOUBLE_NO_USAR>(arrayprv_orden_double);
    arrayprv_qsort(array, tabla, nullptr, elem_DOUBLE_NO_USAR);
    EXPECT_EQ(informes(), Textos{"(compara) != NULL"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{2.0, 1.0}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye_funciones_ordenacion(&tabla);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, SortOfANullArrayIsReported)
{
    arr_QSortDouble(nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(Qsort, SortOfADeadHeaderIsReportedAndSortsNothing)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    ARRAY muerto = *array;
    muerto.mascara_debug = 0;
    arr_QSortDouble(&muerto, nullptr);
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{2.0, 1.0}));
    EXPECT_EQ(muerto.en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, SortWithAnotherTagOfAnotherSizeIsReportedAndSortsNothing)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    arrayprv_ordena<elem_LONG_NO_USAR>(array, arrayprv_orden_long);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{2.0, 1.0}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

// Positive doubles order as their bits do, read as 64-bit integers.
TEST_F(Qsort, SortWithAnotherTagOfTheSameSizeIsReportedAndSortsByThatTagsOrder)
{
    ARRAY *array = crea_doubles({2.0, 1.0});
    arrayprv_ordena<elem_LONG64_NO_USAR>(array, arrayprv_orden_long64);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ElementCopyReadsAnElementOfAnyRow)
{
    ARRAY *array = crea_doubles(uno_a(600));
    double copia = 0;
    arrayprv_copia_elemento(array, 400, &copia, sizeof copia);
    EXPECT_EQ(copia, 401.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ElementCopyOfTheWrongSizeOrFromNoArrayIsReportedAndCopiesNothing)
{
    ARRAY *array = crea_doubles({5.0});
    double copia = 0;
    arrayprv_copia_elemento(array, 0, &copia, 4);
    EXPECT_EQ(informes(), Textos{"tam_copia == array->size_elem"});
    arrayprv_copia_elemento(nullptr, 0, &copia, sizeof copia);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
    EXPECT_EQ(copia, 0.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, ElementWriteReplacesAnElementOfAnyRow)
{
    ARRAY *array = crea_doubles(uno_a(600));
    const double nuevo = -1.0;
    arrayprv_pon_elemento(array, 300, &nuevo, sizeof nuevo);
    EXPECT_EQ(arr_GetDouble(array, 300), -1.0);
    EXPECT_EQ(arr_GetDouble(array, 299), 300.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, SwapExchangesElementsOfDifferentRows)
{
    ARRAY *array = crea_doubles(uno_a(600));
    double temporal = 0;
    arrayprv_intercambia_elementos(array, 3, 300, &temporal, sizeof temporal);
    EXPECT_EQ(arr_GetDouble(array, 3), 301.0);
    EXPECT_EQ(arr_GetDouble(array, 300), 4.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Qsort, SwapThroughATemporaryOfTheWrongSizeOrOnNoArrayIsReportedAndSwapsNothing)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    double temporal = 0;
    arrayprv_intercambia_elementos(array, 0, 1, &temporal, 4);
    EXPECT_EQ(informes(), Textos{"tam_tmp == array->size_elem"});
    arrayprv_intercambia_elementos(nullptr, 0, 1, &temporal, sizeof temporal);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&array);
}

} // namespace
