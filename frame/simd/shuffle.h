// SPDX-License-Identifier: Apache-2.0
// SIMD operations that move lanes: within a register, between two, by masks of bits and through small tables.
#pragma once

#include "frame/simd/integer.h"

namespace tpx {

// ---- Bytes and units -------------------------------------------------------------------------------------

// Byte i becomes byte control[i], or 0 where the control's top bit is set.
inline V8u shuffleBytes(V8u a, V8u control) { return V8u(_mm_shuffle_epi8(__m128i(a), __m128i(control))); }

// The lanes so many places higher, zeros below.
template <int Places, class V>
inline V lanesUp(V a) {
    static_assert(sizeof(V) == 16);
    return bitsAs<V>(_mm_slli_si128(bitsAs<__m128i>(a), Places * int(sizeof(LaneOf<V>))));
}
// A register of the lanes of `a` and then of `b`, as they would lie in memory, without the first so many.
template <int Places, class V>
inline V lanesBehind(V a, V b) {
    static_assert(sizeof(V) == 16);
    return bitsAs<V>(_mm_alignr_epi8(bitsAs<__m128i>(b), bitsAs<__m128i>(a), Places * int(sizeof(LaneOf<V>))));
}

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

// The lanes of `a` and `b` in turn: a0 b0 a1 b1 ... from the lower half of both, or from the upper.
inline V8u interleaveLow(V8u a, V8u b) { return V8u(_mm_unpacklo_epi8(__m128i(a), __m128i(b))); }
inline V8u interleaveHigh(V8u a, V8u b) { return V8u(_mm_unpackhi_epi8(__m128i(a), __m128i(b))); }
inline V16s interleaveLow(V16s a, V16s b) { return V16s(_mm_unpacklo_epi16(__m128i(a), __m128i(b))); }
inline V16s interleaveHigh(V16s a, V16s b) { return V16s(_mm_unpackhi_epi16(__m128i(a), __m128i(b))); }

inline V32f interleaveLow(V32f a, V32f b) { return V32f(_mm256_unpacklo_ps(a, b)); } // of either half
inline V32f interleaveHigh(V32f a, V32f b) { return V32f(_mm256_unpackhi_ps(a, b)); }
inline V64f interleaveLow(V64f a, V64f b) { return V64f(_mm256_unpacklo_pd(a, b)); }
inline V64f interleaveHigh(V64f a, V64f b) { return V64f(_mm256_unpackhi_pd(a, b)); }

// The lanes of even or of odd number, of `a` and then of `b`, in either half of the registers.
inline V32f evenLanes(V32f a, V32f b) { return V32f(_mm256_shuffle_ps(a, b, 0x88)); }
inline V32f oddLanes(V32f a, V32f b) { return V32f(_mm256_shuffle_ps(a, b, 0xDD)); }

// The first or the last two lanes of `a` and then of `b`, in either half of the registers.
inline V32f firstPairs(V32f a, V32f b) { return V32f(_mm256_shuffle_ps(a, b, 0x44)); }
inline V32f lastPairs(V32f a, V32f b) { return V32f(_mm256_shuffle_ps(a, b, 0xEE)); }

// Halves of registers of 32 bytes: the lower ones of `a` and of `b`, the upper ones, and two of 16 bytes
// joined.
inline V32f lowHalves(V32f a, V32f b) { return V32f(_mm256_permute2f128_ps(a, b, 0x20)); }
inline V32f highHalves(V32f a, V32f b) { return V32f(_mm256_permute2f128_ps(a, b, 0x31)); }
inline V64f lowHalves(V64f a, V64f b) { return V64f(_mm256_permute2f128_pd(a, b, 0x20)); }
inline V64f highHalves(V64f a, V64f b) { return V64f(_mm256_permute2f128_pd(a, b, 0x31)); }
template <class To, class Half>
inline To joinHalves(Half low, Half high) {
    static_assert(sizeof(Half) == 16 && sizeof(To) == 32);
    return bitsAs<To>(
        _mm256_insertf128_si256(_mm256_castsi128_si256(bitsAs<__m128i>(low)), bitsAs<__m128i>(high), 1));
}

// Lane k of row i becomes lane i of row k, of doubles, and in either half of registers of floats.
inline Several<V64f, 4> transpose(const Several<V64f, 4>& rows) {
    const V64f a = interleaveLow(rows.at[0], rows.at[1]), b = interleaveHigh(rows.at[0], rows.at[1]);
    const V64f c = interleaveLow(rows.at[2], rows.at[3]), d = interleaveHigh(rows.at[2], rows.at[3]);
    return {{lowHalves(a, c), lowHalves(b, d), highHalves(a, c), highHalves(b, d)}};
}
inline Several<V32f, 4> transpose(const Several<V32f, 4>& rows) {
    const V32f a = interleaveLow(rows.at[0], rows.at[1]), b = interleaveHigh(rows.at[0], rows.at[1]);
    const V32f c = interleaveLow(rows.at[2], rows.at[3]), d = interleaveHigh(rows.at[2], rows.at[3]);
    return {{firstPairs(a, c), lastPairs(a, c), firstPairs(b, d), lastPairs(b, d)}};
}

// Lane i becomes lane index[i], from 0 to 3, of its half of the register.
inline V32f permuteLanes(V32f a, B32f index) { return V32f(_mm256_permutevar_ps(a, __m256i(index))); }

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
    using Lanes = Vec<std::conditional_t<sizeof(T) == 1, Tpx8u, Tpx16u>>;
    V8u byte;
    Lanes bit;

    explicit LaneMask(int first)
        : byte(load(kBitPlaces<T>.byte[first])), bit(bitsAs<Lanes>(load(kBitPlaces<T>.bit[first]))) {}
    auto operator()(V8u bytes) const { return (bitsAs<Lanes>(shuffleBytes(bytes, byte)) & bit) == bit; }
};
// Every lane has all the bits, and compares its own as a number, for which no register is taken apart.
inline constexpr Tpx32s kLaneBits[15] = {1 << 0, 1 << 1, 1 << 2,  1 << 3,  1 << 4,  1 << 5,  1 << 6, 1 << 7,
                                         1 << 8, 1 << 9, 1 << 10, 1 << 11, 1 << 12, 1 << 13, 1 << 14};
template <>
struct LaneMask<Tpx32f> {
    B32f bit;

    explicit LaneMask(int first) { __builtin_memcpy(&bit, kLaneBits + first, sizeof bit); }
    B32f operator()(V8u bytes) const {
        const B32f own = (B32f{} + bitsAs<V32s>(bytes)[0]) & bit;
        return V32f(_mm256_cvtepi32_ps(bitsAs<__m256i>(own))) != V32f{};
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

} // namespace tpx
