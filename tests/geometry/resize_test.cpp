// SPDX-License-Identifier: Apache-2.0
// tpxiResizeNearest and tpxiResizeLinear through their exported names.
#include <gtest/gtest.h>

#include <cfenv>

#include "models/resize.h"
#include "tests/support/guarded.h"
#include "tests/support/resize_faults.h"
#include "tests/support/resize_plan.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

// ---- The functions of each type -----------------------------------------------------------------------

template <class T>
using LinearCall = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, TpxBorderType, const T*,
                                 const TpxiResizeSpec*, Tpx8u*);
template <class T>
using LinearCallL = TpxStatus (*)(const T*, TpxSizeL, T*, TpxSizeL, TpxiPointL, TpxiSizeL, TpxBorderType,
                                  const T*, const TpxiResizeSpec*, Tpx8u*);
template <class T>
using NearestCall = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiResizeSpec*, Tpx8u*);
template <class T>
using NearestCallL = TpxStatus (*)(const T*, TpxSizeL, T*, TpxSizeL, TpxiPointL, TpxiSizeL,
                                   const TpxiResizeSpec*, Tpx8u*);

#define LAYOUTS(op, type, end) \
    { op##_##type##_C1R##end, op##_##type##_C3R##end, op##_##type##_C4R##end }
#define NAMES(type, nearestNames)                                                                    \
    struct Names##type {                                                                             \
        using T = Tpx##type;                                                                         \
        static constexpr TpxDataType kType = tpxDataType##type;                                      \
        static constexpr auto getSize = tpxiResizeGetSize_##type;                                    \
        static constexpr auto initLinear = tpxiResizeLinearInit_##type;                              \
        static std::vector<LinearCall<T>> linear() { return LAYOUTS(tpxiResizeLinear, type, ); }     \
        static std::vector<LinearCallL<T>> linearL() { return LAYOUTS(tpxiResizeLinear, type, _L); } \
        nearestNames                                                                                 \
    };
#define NEAREST_NAMES(type)                                                                     \
    static constexpr auto initNearest = tpxiResizeNearestInit_##type;                           \
    static std::vector<NearestCall<T>> nearest() { return LAYOUTS(tpxiResizeNearest, type, ); } \
    static std::vector<NearestCallL<T>> nearestL() { return LAYOUTS(tpxiResizeNearest, type, _L); }
// Double precision has no nearest.
#define NO_NEAREST                                                                            \
    static constexpr TpxStatus (*initNearest)(TpxiSize, TpxiSize, TpxiResizeSpec*) = nullptr; \
    static std::vector<NearestCall<T>> nearest() { return {}; }                               \
    static std::vector<NearestCallL<T>> nearestL() { return {}; }

NAMES(8u, NEAREST_NAMES(8u))
NAMES(16u, NEAREST_NAMES(16u))
NAMES(16s, NEAREST_NAMES(16s))
NAMES(32f, NEAREST_NAMES(32f))
NAMES(64f, NO_NEAREST)

// ---- Whole images and tiles beside the model ----------------------------------------------------------

struct Sizes {
    TpxiSize src, dst;
};

// Up, down, equal, the same ratio in several lengths, primes, and extremes either way.
const Sizes kSizes[] = {
    {{2, 2}, {2, 2}},      {{2, 3}, {1000, 5}},  {{2, 2}, {1, 1}},      {{3, 2}, {5, 1000}},
    {{1000, 4}, {2, 3}},   {{5, 1000}, {3, 2}},  {{16, 16}, {16, 16}},  {{64, 48}, {96, 72}},
    {{96, 72}, {64, 48}},  {{17, 13}, {31, 29}}, {{31, 29}, {17, 13}},  {{40, 30}, {100, 75}},
    {{100, 75}, {33, 22}}, {{128, 9}, {64, 18}}, {{257, 2}, {130, 64}}, {{33, 40}, {32, 41}},
    {{640, 3}, {213, 4}},  {{64, 64}, {21, 21}}, {{6, 5}, {80, 60}},    {{53, 7}, {211, 3}},
    {{99, 15}, {33, 3}},   {{95, 12}, {19, 12}},
};

// Widths around every lane count, at ratios that shuffle, that gather, and that are too short for a load.
std::vector<Sizes> shapes() {
    std::vector<Sizes> all(std::begin(kSizes), std::end(kSizes));
    for (int w = 1; w <= 40; w++)
        for (int src : {2, 3, 7, 23, 61, 150}) all.push_back({{src, 3}, {w, 4}});
    return all;
}

