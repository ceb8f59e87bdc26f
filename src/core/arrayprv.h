// The array engine: one header over a table of rows serves every element type.
//
// Layout of an array: the header (struct ARRAY) owns four parallel tables of num_filas entries:
//   buffer[i]          row block of max_long_filas[i] * size_elem bytes
//   max_long_filas[i]  capacity of row i, never above long_max_fila_en_elem
//   long_filas[i]      elements in use in row i, packed at its start, above 0 between calls
//   acumulado_filas[i] elements in rows 0 .. i-1 (prefix sums)
// The tables are all NULL exactly when num_filas is 0. Slots past a row's count are zero, except
// those that a shrink cut off, which keep their old contents. Elements are moved as raw bytes
// of size_elem; the engine switches on tipo_elem only where types differ (sizes, comparators,
// owned strings). Beside the record, in the same slot, the engine keeps what finds the row of an
// index quickly (GuiaFilas): how many leading rows are full, and a guide for uneven layouts.
//
// Every public operation checks its preconditions and reports a broken one by its exact text.
// After a report it carries on, except that a NULL handle, a wrong validity mark, a wrong tag or
// a position that does not exist ends it with a neutral result: the engine never touches memory
// that is not a live array.
#pragma once

#include "arrays.h"
#include "services/memoria.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// Location string of the engine's reports.
inline constexpr const char *UBICACION_ARRAYPRV = "arrayprv (ARRAYS.DLL)";

// Validity mark of a live header; cleared just before the header is freed.
constexpr char MASCARA_DEBUG = '5';

// Default row size of the families, in bytes.
constexpr ULONG LONG_FILA_POR_DEFECTO = 2048;

// Rows must stay below INT_MAX / sizeof(char *) - 1.
constexpr size_t MAX_FILAS = 2147483647 / sizeof(char *) - 1;

#pragma pack(push, 2)
struct ARRAY {
    tipo_elem_array tipo_elem;
    ULONG long_max_fila_en_bytes; // row size asked for at creation; a copy leaves it unset
    size_t num_elems;             // elements (bytes for a bit array)
    BOOL en_bucle;                // a traversal that may modify the array is running
    BOOL en_bucle_lectura;        // a read-only traversal is running
    char mascara_debug;
    char **buffer;
    size_t *max_long_filas;
    size_t *long_filas;
    size_t *acumulado_filas;
    size_t num_filas;
    size_t size_elem;
    size_t long_max_fila_en_elem;
    ULONG num_bits; // bit arrays only
};
#pragma pack(pop)

// What the engine keeps beside each header, outside the record, to find the row of an index
// (core/guia.h). First, where rows can be computed: every row before row indices_calculables >>
// log_long_fila holds exactly long_max_fila_en_elem = 1 << log_long_fila elements, so an index
// below indices_calculables lies in row index >> log_long_fila at offset
// index & (long_max_fila_en_elem - 1). Writers lower it for any change that shortens, moves or
// renumbers a row and count it up again as rows fill; it stays 0 unless the row length is a power
// of two. Only full rows count, the last one included, and every change that lowers num_elems
// shortens a row: between calls indices_calculables never exceeds num_elems, so a read of a
// computed row needs no other bound.
//
// Then the guide proper, for uneven rows. When it was built, entry e described the span of
// 1 << desplazamiento indices from e << desplazamiento: the row holding its first index, shifted
// left by desplazamiento, or'ed with the offset in the span where the next row starts, minus one
// (the span's length minus one when the row runs past the span). Each fits in 32 bits, since
// desplazamiento is at most half the average row length. Since the build, inserts and deletes
// are counted per block of ENTRADAS_POR_BLOQUE entries: how many elements have been inserted
// (below 0: deleted) before the block's span of current indices, and how many rows have been
// inserted (below 0: removed) before the block's entries. An index goes back to the index its
// element had at the build by its block's element count, and forward from the row its entry
// names to its current row by the row count of the entry's block. A change inside a block is not
// counted for the rest of that block, so a read there may miss; the prefix sums confirm every
// answer.
inline constexpr unsigned LOG_ENTRADAS_POR_BLOQUE = 6;
inline constexpr size_t ENTRADAS_POR_BLOQUE = size_t{1} << LOG_ENTRADAS_POR_BLOQUE;

