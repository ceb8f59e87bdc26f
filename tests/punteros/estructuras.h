// Support of the pointer-array tests: structures owned by the tests and counted while alive, the
// counting release and copy functions handed to the arrays, and a fixture that fails a test which
// leaves a structure alive.
#pragma once

#include "soporte/prueba_arrays.h"

#include <cstddef>
#include <initializer_list>
#include <vector>

struct Estructura {
    int valor;
};

// A new structure from tracked memory, counted as alive until libera_estructura frees it.
Estructura *nueva_estructura(int valor);
size_t estructuras_vivas();
bool esta_viva(const void *estructura);

// The `libera` of the tests: frees the structure in the slot (a NULL slot is counted too) and
// sets the slot to NULL. A structure that is not alive (freed twice) fails the test.
void libera_estructura(void **slot);
size_t llamadas_libera();
// The copy function of the tests: a new structure with the same value; NULL for NULL.
void *copia_estructura(const void *elemento);
size_t llamadas_copia();

// The value of a structure, or -1 for NULL.
int valor_de(const void *estructura);

// A pointer array holding the given pointers, and the pointers an array holds.
ARRAY *crea_punteros(std::initializer_list<const void *> punteros);
std::vector<void *> punteros_de(ARRAY *array);

// A function's address read at run time: the compiler may not fold a comparison of two names
// that the linker made one function.
template <typename F> const void *direccion_en_ejecucion(F *funcion)
{
    F *volatile leida = funcion;
    return reinterpret_cast<const void *>(leida);
}
// A structure array with a new structure per value, and the values it holds (-1 for NULL).
ARRAY *crea_estructuras(std::initializer_list<int> valores);
std::vector<int> valores_de(ARRAY *array);

// Every test starts with the call counters at zero and ends with as many structures alive as it
// found (besides the checks of PruebaArrays).
class PruebaPunteros : public PruebaArrays {
protected:
    void SetUp() override;
    void TearDown() override;

private:
    size_t vivas_al_empezar_ = 0;
};
