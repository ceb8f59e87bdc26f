// count: the element-count block, once or followed until the user interrupts.
#include "ordenes.h"

#include "debug/nombres.h"
#include "services/plataforma.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <thread>

namespace {

volatile std::sig_atomic_t interrumpido = 0;

void al_interrumpir(int) { interrumpido = 1; }

// The count the block holds now; nullopt when there is no such block (or it is too short).
std::optional<uint32_t> lee_cuenta()
{
    BloqueCompartido bloque;
    if (!plataforma_abre_bloque(DEBUGARR_NOMBRE_CUENTA, &bloque))
        return std::nullopt;
    std::optional<uint32_t> cuenta;
    if (bloque.bytes >= DEBUGARR_BYTES_CUENTA)
        cuenta = lee_u32(static_cast<const unsigned char *>(bloque.vista));
    plataforma_cierra_bloque(&bloque);
    return cuenta;
}

void imprime(uint32_t cuenta)
{
    if (cuenta == ARR_ULONG_MAX)
        std::printf("no count (0xFFFFFFFF: nothing counted yet, or the array was not valid)\n");
    else
        std::printf("%lu elements\n", static_cast<unsigned long>(cuenta));
    std::fflush(stdout);
}

} // namespace

int cuenta(bool seguir, unsigned intervalo_ms)
{
    std::optional<uint32_t> actual = lee_cuenta();
    if (!seguir) {
        if (!actual)
            return falla(Fallo::no_existe, std::string("no block ") + DEBUGARR_NOMBRE_CUENTA +
                                               ": nothing counted yet");
        imprime(*actual);
        return 0;
    }
    plataforma_al_interrumpir(al_interrumpir);
    std::optional<uint32_t> mostrada;
    bool esperando_dicho = false;
    while (interrumpido == 0) {
        if (actual && actual != mostrada) {
            imprime(*actual);
            mostrada = actual;
        } else if (!actual && !esperando_dicho) {
            std::printf("waiting for %s\n", DEBUGARR_NOMBRE_CUENTA);
            std::fflush(stdout);
            esperando_dicho = true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(intervalo_ms));
        actual = lee_cuenta();
    }
    return 0;
}