struct GuiaFilas {
    size_t indices_calculables;
    unsigned log_long_fila;
    unsigned desplazamiento;    // log2 of the indices each entry spans
    size_t mascara;             // (1 << desplazamiento) - 1
    int32_t *elems_insertados;  // per block of current indices; NULL until first built, and the
                                // rest follows in the same allocation
    int32_t *filas_insertadas;  // per block of entries
    uint32_t *entradas;
    size_t num_entradas;        // entries in use; 0 while there is no guide
    size_t num_bloques;         // blocks in use: they cover the entries in use
    size_t capacidad;           // entries allocated (and blocks, capacidad / ENTRADAS_POR_BLOQUE + 1)
    size_t cambios;             // inserts and deletes since the guide was last built
};

// Beside the guide, for reads of arrays of uneven rows: a table straight from indices to
// addresses (core/directa.h), built from the prefix sums once enough reads have gone by since the
// rows last changed. Entry e covers the span of 1 << desplazamiento indices from e <<
// desplazamiento, all of them below num_elems when it was built, over at most two rows: index i
// of the span is at base + i * size_elem, where base is base_primera while i's offset in the span
// is below corte and base_segunda from there on, a row's base being the address of its block less
// its prefix sum times size_elem. An entry over more rows has both bases 0 and answers nothing.
// Its answers are not confirmed by the prefix sums: every change that may move, free or shorten a
// row, or shift the elements inside one, expires the table before it touches the rows. Appends
// write only past the indices it covers, so they leave it as it is. Since every change that
// lowers num_elems shortens a row, the indices a live table spans stay below num_elems: a read
// that the table spans needs no other bound.
struct EntradaDirecta {
    uintptr_t base_primera;
    uintptr_t base_segunda;
    size_t corte;
};

struct TablaDirecta {
    EntradaDirecta *entradas;         // NULL until first built
    size_t indices_cubiertos;         // indices that the entries in use span, all below num_elems;
                                      // 0 while the table is expired
    size_t capacidad;                 // entries allocated
    unsigned desplazamiento;          // log2 of the indices each entry spans
    size_t mascara;                   // (1 << desplazamiento) - 1
    size_t lecturas_pendientes;       // reads without the table before the next build
    size_t lecturas_por_construccion; // what an expiry sets lecturas_pendientes to
};

// Every header slot: the record first, then what the engine keeps beside it. Reads build the
// direct table, hence mutable: an array belongs to one thread at a time, its reads included.
struct CabeceraArray {
    ARRAY array;
    mutable uint32_t recorridos;   // walks running over the array (RecorridoEnCurso)
    mutable uint32_t ordenaciones; // of them, sorts: they hold element values (OrdenacionEnCurso)
    GuiaFilas guia;
    mutable TablaDirecta directa;
};

inline const GuiaFilas &arrayprv_guia(const ARRAY *array)
{
    return reinterpret_cast<const CabeceraArray *>(array)->guia;
}
inline GuiaFilas &arrayprv_guia(ARRAY *array) { return reinterpret_cast<CabeceraArray *>(array)->guia; }
inline TablaDirecta &arrayprv_directa(const ARRAY *array)
{
    return reinterpret_cast<const CabeceraArray *>(array)->directa;
}

// Walks running over the array: each holds addresses in its rows (a sort, element values too)
// while it calls back into the application. Unlike the guard flags, which a nested walk clears on
// its way out, the count is exact: while it is above 0 nothing may free the array, move, free or
// shorten its rows, or free a string it owns (arrayprv_admite_cambio).
inline uint32_t &arrayprv_recorridos(const ARRAY *array)
{
    return reinterpret_cast<const CabeceraArray *>(array)->recorridos;
}

// Counts a walk over one array for the scope it lives in.
class RecorridoEnCurso {
public:
    explicit RecorridoEnCurso(const ARRAY *array) : recorridos_(arrayprv_recorridos(array)) { ++recorridos_; }
    ~RecorridoEnCurso() { --recorridos_; }
    RecorridoEnCurso(const RecorridoEnCurso &) = delete;
    RecorridoEnCurso &operator=(const RecorridoEnCurso &) = delete;

private:
    uint32_t &recorridos_;
};

