// SPDX-License-Identifier: Apache-2.0
// Region kernels of medians (filters/border_model.h tells what a region is): the median of each channel under a
// mask.
//
// ShapeMedian: a few samples at fixed places, all in registers. SquareMedian: squares whose sorted columns are
// shared by neighbouring results. CountedMedian: any mask, by bisection.
#pragma once

#include "filters/median_networks.h"
#include "frame/entry/entry.h"

namespace tpx {

// ---- A row of results -------------------------------------------------------------------------------------

// dst[i...] = at(i), a register each; of a row shorter than a register only the first samples are kept. Alpha
// stays where the layout keeps it.
template <Layout L, class T, class At>
[[gnu::always_inline]] inline void writeRow(T* dst, ptrdiff_t width, At at) {
    const auto put = [](T* to, Vec<T> result) {
        if constexpr (L == Layout::AC4) result = keepAlpha<T>(load(to), result);
        store(to, result);
    };
    constexpr ptrdiff_t kLane = kLanes<T>;
    if (width < kLane) {
        T block[kLane];
        if constexpr (L == Layout::AC4) copyBlock(block, dst, width * ptrdiff_t(sizeof(T)));
        put(block, at(0));
        copyBlock(dst, block, width * ptrdiff_t(sizeof(T)));
        return;
    }
    ptrdiff_t i = 0;
    for (; i + kLane <= width; i += kLane) put(dst + i, at(i));
    if (i < width) put(dst + width - kLane, at(width - kLane));
}

// A register of which `len` samples can be read, and `slack` bytes behind them.
template <class T>
inline Vec<T> loadWithin(const T* p, ptrdiff_t len, ptrdiff_t slack) {
    return len * ptrdiff_t(sizeof(T)) + slack >= ptrdiff_t(sizeof(Vec<T>)) ? load(p) : loadShort(p, len);
}

// ---- Shapes -----------------------------------------------------------------------------------------------

// A shape has kWidth, kHeight, kCount, a constexpr at(k) that tells column and row of its k-th sample, and
// select(v), which makes the result of registers of them.
struct ShapePlace {
    int column, row;
};

template <int Width, int Height>
struct RectangleShape {
    static constexpr int kWidth = Width, kHeight = Height, kCount = Width * Height;
    static constexpr ShapePlace at(int k) { return {k % Width, k / Width}; }
    template <class V>
    [[gnu::always_inline]] static V select(V* v) {
        return medianOf<kCount>(v);
    }
};

template <int Side>
struct CrossShape {
    static constexpr int kWidth = Side, kHeight = Side, kCount = 2 * Side - 1;
    static constexpr ShapePlace at(int k) {
        return k < Side ? ShapePlace{k, Side / 2} : ShapePlace{Side / 2, k - Side + (k - Side >= Side / 2)};
    }
    template <class V>
    [[gnu::always_inline]] static V select(V* v) {
        return medianOf<kCount>(v);
    }
};

// A square of three whose centre counts 2 * Pairs + 1 times: it is the median unless so many of the others lie
// on one side that one of them is.
template <int Pairs>
struct WeightedShape {
    static constexpr int kWidth = 3, kHeight = 3, kCount = 9;
    static constexpr ShapePlace at(int k) {
        return k == 8 ? ShapePlace{1, 1} : ShapePlace{(k + (k > 3)) % 3, (k + (k > 3)) / 3};
    }
    template <class V>
    [[gnu::always_inline]] static V select(V* v) {
        sortNetwork<8>(v);
        return minOf(maxOf(v[8], v[3 - Pairs]), v[4 + Pairs]);
    }
};

template <Layout L, class Shape, class T>
struct ShapeMedian {
    static constexpr int N = channelsOf(L), kHeight = Shape::kHeight;

