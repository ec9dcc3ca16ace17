// SPDX-License-Identifier: Apache-2.0
// Medians: every layout and type beside sorted windows, over all borders, in place, in buffers of just the size
// that is told; the older forms; vector medians beside all sums of distances.
#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/filter_model.h"

namespace tpx::test {
namespace {

// The sample of index `rank` in ascending order.
template <class T>
T ranked(std::vector<T>& samples, size_t rank) {
    std::nth_element(samples.begin(), samples.begin() + ptrdiff_t(rank), samples.end());
    return samples[rank];
}

template <class T, class At>
T medianAround(int x, int y, FilterMask mask, At at) {
    std::vector<T> samples;
    samples.reserve(size_t(mask.width) * size_t(mask.height));
    for (int r = 0; r < mask.height; r++)
        for (int q = 0; q < mask.width; q++) samples.push_back(at(x + q - mask.left(), y + r - mask.top()));
    return ranked(samples, samples.size() / 2);
}

// ---- The bordered form ------------------------------------------------------------------------------------

template <class T>
using BorderCall = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxiSize, TpxBorderType, T, Tpx8u*);

template <class T>
struct Layouted {
    BorderCall<T> call;
    int channels;
    bool keepsAlpha;
};
template <class T>
std::vector<Layouted<T>> bordered();
#define LAYOUTS(T)                                                                              \
    {tpxiFilterMedianBorder_##T##_C1R, 1, false}, {tpxiFilterMedianBorder_##T##_C3R, 3, false}, \
        {tpxiFilterMedianBorder_##T##_C4R, 4, false}, {                                         \
        tpxiFilterMedianBorder_##T##_AC4R, 4, true                                              \
    }
template <>
std::vector<Layouted<Tpx8u>> bordered() {
    return {LAYOUTS(8u)};
}
template <>
std::vector<Layouted<Tpx16u>> bordered() {
    return {LAYOUTS(16u)};
}
template <>
std::vector<Layouted<Tpx16s>> bordered() {
    return {LAYOUTS(16s)};
}
template <>
std::vector<Layouted<Tpx32f>> bordered() {
    return {{tpxiFilterMedianBorder_32f_C1R, 1, false}};
}

// What a call leaves in its destination, or in the source's region in place.
template <class T>
struct BorderCase {
    Layouted<T> form;
    FilterMask mask;
    FilterCase shape;
};

template <class T>
void expectMedian(const BorderCase<T>& c, bool inPlace) {
    const int channels = c.form.channels, width = c.shape.width, height = c.shape.height;
    FilterSource<T> src(width, height, channels, c.mask, c.shape.border, c.shape.srcLie, c.shape.seed);
    // Few different samples make ties; every third image has them.
    if (c.shape.seed % 3 == 0)
        src.image().fill([&](int x, int y, int k) { return (x * 31 + y * 17 + x * y * 7 + k) % 5 + 100; });
    for (T& v : src.value) v = src.value[0];
    GuardedImage<T> dst(width, height, channels, c.shape.dstLie);
    dst.randomise(c.shape.seed + 1);
    GuardedImage<T> want(width, height, channels);
    want.fill([&](int x, int y, int k) {
        if (c.form.keepsAlpha && k == 3) return inPlace ? src.at(x, y, k) : dst.at(x, y, k);
        return medianAround<T>(x, y, c.mask, [&](int sx, int sy) { return src.at(sx, sy, k); });
    });
    int bytes = 0;
    ASSERT_EQ(tpxiFilterMedianBorderGetBufferSize(src.size(), {c.mask.width, c.mask.height}, typeOf<T>(),
                                                  channels, &bytes),
              tpxOk);
    GuardedBytes buffer(size_t(bytes), c.shape.seed % 3, c.shape.seed % 2 ? Edge::End : Edge::Start);
    const int step = inPlace ? src.step() : dst.step();
    T* const to = inPlace ? const_cast<T*>(src.data()) : dst.data();
    ASSERT_EQ(c.form.call(src.data(), src.step(), to, step, src.size(), {c.mask.width, c.mask.height},
                          c.shape.border, src.value[0], buffer.data()),
              tpxOk);
    if (inPlace)
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                for (int k = 0; k < channels; k++) dst.set(x, y, k, src.at(x, y, k));
    ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return want.at(x, y, k); }))
        << "border " << c.shape.border << ", mask " << c.mask.width << " x " << c.mask.height << ", in place "
        << inPlace << ", keeps alpha " << c.form.keepsAlpha;
}

