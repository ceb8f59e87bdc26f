// Where rows can be computed: appends leave every full row's index at row index / row length,
// changes to a row stop the computed rows before it, and operations that fill rows count them
// again. Each
// test checks the claim against the row lengths and maps every index through the engine.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

#include <vector>

namespace {

using FilasCalculables = PruebaArrays;

// Rows of 8 doubles, so that a few dozen elements make several rows.
constexpr ULONG FILA_DE_OCHO = 8 * sizeof(double);

size_t calculables(const ARRAY *array) { return arrayprv_guia(array).indices_calculables; }

// The claim holds, every index maps to its counted row, and reads give the expected values.
void comprueba(const ARRAY *array, const std::vector<double> &esperado)
{
    comprueba_filas_calculables(array);
    comprueba_todas_las_posiciones(array);
    EXPECT_EQ(contenido(const_cast<ARRAY *>(array)), esperado);
}

// 48 appended elements in rows of 8, two of them deleted (from rows 0 and 2): no row is computed
// any more. `esperado` receives the elements that remain.
ARRAY *crea_con_dos_borrados(std::vector<double> &esperado)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO);
    arr_BorrarDouble(array, 2);
    arr_BorrarDouble(array, 20);
    esperado = numerados(1, 48);
    esperado.erase(esperado.begin() + 2);
    esperado.erase(esperado.begin() + 20);
    return array;
}

TEST_F(FilasCalculables, AppendsMakeEveryFullRowComputable)
{
    ARRAY *array = crea_doubles_anyadidos(45, FILA_DE_OCHO); // five full rows and five elements
    EXPECT_EQ(calculables(array), 40u);
    comprueba(array, numerados(1, 45));
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, AnInsertStopsTheComputedRowsBeforeTheRowItSplits)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO);
    arr_InsertarDouble(array, 20, 0.5); // row 2 is full: it splits
    EXPECT_EQ(calculables(array), 16u);
    std::vector<double> esperado = numerados(1, 48);
    esperado.insert(esperado.begin() + 20, 0.5);
    comprueba(array, esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ADeleteStopsTheComputedRowsBeforeItsRow)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO);
    arr_BorrarDouble(array, 33);
    EXPECT_EQ(calculables(array), 32u);
    std::vector<double> esperado = numerados(1, 48);
    esperado.erase(esperado.begin() + 33);
    comprueba(array, esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, AppendsAfterAnUnevenRowAddNoComputedRows)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO);
    arr_BorrarDouble(array, 3); // row 0 holds 7 from now on
    for (int i = 0; i < 40; ++i)
        arr_AppendDouble(array, 100.0 + i);
    EXPECT_EQ(calculables(array), 0u);
    std::vector<double> esperado = numerados(1, 48);
    esperado.erase(esperado.begin() + 3);
    for (int i = 0; i < 40; ++i)
        esperado.push_back(100.0 + i);
    comprueba(array, esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, RowsAddedAfterAShortRowAreNotComputed)
{
    ARRAY *array = crea_doubles_anyadidos(20, FILA_DE_OCHO);
    arr_ReduceTamanyoDouble(array, 19); // the last row keeps room that a grow takes back
    arr_BorrarDouble(array, 18);        // and it is now the only short row
    ASSERT_EQ(calculables(array), 16u);
    arrayprv_anyade_filas(array, 12); // rows after the short last one, without compaction
    EXPECT_EQ(calculables(array), 16u);
    comprueba_filas_calculables(array);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ARowInsertedAmongFullRowsStopsTheComputedRowsThere)
{
    ARRAY *array = crea_doubles_anyadidos(45, FILA_DE_OCHO);
    arrayprv_inserta_fila(array, 2, 3);
    EXPECT_EQ(calculables(array), 16u);
    comprueba_filas_calculables(array);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ARowRemovedFromFullRowsStopsTheComputedRowsThere)
{
    ARRAY *array = crea_doubles_anyadidos(45, FILA_DE_OCHO); // the sixth row holds five
    arrayprv_borra_fila(array, 1); // leaves the count to its caller
    EXPECT_EQ(calculables(array), 8u);
    comprueba_filas_calculables(array);
    array->num_elems = 37;
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ShrinkingKeepsOnlyTheRowsBeforeTheCut)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO);
    arr_ReduceTamanyoDouble(array, 30);
    EXPECT_EQ(calculables(array), 24u);
    comprueba(array, numerados(1, 30));
    arr_DestruyeDouble(&array);
}

