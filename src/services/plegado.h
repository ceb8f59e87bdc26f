// Unicode's simple case folding of one code point, from the table that tools/genera_plegado.py
// writes from the Unicode Character Database (services/plegado_tabla.h): the form in which two
// letters that differ only by case are equal. Code points without a fold, and values past
// U+10FFFF, are their own fold.
#pragma once

#include "services/plegado_tabla.h"

inline char32_t plegado_simple(char32_t punto)
{
    if (punto > 0x10FFFF)
        return punto;
    return static_cast<char32_t>(static_cast<int32_t>(punto) +
                                 PLEGADO_DIFERENCIAS[PLEGADO_PAGINAS[punto >> 8]][punto & 0xFF]);
}
