// The scratch memory of the default sort: the rise of the process's peak resident memory while
// arr_QSort<type> sorts random values, per element. One copy of the array is sizeof(value) bytes
// per element; the counting sort of bytes takes none.
#include "comun.h"

#include <arrays.h>

#include <fstream>
#include <string>

namespace {

// A field of /proc/self/status in bytes ("VmRSS", "VmHWM").
size_t estado_proceso(const std::string &campo)
{
    std::ifstream estado("/proc/self/status");
    for (std::string linea; std::getline(estado, linea);)
        if (linea.rfind(campo + ":", 0) == 0)
            return std::stoull(linea.substr(campo.size() + 1)) * 1024;
    return 0;
}

// Starts a new peak of resident memory at the current size.
void reinicia_pico() { std::ofstream("/proc/self/clear_refs") << "5"; }

template <typename T> void memoria_de_orden(benchmark::State &estado, ARRAY *(*crea)(ULONG),
                                            void (*anyade)(ARRAY *, T),
                                            void (*ordena)(ARRAY *, std::nullptr_t),
                                            void (*destruye)(ARRAY **))
{
    const size_t n = static_cast<size_t>(estado.range(0));
    std::mt19937_64 azar(7);
    for (auto _ : estado) {
        ARRAY *array = crea(0);
        for (size_t i = 0; i < n; ++i)
            anyade(array, static_cast<T>(azar()));
        reinicia_pico();
        const size_t antes = estado_proceso("VmRSS");
        ordena(array, nullptr);
        const size_t pico = estado_proceso("VmHWM");
        estado.counters["scratch_bytes_per_element"] =
            static_cast<double>(pico > antes ? pico - antes : 0) / static_cast<double>(n);
        destruye(&array);
    }
}

template <typename T>
void registra(const char *nombre, ARRAY *(*crea)(ULONG), void (*anyade)(ARRAY *, T),
              void (*ordena)(ARRAY *, std::nullptr_t), void (*destruye)(ARRAY **))
{
    benchmark::RegisterBenchmark(nombre, [=](benchmark::State &e) {
        memoria_de_orden<T>(e, crea, anyade, ordena, destruye);
    })->Arg(1000000)->Arg(10000000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

const bool registrado = [] {
    registra<double>("sort_scratch/arrays", arr_CreaDouble, arr_AppendDouble,
                     [](ARRAY *a, std::nullptr_t) { arr_QSortDouble(a, nullptr); },
                     arr_DestruyeDouble);
    registra<LONG>("sort_scratch_long/arrays", arr_CreaLong, arr_AppendLong,
                   [](ARRAY *a, std::nullptr_t) { arr_QSortLong(a, nullptr); }, arr_DestruyeLong);
    registra<LONG64>("sort_scratch_long64/arrays", arr_CreaLong64, arr_AppendLong64,
                     [](ARRAY *a, std::nullptr_t) { arr_QSortLong64(a, nullptr); },
                     arr_DestruyeLong64);
    registra<BYTE>("sort_scratch_byte/arrays", arr_CreaBYTE, arr_AppendBYTE,
                   [](ARRAY *a, std::nullptr_t) { arr_QSortBYTE(a, nullptr); }, arr_DestruyeBYTE);
    return true;
}();

} // namespace
