// Appending, inserting, deleting, reading, writing and initialising elements: how rows open,
// grow, spill, split and disappear.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

namespace {

using V = std::vector<size_t>;

// Rows of at most five doubles (an odd maximum), and of one double.
constexpr ULONG FILAS_DE_5 = 5 * sizeof(double);
constexpr ULONG FILAS_DE_1 = sizeof(double);

// The capacities that one row takes, in order, while `n` doubles are appended to an empty array.
std::vector<size_t> capacidades_de_la_fila(size_t fila, ULONG n)
{
    ARRAY *array = arr_CreaDouble(0);
    std::vector<size_t> vistas;
    for (ULONG i = 0; i < n; ++i) {
        arr_AppendDouble(array, i);
        if (array->num_filas > fila &&
            (vistas.empty() || vistas.back() != array->max_long_filas[fila]))
            vistas.push_back(array->max_long_filas[fila]);
    }
    arr_DestruyeDouble(&array);
    return vistas;
}

using Anyadir = PruebaArrays;

TEST_F(Anyadir, TheFirstElementOpensARowOfEleven)
{
    ARRAY *array = arr_CreaDouble(0);
    const double valor = 2.5;
    EXPECT_EQ(arrayprv_append(array, &valor, elem_DOUBLE_NO_USAR), 1u);
    EXPECT_EQ(longitudes(array), V{1});
    EXPECT_EQ(capacidades(array), V{11});
    EXPECT_EQ(acumulados(array), V{0});
    EXPECT_EQ(contenido(array), std::vector<double>{2.5});
    arr_DestruyeDouble(&array);
}

TEST_F(Anyadir, TheFirstRowGrowsByTheRuleUpTo256)
{
    EXPECT_EQ(capacidades_de_la_fila(0, 257), (V{11, 24, 39, 57, 79, 105, 137, 175, 221, 256}));
}

TEST_F(Anyadir, TwoHundredFiftySevenDoublesFillARowAndOpenASecondOfTen)
{
    ARRAY *array = crea_doubles_anyadidos(257);
    EXPECT_EQ(longitudes(array), (V{256, 1}));
    EXPECT_EQ(capacidades(array), (V{256, 10}));
    EXPECT_EQ(acumulados(array), (V{0, 256}));
    EXPECT_EQ(contenido(array), numerados(1, 257));
    arr_DestruyeDouble(&array);
}

TEST_F(Anyadir, ARowStartedAtTenGrowsByTheRuleUpTo256)
{
    EXPECT_EQ(capacidades_de_la_fila(1, 512), (V{10, 23, 38, 56, 78, 104, 135, 173, 218, 256}));
}

TEST_F(Anyadir, AppendNAppendsTheValueNTimes)
{
    ARRAY *array = crea_doubles_anyadidos(1);
    arr_AppendNDoubles(array, 3, 7.0);
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 7, 7, 7}));
    arr_DestruyeDouble(&array);
}

TEST_F(Anyadir, AppendNOfOneCopyIsReportedAndStillAppendsIt)
{
    ARRAY *array = crea_doubles_anyadidos(1);
    arr_AppendNDoubles(array, 1, 7.0);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_double (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"num_veces > 1"});
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 7}));
    arr_DestruyeDouble(&array);
}

// The last row is made to hold more than the maximum row length says.
TEST_F(Anyadir, ALastRowBeyondTheMaximumLengthIsReportedAndANewRowOpens)
{
    ARRAY *array = crea_doubles_en_filas({256, 44});
    array->long_max_fila_en_elem = 40;
    arr_AppendDouble(array, 301.0);
    array->long_max_fila_en_elem = 256;
    EXPECT_EQ(informes(),
              Textos{"array->long_filas[array->num_filas - 1] == array->long_max_fila_en_elem"});
    EXPECT_EQ(longitudes(array), (V{256, 44, 1}));
    EXPECT_EQ(contenido(array), numerados(1, 301));
    arr_DestruyeDouble(&array);
}

using Insertar = PruebaArrays;