template <class T>
struct RandomImage : GuardedImage<T> {
    RandomImage(TpxiSize size, int channels, Lie lie, unsigned seed)
        : GuardedImage<T>(size.width, size.height, channels, lie) {
        this->randomise(seed);
    }
};

// Pages on both sides in turn, with and without bytes between rows. Samples may lie at odd addresses.
const Lie kLies[] = {{0, Edge::End, 0}, {24, Edge::Start, 1}, {8, Edge::End, 3}};

// The model's fractions are exact. Those of a plan are computed with floats, and where the centres of two
// pixels meet may be just below 1 instead of 0: results of floats may be off by two last places of their
// largest samples, and by what doubles lose in positions up to a few hundreds.
template <class T, class Expected>
::testing::AssertionResult fits(const GuardedImage<T>& image, Expected expected) {
    constexpr double tolerance = std::is_same_v<T, Tpx32f> ? 1.25e-4 : std::is_same_v<T, Tpx64f> ? 1e-9 : 0;
    return matches(image, [&](int x, int y, int c) -> T {
        const T want = expected(x, y, c), got = image.at(x, y, c);
        return std::fabs(double(got) - double(want)) <= tolerance ? got : want;
    });
}

template <class Names>
class Resize : public testing::Test {
 protected:
    using T = typename Names::T;

    static T expected(bool linear, const GuardedImage<T>& src, TpxiSize dst, TpxBorderType border, int x, int y,
                      int c) {
        const TpxiSize size = src.size();
        if (!linear)
            return src.at(nearestIndex(x, size.width, dst.width), nearestIndex(y, size.height, dst.height), c);
        return linearSample<T>(x, y, size, dst, border, [&](int sx, int sy) { return src.at(sx, sy, c); });
    }

    static void expectWholeImages(bool linear) {
        unsigned seed = 1;
        for (const Sizes& s : shapes())
            for (int channels : {1, 3, 4}) {
                const Lie lie = kLies[seed % 3];
                const bool longForm = seed % 2;
                const RandomImage<T> src(s.src, channels, lie, seed++);
                const Plan<Names> plan(linear, s.src, s.dst, longForm, int(seed % 64));
                GuardedImage<T> dst(s.dst.width, s.dst.height, channels, kLies[seed % 3]);
                ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), dst.data(), dst.step(),
                                          {0, 0, s.dst.width, s.dst.height}, tpxBorderReplicate));
                ASSERT_TRUE(
                    fits(dst, [&](int x, int y,
                                  int c) { return expected(linear, src, s.dst, tpxBorderReplicate, x, y, c); }))
                    << channels << " channels, source " << s.src.width << " x " << s.src.height;
            }
    }

    // Every tile gets its own copy of exactly the source pixels that it may read: its source rectangle, and the
    // border's one pixel on the sides where the source goes on.
    static void expectTiles(bool linear) {
        const int reach = linear ? 1 : 0;
        unsigned seed = 1;
        for (const Sizes& s : kSizes)
            for (const TpxiSize tileSize : {TpxiSize{7, 3}, {1, 1}, {16, 50}, {33, 2}}) {
                if (s.dst.width / tileSize.width * (s.dst.height / tileSize.height) > 3000) continue;
                const int channels = seed % 3 == 0 ? 1 : seed % 3 == 1 ? 3 : 4;
                const RandomImage<T> src(s.src, channels, {}, seed++);
                const Plan<Names> plan(linear, s.src, s.dst, seed % 2);
                GuardedImage<T> whole(s.dst.width, s.dst.height, channels);
                for (int y = 0; y < s.dst.height; y += tileSize.height)
                    for (int x = 0; x < s.dst.width; x += tileSize.width) {
                        const TpxiRect tile{x, y, std::min(tileSize.width, s.dst.width - x),
                                            std::min(tileSize.height, s.dst.height - y)};
                        const TpxiRect from = plan.srcRect(tile);
                        const int l = from.x > 0 ? reach : 0, t = from.y > 0 ? reach : 0;
                        const int r = from.x + from.width < s.src.width ? reach : 0;
                        const int b = from.y + from.height < s.src.height ? reach : 0;
                        GuardedImage<T> seen(l + from.width + r, t + from.height + b, channels,
                                             {0, (x ^ y) & 1 ? Edge::Start : Edge::End, 0});
                        seen.fill(
                            [&](int i, int j, int c) { return src.at(from.x - l + i, from.y - t + j, c); });
                        GuardedImage<T> dst(tile.width, tile.height, channels);
                        const TpxBorderType border =
                            tpxBorderReplicate | (l ? tpxBorderInMemLeft : 0) | (t ? tpxBorderInMemTop : 0) |
                            (r ? tpxBorderInMemRight : 0) | (b ? tpxBorderInMemBottom : 0);
                        const auto first = reinterpret_cast<const Tpx8u*>(seen.data()) + t * seen.step() +
                                           l * channels * int(sizeof(T));
                        ASSERT_EQ(tpxOk, plan.run(channels, reinterpret_cast<const T*>(first), seen.step(),
                                                  dst.data(), dst.step(), tile, border));
                        for (int j = 0; j < tile.height; j++)
                            for (int i = 0; i < tile.width; i++)
                                for (int c = 0; c < channels; c++) whole.set(x + i, y + j, c, dst.at(i, j, c));
                    }
                ASSERT_TRUE(fits(whole,
                                 [&](int x, int y, int c) {
                                     return expected(linear, src, s.dst, tpxBorderReplicate, x, y, c);
                                 }))
                    << channels << " channels, source " << s.src.width << " x " << s.src.height << ", tiles of "
                    << tileSize.width << " x " << tileSize.height;
            }
    }
};

