// What every benchmark shares: the sizes, reproducible random positions, and the registration of
// one benchmark for this library and each peer, named "operation/container/size".
#pragma once

#include "contenedores.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

// Random positions below `limite`, the same sequence in every run.
inline std::vector<size_t> posiciones_aleatorias(size_t cuantas, size_t limite, unsigned semilla = 42)
{
    std::mt19937_64 generador(semilla);
    std::vector<size_t> posiciones(cuantas);
    for (size_t &p : posiciones)
        p = generador() % limite;
    return posiciones;
}

// Random doubles, the same sequence in every run.
inline std::vector<double> valores_aleatorios(size_t cuantos, unsigned semilla = 7)
{
    std::mt19937_64 generador(semilla);
    std::uniform_real_distribution<double> distribucion(-1e6, 1e6);
    std::vector<double> valores(cuantos);
    for (double &v : valores)
        v = distribucion(generador);
    return valores;
}

// Registers `funcion<C>` as "operacion/C::nombre" for each size.
template <typename C, typename Funcion>
void registra(const std::string &operacion, Funcion funcion, std::initializer_list<int64_t> tamanyos)
{
    auto *b = benchmark::RegisterBenchmark((operacion + "/" + C::nombre).c_str(), funcion);
    for (int64_t n : tamanyos)
        b->Arg(n);
    b->Unit(benchmark::kNanosecond);
}

// Registers one benchmark template for this library and every peer in `Peers`, size by size: the
// containers measured on one size run one after another, so that on a machine whose speed drifts
// a ratio compares measurements taken close together rather than an operation's whole run apart.
template <template <typename> class Banco, typename... Peers>
void registra_todos(const std::string &operacion, std::initializer_list<int64_t> tamanyos)
{
    for (int64_t n : tamanyos)
        (registra<Peers>(operacion, Banco<Peers>::corre, {n}), ...);
}

#define ARR_TODOS_LOS_CONTENEDORES Arrays, Vector, Deque, BoostDeque, StableVector, Garray, Gsequence
