// SPDX-License-Identifier: Apache-2.0
// tpxiExp: exponential.
#include "arithmetic/unary.h"
#include "frame/simd/math.h"
#include "frame/simd/rounding.h"

namespace tpx {
namespace {

// Between the samples whose result rounds to 0 and those whose result saturates at 16 bits lie at most
// 11.8 integers (the logarithm of 2 * 65536), wherever the scale factor puts them. So every integer form is a
// table of 16 results and one lookup: samples below the window take its first entry, samples above its last.
template <class T>
struct Window {
    explicit Window(int n) {
        // Above, the largest sample gives 0; below, the smallest one saturates.
        n = clampTo(n, -50000, 100000);
        const double half = (n - 1) * kLn2; // exp of it, scaled, is one half
        const int whole = int(half) - (half < int(half));
        first = T(clampTo(whole, kMin<T>, kMax<T>));
        alignas(32) T results[16];
        for (int i = 0; i < 16; i += 4) {
            const V64f a = splat<V64f>(double(first) + i) + V64f{0, 1, 2, 3};
            // exp(a) * 2^-n as exp(a - n ln 2), the product exact in its high part. exp(0) is the one result
            // that can be a tie, and is taken exactly.
            V64f t = (a - splat<V64f>(n * kLn2High)) - splat<V64f>(n * kLn2Low);
            t = minOf(maxOf(t, splat<V64f>(-10)), splat<V64f>(20));
            const V64f one = splat<V64f>(powerOfTwo<double>(-clampTo(n, -100, 100)));
            const V32s r = toLanesOf<T>(a == V64f{} ? one : exponential(t));
            for (int j = 0; j < 4; j++) results[i + j] = T(r[j]);
        }
        table = Table16<T>(results);
    }

    Vec<T> operator()(Vec<T> x) const {
        const Vec<T> above = maxOf(subSat(x, splat<Vec<T>>(first)), Vec<T>{});
        return lookup(table, minOf(above, splat<Vec<T>>(15)));
    }

    static constexpr double kLn2 = 0x1.62e42fefa39efp-1;
    static constexpr double kLn2High = 0x1.62e42fefp-1; // 33 bits, so that 17 bits of n fit beside them
    static constexpr double kLn2Low = 0x1.473de6af278edp-34;

    T first;
    Table16<T> table;
};

// An image that has decayed is full of results that are denormal or 0, which are not ordinary.
struct FloatExponential {
    template <class... V>
    static bool ordinary(V... x) {
        return isOrdinaryForExponential(x...);
    }
    static V32f brief(V32f x) { return ordinaryExponential(x); }
    static V32f full(V32f x, ptrdiff_t) { return exponential(x); }
};

} // namespace

struct Exp {
    static constexpr bool kWholeSteps = false;

    template <Layout L, class T>
    static TpxStatus run(const UnaryCall<L, T>& call) {
        if constexpr (std::is_same_v<T, float>)
            return call.mapMostlyOrdinary(FloatExponential{});
        else
            return call.map(Window<T>(call.scaleFactor));
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

#define TPX_EXP(L)                       \
    TPX_UNARY_SFS(8u, L, tpxiExp_, Exp)  \
    TPX_UNARY_SFS(16u, L, tpxiExp_, Exp) \
    TPX_UNARY_SFS(16s, L, tpxiExp_, Exp) \
    TPX_UNARY(32f, L, tpxiExp_, Exp)
TPX_EXP(C1)
TPX_EXP(C3)
#undef TPX_EXP
#undef TPX_UNARY
#undef TPX_UNARY_SFS
