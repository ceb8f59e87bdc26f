// Actions that change the size of the array they visit, or destroy it: each change is reported
// and not carried out, so the traversal visits the elements there at its start, in memory the
// array still owns, and the caller's handle stays valid until the walk ends.
#include "recorrido/recorrido.h"

namespace {

using AccionQueCambiaSuArray = PruebaRecorrido;

// What an action works on: the array's handle and the values it has visited.
struct Visita {
    ARRAY *array;
    std::vector<double> visitados;
    ARRAY *otro = nullptr; // an array the action creates after its destroy was refused
};

BOOL anota(double *elemento, void *datos)
{
    static_cast<Visita *>(datos)->visitados.push_back(*elemento);
    return CIERTO;
}

BOOL anyade(double *elemento, void *datos)
{
    anota(elemento, datos);
    arr_AppendDouble(static_cast<Visita *>(datos)->array, -1);
    return CIERTO;
}

BOOL inserta_al_principio(double *elemento, void *datos)
{
    anota(elemento, datos);
    arr_InsertarDouble(static_cast<Visita *>(datos)->array, 0, -1);
    return CIERTO;
}

BOOL borra_el_primero(double *elemento, void *datos)
{
    anota(elemento, datos);
    arr_BorrarDouble(static_cast<Visita *>(datos)->array, 0);
    return CIERTO;
}

BOOL vacia(double *elemento, void *datos)
{
    anota(elemento, datos);
    arr_ReduceTamanyoDouble(static_cast<Visita *>(datos)->array, 0);
    return CIERTO;
}

BOOL destruye(double *elemento, void *datos)
{
    anota(elemento, datos);
    arr_DestruyeDouble(&static_cast<Visita *>(datos)->array);
    return CIERTO;
}

// The minimal case of a walk over freed memory: destroy the array being walked, then create
// another, which would take the freed header and rows.
BOOL destruye_y_crea_otro(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    destruye(elemento, datos);
    if (visita->otro == nullptr) {
        visita->otro = arr_CreaDouble(300);
        arr_InicializaDouble(visita->otro, 1000);
    }
    return CIERTO;
}

// Starts a writing traversal of the same array, which clears the guard flag on its way out (the
// flags are not counted), then destroys the array.
BOOL recorre_y_destruye(double *elemento, void *datos)
{
    auto *visita = static_cast<Visita *>(datos);
    std::vector<double> interior;
    arr_nousar_RecorreDouble(visita->array, anota_valor, &interior, UBICACION_PRUEBA, __LINE__);
    return destruye(elemento, datos);
}

TEST_F(AccionQueCambiaSuArray, AppendingIsReportedAndNotCarriedOut)
{
    Visita visita{crea_indices(300), {}};
    arr_nousar_RecorreDouble(visita.array, anyade, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(300, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(300));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 300u);
    EXPECT_EQ(arr_GetDouble(visita.array, 299), 299.0);
    EXPECT_EQ(arrayprv_recorridos(visita.array), 0u);
    arr_AppendDouble(visita.array, -1);
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 301u);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, InsertingIsReportedAndNotCarriedOut)
{
    Visita visita{crea_indices(3), {}};
    arr_nousar_RecorreDouble(visita.array, inserta_al_principio, &visita, UBICACION_PRUEBA,
                             __LINE__);
    EXPECT_EQ(informes(), Textos(3, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(3));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 3u);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, DeletingIsReportedAndNotCarriedOut)
{
    Visita visita{crea_indices(4), {}};
    arr_nousar_RecorreDouble(visita.array, borra_el_primero, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(4, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(4));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 4u);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, EmptyingIsReportedAndNotCarriedOut)
{
    Visita visita{crea_indices(600), {}};
    arr_nousar_RecorreDouble(visita.array, vacia, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(600, "array->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(600));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 600u);
    EXPECT_EQ(visita.array->en_bucle, FALSO);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, DestroyingIsReportedAndLeavesTheHandleForAfterTheWalk)
{
    Visita visita{crea_indices(300), {}};
    ARRAY *const handle = visita.array;
    arr_nousar_RecorreDouble(visita.array, destruye, &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(300, "(*array)->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(300));
    EXPECT_EQ(visita.array, handle);
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 300u);
    arr_DestruyeDouble(&visita.array); // the fixture then finds no memory left allocated
    EXPECT_EQ(visita.array, nullptr);
}

TEST_F(AccionQueCambiaSuArray, AnArrayCreatedAfterARefusedDestroyIsNeverVisited)
{
    Visita visita{crea_indices(300), {}};
    arr_nousar_RecorreDouble(visita.array, destruye_y_crea_otro, &visita, UBICACION_PRUEBA,
                             __LINE__);
    EXPECT_EQ(informes(), Textos(300, "(*array)->en_bucle == FALSO"));
    EXPECT_EQ(visita.visitados, indices(300));
    EXPECT_NE(visita.otro, visita.array);
    arr_DestruyeDouble(&visita.otro);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, DestroyingDuringAReadTraversalReportsTheReadFlag)
{
    Visita visita{crea_indices(300), {}};
    const fnc_accion acciones = acciones_double(destruye);
    arrayprv_recorre(visita.array, &acciones, &visita, elem_DOUBLE_NO_USAR, 0, 1, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(informes(), Textos(300, "(*array)->en_bucle_lectura == FALSO"));
    EXPECT_EQ(visita.visitados, indices(300));
    arr_DestruyeDouble(&visita.array);
}

// The first inner traversal is reported by the loop-guard check and clears en_bucle; the destroys
// after it find both flags clear, and are reported and refused all the same.
TEST_F(AccionQueCambiaSuArray, DestroyingAfterANestedTraversalClearedTheFlagIsStillRefused)
{
    Visita visita{crea_indices(2), {}};
    arr_nousar_RecorreDouble(visita.array, recorre_y_destruye, &visita, UBICACION_PRUEBA,
                             __LINE__);
    EXPECT_EQ(informes(), (Textos{"en_bucle == FALSO", "(*array)->en_bucle == FALSO",
                                  "(*array)->en_bucle == FALSO"}));
    EXPECT_EQ(visita.visitados, indices(2));
    EXPECT_EQ(arr_NumElemsDouble(visita.array), 2u);
    arr_DestruyeDouble(&visita.array);
}

TEST_F(AccionQueCambiaSuArray, SettingInPlaceIsReportedAndCarriedOut)
{
    Visita visita{crea_indices(3), {}};
    arr_nousar_RecorreDouble(
        visita.array,
        [](double *elemento, void *datos) -> BOOL {
            auto *v = static_cast<Visita *>(datos);
            arr_SetDouble(v->array, static_cast<ULONG>(*elemento), -*elemento);
            return CIERTO;
        },
        &visita, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), Textos(3, "array->en_bucle == FALSO"));
    EXPECT_EQ(arr_GetDouble(visita.array, 2), -2.0);
    arr_DestruyeDouble(&visita.array);
}

} // namespace
