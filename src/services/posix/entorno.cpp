// The environment, interrupts and output of a POSIX process, through the C runtime.
#include "services/plataforma.h"

#include <csignal>
#include <cstdlib>

bool plataforma_hay_variable(const char *nombre) { return std::getenv(nombre) != nullptr; }

void plataforma_al_interrumpir(void (*accion)(int))
{
    std::signal(SIGINT, accion);
    std::signal(SIGTERM, accion);
}

void plataforma_salidas_tal_cual() {}
