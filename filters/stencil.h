// SPDX-License-Identifier: Apache-2.0
// Correlations with small masks that are known when the library is compiled.
//
// Sums of integers are exact: pairs of taps are interleaved and multiplied by their weights with one
// instruction, 8-bit samples into 16-bit sums, 16-bit samples into 32. Taps of weight 0 cost nothing.
#pragma once

#include "filters/border_model.h"
#include "frame/runs/runs.h"

#include <utility>

namespace tpx {

// Weights in rows from the top.
template <int Side>
struct Mask {
    static constexpr int kSide = Side;
    int weights[Side][Side];
};

// A column of weights times a row of weights.
template <int Side>
constexpr Mask<Side> outerProduct(const int (&column)[Side], const int (&row)[Side]) {
    Mask<Side> mask{};
    for (int y = 0; y < Side; y++)
        for (int x = 0; x < Side; x++) mask.weights[y][x] = column[y] * row[x];
    return mask;
}

struct Tap {
    int row, column, weight;
};

template <const auto& mask>
struct TapsOf {
    static constexpr int kSide = std::remove_cvref_t<decltype(mask)>::kSide;
    Tap at[kSide * kSide + 1];
    int count; // even: the last may be one of weight 0

    constexpr TapsOf() : at{}, count(0) {
        for (int y = 0; y < kSide; y++)
            for (int x = 0; x < kSide; x++)
                if (mask.weights[y][x] != 0) at[count++] = {y, x, mask.weights[y][x]};
        if (count % 2) {
            at[count] = {at[count - 1].row, at[count - 1].column, 0};
            count++;
        }
    }
    // The largest magnitude of a sum of samples from 0 to 255.
    constexpr int largestSum() const {
        int positive = 0, negative = 0;
        for (int i = 0; i < count; i++) (at[i].weight > 0 ? positive : negative) += at[i].weight * 255;
        return positive > -negative ? positive : -negative;
    }
};
template <const auto& mask>
inline constexpr TapsOf<mask> kTaps;

// body(std::integral_constant<int, 0>), ... for N numbers.
template <int N, class Body>
[[gnu::always_inline]] inline void unroll(Body body) {
    [&]<int... I>(std::integer_sequence<int, I...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, I>{}), ...);
    }
    (std::make_integer_sequence<int, N>{});
}

// Sums for the samples from i on, as many as an 8-bit or 16-bit register holds. rows[r] begins with the first
// column of the mask; columns are N samples apart.
template <const auto& mask, int N>
[[gnu::always_inline]] inline Pair<V16s> maskSums(const Tpx8u* const* rows, ptrdiff_t i) {
    static_assert(kTaps<mask>.largestSum() <= 32767);
    Pair<V16s> sums{};
    unroll<kTaps<mask>.count / 2>([&](auto pair) {
        constexpr Tap a = kTaps<mask>.at[2 * pair], b = kTaps<mask>.at[2 * pair + 1];
        const V8u x = load(rows[a.row] + i + a.column * N), y = load(rows[b.row] + i + b.column * N);
        const V8s weights = V8s(splat<V16s>(Tpx16s((a.weight & 0xFF) | b.weight * 256)));
        sums.low += multiplyAddPairs(interleaveLow(x, y), weights);
        sums.high += multiplyAddPairs(interleaveHigh(x, y), weights);
    });
    return sums;
}
template <const auto& mask, int N>
[[gnu::always_inline]] inline Pair<V32s> maskSums(const Tpx16s* const* rows, ptrdiff_t i) {
    Pair<V32s> sums{};
    unroll<kTaps<mask>.count / 2>([&](auto pair) {
        constexpr Tap a = kTaps<mask>.at[2 * pair], b = kTaps<mask>.at[2 * pair + 1];
        const V16s x = load(rows[a.row] + i + a.column * N), y = load(rows[b.row] + i + b.column * N);
        const V16s weights = V16s(splat<V32s>((a.weight & 0xFFFF) | b.weight * 65536));
        sums.low += multiplyAddPairs(interleaveLow(x, y), weights);
        sums.high += multiplyAddPairs(interleaveHigh(x, y), weights);
    });
    return sums;
}
// In the order of the taps, each product and sum rounded.
template <const auto& mask, int N>
[[gnu::always_inline]] inline V32f maskSums(const Tpx32f* const* rows, ptrdiff_t i) {
    V32f sum{};
    unroll<kTaps<mask>.count>([&](auto k) {
        constexpr Tap tap = kTaps<mask>.at[k];
        if constexpr (tap.weight != 0) {
            const V32f x = load(rows[tap.row] + i + tap.column * N);
            if constexpr (k == 0)
                sum = x * splat<V32f>(Tpx32f(tap.weight));
            else if constexpr (tap.weight == 1)
                sum += x;
            else if constexpr (tap.weight == -1)
                sum -= x;
            else
                sum += x * splat<V32f>(Tpx32f(tap.weight));
        }
    });
    return sum;
}