// A sort over one array for the scope it lives in: a walk that also keeps copies of element
// values (its pivot) across its calls to the comparator.
inline uint32_t &arrayprv_ordenaciones(const ARRAY *array)
{
    return reinterpret_cast<const CabeceraArray *>(array)->ordenaciones;
}
class OrdenacionEnCurso {
public:
    explicit OrdenacionEnCurso(const ARRAY *array)
        : recorrido_(array), ordenaciones_(arrayprv_ordenaciones(array))
    {
        ++ordenaciones_;
    }
    ~OrdenacionEnCurso() { --ordenaciones_; }
    OrdenacionEnCurso(const OrdenacionEnCurso &) = delete;
    OrdenacionEnCurso &operator=(const OrdenacionEnCurso &) = delete;

private:
    RecorridoEnCurso recorrido_;
    uint32_t &ordenaciones_;
};

// One element: its row and its offset in the row. Valid while fila < num_filas and
// pos < long_filas[fila].
struct posicion_array {
    size_t fila;
    size_t pos;
};

// ---- Per-type callback tables --------------------------------------------------------------

// Traversal actions, one member per element type; a typed caller sets only its own member.
struct fnc_accion {
    BOOL (*fnc_accion_BYTE)(BYTE *elemento, void *datos);
    BOOL (*fnc_accion_BOOL)(BOOL *elemento, void *datos);
    BOOL (*fnc_accion_char)(char *elemento, void *datos);
    BOOL (*fnc_accion_uchar)(UCHAR *elemento, void *datos);
    BOOL (*fnc_accion_short)(SHORT *elemento, void *datos);
    BOOL (*fnc_accion_ushort)(USHORT *elemento, void *datos);
    BOOL (*fnc_accion_long)(LONG *elemento, void *datos);
    BOOL (*fnc_accion_ulong)(ULONG *elemento, void *datos);
    BOOL (*fnc_accion_long64)(LONG64 *elemento, void *datos);
    BOOL (*fnc_accion_ulong64)(ULONG64 *elemento, void *datos);
    BOOL (*fnc_accion_double)(double *elemento, void *datos);
    BOOL (*fnc_accion_CADENA)(char **cadena, void *datos);
    BOOL (*fnc_accion_CADENA_U)(WCHAR **cadena, void *datos);
    BOOL (*fnc_accion_puntero)(void **ptr, void *datos);
    BOOL (*fnc_accion_punto2D)(double *x, double *y, void *datos);
    BOOL (*fnc_accion_punto2DX)(double *x, double *y, void **datos_punto, void *datos);
    BOOL (*fnc_accion_punto3D)(double *x, double *y, double *z, void *datos);
};

// ---- Services of the engine to itself (element sizes, checking mode, loop guards) ----------

// Element size of a tag; an unknown tag is reported and yields 0.
size_t arrayprv_size_elem(tipo_elem_array tipo);

// Checking mode: undecided until the first operation that asks, then fixed for the process.
enum { MODO_SIN_DECIDIR = 0, MODO_APAGADO = 1, MODO_ENCENDIDO = 2 };
extern std::atomic<int> arrayprv_estado_modo;
BOOL arrayprv_decide_modo_comprobacion();

// TRUE when the environment held ARRAYPRUEBA at the first call that asked; fixed from then on.
inline BOOL arrayprv_es_modo_comprobacion()
{
    const int estado = arrayprv_estado_modo.load(std::memory_order_relaxed);
    if (estado != MODO_SIN_DECIDIR) [[likely]]
        return estado == MODO_ENCENDIDO;
    return arrayprv_decide_modo_comprobacion();
}

// The validity mark's check when checking mode is on or not decided yet: it decides the mode
// and, when it is on, reads nothing at `array` unless the pool holds a live header there, so that
// a destroyed, wild or forged handle is reported without a crash.
bool arrayprv_cabecera_viva(const ARRAY *array);

// The full consistency check; modo 1 refuses a running traversal (strict), 0 is lenient.
void arrayprv_comprueba_array(const ARRAY *array, BOOL modo);

// The loop-guard check: reports "en_bucle == FALSO" with the caller's location when `guarda` is
// set and the check applies (always in strict modo 1, else only while comprobar_en_bucle is 1).
void arrayprv_comprueba_en_bucle(BOOL guarda, BOOL modo, const char *ubicacion, LONG linea);

