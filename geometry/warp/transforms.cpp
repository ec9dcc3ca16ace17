// SPDX-License-Identifier: Apache-2.0
// What maps make of rectangles, the maps between rectangles and quadrangles, rotations, and the part of a
// source that a tile needs.
#include "geometry/warp/transforms.h"

#include "frame/entry/checks.h"
#include "frame/entry/entry.h"
#include "frame/runs/routines.h"

namespace tpx {
namespace {

// ---- What callers give and get ---------------------------------------------------------------------------

template <class Map, int Columns>
Map readMap(const Tpx64f (*coeffs)[Columns]) {
    Map map;
    for (auto& row : map.c) {
        for (int k = 0; k < Columns; k++) row[k] = (*coeffs)[k];
        coeffs++;
    }
    return map;
}

template <class Map, int Columns>
void writeMap(const Map& map, Tpx64f (*coeffs)[Columns]) {
    for (const auto& row : map.c) {
        for (int k = 0; k < Columns; k++) (*coeffs)[k] = row[k];
        coeffs++;
    }
}

TpxStatus checkRoi(TpxiRect roi) { return roi.x < 0 || roi.y < 0 || isEmpty(roi) ? tpxErrSize : tpxOk; }

// ---- Rectangles through maps -----------------------------------------------------------------------------

template <class Map, int Columns>
TpxStatus mapRoi(TpxiRect srcRoi, const Tpx64f (*coeffs)[Columns], Quad& quad) {
    if (const TpxStatus status = checkRoi(srcRoi)) return status;
    quad = mapped(readMap<Map>(coeffs), boxOf(srcRoi));
    return quad.isWellFormed() ? tpxOk : tpxErrCoefficient;
}

template <class Map, int Columns>
TpxStatus getQuad(TpxiRect srcRoi, Tpx64f (*quad)[2], const Tpx64f (*coeffs)[Columns]) {
    if (anyNull(quad, coeffs)) return tpxErrNullPointer;
    Quad result;
    const TpxStatus status = mapRoi<Map>(srcRoi, coeffs, result);
    if (status == tpxErrSize) return status;
    for (int k = 0; k < 4; k++) {
        quad[k][0] = result.corner[k].x;
        quad[k][1] = result.corner[k].y;
    }
    return status;
}

template <class Map, int Columns>
TpxStatus getBound(TpxiRect srcRoi, Tpx64f (*bound)[2], const Tpx64f (*coeffs)[Columns]) {
    if (anyNull(bound, coeffs)) return tpxErrNullPointer;
    Quad quad;
    const TpxStatus status = mapRoi<Map>(srcRoi, coeffs, quad);
    if (status == tpxErrSize) return status;
    const Box box = quad.bound();
    bound[0][0] = box.left;
    bound[0][1] = box.top;
    bound[1][0] = box.right;
    bound[1][1] = box.bottom;
    return status;
}

// ---- Maps onto quadrangles -------------------------------------------------------------------------------

template <class Map, int Columns>
TpxStatus getTransform(TpxiRect srcRoi, const Tpx64f (*quad)[2], Tpx64f (*coeffs)[Columns]) {
    if (anyNull(quad, coeffs)) return tpxErrNullPointer;
    if (const TpxStatus status = checkRoi(srcRoi)) return status;
    const Quad target = readQuad(quad);
    if (!target.isWellFormed()) return tpxErrQuad;
    if (srcRoi.width == 1 || srcRoi.height == 1) return tpxErrRect;
    Map map;
    mapOnto(target, boxOf(srcRoi), map);
    if (!map.isFinite()) return tpxErrQuad; // too large, or a sliver
    writeMap(map, coeffs);
    if constexpr (std::is_same_v<Map, AffineMap>)
        if (!target.isParallelogram()) return tpxWarnNotParallelogram;
    return tpxOk;
}

// ---- Rotation --------------------------------------------------------------------------------------------

// Quarter turns are exact.
struct Turn {
    double cosine, sine;
};

Turn turnBy(double degrees) {
    const double turns = degrees / 360;
    degrees -= (turns < 0 ? TPXS(CeilOne)(turns) : TPXS(FloorOne)(turns)) * 360;
    if (degrees < 0) degrees += 360; // 360 itself, if it was just below 0
    if (degrees == 0 || degrees == 360) return {1, 0};
    if (degrees == 90) return {0, 1};
    if (degrees == 180) return {-1, 0};
    if (degrees == 270) return {0, -1};
    const double radians = degrees / 180 * 3.141592653589793;
    return {TPXS(CosOne)(radians), TPXS(SinOne)(radians)};
}

TpxStatus getRotateShift(Point centre, double angle, Tpx64f* xShift, Tpx64f* yShift) {
    if (anyNull(xShift, yShift)) return tpxErrNullPointer;
    const auto [c, s] = turnBy(angle);
    *xShift = (centre.x - centre.x * c) - centre.y * s;
    *yShift = (centre.y - centre.y * c) + centre.x * s;
    return tpxOk;
}

TpxStatus getRotateTransform(double angle, Point shift, Tpx64f (*coeffs)[3]) {
    if (!isFinite(angle)) return tpxErrOutOfRange;
    if (anyNull(coeffs)) return tpxErrNullPointer;
    const auto [c, s] = turnBy(angle);
    writeMap(AffineMap{{{c, s, shift.x}, {0 - s, c, shift.y}}}, coeffs);
    return tpxOk;
}

// ---- What a tile needs -----------------------------------------------------------------------------------

// Pixels along one axis, around positions from `least` to `most`.
struct Range {
    double first, end;
    double length() const { return end - first; }
};
Range pixelsAround(double least, double most) {
    constexpr double kFar = 0x1p40; // beyond any image, and exact
    return {TPXS(FloorOne)(clampTo(least, -kFar, kFar) - 1e-07),
            TPXS(CeilOne)(clampTo(most, -kFar, kFar) + 1e-07) + 1};
}

// Cut to the image's pixels, but no shorter than so many of them; that many lie nearest if the rest is outside.
Range fitted(Range range, double shortest, double imageLength) {
    const double first = maxOf(range.first, 0.0), end = minOf(range.end, imageLength);
    const double length = minOf(maxOf(end - first, shortest), imageLength);
    const double begin = minOf(first, imageLength - length);
    return {begin, begin + length};
}

TpxStatus getAffineSrcRoi(TpxiSize srcSize, const Tpx64f (*coeffs)[3], int direction, TpxiRect dstRoi,
                          TpxiRect* pSrcRoi) {
    if (anyNull(coeffs, pSrcRoi)) return tpxErrNullPointer;
    if (checkRoi(dstRoi) != tpxOk || isEmpty(srcSize)) return tpxErrSize;
    if (direction != 0 && direction != 1) return tpxErrWarpDirection;
    const AffineMap map = readMap<AffineMap>(coeffs);
    if (!(magnitudeOf(map.determinant()) >= 0x1p-52)) return tpxErrCoefficient;
    const AffineMap toSource = direction ? map : map.inverse();
    if (!toSource.isFinite()) return tpxErrCoefficient;

    const Box tile = boxOf(dstRoi);
    const Box needed = mapped(toSource, tile).bound();
    const Box unit = mapped(toSource, Box{tile.left, tile.top, tile.left + 1, tile.top + 1}).bound();
    const Range x = fitted(pixelsAround(needed.left, needed.right),
                           pixelsAround(unit.left, unit.right).length(), srcSize.width);
    const Range y = fitted(pixelsAround(needed.top, needed.bottom),
                           pixelsAround(unit.top, unit.bottom).length(), srcSize.height);
    *pSrcRoi = {int(x.first), int(y.first), int(x.length()), int(y.length())};
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

using namespace tpx;

TPX_ENTRY(tpxiGetAffineQuad)(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][3]) {
    return getQuad<AffineMap>(srcRoi, quad, coeffs);
}
TPX_ENTRY(tpxiGetPerspectiveQuad)(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[3][3]) {
    return getQuad<PerspectiveMap>(srcRoi, quad, coeffs);
}
TPX_ENTRY(tpxiGetBilinearQuad)(TpxiRect srcRoi, Tpx64f quad[4][2], const Tpx64f coeffs[2][4]) {
    return getQuad<BilinearMap>(srcRoi, quad, coeffs);
}

TPX_ENTRY(tpxiGetAffineBound)(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][3]) {
    return getBound<AffineMap>(srcRoi, bound, coeffs);
}
TPX_ENTRY(tpxiGetPerspectiveBound)(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[3][3]) {
    return getBound<PerspectiveMap>(srcRoi, bound, coeffs);
}
TPX_ENTRY(tpxiGetBilinearBound)(TpxiRect srcRoi, Tpx64f bound[2][2], const Tpx64f coeffs[2][4]) {
    return getBound<BilinearMap>(srcRoi, bound, coeffs);
}

TPX_ENTRY(tpxiGetAffineTransform)(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][3]) {
    return getTransform<AffineMap>(srcRoi, quad, coeffs);
}
TPX_ENTRY(tpxiGetPerspectiveTransform)(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[3][3]) {
    return getTransform<PerspectiveMap>(srcRoi, quad, coeffs);
}
TPX_ENTRY(tpxiGetBilinearTransform)(TpxiRect srcRoi, const Tpx64f quad[4][2], Tpx64f coeffs[2][4]) {
    return getTransform<BilinearMap>(srcRoi, quad, coeffs);
}

TPX_ENTRY(tpxiGetRotateShift)(Tpx64f xCenter, Tpx64f yCenter, Tpx64f angle, Tpx64f* xShift, Tpx64f* yShift) {
    return getRotateShift({xCenter, yCenter}, angle, xShift, yShift);
}
TPX_ENTRY(tpxiGetRotateTransform)(Tpx64f angle, Tpx64f xShift, Tpx64f yShift, Tpx64f coeffs[2][3]) {
    return getRotateTransform(angle, {xShift, yShift}, coeffs);
}

TPX_ENTRY(tpxiGetAffineSrcRoi)
(TpxiSize srcSize, const Tpx64f coeffs[2][3], int direction, TpxiRect dstRoi, TpxiRect* pSrcRoi) {
    return getAffineSrcRoi(srcSize, coeffs, direction, dstRoi, pSrcRoi);
}