template <class T>
void expectMedians(std::vector<FilterMask> masks) {
    const std::vector<Layouted<T>> forms = bordered<T>();
    for (const FilterMask& mask : masks)
        sweepFilterCases({1, 6}, [&](const FilterCase& shape) {
            expectMedian<T>({forms[shape.seed / 2 % forms.size()], mask, shape}, shape.seed % 2);
        });
}

const std::vector<FilterMask> kNetworks = {{3, 1}, {1, 3}, {5, 1}, {1, 5}, {3, 3}, {5, 5}, {7, 7}, {9, 9}};
const std::vector<FilterMask> kOthers = {{7, 1}, {1, 9}, {3, 5}, {5, 3}, {9, 7}};

TEST(Median, NetworksOf8u) { expectMedians<Tpx8u>(kNetworks); }
TEST(Median, NetworksOf16u) { expectMedians<Tpx16u>(kNetworks); }
TEST(Median, NetworksOf16s) { expectMedians<Tpx16s>(kNetworks); }
TEST(Median, NetworksOf32f) { expectMedians<Tpx32f>(kNetworks); }
TEST(Median, OtherMasksOf8u) { expectMedians<Tpx8u>(kOthers); }
TEST(Median, OtherMasksOf16u) { expectMedians<Tpx16u>(kOthers); }
TEST(Median, OtherMasksOf16s) { expectMedians<Tpx16s>(kOthers); }
TEST(Median, OtherMasksOf32f) { expectMedians<Tpx32f>(kOthers); }

// Larger than a few registers, larger than the region, past the counts that narrow lanes hold.
TEST(Median, LargeMasks) {
    unsigned seed = 0;
    const auto visit = [&]<class T>(T, FilterMask mask, int width, int height) {
        const std::vector<Layouted<T>> forms = bordered<T>();
        const unsigned borders[] = {0x01, 0x06, 0x31, 0xC6, 0xF0};
        for (int k = 0; k < 3; k++) { // every layout meets every border, at one mask or another
            const unsigned border = borders[seed++ % 5];
            expectMedian<T>(
                {forms[seed / 2 % forms.size()], mask, {width, height, border, {}, {8, Edge::Start, 0}, seed}},
                seed % 2);
        }
    };
    for (FilterMask mask : {FilterMask{15, 15}, {17, 15}, {21, 13}, {3, 101}, {101, 3}, {25, 25}}) {
        visit(Tpx8u(), mask, 33, 29);
        visit(Tpx8u(), mask, 140, 5);
        visit(Tpx8u(), mask, 400, 3);
        visit(Tpx16u(), mask, 33, 29);
        visit(Tpx16s(), mask, 41, 27);
        visit(Tpx32f(), mask, 33, 29);
    }
    // Of bytes as large as tiles serve; past those that are merged as floats, and past all tiles.
    for (FilterMask mask : {FilterMask{7, 11}, {13, 5}, {3, 25}}) visit(Tpx8u(), mask, 140, 31);
    for (FilterMask mask : {FilterMask{19, 19}, {31, 31}, {35, 35}}) {
        visit(Tpx16u(), mask, 70, 53);
        visit(Tpx32f(), mask, 41, 47);
    }
}