TEST_F(Insertar, InsertingAtTheCountBehavesLikeAnAppend)
{
    ARRAY *anyadido = crea_doubles_anyadidos(300);
    ARRAY *insertado = arr_CreaDouble(0);
    for (ULONG i = 1; i <= 300; ++i)
        arr_InsertarDouble(insertado, i - 1, i);
    EXPECT_EQ(longitudes(insertado), longitudes(anyadido));
    EXPECT_EQ(capacidades(insertado), capacidades(anyadido));
    EXPECT_EQ(acumulados(insertado), acumulados(anyadido));
    EXPECT_EQ(contenido(insertado), contenido(anyadido));
    arr_DestruyeDouble(&anyadido);
    arr_DestruyeDouble(&insertado);
}

TEST_F(Insertar, InsertingIntoARowWithRoomShiftsItsTail)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arr_InsertarDouble(array, 1, 1.5);
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 1.5, 2, 3}));
    EXPECT_EQ(longitudes(array), V{4});
    arr_DestruyeDouble(&array);
}

TEST_F(Insertar, InsertingIntoAFullRowSpillsItsLastElementIntoTheNextRow)
{
    ARRAY *array = crea_doubles_anyadidos(7, FILAS_DE_5);
    ASSERT_EQ(longitudes(array), (V{5, 2}));
    arr_InsertarDouble(array, 0, 0.0);
    EXPECT_EQ(longitudes(array), (V{5, 3}));
    EXPECT_EQ(acumulados(array), (V{0, 5}));
    EXPECT_EQ(contenido(array), numerados(0, 7));
    arr_DestruyeDouble(&array);
}

// An insertion into a full last row of five (1 .. 5): the row splits into halves of three and
// two, and the new element goes where its index falls.
struct Particion {
    const char *nombre;
    ULONG indice;
    V longitudes;
};

void PrintTo(const Particion &particion, std::ostream *salida) { *salida << particion.nombre; }

class InsertarEnFilaLlenaDeCinco : public PruebaArrays,
                                   public ::testing::WithParamInterface<Particion> {};

INSTANTIATE_TEST_SUITE_P(
    Indices, InsertarEnFilaLlenaDeCinco,
    ::testing::Values(
        // The first half keeps the extra element of the odd count, and takes the new one.
        Particion{"IntoTheFirstHalfWhichKeepsTheExtraElement", 1, V{4, 2}},
        // The tie stays in the first half, at its new end.
        Particion{"AtTheSplitPointStaysAtTheEndOfTheFirstHalf", 3, V{4, 2}},
        Particion{"PastTheSplitPointGoesIntoTheSecondHalf", 4, V{3, 3}}),
    [](const ::testing::TestParamInfo<Particion> &info) { return std::string(info.param.nombre); });

