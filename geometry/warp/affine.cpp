// Affine warps: tiles of a plan by the engine, or, moved by whole pixels, by copies.
#include "frame/entry/entry.h"
#include "frame/simd/control.h"
#include "geometry/warp/processing.h"
#include "geometry/warp/shift.h"

namespace tpx {
namespace {

// Types and layouts share the work, which knows bytes and kernels alone.
template <class Real>
[[gnu::noinline]] bool warpAffineTile(const TpxiWarpSpec& plan, const Interpolation<Real>& how,
                                      ImageView<const Tpx8u> src, const DestinationTile& tile,
                                      const Tpx8u* pixel) {
    if (plan.shift) return copyShifted(plan, src, tile, pixel, how.pixelBytes);
    const Tpx64f* const c = plan.coeffs;
    return warpTile(plan, how, AffineCoordinates{{{{c[0], c[1], c[2]}, {c[3], c[4], c[5]}}}}, src, tile, pixel);
}

template <Layout L, class T, class Make>
inline TpxStatus warpAffine(const WarpCall<T>& call, TpxInterpolationType interpolation, Make interpolationOf) {
    constexpr int N = channelsOf(L);
    const TpxStatus status = checkWarp(call, interpolation, N, WarpKind::Affine);
    if (status != tpxOk) return status;
    const TpxiWarpSpec plan = peek(call.spec);
    const BorderPixel<T, N> pixel(plan);
    const bool any =
        warpAffineTile(plan, interpolationOf(plan), bytesOf(call.src), tileOf(call, plan), pixel.bytes());
    return doneWarp(call, plan, any);
}

template <Layout L, class T>
TpxStatus warpAffineNearest(const WarpCall<T>& call) {
    return warpAffine<L>(call, tpxInterpolationNearest,
                         [](const TpxiWarpSpec&) { return nearestOf<T, channelsOf(L)>(); });
}

template <Layout L, class T>
TpxStatus warpAffineLinear(const WarpCall<T>& call) {
    return warpAffine<L>(call, tpxInterpolationLinear,
                         [](const TpxiWarpSpec&) { return linearOf<T, channelsOf(L)>(); });
}

template <Layout L, class T>
TpxStatus warpAffineCubic(const WarpCall<T>& call) {
    const FloatControl control(kFlushingToZero);
    return warpAffine<L>(call, tpxInterpolationCubic, [](const TpxiWarpSpec& plan) {
        return cubicOf<T, channelsOf(L)>(plan.valueB, plan.valueC);
    });
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_WARP_AFFINE(T, L, stem, function)                                                                 \
    TPX_ENTRY(stem##T##_##L##R)                                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, \
     const TpxiWarpSpec* pSpec, Tpx8u* pBuffer) {                                                             \
        return tpx::function<tpx::Layout::L, Tpx##T>(                                                         \
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
TPX_WARP_AFFINE_ALL(tpxiWarpAffineNearest_, warpAffineNearest)
TPX_WARP_AFFINE_ALL(tpxiWarpAffineLinear_, warpAffineLinear)
TPX_WARP_AFFINE_ALL(tpxiWarpAffineCubic_, warpAffineCubic)
#undef TPX_WARP_AFFINE
#undef TPX_WARP_AFFINE_ALL
