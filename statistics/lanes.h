// SPDX-License-Identifier: Apache-2.0
// Sums as lanes of reductions: of samples, of products, of squares, and of what a term makes of samples.
#pragma once

#include "frame/simd/doubles.h"
#include "frame/simd/reductions.h"
#include "frame/simd/through_real.h"
#include "statistics/accumulate.h"

namespace tpx {

// Registers of a step: three hold whole pixels of three samples; else several, so that sums of one register
// need not wait for those of the one before.
template <int C>
inline constexpr int kStepRegisters = C == 3 ? 3 : 4;

template <class T, int C, class Sum, int N>
struct SumsOf {
    using Sample = T;
    using Register = Vec<T>;
    using Total = Sum;
    static constexpr int kRegisters = N, kChannels = C;
    static constexpr bool kShort = false;
    static constexpr bool kTwice = false;
    static constexpr T kFiller = 0;
};

// The exact sums of channels, from lanes that are added in pairs: one for each two channels that meet in a
// register.
template <int C>
class ExactSums {
    V64u pairs[C][C] = {};

 public:
    // Adds lane j of `v`, times 2^shift, to the channel of sample first + j * stride of a step.
    void add(V64u v, int first, int stride, int shift = 0) {
        pairs[first % C][(first + stride) % C] += v << shift;
    }
    template <class V>
    void add(V v, int first, int stride, int shift = 0) {
        const auto both = [&] {
            if constexpr (sizeof(LaneOf<V>) == 4)
                return widen64(v);
            else
                return widen(v);
        }();
        add(both.low, first, stride, shift);
        add(both.high, first + stride * kLanes<LaneOf<V>> / 2, stride, shift);
    }
    void add(int channel, Tpx64s x) { pairs[channel][channel] += V64u{Tpx64u(x), 0}; }

    Tpx64s of(int channel) const {
        Tpx64u sum = 0;
        for (int c = 0; c < C; c++) sum += pairs[channel][c][0] + pairs[c][channel][1];
        return Tpx64s(sum);
    }
};

// ---- Integers: lanes of twice the width --------------------------------------------------------------------

// Sums of the lower and of the upper halves of lanes, from three operations a register: the sum of the lanes,
// which wraps around, and that of the upper halves. What the lower halves add up to is the difference.
template <class V>
struct HalfSums {
    static constexpr int kHalf = kBits<LaneOf<V>> / 2;
    static constexpr ptrdiff_t kSteps = ptrdiff_t(1) << kHalf; // a half is less than that

    V all{}, upper{};

    // Loaded once: g++ would load for either sum, and loads would limit this.
    void add(V x) {
        x = inRegister(x);
        all += x;
        upper += x >> kHalf;
    }
    V lower() const { return all - (upper << kHalf); }
};

// Unsigned samples of any channels, two of which share a lane of twice their width.
template <class T, int C, int N = kStepRegisters<C>>
struct HalfLanes : SumsOf<T, C, ExactSums<C>, N> {
    using Half = HalfSums<std::conditional_t<sizeof(T) == 1, V16u, V32u>>;
    static constexpr ptrdiff_t kSteps = Half::kSteps;
    Half sums[N];

    void add(int k, Vec<T> x) { sums[k].add(decltype(Half::all)(x)); }
    void take(const Registers<T, N>& x) {
        for (int k = 0; k < N; k++) add(k, x.at[k]);
    }
    void addTo(ExactSums<C>& totals, int shift = 0) const {
        for (int k = 0; k < N; k++) {
            totals.add(sums[k].lower(), k * kLanes<T>, 2, shift);
            totals.add(sums[k].upper, k * kLanes<T> + 1, 2, shift);
        }
    }
};
template <class T, int C, int N = kStepRegisters<C>>
struct SumLanes : HalfLanes<T, C, N> {};

// Neighbours share a lane where all samples are of one channel.
template <int N>
struct SumLanes<Tpx8u, 1, N> : SumsOf<Tpx8u, 1, ExactSums<1>, N> {
    static constexpr ptrdiff_t kSteps = (1 << 21) / N; // a lane gets at most 4 * 255 a register
    V32s sum{};

    void take(const Registers<Tpx8u, N>& x) {
        V16s pairs = addPairs(x.at[0]);
        for (int k = 1; k < N; k++) pairs += addPairs(x.at[k]);
        sum += addPairs(pairs);
    }
    void addTo(ExactSums<1>& totals) const { totals.add(sum, 0, 1); }
};
template <int N>
struct SumLanes<Tpx16s, 1, N> : SumsOf<Tpx16s, 1, ExactSums<1>, N> {
    static constexpr ptrdiff_t kSteps = 1 << 15; // a lane gets at most 2^16
    V32s sums[N] = {};

