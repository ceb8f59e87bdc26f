// The typed front of the point families. A point is one value of its record type, stored as raw
// bytes like any element, so the scalar front serves the points too (create, append, insert,
// delete, search, sort, equality, traversal); the per-tag records below name the table members
// and the reporting module of each point family. Points have no default order.
#pragma once

#include "families/familia_escalar.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>

// The element records, in the order their coordinates are stored.
struct Punto2D {
    double x;
    double y;
};
struct Punto2DX {
    double x;
    double y;
    void *datos; // the caller's private data; the library never dereferences it
};
struct Punto3D {
    double x;
    double y;
    double z;
};

#define ARR_FAMILIA_PUNTO(TAG, REGISTRO, ACCION, IGUALDAD, UBICACION_FAMILIA)                     \
    template <> struct Escalar<TAG> {                                                             \
        using T = REGISTRO;                                                                       \
        static constexpr Comparacion comparacion = Comparacion::real;                             \
        static constexpr auto accion = &fnc_accion::ACCION;                                       \
        static constexpr auto igualdad = &fnc_compara::IGUALDAD;                                  \
        static constexpr comparador_de<TAG> orden_por_defecto = nullptr;                          \
        static constexpr const char *UBICACION = UBICACION_FAMILIA;                               \
    };
ARR_FAMILIA_PUNTO(elem_PUNTO2D_NO_USAR, Punto2D, fnc_accion_punto2D, fnc_compara_punto2D,
                  "a_pto2d (ARRAYS.DLL)")
ARR_FAMILIA_PUNTO(elem_PUNTO2DX_NO_USAR, Punto2DX, fnc_accion_punto2DX, fnc_compara_punto2DX,
                  "a_pto2dx (ARRAYS.DLL)")
ARR_FAMILIA_PUNTO(elem_PUNTO3D_NO_USAR, Punto3D, fnc_accion_punto3D, fnc_compara_punto3D,
                  "a_pto3d (ARRAYS.DLL)")
#undef ARR_FAMILIA_PUNTO

template <tipo_elem_array TAG> using FamiliaPunto = FamiliaEscalar<TAG>;
template <tipo_elem_array TAG> using punto_de = typename Escalar<TAG>::T;

// Overwrites the point at pos through its element address. Unlike the engine's set, this does
// not refuse an array inside a traversal, so an action may rewrite the point it visits.
template <tipo_elem_array TAG> void pon_punto(ARRAY *array, ULONG pos, const punto_de<TAG> &punto)
{
    if (void *destino = arrayprv_get(array, pos, TAG))
        std::memcpy(destino, &punto, sizeof punto);
}

// The point at pos, or NULL after the engine's reports.
template <tipo_elem_array TAG> const punto_de<TAG> *punto_en(const ARRAY *array, ULONG pos)
{
    return static_cast<const punto_de<TAG> *>(arrayprv_get(array, pos, TAG));
}

// True when every check holds. The checks are written as the list's elements, so each one runs
// and reports, in order, whatever the others gave.
inline bool todas(std::initializer_list<bool> comprobaciones)
{
    return std::all_of(comprobaciones.begin(), comprobaciones.end(), [](bool c) { return c; });
}

// Both kinds of 2D point share x and y at the start of their element.
inline bool es_punto2D(tipo_elem_array tipo)
{
    return tipo == elem_PUNTO2D_NO_USAR || tipo == elem_PUNTO2DX_NO_USAR;
}

// The entry texts of operations that take two arrays.
inline constexpr TextosEntrada TEXTOS_ARRAY1{"(array1) != NULL",
                                             "array1->mascara_debug == MASCARA_DEBUG",
                                             "array1->en_bucle == FALSO",
                                             "array1->en_bucle_lectura == FALSO"};
inline constexpr TextosEntrada TEXTOS_ARRAY2{"(array2) != NULL",
                                             "array2->mascara_debug == MASCARA_DEBUG",
                                             "array2->en_bucle == FALSO",
                                             "array2->en_bucle_lectura == FALSO"};

