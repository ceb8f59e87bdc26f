// Whole-array operations: a copy that keeps the source's row layout, concatenation, and
// reversal in place or into a new array.
#include "core/comparadores.h"
#include "core/guia.h"

#include "services/cadenas.h"
#include "services/informes.h"
#include "services/memoria.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

void *copia_cadena(const void *cadena) { return cad_copia_cadena(static_cast<const char *>(cadena)); }

void *copia_cadena_ancha(const void *cadena)
{
    return widestr_fun_copia(static_cast<const WCHAR *>(cadena));
}

template <typename T> T *copia_tabla(const T *origen, size_t num)
{
    T *tabla = static_cast<T *>(zarpspy_nousar_calloc(num, sizeof(T)));
    std::memcpy(tabla, origen, num * sizeof(T));
    return tabla;
}

// Appends a copy of each string of org to dest (the action of the string concatenation).
BOOL anyade_copia_cadena(char **cadena, void *dest)
{
    char *copia = cad_copia_cadena(*cadena);
    if (arrayprv_append(static_cast<ARRAY *>(dest), &copia, elem_CADENA_NO_USAR) == 0)
        zarpstr_destruye(&copia);
    return CIERTO;
}

BOOL anyade_copia_cadena_ancha(WCHAR **cadena, void *dest)
{
    WCHAR *copia = widestr_fun_copia(*cadena);
    if (arrayprv_append(static_cast<ARRAY *>(dest), &copia, elem_CADENA_U_NO_USAR) == 0)
        widestr_nousar_destruye(&copia, UBICACION, __LINE__);
    return CIERTO;
}

bool entrada_concatena(const ARRAY *dest, const ARRAY *org)
{
    if (arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(org, 0);
        arrayprv_comprueba_array(dest, 1);
        return org != nullptr && dest != nullptr && arrayprv_marca_valida(org) &&
               arrayprv_marca_valida(dest);
    }
    const bool hay_org = ARR_EXIGE(org != nullptr, "(org) != NULL");
    const bool hay_dest = ARR_EXIGE(dest != nullptr, "(dest) != NULL");
    if (!(hay_org && hay_dest))
        return false;
    const bool dest_vivo =
        ARR_EXIGE(arrayprv_marca_valida(dest), "dest->mascara_debug == MASCARA_DEBUG");
    const bool org_vivo =
        ARR_EXIGE(arrayprv_marca_valida(org), "org->mascara_debug == MASCARA_DEBUG");
    if (!(dest_vivo && org_vivo))
        return false;
    ARR_EXIGE(dest->en_bucle == FALSO, "dest->en_bucle == FALSO");
    ARR_EXIGE(dest->en_bucle_lectura == FALSO, "dest->en_bucle_lectura == FALSO");
    return true;
}

// Appends `cuantos` consecutive elements, leaving what appending them one by one leaves: what fits
// in the last row's room is copied at once, and each element that needs a new or larger row goes
// through arrayprv_append, which grows rows by the documented rule.
void anyade_tramo(ARRAY *dest, const char *elementos, size_t cuantos, tipo_elem_array tipo_elem)
{
    const size_t size_elem = dest->size_elem;
    while (cuantos > 0) {
        size_t hueco = 0;
        if (arrayprv_anyade_directo(dest, tipo_elem)) {
            const size_t ultima = dest->num_filas - 1;
            const size_t llenos = dest->long_filas[ultima];
            const size_t capacidad = dest->max_long_filas[ultima];
            hueco = capacidad > llenos ? std::min(cuantos, capacidad - llenos) : 0;
            std::memcpy(dest->buffer[ultima] + llenos * size_elem, elementos, hueco * size_elem);
            dest->long_filas[ultima] = llenos + hueco;
            dest->num_elems += hueco;
        }
        if (hueco == 0) {
            const size_t antes = dest->num_elems;
            if (arrayprv_append(dest, elementos, tipo_elem) <= antes)
                return; // the array took nothing: the append has reported why
            hueco = 1;
        }
        elementos += hueco * size_elem;
        cuantos -= hueco;
    }
}

} // namespace

