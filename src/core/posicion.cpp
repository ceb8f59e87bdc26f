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

// Rows of prefix sums compared at once around a predicted row.
constexpr size_t VENTANA = 8;

// In the window of VENTANA rows around `centro`, the rows whose prefix sum is not above the index
// are those up to the one that holds it: counting them, without branches, names that row if it
// lies in the window. Needs num_filas >= VENTANA; the caller confirms the row.
size_t fila_en_ventana(const size_t *acumulado, size_t num_filas, size_t centro, ULONG real_pos)
{
    const size_t base =
        std::min(centro > VENTANA / 2 ? centro - VENTANA / 2 : 0, num_filas - VENTANA);
    size_t cuenta = 0;
    for (size_t k = 0; k < VENTANA; ++k)
        cuenta += acumulado[base + k] <= real_pos ? 1 : 0;
    return cuenta > 0 ? base + cuenta - 1 : base;
}

} // namespace

bool arrayprv_posicion_irregular(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    const size_t num_filas = array->num_filas;
    const size_t num_elems = array->num_elems;
    if (real_pos >= num_elems || num_filas == 0)
        return false;
    const size_t *const acumulado = array->acumulado_filas;
    const size_t *const long_filas = array->long_filas;
    const auto contiene = [&](size_t fila) {
        return acumulado[fila] <= real_pos && real_pos - acumulado[fila] < long_filas[fila];
    };
    const auto encontrada = [&](size_t fila) {
        *posi = {fila, real_pos - acumulado[fila]};
        return true;
    };
    if (num_filas >= VENTANA) {
        // The window's centre: the guide's row when there is a guide (a stale one is off by a
        // few rows), else the row the average row length predicts, corrected once by how many
        // elements its prefix sum is off, at the same average.
        size_t centro;
        if (arrayprv_fila_guiada(arrayprv_guia(array), real_pos, centro)) {
            centro = std::min(centro, num_filas - 1);
        } else {
            const double filas_por_elemento =
                static_cast<double>(num_filas) / static_cast<double>(num_elems);
            const auto acotada = [&](double fila) {
                return fila <= 0 ? size_t{0} : std::min(static_cast<size_t>(fila), num_filas - 1);
            };
            const size_t prevista = acotada(real_pos * filas_por_elemento);
            const double desvio = static_cast<double>(real_pos) - static_cast<double>(acumulado[prevista]);
            centro = acotada(static_cast<double>(prevista) + desvio * filas_por_elemento);
        }
        const size_t fila = fila_en_ventana(acumulado, num_filas, centro, real_pos);
        if (contiene(fila))
            return encontrada(fila);
    }
    // Bisection for the last row whose prefix sum is not above the index.
    size_t desde = 0;
    size_t hasta = num_filas;
    while (hasta - desde > 1) {
        const size_t medio = desde + (hasta - desde) / 2;
        if (acumulado[medio] <= real_pos)
            desde = medio;
        else
            hasta = medio;
    }
    return contiene(desde) && encontrada(desde);
}

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
           ARR_EXIGE(arrayprv_marca_valida(array), "array->mascara_debug == MASCARA_DEBUG") &&
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
