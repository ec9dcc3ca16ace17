// SPDX-License-Identifier: Apache-2.0
#include "filters.h"

#include <algorithm>
#include <vector>

#include <limits>

namespace tpx::model {

template <typename S, typename D>
void correlate(const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, TpxiSize size, int channels,
               const int* weights, int side, float scale) {
    using Sum = std::conditional_t<std::is_floating_point_v<S>, S, int>;
    const int reach = side / 2;
    for (int y = 0; y < size.height; ++y)
        for (ptrdiff_t x = 0; x < ptrdiff_t(size.width) * channels; ++x) {
            Sum sum = 0;
            for (int r = 0; r < side; ++r)
                for (int c = 0; c < side; ++c)
                    sum += Sum(weights[r * side + c]) *
                           Sum(src[(y + r - reach) * srcStep + x + (c - reach) * channels]);
            if constexpr (std::is_floating_point_v<D>) {
                dst[y * dstStep + x] = D(sum * scale);
            } else {
                constexpr int low = std::numeric_limits<D>::min(), high = std::numeric_limits<D>::max();
                const int rounded = scale == 1 ? sum : int(std::nearbyint(float(sum) * scale));
                dst[y * dstStep + x] = D(rounded < low ? low : rounded > high ? high : rounded);
            }
        }
}

#define TPX_CORRELATE(S, D)                                                                              \
    template void correlate<Tpx##S, Tpx##D>(const Tpx##S*, ptrdiff_t, Tpx##D*, ptrdiff_t, TpxiSize, int, \
                                            const int*, int, float);
TPX_CORRELATE(8u, 8u)
TPX_CORRELATE(8u, 16s)
TPX_CORRELATE(16u, 16u)
TPX_CORRELATE(16s, 16s)
TPX_CORRELATE(32f, 32f)
#undef TPX_CORRELATE

template <typename T>
void median(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize size, int channels,
            TpxiSize mask) {
    std::vector<T> samples(size_t(mask.width) * size_t(mask.height));
    const auto middle = samples.begin() + ptrdiff_t(samples.size() / 2);
    for (int y = 0; y < size.height; y++)
        for (int i = 0; i < size.width * channels; i++) {
            auto sample = samples.begin();
            for (int r = 0; r < mask.height; r++)
                for (int q = 0; q < mask.width; q++)
                    *sample++ = src[(y + r - mask.height / 2) * srcStep + i + (q - mask.width / 2) * channels];
            std::nth_element(samples.begin(), middle, samples.end());
            dst[y * dstStep + i] = *middle;
        }
}
template void median(const Tpx8u*, ptrdiff_t, Tpx8u*, ptrdiff_t, TpxiSize, int, TpxiSize);
template void median(const Tpx16u*, ptrdiff_t, Tpx16u*, ptrdiff_t, TpxiSize, int, TpxiSize);
template void median(const Tpx32f*, ptrdiff_t, Tpx32f*, ptrdiff_t, TpxiSize, int, TpxiSize);

} // namespace tpx::model
