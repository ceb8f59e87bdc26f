// Traversals of pointer arrays: over the stored pointers, over their slots through the action
// table (naming the caller), and the simple form with the caller's datos.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <vector>

namespace {

using Punteros = std::vector<void *>;

// What the actions saw: the pointers, the datos and whether the array was marked busy.
ARRAY *array_observado = nullptr;
Punteros vistos;
std::vector<void *> datos_vistos;
std::vector<BOOL> en_bucle_visto;

void anota(void *elemento)
{
    vistos.push_back(elemento);
    en_bucle_visto.push_back(array_observado->en_bucle);
}

void anota_con_datos(void *elemento, void *datos)
{
    anota(elemento);
    datos_vistos.push_back(datos);
}

BOOL libera_en_sitio(void **slot, void *datos)
{
    datos_vistos.push_back(datos);
    libera_estructura(slot);
    return CIERTO;
}

BOOL nada(void **, void *) { return CIERTO; }

class RecorridoPunteros : public PruebaPunteros {
protected:
    void SetUp() override
    {
        PruebaPunteros::SetUp();
        vistos.clear();
        datos_vistos.clear();
        en_bucle_visto.clear();
        array = crea_punteros({&a, nullptr, &b});
        array_observado = array;
    }
    void TearDown() override
    {
        arr_DestruyeEstructurasConstConTipo(&array);
        PruebaPunteros::TearDown();
    }
    int a = 1;
    int b = 2;
    ARRAY *array = nullptr;
};

TEST_F(RecorridoPunteros, TraversePointersVisitsEveryElementInOrderWithTheWriteGuardSet)
{
    arr_RecorrePunteroConTipo(array, anota);
    EXPECT_EQ(vistos, (Punteros{&a, nullptr, &b}));
    EXPECT_EQ(en_bucle_visto, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
    EXPECT_EQ(array->en_bucle, FALSO);
}

TEST_F(RecorridoPunteros, TraversePointersOfAnEmptyArrayCallsNothingEvenWithoutAction)
{
    ARRAY *vacio = arr_CreaPunteroConTipo(0);
    arr_RecorrePunteroConTipo(vacio, nullptr);
    EXPECT_EQ(informes(), Textos{});
    arr_DestruyePunteroConTipo(&vacio);
}

TEST_F(RecorridoPunteros, TraversePointersWithoutActionReports)
{
    arr_RecorrePunteroConTipo(array, nullptr);
    EXPECT_EQ(informes(), Textos{"operacion"});
}

TEST_F(RecorridoPunteros, TraversePointersOfDoublesReportsTheType)
{
    ARRAY *doubles = arr_CreaDouble(1);
    arr_RecorrePunteroConTipo(doubles, anota);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR || "
                                 "array->tipo_elem == elem_PUNTO2DX_NO_USAR"});
    EXPECT_TRUE(vistos.empty());
    arr_DestruyeDouble(&doubles);
}

TEST_F(RecorridoPunteros, TraverseStructuresGivesSlotsThatTheActionMayClear)
{
    ARRAY *estructuras = crea_estructuras({1, 2});
    int datos = 0;
    arr_RecorreEstructuraConTipo(estructuras, libera_en_sitio, &datos, "llamante.cpp", 10);
    EXPECT_EQ(punteros_de(estructuras), (Punteros{nullptr, nullptr}));
    EXPECT_EQ(datos_vistos, (std::vector<void *>{&datos, &datos}));
    arr_DestruyePunteroConTipo(&estructuras);
}

TEST_F(RecorridoPunteros, TraverseStructuresInsideAWritingTraversalNamesTheCaller)
{
    array->en_bucle = CIERTO;
    arr_RecorreEstructuraConTipo(array, nada, nullptr, "llamante.cpp", 77);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(informes_completos()[0].ubicacion_origen, "llamante.cpp");
    EXPECT_EQ(informes_completos()[0].linea_origen, 77);
    EXPECT_EQ(informes(), Textos{"en_bucle == FALSO"});
}

TEST_F(RecorridoPunteros, TraverseStructuresWithoutActionReports)
{
    arr_RecorreEstructuraConTipo(array, nullptr, nullptr, "llamante.cpp", 10);
    EXPECT_EQ(informes(), Textos{"(fnc_accion->fnc_accion_puntero) != NULL"});
}

TEST_F(RecorridoPunteros, SimpleTraversalPassesEveryPointerAndTheDatosWithTheWriteGuardSet)
{
    int datos = 0;
    arr_RecorreEstructuraSimpleConTipo(array, anota_con_datos, &datos);
    EXPECT_EQ(vistos, (Punteros{&a, nullptr, &b}));
    EXPECT_EQ(datos_vistos, (std::vector<void *>{&datos, &datos, &datos}));
    EXPECT_EQ(en_bucle_visto, (std::vector<BOOL>{CIERTO, CIERTO, CIERTO}));
    EXPECT_EQ(array->en_bucle, FALSO);
}

TEST_F(RecorridoPunteros, SimpleTraversalWithoutActionReports)
{
    arr_RecorreEstructuraSimpleConTipo(array, nullptr, nullptr);
    EXPECT_EQ(informes(), Textos{"(accion) != NULL"});
}

TEST_F(RecorridoPunteros, SimpleTraversalOfDoublesReportsTheType)
{
    ARRAY *doubles = arr_CreaDouble(1);
    arr_RecorreEstructuraSimpleConTipo(doubles, anota_con_datos, nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == elem_PUNTERO_NO_USAR"});
    EXPECT_TRUE(vistos.empty());
    arr_DestruyeDouble(&doubles);
}

TEST_F(RecorridoPunteros, SimpleTraversalOfANullArrayReports)
{
    arr_RecorreEstructuraSimpleConTipo(nullptr, anota_con_datos, nullptr);
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

} // namespace
