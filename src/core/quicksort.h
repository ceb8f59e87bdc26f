// The quicksort over positions with an explicit stack of ranges, written once for every way of
// comparing: the pivot is a copy, the scans stop on anything that is not exactly
// comparac_PRIMERO_MENOR, the smaller part is sorted first and the larger one stacked, so the
// stack stays logarithmic. The scans run through the current row on a plain pointer (a cursor)
// instead of a fresh lookup per element; the comparisons, their order and the swaps are the same
// whatever the comparison. A comparison that offers ordena_contiguos (a default order, which no
// caller observes) sorts each range lying inside one row there, with the same partitions.
//
// A comparison (Comparacion) provides:
//   int orden(const void *a, const void *b)   three-way order of two element addresses, either
//                                             of which may be NULL (an element that cannot be
//                                             reached compares equal)
//   const void *pivote()                      the address of the pivot copy
//   void fija_pivote(const void *elemento)    copies an element into the pivot
//   void intercambia(void *a, void *b)        swaps two elements
#pragma once

#include "core/arrayprv.h"
#include "core/comparadores.h"
#include "core/orden_claves.h"
#include "core/pilaqsor.h"
#include "services/informes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// Address of the element at index `pos`, or NULL (after the lookup's report) when there is none.
char *arrayprv_direccion_indice(const ARRAY *array, LONG pos);

// Where one scan of the quicksort stands: an index and, while the index names an element, its
// row, offset and address. Stepping stays inside the row when it can. An index outside the array
// has no address; asking for it goes through the documented lookup, which reports it.
class CursorOrden {
public:
    CursorOrden(const ARRAY *array, LONG indice) : array_(array), size_elem_(array->size_elem)
    {
        situa(indice);
    }

    // The cursor at `indice`, reached from `base` without a lookup when it is in base's row.
    CursorOrden(const CursorOrden &base, LONG indice) : CursorOrden(base)
    {
        if (elemento_ != nullptr && indice >= indice_ &&
            static_cast<size_t>(indice - indice_) < long_fila_ - pos_) {
            const size_t paso = static_cast<size_t>(indice - indice_);
            indice_ = indice;
            pos_ += paso;
            elemento_ += paso * size_elem_;
        } else {
            situa(indice);
        }
    }

    LONG indice() const { return indice_; }

    // Elements from the cursor to the end of its row (0 when it names no element).
    size_t quedan_en_fila() const { return elemento_ != nullptr ? long_fila_ - pos_ : 0; }

    char *elemento() const
    {
        if (elemento_ != nullptr) [[likely]]
            return elemento_;
        return arrayprv_direccion_indice(array_, indice_);
    }

    void avanza()
    {
        if (elemento_ != nullptr && pos_ + 1 < long_fila_) [[likely]] {
            ++indice_;
            ++pos_;
            elemento_ += size_elem_;
            return;
        }
        situa(indice_ + 1);
    }

    void retrocede()
    {
        if (elemento_ != nullptr && pos_ > 0) [[likely]] {
            --indice_;
            --pos_;
            elemento_ -= size_elem_;
            return;
        }
        situa(indice_ - 1);
    }

    // `while (sigue(elemento())) avanza();` and `... retrocede();`, running through each row on a
    // plain pointer.
    template <typename Sigue> void avanza_mientras(Sigue &&sigue) { mueve_mientras<1>(sigue); }
    template <typename Sigue> void retrocede_mientras(Sigue &&sigue) { mueve_mientras<-1>(sigue); }

private:
    // Steps by SENTIDO (+1 forward, -1 back) while `sigue` holds for the element: inside a row on a
    // pointer, across rows through situa, outside the array through elemento()'s lookup.
    template <int SENTIDO, typename Sigue> void mueve_mientras(Sigue &sigue)
    {
        while (elemento_ != nullptr) {
            const size_t quedan = SENTIDO > 0 ? long_fila_ - pos_ : pos_ + 1; // to the row's end
            char *elemento = elemento_;
            for (size_t paso = 0;;) {
                if (!sigue(elemento)) {
                    salta(SENTIDO * static_cast<LONG>(paso), elemento);
                    return;
                }
                if (++paso == quedan)
                    break;
                elemento += SENTIDO * static_cast<ptrdiff_t>(size_elem_);
            }
            situa(indice_ + SENTIDO * static_cast<LONG>(quedan));
        }
        while (sigue(elemento())) {
            if constexpr (SENTIDO > 0)
                avanza();
            else
                retrocede();
        }
    }

