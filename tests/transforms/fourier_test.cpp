// SPDX-License-Identifier: Apache-2.0
// Fourier transforms of images against models in extended precision.
#include <cmath>
#include <numbers>
#include <numeric>

#include "models/fourier.h"
#include "tests/support/checks.h"
#include "tests/transforms/plans.h"

namespace {

using namespace tpx::test;
using namespace tpx::model;

using Image = GuardedImage<float>;
using Real = std::vector<long double>;

// ---- Helpers ---------------------------------------------------------------------------------------------

size_t area(TpxiSize s) { return size_t(s.width) * size_t(s.height); }

// The root mean square of errors over that of the expected numbers is at most so many units of 2^-24 for each
// doubling of the length. Short ones need some more for a single set of samples.
class Distance {
 public:
    void add(long double got, long double want) {
        error_ += (got - want) * (got - want);
        size_ += want * want;
    }
    double perDoubling(size_t n) const {
        const double relative = size_ > 0 ? double(std::sqrt(error_ / size_)) : error_ > 0 ? 1.0 : 0.0;
        return relative / (0x1p-24 * std::max(std::log2(double(n)), 1.0));
    }

 private:
    long double error_ = 0, size_ = 0;
};
constexpr double kBound = 0.6, kBoundShort = 1.3;
double boundOf(size_t n) { return n < 64 ? kBoundShort : kBound; }

void expectClose(const Image& image, const Real& want, double scale = 1, int channel = 0) {
    Distance distance;
    for (int y = 0, i = 0; y < image.height(); y++)
        for (int x = 0; x < image.width(); x++, i++)
            distance.add(image.at(x, y, channel), want[size_t(i)] * scale);
    const size_t n = area(image.size());
    EXPECT_LE(distance.perDoubling(n), boundOf(n)) << image.width() << " x " << image.height();
    EXPECT_TRUE(image.paddingIntact());
}
void expectClose(const Image& image, const Numbers& want, double scale = 1, int transforms = 1) {
    Distance distance;
    for (int y = 0, i = 0; y < image.height(); y++)
        for (int x = 0; x < image.width(); x++, i++) {
            distance.add(image.at(x, y, 0), want[size_t(i)].real() * scale);
            distance.add(image.at(x, y, 1), want[size_t(i)].imag() * scale);
        }
    const size_t n = area(image.size());
    EXPECT_LE(distance.perDoubling(n), transforms * boundOf(n)) << image.width() << " x " << image.height();
    EXPECT_TRUE(image.paddingIntact());
}

Numbers numbersOf(const Image& image, int channel = 0) {
    Numbers list;
    for (int y = 0; y < image.height(); y++)
        for (int x = 0; x < image.width(); x++)
            list.emplace_back(image.at(x, y, channel), image.channels() == 2 ? image.at(x, y, 1) : 0.0f);
    return list;
}
Real packedSpectrum(const Image& image, int channel = 0) {
    const size_t w = size_t(image.width()), h = size_t(image.height());
    const Numbers f = fourier2D(numbersOf(image, channel), w, h, -1);
    return packed(w, h, [&](size_t k, size_t j) { return f[k * w + j]; });
}

const Lie kLies[] = {{0, Edge::End, 0}, {0, Edge::Start, 3}, {24, Edge::End, 1}, {13, Edge::Start, 0}};
Lie lieOf(int i) { return kLies[size_t(i) % std::size(kLies)]; }

// Sides that meet every radix, one row or column, and more than a group of either.
std::vector<TpxiSize> smallSizes() {
    std::vector<TpxiSize> list;
    for (int w = 1; w <= 18; w++)
        for (int h = 1; h <= 18; h++) list.push_back({w, h});
    for (int n : {19, 22, 24, 26, 31, 32, 33, 39, 48, 49, 53, 60, 64, 67, 100})
        for (int m : {1, 2, 3, 7, 17, 35}) {
            list.push_back({n, m});
            list.push_back({m, n});
        }
    return list;
}
std::vector<TpxiSize> powersOfTwo() {
    std::vector<TpxiSize> list;
    for (int x = 0; x <= 7; x++)
        for (int y = 0; y <= 7; y++) list.push_back({1 << x, 1 << y});
    for (TpxiSize s : {TpxiSize{1024, 2}, TpxiSize{4, 2048}, TpxiSize{512, 1}}) list.push_back(s);
    return list;
}
template <class Calls>
std::vector<TpxiSize> sizesOf() {
    return Calls::kTag < 27 ? powersOfTwo() : smallSizes();
}

// ---- Against the model -----------------------------------------------------------------------------------

TEST(FourierModel, IsTheSum) {
    std::mt19937 random(1);
    for (size_t n : {1, 2, 12, 35, 67, 128, 143}) {
        Numbers x(n);
        for (Number& z : x) z = {double(random() % 1000), double(random() % 1000)};
        for (int sign : {1, -1}) {
            const Numbers fast = fourier(x, sign), sum = fourierBySum(x, sign);
            for (size_t k = 0; k < n; k++) ASSERT_LT(std::abs(fast[k] - sum[k]), 1e-12L) << n;
        }
    }
}

template <class Calls>
class ComplexImages : public testing::Test {};
using ComplexSpecs = testing::Types<ComplexOrders, ComplexLengths>;
TYPED_TEST_SUITE(ComplexImages, ComplexSpecs);

TYPED_TEST(ComplexImages, AreTheModelsAndInPlaceTheSame) {
    int count = 0;
    for (const TpxiSize size : sizesOf<TypeParam>()) {
        count++;
        const FourierPlan<TypeParam> plan(size, tpxFftNoDivide, size_t(count % 5));
        Image src(size.width, size.height, 2, lieOf(count));
        src.randomise(unsigned(count));
        for (Direction d : {kForward, kInverse}) {
            Image dst(size.width, size.height, 2, lieOf(count + 1)), same(size.width, size.height, 2);
            same.copySamplesFrom(src);
            plan.run(d, src, dst);
            expectClose(dst, fourier2D(numbersOf(src), size_t(size.width), size_t(size.height), d ? 1 : -1));
            plan.runInPlace(d, same);
            EXPECT_TRUE(matches(same, [&](int x, int y, int c) { return dst.at(x, y, c); }));
        }
        if (this->HasFailure()) return;
    }
}

template <class Calls>
class RealImages : public testing::Test {};
using RealSpecs = testing::Types<RealOrders, RealLengths>;
TYPED_TEST_SUITE(RealImages, RealSpecs);

TYPED_TEST(RealImages, ArePackedAsTheModel) {
    int count = 0;
    for (const TpxiSize size : sizesOf<TypeParam>()) {
        count++;
        const FourierPlan<TypeParam> plan(size, tpxFftNoDivide, size_t(count % 5));
        Image src(size.width, size.height, 1, lieOf(count)),
            spectrum(size.width, size.height, 1, lieOf(count + 2)),
            back(size.width, size.height, 1, lieOf(count + 1));
        src.randomise(unsigned(count));
        plan.run(kForward, src, spectrum);
        const Real want = packedSpectrum(src);
        expectClose(spectrum, want);
        // The way back from the exact spectrum.
        spectrum.fill([&](int x, int y, int) { return want[size_t(y * size.width + x)]; });
        plan.run(kInverse, spectrum, back);
        Real exact;
        for (const Number z : numbersOf(src)) exact.push_back(z.real() * area(size));
        expectClose(back, exact);
        if (this->HasFailure()) return;
    }
}

// Every channel gives the bits of the image that it would be alone, in place too; alpha and the source stay.
TYPED_TEST(RealImages, ChannelsAreImages) {
    int count = 0;
    for (const TpxiSize size : {TpxiSize{16, 16}, TpxiSize{32, 8}, TpxiSize{1, 16}, TpxiSize{8, 1},
                                TpxiSize{4, 2}, TpxiSize{64, 32}, TpxiSize{15, 9}, TpxiSize{21, 53},
                                TpxiSize{37, 12}, TpxiSize{256, 1}, TpxiSize{1, 512}, TpxiSize{1, 300}}) {
        if (TypeParam::kTag < 27 && (size.width & (size.width - 1) || size.height & (size.height - 1)))
            continue;
        const FourierPlan<TypeParam> plan(size, tpxFftDivBySqrt);
        for (Channels c : {kC1, kC3, kC4, kAC4})
            for (Direction d : {kForward, kInverse}) {
                const int channels = c == kC1 ? 1 : c == kC3 ? 3 : 4;
                const auto image = [&](int n) { return Image(size.width, size.height, n, lieOf(++count)); };
                Image src = image(channels), dst = image(channels), same = image(channels),
                      before = image(channels);
                src.randomise(unsigned(count));
                dst.randomise(unsigned(count + 1));
                same.copySamplesFrom(src);
                before.copySamplesFrom(src);
                std::vector<float> alpha;
                for (int y = 0; y < size.height; y++)
                    for (int x = 0; x < size.width; x++) alpha.push_back(dst.at(x, y, channels - 1));
                plan.run(d, src, dst, c);
                plan.runInPlace(d, same, c);
                for (int k = 0; k < channels; k++) {
                    const bool kept = c == kAC4 && k == 3;
                    Image one = image(1), expected = image(1);
                    one.fill([&](int x, int y, int) { return src.at(x, y, k); });
                    plan.run(d, one, expected);
                    for (int y = 0; y < size.height; y++)
                        for (int x = 0; x < size.width; x++) {
                            const float want = kept ? alpha[size_t(y * size.width + x)] : expected.at(x, y);
                            ASSERT_TRUE(sameBits(dst.at(x, y, k), want))
                                << c << d << k << ": " << x << ", " << y;
                            ASSERT_TRUE(sameBits(same.at(x, y, k), kept ? src.at(x, y, 3) : want));
                        }
                }
                EXPECT_TRUE(dst.paddingIntact() && same.paddingIntact());
                EXPECT_TRUE(matches(src, [&](int x, int y, int k) { return before.at(x, y, k); }));
            }
    }
}

// ---- Lines ------------------------------------------------------------------------------------------

// Of a few numbers among zeros the sum itself is quick; full rows go there and back. One shard of lengths a
// test.
class Lines : public testing::TestWithParam<int> {};
TEST_P(Lines, OfEveryLength) {
    for (int n = 1 + GetParam(); n <= 4096; n += n <= 2048 ? 8 : 24) { // every length, and then a third
        std::mt19937 random(static_cast<unsigned>(n));
        const bool tall = n % 16 == 3;
        const TpxiSize size = tall ? TpxiSize{1, n} : TpxiSize{n, 1};
        const FourierPlan<ComplexLengths> plan(size, tpxFftNoDivide, size_t(n / 8 % 2));
        Image sparse(size.width, size.height, 2), spectrum(size.width, size.height, 2);
        sparse.fill([](int, int, int) { return 0; });
        Numbers want(static_cast<size_t>(n));
        const Numbers root = roots(size_t(n), -1);
        for (int i = 0; i < 5; i++) {
            const int at = int(random() % unsigned(n)), x = tall ? 0 : at, y = tall ? at : 0;
            for (int part = 0; part < 2; part++) sparse.set(x, y, part, float(random() % 2000) - 1000);
        }
        for (int at = 0; at < n; at++) {
            const int x = tall ? 0 : at, y = tall ? at : 0;
            const Number z = {sparse.at(x, y, 0), sparse.at(x, y, 1)};
            if (z == Number(0)) continue;
            for (size_t k = 0, turns = 0; k < size_t(n); k++, turns = (turns + size_t(at)) % size_t(n))
                want[k] += times(z, root[turns]);
        }
        plan.run(kForward, sparse, spectrum);
        expectClose(spectrum, want);

        Image src(size.width, size.height, 2), back(size.width, size.height, 2);
        src.randomise(static_cast<unsigned>(n));
        plan.run(kForward, src, spectrum);
        plan.run(kInverse, spectrum, back);
        expectClose(back, numbersOf(src), n, 2);
        if (HasFailure()) return;
    }
}
INSTANTIATE_TEST_SUITE_P(, Lines, testing::Range(0, 8));

// Of many elements, which are split, and of several rows or columns.
TEST(LongLines, AreTheModels) {
    for (const TpxiSize size : {TpxiSize{4096, 1}, TpxiSize{1, 6000}, TpxiSize{3989, 1}, TpxiSize{3 << 13, 1},
                                TpxiSize{36864, 1}, TpxiSize{2, 36864}, TpxiSize{1031, 1}}) {
        const FourierPlan<ComplexLengths> plan(size);
        const FourierPlan<RealLengths> real(size);
        Image src(size.width, size.height, 2), dst(size.width, size.height, 2);
        src.randomise(7);
        plan.run(kForward, src, dst);
        expectClose(dst, fourier2D(numbersOf(src), size_t(size.width), size_t(size.height), -1));
        Image re(size.width, size.height, 1), spectrum(size.width, size.height, 1),
            back(size.width, size.height, 1);
        re.fill([&](int x, int y, int) { return src.at(x, y); });
        real.run(kForward, re, spectrum);
        real.run(kInverse, spectrum, back);
        Real exact;
        for (const Number z : numbersOf(re)) exact.push_back(z.real() * area(size));
        expectClose(back, exact);
    }
}

// Of a few numbers among zeros, at some frequencies.
TEST(LongLines, OfMillions) {
    for (const int n : {1 << 20, 1000003}) {
        const FourierPlan<ComplexLengths> plan({n, 1});
        Image line(n, 1, 2);
        line.fill([](int, int, int) { return 0; });
        std::mt19937 random(static_cast<unsigned>(n));
        const auto any = [&] { return int(random() % unsigned(n)); };
        std::vector<std::pair<int64_t, Number>> numbers;
        for (int i = 0; i < 5; i++) {
            const int x = any();
            const float re = float(any()), im = float(any());
            line.set(x, 0, 0, re);
            line.set(x, 0, 1, im);
            numbers.emplace_back(x, Number(re, im));
        }
        plan.runInPlace(kForward, line);
        Distance distance;
        for (int i = 0; i < 1000; i++) {
            const int k = any();
            Number want;
            for (const auto& [x, z] : numbers)
                want += times(z, std::polar(1.0L, -2 * std::numbers::pi_v<long double> * (x * k % n) / n));
            distance.add(line.at(k, 0, 0), want.real());
            distance.add(line.at(k, 0, 1), want.imag());
        }
        EXPECT_LE(distance.perDoubling(size_t(n)), kBound) << n;
    }
}

// ---- Images of all sizes, by what is known of spectra ----------------------------------------------------

constexpr TpxiSize kLarge[] = {{512, 512}, {512, 256}, {640, 480}, {509, 131}, {1000, 100}, {101, 210}};

TEST(Spectra, OfImpulsesAndWaves) {
    for (const TpxiSize size : kLarge) {
        const FourierPlan<RealLengths> plan(size);
        const size_t w = size_t(size.width), h = size_t(size.height);
        Image src(size.width, size.height, 1), dst(size.width, size.height, 1);
        src.fill([](int x, int y, int) { return x == 0 && y == 0; });
        plan.run(kForward, src, dst);
        expectClose(dst, packed(w, h, [](size_t, size_t) { return Number(1); }));

        const int atX = size.width / 3, atY = size.height - 2; // shifted
        src.fill([&](int x, int y, int) { return x == atX && y == atY ? 3 : 0; });
        plan.run(kForward, src, dst);
        const Numbers rx = roots(w, -1), ry = roots(h, -1);
        expectClose(dst, packed(w, h, [&](size_t k, size_t j) {
                        return times(rx[j * size_t(atX) % w], ry[k * size_t(atY) % h]) * 3.0L;
                    }));

        src.fill([](int, int, int) { return 5; });
        plan.run(kForward, src, dst);
        expectClose(dst, packed(w, h, [&](size_t k, size_t j) { return k || j ? Number(0) : 5.0L * w * h; }));

        const size_t waveX = w / 5, waveY = h / 7; // a cosine, from the spectrum's side
        dst.fill([](int, int, int) { return 0; });
        dst.set(int(2 * waveX - 1), int(waveY), 0, 0.5f);
        plan.run(kInverse, dst, src);
        Real wave;
        for (size_t y = 0; y < h; y++)
            for (size_t x = 0; x < w; x++) wave.push_back(times(rx[x * waveX % w], ry[y * waveY % h]).real());
        expectClose(src, wave);
    }
}

TEST(Spectra, KeepEnergyAndSums) {
    for (const TpxiSize size : kLarge) {
        const FourierPlan<ComplexLengths> plan(size, tpxFftDivBySqrt);
        const auto image = [&](unsigned seed) {
            auto made = std::make_unique<Image>(size.width, size.height, 2, lieOf(int(seed)));
            made->randomise(seed);
            return made;
        };
        const auto a = image(1), b = image(2), sum = image(3), fa = image(4), fb = image(5), fs = image(6);
        sum->fill([&](int x, int y, int c) { return a->at(x, y, c) + 2 * b->at(x, y, c); });
        plan.run(kForward, *a, *fa);
        plan.run(kForward, *b, *fb);
        plan.run(kForward, *sum, *fs);
        long double energy = 0, spectral = 0;
        Distance distance;
        for (int y = 0; y < size.height; y++)
            for (int x = 0; x < size.width; x++)
                for (int c = 0; c < 2; c++) {
                    energy += static_cast<long double>(a->at(x, y, c)) * a->at(x, y, c);
                    spectral += static_cast<long double>(fa->at(x, y, c)) * fa->at(x, y, c);
                    distance.add(fs->at(x, y, c), fa->at(x, y, c) + 2.0L * fb->at(x, y, c));
                }
        // Two factors 1 / sqrt(n), each rounded, go into the energy twice.
        EXPECT_NEAR(double(spectral / energy), 1, 0x1p-21) << size.width;
        EXPECT_LE(distance.perDoubling(area(size)), 2 * kBound);
    }
}

// ---- Scaling ---------------------------------------------------------------------------------------------

TYPED_TEST(RealImages, AreDividedAsTheFlagSays) {
    const TpxiSize size{32, 64};
    const double n = double(area(size));
    Image src(size.width, size.height, 1), plain(size.width, size.height, 1), dst(size.width, size.height, 1);
    src.randomise(3);
    const struct {
        int flag;
        double of[2];
    } kFlags[] = {{tpxFftDivForward, {1 / n, 1}},
                  {tpxFftDivInverse, {1, 1 / n}},
                  {tpxFftDivBySqrt, {1 / std::sqrt(n), 1 / std::sqrt(n)}}};
    for (Direction d : {kForward, kInverse}) {
        FourierPlan<TypeParam>(size).run(d, src, plain);
        for (const auto& f : kFlags) {
            FourierPlan<TypeParam>(size, f.flag).run(d, src, dst);
            Real want;
            for (const Number z : numbersOf(plain)) want.push_back(z.real());
            expectClose(dst, want, f.of[d]);
        }
    }
}

// ---- Plans -----------------------------------------------------------------------------------------------

template <class Calls>
class Plans : public testing::Test {};
using AllSpecs = testing::Types<RealOrders, RealLengths, ComplexOrders, ComplexLengths>;
TYPED_TEST_SUITE(Plans, AllSpecs);

TYPED_TEST(Plans, HaveTheirRecord) {
    using Calls = TypeParam;
    const bool orders = Calls::kTag < 27;
    const FourierPlan<TypeParam> plan({16, 64}, tpxFftDivForward, 5);
    EXPECT_EQ(plan.field(0), Calls::kTag);
    EXPECT_EQ(plan.field(1), orders ? 4 : 16);
    EXPECT_EQ(plan.field(2), orders ? 6 : 64);
    EXPECT_EQ(plan.field(3), 0); // the hint
    EXPECT_EQ(plan.field(4), plan.sizes().work);
    // A row of up to 16 needs no work buffer.
    EXPECT_EQ(FourierPlan<TypeParam>({8, 1}).field(4) == 0, !orders);
    EXPECT_EQ(FourierPlan<TypeParam>({8, 2}).field(4) == 0, false);
    EXPECT_EQ(FourierPlan<TypeParam>({16, 16}).sizes().init, 0);
    EXPECT_EQ(FourierPlan<TypeParam>({1024, 16}).sizes().init, 0);
}

TEST(PlanSizes, OfShortLinesAreFixed) {
    PlanSizes s{};
    for (int x = 0; x < 5; x++)
        for (int y = 0; y < 5; y++) {
            ASSERT_EQ(tpxiFFTGetSize_R_32f(x, y, 8, 0, &s.spec, &s.init, &s.work), tpxOk);
            EXPECT_EQ(s.spec, 2 * 256 + (x == y ? 0 : 256) + 128 + 64);
            EXPECT_EQ(s.init, 0);
            EXPECT_EQ(s.work, (std::max(16 << x, 64 << y) + 63) / 64 * 64 + 64);
            ASSERT_EQ(tpxiFFTGetSize_C_32fc(x, y, 8, 0, &s.spec, &s.init, &s.work), tpxOk);
            EXPECT_EQ(s.work, (64 << y) + 64);
        }
}

// Both plans of a real image's columns have the same tables.
TEST(PlanSizes, CountTablesOnce) {
    for (const TpxiSize size : {TpxiSize{1024, 2048}, TpxiSize{16, 1009}, TpxiSize{3, 36864}}) {
        PlanSizes real{}, complex{};
        ASSERT_EQ(RealLengths::getSizes(size, 8, real), tpxOk);
        ASSERT_EQ(ComplexLengths::getSizes(size, 8, complex), tpxOk);
        EXPECT_EQ(real.spec - complex.spec, 256) << size.height;
    }
}

// Columns of equal samples, or rows, have equal spectra to the bit, wherever they are among others or alone.
TEST(Plans, GiveTheSameWhereverLinesLie) {
    const auto sizeOf = [](bool tall, int length, int lines) {
        return tall ? TpxiSize{lines, length} : TpxiSize{length, lines};
    };
    for (int length : {6, 16, 60})
        for (int lines = 1; lines <= 41; lines++)
            for (bool tall : {false, true})
                for (Direction d : {kForward, kInverse}) {
                    const TpxiSize one = sizeOf(tall, length, 1), size = sizeOf(tall, length, lines);
                    Image line(one.width, one.height, 2), alone(one.width, one.height, 2);
                    line.randomise(unsigned(length));
                    FourierPlan<ComplexLengths>(one).run(d, line, alone);
                    // An impulse in the other direction makes them equal, without rounding.
                    Image src(size.width, size.height, 2), dst(size.width, size.height, 2);
                    src.fill([&](int x, int y, int c) { return (tall ? x : y) ? 0 : line.at(x, y, c); });
                    FourierPlan<ComplexLengths>(size).run(d, src, dst);
                    ASSERT_TRUE(matches(
                        dst, [&](int x, int y, int c) { return alone.at(tall ? 0 : x, tall ? y : 0, c); }))
                        << length << " x " << lines;
                }
}

// A plan serves calls without being written, and makes the same of images wherever they lie.
TYPED_TEST(Plans, GiveTheSameWhereverImagesLie) {
    const FourierPlan<TypeParam> plan({64, 32});
    const std::vector<Tpx8u> before(reinterpret_cast<Tpx8u*>(plan.spec()),
                                    reinterpret_cast<Tpx8u*>(plan.spec()) + plan.sizes().spec);
    const int channels = sizeof(typename TypeParam::T) / 4;
    Image src(64, 32, channels), expected(64, 32, channels);
    src.randomise(9);
    plan.run(kForward, src, expected);
    for (int misalign : {1, 4, 32})
        for (int padding : {0, 1, 64, 4096 - 64 * 4 * channels}) {
            Image moved(64, 32, channels, {padding, Edge::Start, misalign});
            Image dst(64, 32, channels, {4096 - padding, Edge::End, 2 * misalign});
            moved.copySamplesFrom(src);
            plan.run(kForward, moved, dst);
            EXPECT_TRUE(matches(dst, [&](int x, int y, int c) { return expected.at(x, y, c); }));
        }
    EXPECT_EQ(std::memcmp(before.data(), plan.spec(), before.size()), 0);
}

// ---- Statuses --------------------------------------------------------------------------------------------

TYPED_TEST(Plans, CheckProcessingInOrder) {
    using Calls = TypeParam;
    using T = typename Calls::T;
    struct Args {
        const T* src;
        int srcStep;
        T* dst;
        int dstStep;
        const typename Calls::Spec* spec;
        Tpx8u* buffer;
    };
    const FourierPlan<TypeParam> plan({16, 4});
    std::vector<Tpx8u> zeroed(1000), garbage(1000, 0x5A), other(10000, 0x5A);
    const auto failed = reinterpret_cast<typename Calls::Spec*>(other.data());
    EXPECT_EQ(Calls::init({16, 4}, 3, failed, nullptr), tpxErrFftFlag);
    Image src(16, 4, 2), dst(16, 4, 2);
    const Args good{reinterpret_cast<T*>(src.data()),
                    src.step(),
                    reinterpret_cast<T*>(dst.data()),
                    dst.step(),
                    plan.spec(),
                    plan.work()};
    const auto specAt = [](std::vector<Tpx8u>& v) {
        return reinterpret_cast<const typename Calls::Spec*>(v.data());
    };
    const FourierPlan<ComplexOrders> complexOrders({16, 4});
    const FourierPlan<RealLengths> realLengths({16, 4});
    const void* const foreign =
        Calls::kTag == 28 ? static_cast<void*>(complexOrders.spec()) : static_cast<void*>(realLengths.spec());
    const std::vector<Fault<Args>> faults = {
        {"spec", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
        {"tag", [&](Args& a) { a.spec = a.spec ? specAt(zeroed) : nullptr; }, tpxErrContext},
        {"tag", [&](Args& a) { a.spec = a.spec ? specAt(garbage) : nullptr; }, tpxErrContext},
        {"tag", [&](Args& a) { a.spec = a.spec ? failed : nullptr; }, tpxErrContext},
        {"tag", [&](Args& a) { a.spec = a.spec ? static_cast<const typename Calls::Spec*>(foreign) : nullptr; },
         tpxErrContext},
        {"src", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
        {"dst", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
        {"srcStep", [](Args& a) { a.srcStep = 0; }, tpxErrStep},
        {"dstStep", [](Args& a) { a.dstStep = -64; }, tpxErrStep},
        {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer}};
    for (const auto& calls : Calls::kCall)
        for (const auto call : calls)
            expectCheckOrder(good, faults, [&](const Args& a) {
                return call(a.src, a.srcStep, a.dst, a.dstStep, a.spec, a.buffer);
            });
    for (const auto& calls : Calls::kInPlace)
        for (const auto call : calls) {
            EXPECT_EQ(call(nullptr, 64, plan.spec(), plan.work()), tpxErrNullPointer);
            EXPECT_EQ(call(good.dst, 0, plan.spec(), nullptr), tpxErrStep);
            EXPECT_EQ(call(good.dst, 64, plan.spec(), nullptr), tpxErrNullPointer);
            EXPECT_EQ(call(nullptr, 0, specAt(zeroed), nullptr), tpxErrContext);
        }
}

struct SizeArgs {
    int x, y, flag;
    int *spec, *init, *work;
};
const std::vector<Fault<SizeArgs>> kNullResults = {
    {"spec", [](SizeArgs& a) { a.spec = nullptr; }, tpxErrNullPointer},
    {"init", [](SizeArgs& a) { a.init = nullptr; }, tpxErrNullPointer},
    {"work", [](SizeArgs& a) { a.work = nullptr; }, tpxErrNullPointer}};

TEST(PlanSizes, CheckInOrder) {
    int sizes[3] = {-1, -1, -1};
    const SizeArgs good{5, 6, 8, sizes, sizes + 1, sizes + 2};
    const auto ordersR = [](SizeArgs a) {
        return tpxiFFTGetSize_R_32f(a.x, a.y, a.flag, 0, a.spec, a.init, a.work);
    };
    const auto ordersC = [](SizeArgs a) {
        return tpxiFFTGetSize_C_32fc(a.x, a.y, a.flag, 0, a.spec, a.init, a.work);
    };
    const auto lengthsR = [](SizeArgs a) {
        return tpxiDFTGetSize_R_32f({a.x, a.y}, a.flag, 0, a.spec, a.init, a.work);
    };
    const auto lengthsC = [](SizeArgs a) {
        return tpxiDFTGetSize_C_32fc({a.x, a.y}, a.flag, 0, a.spec, a.init, a.work);
    };
    auto faults = kNullResults;
    faults.push_back({"x", [](SizeArgs& a) { a.x = 31; }, tpxErrFftOrder});
    faults.push_back({"x", [](SizeArgs& a) { a.x = -1; }, tpxErrFftOrder});
    faults.push_back({"flag", [](SizeArgs& a) { a.flag = 3; }, tpxErrFftFlag});
    faults.push_back({"x", [](SizeArgs& a) { a.x = 30; }, tpxErrFftOrder});
    faults.push_back({"y", [](SizeArgs& a) { a.y = 29; }, tpxErrFftOrder});
    expectCheckOrder(good, faults, ordersR);
    expectCheckOrder(good, faults, ordersC);
    auto faultsOfLengths = kNullResults;
    faultsOfLengths.push_back({"x", [](SizeArgs& a) { a.x = 0; }, tpxErrSize});
    faultsOfLengths.push_back({"y", [](SizeArgs& a) { a.y = -7; }, tpxErrSize});
    faultsOfLengths.push_back({"flag", [](SizeArgs& a) { a.flag = 0; }, tpxErrFftFlag});
    faultsOfLengths.push_back({"x", [](SizeArgs& a) { a.x = 134217729; }, tpxErrSize});
    expectCheckOrder(good, faultsOfLengths, lengthsR);
    expectCheckOrder(good, faultsOfLengths, lengthsC);

    // Nothing wraps around, and nothing is stored.
    for (int& s : sizes) s = -1;
    for (const auto& [x, y] : {std::pair{29, 0}, {28, 28}, {0, 28}, {28, 5}}) {
        EXPECT_EQ(ordersR({x, y, 8, sizes, sizes + 1, sizes + 2}), tpxErrSizeTooLarge) << x << ", " << y;
        EXPECT_EQ(ordersC({x, y, 8, sizes, sizes + 1, sizes + 2}),
                  x == 29 ? tpxErrFftOrder : tpxErrSizeTooLarge);
    }
    for (const auto& [x, y] : {std::pair{0x7FFFFFFF, 1}, {1 << 30, 1 << 30}, {3, 134217720}})
        EXPECT_LT(lengthsR({x, y, 8, sizes, sizes + 1, sizes + 2}), tpxOk);
    for (int length : {1 << 27, 1 << 30}) // powers of two are only too large for memory
        EXPECT_EQ(lengthsC({length, 1, 8, sizes, sizes + 1, sizes + 2}), tpxErrSizeTooLarge);
    EXPECT_EQ(lengthsR({67108879, 1, 8, sizes, sizes + 1, sizes + 2}), tpxErrSize); // a prime
    EXPECT_EQ(lengthsC({67108879, 1, 8, sizes, sizes + 1, sizes + 2}), tpxErrSizeTooLarge);
    EXPECT_EQ(lengthsR({53 << 21, 1, 8, sizes, sizes + 1, sizes + 2}), tpxErrSizeTooLarge);
    EXPECT_EQ(std::count(sizes, sizes + 3, -1), 3);
    EXPECT_EQ(lengthsR({129140163, 1, 8, sizes, sizes + 1, sizes + 2}), tpxOk); // 3^17
}

TYPED_TEST(Plans, CheckInitialisersInOrder) {
    using Calls = TypeParam;
    struct Args {
        TpxiSize size;
        int flag;
        typename Calls::Spec* spec;
        Tpx8u* buffer;
    };
    const FourierPlan<TypeParam> plan({2048, 2});
    GuardedBytes init(size_t(plan.sizes().init));
    EXPECT_GT(plan.sizes().init, 0);
    const Args good{{2048, 2}, 8, plan.spec(), init.data()};
    std::vector<Fault<Args>> faults = {{"spec", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
                                       {"flag", [](Args& a) { a.flag = 16; }, tpxErrFftFlag},
                                       {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer}};
    expectCheckOrder(good, faults, [](const Args& a) { return Calls::init(a.size, a.flag, a.spec, a.buffer); });
}

TEST(PlanOrders, AreCheckedFirst) {
    std::vector<Tpx8u> memory(5000);
    const auto r = reinterpret_cast<TpxiFFT2DSpec_R*>(memory.data());
    const auto c = reinterpret_cast<TpxiFFT2DSpec_C*>(memory.data());
    EXPECT_EQ(tpxiFFTInit_R_32f(31, 3, 5, 0, nullptr, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiFFTInit_C_32fc(3, 31, 5, 0, nullptr, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiFFTInit_R_32f(30, -1, 5, 0, nullptr, nullptr), tpxErrNullPointer);
    EXPECT_EQ(tpxiFFTInit_R_32f(30, 3, 5, 0, r, nullptr), tpxErrFftFlag);
    EXPECT_EQ(tpxiFFTInit_R_32f(30, 3, 8, 0, r, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiFFTInit_C_32fc(29, 3, 8, 0, c, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiFFTInit_C_32fc(-1, 3, 8, 0, c, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiFFTInit_R_32f(3, 29, 8, 0, r, nullptr), tpxErrFftOrder);
    EXPECT_EQ(tpxiDFTInit_R_32f({0, 3}, 0, 0, nullptr, nullptr), tpxErrNullPointer);
    const auto d = reinterpret_cast<TpxiDFT2DSpec_R*>(memory.data());
    EXPECT_EQ(tpxiDFTInit_R_32f({0, 3}, 0, 0, d, nullptr), tpxErrSize);
    EXPECT_EQ(tpxiDFTInit_R_32f({53, 3}, 8, 0, d, nullptr), tpxErrNullPointer);
}

} // namespace
