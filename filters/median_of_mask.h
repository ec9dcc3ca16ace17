// SPDX-License-Identifier: Apache-2.0
// Which region kernel serves a mask best; included by the files that compile the kernels of a type.
#pragma once

#include "filters/median_choice.h"
#include "filters/median_histogram.h"
#include "filters/median_tiles.h"

namespace tpx {

// Up to so many samples tiles are faster than histograms.
template <class T>
inline constexpr int64_t kMostTiled = sizeof(T) == 1 ? 80 : 1 << 16;
// Of those that tiles do not serve, up to so many bisection is the fastest.
template <class T>
inline constexpr int64_t kMostBisected = sizeof(T) == 1 ? 45 : 200;

template <Layout L, class T>
using MedianOfThree = std::conditional_t<std::is_integral_v<T>, SquareOfThree<L, T>, SquareMedian<L, 3, T>>;

template <Layout L, class T>
void withMedianOf(TpxiSizeL mask, CallRef<RegionKernel<T>> run) {
    const auto use = [&](const auto& kernel) { run(RegionKernel<T>(kernel)); };
    const auto is = [mask](int width, int height) { return mask.width == width && mask.height == height; };
    if (is(3, 3)) return use(MedianOfThree<L, T>());
    if (is(5, 5)) return use(SquareMedian<L, 5, T>());
    if (is(7, 7)) return use(SquareMedian<L, 7, T>());
    if (is(9, 9)) return use(SquareMedian<L, 9, T>());
    if (is(3, 1)) return use(ShapeMedian<L, RectangleShape<3, 1>, T>());
    if (is(1, 3)) return use(ShapeMedian<L, RectangleShape<1, 3>, T>());
    if (is(5, 1)) return use(ShapeMedian<L, RectangleShape<5, 1>, T>());
    if (is(1, 5)) return use(ShapeMedian<L, RectangleShape<1, 5>, T>());
    const int64_t samples = mask.width * mask.height;
    if (samples <= kMostTiled<T>) {
        if (TileMedian<T, 4>::serves(mask)) return use(TileMedian<T, 4>(mask, channelsOf(L), coloursOf(L)));
        if constexpr (std::is_same_v<T, Tpx32f>)
            if (TileMedian<T, 4, AsInteger>::serves(mask))
                return use(TileMedian<T, 4, AsInteger>(mask, channelsOf(L), coloursOf(L)));
        if (TileMedian<T, 2>::serves(mask)) return use(TileMedian<T, 2>(mask, channelsOf(L), coloursOf(L)));
    }
    if (samples > kMostBisected<T> && samples <= kMax<Tpx32s>) { // which histograms can count
        if constexpr (sizeof(T) == 1) {
            if (ColumnMedian<L>::serves(mask)) return use(ColumnMedian<L>(mask));
            if (WideColumnMedian<L>::serves(mask)) return use(WideColumnMedian<L>(mask));
        } else if constexpr (sizeof(T) == 2) {
            return use(SlidingMedian<L, T>(mask));
        }
    }
    use(BisectedMedian<L, T>(mask));
}

} // namespace tpx
