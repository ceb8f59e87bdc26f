// Publishing arrays in named shared memory for an outside tool: debugarr_ini_serializa makes the
// block "MemComp_ZarpTools_debugarr_<identifier>" (8-byte header, then the flattened copy) and
// records it in the table of slots; debugarr_fin_serializa closes it.
#include "debug/publicacion.h"

#include "debug/aplanado.h"
#include "debug/lineas.h"
#include "debug/nombres.h"
#include "debug/salida.h"
#include "services/cadenas.h"
#include "services/informes.h"
#include "services/memoria.h"

#include <cstdio>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr const char *UBICACION = "debugarr (ARRAYS.DLL)";

struct Slot {
    ULONG identificador;
    BloqueMemComp *bloque;
};

Slot slots[DEBUGARR_NUM_SLOTS];
size_t ultimo_slot = DEBUGARR_NUM_SLOTS;

// Blocks whose slot was taken again: still published, out of the table's reach.
std::vector<BloqueMemComp *> *sueltos = nullptr;

// At a normal exit the names of the blocks still published go, so nothing is left in /dev/shm
// (a Windows mapping vanishes with the process).
void quita_nombres_al_salir()
{
    for (const Slot &slot : slots)
        if (slot.bloque != nullptr)
            plataforma_quita_nombre(slot.bloque->nombre);
    if (sueltos != nullptr)
        for (const BloqueMemComp *bloque : *sueltos)
            plataforma_quita_nombre(bloque->nombre);
}

void guarda_suelto(BloqueMemComp *bloque)
{
    if (sueltos == nullptr)
        sueltos = new std::vector<BloqueMemComp *>; // lives as long as the process
    sueltos->push_back(bloque);
}

// True when a block is still published under `nombre`: its name must stay.
bool nombre_en_uso(const char *nombre)
{
    for (const Slot &slot : slots)
        if (slot.bloque != nullptr && std::strcmp(slot.bloque->nombre, nombre) == 0)
            return true;
    if (sueltos != nullptr)
        for (const BloqueMemComp *bloque : *sueltos)
            if (std::strcmp(bloque->nombre, nombre) == 0)
                return true;
    return false;
}

void escribe_u32(unsigned char *destino, uint32_t valor)
{
    for (int i = 0; i < 4; ++i)
        destino[i] = static_cast<unsigned char>(valor >> (8 * i));
}

// The slot the next publication takes: on the first one, the table is cleared and slot 0 taken.
size_t slot_siguiente()
{
    if (ultimo_slot == DEBUGARR_NUM_SLOTS) {
        for (Slot &slot : slots)
            slot = {0, nullptr};
        static const bool registrado = std::atexit(quita_nombres_al_salir) == 0;
        (void)registrado;
        return 0;
    }
    return (ultimo_slot + 1) % DEBUGARR_NUM_SLOTS;
}

// Makes the block and copies the flattened array into it; NULL when the block cannot be had.
BloqueMemComp *publica(const ArrayLeido &leido, const Aplanado &copia, const char *nombre)
{
    BloqueCompartido compartido;
    if (!plataforma_crea_bloque(nombre, copia.bytes + DEBUGARR_BYTES_CABECERA, &compartido))
        return nullptr;
    auto *vista = static_cast<unsigned char *>(compartido.vista);
    escribe_u32(vista, static_cast<uint32_t>(copia.bytes));
    escribe_u32(vista + 4, static_cast<uint32_t>(leido.size_elem));
    std::memcpy(vista + DEBUGARR_BYTES_CABECERA, copia.buffer, copia.bytes);
    auto *bloque = static_cast<BloqueMemComp *>(zarpspy_nousar_calloc(1, sizeof(BloqueMemComp)));
    *bloque = {copia.buffer, leido.tipo, leido.num_elems, leido.size_elem, compartido, {}};
    std::snprintf(bloque->nombre, sizeof bloque->nombre, "%s", nombre);
    return bloque;
}

} // namespace

bool debugarr_busca_bloque(ULONG identificador, BloqueMemComp ***out_bloqueMemComp)
{
    if (!ARR_EXIGE(out_bloqueMemComp != nullptr, "(out_bloqueMemComp) != NULL"))
        return false;
    for (Slot &slot : slots)
        if (slot.identificador == identificador) {
            *out_bloqueMemComp = &slot.bloque;
            return true;
        }
    return false;
}

size_t debugarr_ultimo_slot() { return ultimo_slot; }

extern "C" ARRAYS_API void debugarr_ini_serializa(const ARRAY *array, ULONG identificador) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    if (leido.estado == EstadoArray::nulo) {
        debugarr_escribe(DEBUGARR_ARRAY_NULL);
        return;
    }
    if (leido.estado == EstadoArray::ilegible) {
        debugarr_escribe(DEBUGARR_DIRECCION_NO_VALIDA);
        return;
    }
    if (leido.estado != EstadoArray::valido)
        return;
    const Aplanado copia = debugarr_aplana(leido);
    if (copia.ilegible)
        debugarr_escribe(DEBUGARR_DIRECCION_NO_VALIDA);
    // The header holds the data bytes in 32 bits: a larger copy cannot be described.
    if (copia.buffer == nullptr || copia.bytes > UINT32_MAX - DEBUGARR_BYTES_CABECERA)
        return;
    const size_t slot = slot_siguiente();
    char *nombre = nousar_formatea(DEBUGARR_PATRON_BLOQUE, static_cast<int32_t>(identificador));
    BloqueMemComp *bloque = publica(leido, copia, nombre);
    zarpstr_destruye(&nombre);
    if (bloque == nullptr)
        return;
    ultimo_slot = slot;
    if (slots[slot].bloque != nullptr)
        guarda_suelto(slots[slot].bloque);
    slots[slot] = {identificador, bloque};
}

extern "C" ARRAYS_API int debugarr_fin_serializa(ULONG identificador) noexcept
{
    BloqueMemComp **bloque = nullptr;
    if (!debugarr_busca_bloque(identificador, &bloque))
        return 0;
    if (*bloque != nullptr) {
        plataforma_cierra_bloque(&(*bloque)->compartido);
        char nombre[sizeof (*bloque)->nombre];
        std::memcpy(nombre, (*bloque)->nombre, sizeof nombre);
        zarpspy_nousar_free_pp(bloque, sizeof(BloqueMemComp));
        if (!nombre_en_uso(nombre))
            plataforma_quita_nombre(nombre);
    }
    return 1;
}
