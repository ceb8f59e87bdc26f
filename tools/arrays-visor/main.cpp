// arrays-visor: looks from another process into the arrays a program published with the debug
// module of libarrays (debugarr_ini_serializa, debugarr_serializa_num_elems_array).
#include "ordenes.h"

#include "services/plataforma.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void ayuda(std::FILE *donde)
{
    std::fprintf(donde,
                 "usage: arrays-visor show ID --tipo TYPE\n"
                 "       arrays-visor plot ID --tipo punto2d|punto3d -o FILE.svg\n"
                 "       arrays-visor count [--watch [--interval MS]]\n"
                 "\n"
                 "show   lists the array published under ID as the library's dump does\n"
                 "plot   draws a published polyline (x, y) as an SVG picture\n"
                 "count  prints the element-count block; --watch prints it at every change\n"
                 "       until interrupted (every MS milliseconds, 200 by default)\n"
                 "TYPE   %s\n"
                 "\n"
                 "exit codes: 0 done, 1 bad command line, 2 no such block, 3 malformed block,\n"
                 "            4 type that does not fit the block, 5 output file not written\n",
                 nombres_de_tipos().c_str());
}

// A whole decimal number of at most 32 bits.
bool numero(const std::string &texto, unsigned long &valor)
{
    char *fin = nullptr;
    valor = std::strtoul(texto.c_str(), &fin, 10);
    return !texto.empty() && *fin == '\0' && valor <= 0xFFFFFFFFul && texto[0] != '-';
}

int uso(const std::string &motivo)
{
    ayuda(stderr);
    return falla(Fallo::uso, motivo);
}

} // namespace

int main(int argc, char **argv)
{
    plataforma_salidas_tal_cual();
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty())
        return uso("a command is needed");
    if (args[0] == "--help" || args[0] == "-h") {
        ayuda(stdout);
        return 0;
    }
    const std::string &orden = args[0];
    if (orden == "count") {
        bool seguir = false;
        unsigned long intervalo = 200;
        for (size_t i = 1; i < args.size(); ++i) {
            if (args[i] == "--watch")
                seguir = true;
            else if (args[i] == "--interval" && i + 1 < args.size() &&
                     numero(args[i + 1], intervalo) && intervalo > 0)
                ++i;
            else
                return uso("unexpected argument " + args[i]);
        }
        return cuenta(seguir, static_cast<unsigned>(intervalo));
    }
    if (orden != "show" && orden != "plot")
        return uso("unknown command " + orden);
    unsigned long identificador = 0;
    if (args.size() < 2 || !numero(args[1], identificador))
        return uso(orden + " needs a block identifier, a number of up to 32 bits");
    std::string nombre_tipo;
    std::string fichero;
    for (size_t i = 2; i < args.size(); ++i) {
        if (args[i] == "--tipo" && i + 1 < args.size())
            nombre_tipo = args[++i];
        else if (args[i] == "-o" && i + 1 < args.size() && orden == "plot")
            fichero = args[++i];
        else
            return uso("unexpected argument " + args[i]);
    }
    const std::optional<TipoVisor> tipo = tipo_de(nombre_tipo);
    if (!tipo)
        return uso(nombre_tipo.empty() ? "--tipo is needed: the block holds only the element size"
                                       : "unknown type " + nombre_tipo);
    if (orden == "show")
        return muestra(static_cast<uint32_t>(identificador), *tipo);
    if (fichero.empty())
        return uso("plot needs -o FILE.svg");
    return dibuja(static_cast<uint32_t>(identificador), *tipo, fichero);
}
