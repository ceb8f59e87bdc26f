// Positions: an index maps to (row, offset) through the row counts and prefix sums; a position
// can be advanced, checked, and turned into an element's address.
#include "core/arrayprv.h"

#include "services/informes.h"

#include <algorithm>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// Below this many rows a linear walk over the row counts beats the bisection.
constexpr size_t FILAS_BUSQUEDA_LINEAL = 10;

bool busca_lineal(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    size_t resto = real_pos - array->long_filas[0];
    for (size_t fila = 1; fila < array->num_filas; ++fila) {
        if (resto < array->long_filas[fila]) {
            *posi = {fila, resto};
            return true;
        }
        resto -= array->long_filas[fila];
    }
    return ARR_EXIGE(false, "encontrado");
}

// Bisection over the prefix sums; the target lies past row 0.
bool busca_dicotomica(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    ARR_EXIGE(array->num_filas > 1, "array->num_filas > 1");
    size_t fila_ini = 0;
    size_t fila_fin = array->num_filas - 1;
    size_t fila = array->num_filas / 2;
    // Invariant: the target row, if any, lies in fila_ini .. fila_fin, and fila lies there too.
    while (!(array->acumulado_filas[fila] <= real_pos &&
             real_pos < array->acumulado_filas[fila] + array->long_filas[fila])) {
        if (array->acumulado_filas[fila] < real_pos) {
            ARR_EXIGE(fila < array->num_filas - 1, "fila < array->num_filas - 1");
            fila_ini = fila + 1;
        } else {
            if (!ARR_EXIGE(fila > 1, "fila > 1") && fila == 0)
                return false;
            fila_fin = fila - 1;
        }
        fila = (fila_ini + fila_fin) / 2;
        if (!ARR_EXIGE(fila_ini <= fila && fila <= fila_fin, "fila_ini <= fila && fila <= fila_fin"))
            return false;
    }
    *posi = {fila, real_pos - array->acumulado_filas[fila]};
    return true;
}

} // namespace

bool arrayprv_posicion(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    if (arrayprv_posicion_rapida(array, real_pos, posi)) [[likely]]
        return true;
    const bool hay_elementos = ARR_EXIGE(array->num_elems > 0, "array->num_elems > 0");
    const bool dentro = ARR_EXIGE(real_pos < array->num_elems, "real_pos < array->num_elems");
    if (!(hay_elementos && dentro) || array->num_filas == 0)
        return false;
    if (real_pos < array->long_filas[0]) {
        *posi = {0, real_pos};
        return true;
    }
    if (array->num_filas < FILAS_BUSQUEDA_LINEAL)
        return busca_lineal(array, real_pos, posi);
    return busca_dicotomica(array, real_pos, posi);
}

void arrayprv_siguiente_posicion(const ARRAY *array, posicion_array *posi)
{
    if (arrayprv_es_modo_comprobacion() && !arrayprv_comprueba_posicion(array, posi))
        return;
    if (posi->pos + 1 >= array->long_filas[posi->fila]) {
        ++posi->fila;
        posi->pos = 0;
        if (ARR_EXIGE(posi->fila < array->num_filas, "posi->fila < array->num_filas"))
            ARR_EXIGE(array->long_filas[posi->fila] > 0, "array->long_filas[posi->fila] > 0");
    } else {
        ++posi->pos;
    }
}

bool arrayprv_comprueba_posicion(const ARRAY *array, const posicion_array *posi)
{
    return ARR_EXIGE(array != nullptr, "(array) != NULL") &&
           ARR_EXIGE(array->mascara_debug == MASCARA_DEBUG, "array->mascara_debug == MASCARA_DEBUG") &&
           ARR_EXIGE(array->long_filas != nullptr, "(array->long_filas) != NULL") &&
           ARR_EXIGE(posi != nullptr, "(posi) != NULL") &&
           ARR_EXIGE(posi->fila < array->num_filas, "posi->fila < array->num_filas") &&
           ARR_EXIGE(posi->pos < array->long_filas[posi->fila],
                     "posi->pos < array->long_filas[posi->fila]");
}

void *arrayprv_direccion_elemento(const ARRAY *array, const posicion_array *posi,
                                  tipo_elem_array tipo_elem)
{
    if (!arrayprv_comprueba_posicion(array, posi) ||
        !ARR_EXIGE(array->tipo_elem == tipo_elem, "array->tipo_elem == tipo_elem"))
        return nullptr;
    return array->buffer[posi->fila] + posi->pos * array->size_elem;
}
