// SPDX-License-Identifier: Apache-2.0
// tpxiHistogram through the exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <memory>

#include "tests/support/checks.h"
#include "tests/support/samples.h"

namespace {

using namespace tpx::test;

// ---- The functions as data -------------------------------------------------------------------------------

template <class T>
struct Form {
    const char* name;
    TpxDataType type;
    int channels;
    TpxStatus (*run)(const T*, int, TpxiSize, Tpx32u* const*, const TpxHistogramSpec*, Tpx8u*);
};

#define FORM(T, L, channels, hist)                                                                           \
    Form<Tpx##T> {                                                                                           \
        "tpxiHistogram_" #T "_" #L "R", tpxDataType##T, channels,                                            \
            [](const Tpx##T* s, int ss, TpxiSize z, Tpx32u* const* h, const TpxHistogramSpec* p, Tpx8u* b) { \
                return tpxiHistogram_##T##_##L##R(s, ss, z, hist, p, b);                                     \
            }                                                                                                \
    }
#define FORMS(T)                                                                                              \
    template <>                                                                                               \
    const std::vector<Form<Tpx##T>>& forms() {                                                                \
        static const std::vector<Form<Tpx##T>> list = {FORM(T, C1, 1, (h ? *h : nullptr)), FORM(T, C3, 3, h), \
                                                       FORM(T, C4, 4, h)};                                    \
        return list;                                                                                          \
    }
template <class T>
const std::vector<Form<T>>& forms();
FORMS(8u)
FORMS(16u)
FORMS(16s)
FORMS(32f)

template <class T>
class Histogram : public ::testing::Test {};
using Types = ::testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Histogram, Types);

// Spec, work buffer and counters of exactly the sizes told, at odd addresses, each ending at an unreadable
// page.
struct Prepared {
    std::vector<int> nLevels;
    std::unique_ptr<GuardedBytes> specBytes, bufferBytes;
    std::vector<std::unique_ptr<GuardedBytes>> histBytes, levelBytes;
    std::vector<Tpx32u*> hist;
    TpxStatus status = tpxOk;

    Prepared(TpxDataType type, std::vector<int> counts, size_t misalign) : nLevels(counts) {
        int specSize = 0, bufferSize = -1;
        EXPECT_EQ(
            tpxiHistogramGetBufferSize(type, {1, 1}, nLevels.data(), channels(), 0, &specSize, &bufferSize),
            tpxOk);
        specBytes = std::make_unique<GuardedBytes>(size_t(specSize), misalign);
        bufferBytes = std::make_unique<GuardedBytes>(size_t(bufferSize), misalign);
        bufferBytes->fill(0xEE);
        for (const int n : nLevels) {
            histBytes.push_back(std::make_unique<GuardedBytes>(size_t(n - 1) * 4));
            histBytes.back()->fill(0xDD);
            hist.push_back(reinterpret_cast<Tpx32u*>(histBytes.back()->data()));
        }
    }
    int channels() const { return int(nLevels.size()); }
    TpxHistogramSpec* spec() { return reinterpret_cast<TpxHistogramSpec*>(specBytes->data()); }
    // Null for floats, which need none.
    Tpx8u* buffer() { return bufferBytes->size() ? bufferBytes->data() : nullptr; }

    std::vector<std::vector<float>> storedLevels() {
        std::vector<std::vector<float>> levels;
        std::vector<float*> at;
        for (const int n : nLevels) levels.emplace_back(n);
        for (auto& channel : levels) at.push_back(channel.data());
        EXPECT_EQ(tpxiHistogramGetLevels(spec(), at.data()), tpxOk);
        return levels;
    }
};

std::vector<int> sizesOf(const std::vector<std::vector<float>>& levels) {
    std::vector<int> sizes;
    for (const auto& channel : levels) sizes.push_back(int(channel.size()));
    return sizes;
}

Prepared prepare(TpxDataType type, const std::vector<std::vector<float>>& levels, size_t misalign = 0) {
    Prepared p(type, sizesOf(levels), misalign);
    std::vector<const float*> at;
    for (const auto& channel : levels) at.push_back(channel.data());
    p.status = tpxiHistogramInit(type, at.data(), p.nLevels.data(), p.channels(), p.spec());
    return p;
}

