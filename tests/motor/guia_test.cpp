// The guide from indices to rows kept beside the header: inserts and deletes build and rebuild
// it, the lookup takes its rows as hints confirmed by the prefix sums, so a stale or wrong guide
// never changes where an index is found, and it is freed with the rows.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "core/guia.h"
#include "motor/ayudas_motor.h"

#include <random>

namespace {

using Guia = PruebaArrays;

// A Double array of n appended elements, then `cambios` random inserts and deletes (inserts
// first when `solo_inserciones`), which split rows and leave them uneven.
ARRAY *crea_desigual(ULONG n, size_t cambios, bool solo_inserciones)
{
    ARRAY *array = crea_doubles_anyadidos(n);
    std::mt19937 azar(21);
    for (size_t k = 0; k < cambios; ++k) {
        if (solo_inserciones || k % 2 == 0)
            arr_InsertarDouble(array, static_cast<ULONG>(azar() % array->num_elems), -1.0);
        else
            arr_BorrarDouble(array, static_cast<ULONG>(azar() % array->num_elems));
    }
    return array;
}

// Each entry names the row of its first index and where in its span the next row starts; after
// a rebuild no block has counted a change.
void comprueba_guia_exacta(const ARRAY *array)
{
    const GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_GT(guia.num_entradas, 0u);
    const std::vector<size_t> cuentas = longitudes(array);
    const size_t tramo = size_t{1} << guia.desplazamiento;
    for (size_t entrada = 0; entrada < guia.num_entradas; ++entrada) {
        const size_t indice = entrada << guia.desplazamiento;
        const size_t fila = std::get<0>(posicion_contada(cuentas, indice));
        const size_t hasta_la_siguiente = array->acumulado_filas[fila] + cuentas[fila] - indice;
        ASSERT_EQ(guia.entradas[entrada] >> guia.desplazamiento, fila) << "entry " << entrada;
        ASSERT_EQ(guia.entradas[entrada] & (tramo - 1), std::min(hasta_la_siguiente, tramo) - 1)
            << "entry " << entrada;
    }
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque) {
        ASSERT_EQ(guia.elems_insertados[bloque], 0) << "block " << bloque;
        ASSERT_EQ(guia.filas_insertadas[bloque], 0) << "block " << bloque;
    }
}

TEST_F(Guia, AppendsAloneBuildNoGuide)
{
    ARRAY *array = crea_doubles_anyadidos(100000);
    EXPECT_EQ(arrayprv_guia(array).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(array).entradas, nullptr);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, InsertsBuildAGuideThatNamesTheRowOfEachEntry)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    const size_t num_filas = array->num_filas; // a copy: the header is packed
    ASSERT_GE(num_filas, 64u);
    while (arrayprv_guia(array).cambios != 0) // up to the next rebuild
        arr_InsertarDouble(array, 12345, -2.0);
    comprueba_guia_exacta(array);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

// An uneven array (after `inserciones` random inserts) whose guide has just been rebuilt.
ARRAY *crea_recien_guiado(size_t inserciones = 3000)
{
    ARRAY *array = crea_desigual(60000, inserciones, true);
    while (arrayprv_guia(array).cambios != 0)
        arr_InsertarDouble(array, 12345, -2.0);
    return array;
}

size_t primer_indice_del_bloque(const GuiaFilas &guia, size_t bloque)
{
    return bloque << (guia.desplazamiento + LOG_ENTRADAS_POR_BLOQUE);
}

size_t bloque_de(const GuiaFilas &guia, size_t indice)
{
    return indice >> (guia.desplazamiento + LOG_ENTRADAS_POR_BLOQUE);
}

// The first row, from `desde` on, whose length is (or is not, with `llena` false) the maximum.
size_t fila_tal_que(const ARRAY *array, size_t desde, bool llena)
{
    for (size_t fila = desde; fila < array->num_filas; ++fila)
        if ((array->long_filas[fila] == array->long_max_fila_en_elem) == llena)
            return fila;
    return array->num_filas;
}

