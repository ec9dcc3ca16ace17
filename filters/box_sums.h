// SPDX-License-Identifier: Apache-2.0
// Sums of neighbouring samples at a cost that does not grow with their number: of columns, slid down row by
// row, and along rows by doubling.
#pragma once

#include "frame/images/view.h"
#include "frame/runs/runs.h"

namespace tpx {

// As many sums as a register holds, from samples or from narrower sums.
template <class Sum, class From>
inline Vec<Sum> sumsFrom(const From* p) {
    if constexpr (std::is_same_v<Sum, From>)
        return load(p);
    else
        return loadAs<Sum>(p);
}

// ---- Columns ----------------------------------------------------------------------------------------------

// Over some rows of samples, for a run of columns. `sums` lies at any address.
template <class Sum, class S>
class ColumnSums {
 public:
    ColumnSums(Sum* sums, ptrdiff_t length) : sums_(sums), length_(length) {}

    const Sum* data() const { return sums_; }

    // Over `rows` rows from the view's first on, one added after the other.
    void form(ImageView<const S> src, int64_t rows) const {
        if (rows == 3) return formOf<3>(src);
        if (rows == 5) return formOf<5>(src);
        formOf<1>(src);
        int64_t y = 1;
        for (; y + 4 <= rows; y += 4) add(src.row(y), src.row(y + 1), src.row(y + 2), src.row(y + 3));
        for (; y < rows; y++) add(src.row(y));
    }
    // One row down.
    void slide(const S* enters, const S* leaves) const {
        if constexpr (kInPairs) {
            if (length_ >= kLanes<S>) return slidePairs(enters, leaves);
        }
        update([](Vec<Sum> sum, Vec<Sum> in, Vec<Sum> out) { return sum + (in - out); }, enters, leaves);
    }

 private:
    template <int Rows>
    void formOf(ImageView<const S> src) const {
        const S* rows[Rows];
        for (int y = 0; y < Rows; y++) rows[y] = src.row(y);
        const auto sumAt = [&](auto from) {
            Vec<Sum> sum = from(rows[0]);
            for (int y = 1; y < Rows; y++) sum += from(rows[y]);
            return sum;
        };
        writeRun(
            sums_, length_, 0,
            [&](ptrdiff_t i) { return sumAt([&](const S* row) { return sumsFrom<Sum>(row + i); }); },
            [&] { return sumAt([&](const S* row) { return shortSums(row); }); });
    }
    template <class... Row>
    void add(const Row*... rows) const {
        update([](auto... sums) { return (... + sums); }, rows...);
    }

    template <class Rule, class... Row>
    void update(Rule rule, const Row*... rows) const {
        writeRun(
            sums_, length_, 0, [&](ptrdiff_t i) { return rule(load(sums_ + i), sumsFrom<Sum>(rows + i)...); },
            [&] { return rule(loadShort(sums_, length_), shortSums(rows)...); });
    }
    // Sums of twice the samples' width: two registers at a time, whose differences are sums of pairs.
    static constexpr bool kInPairs = std::is_integral_v<Sum> && sizeof(Sum) == 2 * sizeof(S);
    static auto differences(Vec<S> in, Vec<S> out) {
        if constexpr (sizeof(S) == 1) {
            const V8s signs = V8s(splat<V16s>(Tpx16s(0xFF01)));
            return Pair<V16s>{multiplyAddPairs(interleaveLow(in, out), signs),
                              multiplyAddPairs(interleaveHigh(in, out), signs)};
        } else {
            const V16s signs = V16s(splat<V32s>(Tpx32s(0xFFFF0001)));
            // Both lower by half of the range, unsigned samples have the same difference as signed ones.
            const V16s low = splat<V16s>(std::is_signed_v<S> ? Tpx16s(0) : kMin<Tpx16s>);
            const V16s a = V16s(in) ^ low, b = V16s(out) ^ low;
            return Pair<V32s>{multiplyAddPairs(interleaveLow(a, b), signs),
                              multiplyAddPairs(interleaveHigh(a, b), signs)};
        }
    }
    void slidePairs(const S* enters, const S* leaves) const {
        constexpr ptrdiff_t kBlock = kLanes<S>, L = kLanes<Sum>;
        Sum* const sums = sums_; // which what is stored could be, for all that the compiler knows
        const ptrdiff_t last = length_ - kBlock;
        const auto at = [=](ptrdiff_t i) __attribute__((always_inline)) {
            const auto by = differences(load(enters + i), load(leaves + i));
            return Pair<Vec<Sum>>{load(sums + i) + Vec<Sum>(by.low), load(sums + i + L) + Vec<Sum>(by.high)};
        };
        const auto put = [=](ptrdiff_t i, Pair<Vec<Sum>> pair) __attribute__((always_inline)) {
            store(sums + i, pair.low);
            store(sums + i + L, pair.high);
        };
        const Pair<Vec<Sum>> tail = at(last); // before the others are stored
        for (ptrdiff_t i = 0; i <= last; i += kBlock) put(i, at(i));
        put(last, tail);
    }