Prepared prepareUniform(TpxDataType type, int n, std::vector<float> lower, std::vector<float> upper) {
    Prepared p(type, std::vector<int>(lower.size(), n), 1);
    p.status =
        tpxiHistogramUniformInit(type, lower.data(), upper.data(), p.nLevels.data(), p.channels(), p.spec());
    return p;
}

// The counters hold, for each bin, the samples between its levels, which are rising integers or floats.
template <class T, class Levels>
void expectCounts(const Form<T>& form, const GuardedImage<T>& image, Prepared& p, const Levels& levels) {
    ASSERT_EQ(form.run(image.data(), image.step(), image.size(), p.hist.data(), p.spec(), p.buffer()), tpxOk);
    for (int c = 0; c < form.channels; c++) {
        std::vector<Tpx32u> want(size_t(p.nLevels[size_t(c)]) - 1);
        for (int y = 0; y < image.height(); y++)
            for (int x = 0; x < image.width(); x++) {
                const double sample = double(image.at(x, y, c));
                const auto above =
                    std::upper_bound(levels[c].begin(), levels[c].end(), sample) - levels[c].begin();
                if (!std::isnan(sample) && above > 0 && above < p.nLevels[size_t(c)]) want[size_t(above) - 1]++;
            }
        for (size_t k = 0; k < want.size(); k++) {
            Tpx32u got;
            std::memcpy(&got, p.hist[size_t(c)] + k, 4);
            ASSERT_EQ(got, want[k]) << form.name << " bin " << k << " of " << want.size() << ", channel " << c
                                    << ", " << image.width() << " x " << image.height();
        }
    }
}

template <class T>
std::vector<std::vector<float>> someLevels(int channels, unsigned kind) {
    const float low = std::is_signed_v<T> ? -900 : 3, distance = sizeof(T) == 1 ? 7 : 90;
    std::vector<std::vector<float>> levels(static_cast<size_t>(channels));
    std::mt19937 random(kind);
    for (int c = 0; c < channels; c++) {
        const int n = 2 + int(kind * 5 + unsigned(c) * 13) % 30;
        float level = low + float(c);
        for (int k = 0; k < n; k++) {
            levels[size_t(c)].push_back(level);
            level += kind % 2 ? distance : 1 + float(random() % 1000) * distance / 500;
        }
    }
    return levels;
}

template <class T>
std::vector<std::vector<float>> stored(std::vector<std::vector<float>> levels) {
    if (std::is_integral_v<T>)
        for (auto& channel : levels)
            for (float& level : channel) level = std::ceil(level);
    return levels;
}

// ---- Counts ----------------------------------------------------------------------------------------------

TYPED_TEST(Histogram, EveryShape) {
    for (const auto& form : forms<TypeParam>()) {
        unsigned kind = 0;
        sweepOddShapes([&](int width, const Lie& lie, const Lie&) {
            const auto levels = someLevels<TypeParam>(form.channels, ++kind % 40);
            Prepared p = prepare(form.type, levels, kind % 5);
            GuardedImage<TypeParam> image(width, 3, form.channels, {lie.padding + int(kind % 2), lie.edge, 1});
            image.randomise(kind);
            if (std::is_same_v<TypeParam, Tpx32f>) image.set(0, 1, 0, TypeParam(NAN));
            if (sizeof(TypeParam) == 2 && kind % 2)
                image.fill([&](int x, int y, int c) { return int(image.at(x, y, c)) % 2000; });
            expectCounts(form, image, p, stored<TypeParam>(levels));
        });
    }
}