// 257 x 257 samples are more than 16 bits count.
TEST(Median, MasksOfMoreSamplesThan16BitsCount) {
    const auto visit = [&]<class T>(T, FilterMask mask, int width, int height) {
        const Layouted<T> form = bordered<T>()[0];
        for (unsigned seed : {1u, 2u, 3u})
            expectMedian<T>({form, mask, {width, height, seed % 2 ? 1u : 6u, {}, {}, seed}}, seed == 2);
    };
    visit(Tpx8u(), {257, 257}, 9, 4);
    visit(Tpx8u(), {301, 257}, 310, 1);
    visit(Tpx8u(), {151, 3}, 130, 4);
    visit(Tpx8u(), {3, 301}, 90, 3);
    visit(Tpx8u(), {3, 32767}, 3, 2); // as high as columns are counted, and higher
    visit(Tpx8u(), {1, 32769}, 3, 2);
    visit(Tpx16u(), {257, 257}, 9, 3);
    visit(Tpx16s(), {257, 257}, 5, 2);
    visit(Tpx32f(), {257, 257}, 9, 1);
}

// The extremes of a type, and windows of nothing but one sample.
template <class T>
void expectExtremes() {
    const T low = std::numeric_limits<T>::lowest(), high = std::numeric_limits<T>::max();
    for (FilterMask mask : {FilterMask{3, 3}, {5, 5}, {7, 7}, {9, 5}, {17, 17}}) {
        for (int some : {0, 1, 3, 5}) {
            GuardedImage<T> src(40, 20, 1), dst(40, 20, 1);
            src.fill([&](int x, int y, int) { return (x * 7 + y * 5) % 5 < some ? low : high; });
            int bytes = 0;
            ASSERT_EQ(tpxiFilterMedianBorderGetBufferSize(src.size(), {mask.width, mask.height}, typeOf<T>(), 1,
                                                          &bytes),
                      tpxOk);
            GuardedBytes buffer(static_cast<size_t>(bytes));
            ASSERT_EQ(bordered<T>()[0].call(src.data(), src.step(), dst.data(), dst.step(), src.size(),
                                            {mask.width, mask.height}, tpxBorderReplicate, T(0), buffer.data()),
                      tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int) {
                return medianAround<T>(x, y, mask, [&](int sx, int sy) {
                    return src.at(std::clamp(sx, 0, 39), std::clamp(sy, 0, 19));
                });
            }));
        }
    }
}
TEST(Median, ExtremesOfTheTypes) {
    expectExtremes<Tpx8u>();
    expectExtremes<Tpx16u>();
    expectExtremes<Tpx16s>();
    expectExtremes<Tpx32f>();
}

TEST(Median, FloatsThatAreNoNumbersOrInfinite) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity(),
                    kNaN = std::numeric_limits<float>::quiet_NaN();
    for (int side : {3, 5, 7, 9, 11, 29, 47}) {
        GuardedImage<Tpx32f> src(40, 30, 1), dst(40, 30, 1);
        int bytes = 0;
        ASSERT_EQ(tpxiFilterMedianBorderGetBufferSize(src.size(), {side, side}, tpxDataType32f, 1, &bytes),
                  tpxOk);
        GuardedBytes buffer(static_cast<size_t>(bytes));
        const auto filter = [&] {
            return tpxiFilterMedianBorder_32f_C1R(src.data(), src.step(), dst.data(), dst.step(), src.size(),
                                                  {side, side}, tpxBorderReplicate, 0, buffer.data());
        };
        for (float all : {kInfinity, -kInfinity}) {
            src.fill([&](int, int, int) { return all; });
            ASSERT_EQ(filter(), tpxOk);
            ASSERT_TRUE(matches(dst, [&](int, int, int) { return all; })) << side;
        }
        src.randomise(7);
        for (int i = 0; i < 40; i++) src.set(i, i % 30, 0, i % 2 ? kNaN : -kNaN);
        ASSERT_EQ(filter(), tpxOk);
        if (side > 9) { // NaN is lower than all numbers
            ASSERT_TRUE(matches(dst, [&](int x, int y, int) {
                return medianAround<Tpx32f>(x, y, {side, side}, [&](int sx, int sy) {
                    const float sample = src.at(std::clamp(sx, 0, 39), std::clamp(sy, 0, 29));
                    return std::isnan(sample) ? -kInfinity : sample;
                });
            })) << side;
        }
        src.fill([&](int, int, int) { return kNaN; });
        ASSERT_EQ(filter(), tpxOk);
        if (side > 9) {
            ASSERT_TRUE(matches(dst, [&](int, int, int) { return -kInfinity; })) << side;
        }
    }
}

