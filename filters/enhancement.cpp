// SPDX-License-Identifier: Apache-2.0
// tpxiFilterLaplaceBorder, tpxiFilterHipassBorder, tpxiFilterSharpenBorder: what differs from the surroundings,
// and the image with that added.
#include "filters/fixed_masks.h"
#include "frame/simd/rounding.h"

namespace tpx {
namespace {

// ---- Masks ------------------------------------------------------------------------------------------------

// The centre so many times, less the sum of the whole mask.
constexpr Separable<3> kLaplace3 = {{-1, -1, -1}, {1, 1, 1}, 9}, kSharpen3 = {{-1, -1, -1}, {1, 1, 1}, 17};
constexpr Separable<5> kHipass5 = {{-1, -1, -1, -1, -1}, {1, 1, 1, 1, 1}, 25};
// The Laplacian of a Gaussian in 5x5 integers: Gonzalez and Woods, Digital Image Processing, third edition,
// section 10.2.6, figure 10.21.
constexpr Mask<5> kLaplace5 = {
    {{0, 0, -1, 0, 0}, {0, -1, -2, -1, 0}, {-1, -2, 16, -2, -1}, {0, -1, -2, -1, 0}, {0, 0, -1, 0, 0}}};

// ---- Sums to samples --------------------------------------------------------------------------------------

struct Whole {
    Several<V8u, 1> operator()(Pair<V16s> sums) const { return {{narrow<Tpx8u>(sums)}}; }
    Several<V16s, 1> operator()(Pair<V32s> sums) const { return {{narrow<Tpx16s>(sums)}}; }
    Several<V32f, 1> operator()(V32f sums) const { return {{sums}}; }
};

// An eighth, rounded to nearest with ties to even.
struct Eighth {
    template <class V>
    auto operator()(Pair<V> sums) const {
        const RoundedShift<tpxRoundNearestEven, V, Headroom::Half> eighth(3);
        return Whole()(Pair<V>{eighth(sums.low), eighth(sums.high)});
    }
    Several<V32f, 1> operator()(V32f sums) const { return {{sums * splat<V32f>(0.125f)}}; }
};

template <class T>
using Call = FixedMaskCall<T, T>;

template <class T>
TpxStatus check(const Call<T>& call, bool only3x3) {
    if (anyNull(call.src.data) || anyNull(call.dst.data) || anyNull(call.buffer)) return tpxErrNullPointer;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (!isMask(call.mask, only3x3)) return tpxErrMaskSize;
    return readFilterBorder(call.border).valid ? tpxOk : tpxErrBorder;
}

template <Layout L, const auto& mask, class Rule, class T>
void filterBy(const Call<T>& call) {
    if constexpr (L == Layout::C1 && std::is_integral_v<T> && std::remove_cvref_t<decltype(mask)>::kSide == 3)
        filterFixed<L>(call, EvenAndOdd<mask, T, T, Rule>());
    else
        filterFixed<L>(call, ColumnsFirst<L, mask, T, T, Rule>());
}

template <Layout L, class T>
TpxStatus laplace(const Call<T>& call) {
    const TpxStatus status = check(call, false);
    if (status != tpxOk) return status;
    if (call.mask == 33)
        filterBy<L, kLaplace3, Whole>(call);
    else
        filterFixed<L>(call, Stencil<L, kLaplace5, T, T, Whole>());
    return tpxOk;
}
template <Layout L, class T>
TpxStatus hipass(const Call<T>& call) {
    const TpxStatus status = check(call, false);
    if (status == tpxOk)
        call.mask == 33 ? filterBy<L, kLaplace3, Whole>(call) : filterBy<L, kHipass5, Whole>(call);
    return status;
}
template <Layout L, class T>
TpxStatus sharpen(const Call<T>& call) {
    const TpxStatus status = check(call, true);
    if (status == tpxOk) filterBy<L, kSharpen3, Eighth>(call);
    return status;
}

TpxStatus enhancementBufferSize(TpxiSize roi, int mask, bool only3x3, TpxDataType srcType, TpxDataType dstType,
                                int numChannels, int* pBufferSize) {
    const bool types = srcType == dstType &&
                       (srcType == tpxDataType8u || srcType == tpxDataType16s || srcType == tpxDataType32f);
    return fixedMaskBufferSize(roi, mask, only3x3, types,
                               srcType == tpxDataType8u    ? 1
                               : srcType == tpxDataType16s ? 2
                                                           : 4,
                               numChannels == 1 || numChannels == 3 || numChannels == 4, numChannels,
                               pBufferSize);
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

#define TPX_ENHANCEMENT_SIZE(name, only3x3)                                                               \
    TPX_ENTRY(name##GetBufferSize)                                                                        \
    (TpxiSize roiSize, int mask, TpxDataType srcType, TpxDataType dstType, int numChannels,               \
     int* pBufferSize) {                                                                                  \
        return enhancementBufferSize(roiSize, mask, only3x3, srcType, dstType, numChannels, pBufferSize); \
    }
#define TPX_ENHANCEMENT(name, T, L, filter)                                                        \
    TPX_ENTRY(name##_##T##_##L##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, int mask,       \
     TpxBorderType border, Tpx##T borderValue, Tpx8u* pBuffer) {                                   \
        return filter<Layout::L>(Call<Tpx##T>{                                                     \
            {pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), mask, border, borderValue, pBuffer}); \
    }
#define TPX_ENHANCEMENTS(name, filter)      \
    TPX_ENHANCEMENT(name, 8u, C1, filter)   \
    TPX_ENHANCEMENT(name, 8u, C3, filter)   \
    TPX_ENHANCEMENT(name, 8u, C4, filter)   \
    TPX_ENHANCEMENT(name, 8u, AC4, filter)  \
    TPX_ENHANCEMENT(name, 16s, C1, filter)  \
    TPX_ENHANCEMENT(name, 16s, C3, filter)  \
    TPX_ENHANCEMENT(name, 16s, C4, filter)  \
    TPX_ENHANCEMENT(name, 16s, AC4, filter) \
    TPX_ENHANCEMENT(name, 32f, C1, filter)  \
    TPX_ENHANCEMENT(name, 32f, C3, filter)  \
    TPX_ENHANCEMENT(name, 32f, C4, filter)  \
    TPX_ENHANCEMENT(name, 32f, AC4, filter)

TPX_ENHANCEMENTS(tpxiFilterLaplaceBorder, laplace)
TPX_ENHANCEMENT_SIZE(tpxiFilterLaplaceBorder, false)
TPX_ENHANCEMENTS(tpxiFilterHipassBorder, hipass)
TPX_ENHANCEMENT_SIZE(tpxiFilterHipassBorder, false)
TPX_ENHANCEMENTS(tpxiFilterSharpenBorder, sharpen)
TPX_ENHANCEMENT_SIZE(tpxiFilterSharpenBorder, true)
#undef TPX_ENHANCEMENT_SIZE
#undef TPX_ENHANCEMENT
#undef TPX_ENHANCEMENTS
