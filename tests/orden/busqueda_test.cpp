// Search: where it starts and stops, unique matches, the read flag it leaves, the predicate
// tables it accepts for each element type and what it reports.
#include "soporte/prueba_arrays.h"

#include "core/comparadores.h"
#include "orden/ayudas_orden.h"
#include "services/cadenas.h"

#include <cmath>

namespace {

using Busqueda = PruebaArrays;

// The array elements a Double predicate was asked about, in order.
std::vector<double> examinados;

BOOL iguales_anotando(double elemento, double buscado)
{
    examinados.push_back(elemento);
    return elemento == buscado;
}

// Searches a Double array from `desde` with the recording predicate.
ULONG busca_double_desde(ARRAY *array, ULONG desde, double buscado, BOOL unico = FALSO)
{
    fnc_compara tabla{};
    tabla.fnc_compara_double = iguales_anotando;
    ULONG posicion = 0;
    examinados.clear();
    arrayprv_busca(array, desde, &buscado, &tabla, &posicion, elem_DOUBLE_NO_USAR, unico);
    return posicion;
}

// Searches a narrow-string array from `desde` as the "next" string search does.
ULONG busca_cadena_desde(ARRAY *array, ULONG desde, const char *cadena)
{
    fnc_compara tabla{};
    tabla.fnc_compara_CADENA = cad_cadenas_iguales;
    ULONG posicion = 0;
    arrayprv_busca(array, desde, &cadena, &tabla, &posicion, elem_CADENA_NO_USAR, FALSO);
    return posicion;
}

TEST_F(Busqueda, SearchInAnEmptyArrayFindsNothing)
{
    ARRAY *array = arr_CreaDouble(0);
    EXPECT_EQ(arr_BuscarDouble(array, 1.0, iguales_anotando), ARR_ULONG_MAX);
    EXPECT_EQ(arr_BuscarUnicoDouble(array, 1.0, iguales_anotando), ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, ExistsInAnEmptyArrayIsFalseAndStoresNotFound)
{
    ARRAY *array = arr_CreaDouble(0);
    ULONG posicion = 7;
    EXPECT_EQ(arr_ExisteDouble(array, 1.0, iguales_anotando, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    posicion = 7;
    EXPECT_EQ(arr_ExisteUnicoDouble(array, 1.0, iguales_anotando, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, ExistsStoresThePositionItFound)
{
    ARRAY *array = crea_doubles({4.0, 5.0, 6.0});
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExisteDouble(array, 6.0, iguales_anotando, &posicion), CIERTO);
    EXPECT_EQ(posicion, 2u);
    EXPECT_EQ(arr_ExisteDouble(array, 6.0, iguales_anotando, nullptr), CIERTO);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, NextSearchFromTheCountFindsNothingWithoutAReport)
{
    ARRAY *array = crea_cadenas({"uno", "dos"});
    EXPECT_EQ(busca_cadena_desde(array, 2, "uno"), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{});
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, NextSearchPastTheCountIsReportedAndFindsNothing)
{
    ARRAY *array = crea_cadenas({"uno", "dos"});
    EXPECT_EQ(busca_cadena_desde(array, 3, "uno"), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"pos_inicial == array->num_elems"});
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, NextSearchExaminesItsStartingPosition)
{
    ARRAY *array = crea_cadenas({"a", "b", "a", "c", "a"});
    const ULONG primera = busca_cadena_desde(array, 1, "a");
    EXPECT_EQ(primera, 2u);
    EXPECT_EQ(busca_cadena_desde(array, primera, "a"), primera);
    EXPECT_EQ(busca_cadena_desde(array, primera + 1, "a"), 4u);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, UniqueSearchOfATwiceHeldValueReportsAndKeepsTheLaterPosition)
{
    ARRAY *array = crea_doubles({1.0, 7.0, 2.0, 7.0, 3.0});
    examinados.clear();
    EXPECT_EQ(arr_BuscarUnicoDouble(array, 7.0, iguales_anotando), 3u);
    EXPECT_EQ(informes(), Textos{"!ya_encontrado"});
    EXPECT_EQ(examinados, doubles_de(array));
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, UniqueSearchOfAOnceHeldValueScansToTheEnd)
{
    ARRAY *array = crea_doubles({1.0, 7.0, 2.0, 3.0});
    examinados.clear();
    EXPECT_EQ(arr_BuscarUnicoDouble(array, 7.0, iguales_anotando), 1u);
    EXPECT_EQ(examinados, doubles_de(array));
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, PlainSearchStopsAtTheFirstMatch)
{
    ARRAY *array = crea_doubles({1.0, 7.0, 2.0, 7.0});
    examinados.clear();
    EXPECT_EQ(arr_BuscarDouble(array, 7.0, iguales_anotando), 1u);
    EXPECT_EQ(examinados, (std::vector<double>{1.0, 7.0}));
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, SearchFromTheMiddleOfARowContinuesAtTheFirstElementOfTheNextRows)
{
    ARRAY *array = crea_doubles(uno_a(600));
    ASSERT_EQ(disposicion(array).long_filas, (std::vector<size_t>{256, 256, 88}));
    EXPECT_EQ(busca_double_desde(array, 200, 590.0), 589u);
    const std::vector<double> todos = uno_a(600);
    EXPECT_EQ(examinados, std::vector<double>(todos.begin() + 200, todos.begin() + 590));
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, SearchLeavesTheReadFlagCleared)
{
    ARRAY *array = crea_doubles({1.0, 2.0});
    arr_BuscarDouble(array, 2.0, iguales_anotando);
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_BuscarDouble(array, 5.0, iguales_anotando);
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

// What a search made from inside a read traversal found, and the read flag right after it.
struct DentroDeLectura {
    ARRAY *array;
    std::vector<ULONG> encontradas;
    std::vector<BOOL> banderas;
};

BOOL busca_el_elemento(double *elemento, void *datos)
{
    auto *dentro = static_cast<DentroDeLectura *>(datos);
    dentro->encontradas.push_back(arr_BuscarDouble(dentro->array, *elemento, iguales_anotando));
    dentro->banderas.push_back(dentro->array->en_bucle_lectura);
    return CIERTO;
}

TEST_F(Busqueda, SearchInsideAReadTraversalWorksAndClearsTheReadFlag)
{
    ARRAY *array = crea_doubles({3.0, 4.0, 5.0});
    DentroDeLectura dentro{array, {}, {}};
    fnc_accion acciones{};
    acciones.fnc_accion_double = busca_el_elemento;
    arrayprv_recorre(array, &acciones, &dentro, elem_DOUBLE_NO_USAR, 0, 1, "prueba", 1);
    EXPECT_EQ(dentro.encontradas, (std::vector<ULONG>{0, 1, 2}));
    EXPECT_EQ(dentro.banderas, (std::vector<BOOL>{FALSO, FALSO, FALSO}));
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, NullArrayIsReportedAndFindsNothing)
{
    const double buscado = 1.0;
    fnc_compara tabla{};
    tabla.fnc_compara_double = iguales_anotando;
    ULONG posicion = 0;
    arrayprv_busca(nullptr, 0, &buscado, &tabla, &posicion, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"array"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
}

TEST_F(Busqueda, DeadHeaderIsReportedAndFindsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    ARRAY muerto = *array;
    muerto.mascara_debug = 0;
    examinados.clear();
    fnc_compara tabla{};
    tabla.fnc_compara_double = iguales_anotando;
    const double buscado = 1.0;
    ULONG posicion = 0;
    arrayprv_busca(&muerto, 0, &buscado, &tabla, &posicion, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"array->mascara_debug == MASCARA_DEBUG"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(examinados, std::vector<double>{});
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, MissingSearchedValueIsReportedAndFindsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    fnc_compara tabla{};
    tabla.fnc_compara_double = iguales_anotando;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, nullptr, &tabla, &posicion, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"elemento"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, MissingSearchedValueAndMissingTableAreBothReported)
{
    ARRAY *array = crea_doubles({1.0});
    ULONG posicion = 0;
    arrayprv_busca(array, 0, nullptr, nullptr, &posicion, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), (Textos{"elemento", "(fnc_compara) != NULL"}));
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, MissingOutputPositionAndWrongTagAreBothReported)
{
    ARRAY *array = crea_doubles({1.0});
    fnc_compara tabla{};
    const LONG buscado = 0;
    arrayprv_busca(array, 0, &buscado, &tabla, nullptr, elem_LONG_NO_USAR, FALSO);
    EXPECT_EQ(informes(), (Textos{"(posicion) != NULL", "array->tipo_elem == tipo_elem"}));
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, MissingOutputPositionIsReported)
{
    ARRAY *array = crea_doubles({1.0});
    fnc_compara tabla{};
    tabla.fnc_compara_double = iguales_anotando;
    const double buscado = 1.0;
    examinados.clear();
    arrayprv_busca(array, 0, &buscado, &tabla, nullptr, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"(posicion) != NULL"});
    EXPECT_EQ(examinados, std::vector<double>{});
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, WrongTagIsReportedAndFindsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    fnc_compara tabla{};
    const LONG buscado = 0;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, &tabla, &posicion, elem_LONG_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, BoolSearchWithATableIsReportedAndStillComparesExactly)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, {FALSO, CIERTO});
    fnc_compara tabla{};
    const BOOL buscado = CIERTO;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, &tabla, &posicion, elem_BOOL_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"fnc_compara == NULL"});
    EXPECT_EQ(posicion, 1u);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, BoolSearchWithoutATableComparesExactly)
{
    ARRAY *array = crea_con<BOOL>(elem_BOOL_NO_USAR, {CIERTO, FALSO});
    const BOOL buscado = FALSO;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, nullptr, &posicion, elem_BOOL_NO_USAR, FALSO);
    EXPECT_EQ(posicion, 1u);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, IntegerSearchWithoutATableIsReportedAndFindsNothing)
{
    ARRAY *array = crea_con<LONG>(elem_LONG_NO_USAR, {5, 6});
    const LONG buscado = 6;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, nullptr, &posicion, elem_LONG_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"(fnc_compara) != NULL"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, IntegerSearchWithoutAPredicateComparesAtTheTypesWidth)
{
    ARRAY *array = crea_con<char>(elem_CHAR_NO_USAR, {'a', 'b', 'c'});
    fnc_compara tabla{};
    const char buscado[8] = {'c', 'x', 'x', 'x', 'x', 'x', 'x', 'x'};
    ULONG posicion = 0;
    arrayprv_busca(array, 0, buscado, &tabla, &posicion, elem_CHAR_NO_USAR, FALSO);
    EXPECT_EQ(posicion, 2u);
    arrayprv_destruye(&array);
}

