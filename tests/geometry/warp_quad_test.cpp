// SPDX-License-Identifier: Apache-2.0
// Warps between quadrangles through their exported names.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/warps.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

using Corners = std::array<std::array<double, 2>, 4>;
using Matrix = std::array<std::array<double, 3>, 3>;

// What a plan goes between. The destination is as large as a job says.
struct Quads {
    Corners src, dst;
    TpxiPoint first{0, 0}; // of the destination's rectangle, which ends with the destination
    int transform = 1;
    TpxiRect roi = tpxiWarpGetRectInfinite();
};
using Job = WarpJob<Quads>;

const double (*arrayOf(const Corners& q))[2] { return reinterpret_cast<const double(*)[2]>(q.data()); }
TpxiRect rectangleOf(const Job& job) {
    const TpxiPoint first = job.coeffs.first;
    return {first.x, first.y, job.dst.width - first.x, job.dst.height - first.y};
}

TpxStatus getSize(const Job& job, TpxDataType type, int* bytes, int* init) {
    const Quads& q = job.coeffs;
    return tpxiWarpQuadGetSize(job.src, q.roi, arrayOf(q.src), rectangleOf(job), arrayOf(q.dst), q.transform,
                               type, job.kind, job.border, bytes, init);
}
TpxStatus initialise(const Job& job, TpxDataType type, const double* value, TpxiWarpSpec* spec, Tpx8u* init) {
    const Quads& q = job.coeffs;
    if (job.kind == tpxInterpolationCubic)
        return tpxiWarpQuadCubicInit(job.src, q.roi, arrayOf(q.src), rectangleOf(job), arrayOf(q.dst),
                                     q.transform, type, job.channels, job.B, job.C, job.border, value,
                                     job.smoothEdge, spec, init);
    return (job.kind == tpxInterpolationLinear ? tpxiWarpQuadLinearInit : tpxiWarpQuadNearestInit)(
        job.src, q.roi, arrayOf(q.src), rectangleOf(job), arrayOf(q.dst), q.transform, type, job.channels,
        job.border, value, job.smoothEdge, spec, init);
}

