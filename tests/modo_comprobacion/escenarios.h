// The two situations that behave differently with and without checking mode: an append on a
// header whose prefix sums are wrong, and an append from inside a read traversal.
#pragma once

#include "arrays.h"

#include <string>
#include <vector>

// 300 doubles in two rows (256 and 44) whose second prefix sum is one short.
ARRAY *crea_con_suma_corrupta();
// What the full check reports on that header: the wrong prefix sum and the total that rests on it.
inline const std::vector<std::string> INFORMES_SUMA_CORRUPTA = {
    "array->acumulado_filas[i] == array->acumulado_filas[i - 1] + array->long_filas[i - 1]",
    "array->acumulado_filas[array->num_filas - 1] + array->long_filas[array->num_filas - 1] == "
    "array->num_elems"};
// Puts the prefix sum right again, so that the array can be destroyed.
void repara_suma(ARRAY *array);

// Appends one double to `array` from the action of a read traversal of it.
void append_dentro_de_lectura(ARRAY *array);
