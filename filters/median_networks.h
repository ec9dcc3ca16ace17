// SPDX-License-Identifier: Apache-2.0
// Compare-exchange networks on registers of samples of any type: sorting a few, and the middle one of many.
//
// Networks are written whole; the compiler drops the comparisons whose results nobody takes.
#pragma once

#include "filters/stencil.h"

// Of lambdas: networks live in registers only if all of their parts are inlined, and compilers lose heart.
#define TPX_INLINED __attribute__((always_inline))

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

template <const auto& network, int... I, class V>
[[gnu::always_inline]] inline void exchange(std::integer_sequence<int, I...>, V* v) {
    (putInOrder(v[network.at[I].low], v[network.at[I].high]), ...);
}
template <const auto& network, class V>
[[gnu::always_inline]] inline void exchange(V* v) {
    exchange<network>(std::make_integer_sequence<int, std::remove_cvref_t<decltype(network)>::kCount>{}, v);
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
    unroll<N - 1>([&](auto k) TPX_INLINED { to[k + 1] = minOf(maxOf(x, v[k]), v[k + 1]); });
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
template <>
inline constexpr Network<86> kSelect<9>{
    {{14, 34}, {24, 41}, {18, 31}, {10, 21}, {5, 22},  {25, 36}, {12, 32}, {1, 34},  {17, 37}, {9, 29},
     {15, 28}, {13, 40}, {12, 45}, {34, 42}, {0, 25},  {18, 20}, {6, 33},  {4, 24},  {33, 46}, {19, 39},
     {17, 27}, {26, 28}, {3, 7},   {19, 43}, {12, 27}, {23, 30}, {22, 26}, {13, 25}, {25, 27}, {16, 23},
     {2, 33},  {3, 11},  {16, 21}, {16, 19}, {13, 20}, {30, 35}, {7, 12},  {12, 35}, {29, 34}, {2, 29},
     {12, 13}, {3, 33},  {11, 30}, {7, 34},  {20, 30}, {8, 25},  {8, 34},  {25, 44}, {21, 29}, {12, 21},
     {20, 25}, {25, 34}, {8, 20},  {8, 22},  {29, 33}, {3, 26},  {3, 19},  {13, 24}, {24, 33}, {13, 29},
     {21, 26}, {11, 13}, {24, 29}, {7, 13},  {7, 19},  {23, 25}, {25, 26}, {13, 23}, {13, 38}, {23, 43},
     {25, 43}, {19, 22}, {22, 29}, {21, 38}, {23, 24}, {19, 23}, {21, 23}, {20, 24}, {24, 25}, {22, 23},
     {24, 38}, {23, 38}, {22, 24}, {20, 23}, {23, 24}, {20, 23}}};
template <>
inline constexpr int kSelected<9> = 23;

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
        unroll<K>([&](auto y) TPX_INLINED {
            V row[K];
            unroll<K>([&](auto x) TPX_INLINED { row[x] = at(y, x); });
            sortNetwork<K>(row);
            unroll<middle.count>([&](auto k) TPX_INLINED {
                if constexpr (middle.at[k].row == y) candidates[k] = row[middle.at[k].column];
            });
        });
        exchange<kSelect<K>>(candidates);
        return candidates[kSelected<K>];
    }
}

} // namespace tpx
