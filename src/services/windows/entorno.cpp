// The environment, interrupts and output of a Windows process. The environment is read from the
// process's own block, where a variable may hold an empty value (the C runtime's copy drops such a
// variable when it is set); Ctrl+Break reaches a console program as SIGBREAK; the standard
// streams are switched from text to binary mode.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"

#include <fcntl.h>
#include <io.h>

#include <csignal>
#include <cstdio>

bool plataforma_hay_variable(const char *nombre)
{
    return GetEnvironmentVariableA(nombre, nullptr, 0) != 0; // an empty value needs 1 byte
}

void plataforma_al_interrumpir(void (*accion)(int))
{
    std::signal(SIGINT, accion);
    std::signal(SIGBREAK, accion);
}

void plataforma_salidas_tal_cual()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}
