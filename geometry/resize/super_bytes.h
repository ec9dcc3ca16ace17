// SPDX-License-Identifier: Apache-2.0
// Super-sampling of bytes in integers.
//
// Where positions of either axis repeat after 1, 2, 4 or 8, all weights are whole eighths. Counted in the
// smallest of them every sum is an integer, which single precision holds exactly while it has 24 bits. So the
// sums of floats (super_rows.h) are exact there, and these are the same.
#pragma once

#include "frame/runs/runs.h"
#include "frame/simd/rounding.h"
#include "geometry/resize/super_runs.h"

namespace tpx {

// Eight samples at a time, each source row with a few terms: a load, a shuffle that brings pairs of taps
// together, and a multiply-add of them with their weights. The terms are found once, for the blocks of eight
// after which the positions repeat.
template <int N>
class ByteMeans {
    static constexpr int kBlocks = 4, kTerms = 16, kSamples = 8;
    static constexpr int kLongest = 1024;    // bytes that a block reads of a row
    static constexpr int kWeightedRows = 64; // of a destination row, where rows are weighted
    static constexpr int64_t kSum16 = 0xFFFF / 0xFF, kSum24 = 0xFFFFFF / 0xFF; // bytes that fit a sum

    struct Term {
        V8u shuffle;
        V8s weights;
        int64_t at; // from the block's first byte
    };
    struct Block {
        Term terms[2][kTerms];
        int64_t begin, end; // the bytes that it loads, from the first of the period
    };

    const TpxiResizeAxis& x_;
    const TpxiResizeAxis& y_;
    int64_t column_, first_, perFold_;
    int blocks_, groups_ = 1, terms_ = 0;
    bool serves_ = false;
    Block block_[kBlocks];

    // Shares the taps of `count` samples from s on out to terms; in each, a sample has as many places as fill
    // the register. Returns how many terms there are, or more than kTerms.
    int share(int s, int count, Block& block, Term* terms) const {
        const int places = 16 / count;
        struct {
            const Tpx32f* weights;
            int64_t at, taps; // the byte of the next one, and how many are left
        } samples[kSamples];
        for (int i = 0; i < count; i++) {
            const Runs runs(x_, column_ + (s + i) / N);
            samples[i] = {runs.weights(), (runs.first() - first_) * N + (s + i) % N,
                          runs.last() - runs.first() + 1};
        }
        for (int t = 0;; t++) {
            int64_t start = INT64_MAX;
            for (int i = 0; i < count; i++)
                if (samples[i].taps > 0) start = minOf(start, samples[i].at);
            if (start == INT64_MAX) return t;
            if (t == kTerms) return t + 1;
            alignas(16) Tpx8u shuffle[16];
            alignas(16) Tpx8s weights[16] = {};
            __builtin_memset(shuffle, 0x80, 16);
            for (int i = 0; i < count; i++) {
                auto& sample = samples[i];
                const int end = (i + 1) * places;
                for (int place = i * places; place < end && sample.taps > 0 && sample.at < start + 16;
                     place++) {
                    shuffle[place] = Tpx8u(sample.at - start);
                    weights[place] = Tpx8s(*sample.weights * Tpx32f(x_.dstRatio));
                    sample.weights++;
                    sample.at += N;
                    sample.taps--;
                }
            }
            block.begin = minOf(block.begin, start);
            block.end = maxOf(block.end, start + 16);
            terms[t] = {load(shuffle), load(weights), start};
        }
    }

    // Pairs of one sample fill a register of sums, or of two samples half of it each. Returns the terms that a
    // register needs.
    int prepare(int groups) {
        int terms = 0;
        for (int b = 0; b < blocks_; b++) {
            Block& block = block_[b];
            block.begin = INT64_MAX;
            block.end = 0;
            for (int g = 0; g < groups; g++) {
                const int count = kSamples / groups;
                const int n = share(b * kSamples + g * count, count, block, block.terms[g]);
                for (int t = n; t < kTerms; t++) block.terms[g][t] = {V8u{}, V8s{}, block.terms[g][0].at};
                terms = maxOf(terms, n);
            }
        }
        return terms;
    }

    // The sums of a group's lanes so far, of eight samples in 32 bits.
    template <int Groups>
    static Pair<V32u> widened(const Several<V16u, Groups>& sums) {
        if constexpr (Groups == 1) {
            return widen(sums.at[0]);
        } else {
            const auto pairs = [](V16u a) {
                const auto lanes = bitsAs<V32u>(a);
                return V32u((lanes & splat<V32u>(0xFFFF)) + (lanes >> 16));
            };
            return {pairs(sums.at[0]), pairs(sums.at[1])};
        }
    }

    // The sums of a block; src is the first byte of its period in the first of `rows` rows.
    template <int Groups, bool OneTerm, bool Weighted>
    static Pair<V32u> sumBlock(const Block& block, int terms, ImageView<const Tpx8u> src, int64_t rows,
                               int64_t perFold, const V16u* weights) {
        Pair<V32u> total = {};
        for (int64_t y = 0; y < rows;) {
            Several<V16u, Groups> sums = {};
            const int64_t end = minOf(rows, y + perFold);
            for (; y < end; y++, src.data = addBytes(src.data, src.step))
                for (int g = 0; g < Groups; g++) {
                    const auto product = [&](const Term& term) {
                        return bitsAs<V16u>(multiplyAddPairs(
                            shuffleBytes(load(src.data + term.at), term.shuffle), term.weights));
                    };
                    V16u along = product(block.terms[g][0]);
                    if constexpr (!OneTerm)
                        for (int t = 1; t < terms; t++) along += product(block.terms[g][t]);
                    sums.at[g] += Weighted ? along * weights[y] : along;
                }
            const Pair<V32u> more = widened<Groups>(sums);
            total.low += more.low;
            total.high += more.high;
        }
        return total;
    }

