// The library's version at run time: the header's, as it was when the library was built.
#include "arrays.h"

extern "C" ARRAYS_API unsigned arr_version(void) noexcept { return ARRAYS_VERSION_NUMBER; }