ARRAY *arrayprv_copia(const ARRAY *array, funcion_copia copia)
{
    if (!arrayprv_entrada(array, TEXTOS_ARRAY, false, Modo::leniente))
        return nullptr;
    ARR_EXIGE(array->tipo_elem != elem_antiguo_PUNTO3DX, "array->tipo_elem != elem_antiguo_PUNTO3DX");
    if (array->tipo_elem == elem_CADENA_NO_USAR)
        copia = copia_cadena;
    else if (array->tipo_elem == elem_CADENA_U_NO_USAR)
        copia = copia_cadena_ancha;
    if (array->size_elem != sizeof(void *)) // only pointer elements can be copied through it
        copia = nullptr;

    ARRAY *nuevo = arrayprv_reserva_cabecera();
    nuevo->tipo_elem = array->tipo_elem;
    nuevo->long_max_fila_en_bytes = 0;
    nuevo->size_elem = array->size_elem;
    nuevo->num_elems = array->num_elems;
    nuevo->num_filas = array->num_filas;
    nuevo->long_max_fila_en_elem = array->long_max_fila_en_elem;
    nuevo->num_bits = array->num_bits;
    nuevo->buffer = nullptr;
    nuevo->max_long_filas = nullptr;
    nuevo->long_filas = nullptr;
    nuevo->acumulado_filas = nullptr;
    const size_t num_filas = array->num_filas;
    if (num_filas > 0) {
        nuevo->max_long_filas = copia_tabla(array->max_long_filas, num_filas);
        nuevo->long_filas = copia_tabla(array->long_filas, num_filas);
        nuevo->acumulado_filas = copia_tabla(array->acumulado_filas, num_filas);
        nuevo->buffer = copia_tabla(array->buffer, num_filas);
        for (size_t fila = 0; fila < num_filas; ++fila) {
            const size_t capacidad = array->max_long_filas[fila];
            char *destino = static_cast<char *>(zarpspy_nousar_calloc(capacidad, array->size_elem));
            const char *origen = array->buffer[fila];
            if (copia != nullptr) {
                for (size_t pos = 0; pos < array->long_filas[fila]; ++pos) {
                    void *valor;
                    std::memcpy(&valor, origen + pos * sizeof valor, sizeof valor);
                    valor = copia(valor);
                    std::memcpy(destino + pos * sizeof valor, &valor, sizeof valor);
                }
            } else {
                std::memcpy(destino, origen, capacidad * array->size_elem);
            }
            nuevo->buffer[fila] = destino;
        }
        arrayprv_cuenta_filas_llenas(nuevo);
    }
    nuevo->mascara_debug = MASCARA_DEBUG;
    nuevo->en_bucle = FALSO;
    nuevo->en_bucle_lectura = FALSO;
    return nuevo;
}

void arrayprv_concatena(ARRAY *dest, const ARRAY *org)
{
    if (!entrada_concatena(dest, org) || !arrayprv_admite_cambio(dest, TEXTOS_DESTINO))
        return;
    const bool mismo_tipo =
        ARR_EXIGE(org->tipo_elem == dest->tipo_elem, "org->tipo_elem == dest->tipo_elem");
    const bool no_bits =
        ARR_EXIGE(org->tipo_elem != elem_BIT_NO_USAR, "org->tipo_elem != elem_BIT_NO_USAR");
    const bool no_punteros =
        ARR_EXIGE(org->tipo_elem != elem_PUNTERO_NO_USAR, "org->tipo_elem != elem_PUNTERO_NO_USAR");
    if (!(mismo_tipo && no_bits && no_punteros))
        return;
    // An array appended to itself would never reach the end of its growing count.
    if (!ARR_EXIGE(dest != org, "dest != org") || org->num_elems == 0)
        return;
    fnc_accion acciones{};
    acciones.fnc_accion_CADENA = anyade_copia_cadena;
    acciones.fnc_accion_CADENA_U = anyade_copia_cadena_ancha;
    switch (org->tipo_elem) {
    case elem_CADENA_NO_USAR:
    case elem_CADENA_U_NO_USAR:
        arrayprv_recorre(const_cast<ARRAY *>(org), &acciones, dest, org->tipo_elem, 0, 0, UBICACION,
                         __LINE__);
        break;
    default:
        for (size_t fila = 0; fila < org->num_filas; ++fila)
            anyade_tramo(dest, org->buffer[fila], org->long_filas[fila], org->tipo_elem);
        break;
    }
}

void arrayprv_invierte(ARRAY *array, tipo_elem_array tipo_elem)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY, false, Modo::ninguno, tipo_elem))
        return;
    const ULONG n = static_cast<ULONG>(array->num_elems);
    std::vector<char> primero(array->size_elem);
    std::vector<char> segundo(array->size_elem);
    // Invariant: elements before i and after n - 1 - i are already in their reversed places.
    for (ULONG i = 0; i < n / 2; ++i) {
        const void *a = arrayprv_get(array, i, tipo_elem);
        const void *b = arrayprv_get(array, n - 1 - i, tipo_elem);
        if (a == nullptr || b == nullptr)
            return;
        std::memcpy(primero.data(), a, primero.size());
        std::memcpy(segundo.data(), b, segundo.size());
        arrayprv_set(array, i, segundo.data(), tipo_elem);
        arrayprv_set(array, n - 1 - i, primero.data(), tipo_elem);
    }
}

ARRAY *arrayprv_invertida(const ARRAY *array, tipo_elem_array tipo_elem)
{
    if (!arrayprv_entrada_tipo(array, TEXTOS_ARRAY, false, Modo::ninguno, tipo_elem))
        return nullptr;
    const ULONG n = static_cast<ULONG>(array->num_elems);
    ARRAY *nuevo = arrayprv_crea(n, tipo_elem, LONG_FILA_POR_DEFECTO);
    for (ULONG i = 0; i < n; ++i)
        if (const void *elemento = arrayprv_get(array, i, tipo_elem))
            arrayprv_set(nuevo, n - 1 - i, elemento, tipo_elem);
    return nuevo;
}
