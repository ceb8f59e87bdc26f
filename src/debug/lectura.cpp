// Guarded reading of headers, row tables, rows and strings through the platform's probe.
#include "debug/lectura.h"

#include "services/plataforma.h"

#include <cstdint>
#include <new>

namespace {

// Strings are read a piece at a time, never across a boundary of this many bytes, so that a piece
// lies within one page: it is either readable whole or not at all.
constexpr uintptr_t PIEZA = 4096;

template <typename C> bool lee_cadena(const C *cadena, size_t maximo, std::basic_string<C> &destino)
{
    destino.clear();
    if (cadena == nullptr) {
        for (const char *nulo = "(null)"; *nulo != 0; ++nulo)
            destino += static_cast<C>(*nulo);
        return true;
    }
    auto direccion = reinterpret_cast<uintptr_t>(cadena);
    C pieza[PIEZA / sizeof(C)];
    while (destino.size() < maximo) {
        const size_t bytes = PIEZA - direccion % PIEZA;
        if (bytes % sizeof(C) != 0 ||
            !plataforma_copia_legible(reinterpret_cast<const void *>(direccion), pieza, bytes))
            return false;
        for (size_t i = 0; i < bytes / sizeof(C); ++i) {
            if (pieza[i] == 0 || destino.size() == maximo)
                return true;
            destino += pieza[i];
        }
        direccion += bytes;
    }
    return true;
}

} // namespace

ArrayLeido debugarr_lee_array(const ARRAY *array)
{
    ArrayLeido leido;
    if (array == nullptr)
        return leido;
    if (!plataforma_copia_legible(array, &leido.cabecera, sizeof leido.cabecera)) {
        leido.estado = EstadoArray::ilegible;
        return leido;
    }
    int32_t tipo = -1;
    int32_t num_elems = 0;
    uint64_t size_elem = 0;
    // The query reads the copy, which cannot fault; in checking mode it must be asked about the
    // handle itself, which it first looks up among the live headers (a copy is never one of them).
    const ARRAY *consultado = arrayprv_es_modo_comprobacion() ? array : &leido.cabecera;
    const bool valido = arryprv_es_array_correcto(consultado, &tipo, &num_elems, &size_elem);
    if (!valido && tipo != elem_BIT_NO_USAR) { // the tag of a header that is not live means nothing
        leido.estado = EstadoArray::no_valido;
        return leido;
    }
    leido.estado = valido ? EstadoArray::valido : EstadoArray::bits;
    leido.tipo = static_cast<tipo_elem_array>(tipo);
    leido.num_elems = static_cast<ULONG>(num_elems);
    leido.size_elem = size_elem;
    return leido;
}

bool debugarr_lee_tablas(const ArrayLeido &leido, TablasLeidas &tablas)
{
    const ARRAY &cabecera = leido.cabecera;
    // A live header keeps these; a wild one that passed the validity query may not.
    if (cabecera.size_elem != arrayprv_size_elem(leido.tipo) ||
        cabecera.num_filas > cabecera.num_elems ||
        static_cast<ULONG>(cabecera.num_elems) != leido.num_elems)
        return false;
    try {
        tablas.filas.resize(cabecera.num_filas);
        tablas.longitudes.resize(cabecera.num_filas);
    } catch (const std::bad_alloc &) { // a wild header's row count
        return false;
    }
    if (cabecera.num_filas > 0 &&
        (!plataforma_copia_legible(cabecera.buffer, tablas.filas.data(),
                                   cabecera.num_filas * sizeof(char *)) ||
         !plataforma_copia_legible(cabecera.long_filas, tablas.longitudes.data(),
                                   cabecera.num_filas * sizeof(size_t))))
        return false;
    // The counts must add up to the header's, or the rows would not fit where they are copied.
    size_t total = 0;
    for (size_t longitud : tablas.longitudes) {
        if (longitud > cabecera.num_elems - total)
            return false;
        total += longitud;
    }
    return total == cabecera.num_elems;
}

bool debugarr_lee_fila(const ArrayLeido &leido, const TablasLeidas &tablas, size_t fila,
                       void *destino)
{
    return plataforma_copia_legible(tablas.filas[fila], destino,
                                    tablas.longitudes[fila] * leido.size_elem);
}

bool debugarr_lee_elementos(const ArrayLeido &leido, void *destino)
{
    TablasLeidas tablas;
    if (!debugarr_lee_tablas(leido, tablas))
        return false;
    auto *hacia = static_cast<char *>(destino);
    for (size_t fila = 0; fila < tablas.filas.size(); ++fila) {
        if (!debugarr_lee_fila(leido, tablas, fila, hacia))
            return false;
        hacia += tablas.longitudes[fila] * leido.size_elem;
    }
    return true;
}

bool debugarr_lee_cadena(const char *cadena, size_t maximo, std::string &destino)
{
    return lee_cadena(cadena, maximo, destino);
}

bool debugarr_lee_cadena_ancha(const WCHAR *cadena, size_t maximo, std::u16string &destino)
{
    return lee_cadena(cadena, maximo, destino);
}
