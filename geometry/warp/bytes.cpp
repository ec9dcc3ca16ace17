// SPDX-License-Identifier: Apache-2.0
// Linear and cubic of bytes in integers, with weights of 14 bits: what is rounded, and where, is contract.
//
// Four lanes are worked on at a time: four pixels of one channel, or the channels of one pixel. Neighbouring
// taps are pairs, whose weighted sum is one instruction, along the row and then down the results.
#include "geometry/warp/results.h"

namespace tpx {
namespace {

// The cubic through four points at 0, 1, 2, 3: the weights of all four for positions k / 512, times 2^14.
struct CubicTable {
    Tpx16s weights[1537][4];

    constexpr CubicTable() : weights{} {
        for (int k = 0; k <= 1536; k++) {
            const auto factor = [k](int at) { return Tpx64s(k - 512 * at); };
            set(k, 0, -factor(1) * factor(2) * factor(3), 6);
            set(k, 1, factor(0) * factor(2) * factor(3), 2);
        }
    }

 private:
    // The weight numerator / (divisor * 512^3), rounded, and its mirror image.
    constexpr void set(int k, int tap, Tpx64s numerator, int divisor) {
        const Tpx64s unit = Tpx64s(divisor) << (27 - 14), shift = Tpx64s(4) * unit << 14;
        const auto weight = Tpx16s((numerator + shift + unit / 2) / unit - shift / unit);
        weights[k][tap] = weights[1536 - k][3 - tap] = weight;
    }
};
constexpr CubicTable kCubicTable;

// The weights of pairs of taps for eight positions, two weights of 16 bits a lane.
template <int Pairs>
struct PairWeights {
    Pair<V32s> of[Pairs];
};

PairWeights<1> weighLinear(V32f f) {
    const auto weights = [](V32s q) { return (q << 16) - q + 16384; }; // 16384 - q, q
    const Pair<V32s> q = toIntegerTruncated(f * 16384.0f);
    return {{{weights(q.low), weights(q.high)}}};
}

PairWeights<2> weighCubic(V32f t) {
    Tpx32s index[8];
    const Pair<V32s> k = toIntegerTruncated(t * 512.0f);
    store(index, k.low);
    store(index + 4, k.high);
    const Pair<V32f> pairs =
        loadPairs([&](int lane) { return reinterpret_cast<const Tpx32f*>(kCubicTable.weights[index[lane]]); });
    return {{split(bitsAs<B32f>(pairs.low)), split(bitsAs<B32f>(pairs.high))}};
}

// The taps of four lanes at a row's places at(0) and, of one channel, at(1) to at(3): pairs of 16 bits.
template <int N, int Size, class At>
inline Several<V16s, Size / 2> loadTapPairs(At at) {
    using Taps = Several<V16s, Size / 2>;
    constexpr Tpx8u z = 255;
    const auto four = [&](int k, int from) { return peek(reinterpret_cast<const Tpx32s*>(at(k) + from)); };
    const auto wide = [](V8u bytes) { return V16s(widen(bytes).low); };
    const auto spread = [](V8u bytes, V8u control) { return bitsAs<V16s>(shuffleBytes(bytes, control)); };
    if constexpr (N == 1 && Size == 2) {
        const auto pair = [&](int k) { return peek(reinterpret_cast<const Tpx16s*>(at(k))); };
        return Taps{{wide(fromPieces(pair(0), pair(1), pair(2), pair(3), 0, 0, 0, 0))}};
    } else if constexpr (N == 1) {
        const V8u taps = fromPieces(four(0, 0), four(1, 0), four(2, 0), four(3, 0));
        return Taps{{spread(taps, V8u{0, z, 1, z, 4, z, 5, z, 8, z, 9, z, 12, z, 13, z}),
                     spread(taps, V8u{2, z, 3, z, 6, z, 7, z, 10, z, 11, z, 14, z, 15, z})}};
    } else if constexpr (N == 3 && Size == 2) {
        const V8u taps = fromPieces(four(0, 0), four(0, 2), 0, 0);
        return Taps{{spread(taps, V8u{0, z, 3, z, 1, z, 6, z, 2, z, 7, z, z, z, z, z})}};
    } else if constexpr (N == 3) {
        const V8u taps = loadEights(at(0), at(0) + 4);
        return Taps{{spread(taps, V8u{0, z, 3, z, 1, z, 4, z, 2, z, 5, z, z, z, z, z}),
                     spread(taps, V8u{6, z, 13, z, 7, z, 14, z, 12, z, 15, z, z, z, z, z})}};
    } else {
        const V8u taps = loadFront<4 * Size>(at(0));
        const V8u first = {0, z, 4, z, 1, z, 5, z, 2, z, 6, z, 3, z, 7, z};
        if constexpr (Size == 2)
            return Taps{{spread(taps, first)}};
        else
            return Taps{{spread(taps, first),
                         spread(taps, first + V8u{8, 0, 8, 0, 8, 0, 8, 0, 8, 0, 8, 0, 8, 0, 8, 0})}};
    }
}

// Results have 28 bits more than samples less the 8 that rows lose; `half` is added before they are dropped.
template <int N, int Size, class Weigh>
inline void interpolateBytes(const Taps<Tpx32f>& taps, Tpx8u* dst, int count, int half, Weigh weigh) {
    constexpr int kPairs = Size / 2;
    const Tpx8u* rows[Size];
    for (int r = 0; r < Size; r++) rows[r] = addBytes(taps.first, r * taps.step);
    const Sites<Tpx32f>& sites = taps.sites;

    // Of the sites from `first` on; alongX(k) and alongY(k) are the weights of pair k.
    const auto lanes = [&](int first, auto alongX, auto alongY) {
        const auto row = [&](int r) {
            const auto pairs =
                loadTapPairs<N, Size>([&](int k) { return tapAt<Tpx8u>(rows[r], sites.place[first + k]); });
            V32s sum = multiplyAddPairs(pairs.at[0], bitsAs<V16s>(alongX(0)));
            if constexpr (kPairs == 2) sum += multiplyAddPairs(pairs.at[1], bitsAs<V16s>(alongX(1)));
            return sum;
        };
        V32s sum = splat<V32s>(half);
        for (int k = 0; k < kPairs; k++) {
            const V32s even = row(2 * k) >> 8, odd = row(2 * k + 1) << 8; // 16 bits, at the bottom and the top
            const auto both = selectLanes<0xAA>(bitsAs<V16s>(odd), bitsAs<V16s>(even));
            sum += multiplyAddPairs(both, bitsAs<V16s>(alongY(k)));
        }
        return sum >> 20;
    };
    for (int i = 0; i < count; i += 8) {
        const PairWeights<kPairs> alongX = weigh(load(sites.fx + i)), alongY = weigh(load(sites.fy + i));
        if constexpr (N == 1) {
            const V32s low = lanes(
                i, [&](int k) { return alongX.of[k].low; }, [&](int k) { return alongY.of[k].low; });
            const V32s high = lanes(
                i + 4, [&](int k) { return alongX.of[k].high; }, [&](int k) { return alongY.of[k].high; });
            storeLanes<Tpx8u>(dst + i, {low, high}, count - i);
        } else {
            const auto of = [i](const PairWeights<kPairs>& weights, int pixel) {
                return [&weights, lane = pixel - i](int k) {
                    return loadSplat(reinterpret_cast<const Tpx32s*>(&weights.of[k]) + lane);
                };
            };
            interpolatePixels<Tpx8u, N>(dst, i, minOf(i + 8, count), [&](int pixel) {
                return lanes(pixel, of(alongX, pixel), of(alongY, pixel));
            });
        }
    }
}

} // namespace

template <int N>
void interpolateLinearBytes(const Taps<Tpx32f>& taps, Tpx8u* dst, int count) {
    interpolateBytes<N, 2>(taps, dst, count, 33, weighLinear);
}
template <int N>
void interpolateCubicBytes(const Taps<Tpx32f>& taps, Tpx8u* dst, int count) {
    interpolateBytes<N, 4>(taps, dst, count, 1 << 19, weighCubic);
}

#define TPX_BYTES(N)                                                           \
    template void interpolateLinearBytes<N>(const Taps<Tpx32f>&, Tpx8u*, int); \
    template void interpolateCubicBytes<N>(const Taps<Tpx32f>&, Tpx8u*, int);
TPX_BYTES(1)
TPX_BYTES(3)
TPX_BYTES(4)
#undef TPX_BYTES

} // namespace tpx
