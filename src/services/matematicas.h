// Numbers and plane geometry. Angles are radians, counter-clockwise from the positive x axis.
#pragma once

#include "arrays.h"

#include <cstddef>

// The count as a 32-bit unsigned number; a count that does not fit is reported and saturates
// to ARR_ULONG_MAX.
ULONG cambtipo_size_t_a_unsigned_long(size_t valor);
// The value rounded to `decimales` decimals, halves away from zero.
double prec_redondea_numero_decimales(double valor, BYTE decimales);
// Equal within an absolute tolerance of 1e-9.
BOOL SON_IGUALES(double a, double b);
// The smallest whole number not below `valor`, clamped to the range of ULONG.
ULONG CEIL(double valor);

double mt_distancia(double x1, double y1, double x2, double y2);
// Angle of the vector from (xc, yc) to (x, y), in [0, 2π).
double mt_angulo(double xc, double yc, double x, double y);
// Distance from (x, y) to the segment, and the nearest point of the segment.
double mt_distancia_a_segmento(double x, double y, double x1, double y1, double x2, double y2,
                               double *px, double *py);
// Distance from (x, y) to the line through the two points, and the foot of the perpendicular.
double mt_distancia_a_recta(double x, double y, double x1, double y1, double x2, double y2,
                            double *px, double *py);
// The vector (dx, dy) turned clockwise by the angle of that cosine and sine.
void mt_gira_xy_sentido_horario(double dx, double dy, double coseno, double seno, double *x,
                                double *y);
// (x, y) turned in place about (xc, yc), counter-clockwise by the angle of that cosine and sine.
void mt_gira_coords_respecto_a_un_punto(double *x, double *y, double xc, double yc, double coseno,
                                        double seno);
