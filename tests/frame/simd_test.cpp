// The words of the SIMD vocabulary, lane by lane against plain arithmetic: all pairs of 8-bit samples, all
// 16-bit samples against edge values, floats that are special or tie.
#include "frame/simd/simd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <vector>

#include "tests/support/guarded.h"

using namespace tpx;
using tpx::test::sameBits;

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Operands: all values of the narrow types, telling ones of the wide; and what each of them is paired with.
template <class T>
std::vector<T> allOf() {
    std::vector<T> values;
    if constexpr (std::is_same_v<T, float>) {
        values = {0.0f,  -0.0f,  1,      -1,      0.5f,      1.5f,       2.5f,       -0.5f, -2.5f, 0.49999997f,
                  3e38f, -3e38f, 1e-42f, -1e-42f, kInfinity, -kInfinity, 8388607.5f, 1e9f,  kNan,  -kNan};
    } else if constexpr (sizeof(T) == 4) {
        std::mt19937 random(1);
        for (uint32_t i = 0; i < 40; i++)
            for (uint32_t edge : {0u, 127u, 255u, 32767u, 65535u, 0x7FFFFFFFu}) {
                values.push_back(T(edge + i % 3 - 1));
                values.push_back(T(-edge + i % 3));
            }
        for (int i = 0; i < 2000; i++) values.push_back(T(random() >> random() % 32));
    } else {
        for (int64_t v = std::numeric_limits<T>::min(); v <= std::numeric_limits<T>::max(); v++)
            values.push_back(T(v));
    }
    return values;
}

template <class T>
std::vector<T> edgesOf() {
    if constexpr (sizeof(T) == 1 || std::is_same_v<T, float>) {
        return allOf<T>();
    } else {
        constexpr int64_t kMin = std::numeric_limits<T>::min(), kMax = std::numeric_limits<T>::max();
        std::vector<T> values;
        for (int64_t base : {kMin, int64_t{0}, int64_t{255}, kMax / 2, kMax})
            for (int64_t v = base - 2; v <= base + 2; v++)
                if (v >= kMin && v <= kMax) values.push_back(T(v));
        return values;
    }
}

// Registers that take in all values in turn; every lane differs from its neighbours.
template <class T, class Body>
void eachRegister(const std::vector<T>& values, Body body) {
    constexpr size_t L = size_t(kLanes<T>);
    for (size_t i = 0; i < values.size(); i += L) {
        T lanes[L];
        for (size_t k = 0; k < L; k++) lanes[k] = values[(i + k) % values.size()];
        body(load(lanes));
    }
}

// word(a, b) is model(a, b) in every lane, for registers of T and plain samples.
template <class T, class Word, class Model>
void checkPairs(const char* name, Word word, Model model) {
    for (T b : edgesOf<T>())
        eachRegister(allOf<T>(), [&](Vec<T> a) {
            const auto r = word(a, splat<Vec<T>>(b)), swapped = word(splat<Vec<T>>(b), a);
            for (int i = 0; i < kLanes<T>; i++) {
                using R = std::remove_cvref_t<decltype(r[0])>;
                const T x = a[i];
                ASSERT_TRUE(sameBits<R>(r[i], R(model(x, b)))) << name << " of " << +x << ", " << +b;
                ASSERT_TRUE(sameBits<R>(swapped[i], R(model(b, x)))) << name << " of " << +b << ", " << +x;
            }
        });
}

// The same for words of one operand whose result has as many lanes.
template <class T, class Word, class Model>
void checkEach(const char* name, Word word, Model model) {
    eachRegister(allOf<T>(), [&](Vec<T> a) {
        const auto r = word(a);
        for (int i = 0; i < kLanes<T>; i++) {
            using R = std::remove_cvref_t<decltype(r[0])>;
            const T x = a[i];
            ASSERT_TRUE(sameBits<R>(r[i], R(model(x)))) << name << " of " << +x;
        }
    });
}

template <class T>
int64_t saturate(int64_t v) {
    return std::clamp<int64_t>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}

// The lanes of a pair in order.
template <class V>
auto lane(const Pair<V>& p, int i) {
    constexpr int kHalf = int(sizeof(V) / sizeof(LaneOf<V>));
    return i < kHalf ? p.low[i] : p.high[i - kHalf];
}

template <class T>
void checkExtremes() {
    checkPairs<T>(
        "minOf", [](auto a, auto b) { return minOf(a, b); }, [](T a, T b) { return a < b ? a : b; });
    checkPairs<T>(
        "maxOf", [](auto a, auto b) { return maxOf(a, b); }, [](T a, T b) { return a > b ? a : b; });
}

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

template <class T>
void checkReverse() {
    constexpr int L = kLanes<T>;
    eachRegister(allOf<T>(), [&](Vec<T> a) {
        const Vec<T> r = reverseLanes(a);
        for (int i = 0; i < L; i++) ASSERT_TRUE(sameBits<T>(r[i], a[L - 1 - i]));
    });
}

} // namespace

TEST(Simd, Lanes) {
    checkLanes<Tpx8u>();
    checkLanes<Tpx16u>();
    checkLanes<Tpx16s>();
    checkLanes<Tpx32s>();
    checkLanes<Tpx32f>();
    checkReverse<Tpx8u>();
    checkReverse<Tpx16u>();
    checkReverse<Tpx32f>();
}

TEST(Simd, Extremes) {
    checkExtremes<Tpx8u>();
    checkExtremes<Tpx16u>();
    checkExtremes<Tpx16s>();
    checkExtremes<Tpx32s>();
    checkExtremes<Tpx32f>(); // with NaN and the zeros, the second operand stays
}

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

TEST(Simd, FloatsAndIntegers) {
    const std::vector<Tpx32s> integers = allOf<Tpx32s>();
    eachRegister(integers, [&](V32s low) {
        const Pair<V32s> pair{low, low ^ 0x55555555};
        const V32f floats = toFloat(pair);
        const V64f doubles = toDouble(low);
        for (int i = 0; i < 8; i++) ASSERT_EQ(floats[i], float(lane(pair, i))) << lane(pair, i);
        for (int i = 0; i < 4; i++) ASSERT_EQ(doubles[i], double(low[i]));
        const V32s back = toInteger(doubles);
        for (int i = 0; i < 4; i++) ASSERT_EQ(back[i], low[i]);
    });
    const auto nearest = [](double x) {
        return std::abs(x) < 2147483648.0 ? Tpx32s(std::nearbyint(x)) : INT32_MIN; // NaN, too
    };
    eachRegister(allOf<Tpx32f>(), [&](V32f x) {
        const Pair<V32s> integer = toInteger(x);
        const V32f rounded = roundNearest(x), root = squareRoot(x);
        const Pair<V64f> wide = widen(x);
        const V32f thirds = toFloat(Pair<V64f>{wide.low / splat<V64f>(3), wide.high / splat<V64f>(3)});
        for (int i = 0; i < 8; i++) {
            ASSERT_EQ(lane(integer, i), nearest(x[i])) << x[i];
            if (std::isnan(x[i])) continue;
            ASSERT_TRUE(sameBits<float>(rounded[i], std::nearbyint(x[i]))) << x[i];
            if (x[i] >= 0) ASSERT_EQ(root[i], std::sqrt(x[i])) << x[i];
            ASSERT_EQ(thirds[i], float(double(x[i]) / 3)) << x[i];
        }
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
