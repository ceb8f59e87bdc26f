// The typed front of a scalar family: each export packs its value into a buffer of the element's
// size and calls one engine operation with the family's tag. The per-tag record says what
// differs between families (value type, table members, default order, reporting module,
// AppendN's minimum count).
#pragma once

#include "core/arrayprv.h"
#include "core/comparadores.h"
#include "services/informes.h"

#include <cstring>

// How a family's values compare (see ARR_BOOLEANO, ARR_ENTERO, ARR_REAL in arrays.h).
enum class Comparacion { booleano, entero, real };

template <tipo_elem_array TAG> struct Escalar;

template <> struct Escalar<elem_DOUBLE_NO_USAR> {
    using T = double;
    static constexpr Comparacion comparacion = Comparacion::real;
    static constexpr auto accion = &fnc_accion::fnc_accion_double;
    static constexpr auto igualdad = &fnc_compara::fnc_compara_double;
    static constexpr auto orden_por_defecto = arrayprv_orden_double;
    static constexpr const char *UBICACION = "a_double (ARRAYS.DLL)";
    // AppendN asks for more than one copy.
    static constexpr ULONG minimo_veces = 2;
    static constexpr const char *texto_veces = "num_veces > 1";
};

template <tipo_elem_array TAG> struct FamiliaEscalar {
    using R = Escalar<TAG>;
    using T = typename R::T;

    static ARRAY *crea(ULONG tamanyo_inicial)
    {
        return arrayprv_crea(tamanyo_inicial, TAG, LONG_FILA_POR_DEFECTO);
    }

    static void append(ARRAY *array, T valor) { arrayprv_append(array, &valor, TAG); }

    static void append_n(ARRAY *array, ULONG num_veces, T valor)
    {
        constexpr const char *UBICACION = R::UBICACION;
        ARR_EXIGE(num_veces >= R::minimo_veces, R::texto_veces);
        for (ULONG i = 0; i < num_veces; ++i)
            arrayprv_append(array, &valor, TAG);
    }

    static void inserta(ARRAY *array, ULONG pos, T valor)
    {
        arrayprv_inserta(array, pos, &valor, TAG);
    }

    static void borra(ARRAY *array, ULONG pos) { arrayprv_borra(array, pos, TAG); }

    static T get(ARRAY *array, ULONG pos)
    {
        T valor{};
        if (const void *elemento = arrayprv_get(array, pos, TAG))
            std::memcpy(&valor, elemento, sizeof valor);
        return valor;
    }

    static void set(ARRAY *array, ULONG pos, T valor) { arrayprv_set(array, pos, &valor, TAG); }

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

    static void ordena(ARRAY *array, comparador_de<TAG> comparador)
    {
        arrayprv_ordena<TAG>(array, comparador != nullptr ? comparador : R::orden_por_defecto);
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
