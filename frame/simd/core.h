// SPDX-License-Identifier: Apache-2.0
// Registers of samples, and the SIMD operations on any of them: loads and stores, constants, choosing.
//
// Vec<T> is a register of samples of type T. Operators, comparisons and ?: work on it lane by lane, so a rule
// is written as it would be for one sample. Nothing else states how wide a register is.
#pragma once

#include <immintrin.h>
#include <stddef.h>

#include <type_traits>

#include "tpxi/types.h"

namespace tpx {

// ---- Single numbers --------------------------------------------------------------------------------------

template <class T>
inline constexpr int kBits = int(sizeof(T)) * 8;
template <class T>
inline constexpr T kMax = std::is_signed_v<T> ? T((1u << (kBits<T> - 1)) - 1) : T(~0u);
template <class T>
inline constexpr T kMin = std::is_signed_v<T> ? T(-kMax<T> - 1) : T(0);

// Directions of rounding, as instructions and the control register number them.
enum class Rounding { Nearest, Down, Up, TowardZero, OfThread };

// A sample, record or register at an address of any alignment. The address has no type when it is used: one of
// T* is a promise of T's alignment, which clang takes at its word.
template <class T>
inline T peek(const T* p) {
    const void* const at = p;
    T value;
    __builtin_memcpy(&value, at, sizeof value);
    return value;
}
template <class T>
inline void poke(T* p, T value) {
    void* const at = p;
    __builtin_memcpy(at, &value, sizeof value);
}

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

// Integers in a register of the width that floating point has, and in two as Vec has them.
inline B32f join(Pair<V32s> a) {
    return B32f(_mm256_insertf128_si256(_mm256_castsi128_si256(__m128i(a.low)), __m128i(a.high), 1));
}
inline Pair<V32s> split(B32f a) {
    return {V32s(_mm256_castsi256_si128(__m256i(a))), V32s(_mm256_extractf128_si256(__m256i(a), 1))};
}

// ---- Memory and constants: addresses need no alignment --------------------------------------------------

template <class T>
inline Vec<T> load(const T* p) {
    const void* const at = p;
    Vec<T> v;
    __builtin_memcpy(&v, at, sizeof v);
    return v;
}

template <class T>
inline void store(T* p, Vec<T> v) {
    void* const at = p;
    __builtin_memcpy(at, &v, sizeof v);
}

// Two registers of integers as one of 32 bytes, which is stored as fast as one of them.
using Joined = V32f;
template <class V>
inline Joined joined(V low, V high) {
    return V32f(
        _mm256_castsi256_ps(_mm256_insertf128_si256(_mm256_castsi128_si256(__m128i(low)), __m128i(high), 1)));
}
template <class T>
requires std::is_integral_v<T>
inline void store(T* p, Joined v) {
    void* const at = p;
    __builtin_memcpy(at, &v, sizeof v);
}

// The first so many bytes of a register, and 0 behind them. (Copied into part of a variable they would go
// through memory, and the register's load would wait for them.)
template <int Bytes>
inline V8u loadFront(const void* p) {
    static_assert(Bytes == 4 || Bytes == 8 || Bytes == 16);
    if constexpr (Bytes == 4)
        return V8u(_mm_cvtsi32_si128(peek(static_cast<const Tpx32s*>(p))));
    else if constexpr (Bytes == 8)
        return V8u(_mm_cvtsi64_si128(peek(static_cast<const Tpx64s*>(p))));
    else
        return load(static_cast<const Tpx8u*>(p));
}

// The same bits seen as other lanes.
template <class To, class From>
inline To bitsAs(From v) {
    static_assert(sizeof(To) == sizeof(From));
    To to;
    __builtin_memcpy(&to, &v, sizeof to);
    return to;
}

// A line of the caches. Lines that go past them are written whole, on their own boundaries: a half-written one
// costs a read of memory.
inline constexpr ptrdiff_t kLineBytes = 64;

// Brings the line of an address near, whatever lies there. Not the intrinsic: g++ takes that to have no effect,
// and drops calls of functions that do nothing else.
inline void prefetch(const void* p) { asm volatile("prefetcht0 %0" ::"m"(*static_cast<const char*>(p))); }

// Asks for the lines that will be read some iterations after these bytes; they may lie outside the image. The
// processor by itself is late in the second-level cache, above all with several sources. Five lines cover its
// latency. From 512 bytes on the requests get in the way of the processor's own, and data of the third level
// took up to a sixth longer.
inline void fetchAhead(const void* p, ptrdiff_t bytes) {
    constexpr ptrdiff_t kAhead = 320;
    for (ptrdiff_t i = kAhead; i < kAhead + bytes; i += kLineBytes)
        prefetch(reinterpret_cast<const void*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(i)));
}

