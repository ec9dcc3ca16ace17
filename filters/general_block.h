// SPDX-License-Identifier: Apache-2.0
// The caller's block of the general filter: its record, the areas behind it, and the sizes of block and buffer.
#pragma once

#include "filters/border_model.h"
#include "frame/entry/checks.h"

namespace tpx {

enum class FilterKind : Tpx32s {
    Integers8u,
    Integers16s,
    Integers16u,
    Floats8u,
    Floats16s,
    Floats16u,
    Floats32f
};

enum class DivisorClass : Tpx32s { One, PowerOfTwo, Other };

// What sums of an integer kernel fit into, whatever the samples.
enum class SumWidth : Tpx32s { Bits16, Bits32, Bits64 };

} // namespace tpx

// At the caller's address rounded up to a line of the caches. Order, types and the size of the head are
// contract.
struct TpxiFilterBorderBlock {
    tpx::FilterKind kind;
    Tpx32s kernelWidth, kernelHeight;
    tpx::DivisorClass divisorClass;
    Tpx32s shift, half; // of a power of two: its logarithm, and half of it
    Tpx32f inverse;     // of the divisor
    Tpx32f scaleBase;   // the divisor; of a power of two the inverse
    Tpx32s divisor;
    Tpx64f scaleBase64;
    Tpx32s lowMask;
    Tpx32f divisorF;
    TpxRoundMode roundMode;
    Tpx32s offset;
    Tpx32f offsetF; // of integers times scaleBase: it is added to sums
    TpxHintAlgorithm hint;
    Tpx16s* kernel16; // coefficients from the last to the first
    Tpx32f* kernel32;
    Tpx32s* pairTable;      // in order, two neighbours of a row in one number, each four times
    Tpx32f* kernelExpanded; // in order, each four times
    Tpx32s pairsUsable;
    Tpx32s numChannels;
    // Beyond the contract:
    tpx::SumWidth sumWidth;
    Tpx32s sumBias, sumMost; // the magnitudes of the least and of the largest sum, where sums have 16 bits
};

