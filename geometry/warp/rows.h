// SPDX-License-Identifier: Apache-2.0
// The rows of a rectangle that a quadrangle meets.
#pragma once

#include "frame/runs/routines.h"
#include "geometry/warp/transforms.h"

namespace tpx {

// The rows, from first to last, of a rectangle that a quadrangle meets; first 1 and last 0 if it misses. Rows
// are cut exactly; those within `slack` of an end are taken too.
struct Rows {
    int64_t first, last;
    constexpr bool areNone() const { return first > last; }
};

inline Rows rowsOf(const ProjectedQuad& quad, TpxiSize dst, double slack) {
    // Cut by the horizon and by the four sides in turn. Each adds one corner, or, as rounded corners may make
    // dents, half as many as there are.
    using P = ProjectedPoint;
    struct Polygon {
        P at[32];
        int count;
    } polygon = {{quad.corner[0], quad.corner[1], quad.corner[2], quad.corner[3]}, 4};
    // What is left of it where sign * coordinate is not below sign * limit. Corners that are made lie on the
    // limit to the bit, or a side of length 0 would lose them again.
    const auto cut = [&](double P::*along, double limit, double sign) {
        const auto inside = [=](const P& p) { return sign * (p.*along - limit * p.w); };
        Polygon kept = {{}, 0};
        for (int k = 0; k < polygon.count; k++) {
            const P a = polygon.at[k], b = polygon.at[k + 1 < polygon.count ? k + 1 : 0];
            const double da = inside(a), db = inside(b);
            if (da >= 0) kept.at[kept.count++] = a;
            if ((da < 0) != (db < 0)) {
                const double t = da / (da - db);
                P& corner = kept.at[kept.count++];
                corner = {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t, a.w + (b.w - a.w) * t};
                corner.*along = limit * corner.w;
            }
        }
        polygon = kept;
    };
    const double right = dst.width - 1, bottom = dst.height - 1;
    cut(&P::w, 0, 1);
    cut(&P::x, 0, 1);
    cut(&P::x, right, -1);
    cut(&P::y, 0, 1);
    cut(&P::y, bottom, -1);
    if (polygon.count == 0) return {1, 0};
    double low = bottom, high = 0;
    for (int k = 0; k < polygon.count; k++) {
        if (!(polygon.at[k].w > 0)) continue;
        const double y = polygon.at[k].y / polygon.at[k].w;
        low = minOf(low, y);
        high = maxOf(high, y);
    }
    return {int64_t(TPXS(CeilOne)(clampTo(low - slack, 0.0, bottom))),
            int64_t(TPXS(FloorOne)(clampTo(high + slack, 0.0, bottom)))};
}

} // namespace tpx
