// SPDX-License-Identifier: Apache-2.0
// Maps of the plane, what they make of rectangles, and the maps that take a rectangle to a given quadrangle.
#pragma once

#include "frame/simd/core.h"
#include "tpxi/types.h"

namespace tpx {

struct Point {
    double x, y;
};

// From (left, top) to (right, bottom), both included.
struct Box {
    double left, top, right, bottom;
};

// The centres of a rectangle's outermost pixels; a rectangle may reach beyond 32 bits.
constexpr Box boxOf(TpxiRect rect) {
    return {double(rect.x), double(rect.y), rect.x + (rect.width - 1.0), rect.y + (rect.height - 1.0)};
}

// The point (x / w, y / w). Where w is not positive it lies beyond the horizon.
struct ProjectedPoint {
    double x, y, w;
};

// A number that is not finite makes its difference to itself NaN.
constexpr bool isFinite(double x) { return x - x == 0; }

template <int Rows, int Columns>
constexpr bool allFinite(const double (&numbers)[Rows][Columns]) {
    bool all = true;
    for (const auto& row : numbers)
        for (double x : row) all &= isFinite(x);
    return all;
}

constexpr double magnitudeOf(double x) { return x < 0 ? -x : x; }

// Whether two vectors whose cross product is a - b are parallel; NaN counts as such.
constexpr bool areParallel(double a, double b) {
    const double measure = magnitudeOf(a) > 1e-200 ? magnitudeOf((a - b) / a) : magnitudeOf(b);
    return !(measure > 1e-10);
}

// ---- Maps ------------------------------------------------------------------------------------------------

// x' = c00 x + c01 y + c02, y' likewise.
struct AffineMap {
    double c[2][3];

    constexpr Point operator()(Point p) const {
        return {c[0][0] * p.x + c[0][1] * p.y + c[0][2], c[1][0] * p.x + c[1][1] * p.y + c[1][2]};
    }
    constexpr ProjectedPoint project(Point p) const {
        const Point at = (*this)(p);
        return {at.x, at.y, 1};
    }
    constexpr bool isFinite() const { return allFinite(c); }
    constexpr double determinant() const { return c[0][0] * c[1][1] - c[0][1] * c[1][0]; }
    constexpr bool isSingular() const { return areParallel(c[0][0] * c[1][1], c[0][1] * c[1][0]); }
    // Not finite if there is none.
    constexpr AffineMap inverse() const {
        const double det = determinant();
        return {{{c[1][1] / det, -c[0][1] / det, (c[0][1] * c[1][2] - c[1][1] * c[0][2]) / det},
                 {-c[1][0] / det, c[0][0] / det, (c[1][0] * c[0][2] - c[0][0] * c[1][2]) / det}}};
    }
};

// x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' likewise.
struct PerspectiveMap {
    double c[3][3];

    constexpr ProjectedPoint project(Point p) const {
        const auto row = [&](int k) { return c[k][0] * p.x + c[k][1] * p.y + c[k][2]; };
        return {row(0), row(1), row(2)};
    }
    constexpr Point operator()(Point p) const {
        const ProjectedPoint at = project(p);
        const double scale = 1 / at.w;
        return {at.x * scale, at.y * scale};
    }
    constexpr bool isFinite() const { return allFinite(c); }
    // By contract: the affine part may be singular if the divisor makes up for it.
    constexpr bool isSingular() const {
        const double cross = (c[0][1] * c[1][2] - c[1][1] * c[0][2]) * c[2][0] -
                             (c[0][0] * c[1][2] - c[0][2] * c[1][0]) * c[2][1];
        const bool isPlane =
            areParallel(c[0][0] * c[1][1], c[0][1] * c[1][0]) && !(magnitudeOf(cross) >= 1e-10);
        return isPlane || !(magnitudeOf(c[2][2]) > 1e-200);
    }
    // Multiples are the same map.
    constexpr PerspectiveMap times(double by) const {
        PerspectiveMap map = *this;
        for (auto& row : map.c)
            for (double& x : row) x *= by;
        return map;
    }
    // The multiple by the power of two that makes the largest coefficient one of 1 to 2.
    constexpr PerspectiveMap scaled() const {
        double largest = 0;
        for (const auto& row : c)
            for (double x : row) largest = maxOf(largest, magnitudeOf(x));
        const auto exponent = clampTo(__builtin_bit_cast(int64_t, largest) >> 52, int64_t(1), int64_t(2045));
        return times(__builtin_bit_cast(double, (2046 - exponent) << 52));
    }
    // The inverse map, times the determinant.
    constexpr PerspectiveMap adjugate() const {
        PerspectiveMap map = {};
        for (int i = 0; i < 3; i++)
            for (int k = 0; k < 3; k++) {
                const int a = (i + 1) % 3, b = (i + 2) % 3, p = (k + 1) % 3, q = (k + 2) % 3;
                map.c[k][i] = c[a][p] * c[b][q] - c[a][q] * c[b][p];
            }
        return map;
    }
    constexpr double determinant() const {
        const PerspectiveMap inverse = adjugate();
        return c[0][0] * inverse.c[0][0] + c[0][1] * inverse.c[1][0] + c[0][2] * inverse.c[2][0];
    }
};

// x' = c00 x y + c01 x + c02 y + c03, y' likewise.
struct BilinearMap {
    double c[2][4];

