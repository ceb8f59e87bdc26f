// The element-count block "MemComp_ZarpTools_serializa_num_elems": 12 bytes, the count of the
// array last given to debugarr_serializa_num_elems_array (0xFFFFFFFF for none, or an invalid
// array) and two words of 0. Made at the first use, it stays for the life of the process; on
// POSIX its name is taken away at a normal exit.
#include "debug/lectura.h"
#include "debug/lineas.h"
#include "debug/nombres.h"
#include "debug/salida.h"
#include "services/plataforma.h"

#include <cstdint>
#include <cstdlib>

namespace {

constexpr const char *NOMBRE = DEBUGARR_NOMBRE_CUENTA;

BloqueCompartido bloque;

void quita_nombre_al_salir() { plataforma_quita_nombre(NOMBRE); }

void escribe(uint32_t cuenta)
{
    const uint32_t palabras[3] = {cuenta, 0, 0};
    auto *vista = static_cast<unsigned char *>(bloque.vista);
    for (size_t i = 0; i < DEBUGARR_BYTES_CUENTA; ++i)
        vista[i] = static_cast<unsigned char>(palabras[i / 4] >> (8 * (i % 4)));
}

// The block, made (and set to "no count") at the first use; false when it cannot be.
bool bloque_listo()
{
    if (bloque.vista != nullptr)
        return true;
    if (!plataforma_crea_bloque(NOMBRE, DEBUGARR_BYTES_CUENTA, &bloque))
        return false;
    std::atexit(quita_nombre_al_salir);
    escribe(ARR_ULONG_MAX);
    return true;
}

} // namespace

extern "C" ARRAYS_API void debugarr_serializa_num_elems_array(const ARRAY *array) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    if (leido.estado == EstadoArray::nulo) {
        debugarr_escribe(DEBUGARR_CUENTA_NULL);
        return;
    }
    const ULONG cuenta = leido.estado == EstadoArray::valido ? leido.num_elems : ARR_ULONG_MAX;
    if (!bloque_listo()) {
        debugarr_escribe(
            debugarr_formatea("\r\n(debugarr) Error en memoria compartida '%s'.\r\n", NOMBRE));
        return;
    }
    escribe(cuenta);
    if (cuenta == ARR_ULONG_MAX)
        debugarr_escribe(DEBUGARR_CUENTA_NO_VALIDA);
}
