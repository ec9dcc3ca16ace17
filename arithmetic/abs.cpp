// SPDX-License-Identifier: Apache-2.0
// tpxiAbs: absolute value.
#include "arithmetic/unary.h"

namespace tpx {

struct Abs {
    static constexpr bool kWholeSteps = true;

    template <Layout L, class T>
    static TpxStatus run(const UnaryCall<L, T>& call) {
        return call.map(Light{[](Vec<T> x) { return absSat(x); }});
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

#define TPX_ABS(L)                   \
    TPX_UNARY(16s, L, tpxiAbs_, Abs) \
    TPX_UNARY(32f, L, tpxiAbs_, Abs)
TPX_ABS(C1)
TPX_ABS(C3)
TPX_ABS(C4)
TPX_ABS(AC4)
#undef TPX_ABS
#undef TPX_UNARY
#undef TPX_UNARY_SFS
