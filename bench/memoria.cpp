// Bytes per element, after n appends and after 10^5 random inserts, by two meters applied to
// every container alike: the bytes handed out (the C library's count of bytes in use, plus the
// slots this library's slabs hand out), and the bytes taken from the system for them (the same,
// with the slabs' chunks counted whole, free slots included).
#include "comun.h"

#include "services/losas.h"

#include <malloc.h>

namespace {

constexpr size_t INSERCIONES = 100000;

// Bytes handed out by malloc, counting the large blocks it maps on their own.
size_t bytes_de_malloc()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

size_t bytes_en_uso() { return bytes_de_malloc() + losas_bytes_en_uso(); }
size_t bytes_mapeados() { return bytes_de_malloc() + losas_bytes_mapeados(); }

template <typename C, bool con_inserciones> void bytes_por_elemento(benchmark::State &estado)
{
    const size_t n = static_cast<size_t>(estado.range(0));
    for (auto _ : estado) {
        malloc_trim(0);
        // Both meters start from the bytes handed out: a free chunk that the slabs kept from an
        // earlier repetition counts as taken for this container once it fills it.
        const size_t antes = bytes_en_uso();
        const size_t anyadidos = con_inserciones ? n - INSERCIONES : n;
        C c(0);
        for (size_t i = 0; i < anyadidos; ++i)
            c.anyade(static_cast<double>(i));
        if constexpr (con_inserciones)
            for (size_t p : posiciones_aleatorias(INSERCIONES, anyadidos, 3))
                c.inserta(p, 1.0);
        const auto por_elemento = [&](size_t bytes) {
            return static_cast<double>(bytes) / static_cast<double>(c.tamanyo());
        };
        estado.counters["bytes_per_element"] = por_elemento(bytes_en_uso() - antes);
        estado.counters["mapped_bytes_per_element"] = por_elemento(bytes_mapeados() - antes);
    }
}

template <typename C> void registra_memoria()
{
    benchmark::RegisterBenchmark((std::string("bytes_after_appends/") + C::nombre).c_str(),
                                 bytes_por_elemento<C, false>)
        ->Arg(1000000)->Arg(10000000)->Arg(100000000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

const bool registrado = [] {
    registra_memoria<Arrays>();
    registra_memoria<Vector>();
    registra_memoria<Deque>();
    registra_memoria<BoostDeque>();
    registra_memoria<Garray>();
    benchmark::RegisterBenchmark("bytes_after_inserts/arrays", bytes_por_elemento<Arrays, true>)
        ->Arg(1000000)->Arg(10000000)->Iterations(1)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
