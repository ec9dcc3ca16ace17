// SPDX-License-Identifier: Apache-2.0
// Perspective warps through their exported names.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/checks.h"
#include "tests/support/warps.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

using Matrix = std::array<std::array<double, 3>, 3>;

// The coefficients, and the rectangle of the source.
struct View {
    Matrix c;
    TpxiRect roi = tpxiWarpGetRectInfinite();
};
using Job = WarpJob<View>;

const double (*arrayOf(const Matrix& c))[3] { return reinterpret_cast<const double(*)[3]>(c.data()); }

TpxStatus getSize(const Job& job, TpxDataType type, int* bytes, int* init) {
    return tpxiWarpPerspectiveGetSize(job.src, job.coeffs.roi, job.dst, type, arrayOf(job.coeffs.c), job.kind,
                                      job.direction, job.border, bytes, init);
}
TpxStatus initialise(const Job& job, TpxDataType type, const double* value, TpxiWarpSpec* spec, Tpx8u* init) {
    const auto c = arrayOf(job.coeffs.c);
    const TpxiRect roi = job.coeffs.roi;
    if (job.kind == tpxInterpolationCubic)
        return tpxiWarpPerspectiveCubicInit(job.src, roi, job.dst, type, c, job.direction, job.channels, job.B,
                                            job.C, job.border, value, job.smoothEdge, spec, init);
    return (job.kind == tpxInterpolationLinear
                ? tpxiWarpPerspectiveLinearInit
                : tpxiWarpPerspectiveNearestInit)(job.src, roi, job.dst, type, c, job.direction, job.channels,
                                                  job.border, value, job.smoothEdge, spec, init);
}

