// SPDX-License-Identifier: Apache-2.0
// Integer operations against plain arithmetic.
#include <gtest/gtest.h>

#include "frame/simd/reductions.h"
#include "frame/simd/simd.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

namespace {

template <class T>
void checkSum() {
    checkPairs<T>(
        "addSat", [](auto a, auto b) { return addSat(a, b); },
        [](T a, T b) { return saturate<T>(int64_t{a} + b); });
}

template <class T>
void checkDifference() {
    checkPairs<T>(
        "subSat", [](auto a, auto b) { return subSat(a, b); },
        [](T a, T b) { return saturate<T>(int64_t{a} - b); });
}

template <class T>
void checkAverage() {
    checkPairs<T>(
        "average", [](auto a, auto b) { return average(a, b); },
        [](T a, T b) { return (int64_t{a} + b + 1) / 2; });
}

template <class T>
void checkShifts() {
    constexpr int kBits = 8 * sizeof(T);
    for (int n : {0, 1, 7, 8, kBits - 1, kBits, kBits + 1, 64, 1000}) {
        checkEach<T>(
            "shiftLeft", [&](auto a) { return shiftLeft(a, n); },
            [&](T a) { return n < kBits ? uint64_t{a} << n : 0; });
        checkEach<T>(
            "shiftRight", [&](auto a) { return shiftRight(a, n); },
            [&](T a) { return n < kBits ? uint64_t{a} >> n : 0; });
    }
}

template <class T>
void checkWiden() {
    eachRegister(allOf<T>(), [&](Vec<T> a) {
        const auto wide = widen(a);
        for (int i = 0; i < kLanes<T>; i++) ASSERT_EQ(lane(wide, i), a[i]);
    });
}

template <class T>
void checkMultiplyWide() {
    for (T b : edgesOf<T>())
        eachRegister(allOf<T>(), [&](Vec<T> a) {
            const auto wide = multiplyWide(a, splat<Vec<T>>(b));
            for (int i = 0; i < kLanes<T>; i++) ASSERT_EQ(lane(wide, i), uint64_t{a[i]} * b);
        });
}

// From registers of From to one of To. Unsigned lanes are taken below half their range only.
template <class To, class From>
void checkNarrow() {
    std::vector<From> values = allOf<From>();
    std::erase_if(values, [](From v) {
        return std::is_unsigned_v<From> && v > std::numeric_limits<std::make_signed_t<From>>::max();
    });
    std::mt19937 random(1);
    eachRegister(values, [&](Vec<From> low) {
        const Pair<Vec<From>> pair{low, splat<Vec<From>>(values[random() % values.size()])};
        const Vec<To> r = narrow<To>(pair);
        for (int i = 0; i < kLanes<To>; i++)
            ASSERT_EQ(int64_t{r[i]}, saturate<To>(int64_t{lane(pair, i)})) << +lane(pair, i);
    });
}

// Every sample of From as To, from memory that ends behind the last.
template <class To, class From>
void checkLoadAs() {
    constexpr int L = kLanes<To>;
    const auto values = allOf<From>();
    test::GuardedImage<From> image(L, 1, 1, {0, test::Edge::End, 1});
    for (size_t i = 0; i < values.size(); i += L) {
        for (int k = 0; k < L; k++) image.set(k, 0, 0, values[(i + size_t(k)) % values.size()]);
        const Vec<To> r = loadAs<To>(image.data());
        for (int k = 0; k < L; k++) ASSERT_EQ(r[k], To(image.at(k, 0)));
    }
}

} // namespace

TEST(Simd, SaturatingSums) {
    checkSum<Tpx8u>();
    checkSum<Tpx16u>();
    checkSum<Tpx16s>();
    checkDifference<Tpx8u>();
    checkDifference<Tpx16u>();
    checkDifference<Tpx16s>();
    checkDifference<Tpx32u>();
    checkAverage<Tpx8u>();
    checkAverage<Tpx16u>();
    checkAverage<Tpx32u>();
}

TEST(Simd, Shifts) {
    checkShifts<Tpx8u>();
    checkShifts<Tpx16u>();
    checkShifts<Tpx32u>();
}

