// SPDX-License-Identifier: Apache-2.0
// The memory functions that compilers call on their own. The library has no C library to take them from; a
// build that is linked with one (sanitizers, tests) leaves them out.
#include "frame/runs/memory_runs.h"

#ifndef TPX_HOSTED

// Defined under another name, since the compiler has its own declaration of each and would not hide it.
#define TPX_BUILTIN(result, name, ...)                                                                    \
    extern "C" __attribute__((visibility("hidden"), used)) result tpx_##name(__VA_ARGS__) __asm__(#name); \
    result tpx_##name(__VA_ARGS__)

TPX_BUILTIN(void*, memcpy, void* dst, const void* src, size_t bytes) {
    tpx::copyRow(dst, src, static_cast<int64_t>(bytes));
    return dst;
}

TPX_BUILTIN(void*, memmove, void* dst, const void* src, size_t bytes) {
    const auto copy = dst <= src ? tpx::copyRow : tpx::copyRowBackward;
    copy(dst, src, static_cast<int64_t>(bytes));
    return dst;
}

TPX_BUILTIN(void*, memset, void* dst, int value, size_t bytes) {
    tpx::fillRow(dst, static_cast<int64_t>(bytes), tpx::makePattern(&value, 1));
    return dst;
}

TPX_BUILTIN(int, memcmp, const void* a, const void* b, size_t bytes) {
    const auto x = static_cast<const Tpx8u*>(a), y = static_cast<const Tpx8u*>(b);
    for (size_t i = 0; i < bytes; i++)
        if (x[i] != y[i]) return x[i] - y[i];
    return 0;
}

#endif
