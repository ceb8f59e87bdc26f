// The type-independent bodies of append, insert, delete, get, set, initialise, grow and shrink.
// Elements cross as raw bytes of size_elem; the families pass their tag.
#include "core/arrayprv.h"
#include "core/guia.h"

#include "services/informes.h"
#include "services/memoria.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

size_t bytes_de_bits(size_t num_bits) { return num_bits / 8 + (num_bits % 8 != 0 ? 1 : 0); }

// The first row of an empty array, sized by the growth rule for one element.
void crea_primera_fila(ARRAY *array)
{
    const size_t capacidad = arrayprv_incremento_fila(0, 1, array->long_max_fila_en_elem);
    array->num_filas = 1;
    array->long_filas = static_cast<size_t *>(zarpspy_nousar_calloc(1, sizeof(size_t)));
    array->max_long_filas = static_cast<size_t *>(zarpspy_nousar_calloc(1, sizeof(size_t)));
    array->acumulado_filas = static_cast<size_t *>(zarpspy_nousar_calloc(1, sizeof(size_t)));
    array->buffer = static_cast<char **>(zarpspy_nousar_calloc(1, sizeof(char *)));
    array->buffer[0] = static_cast<char *>(zarpspy_nousar_calloc(capacidad, array->size_elem));
    array->max_long_filas[0] = capacidad;
}

// Makes room for an insertion at `destino`, a position inside a row at the maximum length:
// spills the row's last element into the next row when that one has room, otherwise splits the
// row in two halves. Updates `destino` to where the new element must go.
void haz_sitio(ARRAY *array, posicion_array &destino)
{
    const size_t fila = destino.fila;
    const size_t long_max = array->long_max_fila_en_elem;
    if (fila + 1 < array->num_filas && array->long_filas[fila + 1] < long_max) {
        arrayprv_mueve_elementos(array, fila + 1, 0, fila, array->long_filas[fila] - 1, 1);
        return;
    }
    const size_t long_fila_nueva = array->long_filas[fila] / 2;
    const size_t long_fila_vieja = array->long_filas[fila] - long_fila_nueva;
    if (!ARR_EXIGE(long_fila_vieja > 0 && long_fila_nueva > 0,
                   "long_fila_vieja > 0 && long_fila_nueva > 0")) {
        // A one-element row cannot be halved: the new element gets a row of its own before it.
        arrayprv_inserta_fila(array, fila, 1);
        destino = {fila, 0};
        return;
    }
    arrayprv_inserta_fila(array, fila + 1, long_fila_nueva);
    arrayprv_mueve_elementos(array, fila + 1, 0, fila, long_fila_vieja, long_fila_nueva);
    if (destino.pos > long_fila_vieja)
        destino = {fila + 1, destino.pos - long_fila_vieja};
}

// Inserts at a position and counts the element; an empty row left by a refused insertion is
// dropped so that no row stays empty.
void pon_en(ARRAY *array, const posicion_array &destino, const void *elemento)
{
    if (arrayprv_inserta_en_fila(array, &destino, elemento))
        ++array->num_elems;
    else
        arrayprv_quita_filas_vacias(array);
}

// The row of an index once the immediate lookup (computed rows, then the direct table) has
// missed, through the guide; false (without a report) for an index at or past num_elems, or one
// the guide does not find. While the direct table is expired, the read counts towards its next
// build.
bool posicion_guiada_contada(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    if (real_pos >= array->num_elems)
        return false;
    arrayprv_directa_cuenta_lectura(array);
    return arrayprv_posicion_guiada(array, real_pos, posi);
}

} // namespace

size_t arrayprv_append_comprobado(ARRAY *array, const void *elemento, tipo_elem_array tipo_elem)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, true, Modo::estricto, tipo_elem) ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY_CORTO))
        return 0;
    if (array->long_max_fila_en_elem == 0) // rows of this array cannot hold an element
        return array->num_elems;
    if (array->num_filas > 0 &&
        array->long_filas[array->num_filas - 1] >= array->long_max_fila_en_elem) {
        ARR_EXIGE(array->long_filas[array->num_filas - 1] == array->long_max_fila_en_elem,
                  "array->long_filas[array->num_filas - 1] == array->long_max_fila_en_elem");
        arrayprv_inserta_fila(array, array->num_filas, 0);
    }
    if (array->num_filas == 0)
        crea_primera_fila(array);
    const size_t ultima = array->num_filas - 1;
    pon_en(array, posicion_array{ultima, array->long_filas[ultima]}, elemento);
    return array->num_elems;
}

void arrayprv_inserta(ARRAY *array, ULONG real_pos, const void *elemento, tipo_elem_array tipo_elem)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, true, Modo::ninguno, tipo_elem))
        return;
    if (real_pos == array->num_elems) {
        arrayprv_append(array, elemento, tipo_elem);
        return;
    }
    if (arrayprv_es_modo_comprobacion())
        arrayprv_comprueba_array(array, 1);
    if (!arrayprv_admite_cambio(array, TEXTOS_ARRAY_CORTO))
        return;
    posicion_array destino;
    if (!arrayprv_posicion(array, real_pos, &destino))
        return;
    if (array->long_filas[destino.fila] >= array->long_max_fila_en_elem) {
        ARR_EXIGE(array->long_filas[destino.fila] == array->long_max_fila_en_elem,
                  "array->long_filas[posi.fila] == array->long_max_fila_en_elem");
        haz_sitio(array, destino);
    }
    pon_en(array, destino, elemento);
    arrayprv_guia_tras_cambio(array, real_pos, 1);
}

