// Reading and writing by index: random reads (after appends, and for this library also after
// 10^5 random inserts, which leave rows of uneven length), random writes and a sequential loop.
#include "comun.h"

#include <bit>
#include <cstdint>

namespace {

constexpr size_t LECTURAS = size_t{1} << 20;
constexpr size_t INSERCIONES = 100000;

template <typename C> C lleno(size_t n)
{
    C c(0);
    for (size_t i = 0; i < n; ++i)
        c.anyade(static_cast<double>(i));
    return c;
}

// Folds a value read into a running total. The total is an integer: every floating-point register
// is caller-saved, so a double total would live on the stack across each call into a library and
// chain every read through a store and a reload (about 8 cycles), which measures the calling
// convention rather than the read. An integer total stays in a register across calls.
inline void acumula(uint64_t &total, double valor) { total += std::bit_cast<uint64_t>(valor); }

template <typename C> void lee_al_azar(benchmark::State &estado, const C &c)
{
    const auto posiciones = posiciones_aleatorias(LECTURAS, c.tamanyo());
    for (auto _ : estado) {
        uint64_t total = 0;
        for (size_t p : posiciones)
            acumula(total, c.lee(p));
        benchmark::DoNotOptimize(total);
    }
    estado.SetItemsProcessed(estado.iterations() * static_cast<int64_t>(LECTURAS));
}

template <typename C> struct LeeTrasAnyadir {
    static void corre(benchmark::State &estado)
    {
        const C c = lleno<C>(static_cast<size_t>(estado.range(0)));
        lee_al_azar(estado, c);
    }
};

// Only this library's layout depends on how it was filled; the peers' reads do not.
template <typename C> struct LeeTrasInsertar {
    static void corre(benchmark::State &estado)
    {
        const size_t n = static_cast<size_t>(estado.range(0));
        C c = lleno<C>(n - INSERCIONES);
        for (size_t p : posiciones_aleatorias(INSERCIONES, n - INSERCIONES, 3))
            c.inserta(p, 1.0);
        lee_al_azar(estado, c);
    }
};

template <typename C> struct EscribeAlAzar {
    static void corre(benchmark::State &estado)
    {
        C c = lleno<C>(static_cast<size_t>(estado.range(0)));
        const auto posiciones = posiciones_aleatorias(LECTURAS, c.tamanyo());
        for (auto _ : estado) {
            for (size_t p : posiciones)
                c.escribe(p, 2.0);
            benchmark::ClobberMemory();
        }
        estado.SetItemsProcessed(estado.iterations() * static_cast<int64_t>(LECTURAS));
    }
};

template <typename C> struct LeeEnOrden {
    static void corre(benchmark::State &estado)
    {
        const C c = lleno<C>(static_cast<size_t>(estado.range(0)));
        for (auto _ : estado) {
            uint64_t total = 0;
            for (size_t i = 0; i < c.tamanyo(); ++i)
                acumula(total, c.lee(i));
            benchmark::DoNotOptimize(total);
        }
        estado.SetItemsProcessed(estado.iterations() * estado.range(0));
    }
};

const bool registrado = [] {
    registra_todos<LeeTrasAnyadir, Arrays, Vector, Deque, BoostDeque, StableVector, Garray>(
        "random_get", {1000, 100000, 1000000, 10000000});
    registra<Gsequence>("random_get", LeeTrasAnyadir<Gsequence>::corre, {1000, 100000, 1000000});
    registra_todos<LeeTrasInsertar, Arrays, Deque, Gsequence>("random_get_after_inserts",
                                                             {1000000, 10000000});
    registra_todos<EscribeAlAzar, Arrays, Vector, Deque, BoostDeque, StableVector, Garray>(
        "random_set", {1000, 100000, 1000000, 10000000});
    registra_todos<LeeEnOrden, Arrays, Vector, Deque, BoostDeque, StableVector, Garray>(
        "get_loop", {1000, 100000, 1000000, 10000000});
    return true;
}();

} // namespace
