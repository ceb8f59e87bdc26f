// Comparator tables of the engine: equality predicates (fnc_compara) for search and equality,
// ordering comparators (funciones_ordenacion) for the quicksort, with one record per element
// type (Orden<TAG>) that says how the sort adapter reads two elements and which member it calls.
#pragma once

#include "core/arrayprv.h"
#include "services/cadenas.h"
#include "services/informes.h"

#include <cstring>
#include <type_traits>
#include <utility>

// Equality predicates, one member per element type; a typed caller sets only its own member.
// Non-zero (in the low 16 bits) means equal, or that the element matches.
struct fnc_compara {
    BOOL (*fnc_compara_BYTE)(BYTE a, BYTE b);
    BOOL (*fnc_compara_char)(char a, char b);
    BOOL (*fnc_compara_uchar)(UCHAR a, UCHAR b);
    BOOL (*fnc_compara_short)(SHORT a, SHORT b);
    BOOL (*fnc_compara_ushort)(USHORT a, USHORT b);
    BOOL (*fnc_compara_long)(LONG a, LONG b);
    BOOL (*fnc_compara_ulong)(ULONG a, ULONG b);
    BOOL (*fnc_compara_long64)(LONG64 a, LONG64 b);
    BOOL (*fnc_compara_ulong64)(ULONG64 a, ULONG64 b);
    BOOL (*fnc_compara_double)(double a, double b);
    BOOL (*fnc_compara_CADENA)(const char *a, const char *b);
    BOOL (*fnc_compara_CADENA_U)(const WCHAR *a, const WCHAR *b);
    BOOL (*fnc_compara_puntero)(const void *elemento, const void *dato);
    BOOL (*fnc_compara_punto2D)(double x1, double y1, double x2, double y2);
    BOOL (*fnc_compara_punto2DX)(double x1, double y1, void *datos1, double x2, double y2,
                                 void *datos2);
    BOOL (*fnc_compara_punto3D)(double x1, double y1, double z1, double x2, double y2, double z2);
};

// Ordering comparators, returning comparac_PRIMERO_MENOR, comparac_IGUALES or
// comparac_PRIMERO_MAYOR. Lives on the heap for one sort.
struct funciones_ordenacion {
    int (*func_compara_byte)(BYTE a, BYTE b);
    int (*func_compara_bool)(BOOL a, BOOL b);
    int (*func_compara_uchar)(UCHAR a, UCHAR b);
    int (*func_compara_char)(char a, char b);
    int (*func_compara_ushort)(USHORT a, USHORT b);
    int (*func_compara_short)(SHORT a, SHORT b);
    int (*func_compara_ulong)(ULONG a, ULONG b);
    int (*func_compara_long)(LONG a, LONG b);
    int (*func_compara_ulong64)(ULONG64 a, ULONG64 b);
    int (*func_compara_long64)(LONG64 a, LONG64 b);
    int (*func_compara_double)(double a, double b);
    int (*func_compara_puntero)(const void *a, const void *b);
    int (*func_compara_cadena)(const char *a, const char *b);
    int (*func_compara_cadena_u)(const WCHAR *a, const WCHAR *b);
    int (*func_compara_punto2D)(double x1, double y1, double x2, double y2);
    int (*func_compara_punto2Dx)(double x1, double y1, void *datos1, double x2, double y2,
                                 void *datos2);
    int (*func_compara_punto3D)(double x1, double y1, double z1, double x2, double y2, double z2);
};

// How the quicksort compares two elements: adapter(table, element 1, element 2).
using adaptador_orden = int (*)(const funciones_ordenacion *tabla, const void *p1, const void *p2);

