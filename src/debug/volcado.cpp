// The text dump of an array on the debugger output: a header line with the element count, then
// one line per element in its type's format. The handle is read under the guard, so a NULL,
// stale or wild one is named by a message instead of faulting.
#include "debug/lectura.h"
#include "debug/lineas.h"
#include "debug/salida.h"
#include "services/memoria.h"

#include <algorithm>
#include <cstring>

namespace {

// The wide line of a wide string element: "[N]: " and the string between double quotes, cut as a
// narrow line is, at DEBUGARR_BYTES_LINEA - 1 code units.
void escribe_cadena_ancha(int indice, const std::u16string &cadena)
{
    static WCHAR linea[DEBUGARR_BYTES_LINEA];
    std::u16string texto;
    for (const char *c = debugarr_formatea("[%d]: \"", indice); *c != 0; ++c)
        texto += static_cast<WCHAR>(*c);
    texto += cadena;
    texto += u"\"\r\n";
    const size_t longitud = std::min(texto.size(), DEBUGARR_BYTES_LINEA - 1);
    std::memcpy(linea, texto.data(), longitud * sizeof(WCHAR));
    linea[longitud] = 0;
    debugarr_escribe_ancho(linea);
}

// The line of element `posicion`, whose bytes are at `elemento`; false when a string element
// cannot be read.
bool escribe_elemento(tipo_elem_array tipo, ULONG posicion, const char *elemento)
{
    const int indice = static_cast<int>(posicion + 1);
    if (tipo == elem_CADENA_NO_USAR) {
        std::string cadena;
        if (!debugarr_lee_cadena(static_cast<const char *>(zarpspy_lee_puntero(elemento)),
                                 DEBUGARR_BYTES_LINEA, cadena))
            return false;
        debugarr_escribe(debugarr_formatea("[%d]: \"%s\"\r\n", indice, cadena.c_str()));
    } else if (tipo == elem_CADENA_U_NO_USAR) {
        std::u16string cadena;
        if (!debugarr_lee_cadena_ancha(static_cast<const WCHAR *>(zarpspy_lee_puntero(elemento)),
                                       DEBUGARR_BYTES_LINEA, cadena))
            return false;
        escribe_cadena_ancha(indice, cadena);
    } else {
        debugarr_escribe(debugarr_linea_elemento(tipo, posicion, elemento));
    }
    return true;
}

// One line per element, each row read under the guard; false when any part cannot be read.
bool escribe_elementos(const ArrayLeido &leido)
{
    TablasLeidas tablas;
    if (!debugarr_lee_tablas(leido, tablas))
        return false;
    std::vector<char> fila;
    ULONG posicion = 0;
    for (size_t f = 0; f < tablas.filas.size(); ++f) {
        fila.resize(tablas.longitudes[f] * leido.size_elem);
        if (!debugarr_lee_fila(leido, tablas, f, fila.data()))
            return false;
        for (size_t i = 0; i < tablas.longitudes[f]; ++i, ++posicion)
            if (!escribe_elemento(leido.tipo, posicion, fila.data() + i * leido.size_elem))
                return false;
    }
    return true;
}

} // namespace

extern "C" ARRAYS_API void debugarr_outputDebug(const ARRAY *array) noexcept
{
    const ArrayLeido leido = debugarr_lee_array(array);
    switch (leido.estado) {
    case EstadoArray::nulo:
        debugarr_escribe(DEBUGARR_ARRAY_NULL);
        return;
    case EstadoArray::ilegible:
        debugarr_escribe(DEBUGARR_DIRECCION_NO_VALIDA);
        return;
    case EstadoArray::no_valido:
        return;
    case EstadoArray::bits:
    case EstadoArray::valido:
        break;
    }
    debugarr_escribe(debugarr_linea_cabecera(leido.num_elems));
    if (leido.estado == EstadoArray::bits || !debugarr_tiene_lineas(leido.tipo))
        debugarr_escribe(DEBUGARR_NO_IMPLEMENTADO);
    else if (!escribe_elementos(leido))
        debugarr_escribe(DEBUGARR_DIRECCION_NO_VALIDA);
}
