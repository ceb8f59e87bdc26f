// Sorting by keys, for the default order of the integer types and of doubles whose result no
// correct sort can change: equal values there are identical bytes, so the sorted array is the
// same whatever sort made it. Each value maps to an unsigned key of its width that orders as the
// value does (the sign bit flipped for signed integers; for doubles the sign-flip transform, all
// bits inverted when negative), and back. The keys are copied out of the rows into one contiguous
// block, sorted there by a most-significant-byte radix sort in place (each byte splits a stretch
// into 256 buckets that the next byte splits again, short buckets by insertion), and written
// back: O(n) per byte, so no input makes it slower than any other, and after the first bytes
// every bucket works in the nearest caches. The scratch memory is that one copy; one-byte values
// are counted and need none; when the copy cannot be had, an in-place heapsort over the rows
// sorts instead.
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

// The unsigned key of a value, and the value of a key: keys order as the values do under the
// type's default order (Char as signed 8-bit). For doubles, only where no NaN is present and
// every zero has one sign.
template <typename T> struct ClaveOrden {
    using Clave = std::make_unsigned_t<std::conditional_t<std::is_same_v<T, char>, signed char, T>>;
    static constexpr bool CON_SIGNO = std::is_signed_v<T> || std::is_same_v<T, char>;
    static constexpr Clave SIGNO = static_cast<Clave>(Clave{1} << (8 * sizeof(Clave) - 1));
    static Clave de(T valor)
    {
        const auto clave = static_cast<Clave>(valor);
        return CON_SIGNO ? static_cast<Clave>(clave ^ SIGNO) : clave;
    }
    static T valor(Clave clave) { return static_cast<T>(CON_SIGNO ? clave ^ SIGNO : clave); }
};
template <> struct ClaveOrden<double> {
    using Clave = uint64_t;
    static constexpr uint64_t SIGNO = uint64_t{1} << 63;
    static Clave de(double valor)
    {
        const uint64_t bits = std::bit_cast<uint64_t>(valor);
        // All ones for a negative value, the sign bit alone otherwise: no branch on the sign.
        const uint64_t mascara = static_cast<uint64_t>(static_cast<int64_t>(bits) >> 63) | SIGNO;
        return bits ^ mascara;
    }
    static double valor(Clave clave)
    {
        // A key with the sign bit set came from a positive value, whose sign bit alone was
        // flipped; any other from a negative one, whose bits were all inverted.
        const uint64_t mascara = ~static_cast<uint64_t>(static_cast<int64_t>(clave) >> 63) | SIGNO;
        return std::bit_cast<double>(clave ^ mascara);
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

// Calls visita(element address) for every element in position order, row by row.
template <typename T, typename Visita> void arrayprv_por_elementos(const ARRAY *array, Visita &&visita)
{
    for (size_t fila = 0; fila < array->num_filas; ++fila) {
        char *elemento = array->buffer[fila];
        for (size_t k = array->long_filas[fila]; k > 0; --k, elemento += sizeof(T))
            visita(elemento);
    }
}

// Reads or writes elements one after another in the rows from a given index on, stepping from
// row to row; the sequence must stay below num_elems.
class CursorFilas {
public:
    CursorFilas() = default;
    // At element `pos` of row `fila`.
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
    size_t fila() const { return fila_; }
    // Moves on by n elements without reading them.
    void salta(size_t n)
    {
        while (n > quedan_) {
            n -= quedan_;
            ++fila_;
            actual_ = array_->buffer[fila_];
            quedan_ = array_->long_filas[fila_];
        }
        actual_ += n * array_->size_elem;
        quedan_ -= n;
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

// A cursor at each of `inicios` (ascending indices, from row `fila` on; a bucket that receives
// nothing may start at the end of the array), placed in one walk over the prefix sums.
template <size_t N>
void arrayprv_situa_cursores(const ARRAY *array, size_t fila, const std::array<size_t, N> &inicios,
                             size_t cuantos, std::array<CursorFilas, N> &cursores)
{
    for (size_t d = 0; d < cuantos; ++d) {
        // Invariant: rows before `fila` end at or before inicios[d].
        while (fila + 1 < array->num_filas && array->acumulado_filas[fila + 1] <= inicios[d])
            ++fila;
        cursores[d] = CursorFilas(array, fila, inicios[d] - array->acumulado_filas[fila]);
    }
}


// Buckets of at most this many keys are sorted by insertion; larger ones by more digits.
inline constexpr size_t MAXIMO_CUBO_INSERCION = 32;

// Sorts a few keys by insertion.
template <typename Clave> void arrayprv_ordena_insercion(Clave *claves, size_t n)
{
    for (size_t i = 1; i < n; ++i) {
        const Clave clave = claves[i];
        size_t j = i;
        // Invariant: claves[0, i] but the hole at j is sorted, and every key after j is above
        // `clave`.
        for (; j > 0 && claves[j - 1] > clave; --j)
            claves[j] = claves[j - 1];
        claves[j] = clave;
    }
}

// The most-significant-digit radix sort of the keys of indices [inicio, fin), which agree on
// every bit from `bits` up. A stretch stands either in the copy, as keys, or in the rows, as
// values, at the same indices; each pass distributes it by its next digit from one to the other
// (out of place), so the two buffers together hold one copy. Into the copy a digit takes up to
// 11 bits, as many as the stretch has keys to spread; into the rows 8 (one cursor a bucket).
// The sorted values end in the rows.
template <typename T> class OrdenRadix {
public:
    using Clave = typename ClaveOrden<T>::Clave;

    OrdenRadix(ARRAY *array, Clave *copia) : array_(array), copia_(copia) {}

    // Sorts [inicio, fin), standing in the copy when `en_copia`; `en_filas` is a cursor at
    // `inicio` in the rows.
    void ordena(size_t inicio, size_t fin, unsigned bits, bool en_copia, CursorFilas en_filas)
    {
        const size_t n = fin - inicio;
        unsigned ancho = std::min<unsigned>(
            bits, en_copia ? 8 : std::clamp<unsigned>(std::bit_width(n) - 1, 4, 11));
        std::array<uint32_t, 2048> cuenta;
        const auto digito = [&](Clave clave) {
            return static_cast<size_t>(clave >> (bits - ancho)) & ((size_t{1} << ancho) - 1);
        };
        // A digit that every key shares moves nothing: skip it.
        for (;;) {
            std::fill_n(cuenta.begin(), size_t{1} << ancho, 0);
            recorre(inicio, fin, en_copia, en_filas, [&](Clave clave) { ++cuenta[digito(clave)]; });
            if (cuenta[digito(clave_en(inicio, en_copia, en_filas))] < n)
                break;
            bits -= ancho;
            if (bits == 0) { // all keys equal
                if (en_copia)
                    escribe_en_filas(inicio, fin, en_filas);
                return;
            }
            ancho = std::min(ancho, bits);
        }
        const size_t digitos = size_t{1} << ancho;
        if (en_copia)
            reparte_a_filas(inicio, fin, digitos, cuenta, digito, en_filas, bits - ancho);
        else
            reparte_a_copia(inicio, fin, digitos, cuenta, digito, en_filas, bits - ancho);
    }

private:
    // From the copy into the rows, then each bucket on by the bits below.
    template <typename Digito>
    void reparte_a_filas(size_t inicio, size_t fin, size_t digitos, const std::array<uint32_t, 2048> &cuenta,
                         Digito &digito, CursorFilas en_filas, unsigned bits)
    {
        std::array<size_t, 256> inicios;
        for (size_t d = 0, suma = inicio; d < digitos; suma += cuenta[d++])
            inicios[d] = suma;
        std::array<CursorFilas, 256> cursores;
        arrayprv_situa_cursores(array_, en_filas.fila(), inicios, digitos, cursores);
        std::array<CursorFilas, 256> escritores = cursores;
        for (size_t k = inicio; k < fin; ++k)
            escritores[digito(copia_[k])].escribe(ClaveOrden<T>::valor(copia_[k]));
        for (size_t d = 0; d < digitos; ++d) {
            const size_t m = cuenta[d];
            if (m < 2 || bits == 0)
                continue; // in place, in order
            if (m > MAXIMO_CUBO_INSERCION) {
                ordena(inicios[d], inicios[d] + m, bits, false, cursores[d]);
            } else {
                std::array<Clave, MAXIMO_CUBO_INSERCION> pocas;
                CursorFilas lector = cursores[d];
                for (size_t k = 0; k < m; ++k)
                    pocas[k] = ClaveOrden<T>::de(lector.lee<T>());
                arrayprv_ordena_insercion(pocas.data(), m);
                CursorFilas escritor = cursores[d];
                for (size_t k = 0; k < m; ++k)
                    escritor.escribe(ClaveOrden<T>::valor(pocas[k]));
            }
        }
    }

    // From the rows into the copy, then each bucket on by the bits below, in order, so that one
    // cursor follows them in the rows.
    template <typename Digito>
    void reparte_a_copia(size_t inicio, size_t fin, size_t digitos, std::array<uint32_t, 2048> &cuenta,
                         Digito &digito, CursorFilas en_filas, unsigned bits)
    {
        std::array<uint32_t, 2048> &siguiente = cuenta; // counts become the buckets' ends
        for (size_t d = 0, suma = inicio; d < digitos; ++d) {
            suma += cuenta[d];
            siguiente[d] = static_cast<uint32_t>(suma - cuenta[d]);
        }
        recorre(inicio, fin, false, en_filas,
                [&](Clave clave) { copia_[siguiente[digito(clave)]++] = clave; });
        // The buckets small enough for insertion are sorted in runs, each run at once: a key of
        // one bucket is never moved past another bucket's, so a run costs at most its length
        // times the largest bucket.
        CursorFilas escritor = en_filas;
        size_t corrida = inicio;
        for (size_t d = 0, desde = inicio; d < digitos; desde = siguiente[d++]) {
            const size_t m = siguiente[d] - desde;
            if (m > MAXIMO_CUBO_INSERCION && bits > 0) {
                vuelca(corrida, desde, bits > 0, escritor);
                ordena(desde, desde + m, bits, true, escritor);
                escritor.salta(m);
                corrida = desde + m;
            }
        }
        vuelca(corrida, fin, bits > 0, escritor);
    }

    // Writes the keys of [inicio, fin) of the copy to the rows, sorted by insertion first when
    // `ordenar`.
    void vuelca(size_t inicio, size_t fin, bool ordenar, CursorFilas &escritor)
    {
        if (ordenar)
            arrayprv_ordena_insercion(copia_ + inicio, fin - inicio);
        for (size_t k = inicio; k < fin; ++k)
            escritor.escribe(ClaveOrden<T>::valor(copia_[k]));
    }

    Clave clave_en(size_t indice, bool en_copia, CursorFilas en_filas) const
    {
        return en_copia ? copia_[indice] : ClaveOrden<T>::de(en_filas.lee<T>());
    }

    // Calls visita(key) for the keys of [inicio, fin) in index order, wherever they stand.
    template <typename Visita>
    void recorre(size_t inicio, size_t fin, bool en_copia, CursorFilas lector, Visita &&visita)
    {
        if (en_copia) {
            for (size_t k = inicio; k < fin; ++k)
                visita(copia_[k]);
        } else {
            for (size_t k = inicio; k < fin; ++k)
                visita(ClaveOrden<T>::de(lector.lee<T>()));
        }
    }

    void escribe_en_filas(size_t inicio, size_t fin, CursorFilas escritor)
    {
        for (size_t k = inicio; k < fin; ++k)
            escritor.escribe(ClaveOrden<T>::valor(copia_[k]));
    }

    ARRAY *array_;
    Clave *copia_;
};

// The radix sort proper, `claves` having room for num_elems keys: the keys are copied out of the
// rows and sorted from the most significant byte in which they differ, landing in the rows.
template <typename T> void arrayprv_ordena_radix(ARRAY *array, typename ClaveOrden<T>::Clave *claves)
{
    using Clave = typename ClaveOrden<T>::Clave;
    Clave alguna_uno = 0;        // the bits set in some key
    Clave todas_uno = ~Clave{0}; // the bits set in every key
    size_t k = 0;
    arrayprv_por_elementos<T>(array, [&](const char *elemento) {
        T valor;
        std::memcpy(&valor, elemento, sizeof valor);
        const Clave clave = ClaveOrden<T>::de(valor);
        alguna_uno |= clave;
        todas_uno &= clave;
        claves[k++] = clave;
    });
    const Clave difieren = alguna_uno ^ todas_uno;
    if (difieren == 0)
        return; // every value is the same
    OrdenRadix<T>(array, claves).ordena(0, k, static_cast<unsigned>(std::bit_width(difieren)), true,
                                        CursorFilas(array, 0, 0));
}

// A counting sort for 1-byte values, with no copy: equal keys are equal values, so the rows are
// rewritten from the count of each key.
template <typename T> void arrayprv_ordena_por_cuentas(ARRAY *array)
{
    using Clave = typename ClaveOrden<T>::Clave;
    std::array<size_t, 256> cuentas{};
    arrayprv_por_elementos<T>(array, [&](const char *elemento) {
        T valor;
        std::memcpy(&valor, elemento, sizeof valor);
        ++cuentas[ClaveOrden<T>::de(valor)];
    });
    size_t clave = 0;
    arrayprv_por_elementos<T>(array, [&](char *elemento) {
        while (cuentas[clave] == 0)
            ++clave;
        --cuentas[clave];
        const T valor = ClaveOrden<T>::valor(static_cast<Clave>(clave));
        std::memcpy(elemento, &valor, sizeof valor);
    });
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
    } else if (CopiaOrden copia(array->num_elems * sizeof(T));
               copia.como<typename ClaveOrden<T>::Clave>() != nullptr) {
        arrayprv_ordena_radix<T>(array, copia.como<typename ClaveOrden<T>::Clave>());
    } else {
        arrayprv_ordena_en_sitio<T>(array);
    }
}
