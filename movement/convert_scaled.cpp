// SPDX-License-Identifier: Apache-2.0
// tpxiConvert of integers with a scale factor.
#include "movement/convert_round.h"

namespace tpx {
namespace {

// The lanes that samples of S are scaled in: their own, but for 8 bits, which no shift serves.
template <class S>
using Work = std::conditional_t<sizeof(S) == 1, Tpx16u, S>;

// scale(register of work lanes) for as many registers as fill one of D, saturated. Unsigned results may use all
// bits.
template <class D, class S, class Scale>
inline Vec<D> throughWork(const S* p, Scale scale) {
    using W = Work<S>;
    return narrowAll<D>(makeSeveral<kLanes<D> / kLanes<W>>([&](int i) {
        const Vec<W> x = scale(loadAs<W>(p + i * kLanes<W>));
        return std::is_signed_v<W> ? x : minOf(x, splat<Vec<W>>(W(kMax<D>)));
    }));
}

// n > 0: shifted right in the mode.
template <class S, class D, TpxRoundMode Mode>
struct Shrink {
    int n;
    Vec<D> operator()(const S* p) const {
        return throughWork<D>(p, [n = n](auto x) { return RoundedShift<Mode, decltype(x)>(n)(x); });
    }
};

// k = -n > 0: shifted left.
template <class S, class D>
struct Grow {
    int k;
    Vec<D> operator()(const S* p) const {
        return throughWork<D>(p, [k = k](auto x) { return shiftLeftLimited<D>(x, k); });
    }
};

// Above the factor `zeroAbove` all samples give 0 in every mode, though wide ones need not come to that.
template <int ZeroAbove, class S, class D>
TpxStatus convertScaled(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi, TpxRoundMode mode, int n) {
    const auto run = [&](auto rule) { return convert<Steps::Free, Layout::C1>(src, dst, roi, rule); };
    constexpr int kShiftedOut = 64;
    if (n > ZeroAbove) return run(Shrink<S, D, tpxRoundTowardZero>{kShiftedOut});
    // Beyond 2^24 floating point rounds 32-bit samples, but to no less than that: up to this factor they
    // saturate all the same.
    constexpr int kThroughReal = sizeof(S) == 4 ? 24 - kBits<D> : 0;
    if constexpr (kThroughReal > 0)
        if (n > 0 && n <= kThroughReal)
            return withRounding(mode, false, [=](auto half) {
                return run(ToSmall<S, D, decltype(half)::value>{powerOfTwo<Tpx32f>(-n)});
            });
    if (n == 0) return run(Narrow<S, D>{});
    // From the number of value bits on, whatever is not 0 saturates.
    if (n < 0) return run(Grow<S, D>{-clampTo(n, -kValueBits<D>, 0)});
    if (mode == tpxRoundTowardZero) return run(Shrink<S, D, tpxRoundTowardZero>{n});
    if (mode == tpxRoundNearestEven) return run(Shrink<S, D, tpxRoundNearestEven>{n});
    return run(Shrink<S, D, tpxRoundHalfAway>{n});
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_CONVERT_SCALED(S, D, ZeroAbove)                                                                \
    TPX_ENTRY(tpxiConvert_##S##D##_C1RSfs)                                                                 \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, TpxRoundMode roundMode, \
     int scaleFactor) {                                                                                    \
        return convertScaled<ZeroAbove, Tpx##S, Tpx##D>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize),   \
                                                        roundMode, scaleFactor);                           \
    }
TPX_CONVERT_SCALED(8u, 8s, 8)
TPX_CONVERT_SCALED(16s, 8s, 17)
TPX_CONVERT_SCALED(16u, 8s, 15)
TPX_CONVERT_SCALED(16u, 16s, 16)
TPX_CONVERT_SCALED(32s, 16s, 31)
TPX_CONVERT_SCALED(32s, 16u, 31)
TPX_CONVERT_SCALED(32u, 8s, 15)
TPX_CONVERT_SCALED(32u, 8u, 15)
TPX_CONVERT_SCALED(32u, 16s, 31)
TPX_CONVERT_SCALED(32u, 16u, 33)
TPX_CONVERT_SCALED(32u, 32s, 32)
#undef TPX_CONVERT_SCALED