#define NAMES(name, type, map)                                                                         \
    struct name##type : WarpNames<Tpx##type, Job> {                                                    \
        static constexpr TpxDataType kType = tpxDataType##type;                                        \
        static constexpr auto kGetSize = getSize;                                                      \
        static constexpr auto kInitialise = initialise;                                                \
        static constexpr WarpCall<T> kCalls[3][3] = {TPX_WARP_CALLS(tpxiWarp##map##Nearest_##type##_), \
                                                     TPX_WARP_CALLS(tpxiWarp##map##Linear_##type##_),  \
                                                     TPX_WARP_CALLS(tpxiWarp##map##Cubic_##type##_)};  \
    };
NAMES(Names, 8u, Perspective)
NAMES(Names, 16s, Perspective)
NAMES(Names, 32f, Perspective)
NAMES(AffineNames, 32f, Affine)

template <class Names>
using Plan = WarpPlan<Names>;

Corners box(double left, double top, double right, double bottom) {
    return {{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
}
Corners boxOf(TpxiSize size) { return box(0, 0, size.width - 1, size.height - 1); }

// The map that takes the first corners, three or all four, to those of the second: linear equations.
Matrix between(const Corners& from, const Corners& to, int corners) {
    const int n = 2 * corners;
    double a[8][9] = {};
    for (int k = 0; k < corners; k++) {
        const auto [x, y] = from[k];
        for (int i = 0; i < 2; i++) {
            const double v = to[k][i];
            double* const row = a[2 * k + i];
            row[3 * i] = x;
            row[3 * i + 1] = y;
            row[3 * i + 2] = 1;
            row[6] = -x * v;
            row[7] = -y * v;
            row[8] = v;
        }
    }
    for (int c = 0; c < n; c++) {
        int best = c;
        for (int r = c; r < n; r++)
            if (std::fabs(a[r][c]) > std::fabs(a[best][c])) best = r;
        std::swap(a[c], a[best]);
        for (int r = 0; r < n; r++) {
            if (r == c) continue;
            const double by = a[r][c] / a[c][c];
            for (int k = c; k < 9; k++) a[r][k] -= by * a[c][k];
        }
    }
    double m[9] = {0, 0, 0, 0, 0, 0, 0, 0, 1};
    for (int c = 0; c < n; c++) m[c] = a[c][8] / a[c][c];
    return {{{m[0], m[1], m[2]}, {m[3], m[4], m[5]}, {m[6], m[7], m[8]}}};
}

// Nothing is taken from the source outside the destination's quadrangle and rectangle.
struct QuadWarp : PerspectiveWarp {
    Corners quad;
    TpxiPoint first;

    bool isInside(int x, int y) const {
        int left = 0, right = 0;
        for (int k = 0; k < 4; k++) {
            const auto [ax, ay] = quad[k];
            const auto [bx, by] = quad[(k + 1) % 4];
            const double turn = (bx - ax) * (y - ay) - (by - ay) * (x - ax);
            left += turn >= -1e-9;
            right += turn <= 1e-9;
        }
        return x >= first.x && y >= first.y && (left == 4 || right == 4);
    }
    WarpPlace place(int x, int y) const {
        return isInside(x, y) ? PerspectiveWarp::place(x, y) : WarpPlace{1e9, 1e9};
    }
    bool reaches(int x, int y) const { return isInside(x, y) || (border & 15) == tpxBorderConstant; }
};

template <class T>
QuadWarp modelOf(const Job& job) {
    const Quads& q = job.coeffs;
    QuadWarp m{{{{}, job.src, job.kind, job.B, job.C, job.border, {}}, {}}, q.dst, q.first};
    Matrix c = between(q.dst, q.src, q.transform == 0 ? 3 : 4);
    const double atCorner = c[2][0] * q.dst[0][0] + c[2][1] * q.dst[0][1] + c[2][2];
    for (int k = 0; k < 3; k++) {
        const double sign = atCorner < 0 ? -1 : 1;
        for (int i = 0; i < 2; i++) m.toSource[i][k] = sign * c[i][k];
        m.divisor[k] = sign * c[2][k];
    }
    for (int i = 0; i < 4; i++) m.value[i] = warpSample<T>(kValue[i]);
    return m;
}

template <class Names>
class WarpQuad : public testing::Test {
 protected:
    using T = typename Names::T;

    static void expectFits(const Job& job, unsigned turn) {
        tpx::test::expectFits<Names>(job, modelOf<T>(job), turn);
    }
};
using AllTypes = testing::Types<Names8u, Names16s, Names32f>;
TYPED_TEST_SUITE(WarpQuad, AllTypes);

// ---- Samples beside the model ----------------------------------------------------------------------------

TYPED_TEST(WarpQuad, BordersTimesInterpolationsAndLayouts) {
    const Corners sources[] = {boxOf({17, 13}),
                               {{{2.5, 1.5}, {14, 3}, {12, 11.5}, {1, 9}}},
                               {{{-4, -3}, {22, 1}, {19, 18}, {-2, 15}}}};
    const Corners destinations[] = {
        {{{3.21, 2.13}, {30.37, 5.71}, {26.53, 19.91}, {1.17, 15.33}}},  // any
        {{{30.37, 5.71}, {3.21, 2.13}, {1.17, 15.33}, {26.53, 19.91}}},  // the same, mirrored
        {{{4.21, 3.13}, {24.21, 7.13}, {29.21, 20.13}, {9.21, 16.13}}},  // a parallelogram
        {{{12.31, -9.7}, {50.3, 11.37}, {17.77, 30.2}, {-15.9, 12.71}}}, // beyond the destination
    };
    unsigned turn = 0;
    for (TpxBorderType border : borders())
        for (TpxInterpolationType kind : kKinds)
            for (const Corners& dst : destinations) {
                Job job{{17, 13}, {33, 21}, {sources[turn % 3], dst}, 1, kind, border, turn % 2 ? 1 : 3};
                if (turn % 5 == 1) job.coeffs.first = {7, 4};
                job.B = turn % 3 ? 0 : 1 / 3.0;
                job.C = turn % 3 ? 0.75 : 1 / 3.0;
                this->expectFits(job, turn++);
                if (this->HasFatalFailure()) return;
            }
}

// With transform 0 the fourth corner limits what is written, but has no part in the map.
TYPED_TEST(WarpQuad, AffineByThreeCorners) {
    using T = typename TypeParam::T;
    for (TpxBorderType border : {tpxBorderTransparent, tpxBorderConstant}) {
        Job job{{17, 13}, {33, 21}, {}, 1, tpxInterpolationLinear, border, 3};
        job.coeffs.src = boxOf(job.src);
        job.coeffs.dst = {{{3.21, 2.13}, {30.37, 5.71}, {26.53, 19.91}, {1.17, 15.33}}};
        job.coeffs.transform = 0;
        const Plan<TypeParam> plan(job);
        EXPECT_EQ(tpxWarnNotParallelogram, plan.status);
        GuardedImage<T> src(17, 13, 3), dst(33, 21, 3), before(33, 21, 3);
        src.randomise(1);
        dst.randomise(2);
        before.copySamplesFrom(dst);
        EXPECT_EQ(tpxOk, plan.run(src, dst));
        EXPECT_TRUE(
            fits(modelOf<T>(job), dst, before, [&](int x, int y, int c) { return double(src.at(x, y, c)); }));
    }
}

// ---- Exactness -------------------------------------------------------------------------------------------

TYPED_TEST(WarpQuad, EqualQuadranglesCopy) {
    using T = typename TypeParam::T;
    const TpxiSize size = {31, 22};
    for (const Corners& quad : {boxOf(size), box(3, 4, 20, 17), Corners{{{1, 3}, {25, 0}, {29, 12}, {5, 15}}},
                                Corners{{{25, 0}, {1, 3}, {5, 15}, {29, 12}}}})
        for (TpxInterpolationType kind : kKinds)
            for (double by : {0.0, 5.0}) {
                Corners moved = quad;
                for (auto& corner : moved) corner[0] += by;
                const Job job{size, {40, 22}, {quad, moved}, 1, kind};
                const Plan<TypeParam> plan(job);
                GuardedImage<T> src(31, 22, 1), dst(40, 22, 1), before(40, 22, 1);
                src.randomise(1);
                dst.randomise(2);
                before.copySamplesFrom(dst);
                EXPECT_EQ(tpxOk, plan.run(src, dst));
                const QuadWarp model = modelOf<T>(job);
                EXPECT_TRUE(matches(dst, [&](int x, int y, int) {
                    return model.isInside(x, y) ? src.at(x - int(by), y) : before.at(x, y);
                }));
            }
}

// Parallelograms make plans of affine warps, whose calls take them too; other quadrangles do not.
TEST(WarpQuadKinds, ParallelogramsAreAffine) {
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
            for (int transform : {0, 1}) {
                Job job{{17, 13}, {33, 21}, {}, 1, kind, border, 3};
                job.coeffs.src = boxOf(job.src);
                job.coeffs.dst = {{{4, 3}, {24, 7}, {29, 20}, {9, 16}}};
                job.coeffs.transform = transform;
                const Plan<Names32f> plan(job);
                const Plan<AffineNames32f> affine(job);
                EXPECT_EQ(tpxOk, plan.status);
                GuardedImage<Tpx32f> src(17, 13, 3), dst(33, 21, 3), other(33, 21, 3);
                src.randomise(1);
                dst.randomise(2);
                other.copySamplesFrom(dst);
                EXPECT_EQ(tpxOk, plan.run(src, dst));
                EXPECT_EQ(tpxOk, affine.run(src, other));
                EXPECT_TRUE(matches(dst, [&](int x, int y, int c) { return other.at(x, y, c); }));
                job.coeffs.dst[2][0]++;
                job.coeffs.transform = 1;
                const Plan<AffineNames32f> perspective(job);
                EXPECT_EQ(tpxErrContext, perspective.run(src, other));
            }
}

TYPED_TEST(WarpQuad, TilesEqualOneCall) {
    std::mt19937 random(3);
    const Corners destinations[] = {{{{13.21, 8.13}, {80.37, 25.71}, {66.53, 79.91}, {11.17, 65.33}}},
                                    {{{14, 13}, {64, 23}, {79, 80}, {29, 70}}}};
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
            for (int smooth : {0, 1})
                for (const Corners& quad : destinations) {
                    if (smooth && border != tpxBorderTransparent) continue;
                    Job job{{61, 47}, {83, 90}, {}, 1, kind, border, smooth ? 1 : 3, 1 / 3.0, 1 / 3.0, smooth};
                    job.coeffs.src = {{{-5, 3}, {60, -6}, {63, 48}, {2, 40}}};
                    job.coeffs.dst = quad;
                    job.coeffs.first = {17, 12};
                    expectTilesEqualOneCall<TypeParam>(job, random);
                }
}

// ---- Rectangles of the source ----------------------------------------------------------------------------

// A rectangle that runs past the source warns when the plan is made; calls do the part that there is.
TYPED_TEST(WarpQuad, RectanglesAreImages) {
    using T = typename TypeParam::T;
    for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant}) {
        Job job{{17, 13}, {33, 21}, {}, 1, tpxInterpolationLinear, border};
        job.coeffs.src = boxOf(job.src);
        job.coeffs.dst = {{{3.21, 2.13}, {30.37, 5.71}, {26.53, 19.91}, {1.17, 15.33}}};
        job.coeffs.roi = {5, 4, 100, 100};
        const Plan<TypeParam> plan(job);
        EXPECT_EQ(tpxWarnValueAdjusted, plan.status);
        GuardedImage<T> src(17, 13, 1), dst(33, 21, 1), before(33, 21, 1);
        src.randomise(1);
        dst.randomise(2);
        before.copySamplesFrom(dst);
        EXPECT_EQ(tpxOk, plan.run(src, dst));
        job.border = tpxBorderTransparent;
        QuadWarp model = modelOf<T>(job);
        for (int k = 0; k < 3; k++) {
            model.toSource[0][k] -= 5 * model.divisor[k];
            model.toSource[1][k] -= 4 * model.divisor[k];
        }
        model.src = {12, 9};
        EXPECT_TRUE(
            fits(model, dst, before, [&](int x, int y, int c) { return double(src.at(x + 5, y + 4, c)); }));
    }
}

// ---- Smooth edges ----------------------------------------------------------------------------------------

// Of the quadrangle and of the source, whichever cuts more; no row or column before the rectangle's changes.
TYPED_TEST(WarpQuad, SmoothEdgesFadeWithinAPixel) {
    using T = typename TypeParam::T;
    for (TpxInterpolationType kind : kKinds) {
        Job job{{16, 15}, {16, 15}, {box(2.25, 3.5, 20, 9.5), box(2.25, 3.5, 20, 9.5)}, 1, kind};
        job.smoothEdge = 1;
        for (bool limited : {false, true}) {
            if (limited) job.coeffs.first = {2, 3};
            const Plan<TypeParam> plan(job);
            GuardedImage<T> src(16, 15, 1), dst(16, 15, 1);
            src.fill([](int, int, int) { return 100; });
            dst.fill([](int, int, int) { return 20; });
            ASSERT_EQ(tpxOk, plan.run(src, dst));
            EXPECT_TRUE(matches(
                dst,
                [&](int x, int y, int) {
                    const double dx = std::max(2.25 - x, 0.0), dy = std::max({3.5 - y, y - 9.5, 0.0});
                    const bool changes = !limited || (x >= 2 && y >= 3);
                    return warpSample<T>(20 + 80 * changes * std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy));
                }))
                << "kind " << kind;
        }
    }
}

// ---- Quadrangles of any kind -----------------------------------------------------------------------------

// Whatever the corners, a call returns, and stays within its images: they end at unreadable pages.
TYPED_TEST(WarpQuad, AnyCornersStayInside) {
    using T = typename TypeParam::T;
    std::mt19937_64 random(11);
    const auto number = [&](int size) {
        const double unit = double(random() >> 11) * 0x1p-53;
        const int scale = int(random() % 40);
        if (scale == 0) return std::ldexp(unit - 0.5, int(random() % 2000) - 1000);
        if (scale < 4) return double(random() % 9); // corners in line, and on pixels
        return unit * size * 1.5;
    };
    int made = 0;
    for (int n = 0; n < 6000; n++) {
        Job job{{2 + int(random() % 9), 2 + int(random() % 9)},
                {1 + int(random() % 40), 1 + int(random() % 9)},
                {}};
        Quads& q = job.coeffs;
        q.src = boxOf(job.src);
        q.dst = boxOf(job.dst);
        for (Corners* quad : {&q.src, &q.dst}) {
            const TpxiSize size = quad == &q.src ? job.src : job.dst;
            for (int k = 0; k < 4; k++)
                if (random() % 2) (*quad)[k] = {number(size.width), number(size.height)};
            if (random() % 4 == 0) // a parallelogram, but for rounding
                for (int i = 0; i < 2; i++) (*quad)[3][i] = (*quad)[0][i] - (*quad)[1][i] + (*quad)[2][i];
            if (random() % 4 == 0) std::swap((*quad)[1], (*quad)[3]);
            if (random() % 50 == 0) (*quad)[random() % 4][random() % 2] = n % 2 ? NAN : INFINITY;
        }
        q.transform = int(random() % 2);
        q.first = {int(random() % unsigned(job.dst.width)), int(random() % unsigned(job.dst.height))};
        job.kind = kKinds[random() % 3];
        const TpxBorderType words[] = {tpxBorderInMemAll, tpxBorderTransparent, tpxBorderReplicate,
                                       tpxBorderConstant, tpxBorderTransparent | 0x50};
        job.border = words[random() % 5];
        job.channels = n % 2 ? 1 : 3;
        job.smoothEdge = job.border == tpxBorderInMemAll || (job.border & 15) == 7 ? int(random() % 2) : 0;
        const WarpPart part(job.src, unsigned(random()));
        const bool isPart = random() % 4 == 0 && part.part.width > 1 && part.part.height > 1;
        if (isPart) q.roi = part.roi;
        int bytes, init;
        const TpxStatus status = getSize(job, TypeParam::kType, &bytes, &init);
        ASSERT_TRUE(status == tpxOk || status == tpxErrQuad) << status;
        if (status != tpxOk) {
            Tpx8u block[64];
            EXPECT_EQ(tpxErrQuad,
                      initialise(job, TypeParam::kType, kValue, reinterpret_cast<TpxiWarpSpec*>(block), block));
            continue;
        }
        const Plan<TypeParam> plan(job, n % 3);
        if (plan.status == tpxErrWarpTransform) continue;
        made++;
        ASSERT_GE(plan.status, tpxOk);
        const Lie lie = {0, n % 2 ? Edge::End : Edge::Start, 0};
        const WarpSource<T> src = isPart
                                      ? WarpSource<T>(job, part.border(job.border), part.part, lie, unsigned(n))
                                      : WarpSource<T>(job, lie, unsigned(n));
        GuardedImage<T> dst(job.dst.width, job.dst.height, job.channels, lie);
        ASSERT_GE(plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, dst.width(), dst.height()}),
                  tpxOk);
        ASSERT_TRUE(dst.paddingIntact());
    }
    EXPECT_GT(made, 1000);
}