// How an operation checks its array on entry: which texts name the handle, whether a running
// traversal is refused, and which form of the full check replaces the cheap checks in checking
// mode.
struct TextosEntrada {
    const char *nulo;
    const char *mascara;
    const char *en_bucle;
    const char *en_bucle_lectura;
};
inline constexpr TextosEntrada TEXTOS_ARRAY{"(array) != NULL", "array->mascara_debug == MASCARA_DEBUG",
                                            "array->en_bucle == FALSO",
                                            "array->en_bucle_lectura == FALSO"};
inline constexpr TextosEntrada TEXTOS_ARRAY_CORTO{"array", TEXTOS_ARRAY.mascara, TEXTOS_ARRAY.en_bucle,
                                                  TEXTOS_ARRAY.en_bucle_lectura};
inline constexpr TextosEntrada TEXTOS_HANDLE{"(*array) != NULL",
                                             "(*array)->mascara_debug == MASCARA_DEBUG",
                                             "(*array)->en_bucle == FALSO",
                                             "(*array)->en_bucle_lectura == FALSO"};
inline constexpr TextosEntrada TEXTOS_DESTINO{"(dest) != NULL", "dest->mascara_debug == MASCARA_DEBUG",
                                              "dest->en_bucle == FALSO",
                                              "dest->en_bucle_lectura == FALSO"};
enum class Modo { ninguno, leniente, estricto };

// Runs the entry check; false when the handle cannot be touched (NULL or not a live header).
bool arrayprv_entrada(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo);
// Whether an operation on elements of tag `pedido` may go on, after the tag's report, over an
// array of tag `del_array`: as the reports' rule says it carries on, wherever that stays within
// the array's memory and invariants. The elements must be of one size and plain values on both
// sides (no strings, pointers or private data, which the library frees or hands to callbacks);
// bits, which the array counts apart from the bytes that hold them, only for reads (`escribe`
// false).
bool arrayprv_tipos_intercambiables(tipo_elem_array del_array, tipo_elem_array pedido, bool escribe);
// The same, then the tag test "array->tipo_elem == tipo_elem" (or `texto_tipo`); false when any
// of them fails, unless the tags are interchangeable for the operation (`guardas` tells a writer).
bool arrayprv_entrada_tipo(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo,
                           tipo_elem_array tipo_elem,
                           const char *texto_tipo = "array->tipo_elem == tipo_elem");
// What an operation that would free the array, move, free or shorten its rows, or free a string
// it owns asks after its entry check: false while a walk runs over the array, and the operation is
// then not carried out. The entry check has reported the guard flag that is set; a walk that it
// could not see (its flag cleared by a nested walk, or a read walk, which checking mode does not
// look at) is reported here by the texts of the flags.
bool arrayprv_admite_cambio(const ARRAY *array, const TextosEntrada &textos);
// What a set that would free the element's old value (a string the array owns) asks first: while a
// sort runs over the array, which may hold that value as its pivot, the loop flags are reported as
// a set reports them (the sort's own, if a nested walk cleared it) and the answer is false: the
// element keeps its value. Other walks hold no value across a callback, so there the set goes on.
bool arrayprv_admite_liberar_elemento(const ARRAY *array, const TextosEntrada &textos);

// ---- Lifecycle (header, tags, creation, destruction, count) --------------------------------

ARRAY *arrayprv_crea(ULONG tamanyo_inicial, tipo_elem_array tipo, ULONG long_fila_en_bytes);
void arrayprv_destruye(ARRAY **array);
void arrayprv_libera_filas(ARRAY *array);
// Bits for a bit array, otherwise elements (narrowed to 32 bits).
ULONG arrayprv_num_elems(const ARRAY *array);

// ---- Rows ----------------------------------------------------------------------------------

size_t arrayprv_incremento_fila(size_t long_actual, size_t elem_a_poner, size_t long_max);
void arrayprv_crece_fila(ARRAY *array, size_t fila, size_t elem_a_poner);
void arrayprv_anyade_filas(ARRAY *array, size_t num_elems_a_poner);
void arrayprv_inserta_fila(ARRAY *array, size_t fila, size_t elem_a_poner);
void arrayprv_borra_fila(ARRAY *array, size_t fila);
void arrayprv_quita_filas_vacias(ARRAY *array);
void arrayprv_compacta(ARRAY *array);
void arrayprv_mueve_elementos(ARRAY *array, size_t fila_dest, size_t pos_dest, size_t fila_org,
                              size_t pos_org, size_t elem_a_mover);
