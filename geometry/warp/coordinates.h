// Sources of coordinates: where the pixels of a destination row lie in the source image.
//
// A source is asked for a row: row(y) holds what does not change along it, and row.at(x) gives the position of
// pixel x, or of a register of pixels, with the same arithmetic, so that a position does not depend on where a
// tile or a register begins. Whoever interpolates knows rows and nothing of what is behind them.
#pragma once

#include "geometry/warp/span.h"
#include "geometry/warp/transforms.h"

namespace tpx {

// Of one pixel, or of a register of pixels.
template <class X>
struct Position {
    X x, y;
};

struct AffineRow {
    double perX, perY, startX, startY;

    template <class X>
    Position<X> at(X x) const {
        const auto along = [&](double perPixel, double start) {
            if constexpr (std::is_same_v<X, double>)
                return perPixel * x + start;
            else
                return splat<X>(perPixel) * x + splat<X>(start);
        };
        return {along(perX, startX), along(perY, startY)};
    }
    // The same row for positions that are so much further right and down.
    AffineRow moved(double by) const { return {perX, perY, startX + by, startY + by}; }
    // The pixels whose positions lie in a region.
    Span inside(const Region& region, Span within) const {
        return spanOf(perY, startY, region.y, spanOf(perX, startX, region.x, within));
    }
};

struct AffineCoordinates {
    AffineMap toSource;

    AffineRow row(int64_t y) const {
        const auto start = [&](const double(&c)[3]) { return c[1] * double(y) + c[2]; };
        return {toSource.c[0][0], toSource.c[1][0], start(toSource.c[0]), start(toSource.c[1])};
    }
    // How far one destination pixel goes in the source, across the image's vertical and horizontal edges.
    Position<double> reach(Position<double>) const {
        const auto length = [](const double(&c)[3]) { return squareRoot(c[0] * c[0] + c[1] * c[1]); };
        return {length(toSource.c[0]), length(toSource.c[1])};
    }
    // How far it is in the source from one row to the next.
    Position<double> down() const { return {toSource.c[0][1], toSource.c[1][1]}; }
    // Whether neighbours of a row lie in different rows of the source, each on lines of its own.
    bool goesAcrossRows() const { return magnitudeOf(toSource.c[1][0]) > 0.125; }
};

} // namespace tpx
