// SPDX-License-Identifier: Apache-2.0
// The general filter beside a model of its rule tables: every mode, divisor class, offset and shape, in regions
// narrower and wider than where rules change, strips at the borders included.
#include <xmmintrin.h>

#include <cmath>
#include <limits>
#include <memory>

#include "tests/support/checks.h"
#include "tests/support/filter_model.h"

namespace tpx::test {
namespace {

// ---- The caller's side ------------------------------------------------------------------------------------

struct FilterSetup {
    TpxiSize kernel;
    std::vector<double> weights; // in raster order
    bool floats;                 // given as floats, without a divisor
    int divisor;
    TpxRoundMode mode;
    TpxHintAlgorithm hint; // 0: no mode is set
    int offset;

    FilterMask mask() const { return {kernel.width, kernel.height}; }
};

// A block and a buffer of just the bytes that are asked for, at odd addresses.
template <class T>
class Prepared {
 public:
    Prepared(const FilterSetup& s, TpxiSize roi, int channels, unsigned seed) {
        int blockBytes = 0, bufferBytes = 0;
        EXPECT_EQ(
            tpxiFilterBorderGetSize(s.kernel, roi, typeOf<T>(), s.floats ? tpxDataType32f : tpxDataType16s,
                                    channels, &blockBytes, &bufferBytes),
            tpxOk);
        block_ = std::make_unique<GuardedBytes>(size_t(blockBytes), seed % 7);
        buffer_ =
            std::make_unique<GuardedBytes>(size_t(bufferBytes), seed % 5, seed % 2 ? Edge::End : Edge::Start);
        if (s.floats) {
            const std::vector<Tpx32f> k(s.weights.begin(), s.weights.end());
            status = tpxiFilterBorderInit_32f(k.data(), s.kernel, typeOf<T>(), channels, s.mode, block());
        } else {
            const std::vector<Tpx16s> k(s.weights.begin(), s.weights.end());
            status =
                tpxiFilterBorderInit_16s(k.data(), s.kernel, s.divisor, typeOf<T>(), channels, s.mode, block());
        }
        if (s.hint != 0) EXPECT_EQ(tpxiFilterBorderSetMode(s.hint, s.offset, block()), tpxOk);
    }

    TpxiFilterBorderBlock* block() { return reinterpret_cast<TpxiFilterBorderBlock*>(block_->data()); }
    Tpx8u* buffer() { return buffer_->data(); }
    // A field of the block.
    template <class F>
    F field(int at) {
        F value;
        std::memcpy(&value, base() + at, sizeof value);
        return value;
    }
    const uint8_t* base() {
        return reinterpret_cast<const uint8_t*>((reinterpret_cast<uintptr_t>(block_->data()) + 63) &
                                                ~uintptr_t(63));
    }

    TpxStatus status;

 private:
    std::unique_ptr<GuardedBytes> block_, buffer_;
};

template <class T>
using Filter = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxBorderType, const T*,
                             const TpxiFilterBorderBlock*, Tpx8u*);
template <class T>
Filter<T> filterOf(int channels);
#define TPX_FILTERS(T)                                       \
    template <>                                              \
    Filter<Tpx##T> filterOf<Tpx##T>(int channels) {          \
        return channels == 1   ? tpxiFilterBorder_##T##_C1R  \
               : channels == 3 ? tpxiFilterBorder_##T##_C3R  \
                               : tpxiFilterBorder_##T##_C4R; \
    }
TPX_FILTERS(8u)
TPX_FILTERS(16u)
TPX_FILTERS(16s)
TPX_FILTERS(32f)

// ---- The model --------------------------------------------------------------------------------------------

// The width of the region that (x, y) is worked on in: all of it, a strip at a side, or what they leave.
int regionWidth(TpxiSize roi, FilterMask m, unsigned border, int x, int y) {
    if (m.width >= roi.width || m.height >= roi.height) return roi.width;
    const bool mirror = (border & 15) == tpxBorderMirror;
    const int right = m.right() + (mirror && m.width == 2), bottom = m.bottom() + (mirror && m.height == 2);
    bool inLeft = border & tpxBorderInMemLeft, inTop = border & tpxBorderInMemTop,
         inRight = border & tpxBorderInMemRight, inBottom = border & tpxBorderInMemBottom;
    if (m.left() == 0) inLeft = true, inRight |= m.right() == 0;
    if (m.top() == 0) inTop = true, inBottom |= m.bottom() == 0;
    if (inLeft && inTop && inRight && inBottom) return roi.width;
    if (!inTop && y < m.top()) return roi.width;
    if (!inBottom && y >= roi.height - bottom) return roi.width;
    if (!inLeft && x < m.left()) return m.left();
    if (!inRight && x >= roi.width - right) return right;
    return roi.width - (inLeft ? 0 : m.left()) - (inRight ? 0 : right);
}

double limited(double x, double low, double high) { return x < low ? low : x > high ? high : x; }
bool isOdd(int64_t x) { return x % 2 != 0; }

// Tables of the rules for kernels of integers. Saturation comes at the end.
struct IntegerModel {
    bool bytes;
    TpxiSize kernel;
    int64_t d;
    int mode;
    bool exact, pairsUsable;
    int64_t offset;
    float inverse;
    int divisorClass, shift = 0;
    int64_t half = 0, lowMask = 0;

