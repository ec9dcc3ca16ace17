// SPDX-License-Identifier: Apache-2.0
// Sums and differences shifted right without wider lanes: by way of their halves, which fit.
#pragma once

#include "frame/simd/integer.h"

namespace tpx {

// Half of an integer that may have a bit more than a lane. The lowest bit of `odd` tells whether the half was
// rounded; up in unsigned lanes, down in signed ones. Other bits of `odd` have no meaning.
template <class V>
struct Half {
    V rounded, odd;
};

inline Half<V8u> halfOfSum(V8u a, V8u b) { return {average(a, b), a ^ b}; }
inline Half<V16u> halfOfSum(V16u a, V16u b) { return {average(a, b), a ^ b}; }
inline Half<V16s> halfOfSum(V16s a, V16s b) {
    const V16s unlike = a ^ b;
    return {(a & b) + (unlike >> 1), unlike};
}
// Of b - a.
inline Half<V16s> halfOfDifference(V16s a, V16s b) {
    const V16s unlike = a ^ b;
    return {(unlike >> 1) - (a & ~b), unlike};
}

// Ties to even: where the half was rounded to an odd integer, its even neighbour is on the other side.
template <class V>
inline V halfToEven(Half<V> half) {
    const V wrong = half.odd & half.rounded & splat<V>(1);
    if constexpr (std::is_signed_v<LaneOf<V>>)
        return addSat(half.rounded, wrong);
    else
        return half.rounded - wrong;
}

// Halves shifted right by n from 1 to the lane's width, to nearest with ties to even. (half + 2^(n-1)) >> n
// rounds ties up, and for an unsigned half that was rounded up also what is just below a tie. Where that is
// wrong 1 is first taken off, which changes no other quotient: where the quotient is even, and where the half
// was rounded.
template <class V>
struct ShrunkHalf {
    explicit ShrunkHalf(int shift) : n(shift) {}

    V operator()(Half<V> half) const {
        // Of the quotient the lowest bit alone is right in bytes, which have no shifts of their own; where it
        // is another byte's, the quotient is 0.
        const V quotient = bitsAs<V>(shiftRight(bitsAs<V16u>(half.rounded), n < kBits<LaneOf<V>> ? n : 16));
        const V less = without(without(half.odd, quotient), splat<V>(1));
        return average(shiftRight(subSat(half.rounded, less), n - 1), V{});
    }

    int n;
};
// The half was rounded down, and so gives the right quotient by itself, but for ties: for n to 15, the rounding
// product.
template <>
struct ShrunkHalf<V16s> {
    explicit ShrunkHalf(int n)
        : quotientBit(splat<V16s>(Tpx16s(1u << n))), factor(splat<V16s>(Tpx16s(1 << (15 - n)))) {}

    V16s operator()(Half<V16s> half) const {
        const V16s notTie = (half.odd & splat<V16s>(1)) | (half.rounded & quotientBit);
        // The smallest has a whole quotient.
        return multiplyRounded(addSat(half.rounded, V16s(notTie == V16s{})), factor);
    }

    V16s quotientBit, factor;
};

} // namespace tpx
