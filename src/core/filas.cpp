// Row storage: the growth rule, adding, inserting and removing rows, compaction, moving runs of
// elements between rows, and inserting or removing one element inside its row. Every operation
// that changes a row's count fixes the prefix sums of the later rows at once, and every one that
// may move, free or shorten a row or shift elements inside one expires the direct table first
// (core/directa.h); adding rows after the last one moves nothing.
#include "core/arrayprv.h"
#include "core/guia.h"

#include "services/informes.h"
#include "services/losas.h"
#include "services/memoria.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

char *elemento(const ARRAY *array, size_t fila, size_t pos)
{
    return array->buffer[fila] + pos * array->size_elem;
}

// Adds `delta` (modulo 2^64, so a negative delta wraps) to entries desde..fin-1 of a table: one
// plain loop that the compiler vectorizes, compiled below for the baseline and for wider vectors.
// After an insert in the middle of a large array it touches thousands of rows.
[[gnu::always_inline]] inline void suma_en_bucle(size_t *tabla, size_t desde, size_t fin, size_t delta)
{
    for (size_t i = desde; i < fin; ++i)
        tabla[i] += delta;
}

using funcion_suma = void (*)(size_t *tabla, size_t desde, size_t fin, size_t delta);

void suma_base(size_t *tabla, size_t desde, size_t fin, size_t delta)
{
    suma_en_bucle(tabla, desde, fin, delta);
}
[[gnu::target("avx2")]] void suma_avx2(size_t *tabla, size_t desde, size_t fin, size_t delta)
{
    suma_en_bucle(tabla, desde, fin, delta);
}
[[gnu::target("avx512f")]] void suma_avx512(size_t *tabla, size_t desde, size_t fin, size_t delta)
{
    suma_en_bucle(tabla, desde, fin, delta);
}

// The widest form the processor runs, chosen at the first call.
void suma_a_tabla(size_t *tabla, size_t desde, size_t fin, size_t delta)
{
    static const funcion_suma suma = __builtin_cpu_supports("avx512f") ? suma_avx512
                                     : __builtin_cpu_supports("avx2") ? suma_avx2
                                                                       : suma_base;
    suma(tabla, desde, fin, delta);
}

// Adds `delta` to the prefix sums of rows desde..hasta.
void suma_acumulados(ARRAY *array, size_t desde, size_t hasta, size_t delta)
{
    suma_a_tabla(array->acumulado_filas, desde, std::min(hasta + 1, size_t{array->num_filas}), delta);
}

// The header is packed, so its table pointers may sit at unaligned addresses: the tables are
// resized and freed through aligned copies of the pointers, never through references to them.
// Tables keep spare room so that adding or removing a row rarely reallocates: a table is
// reallocated to the next power of two of entries when it is too small, or when it uses less
// than a quarter of its block.
template <typename T> T *redimensionada(T *tabla, size_t num)
{
    const size_t bytes = num * sizeof(T);
    const size_t bloque = tabla != nullptr ? zarpspy_tamanyo_bloque(tabla) : 0;
    if (bytes <= bloque && bytes > bloque / 4)
        return tabla;
    return static_cast<T *>(zarpspy_nousar_realloc(tabla, std::bit_ceil(num) * sizeof(T)));
}

template <typename T> T *liberada(T *tabla)
{
    zarpspy_nousar_free_pp(&tabla, sizeof(T));
    return tabla;
}

// Resizes the four tables to `num` entries, in the order buffer, long_filas, max_long_filas,
// acumulado_filas.
void redimensiona_tablas(ARRAY *array, size_t num)
{
    array->buffer = redimensionada(array->buffer, num);
    array->long_filas = redimensionada(array->long_filas, num);
    array->max_long_filas = redimensionada(array->max_long_filas, num);
    array->acumulado_filas = redimensionada(array->acumulado_filas, num);
}

void libera_tablas(ARRAY *array)
{
    array->buffer = liberada(array->buffer);
    array->long_filas = liberada(array->long_filas);
    array->max_long_filas = liberada(array->max_long_filas);
    array->acumulado_filas = liberada(array->acumulado_filas);
}

