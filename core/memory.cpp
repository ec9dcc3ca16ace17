// SPDX-License-Identifier: Apache-2.0
// Memory on 64-byte boundaries.
#include <errno.h>
#include <stdlib.h>

#include "tpxcore.h"

namespace {

constexpr size_t kAlignment = 64;

} // namespace

extern "C" {

[[gnu::visibility("default")]] void* tpxMalloc_L(TpxSizeL length) {
    if (length < 1) return nullptr;
    // A null return is the whole report of a failure: the caller's errno is none of it. Compilers hold that
    // posix_memalign leaves errno alone, which it does not, and would drop a plain store.
    volatile int& error = errno;
    const int callersError = error;
    void* p = nullptr;
    if (posix_memalign(&p, kAlignment, static_cast<size_t>(length)) != 0) p = nullptr;
    error = callersError;
    return p;
}

[[gnu::visibility("default")]] void* tpxMalloc(int length) { return tpxMalloc_L(length); }

[[gnu::visibility("default")]] void tpxFree(void* p) { free(p); }
}
