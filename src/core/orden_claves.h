// Sorting by keys, for the default order of the integer types and of doubles whose result no
// correct sort can change: equal values there are identical bytes, so the sorted array is the
// same whatever sort made it. Each value maps to an unsigned key of its width that orders as the
// value does (the sign bit flipped for signed integers; for doubles the sign-flip transform, all
// bits inverted when negative), and a radix sort by bytes orders the keys: O(n) per byte, so no
// input makes it slower than any other. One pass by the most significant byte in which keys
// differ moves the values from the rows into one contiguous copy, in buckets; each bucket is then
// sorted by its lower bytes with that stretch of the copy and that stretch of the rows as its two
// buffers, small enough to stay in the caches. The scratch memory is that one copy; one-byte
// values are counted and need none; when the copy cannot be had, an in-place heapsort over the
// rows sorts instead.
#pragma once

#include "core/arrayprv.h"
#include "services/plataforma.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

// The unsigned key of a value: keys order as the values do under the type's default order (Char
// as signed 8-bit). For doubles, only where no NaN is present and every zero has one sign.
template <typename T> struct ClaveOrden {
    using Clave = std::make_unsigned_t<std::conditional_t<std::is_same_v<T, char>, signed char, T>>;
    static Clave de(T valor)
    {
        const auto clave = static_cast<Clave>(valor);
        if constexpr (std::is_signed_v<T> || std::is_same_v<T, char>)
            return clave ^ static_cast<Clave>(Clave{1} << (8 * sizeof(Clave) - 1));
        else
            return clave;
    }
};
template <> struct ClaveOrden<double> {
    using Clave = uint64_t;
    static Clave de(double valor)
    {
        const uint64_t bits = std::bit_cast<uint64_t>(valor);
        // All ones for a negative value, the sign bit alone otherwise: no branch on the sign.
        const uint64_t mascara = static_cast<uint64_t>(static_cast<int64_t>(bits) >> 63) |
                                 (uint64_t{1} << 63);
        return bits ^ mascara;
    }
};

// True when the default order of doubles leaves nothing to chance in `array`: no NaN (equal to
// everything) and no pair of zeros of different sign (equal, with different bytes).
inline bool arrayprv_dobles_sin_empates_aparentes(const ARRAY *array)
{
    bool cero_positivo = false;
    bool cero_negativo = false;
    bool sin_nan = true;
    arrayprv_visita_todos(array, [&](char *elemento) {
        double valor;
        std::memcpy(&valor, elemento, sizeof valor);
        sin_nan = valor == valor;
        if (valor == 0)
            (std::signbit(valor) ? cero_negativo : cero_positivo) = true;
        return sin_nan && !(cero_positivo && cero_negativo);
    });
    return sin_nan && !(cero_positivo && cero_negativo);
}

// Reads or writes elements one after another in the rows from a given index on, stepping from
// row to row; the sequence must stay below num_elems.
class CursorFilas {
public:
    CursorFilas() = default;
    CursorFilas(const ARRAY *array, size_t fila, size_t pos)
        : array_(array), fila_(fila),
          actual_(fila < array->num_filas ? array->buffer[fila] + pos * array->size_elem : nullptr),
          quedan_(fila < array->num_filas ? array->long_filas[fila] - pos : 0)
    {
    }
    template <typename T> void escribe(T valor)
    {
        std::memcpy(siguiente(sizeof valor), &valor, sizeof valor);
    }
    template <typename T> T lee()
    {
        T valor;
        std::memcpy(&valor, siguiente(sizeof valor), sizeof valor);
        return valor;
    }

private:
    char *siguiente(size_t bytes)
    {
        if (quedan_ == 0) {
            ++fila_;
            actual_ = array_->buffer[fila_];
            quedan_ = array_->long_filas[fila_];
        }
        char *elemento = actual_;
        actual_ += bytes;
        --quedan_;
        return elemento;
    }

    const ARRAY *array_ = nullptr;
    size_t fila_ = 0;
    char *actual_ = nullptr;
    size_t quedan_ = 0;
};

// Calls visita(T value) for every element in position order, row by row.
template <typename T, typename Visita> void arrayprv_lee_filas(const ARRAY *array, Visita &&visita)
{
    for (size_t fila = 0; fila < array->num_filas; ++fila) {
        const char *elemento = array->buffer[fila];
        for (size_t k = array->long_filas[fila]; k > 0; --k, elemento += sizeof(T)) {
            T valor;
            std::memcpy(&valor, elemento, sizeof valor);
            visita(valor);
        }
    }
}