    IntegerModel(const FilterSetup& s, bool isBytes)
        : bytes(isBytes),
          kernel(s.kernel),
          d(s.divisor),
          mode(s.mode & 3),
          exact(s.mode & 16),
          offset(s.offset) {
        if (s.hint != 0) exact = s.hint == tpxHintAccurate;
        pairsUsable = true;
        for (double w : s.weights)
            if (w < -32767 || w > 32766) pairsUsable = false;
        inverse = 1.0f / float(d);
        divisorClass = d == 1 ? 0 : 2;
        for (int i = 1; i < 31; i++)
            if (d == int64_t(1) << i) {
                divisorClass = 1;
                shift = i;
                half = d / 2;
                lowMask = d - 1;
            }
    }
    // Sums in 32 bits wrap around.
    double result(int64_t sum, int width) const {
        const int32_t x = int32_t(sum);
        const bool wide = width >= 16;
        if (kernel.width == 1) return kernel.height >= 3 && wide ? line(x) : small(bytes ? x : sum);
        if (kernel.height == 1) return line(x);
        if (kernel.width >= 3 && wide && pairsUsable) return general(x);
        return small(bytes ? x : sum);
    }

    double general(int32_t x) const {
        if (!exact && mode != 2) return plain(x, mode == 0);
        return bytes ? exactly(x, divisorClass) : trueQuotient(x);
    }
    double line(int32_t x) const { return exact ? exactly(x, 2) : plain(x, false); }

    double plain(int32_t x, bool truncates) const {
        if (shift != 0) { // which goes on wrapping around
            const uint32_t sum = uint32_t(x) + uint32_t((x >> shift) & 1) + (uint32_t(1) << (shift - 1)) - 1;
            return double((int32_t(sum) >> shift) + offset);
        }
        if (truncates) { // the direction holds for the conversion and the product too
            _MM_SET_ROUNDING_MODE(_MM_ROUND_TOWARD_ZERO);
            volatile int32_t in = x;
            volatile float product = float(in) * inverse;
            _MM_SET_ROUNDING_MODE(_MM_ROUND_NEAREST);
            return std::trunc(double(product)) + double(offset);
        }
        return std::nearbyint(double(float(x) * inverse)) + double(offset);
    }
    double exactly(int32_t x, int cls) const {
        const float estimate = float(x) * inverse;
        int64_t q = int64_t(estimate);
        if (cls == 0) {
            q = x;
        } else if (cls == 1) {
            q = mode == 0   ? x >> shift
                : mode == 1 ? (x + half - 1 + ((x >> shift) & 1)) >> shift
                            : (x + half) >> shift;
        } else if (isOdd(d) && mode != 0) {
            q = mode == 1 ? int64_t(std::nearbyint(estimate)) : int64_t(estimate + 0.5f);
        } else {
            if (x == q * d + d) q++;
            if (mode == 1 && x > q * d + (d >> 1) - (q & 1)) q++;
            if (mode == 2 && x > q * d + (d >> 1) - 1) q++;
        }
        return double(q + offset);
    }
    double trueQuotient(int64_t x) const {
        const double q = double(x) / double(d);
        return mode == 0 ? std::trunc(q) : mode == 1 ? std::nearbyint(q) : std::round(q);
    }

    double small(int64_t x) const {
        if (bytes) x = int64_t(float(x) + float(offset) * (divisorClass == 1 ? inverse : float(d)));
        if (divisorClass == 0) return double(x);
        if (divisorClass == 1) return double(smallShifted(x));
        const double q = double(x) / double(d);
        const double top = bytes ? 255 : 32767;
        if (mode == 0) return double(x / d);
        if (q >= top) return top;
        if (bytes && (mode == 1 ? q <= 0.5 : q < 0.5)) return 0;
        if (!bytes && q <= -32768) return -32768;
        const double r = std::trunc(q < 0 ? q - 0.5 : q + 0.5);
        if (mode == 1 && r - q == 0.5 && isOdd(int64_t(r))) return r - 1;
        if (mode == 1 && r - q == -0.5 && isOdd(int64_t(r))) return r + 1;
        return r;
    }
    int64_t smallShifted(int64_t x) const {
        const int64_t v = x >> shift;
        if (bytes && x < 1) return 0;
        if (mode == 0) return x < 0 ? (x + lowMask) >> shift : v;
        if (mode == 1) return v + (((v & 1) + (x & ((half - 1) | half)) + half - 1) >> shift);
        if (x == 0) return 0;
        return x > 0 ? (x + half) >> shift : (((x & ((half - 1) | half)) - 1 + half) >> shift) + v;
    }
};

double floatResult(float v, int mode, int width, double low, double high) {
    if (v >= high) return high;
    if (v <= low) return low;
    if (width >= 8) return std::nearbyint(v);
    return mode == 0 ? std::trunc(v) : mode == 1 ? std::nearbyint(v) : std::round(double(v));
}

// What a filter makes of a source.
template <class T>
class Model {
 public:
    Model(const FilterSetup& s, int channels)
        : setup_(s), integers_(s, std::is_same_v<T, Tpx8u>), weights_(s.weights.begin(), s.weights.end()) {
        const TpxiSize k = s.kernel;
        isFloat_ = s.floats || std::is_same_v<T, Tpx16u> ||
                   (std::is_same_v<T, Tpx16s> && (channels != 1 || k.width < 3 || k.height < 2));
        if (isFloat_ && !s.floats)
            for (float& w : weights_) w = float(double(w) * (1.0 / s.divisor));
    }

    T at(const FilterSource<T>& src, unsigned border, int x, int y, int c) const {
        const FilterMask m = setup_.mask();
        const int width = regionWidth(src.size(), m, border, x, y);
        int64_t sum = 0;
        float floatSum = 0;
        for (int i = 0; i < m.width * m.height; i++) {
            const T sample = src.at(x + i % m.width - m.left(), y + i / m.width - m.top(), c);
            if (!isFloat_) sum += int64_t(setup_.weights[size_t(i)]) * int64_t(sample);
            const float product = weights_[size_t(i)] * float(sample);
            floatSum = i == 0 ? product : floatSum + product;
        }
        if constexpr (std::is_same_v<T, Tpx32f>) {
            return floatSum;
        } else {
            const double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
            return T(limited(
                isFloat_ ? floatResult(floatSum + float(setup_.offset), setup_.mode & 3, width, low, high)
                         : integers_.result(sum, width),
                low, high));
        }
    }

