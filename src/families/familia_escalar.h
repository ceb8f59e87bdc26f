// The typed front of a scalar family: each export packs its value into a buffer of the element's
// size and calls one engine operation with the family's tag. The per-tag record says what
// differs between families (value type, table members, default order, reporting module,
// AppendN's minimum count). Everything keys on the tag: BYTE and UChar share a C++ type, and so
// do BOOL and UShort.
#pragma once

#include "core/arrayprv.h"
#include "core/comparadores.h"
#include "core/quicksort.h"
#include "services/informes.h"

#include <cstring>

// How a family's values compare (ARR_BOOLEANO, ARR_ENTERO, ARR_REAL in tools/familias.py).
enum class Comparacion { booleano, entero, real };

// The count precondition of a repeated append: the smallest count accepted and the text that
// reports a smaller one.
struct ReglaVeces {
    ULONG minimo;
    const char *texto;
};

template <tipo_elem_array TAG> struct Escalar;

// The value stored at an element's address; rows are byte buffers, so it is read by copy.
template <typename T> T lee_elemento(const void *elemento)
{
    T valor;
    std::memcpy(&valor, elemento, sizeof valor);
    return valor;
}

// An integer family: an optional predicate in searches, exact equality of arrays.
template <typename Valor, auto Accion, auto Igualdad, auto Orden> struct Entero {
    using T = Valor;
    static constexpr Comparacion comparacion = Comparacion::entero;
    static constexpr auto accion = Accion;
    static constexpr auto igualdad = Igualdad;
    static constexpr auto orden_por_defecto = Orden;
};

#define ARR_ESCALAR_ENTERO(VALOR, MIEMBRO, ORDEN)                                            \
    Entero<VALOR, &fnc_accion::fnc_accion_##MIEMBRO, &fnc_compara::fnc_compara_##MIEMBRO, ORDEN>

// BOOL has no predicate anywhere: its values always compare exactly.
template <> struct Escalar<elem_BOOL_NO_USAR> {
    using T = BOOL;
    static constexpr Comparacion comparacion = Comparacion::booleano;
    static constexpr auto accion = &fnc_accion::fnc_accion_BOOL;
    static constexpr auto orden_por_defecto = arrayprv_orden_bool;
    static constexpr const char *UBICACION = "a_bool (ARRAYS.DLL)";
    static constexpr ReglaVeces veces{2, "num_veces > 1"};
};

template <>
struct Escalar<elem_BYTE_NO_USAR>
    : ARR_ESCALAR_ENTERO(BYTE, BYTE, arrayprv_orden_byte) {};
// UChar orders as BYTE does.
template <>
struct Escalar<elem_UCHAR_NO_USAR>
    : ARR_ESCALAR_ENTERO(UCHAR, uchar, arrayprv_orden_byte) {};
// Char orders as signed 8-bit whatever the platform's char is.
template <>
struct Escalar<elem_CHAR_NO_USAR>
    : ARR_ESCALAR_ENTERO(char, char, arrayprv_orden_char) {};
template <>
struct Escalar<elem_SHORT_NO_USAR>
    : ARR_ESCALAR_ENTERO(SHORT, short, arrayprv_orden_short) {};

template <>
struct Escalar<elem_USHORT_NO_USAR>
    : ARR_ESCALAR_ENTERO(USHORT, ushort, arrayprv_orden_ushort) {
    static constexpr const char *UBICACION = "a_ushort (ARRAYS.DLL)";
};

template <>
struct Escalar<elem_LONG_NO_USAR>
    : ARR_ESCALAR_ENTERO(LONG, long, arrayprv_orden_long) {
    static constexpr const char *UBICACION = "a_long (ARRAYS.DLL)";
};

template <>
struct Escalar<elem_ULONG_NO_USAR>
    : ARR_ESCALAR_ENTERO(ULONG, ulong, arrayprv_orden_ulong) {
    static constexpr const char *UBICACION = "a_ulong (ARRAYS.DLL)";
    static constexpr ReglaVeces veces{1, "num_veces > 0"};
};

template <>
struct Escalar<elem_LONG64_NO_USAR>
    : ARR_ESCALAR_ENTERO(LONG64, long64, arrayprv_orden_long64) {
    static constexpr const char *UBICACION = "a_long64 (ARRAYS.DLL)";
};

template <>
struct Escalar<elem_ULONG64_NO_USAR>
    : ARR_ESCALAR_ENTERO(ULONG64, ulong64, arrayprv_orden_ulong64) {
    static constexpr const char *UBICACION = "a_ulong64 (ARRAYS.DLL)";
    static constexpr ReglaVeces veces{1, "num_veces > 0"};
};

#undef ARR_ESCALAR_ENTERO

