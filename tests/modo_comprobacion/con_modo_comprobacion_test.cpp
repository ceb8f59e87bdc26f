// Checking mode, in a process started with ARRAYPRUEBA set: the full consistency check replaces
// the cheap entry checks, so a corrupted header is reported and a read traversal is not seen.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "modo_comprobacion/escenarios.h"

#include <cstdlib>
#include <string>
#include <vector>

namespace {

using ConModoComprobacion = PruebaArrays;

TEST_F(ConModoComprobacion, ModeIsOnWhenArrayPruebaIsSet)
{
    ASSERT_NE(std::getenv("ARRAYPRUEBA"), nullptr) << "this program runs with ARRAYPRUEBA set";
    EXPECT_EQ(arrayprv_es_modo_comprobacion(), CIERTO);
}

TEST_F(ConModoComprobacion, ModeStaysOnWhenTheVariableIsRemovedLater)
{
    arrayprv_es_modo_comprobacion();
    const std::string valor = std::getenv("ARRAYPRUEBA");
    unsetenv("ARRAYPRUEBA");
    EXPECT_EQ(arrayprv_es_modo_comprobacion(), CIERTO);
    setenv("ARRAYPRUEBA", valor.c_str(), 1);
}

TEST_F(ConModoComprobacion, AppendOnCorruptedPrefixSumsIsReported)
{
    ARRAY *array = crea_con_suma_corrupta();
    arr_AppendDouble(array, 1);
    EXPECT_EQ(informes(), INFORMES_SUMA_CORRUPTA);
    EXPECT_EQ(arr_NumElemsDouble(array), 301u);
    repara_suma(array);
    EXPECT_EQ(arr_GetDouble(array, 300), 1.0);
    arr_DestruyeDouble(&array);
}

TEST_F(ConModoComprobacion, InsertBeforeTheEndRunsTheFullCheckToo)
{
    ARRAY *array = crea_con_suma_corrupta();
    arr_InsertarDouble(array, 299, 1);
    EXPECT_EQ(informes(), INFORMES_SUMA_CORRUPTA);
    EXPECT_EQ(arr_NumElemsDouble(array), 301u);
    repara_suma(array);
    EXPECT_EQ(arr_GetDouble(array, 299), 1.0);
    arr_DestruyeDouble(&array);
}

// The full check does not look at the read flag; the append would still move the rows under the
// walk, so it is refused, and reported by the read flag's text.
TEST_F(ConModoComprobacion, AppendInsideAReadTraversalIsRefusedWithTheReadFlagText)
{
    ARRAY *array = arr_CreaDouble(3);
    append_dentro_de_lectura(array);
    EXPECT_EQ(informes(), Textos{"array->en_bucle_lectura == FALSO"});
    EXPECT_EQ(arr_NumElemsDouble(array), 3u);
    arr_DestruyeDouble(&array);
}

BOOL anyade(double *, void *datos)
{
    arr_AppendDouble(static_cast<ARRAY *>(datos), 7);
    return CIERTO;
}

TEST_F(ConModoComprobacion, AppendInsideAWritingTraversalIsReportedByTheFullCheckAndRefused)
{
    ARRAY *array = arr_CreaDouble(1);
    arr_nousar_RecorreDouble(array, anyade, array, "prueba (MODO)", __LINE__);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informes_completos()[0].ubicacion_origen, "arrayprv (ARRAYS.DLL)")
        << "the full check names its own place";
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(arr_NumElemsDouble(array), 1u);
    arr_DestruyeDouble(&array);
}

BOOL anota(double *elemento, void *datos)
{
    static_cast<std::vector<double> *>(datos)->push_back(*elemento);
    return CIERTO;
}

TEST_F(ConModoComprobacion, TraversalRunsTheFullCheckFirst)
{
    ARRAY *array = crea_con_suma_corrupta();
    std::vector<double> visitados;
    arr_nousar_RecorreDouble(array, anota, &visitados, "prueba (MODO)", __LINE__);
    EXPECT_EQ(informes(), INFORMES_SUMA_CORRUPTA);
    EXPECT_EQ(visitados.size(), 300u);
    repara_suma(array);
    arr_DestruyeDouble(&array);
}

} // namespace
