// SPDX-License-Identifier: Apache-2.0
// Rounding through floating point, with a mode and a factor.
//
// The direction is installed in the control register for the call. Ties away from zero are a half added to the
// magnitude and the sum truncated; the sum too is rounded toward zero, so the next number below a half does not
// become 1.
#pragma once

#include "frame/simd/control.h"
#include "movement/convert.h"

namespace tpx {

// ---- Rules: Half tells whether to add one before the conversion rounds as the control register says -----

// The half has the sample's sign.
template <class V>
inline V addHalf(V x) {
    using F = LaneOf<V>;
    return x + select(x, splat<V>(F(-0.5)), splat<V>(F(0.5)));
}

template <class F>
struct Times {
    F factor;
    Vec<F> operator()(Vec<F> x) const { return x * splat<Vec<F>>(factor); }
};

// Samples as the floating point that they are rounded in, S or single precision for 32-bit integers. Of these
// only magnitudes up to 2^24 are exact; larger ones become any number from there on, and those that would count
// as negative become 2^24.
template <class S>
inline auto loadReal(const S* p) {
    if constexpr (std::is_floating_point_v<S>) {
        return load(p);
    } else {
        B32f x;
        __builtin_memcpy(&x, p, sizeof x);
        if constexpr (!std::is_signed_v<S>)
            x = bitsAs<B32f>(select(x, bitsAs<V32f>(B32f{} + (1 << 24)), bitsAs<V32f>(x)));
        return toFloat(x);
    }
}

// To 8 and 16 bits. The limit from above comes first, unless the samples are integers made smaller: with it NaN
// becomes the largest value. From below the conversion and the narrowing saturate.
template <class S, class D, bool Half, class Scale>
struct ToSmall {
    Scale scale;
    Vec<D> operator()(const S* p) const {
        using V = decltype(loadReal(p));
        using F = LaneOf<V>;
        Several<V32s, kLanes<D> / kLanes<Tpx32s>> parts;
        for (int i = 0; i < kLanes<D> / kLanes<F>; i++) {
            V x = scale(loadReal(p + i * kLanes<F>));
            if constexpr (std::is_floating_point_v<S>) x = minOf(x, splat<V>(kMax<D>));
            // A negative result is 0 in the end, so a positive half serves unsigned types.
            if constexpr (Half) x = std::is_signed_v<D> ? addHalf(x) : x + splat<V>(F(0.5));
            if constexpr (sizeof(F) == 4) {
                const Pair<V32s> two = toInteger(x);
                parts.at[2 * i] = two.low;
                parts.at[2 * i + 1] = two.high;
            } else {
                parts.at[i] = toInteger(x);
            }
        }
        return narrowAll<D>(parts);
    }
};

// ---- Calls ----------------------------------------------------------------------------------------------

// Whether samples times 2^-n may be read with zeros for denormal ones, on which arithmetic is slow: those must
// come to less than a half, which is 0 in every mode, and the factor itself must be no denormal one.
template <class S>
constexpr bool denormalsGiveZero(int n) {
    return sizeof(S) == 8 || (n >= -125 && n <= 126);
}

// body(whether to add a half), in the control that this needs.
template <class Body>
inline TpxStatus withRounding(TpxRoundMode mode, bool denormalsAreZeros, Body body) {
    FloatSettings settings = roundingAs(mode == tpxRoundNearestEven ? Rounding::Nearest : Rounding::TowardZero);
    if (denormalsAreZeros) settings.value |= FloatSettings::kDenormalsAreZeros;
    const FloatControl control(settings);
    if (mode == tpxRoundNearestEven || mode == tpxRoundTowardZero) return body(std::false_type{});
    return body(std::true_type{});
}

} // namespace tpx
