// Support of the pointer-array tests: counted structures and the counting callbacks.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"
#include "services/memoria.h"

#include <set>

namespace {

std::set<const void *> vivas;
size_t num_llamadas_libera = 0;
size_t num_llamadas_copia = 0;

} // namespace

Estructura *nueva_estructura(int valor)
{
    auto *estructura = static_cast<Estructura *>(zarpspy_nousar_malloc(sizeof(Estructura)));
    estructura->valor = valor;
    vivas.insert(estructura);
    return estructura;
}

size_t estructuras_vivas() { return vivas.size(); }

bool esta_viva(const void *estructura) { return vivas.count(estructura) == 1; }

void libera_estructura(void **slot)
{
    ++num_llamadas_libera;
    if (*slot == nullptr)
        return;
    if (vivas.erase(*slot) != 1) {
        ADD_FAILURE() << "a structure released that is not alive (released twice?)";
        return;
    }
    zarpspy_nousar_free_pp(slot, sizeof(Estructura));
}

size_t llamadas_libera() { return num_llamadas_libera; }

void *copia_estructura(const void *elemento)
{
    ++num_llamadas_copia;
    return elemento != nullptr ? nueva_estructura(valor_de(elemento)) : nullptr;
}

size_t llamadas_copia() { return num_llamadas_copia; }

int valor_de(const void *estructura)
{
    return estructura != nullptr ? static_cast<const Estructura *>(estructura)->valor : -1;
}

ARRAY *crea_punteros(std::initializer_list<const void *> punteros)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    for (const void *puntero : punteros)
        arr_AppendPunteroConstConTipo(array, puntero);
    return array;
}

std::vector<void *> punteros_de(ARRAY *array)
{
    std::vector<void *> punteros;
    for (ULONG i = 0; i < arrayprv_num_elems(array); ++i)
        punteros.push_back(arr_GetPunteroConTipo(array, i));
    return punteros;
}

ARRAY *crea_estructuras(std::initializer_list<int> valores)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    for (int valor : valores)
        arr_AppendPunteroConTipo(array, nueva_estructura(valor));
    return array;
}

std::vector<int> valores_de(ARRAY *array)
{
    std::vector<int> valores;
    for (void *puntero : punteros_de(array))
        valores.push_back(valor_de(puntero));
    return valores;
}

void PruebaPunteros::SetUp()
{
    PruebaArrays::SetUp();
    num_llamadas_libera = 0;
    num_llamadas_copia = 0;
    vivas_al_empezar_ = vivas.size();
}

void PruebaPunteros::TearDown()
{
    EXPECT_EQ(vivas.size(), vivas_al_empezar_) << "structures left alive";
    PruebaArrays::TearDown();
}
