// Creation and ownership of pointer and structure arrays: the own creation path of tag
// elem_PUNTERO_NO_USAR, and the destruction, shrinking and deletion that release structures
// through the caller's `libera`.
#include "core/guia.h"
#include "families/a_punter.h"

#include "services/informes.h"
#include "services/memoria.h"

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

// Shrinks to `nuevo_tamanyo`; with `libera`, each slot cut off is released first.
void reduce_estructuras(ARRAY *array, ULONG nuevo_tamanyo, void (*libera)(void **elemento))
{
    if (!punteros_entrada(array, true, Modo::estricto))
        return;
    ARR_EXIGE(nuevo_tamanyo <= array->num_elems, "nuevo_tamanyo <= array->num_elems");
    if (nuevo_tamanyo >= array->num_elems)
        return;
    if (libera != nullptr)
        arrayprv_opera_direccion_desde(array, nuevo_tamanyo, libera);
    arrayprv_recorta(array, nuevo_tamanyo);
}

} // namespace

void punteros_destruye_estructuras(ARRAY **array, void (*libera)(void **elemento))
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !punteros_entrada(*array, true, Modo::estricto, TEXTOS_HANDLE,
                          "(*array)->tipo_elem == elem_PUNTERO_NO_USAR"))
        return;
    if ((*array)->num_elems > 0 && libera != nullptr)
        arrayprv_opera_direccion_todos(*array, libera);
    arrayprv_libera_filas(*array);
    (*array)->mascara_debug = 0;
    zarpspy_libera_cabecera(array);
}

extern "C" ARRAY *arr_CreaPunteroConTipoEx(ULONG n, ULONG long_fila_en_bytes) noexcept
{
    ARRAY *array = arrayprv_reserva_cabecera();
    array->tipo_elem = elem_PUNTERO_NO_USAR;
    array->long_max_fila_en_bytes = long_fila_en_bytes;
    array->size_elem = sizeof(void *);
    array->long_max_fila_en_elem = long_fila_en_bytes / sizeof(void *);
    array->num_elems = 0;
    array->num_filas = 0;
    array->buffer = nullptr;
    array->max_long_filas = nullptr;
    array->long_filas = nullptr;
    array->acumulado_filas = nullptr;
    array->num_bits = 0;
    // Rows are zeroed, so the new elements are NULL pointers.
    if (ARR_EXIGE(array->long_max_fila_en_elem > 0, "array->long_max_fila_en_elem > 0") && n > 0)
        arrayprv_anyade_filas(array, n);
    array->mascara_debug = MASCARA_DEBUG;
    array->en_bucle = FALSO;
    array->en_bucle_lectura = FALSO;
    return array;
}

extern "C" ARRAY *arr_CreaPunteroConTipo(ULONG n) noexcept
{
    return arr_CreaPunteroConTipoEx(n, LONG_FILA_POR_DEFECTO);
}

extern "C" void arr_DestruyeEstructurasConTipo(ARRAY **array,
                                               arr_libera_EstructuraConTipo libera) noexcept
{
    punteros_destruye_estructuras(array, libera);
}

extern "C" void arr_DestruyeEstructurasConstConTipo(ARRAY **array) noexcept
{
    punteros_destruye_estructuras(array, nullptr);
}

extern "C" void arr_ReduceTamanyoEstructurasConTipo(ARRAY *array, ULONG nuevo_tamanyo,
                                                    arr_libera_EstructuraConTipo libera) noexcept
{
    reduce_estructuras(array, nuevo_tamanyo, libera);
}

extern "C" void arr_ReduceTamanyoEstructurasConTipoConst(ARRAY *array, ULONG nuevo_tamanyo) noexcept
{
    reduce_estructuras(array, nuevo_tamanyo, nullptr);
}

extern "C" void arr_BorrarEstructuraConTipo(ARRAY *array, ULONG pos,
                                            arr_libera_EstructuraConTipo libera) noexcept
{
    if (!punteros_hay_array(array))
        return;
    if (ARR_EXIGE(libera != nullptr, "(libera) != NULL"))
        punteros_borra_liberando(array, pos, libera);
    else
        arr_BorrarPuntero(array, pos);
}
