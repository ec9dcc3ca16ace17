// The SIMD vocabulary: registers of samples and the words that the language's operators lack.
//
// Vec<T> is a register of samples of type T. Operators, comparisons and ?: work on it lane by lane, so a rule
// is written as it would be for one sample. Everything below is a word; it and a kernel that lives on one
// particular shuffle are the only places that name an instruction. Nothing else states how wide a register is.
#pragma once

#include <immintrin.h>
#include <stddef.h>

#include <type_traits>

#include "tpxi/types.h"

namespace tpx {

// ---- Registers -----------------------------------------------------------------------------------------

// AVX has 32-byte arithmetic for floating point alone; integers work in 16 bytes.
template <class T>
inline constexpr int kRegisterBytes = std::is_floating_point_v<T> ? 32 : 16;

template <class T>
struct VecOf {
    typedef T type __attribute__((vector_size(kRegisterBytes<T>)));
};
template <class T>
using Vec = typename VecOf<T>::type;

template <class T>
inline constexpr int kLanes = kRegisterBytes<T> / int(sizeof(T));

using V8u = Vec<Tpx8u>;
using V8s = Vec<Tpx8s>;
using V16u = Vec<Tpx16u>;
using V16s = Vec<Tpx16s>;
using V32u = Vec<Tpx32u>;
using V32s = Vec<Tpx32s>;
using V64u = Vec<Tpx64u>;
using V32f = Vec<Tpx32f>;
using V64f = Vec<Tpx64f>;

template <class V>
using LaneOf = std::remove_cvref_t<decltype(V{}[0])>;

// Two registers that together hold the lanes of one register of samples half their width.
template <class V>
struct Pair {
    V low, high;
};

// N registers.
template <class V, int N>
struct Several {
    V at[N];
};

// The integer with the width of a floating-point sample, and its register (32 bytes, unlike Vec<Tpx32s>):
// what a comparison of Vec<T> gives, and how the bits of a float are worked on.
template <class T>
using BitsOf = std::conditional_t<sizeof(T) == 8, Tpx64s, Tpx32s>;
template <class T>
struct VecBitsOf {
    typedef BitsOf<T> type __attribute__((vector_size(kRegisterBytes<T>)));
};
template <class T>
using VecBits = typename VecBitsOf<T>::type;
using B32f = VecBits<Tpx32f>;
using B64f = VecBits<Tpx64f>;

// ---- Memory and constants: addresses need no alignment --------------------------------------------------

template <class T>
inline Vec<T> load(const T* p) {
    Vec<T> v;
    __builtin_memcpy(&v, p, sizeof v);
    return v;
}

template <class T>
inline void store(T* p, Vec<T> v) {
    __builtin_memcpy(p, &v, sizeof v);
}

// A line of the caches. Lines that go past them are written whole, on their own boundaries: a half-written one
// costs a read of memory.
inline constexpr ptrdiff_t kLineBytes = 64;

// Asks for the lines that will be read some turns after these bytes; they may lie outside the image. The
// processor by itself is late, above all with several sources.
inline void fetchAhead(const void* p, ptrdiff_t bytes) {
    constexpr ptrdiff_t kAhead = 512;
    for (ptrdiff_t i = kAhead; i < kAhead + bytes; i += kLineBytes)
        _mm_prefetch(reinterpret_cast<const char*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(i)), _MM_HINT_T0);
}

// One value in every lane.
template <class V>
inline V splat(LaneOf<V> value) {
    return value - V{};
}
template <>
inline V32f splat<V32f>(float value) {
    return _mm256_set1_ps(value);
}
template <>
inline V64f splat<V64f>(double value) {
    return _mm256_set1_pd(value);
}

// The same bits seen as other lanes.
template <class To, class From>
inline To bitsAs(From v) {
    static_assert(sizeof(To) == sizeof(From));
    To to;
    __builtin_memcpy(&to, &v, sizeof to);
    return to;
}

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

// ---- Choosing ------------------------------------------------------------------------------------------

// a < b ? a : b, so `b` where one of them is NaN or both are zeros; the instructions for floats do just that,
// but g++ does not find them. maxOf likewise.
template <class V>
inline V minOf(V a, V b) {
    if constexpr (std::is_same_v<V, V32f>)
        return V(_mm256_min_ps(a, b));
    else if constexpr (std::is_same_v<V, V64f>)
        return V(_mm256_min_pd(a, b));
    else
        return a < b ? a : b;
}
template <class V>
inline V maxOf(V a, V b) {
    if constexpr (std::is_same_v<V, V32f>)
        return V(_mm256_max_ps(a, b));
    else if constexpr (std::is_same_v<V, V64f>)
        return V(_mm256_max_pd(a, b));
    else
        return a > b ? a : b;
}

