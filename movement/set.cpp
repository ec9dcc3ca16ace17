// tpxiSet: a region filled with one pixel value.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/runs/streaming.h"

namespace tpx {
namespace {

// Up to this many bytes a fill stays in the caches without asking for their size.
constexpr uint64_t kFillFloor = 524288;

// `value` holds as many samples as the layout computes; no more are read.
template <Layout L, class T>
TpxStatus set(const T* value, T* pDst, ptrdiff_t dstStep, TpxiSize roi) {
    if (anyNull(value, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if constexpr (L == Layout::AC4) {
        T pixel[4] = {};
        __builtin_memcpy(pixel, value, 3 * sizeof(T));
        const Pattern pattern = makePattern(pixel, sizeof pixel);
        const V32f fill = load(reinterpret_cast<const Tpx32f*>(pattern.bytes));
        walkRows(pDst, dstStep, roi.height, [=, width = ptrdiff_t(roi.width)](T* d) {
            moveKeepingAlpha(d, d, width, [=](auto) { return fill; });
        });
    } else {
        constexpr int pixelBytes = channelsOf(L) * int(sizeof(T));
        // Single 16-bit samples are never written past the caches: such planes are work images as a rule.
        constexpr bool mayStream = !(L == Layout::C1 && sizeof(T) == 2);
        const Pattern pattern = makePattern(value, pixelBytes);
        ptrdiff_t row = ptrdiff_t(roi.width) * pixelBytes, height = roi.height;
        joinRows(row, height, 1, dstStep);
        const bool stream = mayStream && fillsCache(uint64_t(row) * uint64_t(height), kFillFloor);
        walkRows(reinterpret_cast<Tpx8u*>(pDst), dstStep, height,
                 [&](Tpx8u* d) { stream ? fillRowStreaming(d, row, pattern) : fillRow(d, row, pattern); });
        if (stream) streamFence();
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

#define TPX_SET(T, L)                                                                                    \
    TPX_ENTRY(tpxiSet_##T##_##L##R)(const Tpx##T value[], Tpx##T* pDst, int dstStep, TpxiSize roiSize) { \
        return tpx::set<tpx::Layout::L>(value, pDst, dstStep, roiSize);                                  \
    }
#define TPX_SET_LAYOUTS(T)                                                                     \
    TPX_ENTRY(tpxiSet_##T##_C1R)(Tpx##T value, Tpx##T * pDst, int dstStep, TpxiSize roiSize) { \
        return tpx::set<tpx::Layout::C1>(&value, pDst, dstStep, roiSize);                      \
    }                                                                                          \
    TPX_SET(T, C3)                                                                             \
    TPX_SET(T, C4)                                                                             \
    TPX_SET(T, AC4)
TPX_SET_LAYOUTS(8u)
TPX_SET_LAYOUTS(16u)
TPX_SET_LAYOUTS(16s)
TPX_SET_LAYOUTS(32s)
TPX_SET_LAYOUTS(32f)
