// The behaviour every scalar family shares, run once per family of the table: creation, append,
// insertion (with the spill and split of full rows), deletion, element access, fill, search,
// sort, equality, copy, concatenation, and growth, shrinking, repeated append and traversal
// where the family has them.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "escalares/familias.h"

#include <algorithm>
#include <vector>

namespace {

template <typename F> class Familias : public PruebaArrays {
protected:
    using V = typename F::Valor;
    const V cero = static_cast<V>(0);
    const V uno = static_cast<V>(1);

    static ARRAY *con(std::initializer_list<V> valores) { return array_con<F>(valores); }
    static std::vector<V> contenido(ARRAY *array) { return ::contenido<F>(array); }
};
TYPED_TEST_SUITE(Familias, TodasLasFamilias, NombreFamilia);

// The same tests over the families that have what a test needs.
template <typename F> class ConPredicado : public Familias<F> {};
TYPED_TEST_SUITE(ConPredicado, FamiliasConPredicado, NombreFamilia);
template <typename F> class ConAppendN : public Familias<F> {};
TYPED_TEST_SUITE(ConAppendN, FamiliasConAppendN, NombreFamilia);
template <typename F> class ConAumenta : public Familias<F> {};
TYPED_TEST_SUITE(ConAumenta, FamiliasConAumenta, NombreFamilia);
template <typename F> class ConReduce : public Familias<F> {};
TYPED_TEST_SUITE(ConReduce, FamiliasConReduce, NombreFamilia);
template <typename F> class ConRecorre : public Familias<F> {};
TYPED_TEST_SUITE(ConRecorre, FamiliasConRecorre, NombreFamilia);

// Another tag of the same element size, the same C type where there is one (BYTE and UChar, BOOL
// and UShort), so that only the tag tells the arrays apart.
constexpr tipo_elem_array otra_etiqueta(tipo_elem_array tag)
{
    switch (tag) {
    case elem_BYTE_NO_USAR:
        return elem_UCHAR_NO_USAR;
    case elem_UCHAR_NO_USAR:
        return elem_BYTE_NO_USAR;
    case elem_BOOL_NO_USAR:
        return elem_USHORT_NO_USAR;
    case elem_USHORT_NO_USAR:
        return elem_BOOL_NO_USAR;
    case elem_CHAR_NO_USAR:
        return elem_UCHAR_NO_USAR;
    default:
        return elem_CHAR_NO_USAR;
    }
}

TYPED_TEST(Familias, CreatedArrayHoldsZeroElements)
{
    ARRAY *array = TypeParam::crea(5);
    EXPECT_EQ(TypeParam::num_elems(array), 5u);
    EXPECT_EQ(this->contenido(array), std::vector<typename TypeParam::Valor>(5, this->cero));
    TypeParam::destruye(&array);
    EXPECT_EQ(array, nullptr);
}

TYPED_TEST(Familias, CreatedArrayHasTheFamilysTag)
{
    ARRAY *array = TypeParam::crea(0);
    EXPECT_EQ(tipo_elem_array{array->tipo_elem}, TypeParam::tag);
    EXPECT_EQ(size_t{array->size_elem}, sizeof(typename TypeParam::Valor));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, AppendAddsAtTheEnd)
{
    ARRAY *array = this->con({this->cero});
    TypeParam::append(array, this->uno);
    EXPECT_EQ(this->contenido(array), (std::vector{this->cero, this->uno}));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, InsertPutsTheValueBeforeThePosition)
{
    ARRAY *array = TypeParam::crea(3);
    TypeParam::inserta(array, 1, this->uno);
    EXPECT_EQ(this->contenido(array), (std::vector{this->cero, this->uno, this->cero, this->cero}));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, InsertAtTheCountAppends)
{
    ARRAY *array = TypeParam::crea(2);
    TypeParam::inserta(array, 2, this->uno);
    EXPECT_EQ(this->contenido(array), (std::vector{this->cero, this->cero, this->uno}));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, InsertIntoAFullRowSpillsItsLastElementIntoTheNextRow)
{
    constexpr ULONG max = elementos_por_fila<TypeParam>();
    ARRAY *array = TypeParam::crea(max + 1);
    ASSERT_EQ(size_t{array->num_filas}, 2u);
    ASSERT_EQ(array->long_filas[0], max);
    TypeParam::set(array, max - 1, this->uno);
    TypeParam::inserta(array, 0, this->uno);
    EXPECT_EQ(size_t{array->num_filas}, 2u);
    EXPECT_EQ(array->long_filas[0], max);
    EXPECT_EQ(array->long_filas[1], 2u);
    std::vector<typename TypeParam::Valor> esperado(max + 2, this->cero);
    esperado[0] = this->uno;
    esperado[max] = this->uno;
    EXPECT_EQ(this->contenido(array), esperado);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, InsertIntoFullLastRowSplitsIt)
{
    constexpr ULONG max = elementos_por_fila<TypeParam>();
    ARRAY *array = TypeParam::crea(max);
    ASSERT_EQ(size_t{array->num_filas}, 1u);
    TypeParam::set(array, max - 1, this->uno);
    TypeParam::inserta(array, 0, this->uno);
    ASSERT_EQ(size_t{array->num_filas}, 2u);
    EXPECT_EQ(array->long_filas[0], max - max / 2 + 1);
    EXPECT_EQ(array->long_filas[1], max / 2);
    std::vector<typename TypeParam::Valor> esperado(max + 1, this->cero);
    esperado[0] = this->uno;
    esperado[max] = this->uno;
    EXPECT_EQ(this->contenido(array), esperado);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, DeleteRemovesTheElementAndClosesTheGap)
{
    ARRAY *array = this->con({this->cero, this->uno, this->cero, this->uno});
    TypeParam::borra(array, 1);
    EXPECT_EQ(this->contenido(array), (std::vector{this->cero, this->cero, this->uno}));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, SetAndGetKeepTheExtremesOfTheType)
{
    using V = typename TypeParam::Valor;
    ARRAY *array = TypeParam::crea(2);
    TypeParam::set(array, 0, std::numeric_limits<V>::lowest());
    TypeParam::set(array, 1, std::numeric_limits<V>::max());
    EXPECT_EQ(TypeParam::get(array, 0), std::numeric_limits<V>::lowest());
    EXPECT_EQ(TypeParam::get(array, 1), std::numeric_limits<V>::max());
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, GetPastTheEndIsReportedAndGivesZero)
{
    ARRAY *array = this->con({this->uno});
    EXPECT_EQ(TypeParam::get(array, 1), this->cero);
    EXPECT_EQ(this->informes(), Textos{"real_pos < array->num_elems"});
    TypeParam::destruye(&array);
}

// The tag is reported; the set and the get then go on when the other tag's elements are of the
// same size (both plain values), and are refused otherwise.
TYPED_TEST(Familias, ArrayOfAnotherTagIsReportedAndUsedOnlyWhenItsElementsAreOfTheSameSize)
{
    const tipo_elem_array otra = otra_etiqueta(TypeParam::tag);
    const bool mismo_tamanyo = arrayprv_size_elem(otra) == arrayprv_size_elem(TypeParam::tag);
    ARRAY *array = arrayprv_crea(1, otra, LONG_FILA_POR_DEFECTO);
    TypeParam::set(array, 0, this->uno);
    EXPECT_EQ(this->informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(array->buffer[0][0] != 0, mismo_tamanyo);
    EXPECT_EQ(TypeParam::get(array, 0), mismo_tamanyo ? this->uno : this->cero);
    EXPECT_EQ(this->informes(), Textos{"array->tipo_elem == tipo_elem"});
    arrayprv_destruye(&array);
}

TYPED_TEST(Familias, InicializaSetsEveryElementOfEveryRow)
{
    constexpr ULONG n = 2 * elementos_por_fila<TypeParam>() + 3;
    ARRAY *array = TypeParam::crea(n);
    TypeParam::inicializa(array, this->uno);
    EXPECT_EQ(this->contenido(array), std::vector<typename TypeParam::Valor>(n, this->uno));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, SearchFindsTheFirstMatch)
{
    ARRAY *array = this->con({this->cero, this->uno, this->uno});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::busca, array, this->uno), 1u);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, SearchForAMissingValueGivesNotFound)
{
    ARRAY *array = this->con({this->cero, this->cero});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::busca, array, this->uno), ARR_ULONG_MAX);
    TypeParam::destruye(&array);
}

