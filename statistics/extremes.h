// The smallest and the largest samples of an image's channels.
#pragma once

#include "frame/simd/through_real.h"
#include "statistics/tally.h"

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

// The lanes of a tally that keeps the extremes of T for each of Op.
template <class T, int C, class... Op>
struct ExtremeLanes {
    using Sample = T;
    static constexpr int kRegisters = C == 3 ? 3 : 4;
    static constexpr Neutral kNeutral = Neutral::repeats;
    static constexpr ptrdiff_t kSteps = kEndless;

    template <class O>
    struct Best {
        Vec<T> at[kRegisters];
        Best() {
            for (auto& v : at) v = splat<Vec<T>>(O::template kStart<T>);
        }
        void take(const Registers<T, kRegisters>& x) {
            for (int k = 0; k < kRegisters; k++) at[k] = O::pick(x.at[k], at[k]);
        }
    };
    struct Bests : Best<Op>... {
    } bests;

    void take(const Registers<T, kRegisters>& x) { (bests.Best<Op>::take(x), ...); }

    template <class O>
    T of(int channel) const {
        T samples[kRegisters * kLanes<T>];
        __builtin_memcpy(samples, static_cast<const Best<O>&>(bests).at, sizeof samples);
        T best = samples[channel];
        for (int i = channel; i < kRegisters * kLanes<T>; i += C)
            if (O::better(samples[i], best)) best = samples[i];
        return best;
    }
};

// Takes an image of C channels into lanes that cannot overflow.
template <int C, class Lanes, class T>
inline void gather(Lanes& lanes, const T* src, ptrdiff_t step, TpxiSize size) {
    ptrdiff_t room = kEndless;
    const auto run = [&](ptrdiff_t len, const T* s) {
        takeRun(
            lanes, room, [](Lanes&) {}, len, s);
    };
    forRuns<C>(size, run, src, step);
}

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
            Mask here;
            __builtin_memcpy(&here, ofChannel + k * L, sizeof here);
            found |= here & (load(row + i + k * L) == wanted);
        }
        if (any(found)) break;
    }
    for (i += channel; i < len; i += C) {
        T sample;
        __builtin_memcpy(&sample, row + i, sizeof sample);
        if (sample == value) return i / C;
    }
    return -1;
}

} // namespace tpx