    constexpr Point operator()(Point p) const {
        const auto row = [&](int k) { return (c[k][0] * p.y + c[k][1]) * p.x + c[k][2] * p.y + c[k][3]; };
        return {row(0), row(1)};
    }
    constexpr bool isFinite() const { return allFinite(c); }
};

// ---- Quadrangles -----------------------------------------------------------------------------------------

struct Quad {
    Point corner[4]; // in the order of a rectangle's: left top, right top, right bottom, left bottom

    // From corner k, cyclic, to the next.
    constexpr Point edge(int k) const {
        const Point a = corner[k & 3], b = corner[(k + 1) & 3];
        return {b.x - a.x, b.y - a.y};
    }
    // Whether it is convex, none of its corners is on a line with its neighbours, and all are finite: some with
    // a corner at infinity have the turns of a convex one.
    constexpr bool isWellFormed() const {
        int positive = 0, negative = 0;
        for (int k = 0; k < 4; k++) {
            const Point e = edge(k + 3), f = edge(k);
            const double cross = e.x * f.y - e.y * f.x;
            const bool finite = isFinite(corner[k].x) && isFinite(corner[k].y);
            positive += finite && cross > 0;
            negative += finite && cross < 0;
        }
        return positive == 4 || negative == 4;
    }
    constexpr bool isParallelogram() const {
        const Point top = edge(0), right = edge(1), bottom = edge(2), left = edge(3);
        return areParallel(bottom.x * top.y, top.x * bottom.y) &&
               areParallel(left.y * right.x, left.x * right.y);
    }
    constexpr Box bound() const {
        Box box = {corner[0].x, corner[0].y, corner[0].x, corner[0].y};
        for (const Point p : corner) {
            box.left = minOf(p.x, box.left);
            box.top = minOf(p.y, box.top);
            box.right = maxOf(p.x, box.right);
            box.bottom = maxOf(p.y, box.bottom);
        }
        return box;
    }
};

// As callers give it.
inline Quad readQuad(const Tpx64f (*quad)[2]) {
    Quad read;
    for (int k = 0; k < 4; k++) read.corner[k] = {quad[k][0], quad[k][1]};
    return read;
}

template <class Map>
constexpr Quad mapped(const Map& map, const Box& box) {
    return {{map({box.left, box.top}), map({box.right, box.top}), map({box.right, box.bottom}),
             map({box.left, box.bottom})}};
}

// The same before any division: a part may lie beyond the horizon.
struct ProjectedQuad {
    ProjectedPoint corner[4];

