// Sorting strings: random lowercase strings of 4 to 16 characters, with the default order and
// with a user comparator reached through a function pointer, against glibc's qsort, std::sort
// and Boost's pdqsort over an array of pointers to heap copies of the same strings.
#include "comun.h"

#include <boost/sort/pdqsort/pdqsort.hpp>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

int compara(const char *a, const char *b) { return std::strcmp(a, b); }

// The user's comparator as the caller holds it: a pointer the compiler cannot see through.
int (*volatile comparador)(const char *, const char *) = compara;

const char *cadena(const void *p) { return *static_cast<const char *const *>(p); }
int compara_qsort(const void *a, const void *b) { return comparador(cadena(a), cadena(b)); }
int compara_qsort_por_defecto(const void *a, const void *b) { return std::strcmp(cadena(a), cadena(b)); }

std::vector<std::string> textos(size_t n)
{
    std::mt19937_64 generador(5);
    std::vector<std::string> v(n);
    for (std::string &t : v) {
        t.resize(4 + generador() % 13);
        for (char &c : t)
            c = static_cast<char>('a' + generador() % 26);
    }
    return v;
}

// Sorts a fresh holder of the strings at every iteration; building it is not timed.
template <typename Contenedor, typename Ordena> void mide(benchmark::State &estado, Ordena ordena)
{
    const auto v = textos(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        estado.PauseTiming();
        Contenedor c(v);
        estado.ResumeTiming();
        ordena(c);
        benchmark::ClobberMemory();
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

// This library's string array holding copies of the strings.
struct Cadenas {
    ARRAY *a;
    explicit Cadenas(const std::vector<std::string> &v) : a(arr_CreaCADENA(0))
    {
        for (const std::string &t : v)
            arr_AppendCADENA(a, t.c_str());
    }
    ~Cadenas() { arr_DestruyeCADENA(&a); }
};

// The peers sort pointers to copies of the same strings, each on the heap as this library's are.
struct Punteros {
    std::vector<const char *> p;
    explicit Punteros(const std::vector<std::string> &v)
    {
        for (const std::string &t : v)
            p.push_back(strdup(t.c_str()));
    }
    ~Punteros()
    {
        for (const char *c : p)
            std::free(const_cast<char *>(c));
    }
    Punteros(const Punteros &) = delete;
    Punteros &operator=(const Punteros &) = delete;
};

template <typename Ordena> void registra_uno(const std::string &nombre, Ordena ordena)
{
    benchmark::RegisterBenchmark(nombre.c_str(), ordena)
        ->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
}

const bool registrado = [] {
    const auto menor_defecto = [](const char *a, const char *b) { return std::strcmp(a, b) < 0; };
    const auto menor_usuario = [](const char *a, const char *b) { return comparador(a, b) < 0; };
    registra_uno("sort_strings/arrays", [](benchmark::State &e) {
        mide<Cadenas>(e, [](Cadenas &c) { arr_QSortCADENA(c.a, nullptr); });
    });
    registra_uno("sort_strings/qsort", [](benchmark::State &e) {
        mide<Punteros>(e, [](Punteros &c) {
            std::qsort(c.p.data(), c.p.size(), sizeof(char *), compara_qsort_por_defecto);
        });
    });
    registra_uno("sort_strings/std::sort", [menor_defecto](benchmark::State &e) {
        mide<Punteros>(e, [menor_defecto](Punteros &c) { std::sort(c.p.begin(), c.p.end(), menor_defecto); });
    });
    registra_uno("sort_strings/pdqsort", [menor_defecto](benchmark::State &e) {
        mide<Punteros>(e, [menor_defecto](Punteros &c) {
            boost::sort::pdqsort(c.p.begin(), c.p.end(), menor_defecto);
        });
    });
    registra_uno("sort_strings_user_comparator/arrays", [](benchmark::State &e) {
        mide<Cadenas>(e, [](Cadenas &c) { arr_QSortCADENA(c.a, comparador); });
    });
    registra_uno("sort_strings_user_comparator/qsort", [](benchmark::State &e) {
        mide<Punteros>(e, [](Punteros &c) {
            std::qsort(c.p.data(), c.p.size(), sizeof(char *), compara_qsort);
        });
    });
    registra_uno("sort_strings_user_comparator/std::sort", [menor_usuario](benchmark::State &e) {
        mide<Punteros>(e, [menor_usuario](Punteros &c) { std::sort(c.p.begin(), c.p.end(), menor_usuario); });
    });
    registra_uno("sort_strings_user_comparator/pdqsort", [menor_usuario](benchmark::State &e) {
        mide<Punteros>(e, [menor_usuario](Punteros &c) {
            boost::sort::pdqsort(c.p.begin(), c.p.end(), menor_usuario);
        });
    });
    return true;
}();

} // namespace