// Tiles that know their neighbours give what one call gives.
TEST(Median, TilesGiveWhatOneCallGives) {
    for (int side : {3, 7, 9, 19}) {
        GuardedImage<Tpx8u> src(70, 50, 3), whole(70, 50, 3), tiled(70, 50, 3);
        src.randomise(unsigned(side));
        const auto filter = [&](GuardedImage<Tpx8u>& dst, int x, int y, TpxiSize size, unsigned border) {
            int bytes = 0;
            ASSERT_EQ(tpxiFilterMedianBorderGetBufferSize(size, {side, side}, tpxDataType8u, 3, &bytes), tpxOk);
            GuardedBytes buffer(static_cast<size_t>(bytes));
            ASSERT_EQ(tpxiFilterMedianBorder_8u_C3R(src.data() + y * src.step() + 3 * x, src.step(),
                                                    dst.data() + y * dst.step() + 3 * x, dst.step(), size,
                                                    {side, side}, border, 9, buffer.data()),
                      tpxOk);
        };
        filter(whole, 0, 0, {70, 50}, tpxBorderConstant);
        for (int right : {0, 1})
            for (int lower : {0, 1})
                filter(tiled, 33 * right, 21 * lower, {right ? 37 : 33, lower ? 29 : 21},
                       tpxBorderConstant | (right ? tpxBorderInMemLeft : tpxBorderInMemRight) |
                           (lower ? tpxBorderInMemTop : tpxBorderInMemBottom));
        ASSERT_TRUE(matches(tiled, [&](int x, int y, int k) { return whole.at(x, y, k); })) << side;
    }
}

TEST(Median, MaskOfOneCopies) {
    GuardedImage<Tpx16s> src(21, 3, 4), dst(21, 3, 4);
    dst.randomise(2);
    GuardedImage<Tpx16s> before(21, 3, 4);
    before.copySamplesFrom(dst);
    Tpx8u buffer[1];
    EXPECT_EQ(tpxiFilterMedianBorder_16s_AC4R(src.randomise(1).data(), src.step(), dst.data(), dst.step(),
                                              {21, 3}, {1, 1}, tpxBorderConstant, 0, buffer),
              tpxOk);
    EXPECT_TRUE(
        matches(dst, [&](int x, int y, int k) { return k == 3 ? before.at(x, y, k) : src.at(x, y, k); }));
    before.copySamplesFrom(dst);
    EXPECT_EQ(tpxiFilterMedianBorder_16s_C4R(dst.data(), dst.step(), dst.data(), dst.step(), {21, 3}, {1, 1},
                                             tpxBorderConstant, 0, buffer),
              tpxOk);
    EXPECT_TRUE(matches(dst, [&](int x, int y, int k) { return before.at(x, y, k); }));
}

// ---- Sizes and statuses of the bordered form --------------------------------------------------------------

int borderBytes(TpxiSize roi, TpxiSize mask, TpxDataType type, int channels) {
    int bytes = -1;
    EXPECT_EQ(tpxiFilterMedianBorderGetBufferSize(roi, mask, type, channels, &bytes), tpxOk);
    return bytes;
}

