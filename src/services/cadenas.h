// Narrow (UTF-8 bytes) and wide (UTF-16) zero-terminated strings in tracked memory. A string the
// service returns belongs to the caller, who frees it through the service. NULL is accepted
// everywhere: it copies to NULL, equals only NULL and orders before every string.
// Plain comparisons are exact (bytes, code units); the "may_o_min" ones ignore letter case per
// code point with Unicode's simple case folding, and compare invalid UTF-8 bytewise.
#pragma once

#include "arrays.h"

#include <cstring>

// cad_copia_cadena and zarpstr_destruye are exported; see arrays.h.
// Frees the `num` blocks listed in the table whose address is `tabla`, then the table, and sets
// the table pointer to NULL (that pointer may be unaligned, as in the packed array header).
void zarpstr_destruyeListaCadenas(ULONG num, void *tabla);
// strcmp's order, NULL first; inline, as the string sort's default order calls it.
inline int cad_cadenas_compara(const char *a, const char *b)
{
    if (a == nullptr || b == nullptr)
        return (a != nullptr) - (b != nullptr);
    return std::strcmp(a, b);
}
BOOL cad_cadenas_iguales(const char *a, const char *b);
BOOL cad_cadenas_iguales_may_o_min(const char *a, const char *b);
void cad_concatena(char **destino, const char *cadena);
char *creacadena_con_caracter(ULONG num, char caracter);
char *nousar_formatea(const char *formato, ...) __attribute__((format(printf, 1, 2)));

// widestr_fun_copia and widestr_nousar_destruye are exported; see arrays.h.
WCHAR *widestr_nousar_copia(const WCHAR *cadena, const char *ubicacion, LONG linea);
int widestr_nousar_compara(const WCHAR *a, const WCHAR *b, const char *ubicacion, LONG linea);
BOOL widestr_fun_cadenas_iguales(const WCHAR *a, const WCHAR *b);
BOOL widestr_fun_cadenas_iguales_may_o_min(const WCHAR *a, const WCHAR *b);
void widestr_nousar_cad_concatena(WCHAR **destino, const WCHAR *cadena, const char *ubicacion,
                                  LONG linea);
WCHAR *widestr_nousar_creacadena_con_caracter(ULONG num, WCHAR caracter);
