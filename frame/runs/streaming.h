// Non-temporal stores: when they pay, and the words for them. They pay where a result is larger than the
// largest cache; one that fits would soon be wanted again. The decision is taken once a call.
#pragma once

#include <stddef.h>

#include "frame/simd/simd.h"
#include "tpxcore.h"

namespace tpx {

// Whether `bytes` go beyond the largest cache. Up to and including the floor the caches are not asked for, to
// keep the query off the path of ordinary work; an unknown size, or lines that the kernels are not made for,
// keep the result in the caches.
inline bool exceedsCache(uint64_t bytes, uint64_t floor) {
    int cache = 0, line = 0;
    return bytes > floor && tpxGetMaxCacheSizeB(&cache) == tpxOk && cache >= 1 &&
           bytes > static_cast<uint64_t>(cache) && tpx_get_cache_line_size(&line) == tpxOk &&
           line == kLineBytes;
}

// The same for families that stream from exactly the cache's size on.
inline bool fillsCache(uint64_t bytes, uint64_t floor) {
    return bytes > floor && exceedsCache(bytes + 1, floor);
}

inline ptrdiff_t bytesToLine(const void* p) {
    return static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(p) & (kLineBytes - 1));
}

// Moves whole lines past the caches; both addresses lie on lines.
inline void streamLines(Tpx8u* dst, const Tpx8u* lines, ptrdiff_t bytes) {
    for (ptrdiff_t i = 0; i < bytes; i += ptrdiff_t(sizeof(V32f))) {
        V32f v;
        __builtin_memcpy(&v, lines + i, sizeof v);
        streamStore(reinterpret_cast<float*>(dst + i), v);
    }
}

// Memory serves several streams faster than one: turn(i, apart) works at the four places i, i + apart, ... so
// that most of a long run is covered, and the number of samples that have been is returned. A stream goes on
// for many pages, since the processor has to find out anew what one that begins will read. Lengths are in
// samples: `page` of one page, `longest` of one stream, both whole turns.
template <class Turn>
inline ptrdiff_t walkFourStreams(ptrdiff_t len, ptrdiff_t turnLength, ptrdiff_t page, ptrdiff_t longest,
                                 Turn turn) {
    ptrdiff_t i = 0;
    while (len - i >= 4 * page) {
        const ptrdiff_t quarter = (len - i) / 4 / turnLength * turnLength;
        const ptrdiff_t apart = quarter < longest ? quarter : longest;
        for (ptrdiff_t j = 0; j < apart; j += turnLength) turn(i + j, apart);
        i += 4 * apart;
    }
    return i;
}

} // namespace tpx
