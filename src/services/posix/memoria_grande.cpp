// Large and aligned blocks on POSIX: anonymous mappings advised to use transparent huge pages.
#include "services/plataforma.h"

#include <sys/mman.h>

#include <cstdint>

// The block starts on a huge page's boundary, so that every whole 2 MiB of it can be one; it
// ends where asked, so that the rest takes only the small pages it touches.
void *plataforma_reserva_grande(size_t bytes)
{
    constexpr size_t PAGINA_GRANDE = size_t{2} << 20;
    void *zona = mmap(nullptr, bytes + PAGINA_GRANDE, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona == MAP_FAILED)
        return nullptr;
    const auto inicio = reinterpret_cast<uintptr_t>(zona);
    const uintptr_t alineado = (inicio + PAGINA_GRANDE - 1) & ~(PAGINA_GRANDE - 1);
    if (alineado > inicio)
        munmap(zona, alineado - inicio);
    const uintptr_t fin_zona = inicio + bytes + PAGINA_GRANDE;
    const uintptr_t fin_bloque = (alineado + bytes + 4095) & ~uintptr_t{4095};
    if (fin_zona > fin_bloque)
        munmap(reinterpret_cast<void *>(fin_bloque), fin_zona - fin_bloque);
    void *bloque = reinterpret_cast<void *>(alineado);
    madvise(bloque, bytes, MADV_HUGEPAGE); // advice: without huge pages it still works
    return bloque;
}

void plataforma_libera_grande(void *bloque, size_t bytes) { munmap(bloque, bytes); }

// Twice the size is mapped and the ends around the aligned block are cut off.
void *plataforma_reserva_alineada(size_t bytes)
{
    const size_t doble = 2 * bytes;
    void *zona = mmap(nullptr, doble, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona == MAP_FAILED)
        return nullptr;
    const auto inicio = reinterpret_cast<uintptr_t>(zona);
    const uintptr_t alineado = (inicio + bytes - 1) & ~(bytes - 1);
    if (alineado > inicio)
        munmap(zona, alineado - inicio);
    if (const uintptr_t sobra = inicio + doble - (alineado + bytes); sobra > 0)
        munmap(reinterpret_cast<void *>(alineado + bytes), sobra);
    void *bloque = reinterpret_cast<void *>(alineado);
    madvise(bloque, bytes, MADV_HUGEPAGE); // advice: without huge pages it still works
    return bloque;
}

void plataforma_libera_alineada(void *bloque, size_t bytes) { munmap(bloque, bytes); }
