// SPDX-License-Identifier: Apache-2.0
// Reductions: lanes take the samples of an image, a few registers a step, and end in a value for each channel.
//
// The registers of a step hold whole pixels, so each of their lanes belongs to one channel throughout. What
// they are added to, or compared with, is a class of lanes:
//   Sample, kRegisters   what a step takes from each source, in registers of
//   Register             Vec<Sample>, or half of it where a load of half a register is widened by the way
//   kChannels            of a pixel
//   take(x...)           a step, from one source or two
//   kTwice               whether a sample may be taken twice
//   kFiller              fills up the step of a run that is shorter: a sample that changes nothing
//   kSteps               how many steps they have room for, before any lane can overflow
//   kShort               whether they are so few operations that an iteration takes two
// Those of sums also have
//   Total                what they are carried to: exact sums of channels, or registers of doubles
//   kPeriod              of those, as many as hold whole pixels
//   addTo(totals)        adds the lanes
// and others
//   values()             the value of each channel
// Lanes are made of other lanes: a norm is a term in front of a sum (lanes.h).
#pragma once

#include "frame/images/walk.h"
#include "frame/runs/runs.h"

namespace tpx {

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

// A register at any address, for arrays of them: what peek() copies goes into an array through memory in halves
// when g++ makes it.
template <class Register>
inline Register registerAt(const void* p) {
    typedef Register Anywhere __attribute__((aligned(1), may_alias));
    return *static_cast<const Anywhere*>(p);
}

// An array that is copied one register after the other. g++ copies others in pieces of 16 bytes, and the load
// of a longer register would wait for two of them.
template <class V, int N>
struct RegisterArray {
    V at[N];

    RegisterArray() = default;
    RegisterArray(const RegisterArray& from) { *this = from; }
    RegisterArray& operator=(const RegisterArray& from) {
        if (this != &from)
            for (int k = 0; k < N; k++) at[k] = from.at[k];
        return *this;
    }
    V& operator[](int k) { return at[k]; }
    const V& operator[](int k) const { return at[k]; }
};

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
        if constexpr (!Lanes::kTwice) {
            const Tpx8u* mask = kCutMask.bytes + kMostStepBytes - (taken - first) * ptrdiff_t(sizeof(T));
            for (auto& v : x.at) {
                using Bits = std::conditional_t<sizeof v == 32, B32f, V8u>;
                v = bitsAs<typename Lanes::Register>(
                    bitsAs<Bits>(v) & registerAt<Bits>(mask + (&v - x.at) * ptrdiff_t(sizeof v)));
            }
        }
        return x;
    }
    T block[kStep];
    for (ptrdiff_t i = 0; i < kStep; i += kLanes<T>) store(block + i, splat<Vec<T>>(Lanes::kFiller));
    copyBlock(block, src, len * ptrdiff_t(sizeof(T)));
    return loadStep<Lanes>(block);
}

// Takes the last samples of a run. Lanes of two sides may have to fill it up for either.
template <class Lanes, class... Src>
inline void takeLastStep(Lanes& lanes, ptrdiff_t len, ptrdiff_t taken, const Src*... src) {
    if constexpr (requires { lanes.takeLast(len, taken, src...); })
        lanes.takeLast(len, taken, src...);
    else
        lanes.take(loadLastStep<Lanes>(src, len, taken)...);
}

// ---- Totals ----------------------------------------------------------------------------------------------

// A value for each channel.
template <int C, class T>
struct Values {
    T of[C];
};

// What sums are carried to. Those of integers are exact, and rounded once: the sums of their upper and of their
// lower halves are not rounded.
template <class Lanes, class Total = typename Lanes::Total>
class Totals {
    static constexpr int C = Lanes::kChannels;
    Tpx64s upper[C] = {}, lower[C] = {};

 public:
    void add(const Lanes& lanes) {
        Total sums;
        lanes.addTo(sums);
        for (int c = 0; c < C; c++) {
            upper[c] += sums.of(c) >> 32;
            lower[c] += sums.of(c) & 0xFFFFFFFF;
        }
    }
    Tpx64f of(int channel) const { return Tpx64f(upper[channel]) * 0x1p32 + Tpx64f(lower[channel]); }
};
template <class Lanes>
class Totals<Lanes, V64f> {
    V64f registers[Lanes::kPeriod] = {};

