// SPDX-License-Identifier: Apache-2.0
// Super-sampling by 2 along both axes, of one channel: two source rows are read as they lie, each once, and all
// of their samples count whole. The order of summation is that of super_rows.h.
#pragma once

#include "frame/simd/gather.h"
#include "frame/simd/shuffle.h"
#include "geometry/resize/super_rows.h"

namespace tpx {

inline bool halvesBoth(const TpxiResizeSpec& plan) {
    const auto halves = [](const TpxiResizeAxis& axis) { return axis.srcRatio == 2 * int64_t(axis.dstRatio); };
    return halves(plan.axisX) && halves(plan.axisY);
}

// Eight sums of two neighbours.
inline V32f sumsOfTwo(const Tpx32f* p) {
    const V32f a = joinHalves<V32f>(loadFour(p), loadFour(p + 8));
    const V32f b = joinHalves<V32f>(loadFour(p + 4), loadFour(p + 12));
    return evenLanes(a, b) + oddLanes(a, b);
}
template <class T>
inline V32f sumsOfTwo(const T* p) {
    using Lanes = std::conditional_t<std::is_signed_v<T>, V32s, V32u>;
    const auto sums = [](Vec<T> samples) {
        const Lanes x = bitsAs<Lanes>(samples);
        return V32s((x << 16 >> 16) + (x >> 16));
    };
    return toFloat(Pair<V32s>{sums(load(p)), sums(load(p + kLanes<T>))});
}

inline V32f sumsOfTwo(const Tpx8u* p) {
    const V16u x = bitsAs<V16u>(load(p));
    const auto sums = widen(V16u((x & 0xFF) + (x >> 8)));
    return toFloat(Pair<V32s>{V32s(sums.low), V32s(sums.high)});
}

template <class T>
void averageHalves(const Tile<T>& tile) {
    constexpr int64_t kBlock = 512, L = kLanes<Tpx32f>;
    const Tpx32f factor = superFactor(tile.plan);
    const ImageView<const T> src = tile.src.from(2 * tile.x, 2 * tile.y);
    alignas(32) Tpx32f sums[kBlock + kLanes<T>] = {};
    for (int64_t y = 0; y < tile.height; y++)
        for (int64_t x = 0; x < tile.width; x += kBlock) {
            const T *upper = src.row(2 * y) + 2 * x, *lower = src.row(2 * y + 1) + 2 * x;
            const int64_t count = minOf(tile.width - x, kBlock);
            const auto sum = [&](int64_t i) {
                store(sums + i, sumsOfTwo(upper + 2 * i) + sumsOfTwo(lower + 2 * i));
            };
            T ends[2][2 * L] = {};
            if (count < L) { // copied to where whole registers can be read
                copyBlock(ends[0], upper, 2 * count * int64_t(sizeof(T)));
                copyBlock(ends[1], lower, 2 * count * int64_t(sizeof(T)));
                upper = ends[0];
                lower = ends[1];
                sum(0);
            } else {
                for (int64_t i = 0; i + L <= count; i += L) sum(i);
                if (count % L) sum(count - L);
            }
            storeMeans(sums, factor, tile.dst.row(y) + x, count);
        }
}

} // namespace tpx
