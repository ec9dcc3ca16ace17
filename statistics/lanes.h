// SPDX-License-Identifier: Apache-2.0
// Sums as lanes of an accumulator: of samples, of products, of squares, and of what a term makes of samples.
#pragma once

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
    using Total = Sum;
    static constexpr int kRegisters = N, kChannels = C;
    static constexpr Neutral kNeutral = Neutral::zeros;
    static constexpr int kPeriod = C == 3 ? 3 * kLanes<T> : kLanes<T>;

    // Adds lane j of `v`, times `unit`, to the total of sample first + j * stride.
    template <class V>
    static void addLanes(Sum* totals, V v, int first, int stride, Sum unit = 1) {
        constexpr int kCount = int(sizeof(V) / sizeof(LaneOf<V>));
        LaneOf<V> lanes[kCount];
        __builtin_memcpy(lanes, &v, sizeof lanes);
        for (int j = 0; j < kCount; j++) totals[(first + j * stride) % kPeriod] += Sum(lanes[j]) * unit;
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

    void add(V x) {
        all += x;
        upper += x >> kHalf;
    }
    V lower() const { return all - (upper << kHalf); }
};

template <class T, int C, int N = kStepRegisters<C>>
struct SumLanes;

// Neighbours share a lane where all samples are of one channel.
template <int N>
struct SumLanes<Tpx8u, 1, N> : SumsOf<Tpx8u, 1, Tpx64s, N> {
    static constexpr ptrdiff_t kSteps = (1 << 21) / N; // a lane gets at most 4 * 255 a register
    V32s sum{};

    void take(const Registers<Tpx8u, N>& x) {
        V16s pairs = addPairs(x.at[0]);
        for (int k = 1; k < N; k++) pairs += addPairs(x.at[k]);
        sum += addPairs(pairs);
    }
    void carry(Tpx64s* totals) {
        this->addLanes(totals, sum, 0, 1);
        sum = V32s{};
    }
};
template <int N>
struct SumLanes<Tpx16s, 1, N> : SumsOf<Tpx16s, 1, Tpx64s, N> {
    static constexpr ptrdiff_t kSteps = 1 << 15; // a lane gets at most 2^16
    V32s sums[N] = {};

    void take(const Registers<Tpx16s, N>& x) {
        for (int k = 0; k < N; k++) sums[k] += addPairs(x.at[k]);
    }
    void carry(Tpx64s* totals) {
        for (V32s& sum : sums) {
            this->addLanes(totals, sum, 0, 1);
            sum = V32s{};
        }
    }
};

template <class T, int C, int N>
requires(std::is_unsigned_v<T>) struct SumLanes<T, C, N> : SumsOf<T, C, Tpx64s, N> {
    using Half = HalfSums<std::conditional_t<sizeof(T) == 1, V16u, V32u>>;
    static constexpr ptrdiff_t kSteps = Half::kSteps;
    Half sums[N];

    void take(const Registers<T, N>& x) {
        for (int k = 0; k < N; k++) sums[k].add(decltype(Half::all)(x.at[k]));
    }
    void carry(Tpx64s* totals) {
        for (int k = 0; k < N; k++) {
            this->addLanes(totals, sums[k].lower(), k * kLanes<T>, 2);
            this->addLanes(totals, sums[k].upper, k * kLanes<T> + 1, 2);
            sums[k] = {};
        }
    }
};
template <int C, int N>
struct SumLanes<Tpx16s, C, N> : SumsOf<Tpx16s, C, Tpx64s, N> {
    static constexpr ptrdiff_t kSteps = 1 << 16; // a lane gets at most 2^15
    V32s even[N] = {}, odd[N] = {};

    void take(const Registers<Tpx16s, N>& x) {
        const V16s first = {1, 0, 1, 0, 1, 0, 1, 0}, second = {0, 1, 0, 1, 0, 1, 0, 1};
        for (int k = 0; k < N; k++) {
            even[k] += multiplyAddPairs(x.at[k], first);
            odd[k] += multiplyAddPairs(x.at[k], second);
        }
    }
    void carry(Tpx64s* totals) {
        for (int k = 0; k < N; k++) {
            this->addLanes(totals, even[k], k * kLanes<Tpx16s>, 2);
            this->addLanes(totals, odd[k], k * kLanes<Tpx16s> + 1, 2);
            even[k] = odd[k] = V32s{};
        }
    }
};

// ---- Products of integers --------------------------------------------------------------------------------

// The lower and the upper halves of products of 16-bit samples are samples to be added themselves.
template <class T, int C>
struct ProductLanes : SumsOf<T, C, Tpx64s, C == 3 ? 3 : 2> {
    static constexpr int N = ProductLanes::kRegisters;
    using Lower = SumLanes<Tpx16u, C, N>;
    using Upper = SumLanes<T, C, N>;
    static constexpr ptrdiff_t kSteps = Lower::kSteps < Upper::kSteps ? Lower::kSteps : Upper::kSteps;
    Lower lower;
    Upper upper;

    void take(const Registers<T, N>& x, const Registers<T, N>& y) {
        Registers<Tpx16u, N> low;
        Registers<T, N> high;
        for (int k = 0; k < N; k++) {
            low.at[k] = V16u(x.at[k]) * V16u(y.at[k]);
            high.at[k] = multiplyHigh(x.at[k], y.at[k]);
        }
        lower.take(low);
        upper.take(high);
    }
    void carry(Tpx64s* totals) {
        lower.carry(totals);
        Tpx64s uppers[ProductLanes::kPeriod] = {};
        upper.carry(uppers);
        for (int i = 0; i < ProductLanes::kPeriod; i++) totals[i] += uppers[i] * 65536;
    }
};

