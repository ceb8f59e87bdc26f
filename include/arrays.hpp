/*
 * arrays.hpp: a header-only C++17 face over arrays.h. arr::array<T> owns one array of the
 * library (move-only, destroyed with it) and offers size(), checked access, push_back, insert,
 * erase, sort, find and range-for iteration that walks the rows directly (one library call per
 * row, not per element). It exports nothing of its own: every operation is a call of arrays.h,
 * with that function's reports.
 *
 * Element types and their families: double (Double), std::int16_t (Short), std::uint16_t
 * (UShort), std::int32_t (Long), std::uint32_t (ULong), std::int64_t (Long64), std::uint64_t
 * (ULong64), std::uint8_t (BYTE), char (Char), arr::booleano (BOOL), arr::punto2d (Punto2D),
 * arr::punto3d (Punto3D), std::string (CADENA: std::string_view in, std::string out, iteration
 * gives std::string_view) and std::u16string (CADENA_u, likewise).
 */
#ifndef ARRAYS_HPP
#define ARRAYS_HPP

#include "arrays.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace arr {

/* The elements of the point families, in the layout their rows hold. */
struct punto2d {
    double x;
    double y;
};
struct punto3d {
    double x;
    double y;
    double z;
};
inline bool operator==(const punto2d &a, const punto2d &b) { return a.x == b.x && a.y == b.y; }
inline bool operator==(const punto3d &a, const punto3d &b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

/* The element of a BOOL array: FALSO or CIERTO, two bytes as the library stores it. */
enum class booleano : std::uint16_t { falso = FALSO, cierto = CIERTO };

namespace detalle {

/* How an iterator shows the element a row holds: as a reference for numbers and points, as a
 * view for strings (the row holds the string's pointer). */
template <typename Almacenado> struct vista_referencia {
    using almacenado = Almacenado;
    using valor = Almacenado;
    using referencia = Almacenado &;
    static referencia muestra(almacenado &elemento) { return elemento; }
};
template <typename Caracter> struct vista_cadena {
    using almacenado = Caracter *;
    using valor = std::basic_string_view<Caracter>;
    using referencia = valor;
    static referencia muestra(almacenado &elemento)
    {
        return elemento != nullptr ? valor(elemento) : valor();
    }
};

/* What each family calls; specialised below for every element type of the face. */
template <typename T> struct familia;

#define ARR_HPP_NUMEROS(T, F)                                                                     \
    static ARRAY *crea(ULONG n) { return arr_Crea##F(n); }                                         \
    static void destruye(ARRAY **a) { arr_Destruye##F(a); }                                        \
    static ULONG num_elems(const ARRAY *a) { return arr_NumElems##F(a); }                          \
    static void append(ARRAY *a, T v) { arr_Append##F(a, v); }                                    \
    static void insertar(ARRAY *a, ULONG pos, T v) { arr_Insertar##F(a, pos, v); }               \
    static void borrar(ARRAY *a, ULONG pos) { arr_Borrar##F(a, pos); }                            \
    static T get(ARRAY *a, ULONG pos) { return arr_Get##F(a, pos); }                              \
    static void set(ARRAY *a, ULONG pos, T v) { arr_Set##F(a, pos, v); }                          \
    static void ordena(ARRAY *a) { arr_QSort##F(a, nullptr); }

/* Integer families: an optional predicate in searches (none: exact). */
#define ARR_HPP_ENTERO(T, F)                                                                      \
    template <> struct familia<T> : vista_referencia<T> {                                         \
        using valor_c = T;                                                                        \
        ARR_HPP_NUMEROS(T, F)                                                                     \
        static ULONG busca(ARRAY *a, T v) { return arr_Buscar##F(a, v, nullptr); }                \
    };
ARR_HPP_ENTERO(std::int16_t, Short)
ARR_HPP_ENTERO(std::uint16_t, UShort)
ARR_HPP_ENTERO(std::int32_t, Long)
ARR_HPP_ENTERO(std::uint32_t, ULong)
ARR_HPP_ENTERO(std::int64_t, Long64)
ARR_HPP_ENTERO(std::uint64_t, ULong64)
ARR_HPP_ENTERO(std::uint8_t, BYTE)
ARR_HPP_ENTERO(char, Char)
#undef ARR_HPP_ENTERO

inline BOOL dobles_iguales(double a, double b) { return a == b ? CIERTO : FALSO; }

template <> struct familia<double> : vista_referencia<double> {
    ARR_HPP_NUMEROS(double, Double)
    static ULONG busca(ARRAY *a, double v) { return arr_BuscarDouble(a, v, dobles_iguales); }
};

template <> struct familia<booleano> : vista_referencia<booleano> {
    static ARRAY *crea(ULONG n) { return arr_CreaBOOL(n); }
    static void destruye(ARRAY **a) { arr_DestruyeBOOL(a); }
    static ULONG num_elems(const ARRAY *a) { return arr_NumElemsBOOL(a); }
    static void append(ARRAY *a, booleano v) { arr_AppendBOOL(a, static_cast<BOOL>(v)); }
    static void insertar(ARRAY *a, ULONG pos, booleano v)
    {
        arr_InsertarBOOL(a, pos, static_cast<BOOL>(v));
    }
    static void borrar(ARRAY *a, ULONG pos) { arr_BorrarBOOL(a, pos); }
    static booleano get(ARRAY *a, ULONG pos)
    {
        return static_cast<booleano>(arr_GetBOOL(a, pos));
    }
    static void set(ARRAY *a, ULONG pos, booleano v) { arr_SetBOOL(a, pos, static_cast<BOOL>(v)); }
    static void ordena(ARRAY *a) { arr_QSortBOOL(a, nullptr); }
    static ULONG busca(ARRAY *a, booleano v) { return arr_BuscarBOOL(a, static_cast<BOOL>(v)); }
};
#undef ARR_HPP_NUMEROS

/* Points: x first, then y (then z), each ascending. */
inline int compara_dobles(double a, double b) { return (a > b) - (a < b); }
inline int orden_punto2d(double x1, double y1, double x2, double y2)
{
    const int por_x = compara_dobles(x1, x2);
    return por_x != 0 ? por_x : compara_dobles(y1, y2);
}
inline BOOL punto2d_igual(double x1, double y1, double x2, double y2)
{
    return x1 == x2 && y1 == y2 ? CIERTO : FALSO;
}
inline int orden_punto3d(double x1, double y1, double z1, double x2, double y2, double z2)
{
    const int por_xy = orden_punto2d(x1, y1, x2, y2);
    return por_xy != 0 ? por_xy : compara_dobles(z1, z2);
}
inline BOOL punto3d_igual(double x1, double y1, double z1, double x2, double y2, double z2)
{
    return x1 == x2 && y1 == y2 && z1 == z2 ? CIERTO : FALSO;
}

template <> struct familia<punto2d> : vista_referencia<punto2d> {
    static ARRAY *crea(ULONG n) { return arr_CreaPunto2D(n); }
    static void destruye(ARRAY **a) { arr_DestruyePunto2D(a); }
    static ULONG num_elems(const ARRAY *a) { return arr_NumElemsPunto2D(a); }
    static void append(ARRAY *a, punto2d p) { arr_AppendPunto2D(a, p.x, p.y); }
    static void insertar(ARRAY *a, ULONG pos, punto2d p)
    {
        arr_InsertarPunto2D(a, pos, p.x, p.y);
    }
    static void borrar(ARRAY *a, ULONG pos) { arr_BorrarPunto2D(a, pos); }
    static punto2d get(ARRAY *a, ULONG pos)
    {
        punto2d p{};
        arr_GetPunto2D(a, pos, &p.x, &p.y);
        return p;
    }
    static void set(ARRAY *a, ULONG pos, punto2d p) { arr_SetPunto2D(a, pos, p.x, p.y); }
    static void ordena(ARRAY *a) { arr_QSortPunto2D(a, orden_punto2d); }
    static ULONG busca(ARRAY *a, punto2d p)
    {
        return arr_BuscarPunto2D(a, p.x, p.y, punto2d_igual);
    }
};

template <> struct familia<punto3d> : vista_referencia<punto3d> {
    static ARRAY *crea(ULONG n) { return arr_CreaPunto3D(n); }
    static void destruye(ARRAY **a) { arr_DestruyePunto3D(a); }
    static ULONG num_elems(const ARRAY *a) { return arr_NumElemsPunto3D(a); }
    static void append(ARRAY *a, punto3d p) { arr_AppendPunto3D(a, p.x, p.y, p.z); }
    static void insertar(ARRAY *a, ULONG pos, punto3d p)
    {
        arr_InsertarPunto3D(a, pos, p.x, p.y, p.z);
    }
    static void borrar(ARRAY *a, ULONG pos) { arr_BorrarPunto3D(a, pos); }
    static punto3d get(ARRAY *a, ULONG pos)
    {
        punto3d p{};
        arr_GetPunto3D(a, pos, &p.x, &p.y, &p.z);
        return p;
    }
    static void set(ARRAY *a, ULONG pos, punto3d p) { arr_SetPunto3D(a, pos, p.x, p.y, p.z); }
    static void ordena(ARRAY *a) { arr_QSortPunto3D(a, orden_punto3d); }
    static ULONG busca(ARRAY *a, punto3d p)
    {
        return arr_BuscarPunto3D(a, p.x, p.y, p.z, punto3d_igual);
    }
};

/* Strings: the array keeps its own copies; a view goes in as a copy made zero-terminated. */
#define ARR_HPP_CADENAS(CADENA, C, S)                                                             \
    template <> struct familia<CADENA> : vista_cadena<C> {                                        \
        using entrada = std::basic_string_view<C>;                                                \
        static ARRAY *crea(ULONG n) { return arr_CreaCADENA##S(n); }                              \
        static void destruye(ARRAY **a) { arr_DestruyeCADENA##S(a); }                             \
        static ULONG num_elems(const ARRAY *a) { return arr_NumElemsCADENA##S(a); }               \
        static void append(ARRAY *a, entrada v) { arr_AppendCADENA##S(a, CADENA(v).c_str()); }    \
        static void insertar(ARRAY *a, ULONG pos, entrada v)                                      \
        {                                                                                         \
            arr_InsertarCADENA##S(a, pos, CADENA(v).c_str());                                     \
        }                                                                                         \
        static void borrar(ARRAY *a, ULONG pos) { arr_BorrarCADENA##S(a, pos); }                  \
        static CADENA get(ARRAY *a, ULONG pos)                                                    \
        {                                                                                         \
            const C *cadena = arr_GetCADENA##S(a, pos);                                           \
            return cadena != nullptr ? CADENA(cadena) : CADENA();                                 \
        }                                                                                         \
        static void set(ARRAY *a, ULONG pos, entrada v)                                           \
        {                                                                                         \
            arr_SetCADENA##S(a, pos, CADENA(v).c_str());                                          \
        }                                                                                         \
        static void ordena(ARRAY *a) { arr_QSortCADENA##S(a, nullptr); }                          \
        static ULONG busca(ARRAY *a, entrada v)                                                   \
        {                                                                                         \
            return arr_BuscarCADENA##S(a, CADENA(v).c_str());                                     \
        }                                                                                         \
    };
ARR_HPP_CADENAS(std::string, char, )
ARR_HPP_CADENAS(std::u16string, char16_t, _u)
#undef ARR_HPP_CADENAS

/* What push_back, insert, set and find take: the element, or a view for strings. */
template <typename T, typename = void> struct tipo_entrada {
    using tipo = T;
};
template <typename T> struct tipo_entrada<T, std::void_t<typename familia<T>::entrada>> {
    using tipo = typename familia<T>::entrada;
};

/* Walks the rows of an array through arr_Fila: one call per row, then plain pointer steps. */
template <typename Vista> class iterador {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = typename Vista::valor;
    using difference_type = std::ptrdiff_t;
    using reference = typename Vista::referencia;
    using pointer = void;

    iterador() = default;
    iterador(const ARRAY *array, ULONG fila) : array_(array), fila_(fila) { carga(); }

    reference operator*() const { return Vista::muestra(elemento_[pos_]); }
    iterador &operator++()
    {
        if (++pos_ == num_) {
            ++fila_;
            carga();
        }
        return *this;
    }
    iterador operator++(int)
    {
        iterador anterior = *this;
        ++*this;
        return anterior;
    }
    friend bool operator==(const iterador &a, const iterador &b)
    {
        return a.elemento_ == b.elemento_ && a.pos_ == b.pos_;
    }
    friend bool operator!=(const iterador &a, const iterador &b) { return !(a == b); }

private:
    using almacenado = typename Vista::almacenado;

    /* The row fila_ from its start; past the last row the iterator equals end(). */
    void carga()
    {
        elemento_ = static_cast<almacenado *>(arr_Fila(array_, fila_, &num_));
        pos_ = 0;
    }

    const ARRAY *array_ = nullptr;
    ULONG fila_ = 0;
    almacenado *elemento_ = nullptr;
    ULONG pos_ = 0;
    ULONG num_ = 0;
};

} // namespace detalle

/* One array of the library holding elements of type T, owned by this object. */
template <typename T> class array {
    using familia = detalle::familia<T>;

public:
    using value_type = T;
    using size_type = std::size_t;
    using entrada = typename detalle::tipo_entrada<T>::tipo;
    using iterator = detalle::iterador<familia>;

    /* An array of n zero (or empty) elements. */
    explicit array(size_type n = 0) : array_(familia::crea(a_ulong(n))) {}
    /* Takes over an array made through the C interface. */
    static array adopta(ARRAY *propio) { return array(propio, 0); }

    array(array &&otro) noexcept : array_(std::exchange(otro.array_, nullptr)) {}
    array &operator=(array &&otro) noexcept
    {
        if (this != &otro) {
            libera();
            array_ = std::exchange(otro.array_, nullptr);
        }
        return *this;
    }
    array(const array &) = delete;
    array &operator=(const array &) = delete;
    ~array() { libera(); }

    size_type size() const { return array_ != nullptr ? familia::num_elems(array_) : 0; }
    bool empty() const { return size() == 0; }

    /* The element at pos; std::out_of_range when there is none. */
    auto at(size_type pos) const
    {
        comprueba(pos, size());
        return familia::get(array_, static_cast<ULONG>(pos));
    }
    /* The element at pos through the library's own check (a report and a zero value past the
     * end). */
    auto operator[](size_type pos) const { return familia::get(array_, a_ulong(pos)); }
    void set(size_type pos, entrada valor)
    {
        comprueba(pos, size());
        familia::set(array_, static_cast<ULONG>(pos), valor);
    }

    void push_back(entrada valor) { familia::append(array_, valor); }
    /* Inserts before pos (pos == size() appends); std::out_of_range past that. */
    void insert(size_type pos, entrada valor)
    {
        comprueba(pos, size() + 1);
        familia::insertar(array_, static_cast<ULONG>(pos), valor);
    }
    /* Deletes the element at pos; std::out_of_range when there is none. */
    void erase(size_type pos)
    {
        comprueba(pos, size());
        familia::borrar(array_, static_cast<ULONG>(pos));
    }
    /* Ascending: numbers by value, points by x then y (then z), strings by code units. */
    void sort() { familia::ordena(array_); }
    /* The first position holding valor, if any. */
    std::optional<size_type> find(entrada valor) const
    {
        const ULONG pos = familia::busca(array_, valor);
        return pos == ARR_ULONG_MAX ? std::nullopt : std::optional<size_type>(pos);
    }

    iterator begin() const { return array_ != nullptr ? iterator(array_, 0) : end(); }
    iterator end() const { return iterator(); }

    /* The handle, for the functions of arrays.h that the face does not wrap. */
    ARRAY *get() const { return array_; }
    /* Gives the handle up: the caller destroys it. */
    ARRAY *release() { return std::exchange(array_, nullptr); }

private:
    array(ARRAY *propio, int) : array_(propio) {}

    static ULONG a_ulong(size_type n)
    {
        if (n >= ARR_ULONG_MAX)
            throw std::length_error("arr::array: more elements than ULONG positions");
        return static_cast<ULONG>(n);
    }
    static void comprueba(size_type pos, size_type limite)
    {
        if (pos >= limite)
            throw std::out_of_range("arr::array: position out of range");
    }
    void libera()
    {
        if (array_ != nullptr)
            familia::destruye(&array_);
    }

    ARRAY *array_;
};

} // namespace arr

#endif /* ARRAYS_HPP */
