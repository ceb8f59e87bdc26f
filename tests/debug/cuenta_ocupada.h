// Test support for the element-count block whose name another object holds: the check that the
// new process makes, alike on every platform.
#pragma once

#include "debug/proceso_nuevo.h"
#include "debug/salidas.h"

#include <string>

// The fixed name of the element-count block.
inline const std::string NOMBRE_CUENTA = "MemComp_ZarpTools_serializa_num_elems";

// In a new process, publishing a count reports the block by name on the debugger output
// instead of writing into the object that holds its name.
inline void publicar_la_cuenta_nombra_el_bloque()
{
    en_proceso_nuevo([] {
        static std::string escrito;
        debugarr_set_salida([](const char *texto) { escrito += texto; }, nullptr);
        ARRAY *array = arr_CreaLong(2);
        debugarr_serializa_num_elems_array(array);
        arr_DestruyeLong(&array);
        return cumple(escrito == "\r\n(debugarr) Error en memoria compartida "
                                 "'MemComp_ZarpTools_serializa_num_elems'.\r\n",
                      "the message names the block");
    });
}
