// The families of the description in tools/familias.py as X-macro tables, for the library's
// typed fronts and the tests. Written by tools/genera_interfaz.py: edit the description, not this.
#pragma once

#include "arrays.h"

// An optional operation's column: ARR_SI(x) is x, ARR_NO(x) is nothing.
#define ARR_SI(...) __VA_ARGS__
#define ARR_NO(...)

// Sumar's column applied to a generator M and its arguments: M(delta type, arguments...).
#define ARR_DELTA_SHORT(M, ...) M(arr_short_t, __VA_ARGS__)
#define ARR_DELTA_LONG(M, ...) M(arr_long_t, __VA_ARGS__)
#define ARR_DELTA_LONG64(M, ...) M(arr_long64_t, __VA_ARGS__)

// The predicate parameter of searches and of array equality, by how a family compares.
#define ARR_BUSCA_CON_ARR_BOOLEANO(F)
#define ARR_BUSCA_CON_ARR_ENTERO(F) , arr_igualdad_##F igualdad
#define ARR_BUSCA_CON_ARR_REAL(F) , arr_igualdad_##F igualdad
#define ARR_IGUALES_CON_ARR_BOOLEANO(F)
#define ARR_IGUALES_CON_ARR_ENTERO(F)
#define ARR_IGUALES_CON_ARR_REAL(F) , arr_igualdad_##F igualdad

// The predicate parameter of a string search of width S ("" or _u), by how it compares.
#define ARR_PREDICADO_CADENA_EXACTA(S)
#define ARR_PREDICADO_CADENA_EX(S) , arr_igualdad_CADENA##S igualdad
#define ARR_PREDICADO_CADENA_MAYMIN(S)

// X(family, value type, tag, compares, AppendN, AumentaTamanyo, ReduceTamanyo,
//   Sumar (its delta type), Sumatorio, arr_nousar_Recorre)
#define ARR_FAMILIAS_ESCALARES(X)                                                                  \
    X(BOOL, arr_bool_t, elem_BOOL_NO_USAR, ARR_BOOLEANO, ARR_SI, ARR_SI, ARR_SI, ARR_NO, ARR_NO, ARR_SI) \
    X(BYTE, arr_byte_t, elem_BYTE_NO_USAR, ARR_ENTERO, ARR_NO, ARR_SI, ARR_SI, ARR_NO, ARR_NO, ARR_NO) \
    X(UChar, arr_uchar_t, elem_UCHAR_NO_USAR, ARR_ENTERO, ARR_NO, ARR_NO, ARR_SI, ARR_NO, ARR_NO, ARR_NO) \
    X(Char, char, elem_CHAR_NO_USAR, ARR_ENTERO, ARR_NO, ARR_NO, ARR_NO, ARR_NO, ARR_NO, ARR_SI)   \
    X(Short, arr_short_t, elem_SHORT_NO_USAR, ARR_ENTERO, ARR_NO, ARR_NO, ARR_NO, ARR_NO, ARR_NO, ARR_NO) \
    X(UShort, arr_ushort_t, elem_USHORT_NO_USAR, ARR_ENTERO, ARR_NO, ARR_SI, ARR_SI, ARR_DELTA_SHORT, ARR_NO, ARR_SI) \
    X(Long, arr_long_t, elem_LONG_NO_USAR, ARR_ENTERO, ARR_NO, ARR_SI, ARR_SI, ARR_DELTA_LONG, ARR_NO, ARR_NO) \
    X(ULong, arr_ulong_t, elem_ULONG_NO_USAR, ARR_ENTERO, ARR_SI, ARR_SI, ARR_SI, ARR_DELTA_LONG, ARR_SI, ARR_SI) \
    X(Long64, arr_long64_t, elem_LONG64_NO_USAR, ARR_ENTERO, ARR_NO, ARR_SI, ARR_SI, ARR_DELTA_LONG64, ARR_NO, ARR_NO) \
    X(ULong64, arr_ulong64_t, elem_ULONG64_NO_USAR, ARR_ENTERO, ARR_SI, ARR_SI, ARR_SI, ARR_DELTA_LONG64, ARR_SI, ARR_SI) \
    X(Double, double, elem_DOUBLE_NO_USAR, ARR_REAL, ARR_SI, ARR_SI, ARR_SI, ARR_NO, ARR_SI, ARR_SI)

