// Checking mode and the full consistency check of a header and its rows, plus the validity
// query that other modules use without reports.
#include "core/arrayprv.h"

#include "services/informes.h"
#include "services/plataforma.h"

#include <atomic>
#include <cstring>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// Each row exists and is not empty, its count fits its capacity and its capacity fits the
// maximum row length.
void comprueba_cada_fila(const ARRAY *array)
{
    for (size_t i = 0; i < array->num_filas; ++i) {
        ARR_EXIGE(array->buffer[i], "array->buffer[i]");
        ARR_EXIGE(array->long_filas[i] > 0, "array->long_filas[i] > 0");
        ARR_EXIGE(array->long_filas[i] <= array->max_long_filas[i],
                  "array->long_filas[i] <= array->max_long_filas[i]");
        ARR_EXIGE(array->max_long_filas[i] <= array->long_max_fila_en_elem,
                  "array->max_long_filas[i] <= array->long_max_fila_en_elem");
    }
}

// The prefix sums start at 0, are exact, and add up to num_elems.
void comprueba_acumulados(const ARRAY *array)
{
    ARR_EXIGE(array->acumulado_filas[0] == 0, "array->acumulado_filas[0] == 0");
    for (size_t i = 1; i < array->num_filas; ++i)
        ARR_EXIGE(array->acumulado_filas[i] ==
                      array->acumulado_filas[i - 1] + array->long_filas[i - 1],
                  "array->acumulado_filas[i] == array->acumulado_filas[i - 1] + "
                  "array->long_filas[i - 1]");
    const size_t ultima = array->num_filas - 1;
    ARR_EXIGE(array->acumulado_filas[ultima] + array->long_filas[ultima] == array->num_elems,
              "array->acumulado_filas[array->num_filas - 1] + "
              "array->long_filas[array->num_filas - 1] == array->num_elems");
}

// The invariants of the row tables of an array that has rows. A row count beyond the limit or a
// missing table ends this part of the check: the tables cannot be walked then.
void comprueba_filas(const ARRAY *array)
{
    if (!ARR_EXIGE(array->num_filas < MAX_FILAS, "array->num_filas < INT_MAX / sizeof(char *) - 1"))
        return;
    const bool hay_long_filas = ARR_EXIGE(array->long_filas, "array->long_filas");
    const bool hay_max_long_filas = ARR_EXIGE(array->max_long_filas, "array->max_long_filas");
    const bool hay_buffer = ARR_EXIGE(array->buffer, "array->buffer");
    if (!(hay_long_filas && hay_max_long_filas && hay_buffer))
        return;
    comprueba_cada_fila(array);
    // The prefix-sum table itself is not an invariant of its own; without it there is nothing
    // to compare.
    if (array->acumulado_filas != nullptr)
        comprueba_acumulados(array);
}

} // namespace

std::atomic<int> arrayprv_estado_modo{MODO_SIN_DECIDIR};

BOOL arrayprv_decide_modo_comprobacion()
{
    // Threads that arrive together all read the environment and store the same answer.
    const int estado = plataforma_hay_variable("ARRAYPRUEBA") ? MODO_ENCENDIDO : MODO_APAGADO;
    arrayprv_estado_modo.store(estado, std::memory_order_relaxed);
    return estado == MODO_ENCENDIDO;
}

bool arrayprv_cabecera_viva(const ARRAY *array)
{
    const bool legible = arrayprv_es_modo_comprobacion() ? zarpspy_cabecera_viva(array)
                                                         : zarpspy_cabecera_legible(array);
    return legible && array->mascara_debug == MASCARA_DEBUG;
}

void arrayprv_comprueba_array(const ARRAY *array, BOOL modo)
{
    if (!ARR_EXIGE(array, "array") ||
        !ARR_EXIGE(arrayprv_marca_valida(array), "array->mascara_debug == MASCARA_DEBUG"))
        return;
    arrayprv_comprueba_en_bucle(array->en_bucle, modo, UBICACION, __LINE__);
    if (array->num_filas > 0) {
        comprueba_filas(array);
    } else {
        ARR_EXIGE(array->num_elems == 0, "array->num_elems == 0");
        ARR_EXIGE(array->long_filas == nullptr, "array->long_filas == NULL");
        ARR_EXIGE(array->max_long_filas == nullptr, "array->max_long_filas == NULL");
        ARR_EXIGE(array->acumulado_filas == nullptr, "array->acumulado_filas == NULL");
        ARR_EXIGE(array->buffer == nullptr, "array->buffer == NULL");
    }
    if (array->tipo_elem != elem_BIT_NO_USAR)
        ARR_EXIGE(array->num_bits == 0, "array->num_bits == 0");
}

extern "C" ARRAYS_API BOOL arryprv_es_array_correcto(const ARRAY *array, int32_t *tipo,
                                                     int32_t *num_elems,
                                                     uint64_t *size_elem) noexcept
{
    if (array == nullptr || !arrayprv_marca_valida(array))
        return FALSO;
    // The tag as the number stored: a header that is not live may hold any value there.
    int32_t etiqueta;
    static_assert(sizeof etiqueta == sizeof array->tipo_elem);
    std::memcpy(&etiqueta, &array->tipo_elem, sizeof etiqueta);
    if (tipo != nullptr)
        *tipo = etiqueta;
    if (num_elems != nullptr)
        *num_elems = static_cast<int32_t>(etiqueta == elem_BIT_NO_USAR
                                              ? array->num_bits
                                              : static_cast<ULONG>(array->num_elems));
    if (size_elem != nullptr)
        *size_elem = array->size_elem;
    return (etiqueta >= elem_BYTE_NO_USAR && etiqueta <= elem_PUNTO3D_NO_USAR) ||
           etiqueta == elem_CADENA_U_NO_USAR;
}