// Inserts one element inside its row, enlarging the row when full. False when the row cannot
// take it (its capacity is already the maximum): nothing is written then.
bool arrayprv_inserta_en_fila(ARRAY *array, const posicion_array *posi, const void *elemento);
void arrayprv_borra_en_fila(ARRAY *array, const posicion_array *posi);

// ---- Positions (the one place that maps an index to a row and offset) ----------------------

// The row of a valid index when rows are of uneven length: a window of prefix sums around the
// guide's row when there is a guide, else around the row the average row length predicts,
// corrected once by its prefix sum's error; bisection when the window misses (or there are too
// few rows for one). The prefix sums confirm the answer; false leaves the index to
// arrayprv_posicion.
bool arrayprv_posicion_irregular(const ARRAY *array, ULONG real_pos, posicion_array *posi);

// The guide's row for `real_pos` (GuiaFilas): exact unless a change since the build fell inside
// the index's block, or a row is shorter than an entry's span. It may lie past the last row (the
// arithmetic is unsigned: a count below 0 wraps); false when the guide has no entry for the index.
[[gnu::always_inline]] inline bool arrayprv_fila_guiada(const GuiaFilas &guia, ULONG real_pos,
                                                        size_t &fila)
{
    const unsigned desplazamiento = guia.desplazamiento;
    const size_t bloque = size_t{real_pos} >> (desplazamiento + LOG_ENTRADAS_POR_BLOQUE);
    if (bloque >= guia.num_bloques)
        return false;
    const size_t indice_al_construir =
        size_t{real_pos} - static_cast<size_t>(int64_t{guia.elems_insertados[bloque]});
    const size_t entrada = indice_al_construir >> desplazamiento;
    if (entrada >= guia.num_entradas)
        return false;
    const size_t valor = guia.entradas[entrada];
    const size_t en_la_siguiente = (indice_al_construir & guia.mascara) > (valor & guia.mascara);
    fila = (valor >> desplazamiento) + en_la_siguiente +
           static_cast<size_t>(int64_t{guia.filas_insertadas[entrada >> LOG_ENTRADAS_POR_BLOQUE]});
    return true;
}

// The row and offset of an index that lies where rows can be computed (GuiaFilas), which between
// calls makes it an index below num_elems; false for any other index.
inline bool arrayprv_posicion_calculada(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    const GuiaFilas &guia = arrayprv_guia(array);
    if (real_pos < guia.indices_calculables) {
        const size_t fila = size_t{real_pos} >> guia.log_long_fila;
        *posi = {fila, real_pos - (fila << guia.log_long_fila)};
        return true;
    }
    return false;
}

// The row of an index below num_elems outside the computed rows, without a search: the row the
// guide names when there is a guide, else the row it would be in if every row before it were
// full. The prefix sums confirm the answer; false (without a report) when they do not, or when the
// header has no rows for the index.
[[gnu::always_inline]] inline bool arrayprv_posicion_guiada(const ARRAY *array, ULONG real_pos,
                                                            posicion_array *posi)
{
    size_t fila;
    if (!arrayprv_fila_guiada(arrayprv_guia(array), real_pos, fila)) {
        const size_t long_max = array->long_max_fila_en_elem;
        if (long_max == 0) [[unlikely]]
            return false;
        // Rows of a power-of-two length (every element size but 24 bytes) divide by a shift.
        if ((long_max & (long_max - 1)) == 0) [[likely]]
            fila = real_pos >> __builtin_ctzll(long_max);
        else
            fila = real_pos / long_max;
    }
    if (fila < array->num_filas) [[likely]] {
        // Below the row's start, the difference wraps past any row length.
        const size_t pos = real_pos - array->acumulado_filas[fila];
        if (pos < array->long_filas[fila]) [[likely]] {
            *posi = {fila, pos};
            return true;
        }
    }
    return false;
}

