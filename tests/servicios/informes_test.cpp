// The report service: the replaceable handler, the default handler that writes to standard error
// (and aborts when ARRAYS_ABORTAR exists), the count of reports and the three kinds of report.
#include "services/informes.h"
#include "soporte/sistema.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

// A report as a handler saw it, with the context the handler was installed with.
struct Visto {
    int clase;
    std::string expresion;
    std::string ubicacion;
    LONG linea;
    const char *ubicacion_origen; // only compared with NULL: it points into the reporter's frame
    std::string texto_origen;
    LONG linea_origen;
    void *contexto;
};

std::vector<Visto> vistos;

void anota(const arr_informe *informe, void *contexto)
{
    vistos.push_back({informe->clase, informe->expresion, informe->ubicacion, informe->linea,
                      informe->ubicacion_origen,
                      informe->ubicacion_origen != nullptr ? informe->ubicacion_origen : "",
                      informe->linea_origen, contexto});
}

// A second handler, told apart from the first only by its address.
void anota_tambien(const arr_informe *informe, void *contexto) { anota(informe, contexto); }

// Each test starts and ends with the default handler, and with nothing recorded.
class Informes : public ::testing::Test {
protected:
    void SetUp() override
    {
        arr_set_manejador_informes(nullptr, nullptr);
        vistos.clear();
    }
    void TearDown() override { arr_set_manejador_informes(nullptr, nullptr); }
};

using InformesDeathTest = Informes;

// What the default handler writes for one error report, with ARRAYS_ABORTAR removed.
std::string salida_por_defecto_de_un_error()
{
    VariableDeEntorno sin_abortar("ARRAYS_ABORTAR", nullptr);
    ::testing::internal::CaptureStderr();
    error_interno("x > 0", "modulo (PRUEBA)", 42, 0);
    return ::testing::internal::GetCapturedStderr();
}

TEST_F(Informes, InstalledHandlerReceivesTheReportAndItsContext)
{
    int contexto = 0;
    arr_set_manejador_informes(anota, &contexto);
    error_interno("x > 0", "modulo (PRUEBA)", 42, 0);
    ASSERT_EQ(vistos.size(), 1u);
    EXPECT_EQ(vistos[0].clase, ARR_INFORME_ERROR);
    EXPECT_EQ(vistos[0].expresion, "x > 0");
    EXPECT_EQ(vistos[0].ubicacion, "modulo (PRUEBA)");
    EXPECT_EQ(vistos[0].linea, 42);
    EXPECT_EQ(vistos[0].ubicacion_origen, nullptr);
    EXPECT_EQ(vistos[0].linea_origen, 0);
    EXPECT_EQ(vistos[0].contexto, &contexto);
}

TEST_F(Informes, SettingAHandlerReturnsThePreviousOneAndNullForTheDefault)
{
    EXPECT_EQ(arr_set_manejador_informes(anota, nullptr), nullptr);
    EXPECT_EQ(arr_set_manejador_informes(anota_tambien, nullptr), &anota);
    EXPECT_EQ(arr_set_manejador_informes(nullptr, nullptr), &anota_tambien);
    EXPECT_EQ(arr_set_manejador_informes(nullptr, nullptr), nullptr);
}

TEST_F(Informes, RestoringThePreviousHandlerSendsReportsBackToIt)
{
    arr_set_manejador_informes(anota, nullptr);
    const arr_manejador_informes previo = arr_set_manejador_informes(anota_tambien, nullptr);
    arr_set_manejador_informes(previo, nullptr);
    EXPECT_EQ(arr_set_manejador_informes(nullptr, nullptr), &anota);
}

TEST_F(Informes, NullRestoresTheDefaultHandler)
{
    arr_set_manejador_informes(anota, nullptr);
    arr_set_manejador_informes(nullptr, nullptr);
    const std::string salida = salida_por_defecto_de_un_error();
    EXPECT_TRUE(vistos.empty());
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "x > 0", salida);
}

TEST_F(Informes, EveryReportOfEveryKindIsCounted)
{
    arr_set_manejador_informes(anota, nullptr);
    const ULONG64 antes = arr_num_informes();
    error_interno("x > 0", "modulo (PRUEBA)", 1, 0);
    error_interno_origen(u"y > 0", "modulo (PRUEBA)", 2, "llamador (PRUEBA)", 3, 0);
    error_interno_default_error(0, 0, "modulo (PRUEBA)", 4, 0);
    EXPECT_EQ(arr_num_informes(), antes + 3);
    EXPECT_EQ(vistos.size(), 3u);
}

TEST_F(Informes, DefaultHandlerWritesOneEnglishLineNamingConditionPlaceAndLine)
{
    EXPECT_EQ(salida_por_defecto_de_un_error(),
              "arrays: broken precondition \"x > 0\" in modulo (PRUEBA), line 42\n");
}

