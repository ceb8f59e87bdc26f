// Whole-array comparison of point arrays with a tolerance per coordinate (a box around each
// point, not a distance), shared by the 2D and 3D families.
#include "points/familia_punto.h"

#include <cmath>

BOOL coordenadas_dentro_de_tolerancia(const ARRAY *array1, const ARRAY *array2, double tolerancia,
                                      size_t coordenadas)
{
    if (array1->num_elems != array2->num_elems)
        return FALSO;
    BOOL iguales = CIERTO;
    arrayprv_visita_pares(array1, array2, [&](const char *a, const char *b) {
        const double *p = reinterpret_cast<const double *>(a);
        const double *q = reinterpret_cast<const double *>(b);
        for (size_t i = 0; i < coordenadas; ++i)
            if (std::fabs(p[i] - q[i]) > tolerancia)
                iguales = FALSO;
        return iguales == CIERTO;
    });
    return iguales;
}
