// SPDX-License-Identifier: Apache-2.0
// Source rows of a resize by weighted taps: several of them at a time in single precision, turned so that a
// register holds one sample of each of eight. Beyond sides where the image ends its edge pixels are repeated.
#pragma once

#include "frame/images/border.h"
#include "frame/images/view.h"
#include "frame/runs/runs.h"
#include "frame/simd/simd.h"

namespace tpx {

// Rows that are taken at a time, of pixels of N samples: the lanes of as many registers. Those of a pixel share
// each load of a weight, and the sums of a few pixels should stay in registers.
template <int N>
inline constexpr int kTapRegisters = N == 1 ? 2 : 1;
template <int N>
inline constexpr int kTapRows = kTapRegisters<N>* kLanes<Tpx32f>;

// Samples that a row is turned by: 16 bytes, as four lanes of 32 bits, which hold so many each.
template <class T>
inline constexpr int kPlaces = 4 / int(sizeof(T));
template <class T>
inline constexpr int kTurned = 4 * kPlaces<T>;

// Sample `Place` of those that fill lanes of 32 bits.
template <class T, int Place>
[[gnu::always_inline]] inline V32f sampleInLanes(V32f lanes) {
    if constexpr (std::is_same_v<T, Tpx32f>) {
        return lanes;
    } else {
        // Converted where it stands, and scaled: a shift of lanes would be two and more. All of it is exact.
        // Where the sample's top bit is the lane's sign and should not be, or the other way round, it is turned
        // over for the conversion, which takes half of the range off an unsigned sample and adds it to a signed
        // one.
        constexpr int kShift = Place * kBits<T>;
        constexpr bool kIsTop = kShift + kBits<T> == 32, kTurnsOver = kIsTop == std::is_unsigned_v<T>;
        constexpr Tpx32u kTopBit = 1u << (kShift + kBits<T> - 1);
        B32f x = bitsAs<B32f>(lanes) & Tpx32s(Tpx32u(std::make_unsigned_t<T>(~0)) << kShift);
        if constexpr (kTurnsOver) x ^= Tpx32s(kTopBit);
        V32f sample = toFloat(x);
        if constexpr (kShift > 0) sample *= splat<V32f>(1 / Tpx32f(1u << kShift));
        constexpr Tpx32f kHalf = Tpx32f(1u << (kBits<T> - 1));
        if constexpr (kTurnsOver) sample += splat<V32f>(kIsTop ? kHalf : -kHalf);
        return sample;
    }
}

template <class T, int Rows, int Place = 0>
[[gnu::always_inline]] inline void storeSamples(V32f lanes, Tpx32f* out) {
    store(out + Place * Rows, sampleInLanes<T, Place>(lanes));
    if constexpr (Place + 1 < kPlaces<T>) storeSamples<T, Rows, Place + 1>(lanes, out);
}

// kTurned samples of some rows from sample `i` on: out[Rows * j + k] = rows[k][i + j].
template <int Rows, class T>
[[gnu::always_inline]] inline void turnBlock(const T* const* rows, int64_t i, Tpx32f* out) {
    const auto bits = [=](int k) { return reinterpret_cast<const Tpx32f*>(rows[k] + i); };
    for (int r = 0; r < Rows; r += kLanes<Tpx32f>, out += kLanes<Tpx32f>) {
        const auto lanes = transpose(
            Several<V32f, 4>{{loadFours(bits(r), bits(r + 4)), loadFours(bits(r + 1), bits(r + 5)),
                              loadFours(bits(r + 2), bits(r + 6)), loadFours(bits(r + 3), bits(r + 7))}});
        for (int k = 0; k < 4; k++) storeSamples<T, Rows>(lanes.at[k], out + k * kPlaces<T> * Rows);
    }
}

// `count` samples of some rows, and up to kTurned samples of anything behind them. No sample but those is read.
// Where `next` is not 0, what lies so many bytes further on is fetched meanwhile: processors foresee how single
// rows are read, and lose track of as many as these.
template <int Rows, class T>
inline void turnRows(const T* const* rows, int64_t count, Tpx32f* out, ptrdiff_t next = 0) {
    constexpr int kBlock = kTurned<T>;
    if (count < kBlock) {
        T samples[Rows][kBlock] = {};
        const T* copies[Rows];
        for (int k = 0; k < Rows; k++) {
            copyShort(samples[k], rows[k], count * int64_t(sizeof(T)));
            copies[k] = samples[k];
        }
        turnBlock<Rows>(copies, 0, out);
        return;
    }
    int64_t i = 0;
    const auto blocks = [&](auto before) {
        for (; i + kBlock <= count; i += kBlock) {
            before();
            turnBlock<Rows>(rows, i, out + i * Rows);
        }
    };
    if (next == 0)
        blocks([] {});
    else
        blocks([&] { // a block is a quarter of a line: a whole one of a quarter of the rows
            constexpr int kQuarter = Rows / 4;
            const T* const* const some = rows + i / kBlock % 4 * kQuarter;
            for (int k = 0; k < kQuarter; k++) prefetch(addBytes(some[k] + i, next));
        });
    if (i < count) turnBlock<Rows>(rows, count - kBlock, out + (count - kBlock) * Rows);
}

// The source as taps see it: pixels beyond an edge that the caller has not declared to be in memory are those
// of the edge.
template <class T, int N>
class TapSource {
 public:
    TapSource(ImageView<const T> image, int64_t width, int64_t height, BorderWord border)
        : image_(image),
          firstColumn_(border.left ? -kFar : 0),
          endColumn_(border.right ? kFar : width),
          firstRow_(border.top ? -kFar : 0),
          endRow_(border.bottom ? kFar : height) {}