#define NAMES(type)                                                                                        \
    struct Names##type : WarpNames<Tpx##type, Job> {                                                       \
        static constexpr TpxDataType kType = tpxDataType##type;                                            \
        static constexpr auto kGetSize = getSize;                                                          \
        static constexpr auto kInitialise = initialise;                                                    \
        static constexpr WarpCall<T> kCalls[3][3] = {TPX_WARP_CALLS(tpxiWarpPerspectiveNearest_##type##_), \
                                                     TPX_WARP_CALLS(tpxiWarpPerspectiveLinear_##type##_),  \
                                                     TPX_WARP_CALLS(tpxiWarpPerspectiveCubic_##type##_)};  \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32f)

template <class Names>
using Plan = WarpPlan<Names>;

Matrix times(const Matrix& a, const Matrix& b) {
    Matrix m{};
    for (int i = 0; i < 3; i++)
        for (int k = 0; k < 3; k++)
            for (int j = 0; j < 3; j++) m[i][k] += a[i][j] * b[j][k];
    return m;
}
Matrix times(double by, Matrix m) {
    for (auto& row : m)
        for (double& c : row) c *= by;
    return m;
}
Matrix inverse(const Matrix& m) {
    Matrix inv;
    for (int i = 0; i < 3; i++)
        for (int k = 0; k < 3; k++) {
            const auto& a = m[(k + 1) % 3];
            const auto& b = m[(k + 2) % 3];
            inv[i][k] = a[(i + 1) % 3] * b[(i + 2) % 3] - a[(i + 2) % 3] * b[(i + 1) % 3];
        }
    const double det = m[0][0] * inv[0][0] + m[0][1] * inv[1][0] + m[0][2] * inv[2][0];
    return times(1 / det, inv);
}

// From the destination to the source: turned about both middles, and seen at an angle, so that at the right and
// at the bottom edge the divisor is 1 + atRight and 1 + atBottom.
Matrix seen(TpxiSize src, TpxiSize dst, double degrees, double scale, double atRight, double atBottom) {
    const double a = degrees * 3.14159265358979 / 180, c = std::cos(a) / scale, s = std::sin(a) / scale;
    const double x = dst.width / 2.0, y = dst.height / 2.0;
    const Matrix toMiddle{{{1, 0, -x}, {0, 1, -y}, {0, 0, 1}}};
    const Matrix view{{{c, s, 0}, {-s, c, 0}, {atRight / x, atBottom / y, 1}}};
    const Matrix back{{{1, 0, (src.width - 1) / 2.0}, {0, 1, (src.height - 1) / 2.0}, {0, 0, 1}}};
    return times(back, times(view, toMiddle));
}

// Of a job whose c22, or for direction 0 that of the inverse's inverse, is positive.
template <class T>
PerspectiveWarp modelOf(const Job& job) {
    PerspectiveWarp m{{{}, job.src, job.kind, job.B, job.C, job.border, {}}, {}};
    const Matrix c = job.direction ? job.coeffs.c : inverse(job.coeffs.c);
    for (int k = 0; k < 3; k++) {
        for (int i = 0; i < 2; i++) m.toSource[i][k] = c[i][k];
        m.divisor[k] = c[2][k];
    }
    for (int i = 0; i < 4; i++) m.value[i] = warpSample<T>(kValue[i]);
    return m;
}

template <class Names>
class WarpPerspective : public testing::Test {
 protected:
    using T = typename Names::T;

    static void expectFits(const Job& job, const PerspectiveWarp& model, unsigned turn) {
        tpx::test::expectFits<Names>(job, model, turn);
    }
};
using AllTypes = testing::Types<Names8u, Names16u, Names16s, Names32f>;
TYPED_TEST_SUITE(WarpPerspective, AllTypes);

// ---- Samples beside the model ----------------------------------------------------------------------------

// Divisors at the edges of -0.6 have the horizon inside the destination, on any side of it.
TYPED_TEST(WarpPerspective, BordersTimesInterpolationsAndLayouts) {
    unsigned turn = 0;
    const TpxiSize sources[] = {{2, 2}, {3, 2}, {2, 7}, {3, 3}, {5, 4}, {17, 13}, {40, 30}};
    const TpxiSize destinations[] = {{1, 1}, {9, 7}, {33, 21}, {37, 40}};
    const double angles[] = {15, -37, 90, 180, 211, 0, 45}, scales[] = {1, 0.7, 2.3, -1.1, 0.26};
    const double tilts[] = {0, 0.3, -0.4, -1.6, 0.9, -0.02};
    for (TpxBorderType border : borders())
        for (TpxInterpolationType kind : kKinds)
            for (int channels : {1, 3, 4})
                for (int n = 0; n < 4; n++, turn++) {
                    Job job{sources[turn % 7], destinations[turn / 3 % 4], {}};
                    job.coeffs.c = seen(job.src, job.dst, angles[turn % 7], scales[turn / 2 % 5],
                                        tilts[turn % 6], tilts[turn / 5 % 6] / (n + 1));
                    auto& c = job.coeffs.c;
                    for (int k = 0; k < 3; k++) c[0][k] += (0.1 * (turn % 11) - 0.3) * c[2][k];
                    if (c[2][2] <= 0.01) continue;
                    const PerspectiveWarp model = [&] {
                        job.border = border;
                        job.kind = kind;
                        job.channels = channels;
                        job.B = turn % 3 ? 0 : 1 / 3.0;
                        job.C = turn % 3 ? 0.75 : 1 / 3.0;
                        return modelOf<typename TypeParam::T>(job);
                    }();
                    // Multiples, and the inverse where the source's origin is on the same side.
                    if (turn % 3 == 1) c = times(turn % 2 ? -3e-5 : 1e90, c);
                    if (turn % 3 == 2 && inverse(c)[2][2] > 0.01) {
                        c = times(turn % 2 ? -0.7 : 5, inverse(c));
                        job.direction = 0;
                    }
                    this->expectFits(job, model, turn);
                    if (this->HasFatalFailure()) return;
                }
}

// Rows of more than a stretch, and more rows than a band.
TYPED_TEST(WarpPerspective, LongRowsAndManyRows) {
    unsigned turn = 0;
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderConstant, tpxBorderReplicate})
            for (const TpxiSize size : {TpxiSize{533, 3}, {130, 131}})
                for (double angle : {3.0, 71.0}) {
                    Job job{{201, 90}, size, {}, 1, kind, border, turn % 2 ? 1 : 3};
                    job.coeffs.c = seen(job.src, job.dst, angle, 2, -0.5, 0.3);
                    this->expectFits(job, modelOf<typename TypeParam::T>(job), turn++);
                    if (this->HasFatalFailure()) return;
                }
}

// A source that lies as a whole beyond the origin's horizon is seen all the same.
TYPED_TEST(WarpPerspective, SourceBeyondTheOriginsHorizon) {
    for (TpxBorderType border : {tpxBorderTransparent, tpxBorderConstant, tpxBorderReplicate}) {
        Job job{{11, 9}, {60, 20}, {}, 1, tpxInterpolationLinear, border};
        job.coeffs.c = {
            {{1, 0, -45}, {0, 2, -20}, {0.05, 0, -1}}}; // the horizon is at 20, the source from 45 on
        const PerspectiveWarp model = modelOf<typename TypeParam::T>(job);
        this->expectFits(job, model, 5);
        job.coeffs.c = times(-1, job.coeffs.c);
        this->expectFits(job, model, 6);
    }
}

// ---- Exactness -------------------------------------------------------------------------------------------

// With divisors of 1 the bytes are those of an affine warp, whose plan may also be given to these calls.
TYPED_TEST(WarpPerspective, AffineMapsGiveAffineBytes) {
    using T = typename TypeParam::T;
    unsigned turn = 0;
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
            for (int channels : {1, 3, 4})
                for (double degrees : {0.0, 23.0, 90.0}) {
                    Job job{{31, 22}, {40, 37}, {}, 1, kind, border, channels};
                    job.coeffs.c = seen(job.src, job.dst, degrees, 1.25, 0, 0);
                    const Plan<TypeParam> plan(job);
                    GuardedImage<T> src(31, 22, channels), dst(40, 37, channels), affine(40, 37, channels);
                    src.randomise(++turn);
                    dst.randomise(turn);
                    affine.randomise(turn);
                    ASSERT_EQ(tpxOk, plan.run(src, dst));

                    const auto c = arrayOf(job.coeffs.c);
                    int bytes = 0, init = 0;
                    ASSERT_EQ(tpxOk, tpxiWarpAffineGetSize(job.src, job.dst, TypeParam::kType, c, kind, 1,
                                                           border, &bytes, &init));
                    std::vector<Tpx8u> block(bytes), work(init + 64);
                    const auto spec = reinterpret_cast<TpxiWarpSpec*>(block.data());
                    if (kind == tpxInterpolationCubic)
                        tpxiWarpAffineCubicInit(job.src, job.dst, TypeParam::kType, c, 1, channels, job.B,
                                                job.C, border, kValue, 0, spec, work.data());
                    else
                        (kind == tpxInterpolationLinear ? tpxiWarpAffineLinearInit : tpxiWarpAffineNearestInit)(
                            job.src, job.dst, TypeParam::kType, c, 1, channels, border, kValue, 0, spec);
                    ASSERT_EQ(tpxOk, TypeParam::call(TypeParam::kCalls, kind, channels)(
                                         src.data(), src.step(), affine.data(), affine.step(), {0, 0}, {40, 37},
                                         spec, work.data()));
                    EXPECT_TRUE(matches(dst, [&](int x, int y, int ch) { return affine.at(x, y, ch); }))
                        << "kind " << kind << ", border " << border << ", degrees " << degrees;
                }
}

TYPED_TEST(WarpPerspective, TilesEqualOneCall) {
    std::mt19937 random(3);
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
            for (int smooth : {0, 1})
                for (double tilt : {0.4, -1.3}) {
                    if (smooth && border != tpxBorderTransparent) continue;
                    Job job{{61, 47}, {83, 90}, {}, 1, kind, border, smooth ? 1 : 3, 1 / 3.0, 1 / 3.0, smooth};
                    job.coeffs.c = seen(job.src, job.dst, 31, 1.3, tilt, 0.2);
                    expectTilesEqualOneCall<TypeParam>(job, random);
                }
}

// ---- Rectangles of the source ----------------------------------------------------------------------------

// A rectangle is an image of its own, whose surroundings are not read, and leaves pixels outside as they were.
TYPED_TEST(WarpPerspective, RectanglesAreImages) {
    using T = typename TypeParam::T;
    unsigned turn = 0;
    for (const TpxiRect roi : {TpxiRect{7, 5, 13, 9}, {0, 0, 3, 3}, {20, 11, 100, 2147483647}})
        for (TpxInterpolationType kind : kKinds)
            for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant}) {
                Job job{{31, 22}, {64, 60}, {}, 1, kind, border, ++turn % 2 ? 1 : 3};
                job.coeffs = {seen(job.src, job.dst, 20 * turn, 1.3, 0.3, -0.2), roi};
                const TpxiSize part = {std::min(roi.width, 31 - roi.x), std::min(roi.height, 22 - roi.y)};
                PerspectiveWarp model = modelOf<T>(job);
                for (int k = 0; k < 3; k++) {
                    model.toSource[0][k] -= roi.x * model.divisor[k];
                    model.toSource[1][k] -= roi.y * model.divisor[k];
                }
                model.src = part;
                model.border = tpxBorderTransparent;
                const WarpSource<T> src(job, model.border, {roi.x, roi.y, part.width, part.height}, {}, turn);
                GuardedImage<T> dst(64, 60, job.channels), before(64, 60, job.channels);
                dst.randomise(turn + 5);
                before.copySamplesFrom(dst);
                const Plan<TypeParam> plan(job);
                const bool isCut = roi.width > 31 - roi.x;
                EXPECT_EQ(isCut ? tpxWarnValueAdjusted : tpxOk, plan.status);
                EXPECT_EQ(tpxOk, plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, 64, 60}));
                EXPECT_TRUE(fits(model, dst, before,
                                 [&](int x, int y, int c) { return src(x + roi.x, y + roi.y, c); }));
            }
}

