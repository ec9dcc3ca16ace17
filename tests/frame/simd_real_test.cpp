// SPDX-License-Identifier: Apache-2.0
// Conversions to and from floating point, rounding, roots and sums.
#include <gtest/gtest.h>

#include "frame/simd/reductions.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

TEST(Simd, FloatsAndIntegers) {
    const std::vector<Tpx32s> integers = allOf<Tpx32s>();
    eachRegister(integers, [&](V32s low) {
        const Pair<V32s> pair{low, low ^ 0x55555555};
        const V32f floats = toFloat(pair);
        const V64f doubles = toDouble(low);
        for (int i = 0; i < 8; i++) ASSERT_EQ(floats[i], float(lane(pair, i))) << lane(pair, i);
        const Pair<V64f> widened = toDouble(floats);
        for (int i = 0; i < 8; i++) ASSERT_EQ(lane(widened, i), double(floats[i]));
        const V64f byBits = toDoubleByBits(V32u(low));
        for (int i = 0; i < 4; i++) ASSERT_EQ(doubles[i], double(low[i]));
        for (int i = 0; i < 4; i++) ASSERT_EQ(byBits[i], double(Tpx32u(low[i])));
        const Pair<V64u> wide = widen64(low), wideUnsigned = widen64(V32u(low));
        for (int i = 0; i < 4; i++) {
            ASSERT_EQ(Tpx64s(lane(wide, i)), low[i]);
            ASSERT_EQ(lane(wideUnsigned, i), Tpx32u(low[i]));
        }
        const V32s back = toInteger(doubles);
        for (int i = 0; i < 4; i++) ASSERT_EQ(back[i], low[i]);
        const Pair<V32s> apart = split(join(pair));
        for (int i = 0; i < 8; i++) ASSERT_EQ(lane(apart, i), lane(pair, i));
    });
    const auto nearest = [](double x) {
        return std::abs(x) < 2147483648.0 ? Tpx32s(std::nearbyint(x)) : INT32_MIN; // NaN, too
    };
    eachRegister(allOf<Tpx32f>(), [&](V32f x) {
        const Pair<V32s> integer = toInteger(x);
        const V32f nearestWhole = roundNearest(x), root = squareRoot(x);
        const Pair<V64f> wide = widen(x);
        const V32f thirds = toFloat(Pair<V64f>{wide.low / splat<V64f>(3), wide.high / splat<V64f>(3)});
        for (int i = 0; i < 8; i++) {
            ASSERT_EQ(lane(integer, i), nearest(x[i])) << x[i];
            if (std::isnan(x[i])) continue;
            ASSERT_TRUE(sameBits<float>(nearestWhole[i], std::nearbyint(x[i]))) << x[i];
            if (x[i] >= 0) ASSERT_EQ(root[i], std::sqrt(x[i])) << x[i];
            ASSERT_EQ(thirds[i], float(double(x[i]) / 3)) << x[i];
        }
    });
}

// A register and single numbers, in all directions, and integers without the fraction.
template <class T>
void checkRounding(const std::vector<T>& values) {
    const auto same = [](T got, T want) { return std::isnan(want) ? std::isnan(got) : sameBits(got, want); };
    eachRegister(values, [&](Vec<T> x) {
        const Vec<T> down = rounded<Rounding::Down>(x), up = rounded<Rounding::Up>(x);
        const Vec<T> whole = rounded<Rounding::TowardZero>(x), nearest = rounded<Rounding::Nearest>(x);
        const auto integer = toIntegerTruncated(x);
        for (int i = 0; i < kLanes<T>; i++) {
            const T one = x[i];
            ASSERT_TRUE(same(down[i], std::floor(one)) && same(rounded<Rounding::Down>(one), down[i])) << one;
            ASSERT_TRUE(same(up[i], std::ceil(one)) && same(rounded<Rounding::Up>(one), up[i])) << one;
            ASSERT_TRUE(same(whole[i], std::trunc(one)) && same(rounded<Rounding::TowardZero>(one), whole[i]))
                << one;
            ASSERT_TRUE(same(nearest[i], std::nearbyint(one)) && same(roundNearest(one), nearest[i])) << one;
            const bool fits = std::abs(one) < 2147483648.0;
            const Tpx32s truncated = fits ? Tpx32s(one) : INT32_MIN;
            if constexpr (sizeof(T) == 4)
                ASSERT_EQ(lane(integer, i), truncated) << one;
            else
                ASSERT_EQ(integer[i], truncated) << one;
            ASSERT_EQ(toInteger(one), fits ? Tpx32s(std::nearbyint(one)) : INT32_MIN) << one;
            if (one >= 0) ASSERT_EQ(squareRoot(one), std::sqrt(one)) << one;
        }
    });
}

TEST(Simd, Rounding) {
    const std::vector<Tpx32f> floats = allOf<Tpx32f>();
    checkRounding(floats);
    checkRounding(std::vector<Tpx64f>(floats.begin(), floats.end()));
}

TEST(Simd, ComparisonAmongFloats) {
    for (Tpx32f b : edgesOf<Tpx32f>())
        eachRegister(allOf<Tpx32f>(), [&](V32f a) {
            const V32f one = masked(lessOrEqual(a, splat<V32f>(b)), splat<V32f>(1));
            const Pair<V64f> wide = widen(a);
            const V64f wideOne = masked(lessOrEqual(wide.low, splat<V64f>(b)), splat<V64f>(1));
            for (int i = 0; i < 8; i++) ASSERT_EQ(one[i], a[i] <= b ? 1 : 0) << a[i] << ", " << b;
            for (int i = 0; i < 4; i++) ASSERT_EQ(wideOne[i], a[i] <= b ? 1 : 0) << a[i] << ", " << b;
        });
}

// Lanes of very different size show the order of additions.
TEST(Simd, SumOfLanes) {
    std::mt19937 random(1);
    for (int n = 0; n < 10000; n++) {
        V32f a;
        V64f b;
        for (int i = 0; i < 8; i++) a[i] = std::ldexp(float(random() % 4096) - 2048, int(random() % 40) - 20);
        for (int i = 0; i < 4; i++) b[i] = std::ldexp(double(random()) - 2e9, int(random() % 80) - 40);
        ASSERT_EQ(sumOfLanes(a), ((a[0] + a[4]) + (a[2] + a[6])) + ((a[1] + a[5]) + (a[3] + a[7])));
        ASSERT_EQ(sumOfLanes(b), (b[0] + b[2]) + (b[1] + b[3]));
    }
}
