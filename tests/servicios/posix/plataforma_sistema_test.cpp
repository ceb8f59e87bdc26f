// The platform services of POSIX: named blocks are shared-memory objects of an exact size whose
// name outlives their mappings, and the debugger output goes to standard error in UTF-8.
#include "services/plataforma.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstring>
#include <string>

namespace {

TEST(BloqueCompartido, ExistingBlockOfOursIsResizedAndZeroed)
{
    const std::string nombre = "arrays_prueba_plataforma_b_" + std::to_string(getpid());
    BloqueCompartido primero, segundo;
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 64, &primero));
    std::memset(primero.vista, 0xAB, 64);
    plataforma_cierra_bloque(&primero);
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 16, &segundo));
    EXPECT_EQ(segundo.bytes, 16u);
    EXPECT_EQ(static_cast<unsigned char *>(segundo.vista)[0], 0);
    plataforma_cierra_bloque(&segundo);
    plataforma_quita_nombre(nombre.c_str());
}

TEST(SalidaDepuracion, NarrowTextsReachStandardErrorInUtf8)
{
    ::testing::internal::CaptureStderr();
    plataforma_salida_depuracion("\r\nArray con direcci\xF3n no v\xE1lida.\r\n");
    plataforma_salida_depuracion("[1]: \"direcci\xC3\xB3n\"\r\n");
    plataforma_salida_depuracion_ancha(u"[1]: \"\u00D1and\u00FA\"\r\n");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "\r\nArray con direcci\xC3\xB3n no v\xC3\xA1lida.\r\n"
              "[1]: \"direcci\xC3\xB3n\"\r\n"
              "[1]: \"\xC3\x91\x61nd\xC3\xBA\"\r\n");
}

} // namespace
