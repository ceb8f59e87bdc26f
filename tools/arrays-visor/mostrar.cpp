// show: a published block listed as the library's dump lists the array, line for line.
#include "ordenes.h"

#include "debug/lineas.h"

#include <cstdio>

int falla(Fallo fallo, const std::string &motivo)
{
    std::fprintf(stderr, "arrays-visor: %s\n", motivo.c_str());
    return static_cast<int>(fallo);
}

const BloquePublicado *abre_como(const BloquePublicado &bloque, const TipoVisor &tipo,
                                 Fallo *fallo)
{
    *fallo = bloque.fallo();
    if (*fallo != Fallo::ninguno) {
        falla(*fallo, bloque.motivo());
        return nullptr;
    }
    if (bloque.size_elem() != tipo.size_elem) {
        *fallo = Fallo::tipo;
        falla(*fallo, bloque.nombre() + " holds elements of " + std::to_string(bloque.size_elem()) +
                          " bytes; " + tipo.nombre + " elements have " +
                          std::to_string(tipo.size_elem));
        return nullptr;
    }
    return &bloque;
}

int muestra(uint32_t identificador, const TipoVisor &tipo)
{
    const BloquePublicado bloque(identificador);
    Fallo fallo;
    if (abre_como(bloque, tipo, &fallo) == nullptr)
        return static_cast<int>(fallo);
    std::fputs(debugarr_linea_cabecera(static_cast<ULONG>(bloque.num_elems())), stdout);
    if (tipo.tipo == elem_CADENA_NO_USAR || tipo.tipo == elem_CADENA_U_NO_USAR) {
        std::fprintf(stderr,
                     "arrays-visor: %s holds %zu string pointers of the publishing process; their "
                     "text cannot be read from another process\n",
                     bloque.nombre().c_str(), bloque.num_elems());
        return 0;
    }
    if (!debugarr_tiene_lineas(tipo.tipo)) {
        std::fputs(DEBUGARR_NO_IMPLEMENTADO, stdout);
        return 0;
    }
    for (size_t i = 0; i < bloque.num_elems(); ++i)
        std::fputs(debugarr_linea_elemento(tipo.tipo, static_cast<ULONG>(i), bloque.elemento(i)),
                   stdout);
    return 0;
}