    template <int Groups, bool OneTerm, bool Weighted>
    void averageRow(ImageView<const Tpx8u> src, int64_t rowEnd, int64_t rows, const V16u* weights,
                    Tpx32f factor, Tpx8u* dst, int64_t count) const {
        const V32f f = splat<V32f>(factor);
        const int64_t period = int64_t(blocks_) * kSamples / N / x_.dstRatio * x_.srcRatio * N;
        int64_t at = 0; // the period's first byte
        for (int64_t i = 0; i < count; at += period)
            for (int b = 0; b < blocks_ && i < count; b++, i += kSamples) {
                const Block& block = block_[b];
                Pair<V32u> sums = {};
                if (at + block.end <= rowEnd) {
                    sums = sumBlock<Groups, OneTerm, Weighted>(block, terms_, src.from(at, 0), rows, perFold_,
                                                               weights);
                } else { // the rows' ends, copied to where whole registers can be read
                    Tpx8u ends[kLongest];
                    __builtin_memset(ends, 0, sizeof ends);
                    const int64_t bytes = rowEnd - at - block.begin;
                    for (int64_t y = 0; y < rows; y++) {
                        __builtin_memcpy(ends, src.row(y) + at + block.begin, size_t(bytes));
                        const Pair<V32u> more = sumBlock<Groups, OneTerm, Weighted>(
                            block, terms_, {addBytes(ends, -block.begin), 0}, 1, 1,
                            Weighted ? weights + y : nullptr);
                        sums.low += more.low;
                        sums.high += more.high;
                    }
                }
                const auto means =
                    narrow<Tpx16s>(toInteger(toFloat(Pair<V32s>{V32s(sums.low), V32s(sums.high)}) * f));
                const V8u bytes = narrow<Tpx8u>(Pair<V16s>{means, means});
                if (i + kSamples <= count)
                    poke(reinterpret_cast<Tpx64s*>(dst + i), firstPiece(bytes));
                else
                    copyShort(dst + i, &bytes, count - i);
            }
    }

    template <int Groups, bool OneTerm, bool Weighted>
    void average(const Tile<Tpx8u>& tile) const {
        const int64_t last = Runs(x_, tile.x + tile.width - 1).last(), rowEnd = (last + 1 - first_) * N;
        // The factor takes the weights' units back by powers of two, exactly.
        const Tpx32f factor = superFactor(tile.plan) / Tpx32f(x_.dstRatio * y_.dstRatio);
        const ImageView<const Tpx8u> src = tile.src.from(first_ * N, 0);
        V16u weights[Weighted ? kWeightedRows : 1];
        Runs runs(y_, tile.y);
        for (int64_t i = 0; i < tile.height; i++, runs.next()) {
            const int64_t rows = runs.last() - runs.first() + 1;
            if constexpr (Weighted)
                for (int64_t k = 0; k < rows; k++)
                    weights[k] = splat<V16u>(Tpx16u(runs.weight(k) * Tpx32f(y_.dstRatio)));
            averageRow<Groups, OneTerm, Weighted>(src.from(0, runs.first()), rowEnd, rows, weights, factor,
                                                  tile.dst.row(i), tile.width * N);
        }
    }

 public:
    explicit ByteMeans(const Tile<Tpx8u>& tile)
        : x_(tile.plan.axisX), y_(tile.plan.axisY), column_(tile.x), first_(Runs(x_, tile.x).first()) {
        const auto isFew = [](Tpx32u n) { return n <= 8 && (n & (n - 1)) == 0; };
        if (!isFew(x_.dstRatio) || !isFew(y_.dstRatio)) return;
        const int64_t perRow = int64_t(x_.srcRatio) * y_.dstRatio; // bytes that a row adds to a sum at most
        if (perRow > kSum16 || int64_t(x_.srcRatio) * y_.srcRatio > kSum24) return;
        if (y_.dstRatio > 1 && superRun(y_.srcRatio, y_.dstRatio) > kWeightedRows) return;
        perFold_ = kSum16 / perRow;
        blocks_ = maxOf(1, N == 3 ? 3 : N * int(x_.dstRatio) / kSamples);
        terms_ = prepare(1);
        if (terms_ > 1) {
            const int halves = prepare(2);
            if (2 * halves < terms_) {
                groups_ = 2;
                terms_ = halves;
            } else {
                prepare(1);
            }
        }
        serves_ = terms_ <= kTerms;
        for (int b = 0; b < blocks_; b++) serves_ = serves_ && block_[b].end - block_[b].begin <= kLongest;
    }

    bool serves() const { return serves_; }

    void operator()(const Tile<Tpx8u>& tile) const {
        const bool weighted = y_.dstRatio > 1, oneTerm = terms_ == 1;
        if (groups_ == 1)
            weighted  ? oneTerm ? average<1, true, true>(tile) : average<1, false, true>(tile)
             : oneTerm ? average<1, true, false>(tile)
                      : average<1, false, false>(tile);
        else
            weighted  ? oneTerm ? average<2, true, true>(tile) : average<2, false, true>(tile)
             : oneTerm ? average<2, true, false>(tile)
                      : average<2, false, false>(tile);
    }
};

} // namespace tpx
