// SPDX-License-Identifier: Apache-2.0
// tpxiMinEvery, tpxiMaxEvery: the smaller or the larger sample of two images.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// ---- Rules: of floats that do not compare, the second is kept -------------------------------------------

struct Smaller {
    template <class V>
    V operator()(V a, V b) const {
        return minOf(a, b);
    }
};
struct Larger {
    template <class V>
    V operator()(V a, V b) const {
        return maxOf(a, b);
    }
};

// Of several channels, results stay in the caches.
template <class Rule, Layout L, class T>
TpxStatus every(const ImageView<const T>& src1, const ImageView<const T>& src2, const ImageView<T>& dst,
                TpxiSizeL roi) {
    if (anyNull(src1.data, src2.data, dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (src1.step < 1 || src2.step < 1 || dst.step < 1) return tpxErrStep;
    mapImage<pointwiseLayout(L), L == Layout::C1 ? Streaming::Maybe : Streaming::Never>(
        samplesOf(roi, channelsOf(L)), Rule{}, dst, src1, src2);
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_EVERY_R(T, name, Rule)                                                                    \
    TPX_ENTRY(name##T##_C1R)                                                                          \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, Tpx##T* pDst, int dstStep, \
     TpxiSize roiSize) {                                                                              \
        using namespace tpx;                                                                          \
        return every<Rule, Layout::C1, Tpx##T>({pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}, \
                                               wide(roiSize));                                        \
    }
#define TPX_EVERY_IR(T, L, name, Rule)                                                                       \
    TPX_ENTRY(name##T##_##L##IR)                                                                             \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pSrcDst, int srcDstStep, TpxiSize roiSize) {                   \
        using namespace tpx;                                                                                 \
        return every<Rule, Layout::L, Tpx##T>({pSrc, srcStep}, {pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, \
                                              wide(roiSize));                                                \
    }
#define TPX_EVERY_LAYOUTS(T, name, Rule) \
    TPX_EVERY_IR(T, C1, name, Rule)      \
    TPX_EVERY_IR(T, C3, name, Rule)      \
    TPX_EVERY_IR(T, C4, name, Rule)      \
    TPX_EVERY_IR(T, AC4, name, Rule)
TPX_EVERY_LAYOUTS(8u, tpxiMinEvery_, Smaller)
TPX_EVERY_LAYOUTS(16u, tpxiMinEvery_, Smaller)
TPX_EVERY_LAYOUTS(16s, tpxiMinEvery_, Smaller)
TPX_EVERY_LAYOUTS(32f, tpxiMinEvery_, Smaller)
TPX_EVERY_R(8u, tpxiMinEvery_, Smaller)
TPX_EVERY_R(16u, tpxiMinEvery_, Smaller)
TPX_EVERY_R(32f, tpxiMinEvery_, Smaller)
TPX_EVERY_LAYOUTS(8u, tpxiMaxEvery_, Larger)
TPX_EVERY_LAYOUTS(16u, tpxiMaxEvery_, Larger)
TPX_EVERY_LAYOUTS(16s, tpxiMaxEvery_, Larger)
TPX_EVERY_LAYOUTS(32f, tpxiMaxEvery_, Larger)
TPX_EVERY_R(8u, tpxiMaxEvery_, Larger)
TPX_EVERY_R(16u, tpxiMaxEvery_, Larger)
TPX_EVERY_R(32f, tpxiMaxEvery_, Larger)
#undef TPX_EVERY_R
#undef TPX_EVERY_IR
#undef TPX_EVERY_LAYOUTS
