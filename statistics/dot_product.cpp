// SPDX-License-Identifier: Apache-2.0
// Sums of the products of two images' samples.
#include "frame/entry/entry.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

template <class Lanes, Layout L, class T>
TpxStatus sumProducts(ImageView<const T> src1, ImageView<const T> src2, TpxiSizeL size, Tpx64f* products) {
    if (anyNull(src1.data, src2.data) || anyNull(products)) return tpxErrNullPointer;
    if (isEmpty(size) || src1.step == 0 || src2.step == 0) return tpxErrSize;

    const auto values = reduce<Lanes>(samplesOf(size, channelsOf(L)), src1, src2);
    for (int c = 0; c < coloursOf(L); c++) products[c] = values.of[c];
    return tpxOk;
}

// Of integers up to 16 bits, exact.
template <Layout L, class T>
TpxStatus exactProducts(ImageView<const T> src1, ImageView<const T> src2, TpxiSizeL size, Tpx64f* products) {
    return sumProducts<ProductLanes<T, channelsOf(L)>, L>(src1, src2, size, products);
}

// Products in type Real, added in double precision.
template <Layout L, class Real, class T>
TpxStatus realProducts(ImageView<const T> src1, ImageView<const T> src2, TpxiSizeL size, Tpx64f* products) {
    return sumProducts<RealLanes<T, channelsOf(L), Real, Tpx64f, Product>, L>(src1, src2, size, products);
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_EXACT(T, L)                                                                                     \
    TPX_ENTRY(tpxiDotProd_##T##64f_##L##R)                                                                  \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, Tpx64f* pDp) { \
        return exactProducts<Layout::L, Tpx##T>({pSrc1, src1Step}, {pSrc2, src2Step}, wide(roiSize), pDp);  \
    }
#define TPX_DOUBLE(T, L)                                                                                    \
    TPX_ENTRY(tpxiDotProd_##T##64f_##L##R)                                                                  \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, Tpx64f* pDp) { \
        return realProducts<Layout::L, Tpx64f, Tpx##T>({pSrc1, src1Step}, {pSrc2, src2Step}, wide(roiSize), \
                                                       pDp);                                                \
    }
#define TPX_HINTED(T, L)                                                                                  \
    TPX_ENTRY(tpxiDotProd_##T##64f_##L##R)                                                                \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, Tpx64f* pDp, \
     TpxHintAlgorithm hint) {                                                                             \
        const auto products = hint == tpxHintAccurate ? realProducts<Layout::L, Tpx64f, Tpx##T>           \
                                                      : realProducts<Layout::L, Tpx##T, Tpx##T>;          \
        return products({pSrc1, src1Step}, {pSrc2, src2Step}, wide(roiSize), pDp);                        \
    }
#define TPX_LAYOUTS(INSTANCE, T) \
    INSTANCE(T, C1)              \
    INSTANCE(T, C3)              \
    INSTANCE(T, C4)              \
    INSTANCE(T, AC4)
TPX_LAYOUTS(TPX_EXACT, 8u)
TPX_LAYOUTS(TPX_EXACT, 16u)
TPX_LAYOUTS(TPX_EXACT, 16s)
TPX_LAYOUTS(TPX_DOUBLE, 32u)
TPX_LAYOUTS(TPX_DOUBLE, 32s)
TPX_LAYOUTS(TPX_HINTED, 32f)
#undef TPX_EXACT
#undef TPX_DOUBLE
#undef TPX_HINTED
#undef TPX_LAYOUTS
