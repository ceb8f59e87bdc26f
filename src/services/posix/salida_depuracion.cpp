// The default sinks of the debugger output on POSIX: standard error, in UTF-8. A narrow text that
// is valid UTF-8 already (a string element's line) goes as it is; any other is Windows-1252 (the
// fixed messages) and is converted, as wide texts are from UTF-16.
#include "services/plataforma.h"

#include "services/codificaciones.h"

#include <cstdio>

void plataforma_salida_depuracion(const char *texto)
{
    if (utf8_valido(texto))
        std::fputs(texto, stderr);
    else
        std::fputs(cp1252_a_utf8(texto).c_str(), stderr);
}

void plataforma_salida_depuracion_ancha(const arr_wchar_t *texto)
{
    std::fputs(utf16_a_utf8(texto).c_str(), stderr);
}
