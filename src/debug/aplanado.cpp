// The module's scratch buffer and the flattened copy of an array into it, with debugarr_elems.
#include "debug/aplanado.h"

#include <cstdlib>

namespace {

void *actual = nullptr;
size_t bytes_actual = 0;
void *anterior = nullptr;

// A buffer of at least `bytes` bytes; NULL when 0 bytes are asked for and none was ever
// allocated, or when no memory is left for a larger one (the buffers stay as they were).
void *borrador(size_t bytes)
{
    if (bytes > bytes_actual) {
        void *nuevo = std::calloc(bytes, 1);
        if (nuevo == nullptr)
            return nullptr;
        std::free(anterior);
        anterior = actual;
        actual = nuevo;
        bytes_actual = bytes;
    }
    return actual;
}

} // namespace

Aplanado debugarr_aplana(const ArrayLeido &leido)
{
    Aplanado copia;
    copia.bytes = static_cast<size_t>(leido.cabecera.num_elems) * leido.size_elem;
    copia.buffer = borrador(copia.bytes);
    if (copia.buffer == nullptr || leido.tipo == elem_PUNTO2DX_NO_USAR ||
        leido.tipo == elem_antiguo_PUNTO3DX)
        return copia;
    if (!debugarr_lee_elementos(leido, copia.buffer)) {
        copia.ilegible = true;
        copia.buffer = nullptr;
    }
    return copia;
}

extern "C" ARRAYS_API void *debugarr_elems(const ARRAY *array) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    return leido.estado == EstadoArray::valido ? debugarr_aplana(leido).buffer : nullptr;
}
