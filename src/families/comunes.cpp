// The operations that every family shares: one function each, exported under every family's
// name as symbol aliases (so the names have one address).
#include "core/comparadores.h"
#include "families/alias.h"
#include "families/tabla_familias.h"

// The shared bodies; hidden, reached only through their exported names.
extern "C" void arr_destruye_comun(ARRAY **array) noexcept { arrayprv_destruye(array); }
extern "C" ULONG arr_num_elems_comun(const ARRAY *array) noexcept
{
    return arrayprv_num_elems(array);
}
extern "C" ARRAY *arr_copia_comun(const ARRAY *array) noexcept
{
    return arrayprv_copia(array, nullptr);
}
extern "C" void arr_concatena_comun(ARRAY *dest, const ARRAY *org) noexcept
{
    arrayprv_concatena(dest, org);
}
extern "C" void arr_aumenta_tamanyo_comun(ARRAY *array, ULONG nuevo_tamanyo) noexcept
{
    arrayprv_aumenta_tamanyo(array, nuevo_tamanyo);
}
extern "C" void arr_reduce_tamanyo_comun(ARRAY *array, ULONG nuevo_tamanyo) noexcept
{
    arrayprv_reduce_tamanyo(array, nuevo_tamanyo);
}

#define ARR_ALIAS_FAMILIA_ESCALAR(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, SUMAR, SUMATORIO, \
                                  RECORRE)                                                        \
    ARR_ALIAS(arr_Destruye##F, arr_destruye_comun)                                                \
    ARR_ALIAS(arr_NumElems##F, arr_num_elems_comun)                                               \
    ARR_ALIAS(arr_Copia##F, arr_copia_comun)                                                      \
    ARR_ALIAS(arr_Concatena##F, arr_concatena_comun)                                              \
    AUMENTA(ARR_ALIAS(arr_AumentaTamanyo##F, arr_aumenta_tamanyo_comun))                          \
    REDUCE(ARR_ALIAS(arr_ReduceTamanyo##F, arr_reduce_tamanyo_comun))

ARR_FAMILIAS_ESCALARES(ARR_ALIAS_FAMILIA_ESCALAR)

#define ARR_ALIAS_DESTRUYE(nombre) ARR_ALIAS(nombre, arr_destruye_comun)
#define ARR_ALIAS_NUMELEMS(nombre) ARR_ALIAS(nombre, arr_num_elems_comun)
#define ARR_ALIAS_COPIA(nombre) ARR_ALIAS(nombre, arr_copia_comun)
#define ARR_ALIAS_CONCATENA(nombre) ARR_ALIAS(nombre, arr_concatena_comun)
#define ARR_ALIAS_AUMENTA(nombre) ARR_ALIAS(nombre, arr_aumenta_tamanyo_comun)
#define ARR_ALIAS_REDUCE(nombre) ARR_ALIAS(nombre, arr_reduce_tamanyo_comun)
ARR_NOMBRES_DESTRUYE(ARR_ALIAS_DESTRUYE)
ARR_NOMBRES_NUMELEMS(ARR_ALIAS_NUMELEMS)
ARR_NOMBRES_COPIA(ARR_ALIAS_COPIA)
ARR_NOMBRES_CONCATENA(ARR_ALIAS_CONCATENA)
ARR_NOMBRES_AUMENTA(ARR_ALIAS_AUMENTA)
ARR_NOMBRES_REDUCE(ARR_ALIAS_REDUCE)