 private:
    FilterSetup setup_;
    IntegerModel integers_;
    std::vector<float> weights_;
    bool isFloat_;
};

// ---- Sweeps -----------------------------------------------------------------------------------------------

const TpxiSize kKernels[] = {{3, 3}, {5, 5}, {3, 2}, {1, 1}, {1, 3}, {3, 1}, {7, 7}, {2, 2}, {4, 4},  {5, 3},
                             {1, 2}, {2, 1}, {1, 7}, {9, 1}, {2, 5}, {8, 3}, {3, 8}, {6, 1}, {11, 2}, {4, 3}};

// The n-th setup of a series: kernels, sizes of coefficients, divisors, modes and offsets take turns.
FilterSetup setupOf(unsigned n, bool floats, bool takesOffset) {
    std::mt19937 random(n);
    FilterSetup s{};
    s.kernel = kKernels[random() % std::size(kKernels)];
    s.floats = floats;
    s.mode = int(random() % 3) + (random() % 3 == 0 ? 16 : 0);
    const unsigned hints = random() % 4;
    s.hint = hints == 0 ? tpxHintAccurate : hints == 1 ? tpxHintFast : 0;
    if (takesOffset && random() % 2) {
        if (s.hint == 0) s.hint = s.mode & 16 ? tpxHintAccurate : tpxHintFast;
        const int offsets[] = {100, -60, 3, -1, 128};
        s.offset = offsets[random() % 5];
    }
    const unsigned style = random() % 4;
    const auto pick = [&](std::vector<int> from) { return from[random() % from.size()]; };
    const auto between = [&](int low, int high) {
        return double(low + int(random() % unsigned(high - low + 1)));
    };
    const int n2 = s.kernel.width * s.kernel.height;
    for (int i = 0; i < n2; i++)
        s.weights.push_back(style == 0   ? between(-2, 4)
                            : style == 1 ? between(-1, 60)
                            : style == 2 ? between(-300, 400)
                                         : pick({32767, -32768, 32766, -32767, 5, -20000, 17000}));
    s.divisor = style == 0   ? pick({1, 2, 4, 8, 3, 6, 9, 10, -4, -7, 5})
                : style == 1 ? pick({64, 256, 512, 100, 99, 255, 1000, -128})
                : style == 2 ? pick({1, 256, 1024, 700, 701, 4096, -333, 1000})
                             : pick({32768, 65536, 30000, 40001, 1 << 30, int(0x80000000), -99999});
    if (floats)
        for (double& w : s.weights) w = style < 2 ? w / 8 : style == 2 ? float(w * 0.0031) : w / 65536;
    return s;
}

template <class T>
void expectLikeModel(int channels, bool floats) {
    const bool takesOffset = std::is_unsigned_v<T>;
    sweepFilterCases({1, 3, 6}, [&](const FilterCase& c) {
        const FilterSetup s = setupOf(c.seed * 8 + unsigned(channels) + (floats ? 4 : 0), floats, takesOffset);
        FilterSource<T> src(c.width, c.height, channels, s.mask(), c.border, c.srcLie, c.seed);
        // Half of the images have few levels, so that sums meet ties.
        if (c.seed % 2 && !std::is_floating_point_v<T>)
            src.image().fill([&](int x, int y, int k) { return (x * 37 + y * 101 + k * 7 + int(c.seed)) % 5; });
        GuardedImage<T> dst(c.width, c.height, channels, c.dstLie);
        Prepared<T> p(s, src.size(), channels, c.seed);
        const Model<T> model(s, channels);
        ASSERT_EQ(filterOf<T>(channels)(src.data(), src.step(), dst.data(), dst.step(), src.size(), c.border,
                                        (c.border & 15) == tpxBorderConstant ? src.value : nullptr, p.block(),
                                        p.buffer()),
                  tpxOk);
        ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return model.at(src, c.border, x, y, k); }))
            << "border " << c.border << ", kernel " << s.kernel.width << " x " << s.kernel.height
            << ", divisor " << s.divisor << ", mode " << s.mode << ", hint " << s.hint << ", offset "
            << s.offset << ", first weight " << s.weights[0];
    });
}

TEST(General, KernelsOfIntegersOnBytes) {
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx8u>(channels, false);
}
TEST(General, KernelsOfIntegersOnWords) {
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx16s>(channels, false);
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx16u>(channels, false);
}
TEST(General, KernelsOfFloatsOnBytes) {
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx8u>(channels, true);
}
TEST(General, KernelsOfFloatsOnWords) {
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx16s>(channels, true);
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx16u>(channels, true);
}
TEST(General, KernelsOfFloatsOnFloats) {
    for (int channels : {1, 3, 4}) expectLikeModel<Tpx32f>(channels, true);
}