TYPED_TEST(ConPredicado, SearchUsesTheCallersPredicate)
{
    using V = typename TypeParam::Valor;
    ARRAY *array = this->con({this->cero, this->cero});
    const auto cualquiera = [](V, V) -> BOOL { return CIERTO; };
    EXPECT_EQ(TypeParam::busca(array, this->uno, cualquiera), 0u);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, UniqueSearchReportsASecondMatchAndGivesTheLast)
{
    ARRAY *array = this->con({this->uno, this->cero, this->uno});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::busca_unico, array, this->uno), 2u);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, ExistsStoresThePositionFound)
{
    ARRAY *array = this->con({this->cero, this->uno});
    ULONG posicion = 0;
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::existe, array, this->uno, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, ExistsStoresNotFoundWhenAbsent)
{
    ARRAY *array = this->con({this->cero});
    ULONG posicion = 0;
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::existe, array, this->uno, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, ExistsUniqueFindsTheOnlyMatchWithoutReport)
{
    ARRAY *array = this->con({this->cero, this->uno, this->cero});
    ULONG posicion = 0;
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::existe_unico, array, this->uno, &posicion),
              CIERTO);
    EXPECT_EQ(posicion, 1u);
    TypeParam::destruye(&array);
}

TYPED_TEST(ConPredicado, DefaultSortMatchesStdSort)
{
    using V = typename TypeParam::Valor;
    std::mt19937_64 generador(20240611);
    std::vector<V> valores(3000);
    for (V &valor : valores)
        valor = aleatorio<V>(generador);
    ARRAY *array = TypeParam::crea(0);
    for (V valor : valores)
        TypeParam::append(array, valor);
    ASSERT_GT(size_t{array->num_filas}, 1u);
    TypeParam::ordena(array, nullptr);
    std::sort(valores.begin(), valores.end(), precede<V>);
    EXPECT_EQ(this->contenido(array), valores);
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, SortWithTheCallersComparatorFollowsIt)
{
    using V = typename TypeParam::Valor;
    ARRAY *array = this->con({this->cero, this->uno, this->cero, this->uno});
    const auto descendente = [](V a, V b) -> int {
        if (a == b)
            return comparac_IGUALES;
        return b < a ? comparac_PRIMERO_MENOR : comparac_PRIMERO_MAYOR;
    };
    TypeParam::ordena(array, descendente);
    EXPECT_EQ(this->contenido(array), (std::vector{this->uno, this->uno, this->cero, this->cero}));
    TypeParam::destruye(&array);
}

