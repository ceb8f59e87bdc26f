/**
 * @file arrays.h
 * The whole public interface of libarrays, growable arrays of many element types
 * behind one opaque handle. Compiles as C99 and as C++17; every function has C linkage.
 *
 * Conventions shared by every function:
 * - Positions and counts are ULONG; a position that is not found is ARR_ULONG_MAX.
 * - Each function checks its preconditions and reports every broken one through the report
 *   handler (arr_set_manejador_informes) with the exact text of the condition, then carries on.
 *   A NULL handle, a handle that is not a live array or a position that does not exist ends the
 *   call there with a neutral result (0, 0.0, NULL, FALSO, ARR_ULONG_MAX) and nothing changed.
 * - A live array of another element type is reported by its tag; the call then carries on over
 *   the stored bytes when that is safe: the elements of both types are plain values of one size
 *   (the integers, doubles and BOOL of one width; a byte read of a bit array; a
 *   plain 2D point array destroyed through arr_DestruyePunto2DXPriv). Where it is not (strings,
 *   pointers, private data, writes of bytes into bits, other sizes) the call ends as above. The
 *   bit functions on another type report the tag and the bit position, and change nothing.
 * - Destroyers take the address of the handle and leave it NULL. A copy of a destroyed handle is
 *   reported as not live until another array takes its place, which happens only after every
 *   other free header has been used. With ARRAYPRUEBA in the environment (checking mode) every
 *   handle is looked up among the live headers before it is read, so that even a wild or forged
 *   handle is reported without a crash; the whole array is then checked before each call.
 */
#ifndef ARRAYS_H
#define ARRAYS_H

#ifdef __cplusplus
#include <cstddef>
#include <cstdint>
#else
#include <stddef.h>
#include <stdint.h>
#include <uchar.h>
#endif

/** @def ARRAYS_API
 * Marks the functions of the library: exported from ARRAYS.DLL (imported by its users unless they
 * define ARRAYS_STATIC, linking the static library), of default visibility in libarrays.so. */
#if defined(_WIN32) && !defined(ARRAYS_STATIC) /* ARRAYS_STATIC: linked with the static library */
#if defined(ARRAYS_BUILDING)
#define ARRAYS_API __declspec(dllexport)
#else
#define ARRAYS_API __declspec(dllimport)
#endif
#elif defined(__GNUC__) && !defined(_WIN32)
#define ARRAYS_API __attribute__((visibility("default")))
#else
#define ARRAYS_API
#endif

/** @def ARR_NOEXCEPT
 * noexcept in C++, where no function of the library throws; nothing in C. */
