/* The header after the Windows type names as <windef.h> declares them (its include guard and its
 * types, written out here: this build has no Windows headers): the short names are left to
 * Windows, and the prototypes use the prefixed types. */
#include <stddef.h>

#define _WINDEF_
typedef int BOOL;
typedef unsigned char BYTE;
typedef long LONG;
typedef unsigned long ULONG;
typedef short SHORT;
typedef unsigned short USHORT;
typedef unsigned char UCHAR;
typedef wchar_t WCHAR;

#include "arrays.h"

#include "uso_tras_windows.h"
