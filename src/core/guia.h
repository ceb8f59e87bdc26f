// What the engine keeps beside each header, outside the header's record (a reader of raw headers
// sees the record alone), to find the row of an index: the leading full rows, whose rows are
// computed, and a guide from indices to rows. The guide serves layouts of uneven rows, where
// the row of an index cannot be computed: entry e names the row that held index e << desplazamiento
// when the guide was last built. Inserts and deletes since then move row boundaries, so a lookup
// takes the entry as a hint and confirms the row by the prefix sums; a stale entry costs time,
// never a wrong answer. Inserts and deletes rebuild it every so often; reads only read it.
#pragma once

#include "core/arrayprv.h"

// A header slot with an empty guide; the record is left for the caller to fill.
ARRAY *arrayprv_reserva_cabecera();

// Counts one insert or delete, and rebuilds the guide when enough of them may have moved its rows.
void arrayprv_guia_tras_cambio(ARRAY *array);

// Frees the guide; the next rebuild starts afresh. For changes that renumber rows wholesale.
void arrayprv_guia_olvida(ARRAY *array);

// Lowers the computable indices to those before row `fila`, for a change that may shorten, move
// or renumber row `fila` or the rows after it.
inline void arrayprv_filas_cambian_desde(ARRAY *array, size_t fila)
{
    GuiaFilas &guia = arrayprv_guia(array);
    const size_t indices = fila << guia.log_long_fila;
    if (indices < guia.indices_calculables)
        guia.indices_calculables = indices;
}

// Counts the computable indices up again over the rows that are full, for a change that adds or
// fills rows. Only rows from the first one not yet counted on are looked at.
void arrayprv_cuenta_filas_llenas(ARRAY *array);