// Every mode, class of divisors and shape, on sums from far below to far above the results, in wide and in
// narrow regions: rules alone, without borders.
template <class T>
void expectEveryRule() {
    const int levels = std::is_same_v<T, Tpx8u> ? 256 : 65536, low = std::numeric_limits<T>::min();
    for (const TpxiSize kernel : {TpxiSize{3, 2}, TpxiSize{1, 3}, TpxiSize{3, 1}, TpxiSize{2, 2}})
        for (const int divisor : {1, 2, 3, 4, 6, 7, 16, 100, 101, 1024, -1, -2, -3, -6, 40001, int(0x80000000)})
            for (const int mode : {0, 1, 2, 16, 17, 18})
                for (const int offset : {0, 5, -3})
                    for (const int width : {5, 64}) {
                        if (offset != 0 && !std::is_same_v<T, Tpx8u>) continue;
                        FilterSetup s{kernel, std::vector<double>(size_t(kernel.width * kernel.height), 0),
                                      false,  divisor,
                                      mode,   mode & 16 ? tpxHintAccurate : tpxHintFast,
                                      offset};
                        const int scale = divisor == 40001 ? 30001 : divisor > 100 ? 50 : 2;
                        s.weights.front() = scale + 1;
                        s.weights.back() = -scale;
                        FilterSource<T> src(width, 8, 1, s.mask(), tpxBorderInMemAll, {}, 1);
                        src.image().fill(
                            [&](int x, int y, int) { return low + (x * 91 + y * 1021 + x * x * y) % levels; });
                        GuardedImage<T> dst(width, 8, 1);
                        Prepared<T> p(s, src.size(), 1, 3);
                        const Model<T> model(s, 1);
                        ASSERT_EQ(filterOf<T>(1)(src.data(), src.step(), dst.data(), dst.step(), src.size(),
                                                 tpxBorderInMemAll, nullptr, p.block(), p.buffer()),
                                  tpxOk);
                        ASSERT_TRUE(
                            matches(dst, [&](int x, int y, int k) { return model.at(src, 0xF0, x, y, k); }))
                            << "kernel " << kernel.width << " x " << kernel.height << ", divisor " << divisor
                            << ", mode " << mode << ", offset " << offset;
                    }
}
TEST(General, EveryRuleForKernelsOfIntegers) {
    expectEveryRule<Tpx8u>();
    expectEveryRule<Tpx16s>();
}

// Sums of bytes in 16 bits from the least to the largest that there can be, and a little more; sums of words
// past 32 bits, where they wrap around.
template <class T>
void expectSums(TpxiSize kernel, std::vector<double> weights, int divisor, int mode, int offset) {
    FilterSetup s{kernel, weights, false, divisor, mode, offset ? tpxHintFast : 0, offset};
    FilterSource<T> src(70, 9, 1, s.mask(), tpxBorderInMemAll, {}, 3);
    // Stretches of extremes, so that whole masks see nothing else.
    const double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    src.image().fill([&](int x, int y, int) {
        const int part = (x / 12 + y / 6) % 4;
        return part == 0   ? low
               : part == 1 ? high
               : part == 2 ? low + (x * 37 + y * 11) % 256
               : x % 2     ? low
                           : high;
    });
    GuardedImage<T> dst(70, 9, 1);
    Prepared<T> p(s, src.size(), 1, 3);
    const Model<T> model(s, 1);
    ASSERT_EQ(filterOf<T>(1)(src.data(), src.step(), dst.data(), dst.step(), src.size(), tpxBorderInMemAll,
                             nullptr, p.block(), p.buffer()),
              tpxOk);
    ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return model.at(src, 0xF0, x, y, k); }))
        << "divisor " << divisor << ", mode " << mode << ", offset " << offset << ", first weight "
        << weights[0];
}
TEST(General, SumsAtTheEndsOfTheirLanes) {
    for (int shift = 0; shift <= 16; shift++)
        for (const int mode : {0, 1, 2, 17})
            for (const int offset : {0, 7, -300, 40000, -33000})
                for (const std::vector<double>& row : {std::vector<double>{127, 1, 128},
                                                       {127, 2, 128},
                                                       {-128, -1, -128},
                                                       {-128, 5, 120},
                                                       {100, -120, 37},
                                                       {-127, 127, 3},
                                                       {64, 64, 64}}) {
                    // A column's weight in two parts, which are multiplied together.
                    std::vector<double> weights = row;
                    for (double& w : weights) w = std::trunc(w / 2);
                    for (size_t i = 0; i < 3; i++) weights.push_back(row[i] - weights[i]);
                    expectSums<Tpx8u>({3, 2}, weights, 1 << shift, mode, offset);
                }
    for (const int shift : {1, 8, 15, 20, 30})
        for (const double weight : {32766, -32766, 21846, -21846})
            expectSums<Tpx16s>({3, 2}, std::vector<double>(6, weight), 1 << shift, tpxRoundNearestEven, 0);
}

// Kernels past any table on the stack, and as large as the region.
template <class T>
void expectLargeKernel(TpxiSize kernel, TpxiSize roi, int channels, bool floats, unsigned border,
                       int divisor = 3001) {
    FilterSetup s{kernel, {}, floats, divisor, 0, 0, 0};
    std::mt19937 random(unsigned(kernel.width));
    for (int i = 0; i < kernel.width * kernel.height; i++)
        s.weights.push_back(floats ? double(float(int(random() % 100) - 20) * 0.001f) : int(random() % 7) - 2);
    FilterSource<T> src(roi.width, roi.height, channels, s.mask(), border, {8, Edge::End, 0}, 5);
    GuardedImage<T> dst(roi.width, roi.height, channels);
    Prepared<T> p(s, roi, channels, 1);
    const Model<T> model(s, channels);
    ASSERT_EQ(filterOf<T>(channels)(src.data(), src.step(), dst.data(), dst.step(), roi, border, src.value,
                                    p.block(), p.buffer()),
              tpxOk);
    ASSERT_TRUE(matches(dst, [&](int x, int y, int k) { return model.at(src, border, x, y, k); }))
        << kernel.width << " x " << kernel.height;
}
TEST(General, LargeKernels) {
    for (const TpxiSize kernel : {TpxiSize{17, 19}, TpxiSize{70, 3}, TpxiSize{3, 71}, TpxiSize{64, 40}}) {
        expectLargeKernel<Tpx8u>(kernel, {75, 46}, 1, false, tpxBorderMirror);
        expectLargeKernel<Tpx8u>(kernel, {75, 20}, 3, true, tpxBorderReplicate | tpxBorderInMemTop);
        expectLargeKernel<Tpx16s>(kernel, {20, 75}, 1, false, tpxBorderConstant | tpxBorderInMemRight);
        expectLargeKernel<Tpx32f>(kernel, {33, 30}, 4, true, tpxBorderMirror | tpxBorderInMemLeft);
        expectLargeKernel<Tpx16u>(kernel, {5, 9}, 1, true, tpxBorderReplicate);
    }
}

