// Reading memory that may be unreadable, on Windows: every page of the range must be committed and
// readable by its protection (VirtualQuery), and ReadProcessMemory on our own process then copies
// it, failing instead of faulting should a page change under us.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

namespace {

constexpr DWORD PROTECCIONES_LEGIBLES = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY |
                                        PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE |
                                        PAGE_EXECUTE_WRITECOPY;

bool es_legible(const char *inicio, size_t bytes)
{
    const char *fin = inicio + bytes;
    for (const char *punto = inicio; punto < fin;) {
        MEMORY_BASIC_INFORMATION region;
        if (VirtualQuery(punto, &region, sizeof region) == 0 || region.State != MEM_COMMIT ||
            (region.Protect & PROTECCIONES_LEGIBLES) == 0 || (region.Protect & PAGE_GUARD) != 0)
            return false;
        punto = static_cast<const char *>(region.BaseAddress) + region.RegionSize;
    }
    return true;
}

} // namespace

bool plataforma_copia_legible(const void *origen, void *destino, size_t bytes)
{
    SIZE_T leidos = 0;
    return es_legible(static_cast<const char *>(origen), bytes) &&
           ReadProcessMemory(GetCurrentProcess(), origen, destino, bytes, &leidos) != 0 &&
           leidos == bytes;
}
