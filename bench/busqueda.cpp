// Linear search for a value that is not there (a full scan), with the caller's equality
// predicate reached through a function pointer.
#include "comun.h"

#include <algorithm>

namespace {

BOOL iguales(double a, double b) { return a == b; }

// The predicate as the caller holds it: a pointer the compiler cannot see through.
BOOL (*volatile igualdad)(double, double) = iguales;

void busca_arrays(benchmark::State &estado)
{
    const Arrays c(static_cast<ULONG>(estado.range(0)));
    for (auto _ : estado)
        benchmark::DoNotOptimize(arr_BuscarDouble(c.a, -1.0, igualdad));
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

template <typename C> void busca_estandar(benchmark::State &estado)
{
    const C c(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        BOOL (*const f)(double, double) = igualdad;
        benchmark::DoNotOptimize(
            std::find_if(c.c.begin(), c.c.end(), [f](double x) { return f(x, -1.0) != 0; }));
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

const bool registrado = [] {
    const auto registra_uno = [](const char *nombre, void (*funcion)(benchmark::State &)) {
        benchmark::RegisterBenchmark(nombre, funcion)->Arg(1000)->Arg(100000)->Arg(1000000)->Arg(10000000);
    };
    registra_uno("linear_search/arrays", busca_arrays);
    registra_uno("linear_search/std::vector", busca_estandar<Vector>);
    registra_uno("linear_search/std::deque", busca_estandar<Deque>);
    return true;
}();

} // namespace
