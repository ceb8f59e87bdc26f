// Appending n doubles to an empty container, then releasing it.
#include "comun.h"

namespace {

template <typename C> struct Anyadir {
    static void corre(benchmark::State &estado)
    {
        const size_t n = static_cast<size_t>(estado.range(0));
        for (auto _ : estado) {
            C c(0);
            for (size_t i = 0; i < n; ++i)
                c.anyade(static_cast<double>(i));
            benchmark::DoNotOptimize(c.tamanyo());
        }
        estado.SetItemsProcessed(estado.iterations() * static_cast<int64_t>(n));
    }
};

const bool registrado = (registra_todos<Anyadir, ARR_TODOS_LOS_CONTENEDORES>(
                             "append", {1000, 100000, 1000000, 10000000}),
                         true);

} // namespace