// Doubles need the caller's predicate in searches and in equality of arrays.
template <> struct Escalar<elem_DOUBLE_NO_USAR> {
    using T = double;
    static constexpr Comparacion comparacion = Comparacion::real;
    static constexpr auto accion = &fnc_accion::fnc_accion_double;
    static constexpr auto igualdad = &fnc_compara::fnc_compara_double;
    static constexpr auto orden_por_defecto = arrayprv_orden_double;
    static constexpr const char *UBICACION = "a_double (ARRAYS.DLL)";
    static constexpr ReglaVeces veces{2, "num_veces > 1"};
};

template <tipo_elem_array TAG> struct FamiliaEscalar {
    using R = Escalar<TAG>;
    using T = typename R::T;

    static ARRAY *crea(ULONG tamanyo_inicial)
    {
        return arrayprv_crea(tamanyo_inicial, TAG, LONG_FILA_POR_DEFECTO);
    }

    static void append(ARRAY *array, T valor) { arrayprv_append<sizeof(T)>(array, &valor, TAG); }

    // Reports a count below the rule's minimum from the module `ubicacion`, then appends the
    // value as many times as the count says.
    static void append_n(ARRAY *array, ULONG num_veces, T valor, const char *ubicacion,
                         ReglaVeces regla)
    {
        const char *UBICACION = ubicacion;
        ARR_EXIGE(num_veces >= regla.minimo, regla.texto);
        for (ULONG i = 0; i < num_veces; ++i)
            arrayprv_append(array, &valor, TAG);
    }

    static void append_n(ARRAY *array, ULONG num_veces, T valor)
    {
        append_n(array, num_veces, valor, R::UBICACION, R::veces);
    }

    static void inserta(ARRAY *array, ULONG pos, T valor)
    {
        arrayprv_inserta(array, pos, &valor, TAG);
    }

    static void borra(ARRAY *array, ULONG pos) { arrayprv_borra(array, pos, TAG); }

    // The immediate read inline, without a frame; every other read in a function of its own.
    static T get(const ARRAY *array, ULONG pos)
    {
        if (char *elemento; arrayprv_get_inmediato<sizeof(T)>(array, pos, TAG, &elemento)) [[likely]]
            return lee_elemento<T>(elemento);
        return get_comprobado(array, pos);
    }

    [[gnu::noinline]] static T get_comprobado(const ARRAY *array, ULONG pos)
    {
        const void *elemento = arrayprv_get_comprobado(array, pos, TAG);
        return elemento != nullptr ? lee_elemento<T>(elemento) : T{};
    }

    static void set(ARRAY *array, ULONG pos, T valor) { arrayprv_set<sizeof(T)>(array, pos, &valor, TAG); }

    static void inicializa(ARRAY *array, T valor) { arrayprv_inicializa(array, &valor, TAG); }

    // Searches from 0 with the caller's predicate (none for BOOL); the position or ARR_ULONG_MAX.
    static ULONG busca(ARRAY *array, T valor, auto igualdad, BOOL unico)
    {
        ULONG posicion = ARR_ULONG_MAX;
        if constexpr (R::comparacion == Comparacion::booleano) {
            arrayprv_busca(array, 0, &valor, nullptr, &posicion, TAG, unico);
        } else {
            fnc_compara tabla{};
            tabla.*R::igualdad = igualdad;
            arrayprv_busca(array, 0, &valor, &tabla, &posicion, TAG, unico);
        }
        return posicion;
    }

    static BOOL existe(ARRAY *array, T valor, auto igualdad, ULONG *posicion, BOOL unico)
    {
        const ULONG encontrada = busca(array, valor, igualdad, unico);
        if (posicion != nullptr)
            *posicion = encontrada;
        return encontrada < ARR_ULONG_MAX;
    }

    // Without a comparator, a type with a default order sorts through the quicksort specialised
    // for it; a type without one (the points) has its missing comparator reported.
    static void ordena(ARRAY *array, comparador_de<TAG> comparador)
    {
        if constexpr (R::orden_por_defecto != nullptr) {
            if (comparador == nullptr)
                return arrayprv_qsort_valores<T, R::orden_por_defecto>(array, TAG);
        }
        arrayprv_ordena<TAG>(array, comparador);
    }

    // Whole-array equality: exact for BOOL and the integers, the caller's predicate for doubles.
    static BOOL son_iguales(ARRAY *array1, ARRAY *array2, auto igualdad)
    {
        if constexpr (R::comparacion == Comparacion::real) {
            fnc_compara tabla{};
            tabla.*R::igualdad = igualdad;
            return arrayprv_son_iguales(array1, array2, &tabla, TAG);
        } else {
            return arrayprv_son_iguales(array1, array2, nullptr, TAG);
        }
    }

    template <typename Accion>
    static void recorre(ARRAY *array, Accion accion, void *datos, const char *ubicacion, LONG linea)
    {
        fnc_accion acciones{};
        acciones.*R::accion = accion;
        arrayprv_recorre(array, &acciones, datos, TAG, 0, 0, ubicacion, linea);
    }
};
