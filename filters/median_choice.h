// The region kernel that serves a mask best.
#pragma once

#include "filters/median_histogram.h"
#include "filters/median_tiles.h"

namespace tpx {

constexpr bool isOdd(TpxiSizeL mask) {
    return mask.width >= 1 && mask.height >= 1 && mask.width % 2 == 1 && mask.height % 2 == 1;
}

// Up to so many samples tiles are faster than histograms.
template <class T>
inline constexpr int64_t kMostTiled = sizeof(T) == 1 ? 80 : 1 << 16;
// Of those that tiles do not serve, up to so many bisection is the fastest.
template <class T>
inline constexpr int64_t kMostBisected = sizeof(T) == 1 ? 45 : 200;

template <Layout L, class T>
using MedianOfThree = std::conditional_t<std::is_integral_v<T>, SquareOfThree<L, T>, SquareMedian<L, 3, T>>;

// run(kernel) with the region kernel for a mask of odd sides.
template <Layout L, class T, class Run>
void withMedianOf(TpxiSizeL mask, Run run) {
    const auto is = [mask](int width, int height) { return mask.width == width && mask.height == height; };
    if (is(3, 3)) return run(MedianOfThree<L, T>());
    if (is(5, 5)) return run(SquareMedian<L, 5, T>());
    if (is(7, 7)) return run(SquareMedian<L, 7, T>());
    if (is(9, 9)) return run(SquareMedian<L, 9, T>());
    if (is(3, 1)) return run(ShapeMedian<L, RectangleShape<3, 1>, T>());
    if (is(1, 3)) return run(ShapeMedian<L, RectangleShape<1, 3>, T>());
    if (is(5, 1)) return run(ShapeMedian<L, RectangleShape<5, 1>, T>());
    if (is(1, 5)) return run(ShapeMedian<L, RectangleShape<1, 5>, T>());
    const int64_t samples = mask.width * mask.height;
    if (samples <= kMostTiled<T>) {
        if (TileMedian<T, 4>::serves(mask)) return run(TileMedian<T, 4>(mask, channelsOf(L), coloursOf(L)));
        if constexpr (std::is_same_v<T, Tpx32f>)
            if (TileMedian<T, 4, AsInteger>::serves(mask))
                return run(TileMedian<T, 4, AsInteger>(mask, channelsOf(L), coloursOf(L)));
        if (TileMedian<T, 2>::serves(mask)) return run(TileMedian<T, 2>(mask, channelsOf(L), coloursOf(L)));
    }
    if (samples > kMostBisected<T> && samples <= kMax<Tpx32s>) { // which histograms can count
        if constexpr (sizeof(T) == 1) {
            if (ColumnMedian<L>::serves(mask)) return run(ColumnMedian<L>(mask));
            if (WideColumnMedian<L>::serves(mask)) return run(WideColumnMedian<L>(mask));
        } else if constexpr (sizeof(T) == 2) {
            return run(SlidingMedian<L, T>(mask));
        }
    }
    run(BisectedMedian<L, T>(mask));
}

} // namespace tpx
