// SPDX-License-Identifier: Apache-2.0
// Rows and columns of images as groups and long lines (transforms/line.h), and back.
#pragma once

#include "frame/images/view.h"
#include "frame/simd/gather.h"
#include "frame/simd/partial.h"
#include "transforms/line.h"

namespace tpx {

// ---- Elements --------------------------------------------------------------------------------------------

inline Lanes conjugate(Lanes a) { return {a.re, -a.im}; }
inline Lanes scaled(Lanes a, V32f scale) { return {a.re * scale, a.im * scale}; }
// A transform forth with both parts exchanged before and after is one back.
template <bool Inverse>
inline Lanes turned(Lanes a) {
    return Inverse ? Lanes{a.im, a.re} : a;
}

// ---- Eight rows, one a lane ------------------------------------------------------------------------------

// Rows of pixels of so many channels, from the first sample of one channel on. A row may be there twice.
template <class T, int Channels>
struct EightRows {
    T* row[8];

    // The samples x to x + 3 of all rows.
    Several<V32f, 4> four(ptrdiff_t x) const {
        if constexpr (Channels != 1) return {{one(x), one(x + 1), one(x + 2), one(x + 3)}};
        return transpose(
            Several<V32f, 4>{{loadFours(row[0] + x, row[4] + x), loadFours(row[1] + x, row[5] + x),
                              loadFours(row[2] + x, row[6] + x), loadFours(row[3] + x, row[7] + x)}});
    }
    V32f one(ptrdiff_t x) const {
        x *= Channels;
        return V32f{peek(row[0] + x), peek(row[1] + x), peek(row[2] + x), peek(row[3] + x),
                    peek(row[4] + x), peek(row[5] + x), peek(row[6] + x), peek(row[7] + x)};
    }

    void putFour(ptrdiff_t x, const Several<V32f, 4>& samples) const {
        if constexpr (Channels != 1) {
            for (int i = 0; i < 4; i++) putOne(x + i, samples.at[i]);
        } else {
            const Several<V32f, 4> rows = transpose(samples);
            for (int i = 0; i < 4; i++) storeFours(row[i] + x, row[i + 4] + x, rows.at[i]);
        }
    }
    void putOne(ptrdiff_t x, V32f samples) const {
        for (int i = 0; i < 8; i++) poke(row[i] + x * Channels, float(samples[i]));
    }
};

// A row of a long line, in every lane.
template <class T, int Channels>
struct OneRow {
    T* row;