// ---- Sizes and statuses ----------------------------------------------------------------------------------

TEST(WarpQuadStatus, OfWhatMisses) {
    GuardedImage<Tpx8u> src(8, 8, 1), dst(8, 8, 1);
    src.fill([](int, int, int) { return 200; });
    // The quadrangle lies beside the destination, or what is seen in it beside the source.
    const Quads cases[] = {{boxOf({8, 8}), box(10, 0, 20, 7)},
                           {boxOf({8, 8}), {{{1, -30}, {7, -30}, {8, -10}, {0, -12}}}},
                           {box(10, 10, 20, 20), boxOf({8, 8})},
                           {boxOf({8, 8}), box(-3, 0, 3.5, 7), {4, 0}}};
    for (const Quads& quads : cases)
        for (TpxInterpolationType kind : kKinds)
            for (TpxBorderType border : {0xF0, 7, 0x17, 1, 6}) {
                const Job job{{8, 8}, {8, 8}, quads, 1, kind, border};
                const Plan<Names8u> plan(job);
                dst.fill([](int, int, int) { return 9; });
                EXPECT_EQ(border == 1 || border == 6 ? tpxOk : tpxWarnNoQuadOverlap, plan.status);
                // Replicate has the source's edge wherever the quadrangle is.
                const bool isEdge = border == 1 && &quads == &cases[2];
                EXPECT_EQ(isEdge ? tpxOk : tpxWarnNoQuadOverlap, plan.run(src, dst));
                EXPECT_TRUE(matches(dst, [&](int, int, int) { return isEdge        ? 200
                                                                     : border == 6 ? 17
                                                                                   : 9; }))
                    << kind << " " << border;
            }
}

