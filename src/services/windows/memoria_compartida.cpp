// Named blocks of shared memory on Windows: file mappings backed by the paging file, named as
// the debug module names them; a mapping's name goes with its last handle.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

#include <cstring>

namespace {

// Maps `bytes` bytes of the mapping `manejador` (0: all of it) with `acceso`; fills *bloque and
// returns true, or closes the handle and returns false.
bool mapea(HANDLE manejador, size_t bytes, DWORD acceso, BloqueCompartido *bloque)
{
    void *vista = MapViewOfFile(manejador, acceso, 0, 0, bytes);
    if (vista == nullptr) {
        CloseHandle(manejador);
        return false;
    }
    if (bytes == 0) { // the whole mapping: as far as its pages go
        MEMORY_BASIC_INFORMATION region{};
        VirtualQuery(vista, &region, sizeof region);
        bytes = region.RegionSize;
    }
    *bloque = {vista, bytes, reinterpret_cast<intptr_t>(manejador)};
    return true;
}

} // namespace

bool plataforma_crea_bloque(const char *nombre, size_t bytes, BloqueCompartido *bloque)
{
    const auto tamanyo = static_cast<unsigned long long>(bytes);
    HANDLE manejador = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE,
                                          static_cast<DWORD>(tamanyo >> 32),
                                          static_cast<DWORD>(tamanyo), nombre);
    if (manejador == nullptr)
        return false;
    const bool existia = GetLastError() == ERROR_ALREADY_EXISTS;
    if (existia) { // another holder's mapping: opened by name, for writing, at its own size
        CloseHandle(manejador);
        manejador = OpenFileMappingA(FILE_MAP_ALL_ACCESS, FALSE, nombre);
        if (manejador == nullptr)
            return false;
    }
    if (!mapea(manejador, bytes, FILE_MAP_ALL_ACCESS, bloque))
        return false;
    if (existia) // as a new mapping is zero
        std::memset(bloque->vista, 0, bytes);
    return true;
}

bool plataforma_abre_bloque(const char *nombre, BloqueCompartido *bloque)
{
    HANDLE manejador = OpenFileMappingA(FILE_MAP_READ, FALSE, nombre);
    return manejador != nullptr && mapea(manejador, 0, FILE_MAP_READ, bloque);
}

void plataforma_cierra_bloque(BloqueCompartido *bloque)
{
    if (bloque->vista != nullptr)
        UnmapViewOfFile(bloque->vista);
    if (bloque->manejador != -1)
        CloseHandle(reinterpret_cast<HANDLE>(bloque->manejador));
    *bloque = {};
}

void plataforma_quita_nombre(const char *) {}
