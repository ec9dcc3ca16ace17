// SPDX-License-Identifier: Apache-2.0
// tpxiResizeSuper through its exported names.
#include <gtest/gtest.h>

#include <cfenv>
#include <limits>

#include "models/super.h"
#include "tests/support/guarded.h"
#include "tests/support/resize_faults.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

// ---- The functions of each type -----------------------------------------------------------------------

template <class T>
using Call = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiResizeSpec*, Tpx8u*);
template <class T>
using CallL = TpxStatus (*)(const T*, TpxSizeL, T*, TpxSizeL, TpxiPointL, TpxiSizeL, const TpxiResizeSpec*,
                            Tpx8u*);

#define NAMES(type)                                                  \
    struct Names##type {                                             \
        using T = Tpx##type;                                         \
        static constexpr TpxDataType kType = tpxDataType##type;      \
        static constexpr auto init = tpxiResizeSuperInit_##type;     \
        static Call<T> call(int channels) {                          \
            return channels == 1   ? tpxiResizeSuper_##type##_C1R    \
                   : channels == 3 ? tpxiResizeSuper_##type##_C3R    \
                                   : tpxiResizeSuper_##type##_C4R;   \
        }                                                            \
        static CallL<T> callL(int channels) {                        \
            return channels == 1   ? tpxiResizeSuper_##type##_C1R_L  \
                   : channels == 3 ? tpxiResizeSuper_##type##_C3R_L  \
                                   : tpxiResizeSuper_##type##_C4R_L; \
        }                                                            \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32f)
#undef NAMES

struct Sizes {
    TpxiSize src, dst;
};

// A plan in memory of exactly the size asked for; so are the work buffers of its tiles.
template <class Names>
class SuperPlan {
 public:
    using T = typename Names::T;

    SuperPlan(const Sizes& s, bool longForm, size_t misalign = 1) : long_(longForm), misalign_(misalign) {
        const TpxiSizeL src{s.src.width, s.src.height}, dst{s.dst.width, s.dst.height};
        TpxSizeL bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(src, dst, Names::kType, tpxInterpolationSuper, 0, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes), misalign);
        EXPECT_EQ(tpxOk, longForm ? tpxiResizeSuperInit_L(src, dst, Names::kType, spec())
                                  : Names::init(s.src, s.dst, spec()));
    }
    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(memory_->data()); }

    TpxiRect srcRect(TpxiRect tile) const {
        TpxiPointL at{};
        TpxiSizeL size{};
        if (long_) {
            EXPECT_EQ(tpxOk,
                      tpxiResizeGetSrcRoi_L(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size));
            return {int(at.x), int(at.y), int(size.width), int(size.height)};
        }
        TpxiPoint at32{};
        TpxiSize size32{};
        EXPECT_EQ(tpxOk,
                  tpxiResizeGetSrcRoi_8u(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at32, &size32));
        return {at32.x, at32.y, size32.width, size32.height};
    }

    TpxStatus run(int channels, const T* src, int srcStep, T* dst, int dstStep, TpxiRect tile) const {
        const TpxiSize size{tile.width, tile.height};
        TpxSizeL bytesL = 0;
        int bytes = 0;
        if (long_)
            EXPECT_LE(tpxOk,
                      tpxiResizeGetBufferSize_L(spec(), {tile.width, tile.height}, Tpx32u(channels), &bytesL));
        else
            EXPECT_LE(tpxOk, tpxiResizeGetBufferSize_8u(spec(), size, Tpx32u(channels), &bytes));
        GuardedBytes work{size_t(bytes + bytesL), misalign_};
        work.fill(0xFF);
        if (long_)
            return Names::callL(channels)(src, srcStep, dst, dstStep, {tile.x, tile.y},
                                          {tile.width, tile.height}, spec(), work.data());
        return Names::call(channels)(src, srcStep, dst, dstStep, {tile.x, tile.y}, size, spec(), work.data());
    }

 private:
    bool long_;
    size_t misalign_;
    std::unique_ptr<GuardedBytes> memory_;
};

