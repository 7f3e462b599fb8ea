#include "desktop/machine/KeptHeap.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace etiquetas {

namespace {

#ifdef __GLIBC__
constexpr int kilobyte = 1024;

// The least block that is asked of the system by itself, and how much free memory is kept.
void setThresholds(int own_block, int kept) {
    mallopt(M_MMAP_THRESHOLD, own_block);
    mallopt(M_TRIM_THRESHOLD, kept);
}
#endif

} // namespace

KeptHeap::KeptHeap() {
#ifdef __GLIBC__
    constexpr int own_block = 32 * kilobyte * kilobyte; // the most that it takes
    setThresholds(own_block, 2 * own_block);
#endif
}

KeptHeap::~KeptHeap() {
#ifdef __GLIBC__
    constexpr int by_default = 128 * kilobyte;
    setThresholds(by_default, by_default);
    malloc_trim(0);
#endif
}

} // namespace etiquetas
