// The default sorts of the nine integer types and of doubles, which sort by keys where the result
// cannot show how: over the certification inputs of Bentley and McIlroy (sawtooth, random,
// stagger, plateau and shuffle, each as is, reversed, half reversed, sorted and dithered), organ
// pipes, NaNs and signed zeros, in even and uneven rows, each ends byte for byte as the documented
// quicksort leaves it. The in-place fallback sorts as well.
#include "soporte/prueba_arrays.h"

#include "core/orden_claves.h"
#include "orden/contraste_orden.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>

namespace {

using OrdenClaves = PruebaArrays;

enum class Forma { sierra, azar, escalonada, meseta, barajada, organo };

// The value at index i of a pattern of n values with parameter m.
long long patron(Forma forma, size_t i, size_t n, size_t m, std::mt19937_64 &azar)
{
    switch (forma) {
    case Forma::sierra:
        return static_cast<long long>(i % m);
    case Forma::azar:
        return static_cast<long long>(azar() % m);
    case Forma::escalonada:
        return static_cast<long long>((i * m + i) % n);
    case Forma::meseta:
        return static_cast<long long>(std::min(i, m));
    case Forma::barajada:
        return static_cast<long long>(azar() % m != 0 ? 2 * i : 2 * i + 1);
    case Forma::organo:
        return static_cast<long long>(i < n / 2 ? i : n - i);
    }
    return 0;
}

// Bentley and McIlroy's ways of presenting a pattern.
enum class Variante { tal_cual, invertida, primera_mitad_invertida, segunda_mitad_invertida,
                      ordenada, con_ruido };

template <typename T> std::vector<T> presenta(std::vector<T> v, Variante variante)
{
    const auto mitad = v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2);
    switch (variante) {
    case Variante::tal_cual:
        break;
    case Variante::invertida:
        std::reverse(v.begin(), v.end());
        break;
    case Variante::primera_mitad_invertida:
        std::reverse(v.begin(), mitad);
        break;
    case Variante::segunda_mitad_invertida:
        std::reverse(mitad, v.end());
        break;
    case Variante::ordenada:
        std::sort(v.begin(), v.end());
        break;
    case Variante::con_ruido:
        for (size_t i = 0; i < v.size(); ++i)
            v[i] = static_cast<T>(v[i] + static_cast<T>(i % 5));
        break;
    }
    return v;
}

template <typename T> std::vector<T> entrada(Forma forma, Variante variante, size_t n, size_t m)
{
    std::mt19937_64 azar(n * 31 + m);
    std::vector<T> v(n);
    for (size_t i = 0; i < n; ++i)
        v[i] = static_cast<T>(patron(forma, i, n, m, azar));
    return presenta(std::move(v), variante);
}

// Every pattern and presentation at two sizes (the larger also in uneven rows) and three
// parameters, for one type.
template <tipo_elem_array TAG, typename T>
void contrasta_patrones(comparador_de<TAG> orden, void (*ordena)(ARRAY *))
{
    for (Forma forma : {Forma::sierra, Forma::azar, Forma::escalonada, Forma::meseta,
                        Forma::barajada, Forma::organo})
        for (Variante variante : {Variante::tal_cual, Variante::invertida,
                                  Variante::primera_mitad_invertida,
                                  Variante::segunda_mitad_invertida, Variante::ordenada,
                                  Variante::con_ruido})
            for (size_t n : {size_t{100}, size_t{1500}})
                for (size_t m : {size_t{1}, size_t{16}, n}) {
                    SCOPED_TRACE(::testing::Message() << "form " << static_cast<int>(forma)
                                                      << ", variant " << static_cast<int>(variante)
                                                      << ", n " << n << ", m " << m);
                    const std::vector<T> v = entrada<T>(forma, variante, n, m);
                    compara_con_la_tabla<TAG>(v, orden, ordena);
                    if (n > 1000)
                        compara_con_la_tabla<TAG>(v, orden, ordena, n / 3);
                }
}

TEST_F(OrdenClaves, DoublesEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_DOUBLE_NO_USAR, double>(
        arrayprv_orden_double, [](ARRAY *a) { arr_QSortDouble(a, nullptr); });
}