// The whole image by the model. The factor is made when it is asked for, with the thread's rounding mode.
template <class T>
class Expected {
 public:
    Expected(const GuardedImage<T>& src, TpxiSize dst)
        : src_(src),
          dst_(dst),
          x_(overlapsOfAll(src.width(), dst.width)),
          y_(overlapsOfAll(src.height(), dst.height)) {}
    T operator()(int x, int y, int c) const {
        return superSample<T>(x_[size_t(x)], y_[size_t(y)], superFactor(src_.size(), dst_),
                              [&](int sx, int sy) { return src_.at(sx, sy, c); });
    }

 private:
    const GuardedImage<T>& src_;
    TpxiSize dst_;
    std::vector<Overlaps> x_, y_;
};

// Integers are the model's to the bit. Of floats the plan's weights, which are differences of doubles, may be
// off by a last place.
template <class T, class Want>
::testing::AssertionResult fits(const GuardedImage<T>& image, Want want) {
    constexpr double tolerance = std::is_same_v<T, Tpx32f> ? 5e-4 : 0;
    return matches(image, [&](int x, int y, int c) -> T {
        const T wanted = want(x, y, c), got = image.at(x, y, c);
        return std::fabs(double(got) - double(wanted)) <= tolerance ? got : wanted;
    });
}

std::string text(const Sizes& s) {
    return std::to_string(s.src.width) + "x" + std::to_string(s.src.height) + " to " +
           std::to_string(s.dst.width) + "x" + std::to_string(s.dst.height);
}

// Whole ratios and small periods; periods that integers of bytes serve along one axis or none; one axis
// alone; ratios around those where sums of bytes are carried on, weights are many, and sums leave 24 bits; and
// reductions to a pixel; more pixels for one than are read at a time.
const Sizes kSizes[] = {
    {{64, 48}, {32, 24}},   {{96, 30}, {32, 10}},     {{45, 33}, {30, 22}},   {{100, 20}, {80, 16}},
    {{50, 36}, {20, 16}},   {{72, 27}, {64, 24}},     {{120, 16}, {30, 4}},   {{63, 28}, {36, 16}},
    {{60, 44}, {45, 33}},   {{66, 36}, {55, 30}},     {{50, 35}, {30, 21}},   {{97, 61}, {31, 17}},
    {{40, 23}, {40, 23}},   {{61, 12}, {61, 5}},      {{57, 12}, {23, 12}},   {{48, 9}, {16, 9}},
    {{41, 24}, {41, 8}},    {{1000, 3}, {999, 2}},    {{333, 5}, {10, 3}},    {{7, 5}, {1, 1}},
    {{1300, 2}, {20, 1}},   {{1260, 4}, {20, 2}},     {{960, 12}, {40, 4}},   {{257, 6}, {1, 2}},
    {{16, 600}, {8, 6}},    {{12, 514}, {6, 2}},      {{800, 250}, {8, 1}},   {{514, 260}, {2, 1}},
    {{774, 258}, {3, 1}},   {{17, 130}, {17, 2}},     {{1026, 260}, {8, 8}},  {{515, 520}, {2, 8}},
    {{2000, 2}, {1500, 1}}, {{1030, 3}, {824, 2}},    {{2048, 2}, {1024, 2}}, {{3, 1000}, {2, 3}},
    {{1003, 4}, {2, 1}},    {{2082, 24}, {1041, 12}},
};

const Lie kLies[] = {{0, Edge::End, 0}, {24, Edge::Start, 1}, {8, Edge::End, 3}};

template <class Names>
class ResizeSuper : public testing::Test {};
using AllTypes = testing::Types<Names8u, Names16u, Names16s, Names32f>;
TYPED_TEST_SUITE(ResizeSuper, AllTypes);

// ---- Whole images and tiles ------------------------------------------------------------------------------