TEST(Median, BufferSizes) {
    // Strips and rows: no work area for small masks.
    EXPECT_EQ(borderBytes({640, 480}, {3, 3}, tpxDataType8u, 1), 6 * 640 + 2 * 640 + 2 * 480 + 2592);
    EXPECT_EQ(borderBytes({640, 480}, {1, 5}, tpxDataType16u, 1), 10 * 1280 + 2 * 2560 + 640 * 7 * 2);
    // Other masks of integers: 4 times the samples' bytes.
    EXPECT_EQ(borderBytes({640, 480}, {5, 3}, tpxDataType16s, 1),
              128 + 6 * 1280 + 2 * 1280 + 2 * 1920 + 7 * 482 * 2 + 4);
    // Floats below 51 samples, from there on with the radix sort's own, and from 625 on.
    EXPECT_EQ(borderBytes({100, 90}, {7, 7}, tpxDataType32f, 1),
              64 + 12 * 64 + 14 * 416 + 2 * 1216 + 2 * 1088 + 106 * 10 * 4 + 16);
    EXPECT_EQ(borderBytes({10, 10}, {51, 1}, tpxDataType32f, 1),
              (4 * 51 + 51 + 4 * 51 + 0x5000 + 31) / 32 * 32 + 60 * 10 * 4);
    EXPECT_EQ(borderBytes({10, 10}, {25, 25}, tpxDataType32f, 1), 8 * 640 + 12288 + 34 * 34 * 4 + 16);
    EXPECT_EQ(borderBytes({10, 10}, {625, 1}, tpxDataType32f, 1), 2528 + 634 * 10 * 4 + 16);
    // More channels.
    EXPECT_EQ(borderBytes({640, 480}, {3, 3}, tpxDataType8u, 3), 3 * 642 * 3 + 14);
    EXPECT_EQ(borderBytes({640, 480}, {5, 3}, tpxDataType16u, 4), 4 * 6 * 482 * 2 + 8 * 15);
    EXPECT_EQ(borderBytes({3, 480}, {3, 3}, tpxDataType8u, 4), 4 * 5 * 482 + 24);
}

