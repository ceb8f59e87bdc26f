// Where the debug module writes: the narrow and the wide sink of the debugger output, which the
// application may replace (debugarr_set_salida); by default the platform's.
#pragma once

#include "arrays.h"

void debugarr_escribe(const char *texto);
void debugarr_escribe_ancho(const WCHAR *texto);
