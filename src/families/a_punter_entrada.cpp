// The entry checks and the element read that the exports of the pointer family start from.
#include "families/a_punter.h"

#include "services/informes.h"

#include <cstring>

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

inline constexpr TextosEntrada TEXTOS_ORIGEN{"(org) != NULL", "org->mascara_debug == MASCARA_DEBUG",
                                             "org->en_bucle == FALSO", "org->en_bucle_lectura == FALSO"};

} // namespace

bool punteros_hay_array(const ARRAY *array) { return ARR_EXIGE(array != nullptr, "(array) != NULL"); }

bool punteros_cabecera(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo)
{
    if (modo != Modo::ninguno && arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(array, modo == Modo::estricto);
        if (array == nullptr || !arrayprv_marca_valida(array))
            return false;
    } else {
        if (!ARR_EXIGE(array != nullptr, textos.nulo) ||
            !ARR_EXIGE(arrayprv_marca_valida(array), textos.mascara))
            return false;
        if (guardas) {
            ARR_EXIGE(array->en_bucle == FALSO, textos.en_bucle);
            ARR_EXIGE(array->en_bucle_lectura == FALSO, textos.en_bucle_lectura);
        }
    }
    // Every guarded operation of this family frees the array or changes its count.
    return !guardas || arrayprv_admite_cambio(array, textos);
}

bool punteros_entrada(const ARRAY *array, bool guardas, Modo modo, const TextosEntrada &textos,
                      const char *texto_tipo)
{
    return punteros_cabecera(array, textos, guardas, modo) &&
           ARR_EXIGE(array->tipo_elem == elem_PUNTERO_NO_USAR, texto_tipo);
}

bool punteros_entrada_concatenacion(const ARRAY *dest, const ARRAY *org)
{
    const bool org_usable = punteros_cabecera(org, TEXTOS_ORIGEN, false, Modo::leniente);
    const bool dest_usable = punteros_cabecera(dest, TEXTOS_DESTINO, true, Modo::estricto);
    return org_usable && dest_usable &&
           ARR_EXIGE(org->tipo_elem == elem_PUNTERO_NO_USAR && dest->tipo_elem == elem_PUNTERO_NO_USAR,
                     "org->tipo_elem == elem_PUNTERO_NO_USAR && dest->tipo_elem == elem_PUNTERO_NO_USAR");
}

void *punteros_get(const ARRAY *array, ULONG pos)
{
    void *puntero = nullptr;
    if (const void *slot = arrayprv_get(array, pos, elem_PUNTERO_NO_USAR))
        std::memcpy(&puntero, slot, sizeof puntero);
    return puntero;
}
