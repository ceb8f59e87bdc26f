// plot: a published polyline as an SVG picture, scaled into a fixed frame with the y axis up, with
// its bounding box labelled by its extreme coordinates and a caption with the vertex count.
#include "ordenes.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <limits>
#include <sstream>

namespace {

constexpr double ANCHO = 800;
constexpr double ALTO = 600;
constexpr double MARGEN = 60;

struct Caja {
    double xmin = std::numeric_limits<double>::infinity();
    double ymin = std::numeric_limits<double>::infinity();
    double xmax = -std::numeric_limits<double>::infinity();
    double ymax = -std::numeric_limits<double>::infinity();
    void incluye(double x, double y)
    {
        xmin = std::min(xmin, x);
        xmax = std::max(xmax, x);
        ymin = std::min(ymin, y);
        ymax = std::max(ymax, y);
    }
};

// The SVG text of a polyline of `n` points whose coordinates `punto(i, x, y)` gives.
template <typename Punto> std::string svg(size_t n, Punto punto, const std::string &titulo)
{
    Caja caja;
    for (size_t i = 0; i < n; ++i) {
        double x, y;
        punto(i, x, y);
        caja.incluye(x, y);
    }
    // A box of no width or height (one point, or points on a line) is drawn at a scale of 1.
    const double ancho = caja.xmax - caja.xmin;
    const double alto = caja.ymax - caja.ymin;
    const double escala_x = ancho > 0 ? (ANCHO - 2 * MARGEN) / ancho : 1;
    const double escala_y = alto > 0 ? (ALTO - 2 * MARGEN) / alto : 1;
    const double escala = std::min(escala_x, escala_y);
    const auto sx = [&](double x) { return MARGEN + (x - caja.xmin) * escala; };
    const auto sy = [&](double y) { return ALTO - MARGEN - (y - caja.ymin) * escala; };

    std::ostringstream s;
    s.precision(10);
    s << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << ANCHO << "\" height=\"" << ALTO
      << "\" viewBox=\"0 0 " << ANCHO << ' ' << ALTO << "\">\n"
      << "<title>" << titulo << "</title>\n"
      << "<rect x=\"" << sx(caja.xmin) << "\" y=\"" << sy(caja.ymax) << "\" width=\""
      << ancho * escala << "\" height=\"" << alto * escala
      << "\" fill=\"none\" stroke=\"#999\" stroke-dasharray=\"4 3\"/>\n"
      << "<text x=\"" << sx(caja.xmin) << "\" y=\"" << sy(caja.ymin) + 16
      << "\" font-size=\"12\">(" << caja.xmin << ", " << caja.ymin << ")</text>\n"
      << "<text x=\"" << sx(caja.xmax) << "\" y=\"" << sy(caja.ymax) - 6
      << "\" font-size=\"12\" text-anchor=\"end\">(" << caja.xmax << ", " << caja.ymax
      << ")</text>\n"
      << "<polyline fill=\"none\" stroke=\"#1f5fbf\" stroke-width=\"1.5\" points=\"";
    for (size_t i = 0; i < n; ++i) {
        double x, y;
        punto(i, x, y);
        s << (i > 0 ? " " : "") << sx(x) << ',' << sy(y);
    }
    s << "\"/>\n"
      << "<text x=\"" << MARGEN << "\" y=\"" << MARGEN / 2 << "\" font-size=\"14\">" << titulo
      << ": " << n << " vertices</text>\n"
      << "</svg>\n";
    return s.str();
}

} // namespace

int dibuja(uint32_t identificador, const TipoVisor &tipo, const std::string &fichero)
{
    if (tipo.tipo != elem_PUNTO2D_NO_USAR && tipo.tipo != elem_PUNTO3D_NO_USAR)
        return falla(Fallo::tipo, std::string("plot draws punto2d or punto3d blocks, not ") +
                                      tipo.nombre);
    const BloquePublicado bloque(identificador);
    Fallo fallo;
    if (abre_como(bloque, tipo, &fallo) == nullptr)
        return static_cast<int>(fallo);
    const auto punto = [&bloque](size_t i, double &x, double &y) {
        std::memcpy(&x, bloque.elemento(i), sizeof x);
        std::memcpy(&y, bloque.elemento(i) + sizeof x, sizeof y);
    };
    std::ofstream salida(fichero);
    salida << svg(bloque.num_elems(), punto, bloque.nombre());
    if (!salida.flush())
        return falla(Fallo::salida, "cannot write " + fichero);
    return 0;
}