// Images and levels small and large take different ways. Constant images, those of two samples in turn, and
// samples at and beside levels; few levels and more than there are samples.
TYPED_TEST(Histogram, EverySizeAndNumberOfLevels) {
    for (const auto& form : forms<TypeParam>())
        for (const TpxiSize size : {TpxiSize{8, 1}, {64, 64}, {90, 90}, {200, 150}, {256, 257}})
            for (const int n : {2, 9, 101, 102, 103, 104, 257, 511, 512, 3000})
                for (const int content : {0, 1, 2}) {
                    if (sizeof(TypeParam) == 1 && n > 257) continue;
                    const int range = sizeof(TypeParam) == 1 ? 256 : 65536;
                    const int lowest = std::is_same_v<TypeParam, Tpx16s> ? -32768 : 0;
                    std::vector<std::vector<float>> levels(size_t(form.channels),
                                                           std::vector<float>(size_t(n)));
                    for (int c = 0; c < form.channels; c++)
                        for (int k = 0; k < n; k++) // channel 1 uneven
                            levels[size_t(c)][size_t(k)] = float(lowest + int(int64_t(k) * range / (n - 1))) -
                                                           (c == 1 && k % 2 ? 0.5f : 0);
                    Prepared p = prepare(form.type, levels, 3);
                    GuardedImage<TypeParam> image(size.width, size.height, form.channels);
                    std::mt19937 random(7);
                    image.fill([&](int x, int, int c) {
                        const auto& l = levels[size_t(c)];
                        const unsigned at = content == 0   ? unsigned(n) / 2
                                            : content == 1 ? unsigned(x) % 2
                                                           : unsigned(random());
                        const float level =
                            l[at % l.size()] + (content == 2 ? float(int(random() % 3)) - 1 : 0);
                        return TypeParam(std::fmin(std::fmax(level, float(lowest)), float(lowest + range - 1)));
                    });
                    expectCounts(form, image, p, stored<TypeParam>(levels));
                }
}

// Longer rows, and more of them, than are read at a time.
TEST(HistogramFloats, LargeImages) {
    for (const auto& form : forms<Tpx32f>())
        for (const TpxiSize size : {TpxiSize{70000, 2}, {301, 450}, {131072 * 2, 1}}) {
            const auto levels = someLevels<Tpx32f>(form.channels, 7);
            Prepared p = prepare(form.type, levels);
            GuardedImage<Tpx32f> image(size.width, size.height, form.channels, {20, Edge::End, 0});
            expectCounts(form, image.randomise(3), p, levels);
        }
}

TEST(HistogramBytes, EverySample) {
    GuardedImage<Tpx8u> image(256, 256, 1);
    image.fill([](int x, int y, int) { return x < y ? x : y; });
    std::vector<std::vector<float>> all(1), beyond = {{-300, -0.5f, 254.5f, 256, 1e9f}};
    for (int k = 0; k <= 256; k++) all[0].push_back(float(k));
    for (const auto& levels : {all, beyond}) {
        Prepared p = prepare(tpxDataType8u, levels);
        expectCounts(forms<Tpx8u>()[0], image, p, stored<Tpx8u>(levels));
    }
}

// Counters are sums of what neighbours counted apart.
TEST(HistogramBytes, ManyEqualSamples) {
    GuardedImage<Tpx8u> image(5000, 4000, 1);
    std::memset(image.data(), 77, 20000000);
    Prepared p = prepare(tpxDataType8u, {{0, 77, 78, 256}});
    ASSERT_EQ(tpxiHistogram_8u_C1R(image.data(), 5000, {5000, 4000}, p.hist[0], p.spec(), p.buffer()), tpxOk);
    EXPECT_EQ(std::vector<Tpx32u>(p.hist[0], p.hist[0] + 3), (std::vector<Tpx32u>{0, 20000000, 0}));
}

// Small images of 16-bit samples with uniform levels whose distance is exact divide by the step as it was
// before the levels were truncated.
TEST(HistogramUniform, DividesInSmallImages) {
    struct Case {
        float lower, upper;
        int n;
    };
    const float lessThanOne = std::nextafter(1.0f, 0.0f);
    for (const Case& t : {Case{0, 10.9f, 11},
                          {0, 10.9f, 6},
                          {-10, -lessThanOne, 11},
                          {0.9f, 10, 6},
                          {0, 65536, 257},
                          {-32768, 32768, 4097},
                          {-1e6f, 1e6f, 5},
                          {0, 65535, 2},
                          {-3, 4e9f, 3},
                          {0, 3e38f, 2}})
        for (const int height : {255, 256}) {
            GuardedImage<Tpx16s> image(256, height, 1);
            image.fill([](int x, int y, int) { return y * 256 + x - 32768; });
            Prepared p = prepareUniform(tpxDataType16s, t.n, {t.lower}, {t.upper});
            const auto levels = p.storedLevels()[0];
            const double lowest = levels[0], distance = double(levels[size_t(t.n) - 1]) - lowest;
            const float step = (t.upper - t.lower) / float(t.n - 1);
            if (height == 256 || std::fmod(distance, t.n - 1) != 0) { // 65536 pixels are not few
                expectCounts(forms<Tpx16s>()[0], image, p, std::vector<std::vector<float>>{levels});
                continue;
            }
            std::vector<Tpx32u> want(size_t(t.n) - 1);
            for (int i = 0; i < 256 * height; i++) {
                const double d = i - 32768 - lowest;
                if (d >= 0 && d < distance) want[std::min(size_t(float(d) / step), size_t(t.n) - 2)]++;
            }
            ASSERT_EQ(tpxiHistogram_16s_C1R(image.data(), image.step(), image.size(), p.hist[0], p.spec(),
                                            p.buffer()),
                      tpxOk);
            EXPECT_EQ(std::vector<Tpx32u>(p.hist[0], p.hist[0] + t.n - 1), want) << t.lower << " " << t.upper;
        }
}

