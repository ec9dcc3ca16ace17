// SPDX-License-Identifier: Apache-2.0
// A region kernel of medians for masks that are too large for written networks, of any type of samples.
//
// The masks of a square of 4 or 16 results share most of their samples: that core is sorted once. Then the
// square is halved again and again. The masks of a half share a few columns or rows more, which are merged into
// a copy of the core, until one result is left. Of what is sorted only those samples are kept that can still be
// the middle one, whatever the others are, so cores shrink while they see more. (After Adams, Fast Median
// Filters using Separable Sorting Networks, ACM Transactions on Graphics 40 (4), 2021.)
//
// A register holds the same sample of as many neighbouring squares. So that it can be loaded, columns lie in as
// many planes as a square has, of every second or fourth column each.
#pragma once

#include "filters/median_kernels.h"

namespace tpx {

// ---- Sorted lists of registers ----------------------------------------------------------------------------

// Two steps of the merge at once, of samples 2 * apart and then `apart` places from each other: among every
// apart-th place of the network those of numbers 2-4, 3-5, 6-8, 7-9, ... and then 1-2, 3-4, 5-6, ... Only
// places from `low` to `high` are touched; the network has `origin` more before them.
template <class V>
[[gnu::always_inline]] inline void mergeTwoSteps(V* list, int apart, int origin, int low, int high) {
    const auto four = [=](int at) TPX_INLINED {
        const auto pair = [=](int i, int k) {
            if (i >= low && k < high) putInOrder(list[i], list[k]);
        };
        pair(at + apart, at + 3 * apart);
        pair(at + 2 * apart, at + 4 * apart);
        pair(at, at + apart);
        pair(at + 2 * apart, at + 3 * apart);
    };
    for (int k = 0; k < apart; k++) {
        int at = low - ((low + origin - apart - k) & (4 * apart - 1)); // a place whose number is 1, 5, ...
        if (at < low) {
            four(at);
            at += 4 * apart;
        }
        if (at + 4 * apart < high) {
            V before = list[at];
            for (; at + 4 * apart < high; at += 4 * apart) {
                V a = list[at + apart], b = list[at + 2 * apart], c = list[at + 3 * apart],
                  d = list[at + 4 * apart];
                putInOrder(a, c);
                putInOrder(b, d);
                putInOrder(before, a);
                putInOrder(b, c);
                list[at] = before;
                list[at + apart] = a;
                list[at + 2 * apart] = b;
                list[at + 3 * apart] = c;
                before = d;
            }
            list[at] = before;
        }
        four(at);
    }
}

// Batcher's odd-even merge of list[0, first) and of the `second` samples behind them, both sorted. Only results
// from `from` to `to` are wanted; the others may come out in any order.
template <class V>
void mergeSorted(V* list, int first, int second, int from, int to) {
    const int all = first + second;
    int top = 1;
    while (top < first || top < second) top *= 2;
    for (int i = 0; i + top < all; i++) putInOrder(list[i], list[i + top]);
    // The network is one of two lists of `top` samples, as if lower ones than any lay before the first, and
    // higher ones behind the second. These stay where they are.
    const int origin = top - first;
    for (int apart = top / 2; apart > 0; apart /= 2) {
        // A wanted result depends on places that are less far away; more of them would cost time alone.
        const int low = from - 2 * apart < 0 ? 0 : from - 2 * apart,
                  high = to + 2 * apart < all ? to + 2 * apart : all;
        if (apart == 8) {
            mergeTwoSteps(list, 4, origin, low, high);
            apart = 4;
        } else if (apart == 2) {
            return mergeTwoSteps(list, 1, origin, low, high);
        } else {
            for (int block = apart - origin; block + apart < high; block += 2 * apart) {
                const int end = block + 2 * apart < high ? block + apart : high - apart;
                for (int i = block < low ? low : block; i < end; i++) putInOrder(list[i], list[i + apart]);
            }
        }
    }
}
template <class V>
void mergeSorted(V* list, int first, int second) {
    mergeSorted(list, first, second, 0, first + second);
}

template <class V>
void sortList(V* list, int count) {
    switch (count) {
        case 0:
        case 1:
            return;
        case 2:
            return sortNetwork<2>(list);
        case 3:
            return sortNetwork<3>(list);
        case 4:
            return sortNetwork<4>(list);
        case 5:
            return sortNetwork<5>(list);
        case 6:
            return sortNetwork<6>(list);
        case 7:
            return sortNetwork<7>(list);
        case 8:
            return sortNetwork<8>(list);
        default:
            sortList(list, count / 2);
            sortList(list + count / 2, count - count / 2);
            mergeSorted(list, count / 2, count - count / 2);
    }
}

// ---- The kernel -------------------------------------------------------------------------------------------

// What samples are sorted as: what they are, or floats as integers of the same order, whose registers are half
// as long, so that the lists of larger masks fit the stack.
template <class S>
struct AsItIs {
    using Key = S;
    static Key keyOf(S sample) {
        if constexpr (std::is_floating_point_v<S>)
            return sample == sample ? sample : -S(__builtin_inf()); // NaN is lower than all numbers
        else
            return sample;
    }
    static S sampleOf(Key key) { return key; }
};
struct AsInteger {
    using Key = Tpx32s;
    static Key keyOf(Tpx32f sample) { return ordered(__builtin_bit_cast(Key, AsItIs<Tpx32f>::keyOf(sample))); }
    static Tpx32f sampleOf(Key key) { return __builtin_bit_cast(Tpx32f, ordered(key)); }

