// SPDX-License-Identifier: Apache-2.0
// tpxiAdd: the sum of two images.
#include "arithmetic/binary.h"

namespace tpx {

struct Add {
    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1        ? 10
                                     : std::is_signed_v<T> ? 17
                                                           : 18;

    template <class V>
    static V saturated(V a, V b) {
        return addSat(a, b);
    }
    static V32f saturated(V32f a, V32f b) { return a + b; }

    // An odd sum was rounded up; where that is odd, the even neighbour is below.
    template <class V>
    static V halved(V a, V b) {
        const V up = average(a, b);
        return up - ((a ^ b) & up & splat<V>(1));
    }

    static Pair<V16s> exact(V8u a, V8u b) {
        const Pair<V16u> x = widen(a), y = widen(b);
        return {V16s(x.low + y.low), V16s(x.high + y.high)};
    }
    static Pair<V32u> exact(V16u a, V16u b) {
        const Pair<V32u> x = widen(a), y = widen(b);
        return {x.low + y.low, x.high + y.high};
    }
    static Pair<V32s> exact(V16s a, V16s b) {
        const V16s ones = splat<V16s>(1);
        return {multiplyAddPairs(interleaveLow(a, b), ones), multiplyAddPairs(interleaveHigh(a, b), ones)};
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

TPX_BINARY_TYPES(C1, tpxiAdd_, Add)
TPX_BINARY_TYPES(C3, tpxiAdd_, Add)
TPX_BINARY_TYPES(C4, tpxiAdd_, Add)
TPX_BINARY_TYPES(AC4, tpxiAdd_, Add)
#undef TPX_BINARY
#undef TPX_BINARY_SFS
#undef TPX_BINARY_TYPES
