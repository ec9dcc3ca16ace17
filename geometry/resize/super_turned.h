// SPDX-License-Identifier: Apache-2.0
// Super-sampling in single precision, for every type and ratio, of source rows that are turned: a register
// holds one sample of each of eight, so a pixel costs a load and a sum whatever the positions are, and nothing
// but the first and the last of a run is multiplied. The order of summation is that of super_rows.h.
#pragma once

#include "geometry/resize/super_rows.h"
#include "geometry/resize/taps_pass.h"
#include "geometry/resize/taps_source.h"

namespace tpx {

// ---- Along x ---------------------------------------------------------------------------------------------

// A band of columns: which source pixels its positions cover.
template <int N>
struct SuperColumns {
    // Floats of a row of sums, of which whole registers are read, and whole groups of positions written from
    // any one on. Bands begin where lines of the caches may.
    static constexpr int64_t kRow = 6144 / (kTapRows<N> + 1) / 16 * 16,
                             kMost = (kRow / N - kTapPositions) / 32 * 32;

    int64_t count;
    CoveredRun runs[kMost];

    SuperColumns(const TpxiResizeAxis& axis, int64_t x, int64_t most) : count(minOf(most, kMost)) {
        Runs walk(axis, x);
        for (int64_t j = 0; j < count; j++, walk.next()) runs[j] = walk.covered();
    }
};

// Adds pixels to the sums of a position. All but the first and the last are covered whole.
template <int N>
[[gnu::always_inline]] inline void addRun(const Tpx32f* pixels, int64_t count, Tpx32f first, Tpx32f last,
                                          bool begins, TapSums<N>* sums) {
    const auto each = [&](int64_t k, auto rule) {
        for (int c = 0; c < N; c++)
            for (int r = 0; r < kTapRegisters<N>; r++)
                sums[c][r] = rule(sums[c][r], load(pixels + (k * N + c) * kTapRows<N> + r * kLanes<Tpx32f>));
    };
    const V32f a = splat<V32f>(first), b = splat<V32f>(last);
    if (begins)
        each(0, [=](V32f, V32f x) { return x * a; });
    else
        each(0, [=](V32f sum, V32f x) { return sum + x * a; });
    for (int64_t k = 1; k < count - 1; k++) each(k, [](V32f sum, V32f x) { return sum + x; });
    if (count > 1) each(count - 1, [=](V32f sum, V32f x) { return sum + x * b; });
}

// The sums of the rows [y, y + n) along x. Source pixels are read for as many positions as there is room for;
// where there is none for a single one, in pieces.
template <class T, int N>
inline void sumAlongX(const TapSource<T, N>& source, int64_t y, int64_t n, const SuperColumns<N>& columns,
                      bool fromMemory, Tpx32f* const* rows) {
    constexpr int64_t kSourceRoom = 6144, kPixels = kSourceRoom / (N * kTapRows<N>);
    alignas(32) Tpx32f turned[kSourceRoom + kTurned<T> * kTapRows<N>];
    int64_t end;
    for (int64_t begin = 0; begin < columns.count; begin = end) {
        const CoveredRun* const runs = columns.runs + begin;
        const int64_t from = runs->first, left = columns.count - begin;
        int64_t count = 1;
        while (count < left && runs[count].end() - from <= kPixels) count++;
        end = begin + count;
        Tpx32f* to[kTapRows<N>];
        for (int k = 0; k < kTapRows<N>; k++) to[k] = rows[k] + begin * N;
        if (runs->count <= kPixels) {
            const int64_t pixels = runs[count - 1].end() - from;
            const ptrdiff_t next = fromMemory ? ptrdiff_t(pixels * N * int64_t(sizeof(T))) : 0;
            source.read(y, n, from, pixels, turned, next);
            passPositions<N>(count, to, [&](int64_t j, TapSums<N>* sums) {
                const CoveredRun& run = runs[j];
                addRun<N>(turned + (run.first - from) * N * kTapRows<N>, run.count, run.firstWeight,
                          run.lastWeight, true, sums);
            });
        } else {
            const TapSums<N>* made = nullptr; // a group's other positions repeat the only one
            passPositions<N>(1, to, [&](int64_t, TapSums<N>* sums) {
                if (made != nullptr) {
                    __builtin_memcpy(sums, made, N * sizeof *sums);
                    return;
                }
                made = sums;
                for (int64_t k = 0; k < runs->count; k += kPixels) {
                    const int64_t pixels = minOf(runs->count - k, kPixels);
                    source.read(y, n, from + k, pixels, turned);
                    addRun<N>(turned, pixels, runs->weight(k), runs->weight(k + pixels - 1), k == 0, sums);
                }
            });
        }
    }
}

// Floats of several channels that are reduced far come from memory, which gives more of few rows at a time than
// of many. Rows at a time are as many sums that need not wait for each other.
inline constexpr int kFarRows = 4;
template <int N, int Rows>
inline void sumFarAlongX(ImageView<const Tpx32f> image, const SuperColumns<N>& columns, Tpx32f* const* rows) {
    const Tpx32f* src[Rows];
    for (int r = 0; r < Rows; r++) src[r] = image.row(r);
    for (int64_t j = 0; j < columns.count; j++) {
        const CoveredRun& run = columns.runs[j];
        const int64_t first = run.first * N, last = (run.count - 1) * N;
        const auto sum = [&](auto load, auto put) {
            decltype(load(src[0])) total[Rows];
            for (int r = 0; r < Rows; r++) total[r] = load(src[r] + first) * run.firstWeight;
            for (int64_t k = N; k < last; k += N)
                for (int r = 0; r < Rows; r++) total[r] += load(src[r] + first + k);
            for (int r = 0; r < Rows; r++) {
                if (last > 0) total[r] += load(src[r] + first + last) * run.lastWeight;
                put(rows[r] + j * N, total[r]);
            }
        };
        if (N == 4 || j + 1 < columns.count) // what is behind three is replaced
            sum([](const Tpx32f* p) { return loadFour(p); },
                [](Tpx32f* to, auto total) { storeFour(to, total); });
        else
            for (int c = 0; c < N; c++)
                sum([=](const Tpx32f* p) { return peek(p + c); },
                    [=](Tpx32f* to, Tpx32f total) { to[c] = total; });
    }
}

// ---- Along y ---------------------------------------------------------------------------------------------

// Adds rows to the sums of a row of samples, of which whole registers may be touched.
inline void addRows(const Tpx32f* const* rows, int64_t n, Tpx32f first, Tpx32f last, bool begins, Tpx32f* sums,
                    int64_t count) {
    constexpr int F = kLanes<Tpx32f>, kSums = 2;
    const V32f a = splat<V32f>(first), b = splat<V32f>(last);
    for (int64_t i = 0; i < count; i += kSums * F) {
        V32f sum[kSums];
        for (int m = 0; m < kSums; m++) {
            const V32f product = load(rows[0] + i + m * F) * a;
            sum[m] = begins ? product : load(sums + i + m * F) + product;
        }
        for (int64_t k = 1; k < n - 1; k++)
            for (int m = 0; m < kSums; m++) sum[m] += load(rows[k] + i + m * F);
        if (n > 1)
            for (int m = 0; m < kSums; m++) sum[m] += load(rows[n - 1] + i + m * F) * b;
        for (int m = 0; m < kSums; m++) store(sums + i + m * F, sum[m]);
    }
}

// ---- The tile --------------------------------------------------------------------------------------------

// make(y, n, rows) gives the sums along x of the source rows [y, y + n).
template <class T, int N, class Make>
void averageBand(const Tile<T>& tile, const SuperColumns<N>& columns, int64_t x, Make make) {
    constexpr int kRows = kTapRows<N>;
    constexpr int64_t kRow = SuperColumns<N>::kRow;
    const Tpx32f factor = superFactor(tile.plan);
    const int64_t endRow = Runs(tile.plan.axisY, tile.y + tile.height - 1).covered().end();
    const ImageView<T> dst = tile.dst.from(x * N, 0);
    alignas(32) Tpx32f memory[(kRows + 1) * kRow];
    Tpx32f *rows[kRows], *const sums = memory + kRows * kRow;
    for (int k = 0; k < kRows; k++) rows[k] = memory + k * kRow;

    int64_t made = 0, end = 0; // the source rows whose sums are there
    Runs walk(tile.plan.axisY, tile.y);
    for (int64_t i = 0; i < tile.height; i++, walk.next()) {
        const CoveredRun run = walk.covered();
        for (int64_t k = 0, n; k < run.count; k += n) {
            const int64_t y = run.first + k;
            if (y >= end) {
                made = y;
                end = minOf(y + kRows, endRow);
                make(y, end - y, rows);
            }
            n = minOf(run.count - k, end - y);
            addRows(rows + (y - made), n, run.weight(k), run.weight(k + n - 1), k == 0, sums,
                    columns.count * N);
        }
        storeMeans(sums, factor, dst.row(i), columns.count * N);
    }
}

template <class T, int N>
void averageTurned(const Tile<T>& tile) {
    const TpxiResizeAxis& axis = tile.plan.axisX;
    const TapSource<T, N> source(tile.src);
    // So far that reading the source takes most of the time, and whether it is more than caches are likely to
    // hold.
    const bool isFar = axis.srcRatio >= (N == 1 ? 8 : 10) * int64_t(axis.dstRatio);
    constexpr double kCaches = 16 << 20;
    const bool fromMemory =
        std::is_same_v<T, Tpx32f> && isFar &&
        double(tile.width) * double(tile.height) * scaleOf(axis) * scaleOf(tile.plan.axisY) * N * sizeof(T) >
            kCaches;
    int64_t width;
    for (int64_t x = 0; x < tile.width; x += width) {
        const SuperColumns<N> columns(axis, tile.x + x, tile.width - x);
        width = columns.count;
        averageBand(tile, columns, x, [&](int64_t y, int64_t n, Tpx32f* const* rows) {
            const auto eachRow = [&](auto sumRow) {
                for (int64_t k = 0; k < n; k++) sumRow(tile.src.row(y + k), rows[k]);
            };
            if constexpr (std::is_same_v<T, Tpx32f> && N > 1)
                if (isFar) {
                    int64_t k = 0;
                    for (; k + kFarRows <= n; k += kFarRows)
                        sumFarAlongX<N, kFarRows>(tile.src.from(0, y + k), columns, rows + k);
                    for (; k < n; k++) sumFarAlongX<N, 1>(tile.src.from(0, y + k), columns, rows + k);
                    return;
                }
            if (axis.srcRatio == axis.dstRatio)
                return eachRow([&](const T* src, Tpx32f* row) {
                    convertRow(src + columns.runs[0].first * N, row, width * N);
                });
            sumAlongX(source, y, n, columns, fromMemory, rows);
        });
    }
}

} // namespace tpx
