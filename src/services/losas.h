// Slabs: equal slots carved from 2 MiB chunks, one list of chunks per slot size, for the row
// blocks of large arrays. A chunk is aligned to its size and asks the kernel for a huge page, so
// filling a large array takes one page fault per 2 MiB instead of one per 4 KiB, and a freed slot
// is reused by the next block of its size. A chunk whose slots are all free goes back to the
// system, unless it is the only free chunk of its size (an array that grows and shrinks across
// a chunk boundary does not map and unmap one on every step). Thread-safe.
#pragma once

#include <cstddef>

// Bytes of one chunk, the alignment of its address too.
inline constexpr size_t LOSAS_BYTES_TROZO = size_t{2} << 20;
// The largest slot a slab gives: a row block of 2048 bytes and the memory service's prefix.
inline constexpr size_t LOSAS_MAX_SLOT = 2048 + 16;
// Slots are multiples of this and start at multiples of it.
inline constexpr size_t LOSAS_ALINEACION = 16;

// A slot of at least `bytes` bytes (1..LOSAS_MAX_SLOT), aligned to LOSAS_ALINEACION, contents
// undefined; NULL, as malloc, when the system has no memory for a new chunk.
void *losas_reserva(size_t bytes);
// Returns a slot that losas_reserva gave.
void losas_libera(void *slot);

// Bytes of the slots handed out and not yet returned (each counted at its slot size), and bytes
// of the chunks mapped now.
size_t losas_bytes_en_uso();
size_t losas_bytes_mapeados();
