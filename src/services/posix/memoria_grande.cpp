// Large and aligned blocks on POSIX: anonymous mappings advised to use transparent huge pages.
#include "services/plataforma.h"

#include <sys/mman.h>

#include <cstdint>

namespace {

constexpr size_t PAGINA_GRANDE = size_t{2} << 20;
constexpr uintptr_t PAGINA = 4096;

// `bytes` bytes from an address that is a multiple of `alineacion` (a power of two, at least a
// page): that much more is mapped and the ends around the block are cut off, so the block ends
// at the page after its last byte. Advised to use huge pages: every whole 2 MiB of it that starts
// on a boundary can be one. NULL when the system has no memory for it.
void *mapea_alineado(size_t bytes, size_t alineacion)
{
    const size_t mapeados = bytes + alineacion;
    void *zona =
        mmap(nullptr, mapeados, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona == MAP_FAILED)
        return nullptr;
    const auto inicio = reinterpret_cast<uintptr_t>(zona);
    const uintptr_t alineado = (inicio + alineacion - 1) & ~(alineacion - 1);
    if (alineado > inicio)
        munmap(zona, alineado - inicio);
    const uintptr_t fin_bloque = (alineado + bytes + PAGINA - 1) & ~(PAGINA - 1);
    if (const uintptr_t fin_zona = inicio + mapeados; fin_zona > fin_bloque)
        munmap(reinterpret_cast<void *>(fin_bloque), fin_zona - fin_bloque);
    void *bloque = reinterpret_cast<void *>(alineado);
    madvise(bloque, bytes, MADV_HUGEPAGE); // advice: without huge pages it still works
    return bloque;
}

} // namespace

// The block starts on a huge page's boundary; it ends where asked, so that the rest takes only
// the small pages it touches.
void *plataforma_reserva_grande(size_t bytes) { return mapea_alineado(bytes, PAGINA_GRANDE); }

void plataforma_libera_grande(void *bloque, size_t bytes) { munmap(bloque, bytes); }

void *plataforma_reserva_alineada(size_t bytes) { return mapea_alineado(bytes, bytes); }

void plataforma_libera_alineada(void *bloque, size_t bytes) { munmap(bloque, bytes); }
