// SPDX-License-Identifier: Apache-2.0
// tpxiBlockMinMax through its exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

template <class T>
using Function = TpxStatus (*)(const T*, int, TpxiSize, T*, int, T*, int, TpxiSize, T*, T*);
template <class T>
constexpr Function<T> kFunction = nullptr;
template <>
constexpr Function<Tpx8u> kFunction<Tpx8u> = tpxiBlockMinMax_8u_C1R;
template <>
constexpr Function<Tpx16u> kFunction<Tpx16u> = tpxiBlockMinMax_16u_C1R;
template <>
constexpr Function<Tpx16s> kFunction<Tpx16s> = tpxiBlockMinMax_16s_C1R;
template <>
constexpr Function<Tpx32f> kFunction<Tpx32f> = tpxiBlockMinMax_32f_C1R;

template <class T>
struct Extremes {
    T min, max;
};

// Of a rectangle that may reach beyond the image. NaN is passed over.
template <class T>
Extremes<T> model(const GuardedImage<T>& src, int left, int top, TpxiSize size) {
    using Limits = std::numeric_limits<T>;
    Extremes<T> e = {Limits::max(), Limits::lowest()};
    if (Limits::has_infinity) e = {Limits::infinity(), -Limits::infinity()};
    for (int y = top; y < src.height() && y - top < size.height; y++)
        for (int x = left; x < src.width() && x - left < size.width; x++) {
            const T v = src.at(x, y);
            if (v < e.min) e.min = v;
            if (v > e.max) e.max = v;
        }
    return e;
}

int blocksOf(int length, int block) { return int((int64_t{length} + block - 1) / block); }

// Both sides, and each alone; with the extremes of the image and without.
template <class T>
void checkImage(const GuardedImage<T>& src, TpxiSize block, Lie minLie = {}, Lie maxLie = {}) {
    const int columns = blocksOf(src.width(), block.width), rows = blocksOf(src.height(), block.height);
    GuardedImage<Tpx64f> expectedMin(columns, rows, 1), expectedMax(columns, rows, 1); // holds all types
    for (int by = 0; by < rows; by++)
        for (int bx = 0; bx < columns; bx++) {
            const Extremes<T> e = model(src, bx * block.width, by * block.height, block);
            expectedMin.set(bx, by, 0, e.min);
            expectedMax.set(bx, by, 0, e.max);
        }
    const Extremes<T> whole = model(src, 0, 0, src.size());
    for (int sides : {3, 1, 2})
        for (int globals : {3, 0, 1, 2}) {
            GuardedImage<T> min(columns, rows, 1, minLie), max(columns, rows, 1, maxLie);
            min.fill([](int, int, int) { return T(99); });
            max.fill([](int, int, int) { return T(99); });
            GuardedBytes wholeMin(sizeof(T)), wholeMax(sizeof(T));
            T* const toMin = reinterpret_cast<T*>(wholeMin.data());
            T* const toMax = reinterpret_cast<T*>(wholeMax.data());
            ASSERT_EQ(kFunction<T>(src.data(), src.step(), src.size(), sides & 1 ? min.data() : nullptr,
                                   sides & 1 ? min.step() : 0, sides & 2 ? max.data() : nullptr,
                                   sides & 2 ? max.step() : 0, block, globals & 1 ? toMin : nullptr,
                                   globals & 2 ? toMax : nullptr),
                      tpxOk);
            const auto wanted = [&](bool asked, const GuardedImage<Tpx64f>& expected) {
                return [=, &expected](int x, int y, int) { return asked ? T(expected.at(x, y)) : T(99); };
            };
            ASSERT_TRUE(matches(min, wanted(sides & 1, expectedMin)))
                << "minima, blocks of " << block.width << " x " << block.height << ", sides " << sides;
            ASSERT_TRUE(matches(max, wanted(sides & 2, expectedMax)))
                << "maxima, blocks of " << block.width << " x " << block.height << ", sides " << sides;
            if (globals & 1) ASSERT_EQ(*toMin, whole.min);
            if (globals & 2) ASSERT_EQ(*toMax, whole.max);
        }
}

template <class T>
class BlockMinMax : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(BlockMinMax, Types);

