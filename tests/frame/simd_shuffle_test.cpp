// SPDX-License-Identifier: Apache-2.0
// Moves of lanes, pixels and channels, masks of bits, small tables, gathered pieces.
#include <gtest/gtest.h>

#include "frame/simd/doubles.h"
#include "frame/simd/simd.h"
#include "tests/frame/simd_lanes.h"

using namespace tpx;
using namespace tpx::test;

namespace {

template <class T>
void checkReverse() {
    constexpr int L = kLanes<T>;
    eachRegister(allOf<T>(), [&](Vec<T> a) {
        const Vec<T> r = reverseLanes(a);
        for (int i = 0; i < L; i++) ASSERT_TRUE(sameBits<T>(r[i], a[L - 1 - i]));
    });
}

// Bytes are only moved: if all are different, one arrangement and its complement show every path.
template <int Bytes, int N>
void checkChannels(Tpx8u flip) {
    Several<V8u, N> pixels, planes;
    const auto byteOf = [&](auto& registers, int i) -> Tpx8u { return registers.at[i / 16][i % 16]; };
    for (int i = 0; i < N * 16; i++) pixels.at[i / 16][i % 16] = Tpx8u((i + 1) ^ flip);
    planes = deinterleave<Bytes>(pixels);
    for (int c = 0; c < N; c++)
        for (int i = 0; i < 16; i++)
            ASSERT_EQ(planes.at[c][i], byteOf(pixels, (i / Bytes * N + c) * Bytes + i % Bytes))
                << Bytes << " bytes, channel " << c << " of " << N << ", byte " << i;
    const auto back = interleave<Bytes>(planes);
    for (int i = 0; i < N * 16; i++)
        ASSERT_EQ(byteOf(back, i), byteOf(pixels, i)) << Bytes << " bytes of " << N;
}

// The bits, put at any bit of a byte, among others.
template <class T>
auto maskOf(Tpx32u bits, int first) {
    const Tpx32u others = ~(0xFFFFu << first);
    return LaneMask<T>(first)(bitsAs<V8u>(V32u{bits << first | others, ~0u, ~0u, ~0u}));
}

template <class T>
void checkMask(Tpx32u bits, int first) {
    const auto mask = maskOf<T>(bits, first);
    for (int i = 0; i < kLanes<T>; i++)
        ASSERT_EQ(mask[i], bits >> i & 1 ? -1 : 0) << bits << " from bit " << first << ", lane " << i;
}

template <class T>
void checkFour() {
    GuardedImage<T> pixel(4, 1, 1, {0, Edge::End, 1});
    for (int i = 0; i < 4; i++) pixel.set(i, 0, 0, T(-5 + 3 * i));
    const auto four = loadFour(static_cast<const T*>(pixel.data()));
    for (int i = 0; i < 4; i++) ASSERT_EQ(four[i], T(-5 + 3 * i));
    const auto all = broadcastLane<2>(four);
    for (int i = 0; i < 4; i++) ASSERT_EQ(all[i], four[2]);
    if constexpr (std::is_floating_point_v<T>) {
        GuardedImage<T> copy(4, 1, 1, {0, Edge::End, 1});
        storeFour(copy.data(), four);
        for (int i = 0; i < 4; i++) ASSERT_EQ(copy.at(i, 0), four[i]);
    }
}

// operation(a, b) takes lane `where[i]` of a0..a7 b0..b7.
void checkMoves(V32f (*operation)(V32f, V32f), const int (&where)[8]) {
    const V32f a = {0, 1, 2, 3, 4, 5, 6, 7}, b = {8, 9, 10, 11, 12, 13, 14, 15}, r = operation(a, b);
    for (int i = 0; i < 8; i++) ASSERT_EQ(r[i], where[i]) << "lane " << i;
}

template <class T, int... Places>
void checkPlaces(std::integer_sequence<int, Places...>) {
    constexpr int L = kLanes<T>;
    T lanes[2 * L];
    for (int i = 0; i < 2 * L; i++) lanes[i] = T(i + 1);
    const Vec<T> a = load(lanes), b = load(lanes + L);
    const auto check = [&]<int P>(std::integral_constant<int, P>) {
        const Vec<T> up = lanesUp<P>(a), behind = lanesBehind<P>(a, b);
        for (int i = 0; i < L; i++) {
            ASSERT_EQ(up[i], i < P ? T(0) : lanes[i - P]) << "up by " << P << ", lane " << i;
            ASSERT_EQ(behind[i], lanes[i + P]) << "behind " << P << ", lane " << i;
        }
    };
    (check(std::integral_constant<int, Places>{}), ...);
}

} // namespace

TEST(Simd, Reversal) {
    checkReverse<Tpx8u>();
    checkReverse<Tpx16u>();
    checkReverse<Tpx32f>();
}

