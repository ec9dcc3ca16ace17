// SPDX-License-Identifier: Apache-2.0
// Region kernels of medians by counting samples, for masks of integers that are too large for networks.
//
// ColumnMedian: 8-bit samples under masks that are not too large, at a cost that does not depend on the mask.
// WideColumnMedian: 8-bit samples under larger ones, at a cost that hardly does.
// SlidingMedian: 16-bit samples under any mask, at a cost that grows with its height.
#pragma once

#include "filters/median_kernels.h"

namespace tpx {

// ---- Histograms of columns --------------------------------------------------------------------------------

// Perreault and Hebert, Median Filtering in Constant Time, IEEE Transactions on Image Processing 16 (9), 2007:
// every column of the window has a histogram, moved down by a sample a row; that of the window is moved to the
// right by a column a result, its sixteenths only when the median lies in them. Here histograms are cumulative,
// so a sample is added to one, and the rank looked for in one, by an instruction.
struct ColumnHistogram {
    // Samples up to the end of each sixteenth, and of each sixteenth those up to each value.
    alignas(16) Tpx8u coarse[16], fine[16][16];
};

// What a sample adds to a cumulative histogram of 16 values.
struct CumulativeSteps {
    alignas(16) Tpx8u from[16][16];
    constexpr CumulativeSteps() : from{} {
        for (int value = 0; value < 16; value++)
            for (int i = value; i < 16; i++) from[value][i] = 1;
    }
};
inline constexpr CumulativeSteps kSteps;

// filterBand(source from the first window on, destination, size), a channel and so many columns at a time.
template <Layout L, class Filter>
void forBands(const Region<Tpx8u, Tpx8u>& region, TpxiSizeL mask, int64_t band, Filter filterBand) {
    constexpr int N = channelsOf(L);
    for (int64_t x = 0; x < region.size.width; x += band) {
        const int64_t left = region.size.width - x, width = left < band ? left : band;
        for (int c = 0; c < coloursOf(L); c++)
            filterBand(region.src.from((x - mask.width / 2) * N + c, -(mask.height / 2)),
                       region.dst.from(x * N + c, 0), TpxiSizeL{width, region.size.height});
    }
}

template <Layout L>
class ColumnMedian {
    static constexpr int N = channelsOf(L);
    static constexpr int kColumns = 160, kLargestWidth = 129;
    using Counts = Pair<V16u>; // of a window's 16 values

 public:
    // Counts of a column have 8 bits, those of a window 15. Columns of a band lie on the stack, beside a band
    // of a border.
    static bool serves(TpxiSizeL mask) { return mask.width <= kLargestWidth && mask.height <= 255; }

    explicit ColumnMedian(TpxiSizeL mask) : mask_(mask) {}

    void operator()(const Region<Tpx8u, Tpx8u>& region) const {
        forBands<L>(region, mask_, kColumns - (mask_.width - 1),
                    [this](auto src, auto dst, TpxiSizeL size) { filterBand(src, dst, size); });
    }

 private:
    [[gnu::noinline]] void filterBand(ImageView<const Tpx8u> src, ImageView<Tpx8u> dst, TpxiSizeL size) const {
        ColumnHistogram columns[kColumns];
        const int64_t count = size.width + mask_.width - 1;
        __builtin_memset(columns, 0, size_t(count) * sizeof(ColumnHistogram));
        for (int64_t r = 0; r < mask_.height; r++)
            for (int64_t i = 0; i < count; i++) {
                const Tpx8u in = src.row(r)[i * N];
                count8(columns[i].coarse, in >> 4, 0, false);
                count8(columns[i].fine[in >> 4], in & 15, 0, false);
            }
        for (int64_t y = 0;; y++) {
            filterRow(columns, dst.row(y), size.width);
            if (y + 1 == size.height) return;
            const Tpx8u *out = src.row(y), *in = src.row(y + mask_.height);
            for (int64_t i = 0; i < count; i++) move(columns[i], in[i * N], out[i * N]);
        }
    }

    // One sample comes in, and one goes out if there is one.
    static void count8(Tpx8u* cumulative, int in, int out, bool isOut) {
        V8u counts = load(cumulative) + load(kSteps.from[in]);
        if (isOut) counts -= load(kSteps.from[out]);
        store(cumulative, counts);
    }
    static void move(ColumnHistogram& column, int in, int out) {
        count8(column.coarse, in >> 4, out >> 4, true);
        count8(column.fine[in >> 4], in & 15, 0, false);
        Tpx8u* const left = column.fine[out >> 4];
        store(left, load(left) - load(kSteps.from[out & 15]));
    }