TEST_F(Guia, AnInsertIsCountedInEveryBlockAfterIt)
{
    ARRAY *array = crea_recien_guiado();
    const size_t fila = fila_tal_que(array, array->num_filas / 2, false);
    ASSERT_LT(fila, size_t{array->num_filas});
    const size_t indice = array->acumulado_filas[fila] + 1;
    arr_InsertarDouble(array, static_cast<ULONG>(indice), -3.0);
    const GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_EQ(guia.cambios, 1u);
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque) {
        EXPECT_EQ(guia.elems_insertados[bloque], primer_indice_del_bloque(guia, bloque) > indice ? 1 : 0)
            << "block " << bloque;
        EXPECT_EQ(guia.filas_insertadas[bloque], 0) << "block " << bloque;
    }
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, ADeleteIsCountedInEveryBlockFromItsIndexOn)
{
    ARRAY *array = crea_recien_guiado();
    const size_t fila = fila_tal_que(array, array->num_filas / 2, false);
    ASSERT_LT(fila, size_t{array->num_filas});
    const size_t indice = array->acumulado_filas[fila] + 1;
    arr_BorrarDouble(array, static_cast<ULONG>(indice));
    const GuiaFilas &guia = arrayprv_guia(array);
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque)
        EXPECT_EQ(guia.elems_insertados[bloque], primer_indice_del_bloque(guia, bloque) >= indice ? -1 : 0)
            << "block " << bloque;
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, DeletingTheFirstElementIsCountedInEveryBlock)
{
    ARRAY *array = crea_recien_guiado();
    arr_BorrarDouble(array, 0);
    const GuiaFilas &guia = arrayprv_guia(array);
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque)
        EXPECT_EQ(guia.elems_insertados[bloque], -1) << "block " << bloque;
    arr_DestruyeDouble(&array);
}

// Inserting into a full row whose next row is full too splits it: a row is inserted after it.
// Outside the two halves and the blocks where the change happened, every index is then found
// in the row the guide names.
TEST_F(Guia, ASplitIsCountedSoThatTheGuideStaysExactAroundIt)
{
    ARRAY *array = crea_recien_guiado(300);
    size_t fila = fila_tal_que(array, array->num_filas / 3, true);
    while (fila + 1 < array->num_filas && array->long_filas[fila + 1] != array->long_max_fila_en_elem)
        fila = fila_tal_que(array, fila + 1, true);
    ASSERT_LT(fila + 1, size_t{array->num_filas});
    const size_t num_filas = array->num_filas;
    const size_t indice = array->acumulado_filas[fila] + 3;
    const size_t fin_de_la_fila = array->acumulado_filas[fila] + array->long_filas[fila];
    arr_InsertarDouble(array, static_cast<ULONG>(indice), -3.0);
    ASSERT_EQ(size_t{array->num_filas}, num_filas + 1);
    const GuiaFilas &guia = arrayprv_guia(array);
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque)
        EXPECT_EQ(guia.filas_insertadas[bloque],
                  primer_indice_del_bloque(guia, bloque) >= fin_de_la_fila ? 1 : 0)
            << "block " << bloque;
    const std::vector<size_t> cuentas = longitudes(array);
    const size_t inicio_mitades = array->acumulado_filas[fila];
    const size_t fin_mitades = array->acumulado_filas[fila + 2];
    size_t comprobados = 0;
    for (size_t i = 0; i < array->num_elems; ++i) {
        const bool en_las_mitades = inicio_mitades <= i && i < fin_mitades;
        const bool en_un_bloque_cambiado = bloque_de(guia, i) == bloque_de(guia, indice) ||
                                           bloque_de(guia, i) == bloque_de(guia, fin_de_la_fila);
        if (en_las_mitades || en_un_bloque_cambiado)
            continue;
        size_t guiada = 0;
        ASSERT_TRUE(arrayprv_fila_guiada(guia, static_cast<ULONG>(i), guiada)) << i;
        ASSERT_EQ(guiada, std::get<0>(posicion_contada(cuentas, i))) << "index " << i;
        ++comprobados;
    }
    EXPECT_GT(comprobados, size_t{array->num_elems} / 2);
    arr_DestruyeDouble(&array);
}

