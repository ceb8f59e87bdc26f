// Element access of pointer arrays: append, insert, overwrite, read and delete, none of which
// frees what a pointer points to; the Const forms and the one-function aliases.
#include "punteros/estructuras.h"

#include "core/arrayprv.h"

#include <ostream>
#include <vector>

namespace {

using Punteros = std::vector<void *>;

class AccesoPunteros : public PruebaPunteros {
protected:
    int a = 1;
    int b = 2;
    int c = 3;
};

TEST_F(AccesoPunteros, AppendAddsThePointerAtTheEnd)
{
    ARRAY *array = arr_CreaPunteroConTipo(0);
    arr_AppendPunteroConTipo(array, &a);
    arr_AppendPunteroConTipo(array, &b);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, &b}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, AppendConstAddsThePointerAtTheEnd)
{
    const int constante = 4;
    ARRAY *array = crea_punteros({&a});
    arr_AppendPunteroConstConTipo(array, &constante);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, const_cast<int *>(&constante)}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, AppendAcrossRowsKeepsTheOrder)
{
    ARRAY *array = arr_CreaPunteroConTipoEx(0, 16);
    arr_AppendPunteroConTipo(array, &a);
    arr_AppendPunteroConTipo(array, &b);
    arr_AppendPunteroConTipo(array, &c);
    EXPECT_EQ(size_t{array->num_filas}, 2u);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, &b, &c}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, InsertPutsThePointerBeforeThePosition)
{
    ARRAY *array = crea_punteros({&a, &c});
    arr_InsertarPunteroConTipo(array, 1, &b);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, &b, &c}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, InsertConstAtTheCountAppends)
{
    ARRAY *array = crea_punteros({&a});
    arr_InsertarPunteroConstConTipo(array, 1, &b);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, &b}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, SetOverwritesWithoutFreeingTheOldStructure)
{
    ARRAY *array = crea_estructuras({1});
    void *vieja = arr_GetPunteroConTipo(array, 0);
    Estructura *nueva = nueva_estructura(2);
    arr_SetPunteroConTipo(array, 0, nueva);
    EXPECT_EQ(arr_GetPunteroConTipo(array, 0), nueva);
    EXPECT_TRUE(esta_viva(vieja));
    libera_estructura(&vieja);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(AccesoPunteros, SetConstOverwritesThePointer)
{
    const int constante = 4;
    ARRAY *array = crea_punteros({&a, &b});
    arr_SetPunteroConstConTipo(array, 1, &constante);
    EXPECT_EQ(punteros_de(array), (Punteros{&a, const_cast<int *>(&constante)}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, SetInsideATraversalReportsTheGuard)
{
    ARRAY *array = crea_punteros({&a});
    array->en_bucle = CIERTO;
    arr_SetPunteroConTipo(array, 0, &b);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    array->en_bucle = FALSO;
    EXPECT_EQ(punteros_de(array), (Punteros{&b}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, GetAtAMissingPositionReportsAndReturnsNull)
{
    ARRAY *array = crea_punteros({&a});
    EXPECT_EQ(arr_GetPunteroConTipo(array, 1), nullptr);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, GetFromAnotherTypeReportsAndReturnsNull)
{
    ARRAY *doubles = arr_CreaDouble(1);
    EXPECT_EQ(arr_GetPunteroConTipo(doubles, 0), nullptr);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
    arr_DestruyeDouble(&doubles);
}

TEST_F(AccesoPunteros, DeletePointerRemovesItWithoutFreeing)
{
    ARRAY *array = crea_estructuras({1, 2});
    void *primera = arr_GetPunteroConTipo(array, 0);
    arr_BorrarPuntero(array, 0);
    EXPECT_EQ(valores_de(array), (std::vector<int>{2}));
    EXPECT_TRUE(esta_viva(primera));
    libera_estructura(&primera);
    arr_DestruyeEstructurasConTipo(&array, libera_estructura);
}

TEST_F(AccesoPunteros, DeletePointerConstIsTheSameFunction)
{
    EXPECT_EQ(direccion_en_ejecucion(&arr_BorrarPunteroConst), direccion_en_ejecucion(&arr_BorrarPuntero));
    ARRAY *array = crea_punteros({&a, &b});
    arr_BorrarPunteroConst(array, 1);
    EXPECT_EQ(punteros_de(array), (Punteros{&a}));
    arr_DestruyeEstructurasConstConTipo(&array);
}

TEST_F(AccesoPunteros, PointerArrayHoldsAnArrayOfArraysElement)
{
    ARRAY *interior = crea_punteros({&a});
    ARRAY *array_de_arrays = arr_CreaPunteroConTipo(1);
    arr_SetPunteroConstArrayConTipo(array_de_arrays, 0, interior);
    EXPECT_EQ(arr_GetPunteroConTipo(array_de_arrays, 0), interior);
    arr_DestruyeEstructurasConstArrayConTipo(&array_de_arrays);
}

// Every access export given a NULL array reports it from the pointer module and ends.
struct ExportSinArray {
    const char *nombre;
    void (*llama)();
};

void PrintTo(const ExportSinArray &exportada, std::ostream *salida) { *salida << exportada.nombre; }

class AccesoSinArray : public PruebaPunteros, public ::testing::WithParamInterface<ExportSinArray> {};

TEST_P(AccesoSinArray, NullArrayIsReportedByThePointerModule)
{
    GetParam().llama();
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].ubicacion, "a_punter (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"(array) != NULL"});
}

int dato_sin_array = 0;

INSTANTIATE_TEST_SUITE_P(
    Punteros, AccesoSinArray,
    ::testing::Values(
        ExportSinArray{"Append", [] { arr_AppendPunteroConTipo(nullptr, &dato_sin_array); }},
        ExportSinArray{"AppendConst", [] { arr_AppendPunteroConstConTipo(nullptr, &dato_sin_array); }},
        ExportSinArray{"Insertar", [] { arr_InsertarPunteroConTipo(nullptr, 0, &dato_sin_array); }},
        ExportSinArray{"InsertarConst",
                       [] { arr_InsertarPunteroConstConTipo(nullptr, 0, &dato_sin_array); }},
        ExportSinArray{"Set", [] { arr_SetPunteroConTipo(nullptr, 0, &dato_sin_array); }},
        ExportSinArray{"SetConst", [] { arr_SetPunteroConstConTipo(nullptr, 0, &dato_sin_array); }},
        ExportSinArray{"Get", [] { EXPECT_EQ(arr_GetPunteroConTipo(nullptr, 0), nullptr); }},
        ExportSinArray{"Borrar", [] { arr_BorrarPuntero(nullptr, 0); }},
        ExportSinArray{"BorrarEstructura", [] { arr_BorrarEstructuraConTipo(nullptr, 0, libera_estructura); }},
        ExportSinArray{"ReduceEstructuras",
                       [] { arr_ReduceTamanyoEstructurasConTipo(nullptr, 0, libera_estructura); }},
        ExportSinArray{"BuscarPuntero",
                       [] { EXPECT_EQ(arr_BuscarPunteroConTipo(nullptr, &dato_sin_array), ARR_ULONG_MAX); }},
        ExportSinArray{"QSort", [] { arr_QSortPunteroConTipo(nullptr, nullptr); }},
        ExportSinArray{"Copia", [] { EXPECT_EQ(arr_CopiaEstructurasConTipo(nullptr, nullptr), nullptr); }},
        ExportSinArray{"Invierte", [] { arr_nousar_InvierteOrdenPunteroConTipo(nullptr); }},
        ExportSinArray{"Recorre", [] { arr_RecorrePunteroConTipo(nullptr, nullptr); }},
        ExportSinArray{"RecorreEstructura",
                       [] { arr_RecorreEstructuraConTipo(nullptr, nullptr, nullptr, "x.cpp", 1); }},
        ExportSinArray{"DamePosicion",
                       [] {
                           EXPECT_EQ(arr_DamePosicionInsercionPunteroOrdenadoDicotomicamenteConTipo(
                                         nullptr, [](const void *, const void *) { return 0; },
                                         &dato_sin_array),
                                     ARR_ULONG_MAX);
                       }}),
    [](const ::testing::TestParamInfo<ExportSinArray> &info) { return std::string(info.param.nombre); });

} // namespace