// Elements that the block of row `fila` is made to hold when it is created or must grow, in an
// array of num_filas rows. The last row, unless it is the first, gets a block for a full row at
// once: appending to a large array then never moves a row to grow it, and its rows lie next to
// each other in memory. Every other row's block follows its capacity, so a small array stays
// small and the rows that inserts split keep only what they hold. Capacities (max_long_filas)
// follow the growth rule whatever the block holds.
size_t elementos_del_bloque(const ARRAY *array, size_t fila, size_t num_filas, size_t capacidad)
{
    const bool ultima_no_primera = fila > 0 && fila + 1 == num_filas;
    return ultima_no_primera ? std::max(capacidad, size_t{array->long_max_fila_en_elem}) : capacidad;
}

// Whether the block of row `fila` comes from a slab: a full row's block, in an array whose rows
// before it have room for four of a slab's chunks. Filling a large array then takes a page fault
// per chunk instead of one per 4 KiB, a small array never holds part of a chunk, and the unused
// part of the last chunk is at most a quarter of what an array holds.
constexpr size_t TROZOS_ANTES_DE_LOSAS = 4;

bool fila_de_losa(const ARRAY *array, size_t fila, size_t elementos)
{
    const size_t bytes_fila = size_t{array->long_max_fila_en_elem} * array->size_elem;
    return elementos == array->long_max_fila_en_elem &&
           fila * bytes_fila >= TROZOS_ANTES_DE_LOSAS * LOSAS_BYTES_TROZO;
}

// A new block of `elementos` for row `fila`, its first `capacidad` slots zeroed.
char *nueva_fila(const ARRAY *array, size_t fila, size_t capacidad, size_t elementos)
{
    const size_t size_elem = array->size_elem;
    const size_t bytes = elementos * size_elem;
    void *bloque = fila_de_losa(array, fila, elementos) ? zarpspy_reserva_en_losa(bytes)
                                                         : zarpspy_nousar_malloc(bytes);
    std::memset(bloque, 0, capacidad * size_elem);
    return static_cast<char *>(bloque);
}

} // namespace

size_t arrayprv_incremento_fila(size_t long_actual, size_t elem_a_poner, size_t long_max)
{
    ARR_EXIGE(long_actual + elem_a_poner <= long_max, "long_actual + elem_a_poner <= long_max");
    const size_t incremento =
        static_cast<size_t>(0.2 * static_cast<double>(long_actual)) + elem_a_poner + 10;
    return std::min(incremento, long_max > long_actual ? long_max - long_actual : 0);
}

void arrayprv_crece_fila(ARRAY *array, size_t fila, size_t elem_a_poner)
{
    arrayprv_directa_caduca(array); // the block may move
    const size_t capacidad = array->max_long_filas[fila];
    const size_t incremento =
        arrayprv_incremento_fila(capacidad, elem_a_poner, array->long_max_fila_en_elem);
    const size_t size_elem = array->size_elem;
    const char *bloque = array->buffer[fila];
    if (bloque == nullptr || zarpspy_tamanyo_bloque(bloque) < (capacidad + incremento) * size_elem)
        array->buffer[fila] = static_cast<char *>(zarpspy_nousar_realloc(
            array->buffer[fila],
            elementos_del_bloque(array, fila, array->num_filas, capacidad + incremento) * size_elem));
    std::memset(elemento(array, fila, capacidad), 0, incremento * size_elem);
    array->max_long_filas[fila] = capacidad + incremento;
}

void arrayprv_anyade_filas(ARRAY *array, size_t num_elems_a_poner)
{
    const size_t long_max = array->long_max_fila_en_elem;
    if (!ARR_EXIGE(num_elems_a_poner > 0, "num_elems_a_poner > 0") || long_max == 0)
        return;
    const size_t resto = num_elems_a_poner % long_max;
    const size_t numfilas = num_elems_a_poner / long_max + (resto != 0 ? 1 : 0);
    ARR_EXIGE(MAX_FILAS > array->num_filas + numfilas,
              "INT_MAX / sizeof(char *) - 1 > array->num_filas + numfilas");
    const size_t primera = array->num_filas;
    redimensiona_tablas(array, primera + numfilas);
    for (size_t i = primera; i < primera + numfilas; ++i) {
        const bool ultima = i == primera + numfilas - 1;
        const size_t num = ultima && resto != 0 ? resto : long_max;
        array->buffer[i] =
            nueva_fila(array, i, num, elementos_del_bloque(array, i, primera + numfilas, num));
        array->long_filas[i] = num;
        array->max_long_filas[i] = num;
        array->acumulado_filas[i] =
            i == primera ? array->num_elems : array->acumulado_filas[i - 1] + array->long_filas[i - 1];
    }
    array->num_filas = primera + numfilas;
    array->num_elems += num_elems_a_poner;
    arrayprv_cuenta_filas_llenas(array);
}