TEST_F(OrdenClaves, LongsEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_LONG_NO_USAR, LONG>(arrayprv_orden_long,
                                                [](ARRAY *a) { arr_QSortLong(a, nullptr); });
}

TEST_F(OrdenClaves, UnsignedLongsEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_ULONG_NO_USAR, ULONG>(arrayprv_orden_ulong,
                                                  [](ARRAY *a) { arr_QSortULong(a, nullptr); });
}

TEST_F(OrdenClaves, Long64sEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_LONG64_NO_USAR, LONG64>(
        arrayprv_orden_long64, [](ARRAY *a) { arr_QSortLong64(a, nullptr); });
}

TEST_F(OrdenClaves, UnsignedLong64sEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_ULONG64_NO_USAR, ULONG64>(
        arrayprv_orden_ulong64, [](ARRAY *a) { arr_QSortULong64(a, nullptr); });
}

TEST_F(OrdenClaves, ShortsEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_SHORT_NO_USAR, SHORT>(arrayprv_orden_short,
                                                  [](ARRAY *a) { arr_QSortShort(a, nullptr); });
}

TEST_F(OrdenClaves, UnsignedShortsEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_USHORT_NO_USAR, USHORT>(
        arrayprv_orden_ushort, [](ARRAY *a) { arr_QSortUShort(a, nullptr); });
}

TEST_F(OrdenClaves, BytesEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_BYTE_NO_USAR, BYTE>(arrayprv_orden_byte,
                                                [](ARRAY *a) { arr_QSortBYTE(a, nullptr); });
}

TEST_F(OrdenClaves, UnsignedCharsEndAsTheDocumentedQuicksortLeavesThem)
{
    contrasta_patrones<elem_UCHAR_NO_USAR, UCHAR>(arrayprv_orden_byte,
                                                  [](ARRAY *a) { arr_QSortUChar(a, nullptr); });
}

TEST_F(OrdenClaves, CharsEndAsTheDocumentedQuicksortLeavesThemInSignedOrder)
{
    contrasta_patrones<elem_CHAR_NO_USAR, char>(arrayprv_orden_char,
                                                [](ARRAY *a) { arr_QSortChar(a, nullptr); });
}

TEST_F(OrdenClaves, NegativeAndPositiveValuesOfEveryWidthOrderBySign)
{
    std::mt19937_64 azar(3);
    std::vector<LONG64> v(2000);
    for (LONG64 &x : v)
        x = static_cast<LONG64>(azar()) >> (azar() % 64);
    compara_con_la_tabla<elem_LONG64_NO_USAR>(v, arrayprv_orden_long64,
                                              [](ARRAY *a) { arr_QSortLong64(a, nullptr); }, 500);
    std::vector<double> d(2000);
    for (double &x : d)
        x = std::ldexp(static_cast<double>(static_cast<LONG>(azar())), static_cast<int>(azar() % 600) - 300);
    d[7] = std::numeric_limits<double>::infinity();
    d[8] = -std::numeric_limits<double>::infinity();
    d[9] = 0.0;
    d[10] = std::numeric_limits<double>::denorm_min();
    compara_con_la_tabla<elem_DOUBLE_NO_USAR>(d, arrayprv_orden_double,
                                              [](ARRAY *a) { arr_QSortDouble(a, nullptr); }, 500);
}

