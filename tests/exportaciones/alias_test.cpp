// The names that the interface calls one function are one function: looked up in the built
// library (libarrays.so, arrays.dll), every name of a group has the address of the group's first
// name.
#include "arrays.h"
#include "families/tabla_familias.h"

#include "soporte/sistema.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Nombres = std::vector<std::string>;

// The names of each group, from the lists of arrays.h: the scalar families' table and the other
// families' lists of shared names.
#define ARR_NOMBRE(nombre) #nombre,

#define ARR_DESTRUYE_DE(F, ...) "arr_Destruye" #F,
#define ARR_NUMELEMS_DE(F, ...) "arr_NumElems" #F,
#define ARR_COPIA_DE(F, ...) "arr_Copia" #F,
#define ARR_CONCATENA_DE(F, ...) "arr_Concatena" #F,
#define ARR_AUMENTA_DE(F, T, TAG, COMPARA, APPENDN, AUMENTA, ...) AUMENTA("arr_AumentaTamanyo" #F, )
#define ARR_REDUCE_DE(F, T, TAG, COMPARA, APPENDN, AUMENTA, REDUCE, ...)                          \
    REDUCE("arr_ReduceTamanyo" #F, )

const std::vector<Nombres> &grupos_compartidos()
{
    static const std::vector<Nombres> grupos{
        {ARR_FAMILIAS_ESCALARES(ARR_DESTRUYE_DE) ARR_NOMBRES_DESTRUYE(ARR_NOMBRE)},
        {ARR_FAMILIAS_ESCALARES(ARR_NUMELEMS_DE) ARR_NOMBRES_NUMELEMS(ARR_NOMBRE)},
        {ARR_FAMILIAS_ESCALARES(ARR_COPIA_DE) ARR_NOMBRES_COPIA(ARR_NOMBRE)},
        {ARR_FAMILIAS_ESCALARES(ARR_CONCATENA_DE) ARR_NOMBRES_CONCATENA(ARR_NOMBRE)},
        {ARR_FAMILIAS_ESCALARES(ARR_AUMENTA_DE) ARR_NOMBRES_AUMENTA(ARR_NOMBRE)},
        {ARR_FAMILIAS_ESCALARES(ARR_REDUCE_DE) ARR_NOMBRES_REDUCE(ARR_NOMBRE)},
    };
    return grupos;
}

// Each second name of the unsigned families with its arr_ twin.
#define ARR_PAR(segundo, primero) Nombres{#primero, #segundo},
const std::vector<Nombres> &pares_arulong()
{
    static const std::vector<Nombres> pares{ARR_NOMBRES_ARULONG(ARR_PAR, arulong, ULong)
                                                ARR_NOMBRES_ARULONG(ARR_PAR, arulong64, ULong64)};
    return pares;
}

class Alias : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        biblioteca_ = std::make_unique<Biblioteca>(RUTA_LIBARRAYS);
        ASSERT_TRUE(biblioteca_->cargada()) << RUTA_LIBARRAYS;
    }
    static void TearDownTestSuite() { biblioteca_.reset(); }
    static void *direccion(const std::string &nombre) { return biblioteca_->direccion(nombre.c_str()); }

    // Every name of the group is exported with the address of the first.
    static void comprueba_una_direccion(const Nombres &grupo)
    {
        ASSERT_GE(grupo.size(), 2u);
        void *primera = direccion(grupo.front());
        ASSERT_NE(primera, nullptr) << grupo.front() << " is not exported";
        for (const std::string &nombre : grupo) {
            void *suya = direccion(nombre);
            EXPECT_NE(suya, nullptr) << nombre << " is not exported";
            EXPECT_EQ(suya, primera) << nombre << " is not the function " << grupo.front();
        }
    }

    static std::unique_ptr<Biblioteca> biblioteca_;
};
std::unique_ptr<Biblioteca> Alias::biblioteca_;

TEST_F(Alias, EveryDestroyerIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[0]); }
TEST_F(Alias, EveryCountIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[1]); }
TEST_F(Alias, EveryCopyIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[2]); }
TEST_F(Alias, EveryConcatenationIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[3]); }
TEST_F(Alias, EverySharedGrowthIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[4]); }
TEST_F(Alias, EverySharedShrinkIsOneFunction) { comprueba_una_direccion(grupos_compartidos()[5]); }

TEST_F(Alias, EachArulongNameIsItsULongTwin)
{
    for (const Nombres &par : pares_arulong())
        comprueba_una_direccion(par);
}

TEST_F(Alias, DistinctFunctionsHaveDistinctAddresses)
{
    EXPECT_NE(direccion("arr_DestruyeDouble"), direccion("arr_NumElemsDouble"));
    EXPECT_NE(direccion("arulong_append"), direccion("arulong64_append"));
    EXPECT_NE(direccion("arulong_append_n"), direccion("arr_AppendNULongs"));
}

} // namespace
