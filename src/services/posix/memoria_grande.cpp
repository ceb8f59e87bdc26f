// Large scratch blocks on POSIX: anonymous mappings advised to use transparent huge pages.
#include "services/plataforma.h"

#include <sys/mman.h>

void *plataforma_reserva_grande(size_t bytes)
{
    void *bloque = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bloque == MAP_FAILED)
        return nullptr;
    madvise(bloque, bytes, MADV_HUGEPAGE); // advice: without huge pages it still works
    return bloque;
}

void plataforma_libera_grande(void *bloque, size_t bytes) { munmap(bloque, bytes); }