// The lanes of `a` where the mask, a comparison's result kept in a variable, is set; of `b` elsewhere.
template <class V, class M>
inline V select(M mask, V a, V b) {
    using Lane = LaneOf<V>;
    if constexpr (std::is_same_v<Lane, float>)
        return V(_mm256_blendv_ps(bitsAs<__m256>(b), bitsAs<__m256>(a), bitsAs<__m256>(mask)));
    else if constexpr (std::is_same_v<Lane, double>)
        return V(_mm256_blendv_pd(bitsAs<__m256d>(b), bitsAs<__m256d>(a), bitsAs<__m256d>(mask)));
    else
        return bitsAs<V>(_mm_blendv_epi8(bitsAs<__m128i>(b), bitsAs<__m128i>(a), bitsAs<__m128i>(mask)));
}

// 0 in the lanes where the mask is set, `a` elsewhere.
template <class V, class M>
inline V without(M mask, V a) {
    return V(_mm_andnot_si128(__m128i(mask), __m128i(a)));
}

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

// Whether any bit of a mask is set.
template <class V>
inline bool any(V mask) {
    if constexpr (sizeof(V) == 32)
        return !_mm256_testz_si256(bitsAs<__m256i>(mask), bitsAs<__m256i>(mask));
    else
        return !_mm_testz_si128(bitsAs<__m128i>(mask), bitsAs<__m128i>(mask));
}

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

inline V32s shiftLeft(V32s a, int n) { return V32s(_mm_sll_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }
// Arithmetic: a count past the lane's width leaves the sign.
inline V32s shiftRight(V32s a, int n) { return V32s(_mm_sra_epi32(__m128i(a), _mm_cvtsi32_si128(n))); }

// (a * b + 2^14) >> 15.
inline V16s multiplyRounded(V16s a, V16s b) { return V16s(_mm_mulhrs_epi16(__m128i(a), __m128i(b))); }

// Sums of the products of neighbouring lanes: a0*b0 + a1*b1, a2*b2 + a3*b3, ...
inline V32s multiplyAddPairs(V16s a, V16s b) { return V32s(_mm_madd_epi16(__m128i(a), __m128i(b))); }

// Sums of neighbouring lanes: a0 + a1, a2 + a3, ...
inline V16s addPairs(V8u a) { return V16s(_mm_maddubs_epi16(__m128i(a), _mm_set1_epi8(1))); }
inline V32s addPairs(V16s a) { return V32s(_mm_madd_epi16(__m128i(a), _mm_set1_epi16(1))); }

// The upper halves of the products, whose lower halves a * b has.
inline V16u multiplyHigh(V16u a, V16u b) { return V16u(_mm_mulhi_epu16(__m128i(a), __m128i(b))); }
inline V16s multiplyHigh(V16s a, V16s b) { return V16s(_mm_mulhi_epi16(__m128i(a), __m128i(b))); }

// The lanes of `a` and `b` in turn: a0 b0 a1 b1 ... from the lower half of both, or from the upper.
inline V16s interleaveLow(V16s a, V16s b) { return V16s(_mm_unpacklo_epi16(__m128i(a), __m128i(b))); }
inline V16s interleaveHigh(V16s a, V16s b) { return V16s(_mm_unpackhi_epi16(__m128i(a), __m128i(b))); }

// The lanes in the opposite order.
inline V8u reverseLanes(V8u a) {
    return V8u(
        _mm_shuffle_epi8(__m128i(a), _mm_set_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)));
}
inline V16u reverseLanes(V16u a) {
    return V16u(
        _mm_shuffle_epi8(__m128i(a), _mm_set_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14)));
}
inline V32f reverseLanes(V32f a) {
    const __m256 halves = _mm256_permute2f128_ps(a, a, 1);
    return V32f(_mm256_shuffle_ps(halves, halves, _MM_SHUFFLE(0, 1, 2, 3)));
}

// ---- Channels: pixels of three or four samples to registers of one channel each, and back ---------------

// Byte i becomes byte control[i], or 0 where the control's top bit is set.
inline V8u shuffleBytes(V8u a, V8u control) { return V8u(_mm_shuffle_epi8(__m128i(a), __m128i(control))); }

