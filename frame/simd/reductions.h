// SPDX-License-Identifier: Apache-2.0
// SIMD operations of reductions: sums within a register, and unsigned integers as doubles.
#pragma once

#include "frame/simd/simd.h"

namespace tpx {

// The sums of |a - b| of either half's eight bytes.
inline V64u sumOfDifferences(V8u a, V8u b) { return V64u(_mm_sad_epu8(__m128i(a), __m128i(b))); }

// Lanes of 64 bits, which may be taken for signed ones.
inline Pair<V64u> widen64(V32u a) {
    const __m128i x = __m128i(a), zeros{};
    return {V64u(_mm_unpacklo_epi32(x, zeros)), V64u(_mm_unpackhi_epi32(x, zeros))};
}
inline Pair<V64u> widen64(V32s a) {
    const __m128i x = __m128i(a), signs = __m128i(a >> 31);
    return {V64u(_mm_unpacklo_epi32(x, signs)), V64u(_mm_unpackhi_epi32(x, signs))};
}

inline Pair<V64f> toDouble(V32f a) {
    return {V64f(_mm256_cvtps_pd(_mm256_castps256_ps128(a))),
            V64f(_mm256_cvtps_pd(_mm256_extractf128_ps(a, 1)))};
}

// The same as toDouble(a), from one addition: conversions and additions share their units. A double that begins
// with the bits of 2^52 and ends in those of an integer is their sum.
inline V64f toDoubleByBits(V32u a) {
    const __m128 x = bitsAs<__m128>(a);
    const __m256 twice = _mm256_insertf128_ps(_mm256_castps128_ps256(x), x, 1);
    const __m256 spread = _mm256_permutevar_ps(twice, _mm256_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3));
    return bitsAs<V64f>(_mm256_blend_ps(spread, _mm256_castsi256_ps(_mm256_set1_epi32(0x43300000)), 0xAA)) -
           splat<V64f>(0x1p52);
}

} // namespace tpx