    void operator()(const Region<T, T>& region) const {
        constexpr ptrdiff_t kReach = (Shape::kWidth - 1) * N;
        const ptrdiff_t width = region.size.width * N;
        const bool padded = width < kLanes<T> && region.slack < ptrdiff_t(sizeof(Vec<T>));
        T pad[kHeight][kLanes<T> + kReach] = {};
        for (ptrdiff_t y = 0; y < region.size.height; y++) {
            const T* rows[kHeight];
            for (int r = 0; r < kHeight; r++) {
                rows[r] = region.src.from(-(Shape::kWidth / 2) * N, y + r - kHeight / 2).data;
                if (!padded) continue;
                copyBlock(pad[r], rows[r], (width + kReach) * ptrdiff_t(sizeof(T)));
                rows[r] = pad[r];
            }
            writeRow<L>(region.dst.row(y), width, [&](ptrdiff_t i) TPX_INLINED {
                Vec<T> v[Shape::kCount];
                unroll<Shape::kCount>([&](auto k) TPX_INLINED {
                    constexpr ShapePlace place = Shape::at(k);
                    v[k] = load(rows[place.row] + i + place.column * N);
                });
                return Shape::select(v);
            });
        }
    }
};

// ---- Squares ----------------------------------------------------------------------------------------------

// Two rows of results at a time: the rows that both need are sorted once. Sorted columns lie in tiles on the
// stack, so that every register of results reads them at its own offsets.
template <Layout L, int K, class T>
class SquareMedian {
    static constexpr int N = channelsOf(L);
    static constexpr ptrdiff_t kLane = kLanes<T>, kReach = (K - 1) * N, kTile = 1024 / ptrdiff_t(sizeof(T));

    struct Columns {
        alignas(32) T rank[K][kTile + ptrdiff_t(roundUp(kReach, kLane)) + kLane];
    };

 public:
    void operator()(const Region<T, T>& region) const {
        const ptrdiff_t width = region.size.width * N;
        Columns upper, lower;
        for (ptrdiff_t y = 0; y < region.size.height; y += 2) {
            const bool two = y + 1 < region.size.height;
            for (ptrdiff_t x = 0; x < width; x += kTile) {
                const ptrdiff_t tile = width - x < kTile ? width - x : kTile;
                const T* rows[K + 1];
                for (int r = 0; r <= K; r++)
                    rows[r] = region.src.from(x - (K / 2) * N, y + (r < K || two ? r : r - 1) - K / 2).data;
                sortColumns(rows, tile + kReach, region.slack, upper, lower);
                select(upper, region.dst.row(y) + x, tile);
                if (two) select(lower, region.dst.row(y + 1) + x, tile);
            }
        }
    }

 private:
    static void sortColumns(const T* const* rows, ptrdiff_t count, ptrdiff_t slack, Columns& upper,
                            Columns& lower) {
        const auto sortAt = [&](ptrdiff_t i, auto loadRow) TPX_INLINED {
            Vec<T> common[K - 1], sorted[K];
            unroll<K - 1>([&](auto r) TPX_INLINED { common[r] = loadRow(rows[r + 1] + i); });
            sortNetwork<K - 1>(common);
            insertSorted<K - 1>(common, loadRow(rows[0] + i), sorted);
            unroll<K>([&](auto r) TPX_INLINED { store(upper.rank[r] + i, sorted[r]); });
            insertSorted<K - 1>(common, loadRow(rows[K] + i), sorted);
            unroll<K>([&](auto r) TPX_INLINED { store(lower.rank[r] + i, sorted[r]); });
        };
        const auto whole = [](const T* p) { return load(p); };
        if (count < kLane) return sortAt(0, [&](const T* p) { return loadWithin(p, count, slack); });
        ptrdiff_t i = 0;
        for (; i + kLane <= count; i += kLane) sortAt(i, whole);
        if (i < count) sortAt(count - kLane, whole);
    }

    static void select(const Columns& columns, T* dst, ptrdiff_t width) {
        writeRow<L>(dst, width, [&](ptrdiff_t i) TPX_INLINED {
            return medianOfColumns<K>([&](auto rank, auto column)
                                          TPX_INLINED { return load(columns.rank[rank] + i + column * N); });
        });
    }
};

// The square of three. Columns are sorted once and stay in registers, from which the neighbours of a register's
// columns are cut.
template <Layout L, class T>
class SquareOfThree {
    static constexpr int N = channelsOf(L);
    static constexpr ptrdiff_t kLane = kLanes<T>;
    using V = Vec<T>;
    static_assert(2 * N * sizeof(T) <= sizeof(V) && sizeof(V) == 16);

    struct Sorted {
        V low, middle, high;
    };

 public:
    void operator()(const Region<T, T>& region) const {
        const ptrdiff_t width = region.size.width * N;
        for (ptrdiff_t y = 0; y < region.size.height; y++) {
            const T* rows[3];
            for (int r = 0; r < 3; r++) rows[r] = region.src.from(-N, y + r - 1).data;
            T* const dst = region.dst.row(y);
            ptrdiff_t done = 0;
            if (width + 2 * N >= 2 * kLane) {
                Sorted columns = sorted(rows, 0);
                for (; done + 2 * kLane <= width + 2 * N; done += kLane) {
                    const Sorted next = sorted(rows, done + kLane);
                    writeRow<L>(dst + done, kLane, [&](ptrdiff_t) TPX_INLINED {
                        return median(columns, cut<1>(columns, next), cut<2>(columns, next));
                    });
                    columns = next;
                }
            }
            if (done < width) finish(rows, dst, done, width, region.slack);
        }
    }

