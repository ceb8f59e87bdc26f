// Operations on an array while a traversal of it runs: those that may change it report the loop
// flag that is set and carry on; reading is allowed.
#include "soporte/prueba_arrays.h"

#include "core/arrayprv.h"
#include "motor/ayudas_motor.h"

namespace {

// One of the two loop flags, with the texts that report it.
struct Bandera {
    BOOL ARRAY::*campo;
    const char *texto;
    const char *texto_handle;
};

void PrintTo(const Bandera &bandera, std::ostream *salida) { *salida << bandera.texto; }

class EnRecorridoDe : public PruebaConArray, public ::testing::WithParamInterface<Bandera> {
protected:
    ARRAY *crea_array() override { return crea_doubles_anyadidos(3); }

    Textos texto() const { return Textos{GetParam().texto}; }
};

INSTANTIATE_TEST_SUITE_P(
    Banderas, EnRecorridoDe,
    ::testing::Values(Bandera{&ARRAY::en_bucle, "array->en_bucle == FALSO",
                              "(*array)->en_bucle == FALSO"},
                      Bandera{&ARRAY::en_bucle_lectura, "array->en_bucle_lectura == FALSO",
                              "(*array)->en_bucle_lectura == FALSO"}),
    [](const ::testing::TestParamInfo<Bandera> &info) {
        return info.param.campo == &ARRAY::en_bucle ? std::string("Modifying")
                                                    : std::string("Reading");
    });

TEST_P(EnRecorridoDe, AppendIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_AppendDouble(array, 4.0);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), numerados(1, 4));
}

TEST_P(EnRecorridoDe, InsertIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_InsertarDouble(array, 0, 0.0);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), numerados(0, 3));
}

TEST_P(EnRecorridoDe, DeleteIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_BorrarDouble(array, 2);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), numerados(1, 2));
}

TEST_P(EnRecorridoDe, SetIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_SetDouble(array, 2, 9.0);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), (std::vector<double>{1.0, 2.0, 9.0}));
}

TEST_P(EnRecorridoDe, InitialiseIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_InicializaDouble(array, 9.0);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), (std::vector<double>{9.0, 9.0, 9.0}));
}

TEST_P(EnRecorridoDe, ShrinkIsReportedAndCarriesOn)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_ReduceTamanyoDouble(array, 1);
    EXPECT_EQ(informes(), texto());
    EXPECT_EQ(contenido(array), numerados(1, 1));
}

// A grow compacts the rows first, and the compaction runs the same entry check again.
TEST_P(EnRecorridoDe, GrowIsReportedByTheGrowAndAgainByItsCompaction)
{
    EnRecorrido recorrido(array, GetParam().campo);
    arr_AumentaTamanyoDouble(array, 4);
    EXPECT_EQ(informes(), (Textos{GetParam().texto, GetParam().texto}));
    EXPECT_EQ(contenido(array), (std::vector<double>{1.0, 2.0, 3.0, 0.0}));
}

TEST_P(EnRecorridoDe, DestroyIsReportedAndCarriesOn)
{
    array->*GetParam().campo = CIERTO;
    arr_DestruyeDouble(&array);
    EXPECT_EQ(informes(), Textos{GetParam().texto_handle});
    EXPECT_EQ(array, nullptr);
}

TEST_P(EnRecorridoDe, GetIsAllowed)
{
    EnRecorrido recorrido(array, GetParam().campo);
    EXPECT_EQ(arr_GetDouble(array, 1), 2.0);
}

TEST_P(EnRecorridoDe, CountIsAllowed)
{
    EnRecorrido recorrido(array, GetParam().campo);
    EXPECT_EQ(arr_NumElemsDouble(array), 3u);
}

// What a traversal's action sees: the array, and whether it has appended already.
struct Anyadido {
    ARRAY *array;
    bool hecho;
};

BOOL anyade_una_vez(double *, void *datos)
{
    auto *anyadido = static_cast<Anyadido *>(datos);
    if (!anyadido->hecho) {
        anyadido->hecho = true;
        arr_AppendDouble(anyadido->array, 9.0);
    }
    return CIERTO;
}

using DesdeUnaAccion = PruebaArrays;

TEST_F(DesdeUnaAccion, AppendFromTheTraversalOfTheSameArrayIsReportedAndRefused)
{
    ARRAY *array = crea_doubles_anyadidos(3);
    Anyadido anyadido{array, false};
    arr_nousar_RecorreDouble(array, anyade_una_vez, &anyadido, "prueba", 1);
    EXPECT_EQ(informes(), Textos{"array->en_bucle == FALSO"});
    EXPECT_EQ(contenido(array), (std::vector<double>{1.0, 2.0, 3.0}));
    EXPECT_EQ(array->en_bucle, FALSO);
    arr_DestruyeDouble(&array);
}

} // namespace
