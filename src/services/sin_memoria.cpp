// The out-of-memory path of the memory service: the application's handler, the last message, and
// the failures that tests inject.
#include "services/sin_memoria.h"

#include "arrays.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace {

struct Manejador {
    arr_manejador_sin_memoria funcion = nullptr;
    void *contexto = nullptr;
};

std::mutex cerrojo;
Manejador instalado;

// Requests left before the one that must fail; 0 while no failure is pending.
std::atomic<size_t> peticiones_hasta_fallo{0};

Manejador manejador()
{
    const std::lock_guard<std::mutex> guarda(cerrojo);
    return instalado;
}

} // namespace

bool sin_memoria_simula_fallo()
{
    if (peticiones_hasta_fallo.load(std::memory_order_relaxed) == 0) [[likely]]
        return false;
    return peticiones_hasta_fallo.fetch_sub(1, std::memory_order_relaxed) == 1;
}

void sin_memoria_reintenta(size_t tamanyo)
{
    const Manejador actual = manejador();
    if (actual.funcion != nullptr && actual.funcion(tamanyo, actual.contexto) != FALSO)
        return;
    sin_memoria_termina(tamanyo);
}

void sin_memoria_termina(size_t tamanyo)
{
    std::fprintf(stderr, "arrays: out of memory: no block of %zu bytes\n", tamanyo);
    std::abort();
}

void sin_memoria_falla_peticion(size_t n)
{
    peticiones_hasta_fallo.store(n, std::memory_order_relaxed);
}

extern "C" ARRAYS_API arr_manejador_sin_memoria
arr_set_manejador_sin_memoria(arr_manejador_sin_memoria f, void *contexto) noexcept
{
    const std::lock_guard<std::mutex> guarda(cerrojo);
    const arr_manejador_sin_memoria anterior = instalado.funcion;
    instalado = {f, contexto};
    return anterior;
}