    void take(const Registers<Tpx16s, N>& x) {
        for (int k = 0; k < N; k++) sums[k] += addPairs(x.at[k]);
    }
    void addTo(ExactSums<1>& totals) const {
        for (V32s sum : sums) totals.add(sum, 0, 1);
    }
};

// Half of their range lower, unsigned samples are signed ones.
inline V16s lowered(V16u x) { return V16s(x ^ splat<V16u>(0x8000)); }
template <int N>
struct SumLanes<Tpx16u, 1, N> : SumsOf<Tpx16u, 1, ExactSums<1>, N> {
    static constexpr ptrdiff_t kSteps = SumLanes<Tpx16s, 1, N>::kSteps;
    SumLanes<Tpx16s, 1, N> low;
    Tpx64s steps = 0;

    void take(const Registers<Tpx16u, N>& x) {
        Registers<Tpx16s, N> signedSamples;
        for (int k = 0; k < N; k++) signedSamples.at[k] = lowered(x.at[k]);
        low.take(signedSamples);
        steps++;
    }
    void addTo(ExactSums<1>& totals) const {
        low.addTo(totals);
        totals.add(0, steps * N * kLanes<Tpx16u> << 15);
    }
};
// ---- Products of integers --------------------------------------------------------------------------------

// The lower and the upper halves of products of 16-bit samples are samples to be added themselves.
template <class T, int C>
struct ProductLanes : SumsOf<T, C, ExactSums<C>, C == 3 ? 3 : 2> {
    static constexpr int N = ProductLanes::kRegisters;
    using Halves = HalfLanes<T, C, N>;
    static constexpr ptrdiff_t kSteps = Halves::kSteps;
    Halves lower, upper;

    void take(const Registers<T, N>& x, const Registers<T, N>& y) {
        for (int k = 0; k < N; k++) {
            lower.add(k, x.at[k] * y.at[k]);
            upper.add(k, multiplyHigh(x.at[k], y.at[k]));
        }
    }
    void addTo(ExactSums<C>& totals) const {
        lower.addTo(totals);
        upper.addTo(totals, 16);
    }
};

// Products of neighbouring 16-bit lanes are added by the instruction that makes them. In pixels of several
// samples the neighbours are brought together first: the registers of a step's second half come between the
// lanes of those of its first, where the same channels are.
template <int C>
inline constexpr int kPairRegisters = C == 3 ? 6 : 4;

template <int C, class V>
inline Pair<V> neighbours(V a, V b) {
    if constexpr (C == 1) return {a, b};
    const V8u x = bitsAs<V8u>(a), y = bitsAs<V8u>(b);
    return {bitsAs<V>(interleaveUnits<2, false>(x, y)), bitsAs<V>(interleaveUnits<2, true>(x, y))};
}

// Signed samples of several channels: three operations a register.
template <int C, int N>
struct SumLanes<Tpx16s, C, N> : SumsOf<Tpx16s, C, ExactSums<C>, kPairRegisters<C>> {
    static constexpr int kPairs = kPairRegisters<C>, kSums = kPairs / 2; // a sum gets two registers a step
    static constexpr ptrdiff_t kSteps = 1 << 14;                         // and a lane at most 2^16 of each
    V32s sums[kSums] = {};

    void take(const Registers<Tpx16s, kPairs>& x) {
        for (int k = 0; k < kPairs / 2; k++) {
            const Pair<V16s> a = neighbours<C>(x.at[k], x.at[k + kPairs / 2]);
            sums[2 * k % kSums] += addPairs(a.low);
            sums[(2 * k + 1) % kSums] += addPairs(a.high);
        }
    }
    void addTo(ExactSums<C>& totals) const {
        for (int m = 0; m < kSums; m++) totals.add(sums[m], 4 * m, 1);
    }
};

// Sums of products of pairs of signed 16-bit lanes, from five operations a register. Pairs lie above -2^31 and
// reach 2^31, which wraps around in the register; less 1, none does.
struct SignedPairs {
    static constexpr ptrdiff_t kSteps = 1 << 15;
    V32u all{};
    V32s uppers{};

    void add(V32s pairs) {
        all += V32u(pairs);
        uppers += V32s(V32u(pairs) - 1) >> 16;
    }
    V32u lower() const { return all - (V32u(uppers) << 16); } // at most 2^16 a pair
    V32s upper() const { return uppers; }
};
// Of squares, which lie from 0 to 2^31.
struct SquaredPairs {
    using Half = HalfSums<V32u>;
    static constexpr ptrdiff_t kSteps = Half::kSteps / 2;
    Half half;

