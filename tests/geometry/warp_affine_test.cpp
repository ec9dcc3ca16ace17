// SPDX-License-Identifier: Apache-2.0
// Affine warps through their exported names.
#include <gtest/gtest.h>

#include <array>
#include <cfenv>

#include "tests/support/checks.h"
#include "tests/support/warps.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

using Coeffs = std::array<std::array<double, 3>, 2>;
// ---- The functions of each type --------------------------------------------------------------------------

using Job = WarpJob<Coeffs>;

const double (*arrayOf(const Coeffs& c))[3] { return reinterpret_cast<const double(*)[3]>(c.data()); }

TpxStatus getSize(const Job& job, TpxDataType type, int* bytes, int* init) {
    return tpxiWarpAffineGetSize(job.src, job.dst, type, arrayOf(job.coeffs), job.kind, job.direction,
                                 job.border, bytes, init);
}
TpxStatus initialise(const Job& job, TpxDataType type, const double* value, TpxiWarpSpec* spec, Tpx8u* init) {
    const auto c = arrayOf(job.coeffs);
    if (job.kind == tpxInterpolationCubic)
        return tpxiWarpAffineCubicInit(job.src, job.dst, type, c, job.direction, job.channels, job.B, job.C,
                                       job.border, value, job.smoothEdge, spec, init);
    return (job.kind == tpxInterpolationLinear ? tpxiWarpAffineLinearInit : tpxiWarpAffineNearestInit)(
        job.src, job.dst, type, c, job.direction, job.channels, job.border, value, job.smoothEdge, spec);
}

