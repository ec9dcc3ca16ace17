// SPDX-License-Identifier: Apache-2.0
// tpxiResizeCubic, tpxiResizeLanczos and tpxiResizeAntialiasing through their exported names.
#include <gtest/gtest.h>

#include <cfenv>

#include "models/resize.h"
#include "tests/support/guarded.h"
#include "tests/support/resize_faults.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

// ---- The functions of each type -----------------------------------------------------------------------

template <class T>
using Call = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, TpxBorderType, const T*,
                           const TpxiResizeSpec*, Tpx8u*);
template <class T>
using CallL = TpxStatus (*)(const T*, TpxSizeL, T*, TpxSizeL, TpxiPointL, TpxiSizeL, TpxBorderType, const T*,
                            const TpxiResizeSpec*, Tpx8u*);

enum Family { Cubic, Lanczos, Antialiasing };

#define LAYOUTS(op, type, end) \
    { op##_##type##_C1R##end, op##_##type##_C3R##end, op##_##type##_C4R##end }
#define NAMES(type)                                                                           \
    struct Names##type {                                                                      \
        using T = Tpx##type;                                                                  \
        static constexpr TpxDataType kType = tpxDataType##type;                               \
        static constexpr auto initCubic = tpxiResizeCubicInit_##type;                         \
        static constexpr auto initLanczos = tpxiResizeLanczosInit_##type;                     \
        static Call<T> call(Family family, int layout) {                                      \
            static const Call<T> kCalls[3][3] = {LAYOUTS(tpxiResizeCubic, type, ),            \
                                                 LAYOUTS(tpxiResizeLanczos, type, ),          \
                                                 LAYOUTS(tpxiResizeAntialiasing, type, )};    \
            return kCalls[family][layout];                                                    \
        }                                                                                     \
        static CallL<T> callL(Family family, int layout) {                                    \
            static const CallL<T> kCalls[3][3] = {LAYOUTS(tpxiResizeCubic, type, _L),         \
                                                  LAYOUTS(tpxiResizeLanczos, type, _L),       \
                                                  LAYOUTS(tpxiResizeAntialiasing, type, _L)}; \
            return kCalls[family][layout];                                                    \
        }                                                                                     \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32f)
using AllTypes = testing::Types<Names8u, Names16u, Names16s, Names32f>;

// ---- Kinds of plans -----------------------------------------------------------------------------------

struct Kind {
    const char* name;
    Family family;
    int lobes;
    float b, c;
    Kernel kernel;

    bool antialiasing() const { return family == Antialiasing; }
    int minimum() const { return lobes == 1 ? 2 : lobes == 3 ? 6 : 4; }
    TpxInterpolationType interpolation() const {
        return family == Cubic || (antialiasing() && b >= 0) ? tpxInterpolationCubic
               : lobes == 1                                  ? tpxInterpolationLinear
                                                             : tpxInterpolationLanczos;
    }
};
const Kind kCatmullRom = {"cubic of 0, 0.5", Cubic, 2, 0, 0.5f, cubicKernel(0, 0.5)};
const Kind kSpline = {"cubic of 1, 0", Cubic, 2, 1, 0, cubicKernel(1, 0)};
const Kind kLanczos2 = {"Lanczos of 2 lobes", Lanczos, 2, -1, 0, lanczosKernel(2)};
const Kind kLanczos3 = {"Lanczos of 3 lobes", Lanczos, 3, -1, 0, lanczosKernel(3)};
const Kind kSmoothLinear = {"antialiasing linear", Antialiasing, 1, -1, 0, triangleKernel()};
const Kind kSmoothCubic = {"antialiasing cubic", Antialiasing, 2, 0.3f, 0.4f, cubicKernel(0.3f, 0.4f)};
const Kind kSmoothLanczos2 = {"antialiasing Lanczos of 2", Antialiasing, 2, -1, 0, directLanczosKernel(2)};
const Kind kSmoothLanczos3 = {"antialiasing Lanczos of 3", Antialiasing, 3, -1, 0, directLanczosKernel(3)};
const Kind kKinds[] = {kCatmullRom,
                       kSpline,
                       {"cubic of 0.5, 0.3", Cubic, 2, 0.5f, 0.3f, cubicKernel(0.5, 0.3)},
                       {"cubic of 0.2, 0.7", Cubic, 2, 0.2f, 0.7f, cubicKernel(0.2f, 0.7f)},
                       kLanczos2,
                       kLanczos3,
                       kSmoothLinear,
                       kSmoothCubic,
                       kSmoothLanczos2,
                       kSmoothLanczos3};

