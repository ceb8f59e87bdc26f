// Who owns each string: appends, inserts and sets store copies (or take over a string handed
// over), deletion and replacement free what leaves the array, and a call that ends early frees
// its copy and leaves a handed-over string with the caller. The fixture proves after every test
// that no tracked block is left.
#include "cadenas/anchura.h"

#include "services/memoria.h"

namespace {

template <typename A> using Propiedad = PruebaCadenas<A>;
TYPED_TEST_SUITE(Propiedad, Anchuras, NombreAnchura);

TYPED_TEST(Propiedad, CreateHoldsNullElements)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(3);
    EXPECT_EQ(A::NumElems(array), 3u);
    EXPECT_EQ(this->lee(array), this->lista({nullptr, nullptr, nullptr}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendStoresACopyThatTheCallerKeepsApartFrom)
{
    using A = TypeParam;
    typename TestFixture::Texto propia = TXT("abc");
    ARRAY *array = A::Crea(0);
    A::Append(array, propia.c_str());
    propia[0] = 'x';
    EXPECT_NE(A::Get(array, 0), propia.c_str());
    EXPECT_EQ(this->lee(array), this->lista({TXT("abc")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendOfNullStoresANullElement)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::Append(array, nullptr);
    EXPECT_EQ(this->lee(array), this->lista({nullptr}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendToANullArrayReportsAndFreesItsCopy)
{
    using A = TypeParam;
    const size_t bloques = zarpspy_bloques_vivos();
    A::Append(nullptr, TXT("abc"));
    EXPECT_EQ(this->informes(), Textos{"array"});
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
}

TYPED_TEST(Propiedad, AppendToAnArrayOfAnotherTypeReportsTheTagAndStoresNothing)
{
    using A = TypeParam;
    ARRAY *array = arr_CreaDouble(0);
    A::Append(array, TXT("abc"));
    EXPECT_EQ(this->informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
}

TYPED_TEST(Propiedad, AppendOriginalStoresTheCallersStringAndClearsItsPointer)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    auto *propia = A::copia(TXT("abc"));
    const auto *entregada = propia;
    A::AppendOriginal(array, &propia);
    EXPECT_EQ(propia, nullptr);
    EXPECT_EQ(A::Get(array, 0), entregada);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendOriginalStringIsFreedByDelete)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("otra")});
    auto *propia = A::copia(TXT("abc"));
    A::AppendOriginal(array, &propia);
    const size_t bloques = zarpspy_bloques_vivos();
    A::Borrar(array, 1);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques - 1);
    EXPECT_EQ(this->lee(array), this->lista({TXT("otra")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendOriginalStringIsFreedByDestruction)
{
    using A = TypeParam;
    const size_t bloques = zarpspy_bloques_vivos();
    auto *propia = A::copia(TXT("abc"));
    ARRAY *array = A::Crea(0);
    A::AppendOriginal(array, &propia);
    A::Destruye(&array);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
}

TYPED_TEST(Propiedad, AppendOriginalWithoutAnAddressReportsItemAndAppendsNothing)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendOriginal(array, nullptr);
    EXPECT_EQ(this->informes(), Textos{"item"});
    EXPECT_EQ(A::NumElems(array), 0u);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendOriginalItemIsReportedByTheFamilyModule)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendOriginal(array, nullptr);
    ASSERT_EQ(this->informes_completos().size(), 1u);
    EXPECT_EQ(this->informes_completos()[0].ubicacion, A::ubicacion);
    EXPECT_EQ(this->informes(), Textos{"item"});
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendOriginalToANullArrayLeavesTheStringWithTheCaller)
{
    using A = TypeParam;
    auto *propia = A::copia(TXT("abc"));
    const auto *antes = propia;
    A::AppendOriginal(nullptr, &propia);
    EXPECT_EQ(this->informes(), Textos{"array"});
    EXPECT_EQ(propia, antes);
    A::libera(propia);
}

TYPED_TEST(Propiedad, AppendNAppendsSeparateCopies)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendN(array, 3, TXT("ab"));
    EXPECT_EQ(this->lee(array), this->lista({TXT("ab"), TXT("ab"), TXT("ab")}));
    EXPECT_NE(A::Get(array, 0), A::Get(array, 1));
    EXPECT_NE(A::Get(array, 1), A::Get(array, 2));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendNWithCountZeroAppendsNothingWithoutReport)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    A::AppendN(array, 0, TXT("ab"));
    EXPECT_EQ(A::NumElems(array), 0u);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, AppendNToANullArrayReportsOnce)
{
    using A = TypeParam;
    A::AppendN(nullptr, 4, TXT("ab"));
    EXPECT_EQ(this->informes(), Textos{"array"});
}

TYPED_TEST(Propiedad, InsertPlacesACopyBeforeThePosition)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("c")});
    const auto *propia = TXT("b");
    A::Insertar(array, 1, propia);
    EXPECT_NE(A::Get(array, 1), propia);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a"), TXT("b"), TXT("c")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, InsertAtTheCountAppends)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::Insertar(array, 1, TXT("b"));
    EXPECT_EQ(this->lee(array), this->lista({TXT("a"), TXT("b")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, InsertPastTheCountReportsAndFreesItsCopy)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    const size_t bloques = zarpspy_bloques_vivos();
    A::Insertar(array, 2, TXT("b"));
    EXPECT_EQ(this->informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, DeleteFreesTheStringAndRemovesTheElement)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), TXT("b"), TXT("c")});
    const size_t bloques = zarpspy_bloques_vivos();
    A::Borrar(array, 1);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques - 1);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a"), TXT("c")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, DeleteOfANullElementRemovesIt)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), nullptr, TXT("c")});
    A::Borrar(array, 1);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a"), TXT("c")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, DeleteOfTheOnlyElementLeavesAnEmptyArray)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::Borrar(array, 0);
    EXPECT_EQ(A::NumElems(array), 0u);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, DeleteAtAMissingPositionReportsOnceAndChangesNothing)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::Borrar(array, 5);
    EXPECT_EQ(this->informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(this->lee(array), this->lista({TXT("a")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, DeleteInANullArrayReportsOnce)
{
    using A = TypeParam;
    A::Borrar(nullptr, 0);
    EXPECT_EQ(this->informes(), Textos{"array"});
}

TYPED_TEST(Propiedad, GetReturnsTheStoredPointerEveryTime)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    const auto *primera = A::Get(array, 0);
    EXPECT_EQ(A::Get(array, 0), primera);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, GetAtAMissingPositionReportsAndReturnsNull)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    EXPECT_EQ(A::Get(array, 1), nullptr);
    EXPECT_EQ(this->informes(), Textos{"real_pos < array->num_elems"});
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, GetCopyReturnsANewStringThatTheCallerFrees)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("abc")});
    auto *copia = A::GetCopia(array, 0);
    EXPECT_NE(copia, A::Get(array, 0));
    EXPECT_EQ(this->elemento(copia), this->elemento(TXT("abc")));
    A::libera(copia);
    EXPECT_EQ(this->lee(array), this->lista({TXT("abc")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, GetCopyOfANullElementIsNull)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(1);
    EXPECT_EQ(A::GetCopia(array, 0), nullptr);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetFreesTheOldStringAndStoresACopy)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("viejo"), TXT("b")});
    const auto *propia = TXT("nuevo");
    const size_t bloques = zarpspy_bloques_vivos();
    A::Set(array, 0, propia);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    EXPECT_NE(A::Get(array, 0), propia);
    EXPECT_EQ(this->lee(array), this->lista({TXT("nuevo"), TXT("b")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetOverANullElementStoresACopyWithoutFreeingAnything)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(2);
    const size_t bloques = zarpspy_bloques_vivos();
    A::Set(array, 1, TXT("nuevo"));
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques + 1);
    EXPECT_EQ(this->lee(array), this->lista({nullptr, TXT("nuevo")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetWithANullStringReportsItemAndKeepsTheElement)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("viejo")});
    const size_t bloques = zarpspy_bloques_vivos();
    A::Set(array, 0, nullptr);
    EXPECT_EQ(this->informes(), Textos{"item"});
    EXPECT_EQ(this->lee(array), this->lista({TXT("viejo")}));
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetAtAMissingPositionReportsPtrCadAndStoresNothing)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    const size_t bloques = zarpspy_bloques_vivos();
    A::Set(array, 3, TXT("nuevo"));
    EXPECT_EQ(this->informes(), (Textos{"real_pos < array->num_elems", "(ptr_cad) != NULL"}));
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetOnANullArrayReportsPtrCad)
{
    using A = TypeParam;
    A::Set(nullptr, 0, TXT("nuevo"));
    EXPECT_EQ(this->informes(), (Textos{"array", "(ptr_cad) != NULL"}));
}

