// The platform services that behave alike everywhere: the probe that copies readable memory and
// refuses unreadable memory without a fault, the environment and the life of a named block. What
// is particular to each platform is tested beside its implementation's twin (posix/, windows/).
#include "services/plataforma.h"
#include "soporte/sistema.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

TEST(CopiaLegible, CopiesReadableMemory)
{
    const char origen[] = "readable";
    char destino[sizeof origen] = {};
    EXPECT_TRUE(plataforma_copia_legible(origen, destino, sizeof origen));
    EXPECT_STREQ(destino, origen);
}

TEST(CopiaLegible, RefusesUnreadableAndPartlyReadableMemory)
{
    Paginas paginas(2);
    paginas.prohibe(1, 1);
    const char *frontera = paginas.inicio() + Paginas::bytes_pagina();
    char destino[16];
    EXPECT_FALSE(plataforma_copia_legible(frontera, destino, sizeof destino));
    EXPECT_FALSE(plataforma_copia_legible(frontera - 8, destino, sizeof destino));
    EXPECT_TRUE(plataforma_copia_legible(frontera - 16, destino, sizeof destino));
    EXPECT_FALSE(plataforma_copia_legible(nullptr, destino, 1));
}

TEST(Entorno, AVariableIsPresentEvenWithAnEmptyValue)
{
    {
        const VariableDeEntorno vacia("ARRAYS_PRUEBA_ENTORNO", "");
        EXPECT_TRUE(plataforma_hay_variable("ARRAYS_PRUEBA_ENTORNO"));
    }
    EXPECT_FALSE(plataforma_hay_variable("ARRAYS_PRUEBA_ENTORNO"));
}

// A block is made zeroed, opened again by its name and read in the bytes the platform shows
// (whole pages on Windows), and its name goes with the last handle or the unlinking.
TEST(BloqueCompartido, IsMadeZeroedOpenedForReadingAndUnnamed)
{
    const std::string nombre = "arrays_prueba_plataforma_" + std::to_string(id_proceso());
    BloqueCompartido escrito;
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 32, &escrito));
    EXPECT_EQ(escrito.bytes, 32u);
    EXPECT_EQ(static_cast<unsigned char *>(escrito.vista)[31], 0);
    std::memcpy(escrito.vista, "hello", 6);
    BloqueCompartido leido;
    ASSERT_TRUE(plataforma_abre_bloque(nombre.c_str(), &leido));
    EXPECT_EQ(leido.bytes, bytes_visibles_de_bloque(32));
    EXPECT_STREQ(static_cast<const char *>(leido.vista), "hello");
    plataforma_cierra_bloque(&leido);
    plataforma_cierra_bloque(&escrito);
    EXPECT_EQ(escrito.vista, nullptr);
    plataforma_quita_nombre(nombre.c_str());
    EXPECT_FALSE(plataforma_abre_bloque(nombre.c_str(), &leido));
}

} // namespace
