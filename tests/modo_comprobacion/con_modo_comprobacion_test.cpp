// Checking mode, in a process started with ARRAYPRUEBA set: the full consistency check replaces
// the cheap entry checks, so a corrupted header is reported and a read traversal is not seen, and
// every handle must be a live header of the pool before anything is read through it.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "modo_comprobacion/escenarios.h"
#include "soporte/sistema.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

using ConModoComprobacion = PruebaArrays;

TEST_F(ConModoComprobacion, ModeIsOnWhenArrayPruebaIsSet)
{
    ASSERT_TRUE(lee_variable("ARRAYPRUEBA")) << "this program runs with ARRAYPRUEBA set";
    EXPECT_EQ(arrayprv_es_modo_comprobacion(), CIERTO);
}

TEST_F(ConModoComprobacion, ModeStaysOnWhenTheVariableIsRemovedLater)
{
    arrayprv_es_modo_comprobacion();
    {
        const VariableDeEntorno sin_ella("ARRAYPRUEBA", nullptr);
        EXPECT_EQ(arrayprv_es_modo_comprobacion(), CIERTO);
    }
}

// The debug queries read a copy of the header; checking mode still knows the array as live.
TEST_F(ConModoComprobacion, DebugQueriesSeeALiveArray)
{
    ARRAY *array = arr_CreaDouble(3);
    arr_SetDouble(array, 1, 2.5);
    EXPECT_EQ(debugarr_num_elems(array), 3u);
    EXPECT_EQ(debugarr_tipo_array(array), static_cast<ULONG>(elem_DOUBLE_NO_USAR));
    arr_DestruyeDouble(&array);
    EXPECT_TRUE(informes().empty());
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

// What a call on a handle that is not a live header reports: the full check's two first texts
// stop at the validity mark, which is not read.
const Textos INFORMES_SIN_CABECERA = {"array->mascara_debug == MASCARA_DEBUG"};

// Every kind of call on a handle that is not a live header: a read, a write, an append, a count
// and a traversal. Each is reported and yields its neutral result; none reads through the handle.
void usa_todo(ARRAY *handle)
{
    EXPECT_EQ(arr_GetDouble(handle, 0), 0.0);
    arr_SetDouble(handle, 0, 1);
    arr_AppendDouble(handle, 2);
    EXPECT_EQ(arr_NumElemsDouble(handle), 0u);
    arr_nousar_RecorreDouble(handle, anota, nullptr, "prueba (MODO)", __LINE__);
}

TEST_F(ConModoComprobacion, WildHandleIsReportedWithoutBeingRead)
{
    const PaginaProhibida pagina;
    ASSERT_NE(pagina.inicio(), nullptr);
    usa_todo(reinterpret_cast<ARRAY *>(pagina.inicio()));
    EXPECT_EQ(informes(), Textos(5, INFORMES_SIN_CABECERA[0]));
}

// A copy of a live header, mark included, is still not a header of the pool: it is refused, and
// the array it copies is untouched.
TEST_F(ConModoComprobacion, ForgedCopyOfALiveHeaderIsRefused)
{
    ARRAY *array = arr_CreaDouble(1);
    arr_SetDouble(array, 0, 5);
    alignas(16) unsigned char falsa[sizeof(CabeceraArray)];
    std::memcpy(falsa, array, sizeof falsa);
    usa_todo(reinterpret_cast<ARRAY *>(falsa));
    EXPECT_EQ(informes(), Textos(5, INFORMES_SIN_CABECERA[0]));
    EXPECT_EQ(arr_NumElemsDouble(array), 1u);
    EXPECT_EQ(arr_GetDouble(array, 0), 5.0);
    arr_DestruyeDouble(&array);
}

TEST_F(ConModoComprobacion, PointerIntoAHeaderIsNotAHandle)
{
    ARRAY *array = arr_CreaDouble(1);
    usa_todo(reinterpret_cast<ARRAY *>(reinterpret_cast<char *>(array) + 8));
    EXPECT_EQ(informes(), Textos(5, INFORMES_SIN_CABECERA[0]));
    EXPECT_EQ(arr_NumElemsDouble(array), 1u);
    arr_DestruyeDouble(&array);
}

// A destroyed header keeps its last bytes; the pool's records, not the mark, make it dead.
TEST_F(ConModoComprobacion, DestroyedHandleIsDeadToThePoolBeforeItsMarkIsRead)
{
    ARRAY *array = arr_CreaDouble(1);
    ARRAY *copia_del_handle = array;
    arr_DestruyeDouble(&array);
    EXPECT_FALSE(zarpspy_cabecera_viva(copia_del_handle));
    usa_todo(copia_del_handle);
    EXPECT_EQ(informes(), Textos(5, INFORMES_SIN_CABECERA[0]));
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
