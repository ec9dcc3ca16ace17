// SPDX-License-Identifier: Apache-2.0
// tpxiSqr: square.
#include "arithmetic/unary.h"
#include "frame/simd/rounding.h"

namespace tpx {
namespace {

// rule(m * m) in lanes of twice the width, saturated back to T.
template <class T, class M, class Rule>
inline Vec<T> throughSquare(M m, Rule rule) {
    const auto square = multiplyWide(m, m);
    return narrow<T>(decltype(square){rule(square.low), rule(square.high)});
}

// n > 0: squares shifted right, ties to even. A square is a tie only for odd n (an odd square times a power of
// four), and the even neighbour is then the lower one, since odd squares are 1 more than a multiple of 8. So
// taking 1 off first and rounding halves up is exact, and for even n there is nothing to take off.
template <class T>
inline auto shrinkingRule(int n) {
    return [n](Vec<T> x) {
        return throughSquare<T>(magnitude(x), [n](auto square) {
            using W = decltype(square);
            const W odd = splat<W>(LaneOf<W>(n & 1));
            return HalvesUp<W>(n)(subSat(square, odd));
        });
    };
}

// k = -n >= 0: squares shifted left. The sample is limited to the first power of two whose result saturates,
// so that nothing is shifted out.
template <class T>
inline auto growingRule(int k) {
    const Tpx32u limit = 1u << ((kValueBits<T> - k + 1) / 2);
    return [k, limit](Vec<T> x) {
        const auto m = magnitude(x);
        const auto limited = minOf(m, splat<decltype(m)>(LaneOf<decltype(m)>(limit)));
        return throughSquare<T>(limited, [k](auto square) { return shiftLeft(square, k); });
    };
}

// Factor 0 in 16 bits, without leaving them.
inline V16s squareSaturated(V16s x) {
    const V16u m = minOf(magnitude(x), splat<V16u>(182)); // the first that saturates
    return V16s(minOf(m * m, splat<V16u>(32767)));
}
inline V16u squareSaturated(V16u x) {
    const V16u m = minOf(x, splat<V16u>(256)); // the first that saturates; its square is 0 in 16 bits
    return m * m - (m >> 8);
}

} // namespace

struct Sqr {
    static constexpr bool kWholeSteps = true;

    template <Layout L, class T>
    static TpxStatus run(const UnaryCall<L, T>& call) {
        if constexpr (std::is_same_v<T, float>) {
            return call.map([](V32f x) { return x * x; });
        } else {
            // From 2 * bits + 1 on the largest square rounds to 0; from -bits down 1 saturates.
            const int n = clampTo(call.scaleFactor, -kValueBits<T>, 2 * kBits<T> + 1);
            if (n > 0) return call.map(shrinkingRule<T>(n));
            const auto growing = growingRule<T>(-n);
            if constexpr (std::is_same_v<T, Tpx8u>) {
                // No sample above 15 stays below saturation: the 16 results that there are make a table.
                Table16<Tpx8u> table;
                table.bytes = growing(V8u{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
                return call.map(Light{[table](V8u x) { return lookupOrMax(table, x); }});
            } else {
                if (n == 0) return call.map([](Vec<T> x) { return squareSaturated(x); });
                return call.map(growing);
            }
        }
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

#define TPX_SQR(L)                       \
    TPX_UNARY_SFS(8u, L, tpxiSqr_, Sqr)  \
    TPX_UNARY_SFS(16u, L, tpxiSqr_, Sqr) \
    TPX_UNARY_SFS(16s, L, tpxiSqr_, Sqr) \
    TPX_UNARY(32f, L, tpxiSqr_, Sqr)
TPX_SQR(C1)
TPX_SQR(C3)
TPX_SQR(C4)
TPX_SQR(AC4)
#undef TPX_SQR
#undef TPX_UNARY
#undef TPX_UNARY_SFS
