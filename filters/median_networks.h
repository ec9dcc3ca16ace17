// Compare-exchange networks on registers of samples of any type: sorting a few, and the middle one of many.
//
// Networks are written whole; the compiler drops the comparisons whose results nobody takes.
#pragma once

#include "filters/stencil.h"

namespace tpx {

template <class V>
[[gnu::always_inline]] inline void putInOrder(V& a, V& b) {
    const V low = minOf(a, b);
    b = maxOf(a, b);
    a = low;
}

struct Exchange {
    Tpx8u low, high;
};
template <int Count>
struct Network {
    static constexpr int kCount = Count;
    Exchange at[Count];
};

template <const auto& network, class V>
[[gnu::always_inline]] inline void exchange(V* v) {
    unroll<std::remove_cvref_t<decltype(network)>::kCount>([&](auto k) {
        constexpr Exchange e = network.at[k];
        putInOrder(v[e.low], v[e.high]);
    });
}

// ---- Sorting: networks of the fewest comparisons known, Knuth, The Art of Computer Programming 3, 5.3.4 ---

template <int N>
inline constexpr Network<1> kSort{};
template <>
inline constexpr Network<3> kSort<3>{{{0, 2}, {0, 1}, {1, 2}}};
template <>
inline constexpr Network<5> kSort<4>{{{0, 2}, {1, 3}, {0, 1}, {2, 3}, {1, 2}}};
template <>
inline constexpr Network<9> kSort<5>{{{0, 3}, {1, 4}, {0, 2}, {1, 3}, {0, 1}, {2, 4}, {1, 2}, {3, 4}, {2, 3}}};
template <>
inline constexpr Network<12> kSort<6>{
    {{0, 5}, {1, 3}, {2, 4}, {1, 2}, {3, 4}, {0, 3}, {2, 5}, {0, 1}, {2, 3}, {4, 5}, {1, 2}, {3, 4}}};
template <>
inline constexpr Network<16> kSort<7>{{{0, 6},
                                       {2, 3},
                                       {4, 5},
                                       {0, 2},
                                       {1, 4},
                                       {3, 6},
                                       {0, 1},
                                       {2, 5},
                                       {3, 4},
                                       {1, 2},
                                       {4, 6},
                                       {2, 3},
                                       {4, 5},
                                       {1, 2},
                                       {3, 4},
                                       {5, 6}}};
template <>
inline constexpr Network<19> kSort<8>{{{0, 2},
                                       {1, 3},
                                       {4, 6},
                                       {5, 7},
                                       {0, 4},
                                       {1, 5},
                                       {2, 6},
                                       {3, 7},
                                       {0, 1},
                                       {2, 3},
                                       {4, 5},
                                       {6, 7},
                                       {2, 4},
                                       {3, 5},
                                       {1, 4},
                                       {3, 6},
                                       {1, 2},
                                       {3, 4},
                                       {5, 6}}};
template <>
inline constexpr Network<25> kSort<9>{{{0, 3}, {1, 7}, {2, 5}, {4, 8}, {0, 7}, {2, 4}, {3, 8}, {5, 6}, {0, 2},
                                       {1, 3}, {4, 5}, {7, 8}, {1, 4}, {3, 6}, {5, 7}, {0, 1}, {2, 4}, {3, 5},
                                       {6, 8}, {2, 3}, {4, 5}, {6, 7}, {1, 2}, {3, 4}, {5, 6}}};

template <int N, class V>
[[gnu::always_inline]] inline void sortNetwork(V* v) {
    if constexpr (N == 2)
        putInOrder(v[0], v[1]);
    else
        exchange<kSort<N>>(v);
}

// One more sample into N sorted ones.
template <int N, class V>
[[gnu::always_inline]] inline void insertSorted(const V* v, V x, V* to) {
    to[0] = minOf(v[0], x);
    unroll<N - 1>([&](auto k) { to[k + 1] = minOf(maxOf(x, v[k]), v[k + 1]); });
    to[N] = maxOf(v[N - 1], x);
}

// ---- The middle -------------------------------------------------------------------------------------------

template <class V>
[[gnu::always_inline]] inline V medianOfThree(V a, V b, V c) {
    putInOrder(a, b);
    return maxOf(a, minOf(b, c));
}

template <int N, class V>
[[gnu::always_inline]] inline V medianOf(V* v) {
    if constexpr (N == 3) return medianOfThree(v[0], v[1], v[2]);
    sortNetwork<N>(v);
    return v[N / 2];
}

// Of a square of samples whose columns and rows are sorted only those can be the middle one that have no more
// than half of the others certainly below or above them: they lie along the rising diagonal.
template <int K>
struct Middle {
    struct Place {
        int row, column;
    };
    Place at[K * K];
    int count;

