// SPDX-License-Identifier: Apache-2.0
// Non-temporal stores: when they pay, and streams of them. They pay where a result is larger than the
// largest cache; one that fits would soon be wanted again. The decision is taken once a call.
#pragma once

#include <stddef.h>

#include "frame/simd/simd.h"
#include "tpxcore.h"

namespace tpx {

// ---- The decision ---------------------------------------------------------------------------------------

// What one thread can count on. The largest cache is shared, by dozens of cores on large processors, and past a
// few tens of megabytes a part of it is all that a call and the reader after it have. Measured as a call
// followed by a pass over its result, cached over streamed, with 32 MB shared by few cores: copies of 8, 12, 16
// and 32 MB 0.77, 0.94, 1.07 and 1.26 (traffic is twice that), bytes to floats of 4, 6 and 16 MB 0.93, 1.09
// and 1.25, fills of 16, 24 and 32 MB 0.78, 1.03 and 1.27; with 105 MB shared by dozens, copies of 4, 8 and 33
// MB 0.8, 1.0 and 1.3. So this bound loses at most a tenth, and wins what there is to win.
inline constexpr uint64_t kLargestShare = 24 << 20;

// When a family's results go past the caches. Traffic is bytes read and written.
struct StreamRule {
    // Up to this traffic the caches are not asked for, which keeps the query off the path of ordinary work.
    uint64_t floor;
    // The shortest rows, in bytes, that are worth streaming: each has a head and a tail that are not.
    ptrdiff_t shortestRow = 0;
    // Streams from exactly the caches' size on, not only above it.
    bool fromSize = false;
};

// Pointwise work, channels and borders read at least as much as they write.
inline constexpr StreamRule kStreamPointwise{4 << 20};
// Copies of bytes and of single 16-bit samples, the commonest images, mostly stay in use; those of wider pixels
// are large sooner.
inline constexpr StreamRule kStreamNarrowCopy{4 << 20, 1024}, kStreamWideCopy{256 << 10, 64};
// Conversions and unpacked bits write several times what they read.
inline constexpr StreamRule kStreamConversion{512 << 10};
// Planes of 32-bit sums are reduced to 16 bits; a row must have a whole line.
inline constexpr StreamRule kStreamReduction{512 << 10, 2 * 64, true};
// Fills read nothing; all their traffic is the result.
inline constexpr StreamRule kStreamFill{512 << 10, 0, true}, kStreamRunFill{2 << 20};
// Planes: samples of 32 bits fill lines soon; narrower ones are gathered from three or four rows at once.
inline constexpr StreamRule kStreamWidePlanes{512 << 10, 0, true}, kStreamToPlanes{6 << 20},
    kStreamFromPlanes{0};

// Decided once a call. An unknown size, or lines that the kernels are not made for, keep the result in the
// caches.
inline bool goesPastCaches(const StreamRule& rule, uint64_t traffic) {
    int cache = 0, line = 0;
    if (traffic <= rule.floor || tpxGetMaxCacheSizeB(&cache) != tpxOk || cache < 1) return false;
    const uint64_t share = uint64_t(cache) < kLargestShare ? uint64_t(cache) : kLargestShare;
    return traffic + rule.fromSize > share && tpx_get_cache_line_size(&line) == tpxOk && line == kLineBytes;
}
inline bool goesPastCaches(const StreamRule& rule, uint64_t traffic, ptrdiff_t rowBytes) {
    return rowBytes >= rule.shortestRow && goesPastCaches(rule, traffic);
}

// ---- Stores ---------------------------------------------------------------------------------------------

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

// Memory serves several streams faster than one: iterate(i, apart) works at the four places i, i + apart, ...
// so that most of a long run is covered, and the number of samples that have been is returned. A stream goes on
// for many pages, since the processor has to find out anew what one that begins will read. Lengths are in
// samples: `page` of one page, `longest` of one stream, both whole iterations.
template <class Iterate>
inline ptrdiff_t walkFourStreams(ptrdiff_t len, ptrdiff_t iteration, ptrdiff_t page, ptrdiff_t longest,
                                 Iterate iterate) {
    ptrdiff_t i = 0;
    while (len - i >= 4 * page) {
        const ptrdiff_t quarter = (len - i) / 4 / iteration * iteration;
        const ptrdiff_t apart = quarter < longest ? quarter : longest;
        for (ptrdiff_t j = 0; j < apart; j += iteration) iterate(i + j, apart);
        i += 4 * apart;
    }
    return i;
}

} // namespace tpx