// A plan in memory of exactly the size asked for, at any address, between unreadable pages.
template <class Names>
class Plan {
 public:
    using T = typename Names::T;

    Plan(const Kind& kind, TpxiSize src, TpxiSize dst, bool longForm = false, int misalign = 1)
        : kind_(kind), long_(longForm), misalign_(misalign) {
        const TpxiSizeL s{src.width, src.height}, d{dst.width, dst.height};
        const auto lobes = Tpx32u(kind.lobes);
        TpxSizeL bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(s, d, Names::kType, kind.interpolation(), kind.antialiasing(),
                                             &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes), size_t(misalign));
        GuardedBytes temporary{size_t(init), size_t(misalign)};
        Tpx8u* const t = temporary.data();
        TpxStatus status = tpxErrBadArgument;
        if (kind.interpolation() == tpxInterpolationLinear)
            status = longForm ? tpxiResizeAntialiasingLinearInit_L(s, d, Names::kType, spec(), t)
                              : tpxiResizeAntialiasingLinearInit(src, dst, spec(), t);
        else if (kind.interpolation() == tpxInterpolationCubic)
            status = kind.antialiasing()
                         ? longForm ? tpxiResizeAntialiasingCubicInit_L(s, d, Names::kType, kind.b, kind.c,
                                                                        spec(), t)
                                    : tpxiResizeAntialiasingCubicInit(src, dst, kind.b, kind.c, spec(), t)
                     : longForm ? tpxiResizeCubicInit_L(s, d, Names::kType, kind.b, kind.c, spec(), t)
                                : Names::initCubic(src, dst, kind.b, kind.c, spec(), t);
        else
            status = kind.antialiasing()
                         ? longForm ? tpxiResizeAntialiasingLanczosInit_L(s, d, Names::kType, lobes, spec(), t)
                                    : tpxiResizeAntialiasingLanczosInit(src, dst, lobes, spec(), t)
                     : longForm ? tpxiResizeLanczosInit_L(s, d, Names::kType, lobes, spec(), t)
                                : Names::initLanczos(src, dst, lobes, spec(), t);
        EXPECT_EQ(tpxOk, status);
    }

    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(memory_->data()); }

    // The pixels that a tile's source rectangle has, and the borders around it.
    TpxiRect srcRect(TpxiRect tile) const {
        TpxiPointL at;
        TpxiSizeL size;
        TpxiPoint atShort;
        TpxiSize sizeShort;
        if (long_) {
            EXPECT_GE(tpxiResizeGetSrcRoi_L(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size),
                      0);
            return {int(at.x), int(at.y), int(size.width), int(size.height)};
        }
        EXPECT_GE(
            tpxiResizeGetSrcRoi_8u(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &atShort, &sizeShort),
            0);
        return {atShort.x, atShort.y, sizeShort.width, sizeShort.height};
    }
    TpxiBorderSize borders() const {
        TpxiBorderSize size;
        TpxiBorderSizeL sizeL;
        if (!long_) {
            EXPECT_EQ(tpxOk, tpxiResizeGetBorderSize_8u(spec(), &size));
            return size;
        }
        EXPECT_EQ(tpxOk, tpxiResizeGetBorderSize_L(spec(), &sizeL));
        return {int(sizeL.left), int(sizeL.top), int(sizeL.right), int(sizeL.bottom)};
    }

    // One tile with a work buffer of exactly the size asked for, full of NaN.
    TpxStatus run(int channels, const T* src, int srcStep, T* dst, int dstStep, TpxiRect tile,
                  TpxBorderType border = tpxBorderReplicate) const {
        const int layout = channels == 1 ? 0 : channels == 3 ? 1 : 2;
        TpxSizeL bytes = 0;
        int bytesShort = 0;
        if (long_)
            EXPECT_GE(tpxiResizeGetBufferSize_L(spec(), {tile.width, tile.height}, Tpx32u(channels), &bytes),
                      0);
        else
            EXPECT_GE(
                tpxiResizeGetBufferSize_8u(spec(), {tile.width, tile.height}, Tpx32u(channels), &bytesShort),
                0);
        GuardedBytes work{size_t(bytes + bytesShort), size_t(misalign_)};
        work.fill(0xFF);
        return long_ ? Names::callL(kind_.family, layout)(src, srcStep, dst, dstStep, {tile.x, tile.y},
                                                          {tile.width, tile.height}, border, nullptr, spec(),
                                                          work.data())
                     : Names::call(kind_.family, layout)(src, srcStep, dst, dstStep, {tile.x, tile.y},
                                                         {tile.width, tile.height}, border, nullptr, spec(),
                                                         work.data());
    }

 private:
    Kind kind_;
    bool long_;
    int misalign_;
    std::unique_ptr<GuardedBytes> memory_;
};

