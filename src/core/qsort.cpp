// The quicksort through a sort table (any element type, any comparator), its entry, and the
// element helpers by index.
#include "core/quicksort.h"

#include "services/informes.h"
#include "services/memoria.h"

#include <algorithm>
#include <climits>

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// The comparison through a sort table: identical bytes are equal without a call, anything else
// goes to the table's adapter. The pivot and the swap space live on the tracked heap.
class ComparacionTabla {
public:
    ComparacionTabla(const ARRAY *array, const funciones_ordenacion *tabla, adaptador_orden compara)
        : tabla_(tabla), compara_(compara), size_elem_(array->size_elem),
          pivote_(zarpspy_nousar_calloc(1, size_elem_)), temporal_(zarpspy_nousar_calloc(1, size_elem_))
    {
    }
    ~ComparacionTabla()
    {
        zarpspy_nousar_free_pp(&pivote_, 1);
        zarpspy_nousar_free_pp(&temporal_, 1);
    }
    ComparacionTabla(const ComparacionTabla &) = delete;
    ComparacionTabla &operator=(const ComparacionTabla &) = delete;

    int orden(const void *a, const void *b) const
    {
        if (a == nullptr || b == nullptr)
            return comparac_IGUALES;
        return arrayprv_compara_elementos(tabla_, compara_, a, b, size_elem_);
    }
    const void *pivote() const { return pivote_; }
    void fija_pivote(const void *elemento) { std::memcpy(pivote_, elemento, size_elem_); }
    void intercambia(void *a, void *b) const
    {
        std::memcpy(temporal_, a, size_elem_);
        std::memcpy(a, b, size_elem_);
        std::memcpy(b, temporal_, size_elem_);
    }

private:
    const funciones_ordenacion *tabla_;
    adaptador_orden compara_;
    size_t size_elem_;
    void *pivote_;
    void *temporal_;
};

} // namespace

char *arrayprv_direccion_indice(const ARRAY *array, LONG pos)
{
    posicion_array posi;
    if (!arrayprv_posicion(array, static_cast<ULONG>(pos), &posi))
        return nullptr;
    return array->buffer[posi.fila] + posi.pos * array->size_elem;
}

void arrayprv_copia_elemento(const ARRAY *array, LONG pos, void *buffer, size_t tam_copia)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !ARR_EXIGE(tam_copia == array->size_elem, "tam_copia == array->size_elem"))
        return;
    if (const char *elemento = arrayprv_direccion_indice(array, pos))
        std::memcpy(buffer, elemento, tam_copia);
}

void arrayprv_pon_elemento(ARRAY *array, LONG pos, const void *buffer, size_t tam)
{
    // The element size is read by value: the header is packed and the field is misaligned.
    const size_t size_elem = array->size_elem;
    if (char *elemento = arrayprv_direccion_indice(array, pos))
        std::memcpy(elemento, buffer, std::min(tam, size_elem));
}

void arrayprv_intercambia_elementos(ARRAY *array, LONG i, LONG j, void *tmp, size_t tam_tmp)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !ARR_EXIGE(tam_tmp == array->size_elem, "tam_tmp == array->size_elem"))
        return;
    char *elemento_i = arrayprv_direccion_indice(array, i);
    char *elemento_j = arrayprv_direccion_indice(array, j);
    if (elemento_i == nullptr || elemento_j == nullptr)
        return;
    std::memcpy(tmp, elemento_i, tam_tmp);
    std::memcpy(elemento_i, elemento_j, tam_tmp);
    std::memcpy(elemento_j, tmp, tam_tmp);
}

bool arrayprv_qsort_empieza(ARRAY *array, bool argumentos, tipo_elem_array tipo_elem)
{
    if (!argumentos || !arrayprv_entrada_tipo(array, TEXTOS_ARRAY, true, Modo::estricto, tipo_elem) ||
        array->num_elems < 2)
        return false;
    array->en_bucle = CIERTO;
    // Positions are signed 32-bit from here on: a larger array is reported and left as it is,
    // before its stack (a sixth of the count) is asked for.
    if (ARR_EXIGE(array->num_elems <= LONG_MAX, "array->num_elems <= LONG_MAX"))
        return true;
    arrayprv_qsort_termina(array);
    return false;
}

void arrayprv_qsort(ARRAY *array, const funciones_ordenacion *tabla, adaptador_orden compara,
                    tipo_elem_array tipo_elem)
{
    const bool hay_array = ARR_EXIGE(array != nullptr, "(array) != NULL");
    const bool hay_compara = ARR_EXIGE(compara != nullptr, "(compara) != NULL");
    if (!arrayprv_qsort_empieza(array, hay_array && hay_compara, tipo_elem))
        return;
    ComparacionTabla comparacion(array, tabla, compara);
    arrayprv_quicksort(array, comparacion);
    arrayprv_qsort_termina(array);
}