TEST(Median, BorderedChecksInTheirOrder) {
    struct Args {
        Tpx8u *src, *dst, *buffer;
        TpxiSize size, mask;
        TpxBorderType border;
    };
    GuardedImage<Tpx8u> src(8, 8, 1), dst(8, 8, 1);
    Tpx8u buffer[4096];
    expectCheckOrder(Args{src.randomise(1).data(), dst.data(), buffer, {8, 8}, {3, 3}, 1},
                     std::vector<Fault<Args>>{
                         {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
                         {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
                         {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
                         {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
                         {"size", [](Args& a) { a.size.height = -7; }, tpxErrSize},
                         {"mask", [](Args& a) { a.mask.width = 4; }, tpxErrMaskSize},
                         {"mask", [](Args& a) { a.mask.height = -1; }, tpxErrMaskSize},
                         {"border", [](Args& a) { a.border = tpxBorderMirror; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0xF3; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0x30; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0x101; }, tpxErrBorder},
                     },
                     [&](const Args& a) {
                         return tpxiFilterMedianBorder_8u_C1R(a.src, src.step(), a.dst, dst.step(), a.size,
                                                              a.mask, a.border, 0, a.buffer);
                     });
    struct SizeArgs {
        TpxiSize size, mask;
        TpxDataType type;
        int channels;
        bool null;
    };
    const auto bufferSize = [](const SizeArgs& a) {
        int bytes = 77;
        const TpxStatus status =
            tpxiFilterMedianBorderGetBufferSize(a.size, a.mask, a.type, a.channels, a.null ? nullptr : &bytes);
        if (status == tpxErrSizeTooLarge) EXPECT_EQ(bytes, 0);
        return status;
    };
    expectCheckOrder(SizeArgs{{9, 9}, {3, 3}, tpxDataType16s, 3, false},
                     std::vector<Fault<SizeArgs>>{
                         {"null", [](SizeArgs& a) { a.null = true; }, tpxErrNullPointer},
                         {"size", [](SizeArgs& a) { a.size.height = 0; }, tpxErrSize},
                         {"mask", [](SizeArgs& a) { a.mask.width = 2; }, tpxErrMaskSize},
                         {"channels", [](SizeArgs& a) { a.channels = 2; }, tpxErrChannelCount},
                         {"type", [](SizeArgs& a) { a.type = tpxDataType32f; }, tpxErrDataType},
                         {"large", [](SizeArgs& a) { a.mask.width = 0x7FFFFFFF; }, tpxErrSizeTooLarge},
                         {"large",
                          [](SizeArgs& a) {
                              a.mask = {0x7FFFFFFF, 0x7FFFFFFF};
                          },
                          tpxErrSizeTooLarge},
                     },
                     bufferSize);
    EXPECT_EQ(bufferSize({{9, 9}, {3, 3}, tpxDataType32f, 1, false}), tpxOk);
    EXPECT_EQ(bufferSize({{0x7FFFFFFF, 0x7FFFFFFF}, {0x7FFFFFFF, 0x7FFFFFFF}, tpxDataType32f, 1, false}),
              tpxErrSizeTooLarge);
    EXPECT_EQ(bufferSize({{9, 9}, {3, 3}, tpxDataType64f, 1, false}), tpxErrDataType);
}

// ---- Without a border -------------------------------------------------------------------------------------

// A region amid pixels that may all be read, and none beyond.
template <class T>
struct Surrounded {
    Surrounded(int width, int height, int channels, int left, int top, int right, int bottom, unsigned seed)
        : image(width + left + right, height + top + bottom, channels,
                seed % 2 ? Lie{8, Edge::End, 0} : Lie{16, Edge::Start, 0}),
          left(left),
          top(top) {
        image.randomise(seed);
    }
    const T* data() const {
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(image.data()) +
                                          ptrdiff_t(top) * image.step()) +
               left * image.channels();
    }
    T at(int x, int y, int c) const { return image.at(x + left, y + top, c); }

    GuardedImage<T> image;
    int left, top;
};

template <class T, class Filter, class Size>
void expectBorderless(Filter filter, Size bufferSize, int channels) {
    unsigned seed = 0;
    for (FilterMask mask : {FilterMask{3, 3}, {5, 5}, {3, 1}, {1, 5}, {7, 3}, {9, 9}, {1, 1}, {1, 9}, {11, 7}})
        for (int width : {1, 2, 5, 8, 9, 33})
            for (int height : {1, 2, 7}) {
                seed++;
                const int ax = int(seed * 7) % mask.width, ay = int(seed * 5) % mask.height;
                Surrounded<T> src(width, height, channels, ax, ay, mask.width - 1 - ax, mask.height - 1 - ay,
                                  seed);
                GuardedImage<T> dst(width, height, channels, {int(seed % 3) * 8, Edge::End, 0});
                int bytes = 0;
                ASSERT_EQ(bufferSize({width, height}, {mask.width, mask.height}, channels, &bytes), tpxOk);
                GuardedBytes buffer(static_cast<size_t>(bytes));
                ASSERT_EQ(filter(src.data(), src.image.step(), dst.data(), dst.step(), {width, height},
                                 {mask.width, mask.height}, {ax, ay}, buffer.data()),
                          tpxOk);
                ASSERT_TRUE(matches(dst,
                                    [&](int x, int y, int k) {
                                        return medianAround<T>(
                                            x - ax + mask.left(), y - ay + mask.top(), mask,
                                            [&](int sx, int sy) { return src.at(sx, sy, k); });
                                    }))
                    << mask.width << " x " << mask.height;
            }
}

TEST(Median, BorderlessWithAnchors) {
    expectBorderless<Tpx32f>(tpxiFilterMedian_32f_C3R, tpxiFilterMedianGetBufferSize_32f, 3);
    expectBorderless<Tpx32f>(tpxiFilterMedian_32f_C4R, tpxiFilterMedianGetBufferSize_32f, 4);
    expectBorderless<Tpx64f>(tpxiFilterMedian_64f_C1R, tpxiFilterMedianGetBufferSize_64f, 1);
}

TEST(Median, BorderlessChecksInTheirOrder) {
    struct Args {
        const Tpx32f* src;
        int srcStep;
        Tpx32f* dst;
        int dstStep;
        TpxiSize size, mask;
        TpxiPoint anchor;
        Tpx8u* buffer;
    };
    GuardedImage<Tpx32f> src(10, 10, 3), dst(8, 8, 3);
    src.randomise(1);
    Tpx8u buffer[256];
    std::vector<Fault<Args>> faults = {
        {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
        {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
        {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
        {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
        {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
        {"dstStep", [](Args& a) { a.dstStep = -4; }, tpxErrStep},
        {"srcStep", [](Args& a) { a.srcStep = 119; }, tpxErrStep},
        {"mask", [](Args& a) { a.mask.height = 2; }, tpxErrMaskSize},
        {"mask", [](Args& a) { a.mask.height = 0; }, tpxErrMaskSize},
        {"anchor", [](Args& a) { a.anchor.x = 3; }, tpxErrAnchor},
        {"anchor", [](Args& a) { a.anchor.y = -1; }, tpxErrAnchor},
    };
    const auto call = [](auto filter) {
        return [filter](const Args& a) {
            return filter(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.mask, a.anchor, a.buffer);
        };
    };
    Args good{src.data(), 120, dst.data(), dst.step(), {8, 8}, {3, 3}, {0, 0}, buffer};
    expectCheckOrder(good, faults, call(tpxiFilterMedian_32f_C3R));
    good.size.width = 4;
    faults.erase(faults.begin() + 6);
    expectCheckOrder(good, faults, call(tpxiFilterMedian_32f_C4R));

    int bytes = 0;
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_32f({4, 4}, {3, 3}, 3, nullptr), tpxErrNullPointer);
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_32f({0, 4}, {2, 3}, 3, &bytes), tpxErrSize);
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_32f({4, 4}, {2, 3}, 1, &bytes), tpxErrMaskSize);
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_32f({4, 4}, {3, 3}, 1, &bytes), tpxErrChannelCount);
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_64f({4, 4}, {3, 3}, 3, &bytes), tpxErrChannelCount);
    EXPECT_EQ(tpxiFilterMedianGetBufferSize_64f({4, 4}, {0x7FFFFFFF, 3}, 1, &bytes), tpxErrSizeTooLarge);
    EXPECT_EQ(bytes, 0);
}

// The older forms of 3x3 and 5x5 whose result is made of the window: want(at, k) for at(column, row, channel).
template <class T, class Filter, class Want>
void expectOfWindow(Filter filter, int side, int channels, bool keepsAlpha, Want want) {
    unsigned seed = 0;
    for (int width : {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 31, 33, 70, 131})
        for (int height : {1, 2, 3, 8}) {
            seed++;
            Surrounded<T> src(width, height, channels, side / 2, side / 2, side / 2, side / 2, seed);
            if (seed % 3 == 0 || std::is_floating_point_v<T>)
                src.image.fill([&](int x, int y, int k) { return (x * 31 + y * 17 + x * y * 7 + k * 3) % 9; });
            GuardedImage<T> dst(width, height, channels, {int(seed % 3) * 8, Edge::End, 0}),
                before(width, height, channels);
            dst.randomise(seed);
            before.copySamplesFrom(dst);
            ASSERT_EQ(filter(src.data(), src.image.step(), dst.data(), dst.step(), TpxiSize{width, height}),
                      tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int k) {
                if (keepsAlpha && k == 3) return before.at(x, y, k);
                return want([&](int column, int row,
                                int c) { return src.at(x + column - side / 2, y + row - side / 2, c); },
                            k);
            }));
        }
}

template <class T, class Filter>
void expectCross(Filter filter, int channels, bool keepsAlpha) {
    for (int mask : {33, 55})
        expectOfWindow<T>([&](auto... a) { return filter(a..., mask); }, mask / 11, channels, keepsAlpha,
                          [&](auto at, int k) {
                              const int side = mask / 11;
                              std::vector<T> samples;
                              for (int i = 0; i < side; i++) samples.push_back(at(i, side / 2, k));
                              for (int i = 0; i < side; i++)
                                  if (i != side / 2) samples.push_back(at(side / 2, i, k));
                              return ranked(samples, samples.size() / 2);
                          });
}
TEST(Median, Cross) {
    expectCross<Tpx8u>(tpxiFilterMedianCross_8u_C1R, 1, false);
    expectCross<Tpx8u>(tpxiFilterMedianCross_8u_C3R, 3, false);
    expectCross<Tpx8u>(tpxiFilterMedianCross_8u_AC4R, 4, true);
    expectCross<Tpx16u>(tpxiFilterMedianCross_16u_C1R, 1, false);
    expectCross<Tpx16u>(tpxiFilterMedianCross_16u_C3R, 3, false);
    expectCross<Tpx16u>(tpxiFilterMedianCross_16u_AC4R, 4, true);
    expectCross<Tpx16s>(tpxiFilterMedianCross_16s_C1R, 1, false);
    expectCross<Tpx16s>(tpxiFilterMedianCross_16s_C3R, 3, false);
    expectCross<Tpx16s>(tpxiFilterMedianCross_16s_AC4R, 4, true);
}

TEST(Median, WeightedCentre) {
    for (int weight : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0x7FFFFFFF}) {
        const int times = std::min((weight - 1) / 2 * 2 + 1, 99);
        expectOfWindow<Tpx8u>(
            [&](auto... a) {
                const TpxStatus status = tpxiFilterMedianWeightedCenter3x3_8u_C1R(a..., weight);
                EXPECT_EQ(status, weight % 2 ? tpxOk : tpxWarnEvenWeight);
                return status == tpxWarnEvenWeight ? tpxOk : status;
            },
            3, 1, false,
            [&](auto at, int k) {
                std::vector<Tpx8u> samples(size_t(times - 1), at(1, 1, k));
                for (int i = 0; i < 9; i++) samples.push_back(at(i % 3, i / 3, k));
                return ranked(samples, samples.size() / 2);
            });
    }
}

