// What the library needs from the operating system beyond the C and C++ runtimes, behind one
// interface with one implementation per platform (services/posix/, services/windows/): copying
// memory that may be unreadable without faulting, large and aligned blocks, the environment,
// named blocks of shared memory for an outside tool, the default sinks of the debugger output,
// and the interrupt and output of a console program.
#pragma once

#include "arrays.h"

#include <cstddef>
#include <cstdint>

// Copies `bytes` bytes at `origen` of this process to `destino`; false, without faulting, when any
// of them cannot be read (unmapped, or mapped without read access). `destino` may then hold part.
bool plataforma_copia_legible(const void *origen, void *destino, size_t bytes);

// A large scratch block of `bytes` bytes (contents undefined), asked of the system directly and
// advised to use huge pages, so that filling it takes a page fault per 2 MiB instead of per
// 4 KiB; NULL, without stopping the program, when the system has no memory for it. Returned
// with plataforma_libera_grande and the same size.
void *plataforma_reserva_grande(size_t bytes);
void plataforma_libera_grande(void *bloque, size_t bytes);

// A block of `bytes` bytes (a power of two) aligned to its own size, zeroed, asked of the system
// directly and advised to use huge pages, for the row slabs; NULL when the system has no memory
// for it. Returned whole with plataforma_libera_alineada.
void *plataforma_reserva_alineada(size_t bytes);
void plataforma_libera_alineada(void *bloque, size_t bytes);

// Whether the environment of the process holds the variable `nombre`, even with an empty value.
bool plataforma_hay_variable(const char *nombre);

// Runs `accion` when the user interrupts the program (Ctrl+C; besides, a termination request on
// POSIX and Ctrl+Break on Windows).
void plataforma_al_interrumpir(void (*accion)(int));

// Standard output and error write the bytes given, as on POSIX (a Windows console program's
// would turn each "\n" into "\r\n").
void plataforma_salidas_tal_cual();

// A named block of shared memory mapped into this process.
struct BloqueCompartido {
    void *vista = nullptr;    // the mapped bytes; NULL while nothing is mapped
    size_t bytes = 0;         // the mapped length
    intptr_t manejador = -1;  // the platform's handle: a descriptor, or a HANDLE
};

// Creates the block `nombre` of `bytes` bytes (zeroed), or opens it when it exists already, and
// maps the first `bytes` bytes for reading and writing. On POSIX the block is the shared-memory
// object "/nombre", made with mode 0600; an existing one is refused unless it is a regular
// shared-memory object (not a link) that belongs to this user, and it is resized to `bytes`.
// False, with *bloque untouched, when the block cannot be had.
bool plataforma_crea_bloque(const char *nombre, size_t bytes, BloqueCompartido *bloque);

// Opens an existing block for reading only and maps the whole of it; false when it does not exist,
// is not a regular shared-memory object, or cannot be mapped. bloque->bytes is what may be read.
bool plataforma_abre_bloque(const char *nombre, BloqueCompartido *bloque);

// Unmaps the block and closes its handle; *bloque is emptied. The name stays.
void plataforma_cierra_bloque(BloqueCompartido *bloque);

// Removes the name of a block, so that nobody can open it any more (on Windows a mapping's name
// goes with its last handle: nothing to do).
void plataforma_quita_nombre(const char *nombre);

// The default sinks of the debugger output (debugarr_set_salida): the narrow text holds the
// documented bytes (Windows-1252, or a string element's own bytes), the wide one UTF-16.
void plataforma_salida_depuracion(const char *texto);
void plataforma_salida_depuracion_ancha(const arr_wchar_t *texto);
