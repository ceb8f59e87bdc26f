// Helpers of the geometry tests: arrays built from point lists and read back, and the fixtures
// that own one.
#include "geometria/ayudas_geometria.h"

#include <cmath>
#include <ostream>

void PrintTo(const P &punto, std::ostream *salida)
{
    *salida << '(' << punto.x << ", " << punto.y << ')';
}

void espera_cerca(const P &visto, const P &esperado, double tolerancia)
{
    EXPECT_NEAR(visto.x, esperado.x, tolerancia);
    EXPECT_NEAR(visto.y, esperado.y, tolerancia);
}

ARRAY *crea_puntos(const Puntos &puntos)
{
    ARRAY *array = arr_CreaPunto2D(0);
    for (const P &punto : puntos)
        arr_AppendPunto2D(array, punto.x, punto.y);
    return array;
}

ARRAY *crea_puntos_con_datos(const Puntos &puntos)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    for (const P &punto : puntos)
        arr_AppendPunto2DXPriv(array, punto.x, punto.y, nullptr);
    return array;
}

Puntos puntos_de(const ARRAY *array)
{
    Puntos puntos(arr_NumElemsPunto2D(array));
    for (ULONG i = 0; i < puntos.size(); ++i)
        arr_GetPunto2D(array, i, &puntos[i].x, &puntos[i].y);
    return puntos;
}

double Azar::uniforme(double desde, double hasta)
{
    return std::uniform_real_distribution<double>(desde, hasta)(motor_);
}

size_t Azar::entero(size_t desde, size_t hasta)
{
    return std::uniform_int_distribution<size_t>(desde, hasta)(motor_);
}

double Azar::magnitud(double desde, double hasta)
{
    return std::exp(uniforme(std::log(desde), std::log(hasta)));
}

void ConPuntos::SetUp()
{
    PruebaArrays::SetUp();
    array_ = arr_CreaPunto2D(0);
}

void ConPuntos::TearDown()
{
    arr_DestruyePunto2D(&array_);
    PruebaArrays::TearDown();
}

void ConPuntosConDatos::SetUp()
{
    PruebaArrays::SetUp();
    array_ = arr_CreaPunto2DXPriv(0);
}

void ConPuntosConDatos::TearDown()
{
    arr_DestruyePunto2DXPriv(&array_, nullptr);
    PruebaArrays::TearDown();
}

bool ConPuntosConDatos::sin_datos() const
{
    return arr_TieneDatosExtrasAlgunPunto2DXPriv(array_) == FALSO;
}
