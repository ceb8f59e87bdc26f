// Handles that are not live arrays: NULL, destroyed, inside unreadable memory, wild, or a forged
// header whose tables point nowhere. No call of the debug module faults on any of them; each
// answers as for an invalid array and prints the documented message.
#include "debug/salidas.h"

#include "core/arrayprv.h"
#include "soporte/sistema.h"

#include <cstring>
#include <random>

namespace {

using Guarda = PruebaDebug;

const std::string DIRECCION_NO_VALIDA = "\r\nArray con direcci\xF3n no v\xE1lida.\r\n";

// Every entry point of the module on one handle, with what each answered.
struct Respuestas {
    ULONG num_elems;
    ULONG tipo;
    void *elems;
};
Respuestas consulta_todo(const ARRAY *array, ULONG identificador)
{
    debugarr_outputDebug(array);
    debugarr_ini_serializa(array, identificador);
    debugarr_fin_serializa(identificador);
    return {debugarr_num_elems(array), debugarr_tipo_array(array), debugarr_elems(array)};
}

TEST_F(Guarda, NullArrayIsNamedAndAnsweredAsInvalid)
{
    const Respuestas respuestas = consulta_todo(nullptr, identificador(1));
    EXPECT_EQ(salidas(), estrechos({"\r\nArray es NULL.\r\n", "\r\nArray es NULL.\r\n"}));
    EXPECT_EQ(respuestas.num_elems, 0u);
    EXPECT_EQ(respuestas.tipo, 0xFFFFFFFFu);
    EXPECT_EQ(respuestas.elems, nullptr);
}

TEST_F(Guarda, DestroyedArrayPrintsNothingAndIsAnsweredAsInvalid)
{
    ARRAY *array = arr_CreaDouble(3);
    const ARRAY *viejo = array;
    arr_DestruyeDouble(&array);
    const Respuestas respuestas = consulta_todo(viejo, identificador(2));
    EXPECT_EQ(salidas(), Salidas{});
    EXPECT_EQ(respuestas.num_elems, 0u);
    EXPECT_EQ(respuestas.tipo, 0xFFFFFFFFu);
    EXPECT_EQ(respuestas.elems, nullptr);
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(2))));
}

TEST_F(Guarda, HeaderInAnUnreadablePageIsNamedWithoutAFault)
{
    PaginaProhibida pagina;
    const Respuestas respuestas = consulta_todo(reinterpret_cast<const ARRAY *>(pagina.inicio()), identificador(3));
    EXPECT_EQ(salidas(), estrechos({DIRECCION_NO_VALIDA, DIRECCION_NO_VALIDA}));
    EXPECT_EQ(respuestas.num_elems, 0u);
    EXPECT_EQ(respuestas.tipo, 0xFFFFFFFFu);
    EXPECT_EQ(respuestas.elems, nullptr);
}

TEST_F(Guarda, HeaderMadeUnreadableWithMprotectIsNamedWithoutAFault)
{
    Paginas pagina(1);
    char *memoria = pagina.inicio();
    ARRAY *array = arr_CreaLong(2);
    std::memcpy(memoria, array, sizeof(ARRAY));
    pagina.prohibe(0, 1);
    debugarr_outputDebug(reinterpret_cast<const ARRAY *>(memoria));
    EXPECT_EQ(salidas(), estrechos({DIRECCION_NO_VALIDA}));
    pagina.solo_lectura(0, 1);
    debugarr_outputDebug(reinterpret_cast<const ARRAY *>(memoria)); // the copy's rows are the array's
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n", "[1]: 0\r\n", "[2]: 0\r\n"}));
    arr_DestruyeLong(&array);
}

TEST_F(Guarda, ForgedHeaderWhoseRowsCannotBeReadEndsTheDumpWithTheMessage)
{
    PaginaProhibida filas;
    ARRAY *array = arr_CreaDouble(3);
    CabeceraArray falsa{};
    std::memcpy(&falsa.array, array, sizeof(ARRAY));
    falsa.array.buffer = reinterpret_cast<char **>(filas.inicio());
    debugarr_outputDebug(&falsa.array);
    EXPECT_EQ(debugarr_elems(&falsa.array), nullptr);
    debugarr_ini_serializa(&falsa.array, identificador(4));
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 3 elementos:\r\n", DIRECCION_NO_VALIDA,
                                    DIRECCION_NO_VALIDA}));
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(4))));
    arr_DestruyeDouble(&array);
}

TEST_F(Guarda, ForgedHeaderWhoseRowsDoNotAddUpIsNotCopied)
{
    ARRAY *array = arr_CreaDouble(3);
    CabeceraArray falsa{};
    std::memcpy(&falsa.array, array, sizeof(ARRAY));
    falsa.array.num_elems = 2; // the rows hold 3
    debugarr_outputDebug(&falsa.array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n", DIRECCION_NO_VALIDA}));
    arr_DestruyeDouble(&array);
}

TEST_F(Guarda, StringElementInUnreadableMemoryEndsTheDumpWithTheMessage)
{
    PaginaProhibida pagina;
    ARRAY *array = arr_CreaCADENA(0);
    arr_AppendCADENA(array, "uno");
    arr_AppendCADENA(array, "dos");
    char *original;
    std::memcpy(&original, array->buffer[0] + sizeof(char *), sizeof original);
    char *ilegible = pagina.inicio();
    std::memcpy(array->buffer[0] + sizeof(char *), &ilegible, sizeof ilegible);
    debugarr_outputDebug(array);
    EXPECT_EQ(salidas(), estrechos({"\r\nArray de 2 elementos:\r\n", "[1]: \"uno\"\r\n",
                                    DIRECCION_NO_VALIDA}));
    std::memcpy(array->buffer[0] + sizeof(char *), &original, sizeof original);
    arr_DestruyeCADENA(&array);
}

TEST_F(Guarda, RandomPointersNeverFault)
{
    std::mt19937_64 azar(20261124);
    std::vector<unsigned char> basura(1 << 16);
    for (unsigned char &byte : basura)
        byte = static_cast<unsigned char>(azar());
    for (int i = 0; i < 2000; ++i) {
        const ARRAY *array =
            i % 2 == 0 ? reinterpret_cast<const ARRAY *>(azar())
                       : reinterpret_cast<const ARRAY *>(basura.data() + azar() % (basura.size() - 256));
        consulta_todo(array, identificador(5));
        for (const TextoSalida &texto : salidas())
            EXPECT_EQ(texto.texto, DIRECCION_NO_VALIDA);
    }
    EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(5))));
}

} // namespace