    // How many corners lie on this side of the horizon.
    constexpr int inFront() const {
        int count = 0;
        for (const ProjectedPoint& p : corner) count += p.w > 0;
        return count;
    }
    constexpr Quad flat() const {
        Quad quad = {};
        for (int k = 0; k < 4; k++) quad.corner[k] = {corner[k].x / corner[k].w, corner[k].y / corner[k].w};
        return quad;
    }
};

template <class Map>
constexpr ProjectedQuad projected(const Map& map, const Box& box) {
    return {{map.project({box.left, box.top}), map.project({box.right, box.top}),
             map.project({box.right, box.bottom}), map.project({box.left, box.bottom})}};
}

// One map after another.
constexpr PerspectiveMap after(const PerspectiveMap& then, const PerspectiveMap& first) {
    PerspectiveMap map = {};
    for (int i = 0; i < 3; i++)
        for (int k = 0; k < 3; k++)
            for (int j = 0; j < 3; j++) map.c[i][k] += then.c[i][j] * first.c[j][k];
    return map;
}

// ---- Onto a well-formed quadrangle, from a rectangle that is not one pixel wide or high ------------------

// The fourth corner plays no part: it lies where the others leave it.
constexpr void mapOnto(const Quad& quad, const Box& box, AffineMap& map) {
    const double perWidth = 1 / (box.right - box.left), perHeight = 1 / (box.bottom - box.top);
    const Point top = quad.edge(0), right = quad.edge(1), origin = quad.corner[0];
    const double c00 = top.x * perWidth, c01 = right.x * perHeight;
    const double c10 = top.y * perWidth, c11 = right.y * perHeight;
    map = {{{c00, c01, origin.x - box.top * c01 - box.left * c00},
            {c10, c11, origin.y - box.left * c10 - box.top * c11}}};
}

// The unit square's map, scaled and moved: P. Heckbert, "Fundamentals of Texture Mapping and Image Warping",
// 1989. Its denominator is 1 at the rectangle's origin.
constexpr void mapOnto(const Quad& quad, const Box& box, PerspectiveMap& map) {
    const double perWidth = 1 / (box.right - box.left), perHeight = 1 / (box.bottom - box.top);
    const Point top = quad.edge(0), right = quad.edge(1), bottom = quad.edge(2), left = quad.edge(3);
    const Point excess = {right.x + left.x, right.y + left.y}; // 0 if they are equal and opposite
    const double inverse = 1 / (bottom.x * right.y - right.x * bottom.y);
    const double f = (bottom.y * excess.x - bottom.x * excess.y) * inverse;
    const double g = (right.y * excess.x - right.x * excess.y) * inverse;
    const Point origin = quad.corner[0], rightTop = quad.corner[1], leftBottom = quad.corner[3];
    const double c00 = (top.x + f * rightTop.x) * perWidth, c01 = (g * leftBottom.x - left.x) * perHeight;
    const double c10 = (top.y + f * rightTop.y) * perWidth, c11 = (g * leftBottom.y - left.y) * perHeight;
    const double c20 = f * perWidth, c21 = g * perHeight;
    map = {{{c00, c01, origin.x - c00 * box.left - c01 * box.top},
            {c10, c11, origin.y - c10 * box.left - c11 * box.top},
            {c20, c21, 1 - c20 * box.left - c21 * box.top}}};
}

// An excess that is rounding's counts as none, so that a parallelogram gives an affine map.
constexpr void mapOnto(const Quad& quad, const Box& box, BilinearMap& map) {
    const double perWidth = 1 / (box.right - box.left), perHeight = 1 / (box.bottom - box.top);
    const auto fill = [&](double(&c)[4], double top, double right, double bottom, double left, double origin) {
        const double longest =
            maxOf(maxOf(magnitudeOf(top), magnitudeOf(bottom)), maxOf(magnitudeOf(right), magnitudeOf(left)));
        const double excess = right + left;
        c[0] = magnitudeOf(excess) > 1e-10 * longest ? excess * perWidth * perHeight : 0;
        const double alongX = top * perWidth, alongY = -left * perHeight;
        c[1] = alongX - c[0] * box.top;
        c[2] = alongY - c[0] * box.left;
        c[3] = origin - alongX * box.left - alongY * box.top + c[0] * box.left * box.top;
    };
    const Point top = quad.edge(0), right = quad.edge(1), bottom = quad.edge(2), left = quad.edge(3);
    fill(map.c[0], top.x, right.x, bottom.x, left.x, quad.corner[0].x);
    fill(map.c[1], top.y, right.y, bottom.y, left.y, quad.corner[0].y);
}

} // namespace tpx
