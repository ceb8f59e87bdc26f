// Ordered search by bisection over pointer arrays: the documented positions, which equal element
// is hit, the run of equals, ordered insertion, and the reports of results that do not fit a
// sorted array.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

int compara_enteros(const void *elemento, const void *dato)
{
    const int a = *static_cast<const int *>(elemento);
    const int b = *static_cast<const int *>(dato);
    return a < b ? comparac_PRIMERO_MENOR : a > b ? comparac_PRIMERO_MAYOR : comparac_IGUALES;
}

// A comparison that answers a script, call after call, whatever it is given.
std::vector<int> guion;
size_t paso_del_guion = 0;

int compara_con_guion(const void *, const void *)
{
    if (paso_del_guion >= guion.size()) {
        ADD_FAILURE() << "the comparison was called more often than scripted";
        return comparac_IGUALES;
    }
    return guion[paso_del_guion++];
}

class Dicotomica : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        paso_del_guion = 0;
    }
    void TearDown() override
    {
        EXPECT_EQ(paso_del_guion, guion.size()) << "scripted results left unused";
        guion.clear();
        if (array != nullptr)
            arr_DestruyeEstructurasConstConTipo(&array);
        PruebaPunteros::TearDown();
    }

    // The array of pointers to the given keys, kept in `claves`.
    void con_claves(std::vector<int> valores)
    {
        claves = std::move(valores);
        array = arr_CreaPunteroConTipo(0);
        for (int &clave : claves)
            arr_AppendPunteroConTipo(array, &clave);
    }
    ULONG posicion_de(int dato)
    {
        return arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, compara_enteros, &dato);
    }
    ULONG posicion_con_guion(std::vector<int> resultados)
    {
        guion = std::move(resultados);
        int dato = 0;
        return arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, compara_con_guion, &dato);
    }
    // First and last positions of the run equal to dato.
    std::pair<ULONG, ULONG> racha_de(int dato)
    {
        ULONG primero = 0;
        ULONG ultimo = 0;
        arr_BuscarEstructuraDicotomicamenteConTipo(array, &dato, compara_enteros, &primero, &ultimo);
        return {primero, ultimo};
    }

    std::vector<int> claves;
    ARRAY *array = nullptr;
};

using Racha = std::pair<ULONG, ULONG>;
const Racha SIN_RACHA{ARR_ULONG_MAX, ARR_ULONG_MAX};

TEST_F(Dicotomica, EmptyArrayGivesPositionZeroAndFindsNothing)
{
    con_claves({});
    EXPECT_EQ(posicion_de(7), 0u);
    EXPECT_EQ(racha_de(7), SIN_RACHA);
}

TEST_F(Dicotomica, TenTwentyThirtyGiveTheDocumentedPositions)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_de(5), 0u);
    EXPECT_EQ(posicion_de(35), 3u);
    EXPECT_EQ(posicion_de(25), 2u);
    EXPECT_EQ(posicion_de(20), 1u);
    EXPECT_EQ(racha_de(20), (Racha{1, 1}));
}

TEST_F(Dicotomica, RunOfEqualsGivesItsFirstAndLastPositions)
{
    con_claves({10, 20, 20, 20, 30});
    EXPECT_EQ(racha_de(20), (Racha{1, 3}));
}

TEST_F(Dicotomica, TwoEqualElementsHitTheFirstAndOrderedInsertionGoesThere)
{
    con_claves({20, 20});
    int nuevo = 20;
    EXPECT_EQ(posicion_de(20), 0u);
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(array, compara_enteros, &nuevo);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&nuevo, &claves[0], &claves[1]}));
}

TEST_F(Dicotomica, OrderedInsertionInsertsAtTheHitEvenWhenAnEqualExists)
{
    con_claves({10, 20, 30});
    int nuevo = 20;
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(array, compara_enteros, &nuevo);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&claves[0], &nuevo, &claves[1], &claves[2]}));
}

TEST_F(Dicotomica, OrderedInsertionOfANewGreatestAppends)
{
    con_claves({10, 20});
    int nuevo = 25;
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(array, compara_enteros, &nuevo);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&claves[0], &claves[1], &nuevo}));
}