void arrayprv_inserta_fila(ARRAY *array, size_t fila, size_t elem_a_poner)
{
    const bool fila_valida = ARR_EXIGE(fila <= array->num_filas, "fila <= array->num_filas");
    ARR_EXIGE(array->num_filas < MAX_FILAS, "array->num_filas < INT_MAX / sizeof(char *) - 1");
    if (!fila_valida)
        return;
    const size_t posteriores = array->num_filas - fila;
    arrayprv_filas_cambian_desde(array, fila);
    const size_t inicio = fila < array->num_filas ? array->acumulado_filas[fila] : array->num_elems;
    arrayprv_guia_renumera_filas(array, inicio, 1);
    redimensiona_tablas(array, array->num_filas + 1);
    std::memmove(array->buffer + fila + 1, array->buffer + fila, posteriores * sizeof(char *));
    std::memmove(array->long_filas + fila + 1, array->long_filas + fila, posteriores * sizeof(size_t));
    std::memmove(array->max_long_filas + fila + 1, array->max_long_filas + fila,
                 posteriores * sizeof(size_t));
    std::memmove(array->acumulado_filas + fila + 1, array->acumulado_filas + fila,
                 posteriores * sizeof(size_t));
    const size_t capacidad = arrayprv_incremento_fila(0, elem_a_poner, array->long_max_fila_en_elem);
    const size_t elementos = elementos_del_bloque(array, fila, array->num_filas + 1, capacidad);
    array->buffer[fila] = nueva_fila(array, fila, capacidad, elementos);
    array->long_filas[fila] = 0;
    array->max_long_filas[fila] = capacidad;
    array->acumulado_filas[fila] =
        fila == 0 ? 0 : array->acumulado_filas[fila - 1] + array->long_filas[fila - 1];
    ++array->num_filas;
    arrayprv_cuenta_filas_llenas(array);
}

void arrayprv_borra_fila(ARRAY *array, size_t fila)
{
    if (!ARR_EXIGE(array->num_filas > 0, "array->num_filas > 0") || fila >= array->num_filas)
        return;
    const size_t quitados = array->long_filas[fila];
    arrayprv_filas_cambian_desde(array, fila);
    arrayprv_guia_renumera_filas(array, array->acumulado_filas[fila] + quitados, -1);
    zarpspy_nousar_free_pp(&array->buffer[fila], 1);
    if (array->num_filas == 1) {
        libera_tablas(array);
    } else {
        const size_t posteriores = array->num_filas - fila - 1;
        std::memmove(array->buffer + fila, array->buffer + fila + 1, posteriores * sizeof(char *));
        std::memmove(array->long_filas + fila, array->long_filas + fila + 1,
                     posteriores * sizeof(size_t));
        std::memmove(array->max_long_filas + fila, array->max_long_filas + fila + 1,
                     posteriores * sizeof(size_t));
        std::memmove(array->acumulado_filas + fila, array->acumulado_filas + fila + 1,
                     posteriores * sizeof(size_t));
        for (size_t i = fila; i < fila + posteriores; ++i)
            array->acumulado_filas[i] -= quitados;
        redimensiona_tablas(array, array->num_filas - 1);
    }
    --array->num_filas;
}