    // Moves `paso` elements within the row, to the element at `elemento`.
    void salta(LONG paso, char *elemento)
    {
        indice_ += paso;
        pos_ += static_cast<size_t>(paso);
        elemento_ = elemento;
    }

    void situa(LONG indice)
    {
        indice_ = indice;
        posicion_array posi;
        if (indice >= 0 && arrayprv_posicion_rapida(array_, static_cast<ULONG>(indice), &posi)) {
            pos_ = posi.pos;
            long_fila_ = array_->long_filas[posi.fila];
            elemento_ = array_->buffer[posi.fila] + posi.pos * size_elem_;
        } else {
            elemento_ = nullptr;
        }
    }

    const ARRAY *array_;
    size_t size_elem_;
    LONG indice_ = 0;
    size_t pos_ = 0;       // offset inside the row, while elemento_ is set
    size_t long_fila_ = 0; // elements in that row
    char *elemento_ = nullptr;
};

// The partitions of Quicksort on n consecutive values at `a`, by a total order under which none of
// them is unordered (no NaN): the same pivots, scans and swaps on plain pointers, hence the same
// result. Under such an order the scans never leave the range, so they need no bounds.
template <typename T, int (*ORDEN)(T, T)> void arrayprv_quicksort_contiguo(T *a, ptrdiff_t n)
{
    ptrdiff_t izquierda = 0;
    ptrdiff_t derecha = n - 1;
    while (izquierda < derecha) {
        const T pivote = a[izquierda + (derecha - izquierda) / 2];
        ptrdiff_t i = izquierda;
        ptrdiff_t j = derecha;
        do {
            while (ORDEN(a[i], pivote) == comparac_PRIMERO_MENOR)
                ++i;
            while (ORDEN(pivote, a[j]) == comparac_PRIMERO_MENOR)
                --j;
            if (i <= j) {
                if (i < j && ORDEN(a[i], a[j]) != comparac_IGUALES) {
                    const T valor = a[i];
                    a[i] = a[j];
                    a[j] = valor;
                }
                ++i;
                --j;
            }
        } while (i <= j);
        // Sort the smaller part by recursion and go on with the larger one.
        if (j - izquierda < derecha - i) {
            if (izquierda < j)
                arrayprv_quicksort_contiguo<T, ORDEN>(a + izquierda, j - izquierda + 1);
            izquierda = i;
        } else {
            if (i < derecha)
                arrayprv_quicksort_contiguo<T, ORDEN>(a + i, derecha - i + 1);
            derecha = j;
        }
    }
}

