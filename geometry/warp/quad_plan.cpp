// SPDX-License-Identifier: Apache-2.0
// Plans of warps between quadrangles: their sizes and their initialisers.
#include "frame/entry/entry.h"
#include "geometry/warp/planning.h"

namespace tpx {
namespace {

// ---- What a request comes to -----------------------------------------------------------------------------

struct Request {
    SourceChoice source;
    const Tpx64f (*srcQuad)[2];
    TpxiRect dst;
    const Tpx64f (*dstQuad)[2];
    int transform;
    TpxDataType dataType;
    TpxInterpolationType interpolation;
    TpxBorderType border;

    // Tiles are told from the first pixel of the destination image.
    WarpTask task() const {
        return {source.part(),
                {dst.x + dst.width, dst.y + dst.height},
                dataType,
                interpolation,
                source.border(border)};
    }
    bool hasDestination() const {
        return dst.x >= 0 && dst.y >= 0 && !isEmpty(TpxiSize{dst.width, dst.height}) &&
               dst.width <= kMost - dst.x && dst.height <= kMost - dst.y;
    }

 private:
    static constexpr int kMost = 0x7fffffff;
};

struct Quads {
    Quad src, dst;

    explicit Quads(const Request& request) : src(readQuad(request.srcQuad)), dst(readQuad(request.dstQuad)) {}
    bool areWellFormed() const { return src.isWellFormed() && dst.isWellFormed(); }
    bool areParallelograms() const { return src.isParallelogram() && dst.isParallelogram(); }
};

// From the destination's quadrangle to the source's. Divided last, so that shifts and turns by quarters, and
// scales by powers of two, of quadrangles at whole positions are exact.
AffineMap affineMap(const Quads& quads) {
    const Point top = quads.dst.edge(0), right = quads.dst.edge(1), origin = quads.dst.corner[0];
    const Point srcTop = quads.src.edge(0), srcRight = quads.src.edge(1), srcOrigin = quads.src.corner[0];
    const double cross = top.x * right.y - right.x * top.y;
    AffineMap map;
    const auto fill = [&](double(&c)[3], double alongTop, double alongRight, double start) {
        c[0] = (alongTop * right.y - alongRight * top.y) / cross;
        c[1] = (alongRight * top.x - alongTop * right.x) / cross;
        c[2] = start - c[0] * origin.x - c[1] * origin.y;
    };
    fill(map.c[0], srcTop.x, srcRight.x, srcOrigin.x);
    fill(map.c[1], srcTop.y, srcRight.y, srcOrigin.y);
    return map;
}

// By way of the unit square. Divisors are positive on the side of the horizon where the destination's
// quadrangle lies.
PerspectiveMap perspectiveMap(const Quads& quads) {
    constexpr Box kUnit = {0, 0, 1, 1};
    PerspectiveMap toSource, toDestination;
    mapOnto(quads.src, kUnit, toSource);
    mapOnto(quads.dst, kUnit, toDestination);
    const PerspectiveMap map = after(toSource.scaled(), toDestination.scaled().adjugate().scaled()).scaled();
    return map.project(quads.dst.corner[0]).w < 0 ? map.times(-1) : map;
}

Edges edgesOf(const Quad& quad) {
    const Point top = quad.edge(0), right = quad.edge(1);
    const double turn = top.x * right.y - top.y * right.x > 0 ? 1 : -1;
    const auto line = [&](int k) -> EdgeLine {
        const Point from = quad.corner[k], along = quad.edge(k);
        const double perLength = turn / squareRoot(along.x * along.x + along.y * along.y);
        const double a = -along.y * perLength, b = along.x * perLength;
        return {a, b, -(a * from.x + b * from.y)};
    };
    return {line(3), line(1), line(0), line(2)};
}

// ---- Plans -----------------------------------------------------------------------------------------------

// The destination's rows that its quadrangle meets, and those of the tables, which have room for as many.
Rows rowsOf(const Quads& quads, const Request& request, double slack) {
    ProjectedQuad quad;
    for (int k = 0; k < 4; k++) quad.corner[k] = {quads.dst.corner[k].x, quads.dst.corner[k].y, 1};
    return rowsOf(quad, request.task().dst, slack);
}

void layOut(TpxiWarpSpec& plan, const Quads& quads, const Request& request, BlockLayout& block) {
    block.take<Tpx8u>(kPlanBytes);
    const uint64_t bytes = tableBytes(rowsOf(quads, request, 0));
    plan.inner.pairs = reinterpret_cast<Tpx32s*>(block.take<Tpx8u>(bytes));
    plan.outer.pairs = reinterpret_cast<Tpx32s*>(block.take<Tpx8u>(bytes));
}

template <class Map>
TpxStatus fill(const Request& request, const WarpFilling& filling, const Quads& quads, const Map& toSource) {
    if (!toSource.isFinite()) return tpxErrWarpTransform;
    const WarpTask task = request.task();
    const BorderWord border = readWarpBorder(task.border);
    TpxiWarpSpec plan = recordOf(task, filling, toSource);
    plan.hasQuad = 1;
    plan.first = {request.dst.x, request.dst.y};
    plan.quad = edgesOf(quads.dst);
    BlockLayout block(filling.pSpec);
    layOut(plan, quads, request, block);

    const Rows rows = rowsOf(quads, request, kRowSlack);
    plan.inner.first = plan.outer.first = Tpx32s(rows.first);
    plan.inner.last = plan.outer.last = Tpx32s(rows.last);
    const bool isReplicate = border.kind == Border::Replicate,
               cubic = task.interpolation == tpxInterpolationCubic;
    const Region plain = plainRegion(task.src, task.interpolation, border);
    const Region touched =
        leavesOutside(border) ? imageRegion(task.src) : reachedRegion(task.src, task.interpolation);
    const auto coordinates = coordinatesOf(toSource);
    bool any = false;
    for (int64_t y = rows.first; y <= rows.last; y++) {
        Span span = {y < plan.first.y ? task.dst.width : plan.first.x, task.dst.width};
        for (const EdgeLine& edge : {plan.quad.left, plan.quad.right, plan.quad.top, plan.quad.bottom})
            span = spanOf(edge.a, edge.b * double(y) + edge.c, {-kRowSlack, __builtin_inf()}, span);
        const auto row = coordinates.row(y);
        const Span outer = isReplicate ? row.mapped(span) : row.inside(touched, span);
        plan.outer.set(y, outer);
        plan.inner.set(y, isReplicate && !cubic ? outer : row.inside(plain, span));
        any = any || !outer.isEmpty();
    }
    if (leavesOutside(border) && !any) plan.warning = tpxWarnNoQuadOverlap;
    poke(filling.pSpec, plan);
    return plan.warning;
}

TpxStatus getSize(const Request& request, int* pSpecSize, int* pInitBufSize) {
    const TpxiSize src = request.source.src;
    if (!readWarpBorder(request.border).valid) return tpxErrBorder;
    if (anyNull(pSpecSize, pInitBufSize) || anyNull(request.srcQuad) || anyNull(request.dstQuad))
        return tpxErrNullPointer;
    if (isEmpty(src)) return tpxErrSize;
    if (!request.source.isValid() || !request.hasDestination()) return tpxErrRect;
    if (!isDataType(request.dataType)) return tpxErrDataType;
    if (!isWarpInterpolation(request.interpolation)) return tpxErrInterpolation;
    if (request.transform != 0 && request.transform != 1) return tpxErrWarpTransform;
    if (src.width == 1 || src.height == 1 || isTooHigh(src.height, request.dataType)) return tpxErrSize;
    const TpxiRect part = request.source.part();
    if (part.width == 1 || part.height == 1) return tpxErrRect;
    const Quads quads(request);
    if (!quads.areWellFormed()) return tpxErrQuad;
    TpxiWarpSpec plan = {};
    BlockLayout counted;
    layOut(plan, quads, request, counted);
    if (counted.bytes() >= kLongestBlock) return tpxErrSize;
    *pSpecSize = int(counted.bytes());
    *pInitBufSize = kInitBytes;
    return tpxOk;
}

TpxStatus initialise(const Request& request, const WarpFilling& filling, const void* pInitBuf) {
    const TpxiSize src = request.source.src;
    const BorderWord border = readWarpBorder(request.border);
    if (!border.valid) return tpxErrBorder;
    if (anyNull(filling.pSpec) || anyNull(request.srcQuad) || anyNull(request.dstQuad) || anyNull(pInitBuf))
        return tpxErrNullPointer;
    if (isEmpty(src)) return tpxErrSize;
    if (!request.source.isValid() || !request.hasDestination()) return tpxErrRect;
    if (!isDataType(request.dataType)) return tpxErrDataType;
    if (request.transform != 0 && request.transform != 1) return tpxErrWarpTransform;
    if (const TpxStatus status = checkFilling(filling, border)) return status;
    const TpxiRect part = request.source.part();
    if (src.width == 1 || src.height == 1) return tpxErrSize;
    if (part.width == 1 || part.height == 1) return tpxErrRect;
    const Quads quads(request);
    if (!quads.areWellFormed()) return tpxErrQuad;
    const bool isAffine = quads.areParallelograms();
    const TpxStatus status = isAffine || request.transform == 0
                                 ? fill(request, filling, quads, affineMap(quads))
                                 : fill(request, filling, quads, perspectiveMap(quads));
    if (status != tpxOk) return status;
    if (!isAffine && request.transform == 0) return tpxWarnNotParallelogram;
    return request.source.isCut() ? tpxWarnValueAdjusted : tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiWarpQuadGetSize)
(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi, const Tpx64f dstQuad[4][2],
 int transform, TpxDataType dataType, TpxInterpolationType interpolation, TpxBorderType border, int* pSpecSize,
 int* pInitBufSize) {
    return tpx::getSize(
        {{srcSize, srcRoi}, srcQuad, dstRoi, dstQuad, transform, dataType, interpolation, border}, pSpecSize,
        pInitBufSize);
}

TPX_ENTRY(tpxiWarpQuadNearestInit)
(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi, const Tpx64f dstQuad[4][2],
 int transform, TpxDataType dataType, int numChannels, TpxBorderType border, const Tpx64f* pBorderValue,
 int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u*) {
    return tpx::initialise(
        {{srcSize, srcRoi}, srcQuad, dstRoi, dstQuad, transform, dataType, tpxInterpolationNearest, border},
        {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpQuadLinearInit)
(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi, const Tpx64f dstQuad[4][2],
 int transform, TpxDataType dataType, int numChannels, TpxBorderType border, const Tpx64f* pBorderValue,
 int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u*) {
    return tpx::initialise(
        {{srcSize, srcRoi}, srcQuad, dstRoi, dstQuad, transform, dataType, tpxInterpolationLinear, border},
        {numChannels, 0, 0, pBorderValue, smoothEdge, pSpec}, pSpec);
}

TPX_ENTRY(tpxiWarpQuadCubicInit)
(TpxiSize srcSize, TpxiRect srcRoi, const Tpx64f srcQuad[4][2], TpxiRect dstRoi, const Tpx64f dstQuad[4][2],
 int transform, TpxDataType dataType, int numChannels, Tpx64f valueB, Tpx64f valueC, TpxBorderType border,
 const Tpx64f* pBorderValue, int smoothEdge, TpxiWarpSpec* pSpec, Tpx8u* pInitBuf) {
    return tpx::initialise(
        {{srcSize, srcRoi}, srcQuad, dstRoi, dstQuad, transform, dataType, tpxInterpolationCubic, border},
        {numChannels, valueB, valueC, pBorderValue, smoothEdge, pSpec}, pInitBuf);
}