// Sums wait for their rule a stretch at a time, the last of which may be shorter than a register.
TEST(General, RowsOfSeveralStretches) {
    for (const int width : {512, 513, 525, 1061}) {
        expectLargeKernel<Tpx8u>({3, 3}, {width, 3}, 1, false, tpxBorderInMemAll, 5);
        expectLargeKernel<Tpx8u>({5, 2}, {width, 2}, 3, false, tpxBorderInMemAll, -4);
        expectLargeKernel<Tpx16s>({3, 3}, {width, 3}, 1, false, tpxBorderInMemAll, 7);
    }
}

// Results are made two rows at a time; the second of the last pair may not be read for.
TEST(General, OddNumbersOfRowsEndWithTheImage) {
    for (const TpxiSize kernel : {TpxiSize{3, 3}, TpxiSize{5, 5}, TpxiSize{3, 4}})
        for (const bool floats : {false, true}) {
            expectLargeKernel<Tpx8u>(kernel, {130, 5}, 1, floats, tpxBorderInMemAll);
            expectLargeKernel<Tpx16s>(kernel, {130, 5}, 3, floats, tpxBorderInMemAll);
            expectLargeKernel<Tpx32f>(kernel, {130, 5}, 1, true, tpxBorderInMemAll);
        }
}

// ---- The thread's direction of rounding -------------------------------------------------------------------

TEST(General, DirectionOfTheControlRegister) {
    GuardedImage<Tpx8u> src(32, 4, 1), dst(32, 4, 1);
    src.fill([](int x, int, int) { return 3 * x + 1; });
    const unsigned before = _mm_getcsr();
    const auto run = [&](TpxiSize kernel, bool floats, int mode, unsigned direction) {
        FilterSetup s{kernel, std::vector<double>(size_t(kernel.width * kernel.height), 0), floats, 3, mode, 0,
                      0};
        s.weights.front() = floats ? 1 / 3.0f : 1;
        Prepared<Tpx8u> p(s, src.size(), 1, 0);
        _mm_setcsr((before & ~0x603Fu) | direction);
        const unsigned set = _mm_getcsr();
        EXPECT_EQ(tpxiFilterBorder_8u_C1R(src.data(), src.step(), dst.data(), dst.step(), src.size(),
                                          tpxBorderReplicate, nullptr, p.block(), p.buffer()),
                  tpxOk);
        const unsigned after = _mm_getcsr();
        _mm_setcsr(before);
        EXPECT_EQ(after & ~0x3Fu, set & ~0x3Fu);
        return int(dst.at(20, 1));
    };
    for (unsigned direction : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
        const bool up = direction == 0x4000;
        EXPECT_EQ(run({3, 2}, false, tpxRoundTowardZero, direction), 19) << direction; // 58 / 3
        EXPECT_EQ(run({3, 2}, false, tpxRoundNearestEven, direction), 19) << direction;
        EXPECT_EQ(run({1, 3}, false, tpxRoundTowardZero, direction), up ? 21 : 20) << direction; // 61 / 3
        EXPECT_EQ(run({3, 1}, false, tpxRoundTowardZero, direction), up ? 20 : 19) << direction;
        EXPECT_EQ(run({3, 1}, false, tpxRoundExactFlag, direction), 19) << direction;
        EXPECT_EQ(run({2, 2}, false, tpxRoundTowardZero, direction), 20) << direction;
    }
}

// ---- Sizes, blocks, statuses ------------------------------------------------------------------------------

