// The array header: element sizes per tag, creation, destruction, the element count and the
// entry check that every operation runs first.
#include "core/arrayprv.h"
#include "core/guia.h"

#include "services/cadenas.h"
#include "services/informes.h"
#include "services/matematicas.h"
#include "services/memoria.h"

namespace {

constexpr const char *UBICACION = UBICACION_ARRAYPRV;

// Elements that hold a number of bits.
size_t bytes_de_bits(size_t num_bits) { return num_bits / 8 + (num_bits % 8 != 0 ? 1 : 0); }

// Frees a table of the header and yields the NULL to store back.
size_t *tabla_liberada(size_t *tabla)
{
    zarpspy_nousar_free_pp(&tabla, sizeof(size_t));
    return tabla;
}

} // namespace

size_t arrayprv_size_elem(tipo_elem_array tipo)
{
    switch (tipo) {
    case elem_BIT_NO_USAR:
    case elem_BYTE_NO_USAR:
    case elem_UCHAR_NO_USAR:
    case elem_CHAR_NO_USAR:
        return 1;
    case elem_BOOL_NO_USAR:
    case elem_USHORT_NO_USAR:
    case elem_SHORT_NO_USAR:
        return 2;
    case elem_ULONG_NO_USAR:
    case elem_LONG_NO_USAR:
        return 4;
    case elem_ULONG64_NO_USAR:
    case elem_LONG64_NO_USAR:
    case elem_DOUBLE_NO_USAR:
    case elem_PUNTERO_NO_USAR:
    case elem_CADENA_NO_USAR:
    case elem_CADENA_U_NO_USAR:
        return 8;
    case elem_PUNTO2D_NO_USAR:
        return 16;
    case elem_PUNTO2DX_NO_USAR:
    case elem_PUNTO3D_NO_USAR:
        return 24;
    default:
        ARR_CASO_DESCONOCIDO();
        error_interno("", UBICACION, __LINE__, 0);
        return 0;
    }
}

bool arrayprv_entrada(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo)
{
    if (modo != Modo::ninguno && arrayprv_es_modo_comprobacion()) {
        arrayprv_comprueba_array(array, modo == Modo::estricto);
        return array != nullptr && arrayprv_marca_valida(array);
    }
    if (!ARR_EXIGE(array != nullptr, textos.nulo) ||
        !ARR_EXIGE(arrayprv_marca_valida(array), textos.mascara))
        return false;
    if (guardas) {
        ARR_EXIGE(array->en_bucle == FALSO, textos.en_bucle);
        ARR_EXIGE(array->en_bucle_lectura == FALSO, textos.en_bucle_lectura);
    }
    return true;
}

bool arrayprv_tipos_intercambiables(tipo_elem_array del_array, tipo_elem_array pedido, bool escribe)
{
    const auto de_valores = [](tipo_elem_array tipo) {
        return tipo != elem_CADENA_NO_USAR && tipo != elem_CADENA_U_NO_USAR &&
               tipo != elem_PUNTERO_NO_USAR && tipo != elem_PUNTO2DX_NO_USAR &&
               tipo != elem_antiguo_PUNTO3DX && tipo <= elem_CADENA_U_NO_USAR;
    };
    if (!de_valores(del_array) || !de_valores(pedido))
        return false;
    if ((del_array == elem_BIT_NO_USAR || pedido == elem_BIT_NO_USAR) && escribe)
        return false;
    return arrayprv_size_elem(del_array) == arrayprv_size_elem(pedido);
}

bool arrayprv_entrada_tipo(const ARRAY *array, const TextosEntrada &textos, bool guardas, Modo modo,
                           tipo_elem_array tipo_elem, const char *texto_tipo)
{
    return arrayprv_entrada(array, textos, guardas, modo) &&
           (ARR_EXIGE(array->tipo_elem == tipo_elem, texto_tipo) ||
            arrayprv_tipos_intercambiables(array->tipo_elem, tipo_elem, guardas));
}

