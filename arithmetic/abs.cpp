// tpxiAbs: absolute value.
#include "arithmetic/unary.h"

namespace tpx {

struct Abs {
    static constexpr bool kWholeSteps = true;

    template <class T, class Body>
    static TpxStatus withRule(int, Body body) {
        return body([](Vec<T> x) { return absSat(x); });
    }
};

} // namespace tpx

#define TPX_ABS(L)         \
    TPX_UNARY(Abs, 16s, L) \
    TPX_UNARY(Abs, 32f, L)
TPX_ABS(C1)
TPX_ABS(C3)
TPX_ABS(C4)
TPX_ABS(AC4)