funciones_ordenacion *arrayprv_crea_funciones_ordenacion(
    decltype(funciones_ordenacion::func_compara_byte) func_compara_byte,
    decltype(funciones_ordenacion::func_compara_bool) func_compara_bool,
    decltype(funciones_ordenacion::func_compara_uchar) func_compara_uchar,
    decltype(funciones_ordenacion::func_compara_char) func_compara_char,
    decltype(funciones_ordenacion::func_compara_ushort) func_compara_ushort,
    decltype(funciones_ordenacion::func_compara_short) func_compara_short,
    decltype(funciones_ordenacion::func_compara_ulong) func_compara_ulong,
    decltype(funciones_ordenacion::func_compara_long) func_compara_long,
    decltype(funciones_ordenacion::func_compara_ulong64) func_compara_ulong64,
    decltype(funciones_ordenacion::func_compara_long64) func_compara_long64,
    decltype(funciones_ordenacion::func_compara_double) func_compara_double,
    decltype(funciones_ordenacion::func_compara_puntero) func_compara_puntero,
    decltype(funciones_ordenacion::func_compara_cadena) func_compara_cadena,
    decltype(funciones_ordenacion::func_compara_cadena_u) func_compara_cadena_u,
    decltype(funciones_ordenacion::func_compara_punto2D) func_compara_punto2D,
    decltype(funciones_ordenacion::func_compara_punto2Dx) func_compara_punto2Dx,
    decltype(funciones_ordenacion::func_compara_punto3D) func_compara_punto3D);
void arrayprv_destruye_funciones_ordenacion(funciones_ordenacion **tabla);

// Exact three-way order of two values. "Less" is asked first, so that a caller that only wants
// to know whether the first is less compiles to one comparison.
template <typename T> int arrayprv_orden_exacto(T a, T b)
{
    if (a < b)
        return comparac_PRIMERO_MENOR;
    if (b < a)
        return comparac_PRIMERO_MAYOR;
    return comparac_IGUALES;
}

