// The fifteen searches of a string array: first, next and unique positions and the Existe forms,
// each comparing exactly, ignoring letter case (MayMin) or by the caller's predicate (Ex).
#include "cadenas/anchura.h"

#include <string_view>

namespace {

template <typename A> using Busqueda = PruebaCadenas<A>;
TYPED_TEST_SUITE(Busqueda, Anchuras, NombreAnchura);

// An asymmetric predicate: the element starts with the searched string. Called the other way
// round it would not match the tests below.
template <typename C> BOOL empieza_por(const C *elemento, const C *prefijo)
{
    return std::basic_string_view<C>(elemento).starts_with(prefijo);
}

TYPED_TEST(Busqueda, SearchInAnEmptyArrayFindsNothing)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    ULONG posicion = 0;
    EXPECT_EQ(A::Buscar(array, TXT("a")), ARR_ULONG_MAX);
    EXPECT_EQ(A::Existe(array, TXT("a"), &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, SearchFindsTheFirstExactMatch)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("a"), TXT("a")});
    EXPECT_EQ(A::Buscar(array, TXT("a")), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, SearchDoesNotIgnoreLetterCase)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("ABC")});
    EXPECT_EQ(A::Buscar(array, TXT("abc")), ARR_ULONG_MAX);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, MayMinSearchFindsTheUpperCaseStringForTheLowerCaseOne)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("x"), TXT("ABC")});
    EXPECT_EQ(A::BuscarMayMin(array, TXT("abc")), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, SearchForNullFindsTheNullElement)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), nullptr});
    EXPECT_EQ(A::Buscar(array, nullptr), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, SearchForAStringPassesOverNullElements)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({nullptr, TXT(""), TXT("a")});
    EXPECT_EQ(A::Buscar(array, TXT("a")), 2u);
    EXPECT_EQ(A::BuscarMayMin(array, TXT("")), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExSearchCallsThePredicateWithTheElementFirst)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("abc"), TXT("xyz")});
    EXPECT_EQ(A::BuscarEx(array, TXT("xy"), empieza_por<typename A::C>), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExSearchWithoutPredicateReportsAndFindsNothing)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    EXPECT_EQ(A::BuscarEx(array, TXT("a"), nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(this->informes(), Textos{A::texto_igualdad});
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextSearchFromPastTheOnlyMatchFindsNothing)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("b"), TXT("c")});
    EXPECT_EQ(A::BuscarSiguiente(array, 1, TXT("a")), ARR_ULONG_MAX);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextSearchExaminesItsStartPosition)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("a"), TXT("b")});
    const ULONG encontrada = A::BuscarSiguiente(array, 0, TXT("b"));
    EXPECT_EQ(encontrada, 0u);
    EXPECT_EQ(A::BuscarSiguiente(array, encontrada, TXT("b")), 0u);
    EXPECT_EQ(A::BuscarSiguiente(array, encontrada + 1, TXT("b")), 2u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextSearchFromTheCountFindsNothingWithoutReport)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    EXPECT_EQ(A::BuscarSiguiente(array, 1, TXT("a")), ARR_ULONG_MAX);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextSearchFromPastTheCountReportsAndFindsNothing)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    EXPECT_EQ(A::BuscarSiguiente(array, 2, TXT("a")), ARR_ULONG_MAX);
    EXPECT_EQ(this->informes(), Textos{"pos_inicial == array->num_elems"});
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextSearchContinuesIntoTheFollowingRows)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendN(array, 600, TXT("x"));
    A::Set(array, 550, TXT("buscada"));
    EXPECT_EQ(A::BuscarSiguiente(array, 200, TXT("buscada")), 550u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextExSearchUsesThePredicateFromTheStart)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("xa"), TXT("b"), TXT("xc")});
    EXPECT_EQ(A::BuscarSiguienteEx(array, 1, TXT("x"), empieza_por<typename A::C>), 2u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, NextMayMinSearchIgnoresCaseFromTheStart)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("ab"), TXT("c"), TXT("AB")});
    EXPECT_EQ(A::BuscarSiguienteMayMin(array, 1, TXT("aB")), 2u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, UniqueSearchWithOneMatchReturnsItAfterScanning)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("b"), TXT("c")});
    EXPECT_EQ(A::BuscarUnica(array, TXT("b")), 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, UniqueSearchWithTwoMatchesReportsAndReturnsTheLast)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("a"), TXT("b")});
    EXPECT_EQ(A::BuscarUnica(array, TXT("b")), 2u);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, UniqueExSearchCountsEveryElementThePredicateAccepts)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("xa"), TXT("b"), TXT("xb")});
    EXPECT_EQ(A::BuscarUnicaEx(array, TXT("x"), empieza_por<typename A::C>), 2u);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, UniqueMayMinSearchCountsBothCases)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("ab"), TXT("AB")});
    EXPECT_EQ(A::BuscarUnicaMayMin(array, TXT("Ab")), 1u);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsWritesThePositionAndAnswersTrue)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("b")});
    ULONG posicion = 0;
    EXPECT_EQ(A::Existe(array, TXT("b"), &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsWritesNotFoundAndAnswersFalse)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    ULONG posicion = 0;
    EXPECT_EQ(A::Existe(array, TXT("z"), &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsAcceptsANullPositionPointer)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    EXPECT_EQ(A::Existe(array, TXT("a"), nullptr), CIERTO);
    EXPECT_EQ(A::ExisteMayMin(array, TXT("z"), nullptr), FALSO);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsExUsesThePredicate)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("abc")});
    ULONG posicion = 0;
    EXPECT_EQ(A::ExisteEx(array, TXT("ab"), empieza_por<typename A::C>, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsMayMinIgnoresCase)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("HOLA")});
    ULONG posicion = 0;
    EXPECT_EQ(A::ExisteMayMin(array, TXT("hola"), &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    EXPECT_EQ(A::Existe(array, TXT("hola"), &posicion), FALSO);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsUniqueWithTwoMatchesReportsAndWritesTheLast)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("a"), TXT("b")});
    ULONG posicion = 0;
    EXPECT_EQ(A::ExisteUnica(array, TXT("a"), &posicion), CIERTO);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    EXPECT_EQ(posicion, 1u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsUniqueExWithOneMatchWritesIt)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("xa"), TXT("b")});
    ULONG posicion = 5;
    EXPECT_EQ(A::ExisteUnicaEx(array, TXT("x"), empieza_por<typename A::C>, &posicion), CIERTO);
    EXPECT_EQ(posicion, 0u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, ExistsUniqueMayMinWithTwoMatchesReportsAndWritesTheLast)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("Ab"), TXT("c"), TXT("aB")});
    ULONG posicion = 0;
    EXPECT_EQ(A::ExisteUnicaMayMin(array, TXT("ab"), &posicion), CIERTO);
    EXPECT_EQ(this->informes(), Textos{"!ya_encontrado"});
    EXPECT_EQ(posicion, 2u);
    A::Destruye(&array);
}

TYPED_TEST(Busqueda, SearchInANullArrayReportsAndFindsNothing)
{
    using A = TypeParam;
    ULONG posicion = 0;
    EXPECT_EQ(A::Buscar(nullptr, TXT("a")), ARR_ULONG_MAX);
    EXPECT_EQ(A::ExisteUnica(nullptr, TXT("a"), &posicion), FALSO);
    EXPECT_EQ(this->informes(), (Textos{"array", "array"}));
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
}

TYPED_TEST(Busqueda, SearchInAnArrayOfAnotherTypeReportsTheTag)
{
    using A = TypeParam;
    ARRAY *array = arr_CreaDouble(2);
    EXPECT_EQ(A::BuscarMayMin(array, TXT("a")), ARR_ULONG_MAX);
    EXPECT_EQ(this->informes(), Textos{"array->tipo_elem == tipo_elem"});
    arr_DestruyeDouble(&array);
}

TYPED_TEST(Busqueda, SearchLeavesTheArrayFreeForChanges)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::BuscarUnica(array, TXT("a"));
    A::Set(array, 0, TXT("b"));
    EXPECT_EQ(this->lee(array), this->lista({TXT("b")}));
    A::Destruye(&array);
}

} // namespace
