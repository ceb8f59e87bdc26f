// Capturing sinks and shared-memory readers for the debug module's tests.
#include "debug/salidas.h"

#include "debug/nombres.h"
#include "services/codificaciones.h"
#include "services/plataforma.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ostream>

namespace {

Salidas capturadas;

void captura_estrecha(const char *texto) { capturadas.push_back({false, texto}); }
void captura_ancha(const WCHAR *texto) { capturadas.push_back({true, utf16_a_utf8(texto)}); }

} // namespace

void PrintTo(const TextoSalida &texto, std::ostream *os)
{
    *os << (texto.ancho ? "wide " : "narrow ") << ::testing::PrintToString(texto.texto);
}

Salidas estrechos(const std::vector<std::string> &textos)
{
    Salidas salidas;
    for (const std::string &texto : textos)
        salidas.push_back({false, texto});
    return salidas;
}

void PruebaDebug::SetUp()
{
    PruebaArrays::SetUp();
    capturadas.clear();
    debugarr_set_salida(captura_estrecha, captura_ancha);
}

void PruebaDebug::TearDown()
{
    debugarr_set_salida(nullptr, nullptr);
    EXPECT_EQ(capturadas, Salidas{}) << "texts that the test did not check";
    PruebaArrays::TearDown();
}

Salidas PruebaDebug::salidas()
{
    Salidas tomadas;
    tomadas.swap(capturadas);
    return tomadas;
}

arr_ulong_t PruebaDebug::identificador(arr_ulong_t n)
{
    // The base is the first process's id, handed down through the environment, so that a test's
    // new process (en_proceso_nuevo) names the same blocks as the test itself.
    static const ULONG base = [] {
        if (const auto heredada = lee_variable("ARRAYS_PRUEBA_DEBUG_BASE"))
            return static_cast<ULONG>(std::stoul(*heredada));
        const ULONG propia = static_cast<ULONG>(id_proceso());
        pon_variable("ARRAYS_PRUEBA_DEBUG_BASE", std::to_string(propia).c_str());
        return propia;
    }();
    return base * 1000 + n;
}

std::string nombre_bloque(arr_ulong_t identificador)
{
    char nombre[64];
    std::snprintf(nombre, sizeof nombre, DEBUGARR_PATRON_BLOQUE, static_cast<int32_t>(identificador));
    return nombre;
}

bool existe_bloque(const std::string &nombre)
{
    BloqueCompartido bloque;
    if (!plataforma_abre_bloque(nombre.c_str(), &bloque))
        return false;
    plataforma_cierra_bloque(&bloque);
    return true;
}

std::vector<unsigned char> lee_bloque(const std::string &nombre)
{
    BloqueCompartido bloque;
    if (!plataforma_abre_bloque(nombre.c_str(), &bloque))
        return {};
    std::vector<unsigned char> bytes(bloque.bytes);
    if (!bytes.empty())
        std::memcpy(bytes.data(), bloque.vista, bytes.size());
    plataforma_cierra_bloque(&bloque);
    return bytes;
}

uint32_t u32_en(const std::vector<unsigned char> &bytes, size_t desplazamiento)
{
    uint32_t valor = 0;
    for (size_t i = 0; i < 4; ++i)
        valor |= static_cast<uint32_t>(bytes.at(desplazamiento + i)) << (8 * i);
    return valor;
}
