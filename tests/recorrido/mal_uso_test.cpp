// Actions that change the size of the array they visit, or destroy it: each change is reported,
// carried out, and the traversal ends without touching memory it no longer owns.
#include "recorrido/recorrido.h"

namespace {

using AccionQueCambiaSuArray = PruebaRecorrido;

// What an action works on: the array's handle and the values it has visited.
struct Visita {
    ARRAY *array;
    std::vector<double> visitados;
};

BOOL anyade(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    visita->visitados.push_back(*elemento);
    arr_AppendDouble(visita->array, -1);
    return CIERTO;
}

BOOL borra_el_primero(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    visita->visitados.push_back(*elemento);
    arr_BorrarDouble(visita->array, 0);
    return CIERTO;
}

BOOL vacia(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    visita->visitados.push_back(*elemento);
    arr_ReduceTamanyoDouble(visita->array, 0);
    return CIERTO;
}

BOOL destruye(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    visita->visitados.push_back(*elemento);
    arr_DestruyeDouble(&visita->array);
    return CIERTO;
}

TEST_F(AccionQueCambiaSuArray, AppendingIsReportedAndOnlyTheElementsThereAtTheStartAreVisited)
{
    Visita visita{crea_indices(300), {}};
    arr_nousar_RecorreDouble(visita.array, anyade, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(300, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(300));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 600u);
    EXPECT_EQ(arr_GetDouble(visita.array, 599), -1.0);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, DeletingIsReportedAndTheTraversalStopsAtTheNewEnd)
{
    Visita visita{crea_indices(4), {}};
    arr_nousar_RecorreDouble(visita.array, borra_el_primero, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(2, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, (std::vector<double>{0, 2}));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 2u);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, EmptyingIsReportedAndEndsTheTraversal)
{
    Visita visita{crea_indices(600), {}};
    arr_nousar_RecorreDouble(visita.array, vacia, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(visita.visitados, std::vector<double>{0});
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 0u);
    EXPECT_EQ(size_t{visita.array->num_filas}, 0u); // a copy: the header is packed
    EXPECT_EQ(visita.array->en_bucle, FALSO);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, DestroyingIsReportedAndEndsTheTraversal)
{
    Visita visita{crea_indices(300), {}};
    arr_nousar_RecorreDouble(visita.array, destruye, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos{"(*array)->en_bucle == FALSO"});
    EXPECT_EQ(visita.visitados, std::vector<double>{0});
    EXPECT_EQ(visita.array, nullptr);
}

TEST_F(AccionQueCambiaSuArray, DestroyingDuringAReadTraversalReportsTheReadFlag)
{
    Visita visita{crea_indices(300), {}};
    const fnc_accion acciones = acciones_double(destruye);
    arrayprv_recorre(visita.array, &acciones, &visita, elem_DOUBLE_NO_USAR, 0, 1, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(informes(), Textos{"(*array)->en_bucle_lectura == FALSO"});
    EXPECT_EQ(visita.visitados, std::vector<double>{0});
    EXPECT_EQ(visita.array, nullptr);
}

} // namespace
