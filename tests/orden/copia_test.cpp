// Copy of a whole array: an independent array with the source's rows, capacities, prefix sums
// and bytes, deep copies of strings, the element-copy function, and the reports.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"

#include <random>

namespace {

using Copia = PruebaArrays;

TEST_F(Copia, CopyOfAnEmptyArrayHasNoRowsAndIsAlive)
{
    ARRAY *origen = arr_CreaDouble(0);
    ARRAY *copia = arr_CopiaDouble(origen);
    ASSERT_NE(copia, nullptr);
    EXPECT_NE(copia, origen);
    EXPECT_EQ(campo(copia->num_filas), 0u);
    EXPECT_EQ(campo(copia->num_elems), 0u);
    EXPECT_EQ(campo(copia->buffer), nullptr);
    EXPECT_EQ(campo(copia->long_filas), nullptr);
    EXPECT_EQ(campo(copia->max_long_filas), nullptr);
    EXPECT_EQ(campo(copia->acumulado_filas), nullptr);
    EXPECT_EQ(copia->mascara_debug, MASCARA_DEBUG);
    EXPECT_EQ(campo(copia->tipo_elem), elem_DOUBLE_NO_USAR);
    EXPECT_EQ(campo(copia->size_elem), sizeof(double));
    EXPECT_EQ(campo(copia->long_max_fila_en_elem), 256u);
    arr_AppendDouble(copia, 1.5);
    EXPECT_EQ(doubles_de(copia), std::vector<double>{1.5});
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&copia);
}

TEST_F(Copia, CopyOfAStringArrayOwnsNewStrings)
{
    ARRAY *origen = crea_cadenas({"uno", "dos", "tres"});
    ARRAY *copia = arr_CopiaCADENA(origen);
    const std::vector<const char *> de_origen =
        elementos<const char *>(origen, elem_CADENA_NO_USAR);
    const std::vector<const char *> de_copia = elementos<const char *>(copia, elem_CADENA_NO_USAR);
    for (size_t i = 0; i < de_origen.size(); ++i)
        EXPECT_NE(de_origen[i], de_copia[i]);
    arrayprv_destruye(&origen);
    EXPECT_EQ(cadenas_de(copia), (std::vector<std::string>{"uno", "dos", "tres"}));
    arrayprv_destruye(&copia);
}

TEST_F(Copia, CopyIsIndependentOfItsSource)
{
    ARRAY *origen = crea_doubles({1.0, 2.0});
    ARRAY *copia = arr_CopiaDouble(origen);
    arr_SetDouble(origen, 0, 9.0);
    arr_AppendDouble(origen, 3.0);
    EXPECT_EQ(doubles_de(copia), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&copia);
}

TEST_F(Copia, CopyKeepsTheSpareCapacityOfEveryRow)
{
    ARRAY *origen = crea_doubles(uno_a(300));
    arr_InsertarDouble(origen, 5, 0.5);
    ARRAY *copia = arr_CopiaDouble(origen);
    ASSERT_NE(disposicion(origen).long_filas, disposicion(origen).max_long_filas);
    EXPECT_EQ(disposicion(copia), disposicion(origen));
    for (double valor : uno_a(40)) {
        arr_AppendDouble(origen, valor);
        arr_AppendDouble(copia, valor);
    }
    EXPECT_EQ(disposicion(copia), disposicion(origen));
    EXPECT_EQ(doubles_de(copia), doubles_de(origen));
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&copia);
}

TEST_F(Copia, CopyKeepsTheBytesPastEachRowsCount)
{
    ARRAY *origen = crea_doubles(uno_a(20));
    arr_ReduceTamanyoDouble(origen, 12);
    ARRAY *copia = arr_CopiaDouble(origen);
    arr_AumentaTamanyoDouble(origen, 20);
    arr_AumentaTamanyoDouble(copia, 20);
    EXPECT_EQ(doubles_de(origen), uno_a(20));
    EXPECT_EQ(doubles_de(copia), uno_a(20));
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&copia);
}

// A Double array whose rows were shaped by a random mix of appends, inserts and deletes.
ARRAY *disposicion_al_azar(std::mt19937 &azar)
{
    ARRAY *array = arr_CreaDouble(0);
    const size_t operaciones = 200 + azar() % 3000;
    for (size_t k = 0; k < operaciones; ++k) {
        const ULONG cuantos = arr_NumElemsDouble(array);
        const uint32_t tirada = azar() % 10;
        if (tirada < 3)
            arr_AppendDouble(array, static_cast<double>(k));
        else if (tirada < 8)
            arr_InsertarDouble(array, azar() % (cuantos + 1), static_cast<double>(k));
        else if (cuantos > 0)
            arr_BorrarDouble(array, azar() % cuantos);
    }
    return array;
}

