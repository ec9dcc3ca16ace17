// SPDX-License-Identifier: Apache-2.0
// Linear resize. Each source row is passed horizontally once into one of two row buffers, and destination rows
// are blends of the two. Positions whose taps reach outside the source lie in strips along the tile's sides and
// need one blend alone.
#include "frame/entry/entry.h"
#include "frame/images/row_ring.h"
#include "frame/runs/runs.h"
#include "frame/simd/rounding.h"
#include "geometry/resize/linear_pass_8u.h"
#include "geometry/resize/linear_pass_float.h"
#include "geometry/resize/pixel_gather.h"

namespace tpx {
namespace {

// ---- One blend, as the strips do it -------------------------------------------------------------------

template <class T>
T blendOnce(T p0, T p1, WeightOf<T> weight) {
    if constexpr (std::is_same_v<T, Tpx8u>) {
        const int u = p0 * 16384 + (p1 - p0) * weight;
        return T((u + 8192 + ((u >> 14) & 1)) >> 14);
    } else {
        const RowOf<T> a = p0, b = p1, blend = a + (b - a) * weight;
        if constexpr (std::is_floating_point_v<T>)
            return blend;
        else
            return toSample<T, Rounding::OfThread>(blend);
    }
}

template <class T, int N>
void blendPixel(const T* p0, const T* p1, WeightOf<T> weight, T* dst) {
    for (int c = 0; c < N; c++) poke(dst + c, blendOnce(peek(p0 + c), peek(p1 + c), weight));
}

// The same for `count` neighbours with the same taps.
template <class T, int N>
void blendRun(const T* p0, const T* p1, WeightOf<T> weight, T* dst, int64_t count) {
    T pixel[N];
    blendPixel<T, N>(p0, p1, weight, pixel);
    for (int64_t i = 0; i < count; i++)
        for (int c = 0; c < N; c++) poke(dst + i * N + c, pixel[c]);
}

// A destination row of the top or bottom strip: a blend along one source row. Where the tile has a strip at the
// side too, both taps fall on the outermost pixel.
template <class T, int N>
void blendStripRow(const Tile<T>& tile, const Strips& strips, const T* src, T* dst) {
    const TpxiResizeAxis& axis = tile.plan.axisX;
    const WeightOf<T>* const weights = weightsOf<T>(axis);
    const int64_t end = tile.width - strips.right;
    if (strips.left > 0) blendRun<T, N>(src, src, 0, dst, strips.left);
    for (int64_t j = strips.left; j < end; j++) {
        const T* const p = src + int64_t(axis.pIndex[tile.x + j]) * N;
        blendPixel<T, N>(p, p + N, weightAlongX<T>(weights, tile.x + j), dst + j * N);
    }
    const T* const last = src + (int64_t(axis.srcLen) - 1) * N;
    if (strips.right > 0) blendRun<T, N>(last, last, 0, dst + end * N, strips.right);
}

// Rows [from, from + count) of the tile, which lie in the top or bottom strip: all see one source row alone.
template <class T, int N>
void fillStripRows(const Tile<T>& tile, const Strips& strips, int64_t from, int64_t count) {
    if (count == 0) return;
    const TpxiResizeAxis& axis = tile.plan.axisY;
    const int64_t srcRow = borderSource<Border::Replicate>(axis.pIndex[tile.y + from], axis.srcLen);
    T* const first = tile.dst.row(from);
    blendStripRow<T, N>(tile, strips, tile.src.row(srcRow), first);
    for (int64_t i = 1; i < count; i++)
        __builtin_memcpy(tile.dst.row(from + i), first, size_t(tile.width) * N * sizeof(T));
}

// ---- The vertical blend -------------------------------------------------------------------------------

// at(i) makes a register of samples from position i on of the two rows. Positions at both ends may be made
// twice.
template <class T, class At>
inline void storeBlend(T* dst, int64_t count, const T* below, At at) {
    constexpr int64_t L = kLanes<T>;
    if (count < L) {
        const Vec<T> all = at(0);
        copyShort(dst, &all, count * int64_t(sizeof(T)));
        return;
    }
    store(dst, at(0));
    int64_t i = samplesToBoundary(dst);
    for (; i + 2 * L <= count; i += 2 * L) {
        prefetch(below + i);
        store(dst + i, at(i));
        store(dst + i + L, at(i + L));
    }
    if (i + L <= count) store(dst + i, at(i));
    store(dst + count - L, at(count - L));
}

// (r0 * (16384 - q) + r1 * q + 524288) >> 20. The sum is that of the nearer row and the other's share, which
// can be floored alone, as the rest of the sum is whole: base + ((other - base) * q >> 14), then rounded to
// nearest by 6 bits. As q is at most 8192 then, -4q fits 16 bits and the high half of a product is the floored
// share.
inline void blendRows(const Tpx16s* r0, const Tpx16s* r1, Tpx16s weight, Tpx8u* dst, int64_t count,
                      const Tpx8u* below) {
    int q = weight;
    if (q > 8192) {
        q = 16384 - q;
        const Tpx16s* const nearer = r1;
        r1 = r0;
        r0 = nearer;
    }
    const V16s minus4q = splat<V16s>(Tpx16s(-4 * q));
    const HalvesUp<V16s> roundBy6Bits(6);
    storeBlend(dst, count, below, [=](int64_t i) {
        const auto eight = [=](int64_t k) {
            const V16s base = load(r0 + k), other = load(r1 + k);
            return roundBy6Bits(base + multiplyHigh(base - other, minus4q));
        };
        return narrow<Tpx8u>(Pair<V16s>{eight(i), eight(i + 8)});
    });
}

template <class T>
inline void blendRows(const RowOf<T>* r0, const RowOf<T>* r1, RowOf<T> fraction, T* dst, int64_t count,
                      const T* below) {
    using V = Vec<RowOf<T>>;
    const V f = splat<V>(fraction);
    storeBlend(dst, count, below, [=](int64_t i) {
        const V a = load(r0 + i), blend = a + (load(r1 + i) - a) * f;
        if constexpr (std::is_floating_point_v<T>)
            return blend;
        else
            return narrow<T>(toInteger(blend)); // as samples do, blends of them fit
    });
}

// ---- The tile ------------------------------------------------------------------------------------------

template <class T, int N>
using PassOf = std::conditional_t<std::is_same_v<T, Tpx8u>, RowPass8u<N>, RowPass<T, N>>;

// The rows between the top and bottom strips. Not inlined: what the other parts keep would push the loops' own
// addresses out of the registers.
template <class T, int N>
[[gnu::noinline]] void fillMiddle(const Tile<T>& tile, const Strips& strips) {
    const int64_t width = tile.width - strips.left - strips.right;
    const int64_t height = tile.height - strips.top - strips.bottom;
    if (height <= 0) return;

    const Tpx32s* const index = tile.plan.axisY.pIndex + tile.y + strips.top;
    const WeightOf<T>* const weights = weightsOf<T>(tile.plan.axisY) + tile.y + strips.top;
    const int64_t lastColumn = (int64_t(tile.plan.axisX.srcLen) - 1) * N;
    const ImageView<T> left = tile.dst.from(0, strips.top), middle = left.from(strips.left * N, 0),
                       right = left.from((tile.width - strips.right) * N, 0);
    // A row's part of the left and of the right strip, whose pixels all see one source column.
    const auto fillSides = [&](int64_t i) {
        const T *const p0 = tile.src.row(index[i]), *const p1 = tile.src.row(int64_t(index[i]) + 1);
        const WeightOf<T> weight = peek(weights + i);
        if (strips.left > 0) blendRun<T, N>(p0, p1, weight, left.row(i), strips.left);
        if (strips.right > 0)
            blendRun<T, N>(p0 + lastColumn, p1 + lastColumn, weight, right.row(i), strips.right);
    };
    if (width <= 0) {
        for (int64_t i = 0; i < height; i++) fillSides(i);
        return;
    }

    // The work buffer: two rows, then what the pass prepares. The contract gives 4 bytes for each sample of a
    // row and for each position, 8 of either in double precision; rows of 8u take 2. The vertical blend reads
    // whole registers, so a short row has room for one, and defined samples in it.
    using Row = RowOf<T>;
    using Pass = PassOf<T, N>;
    constexpr int64_t kRegister = 32, kAlignment = sizeof(T) == 1 ? 16 : 32;
    const uint64_t rowBytes = roundUp(uint64_t(maxOf(Pass::rowBytes(width), kRegister)), kAlignment);
    BlockLayout work(alignUp(tile.buffer, kAlignment));
    Row* const memory = work.take<Row>(kTwoTaps.size * rowBytes / sizeof(Row));
    RowRing<Row> rows(memory, ptrdiff_t(rowBytes / sizeof(Row)), kTwoTaps.size);
    for (int k = 0; k < kTwoTaps.size; k++) __builtin_memset(rows.at(k), 0, kRegister);
    const Pass pass(tile.plan.axisX, tile.x + strips.left, width, work);

    for (int64_t i = 0; i < height; i++) {
        rows.moveTo(index[i], [&](int64_t y, Row* row) { pass(tile.src.row(y), row); });
        blendRows(rows.at(0), rows.at(1), peek(weights + i), middle.row(i), width * N, middle.row(i + 1));
        fillSides(i);
    }
}

// Where an odd number of source pixels makes one, every position lies in the middle of the middle one: all
// fractions are 0, and blends are samples. Of floats they are not quite: -0, and neighbours that are no
// numbers.
template <class T>
bool isPick(const TpxiResizeSpec& plan) {
    const auto odd = [](const TpxiResizeAxis& axis) { return axis.dstRatio == 1 && axis.srcRatio % 2 == 1; };
    return !std::is_floating_point_v<T> && odd(plan.axisX) && odd(plan.axisY);
}

template <Layout L, class T>
TpxStatus resizeLinear(const TileCall<T>& call, TpxBorderType word) {
    constexpr int N = channelsOf(L);
    const BorderWord border = readBorder<Border::Replicate>(word);
    if (!border.valid) return tpxErrBorder;
    const TpxStatus status = checkTile(call, tpxInterpolationLinear);
    if (status != tpxOk) return status;

    const Tile<T> tile = makeTile(call, N);
    if (isPick<T>(tile.plan)) {
        gatherTile<N>(tile);
        return doneTile(call);
    }
    const Strips strips = stripsOf(tile, border);
    fillStripRows<T, N>(tile, strips, 0, strips.top);
    fillMiddle<T, N>(tile, strips);
    fillStripRows<T, N>(tile, strips, tile.height - strips.bottom, strips.bottom);
    return doneTile(call);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_RESIZE_LINEAR(T, L, R, Step, Point, Size)                                                 \
    TPX_ENTRY(tpxiResizeLinear_##T##_##L##R)                                                          \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pDst, Step dstStep, Point dstOffset, Size dstSize,     \
     TpxBorderType border, const Tpx##T*, const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) {              \
        return tpx::resizeLinear<tpx::Layout::L>(                                                     \
            tpx::tileCall(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer), border); \
    }
#define TPX_RESIZE_LINEAR_LAYOUTS(T)                               \
    TPX_RESIZE_LINEAR(T, C1, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_LINEAR(T, C3, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_LINEAR(T, C4, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_LINEAR(T, C1, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_LINEAR(T, C3, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_LINEAR(T, C4, R_L, TpxSizeL, TpxiPointL, TpxiSizeL)
TPX_RESIZE_LINEAR_LAYOUTS(8u)
TPX_RESIZE_LINEAR_LAYOUTS(16u)
TPX_RESIZE_LINEAR_LAYOUTS(16s)
TPX_RESIZE_LINEAR_LAYOUTS(32f)
TPX_RESIZE_LINEAR_LAYOUTS(64f)
#undef TPX_RESIZE_LINEAR
#undef TPX_RESIZE_LINEAR_LAYOUTS
