// Creation of pointer arrays and the ownership rules of destruction, shrinking and deletion.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

using Punteros = std::vector<void *>;
using Valores = std::vector<int>;

// What a recording libera saw: the value in each slot and whether the array was marked busy.
ARRAY *array_observado = nullptr;
std::vector<int> valores_liberados;
std::vector<BOOL> en_bucle_al_liberar;

void libera_observando(void **slot)
{
    valores_liberados.push_back(valor_de(*slot));
    en_bucle_al_liberar.push_back(array_observado->en_bucle);
    libera_estructura(slot);
}

class CreacionPunteros : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        valores_liberados.clear();
        en_bucle_al_liberar.clear();
    }

    // Shrinks a structure array of 1, 2 to one element while `guarda` marks it busy; checks
    // that the shrink went on and returns the reports.
    Textos reduce_con_guarda(BOOL ARRAY::*guarda)
    {
        ARRAY *array = crea_estructuras({1, 2});
        array->*guarda = CIERTO;
        arr_ReduceTamanyoEstructurasConTipo(array, 1, libera_estructura);
        Textos textos = informes();
        array->*guarda = FALSO;
        EXPECT_EQ(valores_de(array), (Valores{1}));
        arr_DestruyeEstructurasConTipo(&array, libera_estructura);
        return textos;
    }
};

TEST_F(CreacionPunteros, CreateWithThreeGivesThreeNullElements)
{
    ARRAY *array = arr_CreaPunteroConTipo(3);
    EXPECT_EQ(punteros_de(array), (Punteros{nullptr, nullptr, nullptr}));
    EXPECT_EQ(tipo_elem_array{array->tipo_elem}, elem_PUNTERO_NO_USAR);
    EXPECT_EQ(size_t{array->size_elem}, 8u);
    EXPECT_EQ(size_t{array->long_max_fila_en_elem}, 256u);
    arr_DestruyePunteroConTipo(&array);
    EXPECT_EQ(array, nullptr);
}

TEST_F(CreacionPunteros, CreateEmptyHasNoRows)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    EXPECT_EQ(size_t{array->num_filas}, 0u);
    EXPECT_EQ(static_cast<char **>(array->buffer), nullptr);
    EXPECT_EQ(array->mascara_debug, MASCARA_DEBUG);
    arr_DestruyePunteroConTipo(&array);
}

TEST_F(CreacionPunteros, CreateExRowSizeSetsPointersPerRow)
{
    ARRAY *array = arr_CreaPunteroConTipoEx(5, 16);
    EXPECT_EQ(size_t{array->long_max_fila_en_elem}, 2u);
    ASSERT_EQ(size_t{array->num_filas}, 3u);
    EXPECT_EQ(size_t{array->long_filas[0]}, 2u);
    EXPECT_EQ(size_t{array->long_filas[2]}, 1u);
    EXPECT_EQ(punteros_de(array), Punteros(5, nullptr));
    arr_DestruyePunteroConTipo(&array);
}

TEST_F(CreacionPunteros, CreateExWithFourByteRowsReportsNoRoomForAPointer)
{
    ARRAY *array = arr_CreaPunteroConTipoEx(2, 4);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_punter (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"array->long_max_fila_en_elem > 0"});
    EXPECT_EQ(size_t{array->long_max_fila_en_elem}, 0u);
    EXPECT_EQ(size_t{array->num_elems}, 0u);
    EXPECT_EQ(array->mascara_debug, MASCARA_DEBUG);
    arr_DestruyePunteroConTipo(&array);
}

TEST_F(CreacionPunteros, DestroyPointerArrayWithALivePointerReportsOnceAndStillFrees)
{
    int dato = 7;
    ARRAY *array = crea_punteros({nullptr, &dato, nullptr});
    arr_DestruyePunteroConTipo(&array);
    EXPECT_EQ(informes(), Textos{"ptr == NULL"});
    EXPECT_EQ(array, nullptr);
}

TEST_F(CreacionPunteros, DestroyConstStructuresWithALivePointerReportsNothing)
{
    int dato = 7;
    ARRAY *array = crea_punteros({nullptr, &dato, nullptr});
    arr_DestruyeEstructurasConstConTipo(&array);
    EXPECT_EQ(informes(), Textos{});
    EXPECT_EQ(array, nullptr);
}

TEST_F(CreacionPunteros, DestroyStructuresCallsLiberaForNullElementsToo)
{
    ARRAY *array = crea_estructuras({1, 2});
    arr_InsertarPunteroConTipo(array, 1, nullptr);
    arr_AppendPunteroConTipo(array, nullptr);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
    EXPECT_EQ(llamadas_libera(), 4u);
    EXPECT_EQ(array, nullptr);
}

