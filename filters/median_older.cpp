// SPDX-License-Identifier: Apache-2.0
// tpxiFilterMedian, tpxiFilterMedianCross, tpxiFilterMedianWeightedCenter3x3: medians without a border, whose
// surroundings are read from memory.
#include "filters/fixed_masks.h"
#include "filters/median_choice.h"
#include "filters/median_kernels.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// ---- Any odd mask -----------------------------------------------------------------------------------------

template <class T>
struct Call {
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiSizeL roi;

    Region<T, T> region() const { return {src, dst, roi, 0}; }
};

template <class T>
TpxStatus check(const Call<T>& call) {
    if (anyNull(call.src.data) || anyNull(call.dst.data)) return tpxErrNullPointer;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (call.src.step < 1 || call.dst.step < 1) return tpxErrStep;
    return tpxOk;
}

template <Layout L, class T>
TpxStatus median(const Call<T>& call, TpxiSizeL mask, TpxiPointL anchor, const Tpx8u* buffer) {
    constexpr int N = channelsOf(L);
    if (anyNull(buffer)) return tpxErrNullPointer;
    if (const TpxStatus status = check(call); status != tpxOk) return status;
    if (L == Layout::C3 && call.src.step < (call.roi.width + mask.width - 1) * N * ptrdiff_t(sizeof(T)))
        return tpxErrStep;
    if (!isOdd(mask)) return tpxErrMaskSize;
    if (anchor.x < 0 || anchor.x >= mask.width || anchor.y < 0 || anchor.y >= mask.height) return tpxErrAnchor;
    if (mask.width == 1 && mask.height == 1) {
        mapImage<L>(
            samplesOf(call.roi, N), [](auto x) { return x; }, call.dst, call.src);
        return tpxOk;
    }
    Region<T, T> region = call.region();
    region.src = region.src.from((mask.width / 2 - anchor.x) * N, mask.height / 2 - anchor.y);
    withMedianOf<L, T>(mask, [&](RegionKernel<T> kernel) { kernel(region); });
    return tpxOk;
}

// A row of the window for each channel. Nothing is kept in it; callers have to hand one.
TpxStatus bufferSize(TpxiSizeL roi, TpxiSizeL mask, bool channels, int64_t pixelBytes, int* pBufferSize) {
    if (anyNull(pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (!isOdd(mask)) return tpxErrMaskSize;
    if (!channels) return tpxErrChannelCount;
    const int64_t bytes = mask.width * pixelBytes;
    const bool fits = bytes <= int64_t(kLongestBlock);
    *pBufferSize = fits ? int(bytes) : 0;
    return fits ? tpxOk : tpxErrSizeTooLarge;
}

// ---- Cross and weighted centre ----------------------------------------------------------------------------

template <Layout L, class T>
TpxStatus cross(const Call<T>& call, int mask) {
    if (const TpxStatus status = check(call); status != tpxOk) return status;
    if (!isMask(mask, false)) return tpxErrMaskSize;
    if (mask == 33)
        ShapeMedian<L, CrossShape<3>, T>()(call.region());
    else
        ShapeMedian<L, CrossShape<5>, T>()(call.region());
    return tpxOk;
}

TpxStatus weightedCentre(const Call<Tpx8u>& call, int weight) {
    if (const TpxStatus status = check(call); status != tpxOk) return status;
    if (weight < 1) return tpxErrWeight;
    const auto run = [&]<int Pairs>(std::integral_constant<int, Pairs>) {
        ShapeMedian<Layout::C1, WeightedShape<Pairs>, Tpx8u>()(call.region());
    };
    switch ((weight - 1) / 2) {
        case 0:
            SquareOfThree<Layout::C1, Tpx8u>()(call.region());
            break;
        case 1:
            run(std::integral_constant<int, 1>{});
            break;
        case 2:
            run(std::integral_constant<int, 2>{});
            break;
        case 3:
            run(std::integral_constant<int, 3>{});
            break;
        default:
            mapImage<Layout::C1>(
                samplesOf(call.roi, 1), [](auto x) { return x; }, call.dst, call.src);
    }
    return weight % 2 == 0 ? tpxWarnEvenWeight : tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

#define TPX_MEDIAN(T, L)                                                                              \
    TPX_ENTRY(tpxiFilterMedian_##T##_##L##R)                                                          \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, TpxiSize maskSize, \
     TpxiPoint anchor, Tpx8u* pBuffer) {                                                              \
        return median<Layout::L>(Call<Tpx##T>{{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)},       \
                                 wide(maskSize), wide(anchor), pBuffer);                              \
    }
#define TPX_MEDIAN_CROSS(T, L)                                                                        \
    TPX_ENTRY(tpxiFilterMedianCross_##T##_##L##R)                                                     \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, int mask) {        \
        return cross<Layout::L>(Call<Tpx##T>{{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)}, mask); \
    }
#define TPX_MEDIAN_CROSS_LAYOUTS(T) TPX_MEDIAN_CROSS(T, C1) TPX_MEDIAN_CROSS(T, C3) TPX_MEDIAN_CROSS(T, AC4)

TPX_ENTRY(tpxiFilterMedianGetBufferSize_32f)
(TpxiSize roiSize, TpxiSize maskSize, int numChannels, int* pBufferSize) {
    return bufferSize(wide(roiSize), wide(maskSize), numChannels == 3 || numChannels == 4,
                      int64_t(numChannels) * int64_t(sizeof(Tpx32f)), pBufferSize);
}
TPX_ENTRY(tpxiFilterMedianGetBufferSize_64f)
(TpxiSize roiSize, TpxiSize maskSize, int numChannels, int* pBufferSize) {
    return bufferSize(wide(roiSize), wide(maskSize), numChannels == 1, sizeof(Tpx64f), pBufferSize);
}
TPX_MEDIAN(32f, C3)
TPX_MEDIAN(32f, C4)
TPX_MEDIAN(64f, C1)
TPX_MEDIAN_CROSS_LAYOUTS(8u)
TPX_MEDIAN_CROSS_LAYOUTS(16u)
TPX_MEDIAN_CROSS_LAYOUTS(16s)

TPX_ENTRY(tpxiFilterMedianWeightedCenter3x3_8u_C1R)
(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize, int weight) {
    return weightedCentre(Call<Tpx8u>{{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)}, weight);
}
#undef TPX_MEDIAN
#undef TPX_MEDIAN_CROSS
#undef TPX_MEDIAN_CROSS_LAYOUTS
