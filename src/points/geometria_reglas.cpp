// The angle and point-count rules of the arc and ellipse generators: the angle filter, the
// orientation of a circular sweep, the step between the vertices of an arc and the count of
// vertices from a maximum side length.
#include "points/geometria_interna.h"

#include "services/informes.h"
#include "services/matematicas.h"

#include <algorithm>
#include <cmath>

namespace geometria {

void filtra_angulos(double angulo_inicial, double angulo_final, SHORT sentido,
                    double *angulo_inicial_filtrado, double *angulo_final_filtrado)
{
    const bool con_inicial =
        ARR_EXIGE(angulo_inicial_filtrado != nullptr, "(angulo_inicial_filtrado) != NULL");
    const bool con_final =
        ARR_EXIGE(angulo_final_filtrado != nullptr, "(angulo_final_filtrado) != NULL");
    // Clockwise from the start to the end is counter-clockwise from the end to the start.
    const bool horario = sentido == 1;
    const double desde = horario ? angulo_final : angulo_inicial;
    const double hasta = horario ? angulo_inicial : angulo_final;
    if (con_inicial)
        *angulo_inicial_filtrado = desde;
    if (con_final)
        *angulo_final_filtrado = desde > hasta ? hasta + VUELTA : hasta;
}

Barrido orienta_barrido(double alfa1, double alfa2, SHORT sentido)
{
    ARR_EXIGE(alfa1 > -1e-6 && alfa1 < 2. * PI + 1e-6, "alfa1 > -1e-6 && alfa1 < 2. * PI + 1e-6");
    const bool horario = sentido != 0;
    if (!horario && alfa1 > alfa2)
        alfa2 += VUELTA;
    if (horario && alfa2 > alfa1)
        alfa1 += VUELTA;
    return {alfa1, alfa2, std::fabs(alfa1 - alfa2), horario};
}

Paso paso_del_arco(double arco, ULONG num_puntos, Cuenta cuenta)
{
    if (cuenta == Cuenta::circulo) {
        ARR_EXIGE(num_puntos >= 3, "num_puntos >= 3");
        const double paso_circulo = VUELTA / num_puntos;
        if (1.1 * paso_circulo > arco)
            return {paso_circulo, true};
        // A whole number of equal steps, none longer than the circle's.
        return {arco / std::ceil(arco / paso_circulo), false};
    }
    ARR_EXIGE(num_puntos >= 2, "num_puntos >= 2");
    // Fewer than two points (reported) cannot divide the arc either: only its ends are emitted.
    return {arco / (num_puntos - 1.0), num_puntos <= 2};
}

ULONG num_puntos_por_lado(double radio, double angulo_inicial, double angulo_final, SHORT sentido,
                          ULONG num_puntos, double longitud_maxima_lado)
{
    const bool con_lado = ARR_EXIGE(longitud_maxima_lado > 0., "longitud_maxima_lado > 0.");
    double desde = 0.0;
    double hasta = 0.0;
    filtra_angulos(angulo_inicial, angulo_final, sentido, &desde, &hasta);
    const double barrido = std::fabs(hasta - desde);
    // A side length that is not positive (reported) bounds nothing: the circle's count decides.
    const double por_lado = con_lado ? barrido * radio / longitud_maxima_lado + 1 : 0.0;
    const double por_circulo = std::max(barrido * num_puntos / VUELTA, 2.0);
    return CEIL(std::max(por_lado, por_circulo));
}

} // namespace geometria
