// SPDX-License-Identifier: Apache-2.0
// How plans of every warp are made: what a map and its border come to, the layout of a plan's block, which
// sizes and initialisers share, and the filling of record and tables.
#pragma once

#include "geometry/warp/coordinates.h"
#include "geometry/warp/plan.h"

namespace tpx {

// What a plan is made for, besides its map.
struct WarpTask {
    TpxiRect src; // the part of the source image that there is
    TpxiSize dst;
    TpxDataType dataType;
    TpxInterpolationType interpolation;
    TpxBorderType border;
};

// The rectangle of the source that a caller names, or all of it.
struct SourceChoice {
    TpxiSize src;
    TpxiRect roi;

    bool isWhole() const {
        const TpxiRect whole = tpxiWarpGetRectInfinite();
        return roi.x == whole.x && roi.y == whole.y && roi.width == whole.width && roi.height == whole.height;
    }
    // A rectangle must begin in the source; it may end outside.
    bool isValid() const {
        return isWhole() || (roi.x >= 0 && roi.y >= 0 && roi.x < src.width && roi.y < src.height &&
                             roi.width >= 1 && roi.height >= 1);
    }
    bool isCut() const {
        return !isWhole() && (roi.width > src.width - roi.x || roi.height > src.height - roi.y);
    }
    TpxiRect part() const {
        if (isWhole()) return {0, 0, src.width, src.height};
        return {roi.x, roi.y, minOf(roi.width, src.width - roi.x), minOf(roi.height, src.height - roi.y)};
    }
    // Pixels outside a rectangle's image stay as they were.
    TpxBorderType border(TpxBorderType given) const {
        return isWhole() ? given : TpxBorderType((given & ~15) | tpxBorderTransparent);
    }
};

// What only initialisers are given.
struct WarpFilling {
    int numChannels;
    Tpx64f valueB, valueC;
    const Tpx64f* pBorderValue;
    int smoothEdge;
    TpxiWarpSpec* pSpec;
};

// What initialisers check of it, one after the other.
inline TpxStatus checkFilling(const WarpFilling& filling, BorderWord border) {
    if (border.kind == Border::Const && anyNull(filling.pBorderValue)) return tpxErrNullPointer;
    if (filling.numChannels != 1 && filling.numChannels != 3 && filling.numChannels != 4)
        return tpxErrChannelCount;
    return filling.smoothEdge != 0 && !leavesOutside(border) ? tpxErrUnsupportedMode : tpxOk;
}

// ---- Maps ------------------------------------------------------------------------------------------------

// A map and its inverse.
template <class Map>
struct MapPair {
    Map toSource, toDestination;
};

inline AffineCoordinates coordinatesOf(const AffineMap& toSource) { return {toSource}; }
inline PerspectiveCoordinates coordinatesOf(const PerspectiveMap& toSource) { return {toSource}; }
constexpr WarpKind kindOf(const AffineMap&) { return WarpKind::Affine; }
constexpr WarpKind kindOf(const PerspectiveMap&) { return WarpKind::Perspective; }

// Whether the maps can be worked with: in double precision the image, or some of it, is still an area.
template <class Map>
inline bool isUsable(const MapPair<Map>& maps, TpxiRect src) {
    if (!maps.toSource.isFinite() || !maps.toDestination.isFinite()) return false;
    const ProjectedQuad image = projected(maps.toDestination, boxOf(src));
    return image.inFront() == 4 ? image.flat().isWellFormed()
                                : image.inFront() > 0 && maps.toSource.determinant() != 0;
}

// ---- Tables ----------------------------------------------------------------------------------------------

// The parts of the source whose rows have tables.
struct Tables {
    Box inner, outer;
    bool hasOuter;
};

inline Tables tablesOf(const WarpTask& task) {
    const BorderWord border = readWarpBorder(task.border);
    const bool cubic = task.interpolation == tpxInterpolationCubic, leaves = leavesOutside(border);
    const Box image = boxOf(task.src);
    const bool anyInMemory = border.left || border.top || border.right || border.bottom;
    const double margin = cubic ? 2 : 1;
    Tables tables = {image,
                     {image.left - margin, image.top - margin, image.right + margin, image.bottom + margin},
                     cubic ? border.kind != Border::Transparent || anyInMemory : border.kind == Border::Const};
    if (cubic)
        tables.inner = {image.left + !(leaves && border.left), image.top + !(leaves && border.top),
                        image.right - !(leaves && border.right), image.bottom - !(leaves && border.bottom)};
    return tables;
}

// The rows of the destination that a part of the source meets. Small sources have no inner part.
template <class Map>
inline Rows rowsOf(const Map& toDestination, const Box& box, TpxiSize dst, double slack) {
    const ProjectedQuad quad = projected(toDestination, box);
    const bool isArea =
        box.left < box.right && box.top < box.bottom && (quad.inFront() < 4 || quad.flat().isWellFormed());
    return isArea ? rowsOf(quad, dst, slack) : Rows{1, 0};
}

// Takes the places of what follows the record in the block that begins with it. The tables' rows are not set.
template <class Map>
inline void layOut(TpxiWarpSpec& plan, const Map& toDestination, const Tables& tables, TpxiSize dst,
                   bool isShift, BlockLayout& block) {
    const auto place = [&](uint64_t bytes) { return block.take<Tpx8u>(bytes); };
    const auto placeTable = [&](const Box& box) {
        return reinterpret_cast<Tpx32s*>(place(tableBytes(rowsOf(toDestination, box, dst, 0))));
    };
    place(kPlanBytes);
    if (isShift) plan.shift = reinterpret_cast<WholeShift*>(place(kShiftPlanBytes - kPlanBytes));
    plan.inner.pairs = placeTable(tables.inner);
    if (tables.hasOuter) plan.outer.pairs = placeTable(tables.outer);
}

// Positions that far from a row are rounding's.
inline constexpr double kRowSlack = 0x1p-24;

template <class Coordinates>
inline void fillTable(RowTable& table, Rows rows, const Coordinates& coordinates, const Region& region,
                      TpxiSize dst) {
    table.first = Tpx32s(rows.first);
    table.last = Tpx32s(rows.last);
    for (int64_t y = rows.first; y <= rows.last; y++)
        table.set(y, coordinates.row(y).inside(region, {0, dst.width}));
}

// ---- Sizes and initialisers, after their checks ----------------------------------------------------------

constexpr bool isWarpInterpolation(TpxInterpolationType interpolation) {
    return interpolation == tpxInterpolationNearest || interpolation == tpxInterpolationLinear ||
           interpolation == tpxInterpolationCubic;
}

// More rows than memory has room for.
constexpr bool isTooHigh(int height, TpxDataType type) {
    const int sampleBytes = type == tpxDataType8u    ? 1
                            : type == tpxDataType32f ? 4
                            : type == tpxDataType64f ? 8
                                                     : 2;
    return height >= 0x40000000 / sampleBytes;
}

template <class Map>
inline TpxStatus sizePlan(const WarpTask& task, const MapPair<Map>& maps, bool isShift, int* pSpecSize,
                          int* pInitBufSize) {
    if (!isUsable(maps, task.src)) return tpxErrCoefficient;
    TpxiWarpSpec plan = {};
    BlockLayout counted;
    layOut(plan, maps.toDestination, tablesOf(task), task.dst, isShift, counted);
    if (counted.bytes() >= kLongestBlock) return tpxErrSize;
    *pSpecSize = int(counted.bytes());
    *pInitBufSize = kInitBytes;
    return tpxOk;
}

// The record, but for where its tables lie and what is in them.
template <class Map>
inline TpxiWarpSpec recordOf(const WarpTask& task, const WarpFilling& filling, const Map& toSource) {
    TpxiWarpSpec plan = {};
    plan.src = task.src;
    plan.dst = task.dst;
    plan.kind = kindOf(toSource);
    plan.dataType = task.dataType;
    plan.interpolation = task.interpolation;
    plan.numChannels = filling.numChannels;
    plan.border = task.border;
    plan.smoothEdge = filling.smoothEdge != 0;
    __builtin_memcpy(plan.coeffs, toSource.c, sizeof(toSource.c));
    plan.valueB = filling.valueB;
    plan.valueC = filling.valueC;
    if (readWarpBorder(task.border).kind == Border::Const)
        for (int c = 0; c < filling.numChannels; c++) plan.borderValue[c] = peek(filling.pBorderValue + c);
    return plan;
}

// Fills record and tables. `shift` is null but for whole shifts.
template <class Map>
inline TpxStatus fillPlan(const WarpTask& task, const WarpFilling& filling, const MapPair<Map>& maps,
                          const WholeShift* shift) {
    if (!isUsable(maps, task.src)) return tpxErrCoefficient;
    const TpxiSize dst = task.dst;
    const BorderWord border = readWarpBorder(task.border);
    TpxiWarpSpec plan = recordOf(task, filling, maps.toSource);
    const Tables tables = tablesOf(task);
    BlockLayout block(filling.pSpec);
    layOut(plan, maps.toDestination, tables, dst, shift != nullptr, block);
    const auto coordinates = coordinatesOf(maps.toSource);
    const auto rows = [&](const Box& box) { return rowsOf(maps.toDestination, box, dst, kRowSlack); };
    fillTable(plan.inner, rows(tables.inner), coordinates, plainRegion(task.src, task.interpolation, border),
              dst);
    if (tables.hasOuter && border.kind != Border::Replicate)
        fillTable(plan.outer, rows(tables.outer), coordinates,
                  leavesOutside(border) ? imageRegion(task.src) : reachedRegion(task.src, task.interpolation),
                  dst);
    if (leavesOutside(border) && rows(boxOf(task.src)).areNone()) plan.warning = tpxWarnNoQuadOverlap;

    // What lies at whole pixels is the pixel itself, unless a cubic kernel blurs.
    if (plan.shift) {
        poke(plan.shift, *shift);
        if (task.interpolation == tpxInterpolationCubic && filling.valueB != 0) plan.shift = nullptr;
    }
    poke(filling.pSpec, plan);
    return plan.warning;
}

} // namespace tpx