template <class T, class Filter>
void expectVectorMedian(Filter filter, int channels) {
    for (int mask : {33, 55})
        expectOfWindow<T>([&](auto... a) { return filter(a..., mask); }, mask / 11, channels, channels == 4,
                          [&](auto at, int k) {
                              const int side = mask / 11;
                              int best = -1;
                              double least = 0;
                              for (int i = 0; i < side * side; i++) {
                                  double sum = 0;
                                  for (int j = 0; j < side * side; j++)
                                      for (int c = 0; c < 3; c++)
                                          sum += std::abs(double(at(i % side, i / side, c)) -
                                                          double(at(j % side, j / side, c)));
                                  if (best < 0 || sum < least) {
                                      best = i;
                                      least = sum;
                                  }
                              }
                              return at(best % side, best / side, k);
                          });
}
TEST(Median, ColoursNearestToAllOthers) {
    expectVectorMedian<Tpx8u>(tpxiFilterMedianColor_8u_C3R, 3);
    expectVectorMedian<Tpx8u>(tpxiFilterMedianColor_8u_AC4R, 4);
    expectVectorMedian<Tpx16s>(tpxiFilterMedianColor_16s_C3R, 3);
    expectVectorMedian<Tpx16s>(tpxiFilterMedianColor_16s_AC4R, 4);
    expectVectorMedian<Tpx32f>(tpxiFilterMedianColor_32f_C3R, 3);
    expectVectorMedian<Tpx32f>(tpxiFilterMedianColor_32f_AC4R, 4);
}

