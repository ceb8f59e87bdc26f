// Support of the traversal tests: arrays of any tag, arrays of doubles that hold their own
// indexes, an action that records what it visits, and the loop-guard switch put back to its
// initial 1 after each test.
#pragma once

#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"

#include <initializer_list>
#include <vector>

// The caller's place that the tests hand to the traversals.
inline constexpr const char *UBICACION_PRUEBA = "prueba (RECORRIDO)";

class PruebaRecorrido : public PruebaArrays {
protected:
    void TearDown() override;

    // An array of `num` zero elements of the tag, made by the engine (the engine reports a
    // pointer array made this way, which the pointer family makes itself: that report is taken).
    ARRAY *crea_de_tipo(tipo_elem_array tipo, ULONG num);
    // A pointer array holding these pointers in order.
    ARRAY *crea_punteros(std::initializer_list<void *> punteros);
};

// `num` doubles whose values are their indexes: 0, 1, ..., num - 1.
ARRAY *crea_indices(ULONG num);
// The values 0, 1, ..., num - 1, and desde, ..., hasta.
std::vector<double> indices(ULONG num);
std::vector<double> indices(ULONG desde, ULONG hasta);

// Records the value of each visited double in the std::vector<double> given as datos.
BOOL anota_valor(double *elemento, void *datos);

// An action table with only the double member set.
fnc_accion acciones_double(BOOL (*accion)(double *elemento, void *datos));
