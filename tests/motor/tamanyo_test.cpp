// Growing and shrinking by size: new elements are zero except slots that a shrink cut off, which
// come back as they were; a shrink releases what the cut elements own; bit arrays count bits.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"
#include "services/memoria.h"

#include <climits>

namespace {

using V = std::vector<size_t>;

using Crecer = PruebaArrays;

TEST_F(Crecer, GrowingAnEmptyArrayAddsZeroElementsInFullRows)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_AumentaTamanyoDouble(array, 300);
    EXPECT_EQ(longitudes(array), (V{256, 44}));
    EXPECT_EQ(contenido(array), std::vector<double>(300, 0.0));
    arr_DestruyeDouble(&array);
}

TEST_F(Crecer, GrowingFillsTheLastRowBeforeAddingRows)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arr_AumentaTamanyoDouble(array, 300);
    EXPECT_EQ(longitudes(array), (V{11, 256, 33}));
    EXPECT_EQ(acumulados(array), (V{0, 11, 267}));
    std::vector<double> esperado = numerados(1, 3);
    esperado.resize(300, 0.0);
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(Crecer, GrowingCompactsTheRowsFirst)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arr_AumentaTamanyoDouble(array, 16);
    EXPECT_EQ(longitudes(array), V{16});
    std::vector<double> esperado = numerados(1, 15);
    esperado.push_back(0.0);
    EXPECT_EQ(contenido(array), esperado);
    arr_DestruyeDouble(&array);
}

TEST_F(Crecer, GrowingToTheCountChangesNothing)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    arr_AumentaTamanyoDouble(array, 10);
    EXPECT_EQ(longitudes(array), (V{5, 5}));
    arr_DestruyeDouble(&array);
}

TEST_F(Crecer, GrowingBelowTheCountIsReportedTwiceAndChangesNothing)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arr_AumentaTamanyoDouble(array, 2);
    EXPECT_EQ(informes(),
              (Textos{"nuevo_tamanyo >= array->num_elems", "nuevo_tamanyo > array->num_elems"}));
    EXPECT_EQ(contenido(array), numerados(1, 3));
    arr_DestruyeDouble(&array);
}

using Reducir = PruebaArrays;

TEST_F(Reducir, ShrinkingDoublesAndGrowingBackShowsTheOldValues)
{
    ARRAY *array = crea_doubles_en_filas({10});
    arr_ReduceTamanyoDouble(array, 5);
    EXPECT_EQ(contenido(array), numerados(1, 5));
    arr_AumentaTamanyoDouble(array, 10);
    EXPECT_EQ(contenido(array), numerados(1, 10));
    arr_DestruyeDouble(&array);
}

TEST_F(Reducir, ShrinkingCutsFromTheLastRowBackwardsAndKeepsCapacities)
{
    ARRAY *array = crea_doubles_en_filas({5, 5, 5});
    arr_ReduceTamanyoDouble(array, 7);
    EXPECT_EQ(longitudes(array), (V{5, 2}));
    EXPECT_EQ(capacidades(array), (V{5, 5}));
    EXPECT_EQ(double_en(array, 1, 2), 8.0);
    EXPECT_EQ(contenido(array), numerados(1, 7));
    arr_DestruyeDouble(&array);
}

TEST_F(Reducir, ShrinkingToZeroLeavesNoRows)
{
    ARRAY *array = arr_CreaDouble(600);
    arr_ReduceTamanyoDouble(array, 0);
    EXPECT_TRUE(sin_filas(array));
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
}

TEST_F(Reducir, ShrinkingAboveTheCountIsReportedAndChangesNothing)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arr_ReduceTamanyoDouble(array, 4);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo <= array->num_elems"});
    EXPECT_EQ(contenido(array), numerados(1, 3));
    arr_DestruyeDouble(&array);
}

TEST_F(Reducir, CuttingANullArrayIsReported)
{
    arrayprv_recorta(nullptr, 0);
    EXPECT_EQ(informes(), Textos{"array"});
}

TEST_F(Reducir, CuttingToTheCountIsReportedAndChangesNothing)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    arrayprv_recorta(array, 3);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo < array->num_elems"});
    EXPECT_EQ(contenido(array), numerados(1, 3));
    arr_DestruyeDouble(&array);
}

// The count is made to claim more elements than fit in an int: the cut is reported, then takes
// every row there is.
TEST_F(Reducir, CuttingMoreThanAnIntCountsAtOnceIsReported)
{
    ARRAY *array = crea_doubles_en_filas({5, 5});
    array->num_elems = size_t{INT_MAX} + 10;
    arrayprv_recorta(array, 0);
    EXPECT_EQ(informes(), Textos{"array->num_elems - nuevo_tamanyo < INT_MAX"});
    EXPECT_TRUE(sin_filas(array));
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    arr_DestruyeDouble(&array);
}

