// The full consistency check: each invariant of the header, broken on purpose, is reported by its
// own text; the check goes on after a failure, except where going on would read memory that the
// header does not describe.
#include "soporte/prueba_arrays.h"

#include "modo_comprobacion/array_corrompible.h"
#include "modo_comprobacion/escenarios.h"

namespace {

class ComprobacionCompleta : public PruebaArrays {
protected:
    // 300 doubles in two rows: 256 of capacity 256, then 44 of capacity 44.
    ArrayCorrompible dos_filas{elem_DOUBLE_NO_USAR, 300};
    ArrayCorrompible vacio{elem_DOUBLE_NO_USAR, 0};

    Textos comprueba(const ArrayCorrompible &array, BOOL modo = 1)
    {
        arrayprv_comprueba_array(array.get(), modo);
        return informes();
    }
};

TEST_F(ComprobacionCompleta, IntactArraysAreNotReported)
{
    EXPECT_EQ(comprueba(dos_filas), Textos{});
    EXPECT_EQ(comprueba(vacio), Textos{});
}

TEST_F(ComprobacionCompleta, NullArrayIsReported)
{
    arrayprv_comprueba_array(nullptr, 1);
    EXPECT_EQ(informes(), Textos{"array"});
}

TEST_F(ComprobacionCompleta, WrongMarkIsReportedAndEndsTheCheck)
{
    dos_filas->mascara_debug = 'X';
    dos_filas->num_bits = 1;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->mascara_debug == MASCARA_DEBUG"});
}

TEST_F(ComprobacionCompleta, RunningWritingTraversalIsReportedInStrictModeNamingTheChecker)
{
    dos_filas->en_bucle = CIERTO;
    arrayprv_comprueba_array(dos_filas.get(), 1);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informes_completos()[0].ubicacion_origen, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
}

TEST_F(ComprobacionCompleta, RunningWritingTraversalIsReportedInLenientModeOnlyWhileTheSwitchIsOne)
{
    dos_filas->en_bucle = CIERTO;
    EXPECT_EQ(comprueba(dos_filas, 0), Textos{"en_bucle == FALSO"});
    arrayprv_set_comprobar_en_bucle(0);
    EXPECT_EQ(comprueba(dos_filas, 0), Textos{});
    arrayprv_set_comprobar_en_bucle(1);
}

TEST_F(ComprobacionCompleta, RunningReadTraversalIsNotExamined)
{
    dos_filas->en_bucle_lectura = CIERTO;
    EXPECT_EQ(comprueba(dos_filas), Textos{});
}

TEST_F(ComprobacionCompleta, TooManyRowsIsReportedWithoutReadingTheTables)
{
    dos_filas->num_filas = MAX_FILAS;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->num_filas < INT_MAX / sizeof(char *) - 1"});
}

TEST_F(ComprobacionCompleta, EachMissingRowTableIsReportedInOrder)
{
    dos_filas->long_filas = nullptr;
    dos_filas->max_long_filas = nullptr;
    dos_filas->buffer = nullptr;
    EXPECT_EQ(comprueba(dos_filas),
              (Textos{"array->long_filas", "array->max_long_filas", "array->buffer"}));
}

TEST_F(ComprobacionCompleta, MissingCapacityTableIsReported)
{
    dos_filas->max_long_filas = nullptr;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->max_long_filas"});
}

TEST_F(ComprobacionCompleta, MissingPrefixSumTableIsNotTestedNorRead)
{
    dos_filas->acumulado_filas = nullptr;
    EXPECT_EQ(comprueba(dos_filas), Textos{});
}

TEST_F(ComprobacionCompleta, MissingRowBlockIsReported)
{
    dos_filas->buffer[1] = nullptr;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->buffer[i]"});
}

TEST_F(ComprobacionCompleta, EmptyRowIsReported)
{
    dos_filas->long_filas[1] = 0;
    dos_filas->num_elems = 256;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->long_filas[i] > 0"});
}

TEST_F(ComprobacionCompleta, RowCountAboveItsCapacityIsReported)
{
    dos_filas->max_long_filas[1] = 43;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->long_filas[i] <= array->max_long_filas[i]"});
}

TEST_F(ComprobacionCompleta, RowCapacityAboveTheMaximumRowLengthIsReported)
{
    dos_filas->long_max_fila_en_elem = 100;
    EXPECT_EQ(comprueba(dos_filas),
              Textos{"array->max_long_filas[i] <= array->long_max_fila_en_elem"});
}

TEST_F(ComprobacionCompleta, FirstPrefixSumOtherThanZeroIsReported)
{
    ArrayCorrompible una_fila(elem_DOUBLE_NO_USAR, 10);
    una_fila->acumulado_filas[0] = 1;
    una_fila->num_elems = 11;
    EXPECT_EQ(comprueba(una_fila), Textos{"array->acumulado_filas[0] == 0"});
}

TEST_F(ComprobacionCompleta, WrongPrefixSumIsReported)
{
    dos_filas->acumulado_filas[1] = 255;
    dos_filas->num_elems = 299;
    EXPECT_EQ(comprueba(dos_filas),
              Textos{"array->acumulado_filas[i] == "
                     "array->acumulado_filas[i - 1] + array->long_filas[i - 1]"});
}

TEST_F(ComprobacionCompleta, WrongElementCountIsReported)
{
    dos_filas->num_elems = 301;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->acumulado_filas[array->num_filas - 1] + "
                                           "array->long_filas[array->num_filas - 1] == "
                                           "array->num_elems"});
}

TEST_F(ComprobacionCompleta, OneCorruptionMayGiveSeveralReports)
{
    dos_filas->acumulado_filas[1] = 255;
    EXPECT_EQ(comprueba(dos_filas), INFORMES_SUMA_CORRUPTA);
}

TEST_F(ComprobacionCompleta, LaterInvariantsAreExaminedAfterAFailure)
{
    dos_filas->buffer[0] = nullptr;
    dos_filas->num_bits = 1;
    EXPECT_EQ(comprueba(dos_filas), (Textos{"array->buffer[i]", "array->num_bits == 0"}));
}

TEST_F(ComprobacionCompleta, ElementsWithoutRowsAreReported)
{
    vacio->num_elems = 1;
    EXPECT_EQ(comprueba(vacio), Textos{"array->num_elems == 0"});
}

TEST_F(ComprobacionCompleta, TablesWithoutRowsAreReportedOneByOne)
{
    size_t tabla[1] = {0};
    char *filas[1] = {nullptr};
    vacio->long_filas = tabla;
    vacio->max_long_filas = tabla;
    vacio->acumulado_filas = tabla;
    vacio->buffer = filas;
    EXPECT_EQ(comprueba(vacio),
              (Textos{"array->long_filas == NULL", "array->max_long_filas == NULL",
                      "array->acumulado_filas == NULL", "array->buffer == NULL"}));
}

TEST_F(ComprobacionCompleta, BitsCountedOutsideABitArrayAreReported)
{
    dos_filas->num_bits = 1;
    EXPECT_EQ(comprueba(dos_filas), Textos{"array->num_bits == 0"});
}

TEST_F(ComprobacionCompleta, BitArrayCountsItsBits)
{
    ArrayCorrompible bits(elem_BIT_NO_USAR, 9);
    EXPECT_EQ(ULONG{bits->num_bits}, 9u); // a copy: the header is packed
    EXPECT_EQ(comprueba(bits), Textos{});
}

} // namespace
