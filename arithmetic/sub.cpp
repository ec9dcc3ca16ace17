// SPDX-License-Identifier: Apache-2.0
// tpxiSub: the second image less the first.
#include "arithmetic/binary.h"
#include "arithmetic/halves.h"

namespace tpx {

struct Sub {
    static constexpr bool kIsLight = true;

    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1 ? 9 : 17;

    template <class V>
    static V saturated(V a, V b) {
        return subSat(b, a);
    }
    static V32f saturated(V32f a, V32f b) { return b - a; }

    // Unsigned differences below 0 give 0 under every factor, so they may be clipped first.
    template <class V>
    static V halved(V a, V b) {
        const V d = subSat(b, a);
        return halfToEven(Half<V>{average(d, V{}), d});
    }
    static V16s halved(V16s a, V16s b) { return halfToEven(halfOfDifference(a, b)); }
    template <class V>
    static auto shrunk(int n) {
        if constexpr (std::is_same_v<V, V16s>)
            return [shift = ShrunkHalf<V>(n - 1)](V a, V b) {
                return shift(halfOfDifference(inRegister(a), inRegister(b)));
            };
        else
            return [shift = ShrunkHalf<V>(n)](V a, V b) { return shift({subSat(b, a), V{}}); };
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
