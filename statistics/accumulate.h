// SPDX-License-Identifier: Apache-2.0
// Reductions: an accumulator takes the samples of an image, a few registers a step, and ends in a value for
// each channel.
//
// The registers of a step hold whole pixels, so each of their lanes belongs to one channel throughout. What
// they are added to, or compared with, is a class of lanes:
//   Sample, kRegisters   what a step takes from each source, in registers of
//   Register             Vec<Sample>, or half of it where a load of half a register is widened by the way
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

template <class Lanes>
inline constexpr int kRegisterLanes = int(sizeof(typename Lanes::Register) / sizeof(typename Lanes::Sample));

// What a step of these lanes takes from a source.
template <class Lanes>
using StepOf = Several<typename Lanes::Register, Lanes::kRegisters>;
template <class Lanes>
inline constexpr ptrdiff_t kStepSamples = Lanes::kRegisters* kRegisterLanes<Lanes>;

// A register at any address. A pointer to registers promises their alignment, which clang takes at its word;
// and a copy of its bytes into an array goes through memory in halves when g++ makes it.
template <class Register>
inline Register registerAt(const void* p) {
    typedef Register Anywhere __attribute__((aligned(1), may_alias));
    return *static_cast<const Anywhere*>(p);
}

// ---- Steps of a run --------------------------------------------------------------------------------------

template <class Lanes, class T>
inline StepOf<Lanes> loadStep(const T* src) {
    StepOf<Lanes> x;
    for (int k = 0; k < Lanes::kRegisters; k++)
        x.at[k] = registerAt<typename Lanes::Register>(src + k * kRegisterLanes<Lanes>);
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
template <class Lanes, class T>
inline StepOf<Lanes> loadLastStep(const T* src, ptrdiff_t len, ptrdiff_t taken) {
    constexpr ptrdiff_t kStep = kStepSamples<Lanes>;
    static_assert(kStep * sizeof(T) <= kMostStepBytes);
    if (len >= kStep) {
        const ptrdiff_t first = len - kStep;
        StepOf<Lanes> x = loadStep<Lanes>(src + first);
        if constexpr (Lanes::kNeutral == Neutral::zeros) {
            const Tpx8u* mask = kCutMask.bytes + kMostStepBytes - (taken - first) * ptrdiff_t(sizeof(T));
            for (auto& v : x.at) {
                using Bits = std::conditional_t<sizeof v == 32, B32f, V8u>;
                v = bitsAs<typename Lanes::Register>(
                    bitsAs<Bits>(v) & registerAt<Bits>(mask + (&v - x.at) * ptrdiff_t(sizeof v)));
            }
        }
        return x;
    }
    T block[kStep] = {};
    copyBlock(block, src, len * ptrdiff_t(sizeof(T)));
    if constexpr (Lanes::kNeutral == Neutral::repeats)
        for (ptrdiff_t i = len; i < kStep; i++) block[i] = block[i - len];
    return loadStep<Lanes>(block);
}

// Takes the samples of a run from each source. `room` counts the steps that are left until full() has to make
// room in the lanes for kSteps more. The loop works on a copy of the lanes whose address goes nowhere, so they
// stay in registers whatever full() calls.
template <class Lanes, class Full, class... Src>
inline void takeRun(Lanes& lanes, ptrdiff_t& room, const Full& full, ptrdiff_t len, const Src*... src) {
    constexpr ptrdiff_t kStep = kStepSamples<Lanes>;
    Lanes l = lanes;
    const auto spend = [&](ptrdiff_t steps) {
        room -= steps;
        if (room > 0) return;
        lanes = l;
        full();
        l = lanes;
        room = Lanes::kSteps;
    };
    ptrdiff_t i = 0;
    for (ptrdiff_t steps = len / kStep; steps > 0;) {
        const ptrdiff_t some = steps < room ? steps : room;
        for (const ptrdiff_t end = i + some * kStep; i < end; i += kStep) l.take(loadStep<Lanes>(src + i)...);
        steps -= some;
        spend(some);
    }
    if (i < len) {
        l.take(loadLastStep<Lanes>(src, len, i)...);
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
    typename Lanes::Total totals[Lanes::kPeriod];
    ptrdiff_t room = Lanes::kSteps;

    [[gnu::noinline]] void carry() { lanes.carry(totals); }

 public:
    // The totals as registers of zeros that g++ does not know to be zeros: it would clear them by `rep stos`,
    // which takes longer than an image of a few rows.
    SumAccumulator() {
        const V32f zeros = inRegister(V32f{});
        static_assert(sizeof totals % sizeof zeros == 0);
        for (size_t i = 0; i < sizeof totals; i += sizeof zeros)
            __builtin_memcpy(reinterpret_cast<char*>(totals) + i, &zeros, sizeof zeros);
    }

    // A function by itself: its code does not depend on what g++ makes of the row loop around it.
    template <class... Src>
    [[gnu::noinline]] void run(ptrdiff_t len, const Src*... src) {
        takeRun(
            lanes, room, [this] { carry(); }, len, src...);
    }
    // After the last run.
    void finish() { carry(); }

    // The sum of a channel. Totals of integers are exact, and rounded once: the sums of their upper and of
    // their lower halves are not rounded.
    Tpx64f value(int channel) const {
        constexpr int C = Lanes::kChannels;
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
            lanes, room, [] {}, len, src...);
    }
    void finish() {}
};

} // namespace tpx
