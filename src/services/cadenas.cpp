// Narrow strings: copies, destruction, exact and case-insensitive comparison, concatenation and
// formatting, all in tracked memory.
#include "services/cadenas.h"

#include "services/codificaciones.h"
#include "services/memoria.h"
#include "services/plegado.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

char *nueva_cadena(size_t longitud)
{
    char *cadena = static_cast<char *>(zarpspy_nousar_malloc(longitud + 1));
    cadena[longitud] = '\0';
    return cadena;
}

} // namespace

extern "C" ARRAYS_API char *cad_copia_cadena(const char *cadena) noexcept
{
    if (cadena == nullptr)
        return nullptr;
    const size_t longitud = std::strlen(cadena);
    char *copia = nueva_cadena(longitud);
    std::memcpy(copia, cadena, longitud);
    return copia;
}

extern "C" ARRAYS_API void zarpstr_destruye(char **cadena) noexcept
{
    zarpspy_nousar_free_pp(cadena, 1);
}

void zarpstr_destruyeListaCadenas(ULONG num, void *tabla)
{
    auto **bloques = static_cast<void **>(tabla != nullptr ? zarpspy_lee_puntero(tabla) : nullptr);
    if (bloques == nullptr)
        return;
    for (ULONG i = 0; i < num; ++i)
        zarpspy_nousar_free_pp(&bloques[i], 1);
    zarpspy_nousar_free_pp(tabla, sizeof(void *));
}

BOOL cad_cadenas_iguales(const char *a, const char *b)
{
    if (a == nullptr || b == nullptr)
        return a == b;
    return std::strcmp(a, b) == 0;
}

BOOL cad_cadenas_iguales_may_o_min(const char *a, const char *b)
{
    if (a == nullptr || b == nullptr)
        return a == b;
    // Ill-formed UTF-8 in either string makes the comparison bytewise.
    for (const char *pa = a, *pb = b;;) {
        const int32_t ca = utf8_siguiente(pa);
        const int32_t cb = utf8_siguiente(pb);
        if (ca < 0 || cb < 0)
            return std::strcmp(a, b) == 0;
        if (plegado_simple(static_cast<char32_t>(ca)) != plegado_simple(static_cast<char32_t>(cb)))
            return FALSO;
        if (ca == 0)
            return CIERTO;
    }
}

void cad_concatena(char **destino, const char *cadena)
{
    const size_t previa = *destino != nullptr ? std::strlen(*destino) : 0;
    const size_t anyadida = cadena != nullptr ? std::strlen(cadena) : 0;
    char *resultado = static_cast<char *>(zarpspy_nousar_realloc(*destino, previa + anyadida + 1));
    std::memcpy(resultado + previa, cadena != nullptr ? cadena : "", anyadida + 1);
    *destino = resultado;
}

char *creacadena_con_caracter(ULONG num, char caracter)
{
    char *cadena = nueva_cadena(num);
    std::memset(cadena, caracter, num);
    return cadena;
}

char *nousar_formatea(const char *formato, ...)
{
    va_list argumentos;
    va_start(argumentos, formato);
    va_list copia;
    va_copy(copia, argumentos);
    const int longitud = std::vsnprintf(nullptr, 0, formato, argumentos);
    va_end(argumentos);
    char *cadena = nueva_cadena(longitud > 0 ? static_cast<size_t>(longitud) : 0);
    std::vsnprintf(cadena, static_cast<size_t>(longitud) + 1, formato, copia);
    va_end(copia);
    return cadena;
}
