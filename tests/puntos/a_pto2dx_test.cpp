// 2D points with private data: element operations, and the rules of the data pointer (never
// released or copied but by the caller's functions, refused where it would be lost or shared).
#include "puntos/ayudas_puntos.h"

#include "core/arrayprv.h"
#include "points/a_pto2dx.h"

namespace {

using namespace datos_contados;

class Punto2DXTest : public PruebaDatosPrivados {};

// A private-data array of points (i, -i) for i = 0 .. n-1, each carrying data i.
ARRAY *crea_con_datos(int n)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    for (int i = 0; i < n; ++i)
        arr_AppendPunto2DXPriv(array, i, -i, nuevo(i));
    return array;
}

std::vector<int> valores_de(const ARRAY *array)
{
    std::vector<int> valores;
    for (void *datos : datos_de(array))
        valores.push_back(datos != nullptr ? valor(datos) : -1);
    return valores;
}

TEST_F(Punto2DXTest, CreateGivesPointsAtTheOriginWithNullData)
{
    ARRAY *array = arr_CreaPunto2DXPriv(2);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 0}, {0, 0}}));
    EXPECT_EQ(datos_de(array), (std::vector<void *>{nullptr, nullptr}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
    EXPECT_EQ(array, nullptr);
}

TEST_F(Punto2DXTest, AppendAndInsertKeepEachPointWithItsData)
{
    ARRAY *array = crea_con_datos(2);
    arr_InsertarPunto2DXPriv(array, 1, 7, 8, nuevo(7));
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 0}, {7, 8}, {1, -1}}));
    EXPECT_EQ(valores_de(array), (std::vector<int>{0, 7, 1}));
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, GetRequiresBothCoordinatePointers)
{
    ARRAY *array = crea_con_datos(2);
    double y = 0;
    void *datos = nullptr;
    arr_GetPunto2DXPriv(array, 1, nullptr, &y, &datos);
    EXPECT_EQ(informes(), Textos{"(x) != NULL"});
    EXPECT_EQ(y, -1);
    EXPECT_EQ(valor(datos), 1);
    double x = 0;
    arr_GetPunto2DXPriv(array, 1, &x, nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{"(y) != NULL"});
    EXPECT_EQ(x, 1);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, SetOverwritesAllThreeFieldsWithoutReleasingTheOldData)
{
    ARRAY *array = crea_con_datos(1);
    void *antiguo = datos_de(array)[0];
    arr_SetPunto2DXPriv(array, 0, 4, 5, nuevo(9));
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{4, 5}}));
    EXPECT_EQ(valores_de(array), std::vector<int>{9});
    EXPECT_EQ(destrucciones(), 0u);
    destruye(&antiguo);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, DeleteLeavesTheDataToTheCaller)
{
    ARRAY *array = crea_con_datos(2);
    void *borrado = datos_de(array)[0];
    arr_BorrarPunto2DXPriv(array, 0);
    EXPECT_EQ(valores_de(array), std::vector<int>{1});
    EXPECT_EQ(vivos(), 2u);
    destruye(&borrado);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, SearchMatchesCoordinatesAndDataByThePredicate)
{
    int a = 0;
    int b = 0;
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    arr_AppendPunto2DXPriv(array, 1, 1, &a);
    arr_AppendPunto2DXPriv(array, 1, 1, &b);
    EXPECT_EQ(arr_BuscarPunto2DXPriv(array, 1, 1, &b, iguales2DX), 1u);
    EXPECT_EQ(arr_BuscarUnicoPunto2DXPriv(array, 1, 1, &a, iguales2DX), 0u);
    ULONG posicion = 0;
    EXPECT_EQ(arr_ExistePunto2DXPriv(array, 1, 1, nullptr, iguales2DX, &posicion), FALSO);
    EXPECT_EQ(posicion, ARR_ULONG_MAX);
    EXPECT_EQ(arr_ExisteUnicoPunto2DXPriv(array, 1, 1, &b, iguales2DX, &posicion), CIERTO);
    EXPECT_EQ(posicion, 1u);
    arr_SetPunto2D(array, 0, 0, 0);
    arr_SetPunto2D(array, 1, 0, 0);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, SearchWithoutAPredicateReportsIt)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    EXPECT_EQ(arr_BuscarPunto2DXPriv(array, 1, 1, nullptr, nullptr), ARR_ULONG_MAX);
    EXPECT_EQ(informes(), Textos{"(fnc_compara->fnc_compara_punto2DX) != NULL"});
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, SortMovesTheDataWithItsPoint)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    arr_AppendPunto2DXPriv(array, 3, 0, nuevo(3));
    arr_AppendPunto2DXPriv(array, 1, 0, nuevo(1));
    arr_AppendPunto2DXPriv(array, 2, 0, nuevo(2));
    arr_QSortPunto2DXPriv(array, orden2DX);
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{1, 0}, {2, 0}, {3, 0}}));
    EXPECT_EQ(valores_de(array), (std::vector<int>{1, 2, 3}));
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, SortWithoutAComparatorReportsIt)
{
    ARRAY *array = crea_puntos2DX({{2, 0}, {1, 0}});
    arr_QSortPunto2DXPriv(array, nullptr);
    EXPECT_EQ(informes(), Textos{"(func_compara_punto2Dx) != NULL"});
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{2, 0}, {1, 0}}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, EqualityComparesByThePredicate)
{
    ARRAY *a = crea_puntos2DX({{1, 1}, {2, 2}});
    ARRAY *b = crea_puntos2DX({{1, 1}, {2, 2}});
    EXPECT_EQ(arr_SonIgualesPunto2DXPriv(a, b, iguales2DX), CIERTO);
    arr_SetPunto2DXPriv(b, 1, 2, 2.5, nullptr);
    EXPECT_EQ(arr_SonIgualesPunto2DXPriv(a, b, iguales2DX), FALSO);
    arr_DestruyePunto2DXPriv(&a, nullptr);
    arr_DestruyePunto2DXPriv(&b, nullptr);
}

