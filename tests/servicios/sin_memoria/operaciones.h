// The rows of the out-of-memory sweep, one per public export that asks the system for memory,
// family by family, and the shapes most rows share: an operation that changes an array in place,
// one that makes a new array from another, one that appends one array to another.
#pragma once

#include "servicios/sin_memoria/caso.h"

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

std::vector<Operacion> operaciones_escalares();
std::vector<Operacion> operaciones_cadenas();
std::vector<Operacion> operaciones_punteros();
std::vector<Operacion> operaciones_puntos();
std::vector<Operacion> operaciones_geometria();
std::vector<Operacion> operaciones_varias();

// Notes what an operation returned, when it returns anything.
template <typename Llamada> void llama_y_anota(Caso &caso, Llamada &&llamada)
{
    if constexpr (std::is_void_v<decltype(llamada())>)
        caso.llama(llamada);
    else
        caso.anota(std::to_string(caso.llama(llamada)));
}

// `opera(array)` on the array that `prepara()` makes.
template <typename Prepara, typename Opera>
Operacion cambia(std::string nombre, Prepara prepara, Opera opera, Clase clase = Clase::plana)
{
    return {std::move(nombre), [=](Caso &caso) {
                ARRAY *array = caso.guarda(prepara(), clase);
                llama_y_anota(caso, [&] { return opera(array); });
            }};
}

// The new array `hace(array)` makes from the array that `prepara()` makes.
template <typename Prepara, typename Hace>
Operacion hace(std::string nombre, Prepara prepara, Hace hace, Clase clase = Clase::plana)
{
    return {std::move(nombre), [=](Caso &caso) {
                ARRAY *array = caso.guarda(prepara(), clase);
                caso.guarda(caso.llama([&] { return hace(array); }), clase);
            }};
}

// `une(destino, origen)` on two arrays that `prepara()` makes.
template <typename Prepara, typename Une>
Operacion une(std::string nombre, Prepara prepara, Une une, Clase clase = Clase::plana)
{
    return {std::move(nombre), [=](Caso &caso) {
                ARRAY *destino = caso.guarda(prepara(), clase);
                ARRAY *origen = caso.guarda(prepara(), clase);
                caso.llama([&] { une(destino, origen); });
            }};
}

// An array of three rows, the last of one element, whose row tables had room for eight rows:
// deleting that element takes its row away and leaves the tables a quarter used, so they shrink.
// `lleno(num)` gives an array of `num` elements in full rows of `fila`; `borra(array, pos)`
// deletes and releases one.
template <typename Lleno, typename Borra> auto para_borrar(Lleno lleno, Borra borra, ULONG fila)
{
    return [=] {
        ARRAY *array = lleno(4 * fila + 1)();
        for (ULONG i = 0; i < 2 * fila; ++i)
            borra(array, 4 * fila - i);
        return array;
    };
}

// An array of 64 full rows and more, its first row split by an insert at 0: its reads by position
// go through the direct table, which the first of them builds. `crea(num)` makes an array of
// `num` elements in full rows of `fila`; `inserta(array)` inserts at 0.
template <typename Crea, typename Inserta> auto para_leer(Crea crea, Inserta inserta, ULONG fila)
{
    return [=] {
        ARRAY *array = crea(64 * fila + 1);
        inserta(array);
        return array;
    };
}

// A new array of `num` elements from `crea`.
template <typename Crea>
Operacion crea(std::string nombre, Crea crea, ULONG num, Clase clase = Clase::plana)
{
    return {std::move(nombre),
            [=](Caso &caso) { caso.guarda(caso.llama([&] { return crea(num); }), clase); }};
}
