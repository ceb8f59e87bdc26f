// Slabs of row blocks. A chunk starts with its header; its slots follow, handed out first from
// the never-used tail (so a new chunk costs no page until a slot is written) and then from the
// chunk's own list of returned slots. Each slot size keeps the chunks that have a free slot in a
// list; a full chunk leaves it and comes back when one of its slots is returned. Free slots are
// poisoned for AddressSanitizer, so a block read after it is freed is reported as with malloc.
#include "services/losas.h"

#include "services/envenenado.h"
#include "services/plataforma.h"

#include <cstdint>
#include <cstdlib>
#include <mutex>

namespace {

struct Clase;

struct Trozo {
    Clase *clase;
    Trozo *anterior; // neighbours in the class's list of chunks with a free slot
    Trozo *siguiente;
    void *devueltos; // returned slots, each holding the address of the next one
    char *sin_usar;  // the first never-used slot
    char *fin;       // the end of the last whole slot
    size_t vivos;    // slots handed out
};

// The slot size of one class, its chunks with a free slot and whether one of them is all free.
struct Clase {
    size_t slot = 0;
    Trozo *con_sitio = nullptr;
    size_t vacios = 0;
};

// Bytes rounded up to a multiple of the alignment.
constexpr size_t alineado(size_t bytes)
{
    return (bytes + LOSAS_ALINEACION - 1) / LOSAS_ALINEACION * LOSAS_ALINEACION;
}

constexpr size_t INICIO_SLOTS = alineado(sizeof(Trozo));
constexpr size_t NUM_CLASES = LOSAS_MAX_SLOT / LOSAS_ALINEACION + 1;

// Class i hands out slots of i times the alignment.
struct Losas {
    std::mutex cerrojo;
    Clase clases[NUM_CLASES];
    size_t bytes_en_uso = 0;
    size_t bytes_mapeados = 0;

    Losas()
    {
        for (size_t i = 0; i < NUM_CLASES; ++i)
            clases[i].slot = i * LOSAS_ALINEACION;
    }
};

Losas &losas()
{
    static Losas *unicas = new Losas; // lives as long as the process: slots may be freed at exit
    return *unicas;
}

Trozo *trozo_de(void *slot)
{
    return reinterpret_cast<Trozo *>(reinterpret_cast<uintptr_t>(slot) & ~(LOSAS_BYTES_TROZO - 1));
}

void enlaza(Clase &clase, Trozo *trozo)
{
    trozo->anterior = nullptr;
    trozo->siguiente = clase.con_sitio;
    if (clase.con_sitio != nullptr)
        clase.con_sitio->anterior = trozo;
    clase.con_sitio = trozo;
}

void desenlaza(Clase &clase, Trozo *trozo)
{
    if (trozo->anterior != nullptr)
        trozo->anterior->siguiente = trozo->siguiente;
    else
        clase.con_sitio = trozo->siguiente;
    if (trozo->siguiente != nullptr)
        trozo->siguiente->anterior = trozo->anterior;
}

// A new chunk for the class, in its list; NULL when the system has no memory for it.
Trozo *nuevo_trozo(Losas &l, Clase &clase)
{
    auto *trozo = static_cast<Trozo *>(plataforma_reserva_alineada(LOSAS_BYTES_TROZO));
    if (trozo == nullptr)
        return nullptr;
    char *base = reinterpret_cast<char *>(trozo);
    const size_t slots = (LOSAS_BYTES_TROZO - INICIO_SLOTS) / clase.slot;
    *trozo = Trozo{&clase, nullptr, nullptr, nullptr, base + INICIO_SLOTS,
                   base + INICIO_SLOTS + slots * clase.slot, 0};
    ASAN_POISON_MEMORY_REGION(base + INICIO_SLOTS, LOSAS_BYTES_TROZO - INICIO_SLOTS);
    l.bytes_mapeados += LOSAS_BYTES_TROZO;
    enlaza(clase, trozo);
    ++clase.vacios;
    return trozo;
}

// A slot of the chunk, which has one free.
void *saca_slot(Trozo *trozo)
{
    const size_t slot = trozo->clase->slot;
    if (trozo->devueltos != nullptr) {
        void *devuelto = trozo->devueltos;
        ASAN_UNPOISON_MEMORY_REGION(devuelto, slot);
        trozo->devueltos = *static_cast<void **>(devuelto);
        return devuelto;
    }
    void *nuevo = trozo->sin_usar;
    trozo->sin_usar += slot;
    ASAN_UNPOISON_MEMORY_REGION(nuevo, slot);
    return nuevo;
}

bool lleno(const Trozo *trozo) { return trozo->devueltos == nullptr && trozo->sin_usar == trozo->fin; }

} // namespace

void *losas_reserva(size_t bytes)
{
    if (bytes == 0 || bytes > LOSAS_MAX_SLOT)
        std::abort();
    Losas &l = losas();
    std::lock_guard<std::mutex> guarda(l.cerrojo);
    Clase &clase = l.clases[alineado(bytes) / LOSAS_ALINEACION];
    Trozo *trozo = clase.con_sitio != nullptr ? clase.con_sitio : nuevo_trozo(l, clase);
    if (trozo == nullptr)
        return nullptr;
    void *slot = saca_slot(trozo);
    if (trozo->vivos++ == 0)
        --clase.vacios;
    if (lleno(trozo))
        desenlaza(clase, trozo);
    l.bytes_en_uso += clase.slot;
    return slot;
}

void losas_libera(void *slot)
{
    Losas &l = losas();
    std::lock_guard<std::mutex> guarda(l.cerrojo);
    Trozo *trozo = trozo_de(slot);
    Clase &clase = *trozo->clase;
    if (lleno(trozo))
        enlaza(clase, trozo);
    *static_cast<void **>(slot) = trozo->devueltos;
    trozo->devueltos = slot;
    ASAN_POISON_MEMORY_REGION(slot, clase.slot);
    l.bytes_en_uso -= clase.slot;
    if (--trozo->vivos > 0)
        return;
    if (clase.vacios == 0) {
        ++clase.vacios;
        return;
    }
    desenlaza(clase, trozo);
    ASAN_UNPOISON_MEMORY_REGION(trozo, LOSAS_BYTES_TROZO); // the next mapping there starts clean
    plataforma_libera_alineada(trozo, LOSAS_BYTES_TROZO);
    l.bytes_mapeados -= LOSAS_BYTES_TROZO;
}

size_t losas_bytes_en_uso()
{
    std::lock_guard<std::mutex> guarda(losas().cerrojo);
    return losas().bytes_en_uso;
}

size_t losas_bytes_mapeados()
{
    std::lock_guard<std::mutex> guarda(losas().cerrojo);
    return losas().bytes_mapeados;
}