BOOL suelta_datos(double *x, double *, void **datos_punto, void *contador)
{
    *x = -*x;
    destruye(datos_punto);
    ++*static_cast<int *>(contador);
    return CIERTO;
}

TEST_F(Punto2DXTest, TraversalHandsTheDataFieldForChangeInPlace)
{
    ARRAY *array = crea_con_datos(3);
    int visitas = 0;
    arr_RecorrePunto2DXPriv(array, suelta_datos, &visitas);
    EXPECT_EQ(visitas, 3);
    EXPECT_EQ(datos_de(array), (std::vector<void *>{nullptr, nullptr, nullptr}));
    EXPECT_EQ(puntos2D(array), (std::vector<P2>{{0, 0}, {-1, -1}, {-2, -2}}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, NoPointHasDataWhenAllDataIsNull)
{
    ARRAY *array = crea_puntos2DX({{1, 1}, {2, 2}});
    EXPECT_EQ(arr_TieneDatosExtrasAlgunPunto2DXPriv(array), FALSO);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, SettingOnePointsDataMakesTheArrayCarryData)
{
    ARRAY *array = crea_puntos2DX({{1, 1}, {2, 2}});
    arr_SetPunto2DXPriv(array, 1, 2, 2, nuevo(5));
    EXPECT_EQ(arr_TieneDatosExtrasAlgunPunto2DXPriv(array), CIERTO);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, AnEmptyArrayCarriesNoData)
{
    ARRAY *array = arr_CreaPunto2DXPriv(0);
    EXPECT_EQ(arr_TieneDatosExtrasAlgunPunto2DXPriv(array), FALSO);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, TheDataProbeInsistsOnTheEmptyKey)
{
    int dato = 0;
    EXPECT_EQ(sonda_tiene_datos(0, 0, nullptr, 1, 2, &dato), FALSO);
    EXPECT_EQ(informes(), (Textos{"x2 == 0.0", "y2 == 0.0", "item2 == NULL"}));
    EXPECT_EQ(sonda_tiene_datos(0, 0, &dato, 0, 0, nullptr), CIERTO);
}

TEST_F(Punto2DXTest, ReversingPointsWithDataReportsEachAndDropsTheData)
{
    ARRAY *array = crea_puntos2DX({{1, 1}, {2, 2}, {3, 3}});
    arr_SetPunto2DXPriv(array, 0, 1, 1, nuevo(1));
    arr_SetPunto2DXPriv(array, 2, 3, 3, nuevo(3));
    ARRAY *invertida = arr_InvertirPunto2DXPriv(array);
    EXPECT_EQ(informes(), (Textos{"datos == NULL", "datos == NULL"}));
    EXPECT_EQ(puntos2D(invertida), (std::vector<P2>{{3, 3}, {2, 2}, {1, 1}}));
    EXPECT_EQ(datos_de(invertida), (std::vector<void *>{nullptr, nullptr, nullptr}));
    EXPECT_EQ(valores_de(array), (std::vector<int>{1, -1, 3}));
    arr_DestruyePunto2DXPriv(&invertida, nullptr);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, ReversingPointsWithoutDataIsSilent)
{
    ARRAY *array = crea_puntos2DX({{1, 1}, {2, 2}});
    ARRAY *invertida = arr_InvertirPunto2DXPriv(array);
    EXPECT_EQ(puntos2D(invertida), (std::vector<P2>{{2, 2}, {1, 1}}));
    arr_DestruyePunto2DXPriv(&array, nullptr);
    arr_DestruyePunto2DXPriv(&invertida, nullptr);
}

TEST_F(Punto2DXTest, DestroyReleasesEveryPointsDataOnce)
{
    ARRAY *array = crea_con_datos(300);
    arr_DestruyePunto2DXPriv(&array, destruye);
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(destrucciones(), 300u);
}

TEST_F(Punto2DXTest, DestroyWithoutAFunctionReportsEveryPointStillHoldingData)
{
    ARRAY *array = crea_con_datos(2);
    const std::vector<void *> datos = datos_de(array);
    arr_DestruyePunto2DXPriv(&array, nullptr);
    EXPECT_EQ(informes(), (Textos{"ptr == NULL", "ptr == NULL"}));
    EXPECT_EQ(array, nullptr);
    for (void *dato : datos)
        destruye(&dato);
}

// A plain 2D point array has no data for the destroy function: it is reported by its tag and
// destroyed (the fixture finds nothing left allocated), the function never called.
TEST_F(Punto2DXTest, DestroyOnAPlainArrayReportsTheTypeAndDestroysIt)
{
    ARRAY *array = crea_puntos2D({{1, 1}});
    arr_DestruyePunto2DXPriv(&array, [](void **) { ADD_FAILURE() << "no data to destroy"; });
    EXPECT_EQ(informes(), Textos{"(*array)->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_EQ(array, nullptr);
}

TEST_F(Punto2DXTest, DestroyOnAnArrayOfAnotherKindReportsTheTypeAndKeepsIt)
{
    ARRAY *array = arr_CreaPunto3D(1);
    arr_DestruyePunto2DXPriv(&array, destruye);
    EXPECT_EQ(informes(), Textos{"(*array)->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_EQ(arr_NumElemsPunto3D(array), 1u);
    arr_DestruyePunto3D(&array);
}

TEST_F(Punto2DXTest, DestroyChecksTheHandle)
{
    arr_DestruyePunto2DXPriv(nullptr, destruye);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
    ARRAY *array = nullptr;
    arr_DestruyePunto2DXPriv(&array, destruye);
    EXPECT_EQ(informes(), Textos{"(*array) != NULL"});
}

TEST_F(Punto2DXTest, DestroyInsideATraversalReportsItAndStillReleasesEverything)
{
    ARRAY *array = crea_con_datos(2);
    array->en_bucle = CIERTO;
    arr_DestruyePunto2DXPriv(&array, destruye);
    EXPECT_EQ(informes(), Textos{"(*array)->en_bucle == FALSO"});
    EXPECT_EQ(array, nullptr);
    EXPECT_EQ(destrucciones(), 2u);
}

TEST_F(Punto2DXTest, DestroyOfAHandleThatIsNotALiveArrayReportsItAndEnds)
{
    ARRAY *array = crea_con_datos(1);
    ARRAY *alias = array;
    array->mascara_debug = 0;
    arr_DestruyePunto2DXPriv(&alias, destruye);
    EXPECT_EQ(informes(), Textos{"(*array)->mascara_debug == MASCARA_DEBUG"});
    EXPECT_EQ(alias, array);
    EXPECT_EQ(destrucciones(), 0u);
    array->mascara_debug = MASCARA_DEBUG;
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, ShrinkOfAPlainArrayReportsTheTypeAndKeepsIt)
{
    ARRAY *array = crea_puntos2D({{1, 1}, {2, 2}});
    arr_ReduceTamanyoPunto2DXPriv(array, 1, destruye);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 2u);
    arr_DestruyePunto2D(&array);
}

TEST_F(Punto2DXTest, ShrinkReleasesTheDataOfTheCutPointsOnly)
{
    ARRAY *array = crea_con_datos(5);
    arr_ReduceTamanyoPunto2DXPriv(array, 2, destruye);
    EXPECT_EQ(destrucciones(), 3u);
    EXPECT_EQ(valores_de(array), (std::vector<int>{0, 1}));
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, ShrinkToALargerSizeReportsItAndChangesNothing)
{
    ARRAY *array = crea_con_datos(2);
    arr_ReduceTamanyoPunto2DXPriv(array, 3, destruye);
    EXPECT_EQ(informes(), Textos{"nuevo_tamanyo <= array->num_elems"});
    EXPECT_EQ(valores_de(array), (std::vector<int>{0, 1}));
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, ShrinkWithoutAFunctionReportsTheCutDataStillSet)
{
    ARRAY *array = crea_con_datos(3);
    void *cortado = datos_de(array)[2];
    arr_ReduceTamanyoPunto2DXPriv(array, 2, nullptr);
    EXPECT_EQ(informes(), Textos{"ptr == NULL"});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 2u);
    destruye(&cortado);
    arr_DestruyePunto2DXPriv(&array, destruye);
}

TEST_F(Punto2DXTest, CopyWithACopyFunctionDuplicatesEveryPointsData)
{
    ARRAY *array = crea_con_datos(4);
    ARRAY *copia_array = arr_CopiaPunto2DXPriv_nousar(array, copia, __FILE__, __LINE__);
    EXPECT_EQ(copias(), 4u);
    EXPECT_EQ(puntos2D(copia_array), puntos2D(array));
    EXPECT_EQ(valores_de(copia_array), valores_de(array));
    EXPECT_NE(datos_de(copia_array)[0], datos_de(array)[0]);
    arr_DestruyePunto2DXPriv(&array, destruye);
    arr_DestruyePunto2DXPriv(&copia_array, destruye);
    EXPECT_EQ(destrucciones(), 8u);
}

TEST_F(Punto2DXTest, CopyWithoutACopyFunctionSharesTheDataPointers)
{
    ARRAY *array = crea_con_datos(3);
    ARRAY *compartida = arr_CopiaPunto2DXPriv_nousar(array, nullptr, __FILE__, __LINE__);
    EXPECT_EQ(datos_de(compartida), datos_de(array));
    // Only one of the two may release the shared data: the other lets go of it first.
    for (ULONG i = 0; i < 3; ++i)
        arr_SetPunto2D(compartida, i, i, -1.0 * i);
    arr_DestruyePunto2DXPriv(&compartida, destruye);
    arr_DestruyePunto2DXPriv(&array, destruye);
    EXPECT_EQ(destrucciones(), 3u);
}

TEST_F(Punto2DXTest, CopyOfAPlainArrayReportsTheTypeAndGivesNothing)
{
    ARRAY *array = crea_puntos2D({{1, 1}});
    EXPECT_EQ(arr_CopiaPunto2DXPriv_nousar(array, copia, __FILE__, __LINE__), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    arr_DestruyePunto2D(&array);
}

struct CopiaDentro {
    ARRAY *array;
    ARRAY *copia;
    LONG linea;
};

BOOL copia_durante_recorrido(double *, double *, void **, void *contexto)
{
    auto *c = static_cast<CopiaDentro *>(contexto);
    if (c->copia == nullptr)
        c->copia = arr_CopiaPunto2DXPriv_nousar(c->array, nullptr, "llamante.c", c->linea);
    return CIERTO;
}

TEST_F(Punto2DXTest, CopyInsideAWritingTraversalNamesTheCallersLocation)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    CopiaDentro c{array, nullptr, 321};
    arr_RecorrePunto2DXPriv(array, copia_durante_recorrido, &c);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informes_completos()[0].ubicacion_origen, "llamante.c");
    EXPECT_EQ(informes_completos()[0].linea_origen, 321);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
    EXPECT_EQ(puntos2D(c.copia), (std::vector<P2>{{1, 1}}));
    arr_DestruyePunto2DXPriv(&c.copia, nullptr);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, ConcatenateWithACopyFunctionAppendsCopies)
{
    ARRAY *dest = crea_con_datos(1);
    ARRAY *org = crea_con_datos(2);
    arr_ConcatenaPunto2DXPriv_nousar(dest, org, copia, __FILE__, __LINE__);
    EXPECT_EQ(puntos2D(dest), (std::vector<P2>{{0, 0}, {0, 0}, {1, -1}}));
    EXPECT_EQ(valores_de(dest), (std::vector<int>{0, 0, 1}));
    EXPECT_EQ(copias(), 2u);
    arr_DestruyePunto2DXPriv(&dest, destruye);
    arr_DestruyePunto2DXPriv(&org, destruye);
}

TEST_F(Punto2DXTest, ConcatenateWithoutACopyFunctionSharesThePointers)
{
    ARRAY *dest = arr_CreaPunto2DXPriv(0);
    ARRAY *org = crea_con_datos(2);
    arr_ConcatenaPunto2DXPriv_nousar(dest, org, nullptr, __FILE__, __LINE__);
    EXPECT_EQ(datos_de(dest), datos_de(org));
    arr_ReduceTamanyoPunto2DXPriv(org, 0, destruye);
    arr_SetPunto2D(dest, 0, 0, 0);
    arr_SetPunto2D(dest, 1, 0, 0);
    arr_DestruyePunto2DXPriv(&dest, destruye);
    arr_DestruyePunto2DXPriv(&org, destruye);
    EXPECT_EQ(destrucciones(), 2u);
}

TEST_F(Punto2DXTest, ConcatenatingAnArrayOntoItselfIsRefused)
{
    ARRAY *array = crea_puntos2DX({{1, 1}});
    arr_ConcatenaPunto2DXPriv_nousar(array, array, nullptr, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"dest != org"});
    EXPECT_EQ(arr_NumElemsPunto2D(array), 1u);
    arr_DestruyePunto2DXPriv(&array, nullptr);
}

TEST_F(Punto2DXTest, ConcatenateChecksBothArrays)
{
    ARRAY *dest = crea_puntos2DX({{1, 1}});
    arr_ConcatenaPunto2DXPriv_nousar(dest, nullptr, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"(org) != NULL"});
    ARRAY *plano = crea_puntos2D({{2, 2}});
    arr_ConcatenaPunto2DXPriv_nousar(plano, dest, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"dest->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    arr_ConcatenaPunto2DXPriv_nousar(dest, plano, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    EXPECT_EQ(arr_NumElemsPunto2D(dest), 1u);
    EXPECT_EQ(arr_NumElemsPunto2D(plano), 1u);
    arr_DestruyePunto2D(&plano);
    arr_DestruyePunto2DXPriv(&dest, nullptr);
}

TEST_F(Punto2DXTest, ConcatenateChecksThatBothHandlesAreLiveArrays)
{
    ARRAY *dest = crea_puntos2DX({{1, 1}});
    ARRAY *org = crea_con_datos(1);
    arr_ConcatenaPunto2DXPriv_nousar(nullptr, org, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"(dest) != NULL"});
    dest->mascara_debug = 0;
    arr_ConcatenaPunto2DXPriv_nousar(dest, org, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"dest->mascara_debug == MASCARA_DEBUG"});
    dest->mascara_debug = MASCARA_DEBUG;
    org->mascara_debug = 0;
    arr_ConcatenaPunto2DXPriv_nousar(dest, org, copia, __FILE__, __LINE__);
    EXPECT_EQ(informes(), Textos{"org->mascara_debug == MASCARA_DEBUG"});
    org->mascara_debug = MASCARA_DEBUG;
    EXPECT_EQ(arr_NumElemsPunto2D(dest), 1u);
    EXPECT_EQ(copias(), 0u);
    arr_DestruyePunto2DXPriv(&dest, destruye);
    arr_DestruyePunto2DXPriv(&org, destruye);
}

TEST_F(Punto2DXTest, ConcatenateOntoABusyDestinationReportsItAndCarriesOn)
{
    ARRAY *dest = arr_CreaPunto2DXPriv(0);
    ARRAY *org = crea_con_datos(1);
    dest->en_bucle = CIERTO;
    arr_ConcatenaPunto2DXPriv_nousar(dest, org, copia, __FILE__, __LINE__);
    dest->en_bucle = FALSO;
    EXPECT_EQ(informes(), (Textos{"dest->en_bucle == FALSO", "array->en_bucle == FALSO"}));
    EXPECT_EQ(valores_de(dest), std::vector<int>{0});
    arr_DestruyePunto2DXPriv(&dest, destruye);
    arr_DestruyePunto2DXPriv(&org, destruye);
}

} // namespace
