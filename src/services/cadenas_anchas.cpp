// Wide (UTF-16) strings: copies, destruction, exact and case-insensitive comparison and
// concatenation, all in tracked memory.
#include "services/cadenas.h"

#include "services/codificaciones.h"
#include "services/memoria.h"
#include "services/plegado.h"

#include <cstring>
#include <string>

namespace {

size_t longitud(const WCHAR *cadena) { return std::char_traits<WCHAR>::length(cadena); }

WCHAR *nueva_cadena(size_t num)
{
    WCHAR *cadena = static_cast<WCHAR *>(zarpspy_nousar_malloc((num + 1) * sizeof(WCHAR)));
    cadena[num] = 0;
    return cadena;
}

// Exact order of code units, NULL first.
int compara(const WCHAR *a, const WCHAR *b)
{
    if (a == nullptr || b == nullptr)
        return (a != nullptr) - (b != nullptr);
    for (; *a != 0 && *a == *b; ++a, ++b) {
    }
    return (*a > *b) - (*a < *b);
}

} // namespace

extern "C" ARRAYS_API WCHAR *widestr_fun_copia(const WCHAR *cadena) noexcept
{
    if (cadena == nullptr)
        return nullptr;
    const size_t num = longitud(cadena);
    WCHAR *copia = nueva_cadena(num);
    std::memcpy(copia, cadena, num * sizeof(WCHAR));
    return copia;
}

extern "C" ARRAYS_API void widestr_nousar_destruye(WCHAR **cadena, const char *, LONG) noexcept
{
    zarpspy_nousar_free_pp(cadena, sizeof(WCHAR));
}

WCHAR *widestr_nousar_copia(const WCHAR *cadena, const char *, LONG)
{
    return widestr_fun_copia(cadena);
}

int widestr_nousar_compara(const WCHAR *a, const WCHAR *b, const char *, LONG)
{
    return compara(a, b);
}

BOOL widestr_fun_cadenas_iguales(const WCHAR *a, const WCHAR *b) { return compara(a, b) == 0; }

BOOL widestr_fun_cadenas_iguales_may_o_min(const WCHAR *a, const WCHAR *b)
{
    if (a == nullptr || b == nullptr)
        return a == b;
    for (;;) {
        const char32_t ca = utf16_siguiente(a); // a lone surrogate comes back as itself
        const char32_t cb = utf16_siguiente(b);
        if (plegado_simple(ca) != plegado_simple(cb))
            return FALSO;
        if (ca == 0)
            return CIERTO;
    }
}

void widestr_nousar_cad_concatena(WCHAR **destino, const WCHAR *cadena, const char *, LONG)
{
    const size_t previa = *destino != nullptr ? longitud(*destino) : 0;
    const size_t anyadida = cadena != nullptr ? longitud(cadena) : 0;
    WCHAR *resultado = static_cast<WCHAR *>(
        zarpspy_nousar_realloc(*destino, (previa + anyadida + 1) * sizeof(WCHAR)));
    if (anyadida > 0)
        std::memcpy(resultado + previa, cadena, anyadida * sizeof(WCHAR));
    resultado[previa + anyadida] = 0;
    *destino = resultado;
}

WCHAR *widestr_nousar_creacadena_con_caracter(ULONG num, WCHAR caracter)
{
    WCHAR *cadena = nueva_cadena(num);
    for (ULONG i = 0; i < num; ++i)
        cadena[i] = caracter;
    return cadena;
}
