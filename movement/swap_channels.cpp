// SPDX-License-Identifier: Apache-2.0
// tpxiSwapChannels: the channels of every pixel in another order.
#include "frame/entry/entry.h"
#include "movement/pixel_shuffle.h"

namespace tpx {
namespace {

// ---- Checks: three orders of the same ones --------------------------------------------------------------

enum class SwapChecks { SizeThenStep, StepThenSize, StepThenSizeThenOrder };

template <SwapChecks C, int Entries, class Src, class Dst>
TpxStatus check(const Src& src, const Dst& dst, TpxiSizeL roi, const int* order, unsigned bound) {
    const bool badStep = src.step == 0 || dst.step == 0;
    if (anyNull(src.p, dst.p)) return tpxErrNullPointer;
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

// The source and the destination of pixels of as many channels may be one image.
template <SwapChecks C, int From, int To, class T>
TpxStatus swap(Interleaved<const T, From> src, Interleaved<T, To> dst, TpxiSizeL roi, const int* order) {
    const TpxStatus status = check<C, To>(src, dst, roi, order, From);
    if (status == tpxOk) shufflePixels(order, src, dst, roi);
    return status;
}

// An order's entry of 3 takes the constant, a larger one keeps what was there.
template <class T>
TpxStatus swapC3C4(Interleaved<const T, 3> src, Interleaved<T, 4> dst, TpxiSizeL roi, const int* order, T val) {
    const TpxStatus status = check<SwapChecks::SizeThenStep, 4>(src, dst, roi, order, 0x80000000u);
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
    if (keeps)
        mapPixels(roi, rule, dst, src, dst);
    else
        mapPixels(roi, goesPastCaches(kStreamPointwise, trafficOf(samplesOf(roi, 1), dst, src)), rule, dst,
                  src);
    return tpxOk;
}

// The fourth channel becomes 0 in the whole blocks of a row and stays as it was in the pixels after them.
template <class T>
TpxStatus swapAC4(Interleaved<const T, 4> src, Interleaved<T, 4> dst, TpxiSizeL roi, const int* order) {
    const TpxStatus status = check<SwapChecks::StepThenSizeThenOrder, 3>(src, dst, roi, order, 3);
    if (status != tpxOk) return status;
    const int source[4] = {order[0], order[1], order[2], kNoChannel};
    const T keep[4] = {0, 0, 0, T(-1)}, fill[4] = {};
    const PixelShuffleOver<4, sizeof(T)> rule(source, keep, fill);
    const Extent e = samplesOf(roi, 1);
    const ptrdiff_t rest = e.width % kBlockPixels<T>, blocks = e.width - rest;
    const bool stream = blocks && goesPastCaches(kStreamPointwise, trafficOf(e, dst, src));
    walkRows(
        e,
        [&](ptrdiff_t, auto d, auto s) {
            if (stream)
                mapPixelRunStreaming(blocks, rule, d, s);
            else if (blocks)
                mapPixelRun(blocks, rule, d, s);
            if (rest) mapPixelRun(rest, rule, d.from(blocks), s.from(blocks), d.from(blocks));
        },
        dst, src);
    if (stream) streamFence();
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_SWAP(T, L, Checks, From, To)                                                                   \
    TPX_ENTRY(tpxiSwapChannels_##T##_##L##R)                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[]) { \
        return swap<SwapChecks::Checks, From, To, UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep},    \
                                                                      wide(roiSize), dstOrder);            \
    }
#define TPX_SWAP_AC4(T)                                                                                    \
    TPX_ENTRY(tpxiSwapChannels_##T##_AC4R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[]) { \
        return swapAC4<UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), dstOrder);     \
    }
#define TPX_SWAP_C3C4(T)                                                                                 \
    TPX_ENTRY(tpxiSwapChannels_##T##_C3C4R)                                                              \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const int dstOrder[], \
     Tpx##T val) {                                                                                       \
        return swapC3C4<UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), dstOrder,   \
                                            __builtin_bit_cast(UnsignedOf<Tpx##T>, val));                \
    }
#define TPX_SWAP_LAYOUTS(T, ChecksOfC3)          \
    TPX_SWAP(T, C3, ChecksOfC3, 3, 3)            \
    TPX_SWAP(T, C4, StepThenSizeThenOrder, 4, 4) \
    TPX_SWAP(T, C4C3, SizeThenStep, 4, 3)        \
    TPX_SWAP_AC4(T)                              \
    TPX_SWAP_C3C4(T)
TPX_SWAP_LAYOUTS(8u, SizeThenStep)
TPX_SWAP_LAYOUTS(16u, SizeThenStep)
TPX_SWAP_LAYOUTS(16s, SizeThenStep)
TPX_SWAP_LAYOUTS(32s, SizeThenStep)
TPX_SWAP_LAYOUTS(32f, StepThenSizeThenOrder)
#undef TPX_SWAP
#undef TPX_SWAP_AC4
#undef TPX_SWAP_C3C4
#undef TPX_SWAP_LAYOUTS

TPX_ENTRY(tpxiSwapChannels_8u_C3IR)(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[]) {
    return swap<SwapChecks::StepThenSizeThenOrder, 3, 3, Tpx8u>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep},
                                                                wide(roiSize), dstOrder);
}
TPX_ENTRY(tpxiSwapChannels_8u_C4IR)(Tpx8u* pSrcDst, int srcDstStep, TpxiSize roiSize, const int dstOrder[]) {
    return swap<SwapChecks::StepThenSize, 4, 4, Tpx8u>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep},
                                                       wide(roiSize), dstOrder);
}
