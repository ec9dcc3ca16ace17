// SPDX-License-Identifier: Apache-2.0
// Logarithm and exponential of registers: the bounds that frame/simd/math.h states, range ends and special
// values.
#include "frame/simd/math.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "tests/support/ulps.h"

namespace {

using namespace tpx;
using tpxtest::ulps;

template <class T>
struct Function {
    const char* name;
    Vec<T> (*ours)(Vec<T>);
    long double (*exact)(long double);
    double bound, denormalBound; // in units in the last place
};

template <class T>
constexpr Function<T> kLog = {"logarithm", logarithm, std::log, sizeof(T) == 4 ? 0.8 : 0.85, 0};
template <class T>
constexpr Function<T> kExp = {"exponential", exponential, std::exp, sizeof(T) == 4 ? 0.73 : 0.76, 0.8};

template <class T>
void expectClose(const Function<T>& function, const T (&x)[kLanes<T>]) {
    T y[kLanes<T>];
    store(y, function.ours(load(x)));
    for (int i = 0; i < kLanes<T>; i++) {
        const long double exact = function.exact(x[i]);
        const bool denormal = std::fabs(exact) < std::numeric_limits<T>::min() && exact != 0;
        ASSERT_LE(ulps(y[i], exact), denormal ? function.denormalBound : function.bound)
            << function.name << '(' << x[i] << ") gave " << y[i];
    }
}

template <class T>
struct VectorMath : testing::Test {};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(VectorMath, Types);

// Every 997th pattern of float bits: both signs, denormals, infinity's neighbours and NaNs among them.
TEST(VectorMathFloat, BitPatterns) {
    float x[8];
    int lane = 0;
    for (uint64_t pattern = 0; pattern < uint64_t(1) << 32; pattern += 997) {
        const auto bits = uint32_t(pattern);
        memcpy(&x[lane], &bits, sizeof bits);
        if (++lane < 8) continue;
        lane = 0;
        ASSERT_NO_FATAL_FAILURE(expectClose(kLog<float>, x));
        ASSERT_NO_FATAL_FAILURE(expectClose(kExp<float>, x));
    }
}

// The short forms of floats are good for what they call ordinary, and that is nearly all there is.
TEST(VectorMathFloat, OrdinaryArguments) {
    int logarithms = 0, exponentials = 0;
    for (uint64_t pattern = 0; pattern < uint64_t(1) << 32; pattern += 3989) {
        float x[8];
        for (int i = 0; i < 8; i++) {
            const auto bits = uint32_t(pattern) + uint32_t(i);
            memcpy(&x[i], &bits, sizeof bits);
        }
        const auto expectSame = [&](V32f brief, V32f full) {
            ASSERT_EQ(memcmp(&brief, &full, sizeof brief), 0) << x[0];
        };
        const V32f v = load(x);
        if (isOrdinaryForLogarithm(v)) {
            logarithms++;
            ASSERT_NO_FATAL_FAILURE(expectSame(ordinaryLogarithm(v), logarithm(v)));
        }
        if (isOrdinaryForExponential(v)) {
            exponentials++;
            ASSERT_NO_FATAL_FAILURE(expectSame(ordinaryExponential(v), exponential(v)));
        }
    }
    EXPECT_GT(logarithms, int((uint64_t(1) << 32) / 3989 / 2.1));
    EXPECT_GT(exponentials, int((uint64_t(1) << 32) / 3989 / 2.1));

    // One lane of one register tells.
    for (const float other : {0.0f, -1.0f, 1e-39f, 1e38f * 2, INFINITY, -INFINITY, NAN, -NAN})
        for (int lane = 0; lane < 32; lane++) {
            V32f v[4] = {splat<V32f>(1), splat<V32f>(1), splat<V32f>(1), splat<V32f>(1)};
            EXPECT_TRUE(isOrdinaryForLogarithm(v[0], v[1], v[2], v[3]));
            v[lane / 8][lane % 8] = other;
            EXPECT_FALSE(isOrdinaryForLogarithm(v[0], v[1], v[2], v[3])) << other << ' ' << lane;
            const bool small = std::fabs(other) < 87;
            EXPECT_EQ(isOrdinaryForExponential(v[0], v[1], v[2], v[3]), small) << other << ' ' << lane;
        }
}

TYPED_TEST(VectorMath, RandomArguments) {
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    std::mt19937_64 random(1);
    std::uniform_real_distribution<T> significand(1, 2), nearOne(T(0.5), 2), wide(-750, 720), unit(-1, 1);
    std::uniform_int_distribution<int> exponent(Limits::min_exponent - Limits::digits,
                                                Limits::max_exponent - 1);
    for (int round = 0; round < 30000; round++) {
        T any[kLanes<T>], middle[kLanes<T>], power[kLanes<T>], small[kLanes<T>];
        for (int i = 0; i < kLanes<T>; i++) {
            any[i] = std::ldexp(significand(random), exponent(random));
            middle[i] = nearOne(random);
            power[i] = wide(random);
            small[i] = unit(random);
        }
        ASSERT_NO_FATAL_FAILURE(expectClose(kLog<T>, any));
        ASSERT_NO_FATAL_FAILURE(expectClose(kLog<T>, middle));
        ASSERT_NO_FATAL_FAILURE(expectClose(kExp<T>, power));
        ASSERT_NO_FATAL_FAILURE(expectClose(kExp<T>, small));
        ASSERT_NO_FATAL_FAILURE(expectClose(kExp<T>, any));
    }
}

// Each special value stands in each lane beside ordinary ones.
TYPED_TEST(VectorMath, SpecialValues) {
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    const T inf = Limits::infinity(), nan = Limits::quiet_NaN(), tiny = Limits::denorm_min();
    const T values[] = {0,
                        -T(0),
                        tiny,
                        -tiny,
                        Limits::min(),
                        -Limits::min(),
                        std::nextafter(Limits::min(), T(0)),
                        1,
                        -1,
                        Limits::max(),
                        -Limits::max(),
                        inf,
                        -inf,
                        nan,
                        -nan};
    for (const T value : values)
        for (int lane = 0; lane < kLanes<T>; lane++) {
            T x[kLanes<T>];
            for (int i = 0; i < kLanes<T>; i++) x[i] = i == lane ? value : T(1.25) + i;
            expectClose(kLog<T>, x);
            expectClose(kExp<T>, x);
        }
    EXPECT_FALSE(std::signbit(logarithm(splat<Vec<T>>(1))[0])) << "log(1) is +0";
    EXPECT_EQ(exponential(splat<Vec<T>>(-T(0)))[0], 1);
    EXPECT_FALSE(std::signbit(exponential(splat<Vec<T>>(-inf))[0])) << "exp(-inf) is +0";
}

// The arguments beside which the exponential becomes infinite, denormal and zero, one by one.
TYPED_TEST(VectorMath, ExponentialRangeEnds) {
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    const long double ln2 = std::log(2.0L);
    for (const long double end : {Limits::max_exponent * ln2, (Limits::min_exponent - 1) * ln2,
                                  (Limits::min_exponent - Limits::digits - 1) * ln2}) {
        T at = T(end);
        for (int i = 0; i < 40; i++) at = std::nextafter(at, T(-1e4));
        for (int i = 0; i < 80; i += kLanes<T>) {
            T x[kLanes<T>];
            for (T& lane : x) lane = at = std::nextafter(at, T(1e4));
            expectClose(kExp<T>, x);
        }
    }
}

// Powers of two have no fraction, so that only the exponent's share of the logarithm is left: k ln 2, rounded.
TYPED_TEST(VectorMath, PowersOfTwo) {
    using T = TypeParam;
    using Limits = std::numeric_limits<T>;
    for (int k = Limits::min_exponent - Limits::digits; k < Limits::max_exponent; k++)
        ASSERT_EQ(logarithm(splat<Vec<T>>(std::ldexp(T(1), k)))[0], T(k * std::log(2.0L))) << "2^" << k;
}

} // namespace
