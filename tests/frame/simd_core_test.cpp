// SPDX-License-Identifier: Apache-2.0
// Loads, stores, constants and choosing: every lane, every misalignment.
#include <gtest/gtest.h>

#include "frame/simd/simd.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

namespace {

template <class T>
void checkExtremes() {
    checkPairs<T>(
        "minOf", [](auto a, auto b) { return minOf(a, b); }, [](T a, T b) { return a < b ? a : b; });
    checkPairs<T>(
        "maxOf", [](auto a, auto b) { return maxOf(a, b); }, [](T a, T b) { return a > b ? a : b; });
}

template <class T>
void checkLanes() {
    constexpr int L = kLanes<T>;
    T a[L], b[L];
    for (int i = 0; i < L; i++) {
        a[i] = T(i + 1);
        b[i] = T(100 + i);
    }
    // At every misalignment by bytes, and nothing but a register.
    alignas(32) uint8_t bytes[3 * sizeof(Vec<T>)];
    for (size_t at = 0; at < sizeof(Vec<T>); at++) {
        std::memset(bytes, 0xEE, sizeof bytes);
        store(reinterpret_cast<T*>(bytes + at), load(a));
        ASSERT_EQ(std::memcmp(bytes + at, a, sizeof(Vec<T>)), 0);
        ASSERT_EQ(std::count(bytes, bytes + sizeof bytes, 0xEE), ptrdiff_t(2 * sizeof(Vec<T>)));
        // Of a register too, whose type would promise a boundary.
        const auto inBytes = reinterpret_cast<Vec<T>*>(bytes + at);
        const Vec<T> other = peek(inBytes) + splat<Vec<T>>(T(1));
        poke(inBytes, other);
        ASSERT_EQ(std::memcmp(bytes + at, &other, sizeof other), 0);
        if constexpr (std::is_integral_v<T>) {
            store(reinterpret_cast<T*>(bytes + at), joined(load(a), load(b)));
            ASSERT_EQ(std::memcmp(bytes + at, a, sizeof a), 0);
            ASSERT_EQ(std::memcmp(bytes + at + sizeof a, b, sizeof b), 0);
        }
    }
    const Vec<T> x = load(a), y = load(b), constant = splat<Vec<T>>(T(77)), kept = keepAlpha<T>(x, y);
    for (int i = 0; i < L; i++) {
        ASSERT_EQ(constant[i], T(77));
        ASSERT_EQ(kept[i], i % 4 == 3 ? a[i] : b[i]) << "keepAlpha, lane " << i;
    }
    for (int lane = 0; lane < L; lane++) {
        Vec<T> probe = splat<Vec<T>>(T(1));
        probe[lane] = T(2);
        const auto mask = probe == splat<Vec<T>>(T(2));
        ASSERT_TRUE(any(mask)) << lane;
        const Vec<T> chosen = select(mask, x, y);
        for (int i = 0; i < L; i++) ASSERT_EQ(chosen[i], i == lane ? a[i] : b[i]) << "select, lane " << i;
    }
    ASSERT_FALSE(any(x == y));
    ASSERT_TRUE(any(x == x));
}

// Every choice by lanes that the number of bits of T allows: 2^lanes of them.
template <class T, int... Masks>
void checkSelectLanes(std::integer_sequence<int, Masks...>) {
    constexpr int L = kLanes<T>;
    Vec<T> a, b;
    for (int i = 0; i < L; i++) {
        a[i] = T(i + 1);
        b[i] = T(100 + i);
    }
    const auto check = [&](Vec<T> chosen, int mask) {
        for (int i = 0; i < L; i++) ASSERT_EQ(chosen[i], mask >> i & 1 ? a[i] : b[i]) << mask << ", lane " << i;
    };
    (check(selectLanes<Masks>(a, b), Masks), ...);
}

} // namespace

