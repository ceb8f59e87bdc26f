// Helpers of the point tests.
#include "puntos/ayudas_puntos.h"

#include <random>
#include <set>

ARRAY *crea_puntos2D(const std::vector<P2> &puntos)
{
    ARRAY *array = arr_CreaPunto2D(0);
    for (const P2 &p : puntos)
        arr_AppendPunto2D(array, p[0], p[1]);
    return array;
}

ARRAY *crea_puntos2DX(const std::vector<P2> &puntos)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    for (const P2 &p : puntos)
        arr_AppendPunto2DXPriv(array, p[0], p[1], nullptr);
    return array;
}

ARRAY *crea_puntos3D(const std::vector<P3> &puntos)
{
    ARRAY *array = arr_CreaPunto3D(0);
    for (const P3 &p : puntos)
        arr_AppendPunto3D(array, p[0], p[1], p[2]);
    return array;
}

std::vector<P2> puntos2D(const ARRAY *array)
{
    std::vector<P2> puntos(arr_NumElemsPunto2D(array));
    for (ULONG i = 0; i < puntos.size(); ++i)
        arr_GetPunto2D(array, i, &puntos[i][0], &puntos[i][1]);
    return puntos;
}

std::vector<P3> puntos3D(const ARRAY *array)
{
    std::vector<P3> puntos(arr_NumElemsPunto3D(array));
    for (ULONG i = 0; i < puntos.size(); ++i)
        arr_GetPunto3D(array, i, &puntos[i][0], &puntos[i][1], &puntos[i][2]);
    return puntos;
}

std::vector<void *> datos_de(const ARRAY *array)
{
    std::vector<void *> datos(arr_NumElemsPunto2D(array));
    for (ULONG i = 0; i < datos.size(); ++i) {
        double x;
        double y;
        arr_GetPunto2DXPriv(array, i, &x, &y, &datos[i]);
    }
    return datos;
}

std::vector<P2> puntos_al_azar(size_t n, unsigned semilla)
{
    std::mt19937 generador(semilla);
    std::uniform_real_distribution<double> coordenada(-100.0, 100.0);
    std::vector<P2> puntos(n);
    for (P2 &p : puntos)
        p = {coordenada(generador), coordenada(generador)};
    return puntos;
}

ArrayDePunteros::ArrayDePunteros(const std::vector<ARRAY *> &arrays)
    : array_(arr_CreaPunteroConTipo(0)), num_(arrays.size())
{
    for (ARRAY *array : arrays)
        arr_AppendPunteroConTipo(array_, array);
}

ArrayDePunteros::~ArrayDePunteros()
{
    for (ULONG i = 0; i < num_; ++i)
        arr_SetPunteroConTipo(array_, i, nullptr);
    arr_DestruyePunteroConTipo(&array_);
}

BOOL iguales2D(double x1, double y1, double x2, double y2) { return x1 == x2 && y1 == y2; }

namespace {

int compara(double a, double b)
{
    if (a < b)
        return comparac_PRIMERO_MENOR;
    return a > b ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}

} // namespace

int orden2D(double x1, double y1, double x2, double y2)
{
    const int por_x = compara(x1, x2);
    return por_x != comparac_IGUALES ? por_x : compara(y1, y2);
}

BOOL iguales2DX(double x1, double y1, void *datos1, double x2, double y2, void *datos2)
{
    return x1 == x2 && y1 == y2 && datos1 == datos2;
}

int orden2DX(double x1, double y1, void *, double x2, double y2, void *)
{
    return orden2D(x1, y1, x2, y2);
}

BOOL iguales3D(double x1, double y1, double z1, double x2, double y2, double z2)
{
    return x1 == x2 && y1 == y2 && z1 == z2;
}

int orden3D(double x1, double y1, double z1, double x2, double y2, double z2)
{
    const int por_xy = orden2D(x1, y1, x2, y2);
    return por_xy != comparac_IGUALES ? por_xy : compara(z1, z2);
}

namespace datos_contados {
namespace {

std::set<const void *> bloques_vivos;
size_t num_copias = 0;
size_t num_destrucciones = 0;

} // namespace

void *nuevo(int valor)
{
    int *bloque = new int(valor);
    bloques_vivos.insert(bloque);
    return bloque;
}

int valor(const void *datos) { return *static_cast<const int *>(datos); }

void *copia(void *datos)
{
    ++num_copias;
    return nuevo(valor(datos));
}

void destruye(void **datos)
{
    if (*datos == nullptr)
        return;
    if (bloques_vivos.erase(*datos) == 0) {
        ADD_FAILURE() << "private data released twice or never made";
        return;
    }
    ++num_destrucciones;
    delete static_cast<int *>(*datos);
    *datos = nullptr;
}

size_t vivos() { return bloques_vivos.size(); }
size_t copias() { return num_copias; }
size_t destrucciones() { return num_destrucciones; }

void reinicia()
{
    bloques_vivos.clear();
    num_copias = 0;
    num_destrucciones = 0;
}

} // namespace datos_contados

void PruebaDatosPrivados::SetUp()
{
    PruebaArrays::SetUp();
    datos_contados::reinicia();
}

void PruebaDatosPrivados::TearDown()
{
    EXPECT_EQ(datos_contados::vivos(), 0u) << "private data left unreleased";
    PruebaArrays::TearDown();
}
