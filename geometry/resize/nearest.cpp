// SPDX-License-Identifier: Apache-2.0
// Nearest resize: a gather of whole pixels.
#include "frame/entry/entry.h"
#include "geometry/resize/pixel_gather.h"

namespace tpx {
namespace {

template <Layout L, class T>
TpxStatus resizeNearest(const TileCall<T>& call) {
    const TpxStatus status = checkTile(call, tpxInterpolationNearest);
    if (status != tpxOk) return status;
    gatherTile<channelsOf(L)>(makeTile(call, channelsOf(L)));
    return doneTile(call);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_RESIZE_NEAREST(T, L, R, Step, Point, Size)                                            \
    TPX_ENTRY(tpxiResizeNearest_##T##_##L##R)                                                     \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pDst, Step dstStep, Point dstOffset, Size dstSize, \
     const TpxiResizeSpec* pSpec, Tpx8u* pBuffer) {                                               \
        return tpx::resizeNearest<tpx::Layout::L>(                                                \
            tpx::tileCall(pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, pSpec, pBuffer));     \
    }
#define TPX_RESIZE_NEAREST_LAYOUTS(T)                               \
    TPX_RESIZE_NEAREST(T, C1, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_NEAREST(T, C3, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_NEAREST(T, C4, R, int, TpxiPoint, TpxiSize)          \
    TPX_RESIZE_NEAREST(T, C1, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_NEAREST(T, C3, R_L, TpxSizeL, TpxiPointL, TpxiSizeL) \
    TPX_RESIZE_NEAREST(T, C4, R_L, TpxSizeL, TpxiPointL, TpxiSizeL)
TPX_RESIZE_NEAREST_LAYOUTS(8u)
TPX_RESIZE_NEAREST_LAYOUTS(16u)
TPX_RESIZE_NEAREST_LAYOUTS(16s)
TPX_RESIZE_NEAREST_LAYOUTS(32f)
#undef TPX_RESIZE_NEAREST
#undef TPX_RESIZE_NEAREST_LAYOUTS
