// SPDX-License-Identifier: Apache-2.0
// What the unary operations share: checks, the images of a call, and the entries.
//
// An operation is a class with
//   kWholeSteps            whether steps are rounded down to whole samples
//   run(call)              maps the call's images by the rule of its regime, and gives the status
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/runs/ordinary_runs.h"

namespace tpx {

// A call whose arguments have passed their checks. L tells pixels whose alpha stays from all others.
template <Layout L, class T>
struct UnaryCall {
    Extent extent; // in samples
    ImageView<const T> src;
    ImageView<T> dst;
    int scaleFactor;

    // dst = rule(src), registers of samples. A rule that gathers flags is handed as a lambda that refers to it.
    template <class Rule>
    TpxStatus map(Rule rule) const {
        mapImage<L>(extent, rule, dst, src);
        return tpxOk;
    }

    // The same by a rule of frame/runs/ordinary_runs.h, which counts the samples of the region in row-major
    // order.
    template <class Rule>
    TpxStatus mapMostlyOrdinary(Rule&& rule) const requires(L == Layout::C1) {
        ptrdiff_t done = 0;
        walkPointwise<Streaming::Maybe>(
            extent,
            [&](ptrdiff_t len, T* d, const T* s) {
                applyMostlyOrdinary(d, len, rule, s, done);
                done += len;
            },
            [&](ptrdiff_t len, T* d, const T* s) {
                streamMostlyOrdinary(d, len, rule, s, done);
                done += len;
            },
            dst, src);
        return tpxOk;
    }
};

template <class Op, Layout L, class T>
TpxStatus unaryRows(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi, int channels, int scaleFactor) {
    if (anyNull(src.data, dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (src.step < 1 || dst.step < 1) return tpxErrStep;
    if constexpr (Op::kWholeSteps) {
        src = wholeSteps(src);
        dst = wholeSteps(dst);
    }
    return Op::run(UnaryCall<L, T>{samplesOf(roi, channels), src, dst, scaleFactor});
}

template <class Op, Layout L, class T>
inline TpxStatus unary(ImageView<const T> src, ImageView<T> dst, TpxiSizeL roi, int scaleFactor = 0) {
    return unaryRows<Op, pointwiseLayout(L)>(src, dst, roi, channelsOf(L), scaleFactor);
}

} // namespace tpx

// ---- Entries ----------------------------------------------------------------------------------------------

// Source to destination, and in place. `name` is the exported names' stem.
#define TPX_UNARY(T, L, name, Op)                                                                         \
    TPX_ENTRY(name##T##_##L##R)                                                                           \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {                      \
        using namespace tpx;                                                                              \
        return unary<Op, Layout::L, Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize));             \
    }                                                                                                     \
    TPX_ENTRY(name##T##_##L##IR)(Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize) {                    \
        using namespace tpx;                                                                              \
        return unary<Op, Layout::L, Tpx##T>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize)); \
    }
#define TPX_UNARY_SFS(T, L, name, Op)                                                                      \
    TPX_ENTRY(name##T##_##L##RSfs)                                                                         \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, int scaleFactor) {      \
        using namespace tpx;                                                                               \
        return unary<Op, Layout::L, Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), scaleFactor); \
    }                                                                                                      \
    TPX_ENTRY(name##T##_##L##IRSfs)                                                                        \
    (Tpx##T * pSrcDst, int srcDstStep, TpxiSize roiSize, int scaleFactor) {                                \
        using namespace tpx;                                                                               \
        return unary<Op, Layout::L, Tpx##T>({pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, wide(roiSize),   \
                                            scaleFactor);                                                  \
    }
