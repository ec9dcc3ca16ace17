// SPDX-License-Identifier: Apache-2.0
// The smallest and the largest sample of each channel, and where the first of them lies.
#include "statistics/extremes.h"

#include "frame/entry/entry.h"

namespace tpx {
namespace {

// ---- Values ----------------------------------------------------------------------------------------------

template <Layout L, class Side, class T>
TpxStatus extreme(ImageView<const T> src, TpxiSizeL size, T* values) {
    if (anyNull(src.data, values)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    constexpr int C = channelsOf(L);
    const auto extremes = reduce<ExtremeLanes<T, C, Side>>(samplesOf(size, C), src);
    for (int c = 0; c < coloursOf(L); c++) values[c] = extremes.of[c];
    return tpxOk;
}

template <Layout L, class T>
TpxStatus bothExtremes(ImageView<const T> src, TpxiSizeL size, T* smallest, T* largest) {
    if (anyNull(src.data, smallest, largest)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    constexpr int C = channelsOf(L);
    const auto [least, most] = reduce<LeastAndMostLanes<T, C>>(samplesOf(size, C), src);
    for (int c = 0; c < coloursOf(L); c++) {
        smallest[c] = least.of[c];
        largest[c] = most.of[c];
    }
    return tpxOk;
}

// ---- Places ----------------------------------------------------------------------------------------------

// Rows are passed in bands. A channel's band is the first in which its best sample got better for the last
// time; the first such sample is then looked for in the band's rows. Longer bands are more to search again,
// shorter ones more ends of loops, which add up in large images.
constexpr ptrdiff_t kBandBytes = 16384, kLargeImage = 524288;

template <Layout L, class Side, class T>
TpxStatus placeOfExtreme(ImageView<const T> src, TpxiSizeL size, T* values, int* xs, int* ys) {
    if (anyNull(src.data, values) || anyNull(xs, ys)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    constexpr int C = channelsOf(L), kResults = coloursOf(L);
    const Extent all = samplesOf(size, C);
    const ptrdiff_t rowBytes = all.width * ptrdiff_t(sizeof(T));
    const ptrdiff_t fitting = (all.height < kLargeImage / rowBytes ? 1 : 2) * kBandBytes / rowBytes;
    const ptrdiff_t band = fitting > 1 ? fitting : 1;
    T best[kResults];
    ptrdiff_t bands[kResults] = {}; // first rows
    for (T& b : best) b = Side::template kStart<T>;
    bool bound = false; // nothing can get better
    for (ptrdiff_t y = 0; y < all.height && !bound; y += band) {
        const ptrdiff_t left = all.height - y, rows = band < left ? band : left;
        const auto extremes = reduce<ExtremeLanes<T, C, Side>>(Extent{all.width, rows}, src.from(0, y));
        bound = true;
        for (int c = 0; c < kResults; c++) {
            const T here = extremes.of[c];
            if (Side::better(here, best[c])) {
                best[c] = here;
                bands[c] = y;
            }
            bound = bound && best[c] == Side::template kBound<T>;
        }
    }

    for (int c = 0; c < kResults; c++) {
        values[c] = best[c];
        xs[c] = ys[c] = 0; // of a channel without numbers
        // An infinite start may be met in a later band.
        const Extent rest = joinRows(Extent{all.width, all.height - bands[c]}, src);
        for (ptrdiff_t y = 0; y < rest.height; y++) {
            const ptrdiff_t x = findInRun<C>(src.row(bands[c] + y), rest.width, c, best[c]);
            if (x < 0) continue;
            xs[c] = int(x % all.width / C);
            ys[c] = int(bands[c] + y + x / all.width);
            break;
        }
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_EXTREMES(T, L)                                                                             \
    TPX_ENTRY(tpxiMin_##T##_##L##R)(const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin) { \
        return extreme<Layout::L, Least, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMin);                \
    }                                                                                                  \
    TPX_ENTRY(tpxiMax_##T##_##L##R)(const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMax) { \
        return extreme<Layout::L, Most, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMax);                 \
    }                                                                                                  \
    TPX_ENTRY(tpxiMinMax_##T##_##L##R)                                                                 \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin, Tpx##T* pMax) {                  \
        return bothExtremes<Layout::L, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMin, pMax);            \
    }                                                                                                  \
    TPX_ENTRY(tpxiMinIndx_##T##_##L##R)                                                                \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMin, int* pIndexX, int* pIndexY) {    \
        return placeOfExtreme<Layout::L, Least, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMin, pIndexX, \
                                                        pIndexY);                                      \
    }                                                                                                  \
    TPX_ENTRY(tpxiMaxIndx_##T##_##L##R)                                                                \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx##T* pMax, int* pIndexX, int* pIndexY) {    \
        return placeOfExtreme<Layout::L, Most, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMax, pIndexX,  \
                                                       pIndexY);                                       \
    }
#define TPX_EXTREMES_LAYOUTS(T) \
    TPX_EXTREMES(T, C1)         \
    TPX_EXTREMES(T, C3)         \
    TPX_EXTREMES(T, C4)         \
    TPX_EXTREMES(T, AC4)
TPX_EXTREMES_LAYOUTS(8u)
TPX_EXTREMES_LAYOUTS(16u)
TPX_EXTREMES_LAYOUTS(16s)
TPX_EXTREMES_LAYOUTS(32f)
#undef TPX_EXTREMES
#undef TPX_EXTREMES_LAYOUTS
