// SPDX-License-Identifier: Apache-2.0
// Nearest: whole pixels are moved, so only their size matters.
#include "geometry/warp/results.h"

namespace tpx {

template <int PixelBytes>
void interpolateNearest(const Taps<Tpx32f>& taps, Tpx8u* dst, int count) {
    struct Pixel {
        Tpx8u bytes[PixelBytes];
    };
    // Kept apart, since the compiler cannot tell them from the destination.
    const Tpx8u* const first = taps.first;
    const Tpx64s* const place = taps.sites.place;
#pragma GCC unroll 4
    for (int i = 0; i < count; i++)
        poke(reinterpret_cast<Pixel*>(dst + i * PixelBytes), peek(tapAt<Pixel>(first, place[i])));
}

#define TPX_NEAREST(PixelBytes) template void interpolateNearest<PixelBytes>(const Taps<Tpx32f>&, Tpx8u*, int);
TPX_NEAREST(1)
TPX_NEAREST(2)
TPX_NEAREST(3)
TPX_NEAREST(4)
TPX_NEAREST(6)
TPX_NEAREST(8)
TPX_NEAREST(12)
TPX_NEAREST(16)
TPX_NEAREST(24)
TPX_NEAREST(32)
#undef TPX_NEAREST

} // namespace tpx
