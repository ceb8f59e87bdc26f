// Creation, counting and destruction of arrays.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"
#include "services/memoria.h"

namespace {

using Creacion = PruebaArrays;

TEST_F(Creacion, EmptyDoubleArrayHasNoRowsAndNoTables)
{
    ARRAY *array = arr_CreaDouble(0);
    EXPECT_TRUE(sin_filas(array));
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Creacion, ThreeHundredDoublesFillTwoRows)
{
    ARRAY *array = arr_CreaDouble(300);
    ASSERT_EQ(size_t{array->num_filas}, 2u);
    EXPECT_EQ(array->long_filas[0], 256u);
    EXPECT_EQ(array->max_long_filas[0], 256u);
    EXPECT_EQ(array->long_filas[1], 44u);
    EXPECT_EQ(array->max_long_filas[1], 44u);
    EXPECT_EQ(array->acumulado_filas[0], 0u);
    EXPECT_EQ(array->acumulado_filas[1], 256u);
    for (ULONG i = 0; i < 300; ++i)
        EXPECT_EQ(arr_GetDouble(array, i), 0.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Creacion, DestroyingThroughANullHandleIsReported)
{
    ARRAY *array = nullptr;
    arr_DestruyeDouble(&array);
    EXPECT_EQ(informes(), Textos{"(*array) != NULL"});
    arr_DestruyeDouble(nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(Creacion, NineBitsAreHeldInTwoZeroBytes)
{
    ARRAY *array = arrayprv_crea(9, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(ULONG{array->num_bits}, 9u);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    EXPECT_EQ(size_t{array->size_elem}, 1u);
    ASSERT_EQ(size_t{array->num_filas}, 1u);
    EXPECT_EQ(array->buffer[0][0], 0);
    EXPECT_EQ(array->buffer[0][1], 0);
    EXPECT_EQ(arrayprv_num_elems(array), 9u);
    arrayprv_destruye(&array);
}

TEST_F(Creacion, OtherTypesCountNoBits)
{
    ARRAY *array = arrayprv_crea(9, elem_BYTE_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(ULONG{array->num_bits}, 0u);
    EXPECT_EQ(size_t{array->num_elems}, 9u);
    arrayprv_destruye(&array);
}

TEST_F(Creacion, CreatingWithThePointerTagIsReportedButGivesAnArray)
{
    ARRAY *array = arrayprv_crea(2, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    EXPECT_EQ(array->mascara_debug, MASCARA_DEBUG);
    EXPECT_EQ(size_t{array->num_elems}, 2u);
    EXPECT_EQ(size_t{array->size_elem}, sizeof(void *));
    arrayprv_destruye(&array);
}

TEST_F(Creacion, RowSizeBelowTheElementSizeIsReportedButGivesAnEmptyArray)
{
    ARRAY *array = arrayprv_crea(3, elem_DOUBLE_NO_USAR, 4);
    EXPECT_EQ(informes(), Textos{"array->long_max_fila_en_elem > 0"});
    EXPECT_EQ(size_t{array->long_max_fila_en_elem}, 0u);
    EXPECT_EQ(size_t{array->num_filas}, 0u);
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Creacion, UnknownTagHasNoSizeAndIsReportedAsUnhandled)
{
    EXPECT_EQ(arrayprv_size_elem(static_cast<tipo_elem_array>(19)), 0u);
    ASSERT_EQ(informes_completos().size(), 2u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(informes_completos()[1].clase, ARR_INFORME_ERROR);
    EXPECT_EQ(informes_completos()[1].ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(informes(), (Textos{"", ""}));
}

TEST_F(Creacion, RetiredTagIsRejectedFromCreationToDestruction)
{
    ARRAY *array = arrayprv_crea(0, elem_antiguo_PUNTO3DX, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), (Textos{"", "", "array->long_max_fila_en_elem > 0"}));
    EXPECT_EQ(size_t{array->size_elem}, 0u);
    arr_ReduceTamanyoDouble(array, 0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem != elem_antiguo_PUNTO3DX"});
    arr_DestruyeDouble(&array);
    EXPECT_EQ(informes(), Textos{"(*array)->tipo_elem != elem_antiguo_PUNTO3DX"});
    EXPECT_EQ(array, nullptr);
}

TEST_F(Creacion, DestroyingAStringArrayFreesEveryString)
{
    const size_t bloques_sin_array = zarpspy_bloques_vivos();
    ARRAY *array = crea_cadenas({"uno", "dos", "tres"});
    // The header, the four row tables, one row block and the three strings.
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques_sin_array + 1 + 4 + 1 + 3);
    arrayprv_destruye(&array);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques_sin_array);
}

TEST_F(Creacion, DestroyingAPointerArrayReportsEveryPointerStillSet)
{
    int uno = 1;
    int dos = 2;
    ARRAY *array = arrayprv_crea(0, elem_PUNTERO_NO_USAR, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    for (void *puntero : {static_cast<void *>(&uno), static_cast<void *>(nullptr),
                          static_cast<void *>(&dos)})
        arrayprv_append(array, &puntero, elem_PUNTERO_NO_USAR);
    arrayprv_destruye(&array);
    EXPECT_EQ(informes(), (Textos{"ptr == NULL", "ptr == NULL"}));
    EXPECT_EQ(array, nullptr);
}

TEST_F(Creacion, DestroyingADestroyedArrayIsReportedAndLeavesTheHandle)
{
    ARRAY *array = arr_CreaDouble(1);
    ARRAY *const destruido = array;
    ARRAY *copia = array;
    arr_DestruyeDouble(&copia);
    arr_DestruyeDouble(&array);
    EXPECT_EQ(informes(), Textos{"(*array)->mascara_debug == MASCARA_DEBUG"});
    EXPECT_EQ(array, destruido);
}

} // namespace
