// SPDX-License-Identifier: Apache-2.0
// tpxiFilterSobel*, tpxiFilterScharr*, tpxiFilterPrewitt*, tpxiFilterRoberts*: derivatives by fixed masks.
#include "filters/fixed_masks.h"

namespace tpx {
namespace {

// ---- Masks ------------------------------------------------------------------------------------------------

constexpr Mask<3> kSobelVert3 = outerProduct({1, 2, 1}, {1, 0, -1}),
                  kSobelNegVert3 = outerProduct({1, 2, 1}, {-1, 0, 1}),
                  kSobelHoriz3 = outerProduct({-1, 0, 1}, {1, 2, 1}),
                  kSobelVertSecond3 = outerProduct({1, 2, 1}, {1, -2, 1}),
                  kSobelHorizSecond3 = outerProduct({1, -2, 1}, {1, 2, 1}),
                  kScharrVertMask3 = outerProduct({3, 10, 3}, {-1, 0, 1}),
                  kScharrHorizMask3 = outerProduct({-1, 0, 1}, {3, 10, 3}),
                  kPrewittVert3 = outerProduct({1, 1, 1}, {1, 0, -1}),
                  kPrewittHoriz3 = outerProduct({-1, 0, 1}, {1, 1, 1}),
                  kRobertsUp3 = {{{0, 0, -1}, {0, 1, 0}, {0, 0, 0}}},
                  kRobertsDown3 = {{{-1, 0, 0}, {0, 1, 0}, {0, 0, 0}}};
constexpr Separable<5> kSobelVert5 = {{1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}, 0},
                       kSobelNegVert5 = {{1, 4, 6, 4, 1}, {-1, -2, 0, 2, 1}, 0},
                       kSobelHoriz5 = {{-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}, 0},
                       kSobelVertSecond5 = {{1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}, 0},
                       kSobelHorizSecond5 = {{1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}, 0};

// ---- Sums to samples --------------------------------------------------------------------------------------

// Sums of bytes fit; wider ones saturate.
struct ToGradient {
    Several<V16s, 2> operator()(Pair<V16s> sums) const { return {{sums.low, sums.high}}; }
    Several<V16s, 1> operator()(Pair<V32s> sums) const { return {{narrow<Tpx16s>(sums)}}; }
    Several<V32f, 1> operator()(V32f sums) const { return {{sums}}; }
};

template <class S, class D>
TpxStatus checkGradient(const FixedMaskCall<S, D>& call, bool only3x3) {
    if (anyNull(call.src.data) || anyNull(call.dst.data) || anyNull(call.buffer)) return tpxErrNullPointer;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (sizeof(D) == 2 && call.dst.step % 2 != 0) return tpxErrStepNotMultiple;
    if (!isMask(call.mask, only3x3)) return tpxErrMaskSize;
    return readFilterBorder(call.border).valid ? tpxOk : tpxErrBorder;
}

// Filters of one mask, and of two.
template <const auto& mask3, class S, class D>
TpxStatus gradient(const FixedMaskCall<S, D>& call) {
    const TpxStatus status = checkGradient(call, true);
    if (status == tpxOk) filterFixed<Layout::C1>(call, Stencil<Layout::C1, mask3, S, D, ToGradient>());
    return status;
}
template <const auto& mask3, const auto& mask5, class S, class D>
TpxStatus gradient(const FixedMaskCall<S, D>& call) {
    const TpxStatus status = checkGradient(call, false);
    if (status != tpxOk) return status;
    if (call.mask == 33)
        filterFixed<Layout::C1>(call, Stencil<Layout::C1, mask3, S, D, ToGradient>());
    else
        filterFixed<Layout::C1>(call, ColumnsFirst<Layout::C1, mask5, S, D, ToGradient>());
    return tpxOk;
}

enum class GradientTypes { All, BytesAndFloats };

TpxStatus gradientBufferSize(TpxiSize roi, int mask, bool only3x3, GradientTypes types, TpxDataType srcType,
                             TpxDataType dstType, int numChannels, int* pBufferSize) {
    const bool bytes = srcType == tpxDataType8u && dstType == tpxDataType16s,
               words = srcType == tpxDataType16s && dstType == tpxDataType16s && types == GradientTypes::All,
               floats = srcType == tpxDataType32f && dstType == tpxDataType32f;
    return fixedMaskBufferSize(roi, mask, only3x3, bytes || words || floats,
                               bytes   ? 1
                               : words ? 2
                                       : 4,
                               numChannels == 1, numChannels, pBufferSize);
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

#define TPX_GRADIENT_SIZE(name, only3x3, types)                                                                \
    TPX_ENTRY(name##GetBufferSize)                                                                             \
    (TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType, int numChannels,                    \
     int* pBufferSize) {                                                                                       \
        return gradientBufferSize(roiSize, mask, only3x3, GradientTypes::types, srcType, dstType, numChannels, \
                                  pBufferSize);                                                                \
    }
#define TPX_GRADIENT(name, types, S, D, ...)                                                       \
    TPX_ENTRY(name##_##types##_C1R)                                                                \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, int mask,       \
     TpxBorderType border, Tpx##S borderValue, Tpx8u* pBuffer) {                                   \
        return gradient<__VA_ARGS__>(FixedMaskCall<Tpx##S, Tpx##D>{                                \
            {pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), mask, border, borderValue, pBuffer}); \
    }

#define TPX_GRADIENTS_OF_BYTES_AND_FLOATS(name, ...) \
    TPX_GRADIENT(name, 8u16s, 8u, 16s, __VA_ARGS__)  \
    TPX_GRADIENT(name, 32f, 32f, 32f, __VA_ARGS__)
#define TPX_GRADIENTS(name, ...)                    \
    TPX_GRADIENT(name, 8u16s, 8u, 16s, __VA_ARGS__) \
    TPX_GRADIENT(name, 16s, 16s, 16s, __VA_ARGS__)  \
    TPX_GRADIENT(name, 32f, 32f, 32f, __VA_ARGS__)

TPX_GRADIENTS(tpxiFilterSobelVertBorder, kSobelVert3, kSobelVert5)
TPX_GRADIENT_SIZE(tpxiFilterSobelVertBorder, false, All)
TPX_GRADIENTS(tpxiFilterSobelHorizBorder, kSobelHoriz3, kSobelHoriz5)
TPX_GRADIENT_SIZE(tpxiFilterSobelHorizBorder, false, All)
TPX_GRADIENTS(tpxiFilterScharrVertMaskBorder, kScharrVertMask3)
TPX_GRADIENT_SIZE(tpxiFilterScharrVertMaskBorder, true, All)
TPX_GRADIENTS(tpxiFilterScharrHorizMaskBorder, kScharrHorizMask3)
TPX_GRADIENT_SIZE(tpxiFilterScharrHorizMaskBorder, true, All)
TPX_GRADIENTS(tpxiFilterPrewittVertBorder, kPrewittVert3)
TPX_GRADIENT_SIZE(tpxiFilterPrewittVertBorder, true, All)
TPX_GRADIENTS(tpxiFilterPrewittHorizBorder, kPrewittHoriz3)
TPX_GRADIENT_SIZE(tpxiFilterPrewittHorizBorder, true, All)
TPX_GRADIENTS(tpxiFilterRobertsUpBorder, kRobertsUp3)
TPX_GRADIENT_SIZE(tpxiFilterRobertsUpBorder, true, All)
TPX_GRADIENTS(tpxiFilterRobertsDownBorder, kRobertsDown3)
TPX_GRADIENT_SIZE(tpxiFilterRobertsDownBorder, true, All)
TPX_GRADIENTS_OF_BYTES_AND_FLOATS(tpxiFilterSobelNegVertBorder, kSobelNegVert3, kSobelNegVert5)
TPX_GRADIENT_SIZE(tpxiFilterSobelNegVertBorder, false, BytesAndFloats)
TPX_GRADIENTS_OF_BYTES_AND_FLOATS(tpxiFilterSobelVertSecondBorder, kSobelVertSecond3, kSobelVertSecond5)
TPX_GRADIENT_SIZE(tpxiFilterSobelVertSecondBorder, false, BytesAndFloats)
TPX_GRADIENTS_OF_BYTES_AND_FLOATS(tpxiFilterSobelHorizSecondBorder, kSobelHorizSecond3, kSobelHorizSecond5)
TPX_GRADIENT_SIZE(tpxiFilterSobelHorizSecondBorder, false, BytesAndFloats)
#undef TPX_GRADIENT_SIZE
#undef TPX_GRADIENT
#undef TPX_GRADIENTS_OF_BYTES_AND_FLOATS
#undef TPX_GRADIENTS
