// The guide from indices to rows kept beside the header: inserts and deletes build and rebuild
// it, the lookup takes its rows as hints confirmed by the prefix sums, so a stale or wrong guide
// never changes where an index is found, and it is freed with the rows.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "core/guia.h"
#include "motor/ayudas_motor.h"

#include <random>

namespace {

using Guia = PruebaArrays;

// A Double array of n appended elements, then `cambios` random inserts and deletes (inserts
// first when `solo_inserciones`), which split rows and leave them uneven.
ARRAY *crea_desigual(ULONG n, size_t cambios, bool solo_inserciones)
{
    ARRAY *array = crea_doubles_anyadidos(n);
    std::mt19937 azar(21);
    for (size_t k = 0; k < cambios; ++k) {
        if (solo_inserciones || k % 2 == 0)
            arr_InsertarDouble(array, static_cast<ULONG>(azar() % array->num_elems), -1.0);
        else
            arr_BorrarDouble(array, static_cast<ULONG>(azar() % array->num_elems));
    }
    return array;
}

// The entry's own index lies in the row it names.
void comprueba_guia_exacta(const ARRAY *array)
{
    const GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_GT(guia.num_entradas, 0u);
    const std::vector<size_t> cuentas = longitudes(array);
    for (size_t entrada = 0; entrada < guia.num_entradas; ++entrada)
        ASSERT_EQ(guia.filas[entrada], std::get<0>(posicion_contada(cuentas, entrada << guia.desplazamiento)))
            << "entry " << entrada;
}

TEST_F(Guia, AppendsAloneBuildNoGuide)
{
    ARRAY *array = crea_doubles_anyadidos(100000);
    EXPECT_EQ(arrayprv_guia(array).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(array).filas, nullptr);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, InsertsBuildAGuideThatNamesTheRowOfEachEntry)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    const size_t num_filas = array->num_filas; // a copy: the header is packed
    ASSERT_GE(num_filas, 64u);
    while (arrayprv_guia(array).cambios != 0) // up to the next rebuild
        arr_InsertarDouble(array, 12345, -2.0);
    comprueba_guia_exacta(array);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, EveryIndexIsFoundThroughAStaleGuide)
{
    for (size_t cambios : {1000, 3001, 7777}) {
        ARRAY *array = crea_desigual(60000, cambios, false);
        ASSERT_GT(arrayprv_guia(array).cambios, 0u) << cambios;
        ASSERT_GT(arrayprv_guia(array).num_entradas, 0u) << cambios;
        comprueba_todas_las_posiciones(array);
        const std::vector<double> esperado = contenido(array);
        for (ULONG indice = 0; indice < array->num_elems; ++indice)
            ASSERT_EQ(arr_GetDouble(array, indice), esperado[indice]) << indice;
        arr_DestruyeDouble(&array);
    }
}

TEST_F(Guia, AGuideNamingWrongRowsChangesNoAnswer)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_GT(guia.num_entradas, 0u);
    std::mt19937 azar(5);
    for (size_t entrada = 0; entrada < guia.num_entradas; ++entrada)
        guia.filas[entrada] = static_cast<uint32_t>(azar() % (2 * array->num_filas));
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

// Deleting one-element rows can leave fewer rows than the lookup's window before the changes
// count up to a rebuild: the guide still has entries, and every index must still be found
// without reading past the row tables.
TEST_F(Guia, AGuideOutlivingMostOfItsRowsStillFindsEveryIndex)
{
    std::vector<size_t> cuentas(62, 1);
    cuentas.insert(cuentas.end(), 4, 8192);
    ARRAY *array = crea_doubles_en_filas(cuentas, 8192 * sizeof(double));
    for (int k = 0; k < 59; ++k)
        arr_BorrarDouble(array, 0);
    const size_t num_filas = array->num_filas; // a copy: the header is packed
    ASSERT_EQ(num_filas, 7u);
    ASSERT_GT(arrayprv_guia(array).num_entradas, 0u);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, GrowingCompactsTheRowsAndForgetsTheGuide)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    ASSERT_GT(arrayprv_guia(array).num_entradas, 0u);
    arr_AumentaTamanyoDouble(array, static_cast<ULONG>(array->num_elems + 10));
    EXPECT_EQ(arrayprv_guia(array).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(array).filas, nullptr);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, ANewHeaderInAReusedSlotStartsWithoutAGuide)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    arr_DestruyeDouble(&array);
    ARRAY *nuevo = arr_CreaDouble(10);
    EXPECT_EQ(arrayprv_guia(nuevo).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(nuevo).filas, nullptr);
    EXPECT_EQ(arrayprv_guia(nuevo).cambios, 0u);
    arr_DestruyeDouble(&nuevo);
}

} // namespace