// ---- Masks that are a column times a row ------------------------------------------------------------------

// And, if it is not 0, the centre so many times.
template <int Side>
struct Separable {
    static constexpr int kSide = Side;
    int column[Side], row[Side], centre;
};

// The column alone, as the first column of a mask.
template <const auto& mask>
struct ColumnOf {
    static constexpr int kSide = std::remove_cvref_t<decltype(mask)>::kSide;
    static constexpr Mask<kSide> make() {
        Mask<kSide> column{};
        for (int y = 0; y < kSide; y++) column.weights[y][0] = mask.column[y];
        return column;
    }
    static constexpr Mask<kSide> value = make();
};

// What sums of samples of type S are gathered in.
template <class S>
using SumOf = std::conditional_t<std::is_same_v<S, Tpx8u>, Tpx16s,
                                 std::conditional_t<std::is_same_v<S, Tpx16s>, Tpx32s, Tpx32f>>;

template <class V>
inline void storeSums(LaneOf<V>* to, Pair<V> sums) {
    store(to, sums.low);
    store(to + kLanes<LaneOf<V>>, sums.high);
}
inline void storeSums(Tpx32f* to, V32f sums) { store(to, sums); }

// The row's weights times the sums of columns, of which at(k) are those under tap k. Taps at equal distances
// from the centre share a product.
template <const auto& mask, class Sum, class At>
[[gnu::always_inline]] inline Vec<Sum> rowSum(At at) {
    constexpr int kSide = std::remove_cvref_t<decltype(mask)>::kSide, kCentre = kSide / 2;
    const auto times = [](auto x, auto weight) {
        if constexpr (weight == 1)
            return x;
        else
            return x * splat<Vec<Sum>>(Sum(int(weight)));
    };
    Vec<Sum> sum{};
    unroll<kCentre>([&](auto k) {
        constexpr int left = mask.row[k], right = mask.row[kSide - 1 - k];
        static_assert(left == right || left == -right);
        if constexpr (left != 0) {
            const Vec<Sum> a = at(k), b = at(kSide - 1 - k);
            using Weight = std::integral_constant<int, (right < 0 ? -right : right)>;
            if constexpr (right == left)
                sum = right < 0 ? sum - times(a + b, Weight{}) : sum + times(a + b, Weight{});
            else
                sum = right < 0 ? sum + times(a - b, Weight{}) : sum + times(b - a, Weight{});
        }
    });
    if constexpr (mask.row[kCentre] != 0) {
        using Weight =
            std::integral_constant<int, (mask.row[kCentre] < 0 ? -mask.row[kCentre] : mask.row[kCentre])>;
        const Vec<Sum> c = times(at(kCentre), Weight{});
        sum = mask.row[kCentre] < 0 ? sum - c : sum + c;
    }
    return sum;
}

// ---- Region kernels ---------------------------------------------------------------------------------------

// The rows of a region, one after the other: make(rows, i) makes a block of results from sample i on, of the
// rows that the mask covers, each beginning with the first column of the mask. prepare(rows, samples) is called
// before, once for each stretch of a row. Alpha stays where the layout keeps it.
template <Layout L, int Side, class S, class D>
class MaskedRows {
    static constexpr int N = channelsOf(L);

 public:
    static constexpr ptrdiff_t kBlock = kLanes<S>, kReach = (Side - 1) * N, kStretch = 512;
    using Results = Several<Vec<D>, int(kBlock / kLanes<D>)>;