#ifdef __cplusplus
#define ARR_NOEXCEPT noexcept
extern "C" {
#else
#define ARR_NOEXCEPT
#endif

/* ---- Version ---------------------------------------------------------------------------- */

/* The version of this header. Within 0.x a new minor version may change the interface. */
#define ARRAYS_VERSION_MAJOR 0 /**< The major version of this header. */
#define ARRAYS_VERSION_MINOR 1 /**< The minor version of this header. */
#define ARRAYS_VERSION_PATCH 0 /**< The patch level of this header. */
/** The version of this header as one number: major * 10000 + minor * 100 + patch. */
#define ARRAYS_VERSION_NUMBER                                                                     \
    (ARRAYS_VERSION_MAJOR * 10000 + ARRAYS_VERSION_MINOR * 100 + ARRAYS_VERSION_PATCH)
#define ARRAYS_VERSION_STRING "0.1.0" /**< The version of this header as text. */

/** The version of the library in use, as ARRAYS_VERSION_NUMBER.
 * Compare it with the header's to catch a program run against another build of the library than
 * the one it was compiled with.
 * @return major * 10000 + minor * 100 + patch of the library loaded */
ARRAYS_API unsigned arr_version(void) ARR_NOEXCEPT;

/* ---- Types: the same widths on every platform ---------------------------------------- */

/* The types of the interface under prefixed names, used in every prototype below. */
typedef uint16_t arr_bool_t;        /**< A truth value: FALSO (0) or any other value (CIERTO). */
typedef uint8_t arr_byte_t;         /**< An unsigned byte. */
typedef unsigned char arr_uchar_t;  /**< An unsigned character. */
typedef int16_t arr_short_t;        /**< A signed 16-bit integer. */
typedef uint16_t arr_ushort_t;      /**< An unsigned 16-bit integer. */
typedef int32_t arr_long_t;         /**< A signed 32-bit integer. */
typedef uint32_t arr_ulong_t;       /**< An unsigned 32-bit integer: positions and counts. */
typedef int64_t arr_long64_t;       /**< A signed 64-bit integer. */
typedef uint64_t arr_ulong64_t;     /**< An unsigned 64-bit integer. */
typedef char16_t arr_wchar_t; /**< One UTF-16 code unit; wide strings are zero-terminated UTF-16. */

/* The short names of the same types, which the documentation uses. They are left out when the
 * includer defines ARRAYS_NO_SHORT_TYPES, or has the Windows names already (<windows.h>, whose
 * BOOL, LONG, ULONG, ... are other types of the same widths); <X11/Xmd.h>'s BOOL and BYTE are
 * kept, and the rest defined. */
#if !defined(ARRAYS_NO_SHORT_TYPES) && !defined(_WINDEF_)
#if !defined(XMD_H)
typedef arr_bool_t BOOL; /**< The short name of arr_bool_t. */
typedef arr_byte_t BYTE; /**< The short name of arr_byte_t. */
#endif
typedef arr_uchar_t UCHAR; /**< The short name of arr_uchar_t. */
typedef arr_short_t SHORT; /**< The short name of arr_short_t. */
typedef arr_ushort_t USHORT; /**< The short name of arr_ushort_t. */
typedef arr_long_t LONG; /**< The short name of arr_long_t. */
typedef arr_ulong_t ULONG; /**< The short name of arr_ulong_t. */
#if !defined(LONG64) /* <X11/Xmd.h> defines it, empty, as a mark of 64-bit longs */
typedef arr_long64_t LONG64; /**< The short name of arr_long64_t. */
#endif
typedef arr_ulong64_t ULONG64; /**< The short name of arr_ulong64_t. */
typedef arr_wchar_t WCHAR; /**< The short name of arr_wchar_t. */
#endif

#define FALSO ((arr_bool_t)0)  /**< False. */
#define CIERTO ((arr_bool_t)1) /**< True, as the library writes it (any non-zero value reads true). */

/** The position that means "not found" or "no such index". */
#define ARR_ULONG_MAX 0xFFFFFFFFu

/** An array. The header record stays private; callers hold ARRAY * handles. */
typedef struct ARRAY ARRAY;

/** Element type tags, as stored in every array header (the debug functions and
 * arryprv_es_array_correcto give them out). */
typedef enum tipo_elem_array {
    elem_BIT_NO_USAR = 0, /**< bits */
    elem_BYTE_NO_USAR = 1, /**< BYTE */
    elem_BOOL_NO_USAR = 2, /**< BOOL */
    elem_UCHAR_NO_USAR = 3, /**< UChar */
    elem_CHAR_NO_USAR = 4, /**< Char */
    elem_USHORT_NO_USAR = 5, /**< UShort */
    elem_SHORT_NO_USAR = 6, /**< Short */
    elem_ULONG_NO_USAR = 7, /**< ULong */
    elem_LONG_NO_USAR = 8, /**< Long */
    elem_ULONG64_NO_USAR = 9, /**< ULong64 */
    elem_LONG64_NO_USAR = 10, /**< Long64 */
    elem_DOUBLE_NO_USAR = 11, /**< Double */
    elem_PUNTERO_NO_USAR = 12, /**< typed pointers and structures */
    elem_CADENA_NO_USAR = 13, /**< narrow strings (CADENA) */
    elem_PUNTO2D_NO_USAR = 14, /**< 2D points */
    elem_PUNTO2DX_NO_USAR = 15, /**< 2D points with private data */
    elem_PUNTO3D_NO_USAR = 16, /**< 3D points */
    elem_antiguo_PUNTO3DX = 17, /**< retired: no array has it, every check rejects it */
    elem_CADENA_U_NO_USAR = 18 /**< wide strings (CADENA_u) */
} tipo_elem_array;

/** Results of an ordering comparator. Consumers test for exactly these values. */
typedef enum comparac {
    comparac_PRIMERO_MENOR = -1, /**< the first goes before the second */
    comparac_IGUALES = 0,        /**< neither goes before the other */
    comparac_PRIMERO_MAYOR = 1   /**< the first goes after the second */
} comparac;

/* ---- Reports --------------------------------------------------------------------------- */

/** The kinds of report (arr_informe::clase). */
enum {
    ARR_INFORME_ERROR = 0,   /**< a condition was false */
    ARR_INFORME_ORIGEN = 1,  /**< a condition was false; also names the caller's location */
    ARR_INFORME_DEFAULT = 2  /**< a per-type switch met an element type it does not handle */
};

/** One report: a precondition that did not hold, handed to the report handler. */
typedef struct arr_informe {
    int clase;                    /**< ARR_INFORME_ERROR, ARR_INFORME_ORIGEN, ARR_INFORME_DEFAULT */
    const char *expresion;        /**< UTF-8 text of the failed condition; "" for the default case */
    const char *ubicacion;        /**< reporting module, e.g. "arrayprv (ARRAYS.DLL)" */
    arr_long_t linea;             /**< line of the check in that module */
    const char *ubicacion_origen; /**< the caller's location, ARR_INFORME_ORIGEN only, else NULL */
    arr_long_t linea_origen;      /**< the caller's line, ARR_INFORME_ORIGEN only, else 0 */
} arr_informe;

/** A report handler: called with each report (valid during the call only) and the contexto given
 * to arr_set_manejador_informes. */
typedef void (*arr_manejador_informes)(const arr_informe *informe, void *contexto);

/** Installs the handler that every report goes to.
 * @param f the handler; NULL restores the default, which writes one line to standard error (and
 *   aborts afterwards when the environment variable ARRAYS_ABORTAR exists)
 * @param contexto handed to every call of f
 * @return the previous handler */
ARRAYS_API arr_manejador_informes arr_set_manejador_informes(arr_manejador_informes f,
                                                             void *contexto) ARR_NOEXCEPT;

/** An out-of-memory handler: called with the bytes the library could not get and the contexto
 * given to arr_set_manejador_sin_memoria; non-zero asks for the request to be tried again. */
typedef arr_bool_t (*arr_manejador_sin_memoria)(size_t bytes, void *contexto);
/** Installs the handler called when the system has no block for the library.
 * A handler that frees memory of its own and returns non-zero has the request tried again; one
 * that returns 0, or no handler, lets the library write
 * "arrays: out of memory: no block of N bytes" to standard error and end the process (abort).
 * No operation ever goes on with a missing block. The handler may destroy arrays, but not call
 * the library on an array that an operation in progress is using.
 * @param f the handler, or NULL for none
 * @param contexto handed to every call of f
 * @return the previous handler */
ARRAYS_API arr_manejador_sin_memoria arr_set_manejador_sin_memoria(arr_manejador_sin_memoria f,
                                                                   void *contexto) ARR_NOEXCEPT;

/** The number of reports made since the process started.
 * @return the count, whatever handler took them */
ARRAYS_API arr_ulong64_t arr_num_informes(void) ARR_NOEXCEPT;

/* ---- Engine queries and switches --------------------------------------------------------- */

/** Tells whether `array` is a live array of a type other than bits, without reporting.
 * For a live array (bit arrays included) fills the outputs that are not NULL.
 * @param array any pointer
 * @param tipo gets the element type tag (tipo_elem_array)
 * @param num_elems gets the element count (bits for a bit array)
 * @param size_elem gets the element size in bytes
 * @return CIERTO for a live array that is not a bit array */
ARRAYS_API arr_bool_t arryprv_es_array_correcto(const ARRAY *array, int32_t *tipo,
                                                int32_t *num_elems,
                                                uint64_t *size_elem) ARR_NOEXCEPT;

/** Switches the lenient loop-guard check on or off for the whole process.
 *
 * Callbacks that change the array they are called for. While a traversal, a sort, a search, an
 * equality or a destruction calls back into the application (an action, a comparator, a
 * predicate, a release function), a call on the same array that would free it or move, free or
 * shorten its rows (insert, delete, grow, shrink, destroy, an append that needs a new row) is
 * reported and NOT carried out: the walk goes on over the elements it started with, and the
 * caller's handle stays valid, to be destroyed once the walk has returned. A traversal, sort or
 * search also refuses appends and concatenations into the array; an equality walk lets an append
 * that fits in the last row through, without a report. Inside a sort, a string
 * set (which would free a string the sort may hold) is refused the same way. Writes in place
 * (sets, increments, initialise) are reported and carried out. The reports are the loop-guard
 * texts, e.g. "array->en_bucle == FALSO" or "(*array)->en_bucle_lectura == FALSO".
 *
 * This switch turns the lenient loop-guard check on (while it equals 1) or off.
 * @param valor 1 to check, anything else not to
 * @return the value stored */
ARRAYS_API arr_bool_t arrayprv_set_comprobar_en_bucle(arr_bool_t valor) ARR_NOEXCEPT;

/* ---- Rows ------------------------------------------------------------------------------ */

/** The elements of row `fila` of any array, for iterations that pay one call per row instead of
 * one per element (the iterators of arrays.hpp).
 * Rows hold the elements in position order, each row at least one, and each element in the
 * layout of its type (a 2D point as x then y).
 * @param array the array
 * @param fila the row, from 0
 * @param num_elems gets the row's element count (0 past the last row); may be NULL
 * @return the address of the row's first element, valid until the array next changes; NULL past
 *   the last row or for a handle that is not a live array
 * @par Reports
 *   - "(array) != NULL" and "array->mascara_debug == MASCARA_DEBUG" (NULL then) */
ARRAYS_API void *arr_Fila(const ARRAY *array, arr_ulong_t fila,
                          arr_ulong_t *num_elems) ARR_NOEXCEPT;

/* ---- Strings handed across the interface ------------------------------------------------ */

/* Strings that callers hand over to an array (the ...Original operations) must come from these,
 * and strings the library hands out are released with them. */
/** Copies a narrow string into memory of the library's.
 * @param cadena the string to copy
 * @return the copy, to be handed to an array or freed with zarpstr_destruye; NULL for NULL */
ARRAYS_API char *cad_copia_cadena(const char *cadena) ARR_NOEXCEPT;
/** Frees a narrow string made by the library and sets the caller's pointer to NULL.
 * @param cadena the address of the string's pointer (a NULL address or string is left alone) */
ARRAYS_API void zarpstr_destruye(char **cadena) ARR_NOEXCEPT;
/** Copies a wide (UTF-16) string into memory of the library's.
 * @param cadena the string to copy
 * @return the copy, to be handed to an array or freed with widestr_nousar_destruye; NULL for NULL */
ARRAYS_API arr_wchar_t *widestr_fun_copia(const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Frees a wide string made by the library and sets the caller's pointer to NULL.
 * @param cadena the address of the string's pointer (a NULL address or string is left alone)
 * @param ubicacion the caller's module (kept for the callers that pass it; not used)
 * @param linea the caller's line (likewise) */
ARRAYS_API void widestr_nousar_destruye(arr_wchar_t **cadena, const char *ubicacion,
                                        arr_long_t linea) ARR_NOEXCEPT;

/* ---- Scalar families ------------------------------------------------------------------- */

/*
 * Eleven families of plain values, each declared in full below: BOOL compares always exactly
 * (no predicates); the integer families take an optional predicate in searches and compare arrays
 * exactly; Double requires a predicate in searches and in the equality of arrays. Not every
 * family has every optional operation (AppendN, AumentaTamanyo, ReduceTamanyo, Sumar, Sumatorio,
 * the traversal arr_nousar_Recorre): the gaps are deliberate. In short, for a family F of value
 * type T:
 *
 *   ARRAY *arr_CreaF(ULONG n)                    new array of n zero elements
 *   void   arr_AppendF(ARRAY *a, T v)            append v
 *   void   arr_AppendNFs(ARRAY *a, ULONG n, T v) append v n times (BOOL and Double report a
 *          count below 2 as "num_veces > 1", ULong and ULong64 a count of 0 as "num_veces > 0";
 *          either way v is then appended n times)
 *   void   arr_InsertarF(ARRAY *a, ULONG pos, T v)  insert v before pos (pos == count appends)
 *   void   arr_BorrarF(ARRAY *a, ULONG pos)      delete the element at pos
 *   T      arr_GetF(ARRAY *a, ULONG pos)         the element at pos
 *   void   arr_SetF(ARRAY *a, ULONG pos, T v)    overwrite the element at pos
 *   void   arr_InicializaF(ARRAY *a, T v)        set every element to v
 *   ULONG  arr_BuscarF(ARRAY *a, T v [, igualdad])      first position equal to v, or ARR_ULONG_MAX
 *   ULONG  arr_BuscarUnicoF(ARRAY *a, T v [, igualdad]) the same; a second match is reported
 *   BOOL   arr_ExisteF(ARRAY *a, T v [, igualdad], ULONG *pos)  found? pos (if not NULL) gets
 *          the position or ARR_ULONG_MAX; arr_ExisteUnicoF likewise
 *   void   arr_QSortF(ARRAY *a, arr_orden_F comparador)  sort in place; NULL: ascending (Char as
 *          signed 8-bit values; BOOL's default never answers "less", so it only partly orders)
 *   BOOL   arr_SonIgualesF(ARRAY *a, ARRAY *b [, igualdad])  same count and equal elements
 *   void   arr_SumarF(ARRAY *a, ULONG pos, D delta)  adds delta to the element at pos, wrapping
 *          in the element's width; a sum not strictly inside the type's range is reported first
 *   T      arr_SumatorioF(const ARRAY *a)        the sum of the elements (unsigned families
 *          modulo 2^32 or 2^64, without a report)
 *   void   arr_nousar_RecorreF(ARRAY *a, accion, void *datos, const char *ubicacion, LONG linea)
 *          call accion(&element, datos) for every element in order; ubicacion and linea name
 *          the caller in a report of a traversal already running
 *
 * and the functions shared by every family (one function under every family's name):
 *   void   arr_DestruyeF(ARRAY **a)         ULONG arr_NumElemsF(ARRAY *a)
 *   ARRAY *arr_CopiaF(ARRAY *a)             a new array with the same elements
 *   void   arr_ConcatenaF(ARRAY *dest, ARRAY *org)  append org's elements to dest
 *   void   arr_AumentaTamanyoF(ARRAY *a, ULONG n)   grow to n elements (new ones are zero)
 *   void   arr_ReduceTamanyoF(ARRAY *a, ULONG n)    shrink to n elements
 */
/* @generado escalares: tools/genera_interfaz.py writes what follows from tools/familias.py */
/** @defgroup familia_BOOL BOOL arrays
 * Arrays of booleans (16-bit) (arr_bool_t).
 * @{ */
/** Action of arr_nousar_RecorreBOOL: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_BOOL)(arr_bool_t *elemento, void *datos);
/** Equality of two BOOL values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_BOOL)(arr_bool_t a, arr_bool_t b);
/** Order of arr_QSortBOOL: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_BOOL)(arr_bool_t a, arr_bool_t b);
/** Creates an array of booleans (16-bit) holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeBOOL */
ARRAYS_API ARRAY *arr_CreaBOOL(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeBOOL(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsBOOL(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendBOOL(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** Appends valor num_veces times.
 * @param array the array
 * @param num_veces how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_veces > 1" for a count below 2 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNBOOLs(ARRAY *array, arr_ulong_t num_veces,
                                 arr_bool_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarBOOL(ARRAY *array, arr_ulong_t pos, arr_bool_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarBOOL(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_bool_t arr_GetBOOL(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetBOOL(ARRAY *array, arr_ulong_t pos, arr_bool_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaBOOL(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarBOOL(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoBOOL(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteBOOL(ARRAY *array, arr_bool_t valor,
                                     arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoBOOL(ARRAY *array, arr_bool_t valor,
                                          arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortBOOL(ARRAY *array, arr_orden_BOOL comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesBOOL(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaBOOL(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaBOOL(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoBOOL(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoBOOL(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreBOOL(ARRAY *array, arr_accion_BOOL accion, void *datos,
                                       const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_BYTE BYTE arrays
 * Arrays of unsigned bytes (arr_byte_t).
 * @{ */
/** Action of arr_nousar_RecorreBYTE: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_BYTE)(arr_byte_t *elemento, void *datos);
/** Equality of two BYTE values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_BYTE)(arr_byte_t a, arr_byte_t b);
/** Order of arr_QSortBYTE: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_BYTE)(arr_byte_t a, arr_byte_t b);
/** Creates an array of unsigned bytes holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeBYTE */
ARRAYS_API ARRAY *arr_CreaBYTE(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeBYTE(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsBYTE(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendBYTE(ARRAY *array, arr_byte_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarBYTE(ARRAY *array, arr_ulong_t pos, arr_byte_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarBYTE(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_byte_t arr_GetBYTE(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetBYTE(ARRAY *array, arr_ulong_t pos, arr_byte_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaBYTE(ARRAY *array, arr_byte_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarBYTE(ARRAY *array, arr_byte_t valor,
                                      arr_igualdad_BYTE igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoBYTE(ARRAY *array, arr_byte_t valor,
                                           arr_igualdad_BYTE igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteBYTE(ARRAY *array, arr_byte_t valor, arr_igualdad_BYTE igualdad,
                                     arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoBYTE(ARRAY *array, arr_byte_t valor,
                                          arr_igualdad_BYTE igualdad,
                                          arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortBYTE(ARRAY *array, arr_orden_BYTE comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesBYTE(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaBYTE(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaBYTE(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoBYTE(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoBYTE(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_UChar UChar arrays
 * Arrays of unsigned characters (arr_uchar_t).
 * @{ */
/** Action of arr_nousar_RecorreUChar: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_UChar)(arr_uchar_t *elemento, void *datos);
/** Equality of two UChar values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_UChar)(arr_uchar_t a, arr_uchar_t b);
/** Order of arr_QSortUChar: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_UChar)(arr_uchar_t a, arr_uchar_t b);
/** Creates an array of unsigned characters holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeUChar */
ARRAYS_API ARRAY *arr_CreaUChar(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeUChar(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsUChar(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendUChar(ARRAY *array, arr_uchar_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarUChar(ARRAY *array, arr_ulong_t pos, arr_uchar_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarUChar(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_uchar_t arr_GetUChar(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetUChar(ARRAY *array, arr_ulong_t pos, arr_uchar_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaUChar(ARRAY *array, arr_uchar_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarUChar(ARRAY *array, arr_uchar_t valor,
                                       arr_igualdad_UChar igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoUChar(ARRAY *array, arr_uchar_t valor,
                                            arr_igualdad_UChar igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteUChar(ARRAY *array, arr_uchar_t valor, arr_igualdad_UChar igualdad,
                                      arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoUChar(ARRAY *array, arr_uchar_t valor,
                                           arr_igualdad_UChar igualdad,
                                           arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortUChar(ARRAY *array, arr_orden_UChar comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesUChar(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaUChar(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaUChar(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoUChar(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_Char Char arrays
 * Arrays of characters (ordered as signed) (char).
 * @{ */
/** Action of arr_nousar_RecorreChar: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_Char)(char *elemento, void *datos);
/** Equality of two Char values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_Char)(char a, char b);
/** Order of arr_QSortChar: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_Char)(char a, char b);
/** Creates an array of characters (ordered as signed) holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeChar */
ARRAYS_API ARRAY *arr_CreaChar(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeChar(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsChar(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendChar(ARRAY *array, char valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarChar(ARRAY *array, arr_ulong_t pos, char valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarChar(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API char arr_GetChar(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetChar(ARRAY *array, arr_ulong_t pos, char valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaChar(ARRAY *array, char valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarChar(ARRAY *array, char valor,
                                      arr_igualdad_Char igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoChar(ARRAY *array, char valor,
                                           arr_igualdad_Char igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteChar(ARRAY *array, char valor, arr_igualdad_Char igualdad,
                                     arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoChar(ARRAY *array, char valor, arr_igualdad_Char igualdad,
                                          arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortChar(ARRAY *array, arr_orden_Char comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesChar(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaChar(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaChar(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreChar(ARRAY *array, arr_accion_Char accion, void *datos,
                                       const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_Short Short arrays
 * Arrays of signed 16-bit integers (arr_short_t).
 * @{ */
/** Action of arr_nousar_RecorreShort: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_Short)(arr_short_t *elemento, void *datos);
/** Equality of two Short values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_Short)(arr_short_t a, arr_short_t b);
/** Order of arr_QSortShort: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_Short)(arr_short_t a, arr_short_t b);
/** Creates an array of signed 16-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeShort */
ARRAYS_API ARRAY *arr_CreaShort(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeShort(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsShort(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendShort(ARRAY *array, arr_short_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarShort(ARRAY *array, arr_ulong_t pos, arr_short_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarShort(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_short_t arr_GetShort(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetShort(ARRAY *array, arr_ulong_t pos, arr_short_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaShort(ARRAY *array, arr_short_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarShort(ARRAY *array, arr_short_t valor,
                                       arr_igualdad_Short igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoShort(ARRAY *array, arr_short_t valor,
                                            arr_igualdad_Short igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteShort(ARRAY *array, arr_short_t valor, arr_igualdad_Short igualdad,
                                      arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoShort(ARRAY *array, arr_short_t valor,
                                           arr_igualdad_Short igualdad,
                                           arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortShort(ARRAY *array, arr_orden_Short comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesShort(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaShort(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaShort(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_UShort UShort arrays
 * Arrays of unsigned 16-bit integers (arr_ushort_t).
 * @{ */
/** Action of arr_nousar_RecorreUShort: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_UShort)(arr_ushort_t *elemento, void *datos);
/** Equality of two UShort values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_UShort)(arr_ushort_t a, arr_ushort_t b);
/** Order of arr_QSortUShort: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_UShort)(arr_ushort_t a, arr_ushort_t b);
/** Creates an array of unsigned 16-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeUShort */
ARRAYS_API ARRAY *arr_CreaUShort(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeUShort(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsUShort(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendUShort(ARRAY *array, arr_ushort_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarUShort(ARRAY *array, arr_ulong_t pos, arr_ushort_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarUShort(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_ushort_t arr_GetUShort(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetUShort(ARRAY *array, arr_ulong_t pos, arr_ushort_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaUShort(ARRAY *array, arr_ushort_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarUShort(ARRAY *array, arr_ushort_t valor,
                                        arr_igualdad_UShort igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoUShort(ARRAY *array, arr_ushort_t valor,
                                             arr_igualdad_UShort igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteUShort(ARRAY *array, arr_ushort_t valor,
                                       arr_igualdad_UShort igualdad,
                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoUShort(ARRAY *array, arr_ushort_t valor,
                                            arr_igualdad_UShort igualdad,
                                            arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortUShort(ARRAY *array, arr_orden_UShort comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesUShort(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaUShort(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaUShort(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoUShort(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoUShort(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds delta to the element at pos, wrapping in the element's width.
 * @param array the array
 * @param pos the position, from 0
 * @param delta what is added
 * @par Reports, besides the checks of the handle
 *   - a sum not strictly inside the type's range, before it is stored
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API void arr_SumarUShort(ARRAY *array, arr_ulong_t pos, arr_short_t delta) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreUShort(ARRAY *array, arr_accion_UShort accion, void *datos,
                                         const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_Long Long arrays
 * Arrays of signed 32-bit integers (arr_long_t).
 * @{ */
/** Action of arr_nousar_RecorreLong: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_Long)(arr_long_t *elemento, void *datos);
/** Equality of two Long values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_Long)(arr_long_t a, arr_long_t b);
/** Order of arr_QSortLong: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_Long)(arr_long_t a, arr_long_t b);
/** Creates an array of signed 32-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeLong */
ARRAYS_API ARRAY *arr_CreaLong(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeLong(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsLong(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendLong(ARRAY *array, arr_long_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarLong(ARRAY *array, arr_ulong_t pos, arr_long_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarLong(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_long_t arr_GetLong(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetLong(ARRAY *array, arr_ulong_t pos, arr_long_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaLong(ARRAY *array, arr_long_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarLong(ARRAY *array, arr_long_t valor,
                                      arr_igualdad_Long igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoLong(ARRAY *array, arr_long_t valor,
                                           arr_igualdad_Long igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteLong(ARRAY *array, arr_long_t valor, arr_igualdad_Long igualdad,
                                     arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoLong(ARRAY *array, arr_long_t valor,
                                          arr_igualdad_Long igualdad,
                                          arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortLong(ARRAY *array, arr_orden_Long comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesLong(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaLong(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaLong(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoLong(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoLong(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds delta to the element at pos, wrapping in the element's width.
 * @param array the array
 * @param pos the position, from 0
 * @param delta what is added
 * @par Reports, besides the checks of the handle
 *   - a sum not strictly inside the type's range, before it is stored
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API void arr_SumarLong(ARRAY *array, arr_ulong_t pos, arr_long_t delta) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_ULong ULong arrays
 * Arrays of unsigned 32-bit integers (arr_ulong_t).
 * @{ */
/** Action of arr_nousar_RecorreULong: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_ULong)(arr_ulong_t *elemento, void *datos);
/** Equality of two ULong values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_ULong)(arr_ulong_t a, arr_ulong_t b);
/** Order of arr_QSortULong: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_ULong)(arr_ulong_t a, arr_ulong_t b);
/** Creates an array of unsigned 32-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeULong */
ARRAYS_API ARRAY *arr_CreaULong(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeULong(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsULong(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendULong(ARRAY *array, arr_ulong_t valor) ARR_NOEXCEPT;
/** Appends valor num_veces times.
 * @param array the array
 * @param num_veces how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_veces > 0" for 0 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNULongs(ARRAY *array, arr_ulong_t num_veces,
                                  arr_ulong_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarULong(ARRAY *array, arr_ulong_t pos, arr_ulong_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarULong(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_ulong_t arr_GetULong(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetULong(ARRAY *array, arr_ulong_t pos, arr_ulong_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaULong(ARRAY *array, arr_ulong_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarULong(ARRAY *array, arr_ulong_t valor,
                                       arr_igualdad_ULong igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoULong(ARRAY *array, arr_ulong_t valor,
                                            arr_igualdad_ULong igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteULong(ARRAY *array, arr_ulong_t valor, arr_igualdad_ULong igualdad,
                                      arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoULong(ARRAY *array, arr_ulong_t valor,
                                           arr_igualdad_ULong igualdad,
                                           arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortULong(ARRAY *array, arr_orden_ULong comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesULong(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaULong(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaULong(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoULong(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoULong(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds delta to the element at pos, wrapping in the element's width.
 * @param array the array
 * @param pos the position, from 0
 * @param delta what is added
 * @par Reports, besides the checks of the handle
 *   - a sum not strictly inside the type's range, before it is stored
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API void arr_SumarULong(ARRAY *array, arr_ulong_t pos, arr_long_t delta) ARR_NOEXCEPT;
/** Adds up the elements.
 * @param array the array
 * @return their sum, modulo 2 to the element's width in bits; 0 for an empty array */
ARRAYS_API arr_ulong_t arr_SumatorioULong(const ARRAY *array) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreULong(ARRAY *array, arr_accion_ULong accion, void *datos,
                                        const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_Long64 Long64 arrays
 * Arrays of signed 64-bit integers (arr_long64_t).
 * @{ */
/** Action of arr_nousar_RecorreLong64: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_Long64)(arr_long64_t *elemento, void *datos);
/** Equality of two Long64 values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_Long64)(arr_long64_t a, arr_long64_t b);
/** Order of arr_QSortLong64: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_Long64)(arr_long64_t a, arr_long64_t b);
/** Creates an array of signed 64-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeLong64 */
ARRAYS_API ARRAY *arr_CreaLong64(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeLong64(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsLong64(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendLong64(ARRAY *array, arr_long64_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarLong64(ARRAY *array, arr_ulong_t pos, arr_long64_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarLong64(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_long64_t arr_GetLong64(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetLong64(ARRAY *array, arr_ulong_t pos, arr_long64_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaLong64(ARRAY *array, arr_long64_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarLong64(ARRAY *array, arr_long64_t valor,
                                        arr_igualdad_Long64 igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoLong64(ARRAY *array, arr_long64_t valor,
                                             arr_igualdad_Long64 igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteLong64(ARRAY *array, arr_long64_t valor,
                                       arr_igualdad_Long64 igualdad,
                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoLong64(ARRAY *array, arr_long64_t valor,
                                            arr_igualdad_Long64 igualdad,
                                            arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortLong64(ARRAY *array, arr_orden_Long64 comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesLong64(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaLong64(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaLong64(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoLong64(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoLong64(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds delta to the element at pos, wrapping in the element's width.
 * @param array the array
 * @param pos the position, from 0
 * @param delta what is added
 * @par Reports, besides the checks of the handle
 *   - a sum not strictly inside the type's range, before it is stored
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API void arr_SumarLong64(ARRAY *array, arr_ulong_t pos, arr_long64_t delta) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_ULong64 ULong64 arrays
 * Arrays of unsigned 64-bit integers (arr_ulong64_t).
 * @{ */
/** Action of arr_nousar_RecorreULong64: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_ULong64)(arr_ulong64_t *elemento, void *datos);
/** Equality of two ULong64 values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_ULong64)(arr_ulong64_t a, arr_ulong64_t b);
/** Order of arr_QSortULong64: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR.
 */
typedef int (*arr_orden_ULong64)(arr_ulong64_t a, arr_ulong64_t b);
/** Creates an array of unsigned 64-bit integers holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeULong64 */
ARRAYS_API ARRAY *arr_CreaULong64(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeULong64(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsULong64(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendULong64(ARRAY *array, arr_ulong64_t valor) ARR_NOEXCEPT;
/** Appends valor num_veces times.
 * @param array the array
 * @param num_veces how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_veces > 0" for 0 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNULong64s(ARRAY *array, arr_ulong_t num_veces,
                                    arr_ulong64_t valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarULong64(ARRAY *array, arr_ulong_t pos,
                                    arr_ulong64_t valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarULong64(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_ulong64_t arr_GetULong64(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetULong64(ARRAY *array, arr_ulong_t pos, arr_ulong64_t valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaULong64(ARRAY *array, arr_ulong64_t valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarULong64(ARRAY *array, arr_ulong64_t valor,
                                         arr_igualdad_ULong64 igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoULong64(ARRAY *array, arr_ulong64_t valor,
                                              arr_igualdad_ULong64 igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteULong64(ARRAY *array, arr_ulong64_t valor,
                                        arr_igualdad_ULong64 igualdad,
                                        arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoULong64(ARRAY *array, arr_ulong64_t valor,
                                             arr_igualdad_ULong64 igualdad,
                                             arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortULong64(ARRAY *array, arr_orden_ULong64 comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesULong64(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaULong64(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaULong64(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoULong64(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoULong64(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds delta to the element at pos, wrapping in the element's width.
 * @param array the array
 * @param pos the position, from 0
 * @param delta what is added
 * @par Reports, besides the checks of the handle
 *   - a sum not strictly inside the type's range, before it is stored
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API void arr_SumarULong64(ARRAY *array, arr_ulong_t pos, arr_long64_t delta) ARR_NOEXCEPT;
/** Adds up the elements.
 * @param array the array
 * @return their sum, modulo 2 to the element's width in bits; 0 for an empty array */
ARRAYS_API arr_ulong64_t arr_SumatorioULong64(const ARRAY *array) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreULong64(ARRAY *array, arr_accion_ULong64 accion, void *datos,
                                          const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_Double Double arrays
 * Arrays of doubles (double).
 * @{ */
/** Action of arr_nousar_RecorreDouble: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_Double)(double *elemento, void *datos);
/** Equality of two Double values in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_Double)(double a, double b);
/** Order of arr_QSortDouble: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_Double)(double a, double b);
/** Creates an array of doubles holding tamanyo_inicial zero elements.
 * @param tamanyo_inicial how many elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeDouble */
ARRAYS_API ARRAY *arr_CreaDouble(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Destroys the array (any family's: one function under every family's name).
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeDouble(ARRAY **array) ARR_NOEXCEPT;
/** The number of elements of the array (one function under every family's name).
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsDouble(const ARRAY *array) ARR_NOEXCEPT;
/** Appends valor after the last element.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendDouble(ARRAY *array, double valor) ARR_NOEXCEPT;
/** Appends valor num_veces times.
 * @param array the array
 * @param num_veces how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_veces > 1" for a count below 2 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNDoubles(ARRAY *array, arr_ulong_t num_veces, double valor) ARR_NOEXCEPT;
/** Inserts valor before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarDouble(ARRAY *array, arr_ulong_t pos, double valor) ARR_NOEXCEPT;
/** Deletes the element at pos; the later ones move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarDouble(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API double arr_GetDouble(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Overwrites the element at pos.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_SetDouble(ARRAY *array, arr_ulong_t pos, double valor) ARR_NOEXCEPT;
/** Sets every element to valor.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arr_InicializaDouble(ARRAY *array, double valor) ARR_NOEXCEPT;
/** Finds the first element equal to valor.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarDouble(ARRAY *array, double valor,
                                        arr_igualdad_Double igualdad) ARR_NOEXCEPT;
/** Finds the element equal to valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicoDouble(ARRAY *array, double valor,
                                             arr_igualdad_Double igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals valor, and where the first one is.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteDouble(ARRAY *array, double valor, arr_igualdad_Double igualdad,
                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals valor, which should be the only one.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicoDouble(ARRAY *array, double valor,
                                            arr_igualdad_Double igualdad,
                                            arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * With a comparator, its calls are exactly those of the documented algorithm; with NULL only the
 * final order is promised.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortDouble(ARRAY *array, arr_orden_Double comparador) ARR_NOEXCEPT;
/** Compares two arrays element by element.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when two elements are equal
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesDouble(ARRAY *array1, ARRAY *array2,
                                           arr_igualdad_Double igualdad) ARR_NOEXCEPT;
/** Copies the array (one function under every family's name).
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaDouble(const ARRAY *array) ARR_NOEXCEPT;
/** Appends every element of org to dest (one function under every family's name).
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaDouble(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** Grows the array to nuevo_tamanyo elements; the new ones are zero (one function under every
 * family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoDouble(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo elements (one function under every family's name).
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoDouble(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Adds up the elements.
 * @param array the array
 * @return their sum; 0 for an empty array */
ARRAYS_API double arr_SumatorioDouble(const ARRAY *array) ARR_NOEXCEPT;
/** Calls accion for every element in position order.
 * The action may change the element in place; calls that would free the array or move, free or
 * shorten its rows are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void arr_nousar_RecorreDouble(ARRAY *array, arr_accion_Double accion, void *datos,
                                         const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */
/* @fin escalares */

/** Reverses the order of the elements of a BOOL array in place (the values are not negated).
 * @param array the array
 * @ingroup familia_BOOL */
ARRAYS_API void arr_InvertirBOOL(ARRAY *array) ARR_NOEXCEPT;

/** The smallest and the greatest element of a Double array and their first positions.
 * An empty array, and an array of NaNs only, give DBL_MAX, -DBL_MAX and ARR_ULONG_MAX for both
 * positions. Every output may be NULL.
 * @param array the array
 * @param minimo gets the smallest element
 * @param pos_minimo gets its first position
 * @param maximo gets the greatest element
 * @param pos_maximo gets its first position
 * @par Reports, besides the checks of the handle
 *   - "array->num_elems > 0" for an empty array
 * @ingroup familia_Double */
ARRAYS_API void arr_MinimoMaximoDouble(const ARRAY *array, double *minimo, arr_ulong_t *pos_minimo,
                                       double *maximo, arr_ulong_t *pos_maximo) ARR_NOEXCEPT;

/** Compares two Double arrays within a tolerance.
 * @param array1 the first array
 * @param array2 the second array
 * @param tolerancia the greatest difference allowed between two elements at one position
 * @return CIERTO when both have the same count and no pair of elements at the same position
 *   differs by more than tolerancia (a NaN difference counts as equal)
 * @ingroup familia_Double */
ARRAYS_API arr_bool_t arr_SonIgualesDoubleConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                        double tolerancia) ARR_NOEXCEPT;
/** Compares, within a tolerance, two pointer arrays (arr_CreaPunteroConTipo) whose elements are
 * Double arrays, pair by pair up to the first unequal pair.
 * @param array1 the first pointer array
 * @param array2 the second pointer array
 * @param tolerancia as in arr_SonIgualesDoubleConTolerancia
 * @return CIERTO when both have the same count and every pair of Double arrays is equal within
 *   tolerancia
 * @ingroup familia_Double */
ARRAYS_API arr_bool_t arr_SonIgualesArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                                     const ARRAY *array2,
                                                               double tolerancia) ARR_NOEXCEPT;
/** The same one level deeper: pointer arrays whose elements are such pointer arrays.
 * @param array1 the first pointer array
 * @param array2 the second pointer array
 * @param tolerancia as in arr_SonIgualesDoubleConTolerancia
 * @return CIERTO when both have the same count and every pair of their elements is equal as
 *   arr_SonIgualesArrPunteroArrDoubleConTolerancia tells
 * @ingroup familia_Double */
ARRAYS_API arr_bool_t arr_SonIgualesArrArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                                        const ARRAY *array2,
                                                                  double tolerancia) ARR_NOEXCEPT;

/** Turns every price of a Double array from pesetas into euros (divided by 166.386), rounded
 * to two decimals.
 * @param array the array
 * @ingroup familia_Double */
ARRAYS_API void arr_cambio_precio_pesetas_a_euros(ARRAY *array) ARR_NOEXCEPT;

/* ---- The shared functions under the names of the other families ------------------------- */

/* @generado compartidas: tools/genera_interfaz.py writes what follows from tools/familias.py */
/** @defgroup compartidas Shared functions under the other families' names
 * Destroy, count, copy, concatenate, grow and shrink: one function each.
 * @{ */
/** The same function as arr_DestruyeDouble, under the name of the BIT arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeBIT(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the CADENA arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeCADENA(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the CADENA_u arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyeCADENA_u(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the PunteroConTipo arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyePunteroConTipo(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the Punto2D arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyePunto2D(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the Punto3D arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arr_DestruyePunto3D(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the ULong arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arulong_destruye(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_DestruyeDouble, under the name of the ULong64 arrays.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->en_bucle == FALSO" when called from inside a walk of this array, which it then
 *     leaves alive */
ARRAYS_API void arulong64_destruye(ARRAY **array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the BIT arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsBIT(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the CADENA arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsCADENA(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the CADENA_u arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsCADENA_u(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the Punto2D arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsPunto2D(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the Punto3D arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arr_NumElemsPunto3D(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the ULong arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arulong_numelems(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_NumElemsDouble, under the name of the ULong64 arrays.
 * @param array the array
 * @return the count; 0 for a handle that is not a live array */
ARRAYS_API arr_ulong_t arulong64_numelems(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the BIT arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaBIT(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the CADENA arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaCADENA(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the CADENA_u arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaCADENA_u(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the Punto2D arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaPunto2D(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the Punto3D arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arr_CopiaPunto3D(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the ULong arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arulong_copia(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_CopiaDouble, under the name of the ULong64 arrays.
 * @param array the array
 * @return a new array with the same elements; NULL when the call ends early */
ARRAYS_API ARRAY *arulong64_copia(const ARRAY *array) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the CADENA arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaCADENA(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the CADENA_u arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaCADENA_u(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the Punto2D arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaPunto2D(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the Punto3D arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arr_ConcatenaPunto3D(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the ULong arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arulong_concatena(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_ConcatenaDouble, under the name of the ULong64 arrays.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @par Reports, besides the checks of the handle
 *   - "(dest) != NULL", "(org) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == dest->tipo_elem" for arrays of two types
 *   - "dest->en_bucle == FALSO" from inside a walk of dest */
ARRAYS_API void arulong64_concatena(ARRAY *dest, const ARRAY *org) ARR_NOEXCEPT;
/** The same function as arr_AumentaTamanyoDouble, under the name of the BIT arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoBIT(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_AumentaTamanyoDouble, under the name of the CADENA_u arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoCADENA_u(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_AumentaTamanyoDouble, under the name of the EstructurasConTipo arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoEstructurasConTipo(ARRAY *array,
                                                     arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_AumentaTamanyoDouble, under the name of the Punto2D arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoPunto2D(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_AumentaTamanyoDouble, under the name of the Punto3D arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > array->num_elems" for a count not above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AumentaTamanyoPunto3D(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the BIT arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoBIT(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the CADENA arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoCADENA(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the CADENA_u arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoCADENA_u(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the Punto2D arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoPunto2D(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the Punto3D arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoPunto3D(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the ULong arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong_reduce_tamanyo(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** The same function as arr_ReduceTamanyoDouble, under the name of the ULong64 arrays.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @par Reports, besides the checks of the handle
 *   - a count above the present one
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong64_reduce_tamanyo(ARRAY *array, arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** @} */
/* @fin compartidas */

/* ---- Bit arrays --------------------------------------------------------------------------- */

/**
 * @defgroup familia_BIT Bit arrays
 * Arrays of single bits, packed eight to a byte: bit pos is bit pos % 8 (from the least
 * significant) of byte pos / 8. A bit is passed as a BOOL (any non-zero value sets it) and read
 * back as 1 or 0. arr_NumElemsBIT counts bits. Destruction, count, copy, growth and shrinking
 * are the shared functions (arr_DestruyeBIT, arr_NumElemsBIT, arr_CopiaBIT,
 * arr_AumentaTamanyoBIT, arr_ReduceTamanyoBIT); bits have no insert, delete, search, sort,
 * comparison or concatenation.
 * @{
 */

/** Creates an array of n false bits.
 * @param n how many bits it starts with
 * @return the new array, to be destroyed with arr_DestruyeBIT */
ARRAYS_API ARRAY *arr_CreaBIT(arr_ulong_t n) ARR_NOEXCEPT;
/** Reads the bit at pos.
 * @param array the array
 * @param pos the bit's position, from 0
 * @return 1 or 0; a pos past the bit count still reads the byte that would hold it when it exists
 * @par Reports, besides the checks of the handle
 *   - "pos < array->num_bits" for a pos not below the bit count */
ARRAYS_API arr_bool_t arr_GetBIT(const ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Sets the bit at pos for a non-zero valor, clears it for FALSO.
 * @param array the array
 * @param pos the bit's position, from 0
 * @param valor the bit
 * @par Reports, besides the checks of the handle
 *   - "pos < array->num_bits" for a pos not below the bit count */
ARRAYS_API void arr_SetBIT(ARRAY *array, arr_ulong_t pos, arr_bool_t valor) ARR_NOEXCEPT;
/** Appends one bit.
 * @param array the array
 * @param valor the bit: set for any non-zero value */
ARRAYS_API void arr_AppendBIT(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** Sets every bit (whole bytes, so also the spare bits of the last byte) to valor.
 * @param array the array
 * @param valor the bit: set for any non-zero value */
ARRAYS_API void arr_InicializaBIT(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/** @} */

/* ---- The arulong and arulong64 names ------------------------------------------------------ */

/*
 * The ULong and ULong64 families under second, lower-case names: arulong_ for ULong arrays and
 * arulong64_ for ULong64 arrays. An array made under either set of names may be used with the
 * other. Besides the shared arulong_destruye, arulong_numelems, arulong_copia,
 * arulong_concatena and arulong_reduce_tamanyo (above), each name below is the very same function
 * as its arr_ twin, except arulong_crea and arulong_append_n.
 */
/* @generado arulong: tools/genera_interfaz.py writes what follows from tools/familias.py */
/** @defgroup segundos_nombres The arulong and arulong64 names
 * The ULong and ULong64 families under second, lower-case names.
 * @{ */
/** Creates an empty ULong array, as arr_CreaULong(0) does.
 * @return the new array, to be destroyed with arulong_destruye */
ARRAYS_API ARRAY *arulong_crea(void) ARR_NOEXCEPT;
/** Appends valor num_valores times.
 * @param array the array
 * @param num_valores how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_valores > 1" for a count below 2 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong_append_n(ARRAY *array, arr_ulong_t num_valores,
                                 arr_ulong_t valor) ARR_NOEXCEPT;
/** The same function as arr_AppendULong.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong_append(ARRAY *array, arr_ulong_t valor) ARR_NOEXCEPT;
/** The same function as arr_InsertarULong.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong_inserta(ARRAY *array, arr_ulong_t pos, arr_ulong_t valor) ARR_NOEXCEPT;
/** The same function as arr_BorrarULong.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong_borra(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** The same function as arr_GetULong.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_ulong_t arulong_get(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** The same function as arr_SetULong.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arulong_set(ARRAY *array, arr_ulong_t pos, arr_ulong_t valor) ARR_NOEXCEPT;
/** The same function as arr_BuscarULong.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arulong_busca(ARRAY *array, arr_ulong_t valor,
                                     arr_igualdad_ULong igualdad) ARR_NOEXCEPT;
/** The same function as arr_BuscarUnicoULong.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arulong_busca_unico(ARRAY *array, arr_ulong_t valor,
                                           arr_igualdad_ULong igualdad) ARR_NOEXCEPT;
/** The same function as arr_ExisteULong.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arulong_existe(ARRAY *array, arr_ulong_t valor, arr_igualdad_ULong igualdad,
                                     arr_ulong_t *posicion) ARR_NOEXCEPT;
/** The same function as arr_ExisteUnicoULong.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arulong_existe_unico(ARRAY *array, arr_ulong_t valor,
                                           arr_igualdad_ULong igualdad,
                                           arr_ulong_t *posicion) ARR_NOEXCEPT;
/** The same function as arr_QSortULong.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arulong_qsort(ARRAY *array, arr_orden_ULong comparador) ARR_NOEXCEPT;
/** The same function as arr_SonIgualesULong.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arulong_iguales(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Creates an empty ULong64 array, as arr_CreaULong64(0) does.
 * @return the new array, to be destroyed with arulong64_destruye */
ARRAYS_API ARRAY *arulong64_crea(void) ARR_NOEXCEPT;
/** Appends valor num_valores times.
 * @param array the array
 * @param num_valores how many times
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "num_valores > 1" for a count below 2 (then appends it that many times)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong64_append_n(ARRAY *array, arr_ulong_t num_valores,
                                   arr_ulong64_t valor) ARR_NOEXCEPT;
/** The same function as arr_AppendULong64.
 * @param array the array
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong64_append(ARRAY *array, arr_ulong64_t valor) ARR_NOEXCEPT;
/** The same function as arr_InsertarULong64.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong64_inserta(ARRAY *array, arr_ulong_t pos, arr_ulong64_t valor) ARR_NOEXCEPT;
/** The same function as arr_BorrarULong64.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arulong64_borra(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** The same function as arr_GetULong64.
 * @param array the array
 * @param pos the position, from 0
 * @return the element; 0 when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_ulong64_t arulong64_get(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** The same function as arr_SetULong64.
 * @param array the array
 * @param pos the position, from 0
 * @param valor the value
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array (the write is made) */
ARRAYS_API void arulong64_set(ARRAY *array, arr_ulong_t pos, arr_ulong64_t valor) ARR_NOEXCEPT;
/** The same function as arr_BuscarULong64.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arulong64_busca(ARRAY *array, arr_ulong64_t valor,
                                       arr_igualdad_ULong64 igualdad) ARR_NOEXCEPT;
/** The same function as arr_BuscarUnicoULong64.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arulong64_busca_unico(ARRAY *array, arr_ulong64_t valor,
                                             arr_igualdad_ULong64 igualdad) ARR_NOEXCEPT;
/** The same function as arr_ExisteULong64.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arulong64_existe(ARRAY *array, arr_ulong64_t valor,
                                       arr_igualdad_ULong64 igualdad,
                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** The same function as arr_ExisteUnicoULong64.
 * @param array the array
 * @param valor the value looked for
 * @param igualdad non-zero when an element and valor are equal; NULL compares exactly
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arulong64_existe_unico(ARRAY *array, arr_ulong64_t valor,
                                             arr_igualdad_ULong64 igualdad,
                                             arr_ulong_t *posicion) ARR_NOEXCEPT;
/** The same function as arr_QSortULong64.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for ascending values
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arulong64_qsort(ARRAY *array, arr_orden_ULong64 comparador) ARR_NOEXCEPT;
/** The same function as arr_SonIgualesULong64.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal elements at every position
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arulong64_iguales(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** @} */
/* @fin arulong */

/* ---- Narrow and wide string arrays ---------------------------------------------------------- */

/*
 * Arrays that own their strings. CADENA holds narrow strings (zero-terminated bytes, UTF-8 where
 * letter case matters), CADENA_u wide ones (zero-terminated UTF-16). Every function below exists
 * for both: the wide one carries the suffix _u and takes WCHAR where the narrow one takes char
 * (arr_AppendCADENA_u, arr_BuscarMayMinCADENA_u, arr_cadena_de_referencias_u, ...).
 *
 * An element is a pointer to a string; a NULL element stands for no string. The array frees every
 * string it holds when the element is deleted, replaced, cut off by arr_ReduceTamanyoCADENA or
 * destroyed by arr_DestruyeCADENA; arr_CopiaCADENA and arr_ConcatenaCADENA copy every string, so
 * no string is ever shared by two arrays. A string handed over to an array (the ...Original
 * functions) must come from cad_copia_cadena / widestr_fun_copia; a string handed out
 * (arr_GetCopiaCADENA, arr_cadena_de_referencias) belongs to the caller, who frees it with
 * zarpstr_destruye / widestr_nousar_destruye. When a call ends early (a report that ends it),
 * nothing is stored and a string handed over stays the caller's.
 *
 * Letter case (the MayMin searches) is ignored code point by code point with Unicode's simple
 * case folding; an ill-formed narrow string compares byte for byte, and a lone UTF-16 surrogate
 * equals only itself.
 *
 *   ARRAY *arr_CreaCADENA(ULONG n)
 *          a new array of n NULL elements.
 *   void   arr_AppendCADENA(ARRAY *a, const char *cadena)
 *          appends a copy of cadena (NULL appends a NULL element).
 *   void   arr_AppendCADENAOriginal(ARRAY *a, char **cadena)
 *          appends the string *cadena itself and sets *cadena to NULL: the array owns it now.
 *          A NULL address is reported as "item" and appends nothing.
 *   void   arr_AppendNCADENAs(ARRAY *a, ULONG num_veces, const char *cadena)
 *          appends num_veces separate copies of cadena (0 appends nothing).
 *   void   arr_InsertarCADENA(ARRAY *a, ULONG pos, const char *cadena)
 *          inserts a copy of cadena before pos (pos == count appends).
 *   void   arr_BorrarCADENA(ARRAY *a, ULONG pos)
 *          frees the string at pos, then deletes the element.
 *   const char *arr_GetCADENA(ARRAY *a, ULONG pos)
 *          the stored string, borrowed: valid until that element changes; NULL if none.
 *   char  *arr_GetCopiaCADENA(ARRAY *a, ULONG pos)
 *          a new copy of the string at pos, owned by the caller (NULL for a NULL element).
 *   void   arr_SetCADENA(ARRAY *a, ULONG pos, const char *cadena)
 *          frees the string at pos and stores a copy of cadena. A NULL cadena is reported as
 *          "item" and leaves the element as it was; a position without element as
 *          "(ptr_cad) != NULL".
 *   void   arr_SetCADENAOriginal(ARRAY *a, ULONG pos, char **cadena)
 *          frees the string at pos, stores *cadena itself and sets *cadena to NULL. A NULL
 *          address is reported as "item" and leaves the element as it was; a position without
 *          element as "(ptr_cad) != NULL" (then *cadena stays the caller's).
 *   ULONG  arr_AumentaTamanyoCADENA(ARRAY *a, ULONG nuevo_tamanyo)      (narrow only)
 *          grows to nuevo_tamanyo elements, each new one a copy of ""; returns the new count.
 *          A size not above the count is reported as "nuevo_tamanyo > num_elems_ant".
 *          arr_AumentaTamanyoCADENA_u is the shared growth: its new elements are NULL.
 *   void   arr_QSortCADENA(ARRAY *a, arr_orden_CADENA comparador)
 *          sorts in place; comparador returns -1, 0 or 1. NULL sorts by the strings' code units
 *          (bytes, UTF-16 units), NULL elements first.
 *   BOOL   arr_SonIgualesCADENA(ARRAY *a, ARRAY *b, arr_igualdad_CADENA igualdad)
 *          same count and igualdad(element of a, element of b) for every pair.
 *   BOOL   arr_SonIgualesExactamenteCADENA(ARRAY *a, ARRAY *b)
 *          the same with exact string equality.
 *   char  *arr_cadena_de_referencias(ARRAY *a, char inicio, char separador, char fin)
 *          a new string, owned by the caller: inicio, the elements with separador between
 *          them, fin after the last one; a 0 character is left out and a NULL element adds
 *          nothing. An empty array is reported as "num_cadenas > 0" and gives just inicio.
 *   void   nousar_RecorreCADENA(ARRAY *a, arr_accion_CADENA accion, void *datos,
 *                               const char *ubicacion, LONG linea)
 *          calls accion(&element, datos) for every element in order; the action may replace
 *          the string (freeing the old one). ubicacion and linea name the caller in a report
 *          of a traversal already running.
 *
 * Searches: fifteen forms, by what they return and where they start,
 *   ULONG arr_Buscar<clase>CADENA(ARRAY *a, const char *cadena <predicado>)
 *         first position from 0 whose string equals cadena, or ARR_ULONG_MAX;
 *   ULONG arr_BuscarSiguiente<clase>CADENA(ARRAY *a, ULONG pos_inicial, const char *cadena
 *                                          <predicado>)
 *         the same from pos_inicial on (pos_inicial itself included);
 *   ULONG arr_BuscarUnica<clase>CADENA(ARRAY *a, const char *cadena <predicado>)
 *         the same over the whole array; a second match is reported as "!ya_encontrado" and
 *         the last match is the result;
 *   BOOL  arr_Existe<clase>CADENA(ARRAY *a, const char *cadena <predicado>, ULONG *pos)
 *   BOOL  arr_ExisteUnica<clase>CADENA(ARRAY *a, const char *cadena <predicado>, ULONG *pos)
 *         found? pos, when not NULL, gets the position or ARR_ULONG_MAX;
 * and by how strings are compared (<clase>): nothing, exactly; Ex, by the caller's predicate
 * igualdad(element, cadena), given as the extra argument <predicado>; MayMin, ignoring the
 * difference of upper and lower case.
 */

/* @generado cadenas: tools/genera_interfaz.py writes what follows from tools/familias.py */
/** @defgroup familia_CADENA CADENA arrays
 * Arrays of narrow strings that own them.
 * @{ */
/** Equality of two strings in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_CADENA)(const char *a, const char *b);
/** Order of arr_QSortCADENA: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_CADENA)(const char *a, const char *b);
/** Action of nousar_RecorreCADENA: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_CADENA)(char **cadena, void *datos);
/** Creates an array of narrow strings that owns its strings.
 * @param tamanyo_inicial how many NULL elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeCADENA */
ARRAYS_API ARRAY *arr_CreaCADENA(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Appends a copy of cadena.
 * @param array the array
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendCADENA(ARRAY *array, const char *cadena) ARR_NOEXCEPT;
/** Appends the string *cadena itself.
 * @param array the array
 * @param cadena the address of a string made by cad_copia_cadena, which the array takes; it is
 *   set to NULL
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL address (nothing is appended)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendCADENAOriginal(ARRAY *array, char **cadena) ARR_NOEXCEPT;
/** Appends num_veces separate copies of cadena.
 * @param array the array
 * @param num_veces how many copies; 0 appends nothing
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNCADENAs(ARRAY *array, arr_ulong_t num_veces,
                                   const char *cadena) ARR_NOEXCEPT;
/** Inserts a copy of cadena before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarCADENA(ARRAY *array, arr_ulong_t pos, const char *cadena) ARR_NOEXCEPT;
/** Frees the string at pos and deletes the element.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarCADENA(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the string at pos, lent by the array.
 * @param array the array
 * @param pos the position, from 0
 * @return the stored string, valid until that element changes; NULL for a NULL element or when
 *   the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API const char *arr_GetCADENA(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Copies the string at pos for the caller.
 * @param array the array
 * @param pos the position, from 0
 * @return a new string that the caller frees with zarpstr_destruye; NULL for a NULL element
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API char *arr_GetCopiaCADENA(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Frees the string at pos and stores a copy of cadena.
 * @param array the array
 * @param pos the position, from 0
 * @param cadena the string, copied
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL cadena, which leaves the element as it was
 *   - "(ptr_cad) != NULL" for a position without element
 *   - "array->en_bucle == FALSO" from inside a sort of this array (nothing is stored) */
ARRAYS_API void arr_SetCADENA(ARRAY *array, arr_ulong_t pos, const char *cadena) ARR_NOEXCEPT;
/** Frees the string at pos and stores the string *cadena itself.
 * @param array the array
 * @param pos the position, from 0
 * @param cadena the address of a string made by cad_copia_cadena, which the array takes; it is
 *   set to NULL
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL address, which leaves the element as it was
 *   - "(ptr_cad) != NULL" for a position without element (*cadena then stays the caller's) */
ARRAYS_API void arr_SetCADENAOriginal(ARRAY *array, arr_ulong_t pos, char **cadena) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for the order of the code units, NULL
 *   elements first
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortCADENA(ARRAY *array, arr_orden_CADENA comparador) ARR_NOEXCEPT;
/** Compares two string arrays element by element with the caller's predicate.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when two strings are equal
 * @return CIERTO when they have the same count and equal strings at every position
 * @par Reports, besides the checks of the handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesCADENA(ARRAY *array1, ARRAY *array2,
                                           arr_igualdad_CADENA igualdad) ARR_NOEXCEPT;
/** Compares two string arrays element by element, exactly.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal strings at every position
 * @par Reports, besides the checks of the handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesExactamenteCADENA(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Joins the strings of the array into one (a NULL element adds nothing).
 * @param array the array
 * @param inicio written first; 0 leaves it out
 * @param separador written between two elements; 0 leaves it out
 * @param fin written last; 0 leaves it out
 * @return a new string that the caller frees with zarpstr_destruye
 * @par Reports, besides the checks of the handle
 *   - "num_cadenas > 0" for an empty array (the result is then just inicio) */
ARRAYS_API char *arr_cadena_de_referencias(ARRAY *array, char inicio, char separador,
                                           char fin) ARR_NOEXCEPT;
/** Calls accion for every element in position order; the action may replace the string (freeing the
 * old one).
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void nousar_RecorreCADENA(ARRAY *array, arr_accion_CADENA accion, void *datos,
                                     const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared exactly.
 * @param array the array
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarCADENA(ARRAY *array, const char *cadena) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared exactly.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteCADENA(ARRAY *array, arr_ulong_t pos_inicial,
                                                 const char *cadena) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared exactly, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaCADENA(ARRAY *array, const char *cadena) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared exactly.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteCADENA(ARRAY *array, const char *cadena,
                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared exactly, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaCADENA(ARRAY *array, const char *cadena,
                                            arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared by the caller's predicate.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarExCADENA(ARRAY *array, const char *cadena,
                                          arr_igualdad_CADENA igualdad) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared by the caller's predicate.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteExCADENA(ARRAY *array, arr_ulong_t pos_inicial,
                                                   const char *cadena,
                                                   arr_igualdad_CADENA igualdad) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared by the caller's predicate, which should be the only
 * one.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaExCADENA(ARRAY *array, const char *cadena,
                                               arr_igualdad_CADENA igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared by the caller's predicate.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteExCADENA(ARRAY *array, const char *cadena,
                                         arr_igualdad_CADENA igualdad,
                                         arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared by the caller's predicate, which should be the
 * only one.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaExCADENA(ARRAY *array, const char *cadena,
                                              arr_igualdad_CADENA igualdad,
                                              arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared ignoring the difference of upper and lower
 * case.
 * @param array the array
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarMayMinCADENA(ARRAY *array, const char *cadena) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared ignoring the difference of
 * upper and lower case.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteMayMinCADENA(ARRAY *array, arr_ulong_t pos_inicial,
                                                       const char *cadena) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared ignoring the difference of upper and lower case,
 * which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaMayMinCADENA(ARRAY *array, const char *cadena) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared ignoring the difference of upper and lower
 * case.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteMayMinCADENA(ARRAY *array, const char *cadena,
                                             arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared ignoring the difference of upper and lower
 * case, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaMayMinCADENA(ARRAY *array, const char *cadena,
                                                  arr_ulong_t *posicion) ARR_NOEXCEPT;
/** @} */

/** @defgroup familia_CADENA_u CADENA_u arrays
 * Arrays of wide (UTF-16) strings that own them.
 * @{ */
/** Equality of two strings in searches and comparisons: non-zero when equal. */
typedef arr_bool_t (*arr_igualdad_CADENA_u)(const arr_wchar_t *a, const arr_wchar_t *b);
/** Order of arr_QSortCADENA_u: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR.
 */
typedef int (*arr_orden_CADENA_u)(const arr_wchar_t *a, const arr_wchar_t *b);
/** Action of nousar_RecorreCADENA_u: the element's address and the caller's datos; the result is
 * ignored. */
typedef arr_bool_t (*arr_accion_CADENA_u)(arr_wchar_t **cadena, void *datos);
/** Creates an array of wide (UTF-16) strings that owns its strings.
 * @param tamanyo_inicial how many NULL elements it starts with
 * @return the new array, to be destroyed with arr_DestruyeCADENA_u */
ARRAYS_API ARRAY *arr_CreaCADENA_u(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Appends a copy of cadena.
 * @param array the array
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendCADENA_u(ARRAY *array, const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Appends the string *cadena itself.
 * @param array the array
 * @param cadena the address of a string made by widestr_fun_copia, which the array takes; it is
 *   set to NULL
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL address (nothing is appended)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendCADENAOriginal_u(ARRAY *array, arr_wchar_t **cadena) ARR_NOEXCEPT;
/** Appends num_veces separate copies of cadena.
 * @param array the array
 * @param num_veces how many copies; 0 appends nothing
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendNCADENAs_u(ARRAY *array, arr_ulong_t num_veces,
                                     const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Inserts a copy of cadena before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param cadena the string, copied; NULL stands for no string
 * @par Reports, besides the checks of the handle
 *   - a pos beyond the count
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarCADENA_u(ARRAY *array, arr_ulong_t pos,
                                     const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Frees the string at pos and deletes the element.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarCADENA_u(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Reads the string at pos, lent by the array.
 * @param array the array
 * @param pos the position, from 0
 * @return the stored string, valid until that element changes; NULL for a NULL element or when
 *   the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API const arr_wchar_t *arr_GetCADENA_u(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Copies the string at pos for the caller.
 * @param array the array
 * @param pos the position, from 0
 * @return a new string that the caller frees with widestr_nousar_destruye; NULL for a NULL
 *   element
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element */
ARRAYS_API arr_wchar_t *arr_GetCopiaCADENA_u(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Frees the string at pos and stores a copy of cadena.
 * @param array the array
 * @param pos the position, from 0
 * @param cadena the string, copied
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL cadena, which leaves the element as it was
 *   - "(ptr_cad) != NULL" for a position without element
 *   - "array->en_bucle == FALSO" from inside a sort of this array (nothing is stored) */
ARRAYS_API void arr_SetCADENA_u(ARRAY *array, arr_ulong_t pos,
                                const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Frees the string at pos and stores the string *cadena itself.
 * @param array the array
 * @param pos the position, from 0
 * @param cadena the address of a string made by widestr_fun_copia, which the array takes; it is
 *   set to NULL
 * @par Reports, besides the checks of the handle
 *   - "item" for a NULL address, which leaves the element as it was
 *   - "(ptr_cad) != NULL" for a position without element (*cadena then stays the caller's) */
ARRAYS_API void arr_SetCADENAOriginal_u(ARRAY *array, arr_ulong_t pos,
                                        arr_wchar_t **cadena) ARR_NOEXCEPT;
/** Sorts the array in place by the quicksort that the library documents.
 * @param array the array
 * @param comparador the order (comparac_* results), or NULL for the order of the code units, NULL
 *   elements first
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array */
ARRAYS_API void arr_QSortCADENA_u(ARRAY *array, arr_orden_CADENA_u comparador) ARR_NOEXCEPT;
/** Compares two string arrays element by element with the caller's predicate.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when two strings are equal
 * @return CIERTO when they have the same count and equal strings at every position
 * @par Reports, besides the checks of the handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesCADENA_u(ARRAY *array1, ARRAY *array2,
                                             arr_igualdad_CADENA_u igualdad) ARR_NOEXCEPT;
/** Compares two string arrays element by element, exactly.
 * @param array1 the first array
 * @param array2 the second array
 * @return CIERTO when they have the same count and equal strings at every position
 * @par Reports, besides the checks of the handle
 *   - the handle and tag checks of each array */
ARRAYS_API arr_bool_t arr_SonIgualesExactamenteCADENA_u(ARRAY *array1, ARRAY *array2) ARR_NOEXCEPT;
/** Joins the strings of the array into one (a NULL element adds nothing).
 * @param array the array
 * @param inicio written first; 0 leaves it out
 * @param separador written between two elements; 0 leaves it out
 * @param fin written last; 0 leaves it out
 * @return a new string that the caller frees with widestr_nousar_destruye
 * @par Reports, besides the checks of the handle
 *   - "num_cadenas > 0" for an empty array (the result is then just inicio) */
ARRAYS_API arr_wchar_t *arr_cadena_de_referencias_u(ARRAY *array, arr_wchar_t inicio,
                                                    arr_wchar_t separador,
                                                    arr_wchar_t fin) ARR_NOEXCEPT;
/** Calls accion for every element in position order; the action may replace the string (freeing the
 * old one).
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already running
 *     (this one still runs) */
ARRAYS_API void nousar_RecorreCADENA_u(ARRAY *array, arr_accion_CADENA_u accion, void *datos,
                                       const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared exactly.
 * @param array the array
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarCADENA_u(ARRAY *array, const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared exactly.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteCADENA_u(ARRAY *array, arr_ulong_t pos_inicial,
                                                   const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared exactly, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaCADENA_u(ARRAY *array,
                                               const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared exactly.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                         arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared exactly, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                              arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared by the caller's predicate.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarExCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                            arr_igualdad_CADENA_u igualdad) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared by the caller's predicate.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteExCADENA_u(ARRAY *array, arr_ulong_t pos_inicial,
                                                     const arr_wchar_t *cadena,
                                                     arr_igualdad_CADENA_u igualdad) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared by the caller's predicate, which should be the only
 * one.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaExCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                                 arr_igualdad_CADENA_u igualdad) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared by the caller's predicate.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteExCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                           arr_igualdad_CADENA_u igualdad,
                                           arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared by the caller's predicate, which should be the
 * only one.
 * @param array the array
 * @param cadena the string looked for
 * @param igualdad non-zero when the element (first) matches cadena (second)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaExCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                                arr_igualdad_CADENA_u igualdad,
                                                arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Finds the first element equal to cadena, compared ignoring the difference of upper and lower
 * case.
 * @param array the array
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarMayMinCADENA_u(ARRAY *array,
                                                const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on equal to cadena, compared ignoring the difference of
 * upper and lower case.
 * @param array the array
 * @param pos_inicial where the search starts (included)
 * @param cadena the string looked for
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteMayMinCADENA_u(ARRAY *array, arr_ulong_t pos_inicial,
                                                         const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Finds the element equal to cadena, compared ignoring the difference of upper and lower case,
 * which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @return the position of the last match, or ARR_ULONG_MAX
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_ulong_t arr_BuscarUnicaMayMinCADENA_u(ARRAY *array,
                                                     const arr_wchar_t *cadena) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared ignoring the difference of upper and lower
 * case.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does */
ARRAYS_API arr_bool_t arr_ExisteMayMinCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                               arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element equals cadena, compared ignoring the difference of upper and lower
 * case, which should be the only one.
 * @param array the array
 * @param cadena the string looked for
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first */
ARRAYS_API arr_bool_t arr_ExisteUnicaMayMinCADENA_u(ARRAY *array, const arr_wchar_t *cadena,
                                                    arr_ulong_t *posicion) ARR_NOEXCEPT;
/** @} */
/* @fin cadenas */

/** Grows a narrow string array to nuevo_tamanyo elements, each new one a copy of "".
 * (arr_AumentaTamanyoCADENA_u is the shared growth: its new elements are NULL.)
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @return the new count
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo > num_elems_ant" for a size not above the count
 * @ingroup familia_CADENA */
ARRAYS_API arr_ulong_t arr_AumentaTamanyoCADENA(ARRAY *array,
                                                arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;

/* ---- Typed pointer and structure arrays ----------------------------------------------------- */
/** @defgroup familia_PunteroConTipo Typed pointer and structure arrays
 * Arrays whose elements are untyped pointers to the caller's own data (tag elem_PUNTERO_NO_USAR).
 * They serve as plain pointer arrays (the Puntero functions never free what the elements point
 * to) or as owning structure arrays (the Estructura functions free through the caller's `libera`
 * and copy through the caller's copy function). The Array forms work on an array of arrays: a
 * pointer array whose elements are structure arrays.
 *
 * A NULL element may be stored anywhere. It is handed to the callbacks like any other element,
 * so `libera` and the copy function must accept it. In an array of arrays, destruction,
 * shrinking, copying and concatenation pass over a NULL inner array; deleting one reports
 * "(*array) != NULL", and arr_SonIgualesEstructurasArrayConTipo counts a pair of them as unequal.
 *
 * A plain pointer array must be emptied, or its elements set to NULL, before
 * arr_DestruyePunteroConTipo, which reports every pointer still set ("ptr == NULL") and frees the
 * array all the same. The Const forms are their plain twins for callers holding pointers to
 * constant data; where the plain form takes `libera` or a copy function, the Const form acts as
 * if it were NULL. A report "en_bucle == FALSO" naming a walk already running is made only while
 * the lenient loop-guard check is on (arrayprv_set_comprobar_en_bucle).
 *
 * Shared with every family (declared above): arr_DestruyePunteroConTipo (destroy; the pointers
 * must be NULL) and arr_AumentaTamanyoEstructurasConTipo (grow; the new elements are NULL, except
 * that a slot cut off by an earlier shrink that did not clear it, such as
 * arr_ReduceTamanyoEstructurasConTipoConst, may come back holding its old pointer).
 * @{ */

/** Equality of a linear search and of the comparison of two arrays: non-zero when equal.
 * The searches (arr_BuscarEstructuraConTipo and the rest) call it with a stored pointer and the
 * caller's datum; arr_SonIgualesPunteroConTipo with an element of array1 and the element of
 * array2 at the same position. */
typedef arr_bool_t (*arr_igualdad_PunteroConTipo)(const void *elemento, const void *dato);
/** Order of arr_QSortPunteroConTipo, called with two stored pointers (two identical pointers are
 * equal without a call), and of the ordered search by bisection, called with a stored pointer and
 * the caller's datum: comparac_PRIMERO_MENOR, comparac_IGUALES or comparac_PRIMERO_MAYOR. */
typedef int (*arr_orden_PunteroConTipo)(const void *a, const void *b);
/** Release of a structure, called by the Estructura functions that destroy, shrink or delete with
 * the address of a slot, which may hold NULL: it frees the structure and sets the slot to NULL. */
typedef void (*arr_libera_EstructuraConTipo)(void **elemento);
/** Copy of a structure, called by the copy and concatenation functions with each element, which
 * may be NULL: it returns a new structure equal to it (or NULL), which the receiving array then
 * holds and owns. */
typedef void *(*arr_copia_EstructuraConTipo)(const void *elemento);
/** Action of arr_RecorrePunteroConTipo: the stored pointer. */
typedef void (*arr_opera_PunteroConTipo)(void *elemento);
/** Action of arr_RecorreEstructuraConTipo: the address of the slot, through which it may replace
 * the stored pointer, and the caller's datos; the result is ignored. */
typedef arr_bool_t (*arr_accion_PunteroConTipo)(void **elemento, void *datos);
/** Action of arr_RecorreEstructuraSimpleConTipo: the stored pointer and the caller's datos. */
typedef void (*arr_accion_EstructuraSimpleConTipo)(void *elemento, void *datos);

/** Creates a pointer array of n NULL elements in rows of long_fila_en_bytes bytes.
 * A row holds long_fila_en_bytes / sizeof(void *) pointers, which must be above 0;
 * arr_CreaPunteroConTipo uses 2048 bytes.
 * @param n how many NULL elements it starts with
 * @param long_fila_en_bytes the size of a row in bytes
 * @return the new array, to be destroyed with arr_DestruyePunteroConTipo or one of the
 *   arr_DestruyeEstructuras functions
 * @par Reports
 *   - "array->long_max_fila_en_elem > 0" when a row cannot hold a pointer; the array is then
 *     created empty and never holds an element (appends and growth add nothing, unreported) */
ARRAYS_API ARRAY *arr_CreaPunteroConTipoEx(arr_ulong_t n,
                                           arr_ulong_t long_fila_en_bytes) ARR_NOEXCEPT;
/** Creates a pointer array of n NULL elements in rows of 2048 bytes.
 * @param n how many NULL elements it starts with
 * @return the new array, to be destroyed with arr_DestruyePunteroConTipo or one of the
 *   arr_DestruyeEstructuras functions */
ARRAYS_API ARRAY *arr_CreaPunteroConTipo(arr_ulong_t n) ARR_NOEXCEPT;

/** Destroys a structure array, freeing its structures through libera.
 * Calls libera (if not NULL) on every slot in position order, NULL slots included, with the array
 * marked busy; then frees the array and sets *array to NULL. Pointers still set are not reported.
 * @param array the address of the handle, which is set to NULL
 * @param libera frees the structure in a slot; NULL frees none
 * @par Reports, besides the checks of the handle
 *   - "(array) != NULL" for a NULL address
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->tipo_elem == elem_PUNTERO_NO_USAR" for an array of another type, which it then
 *     leaves alive
 *   - "(*array)->en_bucle == FALSO" or "(*array)->en_bucle_lectura == FALSO" from inside a walk of
 *     this array, which it then leaves alive */
ARRAYS_API void arr_DestruyeEstructurasConTipo(ARRAY **array,
                                               arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
/** Destroys a structure array without freeing any structure.
 * Unlike arr_DestruyePunteroConTipo, it does not report the pointers still set.
 * @param array the address of the handle, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - those of arr_DestruyeEstructurasConTipo */
ARRAYS_API void arr_DestruyeEstructurasConstConTipo(ARRAY **array) ARR_NOEXCEPT;
/** Destroys an array of arrays and every inner array.
 * Each non-NULL inner array, in position order and with the outer array marked busy, is destroyed
 * as by arr_DestruyeEstructurasConTipo with libera, and its slot set to NULL; then the outer array
 * is freed. An inner array that cannot be destroyed is reported by that function's texts and left
 * as it is.
 * @param array_de_arrays the address of the handle of the outer array, which is set to NULL
 * @param libera frees the structure in a slot of an inner array; NULL frees none
 * @par Reports, besides the checks of the handle
 *   - "(array_de_arrays) != NULL" for a NULL address
 *   - "(*array) != NULL" for a NULL handle
 *   - "(*array)->tipo_elem == elem_PUNTERO_NO_USAR" for an outer array of another type, which it
 *     then leaves alive
 *   - "(*array)->en_bucle == FALSO" or "(*array)->en_bucle_lectura == FALSO" from inside a walk of
 *     the outer array, which it then leaves alive */
ARRAYS_API void arr_DestruyeEstructurasArrayConTipo(ARRAY **array_de_arrays,
                                                    arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
/** Destroys an array of arrays and every inner array, without freeing any structure.
 * @param array_de_arrays the address of the handle of the outer array, which is set to NULL
 * @par Reports, besides the checks of the handle
 *   - those of arr_DestruyeEstructurasArrayConTipo */
ARRAYS_API void arr_DestruyeEstructurasConstArrayConTipo(ARRAY **array_de_arrays) ARR_NOEXCEPT;

/** Appends puntero after the last element.
 * @param array the array
 * @param puntero the pointer, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendPunteroConTipo(ARRAY *array, void *puntero) ARR_NOEXCEPT;
/** Appends puntero, a pointer to constant data, after the last element.
 * @param array the array
 * @param puntero the pointer, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_AppendPunteroConstConTipo(ARRAY *array, const void *puntero) ARR_NOEXCEPT;
/** Inserts puntero before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param puntero the pointer, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a pos beyond the count, after "array->num_elems > 0" when
 *     the array is empty
 *   - "long_fila_vieja > 0 && long_fila_nueva > 0" for an insertion before an element of an array
 *     whose rows hold one pointer each (the pointer is still inserted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_InsertarPunteroConTipo(ARRAY *array, arr_ulong_t pos,
                                           void *puntero) ARR_NOEXCEPT;
/** Inserts puntero, a pointer to constant data, before the element at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param puntero the pointer, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - those of arr_InsertarPunteroConTipo */
ARRAYS_API void arr_InsertarPunteroConstConTipo(ARRAY *array, arr_ulong_t pos,
                                                const void *puntero) ARR_NOEXCEPT;
/** Overwrites the element at pos; the pointer it held is not freed.
 * @param array the array
 * @param pos the position, from 0
 * @param puntero the new pointer; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element, after
 *     "array->num_elems > 0" when the array is empty
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" while a walk has marked
 *     this array busy or as being read (the write is made) */
ARRAYS_API void arr_SetPunteroConTipo(ARRAY *array, arr_ulong_t pos, void *puntero) ARR_NOEXCEPT;
/** Overwrites the element at pos with a pointer to constant data; the old one is not freed.
 * @param array the array
 * @param pos the position, from 0
 * @param puntero the new pointer; may be NULL
 * @par Reports, besides the checks of the handle
 *   - those of arr_SetPunteroConTipo */
ARRAYS_API void arr_SetPunteroConstConTipo(ARRAY *array, arr_ulong_t pos,
                                           const void *puntero) ARR_NOEXCEPT;
/** Stores an inner array at pos of an array of arrays, as arr_SetPunteroConstConTipo does.
 * The inner array is neither checked nor copied, and the one stored there before is not destroyed.
 * @param array_de_arrays the array of arrays
 * @param pos the position, from 0
 * @param array the inner array; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "(array) != NULL" for a NULL array_de_arrays
 *   - the others of arr_SetPunteroConTipo */
ARRAYS_API void arr_SetPunteroConstArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t pos,
                                                const ARRAY *array) ARR_NOEXCEPT;
/** Reads the pointer stored at pos.
 * @param array the array
 * @param pos the position, from 0
 * @return the pointer, which may itself be NULL; NULL also when there is no such element or
 *   the call ends early
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element, after
 *     "array->num_elems > 0" when the array is empty */
ARRAYS_API void *arr_GetPunteroConTipo(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Deletes the element at pos without freeing what it points to; the later ones move down by one
 * (one function under both names).
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without element, after
 *     "array->num_elems > 0" when the array is empty
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarPuntero(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Deletes the element at pos without freeing it: the same function as arr_BorrarPuntero.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - those of arr_BorrarPuntero */
ARRAYS_API void arr_BorrarPunteroConst(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Frees the structure at pos through libera, then deletes the element.
 * libera is called on the slot without the array being marked busy.
 * @param array the array
 * @param pos the position, from 0
 * @param libera frees the structure in the slot; required
 * @par Reports, besides the checks of the handle
 *   - "(libera) != NULL" for a NULL libera (the element is deleted without being freed)
 *   - "real_pos < array->num_elems" for a position without element, after
 *     "array->num_elems > 0" when the array is empty (nothing changes)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array: the structure is freed all the same, but the element stays, holding what libera left
 *     in the slot */
ARRAYS_API void arr_BorrarEstructuraConTipo(ARRAY *array, arr_ulong_t pos,
                                            arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
/** Destroys the inner array at pos as arr_DestruyeEstructurasConTipo does, then deletes the
 * element.
 * @param array_de_arrays the array of arrays
 * @param pos the position, from 0
 * @param libera frees the structure in a slot of the inner array; required
 * @par Reports, besides the checks of the handle
 *   - "(array) != NULL" for a NULL array_de_arrays
 *   - "(libera) != NULL" for a NULL libera (the inner array is destroyed without freeing its
 *     structures, and the element deleted)
 *   - "real_pos < array->num_elems" for a position without element, after
 *     "array->num_elems > 0" when the array is empty (nothing changes)
 *   - "(*array) != NULL" for a NULL inner array, and the other reports of
 *     arr_DestruyeEstructurasConTipo for the inner array; the element is deleted all the same
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of the
 *     outer array: the inner array is destroyed all the same, but the element stays (NULL once
 *     its inner array is destroyed) */
ARRAYS_API void arr_BorrarEstructuraArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t pos,
                                                 arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;

/** Shrinks a structure array to its first nuevo_tamanyo elements.
 * libera (if not NULL) is called on every slot cut off, in position order, with the array marked
 * busy. Pointers cut off are not reported.
 * @param array the array
 * @param nuevo_tamanyo the new count, at most the present one
 * @param libera frees the structure in a slot; NULL frees none
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo <= array->num_elems" for a count above the present one (nothing changes)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoEstructurasConTipo(ARRAY *array, arr_ulong_t nuevo_tamanyo,
                                                    arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
/** Shrinks a structure array to its first nuevo_tamanyo elements, freeing nothing.
 * Nothing clears the slots cut off: growing the array again may bring their pointers back (see
 * arr_AumentaTamanyoEstructurasConTipo).
 * @param array the array
 * @param nuevo_tamanyo the new count, at most the present one
 * @par Reports, besides the checks of the handle
 *   - those of arr_ReduceTamanyoEstructurasConTipo */
ARRAYS_API void arr_ReduceTamanyoEstructurasConTipoConst(ARRAY *array,
                                                         arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/** Shrinks an array of arrays to its first nuevo_tamanyo elements.
 * Each non-NULL inner array cut off is destroyed as by arr_DestruyeEstructurasConTipo with
 * libera, with the outer array marked busy.
 * @param array_de_arrays the array of arrays
 * @param nuevo_tamanyo the new count, at most the present one
 * @param libera frees the structure in a slot of an inner array; NULL frees none
 * @par Reports, besides the checks of the handle
 *   - "nuevo_tamanyo <= array->num_elems" for a count above the present one (nothing changes)
 *   - the reports of arr_DestruyeEstructurasConTipo for an inner array it cannot destroy, which is
 *     left as it is while its element is cut off
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of the
 *     outer array, which is then left as it was */
ARRAYS_API void arr_ReduceEstructurasArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t nuevo_tamanyo,
                                                  arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;

/** Finds the first element that is the same pointer as puntero (identity, never content).
 * @param array the array
 * @param puntero the pointer looked for; NULL finds the first NULL element
 * @return its position, or ARR_ULONG_MAX when there is none */
ARRAYS_API arr_ulong_t arr_BuscarPunteroConTipo(ARRAY *array, const void *puntero) ARR_NOEXCEPT;
/** Finds the first element for which igualdad(element, dato) holds.
 * The array is marked as being read while igualdad runs.
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @return its position, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad (ARR_ULONG_MAX then) */
ARRAYS_API arr_ulong_t arr_BuscarEstructuraConTipo(ARRAY *array, const void *dato,
                                             arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/** Finds the first element from pos_inicial on for which igualdad(element, dato) holds.
 * @param array the array
 * @param pos_inicial where the search starts (that element included); the count finds nothing
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @return its position, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "pos_inicial == array->num_elems" for a pos_inicial beyond the count (ARR_ULONG_MAX then)
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad (ARR_ULONG_MAX then) */
ARRAYS_API arr_ulong_t arr_BuscarSiguienteEstructuraConTipo(ARRAY *array, arr_ulong_t pos_inicial,
                                                            const void *dato,
                                                      arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/** Finds the element for which igualdad(element, dato) holds, which should be the only one.
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad (ARR_ULONG_MAX then) */
ARRAYS_API arr_ulong_t arr_BuscarUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/** Tells whether an element matches dato under igualdad, and where the first one is.
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad (FALSO then) */
ARRAYS_API arr_bool_t arr_ExisteEstructuraConTipo(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad,
                                                  arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether an element matches dato under igualdad, which should be the only one.
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad (FALSO then) */
ARRAYS_API arr_bool_t arr_ExisteUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                       arr_igualdad_PunteroConTipo igualdad,
                                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/** The element for which igualdad(element, dato) holds, which should be the only one (one
 * function under both names).
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @return the pointer stored at the last match; NULL when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "posicion != ULONG_MAX" and then "real_pos < array->num_elems" when nothing matches (with
 *     "array->num_elems > 0" between them when the array is empty)
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad, followed by the two
 *     reports of a missing match */
ARRAYS_API void *nousar_arr_dame_unica_estructura(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/** The element of the unique match: the same function as nousar_arr_dame_unica_estructura.
 * @param array the array
 * @param dato the caller's datum, handed to igualdad
 * @param igualdad non-zero when the element matches dato; required
 * @return the pointer stored at the last match; NULL when there is none
 * @par Reports, besides the checks of the handle
 *   - those of nousar_arr_dame_unica_estructura */
ARRAYS_API void *nousar_arr_dame_unica_estructura_const(ARRAY *array, const void *dato,
                                                        arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;

/** Sorts the array in place by the library's quicksort under compara (one function under both
 * names).
 * With fewer than 2 elements it does nothing: compara is neither checked nor called.
 * @param array the array
 * @param compara the order of two stored pointers (comparac_* results); required from 2 elements
 * @par Reports, besides the checks of the handle
 *   - "(func_compara_puntero) != NULL" for a NULL compara (nothing is sorted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" while a walk has marked
 *     this array busy or as being read (the sort is made) */
ARRAYS_API void arr_QSortPunteroConTipo(ARRAY *array,
                                        arr_orden_PunteroConTipo compara) ARR_NOEXCEPT;
/** Sorts the array in place: the same function as arr_QSortPunteroConTipo.
 * @param array the array
 * @param compara the order of two stored pointers (comparac_* results); required from 2 elements
 * @par Reports, besides the checks of the handle
 *   - those of arr_QSortPunteroConTipo */
ARRAYS_API void arr_QSortPunteroConTipoConst(ARRAY *array,
                                             arr_orden_PunteroConTipo compara) ARR_NOEXCEPT;
/** Compares two pointer arrays element by element under igualdad.
 * igualdad(element of array1, element of array2) is called in position order up to the first
 * unequal pair.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when two elements are equal; required
 * @return CIERTO when they have the same count and igualdad holds at every position; FALSO for a
 *   NULL igualdad, even between two empty arrays
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - "array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem" for an array of another
 *     type
 *   - "(fnc_compara->fnc_compara_puntero) != NULL" for a NULL igualdad
 *   - "en_bucle == FALSO" for an array inside a walk that marked it busy (the comparison is
 *     made) */
ARRAYS_API arr_bool_t arr_SonIgualesPunteroConTipo(ARRAY *array1, ARRAY *array2,
                                             arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/** Compares two arrays of arrays: the same count, and arr_SonIgualesPunteroConTipo with igualdad
 * for every pair of inner arrays, in position order up to the first unequal pair.
 * @param array1 the first array of arrays
 * @param array2 the second array of arrays
 * @param igualdad non-zero when two elements of inner arrays are equal; required for the pairs
 *   compared
 * @return CIERTO when they have the same count and every pair of inner arrays is equal (so two
 *   empty arrays of arrays are, whatever igualdad)
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle
 *   - "array1->tipo_elem == elem_PUNTERO_NO_USAR" or "array2->tipo_elem == elem_PUNTERO_NO_USAR"
 *     for an array of another type
 *   - the reports of arr_SonIgualesPunteroConTipo for each pair compared; a NULL inner array is
 *     reported there as "(array1) != NULL" or "(array2) != NULL", and the pair is unequal */
ARRAYS_API arr_bool_t arr_SonIgualesEstructurasArrayConTipo(ARRAY *array1, ARRAY *array2,
                                                      arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;

/** Copies a structure array: a new array whose elements are copia(element).
 * copia is called for every element in position order, NULL ones included, without the array
 * being marked busy.
 * @param array the array
 * @param copia copies a structure; NULL stores the same pointers
 * @return the new array, of the same count; NULL when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == elem_PUNTERO_NO_USAR" for an array of another type (NULL then) */
ARRAYS_API ARRAY *arr_CopiaEstructurasConTipo(const ARRAY *array,
                                              arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/** Copies an array of arrays: a new array of the same count holding the copy of each inner array
 * made by arr_CopiaEstructurasConTipo with copia, and NULL where the inner array is NULL.
 * @param array_de_arrays the array of arrays
 * @param copia copies a structure; NULL stores the same pointers in the inner copies
 * @return the new array of arrays; NULL when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == elem_PUNTERO_NO_USAR" for an array of arrays of another type (NULL
 *     then), or for an inner array of another type (whose copy is then NULL) */
ARRAYS_API ARRAY *arr_CopiaEstructurasArrayConTipo(const ARRAY *array_de_arrays,
                                                   arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/** Appends to dest copia(element) of every element of org, in position order.
 * org is walked as it stood on entry and marked as being read meanwhile; copia is called for NULL
 * elements too.
 * @param dest the array that grows
 * @param org the array whose elements are copied; it is left as it was
 * @param copia copies a structure; NULL appends the elements themselves
 * @param ubicacion the caller's module, named in a report of a walk of org already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "(org) != NULL", "(dest) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == elem_PUNTERO_NO_USAR && dest->tipo_elem == elem_PUNTERO_NO_USAR" when
 *     either is of another type (nothing changes)
 *   - "dest != org" when both are the same array (nothing changes)
 *   - "dest->en_bucle == FALSO" or "dest->en_bucle_lectura == FALSO" from inside a walk of dest,
 *     which is then left as it was
 *   - "en_bucle == FALSO" naming ubicacion and linea while a walk that marked it busy is running
 *     over org (the concatenation is made) */
ARRAYS_API void arr_ConcatenaEstructurasConTipo(ARRAY *dest, ARRAY *org,
                                                arr_copia_EstructuraConTipo copia,
                                                const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** Appends to dest every element of org itself, in position order.
 * @param dest the array that grows
 * @param org the array whose elements are appended; it is left as it was
 * @param ubicacion the caller's module, named in a report of a walk of org already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - those of arr_ConcatenaEstructurasConTipo */
ARRAYS_API void arr_ConcatenaEstructurasConTipoConst(ARRAY *dest, ARRAY *org, const char *ubicacion,
                                                     arr_long_t linea) ARR_NOEXCEPT;
/** Appends to dest a copy of each non-NULL inner array of org_de_arrays, made by
 * arr_CopiaEstructurasConTipo with copia; NULL inner arrays are skipped.
 * org_de_arrays is walked as it stood on entry.
 * @param dest the array of arrays that grows
 * @param org_de_arrays the array of arrays whose inner arrays are copied; it is left as it was
 * @param copia copies a structure; NULL stores the same pointers in the inner copies
 * @par Reports, besides the checks of the handle
 *   - "(org) != NULL", "(dest) != NULL" and their marks for a NULL or dead handle
 *   - "org->tipo_elem == elem_PUNTERO_NO_USAR && dest->tipo_elem == elem_PUNTERO_NO_USAR" when
 *     either is of another type (nothing changes)
 *   - "array->tipo_elem == elem_PUNTERO_NO_USAR" for an inner array of another type, whose copy
 *     is appended as NULL
 *   - "dest->en_bucle == FALSO" or "dest->en_bucle_lectura == FALSO" from inside a walk of dest,
 *     which is then left as it was */
ARRAYS_API void arr_ConcatenaEstructurasArrayConTipo(ARRAY *dest, ARRAY *org_de_arrays,
                                                     arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/** Reverses the order of the elements in place.
 * With fewer than 2 elements it does nothing.
 * @param array the array
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" for each element moved
 *     while a walk has marked this array busy or as being read (the writes are made) */
ARRAYS_API void arr_nousar_InvierteOrdenPunteroConTipo(ARRAY *array) ARR_NOEXCEPT;

/** Calls accion with every stored pointer in position order.
 * The walk covers the elements there on entry, with the array marked busy. An empty array calls
 * nothing and checks nothing more. An array of 2D points with private data is walked too, accion
 * then getting each point's private data.
 * @param array the array
 * @param accion called with each stored pointer; required unless the array is empty
 * @par Reports, besides the checks of the handle
 *   - "operacion" for a NULL accion
 *   - "array->tipo_elem == elem_PUNTERO_NO_USAR || array->tipo_elem == elem_PUNTO2DX_NO_USAR" for
 *     an array of another type */
ARRAYS_API void arr_RecorrePunteroConTipo(ARRAY *array,
                                          arr_opera_PunteroConTipo accion) ARR_NOEXCEPT;
/** Calls accion(&element, datos) for every element in position order.
 * The walk covers the elements there on entry, with the array marked busy. The action may replace
 * the stored pointer through the slot; calls that would free the array or change its count are
 * refused while it runs.
 * @param array the array
 * @param accion called with each slot's address and datos; required
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "(fnc_accion->fnc_accion_puntero) != NULL" for a NULL accion
 *   - "en_bucle == FALSO" naming ubicacion and linea while a walk that marked this array busy or
 *     as being read is running (the walk is made) */
ARRAYS_API void arr_RecorreEstructuraConTipo(ARRAY *array, arr_accion_PunteroConTipo accion,
                                             void *datos, const char *ubicacion,
                                             arr_long_t linea) ARR_NOEXCEPT;
/** Calls accion(element, datos) with every stored pointer in position order.
 * The walk covers the elements there on entry, with the array marked busy.
 * @param array the array
 * @param accion called with each stored pointer and datos; required
 * @param datos handed to every call of accion
 * @par Reports, besides the checks of the handle
 *   - "(accion) != NULL" for a NULL accion */
ARRAYS_API void arr_RecorreEstructuraSimpleConTipo(ARRAY *array,
                                                   arr_accion_EstructuraSimpleConTipo accion,
                                                   void *datos) ARR_NOEXCEPT;

/** @name Ordered search by bisection
 * Over an array kept in ascending order under compara(element, datum), the element being a stored
 * pointer. An equal element "hit" is the first element if equal, else the last if equal, else
 * the one a midpoint lands on first. An empty array gives position 0 without a call; an array of
 * one element has it compared twice, as first and as last. Comparison results inconsistent with
 * a sorted array are reported, and the search goes on with what it has: positions stay between 0
 * and the count. Those reports are "comp1 == comparac_PRIMERO_MENOR",
 * "comp2 == comparac_PRIMERO_MAYOR",
 * "comp2 == comparac_IGUALES || comp2 == comparac_PRIMERO_MAYOR",
 * "compMed == comparac_PRIMERO_MENOR" and "n2 > n1". During the bisection, calls from compara that
 * would free the array or change its count are refused.
 * @{ */
/** Where dato goes: the hit, else the first greater element, else the count.
 * @param array the array, kept in ascending order
 * @param compara compares a stored pointer with dato (comparac_* results); required
 * @param dato the caller's datum
 * @return the position; ARR_ULONG_MAX when the array or compara cannot be used
 * @par Reports, besides the checks of the handle
 *   - "(compara) != NULL" for a NULL compara
 *   - the reports of results inconsistent with a sorted array */
ARRAYS_API arr_ulong_t arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(
    ARRAY *array, arr_orden_PunteroConTipo compara, const void *dato) ARR_NOEXCEPT;
/** Inserts dato at the position arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo
 * gives, even when an equal element exists.
 * @param array the array, kept in ascending order
 * @param compara compares a stored pointer with dato (comparac_* results); required
 * @param dato the pointer to insert, also handed to compara
 * @par Reports, besides the checks of the handle
 *   - "(compara) != NULL" for a NULL compara (nothing is inserted)
 *   - the reports of results inconsistent with a sorted array
 *   - those of arr_InsertarPunteroConTipo, such as "array->en_bucle == FALSO" or
 *     "array->en_bucle_lectura == FALSO" from inside a walk of this array, which is then left as
 *     it was */
ARRAYS_API void arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(
    ARRAY *array, arr_orden_PunteroConTipo compara, void *dato) ARR_NOEXCEPT;
/** Inserts dato at its position only when the bisection hits no equal element.
 * @param array the array, kept in ascending order
 * @param compara compares a stored pointer with dato (comparac_* results); required
 * @param dato the pointer to insert, also handed to compara
 * @param encontrado gets CIERTO when an equal element was hit, else FALSO (also when the search
 *   cannot run); may be NULL
 * @par Reports, besides the checks of the handle
 *   - "(compara) != NULL" for a NULL compara (nothing is inserted)
 *   - the reports of results inconsistent with a sorted array
 *   - those of arr_InsertarPunteroConTipo, such as "array->en_bucle == FALSO" or
 *     "array->en_bucle_lectura == FALSO" from inside a walk of this array, which is then left as
 *     it was */
ARRAYS_API void arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(
    ARRAY *array, arr_orden_PunteroConTipo compara, void *dato, arr_bool_t *encontrado) ARR_NOEXCEPT;
/** The first and last positions of the run of elements equal to dato around the hit.
 * The hit is compared again, then its neighbours on each side while they are equal.
 * @param array the array, kept in ascending order
 * @param dato the caller's datum
 * @param compara compares a stored pointer with dato (comparac_* results); required
 * @param posPrimerEncontrado gets the first position of the run, or ARR_ULONG_MAX when there is
 *   none; required
 * @param posUltimoEncontrado gets the last position of the run, or ARR_ULONG_MAX when there is
 *   none; required
 * @par Reports, besides the checks of the handle
 *   - "(compara) != NULL", "(posPrimerEncontrado) != NULL" and "(posUltimoEncontrado) != NULL"
 *     for each one that is NULL (a NULL compara finds no run)
 *   - the reports of results inconsistent with a sorted array
 *   - "(*compara)(arr_GETPUNTERO(array, posInsercion), dato) == comparac_IGUALES" when the hit
 *     does not compare equal again (the run is still measured from it)
 *   - "comp == comparac_PRIMERO_MENOR" when the element before the run is not below dato, and
 *     "comp == comparac_PRIMERO_MAYOR" when the element after it is not above dato */
ARRAYS_API void arr_BuscarEstructuraDicotomicamenteConTipo(
    ARRAY *array, const void *dato, arr_orden_PunteroConTipo compara, arr_ulong_t *posPrimerEncontrado,
    arr_ulong_t *posUltimoEncontrado) ARR_NOEXCEPT;
/** Tells whether a run of elements equal to dato exists, and where.
 * Only when it does are the positions written, through the pointers that are not NULL.
 * @param array the array, kept in ascending order
 * @param dato the caller's datum
 * @param compara compares a stored pointer with dato (comparac_* results); required
 * @param posPrimerEncontrado gets the first position of the run; may be NULL
 * @param posUltimoEncontrado gets the last position of the run; may be NULL
 * @return CIERTO when such a run exists
 * @par Reports, besides the checks of the handle
 *   - those of arr_BuscarEstructuraDicotomicamenteConTipo, except for NULL position pointers */
ARRAYS_API arr_bool_t arr_ExisteEstructuraDicotomicamenteConTipo(
    ARRAY *array, const void *dato, arr_orden_PunteroConTipo compara, arr_ulong_t *posPrimerEncontrado,
    arr_ulong_t *posUltimoEncontrado) ARR_NOEXCEPT;
/** @} */

/** @} */

/* ---- 2D point arrays ------------------------------------------------------------------------ */
/** @defgroup familia_Punto2D 2D point arrays
 * Arrays of 2D points: a point is x, y (two doubles, stored in that order).
 * Searches and whole-array equality take a predicate, sorting takes an ordering comparator
 * (comparac_PRIMERO_MENOR, comparac_IGUALES, comparac_PRIMERO_MAYOR); neither has a default, and
 * a NULL one is reported. arr_GetPunto2D, arr_SetPunto2D, arr_BorrarPunto2D,
 * arr_ArraysDePunto2DIguales, arr_GetMinimaxPunto2D and arr_GetSegmentoPunto2D accept a 2D point
 * array with private data as well. arr_DestruyePunto2D, arr_NumElemsPunto2D, arr_CopiaPunto2D,
 * arr_ConcatenaPunto2D, arr_AumentaTamanyoPunto2D and arr_ReduceTamanyoPunto2D are the shared
 * functions above.
 * @{ */
/** Equality of two 2D points in the searches and in arr_SonIgualesPunto2D: called with a point of
 * the array as (x1, y1) and the point looked for, or the point at the same position of the second
 * array, as (x2, y2); non-zero when they match. */
typedef arr_bool_t (*arr_igualdad_Punto2D)(double x1, double y1, double x2, double y2);
/** Order of arr_QSortPunto2D: comparac_PRIMERO_MENOR when (x1, y1) goes before (x2, y2),
 * comparac_IGUALES when neither goes first, comparac_PRIMERO_MAYOR when it goes after. */
typedef int (*arr_orden_Punto2D)(double x1, double y1, double x2, double y2);
/** Action of arr_nousar_RecorrePunto2D: the addresses of a point's x and y, which it may change in
 * place, and the caller's datos; the result is ignored. */
typedef arr_bool_t (*arr_accion_Punto2D)(double *x, double *y, void *datos);

/** Creates a 2D point array holding tamanyo_inicial points (0, 0).
 * @param tamanyo_inicial how many points it starts with
 * @return the new array, to be destroyed with arr_DestruyePunto2D */
ARRAYS_API ARRAY *arr_CreaPunto2D(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Appends the point (x, y) after the last point.
 * @param array the array
 * @param x the x of the point
 * @param y the y of the point
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_AppendPunto2D(ARRAY *array, double x, double y) ARR_NOEXCEPT;
/** Inserts the point (x, y) before the point at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param x the x of the point
 * @param y the y of the point
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a pos beyond the count (nothing is inserted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_InsertarPunto2D(ARRAY *array, arr_ulong_t pos, double x, double y) ARR_NOEXCEPT;
/** Sets every point of the array to (x, y).
 * @param array the array
 * @param x the x of every point
 * @param y the y of every point
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array (the points are set all the same) */
ARRAYS_API void arr_InicializaPunto2D(ARRAY *array, double x, double y) ARR_NOEXCEPT;
/** Reads the point at pos, of a plain 2D point array or of one with private data.
 * With both outputs NULL it only checks that the point exists. Nothing is written when the call
 * ends early.
 * @param array the array, of either kind of 2D point
 * @param pos the position, from 0
 * @param x gets the x of the point; may be NULL
 * @param y gets the y of the point; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" and then "(pto2D) != NULL" ("(pto2DX) != NULL" on an array
 *     with private data) for a position without point; "array->num_elems > 0" before them when
 *     the array is empty */
ARRAYS_API void arr_GetPunto2D(const ARRAY *array, arr_ulong_t pos, double *x,
                               double *y) ARR_NOEXCEPT;
/** Overwrites the point at pos, of a plain 2D point array or of one with private data.
 * On an array with private data the point's data becomes NULL; the old data is not released.
 * It neither refuses nor reports an array inside a walk, so that an action of
 * arr_nousar_RecorrePunto2D may rewrite the point it visits.
 * @param array the array, of either kind of 2D point
 * @param pos the position, from 0
 * @param x the new x
 * @param y the new y
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point ("array->num_elems > 0" before
 *     it when the array is empty) */
ARRAYS_API void arr_SetPunto2D(ARRAY *array, arr_ulong_t pos, double x, double y) ARR_NOEXCEPT;
/** Deletes the point at pos, of either kind of 2D point array; the later points move down by one.
 * The private data of a deleted point is not released: that is left to the caller.
 * @param array the array, of either kind of 2D point
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == elem_PUNTO2D_NO_USAR || array->tipo_elem == elem_PUNTO2DX_NO_USAR"
 *     for an array of another type, which is left as it was
 *   - "real_pos < array->num_elems" for a position without point
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarPunto2D(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Finds the first point that matches (x, y) by the predicate.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y)
 * @return its position, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto2D) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarPunto2D(ARRAY *array, double x, double y,
                                         arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/** Finds the point that matches (x, y) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y)
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto2D) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto2D(ARRAY *array, double x, double y,
                                              arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y) by the predicate, and where the first one is.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto2D) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExistePunto2D(ARRAY *array, double x, double y,
                                        arr_igualdad_Punto2D igualdad,
                                        arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto2D) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto2D(ARRAY *array, double x, double y,
                                       arr_igualdad_Punto2D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the points in place by the comparator, with the library's quicksort.
 * Two points whose stored bytes are identical are taken as equal without calling comparador.
 * @param array the array
 * @param comparador the order (comparac_* results); required
 * @par Reports, besides the checks of the handle
 *   - "(func_compara_punto2D) != NULL" for a NULL comparador (nothing is sorted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array (the sort is made all the same) */
ARRAYS_API void arr_QSortPunto2D(ARRAY *array, arr_orden_Punto2D comparador) ARR_NOEXCEPT;
/** Compares two 2D point arrays point by point with the predicate.
 * Stops at the first pair that does not match.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when a point of array1 and the point of array2 at the same position
 *   match
 * @return CIERTO when they have the same count and every pair of points matches
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array (FALSO)
 *   - "array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem" when either is not a
 *     plain 2D point array (FALSO)
 *   - "(fnc_compara->fnc_compara_punto2D) != NULL" for a NULL igualdad (FALSO)
 *   - "en_bucle == FALSO" for each array that a writing traversal or a sort is running over,
 *     while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); they are compared all
 *     the same */
ARRAYS_API arr_bool_t arr_SonIgualesPunto2D(ARRAY *array1, ARRAY *array2,
                                            arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/** Compares two 2D point arrays within a tolerance per coordinate.
 * Point by point, |x1 - x2| and |y1 - y2| must each be at most tolerancia: a square around each
 * point, not a distance. A NaN difference counts as equal. Either array may carry private data,
 * which is not compared.
 * @param array1 the first array, of either kind of 2D point
 * @param array2 the second array, of either kind of 2D point
 * @param tolerancia the greatest difference allowed in each coordinate
 * @return CIERTO when both have the same count and every pair of points is within tolerancia;
 *   FALSO when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array; both arrays are checked
 *   - "array1->tipo_elem == elem_PUNTO2D_NO_USAR || array1->tipo_elem == elem_PUNTO2DX_NO_USAR"
 *     (or the same of array2) for an array of neither kind */
ARRAYS_API arr_bool_t arr_ArraysDePunto2DIguales(const ARRAY *array1, const ARRAY *array2,
                                                 double tolerancia) ARR_NOEXCEPT;
/** Compares, within a tolerance, two pointer arrays (arr_CreaPunteroConTipo) whose elements are
 * 2D point arrays, pair by pair with arr_ArraysDePunto2DIguales up to the first unequal pair.
 * Every element reached must be a live 2D point array of either kind: any other (NULL included)
 * is reported as arr_ArraysDePunto2DIguales reports it, and makes the result FALSO.
 * @param array1 the first pointer array
 * @param array2 the second pointer array
 * @param tolerancia as in arr_ArraysDePunto2DIguales
 * @return CIERTO when both have the same count and every pair of point arrays is equal within
 *   tolerancia (two empty pointer arrays are equal)
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array (FALSO)
 *   - "array1->tipo_elem == elem_PUNTERO_NO_USAR" or "array2->tipo_elem == elem_PUNTERO_NO_USAR"
 *     for an array that is not a pointer array (FALSO) */
ARRAYS_API arr_bool_t arr_SonIgualesArrPunteroArrPunto2DConTolerancia(const ARRAY *array1,
                                                                      const ARRAY *array2,
                                                                double tolerancia) ARR_NOEXCEPT;
/** Calls accion for every point in position order.
 * The action gets the addresses of the point's x and y and may change them in place; calls that
 * would free the array or change its count are refused while it runs. Only the points there at
 * the start are visited.
 * @param array the array
 * @param accion called with the addresses of each point's x and y, and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when called from inside another traversal,
 *     or a sort or search, of this array, while the loop-guard check is on
 *     (arrayprv_set_comprobar_en_bucle); the traversal is made all the same
 *   - "(fnc_accion->fnc_accion_punto2D) != NULL" for a NULL accion (nothing is visited) */
ARRAYS_API void arr_nousar_RecorrePunto2D(ARRAY *array, arr_accion_Punto2D accion, void *datos,
                                          const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** Moves every point by (dx, dy): x becomes x + dx and y becomes y + dy.
 * @param array the array
 * @param dx added to every x
 * @param dy added to every y
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     moved all the same */
ARRAYS_API void arr_MoverPunto2D(ARRAY *array, double dx, double dy) ARR_NOEXCEPT;
/** Multiplies both coordinates of every point by factor (a scaling about the origin).
 * @param array the array
 * @param factor the factor
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     scaled all the same */
ARRAYS_API void arr_MultiplicarPunto2D(ARRAY *array, double factor) ARR_NOEXCEPT;
/** Turns every point about (xc, yc) CLOCKWISE by the angle whose sine and cosine are given.
 * A point at offset (dx, dy) from the centre goes to (xc + dx * coseno + dy * seno,
 * yc - dx * seno + dy * coseno); seno and coseno are used as given, not normalised. The private
 * data family's arr_Girar_seno_y_cosenoPunto2DXPriv turns the other way.
 * @param array the array
 * @param xc the x of the centre
 * @param yc the y of the centre
 * @param seno the sine of the angle
 * @param coseno the cosine of the angle
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     turned all the same */
ARRAYS_API void arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D(ARRAY *array, double xc,
                                                                    double yc, double seno,
                                                                    double coseno) ARR_NOEXCEPT;
/** Turns every point about (xc, yc) by angulo radians, counter-clockwise when angulo is positive.
 * An angle of magnitude 1e-5 or less (or a NaN) changes nothing and checks nothing, not even the
 * handle.
 * @param array the array
 * @param xc the x of the centre
 * @param yc the y of the centre
 * @param angulo the angle in radians
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     turned all the same */
ARRAYS_API void arr_GirarPunto2D(ARRAY *array, double xc, double yc, double angulo) ARR_NOEXCEPT;
/** The bounding box of the points of a 2D point array of either kind.
 * The array must not be empty. Nothing is written when the call ends early.
 * @param array the array, of either kind of 2D point
 * @param xmin gets the smallest x; may be NULL
 * @param ymin gets the smallest y; may be NULL
 * @param xmax gets the greatest x; may be NULL
 * @param ymax gets the greatest y; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "array->num_elems > 0", "real_pos < array->num_elems" and "(pto2D) != NULL"
 *     ("(pto2DX) != NULL" on an array with private data) for an empty array */
ARRAYS_API void arr_GetMinimaxPunto2D(const ARRAY *array, double *xmin, double *ymin,
                                      double *xmax, double *ymax) ARR_NOEXCEPT;
/** Segment i of the closed polyline that the points make, in a 2D point array of either kind.
 * It runs from point i to point i + 1, and from the last point back to point 0 (from point 0 to
 * itself in an array of one point). Nothing is written when the call ends early.
 * @param array the array, of either kind of 2D point
 * @param i the segment, from 0 (the position of its first point)
 * @param x1 gets the x of its first point; may be NULL
 * @param y1 gets the y of its first point; may be NULL
 * @param x2 gets the x of its second point; may be NULL
 * @param y2 gets the y of its second point; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" and then "(pto2D) != NULL" ("(pto2DX) != NULL" on an array
 *     with private data) for an i without point; "array->num_elems > 0" before them when the
 *     array is empty */
ARRAYS_API void arr_GetSegmentoPunto2D(const ARRAY *array, arr_ulong_t i, double *x1, double *y1,
                                       double *x2, double *y2) ARR_NOEXCEPT;
/** Makes a new 2D point array with the points in reverse order; the argument is unchanged.
 * @param array the array (a plain 2D point array)
 * @return the new array, to be destroyed with arr_DestruyePunto2D; NULL when the call ends early */
ARRAYS_API ARRAY *arr_InvertirPunto2D(const ARRAY *array) ARR_NOEXCEPT;
/** @} */

/* ---- 2D points with private data ------------------------------------------------------------ */
/** @defgroup familia_Punto2DXPriv 2D points with private data
 * Arrays of 2D points x, y that each carry one pointer of the caller's private data, which the
 * library never dereferences. The data is released only by the destroy function given to
 * arr_DestruyePunto2DXPriv or arr_ReduceTamanyoPunto2DXPriv (which must leave it NULL), copied
 * only by the copy function given to the copy and the concatenation, and must be NULL when the
 * array is destroyed or shrunk otherwise: each one still set is reported then as "ptr == NULL".
 * Deleting or overwriting a point does not release its data. Use arr_NumElemsPunto2D for the
 * count, and arr_GetPunto2D, arr_SetPunto2D and arr_BorrarPunto2D on these arrays too.
 * @{ */
/** Equality of two points with data in the searches and in arr_SonIgualesPunto2DXPriv: called
 * with a point of the array as (x1, y1, datos1) and the point looked for, or the point at the same
 * position of the second array, as (x2, y2, datos2); non-zero when they match. */
typedef arr_bool_t (*arr_igualdad_Punto2DXPriv)(double x1, double y1, void *datos1, double x2,
                                          double y2, void *datos2);
/** Order of arr_QSortPunto2DXPriv: comparac_PRIMERO_MENOR when (x1, y1, datos1) goes before
 * (x2, y2, datos2), comparac_IGUALES when neither goes first, comparac_PRIMERO_MAYOR when it goes
 * after. */
typedef int (*arr_orden_Punto2DXPriv)(double x1, double y1, void *datos1, double x2, double y2,
                                      void *datos2);
/** Action of arr_RecorrePunto2DXPriv: the addresses of a point's x, y and data, which it may
 * change in place, and the caller's datos; the result is ignored. */
typedef arr_bool_t (*arr_accion_Punto2DXPriv)(double *x, double *y, void **datos_punto,
                    void *datos);
/** Copy of a point's data for arr_CopiaPunto2DXPriv_nousar and arr_ConcatenaPunto2DXPriv_nousar:
 * called with the data of every point copied (NULL included); returns the data of the new
 * point. */
typedef void *(*arr_copia_datos_Punto2DXPriv)(void *datos);
/** Release of a point's data for arr_DestruyePunto2DXPriv (every point) and
 * arr_ReduceTamanyoPunto2DXPriv (the points cut off): called with the address of the point's data
 * (NULL data included); it releases the data and sets *datos to NULL. */
typedef void (*arr_destruye_datos_Punto2DXPriv)(void **datos);

/** Creates an array of 2D points with private data holding tamanyo_inicial points (0, 0) with
 * NULL data.
 * @param tamanyo_inicial how many points it starts with
 * @return the new array, to be destroyed with arr_DestruyePunto2DXPriv */
ARRAYS_API ARRAY *arr_CreaPunto2DXPriv(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Appends the point (x, y) with its data after the last point.
 * @param array the array
 * @param x the x of the point
 * @param y the y of the point
 * @param datos the point's data, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_AppendPunto2DXPriv(ARRAY *array, double x, double y, void *datos) ARR_NOEXCEPT;
/** Inserts the point (x, y) with its data before the point at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param x the x of the point
 * @param y the y of the point
 * @param datos the point's data, stored as it is; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a pos beyond the count (nothing is inserted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_InsertarPunto2DXPriv(ARRAY *array, arr_ulong_t pos, double x, double y,
                                         void *datos) ARR_NOEXCEPT;
/** Reads the point at pos with its data.
 * Nothing is written when the point does not exist.
 * @param array the array
 * @param pos the position, from 0
 * @param x gets the x of the point; must not be NULL
 * @param y gets the y of the point; must not be NULL
 * @param datos gets the point's data; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "(x) != NULL" or "(y) != NULL" for a NULL x or y; the other outputs are still written
 *   - "real_pos < array->num_elems" for a position without point ("array->num_elems > 0" before
 *     it when the array is empty) */
ARRAYS_API void arr_GetPunto2DXPriv(const ARRAY *array, arr_ulong_t pos, double *x, double *y,
                                    void **datos) ARR_NOEXCEPT;
/** Overwrites the point at pos, data included; the old data is not released.
 * It neither refuses nor reports an array inside a walk.
 * @param array the array
 * @param pos the position, from 0
 * @param x the new x
 * @param y the new y
 * @param datos the new data; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point ("array->num_elems > 0" before
 *     it when the array is empty) */
ARRAYS_API void arr_SetPunto2DXPriv(ARRAY *array, arr_ulong_t pos, double x, double y,
                                    void *datos) ARR_NOEXCEPT;
/** Deletes the point at pos; the later points move down by one. Its data is not released.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarPunto2DXPriv(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Finds the first point that matches (x, y, datos) by the predicate.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param datos the data of the point looked for, handed to igualdad
 * @param igualdad non-zero when a point of the array matches (x, y, datos)
 * @return its position, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto2DX) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                              arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/** Finds the point that matches (x, y, datos) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param datos the data of the point looked for, handed to igualdad
 * @param igualdad non-zero when a point of the array matches (x, y, datos)
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto2DX) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                                   arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y, datos) by the predicate, and where the first one is.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param datos the data of the point looked for, handed to igualdad
 * @param igualdad non-zero when a point of the array matches (x, y, datos)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto2DX) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExistePunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                             arr_igualdad_Punto2DXPriv igualdad,
                                             arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y, datos) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param datos the data of the point looked for, handed to igualdad
 * @param igualdad non-zero when a point of the array matches (x, y, datos)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto2DX) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                                  arr_igualdad_Punto2DXPriv igualdad,
                                                  arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the points in place by the comparator, with the library's quicksort; each point's data
 * moves with it.
 * Two points whose stored bytes (data pointer included) are identical are taken as equal
 * without calling comparador.
 * @param array the array
 * @param comparador the order (comparac_* results); required
 * @par Reports, besides the checks of the handle
 *   - "(func_compara_punto2Dx) != NULL" for a NULL comparador (nothing is sorted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array (the sort is made all the same) */
ARRAYS_API void arr_QSortPunto2DXPriv(ARRAY *array, arr_orden_Punto2DXPriv comparador) ARR_NOEXCEPT;
/** Compares two arrays of points with data point by point with the predicate.
 * Stops at the first pair that does not match.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when a point of array1 and the point of array2 at the same position
 *   match
 * @return CIERTO when they have the same count and every pair of points matches
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array (FALSO)
 *   - "array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem" when either is not an
 *     array of points with data (FALSO)
 *   - "(fnc_compara->fnc_compara_punto2DX) != NULL" for a NULL igualdad (FALSO)
 *   - "en_bucle == FALSO" for each array that a writing traversal or a sort is running over,
 *     while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); they are compared all
 *     the same */
ARRAYS_API arr_bool_t arr_SonIgualesPunto2DXPriv(ARRAY *array1, ARRAY *array2,
                                                 arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/** Calls accion for every point in position order.
 * The action gets the addresses of the point's x, y and data and may change them in place; calls
 * that would free the array or change its count are refused while it runs. Only the points there
 * at the start are visited.
 * @param array the array
 * @param accion called with the addresses of each point's x, y and data, and datos
 * @param datos handed to every call of accion
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming this library's module when called from inside another
 *     traversal, or a sort or search, of this array, while the loop-guard check is on
 *     (arrayprv_set_comprobar_en_bucle); the traversal is made all the same
 *   - "(fnc_accion->fnc_accion_punto2DX) != NULL" for a NULL accion (nothing is visited) */
ARRAYS_API void arr_RecorrePunto2DXPriv(ARRAY *array, arr_accion_Punto2DXPriv accion,
                                        void *datos) ARR_NOEXCEPT;
/** Moves every point by (dx, dy): x becomes x + dx and y becomes y + dy. The data is untouched.
 * @param array the array
 * @param dx added to every x
 * @param dy added to every y
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     moved all the same */
ARRAYS_API void arr_MoverPunto2DXPriv(ARRAY *array, double dx, double dy) ARR_NOEXCEPT;
/** Multiplies both coordinates of every point by factor (a scaling about the origin). The data is
 * untouched.
 * @param array the array
 * @param factor the factor
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     scaled all the same */
ARRAYS_API void arr_MultiplicarPunto2DXPriv(ARRAY *array, double factor) ARR_NOEXCEPT;
/** Turns every point about (xc, yc) COUNTER-CLOCKWISE by the angle whose sine and cosine are
 * given: the opposite sense of arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D.
 * A point at offset (dx, dy) from the centre goes to (xc + dx * coseno - dy * seno,
 * yc + dx * seno + dy * coseno); seno and coseno are used as given, not normalised. The data is
 * untouched.
 * @param array the array
 * @param xc the x of the centre
 * @param yc the y of the centre
 * @param seno the sine of the angle
 * @param coseno the cosine of the angle
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     turned all the same */
ARRAYS_API void arr_Girar_seno_y_cosenoPunto2DXPriv(ARRAY *array, double xc, double yc,
                                                    double seno, double coseno) ARR_NOEXCEPT;
/** Turns every point about (xc, yc) by angulo radians, counter-clockwise when angulo is positive.
 * An angle of magnitude 1e-5 or less (or a NaN) changes nothing and checks nothing, not even the
 * handle. The data is untouched.
 * @param array the array
 * @param xc the x of the centre
 * @param yc the y of the centre
 * @param angulo the angle in radians
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" from inside a traversal, sort or search of this
 *     array, while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points are
 *     turned all the same */
ARRAYS_API void arr_GirarPunto2DXPriv(ARRAY *array, double xc, double yc,
                                      double angulo) ARR_NOEXCEPT;
/** Makes a new array of points with data holding the points in reverse order, all with NULL data.
 * Such arrays are not meant to be reversed: the data would be shared, so it is left out of the
 * new array. The argument is unchanged, its data included.
 * @param array the array
 * @return the new array, to be destroyed with arr_DestruyePunto2DXPriv; NULL when the call ends
 *   early
 * @par Reports, besides the checks of the handle
 *   - "datos == NULL" for every point whose data is not NULL */
ARRAYS_API ARRAY *arr_InvertirPunto2DXPriv(const ARRAY *array) ARR_NOEXCEPT;
/** Tells whether some point carries data.
 * @param array the array
 * @return CIERTO when the data of some point is not NULL; FALSO for an empty array and when the
 *   call ends early */
ARRAYS_API arr_bool_t arr_TieneDatosExtrasAlgunPunto2DXPriv(ARRAY *array) ARR_NOEXCEPT;
/** Destroys an array of points with data, releasing each point's data through destruye.
 * destruye (when not NULL) is applied to the data of every point; then every data still not NULL
 * is reported, the array is destroyed all the same and *array is set to NULL. A plain 2D point
 * array, which holds no data, is reported by its tag and destroyed without calling destruye.
 * @param array the address of the handle, which is set to NULL
 * @param destruye releases a point's data and sets it to NULL; NULL when every data is NULL
 *   already
 * @par Reports, besides the checks of the handle
 *   - "(array) != NULL" for a NULL address and "(*array) != NULL" for a NULL handle
 *   - "(*array)->tipo_elem == elem_PUNTO2DX_NO_USAR" for an array of another type: a plain 2D
 *     point array is then destroyed, any other is left alive
 *   - "ptr == NULL" for each point whose data is still not NULL
 *   - "(*array)->en_bucle == FALSO" or "(*array)->en_bucle_lectura == FALSO" when called from
 *     inside a walk of this array, which it then leaves alive */
ARRAYS_API void arr_DestruyePunto2DXPriv(ARRAY **array,
                                         arr_destruye_datos_Punto2DXPriv destruye) ARR_NOEXCEPT;
/** Shrinks the array to its first nuevo_tamanyo points, releasing the data of the points cut off
 * through destruye.
 * destruye (when not NULL) is applied to the data of each point cut off; every such data still
 * not NULL is then reported, and the points are cut all the same. A count equal to the present one
 * changes nothing.
 * @param array the array
 * @param nuevo_tamanyo the new count
 * @param destruye releases a point's data and sets it to NULL; NULL when the data of the points
 *   cut off is NULL already
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == elem_PUNTO2DX_NO_USAR" for an array of another type, a plain 2D point
 *     array included, which is left as it was
 *   - "nuevo_tamanyo <= array->num_elems" for a count above the present one (nothing changes)
 *   - "ptr == NULL" for each point cut off whose data is still not NULL
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_ReduceTamanyoPunto2DXPriv(ARRAY *array, arr_ulong_t nuevo_tamanyo,
                                              arr_destruye_datos_Punto2DXPriv destruye) ARR_NOEXCEPT;
/** Copies an array of points with data.
 * Each point's data in the copy is copia(datos), or the same pointer when copia is NULL: then
 * only one of the two arrays may release it, and the other must set it to NULL first.
 * @param array the array to copy
 * @param copia makes the data of each new point from the data of the old one; may be NULL
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @return the new array, to be destroyed with arr_DestruyePunto2DXPriv; NULL when the call ends
 *   early
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == elem_PUNTO2DX_NO_USAR" for an array of another type (NULL)
 *   - "en_bucle == FALSO" naming ubicacion and linea when called while a writing traversal or a
 *     sort of array is running, and the loop-guard check is on (arrayprv_set_comprobar_en_bucle);
 *     the copy is made all the same */
ARRAYS_API ARRAY *arr_CopiaPunto2DXPriv_nousar(ARRAY *array, arr_copia_datos_Punto2DXPriv copia,
                                               const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** Appends every point of org to dest, with its data made as in arr_CopiaPunto2DXPriv_nousar.
 * @param dest the array that grows
 * @param org the array whose points are appended; it is left as it was, and must not be dest
 * @param copia makes the data of each new point from the data of the point of org; may be NULL
 * @param ubicacion the caller's module, named in a report of a walk of org already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "(org) != NULL", "(dest) != NULL", "dest->mascara_debug == MASCARA_DEBUG" and
 *     "org->mascara_debug == MASCARA_DEBUG" for a NULL or dead handle (nothing is appended)
 *   - "dest->tipo_elem == elem_PUNTO2DX_NO_USAR" for a dest of another type, and
 *     "array->tipo_elem == tipo_elem" for an org of another type (nothing is appended)
 *   - "dest != org" for an array concatenated onto itself (nothing is appended)
 *   - "dest->en_bucle == FALSO" or "dest->en_bucle_lectura == FALSO" from inside a walk of dest,
 *     which is then left as it was
 *   - "en_bucle == FALSO" naming ubicacion and linea when a writing traversal or a sort of org
 *     is running, and the loop-guard check is on (arrayprv_set_comprobar_en_bucle); the points
 *     are appended all the same */
ARRAYS_API void arr_ConcatenaPunto2DXPriv_nousar(ARRAY *dest, ARRAY *org,
                                                 arr_copia_datos_Punto2DXPriv copia,
                                                 const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/* ---- 3D point arrays ------------------------------------------------------------------------ */
/** @defgroup familia_Punto3D 3D point arrays
 * Arrays of 3D points: a point is x, y, z (three doubles, stored in that order).
 * Searches and whole-array equality take a predicate, sorting an ordering comparator; neither has
 * a default, and a NULL one is reported. arr_DestruyePunto3D, arr_NumElemsPunto3D,
 * arr_CopiaPunto3D, arr_ConcatenaPunto3D, arr_AumentaTamanyoPunto3D and arr_ReduceTamanyoPunto3D
 * are the shared functions above.
 * @{ */
/** Equality of two 3D points in the searches and in arr_SonIgualesPunto3D: called with a point of
 * the array as (x1, y1, z1) and the point looked for, or the point at the same position of the
 * second array, as (x2, y2, z2); non-zero when they match. */
typedef arr_bool_t (*arr_igualdad_Punto3D)(double x1, double y1, double z1, double x2, double y2,
                                     double z2);
/** Order of arr_QSortPunto3D: comparac_PRIMERO_MENOR when (x1, y1, z1) goes before (x2, y2, z2),
 * comparac_IGUALES when neither goes first, comparac_PRIMERO_MAYOR when it goes after. */
typedef int (*arr_orden_Punto3D)(double x1, double y1, double z1, double x2, double y2, double z2);
/** Action of arr_nousar_RecorrePunto3D: the addresses of a point's x, y and z, which it may change
 * in place, and the caller's datos; the result is ignored. */
typedef arr_bool_t (*arr_accion_Punto3D)(double *x, double *y, double *z, void *datos);

/** Creates a 3D point array holding tamanyo_inicial points (0, 0, 0).
 * @param tamanyo_inicial how many points it starts with
 * @return the new array, to be destroyed with arr_DestruyePunto3D */
ARRAYS_API ARRAY *arr_CreaPunto3D(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/** Appends the point (x, y, z) after the last point.
 * @param array the array
 * @param x the x of the point
 * @param y the y of the point
 * @param z the z of the point
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_AppendPunto3D(ARRAY *array, double x, double y, double z) ARR_NOEXCEPT;
/** Inserts the point (x, y, z) before the point at pos.
 * @param array the array
 * @param pos the position it takes; the count appends
 * @param x the x of the point
 * @param y the y of the point
 * @param z the z of the point
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a pos beyond the count (nothing is inserted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array, which is then left as it was */
ARRAYS_API void arr_InsertarPunto3D(ARRAY *array, arr_ulong_t pos, double x, double y,
                                    double z) ARR_NOEXCEPT;
/** Reads the point at pos into the outputs that are not NULL.
 * With all three NULL it only checks that the point exists. Nothing is written when the call ends
 * early.
 * @param array the array
 * @param pos the position, from 0
 * @param x gets the x of the point; may be NULL
 * @param y gets the y of the point; may be NULL
 * @param z gets the z of the point; may be NULL
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point ("array->num_elems > 0" before
 *     it when the array is empty) */
ARRAYS_API void arr_GetPunto3D(const ARRAY *array, arr_ulong_t pos, double *x, double *y,
                               double *z) ARR_NOEXCEPT;
/** Overwrites the point at pos.
 * It neither refuses nor reports an array inside a walk, so that an action of
 * arr_nousar_RecorrePunto3D may rewrite a point.
 * @param array the array
 * @param pos the position, from 0
 * @param x the new x
 * @param y the new y
 * @param z the new z
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point ("array->num_elems > 0" before
 *     it when the array is empty) */
ARRAYS_API void arr_SetPunto3D(ARRAY *array, arr_ulong_t pos, double x, double y,
                               double z) ARR_NOEXCEPT;
/** Deletes the point at pos; the later points move down by one.
 * @param array the array
 * @param pos the position, from 0
 * @par Reports, besides the checks of the handle
 *   - "real_pos < array->num_elems" for a position without point
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a walk of this
 *     array, which is then left as it was */
ARRAYS_API void arr_BorrarPunto3D(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/** Finds the first point that matches (x, y, z) by the predicate.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param z the z of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y, z)
 * @return its position, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto3D) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarPunto3D(ARRAY *array, double x, double y, double z,
                                         arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/** Finds the point that matches (x, y, z) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param z the z of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y, z)
 * @return the position of the last match, or ARR_ULONG_MAX when there is none
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto3D) != NULL" for a NULL igualdad (then ARR_ULONG_MAX) */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto3D(ARRAY *array, double x, double y, double z,
                                              arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y, z) by the predicate, and where the first one is.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param z the z of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y, z)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does
 * @par Reports, besides the checks of the handle
 *   - "(fnc_compara->fnc_compara_punto3D) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExistePunto3D(ARRAY *array, double x, double y, double z,
                                  arr_igualdad_Punto3D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Tells whether a point matches (x, y, z) by the predicate, which should be the only one.
 * @param array the array
 * @param x the x of the point looked for
 * @param y the y of the point looked for
 * @param z the z of the point looked for
 * @param igualdad non-zero when a point of the array matches (x, y, z)
 * @param posicion where the position found (or ARR_ULONG_MAX) is written; may be NULL
 * @return CIERTO when one does; posicion gets the last match
 * @par Reports, besides the checks of the handle
 *   - "!ya_encontrado" for each match after the first
 *   - "(fnc_compara->fnc_compara_punto3D) != NULL" for a NULL igualdad (then FALSO) */
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto3D(ARRAY *array, double x, double y, double z,
                                       arr_igualdad_Punto3D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
/** Sorts the points in place by the comparator, with the library's quicksort.
 * Two points whose stored bytes are identical are taken as equal without calling comparador.
 * @param array the array
 * @param comparador the order (comparac_* results); required
 * @par Reports, besides the checks of the handle
 *   - "(func_compara_punto3D) != NULL" for a NULL comparador (nothing is sorted)
 *   - "array->en_bucle == FALSO" or "array->en_bucle_lectura == FALSO" from inside a traversal,
 *     sort or search of this array (the sort is made all the same) */
ARRAYS_API void arr_QSortPunto3D(ARRAY *array, arr_orden_Punto3D comparador) ARR_NOEXCEPT;
/** Compares two 3D point arrays point by point with the predicate.
 * Stops at the first pair that does not match.
 * @param array1 the first array
 * @param array2 the second array
 * @param igualdad non-zero when a point of array1 and the point of array2 at the same position
 *   match
 * @return CIERTO when they have the same count and every pair of points matches
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array (FALSO)
 *   - "array1->tipo_elem == tipo_elem && array2->tipo_elem == tipo_elem" when either is not a
 *     3D point array (FALSO)
 *   - "(fnc_compara->fnc_compara_punto3D) != NULL" for a NULL igualdad (FALSO)
 *   - "en_bucle == FALSO" for each array that a writing traversal or a sort is running over,
 *     while the loop-guard check is on (arrayprv_set_comprobar_en_bucle); they are compared all
 *     the same */
ARRAYS_API arr_bool_t arr_SonIgualesPunto3D(ARRAY *array1, ARRAY *array2,
                                            arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/** Compares two 3D point arrays within a tolerance per coordinate.
 * Point by point, no coordinate may differ by more than tolerancia: a box around each point, not
 * a distance. A NaN difference counts as equal; two empty arrays are equal whatever the
 * tolerance.
 * @param array1 the first array
 * @param array2 the second array
 * @param tolerancia the greatest difference allowed in each coordinate
 * @return CIERTO when both have the same count and every pair of points is within tolerancia;
 *   FALSO when the call ends early
 * @par Reports, besides the checks of the handle
 *   - "(array1) != NULL" or "(array2) != NULL" for a NULL handle, and
 *     "array1->mascara_debug == MASCARA_DEBUG" or "array2->mascara_debug == MASCARA_DEBUG" for
 *     one that is not a live array; both arrays are checked
 *   - "array1->tipo_elem == elem_PUNTO3D_NO_USAR" or "array2->tipo_elem == elem_PUNTO3D_NO_USAR"
 *     for an array that is not a 3D point array */
ARRAYS_API arr_bool_t arr_SonIgualesPunto3DConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                         double tolerancia) ARR_NOEXCEPT;
/** Makes a new 3D point array with the points in reverse order; the argument is unchanged.
 * @param array the array
 * @return the new array, to be destroyed with arr_DestruyePunto3D; NULL when the call ends early */
ARRAYS_API ARRAY *arr_InvertirPunto3D(const ARRAY *array) ARR_NOEXCEPT;
/** Calls accion for every point in position order.
 * The action gets the addresses of the point's x, y and z and may change them in place; calls
 * that would free the array or change its count are refused while it runs. Only the points there
 * at the start are visited.
 * @param array the array
 * @param accion called with the addresses of each point's x, y and z, and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "en_bucle == FALSO" naming ubicacion and linea when called from inside another traversal,
 *     or a sort or search, of this array, while the loop-guard check is on
 *     (arrayprv_set_comprobar_en_bucle); the traversal is made all the same
 *   - "(fnc_accion->fnc_accion_punto3D) != NULL" for a NULL accion (nothing is visited) */
ARRAYS_API void arr_nousar_RecorrePunto3D(ARRAY *array, arr_accion_Punto3D accion, void *datos,
                                          const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */

/* ---- Plane geometry on 2D point arrays ------------------------------------------------------ */
/** @defgroup geometria Plane geometry on 2D point arrays
 * Arcs, ellipses and circles appended as polylines, and measures and edits of a polyline.
 *
 * Every function works on a 2D point array of either kind (plain or with private data): each
 * point goes in, is read and is deleted through the 2D point family's own operations, which make
 * the checks of the handle; generated points get NULL data, and the private data of a deleted
 * point is not released. Generated points are appended after those the array holds, and nothing
 * is compared with them. Angles are radians, counter-clockwise from the positive x axis.
 * sentido 0 runs counter-clockwise; the circular arcs and the circle take any other value as
 * clockwise, the ellipses (and the count of arr_AnyadirArcoPunto2D_con_longitud_maxima_lado)
 * only 1: pass 0 or 1.
 * @{ */

/** Appends the arc about (xc, yc) from (x1, y1) to (x2, y2) with the step of a circle of
 * num_puntos points, evened out.
 * The two given points go in as they are, first and last. Between them go the vertices of the
 * arc divided into the fewest equal steps that are no longer than those of a circle of
 * num_puntos points; an arc shorter than 1.1 such steps gets only its two ends. Ends at the same
 * angle from the centre also give only the two ends: an arc is never a whole turn. When the ends
 * lie at different distances from the centre the radius changes linearly with the angle.
 * @param array the 2D point array that grows
 * @param xc x of the centre
 * @param yc y of the centre
 * @param x1 x of the start point
 * @param y1 y of the start point
 * @param x2 x of the end point
 * @param y2 y of the end point
 * @param sentido 0 for counter-clockwise, any other value for clockwise
 * @param num_puntos the point count of the whole circle whose step the arc takes; at least 3
 * @par Reports, besides the checks of the handle
 *   - "num_puntos >= 3" for a smaller count, which is used all the same (0 or 1 gives only the
 *     two ends) */
ARRAYS_API void arr_AnyadirArcoPunto2D(ARRAY *array, double xc, double yc, double x1, double y1,
                                       double x2, double y2, arr_short_t sentido,
                                       arr_ulong_t num_puntos) ARR_NOEXCEPT;
/** Appends the arc of arr_AnyadirArcoPunto2D in num_puntos points, both ends included.
 * The arc is divided into num_puntos - 1 equal steps. Ends at the same angle from the centre give
 * only the two ends, and a step too small to move the angle ends the vertices between them early.
 * @param array the 2D point array that grows
 * @param xc x of the centre
 * @param yc y of the centre
 * @param x1 x of the start point
 * @param y1 y of the start point
 * @param x2 x of the end point
 * @param y2 y of the end point
 * @param sentido 0 for counter-clockwise, any other value for clockwise
 * @param num_puntos the point count of the arc, both ends included; at least 2
 * @par Reports, besides the checks of the handle
 *   - "num_puntos >= 2" for a smaller count; only the two ends are appended then */
ARRAYS_API void arr_AnyadirArcoPunto2D_numPuntosArco(ARRAY *array, double xc, double yc,
                                                     double x1, double y1, double x2, double y2,
                                                     arr_short_t sentido, arr_ulong_t num_puntos) ARR_NOEXCEPT;
/** Appends the arc of arr_AnyadirArcoPunto2D in as many points as a maximum side length asks.
 * The count is the larger of sweep * r / longitud_maxima_lado + 1 and sweep * num_puntos / (2 pi),
 * rounded up and at least 2, where r is the larger of the distances of the two ends from the
 * centre and sweep the angle the arc sweeps; the arc is then drawn as by
 * arr_AnyadirArcoPunto2D_numPuntosArco with that count, so that on a circle of radius r no side
 * is longer than longitud_maxima_lado. The sweep of the count takes only sentido 1 as clockwise:
 * for any other value but 0 the count is that of the counter-clockwise arc, spread over the
 * clockwise arc that is drawn.
 * @param array the 2D point array that grows
 * @param xc x of the centre
 * @param yc y of the centre
 * @param x1 x of the start point
 * @param y1 y of the start point
 * @param x2 x of the end point
 * @param y2 y of the end point
 * @param sentido 0 for counter-clockwise, any other value for clockwise (see above for the count)
 * @param num_puntos the point count of a whole circle, whose share of the sweep the count does
 *   not fall below
 * @param longitud_maxima_lado the longest side wanted; greater than 0
 * @par Reports, besides the checks of the handle
 *   - "longitud_maxima_lado > 0." for a length that is not greater than 0; num_puntos alone then
 *     sets the count
 *   - "num_puntos >= 2" when the count comes out below 2, which only values that are not finite
 *     numbers can cause; only the two ends are appended then */
ARRAYS_API void arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double x1, double y1, double x2, double y2, arr_short_t sentido,
    arr_ulong_t num_puntos, double longitud_maxima_lado) ARR_NOEXCEPT;
/** Appends an arc of the ellipse about (xc, yc) with semi-axes semieje_x and semieje_y, turned
 * counter-clockwise by angulo_giro about its centre.
 * The arc runs over eccentric angles (the ellipse's own, before the turn). Its interval runs
 * counter-clockwise from angulo_inicial to angulo_final, a turn added to angulo_final when it is
 * below angulo_inicial; for sentido 1 it runs from angulo_final to angulo_inicial in the same way,
 * and the arc built over it is then reversed, so that it runs clockwise from angulo_inicial. The
 * vertices go a step apart from the start of the interval and its end is the last one; the step
 * is 2 pi / num_puntos, or the difference between the two angles when that is smaller (so an arc
 * that wraps round, e.g. from 0.1 to 0 counter-clockwise, takes steps of at most 0.1). Angles
 * within 1e-5 of each other give one point, at angulo_final; angles a turn apart give the whole
 * ellipse, its last point on its first. A vertex closer than 1e-5 to the one built before it is
 * left out. The arc is built in an array of its own and appended in one go, so an array of
 * another element type refuses it whole.
 * @param array the 2D point array that grows
 * @param xc x of the centre
 * @param yc y of the centre
 * @param semieje_x the semi-axis along x, before the turn
 * @param semieje_y the semi-axis along y, before the turn
 * @param angulo_inicial the eccentric angle where the arc starts
 * @param angulo_final the eccentric angle where the arc ends
 * @param angulo_giro the angle the ellipse is turned by, counter-clockwise
 * @param sentido 1 for clockwise, any other value for counter-clockwise
 * @param num_puntos the point count of the whole ellipse, which sets the step; 0 makes the step
 *   the difference between the two angles
 * @par Reports, besides the checks of the handle
 *   - "angulo_inicial_filtrado < angulo_final_filtrado" when the interval runs backwards:
 *     angulo_inicial more than a turn above angulo_final (for sentido 1, angulo_final more than
 *     a turn above angulo_inicial), or an angle that is not a number; only the interval's end is
 *     appended then: the point at angulo_final (for sentido 1, at angulo_inicial)
 *   - "fabs(diferencia - 2 * PI) < 1e-5" when the interval comes out empty although the angles
 *     are not a turn apart, which only the rounding of very large angles can cause; the whole
 *     ellipse is appended all the same */
ARRAYS_API void arr_AnyadirArcoElipsePunto2D(ARRAY *array, double xc, double yc, double semieje_x,
                                             double semieje_y, double angulo_inicial,
                                             double angulo_final, double angulo_giro,
                                             arr_short_t sentido, arr_ulong_t num_puntos) ARR_NOEXCEPT;
/** Appends the elliptical arc of arr_AnyadirArcoElipsePunto2D with a step set by a maximum side
 * length.
 * The count is the larger of span * s / longitud_maxima_lado + 1 and span * num_puntos / (2 pi),
 * rounded up, at least 2 and at most 10000, where s is the larger semi-axis and span the length
 * of the arc's interval; the step is the span divided by one less than the count, and then, as
 * there, no larger than the difference between the two angles. So, below the cap of 10000, the
 * step is at most longitud_maxima_lado / s radians. An interval that comes out empty (angles a
 * turn apart the wrong way round, e.g. from 2 pi to 0 with sentido 0) gives a step of 0 and a
 * single point.
 * @param array the 2D point array that grows
 * @param xc x of the centre
 * @param yc y of the centre
 * @param semieje_x the semi-axis along x, before the turn
 * @param semieje_y the semi-axis along y, before the turn
 * @param angulo_inicial the eccentric angle where the arc starts
 * @param angulo_final the eccentric angle where the arc ends
 * @param angulo_giro the angle the ellipse is turned by, counter-clockwise
 * @param sentido 1 for clockwise, any other value for counter-clockwise
 * @param num_puntos the point count of the whole ellipse, whose share of the span the count does
 *   not fall below
 * @param longitud_maxima_lado the longest side wanted; greater than 0
 * @par Reports, besides the checks of the handle
 *   - "longitud_maxima_lado > 0." for a length that is not greater than 0; num_puntos alone then
 *     sets the count
 *   - "num_puntos_arco > 1" when the count comes out below 2, which only values that are not
 *     finite numbers can cause; the arc is drawn all the same
 *   - those of arr_AnyadirArcoElipsePunto2D */
ARRAYS_API void arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double semieje_x, double semieje_y, double angulo_inicial,
    double angulo_final, double angulo_giro, arr_short_t sentido, arr_ulong_t num_puntos,
    double longitud_maxima_lado) ARR_NOEXCEPT;
/** Appends the circle about (xc, yc) of radius radio as numPtosCirculo points, to an empty array.
 * The first point is (xc + radio, yc) and each next one a step of 2 pi / numPtosCirculo further
 * on: counter-clockwise for sentido 0, mirrored about the horizontal diameter (so clockwise) for
 * any other value. The first point is not repeated at the end.
 * @param array the 2D point array, empty
 * @param xc x of the centre
 * @param yc y of the centre
 * @param radio the radius
 * @param sentido 0 for counter-clockwise, any other value for clockwise
 * @param numPtosCirculo how many points; at least 3
 * @par Reports, besides the checks of the handle
 *   - "arr_NumElemsPunto2D(ARR) == 0" when the array holds points already; the circle is
 *     appended after them all the same
 *   - "numPtosCirculo >= 3" for a smaller count, which is used all the same */
ARRAYS_API void arr_AnyadirCirculoPunto2D(ARRAY *array, double xc, double yc, double radio,
                                          arr_short_t sentido, arr_ulong_t numPtosCirculo) ARR_NOEXCEPT;

/** The signed area of the polygon of the array's points, closed from the last point back to the
 * first.
 * @param array the 2D point array
 * @return positive when the points run counter-clockwise, negative when clockwise; 0.0 for fewer
 *   than three points and for a handle that is not a live 2D point array */
ARRAYS_API double arr_CalcularAreaPunto2D(const ARRAY *array) ARR_NOEXCEPT;
/** The length of the open polyline of the array's points, and its longest side.
 * The outputs are written even when there is no side (fewer than two points, or a handle that is
 * not a live 2D point array).
 * @param array the 2D point array
 * @param indice_lado_mayor gets the index of the first point of the longest side (the first of
 *   equal ones), or ARR_ULONG_MAX when there is no side; may be NULL
 * @param longitud_lado_mayor gets that side's length, or -1.0 when there is no side; may be NULL
 * @return the sum of the lengths of the sides; 0.0 when there is none */
ARRAYS_API double arr_LongitudPunto2D(const ARRAY *array, arr_ulong_t *indice_lado_mayor,
                                      double *longitud_lado_mayor) ARR_NOEXCEPT;
/** The distance from (x, y) to the open polyline of the array's points.
 * The nearest point of the polyline (on a side, or the only point when there is one) goes to the
 * pointers that are not NULL; of equally near points, the one met first walking from point 0.
 * Nothing is written when the array is empty or is not a live 2D point array.
 * @param array the 2D point array, not empty
 * @param x x of the point
 * @param y y of the point
 * @param x_cercano gets x of the nearest point; may be NULL
 * @param y_cercano gets y of the nearest point; may be NULL
 * @return the distance; 0.0 when nothing is written
 * @par Reports, besides the checks of the handle
 *   - "numPuntos > 0" for an empty array, then the reports of the read of its point 0:
 *     "array->num_elems > 0", "real_pos < array->num_elems" and "(pto2D) != NULL" (or
 *     "(pto2DX) != NULL" with private data) */
ARRAYS_API double arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) ARR_NOEXCEPT;
/** The distance from (x, y) to the polyline of the array's points closed by a side from its last
 * point back to the first.
 * As arr_DistanciaDePuntoAPolilineaAbiertaPunto2D, but the walk starts at the last point and its
 * first side is the closing one, which therefore wins a tie.
 * @param array the 2D point array, not empty
 * @param x x of the point
 * @param y y of the point
 * @param x_cercano gets x of the nearest point; may be NULL
 * @param y_cercano gets y of the nearest point; may be NULL
 * @return the distance; 0.0 when nothing is written
 * @par Reports, besides the checks of the handle
 *   - "numPuntos > 0" for an empty array, then the reports of the read of its point 0:
 *     "array->num_elems > 0", "real_pos < array->num_elems" and "(pto2D) != NULL" (or
 *     "(pto2DX) != NULL" with private data) */
ARRAYS_API double arr_DistanciaDePuntoAPolilineaCerradaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) ARR_NOEXCEPT;
/** Finds the point of the array nearest to (x, y).
 * Its coordinates, index and distance go to the pointers that are not NULL; of equally near
 * points, the one of lowest index. Nothing is written when the array is empty or is not a live
 * 2D point array.
 * @param array the 2D point array, not empty
 * @param x x of the reference point
 * @param y y of the reference point
 * @param x_cercano gets x of the nearest point; may be NULL
 * @param y_cercano gets y of the nearest point; may be NULL
 * @param indice gets its index; may be NULL
 * @param distancia gets its distance from (x, y); may be NULL
 * @par Reports, besides the checks of the handle
 *   - "numPuntos > 0" for an empty array, then the reports of the read of its point 0:
 *     "array->num_elems > 0", "real_pos < array->num_elems" and "(pto2D) != NULL" (or
 *     "(pto2DX) != NULL" with private data) */
ARRAYS_API void arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(
    const ARRAY *array, double x, double y, double *x_cercano, double *y_cercano, arr_ulong_t *indice,
    double *distancia) ARR_NOEXCEPT;
/** Deletes every point equal to the last point kept before it, each coordinate within 1e-9.
 * As each point is compared with the last one kept, a run of points each within 1e-9 of the one
 * before may keep some of them. The first and last points are not compared with each other.
 * @param array the 2D point array
 * @param num_eliminados gets how many points were deleted (0 for a handle that is not a live 2D
 *   point array); may be NULL */
ARRAYS_API void arr_EliminarPuntosContiguosRepetidosPunto2D(ARRAY *array,
                                                            arr_ulong_t *num_eliminados) ARR_NOEXCEPT;
/** Deletes, from the start, every point closer than tolerancia to the line through its two
 * neighbours.
 * Each point is tested against the whole line (not only the segment) through the last point kept
 * before it and the point after it, so after a deletion the next point is tested with the same
 * point before it. Point 0 always stays, and so does the last point of an open polyline. With
 * cerrada 1 the polyline is taken as closed: a copy of point 0 is appended through
 * arr_AppendPunto2D, so that the last point is tested against point 0, and the copy is deleted
 * at the end. That needs a plain 2D point array that is not empty: one with private data, or
 * an empty one, is left as it was.
 * @param array the 2D point array
 * @param cerrada 1 for a closed polyline, any other value for an open one
 * @param tolerancia the distance from the line below which a point is deleted
 * @par Reports, besides the checks of the handle
 *   - "array->tipo_elem == tipo_elem" for cerrada 1 on an array with private data, which refuses
 *     the copy of point 0
 *   - "array->num_elems > 0", "real_pos < array->num_elems" and "(pto2D) != NULL" (or
 *     "(pto2DX) != NULL" with private data) for cerrada 1 on an empty array, which has no point 0
 *     to copy */
ARRAYS_API void arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
    ARRAY *array, arr_short_t cerrada, double tolerancia) ARR_NOEXCEPT;
/** @} */

/* ---- Looking into arrays from outside: the debug dump and shared-memory publishing -------- */
/** @defgroup depuracion Looking into arrays from outside
 * The debug dump on the debugger output, and copies of arrays published in named shared memory
 * for another process to read.
 *
 * For single-threaded debugging use: the module's sinks, buffers and tables are shared by every
 * caller and nothing is locked. These functions make no reports. A handle that is NULL, destroyed
 * or points into memory that cannot be read never faults here: each function copies the header
 * through a probe first and asks arryprv_es_array_correcto about the copy, and reads rows and
 * strings through the probe too. A NULL handle is named on the debugger output by the functions
 * that write there, and so is an unreadable one (as not valid by
 * debugarr_serializa_num_elems_array); any other handle that is not a live array is taken as an
 * array that is not valid. Bit arrays are refused by that query, so the queries give them the
 * answers of an invalid array; their dump is the header line (with the count of bits) and
 * `"\r\nTipo de array no implementado.\r\n"`. In checking mode (ARRAYPRUEBA) the query looks the
 * copy up among the live headers, where it is not, so every array is then taken as not valid.
 *
 * The module's own messages are Windows-1252 bytes (the accented letters of
 * `"direcci\xF3n no v\xE1lida"` are the bytes 0xF3 and 0xE1); the line of a narrow string element
 * carries the string's own bytes.
 * @{ */

/** Replaces the sinks of the debugger output.
 * Each sink is, until replaced and again when given NULL, the platform's: on Windows
 * OutputDebugStringA / OutputDebugStringW, elsewhere standard error in UTF-8 (a narrow text that
 * is valid UTF-8 goes as it is, any other is converted from Windows-1252; a wide text is
 * converted from UTF-16).
 * @param estrecha called by the module with every narrow text, zero-terminated; NULL restores
 *   the default
 * @param ancha called by the module with the line of each wide string element, zero-terminated
 *   UTF-16; NULL restores the default */
ARRAYS_API void debugarr_set_salida(void (*estrecha)(const char *texto),
                                    void (*ancha)(const arr_wchar_t *texto)) ARR_NOEXCEPT;

/** Lists `array` on the debugger output.
 * First the header line `"\r\nArray de N elementos:\r\n"`, then one text per element:
 * `"[i]: value\r\n"` with i counted from 1. BYTE, UChar and Char print as 0 to 255, BOOL as
 * CIERTO for the value 1 and FALSO for any other, the integers whole, doubles with six decimals,
 * strings between double quotes (a NULL string as (null)), those of wide string elements through
 * the wide sink. 2D points of either kind print as `"[%2d]: \tx=%f, \ty=%f\r\n"` counted from 0,
 * 3D points with `", \tz=%f"` as well and counted from 1. Lines longer than 65,535 characters
 * (UTF-16 code units for wide strings) are cut.
 * Typed pointer (and bit) arrays print `"\r\nTipo de array no implementado.\r\n"` after the
 * header line. A NULL handle prints `"\r\nArray es NULL.\r\n"` and an unreadable one
 * `"\r\nArray con direcci\xF3n no v\xE1lida.\r\n"`, which also ends the list when the rows or a
 * string element cannot be read (or the row tables do not add up to the count); any other handle
 * that is not a live array prints nothing.
 * @param array the array to list */
ARRAYS_API void debugarr_outputDebug(const ARRAY *array) ARR_NOEXCEPT;

/** Publishes a copy of `array`'s elements in a named shared-memory block.
 * The block is `"MemComp_ZarpTools_debugarr_<identificador>"`, the identifier printed as a signed
 * 32-bit number, for another process to open: 4 bytes with the number of data bytes and 4 with
 * the element size (both little-endian), then the elements one after another. String elements go
 * as the pointers of this process; for 2D points with private data the data bytes are whatever
 * the module's scratch buffer held (see debugarr_elems). On POSIX the block is the shared-memory
 * object `"/MemComp_ZarpTools_debugarr_<identificador>"`, mode 0600; a name that exists and is
 * not a regular object of this user is refused.
 * The block takes the next of 100 slots in turn; a slot taken again leaves the block it held
 * published until the process ends. On POSIX the names of the blocks still published are taken
 * away at a normal exit.
 * Messages as for debugarr_outputDebug: `"\r\nArray es NULL.\r\n"` for NULL, and
 * `"\r\nArray con direcci\xF3n no v\xE1lida.\r\n"` for a handle, rows or elements that cannot be
 * read. Nothing is published, silently, for any other array that is not valid, for an empty
 * array while the scratch buffer was never made, when there is no memory for the copy, for a
 * copy that with the 8-byte header would not fit in 32 bits, or when the block cannot be made;
 * no slot is taken then.
 * @param array the array to publish
 * @param identificador names the block, and debugarr_fin_serializa closes it by it */
ARRAYS_API void debugarr_ini_serializa(const ARRAY *array, arr_ulong_t identificador) ARR_NOEXCEPT;

/** Closes the block published under `identificador`.
 * The slots are searched from the first, and the first that holds the identifier is taken: its
 * block is unmapped, and its name is taken away unless another published block shares it. The
 * slot keeps its identifier, so when the identifier was published more than once a later call
 * finds the same slot again and closes nothing. Slots not yet taken hold the identifier 0.
 * @param identificador the identifier given to debugarr_ini_serializa
 * @return 0 when no slot holds the identifier; otherwise 1, also when the block of that slot was
 *   closed already */
ARRAYS_API int debugarr_fin_serializa(arr_ulong_t identificador) ARR_NOEXCEPT;

/** Writes the element count of `array` into the block
 * `"MemComp_ZarpTools_serializa_num_elems"`.
 * The block holds 12 bytes: the count and two words of 0, each 32 bits little-endian. It is made
 * at the first call that writes to it and kept for the life of the process (on POSIX its name is
 * taken away at a normal exit). An array that is not valid (unreadable, not live, bits) writes
 * 0xFFFFFFFF and prints `"\r\nArray acadorde no v\xE1lido.\r\n"`; NULL writes nothing and prints
 * `"\r\nArray acadorde es NULL.\r\n"`; a block that cannot be made prints
 * `"\r\n(debugarr) Error en memoria compartida 'MemComp_ZarpTools_serializa_num_elems'.\r\n"`.
 * @param array the array whose count is written */
ARRAYS_API void debugarr_serializa_num_elems_array(const ARRAY *array) ARR_NOEXCEPT;

/** The elements of `array` one after another in the module's scratch buffer.
 * The buffer only grows: a larger copy moves to a new buffer and keeps the one before alive, so
 * the address stays valid until the buffer has grown twice more; its contents change with each
 * copy (here or by debugarr_ini_serializa). For 2D points with private data nothing is copied:
 * the buffer holds what it held (zeros where it has just grown).
 * @param array the array
 * @return the buffer; NULL for an array that is not valid, when its rows cannot be read or there
 *   is no memory for the copy, and for an empty array while no buffer was ever made (once one
 *   was, an empty array gets it) */
ARRAYS_API void *debugarr_elems(const ARRAY *array) ARR_NOEXCEPT;

/** The element count of `array`.
 * @param array the array
 * @return the count; 0 when it is not valid */
ARRAYS_API arr_ulong_t debugarr_num_elems(const ARRAY *array) ARR_NOEXCEPT;

/** The element type tag of `array`.
 * @param array the array
 * @return the tag (tipo_elem_array); 0xFFFFFFFF when it is not valid */
ARRAYS_API arr_ulong_t debugarr_tipo_array(const ARRAY *array) ARR_NOEXCEPT;
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* ARRAYS_H */