 public:
    void add(const Lanes& lanes) { lanes.addTo(registers); }
    Tpx64f of(int channel) const {
        Tpx64f sum = 0;
        for (int i = channel; i < Lanes::kPeriod * kLanes<Tpx64f>; i += Lanes::kChannels)
            sum += registers[i / kLanes<Tpx64f>][i % kLanes<Tpx64f>];
        return sum;
    }
};

// What lanes have been carried to so far.
template <class Lanes>
class Carried {
    Totals<Lanes> totals;

    [[gnu::noinline]] void add(const Lanes& lanes) { totals.add(lanes); }

 public:
    ptrdiff_t room = Lanes::kSteps; // for steps more

    void spend(Lanes& lanes, ptrdiff_t steps) {
        if constexpr (Lanes::kSteps != kEndless) {
            room -= steps;
            if (room > 0) return;
            const Lanes full = lanes;
            add(full);
            lanes = Lanes{};
            room = Lanes::kSteps;
        }
    }
    Values<Lanes::kChannels, Tpx64f> values(const Lanes& lanes) const {
        Totals<Lanes> all = totals;
        all.add(lanes);
        Values<Lanes::kChannels, Tpx64f> sums;
        for (int c = 0; c < Lanes::kChannels; c++) sums.of[c] = all.of(c);
        return sums;
    }
};
// Of those that have values, nothing.
template <class Lanes>
requires requires(const Lanes& lanes) { lanes.values(); }
struct Carried<Lanes> {
    static constexpr ptrdiff_t room = kEndless;
    void spend(Lanes&, ptrdiff_t) {}
    auto values(const Lanes& lanes) const { return lanes.values(); }
};

// ---- Loops -----------------------------------------------------------------------------------------------
//
// They work on lanes that are variables of their own, whose address goes nowhere (what is called gets a copy),
// and are functions by themselves: so the lanes stay in registers.

// Takes the samples of a run from each source.
template <class Lanes, class... Src>
[[gnu::always_inline]] inline void takeRun(Lanes& lanes, Carried<Lanes>& carried, ptrdiff_t len,
                                           const Src*... src) {
    constexpr ptrdiff_t kStep = kStepSamples<Lanes>;
    ptrdiff_t i = 0;
    for (ptrdiff_t steps = len / kStep; steps > 0;) {
        const ptrdiff_t some = steps < carried.room ? steps : carried.room;
        const ptrdiff_t end = i + some * kStep;
        if constexpr (Lanes::kShort) {
#pragma GCC unroll 2
            for (; i < end; i += kStep) lanes.take(loadStep<Lanes>(src + i)...);
        } else {
            for (; i < end; i += kStep) lanes.take(loadStep<Lanes>(src + i)...);
        }
        steps -= some;
        carried.spend(lanes, some);
    }
    if (i < len) {
        takeLastStep(lanes, len, i, src...);
        carried.spend(lanes, 1);
    }
}

// The values of all samples of an image, or of two.
template <class Lanes, class... Src>
[[gnu::noinline]] auto reduce(Extent samples, ImageView<Src>... images) {
    Lanes lanes{};
    Carried<Lanes> carried;
    walkJoined(
        samples, [&](ptrdiff_t len, const Src*... rows) { takeRun(lanes, carried, len, rows...); }, images...);
    const Lanes all = lanes;
    return carried.values(all);
}

// Of runs that come one after the other.
template <class Lanes>
class Reduction {
    Lanes lanes{};
    Carried<Lanes> carried;

 public:
    template <class... Src>
    [[gnu::noinline]] void take(ptrdiff_t len, const Src*... src) {
        Lanes own = lanes;
        takeRun(own, carried, len, src...);
        lanes = own;
    }
    auto values() const { return carried.values(lanes); }
};

} // namespace tpx