    Vec<Sum> shortSums(const S* row) const {
        return convertShort<Sum>(row, length_, [](const S* p) { return sumsFrom<Sum>(p); });
    }

    Sum* sums_;
    ptrdiff_t length_;
};

// ---- Along rows -------------------------------------------------------------------------------------------

// The sums of `count` entries N apart, for a stretch of a row at a time. Sums of 1, 2, 4, ... entries are made
// one from the other, and those that `count` is made up of are added: nothing is ever subtracted, so floats
// keep no trace of what has left the window.
template <class Sum>
struct WindowTile {
    static constexpr ptrdiff_t kLength = 1024, kReach = 3072;
    alignas(64) Sum sums[kLength + kLanes<Sum>];
    alignas(64) Sum powers[kLength + kReach + 2 * kLanes<Sum>];

    // Whether the neighbours of a tile have room.
    static bool canSum(int64_t count, int N) { return (count - 1) * N <= kReach; }

    // The entries themselves, in powers.
    template <class From>
    void convert(const From* from, ptrdiff_t length, int64_t count, int N) {
        const ptrdiff_t all = length + ptrdiff_t(count - 1) * N;
        convertRun(from, powers, all, [](const From* p) { return sumsFrom<Sum>(p); });
        store(powers + all, Vec<Sum>{}); // registers are whole
    }
    template <class From>
    void sum(const From* from, ptrdiff_t length, int64_t count, int N) {
        convert(from, length, count, N);
        sumPadded(powers, length, count, N);
    }
    // Of entries behind which a register's bytes can be read.
    void sumPadded(const Sum* from, ptrdiff_t length, int64_t count, int N) {
        switch (count & 3) {
            case 0:
                return sumFrom<0>(from, length, count, N);
            case 1:
                return sumFrom<1>(from, length, count, N);
            case 2:
                return sumFrom<2>(from, length, count, N);
            default:
                return sumFrom<3>(from, length, count, N);
        }
    }

 private:
    // The first entries of every window, so many, and then sums of 4, 8, ... entries, which powers[i] becomes;
    // the entries themselves may lie there.
    template <int First>
    void sumFrom(const Sum* from, ptrdiff_t length, int64_t count, int N) {
        constexpr ptrdiff_t L = kLanes<Sum>;
        const ptrdiff_t fours = count < 4 ? 0 : length + ptrdiff_t(count - 4) * N;
        const auto sumFour = [ =, this ](ptrdiff_t i) __attribute__((always_inline)) {
            const Sum* const p = from + i;
            store(powers + i, (load(p) + load(p + N)) + (load(p + 2 * N) + load(p + 3 * N)));
        };
        ptrdiff_t i = 0;
        for (; i < length; i += L) {
            const Sum* const p = from + i;
            if constexpr (First == 1) store(sums + i, load(p));
            if constexpr (First == 2) store(sums + i, load(p) + load(p + N));
            if constexpr (First == 3) store(sums + i, load(p) + (load(p + N) + load(p + 2 * N)));
            if (fours > 0) sumFour(i);
        }
        for (; i < fours; i += L) sumFour(i);

        int64_t summed = First;
        const auto addAll = [&](auto more) {
            const Sum* const at = powers + ptrdiff_t(summed) * N;
            if (summed == 0)
                for (ptrdiff_t k = 0; k < length; k += L) store(sums + k, more(at + k));
            else
                for (ptrdiff_t k = 0; k < length; k += L) store(sums + k, load(sums + k) + more(at + k));
        };
        for (int64_t width = 4; width <= count; width *= 2) { // powers[i] is the sum of so many entries
            const ptrdiff_t apart = ptrdiff_t(width) * N;
            if (count & width) {
                addAll([](const Sum* p) { return load(p); });
                summed += width;
            }
            if (count - summed == 2 * width)
                return addAll([=](const Sum* p) { return load(p) + load(p + apart); });
            const ptrdiff_t end = length + ptrdiff_t(count - 2 * width) * N;
            for (ptrdiff_t k = 0; k < end; k += L)
                store(powers + k, load(powers + k) + load(powers + k + apart));
        }
    }
};

// Exact sums of integers along a row of `count` entries N apart: what enters and what leaves the window are
// gathered from the row's start on, for any count. Up to 16 bytes behind the last entry are read, and left
// alone.
template <class Sum, int N, class From>
class IntegerWindow {
    static constexpr ptrdiff_t L = kLanes<Sum>;