template <typename Comparacion> class Quicksort {
public:
    Quicksort(ARRAY *array, Comparacion &comparacion) : array_(array), comparacion_(comparacion) {}

    void ordena(pilaqsor *pila)
    {
        constexpr const char *UBICACION = UBICACION_ARRAYPRV;
        pilaqsor_mete(pila, 0, static_cast<ULONG>(array_->num_elems - 1));
        while (!pilaqsor_vacia(pila)) {
            ULONG sacada_izquierda = 0;
            ULONG sacada_derecha = 0;
            pilaqsor_saca(pila, &sacada_izquierda, &sacada_derecha);
            LONG izquierda = static_cast<LONG>(sacada_izquierda);
            LONG derecha = static_cast<LONG>(sacada_derecha);
            ARR_EXIGE(izquierda >= 0, "izquierda >= 0");
            ARR_EXIGE(derecha >= izquierda, "derecha >= izquierda");
            while (izquierda < derecha) {
                if (ordena_en_una_fila(izquierda, derecha))
                    break;
                LONG i;
                LONG j;
                particiona(izquierda, derecha, i, j);
                // Keep sorting the smaller part; stack the larger one if it has two elements.
                if (int64_t{j} - izquierda < int64_t{derecha} - i) {
                    if (i < derecha)
                        pilaqsor_mete(pila, static_cast<ULONG>(i), static_cast<ULONG>(derecha));
                    derecha = j;
                } else {
                    if (izquierda < j)
                        pilaqsor_mete(pila, static_cast<ULONG>(izquierda), static_cast<ULONG>(j));
                    izquierda = i;
                }
            }
        }
    }

private:
    // A range inside one row is sorted on plain pointers when the comparison can do that.
    bool ordena_en_una_fila(LONG izquierda, LONG derecha)
    {
        if constexpr (requires(char *elemento, size_t n) { comparacion_.ordena_contiguos(elemento, n); }) {
            const size_t n = static_cast<size_t>(derecha - izquierda) + 1;
            const CursorOrden ci(array_, izquierda);
            return ci.quedan_en_fila() >= n && comparacion_.ordena_contiguos(ci.elemento(), n);
        } else {
            return false;
        }
    }

    // Partitions izquierda..derecha around the element in the middle; returns the final i and j.
    void particiona(LONG izquierda, LONG derecha, LONG &i, LONG &j)
    {
        constexpr const char *UBICACION = UBICACION_ARRAYPRV;
        CursorOrden ci(array_, izquierda);
        CursorOrden cj(ci, derecha);
        const LONG punto_medio = static_cast<LONG>((int64_t{izquierda} + derecha) / 2);
        ARR_EXIGE(punto_medio >= 0, "punto_medio >= 0");
        if (const char *medio = CursorOrden(ci, punto_medio).elemento())
            comparacion_.fija_pivote(medio);
        const void *pivote = comparacion_.pivote();
        // Invariant: elements left of i are not greater than the pivot, those right of j not less.
        do {
            ARR_EXIGE(ci.indice() >= 0, "i >= 0");
            ci.avanza_mientras([&](const char *elemento) {
                return comparacion_.orden(elemento, pivote) == comparac_PRIMERO_MENOR;
            });
            ARR_EXIGE(cj.indice() >= 0, "j >= 0");
            cj.retrocede_mientras([&](const char *elemento) {
                return comparacion_.orden(pivote, elemento) == comparac_PRIMERO_MENOR;
            });
            if (ci.indice() <= cj.indice()) {
                if (ci.indice() < cj.indice() &&
                    comparacion_.orden(ci.elemento(), cj.elemento()) != comparac_IGUALES) {
                    ARR_EXIGE(ci.indice() >= 0, "i >= 0");
                    ARR_EXIGE(cj.indice() >= 0, "j >= 0");
                    intercambia(ci, cj);
                }
                ci.avanza();
                cj.retrocede();
            }
        } while (ci.indice() <= cj.indice());
        i = ci.indice();
        j = cj.indice();
    }

    void intercambia(const CursorOrden &ci, const CursorOrden &cj)
    {
        char *a = ci.elemento();
        char *b = cj.elemento();
        if (a != nullptr && b != nullptr)
            comparacion_.intercambia(a, b);
    }

    ARRAY *array_;
    Comparacion &comparacion_;
};

// The entry of a sort: runs the entry checks (after the caller's own, given in `argumentos`) and
// marks the array busy. False when there is nothing to sort; otherwise the caller sorts and then
// calls arrayprv_qsort_termina.
bool arrayprv_qsort_empieza(ARRAY *array, bool argumentos, tipo_elem_array tipo_elem);
inline void arrayprv_qsort_termina(ARRAY *array) { array->en_bucle = FALSO; }

template <typename Comparacion> void arrayprv_quicksort(ARRAY *array, Comparacion &comparacion)
{
    const OrdenacionEnCurso ordenacion(array);
    pilaqsor *pila = pilaqsor_crea(static_cast<ULONG>(array->num_elems));
    Quicksort<Comparacion>(array, comparacion).ordena(pila);
    pilaqsor_destruye(&pila);
}

// BOOL's default order, the one-sided one.
template <auto ORDEN> inline constexpr bool es_orden_bool = false;
template <> inline constexpr bool es_orden_bool<arrayprv_orden_bool> = true;