bool arrayprv_admite_cambio(const ARRAY *array, const TextosEntrada &textos)
{
    if (arrayprv_recorridos(array) == 0) [[likely]]
        return true;
    const bool lectura_vista = array->en_bucle_lectura != FALSO && !arrayprv_es_modo_comprobacion();
    if (array->en_bucle == FALSO && !lectura_vista)
        arr_exige(false, array->en_bucle_lectura != FALSO ? textos.en_bucle_lectura : textos.en_bucle,
                  UBICACION, __LINE__);
    return false;
}

bool arrayprv_admite_liberar_elemento(const ARRAY *array, const TextosEntrada &textos)
{
    if (arrayprv_ordenaciones(array) == 0) [[likely]]
        return true;
    const bool sin_bucle = ARR_EXIGE(array->en_bucle == FALSO, textos.en_bucle);
    const bool sin_lectura = ARR_EXIGE(array->en_bucle_lectura == FALSO, textos.en_bucle_lectura);
    if (sin_bucle && sin_lectura)
        arr_exige(false, textos.en_bucle, UBICACION, __LINE__);
    return false;
}

ARRAY *arrayprv_crea(ULONG tamanyo_inicial, tipo_elem_array tipo, ULONG long_fila_en_bytes)
{
    ARRAY *array = arrayprv_reserva_cabecera();
    ARR_EXIGE(tipo != elem_PUNTERO_NO_USAR, "tipo_elemento != elem_PUNTERO_NO_USAR");
    array->tipo_elem = tipo;
    array->long_max_fila_en_bytes = long_fila_en_bytes;
    array->size_elem = arrayprv_size_elem(tipo);
    array->long_max_fila_en_elem = array->size_elem > 0 ? long_fila_en_bytes / array->size_elem : 0;
    ARR_EXIGE(array->long_max_fila_en_elem > 0, "array->long_max_fila_en_elem > 0");
    array->num_elems = 0;
    array->num_filas = 0;
    array->buffer = nullptr;
    array->max_long_filas = nullptr;
    array->long_filas = nullptr;
    array->acumulado_filas = nullptr;
    size_t num_a_crear = tamanyo_inicial;
    array->num_bits = 0;
    if (tipo == elem_BIT_NO_USAR) {
        array->num_bits = tamanyo_inicial;
        num_a_crear = bytes_de_bits(tamanyo_inicial);
    }
    if (num_a_crear > 0 && array->long_max_fila_en_elem > 0)
        arrayprv_anyade_filas(array, num_a_crear);
    array->mascara_debug = MASCARA_DEBUG;
    array->en_bucle = FALSO;
    array->en_bucle_lectura = FALSO;
    return array;
}

void arrayprv_libera_filas(ARRAY *array)
{
    if (array->num_filas == 0)
        return;
    // The header is packed: its tables are freed through aligned copies of their pointers.
    char **buffer = array->buffer;
    zarpstr_destruyeListaCadenas(cambtipo_size_t_a_unsigned_long(array->num_filas), &buffer);
    array->buffer = buffer;
    array->acumulado_filas = tabla_liberada(array->acumulado_filas);
    array->max_long_filas = tabla_liberada(array->max_long_filas);
    array->long_filas = tabla_liberada(array->long_filas);
    array->num_filas = 0;
    array->num_elems = 0;
    arrayprv_guia_olvida(array);
    arrayprv_directa_olvida(array);
}

void arrayprv_destruye(ARRAY **array)
{
    if (!ARR_EXIGE(array != nullptr, "(array) != NULL") ||
        !arrayprv_entrada(*array, TEXTOS_HANDLE, true, Modo::estricto) ||
        !arrayprv_admite_cambio(*array, TEXTOS_HANDLE))
        return;
    ARR_EXIGE((*array)->tipo_elem != elem_antiguo_PUNTO3DX,
              "(*array)->tipo_elem != elem_antiguo_PUNTO3DX");
    if ((*array)->num_elems > 0)
        arrayprv_libera_contenido(*array);
    arrayprv_libera_filas(*array);
    (*array)->mascara_debug = 0;
    zarpspy_libera_cabecera(array);
}

ULONG arrayprv_num_elems(const ARRAY *array)
{
    if (!arrayprv_entrada(array, TEXTOS_ARRAY, false, Modo::ninguno))
        return 0;
    if (array->tipo_elem == elem_BIT_NO_USAR)
        return array->num_bits;
    return cambtipo_size_t_a_unsigned_long(array->num_elems);
}
