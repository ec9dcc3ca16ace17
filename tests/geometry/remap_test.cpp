// SPDX-License-Identifier: Apache-2.0
// Remap: every type, layout and interpolation against a model of one sample; maps of any bits; edges.
#include <cfenv>
#include <cmath>
#include <limits>

#include "models/remap.h"
#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;
using tpx::model::Remap;

constexpr int kSmooth = std::numeric_limits<int>::min();
constexpr int kKinds[] = {1, 2, 4, 6, 16};

template <class T>
using MapOf = std::conditional_t<sizeof(T) == 8, Tpx64f, Tpx32f>;
template <class T>
using Call = TpxStatus (*)(const T*, TpxiSize, int, TpxiRect, const MapOf<T>*, int, const MapOf<T>*, int, T*,
                           int, TpxiSize, int);

// A function of each layout.
struct Channels {
    int stored, written;
};
constexpr Channels kLayouts[] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}};

template <class T>
constexpr Call<T> kCalls[4] = {};
#define CALLS(T)                                                                                               \
    template <>                                                                                                \
    constexpr Call<Tpx##T> kCalls<Tpx##T>[4] = {tpxiRemap_##T##_C1R, tpxiRemap_##T##_C3R, tpxiRemap_##T##_C4R, \
                                                tpxiRemap_##T##_AC4R};
CALLS(8u)
CALLS(16u)
CALLS(16s)
CALLS(32f)
CALLS(64f)
#undef CALLS

// Weights of 24 bits or 53; results beside a tie may round either way.
template <class T>
double toleranceOf(int kind) {
    if (kind == 1 || (sizeof(T) == 1 && (kind == 2 || kind == 4))) return 0;
    return std::is_integral_v<T> ? 1 : sizeof(T) == 8 ? 1e-10 : 2e-3;
}

template <class T>
class RemapOf : public ::testing::Test {
 protected:
    using Map = MapOf<T>;

    // Runs a call and compares every sample with the model.
    void expectModel(const Remap& how, int layout, const GuardedImage<T>& src, const GuardedImage<Map>& xMap,
                     const GuardedImage<Map>& yMap, Lie lie = {}) {
        const Channels channels = kLayouts[layout];
        GuardedImage<T> dst(xMap.width(), xMap.height(), channels.stored, lie);
        GuardedImage<T> before(xMap.width(), xMap.height(), channels.stored);
        dst.copySamplesFrom(before.randomise(7));
        ASSERT_EQ(tpxOk, kCalls<T>[layout](src.data(), how.src, src.step(), how.roi, xMap.data(), xMap.step(),
                                           yMap.data(), yMap.step(), dst.data(), dst.step(), dst.size(),
                                           how.interpolation));
        ASSERT_TRUE(dst.paddingIntact());
        for (int y = 0; y < dst.height(); y++)
            for (int x = 0; x < dst.width(); x++)
                for (int c = 0; c < channels.stored; c++) {
                    const T old = before.at(x, y, c), got = dst.at(x, y, c);
                    const double mx = xMap.at(x, y), my = yMap.at(x, y);
                    const T want = c < channels.written
                                       ? how(mx, my, old, [&](int sx, int sy) { return src.at(sx, sy, c); })
                                       : old;
                    // A blend with the old value has the precision of other real arithmetic.
                    const int kind = how.interpolation < 0 ? 6 : how.kind();
                    const bool stays = how.share(mx, my) == 1 || c >= channels.written;
                    const double slack = stays ? 0 : toleranceOf<T>(kind);
                    if (std::abs(double(got) - double(want)) > slack)
                        FAIL() << "position " << mx << ", " << my << " in " << how.src.width << " x "
                               << how.src.height << ", channel " << c << " of layout " << layout
                               << ", interpolation " << (how.interpolation & 31) << ": got " << +got
                               << ", expected " << +want;
                }
    }

    // Positions in and around a rectangle, many of them whole or halves, some at its very edges.
    static void fillMaps(GuardedImage<Map>& xMap, GuardedImage<Map>& yMap, const Remap& how, unsigned seed) {
        std::mt19937 random(seed);
        const auto position = [&](double low, double high) {
            const double margin = how.interpolation < 0 ? 1.25 : 0.5;
            std::uniform_real_distribution<double> around(low - margin, high + margin);
            switch (random() % 8) {
                case 0:
                    return std::round(around(random));
                case 1:
                    return std::round(around(random) * 2) / 2;
                case 2:
                    return low;
                case 3:
                    return high;
                default:
                    return around(random);
            }
        };
        xMap.fill([&](int, int, int) { return position(how.roi.x, how.right()); });
        yMap.fill([&](int, int, int) { return position(how.roi.y, how.bottom()); });
    }
};