// Two live point arrays compared with a tolerance per coordinate: the same count and, element
// by element, no difference above `tolerancia` in any of the first `coordenadas` doubles (a
// difference equal to the tolerance still counts as equal).
BOOL coordenadas_dentro_de_tolerancia(const ARRAY *array1, const ARRAY *array2, double tolerancia,
                                      size_t coordenadas);

// The exports that every point family has in one form: create, append, insert, and the searches,
// sort and equality with the caller's functions. CAMPOS is the parenthesised parameter list of
// one point's fields, VALOR the parenthesised list that makes the record from them.
#define ARR_SIN_PARENTESIS(...) __VA_ARGS__
#define ARR_DEFINE_FAMILIA_PUNTO(F, TAG, CAMPOS, VALOR)                                           \
    extern "C" ARRAY *arr_Crea##F(ULONG tamanyo_inicial) noexcept                                 \
    {                                                                                             \
        return FamiliaPunto<TAG>::crea(tamanyo_inicial);                                          \
    }                                                                                             \
    extern "C" void arr_Append##F(ARRAY *array, ARR_SIN_PARENTESIS CAMPOS) noexcept               \
    {                                                                                             \
        FamiliaPunto<TAG>::append(array, {ARR_SIN_PARENTESIS VALOR});                             \
    }                                                                                             \
    extern "C" void arr_Insertar##F(ARRAY *array, ULONG pos, ARR_SIN_PARENTESIS CAMPOS) noexcept  \
    {                                                                                             \
        FamiliaPunto<TAG>::inserta(array, pos, {ARR_SIN_PARENTESIS VALOR});                       \
    }                                                                                             \
    extern "C" ULONG arr_Buscar##F(ARRAY *array, ARR_SIN_PARENTESIS CAMPOS,                       \
                                   arr_igualdad_##F igualdad) noexcept                            \
    {                                                                                             \
        return FamiliaPunto<TAG>::busca(array, {ARR_SIN_PARENTESIS VALOR}, igualdad, FALSO);      \
    }                                                                                             \
    extern "C" ULONG arr_BuscarUnico##F(ARRAY *array, ARR_SIN_PARENTESIS CAMPOS,                  \
                                        arr_igualdad_##F igualdad) noexcept                       \
    {                                                                                             \
        return FamiliaPunto<TAG>::busca(array, {ARR_SIN_PARENTESIS VALOR}, igualdad, CIERTO);     \
    }                                                                                             \
    extern "C" BOOL arr_Existe##F(ARRAY *array, ARR_SIN_PARENTESIS CAMPOS,                        \
                                  arr_igualdad_##F igualdad, ULONG *posicion) noexcept            \
    {                                                                                             \
        return FamiliaPunto<TAG>::existe(array, {ARR_SIN_PARENTESIS VALOR}, igualdad, posicion,   \
                                         FALSO);                                                  \
    }                                                                                             \
    extern "C" BOOL arr_ExisteUnico##F(ARRAY *array, ARR_SIN_PARENTESIS CAMPOS,                   \
                                       arr_igualdad_##F igualdad, ULONG *posicion) noexcept       \
    {                                                                                             \
        return FamiliaPunto<TAG>::existe(array, {ARR_SIN_PARENTESIS VALOR}, igualdad, posicion,   \
                                         CIERTO);                                                 \
    }                                                                                             \
    extern "C" void arr_QSort##F(ARRAY *array, arr_orden_##F comparador) noexcept                 \
    {                                                                                             \
        FamiliaPunto<TAG>::ordena(array, comparador);                                             \
    }                                                                                             \
    extern "C" BOOL arr_SonIguales##F(ARRAY *array1, ARRAY *array2,                               \
                                      arr_igualdad_##F igualdad) noexcept                         \
    {                                                                                             \
        return FamiliaPunto<TAG>::son_iguales(array1, array2, igualdad);                          \
    }
