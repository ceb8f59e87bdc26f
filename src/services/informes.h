// The internal-error service: every broken precondition of the library is reported here, by the
// exact text of the condition, the reporting module's location string and the check's line.
// Reporters always return; what a report does is up to the installed handler.
#pragma once

#include "arrays.h"

void error_interno(const char *expresion, const char *ubicacion, LONG linea, int reservado);
void error_interno_origen(const WCHAR *expresion, const char *ubicacion, LONG linea,
                          const char *ubicacion_origen, LONG linea_origen, int reservado);
void error_interno_default_error(int reservado1, int reservado2, const char *ubicacion, LONG linea,
                                 int reservado3);

// Reports `texto` unless `cumple`; returns `cumple` so that a caller can end when it must.
inline bool arr_exige(bool cumple, const char *texto, const char *ubicacion, int linea)
{
    if (cumple) [[likely]]
        return true;
    error_interno(texto, ubicacion, linea, 0);
    return false;
}

// Checks one precondition in a module that defines its location string as UBICACION.
#define ARR_EXIGE(condicion, texto) arr_exige(static_cast<bool>(condicion), texto, UBICACION, __LINE__)

// Reports an element type tag that a per-type switch does not handle.
#define ARR_CASO_DESCONOCIDO() error_interno_default_error(0, 0, UBICACION, __LINE__, 0)
