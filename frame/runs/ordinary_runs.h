// SPDX-License-Identifier: Apache-2.0
// Loops over runs of samples most of which are ordinary: a rule that is short for those, and long for all.
//
// A rule is a class with
//   ordinary(x...)         whether every lane of one register, or of four, is ordinary
//   brief(x)               the result for ordinary lanes
//   full(x, i)             the result for any lanes, that of brief() for ordinary ones; i is the index of the
//                          register's first sample. Registers come in any order, and samples may come twice,
//                          but none comes after it was overwritten.
// So every sample has the same result wherever it stands, as with the loops of frame/runs/runs.h.
#pragma once

#include "frame/runs/memory_runs.h"

namespace tpx {

// Where many copies of it would stand.
template <class T, class Rule>
[[gnu::noinline]] Vec<T> fullOutOfLine(Rule& rule, Vec<T> x, ptrdiff_t i) {
    return rule.full(x, i);
}

// dst[i] = rule of src[i]; both may be the same. `from` is the index of the first.
//
// Four registers are looked at together, and before any work on them. Loops of ordinary blocks and of others
// take turns: in neither is there a call, beside which no constant would stay in a register, and both are good
// for whole images of their kind.
template <class T, class Rule>
inline void applyMostlyOrdinary(T* dst, ptrdiff_t len, Rule& rule, const T* src, ptrdiff_t from = 0) {
    constexpr ptrdiff_t L = kLanes<T>, kBlock = 4 * L;
    const auto fewSamples = [&](ptrdiff_t begin, ptrdiff_t n) {
        const T* s = src + begin;
        writeRun(
            dst + begin, n, 0,
            [&](ptrdiff_t i) { return fullOutOfLine<T>(rule, load(s + i), from + begin + i); },
            [&] { return fullOutOfLine<T>(rule, loadShort(s, n), from + begin); });
    };
    ptrdiff_t i = samplesToBoundary(dst) < len ? samplesToBoundary(dst) : len;
    if (i) fewSamples(0, i);

    // Whether the next block is there, and is what the loop is for.
    const auto goesOn = [&](ptrdiff_t at, bool ordinary) {
        const T* s = src + at;
        return at + kBlock <= len &&
               rule.ordinary(load(s), load(s + L), load(s + 2 * L), load(s + 3 * L)) == ordinary;
    };
    const auto block = [&](ptrdiff_t at, auto of) {
        fetchAhead(src + at, kBlock * ptrdiff_t(sizeof(T)));
        const Vec<T> a = of(at), b = of(at + L), c = of(at + 2 * L), d = of(at + 3 * L);
        store(dst + at, a);
        store(dst + at + L, b);
        store(dst + at + 2 * L, c);
        store(dst + at + 3 * L, d);
    };
    const auto brief = [&](ptrdiff_t at) { return rule.brief(load(src + at)); };
    const auto full = [&](ptrdiff_t at) { return rule.full(load(src + at), from + at); };
    while (i + kBlock <= len) {
        for (; goesOn(i, true); i += kBlock) block(i, brief);
        for (; goesOn(i, false); i += kBlock) block(i, full);
    }
    if (i < len) fewSamples(i, len - i);
}

// The same past the caches. The destination is no source, and the caller fences.
template <class T, class Rule>
inline void streamMostlyOrdinary(T* dst, ptrdiff_t len, Rule& rule, const T* src, ptrdiff_t from = 0) {
    writeRunStreaming(
        dst, len,
        [&](ptrdiff_t i, int) {
            const Vec<T> x = load(src + i);
            return rule.ordinary(x) ? rule.brief(x) : fullOutOfLine<T>(rule, x, from + i);
        },
        [&](ptrdiff_t i, int n) { fetchAhead(src + i, n * int(sizeof(T))); },
        [&](ptrdiff_t i, ptrdiff_t n) { applyMostlyOrdinary(dst + i, n, rule, src + i, from + i); });
}

} // namespace tpx
