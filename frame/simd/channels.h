// SPDX-License-Identifier: Apache-2.0
// Pixels of three or four samples: their alpha, and registers of one channel each.
#pragma once

#include "frame/simd/shuffle.h"

namespace tpx {

// ---- Alpha -----------------------------------------------------------------------------------------------

// All bits set in the lanes of alpha samples, for registers that begin at a pixel of four channels.
template <class T>
struct AlphaMask {
    alignas(32) BitsOf<Tpx32f> words[8];
    constexpr AlphaMask() : words{} {
        for (int i = 0; i < 8; i++)
            words[i] = sizeof(T) == 1   ? Tpx32s(0xFF000000)
                       : sizeof(T) == 2 ? (i % 2 ? Tpx32s(0xFFFF0000) : 0)
                                        : (i % 4 == 3 ? -1 : 0);
    }
};
template <class T>
inline constexpr AlphaMask<T> kAlphaMask;

// `a` where alpha lies in pixels of four samples of type T, `b` elsewhere; the register begins at a pixel. It
// is one of T, or of floats where samples are only moved.
template <class T, class V = Vec<T>>
inline V keepAlpha(V a, V b) {
    if constexpr (std::is_same_v<V, V32f> && sizeof(T) == 4) {
        return _mm256_blend_ps(b, a, 0x88);
    } else if constexpr (std::is_same_v<V, V32f>) {
        const __m256 mask = _mm256_load_ps(reinterpret_cast<const float*>(kAlphaMask<T>.words));
        return _mm256_or_ps(_mm256_and_ps(mask, a), _mm256_andnot_ps(mask, b));
    } else if constexpr (sizeof(T) == 2) {
        return bitsAs<V>(_mm_blend_epi16(bitsAs<__m128i>(b), bitsAs<__m128i>(a), 0x88));
    } else if constexpr (sizeof(T) == 4) {
        return bitsAs<V>(_mm_blend_epi16(bitsAs<__m128i>(b), bitsAs<__m128i>(a), 0xC0));
    } else {
        static_assert(sizeof(T) == 1);
        const __m128i mask = _mm_load_si128(reinterpret_cast<const __m128i*>(kAlphaMask<T>.words));
        return bitsAs<V>(_mm_blendv_epi8(bitsAs<__m128i>(b), bitsAs<__m128i>(a), mask));
    }
}

// ---- Channels: pixels of three or four samples to registers of one channel each, and back ---------------

// Three registers of pixels of three samples, or of their planes, hold a channel's samples at places that are
// all different: a choice by place and one shuffle move a register. Places are told by their number in thirds.
constexpr int third(int place) { return (place % 3 + 3) % 3; }

// Of the samples of channel c and `Bytes` bytes: the byte of its place that byte i of the plane has, and the
// reverse.
template <int Bytes>
struct TripleControls {
    alignas(16) Tpx8u toPlane[3][16], toPixels[3][16];
    alignas(16) Tpx8u isThird[3][16]; // 0xFF in the samples whose number is this in thirds
    constexpr TripleControls() : toPlane{}, toPixels{}, isThird{} {
        for (int c = 0; c < 3; c++)
            for (int i = 0; i < 16; i++) {
                const int sample = 3 * (i / Bytes) + c, place = sample * Bytes % 16 + i % Bytes;
                toPlane[c][i] = Tpx8u(place);
                toPixels[c][place] = Tpx8u(i);
                isThird[c][i] = i / Bytes % 3 == c ? 0xFF : 0;
            }
    }
};
template <int Bytes>
inline constexpr TripleControls<Bytes> kTripleControls;

// The samples of `a` at the places that are A in thirds, of `b` at those that are B, of `c` elsewhere.
template <int Bytes, int A, int B>
inline V8u chooseThirds(V8u a, V8u b, V8u c) {
    if constexpr (Bytes == 1) {
        constexpr auto& isThird = kTripleControls<Bytes>.isThird;
        return select(load(isThird[A]), a, select(load(isThird[B]), b, c));
    } else {
        constexpr auto units = [](int wanted) { // of 16 bits
            int mask = 0;
            for (int u = 0; u < 8; u++) mask |= (2 * u / Bytes % 3 == wanted) << u;
            return mask;
        };
        constexpr int ofA = units(A), ofB = units(B);
        const __m128i ac = _mm_blend_epi16(__m128i(c), __m128i(a), ofA);
        return V8u(_mm_blend_epi16(ac, __m128i(b), ofB));
    }
}

// Pixels of three samples of `Bytes` bytes to channels.
template <int Bytes>
inline Several<V8u, 3> deinterleave(const Several<V8u, 3>& a) {
    constexpr int L = 16 / Bytes;
    const V8u mixed[3] = {chooseThirds<Bytes, third(0), third(0 - L)>(a.at[0], a.at[1], a.at[2]),
                          chooseThirds<Bytes, third(1), third(1 - L)>(a.at[0], a.at[1], a.at[2]),
                          chooseThirds<Bytes, third(2), third(2 - L)>(a.at[0], a.at[1], a.at[2])};
    Several<V8u, 3> planes;
    for (int c = 0; c < 3; c++) planes.at[c] = shuffleBytes(mixed[c], load(kTripleControls<Bytes>.toPlane[c]));
    return planes;
}

// Channels to pixels.
template <int Bytes>
inline Several<V8u, 3> interleave(const Several<V8u, 3>& a) {
    constexpr int L = 16 / Bytes;
    V8u spread[3];
    for (int c = 0; c < 3; c++) spread[c] = shuffleBytes(a.at[c], load(kTripleControls<Bytes>.toPixels[c]));
    return {{chooseThirds<Bytes, third(0), third(1)>(spread[0], spread[1], spread[2]),
             chooseThirds<Bytes, third(-L), third(1 - L)>(spread[0], spread[1], spread[2]),
             chooseThirds<Bytes, third(-2 * L), third(1 - 2 * L)>(spread[0], spread[1], spread[2])}};
}

// The same for pixels of four samples. Samples of less than four bytes are first collected within a register.
template <int Bytes>
inline Several<V8u, 4> deinterleave(const Several<V8u, 4>& a) {
    const V8u collect = Bytes == 1 ? V8u{0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15}
                                   : V8u{0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};
    Several<V8u, 4> x = a;
    if constexpr (Bytes < 4)
        for (auto& v : x.at) v = shuffleBytes(v, collect);
    const V8u p = interleaveUnits<4, false>(x.at[0], x.at[1]), q = interleaveUnits<4, false>(x.at[2], x.at[3]);
    const V8u r = interleaveUnits<4, true>(x.at[0], x.at[1]), s = interleaveUnits<4, true>(x.at[2], x.at[3]);
    return {{interleaveUnits<8, false>(p, q), interleaveUnits<8, true>(p, q), interleaveUnits<8, false>(r, s),
             interleaveUnits<8, true>(r, s)}};
}
template <int Bytes>
inline Several<V8u, 4> interleave(const Several<V8u, 4>& a) {
    const V8u p = interleaveUnits<Bytes, false>(a.at[0], a.at[1]),
              q = interleaveUnits<Bytes, false>(a.at[2], a.at[3]);
    const V8u r = interleaveUnits<Bytes, true>(a.at[0], a.at[1]),
              s = interleaveUnits<Bytes, true>(a.at[2], a.at[3]);
    return {{interleaveUnits<2 * Bytes, false>(p, q), interleaveUnits<2 * Bytes, true>(p, q),
             interleaveUnits<2 * Bytes, false>(r, s), interleaveUnits<2 * Bytes, true>(r, s)}};
}

} // namespace tpx
