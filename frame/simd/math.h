// SPDX-License-Identifier: Apache-2.0
// Logarithm and exponential of registers of samples, single and double precision from one text.
//
// Both follow the classic scheme (W. J. Cody, W. Waite, Software Manual for the Elementary Functions, 1980;
// the quotients are those of the freely distributable kernels of SunPro, 1993): reduce by powers of two with
// ln 2 in two parts, approximate, and add the large part last with its rounding error carried along.
// The polynomials are minimax fits of this project (Remez exchange in 300 bits, then rounded).
//
// Errors, in units in the last place: single precision below 0.83 for the logarithm and 0.74 for the
// exponential, found by running through all 2^32 arguments; double precision below 0.85 and 0.76, found over
// random ones. Denormal arguments count in. A result of the exponential that is denormal is rounded twice, to
// less than 0.78. That holds under rounding to nearest; under another direction results are a few units worse.
#pragma once

#include "frame/simd/simd.h"

namespace tpx {

// ---- Powers of two ---------------------------------------------------------------------------------------

template <class T>
struct FloatFormat;

template <>
struct FloatFormat<float> {
    static constexpr Tpx32s kOne = 0x3F800000, kExponent = 0x7F800000, kFraction = 0x007FFFFF;
    static constexpr float kMinExponent = -126, kMaxExponent = 127;
    static constexpr float kMinNormal = 0x1p-126f, kLargest = 0x1.FFFFFEp+127f;
};
template <>
struct FloatFormat<double> {
    static constexpr Tpx64s kOne = 0x3FF0000000000000, kExponent = 0x7FF0000000000000,
                            kFraction = 0x000FFFFFFFFFFFFF;
    static constexpr double kMinExponent = -1022, kMaxExponent = 1023;
    static constexpr double kMinNormal = 0x1p-1022, kLargest = 0x1.FFFFFFFFFFFFFp+1023;
};

// The exponent of each lane, floor(log2 |x|), for normal x.
inline V32f exponentOf(V32f x) {
    const B32f field = bitsAs<B32f>(x) & FloatFormat<float>::kExponent;
    return V32f(_mm256_cvtepi32_ps(__m256i(field))) * 0x1p-23f - 127;
}
inline V64f exponentOf(V64f x) {
    // The field lands in the lowest bits of 2^52.
    typedef Tpx64u Words __attribute__((vector_size(32)));
    const Words field = (bitsAs<Words>(x) << 1) >> 53;
    return bitsAs<V64f>(field | 0x4330000000000000) - (0x1p52 + 1023);
}

// 2^k for integral k whose power is a normal number.
inline V32f powerOfTwo(V32f k) { return bitsAs<V32f>(_mm256_cvtps_epi32((k + 127) * 0x1p23f)); }
inline V64f powerOfTwo(V64f k) {
    const __m128i upper = _mm_slli_epi32(_mm256_cvtpd_epi32(k + 1023), 20), zero = __m128i{};
    return bitsAs<V64f>(_mm256_insertf128_si256(_mm256_castsi128_si256(_mm_unpacklo_epi32(zero, upper)),
                                                _mm_unpackhi_epi32(zero, upper), 1));
}

// ---- Coefficients ----------------------------------------------------------------------------------------

template <class T>
struct MathConstants;

template <>
struct MathConstants<float> {
    // The high part times any exponent is exact.
    static constexpr float kLn2High = 0x1.62E4p-1f, kLn2Low = 0x1.7F7D1Cp-20f;
    // (2 atanh(s) / s - 2) / s^2 in powers of s^2, |s| <= 1/5: 2^-28.2 of the logarithm.
    static constexpr float kLogarithm[] = {0x1.5555B4p-1f, 0x1.992B0Ap-2f, 0x1.36E464p-2f};
    // (r coth(r / 2) - 2) / r^2 in powers of r^2, |r| <= ln(2) / 2: 2^-30.7 of the exponential.
    static constexpr float kExponential[] = {0x1.555514p-3f, -0x1.6A8B2Ap-9f};
    // Beyond these the exponential is infinite, or rounds to zero.
    static constexpr float kExpMax = 89, kExpMin = -104;
};

template <>
struct MathConstants<double> {
    static constexpr double kLn2High = 0x1.62E42FEFA2p-1, kLn2Low = 0x1.9EF35793C7673p-41;
    // As above: 2^-61.4 and 2^-62.1.
    static constexpr double kLogarithm[] = {0x1.555555555554Fp-1, 0x1.999999999C0F7p-2, 0x1.24924921EC0D6p-2,
                                            0x1.C71C7488D928Ep-3, 0x1.745C4C7AD4627p-3, 0x1.3B358BB1BBB70p-3,
                                            0x1.0DCF1380A9B17p-3, 0x1.1B69EE324D740p-3};
    static constexpr double kExponential[] = {
        0x1.555555555552Dp-3,   -0x1.6C16C16BD9EA2p-9, 0x1.1566AAC0432C1p-14,
        -0x1.BBD3AA0BBB692p-20, 0x1.6348A9D2A4A75p-25,
    };
    static constexpr double kExpMax = 710, kExpMin = -746;
};

// Horner's scheme, highest power first, for a register or a single number.
template <class V, class T, int N>
inline V polynomial(V x, const T (&coefficients)[N]) {
    V sum = x * coefficients[N - 1] + coefficients[N - 2];
    for (int i = N - 3; i >= 0; i--) sum = sum * x + coefficients[i];
    return sum;
}

// big + middle + small, where |big| >= |middle| or big is 0: what is lost in the first sum goes to the second.
template <class V>
inline V sumOfThree(V big, V middle, V small) {
    const V sum = big + middle;
    return sum + ((middle - (sum - big)) + small);
}

// ---- The functions --------------------------------------------------------------------------------------

// Natural logarithm. -infinity at zeros of either sign, NaN for negative arguments.
template <class V>
inline V logarithmOf(V x) {
    using T = LaneOf<V>;
    using Bits = VecBits<T>;
    using Format = FloatFormat<T>;
    using Constants = MathConstants<T>;
    const V zero{}, one = splat<V>(1);

    // x = 2^k (1 + f), with 1 + f from 2/3 to 4/3. Denormals are brought up by 2^60 first.
    const auto tiny = x < Format::kMinNormal;
    const V normal = select(tiny, x * T(0x1p60), x);
    const V unit = bitsAs<V>((bitsAs<Bits>(normal) & Format::kFraction) | Format::kOne);
    const auto upper = unit > T(4 / 3.0);
    const V f = unit * (one - masked(upper, splat<V>(T(0.5)))) - 1;
    const V k = exponentOf(normal) + (masked(upper, one) - masked(tiny, splat<V>(60)));

    // log(1 + f) = 2 atanh(s) = f - f^2/2 + s (f^2/2 + R(s^2)).
    const V s = f / (f + 2), z = s * s;
    const V half = T(0.5) * f * f;
    const V tail = s * (half + z * polynomial(z, Constants::kLogarithm)) + k * Constants::kLn2Low - half;
    const V y = sumOfThree(k * Constants::kLn2High, f, tail);

    // Infinity and NaN add themselves.
    const V added = masked(x == zero, splat<V>(-__builtin_huge_val())) + masked(~(x <= Format::kLargest), x);
    return bitsAs<V>((x < zero) | bitsAs<Bits>(y + added));
}

// e^(x + low), for a `low` that is small beside x: infinite above the range, 0 below it.
template <class V>
inline V exponentialOf(V x, V low) {
    using T = LaneOf<V>;
    using Format = FloatFormat<T>;
    using Constants = MathConstants<T>;

    // The bound comes first in both comparisons, so that NaN goes on.
    x = minOf(splat<V>(Constants::kExpMax), x);
    x = maxOf(splat<V>(Constants::kExpMin), x);

    // x = k ln(2) + r.
    const V k = roundNearest(x * T(1.44269504088896340736));
    const V high = x - k * Constants::kLn2High;
    low = low - k * Constants::kLn2Low;
    const V r = high + low, z = r * r;

    // e^r = 1 + r + r c / (2 - c), c = r - r^2 P(r^2).
    const V c = r - z * polynomial(z, Constants::kExponential);
    const V y = sumOfThree(splat<V>(1), high, r * c / (2 - c) + low);

    // In two steps, since 2^k may lie outside the normal numbers where the result does not. The first is exact.
    const V bulk = minOf(maxOf(k, splat<V>(Format::kMinExponent)), splat<V>(Format::kMaxExponent));
    return y * powerOfTwo(k - bulk) * powerOfTwo(bulk);
}

inline V32f logarithm(V32f x) { return logarithmOf(x); }
inline V64f logarithm(V64f x) { return logarithmOf(x); }
inline V32f exponential(V32f x) { return exponentialOf(x, V32f{}); }
inline V64f exponential(V64f x) { return exponentialOf(x, V64f{}); }

} // namespace tpx
