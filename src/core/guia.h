// What the engine keeps beside each header, outside the header's record (a reader of raw headers
// sees the record alone), to find the row of an index: the leading full rows, whose rows are
// computed, and a guide from indices to rows (GuiaFilas in core/arrayprv.h) for layouts of uneven
// rows. Writers keep the guide current: every insert and delete is counted in the blocks after
// it, every row inserted or removed in the blocks and entries after it, and the guide is rebuilt
// every so often from the prefix sums. A lookup takes its row as a hint and confirms it by the
// prefix sums: a stale entry costs time, never a wrong answer. Reads only read it.
#pragma once

#include "core/arrayprv.h"
#include "core/directa.h"

#include <bit>

// A header slot with an empty guide; the record is left for the caller to fill.
ARRAY *arrayprv_reserva_cabecera();

// Counts one element inserted (elems 1) or deleted (elems -1) at `real_pos`, after the change,
// and rebuilds the guide when enough changes have gone by.
void arrayprv_guia_tras_cambio(ARRAY *array, ULONG real_pos, int32_t elems);

// Counts rows inserted (filas above 0) or removed (below 0) in front of the rows that hold the
// indices from `indice` on. Called before the row tables change.
void arrayprv_guia_renumera_filas(ARRAY *array, size_t indice, int32_t filas);

// Rebuilds an existing guide, for changes that renumber rows wholesale.
void arrayprv_guia_reconstruye(ARRAY *array);

// Frees the guide; the next rebuild starts afresh.
void arrayprv_guia_olvida(ARRAY *array);

// Below this many rows the row tables stay in the nearest cache, and the prediction from the
// average row length is as quick as the guide or the direct table: neither is built.
inline constexpr size_t FILAS_MINIMAS_GUIA = 64;

// True when an array of these counts gets a guide and a direct table: enough rows, and elements
// for each (which arrayprv_log_tramo needs).
inline bool arrayprv_merece_guia(size_t num_elems, size_t num_filas)
{
    return num_filas >= FILAS_MINIMAS_GUIA && num_elems >= num_filas;
}

// log2 of the indices an entry of the guide or of the direct table spans, from the average row:
// a power of two between a quarter and a half of it, or 1 index for rows of fewer than 4. For
// arrays that arrayprv_merece_guia accepts.
inline unsigned arrayprv_log_tramo(size_t num_elems, size_t num_filas)
{
    const unsigned log_media = static_cast<unsigned>(std::bit_width(num_elems / num_filas)) - 1;
    return log_media > 0 ? log_media - 1 : 0;
}

// Lowers the computable indices to those before row `fila`, and expires the direct table, for a
// change that may shorten, move or renumber row `fila` or the rows after it.
inline void arrayprv_filas_cambian_desde(ARRAY *array, size_t fila)
{
    arrayprv_directa_caduca(array);
    GuiaFilas &guia = arrayprv_guia(array);
    const size_t indices = fila << guia.log_long_fila;
    if (indices < guia.indices_calculables)
        guia.indices_calculables = indices;
}

// Counts the computable indices up again over the rows that are full, for a change that adds or
// fills rows. Only rows from the first one not yet counted on are looked at.
void arrayprv_cuenta_filas_llenas(ARRAY *array);
