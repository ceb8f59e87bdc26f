// Test support for the debug module: sinks that capture every text the module writes, in order,
// and the names and contents of shared-memory blocks as another process sees them.
#pragma once

#include "soporte/prueba_arrays.h"
#include "soporte/sistema.h"

#include <cstdint>
#include <string>
#include <vector>

// One text the module wrote: narrow (Windows-1252 bytes) or wide (UTF-8 of its UTF-16 here, so
// that assertions read plainly).
struct TextoSalida {
    bool ancho;
    std::string texto;
    bool operator==(const TextoSalida &) const = default;
};
void PrintTo(const TextoSalida &texto, std::ostream *os);

using Salidas = std::vector<TextoSalida>;

// Narrow texts, for the common case of a dump without wide strings.
Salidas estrechos(const std::vector<std::string> &textos);

// Installs capturing sinks for each test and checks, besides what PruebaArrays checks, that every
// text written was looked at.
class PruebaDebug : public PruebaArrays {
protected:
    void SetUp() override;
    void TearDown() override;

    // The texts written since the last call, forgetting them.
    Salidas salidas();

    // An identifier unique to this test process (and the new processes it starts), for `n`.
    static arr_ulong_t identificador(arr_ulong_t n);
};

// The name of the published block of an identifier, and whether a block of that name exists.
std::string nombre_bloque(arr_ulong_t identificador);
bool existe_bloque(const std::string &nombre);

// A published block's bytes as another process reads them: an empty vector when it is missing.
std::vector<unsigned char> lee_bloque(const std::string &nombre);
uint32_t u32_en(const std::vector<unsigned char> &bytes, size_t desplazamiento);