// The shared functions under the names of the families that are not scalar.
#define ARR_NOMBRES_DESTRUYE(X)                                                                    \
    X(arr_DestruyeBIT)                                                                             \
    X(arr_DestruyeCADENA)                                                                          \
    X(arr_DestruyeCADENA_u)                                                                        \
    X(arr_DestruyePunteroConTipo)                                                                  \
    X(arr_DestruyePunto2D)                                                                         \
    X(arr_DestruyePunto3D)                                                                         \
    X(arulong_destruye)                                                                            \
    X(arulong64_destruye)
#define ARR_NOMBRES_NUMELEMS(X)                                                                    \
    X(arr_NumElemsBIT)                                                                             \
    X(arr_NumElemsCADENA)                                                                          \
    X(arr_NumElemsCADENA_u)                                                                        \
    X(arr_NumElemsPunto2D)                                                                         \
    X(arr_NumElemsPunto3D)                                                                         \
    X(arulong_numelems)                                                                            \
    X(arulong64_numelems)
#define ARR_NOMBRES_COPIA(X)                                                                       \
    X(arr_CopiaBIT)                                                                                \
    X(arr_CopiaCADENA)                                                                             \
    X(arr_CopiaCADENA_u)                                                                           \
    X(arr_CopiaPunto2D)                                                                            \
    X(arr_CopiaPunto3D)                                                                            \
    X(arulong_copia)                                                                               \
    X(arulong64_copia)
#define ARR_NOMBRES_CONCATENA(X)                                                                   \
    X(arr_ConcatenaCADENA)                                                                         \
    X(arr_ConcatenaCADENA_u)                                                                       \
    X(arr_ConcatenaPunto2D)                                                                        \
    X(arr_ConcatenaPunto3D)                                                                        \
    X(arulong_concatena)                                                                           \
    X(arulong64_concatena)
#define ARR_NOMBRES_AUMENTA(X)                                                                     \
    X(arr_AumentaTamanyoBIT)                                                                       \
    X(arr_AumentaTamanyoCADENA_u)                                                                  \
    X(arr_AumentaTamanyoEstructurasConTipo)                                                        \
    X(arr_AumentaTamanyoPunto2D)                                                                   \
    X(arr_AumentaTamanyoPunto3D)
#define ARR_NOMBRES_REDUCE(X)                                                                      \
    X(arr_ReduceTamanyoBIT)                                                                        \
    X(arr_ReduceTamanyoCADENA)                                                                     \
    X(arr_ReduceTamanyoCADENA_u)                                                                   \
    X(arr_ReduceTamanyoPunto2D)                                                                    \
    X(arr_ReduceTamanyoPunto3D)                                                                    \
    X(arulong_reduce_tamanyo)                                                                      \
    X(arulong64_reduce_tamanyo)

// Each second name P_x of the family F with its arr_ twin: X(second name, arr_ name).
#define ARR_NOMBRES_ARULONG(X, P, F)                                                               \
    X(P##_append, arr_Append##F)                                                                   \
    X(P##_inserta, arr_Insertar##F)                                                                \
    X(P##_borra, arr_Borrar##F)                                                                    \
    X(P##_get, arr_Get##F)                                                                         \
    X(P##_set, arr_Set##F)                                                                         \
    X(P##_busca, arr_Buscar##F)                                                                    \
    X(P##_busca_unico, arr_BuscarUnico##F)                                                         \
    X(P##_existe, arr_Existe##F)                                                                   \
    X(P##_existe_unico, arr_ExisteUnico##F)                                                        \
    X(P##_qsort, arr_QSort##F)                                                                     \
    X(P##_iguales, arr_SonIguales##F)