    template <class Prepare, class Make>
    static void walk(const Region<S, D>& region, Prepare prepare, Make make) {
        const ptrdiff_t width = region.size.width * N;
        for (ptrdiff_t y = 0; y < region.size.height; y++) {
            const S* rows[Side];
            for (int r = 0; r < Side; r++) rows[r] = region.src.from(-(Side / 2) * N, y + r - Side / 2).data;
            D* const dst = region.dst.row(y);
            if (width < kBlock) {
                shortRow(rows, dst, width, region.slack, prepare, make);
                continue;
            }
            for (ptrdiff_t from = 0; from < width; from += kStretch) {
                // The last stretch is a block at least.
                const ptrdiff_t rest = width - from, at = rest < kBlock ? width - kBlock : from,
                                len = rest < kBlock     ? kBlock
                                      : rest < kStretch ? rest
                                                        : kStretch;
                const S* here[Side];
                for (int r = 0; r < Side; r++) here[r] = rows[r] + at;
                prepare(here, len + kReach);
                ptrdiff_t i = 0;
                for (; i + kBlock <= len; i += kBlock) put(dst + at + i, make(here, i));
                if (i < len) put(dst + at + len - kBlock, make(here, len - kBlock));
            }
        }
    }

 private:
    static void put(D* dst, const Results& results) {
        for (int k = 0; k < kBlock / kLanes<D>; k++) {
            D* const to = dst + k * kLanes<D>;
            if constexpr (L == Layout::AC4)
                store(to, keepAlpha<D>(load(to), results.at[k]));
            else
                store(to, results.at[k]);
        }
    }

    template <class Prepare, class Make>
    static void shortRow(const S* const* rows, D* dst, ptrdiff_t width, ptrdiff_t slack, Prepare prepare,
                         Make make) {
        S padded[Side][2 * kBlock + kReach];
        const S* here[Side];
        for (int r = 0; r < Side; r++) {
            here[r] = rows[r];
            if (slack >= kBlock * ptrdiff_t(sizeof(S))) continue;
            __builtin_memset(padded[r], 0, sizeof padded[r]);
            copyBlock(padded[r], rows[r], (width + kReach) * ptrdiff_t(sizeof(S)));
            here[r] = padded[r];
        }
        prepare(here, kBlock + kReach);
        D block[kBlock];
        if constexpr (L == Layout::AC4) copyBlock(block, dst, width * ptrdiff_t(sizeof(D)));
        put(block, make(here, 0));
        copyBlock(dst, block, width * ptrdiff_t(sizeof(D)));
    }
};

// rule(sums) makes results of any mask's sums.
template <Layout L, const auto& mask, class S, class D, class Rule>
struct Stencil {
    void operator()(const Region<S, D>& region) const {
        MaskedRows<L, TapsOf<mask>::kSide, S, D>::walk(
            region, [](const S* const*, ptrdiff_t) {},
            [](const S* const* rows, ptrdiff_t i) { return Rule()(maskSums<mask, channelsOf(L)>(rows, i)); });
    }
};

// The same for a column times a row: the columns of a stretch are summed first.
template <Layout L, const auto& mask, class S, class D, class Rule>
struct ColumnsFirst {
    static constexpr int N = channelsOf(L), kSide = ColumnOf<mask>::kSide;
    using Rows = MaskedRows<L, kSide, S, D>;
    using Sum = SumOf<S>;

    void operator()(const Region<S, D>& region) const {
        alignas(32) Sum columns[Rows::kStretch + Rows::kReach + Rows::kBlock];
        Rows::walk(
            region,
            [&](const S* const* rows, ptrdiff_t samples) {
                const auto sum = [&](ptrdiff_t i) {
                    storeSums(columns + i, maskSums<ColumnOf<mask>::value, N>(rows, i));
                };
                ptrdiff_t i = 0;
                for (; i + Rows::kBlock <= samples; i += Rows::kBlock) sum(i);
                if (i < samples) sum(samples - Rows::kBlock);
            },
            [&](const S* const* rows, ptrdiff_t i) { return Rule()(sums(rows, columns + i, i)); });
    }

 private:
    static auto sums(const S* const* rows, const Sum* columns, ptrdiff_t i) {
        const S* const centre = rows[kSide / 2] + i + kSide / 2 * N;
        const auto part = [&](ptrdiff_t k) {
            const Vec<Sum> sum = rowSum<mask, Sum>([=](int tap) { return load(columns + k + tap * N); });
            if constexpr (mask.centre == 0)
                return sum;
            else if constexpr (std::is_same_v<S, Sum>)
                return sum + load(centre + k) * splat<Vec<Sum>>(Sum(mask.centre));
            else
                return sum + loadAs<Sum>(centre + k) * splat<Vec<Sum>>(Sum(mask.centre));
        };
        if constexpr (std::is_floating_point_v<S>)
            return part(0);
        else
            return Pair<Vec<Sum>>{part(0), part(kLanes<Sum>)};
    }
};