    void add(V32s pairs) { half.add(V32u(pairs)); }
    V32u lower() const { return half.lower(); }
    V32u upper() const { return half.upper; }
};

template <int C, class Pairs>
struct PairLanes : SumsOf<Tpx16s, C, ExactSums<C>, kPairRegisters<C>> {
    static constexpr int N = kPairRegisters<C>, kSums = N / 2; // each gets two registers of pairs a step
    static constexpr ptrdiff_t kSteps = Pairs::kSteps / 2;
    Pairs sums[kSums];

    void take(const Registers<Tpx16s, N>& x, const Registers<Tpx16s, N>& y) {
        for (int k = 0; k < N / 2; k++) {
            const Pair<V16s> a = neighbours<C>(x.at[k], x.at[k + N / 2]),
                             b = neighbours<C>(y.at[k], y.at[k + N / 2]);
            sums[2 * k % kSums].add(multiplyAddPairs(a.low, b.low));
            sums[(2 * k + 1) % kSums].add(multiplyAddPairs(a.high, b.high));
        }
    }
    void addTo(ExactSums<C>& totals) const {
        for (int m = 0; m < kSums; m++) {
            totals.add(sums[m].lower(), C == 1 ? 0 : 4 * m, 1);
            totals.add(sums[m].upper(), C == 1 ? 0 : 4 * m, 1, 16);
        }
    }
};
template <int C>
struct ProductLanes<Tpx16s, C> : PairLanes<C, SignedPairs> {};

// Bytes: pairs of every other sample.
template <int C>
struct ProductLanes<Tpx8u, C> : SumsOf<Tpx8u, C, ExactSums<C>, kPairRegisters<C>> {
    static constexpr int N = kPairRegisters<C>, kSums = N / 2;
    static constexpr ptrdiff_t kSteps = 1 << 13; // a lane gets at most 2 * 2 * 255^2
    V32s even[kSums] = {}, odd[kSums] = {};

    void take(const Registers<Tpx8u, N>& x, const Registers<Tpx8u, N>& y) {
        for (int k = 0; k < N / 2; k++) {
            const Pair<V8u> a = neighbours<C>(x.at[k], x.at[k + N / 2]),
                            b = neighbours<C>(y.at[k], y.at[k + N / 2]);
            add(2 * k % kSums, V16u(a.low), V16u(b.low));
            add((2 * k + 1) % kSums, V16u(a.high), V16u(b.high));
        }
    }
    void addTo(ExactSums<C>& totals) const {
        for (int m = 0; m < kSums; m++) {
            totals.add(even[m], C == 1 ? 0 : 8 * m, C == 1 ? 1 : 2);
            totals.add(odd[m], C == 1 ? 0 : 8 * m + 1, C == 1 ? 1 : 2);
        }
    }

 private:
    void add(int m, V16u a, V16u b) {
        even[m] += multiplyAddPairs(V16s(a & 0xFF), V16s(b & 0xFF));
        odd[m] += multiplyAddPairs(V16s(a >> 8), V16s(b >> 8));
    }
};

template <class T, int C>
struct SquareLanes : ProductLanes<T, C> {
    template <class X>
    void take(const X& x) {
        ProductLanes<T, C>::take(x, x);
    }
};
template <int C>
struct SquareLanes<Tpx16s, C> : PairLanes<C, SquaredPairs> {
    template <class X>
    void take(const X& x) {
        PairLanes<C, SquaredPairs>::take(x, x);
    }
};

// x^2 is y^2 + 2^16 y + 2^30 for y = x - 2^15. Pairs of y^2 and of y take seven operations a register, the
// halves of x^2 eight.
template <>
struct SquareLanes<Tpx16u, 1> : SumsOf<Tpx16u, 1, ExactSums<1>, 4> {
    using Squares = SquareLanes<Tpx16s, 1>;
    static constexpr ptrdiff_t kSteps = Squares::kSteps; // a linear sum gets at most 2 * 2^16
    Squares squares;
    V32s linear[2] = {};
    Tpx64s steps = 0;

