// Arrays of arrays: pointer arrays whose elements are structure arrays. Destroying, shrinking or
// deleting releases the inner arrays cut off (and their structures through `libera`); copying
// keeps NULL inner arrays as NULL, while concatenating skips them.
#include "families/a_punter.h"

#include "services/informes.h"

#include <cstring>
#include <vector>

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

inline constexpr TextosEntrada TEXTOS_ARRAY1{"(array1) != NULL", "array1->mascara_debug == MASCARA_DEBUG",
                                             "array1->en_bucle == FALSO",
                                             "array1->en_bucle_lectura == FALSO"};
inline constexpr TextosEntrada TEXTOS_ARRAY2{"(array2) != NULL", "array2->mascara_debug == MASCARA_DEBUG",
                                             "array2->en_bucle == FALSO",
                                             "array2->en_bucle_lectura == FALSO"};

// The inner array stored in a slot.
ARRAY *interior_en(const char *slot)
{
    ARRAY *interior;
    std::memcpy(&interior, slot, sizeof interior);
    return interior;
}

// Destroys every non-NULL inner array from `desde` on, with `libera`; their slots end NULL.
void destruye_interiores_desde(ARRAY *array_de_arrays, ULONG desde, void (*libera)(void **elemento))
{
    punteros_visita_desde(array_de_arrays, desde, [&](void **slot) {
        if (*slot != nullptr)
            punteros_destruye_estructuras(reinterpret_cast<ARRAY **>(slot), libera);
    });
}

void destruye_arrays(ARRAY **array_de_arrays, void (*libera)(void **elemento))
{
    if (!ARR_EXIGE(array_de_arrays != nullptr, "(array_de_arrays) != NULL") ||
        !punteros_entrada(*array_de_arrays, true, Modo::estricto, TEXTOS_HANDLE,
                          "(*array)->tipo_elem == elem_PUNTERO_NO_USAR"))
        return;
    destruye_interiores_desde(*array_de_arrays, 0, libera);
    punteros_destruye_estructuras(array_de_arrays, nullptr);
}

} // namespace

extern "C" void arr_DestruyeEstructurasArrayConTipo(ARRAY **array_de_arrays,
                                                    arr_libera_EstructuraConTipo libera) noexcept
{
    destruye_arrays(array_de_arrays, libera);
}

extern "C" void arr_DestruyeEstructurasConstArrayConTipo(ARRAY **array_de_arrays) noexcept
{
    destruye_arrays(array_de_arrays, nullptr);
}

extern "C" void arr_SetPunteroConstArrayConTipo(ARRAY *array_de_arrays, ULONG pos,
                                                const ARRAY *array) noexcept
{
    arr_SetPunteroConstConTipo(array_de_arrays, pos, array);
}

extern "C" void arr_BorrarEstructuraArrayConTipo(ARRAY *array_de_arrays, ULONG pos,
                                                 arr_libera_EstructuraConTipo libera) noexcept
{
    if (!punteros_hay_array(array_de_arrays))
        return;
    ARR_EXIGE(libera != nullptr, "(libera) != NULL");
    punteros_borra_liberando(array_de_arrays, pos, [libera](void **slot) {
        punteros_destruye_estructuras(reinterpret_cast<ARRAY **>(slot), libera);
    });
}

extern "C" void arr_ReduceEstructurasArrayConTipo(ARRAY *array_de_arrays, ULONG nuevo_tamanyo,
                                                  arr_libera_EstructuraConTipo libera) noexcept
{
    if (!punteros_entrada(array_de_arrays, true, Modo::estricto))
        return;
    destruye_interiores_desde(array_de_arrays, nuevo_tamanyo, libera);
    arr_ReduceTamanyoEstructurasConTipoConst(array_de_arrays, nuevo_tamanyo);
}

extern "C" BOOL arr_SonIgualesEstructurasArrayConTipo(ARRAY *array1, ARRAY *array2,
                                                      arr_igualdad_PunteroConTipo igualdad) noexcept
{
    const bool usable1 = punteros_entrada(array1, false, Modo::leniente, TEXTOS_ARRAY1,
                                          "array1->tipo_elem == elem_PUNTERO_NO_USAR");
    const bool usable2 = punteros_entrada(array2, false, Modo::leniente, TEXTOS_ARRAY2,
                                          "array2->tipo_elem == elem_PUNTERO_NO_USAR");
    if (!usable1 || !usable2 || array1->num_elems != array2->num_elems)
        return FALSO;
    BOOL iguales = CIERTO;
    arrayprv_visita_pares(array1, array2, [&](const char *slot1, const char *slot2) {
        iguales = arr_SonIgualesPunteroConTipo(interior_en(slot1), interior_en(slot2), igualdad);
        return iguales == CIERTO;
    });
    return iguales;
}

extern "C" ARRAY *arr_CopiaEstructurasArrayConTipo(const ARRAY *array_de_arrays,
                                                   arr_copia_EstructuraConTipo copia) noexcept
{
    if (!punteros_entrada(array_de_arrays, false, Modo::leniente))
        return nullptr;
    ARRAY *copia_de_arrays = arr_CreaPunteroConTipo(static_cast<ULONG>(array_de_arrays->num_elems));
    ULONG pos = 0;
    arrayprv_visita_todos(array_de_arrays, [&](const char *slot) {
        if (const ARRAY *interior = interior_en(slot))
            arr_SetPunteroConTipo(copia_de_arrays, pos, arr_CopiaEstructurasConTipo(interior, copia));
        ++pos;
    });
    return copia_de_arrays;
}

extern "C" void arr_ConcatenaEstructurasArrayConTipo(ARRAY *dest, ARRAY *org_de_arrays,
                                                     arr_copia_EstructuraConTipo copia) noexcept
{
    // Inside a walk of dest the appends could be refused once their copies were made, and the
    // copies, which only the caller can free, would be lost: that is refused before any copy.
    if (!punteros_entrada_concatenacion(dest, org_de_arrays) ||
        !arrayprv_admite_cambio(dest, TEXTOS_DESTINO))
        return;
    // The copies are made during the walk over the origin and appended after it, so that an array
    // of arrays concatenated to itself grows by a copy of each inner array it held.
    std::vector<ARRAY *> copias;
    arrayprv_visita_todos(org_de_arrays, [&](const char *slot) {
        if (const ARRAY *interior = interior_en(slot))
            copias.push_back(arr_CopiaEstructurasConTipo(interior, copia));
    });
    for (ARRAY *copia_interior : copias)
        arrayprv_append(dest, &copia_interior, elem_PUNTERO_NO_USAR);
}
