// The operations that every family shares: one function each, exported under every family's
// name as symbol aliases (so the names have one address).
#include "core/comparadores.h"

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

// Exports `nombre` as a second name of the function `destino` of this file.
#define ARR_ALIAS(nombre, destino)                                                                \
    extern "C" __attribute__((alias(#destino))) decltype(destino) nombre;

#define ARR_ALIAS_FAMILIA_ESCALAR(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, RECORRE)          \
    ARR_ALIAS(arr_Destruye##F, arr_destruye_comun)                                                \
    ARR_ALIAS(arr_NumElems##F, arr_num_elems_comun)                                               \
    ARR_ALIAS(arr_Copia##F, arr_copia_comun)                                                      \
    ARR_ALIAS(arr_Concatena##F, arr_concatena_comun)                                              \
    AUMENTA(ARR_ALIAS(arr_AumentaTamanyo##F, arr_aumenta_tamanyo_comun))                          \
    REDUCE(ARR_ALIAS(arr_ReduceTamanyo##F, arr_reduce_tamanyo_comun))

ARR_FAMILIAS_ESCALARES(ARR_ALIAS_FAMILIA_ESCALAR)
