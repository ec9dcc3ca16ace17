// SPDX-License-Identifier: Apache-2.0
// SIMD operations on complex numbers, for the Fourier transforms.
//
// They come in two forms. Split: a register of real parts and one of imaginary parts. Interleaved: re, im, re,
// im in one register, as in memory. Both give the same bits: every product and every sum is rounded by itself.
#pragma once

#include "frame/simd/shuffle.h"

namespace tpx {

// ---- Split form ------------------------------------------------------------------------------------------

template <class V>
struct Complex {
    V re, im;
};
template <class V>
inline Complex<V> operator+(Complex<V> a, Complex<V> b) {
    return {a.re + b.re, a.im + b.im};
}
template <class V>
inline Complex<V> operator-(Complex<V> a, Complex<V> b) {
    return {a.re - b.re, a.im - b.im};
}

template <class V>
inline Complex<V> multiply(Complex<V> a, Complex<V> b) {
    return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}
// a times the conjugate of b.
template <class V>
inline Complex<V> multiplyConjugate(Complex<V> a, Complex<V> b) {
    return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
}
template <class V>
inline Complex<V> timesI(Complex<V> a) {
    return {-a.im, a.re};
}
template <class V>
inline Complex<V> timesMinusI(Complex<V> a) {
    return {a.im, -a.re};
}

// ---- Interleaved form ------------------------------------------------------------------------------------

// One part of each number in both its lanes; both parts exchanged.
inline V32f realParts(V32f a) { return V32f(_mm256_moveldup_ps(a)); }
inline V32f imaginaryParts(V32f a) { return V32f(_mm256_movehdup_ps(a)); }
inline V32f swapParts(V32f a) { return V32f(_mm256_permute_ps(a, 0xB1)); }
inline V64f realParts(V64f a) { return V64f(_mm256_movedup_pd(a)); }
inline V64f imaginaryParts(V64f a) { return V64f(_mm256_permute_pd(a, 0xF)); }
inline V64f swapParts(V64f a) { return V64f(_mm256_permute_pd(a, 0x5)); }

// The difference of real parts, the sum of imaginary ones.
inline V32f subtractAdd(V32f a, V32f b) { return V32f(_mm256_addsub_ps(a, b)); }
inline V64f subtractAdd(V64f a, V64f b) { return V64f(_mm256_addsub_pd(a, b)); }

template <class V>
inline V multiply(V a, V b) {
    return subtractAdd(a * realParts(b), swapParts(a) * imaginaryParts(b));
}
// a times the conjugate of b. A sign that is turned in a factor turns the product's, and nothing else.
template <class V>
inline V multiplyConjugate(V a, V b) {
    return subtractAdd(a * realParts(b), swapParts(a) * -imaginaryParts(b));
}

// The sign bits of the real parts, and of the imaginary ones.
inline constexpr V32f kRealSigns = {-0.0f, 0, -0.0f, 0, -0.0f, 0, -0.0f, 0};
inline constexpr V32f kImaginarySigns = {0, -0.0f, 0, -0.0f, 0, -0.0f, 0, -0.0f};
inline constexpr V64f kRealSigns64 = {-0.0, 0, -0.0, 0}, kImaginarySigns64 = {0, -0.0, 0, -0.0};

inline V32f timesI(V32f a) { return V32f(_mm256_xor_ps(swapParts(a), kRealSigns)); }
inline V64f timesI(V64f a) { return V64f(_mm256_xor_pd(swapParts(a), kRealSigns64)); }
inline V32f timesMinusI(V32f a) { return V32f(_mm256_xor_ps(swapParts(a), kImaginarySigns)); }
inline V64f timesMinusI(V64f a) { return V64f(_mm256_xor_pd(swapParts(a), kImaginarySigns64)); }

// ---- From one form to the other --------------------------------------------------------------------------

// Two registers as in memory. The split form has their numbers in another order, the same for both parts, and
// the way back undoes it.
inline Complex<V32f> toSplit(V32f a, V32f b) { return {evenLanes(a, b), oddLanes(a, b)}; }
inline Complex<V64f> toSplit(V64f a, V64f b) { return {interleaveLow(a, b), interleaveHigh(a, b)}; }
template <class V>
inline Pair<V> toInterleaved(Complex<V> a) {
    return {interleaveLow(a.re, a.im), interleaveHigh(a.re, a.im)};
}

} // namespace tpx
