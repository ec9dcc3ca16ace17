// SPDX-License-Identifier: Apache-2.0
// Sums along rows and columns, and the mean of 64f: all that the mask covers is memory, and nothing else is.
#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace tpx::test {
namespace {

template <class S>
using SumWindow = TpxStatus (*)(const S*, int, Tpx32f*, int, TpxiSize, int, int);

template <class S>
void expectSums(SumWindow<S> sum, bool alongRows, int channels, TpxiSize size, int mask, unsigned seed) {
    const int anchor = int(seed) % mask;
    GuardedImage<S> src(size.width + (alongRows ? mask - 1 : 0), size.height + (alongRows ? 0 : mask - 1),
                        channels, {int(seed % 2) * 6, seed % 3 ? Edge::End : Edge::Start, 0});
    src.randomise(seed);
    GuardedImage<Tpx32f> dst(size.width, size.height, channels,
                             {int(seed % 5) * 4, Edge::End, seed % 2 ? 8 : 0});
    const S* const at = reinterpret_cast<const S*>(
        reinterpret_cast<const char*>(src.data() + (alongRows ? anchor * channels : 0)) +
        ptrdiff_t(alongRows ? 0 : anchor) * src.step());
    ASSERT_EQ(sum(at, src.step(), dst.data(), dst.step(), size, mask, anchor), tpxOk);
    ASSERT_TRUE(matches(dst,
                        [&](int x, int y, int c) {
                            int64_t exact = 0;
                            for (int k = 0; k < mask; k++)
                                exact += int64_t(alongRows ? src.at(x + k, y, c) : src.at(x, y + k, c));
                            return Tpx32f(exact);
                        }))
        << "mask " << mask << ", anchor " << anchor;
}

template <class S>
void sweepSums(const std::vector<SumWindow<S>>& rows, const std::vector<SumWindow<S>>& columns) {
    unsigned seed = 0;
    for (size_t k = 0; k < 3; k++) {
        const int channels = k == 0 ? 1 : int(k) + 2;
        const auto both = [&](TpxiSize size, int mask) {
            expectSums(rows[k], true, channels, size, mask, seed++);
            expectSums(columns[k], false, channels, size, mask, seed++);
        };
        for (int mask : {1, 2, 3, 5, 8, 13, 100})
            for (int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 33, 130}) both({width, 3}, mask);
        both({1100, 40}, 6);
        both({9, 5}, 3100);  // past a tile
        both({4, 3}, 70000); // past 32 bits
    }
}

#define SUMS(T, direction)                                                                \
    std::vector<SumWindow<Tpx##T>> {                                                      \
        tpxiSumWindow##direction##_##T##32f_C1R, tpxiSumWindow##direction##_##T##32f_C3R, \
            tpxiSumWindow##direction##_##T##32f_C4R                                       \
    }

TEST(WindowSums, AreExactAndRoundedOnce) {
    sweepSums<Tpx8u>(SUMS(8u, Row), SUMS(8u, Column));
    sweepSums<Tpx16u>(SUMS(16u, Row), SUMS(16u, Column));
    sweepSums<Tpx16s>(SUMS(16s, Row), SUMS(16s, Column));
}

struct Args {
    const Tpx8u* src;
    Tpx32f* dst;
    TpxiSize size;
    int mask, anchor;
};

