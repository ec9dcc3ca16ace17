// SPDX-License-Identifier: Apache-2.0
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

// Alpha has a root, too, unless it is not to be looked at and so cannot raise the warning.
enum class Alpha { Seen, Unseen };

template <Alpha A>
struct FloatRoot : NegativeWarning<float> {
    V32f operator()(V32f x) {
        if constexpr (A == Alpha::Unseen) x = keepAlpha<float>(V32f{}, x);
        see(x);
        return squareRoot(x);
    }
};

template <class Call, class Root>
TpxStatus mapRoot(const Call& call, Root root) {
    call.map([&root](auto x) { return root(x); });
    return root.status();
}

} // namespace

struct Sqrt {
    static constexpr bool kWholeSteps = true;

    template <Layout L, class T>
    static TpxStatus run(const UnaryCall<L, T>& call) {
        if constexpr (std::is_same_v<T, float>) {
            return mapRoot(call, FloatRoot<Alpha::Seen>{});
        } else {
            // Past these factors every root saturates, or rounds to 0.
            const int n = clampTo(call.scaleFactor, -20, 20);
            if (sizeof(T) == 1 || n >= 0) return mapRoot(call, IntegerRoot<float, T>(n));
            return mapRoot(call, IntegerRoot<double, T>(n));
        }
    }
};

struct SqrtOfColours {
    static constexpr bool kWholeSteps = true;

    static TpxStatus run(const UnaryCall<Layout::AC4, float>& call) {
        return mapRoot(call, FloatRoot<Alpha::Unseen>{});
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

#define TPX_SQRT(L)                        \
    TPX_UNARY_SFS(8u, L, tpxiSqrt_, Sqrt)  \
    TPX_UNARY_SFS(16u, L, tpxiSqrt_, Sqrt) \
    TPX_UNARY_SFS(16s, L, tpxiSqrt_, Sqrt)
TPX_SQRT(C1)
TPX_SQRT(C3)
TPX_SQRT(AC4)
TPX_UNARY(32f, C1, tpxiSqrt_, Sqrt)
TPX_UNARY(32f, C3, tpxiSqrt_, Sqrt)
#undef TPX_SQRT
#undef TPX_UNARY
#undef TPX_UNARY_SFS

TPX_ENTRY(tpxiSqrt_32f_AC4R)
(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) {
    using namespace tpx;
    return unary<SqrtOfColours, Layout::AC4, Tpx32f>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize));
}
TPX_ENTRY(tpxiSqrt_32f_AC4IR)(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize) {
    using namespace tpx;
    return unary<Sqrt, Layout::AC4, Tpx32f>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize));
}
TPX_ENTRY(tpxiSqrt_32f_C4IR)(Tpx32f* pSrcDst, int srcDstStep, TpxiSize roiSize) {
    using namespace tpx;
    return unary<Sqrt, Layout::C4, Tpx32f>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize));
}
