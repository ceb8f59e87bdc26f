// Helpers of the search, sort and whole-array tests: arrays of any element type built through the
// engine, their elements read back, the row layout of a header, and point records as stored.
#pragma once

#include "core/arrayprv.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstring>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

struct Punto2D {
    double x, y;
};
struct Punto2DX {
    double x, y;
    void *datos;
};
struct Punto3D {
    double x, y, z;
};

// A field of the packed header, read by value: the checks of the test framework bind references,
// and the packing leaves most fields misaligned.
template <typename T> T campo(T valor) { return valor; }

// An array of the tag holding `valores` appended in order, in rows of `long_fila` bytes.
template <typename T>
ARRAY *crea_con(tipo_elem_array tipo, const std::vector<T> &valores,
                ULONG long_fila = LONG_FILA_POR_DEFECTO)
{
    ARRAY *array = arrayprv_crea(0, tipo, long_fila);
    for (const T &valor : valores)
        arrayprv_append(array, &valor, tipo);
    return array;
}

// Every element of an array of the tag, in order.
template <typename T> std::vector<T> elementos(const ARRAY *array, tipo_elem_array tipo)
{
    std::vector<T> valores(array->num_elems);
    for (size_t i = 0; i < valores.size(); ++i)
        std::memcpy(&valores[i], arrayprv_get(array, static_cast<ULONG>(i), tipo), sizeof(T));
    return valores;
}

// A Double array of `valores` appended through the public interface, and its elements.
ARRAY *crea_doubles(const std::vector<double> &valores);
std::vector<double> doubles_de(ARRAY *array);
// 1, 2, ... n as doubles.
std::vector<double> uno_a(size_t n);

// A narrow-string array owning copies of `cadenas`, and its strings.
ARRAY *crea_cadenas(const std::vector<std::string> &cadenas);
std::vector<std::string> cadenas_de(const ARRAY *array);

// The bits of a double, to compare NaNs and signed zeros exactly.
inline uint64_t bits(double valor) { return std::bit_cast<uint64_t>(valor); }
std::vector<uint64_t> bits_de(const std::vector<double> &valores);

// The row tables of a header: which rows it has, their counts, capacities and prefix sums.
struct Disposicion {
    size_t num_filas;
    std::vector<size_t> long_filas;
    std::vector<size_t> max_long_filas;
    std::vector<size_t> acumulado_filas;
    bool operator==(const Disposicion &) const = default;
};
Disposicion disposicion(const ARRAY *array);
void PrintTo(const Disposicion &d, std::ostream *os);

// One call of a Double comparator: the bits of its two arguments.
using Llamada = std::pair<uint64_t, uint64_t>;

// A Double comparator for the sort that records every call it receives and answers through
// `responde`. While it lives, the plain function `compara` forwards to it.
class ComparadorAnotado {
public:
    using Respuesta = std::function<int(double a, double b)>;
    explicit ComparadorAnotado(Respuesta responde);
    ~ComparadorAnotado();
    ComparadorAnotado(const ComparadorAnotado &) = delete;
    ComparadorAnotado &operator=(const ComparadorAnotado &) = delete;

    static int compara(double a, double b);
    const std::vector<Llamada> &llamadas() const { return llamadas_; }

private:
    Respuesta responde_;
    std::vector<Llamada> llamadas_;
    ComparadorAnotado *anterior_;
};

// An element type whose search and equality need its own predicate, and the text that names the
// predicate's member when it is missing.
struct PredicadoRequerido {
    tipo_elem_array tipo;
    const char *texto;
};
// The seven such types, and a test name for each.
std::vector<PredicadoRequerido> predicados_requeridos();
std::string nombre_de_tipo(const ::testing::TestParamInfo<PredicadoRequerido> &info);
void PrintTo(const PredicadoRequerido &predicado, std::ostream *os);
