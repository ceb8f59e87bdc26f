// What the modules of the typed pointer and structure family share: their reporting location, the
// entry check of their exports, element reads and the walk over the slots of a pointer array.
#pragma once

#include "core/arrayprv.h"

inline constexpr const char *UBICACION_A_PUNTER = "a_punter (ARRAYS.DLL)";

// The tag test of this family's own checks.
inline constexpr const char *TEXTO_TIPO_PUNTERO = "array->tipo_elem == elem_PUNTERO_NO_USAR";

// The header check of an export, reported from this module: the handle (textos.nulo), the mark
// and, when `guardas`, the loop guards. In checking mode the full check with the strictness of
// `modo` replaces these, unless `modo` is Modo::ninguno. False when the array cannot be touched,
// and, when `guardas`, while a walk runs over it (arrayprv_admite_cambio).
bool punteros_cabecera(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo);

// The header check, then the pointer tag (texto_tipo); false when the array cannot be used.
bool punteros_entrada(const ARRAY *array, bool guardas, Modo modo,
                      const TextosEntrada &textos = TEXTOS_ARRAY,
                      const char *texto_tipo = TEXTO_TIPO_PUNTERO);

// The checks of a concatenation: origin (read) and destination (written, so not busy), both
// pointer arrays. False when the two cannot be used.
bool punteros_entrada_concatenacion(const ARRAY *dest, const ARRAY *org);

// Reports a NULL handle from this module ("(array) != NULL"); false when the export must end.
bool punteros_hay_array(const ARRAY *array);

// The pointer stored at `pos` (core element read); NULL when there is no such element.
void *punteros_get(const ARRAY *array, ULONG pos);

// Calls visita(slot) with the address of every stored pointer from `desde` to the end of the
// array as it stood on entry, with the write guard set meanwhile. Nothing when `desde` is not
// below the count.
template <typename Visita> void punteros_visita_desde(ARRAY *array, ULONG desde, Visita &&visita)
{
    posicion_array inicio;
    if (desde >= array->num_elems || !arrayprv_posicion(array, desde, &inicio))
        return;
    array->en_bucle = CIERTO;
    arrayprv_visita(array, inicio, array->num_elems - desde,
                    [&](char *slot) { visita(reinterpret_cast<void **>(slot)); });
    array->en_bucle = FALSO;
}

// Deletes the element at pos once libera_slot(slot) has released what it holds. Inside a walk of
// the array the delete is refused (arr_BorrarPuntero reports it) and nothing is released, so that
// neither the walk nor the array is left with a dangling element.
template <typename Libera>
void punteros_borra_liberando(ARRAY *array, ULONG pos, Libera &&libera_slot)
{
    if (arrayprv_recorridos(array) == 0) {
        void *slot = arrayprv_get(array, pos, elem_PUNTERO_NO_USAR);
        if (slot == nullptr)
            return;
        libera_slot(static_cast<void **>(slot));
    }
    arr_BorrarPuntero(array, pos);
}

// The destruction of a structure array shared by its exported forms: libera (if given) on every
// slot with the write guard set, then the rows and the header; *array ends NULL.
void punteros_destruye_estructuras(ARRAY **array, void (*libera)(void **elemento));
