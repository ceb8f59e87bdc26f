// The quicksort's stack of ranges still to sort.
#include "core/pilaqsor.h"

#include "services/informes.h"
#include "services/memoria.h"

namespace {

constexpr const char *UBICACION = "pilaqsor (ARRAYS.DLL)";

ULONG *tabla(ULONG num) { return static_cast<ULONG *>(zarpspy_nousar_calloc(num, sizeof(ULONG))); }

} // namespace

pilaqsor *pilaqsor_crea(ULONG num_elementos_esperados)
{
    auto *pila = static_cast<pilaqsor *>(zarpspy_nousar_malloc(sizeof(pilaqsor)));
    pila->incremento = num_elementos_esperados < 30 ? num_elementos_esperados : num_elementos_esperados / 6;
    pila->izquierdas = tabla(pila->incremento);
    pila->derechas = tabla(pila->incremento);
    pila->num_elementos = 0;
    pila->max_elementos = pila->incremento;
    return pila;
}

void pilaqsor_mete(pilaqsor *pila, ULONG izquierda, ULONG derecha)
{
    if (!ARR_EXIGE(pila != nullptr, "(pilaqsor) != NULL"))
        return;
    ++pila->num_elementos;
    if (pila->num_elementos > pila->max_elementos) {
        pila->max_elementos += pila->incremento > 0 ? pila->incremento : 1;
        const size_t bytes = size_t{pila->max_elementos} * sizeof(ULONG);
        pila->izquierdas = static_cast<ULONG *>(zarpspy_nousar_realloc(pila->izquierdas, bytes));
        pila->derechas = static_cast<ULONG *>(zarpspy_nousar_realloc(pila->derechas, bytes));
    }
    pila->izquierdas[pila->num_elementos - 1] = izquierda;
    pila->derechas[pila->num_elementos - 1] = derecha;
}

void pilaqsor_saca(pilaqsor *pila, ULONG *izquierda, ULONG *derecha)
{
    if (!ARR_EXIGE(pila != nullptr, "(pilaqsor) != NULL"))
        return;
    const bool hay_rango = ARR_EXIGE(pila->num_elementos > 0, "pilaqsor->num_elementos > 0");
    const bool hay_izquierda = ARR_EXIGE(izquierda != nullptr, "(izquierda) != NULL");
    const bool hay_derecha = ARR_EXIGE(derecha != nullptr, "(derecha) != NULL");
    if (!(hay_rango && hay_izquierda && hay_derecha))
        return;
    --pila->num_elementos;
    *izquierda = pila->izquierdas[pila->num_elementos];
    *derecha = pila->derechas[pila->num_elementos];
}

BOOL pilaqsor_vacia(const pilaqsor *pila)
{
    if (!ARR_EXIGE(pila != nullptr, "(pilaqsor) != NULL"))
        return CIERTO;
    return pila->num_elementos == 0;
}

void pilaqsor_destruye(pilaqsor **pila)
{
    if (!ARR_EXIGE(pila != nullptr, "(pilaqsor) != NULL") ||
        !ARR_EXIGE(*pila != nullptr, "(*pilaqsor) != NULL"))
        return;
    ARR_EXIGE((*pila)->num_elementos == 0, "(*pilaqsor)->num_elementos == 0");
    zarpspy_nousar_free_pp(&(*pila)->izquierdas, sizeof(ULONG));
    zarpspy_nousar_free_pp(&(*pila)->derechas, sizeof(ULONG));
    zarpspy_nousar_free_pp(pila, sizeof(pilaqsor));
}