using Types = ::testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f, Tpx64f>;
TYPED_TEST_SUITE(RemapOf, Types);

TYPED_TEST(RemapOf, GivesTheModelsSamples) {
    using T = TypeParam;
    using Map = MapOf<T>;
    // The last ones are too small for some kinds, which then are others.
    const struct {
        TpxiSize src;
        TpxiRect roi;
    } sources[] = {{{23, 17}, {0, 0, 23, 17}},      {{23, 17}, {5, 3, 9, 8}}, {{40, 9}, {7, 2, 2147483647, 5}},
                   {{23, 17}, {22, 0, 1, 17}},      {{23, 17}, {4, 0, 1, 1}}, {{9, 9}, {0, 0, 1, 9}},
                   {{6, 6}, {0, 0, 2147483647, 6}}, {{5, 7}, {0, 0, 5, 7}},   {{4, 4}, {0, 0, 4, 4}},
                   {{3, 9}, {0, 0, 3, 9}},          {{2, 2}, {0, 0, 2, 2}},   {{1, 9}, {0, 0, 1, 9}}};
    for (int layout = 0; layout < 4; layout++) {
        int variant = 0;
        for (const auto& source : sources)
            for (int kind : kKinds)
                for (int smooth : {0, kSmooth}) {
                    const Remap how{source.src, source.roi, kind | smooth};
                    const Lie lie = variant % 3 == 0   ? Lie{}
                                    : variant % 3 == 1 ? Lie{5, Edge::Start, 1}
                                                       : Lie{3, Edge::End, 3};
                    GuardedImage<T> src(source.src.width, source.src.height, kLayouts[layout].stored, lie);
                    src.randomise(unsigned(variant));
                    const int width = variant % 4 == 0 ? 300 : 1 + variant % 23;
                    GuardedImage<Map> xMap(width, 4, 1, lie),
                        yMap(width, 4, 1, Lie{lie.padding * 2, lie.edge, 1});
                    this->fillMaps(xMap, yMap, how, unsigned(variant++));
                    ASSERT_NO_FATAL_FAILURE(this->expectModel(how, layout, src, xMap, yMap, lie));
                }
    }
}

// Whole positions give the image itself, up to its edge, and constant images stay constant anywhere.
TYPED_TEST(RemapOf, KeepsWholePixelsAndConstants) {
    using T = TypeParam;
    using Map = MapOf<T>;
    constexpr int kWidth = 37, kHeight = 11;
    GuardedImage<T> src(kWidth, kHeight, 1), constant(kWidth, kHeight, 1), dst(kWidth, kHeight, 1);
    src.randomise(3);
    constant.fill([](int, int, int) { return std::numeric_limits<T>::max() / 3; });
    GuardedImage<Map> xMap(kWidth, kHeight, 1), yMap(kWidth, kHeight, 1);
    const auto run = [&](const GuardedImage<T>& from, int kind) {
        return kCalls<T>[0](from.data(), from.size(), from.step(), {0, 0, kWidth, kHeight}, xMap.data(),
                            xMap.step(), yMap.data(), yMap.step(), dst.data(), dst.step(), dst.size(), kind);
    };
    for (int kind : kKinds) {
        xMap.fill([](int x, int, int) { return x; });
        yMap.fill([](int, int y, int) { return y; });
        ASSERT_EQ(tpxOk, run(src, kind));
        for (int y = 0; y < kHeight; y++)
            for (int x = 0; x < kWidth; x++)
                ASSERT_EQ(dst.at(x, y), src.at(x, y)) << kind << " at " << x << ", " << y;
        std::mt19937 random(9);
        const auto position = [&](int last) {
            const double unit = std::uniform_real_distribution<double>(0, 1)(random);
            const int part = int(random() % 3);
            return part == 0 ? 3 * unit : part == 1 ? last - 3 * unit : last * unit;
        };
        xMap.fill([&](int, int, int) { return position(kWidth - 1); });
        yMap.fill([&](int, int, int) { return position(kHeight - 1); });
        ASSERT_EQ(tpxOk, run(constant, kind));
        const double value = double(constant.at(0, 0));
        for (int y = 0; y < kHeight; y++)
            for (int x = 0; x < kWidth; x++)
                ASSERT_NEAR(double(dst.at(x, y)), value,
                            std::is_integral_v<T> ? 0 : value * 16 * std::numeric_limits<Map>::epsilon())
                    << kind;
    }
}

