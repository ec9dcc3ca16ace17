// SPDX-License-Identifier: Apache-2.0
// Rows and columns of images as groups and long lines (transforms/line.h), and back.
#pragma once

#include "frame/entry/checks.h"
#include "frame/images/view.h"
#include "frame/simd/channels.h"
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

// Calls each(i, so many) for all of n: `Most` at a time, as long as there are as many, and then singly.
template <int N>
using Count = std::integral_constant<int, N>;
template <int Most, class Each>
inline void inSteps(ptrdiff_t n, Each each) {
    ptrdiff_t i = 0;
    for (; i + Most <= n; i += Most) each(i, Count<Most>());
    for (; i < n; i++) each(i, Count<1>());
}

// Rows of pixels of this layout. A row may be there twice.
template <class T, Layout L>
struct EightRows {
    static constexpr int kChannels = channelsOf(L), kColours = coloursOf(L);
    T* row[8];

    // Calls put(i, channel, samples of all rows) for every sample of the pixels x + i.
    template <int Pixels, class Put>
    void load(ptrdiff_t x, Put put) const {
        constexpr int kSamples = Pixels * kChannels;
        x *= kChannels;
        const auto give = [&](int s, V32f samples) {
            if (s % kChannels < kColours) put(s / kChannels, s % kChannels, samples);
        };
        if constexpr (Pixels == 4) {
#pragma GCC unroll 4
            for (int s = 0; s < kSamples; s += 4) {
                const auto fours = [&](int i) { return loadFours(row[i] + x + s, row[i + 4] + x + s); };
                const auto four = transpose(Several<V32f, 4>{{fours(0), fours(1), fours(2), fours(3)}});
#pragma GCC unroll 4
                for (int i = 0; i < 4; i++) give(s + i, four.at[i]);
            }
        } else {
            for (int s = 0; s < kSamples; s++) {
                const auto at = [&](int i) { return peek(row[i] + x + s); };
                give(s, V32f{at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7)});
            }
        }
    }

    // Stores what get(i, channel) gives.
    template <int Pixels, class Get>
    void store(ptrdiff_t x, Get get) const {
        constexpr int kSamples = Pixels * kChannels;
        x *= kChannels;
        if constexpr (Pixels == 4) {
#pragma GCC unroll 4
            for (int s = 0; s < kSamples; s += 4) {
                Several<V32f, 4> four;
#pragma GCC unroll 4
                for (int i = 0; i < 4; i++) {
                    const int channel = (s + i) % kChannels;
                    four.at[i] = channel < kColours ? get((s + i) / kChannels, channel) : V32f{};
                }
                four = transpose(four);
#pragma GCC unroll 4
                for (int i = 0; i < 4; i++) {
                    T *const low = row[i] + x + s, *const high = row[i + 4] + x + s;
                    if constexpr (L == Layout::AC4)
                        four.at[i] = keepAlpha<float>(loadFours(low, high), four.at[i]);
                    storeFours(low, high, four.at[i]);
                }
            }
        } else {
            for (int s = 0; s < kSamples; s++)
                if (s % kChannels < kColours) {
                    const V32f samples = get(s / kChannels, s % kChannels);
                    for (int i = 0; i < 8; i++) poke(row[i] + x + s, float(samples[i]));
                }
        }
    }
};

// One channel of a row for a long line, in every lane.
template <class T, Layout L>
struct OneRow {
    T* row;

    template <int Pixels, class Put>
    void load(ptrdiff_t x, Put put) const {
        for (int i = 0; i < Pixels; i++) put(i, 0, splat<V32f>(peek(row + (x + i) * channelsOf(L))));
    }
    template <int Pixels, class Get>
    void store(ptrdiff_t x, Get get) const {
        for (int i = 0; i < Pixels; i++) poke(row + (x + i) * channelsOf(L), float(get(i, 0)[0]));
    }
};

// How many channels sequences take at a time, and the rows that they take: place(i) of lane i.
template <class S, Layout L>
inline constexpr int kChannelsOf = S::kLanes == 1 ? 1 : coloursOf(L);
template <class S, Layout L, class T, class Place>
auto rowsOf(ImageView<T> image, Place place) {
    if constexpr (S::kLanes == 1) {
        return OneRow<T, L>{image.row(place(0))};
    } else {
        EightRows<T, L> rows;
        for (int i = 0; i < 8; i++) rows.row[i] = image.row(place(i));
        return rows;
    }
}

// From y on; where there are fewer, the last one fills the other lanes.
template <class S, class T>
auto rowsFrom(ImageView<T> image, ptrdiff_t y, ptrdiff_t height) {
    return rowsOf<S, Layout::C1>(image, [&](int i) { return minOf(y + i, height - 1); });
}

// Rows of n complex numbers, whose parts are samples.
template <bool Inverse, class S, class Rows>
void loadRows(const Rows& rows, ptrdiff_t n, const S& to) {
    inSteps<2>(n, [&]<int N>(ptrdiff_t x, Count<N>) {
        rows.template load<2 * N>(
            2 * x, [&](int i, int, V32f part) { to.store(x + i / 2, (i % 2 == 1) != Inverse, part); });
    });
}
template <bool Inverse, class S, class Rows>
void storeRows(const S& from, ptrdiff_t n, const Rows& rows, V32f scale) {
    inSteps<2>(n, [&]<int N>(ptrdiff_t x, Count<N>) {
        rows.template store<2 * N>(
            2 * x, [&](int i, int) { return from.load(x + i / 2, (i % 2 == 1) != Inverse) * scale; });
    });
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

// N groups, or a long line, in the buffers of a plan. One buffer is to spare, and moves from group to group.
template <class S, int N>
struct SideBySide {
    S of[N];
    SideBySide(const Line& line, float* buffers) {
        for (int g = 0; g < N; g++) of[g] = sequencesOf<S>(line, buffers, g, N);
    }
    void transform(const Line& line) {
        for (int g = 0; g < N; g++) {
            if (g) of[g].other = of[g - 1].other;
            tpx::transform(line, of[g]);
        }
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
