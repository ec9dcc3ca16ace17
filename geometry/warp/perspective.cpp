// SPDX-License-Identifier: Apache-2.0
// Perspective warps: tiles of a plan by the engine. Plans of affine maps run as those of affine warps do.
#include "frame/entry/entry.h"
#include "geometry/warp/processing.h"

namespace tpx {

bool warpPerspectiveTile(const TpxiWarpSpec& plan, const Interpolation<Tpx32f>& how, ImageView<const Tpx8u> src,
                         const DestinationTile& tile, const Tpx8u* pixel) {
    PerspectiveCoordinates coordinates;
    __builtin_memcpy(coordinates.toSource.c, plan.coeffs, sizeof(plan.coeffs));
    return warpTile(plan, how, coordinates, src, tile, pixel);
}

} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_WARP_PERSPECTIVE(T, L, stem, function)                                                            \
    TPX_ENTRY(stem##T##_##L##R)                                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, \
     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer) {                                                             \
        return tpx::function<tpx::WarpKind::Perspective, tpx::Layout::L, Tpx##T>(                             \
            {{pSrc, srcStep}, {pDst, dstStep}, dstRoiOffset, dstRoiSize, pSpec, pBuffer});                    \
    }
#define TPX_WARP_PERSPECTIVE_ALL(stem, function)  \
    TPX_WARP_PERSPECTIVE(8u, C1, stem, function)  \
    TPX_WARP_PERSPECTIVE(8u, C3, stem, function)  \
    TPX_WARP_PERSPECTIVE(8u, C4, stem, function)  \
    TPX_WARP_PERSPECTIVE(16u, C1, stem, function) \
    TPX_WARP_PERSPECTIVE(16u, C3, stem, function) \
    TPX_WARP_PERSPECTIVE(16u, C4, stem, function) \
    TPX_WARP_PERSPECTIVE(16s, C1, stem, function) \
    TPX_WARP_PERSPECTIVE(16s, C3, stem, function) \
    TPX_WARP_PERSPECTIVE(16s, C4, stem, function) \
    TPX_WARP_PERSPECTIVE(32f, C1, stem, function) \
    TPX_WARP_PERSPECTIVE(32f, C3, stem, function) \
    TPX_WARP_PERSPECTIVE(32f, C4, stem, function)
TPX_WARP_PERSPECTIVE_ALL(tpxiWarpPerspectiveNearest_, warpNearest)
TPX_WARP_PERSPECTIVE_ALL(tpxiWarpPerspectiveLinear_, warpLinear)
TPX_WARP_PERSPECTIVE_ALL(tpxiWarpPerspectiveCubic_, warpCubic)
#undef TPX_WARP_PERSPECTIVE
#undef TPX_WARP_PERSPECTIVE_ALL