// Units of so many bytes of `a` and `b` in turn, from the lower half of both or from the upper.
template <int Bytes, bool High>
inline V8u interleaveUnits(V8u a8, V8u b8) {
    const __m128i a = __m128i(a8), b = __m128i(b8);
    if constexpr (Bytes == 1)
        return V8u(High ? _mm_unpackhi_epi8(a, b) : _mm_unpacklo_epi8(a, b));
    else if constexpr (Bytes == 2)
        return V8u(High ? _mm_unpackhi_epi16(a, b) : _mm_unpacklo_epi16(a, b));
    else if constexpr (Bytes == 4)
        return V8u(High ? _mm_unpackhi_epi32(a, b) : _mm_unpacklo_epi32(a, b));
    else
        return V8u(High ? _mm_unpackhi_epi64(a, b) : _mm_unpacklo_epi64(a, b));
}

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

// ---- Absolute value: the type's smallest integer gives its largest --------------------------------------

inline V16s absSat(V16s a) { return V16s(_mm_abs_epi16(__m128i(maxOf(a, splat<V16s>(-32767))))); }
inline V32f absSat(V32f a) {
    return V32f(_mm256_and_ps(a, _mm256_castsi256_ps(_mm256_set1_epi32(0x7FFFFFFF))));
}
inline V64f absSat(V64f a) {
    return V64f(_mm256_and_pd(a, _mm256_castsi256_pd(_mm256_set1_epi64x(0x7FFFFFFFFFFFFFFF))));
}

// The magnitude with the sign of another sample, 0 where that is 0.
inline V16s withSign(V16u a, V16s sign) { return V16s(_mm_sign_epi16(__m128i(a), __m128i(sign))); }
inline V32s withSign(V32u a, V32s sign) { return V32s(_mm_sign_epi32(__m128i(a), __m128i(sign))); }

// The magnitude as an unsigned integer.
inline V8u magnitude(V8u a) { return a; }
inline V16u magnitude(V16u a) { return a; }
inline V32u magnitude(V32u a) { return a; }
inline V16u magnitude(V16s a) { return V16u(_mm_abs_epi16(__m128i(a))); }
inline V32u magnitude(V32s a) { return V32u(_mm_abs_epi32(__m128i(a))); }

// Integers in a register of the width that floating point has.
inline B32f join(Pair<V32s> a) {
    return B32f(_mm256_insertf128_si256(_mm256_castsi128_si256(__m128i(a.low)), __m128i(a.high), 1));
}

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
        std::conditional_t<kBytes == 8, Tpx64s, Tpx32s> bits;
        __builtin_memcpy(&bits, p, kBytes);
        __m128i v;
        if constexpr (kBytes == 8)
            v = _mm_cvtsi64_si128(bits);
        else
            v = _mm_cvtsi32_si128(bits);
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

// ---- Masks of bits: bit i stands for lane i -------------------------------------------------------------

// Of the lanes of Vec<T>, whose bits begin at bit `first` of a byte: the byte that a lane's bit is in, for each
// byte of the register, and the bit there, in the lane's lowest byte.
template <class T>
struct BitPlaces {
    alignas(16) Tpx8u byte[8][sizeof(Vec<T>)], bit[8][sizeof(Vec<T>)];
    constexpr BitPlaces() : byte{}, bit{} {
        for (int first = 0; first < 8; first++)
            for (int i = 0; i < int(sizeof(Vec<T>)); i++) {
                const int at = first + i / int(sizeof(T));
                byte[first][i] = Tpx8u(at / 8);
                bit[first][i] = Tpx8u(i % int(sizeof(T)) == 0 ? 1 << at % 8 : 0);
            }
    }
};
template <class T>
inline constexpr BitPlaces<T> kBitPlaces;

// All bits set in the lanes whose bit is, as a comparison of Vec<T> gives it. Bits lie in a register's first
// bytes and begin at bit `first`, from 0 to 7; the others are ignored.
template <class T>
struct LaneMask {
    static constexpr int kHalves = sizeof(Vec<T>) / 16;
    using Lane = std::conditional_t<sizeof(T) == 1, Tpx8u, std::conditional_t<sizeof(T) == 2, Tpx16u, Tpx32u>>;
    using Lanes = Vec<Lane>;

    Several<V8u, kHalves> byte;
    Several<Lanes, kHalves> bit;

