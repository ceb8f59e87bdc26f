// The generic traversal: every element in storage order, the flag of its kind raised while it
// runs, the action free to change the element in place, and a failed check reported once before
// the traversal carries on.
#include "recorrido/recorrido.h"

namespace {

using Recorrido = PruebaRecorrido;

// The guard flags of the array given as datos, as each visited element saw them.
struct Banderas {
    ARRAY *array;
    std::vector<BOOL> en_bucle;
    std::vector<BOOL> en_bucle_lectura;
};

BOOL anota_banderas(double *, void *datos)
{
    auto *banderas = static_cast<Banderas *>(datos);
    banderas->en_bucle.push_back(banderas->array->en_bucle);
    banderas->en_bucle_lectura.push_back(banderas->array->en_bucle_lectura);
    return CIERTO;
}

BOOL duplica(double *elemento, void *)
{
    *elemento *= 2;
    return CIERTO;
}

TEST_F(Recorrido, EmptyArrayTraversalCallsNoActionAndLeavesBothFlagsClear)
{
    ARRAY *array = arr_CreaDouble(0);
    std::vector<double> visitados;
    arr_nousar_RecorreDouble(array, anota_valor, &visitados, UBICACION_PRUEBA, __LINE__);
    const fnc_accion acciones = acciones_double(anota_valor);
    arrayprv_recorre(array, &acciones, &visitados, elem_DOUBLE_NO_USAR, 0, 1, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_TRUE(visitados.empty());
    EXPECT_EQ(array->en_bucle, FALSO);
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Recorrido, VisitsEveryElementOfEveryRowInStorageOrder)
{
    ARRAY *array = crea_indices(600);
    ASSERT_EQ(size_t{array->num_filas}, 3u); // a copy: the header is packed
    std::vector<double> visitados;
    arr_nousar_RecorreDouble(array, anota_valor, &visitados, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(visitados, indices(600));
    arr_DestruyeDouble(&array);
}

TEST_F(Recorrido, WritingTraversalRaisesOnlyEnBucleWhileItRuns)
{
    ARRAY *array = crea_indices(3);
    Banderas banderas{array, {}, {}};
    arr_nousar_RecorreDouble(array, anota_banderas, &banderas, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(banderas.en_bucle, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
    EXPECT_EQ(banderas.en_bucle_lectura, (std::vector<BOOL>{FALSO, FALSO, FALSO}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Recorrido, ReadTraversalRaisesOnlyEnBucleLecturaWhileItRuns)
{
    ARRAY *array = crea_indices(3);
    Banderas banderas{array, {}, {}};
    const fnc_accion acciones = acciones_double(anota_banderas);
    arrayprv_recorre(array, &acciones, &banderas, elem_DOUBLE_NO_USAR, 0, 1, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(banderas.en_bucle, (std::vector<BOOL>{FALSO, FALSO, FALSO}));
    EXPECT_EQ(banderas.en_bucle_lectura, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
    EXPECT_EQ(array->en_bucle_lectura, FALSO);
    arr_DestruyeDouble(&array);
}

TEST_F(Recorrido, ActionChangesTheElementInPlace)
{
    ARRAY *array = crea_indices(300);
    arr_nousar_RecorreDouble(array, duplica, nullptr, UBICACION_PRUEBA, __LINE__);
    for (ULONG i = 0; i < 300; ++i)
        EXPECT_EQ(arr_GetDouble(array, i), 2.0 * i);
    arr_DestruyeDouble(&array);
}

TEST_F(Recorrido, EachFailedGuardIsReportedOnceAndTheTraversalStillVisitsEverything)
{
    ARRAY *array = crea_indices(5);
    array->en_bucle = CIERTO;
    array->en_bucle_lectura = CIERTO;
    std::vector<double> visitados;
    arr_nousar_RecorreDouble(array, anota_valor, &visitados, UBICACION_PRUEBA, __LINE__);
    EXPECT_EQ(informes(), (Textos{"en_bucle == FALSO", "en_bucle == FALSO"}));
    EXPECT_EQ(visitados, indices(5));
    EXPECT_EQ(array->en_bucle, FALSO) << "the traversal clears its own flag on leaving";
    EXPECT_EQ(array->en_bucle_lectura, CIERTO) << "and leaves the other one alone";
    array->en_bucle_lectura = FALSO;
    arr_DestruyeDouble(&array);
}

// The other kinds of point, laid out as the engine stores them.
struct Punto3D {
    double x, y, z;
};
struct Punto2DX {
    double x, y;
    void *datos;
};

BOOL mueve_2d(double *x, double *y, void *datos)
{
    static_cast<std::vector<bool> *>(datos)->push_back(y == x + 1);
    *x += 10;
    *y += 20;
    return CIERTO;
}

BOOL mueve_3d(double *x, double *y, double *z, void *datos)
{
    static_cast<std::vector<bool> *>(datos)->push_back(y == x + 1 && z == x + 2);
    *z += 30;
    return CIERTO;
}

BOOL mira_2dx(double *x, double *y, void **datos_punto, void *datos)
{
    static_cast<std::vector<bool> *>(datos)->push_back(
        y == x + 1 && datos_punto == reinterpret_cast<void **>(x + 2) && *datos_punto == nullptr);
    *x = -*x;
    return CIERTO;
}

TEST_F(Recorrido, PointActionGetsXAndYOneDoubleApartAndMovesThePoint)
{
    ARRAY *array = crea_de_tipo(elem_PUNTO2D_NO_USAR, 0);
    const double puntos[2][2] = {{1, 2}, {3, 4}};
    for (const double *punto : puntos)
        arrayprv_append(array, punto, elem_PUNTO2D_NO_USAR);
    fnc_accion acciones{};
    acciones.fnc_accion_punto2D = mueve_2d;
    std::vector<bool> contiguos;
    arrayprv_recorre(array, &acciones, &contiguos, elem_PUNTO2D_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(contiguos, (std::vector<bool>{true, true}));
    const auto *segundo = static_cast<const double *>(arrayprv_get(array, 1, elem_PUNTO2D_NO_USAR));
    EXPECT_EQ(segundo[0], 13.0);
    EXPECT_EQ(segundo[1], 24.0);
    arrayprv_destruye(&array);
}

TEST_F(Recorrido, Point3DActionGetsConsecutiveCoordinatesAndMovesThePoint)
{
    ARRAY *array = crea_de_tipo(elem_PUNTO3D_NO_USAR, 0);
    Punto3D punto{1, 2, 3};
    arrayprv_append(array, &punto, elem_PUNTO3D_NO_USAR);
    fnc_accion acciones{};
    acciones.fnc_accion_punto3D = mueve_3d;
    std::vector<bool> contiguos;
    arrayprv_recorre(array, &acciones, &contiguos, elem_PUNTO3D_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(contiguos, std::vector<bool>{true});
    EXPECT_EQ(static_cast<const Punto3D *>(arrayprv_get(array, 0, elem_PUNTO3D_NO_USAR))->z, 33.0);
    arrayprv_destruye(&array);
}

TEST_F(Recorrido, PrivateDataPointActionGetsTheAddressOfItsDataField)
{
    ARRAY *array = crea_de_tipo(elem_PUNTO2DX_NO_USAR, 0);
    Punto2DX punto{5, 6, nullptr};
    arrayprv_append(array, &punto, elem_PUNTO2DX_NO_USAR);
    fnc_accion acciones{};
    acciones.fnc_accion_punto2DX = mira_2dx;
    std::vector<bool> contiguos;
    arrayprv_recorre(array, &acciones, &contiguos, elem_PUNTO2DX_NO_USAR, 0, 0, UBICACION_PRUEBA,
                     __LINE__);
    EXPECT_EQ(contiguos, std::vector<bool>{true});
    EXPECT_EQ(static_cast<const Punto2DX *>(arrayprv_get(array, 0, elem_PUNTO2DX_NO_USAR))->x,
              -5.0);
    arrayprv_destruye(&array);
}

} // namespace
