// SPDX-License-Identifier: Apache-2.0
// Super-sampling in single precision.
//
// The order of summation: each source row is weighted and summed along x from the left, then the sums of its
// rows are weighted and summed from the top; the first product begins a sum. The order is the same for every
// pixel, wherever its tile begins, so any tiling gives the same bytes. Whatever is faster has to give what this
// order gives.
//
// Here rows are summed one by one, which serves integers of one channel that become narrower by less than a
// half; others are faster turned (super_turned.h).
#pragma once

#include "frame/runs/runs.h"
#include "frame/simd/rounding.h"
#include "geometry/resize/super_runs.h"

namespace tpx {

// ---- Rows of any kind --------------------------------------------------------------------------------------

// A row that is not made narrower.
template <class T>
inline void convertRow(const T* src, Tpx32f* row, int64_t count) {
    constexpr int L = kLanes<Tpx32f>;
    int64_t i = 0;
    for (; i + L <= count; i += L) {
        if constexpr (std::is_same_v<T, Tpx32f>)
            store(row + i, load(src + i));
        else
            store(row + i, loadAs<Tpx32f>(src + i));
    }
    for (; i < count; i++) row[i] = Tpx32f(peek(src + i));
}

// Sums times the factor. Whole registers of them are read.
template <class T>
inline void storeMeans(const Tpx32f* sum, Tpx32f factor, T* dst, int64_t count) {
    constexpr int L = kLanes<T>, kParts = L / kLanes<Tpx32f>;
    const V32f f = splat<V32f>(factor);
    for (int64_t i = 0; i < count; i += L) {
        Vec<T> means;
        if constexpr (std::is_same_v<T, Tpx32f>) {
            means = load(sum + i) * f;
        } else {
            Several<V32f, kParts> parts;
            for (int k = 0; k < kParts; k++) parts.at[k] = load(sum + i + k * kLanes<Tpx32f>) * f;
            means = toSamples<T, Rounding::OfThread>(parts);
        }
        if (i + L <= count)
            store(dst + i, means);
        else
            copyShort(dst + i, &means, (count - i) * int64_t(sizeof(T)));
    }
}

// ---- Eight positions ---------------------------------------------------------------------------------------

// The weighted sum of a run. edge(e, k) is the product of tap k and its weight; taps between the first and the
// last but one are covered whole.
template <class Tap, class Edge>
inline auto sumOfRun(int64_t taps, Tap tap, Edge edge) {
    auto sum = edge(0, 0);
    for (int64_t k = 1; k < taps - 2; k++) sum += tap(k);
    if (taps > 2) sum += edge(1, taps - 2);
    return sum += edge(2, taps - 1);
}

// Eight integers at positions, as floats.
template <class T>
inline V32f gatherEight(const T* p, const Tpx32s* at) {
    const auto piece = [=](int k) { return Tpx16s(peek(p + at[k])); };
    using Lanes = Vec<std::conditional_t<std::is_signed_v<T>, Tpx16s, Tpx16u>>;
    const auto wide = widen(bitsAs<Lanes>(
        fromPieces(piece(0), piece(1), piece(2), piece(3), piece(4), piece(5), piece(6), piece(7))));
    return toFloat(Pair<V32s>{V32s(wide.low), V32s(wide.high)});
}

// Four neighbouring positions, whose samples lie within 16 bytes, are a load and a shuffle, prepared
// once for all rows. Every tap uses it, at an address further on.
template <class T>
struct EightByWindows {
    static constexpr int kSpan = 16 / sizeof(T);

    // 32 bytes. Signed samples go to the upper halves of their lanes.
    static void prepare(const Tpx32s* at, Tpx8u* shuffle) {
        constexpr int kPlace = std::is_signed_v<T> ? 2 : 0;
        __builtin_memset(shuffle, 0x80, 32);
        for (int k = 0; k < 8; k++, shuffle += 4)
            for (int b = 0; b < int(sizeof(T)); b++)
                shuffle[kPlace + b] = Tpx8u((at[k] - at[k & 4]) * int(sizeof(T)) + b);
    }
    static V32f load(const T* p, const Tpx32s* at, const Tpx8u* shuffle) {
        const auto four = [](const T* from, const Tpx8u* control) {
            const auto lanes = bitsAs<V32s>(shuffleBytes(bitsAs<V8u>(tpx::load(from)), tpx::load(control)));
            return std::is_signed_v<T> ? V32s(lanes >> 16) : lanes;
        };
        return toFloat(Pair<V32s>{four(p + at[0], shuffle), four(p + at[4], shuffle + 16)});
    }
};

// ---- A band of a row --------------------------------------------------------------------------------------

// Sums source rows along x, for a band of neighbouring positions whose tables and sums stay in the first-level
// cache.
template <class T>
class SuperRow {
 public:
    static constexpr int kPositions = 512;

    static bool serves(const TpxiResizeAxis& axis) { return axis.srcRatio < 2 * int64_t(axis.dstRatio); }