TYPED_TEST(Propiedad, SetPtrCadIsReportedByTheFamilyModule)
{
    using A = TypeParam;
    A::Set(nullptr, 0, TXT("nuevo"));
    ASSERT_EQ(this->informes_completos().size(), 2u);
    EXPECT_EQ(this->informes_completos()[1].ubicacion, A::ubicacion);
    EXPECT_EQ(this->informes(), (Textos{"array", "(ptr_cad) != NULL"}));
}

TYPED_TEST(Propiedad, SetOriginalStoresTheCallersStringAndClearsItsPointer)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("viejo")});
    auto *propia = A::copia(TXT("nuevo"));
    const auto *entregada = propia;
    const size_t bloques = zarpspy_bloques_vivos();
    A::SetOriginal(array, 0, &propia);
    EXPECT_EQ(propia, nullptr);
    EXPECT_EQ(A::Get(array, 0), entregada);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques - 1);
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetOriginalWithoutAnAddressReportsItemAndKeepsTheElement)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("viejo")});
    A::SetOriginal(array, 0, nullptr);
    EXPECT_EQ(this->informes(), Textos{"item"});
    EXPECT_EQ(this->lee(array), this->lista({TXT("viejo")}));
    A::Destruye(&array);
}

TYPED_TEST(Propiedad, SetOriginalAtAMissingPositionLeavesTheStringWithTheCaller)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    auto *propia = A::copia(TXT("nuevo"));
    const auto *antes = propia;
    A::SetOriginal(array, 1, &propia);
    EXPECT_EQ(this->informes(), (Textos{"real_pos < array->num_elems", "(ptr_cad) != NULL"}));
    EXPECT_EQ(propia, antes);
    EXPECT_EQ(this->lee(array), this->lista({TXT("a")}));
    A::libera(propia);
    A::Destruye(&array);
}

} // namespace
