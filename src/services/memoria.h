// Tracked heap memory: every block the library allocates is counted (live blocks and bytes), so
// that tests can prove that nothing leaks. Allocation failure stops the program.
// Array headers come from a type-stable pool: a destroyed header stays readable (with its
// validity mark cleared) for the life of the process, so a stale handle never reads freed memory.
#pragma once

#include <cstddef>

void *zarpspy_nousar_malloc(size_t tamanyo);
void *zarpspy_nousar_calloc(size_t num, size_t tamanyo);
void *zarpspy_nousar_realloc(void *bloque, size_t tamanyo);
// Frees the block *puntero holds (nothing if NULL) and sets *puntero to NULL. `tamanyo_item`
// only says what the block holds.
void zarpspy_nousar_free_pp(void *puntero, size_t tamanyo_item);

// A header-sized slot from the type-stable pool, and its return to the pool (*puntero is set to
// NULL). Every slot of the pool has the size of the first request.
void *zarpspy_reserva_cabecera(size_t tamanyo);
void zarpspy_libera_cabecera(void *puntero);

// What is allocated now, through this service and the header pool.
size_t zarpspy_bloques_vivos();
size_t zarpspy_bytes_vivos();
