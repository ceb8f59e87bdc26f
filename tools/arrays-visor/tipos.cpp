// The element types of the viewer, with the size each has in a published block.
#include "tipos.h"

namespace {

constexpr TipoVisor TIPOS[] = {
    {"byte", elem_BYTE_NO_USAR, 1},          {"bool", elem_BOOL_NO_USAR, 2},
    {"uchar", elem_UCHAR_NO_USAR, 1},        {"char", elem_CHAR_NO_USAR, 1},
    {"ushort", elem_USHORT_NO_USAR, 2},      {"short", elem_SHORT_NO_USAR, 2},
    {"ulong", elem_ULONG_NO_USAR, 4},        {"long", elem_LONG_NO_USAR, 4},
    {"ulong64", elem_ULONG64_NO_USAR, 8},    {"long64", elem_LONG64_NO_USAR, 8},
    {"double", elem_DOUBLE_NO_USAR, 8},      {"puntero", elem_PUNTERO_NO_USAR, 8},
    {"cadena", elem_CADENA_NO_USAR, 8},      {"cadena_u", elem_CADENA_U_NO_USAR, 8},
    {"punto2d", elem_PUNTO2D_NO_USAR, 16},   {"punto3d", elem_PUNTO3D_NO_USAR, 24},
};

} // namespace

std::optional<TipoVisor> tipo_de(const std::string &nombre)
{
    for (const TipoVisor &tipo : TIPOS)
        if (nombre == tipo.nombre)
            return tipo;
    return std::nullopt;
}

std::string nombres_de_tipos()
{
    std::string nombres;
    for (const TipoVisor &tipo : TIPOS)
        nombres += (nombres.empty() ? "" : "|") + std::string(tipo.nombre);
    return nombres;
}
