// Poisoning for AddressSanitizer: the memory services mark the memory they keep but have not
// handed out (free slab slots, free header slots), so that a read of it is reported as a read of
// freed memory would be. Where the compiler has no sanitizer interface the marks are nothing, as
// they are in any build without AddressSanitizer.
#pragma once

#if __has_include(<sanitizer/asan_interface.h>)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(direccion, bytes) ((void)(direccion), (void)(bytes))
#define ASAN_UNPOISON_MEMORY_REGION(direccion, bytes) ((void)(direccion), (void)(bytes))
#endif
