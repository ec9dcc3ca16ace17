// SPDX-License-Identifier: Apache-2.0
// Affine warps: tiles of a plan by the engine, or, moved by whole pixels, by copies.
#include "frame/entry/entry.h"
#include "geometry/warp/processing.h"
#include "geometry/warp/shift.h"

namespace tpx {

template <class Real>
bool warpAffineTile(const TpxiWarpSpec& plan, const Interpolation<Real>& how, ImageView<const Tpx8u> src,
                    const DestinationTile& tile, const Tpx8u* pixel) {
    if (plan.shift) return copyShifted(plan, src, tile, pixel, how.pixelBytes);
    const Tpx64f* const c = plan.coeffs;
    return warpTile(plan, how, AffineCoordinates{{{{c[0], c[1], c[2]}, {c[3], c[4], c[5]}}}}, src, tile, pixel);
}

template bool warpAffineTile(const TpxiWarpSpec&, const Interpolation<Tpx32f>&, ImageView<const Tpx8u>,
                             const DestinationTile&, const Tpx8u*);
template bool warpAffineTile(const TpxiWarpSpec&, const Interpolation<Tpx64f>&, ImageView<const Tpx8u>,
                             const DestinationTile&, const Tpx8u*);

} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_WARP_AFFINE(T, L, stem, function)                                                                 \
    TPX_ENTRY(stem##T##_##L##R)                                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, \
     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer) {                                                             \
        return tpx::function<tpx::WarpKind::Affine, tpx::Layout::L, Tpx##T>(                                  \
            {{pSrc, srcStep}, {pDst, dstStep}, dstRoiOffset, dstRoiSize, pSpec, pBuffer});                    \
    }
#define TPX_WARP_AFFINE_ALL(stem, function)  \
    TPX_WARP_AFFINE(8u, C1, stem, function)  \
    TPX_WARP_AFFINE(8u, C3, stem, function)  \
    TPX_WARP_AFFINE(8u, C4, stem, function)  \
    TPX_WARP_AFFINE(16u, C1, stem, function) \
    TPX_WARP_AFFINE(16u, C3, stem, function) \
    TPX_WARP_AFFINE(16u, C4, stem, function) \
    TPX_WARP_AFFINE(16s, C1, stem, function) \
    TPX_WARP_AFFINE(16s, C3, stem, function) \
    TPX_WARP_AFFINE(16s, C4, stem, function) \
    TPX_WARP_AFFINE(32f, C1, stem, function) \
    TPX_WARP_AFFINE(32f, C3, stem, function) \
    TPX_WARP_AFFINE(32f, C4, stem, function) \
    TPX_WARP_AFFINE(64f, C1, stem, function) \
    TPX_WARP_AFFINE(64f, C3, stem, function) \
    TPX_WARP_AFFINE(64f, C4, stem, function)
TPX_WARP_AFFINE_ALL(tpxiWarpAffineNearest_, warpNearest)
TPX_WARP_AFFINE_ALL(tpxiWarpAffineLinear_, warpLinear)
TPX_WARP_AFFINE_ALL(tpxiWarpAffineCubic_, warpCubic)
#undef TPX_WARP_AFFINE
#undef TPX_WARP_AFFINE_ALL
