// Tracked heap memory: each block carries a small prefix with its size and where it came from (the
// C heap or a slab), so that live bytes can be counted and the block returned without a table;
// header slots come from a pool that never returns memory and knows which of its slots are live.
#include "services/memoria.h"

#include "services/envenenado.h"
#include "services/losas.h"
#include "services/sin_memoria.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <memory>
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

// Header slots: carved from chunks that are never freed. Each slot has a generation, counted up
// when the pool hands the slot out and again when it comes back, so it is odd exactly while the
// slot holds a live header; the records sit apart from the slots, so a returned slot keeps the
// bytes its last owner left in it. Free slots wait in a queue, a returned one at the back: a
// destroyed header is handed out again only after every other free slot, which keeps a stale
// handle dead to the checks for as long as the pool can.
struct Trozo {
    uintptr_t inicio;
    std::unique_ptr<uint32_t[]> generaciones;
};

struct PoolCabeceras {
    std::mutex cerrojo;
    size_t tamanyo_slot = 0;
    std::deque<void *> libres;
    std::vector<Trozo> trozos; // by address
    static constexpr size_t SLOTS_POR_TROZO = 256;

    // The generation of the slot at `direccion`, or NULL when no slot of the pool starts there.
    // Reads the records only; the caller holds the lock.
    uint32_t *generacion(const void *direccion)
    {
        const auto posicion = reinterpret_cast<uintptr_t>(direccion);
        auto trozo = std::upper_bound(trozos.begin(), trozos.end(), posicion,
                                      [](uintptr_t p, const Trozo &t) { return p < t.inicio; });
        if (trozo == trozos.begin())
            return nullptr;
        --trozo;
        const uintptr_t desplazamiento = posicion - trozo->inicio;
        if (desplazamiento >= SLOTS_POR_TROZO * tamanyo_slot || desplazamiento % tamanyo_slot != 0)
            return nullptr;
        return &trozo->generaciones[desplazamiento / tamanyo_slot];
    }

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
                    void *slot = libres.front();
                    libres.pop_front();
                    ++*generacion(slot);
                    ASAN_UNPOISON_MEMORY_REGION(slot, tamanyo_slot);
                    return slot;
                }
            }
            // A new chunk, asked for without the lock: the out-of-memory handler may free arrays.
            void *trozo = sin_memoria_hasta_obtener(SLOTS_POR_TROZO * tamanyo, [&] {
                return std::calloc(SLOTS_POR_TROZO, tamanyo);
            });
            const std::lock_guard<std::mutex> guarda(cerrojo);
            Trozo nuevo{reinterpret_cast<uintptr_t>(trozo),
                        std::make_unique<uint32_t[]>(SLOTS_POR_TROZO)};
            trozos.insert(std::upper_bound(trozos.begin(), trozos.end(), nuevo.inicio,
                                           [](uintptr_t p, const Trozo &t) { return p < t.inicio; }),
                          std::move(nuevo));
            for (size_t i = 0; i < SLOTS_POR_TROZO; ++i)
                libres.push_back(static_cast<char *>(trozo) + i * tamanyo_slot);
        }
    }

    void libera(void *slot)
    {
        std::lock_guard<std::mutex> guarda(cerrojo);
        uint32_t *vez = generacion(slot);
        if (vez == nullptr || *vez % 2 == 0) // not a header the pool handed out
            std::abort();
        ++*vez;
        ASAN_POISON_MEMORY_REGION(slot, tamanyo_slot);
        libres.push_back(slot);
    }

    bool viva(const void *direccion)
    {
        std::lock_guard<std::mutex> guarda(cerrojo);
        const uint32_t *vez = generacion(direccion);
        return vez != nullptr && *vez % 2 == 1;
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

bool zarpspy_cabecera_viva(const void *direccion) { return pool().viva(direccion); }

size_t zarpspy_bloques_vivos() { return bloques_vivos.load(std::memory_order_relaxed); }
size_t zarpspy_bytes_vivos() { return bytes_vivos.load(std::memory_order_relaxed); }