// ---- Samples --------------------------------------------------------------------------------------------

// Values that leave room on both sides: a sample of neither image nor block would show, as would a lane of a
// register that no sample went into.
template <class T>
void fill(GuardedImage<T>& image, unsigned seed) {
    std::mt19937 random(seed);
    image.fill([&](int, int, int) { return T(int(random() % 200) + (std::is_signed_v<T> ? -100 : 20)); });
}

TYPED_TEST(BlockMinMax, EveryBlockWidth) {
    for (int blockWidth = 1; blockWidth <= 70; blockWidth++)
        for (int width : {1, 3, 17, 33, 64, 131, 300}) {
            GuardedImage<TypeParam> src(width, 5, 1, Lie{0, width % 2 ? Edge::End : Edge::Start});
            fill(src, unsigned(width) + unsigned(blockWidth));
            checkImage(src, {blockWidth, 3});
            if (this->HasFatalFailure()) return;
        }
}

TYPED_TEST(BlockMinMax, EveryWidth) {
    for (int width = 1; width <= 300; width++)
        for (int blockWidth : {1, 2, 3, 4, 5, 8, 13, 16, 32}) {
            GuardedImage<TypeParam> src(width, 3, 1, Lie{5, Edge::End, width % 7});
            fill(src, unsigned(width));
            checkImage(src, {blockWidth, 2}, Lie{3, Edge::Start, 1}, Lie{7, Edge::End, 3});
            if (this->HasFatalFailure()) return;
        }
}

// Heights around every number of rows that are folded at a time.
TYPED_TEST(BlockMinMax, EveryHeight) {
    for (int height = 1; height <= 36; height++)
        for (int blockHeight = 1; blockHeight <= 36; blockHeight++) {
            GuardedImage<TypeParam> src(21, height, 1, Lie{0, height % 2 ? Edge::End : Edge::Start});
            fill(src, unsigned(height));
            checkImage(src, {7, blockHeight});
            if (this->HasFatalFailure()) return;
        }
}

// Images and blocks wider than the pieces in which rows are folded, at the pieces' ends.
TYPED_TEST(BlockMinMax, LongRows) {
    const int piece = 4096 / int(sizeof(TypeParam));
    for (int width : {piece - 1, piece, piece + 1, 2 * piece, 2 * piece + 3, 3 * piece + 100})
        for (int blockWidth : {1, 3, 16, 100, piece / 2, piece - 1, piece, piece + 1, piece + 60, 2 * piece,
                               2 * piece + 1, INT_MAX}) {
            GuardedImage<TypeParam> src(width, 3, 1, Lie{1, Edge::End, 1});
            fill(src, unsigned(width) + unsigned(blockWidth));
            // Extremes in places of their own: the first and the last columns of a row's pieces.
            const auto low = TypeParam(std::is_signed_v<TypeParam> ? -120 : 1);
            const auto high = TypeParam(std::is_signed_v<TypeParam> ? 120 : 250);
            for (int y : {0, 2}) {
                src.set(width - 1, y, 0, y ? low : high);
                src.set(0, y, 0, y ? high : low);
            }
            checkImage(src, {blockWidth, 2});
            checkImage(src, {blockWidth, 2});
            if (this->HasFatalFailure()) return;
        }
}

TYPED_TEST(BlockMinMax, LimitsOfTheType) {
    using Limits = std::numeric_limits<TypeParam>;
    for (TypeParam value : {Limits::lowest(), Limits::min(), TypeParam(0), Limits::max()}) {
        GuardedImage<TypeParam> src(37, 19, 1);
        src.fill([=](int, int, int) { return value; });
        for (int block : {1, 4, 7, 16}) checkImage(src, {block, block});
    }
}

// The largest sizes, whose sums and products leave 32 bits.
TYPED_TEST(BlockMinMax, BlocksMuchLargerThanTheImage) {
    GuardedImage<TypeParam> src(35, 9, 1);
    fill(src, 3);
    for (TpxiSize block : {TpxiSize{INT_MAX, INT_MAX}, {INT_MAX - 1, 1}, {1, INT_MAX}, {35, 9}, {34, INT_MAX}})
        checkImage(src, block);
}

