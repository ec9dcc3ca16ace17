// What the conversions share: checks, the walk of rows, and words for several registers of samples.
//
// A conversion is a rule: rule(p) makes a register of destination samples from as many source samples at p.
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/simd/through_real.h"

namespace tpx {

// ---- Words ----------------------------------------------------------------------------------------------

// rule(i) for each of N registers.
template <int N, class Rule>
inline auto makeSeveral(Rule rule) {
    Several<decltype(rule(0)), N> parts;
    for (int i = 0; i < N; i++) parts.at[i] = rule(i);
    return parts;
}

// ---- Rows -----------------------------------------------------------------------------------------------

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
inline constexpr uint64_t kConvertFloor = 524288;

template <class S, class D>
inline bool convertStreams(TpxiSize roi, int channels) {
    const uint64_t traffic =
        (sizeof(S) + sizeof(D)) * uint64_t(channels) * uint64_t(roi.width) * uint64_t(roi.height);
    // Planes of 32-bit sums are reduced past the caches from exactly the cache's size on, but for rows so short
    // that they have no whole line.
    if constexpr (std::is_same_v<S, Tpx32s> && sizeof(D) == 2)
        return roi.width >= kLineBytes && fillsCache(traffic, kConvertFloor);
    else
        return exceedsCache(traffic, kConvertFloor);
}

enum class Steps { Tested, Free };

template <Steps K>
inline TpxStatus checkConvert(const void* src, int srcStep, const void* dst, int dstStep, TpxiSize roi) {
    if (anyNull(src, dst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (K == Steps::Tested && (srcStep < 1 || dstStep < 1)) return tpxErrStep;
    return tpxOk;
}

template <bool KeepAlpha, class S, class D, class Rule>
void convertRows(const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, TpxiSize roi, int channels,
                 Rule rule) {
    ptrdiff_t len = ptrdiff_t(roi.width) * channels, height = roi.height;
    if (srcStep == len * ptrdiff_t(sizeof(S))) joinRows(len, height, sizeof(D), dstStep);
    const auto walk = [&](auto row) { walkRows(src, srcStep, dst, dstStep, height, row); };
    if constexpr (KeepAlpha) {
        walk([&](const S* s, D* d) { convertKeepingAlpha(s, d, len, rule); });
    } else if (static_cast<const void*>(src) != dst && convertStreams<S, D>(roi, channels)) {
        walk([&](const S* s, D* d) { convertRunStreaming(s, d, len, rule); });
        streamFence();
    } else {
        walk([&](const S* s, D* d) { convertRun(s, d, len, rule); });
    }
}

template <Steps K, Layout L, class S, class D, class Rule>
inline TpxStatus convert(const S* src, int srcStep, D* dst, int dstStep, TpxiSize roi, Rule rule) {
    const TpxStatus status = checkConvert<K>(src, srcStep, dst, dstStep, roi);
    if (status == tpxOk) convertRows<L == Layout::AC4>(src, srcStep, dst, dstStep, roi, channelsOf(L), rule);
    return status;
}

// ---- The rule of a narrowing without a factor -----------------------------------------------------------

template <class S, class D>
struct Narrow {
    Vec<D> operator()(const S* p) const {
        return narrowAll<D>(makeSeveral<kLanes<D> / kLanes<S>>([p](int i) {
            const Vec<S> x = load(p + i * kLanes<S>);
            return std::is_signed_v<S> ? x : minOf(x, splat<Vec<S>>(S(kMax<D>)));
        }));
    }
};

} // namespace tpx

// An entry without further arguments; Rule is a template on the types. K tells whether steps are tested.
#define TPX_CONVERT(Rule, K, S, D, L, Flags)                                                      \
    TPX_ENTRY(tpxiConvert_##S##D##_##L##Flags)                                                    \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize) {              \
        return tpx::convert<tpx::Steps::K, tpx::Layout::L>(pSrc, srcStep, pDst, dstStep, roiSize, \
                                                           tpx::Rule<Tpx##S, Tpx##D>{});          \
    }
#define TPX_CONVERT_LAYOUTS(Rule, S, D)    \
    TPX_CONVERT(Rule, Tested, S, D, C1, R) \
    TPX_CONVERT(Rule, Tested, S, D, C3, R) \
    TPX_CONVERT(Rule, Tested, S, D, C4, R) \
    TPX_CONVERT(Rule, Tested, S, D, AC4, R)
