// Conversions to UTF-8 of the other encodings the library's texts come in: Windows-1252 (the
// debug module's fixed messages) and UTF-16 (wide strings and wide report texts).
#pragma once

#include "arrays.h"

#include <cstdint>
#include <string>

// True when the zero-terminated `texto` is well-formed UTF-8 (no overlong forms, surrogates or
// code points above U+10FFFF).
bool utf8_valido(const char *texto);

// The code point that starts at `texto` (zero-terminated UTF-8), with `texto` moved past it; -1,
// leaving `texto` where it was, at an ill-formed sequence. The terminating zero is code point 0.
int32_t utf8_siguiente(const char *&texto);

// The code point that starts at `texto` (zero-terminated UTF-16), with `texto` moved past it; an
// unpaired surrogate is returned as itself.
char32_t utf16_siguiente(const WCHAR *&texto);

// The UTF-8 form of a zero-terminated Windows-1252 text; its five unassigned bytes become U+FFFD.
std::string cp1252_a_utf8(const char *texto);

// The UTF-8 form of a zero-terminated UTF-16 text; an unpaired surrogate becomes U+FFFD.
std::string utf16_a_utf8(const WCHAR *texto);
