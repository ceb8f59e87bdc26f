// Linear search in pointer arrays: identity, the caller's equality, next, unique, exists, and the
// unique element itself under its two names.
#include "punteros/estructuras.h"

namespace {

BOOL mismo_valor(const void *elemento, const void *dato) { return valor_de(elemento) == valor_de(dato); }

class BusquedaPunteros : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        array = crea_estructuras({1, 2, 3, 2});
    }
    void TearDown() override
    {
        arr_DestruyeEstructurasConTipo(&array, libera_estructura);
        PruebaPunteros::TearDown();
    }
    ARRAY *array = nullptr;
    Estructura dos{2};
    Estructura cinco{5};
};

TEST_F(BusquedaPunteros, SearchPointerFindsOnlyByIdentityNeverByContent)
{
    EXPECT_EQ(arr_BuscarPunteroConTipo(array, &dos), ARR_ULONG_MAX);
    EXPECT_EQ(arr_BuscarPunteroConTipo(array, arr_GetPunteroConTipo(array, 3)), 3u);
}

TEST_F(BusquedaPunteros, SearchStructureFindsTheFirstEqualElement)
{
    EXPECT_EQ(arr_BuscarEstructuraConTipo(array, &dos, mismo_valor), 1u);
    EXPECT_EQ(arr_BuscarEstructuraConTipo(array, &cinco, mismo_valor), ARR_ULONG_MAX);
}

TEST_F(BusquedaPunteros, SearchStructureWithoutEqualityReports)
{
    EXPECT_EQ(arr_BuscarEstructuraConTipo(array, &dos, nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_puntero) != NULL"});
}

TEST_F(BusquedaPunteros, SearchNextStartsAtTheGivenPosition)
{
    EXPECT_EQ(arr_BuscarSiguienteEstructuraConTipo(array, 2, &dos, mismo_valor), 3u);
    EXPECT_EQ(arr_BuscarSiguienteEstructuraConTipo(array, 1, &dos, mismo_valor), 1u);
}

TEST_F(BusquedaPunteros, SearchUniqueReportsASecondMatchAndYieldsTheLast)
{
    EXPECT_EQ(arr_BuscarUnicaEstructuraConTipo(array, &dos, mismo_valor), 3u);
    EXPECT_EQ(informes(), Textos{"!ya_encontrado"});
}

TEST_F(BusquedaPunteros, ExistsWritesThePositionOrTheMaximum)
{
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExisteEstructuraConTipo(array, &dos, mismo_valor, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    EXPECT_EQ(arr_ExisteEstructuraConTipo(array, &cinco, mismo_valor, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(arr_ExisteEstructuraConTipo(array, &dos, mismo_valor, nullptr), CIERTO);
}

TEST_F(BusquedaPunteros, ExistsUniqueFindsASingleMatchSilently)
{
    Estructura tres{3};
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExisteUnicaEstructuraConTipo(array, &tres, mismo_valor, &posicion), CIERTO);
    EXPECT_EQ(posicion, 2u);
}

TEST_F(BusquedaPunteros, GiveUniqueReturnsTheElementFound)
{
    Estructura tres{3};
    EXPECT_EQ(nousar_arr_dame_unica_estructura(array, &tres, mismo_valor), arr_GetPunteroConTipo(array, 2));
}

TEST_F(BusquedaPunteros, GiveUniqueWithoutAMatchReportsAndReadsNothing)
{
    EXPECT_EQ(nousar_arr_dame_unica_estructura(array, &cinco, mismo_valor), nullptr);
    EXPECT_EQ(informes(), (Textos{"posicion != ULONG_MAX", "real_pos < array->num_elems"}));
}

TEST_F(BusquedaPunteros, GiveUniqueConstIsTheSameFunction)
{
    EXPECT_EQ(direccion_en_ejecucion(&nousar_arr_dame_unica_estructura_const), direccion_en_ejecucion(&nousar_arr_dame_unica_estructura));
    Estructura uno{1};
    EXPECT_EQ(nousar_arr_dame_unica_estructura_const(array, &uno, mismo_valor), arr_GetPunteroConTipo(array, 0));
}

TEST_F(BusquedaPunteros, GiveUniqueOfAnotherTypeReportsOnlyTheType)
{
    ARRAY *doubles = arr_CreaDouble(1);
    EXPECT_EQ(nousar_arr_dame_unica_estructura(doubles, &dos, mismo_valor), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    arr_DestruyeDouble(&doubles);
}

} // namespace
