// Visiting every element with a callback: this library's traversal, and a range-for over the C++
// face (arrays.hpp), against a loop over a std::vector that calls the same callback through a
// function pointer.
#include "comun.h"

#include "arrays.hpp"

namespace {

BOOL suma(double *elemento, void *datos)
{
    *static_cast<double *>(datos) += *elemento;
    return CIERTO;
}

// The callback as a user holds it: a pointer the compiler cannot see through.
BOOL (*volatile accion)(double *, void *) = suma;

void recorre_arrays(benchmark::State &estado)
{
    Arrays c(static_cast<ULONG>(estado.range(0)));
    for (auto _ : estado) {
        double total = 0;
        arr_nousar_RecorreDouble(c.a, accion, &total, __FILE__, __LINE__);
        benchmark::DoNotOptimize(total);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

void recorre_cara_cpp(benchmark::State &estado)
{
    const arr::array<double> a(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        double total = 0;
        BOOL (*const f)(double *, void *) = accion;
        for (double &x : a)
            f(&x, &total);
        benchmark::DoNotOptimize(total);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

void recorre_vector(benchmark::State &estado)
{
    std::vector<double> v(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        double total = 0;
        BOOL (*const f)(double *, void *) = accion;
        for (double &x : v)
            f(&x, &total);
        benchmark::DoNotOptimize(total);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

const bool registrado = [] {
    for (auto *b : {benchmark::RegisterBenchmark("traversal/arrays", recorre_arrays),
                    benchmark::RegisterBenchmark("traversal/arrays.hpp", recorre_cara_cpp),
                    benchmark::RegisterBenchmark("traversal/std::vector", recorre_vector)})
        b->Arg(1000)->Arg(100000)->Arg(1000000)->Arg(10000000);
    return true;
}();

} // namespace
