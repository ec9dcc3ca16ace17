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

// Of the samples of `Bytes` bytes in three registers of pixels of three: where each comes from and goes to.
template <int Bytes>
struct TripleControls {
    static constexpr int kLanes = 16 / Bytes;
    // Planes: byte i of channel c from register k of pixels, and the reverse; 0x80 where it is in another.
    alignas(16) Tpx8u toPlane[3][3][16], toPixels[3][3][16];
    // The same without regard to the register: the three places are different ones.
    alignas(16) Tpx8u toPlaneAny[3][16], toPixelsAny[3][16];
    constexpr TripleControls() : toPlane{}, toPixels{}, toPlaneAny{}, toPixelsAny{} {
        for (int c = 0; c < 3; c++)
            for (int i = 0; i < 16; i++) {
                const int sample = 3 * (i / Bytes) + c, place = sample % kLanes * Bytes + i % Bytes;
                for (int k = 0; k < 3; k++) {
                    toPlane[c][k][i] = Tpx8u(sample / kLanes == k ? place : 0x80);
                    toPixels[k][c][i] = 0x80;
                }
                toPlaneAny[c][i] = Tpx8u(place);
                toPixelsAny[c][place] = Tpx8u(i);
            }
        for (int c = 0; c < 3; c++)
            for (int i = 0; i < 16; i++) {
                const int sample = 3 * (i / Bytes) + c;
                toPixels[sample / kLanes][c][sample % kLanes * Bytes + i % Bytes] = Tpx8u(i);
            }
    }
    // Which 16-bit units of register k of pixels hold channel c.
    static constexpr int units(int k, int c) {
        int mask = 0;
        for (int u = 0; u < 8; u++)
            if ((k * kLanes + 2 * u / Bytes) % 3 == c) mask |= 1 << u;
        return mask;
    }
};
template <int Bytes>
inline constexpr TripleControls<Bytes> kTripleControls;

// Register `K` of what consists of `a`, `b` and `c` where `K`, as pixels or as planes, has them.
template <int A, int B>
inline V8u blendThree(V8u a, V8u b, V8u c) {
    const __m128i ab = _mm_blend_epi16(__m128i(c), __m128i(a), A);
    return V8u(_mm_blend_epi16(ab, __m128i(b), B));
}

// Pixels of three samples of `Bytes` bytes to channels.
template <int Bytes>
inline Several<V8u, 3> deinterleave(const Several<V8u, 3>& a) {
    constexpr auto& controls = kTripleControls<Bytes>;
    Several<V8u, 3> planes;
    if constexpr (Bytes == 1) { // no cheap choice of bytes
        for (int c = 0; c < 3; c++)
            planes.at[c] = shuffleBytes(a.at[0], load(controls.toPlane[c][0])) |
                           shuffleBytes(a.at[1], load(controls.toPlane[c][1])) |
                           shuffleBytes(a.at[2], load(controls.toPlane[c][2]));
    } else {
        using C = TripleControls<Bytes>;
        const V8u mixed[3] = {blendThree<C::units(0, 0), C::units(1, 0)>(a.at[0], a.at[1], a.at[2]),
                              blendThree<C::units(0, 1), C::units(1, 1)>(a.at[0], a.at[1], a.at[2]),
                              blendThree<C::units(0, 2), C::units(1, 2)>(a.at[0], a.at[1], a.at[2])};
        for (int c = 0; c < 3; c++) planes.at[c] = shuffleBytes(mixed[c], load(controls.toPlaneAny[c]));
    }
    return planes;
}

// Channels to pixels.
template <int Bytes>
inline Several<V8u, 3> interleave(const Several<V8u, 3>& a) {
    constexpr auto& controls = kTripleControls<Bytes>;
    if constexpr (Bytes == 1) {
        Several<V8u, 3> pixels;
        for (int k = 0; k < 3; k++)
            pixels.at[k] = shuffleBytes(a.at[0], load(controls.toPixels[k][0])) |
                           shuffleBytes(a.at[1], load(controls.toPixels[k][1])) |
                           shuffleBytes(a.at[2], load(controls.toPixels[k][2]));
        return pixels;
    } else {
        using C = TripleControls<Bytes>;
        V8u spread[3];
        for (int c = 0; c < 3; c++) spread[c] = shuffleBytes(a.at[c], load(controls.toPixelsAny[c]));
        return {{blendThree<C::units(0, 0), C::units(0, 1)>(spread[0], spread[1], spread[2]),
                 blendThree<C::units(1, 0), C::units(1, 1)>(spread[0], spread[1], spread[2]),
                 blendThree<C::units(2, 0), C::units(2, 1)>(spread[0], spread[1], spread[2])}};
    }
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
