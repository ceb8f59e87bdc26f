// An array that a test may corrupt at will.
#include "modo_comprobacion/array_corrompible.h"

namespace {

template <typename T> std::vector<T> guarda(const T *tabla, size_t num)
{
    return num > 0 ? std::vector<T>(tabla, tabla + num) : std::vector<T>{};
}

template <typename T> void repone(T *tabla, const std::vector<T> &guardada)
{
    for (size_t i = 0; i < guardada.size(); ++i)
        tabla[i] = guardada[i];
}

} // namespace

ArrayCorrompible::ArrayCorrompible(tipo_elem_array tipo, ULONG num_elems)
    : array_(arrayprv_crea(num_elems, tipo, LONG_FILA_POR_DEFECTO)), cabecera_(*array_),
      buffer_(guarda(array_->buffer, array_->num_filas)),
      max_long_filas_(guarda(array_->max_long_filas, array_->num_filas)),
      long_filas_(guarda(array_->long_filas, array_->num_filas)),
      acumulado_filas_(guarda(array_->acumulado_filas, array_->num_filas))
{
}

ArrayCorrompible::~ArrayCorrompible()
{
    *array_ = cabecera_;
    repone(array_->buffer, buffer_);
    repone(array_->max_long_filas, max_long_filas_);
    repone(array_->long_filas, long_filas_);
    repone(array_->acumulado_filas, acumulado_filas_);
    arrayprv_destruye(&array_);
}