// Keys of the full width, keys that share some high bytes and differ in the others, and keys with
// many duplicates, in buckets of every size, in even and uneven rows.
TEST_F(OrdenClaves, WideAndClusteredKeysEndAsTheDocumentedQuicksortLeavesThem)
{
    std::mt19937_64 azar(5);
    const size_t n = 60000;
    const std::vector<std::function<ULONG64()>> reparticiones = {
        [&] { return azar(); },
        [&] { return azar() >> (azar() % 64); },
        [&] { return azar() & 0x0000FFFFFFFFFFFF; },
        [&] { return (azar() % 1000) << 30; },
    };
    for (const auto &reparto : reparticiones) {
        std::vector<ULONG64> u(n);
        std::generate(u.begin(), u.end(), reparto);
        compara_con_la_tabla<elem_ULONG64_NO_USAR>(
            u, arrayprv_orden_ulong64, [](ARRAY *a) { arr_QSortULong64(a, nullptr); }, n / 4);
        std::vector<LONG64> l(u.begin(), u.end());
        compara_con_la_tabla<elem_LONG64_NO_USAR>(
            l, arrayprv_orden_long64, [](ARRAY *a) { arr_QSortLong64(a, nullptr); });
        std::vector<double> d(n);
        std::transform(u.begin(), u.end(), d.begin(),
                       [](ULONG64 x) { return static_cast<double>(static_cast<LONG64>(x)) / 4096; });
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(
            d, arrayprv_orden_double, [](ARRAY *a) { arr_QSortDouble(a, nullptr); }, n / 4);
        std::vector<LONG> w(n);
        std::transform(u.begin(), u.end(), w.begin(),
                       [](ULONG64 x) { return static_cast<LONG>(x ^ (x >> 32)); });
        compara_con_la_tabla<elem_LONG_NO_USAR>(
            w, arrayprv_orden_long, [](ARRAY *a) { arr_QSortLong(a, nullptr); }, n / 4);
    }
}

// Large arrays, whose buckets take several digits each way between the copy and the rows before
// they are short enough for insertion, in uneven rows: the order of std::sort.
template <typename T>
void ordena_grande_como_std_sort(tipo_elem_array tipo, std::vector<T> valores,
                                 void (*ordena)(ARRAY *))
{
    std::mt19937_64 azar(valores.size());
    ARRAY *array = crea_con<T>(tipo, std::vector<T>(valores.begin(), valores.end() - 5000));
    for (auto v = valores.end() - 5000; v != valores.end(); ++v)
        arrayprv_inserta(array, static_cast<ULONG>(azar() % array->num_elems), &*v, tipo);
    std::sort(valores.begin(), valores.end());
    ordena(array);
    EXPECT_EQ(elementos<T>(array, tipo), valores);
    arrayprv_destruye(&array);
}

TEST_F(OrdenClaves, LargeArraysOfEveryDistributionEndAsStdSortLeavesThem)
{
    std::mt19937_64 azar(11);
    const size_t n = 400000;
    const std::vector<std::function<ULONG64()>> reparticiones = {
        [&] { return azar(); },
        [&] { return azar() >> (azar() % 64); },
        [&] { return azar() & 0xFFFF00000000FFFF; },
        [&] { return (azar() % 3000) << 20; },
        [&] { return azar() % 40; },
    };
    for (const auto &reparto : reparticiones) {
        std::vector<ULONG64> u(n);
        std::generate(u.begin(), u.end(), reparto);
        ordena_grande_como_std_sort<ULONG64>(elem_ULONG64_NO_USAR, u,
                                             [](ARRAY *a) { arr_QSortULong64(a, nullptr); });
        ordena_grande_como_std_sort<LONG64>(elem_LONG64_NO_USAR,
                                            std::vector<LONG64>(u.begin(), u.end()),
                                            [](ARRAY *a) { arr_QSortLong64(a, nullptr); });
        std::vector<double> d(n);
        std::transform(u.begin(), u.end(), d.begin(),
                       [](ULONG64 x) { return static_cast<double>(static_cast<LONG64>(x)) / 4096; });
        ordena_grande_como_std_sort<double>(elem_DOUBLE_NO_USAR, d,
                                            [](ARRAY *a) { arr_QSortDouble(a, nullptr); });
        std::vector<LONG> w(n);
        std::transform(u.begin(), u.end(), w.begin(),
                       [](ULONG64 x) { return static_cast<LONG>(x ^ (x >> 32)); });
        ordena_grande_como_std_sort<LONG>(elem_LONG_NO_USAR, w,
                                          [](ARRAY *a) { arr_QSortLong(a, nullptr); });
        std::vector<SHORT> c(n);
        std::transform(u.begin(), u.end(), c.begin(),
                       [](ULONG64 x) { return static_cast<SHORT>(x ^ (x >> 48)); });
        ordena_grande_como_std_sort<SHORT>(elem_SHORT_NO_USAR, c,
                                           [](ARRAY *a) { arr_QSortShort(a, nullptr); });
    }
}

