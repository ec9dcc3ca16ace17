// Sums and means of channels.
#include "frame/entry/entry.h"
#include "statistics/lanes.h"

namespace tpx {
namespace {

template <class T, int C>
using Lanes = typename std::conditional_t<std::is_same_v<T, Tpx32f>,
                                          std::type_identity<RealLanes<T, C, Tpx32f, Tpx64f, Itself>>,
                                          std::type_identity<SumLanes<T, C>>>::type;

template <int C, class T>
TpxStatus sum(const T* src, int srcStep, TpxiSize size, Tpx64f* sums) {
    if (anyNull(src, sums)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;

    Tally<Lanes<T, C>> tally;
    forRuns<C>(
        size, [&](ptrdiff_t len, const T* s) { tally.run(len, s); }, src, srcStep);
    for (int c = 0; c < C; c++) sums[c] = tally.value(C, c);
    return tpxOk;
}

template <int C, class T>
TpxStatus mean(const T* src, int srcStep, TpxiSize size, Tpx64f* means) {
    if (anyNull(means)) return tpxErrNullPointer;

    Tpx64f sums[C];
    const TpxStatus status = sum<C>(src, srcStep, size, sums);
    if (status != tpxOk) return status;
    const Tpx64f pixels = Tpx32s(Tpx32u(size.width) * Tpx32u(size.height)); // wraps around
    if constexpr (C == 1)
        means[0] = sums[0] / pixels;
    else
        for (int c = 0; c < C; c++) means[c] = sums[c] * (1.0 / pixels);
    return tpxOk;
}

} // namespace

#define TPX_FORM(T, C, ...)                                                                        \
    TPX_ENTRY(tpxiSum_##T##_C##C##R)                                                               \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pSum __VA_OPT__(, __VA_ARGS__)) {  \
        return sum<C>(pSrc, srcStep, roiSize, pSum);                                               \
    }                                                                                              \
    TPX_ENTRY(tpxiMean_##T##_C##C##R)                                                              \
    (const Tpx##T* pSrc, int srcStep, TpxiSize roiSize, Tpx64f* pMean __VA_OPT__(, __VA_ARGS__)) { \
        return mean<C>(pSrc, srcStep, roiSize, pMean);                                             \
    }
#define TPX_TYPE(T, ...)        \
    TPX_FORM(T, 1, __VA_ARGS__) \
    TPX_FORM(T, 3, __VA_ARGS__) \
    TPX_FORM(T, 4, __VA_ARGS__)
TPX_TYPE(8u)
TPX_TYPE(16u)
TPX_TYPE(16s)
TPX_TYPE(32f, TpxHintAlgorithm)

} // namespace tpx
