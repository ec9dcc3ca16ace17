#include "warp.h"

namespace tpx::model {

template <typename T>
void warpAffine(const AffineWarp& warp, const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep,
                int channels, TpxiSize size) {
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const WarpPlace at = warp.place(x, y);
            if (warp.leaves() && !warp.isMapped(at)) continue;
            for (int c = 0; c < channels; ++c)
                dst[y * dstStep + x * channels + c] = warpSample<T>(warp.sample(at, c, [&](int sx, int sy) {
                    return static_cast<double>(src[sy * srcStep + sx * channels + c]);
                }));
        }
}

#define WARP(T) template void warpAffine(const AffineWarp&, const T*, ptrdiff_t, T*, ptrdiff_t, int, TpxiSize);
WARP(Tpx8u) WARP(Tpx16u) WARP(Tpx32f) WARP(Tpx64f)

} // namespace tpx::model