 private:
    static Sorted sorted(const T* const* rows, ptrdiff_t i) {
        return sorted(load(rows[0] + i), load(rows[1] + i), load(rows[2] + i));
    }
    static Sorted sorted(V a, V b, V c) {
        putInOrder(a, b);
        const V high = maxOf(b, c);
        b = minOf(b, c);
        return {minOf(a, b), maxOf(a, b), high};
    }
    // The columns so many pixels to the right.
    template <int Pixels>
    static Sorted cut(const Sorted& a, const Sorted& b) {
        return {lanesBehind<Pixels * N>(a.low, b.low), lanesBehind<Pixels * N>(a.middle, b.middle),
                lanesBehind<Pixels * N>(a.high, b.high)};
    }
    static V median(const Sorted& a, const Sorted& b, const Sorted& c) {
        return medianOfThree(maxOf(maxOf(a.low, b.low), c.low), medianOfThree(a.middle, b.middle, c.middle),
                             minOf(minOf(a.high, b.high), c.high));
    }

    // The last results of a row, fewer than two registers; the last register may overlap others.
    static void finish(const T* const* rows, T* dst, ptrdiff_t done, ptrdiff_t width, ptrdiff_t slack) {
        if (done > 0 && width - done < kLane) done = width - kLane;
        writeRow<L>(dst + done, width - done, [&](ptrdiff_t i) {
            const auto columns = [&](int pixels) {
                const ptrdiff_t at = done + i + pixels * N, end = width + 2 * N;
                return sorted(loadWithin(rows[0] + at, end - at, slack),
                              loadWithin(rows[1] + at, end - at, slack),
                              loadWithin(rows[2] + at, end - at, slack));
            };
            return median(columns(0), columns(1), columns(2));
        });
    }
};

// ---- Any mask: bisection ----------------------------------------------------------------------------------

// Samples as keys, whose unsigned order is that of the samples, and the counting of samples in lanes.
template <class T>
struct Keys {
    using Key = std::make_unsigned_t<BitsOf<T>>;
    using V = VecBits<T>;
    static constexpr BitsOf<T> kTop = BitsOf<T>(Key(1) << (kBits<T> - 1));

    static Vec<T> samples(V keys) { return select(keys, bitsAs<Vec<T>>(keys ^ kTop), bitsAs<Vec<T>>(~keys)); }
    template <class M>
    static V choose(M mask, V a, V b) {
        return bitsAs<V>(select(mask, bitsAs<Vec<T>>(a), bitsAs<Vec<T>>(b)));
    }
};
template <class T>
requires(std::is_integral_v<T>) struct Keys<T> {
    using Key = std::make_unsigned_t<T>;
    using V = Vec<Key>;
    static constexpr Key kTop = Key(1u << (kBits<T> - 1));

    static Vec<T> samples(V keys) {
        if constexpr (std::is_signed_v<T>)
            return Vec<T>(keys ^ kTop);
        else
            return keys;
    }
    template <class M>
    static V choose(M mask, V a, V b) {
        return select(mask, a, b);
    }
};

// How many of the samples that a lane is shown are not below its threshold; NaN always is. A lane of the
// samples' own width has room for so many. Wide counts are carried to lanes of 32 bits before that.
template <class T>
inline constexpr int64_t kLaneRoom = sizeof(T) == 1   ? 255
                                     : sizeof(T) == 2 ? 32767
                                                      : 1 << 24;

template <class T, bool Wide>
class LaneCount {
    static constexpr bool kFloats = std::is_floating_point_v<T>;
    using Lanes = std::conditional_t<kFloats, Vec<T>, typename Keys<T>::V>;

