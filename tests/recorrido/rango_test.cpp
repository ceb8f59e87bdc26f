// The range traversal: the positions from inic to fin, both included, across as many rows as
// they span, with the writing flag raised while it runs.
#include "recorrido/recorrido.h"

namespace {

using RecorridoRango = PruebaRecorrido;

// The values visited by a range traversal of an array of doubles.
std::vector<double> visita_rango(ARRAY *array, ULONG inic, ULONG fin)
{
    std::vector<double> visitados;
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre_rango(array, inic, fin, &acciones, &visitados, elem_DOUBLE_NO_USAR, 1);
    return visitados;
}

BOOL anota_en_bucle(double *, void *datos)
{
    auto *visto = static_cast<std::pair<ARRAY *, std::vector<BOOL>> *>(datos);
    visto->second.push_back(visto->first->en_bucle);
    return CIERTO;
}

TEST_F(RecorridoRango, StartAfterEndIsReportedAndNothingIsVisited)
{
    ARRAY *array = crea_indices(10);
    EXPECT_TRUE(visita_rango(array, 5, 3).empty());
    EXPECT_EQ(informes(), Textos{"arr_EsAnteriorIgualPosicion(&inic, &fin)"});
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(RecorridoRango, RangeInsideOneRowVisitsEndMinusStartPlusOneElements)
{
    ARRAY *array = crea_indices(300);
    EXPECT_EQ(visita_rango(array, 10, 20), indices(10, 20));
    arr_DestruyeDouble(&array);
}

TEST_F(RecorridoRango, RangeOfOnePositionVisitsThatElement)
{
    ARRAY *array = crea_indices(300);
    EXPECT_EQ(visita_rango(array, 299, 299), std::vector<double>{299});
    arr_DestruyeDouble(&array);
}

TEST_F(RecorridoRango, RangeAcrossThreeRowsVisitsTailMiddleAndHead)
{
    ARRAY *array = crea_indices(600);
    ASSERT_EQ(size_t{array->num_filas}, 3u); // a copy: the header is packed
    ASSERT_EQ(array->acumulado_filas[1], 256u);
    ASSERT_EQ(array->acumulado_filas[2], 512u);
    EXPECT_EQ(visita_rango(array, 250, 520), indices(250, 520));
    arr_DestruyeDouble(&array);
}

TEST_F(RecorridoRango, EndPastTheLastElementIsReportedAndNothingIsVisited)
{
    ARRAY *array = crea_indices(10);
    EXPECT_TRUE(visita_rango(array, 0, 10).empty());
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(RecorridoRango, RangeRaisesEnBucleWhileItRuns)
{
    ARRAY *array = crea_indices(5);
    std::pair<ARRAY *, std::vector<BOOL>> visto{array, {}};
    const fnc_accion acciones = acciones_double(anota_en_bucle);
    arrayprv_recorre_rango(array, 1, 3, &acciones, &visto, elem_DOUBLE_NO_USAR, 1);
    EXPECT_EQ(visto.second, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

} // namespace
