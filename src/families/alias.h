// Second names of an exported function: where the interface calls several names one function,
// each further name is an ELF alias of the one definition, so all of them have one address.
#pragma once

// Exports `nombre` as a second name of the function `destino`, which the same file defines.
#define ARR_ALIAS(nombre, destino)                                                                \
    extern "C" __attribute__((alias(#destino))) decltype(destino) nombre;
