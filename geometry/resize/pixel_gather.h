// SPDX-License-Identifier: Apache-2.0
// Gathers of whole pixels at the positions of a plan, of which only the size in bytes matters: nearest resizes,
// and others whose weights come to the same.
#pragma once

#include "geometry/resize/tile.h"

namespace tpx {

// Gathers the pixels of rows. Small pixels are taken in groups that fill 8 bytes of the destination: where the
// sources of a group lie within 16 bytes they are one load and one shuffle, prepared once for all rows; where
// those of a half of it do, they are two. Where all groups are alike, as in whole reductions, positions and
// shuffles stay in registers.
template <int Bytes>
class PixelGather {
    static constexpr int kPixels = Bytes > 4 ? 0 : 8 / Bytes; // of a group
    static constexpr bool kHasHalves = Bytes <= 2;

    // A single pixel is moved as the next power of two while pixels follow it on both sides.
    struct Piece {
        Tpx8u bytes[Bytes <= 2 ? Bytes : Bytes <= 4 ? 4 : Bytes <= 8 ? 8 : 16];
    };

    const Tpx32s* index;
    int64_t width;
    int64_t shuffled = 0, pieces; // pixels before which shuffles, and then pieces, serve
    bool inHalves = false, alike = false;
    Tpx8u* shuffles;

    // Whether the sources of so many pixels from the j-th on lie within a register.
    bool fit(int64_t j, int count) const {
        return (int64_t(index[j + count - 1]) - index[j] + 1) * Bytes <= 16;
    }

    void prepareShuffles() {
        if constexpr (kHasHalves)
            for (int64_t j = 0; j + kPixels <= width && !inHalves; j += kPixels) inHalves = !fit(j, kPixels);
        const int part = inHalves ? kPixels / 2 : kPixels;
        const int64_t end = (int64_t(index[width - 1]) + 1) * Bytes;
        Tpx8u* shuffle = shuffles;
        // Two pixels of three bytes are stored as eight. The last two never are: their load would not end in
        // time.
        for (; shuffled + kPixels <= width; shuffled += kPixels, shuffle += 8) {
            const Tpx32s* const at = index + shuffled;
            const int last = kPixels - part;
            if (!fit(shuffled, part) || !fit(shuffled + last, part) || int64_t(at[last]) * Bytes + 16 > end)
                break;
            for (int k = 0; k < kPixels * Bytes; k++)
                shuffle[k] = Tpx8u((at[k / Bytes] - at[k / Bytes / part * part]) * Bytes + k % Bytes);
        }
        alike = inHalves && shuffled > kPixels;
        for (int64_t j = kPixels; j < shuffled && alike; j++)
            alike = index[j] - index[j - kPixels] == index[kPixels] - index[0];
    }

 public:
    // `work` has room for 4 bytes for each pixel.
    PixelGather(const TpxiResizeAxis& axis, int64_t x, int64_t width, Tpx8u* work)
        : index(axis.pIndex + x), width(width), pieces(width), shuffles(work) {
        if constexpr (kPixels > 0) prepareShuffles();
        if (sizeof(Piece) != Bytes)
            while (pieces > shuffled && index[pieces - 1] == index[width - 1]) pieces--;
    }