TEST(General, SizesOfBlockAndBuffer) {
    struct Sizes {
        TpxiSize kernel, roi;
        TpxDataType type, kernelType;
        int channels, block, buffer;
    };
    const Sizes table[] = {
        {{1, 6}, {4, 4}, tpxDataType8u, tpxDataType16s, 1, 447, 799},
        {{5, 1}, {640, 480}, tpxDataType8u, tpxDataType16s, 1, 383, 5791},
        {{3, 3}, {3, 50}, tpxDataType8u, tpxDataType16s, 1, 447, 959},
        {{1, 5}, {37, 29}, tpxDataType8u, tpxDataType32f, 1, 447, 1087},
        {{4, 1}, {37, 29}, tpxDataType8u, tpxDataType32f, 1, 319, 1023},
        {{2, 3}, {37, 29}, tpxDataType8u, tpxDataType32f, 1, 383, 1119},
        {{1, 5}, {4, 4}, tpxDataType16s, tpxDataType32f, 1, 447, 351},
        {{4, 1}, {37, 29}, tpxDataType16s, tpxDataType32f, 1, 319, 863},
        {{2, 3}, {640, 480}, tpxDataType16s, tpxDataType32f, 1, 383, 14463},
        {{1, 5}, {37, 29}, tpxDataType16u, tpxDataType32f, 1, 447, 927},
        {{4, 1}, {37, 29}, tpxDataType16u, tpxDataType32f, 1, 319, 863},
        {{2, 3}, {3, 50}, tpxDataType16u, tpxDataType32f, 1, 383, 607},
        {{3, 2}, {3, 50}, tpxDataType32f, tpxDataType32f, 1, 383, 1439},
        {{1, 6}, {37, 29}, tpxDataType8u, tpxDataType16s, 3, 447, 3551},
        {{5, 1}, {640, 480}, tpxDataType8u, tpxDataType16s, 3, 383, 16671},
        {{3, 3}, {37, 29}, tpxDataType8u, tpxDataType16s, 3, 447, 1215},
        {{1, 5}, {3, 50}, tpxDataType8u, tpxDataType32f, 3, 447, 479},
        {{4, 1}, {37, 29}, tpxDataType8u, tpxDataType32f, 3, 319, 2463},
        {{2, 3}, {37, 29}, tpxDataType8u, tpxDataType32f, 3, 383, 2495},
        {{1, 5}, {640, 480}, tpxDataType16s, tpxDataType32f, 3, 447, 31071},
        {{4, 1}, {37, 29}, tpxDataType16s, tpxDataType32f, 3, 319, 2015},
        {{2, 3}, {3, 50}, tpxDataType16s, tpxDataType32f, 3, 383, 1503},
        {{1, 5}, {37, 29}, tpxDataType16u, tpxDataType32f, 3, 447, 2143},
        {{4, 1}, {640, 480}, tpxDataType16u, tpxDataType32f, 3, 319, 29983},
        {{2, 3}, {37, 29}, tpxDataType16u, tpxDataType32f, 3, 383, 2847},
        {{3, 2}, {640, 480}, tpxDataType32f, tpxDataType32f, 3, 383, 23487},
        {{1, 6}, {4, 4}, tpxDataType8u, tpxDataType16s, 4, 447, 2431},
        {{5, 1}, {3, 50}, tpxDataType8u, tpxDataType16s, 4, 383, 1759},
        {{3, 3}, {640, 480}, tpxDataType8u, tpxDataType16s, 4, 447, 18367},
        {{1, 5}, {37, 29}, tpxDataType8u, tpxDataType32f, 4, 447, 1887},
        {{4, 1}, {4, 4}, tpxDataType8u, tpxDataType32f, 4, 319, 607},
        {{2, 3}, {640, 480}, tpxDataType8u, tpxDataType32f, 4, 383, 49023},
        {{1, 5}, {37, 29}, tpxDataType16s, tpxDataType32f, 4, 447, 2719},
        {{4, 1}, {640, 480}, tpxDataType16s, tpxDataType32f, 4, 319, 39903},
        {{2, 3}, {4, 4}, tpxDataType16s, tpxDataType32f, 4, 383, 767},
        {{1, 5}, {37, 29}, tpxDataType16u, tpxDataType32f, 4, 447, 2719},
        {{4, 1}, {37, 29}, tpxDataType16u, tpxDataType32f, 4, 319, 2623},
        {{2, 3}, {37, 29}, tpxDataType16u, tpxDataType32f, 4, 383, 3647},
        {{3, 2}, {640, 480}, tpxDataType32f, tpxDataType32f, 4, 383, 31167},
        {{3, 3}, {3, 50}, tpxDataType16s, tpxDataType16s, 1, 447, 959},
        {{2, 2}, {3, 50}, tpxDataType16s, tpxDataType16s, 1, 319, 735},
        {{1, 3}, {4, 4}, tpxDataType16s, tpxDataType16s, 1, 383, 319},
        {{3, 3}, {3, 50}, tpxDataType16s, tpxDataType16s, 3, 447, 2175},
        {{5, 5}, {3, 50}, tpxDataType16u, tpxDataType16s, 1, 831, 1055},
        {{1, 1}, {4, 4}, tpxDataType8u, tpxDataType32f, 1, 319, 351},
        {{1, 1}, {4, 4}, tpxDataType16s, tpxDataType32f, 1, 319, 287},
        {{1, 1}, {640, 480}, tpxDataType16u, tpxDataType32f, 1, 319, 5343},
        {{1, 1}, {640, 480}, tpxDataType8u, tpxDataType16s, 1, 319, 5471},
        {{3, 3}, {640, 480}, tpxDataType8u, tpxDataType16s, 2, 447, 3967},
    };
    for (const Sizes& s : table) {
        int block = -1, buffer = -1;
        EXPECT_EQ(tpxiFilterBorderGetSize(s.kernel, s.roi, s.type, s.kernelType, s.channels, &block, &buffer),
                  tpxOk);
        EXPECT_EQ(block, s.block) << "row " << &s - table;
        EXPECT_EQ(buffer, s.buffer) << "row " << &s - table;
    }
    int block = 0, buffer = -1;
    for (const TpxiSize roi : {TpxiSize{0x7FFFFFFF, 0x7FFFFFFF}, TpxiSize{0x10000000, 3}, TpxiSize{4, 4}}) {
        const TpxiSize kernel = roi.width == 4 ? TpxiSize{0x7FFFFFFF, 0x7FFFFFFF} : TpxiSize{3, 3};
        buffer = -1;
        EXPECT_EQ(tpxiFilterBorderGetSize(kernel, roi, tpxDataType8u, tpxDataType16s, 4, &block, &buffer),
                  tpxErrSizeTooLarge);
        EXPECT_EQ(buffer, 0);
    }
}

