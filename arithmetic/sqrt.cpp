// tpxiSqrt: square root.
#include "arithmetic/unary.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

// Warns if a negative sample was among the lanes that it saw. Negative zero and NaN are not negative.
template <class T>
struct NegativeWarning {
    decltype(Vec<T>{} < Vec<T>{}) seen{};

    void see(Vec<T> x) { seen |= x < Vec<T>{}; }
    TpxStatus status() const { return any(seen) ? tpxWarnSqrtNegArg : tpxOk; }
};

// Single precision decides every rounding of a root that is not scaled up: a root of b bits either is a tie
// exactly, and then is exact, or is away from one by more than 2^-18 of its value. Scaled up, 16-bit samples
// come within 2^-35 of a tie, and need double precision.
template <class F, class T>
struct IntegerRoot : NegativeWarning<T> {
    explicit IntegerRoot(int n) : scale(powerOfTwo<F>(-n)) {}

    Vec<T> operator()(Vec<T> x) {
        if constexpr (std::is_signed_v<T>) {
            this->see(x);
            x = maxOf(x, Vec<T>{});
        }
        return throughReal<F>(x, [this](auto r) { return squareRoot(r) * splat<decltype(r)>(scale); });
    }

    F scale;
};

template <bool Alpha>
struct FloatRoot : NegativeWarning<float> {
    V32f operator()(V32f x) {
        if constexpr (!Alpha) x = keepAlpha<float>(V32f{}, x);
        see(x);
        return squareRoot(x);
    }
};

} // namespace

struct Sqrt {
    static constexpr bool kWholeSteps = true;

    template <class T, class Body>
    static TpxStatus withRule(int n, Body body) {
        if constexpr (std::is_same_v<T, float>) {
            return body(FloatRoot<true>{});
        } else {
            n = clampTo(n, -20, 20); // past these every root saturates, or rounds to 0
            if (sizeof(T) == 1 || n >= 0) return body(IntegerRoot<float, T>(n));
            return body(IntegerRoot<double, T>(n));
        }
    }
};

// Alpha is not looked at, so it cannot raise the warning.
struct SqrtOfColours {
    static constexpr bool kWholeSteps = true;

    template <class T, class Body>
    static TpxStatus withRule(int, Body body) {
        return body(FloatRoot<false>{});
    }
};

} // namespace tpx

#define TPX_SQRT(L)             \
    TPX_UNARY_SFS(Sqrt, 8u, L)  \
    TPX_UNARY_SFS(Sqrt, 16u, L) \
    TPX_UNARY_SFS(Sqrt, 16s, L)
TPX_SQRT(C1)
TPX_SQRT(C3)
TPX_SQRT(AC4)
TPX_UNARY(Sqrt, 32f, C1)
TPX_UNARY(Sqrt, 32f, C3)
TPX_UNARY_INPLACE(Sqrt, 32f, C4)
TPX_UNARY_INPLACE(Sqrt, 32f, AC4)

TPX_ENTRY(tpxiSqrt_32f_AC4R)
(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) {
    return tpx::unary<tpx::SqrtOfColours, tpx::Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
