// The platform services: the probe that copies readable memory and refuses unreadable memory
// without a fault, named blocks, and the default sinks of the debugger output.
#include "services/plataforma.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <string>

namespace {

const size_t PAGINA = static_cast<size_t>(sysconf(_SC_PAGESIZE));

TEST(CopiaLegible, CopiesReadableMemory)
{
    const char origen[] = "readable";
    char destino[sizeof origen] = {};
    EXPECT_TRUE(plataforma_copia_legible(origen, destino, sizeof origen));
    EXPECT_STREQ(destino, origen);
}

TEST(CopiaLegible, RefusesUnreadableAndPartlyReadableMemory)
{
    auto *paginas = static_cast<char *>(
        mmap(nullptr, 2 * PAGINA, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_EQ(mprotect(paginas + PAGINA, PAGINA, PROT_NONE), 0);
    char destino[16];
    EXPECT_FALSE(plataforma_copia_legible(paginas + PAGINA, destino, sizeof destino));
    EXPECT_FALSE(plataforma_copia_legible(paginas + PAGINA - 8, destino, sizeof destino));
    EXPECT_TRUE(plataforma_copia_legible(paginas + PAGINA - 16, destino, sizeof destino));
    EXPECT_FALSE(plataforma_copia_legible(nullptr, destino, 1));
    munmap(paginas, 2 * PAGINA);
}

TEST(BloqueCompartido, IsMadeZeroedOpenedForReadingAndUnnamed)
{
    const std::string nombre = "arrays_prueba_plataforma_" + std::to_string(getpid());
    BloqueCompartido escrito;
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 32, &escrito));
    EXPECT_EQ(escrito.bytes, 32u);
    EXPECT_EQ(static_cast<unsigned char *>(escrito.vista)[31], 0);
    std::memcpy(escrito.vista, "hello", 6);
    BloqueCompartido leido;
    ASSERT_TRUE(plataforma_abre_bloque(nombre.c_str(), &leido));
    EXPECT_EQ(leido.bytes, 32u);
    EXPECT_STREQ(static_cast<const char *>(leido.vista), "hello");
    plataforma_cierra_bloque(&leido);
    plataforma_cierra_bloque(&escrito);
    EXPECT_EQ(escrito.vista, nullptr);
    plataforma_quita_nombre(nombre.c_str());
    EXPECT_FALSE(plataforma_abre_bloque(nombre.c_str(), &leido));
}

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
