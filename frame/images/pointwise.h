// SPDX-License-Identifier: Apache-2.0
// Pointwise work on whole images: dst = rule(src...), sample by sample, from one image or two.
#pragma once

#include "frame/images/walk.h"
#include "frame/runs/memory_runs.h"
#include "frame/runs/table_runs.h"

namespace tpx {

enum class Streaming { Never, Maybe };

// cached(len, d, s...) and streamed(len, d, s...) make a row. In place, where a source is the destination, its
// lines are in the caches already.
template <Streaming M, class T, class Cached, class Streamed, class... Src>
inline void walkPointwise(Extent e, Cached cached, Streamed streamed, const ImageView<T>& dst,
                          const ImageView<Src>&... src) {
    if constexpr (M == Streaming::Never) {
        walkJoined(e, cached, dst, src...);
    } else {
        const bool inPlace = (... || (static_cast<const void*>(src.data) == dst.data));
        walkStreaming(!inPlace && goesPastCaches(kStreamPointwise, trafficOf(e, dst, src...)), e, cached,
                      streamed, dst, src...);
    }
}

// Samples alike are one run, whatever pixels they belong to; what counts is alpha that stays. The work of
// several layouts is so compiled once.
constexpr Layout pointwiseLayout(Layout layout) { return layout == Layout::AC4 ? layout : Layout::C1; }

// A rule on registers of samples. Widths count samples; those of AC4 are of whole pixels whose alpha stays.
// Rows work with a copy of the rule, whose address goes nowhere: its constants stay in registers.
template <Layout L, Streaming M = Streaming::Maybe, class T, class Rule, class... Src>
inline void mapImage(Extent e, Rule rule, const ImageView<T>& dst, const ImageView<Src>&... src) {
    if constexpr (L == Layout::AC4)
        walkJoined(
            e,
            [&](ptrdiff_t len, T* d, const Src*... s) {
                Rule own = rule;
                applyKeepingAlpha<T>(d, len, own, s...);
            },
            dst, src...);
    else
        walkPointwise<M>(
            e,
            [&](ptrdiff_t len, T* d, const Src*... s) {
                Rule own = rule;
                applyRun(d, len, own, s...);
            },
            [&](ptrdiff_t len, T* d, const Src*... s) { streamRun(d, len, rule, s...); }, dst, src...);
}

// A rule whose constants differ by channel: rule(x, k), where k tells which of the registers that repeat with
// pixels of three samples is meant; it is 0 in the other layouts.
template <Layout L>
inline constexpr int kGroup = L == Layout::C3 ? 3 : 1;

template <Layout L, class T, class Rule>
inline void mapImageByChannel(Extent e, Rule rule, const ImageView<T>& dst, const ImageView<const T>& src) {
    const auto single = [](const Rule& own) {
        auto first = [own](auto x) { return own(x, 0); };
        if constexpr (kIsLight<Rule>)
            return Light{first};
        else
            return first;
    };
    if constexpr (L == Layout::C1 || L == Layout::AC4) {
        mapImage<L>(e, single(rule), dst, src);
    } else {
        const auto cached = [&](ptrdiff_t len, T* d, const T* s) {
            const Rule own = rule;
            if constexpr (L == Layout::C4)
                applyRun<4>(d, len, single(own), s);
            else
                mapGroups<kGroup<L>>(s, d, len, own);
        };
        const auto streamed = [&](ptrdiff_t len, T* d, const T* s) {
            // A line that is streamed begins with a pixel of four only if the row does.
            if (L == Layout::C4 && reinterpret_cast<uintptr_t>(d) % (4 * sizeof(T)) != 0)
                return cached(len, d, s);
            streamGroups<kGroup<L>>(s, d, len, rule,
                                    [&](T* to, ptrdiff_t n, const T* from) { cached(n, to, from); });
        };
        walkPointwise<Streaming::Maybe>(e, cached, streamed, dst, src);
    }
}

// Entries of tables by the samples' bits, of EntryBytes each.
template <Layout L, int EntryBytes, class S>
void mapImageByTables(TpxiSizeL roi, const Tables& tables, const ImageView<const S>& src, void* dst,
                      ptrdiff_t dstStep) {
    struct Entry {
        Tpx8u bytes[EntryBytes];
    };
    walkJoined(
        samplesOf(roi, channelsOf(L)),
        [&](ptrdiff_t len, const S* s, Entry* d) {
            lookupRow<L, S, EntryBytes>(s, reinterpret_cast<Tpx8u*>(d), len, tables);
        },
        src, ImageView<Entry>{static_cast<Entry*>(dst), dstStep});
}

} // namespace tpx
