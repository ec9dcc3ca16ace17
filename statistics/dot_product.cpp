// Sums of the products of two images' samples.
#include "frame/entry/entry.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

template <class Lanes, Layout L, class T>
TpxStatus dotProduct(const T* src1, int src1Step, const T* src2, int src2Step, TpxiSize size,
                     Tpx64f* products) {
    if (anyNull(src1, src2) || anyNull(products)) return tpxErrNullPointer;
    if (isEmpty(size) || src1Step == 0 || src2Step == 0) return tpxErrSize;

    constexpr int C = channelsOf(L);
    Tally<Lanes> tally;
    const auto run = [&](ptrdiff_t len, const T* x, const T* y) { tally.run(len, x, y); };
    forRuns<C>(size, run, src1, src1Step, src2, src2Step);
    for (int c = 0; c < (L == Layout::AC4 ? 3 : C); c++) products[c] = tally.value(C, c);
    return tpxOk;
}

template <Layout L, class T>
TpxStatus exactProducts(const T* src1, int src1Step, const T* src2, int src2Step, TpxiSize size,
                        Tpx64f* products) {
    return dotProduct<ProductLanes<T, channelsOf(L)>, L>(src1, src1Step, src2, src2Step, size, products);
}

// Products in type Real, added in double precision.
template <Layout L, class Real, class T>
TpxStatus realProducts(const T* src1, int src1Step, const T* src2, int src2Step, TpxiSize size,
                       Tpx64f* products) {
    using Lanes = RealLanes<T, channelsOf(L), Real, Tpx64f, Product>;
    return dotProduct<Lanes, L>(src1, src1Step, src2, src2Step, size, products);
}

} // namespace

#define TPX_FORM(T, L, products, ...)                                                        \
    TPX_ENTRY(tpxiDotProd_##T##64f_##L##R)                                                   \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, TpxiSize roiSize, \
     Tpx64f* pDp __VA_OPT__(, TpxHintAlgorithm __VA_ARGS__)) {                               \
        return (products)(pSrc1, src1Step, pSrc2, src2Step, roiSize, pDp);                   \
    }
#define TPX_EXACT(T, L) TPX_FORM(T, L, (exactProducts<Layout::L, Tpx##T>))
#define TPX_REAL(T, L) TPX_FORM(T, L, (realProducts<Layout::L, Tpx64f, Tpx##T>))
#define TPX_HINTED(T, L)                                                          \
    TPX_FORM(T, L,                                                                \
             (hint == tpxHintAccurate ? realProducts<Layout::L, Tpx64f, Tpx##T>   \
                                      : realProducts<Layout::L, Tpx##T, Tpx##T>), \
             hint)
#define TPX_TYPE(KIND, T) \
    KIND(T, C1)           \
    KIND(T, C3)           \
    KIND(T, C4)           \
    KIND(T, AC4)
TPX_TYPE(TPX_EXACT, 8u)
TPX_TYPE(TPX_EXACT, 16u)
TPX_TYPE(TPX_EXACT, 16s)
TPX_TYPE(TPX_REAL, 32u)
TPX_TYPE(TPX_REAL, 32s)
TPX_TYPE(TPX_HINTED, 32f)

} // namespace tpx
