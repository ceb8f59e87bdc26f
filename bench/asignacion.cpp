// The C library's allocator in one fixed state for the whole run. glibc raises its trim and mmap
// thresholds the first time a large mapped block is freed, and from then on keeps freed memory
// instead of returning it: which benchmark ran first would decide which ones pay a page fault
// per 4 KiB. Fixing both thresholds at the values a long-running program reaches (32 MiB, and
// twice that for trimming) before any benchmark runs gives every container the same allocator.
#include <malloc.h>

namespace {

constexpr int UMBRAL_MMAP = 32 * 1024 * 1024;

const bool fijado = [] {
    mallopt(M_MMAP_THRESHOLD, UMBRAL_MMAP);
    mallopt(M_TRIM_THRESHOLD, 2 * UMBRAL_MMAP);
    return true;
}();

} // namespace
