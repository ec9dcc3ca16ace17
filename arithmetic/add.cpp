// SPDX-License-Identifier: Apache-2.0
// tpxiAdd: the sum of two images.
#include "arithmetic/binary.h"
#include "arithmetic/halves.h"

namespace tpx {

struct Add {
    static constexpr bool kIsLight = true;

    template <class T>
    static constexpr int kZeroFrom = sizeof(T) == 1        ? 10
                                     : std::is_signed_v<T> ? 17
                                                           : 18;

    template <class V>
    static V saturated(V a, V b) {
        return addSat(a, b);
    }
    static V32f saturated(V32f a, V32f b) { return a + b; }

    template <class V>
    static V halved(V a, V b) {
        return halfToEven(halfOfSum(a, b));
    }
    template <class V>
    static auto shrunk(int n) {
        return
            [shift = ShrunkHalf<V>(n - 1)](V a, V b) { return shift(halfOfSum(inRegister(a), inRegister(b))); };
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