 private:
    // Larger magnitudes of negative floats have the larger bits.
    static Key ordered(Key bits) { return bits ^ (bits >> 31 & kMax<Key>); }
};

// Squares have 2 or 4 results a side, and masks are larger.
template <class S, int kSide, class Keys = AsItIs<S>>
class TileMedian {
    using T = typename Keys::Key;
    using V = Vec<T>;
    static constexpr int kLane = kLanes<T>, kWidest = 4;
    static constexpr ptrdiff_t kBytes = 43008; // on the stack, beside a band of a border

 public:
    static bool serves(TpxiSizeL mask) {
        // The lists of larger masks are far from that size, which must not overflow.
        return mask.width > kSide && mask.height > kSide && mask.width < 256 && mask.height < 256 &&
               Plan(mask, 1).bytes <= kBytes && Plan(turned(mask), 1).bytes <= kBytes;
    }

    // Of pixels of `channels` samples, of which those of the first `colours` are filtered.
    TileMedian(TpxiSizeL mask, int channels, int colours)
        : mask_(mask), channels_(channels), colours_(colours) {}

    void operator()(const Region<S, S>& region) const {
        const auto src = region.src.from(-(mask_.width / 2) * channels_, -(mask_.height / 2));
        const ptrdiff_t pixel = channels_ * ptrdiff_t(sizeof(S));
        const Image image{bytesOf(src).data, pixel,      src.step, bytesOf(region.dst).data, pixel,
                          region.dst.step,   region.size};
        // Squares lie side by side, or one below the other in a narrow strip, where more of them have results.
        const bool narrow = region.size.width < kLane * kSide / 2 && region.size.width < region.size.height;
        const TpxiSizeL mask = narrow ? turned(mask_) : mask_;
        for (int c = 0; c < colours_; c++) {
            const Image channel = image.moved(c * ptrdiff_t(sizeof(S)));
            filter(narrow ? channel.turned() : channel, mask);
        }
    }

 private:
    // Columns for rows.
    static constexpr TpxiSizeL turned(TpxiSizeL size) { return {size.height, size.width}; }

    struct Image {
        const Tpx8u* src;
        ptrdiff_t srcRight, srcDown;
        Tpx8u* dst;
        ptrdiff_t dstRight, dstDown;
        TpxiSizeL size;

        Image moved(ptrdiff_t bytes) const {
            Image image = *this;
            image.src = addBytes(src, bytes);
            image.dst = addBytes(dst, bytes);
            return image;
        }
        Image turned() const {
            return {src, srcDown, srcRight, dst, dstDown, dstRight, TileMedian::turned(size)};
        }
        Image from(int64_t x, int64_t y) const {
            return {addBytes(src, x * srcRight + y * srcDown), srcRight, srcDown,
                    addBytes(dst, x * dstRight + y * dstDown), dstRight, dstDown,
                    {size.width - x, size.height - y}};
        }
    };