// ---- Smooth edges ----------------------------------------------------------------------------------------

// Pixels outside keep the old value by their distance to the edges' lines, in pixels of the destination.
TYPED_TEST(WarpPerspective, SmoothEdgesFadeWithinAPixel) {
    using T = typename TypeParam::T;
    for (TpxInterpolationType kind : kKinds)
        for (int channels : {1, 3, 4}) {
            Job job{{14, 11}, {40, 35}, {}, 1, kind, tpxBorderTransparent, channels};
            job.coeffs.c = seen(job.src, job.dst, 28, 2, 0.5, -0.3);
            job.smoothEdge = 1;
            const Plan<TypeParam> plan(job);
            GuardedImage<T> src(14, 11, channels), dst(40, 35, channels);
            src.fill([](int, int, int) { return 100; });
            dst.fill([](int, int, int) { return 20; });
            ASSERT_EQ(tpxOk, plan.run(src, dst));
            const PerspectiveWarp model = modelOf<T>(job);
            const auto outside = [&](int axis, double limit, double sign, int x, int y) {
                double line[3];
                for (int k = 0; k < 3; k++)
                    line[k] = sign * (model.toSource[axis][k] - limit * model.divisor[k]);
                return -(line[0] * x + line[1] * y + line[2]) / std::hypot(line[0], line[1]);
            };
            EXPECT_TRUE(matches(
                dst,
                [&](int x, int y, int c) {
                    const double dx = std::max({outside(0, 0, 1, x, y), outside(0, 13, -1, x, y), 0.0});
                    const double dy = std::max({outside(1, 0, 1, x, y), outside(1, 10, -1, x, y), 0.0});
                    const double want = 20 + 80 * std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy);
                    const T got = dst.at(x, y, c);
                    return std::fabs(double(got) - want) <= (std::is_integral_v<T> ? 0.5 : 0) + 1e-4 ? got
                                                                                                     : T(want);
                }))
                << "kind " << kind;
        }
}

