// The table of published blocks: 100 slots, each with the caller's identifier and the record of
// the block published under it. Slots are taken in turn (0 to 99, then 0 again); a slot that is
// taken again is overwritten without closing the block it held, which stays published, as it
// would on Windows, until the process ends.
#pragma once

#include "services/plataforma.h"

#include "arrays.h"

inline constexpr size_t DEBUGARR_NUM_SLOTS = 100;

// The record of one published block, in the memory service.
struct BloqueMemComp {
    void *buffer;             // the flattened copy it was made from
    tipo_elem_array tipo;
    ULONG num_elems;
    size_t size_elem;
    BloqueCompartido compartido;
    char nombre[48];          // the block's name, to take it away when it is closed
};

// The slot that holds `identificador`, searched from the first: *out_bloqueMemComp gets the
// address of its record pointer (which may hold NULL once the block is closed). False, with
// *out_bloqueMemComp untouched, when no slot holds it. `out_bloqueMemComp` must not be NULL.
bool debugarr_busca_bloque(ULONG identificador, BloqueMemComp ***out_bloqueMemComp);

// The index of the last slot taken; DEBUGARR_NUM_SLOTS before the first publication.
size_t debugarr_ultimo_slot();
