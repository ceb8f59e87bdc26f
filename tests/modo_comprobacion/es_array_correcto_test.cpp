// The validity query that other modules use without reports: TRUE for a live array of a type
// other than bits; for a live header (bits included) it describes tag, count and element size.
#include "soporte/prueba_arrays.h"

#include "modo_comprobacion/array_corrompible.h"

namespace {

using EsArrayCorrecto = PruebaArrays;

// What the query answers and fills in; the outputs start as values it never gives.
struct Respuesta {
    BOOL correcto;
    int32_t tipo = -1;
    int32_t num_elems = -1;
    uint64_t size_elem = 12345;
};

Respuesta pregunta(const ARRAY *array)
{
    Respuesta respuesta{};
    respuesta.correcto = arryprv_es_array_correcto(array, &respuesta.tipo, &respuesta.num_elems,
                                                   &respuesta.size_elem);
    return respuesta;
}

// FALSO, with every output as it was.
void espera_rechazo_sin_salidas(const Respuesta &respuesta)
{
    const Respuesta intacta{};
    EXPECT_EQ(respuesta.correcto, FALSO);
    EXPECT_EQ(respuesta.tipo, intacta.tipo);
    EXPECT_EQ(respuesta.num_elems, intacta.num_elems);
    EXPECT_EQ(respuesta.size_elem, intacta.size_elem);
}

TEST_F(EsArrayCorrecto, LiveDoubleArrayIsCorrectAndDescribed)
{
    ARRAY *array = arr_CreaDouble(300);
    const Respuesta respuesta = pregunta(array);
    EXPECT_EQ(respuesta.correcto, CIERTO);
    EXPECT_EQ(respuesta.tipo, elem_DOUBLE_NO_USAR);
    EXPECT_EQ(respuesta.num_elems, 300);
    EXPECT_EQ(respuesta.size_elem, 8u);
    arr_DestruyeDouble(&array);
}

TEST_F(EsArrayCorrecto, BitArrayIsNotCorrectButIsDescribedInBits)
{
    ArrayCorrompible bits(elem_BIT_NO_USAR, 9);
    const Respuesta respuesta = pregunta(bits.get());
    EXPECT_EQ(respuesta.correcto, FALSO);
    EXPECT_EQ(respuesta.tipo, elem_BIT_NO_USAR);
    EXPECT_EQ(respuesta.num_elems, 9);
    EXPECT_EQ(respuesta.size_elem, 1u);
}

TEST_F(EsArrayCorrecto, RetiredTagIsNotCorrectButIsDescribed)
{
    ArrayCorrompible array(elem_DOUBLE_NO_USAR, 5);
    array->tipo_elem = elem_antiguo_PUNTO3DX;
    const Respuesta respuesta = pregunta(array.get());
    EXPECT_EQ(respuesta.correcto, FALSO);
    EXPECT_EQ(respuesta.tipo, elem_antiguo_PUNTO3DX);
    EXPECT_EQ(respuesta.num_elems, 5);
}

TEST_F(EsArrayCorrecto, DestroyedHeaderIsNotCorrectAndItsOutputsAreLeftAlone)
{
    ARRAY *array = arr_CreaDouble(3);
    const ARRAY *destruido = array;
    arr_DestruyeDouble(&array);
    espera_rechazo_sin_salidas(pregunta(destruido));
}

TEST_F(EsArrayCorrecto, NullArrayIsNotCorrectAndItsOutputsAreLeftAlone)
{
    espera_rechazo_sin_salidas(pregunta(nullptr));
}

TEST_F(EsArrayCorrecto, OutputsMayBeNull)
{
    ARRAY *array = arr_CreaDouble(1);
    EXPECT_EQ(arryprv_es_array_correcto(array, nullptr, nullptr, nullptr), CIERTO);
    arr_DestruyeDouble(&array);
}

TEST_F(EsArrayCorrecto, EveryLiveTagOtherThanBitsIsCorrect)
{
    for (int tipo = elem_BYTE_NO_USAR; tipo <= elem_CADENA_U_NO_USAR; ++tipo) {
        if (tipo == elem_antiguo_PUNTO3DX || tipo == elem_PUNTERO_NO_USAR)
            continue;
        ArrayCorrompible array(static_cast<tipo_elem_array>(tipo), 2);
        EXPECT_EQ(pregunta(array.get()).correcto, CIERTO) << "tag " << tipo;
    }
}

} // namespace