    // `count` pixels of the rows [y, y + n) from column x on, sample by sample, and what turnRows leaves behind
    // them. Lanes past n repeat the last row. `next` is that of turnRows.
    void read(int64_t y, int64_t n, int64_t x, int64_t count, Tpx32f* out, ptrdiff_t next = 0) const {
        const int64_t before = clampTo(firstColumn_ - x, 0, count);
        const int64_t after = clampTo(x + count - endColumn_, 0, count), inside = count - before - after;
        const auto rowsAt = [&](int64_t column, const T*(&rows)[kRows]) {
            const T* row = image_.row(clampTo(y, firstRow_, endRow_ - 1)) + column * N;
            for (int64_t k = 0; k < kRows; k++) {
                rows[k] = row;
                if (k < n - 1 && y + k >= firstRow_ && y + k < endRow_ - 1) row = addBytes(row, image_.step);
            }
        };
        const T* rows[kRows];
        if (before > 0) {
            rowsAt(firstColumn_, rows);
            repeat(rows, before, out);
        }
        if (inside > 0) {
            rowsAt(x + before, rows);
            turnRows<kRows>(rows, inside * N, out + before * N * kRows, next);
        }
        if (after > 0) {
            rowsAt(endColumn_ - 1, rows);
            repeat(rows, after, out + (count - after) * N * kRows);
        }
    }

    // All pixels that are read are in memory.
    explicit TapSource(ImageView<const T> image)
        : image_(image), firstColumn_(-kFar), endColumn_(kFar), firstRow_(-kFar), endRow_(kFar) {}

 private:
    static constexpr int kRows = kTapRows<N>;
    static constexpr int64_t kFar = INT64_MAX / 4;

    static void repeat(const T* const* pixels, int64_t count, Tpx32f* out) {
        constexpr int kPixel = N * kRows;
        turnRows<kRows>(pixels, N, out);
        for (int64_t i = kPixel; i < count * kPixel; i += kLanes<Tpx32f>)
            store(out + i, load(out + i - kPixel));
    }

    ImageView<const T> image_;
    int64_t firstColumn_, endColumn_, firstRow_, endRow_; // of the pixels that may be read
};

} // namespace tpx
