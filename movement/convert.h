// SPDX-License-Identifier: Apache-2.0
// What the conversions share: checks, the walk of rows, and operations on several registers of samples.
//
// A conversion is a rule: rule(p) makes a register of destination samples from as many source samples at p.
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/walk.h"
#include "frame/runs/memory_runs.h"
#include "frame/simd/through_real.h"

namespace tpx {

// ---- Several registers -----------------------------------------------------------------------------------

// rule(i) for each of N registers.
template <int N, class Rule>
inline auto makeSeveral(Rule rule) {
    Several<decltype(rule(0)), N> parts;
    for (int i = 0; i < N; i++) parts.at[i] = rule(i);
    return parts;
}

// ---- Rows -----------------------------------------------------------------------------------------------

enum class Steps { Tested, Free };

template <Steps K, class S, class D>
inline TpxStatus checkConvert(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi) {
    if (anyNull(src.data, dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (K == Steps::Tested && (src.step < 1 || dst.step < 1)) return tpxErrStep;
    return tpxOk;
}

template <class S, class D>
inline bool convertStreams(ImageView<const S> src, ImageView<D> dst, Extent samples) {
    constexpr StreamRule rule =
        std::is_same_v<S, Tpx32s> && sizeof(D) == 2 ? kStreamReduction : kStreamConversion;
    const bool inPlace = static_cast<const void*>(src.data) == dst.data;
    return !inPlace && goesPastCaches(rule, trafficOf(samples, dst, src), samples.width * ptrdiff_t(sizeof(D)));
}

template <Steps K, Layout L, class S, class D, class Rule>
inline TpxStatus convert(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi, Rule rule) {
    if (const TpxStatus status = checkConvert<K>(src, dst, roi)) return status;
    const Extent samples = samplesOf(roi, channelsOf(L));
    constexpr bool kWidens = sizeof(D) > sizeof(S); // so that it is mostly stores
    if constexpr (L == Layout::AC4)
        walkJoined(
            samples, [&](ptrdiff_t len, D* d, const S* s) { convertKeepingAlpha<kWidens>(s, d, len, rule); },
            dst, src);
    else
        walkStreaming(
            convertStreams(src, dst, samples), samples,
            [&](ptrdiff_t len, D* d, const S* s) { convertRun<kWidens>(s, d, len, rule); },
            [&](ptrdiff_t len, D* d, const S* s) { convertRunStreaming(s, d, len, rule); }, dst, src);
    return tpxOk;
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
