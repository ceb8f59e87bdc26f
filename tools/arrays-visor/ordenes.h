// The viewer's commands; each returns the process's exit code (Fallo).
#pragma once

#include "bloque.h"
#include "tipos.h"

#include <cstdint>
#include <string>

// Prints "arrays-visor: <motivo>" on standard error and returns the failure's exit code.
int falla(Fallo fallo, const std::string &motivo);

// show: the block published under `identificador` as the library's dump lists it.
int muestra(uint32_t identificador, const TipoVisor &tipo);
// count: the element-count block; with `seguir`, again at every change until interrupted.
int cuenta(bool seguir, unsigned intervalo_ms);
// plot: the polyline of a block of 2D points (or the x, y of 3D points) as an SVG file.
int dibuja(uint32_t identificador, const TipoVisor &tipo, const std::string &fichero);

// The published block of `identificador`, checked against `tipo`: NULL (after saying why, with
// the failure in *fallo) when it cannot be read as that type.
const BloquePublicado *abre_como(const BloquePublicado &bloque, const TipoVisor &tipo,
                                 Fallo *fallo);
