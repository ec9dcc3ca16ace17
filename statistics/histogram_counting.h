// SPDX-License-Identifier: Apache-2.0
// Ways to count samples: in a table with an entry for every value, whose sections are the bins; or by ranks
// among levels, in blocks of one channel.
#pragma once

#include "frame/images/walk.h"
#include "frame/runs/runs.h"
#include "statistics/histogram_spec.h"
#include "statistics/levels.h"

namespace tpx {

// ---- Tables of all values --------------------------------------------------------------------------------

// Equal samples must not wait for each other's count: neighbours are counted in tables of their own. These
// begin at different places within a page, lest their addresses be mistaken for each other's.
template <int C>
struct ByteTables {
    static constexpr int kTables = C == 1 ? 4 : 2 * C, kBlock = C == 3 ? 24 : 8;
    Tpx32u counts[kTables][256 + 16] = {};

    void run(const Tpx8u* src, ptrdiff_t len) {
        ptrdiff_t i = 0;
        for (; i + kBlock <= len; i += kBlock) {
            fetchAhead(src + i, kBlock);
            for (int w = 0; w < kBlock; w += 8) {
                const Tpx64u word = peek(reinterpret_cast<const Tpx64u*>(src + i + w));
#pragma GCC unroll 8
                for (int j = 0; j < 8; j++) counts[(w + j) % kTables][Tpx8u(word >> 8 * j)]++;
            }
        }
        for (int table = 0; i < len; i++, table = (table + 1) % kTables) counts[table][src[i]]++;
    }
    // One table of a channel.
    const Tpx32u* merge(int channel) {
        for (int t = channel + C; t < kTables; t += C)
            for (int v = 0; v < 256; v += kLanes<Tpx32u>)
                store(&counts[channel][v], load(&counts[channel][v]) + load(&counts[t][v]));
        return counts[channel];
    }
};

template <class T>
constexpr Tpx32s entryOf(Tpx32s level) {
    return clampTo(level, kMin<T>, kMax<T> + 1) - kMin<T>;
}

inline Tpx32u sumEntries(const Counter* table, ptrdiff_t begin, ptrdiff_t end) {
    Tpx32u sum = 0;
    if (end - begin >= 16) {
        V32u sums[2] = {};
        for (; begin + 8 <= end; begin += 8)
            for (int j = 0; j < 2; j++)
                sums[j] += bitsAs<V32u>(load(reinterpret_cast<const Tpx8u*>(table + begin + 4 * j)));
        sums[0] += sums[1];
        for (int j = 0; j < 4; j++) sum += sums[0][j];
    }
    for (; begin < end; begin++) sum += table[begin];
    return sum;
}

// The bins of levels that are integers.
template <class T>
void sumBins(const Counter* table, const Tpx32s* levels, ptrdiff_t count, Counter* hist) {
    Tpx32s begin = entryOf<T>(peek(levels));
    for (ptrdiff_t k = 0; k + 1 < count; k++) {
        const Tpx32s end = entryOf<T>(peek(levels + k + 1));
        hist[k] = end - begin == 1 ? table[begin] : sumEntries(table, begin, end);
        begin = end;
    }
}

// Counts 16-bit samples in a table for each channel. Where they are alike, a register of them is one count.
template <int C, class T>
void countSamples(const T* src, ptrdiff_t len, Counter* const* tables) {
    constexpr ptrdiff_t kStep = kLanes<T> * C;
    ptrdiff_t i = 0;
    for (; i + kStep <= len; i += kStep) {
        fetchAhead(src + i, kStep * int(sizeof(T)));
        if constexpr (C == 1) {
            const Vec<T> x = load(src + i);
            const T first = x[0];
            if (!any(x != splat<Vec<T>>(first))) {
                tables[0][first - kMin<T>] += kStep;
                continue;
            }
        }
#pragma GCC unroll 32
        for (int j = 0; j < kStep; j++) tables[j % C][peek(src + i + j) - kMin<T>]++;
    }
    for (; i < len; i += C)
#pragma GCC unroll 4
        for (int c = 0; c < C; c++) tables[c][peek(src + i + c) - kMin<T>]++;
}

// ---- Blocks of floats ------------------------------------------------------------------------------------

constexpr ptrdiff_t kBlock = 256;

// One channel of an image of any type: how far it has been read, and how the next block is.
struct Channel {
    const void* row;
    ptrdiff_t step, width, height, x;
    int channel;
    ptrdiff_t (*next)(Channel&, Tpx32f* block);
};

// The next block of a channel's samples, filled up to whole registers by NaN, which no level is below. Gives
// how many there are; 0 at the end.
template <class T, int C>
ptrdiff_t nextBlock(Channel& c, Tpx32f* block) {
    if (c.x == c.width) {
        if (--c.height == 0) return 0;
        c.x = 0;
        c.row = addBytes(static_cast<const T*>(c.row), c.step);
    }
    constexpr ptrdiff_t kPixels = 16 / sizeof(T);
    const ptrdiff_t left = c.width - c.x, len = left < kBlock ? left : kBlock;
    const T* src = static_cast<const T*>(c.row) + c.x * C;
    const auto takePixels = [&](const T* from, Tpx32f* to) {
        T samples[kPixels];
        if constexpr (C == 1) {
            __builtin_memcpy(samples, from, sizeof samples);
        } else if constexpr (std::is_same_v<T, Tpx32f>) { // four loads are less than to take pixels apart
            for (ptrdiff_t j = 0; j < kPixels; j++) samples[j] = peek(from + j * C + c.channel);
        } else {
            Several<V8u, C> pixels;
            __builtin_memcpy(&pixels, from, sizeof pixels);
            const Several<V8u, C> planes = deinterleave<int(sizeof(T))>(pixels);
            __builtin_memcpy(samples, &planes.at[c.channel], sizeof samples);
        }
        if constexpr (std::is_same_v<T, Tpx32f>)
            __builtin_memcpy(to, samples, sizeof samples);
        else
            store(to, loadAs<Tpx32f>(samples));
    };
    ptrdiff_t i = 0;
    for (; i + kPixels <= len; i += kPixels) {
        prefetch(
            addBytes(src, (i + kBlock) * C * ptrdiff_t(sizeof(T)))); // read when this block has been counted
        takePixels(src + i * C, block + i);
    }
    if (i < len) {
        T pixels[kPixels * C] = {};
        copyBlock(pixels, src + i * C, (len - i) * C * ptrdiff_t(sizeof(T)));
        takePixels(pixels, block + i);
    }
    store(block + len, splat<V32f>(__builtin_nanf("")));
    c.x += len;
    return len;
}

template <int C, class T>
Channel channelOf(ImageView<const T> src, Extent pixels, int channel) {
    return {src.data, src.step, pixels.width, pixels.height, 0, channel, nextBlock<T, C>};
}

// Uniform levels of integers at an exact distance: the distance from the first by division. A quotient may be
// rounded up to the number of bins.
struct DividedRanks {
    Tpx32f first, last, step;
    Tpx32s bins;