// The row that holds index `indice` (below num_elems), by bisection over the prefix sums.
inline size_t arrayprv_fila_de(const ARRAY *array, size_t indice)
{
    const size_t *inicio = array->acumulado_filas;
    const size_t *siguiente = std::upper_bound(inicio, inicio + array->num_filas, indice);
    return static_cast<size_t>(siguiente - inicio) - 1;
}

// A cursor at each of `inicios` (ascending indices from `desde` on; a bucket that receives
// nothing may start at the end of the array), placed in one walk over the prefix sums.
template <size_t N>
void arrayprv_situa_cursores(const ARRAY *array, size_t desde, const std::array<size_t, N> &inicios,
                             std::array<CursorFilas, N> &cursores)
{
    size_t fila = arrayprv_fila_de(array, desde);
    for (size_t d = 0; d < N; ++d) {
        // Invariant: rows before `fila` end at or before inicios[d].
        while (fila + 1 < array->num_filas && array->acumulado_filas[fila + 1] <= inicios[d])
            ++fila;
        cursores[d] = CursorFilas(array, fila, inicios[d] - array->acumulado_filas[fila]);
    }
}

// Bytes of a key: the radix sort moves values by one of them per pass.
template <typename T> using ClaveDe = typename ClaveOrden<T>::Clave;
template <typename T> size_t byte_de(T valor, size_t byte)
{
    return static_cast<size_t>(ClaveOrden<T>::de(valor) >> (8 * byte)) & 0xFF;
}

// Below this many values a bucket is sorted by comparisons.
inline constexpr size_t MINIMO_CUBO_RADIX = 64;

// Sorts the values of indices [inicio, fin), which stand in copia[inicio, fin) and agree on every
// byte from `bytes` up, into the same indices of the rows: a least-significant-byte radix sort
// over bytes 0 .. bytes - 1 whose two buffers are that stretch of the copy and that stretch of
// the rows. A bucket of the first pass is small, so both stay in the nearest caches.
template <typename T> void arrayprv_ordena_cubo(ARRAY *array, T *copia, size_t inicio, size_t fin,
                                                size_t bytes)
{
    const size_t fila = arrayprv_fila_de(array, inicio);
    const CursorFilas cursor_inicio(array, fila, inicio - array->acumulado_filas[fila]);
    bool en_copia = true; // where the stretch stands: the copy or the rows
    if (fin - inicio < MINIMO_CUBO_RADIX) {
        std::sort(copia + inicio, copia + fin,
                  [](T a, T b) { return ClaveOrden<T>::de(a) < ClaveOrden<T>::de(b); });
    } else {
        std::array<std::array<size_t, 256>, sizeof(T)> cuentas{};
        for (size_t k = inicio; k < fin; ++k)
            for (size_t byte = 0; byte < bytes; ++byte)
                ++cuentas[byte][byte_de(copia[k], byte)];
        for (size_t byte = 0; byte < bytes; ++byte) {
            const std::array<size_t, 256> &cuenta = cuentas[byte];
            if (std::find(cuenta.begin(), cuenta.end(), fin - inicio) != cuenta.end())
                continue; // every value has the same byte here: the pass would move nothing
            std::array<size_t, 256> inicios;
            for (size_t d = 0, suma = inicio; d < 256; suma += cuenta[d++])
                inicios[d] = suma;
            if (en_copia) {
                std::array<CursorFilas, 256> cursores;
                arrayprv_situa_cursores(array, inicio, inicios, cursores);
                for (size_t k = inicio; k < fin; ++k)
                    cursores[byte_de(copia[k], byte)].escribe(copia[k]);
            } else {
                CursorFilas lector = cursor_inicio;
                for (size_t k = inicio; k < fin; ++k) {
                    const T valor = lector.lee<T>();
                    copia[inicios[byte_de(valor, byte)]++] = valor;
                }
            }
            en_copia = !en_copia;
        }
    }
    if (en_copia) {
        CursorFilas escritor = cursor_inicio;
        for (size_t k = inicio; k < fin; ++k)
            escritor.escribe(copia[k]);
    }
}

// The radix sort proper, `copia` having room for num_elems values: one pass by the most
// significant byte in which the keys differ, from the rows into the copy, splits the values into
// buckets in their final order; each bucket is then sorted by its lower bytes
// (arrayprv_ordena_cubo) and lands in the rows.
template <typename T> void arrayprv_ordena_radix(ARRAY *array, T *copia)
{
    std::array<std::array<size_t, 256>, sizeof(T)> cuentas{};
    arrayprv_lee_filas<T>(array, [&](T valor) {
        for (size_t byte = 0; byte < sizeof(T); ++byte)
            ++cuentas[byte][byte_de(valor, byte)];
    });
    const size_t n = array->num_elems;
    size_t alto = sizeof(T);
    while (alto-- > 0)
        if (std::find(cuentas[alto].begin(), cuentas[alto].end(), n) == cuentas[alto].end())
            break;
    if (alto >= sizeof(T))
        return; // every value is the same
    std::array<size_t, 256> inicios;
    for (size_t d = 0, suma = 0; d < 256; suma += cuentas[alto][d++])
        inicios[d] = suma;
    arrayprv_lee_filas<T>(array, [&](T valor) { copia[inicios[byte_de(valor, alto)]++] = valor; });
    // Now inicios[d] is where bucket d ends.
    for (size_t d = 0, inicio = 0; d < 256; inicio = inicios[d++])
        if (inicios[d] > inicio)
            arrayprv_ordena_cubo<T>(array, copia, inicio, inicios[d], alto);
}

