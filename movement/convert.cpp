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

// To single precision as the thread rounds.
template <class S>
struct ToFloat {
    V32f operator()(const S* p) const { return toFloat(Pair<Vec<S>>{load(p), load(p + kLanes<S>)}); }
};
// 32 unsigned bits, rounded once: both halves are exact, of which the upper one counts as negative from 2^31
// on, and the sum is not.
template <>
struct ToFloat<Tpx32u> {
    V32f operator()(const Tpx32u* p) const {
        const B32f x = peek(reinterpret_cast<const B32f*>(p)), mask = B32f{} + 0xFFFF;
        const V32f upper = toFloat(x & ~mask) + select(x, splat<V32f>(0x1p32f), V32f{});
        return upper + toFloat(x & mask);
    }
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
