// Ordered search by bisection over a pointer array that the caller keeps ascending under its own
// comparison of an element with a datum: the insertion position, ordered insertion, and the run
// of elements equal to a datum. While it bisects, the search reports comparison results that do
// not fit a sorted array, and goes on with what it has: positions stay between 0 and the count.
#include "families/a_punter.h"

#include "services/informes.h"

namespace {

constexpr const char *UBICACION = UBICACION_A_PUNTER;

using Compara = int (*)(const void *elemento, const void *dato);

// The comparison of the element at `pos` (comparac_* expected) with the datum.
int compara_en(const ARRAY *array, ULONG pos, Compara compara, const void *dato)
{
    return compara(punteros_get(array, pos), dato);
}

// Results `a` at a lower and `b` at a higher position must not decrease in the order
// comparac_PRIMERO_MENOR < comparac_IGUALES < comparac_PRIMERO_MAYOR.
void comprueba_orden(int a, int b)
{
    if (a == comparac_IGUALES)
        ARR_EXIGE(b == comparac_IGUALES || b == comparac_PRIMERO_MAYOR,
                  "comp2 == comparac_IGUALES || comp2 == comparac_PRIMERO_MAYOR");
    else if (a == comparac_PRIMERO_MAYOR)
        ARR_EXIGE(b == comparac_PRIMERO_MAYOR, "comp2 == comparac_PRIMERO_MAYOR");
}

// The bisection. Returns the position of an element equal to the datum (and sets `encontrado`)
// or, when none is hit, where the datum goes; ARR_ULONG_MAX when the array or the comparison
// cannot be used. Of several equal elements it hits the first element if equal, else the last if
// equal, else the one a midpoint lands on first.
ULONG biseca(const ARRAY *array, Compara compara, const void *dato, bool &encontrado)
{
    encontrado = false;
    const bool array_usable = punteros_entrada(array, false, Modo::leniente);
    const bool hay_compara = ARR_EXIGE(compara != nullptr, "(compara) != NULL");
    if (!array_usable || !hay_compara)
        return ARR_ULONG_MAX;
    const RecorridoEnCurso recorrido(array);
    const ULONG n = static_cast<ULONG>(array->num_elems);
    if (n == 0)
        return 0;
    ULONG n1 = 0;
    ULONG n2 = n - 1;
    // The results of the two ends of the whole array; every midpoint is checked against them.
    const int comp1 = compara_en(array, n1, compara, dato);
    const int comp2 = compara_en(array, n2, compara, dato);
    comprueba_orden(comp1, comp2);
    encontrado = comp1 == comparac_IGUALES;
    if (encontrado || comp1 == comparac_PRIMERO_MAYOR)
        return 0;
    ARR_EXIGE(comp1 == comparac_PRIMERO_MENOR, "comp1 == comparac_PRIMERO_MENOR");
    encontrado = comp2 == comparac_IGUALES;
    if (encontrado)
        return n2;
    if (comp2 == comparac_PRIMERO_MENOR)
        return n;
    ARR_EXIGE(comp2 == comparac_PRIMERO_MAYOR, "comp2 == comparac_PRIMERO_MAYOR");
    ARR_EXIGE(n2 > n1, "n2 > n1");
    // Invariant: element n1 is below the datum and element n2 above it, so the datum goes after
    // n1 and no later than n2; each pass halves n2 - n1.
    while (n2 - n1 >= 2) {
        const ULONG med = n1 + (n2 - n1) / 2;
        const int comp_med = compara_en(array, med, compara, dato);
        comprueba_orden(comp1, comp_med);
        comprueba_orden(comp_med, comp2);
        if (comp_med == comparac_IGUALES) {
            encontrado = true;
            return med;
        }
        if (comp_med == comparac_PRIMERO_MAYOR) {
            n2 = med;
        } else {
            ARR_EXIGE(comp_med == comparac_PRIMERO_MENOR, "compMed == comparac_PRIMERO_MENOR");
            n1 = med;
        }
    }
    return n2;
}

// One end of the run of elements equal to the datum around `pos`: steps towards the start (or
// the end) while the neighbour is equal. The neighbour that ends the run must compare below
// (above) the datum.
ULONG extremo_de_racha(const ARRAY *array, ULONG pos, bool hacia_el_principio, Compara compara,
                       const void *dato)
{
    const ULONG limite = hacia_el_principio ? 0 : static_cast<ULONG>(array->num_elems - 1);
    while (pos != limite) {
        const ULONG vecino = hacia_el_principio ? pos - 1 : pos + 1;
        const int comp = compara_en(array, vecino, compara, dato);
        if (comp != comparac_IGUALES) {
            if (hacia_el_principio)
                ARR_EXIGE(comp == comparac_PRIMERO_MENOR, "comp == comparac_PRIMERO_MENOR");
            else
                ARR_EXIGE(comp == comparac_PRIMERO_MAYOR, "comp == comparac_PRIMERO_MAYOR");
            break;
        }
        pos = vecino;
    }
    return pos;
}

} // namespace

