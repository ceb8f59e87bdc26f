// The direct table from indices to addresses (TablaDirecta in core/arrayprv.h): reads build it
// once enough of them have gone by since the rows last changed, and every writer that may move,
// free or shorten a row, or shift elements inside one, expires it first. Until it is built again
// reads take the guided path, so that alternating writes and reads never pay for more builds than
// the reads they speed up.
#pragma once

#include "core/arrayprv.h"

// Expires the table, for a change about to move, free or shorten a row or shift elements in one.
inline void arrayprv_directa_caduca(ARRAY *array)
{
    TablaDirecta &tabla = arrayprv_directa(array);
    tabla.indices_cubiertos = 0;
    tabla.lecturas_pendientes = tabla.lecturas_por_construccion;
}

// Builds the direct table from the row tables, or finds the array too small for one and waits for
// more reads.
void arrayprv_directa_construye(const ARRAY *array);

// Counts a read that the table did not answer towards its next build while it is expired,
// and builds it when the count runs out.
[[gnu::always_inline]] inline void arrayprv_directa_cuenta_lectura(const ARRAY *array)
{
    TablaDirecta &tabla = arrayprv_directa(array);
    if (tabla.indices_cubiertos == 0 && tabla.lecturas_pendientes-- == 0) [[unlikely]]
        arrayprv_directa_construye(array);
}

// Frees the table; the next build starts afresh.
void arrayprv_directa_olvida(ARRAY *array);
