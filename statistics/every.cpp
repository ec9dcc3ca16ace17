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

template <class Rule, Layout L, class T>
TpxStatus every(const TwoImages<T>& a, TpxiSize roi) {
    if (anyNull(a.src1, a.src2, a.dst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (a.src1Step < 1 || a.src2Step < 1 || a.dstStep < 1) return tpxErrStep;
    combineImages<L == Layout::AC4, L == Layout::C1>(a, ptrdiff_t(roi.width) * channelsOf(L), roi.height,
                                                     Rule{});
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_EVERY_R(name, Rule, T)                                                                          \
    TPX_ENTRY(tpxi##name##Every_##T##_C1R)                                                                  \
    (const Tpx##T* pSrc1, int src1Step, const Tpx##T* pSrc2, int src2Step, Tpx##T* pDst, int dstStep,       \
     TpxiSize roiSize) {                                                                                    \
        using namespace tpx;                                                                                \
        return every<Rule, Layout::C1, Tpx##T>({pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep}, roiSize); \
    }
#define TPX_EVERY_IR(name, Rule, T, L)                                                                   \
    TPX_ENTRY(tpxi##name##Every_##T##_##L##IR)                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pSrcDst, int srcDstStep, TpxiSize roiSize) {               \
        using namespace tpx;                                                                             \
        return every<Rule, Layout::L, Tpx##T>({pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep}, \
                                              roiSize);                                                  \
    }
#define TPX_EVERY_TYPE(name, Rule, T) \
    TPX_EVERY_IR(name, Rule, T, C1)   \
    TPX_EVERY_IR(name, Rule, T, C3)   \
    TPX_EVERY_IR(name, Rule, T, C4)   \
    TPX_EVERY_IR(name, Rule, T, AC4)
#define TPX_EVERY(name, Rule)       \
    TPX_EVERY_TYPE(name, Rule, 8u)  \
    TPX_EVERY_TYPE(name, Rule, 16u) \
    TPX_EVERY_TYPE(name, Rule, 16s) \
    TPX_EVERY_TYPE(name, Rule, 32f) \
    TPX_EVERY_R(name, Rule, 8u)     \
    TPX_EVERY_R(name, Rule, 16u)    \
    TPX_EVERY_R(name, Rule, 32f)
TPX_EVERY(Min, Smaller)
TPX_EVERY(Max, Larger)