TYPED_TEST(ResizeSuper, WholeImages) {
    using T = typename TypeParam::T;
    std::vector<Sizes> sizes(std::begin(kSizes), std::end(kSizes));
    // Widths around every lane count, at ratios of both kinds.
    for (int w = 1; w <= 40; w++)
        for (const auto& [num, den] : {std::pair{3, 1}, {2, 1}, {3, 2}, {9, 4}, {4, 3}, {5, 3}, {31, 7}})
            sizes.push_back({{(w * num + den - 1) / den, 4}, {w, 2}});
    unsigned seed = 1;
    for (const Sizes& s : sizes)
        for (int channels : {1, 3, 4}) {
            if (int64_t(s.src.width) * s.src.height > 20000 && channels == 4) continue;
            GuardedImage<T> src(s.src.width, s.src.height, channels, kLies[seed % 3]);
            src.randomise(seed++);
            GuardedImage<T> dst(s.dst.width, s.dst.height, channels, kLies[seed % 3]);
            const SuperPlan<TypeParam> plan(s, seed % 2, seed % 64);
            ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), dst.data(), dst.step(),
                                      {0, 0, s.dst.width, s.dst.height}));
            ASSERT_TRUE(fits(dst, Expected<T>(src, s.dst))) << channels << " channels, " << text(s);
        }
}

// Every tile gets its own copy of exactly the source rectangle that the query tells, at an unreadable page.
TYPED_TEST(ResizeSuper, TilesAreTheSameBytesAndReadNoMore) {
    using T = typename TypeParam::T;
    unsigned seed = 1;
    for (const Sizes& s : kSizes)
        for (const TpxiSize tileSize : {TpxiSize{7, 3}, {1, 1}, {16, 50}, {33, 2}, {600, 1}}) {
            if (s.dst.width / tileSize.width * (s.dst.height / tileSize.height) > 800) continue;
            const int channels = seed % 3 == 0 ? 1 : seed % 3 == 1 ? 3 : 4;
            GuardedImage<T> src(s.src.width, s.src.height, channels);
            src.randomise(seed++);
            GuardedImage<T> whole(s.dst.width, s.dst.height, channels);
            const SuperPlan<TypeParam> plan(s, seed % 2, seed % 64);
            ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), whole.data(), whole.step(),
                                      {0, 0, s.dst.width, s.dst.height}));
            for (int y = 0; y < s.dst.height; y += tileSize.height)
                for (int x = 0; x < s.dst.width; x += tileSize.width) {
                    const TpxiRect tile{x, y, std::min(tileSize.width, s.dst.width - x),
                                        std::min(tileSize.height, s.dst.height - y)};
                    const TpxiRect from = plan.srcRect(tile);
                    GuardedImage<T> seen(from.width, from.height, channels,
                                         {0, (x ^ y) & 1 ? Edge::Start : Edge::End, 0});
                    seen.fill([&](int i, int j, int c) { return src.at(from.x + i, from.y + j, c); });
                    GuardedImage<T> dst(tile.width, tile.height, channels, {0, Edge::End, x & 3});
                    ASSERT_EQ(tpxOk,
                              plan.run(channels, seen.data(), seen.step(), dst.data(), dst.step(), tile));
                    ASSERT_TRUE(matches(dst, [&](int i, int j, int c) { return whole.at(x + i, y + j, c); }))
                        << channels << " channels, " << text(s) << ", tile at " << x << " " << y << " of "
                        << tile.width << "x" << tile.height;
                }
        }
}

// Entries of weight 0 are not taken into sums: what is not a number stays in the pixels that cover it.
TEST(ResizeSuper32f, InfinitiesStayWhereTheyAreCovered) {
    for (const Sizes& s : {Sizes{{50, 10}, {30, 6}}, Sizes{{40, 14}, {24, 6}}, Sizes{{48, 8}, {36, 6}}})
        for (int channels : {1, 3, 4})
            for (int at = 0; at < s.src.width; at++) {
                GuardedImage<Tpx32f> src(s.src.width, s.src.height, channels),
                    dst(s.dst.width, s.dst.height, channels);
                const int row = at % s.src.height;
                src.fill([&](int x, int y, int) {
                    return x == at && y == row ? std::numeric_limits<float>::infinity() : 1;
                });
                const SuperPlan<Names32f> plan(s, false);
                ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), dst.data(), dst.step(),
                                          {0, 0, s.dst.width, s.dst.height}));
                const Expected<Tpx32f> expected(src, s.dst);
                for (int y = 0; y < s.dst.height; y++)
                    for (int x = 0; x < s.dst.width; x++)
                        for (int c = 0; c < channels; c++) {
                            const float want = expected(x, y, c), got = dst.at(x, y, c);
                            if (std::isinf(want))
                                ASSERT_EQ(want, got) << text(s) << ", infinity at " << at << " " << row;
                            else
                                ASSERT_NEAR(want, got, 1e-5) << text(s) << ", infinity at " << at << " " << row;
                        }
            }
}

