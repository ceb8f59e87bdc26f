// Sorting with the default order: doubles, Long, Long64 and BYTE over random data and the shapes
// that make a quicksort slow (sorted, reversed, all equal, organ pipe, sawtooth, stagger, plateau),
// against glibc's qsort, std::sort and Boost's pdqsort on the same data; and doubles with a user
// comparator reached through a function pointer. Names: "sort_<shape>[_<type>]/<container>/<n>",
// the doubles without a type word.
#include "comun.h"

#include "arrays.hpp"

#include <boost/sort/pdqsort/pdqsort.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <type_traits>

namespace {

int compara(double a, double b) { return (a > b) - (a < b); }

// The user's comparator as the caller holds it: a pointer the compiler cannot see through.
int (*volatile comparador)(double, double) = compara;

int compara_qsort(const void *a, const void *b)
{
    return comparador(*static_cast<const double *>(a), *static_cast<const double *>(b));
}

template <typename T> int compara_qsort_por_defecto(const void *a, const void *b)
{
    const T x = *static_cast<const T *>(a);
    const T y = *static_cast<const T *>(b);
    return (x > y) - (x < y);
}

enum class Forma { aleatorio, ordenado, invertido, iguales, organo, sierra, escalonada, meseta };

// The value at index i of a shape of n values; random values come from `azar`.
template <typename T> T valor(Forma forma, size_t i, size_t n, std::mt19937_64 &azar)
{
    const auto como_t = [](uint64_t x) {
        if constexpr (std::is_floating_point_v<T>)
            return static_cast<T>(static_cast<int64_t>(x)) / 4096;
        else
            return static_cast<T>(x);
    };
    switch (forma) {
    case Forma::aleatorio:
    case Forma::ordenado:
    case Forma::invertido:
        return como_t(azar());
    case Forma::iguales:
        return como_t(35);
    case Forma::organo:
        return como_t(i < n / 2 ? i : n - i);
    case Forma::sierra:
        return como_t(i % 1000);
    case Forma::escalonada:
        return como_t((i * 2) % n); // stagger with m = 1
    case Forma::meseta:
        return como_t(std::min(i, n / 2));
    }
    return T{};
}

template <typename T> std::vector<T> datos(Forma forma, size_t n)
{
    std::mt19937_64 azar(7);
    std::vector<T> v(n);
    for (size_t i = 0; i < n; ++i)
        v[i] = valor<T>(forma, i, n, azar);
    if (forma == Forma::ordenado)
        std::sort(v.begin(), v.end());
    else if (forma == Forma::invertido)
        std::sort(v.begin(), v.end(), std::greater<>());
    return v;
}

// Runs `ordena(copy)` on a fresh copy of the data at every iteration; the copy is not timed.
template <typename T, typename Copia, typename Ordena>
void mide(benchmark::State &estado, Forma forma, Copia copia, Ordena ordena)
{
    const auto v = datos<T>(forma, static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        estado.PauseTiming();
        auto c = copia(v);
        estado.ResumeTiming();
        ordena(c);
        benchmark::DoNotOptimize(c);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

// This library's array holding the data.
template <typename T> arr::array<T> copia_arrays(const std::vector<T> &v)
{
    arr::array<T> a;
    for (const T &x : v)
        a.push_back(x);
    return a;
}

template <typename T> std::vector<T> copia_vector(const std::vector<T> &v) { return v; }

// The library's sort with the default order, by type.
void ordena_arrays(arr::array<double> &a) { arr_QSortDouble(a.get(), nullptr); }
void ordena_arrays(arr::array<int32_t> &a) { arr_QSortLong(a.get(), nullptr); }
void ordena_arrays(arr::array<int64_t> &a) { arr_QSortLong64(a.get(), nullptr); }
void ordena_arrays(arr::array<uint8_t> &a) { arr_QSortBYTE(a.get(), nullptr); }

template <typename T>
void registra_forma(const std::string &nombre_forma, const std::string &tipo, Forma f,
                    std::initializer_list<int64_t> tamanyos)
{
    const std::string operacion = "sort_" + nombre_forma + tipo;
    for (int64_t n : tamanyos) {
        const auto registra_uno = [&](const std::string &nombre, auto funcion) {
            benchmark::RegisterBenchmark((operacion + "/" + nombre).c_str(), funcion)
                ->Arg(n)->Unit(benchmark::kMicrosecond);
        };
        registra_uno("arrays", [f](benchmark::State &e) {
            mide<T>(e, f, copia_arrays<T>, [](arr::array<T> &a) { ordena_arrays(a); });
        });
        registra_uno("qsort", [f](benchmark::State &e) {
            mide<T>(e, f, copia_vector<T>, [](std::vector<T> &v) {
                std::qsort(v.data(), v.size(), sizeof(T), compara_qsort_por_defecto<T>);
            });
        });
        registra_uno("std::sort", [f](benchmark::State &e) {
            mide<T>(e, f, copia_vector<T>, [](std::vector<T> &v) { std::sort(v.begin(), v.end()); });
        });
        registra_uno("pdqsort", [f](benchmark::State &e) {
            mide<T>(e, f, copia_vector<T>,
                    [](std::vector<T> &v) { boost::sort::pdqsort(v.begin(), v.end()); });
        });
    }
}

template <typename T> void registra_tipo(const std::string &tipo)
{
    registra_forma<T>("random", tipo, Forma::aleatorio, {1000, 1000000, 10000000});
    registra_forma<T>("sorted", tipo, Forma::ordenado, {1000, 1000000, 10000000});
    registra_forma<T>("reversed", tipo, Forma::invertido, {1000, 1000000, 10000000});
    registra_forma<T>("equal", tipo, Forma::iguales, {1000, 1000000, 10000000});
    registra_forma<T>("organ_pipe", tipo, Forma::organo, {1000, 1000000, 10000000});
    registra_forma<T>("sawtooth", tipo, Forma::sierra, {1000, 1000000, 10000000});
    registra_forma<T>("stagger", tipo, Forma::escalonada, {1000, 1000000, 10000000});
    registra_forma<T>("plateau", tipo, Forma::meseta, {1000, 1000000, 10000000});
}

void registra_comparador_usuario()
{
    const auto menor = [](double a, double b) { return comparador(a, b) < 0; };
    const auto registra_uno = [&](const std::string &nombre, auto funcion) {
        benchmark::RegisterBenchmark(("sort_user_comparator/" + nombre).c_str(), funcion)
            ->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
    };
    registra_uno("arrays", [](benchmark::State &e) {
        mide<double>(e, Forma::aleatorio, copia_arrays<double>,
                     [](arr::array<double> &a) { arr_QSortDouble(a.get(), comparador); });
    });
    registra_uno("qsort", [](benchmark::State &e) {
        mide<double>(e, Forma::aleatorio, copia_vector<double>, [](std::vector<double> &v) {
            std::qsort(v.data(), v.size(), sizeof(double), compara_qsort);
        });
    });
    registra_uno("std::sort", [menor](benchmark::State &e) {
        mide<double>(e, Forma::aleatorio, copia_vector<double>,
                     [menor](std::vector<double> &v) { std::sort(v.begin(), v.end(), menor); });
    });
    registra_uno("pdqsort", [menor](benchmark::State &e) {
        mide<double>(e, Forma::aleatorio, copia_vector<double>, [menor](std::vector<double> &v) {
            boost::sort::pdqsort(v.begin(), v.end(), menor);
        });
    });
}

const bool registrado = [] {
    registra_tipo<double>("");
    registra_tipo<int32_t>("_long");
    registra_tipo<int64_t>("_long64");
    registra_tipo<uint8_t>("_byte");
    registra_comparador_usuario();
    return true;
}();

} // namespace
