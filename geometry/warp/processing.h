// SPDX-License-Identifier: Apache-2.0
// What every processing call of a warp does: the checks in their order, the tile cut to its plan, and the spans
// that the border makes of the plan's tables.
#pragma once

#include "frame/simd/control.h"
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

// The checks; tpxOk means that there is work to do. Plans of affine maps serve calls of either kind.
template <class T>
inline TpxStatus checkWarp(const WarpCall<T>& call, TpxInterpolationType interpolation, int channels,
                           WarpKind kind) {
    if (anyNull(call.src.data, call.dst.data) || anyNull(call.spec) || anyNull(call.buffer))
        return tpxErrNullPointer;
    const TpxiSize size = call.size;
    if ((size.width == 0 && size.height >= 0) || (size.height == 0 && size.width >= 0))
        return tpxWarnNoOperation;
    const TpxiWarpSpec plan = peek(call.spec);
    if (plan.dataType != kDataType<T> || plan.interpolation != interpolation || plan.numChannels != channels ||
        (plan.kind != kind && plan.kind != WarpKind::Affine))
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
    if (!anyPixel) return tpxWarnNoQuadOverlap;
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
    const bool cubic = plan.interpolation == tpxInterpolationCubic;

    // Positions that are limited to the image have the edge's pixels for their taps, with two taps or one.
    const auto spans = [&](int64_t y, const auto& row) -> RowSpans {
        const Span columns = tile.columns();
        const Span plain = meet(plan.inner.span(y), columns);
        if (isReplicate && !plan.hasQuad) {
            const Span all = row.mapped(columns);
            return {cubic ? plain : all, all};
        }
        if (plan.outer.pairs) return {plain, meet(plan.outer.span(y), columns)};
        // The contract has no room for the rim of cubic transparent plans.
        return {plain, cubic ? row.inside(image, columns) : plain};
    };
    TileWarp<Real, Coordinates> warp(how, coordinates, from, tile);
    const bool any = warp.run(isConstant ? Outside::BecomeConstant : Outside::Stay, pixel, spans);
    if (plan.smoothEdge) {
        const Edges edges = coordinates.edges(imageRegion(plan.src, 0));
        warp.smooth({edges, plan.hasQuad ? plan.quad : edges}, plan.first, spans);
    }
    return any;
}

// The same by a plan's map (affine.cpp, perspective.cpp). Types and layouts share the work, which knows bytes
// and kernels alone.
template <class Real>
[[gnu::noinline]] bool warpAffineTile(const TpxiWarpSpec& plan, const Interpolation<Real>& how,
                                      ImageView<const Tpx8u> src, const DestinationTile& tile,
                                      const Tpx8u* pixel);
[[gnu::noinline]] bool warpPerspectiveTile(const TpxiWarpSpec& plan, const Interpolation<Tpx32f>& how,
                                           ImageView<const Tpx8u> src, const DestinationTile& tile,
                                           const Tpx8u* pixel);

// ---- Processing calls ------------------------------------------------------------------------------------

// Calls of a kind are given plans of that kind, or affine ones.
template <WarpKind Kind, Layout L, class T, class Make>
inline TpxStatus warp(const WarpCall<T>& call, TpxInterpolationType interpolation, Make interpolationOf) {
    constexpr int N = channelsOf(L);
    const TpxStatus status = checkWarp(call, interpolation, N, Kind);
    if (status != tpxOk) return status;
    const TpxiWarpSpec plan = peek(call.spec);
    const BorderPixel<T, N> pixel(plan);
    const auto how = interpolationOf(plan);
    const ImageView<const Tpx8u> src = bytesOf(call.src);
    const DestinationTile tile = tileOf(call, plan);
    bool any;
    if constexpr (Kind == WarpKind::Perspective)
        any = (plan.kind == Kind ? warpPerspectiveTile : warpAffineTile<Tpx32f>)(plan, how, src, tile,
                                                                                 pixel.bytes());
    else
        any = warpAffineTile(plan, how, src, tile, pixel.bytes());
    return doneWarp(call, plan, any);
}

template <WarpKind Kind, Layout L, class T>
inline TpxStatus warpNearest(const WarpCall<T>& call) {
    return warp<Kind, L>(call, tpxInterpolationNearest,
                         [](const TpxiWarpSpec&) { return nearestOf<T, channelsOf(L)>(); });
}

template <WarpKind Kind, Layout L, class T>
inline TpxStatus warpLinear(const WarpCall<T>& call) {
    return warp<Kind, L>(call, tpxInterpolationLinear,
                         [](const TpxiWarpSpec&) { return linearOf<T, channelsOf(L)>(); });
}

template <WarpKind Kind, Layout L, class T>
inline TpxStatus warpCubic(const WarpCall<T>& call) {
    const FloatControl control(kFlushingToZero);
    return warp<Kind, L>(call, tpxInterpolationCubic, [](const TpxiWarpSpec& plan) {
        return cubicOf<T, channelsOf(L)>(plan.valueB, plan.valueC);
    });
}

} // namespace tpx
