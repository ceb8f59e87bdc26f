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

// Registers this library and the three peers under "operacion/...": the library sorts with
// `comparador` (NULL for its default order), the peers with the same order in their own form.
template <typename Menor>
void registra_variante(const std::string &operacion, int (*comparador_arrays)(const char *, const char *),
                       int (*compara_c)(const void *, const void *), Menor menor)
{
    registra_uno(operacion + "/arrays", [comparador_arrays](benchmark::State &e) {
        mide<Cadenas>(e, [comparador_arrays](Cadenas &c) { arr_QSortCADENA(c.a, comparador_arrays); });
    });
    registra_uno(operacion + "/qsort", [compara_c](benchmark::State &e) {
        mide<Punteros>(e, [compara_c](Punteros &c) {
            std::qsort(c.p.data(), c.p.size(), sizeof(char *), compara_c);
        });
    });
    registra_uno(operacion + "/std::sort", [menor](benchmark::State &e) {
        mide<Punteros>(e, [menor](Punteros &c) { std::sort(c.p.begin(), c.p.end(), menor); });
    });
    registra_uno(operacion + "/pdqsort", [menor](benchmark::State &e) {
        mide<Punteros>(e, [menor](Punteros &c) { boost::sort::pdqsort(c.p.begin(), c.p.end(), menor); });
    });
}

const bool registrado = [] {
    registra_variante("sort_strings", nullptr, compara_qsort_por_defecto,
                      [](const char *a, const char *b) { return std::strcmp(a, b) < 0; });
    registra_variante("sort_strings_user_comparator", comparador, compara_qsort,
                      [](const char *a, const char *b) { return comparador(a, b) < 0; });
    return true;
}();

} // namespace