// Positions of any bits: those that are no numbers, or huge, are outside; nothing outside the images is read.
TYPED_TEST(RemapOf, TakesMapsOfAnyBits) {
    using T = TypeParam;
    using Map = MapOf<T>;
    constexpr Map kInf = std::numeric_limits<Map>::infinity();
    const Map special[] = {Map(NAN),
                           kInf,
                           -kInf,
                           Map(1e30),
                           Map(-1e30),
                           Map(2147483648.0),
                           Map(-0.0),
                           Map(1e-40),
                           std::nextafter(Map(12), kInf),
                           std::nextafter(Map(0), -kInf),
                           Map(11.999999),
                           Map(4)};
    std::mt19937 random(11);
    for (Edge edge : {Edge::End, Edge::Start})
        for (int layout = 0; layout < 4; layout++)
            for (int kind : kKinds) {
                GuardedImage<T> src(13, 13, kLayouts[layout].stored, Lie{0, edge, 0});
                src.randomise(1);
                GuardedImage<Map> xMap(275, 3, 1), yMap(275, 3, 1);
                const auto any = [&](int x, int, int) {
                    const Map bits = x % 2
                                         ? special[random() % std::size(special)]
                                         : Map(std::ldexp(double(random()) - 0x1p31, int(random() % 60) - 50));
                    return bits;
                };
                xMap.fill(any);
                yMap.fill([&](int x, int y, int c) { return x % 5 ? any(x, y, c) : Map(random() % 13); });
                for (int smooth : {0, kSmooth})
                    ASSERT_NO_FATAL_FAILURE(
                        this->expectModel({{13, 13}, {0, 0, 13, 13}, kind | smooth}, layout, src, xMap, yMap));
            }
}

// Every entry of the weights of bytes, with many samples: a wrong last bit shows in few of them.
TEST(Remap, TakesTheCubicOfBytesFromATable) {
    constexpr int kEntries = 1537, kRows = 60;
    GuardedImage<Tpx8u> src(4, kRows, 1), dst(kEntries, kRows, 1);
    src.randomise(5);
    src.fill([&](int x, int y, int) { return y % 4 == x ? 255 : y < 12 ? 0 : src.at(x, y); });
    GuardedImage<Tpx32f> xMap(kEntries, kRows, 1), yMap(kEntries, kRows, 1);
    xMap.fill([](int x, int, int) { return float(x) / 512; });
    yMap.fill([](int, int y, int) { return y; });
    const Remap how{src.size(), {0, 0, 4, kRows}, 4};
    ASSERT_EQ(tpxOk, tpxiRemap_8u_C1R(src.data(), src.size(), src.step(), how.roi, xMap.data(), xMap.step(),
                                      yMap.data(), yMap.step(), dst.data(), dst.step(), dst.size(), 4));
    for (int y = 0; y < kRows; y++)
        for (int x = 0; x < kEntries; x++)
            ASSERT_EQ(dst.at(x, y), (how.sample<Tpx8u>(xMap.at(x, y), yMap.at(x, y),
                                                       [&](int sx, int sy) { return src.at(sx, sy); })))
                << "entry " << x;
}

// Where floats no longer tell all pixels and the halves between them.
TEST(Remap, ReachesTheLastColumnsOfWideImages) {
    for (int width : {(1 << 23) + 9, (1 << 24) + 7}) {
        std::vector<Tpx16u> src(size_t(width) * 6);
        for (int y = 0; y < 6; y++)
            for (int x = width - 16; x < width; x++) src[size_t(y) * width + x] = Tpx16u(1000 * (x % 32) + y);
        const float last = float(width - 1); // a whole number of two pixels
        const float x[] = {last, last - 1, last - 2, last - 4, last + 2}, y[] = {1, 2, 3, 4, 5};
        for (int kind : kKinds) {
            Tpx16u dst[5] = {7, 7, 7, 7, 7};
            ASSERT_EQ(tpxOk, tpxiRemap_16u_C1R(src.data(), {width, 6}, width * 2, {0, 0, width, 6}, x, 20, y,
                                               20, dst, 10, {5, 1}, kind));
            for (int i = 0; i < 4; i++)
                ASSERT_EQ(dst[i], src[size_t(y[i]) * width + size_t(x[i])]) << kind << " at " << x[i];
            ASSERT_EQ(dst[4], 7);
        }
    }
}

TEST(Remap, MixesOnSmoothEdgesInTheThreadsRoundingMode) {
    const Tpx8u src[] = {10, 20, 30, 40};
    const Tpx32f x[] = {-0.5f, -1, 0, 1.5f, -0.5f, 2}, y[] = {0, 0, 0, 0, -0.5f, 1};
    Tpx8u dst[] = {21, 21, 21, 21, 110, 21};
    const auto run = [&](int mode) {
        std::fesetround(mode);
        EXPECT_EQ(tpxOk,
                  tpxiRemap_8u_C1R(src, {2, 2}, 2, {0, 0, 2, 2}, x, 24, y, 24, dst, 6, {6, 1}, 2 | kSmooth));
        std::fesetround(FE_TONEAREST);
    };
    run(FE_UPWARD);
    EXPECT_EQ(dst[0], 16); // 15.5
    EXPECT_EQ(dst[1], 21);
    EXPECT_EQ(dst[2], 10);
    EXPECT_EQ(dst[3], 21); // 20.5
    EXPECT_EQ(dst[4], 85); // three quarters of the old value
    EXPECT_EQ(dst[5], 21);
    dst[0] = 21;
    run(FE_DOWNWARD);
    EXPECT_EQ(dst[0], 15);
}