TEST_F(Informes, DefaultHandlerNamesBothPlacesOfAnOriginReportOnOneLine)
{
    VariableDeEntorno sin_abortar("ARRAYS_ABORTAR", nullptr);
    ::testing::internal::CaptureStderr();
    error_interno_origen(u"en_bucle == FALSO", "arrayprv (ARRAYS.DLL)", 7, "llamador (PRUEBA)", 99,
                         0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "arrays: broken precondition \"en_bucle == FALSO\" in arrayprv (ARRAYS.DLL), line 7, "
              "called from llamador (PRUEBA), line 99\n");
}

TEST_F(Informes, DefaultHandlerNamesAnUnhandledElementType)
{
    VariableDeEntorno sin_abortar("ARRAYS_ABORTAR", nullptr);
    ::testing::internal::CaptureStderr();
    error_interno_default_error(0, 0, "arrayprv (ARRAYS.DLL)", 12, 0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "arrays: unhandled element type in arrayprv (ARRAYS.DLL), line 12\n");
}

TEST_F(InformesDeathTest, DefaultHandlerAbortsWhenArraysAbortarExists)
{
    EXPECT_DEATH(
        {
            VariableDeEntorno abortar("ARRAYS_ABORTAR", "1");
            error_interno("x > 0", "modulo (PRUEBA)", 42, 0);
        },
        "\"x > 0\" .*modulo \\(PRUEBA\\)");
}

TEST_F(Informes, OriginReportCarriesTheCallersPlaceAndItsTextInUtf8)
{
    arr_set_manejador_informes(anota, nullptr);
    error_interno_origen(u"año ≥ 0", "arrayprv (ARRAYS.DLL)", 5, "llamador (PRUEBA)", 17, 0);
    ASSERT_EQ(vistos.size(), 1u);
    EXPECT_EQ(vistos[0].clase, ARR_INFORME_ORIGEN);
    EXPECT_EQ(vistos[0].expresion, "año ≥ 0");
    EXPECT_EQ(vistos[0].ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(vistos[0].linea, 5);
    EXPECT_EQ(vistos[0].texto_origen, "llamador (PRUEBA)");
    EXPECT_EQ(vistos[0].linea_origen, 17);
}

TEST_F(Informes, OriginReportTurnsALoneSurrogateIntoTheReplacementCharacter)
{
    arr_set_manejador_informes(anota, nullptr);
    error_interno_origen(u"a\xD800z", "arrayprv (ARRAYS.DLL)", 5, "llamador (PRUEBA)", 17, 0);
    ASSERT_EQ(vistos.size(), 1u);
    EXPECT_EQ(vistos[0].expresion, "a\uFFFDz");
}

TEST_F(Informes, OriginReportWithoutACallerNamesAnEmptyPlace)
{
    arr_set_manejador_informes(anota, nullptr);
    error_interno_origen(u"en_bucle == FALSO", "arrayprv (ARRAYS.DLL)", 5, nullptr, 0, 0);
    ASSERT_EQ(vistos.size(), 1u);
    ASSERT_NE(vistos[0].ubicacion_origen, nullptr);
    EXPECT_EQ(vistos[0].texto_origen, "");
}

TEST_F(Informes, DefaultCaseReportHasItsOwnClassAndAnEmptyText)
{
    arr_set_manejador_informes(anota, nullptr);
    error_interno_default_error(0, 0, "arrayprv (ARRAYS.DLL)", 9, 0);
    ASSERT_EQ(vistos.size(), 1u);
    EXPECT_EQ(vistos[0].clase, ARR_INFORME_DEFAULT);
    EXPECT_EQ(vistos[0].expresion, "");
    EXPECT_EQ(vistos[0].ubicacion, "arrayprv (ARRAYS.DLL)");
    EXPECT_EQ(vistos[0].linea, 9);
    EXPECT_EQ(vistos[0].ubicacion_origen, nullptr);
}

TEST_F(Informes, ExigeReportsAFalseConditionWithTheModulesPlaceAndReturnsIt)
{
    constexpr const char *UBICACION = "prueba (EXIGE)";
    arr_set_manejador_informes(anota, nullptr);
    EXPECT_TRUE(ARR_EXIGE(1 + 1 == 2, "1 + 1 == 2"));
    EXPECT_TRUE(vistos.empty());
    const int linea = __LINE__ + 1;
    EXPECT_FALSE(ARR_EXIGE(1 + 1 == 3, "1 + 1 == 3"));
    ASSERT_EQ(vistos.size(), 1u);
    EXPECT_EQ(vistos[0].expresion, "1 + 1 == 3");
    EXPECT_EQ(vistos[0].ubicacion, UBICACION);
    EXPECT_EQ(vistos[0].linea, linea);
}

} // namespace
