// Loop guards: an operation started from inside an action on the same array is reported, with
// the caller's place for a nested traversal; a read traversal tolerates a read traversal; the
// lenient check follows the library-wide switch, the strict one does not.
#include "recorrido/recorrido.h"

namespace {

using Guardas = PruebaRecorrido;

// What an action of an outer traversal works on.
struct Anidado {
    explicit Anidado(ARRAY *a, LONG l = 0) : array(a), linea(l) {}
    ARRAY *array;
    LONG linea;                      // caller's line given to the inner traversal
    std::vector<double> visitados;   // by the inner traversal
    BOOL lectura_al_volver = CIERTO; // en_bucle_lectura once the inner traversal has returned
};

BOOL cambia_el_primero(double *elemento, void *datos)
{
    if (*elemento == 1)
        arr_SetDouble(static_cast<ARRAY *>(datos), 0, 99);
    return CIERTO;
}

// On the first element: a read traversal of the same array, as a search would run one.
BOOL lee_dentro(double *elemento, void *datos)
{
    auto *anidado = static_cast<Anidado *>(datos);
    if (*elemento == 0) {
        const fnc_accion acciones = acciones_double(anota_valor);
        arrayprv_recorre(anidado->array, &acciones, &anidado->visitados, elem_DOUBLE_NO_USAR, 0, 1,
                         UBICACION_PRUEBA, anidado->linea);
        anidado->lectura_al_volver = anidado->array->en_bucle_lectura;
    }
    return CIERTO;
}

// On the first element: a lenient writing traversal of the same array.
BOOL recorre_dentro(double *elemento, void *datos)
{
    auto *anidado = static_cast<Anidado *>(datos);
    if (*elemento == 0)
        arr_nousar_RecorreDouble(anidado->array, anota_valor, &anidado->visitados,
                                 "llamador (PRUEBA)", anidado->linea);
    return CIERTO;
}

// On the first element: a strict writing traversal of the same array.
BOOL recorre_estricto_dentro(double *elemento, void *datos)
{
    auto *anidado = static_cast<Anidado *>(datos);
    if (*elemento == 0) {
        const fnc_accion acciones = acciones_double(anota_valor);
        arrayprv_recorre(anidado->array, &acciones, &anidado->visitados, elem_DOUBLE_NO_USAR, 1, 0,
                         "llamador (PRUEBA)", anidado->linea);
    }
    return CIERTO;
}

// Runs `accion` over the array in a traversal of the given kind.
void recorre(ARRAY *array, BOOL (*accion)(double *, void *), void *datos, BOOL lectura)
{
    const fnc_accion acciones = acciones_double(accion);
    arrayprv_recorre(array, &acciones, datos, elem_DOUBLE_NO_USAR, 0, lectura, UBICACION_PRUEBA,
                     __LINE__);
}

TEST_F(Guardas, SetFromInsideATraversalOfItsArrayIsReportedAndStillSets)
{
    ARRAY *array = crea_indices(3);
    arr_nousar_RecorreDouble(array, cambia_el_primero, array, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(arr_GetDouble(array, 0), 99.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Guardas, ReadTraversalInsideAReadTraversalWorksAndClearsTheReadFlagOnReturn)
{
    ARRAY *array = crea_indices(4);
    Anidado anidado(array);
    recorre(array, lee_dentro, &anidado, 1);
    EXPECT_EQ(anidado.visitados, indices(4));
    EXPECT_EQ(anidado.lectura_al_volver, FALSO) << "flags are not counted: the inner one clears it";
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Guardas, WritingTraversalInsideAReadTraversalIsReportedAndCarriesOn)
{
    ARRAY *array = crea_indices(4);
    Anidado anidado(array);
    recorre(array, recorre_dentro, &anidado, 1);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(anidado.visitados, indices(4));
    arr_DestruyeDouble(&array);
}

class GuardasSinComprobar : public PruebaRecorrido, public ::testing::WithParamInterface<BOOL> {};

TEST_P(GuardasSinComprobar, NestedWritingTraversalIsNotReported)
{
    EXPECT_EQ(arrayprv_set_comprobar_en_bucle(GetParam()), GetParam());
    ARRAY *array = crea_indices(4);
    Anidado anidado(array);
    recorre(array, recorre_dentro, &anidado, 0);
    EXPECT_EQ(anidado.visitados, indices(4));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

INSTANTIATE_TEST_SUITE_P(ConmutadorDistintoDeUno, GuardasSinComprobar,
                         ::testing::Values(BOOL{0}, BOOL{2}));

TEST_F(Guardas, NestedWritingTraversalIsReportedWithTheCallersPlaceWhileTheSwitchIsOne)
{
    EXPECT_EQ(arrayprv_set_comprobar_en_bucle(1), 1);
    ARRAY *array = crea_indices(4);
    Anidado anidado(array, 4321);
    recorre(array, recorre_dentro, &anidado, 0);
    ASSERT_EQ(informes_completos().size(), 1u);
    const InformeCapturado informe = informes_completos()[0];
    EXPECT_EQ(informe.clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informe.ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(informe.ubicacion_origen, "llamador (PRUEBA)");
    EXPECT_EQ(informe.linea_origen, 4321);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(anidado.visitados, indices(4));
    arr_DestruyeDouble(&array);
}

TEST_F(Guardas, StrictNestedTraversalIsReportedEvenWithTheSwitchOff)
{
    arrayprv_set_comprobar_en_bucle(0);
    ARRAY *array = crea_indices(2);
    Anidado anidado(array, 55);
    recorre(array, recorre_estricto_dentro, &anidado, 0);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].linea_origen, 55);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(anidado.visitados, indices(2));
    arr_DestruyeDouble(&array);
}

} // namespace
