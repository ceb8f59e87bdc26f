// Tracked heap memory: every block the library allocates is counted (live blocks and bytes), so
// that tests can prove that nothing leaks. No function returns a NULL block: a failure goes to the
// out-of-memory path (services/sin_memoria.h), which retries or ends the process.
// Array headers come from a type-stable pool: a destroyed header stays readable (with its
// validity mark cleared) for the life of the process, so a stale handle never reads freed memory.
#pragma once

#include <cstddef>
#include <cstring>

void *zarpspy_nousar_malloc(size_t tamanyo);
void *zarpspy_nousar_calloc(size_t num, size_t tamanyo);
void *zarpspy_nousar_realloc(void *bloque, size_t tamanyo);
// A block from a slab (services/losas.h) instead of the C heap, for the row blocks of large
// arrays; blocks above ZARPSPY_MAX_BLOQUE_LOSA bytes come from the heap. It is freed, resized and
// measured as any other block; resizing moves it to the heap.
inline constexpr size_t ZARPSPY_MAX_BLOQUE_LOSA = 2048;
void *zarpspy_reserva_en_losa(size_t tamanyo);
// The size of a block of this service, as last allocated or reallocated.
size_t zarpspy_tamanyo_bloque(const void *bloque);
// Frees the block *puntero holds (nothing if NULL) and sets *puntero to NULL. `tamanyo_item`
// only says what the block holds. The slot may be unaligned: the array header is packed.
void zarpspy_nousar_free_pp(void *puntero, size_t tamanyo_item);

// A header-sized slot from the type-stable pool, and its return to the pool (*puntero is set to
// NULL). Every slot of the pool has the size of the first request. In AddressSanitizer builds a
// returned slot is poisoned until the pool hands it out again, so that a stale handle read
// anywhere but through zarpspy_cabecera_legible is an error ASan reports.
void *zarpspy_reserva_cabecera(size_t tamanyo);
void zarpspy_libera_cabecera(void *puntero);
// Whether `direccion` is the start of a pool slot that holds a header now (handed out and not
// returned). Answered from the pool's own records without reading `direccion`, so that any
// pointer at all, wild or forged, may be asked about; it takes the pool's lock.
bool zarpspy_cabecera_viva(const void *direccion);

// Whether the header slot at `cabecera` may be read: always, except a returned slot in an
// AddressSanitizer build. Every check of a handle asks this before it reads the validity mark.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZARPSPY_CON_ASAN 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define ZARPSPY_CON_ASAN 1
#endif
#if defined(ZARPSPY_CON_ASAN)
extern "C" int __asan_address_is_poisoned(void const volatile *direccion);
inline bool zarpspy_cabecera_legible(const void *cabecera)
{
    return __asan_address_is_poisoned(cabecera) == 0;
}
#else
inline bool zarpspy_cabecera_legible(const void *) { return true; }
#endif

// What is allocated now, through this service and the header pool.
size_t zarpspy_bloques_vivos();
size_t zarpspy_bytes_vivos();

// The pointer held in a slot that may be unaligned, and its replacement: pointers inside the
// packed array header sit on 2-byte boundaries.
inline void *zarpspy_lee_puntero(const void *celda)
{
    void *puntero;
    std::memcpy(&puntero, celda, sizeof puntero);
    return puntero;
}
inline void zarpspy_escribe_puntero(void *celda, void *puntero)
{
    std::memcpy(celda, &puntero, sizeof puntero);
}