// ---- Images beside the model ----------------------------------------------------------------------------

// Single precision keeps 24 bits of weights, of their kernels' polynomials, which cancel, and of sums; integers
// are rounded from there.
template <class T, class Exact>
::testing::AssertionResult near(const GuardedImage<T>& image, Exact exact) {
    constexpr double most = std::is_floating_point_v<T> ? 1000 : double(std::numeric_limits<T>::max());
    constexpr double rounding = std::is_floating_point_v<T> ? 0 : 0.5;
    return matches(image, [&](int x, int y, int c) -> T {
        const double want = exact(x, y, c), got = double(image.at(x, y, c));
        const double kept = std::is_floating_point_v<T>
                                ? want
                                : std::clamp(want, double(std::numeric_limits<T>::lowest()),
                                             double(std::numeric_limits<T>::max()));
        return std::fabs(got - kept) <= rounding + most * (rounding == 0 ? 1e-5 : 3e-6) ? image.at(x, y, c)
                                                                                        : T(std::lrint(kept));
    });
}

const Lie kLies[] = {{0, Edge::End, 0}, {24, Edge::Start, 1}, {8, Edge::End, 3}};

struct Sizes {
    TpxiSize src, dst;
};

template <class Names>
class ResizeTaps : public testing::Test {
 protected:
    using T = typename Names::T;

    static void expectWholeImage(const Kind& kind, const Sizes& s, int channels, unsigned seed) {
        GuardedImage<T> src(s.src.width, s.src.height, channels, kLies[seed % 3]);
        src.randomise(seed);
        GuardedImage<T> dst(s.dst.width, s.dst.height, channels, kLies[(seed + 1) % 3]);
        const Plan<Names> plan(kind, s.src, s.dst, seed % 2, int(seed % 64));
        ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), dst.data(), dst.step(),
                                  {0, 0, s.dst.width, s.dst.height}));
        const TapAxis ax(s.src.width, s.dst.width, kind.kernel, kind.antialiasing()),
            ay(s.src.height, s.dst.height, kind.kernel, kind.antialiasing());
        ASSERT_TRUE(near(dst,
                         [&](int x, int y, int c) {
                             return tapSample(ax, ay, x, y, [&](int i, int j) {
                                 return src.at(std::clamp(i, 0, s.src.width - 1),
                                               std::clamp(j, 0, s.src.height - 1), c);
                             });
                         }))
            << kind.name << ", " << channels << " channels, source " << s.src.width << " x " << s.src.height;
    }
};
TYPED_TEST_SUITE(ResizeTaps, AllTypes);