// Between rebuilds the counts keep the guide's row right for all but the indices next to a
// change inside their own block.
TEST_F(Guia, TheGuideNamesTheRightRowForNearlyEveryIndexBetweenRebuilds)
{
    ARRAY *array = crea_desigual(60000, 7777, false);
    const GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_GT(guia.cambios, 50u);
    const std::vector<size_t> cuentas = longitudes(array);
    size_t exactas = 0;
    for (size_t i = 0; i < array->num_elems; ++i) {
        size_t guiada = 0;
        exactas += arrayprv_fila_guiada(guia, static_cast<ULONG>(i), guiada) &&
                   guiada == std::get<0>(posicion_contada(cuentas, i));
    }
    EXPECT_GE(exactas, size_t{array->num_elems} * 99 / 100);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, EveryIndexIsFoundThroughAStaleGuide)
{
    for (size_t cambios : {1000, 3001, 7777}) {
        ARRAY *array = crea_desigual(60000, cambios, false);
        ASSERT_GT(arrayprv_guia(array).cambios, 0u) << cambios;
        ASSERT_GT(arrayprv_guia(array).num_entradas, 0u) << cambios;
        comprueba_todas_las_posiciones(array);
        const std::vector<double> esperado = contenido(array);
        for (ULONG indice = 0; indice < array->num_elems; ++indice)
            ASSERT_EQ(arr_GetDouble(array, indice), esperado[indice]) << indice;
        arr_DestruyeDouble(&array);
    }
}

TEST_F(Guia, AGuideNamingWrongRowsChangesNoAnswer)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    GuiaFilas &guia = arrayprv_guia(array);
    ASSERT_GT(guia.num_entradas, 0u);
    std::mt19937 azar(5);
    for (size_t entrada = 0; entrada < guia.num_entradas; ++entrada)
        guia.entradas[entrada] = static_cast<uint32_t>(azar());
    for (size_t bloque = 0; bloque < guia.num_bloques; ++bloque) {
        guia.elems_insertados[bloque] = static_cast<int32_t>(azar());
        guia.filas_insertadas[bloque] = static_cast<int32_t>(azar());
    }
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

// Deleting one-element rows can leave fewer rows than the lookup's window before the changes
// count up to a rebuild: the guide still has entries, and every index must still be found
// without reading past the row tables.
TEST_F(Guia, AGuideOutlivingMostOfItsRowsStillFindsEveryIndex)
{
    std::vector<size_t> cuentas(62, 1);
    cuentas.insert(cuentas.end(), 4, 8192);
    ARRAY *array = crea_doubles_en_filas(cuentas, 8192 * sizeof(double));
    for (int k = 0; k < 59; ++k)
        arr_BorrarDouble(array, 0);
    const size_t num_filas = array->num_filas; // a copy: the header is packed
    ASSERT_EQ(num_filas, 7u);
    ASSERT_GT(arrayprv_guia(array).num_entradas, 0u);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, GrowingCompactsTheRowsAndForgetsTheGuide)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    ASSERT_GT(arrayprv_guia(array).num_entradas, 0u);
    arr_AumentaTamanyoDouble(array, static_cast<ULONG>(array->num_elems + 10));
    EXPECT_EQ(arrayprv_guia(array).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(array).entradas, nullptr);
    comprueba_todas_las_posiciones(array);
    arr_DestruyeDouble(&array);
}

TEST_F(Guia, ANewHeaderInAReusedSlotStartsWithoutAGuide)
{
    ARRAY *array = crea_desigual(60000, 3000, true);
    arr_DestruyeDouble(&array);
    ARRAY *nuevo = arr_CreaDouble(10);
    EXPECT_EQ(arrayprv_guia(nuevo).num_entradas, 0u);
    EXPECT_EQ(arrayprv_guia(nuevo).entradas, nullptr);
    EXPECT_EQ(arrayprv_guia(nuevo).cambios, 0u);
    arr_DestruyeDouble(&nuevo);
}

} // namespace
