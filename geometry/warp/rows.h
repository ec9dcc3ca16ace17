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

inline Rows rowsOf(const Quad& quad, TpxiSize dst, double slack) {
    // Cut by the four sides in turn. Each adds one corner, or, as rounded corners may make dents, half as many
    // as there are.
    struct Polygon {
        Point at[24];
        int count;
    } polygon = {{quad.corner[0], quad.corner[1], quad.corner[2], quad.corner[3]}, 4};
    // What is left of it where sign * coordinate is not below sign * limit. Corners that are made lie on the
    // limit to the bit, or a side of length 0 would lose them again.
    const auto cut = [&](double Point::*along, double Point::*across, double limit, double sign) {
        Polygon kept = {{}, 0};
        for (int k = 0; k < polygon.count; k++) {
            const Point a = polygon.at[k], b = polygon.at[k + 1 < polygon.count ? k + 1 : 0];
            const double da = sign * (a.*along - limit), db = sign * (b.*along - limit);
            if (da >= 0) kept.at[kept.count++] = a;
            if ((da < 0) != (db < 0)) {
                Point& corner = kept.at[kept.count++];
                corner.*along = limit;
                corner.*across = a.*across + (b.*across - a.*across) * (da / (da - db));
            }
        }
        polygon = kept;
    };
    const double right = dst.width - 1, bottom = dst.height - 1;
    cut(&Point::x, &Point::y, 0, 1);
    cut(&Point::x, &Point::y, right, -1);
    cut(&Point::y, &Point::x, 0, 1);
    cut(&Point::y, &Point::x, bottom, -1);
    if (polygon.count == 0) return {1, 0};
    double low = bottom, high = 0;
    for (int k = 0; k < polygon.count; k++) {
        low = minOf(low, polygon.at[k].y);
        high = maxOf(high, polygon.at[k].y);
    }
    return {int64_t(TPXS(CeilOne)(clampTo(low - slack, 0.0, bottom))),
            int64_t(TPXS(FloorOne)(clampTo(high + slack, 0.0, bottom)))};
}

} // namespace tpx
