// Guarded reading of an array for the debug module: the handle may be NULL, stale or wild, so the
// header, its row tables, its rows and its strings are read through the platform's probe
// (plataforma_copia_legible) into the module's own memory, and an unreadable byte ends the read
// instead of faulting. The module only reads arrays; nothing here writes to one.
#pragma once

#include "core/arrayprv.h"

#include <string>
#include <vector>

// What a guarded look at a handle found.
enum class EstadoArray {
    nulo,      // the handle is NULL
    ilegible,  // the header cannot be read
    no_valido, // readable, but not a live array (arryprv_es_array_correcto refuses it)
    bits,      // a live bit array, which the validity query refuses too
    valido     // a live array of any other type
};

struct ArrayLeido {
    EstadoArray estado = EstadoArray::nulo;
    ARRAY cabecera{};          // the header record as read, when it could be
    tipo_elem_array tipo{};    // bits and valido only
    ULONG num_elems = 0;       // bits and valido only: elements (bits for a bit array)
    size_t size_elem = 0;      // valido only
};

ArrayLeido debugarr_lee_array(const ARRAY *array);

// The row tables of a valid array, read through the probe: the row blocks and their counts.
struct TablasLeidas {
    std::vector<char *> filas;
    std::vector<size_t> longitudes;
};

// Reads the tables; false when they cannot be read or do not describe the header's count.
bool debugarr_lee_tablas(const ArrayLeido &leido, TablasLeidas &tablas);

// Copies the elements of row `fila` to `destino`; false when the row cannot be read.
bool debugarr_lee_fila(const ArrayLeido &leido, const TablasLeidas &tablas, size_t fila,
                       void *destino);

// Copies every element, in position order, to `destino` (num_elems * size_elem bytes); false
// when any part cannot be read.
bool debugarr_lee_elementos(const ArrayLeido &leido, void *destino);

// The zero-terminated string at `cadena`, at most `maximo` characters of it; false when it cannot
// be read. NULL reads as "(null)", as the C runtime prints it.
bool debugarr_lee_cadena(const char *cadena, size_t maximo, std::string &destino);
bool debugarr_lee_cadena_ancha(const WCHAR *cadena, size_t maximo, std::u16string &destino);