TYPED_TEST(ResizeSuper, ConstantImagesStayConstant) {
    using T = typename TypeParam::T;
    for (const Sizes& s : kSizes)
        for (const T value : {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(), T(100)}) {
            if (std::is_same_v<T, Tpx32f> && value != 100) continue; // their sums are infinite
            GuardedImage<T> src(s.src.width, s.src.height, 1), dst(s.dst.width, s.dst.height, 1);
            src.fill([&](int, int, int) { return value; });
            const SuperPlan<TypeParam> plan(s, false);
            ASSERT_EQ(tpxOk, plan.run(1, src.data(), src.step(), dst.data(), dst.step(),
                                      {0, 0, s.dst.width, s.dst.height}));
            const double tolerance = std::is_same_v<T, Tpx32f> ? 2e-3 : 0;
            ASSERT_TRUE(matches(dst, [&](int x, int y, int) {
                return std::fabs(double(dst.at(x, y)) - double(value)) <= tolerance ? dst.at(x, y) : value;
            })) << text(s);
        }
}

// Means are rounded as the thread says, and limited to the type.
TYPED_TEST(ResizeSuper, FollowsTheRoundingModeOfTheThreadAndSaturates) {
    using T = typename TypeParam::T;
    if (std::is_same_v<T, Tpx32f>) return;
    for (const Sizes& s : {Sizes{{60, 9}, {20, 3}}, Sizes{{50, 10}, {30, 6}}, Sizes{{41, 7}, {41, 1}}})
        for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
            for (const bool extreme : {false, true}) {
                GuardedImage<T> src(s.src.width, s.src.height, 1), dst(s.dst.width, s.dst.height, 1);
                src.randomise(unsigned(mode));
                if (extreme)
                    src.fill([](int x, int, int) {
                        return x < 20 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::lowest();
                    });
                const SuperPlan<TypeParam> plan(s, false);
                const Expected<T> expected(src, s.dst);
                std::fesetround(mode);
                const TpxStatus status = plan.run(1, src.data(), src.step(), dst.data(), dst.step(),
                                                  {0, 0, s.dst.width, s.dst.height});
                const auto right = fits(dst, expected);
                std::fesetround(FE_TONEAREST);
                EXPECT_EQ(tpxOk, status);
                EXPECT_TRUE(right) << text(s) << ", mode " << mode;
            }
}

TYPED_TEST(ResizeSuper, TilesLargerThanTheDestinationAreTrimmed) {
    using T = typename TypeParam::T;
    for (const Sizes& s : {Sizes{{40, 30}, {20, 15}}, Sizes{{50, 25}, {30, 15}}, Sizes{{20, 15}, {20, 15}}}) {
        GuardedImage<T> src(s.src.width, s.src.height, 3);
        src.randomise(7);
        const SuperPlan<TypeParam> plan(s, false);
        const int x = 4, y = 6, width = s.dst.width - x, height = s.dst.height - y;
        const TpxiRect from = plan.srcRect({x, y, width, height});
        const auto first =
            reinterpret_cast<const Tpx8u*>(src.data()) + from.y * src.step() + from.x * 3 * int(sizeof(T));
        for (const auto& [w, h, status] :
             {std::tuple{width, 0x7fffffff, tpxWarnValueAdjusted}, {s.dst.width, s.dst.height, tpxOk}}) {
            GuardedImage<T> dst(width, height, 3, {8, Edge::End, 0});
            EXPECT_EQ(status, plan.run(3, reinterpret_cast<const T*>(first), src.step(), dst.data(), dst.step(),
                                       {x, y, w, h}));
            const Expected<T> expected(src, s.dst);
            EXPECT_TRUE(fits(dst, [&](int i, int j, int c) { return expected(x + i, y + j, c); })) << text(s);
        }
    }
}

