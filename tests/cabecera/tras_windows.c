/* The header after the real <windows.h>: the short names are Windows' own, and the prototypes
 * use the prefixed types. */
#include <windows.h>

#include "arrays.h"

#include "uso_tras_windows.h"