 public:
    static constexpr ptrdiff_t kTile = 1024 / N / L * N * L; // whole pixels, whole registers
    static constexpr ptrdiff_t kRoom = kTile + 2 * L;        // what next() writes

    IntegerWindow(const From* from, int64_t count) : from_(from), reach_(ptrdiff_t(count) * N) {
        if constexpr (N == 1) {
            Sum sum = 0;
            for (ptrdiff_t i = 0; i < reach_; i++) sum = Sum(sum + Sum(peek(from + i)));
            sum_ = splat<Vec<Sum>>(sum);
        } else {
            for (ptrdiff_t i = 0; i < reach_; i += N) sum_ += sumsFrom<Sum>(from + i);
        }
    }

    // The next results, a tile but for the last.
    void next(Sum* sums, ptrdiff_t length) {
        const From *const leaves = from_, *const enters = from_ + reach_;
        Vec<Sum> sum = sum_;
        const auto change = [=](ptrdiff_t i) __attribute__((always_inline)) {
            return sumsFrom<Sum>(enters + i) - sumsFrom<Sum>(leaves + i);
        };
        if constexpr (N == 1) {
            constexpr V8u kLast = sizeof(Sum) == 2
                                      ? V8u{14, 15, 14, 15, 14, 15, 14, 15, 14, 15, 14, 15, 14, 15, 14, 15}
                                      : V8u{12, 13, 14, 15, 12, 13, 14, 15, 12, 13, 14, 15, 12, 13, 14, 15};
            sums[0] = sum[0];
            for (ptrdiff_t i = 0; i < length; i += L) {
                Vec<Sum> by = change(i);
                by += lanesUp<1>(by);
                by += lanesUp<2>(by);
                if constexpr (L == 8) by += lanesUp<4>(by);
                const Vec<Sum> next = sum + by;
                store(sums + i + 1, next);
                sum = Vec<Sum>(shuffleBytes(V8u(next), kLast));
            }
        } else { // a pixel at a time; what lies behind it is overwritten by the next
            for (ptrdiff_t i = 0; i < length; i += N) {
                store(sums + i, sum);
                sum += change(i);
            }
        }
        sum_ = sum;
        from_ += length;
    }

 private:
    const From* from_;
    ptrdiff_t reach_;
    Vec<Sum> sum_{};
};

// The same for any count, one entry after the other in double precision, which holds every sum of integers
// that can occur.
template <class From>
class SlidingWindow {
 public:
    // The row has `length` results, so length + (count - 1) N entries.
    SlidingWindow(const From* from, ptrdiff_t length, int64_t count, int N)
        : from_(from), reach_(ptrdiff_t(count) * N), end_(length), N_(N) {
        for (ptrdiff_t i = 0; i < reach_; i++) sums_[i % N] += double(peek(from + i));
    }
    // The next results.
    void next(Tpx32f* sums, ptrdiff_t length) {
        for (ptrdiff_t k = 0; k < length; k++, i_++) {
            double& sum = sums_[channel_];
            sums[k] = Tpx32f(sum);
            if (i_ + N_ < end_) sum += double(peek(from_ + i_ + reach_)) - double(peek(from_ + i_));
            if (++channel_ == N_) channel_ = 0;
        }
    }

 private:
    const From* from_;
    ptrdiff_t reach_, end_;
    int N_;
    ptrdiff_t i_ = 0;
    int channel_ = 0;
    double sums_[4] = {};
};

} // namespace tpx
