// SPDX-License-Identifier: Apache-2.0
// SIMD operations on integers: saturating and rounded arithmetic, products, and lanes of twice or half the
// width.
#pragma once

#include "frame/simd/core.h"

namespace tpx {

// ---- Saturating and averaging integers -------------------------------------------------------------------

inline V8u addSat(V8u a, V8u b) { return V8u(_mm_adds_epu8(__m128i(a), __m128i(b))); }
inline V16u addSat(V16u a, V16u b) { return V16u(_mm_adds_epu16(__m128i(a), __m128i(b))); }
inline V16s addSat(V16s a, V16s b) { return V16s(_mm_adds_epi16(__m128i(a), __m128i(b))); }
inline V8u subSat(V8u a, V8u b) { return V8u(_mm_subs_epu8(__m128i(a), __m128i(b))); }
inline V16u subSat(V16u a, V16u b) { return V16u(_mm_subs_epu16(__m128i(a), __m128i(b))); }
inline V16s subSat(V16s a, V16s b) { return V16s(_mm_subs_epi16(__m128i(a), __m128i(b))); }

inline V32u subSat(V32u a, V32u b) { return a - minOf(a, b); }

// (a + b + 1) / 2 without overflow.
inline V8u average(V8u a, V8u b) { return V8u(_mm_avg_epu8(__m128i(a), __m128i(b))); }
inline V16u average(V16u a, V16u b) { return V16u(_mm_avg_epu16(__m128i(a), __m128i(b))); }
inline V16s average(V16s a, V16s b) {
    const V16u sign = splat<V16u>(0x8000); // seen as unsigned, both are higher by this
    return V16s(average(V16u(a) ^ sign, V16u(b) ^ sign) ^ sign);
}
inline V32u average(V32u a, V32u b) { return (a | b) - ((a ^ b) >> 1); }

// Shifts by a count that is the same in every lane; a count past the lane's width gives zero.
inline V16u shiftLeft(V16u a, int n) { return V16u(_mm_sll_epi16(__m128i(a), _mm_cvtsi32_si128(n))); }
inline V32u shiftLeft(V32u a, int n) { return V32u(_mm_sll_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }
inline V16u shiftRight(V16u a, int n) { return V16u(_mm_srl_epi16(__m128i(a), _mm_cvtsi32_si128(n))); }
inline V32u shiftRight(V32u a, int n) { return V32u(_mm_srl_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }

inline V8u shiftLeft(V8u a, int n) {
    return V8u(shiftLeft(V16u(a), n)) & splat<V8u>(Tpx8u(n < 8 ? 0xFF << n : 0));
}
inline V8u shiftRight(V8u a, int n) {
    return V8u(shiftRight(V16u(a), n)) & splat<V8u>(Tpx8u(n < 8 ? 0xFF >> n : 0));
}

inline V32s shiftLeft(V32s a, int n) { return V32s(_mm_sll_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }
// Arithmetic: a count past the lane's width leaves the sign.
inline V32s shiftRight(V32s a, int n) { return V32s(_mm_sra_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }

// (a * b + 2^14) >> 15.
inline V16s multiplyRounded(V16s a, V16s b) { return V16s(_mm_mulhrs_epi16(__m128i(a), __m128i(b))); }

// Sums of the products of neighbouring lanes: a0*b0 + a1*b1, a2*b2 + a3*b3, ...
inline V32s multiplyAddPairs(V16s a, V16s b) { return V32s(_mm_madd_epi16(__m128i(a), __m128i(b))); }

inline V16s multiplyAddPairs(V8u a, V8s b) {
    return V16s(_mm_maddubs_epi16(__m128i(a), __m128i(b)));
} // saturating

// Sums of neighbouring lanes: a0 + a1, a2 + a3, ...
inline V16s addPairs(V8u a) { return V16s(_mm_maddubs_epi16(__m128i(a), _mm_set1_epi8(1))); }
inline V32s addPairs(V16s a) { return V32s(_mm_madd_epi16(__m128i(a), _mm_set1_epi16(1))); }

// The upper halves of the products, whose lower halves a * b has.
inline V16u multiplyHigh(V16u a, V16u b) { return V16u(_mm_mulhi_epu16(__m128i(a), __m128i(b))); }
inline V16s multiplyHigh(V16s a, V16s b) { return V16s(_mm_mulhi_epi16(__m128i(a), __m128i(b))); }

// ---- Absolute value: the type's smallest integer gives its largest --------------------------------------

inline V16s absSat(V16s a) { return V16s(_mm_abs_epi16(__m128i(maxOf(a, splat<V16s>(-32767))))); }
// The magnitude with the sign of another sample, 0 where that is 0.
inline V16s withSign(V16u a, V16s sign) { return V16s(_mm_sign_epi16(__m128i(a), __m128i(sign))); }
inline V32s withSign(V32u a, V32s sign) { return V32s(_mm_sign_epi32(__m128i(a), __m128i(sign))); }

// The magnitude as an unsigned integer.
inline V8u magnitude(V8u a) { return a; }
inline V16u magnitude(V16u a) { return a; }
inline V32u magnitude(V32u a) { return a; }
inline V16u magnitude(V16s a) { return V16u(_mm_abs_epi16(__m128i(a))); }
inline V32u magnitude(V32s a) { return V32u(_mm_abs_epi32(__m128i(a))); }

// ---- Widening and narrowing -----------------------------------------------------------------------------

inline Pair<V16u> widen(V8u a) {
    return {V16u(_mm_cvtepu8_epi16(__m128i(a))), V16u(_mm_unpackhi_epi8(__m128i(a), __m128i{}))};
}
inline Pair<V32u> widen(V16u a) {
    return {V32u(_mm_cvtepu16_epi32(__m128i(a))), V32u(_mm_unpackhi_epi16(__m128i(a), __m128i{}))};
}
inline Pair<V32s> widen(V16s a) {
    return {V32s(_mm_cvtepi16_epi32(__m128i(a))),
            V32s(_mm_srai_epi32(_mm_unpackhi_epi16(__m128i(a), __m128i(a)), 16))};
}

// Products of lanes in twice the width.
inline Pair<V16u> multiplyWide(V8u a, V8u b) {
    const Pair<V16u> wa = widen(a), wb = widen(b);
    return {wa.low * wb.low, wa.high * wb.high};
}
inline Pair<V32u> multiplyWide(V16u a, V16u b) {
    const __m128i low = _mm_mullo_epi16(__m128i(a), __m128i(b)), high = _mm_mulhi_epu16(__m128i(a), __m128i(b));
    return {V32u(_mm_unpacklo_epi16(low, high)), V32u(_mm_unpackhi_epi16(low, high))};
}

inline Pair<V32s> multiplyWide(V16s a, V16s b) {
    const __m128i low = _mm_mullo_epi16(__m128i(a), __m128i(b)), high = _mm_mulhi_epi16(__m128i(a), __m128i(b));
    return {V32s(_mm_unpacklo_epi16(low, high)), V32s(_mm_unpackhi_epi16(low, high))};
}

// Saturating narrowing of signed lanes: narrow<Tpx8u>({V16s, V16s}), narrow<Tpx16s>({V32s, V32s}), ...
template <class T>
inline Vec<T> narrow(Pair<V16s> a) {
    if constexpr (std::is_same_v<T, Tpx8u>)
        return V8u(_mm_packus_epi16(__m128i(a.low), __m128i(a.high)));
    else
        return V8s(_mm_packs_epi16(__m128i(a.low), __m128i(a.high)));
}
template <class T>
inline Vec<T> narrow(Pair<V32s> a) {
    if constexpr (std::is_same_v<T, Tpx16u>) {
        return V16u(_mm_packus_epi32(__m128i(a.low), __m128i(a.high)));
    } else {
        return V16s(_mm_packs_epi32(__m128i(a.low), __m128i(a.high)));
    }
}
// Unsigned lanes below 2^(width - 1), which the signed forms take as they are.
template <class T>
inline Vec<T> narrow(Pair<V16u> a) {
    return narrow<T>(Pair<V16s>{V16s(a.low), V16s(a.high)});
}
template <class T>
inline Vec<T> narrow(Pair<V32u> a) {
    return narrow<T>(Pair<V32s>{V32s(a.low), V32s(a.high)});
}

} // namespace tpx
