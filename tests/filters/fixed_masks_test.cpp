// SPDX-License-Identifier: Apache-2.0
// Filters with masks of their own: every mask as its rows of weights, over all borders; sizes, statuses,
// rounding.
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/filter_model.h"

namespace tpx::test {
namespace {

using Weights = std::vector<std::vector<int>>;

Weights outer(std::vector<int> column, std::vector<int> row) {
    Weights w;
    for (int c : column) {
        w.emplace_back();
        for (int r : row) w.back().push_back(c * r);
    }
    return w;
}

using SizeCall = TpxStatus (*)(TpxiSize, int, TpxDataType, TpxDataType, int, int*);
template <class S, class D>
using FilterCall = TpxStatus (*)(const S*, int, D*, int, TpxiSize, int, TpxBorderType, S, Tpx8u*);

template <class D>
D saturated(double x) {
    if (std::is_floating_point_v<D>) return D(x);
    const double low = double(std::numeric_limits<D>::min()), high = double(std::numeric_limits<D>::max());
    return D(x < low ? low : x > high ? high : x);
}

// The sum over the mask, times the scale, rounded to nearest with ties to even. Floats take small integers,
// whose sums are exact in any order.
template <class S, class D>
void expectCorrelation(FilterCall<S, D> filter, SizeCall bufferSize, int mask, const Weights& weights,
                       double scale, int channels, bool keepsAlpha) {
    const int side = int(weights.size());
    sweepFilterCases({1, 3, 6}, [&](const FilterCase& c) {
        FilterSource<S> src(c.width, c.height, channels, {side, side}, c.border, c.srcLie, c.seed);
        if (std::is_floating_point_v<S>)
            src.image().fill(
                [&](int x, int y, int k) { return (x * 37 + y * 101 + k * 7 + int(c.seed)) % 251 - 100; });
        for (S& v : src.value) v = src.value[0];
        GuardedImage<D> dst(c.width, c.height, channels, c.dstLie), before(c.width, c.height, channels);
        dst.randomise(c.seed + 1);
        before.copySamplesFrom(dst);
        int bytes = 0;
        ASSERT_EQ(bufferSize(src.size(), mask, typeOf<S>(), typeOf<D>(), channels, &bytes), tpxOk);
        GuardedBytes buffer(size_t(bytes), c.seed % 3);
        ASSERT_EQ(filter(src.data(), src.step(), dst.data(), dst.step(), src.size(), mask, c.border,
                         src.value[0], buffer.data()),
                  tpxOk);
        ASSERT_TRUE(matches(
            dst,
            [&](int x, int y, int k) {
                if (keepsAlpha && k == 3) return before.at(x, y, k);
                double sum = 0;
                for (int r = 0; r < side; r++)
                    for (int q = 0; q < side; q++)
                        if (weights[size_t(r)][size_t(q)]) // pixels without a weight may be anything
                            sum += weights[size_t(r)][size_t(q)] *
                                   double(src.at(x + q - side / 2, y + r - side / 2, k));
                return std::is_floating_point_v<D> ? D(sum * scale) : saturated<D>(std::nearbyint(sum * scale));
            }))
            << "border " << c.border << ", mask " << mask;
    });
}

#define EXPECT_GRADIENT_OF(types, S, D, name, mask, weights)                  \
    expectCorrelation<Tpx##S, Tpx##D>(tpxiFilter##name##Border_##types##_C1R, \
                                      tpxiFilter##name##BorderGetBufferSize, mask, weights, 1, 1, false)
#define EXPECT_TWO(name, mask, weights)                          \
    {                                                            \
        SCOPED_TRACE(#name);                                     \
        EXPECT_GRADIENT_OF(8u16s, 8u, 16s, name, mask, weights); \
        EXPECT_GRADIENT_OF(32f, 32f, 32f, name, mask, weights);  \
    }
#define EXPECT_THREE(name, mask, weights) \
    EXPECT_TWO(name, mask, weights)       \
    EXPECT_GRADIENT_OF(16s, 16s, 16s, name, mask, weights)

TEST(FixedMasks, DerivativesAreTheirMasks) {
    EXPECT_THREE(SobelVert, 33, (Weights{{1, 0, -1}, {2, 0, -2}, {1, 0, -1}}));
    EXPECT_THREE(SobelVert, 55, outer({1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}));
    EXPECT_THREE(SobelHoriz, 33, (Weights{{-1, -2, -1}, {0, 0, 0}, {1, 2, 1}}));
    EXPECT_THREE(SobelHoriz, 55, outer({-1, -2, 0, 2, 1}, {1, 4, 6, 4, 1}));
    EXPECT_TWO(SobelNegVert, 33, (Weights{{-1, 0, 1}, {-2, 0, 2}, {-1, 0, 1}}));
    EXPECT_TWO(SobelNegVert, 55, outer({1, 4, 6, 4, 1}, {-1, -2, 0, 2, 1}));
    EXPECT_TWO(SobelVertSecond, 33, outer({1, 2, 1}, {1, -2, 1}));
    EXPECT_TWO(SobelVertSecond, 55, outer({1, 4, 6, 4, 1}, {1, 0, -2, 0, 1}));
    EXPECT_TWO(SobelHorizSecond, 33, outer({1, -2, 1}, {1, 2, 1}));
    EXPECT_TWO(SobelHorizSecond, 55, outer({1, 0, -2, 0, 1}, {1, 4, 6, 4, 1}));
    EXPECT_THREE(ScharrVertMask, 33, (Weights{{-3, 0, 3}, {-10, 0, 10}, {-3, 0, 3}}));
    EXPECT_THREE(ScharrHorizMask, 33, (Weights{{-3, -10, -3}, {0, 0, 0}, {3, 10, 3}}));
    EXPECT_THREE(PrewittVert, 33, (Weights{{1, 0, -1}, {1, 0, -1}, {1, 0, -1}}));
    EXPECT_THREE(PrewittHoriz, 33, (Weights{{-1, -1, -1}, {0, 0, 0}, {1, 1, 1}}));
    EXPECT_THREE(RobertsUp, 33, (Weights{{0, 0, -1}, {0, 1, 0}, {0, 0, 0}}));
    EXPECT_THREE(RobertsDown, 33, (Weights{{-1, 0, 0}, {0, 1, 0}, {0, 0, 0}}));
}

#define EXPECT_ENHANCEMENT_OF(T, L, channels, name, mask, weights, scale)                                    \
    expectCorrelation<Tpx##T, Tpx##T>(tpxiFilter##name##Border_##T##_##L##R,                                 \
                                      tpxiFilter##name##BorderGetBufferSize, mask, weights, scale, channels, \
                                      channels == 4 && #L[0] == 'A')
#define EXPECT_ENHANCEMENT(name, mask, weights, scale)                  \
    {                                                                   \
        SCOPED_TRACE(#name);                                            \
        EXPECT_ENHANCEMENT_OF(8u, C1, 1, name, mask, weights, scale);   \
        EXPECT_ENHANCEMENT_OF(8u, C3, 3, name, mask, weights, scale);   \
        EXPECT_ENHANCEMENT_OF(8u, C4, 4, name, mask, weights, scale);   \
        EXPECT_ENHANCEMENT_OF(8u, AC4, 4, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(16s, C1, 1, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(16s, C3, 3, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(16s, C4, 4, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(16s, AC4, 4, name, mask, weights, scale); \
        EXPECT_ENHANCEMENT_OF(32f, C1, 1, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(32f, C3, 3, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(32f, C4, 4, name, mask, weights, scale);  \
        EXPECT_ENHANCEMENT_OF(32f, AC4, 4, name, mask, weights, scale); \
    }

Weights centreLessOnes(int side, int centre) {
    Weights w(size_t(side), std::vector<int>(size_t(side), -1));
    w[size_t(side / 2)][size_t(side / 2)] = centre;
    return w;
}

TEST(FixedMasks, LaplaceHipassAndSharpenAreTheirMasks) {
    EXPECT_ENHANCEMENT(Laplace, 33, centreLessOnes(3, 8), 1);
    EXPECT_ENHANCEMENT(Hipass, 33, centreLessOnes(3, 8), 1);
    EXPECT_ENHANCEMENT(Hipass, 55, centreLessOnes(5, 24), 1);
    EXPECT_ENHANCEMENT(Sharpen, 33, centreLessOnes(3, 16), 0.125);
}

// Whatever its coefficients, a Laplacian of five is blind to planes, and the same after a quarter turn.
TEST(FixedMasks, LaplaceOfFiveIsSymmetricOfZeroSumAndPositiveCentre) {
    GuardedImage<Tpx16s> impulse(9, 9, 1), response(9, 9, 1);
    impulse.fill([](int x, int y, int) { return x == 4 && y == 4; });
    std::vector<Tpx8u> buffer(4096);
    ASSERT_EQ(tpxiFilterLaplaceBorder_16s_C1R(impulse.data(), impulse.step(), response.data(), response.step(),
                                              {9, 9}, 55, tpxBorderReplicate, 0, buffer.data()),
              tpxOk);
    int sum = 0;
    for (int y = 0; y < 9; y++)
        for (int x = 0; x < 9; x++) {
            sum += response.at(x, y);
            EXPECT_EQ(response.at(x, y), response.at(8 - x, y));
            EXPECT_EQ(response.at(x, y), response.at(y, x));
        }
    EXPECT_EQ(sum, 0);
    EXPECT_GT(response.at(4, 4), 0);
}

struct Args {
    Tpx8u* src;
    int srcStep;
    Tpx16s* dst;
    int dstStep;
    TpxiSize size;
    int mask;
    TpxBorderType border;
    Tpx8u* buffer;
};

std::vector<Fault<Args>> faultsOf(int badMask, bool stepIsChecked) {
    std::vector<Fault<Args>> faults = {
        {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
        {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
        {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
        {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
        {"size", [](Args& a) { a.size.height = -1; }, tpxErrSize},
        {"dstStep", [](Args& a) { a.dstStep++; }, tpxErrStepNotMultiple},
        {"mask", [=](Args& a) { a.mask = badMask; }, tpxErrMaskSize},
        {"border", [](Args& a) { a.border = 0x30; }, tpxErrBorder},
        {"border", [](Args& a) { a.border = 0x101; }, tpxErrBorder},
    };
    if (!stepIsChecked) faults.erase(faults.begin() + 5);
    return faults;
}

TEST(FixedMasks, ChecksInTheirOrder) {
    GuardedImage<Tpx8u> src(8, 8, 1);
    GuardedImage<Tpx16s> dst(8, 8, 1);
    std::vector<Tpx8u> buffer(1024);
    const Args good{src.randomise(1).data(), src.step(), dst.data(), dst.step(), {8, 8}, 33, 1, buffer.data()};
    const auto gradient = [](auto filter) {
        return [filter](const Args& a) {
            return filter(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.mask, a.border, Tpx8u(0), a.buffer);
        };
    };
    expectCheckOrder(good, faultsOf(35, true), gradient(tpxiFilterSobelVertBorder_8u16s_C1R));
    expectCheckOrder(good, faultsOf(55, true), gradient(tpxiFilterScharrHorizMaskBorder_8u16s_C1R));
    expectCheckOrder(good, faultsOf(55, false), [](const Args& a) {
        return tpxiFilterSharpenBorder_8u_C1R(a.src, a.srcStep, reinterpret_cast<Tpx8u*>(a.dst), a.dstStep,
                                              a.size, a.mask, a.border, 0, a.buffer);
    });
}

TEST(FixedMasks, BufferSizesAndTheirStatuses) {
    int bytes = 0;
    EXPECT_EQ(tpxiFilterSobelVertBorderGetBufferSize({640, 480}, 33, tpxDataType8u, tpxDataType16s, 1, &bytes),
              tpxOk);
    EXPECT_EQ(bytes, 642 * 3);
    EXPECT_EQ(tpxiFilterSobelVertBorderGetBufferSize({10, 480}, 55, tpxDataType32f, tpxDataType32f, 1, &bytes),
              tpxOk);
    EXPECT_EQ(bytes, 484 * 7 * 4);
    EXPECT_EQ(tpxiFilterHipassBorderGetBufferSize({10, 480}, 55, tpxDataType16s, tpxDataType16s, 3, &bytes),
              tpxOk);
    EXPECT_EQ(bytes, 484 * 7 * 2 * 3);
    struct SizeArgs {
        TpxiSize size;
        int mask;
        TpxDataType src, dst;
        int channels;
        bool null;
    };
    expectCheckOrder(SizeArgs{{5, 5}, 33, tpxDataType16s, tpxDataType16s, 1, false},
                     std::vector<Fault<SizeArgs>>{
                         {"null", [](SizeArgs& a) { a.null = true; }, tpxErrNullPointer},
                         {"size", [](SizeArgs& a) { a.size.height = 0; }, tpxErrSize},
                         {"mask", [](SizeArgs& a) { a.mask = 3; }, tpxErrMaskSize},
                         {"type", [](SizeArgs& a) { a.dst = tpxDataType32f; }, tpxErrDataType},
                         {"channels", [](SizeArgs& a) { a.channels = 2; }, tpxErrChannelCount},
                         {"large", [](SizeArgs& a) { a.size.width = 0x7FFFFFFF; }, tpxErrSizeTooLarge},
                     },
                     [](const SizeArgs& a) {
                         int out;
                         return tpxiFilterLaplaceBorderGetBufferSize(a.size, a.mask, a.src, a.dst, a.channels,
                                                                     a.null ? nullptr : &out);
                     });
    EXPECT_EQ(tpxiFilterSobelNegVertBorderGetBufferSize({5, 5}, 33, tpxDataType16s, tpxDataType16s, 1, &bytes),
              tpxErrDataType);
    EXPECT_EQ(tpxiFilterSobelVertBorderGetBufferSize({5, 5}, 33, tpxDataType8u, tpxDataType16s, 3, &bytes),
              tpxErrChannelCount);
}

} // namespace
} // namespace tpx::test