// Up, down, equal, primes, far reductions, and widths around groups of positions.
TYPED_TEST(ResizeTaps, WholeImages) {
    const Sizes sizes[] = {{{6, 6}, {6, 6}},     {{6, 7}, {1, 1}},     {{9, 6}, {70, 5}},  {{64, 48}, {96, 31}},
                           {{96, 31}, {64, 40}}, {{31, 29}, {17, 13}}, {{6, 40}, {3, 41}}, {{200, 20}, {7, 3}},
                           {{53, 7}, {211, 9}},  {{33, 90}, {15, 8}},  {{16, 16}, {8, 8}}};
    unsigned seed = 1;
    for (const Kind& kind : kKinds)
        for (const Sizes& s : sizes)
            this->expectWholeImage(kind, s, seed % 3 == 0 ? 4 : seed % 3 == 1 ? 1 : 3, seed), seed++;
    for (int width = 1; width <= 26; width++)
        for (const int src : {6, 17, 90}) {
            const Kind& kind = kKinds[seed % std::size(kKinds)];
            this->expectWholeImage(kind, {{src, 6}, {width, 4}},
                                   seed % 3 == 0   ? 4
                                   : seed % 3 == 1 ? 1
                                                   : 3,
                                   seed);
            seed++;
        }
}

// More columns than a band has; more taps along x than are read at a time, and more rows than are kept on the
// stack, with an image that ends at an unreadable page.
TYPED_TEST(ResizeTaps, WideImagesAndFarReductions) {
    unsigned seed = 1;
    for (const int channels : {1, 3, 4}) {
        this->expectWholeImage(kLanczos3, {{700, 7}, {1700, 6}}, channels, seed++);
        this->expectWholeImage(kCatmullRom, {{2000, 9}, {1300, 5}}, channels, seed++);
        this->expectWholeImage(kSmoothLanczos3, {{5000, 6}, {11, 3}}, channels, seed++);
        this->expectWholeImage(kSmoothCubic, {{6, 3000}, {9, 4}}, channels, seed++);
        this->expectWholeImage(kCatmullRom, {{3000, 3000}, {3, 2}}, channels, seed++);
    }
}

// Every tile gets exactly the pixels that it may read: its source rectangle and, where the source goes on, the
// plan's border. The bytes are those of one call.
TYPED_TEST(ResizeTaps, TilesAreTheSameAndReadNoMore) {
    using T = typename TypeParam::T;
    unsigned seed = 1;
    for (const Kind& kind : kKinds)
        for (const Sizes& s : {Sizes{{40, 30}, {97, 75}}, Sizes{{100, 75}, {33, 22}}, Sizes{{31, 29}, {31, 9}}})
            for (const TpxiSize tileSize : {TpxiSize{7, 3}, {33, 40}}) {
                const int channels = seed % 3 == 0 ? 1 : seed % 3 == 1 ? 3 : 4;
                GuardedImage<T> src(s.src.width, s.src.height, channels),
                    whole(s.dst.width, s.dst.height, channels);
                src.randomise(seed++);
                const Plan<TypeParam> plan(kind, s.src, s.dst, seed % 2);
                ASSERT_EQ(tpxOk, plan.run(channels, src.data(), src.step(), whole.data(), whole.step(),
                                          {0, 0, s.dst.width, s.dst.height}));
                const TpxiBorderSize reach = plan.borders();
                for (int y = 0; y < s.dst.height; y += tileSize.height)
                    for (int x = 0; x < s.dst.width; x += tileSize.width) {
                        const TpxiRect tile{x, y, std::min(tileSize.width, s.dst.width - x),
                                            std::min(tileSize.height, s.dst.height - y)};
                        const TpxiRect from = plan.srcRect(tile);
                        // What lies in memory around the rectangle, and the sides on which all of the reach
                        // does.
                        const int l = std::min(int(reach.left), from.x), t = std::min(int(reach.top), from.y);
                        const int r = std::min(int(reach.right), s.src.width - from.x - from.width);
                        const int b = std::min(int(reach.bottom), s.src.height - from.y - from.height);
                        GuardedImage<T> seen(l + from.width + r, t + from.height + b, channels,
                                             {0, (x ^ y) & 1 ? Edge::Start : Edge::End, 0});
                        seen.fill(
                            [&](int i, int j, int c) { return src.at(from.x - l + i, from.y - t + j, c); });
                        GuardedImage<T> dst(tile.width, tile.height, channels);
                        const TpxBorderType border = tpxBorderReplicate |
                                                     (l == int(reach.left) ? tpxBorderInMemLeft : 0) |
                                                     (t == int(reach.top) ? tpxBorderInMemTop : 0) |
                                                     (r == int(reach.right) ? tpxBorderInMemRight : 0) |
                                                     (b == int(reach.bottom) ? tpxBorderInMemBottom : 0);
                        const auto first = reinterpret_cast<const Tpx8u*>(seen.data()) + t * seen.step() +
                                           l * channels * int(sizeof(T));
                        ASSERT_EQ(tpxOk, plan.run(channels, reinterpret_cast<const T*>(first), seen.step(),
                                                  dst.data(), dst.step(), tile, border));
                        ASSERT_TRUE(
                            matches(dst, [&](int i, int j, int c) { return whole.at(x + i, y + j, c); }))
                            << kind.name << ", tile at " << x << ", " << y;
                    }
            }
}

