// Without ARRAYPRUEBA the cheap entry checks run: a corrupted header goes unnoticed, and a running
// read traversal is seen by an operation that modifies the array.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "modo_comprobacion/escenarios.h"
#include "soporte/sistema.h"

namespace {

using SinModoComprobacion = PruebaArrays;

TEST_F(SinModoComprobacion, ModeIsOffWithoutArrayPrueba)
{
    ASSERT_FALSE(lee_variable("ARRAYPRUEBA")) << "this program runs without ARRAYPRUEBA";
    EXPECT_EQ(arrayprv_es_modo_comprobacion(), FALSO);
}

TEST_F(SinModoComprobacion, ModeStaysOffWhenTheVariableIsSetLater)
{
    arrayprv_es_modo_comprobacion();
    pon_variable("ARRAYPRUEBA", "");
    EXPECT_EQ(arrayprv_es_modo_comprobacion(), FALSO);
    quita_variable("ARRAYPRUEBA");
}

TEST_F(SinModoComprobacion, AppendOnCorruptedPrefixSumsIsNotReported)
{
    ARRAY *array = crea_con_suma_corrupta();
    arr_AppendDouble(array, 1);
    EXPECT_EQ(informes(), Textos{});
    EXPECT_EQ(arr_NumElemsDouble(array), 301u);
    repara_suma(array);
    EXPECT_EQ(arr_GetDouble(array, 300), 1.0);
    arr_DestruyeDouble(&array);
}

TEST_F(SinModoComprobacion, AppendInsideAReadTraversalReportsTheReadFlagAndIsRefused)
{
    ARRAY *array = arr_CreaDouble(3);
    append_dentro_de_lectura(array);
    EXPECT_EQ(informes(), Textos{"array->en_bucle_lectura == FALSO"});
    EXPECT_EQ(arr_NumElemsDouble(array), 3u);
    arr_DestruyeDouble(&array);
}

} // namespace
