// SPDX-License-Identifier: Apache-2.0
// Interpolation by weighted taps, four or six along either axis: down each column, then along the row. Only the
// weights tell the kinds apart.
#pragma once

#include "geometry/warp/results.h"

namespace tpx {

// What columns come to along the row, in the one order that all layouts have: the even ones and the odd ones.
template <class V, int Size>
inline V alongRow(const Several<V, Size>& columns, const Several<V, Size>& weights) {
    V even = columns.at[0] * weights.at[0], odd = columns.at[1] * weights.at[1];
    for (int k = 2; k < Size; k += 2) {
        even += columns.at[k] * weights.at[k];
        odd += columns.at[k + 1] * weights.at[k + 1];
    }
    return even + odd;
}

// Adds the taps of row r to the columns.
template <class V, int Size>
inline void addRow(Several<V, Size>& columns, int r, const Several<V, Size>& taps, V weight) {
    for (int k = 0; k < Size; k++) {
        const V product = taps.at[k] * weight;
        columns.at[k] = r == 0 ? product : columns.at[k] + product;
    }
}

// The taps of a register of positions of one channel.
template <int Size, class At>
inline auto loadTaps(At at) {
    const auto four = loadQuads(at);
    if constexpr (Size == 4) {
        return four;
    } else {
        const auto two = loadPairs([&](int k) { return at(k) + 4; });
        return Several<decltype(two.low), 6>{
            {four.at[0], four.at[1], four.at[2], four.at[3], two.low, two.high}};
    }
}

// weigh(fractions) gives the weights of the taps for a register of fractions.
template <class T, int N, int Size, class Weigh>
[[gnu::always_inline]] inline void interpolateWeighted(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count,
                                                       Weigh weigh) {
    using Real = RealOf<T>;
    using Weights = Several<Vec<Real>, Size>;
    constexpr int L = kLanes<Real>;
    const Tpx8u* rows[Size];
    for (int r = 0; r < Size; r++) rows[r] = addBytes(taps.first, r * taps.step);
    const Sites<Real>& sites = taps.sites;
    for (int i = 0; i < count; i += L) {
        const Weights alongX = weigh(load(sites.fx + i)), alongY = weigh(load(sites.fy + i));
        // The weight of a tap at one of the sites.
        const auto at = [i](const Weights& weights, int tap, int site) {
            return peek(reinterpret_cast<const Real*>(&weights.at[tap]) + (site - i));
        };
        if constexpr (N == 1) {
            Weights columns = {};
            for (int r = 0; r < Size; r++)
                addRow(columns, r, loadTaps<Size>([&](int k) { return tapAt<T>(rows[r], sites.place[i + k]); }),
                       alongY.at[r]);
            storeResults<T>(dst + i * int(sizeof(T)), alongRow(columns, alongX), count - i);
        } else if constexpr (sizeof(T) == 8) {
            interpolatePixels<T, N>(dst, i, minOf(i + L, count), [&](int site) {
                Several<V64f, Size> columns = {}, weights = {};
                for (int r = 0; r < Size; r++)
                    addRow(columns, r, loadPixels<N, Size>(tapAt<T>(rows[r], sites.place[site])),
                           fourTimes(at(alongY, r, site)));
                for (int k = 0; k < Size; k++) weights.at[k] = fourTimes(at(alongX, k, site));
                return alongRow(columns, weights);
            });
        } else {
            interpolatePixels<T, N>(dst, i, minOf(i + L, count), [&](int site) {
                Several<V32f, Size / 2> columns = {}; // of two pixels each
                for (int r = 0; r < Size; r++) {
                    const T* const pixels = tapAt<T>(rows[r], sites.place[site]);
                    Several<V32f, Size / 2> row;
                    for (int k = 0; k < Size / 2; k++) row.at[k] = loadTwoPixels<N>(pixels + 2 * k * N);
                    addRow(columns, r, row, splat<V32f>(at(alongY, r, site)));
                }
                const auto term = [&](int k) {
                    return columns.at[k] * joinHalves<V32f>(fourTimes(at(alongX, 2 * k, site)),
                                                            fourTimes(at(alongX, 2 * k + 1, site)));
                };
                V32f sum = term(0);
                for (int k = 1; k < Size / 2; k++) sum += term(k);
                const PixelPair<N> sums = sum;
                return sums.left() + sums.right();
            });
        }
    }
}

} // namespace tpx
