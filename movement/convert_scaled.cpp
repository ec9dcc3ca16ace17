// SPDX-License-Identifier: Apache-2.0
// tpxiConvert of integers with a scale factor.
//
// Operations on registers make the time, three a cycle or more. For 16 samples, besides loads and stores,
// shifted right with truncation, halves away from zero, and ties to even:
//     8u -> 8s 2, 3, 7; 16u -> 8s 3, 5, 11; 16u -> 16s 2, 4, 10; 16s -> 8s 9, 7, 9;
//     32u -> 8 bits 7, 9, 13; 32u -> 16 bits 6, 10 (16s) or 14, 12 by small factors and 30; 32u -> 32s 4, 12,
//     28; 32s -> 16u 6, 12, 10 by small factors, 6, 22, 26; 32s -> 16s 10, 16, 10 by small factors, 14, 22, 26.
// Measured at 0.8 to 1.2 of a third of that in cycles (32u -> 8u: 2.9, 3.2 and 4.6).
#include "movement/convert_round.h"

namespace tpx {
namespace {

// ---- Scales: a register of work lanes to one that is narrowed ---------------------------------------------

// x >> n, from 1 on. A shift takes its count from a register at half the rate of other operations, or in two of
// them; lanes of 16 bits have a product that does the same.
template <class V>
struct Right {
    int n;
    V operator()(V x) const { return shiftRight(x, n); }
};
template <>
struct Right<V16u> {
    V16u factor;

    explicit Right(int n) : factor(splat<V16u>(n > 16 ? 0 : Tpx16u(1 << (16 - n)))) {}
    V16u operator()(V16u x) const { return multiplyHigh(x, factor); }
};

// Unsigned lanes shifted right in the mode, by 2 and more. Halves go up in the last step. With ties to even 1
// is first taken off where the quotient is even, as in RoundedShift.
template <TpxRoundMode Mode, class V>
struct ShrinkUnsigned {
    Right<V> quotient, twice;
    V resultBit;

    explicit ShrinkUnsigned(int n)
        : quotient{n}, twice{n - 1}, resultBit(splat<V>(n < kBits<LaneOf<V>> ? LaneOf<V>(1u << n) : 0)) {}
    V operator()(V x) const {
        if constexpr (Mode == tpxRoundTowardZero) return quotient(x);
        if constexpr (Mode == tpxRoundNearestEven) {
            if constexpr (sizeof(LaneOf<V>) < 4)
                x = subSat(x, ~quotient(x) & splat<V>(1));
            else
                x = minOf(x, x + V((x & resultBit) == V{})); // 0 stays
        }
        return average(twice(x), V{});
    }
};

// Signed lanes, limited to what saturates, so that they have the room of Headroom::Half; 16 bits always have
// it.
template <TpxRoundMode Mode, class D, class V>
struct ShrinkInRoom {
    RoundedShift<Mode, V, Headroom::Half> shift;
    V most;

    explicit ShrinkInRoom(int n) : shift(n), most(splat<V>(LaneOf<V>((Tpx64s(kMax<D>) + 1) << n))) {}
    V operator()(V x) const { return shift(sizeof(LaneOf<V>) == 2 ? x : minOf(x, most)); }
};

// Signed lanes toward zero. Of negative ones an unsigned result has nothing, and they may go down.
template <class D, class V>
struct Truncate {
    static constexpr bool kSigned = std::is_signed_v<D>;
    Right<std::conditional_t<kSigned, decltype(magnitude(V{})), V>> right;

    explicit Truncate(int n) : right{n} {}
    V operator()(V x) const {
        if constexpr (kSigned)
            return withSign(right(magnitude(x)), x);
        else
            return right(x);
    }
};

// By way of the rounding product, which adds a half: that is taken off first, but for 1 of negative samples.
// Magnitude and sign would go through the two units that have the product, too.
template <class D>
requires(std::is_signed_v<D>) struct Truncate<D, V16s> {
    V16s factor, lessHalf;

    explicit Truncate(int n)
        : factor(splat<V16s>(n > 15 ? 0 : Tpx16s(1 << (15 - n)))),
          lessHalf(splat<V16s>(n > 15 ? 0 : Tpx16s(-(1 << (n - 1))))) {}
    V16s operator()(V16s x) const { // where the factor is 0 the sum may wrap
        return multiplyRounded(V16s(V16u(x) + V16u(lessHalf ^ V16s(x < V16s{}))), factor);
    }
};

// Shifted left by k > 0.
template <class D>
struct Grow {
    int k;
    template <class V>
    V operator()(V x) const {
        return shiftLeftLimited<D>(x, k);
    }
};

// ---- Rules ------------------------------------------------------------------------------------------------

// As many registers as fill one of D, scaled and saturated. The narrowing takes lanes for signed ones: unsigned
// ones that may use all bits are limited first.
enum class AllBits { Unused, Used };

template <class S, class D, class Scale, AllBits B = AllBits::Unused>
struct Scaled {
    Scale scale;

    explicit Scaled(int n) : scale{n} {}
    Vec<D> operator()(const S* p) const {
        return narrowAll<D>(makeSeveral<kLanes<D> / kLanes<S>>([&](int i) {
            const Vec<S> x = scale(load(p + i * kLanes<S>));
            return B == AllBits::Used && !std::is_signed_v<S> ? minOf(x, splat<Vec<S>>(S(kMax<D>))) : x;
        }));
    }
};

// Halves away from zero of 32 unsigned bits, by 2 and more: of what saturates enough is left in 16 bits for the
// last step to be taken there.
template <class D>
struct HalveNarrowed {
    Right<V32u> twice;

