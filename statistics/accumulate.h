// SPDX-License-Identifier: Apache-2.0
// Reductions: an accumulator takes the samples of an image, a few registers a step, and ends in a value for
// each channel.
//
// The registers of a step hold whole pixels, so each of their lanes belongs to one channel throughout. What
// they are added to, or compared with, is a class of lanes:
//   Sample, kRegisters   what a step takes from each source
//   kChannels            of a pixel
//   take(x...)           a step, from one source or two
//   kNeutral             what fills up the last step of a run: zeros, or samples that the run has anyway
//   kSteps               how many steps they have room for, before any lane can overflow
// Those of sums also have
//   Total, kPeriod       totals of a period of whole pixels
//   carry(totals)        adds the lanes to the totals, each to that of its sample, and clears them
// Lanes are made of other lanes: a norm is a term in front of a sum (lanes.h).
#pragma once

#include "frame/images/walk.h"
#include "frame/runs/runs.h"

namespace tpx {

enum class Neutral { zeros, repeats };

inline constexpr ptrdiff_t kEndless = PTRDIFF_MAX; // steps of lanes that cannot overflow

template <class T, int N>
using Registers = Several<Vec<T>, N>;

// ---- Steps of a run --------------------------------------------------------------------------------------

template <int N, class T>
inline Registers<T, N> loadStep(const T* src) {
    Registers<T, N> x;
    for (int k = 0; k < N; k++) x.at[k] = load(src + k * kLanes<T>);
    return x;
}

inline constexpr int kMostStepBytes = 128;

// A window over these bytes, no bits set and then all, cuts off what has been taken before.
struct CutMask {
    alignas(32) Tpx8u bytes[2 * kMostStepBytes];
    constexpr CutMask() : bytes{} {
        for (int i = kMostStepBytes; i < 2 * kMostStepBytes; i++) bytes[i] = 0xFF;
    }
};
inline constexpr CutMask kCutMask;

// The step of the last samples of a run, those from `taken` on.
template <int N, Neutral neutral, class T>
inline Registers<T, N> loadLastStep(const T* src, ptrdiff_t len, ptrdiff_t taken) {
    constexpr ptrdiff_t kStep = N * kLanes<T>;
    static_assert(kStep * sizeof(T) <= kMostStepBytes);
    if (len >= kStep) {
        const ptrdiff_t first = len - kStep;
        Registers<T, N> x = loadStep<N>(src + first);
        if constexpr (neutral == Neutral::zeros) {
            const Tpx8u* mask = kCutMask.bytes + kMostStepBytes - (taken - first) * ptrdiff_t(sizeof(T));
            for (int k = 0; k < N; k++) {
                VecBits<T> bits;
                __builtin_memcpy(&bits, mask + k * sizeof bits, sizeof bits);
                x.at[k] = Vec<T>(VecBits<T>(x.at[k]) & bits);
            }
        }
        return x;
    }
    T block[kStep] = {};
    copyBlock(block, src, len * ptrdiff_t(sizeof(T)));
    if constexpr (neutral == Neutral::repeats)
        for (ptrdiff_t i = len; i < kStep; i++) block[i] = block[i - len];
    return loadStep<N>(block);
}

// Takes the samples of a run from each source. `room` counts the steps that are left until full(lanes) has to
// make room for kSteps more.
template <class Lanes, class Full, class... Src>
inline void takeRun(Lanes& lanes, ptrdiff_t& room, Full full, ptrdiff_t len, const Src*... src) {
    constexpr int N = Lanes::kRegisters;
    constexpr ptrdiff_t kStep = N * kLanes<typename Lanes::Sample>;
    Lanes l = lanes; // in registers
    const auto spend = [&](ptrdiff_t steps) {
        room -= steps;
        if (room == 0) {
            full(l);
            room = Lanes::kSteps;
        }
    };
    ptrdiff_t i = 0;
    for (ptrdiff_t steps = len / kStep; steps > 0;) {
        const ptrdiff_t some = steps < room ? steps : room;
        for (const ptrdiff_t end = i + some * kStep; i < end; i += kStep) l.take(loadStep<N>(src + i)...);
        steps -= some;
        spend(some);
    }
    if (i < len) {
        l.take(loadLastStep<N, Lanes::kNeutral>(src, len, i)...);
        spend(1);
    }
    lanes = l;
}

// All samples of an image, or of two, into an accumulator.
template <class Accumulator, class... Src>
inline void accumulate(Accumulator& into, Extent samples, const ImageView<Src>&... images) {
    walkJoined(
        samples, [&](ptrdiff_t len, const Src*... rows) { into.run(len, rows...); }, images...);
}

// ---- Accumulators ----------------------------------------------------------------------------------------

template <class Lanes>
class SumAccumulator {
    Lanes lanes;
    typename Lanes::Total totals[Lanes::kPeriod] = {};
    ptrdiff_t room = Lanes::kSteps;

 public:
    template <class... Src>
    void run(ptrdiff_t len, const Src*... src) {
        takeRun(
            lanes, room, [&](Lanes& l) { l.carry(totals); }, len, src...);
    }

    // The sum of a channel. Totals of integers are exact, and rounded once: the sums of their upper and of
    // their lower halves are not rounded.
    Tpx64f value(int channel) {
        constexpr int C = Lanes::kChannels;
        lanes.carry(totals);
        room = Lanes::kSteps;
        if constexpr (std::is_same_v<typename Lanes::Total, Tpx64f>) {
            Tpx64f sum = 0;
            for (int i = channel; i < Lanes::kPeriod; i += C) sum += totals[i];
            return sum;
        } else {
            Tpx64s upper = 0, lower = 0;
            for (int i = channel; i < Lanes::kPeriod; i += C) {
                upper += totals[i] >> 32;
                lower += totals[i] & 0xFFFFFFFF;
            }
            return Tpx64f(upper) * 0x1p32 + Tpx64f(lower);
        }
    }
};

// For lanes that cannot overflow.
template <class Lanes>
class ExtremeAccumulator {
    ptrdiff_t room = kEndless;

 public:
    static_assert(Lanes::kSteps == kEndless);
    Lanes lanes;

    template <class... Src>
    void run(ptrdiff_t len, const Src*... src) {
        takeRun(
            lanes, room, [](Lanes&) {}, len, src...);
    }
};

} // namespace tpx
