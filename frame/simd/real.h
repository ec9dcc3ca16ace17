// SPDX-License-Identifier: Apache-2.0
// SIMD operations on floating point, to and from it.
#pragma once

#include "frame/simd/integer.h"

namespace tpx {

// ---- From integers and from another precision ------------------------------------------------------------

// A register of floating point from integers, rounded with the thread's rounding mode.
inline V32f toFloat(B32f a) { return V32f(_mm256_cvtepi32_ps(bitsAs<__m256i>(a))); }
inline V32f toFloat(Pair<V32s> a) { return toFloat(join(a)); }
inline V32f toFloat(Pair<V64f> a) {
    return V32f(
        _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(a.low)), _mm256_cvtpd_ps(a.high), 1));
}
inline V64f toDouble(V32s a) { return V64f(_mm256_cvtepi32_pd(__m128i(a))); }
inline V64f toDouble(V32u a) { // exact: half of the range lower, as signed
    return toDouble(V32s(a ^ splat<V32u>(0x80000000))) + splat<V64f>(0x1p31);
}

inline Pair<V64f> widen(V32f a) {
    return {V64f(_mm256_cvtps_pd(_mm256_castps256_ps128(a))),
            V64f(_mm256_cvtps_pd(_mm256_extractf128_ps(a, 1)))};
}

// A register of To from as many samples of a type that is no wider and whose values it holds.
template <class To, class From>
inline Vec<To> loadAs(const From* p) {
    if constexpr (std::is_integral_v<To> && sizeof(To) == sizeof(From)) {
        return bitsAs<Vec<To>>(load(p));
    } else if constexpr (std::is_same_v<To, Tpx32f>) {
        return toFloat(Pair<V32s>{loadAs<Tpx32s>(p), loadAs<Tpx32s>(p + 4)});
    } else if constexpr (std::is_same_v<To, Tpx64f>) {
        return toDouble(loadAs<Tpx32s>(p));
    } else {
        constexpr int kBytes = kLanes<To> * int(sizeof(From));
        __m128i v = __m128i(loadFront<kBytes>(p));
        constexpr bool s = std::is_signed_v<From>;
        if constexpr (sizeof(To) == 2)
            v = s ? _mm_cvtepi8_epi16(v) : _mm_cvtepu8_epi16(v);
        else if constexpr (sizeof(From) == 1)
            v = s ? _mm_cvtepi8_epi32(v) : _mm_cvtepu8_epi32(v);
        else
            v = s ? _mm_cvtepi16_epi32(v) : _mm_cvtepu16_epi32(v);
        return Vec<To>(v);
    }
}

// ---- Floating point -------------------------------------------------------------------------------------

// Operations of registers; those of single numbers are the same in one lane.
inline V32f squareRoot(V32f a) { return V32f(_mm256_sqrt_ps(a)); }
inline V64f squareRoot(V64f a) { return V64f(_mm256_sqrt_pd(a)); }
inline float squareRoot(float a) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(a))); }
inline double squareRoot(double a) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_set_sd(a), _mm_set_sd(a))); }

// Rounding to an integral value with the direction in the instruction, whatever the control register says.
template <Rounding R, class X>
inline X rounded(X a) {
    constexpr int kDirection = int(R) | _MM_FROUND_NO_EXC;
    if constexpr (std::is_same_v<X, V32f>)
        return X(_mm256_round_ps(a, kDirection));
    else if constexpr (std::is_same_v<X, V64f>)
        return X(_mm256_round_pd(a, kDirection));
    else if constexpr (std::is_same_v<X, float>)
        return _mm_cvtss_f32(_mm_round_ss(_mm_set_ss(a), _mm_set_ss(a), kDirection));
    else
        return _mm_cvtsd_f64(_mm_round_sd(_mm_set_sd(a), _mm_set_sd(a), kDirection));
}
template <class X>
inline X roundNearest(X a) {
    return rounded<Rounding::Nearest>(a);
}

// Integers from a register of floating point, rounded with the thread's rounding mode, or without the fraction;
// a value outside the integers gives the smallest one. The joined forms stay in one register.
inline B32f toIntegerJoined(V32f a) { return B32f(_mm256_cvtps_epi32(a)); }
inline B32f toIntegerTruncatedJoined(V32f a) { return B32f(_mm256_cvttps_epi32(a)); }
inline Pair<V32s> toInteger(V32f a) { return split(toIntegerJoined(a)); }
inline Pair<V32s> toIntegerTruncated(V32f a) { return split(toIntegerTruncatedJoined(a)); }
inline V32s toInteger(V64f a) { return V32s(_mm256_cvtpd_epi32(a)); }
inline V32s toIntegerTruncated(V64f a) { return V32s(_mm256_cvttpd_epi32(a)); }
inline int toInteger(float a) { return _mm_cvtss_si32(_mm_set_ss(a)); }
inline int toInteger(double a) { return _mm_cvtsd_si32(_mm_set_sd(a)); }

// a <= b as a mask that stays among the floats, where lanes of masks are added or and-ed with numbers.
inline V32f lessOrEqual(V32f a, V32f b) { return V32f(_mm256_cmp_ps(a, b, _CMP_LE_OQ)); }
inline V64f lessOrEqual(V64f a, V64f b) { return V64f(_mm256_cmp_pd(a, b, _CMP_LE_OQ)); }

// The sum of all lanes: halves of the register are added, then halves of that. Filters end a sum of products
// with it.
inline float sumOfLanes(V32f a) {
    const __m128 four = _mm_add_ps(_mm256_castps256_ps128(a), _mm256_extractf128_ps(a, 1));
    const __m128 two = _mm_add_ps(four, _mm_movehl_ps(four, four));
    return _mm_cvtss_f32(_mm_add_ss(two, _mm_movehdup_ps(two)));
}
inline double sumOfLanes(V64f a) {
    const __m128d two = _mm_add_pd(_mm256_castpd256_pd128(a), _mm256_extractf128_pd(a, 1));
    return _mm_cvtsd_f64(_mm_add_sd(two, _mm_unpackhi_pd(two, two)));
}

// ---- Absolute value -------------------------------------------------------------------------------------

inline V32f absSat(V32f a) {
    return V32f(_mm256_and_ps(a, _mm256_castsi256_ps(_mm256_set1_epi32(0x7FFFFFFF))));
}
inline V64f absSat(V64f a) {
    return V64f(_mm256_and_pd(a, _mm256_castsi256_pd(_mm256_set1_epi64x(0x7FFFFFFFFFFFFFFF))));
}

// ---- Single numbers -------------------------------------------------------------------------------------

// 2^n for an exponent within the normal numbers.
template <class F>
inline F powerOfTwo(int n) {
    if constexpr (sizeof(F) == 8)
        return __builtin_bit_cast(F, (Tpx64u(n) + 1023) << 52);
    else
        return __builtin_bit_cast(F, (Tpx32u(n) + 127) << 23);
}

} // namespace tpx
