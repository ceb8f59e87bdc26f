// The bisection against a model on random sorted arrays of 0 to 5000 elements with runs of equal
// keys: insertion positions, which equal element is hit, the bounds of a run, the number of
// comparisons, and ordered insertion.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <algorithm>
#include <bit>
#include <random>
#include <set>
#include <vector>

namespace {

size_t comparaciones = 0;

int compara_contando(const void *elemento, const void *dato)
{
    ++comparaciones;
    const int a = *static_cast<const int *>(elemento);
    const int b = *static_cast<const int *>(dato);
    return a < b ? comparac_PRIMERO_MENOR : a > b ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}

// Ascending keys from 10 with steps of 0 (the run goes on), 2 or 4, and now and then a long run.
std::vector<int> claves_aleatorias(size_t n, std::mt19937 &azar)
{
    std::vector<int> claves;
    std::discrete_distribution<int> paso({40, 50, 10});
    std::uniform_int_distribution<size_t> larga(0, 99);
    int clave = 10;
    while (claves.size() < n) {
        const size_t repeticiones = larga(azar) == 0 ? 1 + larga(azar) / 2 : 1;
        for (size_t i = 0; i < repeticiones && claves.size() < n; ++i)
            claves.push_back(clave);
        clave += 2 * paso(azar);
    }
    return claves;
}

// What the bisection answers, written over plain keys: the first element when equal, else the
// last when equal, else the midpoints in turn until one is equal or the interval closes.
struct Respuesta {
    size_t posicion;
    bool encontrado;
};

Respuesta modelo(const std::vector<int> &claves, int dato)
{
    const size_t n = claves.size();
    if (n == 0 || claves[0] >= dato)
        return {0, n > 0 && claves[0] == dato};
    if (claves[n - 1] <= dato)
        return claves[n - 1] == dato ? Respuesta{n - 1, true} : Respuesta{n, false};
    size_t bajo = 0;
    size_t alto = n - 1;
    while (alto - bajo >= 2) {
        const size_t medio = (bajo + alto) / 2;
        if (claves[medio] == dato)
            return {medio, true};
        (claves[medio] > dato ? alto : bajo) = medio;
    }
    return {alto, false};
}

// ceil(log2 n) for n >= 1.
size_t log2_por_arriba(size_t n) { return std::bit_width(n - 1); }

// Every size up to 64, the sizes around powers of two up to 5000, and random ones.
std::vector<size_t> tamanyos(std::mt19937 &azar)
{
    std::vector<size_t> lista;
    for (size_t n = 0; n <= 64; ++n)
        lista.push_back(n);
    for (size_t potencia = 128; potencia <= 4096; potencia *= 2)
        for (size_t n : {potencia - 1, potencia, potencia + 1})
            lista.push_back(n);
    lista.push_back(5000);
    std::uniform_int_distribution<size_t> cualquiera(65, 5000);
    for (int i = 0; i < 8; ++i)
        lista.push_back(cualquiera(azar));
    return lista;
}

// An array of pointers to the keys; odd sizes get rows of two pointers, so reads cross many rows.
ARRAY *array_de(std::vector<int> &claves)
{
    ARRAY *array = arr_CreaPunteroConTipoEx(0, claves.size() % 2 == 1 ? 16 : LONG_FILA_POR_DEFECTO);
    for (int &clave : claves)
        arr_AppendPunteroConTipo(array, &clave);
    return array;
}

// `n` random values from 0 to `maximo`.
std::vector<int> datos_aleatorios(size_t n, int maximo, unsigned semilla)
{
    std::mt19937 azar(semilla);
    std::uniform_int_distribution<int> valor(0, maximo);
    std::vector<int> datos(n);
    for (int &dato : datos)
        dato = valor(azar);
    return datos;
}

// The integers the elements of an array point to.
std::vector<int> enteros_de(ARRAY *array)
{
    std::vector<int> enteros;
    for (void *puntero : punteros_de(array))
        enteros.push_back(*static_cast<int *>(puntero));
    return enteros;
}

class ModeloDicotomica : public PruebaPunteros {
protected:
    // Calls comprueba(claves, array, dato) for every datum from below the smallest key to above
    // the largest, over a fresh array of random keys for every size.
    template <typename Comprueba> void para_cada_dato(Comprueba &&comprueba)
    {
        std::mt19937 azar(20240611);
        for (size_t n : tamanyos(azar)) {
            std::vector<int> claves = claves_aleatorias(n, azar);
            ARRAY *array = array_de(claves);
            const int desde = claves.empty() ? 0 : claves.front() - 1;
            const int hasta = claves.empty() ? 1 : claves.back() + 1;
            for (int dato = desde; dato <= hasta; ++dato) {
                SCOPED_TRACE(::testing::Message() << "n " << n << ", datum " << dato);
                comprueba(claves, array, dato);
                if (HasFailure())
                    break;
            }
            arr_DestruyeEstructurasConstConTipo(&array);
            if (HasFailure())
                return;
        }
    }
};

TEST_F(ModeloDicotomica, InsertionPositionAndHitMatchTheModel)
{
    para_cada_dato([](const std::vector<int> &claves, ARRAY *array, int dato) {
        const ULONG posicion =
            arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, compara_contando, &dato);
        const Respuesta esperada = modelo(claves, dato);
        ASSERT_EQ(posicion, esperada.posicion);
        const auto [inicio, fin] = std::equal_range(claves.begin(), claves.end(), dato);
        if (esperada.encontrado) {
            // The hit is one of the equal elements: the first element, the last, or a midpoint.
            EXPECT_GE(posicion, size_t(inicio - claves.begin()));
            EXPECT_LT(posicion, size_t(fin - claves.begin()));
        } else {
            // Without equals: the first element greater than the datum, or the count.
            EXPECT_EQ(inicio, fin);
            EXPECT_EQ(posicion, size_t(inicio - claves.begin()));
        }
    });
}