TEST(Simd, MasksOfBits) {
    for (Tpx32u bits = 0; bits < 65536; bits++) {
        for (int first = 0; first < 8; first++) {
            checkMask<Tpx8u>(bits, first);
            checkMask<Tpx16u>(bits, first);
            checkMask<Tpx32f>(bits, first);
        }
        ASSERT_EQ(laneBits(maskOf<Tpx8u>(bits, 0)), bits);
        ASSERT_EQ(laneBits(Pair<V16s>{maskOf<Tpx16u>(bits, 0), maskOf<Tpx16u>(bits >> 8, 0)}), bits);
        ASSERT_EQ(laneBits(Pair<B32f>{maskOf<Tpx32f>(bits, 0), maskOf<Tpx32f>(bits >> 8, 0)}), bits);
        const auto lane = [bits](int i) { return -Tpx64s(bits >> i & 1); };
        ASSERT_EQ(laneBits(B64f{lane(0), lane(1), lane(2), lane(3)}), bits & 15);
    }
}

TEST(Simd, ChannelsOfPixels) {
    for (Tpx8u flip : {0, 255}) {
        checkChannels<1, 3>(flip);
        checkChannels<2, 3>(flip);
        checkChannels<4, 3>(flip);
        checkChannels<1, 4>(flip);
        checkChannels<2, 4>(flip);
        checkChannels<4, 4>(flip);
    }
}

TEST(Simd, Tables) {
    Tpx8u bytes[16];
    Tpx16u words[16];
    for (int i = 0; i < 16; i++) {
        bytes[i] = Tpx8u(255 - 17 * i);
        words[i] = Tpx16u(0xFFFF - 4099 * i);
    }
    const Table16<Tpx8u> byteTable(bytes);
    const Table16<Tpx16u> wordTable(words);
    checkEach<Tpx8u>(
        "lookup", [&](auto i) { return lookup(byteTable, i & 15); }, [&](int i) { return bytes[i & 15]; });
    checkEach<Tpx8u>(
        "lookupOrMax", [&](auto i) { return lookupOrMax(byteTable, i); },
        [&](int i) { return i < 16 ? bytes[i] : 255; });
    checkEach<Tpx16u>(
        "lookup", [&](auto i) { return lookup(wordTable, i & 15); }, [&](int i) { return words[i & 15]; });
}

TEST(Simd, MovesOfFloats) {
    checkMoves(interleaveLow, {0, 8, 1, 9, 4, 12, 5, 13});
    checkMoves(interleaveHigh, {2, 10, 3, 11, 6, 14, 7, 15});
    checkMoves(evenLanes, {0, 2, 8, 10, 4, 6, 12, 14});
    checkMoves(oddLanes, {1, 3, 9, 11, 5, 7, 13, 15});
    checkMoves(firstPairs, {0, 1, 8, 9, 4, 5, 12, 13});
    checkMoves(lastPairs, {2, 3, 10, 11, 6, 7, 14, 15});
    checkMoves(lowHalves, {0, 1, 2, 3, 8, 9, 10, 11});
    checkMoves(highHalves, {4, 5, 6, 7, 12, 13, 14, 15});
    checkMoves(
        [](V32f a, V32f) {
            return permuteLanes(a, B32f{3, 0, 1, 1, 2, 2, 0, 3});
        },
        {3, 0, 1, 1, 6, 6, 4, 7});
    const V32f joined = joinHalves<V32f>(Four<float>{1, 2, 3, 4}, Four<float>{5, 6, 7, 8});
    for (int i = 0; i < 8; i++) EXPECT_EQ(joined[i], i + 1);
}

TEST(Simd, PlacesOfIntegers) {
    checkPlaces<Tpx8u>(std::make_integer_sequence<int, 17>{});
    checkPlaces<Tpx16s>(std::make_integer_sequence<int, 9>{});
    checkPlaces<Tpx32s>(std::make_integer_sequence<int, 5>{});
}

TEST(Simd, Gathering) {
    checkFour<Tpx8u>();
    checkFour<Tpx16u>();
    checkFour<Tpx16s>();
    checkFour<Tpx32f>();
    checkFour<Tpx64f>();
    const float samples[9] = {0, 1, 2, 3, 4, 5, 6, 7, 8};
    const V32f twice = loadFourTwice(samples + 1), both = loadFours(samples + 5, samples);
    for (int i = 0; i < 8; i++) {
        EXPECT_EQ(twice[i], 1 + i % 4);
        EXPECT_EQ(both[i], i < 4 ? 5 + i : i - 4);
    }
    const Four<float> moved = upperThree(Four<float>{1, 2, 3, 4});
    for (int i = 0; i < 3; i++) EXPECT_EQ(moved[i], i + 2);
    Tpx8u bytes[16];
    store(bytes, fromPieces(0x0807060504030201, 0x100F0E0D0C0B0A09));
    for (int i = 0; i < 16; i++) EXPECT_EQ(bytes[i], i + 1);
    EXPECT_EQ(firstPiece(load(bytes)), 0x0807060504030201);
    store(bytes, fromPieces(0x04030201, 0x08070605, 0x0C0B0A09, 0x100F0E0D));
    for (int i = 0; i < 16; i++) EXPECT_EQ(bytes[i], i + 1);
    const V32s integers = toInteger(Four<float>{0.5f, -1.5f, 3e9f, 7});
    const Tpx32s want[4] = {0, -2, INT32_MIN, 7};
    for (int i = 0; i < 4; i++) EXPECT_EQ(integers[i], want[i]);
}
