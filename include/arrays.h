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
 * predicate, a release function), a call on the same array that would free it or change its
 * element count (append, insert, delete, grow, shrink, concatenation into it, destroy) is
 * reported and NOT carried out: the walk goes on over the elements it started with, and the
 * caller's handle stays valid, to be destroyed once the walk has returned. Inside a sort, a string
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 * The action may change the element in place; calls that would free the array or change its count
 * are refused while it runs.
 * @param array the array
 * @param accion called with each element's address and datos
 * @param datos handed to every call of accion
 * @param ubicacion the caller's module, named in a report of a walk already running
 * @param linea the caller's line, likewise
 * @par Reports, besides the checks of the handle
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
ARRAYS_API void arr_nousar_RecorreDouble(ARRAY *array, arr_accion_Double accion, void *datos,
                                         const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/** @} */
/* @fin escalares */

/* Reverses the order of the elements in place (the values are not negated). */
ARRAYS_API void arr_InvertirBOOL(ARRAY *array) ARR_NOEXCEPT;

/* The smallest and the greatest element and their first positions, written through the pointers
 * that are not NULL. An empty array is reported ("array->num_elems > 0"); it, and an array of
 * NaNs only, give DBL_MAX, -DBL_MAX and ARR_ULONG_MAX for both positions. */
ARRAYS_API void arr_MinimoMaximoDouble(const ARRAY *array, double *minimo, arr_ulong_t *pos_minimo,
                                       double *maximo, arr_ulong_t *pos_maximo) ARR_NOEXCEPT;

/* TRUE when both arrays have the same count and no pair of elements at the same position
 * differs by more than `tolerancia` (a NaN difference counts as equal). */
ARRAYS_API arr_bool_t arr_SonIgualesDoubleConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                        double tolerancia) ARR_NOEXCEPT;
/* The same for two pointer arrays (arr_CreaPunteroConTipo) whose elements are Double arrays,
 * compared pair by pair up to the first unequal pair. */
ARRAYS_API arr_bool_t arr_SonIgualesArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                                     const ARRAY *array2,
                                                               double tolerancia) ARR_NOEXCEPT;
/* The same one level deeper: pointer arrays whose elements are such pointer arrays. */
ARRAYS_API arr_bool_t arr_SonIgualesArrArrPunteroArrDoubleConTolerancia(const ARRAY *array1,
                                                                        const ARRAY *array2,
                                                                  double tolerancia) ARR_NOEXCEPT;

/* Turns every price of a Double array from pesetas into euros (divided by 166.386), rounded to
 * two decimals. */
ARRAYS_API void arr_cambio_precio_pesetas_a_euros(ARRAY *array) ARR_NOEXCEPT;

/* ---- The shared functions under the names of the other families ------------------------- */

/* @generado compartidas: tools/genera_interfaz.py writes what follows from tools/familias.py */
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
/* @fin compartidas */

/* ---- Bit arrays --------------------------------------------------------------------------- */

/*
 * Arrays of single bits, packed eight to a byte: bit pos is bit pos % 8 (from the least
 * significant) of byte pos / 8. A bit is passed as a BOOL (any non-zero value sets it) and read
 * back as 1 or 0. arr_NumElemsBIT counts bits. Destruction, count, copy, growth and shrinking
 * are the shared functions (arr_DestruyeBIT, arr_NumElemsBIT, arr_CopiaBIT,
 * arr_AumentaTamanyoBIT, arr_ReduceTamanyoBIT); bits have no insert, delete, search, sort,
 * comparison or concatenation.
 */

/* A new array of n false bits. */
ARRAYS_API ARRAY *arr_CreaBIT(arr_ulong_t n) ARR_NOEXCEPT;
/* The bit at pos: 1 or 0. A pos not below the bit count is reported ("pos < array->num_bits");
 * the byte that would hold it is still read when it exists. */