// Negative steps walk the images upwards.
TYPED_TEST(ResizeSuper, TakesNegativeSteps) {
    using T = typename TypeParam::T;
    for (const Sizes& s : {Sizes{{40, 30}, {20, 15}}, Sizes{{50, 25}, {30, 15}}}) {
        GuardedImage<T> src(s.src.width, s.src.height, 1),
            upright = GuardedImage<T>(s.src.width, s.src.height, 1);
        src.randomise(3);
        upright.fill([&](int x, int y, int c) { return src.at(x, s.src.height - 1 - y, c); });
        GuardedImage<T> dst(s.dst.width, s.dst.height, 1);
        const SuperPlan<TypeParam> plan(s, false);
        const auto lastRow = [](auto& image) { return image.data() + (image.height() - 1) * image.width(); };
        ASSERT_EQ(tpxOk, plan.run(1, lastRow(src), -src.step(), lastRow(dst), -dst.step(),
                                  {0, 0, s.dst.width, s.dst.height}));
        const Expected<T> expected(upright, s.dst);
        EXPECT_TRUE(fits(dst, [&](int x, int y, int c) { return expected(x, s.dst.height - 1 - y, c); }));
    }
}

// ---- Checks -------------------------------------------------------------------------------------------

TYPED_TEST(ResizeSuper, ChecksArgumentsInOrder) {
    using T = typename TypeParam::T;
    using A = ResizeArgs<T>;
    const TpxiSize size{8, 8};
    const TpxiSizeL sizeL{8, 8};
    GuardedImage<T> src(8, 8, 4), dst(8, 8, 4);
    src.randomise(1);
    std::vector<Tpx8u> buffer(10000), init(10000), others(4 * 10000);
    const auto other = [&](int i) { return reinterpret_cast<TpxiResizeSpec*>(others.data() + i * 10000); };
    const auto before = [&] {
        return std::vector<Tpx8u>((Tpx8u*)dst.data(), (Tpx8u*)dst.data() + 8 * dst.step());
    };
    const std::vector<Tpx8u> untouched = before();
    for (const bool longForm : {false, true}) {
        const SuperPlan<TypeParam> plan({size, size}, longForm), otherWidth({size, size}, !longForm);
        TpxiResizeSpec *const linear = other(0), *const antialiasing = other(1), *const doubles = other(2);
        if (longForm) {
            tpxiResizeLinearInit_L(sizeL, sizeL, tpxDataType32f, linear);
            tpxiResizeAntialiasingLinearInit_L(sizeL, sizeL, tpxDataType32f, antialiasing, init.data());
            tpxiResizeLinearInit_L(sizeL, sizeL, tpxDataType64f, doubles);
        } else {
            tpxiResizeLinearInit_32f(size, size, linear);
            tpxiResizeAntialiasingLinearInit(size, size, antialiasing, init.data());
        }
        const A good{src.data(), src.step(),         dst.data(),  dst.step(),   {0, 0},
                     size,       tpxBorderReplicate, plan.spec(), buffer.data()};
        RefusedPlans refused{{otherWidth.spec()}, antialiasing, linear};
        if (longForm) refused.ofOtherCalls.push_back(doubles);
        expectCheckOrder(good, resizeFaults<T>(false, refused, 8), [&](const A& a) -> TpxStatus {
            TpxStatus status = tpxOk;
            for (const int channels : {1, 3, 4}) {
                const TpxStatus one =
                    longForm ? TypeParam::callL(channels)(a.src, a.srcStep, a.dst, a.dstStep, {a.at.x, a.at.y},
                                                          {a.size.width, a.size.height}, a.spec, a.buffer)
                             : TypeParam::call(channels)(a.src, a.srcStep, a.dst, a.dstStep, a.at, a.size,
                                                         a.spec, a.buffer);
                if (channels > 1) EXPECT_EQ(status, one) << "the layouts differ";
                status = one;
            }
            return status;
        });
        EXPECT_EQ(untouched, before());
    }
}

} // namespace