namespace tpx {

using FilterBlock = TpxiFilterBorderBlock;

inline constexpr int64_t kFilterHead = 128;

inline FilterBlock* blockIn(TpxiFilterBorderBlock* spec) { return alignUp(spec); }
inline const FilterBlock* blockIn(const TpxiFilterBorderBlock* spec) { return alignUp(spec); }

// The first area behind the head holds kernel16 or kernel32, the second pairTable or kernelExpanded.
template <class T>
T* firstArea(FilterBlock* block) {
    return reinterpret_cast<T*>(reinterpret_cast<Tpx8u*>(block) + kFilterHead);
}
template <class T>
T* secondArea(FilterBlock* block, int64_t coefficients, int64_t coefficientBytes) {
    return reinterpret_cast<T*>(firstArea<Tpx8u>(block) +
                                roundUp(uint64_t(coefficients * coefficientBytes), kBlockAlignment));
}

// Two rows of results are worked on side by side, so each pair of source rows has two pairs of coefficients a
// column: those under it for the upper result and for the lower one, which lies a row further down. They follow
// the pair table, for which the contract has twice the room that it takes.
constexpr int64_t rowPairsOf(int64_t kernelHeight) { return kernelHeight / 2 + 1; }
inline const Tpx32s* rowPairTable(const FilterBlock& block) {
    const int64_t groups = (block.kernelWidth + 1) / 2;
    return block.pairTable + groups * 4 * block.kernelHeight;
}

// Whether a kernel of 16-bit integers becomes one of floats.
constexpr bool becomesFloat(TpxiSize kernel, TpxDataType type, int channels) {
    if (type == tpxDataType16u) return true;
    return type == tpxDataType16s && (channels == 3 || channels == 4 || kernel.width == 1 ||
                                      kernel.height == 1 || (channels == 1 && kernel.width < 3));
}

// ---- Sizes ------------------------------------------------------------------------------------------------

// a * b, or what is past any size.
constexpr int64_t cappedProduct(int64_t a, int64_t b) {
    constexpr int64_t kPastAll = int64_t(1) << 40;
    return b != 0 && a > kPastAll / b ? kPastAll : a * b;
}
constexpr int64_t even(int64_t n) { return (n + 1) & ~int64_t(1); }
constexpr int64_t roundUpTo4(int64_t n) { return (n + 3) & ~int64_t(3); }

// The part of the buffer for border strips or the whole copy.
constexpr int64_t stripBytes(TpxiSizeL kernel, TpxiSizeL roi, int sampleBytes, int channels) {
    int64_t pixels = 0;
    if (kernel.width < roi.width && kernel.height < roi.height) {
        // A mirrored side of 2 takes one more pixel; it has its room at any border.
        const Reach reach = reachOf(kernel);
        const int64_t right = reach.right + (kernel.width == 2), bottom = reach.bottom + (kernel.height == 2);
        if (bottom > 0) pixels = cappedProduct(kernel.width - 1 + roi.width, kernel.height - 1 + bottom);
        if (right > 0) {
            const int64_t side = cappedProduct(kernel.height - 1 + roi.height, kernel.width - 1 + right);
            pixels = side > pixels ? side : pixels;
        }
    } else {
        pixels = cappedProduct(kernel.width - 1 + roi.width, kernel.height - 1 + roi.height);
    }
    return int64_t(roundUp(uint64_t(pixels) * uint64_t(sampleBytes * channels), 32)) + 32;
}

// The part behind it, by contract. Calls do without: what they keep fits the stack.
constexpr int64_t kernelWorkBytes(TpxiSizeL kernel, int64_t width, TpxDataType type, bool floats,
                                  int channels) {
    const int64_t w = kernel.width, h = kernel.height, R = width, wh = cappedProduct(w, h), N = channels;
    const bool column = w == 1, row = h == 1;
    int64_t bytes = 0;
    if (N == 2) {
        bytes = 0;
    } else if (!floats && type == tpxDataType8u) {
        if (column)
            bytes = N * (80 * h + 8 * roundUpTo4(R));
        else if (row)
            bytes = N == 4 ? 16 * (w + R) : 4 * roundUpTo4(N * R + 4 * w);
        else if (N == 1)
            bytes = 4 * ((8 * cappedProduct(even(w), h) + 7 + R) & ~int64_t(7));
        else
            bytes = N == 4 ? 16 * (wh + R) : 4 * roundUpTo4(4 * wh + N * R);
    } else if (!floats && type == tpxDataType16s) {
        bytes = 4 * roundUpTo4(4 * wh + R);
    } else if (floats && type == tpxDataType32f) {
        bytes = N == 1 ? 32 * wh : 16 * wh;
    } else if (floats && type == tpxDataType8u && column) {
        bytes = N == 4 ? 4 * (4 * (even(h) + R) + 12) : 4 * ((3 * R + 14 + 4 * even(h)) & ~int64_t(3));
    } else if (floats && type == tpxDataType8u && row) {
        bytes = 16 * N * R;
    } else if (floats && type == tpxDataType16s && N == 1 && column) {
        bytes = 4 * ((R + 7) & ~int64_t(3));
    } else if (floats && row) {
        bytes = 8 * N * R;
    } else if (floats && column) {
        bytes = N == 4 ? 16 * (h + R) : 4 * roundUpTo4(N * R + 4 * h);
    } else if (floats && type == tpxDataType16u && N == 1) {
        bytes = 4 * ((R + 10) & ~int64_t(3));
    } else if (floats) {
        bytes =
            N == 4 ? 16 * wh + 64 * R : 8 * roundUpTo4(N * R) + 4 * ((4 * wh + 10 + 2 * N * R) & ~int64_t(3));
    }
    return bytes == 0 ? 0 : (bytes + 191) & ~int64_t(63);
}

constexpr int64_t blockBytes(TpxiSizeL kernel, bool floats) {
    const int64_t coefficients = cappedProduct(kernel.width, kernel.height);
    return int64_t(roundUp(uint64_t(cappedProduct(even(kernel.width) * 16, kernel.height)), 64)) + 191 +
           int64_t(roundUp(uint64_t(coefficients * (floats ? 4 : 2)), 64));
}

} // namespace tpx
