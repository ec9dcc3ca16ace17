// SPDX-License-Identifier: Apache-2.0
// Pixels to pixels with their channels chosen anew: the one kernel of channel orders and of dropping or adding
// a channel. Blocks are shuffled by controls that are made from the order once a call.
#pragma once

#include "frame/images/pixels.h"
#include "frame/runs/memory_runs.h"

namespace tpx {

// A destination channel without a source channel.
inline constexpr int kNoChannel = -1;

// Of a destination byte of a block: the channel of its pixel, and the source byte if that channel came from
// channel 0.
template <int From, int To, int Bytes>
struct ShufflePlaces {
    alignas(16) Tpx8u channel[To][kBlockBytes], origin[To][kBlockBytes];
    constexpr ShufflePlaces() : channel{}, origin{} {
        for (int i = 0; i < To * kBlockBytes; i++) {
            const int sample = i / Bytes;
            channel[i / kBlockBytes][i % kBlockBytes] = Tpx8u(sample % To);
            origin[i / kBlockBytes][i % kBlockBytes] = Tpx8u(sample / To * From * Bytes + i % Bytes);
        }
    }
    // Whether a pixel with bytes in destination register j has bytes in source register i.
    static constexpr bool meet(int j, int i) {
        const int first = j * kBlockBytes / (To * Bytes), last = ((j + 1) * kBlockBytes - 1) / (To * Bytes);
        return first * From * Bytes < (i + 1) * kBlockBytes && i * kBlockBytes < (last + 1) * From * Bytes;
    }
};
template <int From, int To, int Bytes>
inline constexpr ShufflePlaces<From, To, Bytes> kShufflePlaces;

template <int From, int To, int Bytes>
class PixelShuffle {
 public:
    // source[k] feeds channel k of the destination; kNoChannel gives 0.
    explicit PixelShuffle(const int source[To]) {
        constexpr auto& places = kShufflePlaces<From, To, Bytes>;
        // Without a source the top bit is set and stays so, whatever is added or taken off below.
        alignas(16) Tpx8u start[kBlockBytes] = {};
        for (int c = 0; c < To; c++) start[c] = Tpx8u(source[c] == kNoChannel ? 0xC0 : source[c] * Bytes);
        for (int j = 0; j < To; j++) {
            const V8u at = load(places.origin[j]) + shuffleBytes(load(start), load(places.channel[j]));
            // A byte of another register gets its top bit set: by the difference, or by the sum.
            for (int i = 0; i < From; i++)
                control_[j][i] = addSat(at - splat<V8u>(Tpx8u(i * kBlockBytes)), splat<V8u>(112));
        }
    }

    Block<To> operator()(const Block<From>& a) const {
        Block<To> b{};
        for (int j = 0; j < To; j++)
            for (int i = 0; i < From; i++)
                if (ShufflePlaces<From, To, Bytes>::meet(j, i))
                    b.at[j] |= shuffleBytes(a.at[i], control_[j][i]);
        return b;
    }

 private:
    V8u control_[To][From];
};

// The same to pixels of four channels, some of which stay as they were or get a constant.
template <int From, int Bytes>
class PixelShuffleOver {
 public:
    // keep[k] and fill[k]: of channel k, all bytes 0xFF or 0 and the constant; only without a source.
    PixelShuffleOver(const int source[4], const void* keep, const void* fill)
        : shuffle_(source), keep_(repeat(keep)), fill_(repeat(fill)) {}

    Block<4> operator()(const Block<From>& a) const {
        Block<4> b = shuffle_(a);
        for (auto& v : b.at) v |= fill_;
        return b;
    }
    Block<4> operator()(const Block<From>& a, const Block<4>& old) const {
        Block<4> b = (*this)(a);
        for (int k = 0; k < 4; k++) b.at[k] |= old.at[k] & keep_;
        return b;
    }

 private:
    static V8u repeat(const void* pixel) {
        V8u one{};
        copyShort(&one, pixel, 4 * Bytes);
        return shuffleBytes(one, load(kPatternPhases.of[4 * Bytes]));
    }
    PixelShuffle<From, 4, Bytes> shuffle_;
    V8u keep_, fill_;
};

// To other pixels; in place only if From and To are equal.
template <class T, int From, int To>
inline void shufflePixels(const int source[To], Interleaved<const T, From> src, Interleaved<T, To> dst,
                          TpxiSizeL roi) {
    const bool stream =
        src.p != dst.p && goesPastCaches(kStreamPointwise, trafficOf(samplesOf(roi, 1), dst, src));
    mapPixels(roi, stream, PixelShuffle<From, To, sizeof(T)>(source), dst, src);
}

} // namespace tpx
