// One BYTE array at the 32-bit index limit, run by hand (it needs about 4.2 GiB and a minute):
// 4·10^9 elements appended, 10^7 of them read back at random positions and checked, the array
// destroyed. Prints the time of each step and the peak resident memory; exits non-zero when a
// value read back is wrong, the count is wrong, or the peak passes 24 GiB.
//   build/release/bench/gigante [count]
#include "arrays.h"

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

constexpr unsigned long long LIMITE_BYTES = 24ULL << 30;
constexpr ULONG LECTURAS = 10000000;

// The value stored at index i: a pattern that a shifted or misplaced row would break.
BYTE valor(ULONG i) { return static_cast<BYTE>((i * 7ULL) % 251); }

double segundos_desde(std::chrono::steady_clock::time_point inicio)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
}

unsigned long long pico_residente()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return static_cast<unsigned long long>(uso.ru_maxrss) * 1024; // Linux gives KiB
}

} // namespace

int main(int argc, char **argv)
{
    const ULONG n = argc > 1 ? static_cast<ULONG>(std::strtoul(argv[1], nullptr, 10)) : 4000000000U;
    auto inicio = std::chrono::steady_clock::now();
    ARRAY *array = arr_CreaBYTE(0);
    for (ULONG i = 0; i < n; ++i)
        arr_AppendBYTE(array, valor(i));
    const bool cuenta_correcta = arr_NumElemsBYTE(array) == n;
    std::printf("appended %lu elements in %.1f s (count %s)\n", static_cast<unsigned long>(n),
                segundos_desde(inicio), cuenta_correcta ? "right" : "WRONG");

    inicio = std::chrono::steady_clock::now();
    std::mt19937_64 azar(1);
    ULONG errores = 0;
    for (ULONG k = 0; k < LECTURAS; ++k) {
        const ULONG i = static_cast<ULONG>(azar() % n);
        errores += arr_GetBYTE(array, i) != valor(i) ? 1 : 0;
    }
    std::printf("read %lu random elements in %.1f s: %lu wrong\n", static_cast<unsigned long>(LECTURAS),
                segundos_desde(inicio), static_cast<unsigned long>(errores));

    inicio = std::chrono::steady_clock::now();
    arr_DestruyeBYTE(&array);
    const unsigned long long pico = pico_residente();
    std::printf("destroyed in %.1f s; peak resident memory %.2f GiB (limit 24 GiB)\n",
                segundos_desde(inicio), static_cast<double>(pico) / (1ULL << 30));
    return cuenta_correcta && errores == 0 && array == nullptr && pico <= LIMITE_BYTES ? 0 : 1;
}
