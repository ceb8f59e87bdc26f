// The walks over the pointers of a pointer array and over the private data of 2D points with
// data: what they pass, where they start, the flag they raise, and what they report.
#include "recorrido/recorrido.h"

namespace {

using RecorridoPunteros = PruebaRecorrido;

// What the walk operations below have seen; they take no data of their own.
std::vector<void *> vistos;
ARRAY *observado = nullptr;
std::vector<BOOL> en_bucle_visto;

void anota_puntero(void *ptr) { vistos.push_back(ptr); }
void anota_y_limpia(void **ptr)
{
    vistos.push_back(*ptr);
    *ptr = nullptr;
}
void anota_en_bucle(void *) { en_bucle_visto.push_back(observado->en_bucle); }

// The pointers of a pointer array, read back one by one.
std::vector<void *> punteros_de(ARRAY *array)
{
    std::vector<void *> punteros;
    for (ULONG i = 0; i < array->num_elems; ++i)
        punteros.push_back(*static_cast<void **>(arrayprv_get(array, i, elem_PUNTERO_NO_USAR)));
    return punteros;
}

class Recorridos : public RecorridoPunteros {
protected:
    void SetUp() override
    {
        RecorridoPunteros::SetUp();
        vistos.clear();
        en_bucle_visto.clear();
    }
    int a = 0, b = 0, c = 0;
};

TEST_F(Recorridos, WalkOverAllPassesEveryStoredPointerInOrder)
{
    ARRAY *array = crea_punteros({&a, &b, &c});
    arrayprv_opera_todos(array, anota_puntero);
    EXPECT_EQ(vistos, (std::vector<void *>{&a, &b, &c}));
    arrayprv_opera_direccion_todos(array, anota_y_limpia);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, AddressWalkOverAllLetsTheOperationClearEachPointer)
{
    ARRAY *array = crea_punteros({&a, &b, &c});
    arrayprv_opera_direccion_todos(array, anota_y_limpia);
    EXPECT_EQ(vistos, (std::vector<void *>{&a, &b, &c}));
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{nullptr, nullptr, nullptr}));
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, WalkFromAPositionStartsThere)
{
    ARRAY *array = crea_punteros({&a, &b, &c});
    arrayprv_opera_desde(array, 1, anota_puntero);
    EXPECT_EQ(vistos, (std::vector<void *>{&b, &c}));
    arrayprv_opera_direccion_todos(array, anota_y_limpia);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, AddressWalkFromAPositionClearsOnlyFromThere)
{
    ARRAY *array = crea_punteros({&a, &b, &c});
    arrayprv_opera_direccion_desde(array, 2, anota_y_limpia);
    EXPECT_EQ(punteros_de(array), (std::vector<void *>{&a, &b, nullptr}));
    arrayprv_opera_direccion_todos(array, anota_y_limpia);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, WalkFromAPositionPastTheEndIsReportedAndVisitsNothing)
{
    ARRAY *array = crea_punteros({nullptr});
    arrayprv_opera_desde(array, 1, anota_puntero);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
    EXPECT_TRUE(vistos.empty());
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, WalkRaisesEnBucleWhileItRuns)
{
    ARRAY *array = crea_punteros({nullptr, nullptr});
    observado = array;
    arrayprv_opera_todos(array, anota_en_bucle);
    EXPECT_EQ(en_bucle_visto, (std::vector<BOOL>{CIERTO, CIERTO}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, WalksOverPrivateDataPointsPassTheirDataPointers)
{
    ARRAY *array = crea_de_tipo(elem_PUNTO2DX_NO_USAR, 0);
    struct {
        double x, y;
        void *datos;
    } puntos[] = {{1, 2, &a}, {3, 4, &b}};
    for (const auto &punto : puntos)
        arrayprv_append(array, &punto, elem_PUNTO2DX_NO_USAR);
    arrayprv_opera_todos(array, anota_puntero);
    EXPECT_EQ(vistos, (std::vector<void *>{&a, &b}));
    arrayprv_opera_direccion_desde(array, 0, anota_y_limpia);
    EXPECT_EQ(vistos, (std::vector<void *>{&a, &b, &a, &b}));
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, WalkOverAllWithoutOperationReportsOperacion)
{
    ARRAY *array = crea_punteros({nullptr});
    arrayprv_opera_todos(array, nullptr);
    EXPECT_EQ(informes(), Textos{"operacion"});
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, OtherWalksWithoutOperationReportIt)
{
    ARRAY *array = crea_punteros({nullptr});
    arrayprv_opera_direccion_todos(array, nullptr);
    arrayprv_opera_desde(array, 0, nullptr);
    arrayprv_opera_direccion_desde(array, 0, nullptr);
    EXPECT_EQ(informes(),
              (Textos{"(operacion) != NULL", "(operacion) != NULL", "(operacion) != NULL"}));
    arrayprv_destruye(&array);
}

constexpr const char *TEXTO_TIPO_PUNTERO =
    "array->tipo_elem == elem_PUNTERO_NO_USAR || array->tipo_elem == elem_PUNTO2DX_NO_USAR";

TEST_F(Recorridos, WalkOverAllOnDoublesReportsTheTagConditionAndVisitsNothing)
{
    ARRAY *array = crea_indices(3);
    arrayprv_opera_todos(array, anota_puntero);
    EXPECT_EQ(informes(), Textos{TEXTO_TIPO_PUNTERO});
    EXPECT_TRUE(vistos.empty());
    arr_DestruyeDouble(&array);
}

TEST_F(Recorridos, OtherWalksOnDoublesReportTheTagConditionAndVisitNothing)
{
    ARRAY *array = crea_indices(3);
    arrayprv_opera_direccion_todos(array, anota_y_limpia);
    arrayprv_opera_desde(array, 1, anota_puntero);
    arrayprv_opera_direccion_desde(array, 1, anota_y_limpia);
    EXPECT_EQ(informes(), Textos(3, TEXTO_TIPO_PUNTERO));
    EXPECT_TRUE(vistos.empty());
    EXPECT_EQ(arr_GetDouble(array, 1), 1.0);
    arr_DestruyeDouble(&array);
}

TEST_F(Recorridos, ShrinkingAPointerArrayReportsEachPointerStillSet)
{
    ARRAY *array = crea_punteros({&a, nullptr, &c});
    arrayprv_reduce_tamanyo(array, 0);
    EXPECT_EQ(informes(), (Textos{"ptr == NULL", "ptr == NULL"}));
    EXPECT_EQ(arrayprv_num_elems(array), 0u);
    arrayprv_destruye(&array);
}

TEST_F(Recorridos, DestroyingAPointerArrayReportsEachPointerStillSet)
{
    ARRAY *array = crea_punteros({&a, &b, nullptr});
    arrayprv_destruye(&array);
    EXPECT_EQ(informes(), (Textos{"ptr == NULL", "ptr == NULL"}));
    EXPECT_EQ(array, nullptr);
}

} // namespace
