// Sorting doubles: random, already sorted, reversed and all equal, with the default order and
// with a user comparator reached through a function pointer, against glibc's qsort, std::sort
// and Boost's pdqsort on the same data.
#include "comun.h"

#include <boost/sort/pdqsort/pdqsort.hpp>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

int compara(double a, double b) { return (a > b) - (a < b); }

// The user's comparator as the caller holds it: a pointer the compiler cannot see through.
int (*volatile comparador)(double, double) = compara;

int compara_qsort(const void *a, const void *b)
{
    return comparador(*static_cast<const double *>(a), *static_cast<const double *>(b));
}

int compara_qsort_por_defecto(const void *a, const void *b)
{
    return compara(*static_cast<const double *>(a), *static_cast<const double *>(b));
}

enum class Patron { aleatorio, ordenado, invertido, iguales };

std::vector<double> datos(Patron patron, size_t n)
{
    std::vector<double> v = valores_aleatorios(n);
    if (patron == Patron::ordenado)
        std::sort(v.begin(), v.end());
    else if (patron == Patron::invertido)
        std::sort(v.begin(), v.end(), std::greater<>());
    else if (patron == Patron::iguales)
        std::fill(v.begin(), v.end(), 3.5);
    return v;
}

// Runs `ordena(copy)` on a fresh copy of the data at every iteration; the copy is not timed.
template <typename Copia, typename Ordena>
void mide(benchmark::State &estado, Patron patron, Copia copia, Ordena ordena)
{
    const auto v = datos(patron, static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        estado.PauseTiming();
        auto c = copia(v);
        estado.ResumeTiming();
        ordena(c);
        benchmark::DoNotOptimize(c);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

// This library's array holding the data, destroyed with its holder.
struct Copia {
    std::unique_ptr<Arrays> a;
    explicit Copia(const std::vector<double> &v) : a(std::make_unique<Arrays>(static_cast<ULONG>(v.size())))
    {
        for (size_t i = 0; i < v.size(); ++i)
            arr_SetDouble(a->a, static_cast<ULONG>(i), v[i]);
    }
};

auto copia_arrays = [](const std::vector<double> &v) { return Copia(v); };
auto copia_vector = [](const std::vector<double> &v) { return v; };

void registra_patron(const std::string &sufijo, Patron p)
{
    const auto registra_uno = [&](const std::string &nombre, auto funcion) {
        benchmark::RegisterBenchmark(("sort_" + sufijo + "/" + nombre).c_str(), funcion)
            ->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
    };
    registra_uno("arrays", [p](benchmark::State &e) {
        mide(e, p, copia_arrays, [](Copia &c) { arr_QSortDouble(c.a->a, nullptr); });
    });
    registra_uno("qsort", [p](benchmark::State &e) {
        mide(e, p, copia_vector, [](std::vector<double> &v) {
            std::qsort(v.data(), v.size(), sizeof(double), compara_qsort_por_defecto);
        });
    });
    registra_uno("std::sort", [p](benchmark::State &e) {
        mide(e, p, copia_vector, [](std::vector<double> &v) { std::sort(v.begin(), v.end()); });
    });
    registra_uno("pdqsort", [p](benchmark::State &e) {
        mide(e, p, copia_vector,
             [](std::vector<double> &v) { boost::sort::pdqsort(v.begin(), v.end()); });
    });
}

void registra_comparador_usuario()
{
    const auto menor = [](double a, double b) { return comparador(a, b) < 0; };
    const auto registra_uno = [&](const std::string &nombre, auto funcion) {
        benchmark::RegisterBenchmark(("sort_user_comparator/" + nombre).c_str(), funcion)
            ->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
    };
    registra_uno("arrays", [](benchmark::State &e) {
        mide(e, Patron::aleatorio, copia_arrays, [](Copia &c) { arr_QSortDouble(c.a->a, comparador); });
    });
    registra_uno("qsort", [](benchmark::State &e) {
        mide(e, Patron::aleatorio, copia_vector, [](std::vector<double> &v) {
            std::qsort(v.data(), v.size(), sizeof(double), compara_qsort);
        });
    });
    registra_uno("std::sort", [menor](benchmark::State &e) {
        mide(e, Patron::aleatorio, copia_vector,
             [menor](std::vector<double> &v) { std::sort(v.begin(), v.end(), menor); });
    });
    registra_uno("pdqsort", [menor](benchmark::State &e) {
        mide(e, Patron::aleatorio, copia_vector,
             [menor](std::vector<double> &v) { boost::sort::pdqsort(v.begin(), v.end(), menor); });
    });
}

const bool registrado = [] {
    registra_patron("random", Patron::aleatorio);
    registra_patron("sorted", Patron::ordenado);
    registra_patron("reversed", Patron::invertido);
    registra_patron("equal", Patron::iguales);
    registra_comparador_usuario();
    return true;
}();

} // namespace