// The lanes of even number and then those of odd become lanes in their order.
template <class V>
inline V inTurn(V halves) {
    constexpr V8u kControl = sizeof(LaneOf<V>) == 1 ? V8u{0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15}
                                                    : V8u{0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};
    return V(shuffleBytes(V8u(halves), kControl));
}

// The same for 3x3 integers of one channel. Columns of even number and of odd have their sums in registers of
// their own, and a step along the row is a shift of lanes: nothing is stored but results. A weight beside 0
// multiplies the samples of either kind in place.
template <const auto& mask, class S, class D, class Rule>
class EvenAndOdd {
    using Rows = MaskedRows<Layout::C1, 3, S, D>;
    using Sum = SumOf<S>;
    static constexpr ptrdiff_t kBlock = Rows::kBlock;

 public:
    void operator()(const Region<S, D>& region) const {
        const ptrdiff_t width = region.size.width;
        if (width < kBlock)
            return Rows::walk(
                region, [](const S* const*, ptrdiff_t) {},
                [](const S* const* rows, ptrdiff_t i) { return blockAt(rows, i); });
        for (ptrdiff_t y = 0; y < region.size.height; y++) {
            const S* rows[3];
            for (int r = 0; r < 3; r++) rows[r] = region.src.from(-1, y + r - 1).data;
            D* const dst = region.dst.row(y);
            ptrdiff_t i = 0;
            Halves here = columnsAt(rows, 0);
            for (; i + 2 * kBlock <= width; i += kBlock) {
                const Halves next = columnsAt(rows, i + kBlock);
                const auto block = results(rows, i,
                                           {{here.even, here.odd, lanesBehind<1>(here.even, next.even),
                                             lanesBehind<1>(here.odd, next.odd)}});
                store(dst + i, block.at[0]);
                here = next;
            }
            for (; i < width; i += kBlock) {
                const ptrdiff_t at = i + kBlock <= width ? i : width - kBlock;
                store(dst + at, blockAt(rows, at).at[0]);
            }
        }
    }

 private:
    struct Halves {
        Vec<Sum> even, odd;
    };

    template <int weight>
    static Halves products(Vec<S> x) {
        if constexpr (sizeof(S) == 1)
            return {multiplyAddPairs(x, V8s(splat<V16s>(Tpx16s(weight & 0xFF)))),
                    multiplyAddPairs(x, V8s(splat<V16s>(Tpx16s(weight * 256))))};
        else
            return {multiplyAddPairs(x, V16s(splat<V32s>(weight & 0xFFFF))),
                    multiplyAddPairs(x, V16s(splat<V32s>(weight * 65536)))};
    }

    [[gnu::always_inline]] static Halves columnsAt(const S* const* rows, ptrdiff_t i) {
        Halves sums{};
        unroll<3>([&](auto r) __attribute__((always_inline)) {
            const Halves row = products<mask.column[r]>(load(rows[r] + i));
            sums.even += row.even;
            sums.odd += row.odd;
        });
        return sums;
    }

    // By itself: of the block behind it nothing but the first two columns may be there to be read.
    [[gnu::always_inline]] static auto blockAt(const S* const* rows, ptrdiff_t i) {
        const Halves first = columnsAt(rows, i), third = columnsAt(rows, i + 2);
        return results(rows, i, {{first.even, first.odd, third.even, third.odd}});
    }

    // Sums of every second column from the first, the second, the third and the fourth on become results.
    [[gnu::always_inline]] static auto results(const S* const* rows, ptrdiff_t i,
                                               const Several<Vec<Sum>, 4>& columns) {
        Pair<Vec<Sum>> sums = {rowSum<mask, Sum>([&](int tap) { return columns.at[tap]; }),
                               rowSum<mask, Sum>([&](int tap) { return columns.at[tap + 1]; })};
        const Halves centre = products<mask.centre>(load(rows[1] + i + 1));
        sums.low += centre.even;
        sums.high += centre.odd;
        const Several<Vec<D>, 1> byHalves = Rule()(sums);
        return Several<Vec<D>, 1>{{inTurn(byHalves.at[0])}};
    }
};

} // namespace tpx
