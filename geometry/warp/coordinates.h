// SPDX-License-Identifier: Apache-2.0
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

// A straight edge in the destination: a x + b y + c pixels inside it lies pixel (x, y).
struct EdgeLine {
    double a, b, c;
};

// The edges of a region of the source: where n / w = limit, with the coefficients of n and w along a row, along
// a column, and of neither.
inline EdgeLine edgeAt(double limit, const double (&n)[3], const double (&w)[3]) {
    const double a = n[0] - limit * w[0], b = n[1] - limit * w[1], c = n[2] - limit * w[2];
    const double perUnit = 1 / maxOf(squareRoot(a * a + b * b), 0x1p-1000); // an edge may lie at infinity
    return {a * perUnit, b * perUnit, c * perUnit};
}
struct Edges {
    EdgeLine left, right, top, bottom;
};
inline Edges edgesOf(const Region& region, const double (&x)[3], const double (&y)[3], const double (&w)[3]) {
    const auto opposite = [](EdgeLine e) -> EdgeLine { return {-e.a, -e.b, -e.c}; };
    return {edgeAt(region.x.low, x, w), opposite(edgeAt(region.x.end, x, w)), edgeAt(region.y.low, y, w),
            opposite(edgeAt(region.y.end, y, w))};
}

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
    // The pixels that have a position.
    Span mapped(Span within) const { return within; }
    // Those whose positions lie in a region.
    Span inside(const Region& region, Span within) const {
        return spanOf(perY, startY, region.y, spanOf(perX, startX, region.x, within));
    }
};

inline constexpr double kAcrossRows = 0.125; // rows for a pixel

struct AffineCoordinates {
    AffineMap toSource;

    AffineRow row(int64_t y) const {
        const auto start = [&](const double(&c)[3]) { return c[1] * double(y) + c[2]; };
        return {toSource.c[0][0], toSource.c[1][0], start(toSource.c[0]), start(toSource.c[1])};
    }
    Edges edges(const Region& region) const { return edgesOf(region, toSource.c[0], toSource.c[1], {0, 0, 1}); }
    // How far it is in the source from a pixel to the one below it.
    Position<double> down(Point) const { return {toSource.c[0][1], toSource.c[1][1]}; }
    // Whether neighbours of a row lie in different rows of the source, each on lines of its own, around a
    // pixel.
    bool goesAcrossRows(Point) const { return magnitudeOf(toSource.c[1][0]) > kAcrossRows; }
};

// Divisors w are positive where pixels have a position; beyond the horizon they have none.
struct PerspectiveRow {
    double perX, perY, perW, startX, startY, startW;

    template <class X>
    Position<X> at(X x) const {
        const auto along = [&](double perPixel, double start) {
            if constexpr (std::is_same_v<X, double>)
                return perPixel * x + start;
            else
                return splat<X>(perPixel) * x + splat<X>(start);
        };
        const X scale = (X{} + 1) / along(perW, startW);
        return {along(perX, startX) * scale, along(perY, startY) * scale};
    }
    PerspectiveRow moved(double by) const {
        return {perX + by * perW, perY + by * perW, perW, startX + by * startW, startY + by * startW, startW};
    }
    Span mapped(Span within) const { return spanOf(perW, startW, {0x1p-1000, kInfinity}, within); }
    // Positions are compared by what is divided, which is straight along the row where quotients need not be.
    Span inside(const Region& region, Span within) const {
        const auto cut = [&](double limit, double per, double start, Range range, Span span) {
            return spanOf(per - limit * perW, start - limit * startW, range, span);
        };
        const auto between = [&](Range range, double per, double start, Span span) {
            return cut(range.end, per, start, {-kInfinity, 0},
                       cut(range.low, per, start, {0, kInfinity}, span));
        };
        return between(region.y, perY, startY, between(region.x, perX, startX, mapped(within)));
    }

 private:
    static constexpr double kInfinity = __builtin_inf();
};

struct PerspectiveCoordinates {
    PerspectiveMap toSource;

    PerspectiveRow row(int64_t y) const {
        const auto& c = toSource.c;
        const auto start = [&](const double(&of)[3]) { return of[1] * double(y) + of[2]; };
        return {c[0][0], c[1][0], c[2][0], start(c[0]), start(c[1]), start(c[2])};
    }
    Edges edges(const Region& region) const {
        return edgesOf(region, toSource.c[0], toSource.c[1], toSource.c[2]);
    }
    Position<double> down(Point pixel) const {
        const ProjectedPoint p = toSource.project(pixel);
        const auto& c = toSource.c;
        return {(c[0][1] * p.w - c[2][1] * p.x) / (p.w * p.w), (c[1][1] * p.w - c[2][1] * p.y) / (p.w * p.w)};
    }
    bool goesAcrossRows(Point pixel) const {
        const ProjectedPoint p = toSource.project(pixel);
        return magnitudeOf(toSource.c[1][0] * p.w - toSource.c[2][0] * p.y) > kAcrossRows * p.w * p.w;
    }
};

} // namespace tpx
