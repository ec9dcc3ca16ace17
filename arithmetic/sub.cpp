// SPDX-License-Identifier: Apache-2.0
// tpxiSub: the second image less the first.
#include "arithmetic/binary.h"

namespace tpx {

struct Sub {
    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1 ? 9 : 17;

    template <class V>
    static V saturated(V a, V b) {
        return subSat(b, a);
    }
    static V32f saturated(V32f a, V32f b) { return b - a; }

    template <class V>
    static V halved(V a, V b) {
        const V d = subSat(b, a), up = average(d, V{});
        return up - (d & up & splat<V>(1));
    }
    // With ~a for -a - 1 an odd difference is rounded down; where that is odd, the even neighbour is above.
    static V16s halved(V16s a, V16s b) {
        const V16s down = average(b, ~a);
        return addSat(down, (a ^ b) & down & splat<V16s>(1));
    }

    // Unsigned differences below 0 give 0 under every factor, so they may be clipped first.
    static Pair<V16s> exact(V8u a, V8u b) {
        const Pair<V16u> d = widen(subSat(b, a));
        return {V16s(d.low), V16s(d.high)};
    }
    static V16u exact(V16u a, V16u b) { return subSat(b, a); }
    static Pair<V32s> exact(V16s a, V16s b) {
        const V16s signs = {-1, 1, -1, 1, -1, 1, -1, 1};
        return {multiplyAddPairs(interleaveLow(a, b), signs), multiplyAddPairs(interleaveHigh(a, b), signs)};
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

TPX_BINARY_TYPES(C1, tpxiSub_, Sub)
TPX_BINARY_TYPES(C3, tpxiSub_, Sub)
TPX_BINARY_TYPES(C4, tpxiSub_, Sub)
TPX_BINARY_TYPES(AC4, tpxiSub_, Sub)
#undef TPX_BINARY
#undef TPX_BINARY_SFS
#undef TPX_BINARY_TYPES