    explicit HalveNarrowed(int n) : twice{n - 1} {}
    Vec<D> operator()(const Tpx32u* p) const {
        using H = std::conditional_t<sizeof(D) == 1, Tpx16s, Tpx16u>;
        return narrowAll<D>(makeSeveral<kLanes<D> / kLanes<H>>([&](int i) {
            const auto part = [&](int k) { return twice(load(p + (2 * i + k) * kLanes<Tpx32u>)); };
            const V16u once = average(bitsAs<V16u>(narrow<H>(Pair<V32u>{part(0), part(1)})), V16u{});
            return sizeof(D) == 1 ? once : minOf(once, splat<V16u>(Tpx16u(kMax<D>)));
        }));
    }
};

// ---- Calls ------------------------------------------------------------------------------------------------

// n > 0 in a mode, up to `Most` but for the truncation.
template <TpxRoundMode Mode, int Most, class S, class D, class Run>
TpxStatus shrink(int n, Run run) {
    constexpr bool kTruncates = Mode == tpxRoundTowardZero;
    constexpr bool kHalves = Mode == tpxRoundHalfAway && std::is_same_v<S, Tpx32u>;
    if constexpr (kHalves && (sizeof(D) == 1 || std::is_same_v<D, Tpx16s>))
        if (n > 1) return run(HalveNarrowed<D>(n));
    // Beyond 2^24 floating point rounds 32-bit samples, but to no less than that: up to this factor they
    // saturate all the same. Without a sign to keep a single shift is cheaper.
    constexpr bool kOneShift = kTruncates && !(std::is_signed_v<S> && std::is_signed_v<D>);
    constexpr int kThroughReal = sizeof(S) == 4 && !kOneShift ? 24 - kBits<D> : 0;
    // A half of the step more must stay within the lane.
    constexpr int kInRoom = !std::is_signed_v<S> || kTruncates ? 0 : sizeof(S) == 2 ? 15 : 30 - kBits<D>;
    if constexpr (kThroughReal > 0)
        if (n <= kThroughReal)
            return withRounding(Mode, false, [=](auto half) {
                return run(ToSmall<S, D, decltype(half)::value, Times<Tpx32f>>{{powerOfTwo<Tpx32f>(-n)}});
            });
    if constexpr (kInRoom > 0)
        if (n <= kInRoom) return run(Scaled<S, D, ShrinkInRoom<Mode, D, Vec<S>>>(n));
    if constexpr (!kTruncates && (Most <= kThroughReal)) {
        __builtin_unreachable();
    } else if constexpr (std::is_signed_v<S>) {
        using Any = std::conditional_t<kTruncates, Truncate<D, Vec<S>>, RoundedShift<Mode, Vec<S>>>;
        return run(Scaled<S, D, Any>(n));
    } else {
        // The largest samples round to 2^(width - 1).
        if constexpr (!kTruncates)
            if (n == 1) return run(Scaled<S, D, RoundedShift<Mode, Vec<S>>, AllBits::Used>(n));
        return run(Scaled<S, D, ShrinkUnsigned<Mode, Vec<S>>>(n));
    }
}

// Above the factor `zeroAbove` all samples give 0 in every mode, though wide ones need not come to that.
template <int ZeroAbove, class S, class D>
TpxStatus convertScaled(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi, TpxRoundMode mode, int n) {
    const auto run = [&](auto rule) { return convert<Steps::Free, Layout::C1>(src, dst, roi, rule); };
    if (n == 0) return run(Narrow<S, D>{});
    if (n < 0) {
        constexpr AllBits kBitsOfLimit = sizeof(S) == sizeof(D) ? AllBits::Used : AllBits::Unused;
        // From the number of value bits on, whatever is not 0 saturates.
        return run(Scaled<S, D, Grow<D>, kBitsOfLimit>(-clampTo(n, -kValueBits<D>, 0)));
    }
    constexpr int kShiftedOut = 64;
    if (n > ZeroAbove) return shrink<tpxRoundTowardZero, ZeroAbove, S, D>(kShiftedOut, run);
    if (mode == tpxRoundTowardZero) return shrink<tpxRoundTowardZero, ZeroAbove, S, D>(n, run);
    if (mode == tpxRoundNearestEven) return shrink<tpxRoundNearestEven, ZeroAbove, S, D>(n, run);
    return shrink<tpxRoundHalfAway, ZeroAbove, S, D>(n, run);
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_CONVERT_SCALED(S, D, ZeroAbove)                                                                \
    TPX_ENTRY(tpxiConvert_##S##D##_C1RSfs)                                                                 \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, TpxRoundMode roundMode, \
     int scaleFactor) {                                                                                    \
        return convertScaled<ZeroAbove, Tpx##S, Tpx##D>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize),   \
                                                        roundMode, scaleFactor);                           \
    }
TPX_CONVERT_SCALED(8u, 8s, 8)
TPX_CONVERT_SCALED(16s, 8s, 17)
TPX_CONVERT_SCALED(16u, 8s, 15)
TPX_CONVERT_SCALED(16u, 16s, 16)
TPX_CONVERT_SCALED(32s, 16s, 31)
TPX_CONVERT_SCALED(32s, 16u, 31)
TPX_CONVERT_SCALED(32u, 8s, 15)
TPX_CONVERT_SCALED(32u, 8u, 15)
TPX_CONVERT_SCALED(32u, 16s, 31)
TPX_CONVERT_SCALED(32u, 16u, 33)
TPX_CONVERT_SCALED(32u, 32s, 32)
#undef TPX_CONVERT_SCALED
