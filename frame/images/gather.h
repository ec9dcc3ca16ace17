// SPDX-License-Identifier: Apache-2.0
// Pixels at positions: which of them an interpolation reads, and the loads that fetch them for a register of
// positions. Resizes, warps, remaps and tables of segments share it.
//
// No load touches a sample but those that are asked for, so an image may end with the last pixel that is read.
#pragma once

#include <utility>

#include "frame/simd/simd.h"

namespace tpx {

// ---- Footprints ------------------------------------------------------------------------------------------

// What lies at a position is made, along either axis, from `size` pixels, the first of which is the one below
// the position moved by `offset`.
struct Footprint {
    int size, offset;

    // From the pixel below the position to the last one.
    constexpr int last() const { return offset + size - 1; }
    // Whether all pixels are among `n`; `below` is the pixel below the position.
    constexpr bool isWithin(int64_t below, int64_t n) const { return below >= -offset && below < n - last(); }
};

// Of a kernel that reaches so many pixels to either side; without lobes it is the pixel itself.
constexpr Footprint footprintOf(int lobes) {
    return lobes > 0 ? Footprint{2 * lobes, 1 - lobes} : Footprint{1, 0};
}
inline constexpr Footprint kOnePixel = footprintOf(0), kTwoTaps = footprintOf(1), kFourTaps = footprintOf(2),
                           kSixTaps = footprintOf(3);

// ---- One channel: neighbours at a register of positions --------------------------------------------------

// Samples are fetched as floating point: doubles as they are, others in single precision.
template <class T>
using RealOf = std::conditional_t<sizeof(T) == 8, Tpx64f, Tpx32f>;
template <class T>
using RealVec = Vec<RealOf<T>>;

// Where a register's lanes find their first samples: at(k) is the address for lane k. This one has positions in
// a row; others add a row to each, or look up segments of a table.
template <class T>
struct InRow {
    const T* row;
    const Tpx32s* index;
    const T* operator()(int k) const { return row + index[k]; }
};

template <class At>
using SampleAt = std::remove_cvref_t<decltype(*std::declval<At>()(0))>;

// The first samples of all lanes, and the second ones.
template <class At, class T = SampleAt<At>>
inline Pair<RealVec<T>> loadPairs(At at) {
    if constexpr (sizeof(T) == 8) {
        return loadPairsAt(at(0), at(1), at(2), at(3));
    } else {
        using Piece = std::conditional_t<sizeof(T) == 1, Tpx16s, Tpx32s>;
        const auto pair = [&](int k) { return peek(reinterpret_cast<const Piece*>(at(k))); };
        if constexpr (sizeof(T) == 4) {
            const auto four = [&](int k) {
                return joinHalves<V32f>(loadEights(at(k), at(k + 1)), loadEights(at(k + 4), at(k + 5)));
            };
            const V32f a = four(0), b = four(2);
            return {evenLanes(a, b), oddLanes(a, b)};
        } else if constexpr (sizeof(T) == 2) {
            return splitPairs<T>(fromPieces(pair(0), pair(1), pair(2), pair(3)),
                                 fromPieces(pair(4), pair(5), pair(6), pair(7)));
        } else {
            return splitPairs<T>(
                fromPieces(pair(0), pair(1), pair(2), pair(3), pair(4), pair(5), pair(6), pair(7)));
        }
    }
}

// Four neighbours at either of two addresses, as floats.
template <class T>
inline V32f loadFoursAt(const T* low, const T* high) {
    if constexpr (std::is_same_v<T, Tpx32f>)
        return loadFours(low, high);
    else
        return toFloat({loadAs<Tpx32s>(low), loadAs<Tpx32s>(high)});
}

// Likewise for four neighbours: the first samples of all lanes, the second ones, and so on.
template <class At, class T = SampleAt<At>>
inline Several<RealVec<T>, 4> loadQuads(At at) {
    if constexpr (sizeof(T) == 8) {
        return transpose(Several<V64f, 4>{{load(at(0)), load(at(1)), load(at(2)), load(at(3))}});
    } else {
        const auto two = [&](int k) { return loadFoursAt(at(k), at(k + 4)); };
        return transpose(Several<V32f, 4>{{two(0), two(1), two(2), two(3)}});
    }
}

// ---- Several channels: neighbouring pixels at one position -----------------------------------------------

// `Count` pixels of N samples, a register each. Of pixels of three samples, the fourth lane is some sample.
template <int N, int Count, class T>
inline Several<Four<RealOf<T>>, Count> loadPixels(const T* p) {
    static_assert(N == 3 || N == 4);
    Several<Four<RealOf<T>>, Count> pixels;
    for (int k = 0; k < Count - 1; k++) pixels.at[k] = loadFour(p + k * N);
    const T* const last = p + (Count - 1) * N;
    if constexpr (N == 4)
        pixels.at[Count - 1] = loadFour(last);
    else // ends with the pixel
        pixels.at[Count - 1] = upperThree(loadFour(last - 1));
    return pixels;
}

// Two neighbouring pixels as floats, one in either half. Of three samples, the first one's fourth lane is some
// sample, and so is the second one's first; upperThree brings its samples to the front.
template <int N, class T>
inline V32f loadTwoPixels(const T* p) {
    static_assert(N == 3 || N == 4);
    return loadFoursAt(p, p + (N == 4 ? 4 : 2));
}

// ---- Bytes, as pairs of neighbours for products of bytes -------------------------------------------------

// How many positions fill a register of pairs.
template <int N>
inline constexpr int kBytePairPixels = N == 1 ? 8 : 2;

// The samples of the pixels at kBytePairPixels positions and of their right-hand neighbours in turn. Pixels of
// three samples leave the last four bytes 0.
template <int N>
inline V8u loadBytePairs(const Tpx8u* row, const Tpx32s* index) {
    const auto at = [&](int k) { return row + int64_t(index[k]) * N; };
    if constexpr (N == 1) {
        const auto pair = [&](int k) { return peek(reinterpret_cast<const Tpx16s*>(at(k))); };
        return fromPieces(pair(0), pair(1), pair(2), pair(3), pair(4), pair(5), pair(6), pair(7));
    } else if constexpr (N == 3) {
        const auto four = [&](int k, int from) { return peek(reinterpret_cast<const Tpx32s*>(at(k) + from)); };
        return shuffleBytes(fromPieces(four(0, 0), four(0, 2), four(1, 0), four(1, 2)),
                            V8u{0, 3, 1, 6, 2, 7, 8, 11, 9, 14, 10, 15, 255, 255, 255, 255});
    } else {
        return shuffleBytes(loadEights(at(0), at(1)),
                            V8u{0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15});
    }
}

} // namespace tpx
