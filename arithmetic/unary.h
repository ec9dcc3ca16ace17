// What the unary operations share: checks, the walk of rows, and the entries of an operation's layouts.
//
// An operation is a class with
//   kWholeSteps                          whether steps are rounded down to whole samples
//   withRule<T>(scaleFactor, body)       picks the rule of the call's regime and returns body(rule)
//   kCostly                              optional: images of bytes had better go through a table of the results
// A rule maps a register of samples. It may also have
//   inspect(row, len)                    called on each source row before it is mapped
//   status()                             the call's warning, asked after the last row
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"

namespace tpx {

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
inline constexpr uint64_t kUnaryFloor = 4194304;

template <class Rule>
inline TpxStatus statusOf(const Rule& rule) {
    if constexpr (requires { rule.status(); })
        return rule.status();
    else
        return tpxOk;
}

// From so many samples on a table of all results is worth its making.
inline constexpr uint64_t kTableFloor = 1024;

// What a rule makes of every byte.
struct ByteResults {
    Tpx8u at[256];

    template <class Rule>
    explicit ByteResults(const Rule& rule) {
        for (int i = 0; i < 256; i++) at[i] = Tpx8u(i);
        mapRun(at, at, 256, rule);
    }
};

template <class Op, bool KeepAlpha, class T>
TpxStatus unaryRows(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize roi, int channels,
                    int scaleFactor) {
    if (anyNull(src, dst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (srcStep < 1 || dstStep < 1) return tpxErrStep;
    if constexpr (Op::kWholeSteps) {
        srcStep = wholeStep<T>(srcStep);
        dstStep = wholeStep<T>(dstStep);
    }
    return Op::template withRule<T>(scaleFactor, [&](auto rule) -> TpxStatus {
        ptrdiff_t len = ptrdiff_t(roi.width) * channels, height = roi.height;
        constexpr bool inspects = requires { rule.inspect(src, len); };
        // A row that is looked at first is still in the nearest cache when it is mapped; one long run is not.
        if (!inspects) joinRows(len, height, sizeof(T), srcStep, dstStep);
        const auto walk = [&](auto mapRow) {
            walkRows(src, srcStep, dst, dstStep, height, [&](const T* s, T* d) {
                if constexpr (inspects) rule.inspect(s, len);
                mapRow(s, d);
            });
        };
        const uint64_t samples = uint64_t(len) * uint64_t(height);
        if constexpr (sizeof(T) == 1 && !KeepAlpha && requires { Op::kCostly; })
            if (samples >= kTableFloor) {
                const ByteResults results(rule);
                const Tables tables{{results.at}, ~Tpx64u(0)};
                walk([&](const T* s, T* d) { lookupRow<Layout::C1, T, 1>(s, d, len, tables); });
                return statusOf(rule);
            }
        if constexpr (KeepAlpha) {
            walk([&](const T* s, T* d) { mapKeepingAlpha<T>(s, d, len, rule); });
        } else {
            // In place the line is in the cache already.
            const uint64_t traffic = 2 * samples * sizeof(T);
            if (src != dst && exceedsCache(traffic, kUnaryFloor)) {
                walk([&](const T* s, T* d) { mapRunStreaming(s, d, len, rule); });
                streamFence();
            } else {
                walk([&](const T* s, T* d) { mapRun(s, d, len, rule); });
            }
        }
        return statusOf(rule);
    });
}

template <class Op, Layout L, class T>
inline TpxStatus unary(const T* src, int srcStep, T* dst, int dstStep, TpxiSize roi, int scaleFactor = 0) {
    return unaryRows<Op, L == Layout::AC4>(src, srcStep, dst, dstStep, roi, channelsOf(L), scaleFactor);
}

} // namespace tpx

// The two entries of one layout: source to destination, and in place. T is the code of the sample type.
#define TPX_UNARY(Op, T, L)                                                                \
    TPX_ENTRY(tpxi##Op##_##T##_##L##R)                                                     \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {       \
        return tpx::unary<tpx::Op, tpx::Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize); \
    }                                                                                      \
    TPX_UNARY_INPLACE(Op, T, L)
#define TPX_UNARY_INPLACE(Op, T, L)                                                                    \
    TPX_ENTRY(tpxi##Op##_##T##_##L##IR)(Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize) {          \
        return tpx::unary<tpx::Op, tpx::Layout::L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize); \
    }

#define TPX_UNARY_SFS(Op, T, L)                                                                         \
    TPX_ENTRY(tpxi##Op##_##T##_##L##RSfs)                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, int scaleFactor) {   \
        return tpx::unary<tpx::Op, tpx::Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor); \
    }                                                                                                   \
    TPX_ENTRY(tpxi##Op##_##T##_##L##IRSfs)                                                              \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor) {                             \
        return tpx::unary<tpx::Op, tpx::Layout::L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,   \
                                                   scaleFactor);                                        \
    }
