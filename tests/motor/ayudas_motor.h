// Helpers of the engine tests: Double arrays built with a chosen row layout, their contents, and
// the row tables of a header read as plain vectors.
#pragma once

#include "core/arrayprv.h"
#include "soporte/prueba_arrays.h"

#include <cstddef>
#include <initializer_list>
#include <tuple>
#include <vector>

// A Double array whose rows hold the given counts, each row full to its capacity (the layout
// that adding rows leaves), with the elements numbered 1, 2, 3 ... in order.
ARRAY *crea_doubles_en_filas(const std::vector<size_t> &cuentas,
                             ULONG long_fila_en_bytes = LONG_FILA_POR_DEFECTO);

// A Double array of the elements 1 .. n appended one by one into rows of the given size.
ARRAY *crea_doubles_anyadidos(ULONG n, ULONG long_fila_en_bytes = LONG_FILA_POR_DEFECTO);

// A string array built through the engine, owning copies of the given texts.
ARRAY *crea_cadenas(std::initializer_list<const char *> textos);

// The numbers desde, desde + 1, ... hasta as doubles.
std::vector<double> numerados(size_t desde, size_t hasta);

// Every element of a Double array, read through the public interface.
std::vector<double> contenido(ARRAY *array);

// True when the array has no rows: num_filas 0 and all four row tables NULL.
bool sin_filas(const ARRAY *array);

// The per-row tables of a header.
std::vector<size_t> longitudes(const ARRAY *array);
std::vector<size_t> capacidades(const ARRAY *array);
std::vector<size_t> acumulados(const ARRAY *array);

// Comparable form of a position.
std::tuple<size_t, size_t> fila_y_pos(const posicion_array &posi);

// The row and offset of an index counted over the row lengths alone, without the engine.
std::tuple<size_t, size_t> posicion_contada(const std::vector<size_t> &longitudes, size_t indice);

// Maps every index of the array through the engine and compares with posicion_contada.
void comprueba_todas_las_posiciones(const ARRAY *array);

// Checks what the engine claims of the rows it computes (GuiaFilas::indices_calculables): every
// row it claims is full, and none of them holds an index at or past num_elems.
void comprueba_filas_calculables(const ARRAY *array);

// The element at (fila, pos) read straight from its row block, even past the row's count.
double double_en(const ARRAY *array, size_t fila, size_t pos);

// Marks the array as inside a traversal through one of its loop flags for the helper's lifetime.
class EnRecorrido {
public:
    EnRecorrido(ARRAY *array, BOOL ARRAY::*bandera) : array_(array), bandera_(bandera)
    {
        array_->*bandera_ = CIERTO;
    }
    ~EnRecorrido() { array_->*bandera_ = FALSO; }
    EnRecorrido(const EnRecorrido &) = delete;
    EnRecorrido &operator=(const EnRecorrido &) = delete;

private:
    ARRAY *array_;
    BOOL ARRAY::*bandera_;
};

// A test on one array, made for each test by crea_array() and destroyed after it (unless the test
// has destroyed it already); al_terminar() checks what must still hold of it at the end.
class PruebaConArray : public PruebaArrays {
protected:
    void SetUp() override
    {
        PruebaArrays::SetUp();
        array = crea_array();
    }
    void TearDown() override
    {
        if (array != nullptr) {
            al_terminar();
            arrayprv_destruye(&array);
        }
        PruebaArrays::TearDown();
    }
    virtual ARRAY *crea_array() = 0;
    virtual void al_terminar() {}

    ARRAY *array = nullptr;
};