// The row and offset of an index without a search: computed, else guided; false (without a
// report) for an index at or past num_elems, or one that neither finds.
[[gnu::always_inline]] inline bool arrayprv_posicion_directa(const ARRAY *array, ULONG real_pos,
                                                             posicion_array *posi)
{
    return real_pos < array->num_elems && (arrayprv_posicion_calculada(array, real_pos, posi) ||
                                           arrayprv_posicion_guiada(array, real_pos, posi));
}

// Sets *direccion to the address of an index from the direct table; false when the table is
// expired, does not span the index, or has no answer for it. An index it spans is below num_elems.
[[gnu::always_inline]] inline bool arrayprv_direccion_tabulada(const ARRAY *array, ULONG real_pos,
                                                               size_t size_elem, char **direccion)
{
    const TablaDirecta &tabla = arrayprv_directa(array);
    if (real_pos >= tabla.indices_cubiertos)
        return false;
    const EntradaDirecta &tramo = tabla.entradas[size_t{real_pos} >> tabla.desplazamiento];
    const uintptr_t base =
        (real_pos & tabla.mascara) < tramo.corte ? tramo.base_primera : tramo.base_segunda;
    *direccion = reinterpret_cast<char *>(base + size_t{real_pos} * size_elem);
    return base != 0;
}

// Finds the row of a valid index without the documented search when it can: directly, failing
// that through arrayprv_posicion_irregular. False (without a report) leaves the index, and any
// inconsistent header, to arrayprv_posicion.
inline bool arrayprv_posicion_rapida(const ARRAY *array, ULONG real_pos, posicion_array *posi)
{
    return arrayprv_posicion_directa(array, real_pos, posi) ||
           arrayprv_posicion_irregular(array, real_pos, posi);
}

// Maps `real_pos` to its row and offset; false (after the reports) when there is no such element.
bool arrayprv_posicion(const ARRAY *array, ULONG real_pos, posicion_array *posi);
void arrayprv_siguiente_posicion(const ARRAY *array, posicion_array *posi);
// Checks a position; false when it does not name an element.
bool arrayprv_comprueba_posicion(const ARRAY *array, const posicion_array *posi);
// The element's address after checking the position and the tag; NULL when either fails.
void *arrayprv_direccion_elemento(const ARRAY *array, const posicion_array *posi,
                                  tipo_elem_array tipo_elem);

// ---- Elements (the bodies behind the typed append, insert, delete, get, set, ...) ----------

// The element size the fast paths below copy: TAMANYO, when a caller that knows its element's
// size at compile time gives it (the copy is then a plain store), else the header's size. The tag
// fixes the size (arrayprv_size_elem), so the tag's check covers the size as well.
template <size_t TAMANYO> inline size_t arrayprv_tamanyo_rapido(const ARRAY *array)
{
    return TAMANYO != 0 ? TAMANYO : size_t{array->size_elem};
}

// The validity mark of a live header, read only where the header may be read (a destroyed one
// is poisoned in AddressSanitizer builds). In checking mode the handle must first be a live
// header of the pool (arrayprv_cabecera_viva). Every check of a handle's mark goes through this.
inline bool arrayprv_marca_valida(const ARRAY *array)
{
    if (arrayprv_estado_modo.load(std::memory_order_relaxed) != MODO_APAGADO) [[unlikely]]
        return arrayprv_cabecera_viva(array);
    return zarpspy_cabecera_legible(array) && array->mascara_debug == MASCARA_DEBUG;
}

// What every fast path below checks first: a live array of the tag.
inline bool arrayprv_vivo_de_tipo(const ARRAY *array, tipo_elem_array tipo_elem)
{
    return array != nullptr && arrayprv_marca_valida(array) && array->tipo_elem == tipo_elem;
}

// A live array of the tag that no traversal is running over: it may be written.
inline bool arrayprv_vivo_e_inactivo(const ARRAY *array, tipo_elem_array tipo_elem)
{
    return arrayprv_vivo_de_tipo(array, tipo_elem) && array->en_bucle == FALSO &&
           array->en_bucle_lectura == FALSO;
}

// True when an append may store straight into the last row's room: a live idle array of the tag
// with rows, outside checking mode.
inline bool arrayprv_anyade_directo(const ARRAY *array, tipo_elem_array tipo_elem)
{
    return arrayprv_vivo_e_inactivo(array, tipo_elem) && array->num_filas > 0 &&
           !arrayprv_es_modo_comprobacion();
}

