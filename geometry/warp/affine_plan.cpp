// Plans of affine warps: their sizes and their initialisers, and the queries that plans of all warps share.
#include "frame/entry/entry.h"
#include "geometry/warp/plan.h"

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

// Both maps, and the corners of the source images whose rows have tables.
struct Geometry {
    AffineMap toSource, toDestination;
    bool isShift, hasOuter;
    Box inner, outer;
};

Geometry geometryOf(const Request& request) {
    const AffineMap map = mapOf(request), inverse = map.inverse();
    const BorderWord border = readWarpBorder(request.border);
    const bool cubic = request.interpolation == tpxInterpolationCubic;
    const double right = request.src.width - 1, bottom = request.src.height - 1;
    Geometry g = {request.direction ? map : inverse,
                  request.direction ? inverse : map,
                  isWholeShift(map),
                  false,
                  {0, 0, right, bottom},
                  {}};
    if (cubic) {
        const bool leaves = leavesOutside(border);
        g.inner = {double(!(leaves && border.left)), double(!(leaves && border.top)),
                   right - !(leaves && border.right), bottom - !(leaves && border.bottom)};
    }
    const bool anyInMemory = border.left || border.top || border.right || border.bottom;
    g.hasOuter = cubic ? border.kind != Border::Transparent || anyInMemory : border.kind == Border::Const;
    const double margin = cubic ? 2 : 1;
    g.outer = {-margin, -margin, right + margin, bottom + margin};
    return g;
}

// Whether the maps can be worked with: in double precision the image is still a quadrangle.
bool isUsable(const Geometry& g, TpxiSize src) {
    return g.toSource.isFinite() && g.toDestination.isFinite() &&
           mapped(g.toDestination, Box{0, 0, double(src.width - 1), double(src.height - 1)}).isWellFormed();
}

// The rows of the destination that a part of the source meets. Small sources have no inner part.
Rows rowsOf(const Geometry& g, const Box& box, TpxiSize dst, double slack) {
    const Quad quad = mapped(g.toDestination, box);
    return box.left < box.right && box.top < box.bottom && quad.isWellFormed() ? rowsOf(quad, dst, slack)
                                                                               : Rows{1, 0};
}

// Takes the places of what follows the record in the block that begins with it. The tables' rows are not set.
void layOut(TpxiWarpSpec& plan, const Geometry& g, TpxiSize dst, BlockLayout& block) {
    block.take<Tpx8u>(kPlanBytes);
    const auto place = [&](uint64_t bytes) { return block.take<Tpx8u>(bytes); };
    if (g.isShift) plan.shift = reinterpret_cast<WholeShift*>(place(kShiftPlanBytes - kPlanBytes));
    plan.inner.pairs = reinterpret_cast<Tpx32s*>(place(tableBytes(rowsOf(g, g.inner, dst, 0))));
    if (g.hasOuter) plan.outer.pairs = reinterpret_cast<Tpx32s*>(place(tableBytes(rowsOf(g, g.outer, dst, 0))));
}

// ---- Sizes -----------------------------------------------------------------------------------------------

// Rows that memory has room for.
constexpr bool isTooHigh(int height, TpxDataType type) {
    const int sampleBytes = type == tpxDataType8u    ? 1
                            : type == tpxDataType32f ? 4
                            : type == tpxDataType64f ? 8
                                                     : 2;
    return height >= 0x40000000 / sampleBytes;
}

