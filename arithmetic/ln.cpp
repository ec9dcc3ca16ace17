// tpxiLn: natural logarithm.
#include "arithmetic/unary.h"
#include "frame/simd/math.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

// Warns of the first sample, in row-major order, that has no logarithm. Rows are looked at before they are
// mapped, since in place they are gone afterwards, and only until there is something to warn of.
template <class T>
struct LogarithmWarning {
    TpxStatus found = tpxOk;

    void inspect(const T* row, ptrdiff_t len) {
        if (found) return;
        const ptrdiff_t at = findRun(row, len, [](Vec<T> x) { return x <= Vec<T>{}; });
        if (at >= 0) found = loadShort(row + at, 1)[0] == 0 ? tpxWarnLnZeroArg : tpxWarnLnNegArg;
    }
    TpxStatus status() const { return found; }
};

template <class F, class T>
struct IntegerLogarithm : LogarithmWarning<T> {
    explicit IntegerLogarithm(int n) : scale(powerOfTwo<F>(-n)) {}

    // Zero goes the way of 1 and so gives 0; signed samples without a logarithm give the smallest value.
    Vec<T> operator()(Vec<T> x) const {
        const Vec<T> y = throughReal<F>(maxOf(x, splat<Vec<T>>(1)),
                                        [this](auto r) { return logarithm(r) * splat<decltype(r)>(scale); });
        if constexpr (std::is_signed_v<T>)
            return x <= Vec<T>{} ? splat<Vec<T>>(kMin<T>) : y;
        else
            return y;
    }

    F scale;
};

struct FloatLogarithm : LogarithmWarning<float> {
    V32f operator()(V32f x) const { return logarithm(x); }
};

} // namespace

struct Ln {
    static constexpr bool kWholeSteps = false, kCostly = true;

    template <class T, class Body>
    static TpxStatus withRule(int n, Body body) {
        if constexpr (std::is_same_v<T, float>) {
            return body(FloatLogarithm{});
        } else {
            n = clampTo(n, -20, 20); // past these every logarithm but 0 saturates, or rounds to 0
            // Single precision decides the rounding of every logarithm of 8 bits, and of 16 bits while results
            // stay small (tested sample by sample).
            if (sizeof(T) == 1 || n >= -1) return body(IntegerLogarithm<float, T>(n));
            return body(IntegerLogarithm<double, T>(n));
        }
    }
};

} // namespace tpx

#define TPX_LN(L)             \
    TPX_UNARY_SFS(Ln, 8u, L)  \
    TPX_UNARY_SFS(Ln, 16u, L) \
    TPX_UNARY_SFS(Ln, 16s, L) \
    TPX_UNARY(Ln, 32f, L)
TPX_LN(C1)
TPX_LN(C3)