#define NAMES(type)                                                                                   \
    struct Names##type : WarpNames<Tpx##type, Job> {                                                  \
        static constexpr TpxDataType kType = tpxDataType##type;                                       \
        static constexpr auto kGetSize = getSize;                                                     \
        static constexpr auto kInitialise = initialise;                                               \
        static constexpr WarpCall<T> kCalls[3][3] = {TPX_WARP_CALLS(tpxiWarpAffineNearest_##type##_), \
                                                     TPX_WARP_CALLS(tpxiWarpAffineLinear_##type##_),  \
                                                     TPX_WARP_CALLS(tpxiWarpAffineCubic_##type##_)};  \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32f)
NAMES(64f)

template <class Names>
using Plan = WarpPlan<Names>;

template <class T>
AffineWarp modelOf(const Job& job) {
    AffineWarp m{{}, job.src, job.kind, job.B, job.C, job.border, {}};
    const auto& c = job.coeffs;
    const double det = c[0][0] * c[1][1] - c[0][1] * c[1][0];
    const double inverse[2][3] = {
        {c[1][1] / det, -c[0][1] / det, (c[0][1] * c[1][2] - c[1][1] * c[0][2]) / det},
        {-c[1][0] / det, c[0][0] / det, (c[1][0] * c[0][2] - c[0][0] * c[1][2]) / det}};
    for (int i = 0; i < 2; i++)
        for (int k = 0; k < 3; k++) m.toSource[i][k] = job.direction ? c[i][k] : inverse[i][k];
    for (int i = 0; i < 4; i++) m.value[i] = warpSample<T>(kValue[i]);
    return m;
}

// About the middles of both images.
Coeffs turned(TpxiSize from, TpxiSize to, double degrees, double scale, double shear = 0) {
    const double a = degrees * 3.14159265358979 / 180, c = std::cos(a) * scale, s = std::sin(a) * scale;
    const double m[2][2] = {{c, s + shear}, {-s, c}};
    const double x = (from.width - 1) / 2.0, y = (from.height - 1) / 2.0;
    return {{{m[0][0], m[0][1], (to.width - 1) / 2.0 - m[0][0] * x - m[0][1] * y},
             {m[1][0], m[1][1], (to.height - 1) / 2.0 - m[1][0] * x - m[1][1] * y}}};
}

template <class Names>
class WarpAffine : public testing::Test {
 protected:
    using T = typename Names::T;

    static void expectFits(const Job& job, unsigned turn) {
        tpx::test::expectFits<Names>(job, modelOf<T>(job), turn);
    }
};
using AllTypes = testing::Types<Names8u, Names16u, Names16s, Names32f, Names64f>;
TYPED_TEST_SUITE(WarpAffine, AllTypes);

// ---- Samples beside the model ----------------------------------------------------------------------------

TYPED_TEST(WarpAffine, BordersTimesInterpolationsAndLayouts) {
    unsigned turn = 0;
    const TpxiSize sources[] = {{2, 2}, {3, 2}, {2, 7}, {3, 3}, {5, 4}, {17, 13}, {40, 30}};
    const TpxiSize destinations[] = {{1, 1}, {9, 7}, {33, 21}, {37, 40}};
    const double angles[] = {15, -37, 90, 180, 211, 0, 45}, scales[] = {1, 0.7, 2.3, -1.1, 0.26};
    for (TpxBorderType border : borders())
        for (TpxInterpolationType kind : kKinds)
            for (int channels : {1, 3, 4})
                for (int n = 0; n < 4; n++, turn++) {
                    Job job{sources[turn % 7], destinations[turn / 3 % 4], {}};
                    job.direction = 0;
                    job.coeffs =
                        turned(job.src, job.dst, angles[turn % 7], scales[turn / 2 % 5], turn % 4 ? 0 : 0.4);
                    job.coeffs[0][2] += 0.1 * (turn % 11) - 0.3;
                    if (turn % 2) { // the same the other way round
                        const AffineWarp model = modelOf<typename TypeParam::T>(job);
                        for (int i = 0; i < 2; i++)
                            for (int k = 0; k < 3; k++) job.coeffs[i][k] = model.toSource[i][k];
                        job.direction = 1;
                    }
                    job.border = border;
                    job.kind = kind;
                    job.channels = channels;
                    job.B = turn % 3 ? 0 : 1 / 3.0;
                    job.C = turn % 3 ? 0.75 : 1 / 3.0;
                    this->expectFits(job, turn);
                    if (this->HasFatalFailure()) return;
                }
}

// Rows of more than a stretch, and more rows than a band.
TYPED_TEST(WarpAffine, LongRowsAndManyRows) {
    unsigned turn = 0;
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderConstant, tpxBorderReplicate})
            for (const TpxiSize size : {TpxiSize{533, 3}, {130, 131}})
                for (double angle : {3.0, 71.0}) {
                    Job job{{201, 90}, size, {}, 0, kind, border, turn % 2 ? 1 : 3};
                    job.coeffs = turned(job.src, job.dst, angle, 2);
                    this->expectFits(job, turn++);
                    if (this->HasFatalFailure()) return;
                }
}

// A whole shift is no copy where the kernel blurs.
TYPED_TEST(WarpAffine, WholeShiftsOfBlurringKernels) {
    unsigned turn = 0;
    for (TpxBorderType border : borders()) {
        Job job{{9, 8}, {14, 13},        {{{1, 0, 2}, {0, 1, -3}}}, 0, tpxInterpolationCubic,
                border, turn % 2 ? 1 : 4};
        job.B = 1;
        job.C = 0;
        this->expectFits(job, turn++);
        if (this->HasFatalFailure()) return;
    }
}

// ---- Exact maps ------------------------------------------------------------------------------------------

// Maps that take whole positions to whole ones: each sample is one of the source's, in every interpolation
// whose kernel passes through the samples.
TYPED_TEST(WarpAffine, WholePositionsAreExact) {
    using T = typename TypeParam::T;
    const double maps[][2][2] = {{{1, 0}, {0, 1}},  {{0, 1}, {-1, 0}}, {{-1, 0}, {0, -1}}, {{0, -1}, {1, 0}},
                                 {{-1, 0}, {0, 1}}, {{1, 1}, {0, 1}},  {{2, 0}, {0, 1}},   {{0, 3}, {2, 1}}};
    unsigned turn = 0;
    for (const auto& m : maps)
        for (TpxInterpolationType kind : kKinds)
            for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
                for (int channels : {1, 3, 4})
                    for (double shift : {0.0, 7.0, -3.0, 16.0}) {
                        Job job{{19, 17}, {23, 20}, {}, 1, kind, border, channels};
                        job.coeffs = {{{m[0][0], m[0][1], shift}, {m[1][0], m[1][1], 11 - shift}}};
                        const Plan<TypeParam> plan(job, int(turn % 4));
                        GuardedImage<T> src(19, 17, channels), dst(23, 20, channels), before(23, 20, channels);
                        src.randomise(turn);
                        dst.randomise(++turn);
                        before.copySamplesFrom(dst);
                        plan.run(src, dst);
                        const AffineWarp model = modelOf<T>(job);
                        ASSERT_TRUE(matches(dst,
                                            [&](int x, int y, int c) {
                                                const WarpPlace at = model.place(x, y);
                                                if (!model.isMapped(at)) {
                                                    if (border == tpxBorderTransparent)
                                                        return before.at(x, y, c);
                                                    if (border == tpxBorderConstant) return T(model.value[c]);
                                                }
                                                return src.at(int(std::clamp(at.x, 0.0, 18.0)),
                                                              int(std::clamp(at.y, 0.0, 16.0)), c);
                                            }))
                            << "kind " << kind << ", border " << border << ", shift " << shift;
                    }
}

// Of axis-aligned maps by powers of two, fractions are exact: linear gives the documented blends to the bit.
TYPED_TEST(WarpAffine, DyadicLinearIsTheDocumentedBlend) {
    using T = typename TypeParam::T;
    using Real = std::conditional_t<sizeof(T) == 8, double, float>;
    for (double scale : {0.5, 0.25, 0.125, 2.0})
        for (int channels : {1, 3, 4}) {
            Job job{{23, 18}, {70, 60}, {{{scale, 0, 0.375}, {0, -scale, 16.25}}}};
            job.channels = channels;
            const Plan<TypeParam> plan(job);
            GuardedImage<T> src(23, 18, channels), dst(70, 60, channels);
            src.randomise(5);
            dst.fill([](int, int, int) { return 0; });
            ASSERT_EQ(tpxOk, plan.run(src, dst));
            const AffineWarp model = modelOf<T>(job);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int c) -> T {
                const WarpPlace at = model.place(x, y);
                if (!model.isMapped(at)) return 0;
                const int sx = std::min(int(at.x), 21), sy = std::min(int(at.y), 16);
                const Real fx = Real(at.x - sx), fy = Real(at.y - sy);
                const auto blend = [](Real a, Real b, Real f) { return f == 1 ? b : a + (b - a) * f; };
                const auto down = [&](int i) { return blend(src.at(i, sy, c), src.at(i, sy + 1, c), fy); };
                const Real v = blend(down(sx), down(sx + 1), fx);
                return std::is_integral_v<T> ? warpSample<T>(v) : T(v);
            })) << scale;
        }
}

