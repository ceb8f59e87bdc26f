// What the traversals report before visiting anything: the array, the tag, the action table and
// the tag's own member; a tag without an action goes to the default-case report.
#include "recorrido/recorrido.h"

#include <ostream>
#include <string>

namespace {

using TextosRecorrido = PruebaRecorrido;

struct AccionQueFalta {
    tipo_elem_array tipo;
    const char *texto;
};

void PrintTo(const AccionQueFalta &falta, std::ostream *os) { *os << falta.texto; }

std::string nombre_de(const ::testing::TestParamInfo<AccionQueFalta> &info)
{
    return "Tag" + std::to_string(info.param.tipo);
}

BOOL no_debe_visitarse(LONG *, void *)
{
    ADD_FAILURE() << "an element was visited";
    return CIERTO;
}

class AccionesVacias : public PruebaRecorrido,
                       public ::testing::WithParamInterface<AccionQueFalta> {};

TEST_P(AccionesVacias, TraversalReportsTheTagsMissingActionAndVisitsNothing)
{
    ARRAY *array = crea_de_tipo(GetParam().tipo, 3);
    const fnc_accion vacia{};
    arrayprv_recorre(array, &vacia, nullptr, GetParam().tipo, 0, 0, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos{GetParam().texto});
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye(&array);
}

TEST_P(AccionesVacias, RangeTraversalReportsTheTagsMissingActionAndVisitsNothing)
{
    ARRAY *array = crea_de_tipo(GetParam().tipo, 3);
    const fnc_accion vacia{};
    arrayprv_recorre_rango(array, 0, 2, &vacia, nullptr, GetParam().tipo, 1);
    EXPECT_EQ(informes(), Textos{GetParam().texto});
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye(&array);
}

INSTANTIATE_TEST_SUITE_P(
    CadaTipo, AccionesVacias,
    ::testing::Values(
        AccionQueFalta{elem_BYTE_NO_USAR, "(fnc_accion->fnc_accion_BYTE) != NULL"},
        AccionQueFalta{elem_BOOL_NO_USAR, "(fnc_accion->fnc_accion_BOOL) != NULL"},
        AccionQueFalta{elem_UCHAR_NO_USAR, "(fnc_accion->fnc_accion_uchar) != NULL"},
        AccionQueFalta{elem_CHAR_NO_USAR, "(fnc_accion->fnc_accion_char) != NULL"},
        AccionQueFalta{elem_USHORT_NO_USAR, "(fnc_accion->fnc_accion_ushort) != NULL"},
        AccionQueFalta{elem_SHORT_NO_USAR, "(fnc_accion->fnc_accion_short) != NULL"},
        AccionQueFalta{elem_ULONG_NO_USAR, "(fnc_accion->fnc_accion_ulong) != NULL"},
        AccionQueFalta{elem_LONG_NO_USAR, "(fnc_accion->fnc_accion_long) != NULL"},
        AccionQueFalta{elem_ULONG64_NO_USAR, "(fnc_accion->fnc_accion_ulong64) != NULL"},
        AccionQueFalta{elem_LONG64_NO_USAR, "(fnc_accion->fnc_accion_long64) != NULL"},
        AccionQueFalta{elem_DOUBLE_NO_USAR, "(fnc_accion->fnc_accion_double) != NULL"},
        AccionQueFalta{elem_PUNTERO_NO_USAR, "(fnc_accion->fnc_accion_puntero) != NULL"},
        AccionQueFalta{elem_CADENA_NO_USAR, "(fnc_accion->fnc_accion_CADENA) != NULL"},
        AccionQueFalta{elem_CADENA_U_NO_USAR, "(fnc_accion->fnc_accion_CADENA_U) != NULL"},
        AccionQueFalta{elem_PUNTO2D_NO_USAR, "(fnc_accion->fnc_accion_punto2D) != NULL"},
        AccionQueFalta{elem_PUNTO3D_NO_USAR, "(fnc_accion->fnc_accion_punto3D) != NULL"},
        AccionQueFalta{elem_PUNTO2DX_NO_USAR, "(fnc_accion->fnc_accion_punto2DX) != NULL"}),
    nombre_de);

TEST_F(TextosRecorrido, BitArrayTraversalGivesOneDefaultCaseReport)
{
    ARRAY *array = crea_de_tipo(elem_BIT_NO_USAR, 9);
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre(array, &acciones, nullptr, elem_BIT_NO_USAR, 0, 0, UBICACION_PRUEBA, __LINE__);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(informes_completos()[0].ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{""});
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye(&array);
}

TEST_F(TextosRecorrido, BitArrayRangeTraversalGivesOneDefaultCaseReport)
{
    ARRAY *array = crea_de_tipo(elem_BIT_NO_USAR, 9);
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre_rango(array, 0, 1, &acciones, nullptr, elem_BIT_NO_USAR, 1);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(informes(), Textos{""});
    arrayprv_destruye(&array);
}

TEST_F(TextosRecorrido, MissingActionTableIsReported)
{
    ARRAY *array = crea_indices(2);
    arrayprv_recorre(array, nullptr, nullptr, elem_DOUBLE_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    arrayprv_recorre_rango(array, 0, 1, nullptr, nullptr, elem_DOUBLE_NO_USAR, 1);
    EXPECT_EQ(informes(), (Textos{"(fnc_accion) != NULL", "(fnc_accion) != NULL"}));
    arr_DestruyeDouble(&array);
}

TEST_F(TextosRecorrido, TraversalWithAnotherTagIsReportedAndVisitsNothing)
{
    ARRAY *array = crea_indices(2);
    fnc_accion acciones{};
    acciones.fnc_accion_long = no_debe_visitarse;
    arrayprv_recorre(array, &acciones, nullptr, elem_LONG_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    arrayprv_recorre_rango(array, 0, 1, &acciones, nullptr, elem_LONG_NO_USAR, 1);
    EXPECT_EQ(informes(),
              (Textos{"array->tipo_elem == tipo_elem", "array->tipo_elem == tipo_elem"}));
    arr_DestruyeDouble(&array);
}

TEST_F(TextosRecorrido, TraversalOfANullArrayIsReported)
{
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre(nullptr, &acciones, nullptr, elem_DOUBLE_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    arrayprv_recorre_rango(nullptr, 0, 0, &acciones, nullptr, elem_DOUBLE_NO_USAR, 1);
    EXPECT_EQ(informes(), (Textos{"array", "array"}));
}

TEST_F(TextosRecorrido, TraversalOfADestroyedArrayIsReportedAndVisitsNothing)
{
    ARRAY *array = crea_indices(2);
    ARRAY *destruido = array;
    arr_DestruyeDouble(&array);
    std::vector<double> visitados;
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre(destruido, &acciones, &visitados, elem_DOUBLE_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    arrayprv_recorre_rango(destruido, 0, 1, &acciones, &visitados, elem_DOUBLE_NO_USAR, 1);
    EXPECT_EQ(informes(), (Textos{"array->mascara_debug == MASCARA_DEBUG",
                                  "array->mascara_debug == MASCARA_DEBUG"}));
    EXPECT_TRUE(visitados.empty());
}

} // namespace
