// The default sinks of the debugger output on Windows: the debugger's own channel, narrow texts
// as they are (Windows-1252 or a string element's bytes) and wide ones as UTF-16.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

void plataforma_salida_depuracion(const char *texto) { OutputDebugStringA(texto); }

void plataforma_salida_depuracion_ancha(const arr_wchar_t *texto)
{
    static_assert(sizeof(wchar_t) == sizeof(arr_wchar_t)); // both are UTF-16 code units here
    OutputDebugStringW(reinterpret_cast<const wchar_t *>(texto));
}
