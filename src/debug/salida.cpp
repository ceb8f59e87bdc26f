// The sinks of the debugger output. Like the rest of the module's state they are plain globals:
// the debug module is for single-threaded debugging use.
#include "debug/salida.h"

#include "services/plataforma.h"

namespace {

using SalidaEstrecha = void (*)(const char *texto);
using SalidaAncha = void (*)(const WCHAR *texto);

SalidaEstrecha salida_estrecha = plataforma_salida_depuracion;
SalidaAncha salida_ancha = plataforma_salida_depuracion_ancha;

} // namespace

void debugarr_escribe(const char *texto) { salida_estrecha(texto); }

void debugarr_escribe_ancho(const WCHAR *texto) { salida_ancha(texto); }

extern "C" ARRAYS_API void debugarr_set_salida(void (*estrecha)(const char *texto),
                                               void (*ancha)(const WCHAR *texto)) noexcept
{
    salida_estrecha = estrecha != nullptr ? estrecha : plataforma_salida_depuracion;
    salida_ancha = ancha != nullptr ? ancha : plataforma_salida_depuracion_ancha;
}
