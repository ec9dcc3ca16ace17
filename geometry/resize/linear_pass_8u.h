// SPDX-License-Identifier: Apache-2.0
// The horizontal pass of linear resize for 8 bits: a source row becomes a row of 6 fraction bits.
#pragma once

#include "geometry/resize/linear_weights.h"

namespace tpx {

// (p0 * (16384 - q) + p1 * q + 128) >> 8 in eight lanes, from byte pairs (p0, p1) and -2q. It is exact: the
// rounding product of 64 (p0 - p1) and -2q is (128 (p1 - p0) q + 16384) >> 15, and 64 p0 joins without
// rounding. The sign lets q = 16384 fit 16 bits.
inline V16s blendPairs(V8u pairs, V16s minus2q) {
    const V16s difference = multiplyAddPairs(pairs, bitsAs<V8s>(splat<V16u>(0xC040))); // 64, -64
    const V16s base = multiplyAddPairs(pairs, bitsAs<V8s>(splat<V16u>(0x0040)));       // 64, 0
    return base + multiplyRounded(difference, minus2q);
}

// Source rows are taken in groups of destination pixels whose samples fill one register as byte pairs. Where
// the taps of every group lie within 16 bytes, a group is one load and one shuffle, prepared once for all rows;
// where those of the halves of groups do, it is two. Else, or in rows shorter than a load, the pairs are
// gathered pixel by pixel.
template <int N>
class RowPass8u {
    static constexpr int kPixels = kBytePairPixels<N>, kSamples = kPixels * N;
    static constexpr int kMostLoads = N == 1 ? 2 : 1;

    const Tpx32s* index; // of all groups but the last
    Tpx32s lastIndex[kPixels];
    int64_t groups;
    int64_t firstByte = 0;
    int loads = 1; // of a group; 0 if its pixels are gathered
    // Per sample: -2q, and two shuffle positions; per load: where it begins, from `firstByte`.
    Tpx16s* weights;
    Tpx8u* shuffles;
    Tpx32u* starts;

    static constexpr int64_t groupsOf(int64_t width) { return (width + kPixels - 1) / kPixels; }
    // A register that begins with the last group's samples may reach behind them.
    static constexpr int64_t bytesOf(int64_t width) { return 2 * kSamples * (groupsOf(width) - 1) + 16; }

    const Tpx32s* indexOf(int64_t group) const {
        return group < groups - 1 ? index + group * kPixels : lastIndex;
    }

    bool prepareLoads(int64_t width) {
        const int64_t rowBytes = (int64_t(index[width - 1]) - index[0] + 2) * N;
        if (rowBytes < 16 || rowBytes > 0x7fffffff) return false;
        const int pixels = kPixels / loads;
        Tpx32u* begin = starts;
        Tpx8u* shuffle = shuffles;
        for (int64_t g = 0; g < groups; g++)
            for (const Tpx32s *at = indexOf(g), *const end = at + kPixels; at < end; at += pixels) {
                if ((int64_t(at[pixels - 1]) - at[0] + 2) * N > 16) return false;
                const int64_t start = minOf((int64_t(at[0]) - index[0]) * N, rowBytes - 16);
                *begin++ = Tpx32u(start);
                for (int k = 0; k < pixels; k++) {
                    const auto offset = Tpx8u((int64_t(at[k]) - index[0]) * N - start);
                    for (int c = 0; c < N; c++, shuffle += 2) {
                        shuffle[0] = Tpx8u(offset + c);
                        shuffle[1] = Tpx8u(offset + c + N);
                    }
                }
            }
        return true;
    }

 public:
    static constexpr int64_t rowBytes(int64_t width) { return bytesOf(width); }

    RowPass8u(const TpxiResizeAxis& axis, int64_t x, int64_t width, BlockLayout& work)
        : index(axis.pIndex + x),
          groups(groupsOf(width)),
          weights(work.take<Tpx16s>(uint64_t(bytesOf(width)) / 2)),
          shuffles(work.take<Tpx8u>(uint64_t(bytesOf(width)))),
          starts(work.take<Tpx32u>(uint64_t(groups) * kMostLoads, 4)) {
        const Tpx16s* const fromPlan = weightsOf<Tpx8u>(axis);
        const int64_t lastGroup = (groups - 1) * kPixels;
        for (int k = 0; k < kPixels; k++) lastIndex[k] = index[minOf(lastGroup + k, width - 1)];
        Tpx16s* weight = weights;
        for (int64_t j = 0; j < groups * kPixels; j++) {
            const int q = weightAlongX<Tpx8u>(fromPlan, x + minOf(j, width - 1));
            for (int c = 0; c < N; c++) *weight++ = Tpx16s(-2 * q);
        }
        while (loads > 0 && !prepareLoads(width)) loads = loads < kMostLoads ? loads + 1 : 0;
        firstByte = int64_t(index[0]) * N;
    }

    void operator()(const Tpx8u* src, Tpx16s* out) const {
        // Kept apart from *this, which the compiler cannot tell from the row that is written.
        const int64_t count = groups;
        const Tpx16s* const weight = weights;
        const auto blend = [=](int64_t g, V8u pairs) {
            store(out + kSamples * g, blendPairs(pairs, load(weight + kSamples * g)));
        };
        const Tpx8u *const first = src + firstByte, *const shuffle = shuffles;
        const Tpx32u* const start = starts;
        if (loads == 1) {
            for (int64_t g = 0; g < count; g++)
                blend(g, shuffleBytes(load(first + start[g]), load(shuffle + 2 * kSamples * g)));
        } else if (kMostLoads == 2 && loads == 2) {
            // Eight bytes of a shuffle count. What lies behind the last are the loads' starts.
            const auto half = [=](int64_t h) {
                return shuffleBytes(load(first + start[h]), load(shuffle + kSamples * h));
            };
            for (int64_t g = 0; g < count; g++)
                blend(g, interleaveUnits<8, false>(half(2 * g), half(2 * g + 1)));
        } else {
            const Tpx32s* const at = index;
            for (int64_t g = 0; g < count - 1; g++) blend(g, loadBytePairs<N>(src, at + g * kPixels));
            blend(count - 1, loadBytePairs<N>(src, lastIndex));
        }
    }
};

} // namespace tpx
