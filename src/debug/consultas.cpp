// The debug module's queries of one number: an array's element count and its type tag, with the
// answers of an invalid array for a handle that is NULL, unreadable or not a live array.
#include "debug/lectura.h"

extern "C" ARRAYS_API ULONG debugarr_num_elems(const ARRAY *array) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    return leido.estado == EstadoArray::valido ? leido.num_elems : 0;
}

extern "C" ARRAYS_API ULONG debugarr_tipo_array(const ARRAY *array) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    return leido.estado == EstadoArray::valido ? static_cast<ULONG>(leido.tipo) : ARR_ULONG_MAX;
}