// Bytes: products of every other sample, in 16 bits.
template <int C>
struct ProductLanes<Tpx8u, C> : SumsOf<Tpx8u, C, Tpx64s, C == 3 ? 3 : 1> {
    static constexpr int N = ProductLanes::kRegisters;
    using Half = HalfSums<V32u>;
    static constexpr ptrdiff_t kSteps = Half::kSteps;
    Half even[N], odd[N];

    void take(const Registers<Tpx8u, N>& x, const Registers<Tpx8u, N>& y) {
        for (int k = 0; k < N; k++) {
            const V16u a = V16u(x.at[k]), b = V16u(y.at[k]);
            even[k].add(V32u((a & 0xFF) * (b & 0xFF)));
            odd[k].add(V32u((a >> 8) * (b >> 8)));
        }
    }
    void carry(Tpx64s* totals) {
        for (int k = 0; k < N; k++) {
            const int first = k * kLanes<Tpx8u>;
            this->addLanes(totals, even[k].lower(), first, 4);
            this->addLanes(totals, odd[k].lower(), first + 1, 4);
            this->addLanes(totals, even[k].upper, first + 2, 4);
            this->addLanes(totals, odd[k].upper, first + 3, 4);
            even[k] = odd[k] = {};
        }
    }
};
template <>
struct ProductLanes<Tpx8u, 1> : SumsOf<Tpx8u, 1, Tpx64s, 4> {
    static constexpr ptrdiff_t kSteps = 1 << 13; // a lane gets at most 4 * 255^2
    V32s sums[4] = {};

    void take(const Registers<Tpx8u, 4>& x, const Registers<Tpx8u, 4>& y) {
        for (int k = 0; k < 4; k++) {
            const V16u a = V16u(x.at[k]), b = V16u(y.at[k]);
            sums[k] +=
                multiplyAddPairs(V16s(a & 0xFF), V16s(b & 0xFF)) + multiplyAddPairs(V16s(a >> 8), V16s(b >> 8));
        }
    }
    void carry(Tpx64s* totals) {
        for (V32s& sum : sums) {
            addLanes(totals, sum, 0, 1);
            sum = V32s{};
        }
    }
};

template <class T, int C>
struct SquareLanes : ProductLanes<T, C> {
    template <class X>
    void take(const X& x) {
        ProductLanes<T, C>::take(x, x);
    }
};
// Sums of two squares, up to 2^31, by halves.
template <>
struct SquareLanes<Tpx16s, 1> : SumsOf<Tpx16s, 1, Tpx64s, 4> {
    using Half = HalfSums<V32u>;
    static constexpr ptrdiff_t kSteps = Half::kSteps;
    Half sums[4];

    void take(const Registers<Tpx16s, 4>& x) {
        for (int k = 0; k < 4; k++) sums[k].add(V32u(multiplyAddPairs(x.at[k], x.at[k])));
    }
    void carry(Tpx64s* totals) {
        for (Half& sum : sums) {
            addLanes(totals, sum.lower(), 0, 1);
            addLanes(totals, sum.upper, 0, 1, 65536);
            sum = {};
        }
    }
};

// ---- Real numbers ----------------------------------------------------------------------------------------

// Sums, of type Sum, of terms that are made in type Real from samples of T: Term::of(x...) on registers of
// Real.
template <class T, int C, class Real, class Sum, class Term>
struct RealLanes : SumsOf<T, C, Tpx64f, kStepRegisters<C>> {
    static constexpr int N = RealLanes::kRegisters;
    static constexpr int kParts = kLanes<T> / kLanes<Sum>; // registers of sums for one of samples
    // Single precision keeps its digits in short sums.
    static constexpr ptrdiff_t kSteps = sizeof(Sum) == 4 ? 256 : kEndless;
    Vec<Sum> sums[N][kParts] = {};

    template <class... X>
    void take(const X&... x) {
        for (int k = 0; k < N; k++) {
            const auto terms = termsOf(x.at[k]...);
            for (int i = 0; i < kParts; i++) sums[k][i] += terms.at[i];
        }
    }
    void carry(Tpx64f* totals) {
        for (int k = 0; k < N; k++)
            for (int i = 0; i < kParts; i++) {
                this->addLanes(totals, sums[k][i], k * kLanes<T> + i * kLanes<Sum>, 1);
                sums[k][i] = Vec<Sum>{};
            }
    }

 private:
    template <class... V>
    static Several<Vec<Sum>, kParts> termsOf(V... x) {
        if constexpr (std::is_same_v<Real, Sum> && std::is_same_v<Real, T>) {
            return {{Term::of(x...)}};
        } else if constexpr (std::is_same_v<Real, T>) {
            const Pair<V64f> wide = widen(Term::of(x...));
            return {{wide.low, wide.high}};
        } else if constexpr (std::is_same_v<T, Tpx32f>) {
            return {{Term::of(widen(x).low...), Term::of(widen(x).high...)}};
        } else {
            return {{Term::of(toDouble(x)...)}};
        }
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

    template <class... X>
    void take(const X&... x) {
        Registers<typename Lanes::Sample, Lanes::kRegisters> terms;
        for (int k = 0; k < Lanes::kRegisters; k++) terms.at[k] = Term::of(x.at[k]...);
        Lanes::take(terms);
    }
};

} // namespace tpx
