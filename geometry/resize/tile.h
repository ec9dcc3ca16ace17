// What every kind of resize does before its kernels run: the checks in their order, the tile cut to the plan,
// its place in the source, and the split of its borders.
#pragma once

#include "frame/images/walk.h"
#include "geometry/resize/plan.h"

namespace tpx {

// The arguments that every processing call has.
template <class Form, class T>
struct TileCall {
    const T* src;
    typename Form::Length srcStep;
    T* dst;
    typename Form::Length dstStep;
    typename Form::Point offset;
    typename Form::Size size;
    const TpxiResizeSpec* spec;
    Tpx8u* buffer;
};

inline bool isResizeBorder(TpxBorderType border) {
    return border == tpxBorderInMemAll || (border <= 0xff && (border & 0xf) == tpxBorderReplicate);
}

// A plan of 64f serves the 64f calls alone. The short calls of the other types have never looked at the type.
template <class Form, class T>
inline bool isPlanFor(const TpxiResizeSpec& plan) {
    const bool planOf64f = plan.dataType == tpxDataType64f;
    if (plan.tag != Form::kTag) return false;
    return sizeof(T) == 8 ? planOf64f : !(Form::kLong && planOf64f);
}

// The checks of a processing call but that of its border word. An antialiasing call takes plans of several
// kinds and gives 0 for the interpolation.
template <class Form, class T>
inline TpxStatus checkTile(const TileCall<Form, T>& call, TpxInterpolationType interpolation,
                           bool antialiasing = false) {
    if (anyNull(call.src, call.dst) || anyNull(call.spec) || anyNull(call.buffer)) return tpxErrNullPointer;
    if (isZero(call.size)) return tpxWarnNoOperation;
    const TpxiResizeSpec& plan = *planIn(call.spec);
    if (!isPlanFor<Form, T>(plan)) return tpxErrContext;
    if (isEmpty(call.size)) return tpxErrSize;
    if ((call.srcStep | call.dstStep) & (sizeof(T) - 1)) return tpxErrStep;
    if (isOutside(call.offset, plan)) return tpxErrOutOfRange;
    if ((plan.antialiasing != 0) != antialiasing) return tpxErrUnsupportedMode;
    if (!antialiasing && plan.interpolation != interpolation) return tpxErrContext;
    return tpxOk;
}

// What a call returns whose tile has been computed.
template <class Form, class T>
inline TpxStatus doneTile(const TileCall<Form, T>& call) {
    return isLarger(call.size, *planIn(call.spec)) ? tpxWarnValueAdjusted : tpxOk;
}

// A tile cut to its plan. Kernels count source pixels from the whole image's first one, as the plan's tables
// do; `srcOrigin` is the address of that pixel, which need not be memory that the caller handed.
struct Tile {
    const TpxiResizeSpec& plan;
    uintptr_t srcOrigin;
    ptrdiff_t srcStep;
    Tpx8u* dst;
    ptrdiff_t dstStep;
    int64_t x, y, width, height; // in the destination
    Tpx8u* buffer;

    template <class T>
    const T* srcRow(int64_t row) const {
        return reinterpret_cast<const T*>(srcOrigin + uintptr_t(row) * uintptr_t(srcStep));
    }
    template <class T>
    T* dstRow(int64_t row) const {
        return reinterpret_cast<T*>(uintptr_t(dst) + uintptr_t(row) * uintptr_t(dstStep));
    }
};

template <class Form, class T>
inline Tile makeTile(const TileCall<Form, T>& call, int channels) {
    const TpxiResizeSpec& plan = *planIn(call.spec);
    const int64_t x = call.offset.x, y = call.offset.y;
    const int64_t srcX = srcOffset(plan, plan.axisX, x), srcY = srcOffset(plan, plan.axisY, y);
    const uintptr_t pixel = channels * sizeof(T);
    const uintptr_t before = uintptr_t(srcY) * uintptr_t(ptrdiff_t(call.srcStep)) + uintptr_t(srcX) * pixel;
    return {plan,
            reinterpret_cast<uintptr_t>(call.src) - before,
            call.srcStep,
            reinterpret_cast<Tpx8u*>(call.dst),
            call.dstStep,
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

inline Strips stripsOf(const Tile& tile, TpxBorderType border) {
    const TpxiResizeAxis &ax = tile.plan.axisX, &ay = tile.plan.axisY;
    const auto strip = [&](TpxBorderType inMemory, int64_t count, int64_t size) -> int64_t {
        return (border & inMemory) || count < 0 ? 0 : minOf(count, size);
    };
    return {strip(tpxBorderInMemLeft, ax.leadCount - tile.x, tile.width),
            strip(tpxBorderInMemTop, ay.leadCount - tile.y, tile.height),
            strip(tpxBorderInMemRight, ax.trailCount - (ax.dstLen - tile.width - tile.x), tile.width),
            strip(tpxBorderInMemBottom, ay.trailCount - (ay.dstLen - tile.height - tile.y), tile.height)};
}

} // namespace tpx
