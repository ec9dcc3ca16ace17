// SPDX-License-Identifier: Apache-2.0
// tpxiFilterMedianBorder: medians of any odd mask, over a border and in place.
#include "filters/in_place.h"
#include "filters/median_choice.h"
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/runs/routines.h"

namespace tpx {
namespace {

// ---- Sizes of work buffers, fixed by contract -------------------------------------------------------------

// Products of two sides may go past 64 bits.
__extension__ typedef __int128 Bytes;

// The unit is a power of two, since a division of 128 bits would be a call of the compiler's library.
constexpr Bytes roundedUp(Bytes n, int unit) { return (n + unit - 1) & -Bytes(unit); }
constexpr Bytes larger(Bytes a, Bytes b) { return a > b ? a : b; }

Bytes workBytes(TpxiSizeL mask, TpxDataType type, int sampleBytes) {
    const bool line = mask.width == 1 || mask.height == 1;
    if (mask.width <= 5 && mask.height <= 5 && (line || mask.width == mask.height)) return 0;
    const Bytes n = Bytes(mask.width) * mask.height;
    if (type != tpxDataType32f) return 4 * sampleBytes * n;
    Bytes bytes = line      ? 4 * n
                  : n < 625 ? 4 * roundedUp(larger(mask.width, mask.height), 16) + 12 * roundedUp(n, 16)
                            : 8 * roundedUp(n, 16) + 12288;
    if (n >= 51 && n < 625) {
        int radix = 0;
        TPXS(SortRadixGetBufferSize)(int(n), tpxDataType32f, &radix);
        bytes += n + radix;
    }
    return bytes;
}

Bytes bufferBytes(TpxiSizeL roi, TpxiSizeL mask, TpxDataType type, int channels) {
    const int sampleBytes = type == tpxDataType8u ? 1 : type == tpxDataType32f ? 4 : 2;
    const Bytes w = mask.width, h = mask.height, halfWidth = w >> 1, halfHeight = h >> 1;
    const Bytes width = roi.width - 1 + w, height = roi.height - 1 + h;
    const bool byStrips = isSmallerThanRegion(mask, roi);
    if (channels == 1) {
        Bytes bytes = roundedUp(workBytes(mask, type, sampleBytes), 32), strip = width * height;
        if (byStrips) {
            bytes += 2 * h * roundedUp(roi.width * sampleBytes, 32) +
                     2 * roundedUp(roi.width * halfHeight * sampleBytes, 32) +
                     2 * roundedUp(roi.height * halfWidth * sampleBytes, 32);
            strip = larger(width * (halfHeight + h), (w + halfWidth) * height);
        }
        return bytes + roundedUp(strip * sampleBytes, 32);
    }
    const Bytes strip =
        byStrips ? larger(width * (h - 1 + halfHeight), (w - 1 + halfWidth) * height) : width * height;
    Bytes bytes = roundedUp(strip * channels * sampleBytes, 32);
    if (sampleBytes == 2 && (w > 5 || h > 5 || w + h == 8)) bytes += 8 * w * h;
    return bytes;
}

TpxStatus bufferSize(TpxiSizeL roi, TpxiSizeL mask, TpxDataType type, int channels, int* pBufferSize) {
    if (anyNull(pBufferSize)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (!isOdd(mask)) return tpxErrMaskSize;
    if (channels != 1 && channels != 3 && channels != 4) return tpxErrChannelCount;
    const bool floats = type == tpxDataType32f && channels == 1;
    if (type != tpxDataType8u && type != tpxDataType16u && type != tpxDataType16s && !floats)
        return tpxErrDataType;
    const Bytes bytes = bufferBytes(roi, mask, type, channels);
    const bool fits = bytes <= Bytes(kLongestBlock);
    *pBufferSize = fits ? int(bytes) : 0;
    return fits ? tpxOk : tpxErrSizeTooLarge;
}

// ---- Checks and the way of a call -------------------------------------------------------------------------

template <class T>
struct Call {
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiSizeL roi, mask;
    TpxBorderType border;
    T borderValue;
    Tpx8u* buffer;
};

template <class T>
constexpr TpxDataType kTypeOf = std::is_same_v<T, Tpx8u>    ? tpxDataType8u
                                : std::is_same_v<T, Tpx16u> ? tpxDataType16u
                                : std::is_same_v<T, Tpx16s> ? tpxDataType16s
                                                            : tpxDataType32f;

template <Layout L, class T>
TpxStatus median(const Call<T>& call) {
    constexpr int N = channelsOf(L);
    if (anyNull(call.src.data) || anyNull(call.dst.data) || anyNull(call.buffer)) return tpxErrNullPointer;
    if (isEmpty(call.roi)) return tpxErrSize;
    if (!isOdd(call.mask)) return tpxErrMaskSize;
    const BorderWord border = readBorder<Border::Replicate, Border::Const>(call.border);
    if (!border.valid) return tpxErrBorder;

    if (call.mask.width == 1 && call.mask.height == 1) {
        if (call.src.data != call.dst.data)
            mapImage<L>(
                samplesOf(call.roi, N), [](auto x) { return x; }, call.dst, call.src);
        return tpxOk;
    }
    T value[N];
    for (T& sample : value) sample = call.borderValue;
    const FilterCall<T, T> filter{call.src, call.dst, call.roi, call.mask, border, value, call.buffer};
    withMedianOf<L, T>(call.mask, [&](RegionKernel<T> kernel) {
        filterAnywhere<N>(filter, int64_t(bufferBytes(call.roi, call.mask, kTypeOf<T>, N)), kernel);
    });
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiFilterMedianBorderGetBufferSize)
(TpxiSize roiSize, TpxiSize maskSize, TpxDataType dataType, int numChannels, int* pBufferSize) {
    return bufferSize(wide(roiSize), wide(maskSize), dataType, numChannels, pBufferSize);
}

#define TPX_MEDIAN(T, L)                                                                                     \
    TPX_ENTRY(tpxiFilterMedianBorder_##T##_##L##R)                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, TpxiSize maskSize,        \
     TpxBorderType border, Tpx##T borderValue, Tpx8u* pBuffer) {                                             \
        return median<Layout::L>(Call<Tpx##T>{                                                               \
            {pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), wide(maskSize), border, borderValue, pBuffer}); \
    }
#define TPX_MEDIAN_LAYOUTS(T) TPX_MEDIAN(T, C1) TPX_MEDIAN(T, C3) TPX_MEDIAN(T, C4) TPX_MEDIAN(T, AC4)

TPX_MEDIAN_LAYOUTS(8u)
TPX_MEDIAN_LAYOUTS(16u)
TPX_MEDIAN_LAYOUTS(16s)
TPX_MEDIAN(32f, C1)
#undef TPX_MEDIAN
#undef TPX_MEDIAN_LAYOUTS