    // `next` is the row that will be gathered after this.
    void operator()(const Tpx8u* src, Tpx8u* dst, const Tpx8u* next) const {
        // Kept apart from *this, which the compiler cannot tell from the destination.
        const Tpx32s* const at = index;
        const int64_t shufflesEnd = shuffled, piecesEnd = pieces, end = width;
        int64_t j = 0;
        if constexpr (kPixels > 0) {
            const Tpx8u* shuffle = shuffles;
            if (alike) {
                j = gatherAlike(src + int64_t(at[0]) * Bytes, dst, next + int64_t(at[0]) * Bytes);
            } else if (kHasHalves && inHalves) {
                for (; j < shufflesEnd; j += kPixels, shuffle += 8)
                    poke(reinterpret_cast<Tpx64s*>(dst + j * Bytes),
                         firstPiece(interleaveUnits<4, false>(half(src, at[j], shuffle),
                                                              half(src, at[j + kPixels / 2], shuffle + 4))));
            } else {
// Else counting costs half as much as moving, or more where the loop happens to lie badly.
#pragma GCC unroll 4
                for (; j < shufflesEnd; j += kPixels, shuffle += 8) {
                    const V8u pixels = load(src + int64_t(at[j]) * Bytes);
                    poke(reinterpret_cast<Tpx64s*>(dst + j * Bytes),
                         firstPiece(shuffleBytes(pixels, load(shuffle))));
                }
            }
        }
        for (; j < piecesEnd; j++)
            poke(reinterpret_cast<Piece*>(dst + j * Bytes),
                 peek(reinterpret_cast<const Piece*>(src + int64_t(at[j]) * Bytes)));
        for (; j < end; j++) __builtin_memcpy(dst + j * Bytes, src + int64_t(at[j]) * Bytes, Bytes);
    }

 private:
    // All groups that are shuffled. Rows that are skipped keep the processor from fetching the next one by
    // itself.
    int64_t gatherAlike(const Tpx8u* src, Tpx8u* dst, const Tpx8u* next) const {
        const V8u shuffle = loadFront<8>(shuffles);
        const int64_t end = shuffled, step = int64_t(index[kPixels] - index[0]) * Bytes, ahead = next - src,
                      half = int64_t(index[kPixels / 2] - index[0]) * Bytes;
        const V8u nothing = splat<V8u>(0x80), low = interleaveUnits<4, false>(shuffle, nothing),
                  high = interleaveUnits<4, false>(nothing, lanesBehind<4>(shuffle, nothing));
        for (int64_t j = 0; j < end; j += kPixels, src += step) {
            prefetch(src + ahead);
            poke(reinterpret_cast<Tpx64s*>(dst + j * Bytes),
                 firstPiece(shuffleBytes(load(src), low) | shuffleBytes(load(src + half), high)));
        }
        return end;
    }

    // Four bytes of pixels, the first of which is the x-th.
    static V8u half(const Tpx8u* src, Tpx32s x, const Tpx8u* shuffle) {
        return shuffleBytes(load(src + int64_t(x) * Bytes),
                            fromPieces(peek(reinterpret_cast<const Tpx32s*>(shuffle)), 0, 0, 0));
    }
};

// Types of one size share their code.
template <int Bytes>
[[gnu::noinline]] void gatherRows(const Tile<Tpx8u>& tile) {
    const PixelGather<Bytes> gather(tile.plan.axisX, tile.x, tile.width, tile.buffer);
    const Tpx32s* const index = tile.plan.axisY.pIndex + tile.y;
    for (int64_t i = 0; i < tile.height; i++) {
        Tpx8u* const dst = tile.dst.row(i);
        if (i > 0 && index[i] == index[i - 1])
            __builtin_memcpy(dst, tile.dst.row(i - 1), size_t(tile.width) * Bytes);
        else
            gather(tile.src.row(index[i]), dst, tile.src.row(index[i + 1 < tile.height ? i + 1 : i]));
    }
}

// Each destination pixel of N samples is the source pixel at its index.
template <int N, class T>
void gatherTile(const Tile<T>& tile) {
    constexpr int kBytes = N * int(sizeof(T));
    const ImageView<const Tpx8u> src{reinterpret_cast<const Tpx8u*>(tile.src.data), tile.src.step};
    const ImageView<Tpx8u> dst{reinterpret_cast<Tpx8u*>(tile.dst.data), tile.dst.step};
    gatherRows<kBytes>({tile.plan, src, dst, tile.x, tile.y, tile.width, tile.height, tile.buffer});
}

} // namespace tpx