TEST(WindowSums, ChecksInTheirOrder) {
    GuardedImage<Tpx8u> src(10, 4, 1);
    GuardedImage<Tpx32f> dst(8, 2, 1);
    dst.fill([](int, int, int) { return 7; });
    for (const auto sum : {tpxiSumWindowRow_8u32f_C1R, tpxiSumWindowColumn_8u32f_C1R}) {
        const auto call = [&](const Args& a) {
            return sum(a.src, src.step(), a.dst, dst.step(), a.size, a.mask, a.anchor);
        };
        expectCheckOrder(Args{src.data(), dst.data(), {8, 2}, 3, 0},
                         std::vector<Fault<Args>>{
                             {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
                             {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
                             {"mask", [](Args& a) { a.mask = 0; }, tpxErrMaskSize},
                             {"anchor", [](Args& a) { a.anchor = -1; }, tpxErrAnchor},
                             {"anchor", [](Args& a) { a.anchor = 3; }, tpxErrAnchor},
                             {"no pixels", [](Args& a) { a.size.height = 0; }, tpxOk},
                         },
                         call);
        dst.fill([](int, int, int) { return 7; });
        for (const TpxiSize none : {TpxiSize{8, 0}, {0, 2}, {-5, 2}, {8, -1}})
            EXPECT_EQ(call({src.data(), dst.data(), none, 3, 0}), tpxOk);
        EXPECT_TRUE(matches(dst, [](int, int, int) { return 7; }));
    }
}

// Integers, whose sums are exact.
void expectMeans64f(TpxiSize size, TpxiSize mask, TpxiPoint anchor, unsigned seed) {
    GuardedImage<Tpx64f> src(size.width + mask.width - 1, size.height + mask.height - 1, 1,
                             {int(seed % 2) * 8, seed % 3 ? Edge::End : Edge::Start, 0});
    src.fill([&](int x, int y, int) { return (x * 37 + y * 101 + int(seed)) % 251 - 100; });
    GuardedImage<Tpx64f> dst(size.width, size.height, 1, {int(seed % 3) * 8, Edge::End, 0});
    const auto at = reinterpret_cast<const Tpx64f*>(reinterpret_cast<const char*>(src.data() + anchor.x) +
                                                    ptrdiff_t(anchor.y) * src.step());
    ASSERT_EQ(tpxiFilterBox_64f_C1R(at, src.step(), dst.data(), dst.step(), size, mask, anchor), tpxOk);
    ASSERT_TRUE(matches(dst,
                        [&](int x, int y, int) {
                            double sum = 0;
                            for (int r = 0; r < mask.height; r++)
                                for (int q = 0; q < mask.width; q++) sum += src.at(x + q, y + r);
                            return sum * (1.0 / (double(mask.width) * double(mask.height)));
                        }))
        << "mask " << mask.width << "x" << mask.height;
}

TEST(WindowSums, MeansOf64f) {
    unsigned seed = 0;
    for (const TpxiSize mask : {TpxiSize{1, 1}, {3, 3}, {5, 5}, {2, 1}, {1, 4}, {6, 7}, {15, 15}, {3, 20}})
        for (int width : {1, 2, 3, 4, 5, 7, 8, 9, 31, 64})
            for (int height : {1, 2, 41}) {
                expectMeans64f({width, height}, mask, {int(seed) % mask.width, int(seed / 3) % mask.height},
                               seed + 1);
                seed++;
            }
    expectMeans64f({2100, 3}, {4, 3}, {0, 0}, 1);
    expectMeans64f({5, 3}, {1300, 2}, {700, 1}, 2);
    expectMeans64f({3, 3}, {3, 3}, {5, -4}, 3); // the anchor need not lie on the mask
}

struct Args64f {
    const Tpx64f* src;
    Tpx64f* dst;
    int srcStep, dstStep;
    TpxiSize size, mask;
};

TEST(WindowSums, ChecksOf64fInTheirOrder) {
    GuardedImage<Tpx64f> src(10, 10, 1), dst(8, 8, 1);
    src.fill([](int, int, int) { return 1; });
    expectCheckOrder(
        Args64f{src.data(), dst.data(), 80, 64, {8, 8}, {3, 3}},
        std::vector<Fault<Args64f>>{
            {"src", [](Args64f& a) { a.src = nullptr; }, tpxErrNullPointer},
            {"dst", [](Args64f& a) { a.dst = nullptr; }, tpxErrNullPointer},
            {"size", [](Args64f& a) { a.size.width = 0; }, tpxErrSize},
            {"size", [](Args64f& a) { a.mask.height = 0; }, tpxErrSize},
            {"srcStep", [](Args64f& a) { a.srcStep = 79; }, tpxErrStep},
            {"dstStep", [](Args64f& a) { a.dstStep = 63; }, tpxErrStep},
        },
        [](const Args64f& a) {
            return tpxiFilterBox_64f_C1R(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.mask, {0, 0});
        });
}

} // namespace
} // namespace tpx::test