// ---- Levels ----------------------------------------------------------------------------------------------

TEST(HistogramLevels, StoredAsCeilings) {
    const std::vector<std::vector<float>> levels = {
        {-INFINITY, -3e9f, -2.5f, -2, -0.5f, 0.25f, 0.5f, 3, 3e9f, INFINITY}, {1.5f, 2.5f}, {-7, 7}};
    EXPECT_EQ(prepare(tpxDataType16s, levels, 1).storedLevels(),
              (std::vector<std::vector<float>>{
                  {-0x1p31f, -0x1p31f, -2, -2, 0, 1, 1, 3, 0x1p31f, 0x1p31f}, {2, 3}, {-7, 7}}));
    EXPECT_EQ(prepare(tpxDataType32f, levels, 3).storedLevels(), levels);
}

TEST(HistogramLevels, Uniform) {
    Prepared p = prepareUniform(tpxDataType8u, 11, {0}, {5});
    EXPECT_EQ(p.status, tpxWarnValueAdjusted);
    EXPECT_EQ(p.storedLevels()[0], (std::vector<float>{0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5}));
    GuardedImage<Tpx8u> image(16, 16, 1);
    image.fill([](int x, int, int) { return x; });
    expectCounts(forms<Tpx8u>()[0], image, p, p.storedLevels());

    Prepared truncated = prepareUniform(tpxDataType16s, 5, {-2.75f, 0, 0.5f}, {2.75f, 4, 9.9f});
    EXPECT_EQ(truncated.status, tpxOk);
    EXPECT_EQ(truncated.storedLevels(),
              (std::vector<std::vector<float>>{{-2, -1, 0, 1, 2}, {0, 1, 2, 3, 4}, {0, 2, 5, 7, 9}}));
    EXPECT_EQ(prepareUniform(tpxDataType16u, 5, {0, 0, 0}, {40, 3.75f, 40}).status, tpxWarnValueAdjusted);

    Prepared real = prepareUniform(tpxDataType32f, 4, {-0.1f}, {0.9f});
    EXPECT_EQ(real.status, tpxOk);
    EXPECT_EQ(prepareUniform(tpxDataType32f, 4, {-INFINITY}, {5}).storedLevels()[0],
              (std::vector<float>{-INFINITY, -INFINITY, -INFINITY, 5})); // no number between them
    const float step = (0.9f - -0.1f) / 3;
    EXPECT_EQ(real.storedLevels()[0], (std::vector<float>{-0.1f, -0.1f + step, -0.1f + step * 2, 0.9f}));
}

// Bounds that overflow, underflow, or are no numbers: nothing outside is touched, and no sample is counted
// twice.
TYPED_TEST(Histogram, ExtremeBounds) {
    const float bounds[] = {-INFINITY, -3e38f, -3e9f, -1e-45f, 0, 1e-45f, 1, 1.0000001f, 3e9f, 3e38f, INFINITY};
    for (const float lower : bounds)
        for (const float upper : bounds)
            for (const int n : {2, 3, 20, 700}) {
                Prepared p = prepareUniform(forms<TypeParam>()[0].type, n, {lower}, {upper});
                ASSERT_EQ(p.status < tpxOk, !(lower < upper)) << lower << " " << upper;
                if (p.status < tpxOk) continue;
                for (const int width : {9, 300}) {
                    GuardedImage<TypeParam> image(width, 260, 1);
                    image.randomise(unsigned(n));
                    ASSERT_EQ(forms<TypeParam>()[0].run(image.data(), image.step(), image.size(), p.hist.data(),
                                                        p.spec(), p.buffer()),
                              tpxOk);
                    uint64_t sum = 0;
                    for (int k = 0; k < n - 1; k++) sum += p.hist[0][k];
                    EXPECT_LE(sum, uint64_t(width) * 260);
                }
            }
    for (const float lower : {0.0f, NAN})
        EXPECT_EQ(prepareUniform(forms<TypeParam>()[0].type, 3, {lower}, {NAN}).status, tpxErrRange);
}

