// The sort with a type's default order (no comparator given) runs a quicksort specialised for the
// type, sorts ranges inside one row on plain pointers and finishes ordered or strictly decreasing
// input in one walk. None of it may show: each
// test sorts the same elements once that way and once through the comparator table with the same
// default order, and asks for the same bytes in the same places, the same reports and rows.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "core/quicksort.h"
#include "orden/ayudas_orden.h"
#include "orden/contraste_orden.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

using QsortPorDefecto = PruebaArrays;

void ordena_doubles(ARRAY *array) { arr_QSortDouble(array, nullptr); }
void ordena_long(ARRAY *array) { arr_QSortLong(array, nullptr); }
void ordena_char(ARRAY *array) { arr_QSortChar(array, nullptr); }
void ordena_byte(ARRAY *array) { arr_QSortBYTE(array, nullptr); }
void ordena_bool(ARRAY *array) { arr_QSortBOOL(array, nullptr); }
void ordena_ulong64(ARRAY *array) { arr_QSortULong64(array, nullptr); }

// Doubles with every value that the order treats oddly: NaNs (equal to everything), signed
// zeros (equal, different bytes), infinities and repeats.
std::vector<double> doubles_dificiles(size_t n, unsigned semilla)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const std::vector<double> raros{nan, -0.0, 0.0, inf, -inf, 1.5, -1.5};
    std::mt19937 azar(semilla);
    std::vector<double> v(n);
    for (double &x : v)
        x = azar() % 4 == 0 ? raros[azar() % raros.size()] : static_cast<double>(azar() % 50) - 25;
    return v;
}

template <typename T> std::vector<T> enteros_al_azar(size_t n, unsigned semilla)
{
    std::mt19937_64 azar(semilla);
    std::vector<T> v(n);
    for (T &x : v)
        x = static_cast<T>(azar());
    return v;
}

TEST_F(QsortPorDefecto, DoublesWithNaNsSignedZerosAndRepeatsEndAsThroughTheTable)
{
    for (size_t n : {2, 3, 17, 300, 5000})
        for (unsigned semilla : {1u, 2u, 3u})
            compara_con_la_tabla<elem_DOUBLE_NO_USAR>(doubles_dificiles(n, semilla),
                                                      arrayprv_orden_double, ordena_doubles);
}

TEST_F(QsortPorDefecto, DoublesInUnevenRowsEndAsThroughTheTable)
{
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(doubles_dificiles(6000, 4), arrayprv_orden_double,
                                              ordena_doubles, 2000);
}

// Without NaNs, every range of the quicksort that lies in one row is sorted there on plain
// pointers; signed zeros and repeats must still land where the table sort puts them.
TEST_F(QsortPorDefecto, DoublesWithoutNaNsSortedInsideRowsEndAsThroughTheTable)
{
    for (unsigned semilla : {5u, 6u, 7u}) {
        auto v = doubles_dificiles(5000, semilla);
        std::replace_if(v.begin(), v.end(), [](double x) { return std::isnan(x); }, -0.0);
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles);
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles, 1500);
    }
}

TEST_F(QsortPorDefecto, OrderedDoublesWithMixedSignedZerosKeepTheirBytes)
{
    std::vector<double> v;
    for (int k = 0; k < 3000; ++k)
        v.push_back(k < 1000 ? -5.0 + k * 0.001 : k < 2000 ? (k % 3 == 0 ? -0.0 : 0.0) : k * 1.0);
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles);
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles, 700);
}

TEST_F(QsortPorDefecto, StrictlyDecreasingDoublesEndReversed)
{
    std::vector<double> v;
    for (int k = 3000; k > 0; --k)
        v.push_back(k * 0.5 - 200.0);
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles);
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(v, arrayprv_orden_double, ordena_doubles, 900);
}

// Strictly decreasing arrays are reversed in place: of odd and even length, in full rows and in
// uneven ones (deletions at random places keep the order and leave rows of every length).
TEST_F(QsortPorDefecto, StrictlyDecreasingArraysOfEveryLengthAndRowShapeEndAscending)
{
    std::mt19937 azar(4);
    for (size_t n : {size_t{2}, size_t{3}, size_t{256}, size_t{257}, size_t{5000}, size_t{5001}})
        for (size_t borrados : {size_t{0}, n / 3}) {
            SCOPED_TRACE(::testing::Message() << "n " << n << ", deleted " << borrados);
            std::vector<LONG64> v(n);
            for (size_t k = 0; k < n; ++k)
                v[k] = static_cast<LONG64>(n - k) * 1000003 - 77;
            ARRAY *array = crea_con<LONG64>(elem_LONG64_NO_USAR, v);
            for (size_t k = 0; k < borrados; ++k)
                arrayprv_borra(array, static_cast<ULONG>(azar() % array->num_elems),
                               elem_LONG64_NO_USAR);
            std::vector<LONG64> esperado = elementos<LONG64>(array, elem_LONG64_NO_USAR);
            std::reverse(esperado.begin(), esperado.end());
            const Disposicion filas = disposicion(array);
            arr_QSortLong64(array, nullptr);
            EXPECT_EQ(elementos<LONG64>(array, elem_LONG64_NO_USAR), esperado);
            EXPECT_EQ(disposicion(array), filas);
            arrayprv_destruye(&array);
        }
}