size_t arrayprv_append_comprobado(ARRAY *array, const void *elemento, tipo_elem_array tipo_elem);
// Appends one element and returns the new count (0 when the array cannot be used). The common
// case, a live idle array whose last row has room, stores the element at once.
template <size_t TAMANYO = 0>
inline size_t arrayprv_append(ARRAY *array, const void *elemento, tipo_elem_array tipo_elem)
{
    if (arrayprv_anyade_directo(array, tipo_elem)) [[likely]] {
        const size_t size_elem = arrayprv_tamanyo_rapido<TAMANYO>(array);
        const size_t ultima = array->num_filas - 1;
        size_t *const long_filas = array->long_filas;
        if (long_filas[ultima] < array->max_long_filas[ultima]) [[likely]] {
            std::memcpy(array->buffer[ultima] + long_filas[ultima] * size_elem, elemento, size_elem);
            ++long_filas[ultima];
            return ++array->num_elems;
        }
    }
    return arrayprv_append_comprobado(array, elemento, tipo_elem);
}
void arrayprv_inserta(ARRAY *array, ULONG real_pos, const void *elemento,
                      tipo_elem_array tipo_elem);
void arrayprv_borra(ARRAY *array, ULONG real_pos, tipo_elem_array tipo_elem);
// Sets *direccion to the address of an element when one step finds it: its row computed, else the
// direct table; false (without a report) for an index at or past num_elems, or one that neither
// answers. Computed rows go first, and need no check against num_elems: between calls they hold
// full rows only, all below it. No call, no frame: get and set run it inline and leave everything
// else to a function of their own.
template <size_t TAMANYO = 0>
[[gnu::always_inline]] inline bool arrayprv_direccion_inmediata(const ARRAY *array, ULONG real_pos,
                                                                char **direccion)
{
    const size_t size_elem = arrayprv_tamanyo_rapido<TAMANYO>(array);
    posicion_array posi;
    if (arrayprv_posicion_calculada(array, real_pos, &posi)) {
        *direccion = array->buffer[posi.fila] + posi.pos * size_elem;
        return true;
    }
    return arrayprv_direccion_tabulada(array, real_pos, size_elem, direccion);
}

// The same for a live array of the tag; false for any other.
template <size_t TAMANYO = 0>
[[gnu::always_inline]] inline bool arrayprv_get_inmediato(const ARRAY *array, ULONG real_pos,
                                                          tipo_elem_array tipo_elem, char **direccion)
{
    return arrayprv_vivo_de_tipo(array, tipo_elem) &&
           arrayprv_direccion_inmediata<TAMANYO>(array, real_pos, direccion);
}

// Address of the element inside its row, valid until the array next changes; NULL when the
// element cannot be reached. For arrayprv_get once its immediate lookup has missed: through the
// guide or arrayprv_posicion_irregular when the array is live and of the tag, otherwise after
// the full entry checks.
void *arrayprv_get_comprobado(const ARRAY *array, ULONG real_pos, tipo_elem_array tipo_elem);
// The same; inline where one step finds the element (arrayprv_direccion_inmediata). TAMANYO as
// for arrayprv_tamanyo_rapido.
template <size_t TAMANYO = 0>
inline void *arrayprv_get(const ARRAY *array, ULONG real_pos, tipo_elem_array tipo_elem)
{
    if (char *direccion; arrayprv_get_inmediato<TAMANYO>(array, real_pos, tipo_elem, &direccion))
        [[likely]] return direccion;
    return arrayprv_get_comprobado(array, real_pos, tipo_elem);
}

// Overwrites one element, for arrayprv_set once its immediate lookup has missed; as
// arrayprv_get_comprobado finds one, the array being idle as well.
void arrayprv_set_comprobado(ARRAY *array, ULONG real_pos, const void *elemento,
                             tipo_elem_array tipo_elem);
