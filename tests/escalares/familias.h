// The scalar families as the typed tests see them: one traits struct per family, made from the
// family table of families/tabla_familias.h, naming its value type, its tag and its exports. An
// optional operation is a member only where the family exports it.
#pragma once

#include "arrays.h"
#include "families/tabla_familias.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#define ARR_RASGOS_FAMILIA(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO,        \
                           RECORRE)                                                               \
    struct Familia##F {                                                                           \
        using Valor = T;                                                                          \
        static constexpr tipo_elem_array tag = TAG;                                               \
        static constexpr const char *nombre = #F;                                                 \
        static constexpr auto crea = arr_Crea##F;                                                 \
        static constexpr auto destruye = arr_Destruye##F;                                         \
        static constexpr auto num_elems = arr_NumElems##F;                                        \
        static constexpr auto append = arr_Append##F;                                             \
        static constexpr auto inserta = arr_Insertar##F;                                          \
        static constexpr auto borra = arr_Borrar##F;                                              \
        static constexpr auto get = arr_Get##F;                                                   \
        static constexpr auto set = arr_Set##F;                                                   \
        static constexpr auto inicializa = arr_Inicializa##F;                                     \
        static constexpr auto busca = arr_Buscar##F;                                              \
        static constexpr auto busca_unico = arr_BuscarUnico##F;                                   \
        static constexpr auto existe = arr_Existe##F;                                             \
        static constexpr auto existe_unico = arr_ExisteUnico##F;                                  \
        static constexpr auto ordena = arr_QSort##F;                                              \
        static constexpr auto son_iguales = arr_SonIguales##F;                                    \
        static constexpr auto copia = arr_Copia##F;                                               \
        static constexpr auto concatena = arr_Concatena##F;                                       \
        APPENDN(static constexpr auto append_n = arr_AppendN##F##s;)                              \
        AUMENTA(static constexpr auto aumenta = arr_AumentaTamanyo##F;)                           \
        REDUCE(static constexpr auto reduce = arr_ReduceTamanyo##F;)                              \
        RECORRE(static constexpr auto recorre = arr_nousar_Recorre##F;)                           \
    };
ARR_FAMILIAS_ESCALARES(ARR_RASGOS_FAMILIA)
#undef ARR_RASGOS_FAMILIA

// ::testing::Types of the families of the table, in table order: all of them, or those that
// have an optional operation, or those whose values compare through predicates (all but BOOL,
// whose default order is also the only one that is not total).
template <typename Primero, typename... Resto> struct SinPrimero {
    using Tipos = ::testing::Types<Resto...>;
};
#define ARR_SI_PREDICADO_ARR_BOOLEANO(...)
#define ARR_SI_PREDICADO_ARR_ENTERO(...) __VA_ARGS__
#define ARR_SI_PREDICADO_ARR_REAL(...) __VA_ARGS__
#define ARR_COMA_FAMILIA(F, ...) , Familia##F
#define ARR_COMA_CON_PREDICADO(F, T, TAG, COMPARA, ...) ARR_SI_PREDICADO_##COMPARA(, Familia##F)
#define ARR_COMA_CON_APPENDN(F, T, TAG, COMPARA, APPENDN, ...) APPENDN(, Familia##F)
#define ARR_COMA_CON_AUMENTA(F, T, TAG, COMPARA, APPENDN, AUMENTA, ...) AUMENTA(, Familia##F)
#define ARR_COMA_CON_REDUCE(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, ...) REDUCE(, Familia##F)
#define ARR_COMA_CON_RECORRE(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO,       \
                             RECORRE)                                                             \
    RECORRE(, Familia##F)
using TodasLasFamilias = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_FAMILIA)>::Tipos;
using FamiliasConPredicado = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_CON_PREDICADO)>::Tipos;
using FamiliasConAppendN = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_CON_APPENDN)>::Tipos;
using FamiliasConAumenta = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_CON_AUMENTA)>::Tipos;
using FamiliasConReduce = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_CON_REDUCE)>::Tipos;
using FamiliasConRecorre = SinPrimero<void ARR_FAMILIAS_ESCALARES(ARR_COMA_CON_RECORRE)>::Tipos;

// Names the typed tests after the family: Familias/ULong64.InsertAtTheCountAppends.
struct NombreFamilia {
    template <typename F> static std::string GetName(int) { return F::nombre; }
};

// The most elements a row of the family holds (rows of 2048 bytes).
template <typename F> constexpr ULONG elementos_por_fila()
{
    return 2048 / sizeof(typename F::Valor);
}

// An exact equality predicate, for the families that need one.
template <typename V> BOOL iguales_exactos(V a, V b) { return a == b ? CIERTO : FALSO; }

// Calls a search or equality export with the predicate its family takes by default: none for
// BOOL, NULL (exact) for the integers, an exact predicate for Double.
template <typename F, typename Funcion, typename Primero, typename... Resto>
auto con_igualdad(Funcion funcion, ARRAY *array, Primero primero, Resto... resto)
{
    using V = typename F::Valor;
    if constexpr (std::is_invocable_v<Funcion, ARRAY *, Primero, Resto...>)
        return funcion(array, primero, resto...);
    else if constexpr (std::is_floating_point_v<V>)
        return funcion(array, primero, iguales_exactos<V>, resto...);
    else
        return funcion(array, primero, nullptr, resto...);
}

// A value spread over the whole range of the type (doubles over a wide finite range).
template <typename V> V aleatorio(std::mt19937_64 &generador)
{
    if constexpr (std::is_floating_point_v<V>)
        return std::uniform_real_distribution<V>(-1e9, 1e9)(generador);
    else
        return static_cast<V>(generador());
}

// The family's default ascending order: Char as signed 8-bit values on every platform.
template <typename V> bool precede(V a, V b)
{
    if constexpr (std::is_same_v<V, char>)
        return static_cast<signed char>(a) < static_cast<signed char>(b);
    else
        return a < b;
}

// A new array of the family holding `valores` in order.
template <typename F> ARRAY *array_con(std::initializer_list<typename F::Valor> valores)
{
    ARRAY *array = F::crea(0);
    for (typename F::Valor valor : valores)
        F::append(array, valor);
    return array;
}

// The elements of an array of the family, read one by one.
template <typename F> std::vector<typename F::Valor> contenido(ARRAY *array)
{
    std::vector<typename F::Valor> valores;
    for (ULONG i = 0; i < F::num_elems(array); ++i)
        valores.push_back(F::get(array, i));
    return valores;
}

// The elements of a new array of the family after append_n(array, num_veces, valor), with
// append_n one of the family's repeated appends.
template <typename F, typename AppendN>
std::vector<typename F::Valor> tras_append_n(AppendN append_n, ULONG num_veces,
                                             typename F::Valor valor)
{
    ARRAY *array = F::crea(0);
    append_n(array, num_veces, valor);
    std::vector<typename F::Valor> valores = contenido<F>(array);
    F::destruye(&array);
    return valores;
}
