// Conversions to UTF-8 from Windows-1252 and UTF-16, and the validity test of UTF-8.
#include "services/codificaciones.h"

#include <cstdint>

namespace {

constexpr char32_t SUSTITUTO = 0xFFFD;

void anyade_utf8(std::string &destino, char32_t punto)
{
    if (punto < 0x80) {
        destino += static_cast<char>(punto);
    } else if (punto < 0x800) {
        destino += static_cast<char>(0xC0 | (punto >> 6));
        destino += static_cast<char>(0x80 | (punto & 0x3F));
    } else if (punto < 0x10000) {
        destino += static_cast<char>(0xE0 | (punto >> 12));
        destino += static_cast<char>(0x80 | ((punto >> 6) & 0x3F));
        destino += static_cast<char>(0x80 | (punto & 0x3F));
    } else {
        destino += static_cast<char>(0xF0 | (punto >> 18));
        destino += static_cast<char>(0x80 | ((punto >> 12) & 0x3F));
        destino += static_cast<char>(0x80 | ((punto >> 6) & 0x3F));
        destino += static_cast<char>(0x80 | (punto & 0x3F));
    }
}

// The code points of the bytes 0x80 to 0x9F, where Windows-1252 departs from Latin-1.
constexpr char16_t CP1252_80_9F[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
    0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

// The length of the well-formed UTF-8 sequence at `p`, or 0 when it is not one.
size_t secuencia_utf8(const unsigned char *p)
{
    if (p[0] < 0x80)
        return 1;
    size_t longitud;
    unsigned char minimo = 0x80, maximo = 0xBF; // the allowed range of the second byte
    if (p[0] >= 0xC2 && p[0] <= 0xDF) {
        longitud = 2;
    } else if (p[0] >= 0xE0 && p[0] <= 0xEF) {
        longitud = 3;
        if (p[0] == 0xE0)
            minimo = 0xA0; // no overlong forms
        if (p[0] == 0xED)
            maximo = 0x9F; // no surrogates
    } else if (p[0] >= 0xF0 && p[0] <= 0xF4) {
        longitud = 4;
        if (p[0] == 0xF0)
            minimo = 0x90;
        if (p[0] == 0xF4)
            maximo = 0x8F; // nothing above U+10FFFF
    } else {
        return 0;
    }
    if (p[1] < minimo || p[1] > maximo)
        return 0;
    for (size_t i = 2; i < longitud; ++i)
        if (p[i] < 0x80 || p[i] > 0xBF) // a terminating zero ends the sequence here too
            return 0;
    return longitud;
}

} // namespace

int32_t utf8_siguiente(const char *&texto)
{
    const auto *p = reinterpret_cast<const unsigned char *>(texto);
    const size_t longitud = secuencia_utf8(p);
    if (longitud == 0)
        return -1;
    // The bits of the lead byte that belong to the code point, by the sequence's length.
    static constexpr unsigned char MASCARA_INICIAL[5] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    int32_t punto = p[0] & MASCARA_INICIAL[longitud];
    for (size_t i = 1; i < longitud; ++i)
        punto = (punto << 6) | (p[i] & 0x3F);
    texto += longitud;
    return punto;
}

char32_t utf16_siguiente(const WCHAR *&texto)
{
    const char32_t unidad = *texto++;
    if (unidad >= 0xD800 && unidad <= 0xDBFF && *texto >= 0xDC00 && *texto <= 0xDFFF)
        return 0x10000 + ((unidad - 0xD800) << 10) + (*texto++ - 0xDC00);
    return unidad;
}

bool utf8_valido(const char *texto)
{
    const auto *p = reinterpret_cast<const unsigned char *>(texto);
    while (*p != 0) {
        const size_t longitud = secuencia_utf8(p);
        if (longitud == 0)
            return false;
        p += longitud;
    }
    return true;
}

std::string cp1252_a_utf8(const char *texto)
{
    std::string utf8;
    for (const auto *p = reinterpret_cast<const unsigned char *>(texto); *p != 0; ++p)
        anyade_utf8(utf8, *p >= 0x80 && *p <= 0x9F ? CP1252_80_9F[*p - 0x80] : *p);
    return utf8;
}

std::string utf16_a_utf8(const WCHAR *texto)
{
    std::string utf8;
    while (*texto != 0) {
        const char32_t punto = utf16_siguiente(texto);
        anyade_utf8(utf8, punto >= 0xD800 && punto <= 0xDFFF ? SUSTITUTO : punto);
    }
    return utf8;
}
