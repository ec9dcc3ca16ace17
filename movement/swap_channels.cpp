// tpxiSwapChannels: the channels of every pixel in another order.
#include "frame/entry/entry.h"
#include "movement/pixel_shuffle.h"

namespace tpx {
namespace {

// ---- Checks: three orders of the same ones --------------------------------------------------------------

enum class SwapChecks { SizeThenStep, StepThenSize, StepThenSizeThenOrder };

template <SwapChecks C, int Entries>
TpxStatus check(const void* src, int srcStep, const void* dst, int dstStep, TpxiSize roi, const int* order,
                unsigned bound) {
    const bool badStep = srcStep == 0 || dstStep == 0;
    if (anyNull(src, dst)) return tpxErrNullPointer;
    if (C != SwapChecks::StepThenSizeThenOrder && anyNull(order)) return tpxErrNullPointer;
    if (C == SwapChecks::SizeThenStep && isEmpty(roi)) return tpxErrSize;
    if (badStep) return tpxErrStep;
    if (isEmpty(roi)) return tpxErrSize;
    if (anyNull(order)) return tpxErrNullPointer;
    for (int k = 0; k < Entries; k++)
        if (unsigned(order[k]) >= bound) return tpxErrChannelOrder;
    return tpxOk;
}

// ---- Layouts --------------------------------------------------------------------------------------------

template <SwapChecks C, int From, int To, class T>
TpxStatus swap(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi, const int* order) {
    const TpxStatus status = check<C, To>(pSrc, srcStep, pDst, dstStep, roi, order, From);
    if (status == tpxOk) shufflePixels<From, To>(order, pSrc, srcStep, pDst, dstStep, roi);
    return status;
}

// An order's entry of 3 takes the constant, a larger one keeps what was there.
template <class T>
TpxStatus swapC3C4(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi, const int* order, T val) {
    const TpxStatus status =
        check<SwapChecks::SizeThenStep, 4>(pSrc, srcStep, pDst, dstStep, roi, order, 0x80000000u);
    if (status != tpxOk) return status;
    int source[4];
    T keep[4] = {}, fill[4] = {};
    bool keeps = false;
    for (int k = 0; k < 4; k++) {
        source[k] = order[k] < 3 ? order[k] : kNoChannel;
        if (order[k] == 3) fill[k] = val;
        if (order[k] > 3) keep[k] = T(-1), keeps = true;
    }
    const PixelShuffleOver<3, sizeof(T)> rule(source, keep, fill);
    const Interleaved<const T, 3> src(pSrc, srcStep);
    const Interleaved<T, 4> dst(pDst, dstStep);
    if (keeps) {
        mapPixels(roi, false, rule, dst, src, dst);
    } else {
        const uint64_t traffic = uint64_t(roi.width) * uint64_t(roi.height) * 7 * sizeof(T);
        mapPixels(roi, exceedsCache(traffic, kShuffleFloor), rule, dst, src);
    }
    return tpxOk;
}

// The fourth channel becomes 0 in the whole blocks of a row and stays as it was in the pixels after them.
template <class T>
TpxStatus swapAC4(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi, const int* order) {
    const TpxStatus status =
        check<SwapChecks::StepThenSizeThenOrder, 3>(pSrc, srcStep, pDst, dstStep, roi, order, 3);
    if (status != tpxOk) return status;
    const int source[4] = {order[0], order[1], order[2], kNoChannel};
    const T keep[4] = {0, 0, 0, T(-1)}, fill[4] = {};
    const PixelShuffleOver<4, sizeof(T)> rule(source, keep, fill);
    const ptrdiff_t rest = roi.width % kBlockPixels<T>, blocks = roi.width - rest;
    const uint64_t traffic = uint64_t(roi.width) * uint64_t(roi.height) * 8 * sizeof(T);
    const bool stream = blocks && exceedsCache(traffic, kShuffleFloor);
    for (ptrdiff_t y = 0; y < roi.height; y++) {
        const auto src = Interleaved<const T, 4>(pSrc, srcStep).row(y);
        const auto dst = Interleaved<T, 4>(pDst, dstStep).row(y);
        if (stream)
            mapPixelRunStreaming(blocks, rule, dst, src);
        else if (blocks)
            mapPixelRun(blocks, rule, dst, src);
        if (rest) mapPixelRun(rest, rule, dst.from(blocks), src.from(blocks), dst.from(blocks));
    }
    if (stream) streamFence();
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// Samples are moved as bits: Bits is the unsigned integer of their width. The source and the destination of C3
// may be one image.
#define TPX_BITS(Bits, p) reinterpret_cast<Tpx##Bits*>(p)
#define TPX_CONST_BITS(Bits, p) reinterpret_cast<const Tpx##Bits*>(p)

#define TPX_SWAP(T, Bits, L, Checks, From, To)                                                               \
    TPX_ENTRY(tpxiSwapChannels_##T##_##L##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[]) {   \
        return swap<SwapChecks::Checks, From, To>(TPX_CONST_BITS(Bits, pSrc), srcStep, TPX_BITS(Bits, pDst), \
                                                  dstStep, roiSize, dstOrder);                               \
    }
#define TPX_SWAPS(T, Bits, ChecksOfC3)                                                                         \
    TPX_SWAP(T, Bits, C3, ChecksOfC3, 3, 3)                                                                    \
    TPX_SWAP(T, Bits, C4, StepThenSizeThenOrder, 4, 4)                                                         \
    TPX_SWAP(T, Bits, C4C3, SizeThenStep, 4, 3)                                                                \
    TPX_ENTRY(tpxiSwapChannels_##T##_AC4R)                                                                     \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[]) {     \
        return swapAC4(TPX_CONST_BITS(Bits, pSrc), srcStep, TPX_BITS(Bits, pDst), dstStep, roiSize, dstOrder); \
    }                                                                                                          \
    TPX_ENTRY(tpxiSwapChannels_##T##_C3C4R)                                                                    \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[],       \
     Tpx##T val) {                                                                                             \
        return swapC3C4(TPX_CONST_BITS(Bits, pSrc), srcStep, TPX_BITS(Bits, pDst), dstStep, roiSize, dstOrder, \
                        __builtin_bit_cast(Tpx##Bits, val));                                                   \
    }
TPX_SWAPS(8u, 8u, SizeThenStep)
TPX_SWAPS(16u, 16u, SizeThenStep)
TPX_SWAPS(16s, 16u, SizeThenStep)
TPX_SWAPS(32s, 32u, SizeThenStep)
TPX_SWAPS(32f, 32u, StepThenSizeThenOrder)

TPX_ENTRY(tpxiSwapChannels_8u_C3IR)(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[]) {
    return swap<SwapChecks::StepThenSizeThenOrder, 3, 3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,
                                                         dstOrder);
}
TPX_ENTRY(tpxiSwapChannels_8u_C4IR)(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[]) {
    return swap<SwapChecks::StepThenSize, 4, 4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}
