// tpxiCopy: pixels from one image to another, as bits.
#include "frame/entry.h"
#include "frame/memory_runs.h"
#include "frame/streaming.h"

namespace tpx {
namespace {

// From what row length on a copy may go past the caches, and above what traffic in bytes (reads and writes)
// the cache's size is asked for at all.
struct CopyStreaming {
    ptrdiff_t minRow;
    uint64_t floor;
};
constexpr CopyStreaming kNarrowCopy = {1024, 4194304}, kWideCopy = {64, 262144};

TpxStatus copyBytes(const void* pSrc, ptrdiff_t srcStep, void* pDst, ptrdiff_t dstStep, TpxiSize roi,
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

template <Layout L, class T>
TpxStatus copy(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi) {
    if constexpr (L == Layout::AC4) {
        if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
        if (isEmpty(roi)) return tpxErrSize;
        walkRows(pSrc, srcStep, pDst, dstStep, roi.height, [width = ptrdiff_t(roi.width)](const T* s, T* d) {
            moveColours(s, d, width, [](auto x) { return x; });
        });
        return tpxOk;
    } else {
        constexpr bool narrow = sizeof(T) == 1 || (sizeof(T) == 2 && L == Layout::C1);
        return copyBytes(pSrc, srcStep, pDst, dstStep, roi, channelsOf(L) * int(sizeof(T)),
                         narrow ? kNarrowCopy : kWideCopy);
    }
}

// Pixels of three samples stand in four lanes; the fourth is the next pixel's first and is written over by it.
// Only the last pixel of a row is moved exactly.
template <int From, int To>
TpxStatus copyColours(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    using B = Tpx32u;
    walkRows(reinterpret_cast<const B*>(pSrc), srcStep, reinterpret_cast<B*>(pDst), dstStep, roi.height,
             [width = ptrdiff_t(roi.width)](const B* s, B* d) {
                 for (ptrdiff_t x = 0; x + 1 < width; x++, s += From, d += To) {
                     if constexpr (To == 4)
                         store(d, keepAlpha<B>(load(d), load(s)));
                     else
                         store(d, load(s));
                 }
                 __builtin_memcpy(d, s, 3 * sizeof(B));
             });
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

TPX_ENTRY(tpxiCopy_32f_AC4C3R)
(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) {
    return tpx::copyColours<4, 3>(pSrc, srcStep, pDst, dstStep, roiSize);
}

TPX_ENTRY(tpxiCopy_32f_C3AC4R)
(const Tpx32f* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize) {
    return tpx::copyColours<3, 4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