TEST_F(OrdenClaves, DoublesWithANaNOrBothZerosTakeTheDocumentedQuicksort)
{
    std::vector<double> v = entrada<double>(Forma::azar, Variante::tal_cual, 3000, 3000);
    std::vector<double> con_nan = v;
    con_nan[1234] = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> con_ceros = v;
    con_ceros[10] = 0.0;
    con_ceros[2000] = -0.0;
    for (const auto &valores : {con_nan, con_ceros})
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(valores, arrayprv_orden_double,
                                                  [](ARRAY *a) { arr_QSortDouble(a, nullptr); });
    ARRAY *array = crea_con<double>(elem_DOUBLE_NO_USAR, con_ceros);
    EXPECT_FALSE(arrayprv_dobles_sin_empates_aparentes(array));
    arrayprv_destruye(&array);
    array = crea_con<double>(elem_DOUBLE_NO_USAR, v);
    EXPECT_TRUE(arrayprv_dobles_sin_empates_aparentes(array));
    arrayprv_destruye(&array);
}

// A NaN of either sign (its key beyond an infinity's) or zeros of both signs anywhere, with
// infinities beside them, turn the sort by keys down before it changes anything; infinities
// alone do not.
TEST_F(OrdenClaves, TheSortByKeysRefusesDoublesWithANaNOfEitherSignOrBothZeros)
{
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> v = entrada<double>(Forma::azar, Variante::tal_cual, 5000, 5000);
    v[3] = inf;
    v[4] = -inf;
    std::vector<std::vector<double>> ambiguos;
    for (size_t sitio : {size_t{0}, size_t{2500}, size_t{4999}})
        for (double raro : {nan, -nan, std::bit_cast<double>(uint64_t{0x7FF0000000000001}),
                            std::bit_cast<double>(uint64_t{0xFFF0000000000001})}) {
            ambiguos.push_back(v);
            ambiguos.back()[sitio] = raro;
        }
    ambiguos.push_back(v);
    ambiguos.back()[0] = -0.0;
    ambiguos.back()[4999] = 0.0;
    for (const auto &valores : ambiguos) {
        ARRAY *array = crea_con<double>(elem_DOUBLE_NO_USAR, valores);
        EXPECT_FALSE(arrayprv_ordena_por_claves<double>(array));
        const auto quedan = elementos<double>(array, elem_DOUBLE_NO_USAR);
        EXPECT_EQ(std::memcmp(quedan.data(), valores.data(), valores.size() * sizeof(double)), 0);
        arrayprv_destruye(&array);
        compara_con_la_tabla<elem_DOUBLE_NO_USAR>(
            valores, arrayprv_orden_double, [](ARRAY *a) { arr_QSortDouble(a, nullptr); }, 1000);
    }
    ARRAY *array = crea_con<double>(elem_DOUBLE_NO_USAR, v);
    EXPECT_TRUE(arrayprv_ordena_por_claves<double>(array));
    std::sort(v.begin(), v.end());
    EXPECT_EQ(elementos<double>(array, elem_DOUBLE_NO_USAR), v);
    arrayprv_destruye(&array);
}

TEST_F(OrdenClaves, InPlaceFallbackSortsEvenAndUnevenRows)
{
    std::mt19937_64 azar(9);
    std::vector<LONG> v(3000);
    for (LONG &x : v)
        x = static_cast<LONG>(azar());
    ARRAY *array = crea_con<LONG>(elem_LONG_NO_USAR, v);
    for (LONG k = 0; k < 700; ++k)
        arrayprv_inserta(array, static_cast<ULONG>(azar() % array->num_elems), &k, elem_LONG_NO_USAR);
    std::vector<LONG> esperado = elementos<LONG>(array, elem_LONG_NO_USAR);
    std::sort(esperado.begin(), esperado.end());
    arrayprv_ordena_en_sitio<LONG>(array);
    EXPECT_EQ(elementos<LONG>(array, elem_LONG_NO_USAR), esperado);
    arrayprv_destruye(&array);
}

} // namespace
