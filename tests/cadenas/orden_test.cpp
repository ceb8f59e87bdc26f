// Equality of two string arrays (exact or by the caller's predicate) and sorting, by default in
// the order of the strings' code units, NULL first.
#include "cadenas/anchura.h"

#include <string_view>

namespace {

template <typename A> using Orden = PruebaCadenas<A>;
TYPED_TEST_SUITE(Orden, Anchuras, NombreAnchura);

template <typename C> BOOL misma_longitud(const C *a, const C *b)
{
    return std::basic_string_view<C>(a).size() == std::basic_string_view<C>(b).size();
}

// Descending order of the strings.
template <typename C> int descendente(const C *a, const C *b)
{
    const int orden = std::basic_string_view<C>(a).compare(b);
    return (orden < 0) - (orden > 0);
}

TYPED_TEST(Orden, ArraysOfEqualStringsHeldApartAreExactlyEqual)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({TXT("a"), nullptr, TXT("b")});
    ARRAY *otro = this->crea_con({TXT("a"), nullptr, TXT("b")});
    EXPECT_EQ(A::SonIgualesExactamente(uno, otro), CIERTO);
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, OneDifferentStringMakesArraysUnequal)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({TXT("a"), TXT("b")});
    ARRAY *otro = this->crea_con({TXT("a"), TXT("B")});
    EXPECT_EQ(A::SonIgualesExactamente(uno, otro), FALSO);
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, NullElementDoesNotEqualAnEmptyString)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({nullptr});
    ARRAY *otro = this->crea_con({TXT("")});
    EXPECT_EQ(A::SonIgualesExactamente(uno, otro), FALSO);
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, EqualityUsesTheCallersPredicate)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({TXT("ab"), TXT("c")});
    ARRAY *otro = this->crea_con({TXT("xy"), TXT("z")});
    EXPECT_EQ(A::SonIguales(uno, otro, misma_longitud<typename A::C>), CIERTO);
    EXPECT_EQ(A::SonIgualesExactamente(uno, otro), FALSO);
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, EqualityWithoutPredicateReportsAndAnswersFalse)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({TXT("a")});
    ARRAY *otro = this->crea_con({TXT("a")});
    EXPECT_EQ(A::SonIguales(uno, otro, nullptr), FALSO);
    EXPECT_EQ(this->informes(), Textos{A::texto_igualdad});
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, ArraysOfDifferentLengthsAreUnequal)
{
    using A = TypeParam;
    ARRAY *uno = this->crea_con({TXT("a")});
    ARRAY *otro = this->crea_con({TXT("a"), TXT("a")});
    EXPECT_EQ(A::SonIgualesExactamente(uno, otro), FALSO);
    A::Destruye(&uno);
    A::Destruye(&otro);
}

TYPED_TEST(Orden, SortWithoutComparatorOrdersByCodeUnits)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("pera"), TXT("Manzana"), TXT("uva"), TXT("banana")});
    A::QSort(array, nullptr);
    EXPECT_EQ(this->lee(array), this->lista({TXT("Manzana"), TXT("banana"), TXT("pera"), TXT("uva")}));
    A::Destruye(&array);
}

TYPED_TEST(Orden, SortWithoutComparatorPutsNullElementsFirst)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), nullptr, TXT("a"), nullptr});
    A::QSort(array, nullptr);
    EXPECT_EQ(this->lee(array), this->lista({nullptr, nullptr, TXT("a"), TXT("b")}));
    A::Destruye(&array);
}

TYPED_TEST(Orden, SortUsesTheCallersComparator)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("c"), TXT("a")});
    A::QSort(array, descendente<typename A::C>);
    EXPECT_EQ(this->lee(array), this->lista({TXT("c"), TXT("b"), TXT("a")}));
    A::Destruye(&array);
}

TYPED_TEST(Orden, SortMovesPointersWithoutCopyingOrFreeingStrings)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("b"), TXT("a")});
    const auto *b = A::Get(array, 0);
    const auto *a = A::Get(array, 1);
    A::QSort(array, nullptr);
    EXPECT_EQ(A::Get(array, 0), a);
    EXPECT_EQ(A::Get(array, 1), b);
    A::Destruye(&array);
}

TYPED_TEST(Orden, SortOfManyStringsAcrossRowsOrdersThemAll)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    for (int i = 599; i >= 0; --i) {
        const typename TestFixture::Texto texto{static_cast<typename A::C>('A' + i / 26 % 26),
                                                static_cast<typename A::C>('A' + i % 26)};
        A::Append(array, texto.c_str());
    }
    A::QSort(array, nullptr);
    const auto elementos = this->lee(array);
    ASSERT_EQ(elementos.size(), 600u);
    for (size_t i = 1; i < elementos.size(); ++i)
        EXPECT_LE(*elementos[i - 1], *elementos[i]) << i;
    A::Destruye(&array);
}

} // namespace