ARRAYS_API arr_bool_t arr_GetBIT(const ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* Sets the bit at pos for a non-zero valor, clears it for FALSO; pos as in arr_GetBIT. */
ARRAYS_API void arr_SetBIT(ARRAY *array, arr_ulong_t pos, arr_bool_t valor) ARR_NOEXCEPT;
/* Appends one bit. */
ARRAYS_API void arr_AppendBIT(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;
/* Sets every bit (whole bytes, so also the spare bits of the last byte) to valor. */
ARRAYS_API void arr_InicializaBIT(ARRAY *array, arr_bool_t valor) ARR_NOEXCEPT;

/* ---- The arulong and arulong64 names ------------------------------------------------------ */

/*
 * The ULong and ULong64 families under second, lower-case names: arulong_ for ULong arrays and
 * arulong64_ for ULong64 arrays. An array made under either set of names may be used with the
 * other. Besides the shared arulong_destruye, arulong_numelems, arulong_copia,
 * arulong_concatena and arulong_reduce_tamanyo (above), each name below is the very same function
 * as its arr_ twin, except arulong_crea and arulong_append_n.
 */
/* @generado arulong: tools/genera_interfaz.py writes what follows from tools/familias.py */
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
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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
 *   - "array->en_bucle == FALSO" naming ubicacion and linea when a walk of this array is already
 *     running */
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

/* The narrow growth; see above. */
ARRAYS_API arr_ulong_t arr_AumentaTamanyoCADENA(ARRAY *array,
                                                arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;

/* ---- Typed pointer and structure arrays ----------------------------------------------------- */
/*
 * Arrays whose elements are untyped pointers to the caller's own data (tag elem_PUNTERO_NO_USAR).
 * Used as plain pointer arrays (the Puntero functions never free what the elements point to) or
 * as owning structure arrays (the Estructura functions free through the caller's `libera` and
 * copy through the caller's copy function). The Array forms work on an array of arrays: a
 * pointer array whose elements are structure arrays. A NULL element is allowed everywhere.
 * A plain pointer array must be emptied, or its elements set to NULL, before
 * arr_DestruyePunteroConTipo, which reports every pointer still set ("ptr == NULL").
 * The Const forms do the same as their plain twins, for callers holding pointers to constant data.
 * Shared with every family (declared above): arr_DestruyePunteroConTipo (destroy, pointers must
 * be NULL) and arr_AumentaTamanyoEstructurasConTipo (grow; new elements are NULL).
 */

/* Equality of a search: the element (stored pointer) against the caller's datum; non-zero if equal. */
typedef arr_bool_t (*arr_igualdad_PunteroConTipo)(const void *elemento, const void *dato);
/* Order of the sort (two elements) and of the bisection (element, datum): comparac_*. */
typedef int (*arr_orden_PunteroConTipo)(const void *a, const void *b);
/* Frees the structure in the slot (which may hold NULL) and sets the slot to NULL. */
typedef void (*arr_libera_EstructuraConTipo)(void **elemento);
/* A new structure equal to the element (which may be NULL), owned by the receiving array. */
typedef void *(*arr_copia_EstructuraConTipo)(const void *elemento);
/* Actions of the traversals: the stored pointer; its address and the caller's datos; the stored
 * pointer and datos. The BOOL result is ignored. */
typedef void (*arr_opera_PunteroConTipo)(void *elemento);
typedef arr_bool_t (*arr_accion_PunteroConTipo)(void **elemento, void *datos);
typedef void (*arr_accion_EstructuraSimpleConTipo)(void *elemento, void *datos);

/* A pointer array of n NULL elements in rows of long_fila_en_bytes bytes (a row holds
 * long_fila_en_bytes / 8 pointers, which must be above 0); arr_CreaPunteroConTipo uses 2048. */
ARRAYS_API ARRAY *arr_CreaPunteroConTipoEx(arr_ulong_t n,
                                           arr_ulong_t long_fila_en_bytes) ARR_NOEXCEPT;
ARRAYS_API ARRAY *arr_CreaPunteroConTipo(arr_ulong_t n) ARR_NOEXCEPT;

/* Destroys a structure array: calls libera (if not NULL) on every slot in order, NULL slots
 * included, then frees the array and sets *array to NULL. The Const form frees no structure. */
ARRAYS_API void arr_DestruyeEstructurasConTipo(ARRAY **array,
                                               arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
ARRAYS_API void arr_DestruyeEstructurasConstConTipo(ARRAY **array) ARR_NOEXCEPT;
/* Destroys an array of arrays: each non-NULL inner array with arr_DestruyeEstructurasConTipo and
 * libera (the Const form: with no libera), then the outer array. */
ARRAYS_API void arr_DestruyeEstructurasArrayConTipo(ARRAY **array_de_arrays,
                                                    arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
ARRAYS_API void arr_DestruyeEstructurasConstArrayConTipo(ARRAY **array_de_arrays) ARR_NOEXCEPT;

/* Append, insert before pos (pos == count appends) and overwrite at pos; an overwritten pointer
 * is not freed. */
ARRAYS_API void arr_AppendPunteroConTipo(ARRAY *array, void *puntero) ARR_NOEXCEPT;
ARRAYS_API void arr_AppendPunteroConstConTipo(ARRAY *array, const void *puntero) ARR_NOEXCEPT;
ARRAYS_API void arr_InsertarPunteroConTipo(ARRAY *array, arr_ulong_t pos,
                                           void *puntero) ARR_NOEXCEPT;
ARRAYS_API void arr_InsertarPunteroConstConTipo(ARRAY *array, arr_ulong_t pos,
                                                const void *puntero) ARR_NOEXCEPT;
ARRAYS_API void arr_SetPunteroConTipo(ARRAY *array, arr_ulong_t pos, void *puntero) ARR_NOEXCEPT;
ARRAYS_API void arr_SetPunteroConstConTipo(ARRAY *array, arr_ulong_t pos,
                                           const void *puntero) ARR_NOEXCEPT;
/* Stores an inner array at pos of an array of arrays (arr_SetPunteroConstConTipo). */
ARRAYS_API void arr_SetPunteroConstArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t pos,
                                                const ARRAY *array) ARR_NOEXCEPT;
/* The pointer stored at pos; NULL when there is no such element. */
ARRAYS_API void *arr_GetPunteroConTipo(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* Removes the element at pos without freeing it (one function under both names). */
ARRAYS_API void arr_BorrarPuntero(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
ARRAYS_API void arr_BorrarPunteroConst(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* Frees the structure at pos through libera (required), then removes the element. */
ARRAYS_API void arr_BorrarEstructuraConTipo(ARRAY *array, arr_ulong_t pos,
                                            arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
/* Destroys the inner array at pos with arr_DestruyeEstructurasConTipo and libera (required),
 * then removes the element. */
ARRAYS_API void arr_BorrarEstructuraArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t pos,
                                                 arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;

/* Shrinks to nuevo_tamanyo (at most the count): libera (if not NULL) is called on every slot cut
 * off; the Const form frees nothing. */
ARRAYS_API void arr_ReduceTamanyoEstructurasConTipo(ARRAY *array, arr_ulong_t nuevo_tamanyo,
                                                    arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;
ARRAYS_API void arr_ReduceTamanyoEstructurasConTipoConst(ARRAY *array,
                                                         arr_ulong_t nuevo_tamanyo) ARR_NOEXCEPT;
/* Shrinks an array of arrays: destroys each non-NULL inner array cut off, with libera. */
ARRAYS_API void arr_ReduceEstructurasArrayConTipo(ARRAY *array_de_arrays, arr_ulong_t nuevo_tamanyo,
                                                  arr_libera_EstructuraConTipo libera) ARR_NOEXCEPT;

/* Position of the first element that is the same pointer (identity, never content), or
 * ARR_ULONG_MAX. */
ARRAYS_API arr_ulong_t arr_BuscarPunteroConTipo(ARRAY *array, const void *puntero) ARR_NOEXCEPT;
/* Position of the first element from 0 (from pos_inicial) for which igualdad(element, dato)
 * holds, or ARR_ULONG_MAX. The Unica forms report a second match and yield the last one. */
ARRAYS_API arr_ulong_t arr_BuscarEstructuraConTipo(ARRAY *array, const void *dato,
                                             arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
ARRAYS_API arr_ulong_t arr_BuscarSiguienteEstructuraConTipo(ARRAY *array, arr_ulong_t pos_inicial,
                                                            const void *dato,
                                                      arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
ARRAYS_API arr_ulong_t arr_BuscarUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/* Found? posicion (if not NULL) gets the position or ARR_ULONG_MAX. */
ARRAYS_API arr_bool_t arr_ExisteEstructuraConTipo(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad,
                                                  arr_ulong_t *posicion) ARR_NOEXCEPT;
ARRAYS_API arr_bool_t arr_ExisteUnicaEstructuraConTipo(ARRAY *array, const void *dato,
                                                       arr_igualdad_PunteroConTipo igualdad,
                                                       arr_ulong_t *posicion) ARR_NOEXCEPT;
/* The element of the unique match (one function under both names); a missing match is
 * reported ("posicion != ULONG_MAX") and yields NULL. */
ARRAYS_API void *nousar_arr_dame_unica_estructura(ARRAY *array, const void *dato,
                                                  arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
ARRAYS_API void *nousar_arr_dame_unica_estructura_const(ARRAY *array, const void *dato,
                                                        arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;

/* Sorts in place with compara (required from 2 elements on); fewer than 2 elements: nothing. */
ARRAYS_API void arr_QSortPunteroConTipo(ARRAY *array,
                                        arr_orden_PunteroConTipo compara) ARR_NOEXCEPT;
ARRAYS_API void arr_QSortPunteroConTipoConst(ARRAY *array,
                                             arr_orden_PunteroConTipo compara) ARR_NOEXCEPT;
/* Same count and igualdad(element of array1, element of array2) at every position. */
ARRAYS_API arr_bool_t arr_SonIgualesPunteroConTipo(ARRAY *array1, ARRAY *array2,
                                             arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;
/* Same count and arr_SonIgualesPunteroConTipo of every pair of inner arrays. */
ARRAYS_API arr_bool_t arr_SonIgualesEstructurasArrayConTipo(ARRAY *array1, ARRAY *array2,
                                                      arr_igualdad_PunteroConTipo igualdad) ARR_NOEXCEPT;

/* A new array whose elements are copia(element) (copia NULL: the same pointers). */
ARRAYS_API ARRAY *arr_CopiaEstructurasConTipo(const ARRAY *array,
                                              arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/* A new array of arrays of the same count: the copy of each inner array, NULL where it is NULL. */
ARRAYS_API ARRAY *arr_CopiaEstructurasArrayConTipo(const ARRAY *array_de_arrays,
                                                   arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/* Appends to dest copia(element) (copia NULL or the Const form: the element itself) of every
 * element of org, which is marked as being read meanwhile; ubicacion and linea name the caller
 * in a report of a traversal of org already running. */
ARRAYS_API void arr_ConcatenaEstructurasConTipo(ARRAY *dest, ARRAY *org,
                                                arr_copia_EstructuraConTipo copia,
                                                const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
ARRAYS_API void arr_ConcatenaEstructurasConTipoConst(ARRAY *dest, ARRAY *org, const char *ubicacion,
                                                     arr_long_t linea) ARR_NOEXCEPT;
/* Appends to dest a copy of each non-NULL inner array of org (NULL ones are skipped). */
ARRAYS_API void arr_ConcatenaEstructurasArrayConTipo(ARRAY *dest, ARRAY *org_de_arrays,
                                                     arr_copia_EstructuraConTipo copia) ARR_NOEXCEPT;
/* Reverses the order of the elements in place. */
ARRAYS_API void arr_nousar_InvierteOrdenPunteroConTipo(ARRAY *array) ARR_NOEXCEPT;

/* Traversals in position order with the array marked busy: accion(stored pointer);
 * accion(&element, datos) (ubicacion and linea name the caller in a report of a traversal
 * already running); accion(stored pointer, datos). */
ARRAYS_API void arr_RecorrePunteroConTipo(ARRAY *array,
                                          arr_opera_PunteroConTipo accion) ARR_NOEXCEPT;
ARRAYS_API void arr_RecorreEstructuraConTipo(ARRAY *array, arr_accion_PunteroConTipo accion,
                                             void *datos, const char *ubicacion,
                                             arr_long_t linea) ARR_NOEXCEPT;
ARRAYS_API void arr_RecorreEstructuraSimpleConTipo(ARRAY *array,
                                                   arr_accion_EstructuraSimpleConTipo accion,
                                                   void *datos) ARR_NOEXCEPT;

/*
 * Ordered search by bisection over an array kept in ascending order under compara(element,
 * datum). An equal element "hit" is the first element if equal, else the last if equal, else the
 * one a midpoint lands on first. Comparison results inconsistent with a sorted array are
 * reported; positions stay between 0 and the count.
 */
/* Where dato goes: the hit, else the first greater element, else the count. ARR_ULONG_MAX when
 * the array or compara cannot be used. */
ARRAYS_API arr_ulong_t arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(
    ARRAY *array, arr_orden_PunteroConTipo compara, const void *dato) ARR_NOEXCEPT;
/* Inserts dato at that position, even when an equal element exists. */
ARRAYS_API void arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(
    ARRAY *array, arr_orden_PunteroConTipo compara, void *dato) ARR_NOEXCEPT;
/* Inserts dato only when no equal element was hit; *encontrado (if not NULL) says whether one was. */
ARRAYS_API void arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(
    ARRAY *array, arr_orden_PunteroConTipo compara, void *dato, arr_bool_t *encontrado) ARR_NOEXCEPT;
/* First and last positions of the run of elements equal to dato, or ARR_ULONG_MAX to both. */
ARRAYS_API void arr_BuscarEstructuraDicotomicamenteConTipo(
    ARRAY *array, const void *dato, arr_orden_PunteroConTipo compara, arr_ulong_t *posPrimerEncontrado,
    arr_ulong_t *posUltimoEncontrado) ARR_NOEXCEPT;
/* TRUE when such a run exists; only then are the positions written, through the non-NULL pointers. */
ARRAYS_API arr_bool_t arr_ExisteEstructuraDicotomicamenteConTipo(
    ARRAY *array, const void *dato, arr_orden_PunteroConTipo compara, arr_ulong_t *posPrimerEncontrado,
    arr_ulong_t *posUltimoEncontrado) ARR_NOEXCEPT;

/* ---- 2D point arrays ------------------------------------------------------------------------ */
/* A 2D point is x, y (two doubles). Searches and whole-array equality take a predicate, sorting
 * takes an ordering comparator (comparac_PRIMERO_MENOR, comparac_IGUALES, comparac_PRIMERO_MAYOR);
 * neither has a default. arr_GetPunto2D, arr_SetPunto2D, arr_BorrarPunto2D,
 * arr_ArraysDePunto2DIguales, arr_GetMinimaxPunto2D and arr_GetSegmentoPunto2D accept a 2D point
 * array with private data as well. arr_DestruyePunto2D, arr_NumElemsPunto2D, arr_CopiaPunto2D,
 * arr_ConcatenaPunto2D, arr_AumentaTamanyoPunto2D and arr_ReduceTamanyoPunto2D are the shared
 * functions above. */
typedef arr_bool_t (*arr_igualdad_Punto2D)(double x1, double y1, double x2, double y2);
typedef int (*arr_orden_Punto2D)(double x1, double y1, double x2, double y2);
typedef arr_bool_t (*arr_accion_Punto2D)(double *x, double *y, void *datos);

/* New array of n points (0, 0). */
ARRAYS_API ARRAY *arr_CreaPunto2D(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/* Appends the point (x, y). */
ARRAYS_API void arr_AppendPunto2D(ARRAY *array, double x, double y) ARR_NOEXCEPT;
/* Inserts (x, y) before pos (pos == count appends). */
ARRAYS_API void arr_InsertarPunto2D(ARRAY *array, arr_ulong_t pos, double x, double y) ARR_NOEXCEPT;
/* Sets every point to (x, y). */
ARRAYS_API void arr_InicializaPunto2D(ARRAY *array, double x, double y) ARR_NOEXCEPT;
/* The point at pos into *x and *y (either may be NULL; with both NULL only checks that the point
 * exists). Also reads a point of a private-data array. */
ARRAYS_API void arr_GetPunto2D(const ARRAY *array, arr_ulong_t pos, double *x,
                               double *y) ARR_NOEXCEPT;
/* Overwrites the point at pos; on a private-data array its data becomes NULL (the old data is
 * not released). Does not refuse an array inside a traversal. */
ARRAYS_API void arr_SetPunto2D(ARRAY *array, arr_ulong_t pos, double x, double y) ARR_NOEXCEPT;
/* Deletes the point at pos, of either kind of 2D point array (private data is not released). */
ARRAYS_API void arr_BorrarPunto2D(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* First position whose point matches (x, y) by the predicate, or ARR_ULONG_MAX. */
ARRAYS_API arr_ulong_t arr_BuscarPunto2D(ARRAY *array, double x, double y,
                                         arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/* The same; a second match is reported and the last match is the result. */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto2D(ARRAY *array, double x, double y,
                                              arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/* Whether a point matches; *posicion (if not NULL) gets its position or ARR_ULONG_MAX. */
ARRAYS_API arr_bool_t arr_ExistePunto2D(ARRAY *array, double x, double y,
                                        arr_igualdad_Punto2D igualdad,
                                        arr_ulong_t *posicion) ARR_NOEXCEPT;
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto2D(ARRAY *array, double x, double y,
                                       arr_igualdad_Punto2D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
/* Sorts in place by the comparator. */
ARRAYS_API void arr_QSortPunto2D(ARRAY *array, arr_orden_Punto2D comparador) ARR_NOEXCEPT;
/* Same count and every pair of points equal by the predicate. */
ARRAYS_API arr_bool_t arr_SonIgualesPunto2D(ARRAY *array1, ARRAY *array2,
                                            arr_igualdad_Punto2D igualdad) ARR_NOEXCEPT;
/* Same count and, point by point, |x1 - x2| <= tolerancia and |y1 - y2| <= tolerancia (a square
 * per coordinate, not a distance). Either array may carry private data. */
ARRAYS_API arr_bool_t arr_ArraysDePunto2DIguales(const ARRAY *array1, const ARRAY *array2,
                                                 double tolerancia) ARR_NOEXCEPT;
/* array1 and array2 are typed pointer arrays whose elements are 2D point arrays: same count
 * and the point arrays at each position equal by arr_ArraysDePunto2DIguales. */
ARRAYS_API arr_bool_t arr_SonIgualesArrPunteroArrPunto2DConTolerancia(const ARRAY *array1,
                                                                      const ARRAY *array2,
                                                                double tolerancia) ARR_NOEXCEPT;
/* Calls accion(&x, &y, datos) for every point in order; ubicacion and linea name the caller in
 * a report of a traversal already running. */
ARRAYS_API void arr_nousar_RecorrePunto2D(ARRAY *array, arr_accion_Punto2D accion, void *datos,
                                          const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/* Moves every point by (dx, dy). */
ARRAYS_API void arr_MoverPunto2D(ARRAY *array, double dx, double dy) ARR_NOEXCEPT;
/* Multiplies both coordinates of every point by factor. */
ARRAYS_API void arr_MultiplicarPunto2D(ARRAY *array, double factor) ARR_NOEXCEPT;
/* Turns every point about (xc, yc) CLOCKWISE by the angle whose sine and cosine are given. */
ARRAYS_API void arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D(ARRAY *array, double xc,
                                                                    double yc, double seno,
                                                                    double coseno) ARR_NOEXCEPT;
/* Turns every point about (xc, yc) by angulo radians, counter-clockwise when positive; an angle
 * of magnitude 1e-5 or less changes nothing. */
ARRAYS_API void arr_GirarPunto2D(ARRAY *array, double xc, double yc, double angulo) ARR_NOEXCEPT;
/* Bounding box into the pointers that are not NULL; the array must not be empty. */
ARRAYS_API void arr_GetMinimaxPunto2D(const ARRAY *array, double *xmin, double *ymin,
                                      double *xmax, double *ymax) ARR_NOEXCEPT;
/* Segment i of the closed polyline: point i and point i + 1, or point 0 after the last. */
ARRAYS_API void arr_GetSegmentoPunto2D(const ARRAY *array, arr_ulong_t i, double *x1, double *y1,
                                       double *x2, double *y2) ARR_NOEXCEPT;
/* A new array with the points in reverse order; the argument is unchanged. */
ARRAYS_API ARRAY *arr_InvertirPunto2D(const ARRAY *array) ARR_NOEXCEPT;

/* ---- 2D points with private data ------------------------------------------------------------ */
/* A point x, y carrying one pointer of the caller's private data, which the library never
 * dereferences: it is released only by the destroy function given to arr_DestruyePunto2DXPriv or
 * arr_ReduceTamanyoPunto2DXPriv (which must leave it NULL), copied only by the copy function
 * given to the copy and concatenation, and must be NULL when the array is destroyed or shrunk
 * otherwise. Use arr_NumElemsPunto2D for the count and arr_GetPunto2D / arr_SetPunto2D /
 * arr_BorrarPunto2D on these arrays too. */
typedef arr_bool_t (*arr_igualdad_Punto2DXPriv)(double x1, double y1, void *datos1, double x2,
                                          double y2, void *datos2);
typedef int (*arr_orden_Punto2DXPriv)(double x1, double y1, void *datos1, double x2, double y2,
                                      void *datos2);
typedef arr_bool_t (*arr_accion_Punto2DXPriv)(double *x, double *y, void **datos_punto,
                    void *datos);
/* Returns the copy of a point's data. */
typedef void *(*arr_copia_datos_Punto2DXPriv)(void *datos);
/* Releases a point's data and sets *datos to NULL. */
typedef void (*arr_destruye_datos_Punto2DXPriv)(void **datos);

/* New array of n points (0, 0) with NULL data. */
ARRAYS_API ARRAY *arr_CreaPunto2DXPriv(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/* Appends (x, y) with its data. */
ARRAYS_API void arr_AppendPunto2DXPriv(ARRAY *array, double x, double y, void *datos) ARR_NOEXCEPT;
/* Inserts (x, y, datos) before pos (pos == count appends). */
ARRAYS_API void arr_InsertarPunto2DXPriv(ARRAY *array, arr_ulong_t pos, double x, double y,
                                         void *datos) ARR_NOEXCEPT;
/* The point at pos: x and y must not be NULL; datos may be. */
ARRAYS_API void arr_GetPunto2DXPriv(const ARRAY *array, arr_ulong_t pos, double *x, double *y,
                                    void **datos) ARR_NOEXCEPT;
/* Overwrites the point at pos, data included; the old data is not released. */
ARRAYS_API void arr_SetPunto2DXPriv(ARRAY *array, arr_ulong_t pos, double x, double y,
                                    void *datos) ARR_NOEXCEPT;
/* Deletes the point at pos; its data is not released. */
ARRAYS_API void arr_BorrarPunto2DXPriv(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* First position whose point matches (x, y, datos) by the predicate, or ARR_ULONG_MAX. */
ARRAYS_API arr_ulong_t arr_BuscarPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                              arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/* The same; a second match is reported and the last match is the result. */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                                   arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/* Whether a point matches; *posicion (if not NULL) gets its position or ARR_ULONG_MAX. */
ARRAYS_API arr_bool_t arr_ExistePunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                             arr_igualdad_Punto2DXPriv igualdad,
                                             arr_ulong_t *posicion) ARR_NOEXCEPT;
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto2DXPriv(ARRAY *array, double x, double y, void *datos,
                                                  arr_igualdad_Punto2DXPriv igualdad,
                                                  arr_ulong_t *posicion) ARR_NOEXCEPT;
/* Sorts in place by the comparator. */
ARRAYS_API void arr_QSortPunto2DXPriv(ARRAY *array, arr_orden_Punto2DXPriv comparador) ARR_NOEXCEPT;
/* Same count and every pair of points equal by the predicate. */
ARRAYS_API arr_bool_t arr_SonIgualesPunto2DXPriv(ARRAY *array1, ARRAY *array2,
                                                 arr_igualdad_Punto2DXPriv igualdad) ARR_NOEXCEPT;
/* Calls accion(&x, &y, &datos_punto, datos) for every point in order. */
ARRAYS_API void arr_RecorrePunto2DXPriv(ARRAY *array, arr_accion_Punto2DXPriv accion,
                                        void *datos) ARR_NOEXCEPT;
/* Moves every point by (dx, dy). */
ARRAYS_API void arr_MoverPunto2DXPriv(ARRAY *array, double dx, double dy) ARR_NOEXCEPT;
/* Multiplies both coordinates of every point by factor. */
ARRAYS_API void arr_MultiplicarPunto2DXPriv(ARRAY *array, double factor) ARR_NOEXCEPT;
/* Turns every point about (xc, yc) COUNTER-CLOCKWISE by the angle whose sine and cosine are
 * given (the opposite sense of arr_Girar_en_sentido_horirario_seno_y_cosenoPunto2D). */
ARRAYS_API void arr_Girar_seno_y_cosenoPunto2DXPriv(ARRAY *array, double xc, double yc,
                                                    double seno, double coseno) ARR_NOEXCEPT;
/* Turns every point about (xc, yc) by angulo radians, counter-clockwise when positive; an angle
 * of magnitude 1e-5 or less changes nothing. */
ARRAYS_API void arr_GirarPunto2DXPriv(ARRAY *array, double xc, double yc,
                                      double angulo) ARR_NOEXCEPT;
/* A new array with the points in reverse order and NULL data; every point with data is
 * reported, as such arrays are not meant to be reversed. */
ARRAYS_API ARRAY *arr_InvertirPunto2DXPriv(const ARRAY *array) ARR_NOEXCEPT;
/* TRUE when some point has data that is not NULL. */
ARRAYS_API arr_bool_t arr_TieneDatosExtrasAlgunPunto2DXPriv(ARRAY *array) ARR_NOEXCEPT;
/* Applies destruye (when not NULL) to every point's data, then destroys the array and sets
 * *array to NULL. */
ARRAYS_API void arr_DestruyePunto2DXPriv(ARRAY **array,
                                         arr_destruye_datos_Punto2DXPriv destruye) ARR_NOEXCEPT;
/* Shrinks to nuevo_tamanyo points, applying destruye (when not NULL) to the data of the points
 * cut off. */
ARRAYS_API void arr_ReduceTamanyoPunto2DXPriv(ARRAY *array, arr_ulong_t nuevo_tamanyo,
                                              arr_destruye_datos_Punto2DXPriv destruye) ARR_NOEXCEPT;
/* A new array with the points of array; each point's data is copia(datos), or the same pointer
 * when copia is NULL (then only one of the two arrays may release it). ubicacion and linea name
 * the caller in a report of a traversal already running. */
ARRAYS_API ARRAY *arr_CopiaPunto2DXPriv_nousar(ARRAY *array, arr_copia_datos_Punto2DXPriv copia,
                                               const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;
/* Appends org's points to dest, with data as in arr_CopiaPunto2DXPriv_nousar. */
ARRAYS_API void arr_ConcatenaPunto2DXPriv_nousar(ARRAY *dest, ARRAY *org,
                                                 arr_copia_datos_Punto2DXPriv copia,
                                                 const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;

/* ---- 3D point arrays ------------------------------------------------------------------------ */
/* A 3D point is x, y, z (three doubles). Searches and equality take a predicate, sorting an
 * ordering comparator; neither has a default. arr_DestruyePunto3D, arr_NumElemsPunto3D,
 * arr_CopiaPunto3D, arr_ConcatenaPunto3D, arr_AumentaTamanyoPunto3D and arr_ReduceTamanyoPunto3D
 * are the shared functions above. */
typedef arr_bool_t (*arr_igualdad_Punto3D)(double x1, double y1, double z1, double x2, double y2,
                                     double z2);
typedef int (*arr_orden_Punto3D)(double x1, double y1, double z1, double x2, double y2, double z2);
typedef arr_bool_t (*arr_accion_Punto3D)(double *x, double *y, double *z, void *datos);

/* New array of n points (0, 0, 0). */
ARRAYS_API ARRAY *arr_CreaPunto3D(arr_ulong_t tamanyo_inicial) ARR_NOEXCEPT;
/* Appends (x, y, z). */
ARRAYS_API void arr_AppendPunto3D(ARRAY *array, double x, double y, double z) ARR_NOEXCEPT;
/* Inserts (x, y, z) before pos (pos == count appends). */
ARRAYS_API void arr_InsertarPunto3D(ARRAY *array, arr_ulong_t pos, double x, double y,
                                    double z) ARR_NOEXCEPT;
/* The point at pos into the pointers that are not NULL (with all NULL only checks that it
 * exists). */
ARRAYS_API void arr_GetPunto3D(const ARRAY *array, arr_ulong_t pos, double *x, double *y,
                               double *z) ARR_NOEXCEPT;
/* Overwrites the point at pos. */
ARRAYS_API void arr_SetPunto3D(ARRAY *array, arr_ulong_t pos, double x, double y,
                               double z) ARR_NOEXCEPT;
/* Deletes the point at pos. */
ARRAYS_API void arr_BorrarPunto3D(ARRAY *array, arr_ulong_t pos) ARR_NOEXCEPT;
/* First position whose point matches (x, y, z) by the predicate, or ARR_ULONG_MAX. */
ARRAYS_API arr_ulong_t arr_BuscarPunto3D(ARRAY *array, double x, double y, double z,
                                         arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/* The same; a second match is reported and the last match is the result. */
ARRAYS_API arr_ulong_t arr_BuscarUnicoPunto3D(ARRAY *array, double x, double y, double z,
                                              arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/* Whether a point matches; *posicion (if not NULL) gets its position or ARR_ULONG_MAX. */
ARRAYS_API arr_bool_t arr_ExistePunto3D(ARRAY *array, double x, double y, double z,
                                  arr_igualdad_Punto3D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
ARRAYS_API arr_bool_t arr_ExisteUnicoPunto3D(ARRAY *array, double x, double y, double z,
                                       arr_igualdad_Punto3D igualdad, arr_ulong_t *posicion) ARR_NOEXCEPT;
/* Sorts in place by the comparator. */
ARRAYS_API void arr_QSortPunto3D(ARRAY *array, arr_orden_Punto3D comparador) ARR_NOEXCEPT;
/* Same count and every pair of points equal by the predicate. */
ARRAYS_API arr_bool_t arr_SonIgualesPunto3D(ARRAY *array1, ARRAY *array2,
                                            arr_igualdad_Punto3D igualdad) ARR_NOEXCEPT;
/* Same count and, point by point, no coordinate differing by more than tolerancia (a box per
 * coordinate, not a distance). */
ARRAYS_API arr_bool_t arr_SonIgualesPunto3DConTolerancia(const ARRAY *array1, const ARRAY *array2,
                                                         double tolerancia) ARR_NOEXCEPT;
/* A new array with the points in reverse order; the argument is unchanged. */
ARRAYS_API ARRAY *arr_InvertirPunto3D(const ARRAY *array) ARR_NOEXCEPT;
/* Calls accion(&x, &y, &z, datos) for every point in order; ubicacion and linea name the caller
 * in a report of a traversal already running. */
ARRAYS_API void arr_nousar_RecorrePunto3D(ARRAY *array, arr_accion_Punto3D accion, void *datos,
                                          const char *ubicacion, arr_long_t linea) ARR_NOEXCEPT;

/* ---- Plane geometry on 2D point arrays ------------------------------------------------------ */
/* Arcs, ellipses and circles appended as polylines, and measures and edits of a polyline. Every
 * function works on a 2D point array of either kind (plain or with private data; generated points
 * get NULL data). Angles are radians, counter-clockwise from the positive x axis. sentido 0 runs
 * counter-clockwise; the circular arcs and the circle take any other value as clockwise, the
 * ellipses only 1 (pass 0 or 1). */

/* Appends the arc about (xc, yc) from (x1, y1) to (x2, y2), both given points included as they
 * are, with steps no longer than those of a circle of num_puntos points (at least 3) dividing the
 * arc evenly; an arc shorter than 1.1 such steps gets only its two ends. When the ends lie at
 * different distances from the centre the radius changes linearly with the angle. */
ARRAYS_API void arr_AnyadirArcoPunto2D(ARRAY *array, double xc, double yc, double x1, double y1,
                                       double x2, double y2, arr_short_t sentido,
                                       arr_ulong_t num_puntos) ARR_NOEXCEPT;
/* The same arc in exactly num_puntos points (at least 2), both ends included. */
ARRAYS_API void arr_AnyadirArcoPunto2D_numPuntosArco(ARRAY *array, double xc, double yc,
                                                     double x1, double y1, double x2, double y2,
                                                     arr_short_t sentido, arr_ulong_t num_puntos) ARR_NOEXCEPT;
/* The same arc with enough points that no side exceeds longitud_maxima_lado (> 0) on the larger
 * of the two radii, and no fewer than a circle of num_puntos points would give it; at least 2. */
ARRAYS_API void arr_AnyadirArcoPunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double x1, double y1, double x2, double y2, arr_short_t sentido,
    arr_ulong_t num_puntos, double longitud_maxima_lado) ARR_NOEXCEPT;
/* Appends the arc of the ellipse about (xc, yc) with semi-axes semieje_x, semieje_y, turned
 * counter-clockwise by angulo_giro, from the eccentric angle angulo_inicial to angulo_final (the
 * ellipse's own angles, before the turn), a step of 2 pi / num_puntos apart. Equal angles give one
 * point; angles a turn apart give the whole closed ellipse. A point closer than 1e-5 to the one
 * before it is left out. */
ARRAYS_API void arr_AnyadirArcoElipsePunto2D(ARRAY *array, double xc, double yc, double semieje_x,
                                             double semieje_y, double angulo_inicial,
                                             double angulo_final, double angulo_giro,
                                             arr_short_t sentido, arr_ulong_t num_puntos) ARR_NOEXCEPT;
/* The same arc, its step set by longitud_maxima_lado (> 0) on the larger semi-axis and by a
 * circle of num_puntos points, whichever gives more points, and at most 10000 points. */
ARRAYS_API void arr_AnyadirArcoElipsePunto2D_con_longitud_maxima_lado(
    ARRAY *array, double xc, double yc, double semieje_x, double semieje_y, double angulo_inicial,
    double angulo_final, double angulo_giro, arr_short_t sentido, arr_ulong_t num_puntos,
    double longitud_maxima_lado) ARR_NOEXCEPT;
/* Appends to an empty array the circle about (xc, yc) of radius radio as numPtosCirculo points
 * (at least 3) from (xc + radio, yc), counter-clockwise for sentido 0 and mirrored otherwise;
 * the first point is not repeated at the end. */
ARRAYS_API void arr_AnyadirCirculoPunto2D(ARRAY *array, double xc, double yc, double radio,
                                          arr_short_t sentido, arr_ulong_t numPtosCirculo) ARR_NOEXCEPT;

/* Signed area of the polygon closed from the last point back to the first: positive when the
 * points run counter-clockwise, negative clockwise, 0.0 for fewer than three points. */
ARRAYS_API double arr_CalcularAreaPunto2D(const ARRAY *array) ARR_NOEXCEPT;
/* Length of the open polyline. *indice_lado_mayor gets the index of the first point of its
 * longest side (the first of equal ones) and *longitud_lado_mayor that side's length; with fewer
 * than two points 0 is returned, with ARR_ULONG_MAX and -1.0. Either pointer may be NULL. */
ARRAYS_API double arr_LongitudPunto2D(const ARRAY *array, arr_ulong_t *indice_lado_mayor,
                                      double *longitud_lado_mayor) ARR_NOEXCEPT;
/* Distance from (x, y) to the open polyline (to its only point when it has one); the nearest
 * point of the polyline goes to the pointers that are not NULL. The array must not be empty. */
ARRAYS_API double arr_DistanciaDePuntoAPolilineaAbiertaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) ARR_NOEXCEPT;
/* The same for the polyline closed by a side from its last point back to the first. */
ARRAYS_API double arr_DistanciaDePuntoAPolilineaCerradaPunto2D(const ARRAY *array, double x,
                                                               double y, double *x_cercano,
                                                               double *y_cercano) ARR_NOEXCEPT;
/* The point of the array nearest to (x, y) (the lowest index among equally near ones): its
 * coordinates, index and distance go to the pointers that are not NULL. The array must not be
 * empty. */
ARRAYS_API void arr_IndicePolilineaMasCercanoAPuntoReferenciaPunto2D(
    const ARRAY *array, double x, double y, double *x_cercano, double *y_cercano, arr_ulong_t *indice,
    double *distancia) ARR_NOEXCEPT;
/* Deletes every point equal to the one before it (each coordinate within 1e-9); the first and
 * last points are not compared with each other. *num_eliminados (if not NULL) gets how many. */
ARRAYS_API void arr_EliminarPuntosContiguosRepetidosPunto2D(ARRAY *array,
                                                            arr_ulong_t *num_eliminados) ARR_NOEXCEPT;
/* Deletes, from the start, every point closer than tolerancia to the line through its two
 * neighbours (the neighbours as they are after earlier deletions); point 0 always stays. With
 * cerrada 1 the polyline is taken as closed back to point 0: that needs a plain 2D point array
 * (one with private data is refused) that is not empty. */
ARRAYS_API void arr_eliminar_contenidos_entre_dos_puntos_polilinea_Punto2D(
    ARRAY *array, arr_short_t cerrada, double tolerancia) ARR_NOEXCEPT;

/* ---- Looking into arrays from outside: the debug dump and shared-memory publishing -------- */
/* For single-threaded debugging use: the module's buffers and tables are shared by every caller
 * and nothing is locked. A handle that is NULL, destroyed or points into memory that cannot be
 * read never faults here: each function reads the handle through a probe first, then asks
 * arryprv_es_array_correcto. Bit arrays are refused by that query, so the queries give them the
 * answers of an invalid array; their dump is the header line (with the count of bits) and
 * "\r\nTipo de array no implementado.\r\n". The narrow texts are Windows-1252 bytes (the
 * accented letters of "direcci\xF3n no v\xE1lida" are the bytes 0xE1 and 0xF3). */

/* Replaces the sinks of the debugger output: `estrecha` receives every narrow text, `ancha` the
 * lines of wide string elements (UTF-16). NULL restores a default: on Windows
 * OutputDebugStringA / OutputDebugStringW, elsewhere standard error in UTF-8 (a narrow text that
 * is valid UTF-8 as it is, any other converted from Windows-1252). */
ARRAYS_API void debugarr_set_salida(void (*estrecha)(const char *texto),
                                    void (*ancha)(const arr_wchar_t *texto)) ARR_NOEXCEPT;

/* Lists `array` on the debugger output: "\r\nArray de N elementos:\r\n", then one text per
 * element: "[i]: value\r\n" with i counted from 1 (BYTE, UChar and Char as 0 to 255, BOOL as
 * CIERTO or FALSO, doubles with six decimals, strings between double quotes through the wide sink
 * for wide strings), 2D points as "[%2d]: \tx=..., \ty=...\r\n" counted from 0, 3D points with
 * z as well and counted from 1; lines longer than 65,535 characters are cut. Typed pointer (and
 * bit) arrays print "\r\nTipo de array no implementado.\r\n" after the header line. A NULL
 * handle prints "\r\nArray es NULL.\r\n", an unreadable one "\r\nArray con direcci\xF3n no
 * v\xE1lida.\r\n"; any other handle that is not a live array prints nothing. */
ARRAYS_API void debugarr_outputDebug(const ARRAY *array) ARR_NOEXCEPT;

/* Publishes a copy of `array`'s elements in the named shared-memory block
 * "MemComp_ZarpTools_debugarr_<identificador>" (the identifier printed as a signed 32-bit
 * number), for another process to open: 4 bytes with the number of data bytes, 4 bytes with
 * the element size (both little-endian), then the elements one after another (string elements
 * as the pointers of this process; 2D points with private data as the scratch buffer held). On
 * POSIX the block is the shared-memory object "/MemComp_ZarpTools_debugarr_<identificador>",
 * mode 0600; a name that exists and is not a regular object of this user is refused. The block
 * takes the next of 100 slots in turn; a slot taken again leaves the block it held published
 * until the process ends. Messages as for debugarr_outputDebug; an invalid array, an empty
 * array before any copy was made, a copy above 4 GiB or a block that cannot be made publish
 * nothing, silently. */
ARRAYS_API void debugarr_ini_serializa(const ARRAY *array, arr_ulong_t identificador) ARR_NOEXCEPT;

/* Closes the block published under `identificador` (the first slot that holds it) and takes its
 * name away unless another published block shares it. 0 when no slot holds the identifier;
 * otherwise a value that carries no further meaning. */
ARRAYS_API int debugarr_fin_serializa(arr_ulong_t identificador) ARR_NOEXCEPT;

/* Writes the element count of `array` into the 12-byte block
 * "MemComp_ZarpTools_serializa_num_elems" (count, 0, 0), made at the first use and kept for the
 * life of the process. An array that is not valid writes 0xFFFFFFFF and prints "\r\nArray
 * acadorde no v\xE1lido.\r\n"; NULL prints "\r\nArray acadorde es NULL.\r\n"; a block that
 * cannot be made prints "\r\n(debugarr) Error en memoria compartida
 * 'MemComp_ZarpTools_serializa_num_elems'.\r\n". */
ARRAYS_API void debugarr_serializa_num_elems_array(const ARRAY *array) ARR_NOEXCEPT;

/* The elements of `array` one after another in the module's scratch buffer, which stays valid
 * until the buffer has grown twice more; NULL for an array that is not valid, and for an empty
 * array while no buffer was ever made. */
ARRAYS_API void *debugarr_elems(const ARRAY *array) ARR_NOEXCEPT;

/* The element count of `array`; 0 when it is not valid. */
ARRAYS_API arr_ulong_t debugarr_num_elems(const ARRAY *array) ARR_NOEXCEPT;

/* The element type tag of `array`; 0xFFFFFFFF when it is not valid. */
ARRAYS_API arr_ulong_t debugarr_tipo_array(const ARRAY *array) ARR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ARRAYS_H */
