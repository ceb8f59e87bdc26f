// The quicksort's range stack: its starting capacity and growth step, last-in first-out order,
// and the reports of each operation.
#include "soporte/prueba_arrays.h"

#include "core/pilaqsor.h"

#include <utility>

namespace {

using Pila = PruebaArrays;

// Pops every range left on the stack, top first.
std::vector<std::pair<ULONG, ULONG>> vacia_del_todo(pilaqsor *pila)
{
    std::vector<std::pair<ULONG, ULONG>> sacados;
    while (!pilaqsor_vacia(pila)) {
        ULONG izquierda = 0;
        ULONG derecha = 0;
        pilaqsor_saca(pila, &izquierda, &derecha);
        sacados.emplace_back(izquierda, derecha);
    }
    return sacados;
}

TEST_F(Pila, StackForThirtyElementsStartsAtASixthOfThem)
{
    pilaqsor *pila = pilaqsor_crea(30);
    EXPECT_EQ(pila->incremento, 5u);
    EXPECT_EQ(pila->max_elementos, 5u);
    EXPECT_EQ(pila->num_elementos, 0u);
    pilaqsor_destruye(&pila);
    EXPECT_EQ(pila, nullptr);
}

TEST_F(Pila, StackForTwentyNineElementsStartsAtTwentyNine)
{
    pilaqsor *pila = pilaqsor_crea(29);
    EXPECT_EQ(pila->incremento, 29u);
    EXPECT_EQ(pila->max_elementos, 29u);
    pilaqsor_destruye(&pila);
}

TEST_F(Pila, NewStackIsEmptyAndZeroFilled)
{
    pilaqsor *pila = pilaqsor_crea(12);
    EXPECT_EQ(pilaqsor_vacia(pila), CIERTO);
    EXPECT_EQ(std::vector<ULONG>(pila->izquierdas, pila->izquierdas + 12), std::vector<ULONG>(12));
    EXPECT_EQ(std::vector<ULONG>(pila->derechas, pila->derechas + 12), std::vector<ULONG>(12));
    pilaqsor_destruye(&pila);
}

TEST_F(Pila, PushingPastTheCapacityGrowsByTheStepAndKeepsTheRanges)
{
    pilaqsor *pila = pilaqsor_crea(60);
    for (ULONG k = 0; k < 11; ++k)
        pilaqsor_mete(pila, k, 100 + k);
    EXPECT_EQ(pila->max_elementos, 20u);
    EXPECT_EQ(pila->num_elementos, 11u);
    std::vector<std::pair<ULONG, ULONG>> esperados;
    for (ULONG k = 11; k-- > 0;)
        esperados.emplace_back(k, 100 + k);
    EXPECT_EQ(vacia_del_todo(pila), esperados);
    EXPECT_EQ(pila->max_elementos, 20u);
    pilaqsor_destruye(&pila);
}

TEST_F(Pila, PopFromAnEmptyStackIsReportedAndLeavesTheOutputs)
{
    pilaqsor *pila = pilaqsor_crea(4);
    ULONG izquierda = 7;
    ULONG derecha = 8;
    pilaqsor_saca(pila, &izquierda, &derecha);
    EXPECT_EQ(informes(), Textos{"pilaqsor->num_elementos > 0"});
    EXPECT_EQ(izquierda, 7u);
    EXPECT_EQ(derecha, 8u);
    EXPECT_EQ(pila->num_elementos, 0u);
    pilaqsor_destruye(&pila);
}

TEST_F(Pila, PopIntoMissingOutputsIsReportedAndKeepsTheRange)
{
    pilaqsor *pila = pilaqsor_crea(4);
    pilaqsor_mete(pila, 1, 2);
    pilaqsor_saca(pila, nullptr, nullptr);
    EXPECT_EQ(informes(), (Textos{"(izquierda) != NULL", "(derecha) != NULL"}));
    EXPECT_EQ(vacia_del_todo(pila), (std::vector<std::pair<ULONG, ULONG>>{{1, 2}}));
    pilaqsor_destruye(&pila);
}

TEST_F(Pila, NullStackIsReportedByPushPopAndEmptyTest)
{
    ULONG izquierda = 0;
    ULONG derecha = 0;
    pilaqsor_mete(nullptr, 1, 2);
    EXPECT_EQ(informes(), Textos{"(pilaqsor) != NULL"});
    pilaqsor_saca(nullptr, &izquierda, &derecha);
    EXPECT_EQ(informes(), Textos{"(pilaqsor) != NULL"});
    EXPECT_EQ(pilaqsor_vacia(nullptr), CIERTO);
    EXPECT_EQ(informes(), Textos{"(pilaqsor) != NULL"});
}

TEST_F(Pila, DestroyingThroughANullAddressOrANullStackIsReported)
{
    pilaqsor_destruye(nullptr);
    EXPECT_EQ(informes(), Textos{"(pilaqsor) != NULL"});
    pilaqsor *pila = nullptr;
    pilaqsor_destruye(&pila);
    EXPECT_EQ(informes(), Textos{"(*pilaqsor) != NULL"});
}

TEST_F(Pila, DestroyingANonEmptyStackIsReportedAndStillFreesIt)
{
    pilaqsor *pila = pilaqsor_crea(4);
    pilaqsor_mete(pila, 0, 3);
    pilaqsor_destruye(&pila);
    EXPECT_EQ(informes(), Textos{"(*pilaqsor)->num_elementos == 0"});
    EXPECT_EQ(pila, nullptr);
}

} // namespace
