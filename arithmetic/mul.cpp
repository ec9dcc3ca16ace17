// SPDX-License-Identifier: Apache-2.0
// tpxiMul: the product of two images.
#include "arithmetic/binary.h"

namespace tpx {

struct Mul {
    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1        ? 17
                                     : std::is_signed_v<T> ? 31
                                                           : 33;

    template <class V>
    static V saturated(V a, V b) {
        using T = LaneOf<V>;
        const auto p = exact(a, b);
        if constexpr (std::is_signed_v<T>) {
            return narrow<T>(p);
        } else {
            using W = decltype(p.low + p.low);
            const W most = splat<W>(kMax<T>);
            return narrow<T>(Pair<W>{minOf(p.low, most), minOf(p.high, most)});
        }
    }
    static V32f saturated(V32f a, V32f b) { return a * b; }

    template <class V>
    static auto exact(V a, V b) {
        return multiplyWide(a, b);
    }
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