// The same; inline where one step finds the element (arrayprv_direccion_inmediata). TAMANYO as
// for arrayprv_tamanyo_rapido.
template <size_t TAMANYO = 0>
inline void arrayprv_set(ARRAY *array, ULONG real_pos, const void *elemento, tipo_elem_array tipo_elem)
{
    if (arrayprv_vivo_e_inactivo(array, tipo_elem)) [[likely]] {
        if (char *direccion; arrayprv_direccion_inmediata<TAMANYO>(array, real_pos, &direccion))
            [[likely]] {
            std::memcpy(direccion, elemento, arrayprv_tamanyo_rapido<TAMANYO>(array));
            return;
        }
    }
    arrayprv_set_comprobado(array, real_pos, elemento, tipo_elem);
}
void arrayprv_inicializa(ARRAY *array, const void *elemento, tipo_elem_array tipo);
void arrayprv_aumenta_tamanyo(ARRAY *array, ULONG nuevo_tamanyo);
void arrayprv_reduce_tamanyo(ARRAY *array, ULONG nuevo_tamanyo);
// The cut of a shrink, after the caller has released what the cut elements own.
void arrayprv_recorta(ARRAY *array, size_t nuevo_tamanyo);

// What elements own: strings are destroyed; pointers and private data must already be NULL
// (each one still set is reported as "ptr == NULL"). From `real_pos` to the end, or all.
void arrayprv_libera_contenido_desde(ARRAY *array, ULONG real_pos);
void arrayprv_libera_contenido(ARRAY *array);

// ---- Element walks (the one place that visits consecutive elements) -------------------------

// Calls visita(address) for up to `cuantos` elements from `desde` on, in storage order; a visita
// that returns bool ends the walk by returning false. The walk is counted over the array, so a
// callback cannot free it or move its rows; every step re-reads the row tables all the same.
template <typename Visita>
void arrayprv_visita(const ARRAY *array, posicion_array desde, size_t cuantos, Visita &&visita)
{
    const RecorridoEnCurso recorrido(array);
    size_t fila = desde.fila;
    size_t pos = desde.pos;
    while (cuantos > 0 && fila < array->num_filas) {
        if (pos >= array->long_filas[fila]) {
            ++fila;
            pos = 0;
            continue;
        }
        char *elemento = array->buffer[fila] + pos * array->size_elem;
        if constexpr (std::is_same_v<decltype(visita(elemento)), bool>) {
            if (!visita(elemento))
                return;
        } else {
            visita(elemento);
        }
        ++pos;
        --cuantos;
    }
}

template <typename Visita>
void arrayprv_visita_todos(const ARRAY *array, Visita &&visita)
{
    arrayprv_visita(array, posicion_array{0, 0}, SIZE_MAX, visita);
}

// Walks two arrays in step from their first elements, calling visita(address1, address2) while
// both have elements and visita returns true.
template <typename Visita>
void arrayprv_visita_pares(const ARRAY *array1, const ARRAY *array2, Visita &&visita)
{
    const RecorridoEnCurso recorrido2(array2);
    size_t fila2 = 0;
    size_t pos2 = 0;
    arrayprv_visita_todos(array1, [&](char *elemento1) {
        while (fila2 < array2->num_filas && pos2 >= array2->long_filas[fila2]) {
            ++fila2;
            pos2 = 0;
        }
        if (fila2 >= array2->num_filas)
            return false;
        return visita(elemento1, array2->buffer[fila2] + pos2++ * array2->size_elem);
    });
}

// ---- Traversal ---------------------------------------------------------------------------

void arrayprv_recorre(ARRAY *array, const fnc_accion *acciones, void *datos,
                      tipo_elem_array tipo_elem, BOOL modo, BOOL lectura, const char *ubicacion,
                      LONG linea);
void arrayprv_recorre_rango(ARRAY *array, ULONG inic, ULONG fin, const fnc_accion *acciones,
                            void *datos, tipo_elem_array tipo_elem, BOOL modo);

// Walks over the pointers of a pointer array, or the private data of 2D points with data.
using operacion_puntero = void (*)(void *ptr);
using operacion_direccion = void (*)(void **ptr);
void arrayprv_opera_todos(ARRAY *array, operacion_puntero operacion);
void arrayprv_opera_direccion_todos(ARRAY *array, operacion_direccion operacion);
void arrayprv_opera_desde(ARRAY *array, ULONG real_pos, operacion_puntero operacion);
void arrayprv_opera_direccion_desde(ARRAY *array, ULONG real_pos, operacion_direccion operacion);