using AllTypes = testing::Types<Names8u, Names16u, Names16s, Names32f, Names64f>;
TYPED_TEST_SUITE(Resize, AllTypes);

TYPED_TEST(Resize, LinearOfWholeImages) { this->expectWholeImages(true); }
TYPED_TEST(Resize, LinearOfTilesIsTheSameAndReadsNoMore) { this->expectTiles(true); }

template <class Names>
class ResizeNearest : public Resize<Names> {};
using NearestTypes = testing::Types<Names8u, Names16u, Names16s, Names32f>;
TYPED_TEST_SUITE(ResizeNearest, NearestTypes);

TYPED_TEST(ResizeNearest, WholeImages) { this->expectWholeImages(false); }
TYPED_TEST(ResizeNearest, TilesAreTheSameAndReadNoMore) { this->expectTiles(false); }

// Every set of flags, on an image whose source lies in the middle of a larger one.
TYPED_TEST(Resize, LinearReadsRealPixelsOnSidesInMemory) {
    using T = typename TypeParam::T;
    for (const Sizes& s : {Sizes{{5, 4}, {23, 17}}, Sizes{{2, 2}, {9, 40}}, Sizes{{30, 20}, {30, 20}}})
        for (int channels : {1, 3, 4})
            for (TpxBorderType flags = 0; flags <= 0xF0; flags += 0x10)
                for (TpxBorderType kind : {0, 1}) {
                    const TpxBorderType border = flags | kind;
                    if (kind == 0 && border != tpxBorderInMemAll) continue;
                    const RandomImage<T> outer({s.src.width + 2, s.src.height + 2}, channels, {},
                                               border + unsigned(channels));
                    const auto first =
                        reinterpret_cast<const Tpx8u*>(outer.data()) + outer.step() + channels * int(sizeof(T));
                    const Plan<TypeParam> plan(true, s.src, s.dst);
                    GuardedImage<T> dst(s.dst.width, s.dst.height, channels);
                    ASSERT_EQ(tpxOk,
                              plan.run(channels, reinterpret_cast<const T*>(first), outer.step(), dst.data(),
                                       dst.step(), {0, 0, s.dst.width, s.dst.height}, border));
                    ASSERT_TRUE(fits(dst,
                                     [&](int x, int y, int c) {
                                         return linearSample<T>(
                                             x, y, s.src, s.dst, border,
                                             [&](int sx, int sy) { return outer.at(sx + 1, sy + 1, c); });
                                     }))
                        << "border " << std::hex << border;
                }
}

