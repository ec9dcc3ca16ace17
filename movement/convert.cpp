// SPDX-License-Identifier: Apache-2.0
// tpxiConvert without a mode or a factor: to wider types, to narrower integers, of signed to unsigned ones.
#include "movement/convert.h"
#include "frame/simd/control.h"

namespace tpx {
namespace {

// ---- Rules -----------------------------------------------------------------------------------------------

// The narrowing is in movement/convert.h.
template <class S, class D>
struct Widen {
    Vec<D> operator()(const S* p) const { return loadAs<D>(p); }
};

// Negative samples give 0.
template <class S, class D>
struct Positive {
    Vec<D> operator()(const S* p) const {
        using Signed = std::make_signed_t<D>;
        return bitsAs<Vec<D>>(maxOf(loadAs<Signed>(p), Vec<Signed>{}));
    }
};

// 32 unsigned bits, rounded once: both halves and the product are exact, the sum is not.
inline V32f toFloat(Pair<V32u> a) {
    const auto exact = [](V32u low, V32u high) { return toFloat(Pair<V32s>{V32s(low), V32s(high)}); };
    const V32u mask = splat<V32u>(0xFFFF);
    return exact(a.low >> 16, a.high >> 16) * splat<V32f>(65536.0f) + exact(a.low & mask, a.high & mask);
}

// To single precision as the thread rounds.
template <class S>
struct ToFloat {
    V32f operator()(const S* p) const { return toFloat(Pair<Vec<S>>{load(p), load(p + kLanes<S>)}); }
};

// ---- Calls -----------------------------------------------------------------------------------------------

template <class S>
TpxStatus convertRounding(ImageView<const S> src, ImageView<Tpx32f> dst, TpxiSizeL roi) {
    const FloatControl control(roundingAs(Rounding::OfThread));
    return convert<Steps::Tested, Layout::C1>(src, dst, roi, ToFloat<S>{});
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

// Rule is a template on the types; Checked tells whether steps are tested.
#define TPX_CONVERT(S, D, L, R, Rule, Checked)                                                            \
    TPX_ENTRY(tpxiConvert_##S##D##_##L##R)                                                                \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize) {                      \
        return convert<Steps::Checked, Layout::L, Tpx##S, Tpx##D>({pSrc, srcStep}, {pDst, dstStep},       \
                                                                  wide(roiSize), Rule<Tpx##S, Tpx##D>{}); \
    }
#define TPX_CONVERT_LAYOUTS(S, D, Rule)    \
    TPX_CONVERT(S, D, C1, R, Rule, Tested) \
    TPX_CONVERT(S, D, C3, R, Rule, Tested) \
    TPX_CONVERT(S, D, C4, R, Rule, Tested) \
    TPX_CONVERT(S, D, AC4, R, Rule, Tested)
TPX_CONVERT_LAYOUTS(8u, 16u, Widen)
TPX_CONVERT_LAYOUTS(8u, 16s, Widen)
TPX_CONVERT_LAYOUTS(8u, 32s, Widen)
TPX_CONVERT_LAYOUTS(8u, 32f, Widen)
TPX_CONVERT_LAYOUTS(8s, 32s, Widen)
TPX_CONVERT_LAYOUTS(8s, 32f, Widen)
TPX_CONVERT_LAYOUTS(16u, 32s, Widen)
TPX_CONVERT_LAYOUTS(16u, 32f, Widen)
TPX_CONVERT_LAYOUTS(16s, 32s, Widen)
TPX_CONVERT_LAYOUTS(16s, 32f, Widen)
TPX_CONVERT(8s, 16s, C1, R, Widen, Tested)
TPX_CONVERT(16u, 32u, C1, R, Widen, Tested)
TPX_CONVERT(8s, 64f, C1, R, Widen, Tested)
TPX_CONVERT_LAYOUTS(16u, 8u, Narrow)
TPX_CONVERT_LAYOUTS(16s, 8u, Narrow)
TPX_CONVERT_LAYOUTS(32s, 8u, Narrow)
TPX_CONVERT_LAYOUTS(32s, 8s, Narrow)
TPX_CONVERT(8s, 8u, C1, Rs, Positive, Free)
TPX_CONVERT(8s, 16u, C1, Rs, Positive, Free)
TPX_CONVERT(8s, 32u, C1, Rs, Positive, Free)
TPX_CONVERT(16s, 16u, C1, Rs, Positive, Free)
TPX_CONVERT(16s, 32u, C1, Rs, Positive, Free)
TPX_CONVERT(32s, 32u, C1, Rs, Positive, Free)
#undef TPX_CONVERT
#undef TPX_CONVERT_LAYOUTS

#define TPX_CONVERT_ROUNDING(S)                                                          \
    TPX_ENTRY(tpxiConvert_##S##32f_C1R)                                                  \
    (const Tpx##S* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) {     \
        return convertRounding<Tpx##S>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)); \
    }
TPX_CONVERT_ROUNDING(32s)
TPX_CONVERT_ROUNDING(32u)
#undef TPX_CONVERT_ROUNDING