TEST(Simd, AbsoluteValues) {
    checkEach<Tpx16s>(
        "absSat", [](auto a) { return absSat(a); }, [](int a) { return saturate<Tpx16s>(std::abs(a)); });
    checkEach<Tpx32f>(
        "absSat", [](auto a) { return absSat(a); },
        [](float a) { return std::bit_cast<float>(std::bit_cast<uint32_t>(a) & 0x7FFFFFFF); });
    checkEach<Tpx16s>(
        "magnitude", [](auto a) { return magnitude(a); }, [](int a) { return std::abs(a); });
    checkEach<Tpx32s>(
        "magnitude", [](auto a) { return magnitude(a); }, [](Tpx64s a) { return std::abs(a); });
    const auto signedBy = [](Tpx64s a, Tpx64s b) { return b < 0 ? -a : b > 0 ? a : 0; };
    checkPairs<Tpx16s>(
        "withSign", [](auto a, auto b) { return withSign(V16u(a), b); }, signedBy);
    checkPairs<Tpx32s>(
        "withSign", [](auto a, auto b) { return withSign(V32u(a), b); }, signedBy);
}

TEST(Simd, WideningAndNarrowing) {
    checkLoadAs<Tpx16u, Tpx8u>();
    checkLoadAs<Tpx16s, Tpx8u>();
    checkLoadAs<Tpx16s, Tpx8s>();
    checkLoadAs<Tpx32u, Tpx8u>();
    checkLoadAs<Tpx32s, Tpx8s>();
    checkLoadAs<Tpx32s, Tpx16s>();
    checkLoadAs<Tpx32u, Tpx16u>();
    checkLoadAs<Tpx32u, Tpx32s>();
    checkLoadAs<Tpx32f, Tpx8u>();
    checkLoadAs<Tpx32f, Tpx8s>();
    checkLoadAs<Tpx32f, Tpx16u>();
    checkLoadAs<Tpx32f, Tpx16s>();
    checkLoadAs<Tpx64f, Tpx8s>();
    checkWiden<Tpx8u>();
    checkWiden<Tpx16u>();
    checkWiden<Tpx16s>();
    checkMultiplyWide<Tpx8u>();
    checkMultiplyWide<Tpx16u>();
    checkNarrow<Tpx8u, Tpx16s>();
    checkNarrow<Tpx8s, Tpx16s>();
    checkNarrow<Tpx8u, Tpx16u>();
    checkNarrow<Tpx16u, Tpx32s>();
    checkNarrow<Tpx16s, Tpx32s>();
    checkNarrow<Tpx16u, Tpx32u>();
}

// Sums saturate at 16 bits.
TEST(Simd, PairsOfBytes) {
    for (Tpx8s b : allOf<Tpx8s>())
        for (Tpx8s c : edgesOf<Tpx8s>())
            eachRegister(allOf<Tpx8u>(), [&](V8u a) {
                V8s factors;
                for (int i = 0; i < 16; i++) factors[i] = i % 2 ? c : b;
                const V16s sums = multiplyAddPairs(a, factors);
                for (int i = 0; i < 8; i++)
                    ASSERT_EQ(sums[i], saturate<Tpx16s>(a[2 * i] * b + a[2 * i + 1] * c)) << +b << ", " << +c;
            });
}

TEST(Simd, PairsOfLanes) {
    for (Tpx16s b : edgesOf<Tpx16s>())
        eachRegister(allOf<Tpx16s>(), [&](V16s a) {
            V16s other = splat<V16s>(b);
            other[1] = 7;
            const V32s sums = multiplyAddPairs(a, other);
            const V16s low = interleaveLow(a, other), high = interleaveHigh(a, other);
            for (int i = 0; i < 4; i++) {
                // Both products -32768 * -32768 are the one sum that does not fit; it wraps.
                const int64_t sum = int64_t{a[2 * i]} * other[2 * i] + int64_t{a[2 * i + 1]} * other[2 * i + 1];
                ASSERT_EQ(sums[i], Tpx32s(sum));
                ASSERT_TRUE(low[2 * i] == a[i] && low[2 * i + 1] == other[i]);
                ASSERT_TRUE(high[2 * i] == a[4 + i] && high[2 * i + 1] == other[4 + i]);
            }
        });
}

TEST(Simd, SumOfDifferences) {
    for (Tpx8u b : edgesOf<Tpx8u>())
        eachRegister(allOf<Tpx8u>(), [&](V8u a) {
            const V8u other = a * 7 + b;
            Tpx64u sums[2] = {};
            for (int i = 0; i < 16; i++)
                sums[i / 8] += Tpx64u(a[i] > other[i] ? a[i] - other[i] : other[i] - a[i]);
            const V64u got = sumOfDifferences(a, other);
            ASSERT_EQ(got[0], sums[0]);
            ASSERT_EQ(got[1], sums[1]);
        });
}
