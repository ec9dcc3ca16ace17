// SPDX-License-Identifier: Apache-2.0
// The horizontal pass of linear resize in floating point: of 16 bits and single precision, and of double.
#pragma once

#include "geometry/resize/linear_weights.h"

namespace tpx {

// One channel of 16 bits or single precision: positions whose taps lie within 16 bytes are a load and a
// shuffle, prepared once for all rows. A register of eight positions takes two loads, or one in large
// magnifications.
template <class T>
class EightByShuffle {
    static constexpr bool kSingle = std::is_same_v<T, Tpx32f>;
    // The first and the last position of a load lie this far apart at most. Single precision loads the
    // right-hand pixels a second time, from one sample further.
    static constexpr int kReach = kSingle ? 3 : 6, kSpan = kSingle ? 5 : 8;

 public:
    static bool fits(const Tpx32s* at) { return at[3] - at[0] <= kReach && at[7] - at[4] <= kReach; }
    static bool fitsOneLoad(const Tpx32s* at) { return at[7] - at[0] <= kReach; }
    // Whether the loads end before `end`.
    static bool endsBefore(const Tpx32s* at, int64_t end) { return int64_t(at[4]) + kSpan <= end; }

    // 32 bytes.
    static void prepare(const Tpx32s* at, bool oneLoad, Tpx8u* shuffle) {
        for (int k = 0; k < 8; k++, shuffle += 4) {
            const int offset = at[k] - (oneLoad || k < 4 ? at[0] : at[4]);
            if constexpr (kSingle)
                poke(reinterpret_cast<Tpx32s*>(shuffle), offset);
            else
                for (int b = 0; b < 4; b++) shuffle[b] = Tpx8u(2 * offset + b);
        }
    }

    template <bool OneLoad>
    static Pair<V32f> load(const T* src, const Tpx32s* at, const Tpx8u* shuffle) {
        const T *const low = src + at[0], *const high = src + at[4];
        if constexpr (kSingle) {
            const auto lanes = bitsAs<B32f>(tpx::load(reinterpret_cast<const Tpx32f*>(shuffle)));
            const auto tap = [=](int k) {
                return permuteLanes(OneLoad ? loadFourTwice(low + k) : loadFours(low + k, high + k), lanes);
            };
            return {tap(0), tap(1)};
        } else {
            const auto four = [](const T* from, const Tpx8u* bytes) {
                return shuffleBytes(bitsAs<V8u>(tpx::load(from)), tpx::load(bytes));
            };
            return splitPairs<T>(four(low, shuffle), four(OneLoad ? low : high, shuffle + 16));
        }
    }
};

template <class T, int N>
class RowPass {
    using Row = RowOf<T>;
    static constexpr int L = kLanes<Row>;
    static constexpr bool kShuffles = N == 1 && sizeof(T) < 8;
    using Eight = EightByShuffle<T>;

    const Tpx32s* index;
    const Row* fractions;
    int64_t width;
    Tpx8u* shuffles;
    int64_t shuffled = 0; // positions of whole registers that are taken by shuffles
    bool oneLoad = true;

 public:
    // A pixel of three channels is stored as four.
    static constexpr int64_t rowBytes(int64_t width) { return (width * N + (N == 3)) * int64_t(sizeof(Row)); }

    RowPass(const TpxiResizeAxis& axis, int64_t x, int64_t width, BlockLayout& work)
        : index(axis.pIndex + x), fractions(weightsOf<T>(axis) + x), width(width), shuffles(nullptr) {
        if constexpr (kShuffles) {
            shuffles = work.take<Tpx8u>(4 * uint64_t(width));
            const int64_t end = int64_t(index[width - 1]) + 2;
            while (shuffled + L <= width && Eight::fits(index + shuffled) &&
                   Eight::endsBefore(index + shuffled, end)) {
                oneLoad = oneLoad && Eight::fitsOneLoad(index + shuffled);
                shuffled += L;
            }
            for (int64_t j = 0; j < shuffled; j += L) Eight::prepare(index + j, oneLoad, shuffles + 4 * j);
        }
    }

    void operator()(const T* src, Row* out) const {
        // Kept apart from *this, which the compiler cannot tell from the row that is written.
        const Tpx32s* const at = index;
        const Row* const fraction = fractions;
        const int64_t count = width;
        int64_t j = 0;
        if constexpr (N == 1) {
            const auto blend = [&](Pair<Vec<Row>> p) {
                store(out + j, p.low + (p.high - p.low) * load(fraction + j));
            };
            if constexpr (kShuffles) {
                const Tpx8u* const shuffle = shuffles;
                const int64_t end = shuffled;
                if (oneLoad)
                    for (; j < end; j += L) blend(Eight::template load<true>(src, at + j, shuffle + 4 * j));
                else
                    for (; j < end; j += L) blend(Eight::template load<false>(src, at + j, shuffle + 4 * j));
            }
            for (; j + L <= count; j += L) blend(loadPairs(InRow<T>{src, at + j}));
            for (; j < count; j++) {
                const Row a = peek(src + at[j]), b = peek(src + at[j] + 1);
                out[j] = a + (b - a) * peek(fraction + j);
            }
        } else {
            for (; j < count; j++) {
                const auto pixels = loadPixels<N, 2>(src + int64_t(at[j]) * N);
                const Row f = peek(fraction + j);
                const Four<Row> a = pixels.at[0], b = pixels.at[1], along = {f, f, f, f};
                storeFour(out + j * N, a + (b - a) * along);
            }
        }
    }
};

} // namespace tpx
