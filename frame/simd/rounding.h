// SPDX-License-Identifier: Apache-2.0
// Rounding and saturation, each rule once: shifts to the right that round, shifts to the left that saturate,
// floating point to integer samples.
#pragma once

#include "frame/simd/real.h"

namespace tpx {

// The bits of a type's largest value. Shifted left by so many, whatever is not 0 saturates.
template <class T>
inline constexpr int kValueBits = kBits<T> - std::is_signed_v<T>;

// ---- Integers shifted right: x * 2^-n, n from 1 on --------------------------------------------------------

// Halves go up: (x + 2^(n-1)) >> n. Unsigned lanes may have any value, and n may pass the lane's width: half is
// added behind a shift by n - 1, where it cannot overflow.
template <class V>
struct HalvesUp {
    int n;

    explicit HalvesUp(int shift) : n(shift) {}
    V operator()(V x) const { return average(shiftRight(x, n - 1), V{}); }
};
// n up to 31, and x + 2^(n-1) fits its lane.
template <>
struct HalvesUp<V32s> {
    int n;
    V32s half;

    explicit HalvesUp(int shift) : n(shift), half(splat<V32s>(1 << (shift - 1))) {}
    V32s operator()(V32s x) const { return shiftRight(x + half, n); }
};
// Any value, n up to 15: the rounding product is such a shift.
template <>
struct HalvesUp<V16s> {
    V16s factor;

    explicit HalvesUp(int n) : factor(splat<V16s>(Tpx16s(1 << (15 - n)))) {}
    V16s operator()(V16s x) const { return multiplyRounded(x, factor); }
};

// Whether x +- 2^(n-1) is known to fit the lane; sums of narrower samples have that room.
enum class Headroom { None, Half };

// x * 2^-n rounded in a mode. Signed lanes go by their magnitude. With ties to even, 1 is first taken off where
// the quotient is even, which makes a tie less than half and changes no other quotient; then halves go up.
// Lanes may have any value, and n may pass their width.
template <TpxRoundMode Mode, class V, Headroom H = Headroom::None>
struct RoundedShift {
    using M = decltype(magnitude(V{}));
    int n;

