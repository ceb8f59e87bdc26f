// Row storage: the growth rule, adding, inserting and removing rows, removing empty rows,
// compaction, moving runs of elements between rows, and one element in or out of its row.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"
#include "services/losas.h"
#include "services/memoria.h"

namespace {

using V = std::vector<size_t>;

// Rows of at most five doubles.
constexpr ULONG FILAS_DE_5 = 5 * sizeof(double);

using ReglaDeCrecimiento = PruebaArrays;

TEST_F(ReglaDeCrecimiento, AFreshRowForOneElementHoldsEleven)
{
    EXPECT_EQ(arrayprv_incremento_fila(0, 1, 256), 11u);
}

TEST_F(ReglaDeCrecimiento, AFreshRowForNoElementHoldsTen)
{
    EXPECT_EQ(arrayprv_incremento_fila(0, 0, 256), 10u);
}

TEST_F(ReglaDeCrecimiento, ARowGainsAFifthOfItsLengthPlusTheNeedPlusTen)
{
    EXPECT_EQ(arrayprv_incremento_fila(104, 1, 256), 20u + 1 + 10);
}

TEST_F(ReglaDeCrecimiento, TheGainStopsAtTheMaximumRowLength)
{
    EXPECT_EQ(arrayprv_incremento_fila(250, 1, 256), 6u);
}

TEST_F(ReglaDeCrecimiento, ANeedBeyondTheMaximumIsReported)
{
    EXPECT_EQ(arrayprv_incremento_fila(250, 10, 256), 6u);
    EXPECT_EQ(informes(), Textos{"long_actual + elem_a_poner <= long_max"});
}

using Filas = PruebaArrays;

TEST_F(Filas, AddedRowsContinueThePrefixSumsOfTheExistingRows)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arrayprv_anyade_filas(array, 300);
    EXPECT_EQ(longitudes(array), (V{3, 256, 44}));
    EXPECT_EQ(capacidades(array), (V{11, 256, 44}));
    EXPECT_EQ(acumulados(array), (V{0, 3, 259}));
    EXPECT_EQ(size_t{array->num_elems}, 303u);
    arr_DestruyeDouble(&array);
}

// A slab's chunk is 2 MiB: the rows of doubles after the first 4 chunks' worth (4096 rows of 2048
// bytes) take their blocks from a slab, each a slot of the row and the block's prefix.
TEST_F(Filas, TheRowsOfALargeArrayPastFourChunksComeFromASlab)
{
    const size_t en_losas = losas_bytes_en_uso();
    constexpr size_t FILAS_DEL_MONTON = 4 * LOSAS_BYTES_TROZO / 2048;
    ARRAY *array = arr_CreaDouble(0);
    for (size_t i = 0; i < FILAS_DEL_MONTON * 256; ++i)
        arr_AppendDouble(array, static_cast<double>(i));
    EXPECT_EQ(losas_bytes_en_uso(), en_losas);
    for (size_t i = FILAS_DEL_MONTON * 256; i < (FILAS_DEL_MONTON + 3) * 256; ++i)
        arr_AppendDouble(array, static_cast<double>(i));
    arr_AppendDouble(array, -1.0); // a row of its own
    EXPECT_EQ(losas_bytes_en_uso() - en_losas, 4 * (2048u + 16));
    EXPECT_EQ(arr_GetDouble(array, (FILAS_DEL_MONTON + 1) * 256 + 7), (FILAS_DEL_MONTON + 1) * 256 + 7.0);
    EXPECT_EQ(arr_GetDouble(array, (FILAS_DEL_MONTON + 3) * 256), -1.0);
    arr_DestruyeDouble(&array);
    EXPECT_EQ(losas_bytes_en_uso(), en_losas);
}

TEST_F(Filas, AddingRowsForNoElementIsReportedAndAddsNothing)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arrayprv_anyade_filas(array, 0);
    EXPECT_EQ(informes(), Textos{"num_elems_a_poner > 0"});
    EXPECT_EQ(longitudes(array), V{3});
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, AnInsertedEmptyRowTakesThePrefixSumOfItsPlace)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    arrayprv_inserta_fila(array, 1, 3);
    EXPECT_EQ(longitudes(array), (V{5, 0, 5}));
    EXPECT_EQ(capacidades(array), (V{5, 13, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 5, 5}));
    EXPECT_EQ(double_en(array, 1, 0), 0.0);
    arrayprv_quita_filas_vacias(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, InsertingARowPastTheLastIsReportedAndInsertsNothing)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    arrayprv_inserta_fila(array, 3, 0);
    EXPECT_EQ(informes(), Textos{"fila <= array->num_filas"});
    EXPECT_EQ(longitudes(array), (V{5, 5}));
    arr_DestruyeDouble(&array);
}