    void operator()(V32f x, Tpx32s* ranks) const {
        const V32f quotient = (x - splat<V32f>(first)) / splat<V32f>(step);
        const Pair<V32s> bin = toIntegerTruncated(minOf(quotient, splat<V32f>(2147483520.0f)));
        const Pair<V32s> inside = split((splat<V32f>(first) <= x) & (x < splat<V32f>(last)));
        const auto half = [&](V32s b, V32s mask) {
            return (minOf(b, splat<V32s>(bins - 1)) + splat<V32s>(1)) & mask;
        };
        storeRanks({half(bin.low, inside.low), half(bin.high, inside.high)}, ranks);
    }
};

inline void clearBins(Counter* hist, ptrdiff_t bins) {
    for (ptrdiff_t k = 0; k < bins; k++) hist[k] = 0;
}

// Counts a channel on by the ranks of its samples. As with bytes, neighbours are counted in tables of their
// own; these have an entry for each rank. Where there are too many levels for that, samples go straight to
// their bins.
template <class Rank>
void countRanks(Channel channel, const Rank& rank, ptrdiff_t nLevels, Counter* hist) {
    constexpr ptrdiff_t kEntries = 512;
    constexpr int kTables = 4;
    const ptrdiff_t bins = nLevels - 1;
    Tpx32f block[kBlock + 8];
    Tpx32s ranks[8];
    if (nLevels < kEntries) {
        Tpx32u counts[kTables][kEntries + 16];
        for (auto& table : counts)
            for (ptrdiff_t r = 0; r <= nLevels; r++) table[r] = 0;
        while (const ptrdiff_t len = channel.next(channel, block))
            for (ptrdiff_t i = 0; i < len; i += 8) {
                rank(load(block + i), ranks);
#pragma GCC unroll 8
                for (int j = 0; j < 8; j++) counts[j % kTables][ranks[j]]++;
            }
        for (ptrdiff_t k = 0; k < bins; k++)
            hist[k] += counts[0][k + 1] + counts[1][k + 1] + counts[2][k + 1] + counts[3][k + 1];
        return;
    }
    while (const ptrdiff_t len = channel.next(channel, block))
        for (ptrdiff_t i = 0; i < len; i += 8) {
            rank(load(block + i), ranks);
            for (int j = 0; j < 8; j++) {
                const ptrdiff_t bin = ptrdiff_t(ranks[j]) - 1;
                const bool inside = bin >= 0 && bin < bins;
                hist[inside ? bin : 0] += inside;
            }
        }
}

} // namespace tpx
