// The dump's lines: one module-wide line buffer, and the format of each element type's line.
// Every line counts its element from 1, except the 2D point lines, which count from 0 and pad
// the number to two characters.
#include "debug/lineas.h"

#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

char linea[DEBUGARR_BYTES_LINEA];

template <typename T> T lee(const void *elemento)
{
    T valor;
    std::memcpy(&valor, elemento, sizeof valor);
    return valor;
}

// The first `num` coordinates of a point element.
void coordenadas(const void *elemento, double (&destino)[3], size_t num)
{
    std::memcpy(destino, elemento, num * sizeof(double));
}

} // namespace

const char *debugarr_formatea(const char *formato, ...)
{
    va_list argumentos;
    va_start(argumentos, formato);
    std::vsnprintf(linea, sizeof linea, formato, argumentos);
    va_end(argumentos);
    return linea;
}

const char *debugarr_linea_cabecera(ULONG num_elems)
{
    return debugarr_formatea("\r\nArray de %d elementos:\r\n", static_cast<int>(num_elems));
}

bool debugarr_tiene_lineas(tipo_elem_array tipo)
{
    return tipo != elem_BIT_NO_USAR && tipo != elem_PUNTERO_NO_USAR;
}

const char *debugarr_linea_elemento(tipo_elem_array tipo, ULONG posicion, const void *elemento)
{
    const int indice = static_cast<int>(posicion + 1);
    double xyz[3];
    switch (tipo) {
    case elem_BYTE_NO_USAR:
    case elem_UCHAR_NO_USAR:
    case elem_CHAR_NO_USAR:
        return debugarr_formatea("[%d]: %d\r\n", indice, lee<unsigned char>(elemento));
    case elem_BOOL_NO_USAR:
        return debugarr_formatea("[%d]: %s\r\n", indice,
                                 lee<BOOL>(elemento) == CIERTO ? "CIERTO" : "FALSO");
    case elem_USHORT_NO_USAR:
        return debugarr_formatea("[%d]: %d\r\n", indice, lee<USHORT>(elemento));
    case elem_SHORT_NO_USAR:
        return debugarr_formatea("[%d]: %d\r\n", indice, lee<SHORT>(elemento));
    case elem_ULONG_NO_USAR:
        return debugarr_formatea("[%d]: %" PRIu32 "\r\n", indice, lee<ULONG>(elemento));
    case elem_LONG_NO_USAR:
        return debugarr_formatea("[%d]: %" PRId32 "\r\n", indice, lee<LONG>(elemento));
    case elem_ULONG64_NO_USAR:
        return debugarr_formatea("[%d]: %" PRIu64 "\r\n", indice, lee<ULONG64>(elemento));
    case elem_LONG64_NO_USAR:
        return debugarr_formatea("[%d]: %" PRId64 "\r\n", indice, lee<LONG64>(elemento));
    case elem_DOUBLE_NO_USAR:
        return debugarr_formatea("[%d]: %f\r\n", indice, lee<double>(elemento));
    case elem_PUNTO2D_NO_USAR:
    case elem_PUNTO2DX_NO_USAR:
        coordenadas(elemento, xyz, 2);
        return debugarr_formatea("[%2d]: \tx=%f, \ty=%f\r\n", static_cast<int>(posicion), xyz[0],
                                 xyz[1]);
    case elem_PUNTO3D_NO_USAR:
    case elem_antiguo_PUNTO3DX:
        coordenadas(elemento, xyz, 3);
        return debugarr_formatea("[%2d]: \tx=%f, \ty=%f, \tz=%f\r\n", indice, xyz[0], xyz[1],
                                 xyz[2]);
    default:
        return nullptr;
    }
}
