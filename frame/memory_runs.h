// Moving and filling rows of bytes: the kernels under the run routines, the image copies and the image fills.
// Lengths are in bytes, from 0, and may exceed 32 bits; addresses need no alignment.
#pragma once

#include "frame/runs.h"

namespace tpx {

// ---- Copies (frame/memory_runs.cpp) ------------------------------------------------------------------------

// Forwards. The ranges may overlap if the destination lies below the source.
void copyRow(void* dst, const void* src, int64_t bytes);

// From the end. The ranges may overlap if the destination lies above the source.
void copyRowBackward(void* dst, const void* src, int64_t bytes);

// Past the caches, line by line. The ranges do not overlap. The caller fences once, after its last row.
void copyRowStreaming(void* dst, const void* src, int64_t bytes);

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
