// The range stack of the quicksort: parallel arrays of left and right bounds that grow in steps
// fixed at creation (the expected count when below 30, else a sixth of it) and never shrink.
#pragma once

#include "arrays.h"

struct pilaqsor {
    ULONG *izquierdas;
    ULONG *derechas;
    ULONG num_elementos; // stacked ranges; the top is num_elementos - 1
    ULONG max_elementos; // capacity of both arrays
    ULONG incremento;    // growth step
};

pilaqsor *pilaqsor_crea(ULONG num_elementos_esperados);
void pilaqsor_mete(pilaqsor *pila, ULONG izquierda, ULONG derecha);
void pilaqsor_saca(pilaqsor *pila, ULONG *izquierda, ULONG *derecha);
BOOL pilaqsor_vacia(const pilaqsor *pila);
void pilaqsor_destruye(pilaqsor **pila);
