// SPDX-License-Identifier: Apache-2.0
// From registers of interpolated samples to the destination: rounded with the thread's mode, saturated, and
// stored to the sample.
#pragma once

#include "frame/images/view.h"
#include "frame/runs/runs.h"
#include "frame/simd/rounding.h"
#include "geometry/warp/interpolate.h"

namespace tpx {

template <class T>
inline const T* tapAt(const Tpx8u* row, Tpx64s place) {
    return reinterpret_cast<const T*>(reinterpret_cast<uintptr_t>(row) + uintptr_t(place));
}

// Eight integers of one channel, saturated, or the first `count` of them.
template <class T>
inline void storeLanes(Tpx8u* dst, Pair<V32s> lanes, int count) {
    const auto put = [&](auto samples) {
        if (count >= 8)
            __builtin_memcpy(dst, &samples, 8 * sizeof(T));
        else
            copyShort(dst, &samples, count * ptrdiff_t(sizeof(T)));
    };
    if constexpr (sizeof(T) == 1) {
        const V16s both = narrow<Tpx16s>(lanes);
        put(narrow<T>(Pair<V16s>{both, both}));
    } else {
        put(narrow<T>(lanes));
    }
}

// A register of results of one channel, or the first `count` of it.
template <class T>
inline void storeResults(Tpx8u* dst, RealVec<T> v, int count) {
    if constexpr (std::is_integral_v<T>)
        storeLanes<T>(dst, toLanesOf<T, Rounding::OfThread>(v), count);
    else if (count >= kLanes<T>)
        store(reinterpret_cast<T*>(dst), v);
    else
        copyShort(dst, &v, count * ptrdiff_t(sizeof(T)));
}

// Four pixels of N samples, a register each, side by side.
template <class T, int N>
inline void storePixels(T* dst, const Several<V32s, 4>& lanes) {
    static_assert(N == 3 || N == 4);
    const auto put = [&](auto at, V8u samples, int bytes) { // 12 or 16
        if (bytes == 16) {
            store(reinterpret_cast<Tpx8u*>(at), samples);
        } else {
            poke(reinterpret_cast<Tpx64s*>(at), firstPiece(samples));
            poke(reinterpret_cast<Tpx32s*>(at) + 2, bitsAs<V32s>(samples)[2]);
        }
    };
    if constexpr (sizeof(T) == 1) {
        const V8u all = narrowAll<Tpx8u>(lanes);
        put(dst, N == 4 ? all : shuffleBytes(all, V8u{0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14}), 4 * N);
    } else {
        for (int k = 0; k < 4; k += 2) {
            const V8u two = bitsAs<V8u>(narrow<T>(Pair<V32s>{lanes.at[k], lanes.at[k + 1]}));
            put(dst + k * N, N == 4 ? two : shuffleBytes(two, V8u{0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13}),
                4 * N);
        }
    }
}
template <class T, int N>
inline void storePixels(T* dst, const Several<Four<RealOf<T>>, 4>& pixels) {
    if constexpr (std::is_floating_point_v<T>) {
        for (int k = 0; k < 3; k++) storeFour(dst + k * N, pixels.at[k]); // what is too much is written over
        __builtin_memcpy(dst + 3 * N, &pixels.at[3], N * sizeof(T));
    } else {
        Several<V32s, 4> lanes;
        for (int k = 0; k < 4; k++) lanes.at[k] = toInteger(minOf(fourTimes(float(kMax<T>)), pixels.at[k]));
        storePixels<T, N>(dst, lanes);
    }
}

// Two pixels as loadTwoPixels has them, or what was made of such.
template <int N>
struct PixelPair {
    V32f both;

    PixelPair(V32f pixels) : both(pixels) {}
    Four<float> left() const { return lowHalf(both); }
    Four<float> right() const { return N == 3 ? upperThree(highHalf(both)) : highHalf(both); }
};

// Pixels of several channels, four at a time: pixel(i) gives that of site i, as reals or as integers.
template <class T, int N, class Pixel>
inline void interpolatePixels(Tpx8u* dst, int begin, int end, Pixel pixel) {
    for (int i = begin; i < end; i += 4) {
        const Several<decltype(pixel(i)), 4> four = {{pixel(i), pixel(i + 1), pixel(i + 2), pixel(i + 3)}};
        T* const at = reinterpret_cast<T*>(dst) + i * N;
        if (end - i >= 4) {
            storePixels<T, N>(at, four);
        } else {
            T samples[4 * N];
            storePixels<T, N>(samples, four);
            copyBlock(at, samples, (end - i) * ptrdiff_t(N * sizeof(T)));
        }
    }
}

} // namespace tpx