// The row count is made to claim the limit, with a row index past it so that nothing is touched.
TEST_F(Filas, InsertingARowAtTheRowLimitIsReported)
{
    ARRAY *array = crea_doubles_en_filas({5});
    const size_t num_filas = array->num_filas;
    array->num_filas = MAX_FILAS;
    arrayprv_inserta_fila(array, MAX_FILAS + 1, 0);
    array->num_filas = num_filas;
    EXPECT_EQ(informes(), (Textos{"fila <= array->num_filas",
                                  "array->num_filas < INT_MAX / sizeof(char *) - 1"}));
    EXPECT_EQ(longitudes(array), V{5});
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, RemovingARowOfAnArrayWithoutRowsIsReported)
{
    ARRAY *array = arr_CreaDouble(0);
    arrayprv_borra_fila(array, 0);
    EXPECT_EQ(informes(), Textos{"array->num_filas > 0"});
    EXPECT_EQ(size_t{array->num_filas}, 0u);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, RemovingAMiddleRowLowersThePrefixSumsOfTheLaterRows)
{
    ARRAY *array = crea_doubles_en_filas({5, 6, 7});
    arrayprv_borra_fila(array, 1);
    array->num_elems -= 6;
    EXPECT_EQ(longitudes(array), (V{5, 7}));
    EXPECT_EQ(acumulados(array), (V{0, 5}));
    std::vector<double> esperado = numerados(1, 5);
    for (double valor : numerados(12, 18))
        esperado.push_back(valor);
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, RemovingTheOnlyElementOfTheOnlyRowFreesAllFourTables)
{
    ARRAY *array = arr_CreaDouble(0);
    const size_t bloques_sin_filas = zarpspy_bloques_vivos();
    arr_AppendDouble(array, 1.0);
    arr_BorrarDouble(array, 0);
    EXPECT_TRUE(sin_filas(array));
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques_sin_filas);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, MovingTheWholeContentOfARowLeavesItEmpty)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arrayprv_mueve_elementos(array, 0, 5, 1, 0, 5);
    EXPECT_EQ(longitudes(array), (V{10, 0, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 10, 10}));
    for (size_t pos = 0; pos < 5; ++pos)
        EXPECT_EQ(double_en(array, 1, pos), 0.0);
    arrayprv_quita_filas_vacias(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, RemovingEmptyRowsAfterAMoveKeepsThePrefixSumsValid)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arrayprv_mueve_elementos(array, 0, 5, 1, 0, 5);
    arrayprv_quita_filas_vacias(array);
    EXPECT_EQ(longitudes(array), (V{10, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 10}));
    arrayprv_comprueba_array(array, 1);
    EXPECT_EQ(contenido(array), numerados(1, 15));
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, RemovingEmptyRowsWhenAllAreEmptyFreesTheTables)
{
    ARRAY *array = arr_CreaDouble(0);
    arrayprv_inserta_fila(array, 0, 0);
    arrayprv_inserta_fila(array, 0, 0);
    arrayprv_quita_filas_vacias(array);
    EXPECT_TRUE(sin_filas(array));
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, CompactionOfRowsOfFiveFiveFiveEndsInOneRowOfFifteen)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arrayprv_compacta(array);
    EXPECT_EQ(longitudes(array), V{15});
    EXPECT_EQ(contenido(array), numerados(1, 15));
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, CompactionFillsEachRowUpToTheMaximumLength)
{
    ARRAY *array = crea_doubles_en_filas({3, 3, 3}, FILAS_DE_5);
    arrayprv_compacta(array);
    EXPECT_EQ(longitudes(array), (V{5, 4}));
    EXPECT_EQ(acumulados(array), (V{0, 5}));
    EXPECT_EQ(contenido(array), numerados(1, 9));
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, CompactingANullArrayIsReported)
{
    arrayprv_compacta(nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(Filas, MovingARunIntoTheMiddleOfARowOpensAGapThere)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    arrayprv_mueve_elementos(array, 0, 2, 1, 1, 2);
    EXPECT_EQ(longitudes(array), (V{7, 3}));
    EXPECT_EQ(acumulados(array), (V{0, 7}));
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 2, 7, 8, 3, 4, 5, 6, 9, 10}));
    EXPECT_EQ(double_en(array, 1, 3), 0.0);
    EXPECT_EQ(double_en(array, 1, 4), 0.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Filas, MovingARunToALaterRowLowersThePrefixSumsBetween)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arrayprv_mueve_elementos(array, 2, 0, 0, 3, 2);
    EXPECT_EQ(longitudes(array), (V{3, 5, 7}));
    EXPECT_EQ(acumulados(array), (V{0, 3, 8}));
    EXPECT_EQ(contenido(array),
              (std::vector<double>{1, 2, 3, 6, 7, 8, 9, 10, 4, 5, 11, 12, 13, 14, 15}));
    arr_DestruyeDouble(&array);
}

