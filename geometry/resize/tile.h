// SPDX-License-Identifier: Apache-2.0
// What every kind of resize does before its kernels run: the checks in their order, the tile cut to the plan,
// its place in the source, and the split of its borders.
#pragma once

#include "frame/images/border.h"
#include "frame/images/view.h"
#include "geometry/resize/plan.h"

namespace tpx {

// The arguments that every processing call has.
template <class T>
struct TileCall {
    Form form;
    ImageView<const T> src;
    ImageView<T> dst;
    TpxiPointL offset;
    TpxiSizeL size;
    const TpxiResizeSpec* spec;
    Tpx8u* buffer;
};

// That of an entry, whose numbers tell its form by their width.
template <class T, class Step, class Point, class Size>
inline TileCall<T> tileCall(const T* src, Step srcStep, T* dst, Step dstStep, Point offset, Size size,
                            const TpxiResizeSpec* spec, Tpx8u* buffer) {
    return {kFormOf<Size>, {src, srcStep}, {dst, dstStep}, wide(offset), wide(size), spec, buffer};
}

// A plan of 64f serves the 64f calls alone. The short calls of the other types have never looked at the type.
template <class T>
inline bool isPlanFor(Form form, const TpxiResizeSpec& plan) {
    const bool planOf64f = plan.dataType == tpxDataType64f;
    if (!isFor(form, plan)) return false;
    return sizeof(T) == 8 ? planOf64f : form == Form::Short || !planOf64f;
}

// The checks of a processing call but that of its border word. An antialiasing call takes plans of several
// kinds and gives 0 for the interpolation.
template <class T>
inline TpxStatus checkTile(const TileCall<T>& call, TpxInterpolationType interpolation,
                           bool antialiasing = false) {
    if (anyNull(call.src.data, call.dst.data) || anyNull(call.spec) || anyNull(call.buffer))
        return tpxErrNullPointer;
    if (isZero(call.size)) return tpxWarnNoOperation;
    const TpxiResizeSpec& plan = *planIn(call.spec);
    if (!isPlanFor<T>(call.form, plan)) return tpxErrContext;
    if (isEmpty(call.size)) return tpxErrSize;
    if ((call.src.step | call.dst.step) & (sizeof(T) - 1)) return tpxErrStep;
    if (isOutside(call.offset, plan)) return tpxErrOutOfRange;
    if ((plan.antialiasing != 0) != antialiasing) return tpxErrUnsupportedMode;
    if (!antialiasing && plan.interpolation != interpolation) return tpxErrContext;
    return tpxOk;
}

// What a call returns whose tile has been computed.
template <class T>
inline TpxStatus doneTile(const TileCall<T>& call) {
    return isLarger(call.size, *planIn(call.spec)) ? tpxWarnValueAdjusted : tpxOk;
}

// A tile cut to its plan.
template <class T>
struct Tile {
    const TpxiResizeSpec& plan;
    // The whole source, as the plan's tables count its pixels. Its first one need not be memory that the caller
    // handed.
    ImageView<const T> src;
    ImageView<T> dst;            // the tile alone
    int64_t x, y, width, height; // in the destination
    Tpx8u* buffer;
};

template <class T>
inline Tile<T> makeTile(const TileCall<T>& call, int channels) {
    const TpxiResizeSpec& plan = *planIn(call.spec);
    const int64_t x = call.offset.x, y = call.offset.y;
    const int64_t srcX = srcOffset(plan, plan.axisX, x), srcY = srcOffset(plan, plan.axisY, y);
    return {plan,
            call.src.from(-srcX * channels, -srcY),
            call.dst,
            x,
            y,
            minOf<int64_t>(call.size.width, plan.axisX.dstLen - x),
            minOf<int64_t>(call.size.height, plan.axisY.dstLen - y),
            call.buffer};
}

// How many of a tile's rows and columns have taps outside the source on a side that is not in memory.
struct Strips {
    int64_t left, top, right, bottom;
};

template <class T>
inline Strips stripsOf(const Tile<T>& tile, BorderWord border) {
    const TpxiResizeAxis &ax = tile.plan.axisX, &ay = tile.plan.axisY;
    const auto strip = [](bool inMemory, int64_t count, int64_t size) -> int64_t {
        return inMemory || count < 0 ? 0 : minOf(count, size);
    };
    return {strip(border.left, ax.leadCount - tile.x, tile.width),
            strip(border.top, ay.leadCount - tile.y, tile.height),
            strip(border.right, ax.trailCount - (ax.dstLen - tile.width - tile.x), tile.width),
            strip(border.bottom, ay.trailCount - (ay.dstLen - tile.height - tile.y), tile.height)};
}

} // namespace tpx
