// An array that a test may corrupt at will: its header and the contents of its row tables are
// saved when it is made and put back before it is destroyed.
#pragma once

#include "core/arrayprv.h"

#include <vector>

class ArrayCorrompible {
public:
    ArrayCorrompible(tipo_elem_array tipo, ULONG num_elems);
    ~ArrayCorrompible();
    ArrayCorrompible(const ArrayCorrompible &) = delete;
    ArrayCorrompible &operator=(const ArrayCorrompible &) = delete;

    ARRAY *get() const { return array_; }
    ARRAY *operator->() const { return array_; }

private:
    ARRAY *array_;
    ARRAY cabecera_;
    std::vector<char *> buffer_;
    std::vector<size_t> max_long_filas_;
    std::vector<size_t> long_filas_;
    std::vector<size_t> acumulado_filas_;
};