// Linear and cubic keep planes, so that a map and then its inverse restore them: floats within rounding,
// integers within one, half of it from each warp.
TYPED_TEST(WarpAffine, InversePairsRestorePlanes) {
    using T = typename TypeParam::T;
    const double bound = std::is_integral_v<T> ? 1 : sizeof(T) == 4 ? 1e-4 : 1e-11;
    const TpxiSize flat{60, 50}, slanted{90, 85};
    GuardedImage<T> src(flat.width, flat.height, 1), between(slanted.width, slanted.height, 1),
        back(flat.width, flat.height, 1);
    src.fill([](int x, int y, int) { return 2 * x + 2 * y; });
    for (TpxInterpolationType kind : {tpxInterpolationLinear, tpxInterpolationCubic}) {
        Job there{flat, slanted, turned(flat, slanted, 15, 1.1), 0, kind, tpxBorderReplicate};
        const Job again{slanted, flat, there.coeffs, 1, kind, tpxBorderReplicate};
        ASSERT_EQ(tpxOk, Plan<TypeParam>(there).run(src, between));
        ASSERT_EQ(tpxOk, Plan<TypeParam>(again).run(between, back));
        for (int y = 4; y < flat.height - 4; y++)
            for (int x = 4; x < flat.width - 4; x++)
                ASSERT_NEAR(double(back.at(x, y)), 2 * x + 2 * y, bound) << x << ", " << y << ", kind " << kind;
    }
}

// ---- Tiles -----------------------------------------------------------------------------------------------