 public:
    void add(Vec<T> x, Vec<T> threshold) {
        if constexpr (kFloats)
            lanes_ += masked(threshold <= x, splat<Vec<T>>(1));
        else if constexpr (std::is_signed_v<T>)
            lanes_ -= Lanes(x > threshold - 1); // no threshold is the least sample
        else
            lanes_ -= Lanes(subSat(threshold, x) == Lanes{});
    }
    void carry() {
        const auto addTo = [](Pair<V32s>& total, auto more) {
            total.low += V32s(more.low);
            total.high += V32s(more.high);
        };
        if constexpr (sizeof(T) == 1) {
            const Pair<V16u> halves = widen(lanes_);
            addTo(totals_[0], widen(halves.low));
            addTo(totals_[1], widen(halves.high));
        } else if constexpr (sizeof(T) == 2) {
            addTo(totals_[0], widen(lanes_));
        } else {
            addTo(totals_[0], toInteger(lanes_));
        }
        lanes_ = Lanes{};
    }
    auto reaches(int64_t count) const {
        const auto wide = [count](const Pair<V32s>& total) {
            const V32s less = splat<V32s>(int(count - 1));
            return Pair<V32s>{total.low > less, total.high > less};
        };
        if constexpr (!Wide)
            return lanes_ >= splat<Lanes>(LaneOf<Lanes>(count));
        else if constexpr (sizeof(T) == 1)
            return narrow<Tpx8s>(
                Pair<V16s>{narrow<Tpx16s>(wide(totals_[0])), narrow<Tpx16s>(wide(totals_[1]))});
        else if constexpr (sizeof(T) == 2)
            return narrow<Tpx16s>(wide(totals_[0]));
        else
            return join(wide(totals_[0]));
    }

 private:
    Lanes lanes_{};
    Pair<V32s> totals_[2]{};
};

// The median's key has a bit if enough samples are not below the key with the bit, from the top bit down.
template <Layout L, class T>
class BisectedMedian {
    static constexpr int N = channelsOf(L);
    using V = Vec<T>;

 public:
    explicit BisectedMedian(TpxiSizeL mask) : mask_(mask) {}

    void operator()(const Region<T, T>& region) const {
        if (sizeof(T) == 8 || mask_.width * mask_.height <= kLaneRoom<T>)
            run<false>(region);
        else if constexpr (sizeof(T) < 8)
            run<true>(region);
    }

 private:
    template <bool Wide>
    void run(const Region<T, T>& region) const {
        const ptrdiff_t width = region.size.width * N;
        for (ptrdiff_t y = 0; y < region.size.height; y++) {
            const ImageView<const T> window = region.src.from(-(mask_.width / 2) * N, y - mask_.height / 2);
            if (width >= kLanes<T>) {
                writeRow<L>(region.dst.row(y), width, [&](ptrdiff_t i) TPX_INLINED {
                    return median<Wide>(window,
                                        [i](const T* row, ptrdiff_t column) { return load(row + i + column); });
                });
            } else {
                const ptrdiff_t end = width + (mask_.width - 1) * N, slack = region.slack;
                writeRow<L>(region.dst.row(y), width, [&](ptrdiff_t) {
                    return median<Wide>(window, [=](const T* row, ptrdiff_t column) {
                        return loadWithin(row + column, end - column, slack);
                    });
                });
            }
        }
    }

    // sampleAt(row, column) loads the register of samples in a column of the mask.
    template <bool Wide, class SampleAt>
    V median(ImageView<const T> window, SampleAt sampleAt) const {
        using Key = typename Keys<T>::Key;
        const int64_t count = mask_.width * mask_.height, notBelow = count - count / 2;
        const ptrdiff_t end = mask_.width * N;
        typename Keys<T>::V key{};
        for (Key bit = Key(Keys<T>::kTop); bit != 0; bit = Key(bit >> 1)) {
            const typename Keys<T>::V tried = key | LaneOf<typename Keys<T>::V>(bit);
            const V threshold = Keys<T>::samples(tried);
            LaneCount<T, Wide> counted;
            for (int64_t r = 0; r < mask_.height; r++) {
                const T* const row = window.row(r);
                ptrdiff_t column = 0;
                if constexpr (Wide) {
                    for (ptrdiff_t piece; column < end;) {
                        piece = end - column < kLaneRoom<T> * N ? end : column + kLaneRoom<T> * N;
                        for (; column < piece; column += N) counted.add(sampleAt(row, column), threshold);
                        counted.carry();
                    }
                } else {
                    for (; column < end; column += N) counted.add(sampleAt(row, column), threshold);
                }
            }
            key = Keys<T>::choose(counted.reaches(notBelow), tried, key);
        }
        V result = Keys<T>::samples(key);
        // No sample reached the keys below that of negative infinity, which are NaN.
        if constexpr (std::is_floating_point_v<T>) result = maxOf(result, splat<V>(-T(__builtin_inf())));
        return result;
    }

    TpxiSizeL mask_;
};

} // namespace tpx