TEST(Simd, Lanes) {
    checkLanes<Tpx8u>();
    checkLanes<Tpx16u>();
    checkLanes<Tpx16s>();
    checkLanes<Tpx32s>();
    checkLanes<Tpx32f>();
}

TEST(Simd, Extremes) {
    checkExtremes<Tpx8u>();
    checkExtremes<Tpx16u>();
    checkExtremes<Tpx16s>();
    checkExtremes<Tpx32s>();
    checkExtremes<Tpx32f>(); // with NaN and the zeros, the second operand stays
}

// The mask may be any lane's sign: computed, loaded, or the number itself.
TEST(Simd, SelectionBySign) {
    for (float limit : edgesOf<Tpx32f>())
        eachRegister(allOf<Tpx32f>(), [&](V32f x) {
            const V32f y = splat<V32f>(limit), bySign = select(bitsAs<B32f>(x), y, x);
            const V32f byInverse = select(~B32f(x < y), y, x);
            for (int i = 0; i < 8; i++) {
                const float want = std::signbit(x[i]) ? limit : x[i], other = !(x[i] < limit) ? limit : x[i];
                ASSERT_TRUE(sameBits<float>(bySign[i], want)) << x[i];
                ASSERT_TRUE(sameBits<float>(byInverse[i], other)) << x[i] << ", " << limit;
            }
        });
    const V64f x = {-1, 2, -0.0, 4}, chosen = select(bitsAs<B64f>(x), V64f{}, x);
    for (int i = 0; i < 4; i++) ASSERT_EQ(chosen[i], i % 2 ? x[i] : 0);
}

TEST(Simd, SelectionOfLanes) {
    checkSelectLanes<Tpx16u>(std::make_integer_sequence<int, 256>());
    checkSelectLanes<Tpx32s>(std::make_integer_sequence<int, 16>());
    checkSelectLanes<Tpx32f>(std::make_integer_sequence<int, 256>());
    checkSelectLanes<Tpx64f>(std::make_integer_sequence<int, 16>());
}

TEST(Simd, SingleNumbers) {
    static_assert(minOf(3, -4) == -4 && maxOf(3, -4) == 3);
    static_assert(clampTo(7, -3, 5) == 5 && clampTo(-7, -3, 5) == -3 && clampTo(0, -3, 5) == 0);
    static_assert(kMin<Tpx16s> == -32768 && kMax<Tpx16s> == 32767 && kMin<Tpx8u> == 0 && kMax<Tpx8u> == 255);
    static_assert(kMin<Tpx32s> == INT32_MIN && kMax<Tpx32s> == INT32_MAX && kMax<Tpx32u> == UINT32_MAX);
}

TEST(Simd, OneValueInEveryLane) {
    const Tpx32s numbers[3] = {1, INT32_MIN + 2, 3};
    const V32s all = loadSplat(numbers + 1), same = inRegister(all);
    for (int i = 0; i < 4; i++) {
        EXPECT_EQ(all[i], INT32_MIN + 2);
        EXPECT_EQ(same[i], INT32_MIN + 2);
    }
}

TEST(Simd, StoresPastTheCaches) {
    alignas(64) Tpx8u bytes[96], floats[96];
    std::memset(bytes, 0xEE, sizeof bytes);
    std::memset(floats, 0xEE, sizeof floats);
    Tpx8u from[32];
    for (int i = 0; i < 32; i++) from[i] = Tpx8u(i + 1);
    streamStore(bytes + 32, load(from));
    streamStore(reinterpret_cast<Tpx32f*>(floats + 32), load(reinterpret_cast<const Tpx32f*>(from)));
    streamFence();
    EXPECT_EQ(std::memcmp(bytes + 32, from, 16), 0);
    EXPECT_EQ(std::memcmp(floats + 32, from, 32), 0);
    EXPECT_EQ(std::count(bytes, bytes + 96, 0xEE), 80);
    EXPECT_EQ(std::count(floats, floats + 96, 0xEE), 64);
}
