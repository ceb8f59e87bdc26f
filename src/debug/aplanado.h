// The flattened copy of an array: its elements one after another in the module's scratch buffer,
// which only grows. When a larger size is asked for, the current buffer becomes the previous one
// (the previous-but-one is freed) and a new one is allocated, so a pointer handed out stays valid
// until the buffer has grown twice more. The buffers live as long as the process.
#pragma once

#include "debug/lectura.h"

// What flattening a read array gave.
struct Aplanado {
    void *buffer = nullptr; // the scratch buffer; NULL when there is nothing to copy into
    size_t bytes = 0;       // num_elems * size_elem
    bool ilegible = false;  // the rows could not be read: the guard's message is due
};

// Flattens a valid array into the scratch buffer. Bit arrays copy nothing and are never valid;
// the 2D points with private data (and the retired 3D type) ask for the buffer but leave it as it
// was. An empty array asks for 0 bytes: the result is NULL while no buffer was ever allocated.
Aplanado debugarr_aplana(const ArrayLeido &leido);