TEST_P(InsertarEnFilaLlenaDeCinco, SplitsTheRowInTwoHalves)
{
    ARRAY *array = crea_doubles_anyadidos(5, FILAS_DE_5);
    const ULONG indice = GetParam().indice;
    arr_InsertarDouble(array, indice, 0.5);
    EXPECT_EQ(longitudes(array), GetParam().longitudes);
    EXPECT_EQ(acumulados(array), (V{0, GetParam().longitudes[0]}));
    std::vector<double> esperado = numerados(1, 5);
    esperado.insert(esperado.begin() + indice, 0.5);
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(Insertar, TheSecondHalfOfASplitGetsRoomForItsHalfPlusTen)
{
    ARRAY *array = crea_doubles_anyadidos(256);
    arr_InsertarDouble(array, 0, 0.0);
    EXPECT_EQ(longitudes(array), (V{129, 128}));
    EXPECT_EQ(capacidades(array), (V{256, 138}));
    EXPECT_EQ(contenido(array), numerados(0, 256));
    arr_DestruyeDouble(&array);
}

TEST_F(Insertar, InsertingIntoAFullRowBeforeAFullRowSplitsIt)
{
    ARRAY *array = crea_doubles_anyadidos(10, FILAS_DE_5);
    arr_InsertarDouble(array, 2, 2.5);
    EXPECT_EQ(longitudes(array), (V{4, 2, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 4, 6}));
    EXPECT_EQ(contenido(array), (std::vector<double>{1, 2, 2.5, 3, 4, 5, 6, 7, 8, 9, 10}));
    arr_DestruyeDouble(&array);
}

// With rows of one element a full row cannot be halved.
TEST_F(Insertar, SplittingARowOfOneIsReportedAndTheElementGetsARowOfItsOwn)
{
    ARRAY *array = crea_doubles_anyadidos(2, FILAS_DE_1);
    arr_InsertarDouble(array, 0, 0.0);
    EXPECT_EQ(informes(), Textos{"long_fila_vieja > 0 && long_fila_nueva > 0"});
    EXPECT_EQ(longitudes(array), (V{1, 1, 1}));
    EXPECT_EQ(contenido(array), numerados(0, 2));
    arrayprv_comprueba_array(array, 1);
    EXPECT_EQ(informes(), Textos{});
    arr_DestruyeDouble(&array);
}

// The target row is made to hold more than the maximum row length says.
TEST_F(Insertar, ARowBeyondTheMaximumLengthIsReportedAndSplit)
{
    ARRAY *array = crea_doubles_en_filas({256, 44});
    array->long_max_fila_en_elem = 40;
    arr_InsertarDouble(array, 260, 0.5);
    array->long_max_fila_en_elem = 256;
    EXPECT_EQ(informes(), Textos{"array->long_filas[posi.fila] == array->long_max_fila_en_elem"});
    EXPECT_EQ(longitudes(array), (V{256, 23, 22}));
    EXPECT_EQ(arr_GetDouble(array, 260), 0.5);
    EXPECT_EQ(arr_GetDouble(array, 261), 261.0);
    arr_DestruyeDouble(&array);
}

using Borrar = PruebaArrays;

TEST_F(Borrar, DeletingTheOnlyElementOfARowRemovesTheRow)
{
    ARRAY *array = crea_doubles_en_filas({5, 1, 5}, FILAS_DE_5);
    arr_BorrarDouble(array, 5);
    EXPECT_EQ(longitudes(array), (V{5, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 5}));
    std::vector<double> esperado = numerados(1, 5);
    for (double valor : numerados(7, 11))
        esperado.push_back(valor);
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(Borrar, DeletingTheLastElementOfTheArrayLeavesNoRows)
{
    ARRAY *array = crea_doubles_anyadidos(12, FILAS_DE_5);
    ASSERT_EQ(size_t{array->num_filas}, 3u);
    while (arr_NumElemsDouble(array) > 0)
        arr_BorrarDouble(array, 0);
    EXPECT_TRUE(sin_filas(array));
    arr_DestruyeDouble(&array);
}

TEST_F(Borrar, RowsNeitherMergeNorShrinkOnDeletion)
{
    ARRAY *array = crea_doubles_anyadidos(10, FILAS_DE_5);
    for (int i = 0; i < 4; ++i)
        arr_BorrarDouble(array, 0);
    EXPECT_EQ(longitudes(array), (V{1, 5}));
    EXPECT_EQ(capacidades(array), (V{5, 5}));
    EXPECT_EQ(acumulados(array), (V{0, 1}));
    EXPECT_EQ(contenido(array), numerados(5, 10));
    arr_DestruyeDouble(&array);
}

using LeerYEscribir = PruebaArrays;

TEST_F(LeerYEscribir, GetGivesTheAddressOfTheElementInsideItsRow)
{
    ARRAY *array = arr_CreaDouble(300);
    EXPECT_EQ(arrayprv_get(array, 260, elem_DOUBLE_NO_USAR), array->buffer[1] + 4 * sizeof(double));
    arr_DestruyeDouble(&array);
}

TEST_F(LeerYEscribir, SetOverwritesOnlyTheElementAtTheIndex)
{
    ARRAY *array = crea_doubles_anyadidos(300);
    arr_SetDouble(array, 260, 0.5);
    std::vector<double> esperado = numerados(1, 300);
    esperado[260] = 0.5;
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(LeerYEscribir, InitialiseSetsEveryElementOfEveryRow)
{
    ARRAY *array = arr_CreaDouble(600);
    arr_InicializaDouble(array, 2.5);
    EXPECT_EQ(contenido(array), std::vector<double>(600, 2.5));
    arr_DestruyeDouble(&array);
}

} // namespace