// ---- Coefficients of any kind ----------------------------------------------------------------------------

// Whatever the map, a call returns, and stays within its images: they end at unreadable pages.
TYPED_TEST(WarpPerspective, AnyCoefficientsStayInside) {
    using T = typename TypeParam::T;
    std::mt19937_64 random(11);
    const auto number = [&] {
        const double unit = double(random() >> 11) * 0x1p-52 - 1;
        const int scale = int(random() % 8);
        return scale < 4 ? unit * 3 : std::ldexp(unit, (int(random() % 2000) - 1000) >> (scale - 4) * 2);
    };
    int made = 0;
    for (int n = 0; n < 3000; n++) {
        Job job{{2 + int(random() % 9), 2 + int(random() % 9)},
                {1 + int(random() % 40), 1 + int(random() % 9)},
                {}};
        auto& c = job.coeffs.c;
        for (auto& row : c)
            for (double& x : row) x = number();
        if (n % 2) { // a horizon inside, or exactly through a pixel
            c[2] = {double(int(random() % 5) - 2), double(int(random() % 3) - 1), double(1 + random() % 6)};
        }
        if (n % 5 == 0) // nearly singular
            for (int k = 0; k < 3; k++) c[1][k] = c[0][k] * (1 + std::ldexp(1, -int(random() % 50)));
        if (n % 50 == 49) c[random() % 3][random() % 3] = n % 4 == 1 ? NAN : -INFINITY;
        job.direction = int(random() % 2);
        job.kind = kKinds[random() % 3];
        const TpxBorderType words[] = {tpxBorderInMemAll, tpxBorderTransparent, tpxBorderReplicate,
                                       tpxBorderConstant, tpxBorderTransparent | 0x50};
        job.border = words[random() % 5];
        job.channels = n % 2 ? 1 : 3;
        job.smoothEdge = job.border == tpxBorderInMemAll || (job.border & 15) == 7 ? int(random() % 2) : 0;
        const WarpPart part(job.src, unsigned(random()));
        const bool isPart = random() % 4 == 0;
        if (isPart) job.coeffs.roi = part.roi;
        int bytes, init;
        const TpxStatus status = getSize(job, TypeParam::kType, &bytes, &init);
        ASSERT_TRUE(status == tpxOk || status == tpxErrCoefficient) << status;
        if (status != tpxOk) {
            Tpx8u block[64];
            EXPECT_EQ(tpxErrCoefficient,
                      initialise(job, TypeParam::kType, kValue, reinterpret_cast<TpxiWarpSpec*>(block), block));
            continue;
        }
        made++;
        const Plan<TypeParam> plan(job, n % 3);
        ASSERT_GE(plan.status, tpxOk);
        const Lie lie = {0, n % 2 ? Edge::End : Edge::Start, 0};
        const WarpSource<T> src = isPart
                                      ? WarpSource<T>(job, part.border(job.border), part.part, lie, unsigned(n))
                                      : WarpSource<T>(job, lie, unsigned(n));
        GuardedImage<T> dst(job.dst.width, job.dst.height, job.channels, lie);
        ASSERT_GE(plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, dst.width(), dst.height()}),
                  tpxOk);
    }
    EXPECT_GT(made, 1000);
}