    static void add(Counts& counts, const Tpx8u* column) {
        const Pair<V16u> more = widen(load(column));
        counts.low += more.low;
        counts.high += more.high;
    }
    static void subtract(Counts& counts, const Tpx8u* column) {
        const Pair<V16u> less = widen(load(column));
        counts.low -= less.low;
        counts.high -= less.high;
    }
    // The first value up to which there are more samples than `rank`.
    static int valueOf(const Counts& counts, int rank) {
        const V16s limit = splat<V16s>(Tpx16s(rank));
        return __builtin_ctz(laneBits(Pair<V16s>{V16s(counts.low) > limit, V16s(counts.high) > limit}) |
                             1u << 15);
    }

    void filterRow(const ColumnHistogram* columns, Tpx8u* dst, int64_t width) const {
        const int64_t w = mask_.width;
        const int rank = int(w * mask_.height / 2);
        Counts coarse{}, fine[16];
        int64_t fineAt[16]; // the window that `fine` is of
        for (int64_t& at : fineAt) at = -2 * kColumns;
        for (int64_t i = 0; i < w; i++) add(coarse, columns[i].coarse);
        alignas(16) Tpx16u below[8 + 16]; // samples below the sixteenth k at 7 + k
        below[7] = 0;
        for (int64_t x = 0;; x++) {
            store(below + 8, coarse.low);
            store(below + 16, coarse.high);
            const int k = valueOf(coarse, rank);
            Counts counts = fine[k];
            int64_t at = fineAt[k];
            if (2 * (x - at) > w) { // it is less work anew
                counts = Counts{};
                for (int64_t i = x; i < x + w; i++) add(counts, columns[i].fine[k]);
            } else {
                for (; at < x; at++) {
                    add(counts, columns[at + w].fine[k]);
                    subtract(counts, columns[at].fine[k]);
                }
            }
            fine[k] = counts;
            fineAt[k] = x;
            dst[x * N] = Tpx8u(16 * k + valueOf(counts, rank - below[7 + k]));
            if (x + 1 == width) return;
            add(coarse, columns[x + w].coarse);
            subtract(coarse, columns[x].coarse);
        }
    }

    TpxiSizeL mask_;
};

// Of columns only those that enter or leave a window in a band have histograms; that of the band's first window
// slides down by itself.
template <Layout L>
class WideColumnMedian {
    static constexpr int N = channelsOf(L), kBand = 40;
    static constexpr int kCoarse = 16, kBins = kCoarse + 256; // by sixteenths, then by values

 public:
    // Counts of a column, and their differences, have 16 bits.
    static bool serves(TpxiSizeL mask) { return mask.height <= kMax<Tpx16s>; }

    explicit WideColumnMedian(TpxiSizeL mask) : mask_(mask) {}

    void operator()(const Region<Tpx8u, Tpx8u>& region) const {
        forBands<L>(region, mask_, kBand,
                    [this](auto src, auto dst, TpxiSizeL size) { filterBand(src, dst, size); });
    }

 private:
    [[gnu::noinline]] void filterBand(ImageView<const Tpx8u> src, ImageView<Tpx8u> dst, TpxiSizeL size) const {
        Tpx16s leaving[kBand][kBins] = {}, entering[kBand][kBins] = {};
        Tpx32s first[kBins] = {};
        const auto countRow = [&](const Tpx8u* row, int by) {
            for (int64_t i = 0; i < mask_.width; i++) count(first, row[i * N], by);
            for (int64_t i = 0; i + 1 < size.width; i++) {
                count(leaving[i], row[i * N], by);
                count(entering[i], row[(mask_.width + i) * N], by);
            }
        };
        for (int64_t r = 0; r < mask_.height; r++) countRow(src.row(r), 1);
        for (int64_t y = 0;; y++) {
            Tpx32s window[kBins];
            __builtin_memcpy(window, first, sizeof window);
            for (int64_t x = 0;; x++) {
                dst.row(y)[x * N] = median(window);
                if (x + 1 == size.width) break;
                slide(window, entering[x], leaving[x]);
            }
            if (y + 1 == size.height) return;
            countRow(src.row(y), -1);
            countRow(src.row(y + mask_.height), 1);
        }
    }