TEST_F(ModeloDicotomica, RunBoundsAreTheFirstAndLastEqualElements)
{
    para_cada_dato([](const std::vector<int> &claves, ARRAY *array, int dato) {
        ULONG primero = 0;
        ULONG ultimo = 0;
        arr_BuscarEstructuraDicotomicamenteConTipo(array, &dato, compara_contando, &primero, &ultimo);
        const auto [inicio, fin] = std::equal_range(claves.begin(), claves.end(), dato);
        const bool hay_racha = inicio != fin;
        EXPECT_EQ(primero, hay_racha ? ULONG(inicio - claves.begin()) : ARR_ULONG_MAX);
        EXPECT_EQ(ultimo, hay_racha ? ULONG(fin - claves.begin() - 1) : ARR_ULONG_MAX);
        EXPECT_EQ(arr_ExisteEstructuraDicotomicamenteConTipo(array, &dato, compara_contando, nullptr, nullptr),
                  hay_racha ? CIERTO : FALSO);
    });
}

TEST_F(ModeloDicotomica, ComparisonsStayWithinTheEndsPlusOnePerHalving)
{
    para_cada_dato([](const std::vector<int> &claves, ARRAY *array, int dato) {
        comparaciones = 0;
        arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, compara_contando, &dato);
        const size_t n = claves.size();
        EXPECT_LE(comparaciones, n == 0 ? 0 : 2 + log2_por_arriba(n));
    });
}

TEST_F(ModeloDicotomica, RunSearchAddsTheRecheckTheRunAndItsTwoNeighbours)
{
    para_cada_dato([](const std::vector<int> &claves, ARRAY *array, int dato) {
        comparaciones = 0;
        arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, compara_contando, &dato);
        const size_t biseccion = comparaciones;
        comparaciones = 0;
        ULONG primero = 0;
        ULONG ultimo = 0;
        arr_BuscarEstructuraDicotomicamenteConTipo(array, &dato, compara_contando, &primero, &ultimo);
        const size_t n = claves.size();
        size_t esperadas = biseccion;
        if (primero != ARR_ULONG_MAX) {
            const size_t racha = ultimo - primero + 1;
            // The hit compared again, the other elements of the run, and the neighbours that end it.
            esperadas += racha + (primero > 0 ? 1 : 0) + (ultimo < n - 1 ? 1 : 0);
            EXPECT_LE(comparaciones, 2 + log2_por_arriba(n) + racha + 2);
        }
        EXPECT_EQ(comparaciones, esperadas);
    });
}

TEST_F(ModeloDicotomica, OrderedInsertionPutsEachPointerAtTheModelsPosition)
{
    std::vector<int> datos = datos_aleatorios(3000, 400, 7);
    std::vector<int> en_orden;
    ARRAY *array = arr_CreaPunteroConTipo(0);
    for (int &dato : datos) {
        const size_t esperada = modelo(en_orden, dato).posicion;
        arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(array, compara_contando, &dato);
        ASSERT_EQ(arr_GetPunteroConTipo(array, static_cast<ULONG>(esperada)), &dato);
        en_orden.insert(en_orden.begin() + static_cast<std::ptrdiff_t>(esperada), dato);
    }
    EXPECT_EQ(enteros_de(array), en_orden);
    EXPECT_TRUE(std::is_sorted(en_orden.begin(), en_orden.end()));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(ModeloDicotomica, InsertIfAbsentInsertsEachKeyOnceAndTellsWhetherItWasThere)
{
    std::vector<int> datos = datos_aleatorios(2000, 300, 11);
    std::set<int> presentes;
    ARRAY *array = arr_CreaPunteroConTipo(0);
    for (int &dato : datos) {
        BOOL encontrado = FALSO;
        arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(array, compara_contando, &dato, &encontrado);
        ASSERT_EQ(encontrado, presentes.count(dato) == 1 ? CIERTO : FALSO);
        presentes.insert(dato);
    }
    EXPECT_EQ(enteros_de(array), std::vector<int>(presentes.begin(), presentes.end()));
    arr_DestruyeEstructurasConstConTipo(&array);
}

} // namespace