TEST(WarpQuadSizes, HaveRoomForBothTables) {
    Job job{{8, 8}, {30, 40}, {boxOf({8, 8}), box(3, 4.5, 20, 19.5)}};
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant}) {
            int bytes = 0, init = 0;
            job.kind = kind;
            job.border = border;
            EXPECT_EQ(tpxOk, getSize(job, tpxDataType8u, &bytes, &init));
            EXPECT_EQ(328 + 2 * (24 + 8 * 14), bytes);
            EXPECT_EQ(64, init);
        }
}

struct PlanArgs {
    Job job{
        {8, 8},           {9, 9}, {boxOf({8, 8}), {{{0, 1}, {8, 0}, {7, 7}, {1, 8}}}}, 1, tpxInterpolationCubic,
        tpxBorderConstant};
    TpxiRect rectangle{0, 0, 9, 9};
    TpxDataType type = tpxDataType8u;
    bool noSrcQuad = false, noDstQuad = false, noFirst = false, noSecond = false, noValue = false;
};

TEST(WarpQuadChecks, InOrder) {
    using F = Fault<PlanArgs>;
    const auto roi = [](TpxiRect rect) { return [rect](PlanArgs& a) { a.job.coeffs.roi = rect; }; };
    const auto rectangle = [](TpxiRect rect) { return [rect](PlanArgs& a) { a.rectangle = rect; }; };
    const F border{"border", [](PlanArgs& a) { a.job.border = 3; }, tpxErrBorder};
    const F srcQuad{"source quadrangle", [](PlanArgs& a) { a.noSrcQuad = true; }, tpxErrNullPointer};
    const F dstQuad{"destination quadrangle", [](PlanArgs& a) { a.noDstQuad = true; }, tpxErrNullPointer};
    const F first{"first pointer", [](PlanArgs& a) { a.noFirst = true; }, tpxErrNullPointer};
    const F second{"second pointer", [](PlanArgs& a) { a.noSecond = true; }, tpxErrNullPointer};
    const F src{"source", [](PlanArgs& a) { a.job.src.width = 0; }, tpxErrSize};
    const std::vector<F> rectangles = {
        {"rectangle", roi({-1, 0, 4, 4}), tpxErrRect},
        {"rectangle", roi({0, 8, 4, 4}), tpxErrRect},
        {"rectangle", roi({0, 0, 4, 0}), tpxErrRect},
        {"destination", rectangle({-1, 0, 4, 4}), tpxErrRect},
        {"destination", rectangle({0, -1, 4, 4}), tpxErrRect},
        {"destination", rectangle({0, 0, 0, 4}), tpxErrRect},
        {"destination", rectangle({0, 0, 4, 0}), tpxErrRect},
        {"destination", rectangle({1, 0, 0x7fffffff, 4}), tpxErrRect},
        {"destination", rectangle({0, 5, 4, 0x7ffffffb}), tpxErrRect},
    };
    const F type{"type", [](PlanArgs& a) { a.type = tpxDataType64f; }, tpxErrDataType};
    const F kind{"interpolation", [](PlanArgs& a) { a.job.kind = 3; }, tpxErrInterpolation};
    const F negative{"transform", [](PlanArgs& a) { a.job.coeffs.transform = -1; }, tpxErrWarpTransform};
    const F transform{"transform", [](PlanArgs& a) { a.job.coeffs.transform = 2; }, tpxErrWarpTransform};
    const F value{"value", [](PlanArgs& a) { a.noValue = true; }, tpxErrNullPointer};
    const F channels{"channels", [](PlanArgs& a) { a.job.channels = 2; }, tpxErrChannelCount};
    const F smooth{"smooth", [](PlanArgs& a) { a.job.smoothEdge = 1; }, tpxErrUnsupportedMode};
    const F narrow{"source", [](PlanArgs& a) { a.job.src = {1, 8}; }, tpxErrSize};
    const F flat{"source", [](PlanArgs& a) { a.job.src = {8, 1}; }, tpxErrSize};
    const F narrowRoi{"rectangle", roi({0, 0, 1, 4}), tpxErrRect};
    const F flatRoi{"rectangle", roi({0, 0, 4, 1}), tpxErrRect};
    const F bowTie{"corners", [](PlanArgs& a) { std::swap(a.job.coeffs.src[0], a.job.coeffs.src[1]); },
                   tpxErrQuad};
    const F inLine{"corners", [](PlanArgs& a) { a.job.coeffs.dst[1] = {3.5, 4}; }, tpxErrQuad};

    const auto order = [&](const std::vector<std::vector<F>>& parts) {
        std::vector<F> faults;
        for (const auto& part : parts) faults.insert(faults.end(), part.begin(), part.end());
        return faults;
    };
    expectCheckOrder<PlanArgs>(
        {},
        order({{border, srcQuad, dstQuad, first, second, src},
               rectangles,
               {type, kind, negative, transform, narrow, flat, narrowRoi, flatRoi, bowTie, inLine}}),
        [](const PlanArgs& a) {
            const Quads& q = a.job.coeffs;
            int bytes, init;
            return tpxiWarpQuadGetSize(a.job.src, q.roi, a.noSrcQuad ? nullptr : arrayOf(q.src), a.rectangle,
                                       a.noDstQuad ? nullptr : arrayOf(q.dst), q.transform, a.type, a.job.kind,
                                       a.job.border, a.noFirst ? nullptr : &bytes,
                                       a.noSecond ? nullptr : &init);
        });
    for (TpxInterpolationType good : kKinds) {
        PlanArgs args;
        args.job.kind = good;
        std::vector<F> pointers = {border, srcQuad, dstQuad, first};
        if (good == tpxInterpolationCubic) pointers.push_back(second);
        pointers.push_back(src);
        int bytes = 0, init = 0;
        ASSERT_EQ(tpxOk, getSize(args.job, args.type, &bytes, &init));
        std::vector<Tpx8u> block(size_t(bytes) + 8 * 10), work(64);
        const auto call = [&](const PlanArgs& a) {
            const Job& j = a.job;
            const Quads& q = j.coeffs;
            const auto from = a.noSrcQuad ? nullptr : arrayOf(q.src),
                       to = a.noDstQuad ? nullptr : arrayOf(q.dst);
            const auto spec = a.noFirst ? nullptr : reinterpret_cast<TpxiWarpSpec*>(block.data());
            Tpx8u* const buffer = a.noSecond ? nullptr : work.data();
            const double* const v = a.noValue ? nullptr : kValue;
            if (good == tpxInterpolationCubic)
                return tpxiWarpQuadCubicInit(j.src, q.roi, from, a.rectangle, to, q.transform, a.type,
                                             j.channels, 0, 0.5, j.border, v, j.smoothEdge, spec, buffer);
            return (good == tpxInterpolationLinear ? tpxiWarpQuadLinearInit : tpxiWarpQuadNearestInit)(
                j.src, q.roi, from, a.rectangle, to, q.transform, a.type, j.channels, j.border, v, j.smoothEdge,
                spec, buffer);
        };
        expectCheckOrder<PlanArgs>(args,
                                   order({pointers,
                                          rectangles,
                                          {type, negative, transform, value, channels, smooth, narrow, flat,
                                           narrowRoi, flatRoi, bowTie, inLine}}),
                                   call);
        args.noSecond = true;
        EXPECT_EQ(good == tpxInterpolationCubic ? tpxErrNullPointer : tpxOk, call(args));
    }
}

} // namespace