TEST(Remap, RoundsIntegersToNearestWhateverTheThreadDoes) {
    const Tpx16s src[] = {1, 2, 3, -1, -2, -3, 1, 2, 3, -1, -2, -3};
    const Tpx32f x[] = {0.5f, 1.5f, 1.75f, 3.5f, 4.5f, 4.25f}, y[6] = {};
    const Tpx16s expected[] = {2, 2, 3, -2, -2, -2};
    for (int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO, FE_TONEAREST})
        for (int smooth : {0, kSmooth}) {
            Tpx16s dst[6] = {};
            std::fesetround(mode);
            const TpxStatus status = tpxiRemap_16s_C1R(src, {6, 2}, 12, {0, 0, 6, 2}, x, 24, y, 24, dst, 12,
                                                       {6, 1}, tpxInterpolationLinear | smooth);
            EXPECT_EQ(std::fegetround(), mode);
            std::fesetround(FE_TONEAREST);
            EXPECT_EQ(tpxOk, status);
            for (int i = 0; i < 6; i++) EXPECT_EQ(dst[i], expected[i]) << x[i];
        }
}

TEST(Remap, ChecksInOrder) {
    struct Args {
        const Tpx8u* src;
        TpxiSize srcSize = {4, 4};
        int srcStep = 4;
        TpxiRect roi = {0, 0, 4, 4};
        const Tpx32f *x, *y;
        int xStep = 8, yStep = 8;
        Tpx8u* dst;
        int dstStep = 2;
        TpxiSize size = {2, 2};
        int interpolation = 2 | kSmooth;
    };
    const Tpx8u src[16] = {};
    const Tpx32f map[4] = {};
    Tpx8u dst[4] = {};
    Args good;
    good.src = src;
    good.x = good.y = map;
    good.dst = dst;
    const auto call = [](const Args& a) {
        return tpxiRemap_8u_C1R(a.src, a.srcSize, a.srcStep, a.roi, a.x, a.xStep, a.y, a.yStep, a.dst,
                                a.dstStep, a.size, a.interpolation);
    };
    EXPECT_EQ(tpxOk, call(good));
    Args row = good; // the least that steps may be
    row.size.height = 1;
    row.srcStep = row.xStep = row.yStep = row.dstStep = 1;
    EXPECT_EQ(tpxOk, call(row));
    const std::vector<Fault<Args>> faults = {
        {"pSrc", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
        {"pDst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
        {"pxMap", [](Args& a) { a.x = nullptr; }, tpxErrNullPointer},
        {"pyMap", [](Args& a) { a.y = nullptr; }, tpxErrNullPointer},
        {"srcSize", [](Args& a) { a.srcSize.width = 0; }, tpxErrSize},
        {"srcSize", [](Args& a) { a.srcSize.height = -1; }, tpxErrSize},
        {"srcRoi", [](Args& a) { a.roi.x = -1; }, tpxErrSize},
        {"srcRoi", [](Args& a) { a.roi.y = -1; }, tpxErrSize},
        {"srcRoi", [](Args& a) { a.roi.width = 0; }, tpxErrSize},
        {"srcRoi", [](Args& a) { a.roi.height = -2; }, tpxErrSize},
        {"dstRoiSize", [](Args& a) { a.size.width = 0; }, tpxErrSize},
        {"dstRoiSize", [](Args& a) { a.size.height = 0; }, tpxErrSize},
        {"interpolation", [](Args& a) { a.interpolation = 3 | kSmooth; }, tpxErrInterpolation},
        {"interpolation", [](Args& a) { a.interpolation = 0; }, tpxErrInterpolation},
        {"interpolation", [](Args& a) { a.interpolation = 8; }, tpxErrInterpolation},
        {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
        {"dstStep", [](Args& a) { a.dstStep = -2; }, tpxErrStep},
        {"xMapStep", [](Args& a) { a.xStep = 0; }, tpxErrStep},
        {"yMapStep", [](Args& a) { a.yStep = 0; }, tpxErrStep},
        {"srcRoi", [](Args& a) { a.roi.x = 4; }, tpxWarnNoRoiOverlap},
        {"srcRoi", [](Args& a) { a.roi.y = 4; }, tpxWarnNoRoiOverlap}};
    expectCheckOrder(good, faults, call);
}

} // namespace
