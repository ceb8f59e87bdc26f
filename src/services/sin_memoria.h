// What the memory service does when the system has no block for it: the application's
// out-of-memory handler (arr_set_manejador_sin_memoria) may free memory of its own and have the
// request tried again; without a handler, or when it declines, one line naming the size goes to
// standard error and the process ends. The service never hands the engine a NULL block.
#pragma once

#include <cstddef>

// True when this request is the one a test asked to fail (sin_memoria_falla_peticion).
bool sin_memoria_simula_fallo();

// After a failed request of `tamanyo` bytes: returns when the handler asks for a retry, otherwise
// ends the process through sin_memoria_termina.
void sin_memoria_reintenta(size_t tamanyo);

// The end of the process for a request of `tamanyo` bytes that cannot be met: the one line that
// names the size, on standard error, then abort.
[[noreturn]] void sin_memoria_termina(size_t tamanyo);

// The block that `pide` gives, asked for again after each failure that the handler answers.
template <typename Pide> void *sin_memoria_hasta_obtener(size_t tamanyo, Pide &&pide)
{
    for (;;) {
        void *bloque = sin_memoria_simula_fallo() ? nullptr : pide();
        if (bloque != nullptr) [[likely]]
            return bloque;
        sin_memoria_reintenta(tamanyo);
    }
}

// Fault injection for tests: the n-th request to the system from now fails once (0: none). The
// requests counted are the C heap's, the slabs' and the header pool's.
void sin_memoria_falla_peticion(size_t n);
