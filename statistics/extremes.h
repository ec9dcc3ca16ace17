// SPDX-License-Identifier: Apache-2.0
// The smallest and the largest samples of an image's channels.
#pragma once

#include "statistics/accumulate.h"

namespace tpx {

// The ends of a type's order; of floats, the infinities.
template <class T>
inline constexpr T kLowest = kMin<T>;
template <class T>
inline constexpr T kHighest = kMax<T>;
template <>
inline constexpr Tpx32f kLowest<Tpx32f> = -__builtin_huge_valf();
template <>
inline constexpr Tpx32f kHighest<Tpx32f> = __builtin_huge_valf();

// pick(x, best) is `best` where x is NaN: such a sample is passed over.
struct Least {
    template <class T>
    static constexpr T kStart = kHighest<T>; // none is worse
    template <class T>
    static constexpr T kBound = kLowest<T>; // none is better

    template <class V>
    static V pick(V x, V best) {
        return minOf(x, best);
    }
    template <class T>
    static bool better(T x, T best) {
        return x < best;
    }
};
struct Most {
    template <class T>
    static constexpr T kStart = kLowest<T>;
    template <class T>
    static constexpr T kBound = kHighest<T>;

    template <class V>
    static V pick(V x, V best) {
        return maxOf(x, best);
    }
    template <class T>
    static bool better(T x, T best) {
        return x > best;
    }
};

// The extremes of each channel of T.
template <class T, int C, class Side>
struct ExtremeLanes {
    using Sample = T;
    using Register = Vec<T>;
    static constexpr int kRegisters = C == 3 ? 3 : 4, kChannels = C;
    static constexpr Neutral kNeutral = Neutral::repeats;
    static constexpr ptrdiff_t kSteps = kEndless;

    Vec<T> best[kRegisters];

    ExtremeLanes() {
        for (auto& v : best) v = splat<Vec<T>>(Side::template kStart<T>);
    }
    void take(const Registers<T, kRegisters>& x) {
        for (int k = 0; k < kRegisters; k++) best[k] = Side::pick(x.at[k], best[k]);
    }
    T of(int channel) const {
        T samples[kRegisters * kLanes<T>];
        __builtin_memcpy(samples, best, sizeof samples);
        T extreme = samples[channel];
        for (int i = channel; i < kRegisters * kLanes<T>; i += C)
            if (Side::better(samples[i], extreme)) extreme = samples[i];
        return extreme;
    }
};

// Both from one pass.
template <class T, int C>
struct LeastAndMostLanes {
    using Sample = T;
    using Register = Vec<T>;
    using LeastLanes = ExtremeLanes<T, C, Least>;
    static constexpr int kRegisters = LeastLanes::kRegisters;
    static constexpr Neutral kNeutral = LeastLanes::kNeutral;
    static constexpr ptrdiff_t kSteps = LeastLanes::kSteps;

    LeastLanes least;
    ExtremeLanes<T, C, Most> most;

    // Loaded once: g++ would load for either side, and loads are what limits this.
    void take(const Registers<T, kRegisters>& x) {
        Registers<T, kRegisters> own;
        for (int k = 0; k < kRegisters; k++) own.at[k] = inRegister(x.at[k]);
        least.take(own);
        most.take(own);
    }
};

// ---- Places ------------------------------------------------------------------------------------------------

// The pixel of a row whose channel is the first to equal `value`, or -1.
template <int C, class T>
inline ptrdiff_t findInRow(const T* row, ptrdiff_t pixels, int channel, T value) {
    constexpr ptrdiff_t L = kLanes<T>, N = C == 3 ? 3 : 1;
    using Mask = decltype(Vec<T>{} == Vec<T>{});
    LaneOf<Mask> ofChannel[N * L];
    for (int i = 0; i < N * L; i++) ofChannel[i] = i % C == channel ? -1 : 0;

    const Vec<T> wanted = splat<Vec<T>>(value);
    const ptrdiff_t len = pixels * C;
    ptrdiff_t i = 0;
    for (; i + N * L <= len; i += N * L) {
        Mask found{};
        for (ptrdiff_t k = 0; k < N; k++) {
            const Mask here = registerAt<Mask>(ofChannel + k * L);
            found |= here & (load(row + i + k * L) == wanted);
        }
        if (any(found)) break;
    }
    for (i += channel; i < len; i += C)
        if (peek(row + i) == value) return i / C;
    return -1;
}

} // namespace tpx
