// Positions: an index maps to its row and offset (straight into row 0, by a walk below ten rows,
// by bisection over the prefix sums from ten rows on), advances, is checked, and gives the
// element's address.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

#include <algorithm>
#include <random>
#include <tuple>
#include <vector>

namespace {

using Posicion = PruebaArrays;

TEST_F(Posicion, IndicesMapAcrossRowsOf256And256And44)
{
    ARRAY *array = arr_CreaDouble(556);
    ASSERT_EQ(longitudes(array), (std::vector<size_t>{256, 256, 44}));
    posicion_array posi{};
    ASSERT_TRUE(arrayprv_posicion(array, 256, &posi));
    EXPECT_EQ(fila_y_pos(posi), std::make_tuple(size_t{1}, size_t{0}));
    ASSERT_TRUE(arrayprv_posicion(array, 555, &posi));
    EXPECT_EQ(fila_y_pos(posi), std::make_tuple(size_t{2}, size_t{43}));
    arr_DestruyeDouble(&array);
}

TEST_F(Posicion, TheIndexAfterTheLastIsReportedAndNotFound)
{
    ARRAY *array = arr_CreaDouble(556);
    posicion_array posi{};
    EXPECT_FALSE(arrayprv_posicion(array, 556, &posi));
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    arr_DestruyeDouble(&array);
}

TEST_F(Posicion, TheWalkBelowTenRowsAgreesWithTheRowLengths)
{
    ARRAY *array = crea_doubles_en_filas({5, 1, 17, 256, 3, 1, 40, 200, 9});
    ASSERT_EQ(size_t{array->num_filas}, 9u);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Posicion, TheBisectionFromTenRowsAgreesWithTheRowLengths)
{
    ARRAY *array = crea_doubles_en_filas({5, 1, 17, 256, 3, 1, 40, 200, 9, 2});
    ASSERT_EQ(size_t{array->num_filas}, 10u);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Posicion, TheBisectionOverManyUnevenRowsAgreesWithTheRowLengths)
{
    ARRAY *array = crea_doubles_en_filas({1, 1, 256, 2, 1, 99, 1, 1, 1, 30, 7, 1, 256, 3, 1, 64,
                                          1, 2, 1, 1, 5});
    ASSERT_EQ(size_t{array->num_filas}, 21u);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

// The direct lookup (no report, no documented search) over rows of uneven length, at every index:
// rows filled at random, half-full rows before full ones (the average row length mispredicts
// the middle), and a few long runs of one-element rows.
TEST_F(Posicion, TheFastLookupOverUnevenRowsAgreesWithTheRowLengths)
{
    std::mt19937 azar(5);
    std::vector<size_t> al_azar(300);
    for (size_t &cuenta : al_azar)
        cuenta = 1 + azar() % 256;
    std::vector<size_t> mitad_y_llenas(200, 128);
    mitad_y_llenas.insert(mitad_y_llenas.end(), 200, 256);
    std::vector<size_t> con_rachas(100, 256);
    for (size_t fila : {10, 50, 90})
        std::fill_n(con_rachas.begin() + static_cast<std::ptrdiff_t>(fila), 9, size_t{1});
    for (const auto &cuentas : {al_azar, mitad_y_llenas, con_rachas}) {
        ARRAY *array = crea_doubles_en_filas(cuentas);
        for (ULONG indice = 0; indice < array->num_elems; ++indice) {
            posicion_array posi{};
            ASSERT_TRUE(arrayprv_posicion_rapida(array, indice, &posi)) << "index " << indice;
            ASSERT_EQ(fila_y_pos(posi), posicion_contada(cuentas, indice)) << "index " << indice;
        }
        posicion_array posi{};
        EXPECT_FALSE(arrayprv_posicion_rapida(array, static_cast<ULONG>(array->num_elems), &posi));
        arr_DestruyeDouble(&array);
    }
}

// Prefix sums that contradict the row lengths: the direct lookup gives up (the documented search
// then reports), and never answers a position the prefix sums do not confirm.
TEST_F(Posicion, TheFastLookupGivesUpOnInconsistentPrefixSums)
{
    std::vector<size_t> cuentas(100, 100);
    ARRAY *array = crea_doubles_en_filas(cuentas);
    const size_t original = array->acumulado_filas[50];
    array->acumulado_filas[50] = 7000;
    for (ULONG indice : {4950u, 5000u, 5050u, 6999u}) {
        posicion_array posi{};
        if (arrayprv_posicion_rapida(array, indice, &posi)) {
            EXPECT_LE(array->acumulado_filas[posi.fila], indice);
            EXPECT_EQ(posi.pos, indice - array->acumulado_filas[posi.fila]);
            EXPECT_LT(posi.pos, array->long_filas[posi.fila]);
        }
    }
    array->acumulado_filas[50] = original;
    arr_DestruyeDouble(&array);
}

// A count larger than the rows hold: the walk runs off the last row.
TEST_F(Posicion, TheWalkOffTheLastRowIsReportedAndNotFound)
{
    ARRAY *array = arr_CreaDouble(300);
    array->num_elems = 400;
    posicion_array posi{};
    EXPECT_FALSE(arrayprv_posicion(array, 350, &posi));
    array->num_elems = 300;
    EXPECT_EQ(informes(), Textos{"encontrado"});
    arr_DestruyeDouble(&array);
}

// Ten rows of ten elements with a count larger than the rows hold: the bisection runs past the
// last row.
TEST_F(Posicion, TheBisectionPastTheLastRowIsReportedAndNotFound)
{
    ARRAY *array = arrayprv_crea(100, elem_DOUBLE_NO_USAR, 10 * sizeof(double));
    ASSERT_EQ(size_t{array->num_filas}, 10u);
    array->num_elems = 200;
    posicion_array posi{};
    EXPECT_FALSE(arrayprv_posicion(array, 150, &posi));
    array->num_elems = 100;
    EXPECT_EQ(informes(), (Textos{"fila < array->num_filas - 1",
                                  "fila_ini <= fila && fila <= fila_fin"}));
    arr_DestruyeDouble(&array);
}

// Ten rows of ten elements with the prefix sum of row 1 made too large: the bisection is sent
// left of row 1.
TEST_F(Posicion, TheBisectionLeftOfRowOneIsReportedAndNotFound)
{
    ARRAY *array = arrayprv_crea(100, elem_DOUBLE_NO_USAR, 10 * sizeof(double));
    array->acumulado_filas[1] = 50;
    posicion_array posi{};
    EXPECT_FALSE(arrayprv_posicion(array, 15, &posi));
    array->acumulado_filas[1] = 10;
    EXPECT_EQ(informes(), (Textos{"fila > 1", "fila_ini <= fila && fila <= fila_fin"}));
    arr_DestruyeDouble(&array);
}

TEST_F(Posicion, AnIndexOfAnEmptyArrayReportsBothConditions)
{
    ARRAY *array = arr_CreaDouble(0);
    posicion_array posi{};
    EXPECT_FALSE(arrayprv_posicion(array, 0, &posi));
    EXPECT_EQ(informes(), (Textos{"array->num_elems > 0", "real_pos < array->num_elems"}));
    arr_DestruyeDouble(&array);
}

// Advancing a position over two rows of five elements.
class SiguientePosicion : public PruebaConArray {
protected:
    ARRAY *crea_array() override { return crea_doubles_en_filas({5, 5}); }

    // Where the position after `posi` lies.
    std::tuple<size_t, size_t> siguiente(posicion_array posi)
    {
        arrayprv_siguiente_posicion(array, &posi);
        return fila_y_pos(posi);
    }
};

TEST_F(SiguientePosicion, MovesWithinTheRow)
{
    EXPECT_EQ(siguiente({0, 2}), std::make_tuple(size_t{0}, size_t{3}));
}

TEST_F(SiguientePosicion, MovesFromTheLastElementOfARowToTheStartOfTheNext)
{
    EXPECT_EQ(siguiente({0, 4}), std::make_tuple(size_t{1}, size_t{0}));
}

TEST_F(SiguientePosicion, PastTheLastRowIsReported)
{
    EXPECT_EQ(siguiente({1, 4}), std::make_tuple(size_t{2}, size_t{0}));
    EXPECT_EQ(informes(), Textos{"posi->fila < array->num_filas"});
}

TEST_F(SiguientePosicion, IntoAnEmptyRowIsReported)
{
    arrayprv_inserta_fila(array, 1, 0);
    EXPECT_EQ(siguiente({0, 4}), std::make_tuple(size_t{1}, size_t{0}));
    EXPECT_EQ(informes(), Textos{"array->long_filas[posi->fila] > 0"});
    arrayprv_quita_filas_vacias(array);
}

// Checking a position reports the first condition that fails, in a fixed order.
class ComprobacionDePosicion : public PruebaConArray {
protected:
    ARRAY *crea_array() override { return crea_doubles_en_filas({5, 5}); }
};

TEST_F(ComprobacionDePosicion, AValidPositionPasses)
{
    const posicion_array posi{1, 4};
    EXPECT_TRUE(arrayprv_comprueba_posicion(array, &posi));
}

TEST_F(ComprobacionDePosicion, ANullArrayIsReported)
{
    const posicion_array posi{0, 0};
    EXPECT_FALSE(arrayprv_comprueba_posicion(nullptr, &posi));
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

TEST_F(ComprobacionDePosicion, AHeaderWithoutTheMarkIsReported)
{
    ARRAY sin_marca = *array;
    sin_marca.mascara_debug = 0;
    const posicion_array posi{0, 0};
    EXPECT_FALSE(arrayprv_comprueba_posicion(&sin_marca, &posi));
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
}

TEST_F(ComprobacionDePosicion, AnArrayWithoutRowsIsReported)
{
    ARRAY *vacio = arr_CreaDouble(0);
    const posicion_array posi{0, 0};
    EXPECT_FALSE(arrayprv_comprueba_posicion(vacio, &posi));
    EXPECT_EQ(informes(), Textos{"(array->long_filas) != NULL"});
    arr_DestruyeDouble(&vacio);
}

TEST_F(ComprobacionDePosicion, ANullPositionIsReported)
{
    EXPECT_FALSE(arrayprv_comprueba_posicion(array, nullptr));
    EXPECT_EQ(informes(), Textos{"(posi) != NULL"});
}

TEST_F(ComprobacionDePosicion, ARowPastTheLastIsReported)
{
    const posicion_array posi{2, 0};
    EXPECT_FALSE(arrayprv_comprueba_posicion(array, &posi));
    EXPECT_EQ(informes(), Textos{"posi->fila < array->num_filas"});
}

TEST_F(ComprobacionDePosicion, AnOffsetPastTheRowsCountIsReported)
{
    const posicion_array posi{1, 5};
    EXPECT_FALSE(arrayprv_comprueba_posicion(array, &posi));
    EXPECT_EQ(informes(), Textos{"posi->pos < array->long_filas[posi->fila]"});
}

TEST_F(ComprobacionDePosicion, TheElementAddressPointsIntoItsRow)
{
    const posicion_array posi{1, 2};
    EXPECT_EQ(arrayprv_direccion_elemento(array, &posi, elem_DOUBLE_NO_USAR),
              array->buffer[1] + 2 * sizeof(double));
}

TEST_F(ComprobacionDePosicion, TheElementAddressForAnotherTagIsRefused)
{
    const posicion_array posi{1, 2};
    EXPECT_EQ(arrayprv_direccion_elemento(array, &posi, elem_LONG64_NO_USAR), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(ComprobacionDePosicion, TheElementAddressOfABadPositionIsRefused)
{
    const posicion_array posi{1, 5};
    EXPECT_EQ(arrayprv_direccion_elemento(array, &posi, elem_DOUBLE_NO_USAR), nullptr);
    EXPECT_EQ(informes(), Textos{"posi->pos < array->long_filas[posi->fila]"});
}

} // namespace
