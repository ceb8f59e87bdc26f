// The wide (UTF-16) string family (module a_cadenau). Its growth is the shared one, which leaves
// the new elements NULL.
#include "families/a_cadena.h"

ARR_DEFINE_FAMILIA_CADENA(_u, WCHAR)
