// SPDX-License-Identifier: Apache-2.0
// tpxiSqrt: square root.
#include "arithmetic/unary.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

// Warns if a negative sample was among the lanes that it saw. Negative zero and NaN are not negative.
template <class T>
struct NegativeWarning {
    decltype(Vec<T>{} < Vec<T>{}) seen{}; // lanes below 0 tell

    void see(Vec<T> x) {
        if constexpr (std::is_integral_v<T>)
            seen |= x;
        else
            seen |= x < Vec<T>{};
    }
    TpxStatus status() const { return any(seen < decltype(seen){}) ? tpxWarnSqrtNegArg : tpxOk; }
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
        const auto root = [this](auto r) { return squareRoot(r) * splat<decltype(r)>(scale); };
        if constexpr (std::is_same_v<F, float> && std::is_same_v<T, Tpx16s>)
            return V16s(throughReal<F>(V16u(x), root)); // small, and as unsigned samples widened sooner
        else
            return throughReal<F>(x, root);
    }

    F scale;
};

// Roots of bytes that are not scaled up: results from 0 to 16. The samples that share their upper half, from 16
// on, have at most three results between them. Tables tell by that half a result two below the last of these,
// and the samples from which it is one more and two more. Samples below 16 have a table of their own. That is
// 14 operations for 16 samples, where the processor takes 12 cycles for the square roots alone.
struct SmallRoots {
    constexpr explicit SmallRoots(int n) : low{}, base{}, second{}, third{} {
        // Half of an odd number times 2^n is passed by the root, or met, which makes a tie.
        int result[256] = {};
        for (int x = 0; x < 256; x++)
            for (int k = 1; k <= 16; k++) {
                const int odd = (2 * k - 1) << n;
                if (4 * x > odd * odd || (4 * x == odd * odd && k % 2 == 0)) result[x] = k;
            }
        for (int i = 0; i < 16; i++) low[i] = Tpx8u(result[i]);
        for (int segment = 1; segment < 16; segment++) {
            // A step that does not come is at the first sample.
            const int last = result[segment * 16 + 15];
            base[segment] = Tpx8u(last - 2);
            for (int x = segment * 16 + 15; x >= segment * 16; x--) {
                if (result[x] >= last - 1) second[segment] = Tpx8u(x);
                if (result[x] >= last) third[segment] = Tpx8u(x);
            }
        }
        base[0] = Tpx8u(-2);
    }
    Tpx8u low[16], base[16], second[16], third[16];
};
// With a factor of 5 or more all are 0.
constexpr int kZeroFrom = 5;
constexpr SmallRoots kSmallRoots[] = {SmallRoots(0), SmallRoots(1), SmallRoots(2),
                                      SmallRoots(3), SmallRoots(4), SmallRoots(kZeroFrom)};

struct SmallRoot : NegativeWarning<Tpx8u> {
    explicit SmallRoot(int n)
        : low(kSmallRoots[minOf(n, kZeroFrom)].low),
          base(kSmallRoots[minOf(n, kZeroFrom)].base),
          second(kSmallRoots[minOf(n, kZeroFrom)].second),
          third(kSmallRoots[minOf(n, kZeroFrom)].third) {}

    V8u operator()(V8u x) const {
        const V8u segment = bitsAs<V8u>((bitsAs<V16u>(x) >> 4) & splat<V16u>(0x0F0F));
        const V8u ofLow = lookup(low, addSat(x, splat<V8u>(112))); // 0 from 16 on
        const auto isFrom = [&](const Table16<Tpx8u>& table) {
            return V8u(maxOf(x, lookup(table, segment)) == x);
        };
        return ofLow + lookup(base, segment) - isFrom(second) - isFrom(third);
    }

    Table16<Tpx8u> low, base, second, third;
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
            if constexpr (sizeof(T) == 1)
                if (n >= 0) return mapRoot(call, SmallRoot(n));
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
