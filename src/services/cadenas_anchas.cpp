// Wide (UTF-16) strings: copies, destruction, exact and case-insensitive comparison and
// concatenation, all in tracked memory.
#include "services/cadenas.h"

#include "services/memoria.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

namespace {

size_t longitud(const WCHAR *cadena) { return static_cast<size_t>(u_strlen(cadena)); }

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
    u_memcpy(copia, cadena, static_cast<int32_t>(num));
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
    int32_t i = 0;
    int32_t j = 0;
    for (;;) {
        UChar32 ca;
        UChar32 cb;
        U16_NEXT(a, i, -1, ca); // a lone surrogate comes back as itself
        U16_NEXT(b, j, -1, cb);
        if (u_foldCase(ca, U_FOLD_CASE_DEFAULT) != u_foldCase(cb, U_FOLD_CASE_DEFAULT))
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
        u_memcpy(resultado + previa, cadena, static_cast<int32_t>(anyadida));
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
