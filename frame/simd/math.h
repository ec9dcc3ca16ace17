// SPDX-License-Identifier: Apache-2.0
// Logarithm and exponential of registers of samples, single and double precision.
//
// All follow the classic scheme (W. J. Cody, W. Waite, Software Manual for the Elementary Functions, 1980; the
// quotients are those of the freely distributable kernels of SunPro, 1993): reduce by powers of two with ln 2
// in two parts, approximate, and add the large part last with its rounding error carried along or kept small.
// The polynomials are minimax fits of this project (Remez exchange in many digits, then rounded).
//
// Errors, in units in the last place: single precision below 0.80 for the logarithm and 0.73 for the
// exponential, found by running through all 2^32 arguments; double precision below 0.85 and 0.76, found over
// random ones. Denormal arguments count in. A result of the exponential that is denormal is rounded twice, to
// less than 0.79. That holds under rounding to nearest; under another direction results are a few units worse.
#pragma once

#include "frame/simd/simd.h"

namespace tpx {

// ---- What both precisions share --------------------------------------------------------------------------

template <class T>
struct FloatFormat;

template <>
struct FloatFormat<float> {
    static constexpr Tpx32s kExponent = 0x7F800000;
    static constexpr float kMinNormal = 0x1p-126f, kLargest = 0x1.FFFFFEp+127f;
};
template <>
struct FloatFormat<double> {
    static constexpr Tpx64s kOne = 0x3FF0000000000000, kExponent = 0x7FF0000000000000,
                            kFraction = 0x000FFFFFFFFFFFFF;
    static constexpr double kMinExponent = -1022, kMaxExponent = 1023;
    static constexpr double kMinNormal = 0x1p-1022, kLargest = 0x1.FFFFFFFFFFFFFp+1023;
};

template <class T>
struct MathConstants;

template <>
struct MathConstants<float> {
    // The high part times any exponent is exact.
    static constexpr float kLn2High = 0x1.62E4p-1f, kLn2Low = 0x1.7F7D1Cp-20f;
    // (2 atanh(s) / s - 2) / s^2 in powers of s^2, |s| <= 0.184: 2^-29 of the logarithm.
    static constexpr float kLogarithm[] = {0x1.555592p-1f, 0x1.994B98p-2f, 0x1.33E706p-2f};
    // (e^r - 1 - r) / r^2 in powers of r, |r| <= ln(2) / 2: 2^-28.2 of the exponential.
    static constexpr float kExponential[] = {0x1.FFFFFCp-2f, 0x1.555492p-3f, 0x1.5558F2p-5f, 0x1.123A20p-7f,
                                             0x1.6A23CAp-10f};
    // Beyond these the exponential is infinite, or rounds to zero.
    static constexpr float kExpMax = 89, kExpMin = -104;
};

template <>
struct MathConstants<double> {
    static constexpr double kLn2High = 0x1.62E42FEFA2p-1, kLn2Low = 0x1.9EF35793C7673p-41;
    // The same for |s| <= 1/5, 2^-61.4 of the logarithm.
    static constexpr double kLogarithm[] = {0x1.555555555554Fp-1, 0x1.999999999C0F7p-2, 0x1.24924921EC0D6p-2,
                                            0x1.C71C7488D928Ep-3, 0x1.745C4C7AD4627p-3, 0x1.3B358BB1BBB70p-3,
                                            0x1.0DCF1380A9B17p-3, 0x1.1B69EE324D740p-3};
    // (r coth(r / 2) - 2) / r^2 in powers of r^2, |r| <= ln(2) / 2: 2^-62.1 of the exponential.
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

// ---- Single precision ------------------------------------------------------------------------------------
// Images are made with these, so both functions are in two forms: a short one for ordinary arguments, and one
// for all, which gives the ordinary ones the same results. What bounds the short forms are the processor's
// pipes for sums and for products: they have 10 of one and 11 of the other with the division, and 13 and 11.

// Whether every lane is positive, normal, and at most a quarter of the largest number. A sum of positive
// numbers is at least any of them; of infinity or NaN it is no ordinary number, whatever the minimum makes of
// NaN.
template <class... V>
inline bool isOrdinaryForLogarithm(V32f first, V... others) {
    V32f least = first, sum = first;
    ((least = minOf(least, others), sum = sum + others), ...);
    const auto ordinary = (least >= FloatFormat<float>::kMinNormal) & (sum <= 0x1p126f);
    return laneBits(ordinary) == 0xFF;
}

// The logarithm of x 2^-n for an ordinary x, where origin is (127 - n) 2^23.
inline V32f ordinaryLogarithm(V32f x, V32f origin) {
    using Constants = MathConstants<float>;
    // x = 2^k (1 + f), with 1 + f from 0.69 to 1.38. That many times x have the exponent k + 1; its bits turned
    // round are 2^-k itself, and as an integer (127 - k) 2^23.
    const V32f multiple = x * 2.9f;
    const B32f turned = ~bitsAs<B32f>(multiple) & FloatFormat<float>::kExponent;
    const V32f f = x * bitsAs<V32f>(turned) - 1;
    const V32f k = toFloat(turned) - origin; // times -2^23

    // log(1 + f) = 2 atanh(s) = f - f^2/2 + s (f^2/2 + R(s^2)).
    const V32f s = f / (f + 2), z = s * s;
    const V32f half = 0.5f * f * f;
    const V32f tail =
        s * (half + z * polynomial(z, Constants::kLogarithm)) + k * (-0x1p-23f * Constants::kLn2Low);
    return k * (-0x1p-23f * Constants::kLn2High) + (f - (half - tail));
}
inline V32f ordinaryLogarithm(V32f x) { return ordinaryLogarithm(x, splat<V32f>(127 * 0x1p23f)); }

// Natural logarithm. -infinity at zeros of either sign, NaN for negative arguments.
inline V32f logarithm(V32f x) {
    using Format = FloatFormat<float>;
    // Denormals are brought up by 2^149, which is to take their bits for an integer; large ones come down.
    const auto small = x<Format::kMinNormal, large = x> 0x1p126f;
    const V32f near = select(small, toFloat(bitsAs<B32f>(x)), select(large, x * 0.25f, x));
    const V32f origin =
        127 * 0x1p23f - masked(small, splat<V32f>(149 * 0x1p23f)) + masked(large, splat<V32f>(2 * 0x1p23f));
    const V32f y = ordinaryLogarithm(near, origin);
    // Infinity and NaN stay what they are.
    const V32f finite = select(~(x <= Format::kLargest), x + x, y);
    return bitsAs<V32f>((x < V32f{}) |
                        bitsAs<B32f>(select(x == V32f{}, splat<V32f>(-__builtin_huge_valf()), finite)));
}

// Whether the exponential of every lane is a normal number, with a little to spare.
template <class... V>
inline bool isOrdinaryForExponential(V... x) {
    return laneBits(((absSat(x) <= 87.3f) & ...)) == 0xFF;
}

// e^x = scale 2^k.
struct ScaledExponential {
    V32f scale, k;

