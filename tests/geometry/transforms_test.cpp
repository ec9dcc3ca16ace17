// SPDX-License-Identifier: Apache-2.0
// Maps of the plane through the exported names: quadrangles, bounds, maps onto quadrangles, rotations, and the
// source rectangle of a tile.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "tests/support/checks.h"

namespace {

using namespace tpx::test;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kUntouched = -987.25;

struct Point {
    double x, y;
};
using Quad = std::array<Point, 4>;
using Coeffs = std::array<double, 9>; // row by row; what a kind does not have is not read

template <int N, class T>
auto rowsOf(T* numbers) {
    return reinterpret_cast<T(*)[N]>(numbers);
}

// The calls of one kind of map, and its formula in higher precision.
struct Kind {
    const char* name;
    int count;
    TpxStatus (*quad)(TpxiRect, double (*)[2], const double*);
    TpxStatus (*bound)(TpxiRect, double (*)[2], const double*);
    TpxStatus (*transform)(TpxiRect, const double (*)[2], double*);
    Point (*at)(const Coeffs&, long double x, long double y);
};

const Kind kAffine = {
    "affine",
    6,
    [](TpxiRect r, double (*q)[2], const double* c) { return tpxiGetAffineQuad(r, q, rowsOf<3>(c)); },
    [](TpxiRect r, double (*b)[2], const double* c) { return tpxiGetAffineBound(r, b, rowsOf<3>(c)); },
    [](TpxiRect r, const double (*q)[2], double* c) { return tpxiGetAffineTransform(r, q, rowsOf<3>(c)); },
    [](const Coeffs& c, long double x, long double y) -> Point {
        return {double(c[0] * x + c[1] * y + c[2]), double(c[3] * x + c[4] * y + c[5])};
    }};
const Kind kPerspective = {
    "perspective",
    9,
    [](TpxiRect r, double (*q)[2], const double* c) { return tpxiGetPerspectiveQuad(r, q, rowsOf<3>(c)); },
    [](TpxiRect r, double (*b)[2], const double* c) { return tpxiGetPerspectiveBound(r, b, rowsOf<3>(c)); },
    [](TpxiRect r, const double (*q)[2], double* c) { return tpxiGetPerspectiveTransform(r, q, rowsOf<3>(c)); },
    [](const Coeffs& c, long double x, long double y) -> Point {
        const long double d = c[6] * x + c[7] * y + c[8];
        return {double((c[0] * x + c[1] * y + c[2]) / d), double((c[3] * x + c[4] * y + c[5]) / d)};
    }};
const Kind kBilinear = {
    "bilinear",
    8,
    [](TpxiRect r, double (*q)[2], const double* c) { return tpxiGetBilinearQuad(r, q, rowsOf<4>(c)); },
    [](TpxiRect r, double (*b)[2], const double* c) { return tpxiGetBilinearBound(r, b, rowsOf<4>(c)); },
    [](TpxiRect r, const double (*q)[2], double* c) { return tpxiGetBilinearTransform(r, q, rowsOf<4>(c)); },
    [](const Coeffs& c, long double x, long double y) -> Point {
        return {double(c[0] * x * y + c[1] * x + c[2] * y + c[3]),
                double(c[4] * x * y + c[5] * x + c[6] * y + c[7])};
    }};
const Kind* const kKinds[] = {&kAffine, &kPerspective, &kBilinear};

struct QuadResult {
    TpxStatus status;
    Quad quad;
};
QuadResult quadOf(const Kind& kind, TpxiRect roi, const Coeffs& coeffs) {
    double quad[4][2];
    std::fill_n(&quad[0][0], 8, kUntouched);
    QuadResult result = {kind.quad(roi, quad, coeffs.data()), {}};
    for (int k = 0; k < 4; k++) result.quad[k] = {quad[k][0], quad[k][1]};
    return result;
}

struct TransformResult {
    TpxStatus status;
    Coeffs coeffs;
};
TransformResult transformOnto(const Kind& kind, TpxiRect roi, const Quad& target) {
    double quad[4][2];
    for (int k = 0; k < 4; k++) quad[k][0] = target[k].x, quad[k][1] = target[k].y;
    TransformResult result = {0, {}};
    result.coeffs.fill(kUntouched);
    result.status = kind.transform(roi, quad, result.coeffs.data());
    for (int k = kind.count; k < 9; k++) EXPECT_EQ(kUntouched, result.coeffs[k]) << kind.name;
    if (result.status < 0) EXPECT_EQ(kUntouched, result.coeffs[0]) << kind.name;
    return result;
}

std::array<Point, 4> cornersOf(TpxiRect r) {
    const double left = r.x, top = r.y, right = left + r.width - 1, bottom = top + r.height - 1;
    return {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}

void expectNear(Point expected, Point actual, double tolerance, const char* what) {
    EXPECT_NEAR(expected.x, actual.x, tolerance) << what;
    EXPECT_NEAR(expected.y, actual.y, tolerance) << what;
}

// ---- Order of checks ----------------------------------------------------------------------------------

struct Request {
    TpxiRect roi = {3, 4, 20, 10};
    Quad quad = {{{0, 0}, {9, 1}, {10, 8}, {1, 7}}};
    Coeffs coeffs = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    bool hasFirst = true, hasCoeffs = true;
};

TEST(Transforms, OrderOfChecks) {
    const std::vector<Fault<Request>> common = {
        {"null", [](Request& r) { r.hasFirst = false; }, tpxErrNullPointer},
        {"null", [](Request& r) { r.hasCoeffs = false; }, tpxErrNullPointer},
        {"x", [](Request& r) { r.roi.x = -1; }, tpxErrSize},
        {"y", [](Request& r) { r.roi.y = INT32_MIN; }, tpxErrSize},
        {"no columns", [](Request& r) { r.roi.width = 0; }, tpxErrSize},
        {"no rows", [](Request& r) { r.roi.height = INT32_MIN; }, tpxErrSize}};
    auto rectangles = common, quads = common;
    rectangles.push_back({"singular", [](Request& r) { r.coeffs.fill(0); }, tpxErrCoefficient});
    quads.push_back({"quad", [](Request& r) { std::swap(r.quad[1], r.quad[2]); }, tpxErrQuad}); // a bow-tie
    quads.push_back({"quad", [](Request& r) { r.quad[1] = {5, 4}; }, tpxErrQuad});              // collinear
    quads.push_back({"quad", [](Request& r) { r.quad[2] = {2, 2}; }, tpxErrQuad});              // a dent
    quads.push_back({"quad", [](Request& r) { r.quad[3].y = kInfinity; }, tpxErrQuad});
    quads.push_back({"quad", [](Request& r) { r.quad[0].x = NAN; }, tpxErrQuad});
    quads.push_back({"one column", [](Request& r) { r.roi.width = 1; }, tpxErrRect});
    quads.push_back({"one row", [](Request& r) { r.roi.height = 1; }, tpxErrRect});

    for (const Kind* kind : kKinds) {
        SCOPED_TRACE(kind->name);
        Request good;
        if (kind == &kBilinear) good.coeffs = {0, 1, 0, 0, 0, 0, 1, 0};
        for (const auto call : {kind->quad, kind->bound})
            expectCheckOrder(good, rectangles, [&](const Request& r) {
                double out[4][2];
                std::fill_n(&out[0][0], 8, kUntouched);
                const TpxStatus status =
                    call(r.roi, r.hasFirst ? out : nullptr, r.hasCoeffs ? r.coeffs.data() : nullptr);
                EXPECT_EQ(status != tpxOk && status != tpxErrCoefficient, out[0][0] == kUntouched);
                return status;
            });
        expectCheckOrder(good, quads, [&](const Request& r) {
            if (r.hasFirst && r.hasCoeffs) return transformOnto(*kind, r.roi, r.quad).status;
            double quad[4][2] = {}, coeffs[9] = {};
            return kind->transform(r.roi, r.hasFirst ? quad : nullptr, r.hasCoeffs ? coeffs : nullptr);
        });
    }
}

TEST(Transforms, OrderOfChecksOfRotationsAndTiles) {
    double shift = kUntouched, coeffs[2][3] = {{kUntouched}};
    EXPECT_EQ(tpxErrNullPointer, tpxiGetRotateShift(1, 2, 30, nullptr, &shift));
    EXPECT_EQ(tpxErrNullPointer, tpxiGetRotateShift(1, 2, 30, &shift, nullptr));
    EXPECT_EQ(kUntouched, shift);
    for (double angle : {double(NAN), kInfinity, -kInfinity}) {
        EXPECT_EQ(tpxErrOutOfRange, tpxiGetRotateTransform(angle, 0, 0, nullptr));
        EXPECT_EQ(tpxErrOutOfRange, tpxiGetRotateTransform(angle, 0, 0, coeffs));
    }
    EXPECT_EQ(tpxErrNullPointer, tpxiGetRotateTransform(30, 0, 0, nullptr));
    EXPECT_EQ(kUntouched, coeffs[0][0]);

    struct Tile {
        Coeffs coeffs = {1, 0, 5, 0, 1, 5};
        int direction = 0;
        TpxiRect dst = {1, 2, 3, 4};
        TpxiSize src = {50, 40};
        bool hasCoeffs = true, hasResult = true;
    };
    using F = Fault<Tile>;
    const std::vector<F> faults = {
        {"coeffs", [](Tile& t) { t.hasCoeffs = false; }, tpxErrNullPointer},
        {"result", [](Tile& t) { t.hasResult = false; }, tpxErrNullPointer},
        {"x", [](Tile& t) { t.dst.x = -1; }, tpxErrSize},
        {"y", [](Tile& t) { t.dst.y = -1; }, tpxErrSize},
        {"width", [](Tile& t) { t.dst.width = 0; }, tpxErrSize},
        {"height", [](Tile& t) { t.dst.height = -7; }, tpxErrSize},
        {"source", [](Tile& t) { t.src.height = 0; }, tpxErrSize},
        {"direction", [](Tile& t) { t.direction = 2; }, tpxErrWarpDirection},
        {"direction", [](Tile& t) { t.direction = -1; }, tpxErrWarpDirection},
        {"map", [](Tile& t) { t.coeffs = {1, 2, 0, 2, 4, 0}; }, tpxErrCoefficient},
        {"map", [](Tile& t) { t.coeffs = {1.4e-8, 0, 0, 0, 1.4e-8, 0}; }, tpxErrCoefficient},
        {"map", [](Tile& t) { t.coeffs[2] = NAN; }, tpxErrCoefficient},
        {"map", [](Tile& t) { t.coeffs[4] = kInfinity; }, tpxErrCoefficient}};
    for (int direction : {0, 1}) {
        Tile good;
        good.direction = direction;
        expectCheckOrder(good, faults, [](const Tile& t) {
            TpxiRect result = {-1, -2, -3, -4};
            const TpxStatus status =
                tpxiGetAffineSrcRoi(t.src, t.hasCoeffs ? rowsOf<3>(t.coeffs.data()) : nullptr, t.direction,
                                    t.dst, t.hasResult ? &result : nullptr);
            EXPECT_TRUE(result.x == -1 && result.height == -4);
            return status;
        });
    }
}

// ---- Quadrangles and bounds ---------------------------------------------------------------------------

TEST(Transforms, QuadsAndBoundsFollowTheFormulas) {
    struct Case {
        const Kind& kind;
        Coeffs coeffs;
        TpxiRect roi;
        TpxStatus status;
        Quad quad;
    };
    const TpxiRect roi = {2, 1, 5, 3}; // corners 2, 1 and 6, 3
    for (const Case& c : {
             Case{kAffine, {2, 1, 0.5, -1, 3, 4}, roi, tpxOk, {{{5.5, 5}, {13.5, 1}, {15.5, 7}, {7.5, 11}}}},
             // Mirrored, so the other way round.
             Case{kAffine, {-1, 0, 0, 0, 1, 0}, roi, tpxOk, {{{-2, 1}, {-6, 1}, {-6, 3}, {-2, 3}}}},
             Case{
                 kPerspective, {4, 0, 0, 0, 4, 8, 1, 0, 2}, roi, tpxOk, {{{2, 3}, {3, 1.5}, {3, 2.5}, {2, 5}}}},
             Case{kBilinear,
                  {0.5, 1, 0, 1, 0.25, 0, 2, 0},
                  roi,
                  tpxOk,
                  {{{4, 2.5}, {10, 3.5}, {16, 10.5}, {6, 7.5}}}},
             // Refused, and stored: on one line, folded, one pixel wide, and beyond the horizon at x = 4.5.
             Case{kAffine, {1, 2, 0, 2, 4, 0}, roi, tpxErrCoefficient, {{{4, 8}, {8, 16}, {12, 24}, {8, 16}}}},
             Case{kBilinear,
                  {1, -2, 0, 0, 0, 0, 1, 0},
                  roi,
                  tpxErrCoefficient,
                  {{{-2, 1}, {-6, 1}, {6, 3}, {2, 3}}}},
             Case{kAffine,
                  {1, 0, 0, 0, 1, 0},
                  {2, 1, 1, 3},
                  tpxErrCoefficient,
                  {{{2, 1}, {2, 1}, {2, 3}, {2, 3}}}},
             Case{kPerspective,
                  {1, 0, 0, 0, 1, 0, 2, 0, -8},
                  roi,
                  tpxErrCoefficient,
                  {{{-0.5, -0.25}, {1.5, 0.25}, {1.5, 0.75}, {-0.5, -0.75}}}},
         }) {
        SCOPED_TRACE(c.kind.name);
        const auto result = quadOf(c.kind, c.roi, c.coeffs);
        EXPECT_EQ(c.status, result.status);
        Point low = c.quad[0], high = low;
        for (int k = 0; k < 4; k++) {
            expectNear(c.quad[k], result.quad[k], 1e-14, "corner");
            low = {std::min(low.x, result.quad[k].x), std::min(low.y, result.quad[k].y)};
            high = {std::max(high.x, result.quad[k].x), std::max(high.y, result.quad[k].y)};
        }
        double bound[2][2];
        EXPECT_EQ(c.status, c.kind.bound(c.roi, bound, c.coeffs.data()));
        EXPECT_TRUE(bound[0][0] == low.x && bound[0][1] == low.y);
        EXPECT_TRUE(bound[1][0] == high.x && bound[1][1] == high.y);
    }
    // A rectangle whose corners do not fit 32 bits.
    const auto far = quadOf(kAffine, {INT32_MAX, 0, INT32_MAX, 2}, {1, 0, 0, 0, 1, 0});
    EXPECT_EQ(tpxOk, far.status);
    EXPECT_EQ(4294967293.0, far.quad[1].x);
}

// ---- Maps onto quadrangles ----------------------------------------------------------------------------

// Convex: one corner in each quarter around some centre, no closer to it than the others are far.
Quad randomQuad(std::mt19937& random) {
    std::uniform_real_distribution<double> any(0, 1);
    const double scale = std::pow(10.0, 4 * any(random) - 1), turn = 6.3 * any(random);
    const Point centre = {2000 * any(random) - 1000, 2000 * any(random) - 1000};
    const bool otherWay = any(random) < 0.5;
    Quad quad;
    for (int k = 0; k < 4; k++) {
        const double angle = turn + (k + 0.4 * any(random)) * (otherWay ? -1 : 1) * 1.5707963;
        const double radius = scale * (0.8 + 0.2 * any(random));
        quad[k] = {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
    }
    return quad;
}

TEST(Transforms, CornersGoToTheQuadrangle) {
    std::mt19937 random(7);
    const auto below = [&](int n) { return int(random() % unsigned(n)); };
    for (int round = 0; round < 2000; round++) {
        const Quad quad = randomQuad(random);
        const TpxiRect roi = {below(100), below(100), 2 + below(300), 2 + below(300)};
        double size = 0;
        for (const Point& p : quad) size = std::max({size, std::abs(p.x), std::abs(p.y)});
        for (const Kind* kind : kKinds) {
            SCOPED_TRACE(kind->name);
            const auto result = transformOnto(*kind, roi, quad);
            ASSERT_EQ(kind == &kAffine ? tpxWarnNotParallelogram : tpxOk, result.status);
            // As many corners as an affine map has room for.
            for (int k = 0; k < (kind == &kAffine ? 3 : 4); k++)
                expectNear(quad[k], kind->at(result.coeffs, cornersOf(roi)[k].x, cornersOf(roi)[k].y),
                           size * 1e-10, "corner");
            if (kind == &kAffine) continue;
            const auto back = quadOf(*kind, roi, result.coeffs);
            EXPECT_EQ(tpxOk, back.status);
            for (int k = 0; k < 4; k++) expectNear(quad[k], back.quad[k], size * 1e-9, "corner back");
        }
    }
}

TEST(Transforms, KnownMapsOntoQuadrangles) {
    // A trapezium over the rectangle 1, 2 to 5, 6; its sides meet at infinity's image.
    const TpxiRect roi = {1, 2, 5, 5};
    const Quad trapezium = {{{0, 0}, {8, 0}, {6, 4}, {2, 4}}};
    const auto affine = transformOnto(kAffine, roi, trapezium);
    EXPECT_EQ(tpxWarnNotParallelogram, affine.status);
    EXPECT_EQ((Coeffs{2, -0.5, -1, 0, 1, -2, kUntouched, kUntouched, kUntouched}), affine.coeffs);
    const auto perspective = transformOnto(kPerspective, roi, trapezium);
    EXPECT_EQ(tpxOk, perspective.status);
    EXPECT_EQ((Coeffs{2, 1, -4, 0, 2, -4, 0, 0.25, 0.5}), perspective.coeffs);
    const auto bilinear = transformOnto(kBilinear, roi, trapezium);
    EXPECT_EQ(tpxOk, bilinear.status);
    EXPECT_EQ((Coeffs{-0.25, 2.5, 0.75, -3.5, 0, 0, 1, -2, kUntouched}), bilinear.coeffs);
    // Two opposite edges are parallel, whichever they are.
    EXPECT_EQ(tpxWarnNotParallelogram, transformOnto(kAffine, roi, {{{0, 0}, {4, 2}, {4, 6}, {0, 8}}}).status);
}

TEST(Transforms, ParallelogramsAreAffine) {
    for (double degrees = 0; degrees < 360; degrees += 7.5) {
        double turn[2][3];
        ASSERT_EQ(tpxOk, tpxiGetRotateTransform(degrees, 0, 0, turn));
        const double c = turn[0][0], s = turn[0][1];
        const TpxiRect roi = {11, 7, 64, 48};
        const Coeffs map = {1.3 * c, s, 20.7, -0.9 * s + 0.2 * c, c, -3.3};
        const auto target = quadOf(kAffine, roi, map);
        ASSERT_EQ(tpxOk, target.status);
        const auto affine = transformOnto(kAffine, roi, target.quad);
        EXPECT_EQ(tpxOk, affine.status) << degrees;
        for (int k = 0; k < 6; k++) EXPECT_NEAR(map[k], affine.coeffs[k], 1e-11);
        const auto bilinear = transformOnto(kBilinear, roi, target.quad);
        EXPECT_EQ(tpxOk, bilinear.status);
        EXPECT_TRUE(bilinear.coeffs[0] == 0 && bilinear.coeffs[4] == 0) << degrees;
        for (int k = 0; k < 6; k++) EXPECT_NEAR(map[k], bilinear.coeffs[k + 1 + k / 3], 1e-11);
        const auto perspective = transformOnto(kPerspective, roi, target.quad);
        for (int k = 0; k < 9; k++)
            EXPECT_NEAR(k < 6 ? map[k] : k == 8, perspective.coeffs[k], 1e-11) << "coefficient " << k;
    }
    // Rounding may leave edges along the axes a little askew; what is off by more is no parallelogram.
    const auto askew = transformOnto(kBilinear, {0, 0, 9, 9}, {{{7, 1e-15}, {15, 0}, {15, 8}, {7, 8}}});
    EXPECT_TRUE(askew.coeffs[0] == 0 && askew.coeffs[4] == 0);
    EXPECT_NE(0, transformOnto(kBilinear, {0, 0, 2, 2}, {{{0, 0}, {1, 0}, {1, 1}, {1e-9, 1}}}).coeffs[0]);
}

// ---- Rotations ----------------------------------------------------------------------------------------

TEST(Transforms, Rotations) {
    const auto expectMap = [](double angle, std::array<double, 4> expected, double tolerance) {
        double c[2][3];
        ASSERT_EQ(tpxOk, tpxiGetRotateTransform(angle, 3.5, -7.25, c));
        EXPECT_TRUE(c[0][2] == 3.5 && c[1][2] == -7.25);
        const double found[] = {c[0][0], c[0][1], c[1][0], c[1][1]};
        for (int k = 0; k < 4; k++) EXPECT_NEAR(expected[k], found[k], tolerance) << angle;
    };
    for (double turns : {0.0, 1.0, -1.0, 2.0, -5.0, 1e9, -1e9}) {
        expectMap(360 * turns, {1, 0, 0, 1}, 0);
        expectMap(360 * turns + 90, {0, 1, -1, 0}, 0);
        expectMap(360 * turns + 180, {-1, 0, 0, -1}, 0);
        expectMap(360 * turns + 270, {0, -1, 1, 0}, 0);
        const double c = 0.86602540378443865, s = 0.5; // 30 degrees
        expectMap(360 * turns + 30, {c, s, -s, c}, 1e-15);
        expectMap(360 * turns - 30, {c, -s, s, c}, 1e-15);
    }
    expectMap(-1e-20, {1, 0, 0, 1}, 0);

    // The centre stays; quarter turns shift exactly.
    struct Quarter {
        double angle, xShift, yShift;
    };
    double xShift, yShift;
    for (const Quarter& q : {Quarter{0, 0, 0},
                             {90, 10.5 - 0.1, 10.5 + 0.1},
                             {180, 21, 0.2},
                             {270, 10.5 + 0.1, 0.1 - 10.5},
                             {-90, 10.5 + 0.1, 0.1 - 10.5}}) {
        EXPECT_EQ(tpxOk, tpxiGetRotateShift(10.5, 0.1, q.angle, &xShift, &yShift));
        EXPECT_EQ(q.xShift, xShift) << q.angle;
        EXPECT_EQ(q.yShift, yShift) << q.angle;
    }
    for (double angle = -720; angle < 720; angle += 11.3) {
        const double x = 319.5, y = -41.25;
        double c[2][3];
        EXPECT_EQ(tpxOk, tpxiGetRotateShift(x, y, angle, &xShift, &yShift));
        EXPECT_EQ(tpxOk, tpxiGetRotateTransform(angle, xShift, yShift, c));
        EXPECT_NEAR(x, c[0][0] * x + c[0][1] * y + c[0][2], 1e-12);
        EXPECT_NEAR(y, c[1][0] * x + c[1][1] * y + c[1][2], 1e-12);
    }
}

// ---- Source rectangles of tiles -----------------------------------------------------------------------

TpxiRect srcRoiOf(TpxiSize src, const Coeffs& coeffs, int direction, TpxiRect dst) {
    TpxiRect roi = {-1, -1, -1, -1};
    EXPECT_EQ(tpxOk, tpxiGetAffineSrcRoi(src, rowsOf<3>(coeffs.data()), direction, dst, &roi));
    EXPECT_TRUE(roi.x >= 0 && roi.y >= 0 && roi.width >= 1 && roi.height >= 1);
    EXPECT_TRUE(roi.width <= src.width - roi.x && roi.height <= src.height - roi.y);
    return roi;
}

TEST(Transforms, SourceRectanglesOfTiles) {
    struct Case {
        Coeffs coeffs; // destination to source
        TpxiRect dst, src;
    };
    const TpxiSize image = {100, 80};
    for (const Case& c : {
             Case{{1, 0, 0, 0, 1, 0}, {10, 20, 30, 40}, {9, 19, 32, 42}},
             {{1, 0, 0.5, 0, 1, 0.25}, {10, 20, 30, 40}, {10, 20, 31, 41}},
             {{2, 0, 0, 0, 0.5, 0}, {0, 0, 10, 10}, {0, 0, 20, 6}},
             {{0, 1, 0, -1, 0, 79}, {10, 20, 30, 40}, {19, 39, 42, 32}}, // a quarter turn
             {{1, 0, 0, 0, 1, 0}, {90, 70, 10, 10}, {89, 69, 11, 11}},
             {{1, 0, 0, 0, 1, 0}, {0, 0, 100, 80}, {0, 0, 100, 80}},
             // One pixel gets what 2x2 need, in the corners too; beyond the image the nearest pixels.
             {{1, 0, 0, 0, 1, 0}, {50, 50, 1, 1}, {49, 49, 4, 4}},
             {{1, 0, 0.5, 0, 1, 0.5}, {50, 50, 1, 1}, {50, 50, 3, 3}},
             {{3, 0, 0.5, 0, 1, 0.5}, {20, 50, 1, 1}, {60, 50, 5, 3}},
             {{1, 0, 0, 0, 1, 0}, {0, 0, 1, 1}, {0, 0, 4, 4}},
             {{1, 0, 0, 0, 1, 0}, {99, 79, 1, 1}, {96, 76, 4, 4}},
             {{1, 0, 5000, 0, 1, -5000}, {7, 7, 1, 1}, {96, 0, 4, 4}},
             {{1, 0, 1e300, 0, 1, -1e300}, {7, 7, 9, 9}, {99, 0, 1, 1}},
             {{1e6, 0, 0, 0, 1e6, 0}, {7, 7, 1, 1}, {0, 0, 100, 80}},
         }) {
        const TpxiRect roi = srcRoiOf(image, c.coeffs, 1, c.dst);
        EXPECT_EQ(c.src.x, roi.x);
        EXPECT_EQ(c.src.y, roi.y);
        EXPECT_EQ(c.src.width, roi.width) << "at " << roi.x;
        EXPECT_EQ(c.src.height, roi.height) << "at " << roi.y;
    }
    const TpxiRect one = srcRoiOf({1, 1}, {1, 0, 0, 0, 1, 0}, 1, {0, 0, 1, 1});
    EXPECT_TRUE(one.width == 1 && one.height == 1);
}

// All pixels between which a position inside the image lies are there, both ways to give the map.
TEST(Transforms, SourceRectanglesHoldEveryPosition) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> any(-1, 1);
    const TpxiSize image = {90, 70};
    for (int round = 0; round < 3000; round++) {
        const double scale = std::pow(4.0, any(random));
        const Coeffs c = {scale * any(random), scale * any(random), 100 * any(random),
                          scale * any(random), scale * any(random), 100 * any(random)};
        const double det = c[0] * c[4] - c[1] * c[3];
        if (std::abs(det) < 1e-3) continue;
        const Coeffs inverse = {c[4] / det,  -c[1] / det, (c[1] * c[5] - c[4] * c[2]) / det,
                                -c[3] / det, c[0] / det,  (c[3] * c[2] - c[0] * c[5]) / det};
        const bool tiny = round % 3 == 0;
        const TpxiRect dst = {int(random() % 80), int(random() % 80), tiny ? 1 : 1 + int(random() % 20),
                              tiny ? 1 : 1 + int(random() % 20)};
        for (int direction : {0, 1}) {
            const TpxiRect roi = srcRoiOf(image, direction ? c : inverse, direction, dst);
            for (int y = dst.y; y < dst.y + dst.height; y++)
                for (int x = dst.x; x < dst.x + dst.width; x++) {
                    const Point p = kAffine.at(c, x, y);
                    if (p.x < 0 || p.y < 0 || p.x > image.width - 1 || p.y > image.height - 1) continue;
                    ASSERT_LE(roi.x, int(p.x));
                    ASSERT_LE(roi.y, int(p.y));
                    ASSERT_GE(roi.x + roi.width, int(std::ceil(p.x)) + 1);
                    ASSERT_GE(roi.y + roi.height, int(std::ceil(p.y)) + 1);
                }
        }
    }
}

// ---- Numbers that nobody should give ------------------------------------------------------------------

TEST(Transforms, AnyNumbersAreAnswered) {
    const double numbers[] = {0,    -0.0,      1,          -1,           0.5,          3,      1e-10,
                              1e10, 1e155,     -1e155,     1e308,        -1e308,       1e-308, 5e-324,
                              NAN,  kInfinity, -kInfinity, 2147483648.0, -2147483649.0};
    std::mt19937 random(11);
    const auto number = [&] { return numbers[random() % std::size(numbers)]; };
    const int lengths[] = {1, 2, 3, 1000, INT32_MAX};
    const auto length = [&] { return lengths[random() % std::size(lengths)]; };
    int delivered = 0;
    for (int round = 0; round < 40000; round++) {
        Coeffs coeffs;
        for (double& c : coeffs) c = number();
        Quad quad = {{{0, 0}, {10, 1}, {12, 9}, {-1, 8}}};
        if (round % 2)
            for (Point& p : quad) p = {number(), number()};
        else
            quad[random() % 4].x = quad[random() % 4].y = number();
        const TpxiRect roi = {length() - 1, length() - 1, length(), length()};
        for (const Kind* kind : kKinds) {
            SCOPED_TRACE(kind->name);
            const auto mapped = quadOf(*kind, roi, coeffs);
            ASSERT_TRUE(mapped.status == tpxOk || mapped.status == tpxErrCoefficient);
            if (mapped.status == tpxOk)
                for (const Point& p : mapped.quad) ASSERT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
            double bound[2][2];
            ASSERT_EQ(mapped.status, kind->bound(roi, bound, coeffs.data()));

            const auto onto = transformOnto(*kind, roi, quad);
            ASSERT_TRUE(onto.status == tpxOk || onto.status == tpxErrQuad || onto.status == tpxErrRect ||
                        (onto.status == tpxWarnNotParallelogram && kind == &kAffine));
            if (onto.status < 0) continue;
            delivered++;
            for (int k = 0; k < kind->count; k++) ASSERT_TRUE(std::isfinite(onto.coeffs[k]));
        }
        const TpxiSize src = {length(), length()};
        TpxiRect tile;
        for (int direction : {0, 1}) {
            const TpxStatus status = tpxiGetAffineSrcRoi(src, rowsOf<3>(coeffs.data()), direction, roi, &tile);
            ASSERT_TRUE(status == tpxOk || status == tpxErrCoefficient);
            if (status == tpxOk) srcRoiOf(src, coeffs, direction, roi);
        }
        double turn[2][3], x, y;
        const double angle = number();
        ASSERT_EQ(tpxOk, tpxiGetRotateShift(number(), number(), angle, &x, &y));
        if (tpxiGetRotateTransform(angle, 0, 0, turn) == tpxOk)
            ASSERT_NEAR(1, turn[0][0] * turn[0][0] + turn[0][1] * turn[0][1], 1e-14);
    }
    EXPECT_GT(delivered, 1000);
}

} // namespace
