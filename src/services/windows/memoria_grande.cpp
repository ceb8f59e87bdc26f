// Large and aligned blocks on Windows: committed virtual memory straight from the system.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

#include <cstdint>

void *plataforma_reserva_grande(size_t bytes)
{
    return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

void plataforma_libera_grande(void *bloque, size_t) { VirtualFree(bloque, 0, MEM_RELEASE); }

// Windows cannot release part of a reservation, so the aligned block is found in a reservation
// of twice the size, which is then released and taken again at the aligned address alone.
// Another thread may take that address in between: then the search starts over.
void *plataforma_reserva_alineada(size_t bytes)
{
    for (int intento = 0; intento < 64; ++intento) {
        void *zona = VirtualAlloc(nullptr, 2 * bytes, MEM_RESERVE, PAGE_NOACCESS);
        if (zona == nullptr)
            return nullptr;
        const uintptr_t alineado = (reinterpret_cast<uintptr_t>(zona) + bytes - 1) & ~(bytes - 1);
        VirtualFree(zona, 0, MEM_RELEASE);
        void *bloque = VirtualAlloc(reinterpret_cast<void *>(alineado), bytes,
                                    MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
        if (bloque != nullptr)
            return bloque;
    }
    return nullptr;
}

void plataforma_libera_alineada(void *bloque, size_t) { VirtualFree(bloque, 0, MEM_RELEASE); }