// A default order, inlined: the values are read at their type and compared by ORDEN directly.
// Identical strings (the same pointer) are equal without a call, as through the sort table; for
// numbers the shortcut is left out, every default order calls identical values equal.
template <typename T, int (*ORDEN)(T, T)> class ComparacionValores {
public:
    // Numbers other than BOOL (whose order is one-sided) are totally ordered, but for NaN.
    static constexpr bool orden_total = std::is_arithmetic_v<T> && !es_orden_bool<ORDEN>;

    int orden(const void *a, const void *b) const
    {
        if (a == nullptr || b == nullptr) [[unlikely]]
            return comparac_IGUALES;
        const T valor_a = lee(a);
        const T valor_b = lee(b);
        if constexpr (std::is_pointer_v<T>) {
            if (valor_a == valor_b)
                return comparac_IGUALES;
        }
        return ORDEN(valor_a, valor_b);
    }
    const void *pivote() const { return &pivote_; }
    void fija_pivote(const void *elemento) { pivote_ = lee(elemento); }
    void intercambia(void *a, void *b) const
    {
        const T valor_a = lee(a);
        std::memcpy(a, b, sizeof(T));
        std::memcpy(b, &valor_a, sizeof(T));
    }
    // Sorts n consecutive elements at `inicio` through arrayprv_quicksort_contiguo when the order
    // is total on them; false, touching nothing, otherwise.
    bool ordena_contiguos(char *inicio, size_t n) const
    {
        if constexpr (orden_total) {
            T *valores = reinterpret_cast<T *>(inicio);
            if constexpr (std::is_floating_point_v<T>) {
                for (size_t k = 0; k < n; ++k)
                    if (valores[k] != valores[k])
                        return false;
            }
            arrayprv_quicksort_contiguo<T, ORDEN>(valores, static_cast<ptrdiff_t>(n));
            return true;
        } else {
            return false;
        }
    }

private:
    static T lee(const void *elemento)
    {
        T valor;
        std::memcpy(&valor, elemento, sizeof valor);
        return valor;
    }

    T pivote_{};
};

// Reverses the order of the elements of `array` in place, swapping from both ends a stretch of
// two rows at a time.
template <typename T> void arrayprv_invierte_valores(ARRAY *array)
{
    size_t delante = 0;                  // the row of the front element
    size_t detras = array->num_filas;    // one past the row of the back element
    char *inicio = nullptr, *fin = nullptr;     // the front stretch: [inicio, fin)
    char *principio = nullptr, *final = nullptr; // the back stretch: [principio, final)
    // Invariant: `quedan` pairs are left to swap, the front one at `inicio`, the back one just
    // before `final`.
    for (size_t quedan = array->num_elems / 2; quedan > 0;) {
        while (inicio == fin) {
            inicio = array->buffer[delante];
            fin = inicio + array->long_filas[delante++] * sizeof(T);
        }
        while (principio == final) {
            principio = array->buffer[--detras];
            final = principio + array->long_filas[detras] * sizeof(T);
        }
        const size_t tramo = std::min({static_cast<size_t>(fin - inicio) / sizeof(T),
                                       static_cast<size_t>(final - principio) / sizeof(T), quedan});
        for (size_t k = 0; k < tramo; ++k) {
            final -= sizeof(T);
            T a;
            T b;
            std::memcpy(&a, inicio, sizeof a);
            std::memcpy(&b, final, sizeof b);
            std::memcpy(inicio, &b, sizeof b);
            std::memcpy(final, &a, sizeof a);
            inicio += sizeof(T);
        }
        quedan -= tramo;
    }
}

// With a total order on numbers (not BOOL's one-sided one), an array already in order (no NaN)
// is one the quicksort never changes, and a strictly decreasing one has a single sorted result:
// both are finished in one walk (the second reversed in place). True when the array was one of
// them; false, having compared a few leading elements at most on random data, otherwise.
template <typename T, int (*ORDEN)(T, T)> bool arrayprv_ordena_si_monotono(ARRAY *array)
{
    // NaN: equal to everything, so no order follows from neighbours.
    const auto numero = [](T valor) {
        if constexpr (std::is_floating_point_v<T>)
            return valor == valor;
        else
            return true;
    };
    // Walks while every value keeps `relacion` (an order result) with the one before; the
    // number of values it went through.
    const auto sigue_en = [&](auto relacion) {
        size_t vistos = 0;
        T anterior{};
        arrayprv_por_elementos<T>(array, [&](const char *elemento) {
            T valor;
            std::memcpy(&valor, elemento, sizeof valor);
            if (!numero(valor) || (vistos > 0 && !relacion(ORDEN(anterior, valor))))
                return false;
            ++vistos;
            anterior = valor;
            return true;
        });
        return vistos;
    };
    const size_t crecientes = sigue_en([](int orden) { return orden != comparac_PRIMERO_MAYOR; });
    if (crecientes == array->num_elems)
        return true;
    // A strictly decreasing array breaks the order at its first pair.
    if (crecientes > 1 ||
        sigue_en([](int orden) { return orden == comparac_PRIMERO_MAYOR; }) != array->num_elems)
        return false;
    arrayprv_invierte_valores<T>(array);
    return true;
}

