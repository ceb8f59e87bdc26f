// The sort table's lifetime, the default ordering of each type, pointer identity and the
// element comparison with its identical-bytes shortcut.
#include "core/comparadores.h"

#include "services/cadenas.h"
#include "services/memoria.h"

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// A three-way result of any sign as a comparison result.
int signo(int resultado) { return arrayprv_orden_exacto(resultado, 0); }

} // namespace

funciones_ordenacion *arrayprv_crea_funciones_ordenacion(
    decltype(funciones_ordenacion::func_compara_byte) func_compara_byte,
    decltype(funciones_ordenacion::func_compara_bool) func_compara_bool,
    decltype(funciones_ordenacion::func_compara_uchar) func_compara_uchar,
    decltype(funciones_ordenacion::func_compara_char) func_compara_char,
    decltype(funciones_ordenacion::func_compara_ushort) func_compara_ushort,
    decltype(funciones_ordenacion::func_compara_short) func_compara_short,
    decltype(funciones_ordenacion::func_compara_ulong) func_compara_ulong,
    decltype(funciones_ordenacion::func_compara_long) func_compara_long,
    decltype(funciones_ordenacion::func_compara_ulong64) func_compara_ulong64,
    decltype(funciones_ordenacion::func_compara_long64) func_compara_long64,
    decltype(funciones_ordenacion::func_compara_double) func_compara_double,
    decltype(funciones_ordenacion::func_compara_puntero) func_compara_puntero,
    decltype(funciones_ordenacion::func_compara_cadena) func_compara_cadena,
    decltype(funciones_ordenacion::func_compara_cadena_u) func_compara_cadena_u,
    decltype(funciones_ordenacion::func_compara_punto2D) func_compara_punto2D,
    decltype(funciones_ordenacion::func_compara_punto2Dx) func_compara_punto2Dx,
    decltype(funciones_ordenacion::func_compara_punto3D) func_compara_punto3D)
{
    auto *tabla =
        static_cast<funciones_ordenacion *>(zarpspy_nousar_malloc(sizeof(funciones_ordenacion)));
    *tabla = {func_compara_byte,    func_compara_bool,    func_compara_uchar,   func_compara_char,
              func_compara_ushort,  func_compara_short,   func_compara_ulong,   func_compara_long,
              func_compara_ulong64, func_compara_long64,  func_compara_double,  func_compara_puntero,
              func_compara_cadena,  func_compara_cadena_u, func_compara_punto2D,
              func_compara_punto2Dx, func_compara_punto3D};
    return tabla;
}

void arrayprv_destruye_funciones_ordenacion(funciones_ordenacion **tabla)
{
    zarpspy_nousar_free_pp(tabla, sizeof(funciones_ordenacion));
}

int arrayprv_orden_cadena_u(const WCHAR *a, const WCHAR *b)
{
    return signo(widestr_nousar_compara(a, b, UBICACION, __LINE__));
}

BOOL arrayprv_mismo_puntero(const void *elemento, const void *dato) { return elemento == dato; }

int arrayprv_compara_elementos(const funciones_ordenacion *tabla, adaptador_orden compara,
                               const void *p1, const void *p2, size_t size_elem)
{
    if (std::memcmp(p1, p2, size_elem) == 0)
        return comparac_IGUALES;
    return compara(tabla, p1, p2);
}
