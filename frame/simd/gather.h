// SPDX-License-Identifier: Apache-2.0
// Loads of what does not fill a register or does not lie together: four samples, and registers put together
// from pieces. No sample is read but those that are asked for. Pixels at positions are in
// frame/images/gather.h.
#pragma once

#include "frame/simd/real.h"
#include "frame/simd/shuffle.h"

namespace tpx {

// ---- Four samples of floating point, 16 or 32 bytes ------------------------------------------------------

template <class T>
struct FourOf {
    typedef T type __attribute__((vector_size(4 * sizeof(T))));
};
template <class T>
using Four = typename FourOf<T>::type;

// Four samples at any address, as single precision if they are integers.
inline Four<double> loadFour(const double* p) { return load(p); }
inline Four<float> loadFour(const float* p) { return Four<float>(_mm_loadu_ps(p)); }
template <class T>
inline Four<float> loadFour(const T* p) {
    static_assert(sizeof(T) < 4);
    return Four<float>(_mm_cvtepi32_ps(__m128i(loadAs<Tpx32s>(p))));
}

inline void storeFour(float* p, Four<float> a) { __builtin_memcpy(p, &a, sizeof a); }
inline void storeFour(double* p, Four<double> a) { store(p, a); }

// One value in all four.
template <class T>
inline Four<T> fourTimes(T value) {
    return Four<T>{value, value, value, value};
}

// The halves of a register of floats.
inline Four<float> lowHalf(V32f a) { return Four<float>(_mm256_castps256_ps128(a)); }
inline Four<float> highHalf(V32f a) { return Four<float>(_mm256_extractf128_ps(a, 1)); }

// Lane K in all four.
template <int K, class V>
inline V broadcastLane(V a) {
    static_assert(sizeof(V) == 4 * sizeof(LaneOf<V>));
    return V(__builtin_shufflevector(a, a, K, K, K, K));
}

// The last three lanes, moved to the first; the fourth stays.
template <class V>
inline V upperThree(V a) {
    return V(__builtin_shufflevector(a, a, 1, 2, 3, 3));
}

// As toInteger, and as minOf.
inline V32s toInteger(Four<float> a) { return V32s(_mm_cvtps_epi32(__m128(a))); }
inline Four<float> minOf(Four<float> a, Four<float> b) { return Four<float>(_mm_min_ps(__m128(a), __m128(b))); }

// Four floats in both halves of a register; four from either of two addresses.
inline V32f loadFourTwice(const float* p) {
    return V32f(_mm256_broadcast_ps(reinterpret_cast<const __m128*>(p)));
}
inline V32f loadFours(const float* low, const float* high) { return V32f(_mm256_loadu2_m128(high, low)); }
// The halves of a register, to either address.
inline void storeFours(float* low, float* high, V32f a) { _mm256_storeu2_m128(high, low, a); }
// Lane K of either half in all four of that half.
template <int K>
inline V32f broadcastInHalves(V32f a) {
    return V32f(_mm256_permute_ps(a, K * 0x55));
}

// ---- Registers of pieces ---------------------------------------------------------------------------------

inline V8u fromPieces(Tpx64s a, Tpx64s b) { return V8u(_mm_set_epi64x(b, a)); }
inline V8u fromPieces(Tpx32s a, Tpx32s b, Tpx32s c, Tpx32s d) { return V8u(_mm_setr_epi32(a, b, c, d)); }
inline V8u fromPieces(Tpx16s a, Tpx16s b, Tpx16s c, Tpx16s d, Tpx16s e, Tpx16s f, Tpx16s g, Tpx16s h) {
    return V8u(_mm_setr_epi16(a, b, c, d, e, f, g, h));
}
// Eight bytes from either of two addresses.
inline V8u loadEights(const void* low, const void* high) {
    const auto eight = [](const void* p) { return peek(static_cast<const double*>(p)); };
    return V8u(__m128i(_mm_set_pd(eight(high), eight(low))));
}
// The first eight bytes.
inline Tpx64s firstPiece(V8u a) { return _mm_cvtsi128_si64(__m128i(a)); }

// ---- Pairs of neighbours ---------------------------------------------------------------------------------

// Doubles 0 and 1 at four addresses: the first ones, the second ones.
inline Pair<V64f> loadPairsAt(const double* a, const double* b, const double* c, const double* d) {
    const auto both = [](const double* low, const double* high) {
        return V64f(_mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(low)), _mm_loadu_pd(high), 1));
    };
    const V64f ac = both(a, c), bd = both(b, d);
    return {interleaveLow(ac, bd), interleaveHigh(ac, bd)};
}

// Pairs of samples that lie side by side, eight of them: the first ones and the second ones as floats. Of 16
// bits they fill two registers, of 8 bits one.
template <class T>
inline Pair<V32f> splitPairs(V8u low, V8u high) {
    static_assert(sizeof(T) == 2);
    using Lanes = std::conditional_t<std::is_signed_v<T>, V32s, V32u>;
    const auto a = bitsAs<Lanes>(low), b = bitsAs<Lanes>(high);
    return {toFloat({V32s(a << 16 >> 16), V32s(b << 16 >> 16)}), toFloat({V32s(a >> 16), V32s(b >> 16)})};
}
template <class T>
inline Pair<V32f> splitPairs(V8u pairs) {
    static_assert(std::is_same_v<T, Tpx8u>);
    const auto toFloats = [](V16u samples) {
        const Pair<V32u> wide = widen(samples);
        return toFloat({V32s(wide.low), V32s(wide.high)});
    };
    const auto both = bitsAs<V16u>(pairs);
    return {toFloats(both & splat<V16u>(0xFF)), toFloats(both >> 8)};
}

} // namespace tpx