TYPED_TEST(WarpAffine, TilesEqualOneCall) {
    std::mt19937 random(3);
    for (TpxInterpolationType kind : kKinds)
        for (TpxBorderType border : {tpxBorderTransparent, tpxBorderReplicate, tpxBorderConstant})
            for (int smooth : {0, 1}) {
                if (smooth && border != tpxBorderTransparent) continue;
                Job job{{61, 47}, {83, 90}, {}, 0, kind, border, smooth ? 1 : 3, 1 / 3.0, 1 / 3.0, smooth};
                job.coeffs = turned(job.src, job.dst, 31, 1.3);
                expectTilesEqualOneCall<TypeParam>(job, random);
            }
}

// ---- Coefficients of any kind ----------------------------------------------------------------------------

// Whatever the map, a call returns, and stays within its images: they end at unreadable pages.
TYPED_TEST(WarpAffine, AnyCoefficientsStayInside) {
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
        for (auto& row : job.coeffs)
            for (double& c : row) c = number();
        if (n % 3 == 0) { // nearly singular
            job.coeffs[1][0] = job.coeffs[0][0] * (1 + std::ldexp(1, -int(random() % 40)));
            job.coeffs[1][1] = job.coeffs[0][1];
        }
        job.direction = n & 1;
        job.kind = kKinds[random() % 3];
        const TpxBorderType words[] = {tpxBorderInMemAll, tpxBorderTransparent, tpxBorderReplicate,
                                       tpxBorderConstant, tpxBorderTransparent | 0x50};
        job.border = words[random() % 5];
        job.channels = n % 2 ? 1 : 3;
        job.smoothEdge = job.border == tpxBorderInMemAll || (job.border & 15) == 7 ? int(random() % 2) : 0;
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
        const WarpSource<T> src(job, {0, n % 2 ? Edge::End : Edge::Start, 0}, unsigned(n));
        GuardedImage<T> dst(job.dst.width, job.dst.height, job.channels);
        ASSERT_GE(plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, dst.width(), dst.height()}),
                  tpxOk);
    }
    EXPECT_GT(made, 1000);
}

// ---- Smooth edges ----------------------------------------------------------------------------------------

// Around a source moved by parts of a pixel, the old value keeps the share by which a pixel is outside; around
// a turned one, a pixel further out never keeps less, and whole pixels away nothing changes.
TYPED_TEST(WarpAffine, SmoothEdgesFadeWithinAPixel) {
    using T = typename TypeParam::T;
    for (TpxInterpolationType kind : kKinds)
        for (int channels : {1, 3, 4}) {
            Job job{{6, 5}, {12, 11}, {{{1, 0, -2.25}, {0, 1, -3.5}}}, 1, kind, tpxBorderTransparent, channels};
            job.smoothEdge = 1;
            const Plan<TypeParam> plan(job);
            GuardedImage<T> src(6, 5, channels), dst(12, 11, channels);
            src.fill([](int, int, int) { return 100; });
            dst.fill([](int, int, int) { return 20; });
            ASSERT_EQ(tpxOk, plan.run(src, dst));
            EXPECT_TRUE(matches(dst,
                                [](int x, int y, int) {
                                    const double dx = std::max({2.25 - x, x - 7.25, 0.0}),
                                                 dy = std::max({3.5 - y, y - 7.5, 0.0});
                                    const double share = std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy);
                                    return warpSample<T>(20 + 80 * share);
                                }))
                << "kind " << kind;

            job.coeffs = turned(job.src, job.dst, 28, 1);
            job.direction = 0;
            const Plan<TypeParam> turnedPlan(job);
            dst.fill([](int, int, int) { return 20; });
            ASSERT_EQ(tpxOk, turnedPlan.run(src, dst));
            const AffineWarp model = modelOf<T>(job);
            EXPECT_TRUE(matches(
                dst,
                [&](int x, int y, int c) {
                    const WarpPlace at = model.place(x, y); // a rotation: distances are the destination's
                    const double dx = std::max({-at.x, at.x - 5, 0.0}), dy = std::max({-at.y, at.y - 4, 0.0});
                    const double share = std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy), want = 20 + 80 * share;
                    const T got = dst.at(x, y, c);
                    return std::fabs(double(got) - want) <= (std::is_integral_v<T> ? 0.5 : 0) + 1e-4 ? got
                                                                                                     : T(want);
                }))
                << "kind " << kind;
        }
}