TYPED_TEST(Familias, ArraysWithTheSameElementsAreEqual)
{
    ARRAY *array1 = this->con({this->cero, this->uno});
    ARRAY *array2 = this->con({this->cero, this->uno});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::son_iguales, array1, array2), CIERTO);
    TypeParam::destruye(&array1);
    TypeParam::destruye(&array2);
}

TYPED_TEST(Familias, ArraysDifferingInOneElementAreNotEqual)
{
    ARRAY *array1 = this->con({this->cero, this->uno});
    ARRAY *array2 = this->con({this->cero, this->cero});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::son_iguales, array1, array2), FALSO);
    TypeParam::destruye(&array1);
    TypeParam::destruye(&array2);
}

TYPED_TEST(Familias, ArraysOfDifferentLengthsAreNotEqual)
{
    ARRAY *array1 = this->con({this->cero});
    ARRAY *array2 = this->con({this->cero, this->cero});
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::son_iguales, array1, array2), FALSO);
    TypeParam::destruye(&array1);
    TypeParam::destruye(&array2);
}

TYPED_TEST(Familias, CopyIsEqualAndIndependent)
{
    ARRAY *original = this->con({this->cero, this->uno});
    ARRAY *copia = TypeParam::copia(original);
    EXPECT_EQ(con_igualdad<TypeParam>(TypeParam::son_iguales, original, copia), CIERTO);
    TypeParam::set(copia, 0, this->uno);
    EXPECT_EQ(this->contenido(original), (std::vector{this->cero, this->uno}));
    TypeParam::destruye(&original);
    TypeParam::destruye(&copia);
}

TYPED_TEST(Familias, ConcatenationAppendsTheOriginAndLeavesIt)
{
    ARRAY *destino = this->con({this->cero});
    ARRAY *origen = this->con({this->uno, this->cero});
    TypeParam::concatena(destino, origen);
    EXPECT_EQ(this->contenido(destino), (std::vector{this->cero, this->uno, this->cero}));
    EXPECT_EQ(this->contenido(origen), (std::vector{this->uno, this->cero}));
    TypeParam::destruye(&destino);
    TypeParam::destruye(&origen);
}

TYPED_TEST(ConAumenta, GrowAddsZeroElements)
{
    ARRAY *array = this->con({this->uno});
    TypeParam::aumenta(array, 3);
    EXPECT_EQ(this->contenido(array), (std::vector{this->uno, this->cero, this->cero}));
    TypeParam::destruye(&array);
}

TYPED_TEST(ConReduce, ShrinkDropsTheTail)
{
    ARRAY *array = this->con({this->uno, this->cero, this->uno});
    TypeParam::reduce(array, 1);
    EXPECT_EQ(this->contenido(array), (std::vector{this->uno}));
    TypeParam::destruye(&array);
}

TYPED_TEST(ConAppendN, AppendNAppendsTheValueThatManyTimes)
{
    ARRAY *array = this->con({this->cero});
    TypeParam::append_n(array, 3, this->uno);
    EXPECT_EQ(this->contenido(array), (std::vector{this->cero, this->uno, this->uno, this->uno}));
    TypeParam::destruye(&array);
}

TYPED_TEST(ConRecorre, TraversalVisitsEveryElementInOrder)
{
    using V = typename TypeParam::Valor;
    ARRAY *array = this->con({this->uno, this->cero, this->uno});
    std::vector<V> vistos;
    const auto anota = [](V *elemento, void *datos) -> BOOL {
        static_cast<std::vector<V> *>(datos)->push_back(*elemento);
        return CIERTO;
    };
    TypeParam::recorre(array, anota, &vistos, __FILE__, __LINE__);
    EXPECT_EQ(vistos, (std::vector{this->uno, this->cero, this->uno}));
    TypeParam::destruye(&array);
}

} // namespace
