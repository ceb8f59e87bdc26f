// arrays-visor run as another process over blocks this process publishes: every element type read
// back as the dump lists it, the count followed, a polyline drawn, and malformed blocks, missing
// blocks, wrong types and bad command lines refused with a clear message and their exit code.
#include "debug/nombres.h"
#include "debug/salidas.h"
#include "services/plataforma.h"

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>

namespace {

using Visor = PruebaDebug;

struct Resultado {
    int codigo;
    std::string salida;
    std::string errores;
};

std::string lee_fichero(const std::string &ruta)
{
    std::ifstream f(ruta, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

// Where this process's scratch files go: `nombre` made unique to it.
std::string temporal(const std::string &nombre)
{
    return directorio_temporal() + "arrays_visor_" + std::to_string(id_proceso()) + "_" + nombre;
}

// Runs arrays-visor with `argumentos` (separated by spaces) and waits for it.
Resultado visor(const std::string &argumentos)
{
    std::istringstream palabras(argumentos);
    std::vector<std::string> lista;
    for (std::string palabra; palabras >> palabra;)
        lista.push_back(palabra);
    const std::string salida = temporal("salida"), errores = temporal("errores");
    const int codigo = Proceso(RUTA_VISOR, lista, salida, errores).espera();
    Resultado r{codigo, lee_fichero(salida), lee_fichero(errores)};
    std::remove(salida.c_str());
    std::remove(errores.c_str());
    return r;
}

// What the dump wrote, narrow texts one after another.
std::string junta(const Salidas &salidas)
{
    std::string todo;
    for (const TextoSalida &texto : salidas)
        todo += texto.texto;
    return todo;
}

// A block written by hand: `bytes` bytes, the first ones `cabecera`.
class BloqueAMano {
public:
    BloqueAMano(ULONG identificador, size_t bytes, const std::vector<uint32_t> &cabecera)
        : nombre_(nombre_bloque(identificador))
    {
        EXPECT_TRUE(plataforma_crea_bloque(nombre_.c_str(), bytes, &bloque_));
        if (bloque_.vista != nullptr && !cabecera.empty())
            std::memcpy(bloque_.vista, cabecera.data(), 4 * cabecera.size());
    }
    ~BloqueAMano()
    {
        plataforma_cierra_bloque(&bloque_);
        plataforma_quita_nombre(nombre_.c_str());
    }
    BloqueAMano(const BloqueAMano &) = delete;
    BloqueAMano &operator=(const BloqueAMano &) = delete;

private:
    std::string nombre_;
    BloqueCompartido bloque_;
};

TEST_F(Visor, EveryTypeReadsBackAsTheDumpListsIt)
{
    struct Caso {
        const char *tipo;
        ARRAY *array;
    };
    std::vector<Caso> casos = {{"byte", arr_CreaBYTE(0)},       {"bool", arr_CreaBOOL(0)},
                               {"uchar", arr_CreaUChar(0)},     {"char", arr_CreaChar(0)},
                               {"ushort", arr_CreaUShort(0)},   {"short", arr_CreaShort(0)},
                               {"ulong", arr_CreaULong(0)},     {"long", arr_CreaLong(0)},
                               {"ulong64", arr_CreaULong64(0)}, {"long64", arr_CreaLong64(0)},
                               {"double", arr_CreaDouble(0)},   {"punto2d", arr_CreaPunto2D(0)},
                               {"punto3d", arr_CreaPunto3D(0)},
                               {"puntero", arr_CreaPunteroConTipo(0)}};
    for (int i = 0; i < 300; ++i) {
        arr_AppendBYTE(casos[0].array, static_cast<BYTE>(i * 7));
        arr_AppendBOOL(casos[1].array, static_cast<BOOL>(i % 3 == 0));
        arr_AppendUChar(casos[2].array, static_cast<UCHAR>(i));
        arr_AppendChar(casos[3].array, static_cast<char>(-i));
        arr_AppendUShort(casos[4].array, static_cast<USHORT>(i * 211));
        arr_AppendShort(casos[5].array, static_cast<SHORT>(-i * 97));
        arr_AppendULong(casos[6].array, static_cast<ULONG>(i) * 14000000u);
        arr_AppendLong(casos[7].array, -i * 7000000);
        arr_AppendULong64(casos[8].array, static_cast<ULONG64>(i) << 55);
        arr_AppendLong64(casos[9].array, -(static_cast<LONG64>(i) << 50));
        arr_AppendDouble(casos[10].array, i / 7.0);
        arr_AppendPunto2D(casos[11].array, i, -i / 3.0);
        arr_AppendPunto3D(casos[12].array, i, 2.5, -i);
        arr_AppendPunteroConTipo(casos[13].array, nullptr);
    }
    for (size_t k = 0; k < casos.size(); ++k) {
        SCOPED_TRACE(casos[k].tipo);
        debugarr_outputDebug(casos[k].array);
        const std::string volcado = junta(salidas());
        debugarr_ini_serializa(casos[k].array, identificador(k));
        const Resultado r =
            visor("show " + std::to_string(identificador(k)) + " --tipo " + casos[k].tipo);
        EXPECT_EQ(r.codigo, 0) << r.errores;
        EXPECT_EQ(r.salida, volcado);
        debugarr_fin_serializa(identificador(k));
        EXPECT_FALSE(existe_bloque(nombre_bloque(identificador(k))));
    }
    for (Caso &caso : casos)
        arr_DestruyeDouble(&caso.array);
}

TEST_F(Visor, StringBlocksSayTheyHoldPointersOfAnotherProcess)
{
    ARRAY *cadenas = arr_CreaCADENA(0);
    arr_AppendCADENA(cadenas, "uno");
    arr_AppendCADENA(cadenas, "dos");
    debugarr_ini_serializa(cadenas, identificador(20));
    const Resultado r = visor("show " + std::to_string(identificador(20)) + " --tipo cadena");
    EXPECT_EQ(r.codigo, 0);
    EXPECT_EQ(r.salida, "\r\nArray de 2 elementos:\r\n");
    EXPECT_NE(r.errores.find("2 string pointers of the publishing process"), std::string::npos)
        << r.errores;
    debugarr_fin_serializa(identificador(20));
    arr_DestruyeCADENA(&cadenas);
}

TEST_F(Visor, TypeWhoseSizeDisagreesWithTheBlockIsRefused)
{
    ARRAY *array = arr_CreaLong(3);
    debugarr_ini_serializa(array, identificador(21));
    const Resultado r = visor("show " + std::to_string(identificador(21)) + " --tipo double");
    EXPECT_EQ(r.codigo, 4);
    EXPECT_EQ(r.salida, "");
    EXPECT_NE(r.errores.find("holds elements of 4 bytes; double elements have 8"),
              std::string::npos)
        << r.errores;
    debugarr_fin_serializa(identificador(21));
    arr_DestruyeLong(&array);
}

TEST_F(Visor, MissingBlockIsNamed)
{
    const Resultado r = visor("show " + std::to_string(identificador(22)) + " --tipo long");
    EXPECT_EQ(r.codigo, 2);
    EXPECT_EQ(r.errores,
              "arrays-visor: no published block " + nombre_bloque(identificador(22)) + "\n");
}

// Where the system keeps a block's byte size (POSIX), 4 bytes are shorter than the header; where
// it maps whole pages (Windows), the reader finds a page of zeros, whose sizes do not add up.
TEST_F(Visor, BlockShorterThanItsHeaderIsRefused)
{
    const BloqueAMano bloque(identificador(23), 4, {});
    const Resultado r = visor("show " + std::to_string(identificador(23)) + " --tipo long");
    EXPECT_EQ(r.codigo, 3);
    const char *motivo = bytes_visibles_de_bloque(4) < 8 ? "shorter than its 8-byte header"
                                                          : "sizes do not add up";
    EXPECT_NE(r.errores.find(motivo), std::string::npos) << r.errores;
}

TEST_F(Visor, BlockShorterThanItsHeaderSaysIsRefused)
{
    const BloqueAMano bloque(identificador(24), 8 + 16, {400000, 8});
    const Resultado r = visor("show " + std::to_string(identificador(24)) + " --tipo double");
    EXPECT_EQ(r.codigo, 3);
    const std::string presentes = std::to_string(bytes_visibles_de_bloque(8 + 16) - 8);
    EXPECT_NE(r.errores.find("shorter than its header says: 400000 data bytes announced, " +
                             presentes + " present"),
              std::string::npos)
        << r.errores;
}

TEST_F(Visor, BlockWhoseSizesDoNotAddUpIsRefused)
{
    const BloqueAMano cero(identificador(25), 8 + 16, {16, 0});
    const BloqueAMano impar(identificador(26), 8 + 16, {12, 8});
    const Resultado r_cero = visor("show " + std::to_string(identificador(25)) + " --tipo double");
    const Resultado r_impar = visor("plot " + std::to_string(identificador(26)) +
                                    " --tipo punto2d -o " + temporal("nunca.svg"));
    EXPECT_EQ(r_cero.codigo, 3);
    EXPECT_NE(r_cero.errores.find("sizes do not add up"), std::string::npos) << r_cero.errores;
    EXPECT_EQ(r_impar.codigo, 3);
    EXPECT_NE(r_impar.errores.find("sizes do not add up"), std::string::npos) << r_impar.errores;
}

TEST_F(Visor, BadCommandLinesAreRefusedWithTheUsage)
{
    for (const char *argumentos : {"", "show", "show x --tipo long", "show 1", "show 1 --tipo nada",
                                   "frobnicate", "count --interval 0", "plot 1 --tipo punto2d"}) {
        const Resultado r = visor(argumentos);
        EXPECT_EQ(r.codigo, 1) << argumentos;
        EXPECT_NE(r.errores.find("usage: arrays-visor"), std::string::npos) << argumentos;
    }
    EXPECT_EQ(visor("--help").codigo, 0);
}

TEST_F(Visor, PlotDrawsThePolylineWithItsBoxAndVertexCount)
{
    ARRAY *puntos = arr_CreaPunto2D(0);
    arr_AnyadirCirculoPunto2D(puntos, 5, -3, 2, 0, 40);
    debugarr_ini_serializa(puntos, identificador(27));
    const std::string fichero = temporal("poligonal.svg");
    const Resultado r =
        visor("plot " + std::to_string(identificador(27)) + " --tipo punto2d -o " + fichero);
    EXPECT_EQ(r.codigo, 0) << r.errores;
    const std::string svg = lee_fichero(fichero);
    EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
    EXPECT_NE(svg.find("</svg>"), std::string::npos);
    EXPECT_NE(svg.find(": 40 vertices</text>"), std::string::npos);
    EXPECT_NE(svg.find("(3, -5)"), std::string::npos) << "the box's lower left corner";
    EXPECT_NE(svg.find("(7, -1)"), std::string::npos) << "the box's upper right corner";
    const size_t puntos_attr = svg.find("points=\"");
    ASSERT_NE(puntos_attr, std::string::npos);
    const size_t desde = puntos_attr + 8;
    const std::string lista = svg.substr(desde, svg.find('"', desde) - desde);
    EXPECT_EQ(std::count(lista.begin(), lista.end(), ','), 40);
    std::remove(fichero.c_str());
    debugarr_fin_serializa(identificador(27));
    arr_DestruyePunto2D(&puntos);
}

TEST_F(Visor, PlotOfAOnePointPolylineDoesNotDivideByZero)
{
    ARRAY *puntos = arr_CreaPunto3D(0);
    arr_AppendPunto3D(puntos, 1, 1, 1);
    debugarr_ini_serializa(puntos, identificador(28));
    const std::string fichero = temporal("uno.svg");
    const Resultado r =
        visor("plot " + std::to_string(identificador(28)) + " --tipo punto3d -o " + fichero);
    EXPECT_EQ(r.codigo, 0) << r.errores;
    const std::string svg = lee_fichero(fichero);
    EXPECT_EQ(svg.find("nan"), std::string::npos);
    EXPECT_EQ(svg.find("inf"), std::string::npos);
    std::remove(fichero.c_str());
    debugarr_fin_serializa(identificador(28));
    arr_DestruyePunto3D(&puntos);
}

TEST_F(Visor, CountIsReadAndFollowedUntilInterrupted)
{
    ARRAY *array = arr_CreaLong(3);
    debugarr_serializa_num_elems_array(array);
    EXPECT_EQ(visor("count").salida, "3 elements\n");
    const std::string base = temporal("sigue"), errores = temporal("sigue_errores");
    Proceso sigue(RUTA_VISOR, {"count", "--watch", "--interval", "20"}, base, errores);
    // Waits (ten seconds at most) until the viewer has printed `texto`.
    const auto espera = [&base](const std::string &texto) {
        for (int i = 0; i < 1000 && lee_fichero(base) != texto; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    };
    espera("3 elements\n");
    arr_AppendLong(array, 1);
    debugarr_serializa_num_elems_array(array);
    espera("3 elements\n4 elements\n");
    EXPECT_TRUE(sigue.interrumpe());
    EXPECT_EQ(sigue.espera(), 0) << lee_fichero(errores);
    EXPECT_EQ(lee_fichero(base), "3 elements\n4 elements\n");
    std::remove(base.c_str());
    std::remove(errores.c_str());
    arr_DestruyeLong(&array);
}

} // namespace