// ---- Statuses --------------------------------------------------------------------------------------------

TYPED_TEST(Histogram, CheckOrder) {
    for (const auto& form : forms<TypeParam>()) {
        const std::vector<std::vector<float>> levels(size_t(form.channels), {1, 2, 3});
        Prepared good = prepare(form.type, levels), cleared = prepare(form.type, levels);
        Prepared otherType = prepare(form.type == tpxDataType32f ? tpxDataType16s : tpxDataType32f, levels);
        Prepared otherChannels =
            prepare(form.type, std::vector<std::vector<float>>(form.channels == 3 ? 4 : 3, {1, 2, 3}));
        std::memset(cleared.spec(), 0, 80);
        GuardedImage<TypeParam> image(5, 4, form.channels);
        image.randomise(1);
        struct Args {
            const TypeParam* src;
            int step;
            TpxiSize size;
            Tpx32u* const* hist;
            const TpxHistogramSpec* spec;
            Tpx8u* buffer;
        };
        std::vector<Tpx32u*> lacking = good.hist;
        lacking.back() = nullptr;
        std::vector<Fault<Args>> faults = {
            {"source", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
            {"counters", [](Args& a) { a.hist = nullptr; }, tpxErrNullPointer},
            {"spec", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
            {"counters", [&](Args& a) { a.hist = lacking.data(); }, tpxErrNullPointer},
            {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
            {"size", [](Args& a) { a.size.height = -1; }, tpxErrSize},
            {"step", [](Args& a) { a.step--; }, tpxErrStep},
            {"step", [](Args& a) { a.step = INT_MIN; }, tpxErrStep},
            {"spec", [&](Args& a) { a.spec = cleared.spec(); }, tpxErrBadArgument},
            {"spec", [&](Args& a) { a.spec = otherType.spec(); }, tpxErrBadArgument},
            {"spec", [&](Args& a) { a.spec = otherChannels.spec(); }, tpxErrBadArgument},
        };
        if (good.buffer())
            faults.insert(faults.begin() + 3,
                          {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer});
        expectCheckOrder(
            Args{image.data(), image.step(), image.size(), good.hist.data(), good.spec(), good.buffer()},
            faults, [&](const Args& a) { return form.run(a.src, a.step, a.size, a.hist, a.spec, a.buffer); });
    }
}

TEST(HistogramSizes, SizesAndCheckOrder) {
    const int counts[] = {2, 3, 4, 5};
    int spec = 0, buffer = 0;
    const struct {
        TpxDataType type;
        int perChannel;
    } types[] = {
        {tpxDataType8u, 1024}, {tpxDataType16u, 262144}, {tpxDataType16s, 262144}, {tpxDataType32f, 0}};
    for (const auto& t : types)
        for (const int channels : {1, 3, 4}) {
            EXPECT_EQ(tpxiHistogramGetBufferSize(t.type, {9, 9}, counts, channels, 1, &spec, &buffer), tpxOk);
            EXPECT_EQ(spec, 80 + 4 * (channels == 1 ? 2 : channels == 3 ? 9 : 14));
            EXPECT_EQ(buffer, channels * t.perChannel);
        }
    spec = 0;
    EXPECT_EQ(tpxiHistogramGetBufferSize(tpxDataType64f, {9, 9}, counts, 1, 0, &spec, &buffer), tpxErrDataType);
    EXPECT_EQ(spec, 88);
    const int huge[] = {0x1FFFFFEC, INT_MAX, INT_MAX, INT_MAX}, fits[] = {0x1FFFFFEB};
    EXPECT_EQ(tpxiHistogramGetBufferSize(tpxDataType8u, {9, 9}, fits, 1, 0, &spec, &buffer), tpxOk);
    EXPECT_EQ(spec, 0x7FFFFFFC);

    struct Args {
        TpxDataType type;
        TpxiSize size;
        const int* counts;
        int channels;
        int *spec, *buffer;
    };
    const int few[] = {2, 3, 4, 1};
    expectCheckOrder(Args{tpxDataType8u, {1, 1}, counts, 4, &spec, &buffer},
                     std::vector<Fault<Args>>{
                         {"counts", [](Args& a) { a.counts = nullptr; }, tpxErrNullPointer},
                         {"spec size", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
                         {"buffer size", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
                         {"size", [](Args& a) { a.size.height = 0; }, tpxErrSize},
                         {"channels", [](Args& a) { a.channels = 2; }, tpxErrChannelCount},
                         {"counts", [&](Args& a) { a.counts = few; }, tpxErrHistogramLevels},
                         {"counts", [&](Args& a) { a.counts = huge; }, tpxErrSizeTooLarge},
                         {"type", [](Args& a) { a.type = 0; }, tpxErrDataType},
                     },
                     [](const Args& a) {
                         return tpxiHistogramGetBufferSize(a.type, a.size, a.counts, a.channels, 0, a.spec,
                                                           a.buffer);
                     });
}

// In their order; and whatever an initialisation fails at, the spec that was ready before is refused.
TEST(HistogramInit, CheckOrder) {
    const float rising[] = {1, 2, 3}, level[] = {1, 2, 2}, unordered[] = {1, NAN, 3};
    const float bounds[] = {1, 2, 3}, above[] = {4, 5, 6}, equal[] = {4, 5, 3};
    const int counts[] = {3, 3, 3}, few[] = {3, 3, 1};
    const float* good[] = {rising, rising, rising};
    const float *lacking[] = {rising, rising, nullptr}, *levels[] = {rising, rising, level},
                *unorderedLevels[] = {unordered, nullptr, nullptr};
    Prepared p(tpxDataType16u, {3, 3, 3}, 1);
    float got[3];
    float* const into[] = {got, got, got};

    struct Args {
        TpxDataType type;
        const float* const* levels;
        const float *lower, *upper;
        const int* counts;
        int channels;
        TpxHistogramSpec* spec;
        bool uniform;
    };
    const Args ok = {tpxDataType16u, good, bounds, above, counts, 3, p.spec(), false};
    const auto init = [](const Args& a) {
        return a.uniform ? tpxiHistogramUniformInit(a.type, a.lower, a.upper, a.counts, a.channels, a.spec)
                         : tpxiHistogramInit(a.type, a.levels, a.counts, a.channels, a.spec);
    };
    const auto call = [&](const Args& a) {
        EXPECT_EQ(init(ok), tpxOk);
        EXPECT_EQ(tpxiHistogramGetLevels(p.spec(), into), tpxOk);
        const TpxStatus status = init(a);
        if (status != tpxOk && a.spec) EXPECT_EQ(tpxiHistogramGetLevels(p.spec(), into), tpxErrBadArgument);
        return status;
    };
    const auto own = [&](bool uniform) {
        std::vector<Fault<Args>> faults = {
            {"type", [](Args& a) { a.type = 19; }, tpxErrDataType},
            {"levels", [](Args& a) { a.levels = nullptr, a.upper = nullptr; }, tpxErrNullPointer},
            {"lower", [](Args& a) { a.lower = nullptr, a.levels = nullptr; }, tpxErrNullPointer},
            {"counts", [](Args& a) { a.counts = nullptr; }, tpxErrNullPointer},
            {"spec", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
            {"channels", [](Args& a) { a.channels = 2; }, tpxErrChannelCount},
        };
        if (!uniform) {
            faults.push_back({"levels", [&](Args& a) { a.levels = unorderedLevels; }, tpxErrRange});
            faults.push_back({"levels", [&](Args& a) { a.levels = lacking; }, tpxErrNullPointer});
        }
        faults.push_back({"counts", [&](Args& a) { a.counts = few; }, tpxErrHistogramLevels});
        faults.push_back({"levels", [&](Args& a) { a.levels = levels, a.upper = equal; }, tpxErrRange});
        return faults;
    };
    for (const bool uniform : {false, true}) {
        Args a = ok;
        a.uniform = uniform;
        expectCheckOrder(a, own(uniform), call);
    }

    EXPECT_EQ(init(ok), tpxOk);
    EXPECT_EQ(tpxiHistogramGetLevels(nullptr, into), tpxErrNullPointer);
    EXPECT_EQ(tpxiHistogramGetLevels(p.spec(), nullptr), tpxErrNullPointer);
    float* const partly[] = {got, got, nullptr};
    EXPECT_EQ(tpxiHistogramGetLevels(p.spec(), partly), tpxErrNullPointer);
}

} // namespace
