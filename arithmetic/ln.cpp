// SPDX-License-Identifier: Apache-2.0
// tpxiLn: natural logarithm.
#include "arithmetic/unary.h"
#include "frame/simd/math.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

// ---- Rules ------------------------------------------------------------------------------------------------

inline V32f logarithmFromOneOn(V32f x) { return ordinaryLogarithm(x); }
inline V64f logarithmFromOneOn(V64f x) { return logarithm(x); }

template <class F, class T>
struct IntegerLogarithm {
    explicit IntegerLogarithm(int n) : scale(powerOfTwo<F>(-n)) {}

    // Zero goes the way of 1 and so gives 0; signed samples without a logarithm give the smallest value.
    Vec<T> operator()(Vec<T> x) const {
        const Vec<T> y = throughReal<F>(maxOf(x, splat<Vec<T>>(1)), [this](auto r) {
            return logarithmFromOneOn(r) * splat<decltype(r)>(scale);
        });
        if constexpr (std::is_signed_v<T>)
            return x <= Vec<T>{} ? splat<Vec<T>>(kMin<T>) : y;
        else
            return y;
    }

    F scale;
};

template <class T>
TpxStatus warningOf(T sample) {
    return sample == 0 ? tpxWarnLnZeroArg : tpxWarnLnNegArg;
}

// Warns of the first sample, in row-major order, that has no logarithm.
struct FloatLogarithm {
    TpxStatus status = tpxOk;
    ptrdiff_t first = 0; // if there is one

    template <class... V>
    static bool ordinary(V... x) {
        return isOrdinaryForLogarithm(x...);
    }
    static V32f brief(V32f x) { return ordinaryLogarithm(x); }
    V32f full(V32f x, ptrdiff_t i) {
        if (const Tpx32u lanes = laneBits(x <= V32f{})) {
            const int lane = __builtin_ctz(lanes);
            if (!status || i + lane < first) {
                status = warningOf(x[lane]);
                first = i + lane;
            }
        }
        return logarithm(x);
    }
};

// What a rule makes of every byte.
struct ByteResults {
    Tpx8u at[256];

    template <class Rule>
    explicit ByteResults(const Rule& rule) {
        for (int i = 0; i < 256; i++) at[i] = Tpx8u(i);
        mapRun(at, at, 256, rule);
    }
};

// From so many samples on a table of all results is worth its making.
constexpr ptrdiff_t kTableFloor = 1024;

// ---- Rows -------------------------------------------------------------------------------------------------

// Warns of the first sample, in row-major order, that has no logarithm. Rows are looked at before they are
// mapped, since in place they are gone afterwards, and only until there is something to warn of.
template <class T>
struct LogarithmWarning {
    TpxStatus status = tpxOk;

    void inspect(const T* row, ptrdiff_t len) {
        if (status) return;
        const ptrdiff_t at = findRun(row, len, [](Vec<T> x) { return x <= Vec<T>{}; });
        if (at >= 0) status = warningOf(peek(row + at));
    }
};

// Rows are not joined: one that is looked at first is still in the nearest cache when it is mapped, a long run
// of all of them is not.
template <Layout L, class T, class Rule>
TpxStatus mapInspected(const UnaryCall<L, T>& call, Rule rule) {
    LogarithmWarning<T> warning;
    const auto walk = [&](auto mapRow) {
        walkRows(
            call.extent,
            [&](ptrdiff_t len, T* d, const T* s) {
                warning.inspect(s, len);
                mapRow(len, d, s);
            },
            call.dst, call.src);
    };
    if constexpr (sizeof(T) == 1)
        if (call.extent.width * call.extent.height >= kTableFloor) {
            const ByteResults results(rule);
            const Tables tables{{results.at}, ~Tpx64u(0)};
            walk([&](ptrdiff_t len, T* d, const T* s) { lookupRow<Layout::C1, T, 1>(s, d, len, tables); });
            return warning.status;
        }
    const bool inPlace = call.src.data == call.dst.data; // its lines are in the caches already
    if (!inPlace && goesPastCaches(kStreamPointwise, trafficOf(call.extent, call.dst, call.src))) {
        walk([&](ptrdiff_t len, T* d, const T* s) { streamRun(d, len, rule, s); });
        streamFence();
    } else {
        walk([&](ptrdiff_t len, T* d, const T* s) { applyRun(d, len, rule, s); });
    }
    return warning.status;
}

} // namespace

struct Ln {
    static constexpr bool kWholeSteps = false;

    template <Layout L, class T>
    static TpxStatus run(const UnaryCall<L, T>& call) {
        if constexpr (std::is_same_v<T, float>) {
            FloatLogarithm logarithm;
            call.mapMostlyOrdinary(logarithm);
            return logarithm.status;
        } else {
            // Past these factors every logarithm but 0 saturates, or rounds to 0.
            const int n = clampTo(call.scaleFactor, -20, 20);
            // Single precision decides the rounding of every logarithm of 8 bits, and of 16 bits while results
            // stay small (tested sample by sample).
            if (sizeof(T) == 1 || n >= -1) return mapInspected(call, IntegerLogarithm<float, T>(n));
            return mapInspected(call, IntegerLogarithm<double, T>(n));
        }
    }
};

} // namespace tpx

// ---- Entries -------------------------------------------------------------------------------------------

#define TPX_LN(L)                      \
    TPX_UNARY_SFS(8u, L, tpxiLn_, Ln)  \
    TPX_UNARY_SFS(16u, L, tpxiLn_, Ln) \
    TPX_UNARY_SFS(16s, L, tpxiLn_, Ln) \
    TPX_UNARY(32f, L, tpxiLn_, Ln)
TPX_LN(C1)
TPX_LN(C3)
#undef TPX_LN
#undef TPX_UNARY
#undef TPX_UNARY_SFS
