// The traversal of a string array: the action receives the address of each stored string pointer
// in order, may replace the string, and an operation on the same array from inside the action is
// reported as a busy array.
#include "cadenas/anchura.h"

namespace {

template <typename A> using Recorrido = PruebaCadenas<A>;
TYPED_TEST_SUITE(Recorrido, Anchuras, NombreAnchura);

template <typename A> BOOL recoge(typename A::C **cadena, void *datos)
{
    static_cast<typename PruebaCadenas<A>::Elementos *>(datos)->push_back(
        PruebaCadenas<A>::elemento(*cadena));
    return CIERTO;
}

// Replaces each string by a copy of "x", freeing the old one.
template <typename A> BOOL reemplaza(typename A::C **cadena, void *)
{
    A::libera(*cadena);
    const typename A::C x[] = {'x', 0};
    *cadena = A::copia(x);
    return CIERTO;
}

template <typename A> BOOL nada(typename A::C **, void *) { return CIERTO; }

// Starts a traversal of the array it is visiting, naming a caller's location.
template <typename A> BOOL recorre_dentro(typename A::C **, void *array)
{
    A::Recorre(static_cast<ARRAY *>(array), nada<A>, nullptr, "llamador (PRUEBA)", 77);
    return CIERTO;
}

template <typename A> BOOL cambia_primera(typename A::C **, void *array)
{
    const typename A::C y[] = {'y', 0};
    A::Set(static_cast<ARRAY *>(array), 0, y);
    return CIERTO;
}

TYPED_TEST(Recorrido, TraversalVisitsEveryElementInOrder)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), nullptr, TXT("c")});
    typename TestFixture::Elementos vistos;
    A::Recorre(array, recoge<A>, &vistos, __FILE__, __LINE__);
    EXPECT_EQ(vistos, this->lista({TXT("a"), nullptr, TXT("c")}));
    A::Destruye(&array);
}

TYPED_TEST(Recorrido, TraversalOfAnEmptyArrayCallsNoAction)
{
    using A = TypeParam;
    ARRAY *array = A::Crea(0);
    typename TestFixture::Elementos vistos;
    A::Recorre(array, recoge<A>, &vistos, __FILE__, __LINE__);
    EXPECT_TRUE(vistos.empty());
    A::Destruye(&array);
}

TYPED_TEST(Recorrido, ActionMayReplaceEachString)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a"), nullptr, TXT("c")});
    A::Recorre(array, reemplaza<A>, nullptr, __FILE__, __LINE__);
    EXPECT_EQ(this->lee(array), this->lista({TXT("x"), TXT("x"), TXT("x")}));
    A::Destruye(&array);
}

TYPED_TEST(Recorrido, TraversalStartedInsideAnotherIsReportedWithTheCallersLocation)
{
    using A = TypeParam;
    arrayprv_set_comprobar_en_bucle(1);
    ARRAY *array = this->crea_con({TXT("a")});
    A::Recorre(array, recorre_dentro<A>, array, __FILE__, __LINE__);
    ASSERT_EQ(this->informes_completos().size(), 1u);
    const InformeCapturado informe = this->informes_completos()[0];
    EXPECT_EQ(informe.clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informe.ubicacion_origen, "llamador (PRUEBA)");
    EXPECT_EQ(informe.linea_origen, 77);
    EXPECT_EQ(this->informes(), Textos{"en_bucle == FALSO"});
    A::Destruye(&array);
}

TYPED_TEST(Recorrido, SetFromInsideTheTraversalReportsTheBusyArrayAndStores)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::Recorre(array, cambia_primera<A>, array, __FILE__, __LINE__);
    EXPECT_EQ(this->informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(this->lee(array), this->lista({TXT("y")}));
    A::Destruye(&array);
}

TYPED_TEST(Recorrido, TraversalWithoutActionReports)
{
    using A = TypeParam;
    ARRAY *array = this->crea_con({TXT("a")});
    A::Recorre(array, nullptr, nullptr, __FILE__, __LINE__);
    EXPECT_EQ(this->informes(), Textos{A::texto_accion});
    A::Destruye(&array);
}

} // namespace