    // Numbers that a mask gives. A square's columns are numbered from 1, so that the core begins in the first
    // plane.
    struct Plan {
        int width, height, samples, rank;
        int coreWidth, coreHeight;
        int squares; // of a band
        int apart;   // from a plane's row to the next
        ptrdiff_t bytes;

        Plan(TpxiSizeL mask, int registers)
            : width(int(mask.width)),
              height(int(mask.height)),
              samples(width * height),
              rank(samples / 2),
              coreWidth(width - kSide + 1),
              coreHeight(height - kSide + 1),
              squares(registers * kLane),
              apart((squares + (width + kSide - 1) / kSide + kLane - 1) / kLane * kLane) {
            const ptrdiff_t planes =
                ptrdiff_t(height + kSide - 1 + 2 * coreHeight) * kSide * apart * ptrdiff_t(sizeof(T));
            // The square's core, of which the upper part is given up before its halves', and the lines that are
            // still to come.
            const int whole = coreWidth * coreHeight, kept = whole < rank + 1 ? whole : rank + 1;
            const int parts = kept + keptOf(whole) + 2 * coreHeight + keptOf((coreWidth + 2) * coreHeight) +
                              2 * (coreWidth + 2) + keptOf((coreWidth + 2) * (coreHeight + 2)) + coreHeight + 2;
            const int cores = whole > parts ? whole : parts;
            const int lines = 12 * (coreWidth + 2) + 2 * (coreHeight + 2) + 2 * width;
            bytes = planes + ptrdiff_t(cores + lines + kSide * kSide) * ptrdiff_t(sizeof(V));
        }
        // How many of so many sorted samples can be the middle one of all.
        int keptOf(int seen) const {
            const int low = seen + rank - samples, high = seen < rank + 1 ? seen : rank + 1;
            return high - (low > 0 ? low : 0);
        }
    };

    // Sorted samples, a register each.
    struct Line {
        const T* first;
        ptrdiff_t apart;
        V at(int k) const { return load(first + k * apart); }
    };
    struct Core {
        const V* list;
        int count, seen, below; // `below` of those seen are left out, and lower
    };
    // What lies along one direction: the lines that all masks of a tile share, and those next to them, sorted,
    // from the core outwards.
    struct Lines {
        int from, count;
        const Line *low, *high;
    };

    struct Work {
        const Plan& plan;
        const T *raw, *columns, *blocks; // by planes
        V* result;                       // of each place in a square
        V* end;

        V* take(int count) {
            V* const at = end;
            end += count;
            return at;
        }
        V sample(int column, int row, int square) const {
            return load(raw + ptrdiff_t(row * kSide + column % kSide) * plan.apart + column / kSide + square);
        }
    };

    [[gnu::noinline]] static void filter(const Image& image, TpxiSizeL mask) {
        int registers = kWidest;
        while (registers > 1 &&
               (Plan(mask, registers).bytes > kBytes || (registers - 1) * kLane * kSide >= image.size.width))
            registers--;
        const Plan plan(mask, registers);
        alignas(64) Tpx8u memory[kBytes];
        for (int64_t y = 0; y < image.size.height; y += kSide)
            for (int64_t x = 0; x < image.size.width; x += plan.squares * kSide)
                filterBand(image.from(x, y), plan, memory);
    }

    // A row of squares.
    static void filterBand(const Image& image, const Plan& plan, Tpx8u* memory) {
        const ptrdiff_t plane = plan.apart, row = kSide * plane;
        T* const raw = reinterpret_cast<T*>(memory);
        T* const columns = raw + (plan.height + kSide - 1) * row;
        T* const blocks = columns + plan.coreHeight * row;
        Work work{plan, raw, columns, blocks, nullptr, reinterpret_cast<V*>(blocks + plan.coreHeight * row)};
        gather(image, plan, raw);
        sortColumns(work, columns, blocks);
        work.result = work.take(kSide * kSide);
        for (int square = 0; square < plan.squares && square * kSide < image.size.width; square += kLane) {
            Work own = work;
            refineSquares(own, square);
            scatter(image.from(square * kSide, 0), work.result);
        }
    }