// Where the old value is the new one, nothing changes to the last bit of the type.
TYPED_TEST(WarpAffine, SmoothEdgesKeepTheTypesPrecision) {
    using T = typename TypeParam::T;
    Job job{{6, 5}, {12, 11}, {{{1, 0, -2.25}, {0, 1, -3.5}}}, 1, tpxInterpolationNearest, tpxBorderTransparent,
            3};
    job.smoothEdge = 1;
    const Plan<TypeParam> plan(job);
    GuardedImage<T> src(6, 5, 3), dst(12, 11, 3);
    const auto value = [](int, int, int) { return T(100 / 3.0); };
    src.fill(value);
    dst.fill(value);
    ASSERT_EQ(tpxOk, plan.run(src, dst));
    EXPECT_TRUE(matches(dst, value));
}

// ---- Sizes -----------------------------------------------------------------------------------------------

struct SizeCase {
    const char* what;
    Job job;
    int bytes;
};

TEST(WarpAffineSizes, AreThoseOfTheContract) {
    const TpxiSize s = {10, 8}, d = {20, 16};
    const auto of = [&](Coeffs c, TpxInterpolationType kind, TpxBorderType border) {
        return Job{s, d, c, 0, kind, border};
    };
    const Coeffs half{{{1, 0, 0.5}, {0, 1, 0.5}}}, whole{{{1, 0, 3}, {0, 1, 2}}}, away{{{1, 0, 50}, {0, 1, 0}}},
        low{{{1, 0, 0.5}, {0, 1, 10.5}}};
    const auto N = tpxInterpolationNearest, L = tpxInterpolationLinear, C = tpxInterpolationCubic;
    const auto T = tpxBorderTransparent, R = tpxBorderReplicate, K = tpxBorderConstant;
    // Rows: 0.5 to 7.5 have 1 to 7 whole ones, 2 to 9 have 2 to 9, -0.5 to 8.5 have 0 to 8.
    const SizeCase cases[] = {
        {"one table", of(half, N, T), 328 + 24 + 8 * 6},
        {"one table", of(half, L, R), 328 + 24 + 8 * 6},
        {"two tables", of(half, L, K), 328 + 24 + 8 * 6 + 24 + 8 * 8},
        {"one table, rows 11 to the last one", of(low, L, T), 328 + 24 + 8 * 4},
        {"a shift", of(whole, L, T), 392 + 24 + 8 * 7},
        {"a shift, two tables", of(whole, N, K), 392 + 24 + 8 * 7 + 24 + 8 * 9},
        {"a miss", of(away, L, T), 392 + 16},
        {"cubic, inner rows 1.5 to 6.5", of(half, C, T), 328 + 24 + 8 * 4},
        {"cubic in memory, outer rows -1.5 to 9.5", of(half, C, tpxBorderInMemAll),
         328 + 24 + 8 * 6 + 24 + 8 * 9},
        {"cubic, top in memory", of(half, C, T | tpxBorderInMemTop), 328 + 24 + 8 * 5 + 24 + 8 * 9},
        {"cubic, replicate", of(half, C, R), 328 + 24 + 8 * 4 + 24 + 8 * 9},
    };
    for (const SizeCase& c : cases) {
        int bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, getSize(c.job, tpxDataType8u, &bytes, &init)) << c.what;
        EXPECT_EQ(c.bytes, bytes) << c.what;
        EXPECT_EQ(64, init) << c.what;
    }
    // A quadrangle that is cut at the side: rows where it lies beside the destination do not count.
    Job cut{{11, 11}, {100, 100}, {{{1, -1, 5}, {1, 1, 0}}}, 0, tpxInterpolationLinear, T};
    int bytes = 0, init = 0;
    EXPECT_EQ(tpxOk, getSize(cut, tpxDataType8u, &bytes, &init));
    EXPECT_EQ(328 + 24 + 8 * 20, bytes); // corners at 5, 0; 15, 10; 5, 20; -5, 10
    cut.coeffs = {{{1, -1, -4}, {1, 1, 0}}};
    EXPECT_EQ(tpxOk, getSize(cut, tpxDataType8u, &bytes, &init));
    EXPECT_EQ(328 + 24 + 8 * 12, bytes); // corners at -4, 0; 6, 10; -4, 20; -14, 10: from 4 to 16

    const Plan<Names8u> plan(cases[0].job);
    int work = 0;
    EXPECT_EQ(tpxOk, tpxiWarpGetBufferSize(plan.spec(), d, &work));
    EXPECT_EQ(64, work);
    work = 0;
    EXPECT_EQ(tpxWarnValueAdjusted, tpxiWarpGetBufferSize(plan.spec(), {21, 3}, &work));
    EXPECT_EQ(tpxWarnValueAdjusted, tpxiWarpGetBufferSize(plan.spec(), {20, 17}, &work));
    EXPECT_EQ(64, work);
    const TpxiRect infinite = tpxiWarpGetRectInfinite();
    EXPECT_EQ(-1073741824, infinite.x);
    EXPECT_EQ(-1073741824, infinite.y);
    EXPECT_EQ(2147483647, infinite.width);
    EXPECT_EQ(2147483647, infinite.height);
}