void arrayprv_quita_filas_vacias(ARRAY *array)
{
    const size_t num_filas = array->num_filas;
    if (num_filas == 0)
        return;
    arrayprv_directa_caduca(array);
    BOOL *vacias = static_cast<BOOL *>(zarpspy_nousar_calloc(num_filas, sizeof(BOOL)));
    size_t num_filas_a_borrar = 0;
    for (size_t i = 0; i < num_filas; ++i) {
        vacias[i] = array->long_filas[i] == 0;
        num_filas_a_borrar += vacias[i];
    }
    if (num_filas_a_borrar == num_filas) {
        ARR_EXIGE(num_filas_a_borrar == array->num_filas, "num_filas_a_borrar == array->num_filas");
        arrayprv_libera_filas(array);
    } else if (num_filas_a_borrar > 0) {
        const size_t num_filas_final = num_filas - num_filas_a_borrar;
        char **buffer = static_cast<char **>(zarpspy_nousar_malloc(num_filas_final * sizeof(char *)));
        auto nueva_tabla = [&] {
            return static_cast<size_t *>(zarpspy_nousar_malloc(num_filas_final * sizeof(size_t)));
        };
        size_t *long_filas = nueva_tabla();
        size_t *max_long_filas = nueva_tabla();
        size_t *acumulado_filas = nueva_tabla();
        size_t i_filas = 0;
        for (size_t i = 0; i < num_filas; ++i) {
            if (vacias[i]) {
                zarpspy_nousar_free_pp(&array->buffer[i], 1);
            } else if (i_filas < num_filas_final) {
                buffer[i_filas] = array->buffer[i];
                long_filas[i_filas] = array->long_filas[i];
                max_long_filas[i_filas] = array->max_long_filas[i];
                acumulado_filas[i_filas] = array->acumulado_filas[i];
                ++i_filas;
            }
        }
        ARR_EXIGE(i_filas == num_filas_final, "i_filas == num_filas_final");
        libera_tablas(array);
        array->buffer = buffer;
        array->long_filas = long_filas;
        array->max_long_filas = max_long_filas;
        array->acumulado_filas = acumulado_filas;
        array->num_filas = num_filas_final;
        arrayprv_guia_reconstruye(array);
    }
    zarpspy_nousar_free_pp(&vacias, sizeof(BOOL));
}

void arrayprv_compacta(ARRAY *array)
{
    if (!arrayprv_entrada(array, TEXTOS_ARRAY, true, Modo::estricto) ||
        !arrayprv_admite_cambio(array, TEXTOS_ARRAY) || array->num_filas == 0)
        return;
    size_t restantes = array->num_elems;
    for (size_t i = 0; i + 1 < array->num_filas; ++i) {
        if (array->long_filas[i] == 0)
            continue;
        restantes -= array->long_filas[i]; // now: elements in the rows after row i
        size_t libres = array->max_long_filas[i] - array->long_filas[i];
        const size_t crecer = array->long_max_fila_en_elem - array->max_long_filas[i];
        if (crecer > 0 && restantes > libres) {
            const size_t a_poner = std::min(restantes - libres, crecer);
            arrayprv_crece_fila(array, i, a_poner);
            libres += a_poner;
        }
        // Pull elements from the front of the following rows until row i has no room left.
        for (size_t j = i + 1; libres > 0 && j < array->num_filas; ++j) {
            const size_t k = std::min(libres, array->long_filas[j]);
            if (k > 0) {
                arrayprv_mueve_elementos(array, i, array->long_filas[i], j, 0, k);
                libres -= k;
                restantes -= k;
            }
        }
    }
    arrayprv_guia_olvida(array);
    arrayprv_quita_filas_vacias(array);
    arrayprv_cuenta_filas_llenas(array);
}