TEST_F(Dicotomica, InsertIfAbsentWithAnEqualElementLeavesTheArrayAndWritesTrue)
{
    con_claves({10, 20, 30});
    int nuevo = 30;
    BOOL encontrado = FALSO;
    arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(array, compara_enteros, &nuevo, &encontrado);
    EXPECT_EQ(encontrado, CIERTO);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&claves[0], &claves[1], &claves[2]}));
}

TEST_F(Dicotomica, InsertIfAbsentWithoutAnEqualElementInsertsAndWritesFalse)
{
    con_claves({10, 20, 30});
    int nuevo = 15;
    BOOL encontrado = CIERTO;
    arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(array, compara_enteros, &nuevo, &encontrado);
    EXPECT_EQ(encontrado, FALSO);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&claves[0], &nuevo, &claves[1], &claves[2]}));
}

TEST_F(Dicotomica, InsertIfAbsentWithoutAFlagStillInserts)
{
    con_claves({10});
    int nuevo = 5;
    arr_nousar_InsertarPunteroOrdenadoDicotomicamente_SiNoExiste(array, compara_enteros, &nuevo, nullptr);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&nuevo, &claves[0]}));
}

TEST_F(Dicotomica, FirstGreaterAndLastSmallerReportsTheOrderAndGivesZero)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MAYOR, comparac_PRIMERO_MENOR}), 0u);
    EXPECT_EQ(informes(), Textos{"comp2 == comparac_PRIMERO_MAYOR"});
}

TEST_F(Dicotomica, FirstEqualAndLastSmallerReportsTheOrderAndHitsTheFirst)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({comparac_IGUALES, comparac_PRIMERO_MENOR}), 0u);
    EXPECT_EQ(informes(), Textos{"comp2 == comparac_IGUALES || comp2 == comparac_PRIMERO_MAYOR"});
}

TEST_F(Dicotomica, FirstResultOutsideTheOrderIsReported)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({7, comparac_PRIMERO_MAYOR, comparac_PRIMERO_MENOR}), 2u);
    EXPECT_EQ(informes(), Textos{"comp1 == comparac_PRIMERO_MENOR"});
}

TEST_F(Dicotomica, LastResultOutsideTheOrderIsReported)
{
    con_claves({10, 20});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MENOR, 5}), 1u);
    EXPECT_EQ(informes(), Textos{"comp2 == comparac_PRIMERO_MAYOR"});
}

TEST_F(Dicotomica, MidpointResultOutsideTheOrderIsReported)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MENOR, comparac_PRIMERO_MAYOR, 9}), 2u);
    EXPECT_EQ(informes(), Textos{"compMed == comparac_PRIMERO_MENOR"});
}

TEST_F(Dicotomica, MidpointEqualIsCheckedAgainstTheLastResult)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MENOR, 5, comparac_IGUALES}), 1u);
    EXPECT_EQ(informes(), (Textos{"comp2 == comparac_PRIMERO_MAYOR",
                                  "comp2 == comparac_IGUALES || comp2 == comparac_PRIMERO_MAYOR"}));
}

TEST_F(Dicotomica, MidpointGreaterIsCheckedAgainstTheLastResult)
{
    con_claves({10, 20, 30});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MENOR, 4, comparac_PRIMERO_MAYOR}), 1u);
    EXPECT_EQ(informes(), (Textos{"comp2 == comparac_PRIMERO_MAYOR", "comp2 == comparac_PRIMERO_MAYOR"}));
}

TEST_F(Dicotomica, SingleElementBothBelowAndAboveReportsTheEmptyInterval)
{
    con_claves({10});
    EXPECT_EQ(posicion_con_guion({comparac_PRIMERO_MENOR, comparac_PRIMERO_MAYOR}), 0u);
    EXPECT_EQ(informes(), Textos{"n2 > n1"});
}