// A string array built through the engine: its strings are owned.
class Cadenas : public PruebaConArray {
protected:
    ARRAY *crea_array() override
    {
        bloques_sin_cadenas = zarpspy_bloques_vivos();
        return crea_cadenas({"uno", "dos", "tres"});
    }

    const char *cadena(ULONG i) const
    {
        return *static_cast<char *const *>(arrayprv_get(array, i, elem_CADENA_NO_USAR));
    }

    size_t bloques_sin_cadenas = 0;
};

TEST_F(Cadenas, ShrinkingAStringArrayToZeroDestroysEveryString)
{
    arrayprv_reduce_tamanyo(array, 0);
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques_sin_cadenas + 1); // only the header
}

TEST_F(Cadenas, GrowingAStringArrayAgainGivesNullStrings)
{
    arrayprv_reduce_tamanyo(array, 0);
    arrayprv_aumenta_tamanyo(array, 3);
    EXPECT_EQ(cadena(0), nullptr);
    EXPECT_EQ(cadena(1), nullptr);
    EXPECT_EQ(cadena(2), nullptr);
}

TEST_F(Cadenas, ShrinkingDestroysOnlyTheCutStrings)
{
    arrayprv_reduce_tamanyo(array, 1);
    EXPECT_STREQ(cadena(0), "uno");
    arrayprv_aumenta_tamanyo(array, 3);
    EXPECT_EQ(cadena(1), nullptr);
    EXPECT_EQ(cadena(2), nullptr);
}

TEST_F(Reducir, ShrinkingAPointerArrayReportsEveryCutPointerStillSet)
{
    int uno = 1;
    int dos = 2;
    ARRAY *array = arrayprv_crea(0, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    for (void *puntero : {static_cast<void *>(nullptr), static_cast<void *>(&uno),
                          static_cast<void *>(nullptr), static_cast<void *>(&dos)})
        arrayprv_append(array, &puntero, elem_PUNTERO_NO_USAR);
    arrayprv_reduce_tamanyo(array, 1);
    EXPECT_EQ(informes(), (Textos{"ptr == NULL", "ptr == NULL"}));
    EXPECT_EQ(arrayprv_num_elems(array), 1u);
    arrayprv_destruye(&array);
}

// A bit array of some bits grown or shrunk to others: the bit count follows the request, and the
// bytes that hold the bits are added or cut as the byte count changes.
struct CambioDeBits {
    const char *nombre;
    ULONG bits_iniciales;
    ULONG bits_nuevos;
    size_t bytes_esperados;
};

void PrintTo(const CambioDeBits &cambio, std::ostream *salida) { *salida << cambio.nombre; }

class Bits : public PruebaArrays, public ::testing::WithParamInterface<CambioDeBits> {};

INSTANTIATE_TEST_SUITE_P(
    Cambios, Bits,
    ::testing::Values(CambioDeBits{"GrowingFromNineToTwelveBitsChangesOnlyTheBitCount", 9, 12, 2},
                      CambioDeBits{"GrowingFromNineToSeventeenBitsAddsAByte", 9, 17, 3},
                      CambioDeBits{"ShrinkingFromTwelveToTenBitsChangesOnlyTheBitCount", 12, 10, 2},
                      CambioDeBits{"ShrinkingFromSeventeenToEightBitsKeepsOneByte", 17, 8, 1}),
    [](const ::testing::TestParamInfo<CambioDeBits> &info) {
        return std::string(info.param.nombre);
    });

TEST_P(Bits, CountBitsAndHoldThemInBytes)
{
    const CambioDeBits &cambio = GetParam();
    ARRAY *array = arrayprv_crea(cambio.bits_iniciales, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    if (cambio.bits_nuevos > cambio.bits_iniciales)
        arrayprv_aumenta_tamanyo(array, cambio.bits_nuevos);
    else
        arrayprv_reduce_tamanyo(array, cambio.bits_nuevos);
    EXPECT_EQ(arrayprv_num_elems(array), cambio.bits_nuevos);
    EXPECT_EQ(size_t{array->num_elems}, cambio.bytes_esperados);
    arrayprv_destruye(&array);
}

using BitsBajoLaCuenta = PruebaArrays;

TEST_F(BitsBajoLaCuenta, GrowingBelowTheByteCountIsReportedButTakesTheBitCount)
{
    ARRAY *array = arrayprv_crea(16, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    arrayprv_aumenta_tamanyo(array, 3);
    EXPECT_EQ(informes(),
              (Textos{"nuevo_tamanyo >= array->num_elems", "nuevo_tamanyo > array->num_elems"}));
    EXPECT_EQ(ULONG{array->num_bits}, 3u);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    arrayprv_destruye(&array);
}

} // namespace