// Sorts an array not known to be in order by a default order: by keys where that cannot show
// (arrayprv_ordena_por_claves; BOOL's one-sided order is not total), else by the quicksort.
template <typename T, typename Comparacion>
void arrayprv_ordena_desordenado(ARRAY *array, Comparacion &comparacion)
{
    if constexpr (Comparacion::orden_total) {
        if (arrayprv_ordena_por_claves<T>(array))
            return;
    }
    arrayprv_quicksort(array, comparacion);
}

// Sorts by a type's default order (whose calls no caller can observe). Where the result cannot
// depend on the sort (arrayprv_ordena_por_claves) it sorts by keys; elsewhere it makes
// the same checks, reports, comparisons and swaps as arrayprv_qsort with that order in its table.
template <typename T, int (*ORDEN)(T, T)> void arrayprv_qsort_valores(ARRAY *array, tipo_elem_array tipo_elem)
{
    constexpr const char *UBICACION = UBICACION_ARRAYPRV;
    const bool hay_array = ARR_EXIGE(array != nullptr, "(array) != NULL");
    if (!arrayprv_qsort_empieza(array, hay_array, tipo_elem))
        return;
    ComparacionValores<T, ORDEN> comparacion;
    if (!comparacion.orden_total || !arrayprv_ordena_si_monotono<T, ORDEN>(array))
        arrayprv_ordena_desordenado<T>(array, comparacion);
    arrayprv_qsort_termina(array);
}

// The caller's comparator of TAG through its sort table (arrayprv_crea_ordenacion), called
// directly: what the table's adapter does once its checks have passed, which they always do here
// (the elements are never NULL at the call, and the table holds the comparator). Identical bytes
// are equal without a call; the pivot and the swap space are copies of an element's bytes.
template <tipo_elem_array TAG> class ComparacionUsuario {
public:
    static constexpr bool orden_total = false;

    explicit ComparacionUsuario(const funciones_ordenacion *tabla)
        : comparador_(tabla->*Orden<TAG>::miembro)
    {
    }

    int orden(const void *a, const void *b) const
    {
        if (a == nullptr || b == nullptr) [[unlikely]]
            return comparac_IGUALES;
        if (std::memcmp(a, b, TAMANYO) == 0)
            return comparac_IGUALES;
        return Orden<TAG>::llama(comparador_, a, b);
    }
    const void *pivote() const { return pivote_; }
    void fija_pivote(const void *elemento) { std::memcpy(pivote_, elemento, TAMANYO); }
    void intercambia(void *a, void *b) const
    {
        unsigned char temporal[TAMANYO];
        std::memcpy(temporal, a, TAMANYO);
        std::memcpy(a, b, TAMANYO);
        std::memcpy(b, temporal, TAMANYO);
    }

private:
    static constexpr size_t TAMANYO = Orden<TAG>::tamanyo;
    comparador_de<TAG> comparador_;
    alignas(std::max_align_t) unsigned char pivote_[TAMANYO];
};

// Builds the sort table of TAG (default comparator substituted by the caller), sorts as
// arrayprv_qsort does with the table's adapter, and destroys the table. A NULL comparator is
// reported by the table's constructor and sorts nothing.
template <tipo_elem_array TAG> void arrayprv_ordena(ARRAY *array, comparador_de<TAG> comparador)
{
    constexpr const char *UBICACION = UBICACION_ARRAYPRV;
    funciones_ordenacion *tabla = arrayprv_crea_ordenacion<TAG>(comparador);
    if (tabla == nullptr)
        return;
    const bool hay_array = ARR_EXIGE(array != nullptr, "(array) != NULL");
    if (arrayprv_qsort_empieza(array, hay_array, TAG)) {
        ComparacionUsuario<TAG> comparacion(tabla);
        arrayprv_quicksort(array, comparacion);
        arrayprv_qsort_termina(array);
    }
    arrayprv_destruye_funciones_ordenacion(&tabla);
}
