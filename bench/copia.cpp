// Copying a whole container, and appending one container to another.
#include "comun.h"

namespace {

void copia_arrays(benchmark::State &estado)
{
    const Arrays origen(static_cast<ULONG>(estado.range(0)));
    for (auto _ : estado) {
        ARRAY *copia = arr_CopiaDouble(origen.a);
        arr_DestruyeDouble(&copia);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

template <typename C> void copia_estandar(benchmark::State &estado)
{
    const C origen(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        C copia(origen);
        benchmark::DoNotOptimize(copia.tamanyo());
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

void copia_garray(benchmark::State &estado)
{
    const Garray origen(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado)
        g_array_free(g_array_copy(origen.g), TRUE);
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

void concatena_arrays(benchmark::State &estado)
{
    const Arrays origen(static_cast<ULONG>(estado.range(0)));
    for (auto _ : estado) {
        Arrays destino(0);
        arr_ConcatenaDouble(destino.a, origen.a);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

template <typename C> void concatena_estandar(benchmark::State &estado)
{
    const C origen(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        C destino(0);
        destino.c.insert(destino.c.end(), origen.c.begin(), origen.c.end());
        benchmark::DoNotOptimize(destino.tamanyo());
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

void concatena_garray(benchmark::State &estado)
{
    const Garray origen(static_cast<size_t>(estado.range(0)));
    for (auto _ : estado) {
        Garray destino(0);
        g_array_append_vals(destino.g, origen.g->data, origen.g->len);
    }
    estado.SetItemsProcessed(estado.iterations() * estado.range(0));
}

const bool registrado = [] {
    const auto registra_uno = [](const char *nombre, void (*funcion)(benchmark::State &)) {
        benchmark::RegisterBenchmark(nombre, funcion)->Arg(1000)->Arg(100000)->Arg(1000000)->Arg(10000000);
    };
    registra_uno("copy/arrays", copia_arrays);
    registra_uno("copy/std::vector", copia_estandar<Vector>);
    registra_uno("copy/std::deque", copia_estandar<Deque>);
    registra_uno("copy/GArray", copia_garray);
    registra_uno("concatenation/arrays", concatena_arrays);
    registra_uno("concatenation/std::vector", concatena_estandar<Vector>);
    registra_uno("concatenation/std::deque", concatena_estandar<Deque>);
    registra_uno("concatenation/GArray", concatena_garray);
    return true;
}();

} // namespace
