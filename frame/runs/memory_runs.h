// SPDX-License-Identifier: Apache-2.0
// Moving and filling rows of bytes: the kernels under the run routines, the image copies and the image fills.
// Lengths are in bytes, from 0, and may exceed 32 bits; addresses need no alignment.
#pragma once

#include "frame/runs/runs.h"
#include "frame/runs/streaming.h"

namespace tpx {

// ---- Copies (frame/runs/memory_runs.cpp) --------------------------------------------------------------------

// Forwards. The ranges may overlap if the destination lies below the source.
void copyRow(void* dst, const void* src, int64_t bytes);

// From the end. The ranges may overlap if the destination lies above the source.
void copyRowBackward(void* dst, const void* src, int64_t bytes);

// Past the caches, line by line. The ranges do not overlap. The caller fences once, after its last row.
void copyRowStreaming(void* dst, const void* src, int64_t bytes);

// writeRun (frame/runs/runs.h) past the caches: dst[i...] = at(i, k), where k is the register's place in its
// group of G, as in mapGroups. fetch(i, n) asks for what n samples from i on will need, plain(i, n) writes them
// into the caches. The destination is no source. The caller fences once, after its last row.
//
// Stores past the caches leave the processor as whole lines if nothing else comes between the parts of a line,
// so results are gathered in a small block and moved out in one go. Four places are worked on side by side, and
// their sources are fetched ahead.
template <int G = 1, class D, class At, class Fetch, class Plain>
inline void writeRunStreaming(D* dst, ptrdiff_t len, At at, Fetch fetch, Plain plain) {
    constexpr ptrdiff_t L = kLanes<D>, kIteration = G * 128 / sizeof(D);
    constexpr ptrdiff_t kPage = G * 4096 / sizeof(D), kLongest = 16 * kPage;
    const auto iterate = [&]<int Places>(std::integral_constant<int, Places>, ptrdiff_t begin,
                                         ptrdiff_t apart) {
        alignas(kLineBytes) D block[Places * kIteration];
        for (int place = 0; place < Places; place++) fetch(begin + place * apart, kIteration);
        for (int place = 0; place < Places; place++)
            for (int k = 0; k < kIteration / L; k++)
                store(block + place * kIteration + k * L, at(begin + place * apart + k * L, k % G));
        for (int place = 0; place < Places; place++)
            for (int i = 0; i < kIteration; i += L)
                streamStore(dst + begin + place * apart + i, load(block + place * kIteration + i));
    };

    // The bulk begins on a line of the destination and with a group: a line's samples and G have no common
    // divisor.
    ptrdiff_t head = bytesToLine(dst) / ptrdiff_t(sizeof(D));
    while (head % G) head += kLineBytes / ptrdiff_t(sizeof(D));
    if (len < head + kIteration || bytesToLine(dst + head) != 0) return plain(0, len);
    if (head) plain(0, head);
    ptrdiff_t i = head;
    i += walkFourStreams(len - head, kIteration, kPage, kLongest, [&](ptrdiff_t at, ptrdiff_t apart) {
        iterate(std::integral_constant<int, 4>{}, head + at, apart);
    });
    for (; i + kIteration <= len; i += kIteration) iterate(std::integral_constant<int, 1>{}, i, 0);
    if (i < len) plain(i, len - i);
}

// convertRun, mapGroups (its rest by rest(dst, len, src)), applyRun and mapRun past the caches.
template <class S, class D, class Rule>
inline void convertRunStreaming(const S* src, D* dst, ptrdiff_t len, Rule rule) {
    writeRunStreaming(
        dst, len, [&](ptrdiff_t i, int) { return rule(src + i); },
        [&](ptrdiff_t i, int n) { fetchAhead(src + i, n * int(sizeof(S))); },
        [&](ptrdiff_t i, ptrdiff_t n) { convertRun(src + i, dst + i, n, rule); });
}
template <int G, class T, class Rule, class Rest>
inline void streamGroups(const T* src, T* dst, ptrdiff_t len, Rule&& rule, Rest&& rest) {
    writeRunStreaming<G>(
        dst, len, [&](ptrdiff_t i, int k) { return rule(load(src + i), k); },
        [&](ptrdiff_t i, int n) { fetchAhead(src + i, n * int(sizeof(T))); },
        [&](ptrdiff_t i, ptrdiff_t n) { rest(dst + i, n, src + i); });
}
template <class T, class Rule, class... Src>
inline void streamRun(T* dst, ptrdiff_t len, Rule&& rule, const Src*... src) {
    writeRunStreaming(
        dst, len, [&](ptrdiff_t i, int) { return rule(load(src + i)...); },
        [&](ptrdiff_t i, int n) { (fetchAhead(src + i, n * int(sizeof(Src))), ...); },
        [&](ptrdiff_t i, ptrdiff_t n) { applyRun(dst + i, n, rule, (src + i)...); });
}
template <class T, class Rule>
inline void mapRunStreaming(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    streamRun(dst, len, rule, src);
}

// ---- Fills ----------------------------------------------------------------------------------------------

// A sample or pixel repeated. Every pixel of one, three or four samples of up to 4 bytes divides the period,
// and three registers more than the period may be read from any phase of it.
struct Pattern {
    static constexpr int kPeriod = 48;
    alignas(16) Tpx8u bytes[kPeriod + 3 * sizeof(Vec<Tpx32f>)];
};

// Where byte i of a pattern of pixels lies in the pixel, by the size of the pixel.
struct PatternPhases {
    static constexpr int kLargestPixel = 16;
    alignas(16) Tpx8u of[kLargestPixel + 1][Pattern::kPeriod];
    constexpr PatternPhases() : of{} {
        for (int size = 1; size <= kLargestPixel; size++)
            for (int i = 0; i < Pattern::kPeriod; i++) of[size][i] = static_cast<Tpx8u>(i % size);
    }
};
inline constexpr PatternPhases kPatternPhases;

// pixelBytes is at most 16 and divides the period: 1, 2, 3, 4, 6, 8, 12 or 16.
inline Pattern makePattern(const void* pixel, int pixelBytes) {
    constexpr int kPieces = Pattern::kPeriod / int(sizeof(V8u));
    V8u one{};
    copyShort(&one, pixel, pixelBytes);
    V8u period[kPieces];
    for (int i = 0; i < kPieces; i++) {
        const V8u phases = load(kPatternPhases.of[pixelBytes] + i * int(sizeof(V8u)));
        period[i] = shuffleBytes(one, phases);
    }
    Pattern pattern;
    for (int i = 0; i < int(sizeof pattern.bytes / sizeof(V8u)); i++)
        store(pattern.bytes + i * int(sizeof(V8u)), period[i % kPieces]);
    return pattern;
}

// Repeats the pattern from its first byte on; a cut piece may end the row.
void fillRow(void* dst, int64_t bytes, const Pattern& pattern);

// The same past the caches. The caller fences once, after its last row.
void fillRowStreaming(void* dst, int64_t bytes, const Pattern& pattern);

} // namespace tpx
