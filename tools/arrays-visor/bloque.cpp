// Opening and checking a published block: nothing past the mapped length is ever read, so a
// malformed block is named instead of crashing the viewer.
#include "bloque.h"

#include "debug/nombres.h"

#include <cstdio>

uint32_t lee_u32(const unsigned char *bytes)
{
    return uint32_t{bytes[0]} | uint32_t{bytes[1]} << 8 | uint32_t{bytes[2]} << 16 |
           uint32_t{bytes[3]} << 24;
}

BloquePublicado::BloquePublicado(uint32_t identificador)
{
    char nombre[64];
    std::snprintf(nombre, sizeof nombre, DEBUGARR_PATRON_BLOQUE,
                  static_cast<int32_t>(identificador));
    nombre_ = nombre;
    if (!plataforma_abre_bloque(nombre, &bloque_)) {
        fallo_ = Fallo::no_existe;
        motivo_ = "no published block " + nombre_;
        return;
    }
    const auto *bytes = static_cast<const unsigned char *>(bloque_.vista);
    if (bloque_.bytes < DEBUGARR_BYTES_CABECERA) {
        fallo_ = Fallo::malformado;
        motivo_ = nombre_ + " is " + std::to_string(bloque_.bytes) +
                  " bytes long, shorter than its 8-byte header";
        return;
    }
    const uint32_t datos = lee_u32(bytes);
    size_elem_ = lee_u32(bytes + 4);
    if (datos > bloque_.bytes - DEBUGARR_BYTES_CABECERA) {
        fallo_ = Fallo::malformado;
        const size_t presentes = bloque_.bytes - DEBUGARR_BYTES_CABECERA;
        motivo_ = nombre_ + " is shorter than its header says: " + std::to_string(datos) +
                  " data bytes announced, " + std::to_string(presentes) + " present";
        return;
    }
    if (size_elem_ == 0 || datos % size_elem_ != 0) {
        fallo_ = Fallo::malformado;
        motivo_ = nombre_ + ": its sizes do not add up: " + std::to_string(datos) +
                  " data bytes in elements of " + std::to_string(size_elem_) + " bytes";
        return;
    }
    num_elems_ = datos / size_elem_;
    datos_ = bytes + DEBUGARR_BYTES_CABECERA;
}

BloquePublicado::~BloquePublicado() { plataforma_cierra_bloque(&bloque_); }
