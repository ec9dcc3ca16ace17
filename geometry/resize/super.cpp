// SPDX-License-Identifier: Apache-2.0
// Super-sampling: the mean of the source pixels that a destination pixel covers, in parts where it covers
// parts.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "geometry/resize/super_bytes.h"
#include "geometry/resize/super_halves.h"
#include "geometry/resize/super_rows.h"
#include "geometry/resize/super_turned.h"

namespace tpx {
namespace {

// Whether integers serve the tile; then it is done. Not inlined, so that its terms are off the stack before
// others put theirs there.
template <int N>
[[gnu::noinline]] bool averageInIntegers(const Tile<Tpx8u>& tile) {
    const ByteMeans<N> means(tile);
    if (means.serves()) means(tile);
    return means.serves();
}

template <Layout L, class T>
TpxStatus resizeSuper(const TileCall<T>& call) {
    constexpr int N = channelsOf(L);
    const TpxStatus status = checkTile(call, tpxInterpolationSuper);
    if (status != tpxOk) return status;

    const Tile<T> tile = makeTile(call, N);
    if (tile.plan.axisX.srcRatio == 1 && tile.plan.axisY.srcRatio == 1) {
        mapImage<Layout::C1>(
            Extent{tile.width * N * ptrdiff_t(sizeof(T)), tile.height}, [](V8u bytes) { return bytes; },
            bytesOf(tile.dst), bytesOf(call.src));
        return doneTile(call);
    }
    if constexpr (N == 1) {
        if (halvesBoth(tile.plan)) {
            averageHalves(tile);
            return doneTile(call);
        }
    }
    if constexpr (std::is_same_v<T, Tpx8u>)
        if (averageInIntegers<N>(tile)) return doneTile(call);
    if constexpr (std::is_integral_v<T> && N == 1) {
        if (SuperRow<T>::serves(tile.plan.axisX)) {
            averageByRows(tile);
            return doneTile(call);
        }
    }
    averageTurned<T, N>(tile);
    return doneTile(call);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_RESIZE_SUPER(T, L, R, Step, Point, Size)                                              \
    TPX_ENTRY(tpxiResizeSuper_##T##_##L##R)                                                       \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pDst, Step dstStep, Point dstOffset, Size dstSize, \
     const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) {                                               \
        return tpx::resizeSuper<tpx::Layout::L>(                                                  \
            tpx::tileCall(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer));     \
    }
#define TPX_RESIZE_SUPER_LAYOUTS(T)                               \
    TPX_RESIZE_SUPER(T, C1, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_SUPER(T, C3, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_SUPER(T, C4, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_SUPER(T, C1, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_SUPER(T, C3, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_SUPER(T, C4, R_L, TpxSizeL, TpxiPointL, TpxiSizeL)
TPX_RESIZE_SUPER_LAYOUTS(8u)
TPX_RESIZE_SUPER_LAYOUTS(16u)
TPX_RESIZE_SUPER_LAYOUTS(16s)
TPX_RESIZE_SUPER_LAYOUTS(32f)
#undef TPX_RESIZE_SUPER
#undef TPX_RESIZE_SUPER_LAYOUTS
