// The smallest and the largest sample of each channel, and where the first of them lies.
#include "statistics/extremes.h"

#include "frame/entry/entry.h"

namespace tpx {
namespace {

constexpr int resultsOf(Layout layout) { return layout == Layout::AC4 ? 3 : channelsOf(layout); }

// ---- Values -------------------------------------------------------------------------------------------------

// Values of Op, an array for each.
template <Layout L, class... Op, class T, class... Values>
TpxStatus extremes(const T* src, int step, TpxiSize size, Values... values) {
    if (anyNull(src, values...)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    constexpr int C = channelsOf(L);
    ExtremeLanes<T, C, Op...> lanes;
    gather<C>(lanes, src, step, size);
    for (int c = 0; c < resultsOf(L); c++) ((values[c] = lanes.template of<Op>(c)), ...);
    return tpxOk;
}

// ---- Places ---------------------------------------------------------------------------------------------

// Rows are passed in strips that stay in the first-level cache. A channel's strip is the first in which its
// best sample got better for the last time; the first such sample is then looked for in the strip's rows.
constexpr ptrdiff_t kStripBytes = 16384;

template <Layout L, class Op, class T>
TpxStatus placeOfExtreme(const T* src, int step, TpxiSize size, T* values, int* xs, int* ys) {
    if (anyNull(src, values) || anyNull(xs, ys)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    constexpr int C = channelsOf(L), kResults = resultsOf(L);
    const ptrdiff_t len = ptrdiff_t(size.width) * C;
    const ptrdiff_t fitting = kStripBytes / (len * ptrdiff_t(sizeof(T)));
    const ptrdiff_t strip = fitting > 1 ? fitting : 1;
    T best[kResults];
    ptrdiff_t strips[kResults] = {}; // first rows
    for (T& b : best) b = Op::template kStart<T>;
    bool bound = false; // nothing can get better
    for (ptrdiff_t y = 0; y < size.height && !bound; y += strip) {
        const ptrdiff_t left = size.height - y, rows = strip < left ? strip : left;
        ExtremeLanes<T, C, Op> lanes;
        gather<C>(lanes, addBytes(src, y * step), step, {size.width, int(rows)});
        bound = true;
        for (int c = 0; c < kResults; c++) {
            const T here = lanes.template of<Op>(c);
            if (Op::better(here, best[c])) {
                best[c] = here;
                strips[c] = y;
            }
            bound = bound && best[c] == Op::template kBound<T>;
        }
    }

    for (int c = 0; c < kResults; c++) {
        values[c] = best[c];
        xs[c] = ys[c] = 0;                                    // of a channel without numbers
        for (ptrdiff_t y = strips[c]; y < size.height; y++) { // an infinite start may be met in a later strip
            const ptrdiff_t x = findInRow<C>(addBytes(src, y * step), size.width, c, best[c]);
            if (x < 0) continue;
            xs[c] = int(x);
            ys[c] = int(y);
            break;
        }
    }
    return tpxOk;
}

} // namespace

#define TPX_FORM(T, L)                                                                                 \
    TPX_ENTRY(tpxiMin_##T##_##L##R)(const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin) { \
        return extremes<Layout::L, Least>(pSrc, srcStep, roiSize, pMin);                               \
    }                                                                                                  \
    TPX_ENTRY(tpxiMax_##T##_##L##R)(const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMax) { \
        return extremes<Layout::L, Most>(pSrc, srcStep, roiSize, pMax);                                \
    }                                                                                                  \
    TPX_ENTRY(tpxiMinMax_##T##_##L##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin, Tpx##T* pMax) {                  \
        return extremes<Layout::L, Least, Most>(pSrc, srcStep, roiSize, pMin, pMax);                   \
    }                                                                                                  \
    TPX_ENTRY(tpxiMinIndx_##T##_##L##R)                                                                \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin, int* pIndexX, int* pIndexY) {    \
        return placeOfExtreme<Layout::L, Least>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);       \
    }                                                                                                  \
    TPX_ENTRY(tpxiMaxIndx_##T##_##L##R)                                                                \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMax, int* pIndexX, int* pIndexY) {    \
        return placeOfExtreme<Layout::L, Most>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);        \
    }
#define TPX_TYPE(T) \
    TPX_FORM(T, C1) \
    TPX_FORM(T, C3) \
    TPX_FORM(T, C4) \
    TPX_FORM(T, AC4)
TPX_TYPE(8u)
TPX_TYPE(16u)
TPX_TYPE(16s)
TPX_TYPE(32f)

} // namespace tpx
