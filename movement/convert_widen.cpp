// tpxiConvert to types that hold every sample, and of 32-bit integers to 32f.
#include "frame/simd/control.h"
#include "movement/convert.h"

namespace tpx {
namespace {

template <class S, class D>
struct Widen {
    Vec<D> operator()(const S* p) const { return loadAs<D>(p); }
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

template <class S>
TpxStatus convertRounding(const S* src, int srcStep, Tpx32f* dst, int dstStep, TpxiSize roi) {
    const FloatControl control(roundingAs(Rounding::OfThread));
    return convert<Steps::Tested, Layout::C1>(src, srcStep, dst, dstStep, roi, ToFloat<S>{});
}

} // namespace
} // namespace tpx

TPX_CONVERT_LAYOUTS(Widen, 8u, 16u)
TPX_CONVERT_LAYOUTS(Widen, 8u, 16s)
TPX_CONVERT_LAYOUTS(Widen, 8u, 32s)
TPX_CONVERT_LAYOUTS(Widen, 8u, 32f)
TPX_CONVERT_LAYOUTS(Widen, 8s, 32s)
TPX_CONVERT_LAYOUTS(Widen, 8s, 32f)
TPX_CONVERT_LAYOUTS(Widen, 16u, 32s)
TPX_CONVERT_LAYOUTS(Widen, 16u, 32f)
TPX_CONVERT_LAYOUTS(Widen, 16s, 32s)
TPX_CONVERT_LAYOUTS(Widen, 16s, 32f)
TPX_CONVERT(Widen, Tested, 8s, 16s, C1, R)
TPX_CONVERT(Widen, Tested, 16u, 32u, C1, R)
TPX_CONVERT(Widen, Tested, 8s, 64f, C1, R)

#define TPX_CONVERT_ROUNDING(S)                                                      \
    TPX_ENTRY(tpxiConvert_##S##32f_C1R)                                              \
    (const Tpx##S* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) { \
        return tpx::convertRounding(pSrc, srcStep, pDst, dstStep, roiSize);          \
    }
TPX_CONVERT_ROUNDING(32s)
TPX_CONVERT_ROUNDING(32u)
