// SPDX-License-Identifier: Apache-2.0
// Plans of perspective warps: their sizes and their initialisers.
#include "frame/entry/entry.h"
#include "geometry/warp/planning.h"

namespace tpx {
namespace {

// ---- What a request comes to -----------------------------------------------------------------------------

struct Request {
    SourceChoice source;
    TpxiSize dst;
    TpxDataType dataType;
    const Tpx64f (*coeffs)[3];
    TpxInterpolationType interpolation;
    int direction;
    TpxBorderType border;

    WarpTask task() const { return {source.part(), dst, dataType, interpolation, source.border(border)}; }
};

PerspectiveMap mapOf(const Request& request) {
    PerspectiveMap map;
    __builtin_memcpy(map.c, request.coeffs, sizeof map.c);
    return map;
}

// Both maps, with positive divisors on the valid side of the horizon: where the origin of what the coefficients
// map lies, or, if the whole image lies on the other side, there.
MapPair<PerspectiveMap> mapsOf(const Request& request) {
    PerspectiveMap map = mapOf(request).scaled();
    if (map.c[2][2] < 0) map = map.times(-1);
    const PerspectiveMap inverse = map.adjugate().times(map.determinant() < 0 ? -1 : 1).scaled();
    MapPair<PerspectiveMap> maps = {inverse, map};
    if (request.direction) maps = {map, inverse};
    if (projected(maps.toDestination, boxOf(request.source.part())).inFront() == 0)
        maps = {maps.toSource.times(-1), maps.toDestination.times(-1)};
    return maps;
}

// ---- Sizes -----------------------------------------------------------------------------------------------

TpxStatus checkMap(const Request& request) {
    if (request.source.src.width == 1 || request.source.src.height == 1) return tpxErrSize;
    const PerspectiveMap map = mapOf(request);
    return !map.isFinite() || map.isSingular() ? tpxErrCoefficient : tpxOk;
}

TpxStatus getSize(const Request& request, int* pSpecSize, int* pInitBufSize) {
    if (!readWarpBorder(request.border).valid) return tpxErrBorder;
    if (anyNull(pSpecSize, pInitBufSize) || anyNull(request.coeffs)) return tpxErrNullPointer;
    if (isEmpty(request.source.src) || isEmpty(request.dst)) return tpxErrSize;
    if (!request.source.isValid()) return tpxErrRect;
    if (!isDataType(request.dataType)) return tpxErrDataType;
    if (!isWarpInterpolation(request.interpolation)) return tpxErrInterpolation;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    if (const TpxStatus status = checkMap(request)) return status;
    if (isTooHigh(request.source.src.height, request.dataType)) return tpxErrSize;
    return sizePlan(request.task(), mapsOf(request), false, pSpecSize, pInitBufSize);
}

// ---- Initialisers ----------------------------------------------------------------------------------------

TpxStatus initialise(const Request& request, const WarpFilling& filling, const void* pInitBuf) {
    const BorderWord border = readWarpBorder(request.border);
    if (!border.valid) return tpxErrBorder;
    if (anyNull(filling.pSpec) || anyNull(request.coeffs) || anyNull(pInitBuf)) return tpxErrNullPointer;
    if (isEmpty(request.source.src) || isEmpty(request.dst)) return tpxErrSize;
    if (!request.source.isValid()) return tpxErrRect;
    if (!isDataType(request.dataType)) return tpxErrDataType;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    if (const TpxStatus status = checkFilling(filling, border)) return status;
    if (const TpxStatus status = checkMap(request)) return status;
    const TpxStatus status = fillPlan(request.task(), filling, mapsOf(request), nullptr);
    return status == tpxOk && request.source.isCut() ? tpxWarnValueAdjusted : status;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiWarpPerspectiveGetSize)
(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[3][3],
 TpxInterpolationType interpolation, int direction, TpxBorderType border, int* pSpecSize, int* pInitBufSize) {
    return tpx::getSize({{srcSize, srcRoi}, dstSize, dataType, coeffs, interpolation, direction, border},
                        pSpecSize, pInitBufSize);
}

TPX_ENTRY(tpxiWarpPerspectiveNearestInit)
(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[3][3],
 int direction, int numChannels, TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
 TpxiWarpSpec* pSpec, Tpx8u*) {
    return tpx::initialise(
        {{srcSize, srcRoi}, dstSize, dataType, coeffs, tpxInterpolationNearest, direction, border},
        {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpPerspectiveLinearInit)
(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[3][3],
 int direction, int numChannels, TpxBorderType border, const Tpx64f* pBorderValue, int smoothEdge,
 TpxiWarpSpec* pSpec, Tpx8u*) {
    return tpx::initialise(
        {{srcSize, srcRoi}, dstSize, dataType, coeffs, tpxInterpolationLinear, direction, border},
        {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpPerspectiveCubicInit)
(TpxiSize srcSize, TpxiRect srcRoi, TpxiSize dstSize, TpxDataType dataType, const Tpx64f coeffs[3][3],
 int direction, int numChannels, Tpx64f valueB, Tpx64f valueC, TpxBorderType border, const Tpx64f* pBorderValue,
 int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialise(
        {{srcSize, srcRoi}, dstSize, dataType, coeffs, tpxInterpolationCubic, direction, border},
        {numChannels, valueB, valueC, pBorderValue, smoothEdge, pSpec}, pInitBuf);
}