    explicit ScaledExponential(V32f x) {
        using Constants = MathConstants<float>;
        // x = k ln(2) + r, r = high - low.
        k = roundNearest(x * 1.44269504088896340736f);
        const V32f high = x - k * Constants::kLn2High, low = k * Constants::kLn2Low;
        const V32f r = high - low, z = r * r;
        // Terms in pairs: in Horner's scheme each operation waits for the one before.
        const auto& c = Constants::kExponential;
        const V32f quotient = (c[0] + r * c[1]) + z * ((c[2] + r * c[3]) + z * c[4]);
        scale = sumOfThree(splat<V32f>(1), high, z * quotient - low);
    }
};

// For ordinary arguments.
inline V32f ordinaryExponential(V32f x) {
    const ScaledExponential e(x);
    return e.scale * bitsAs<V32f>(toIntegerJoined(e.k * 0x1p23f + 127 * 0x1p23f));
}

// The exponential: infinite above the range, 0 below it.
inline V32f exponential(V32f x) {
    using Constants = MathConstants<float>;
    // The bound comes first in both comparisons, so that NaN goes on.
    const ScaledExponential e(
        maxOf(splat<V32f>(Constants::kExpMin), minOf(splat<V32f>(Constants::kExpMax), x)));
    // The bits of a denormal, as an integer, are its multiple of 2^-149; so are those of the next two
    // exponents. The scale is doubled and 2^k halved, since above the range 2^k is no number.
    const auto low = e.k < -125.0f;
    const V32f origin = 126 * 0x1p23f + masked(low, splat<V32f>(149 * 0x1p23f));
    const V32f y = (e.scale + e.scale) * bitsAs<V32f>(toIntegerJoined(e.k * 0x1p23f + origin));
    return select(low, bitsAs<V32f>(toIntegerJoined(y)), y);
}

// ---- Double precision ------------------------------------------------------------------------------------

// The exponent of each lane, floor(log2 |x|), for normal x.
inline V64f exponentOf(V64f x) {
    // The field lands in the lowest bits of 2^52.
    typedef Tpx64u Words __attribute__((vector_size(32)));
    const Words field = (bitsAs<Words>(x) << 1) >> 53;
    return bitsAs<V64f>(field | 0x4330000000000000) - (0x1p52 + 1023);
}

// 2^k for integral k whose power is a normal number.
inline V64f powerOfTwo(V64f k) {
    const __m128i upper = _mm_slli_epi32(_mm256_cvtpd_epi32(k + 1023), 20), zero = __m128i{};
    return bitsAs<V64f>(_mm256_insertf128_si256(_mm256_castsi128_si256(_mm_unpacklo_epi32(zero, upper)),
                                                _mm_unpackhi_epi32(zero, upper), 1));
}

// Natural logarithm. -infinity at zeros of either sign, NaN for negative arguments.
inline V64f logarithm(V64f x) {
    using Format = FloatFormat<double>;
    using Constants = MathConstants<double>;
    const V64f zero{}, one = splat<V64f>(1);

    // x = 2^k (1 + f), with 1 + f from 2/3 to 4/3. Denormals are brought up by 2^60 first.
    const auto tiny = x < Format::kMinNormal;
    const V64f normal = select(tiny, x * 0x1p60, x);
    const V64f unit = bitsAs<V64f>((bitsAs<B64f>(normal) & Format::kFraction) | Format::kOne);
    const auto upper = unit > 4 / 3.0;
    const V64f f = unit * (one - masked(upper, splat<V64f>(0.5))) - 1;
    const V64f k = exponentOf(normal) + (masked(upper, one) - masked(tiny, splat<V64f>(60)));

    // log(1 + f) = 2 atanh(s) = f - f^2/2 + s (f^2/2 + R(s^2)).
    const V64f s = f / (f + 2), z = s * s;
    const V64f half = 0.5 * f * f;
    const V64f tail = s * (half + z * polynomial(z, Constants::kLogarithm)) + k * Constants::kLn2Low - half;
    const V64f y = sumOfThree(k * Constants::kLn2High, f, tail);

    // Infinity and NaN add themselves.
    const V64f added =
        masked(x == zero, splat<V64f>(-__builtin_huge_val())) + masked(~(x <= Format::kLargest), x);
    return bitsAs<V64f>((x < zero) | bitsAs<B64f>(y + added));
}

// e^(x + low), for a `low` that is small beside x: infinite above the range, 0 below it.
inline V64f exponential(V64f x, V64f low) {
    using Format = FloatFormat<double>;
    using Constants = MathConstants<double>;

    // The bound comes first in both comparisons, so that NaN goes on.
    x = minOf(splat<V64f>(Constants::kExpMax), x);
    x = maxOf(splat<V64f>(Constants::kExpMin), x);

    // x = k ln(2) + r.
    const V64f k = roundNearest(x * 1.44269504088896340736);
    const V64f high = x - k * Constants::kLn2High;
    low = low - k * Constants::kLn2Low;
    const V64f r = high + low, z = r * r;

    // e^r = 1 + r + r c / (2 - c), c = r - r^2 P(r^2).
    const V64f c = r - z * polynomial(z, Constants::kExponential);
    const V64f y = sumOfThree(splat<V64f>(1), high, r * c / (2 - c) + low);

    // In two steps, since 2^k may lie outside the normal numbers where the result does not. The first is exact.
    const V64f bulk = minOf(maxOf(k, splat<V64f>(Format::kMinExponent)), splat<V64f>(Format::kMaxExponent));
    return y * powerOfTwo(k - bulk) * powerOfTwo(bulk);
}
inline V64f exponential(V64f x) { return exponential(x, V64f{}); }

} // namespace tpx