    static T keyOf(const Tpx8u* p) { return Keys::keyOf(peek(reinterpret_cast<const S*>(p))); }
    static void gather(const Image& image, const Plan& plan, T* raw) {
        const int64_t columns = image.size.width + plan.width - 1, rows = image.size.height + plan.height - 1;
        for (int r = 0; r < plan.height + kSide - 1; r++) {
            const Tpx8u* const from = addBytes(image.src, (r < rows ? r : rows - 1) * image.srcDown);
            for (int p = 0; p < kSide; p++) {
                T* const to = raw + (r * kSide + p) * plan.apart;
                // There is no column 0, and what lies behind the last one is not used.
                const int64_t there = (columns - p + kSide) / kSide;
                const int count = there < plan.apart ? int(there) : plan.apart;
                const Tpx8u* at = addBytes(from, (p == 0 ? kSide - 1 : p - 1) * image.srcRight);
                for (int q = p == 0; q < count; q++, at = addBytes(at, kSide * image.srcRight))
                    to[q] = keyOf(at);
                const T any = keyOf(from);
                if (p == 0) to[0] = any;
                for (int q = count < 0 ? 0 : count; q < plan.apart; q++) to[q] = any;
            }
        }
    }
    static void scatter(const Image& image, const V* result) {
        const int64_t width = image.size.width < kLane * kSide ? image.size.width : kLane * kSide;
        for (int r = 0; r < kSide && r < image.size.height; r++) {
            T results[kSide][kLane];
            __builtin_memcpy(results, result + r * kSide, sizeof results);
            Tpx8u* to = addBytes(image.dst, r * image.dstDown);
            for (int x = 0; x < width; x++, to = addBytes(to, image.dstRight))
                poke(reinterpret_cast<S*>(to), Keys::sampleOf(results[x % kSide][x / kSide]));
        }
    }

    // The rows of the core in every column, and in each block of columns, one of each plane.
    static void sortColumns(const Work& work, T* columns, T* blocks) {
        const Plan& plan = work.plan;
        const int height = plan.coreHeight;
        V* const list = work.end;
        for (int q = 0; q < plan.apart; q += kLane) {
            for (int p = 0; p < kSide; p++) {
                V* const column = list + p * height;
                for (int k = 0; k < height; k++) column[k] = work.sample(p, kSide - 1 + k, q);
                sortList(column, height);
                for (int k = 0; k < height; k++) store(columns + (k * kSide + p) * plan.apart + q, column[k]);
            }
            for (int n = height; n < kSide * height; n *= 2)
                for (int at = 0; at < kSide * height; at += 2 * n) mergeSorted(list + at, n, n);
            for (int k = 0; k < kSide * height; k++) store(blocks + k * plan.apart + q, list[k]);
        }
    }

    static Line columnOf(const Work& work, int column, int square) {
        return {work.columns + column % kSide * work.plan.apart + column / kSide + square,
                kSide * ptrdiff_t(work.plan.apart)};
    }
    static void copyLine(const Line& line, int count, V* to) {
        for (int k = 0; k < count; k++) to[k] = line.at(k);
    }

    // Blocks of columns from one on.
    static void sortBlocks(const Work& work, int first, int count, int square, V* list) {
        const int samples = kSide * work.plan.coreHeight;
        if (count == 1) return copyLine({work.blocks + first + square, work.plan.apart}, samples, list);
        int half = 1;
        while (2 * half < count) half *= 2;
        sortBlocks(work, first, half, square, list);
        sortBlocks(work, first + half, count - half, square, list + half * samples);
        mergeSorted(list, half * samples, (count - half) * samples);
    }

    // Merges what follows a core's copy into it, and keeps what can be the middle one.
    static Core merged(Work& work, V* list, Core core, int more) {
        const int all = core.count + more, rank = work.plan.rank - core.below;
        const int seen = core.seen + more, low = rank - (work.plan.samples - seen);
        const int from = low > 0 ? low : 0, to = rank + 1 < all ? rank + 1 : all;
        if (core.count > 0 && more > 0) mergeSorted(list, core.count, more, from, to);
        work.end = list + to;
        return {list + from, to - from, seen, core.below + from};
    }

