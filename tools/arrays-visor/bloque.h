// A block that the library published, opened from another process and checked before anything
// of it is read: the header must fit, and its sizes must describe the bytes that follow.
#pragma once

#include "services/plataforma.h"

#include <cstddef>
#include <cstdint>
#include <string>

// What went wrong, each with its exit code.
enum class Fallo {
    ninguno = 0,
    uso = 1,          // the command line
    no_existe = 2,    // no block of that name
    malformado = 3,   // shorter than its header says, or sizes that do not add up
    tipo = 4,         // the type asked for does not fit the block
    salida = 5,       // the output file cannot be written
};

// A published array's block, mapped read-only for as long as the object lives.
class BloquePublicado {
public:
    // Opens "MemComp_ZarpTools_debugarr_<identificador>"; fallo() says whether it can be read.
    explicit BloquePublicado(uint32_t identificador);
    ~BloquePublicado();
    BloquePublicado(const BloquePublicado &) = delete;
    BloquePublicado &operator=(const BloquePublicado &) = delete;

    Fallo fallo() const { return fallo_; }
    const std::string &motivo() const { return motivo_; }

    const std::string &nombre() const { return nombre_; }
    uint32_t size_elem() const { return size_elem_; }
    size_t num_elems() const { return num_elems_; }
    // The bytes of element i (below num_elems()).
    const unsigned char *elemento(size_t i) const { return datos_ + i * size_elem_; }

private:
    std::string nombre_;
    BloqueCompartido bloque_;
    Fallo fallo_ = Fallo::ninguno;
    std::string motivo_;
    uint32_t size_elem_ = 0;
    size_t num_elems_ = 0;
    const unsigned char *datos_ = nullptr;
};

// A little-endian 32-bit word.
uint32_t lee_u32(const unsigned char *bytes);