void arrayprv_mueve_elementos(ARRAY *array, size_t fila_dest, size_t pos_dest, size_t fila_org,
                              size_t pos_org, size_t elem_a_mover)
{
    // Every broken condition is reported before the move is refused.
    const bool hay_run = ARR_EXIGE(elem_a_mover > 0, "elem_a_mover > 0");
    const bool filas_distintas = ARR_EXIGE(fila_dest != fila_org, "fila_dest != fila_org");
    const bool cabe_en_origen = ARR_EXIGE(pos_org + elem_a_mover <= array->long_filas[fila_org],
                                          "pos_org + elem_a_mover <= array->long_filas[fila_org]");
    const bool cabe_en_destino = ARR_EXIGE(
        array->long_filas[fila_dest] + elem_a_mover <= array->long_max_fila_en_elem,
        "array->long_filas[fila_dest] + elem_a_mover <= array->long_max_fila_en_elem");
    const bool valido = hay_run && filas_distintas && cabe_en_origen && cabe_en_destino;
    if (!valido || pos_dest > array->long_filas[fila_dest])
        return;
    arrayprv_filas_cambian_desde(array, std::min(fila_dest, fila_org));
    const size_t size = array->size_elem;
    const size_t libres = array->max_long_filas[fila_dest] - array->long_filas[fila_dest];
    if (libres < elem_a_mover)
        arrayprv_crece_fila(array, fila_dest, elem_a_mover - libres);
    const size_t long_dest = array->long_filas[fila_dest];
    std::memmove(elemento(array, fila_dest, pos_dest + elem_a_mover), elemento(array, fila_dest, pos_dest),
                 (long_dest - pos_dest) * size);
    std::memcpy(elemento(array, fila_dest, pos_dest), elemento(array, fila_org, pos_org),
                elem_a_mover * size);
    const size_t long_org = array->long_filas[fila_org];
    const size_t siguientes = long_org - pos_org - elem_a_mover;
    std::memmove(elemento(array, fila_org, pos_org), elemento(array, fila_org, pos_org + elem_a_mover),
                 siguientes * size);
    std::memset(elemento(array, fila_org, long_org - elem_a_mover), 0, elem_a_mover * size);
    array->long_filas[fila_dest] += elem_a_mover;
    array->long_filas[fila_org] -= elem_a_mover;
    if (fila_org > fila_dest)
        suma_acumulados(array, fila_dest + 1, fila_org, elem_a_mover);
    else
        suma_acumulados(array, fila_org + 1, fila_dest, 0 - elem_a_mover);
}

bool arrayprv_inserta_en_fila(ARRAY *array, const posicion_array *posi, const void *nuevo)
{
    const size_t fila = posi->fila;
    if (fila >= array->num_filas || posi->pos > array->long_filas[fila])
        return false;
    arrayprv_directa_caduca(array);
    if (array->long_filas[fila] >= array->max_long_filas[fila]) {
        ARR_EXIGE(array->long_filas[fila] == array->max_long_filas[fila],
                  "array->long_filas[posi->fila] == array->max_long_filas[posi->fila]");
        arrayprv_crece_fila(array, fila, 1);
        if (array->long_filas[fila] >= array->max_long_filas[fila])
            return false;
    }
    // Lengthening a row leaves the computable indices as they are: a full row cannot lengthen.
    const size_t size = array->size_elem;
    std::memmove(elemento(array, fila, posi->pos + 1), elemento(array, fila, posi->pos),
                 (array->long_filas[fila] - posi->pos) * size);
    if (array->tipo_elem == elem_PUNTERO_NO_USAR)
        ARR_EXIGE(array->size_elem == sizeof(void *), "array->size_elem == sizeof(void *)");
    std::memcpy(elemento(array, fila, posi->pos), nuevo, size);
    ++array->long_filas[fila];
    suma_acumulados(array, fila + 1, array->num_filas - 1, 1);
    return true;
}

void arrayprv_borra_en_fila(ARRAY *array, const posicion_array *posi)
{
    const size_t fila = posi->fila;
    if (!ARR_EXIGE(array->long_filas[fila] > 0, "array->long_filas[posi->fila] > 0"))
        return;
    if (array->long_filas[fila] == 1) {
        arrayprv_borra_fila(array, fila);
        return;
    }
    arrayprv_filas_cambian_desde(array, fila);
    const size_t size = array->size_elem;
    const size_t ultimo = array->long_filas[fila] - 1;
    std::memmove(elemento(array, fila, posi->pos), elemento(array, fila, posi->pos + 1),
                 (ultimo - posi->pos) * size);
    std::memset(elemento(array, fila, ultimo), 0, size);
    --array->long_filas[fila];
    suma_acumulados(array, fila + 1, array->num_filas - 1, 0 - size_t{1});
}
