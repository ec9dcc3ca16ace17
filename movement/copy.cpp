// SPDX-License-Identifier: Apache-2.0
// tpxiCopy: pixels from one image to another, as bits.
#include "frame/entry/entry.h"
#include "frame/runs/memory_runs.h"
#include "movement/pixel_shuffle.h"

namespace tpx {
namespace {

// ---- Row loops -------------------------------------------------------------------------------------------

// Rows of bytes, past the caches if streams(joined rows) says so. Returns that.
template <class Streams>
bool copyRows(ImageView<const Tpx8u> src, ImageView<Tpx8u> dst, Extent bytes, Streams streams) {
    const Extent rows = joinRows(bytes, dst, src);
    const bool stream = streams(rows);
    walkStreaming(
        stream, rows, [](ptrdiff_t row, Tpx8u* d, const Tpx8u* s) { copyRow(d, s, row); },
        [](ptrdiff_t row, Tpx8u* d, const Tpx8u* s) { copyRowStreaming(d, s, row); }, dst, src);
    return stream;
}

template <class T>
void copyKeepingAlpha(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi) {
    walkRows(
        samplesOf(roi, 1),
        [](ptrdiff_t width, T* d, const T* s) { moveKeepingAlpha(s, d, width, [](auto x) { return x; }); }, dst,
        src);
}

// ---- Checks ----------------------------------------------------------------------------------------------

TpxStatus check(const void* src, const void* dst, TpxiSizeL roi) {
    if (anyNull(src, dst)) return tpxErrNullPointer;
    return isEmpty(roi) ? tpxErrSize : tpxOk;
}

template <Layout L, class T>
TpxStatus copy(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi) {
    if (const TpxStatus status = check(src.data, dst.data, roi)) return status;
    if constexpr (L == Layout::AC4) {
        copyKeepingAlpha(src, dst, roi);
    } else {
        constexpr bool narrow = sizeof(T) == 1 || (sizeof(T) == 2 && L == Layout::C1);
        constexpr StreamRule rule = narrow ? kStreamNarrowCopy : kStreamWideCopy;
        copyRows(bytesOf(src), bytesOf(dst), samplesOf(roi, channelsOf(L) * int(sizeof(T))), [&](Extent rows) {
            return goesPastCaches(rule, trafficOf(rows, bytesOf(dst), bytesOf(src)), rows.width);
        });
    }
    return tpxOk;
}

// Non-temporal loads are ordinary ones in the memory that images lie in; what remains of them is the full
// fence. The caller has asked for stores past the caches whatever the traffic.
TpxStatus copyManaged(ImageView<const Tpx8u> src, ImageView<Tpx8u> dst, TpxiSizeL roi, TpxCopyFlags flags) {
    if (const TpxStatus status = check(src.data, dst.data, roi)) return status;
    copyRows(src, dst, samplesOf(roi, 1),
             [flags](Extent rows) { return (flags & tpxCopyNonTemporalStore) && rows.width >= kLineBytes; });
    if (flags & tpxCopyNonTemporalLoad) readFence();
    return tpxOk;
}

// Drops the fourth channel.
template <class T>
TpxStatus dropAlpha(Interleaved<const T, 4> src, Interleaved<T, 3> dst, TpxiSizeL roi) {
    if (const TpxStatus status = check(src.p, dst.p, roi)) return status;
    constexpr int colours[3] = {0, 1, 2};
    shufflePixels(colours, src, dst, roi);
    return tpxOk;
}

// Keeps the destination's fourth channel.
template <class T>
TpxStatus skipAlpha(Interleaved<const T, 3> src, Interleaved<T, 4> dst, TpxiSizeL roi) {
    if (const TpxStatus status = check(src.p, dst.p, roi)) return status;
    constexpr int source[4] = {0, 1, 2, kNoChannel};
    constexpr T keep[4] = {0, 0, 0, T(-1)}, fill[4] = {};
    mapPixels(roi, PixelShuffleOver<3, sizeof(T)>(source, keep, fill), dst, src, dst);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_COPY(T, L, R, Step, Size)                                                    \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                     \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pDst, Step dstStep, Size roiSize) {       \
        return copy<Layout::L, Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)); \
    }
#define TPX_COPY_LAYOUTS(T, R, Step, Size) \
    TPX_COPY(T, C1, R, Step, Size)         \
    TPX_COPY(T, C3, R, Step, Size)         \
    TPX_COPY(T, C4, R, Step, Size)         \
    TPX_COPY(T, AC4, R, Step, Size)
TPX_COPY_LAYOUTS(8u, R, int, TpxiSize)
TPX_COPY_LAYOUTS(16u, R, int, TpxiSize)
TPX_COPY_LAYOUTS(16s, R, int, TpxiSize)
TPX_COPY_LAYOUTS(32s, R, int, TpxiSize)
TPX_COPY_LAYOUTS(32f, R, int, TpxiSize)
TPX_COPY_LAYOUTS(8u, R_L, TpxSizeL, TpxiSizeL)
TPX_COPY_LAYOUTS(32f, R_L, TpxSizeL, TpxiSizeL)
#undef TPX_COPY
#undef TPX_COPY_LAYOUTS

#define TPX_COPY_ALPHA(T)                                                                      \
    TPX_ENTRY(tpxiCopy_##T##_AC4C3R)                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {           \
        return dropAlpha<UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)); \
    }                                                                                          \
    TPX_ENTRY(tpxiCopy_##T##_C3AC4R)                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {           \
        return skipAlpha<UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)); \
    }
TPX_COPY_ALPHA(8u)
TPX_COPY_ALPHA(16u)
TPX_COPY_ALPHA(16s)
TPX_COPY_ALPHA(32s)
TPX_COPY_ALPHA(32f)
#undef TPX_COPY_ALPHA

TPX_ENTRY(tpxiCopyManaged_8u_C1R)
(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize, int flags) {
    return copyManaged({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), flags);
}
