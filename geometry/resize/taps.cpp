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
    const Tpx32s* index;
    const Tpx32f* table;
    int64_t stride, size; // from the weights of a position to those of the next, and how many of them are used
    int64_t offset;       // of the first tap from the index, where none is skipped

    const Tpx32f* begin(int64_t i) const { return table + i * stride; }
    // Where the taps of a position that are used begin.
    struct Place {
        int64_t first;
        const Tpx32f* weights;
    };
    Place at(int64_t i) const {
        const Tpx32f *weights = begin(i), *const end = weights + (stride - size);
        int64_t first = index[i] + offset;
        for (; weights < end && *weights == 0; weights++) first++;
        return {first, weights};
    }
};

// Stretched kernels leave the outermost taps without weight, and so do positions that fall on pixels. Integers
// begin at the first tap with a weight, and take as many as the position that needs most has up to its last
// weight. A float may be infinite, and keeps all.
template <class T>
AxisTaps tapsOf(const TpxiResizeAxis& axis, int lobes, int64_t first, int64_t count) {
    const int64_t stride = 2 * int64_t(lobes);
    const AxisTaps all = {axis.pIndex + first, axis.pCoef32f + first * stride, stride, stride,
                          1 - int64_t(lobes)};
    if constexpr (std::is_integral_v<T>) {
        AxisTaps taps = all;
        taps.size = 1;
        int64_t before = INT64_MIN;
        for (int64_t i = 0; i < count; i++) {
            const Tpx32f* const weights = all.begin(i);
            int64_t skipped = 0, end = stride;
            while (skipped < stride - 1 && weights[skipped] == 0) skipped++;
            while (end > skipped + taps.size && weights[end - 1] == 0) end--;
            taps.size = maxOf(taps.size, end - skipped);
            const int64_t begin = taps.index[i] + skipped;
            if (taps.size == stride || begin < before) return all; // rows and columns are read in rising order
            before = begin;
        }
        return taps;
    }
    return all;
}

// ---- Bands of columns --------------------------------------------------------------------------------------

// Floats on the stack: what a band reads of eight source rows, and the ring of what it makes of them. A ring of
// more rows than that lies in the caller's buffer, and has a row at a time passed into it.
constexpr int64_t kSourceRoom = 6144, kRingRoom = 6144;

// A band of columns, few enough for what is kept of its rows to stay close to the processor.
template <int N>
struct TapColumns {
    static constexpr int64_t kMost = kRingRoom / (kTapRows<N> * N);

    int64_t count;
    int64_t from, pixels = 0; // of the source, that the taps read
    bool inPieces;            // those of a single position are too many already
    TapPosition positions[kMost];

    // The positions from `first` on, of `end` at most; their pixels will lie at `turned`.
    TapColumns(const AxisTaps& taps, int64_t ringRows, int64_t first, int64_t end, const Tpx32f* turned)
        : from(taps.at(first).first) {
        const auto fits = [](int64_t n) { return n * N * kTapRows<N> <= kSourceRoom; };
        inPieces = !fits(taps.size);
        const int64_t groups = maxOf<int64_t>(kRingRoom / (ringRows * kTapPositions * N), 1);
        const int64_t most = minOf(end - first, groups * kTapPositions);
        for (count = 0; count < most; count++) {
            const AxisTaps::Place place = taps.at(first + count);
            const int64_t at = place.first - from;
            if (!inPieces && !fits(at + taps.size)) break;
            pixels = at + taps.size;
            positions[count] = {inPieces ? turned : turned + at * N * kTapRows<N>, place.weights};
        }
    }
};

// Where a position has more taps than the stack has room for, they are read in pieces. Its pixels begin at
// firstOf(j).
template <class T, int N, class FirstOf>
void passInPieces(const TapSource<T, N>& source, int64_t y, int64_t n, const TapColumns<N>& columns,
                  int64_t taps, FirstOf firstOf, Tpx32f* turned, Tpx32f* const* rows) {
    constexpr int64_t kPixels = kSourceRoom / (N * kTapRows<N>);
    passPositions<N>(columns.count, rows, [&](int64_t j, TapSums<N>* sums) {
        for (int c = 0; c < N; c++)
            for (V32f& sum : sums[c]) sum = V32f{};
        for (int64_t t = 0; t < taps; t += kPixels) {
            const int64_t count = minOf(taps - t, kPixels);
            source.read(y, n, firstOf(j) + t, count, turned);
            addTaps<N, kAnyTaps>(turned, columns.positions[j].weights + t, int(count), t == 0, sums);
        }
    });
}

