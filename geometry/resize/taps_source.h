// Source rows of a resize by weighted taps: eight of them at a time in single precision, turned so that a
// register holds one sample of each. Beyond sides where the image ends its edge pixels are repeated.
#pragma once

#include "frame/images/border.h"
#include "frame/images/view.h"
#include "frame/simd/simd.h"

namespace tpx {

// Rows that are taken at a time: the lanes of a register.
inline constexpr int kTapRows = kLanes<Tpx32f>;

// Four samples of either of two rows.
template <class T>
inline V32f loadFoursAsFloat(const T* low, const T* high) {
    if constexpr (std::is_same_v<T, Tpx32f>)
        return loadFours(low, high);
    else
        return toFloat(Pair<V32s>{loadAs<Tpx32s>(low), loadAs<Tpx32s>(high)});
}

// `count` samples of eight rows: out[8 * i + k] = rows[k][i]. No sample but those is read.
template <class T>
inline void turnRows(const T* const* rows, int64_t count, Tpx32f* out) {
    const auto four = [&](int64_t i) [[gnu::always_inline]] {
        const auto two = [&](int k) { return loadFoursAsFloat(rows[k] + i, rows[k + 4] + i); };
        const auto turned = transpose(Several<V32f, 4>{{two(0), two(1), two(2), two(3)}});
        for (int k = 0; k < 4; k++) store(out + (i + k) * kTapRows, turned.at[k]);
    };
    if (count < 4) {
        for (int64_t i = 0; i < count; i++)
            for (int k = 0; k < kTapRows; k++) out[i * kTapRows + k] = Tpx32f(peek(rows[k] + i));
        return;
    }
    for (int64_t i = 0; i + 4 <= count; i += 4) four(i);
    if (count % 4) four(count - 4);
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

    // `count` pixels of the rows [y, y + n) from column x on, sample by sample. Lanes past n repeat the last
    // row.
    void read(int64_t y, int64_t n, int64_t x, int64_t count, Tpx32f* out) const {
        const int64_t before = clampTo(firstColumn_ - x, 0, count);
        const int64_t after = clampTo(x + count - endColumn_, 0, count), inside = count - before - after;
        const auto rowsAt = [&](int64_t column, const T*(&rows)[kTapRows]) {
            for (int k = 0; k < kTapRows; k++)
                rows[k] =
                    image_.row(clampTo(y + minOf<int64_t>(k, n - 1), firstRow_, endRow_ - 1)) + column * N;
        };
        const T* rows[kTapRows];
        if (before > 0) {
            rowsAt(firstColumn_, rows);
            repeat(rows, before, out);
        }
        if (inside > 0) {
            rowsAt(x + before, rows);
            turnRows(rows, inside * N, out + before * N * kTapRows);
        }
        if (after > 0) {
            rowsAt(endColumn_ - 1, rows);
            repeat(rows, after, out + (count - after) * N * kTapRows);
        }
    }

 private:
    static constexpr int64_t kFar = INT64_MAX / 4;

    static void repeat(const T* const* pixels, int64_t count, Tpx32f* out) {
        constexpr int kPixel = N * kTapRows;
        turnRows(pixels, N, out);
        for (int64_t i = kPixel; i < count * kPixel; i += kTapRows) store(out + i, load(out + i - kPixel));
    }

    ImageView<const T> image_;
    int64_t firstColumn_, endColumn_, firstRow_, endRow_; // of the pixels that may be read
};

} // namespace tpx