// Every set of flags, on a source in the middle of a larger image.
TYPED_TEST(ResizeTaps, ReadsRealPixelsOnSidesInMemory) {
    using T = typename TypeParam::T;
    const Sizes s{{9, 8}, {23, 5}};
    constexpr int kReach = 6;
    for (const Kind& kind : {kCatmullRom, kLanczos3, kSmoothLanczos3})
        for (TpxBorderType border = 1; border <= 0xF1; border += 0x10) {
            const TpxBorderType word = border == 0xF1 ? TpxBorderType(tpxBorderInMemAll) : border;
            const int channels = border & 0x20 ? 3 : 1;
            GuardedImage<T> outer(s.src.width + 2 * kReach, s.src.height + 2 * kReach, channels);
            outer.randomise(border);
            const auto first = reinterpret_cast<const Tpx8u*>(outer.data()) + kReach * outer.step() +
                               kReach * channels * int(sizeof(T));
            const Plan<TypeParam> plan(kind, s.src, s.dst);
            GuardedImage<T> dst(s.dst.width, s.dst.height, channels);
            ASSERT_EQ(tpxOk, plan.run(channels, reinterpret_cast<const T*>(first), outer.step(), dst.data(),
                                      dst.step(), {0, 0, s.dst.width, s.dst.height}, word));
            const TapAxis ax(s.src.width, s.dst.width, kind.kernel, kind.antialiasing()),
                ay(s.src.height, s.dst.height, kind.kernel, kind.antialiasing());
            ASSERT_TRUE(near(dst,
                             [&](int x, int y, int c) {
                                 return tapSample(ax, ay, x, y, [&](int i, int j) {
                                     if (!(word & tpxBorderInMemLeft)) i = std::max(i, 0);
                                     if (!(word & tpxBorderInMemTop)) j = std::max(j, 0);
                                     if (!(word & tpxBorderInMemRight)) i = std::min(i, s.src.width - 1);
                                     if (!(word & tpxBorderInMemBottom)) j = std::min(j, s.src.height - 1);
                                     return outer.at(i + kReach, j + kReach, c);
                                 });
                             }))
                << kind.name << ", border " << std::hex << word;
        }
}

