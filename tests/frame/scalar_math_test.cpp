// SPDX-License-Identifier: Apache-2.0
// The scalar functions: the bounds that frame/runs/scalar_math.cpp states, special values, the control
// register.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "frame/runs/routines.h"
#include "tests/support/ulps.h"

namespace {

using tpxtest::ulps;
using Limits = std::numeric_limits<double>;

constexpr long double kHalfPi = 1.57079632679489661923132169163975144L;
constexpr double kInf = Limits::infinity(), kNan = Limits::quiet_NaN(), kTiny = Limits::denorm_min();
constexpr double kHuge = 90112; // from here on arguments of the sine are reduced by the bits of 2 / pi
const int kDirections[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};

uint64_t bitsOf(double x) {
    uint64_t bits;
    memcpy(&bits, &x, sizeof bits);
    return bits;
}

template <class F>
auto under(int direction, F f) {
    std::fesetround(direction);
    const auto result = f();
    std::fesetround(FE_TONEAREST);
    return result;
}

void expectSineAndCosine(double x, double bound = 0.8) {
    ASSERT_LE(ulps(TPXS(SinOne)(x), std::sin((long double)x)), bound) << std::hexfloat << "sin " << x;
    ASSERT_LE(ulps(TPXS(CosOne)(x), std::cos((long double)x)), bound) << std::hexfloat << "cos " << x;
    ASSERT_EQ(bitsOf(TPXS(SinOne)(-x)), bitsOf(-TPXS(SinOne)(x))) << std::hexfloat << x;
    ASSERT_EQ(bitsOf(TPXS(CosOne)(-x)), bitsOf(TPXS(CosOne)(x))) << std::hexfloat << x;
}

TEST(ScalarMath, RoundingIgnoresTheControlRegister) {
    const double values[] = {0.0,   0.25,  0.5,          0.75,   1.5,         2.5,
                             1e300, kTiny, 0x1p52 - 0.5, 0x1p52, 1 - 0x1p-53, kInf};
    for (const double magnitude : values)
        for (const double x : {magnitude, -magnitude}) {
            const float single = float(x);
            for (const int direction : kDirections) {
                EXPECT_EQ(bitsOf(under(direction, [&] { return TPXS(FloorOne)(x); })), bitsOf(std::floor(x)))
                    << x;
                EXPECT_EQ(bitsOf(under(direction, [&] { return TPXS(CeilOne)(x); })), bitsOf(std::ceil(x)))
                    << x;
                EXPECT_EQ(under(direction, [&] { return TPXS(FloorOneF)(single); }), std::floor(single)) << x;
            }
        }
}

TEST(ScalarMath, MagnitudeAndRoot) {
    EXPECT_EQ(bitsOf(TPXS(FabsOne)(-0.0)), 0u);
    EXPECT_EQ(bitsOf(TPXS(FabsOne)(-kInf)), bitsOf(kInf));
    EXPECT_EQ(bitsOf(TPXS(FabsOne)(-kNan)), bitsOf(kNan)) << "the sign of NaN is cleared too";
    for (const double x : {0.0, -0.0, 2.0, 1e-310, 1e308, kInf}) {
        EXPECT_EQ(bitsOf(TPXS(SqrtOne)(x)), bitsOf(std::sqrt(x))) << x;
        EXPECT_EQ(TPXS(SqrtOneF)(float(x)), std::sqrt(float(x))) << x;
    }
    EXPECT_TRUE(std::isnan(TPXS(SqrtOne)(-1)));
    EXPECT_TRUE(std::isnan(TPXS(SqrtOneF)(-1)));
}

TEST(ScalarMath, SineAndCosineOverAllExponents) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> significand(1, 2), plain(0, kHuge);
    for (int round = 0; round < 40; round++)
        for (int e = -1074; e < 1024; e++)
            ASSERT_NO_FATAL_FAILURE(expectSineAndCosine(std::ldexp(significand(random), e)));
    for (int round = 0; round < 100000; round++) ASSERT_NO_FATAL_FAILURE(expectSineAndCosine(plain(random)));
}

// Where one of the two nearly vanishes the reduction is put to the test. The last is the double that lies
// nearest to a multiple of pi / 2 (J.-M. Muller, Elementary Functions).
TEST(ScalarMath, SineAndCosineBesideMultiplesOfHalfPi) {
    std::mt19937_64 random(3);
    const auto around = [](double x) {
        expectSineAndCosine(x);
        expectSineAndCosine(std::nextafter(x, 0));
        expectSineAndCosine(std::nextafter(x, kInf));
    };
    for (int n = 0; n < 57400; n++) ASSERT_NO_FATAL_FAILURE(around(double(n * kHalfPi)));
    for (int n = 0; n < 50000; n++)
        ASSERT_NO_FATAL_FAILURE(around(double((long double)(random() >> n % 44) * kHalfPi)));
    // An eighth turn away the number of quarters changes.
    for (int n = 0; n < 5000; n++) ASSERT_NO_FATAL_FAILURE(around(double((n + 0.5L) * kHalfPi)));
    around(kHuge);
    around(0x1.6AC5B262CA1FFp+849);
}

