// The element types a published block may hold, by the names the command line uses: the block
// holds only the element size, so the type comes from the user and is checked against it.
#pragma once

#include "arrays.h"

#include <cstddef>
#include <optional>
#include <string>

struct TipoVisor {
    const char *nombre;
    tipo_elem_array tipo;
    size_t size_elem;
};

// The type named `nombre`, if it is one of the list.
std::optional<TipoVisor> tipo_de(const std::string &nombre);
// Every name, for the help text.
std::string nombres_de_tipos();
