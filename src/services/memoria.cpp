// Tracked heap memory: each block carries a small prefix with its size and where it came from (the
// C heap or a slab), so that live bytes can be counted and the block returned without a table;
// header slots come from a pool that never returns memory.
#include "services/memoria.h"

#include "services/losas.h"
#include "services/sin_memoria.h"

#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <mutex>
#include <vector>

namespace {

enum class Origen : size_t { monton, losa };

struct Prefijo {
    size_t tamanyo;
    Origen origen;
};

// The prefix keeps the user's block aligned as malloc aligns it.
constexpr size_t PREFIJO = alignof(std::max_align_t);
static_assert(sizeof(Prefijo) <= PREFIJO && PREFIJO % LOSAS_ALINEACION == 0);
static_assert(PREFIJO + ZARPSPY_MAX_BLOQUE_LOSA <= LOSAS_MAX_SLOT);

std::atomic<size_t> bloques_vivos{0};
std::atomic<size_t> bytes_vivos{0};

void cuenta_alta(size_t tamanyo)
{
    bloques_vivos.fetch_add(1, std::memory_order_relaxed);
    bytes_vivos.fetch_add(tamanyo, std::memory_order_relaxed);
}

void cuenta_baja(size_t tamanyo)
{
    bloques_vivos.fetch_sub(1, std::memory_order_relaxed);
    bytes_vivos.fetch_sub(tamanyo, std::memory_order_relaxed);
}

void *usuario(void *base) { return static_cast<char *>(base) + PREFIJO; }
void *base_de(void *bloque) { return static_cast<char *>(bloque) - PREFIJO; }
Prefijo &prefijo(void *base) { return *static_cast<Prefijo *>(base); }
size_t &tamanyo_de(void *base) { return prefijo(base).tamanyo; }

// The user part of a new block, counted from now on.
void *estrena(void *base, size_t tamanyo, Origen origen)
{
    prefijo(base) = Prefijo{tamanyo, origen};
    cuenta_alta(tamanyo);
    return usuario(base);
}

// Returns a block to where it came from; it was counted out already.
void devuelve(void *base)
{
    if (prefijo(base).origen == Origen::losa)
        losas_libera(base);
    else
        std::free(base);
}

// Header slots: carved from chunks that are never freed; free slots wait in a list kept apart
// from the slots, so a returned slot keeps the bytes its last owner left in it.
struct PoolCabeceras {
    std::mutex cerrojo;
    size_t tamanyo_slot = 0;
    std::vector<void *> libres;
    std::vector<void *> trozos;
    static constexpr size_t SLOTS_POR_TROZO = 256;

    void *reserva(size_t tamanyo)
    {
        for (;;) {
            {
                const std::lock_guard<std::mutex> guarda(cerrojo);
                if (tamanyo_slot == 0)
                    tamanyo_slot = tamanyo;
                if (tamanyo != tamanyo_slot)
                    std::abort();
                if (!libres.empty()) {
                    void *slot = libres.back();
                    libres.pop_back();
                    ASAN_UNPOISON_MEMORY_REGION(slot, tamanyo_slot);
                    return slot;
                }
            }
            // A new chunk, asked for without the lock: the out-of-memory handler may free arrays.
            void *trozo = sin_memoria_hasta_obtener(SLOTS_POR_TROZO * tamanyo, [&] {
                return std::calloc(SLOTS_POR_TROZO, tamanyo);
            });
            const std::lock_guard<std::mutex> guarda(cerrojo);
            trozos.push_back(trozo);
            for (size_t i = SLOTS_POR_TROZO; i-- > 0;)
                libres.push_back(static_cast<char *>(trozo) + i * tamanyo_slot);
        }
    }

    void libera(void *slot)
    {
        std::lock_guard<std::mutex> guarda(cerrojo);
        ASAN_POISON_MEMORY_REGION(slot, tamanyo_slot);
        libres.push_back(slot);
    }
};

PoolCabeceras &pool()
{
    static PoolCabeceras *unico = new PoolCabeceras; // lives as long as the process
    return *unico;
}

} // namespace

void *zarpspy_nousar_malloc(size_t tamanyo)
{
    void *base =
        sin_memoria_hasta_obtener(tamanyo, [&] { return std::malloc(PREFIJO + tamanyo); });
    return estrena(base, tamanyo, Origen::monton);
}

void *zarpspy_nousar_calloc(size_t num, size_t tamanyo)
{
    const size_t total = num * tamanyo;
    if (tamanyo != 0 && total / tamanyo != num) // no size_t holds the size asked for
        sin_memoria_termina(SIZE_MAX);
    void *base =
        sin_memoria_hasta_obtener(total, [&] { return std::calloc(1, PREFIJO + total); });
    return estrena(base, total, Origen::monton);
}

void *zarpspy_reserva_en_losa(size_t tamanyo)
{
    if (tamanyo == 0 || tamanyo > ZARPSPY_MAX_BLOQUE_LOSA)
        return zarpspy_nousar_malloc(tamanyo);
    void *base =
        sin_memoria_hasta_obtener(tamanyo, [&] { return losas_reserva(PREFIJO + tamanyo); });
    return estrena(base, tamanyo, Origen::losa);
}

void *zarpspy_nousar_realloc(void *bloque, size_t tamanyo)
{
    if (bloque == nullptr)
        return zarpspy_nousar_malloc(tamanyo);
    void *base = base_de(bloque);
    const size_t anterior = tamanyo_de(base);
    if (prefijo(base).origen == Origen::losa) { // a slot's size is fixed: the block moves to the heap
        void *nuevo = zarpspy_nousar_malloc(tamanyo);
        std::memcpy(nuevo, bloque, std::min(anterior, tamanyo));
        zarpspy_nousar_free_pp(&bloque, 1);
        return nuevo;
    }
    void *nueva = sin_memoria_hasta_obtener(tamanyo,
                                            [&] { return std::realloc(base, PREFIJO + tamanyo); });
    tamanyo_de(nueva) = tamanyo;
    bytes_vivos.fetch_add(tamanyo - anterior, std::memory_order_relaxed); // wraps when shrinking
    return usuario(nueva);
}

size_t zarpspy_tamanyo_bloque(const void *bloque)
{
    return tamanyo_de(base_de(const_cast<void *>(bloque)));
}

void zarpspy_nousar_free_pp(void *puntero, size_t)
{
    void *bloque = puntero != nullptr ? zarpspy_lee_puntero(puntero) : nullptr;
    if (bloque == nullptr)
        return;
    void *base = base_de(bloque);
    cuenta_baja(tamanyo_de(base));
    devuelve(base);
    zarpspy_escribe_puntero(puntero, nullptr);
}

void *zarpspy_reserva_cabecera(size_t tamanyo)
{
    void *slot = pool().reserva(tamanyo);
    cuenta_alta(tamanyo);
    return slot;
}

void zarpspy_libera_cabecera(void *puntero)
{
    void *cabecera = puntero != nullptr ? zarpspy_lee_puntero(puntero) : nullptr;
    if (cabecera == nullptr)
        return;
    cuenta_baja(pool().tamanyo_slot);
    pool().libera(cabecera);
    zarpspy_escribe_puntero(puntero, nullptr);
}

size_t zarpspy_bloques_vivos() { return bloques_vivos.load(std::memory_order_relaxed); }
size_t zarpspy_bytes_vivos() { return bytes_vivos.load(std::memory_order_relaxed); }
