// SPDX-License-Identifier: Apache-2.0
// Sums and means of channels.
#include "frame/entry/entry.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

template <class T, int C>
struct LanesOf {
    using type = SumLanes<T, C>;
};
template <int C>
struct LanesOf<Tpx32f, C> {
    using type = RealLanes<Tpx32f, C, Tpx32f, Tpx64f, Itself>;
};

template <int C, class T>
TpxStatus sum(ImageView<const T> src, TpxiSizeL size, Tpx64f* sums) {
    if (anyNull(src.data) || anyNull(sums)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    const auto values = reduce<typename LanesOf<T, C>::type>(samplesOf(size, C), src);
    for (int c = 0; c < C; c++) sums[c] = values.of[c];
    return tpxOk;
}

template <int C, class T>
TpxStatus mean(ImageView<const T> src, TpxiSizeL size, Tpx64f* means) {
    if (anyNull(means)) return tpxErrNullPointer;

    Tpx64f sums[C];
    const TpxStatus status = sum<C>(src, size, sums);
    if (status != tpxOk) return status;
    const Tpx64f pixels = Tpx32s(Tpx32u(size.width) * Tpx32u(size.height)); // wraps around
    if constexpr (C == 1)
        means[0] = sums[0] / pixels;
    else
        for (int c = 0; c < C; c++) means[c] = sums[c] * (1.0 / pixels);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_SUM(T, C)                                                    \
    TPX_ENTRY(tpxiSum_##T##_C##C##R)                                     \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum) {  \
        return sum<C, Tpx##T>({pSrc, srcStep}, wide(roiSize), pSum);     \
    }                                                                    \
    TPX_ENTRY(tpxiMean_##T##_C##C##R)                                    \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean) { \
        return mean<C, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMean);   \
    }
// Those of floats take a hint, and are accurate whatever it says.
#define TPX_SUM_HINTED(T, C)                                                               \
    TPX_ENTRY(tpxiSum_##T##_C##C##R)                                                       \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum, TpxHintAlgorithm) {  \
        return sum<C, Tpx##T>({pSrc, srcStep}, wide(roiSize), pSum);                       \
    }                                                                                      \
    TPX_ENTRY(tpxiMean_##T##_C##C##R)                                                      \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean, TpxHintAlgorithm) { \
        return mean<C, Tpx##T>({pSrc, srcStep}, wide(roiSize), pMean);                     \
    }
#define TPX_CHANNELS(INSTANCE, T) \
    INSTANCE(T, 1)                \
    INSTANCE(T, 3)                \
    INSTANCE(T, 4)
TPX_CHANNELS(TPX_SUM, 8u)
TPX_CHANNELS(TPX_SUM, 16u)
TPX_CHANNELS(TPX_SUM, 16s)
TPX_CHANNELS(TPX_SUM_HINTED, 32f)
#undef TPX_SUM
#undef TPX_SUM_HINTED
#undef TPX_CHANNELS