TEST_F(Copia, CopiesOfRandomLayoutsHaveTheSameRowsCapacitiesAndPrefixSums)
{
    std::mt19937 azar(2024);
    for (int vez = 0; vez < 30; ++vez) {
        ARRAY *origen = disposicion_al_azar(azar);
        ARRAY *copia = arr_CopiaDouble(origen);
        EXPECT_EQ(disposicion(copia), disposicion(origen)) << "layout " << vez;
        EXPECT_EQ(bits_de(doubles_de(copia)), bits_de(doubles_de(origen)));
        arr_DestruyeDouble(&origen);
        arr_DestruyeDouble(&copia);
    }
}

TEST_F(Copia, AppendingTheSameValuesToSourceAndCopyOfRandomLayoutsFillsTheSameRows)
{
    std::mt19937 azar(4202);
    for (int vez = 0; vez < 30; ++vez) {
        ARRAY *origen = disposicion_al_azar(azar);
        ARRAY *copia = arr_CopiaDouble(origen);
        const size_t anyadidos = azar() % 700;
        for (size_t k = 0; k < anyadidos; ++k) {
            arr_AppendDouble(origen, -static_cast<double>(k));
            arr_AppendDouble(copia, -static_cast<double>(k));
        }
        EXPECT_EQ(disposicion(copia), disposicion(origen)) << "layout " << vez;
        EXPECT_EQ(bits_de(doubles_de(copia)), bits_de(doubles_de(origen)));
        arr_DestruyeDouble(&origen);
        arr_DestruyeDouble(&copia);
    }
}

TEST_F(Copia, CopyOfABitArrayKeepsItsBitCount)
{
    ARRAY *origen = arrayprv_crea(13, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    origen->buffer[0][1] = 0x15;
    ARRAY *copia = arr_CopiaBIT(origen);
    EXPECT_EQ(campo(copia->num_bits), 13u);
    EXPECT_EQ(campo(copia->num_elems), 2u);
    EXPECT_EQ(copia->buffer[0][1], 0x15);
    arrayprv_destruye(&origen);
    arrayprv_destruye(&copia);
}

TEST_F(Copia, CopyInsideATraversalOfTheSourceIsTakenWithoutAReport)
{
    ARRAY *origen = crea_doubles({1.0, 2.0});
    origen->en_bucle = CIERTO;
    origen->en_bucle_lectura = CIERTO;
    ARRAY *copia = arr_CopiaDouble(origen);
    EXPECT_EQ(copia->en_bucle, FALSO);
    EXPECT_EQ(copia->en_bucle_lectura, FALSO);
    EXPECT_EQ(doubles_de(copia), (std::vector<double>{1.0, 2.0}));
    origen->en_bucle = FALSO;
    origen->en_bucle_lectura = FALSO;
    arr_DestruyeDouble(&origen);
    arr_DestruyeDouble(&copia);
}

// The element-copy function of the pointer test: each pointer into `originales` becomes the
// pointer to the same place of `copiados`.
int originales[3];
int copiados[3];

void *a_copiados(const void *elemento)
{
    return &copiados[static_cast<const int *>(elemento) - originales];
}

TEST_F(Copia, ElementCopyFunctionGivesTheStoredValueOfEveryElement)
{
    ARRAY *origen = crea_con<void *>(elem_PUNTERO_NO_USAR, {&originales[2], &originales[0]});
    EXPECT_EQ(informes(), Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"});
    ARRAY *copia = arrayprv_copia(origen, a_copiados);
    EXPECT_EQ(elementos<void *>(copia, elem_PUNTERO_NO_USAR),
              (std::vector<void *>{&copiados[2], &copiados[0]}));
    EXPECT_EQ(elementos<void *>(origen, elem_PUNTERO_NO_USAR),
              (std::vector<void *>{&originales[2], &originales[0]}));
    for (ARRAY *array : {origen, copia})
        arrayprv_opera_direccion_todos(array, [](void **ptr) { *ptr = nullptr; });
    arrayprv_destruye(&origen);
    arrayprv_destruye(&copia);
}

TEST_F(Copia, CopyOfNoArrayIsReportedAndYieldsNothing)
{
    EXPECT_EQ(arr_CopiaDouble(nullptr), nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(Copia, CopyOfADeadHeaderIsReportedAndYieldsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    ARRAY muerto = *array;
    muerto.mascara_debug = 0;
    EXPECT_EQ(arr_CopiaDouble(&muerto), nullptr);
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
    arr_DestruyeDouble(&array);
}

TEST_F(Copia, CopyOfTheRetiredTypeIsReportedAndStillMade)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    ARRAY retirado = *array;
    retirado.tipo_elem = elem_antiguo_PUNTO3DX;
    ARRAY *copia = arr_CopiaDouble(&retirado);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem != elem_antiguo_PUNTO3DX"});
    ASSERT_NE(copia, nullptr);
    EXPECT_EQ(campo(copia->tipo_elem), elem_antiguo_PUNTO3DX);
    EXPECT_EQ(disposicion(copia), disposicion(array));
    copia->tipo_elem = elem_DOUBLE_NO_USAR;
    EXPECT_EQ(doubles_de(copia), (std::vector<double>{1.0, 2.0}));
    arr_DestruyeDouble(&copia);
    arr_DestruyeDouble(&array);
}

} // namespace
