// Direct access to an array's rows from outside the engine, so that an iteration (the C++ face's
// iterators) pays one call per row instead of one per element.
#include "core/arrayprv.h"

#include "services/informes.h"

extern "C" ARRAYS_API void *arr_Fila(const ARRAY *array, ULONG fila, ULONG *num_elems) noexcept
{
    ULONG num = 0;
    void *elementos = nullptr;
    if (arrayprv_entrada(array, TEXTOS_ARRAY, false, Modo::leniente) && fila < array->num_filas) {
        num = static_cast<ULONG>(array->long_filas[fila]);
        elementos = array->buffer[fila];
    }
    if (num_elems != nullptr)
        *num_elems = num;
    return elementos;
}