    void take(const Registers<Tpx16u, 4>& x) {
        Registers<Tpx16s, 4> y;
        for (int k = 0; k < 4; k++) y.at[k] = lowered(x.at[k]);
        squares.take(y);
        for (int k = 0; k < 4; k++) linear[k % 2] += addPairs(y.at[k]);
        steps++;
    }
    void addTo(ExactSums<1>& totals) const {
        squares.addTo(totals);
        for (V32s sum : linear) totals.add(sum, 0, 1, 16);
        totals.add(0, steps * 4 * kLanes<Tpx16u> << 30);
    }
};

// ---- Real numbers ----------------------------------------------------------------------------------------

// Sums, of type Sum, of terms that are made in type Real from samples of T: Term::of(x...) on registers of
// Real. Floats that become doubles are loaded four at a time: widened on their way from memory they cost an
// operation, and a shuffle more where a whole register has to be taken apart. Conversions and sums share two
// units, so four samples of either source take a cycle and a half at best.
template <class T, class Sum>
inline constexpr bool kWidened = std::is_same_v<T, Tpx32f> && sizeof(Sum) == 8;

template <class T, int C, class Real, class Sum, class Term>
struct RealLanes : SumsOf<T, C, V64f, kStepRegisters<C>*(kWidened<T, Sum> ? 2 : 1)> {
    static constexpr int N = RealLanes::kRegisters, kSumLanes = kLanes<Sum>;
    using Register = std::conditional_t<kWidened<T, Sum>, Four<float>, Vec<T>>;
    static_assert(kRegisterLanes<RealLanes> == kSumLanes);
    // Single precision keeps its digits in short sums.
    static constexpr ptrdiff_t kSteps = sizeof(Sum) == 4 ? 256 : kEndless;
    RegisterArray<Vec<Sum>, N> sums = {};

    template <class... X>
    void take(const X&... x) {
        for (int k = 0; k < N; k++) sums[k] += termOf(x.at[k]...);
    }
    static constexpr int kPeriod = (C == 3 ? 3 : 1) * kLanes<T> / kLanes<Tpx64f>;
    void addTo(V64f* totals) const {
        for (int k = 0; k < N; k++) {
            if constexpr (sizeof(Sum) == 8) {
                totals[k % kPeriod] += sums[k];
            } else {
                const Pair<V64f> wide = toDouble(sums[k]);
                totals[2 * k % kPeriod] += wide.low;
                totals[(2 * k + 1) % kPeriod] += wide.high;
            }
        }
    }

 private:
    template <class... V>
    static Vec<Sum> termOf(V... x) {
        if constexpr (std::is_same_v<Real, Sum> && std::is_same_v<Real, T>)
            return Term::of(x...);
        else if constexpr (std::is_same_v<Real, T>)
            return toDouble(Term::of(x...));
        else
            return Term::of(widened(x)...);
    }
    template <class V>
    static V64f widened(V x) {
        if constexpr (std::is_same_v<V, V32u>)
            return toDoubleByBits(x);
        else
            return toDouble(x);
    }
};

// ---- Terms ------------------------------------------------------------------------------------------------

struct Itself {
    template <class V>
    static V of(V x) {
        return x;
    }
};
struct Product {
    template <class V>
    static V of(V x, V y) {
        return x * y;
    }
};

// Lanes of what Term makes of samples of T.
template <class T, class Term, class Lanes>
struct TermLanes : Lanes {
    using Sample = T;
    using Register = Vec<T>;
    static constexpr int N = Lanes::kRegisters;
    static constexpr T kFiller = 0;

    void take(const Registers<T, N>& x) {
        takeTerms([&](int k) { return Term::of(x.at[k]); });
    }
    // Of two sources the terms use each twice. g++ would load it as often, and loads are what limits them.
    void take(const Registers<T, N>& x, const Registers<T, N>& y) {
        takeTerms([&](int k) { return Term::of(inRegister(x.at[k]), inRegister(y.at[k])); });
    }

 private:
    // One by one where the lanes take them so, which leaves registers for their sums.
    template <class TermOf>
    void takeTerms(TermOf termOf) {
        if constexpr (requires { this->add(0, termOf(0)); }) {
            for (int k = 0; k < N; k++) this->add(k, termOf(k));
        } else {
            Registers<typename Lanes::Sample, N> terms;
            for (int k = 0; k < N; k++) terms.at[k] = termOf(k);
            Lanes::take(terms);
        }
    }
};

// |x - y| of bytes of one channel, whose sums are an instruction.
struct ByteDifferences : SumsOf<Tpx8u, 1, ExactSums<1>, 4> {
    static constexpr ptrdiff_t kSteps = kEndless;
    V64u sums[2] = {};

    void take(const Registers<Tpx8u, 4>& x, const Registers<Tpx8u, 4>& y) {
        for (int k = 0; k < 4; k++) sums[k % 2] += sumOfDifferences(x.at[k], y.at[k]);
    }
    void addTo(ExactSums<1>& totals) const {
        for (V64u sum : sums) totals.add(sum, 0, 1);
    }
};

} // namespace tpx
