// The containers a user would pick instead of this library, behind one small interface each, so
// that every benchmark runs the same code on each of them: crea(n zeros), anyade, lee, escribe,
// inserta, borra, inserta_delante. Values are doubles.
#pragma once

#include "arrays.h"

#include <boost/container/deque.hpp>
#include <boost/container/stable_vector.hpp>
#include <glib.h>

#include <cstdint>
#include <cstring>
#include <deque>
#include <vector>

struct Arrays {
    static constexpr const char *nombre = "arrays";
    ARRAY *a;
    explicit Arrays(ULONG n) : a(arr_CreaDouble(n)) {}
    ~Arrays() { arr_DestruyeDouble(&a); }
    void anyade(double v) { arr_AppendDouble(a, v); }
    double lee(size_t i) const { return arr_GetDouble(a, static_cast<ULONG>(i)); }
    void escribe(size_t i, double v) { arr_SetDouble(a, static_cast<ULONG>(i), v); }
    void inserta(size_t i, double v) { arr_InsertarDouble(a, static_cast<ULONG>(i), v); }
    void borra(size_t i) { arr_BorrarDouble(a, static_cast<ULONG>(i)); }
    void inserta_delante(double v) { arr_InsertarDouble(a, 0, v); }
    size_t tamanyo() const { return arr_NumElemsDouble(a); }
};

// A standard-library style container: vector, deque, Boost's deque and stable_vector.
template <typename C> struct Estandar {
    C c;
    explicit Estandar(size_t n) : c(n) {}
    void anyade(double v) { c.push_back(v); }
    double lee(size_t i) const { return c[i]; }
    void escribe(size_t i, double v) { c[i] = v; }
    void inserta(size_t i, double v) { c.insert(c.begin() + static_cast<std::ptrdiff_t>(i), v); }
    void borra(size_t i) { c.erase(c.begin() + static_cast<std::ptrdiff_t>(i)); }
    void inserta_delante(double v) { c.insert(c.begin(), v); }
    size_t tamanyo() const { return c.size(); }
};

struct Vector : Estandar<std::vector<double>> {
    static constexpr const char *nombre = "std::vector";
    using Estandar::Estandar;
};
struct Deque : Estandar<std::deque<double>> {
    static constexpr const char *nombre = "std::deque";
    using Estandar::Estandar;
    void inserta_delante(double v) { c.push_front(v); }
};
using opciones_bloque_2048 =
    boost::container::deque_options<boost::container::block_bytes<2048>>::type;
struct BoostDeque : Estandar<boost::container::deque<double, void, opciones_bloque_2048>> {
    static constexpr const char *nombre = "boost::deque<2048>";
    using Estandar::Estandar;
    void inserta_delante(double v) { c.push_front(v); }
};
struct StableVector : Estandar<boost::container::stable_vector<double>> {
    static constexpr const char *nombre = "boost::stable_vector";
    using Estandar::Estandar;
};

struct Garray {
    static constexpr const char *nombre = "GArray";
    GArray *g;
    explicit Garray(size_t n) : g(g_array_sized_new(FALSE, TRUE, sizeof(double), static_cast<guint>(n)))
    {
        g_array_set_size(g, static_cast<guint>(n));
    }
    ~Garray() { g_array_free(g, TRUE); }
    void anyade(double v) { g_array_append_val(g, v); }
    double lee(size_t i) const { return g_array_index(g, double, i); }
    void escribe(size_t i, double v) { g_array_index(g, double, i) = v; }
    void inserta(size_t i, double v) { g_array_insert_val(g, static_cast<guint>(i), v); }
    void borra(size_t i) { g_array_remove_index(g, static_cast<guint>(i)); }
    void inserta_delante(double v) { g_array_prepend_val(g, v); }
    size_t tamanyo() const { return g->len; }
};

// GSequence holds pointers: each double travels in a pointer's bits, so nothing is allocated
// beyond the sequence's own nodes.
struct Gsequence {
    static constexpr const char *nombre = "GSequence";
    GSequence *s;
    static gpointer empaqueta(double v)
    {
        uintptr_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        return reinterpret_cast<gpointer>(bits);
    }
    static double desempaqueta(gpointer p)
    {
        const uintptr_t bits = reinterpret_cast<uintptr_t>(p);
        double v;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    }
    explicit Gsequence(size_t n) : s(g_sequence_new(nullptr))
    {
        for (size_t i = 0; i < n; ++i)
            g_sequence_append(s, empaqueta(0.0));
    }
    ~Gsequence() { g_sequence_free(s); }
    GSequenceIter *en(size_t i) const { return g_sequence_get_iter_at_pos(s, static_cast<gint>(i)); }
    void anyade(double v) { g_sequence_append(s, empaqueta(v)); }
    double lee(size_t i) const { return desempaqueta(g_sequence_get(en(i))); }
    void escribe(size_t i, double v) { g_sequence_set(en(i), empaqueta(v)); }
    void inserta(size_t i, double v) { g_sequence_insert_before(en(i), empaqueta(v)); }
    void borra(size_t i) { g_sequence_remove(en(i)); }
    void inserta_delante(double v) { g_sequence_prepend(s, empaqueta(v)); }
    size_t tamanyo() const { return static_cast<size_t>(g_sequence_get_length(s)); }
};
