// The exports of every scalar family, one table line each (ARR_FAMILIAS_ESCALARES in arrays.h).
#include "families/familia_escalar.h"

#define ARR_DEFINE_FAMILIA_ESCALAR(F, T, TAG, APPENDN, AUMENTA, REDUCE, RECORRE)                  \
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
    RECORRE(extern "C" void arr_nousar_Recorre##F(ARRAY *array, arr_accion_##F accion,            \
                                                  void *datos, const char *ubicacion,             \
                                                  LONG linea) noexcept {                          \
        FamiliaEscalar<TAG>::recorre(array, accion, datos, ubicacion, linea);                     \
    })

ARR_FAMILIAS_ESCALARES(ARR_DEFINE_FAMILIA_ESCALAR)
