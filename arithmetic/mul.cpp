// SPDX-License-Identifier: Apache-2.0
// tpxiMul: the product of two images.
#include "arithmetic/binary.h"

namespace tpx {

namespace {

// Products of 16 bits are made in two halves, and stay so where that saves unpacking and packing them. Sources
// are kept in registers: as operands of both multiplications they would be loaded twice, and loads are what
// bounds these kernels.

// Ones where a number is at least `limit`, which is not 0.
inline V16u ifAtLeast(V16u x, V16u limit) { return V16u(maxOf(x, limit) == x); }

// Products shifted right by n from 1 to 15, ties to even, saturated.
struct ShrunkProduct {
    // A power of two shifts a half and gives what it loses, too: the count of a shift is no faster.
    explicit ShrunkProduct(int n)
        : unit(splat<V16u>(Tpx16u(1u << (16 - n)))), limit(splat<V16u>(Tpx16u(1u << n))) {}

    V16u operator()(V16u a, V16u b) const {
        a = inRegister(a), b = inRegister(b);
        const V16u high = multiplyHigh(a, b), low = a * b, one = splat<V16u>(1);
        const V16u quotient = high * unit | multiplyHigh(low, unit);
        const V16u fraction = low * unit; // of 2^16, with its last bit free
        // Up if it is above one half, or is one half and the quotient is odd.
        const V16u up = minOf(subSat(fraction | (quotient & one), splat<V16u>(0x8000)), one);
        return addSat(quotient, up | ifAtLeast(high, limit));
    }

    V16u unit, limit;
};

} // namespace

struct Mul {
    static constexpr bool kIsLight = false;

    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1        ? 17
                                     : std::is_signed_v<T> ? 31
                                                           : 33;

    template <class V>
    static auto exact(V a, V b) {
        return multiplyWide(inRegister(a), inRegister(b));
    }

    static V8u saturated(V8u a, V8u b) {
        const Pair<V16u> p = exact(a, b);
        const V16u most = splat<V16u>(255); // packing takes lanes for signed
        return narrow<Tpx8u>(Pair<V16u>{minOf(p.low, most), minOf(p.high, most)});
    }
    static V16u saturated(V16u a, V16u b) {
        a = inRegister(a), b = inRegister(b);
        return a * b | ifAtLeast(multiplyHigh(a, b), splat<V16u>(1));
    }
    static V16s saturated(V16s a, V16s b) { return narrow<Tpx16s>(exact(a, b)); }
    static V32f saturated(V32f a, V32f b) { return a * b; }

    template <class V>
    requires std::is_same_v<V, V16u>
    static ShrunkProduct shrunk(int n) { return ShrunkProduct(n); }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

TPX_BINARY_TYPES(C1, tpxiMul_, Mul)
TPX_BINARY_TYPES(C3, tpxiMul_, Mul)
TPX_BINARY_TYPES(C4, tpxiMul_, Mul)
TPX_BINARY_TYPES(AC4, tpxiMul_, Mul)
#undef TPX_BINARY
#undef TPX_BINARY_SFS
#undef TPX_BINARY_TYPES