TYPED_TEST(ResizeTaps, LanczosCopiesAtEqualSizesAndKeepsConstantImages) {
    using T = typename TypeParam::T;
    const TpxiSize size{40, 21};
    GuardedImage<T> src(size.width, size.height, 3), same(size.width, size.height, 3);
    src.randomise(7);
    for (const Kind& kind : {kLanczos2, kLanczos3}) {
        const Plan<TypeParam> plan(kind, size, size);
        ASSERT_EQ(tpxOk, plan.run(3, src.data(), src.step(), same.data(), same.step(), {0, 0, 40, 21}));
        EXPECT_TRUE(matches(same, [&](int x, int y, int c) { return src.at(x, y, c); })) << kind.name;
    }
    const T most = std::is_floating_point_v<T> ? T(1) : std::numeric_limits<T>::max();
    src.fill([&](int, int, int) { return most; });
    for (const Kind& kind : kKinds)
        for (const TpxiSize to : {TpxiSize{97, 50}, {13, 8}, {40, 3}}) {
            if (std::is_floating_point_v<T>) break;
            GuardedImage<T> dst(to.width, to.height, 3);
            const Plan<TypeParam> plan(kind, size, to);
            ASSERT_EQ(tpxOk,
                      plan.run(3, src.data(), src.step(), dst.data(), dst.step(), {0, 0, to.width, to.height}));
            EXPECT_TRUE(matches(dst, [&](int, int, int) { return most; })) << kind.name;
        }
}

// Sums run in the order of the taps, along x and then along y: in single precision the last bit tells.
TEST(ResizeTapsOrder, SumsRunFromTheLeftAndFromTheTop) {
    const TpxiSize size{4, 4}, to{1, 1};
    const float along[4] = {-0.0625f, 0.5625f, 0.5625f, -0.0625f}; // Catmull and Rom's, half-way
    GuardedImage<Tpx32f> src(4, 4, 1), dst(1, 1, 1);
    for (unsigned seed = 1; seed < 50; seed++) {
        src.randomise(seed);
        const Plan<Names32f> plan(kCatmullRom, size, to);
        ASSERT_EQ(tpxOk, plan.run(1, src.data(), src.step(), dst.data(), dst.step(), {0, 0, 1, 1}));
        volatile float sum = 0;
        for (int y = 0; y < 4; y++) {
            volatile float row = along[0] * src.at(0, y);
            for (int x = 1; x < 4; x++) {
                const volatile float product = along[x] * src.at(x, y);
                row = row + product;
            }
            const volatile float product = along[y] * row;
            sum = y == 0 ? product : sum + product;
        }
        EXPECT_EQ(sum, dst.at(0, 0));
    }
}

// Stretched kernels have taps without weight at their ends. What is not a number shows through them all the
// same.
TEST(ResizeTapsOrder, FloatsReadTapsWithoutWeight) {
    const TpxiSize size{48, 6}, to{32, 6};
    GuardedImage<Tpx32f> src(48, 6, 1), dst(32, 6, 1);
    const Plan<Names32f> plan(kSmoothCubic, size, to);
    for (int at = 0; at < size.width; at++) {
        src.fill([&](int x, int, int) { return x == at ? std::numeric_limits<float>::infinity() : 1.f; });
        ASSERT_EQ(tpxOk, plan.run(1, src.data(), src.step(), dst.data(), dst.step(), {0, 0, 32, 6}));
        for (int x = 4; x < to.width - 4; x++) {
            const int below = int(std::floor((x + 0.5) * 1.5 - 0.5));
            EXPECT_EQ(at < below - 3 || at > below + 4, std::isfinite(dst.at(x, 2))) << at << " " << x;
        }
    }
}

TYPED_TEST(ResizeTaps, OvershootSaturatesAndTheThreadsRoundingHolds) {
    using T = typename TypeParam::T;
    if (std::is_floating_point_v<T>) return;
    const T least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    const TpxiSize size{24, 6}, to{61, 6};
    GuardedImage<T> step(24, 6, 1), dst(61, 6, 1);
    step.fill([&](int x, int, int) { return x < 12 ? least : most; });
    const Plan<TypeParam> plan(kCatmullRom, size, to);
    ASSERT_EQ(tpxOk, plan.run(1, step.data(), step.step(), dst.data(), dst.step(), {0, 0, 61, 6}));
    for (int x = 0; x < 61; x++)
        if (x < 29)
            EXPECT_EQ(least, dst.at(x, 3)) << x;
        else if (x > 31)
            EXPECT_EQ(most, dst.at(x, 3)) << x;

    // Halfway between two pixels, whose mean is a tie.
    GuardedImage<T> src(4, 4, 1), one(1, 1, 1);
    src.fill([](int x, int, int) { return x < 2 ? 10 : 11; });
    const Plan<TypeParam> halfway(kCatmullRom, {4, 4}, {1, 1});
    for (const auto& [mode, want] : {std::pair{FE_TONEAREST, 10}, {FE_UPWARD, 11}, {FE_DOWNWARD, 10}}) {
        std::fesetround(mode);
        const TpxStatus status = halfway.run(1, src.data(), src.step(), one.data(), one.step(), {0, 0, 1, 1});
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(tpxOk, status);
        EXPECT_EQ(T(want), one.at(0, 0));
    }
}

