// The names under which the debug module publishes, which an outside tool opens: one block per
// identifier (printed as a signed 32-bit number, as the original platform's %ld printed it) and
// the one element-count block.
#pragma once

#include <cinttypes>

#define DEBUGARR_PATRON_BLOQUE "MemComp_ZarpTools_debugarr_%" PRId32
inline constexpr const char *DEBUGARR_NOMBRE_CUENTA = "MemComp_ZarpTools_serializa_num_elems";

// The header of a published block: 4 bytes of data-byte count and 4 of element size, both
// little-endian, before the elements.
inline constexpr unsigned DEBUGARR_BYTES_CABECERA = 8;
// The element-count block: the count, then two words of 0.
inline constexpr unsigned DEBUGARR_BYTES_CUENTA = 12;
