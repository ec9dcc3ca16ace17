// SPDX-License-Identifier: Apache-2.0
// The plan of a warp: the record behind TpxiWarpSpec, where it and its tables lie, and what sizes, initialisers
// and processing calls share.
#pragma once

#include "frame/entry/checks.h"
#include "frame/images/border.h"
#include "frame/memory/caller_memory.h"
#include "geometry/warp/interpolate.h"
#include "geometry/warp/rows.h"
#include "tpxi/warp.h"

namespace tpx {

// Which coordinates a plan's processing calls use.
enum class WarpKind : Tpx32s { Affine, Perspective };

// A table of spans of destination rows `first` to `last`, in pairs of the first and the last pixel.
struct RowTable {
    Tpx32s first, last;
    Tpx32s* pairs;

    Span span(int64_t y) const {
        if (y < first || y > last) return {0, 0};
        const Tpx32s* const pair = pairs + 2 * (y - first);
        return {peek(pair), int64_t(peek(pair + 1)) + 1};
    }
    void set(int64_t y, Span span) const {
        Tpx32s* const pair = pairs + 2 * (y - first);
        poke(pair, Tpx32s(span.isEmpty() ? 0 : span.begin));
        poke(pair + 1, Tpx32s(span.isEmpty() ? -1 : span.end - 1));
    }
};

// Of plans that move the image by whole pixels: position x lies at x - this in the source.
struct WholeShift {
    int64_t x, y;
};

} // namespace tpx

// Lies at the caller's own address, of whatever alignment, so it is copied out and in.
struct TpxiWarpSpec {
    TpxiRect src; // the part of the source image that there is
    TpxiSize dst;
    tpx::WarpKind kind;
    TpxDataType dataType;
    TpxInterpolationType interpolation;
    Tpx32s numChannels;
    TpxBorderType border;
    Tpx32s smoothEdge;
    TpxStatus warning; // that every processing call returns, or 0
    // From the destination to the source: six of an affine map. Divisors of a perspective map are positive on
    // the valid side of its horizon.
    Tpx64f coeffs[9];
    Tpx64f valueB, valueC;
    Tpx64f borderValue[4];
    // Pixels whose taps all lie in the source, and those that a border has to do with. A plan has the second
    // where the contract gives it room.
    tpx::RowTable inner, outer;
    tpx::WholeShift* shift; // or null
    // Of plans between quadrangles: that of the destination, out of which no pixel is taken from the source,
    // and the destination's first pixel. Their outer table has what is touched, whatever the border.
    Tpx32s hasQuad;
    TpxiPoint first;
    tpx::Edges quad;
};

namespace tpx {

// ---- Sizes -----------------------------------------------------------------------------------------------

// Fixed by contract: of the record, of that with a shift, and of a table for the rows that a quadrangle meets.
// A table has room for two rows more, which lie within rounding of its ends.
inline constexpr uint64_t kPlanBytes = 328, kShiftPlanBytes = 392;
constexpr uint64_t tableBytes(Rows rows) {
    return rows.areNone() ? 16 : 24 + 8 * uint64_t(rows.last - rows.first);
}
static_assert(sizeof(TpxiWarpSpec) <= kPlanBytes && sizeof(WholeShift) <= kShiftPlanBytes - kPlanBytes);

inline constexpr int kInitBytes = 64;

// ---- The border word -------------------------------------------------------------------------------------

constexpr BorderWord readWarpBorder(TpxBorderType word) {
    return readBorder<Border::Replicate, Border::Const, Border::Transparent>(word);
}
// Pixels outside stay as they were.
constexpr bool leavesOutside(BorderWord border) {
    return border.kind == Border::Transparent || border.kind == Border::InMemory;
}

// ---- Regions ---------------------------------------------------------------------------------------------

// Positions so near an edge count as on it: what rounding leaves of a position that is a whole number.
inline constexpr double kEdge = 0x1p-24;

// The columns and rows of the source whose pixels may be read. Taps of positions inside reach one pixel further
// on sides that are in memory.
struct SourceRect {
    Span columns, rows;
};
inline SourceRect readableOf(TpxiRect src, TpxInterpolationType interpolation, BorderWord border) {
    const bool further = interpolation == tpxInterpolationCubic && leavesOutside(border);
    const int64_t left = src.x, top = src.y, right = left + src.width, bottom = top + src.height;
    return {{left - (further && border.left), right + (further && border.right)},
            {top - (further && border.top), bottom + (further && border.bottom)}};
}

constexpr Footprint tapsOf(TpxInterpolationType interpolation) {
    return interpolation == tpxInterpolationNearest  ? kOnePixel
           : interpolation == tpxInterpolationLinear ? kTwoTaps
                                                     : kFourTaps;
}

// Positions in the image, or so much further out.
inline Region imageRegion(TpxiRect src, double slack = kEdge) {
    const Box box = boxOf(src);
    return {{box.left - slack, box.right + slack}, {box.top - slack, box.bottom + slack}};
}
// Positions all of whose taps may be read. With one or two taps to either side these are all in the image, as
// kernels limit the pixel below the position.
inline Region plainRegion(TpxiRect src, TpxInterpolationType interpolation, BorderWord border) {
    if (interpolation != tpxInterpolationCubic) return imageRegion(src);
    const SourceRect readable = readableOf(src, interpolation, border);
    return {{double(readable.columns.begin + 1), double(readable.columns.end - 2)},
            {double(readable.rows.begin + 1), double(readable.rows.end - 2)}};
}
// Positions some tap of which lies in the image.
inline Region reachedRegion(TpxiRect src, TpxInterpolationType interpolation) {
    return imageRegion(src, interpolation == tpxInterpolationNearest ? 0.5 : tapsOf(interpolation).last());
}

} // namespace tpx
