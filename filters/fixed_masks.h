// SPDX-License-Identifier: Apache-2.0
// What the filters with masks of their own share: the checks and the sizes of their work buffers.
#pragma once

#include "filters/stencil.h"
#include "frame/entry/entry.h"

namespace tpx {

// The codes of masks: 33 is 3x3, 55 is 5x5.
constexpr bool isMask(int mask, bool only3x3) { return mask == 33 || (mask == 55 && !only3x3); }
constexpr int sideOf(int mask) { return mask == 33 ? 3 : 5; }

// The buffer holds the top or the bottom strip of the larger extent; what is narrower than two strips is copied
// whole.
inline TpxStatus fixedMaskBufferSize(TpxiSize roi, int mask, bool only3x3, bool types, int sampleBytes,
                                     bool channels, int numChannels, int* pBufferSize) {
    if (anyNull(pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (!isMask(mask, only3x3)) return tpxErrMaskSize;
    if (!types) return tpxErrDataType;
    if (!channels) return tpxErrChannelCount;
    const int64_t k = sideOf(mask) / 2, longer = roi.width > roi.height ? roi.width : roi.height;
    const int64_t bytes = (longer + 2 * k) * (3 * k + (k >> 1)) * sampleBytes * numChannels;
    if (bytes > int64_t(kLongestBlock)) return tpxErrSizeTooLarge;
    *pBufferSize = int(bytes);
    return tpxOk;
}

template <class S, class D>
struct FixedMaskCall {
    ImageView<const S> src;
    ImageView<D> dst;
    TpxiSizeL roi;
    int mask;
    TpxBorderType border;
    S borderValue;
    Tpx8u* buffer;
};

// Every channel of a constant border has the one value.
template <Layout L, class S, class D, class Kernel>
void filterFixed(const FixedMaskCall<S, D>& call, Kernel kernel) {
    constexpr int N = channelsOf(L);
    S value[N];
    for (S& sample : value) sample = call.borderValue;
    const int64_t side = sideOf(call.mask);
    const bool byStrips = call.roi.width >= side - 1 && call.roi.height >= side - 1;
    filterRegion<N>(
        FilterCall<S, D>{
            call.src, call.dst, call.roi, {side, side}, readFilterBorder(call.border), value, call.buffer},
        byStrips, kernel);
}

} // namespace tpx