    explicit RoundedShift(int shift) : n(shift) {}
    V operator()(V x) const {
        const M m = magnitude(x);
        M quotient;
        if constexpr (Mode == tpxRoundTowardZero)
            quotient = shiftRight(m, n);
        else if constexpr (Mode == tpxRoundNearestEven)
            quotient = HalvesUp<M>(n)(subSat(m, ~shiftRight(m, n) & splat<M>(1)));
        else
            quotient = HalvesUp<M>(n)(m);
        if constexpr (std::is_same_v<M, V>)
            return quotient;
        else
            return withSign(quotient, x);
    }
};

// The same for signed lanes that have the room, which need not be taken apart; n up to a lane's width less 1.
// Taking 1 off the negative ones makes their halves go down, away from zero. Lanes of 16 bits may have any
// value: the smallest, from which nothing can be taken, has a whole quotient. In those of 32 the half comes
// first, so that they may have the smallest, too.
template <TpxRoundMode Mode, class V>
requires(Mode != tpxRoundTowardZero &&
         std::is_signed_v<LaneOf<V>>) struct RoundedShift<Mode, V, Headroom::Half> {
    HalvesUp<V> halvesUp;
    V resultBit; // of the quotient, the lowest

    explicit RoundedShift(int n) : halvesUp(n), resultBit(splat<V>(LaneOf<V>(1u << n))) {}
    V operator()(V x) const {
        const V less = Mode == tpxRoundNearestEven ? V((x & resultBit) == V{}) : V(x < V{});
        if constexpr (sizeof(LaneOf<V>) == 2)
            return halvesUp(addSat(x, less));
        else
            return shiftRight(x + halvesUp.half + less, halvesUp.n);
    }
};

// ---- Integers shifted left and saturated: x * 2^k, k from 1 to the value bits of the result ---------------

// Limited to the last sample that does not saturate and the next above, so that nothing is shifted out.
template <class D, class V>
inline V limitForShift(V x, int k) {
    using T = LaneOf<V>;
    x = minOf(x, splat<V>(T((kMax<D> >> k) + 1)));
    if constexpr (std::is_signed_v<T>) x = maxOf(x, splat<V>(T(kMin<D> >> k)));
    return x;
}

// In lanes that have a bit more than D's values, and saturate when they are narrowed to D.
template <class D, class V>
inline V shiftLeftLimited(V x, int k) {
    return V(shiftLeft(bitsAs<decltype(magnitude(x))>(limitForShift<D>(x, k)), k));
}

// Samples of 8 and 16 bits, saturated.
template <class V>
inline V shiftLeftSat(V x, int k) {
    using T = LaneOf<V>;
    if constexpr (!std::is_signed_v<T>) x = limitForShift<T>(x, k); // signed ones have the wider lane's room
    const auto w = widen(x);
    return narrow<T>(std::remove_const_t<decltype(w)>{shiftLeft(w.low, k), shiftLeft(w.high, k)});
}

// ---- Several registers of wide lanes to one of samples, saturated -----------------------------------------

// Signed lanes, or unsigned ones below 2^(width - 1).
template <class T, class V>
inline Vec<T> narrowAll(const Several<V, 1>& a) {
    return bitsAs<Vec<T>>(a.at[0]);
}
template <class T, class V>
inline Vec<T> narrowAll(const Several<V, 2>& a) {
    return narrow<T>(Pair<V>{a.at[0], a.at[1]});
}
template <class T, class V>
inline Vec<T> narrowAll(const Several<V, 4>& a) {
    return narrow<T>(
        Pair<V16s>{narrow<Tpx16s>(Pair<V>{a.at[0], a.at[1]}), narrow<Tpx16s>(Pair<V>{a.at[2], a.at[3]})});
}

// ---- Floating point to integer samples of 8 and 16 bits ---------------------------------------------------

enum class NanBecomes { Least, Most };

// Integers of 32 bits that saturate when they are narrowed to T. The limit from below is the conversion's own:
// what it has no integer for becomes the smallest. Rounds to nearest with ties to even whatever the control
// register says, or as R tells.
template <class T, Rounding R = Rounding::Nearest, NanBecomes Nan = NanBecomes::Least, class V>
inline auto toLanesOf(V x) {
    const V most = splat<V>(kMax<T>);
    const V limited = Nan == NanBecomes::Most ? minOf(x, most) : minOf(most, x);
    if constexpr (R == Rounding::OfThread)
        return toInteger(limited);
    else if constexpr (R == Rounding::TowardZero)
        return toIntegerTruncated(limited);
    else
        return toInteger(rounded<R>(limited));
}

// A register of samples from as many lanes of float or double.
template <class T, Rounding R = Rounding::Nearest, NanBecomes Nan = NanBecomes::Least, class V, int N>
inline Vec<T> toSamples(const Several<V, N>& x) {
    Several<V32s, kLanes<T> / kLanes<Tpx32s>> parts;
    for (int i = 0; i < N; i++) {
        const auto lanes = toLanesOf<T, R, Nan>(x.at[i]);
        if constexpr (std::is_same_v<V, V32f>) {
            parts.at[2 * i] = lanes.low;
            parts.at[2 * i + 1] = lanes.high;
        } else {
            parts.at[i] = lanes;
        }
    }
    return narrowAll<T>(parts);
}
// A single sample; NaN becomes the least.
template <class T, Rounding R = Rounding::Nearest>
inline T toSample(auto x) {
    const auto limited = minOf(decltype(x)(kMax<T>), x);
    if constexpr (R == Rounding::OfThread)
        return T(maxOf(toInteger(limited), int(kMin<T>)));
    else
        return T(maxOf(toInteger(rounded<R>(limited)), int(kMin<T>)));
}

} // namespace tpx
