// What every processing call of a warp does: the checks in their order, the tile cut to its plan, and the spans
// that the border makes of the plan's tables.
#pragma once

#include "frame/simd/rounding.h"
#include "geometry/warp/plan.h"
#include "geometry/warp/warp_tile.h"

namespace tpx {

// The arguments that every processing call has.
template <class T>
struct WarpCall {
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiPoint offset;
    TpxiSize size;
    const TpxiWarpSpec* spec;
    const Tpx8u* buffer;
};

// The checks; tpxOk means that there is work to do.
template <class T>
inline TpxStatus checkWarp(const WarpCall<T>& call, TpxInterpolationType interpolation, int channels,
                           WarpKind kind) {
    if (anyNull(call.src.data, call.dst.data) || anyNull(call.spec) || anyNull(call.buffer))
        return tpxErrNullPointer;
    const TpxiSize size = call.size;
    if ((size.width == 0 && size.height >= 0) || (size.height == 0 && size.width >= 0))
        return tpxWarnNoOperation;
    const TpxiWarpSpec plan = peek(call.spec);
    if (plan.dataType != kDataType<T> || plan.interpolation != interpolation || plan.kind != kind ||
        plan.numChannels != channels)
        return tpxErrContext;
    if (isEmpty(size)) return tpxErrSize;
    if ((call.src.step | call.dst.step) & (sizeof(T) - 1)) return tpxErrStep;
    const TpxiPoint at = call.offset;
    if (at.x < 0 || at.y < 0 || at.x >= plan.dst.width || at.y >= plan.dst.height) return tpxErrOutOfRange;
    if (plan.warning != tpxOk) return plan.warning;
    if (!readWarpBorder(plan.border).valid) return tpxErrBorder;
    return tpxOk;
}

// The part of the tile that the plan's destination has.
template <class T>
inline DestinationTile tileOf(const WarpCall<T>& call, const TpxiWarpSpec& plan) {
    const TpxiPoint at = call.offset;
    return {bytesOf(call.dst), at.x, at.y, minOf<int64_t>(call.size.width, plan.dst.width - at.x),
            minOf<int64_t>(call.size.height, plan.dst.height - at.y)};
}

// What a call returns whose work is done.
template <class T>
inline TpxStatus doneWarp(const WarpCall<T>& call, const TpxiWarpSpec& plan, bool anyPixel) {
    const TpxiPoint at = call.offset;
    if (!anyPixel && readWarpBorder(plan.border).kind != Border::Replicate) return tpxWarnNoQuadOverlap;
    return call.size.width > plan.dst.width - at.x || call.size.height > plan.dst.height - at.y
               ? tpxWarnValueAdjusted
               : tpxOk;
}

// The pixel of a constant border.
template <class T, int N>
struct BorderPixel {
    T samples[N];

    explicit BorderPixel(const TpxiWarpSpec& plan) {
        for (int c = 0; c < N; c++) {
            if constexpr (std::is_floating_point_v<T>)
                samples[c] = T(plan.borderValue[c]);
            else
                samples[c] = toSample<T, Rounding::OfThread>(plan.borderValue[c]);
        }
    }
    const Tpx8u* bytes() const { return reinterpret_cast<const Tpx8u*>(samples); }
};

// Runs a tile of a plan through the engine; `pixel` is that of a constant border. Returns whether a pixel of
// the tile takes anything from the source.
template <class Real, class Coordinates>
bool warpTile(const TpxiWarpSpec& plan, const Interpolation<Real>& how, const Coordinates& coordinates,
              ImageView<const Tpx8u> src, const DestinationTile& tile, const Tpx8u* pixel) {
    const BorderWord border = readWarpBorder(plan.border);
    const bool isConstant = border.kind == Border::Const, isReplicate = border.kind == Border::Replicate;
    const SourceRect readable = readableOf(plan.src, plan.interpolation, border);
    const Readable from = {src, readable.columns, readable.rows, isConstant ? pixel : nullptr};
    const Region image = imageRegion(plan.src);
    const Span columns = tile.columns();
    const bool cubic = plan.interpolation == tpxInterpolationCubic;

    // Positions that are limited to the image have the edge's pixels for their taps, with two taps or one.
    const auto spans = [&](int64_t y, const auto& row) -> RowSpans {
        if (isReplicate && !cubic) return {columns, columns};
        const Span plain = meet(plan.inner.span(y), columns);
        if (isReplicate) return {plain, columns};
        if (plan.outer.pairs) return {plain, meet(plan.outer.span(y), columns)};
        // The contract has no room for the rim of cubic transparent plans.
        return {plain, cubic ? row.inside(image, columns) : plain};
    };
    TileWarp<Real, Coordinates> warp(how, coordinates, from, tile);
    const bool any = warp.run(isConstant ? Outside::BecomeConstant : Outside::Stay, pixel, spans);
    const Region edges = {{0, double(plan.src.width - 1)}, {0, double(plan.src.height - 1)}};
    if (plan.smoothEdge) warp.smooth(edges, spans);
    return any;
}

} // namespace tpx
