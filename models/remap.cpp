// SPDX-License-Identifier: Apache-2.0
#include "remap.h"

namespace tpx::model {

template <typename T, typename Map>
void remap(const Remap& how, const T* src, ptrdiff_t srcStep, const Map* xMap, const Map* yMap,
           ptrdiff_t mapStep, T* dst, ptrdiff_t dstStep, int channels, TpxiSize size) {
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < channels; ++c) {
                T& to = dst[y * dstStep + x * channels + c];
                const ptrdiff_t at = y * mapStep + x;
                to = how(xMap[at], yMap[at], to,
                         [&](int sx, int sy) { return src[sy * srcStep + sx * channels + c]; });
            }
}

#define REMAP(T, Map)                                                                                        \
    template void remap(const Remap&, const T*, ptrdiff_t, const Map*, const Map*, ptrdiff_t, T*, ptrdiff_t, \
                        int, TpxiSize);
REMAP(Tpx8u, Tpx32f) REMAP(Tpx16u, Tpx32f) REMAP(Tpx32f, Tpx32f) REMAP(Tpx64f, Tpx64f)

} // namespace tpx::model