    template <class Count>
    static void count(Count* bins, int sample, int by) {
        bins[sample >> 4] = Count(bins[sample >> 4] + by);
        bins[kCoarse + sample] = Count(bins[kCoarse + sample] + by);
    }
    static void slide(Tpx32s* window, const Tpx16s* enters, const Tpx16s* leaves) {
        for (int i = 0; i < kBins; i += kLanes<Tpx16s>) {
            const Pair<V32s> by = widen(load(enters + i) - load(leaves + i));
            store(window + i, load(window + i) + by.low);
            store(window + i + 4, load(window + i + 4) + by.high);
        }
    }
    Tpx8u median(const Tpx32s* window) const {
        int64_t left = mask_.width * mask_.height / 2; // samples that still come before the median
        int k = 0, value = kCoarse;
        for (; left >= window[k]; k++) left -= window[k];
        for (value += 16 * k; left >= window[value]; value++) left -= window[value];
        return Tpx8u(value - kCoarse);
    }

    TpxiSizeL mask_;
};

// ---- One histogram that slides ----------------------------------------------------------------------------

// Huang, Yang and Tang, A Fast Two-Dimensional Median Filtering Algorithm, IEEE Transactions on Acoustics,
// Speech and Signal Processing 27 (1), 1979: a histogram and, remembered from the result before, the value that
// the rank lies at.
struct SlidingHistogram {
    Tpx32u counts[256];
    int value;
    int64_t below; // samples below the value

    void clear() {
        __builtin_memset(counts, 0, sizeof counts);
        value = 0;
        below = 0;
    }
    void add(int sample) {
        counts[sample]++;
        below += sample < value;
    }
    void remove(int sample) {
        counts[sample]--;
        below -= sample < value;
    }
    int moveTo(int64_t rank) {
        while (below > rank) below -= counts[--value];
        while (below + counts[value] <= rank) below += counts[value++];
        return value;
    }
};

// Samples of 16 bits are counted by their upper bytes, and those that have the median's upper byte by their
// lower bytes; whenever it changes, these are looked for again.
template <Layout L, class T>
class SlidingMedian {
    static_assert(sizeof(T) == 2);
    static constexpr int N = channelsOf(L), kBias = std::is_signed_v<T> ? 0x8000 : 0;

 public:
    explicit SlidingMedian(TpxiSizeL mask) : mask_(mask) {}

    void operator()(const Region<T, T>& region) const {
        Histograms histograms;
        for (int64_t y = 0; y < region.size.height; y++)
            for (int c = 0; c < coloursOf(L); c++)
                filterRow(region.src.from(-(mask_.width / 2) * N + c, y - mask_.height / 2),
                          region.dst.row(y) + c, region.size.width, histograms);
    }

 private:
    struct Histograms {
        SlidingHistogram upper, lower;
        int lowerOf; // the upper byte of the samples in `lower`
    };
    static int keyOf(const T* p) { return int(peek(p)) + kBias; }

    template <class Visit>
    static void visitColumn(ImageView<const T> window, int64_t column, int64_t height, Visit visit) {
        for (int64_t r = 0; r < height; r++) visit(keyOf(window.row(r) + column * N));
    }

    void filterRow(ImageView<const T> window, T* dst, int64_t width, Histograms& h) const {
        const int64_t rank = mask_.width * mask_.height / 2;
        const auto countIn = [&](int key) {
            h.upper.add(key >> 8);
            if (key >> 8 == h.lowerOf) h.lower.add(key & 0xFF);
        };
        const auto countOut = [&](int key) {
            h.upper.remove(key >> 8);
            if (key >> 8 == h.lowerOf) h.lower.remove(key & 0xFF);
        };
        h.upper.clear();
        h.lowerOf = -1;
        for (int64_t r = 0; r < mask_.height; r++)
            for (int64_t i = 0; i < mask_.width; i++) countIn(keyOf(window.row(r) + i * N));
        for (int64_t x = 0;; x++) {
            const int upper = h.upper.moveTo(rank);
            if (upper != h.lowerOf) {
                h.lowerOf = upper;
                h.lower.clear();
                for (int64_t r = 0; r < mask_.height; r++) {
                    const T* const row = window.row(r) + x * N;
                    for (int64_t i = 0; i < mask_.width; i++)
                        if (const int key = keyOf(row + i * N); key >> 8 == upper) h.lower.add(key & 0xFF);
                }
            }
            const int value = (upper << 8) + h.lower.moveTo(rank - h.upper.below);
            poke(dst + x * N, T(value - kBias));
            if (x + 1 == width) return;
            visitColumn(window, x, mask_.height, countOut);
            visitColumn(window, x + mask_.width, mask_.height, countIn);
        }
    }

    TpxiSizeL mask_;
};

} // namespace tpx