TEST(ScalarMath, SineAndCosineOfSpecialValues) {
    EXPECT_EQ(bitsOf(TPXS(SinOne)(0.0)), bitsOf(0.0));
    EXPECT_EQ(bitsOf(TPXS(SinOne)(-0.0)), bitsOf(-0.0));
    EXPECT_EQ(TPXS(SinOne)(kTiny), kTiny);
    EXPECT_EQ(TPXS(CosOne)(0), 1);
    expectSineAndCosine(Limits::max());
    for (const double x : {kInf, -kInf, kNan}) {
        EXPECT_TRUE(std::isnan(TPXS(SinOne)(x)));
        EXPECT_TRUE(std::isnan(TPXS(CosOne)(x)));
    }
}

TEST(ScalarMath, ExponentialAndLogarithm) {
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> exponent(-746, 710), significand(1, 2);
    for (int round = 0; round < 100000; round++) {
        const double x = exponent(random), y = std::ldexp(significand(random), round % 2098 - 1074);
        ASSERT_LE(ulps(TPXS(ExpOne)(x), std::exp((long double)x)), 0.8) << std::hexfloat << x;
        ASSERT_LE(ulps(TPXS(LogOne)(y), std::log((long double)y)), 0.85) << std::hexfloat << y;
        ASSERT_LE(ulps(TPXS(ExpOneF)(float(x / 7)), std::exp((long double)float(x / 7))), 0.8) << x / 7;
    }
}

// Results over the whole range, for bases of all exponents and beside 1, exponents broken and whole.
TEST(ScalarMath, PowerOfRandomPairs) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> significand(1, 2), unit(-1, 1), resultLog(-752, 712);
    for (int round = 0; round < 200000; round++) {
        const double x = round % 2 ? std::ldexp(significand(random), round / 2 % 2098 - 1074)
                                   : 1 + std::ldexp(unit(random), -(round / 2 % 50));
        double y = resultLog(random) / std::log(x);
        if (round % 3 == 0) y = std::round(y);
        if (!std::isfinite(y)) continue;
        ASSERT_LE(ulps(TPXS(PowOne)(x, y), std::pow((long double)x, (long double)y)), 0.8)
            << std::hexfloat << x << " ^ " << y;
    }
}

// All pairs of values that have a rule of their own; the signs of zeros are compared too.
TEST(ScalarMath, PowerOfSpecialPairs) {
    std::vector<double> values;
    for (const double v : {0.0, kTiny, Limits::min(), 0.5, 1 - 0x1p-53, 1.0, 1 + 0x1p-52, 1.5, 2.0, 3.0, 1001.0,
                           0x1p52 + 0.5, 0x1p53 - 1, 0x1p53, Limits::max(), kInf, kNan}) {
        values.push_back(v);
        values.push_back(-v);
    }
    for (const double x : values)
        for (const double y : values) {
            const double ours = TPXS(PowOne)(x, y);
            EXPECT_LE(ulps(ours, std::pow((long double)x, (long double)y)), 0.8) << x << " ^ " << y;
            if (!std::isnan(ours))
                EXPECT_EQ(std::signbit(ours), std::signbit(std::pow(x, y))) << x << " ^ " << y;
        }
}

// Other directions cost accuracy but nothing else.
TEST(ScalarMath, OtherRoundingDirections) {
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> significand(1, 2);
    for (const int direction : kDirections)
        for (int round = 0; round < 20000; round++) {
            const double x = std::ldexp(significand(random), round % 2098 - 1074), y = x * 0x1p-2 + 1.5;
            const double s = under(direction, [&] { return TPXS(SinOne)(x); });
            const double c = under(direction, [&] { return TPXS(CosOne)(x); });
            const double l = under(direction, [&] { return TPXS(LogOne)(x); });
            const double p = under(direction, [&] { return TPXS(PowOne)(y, 2.25); });
            ASSERT_LE(ulps(s, std::sin((long double)x)), 3) << std::hexfloat << x;
            ASSERT_LE(ulps(c, std::cos((long double)x)), 3) << std::hexfloat << x;
            ASSERT_LE(ulps(l, std::log((long double)x)), 3) << std::hexfloat << x;
            const long double exact = std::pow((long double)y, 2.25L);
            if (exact < Limits::max()) ASSERT_LE(ulps(p, exact), 3) << std::hexfloat << y;
        }
}

} // namespace
