// SPDX-License-Identifier: Apache-2.0
// The cache queries. A hypervisor traps cpuid, which costs tens of microseconds, and large fills ask at each
// call: so the answer is kept.
#include <cpuid.h>
#include <errno.h>
#include <limits.h>

#include "caches.h"
#include "tpxcore.h"

namespace {

using tpxcore::Caches;
using tpxcore::CpuidRegisters;

constexpr int kNotAsked = 0;
constexpr int kUnknown = -1;

// Threads that ask first at the same time find the same values, so plain atomic words need no lock.
int largestCache = kNotAsked;
int cacheLine = kNotAsked;

Caches askProcessor() {
    return tpxcore::cachesOfProcessor([](uint32_t leaf, uint32_t subleaf) {
        CpuidRegisters r;
        __cpuid_count(leaf, subleaf, r.eax, r.ebx, r.ecx, r.edx);
        return r;
    });
}

Caches askSystem() {
    const int callersErrno = errno;
    Caches caches;
#ifdef _SC_LEVEL1_DCACHE_SIZE
    caches.add(sysconf(_SC_LEVEL1_DCACHE_SIZE), sysconf(_SC_LEVEL1_DCACHE_LINESIZE));
    caches.add(sysconf(_SC_LEVEL2_CACHE_SIZE), sysconf(_SC_LEVEL2_CACHE_LINESIZE));
    caches.add(sysconf(_SC_LEVEL3_CACHE_SIZE), sysconf(_SC_LEVEL3_CACHE_LINESIZE));
#endif
    if (caches.largest <= 0 || caches.line <= 0)
        caches = tpxcore::cachesOfSystem("/sys/devices/system/cpu/cpu0/cache");
    errno = callersErrno;
    return caches;
}

int toAnswer(int64_t size) {
    if (size <= 0) return kUnknown;
    return size > INT_MAX ? INT_MAX & ~4095 : static_cast<int>(size);
}

void ask() {
    Caches caches = askProcessor();
    if (caches.largest <= 0 || caches.line <= 0) {
        const Caches told = askSystem();
        if (caches.largest <= 0) caches.largest = told.largest;
        if (caches.line <= 0) caches.line = told.line;
    }
    __atomic_store_n(&largestCache, toAnswer(caches.largest), __ATOMIC_RELAXED);
    __atomic_store_n(&cacheLine, toAnswer(caches.line), __ATOMIC_RELAXED);
}

TpxStatus answer(const int& kept, int* pSizeByte) {
    if (!pSizeByte) return tpxErrNullPointer;
    if (__atomic_load_n(&kept, __ATOMIC_RELAXED) == kNotAsked) ask();
    const int size = __atomic_load_n(&kept, __ATOMIC_RELAXED);
    if (size == kUnknown) return tpxErrUnsupportedMode;
    *pSizeByte = size;
    return tpxOk;
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] TpxStatus tpxGetMaxCacheSizeB(int* pSizeByte) {
    return answer(largestCache, pSizeByte);
}

[[gnu::visibility("default")]] TpxStatus tpx_get_cache_line_size(int* pSizeByte) {
    return answer(cacheLine, pSizeByte);
}
}
