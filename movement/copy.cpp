// tpxiCopy: pixels from one image to another, as bits.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/runs/streaming.h"
#include "movement/pixel_shuffle.h"

namespace tpx {
namespace {

// From what row length on a copy may go past the caches, and above what traffic in bytes (reads and writes)
// the cache's size is asked for at all.
struct CopyStreaming {
    ptrdiff_t minRow;
    uint64_t floor;
};
// The rows of a copy that the caller has asked to stream, whatever their traffic.
constexpr ptrdiff_t kManagedRow = 64;
constexpr CopyStreaming kNarrowCopy = {1024, 4194304}, kWideCopy = {64, 262144};

template <class Size>
TpxStatus copyBytes(const void* pSrc, ptrdiff_t srcStep, void* pDst, ptrdiff_t dstStep, Size roi,
                    int pixelBytes, CopyStreaming streaming) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    ptrdiff_t row = ptrdiff_t(roi.width) * pixelBytes, height = roi.height;
    joinRows(row, height, 1, srcStep, dstStep);
    const uint64_t traffic = 2 * uint64_t(row) * uint64_t(height);
    const bool stream = row >= streaming.minRow && exceedsCache(traffic, streaming.floor);
    walkRows(static_cast<const Tpx8u*>(pSrc), srcStep, static_cast<Tpx8u*>(pDst), dstStep, height,
             [=](const Tpx8u* s, Tpx8u* d) { stream ? copyRowStreaming(d, s, row) : copyRow(d, s, row); });
    if (stream) streamFence();
    return tpxOk;
}

template <Layout L, class T, class Size>
TpxStatus copy(const T* pSrc, ptrdiff_t srcStep, T* pDst, ptrdiff_t dstStep, Size roi) {
    if constexpr (L == Layout::AC4) {
        if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
        if (isEmpty(roi)) return tpxErrSize;
        walkRows(pSrc, srcStep, pDst, dstStep, roi.height, [width = ptrdiff_t(roi.width)](const T* s, T* d) {
            moveKeepingAlpha(s, d, width, [](auto x) { return x; });
        });
        return tpxOk;
    } else {
        constexpr bool narrow = sizeof(T) == 1 || (sizeof(T) == 2 && L == Layout::C1);
        return copyBytes(pSrc, srcStep, pDst, dstStep, roi, channelsOf(L) * int(sizeof(T)),
                         narrow ? kNarrowCopy : kWideCopy);
    }
}

// Drops the fourth channel, or keeps the destination's.
template <class T>
TpxStatus dropAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    constexpr int colours[3] = {0, 1, 2};
    shufflePixels<4, 3>(colours, pSrc, srcStep, pDst, dstStep, roi);
    return tpxOk;
}
template <class T>
TpxStatus skipAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    constexpr int source[4] = {0, 1, 2, kNoChannel};
    constexpr T keep[4] = {0, 0, 0, T(-1)}, fill[4] = {};
    const Interleaved<T, 4> dst(pDst, dstStep);
    mapPixels(roi, false, PixelShuffleOver<3, sizeof(T)>(source, keep, fill), dst,
              Interleaved<const T, 3>(pSrc, srcStep), dst);
    return tpxOk;
}

// Non-temporal loads are ordinary ones in the memory that images lie in; what remains of them is the full
// fence.
TpxStatus copyManaged(const Tpx8u* pSrc, ptrdiff_t srcStep, Tpx8u* pDst, ptrdiff_t dstStep, TpxiSize roi,
                      TpxCopyFlags flags) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    ptrdiff_t row = roi.width, height = roi.height;
    joinRows(row, height, 1, srcStep, dstStep);
    const bool stream = (flags & tpxCopyNonTemporalStore) && row >= kManagedRow;
    walkRows(pSrc, srcStep, pDst, dstStep, height,
             [=](const Tpx8u* s, Tpx8u* d) { stream ? copyRowStreaming(d, s, row) : copyRow(d, s, row); });
    if (flags & tpxCopyNonTemporalLoad)
        _mm_mfence();
    else if (stream)
        streamFence();
    return tpxOk;
}

} // namespace
} // namespace tpx

#define TPX_COPY(T, L)                                                               \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                 \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) { \
        return tpx::copy<tpx::Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize);     \
    }
#define TPX_COPY_LAYOUTS(T) \
    TPX_COPY(T, C1)         \
    TPX_COPY(T, C3)         \
    TPX_COPY(T, C4)         \
    TPX_COPY(T, AC4)
TPX_COPY_LAYOUTS(8u)
TPX_COPY_LAYOUTS(16u)
TPX_COPY_LAYOUTS(16s)
TPX_COPY_LAYOUTS(32s)
TPX_COPY_LAYOUTS(32f)

#define TPX_COPY_L(T, L)                                                                        \
    TPX_ENTRY(tpxiCopy_##T##_##L##R_L)                                                          \
    (const Tpx##T* pSrc, TpxSizeL srcStep, Tpx##T* pDst, TpxSizeL dstStep, TpxiSizeL roiSize) { \
        return tpx::copy<tpx::Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize);                \
    }
#define TPX_COPY_LAYOUTS_L(T) \
    TPX_COPY_L(T, C1)         \
    TPX_COPY_L(T, C3)         \
    TPX_COPY_L(T, C4)         \
    TPX_COPY_L(T, AC4)
TPX_COPY_LAYOUTS_L(8u)
TPX_COPY_LAYOUTS_L(32f)

// Samples are moved as bits: Bits is the unsigned integer of their width.
#define TPX_COPY_ALPHA(T, Bits, L, function)                                         \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                 \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) { \
        return tpx::function(reinterpret_cast<const Tpx##Bits*>(pSrc), srcStep,      \
                             reinterpret_cast<Tpx##Bits*>(pDst), dstStep, roiSize);  \
    }
#define TPX_COPY_ALPHAS(T, Bits)              \
    TPX_COPY_ALPHA(T, Bits, AC4C3, dropAlpha) \
    TPX_COPY_ALPHA(T, Bits, C3AC4, skipAlpha)
TPX_COPY_ALPHAS(8u, 8u)
TPX_COPY_ALPHAS(16u, 16u)
TPX_COPY_ALPHAS(16s, 16u)
TPX_COPY_ALPHAS(32s, 32u)
TPX_COPY_ALPHAS(32f, 32u)

TPX_ENTRY(tpxiCopyManaged_8u_C1R)
(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize, int flags) {
    return tpx::copyManaged(pSrc, srcStep, pDst, dstStep, roiSize, flags);
}