    // The results of a register of squares.
    static void refineSquares(Work& work, int square) {
        const Plan& plan = work.plan;
        const int blocks = plan.coreWidth / kSide, rest = plan.coreWidth % kSide, height = plan.coreHeight;
        // Rows above and below, from the core outwards.
        Line rows[2][kSide - 1];
        for (int k = 0; k < kSide - 1; k++) {
            for (int below = 0; below < 2; below++) {
                V* const list = work.take(plan.coreWidth);
                for (int x = 0; x < plan.coreWidth; x++)
                    list[x] = work.sample(kSide + x, below ? plan.height + k : kSide - 2 - k, square);
                sortList(list, plan.coreWidth);
                rows[below][k] = {reinterpret_cast<const T*>(list), kLane};
            }
        }
        Line columns[2][kSide - 1];
        for (int k = 0; k < kSide - 1; k++) {
            columns[0][k] = columnOf(work, kSide - 1 - k, square);
            columns[1][k] = columnOf(work, kSide + plan.coreWidth + k, square);
        }
        V* const list = work.end;
        const int first = blocks * kSide * height;
        if (blocks > 0) sortBlocks(work, 1, blocks, square, list);
        Core core{list, first, first, 0};
        for (int k = 0; k < rest; k++)
            copyLine(columnOf(work, kSide + blocks * kSide + k, square), height, list + first + k * height);
        if (rest > 0) mergeSorted(list + first, height, height);
        core = merged(work, list, core, rest * height);
        refine<kSide, kSide, false>(work, square, core, {kSide, plan.coreWidth, columns[0], columns[1]},
                                    {kSide - 1, height, rows[0], rows[1]});
    }

    // Halves a tile of so many results in one direction, where it shares the lines `along`.
    template <int Side, int Other, bool Rows>
    static void refine(const Work& work, int square, const Core& core, const Lines& along,
                       const Lines& across) {
        constexpr int kMore = Side / 2;
        for (int half = 0; half < 2; half++) {
            Work own = work;
            const Line* const lines = half ? along.high : along.low;
            if constexpr (Side == 2 && Other == 1) {
                const int y = Rows ? along.from - !half : across.from,
                          x = Rows ? across.from : along.from - !half;
                own.result[y * kSide + x - 1] = middleOf(core, lines[0], across.count);
            } else {
                V* const list = own.end;
                for (int k = 0; k < core.count; k++) list[k] = core.list[k];
                V* const more = list + core.count;
                for (int k = 0; k < kMore; k++) copyLine(lines[k], across.count, more + k * across.count);
                if (kMore == 2) mergeSorted(more, across.count, across.count);
                const Core next = merged(own, list, core, kMore * across.count);
                // The lines across go through the new ones.
                Line longer[2][Other - 1];
                for (int k = 0; k < Other - 1; k++)
                    for (int high = 0; high < 2; high++) {
                        const int at = high ? across.from + across.count + k : across.from - 1 - k;
                        V* const to = own.take(along.count + kMore);
                        Line line = (high ? across.high : across.low)[k];
                        for (int i = 0; i < kMore; i++) {
                            const int through = half ? along.from + along.count + i : along.from - 1 - i;
                            insert(line, along.count + i,
                                   Rows ? own.sample(at, through, square) : own.sample(through, at, square),
                                   to);
                            line = {reinterpret_cast<const T*>(to), kLane};
                        }
                        longer[high][k] = line;
                    }
                const Lines nextAlong = {half ? along.from : along.from - kMore, along.count + kMore,
                                         half ? along.low : along.low + kMore,
                                         half ? along.high + kMore : along.high};
                const Lines nextAcross = {across.from, across.count, longer[0], longer[1]};
                refine<Other, kMore, !Rows>(own, square, next, nextAcross, nextAlong);
            }
        }
    }

    // One more sample into a sorted line, which may be the one that is written.
    static void insert(const Line& line, int count, V sample, V* to) {
        V before = line.at(0);
        to[0] = minOf(before, sample);
        for (int k = 1; k < count; k++) {
            const V next = line.at(k);
            to[k] = minOf(maxOf(sample, before), next);
            before = next;
        }
        to[count] = maxOf(before, sample);
    }

    // The middle one of a core and the last line, which is one shorter: so many of either are not above it.
    static V middleOf(const Core& core, const Line& line, int count) {
        V middle = core.list[count];
        for (int k = 0; k < count; k++) middle = minOf(middle, maxOf(core.list[k], line.at(count - 1 - k)));
        return middle;
    }

    TpxiSizeL mask_;
    int channels_, colours_;
};

} // namespace tpx