TEST_F(QsortPorDefecto, NearlyMonotoneDoublesWithANaNOrARepeatAreSortedInFull)
{
    std::vector<double> creciente;
    for (int k = 0; k < 2000; ++k)
        creciente.push_back(k * 1.0);
    std::vector<double> decreciente(creciente.rbegin(), creciente.rend());
    for (std::vector<double> v : {creciente, decreciente}) {
        auto con_nan = v;
        con_nan[1234] = std::numeric_limits<double>::quiet_NaN();
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(con_nan, arrayprv_orden_double, ordena_doubles);
        // A NaN between neighbours out of order: every neighbouring pair compares in order.
        auto nan_entre_desordenados = v;
        nan_entre_desordenados[700] = std::numeric_limits<double>::quiet_NaN();
        std::swap(nan_entre_desordenados[699], nan_entre_desordenados[701]);
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(nan_entre_desordenados, arrayprv_orden_double,
                                                  ordena_doubles);
        auto con_repeticion = v;
        con_repeticion[500] = con_repeticion[501];
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(con_repeticion, arrayprv_orden_double, ordena_doubles);
        auto con_cambio = v;
        std::swap(con_cambio[10], con_cambio[1990]);
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(con_cambio, arrayprv_orden_double, ordena_doubles);
    }
}

TEST_F(QsortPorDefecto, ANaNBetweenTwoValuesOutOfOrderIsSortedAsThroughTheTable)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(std::vector<double>{5.0, nan, 3.0},
                                              arrayprv_orden_double, ordena_doubles);
    ARRAY *array = crea_doubles({5.0, nan, 3.0});
    arr_QSortDouble(array, nullptr);
    EXPECT_EQ(bits_de(doubles_de(array)), bits_de({3.0, nan, 5.0}));
    arr_DestruyeDouble(&array);
}

TEST_F(QsortPorDefecto, IntegersOfEveryWidthAndSignEndAsThroughTheTable)
{
    for (size_t n : {2, 50, 4000}) {
        compara_con_la_tabla<elem_LONG_NO_USAR>(enteros_al_azar<LONG>(n, 5), arrayprv_orden_long,
                                                ordena_long);
        compara_con_la_tabla<elem_CHAR_NO_USAR>(enteros_al_azar<char>(n, 6), arrayprv_orden_char,
                                                ordena_char);
        compara_con_la_tabla<elem_BYTE_NO_USAR>(enteros_al_azar<BYTE>(n, 7), arrayprv_orden_byte,
                                                ordena_byte);
        compara_con_la_tabla<elem_ULONG64_NO_USAR>(enteros_al_azar<ULONG64>(n, 8),
                                                   arrayprv_orden_ulong64, ordena_ulong64);
    }
    auto ordenados = enteros_al_azar<LONG>(3000, 9);
    std::sort(ordenados.begin(), ordenados.end());
    compara_con_la_tabla<elem_LONG_NO_USAR>(ordenados, arrayprv_orden_long, ordena_long, 500);
    std::reverse(ordenados.begin(), ordenados.end());
    compara_con_la_tabla<elem_LONG_NO_USAR>(ordenados, arrayprv_orden_long, ordena_long, 500);
}

TEST_F(QsortPorDefecto, TheOneSidedBoolOrderEndsAsThroughTheTable)
{
    for (const std::vector<BOOL> &v : {std::vector<BOOL>{1, 0, 2, 0, 1, 1, 0}, std::vector<BOOL>{0, 0, 1, 1, 2},
                                       std::vector<BOOL>{7, 5, 3, 1, 0}})
        compara_con_la_tabla<elem_BOOL_NO_USAR>(v, arrayprv_orden_bool, ordena_bool);
    std::vector<BOOL> largo(3000);
    std::mt19937 azar(10);
    for (BOOL &b : largo)
        b = static_cast<BOOL>(azar() % 3);
    compara_con_la_tabla<elem_BOOL_NO_USAR>(largo, arrayprv_orden_bool, ordena_bool, 400);
}

// Strings that compare equal may still be different strings: the sorted array must hold the
// same strings (pointers) in the same places, NULL elements included.
TEST_F(QsortPorDefecto, StringsEndAsThroughTheTableStringForString)
{
    std::mt19937 azar(12);
    std::vector<std::string> textos(2500);
    for (std::string &t : textos)
        t = std::string(1 + azar() % 3, static_cast<char>('a' + azar() % 4));
    ARRAY *arrays[2];
    std::vector<std::vector<const char *>> originales(2);
    for (int k = 0; k < 2; ++k) {
        arrays[k] = arr_CreaCADENA(0);
        for (size_t i = 0; i < textos.size(); ++i)
            arr_AppendCADENA(arrays[k], i % 97 == 5 ? nullptr : textos[i].c_str());
        originales[k] = elementos<const char *>(arrays[k], elem_CADENA_NO_USAR);
    }
    arr_QSortCADENA(arrays[0], nullptr);
    arrayprv_ordena<elem_CADENA_NO_USAR>(arrays[1], arrayprv_orden_cadena);
    // Where each original element went, by its place before the sort.
    std::vector<std::vector<size_t>> lugares(2);
    for (int k = 0; k < 2; ++k)
        for (const char *c : elementos<const char *>(arrays[k], elem_CADENA_NO_USAR))
            lugares[k].push_back(static_cast<size_t>(
                std::find(originales[k].begin(), originales[k].end(), c) - originales[k].begin()));
    EXPECT_EQ(lugares[0], lugares[1]);
    for (ARRAY *&array : arrays)
        arr_DestruyeCADENA(&array);
}

TEST_F(QsortPorDefecto, ReportsOfAnUnusableArrayAreThoseOfTheTableSort)
{
    ARRAY *array = crea_doubles({3.0, 1.0, 2.0});
    array->en_bucle = CIERTO;
    arr_QSortDouble(array, nullptr);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(doubles_de(array), (std::vector<double>{1.0, 2.0, 3.0}));
    arr_QSortDouble(nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
    ARRAY *longs = crea_con<LONG>(elem_LONG_NO_USAR, {1, 2});
    arr_QSortDouble(longs, nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    arrayprv_destruye(&longs);
    arr_DestruyeDouble(&array);
}

} // namespace
