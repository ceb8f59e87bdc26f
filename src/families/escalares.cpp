// The exports of every scalar family, one table line each (ARR_FAMILIAS_ESCALARES, written from
// tools/familias.py).
#include "families/alias.h"
#include "families/familia_escalar.h"
#include "families/tabla_familias.h"

// The predicate a search or an equality passes on, by how the family compares.
#define ARR_IGUALDAD_DE_ARR_BOOLEANO nullptr
#define ARR_IGUALDAD_DE_ARR_ENTERO igualdad
#define ARR_IGUALDAD_DE_ARR_REAL igualdad
#define ARR_IGUALES_DE_ARR_BOOLEANO nullptr
#define ARR_IGUALES_DE_ARR_ENTERO nullptr
#define ARR_IGUALES_DE_ARR_REAL igualdad

#define ARR_DEFINE_FAMILIA_ESCALAR(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR,          \
                                   SUMATORIO, RECORRE)                                            \
    extern "C" ARRAY *arr_Crea##F(ULONG tamanyo_inicial) noexcept                                 \
    {                                                                                             \
        return FamiliaEscalar<TAG>::crea(tamanyo_inicial);                                        \
    }                                                                                             \
    extern "C" void arr_Append##F(ARRAY *array, T valor) noexcept                                 \
    {                                                                                             \
        FamiliaEscalar<TAG>::append(array, valor);                                                \
    }                                                                                             \
    APPENDN(extern "C" void arr_AppendN##F##s(ARRAY *array, ULONG num_veces, T valor) noexcept {  \
        FamiliaEscalar<TAG>::append_n(array, num_veces, valor);                                   \
    })                                                                                            \
    extern "C" void arr_Insertar##F(ARRAY *array, ULONG pos, T valor) noexcept                    \
    {                                                                                             \
        FamiliaEscalar<TAG>::inserta(array, pos, valor);                                          \
    }                                                                                             \
    extern "C" void arr_Borrar##F(ARRAY *array, ULONG pos) noexcept                               \
    {                                                                                             \
        FamiliaEscalar<TAG>::borra(array, pos);                                                   \
    }                                                                                             \
    extern "C" T arr_Get##F(ARRAY *array, ULONG pos) noexcept                                     \
    {                                                                                             \
        return FamiliaEscalar<TAG>::get(array, pos);                                              \
    }                                                                                             \
    extern "C" void arr_Set##F(ARRAY *array, ULONG pos, T valor) noexcept                         \
    {                                                                                             \
        FamiliaEscalar<TAG>::set(array, pos, valor);                                              \
    }                                                                                             \
    extern "C" void arr_Inicializa##F(ARRAY *array, T valor) noexcept                             \
    {                                                                                             \
        FamiliaEscalar<TAG>::inicializa(array, valor);                                            \
    }                                                                                             \
    extern "C" ULONG arr_Buscar##F(ARRAY *array, T valor ARR_BUSCA_CON_##COMPARA(F)) noexcept     \
    {                                                                                             \
        return FamiliaEscalar<TAG>::busca(array, valor, ARR_IGUALDAD_DE_##COMPARA, FALSO);        \
    }                                                                                             \
    extern "C" ULONG arr_BuscarUnico##F(ARRAY *array, T valor ARR_BUSCA_CON_##COMPARA(F)) noexcept \
    {                                                                                             \
        return FamiliaEscalar<TAG>::busca(array, valor, ARR_IGUALDAD_DE_##COMPARA, CIERTO);       \
    }                                                                                             \
    extern "C" BOOL arr_Existe##F(ARRAY *array, T valor ARR_BUSCA_CON_##COMPARA(F),               \
                                  ULONG *posicion) noexcept                                       \
    {                                                                                             \
        return FamiliaEscalar<TAG>::existe(array, valor, ARR_IGUALDAD_DE_##COMPARA, posicion,     \
                                           FALSO);                                                \
    }                                                                                             \
    extern "C" BOOL arr_ExisteUnico##F(ARRAY *array, T valor ARR_BUSCA_CON_##COMPARA(F),          \
                                       ULONG *posicion) noexcept                                  \
    {                                                                                             \
        return FamiliaEscalar<TAG>::existe(array, valor, ARR_IGUALDAD_DE_##COMPARA, posicion,     \
                                           CIERTO);                                               \
    }                                                                                             \
    extern "C" void arr_QSort##F(ARRAY *array, arr_orden_##F comparador) noexcept                 \
    {                                                                                             \
        FamiliaEscalar<TAG>::ordena(array, comparador);                                           \
    }                                                                                             \
    extern "C" BOOL arr_SonIguales##F(ARRAY *array1,                                              \
                                      ARRAY *array2 ARR_IGUALES_CON_##COMPARA(F)) noexcept        \
    {                                                                                             \
        return FamiliaEscalar<TAG>::son_iguales(array1, array2, ARR_IGUALES_DE_##COMPARA);        \
    }                                                                                             \
    RECORRE(extern "C" void arr_nousar_Recorre##F(ARRAY *array, arr_accion_##F accion,            \
                                                  void *datos, const char *ubicacion,             \
                                                  LONG linea) noexcept {                          \
        FamiliaEscalar<TAG>::recorre(array, accion, datos, ubicacion, linea);                     \
    })

ARR_FAMILIAS_ESCALARES(ARR_DEFINE_FAMILIA_ESCALAR)

// The arulong_ and arulong64_ names that are the very same functions as the ULong and ULong64
// ones above.
ARR_NOMBRES_ARULONG(ARR_ALIAS, arulong, ULong)
ARR_NOMBRES_ARULONG(ARR_ALIAS, arulong64, ULong64)
