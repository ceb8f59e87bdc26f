// Helpers of the engine tests.
#include "motor/ayudas_motor.h"

#include <cstring>

namespace {

// A row table of num_filas entries as a vector (empty when the table is NULL).
std::vector<size_t> tabla(const size_t *datos, size_t num_filas)
{
    return datos == nullptr ? std::vector<size_t>{} : std::vector<size_t>(datos, datos + num_filas);
}

} // namespace

ARRAY *crea_doubles_en_filas(const std::vector<size_t> &cuentas, ULONG long_fila_en_bytes)
{
    ARRAY *array = arrayprv_crea(0, elem_DOUBLE_NO_USAR, long_fila_en_bytes);
    for (size_t cuenta : cuentas)
        arrayprv_anyade_filas(array, cuenta);
    for (ULONG i = 0; i < array->num_elems; ++i)
        arr_SetDouble(array, i, i + 1.0);
    return array;
}

ARRAY *crea_doubles_anyadidos(ULONG n, ULONG long_fila_en_bytes)
{
    ARRAY *array = arrayprv_crea(0, elem_DOUBLE_NO_USAR, long_fila_en_bytes);
    for (ULONG i = 1; i <= n; ++i)
        arr_AppendDouble(array, i);
    return array;
}

ARRAY *crea_cadenas(std::initializer_list<const char *> textos)
{
    ARRAY *array = arrayprv_crea(0, elem_CADENA_NO_USAR, LONG_FILA_POR_DEFECTO);
    for (const char *texto : textos) {
        char *cadena = cad_copia_cadena(texto);
        arrayprv_append(array, &cadena, elem_CADENA_NO_USAR);
    }
    return array;
}

std::vector<double> numerados(size_t desde, size_t hasta)
{
    std::vector<double> valores;
    for (size_t i = desde; i <= hasta; ++i)
        valores.push_back(static_cast<double>(i));
    return valores;
}

std::vector<double> contenido(ARRAY *array)
{
    std::vector<double> valores;
    for (ULONG i = 0; i < arr_NumElemsDouble(array); ++i)
        valores.push_back(arr_GetDouble(array, i));
    return valores;
}

bool sin_filas(const ARRAY *array)
{
    return array->num_filas == 0 && array->buffer == nullptr && array->long_filas == nullptr &&
           array->max_long_filas == nullptr && array->acumulado_filas == nullptr;
}

std::vector<size_t> longitudes(const ARRAY *array)
{
    return tabla(array->long_filas, array->num_filas);
}

std::vector<size_t> capacidades(const ARRAY *array)
{
    return tabla(array->max_long_filas, array->num_filas);
}

std::vector<size_t> acumulados(const ARRAY *array)
{
    return tabla(array->acumulado_filas, array->num_filas);
}

void comprueba_filas_calculables(const ARRAY *array)
{
    const GuiaFilas &guia = arrayprv_guia(array);
    const size_t calculables = guia.indices_calculables;
    const size_t num_elems = array->num_elems;
    ASSERT_LE(calculables, num_elems);
    if (calculables == 0)
        return;
    const size_t long_max = array->long_max_fila_en_elem;
    ASSERT_EQ(size_t{1} << guia.log_long_fila, long_max);
    const std::vector<size_t> cuentas = longitudes(array);
    const size_t filas = calculables >> guia.log_long_fila;
    ASSERT_EQ(filas << guia.log_long_fila, calculables);
    ASSERT_LE(filas, cuentas.size());
    for (size_t fila = 0; fila < filas; ++fila)
        ASSERT_EQ(cuentas[fila], long_max) << "row " << fila;
}

double double_en(const ARRAY *array, size_t fila, size_t pos)
{
    double valor;
    std::memcpy(&valor, array->buffer[fila] + pos * sizeof valor, sizeof valor);
    return valor;
}

std::tuple<size_t, size_t> fila_y_pos(const posicion_array &posi) { return {posi.fila, posi.pos}; }

std::tuple<size_t, size_t> posicion_contada(const std::vector<size_t> &longitudes, size_t indice)
{
    size_t fila = 0;
    while (indice >= longitudes[fila])
        indice -= longitudes[fila++];
    return {fila, indice};
}

void comprueba_todas_las_posiciones(const ARRAY *array)
{
    const std::vector<size_t> cuentas = longitudes(array);
    for (ULONG indice = 0; indice < array->num_elems; ++indice) {
        posicion_array posi{};
        ASSERT_TRUE(arrayprv_posicion(array, indice, &posi)) << "index " << indice;
        ASSERT_EQ(fila_y_pos(posi), posicion_contada(cuentas, indice)) << "index " << indice;
    }
}