    constexpr Middle() : at{}, count(0) {
        for (int y = 0; y < K; y++)
            for (int x = 0; x < K; x++)
                if ((y + 1) * (x + 1) - 1 <= K * K / 2 && (K - y) * (K - x) - 1 <= K * K / 2)
                    at[count++] = {y, x};
    }
};
template <int K>
inline constexpr Middle<K> kMiddle;

// Selections of the middle one of these, numbered in the order of rows; each was found by a search among those
// of few comparisons and holds for every order of samples that sorted rows and columns leave open.
template <int K>
inline constexpr Network<1> kSelect{};
template <int K>
inline constexpr int kSelected = 0;
template <>
inline constexpr Network<15> kSelect<5>{{{4, 7},
                                         {4, 9},
                                         {3, 5},
                                         {5, 8},
                                         {0, 4},
                                         {8, 12},
                                         {1, 8},
                                         {1, 2},
                                         {2, 10},
                                         {6, 11},
                                         {8, 11},
                                         {4, 8},
                                         {2, 6},
                                         {4, 6},
                                         {6, 8}}};
template <>
inline constexpr int kSelected<5> = 6;
template <>
inline constexpr Network<41> kSelect<7>{{{4, 13},  {15, 24}, {10, 20}, {8, 22},  {3, 27},  {16, 22}, {13, 25},
                                         {10, 12}, {1, 18},  {11, 19}, {6, 7},   {9, 28},  {0, 16},  {21, 23},
                                         {9, 17},  {14, 17}, {5, 11},  {2, 21},  {15, 16}, {7, 16},  {13, 26},
                                         {5, 13},  {7, 26},  {12, 26}, {7, 13},  {7, 15},  {13, 14}, {14, 21},
                                         {13, 18}, {14, 17}, {11, 17}, {14, 18}, {2, 14},  {15, 18}, {18, 27},
                                         {12, 14}, {12, 15}, {14, 18}, {11, 14}, {11, 15}, {14, 15}}};
template <>
inline constexpr int kSelected<7> = 14;

// The median of KxK samples in sorted columns: at(rank, column).
template <int K, class At>
[[gnu::always_inline]] inline auto medianOfColumns(At at) {
    using V = decltype(at(0, 0));
    if constexpr (K == 3) {
        return medianOfThree(maxOf(maxOf(at(0, 0), at(0, 1)), at(0, 2)),
                             medianOfThree(at(1, 0), at(1, 1), at(1, 2)),
                             minOf(minOf(at(2, 0), at(2, 1)), at(2, 2)));
    } else {
        constexpr auto& middle = kMiddle<K>;
        V candidates[middle.count];
        unroll<K>([&](auto y) {
            V row[K];
            unroll<K>([&](auto x) { row[x] = at(y, x); });
            sortNetwork<K>(row);
            unroll<middle.count>([&](auto k) {
                if constexpr (middle.at[k].row == y) candidates[k] = row[middle.at[k].column];
            });
        });
        exchange<kSelect<K>>(candidates);
        return candidates[kSelected<K>];
    }
}

} // namespace tpx
