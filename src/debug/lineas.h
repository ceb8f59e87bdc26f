// The text of the debug dump: the module's fixed messages and the line of each element, formatted
// into the one module-wide line buffer of DEBUGARR_BYTES_LINEA bytes, so a longer line is cut.
// The narrow texts are Windows-1252 bytes (the á and ó of the messages are 0xE1 and 0xF3).
#pragma once

#include "arrays.h"

#include <cstddef>

inline constexpr size_t DEBUGARR_BYTES_LINEA = 65536;

inline constexpr const char *DEBUGARR_ARRAY_NULL = "\r\nArray es NULL.\r\n";
inline constexpr const char *DEBUGARR_DIRECCION_NO_VALIDA =
    "\r\nArray con direcci\xF3n no v\xE1lida.\r\n";
inline constexpr const char *DEBUGARR_NO_IMPLEMENTADO = "\r\nTipo de array no implementado.\r\n";
inline constexpr const char *DEBUGARR_CUENTA_NULL = "\r\nArray acadorde es NULL.\r\n";
inline constexpr const char *DEBUGARR_CUENTA_NO_VALIDA = "\r\nArray acadorde no v\xE1lido.\r\n";

// printf's formatting into the line buffer, at most DEBUGARR_BYTES_LINEA - 1 characters and
// then terminated; returns the buffer.
const char *debugarr_formatea(const char *formato, ...) __attribute__((format(printf, 1, 2)));

// The header line of the dump of an array of `num_elems` elements.
const char *debugarr_linea_cabecera(ULONG num_elems);

// True for the types whose elements the dump lists: all but bits and typed pointers.
bool debugarr_tiene_lineas(tipo_elem_array tipo);

// The line of the element at `posicion` (counted from 0) for the tags whose elements the dump
// prints from their own bytes: BYTE, BOOL, UChar, Char, UShort, Short, ULong, Long, ULong64,
// Long64, Double and the points (x, y and z at the start of `elemento`). NULL for any other tag.
const char *debugarr_linea_elemento(tipo_elem_array tipo, ULONG posicion, const void *elemento);