// Past the caches, to an address on a register's boundary. They pay for what is read no more; a call that has
// streamed ends with the fence, so that the result is visible to whoever synchronises with the caller.
template <class T>
inline void streamStore(T* p, Vec<T> v) {
    if constexpr (sizeof(v) == 32)
        _mm256_stream_si256(reinterpret_cast<__m256i*>(p), bitsAs<__m256i>(v));
    else
        _mm_stream_si128(reinterpret_cast<__m128i*>(p), bitsAs<__m128i>(v));
}
inline void streamFence() { _mm_sfence(); }
// Orders reads too, after loads that may have gone past the caches.
inline void readFence() { _mm_mfence(); }

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

// One value in memory in every lane. It costs no more than the load of a register; splat<V32s>(*p) goes by way
// of a register, and takes a shuffle more.
inline V32s loadSplat(const Tpx32s* p) {
    return V32s(_mm_castps_si128(_mm_broadcast_ss(reinterpret_cast<const float*>(p))));
}

// The value as it is, from here on in a register: compilers may load it again at every use to save one.
template <class V>
inline V inRegister(V v) {
    asm("" : "+x"(v));
    return v;
}

// ---- Choosing ------------------------------------------------------------------------------------------

// a < b ? a : b, of registers and of single numbers, so `b` where one of them is NaN or both are zeros; the
// instructions for floats do just that, but g++ does not find them. maxOf likewise.
template <class V>
constexpr V minOf(V a, V b) {
    if constexpr (std::is_same_v<V, V32f>)
        return V(_mm256_min_ps(a, b));
    else if constexpr (std::is_same_v<V, V64f>)
        return V(_mm256_min_pd(a, b));
    else
        return a < b ? a : b;
}
template <class V>
constexpr V maxOf(V a, V b) {
    if constexpr (std::is_same_v<V, V32f>)
        return V(_mm256_max_ps(a, b));
    else if constexpr (std::is_same_v<V, V64f>)
        return V(_mm256_max_pd(a, b));
    else
        return a > b ? a : b;
}

// Limited to low..high; NaN gives `low`.
template <class V>
constexpr V clampTo(V x, std::type_identity_t<V> low, std::type_identity_t<V> high) {
    return minOf(maxOf(x, low), high);
}

// The lanes of `a` where the top bit of the mask's is set; of `b` elsewhere. For every mask that is no
// comparison written in place, as ?: has them: g++ takes a choice by any other mask of 32 bytes apart, lane by
// lane, for want of comparisons of integers, and would do so with the intrinsics too.
template <class V, class M>
inline V select(M mask, V a, V b) {
    using Lane = LaneOf<V>;
    V chosen;
    if constexpr (std::is_same_v<Lane, float>)
        asm("vblendvps %3, %2, %1, %0" : "=x"(chosen) : "x"(b), "x"(a), "x"(bitsAs<V>(mask)));
    else if constexpr (std::is_same_v<Lane, double>)
        asm("vblendvpd %3, %2, %1, %0" : "=x"(chosen) : "x"(b), "x"(a), "x"(bitsAs<V>(mask)));
    else
        chosen = bitsAs<V>(_mm_blendv_epi8(bitsAs<__m128i>(b), bitsAs<__m128i>(a), bitsAs<__m128i>(mask)));
    return chosen;
}

// The lanes of `a` whose bit of Mask is set, bit i for lane i; of `b` elsewhere.
template <int Mask, class V>
inline V selectLanes(V a, V b) {
    if constexpr (std::is_same_v<V, V32f>) {
        return V(_mm256_blend_ps(b, a, Mask));
    } else if constexpr (std::is_same_v<V, V64f>) {
        return V(_mm256_blend_pd(b, a, Mask));
    } else {
        constexpr int kBytes = sizeof(LaneOf<V>);
        static_assert(kBytes == 2 || kBytes == 4);
        constexpr int kUnits = [] { // of 16 bits
            int units = 0;
            for (int i = 0; i < 8; i++) units |= (Mask >> i * 2 / kBytes & 1) << i;
            return units;
        }();
        return bitsAs<V>(_mm_blend_epi16(bitsAs<__m128i>(b), bitsAs<__m128i>(a), kUnits));
    }
}

// The value where the mask is set, 0 elsewhere.
template <class V, class M>
inline V masked(M mask, V value) {
    return bitsAs<V>(bitsAs<VecBits<LaneOf<V>>>(mask) & bitsAs<VecBits<LaneOf<V>>>(value));
}

// 0 in the lanes where the mask is set, `a` elsewhere.
template <class V, class M>
inline V without(M mask, V a) {
    return V(_mm_andnot_si128(__m128i(mask), __m128i(a)));
}

// Whether any bit of a mask is set.
template <class V>
inline bool any(V mask) {
    if constexpr (sizeof(V) == 32)
        return !_mm256_testz_si256(bitsAs<__m256i>(mask), bitsAs<__m256i>(mask));
    else
        return !_mm_testz_si128(bitsAs<__m128i>(mask), bitsAs<__m128i>(mask));
}

} // namespace tpx
