// SPDX-License-Identifier: Apache-2.0
// tpxiSumWindowRow, tpxiSumWindowColumn: sums along one direction; tpxiFilterBox_64f: the mean over a mask
// whose neighbours are all in memory.
#include "filters/box_sums.h"
#include "frame/entry/entry.h"

namespace tpx {
namespace {

// Columns of one pass from top to bottom: their sums lie on the stack.
constexpr ptrdiff_t kPassColumns = 1024;

template <class S>
struct SumCall {
    ImageView<const S> src;
    ImageView<Tpx32f> dst;
    TpxiSizeL roi;
    int mask, anchor;
};

template <class S>
TpxStatus checkSum(const SumCall<S>& call) {
    if (anyNull(call.src.data) || anyNull(call.dst.data)) return tpxErrNullPointer;
    if (call.mask < 1) return tpxErrMaskSize;
    return call.anchor < 0 || call.anchor >= call.mask ? tpxErrAnchor : tpxOk;
}

// Whether sums of so many samples fit 32 bits.
template <class S>
constexpr bool sumFits(int64_t samples) {
    return samples * (std::is_signed_v<S> ? int64_t(kMax<S>) + 1 : int64_t(kMax<S>)) <= kMax<Tpx32s>;
}

// ---- Rows -------------------------------------------------------------------------------------------------

// Windows of so few samples are added one by one, which takes fewer passes over a tile.
constexpr int kFewSamples = 8;

template <int N>
void sumFew(const Tpx32s* from, Tpx32f* to, ptrdiff_t length, int count) {
    const auto sumsAt = [=](ptrdiff_t i) {
        const Tpx32s* p = from + i;
        Pair<V32s> sums{load(p), load(p + 4)};
        for (int k = 1; k < count; k++) {
            p += N;
            sums.low += load(p);
            sums.high += load(p + 4);
        }
        return toFloat(sums);
    };
    writeRun(to, length, samplesToBoundary(to), sumsAt, [&] { return sumsAt(0); }); // from has room behind
}

template <int N, class S>
TpxStatus sumRows(const SumCall<S>& call) {
    if (const TpxStatus status = checkSum(call); status != tpxOk) return status;
    const ptrdiff_t length = ptrdiff_t(call.roi.width) * N;
    const auto src = call.src.from(-ptrdiff_t(call.anchor) * N, 0);
    const bool byTiles = sumFits<S>(call.mask) && WindowTile<Tpx32s>::canSum(call.mask, N);
    for (int64_t y = 0; y < call.roi.height && length > 0; y++) {
        const S* const from = src.row(ptrdiff_t(y));
        Tpx32f* const to = call.dst.row(ptrdiff_t(y));
        if (!byTiles) {
            SlidingWindow<S>(from, length, call.mask, N).next(to, length);
            continue;
        }
        WindowTile<Tpx32s> tile;
        constexpr ptrdiff_t kTile = WindowTile<Tpx32s>::kLength;
        for (ptrdiff_t x = 0; x < length; x += kTile) {
            const ptrdiff_t part = length - x < kTile ? length - x : kTile;
            if (call.mask <= kFewSamples) {
                tile.convert(from + x, part, call.mask, N);
                sumFew<N>(tile.powers, to + x, part, call.mask);
            } else {
                tile.sum(from + x, part, call.mask, N);
                convertRun(tile.sums, to + x, part, [](const Tpx32s* p) { return loadAs<Tpx32f>(p); });
            }
        }
    }
    return tpxOk;
}

// ---- Columns ----------------------------------------------------------------------------------------------

template <class Sum, class S>
void sumColumnsAs(const SumCall<S>& call, ImageView<const S> src, ptrdiff_t length) {
    Sum memory[kPassColumns];
    for (ptrdiff_t x = 0; x < length; x += kPassColumns) {
        const ptrdiff_t part = length - x < kPassColumns ? length - x : kPassColumns;
        const ColumnSums<Sum, S> sums(memory, part);
        const auto from = src.from(x, 0);
        for (int64_t y = 0; y < call.roi.height; y++) {
            if (y == 0)
                sums.form(from, call.mask);
            else
                sums.slide(from.row(ptrdiff_t(y + call.mask - 1)), from.row(ptrdiff_t(y - 1)));
            convertRun(memory, call.dst.from(x, ptrdiff_t(y)).data, part, [](const Sum* p) {
                if constexpr (std::is_same_v<Sum, Tpx32s>)
                    return loadAs<Tpx32f>(p);
                else
                    return toFloat(Pair<V64f>{load(p), load(p + 4)});
            });
        }
    }
}

template <int N, class S>
TpxStatus sumColumns(const SumCall<S>& call) {
    if (const TpxStatus status = checkSum(call); status != tpxOk) return status;
    const ptrdiff_t length = ptrdiff_t(call.roi.width) * N;
    const auto src = call.src.from(0, -ptrdiff_t(call.anchor));
    if (sumFits<S>(call.mask))
        sumColumnsAs<Tpx32s>(call, src, length);
    else
        sumColumnsAs<Tpx64f>(call, src, length);
    return tpxOk;
}

// ---- Means of 64f -----------------------------------------------------------------------------------------

struct BoxCall64f {
    ImageView<const Tpx64f> src; // begins with the first mask
    ImageView<Tpx64f> dst;
    TpxiSizeL roi, mask;
};

// Sums are made anew every few rows, so errors do not travel far; masks wider than a tile has room for go part
// by part, whose sums are gathered in the destination.
void meansOfPass(const BoxCall64f& call, ptrdiff_t x, ptrdiff_t length) {
    constexpr int64_t kWidest = kPassColumns / 2;
    constexpr int64_t kShortestSlide = 16;
    const int64_t period = call.mask.height < kShortestSlide ? kShortestSlide : call.mask.height;
    const V64f reciprocal = splat<V64f>(1.0 / (double(call.mask.width) * double(call.mask.height)));
    Tpx64f memory[kPassColumns + kWidest];
    WindowTile<Tpx64f> tile;
    for (int64_t from = 0; from < call.mask.width; from += kWidest) {
        const int64_t left = call.mask.width - from, width = left < kWidest ? left : kWidest;
        const ColumnSums<Tpx64f, Tpx64f> columns(memory, length + ptrdiff_t(width - 1));
        const auto src = call.src.from(x + ptrdiff_t(from), 0);
        for (int64_t y = 0; y < call.roi.height; y++) {
            if (y % period == 0 || call.mask.height <= 5)
                columns.form(src.from(0, ptrdiff_t(y)), call.mask.height);
            else
                columns.slide(src.row(ptrdiff_t(y + call.mask.height - 1)), src.row(ptrdiff_t(y - 1)));
            tile.sum(memory, length, width, 1);
            Tpx64f* const dst = call.dst.from(x, ptrdiff_t(y)).data;
            if (from > 0)
                applyRun(
                    tile.sums, length, [](V64f a, V64f b) { return a + b; }, tile.sums, dst);
            if (left > width)
                mapRun(tile.sums, dst, length, [](V64f sums) { return sums; });
            else
                mapRun(tile.sums, dst, length, [=](V64f sums) { return sums * reciprocal; });
        }
    }
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiFilterBox_64f_C1R)
(const Tpx64f* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiSize roiSize, TpxiSize maskSize,
 TpxiPoint anchor) {
    if (anyNull(pSrc) || anyNull(pDst)) return tpxErrNullPointer;
    if (isEmpty(roiSize) || isEmpty(maskSize)) return tpxErrSize;
    const TpxiSizeL roi = wide(roiSize), mask = wide(maskSize);
    if (srcStep < (roi.width + mask.width - 1) * 8 || dstStep < roi.width * 8) return tpxErrStep;
    const ImageView<const Tpx64f> src{pSrc, srcStep};
    const BoxCall64f call = {src.from(-ptrdiff_t(anchor.x), -ptrdiff_t(anchor.y)), {pDst, dstStep}, roi, mask};
    for (ptrdiff_t x = 0; x < roi.width; x += kPassColumns)
        meansOfPass(call, x, roi.width - x < kPassColumns ? ptrdiff_t(roi.width - x) : kPassColumns);
    return tpxOk;
}

#define TPX_SUM_ROW(S, L)                                                                                      \
    TPX_ENTRY(tpxiSumWindowRow_##S##32f_##L##R)                                                                \
    (const Tpx##S* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize, int maskSize, int anchor) { \
        return sumRows<channelsOf(Layout::L)>(                                                                 \
            SumCall<Tpx##S>{{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), maskSize, anchor});               \
    }
#define TPX_SUM_COLUMN(S, L)                                                                                   \
    TPX_ENTRY(tpxiSumWindowColumn_##S##32f_##L##R)                                                             \
    (const Tpx##S* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize, int maskSize, int anchor) { \
        return sumColumns<channelsOf(Layout::L)>(                                                              \
            SumCall<Tpx##S>{{pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), maskSize, anchor});               \
    }
TPX_SUM_ROW(8u, C1)
TPX_SUM_ROW(8u, C3)
TPX_SUM_ROW(8u, C4)
TPX_SUM_ROW(16u, C1)
TPX_SUM_ROW(16u, C3)
TPX_SUM_ROW(16u, C4)
TPX_SUM_ROW(16s, C1)
TPX_SUM_ROW(16s, C3)
TPX_SUM_ROW(16s, C4)
TPX_SUM_COLUMN(8u, C1)
TPX_SUM_COLUMN(8u, C3)
TPX_SUM_COLUMN(8u, C4)
TPX_SUM_COLUMN(16u, C1)
TPX_SUM_COLUMN(16u, C3)
TPX_SUM_COLUMN(16u, C4)
TPX_SUM_COLUMN(16s, C1)
TPX_SUM_COLUMN(16s, C3)
TPX_SUM_COLUMN(16s, C4)
#undef TPX_SUM_ROW
#undef TPX_SUM_COLUMN
