// The quicksort over positions with an explicit stack of ranges. The pivot is a copy, the scans
// stop on anything that is not exactly comparac_PRIMERO_MENOR, the smaller part is sorted first
// and the larger one stacked, so the stack stays logarithmic.
#include "core/comparadores.h"
#include "core/pilaqsor.h"

#include "services/informes.h"
#include "services/memoria.h"

#include <algorithm>
#include <climits>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// Address of the element at index `pos`, or NULL (after the lookup's report) when there is none.
char *direccion(const ARRAY *array, LONG pos)
{
    posicion_array posi;
    if (!arrayprv_posicion(array, static_cast<ULONG>(pos), &posi))
        return nullptr;
    return array->buffer[posi.fila] + posi.pos * array->size_elem;
}

// One sort call: the array, its table and adapter, and the pivot copy.
struct Ordenacion {
    ARRAY *array;
    const funciones_ordenacion *tabla;
    adaptador_orden compara;
    void *pivote;
    void *temporal;

    // compare(a, b) of two addresses; an element that cannot be reached compares equal.
    int orden(const void *a, const void *b) const
    {
        if (a == nullptr || b == nullptr)
            return comparac_IGUALES;
        return arrayprv_compara_elementos(tabla, compara, a, b, array->size_elem);
    }

    // Partitions izquierda..derecha around the element in the middle; returns the final i and j.
    void particiona(LONG izquierda, LONG derecha, LONG &i, LONG &j) const
    {
        i = izquierda;
        j = derecha;
        const LONG punto_medio = static_cast<LONG>((int64_t{izquierda} + derecha) / 2);
        ARR_EXIGE(punto_medio >= 0, "punto_medio >= 0");
        arrayprv_copia_elemento(array, punto_medio, pivote, array->size_elem);
        // Invariant: elements left of i are not greater than the pivot, those right of j not less.
        do {
            ARR_EXIGE(i >= 0, "i >= 0");
            while (orden(direccion(array, i), pivote) == comparac_PRIMERO_MENOR)
                ++i;
            ARR_EXIGE(j >= 0, "j >= 0");
            while (orden(pivote, direccion(array, j)) == comparac_PRIMERO_MENOR)
                --j;
            if (i <= j) {
                if (i < j && orden(direccion(array, i), direccion(array, j)) != comparac_IGUALES) {
                    ARR_EXIGE(i >= 0, "i >= 0");
                    ARR_EXIGE(j >= 0, "j >= 0");
                    arrayprv_intercambia_elementos(array, i, j, temporal, array->size_elem);
                }
                ++i;
                --j;
            }
        } while (i <= j);
    }

    void ordena(pilaqsor *pila) const
    {
        pilaqsor_mete(pila, 0, static_cast<ULONG>(array->num_elems - 1));
        while (!pilaqsor_vacia(pila)) {
            ULONG sacada_izquierda = 0;
            ULONG sacada_derecha = 0;
            pilaqsor_saca(pila, &sacada_izquierda, &sacada_derecha);
            LONG izquierda = static_cast<LONG>(sacada_izquierda);
            LONG derecha = static_cast<LONG>(sacada_derecha);
            ARR_EXIGE(izquierda >= 0, "izquierda >= 0");
            ARR_EXIGE(derecha >= izquierda, "derecha >= izquierda");
            while (izquierda < derecha) {
                LONG i;
                LONG j;
                particiona(izquierda, derecha, i, j);
                // Keep sorting the smaller part; stack the larger one if it has two elements.
                if (int64_t{j} - izquierda < int64_t{derecha} - i) {
                    if (i < derecha)
                        pilaqsor_mete(pila, static_cast<ULONG>(i), static_cast<ULONG>(derecha));
                    derecha = j;
                } else {
                    if (izquierda < j)
                        pilaqsor_mete(pila, static_cast<ULONG>(izquierda), static_cast<ULONG>(j));
                    izquierda = i;
                }
            }
        }
    }
};

} // namespace

void arrayprv_copia_elemento(const ARRAY *array, LONG pos, void *buffer, size_t tam_copia)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !ARR_EXIGE(tam_copia == array->size_elem, "tam_copia == array->size_elem"))
        return;
    if (const char *elemento = direccion(array, pos))
        std::memcpy(buffer, elemento, tam_copia);
}

void arrayprv_pon_elemento(ARRAY *array, LONG pos, const void *buffer, size_t tam)
{
    // The element size is read by value: the header is packed and the field is misaligned.
    const size_t size_elem = array->size_elem;
    if (char *elemento = direccion(array, pos))
        std::memcpy(elemento, buffer, std::min(tam, size_elem));
}

void arrayprv_intercambia_elementos(ARRAY *array, LONG i, LONG j, void *tmp, size_t tam_tmp)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !ARR_EXIGE(tam_tmp == array->size_elem, "tam_tmp == array->size_elem"))
        return;
    char *elemento_i = direccion(array, i);
    char *elemento_j = direccion(array, j);
    if (elemento_i == nullptr || elemento_j == nullptr)
        return;
    std::memcpy(tmp, elemento_i, tam_tmp);
    std::memcpy(elemento_i, elemento_j, tam_tmp);
    std::memcpy(elemento_j, tmp, tam_tmp);
}

void arrayprv_qsort(ARRAY *array, const funciones_ordenacion *tabla, adaptador_orden compara,
                    tipo_elem_array tipo_elem)
{
    const bool hay_array = ARR_EXIGE(array != nullptr, "(array) != NULL");
    const bool hay_compara = ARR_EXIGE(compara != nullptr, "(compara) != NULL");
    if (!(hay_array && hay_compara) ||
        !arrayprv_entrada_tipo(array, TEXTOS_ARRAY, true, Modo::estricto, tipo_elem) ||
        array->num_elems < 2)
        return;
    array->en_bucle = CIERTO;
    // Positions are signed 32-bit from here on: a larger array is reported and left as it is,
    // before its stack (a sixth of the count) is asked for.
    if (ARR_EXIGE(array->num_elems <= LONG_MAX, "array->num_elems <= LONG_MAX")) {
        void *pivote = zarpspy_nousar_calloc(1, array->size_elem);
        void *temporal = zarpspy_nousar_calloc(1, array->size_elem);
        pilaqsor *pila = pilaqsor_crea(static_cast<ULONG>(array->num_elems));
        Ordenacion{array, tabla, compara, pivote, temporal}.ordena(pila);
        pilaqsor_destruye(&pila);
        zarpspy_nousar_free_pp(&pivote, 1);
        zarpspy_nousar_free_pp(&temporal, 1);
    }
    array->en_bucle = FALSO;
}