// The default ordering of each type that has one, inline so that a sort specialised for the
// type compares without a call. BOOL is deliberately one-sided: it never answers
// comparac_PRIMERO_MENOR. The double order is exact (a NaN equals everything).
inline int arrayprv_orden_byte(BYTE a, BYTE b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_bool(BOOL a, BOOL b)
{
    if (a == b)
        return comparac_IGUALES;
    return a != 0 ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}
inline int arrayprv_orden_char(char a, char b)
{
    return arrayprv_orden_exacto(static_cast<signed char>(a), static_cast<signed char>(b));
}
inline int arrayprv_orden_ushort(USHORT a, USHORT b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_short(SHORT a, SHORT b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_ulong(ULONG a, ULONG b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_long(LONG a, LONG b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_ulong64(ULONG64 a, ULONG64 b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_long64(LONG64 a, LONG64 b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_double(double a, double b) { return arrayprv_orden_exacto(a, b); }
inline int arrayprv_orden_cadena(const char *a, const char *b)
{
    return arrayprv_orden_exacto(cad_cadenas_compara(a, b), 0);
}
int arrayprv_orden_cadena_u(const WCHAR *a, const WCHAR *b);

// TRUE exactly when the two pointers are the same pointer.
BOOL arrayprv_mismo_puntero(const void *elemento, const void *dato);

// Compares two elements for the sort: identical bytes are comparac_IGUALES without calling the
// adapter; otherwise adapter(tabla, p1, p2).
int arrayprv_compara_elementos(const funciones_ordenacion *tabla, adaptador_orden compara,
                               const void *p1, const void *p2, size_t size_elem);

// ---- One record per element type for the sort: comparator member, element size, its text, how
// to call it ---

template <tipo_elem_array TAG> struct Orden;

// Element types whose comparator takes the two stored values.
#define ARR_ORDEN_POR_VALOR(TAG, MIEMBRO, T)                                                      \
    template <> struct Orden<TAG> {                                                               \
        static constexpr auto miembro = &funciones_ordenacion::MIEMBRO;                           \
        static constexpr size_t tamanyo = sizeof(T);                                              \
        static constexpr const char *texto_constructor = "(" #MIEMBRO ") != NULL";                \
        static constexpr const char *texto_adaptador = "(funciones_ordenacion->" #MIEMBRO ") != NULL"; \
        template <typename F> static int llama(F f, const void *p1, const void *p2)              \
        {                                                                                         \
            T a;                                                                                  \
            T b;                                                                                  \
            std::memcpy(&a, p1, sizeof a);                                                        \
            std::memcpy(&b, p2, sizeof b);                                                        \
            return f(a, b);                                                                       \
        }                                                                                         \
    };
ARR_ORDEN_POR_VALOR(elem_BYTE_NO_USAR, func_compara_byte, BYTE)
ARR_ORDEN_POR_VALOR(elem_BOOL_NO_USAR, func_compara_bool, BOOL)
ARR_ORDEN_POR_VALOR(elem_UCHAR_NO_USAR, func_compara_uchar, UCHAR)
ARR_ORDEN_POR_VALOR(elem_CHAR_NO_USAR, func_compara_char, char)
ARR_ORDEN_POR_VALOR(elem_USHORT_NO_USAR, func_compara_ushort, USHORT)
ARR_ORDEN_POR_VALOR(elem_SHORT_NO_USAR, func_compara_short, SHORT)
ARR_ORDEN_POR_VALOR(elem_ULONG_NO_USAR, func_compara_ulong, ULONG)
ARR_ORDEN_POR_VALOR(elem_LONG_NO_USAR, func_compara_long, LONG)
ARR_ORDEN_POR_VALOR(elem_ULONG64_NO_USAR, func_compara_ulong64, ULONG64)
ARR_ORDEN_POR_VALOR(elem_LONG64_NO_USAR, func_compara_long64, LONG64)
ARR_ORDEN_POR_VALOR(elem_DOUBLE_NO_USAR, func_compara_double, double)
ARR_ORDEN_POR_VALOR(elem_PUNTERO_NO_USAR, func_compara_puntero, const void *)
ARR_ORDEN_POR_VALOR(elem_CADENA_NO_USAR, func_compara_cadena, const char *)
ARR_ORDEN_POR_VALOR(elem_CADENA_U_NO_USAR, func_compara_cadena_u, const WCHAR *)
#undef ARR_ORDEN_POR_VALOR

// Point types: the comparator takes the coordinates (and the private data) of both points.
template <> struct Orden<elem_PUNTO2D_NO_USAR> {
    static constexpr auto miembro = &funciones_ordenacion::func_compara_punto2D;
    static constexpr size_t tamanyo = 2 * sizeof(double); // bytes of an element
    static constexpr const char *texto_constructor = "(func_compara_punto2D) != NULL";
    static constexpr const char *texto_adaptador =
        "(funciones_ordenacion->func_compara_punto2D) != NULL";
    template <typename F> static int llama(F f, const void *p1, const void *p2)
    {
        double a[2];
        double b[2];
        std::memcpy(a, p1, sizeof a);
        std::memcpy(b, p2, sizeof b);
        return f(a[0], a[1], b[0], b[1]);
    }
};

template <> struct Orden<elem_PUNTO2DX_NO_USAR> {
    static constexpr auto miembro = &funciones_ordenacion::func_compara_punto2Dx;
    static constexpr size_t tamanyo = 2 * sizeof(double) + sizeof(void *); // bytes of an element
    static constexpr const char *texto_constructor = "(func_compara_punto2Dx) != NULL";
    static constexpr const char *texto_adaptador =
        "(funciones_ordenacion->func_compara_punto2Dx) != NULL";
    template <typename F> static int llama(F f, const void *p1, const void *p2)
    {
        struct Punto {
            double x, y;
            void *datos;
        } a, b;
        std::memcpy(&a, p1, sizeof a);
        std::memcpy(&b, p2, sizeof b);
        return f(a.x, a.y, a.datos, b.x, b.y, b.datos);
    }
};

template <> struct Orden<elem_PUNTO3D_NO_USAR> {
    static constexpr auto miembro = &funciones_ordenacion::func_compara_punto3D;
    static constexpr size_t tamanyo = 3 * sizeof(double); // bytes of an element
    static constexpr const char *texto_constructor = "(func_compara_punto3D) != NULL";
    static constexpr const char *texto_adaptador =
        "(funciones_ordenacion->func_compara_punto3D) != NULL";
    template <typename F> static int llama(F f, const void *p1, const void *p2)
    {
        double a[3];
        double b[3];
        std::memcpy(a, p1, sizeof a);
        std::memcpy(b, p2, sizeof b);
        return f(a[0], a[1], a[2], b[0], b[1], b[2]);
    }
};

template <tipo_elem_array TAG>
using comparador_de = std::remove_reference_t<decltype(std::declval<funciones_ordenacion>().*Orden<TAG>::miembro)>;

// The sort table of one type: reports "(func_compara_X) != NULL" for a NULL comparator, then
// yields NULL (nothing to sort with); otherwise a table with only that member set.
template <tipo_elem_array TAG> funciones_ordenacion *arrayprv_crea_ordenacion(comparador_de<TAG> f)
{
    constexpr const char *UBICACION = UBICACION_ARRAYPRV;
    if (!ARR_EXIGE(f != nullptr, Orden<TAG>::texto_constructor))
        return nullptr;
    funciones_ordenacion *tabla = arrayprv_crea_funciones_ordenacion(
        nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
        nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    tabla->*Orden<TAG>::miembro = f;
    return tabla;
}

// The sort adapter of one type: checks its arguments (each one that can be checked is reported)
// and calls the type's member with the values; comparac_IGUALES when it cannot call it.
template <tipo_elem_array TAG>
int arrayprv_adaptador(const funciones_ordenacion *tabla, const void *p1, const void *p2)
{
    constexpr const char *UBICACION = UBICACION_ARRAYPRV;
    const bool elementos = ARR_EXIGE(p1 && p2, "p1 && p2");
    if (!ARR_EXIGE(tabla != nullptr, "(funciones_ordenacion) != NULL") ||
        !ARR_EXIGE(tabla->*Orden<TAG>::miembro != nullptr, Orden<TAG>::texto_adaptador) ||
        !elementos)
        return comparac_IGUALES;
    return Orden<TAG>::llama(tabla->*Orden<TAG>::miembro, p1, p2);
}

// ---- Search, equality, sort, copy, concatenation, inversion ---------------------------------

// Searches from `pos_inicial` for an element equal to *elemento; stores its position, or
// ARR_ULONG_MAX, through `posicion`. With `unico`, a second match is reported and the last one
// seen is the result.
void arrayprv_busca(ARRAY *array, ULONG pos_inicial, const void *elemento,
                    const fnc_compara *tabla, ULONG *posicion, tipo_elem_array tipo_elem,
                    BOOL unico);
BOOL arrayprv_son_iguales(const ARRAY *array1, const ARRAY *array2, const fnc_compara *tabla,
                          tipo_elem_array tipo_elem);

// Quicksort with an explicit stack of ranges.
void arrayprv_qsort(ARRAY *array, const funciones_ordenacion *tabla, adaptador_orden compara,
                    tipo_elem_array tipo_elem);

// Element helpers of the sort, by index.
void arrayprv_copia_elemento(const ARRAY *array, LONG pos, void *buffer, size_t tam_copia);
void arrayprv_pon_elemento(ARRAY *array, LONG pos, const void *buffer, size_t tam);
void arrayprv_intercambia_elementos(ARRAY *array, LONG i, LONG j, void *tmp, size_t tam_tmp);


// The element-copy function of a copy: receives the stored pointer, returns the one to store.
using funcion_copia = void *(*)(const void *elemento);

// A new array with the source's rows, capacities and prefix sums. Strings are always copied
// deeply; other pointer elements go through `copia` when given.
ARRAY *arrayprv_copia(const ARRAY *array, funcion_copia copia);
// Appends org's elements to dest; org is unchanged.
void arrayprv_concatena(ARRAY *dest, const ARRAY *org);

// Reverses the order of the elements in place through get and set.
void arrayprv_invierte(ARRAY *array, tipo_elem_array tipo_elem);
// A new array of the same type with the elements in reverse order, copied byte for byte; the
// argument is unchanged.
ARRAY *arrayprv_invertida(const ARRAY *array, tipo_elem_array tipo_elem);