TYPED_TEST(Resize, TilesLargerThanTheDestinationAreTrimmed) {
    using T = typename TypeParam::T;
    const Sizes s{{20, 10}, {30, 15}};
    const RandomImage<T> src(s.src, 3, {}, 9);
    for (const bool linear : {true, false}) {
        if (!linear && TypeParam::nearest().empty()) continue;
        const Plan<TypeParam> plan(linear, s.src, s.dst);
        for (const auto& [size, status] : {std::pair<TpxiSize, TpxStatus>{{31, 15}, tpxWarnValueAdjusted},
                                           {{30, 0x7fffffff}, tpxWarnValueAdjusted},
                                           {{30, 15}, tpxOk}}) {
            const int x = 4, y = 6;
            GuardedImage<T> dst(s.dst.width - x, s.dst.height - y, 3, {8, Edge::End, 0});
            const TpxiRect from = plan.srcRect({x, y, size.width, size.height});
            const auto first =
                reinterpret_cast<const Tpx8u*>(src.data()) + from.y * src.step() + from.x * 3 * int(sizeof(T));
            const TpxBorderType border = tpxBorderReplicate | tpxBorderInMemLeft | tpxBorderInMemTop;
            EXPECT_EQ(status, plan.run(3, reinterpret_cast<const T*>(first), src.step(), dst.data(), dst.step(),
                                       {x, y, size.width, size.height}, border));
            EXPECT_TRUE(fits(dst, [&](int i, int j, int c) {
                return this->expected(linear, src, s.dst, border, x + i, y + j, c);
            }));
        }
    }
}

// 8u rounds in integers; the other types follow the thread's rounding mode, though their weights do not.
TYPED_TEST(Resize, LinearFollowsTheRoundingModeOfTheThread) {
    using T = typename TypeParam::T;
    const Sizes s{{9, 9}, {20, 25}};
    const RandomImage<T> src(s.src, 1, {}, 5);
    const Plan<TypeParam> plan(true, s.src, s.dst);
    std::vector<Position> px, py;
    for (int x = 0; x < s.dst.width; x++) px.push_back(linearPosition(x, s.src.width, s.dst.width));
    for (int y = 0; y < s.dst.height; y++) py.push_back(linearPosition(y, s.src.height, s.dst.height));
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        GuardedImage<T> dst(s.dst.width, s.dst.height, 1);
        std::fesetround(mode);
        const TpxStatus status = plan.run(1, src.data(), src.step(), dst.data(), dst.step(),
                                          {0, 0, s.dst.width, s.dst.height}, tpxBorderReplicate);
        const auto right = fits(dst, [&](int x, int y, int c) {
            return linearSample<T>(px[x], py[y], s.src, tpxBorderReplicate,
                                   [&](int sx, int sy) { return src.at(sx, sy, c); });
        });
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(tpxOk, status);
        EXPECT_TRUE(right) << "mode " << mode;
    }
}

TEST(ResizeLinear, CopiesAt8uWhenTheSizesAreEqual) {
    const Plan<Names8u> plan(true, {256, 4}, {256, 4});
    GuardedImage<Tpx8u> src(256, 4, 1), dst(256, 4, 1);
    src.fill([](int x, int y, int) { return x ^ (y * 85); });
    EXPECT_EQ(tpxOk,
              plan.run(1, src.data(), src.step(), dst.data(), dst.step(), {0, 0, 256, 4}, tpxBorderReplicate));
    EXPECT_TRUE(fits(dst, [](int x, int y, int) { return x ^ (y * 85); }));
}

// Negative steps walk the images upwards.
TEST(ResizeLinear, TakesNegativeSteps) {
    const Sizes s{{12, 7}, {31, 18}};
    const RandomImage<Tpx16u> src(s.src, 1, {}, 3);
    GuardedImage<Tpx16u> dst(s.dst.width, s.dst.height, 1);
    const Plan<Names16u> plan(true, s.src, s.dst);
    const auto lastRow = [](auto& image) { return image.data() + (image.height() - 1) * image.width(); };
    ASSERT_EQ(tpxOk, plan.run(1, lastRow(src), -src.step(), lastRow(dst), -dst.step(),
                              {0, 0, s.dst.width, s.dst.height}, tpxBorderReplicate));
    EXPECT_TRUE(fits(dst, [&](int x, int y, int) {
        return linearSample<Tpx16u>(x, s.dst.height - 1 - y, s.src, s.dst, tpxBorderReplicate,
                                    [&](int sx, int sy) { return src.at(sx, s.src.height - 1 - sy); });
    }));
}

