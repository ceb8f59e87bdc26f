// The library's quicksort against the independent model, for many random arrays (up to 2000
// elements, so over several rows, with repeated values and NaNs) and comparators that are
// consistent, that answer -5 and 7, or that answer at random: the same comparator calls in the
// same order, the same final order, and a report for every lookup past either end.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"
#include "orden/modelo_qsort.h"

#include <algorithm>
#include <limits>
#include <random>

namespace {

enum class Respuestas {
    exactas,
    orden_total,
    menos_cinco_y_siete,
    mezcladas,
    aleatorias,
    casi_siempre_menor
};

// The IEEE total order of the bits: NaNs and signed zeros included, no two values equal.
int orden_total(double a, double b)
{
    auto clave = [](double x) {
        const uint64_t b = bits(x);
        return (b >> 63) != 0 ? ~b : b | (uint64_t{1} << 63);
    };
    return clave(a) < clave(b) ? -1 : clave(a) > clave(b) ? 1 : 0;
}

// A fresh comparator of the kind; the random one restarts its sequence from `semilla`.
std::function<int(double, double)> comparador(Respuestas tipo, uint32_t semilla)
{
    switch (tipo) {
    case Respuestas::exactas: return arrayprv_orden_double;
    case Respuestas::orden_total: return orden_total;
    case Respuestas::menos_cinco_y_siete:
        return [](double a, double b) { return a < b ? -5 : a > b ? 7 : 0; };
    case Respuestas::mezcladas:
        return [](double a, double b) {
            if (a < b)
                return bits(a) % 3 == 0 ? -5 : -1;
            if (a > b)
                return bits(b) % 3 == 0 ? 7 : 1;
            return 0;
        };
    case Respuestas::aleatorias:
        return [azar = std::mt19937(semilla)](double, double) mutable {
            constexpr int posibles[] = {-1, 0, 1, -5, 7, -1, 1};
            return posibles[azar() % std::size(posibles)];
        };
    case Respuestas::casi_siempre_menor:
        // Long runs of "less" carry the scans past the pivot and off either end of the array.
        return [azar = std::mt19937(semilla)](double, double) mutable {
            constexpr int otras[] = {0, 1, -5, 7};
            return azar() % 10 != 0 ? -1 : otras[azar() % std::size(otras)];
        };
    }
    return nullptr;
}

struct Caso {
    const char *nombre;
    Respuestas respuestas;
    bool con_nan;
    bool sale_del_array = false; // some scans are expected to look past an end
};

void PrintTo(const Caso &caso, std::ostream *os) { *os << caso.nombre; }

// Random values with repeats (and NaNs of both signs, and signed zeros, when asked for).
std::vector<double> valores_al_azar(std::mt19937 &azar, size_t n, bool con_nan)
{
    const uint32_t distintos = 1 + azar() % static_cast<uint32_t>(n + 1);
    std::vector<double> valores;
    for (size_t i = 0; i < n; ++i) {
        const uint32_t tirada = azar() % 40;
        if (con_nan && tirada == 0)
            valores.push_back(std::numeric_limits<double>::quiet_NaN());
        else if (con_nan && tirada == 1)
            valores.push_back(-std::numeric_limits<double>::quiet_NaN());
        else if (tirada == 2)
            valores.push_back(-0.0);
        else
            valores.push_back(static_cast<double>(azar() % distintos) - distintos / 2.0);
    }
    return valores;
}

// A Double array of the values; half of the time its rows are then broken up by inserts and
// deletes at random places, so that they are not all full.
ARRAY *array_al_azar(std::mt19937 &azar, size_t n, bool con_nan)
{
    ARRAY *array = crea_doubles(valores_al_azar(azar, n, con_nan));
    if (azar() % 2 == 0)
        return array;
    for (size_t k = 0; k < n / 4; ++k) {
        const ULONG cuantos = arr_NumElemsDouble(array);
        if (cuantos > 0 && azar() % 2 == 0)
            arr_BorrarDouble(array, azar() % cuantos);
        else
            arr_InsertarDouble(array, azar() % (cuantos + 1), static_cast<double>(azar() % 50));
    }
    return array;
}

// The sizes of the arrays of one run: the small and row-boundary cases, then random ones.
std::vector<size_t> tamanyos(std::mt19937 &azar)
{
    std::vector<size_t> n{0, 1, 2, 3, 29, 30, 255, 256, 257, 2000};
    while (n.size() < 40)
        n.push_back(azar() % 2001);
    return n;
}

::testing::AssertionResult mismas_llamadas(const std::vector<Llamada> &biblioteca,
                                           const std::vector<Llamada> &modelo)
{
    const size_t comunes = std::min(biblioteca.size(), modelo.size());
    const auto distinta =
        std::mismatch(biblioteca.begin(), biblioteca.begin() + comunes, modelo.begin());
    if (distinta.first == biblioteca.begin() + comunes && biblioteca.size() == modelo.size())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "the library made " << biblioteca.size() << " calls, the model " << modelo.size()
           << "; they differ from call " << (distinta.first - biblioteca.begin());
}

class QsortFrenteAlModelo : public PruebaArrays, public ::testing::WithParamInterface<Caso> {};

TEST_P(QsortFrenteAlModelo, SortMatchesTheModelCallByCall)
{
    std::mt19937 azar(static_cast<uint32_t>(GetParam().respuestas) * 7919 + 1);
    size_t salidas = 0;
    for (size_t n : tamanyos(azar)) {
        const uint32_t semilla = azar();
        ARRAY *array = array_al_azar(azar, n, GetParam().con_nan);
        std::vector<double> segun_el_modelo = doubles_de(array);

        ComparadorAnotado de_la_biblioteca(comparador(GetParam().respuestas, semilla));
        arr_QSortDouble(array, ComparadorAnotado::compara);
        const Textos reportados = informes();

        std::vector<Llamada> del_modelo;
        const auto responde = comparador(GetParam().respuestas, semilla);
        const size_t fuera = ordena_como_la_biblioteca(segun_el_modelo, [&](double a, double b) {
            del_modelo.emplace_back(bits(a), bits(b));
            return responde(a, b);
        });

        EXPECT_TRUE(mismas_llamadas(de_la_biblioteca.llamadas(), del_modelo)) << n << " elements";
        EXPECT_EQ(bits_de(doubles_de(array)), bits_de(segun_el_modelo)) << n << " elements";
        EXPECT_EQ(reportados, Textos(fuera, "real_pos < array->num_elems")) << n << " elements";
        EXPECT_EQ(array->en_bucle, FALSO);
        salidas += fuera;
        arr_DestruyeDouble(&array);
    }
    if (GetParam().sale_del_array) {
        EXPECT_GT(salidas, 0u);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Comparadores, QsortFrenteAlModelo,
    ::testing::Values(Caso{"ExactOrder", Respuestas::exactas, false},
                      Caso{"ExactOrderWithNaN", Respuestas::exactas, true},
                      Caso{"TotalOrderWithNaN", Respuestas::orden_total, true},
                      Caso{"MinusFiveAndSeven", Respuestas::menos_cinco_y_siete, true},
                      Caso{"MixedResults", Respuestas::mezcladas, true},
                      Caso{"RandomResults", Respuestas::aleatorias, true},
                      Caso{"MostlyLess", Respuestas::casi_siempre_menor, true, true}),
    [](const ::testing::TestParamInfo<Caso> &info) { return std::string(info.param.nombre); });

class QsortFrenteAStdSort : public PruebaArrays, public ::testing::WithParamInterface<Caso> {};

TEST_P(QsortFrenteAStdSort, ConsistentComparatorSortsLikeStdSort)
{
    std::mt19937 azar(static_cast<uint32_t>(GetParam().respuestas) * 104729 + 3);
    const auto compara = comparador(GetParam().respuestas, 0);
    for (size_t n : tamanyos(azar)) {
        ARRAY *array = array_al_azar(azar, n, GetParam().con_nan);
        std::vector<double> esperado = doubles_de(array);
        std::sort(esperado.begin(), esperado.end(),
                  [&](double a, double b) { return compara(a, b) == comparac_PRIMERO_MENOR; });
        // The exact order is the default one, asked for with no comparator.
        arr_QSortDouble(array,
                        GetParam().respuestas == Respuestas::exactas ? nullptr : orden_total);
        const std::vector<double> ordenado = doubles_de(array);
        ASSERT_EQ(ordenado.size(), esperado.size());
        for (size_t i = 0; i < ordenado.size(); ++i)
            ASSERT_EQ(compara(ordenado[i], esperado[i]), comparac_IGUALES)
                << "position " << i << " of " << n;
        arr_DestruyeDouble(&array);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Consistentes, QsortFrenteAStdSort,
    ::testing::Values(Caso{"ExactOrder", Respuestas::exactas, false},
                      Caso{"TotalOrderWithNaN", Respuestas::orden_total, true}),
    [](const ::testing::TestParamInfo<Caso> &info) { return std::string(info.param.nombre); });

} // namespace