TEST(General, BlockOfIntegers) {
    const FilterSetup s{{3, 2}, {1, 2, 3, 4, 5, -6}, false, 8, tpxRoundNearestEven | tpxRoundExactFlag, 0, 0};
    Prepared<Tpx8u> p(s, {20, 20}, 3, 1);
    ASSERT_EQ(p.status, tpxOk);
    const auto ints = [&](std::vector<int> at) {
        std::vector<int> values;
        for (int a : at) values.push_back(p.field<int>(a));
        return values;
    };
    EXPECT_EQ(ints({0, 4, 8, 12, 16, 20, 32, 48, 56, 60, 104, 108}),
              (std::vector<int>{0, 3, 2, 1, 3, 4, 8, 7, 17, 0, 1, 3}));
    EXPECT_EQ(p.field<float>(24), 0.125f);
    EXPECT_EQ(p.field<float>(28), 0.125f);
    EXPECT_EQ(p.field<double>(40), 0.125);
    EXPECT_EQ(p.field<float>(52), 8.0f);
    EXPECT_EQ(p.field<const uint8_t*>(72), p.base() + 128);
    EXPECT_EQ(p.field<const uint8_t*>(88), p.base() + 192);
    const auto words = [&](int at, int n) {
        std::vector<int> values;
        for (int i = 0; i < n; i++) values.push_back(p.field<Tpx16s>(at + 2 * i));
        return values;
    };
    EXPECT_EQ(words(128, 6), (std::vector<int>{-6, 5, 4, 3, 2, 1}));
    std::vector<int> pairs;
    for (auto [a, b] : {std::pair{1, 2}, {3, 0}, {4, 5}, {-6, 0}})
        for (int i = 0; i < 4; i++) pairs.push_back(a), pairs.push_back(b);
    EXPECT_EQ(words(192, 32), pairs);

    // A power of two divides an offset, anything else multiplies it.
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintFast, 12, p.block()), tpxOk);
    EXPECT_EQ(ints({56, 60, 68}), (std::vector<int>{1, 12, tpxHintFast}));
    EXPECT_EQ(p.field<float>(64), 1.5f);
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintAccurate, 0, p.block()), tpxOk);
    EXPECT_EQ(p.field<int>(56), 17);
    for (const int divisor : {1, 5, -7, int(0x80000000)}) {
        FilterSetup other = s;
        other.divisor = divisor;
        other.weights[4] = divisor == 5 ? 32767 : 32766;
        Prepared<Tpx8u> q(other, {20, 20}, 1, 2);
        EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintFast, 3, q.block()), tpxOk);
        EXPECT_EQ(q.field<int>(12), divisor == 1 ? 0 : 2);
        EXPECT_EQ(q.field<int>(16), 0);
        EXPECT_EQ(q.field<float>(24), 1.0f / float(divisor));
        EXPECT_EQ(q.field<double>(40), double(divisor));
        EXPECT_EQ(q.field<float>(64), 3.0f * float(divisor));
        EXPECT_EQ(q.field<int>(104), divisor != 5);
    }
}

TEST(General, BlockOfFloats) {
    FilterSetup s{{3, 1}, {0.5, -2, 3}, true, 0, tpxRoundHalfAway, 0, 0};
    Prepared<Tpx16s> p(s, {20, 20}, 1, 1);
    EXPECT_EQ(p.field<int>(0), 4);
    EXPECT_EQ(p.field<int>(56), 2);
    EXPECT_EQ(p.field<const uint8_t*>(80), p.base() + 128);
    EXPECT_EQ(p.field<const uint8_t*>(96), p.base() + 192);
    for (int i = 0; i < 3; i++) {
        EXPECT_EQ(p.field<float>(128 + 4 * i), float(s.weights[size_t(2 - i)]));
        for (int k = 0; k < 4; k++)
            EXPECT_EQ(p.field<float>(192 + 16 * i + 4 * k), float(s.weights[size_t(i)] / 65536));
    }
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintFast, 1, p.block()), tpxErrUnsupportedMode);
    EXPECT_EQ(p.field<int>(60), 0);
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintAccurate, 0, p.block()), tpxOk);
    EXPECT_EQ(p.field<int>(56), 2);

    // Integers become floats; the middle one stays in its place when they are turned around.
    FilterSetup t{{3, 1}, {1, 2, -4}, false, 3, tpxRoundTowardZero | tpxRoundExactFlag, 0, 0};
    Prepared<Tpx16u> q(t, {20, 20}, 1, 1);
    EXPECT_EQ(q.status, tpxWarnExactIgnored);
    EXPECT_EQ(q.field<int>(0), 5);
    EXPECT_EQ(q.field<int>(56), 0);
    for (int i = 0; i < 3; i++)
        EXPECT_EQ(q.field<float>(128 + 4 * i), float(t.weights[size_t(2 - i)] * (1.0 / 3)));
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintFast, -9, q.block()), tpxOk);
    EXPECT_EQ(q.field<float>(64), -9.0f);
}