extern "C" ULONG arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(
    ARRAY *array, arr_orden_PunteroConTipo compara, const void *dato) noexcept
{
    bool encontrado;
    return biseca(array, compara, dato, encontrado);
}

extern "C" void arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(ARRAY *array,
                                                                  arr_orden_PunteroConTipo compara,
                                                                  void *dato) noexcept
{
    bool encontrado;
    const ULONG posicion = biseca(array, compara, dato, encontrado);
    if (posicion != ARR_ULONG_MAX)
        arr_InsertarPunteroConTipo(array, posicion, dato);
}

extern "C" void arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(
    ARRAY *array, arr_orden_PunteroConTipo compara, void *dato, BOOL *encontrado) noexcept
{
    bool hallado;
    const ULONG posicion = biseca(array, compara, dato, hallado);
    if (encontrado != nullptr)
        *encontrado = hallado ? CIERTO : FALSO;
    if (posicion != ARR_ULONG_MAX && !hallado)
        arr_InsertarPunteroConTipo(array, posicion, dato);
}

extern "C" void arr_BuscarEstructuraDicotomicamenteConTipo(ARRAY *array, const void *dato,
                                                          arr_orden_PunteroConTipo compara,
                                                          ULONG *posPrimerEncontrado,
                                                          ULONG *posUltimoEncontrado) noexcept
{
    const bool hay_array = punteros_hay_array(array);
    const bool hay_compara = ARR_EXIGE(compara != nullptr, "(compara) != NULL");
    ARR_EXIGE(posPrimerEncontrado != nullptr, "(posPrimerEncontrado) != NULL");
    ARR_EXIGE(posUltimoEncontrado != nullptr, "(posUltimoEncontrado) != NULL");
    ULONG primero = ARR_ULONG_MAX;
    ULONG ultimo = ARR_ULONG_MAX;
    bool encontrado = false;
    const ULONG acierto = hay_array && hay_compara ? biseca(array, compara, dato, encontrado)
                                                   : ARR_ULONG_MAX;
    if (encontrado) {
        ARR_EXIGE(compara_en(array, acierto, compara, dato) == comparac_IGUALES,
                  "(*compara)(arr_GETPUNTERO(array, posInsercion), dato) == comparac_IGUALES");
        primero = extremo_de_racha(array, acierto, true, compara, dato);
        ultimo = extremo_de_racha(array, acierto, false, compara, dato);
    }
    if (posPrimerEncontrado != nullptr)
        *posPrimerEncontrado = primero;
    if (posUltimoEncontrado != nullptr)
        *posUltimoEncontrado = ultimo;
}

extern "C" BOOL arr_ExisteEstructuraDicotomicamenteConTipo(ARRAY *array, const void *dato,
                                                          arr_orden_PunteroConTipo compara,
                                                          ULONG *posPrimerEncontrado,
                                                          ULONG *posUltimoEncontrado) noexcept
{
    ULONG primero;
    ULONG ultimo;
    arr_BuscarEstructuraDicotomicamenteConTipo(array, dato, compara, &primero, &ultimo);
    if (primero == ARR_ULONG_MAX)
        return FALSO;
    if (posPrimerEncontrado != nullptr)
        *posPrimerEncontrado = primero;
    if (posUltimoEncontrado != nullptr)
        *posUltimoEncontrado = ultimo;
    return CIERTO;
}