// A Char predicate that takes letters of either case as equal.
BOOL misma_letra(char a, char b) { return (a | 0x20) == (b | 0x20); }

TEST_F(Busqueda, IntegerSearchWithAPredicateUsesIt)
{
    ARRAY *array = crea_con<char>(elem_CHAR_NO_USAR, {'a', 'B', 'c'});
    fnc_compara tabla{};
    tabla.fnc_compara_char = misma_letra;
    const char buscado = 'b';
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, &tabla, &posicion, elem_CHAR_NO_USAR, FALSO);
    EXPECT_EQ(posicion, 1u);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, DoubleSearchWithoutATableIsReportedAndFindsNothing)
{
    ARRAY *array = crea_doubles({1.0});
    const double buscado = 1.0;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, nullptr, &posicion, elem_DOUBLE_NO_USAR, FALSO);
    EXPECT_EQ(informes(), Textos{"(fnc_compara) != NULL"});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arr_DestruyeDouble(&array);
}

TEST_F(Busqueda, BitSearchIsReportedAsAnUnhandledType)
{
    ARRAY *array = arrayprv_crea(16, elem_BIT_NO_USAR, LONG_FILA_POR_DEFECTO);
    const BYTE buscado = 0;
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, nullptr, &posicion, elem_BIT_NO_USAR, FALSO);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(informes(), Textos{""});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arrayprv_destruye(&array);
}