// ---- The tile ----------------------------------------------------------------------------------------------

// Calls act(std::integral_constant<int, Taps>) with the number of taps, or kAnyTaps.
template <int Taps = kOwnTaps, class Act>
void withTaps(int64_t taps, Act act) {
    if constexpr (Taps != kAnyTaps)
        if (taps != Taps) return withTaps<Taps - 1>(taps, act);
    act(std::integral_constant<int, Taps>());
}

using PassAlongX = void (*)(const TapPosition*, int64_t, int, Tpx32f* const*);
template <class T>
using BlendAlongY = void (*)(const RowRing<Tpx32f>&, const Tpx32f*, int64_t, T*, int64_t);

template <class T, int N>
void resizeTile(const Tile<T>& tile, BorderWord border) {
    const TpxiResizeAxis &ax = tile.plan.axisX, &ay = tile.plan.axisY;
    const AxisTaps x = tapsOf<T>(ax, tile.plan.lobesX, tile.x, tile.width);
    const AxisTaps y = tapsOf<T>(ay, tile.plan.lobesY, tile.y, tile.height);
    const int64_t rows = y.size;
    const TapSource<T, N> source(tile.src, ax.srcLen, ay.srcLen, border);
    PassAlongX pass = nullptr;
    withTaps(x.size, [&](auto taps) { pass = passAlongX<N, taps>; });
    BlendAlongY<T> blend = nullptr;
    withTaps(rows, [&](auto taps) { blend = blendAlongY<T, taps>; });

    const int64_t endRow = y.at(tile.height - 1).first + rows;
    constexpr int64_t kGroup = kTapPositions * N;
    alignas(32) Tpx32f turned[kSourceRoom + kTurned<T> * kTapRows<N>], onStack[kRingRoom], aside[kGroup];
    const bool fits = (rows + kTapRows<N> - 1) * kGroup <= kRingRoom;
    const int64_t ahead = fits ? kTapRows<N> - 1 : 0;
    Tpx32f* const memory = fits ? onStack : reinterpret_cast<Tpx32f*>(alignUp(tile.buffer, 32));

    int64_t bandWidth;
    for (int64_t band = 0; band < tile.width; band += bandWidth) {
        const TapColumns<N> columns(x, rows + ahead, band, tile.width, turned);
        bandWidth = columns.count;
        // The caller's buffer has no room for whole groups; a band is a single group then.
        const auto step = ptrdiff_t(roundUp(uint64_t(columns.count) * N, fits ? kGroup : kLanes<Tpx32f>));
        RowRing<Tpx32f> ring(memory, step, rows, ahead);
        const auto make = [&](int64_t first, int64_t n) {
            Tpx32f* to[kTapRows<N>]; // lanes past n have what row n - 1 has
            for (int k = 0; k < kTapRows<N>; k++)
                to[k] = fits ? ring.of(first + minOf<int64_t>(k, n - 1)) : aside;
            if (columns.inPieces) {
                const auto firstOf = [&](int64_t j) { return x.at(band + j).first; };
                passInPieces(source, first, n, columns, x.size, firstOf, turned, to);
            } else {
                source.read(first, n, columns.from, columns.pixels, turned);
                pass(columns.positions, columns.count, int(x.size), to);
            }
            if (!fits) __builtin_memcpy(ring.of(first), aside, size_t(columns.count) * N * sizeof(Tpx32f));
        };
        const ImageView<T> dst = tile.dst.from(band * N, 0);
        for (int64_t i = 0; i < tile.height; i++) {
            const AxisTaps::Place place = y.at(i);
            ring.moveTo(place.first, endRow, make);
            blend(ring, place.weights, rows, dst.row(i), columns.count * N);
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
