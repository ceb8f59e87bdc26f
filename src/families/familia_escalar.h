// The typed front of a scalar family: each export packs its value into a buffer of the element's
// size and calls one engine operation with the family's tag. The per-tag record says what
// differs between families (value type, action member, reporting module, AppendN's minimum).
#pragma once

#include "core/arrayprv.h"
#include "services/informes.h"

#include <cstring>

template <tipo_elem_array TAG> struct Escalar;

template <> struct Escalar<elem_DOUBLE_NO_USAR> {
    using T = double;
    static constexpr auto accion = &fnc_accion::fnc_accion_double;
    static constexpr const char *UBICACION = "a_double (ARRAYS.DLL)";
    // AppendN asks for more than one copy.
    static constexpr ULONG minimo_veces = 2;
    static constexpr const char *texto_veces = "num_veces > 1";
};

template <tipo_elem_array TAG> struct FamiliaEscalar {
    using T = typename Escalar<TAG>::T;

    static ARRAY *crea(ULONG tamanyo_inicial)
    {
        return arrayprv_crea(tamanyo_inicial, TAG, LONG_FILA_POR_DEFECTO);
    }

    static void append(ARRAY *array, T valor) { arrayprv_append(array, &valor, TAG); }

    static void append_n(ARRAY *array, ULONG num_veces, T valor)
    {
        constexpr const char *UBICACION = Escalar<TAG>::UBICACION;
        ARR_EXIGE(num_veces >= Escalar<TAG>::minimo_veces, Escalar<TAG>::texto_veces);
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

    template <typename Accion>
    static void recorre(ARRAY *array, Accion accion, void *datos, const char *ubicacion, LONG linea)
    {
        fnc_accion acciones{};
        acciones.*Escalar<TAG>::accion = accion;
        arrayprv_recorre(array, &acciones, datos, TAG, 0, 0, ubicacion, linea);
    }
};