TEST_F(CreacionPunteros, DestroyStructuresReleasesInPositionOrderWithTheWriteGuardSet)
{
    ARRAY *array = crea_estructuras({1, 2, 3});
    array_observado = array;
    arr_DestruyeEstructurasConTipo(&array, libera_observando);
    EXPECT_EQ(valores_liberados, (Valores{1, 2, 3}));
    EXPECT_EQ(en_bucle_al_liberar, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
}

TEST_F(CreacionPunteros, DestroyStructuresThroughNullAddressReports)
{
    arr_DestruyeEstructurasConTipo(nullptr, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(CreacionPunteros, DestroyStructuresThroughNullHandleReports)
{
    ARRAY *array = nullptr;
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(*array) != NULL"});
    EXPECT_EQ(llamadas_libera(), 0u);
}

TEST_F(CreacionPunteros, DestroyStructuresOfAnotherTypeReportsAndLeavesItAlive)
{
    ARRAY *doubles = arr_CreaDouble(2);
    arr_DestruyeEstructurasConTipo(&doubles, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(*array)->tipo_elem == elem_PUNTERO_NO_USAR"});
    ASSERT_NE(doubles, nullptr);
    EXPECT_EQ(doubles->mascara_debug, MASCARA_DEBUG);
    EXPECT_EQ(llamadas_libera(), 0u);
    arr_DestruyeDouble(&doubles);
}

TEST_F(CreacionPunteros, DestroyStructuresInsideATraversalReportsAndStillDestroys)
{
    ARRAY *array = crea_estructuras({1});
    array->en_bucle_lectura = CIERTO;
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
    EXPECT_EQ(informes(), Textos{"(*array)->en_bucle_lectura == FALSO"});
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(llamadas_libera(), 1u);
}

TEST_F(CreacionPunteros, ShrinkStructuresAboveTheCountReportsAndChangesNothing)
{
    ARRAY *array = crea_estructuras({1, 2});
    arr_ReduceTamanyoEstructurasConTipo(array, 3, libera_estructura);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo <= array->num_elems"});
    EXPECT_EQ(valores_de(array), (Valores{1, 2}));
    EXPECT_EQ(llamadas_libera(), 0u);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, ShrinkStructuresReleasesOnlyTheSlotsCutOff)
{
    ARRAY *array = crea_estructuras({1, 2, 3, 4});
    array_observado = array;
    arr_ReduceTamanyoEstructurasConTipo(array, 2, libera_observando);
    EXPECT_EQ(valores_liberados, (Valores{3, 4}));
    EXPECT_EQ(en_bucle_al_liberar, (std::vector<BOOL>{CIERTO, CIERTO}));
    EXPECT_EQ(valores_de(array), (Valores{1, 2}));
    EXPECT_EQ(estructuras_vivas(), 2u);
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, ShrinkStructuresAndGrowAgainGivesNullElements)
{
    ARRAY *array = crea_estructuras({1, 2, 3});
    arr_ReduceTamanyoEstructurasConTipo(array, 1, libera_estructura);
    arr_AumentaTamanyoEstructurasConTipo(array, 3);
    EXPECT_EQ(punteros_de(array)[1], nullptr);
    EXPECT_EQ(punteros_de(array)[2], nullptr);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, ShrinkConstStructuresDropsWithoutReleasing)
{
    Estructura *tercera = nueva_estructura(3);
    ARRAY *array = crea_estructuras({1, 2});
    arr_AppendPunteroConTipo(array, tercera);
    arr_ReduceTamanyoEstructurasConTipoConst(array, 2);
    EXPECT_EQ(informes(), Textos{});
    EXPECT_EQ(valores_de(array), (Valores{1, 2}));
    EXPECT_TRUE(esta_viva(tercera));
    void *suelta = tercera;
    libera_estructura(&suelta);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, ShrinkStructuresToTheSameSizeReleasesNothing)
{
    ARRAY *array = crea_estructuras({1, 2});
    arr_ReduceTamanyoEstructurasConTipo(array, 2, libera_estructura);
    EXPECT_EQ(llamadas_libera(), 0u);
    EXPECT_EQ(valores_de(array), (Valores{1, 2}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, ShrinkStructuresInsideAReadTraversalReportsTheGuardAndGoesOn)
{
    EXPECT_EQ(reduce_con_guarda(&ARRAY::en_bucle_lectura), Textos{"array->en_bucle_lectura == FALSO"});
}

TEST_F(CreacionPunteros, ShrinkStructuresInsideAWritingTraversalReportsTheGuardAndGoesOn)
{
    EXPECT_EQ(reduce_con_guarda(&ARRAY::en_bucle), Textos{"array->en_bucle == FALSO"});
}

TEST_F(CreacionPunteros, ShrinkStructuresOfAnotherTypeReportsAndChangesNothing)
{
    ARRAY *doubles = arr_CreaDouble(3);
    arr_ReduceTamanyoEstructurasConTipo(doubles, 1, libera_estructura);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR"});
    EXPECT_EQ(arr_NumElemsDouble(doubles), 3u);
    arr_DestruyeDouble(&doubles);
}

TEST_F(CreacionPunteros, DeleteStructureReleasesItThenRemovesTheElement)
{
    ARRAY *array = crea_estructuras({1, 2, 3});
    arr_BorrarEstructuraConTipo(array, 1, libera_estructura);
    EXPECT_EQ(llamadas_libera(), 1u);
    EXPECT_EQ(valores_de(array), (Valores{1, 3}));
    EXPECT_EQ(estructuras_vivas(), 2u);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, DeleteStructureWithoutLiberaReportsAndRemovesWithoutFreeing)
{
    Estructura *segunda = nueva_estructura(2);
    ARRAY *array = crea_estructuras({1});
    arr_AppendPunteroConTipo(array, segunda);
    arr_BorrarEstructuraConTipo(array, 1, nullptr);
    EXPECT_EQ(informes(), Textos{"(libera) != NULL"});
    EXPECT_EQ(valores_de(array), (Valores{1}));
    EXPECT_TRUE(esta_viva(segunda));
    void *suelta = segunda;
    libera_estructura(&suelta);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(CreacionPunteros, DeleteStructureAtAMissingPositionReportsAndChangesNothing)
{
    ARRAY *array = crea_estructuras({1});
    arr_BorrarEstructuraConTipo(array, 1, libera_estructura);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(llamadas_libera(), 0u);
    EXPECT_EQ(valores_de(array), (Valores{1}));
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

} // namespace