// ---- Sizes and statuses ----------------------------------------------------------------------------------

TEST(WarpPerspectiveSizes, AreThoseOfTheContract) {
    // The source's rows land at y = 2 v / (1 + 0.1 v): 0, and 14 / 1.7 for the last one.
    Job job{{10, 8}, {20, 16}, {{{{2, 0, 0}, {0, 2, 0}, {0, 0.1, 1}}}}, 0};
    int bytes = 0, init = 0;
    EXPECT_EQ(tpxOk, getSize(job, tpxDataType8u, &bytes, &init));
    EXPECT_EQ(328 + 24 + 8 * 8, bytes);
    EXPECT_EQ(64, init);
    job.border = tpxBorderConstant; // from -1 to 8: -2.2 to 8.9
    EXPECT_EQ(tpxOk, getSize(job, tpxDataType8u, &bytes, &init));
    EXPECT_EQ(2 * (24 + 8 * 8) + 328, bytes);

    const Plan<Names8u> plan(job);
    EXPECT_EQ(tpxOk, tpxiWarpGetBufferSize(plan.spec(), {20, 16}, &bytes));
    EXPECT_EQ((128 * 20 + 496) / 512 * 512 + 192, bytes);
    EXPECT_EQ(tpxWarnValueAdjusted, tpxiWarpGetBufferSize(plan.spec(), {21, 16}, &bytes));
    EXPECT_EQ((128 * 20 + 496) / 512 * 512 + 192, bytes);
    // Affine calls refuse plans of perspective maps.
    Tpx8u src[80] = {}, dst[320], work[8192];
    EXPECT_EQ(tpxErrContext,
              tpxiWarpAffineLinear_8u_C1R(src, 10, dst, 20, {0, 0}, {20, 16}, plan.spec(), work));
}

TEST(WarpPerspectiveStatus, OfWhatMissesTheSource) {
    GuardedImage<Tpx8u> src(8, 8, 1), dst(8, 8, 1);
    src.fill([](int, int, int) { return 200; });
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {0xF0, 7, 0x17, 1, 6}) {
            const Job job{{8, 8}, {8, 8}, {{{{1, 0.1, 100}, {0, 1, 0}, {0.001, 0, 1}}}}, 0, kind, border};
            const Plan<Names8u> plan(job);
            dst.fill([](int, int, int) { return 9; });
            const bool leaves = border == 0xF0 || (border & 15) == 7;
            EXPECT_EQ(leaves ? tpxWarnNoQuadOverlap : tpxOk, plan.status);
            EXPECT_EQ(border == 1 ? tpxOk : tpxWarnNoQuadOverlap, plan.run(src, dst));
            EXPECT_TRUE(matches(dst, [&](int, int, int) { return leaves        ? 9
                                                                 : border == 1 ? 200
                                                                               : 17; }))
                << kind << " " << border;
        }
}

