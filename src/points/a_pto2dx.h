// What the 2D-points-with-private-data family keeps to itself but its tests reach.
#pragma once

#include "arrays.h"

// The probe behind arr_TieneDatosExtrasAlgunPunto2DXPriv, in the shape of a search predicate:
// the key (x2, y2, item2) must be the empty point (0, 0, NULL); the element (x1, y1, item1)
// matches when it carries data.
BOOL sonda_tiene_datos(double x1, double y1, void *item1, double x2, double y2, void *item2);
