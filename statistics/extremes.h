// SPDX-License-Identifier: Apache-2.0
// The smallest and the largest samples of an image's channels.
#pragma once

#include "frame/simd/channels.h"
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

// Every lane folded with those C, 2 C, ... places behind it: lane c, below C, is that of all that are
// congruent.
template <int C, class Side, int Places, class T>
inline Vec<T> foldLanes(Vec<T> v) {
    if constexpr (Places < C)
        return v;
    else if constexpr (!std::is_same_v<T, Tpx32f>)
        return foldLanes<C, Side, Places / 2, T>(Side::pick(lanesBehind<Places>(v, v), v));
    else if constexpr (Places == 4)
        return foldLanes<C, Side, 2, T>(Side::pick(highHalves(v, v), lowHalves(v, v)));
    else if constexpr (Places == 2)
        return foldLanes<C, Side, 1, T>(Side::pick(lastPairs(v, v), firstPairs(v, v)));
    else
        return Side::pick(oddLanes(v, v), evenLanes(v, v));
}

// Registers of a step. Integers of three channels have twice as many as they need: three loads take as long as
// four.
template <class T, int C>
inline constexpr int kExtremeRegisters = C != 3                      ? 4
                                         : std::is_same_v<T, Tpx32f> ? 3
                                                                     : 6;

// The extremes of each channel of T.
template <class T, int C, class Side, int N = kExtremeRegisters<T, C>>
struct ExtremeLanes {
    using Sample = T;
    using Register = Vec<T>;
    static constexpr int kChannels = C;
    static constexpr int kRegisters = N;
    static constexpr bool kTwice = true, kShort = true;
    static constexpr T kFiller = Side::template kStart<T>;
    static constexpr ptrdiff_t kSteps = kEndless;

    RegisterArray<Vec<T>, kRegisters> best;

    ExtremeLanes() {
        for (auto& v : best.at) v = splat<Vec<T>>(Side::template kStart<T>);
    }
    void take(const Registers<T, kRegisters>& x) {
        for (int k = 0; k < kRegisters; k++) best[k] = Side::pick(x.at[k], best[k]);
    }

    auto values() const {
        Values<C, T> extremes;
        if constexpr (C == 3 && std::is_same_v<T, Tpx32f>) {
            for (int c = 0; c < C; c++) extremes.of[c] = firstOf(c);
        } else if constexpr (C == 3) {
            Several<V8u, C> pixels;
            for (int k = 0; k < C; k++) pixels.at[k] = bitsAs<V8u>(Side::pick(best[N - C + k], best[k]));
            const Several<V8u, C> planes = deinterleave<int(sizeof(T))>(pixels);
            for (int c = 0; c < C; c++)
                extremes.of[c] = foldLanes<1, Side, kLanes<T> / 2, T>(bitsAs<Vec<T>>(planes.at[c]))[0];
        } else {
            Vec<T> all = best[0];
            for (int k = 1; k < kRegisters; k++) all = Side::pick(best[k], all);
            all = foldLanes<C, Side, kLanes<T> / 2, T>(all);
            for (int c = 0; c < C; c++) {
                extremes.of[c] = all[c];
                if (std::is_same_v<T, Tpx32f> && all[c] == 0) extremes.of[c] = firstOf(c);
            }
        }
        return extremes;
    }

 private:
    // Of zeros with both signs, that in the first lane.
    T firstOf(int channel) const {
        T samples[kRegisters * kLanes<T>];
        __builtin_memcpy(samples, &best, sizeof samples);
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
    using LeastLanes = ExtremeLanes<T, C, Least, C == 3 ? 3 : 4>;
    using MostLanes = ExtremeLanes<T, C, Most, LeastLanes::kRegisters>;
    static constexpr int kRegisters = LeastLanes::kRegisters;
    static constexpr ptrdiff_t kSteps = LeastLanes::kSteps;
    static constexpr bool kShort = true;

    LeastLanes least;
    MostLanes most;

    // Loaded once: g++ would load for either side, and loads are what limits this.
    void take(const Registers<T, kRegisters>& x) {
        Registers<T, kRegisters> own;
        for (int k = 0; k < kRegisters; k++) own.at[k] = inRegister(x.at[k]);
        least.take(own);
        most.take(own);
    }
    struct Both {
        Values<C, T> least, most;
    };
    Both values() const { return {least.values(), most.values()}; }
    void takeLast(ptrdiff_t len, ptrdiff_t taken, const T* src) {
        least.take(loadLastStep<LeastLanes>(src, len, taken));
        most.take(loadLastStep<MostLanes>(src, len, taken));
    }
};

// ---- Places ------------------------------------------------------------------------------------------------

// Of registers of pixels, the lanes of a channel: a window that begins so many lanes before the end of a pixel.
template <class T, int C>
struct ChannelMask {
    using Mask = decltype(Vec<T>{} == Vec<T>{});
    static constexpr int kRegisters = C == 3 ? 3 : 1; // until channels come again
    alignas(32) LaneOf<Mask> lanes[kRegisters * kLanes<T> + C];
    constexpr ChannelMask() : lanes{} {
        for (int i = C; i < kRegisters * kLanes<T> + C; i += C) lanes[i] = -1;
    }
};
template <class T, int C>
inline constexpr ChannelMask<T, C> kChannelMask;

// The first lane of a mask that has one.
template <class T, class Mask>
inline int firstLane(Mask mask) {
    if constexpr (sizeof mask == 32)
        return __builtin_ctz(laneBits(mask));
    else
        return __builtin_ctz(laneBits(bitsAs<V8s>(mask))) / int(sizeof(T));
}

// The first sample of a channel that equals `value`, in a run of whole pixels, or -1.
template <int C, class T>
inline ptrdiff_t findInRun(const T* run, ptrdiff_t len, int channel, T value) {
    using Masks = ChannelMask<T, C>;
    constexpr ptrdiff_t L = kLanes<T>;
    constexpr int kMasks = Masks::kRegisters, kGroup = kMasks == 1 ? 4 : kMasks;
    typename Masks::Mask ofChannel[kMasks];
    for (int k = 0; k < kMasks; k++)
        ofChannel[k] = registerAt<typename Masks::Mask>(kChannelMask<T, C>.lanes + C - channel + k * L);
    const Vec<T> wanted = splat<Vec<T>>(value);
    const auto matches = [&](const T* group, int k) {
        return ofChannel[k % kMasks] & (load(group + k * L) == wanted);
    };
    const auto isIn = [&](const T* group) {
        typename Masks::Mask found{};
        for (int k = 0; k < kGroup; k++) found |= matches(group, k);
        return any(found);
    };

    if (len < kGroup * L) {
        for (ptrdiff_t i = channel; i < len; i += C)
            if (peek(run + i) == value) return i;
        return -1;
    }
    // The last group overlaps the one before.
    for (ptrdiff_t i = 0; i < len; i += kGroup * L) {
        const ptrdiff_t at = i + kGroup * L <= len ? i : len - kGroup * L;
        if (!isIn(run + at)) continue;
        for (int k = 0; k < kGroup; k++)
            if (const auto mask = matches(run + at, k); any(mask)) return at + k * L + firstLane<T>(mask);
    }
    return -1;
}

} // namespace tpx