// A tile beyond the horizon gets nothing, but from a constant border.
TEST(WarpPerspectiveStatus, OfTilesBeyondTheHorizon) {
    GuardedImage<Tpx8u> dst(8, 8, 1);
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {0xF0, 7, 1, 6}) {
            // The horizon is at x = 16.
            const Job job{{8, 8}, {40, 8}, {{{{1, 0, 0}, {0, 1, 0}, {-1 / 16.0, 0, 1}}}}, 1, kind, border};
            const WarpSource<Tpx8u> src(job, {}, 1);
            const Plan<Names8u> plan(job);
            EXPECT_EQ(tpxOk, plan.status);
            dst.fill([](int, int, int) { return 9; });
            EXPECT_EQ(tpxWarnNoQuadOverlap,
                      plan.run(src.data(), src.step(), dst.data(), dst.step(), {16, 0, 8, 8}));
            EXPECT_TRUE(matches(dst, [&](int, int, int) { return border == 6 ? 17 : 9; }))
                << kind << " " << border;
            EXPECT_EQ(tpxOk, plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, 8, 8}));
        }
}

TEST(WarpPerspectiveStatus, SingularAndUnusableCoefficients) {
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = 1 / 0.0;
    for (const Matrix& c :
         {Matrix{{{0, 0, 1}, {1, 2, 3}, {0, 0, 1}}}, Matrix{{{1, 2, 0}, {2, 4, 0}, {1, 0, 1}}},
          Matrix{{{1, 0, 0}, {0, 1, 0}, {0.5, 0, 0}}}, Matrix{{{1, 0, 1}, {0, 1, 0}, {1, 0, 1}}},
          Matrix{{{1, 0, nan}, {0, 1, 0}, {0, 0, 1}}}, Matrix{{{1, 0, 0}, {0, 1, 0}, {inf, 0, 1}}},
          Matrix{{{1, 0, 0}, {0, 1, 0}, {0, 0, nan}}}})
        for (int direction : {0, 1}) {
            const Job job{{8, 8}, {8, 8}, {c}, direction};
            int bytes, init;
            Tpx8u block[64];
            EXPECT_EQ(tpxErrCoefficient, getSize(job, tpxDataType8u, &bytes, &init));
            EXPECT_EQ(tpxErrCoefficient,
                      initialise(job, tpxDataType8u, nullptr, reinterpret_cast<TpxiWarpSpec*>(block), block));
        }
    // A singular affine part is made up for by the divisor.
    int bytes, init;
    EXPECT_EQ(tpxOk, getSize({{8, 8}, {8, 8}, {{{{1, 0, 0}, {0, 0, 1}, {0, 1, 1}}}}, 1}, tpxDataType8u, &bytes,
                             &init));
}

struct PlanArgs {
    Job job{{8, 8},           {9, 9}, {{{{1, 0.5, 0}, {0, 1, 0}, {0, 0, 1}}}}, 1, tpxInterpolationCubic,
            tpxBorderConstant};
    TpxDataType type = tpxDataType8u;
    bool noCoeffs = false, noFirst = false, noSecond = false, noValue = false;
};