TEST(Median, OlderFormsCheckInTheirOrder) {
    struct Args {
        const Tpx8u* src;
        int srcStep;
        Tpx8u* dst;
        int dstStep;
        TpxiSize size;
        int mask;
    };
    GuardedImage<Tpx8u> src(20, 20, 3), dst(8, 8, 3);
    src.randomise(1);
    const Args good{src.data() + 8 * src.step() + 24, src.step(), dst.data(), dst.step(), {8, 8}, 33};
    std::vector<Fault<Args>> faults = {
        {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
        {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
        {"size", [](Args& a) { a.size.height = 0; }, tpxErrSize},
        {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
        {"dstStep", [](Args& a) { a.dstStep = -1; }, tpxErrStep},
        {"mask", [](Args& a) { a.mask = 3; }, tpxErrMaskSize},
        {"mask", [](Args& a) { a.mask = 35; }, tpxErrMaskSize},
    };
    const auto call = [](auto filter) {
        return [filter](const Args& a) { return filter(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.mask); };
    };
    expectCheckOrder(good, faults, call(tpxiFilterMedianCross_8u_C3R));
    expectCheckOrder(good, faults, call(tpxiFilterMedianColor_8u_C3R));
    faults.resize(5);
    faults.push_back({"weight", [](Args& a) { a.mask = 0; }, tpxErrWeight});
    faults.push_back({"weight", [](Args& a) { a.mask = -3; }, tpxErrWeight});
    expectCheckOrder(good, faults, call(tpxiFilterMedianWeightedCenter3x3_8u_C1R));
}

} // namespace
} // namespace tpx::test