// ---- What misses, and what is filled ---------------------------------------------------------------------

TEST(WarpAffineStatus, OfWhatMissesTheSource) {
    GuardedImage<Tpx8u> src(8, 8, 1), dst(8, 8, 1);
    src.fill([](int, int, int) { return 200; });
    for (const Coeffs& away : {Coeffs{{{1, 0, 100}, {0, 1, 0}}}, Coeffs{{{1, 0.1, 100}, {0, 1, 0}}}})
        for (TpxInterpolationType kind : kKinds)
            for (TpxBorderType border : {0xF0, 7, 0x17, 1, 6}) {
                Job job{{8, 8}, {8, 8}, away, 0, kind, border};
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
    // The plan meets the source, a tile of it does not: 30 comes before 48.
    Job job{{8, 8}, {30, 8}, {{{1, 0.25, 0}, {0, 1, 0}}}, 0, tpxInterpolationLinear, tpxBorderTransparent};
    const Plan<Names8u> plan(job);
    EXPECT_EQ(tpxOk, plan.status);
    EXPECT_EQ(tpxWarnNoQuadOverlap, plan.run(src.data(), src.step(), dst.data(), dst.step(), {20, 0, 8, 8}));
    EXPECT_EQ(tpxWarnNoQuadOverlap, plan.run(src.data(), src.step(), dst.data(), dst.step(), {25, 0, 8, 8}));
    EXPECT_EQ(tpxWarnValueAdjusted, plan.run(src.data(), src.step(), dst.data(), dst.step(), {2, 3, 8, 7}));
}

TEST(WarpAffineStatus, SingularAndUnusableCoefficients) {
    const double huge = 1e300, nan = std::numeric_limits<double>::quiet_NaN(), inf = 1 / 0.0;
    for (const Coeffs& c :
         {Coeffs{{{0, 0, 1}, {1, 2, 3}}}, Coeffs{{{1, 2, 0}, {2, 4, 0}}}, Coeffs{{{huge, 0, 0}, {0, huge, 0}}},
          Coeffs{{{1, 0, nan}, {0, 1, 0}}}, Coeffs{{{1, 0, 0}, {0, 1, inf}}}, Coeffs{{{nan, 0, 0}, {0, 1, 0}}},
          Coeffs{{{0, 1, 0}, {nan, 0, 0}}}, Coeffs{{{inf, 0, 0}, {0, 1, 0}}},
          Coeffs{{{1e-300, 0, 0}, {0, 1e-300, 0}}}, Coeffs{{{1, 0, 1e300}, {0, 1e-9, 1e300}}}})
        for (int direction : {0, 1}) {
            Job job{{8, 8}, {8, 8}, c, direction};
            int bytes, init;
            Tpx8u block[64];
            EXPECT_EQ(tpxErrCoefficient, getSize(job, tpxDataType8u, &bytes, &init));
            EXPECT_EQ(tpxErrCoefficient,
                      initialise(job, tpxDataType8u, nullptr, reinterpret_cast<TpxiWarpSpec*>(block), block));
        }
}

// ---- Rounding --------------------------------------------------------------------------------------------

TEST(WarpAffineRounding, FollowsTheThread) {
    GuardedImage<Tpx8u> src(4, 4, 1), dst(4, 4, 1);
    src.fill([](int x, int, int) { return x * 10 + 1; });
    Job job{{4, 4}, {3, 4}, {{{1, 0, 0.25}, {0, 1, 0}}}}; // 2.5 higher than the pixel
    GuardedImage<Tpx8u> out(3, 4, 1);
    const Plan<Names8u> plan(job);
    for (auto [mode, want] : {std::pair{FE_DOWNWARD, 3}, {FE_UPWARD, 4}, {FE_TONEAREST, 4}}) {
        std::fesetround(mode);
        const TpxStatus status = plan.run(src, out);
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(tpxOk, status);
        EXPECT_TRUE(matches(out, [want = want](int x, int, int) { return x * 10 + want; })) << mode;
    }
}

// Products of denormal samples are zero in cubic calls alone, and the thread's setting comes back.
TEST(WarpAffineRounding, CubicFlushesToZero) {
    std::fesetenv(FE_DFL_ENV); // some initialisers of resizes leave it changed after an error
    GuardedImage<Tpx32f> src(8, 8, 1), out(4, 4, 1);
    src.fill([](int, int, int) { return 0x1p-140f; });
    for (TpxInterpolationType kind : {tpxInterpolationLinear, tpxInterpolationCubic}) {
        Job job{{8, 8}, {4, 4}, {{{1, 0, 2.5}, {0, 1, 2.25}}}, 1, kind};
        const Plan<Names32f> plan(job);
        EXPECT_EQ(tpxOk, plan.run(src, out));
        EXPECT_TRUE(
            matches(out, [&](int, int, int) { return kind == tpxInterpolationLinear ? 0x1p-140f : 0.0f; }));
        volatile float tiny = 0x1p-126f;
        EXPECT_NE(0, tiny / 2);
    }
}

// ---- Order of checks -------------------------------------------------------------------------------------

struct PlanArgs {
    Job job{{8, 8}, {9, 9}, {{{1, 0.5, 0}, {0, 1, 0}}}, 1, tpxInterpolationCubic, tpxBorderConstant};
    TpxDataType type = tpxDataType8u;
    bool noCoeffs = false, noFirst = false, noSecond = false, noValue = false;
};

TEST(WarpAffineChecks, InOrder) {
    using F = Fault<PlanArgs>;
    const F border{"border", [](PlanArgs& a) { a.job.border = 3; }, tpxErrBorder};
    const F word{"border", [](PlanArgs& a) { a.job.border = 0x106; }, tpxErrBorder};
    const F noFlags{"border", [](PlanArgs& a) { a.job.border = 0x70; }, tpxErrBorder};
    const F coeffs{"coefficients", [](PlanArgs& a) { a.noCoeffs = true; }, tpxErrNullPointer};
    const F first{"first pointer", [](PlanArgs& a) { a.noFirst = true; }, tpxErrNullPointer};
    const F second{"second pointer", [](PlanArgs& a) { a.noSecond = true; }, tpxErrNullPointer};
    const F src{"source", [](PlanArgs& a) { a.job.src.width = 0; }, tpxErrSize};
    const F dst{"destination", [](PlanArgs& a) { a.job.dst.height = -1; }, tpxErrSize};
    const F type{"type", [](PlanArgs& a) { a.type = 6; }, tpxErrDataType};
    const F kind{"interpolation", [](PlanArgs& a) { a.job.kind = 3; }, tpxErrInterpolation};
    const F direction{"direction", [](PlanArgs& a) { a.job.direction = 2; }, tpxErrWarpDirection};
    const F singular{"coefficients", [](PlanArgs& a) { a.job.coeffs[0] = {0, 0, 0}; }, tpxErrCoefficient};
    const F narrow{"source", [](PlanArgs& a) { a.job.src = {1, 8}; }, tpxErrSize};
    const F flat{"source", [](PlanArgs& a) { a.job.src = {8, 1}; }, tpxErrSize};
    const F high{"source", [](PlanArgs& a) { a.job.src = {8, 1 << 30}; }, tpxErrSize};
    expectCheckOrder<PlanArgs>(
        {},
        {border, word, noFlags, coeffs, first, second, src, dst, type, kind, direction, singular, narrow, flat,
         high},
        [](const PlanArgs& a) {
            int bytes, init;
            return tpxiWarpAffineGetSize(
                a.job.src, a.job.dst, a.type, a.noCoeffs ? nullptr : arrayOf(a.job.coeffs), a.job.kind,
                a.job.direction, a.job.border, a.noFirst ? nullptr : &bytes, a.noSecond ? nullptr : &init);
        });
    const std::pair<TpxDataType, int> limits[] = {{tpxDataType16u, 1 << 29},
                                                  {tpxDataType16s, 1 << 29},
                                                  {tpxDataType32f, 1 << 28},
                                                  {tpxDataType64f, 1 << 27}};
    for (auto [sample, rows] : limits) {
        Job job{{8, rows}, {9, 9}, {{{1, 0, 0}, {0, 1, 0}}}};
        int bytes, init;
        EXPECT_EQ(tpxErrSize, getSize(job, sample, &bytes, &init));
        job.src.height--;
        EXPECT_EQ(tpxOk, getSize(job, sample, &bytes, &init));
    }

    const F value{"value", [](PlanArgs& a) { a.noValue = true; }, tpxErrNullPointer};
    const F channels{"channels", [](PlanArgs& a) { a.job.channels = 2; }, tpxErrChannelCount};
    const F smooth{"smooth", [](PlanArgs& a) { a.job.smoothEdge = 1; }, tpxErrUnsupportedMode};
    for (bool cubic : {false, true}) {
        std::vector<F> faults = {border,    word,     noFlags, coeffs,   first,  src,    dst, type,
                                 direction, singular, value,   channels, smooth, narrow, flat};
        if (cubic) faults.insert(faults.begin() + 4, second);
        PlanArgs good;
        good.job.kind = cubic ? tpxInterpolationCubic : tpxInterpolationNearest;
        int bytes = 0, init = 0;
        ASSERT_EQ(tpxOk, getSize(good.job, good.type, &bytes, &init));
        std::vector<Tpx8u> block(size_t(bytes) + 8 * 10), work(64);
        expectCheckOrder(good, faults, [&](const PlanArgs& a) {
            const auto c = a.noCoeffs ? nullptr : arrayOf(a.job.coeffs);
            const auto spec = a.noFirst ? nullptr : reinterpret_cast<TpxiWarpSpec*>(block.data());
            const double* const v = a.noValue ? nullptr : kValue;
            const Job& j = a.job;
            if (cubic)
                return tpxiWarpAffineCubicInit(j.src, j.dst, a.type, c, j.direction, j.channels, 0, 0.5,
                                               j.border, v, j.smoothEdge, spec,
                                               a.noSecond ? nullptr : work.data());
            return tpxiWarpAffineNearestInit(j.src, j.dst, a.type, c, j.direction, j.channels, j.border, v,
                                             j.smoothEdge, spec);
        });
        Job transparent = good.job;
        transparent.border = tpxBorderTransparent;
        transparent.smoothEdge = 1;
        EXPECT_EQ(tpxOk, initialise(transparent, tpxDataType8u, nullptr,
                                    reinterpret_cast<TpxiWarpSpec*>(block.data()), work.data()));
    }
}

TYPED_TEST(WarpAffine, ProcessingChecksInOrder) {
    using Other = std::conditional_t<std::is_same_v<TypeParam, Names16u>, Names16s, Names16u>;
    const Job job{{8, 8}, {9, 9}, {{{1, 0.5, 0}, {0, 1, 0}}}};
    Job miss = job;
    miss.coeffs[0][2] = 500;
    expectProcessingChecks<TypeParam, Other>(job, miss);
}

TEST(WarpAffineChecks, OfTheBufferSizeInOrder) {
    const Plan<Names16u> plan({{8, 8}, {9, 9}, {{{1, 0.5, 0}, {0, 1, 0}}}});
    int bytes = 0;
    EXPECT_EQ(tpxErrNullPointer, tpxiWarpGetBufferSize(nullptr, {4, 4}, &bytes));
    EXPECT_EQ(tpxErrNullPointer, tpxiWarpGetBufferSize(plan.spec(), {4, 4}, nullptr));
    EXPECT_EQ(tpxWarnNoOperation, tpxiWarpGetBufferSize(plan.spec(), {4, 0}, &bytes));
    EXPECT_EQ(tpxErrSize, tpxiWarpGetBufferSize(plan.spec(), {4, -1}, &bytes));
}

} // namespace