TEST(WarpPerspectiveChecks, InOrder) {
    using F = Fault<PlanArgs>;
    const auto roi = [](TpxiRect rect) { return [rect](PlanArgs& a) { a.job.coeffs.roi = rect; }; };
    const F border{"border", [](PlanArgs& a) { a.job.border = 3; }, tpxErrBorder};
    const F coeffs{"coefficients", [](PlanArgs& a) { a.noCoeffs = true; }, tpxErrNullPointer};
    const F first{"first pointer", [](PlanArgs& a) { a.noFirst = true; }, tpxErrNullPointer};
    const F second{"second pointer", [](PlanArgs& a) { a.noSecond = true; }, tpxErrNullPointer};
    const F src{"source", [](PlanArgs& a) { a.job.src.width = 0; }, tpxErrSize};
    const F dst{"destination", [](PlanArgs& a) { a.job.dst.height = -1; }, tpxErrSize};
    const F left{"rectangle", roi({-1, 0, 4, 4}), tpxErrRect};
    const F top{"rectangle", roi({0, -1, 4, 4}), tpxErrRect};
    const F right{"rectangle", roi({8, 0, 4, 4}), tpxErrRect};
    const F below{"rectangle", roi({0, 8, 4, 4}), tpxErrRect};
    const F empty{"rectangle", roi({0, 0, 4, 0}), tpxErrRect};
    const F type{"type", [](PlanArgs& a) { a.type = tpxDataType64f; }, tpxErrDataType};
    const F kind{"interpolation", [](PlanArgs& a) { a.job.kind = 3; }, tpxErrInterpolation};
    const F direction{"direction", [](PlanArgs& a) { a.job.direction = 2; }, tpxErrWarpDirection};
    const F narrow{"source", [](PlanArgs& a) { a.job.src = {1, 8}; }, tpxErrSize};
    const F flat{"source", [](PlanArgs& a) { a.job.src = {8, 1}; }, tpxErrSize};
    const F singular{"matrix", [](PlanArgs& a) { a.job.coeffs.c[2][2] = 0; }, tpxErrCoefficient};
    expectCheckOrder<PlanArgs>({},
                               {border, coeffs, first, second, src, dst, left, top, right, below, empty, type,
                                kind, direction, narrow, flat, singular},
                               [](const PlanArgs& a) {
                                   int bytes, init;
                                   return tpxiWarpPerspectiveGetSize(
                                       a.job.src, a.job.coeffs.roi, a.job.dst, a.type,
                                       a.noCoeffs ? nullptr : arrayOf(a.job.coeffs.c), a.job.kind,
                                       a.job.direction, a.job.border, a.noFirst ? nullptr : &bytes,
                                       a.noSecond ? nullptr : &init);
                               });

    const F value{"value", [](PlanArgs& a) { a.noValue = true; }, tpxErrNullPointer};
    const F channels{"channels", [](PlanArgs& a) { a.job.channels = 2; }, tpxErrChannelCount};
    const F smooth{"smooth", [](PlanArgs& a) { a.job.smoothEdge = 1; }, tpxErrUnsupportedMode};
    for (TpxInterpolationType good : kKinds) {
        PlanArgs args;
        args.job.kind = good;
        int bytes = 0, init = 0;
        ASSERT_EQ(tpxOk, getSize(args.job, args.type, &bytes, &init));
        std::vector<Tpx8u> block(size_t(bytes) + 8 * 10), work(64);
        std::vector<F> faults = {border, coeffs, first,     src,   dst,      left,   top,    right, below,
                                 empty,  type,   direction, value, channels, smooth, narrow, flat,  singular};
        if (good == tpxInterpolationCubic) faults.insert(faults.begin() + 3, second);
        expectCheckOrder(args, faults, [&](const PlanArgs& a) {
            const auto c = a.noCoeffs ? nullptr : arrayOf(a.job.coeffs.c);
            const auto spec = a.noFirst ? nullptr : reinterpret_cast<TpxiWarpSpec*>(block.data());
            Tpx8u* const init = a.noSecond ? nullptr : work.data();
            const double* const v = a.noValue ? nullptr : kValue;
            const Job& j = a.job;
            const TpxiRect r = j.coeffs.roi;
            if (good == tpxInterpolationCubic)
                return tpxiWarpPerspectiveCubicInit(j.src, r, j.dst, a.type, c, j.direction, j.channels, 0, 0.5,
                                                    j.border, v, j.smoothEdge, spec, init);
            return (good == tpxInterpolationLinear ? tpxiWarpPerspectiveLinearInit
                                                   : tpxiWarpPerspectiveNearestInit)(
                j.src, r, j.dst, a.type, c, j.direction, j.channels, j.border, v, j.smoothEdge, spec, init);
        });
        // The other interpolations have no use for an initialisation buffer.
        Job transparent = args.job;
        transparent.border = tpxBorderTransparent;
        transparent.smoothEdge = 1;
        const auto spec = reinterpret_cast<TpxiWarpSpec*>(block.data());
        EXPECT_EQ(good == tpxInterpolationCubic ? tpxErrNullPointer : tpxOk,
                  initialise(transparent, args.type, nullptr, spec, nullptr));
    }
}

TYPED_TEST(WarpPerspective, ProcessingChecksInOrder) {
    using Other = std::conditional_t<std::is_same_v<TypeParam, Names16u>, Names16s, Names16u>;
    const Job job{{8, 8}, {9, 9}, {{{{1, 0.5, 0}, {0, 1, 0}, {0.01, 0, 1}}}}};
    Job miss = job;
    miss.coeffs.c[0][2] = 500;
    expectProcessingChecks<TypeParam, Other>(job, miss);
}

} // namespace
