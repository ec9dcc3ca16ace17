// SPDX-License-Identifier: Apache-2.0
// Box filters: means of masks at every border, in place and not, within a buffer of just the size that is told.
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/filter_model.h"

namespace tpx::test {
namespace {

template <class T>
using BoxFilter = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxiSize, TpxBorderType, const T*, Tpx8u*);

// The sum times the reciprocal in single precision, to nearest.
template <class T>
T meanOf(double sum, FilterMask mask) {
    const float product = float(sum) * (1.0f / (float(mask.width) * float(mask.height)));
    return std::is_floating_point_v<T> ? T(product) : T(std::nearbyint(product));
}

template <class T>
struct Form {
    BoxFilter<T> filter;
    int channels;
    bool keepsAlpha;
};
template <class T>
std::vector<Form<T>> forms();
#define FORMS(T)                                            \
    template <>                                             \
    std::vector<Form<Tpx##T>> forms<Tpx##T>() {             \
        return {{tpxiFilterBoxBorder_##T##_C1R, 1, false},  \
                {tpxiFilterBoxBorder_##T##_C3R, 3, false},  \
                {tpxiFilterBoxBorder_##T##_C4R, 4, false},  \
                {tpxiFilterBoxBorder_##T##_AC4R, 4, true}}; \
    }
FORMS(8u)
FORMS(16u)
FORMS(16s)
FORMS(32f)

template <class T>
class Box : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Box, Types);

// Floats take small integers, whose sums are exact in any order.
template <class T>
void fill(FilterSource<T>& src, unsigned seed) {
    if (std::is_floating_point_v<T>)
        src.image().fill(
            [&](int x, int y, int k) { return (x * 37 + y * 101 + k * 7 + int(seed)) % 251 - 100; });
}

// Sums of the mask at every pixel, by two sums over all that lies above and left.
template <class T>
std::vector<double> maskSums(const FilterSource<T>& src, FilterMask mask, int channel) {
    const int w = src.size().width, h = src.size().height, W = w + mask.width, H = h + mask.height;
    std::vector<double> integral(size_t(W) * size_t(H)), sums;
    const auto at = [&](int x, int y) -> double& { return integral[size_t(y) * size_t(W) + size_t(x)]; };
    for (int y = 1; y < H; y++)
        for (int x = 1; x < W; x++)
            at(x, y) = double(src.at(x - 1 - mask.left(), y - 1 - mask.top(), channel)) + at(x - 1, y) +
                       at(x, y - 1) - at(x - 1, y - 1);
    for (int y = 0; y < h; y++)
        for (int x = 0; x < w; x++)
            sums.push_back(at(x + mask.width, y + mask.height) - at(x, y + mask.height) -
                           at(x + mask.width, y) + at(x, y));
    return sums;
}

template <class T>
void expectMeans(const Form<T>& form, const FilterCase& c, FilterMask mask) {
    FilterSource<T> src(c.width, c.height, form.channels, mask, c.border, c.srcLie, c.seed);
    fill(src, c.seed);
    const TpxiSize size = src.size(), maskSize = {mask.width, mask.height};
    GuardedImage<T> dst(c.width, c.height, form.channels, c.dstLie), before(c.width, c.height, form.channels);
    dst.randomise(c.seed + 1);
    before.copySamplesFrom(dst);
    int bytes = 0;
    ASSERT_EQ(tpxiFilterBoxBorderGetBufferSize(size, maskSize, typeOf<T>(), form.channels, &bytes), tpxOk);
    GuardedBytes buffer(size_t(bytes), c.seed % 3, c.seed % 4 ? Edge::End : Edge::Start);
    ASSERT_EQ(form.filter(src.data(), src.step(), dst.data(), dst.step(), size, maskSize, c.border, src.value,
                          buffer.data()),
              tpxOk);
    std::vector<std::vector<double>> sums;
    for (int k = 0; k < form.channels; k++) sums.push_back(maskSums(src, mask, k));
    const auto expected = [&](int x, int y, int k, T old) {
        return form.keepsAlpha && k == 3
                   ? old
                   : meanOf<T>(sums[size_t(k)][size_t(y) * size_t(c.width) + size_t(x)], mask);
    };
    ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return expected(x, y, k, before.at(x, y, k)); }))
        << "border " << c.border << ", mask " << mask.width << "x" << mask.height;

    // In place, and what lies around the region stays.
    std::vector<T> alpha;
    for (int y = 0; y < c.height; y++)
        for (int x = 0; x < c.width; x++) alpha.push_back(src.at(x, y, form.channels - 1));
    T* const inPlace = const_cast<T*>(src.data());
    ASSERT_EQ(form.filter(inPlace, src.step(), inPlace, src.step(), size, maskSize, c.border, src.value,
                          buffer.data()),
              tpxOk);
    for (int y = 0; y < c.height; y++)
        for (int x = 0; x < c.width; x++)
            for (int k = 0; k < form.channels; k++) {
                const T want = expected(x, y, k, alpha[size_t(y) * size_t(c.width) + size_t(x)]);
                ASSERT_EQ(+src.at(x, y, k), +want)
                    << "in place at x " << x << ", y " << y << ", channel " << k << " of " << c.width << " x "
                    << c.height << ", border " << c.border << ", mask " << mask.width << "x" << mask.height;
            }
    ASSERT_TRUE(src.image().paddingIntact());
}

TYPED_TEST(Box, MeansOfEveryMaskBorderAndShape) {
    const std::vector<FilterMask> masks = {{3, 3}, {5, 5}, {1, 1},   {2, 2}, {1, 3},   {3, 1},  {7, 7},
                                           {4, 3}, {2, 5}, {15, 15}, {6, 9}, {16, 16}, {17, 16}};
    unsigned turn = 0;
    sweepFilterCases({1, 3, 6}, [&](const FilterCase& c) {
        for (int k = 0; k < 2; k++, turn++)
            if (!this->HasFatalFailure())
                expectMeans(forms<TypeParam>()[turn % 4], c, masks[(turn * 5 + turn / 13) % masks.size()]);
    });
}

// Sums past 16 bits, past the tiles of a row and past 32 bits; masks larger than the region.
TYPED_TEST(Box, LargeMasks) {
    const Lie lie = {8, Edge::End, 0};
    unsigned seed = 0;
    for (const FilterMask mask : {FilterMask{31, 9}, {9, 31}, {64, 3}, {3, 258}, {300, 2}, {1, 700}, {1100, 1}})
        for (const TpxiSize size : {TpxiSize{40, 33}, {701, 20}, {1200, 3}, {70, 701}})
            for (const auto& form : forms<TypeParam>())
                if (!this->HasFatalFailure())
                    expectMeans(form, {size.width, size.height, seed % 2 ? 1u : 3u, lie, lie, seed++}, mask);
}

TEST(Box, MasksWhoseSumsLeave32Bits) {
    const Lie lie = {};
    expectMeans(forms<Tpx8u>()[0], {5, 3, tpxBorderReplicate, lie, lie, 7}, {3500, 2500});
    expectMeans(forms<Tpx8u>()[1], {5, 3, tpxBorderMirror, lie, lie, 8}, {3500, 3});
    expectMeans(forms<Tpx16u>()[0], {3500, 20, tpxBorderReplicate, lie, lie, 9}, {3300, 17});
    expectMeans(forms<Tpx16s>()[2], {7, 4, tpxBorderMirror, lie, lie, 10}, {500, 200});
}

// The formulas of small masks and of one channel; every sum that they can have, at both ends of a row.
TEST(Box, FixedPointFormulasOfBytes) {
    struct {
        int side;
        int64_t factor, half;
        int shift;
    } const formulas[] = {{3, 29128, 131072, 18}, {5, 671088, 8388608, 24}, {7, 342392, 8388608, 24}};
    for (const auto& f : formulas) {
        const int n = f.side * f.side, width = 40;
        GuardedImage<Tpx8u> src(width + f.side - 1, f.side, 1), dst(width, 1, 1);
        std::vector<Tpx8u> buffer(8192);
        const Tpx8u* const at = src.data() + f.side / 2 + src.step() * (f.side / 2);
        for (int sum = 0; sum <= n * 255; sum++) {
            // Columns repeat after one mask, so every window has the same sum.
            src.fill([&](int x, int y, int) { return sum / n + (x % f.side * f.side + y < sum % n); });
            ASSERT_EQ(tpxiFilterBoxBorder_8u_C1R(at, src.step(), dst.data(), dst.step(), dst.size(),
                                                 {f.side, f.side}, tpxBorderInMemAll, nullptr, buffer.data()),
                      tpxOk);
            ASSERT_TRUE(matches(dst, [&](int, int, int) { return (sum * f.factor + f.half) >> f.shift; }))
                << sum;
        }
    }
}

// What has left the window leaves no trace, and no error grows along the image.
TEST(Box, FloatsDoNotDrift) {
    for (const FilterMask mask : {FilterMask{3, 3}, {7, 7}, {15, 15}, {20, 40}, {100, 3}}) {
        GuardedImage<Tpx32f> src(1500, 300, 1), dst(1500, 300, 1);
        src.randomise(5);
        for (int k = 0; k < 40; k++) src.set(k, 0, 0, 1e20f);
        int bytes = 0;
        ASSERT_EQ(
            tpxiFilterBoxBorderGetBufferSize(src.size(), {mask.width, mask.height}, tpxDataType32f, 1, &bytes),
            tpxOk);
        GuardedBytes buffer{size_t(bytes)};
        ASSERT_EQ(
            tpxiFilterBoxBorder_32f_C1R(src.data(), src.step(), dst.data(), dst.step(), src.size(),
                                        {mask.width, mask.height}, tpxBorderReplicate, nullptr, buffer.data()),
            tpxOk);
        for (int y = 2 * mask.height + 16; y + mask.height < 300; y += 37)
            for (int x = mask.width; x + mask.width < 1500; x += 19) {
                double sum = 0;
                for (int r = 0; r < mask.height; r++)
                    for (int q = 0; q < mask.width; q++)
                        sum += double(src.at(x + q - mask.left(), y + r - mask.top()));
                ASSERT_NEAR(dst.at(x, y), sum / (mask.width * mask.height), 1e-3) << x << " " << y;
            }
    }
}

struct Args {
    Tpx8u *src, *dst;
    int srcStep, dstStep;
    TpxiSize size, mask;
    TpxBorderType border;
    const Tpx8u* value;
    Tpx8u* buffer;
};

// Sums of floats are rounded on their way down a column. In place they are the same sums, at the sides too.
TEST(Box, FloatsInPlaceAreThoseOutOfPlace) {
    struct Case {
        TpxiSize size;
        FilterMask mask;
    };
    const TpxiSize tall = {60, 700}, wide = {17000, 3}; // rows that are longer than the bands of others
    for (const Form<Tpx32f>& form : forms<Tpx32f>())
        for (const Case& c : {Case{tall, {7, 9}},
                              {tall, {3, 6}},
                              {tall, {16, 14}},
                              {tall, {21, 40}},
                              {wide, {1, 1}},
                              {wide, {3, 1}},
                              {wide, {1, 2}}}) {
            const TpxiSize size = c.size;
            const FilterMask mask = c.mask;
            FilterSource<Tpx32f> src(size.width, size.height, form.channels, mask, tpxBorderMirror, {}, 1);
            src.image().fill([](int x, int y, int k) {
                return float((x * 7919 + y * 104729 + k * 31) % 10007) * (y % 50 == 0 ? 1e5f : 0.1f);
            });
            const TpxiSize maskSize = {mask.width, mask.height};
            GuardedImage<Tpx32f> dst(size.width, size.height, form.channels);
            dst.copySamplesFrom(src.image()); // for alpha
            int bytes = 0;
            ASSERT_EQ(tpxiFilterBoxBorderGetBufferSize(size, maskSize, tpxDataType32f, form.channels, &bytes),
                      tpxOk);
            GuardedBytes buffer(static_cast<size_t>(bytes), 0);
            const auto run = [&](Tpx32f* to, int step) {
                return form.filter(src.data(), src.step(), to, step, size, maskSize, tpxBorderMirror, nullptr,
                                   buffer.data());
            };
            ASSERT_EQ(run(dst.data(), dst.step()), tpxOk);
            ASSERT_EQ(run(const_cast<Tpx32f*>(src.data()), src.step()), tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return src.at(x, y, k); }))
                << form.channels << " channels, mask " << mask.width << " x " << mask.height;
        }
}