// The short calls do not look at the type that a plan was made for. The result is the caller's affair, but
// nothing outside the plan is read.
TEST(ResizeLinear, StaysInsidePlansOfOtherTypes) {
    const Sizes s{{21, 17}, {70, 33}};
    const RandomImage<Tpx8u> src8(s.src, 1, {}, 1);
    const RandomImage<Tpx32f> src32(s.src, 1, {}, 1);
    const Plan<Names8u> plan8(true, s.src, s.dst);
    const Plan<Names32f> plan32(true, s.src, s.dst);
    const Plan<Names64f> plan64(true, s.src, s.dst);
    std::vector<Tpx8u> buffer(10000);
    for (const TpxiResizeSpec* spec : {plan8.spec(), plan32.spec(), plan64.spec()}) {
        GuardedImage<Tpx8u> dst8(s.dst.width, s.dst.height, 1);
        GuardedImage<Tpx32f> dst32(s.dst.width, s.dst.height, 1);
        EXPECT_EQ(tpxOk, tpxiResizeLinear_8u_C1R(src8.data(), src8.step(), dst8.data(), dst8.step(), {0, 0},
                                                 s.dst, tpxBorderReplicate, nullptr, spec, buffer.data()));
        EXPECT_EQ(tpxOk,
                  tpxiResizeLinear_32f_C1R(src32.data(), src32.step(), dst32.data(), dst32.step(), {0, 0},
                                           s.dst, tpxBorderReplicate, nullptr, spec, buffer.data()));
    }
}

// ---- Checks -------------------------------------------------------------------------------------------

TYPED_TEST(Resize, ChecksArgumentsInOrder) {
    using T = typename TypeParam::T;
    using A = ResizeArgs<T>;
    const TpxiSize size{8, 8};
    GuardedImage<T> src(8, 8, 1), dst(8, 8, 1);
    src.randomise(1);
    std::vector<Tpx8u> buffer(100000);
    const auto before = [&] {
        return std::vector<Tpx8u>((Tpx8u*)dst.data(), (Tpx8u*)dst.data() + 8 * dst.step());
    };
    const std::vector<Tpx8u> untouched = before();

    for (const bool linear : {true, false}) {
        if (!linear && TypeParam::nearest().empty()) continue;
        for (const bool longForm : {false, true}) {
            const Plan<TypeParam> plan(linear, size, size, longForm), otherWidth(linear, size, size, !longForm);
            const Plan<TypeParam> antialiased(linear, size, size, longForm, 0);
            auto words =
                reinterpret_cast<Tpx32u*>((reinterpret_cast<uintptr_t>(antialiased.spec()) + 63) & ~63ull);
            words[5] = 1;
            const Plan<Names32f> wrongKind(!linear, size, size, longForm);
            const Plan<Names64f> doubles(true, size, size, longForm);

            const A good{src.data(), src.step(),         dst.data(),  dst.step(),   {0, 0},
                         size,       tpxBorderReplicate, plan.spec(), buffer.data()};
            // 64f compares the type with the plan's width; the long calls of other types refuse plans of 64f.
            RefusedPlans refused{{otherWidth.spec()}, antialiased.spec(), nullptr};
            if (sizeof(T) == 8)
                refused.ofOtherCalls.push_back(wrongKind.spec());
            else
                refused.otherKind = wrongKind.spec();
            if (sizeof(T) != 8 && longForm) refused.ofOtherCalls.push_back(doubles.spec());
            expectCheckOrder(good, resizeFaults<T>(linear, refused, 8), [&](const A& a) -> TpxStatus {
                const TpxiPointL at{a.at.x, a.at.y};
                const TpxiSizeL tile{a.size.width, a.size.height};
                TpxStatus status = tpxOk;
                for (int n = 0; n < 3; n++) {
                    const TpxStatus one =
                        linear     ? longForm ? TypeParam::linearL()[n](a.src, a.srcStep, a.dst, a.dstStep, at,
                                                                    tile, a.border, nullptr, a.spec, a.buffer)
                                              : TypeParam::linear()[n](a.src, a.srcStep, a.dst, a.dstStep, a.at,
                                                                   a.size, a.border, nullptr, a.spec, a.buffer)
                            : longForm ? TypeParam::nearestL()[n](a.src, a.srcStep, a.dst, a.dstStep, at, tile,
                                                              a.spec, a.buffer)
                                   : TypeParam::nearest()[n](a.src, a.srcStep, a.dst, a.dstStep, a.at, a.size,
                                                             a.spec, a.buffer);
                    if (n > 0) EXPECT_EQ(status, one) << "the layouts differ";
                    status = one;
                }
                return status;
            });
            EXPECT_EQ(untouched, before());
        }
    }
}

} // namespace
