// SPDX-License-Identifier: Apache-2.0
// tpxiSet: a region filled with one pixel value.
#include "frame/entry/entry.h"
#include "frame/images/walk.h"
#include "frame/runs/memory_runs.h"

namespace tpx {
namespace {

// `value` holds as many samples as the layout computes; no more are read.
template <Layout L, class T>
TpxStatus set(const T* value, ImageView<T> dst, TpxiSizeL roi) {
    if (anyNull(value, dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    constexpr int kPixelBytes = channelsOf(L) * int(sizeof(T));
    T pixel[channelsOf(L)] = {};
    __builtin_memcpy(pixel, value, coloursOf(L) * sizeof(T));
    const Pattern pattern = makePattern(pixel, kPixelBytes);
    if constexpr (L == Layout::AC4) {
        const V32f fill = load(reinterpret_cast<const Tpx32f*>(pattern.bytes));
        walkRows(
            samplesOf(roi, 1),
            [=](ptrdiff_t width, T* d) { moveKeepingAlpha(d, d, width, [=](auto) { return fill; }); }, dst);
    } else {
        // Single 16-bit samples are never written past the caches: such planes are work images as a rule.
        constexpr bool kMayStream = !(L == Layout::C1 && sizeof(T) == 2);
        const Extent rows = samplesOf(roi, kPixelBytes);
        walkStreaming(
            kMayStream && goesPastCaches(kStreamFill, trafficOf(rows, bytesOf(dst))), rows,
            [&](ptrdiff_t row, Tpx8u* d) { fillRow(d, row, pattern); },
            [&](ptrdiff_t row, Tpx8u* d) { fillRowStreaming(d, row, pattern); }, bytesOf(dst));
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_SET(T, L)                                                                  \
    TPX_ENTRY(tpxiSet_##T##_##L##R)                                                    \
    (Given<Layout::L, Tpx##T> value, Tpx##T * pDst, int dstStep, TpxiSize roiSize) {   \
        return set<Layout::L, Tpx##T>(arrayOf(value), {pDst, dstStep}, wide(roiSize)); \
    }
#define TPX_SET_LAYOUTS(T) \
    TPX_SET(T, C1)         \
    TPX_SET(T, C3)         \
    TPX_SET(T, C4)         \
    TPX_SET(T, AC4)
TPX_SET_LAYOUTS(8u)
TPX_SET_LAYOUTS(16u)
TPX_SET_LAYOUTS(16s)
TPX_SET_LAYOUTS(32s)
TPX_SET_LAYOUTS(32f)
#undef TPX_SET
#undef TPX_SET_LAYOUTS