    V32f one(ptrdiff_t x) const { return splat<V32f>(peek(row + x * Channels)); }
    Several<V32f, 4> four(ptrdiff_t x) const { return {{one(x), one(x + 1), one(x + 2), one(x + 3)}}; }
    void putOne(ptrdiff_t x, V32f samples) const { poke(row + x * Channels, float(samples[0])); }
    void putFour(ptrdiff_t x, const Several<V32f, 4>& samples) const {
        for (int i = 0; i < 4; i++) putOne(x + i, samples.at[i]);
    }
};

// The rows of a channel that sequences take: place(i) of lane i.
template <class S, int Channels, class T, class Place>
auto rowsOf(ImageView<T> image, int channel, Place place) {
    if constexpr (S::kLanes == 1) {
        return OneRow<T, Channels>{image.row(place(0)) + channel};
    } else {
        EightRows<T, Channels> rows;
        for (int i = 0; i < 8; i++) rows.row[i] = image.row(place(i)) + channel;
        return rows;
    }
}

// From y on; where there are fewer, the last one fills the other lanes.
template <class S, class T>
auto rowsFrom(ImageView<T> image, ptrdiff_t y, ptrdiff_t height) {
    return rowsOf<S, 1>(image, 0, [&](int i) { return minOf(y + i, height - 1); });
}

// Rows of n complex numbers: two registers of samples are an element.
template <bool Inverse, class S, class Rows>
void loadRows(const Rows& rows, ptrdiff_t n, const S& to) {
    ptrdiff_t i = 0;
    for (; i + 2 <= n; i += 2) {
        const Several<V32f, 4> s = rows.four(2 * i);
        to.store(i, turned<Inverse>(Lanes{s.at[0], s.at[1]}));
        to.store(i + 1, turned<Inverse>(Lanes{s.at[2], s.at[3]}));
    }
    if (i < n) to.store(i, turned<Inverse>(Lanes{rows.one(2 * i), rows.one(2 * i + 1)}));
}
template <bool Inverse, class S, class Rows>
void storeRows(const S& from, ptrdiff_t n, const Rows& rows, V32f scale) {
    const auto element = [&](ptrdiff_t i) { return turned<Inverse>(scaled(from.load(i), scale)); };
    ptrdiff_t i = 0;
    for (; i + 2 <= n; i += 2) {
        const Lanes a = element(i), b = element(i + 1);
        rows.putFour(2 * i, {{a.re, a.im, b.re, b.im}});
    }
    if (i < n) {
        const Lanes a = element(i);
        rows.putOne(2 * i, a.re);
        rows.putOne(2 * i + 1, a.im);
    }
}

// ---- Eight complex columns -------------------------------------------------------------------------------

// Their lanes are in another order, the same everywhere.
inline constexpr int kColumnOfLane[] = {0, 1, 4, 5, 2, 3, 6, 7};

// In the order of rows.
inline Pair<V32f> inRowOrder(Lanes x) {
    const Pair<V32f> row = toInterleaved(x);
    return {lowHalves(row.low, row.high), highHalves(row.low, row.high)};
}

// Of so many groups; a row of each is two registers, a line of the image at best. Two groups at a time read and
// write pairs of lines, which the caches like better where the rows are whole pages apart.
template <int N>
struct WholeColumns {
    static constexpr int kGroups = N;
    Lanes load(const float* p, int group) const {
        return toSplit(tpx::load(p + 16 * group), tpx::load(p + 16 * group + 8));
    }
    void store(float* p, int group, Pair<V32f> row) const {
        tpx::store(p + 16 * group, row.low);
        tpx::store(p + 16 * group + 8, row.high);
    }
};
// Fewer than eight.
struct SomeColumns {
    static constexpr int kGroups = 1;
    B32f low, high;
    explicit SomeColumns(ptrdiff_t columns) : low(firstLanes(2 * columns)), high(firstLanes(2 * columns - 8)) {}

    Lanes load(const float* p, int) const { return toSplit(loadLanes(p, low), loadLanes(p + 8, high)); }
    void store(float* p, int, Pair<V32f> row) const {
        storeLanes(p, low, row.low);
        storeLanes(p + 8, high, row.high);
    }
};
// Calls each(columns, x) for all columns, as many at a time as so many groups or a long line take.
template <class S, int Groups, class Each>
void forColumns(ptrdiff_t width, Each each) {
    ptrdiff_t x = 0;
    if constexpr (S::kLanes == 8) {
        for (; x + 8 * Groups <= width; x += 8 * Groups) each(WholeColumns<Groups>(), x);
        if constexpr (Groups > 1)
            if (x + 8 <= width) {
                each(WholeColumns<1>(), x);
                x += 8;
            }
    }
    for (; x < width; x += S::kLanes) each(SomeColumns(minOf(width - x, ptrdiff_t(S::kLanes))), x);
}

// The buffers of a plan, as the sequences of groups side by side.
template <class S, class Columns>
struct SideBySide {
    S of[Columns::kGroups];
    SideBySide(const Line& line, float* buffers) {
        for (int g = 0; g < Columns::kGroups; g++) of[g] = sequencesOf<S>(line, buffers, g);
    }
};

// Two real sequences, one as the real parts and one as the imaginary ones, are one complex sequence. Its
// spectrum z, with `mirror` the value at the opposite frequency, is taken apart into twice those of both.
struct Twins {
    Lanes first, second;
};
inline Twins takeApart(Lanes z, Lanes mirror) {
    return {{z.re + mirror.re, z.im - mirror.im}, {z.im + mirror.im, mirror.re - z.re}};
}
// And z and its mirror from both.
inline Twins putTogether(Lanes a, Lanes b) { return {{a.re - b.im, a.im + b.re}, {a.re + b.im, b.re - a.im}}; }

} // namespace tpx
