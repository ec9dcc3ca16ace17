// tpxiMinEvery, tpxiMaxEvery: the smaller or the larger sample of two images.
#include "frame/entry.h"
#include "frame/memory_runs.h"

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

// ---- Walk ------------------------------------------------------------------------------------------------

template <class T>
struct Images {
    const T* src1;
    ptrdiff_t src1Step;
    const T* src2;
    ptrdiff_t src2Step;
    T* dst;
    ptrdiff_t dstStep;
    TpxiSize roi;
};

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
constexpr uint64_t kFloor = 4194304;

template <class Rule, Layout L, class T>
TpxStatus every(const Images<T>& a) {
    if (anyNull(a.src1, a.src2, a.dst)) return tpxErrNullPointer;
    if (isEmpty(a.roi)) return tpxErrSize;
    if (a.src1Step < 1 || a.src2Step < 1 || a.dstStep < 1) return tpxErrStep;
    ptrdiff_t len = ptrdiff_t(a.roi.width) * channelsOf(L), height = a.roi.height;
    joinRows(len, height, sizeof(T), a.src1Step, a.src2Step, a.dstStep);
    const uint64_t traffic = 3 * uint64_t(len) * uint64_t(height) * sizeof(T);
    const bool inPlace = a.src1 == a.dst || a.src2 == a.dst; // its lines are in the cache already
    const bool stream = L == Layout::C1 && !inPlace && exceedsCache(traffic, kFloor);
    walkRows(a.src1, a.src1Step, a.src2, a.src2Step, a.dst, a.dstStep, height,
             [&](const T* x, const T* y, T* d) {
                 if constexpr (L == Layout::AC4)
                     applyColours<T>(d, len, Rule{}, x, y);
                 else if (L == Layout::C1 && stream)
                     streamRun(d, len, Rule{}, x, y);
                 else
                     applyRun(d, len, Rule{}, x, y);
             });
    if (stream) streamFence();
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
        return every<Rule, Layout::C1, Tpx##T>({pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize}); \
    }
#define TPX_EVERY_IR(name, Rule, T, L)                                                     \
    TPX_ENTRY(tpxi##name##Every_##T##_##L##IR)                                             \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pSrcDst, int srcDstStep, TpxiSize roiSize) { \
        using namespace tpx;                                                               \
        return every<Rule, Layout::L, Tpx##T>(                                             \
            {pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize});           \
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
