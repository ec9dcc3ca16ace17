// SPDX-License-Identifier: Apache-2.0
// The two passes of a resize by weighted taps, in single precision. A result is the sum of products of weights
// and samples in the order of the taps, each product and each sum rounded, along x and then along y; no pass
// rounds otherwise.
#pragma once

#include "frame/images/row_ring.h"
#include "frame/runs/runs.h"
#include "frame/simd/rounding.h"
#include "geometry/resize/taps_source.h"

namespace tpx {

// Up to kOwnTaps taps have code of their own; kAnyTaps serves all numbers.
inline constexpr int kAnyTaps = 0, kOwnTaps = 14;

// ---- Along x ---------------------------------------------------------------------------------------------

// Where a position finds its taps: of turned source pixels, and of the plan.
struct TapPosition {
    const Tpx32f *pixels, *weights;
};

// The sums of a sample in all rows.
template <int N>
using TapSums = V32f[kTapRegisters<N>];

// Adds `taps` weighted pixels to the sums of a position.
template <int N, int Taps>
[[gnu::always_inline]] inline void addTaps(const Tpx32f* pixels, const Tpx32f* weights, int taps, bool first,
                                           TapSums<N>* sums) {
    const auto each = [&](int t, auto rule) {
        const V32f weight = splat<V32f>(weights[t]);
        for (int c = 0; c < N; c++)
            for (int r = 0; r < kTapRegisters<N>; r++)
                rule(sums[c][r], load(pixels + (t * N + c) * kTapRows<N> + r * kLanes<Tpx32f>) * weight);
    };
    int t = 0;
    if (first) each(t++, [](V32f& sum, V32f product) { sum = product; });
    for (; t < (Taps == kAnyTaps ? taps : Taps); t++) each(t, [](V32f& sum, V32f product) { sum += product; });
}

// Positions whose sums are turned back into rows at a time.
inline constexpr int kTapPositions = 4;

// sumsOf(j, sums) for each position of a band, to the rows, which have room for whole groups of positions.
template <int N, class SumsOf>
[[gnu::always_inline]] inline void passPositions(int64_t count, Tpx32f* const* rows, SumsOf sumsOf) {
    for (int64_t j = 0; j < count; j += kTapPositions) {
        TapSums<N> sums[kTapPositions * N];
        for (int k = 0; k < kTapPositions; k++) sumsOf(minOf(j + k, count - 1), sums + k * N);
        for (int i = 0; i < kTapPositions * N; i += 4)
            for (int r = 0; r < kTapRegisters<N>; r++) {
                const auto turned =
                    transpose(Several<V32f, 4>{{sums[i][r], sums[i + 1][r], sums[i + 2][r], sums[i + 3][r]}});
                Tpx32f* const* const to = rows + r * kLanes<Tpx32f>;
                for (int k = 0; k < 4; k++) storeFours(to[k] + j * N + i, to[k + 4] + j * N + i, turned.at[k]);
            }
    }
}

template <int N, int Taps>
inline void passAlongX(const TapPosition* positions, int64_t count, int taps, Tpx32f* const* rows) {
    passPositions<N>(count, rows, [&](int64_t j, TapSums<N>* sums) {
        addTaps<N, Taps>(positions[j].pixels, positions[j].weights, taps, true, sums);
    });
}

// ---- Along y ---------------------------------------------------------------------------------------------

// Single precision to a register of samples: integers are rounded with the thread's mode and saturated.
template <class T, int M>
[[gnu::always_inline]] inline Vec<T> samplesOf(const V32f* x) {
    if constexpr (std::is_same_v<T, Tpx32f>) {
        return *x;
    } else {
        Several<V32s, 2 * M> parts;
        for (int i = 0; i < M; i++) {
            const Pair<V32s> lanes = toInteger(x[i]);
            parts.at[2 * i] = lanes.low;
            parts.at[2 * i + 1] = lanes.high;
        }
        return narrowAll<T>(parts);
    }
}

// The rows of the window, weighted and added, to `count` samples. Rows have whole registers.
template <class T, int Taps>
inline void blendAlongY(const RowRing<Tpx32f>& ring, const Tpx32f* weights, int64_t taps, T* dst,
                        int64_t count) {
    constexpr int L = kLanes<T>, F = kLanes<Tpx32f>, kPerRegister = L / F;
    // Registers of sums that are made at a time; of few taps no more than what is stored.
    constexpr int kSums = Taps == kAnyTaps ? 4 : kPerRegister;
    const Tpx32f* rows[Taps == kAnyTaps ? 1 : Taps];
    V32f hoisted[Taps == kAnyTaps ? 1 : Taps]; // stores of samples might otherwise have changed them
    for (int t = 0; t < Taps; t++) {
        rows[t] = ring.at(t);
        hoisted[t] = splat<V32f>(peek(weights + t));
    }

    const auto sums = [&]<int M>(int64_t i, V32f(&sum)[M]) {
        const auto add = [&](const Tpx32f* row, int64_t t) {
            const V32f weight = Taps == kAnyTaps ? splat<V32f>(peek(weights + t)) : hoisted[t];
            for (int m = 0; m < M; m++) {
                const V32f product = load(row + i + m * F) * weight;
                sum[m] = t == 0 ? product : sum[m] + product;
            }
        };
        if constexpr (Taps == kAnyTaps) {
            for (int m = 0; m < M; m++) sum[m] = load(ring.at(0) + i + m * F) * splat<V32f>(peek(weights));
            for (int64_t t = 1; t < taps; t++) add(ring.at(t), t);
        } else {
            for (int t = 0; t < Taps; t++) add(rows[t], t);
        }
    };
    const auto one = [&](int64_t i) {
        V32f sum[kPerRegister];
        sums(i, sum);
        return samplesOf<T, kPerRegister>(sum);
    };
    if (count < L) {
        const Vec<T> all = one(0);
        copyShort(dst, &all, count * int64_t(sizeof(T)));
        return;
    }
    int64_t i = 0;
    for (; i + kSums * F <= count; i += kSums * F) {
        V32f sum[kSums];
        sums(i, sum);
        for (int k = 0; k < kSums / kPerRegister; k++)
            store(dst + i + k * L, samplesOf<T, kPerRegister>(sum + k * kPerRegister));
    }
    if constexpr (kSums > kPerRegister)
        for (; i + L <= count; i += L) store(dst + i, one(i));
    if (i < count) store(dst + count - L, one(count - L));
}

} // namespace tpx
