// Element access of pointer arrays: append, insert, overwrite, read and delete one pointer. None
// of them frees what a pointer points to.
#include "families/a_punter.h"

namespace {

void anyade(ARRAY *array, const void *puntero)
{
    if (punteros_hay_array(array))
        arrayprv_append(array, &puntero, elem_PUNTERO_NO_USAR);
}

void inserta(ARRAY *array, ULONG pos, const void *puntero)
{
    if (punteros_hay_array(array))
        arrayprv_inserta(array, pos, &puntero, elem_PUNTERO_NO_USAR);
}

void pon(ARRAY *array, ULONG pos, const void *puntero)
{
    if (punteros_hay_array(array))
        arrayprv_set(array, pos, &puntero, elem_PUNTERO_NO_USAR);
}

} // namespace

extern "C" void arr_AppendPunteroConTipo(ARRAY *array, void *puntero) noexcept
{
    anyade(array, puntero);
}

extern "C" void arr_AppendPunteroConstConTipo(ARRAY *array, const void *puntero) noexcept
{
    anyade(array, puntero);
}

extern "C" void arr_InsertarPunteroConTipo(ARRAY *array, ULONG pos, void *puntero) noexcept
{
    inserta(array, pos, puntero);
}

extern "C" void arr_InsertarPunteroConstConTipo(ARRAY *array, ULONG pos, const void *puntero) noexcept
{
    inserta(array, pos, puntero);
}

extern "C" void arr_SetPunteroConTipo(ARRAY *array, ULONG pos, void *puntero) noexcept
{
    pon(array, pos, puntero);
}

extern "C" void arr_SetPunteroConstConTipo(ARRAY *array, ULONG pos, const void *puntero) noexcept
{
    pon(array, pos, puntero);
}

extern "C" void *arr_GetPunteroConTipo(ARRAY *array, ULONG pos) noexcept
{
    return punteros_hay_array(array) ? punteros_get(array, pos) : nullptr;
}

extern "C" void arr_BorrarPuntero(ARRAY *array, ULONG pos) noexcept
{
    if (punteros_hay_array(array))
        arrayprv_borra(array, pos, elem_PUNTERO_NO_USAR);
}
extern "C" __attribute__((alias("arr_BorrarPuntero"))) decltype(arr_BorrarPuntero) arr_BorrarPunteroConst;