// Reads answer computed rows with no bound of their own: every change that lowers the count
// shortens a full row, which stops the computed rows before it, so an index past the new end is
// refused by its report.
TEST_F(FilasCalculables, AfterADeleteOrAShrinkIndicesPastTheEndAreReported)
{
    ARRAY *array = crea_doubles_anyadidos(48, FILA_DE_OCHO); // six full rows
    arr_BorrarDouble(array, 47);
    EXPECT_EQ(arr_GetDouble(array, 47), 0.0);
    arr_ReduceTamanyoDouble(array, 20);
    EXPECT_EQ(arr_GetDouble(array, 20), 0.0);
    arr_SetDouble(array, 39, 7.0);
    EXPECT_EQ(informes(), (Textos{"real_pos < array->num_elems", "real_pos < array->num_elems",
                                  "real_pos < array->num_elems"}));
    comprueba(array, numerados(1, 20));
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, GrowingCompactsAndCountsEveryRowAgain)
{
    std::vector<double> esperado;
    ARRAY *array = crea_con_dos_borrados(esperado);
    ASSERT_EQ(calculables(array), 0u);
    arr_AumentaTamanyoDouble(array, 50);
    EXPECT_EQ(calculables(array), 48u);
    esperado.resize(50, 0.0);
    comprueba(array, esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, GrowingWithinTheLastRowCountsTheRowsCompactionFilled)
{
    std::vector<double> esperado;
    ARRAY *array = crea_con_dos_borrados(esperado);
    ASSERT_EQ(calculables(array), 0u);
    arr_AumentaTamanyoDouble(array, 47); // compaction leaves 8, 8, 8, 8, 8, 6: the last takes one
    EXPECT_EQ(calculables(array), 40u);
    esperado.push_back(0.0);
    comprueba(array, esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ACopyComputesTheRowsItsOriginalDid)
{
    ARRAY *array = crea_doubles_anyadidos(45, FILA_DE_OCHO);
    ARRAY *copia = arr_CopiaDouble(array);
    EXPECT_EQ(calculables(copia), 40u);
    comprueba(copia, numerados(1, 45));
    arr_DestruyeDouble(&copia);
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, ConcatenationFillsRowsThatStayComputable)
{
    ARRAY *destino = crea_doubles_anyadidos(13, FILA_DE_OCHO);
    ARRAY *origen = crea_doubles_anyadidos(30, FILA_DE_OCHO);
    arr_ConcatenaDouble(destino, origen);
    EXPECT_EQ(calculables(destino), 40u);
    std::vector<double> esperado = numerados(1, 13);
    const std::vector<double> segundo = numerados(1, 30);
    esperado.insert(esperado.end(), segundo.begin(), segundo.end());
    comprueba(destino, esperado);
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&destino);
}

TEST_F(FilasCalculables, RowsOfALengthThatIsNotAPowerOfTwoAreNeverComputedThisWay)
{
    ARRAY *array = crea_doubles_anyadidos(100, 5 * sizeof(double));
    EXPECT_EQ(calculables(array), 0u);
    comprueba(array, numerados(1, 100));
    arr_DestruyeDouble(&array);
}

TEST_F(FilasCalculables, FreeingTheRowsForgetsThem)
{
    ARRAY *array = crea_doubles_anyadidos(45, FILA_DE_OCHO);
    arr_ReduceTamanyoDouble(array, 0);
    EXPECT_EQ(calculables(array), 0u);
    EXPECT_TRUE(sin_filas(array));
    arr_AppendDouble(array, 7.0);
    comprueba(array, {7.0});
    arr_DestruyeDouble(&array);
}

} // namespace
