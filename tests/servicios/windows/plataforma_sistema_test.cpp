// The platform services of Windows: named blocks are file mappings whose name lives as long as a
// handle to them, opened again through ERROR_ALREADY_EXISTS, and read in whole pages; the debugger
// output goes to the debugger's channel, seen here as the debug-print exceptions that
// OutputDebugStringA and OutputDebugStringW raise.

// <windows.h> first: it brings its own BOOL, BYTE and WCHAR, so the library's header leaves its
// short names out.
#include <windows.h>

#include "services/plataforma.h"
#include "soporte/sistema.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

// A mapping still held by another handle is opened by name and its first bytes zeroed.
TEST(BloqueCompartido, ExistingBlockOfOursIsResizedAndZeroed)
{
    const std::string nombre = "arrays_prueba_plataforma_b_" + std::to_string(id_proceso());
    BloqueCompartido primero, segundo;
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 64, &primero));
    std::memset(primero.vista, 0xAB, 64);
    ASSERT_TRUE(plataforma_crea_bloque(nombre.c_str(), 16, &segundo));
    EXPECT_EQ(segundo.bytes, 16u);
    EXPECT_EQ(static_cast<unsigned char *>(primero.vista)[0], 0) << "one mapping, seen twice";
    EXPECT_EQ(static_cast<unsigned char *>(segundo.vista)[15], 0);
    plataforma_cierra_bloque(&segundo);
    plataforma_cierra_bloque(&primero);
    plataforma_quita_nombre(nombre.c_str());
}

// What reached the debugger: each text as raised, narrow bytes or UTF-16 code units.
struct Depurado {
    std::vector<std::string> estrechos;
    std::vector<std::u16string> anchos;
};
Depurado depurado;

LONG CALLBACK anota_depurado(EXCEPTION_POINTERS *excepcion)
{
    const EXCEPTION_RECORD *registro = excepcion->ExceptionRecord;
    if (registro->ExceptionCode == DBG_PRINTEXCEPTION_C)
        depurado.estrechos.emplace_back(
            reinterpret_cast<const char *>(registro->ExceptionInformation[1]));
    else if (registro->ExceptionCode == 0x4001000A) // DBG_PRINTEXCEPTION_WIDE_C
        depurado.anchos.emplace_back(
            reinterpret_cast<const char16_t *>(registro->ExceptionInformation[1]));
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(SalidaDepuracion, NarrowTextsReachTheDebuggerAsTheyAreAndWideOnesInUtf16)
{
    void *manejador = AddVectoredExceptionHandler(1, anota_depurado);
    plataforma_salida_depuracion("\r\nArray con direcci\xF3n no v\xE1lida.\r\n");
    plataforma_salida_depuracion_ancha(u"[1]: \"\u00D1and\u00FA\"\r\n");
    RemoveVectoredExceptionHandler(manejador);
    ASSERT_FALSE(depurado.estrechos.empty());
    EXPECT_EQ(depurado.estrechos.front(), "\r\nArray con direcci\xF3n no v\xE1lida.\r\n");
    if (!depurado.anchos.empty())
        EXPECT_EQ(depurado.anchos.front(), u"[1]: \"\u00D1and\u00FA\"\r\n");
    else // a system that passes wide texts on narrowed, in the ANSI code page
        EXPECT_EQ(depurado.estrechos.back(), "[1]: \"\xD1" "and\xFA\"\r\n");
}

} // namespace
