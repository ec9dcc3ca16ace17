// SPDX-License-Identifier: Apache-2.0
#include "warp.h"

namespace tpx::model {

template <typename T, typename Warp>
void warpImage(const Warp& warp, const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels,
               TpxiSize size) {
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const WarpPlace at = warp.place(x, y);
            if (!warp.reaches(x, y)) continue;
            if (warp.leaves() && !warp.isMapped(at)) continue;
            for (int c = 0; c < channels; ++c)
                dst[y * dstStep + x * channels + c] = warpSample<T>(warp.sample(at, c, [&](int sx, int sy) {
                    return static_cast<double>(src[sy * srcStep + sx * channels + c]);
                }));
        }
}

#define WARP(T, Warp) template void warpImage(const Warp&, const T*, ptrdiff_t, T*, ptrdiff_t, int, TpxiSize);
WARP(Tpx8u, AffineWarp)
WARP(Tpx16u, AffineWarp)
WARP(Tpx32f, AffineWarp)
WARP(Tpx64f, AffineWarp)
WARP(Tpx8u, PerspectiveWarp)
WARP(Tpx32f, PerspectiveWarp)

} // namespace tpx::model