TpxStatus getSize(const Request& request, int* pSpecSize, int* pInitBufSize) {
    const TpxiSize src = request.src, dst = request.dst;
    if (!readWarpBorder(request.border).valid) return tpxErrBorder;
    if (anyNull(pSpecSize, pInitBufSize) || anyNull(request.coeffs)) return tpxErrNullPointer;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    if (!isWarpType(request.dataType)) return tpxErrDataType;
    if (request.interpolation != tpxInterpolationNearest && request.interpolation != tpxInterpolationLinear &&
        request.interpolation != tpxInterpolationCubic)
        return tpxErrInterpolation;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    const AffineMap map = mapOf(request);
    if (!map.isFinite() || map.isSingular()) return tpxErrCoefficient;
    if (src.width == 1 || src.height == 1) return tpxErrSize;
    if (isTooHigh(src.height, request.dataType)) return tpxErrSize;

    const Geometry g = geometryOf(request);
    if (!isUsable(g, src)) return tpxErrCoefficient;
    TpxiWarpSpec plan = {};
    BlockLayout counted;
    layOut(plan, g, dst, counted);
    if (counted.bytes() >= kLongestBlock) return tpxErrSize;
    *pSpecSize = int(counted.bytes());
    *pInitBufSize = kInitBytes;
    return tpxOk;
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

// What only initialisers are given.
struct Filling {
    int numChannels;
    Tpx64f valueB, valueC;
    const Tpx64f* pBorderValue;
    int smoothEdge;
    TpxiWarpSpec* pSpec;
};

// Positions that far from a row are rounding's.
constexpr double kRowSlack = 0x1p-24;

void fillTable(RowTable& table, Rows rows, const AffineCoordinates& coordinates, const Region& region,
               TpxiSize dst) {
    table.first = Tpx32s(rows.first);
    table.last = Tpx32s(rows.last);
    for (int64_t y = rows.first; y <= rows.last; y++)
        table.set(y, coordinates.row(y).inside(region, {0, dst.width}));
}

TpxStatus fillPlan(const Request& request, const Filling& filling, const Geometry& g) {
    const TpxiSize src = request.src, dst = request.dst;
    const BorderWord border = readWarpBorder(request.border);
    TpxiWarpSpec plan = {};
    plan.src = src;
    plan.dst = dst;
    plan.kind = WarpKind::Affine;
    plan.dataType = request.dataType;
    plan.interpolation = request.interpolation;
    plan.numChannels = filling.numChannels;
    plan.border = request.border;
    plan.smoothEdge = filling.smoothEdge != 0;
    for (int k = 0; k < 6; k++) plan.coeffs[k] = g.toSource.c[k / 3][k % 3];
    plan.valueB = filling.valueB;
    plan.valueC = filling.valueC;
    if (border.kind == Border::Const)
        for (int c = 0; c < filling.numChannels; c++) plan.borderValue[c] = peek(filling.pBorderValue + c);

    BlockLayout block(filling.pSpec);
    layOut(plan, g, dst, block);
    const AffineCoordinates coordinates = {g.toSource};
    const Region image = imageRegion(src);
    fillTable(plan.inner, rowsOf(g, g.inner, dst, kRowSlack), coordinates,
              plainRegion(src, request.interpolation, border), dst);
    if (g.hasOuter && border.kind != Border::Replicate)
        fillTable(plan.outer, rowsOf(g, g.outer, dst, kRowSlack), coordinates,
                  leavesOutside(border) ? image : reachedRegion(src, request.interpolation), dst);
    const Box all = {0, 0, double(src.width - 1), double(src.height - 1)};
    if (leavesOutside(border) && rowsOf(g, all, dst, kRowSlack).areNone()) plan.warning = tpxWarnNoQuadOverlap;

    // What lies at whole pixels is the pixel itself, unless a cubic kernel blurs.
    if (plan.shift) {
        const auto shift = [](double by) { return int64_t(clampTo(by, -0x1p40, 0x1p40)); };
        poke(plan.shift, WholeShift{shift(g.toDestination.c[0][2]), shift(g.toDestination.c[1][2])});
        if (request.interpolation == tpxInterpolationCubic && filling.valueB != 0) plan.shift = nullptr;
    }
    poke(filling.pSpec, plan);
    return plan.warning;
}

TpxStatus initialise(const Request& request, const Filling& filling, const void* pInitBuf) {
    const TpxiSize src = request.src, dst = request.dst;
    const BorderWord border = readWarpBorder(request.border);
    if (!border.valid) return tpxErrBorder;
    if (anyNull(filling.pSpec) || anyNull(request.coeffs) || anyNull(pInitBuf)) return tpxErrNullPointer;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    if (!isWarpType(request.dataType)) return tpxErrDataType;
    if (request.direction != 0 && request.direction != 1) return tpxErrWarpDirection;
    const AffineMap map = mapOf(request);
    if (!map.isFinite() || map.isSingular()) return tpxErrCoefficient;
    if (border.kind == Border::Const && anyNull(filling.pBorderValue)) return tpxErrNullPointer;
    if (filling.numChannels != 1 && filling.numChannels != 3 && filling.numChannels != 4)
        return tpxErrChannelCount;
    if (filling.smoothEdge != 0 && !leavesOutside(border)) return tpxErrUnsupportedMode;
    if (src.width == 1 || src.height == 1) return tpxErrSize;
    const Geometry g = geometryOf(request);
    if (!isUsable(g, src)) return tpxErrCoefficient;
    return fillPlan(request, filling, g);
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