TEST_F(Busqueda, PointSearchCallsThePredicateWithTheElementThenTheSearchedPoint)
{
    static std::vector<double> argumentos;
    ARRAY *array = crea_con<Punto3D>(elem_PUNTO3D_NO_USAR, {{1, 2, 3}, {4, 5, 6}});
    fnc_compara tabla{};
    tabla.fnc_compara_punto3D = [](double x1, double y1, double z1, double x2, double y2,
                                   double z2) -> BOOL {
        argumentos.insert(argumentos.end(), {x1, y1, z1, x2, y2, z2});
        return x1 == x2 && y1 == y2 && z1 == z2;
    };
    const Punto3D buscado{4, 5, 6};
    ULONG posicion = 0;
    arrayprv_busca(array, 0, &buscado, &tabla, &posicion, elem_PUNTO3D_NO_USAR, FALSO);
    EXPECT_EQ(posicion, 1u);
    EXPECT_EQ(argumentos, (std::vector<double>{1, 2, 3, 4, 5, 6, 4, 5, 6, 4, 5, 6}));
    arrayprv_destruye(&array);
}

class BusquedaSinPredicado : public PruebaArrays,
                             public ::testing::WithParamInterface<PredicadoRequerido> {};

TEST_P(BusquedaSinPredicado, SearchWithoutTheTypesPredicateIsReportedAndFindsNothing)
{
    const tipo_elem_array tipo = GetParam().tipo;
    ARRAY *array = arrayprv_crea(2, tipo, LONG_FILA_POR_DEFECTO);
    EXPECT_EQ(informes(), tipo == elem_PUNTERO_NO_USAR
                              ? Textos{"tipo_elemento != elem_PUNTERO_NO_USAR"}
                              : Textos{});
    const char buscado[24] = {};
    fnc_compara tabla{};
    ULONG posicion = 0;
    arrayprv_busca(array, 0, buscado, &tabla, &posicion, tipo, FALSO);
    EXPECT_EQ(informes(), Textos{GetParam().texto});
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    arrayprv_destruye(&array);
}

INSTANTIATE_TEST_SUITE_P(TiposConPredicado, BusquedaSinPredicado,
                         ::testing::ValuesIn(predicados_requeridos()), nombre_de_tipo);

} // namespace
