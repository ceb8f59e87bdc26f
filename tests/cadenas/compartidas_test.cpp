// The shared functions on string arrays: destruction frees every string, copy and concatenation
// duplicate every string (no string is ever held by two arrays), NULL elements are skipped or
// kept as NULL.
#include "cadenas/anchura.h"

#include "services/memoria.h"

namespace {

template <typename A> using Compartidas = PruebaCadenas<A>;
TYPED_TEST_SUITE(Compartidas, Anchuras, NombreAnchura);

TYPED_TEST(Compartidas, DestructionFreesEveryStringAndSkipsNullElements)
{
    using A = TypeParam;
    const size_t bloques = zarpspy_bloques_vivos();
    const size_t bytes = zarpspy_bytes_vivos();
    ARRAY *array = this->crea_con({TXT("a"), nullptr, TXT("bc"), nullptr});
    A::Destruye(&array);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(zarpspy_bloques_vivos(), bloques);
    EXPECT_EQ(zarpspy_bytes_vivos(), bytes);
}

TYPED_TEST(Compartidas, DestructionOfAnArrayOfOnlyNullElements)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(300);
    A::Destruye(&array);
    EXPECT_EQ(array, nullptr);
}

TYPED_TEST(Compartidas, DestructionThroughANullHandleReports)
{
    using A = TypeParam;
    ARRAY *array = nullptr;
    A::Destruye(&array);
    EXPECT_EQ(this->informes(), Textos{"(*array) != NULL"});
}

TYPED_TEST(Compartidas, CopyHoldsNewStringsThatOutliveTheSource)
{
    using A = TypeParam;
    ARRAY *origen = this->crea_con({TXT("a"), TXT("b")});
    ARRAY *copia = A::Copia(origen);
    EXPECT_NE(A::Get(copia, 0), A::Get(origen, 0));
    EXPECT_NE(A::Get(copia, 1), A::Get(origen, 1));
    A::Destruye(&origen);
    EXPECT_EQ(this->lee(copia), this->lista({TXT("a"), TXT("b")}));
    A::Destruye(&copia);
}

TYPED_TEST(Compartidas, CopyKeepsNullElementsNull)
{
    using A = TypeParam;
    ARRAY *origen = this->crea_con({nullptr, TXT("a"), nullptr});
    ARRAY *copia = A::Copia(origen);
    EXPECT_EQ(this->lee(copia), this->lista({nullptr, TXT("a"), nullptr}));
    A::Destruye(&origen);
    A::Destruye(&copia);
}

TYPED_TEST(Compartidas, CopyOfAnEmptyArrayIsEmpty)
{
    using A = TypeParam;
    ARRAY *origen = A::Crea(0);
    ARRAY *copia = A::Copia(origen);
    EXPECT_EQ(A::NumElems(copia), 0u);
    A::Destruye(&origen);
    A::Destruye(&copia);
}

TYPED_TEST(Compartidas, ChangingTheCopyLeavesTheSourceAlone)
{
    using A = TypeParam;
    ARRAY *origen = this->crea_con({TXT("a"), nullptr, TXT("c")});
    ARRAY *copia = A::Copia(origen);
    A::Set(copia, 0, TXT("x"));
    A::Set(copia, 1, TXT("y"));
    A::Borrar(copia, 2);
    EXPECT_EQ(this->lee(origen), this->lista({TXT("a"), nullptr, TXT("c")}));
    EXPECT_EQ(this->lee(copia), this->lista({TXT("x"), TXT("y")}));
    A::Destruye(&origen);
    A::Destruye(&copia);
}

TYPED_TEST(Compartidas, ConcatenationAppendsCopiesAndLeavesTheSourceAlone)
{
    using A = TypeParam;
    ARRAY *destino = this->crea_con({TXT("a")});
    ARRAY *origen = this->crea_con({TXT("b"), TXT("c")});
    A::Concatena(destino, origen);
    EXPECT_EQ(this->lee(destino), this->lista({TXT("a"), TXT("b"), TXT("c")}));
    EXPECT_NE(A::Get(destino, 1), A::Get(origen, 0));
    A::Destruye(&origen);
    EXPECT_EQ(this->lee(destino), this->lista({TXT("a"), TXT("b"), TXT("c")}));
    A::Destruye(&destino);
}

TYPED_TEST(Compartidas, ConcatenationCarriesNullElementsAsNull)
{
    using A = TypeParam;
    ARRAY *destino = A::Crea(0);
    ARRAY *origen = this->crea_con({nullptr, TXT("b"), nullptr});
    A::Concatena(destino, origen);
    EXPECT_EQ(this->lee(destino), this->lista({nullptr, TXT("b"), nullptr}));
    A::Destruye(&origen);
    A::Destruye(&destino);
}

TYPED_TEST(Compartidas, ConcatenationOfAnEmptySourceLeavesTheDestinationUnchanged)
{
    using A = TypeParam;
    ARRAY *destino = this->crea_con({TXT("a")});
    ARRAY *origen = A::Crea(0);
    A::Concatena(destino, origen);
    EXPECT_EQ(this->lee(destino), this->lista({TXT("a")}));
    A::Destruye(&origen);
    A::Destruye(&destino);
}

TYPED_TEST(Compartidas, ConcatenationOntoAnEmptyDestinationGivesAnEqualArray)
{
    using A = TypeParam;
    ARRAY *destino = A::Crea(0);
    ARRAY *origen = this->crea_con({TXT("a"), TXT("b")});
    A::Concatena(destino, origen);
    EXPECT_EQ(A::SonIgualesExactamente(destino, origen), CIERTO);
    A::Destruye(&origen);
    A::Destruye(&destino);
}

using DosAnchuras = PruebaArrays;

TEST_F(DosAnchuras, ConcatenationOfWideOntoNarrowReportsTheTypes)
{
    ARRAY *destino = arr_CreaCADENA(0);
    ARRAY *origen = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(origen, u"a");
    arr_ConcatenaCADENA(destino, origen);
    EXPECT_EQ(informes(), Textos{"org->tipo_elem == dest->tipo_elem"});
    EXPECT_EQ(arr_NumElemsCADENA(destino), 0u);
    arr_DestruyeCADENA_u(&origen);
    arr_DestruyeCADENA(&destino);
}

} // namespace
