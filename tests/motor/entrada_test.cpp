// Bad handles and bad positions: every operation reports them by their exact text and ends with
// its neutral result, changing nothing.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

#include <cstring>

namespace {

using ReportesDelMotor = PruebaArrays;

TEST_F(ReportesDelMotor, NameTheEngineModule)
{
    arr_GetDouble(nullptr, 0);
    ASSERT_EQ(informes_completos().size(), 1u);
    EXPECT_EQ(informes_completos()[0].clase, ARR_INFORME_ERROR);
    EXPECT_EQ(informes_completos()[0].ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(informes(), Textos{"array"});
}

// A handle that is not a live array, with the texts that report it: `corto` in append, insert,
// delete, get, set and initialise, `largo` in grow, shrink and count.
struct HandleMalo {
    const char *nombre;
    bool destruido;
    const char *corto;
    const char *largo;
};

void PrintTo(const HandleMalo &handle, std::ostream *salida) { *salida << handle.nombre; }

// A NULL handle, or one whose header has been destroyed through another copy of it (the
// type-stable header pool keeps the block readable, with its validity mark cleared).
class HandleInvalido : public PruebaArrays, public ::testing::WithParamInterface<HandleMalo> {
protected:
    void SetUp() override
    {
        PruebaArrays::SetUp();
        if (GetParam().destruido) {
            array = arr_CreaDouble(3);
            ARRAY *copia = array;
            arr_DestruyeDouble(&copia);
        }
    }

    Textos corto() const { return Textos{GetParam().corto}; }
    Textos largo() const { return Textos{GetParam().largo}; }

    ARRAY *array = nullptr;
};

INSTANTIATE_TEST_SUITE_P(
    Handles, HandleInvalido,
    ::testing::Values(HandleMalo{"Null", false, "array", "(array) != NULL"},
                      HandleMalo{"Destroyed", true, "array->mascara_debug == MASCARA_DEBUG",
                                 "array->mascara_debug == MASCARA_DEBUG"}),
    [](const ::testing::TestParamInfo<HandleMalo> &info) { return std::string(info.param.nombre); });

TEST_P(HandleInvalido, AppendIsReported)
{
    arr_AppendDouble(array, 1.0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, AppendNIsReportedForEveryCopy)
{
    arr_AppendNDoubles(array, 2, 1.0);
    EXPECT_EQ(informes(), (Textos{GetParam().corto, GetParam().corto}));
}

TEST_P(HandleInvalido, InsertIsReported)
{
    arr_InsertarDouble(array, 0, 1.0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, DeleteIsReported)
{
    arr_BorrarDouble(array, 0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, GetIsReportedAndGivesZero)
{
    EXPECT_EQ(arr_GetDouble(array, 0), 0.0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, SetIsReported)
{
    arr_SetDouble(array, 0, 1.0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, InitialiseIsReported)
{
    arr_InicializaDouble(array, 1.0);
    EXPECT_EQ(informes(), corto());
}

TEST_P(HandleInvalido, GrowIsReported)
{
    arr_AumentaTamanyoDouble(array, 5);
    EXPECT_EQ(informes(), largo());
}

TEST_P(HandleInvalido, ShrinkIsReported)
{
    arr_ReduceTamanyoDouble(array, 0);
    EXPECT_EQ(informes(), largo());
}

TEST_P(HandleInvalido, CountIsReportedAndGivesZero)
{
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    EXPECT_EQ(informes(), largo());
}

// The elements of a Long64 array as they are stored.
std::vector<LONG64> elementos_long64(const ARRAY *array)
{
    std::vector<LONG64> valores;
    for (ULONG i = 0; i < array->num_elems; ++i)
        valores.push_back(*static_cast<const LONG64 *>(arrayprv_get(array, i, elem_LONG64_NO_USAR)));
    return valores;
}

std::vector<LONG> elementos_long(const ARRAY *array)
{
    std::vector<LONG> valores;
    for (ULONG i = 0; i < array->num_elems; ++i)
        valores.push_back(*static_cast<const LONG *>(arrayprv_get(array, i, elem_LONG_NO_USAR)));
    return valores;
}

// A live array of another element type whose elements are of another size (7, 0, 0 as Long),
// reached through the Double exports: reported, refused, and left as it was.
class HandleDeOtroTipo : public PruebaConArray {
protected:
    ARRAY *crea_array() override
    {
        ARRAY *longs = arrayprv_crea(3, elem_LONG_NO_USAR, LONG_FILA_POR_DEFECTO);
        const LONG siete = 7;
        arrayprv_set(longs, 0, &siete, elem_LONG_NO_USAR);
        return longs;
    }
    void al_terminar() override { EXPECT_EQ(elementos_long(array), (std::vector<LONG>{7, 0, 0})); }
};

TEST_F(HandleDeOtroTipo, AppendIsRefused)
{
    arr_AppendDouble(array, 1.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(HandleDeOtroTipo, InsertIsRefused)
{
    arr_InsertarDouble(array, 0, 1.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(HandleDeOtroTipo, DeleteIsRefused)
{
    arr_BorrarDouble(array, 0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(HandleDeOtroTipo, GetIsRefusedAndGivesZero)
{
    EXPECT_EQ(arr_GetDouble(array, 0), 0.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(HandleDeOtroTipo, SetIsRefused)
{
    arr_SetDouble(array, 1, 1.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo_elem"});
}

TEST_F(HandleDeOtroTipo, InitialiseIsRefusedWithItsOwnText)
{
    arr_InicializaDouble(array, 1.0);
    EXPECT_EQ(informes(), Textos{"array->tipo_elem == tipo"});
}

// The same through a Long64 array, whose elements are of the Double's size: the tag is reported
// and the operation goes on over the stored bytes, as after any other report.
using HandleDeOtroTipoDelMismoTamanyo = PruebaArrays;

TEST_F(HandleDeOtroTipoDelMismoTamanyo, EveryElementOperationIsReportedAndCarriedOut)
{
    ARRAY *array = arrayprv_crea(0, elem_LONG64_NO_USAR, LONG_FILA_POR_DEFECTO);
    for (const LONG64 v : {7, 8, 9}) {
        arrayprv_append(array, &v, elem_LONG64_NO_USAR);
    }
    arr_SetDouble(array, 0, 1.5);
    arr_AppendDouble(array, 2.5);
    arr_InsertarDouble(array, 1, 3.5);
    arr_BorrarDouble(array, 2);
    EXPECT_EQ(informes(), Textos(4, "array->tipo_elem == tipo_elem"));
    std::vector<double> leidos;
    for (ULONG i = 0; i < 4; ++i)
        leidos.push_back(arr_GetDouble(array, i));
    EXPECT_EQ(informes(), Textos(4, "array->tipo_elem == tipo_elem"));
    std::vector<double> esperados{1.5, 3.5, 0, 2.5};
    const LONG64 nueve = 9;
    std::memcpy(&esperados[2], &nueve, sizeof nueve); // the Long64 9, read as a double's bytes
    EXPECT_EQ(std::memcmp(leidos.data(), esperados.data(), sizeof(double) * 4), 0);
    arrayprv_destruye(&array);
}

TEST_F(HandleDeOtroTipoDelMismoTamanyo, StringAndPointerArraysAreNeverUsedAsValues)
{
    ARRAY *cadenas = arr_CreaCADENA(1);
    const char *antes = arr_GetCADENA(cadenas, 0);
    EXPECT_EQ(arr_GetDouble(cadenas, 0), 0.0);
    arr_SetDouble(cadenas, 0, 1.0);
    arr_AppendLong64(cadenas, 1);
    EXPECT_EQ(informes(), Textos(3, "array->tipo_elem == tipo_elem"));
    EXPECT_EQ(arr_NumElemsCADENA(cadenas), 1u);
    EXPECT_EQ(arr_GetCADENA(cadenas, 0), antes);
    arr_DestruyeCADENA(&cadenas);
}

using OperacionesComunes = PruebaArrays;

TEST_F(OperacionesComunes, GrowAndCountServeArraysOfEveryType)
{
    ARRAY *array = arrayprv_crea(3, elem_LONG64_NO_USAR, LONG_FILA_POR_DEFECTO);
    arr_AumentaTamanyoDouble(array, 5);
    EXPECT_EQ(arr_NumElemsDouble(array), 5u);
    EXPECT_EQ(elementos_long64(array), (std::vector<LONG64>{0, 0, 0, 0, 0}));
    arr_DestruyeDouble(&array);
}

// Positions that do not exist in the array 1, 2, 3: reported, and the array left as it was.
class PosicionInexistente : public PruebaConArray {
protected:
    ARRAY *crea_array() override { return crea_doubles_anyadidos(3); }
    void al_terminar() override { EXPECT_EQ(contenido(array), numerados(1, 3)); }
};

TEST_F(PosicionInexistente, GetPastTheEndIsReportedAndGivesZero)
{
    EXPECT_EQ(arr_GetDouble(array, 3), 0.0);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

TEST_F(PosicionInexistente, GetAtTheLargestIndexIsReportedAndGivesZero)
{
    EXPECT_EQ(arr_GetDouble(array, ARR_ULONG_MAX), 0.0);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

TEST_F(PosicionInexistente, SetPastTheEndIsReported)
{
    arr_SetDouble(array, 3, 9.0);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

TEST_F(PosicionInexistente, DeletePastTheEndIsReported)
{
    arr_BorrarDouble(array, 3);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

TEST_F(PosicionInexistente, InsertPastTheEndIsReported)
{
    arr_InsertarDouble(array, 4, 9.0);
    EXPECT_EQ(informes(), Textos{"real_pos < array->num_elems"});
}

using ArrayVacio = PruebaArrays;

TEST_F(ArrayVacio, GetReportsBothConditionsAndGivesZero)
{
    ARRAY *array = arr_CreaDouble(0);
    EXPECT_EQ(arr_GetDouble(array, 0), 0.0);
    EXPECT_EQ(informes(), (Textos{"array->num_elems > 0", "real_pos < array->num_elems"}));
    arr_DestruyeDouble(&array);
}

TEST_F(ArrayVacio, DeleteReportsBothConditionsAndKeepsItEmpty)
{
    ARRAY *array = arr_CreaDouble(0);
    arr_BorrarDouble(array, 0);
    EXPECT_EQ(informes(), (Textos{"array->num_elems > 0", "real_pos < array->num_elems"}));
    EXPECT_TRUE(sin_filas(array));
    EXPECT_EQ(arr_NumElemsDouble(array), 0u);
    arr_DestruyeDouble(&array);
}

} // namespace