void arrayprv_borra(ARRAY *array, ULONG real_pos, tipo_elem_array tipo_elem)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, true, Modo::estricto, tipo_elem) ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY_CORTO))
        return;
    posicion_array posi;
    if (!arrayprv_posicion(array, real_pos, &posi))
        return;
    arrayprv_borra_en_fila(array, &posi);
    --array->num_elems;
    arrayprv_guia_tras_cambio(array, real_pos, -1);
}

void *arrayprv_get_comprobado(const ARRAY *array, ULONG real_pos, tipo_elem_array tipo_elem)
{
    posicion_array posi;
    const bool rapida = arrayprv_vivo_de_tipo(array, tipo_elem) &&
                        (posicion_guiada_contada(array, real_pos, &posi) ||
                         arrayprv_posicion_irregular(array, real_pos, &posi));
    if (!rapida &&
        (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, false, Modo::ninguno, tipo_elem) ||
         !arrayprv_posicion(array, real_pos, &posi)))
        return nullptr;
    return array->buffer[posi.fila] + posi.pos * array->size_elem;
}

void arrayprv_set_comprobado(ARRAY *array, ULONG real_pos, const void *elemento,
                             tipo_elem_array tipo_elem)
{
    posicion_array posi;
    const bool rapida = arrayprv_vivo_e_inactivo(array, tipo_elem) &&
                        (posicion_guiada_contada(array, real_pos, &posi) ||
                         arrayprv_posicion_irregular(array, real_pos, &posi));
    if (!rapida &&
        (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, true, Modo::ninguno, tipo_elem) ||
         !arrayprv_posicion(array, real_pos, &posi)))
        return;
    std::memcpy(array->buffer[posi.fila] + posi.pos * array->size_elem, elemento, array->size_elem);
}

void arrayprv_inicializa(ARRAY *array, const void *elemento, tipo_elem_array tipo)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY_CORTO, true, Modo::estricto, tipo,
                               "array->tipo_elem == tipo"))
        return;
    const size_t size = array->size_elem;
    arrayprv_visita_todos(array, [&](char *destino) { std::memcpy(destino, elemento, size); });
}

void arrayprv_aumenta_tamanyo(ARRAY *array, ULONG nuevo_tamanyo_pedido)
{
    if (!arrayprv_entrada(array, TEXTOS_ARRAY, true, Modo::estricto) ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY))
        return;
    size_t nuevo_tamanyo = nuevo_tamanyo_pedido;
    if (array->tipo_elem == elem_BIT_NO_USAR) {
        if (nuevo_tamanyo == array->num_bits)
            return;
        array->num_bits = nuevo_tamanyo_pedido;
        nuevo_tamanyo = bytes_de_bits(nuevo_tamanyo);
    }
    ARR_EXIGE(nuevo_tamanyo >= array->num_elems, "nuevo_tamanyo >= array->num_elems");
    if (nuevo_tamanyo == array->num_elems)
        return;
    if (!ARR_EXIGE(nuevo_tamanyo > array->num_elems, "nuevo_tamanyo > array->num_elems") ||
        array->long_max_fila_en_elem == 0)
        return;
    size_t extra = nuevo_tamanyo - array->num_elems;
    arrayprv_compacta(array);
    if (array->num_filas > 0) {
        // Slots that an earlier shrink cut off are taken back as they are.
        const size_t ultima = array->num_filas - 1;
        const size_t tomados =
            std::min(extra, array->max_long_filas[ultima] - array->long_filas[ultima]);
        array->long_filas[ultima] += tomados;
        array->num_elems += tomados;
        extra -= tomados;
    }
    if (extra > 0)
        arrayprv_anyade_filas(array, extra);
}

void arrayprv_reduce_tamanyo(ARRAY *array, ULONG nuevo_tamanyo_pedido)
{
    if (!arrayprv_entrada(array, TEXTOS_ARRAY, true, Modo::estricto) ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY))
        return;
    ARR_EXIGE(array->tipo_elem != elem_antiguo_PUNTO3DX, "array->tipo_elem != elem_antiguo_PUNTO3DX");
    size_t nuevo_tamanyo = nuevo_tamanyo_pedido;
    if (array->tipo_elem == elem_BIT_NO_USAR) {
        if (nuevo_tamanyo == array->num_bits)
            return;
        array->num_bits = nuevo_tamanyo_pedido;
        nuevo_tamanyo = bytes_de_bits(nuevo_tamanyo);
    }
    ARR_EXIGE(nuevo_tamanyo <= array->num_elems, "nuevo_tamanyo <= array->num_elems");
    if (nuevo_tamanyo >= array->num_elems)
        return;
    arrayprv_libera_contenido_desde(array, static_cast<ULONG>(nuevo_tamanyo));
    arrayprv_recorta(array, nuevo_tamanyo);
}

void arrayprv_recorta(ARRAY *array, size_t nuevo_tamanyo)
{
    if (!ARR_EXIGE(array, "array") ||
        !ARR_EXIGE(nuevo_tamanyo < array->num_elems, "nuevo_tamanyo < array->num_elems"))
        return;
    ARR_EXIGE(array->num_elems - nuevo_tamanyo < INT_MAX,
              "array->num_elems - nuevo_tamanyo < INT_MAX");
    // From the last row backwards; capacities stay and the cut slots are not cleared.
    for (size_t fila = array->num_filas; fila-- > 0 && array->num_elems > nuevo_tamanyo;) {
        const size_t k = std::min(array->num_elems - nuevo_tamanyo, array->long_filas[fila]);
        arrayprv_filas_cambian_desde(array, fila);
        array->long_filas[fila] -= k;
        array->num_elems -= k;
    }
    arrayprv_quita_filas_vacias(array);
}
