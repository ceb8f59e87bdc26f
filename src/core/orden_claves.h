// Sorting by keys, for the default order of the integer types and of doubles whose result no
// correct sort can change: equal values there are identical bytes, so the sorted array is the
// same whatever sort made it. Each value maps to an unsigned key of its width that orders as the
// value does (the sign bit flipped for signed integers; for doubles the sign-flip transform, all
// bits inverted when negative), and back. The keys are distributed out of the rows into one
// contiguous copy by their top digit, sorted there by more digits (OrdenRadix), and written back:
// O(n) per digit, so no input makes it much slower than any other, and after the first digits
// every bucket works in the nearest caches. The scratch memory is that one copy; one-byte values
// are counted and need none; when the copy cannot be had, an in-place heapsort over the rows
// sorts instead.
#pragma once

#include "core/arrayprv.h"
#include "services/plataforma.h"

#include <algorithm>
#include <array>
#include <bit>
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

// Calls visita(element address) for every element in position order, row by row. A visita that
// returns bool stops the walk at its first false; the result says whether the walk went through.
template <typename T, typename Visita> bool arrayprv_por_elementos(const ARRAY *array, Visita &&visita)
{
    for (size_t fila = 0; fila < array->num_filas; ++fila) {
        char *elemento = array->buffer[fila];
        for (size_t k = array->long_filas[fila]; k > 0; --k, elemento += sizeof(T)) {
            if constexpr (std::is_same_v<decltype(visita(elemento)), bool>) {
                if (!visita(elemento))
                    return false;
            } else {
                visita(elemento);
            }
        }
    }
    return true;
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


// Stretches of at most this many keys are sorted by insertion.
inline constexpr size_t MAXIMO_INSERCION = 32;

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

// Watches the keys of doubles go by for what would leave their default order something to
// decide: a NaN (equal to everything; its key lies beyond those of the infinities) or zeros of
// both signs (equal, with different bytes).
class VigiaDobles {
public:
    void mira(uint64_t clave)
    {
        menor_ = std::min(menor_, clave);
        mayor_ = std::max(mayor_, clave);
        cero_positivo_ |= clave == CERO_POSITIVO;
        cero_negativo_ |= clave == CERO_NEGATIVO;
    }
    bool sin_empates() const
    {
        return menor_ >= MENOS_INFINITO && mayor_ <= MAS_INFINITO &&
               !(cero_positivo_ && cero_negativo_);
    }

private:
    static constexpr uint64_t MAS_INFINITO = 0xFFF0000000000000;   // the key of +inf
    static constexpr uint64_t MENOS_INFINITO = 0x000FFFFFFFFFFFFF; // the key of -inf
    static constexpr uint64_t CERO_POSITIVO = 0x8000000000000000;
    static constexpr uint64_t CERO_NEGATIVO = 0x7FFFFFFFFFFFFFFF;
    uint64_t menor_ = ~uint64_t{0};
    uint64_t mayor_ = 0;
    bool cero_positivo_ = false;
    bool cero_negativo_ = false;
};

// True when the default order of doubles leaves nothing to chance in `array` (VigiaDobles).
inline bool arrayprv_dobles_sin_empates_aparentes(const ARRAY *array)
{
    VigiaDobles vigia;
    return arrayprv_por_elementos<double>(array, [&](const char *elemento) {
        double valor;
        std::memcpy(&valor, elemento, sizeof valor);
        vigia.mira(ClaveOrden<double>::de(valor));
        return vigia.sin_empates();
    });
}

// The same for integers, whose equal values are identical: nothing to watch.
struct VigiaEnteros {
    template <typename Clave> void mira(Clave) {}
    static bool sin_empates() { return true; }
};

// The radix sort of an array by its keys, `copia` having room for num_elems keys: a
// most-significant-digit sort whose first pass distributes the rows' values into the copy as
// keys, bucket by bucket, and whose later passes sort each bucket within the copy, from the
// smallest keys to the largest. A stretch of keys is split by the top digit in which its keys
// differ (as many bits as leave about a key a bucket, at most 12 in the first pass and 11 in the
// others), moved out of place into
// scratch and back, and each bucket goes on by the bits below; short stretches by insertion.
// Sorted keys are written back to the rows as soon as they are final, so the copy's slots below
// the stretch being sorted are free: they are its scratch. A stretch with less scratch below it
// than its own length goes through its own slots in the rows instead (8-bit digits, a cursor a
// bucket). Each pass fixes a digit's bits in every bucket, so no input takes more passes than
// its keys have bits to split. The stack holds a table of cuts a level of buckets (16 KiB for
// the first, 8 KiB for each below; a level fixes at least 6 bits, so 64-bit keys go at most 11
// levels deep, about 100 KiB, and random keys two or three); the distributions, whose tables
// need not outlive them, run in frames of their own.
template <typename T> class OrdenRadix {
public:
    using Clave = typename ClaveOrden<T>::Clave;

    OrdenRadix(ARRAY *array, Clave *copia) : array_(array), copia_(copia), escritor_(array, 0, 0) {}

    // Sorts the array; false, having changed nothing, when a double's order would leave
    // something to chance (VigiaDobles).
    bool ordena()
    {
        // One read finds the bits in which the keys differ and counts the top bits of the key,
        // the first pass's digit whenever the keys differ in their top bit.
        Clave alguna_uno = 0;        // the bits set in some key
        Clave todas_uno = ~Clave{0}; // the bits set in every key
        std::array<uint32_t, (size_t{1} << BITS_PRIMER_DIGITO) + 1> cortes{};
        Vigia vigia;
        constexpr unsigned BITS_CLAVE = 8 * sizeof(Clave);
        constexpr unsigned DESPLAZA_FIJO = BITS_CLAVE - BITS_PRIMER_DIGITO;
        arrayprv_por_elementos<T>(array_, [&](const char *elemento) {
            const Clave clave = clave_de(elemento);
            alguna_uno |= clave;
            todas_uno &= clave;
            ++cortes[(clave >> DESPLAZA_FIJO) + 1];
            vigia.mira(clave);
        });
        if (!vigia.sin_empates())
            return false;
        const size_t n = array_->num_elems;
        const Digito digito(static_cast<Clave>(alguna_uno ^ todas_uno), n, BITS_PRIMER_DIGITO);
        if (digito.bits() == 0)
            return true; // every value is the same
        if (digito.bits() != BITS_CLAVE || digito.cubos() != size_t{1} << BITS_PRIMER_DIGITO) {
            cortes.fill(0);
            arrayprv_por_elementos<T>(array_, [&](const char *elemento) {
                ++cortes[digito(clave_de(elemento)) + 1];
            });
        }
        acumula(cortes.data(), digito.cubos());
        distribuye_filas(cortes.data(), digito);
        sigue(0, cortes.data(), digito);
        return true;
    }

private:
    // The bits of a digit at most: in the first pass, over the whole array; in the passes over a
    // bucket in the copy, whose frames repeat down the levels; through the rows, a cursor a bucket.
    static constexpr unsigned BITS_PRIMER_DIGITO = 12;
    static constexpr unsigned BITS_DIGITO = 11;
    static constexpr unsigned BITS_DIGITO_POR_FILAS = 8;
    static constexpr size_t CUBOS = size_t{1} << BITS_DIGITO;
    using Cortes = std::array<uint32_t, CUBOS + 1>; // bucket d is [cortes[d], cortes[d + 1])

    // The digit of a pass: the top bits of those in which the keys differ, as many as leave about
    // a key a bucket and no more than `maximo`.
    class Digito {
    public:
        Digito(Clave difieren, size_t n, unsigned maximo)
            : bits_(static_cast<unsigned>(std::bit_width(difieren))),
              ancho_(std::min({bits_, static_cast<unsigned>(std::bit_width(n)), maximo})),
              desplaza_(bits_ - ancho_)
        {
        }
        size_t operator()(Clave clave) const
        {
            return static_cast<size_t>(clave >> desplaza_) & (cubos() - 1);
        }
        unsigned bits() const { return bits_; }
        size_t cubos() const { return size_t{1} << ancho_; }
        // True when the digit takes every differing bit: each bucket then holds equal keys.
        bool ultimo() const { return desplaza_ == 0; }

    private:
        unsigned bits_;
        unsigned ancho_;
        unsigned desplaza_;
    };

    static Clave clave_de(const char *elemento)
    {
        T valor;
        std::memcpy(&valor, elemento, sizeof valor);
        return ClaveOrden<T>::de(valor);
    }

    static void acumula(uint32_t *cortes, size_t cubos)
    {
        for (size_t d = 1; d <= cubos; ++d)
            cortes[d] += cortes[d - 1];
    }

    // Sorts the keys of copy[inicio, inicio + n).
    void ordena_tramo(size_t inicio, size_t n)
    {
        Clave *claves = copia_ + inicio;
        Clave alguna_uno = 0;
        Clave todas_uno = ~Clave{0};
        for (size_t k = 0; k < n; ++k) {
            alguna_uno |= claves[k];
            todas_uno &= claves[k];
        }
        const auto difieren = static_cast<Clave>(alguna_uno ^ todas_uno);
        if (difieren == 0)
            return publica(inicio + n);
        // Scratch: the copy's slots below the stretch, already written back.
        const bool con_borrador = inicio >= n;
        const Digito digito(difieren, n, con_borrador ? BITS_DIGITO : BITS_DIGITO_POR_FILAS);
        Cortes cortes;
        std::fill_n(cortes.begin(), digito.cubos() + 1, 0);
        for (size_t k = 0; k < n; ++k)
            ++cortes[digito(claves[k]) + 1];
        acumula(cortes.data(), digito.cubos());
        if (con_borrador)
            reparte_por_borrador(claves, n, cortes.data(), digito);
        else
            reparte_por_filas(inicio, n, cortes.data(), digito);
        sigue(inicio, cortes.data(), digito);
    }

    // Sorts each bucket of the stretch at `inicio` in turn, or writes them back when each holds
    // equal keys. Runs of short buckets are sorted by insertion together: no key moves past
    // another bucket's, so a run costs at most its length times its longest bucket.
    void sigue(size_t inicio, const uint32_t *cortes, const Digito &digito)
    {
        if (digito.ultimo())
            return publica(inicio + cortes[digito.cubos()]);
        size_t corrida = inicio; // the start of the run of short buckets not yet sorted
        for (size_t d = 0; d < digito.cubos(); ++d) {
            const size_t m = cortes[d + 1] - cortes[d];
            if (m > MAXIMO_INSERCION) {
                termina_corrida(corrida, inicio + cortes[d]);
                ordena_tramo(inicio + cortes[d], m);
                corrida = inicio + cortes[d + 1];
            }
        }
        termina_corrida(corrida, inicio + cortes[digito.cubos()]);
    }

    void termina_corrida(size_t desde, size_t hasta)
    {
        arrayprv_ordena_insercion(copia_ + desde, hasta - desde);
        publica(hasta);
    }

    // Distributes the rows' values into the copy as keys by the first digit.
    [[gnu::noinline]] void distribuye_filas(const uint32_t *cortes, const Digito &digito)
    {
        std::array<uint32_t, size_t{1} << BITS_PRIMER_DIGITO> siguiente;
        std::copy_n(cortes, digito.cubos(), siguiente.begin());
        arrayprv_por_elementos<T>(array_, [&](const char *elemento) {
            const Clave clave = clave_de(elemento);
            copia_[siguiente[digito(clave)]++] = clave;
        });
    }

    // Distributes the n keys at `claves` into the free slots at the start of the copy by the
    // digit, and copies them back in bucket order.
    [[gnu::noinline]] void reparte_por_borrador(Clave *claves, size_t n, const uint32_t *cortes,
                                                const Digito &digito)
    {
        std::array<uint32_t, CUBOS> siguiente;
        std::copy_n(cortes, digito.cubos(), siguiente.begin());
        for (size_t k = 0; k < n; ++k)
            copia_[siguiente[digito(claves[k])]++] = claves[k];
        std::memcpy(claves, copia_, n * sizeof(Clave));
    }

    // Distributes the n keys of copy[inicio, inicio + n) into the same positions of the rows by
    // the digit, and reads them back in bucket order. The rows hold the keys' bytes meanwhile.
    [[gnu::noinline]] void reparte_por_filas(size_t inicio, size_t n, const uint32_t *cortes,
                                             const Digito &digito)
    {
        constexpr size_t CUBOS_POR_FILAS = size_t{1} << BITS_DIGITO_POR_FILAS;
        std::array<size_t, CUBOS_POR_FILAS> inicios;
        for (size_t d = 0; d < digito.cubos(); ++d)
            inicios[d] = inicio + cortes[d];
        std::array<CursorFilas, CUBOS_POR_FILAS> cursores;
        arrayprv_situa_cursores(array_, escritor_.fila(), inicios, digito.cubos(), cursores);
        CursorFilas lector = cursores[0]; // at `inicio`, before the writes move it
        Clave *claves = copia_ + inicio;
        for (size_t k = 0; k < n; ++k)
            cursores[digito(claves[k])].escribe(claves[k]);
        for (size_t k = 0; k < n; ++k)
            claves[k] = lector.lee<Clave>();
    }

    // Writes the final keys of copy[escritos, hasta) back to the rows as values.
    void publica(size_t hasta)
    {
        CursorFilas escritor = escritor_; // in a register while the rows are written
        for (size_t k = escritos_; k < hasta; ++k)
            escritor.escribe(ClaveOrden<T>::valor(copia_[k]));
        escritor_ = escritor;
        escritos_ = hasta;
    }

    using Vigia = std::conditional_t<std::is_same_v<T, double>, VigiaDobles, VigiaEnteros>;

    ARRAY *array_;
    Clave *copia_;
    CursorFilas escritor_; // at index escritos_ of the rows
    size_t escritos_ = 0;  // the copy's keys below are final, written back, and free
};

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
    static constexpr size_t GRANDE = size_t{32} << 20;
    size_t bytes_;
    void *bloque_;
};

// Sorts `array` (at least two elements, its type's default order total on them) by keys, where
// no correct sort can give another result: always for integers (equal values are identical), for
// doubles when no NaN and no zeros of both signs are present. False, having changed nothing,
// otherwise.
template <typename T> bool arrayprv_ordena_por_claves(ARRAY *array)
{
    using Clave = typename ClaveOrden<T>::Clave;
    if constexpr (sizeof(T) == 1) {
        arrayprv_ordena_por_cuentas<T>(array);
        return true;
    } else {
        if (CopiaOrden copia(array->num_elems * sizeof(T)); copia.como<Clave>() != nullptr)
            return OrdenRadix<T>(array, copia.como<Clave>()).ordena();
        if constexpr (std::is_same_v<T, double>) {
            if (!arrayprv_dobles_sin_empates_aparentes(array))
                return false;
        }
        arrayprv_ordena_en_sitio<T>(array);
        return true;
    }
}
