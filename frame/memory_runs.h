// Moving and filling rows of bytes: the kernels under the run routines, the image copies and the image fills.
// Lengths are in bytes, from 0, and may exceed 32 bits; addresses need no alignment.
#pragma once

#include "frame/runs.h"
#include "frame/streaming.h"

namespace tpx {

// ---- Copies (frame/memory_runs.cpp) ------------------------------------------------------------------------

// Forwards. The ranges may overlap if the destination lies below the source.
void copyRow(void* dst, const void* src, int64_t bytes);

// From the end. The ranges may overlap if the destination lies above the source.
void copyRowBackward(void* dst, const void* src, int64_t bytes);

// Past the caches, line by line. The ranges do not overlap. The caller fences once, after its last row.
void copyRowStreaming(void* dst, const void* src, int64_t bytes);

// dst[i] = rule(src[i], ...) past the caches, from one source or more, none of them the destination. The caller
// fences once, after its last row.
//
// Stores past the caches leave the processor as whole lines if nothing else comes between the parts of a line,
// so results are gathered in a small block and moved out in one go. Four pages are worked on side by side and
// their sources fetched ahead, since memory serves several streams faster than one.
//
// rule(k, x...) is told the register's place in its group of G, as in mapGroups; rest(dst, len, src...) writes
// what does not fill a turn, into the caches.
template <int G, class T, class Rule, class Rest, class... Src>
inline void streamGroups(T* dst, ptrdiff_t len, Rule&& rule, Rest&& rest, const Src*... src) {
    constexpr ptrdiff_t L = kLanes<T>, kTurn = G * 128 / sizeof(T), kPage = G * 4096 / sizeof(T), kAhead = 512;
    const auto fetch = [](const auto* p) {
        for (int line = 0; line < kTurn * int(sizeof(T)); line += kLineBytes)
            _mm_prefetch(reinterpret_cast<const char*>(p) + kAhead + line, _MM_HINT_T0);
    };
    const auto turns = [&]<int Pages>(std::integral_constant<int, Pages>, ptrdiff_t at) {
        alignas(kLineBytes) T block[Pages * kTurn];
        for (int page = 0; page < Pages; page++) (fetch(src + at + page * kPage), ...);
        for (int page = 0; page < Pages; page++)
            for (int i = 0; i < kTurn / L; i++)
                store(block + page * kTurn + i * L, rule(i % G, load(src + at + page * kPage + i * L)...));
        for (int page = 0; page < Pages; page++)
            for (int i = 0; i < kTurn; i += L)
                streamStore(dst + at + page * kPage + i, load(block + page * kTurn + i));
    };

    // The bulk begins on a line of the destination and with a group: a line's samples and G have no common
    // divisor.
    ptrdiff_t head = bytesToLine(dst) / ptrdiff_t(sizeof(T));
    while (head % G) head += kLineBytes / ptrdiff_t(sizeof(T));
    if (len < head + kTurn || bytesToLine(dst + head) != 0) return rest(dst, len, src...);
    if (head) rest(dst, head, src...);
    ptrdiff_t i = head;
    for (; i + 4 * kPage <= len; i += 4 * kPage)
        for (ptrdiff_t j = 0; j < kPage; j += kTurn) turns(std::integral_constant<int, 4>{}, i + j);
    for (; i + kTurn <= len; i += kTurn) turns(std::integral_constant<int, 1>{}, i);
    if (i < len) rest(dst + i, len - i, (src + i)...);
}
template <class T, class Rule, class... Src>
inline void streamRun(T* dst, ptrdiff_t len, Rule&& rule, const Src*... src) {
    streamGroups<1>(
        dst, len, [&](int, auto... x) { return rule(x...); },
        [&](T* d, ptrdiff_t n, const Src*... s) { applyRun(d, n, rule, s...); }, src...);
}
template <class T, class Rule>
inline void mapRunStreaming(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    streamRun(dst, len, rule, src);
}

// ---- Fills -------------------------------------------------------------------------------------------------

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
        period[i] = V8u(_mm_shuffle_epi8(__m128i(one), __m128i(phases)));
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