TEST_F(Dicotomica, NullComparisonIsReportedAndGivesNoPosition)
{
    con_claves({10});
    int dato = 10;
    EXPECT_EQ(arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(array, nullptr, &dato),
              ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(compara) != NULL"});
}

TEST_F(Dicotomica, OrderedInsertionWithoutComparisonInsertsNothing)
{
    con_claves({10});
    int nuevo = 5;
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(array, nullptr, &nuevo);
    EXPECT_EQ(informes(), Textos{"(compara) != NULL"});
    EXPECT_EQ(arrayprv_num_elems(array), 1u);
}

TEST_F(Dicotomica, BisectionOfAnotherTypeIsReported)
{
    ARRAY *doubles = arr_CreaDouble(2);
    int dato = 0;
    EXPECT_EQ(arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(doubles, compara_enteros, &dato),
              ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR"});
    arr_DestruyeDouble(&doubles);
}

TEST_F(Dicotomica, RunSearchReportsEveryMissingArgument)
{
    int dato = 0;
    arr_BuscarEstructuraDicotomicamenteConTipo(nullptr, &dato, nullptr, nullptr, nullptr);
    EXPECT_EQ(informes(), (Textos{"(array) != NULL", "(compara) != NULL", "(posPrimerEncontrado) != NULL",
                                  "(posUltimoEncontrado) != NULL"}));
}

TEST_F(Dicotomica, RunSearchWithoutComparisonWritesTheMaximumToBoth)
{
    con_claves({10});
    int dato = 10;
    ULONG primero = 0;
    ULONG ultimo = 0;
    arr_BuscarEstructuraDicotomicamenteConTipo(array, &dato, nullptr, &primero, &ultimo);
    EXPECT_EQ(informes(), Textos{"(compara) != NULL"});
    EXPECT_EQ((Racha{primero, ultimo}), SIN_RACHA);
}

TEST_F(Dicotomica, RunSearchChecksTheHitAgain)
{
    con_claves({10});
    guion = {comparac_IGUALES, comparac_IGUALES, comparac_PRIMERO_MENOR};
    int dato = 10;
    ULONG primero = 9;
    ULONG ultimo = 9;
    arr_BuscarEstructuraDicotomicamenteConTipo(array, &dato, compara_con_guion, &primero, &ultimo);
    EXPECT_EQ(informes(), Textos{"(*compara)(arr_GETPUNTERO(array, posInsercion), dato) == comparac_IGUALES"});
    EXPECT_EQ((Racha{primero, ultimo}), (Racha{0, 0}));
}

TEST_F(Dicotomica, RunSearchReportsAGreaterElementBeforeTheRun)
{
    con_claves({10, 30, 20, 40, 50});
    EXPECT_EQ(racha_de(20), (Racha{2, 2}));
    EXPECT_EQ(informes(), Textos{"comp == comparac_PRIMERO_MENOR"});
}

TEST_F(Dicotomica, RunSearchReportsASmallerElementAfterTheRun)
{
    con_claves({10, 15, 20, 5, 50});
    EXPECT_EQ(racha_de(20), (Racha{2, 2}));
    EXPECT_EQ(informes(), Textos{"comp == comparac_PRIMERO_MAYOR"});
}

TEST_F(Dicotomica, ExistsWritesThePositionsOnlyWhenARunIsFound)
{
    con_claves({10, 20, 20, 30});
    int veinte = 20;
    int veinticinco = 25;
    ULONG primero = 77;
    ULONG ultimo = 77;
    EXPECT_EQ(arr_ExisteEstructuraDicotomicamenteConTipo(array, &veinticinco, compara_enteros, &primero, &ultimo),
              FALSO);
    EXPECT_EQ((Racha{primero, ultimo}), (Racha{77, 77}));
    EXPECT_EQ(arr_ExisteEstructuraDicotomicamenteConTipo(array, &veinte, compara_enteros, &primero, &ultimo),
              CIERTO);
    EXPECT_EQ((Racha{primero, ultimo}), (Racha{1, 2}));
}

TEST_F(Dicotomica, ExistsWithoutPositionPointersStillAnswers)
{
    con_claves({10, 20});
    int veinte = 20;
    ULONG primero = 77;
    EXPECT_EQ(arr_ExisteEstructuraDicotomicamenteConTipo(array, &veinte, compara_enteros, &primero, nullptr),
              CIERTO);
    EXPECT_EQ(primero, 1u);
    EXPECT_EQ(arr_ExisteEstructuraDicotomicamenteConTipo(array, &veinte, compara_enteros, nullptr, nullptr),
              CIERTO);
    EXPECT_EQ(informes(), Textos{});
}

} // namespace
