// SPDX-License-Identifier: Apache-2.0
// Between which levels a sample lies.
//
// The rank of a sample among levels is how many of them are not above it, so that rank k + 1 means
// levels[k] <= x < levels[k + 1], 0 below all levels, their count at or above the last. NaN has rank 0. That
// needs levels which rise; among others the rank is k + 1 for the first interval k that holds the sample, 0 if
// none does. Levels may lie at any address.
#pragma once

#include "frame/simd/simd.h"

namespace tpx {

// Whether no level is below the one before it, and none is NaN.
template <class T>
inline bool levelsRise(const T* levels, ptrdiff_t count) {
    bool rise = true;
    for (ptrdiff_t k = 1; k < count; k++) rise &= peek(levels + k - 1) <= peek(levels + k);
    return rise;
}

// ---- Ways to rank a register of samples ------------------------------------------------------------------

inline void storeRanks(B32f from, Tpx32s* ranks) { __builtin_memcpy(ranks, &from, sizeof from); }
inline void storeRanks(Pair<V32s> from, Tpx32s* ranks) {
    store(ranks, from.low);
    store(ranks + 4, from.high);
}

// Levels at even distances: the distance from the first tells the rank but for one comparison. With 0.5 added,
// a level of index j comes to about j + 0.5. If it truly lies in j..j + 1, then a sample from there to the next
// level comes to j or j + 1, since every operation keeps the order of samples, and is compared with that level.
struct EvenRanks {
    const Tpx32f* levels;
    ptrdiff_t count;
    Tpx32f first, scale;

    EvenRanks(const Tpx32f* levels_, ptrdiff_t count_) : levels(levels_), count(count_) {
        first = peek(levels);
        scale = Tpx32f(count - 1) / (peek(levels + count - 1) - first);
    }
    // The comparison turns what NaN gives to 0.
    V32f estimate(V32f x) const {
        const V32f even = (x - splat<V32f>(first)) * splat<V32f>(scale) + splat<V32f>(0.5f);
        return minOf(maxOf(even, V32f{}), splat<V32f>(Tpx32f(count - 1)));
    }
    void operator()(V32f x, Tpx32s* ranks) const {
        storeRanks(toIntegerTruncatedJoined(estimate(x)), ranks);
        for (int i = 0; i < 8; i++) ranks[i] += peek(levels + ranks[i]) <= x[i];
    }
    bool holds() const {
        if (count < kLanes<Tpx32f> || count > 1 << 22) return false; // more are beyond single precision
        const auto holdsFrom = [&](ptrdiff_t k) {
            const V32f index = V32f{0, 1, 2, 3, 4, 5, 6, 7} + splat<V32f>(Tpx32f(k));
            const V32f estimated = estimate(load(levels + k));
            return !any((estimated < index) | (estimated >= index + splat<V32f>(1)));
        };
        bool all = holdsFrom(count - kLanes<Tpx32f>);
        for (ptrdiff_t k = 0; all && k + kLanes<Tpx32f> <= count; k += kLanes<Tpx32f>) all = holdsFrom(k);
        return all;
    }
};

inline V32f oneWhereNotAbove(Tpx32f level, V32f x) {
    return masked(lessOrEqual(splat<V32f>(level), x), splat<V32f>(1.0f));
}

// A few levels that rise: every one is compared.
struct CountedRanks {
    const Tpx32f* levels;
    ptrdiff_t count;

    void operator()(V32f x, Tpx32s* ranks) const {
        V32f rank{};
        for (ptrdiff_t k = 0; k < count; k++) rank += oneWhereNotAbove(peek(levels + k), x);
        storeRanks(toInteger(rank), ranks);
    }
};

// Many levels that rise: comparisons with the first levels of sections, then, side by side, eight searches by
// halves within a section.
struct HalvedRanks {
    static constexpr int kSections = 16;
    const Tpx32f* levels;
    Tpx32s section, lastBegin;    // levels of a section; where the last one begins, which may overlap others
    Tpx32f begins[kSections - 1]; // NaN for sections that are not there

    HalvedRanks(const Tpx32f* levels_, ptrdiff_t count)
        : levels(levels_),
          section(Tpx32s((count + kSections - 1) / kSections)),
          lastBegin(Tpx32s(count) - section) {
        for (ptrdiff_t k = 1; k < kSections; k++)
            begins[k - 1] = k * section < count ? peek(levels + k * section) : __builtin_nanf("");
    }

    void operator()(V32f x, Tpx32s* ranks) const {
        V32f sums[3] = {}; // each has to wait for its additions one by one
#pragma GCC unroll 16
        for (int k = 0; k < kSections - 1; k++) sums[k % 3] += oneWhereNotAbove(begins[k], x);
        const V32f passed = sums[0] + sums[1] + sums[2];
        const Pair<V32s> index = toInteger(passed);
        const auto begin = [&](V32s i) { return minOf(i * splat<V32s>(section), splat<V32s>(lastBegin)); };
        Tpx32s at[8];
        storeRanks({begin(index.low), begin(index.high)}, at);
        Tpx32s left = section;
        while (left > 1) {
            const Tpx32s half = left / 2;
            for (int i = 0; i < 8; i++) at[i] += peek(levels + (at[i] + half)) <= x[i] ? half : 0;
            left -= half;
        }
        for (int i = 0; i < 8; i++) ranks[i] = at[i] + (peek(levels + at[i]) <= x[i]);
    }
};

// Any levels: the first interval that holds the sample.
struct FirstRanks {
    const Tpx32f* levels;
    ptrdiff_t count;

    void operator()(V32f x, Tpx32s* ranks) const {
        V32f rank{};
        for (ptrdiff_t k = count - 2; k >= 0; k--) {
            const B32f within = (splat<V32f>(peek(levels + k)) <= x) & (x < splat<V32f>(peek(levels + k + 1)));
            rank = select(within, bitsAs<V32f>(B32f{} + Tpx32s(k + 1)), rank);
        }
        __builtin_memcpy(ranks, &rank, sizeof rank);
    }
};

enum class Ranking { Even, First, Counted, Halved };

// The way for at least two levels, of `samples` to be ranked: the even one costs a look at every level.
inline Ranking rankingOf(const Tpx32f* levels, ptrdiff_t count, uint64_t samples) {
    constexpr ptrdiff_t kFew = 8;
    if (count > kFew && uint64_t(count) < samples && EvenRanks(levels, count).holds()) return Ranking::Even;
    if (!levelsRise(levels, count)) return Ranking::First;
    return count <= kFew ? Ranking::Counted : Ranking::Halved;
}

// Hands the way to body(rank), where rank(x, ranks) stores the ranks of a register of samples.
template <class Body>
inline void withRanks(Ranking ranking, const Tpx32f* levels, ptrdiff_t count, Body body) {
    switch (ranking) {
        case Ranking::Even:
            return body(EvenRanks(levels, count));
        case Ranking::First:
            return body(FirstRanks{levels, count});
        case Ranking::Counted:
            return body(CountedRanks{levels, count});
        case Ranking::Halved:
            return body(HalvedRanks(levels, count));
    }
}

} // namespace tpx