TEST(Box, ChecksInTheirOrder) {
    GuardedImage<Tpx8u> src(8, 8, 1), dst(8, 8, 1);
    std::vector<Tpx8u> buffer(8192);
    const Tpx8u value = 0;
    const Args good{src.data(), dst.data(),        src.step(), dst.step(),   {8, 8},
                    {3, 3},     tpxBorderConstant, &value,     buffer.data()};
    expectCheckOrder(good,
                     std::vector<Fault<Args>>{
                         {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
                         {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
                         {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
                         {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
                         {"dstStep", [](Args& a) { a.dstStep = -8; }, tpxErrStep},
                         {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
                         {"size", [](Args& a) { a.size.height = -1; }, tpxErrSize},
                         {"mask", [](Args& a) { a.mask.width = 0; }, tpxErrMaskSize},
                         {"mask", [](Args& a) { a.mask.height = -3; }, tpxErrMaskSize},
                         {"border", [](Args& a) { a.border = 0x30; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0x106; }, tpxErrBorder},
                         {"value", [](Args& a) { a.value = nullptr; }, tpxErrNullPointer},
                     },
                     [](const Args& a) {
                         return tpxiFilterBoxBorder_8u_C1R(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.mask,
                                                           a.border, a.value, a.buffer);
                     });
}

TEST(Box, BufferSizesAndTheirStatuses) {
    struct SizeArgs {
        TpxiSize size, mask;
        TpxDataType type;
        int channels;
        bool null;
    };
    const auto sizeOf = [](const SizeArgs& a) {
        int bytes = -1;
        EXPECT_EQ(tpxiFilterBoxBorderGetBufferSize(a.size, a.mask, a.type, a.channels, &bytes), tpxOk);
        return bytes;
    };
    // Strips, column sums, ring, pointers.
    EXPECT_EQ(sizeOf({{640, 480}, {3, 3}, tpxDataType8u, 1, false}),
              4 * (2 * 642 * 3 + 2 * 482 * 3) + 4 * 646 + (2 * 640 + 64) + 16);
    EXPECT_EQ(sizeOf({{640, 480}, {3, 3}, tpxDataType16u, 1, false}),
              4 * (2 * 642 * 3 + 2 * 482 * 3) + (5120 + 64) + (2 * 1280 + 64) + 16);
    EXPECT_EQ(sizeOf({{641, 480}, {5, 5}, tpxDataType16s, 1, false}),
              4 * (2 * 645 * 6 + 2 * 484 * 6) + (10368 + 64) + (3 * 1312 + 64) + 24);
    EXPECT_EQ(sizeOf({{100, 90}, {4, 2}, tpxDataType16u, 1, false}),
              4 * (2 * 103 * 2 + 103 + 2 * 91 * 5) + (4 * (107 + 104) + 140) + (224 + 64) + 8);
    EXPECT_EQ(sizeOf({{100, 90}, {15, 20}, tpxDataType32f, 1, false}),
              4 * (2 * 114 * 29 + 2 * 109 * 21) + 4 * 118 + (4 * 20 * 104 + 64));
    EXPECT_EQ(sizeOf({{9, 8}, {5, 5}, tpxDataType32f, 3, false}),
              4 * 3 * (2 * 13 * 6 + 2 * 12 * 6) + 16 * 17 + 4 * 13 * 12 * 3 + 24);
    expectCheckOrder(SizeArgs{{8, 8}, {3, 3}, tpxDataType8u, 1, false},
                     std::vector<Fault<SizeArgs>>{
                         {"null", [](SizeArgs& a) { a.null = true; }, tpxErrNullPointer},
                         {"size", [](SizeArgs& a) { a.size.height = 0; }, tpxErrSize},
                         {"mask", [](SizeArgs& a) { a.mask.width = 0; }, tpxErrMaskSize},
                         {"type", [](SizeArgs& a) { a.type = TpxDataType(11); }, tpxErrDataType},
                         {"channels", [](SizeArgs& a) { a.channels = 2; }, tpxErrChannelCount},
                         {"large", [](SizeArgs& a) { a.size.width = 0x7FFFFFFF; }, tpxErrSizeTooLarge},
                         {"large",
                          [](SizeArgs& a) {
                              a.size = a.mask = {0x7FFFFFFF, 0x7FFFFFFF};
                          },
                          tpxErrSizeTooLarge},
                     },
                     [](const SizeArgs& a) {
                         int out = 0;
                         return tpxiFilterBoxBorderGetBufferSize(a.size, a.mask, a.type, a.channels,
                                                                 a.null ? nullptr : &out);
                     });
}

} // namespace
} // namespace tpx::test
