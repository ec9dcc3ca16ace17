// SPDX-License-Identifier: Apache-2.0
// Cubic, Lanczos and antialiasing resize: weighted taps along x and along y.
//
// The tile is taken in bands of columns. Within a band source rows are passed along x once, eight at a time,
// into a ring with as many rows as there are taps along y, and destination rows are weighted sums of the ring.
// Beyond an edge that is not in memory the source's edge pixels are repeated, so strips along the sides need no
// code of their own: their taps are clamped one by one, which comes to the same sums.
#include "frame/entry/entry.h"
#include "geometry/resize/taps_pass.h"
#include "geometry/resize/taps_source.h"
#include "geometry/resize/tile.h"

namespace tpx {
namespace {

// ---- Taps that count --------------------------------------------------------------------------------------

// The taps of some positions of an axis.
struct AxisTaps {
    Footprint footprint;
    const Tpx32s* index;
    const Tpx32f* weights; // of the first of a position's taps
    int64_t stride;        // from a position's weights to the next one's
};

// Stretched kernels leave the outermost taps without weight, and so do positions that fall on pixels. Integers
// do without what has none on both sides at all positions. A float may be infinite, and keeps it.
template <class T>
AxisTaps tapsOf(const TpxiResizeAxis& axis, int lobes, int64_t first, int64_t count) {
    const int64_t stride = 2 * int64_t(lobes);
    const Tpx32f* const weights = axis.pCoef32f + first * stride;
    int64_t spare = std::is_integral_v<T> ? lobes - 1 : 0; // on either side
    for (int64_t i = 0; i < count && spare > 0; i++)
        for (int64_t k = 0; k < spare; k++)
            if (weights[i * stride + k] != 0 || weights[(i + 1) * stride - 1 - k] != 0) spare = k;
    return {footprintOf(lobes - int(spare)), axis.pIndex + first, weights + spare, stride};
}

// ---- Bands of columns --------------------------------------------------------------------------------------

// Floats on the stack: what a band reads of eight source rows, and the ring of what it makes of them. A ring of
// more rows than that lies in the caller's buffer, and has a row at a time passed into it.
constexpr int64_t kSourceRoom = 6144, kRingRoom = 6144;

// The positions from `first` on that make a band, of `end` at most.
template <int N>
TapColumns bandAt(const AxisTaps& taps, int64_t ringRows, int64_t first, int64_t end) {
    const Tpx32s* const index = taps.index + first;
    const int size = taps.footprint.size;
    const int64_t groups = maxOf<int64_t>(kRingRoom / (ringRows * kTapPositions * N), 1);
    const auto pixels = [&](int64_t count) { return int64_t(index[count - 1]) - index[0] + size; };
    const auto fits = [&](int64_t count) { return pixels(count) * N * kTapRows<N> <= kSourceRoom; };
    int64_t count = minOf(end - first, groups * kTapPositions);
    if (fits(1) && !fits(count)) { // as positions rise, the last one that fits is found by halving
        int64_t tooMany = count;
        count = 1;
        while (tooMany - count > 1) {
            const int64_t middle = (count + tooMany) / 2;
            (fits(middle) ? count : tooMany) = middle;
        }
    }
    return {index, taps.weights + first * taps.stride,        taps.stride,  count,
            size,  int64_t(index[0]) + taps.footprint.offset, pixels(count)};
}

// Where a position has more taps than the stack has room for, they are read in pieces.
template <class T, int N>
void passInPieces(const TapSource<T, N>& source, int64_t y, int64_t n, const TapColumns& columns,
                  Tpx32f* turned, Tpx32f* const* rows) {
    constexpr int64_t kPixels = kSourceRoom / (N * kTapRows<N>);
    passPositions<N>(columns.count, rows, [&](int64_t j, TapSums<N>* sums) {
        const int64_t from = columns.from + columns.index[j] - columns.index[0];
        for (int c = 0; c < N; c++)
            for (V32f& sum : sums[c]) sum = V32f{};
        for (int64_t t = 0; t < columns.taps; t += kPixels) {
            const int64_t count = minOf(columns.taps - t, kPixels);
            source.read(y, n, from + t, count, turned);
            addTaps<N, kAnyTaps>(turned, columns.weights + j * columns.stride + t, int(count), t == 0, sums);
        }
    });
}

// ---- The tile ----------------------------------------------------------------------------------------------

// Calls act(std::integral_constant<int, Taps>) with the number of taps, or kAnyTaps.
template <class Act>
void withTaps(int taps, Act act) {
    switch (taps) {
        case 2:
            return act(std::integral_constant<int, 2>());
        case 4:
            return act(std::integral_constant<int, 4>());
        case 6:
            return act(std::integral_constant<int, 6>());
        case 8: // 8 to 14 are those of stretched kernels
            return act(std::integral_constant<int, 8>());
        case 10:
            return act(std::integral_constant<int, 10>());
        case 12:
            return act(std::integral_constant<int, 12>());
        case 14:
            return act(std::integral_constant<int, 14>());
        default:
            return act(std::integral_constant<int, kAnyTaps>());
    }
}

using PassAlongX = void (*)(const TapColumns&, const Tpx32f*, Tpx32f* const*);
template <class T>
using BlendAlongY = void (*)(const RowRing<Tpx32f>&, const Tpx32f*, int, T*, int64_t);

template <class T, int N>
void resizeTile(const Tile<T>& tile, BorderWord border) {
    const TpxiResizeAxis &ax = tile.plan.axisX, &ay = tile.plan.axisY;
    const AxisTaps x = tapsOf<T>(ax, tile.plan.lobesX, tile.x, tile.width);
    const AxisTaps y = tapsOf<T>(ay, tile.plan.lobesY, tile.y, tile.height);
    const int rows = y.footprint.size;
    const TapSource<T, N> source(tile.src, ax.srcLen, ay.srcLen, border);
    PassAlongX pass = nullptr;
    withTaps(x.footprint.size, [&](auto taps) { pass = passAlongX<N, taps>; });
    BlendAlongY<T> blend = nullptr;
    withTaps(rows, [&](auto taps) { blend = blendAlongY<T, taps>; });

    const int64_t endRow = int64_t(y.index[tile.height - 1]) + y.footprint.last() + 1;
    constexpr int64_t kGroup = kTapPositions * N;
    alignas(32) Tpx32f turned[kSourceRoom + kTurned<T> * kTapRows<N>], onStack[kRingRoom], aside[kGroup];
    const bool fits = (rows + kTapRows<N> - 1) * kGroup <= kRingRoom;
    const int64_t ahead = fits ? kTapRows<N> - 1 : 0;
    Tpx32f* const memory = fits ? onStack : reinterpret_cast<Tpx32f*>(alignUp(tile.buffer, 32));

    int64_t bandWidth;
    for (int64_t band = 0; band < tile.width; band += bandWidth) {
        const TapColumns columns = bandAt<N>(x, rows + ahead, band, tile.width);
        bandWidth = columns.count;
        // The caller's buffer has no room for whole groups; a band is a single group then.
        const auto step = ptrdiff_t(roundUp(uint64_t(columns.count) * N, fits ? kGroup : kLanes<Tpx32f>));
        RowRing<Tpx32f> ring(memory, step, rows, ahead);
        const auto make = [&](int64_t first, int64_t n) {
            Tpx32f* to[kTapRows<N>]; // lanes past n have what row n - 1 has
            for (int k = 0; k < kTapRows<N>; k++)
                to[k] = fits ? ring.of(first + minOf<int64_t>(k, n - 1)) : aside;
            if (columns.pixels * N * kTapRows < N >> kSourceRoom) {
                passInPieces(source, first, n, columns, turned, to);
            } else {
                source.read(first, n, columns.from, columns.pixels, turned);
                pass(columns, turned, to);
            }
            if (!fits) __builtin_memcpy(ring.of(first), aside, size_t(columns.count) * N * sizeof(Tpx32f));
        };
        const ImageView<T> dst = tile.dst.from(band * N, 0);
        for (int64_t i = 0; i < tile.height; i++) {
            ring.moveTo(int64_t(y.index[i]) + y.footprint.offset, endRow, make);
            blend(ring, y.weights + i * y.stride, rows, dst.row(i), columns.count * N);
        }
    }
}

// An antialiasing call takes plans of all three kinds of kernel.
constexpr auto kAntialiasing = TpxInterpolationType(0);

template <Layout L, class T>
TpxStatus resizeByTaps(const TileCall<T>& call, TpxBorderType word, TpxInterpolationType interpolation) {
    constexpr int N = channelsOf(L);
    const BorderWord border = readBorder<Border::Replicate>(word);
    if (!border.valid) return tpxErrBorder;
    const TpxStatus status = checkTile(call, interpolation, interpolation == kAntialiasing);
    if (status != tpxOk) return status;
    resizeTile<T, N>(makeTile(call, N), border);
    return doneTile(call);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_RESIZE_TAPS(STEM, KIND, T, L, R, Step, Point, Size)                                             \
    TPX_ENTRY(STEM##_##T##_##L##R)                                                                          \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pDst, Step dstStep, Point dstOffset, Size dstSize,           \
     TpxBorderType border, const Tpx##T*, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) {                    \
        return tpx::resizeByTaps<tpx::Layout::L>(                                                           \
            tpx::tileCall(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer), border, KIND); \
    }
#define TPX_RESIZE_TAPS_LAYOUTS(STEM, KIND, T)                               \
    TPX_RESIZE_TAPS(STEM, KIND, T, C1, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_TAPS(STEM, KIND, T, C3, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_TAPS(STEM, KIND, T, C4, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_TAPS(STEM, KIND, T, C1, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_TAPS(STEM, KIND, T, C3, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_TAPS(STEM, KIND, T, C4, R_L, TpxSizeL, TpxiPointL, TpxiSizeL)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeCubic, tpxInterpolationCubic, 8u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeCubic, tpxInterpolationCubic, 16u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeCubic, tpxInterpolationCubic, 16s)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeCubic, tpxInterpolationCubic, 32f)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeLanczos, tpxInterpolationLanczos, 8u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeLanczos, tpxInterpolationLanczos, 16u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeLanczos, tpxInterpolationLanczos, 16s)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeLanczos, tpxInterpolationLanczos, 32f)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeAntialiasing, tpx::kAntialiasing, 8u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeAntialiasing, tpx::kAntialiasing, 16u)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeAntialiasing, tpx::kAntialiasing, 16s)
TPX_RESIZE_TAPS_LAYOUTS(tpxiResizeAntialiasing, tpx::kAntialiasing, 32f)
#undef TPX_RESIZE_TAPS
#undef TPX_RESIZE_TAPS_LAYOUTS
