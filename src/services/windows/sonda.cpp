// Reading memory that may be unreadable, on Windows: ReadProcessMemory on our own process copies
// what is readable and fails, instead of faulting, on a page that is not.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

bool plataforma_copia_legible(const void *origen, void *destino, size_t bytes)
{
    SIZE_T leidos = 0;
    return ReadProcessMemory(GetCurrentProcess(), origen, destino, bytes, &leidos) != 0 &&
           leidos == bytes;
}