TEST(BlockMinMaxPartial, CutColumnRowAndCorner) {
    GuardedImage<Tpx8u> src(17, 17, 1), min(2, 2, 1), max(2, 2, 1);
    src.fill([](int x, int y, int) {
        return x == 16 && y == 16 ? 7 : x == 16 ? 20 + y : y == 16 ? 60 + x : 100 + x * y % 50;
    });
    ASSERT_EQ(tpxiBlockMinMax_8u_C1R(src.data(), src.step(), src.size(), min.data(), min.step(), max.data(),
                                     max.step(), {16, 16}, nullptr, nullptr),
              tpxOk);
    const int expectedMin[] = {100, 20, 60, 7}, expectedMax[] = {149, 35, 75, 7};
    EXPECT_TRUE(matches(min, [&](int x, int y, int) { return expectedMin[y * 2 + x]; }));
    EXPECT_TRUE(matches(max, [&](int x, int y, int) { return expectedMax[y * 2 + x]; }));
}

// NaN anywhere is passed over; of nothing else there remain the infinities.
TEST(BlockMinMaxFloats, NaNAndInfinities) {
    for (int block : {1, 2, 3, 5, 8, 11, 16})
        for (int kinds : {1, 2, 6}) {
            GuardedImage<Tpx32f> src(67, 35, 1);
            std::mt19937 random(unsigned(block * kinds));
            src.fill([&](int, int, int) {
                const float samples[] = {NAN, -NAN, -3.0f, INFINITY, 2.5f, -INFINITY};
                return samples[random() % unsigned(kinds)];
            });
            src.set(66, 34, 0, 1.0f);
            checkImage(src, {block, block});
        }
}

// ---- Statuses -------------------------------------------------------------------------------------------

TYPED_TEST(BlockMinMax, OrderOfChecks) {
    using T = TypeParam;
    struct Call {
        bool src = true, min = true, max = true;
        TpxiSize size = {5, 5}, block = {2, 2};
        int srcStep = 5 * sizeof(T), minStep = 3 * sizeof(T), maxStep = 3 * sizeof(T);
    };
    const std::vector<Fault<Call>> faults = {
        {"source", [](Call& c) { c.src = false; }, tpxErrNullPointer},
        {"both outputs", [](Call& c) { c.min = c.max = false; }, tpxErrNullPointer},
        {"size", [](Call& c) { c.size.width = 0; }, tpxErrSize},
        {"size", [](Call& c) { c.size.height = -5; }, tpxErrSize},
        {"block", [](Call& c) { c.block.width = INT_MIN; }, tpxErrSize},
        {"block", [](Call& c) { c.block.height = 0; }, tpxErrSize},
        {"source step", [](Call& c) { c.srcStep--; }, tpxErrStep},
        {"source step", [](Call& c) { c.size.width = INT_MAX, c.block.width = INT_MAX; }, tpxErrStep},
        {"minima's step", [](Call& c) { c.minStep--; }, tpxErrStep},
        {"maxima's step", [](Call& c) { c.maxStep = INT_MIN; }, tpxErrStep}};
    T src[64] = {}, dst[64], whole[2];
    const auto run = [&](const Call& c) {
        std::fill_n(dst, 64, T(77));
        std::fill_n(whole, 2, T(77));
        const TpxStatus status =
            kFunction<T>(c.src ? src : nullptr, c.srcStep, c.size, c.min ? dst : nullptr, c.minStep,
                         c.max ? dst + 32 : nullptr, c.maxStep, c.block, whole, whole + 1);
        for (T x : dst)
            if (status != tpxOk) EXPECT_EQ(x, T(77));
        for (T x : whole) EXPECT_EQ(x, T(status == tpxOk ? 0 : 77));
        return status;
    };
    EXPECT_EQ(run(Call{}), tpxOk);
    expectCheckOrder(Call{}, faults, run);
    // The step of an output that is null is not looked at, nor is its pointer needed.
    Call one;
    one.min = false, one.minStep = -1;
    EXPECT_EQ(run(one), tpxOk);
    one.maxStep--;
    EXPECT_EQ(run(one), tpxErrStep);
}

} // namespace
