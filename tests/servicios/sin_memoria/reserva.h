// What the out-of-memory tests install: a handler that frees a reserve block of its own, as an
// application would, and asks for a retry; and a report handler that counts instead of printing.
#pragma once

#include "arrays.h"

#include <cstddef>
#include <cstdlib>

// The reserve the handler frees, and what it was asked for.
struct Reserva {
    void *bloque = std::malloc(1 << 16);
    size_t llamadas = 0;
    size_t bytes_pedidos = 0;
    Reserva() = default;
    Reserva(const Reserva &) = delete;
    Reserva &operator=(const Reserva &) = delete;
    ~Reserva() { std::free(bloque); }
};

// The handler: frees the reserve given as its context and has the request tried again.
inline BOOL libera_reserva(size_t bytes, void *contexto)
{
    auto *reserva = static_cast<Reserva *>(contexto);
    ++reserva->llamadas;
    reserva->bytes_pedidos = bytes;
    std::free(reserva->bloque);
    reserva->bloque = nullptr;
    return CIERTO;
}

// Counts the reports of a consistency check in the size_t given as its context.
inline void cuenta_informe(const arr_informe *, void *contexto)
{
    ++*static_cast<size_t *>(contexto);
}