TEST(General, ExactFlagIsTakenWhereItHasAnEffect) {
    alignas(64) char block[1024];
    const auto spec = reinterpret_cast<TpxiFilterBorderBlock*>(block);
    const Tpx16s k[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    const Tpx32f f[9] = {};
    const auto init = [&](TpxiSize size, TpxDataType type, int channels) {
        return tpxiFilterBorderInit_16s(k, size, 9, type, channels, 0x11, spec);
    };
    for (int channels : {1, 2, 3, 4}) EXPECT_EQ(init({3, 3}, tpxDataType8u, channels), tpxOk);
    EXPECT_EQ(init({3, 3}, tpxDataType16s, 1), tpxOk);
    EXPECT_EQ(init({3, 3}, tpxDataType16s, 2), tpxWarnExactIgnored);
    EXPECT_EQ(init({3, 3}, tpxDataType16s, 3), tpxWarnExactIgnored);
    EXPECT_EQ(init({1, 3}, tpxDataType16s, 1), tpxWarnExactIgnored);
    EXPECT_EQ(init({3, 3}, tpxDataType16u, 1), tpxWarnExactIgnored);
    EXPECT_EQ(tpxiFilterBorderInit_32f(f, {3, 3}, tpxDataType8u, 1, 0x10, spec), tpxWarnExactIgnored);
    EXPECT_EQ(tpxiFilterBorderInit_32f(f, {3, 3}, tpxDataType8u, 1, 2, spec), tpxOk);
}

TEST(General, ChecksInTheirOrder) {
    GuardedImage<Tpx16s> src(8, 8, 3), dst(8, 8, 3);
    const FilterSetup s{{3, 3}, std::vector<double>(9, 1), false, 9, 0, 0, 0};
    Prepared<Tpx16s> p(s, {8, 8}, 3, 0);
    struct Args {
        Tpx16s *src, *dst;
        int srcStep, dstStep;
        TpxiSize size;
        TpxBorderType border;
        const Tpx16s* value;
        TpxiFilterBorderBlock* spec;
        Tpx8u* buffer;
    };
    const Tpx16s value[3] = {};
    const Args good{src.randomise(1).data(), dst.data(), src.step(), dst.step(), {8, 8},
                    tpxBorderConstant,       value,      p.block(),  p.buffer()};
    const auto call = [](const Args& a) {
        return tpxiFilterBorder_16s_C3R(a.src, a.srcStep, a.dst, a.dstStep, a.size, a.border, a.value, a.spec,
                                        a.buffer);
    };
    expectCheckOrder(good,
                     std::vector<Fault<Args>>{
                         {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
                         {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
                         {"spec", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
                         {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
                         {"value", [](Args& a) { a.value = nullptr, a.border = 0x106; }, tpxErrNullPointer},
                         {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
                         {"size", [](Args& a) { a.size.height = -5; }, tpxErrSize},
                         {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
                         {"dstStep", [](Args& a) { a.dstStep = 15; }, tpxErrStep},
                         {"border", [](Args& a) { a.border = 0x30; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0x101; }, tpxErrBorder},
                         {"border", [](Args& a) { a.border = 0; }, tpxErrBorder},
                     },
                     call);
    EXPECT_EQ(call(good), tpxOk);
    Args oneRow = good; // a step that three channels do not fit in
    oneRow.dstStep = 16;
    oneRow.size.height = 1;
    EXPECT_EQ(call(oneRow), tpxOk);
}

TEST(General, ChecksOfSetUpInTheirOrder) {
    struct SizeArgs {
        TpxiSize kernel, roi;
        TpxDataType type, kernelType;
        int channels;
        bool noSpec, noBuffer;
    };
    expectCheckOrder(SizeArgs{{3, 3}, {9, 9}, tpxDataType8u, tpxDataType16s, 1, false, false},
                     std::vector<Fault<SizeArgs>>{
                         {"kernel", [](SizeArgs& a) { a.kernel.width = 0; }, tpxErrSize},
                         {"roi", [](SizeArgs& a) { a.roi.height = -1; }, tpxErrSize},
                         {"type", [](SizeArgs& a) { a.type = 19; }, tpxErrDataType},
                         {"kernelType", [](SizeArgs& a) { a.kernelType = 5; }, tpxErrDataType},
                         {"channels", [](SizeArgs& a) { a.channels = 5; }, tpxErrChannelIndex},
                         {"spec", [](SizeArgs& a) { a.noSpec = true; }, tpxErrNullPointer},
                         {"buffer", [](SizeArgs& a) { a.noBuffer = true; }, tpxErrNullPointer},
                     },
                     [](const SizeArgs& a) {
                         int spec, buffer;
                         return tpxiFilterBorderGetSize(a.kernel, a.roi, a.type, a.kernelType, a.channels,
                                                        a.noSpec ? nullptr : &spec,
                                                        a.noBuffer ? nullptr : &buffer);
                     });

    alignas(64) char block[1024];
    struct InitArgs {
        bool noKernel;
        TpxiFilterBorderBlock* spec;
        TpxiSize kernel;
        TpxDataType type;
        int channels, mode, divisor;
    };
    const InitArgs good{false, reinterpret_cast<TpxiFilterBorderBlock*>(block), {3, 3}, tpxDataType8u, 1, 0, 3};
    std::vector<Fault<InitArgs>> faults = {
        {"kernel", [](InitArgs& a) { a.noKernel = true; }, tpxErrNullPointer},
        {"spec", [](InitArgs& a) { a.spec = nullptr; }, tpxErrNullPointer},
        {"size", [](InitArgs& a) { a.kernel.height = 0; }, tpxErrSize},
        {"type", [](InitArgs& a) { a.type = 19; }, tpxErrDataType},
        {"channels", [](InitArgs& a) { a.channels = 0; }, tpxErrChannelIndex},
        {"mode", [](InitArgs& a) { a.mode = 3; }, tpxErrRoundMode},
        {"mode", [](InitArgs& a) { a.mode = 0x20; }, tpxErrRoundMode},
        {"mode", [](InitArgs& a) { a.mode = -1; }, tpxErrRoundMode},
        {"mode", [](InitArgs& a) { a.mode = 0x13; }, tpxErrRoundMode},
    };
    expectCheckOrder(good, faults, [](const InitArgs& a) {
        const Tpx32f k[9] = {};
        return tpxiFilterBorderInit_32f(a.noKernel ? nullptr : k, a.kernel, a.type, a.channels, a.mode, a.spec);
    });
    faults.push_back({"divisor", [](InitArgs& a) { a.divisor = 0; }, tpxErrDivisor});
    faults.insert(faults.begin() + 4, {"type", [](InitArgs& a) { a.type = tpxDataType32f; }, tpxErrDataType});
    expectCheckOrder(good, faults, [](const InitArgs& a) {
        const Tpx16s k[9] = {};
        return tpxiFilterBorderInit_16s(a.noKernel ? nullptr : k, a.kernel, a.divisor, a.type, a.channels,
                                        a.mode, a.spec);
    });
    EXPECT_EQ(tpxiFilterBorderSetMode(tpxHintFast, 0, nullptr), tpxErrNullPointer);
}

} // namespace
} // namespace tpx::test
