// Helpers of the geometry tests: arrays of either 2D point kind built from a list of points, their
// points read back, and fixtures that own such an array.
#pragma once

#include "soporte/prueba_arrays.h"

#include <cstdint>
#include <iosfwd>
#include <random>
#include <vector>

struct P {
    double x;
    double y;
    bool operator==(const P &) const = default;
};
using Puntos = std::vector<P>;

// Prints a point as (x, y) in test failure messages.
void PrintTo(const P &punto, std::ostream *salida);

// Expects each coordinate of `visto` within `tolerancia` of `esperado`.
void espera_cerca(const P &visto, const P &esperado, double tolerancia = 1e-15);

// A new plain 2D point array holding `puntos`.
ARRAY *crea_puntos(const Puntos &puntos);
// A new array of 2D points with private data (NULL) holding `puntos`.
ARRAY *crea_puntos_con_datos(const Puntos &puntos);
// The points of a 2D point array of either kind, in order.
Puntos puntos_de(const ARRAY *array);

// Reproducible random numbers for the tests that sweep many cases.
class Azar {
public:
    explicit Azar(uint64_t semilla) : motor_(semilla) {}
    double uniforme(double desde, double hasta);
    size_t entero(size_t desde, size_t hasta);
    // Log-uniform: spread evenly over the orders of magnitude between the two.
    double magnitud(double desde, double hasta);

private:
    std::mt19937_64 motor_;
};

// A test that owns one empty plain 2D point array, destroyed before the memory balance.
class ConPuntos : public PruebaArrays {
protected:
    void SetUp() override;
    void TearDown() override;

    ARRAY *array_ = nullptr;
};

// The same with an array of 2D points with private data.
class ConPuntosConDatos : public PruebaArrays {
protected:
    void SetUp() override;
    void TearDown() override;

    // Every point of the array has NULL data.
    bool sin_datos() const;

    ARRAY *array_ = nullptr;
};