// A counting sort for 1-byte values, with no copy: equal keys are equal values, so the rows are
// rewritten from the count of each key and one value that has it.
template <typename T> void arrayprv_ordena_por_cuentas(ARRAY *array)
{
    std::array<size_t, 256> cuentas{};
    std::array<T, 256> valores{};
    arrayprv_lee_filas<T>(array, [&](T valor) {
        const auto clave = ClaveOrden<T>::de(valor);
        ++cuentas[clave];
        valores[clave] = valor;
    });
    CursorFilas escritor(array, 0, 0);
    for (size_t clave = 0; clave < 256; ++clave)
        for (size_t k = cuentas[clave]; k > 0; --k)
            escritor.escribe(valores[clave]);
}

// Heapsort in place over the rows, by index: for an array too large to copy. O(n log n) on every
// input, with no memory beyond a few values.
template <typename T> void arrayprv_ordena_en_sitio(ARRAY *array)
{
    using Clave = typename ClaveOrden<T>::Clave;
    const auto direccion = [array](size_t i) {
        posicion_array posi;
        arrayprv_posicion(array, static_cast<ULONG>(i), &posi);
        return array->buffer[posi.fila] + posi.pos * sizeof(T);
    };
    const auto clave = [&](size_t i) {
        T valor;
        std::memcpy(&valor, direccion(i), sizeof valor);
        return ClaveOrden<T>::de(valor);
    };
    const auto intercambia = [&](size_t i, size_t j) {
        char *a = direccion(i);
        char *b = direccion(j);
        T valor;
        std::memcpy(&valor, a, sizeof valor);
        std::memmove(a, b, sizeof valor);
        std::memcpy(b, &valor, sizeof valor);
    };
    // Moves element i down the heap of the first n elements until no child's key is larger.
    const auto hunde = [&](size_t i, size_t n) {
        for (size_t hijo; (hijo = 2 * i + 1) < n; i = hijo) {
            if (hijo + 1 < n && clave(hijo + 1) > clave(hijo))
                ++hijo;
            const Clave padre = clave(i);
            if (!(clave(hijo) > padre))
                return;
            intercambia(i, hijo);
        }
    };
    const size_t n = array->num_elems;
    for (size_t i = n / 2; i-- > 0;)
        hunde(i, n);
    // Invariant: the elements from `fin` on are the largest, in order; those before form a heap.
    for (size_t fin = n; fin-- > 1;) {
        intercambia(0, fin);
        hunde(0, fin);
    }
}

// The contiguous copy of the radix sort: from the C heap when small, else a large block with
// huge pages (a copy of 10^7 doubles would otherwise fault 20,000 times). NULL when the system
// has no memory for it.
class CopiaOrden {
public:
    explicit CopiaOrden(size_t bytes)
        : bytes_(bytes),
          bloque_(bytes < GRANDE ? std::malloc(bytes) : plataforma_reserva_grande(bytes))
    {
    }
    ~CopiaOrden()
    {
        if (bytes_ < GRANDE)
            std::free(bloque_);
        else if (bloque_ != nullptr)
            plataforma_libera_grande(bloque_, bytes_);
    }
    CopiaOrden(const CopiaOrden &) = delete;
    CopiaOrden &operator=(const CopiaOrden &) = delete;

    template <typename T> T *como() const { return static_cast<T *>(bloque_); }

private:
    static constexpr size_t GRANDE = size_t{4} << 20;
    size_t bytes_;
    void *bloque_;
};

// Sorts `array` (at least two elements, its type's default order total on them) by keys.
template <typename T> void arrayprv_ordena_por_claves(ARRAY *array)
{
    if constexpr (sizeof(T) == 1) {
        arrayprv_ordena_por_cuentas<T>(array);
    } else if (CopiaOrden copia(array->num_elems * sizeof(T)); copia.como<T>() != nullptr) {
        arrayprv_ordena_radix<T>(array, copia.como<T>());
    } else {
        arrayprv_ordena_en_sitio<T>(array);
    }
}
