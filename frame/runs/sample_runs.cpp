// SPDX-License-Identifier: Apache-2.0
// Runs of samples: reversal, a constant factor, slopes, and the larger or smaller of two runs.
#include <limits>

#include "frame/runs/reverse.h"
#include "frame/runs/routines.h"

namespace tpx {
namespace {

template <class T>
inline TpxStatus check(const T* p, int len) {
    return anyNull(p) ? tpxErrNullPointer : len < 1 ? tpxErrSize : tpxOk;
}

template <class T>
inline TpxStatus check(const T* p, const T* q, int len) {
    return anyNull(p, q) ? tpxErrNullPointer : check(p, len);
}

// ---- Slopes ---------------------------------------------------------------------------------------------

// The product and the sum are rounded one by one; an index beyond 2^24 is rounded first.
struct Slope {
    float offset, slope;

    float at(int i) const { return offset + slope * static_cast<float>(i); }
    // Of the indices from i on. They are counted as integers, so a value does not depend on where a run begins.
    V32f lanesAt(int i) const {
        static_assert(kLanes<Tpx32f> == 2 * kLanes<Tpx32s>);
        constexpr V32s kFirst = {0, 1, 2, 3}, kSecond = {4, 5, 6, 7};
        return splat<V32f>(offset) + splat<V32f>(slope) * toFloat({kFirst + i, kSecond + i});
    }
};

// The direction is in the instruction and x - whole is exact, so the control register has no say.
inline V32f roundHalfAway(V32f x) {
    const V32f whole = rounded<Rounding::TowardZero>(x);
    const V32f rest = x - whole;
    const V32f up = rest >= 0.5f ? splat<V32f>(1) : V32f{}, down = rest <= -0.5f ? splat<V32f>(1) : V32f{};
    return whole + up - down;
}

// Rounded and within the range of T. NaN, which only an infinite or NaN argument brings, becomes the lower
// limit.
template <class T>
inline V32f saturateTo(V32f x) {
    using Limits = std::numeric_limits<T>;
    return roundHalfAway(minOf(maxOf(x, splat<V32f>(Limits::min())), splat<V32f>(Limits::max())));
}

template <class T>
inline Vec<T> slopeLanes(const Slope& slope, int i) {
    if constexpr (std::is_same_v<T, Tpx32f>) {
        return slope.lanesAt(i);
    } else if constexpr (sizeof(T) == 2) {
        return narrow<T>(toInteger(saturateTo<T>(slope.lanesAt(i))));
    } else {
        const auto half = [&](int j) { return narrow<Tpx16s>(toInteger(saturateTo<T>(slope.lanesAt(i + j)))); };
        return narrow<T>(Pair<V16s>{half(0), half(kLanes<Tpx32f>)});
    }
}

template <class T>
inline void writeSlope(const Slope& slope, T* dst, int begin, int end) {
    const ptrdiff_t len = end - begin;
    const auto at = [&](ptrdiff_t i) { return slopeLanes<T>(slope, begin + int(i)); };
    writeRun(dst + begin, len, samplesToBoundary(dst + begin), at, [&] { return at(0); });
}

// How many of the first `len` indices pass a test that none passes after the first that fails.
template <class Test>
inline int countLeading(int len, Test test) {
    int low = 0, high = len;
    if (test(len - 1)) return len;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (test(middle))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

inline void fill(Tpx8u val, Tpx8u* dst, int len) { ownsSet_8u(val, dst, len); }
inline void fill(Tpx16u val, Tpx16u* dst, int len) { ownsSet_16u(val, dst, len); }
inline void fill(Tpx16s val, Tpx16s* dst, int len) {
    ownsSet_16u(Tpx16u(val), reinterpret_cast<Tpx16u*>(dst), len);
}

// The stretches in which the value has left the range are found by the rule itself, which is monotonic, and
// filled. A constant that is in the range is a stretch, too. Searching does not pay for a short run.
template <class T>
inline void slopeRun(const Slope& slope, T* dst, int len) {
    constexpr T kLow = std::numeric_limits<T>::min(), kHigh = std::numeric_limits<T>::max();
    constexpr int kShortRun = 256;
    if (slope.slope == 0) return fill(slopeLanes<T>(slope, 0)[0], dst, len);
    int begin = 0, end = len;
    const bool rising = slope.slope > 0;
    if (len > kShortRun) {
        const auto isLow = [&](int i) { return slope.at(i) <= kLow; };
        const auto isHigh = [&](int i) { return slope.at(i) >= kHigh; };
        begin = rising ? countLeading(len, isLow) : countLeading(len, isHigh);
        end = rising ? countLeading(len, [&](int i) { return !isHigh(i); })
                     : countLeading(len, [&](int i) { return !isLow(i); });
    }
    if (begin > 0) fill(rising ? kLow : kHigh, dst, begin);
    if (begin < end) writeSlope(slope, dst, begin, end);
    if (end < len) fill(rising ? kHigh : kLow, dst + end, len - end);
}

inline void slopeRun(const Slope& slope, Tpx32f* dst, int len) { writeSlope(slope, dst, 0, len); }

// A NaN in either run leaves the second run's sample as it was.
constexpr auto larger = [](auto x, auto kept) { return maxOf(x, kept); };
constexpr auto smaller = [](auto x, auto kept) { return minOf(x, kept); };

} // namespace
} // namespace tpx

using namespace tpx;

#define FLIP(type)                                                                     \
    TpxStatus TPXS(Flip_##type)(const Tpx##type* pSrc, Tpx##type* pDst, int len) {     \
        if (const TpxStatus status = check<Tpx##type>(pSrc, pDst, len)) return status; \
        reverseRun(pSrc, pDst, len);                                                   \
        return tpxOk;                                                                  \
    }                                                                                  \
    TpxStatus TPXS(Flip_##type##_I)(Tpx##type * pSrcDst, int len) {                    \
        if (const TpxStatus status = check(pSrcDst, len)) return status;               \
        reverseRun(pSrcDst, len);                                                      \
        return tpxOk;                                                                  \
    }
FLIP(8u)
FLIP(16u)
FLIP(32f)

TpxStatus TPXS(MulC_32f_I)(Tpx32f val, Tpx32f* pSrcDst, int len) {
    if (const TpxStatus status = check(pSrcDst, len)) return status;
    if (val == 1) return tpxOk;
    if (val == 0) return TPXS(Zero_32f)(pSrcDst, len);
    mapRun(pSrcDst, pSrcDst, len, [&](V32f x) { return x * splat<V32f>(val); });
    return tpxOk;
}

#define VECTOR_SLOPE(type)                                                                       \
    TpxStatus TPXS(VectorSlope_##type)(Tpx32f offset, Tpx32f slope, Tpx##type * pDst, int len) { \
        if (const TpxStatus status = check(pDst, len)) return status;                            \
        slopeRun(Slope{offset, slope}, pDst, len);                                               \
        return tpxOk;                                                                            \
    }
VECTOR_SLOPE(8u)
VECTOR_SLOPE(16u)
VECTOR_SLOPE(16s)
VECTOR_SLOPE(32f)

#define EVERY(name, type, rule)                                                             \
    TpxStatus TPXS(name##_##type##_I)(const Tpx##type* pSrc, Tpx##type* pSrcDst, int len) { \
        if (const TpxStatus status = check<Tpx##type>(pSrc, pSrcDst, len)) return status;   \
        applyRun(pSrcDst, len, rule, pSrc, pSrcDst);                                        \
        return tpxOk;                                                                       \
    }
EVERY(MaxEvery, 8u, larger)
EVERY(MaxEvery, 16u, larger)
EVERY(MaxEvery, 16s, larger)
EVERY(MaxEvery, 32f, larger)
EVERY(MinEvery, 8u, smaller)
EVERY(MinEvery, 16u, smaller)
EVERY(MinEvery, 16s, smaller)
EVERY(MinEvery, 32f, smaller)