// ---- Checks ---------------------------------------------------------------------------------------------

TYPED_TEST(ResizeTaps, ChecksInOrder) {
    using T = typename TypeParam::T;
    using A = ResizeArgs<T>;
    const TpxiSize size{8, 8};
    GuardedImage<T> src(8, 8, 1), dst(8, 8, 1);
    src.randomise(1);
    std::vector<Tpx8u> buffer(100000);
    const auto bytes = [&] {
        return std::vector<Tpx8u>((Tpx8u*)dst.data(), (Tpx8u*)dst.data() + 8 * dst.step());
    };
    const std::vector<Tpx8u> untouched = bytes();
    for (const Family family : {Cubic, Lanczos, Antialiasing})
        for (const bool longForm : {false, true}) {
            const Kind& own = family == Cubic ? kCatmullRom : family == Lanczos ? kLanczos2 : kSmoothCubic;
            const Kind& other = family == Cubic ? kLanczos2 : kCatmullRom;
            const Plan<TypeParam> plan(own, size, size, longForm), otherWidth(own, size, size, !longForm),
                otherKind(other, size, size, longForm),
                otherSharpness(family == Antialiasing ? kLanczos3 : kSmoothCubic, size, size, longForm);
            std::vector<Tpx8u> memory(5000);
            const auto doubles = reinterpret_cast<TpxiResizeSpec*>(memory.data());
            ASSERT_EQ(tpxOk, tpxiResizeLinearInit_L({8, 8}, {8, 8}, tpxDataType64f, doubles));

            const A good{src.data(), src.step(),         dst.data(),  dst.step(),   {0, 0},
                         size,       tpxBorderReplicate, plan.spec(), buffer.data()};
            RefusedPlans refused{{otherWidth.spec()},
                                 otherSharpness.spec(),
                                 family == Antialiasing ? nullptr : otherKind.spec()};
            if (longForm) refused.ofOtherCalls.push_back(doubles);
            expectCheckOrder(good, resizeFaults<T>(true, refused, 8), [&](const A& a) -> TpxStatus {
                TpxStatus status = tpxOk;
                for (int n = 0; n < 3; n++) {
                    const TpxStatus one =
                        longForm ? TypeParam::callL(family, n)(a.src, a.srcStep, a.dst, a.dstStep,
                                                               {a.at.x, a.at.y}, {a.size.width, a.size.height},
                                                               a.border, nullptr, a.spec, a.buffer)
                                 : TypeParam::call(family, n)(a.src, a.srcStep, a.dst, a.dstStep, a.at, a.size,
                                                              a.border, nullptr, a.spec, a.buffer);
                    if (n > 0) EXPECT_EQ(status, one) << "the layouts differ";
                    status = one;
                }
                return status;
            });
            EXPECT_EQ(untouched, bytes());

            // Larger than the destination: the part that fits is made.
            const Plan<TypeParam> larger(own, size, {10, 9}, longForm);
            GuardedImage<T> part(6, 4, 1);
            const TpxiRect from = larger.srcRect({4, 5, 9, 9});
            EXPECT_EQ(tpxWarnValueAdjusted, larger.run(1, &src.data()[from.y * 8 + from.x], src.step(),
                                                       part.data(), part.step(), {4, 5, 11, 9}));
        }
}

} // namespace