    explicit LaneMask(int first) {
        for (int k = 0; k < kHalves; k++) {
            byte.at[k] = load(kBitPlaces<T>.byte[first] + k * 16);
            bit.at[k] = bitsAs<Lanes>(load(kBitPlaces<T>.bit[first] + k * 16));
        }
    }
    auto operator()(V8u bytes) const {
        const auto half = [&](int k) {
            return (bitsAs<Lanes>(shuffleBytes(bytes, byte.at[k])) & bit.at[k]) == bit.at[k];
        };
        if constexpr (kHalves == 1)
            return half(0);
        else
            return join(Pair<V32s>{half(0), half(1)});
    }
};
template <class T>
using MaskOf = decltype(LaneMask<T>(0)(V8u{}));

// The bits of a comparison's lanes.
inline Tpx32u laneBits(V8s mask) { return Tpx32u(_mm_movemask_epi8(__m128i(mask))); }
inline Tpx32u laneBits(B32f mask) { return Tpx32u(_mm256_movemask_ps(bitsAs<__m256>(mask))); }
inline Tpx32u laneBits(Pair<V16s> masks) { return laneBits(narrow<Tpx8s>(masks)); }
inline Tpx32u laneBits(Pair<B32f> masks) { return laneBits(masks.low) | laneBits(masks.high) << 8; }

// ---- Tables of 16 entries, indexed by lanes from 0 to 15 ------------------------------------------------

template <class T>
struct Table16;

template <>
struct Table16<Tpx8u> {
    Table16() = default;
    explicit Table16(const Tpx8u* entries) : bytes(load(entries)) {}
    V8u bytes;
};
inline V8u lookup(const Table16<Tpx8u>& table, V8u index) {
    return V8u(_mm_shuffle_epi8(__m128i(table.bytes), __m128i(index)));
}

// An index above 15 gives 255: its top bit is set by the sum, so that it looks up 0 in the table's complement.
inline V8u lookupOrMax(const Table16<Tpx8u>& table, V8u index) {
    const V8u complement =
        V8u(_mm_shuffle_epi8(__m128i(~table.bytes), __m128i(addSat(index, splat<V8u>(112)))));
    return ~complement;
}

// 16-bit entries lie in two byte tables; an index byte with its top bit set looks up 0.
template <class T>
requires(sizeof(T) == 2) struct Table16<T> {
    Table16() = default;
    explicit Table16(const T* entries) {
        const V16u a = bitsAs<V16u>(load(entries)), b = bitsAs<V16u>(load(entries + 8));
        const __m128i byte = _mm_set1_epi16(0xFF);
        low = V8u(_mm_packus_epi16(_mm_and_si128(__m128i(a), byte), _mm_and_si128(__m128i(b), byte)));
        high = V8u(_mm_packus_epi16(__m128i(a >> 8), __m128i(b >> 8)));
    }
    V8u low, high;
};
template <class T>
inline Vec<T> lookup(const Table16<T>& table, Vec<T> index) {
    const V16u i = bitsAs<V16u>(index);
    const __m128i low = _mm_shuffle_epi8(__m128i(table.low), __m128i(i | splat<V16u>(0x8000)));
    const __m128i high = _mm_shuffle_epi8(__m128i(table.high), __m128i((i << 8) | splat<V16u>(0x80)));
    return bitsAs<Vec<T>>(_mm_or_si128(low, high));
}

// ---- Floating point -------------------------------------------------------------------------------------

inline V32f squareRoot(V32f a) { return V32f(_mm256_sqrt_ps(a)); }
inline V64f squareRoot(V64f a) { return V64f(_mm256_sqrt_pd(a)); }

// Rounding to an integral value with the direction in the instruction, whatever the control register says.
inline V32f roundNearest(V32f a) {
    return V32f(_mm256_round_ps(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
}
inline V64f roundNearest(V64f a) {
    return V64f(_mm256_round_pd(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
}

// Integers from a register of floating point (toFloat and toDouble stand above), rounded with the thread's
// rounding mode; a value outside the integers gives the smallest one.
inline Pair<V32s> toInteger(V32f a) {
    const __m256i i = _mm256_cvtps_epi32(a);
    return {V32s(_mm256_castsi256_si128(i)), V32s(_mm256_extractf128_si256(i, 1))};
}
inline V32s toInteger(V64f a) { return V32s(_mm256_cvtpd_epi32(a)); }

} // namespace tpx
