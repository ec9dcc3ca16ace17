// SPDX-License-Identifier: Apache-2.0
// Plans of affine warps: their sizes and their initialisers, and the queries that plans of all warps share.
#include "frame/entry/entry.h"
#include "geometry/warp/planning.h"

namespace tpx {
namespace {

// ---- What a request comes to -----------------------------------------------------------------------------

struct Request {
    TpxiSize src, dst;
    TpxDataType dataType;
    const Tpx64f (*coeffs)[3];
    TpxInterpolationType interpolation;
    int direction;
    TpxBorderType border;

    WarpTask task() const { return {{0, 0, src.width, src.height}, dst, dataType, interpolation, border}; }
};

constexpr bool isWarpType(TpxDataType type) { return isDataType(type) || type == tpxDataType64f; }

AffineMap mapOf(const Request& request) {
    const auto& c = request.coeffs;
    return {{{c[0][0], c[0][1], c[0][2]}, {c[1][0], c[1][1], c[1][2]}}};
}

// The caller's map moves the image by whole pixels.
bool isWholeShift(const AffineMap& map) {
    const auto& c = map.c;
    const auto isWhole = [](double x) { return TPXS(FloorOne)(x) == x; };
    return c[0][0] == 1 && c[0][1] == 0 && c[1][0] == 0 && c[1][1] == 1 && isWhole(c[0][2]) && isWhole(c[1][2]);
}

MapPair<AffineMap> mapsOf(const Request& request) {
    const AffineMap map = mapOf(request), inverse = map.inverse();
    if (request.direction) return {map, inverse};
    return {inverse, map};
}

// ---- Sizes -----------------------------------------------------------------------------------------------

TpxStatus getSize(const Request& request, int* pSpecSize, int* pInitBufSize) {
    const TpxiSize src = request.src, dst = request.dst;
    if (!readWarpBorder(request.border).valid) return tpxErrBorder;
    if (anyNull(pSpecSize, pInitBufSize) || anyNull(request.coeffs)) return tpxErrNullPointer;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    if (!isWarpType(request.dataType)) return tpxErrDataType;
    if (!isWarpInterpolation(request.interpolation)) return tpxErrInterpolation;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    const AffineMap map = mapOf(request);
    if (!map.isFinite() || map.isSingular()) return tpxErrCoefficient;
    if (src.width == 1 || src.height == 1) return tpxErrSize;
    if (isTooHigh(src.height, request.dataType)) return tpxErrSize;
    return sizePlan(request.task(), mapsOf(request), isWholeShift(map), pSpecSize, pInitBufSize);
}

// Of a tile of any plan; work is done on the stack, and the contract's formulas are kept for callers' sake.
TpxStatus getBufferSize(const TpxiWarpSpec* pSpec, TpxiSize tile, int* pBufSize) {
    if (anyNull(pSpec) || anyNull(pBufSize)) return tpxErrNullPointer;
    if (tile.width == 0 || tile.height == 0) return tpxWarnNoOperation;
    const TpxiWarpSpec plan = peek(pSpec);
    if (plan.kind != WarpKind::Affine && plan.kind != WarpKind::Perspective) return tpxErrContext;
    if (isEmpty(tile)) return tpxErrSize;
    uint64_t bytes = 64;
    if (plan.kind == WarpKind::Perspective)
        bytes = ((128 * uint64_t(minOf(tile.width, plan.dst.width)) + 496) & ~uint64_t(511)) + 192;
    if (bytes > 0x7fffffbe) return tpxErrSizeTooLarge;
    *pBufSize = int(bytes);
    return tile.width > plan.dst.width || tile.height > plan.dst.height ? tpxWarnValueAdjusted : tpxOk;
}

// ---- Initialisers ----------------------------------------------------------------------------------------

TpxStatus initialise(const Request& request, const WarpFilling& filling, const void* pInitBuf) {
    const TpxiSize src = request.src, dst = request.dst;
    const BorderWord border = readWarpBorder(request.border);
    if (!border.valid) return tpxErrBorder;
    if (anyNull(filling.pSpec) || anyNull(request.coeffs) || anyNull(pInitBuf)) return tpxErrNullPointer;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    if (!isWarpType(request.dataType)) return tpxErrDataType;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    const AffineMap map = mapOf(request);
    if (!map.isFinite() || map.isSingular()) return tpxErrCoefficient;
    if (const TpxStatus status = checkFilling(filling, border)) return status;
    if (src.width == 1 || src.height == 1) return tpxErrSize;
    const MapPair<AffineMap> maps = mapsOf(request);
    const auto whole = [](double by) { return int64_t(clampTo(by, -0x1p40, 0x1p40)); };
    const WholeShift shift = {whole(maps.toDestination.c[0][2]), whole(maps.toDestination.c[1][2])};
    return fillPlan(request.task(), filling, maps, isWholeShift(map) ? &shift : nullptr);
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiWarpGetRectInfinite)() { return {-1073741824, -1073741824, 2147483647, 2147483647}; }

TPX_ENTRY(tpxiWarpGetBufferSize)(const TpxiWarpSpec* pSpec, TpxiSize dstSize, int* pBufSize) {
    return tpx::getBufferSize(pSpec, dstSize, pBufSize);
}

TPX_ENTRY(tpxiWarpAffineGetSize)
(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[2][3],
 TpxInterpolationType interpolation, int direction, TpxBorderType border, int* pSpecSize, int* pInitBufSize) {
    return tpx::getSize({srcSize, dstSize, dataType, coeffs, interpolation, direction, border}, pSpecSize,
                        pInitBufSize);
}

TPX_ENTRY(tpxiWarpAffineNearestInit)
(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[2][3], int direction,
 int numChannels, TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec) {
    return tpx::initialise({srcSize, dstSize, dataType, coeffs, tpxInterpolationNearest, direction, border},
                           {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpAffineLinearInit)
(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[2][3], int direction,
 int numChannels, TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec) {
    return tpx::initialise({srcSize, dstSize, dataType, coeffs, tpxInterpolationLinear, direction, border},
                           {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpAffineCubicInit)
(TpxiSize srcSize, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[2][3], int direction,
 int numChannels, Tpx64f valueB, Tpx64f valueC, TpxBorderType border, const Tpx64f* pBorderValue,
 int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialise({srcSize, dstSize, dataType, coeffs, tpxInterpolationCubic, direction, border},
                           {numChannels, valueB, valueC, pBorderValue, smoothEdge, pSpec}, pInitBuf);
}
