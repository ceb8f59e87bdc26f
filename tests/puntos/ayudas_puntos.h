// Helpers of the point tests: arrays built from lists of points, their contents read back,
// random point sets, typed pointer arrays holding point arrays, and private data that counts
// its copies and releases.
#pragma once

#include "soporte/prueba_arrays.h"

#include "arrays.h"

#include <array>
#include <cstddef>
#include <vector>

using P2 = std::array<double, 2>;
using P3 = std::array<double, 3>;

ARRAY *crea_puntos2D(const std::vector<P2> &puntos);
ARRAY *crea_puntos2DX(const std::vector<P2> &puntos);
ARRAY *crea_puntos3D(const std::vector<P3> &puntos);

// Every point, read through the public interface (either kind of 2D array for puntos2D).
std::vector<P2> puntos2D(const ARRAY *array);
std::vector<P3> puntos3D(const ARRAY *array);
// The data pointer of every point of a private-data array.
std::vector<void *> datos_de(const ARRAY *array);

// n points with coordinates drawn uniformly from [-100, 100), the same for the same semilla.
std::vector<P2> puntos_al_azar(size_t n, unsigned semilla);

// A typed pointer array holding the given arrays for the helper's lifetime. The pointers are
// not owned: the arrays they name are destroyed by the caller.
class ArrayDePunteros {
public:
    explicit ArrayDePunteros(const std::vector<ARRAY *> &arrays);
    ~ArrayDePunteros();
    ArrayDePunteros(const ArrayDePunteros &) = delete;
    ArrayDePunteros &operator=(const ArrayDePunteros &) = delete;
    ARRAY *get() const { return array_; }

private:
    ARRAY *array_;
    size_t num_;
};

// Predicates and comparators in the callback shapes of the point families.
BOOL iguales2D(double x1, double y1, double x2, double y2);
int orden2D(double x1, double y1, double x2, double y2);
BOOL iguales2DX(double x1, double y1, void *datos1, double x2, double y2, void *datos2);
int orden2DX(double x1, double y1, void *datos1, double x2, double y2, void *datos2);
BOOL iguales3D(double x1, double y1, double z1, double x2, double y2, double z2);
int orden3D(double x1, double y1, double z1, double x2, double y2, double z2);

// Private data that keeps account of itself: every block made, copied and released is counted,
// and releasing a block that is not live is a test failure (a double free).
namespace datos_contados {
void *nuevo(int valor);
int valor(const void *datos);
void *copia(void *datos);
void destruye(void **datos);
size_t vivos();
size_t copias();
size_t destrucciones();
void reinicia();
} // namespace datos_contados

// Point tests whose private data must all be released by the end of each test.
class PruebaDatosPrivados : public PruebaArrays {
protected:
    void SetUp() override;
    void TearDown() override;
};