// A move with broken arguments is reported and moves nothing.
class MovimientoInvalido : public PruebaConArray {
protected:
    ARRAY *crea_array() override { return crea_doubles_en_filas({5, 5}, 8 * sizeof(double)); }
    void al_terminar() override { EXPECT_EQ(contenido(array), numerados(1, 10)); }
};

TEST_F(MovimientoInvalido, NothingToMoveInsideOneRowReportsBoth)
{
    arrayprv_mueve_elementos(array, 0, 0, 0, 0, 0);
    EXPECT_EQ(informes(), (Textos{"elem_a_mover > 0", "fila_dest != fila_org"}));
}

TEST_F(MovimientoInvalido, MoreThanTheOriginHoldsIsReported)
{
    arrayprv_mueve_elementos(array, 0, 5, 1, 3, 3);
    EXPECT_EQ(informes(), Textos{"pos_org + elem_a_mover <= array->long_filas[fila_org]"});
}

TEST_F(MovimientoInvalido, BeyondTheMaximumRowLengthIsReported)
{
    arrayprv_mueve_elementos(array, 0, 5, 1, 0, 5);
    EXPECT_EQ(informes(),
              Textos{"array->long_filas[fila_dest] + elem_a_mover <= array->long_max_fila_en_elem"});
}

using ElementoEnFila = PruebaArrays;

TEST_F(ElementoEnFila, InsertingIntoAFullRowEnlargesItByTheGrowthRule)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    const double nuevo = 0.5;
    const posicion_array posi{0, 2};
    EXPECT_TRUE(arrayprv_inserta_en_fila(array, &posi, &nuevo));
    ++array->num_elems;
    EXPECT_EQ(longitudes(array), (V{6, 5}));
    EXPECT_EQ(capacidades(array), (V{5 + 1 + 1 + 10, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 6}));
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 2, 0.5, 3, 4, 5, 6, 7, 8, 9, 10}));
    arr_DestruyeDouble(&array);
}

// A row whose count is made to exceed its capacity.
TEST_F(ElementoEnFila, InsertingIntoARowFullerThanItsCapacityIsReported)
{
    ARRAY *array = crea_doubles_en_filas({5});
    array->max_long_filas[0] = 4;
    const double nuevo = 6.0;
    const posicion_array posi{0, 5};
    EXPECT_TRUE(arrayprv_inserta_en_fila(array, &posi, &nuevo));
    ++array->num_elems;
    EXPECT_EQ(informes(),
              Textos{"array->long_filas[posi->fila] == array->max_long_filas[posi->fila]"});
    EXPECT_EQ(longitudes(array), V{6});
    arr_DestruyeDouble(&array);
}

// A pointer array whose element size is made wrong for the one insertion.
TEST_F(ElementoEnFila, InsertingIntoAPointerArrayChecksThePointerSize)
{
    ARRAY *array = arrayprv_crea(0, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    void *nulo = nullptr;
    arrayprv_append(array, &nulo, elem_PUNTERO_NO_USAR);
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    array->size_elem = sizeof(void *) / 2;
    const posicion_array posi{0, 0};
    EXPECT_TRUE(arrayprv_inserta_en_fila(array, &posi, &nulo));
    array->size_elem = sizeof(void *);
    ++array->num_elems;
    EXPECT_EQ(informes(), Textos{"array->size_elem == sizeof(void *)"});
    EXPECT_EQ(longitudes(array), V{2});
    arrayprv_destruye(&array);
}

TEST_F(ElementoEnFila, RemovingFromAnEmptyRowIsReported)
{
    ARRAY *array = crea_doubles_en_filas({5});
    arrayprv_inserta_fila(array, 1, 0);
    const posicion_array posi{1, 0};
    arrayprv_borra_en_fila(array, &posi);
    EXPECT_EQ(informes(), Textos{"array->long_filas[posi->fila] > 0"});
    EXPECT_EQ(longitudes(array), (V{5, 0}));
    arrayprv_quita_filas_vacias(array);
    arr_DestruyeDouble(&array);
}

TEST_F(ElementoEnFila, RemovingAnElementZeroesTheVacatedSlotAndKeepsTheCapacity)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    const posicion_array posi{0, 1};
    arrayprv_borra_en_fila(array, &posi);
    --array->num_elems;
    EXPECT_EQ(longitudes(array), (V{4, 5}));
    EXPECT_EQ(capacidades(array), (V{5, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 4}));
    EXPECT_EQ(double_en(array, 0, 4), 0.0);
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 3, 4, 5, 6, 7, 8, 9, 10}));
    arr_DestruyeDouble(&array);
}

} // namespace
