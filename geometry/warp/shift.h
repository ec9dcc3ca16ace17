// SPDX-License-Identifier: Apache-2.0
// Images moved by whole pixels: rows are copied.
#pragma once

#include "geometry/warp/plan.h"
#include "geometry/warp/warp_tile.h"

namespace tpx {

// Returns whether a pixel of the tile takes anything from the source. `pixel` is that of a constant border.
inline bool copyShifted(const TpxiWarpSpec& plan, ImageView<const Tpx8u> src, const DestinationTile& tile,
                        const Tpx8u* pixel, int pixelBytes) {
    const WholeShift shift = peek(plan.shift);
    const Border kind = readWarpBorder(plan.border).kind;
    const Span all = tile.columns();
    // Where the source begins and ends in the tile; both are the tile's begin or end if it lies beside.
    const auto within = [&](int64_t x) { return clampTo(x, all.begin, all.end); };
    const Span middle = {within(shift.x), within(shift.x + plan.src.width)};
    bool any = false;
    for (int64_t y = tile.y; y < tile.y + tile.height; y++) {
        const auto fill = [&](Span span, const Tpx8u* with) {
            fillPixels(tile.at(span.begin, y, pixelBytes), span.end - span.begin, with, pixelBytes);
        };
        const int64_t row = y - shift.y;
        const bool isInside = row >= 0 && row < plan.src.height;
        if (!isInside && kind != Border::Replicate) {
            if (kind == Border::Const) fill(all, pixel);
            continue;
        }
        any = any || kind == Border::Replicate || !middle.isEmpty();
        const Tpx8u* const from = src.row(borderSource<Border::Replicate>(row, plan.src.height));
        if (!middle.isEmpty())
            __builtin_memcpy(tile.at(middle.begin, y, pixelBytes), from + (middle.begin - shift.x) * pixelBytes,
                             size_t(middle.end - middle.begin) * size_t(pixelBytes));
        if (leavesOutside(readWarpBorder(plan.border))) continue;
        const Tpx8u* const last = from + (int64_t(plan.src.width) - 1) * pixelBytes;
        fill({all.begin, middle.begin}, kind == Border::Const ? pixel : from);
        fill({middle.end, all.end}, kind == Border::Const ? pixel : last);
    }
    return any;
}

} // namespace tpx