    // `last` is the last source column that the tile may read.
    SuperRow(const TpxiResizeAxis& axis, int64_t x, int64_t width, int64_t last) : width_(width) {
        Runs runs(axis, x);
        taps_ = runs.taps;
        first_ = runs.first();
        for (int64_t j = 0; j < width; j++, runs.next()) {
            at_[j] = Tpx32s(runs.first() - first_);
            edges_[0][j] = runs.weight(0);
            edges_[1][j] = taps_ > 2 ? runs.weight(taps_ - 2) : 0;
            edges_[2][j] = runs.weight(taps_ - 1);
            if (runs.first() + taps_ - 1 <= last) vectors_ = (j + 1) / 8 * 8;
        }
        using Eight = EightByWindows<T>;
        const int64_t end = last - first_ + 1;
        for (; windows_ < vectors_; windows_ += 8) {
            const Tpx32s* const at = at_ + windows_;
            if (at[4] + taps_ - 1 + Eight::kSpan > end) break;
            Eight::prepare(at, shuffles_ + 4 * windows_);
        }
    }

    // The source column at which a row is given.
    int64_t first() const { return first_; }

    void operator()(const T* src, Tpx32f* out) const {
        if (taps_ == 1)
            convertRow(src, out, width_);
        else
            sum(src, out);
    }

 private:
    void sum(const T* src, Tpx32f* out) const {
        const int64_t taps = taps_, windows = windows_, vectors = vectors_, width = width_;
        int64_t j = 0;
        const auto eight = [&](auto tap) {
            store(out + j, sumOfRun(taps, tap, [&](int e, int64_t k) { return load(edges_[e] + j) * tap(k); }));
        };
        for (; j < windows; j += 8)
            eight([&](int64_t k) { return EightByWindows<T>::load(src + k, at_ + j, shuffles_ + 4 * j); });
        for (; j < vectors; j += 8) eight([&](int64_t k) { return gatherEight(src + k, at_ + j); });
        for (; j < width; j++) { // samples without weight may lie outside
            const auto tap = [&](int64_t k) { return Tpx32f(peek(src + at_[j] + k)); };
            out[j] = sumOfRun(taps, tap, [&](int e, int64_t k) {
                const Tpx32f weight = edges_[e][j];
                return weight != 0 ? weight * tap(k) : 0;
            });
        }
    }

    int64_t width_, first_, taps_;
    int64_t windows_ = 0, vectors_ = 0; // positions before which windows, and then other registers, serve
    Tpx32s at_[kPositions];             // columns from the first one
    Tpx32f edges_[3][kPositions];
    Tpx8u shuffles_[4 * kPositions];
};

// ---- Rows, and the tile ---------------------------------------------------------------------------------

// sum (+)= weight * row, in whole registers.
inline void accumulate(const Tpx32f* row, Tpx32f weight, bool begins, Tpx32f* sum, int64_t count) {
    const V32f w = splat<V32f>(weight);
    const auto each = [=](auto rule) {
        for (int64_t i = 0; i < count; i += kLanes<Tpx32f>) store(sum + i, rule(load(row + i), load(sum + i)));
    };
    if (begins && weight == 1)
        each([](V32f x, V32f) { return x; });
    else if (begins)
        each([=](V32f x, V32f) { return x * w; });
    else if (weight == 1)
        each([](V32f x, V32f s) { return s + x; });
    else
        each([=](V32f x, V32f s) { return s + x * w; });
}

template <class T>
void averageByRows(const Tile<T>& tile) {
    using Row = SuperRow<T>;
    const Tpx32f factor = superFactor(tile.plan);
    const int64_t last = Runs(tile.plan.axisX, tile.x + tile.width - 1).last();
    alignas(32) Tpx32f row[Row::kPositions + 16] = {}, sum[Row::kPositions + 16] = {};
    for (int64_t x = 0; x < tile.width; x += Row::kPositions) {
        const int64_t width = minOf<int64_t>(tile.width - x, Row::kPositions);
        const Row sumRow(tile.plan.axisX, tile.x + x, width, last);
        const ImageView<const T> src = tile.src.from(sumRow.first(), 0);
        const ImageView<T> dst = tile.dst.from(x, 0);
        int64_t held = -1; // the source row whose sums are there; two destination rows may share one
        Runs runs(tile.plan.axisY, tile.y);
        for (int64_t i = 0; i < tile.height; i++, runs.next()) {
            bool begins = true;
            for (int64_t k = 0; k < runs.taps; k++) {
                const Tpx32f weight = runs.weight(k);
                if (weight == 0) continue;
                const int64_t y = runs.first() + k;
                if (y != held) sumRow(src.row(y), row);
                held = y;
                accumulate(row, weight, begins, sum, width);
                begins = false;
            }
            storeMeans(sum, factor, dst.row(i), width);
        }
    }
}

} // namespace tpx
