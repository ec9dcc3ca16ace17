// SPDX-License-Identifier: Apache-2.0
// tpxiAdd, tpxiSub, tpxiMul through their exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "models/models.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
struct Binary {
    char operation; // + - *
    int channels;
    bool keepsAlpha;
    std::function<TpxStatus(const T*, int, const T*, int, T*, int, TpxiSize, int)> run;
    std::function<TpxStatus(const T*, TpxSizeL, const T*, TpxSizeL, T*, TpxSizeL, TpxiSizeL, int)> runL;
    std::function<TpxStatus(const T*, TpxSizeL, T*, TpxSizeL, TpxiSizeL, int)> inPlaceL;
    auto model() const {
        return operation == '+'   ? tpx::model::add<T>
               : operation == '-' ? tpx::model::sub<T>
                                  : tpx::model::mul<T>;
    }
    std::string name() const {
        return std::string(1, operation) + " C" + std::to_string(channels) +
               (keepsAlpha ? " keeping alpha" : "");
    }
};

#define SCALED(op, sign, T, L, n, alpha)                                          \
    Binary<Tpx##T> {                                                              \
        sign, n, alpha, tpxi##op##_##T##_##L##RSfs, tpxi##op##_##T##_##L##RSfs_L, \
            tpxi##op##_##T##_##L##IRSfs_L                                         \
    }
template <class F>
auto withoutFactor(F f) {
    return [f](auto... a) {
        return [&]<size_t... I>(std::index_sequence<I...>, auto all) { return f(std::get<I>(all)...); }
        (std::make_index_sequence<sizeof...(a) - 1>{}, std::make_tuple(a...));
    };
}
#define PLAIN(op, sign, T, L, n, alpha)                                                                   \
    Binary<Tpx##T> {                                                                                      \
        sign, n, alpha, withoutFactor(tpxi##op##_##T##_##L##R), withoutFactor(tpxi##op##_##T##_##L##R_L), \
            withoutFactor(tpxi##op##_##T##_##L##IR_L)                                                     \
    }
#define LAYOUTS(FORM, op, sign, T)                                                                     \
    FORM(op, sign, T, C1, 1, false), FORM(op, sign, T, C3, 3, false), FORM(op, sign, T, C4, 4, false), \
        FORM(op, sign, T, AC4, 4, true)
#define FUNCTIONS(FORM, T)                                                                           \
    template <>                                                                                      \
    std::vector<Binary<Tpx##T>> functions() {                                                        \
        return {LAYOUTS(FORM, Add, '+', T), LAYOUTS(FORM, Sub, '-', T), LAYOUTS(FORM, Mul, '*', T)}; \
    }
template <class T>
std::vector<Binary<T>> functions();
FUNCTIONS(SCALED, 8u)
FUNCTIONS(SCALED, 16u)
FUNCTIONS(SCALED, 16s)
FUNCTIONS(PLAIN, 32f)

const int kFactors[] = {INT_MIN, INT_MIN + 1, -1000, -33, -32, -18, -17, -16, -15, -14,  -9,     -8, -7,
                        -6,      -5,          -4,    -3,  -2,  -1,  0,   1,   2,   3,    4,      5,  6,
                        7,       8,           9,     10,  11,  12,  13,  14,  15,  16,   17,     18, 19,
                        29,      30,          31,    32,  33,  34,  35,  63,  64,  1000, INT_MAX};

// Pairs of samples, in images of `width`, under the factors from `least` to `most`.
template <class T>
void everyFactor(const std::vector<T>& first, const std::vector<T>& second, int width,
                 const std::string& operations = "+-*", int least = INT_MIN, int most = INT_MAX) {
    std::vector<T> dst(first.size()), want(first.size());
    const int step = width * int(sizeof(T));
    for (const auto& f : functions<T>()) {
        if (f.channels != 1 || operations.find(f.operation) == std::string::npos) continue;
        for (int factor : kFactors) {
            if (factor < least || factor > most) continue;
            ASSERT_EQ(f.run(first.data(), step, second.data(), step, dst.data(), step,
                            {width, int(first.size()) / width}, factor),
                      tpxOk);
            f.model()(first.data(), second.data(), want.data(), want.size(), factor);
            for (size_t i = 0; i < first.size(); i++)
                if (dst[i] != want[i]) {
                    ADD_FAILURE() << +first[i] << " " << f.operation << " " << +second[i] << ", factor "
                                  << factor << ": got " << +dst[i] << ", expected " << +want[i];
                    break;
                }
        }
    }
}

template <class T>
void everyPair(const std::vector<T>& values) {
    const size_t n = values.size();
    std::vector<T> first(n * n), second(n * n);
    for (size_t i = 0; i < n * n; i++) first[i] = values[i / n], second[i] = values[i % n];
    everyFactor(first, second, int(n));
}

TEST(BinaryIntegers, EveryPairAndFactor8u) {
    std::vector<Tpx8u> values(256);
    for (int i = 0; i < 256; i++) values[i] = Tpx8u(i);
    everyPair(values);
}

// Powers of two and their neighbours, the limits, and others: sums, differences and products that are ties,
// saturate, or just do not.
template <class T>
std::vector<T> edges() {
    std::vector<T> values;
    std::mt19937 random(1);
    for (int bit = 0; bit < 16; bit++)
        for (int d = -2; d <= 2; d++) {
            values.push_back(T((1 << bit) + d));
            values.push_back(T(-(1 << bit) + d));
        }
    for (int i = 0; i < 100; i++) values.push_back(T(random()));
    return values;
}
TEST(BinaryIntegers, EdgesUnderEveryFactor16u) { everyPair(edges<Tpx16u>()); }
TEST(BinaryIntegers, EdgesUnderEveryFactor16s) { everyPair(edges<Tpx16s>()); }

// Every sum and every difference that there is.
template <class T>
void everySumAndDifference() {
    constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    std::vector<T> first, second, opposite;
    for (int sum = 2 * low; sum <= 2 * high; sum++) {
        const int least = std::max(low, sum - high), most = std::min(high, sum - low);
        const int a = least + (most - least) * (sum & 7) / 7;
        first.push_back(T(a));
        second.push_back(T(sum - a));
        opposite.push_back(T(low + high - a));
    }
    everyFactor(first, second, 1, "+", 1, 18);
    everyFactor(opposite, second, 1, "-", 1, 18);
}
TEST(BinaryIntegers, EverySumAndDifference16u) { everySumAndDifference<Tpx16u>(); }
TEST(BinaryIntegers, EverySumAndDifference16s) { everySumAndDifference<Tpx16s>(); }

TEST(BinaryFloats, EveryPair) {
    everyPair<Tpx32f>({0.0f, -0.0f, 1, -1, 0.5f, 3, -2.25f, 1e-45f, -1e-38f, 1e-20f, 7e18f, 16777216, 3e38f});
}

// ---- Steps and factors beyond the limits ----------------------------------------------------------------

TEST(BinarySteps, ZeroNegativeAndOddStepsWalkTheMemoryAsGiven) {
    const Tpx8u a[] = {1, 2, 3, 4}, b[] = {10, 20, 30, 40};
    Tpx8u dst[4] = {};
    EXPECT_EQ(tpxiAdd_8u_C1RSfs(a + 3, -1, b, 0, dst, 1, {1, 4}, 0), tpxOk);
    EXPECT_EQ(dst[0], 14);
    EXPECT_EQ(dst[3], 11);

    uint8_t odd[7] = {}, result[8] = {};
    const Tpx16s x = 300, y = -7;
    std::memcpy(odd, &x, 2);
    std::memcpy(odd + 3, &y, 2);
    const auto p = reinterpret_cast<const Tpx16s*>(odd);
    EXPECT_EQ(tpxiAdd_16s_C1RSfs(p, 3, p, 3, reinterpret_cast<Tpx16s*>(result), 5, {1, 2}, 0), tpxOk);
    Tpx16s r;
    std::memcpy(&r, result, 2);
    EXPECT_EQ(r, 600);
    std::memcpy(&r, result + 5, 2);
    EXPECT_EQ(r, -14);
}

// The smallest factor at which all is 0 reads no source: the sources here are unreadable.
template <class T>
void zeroFill(const std::vector<int>& firstZero) {
    GuardedBytes page(1);
    const T* const unreadable = reinterpret_cast<const T*>(page.data() + 1);
    for (const auto& f : functions<T>()) {
        SCOPED_TRACE(f.name());
        GuardedImage<T> dst(37, 3, f.channels, {8});
        dst.fill([](int, int, int) { return 5; });
        const int n = firstZero[f.operation == '+' ? 0 : f.operation == '-' ? 1 : 2];
        EXPECT_EQ(f.run(unreadable, 512, unreadable, 512, dst.data(), dst.step(), dst.size(), n), tpxOk);
        EXPECT_TRUE(matches(dst, [&](int, int, int c) { return f.keepsAlpha && c == 3 ? 5 : 0; }));
    }
}
TEST(BinaryFactors, AboveTheLimitNoSourceIsRead) {
    zeroFill<Tpx8u>({10, 9, 17});
    zeroFill<Tpx16u>({18, 17, 33});
    zeroFill<Tpx16s>({17, 17, 31});
}

// ---- Large calls ----------------------------------------------------------------------------------------

// Calls that do not fit the short form: a step of 2^31 - 1 bytes, which one row never walks.
template <class T>
void largeCalls() {
    constexpr TpxSizeL large = 0x7FFFFFFF;
    for (const auto& f : functions<T>()) {
        SCOPED_TRACE(f.name());
        constexpr int width = 21;
        GuardedImage<T> a(width, 1, f.channels), b(width, 1, f.channels), dst(width, 1, f.channels);
        a.randomise(1);
        b.randomise(2);
        dst.fill([](int, int, int) { return 5; });
        EXPECT_EQ(f.runL(a.data(), large, b.data(), 16, dst.data(), -large, {width, 1}, 1), tpxOk);
        EXPECT_TRUE(matches(dst, [&](int x, int y, int c) {
            const T first = a.at(x, y, c), second = b.at(x, y, c);
            T want = 5;
            if (!f.keepsAlpha || c < 3) f.model()(&first, &second, &want, 1, 1);
            return want;
        }));
        // Nothing to walk is no error there, and is one in a call that fits.
        EXPECT_EQ(f.runL(nullptr, large, nullptr, large, nullptr, large, {width, 0}, 0), tpxOk);
        EXPECT_EQ(f.runL(nullptr, large, nullptr, large, nullptr, large, {-1, 3}, 0), tpxOk);
        EXPECT_EQ(f.inPlaceL(nullptr, 16, nullptr, large, {-1, 3}, 0), tpxOk);
        EXPECT_EQ(f.runL(a.data(), large - 1, b.data(), 16, dst.data(), 16, {width, 0}, 0), tpxErrSize);
        EXPECT_EQ(f.runL(nullptr, large, b.data(), 16, dst.data(), 16, {width, 1}, 0), tpxErrNullPointer);
        EXPECT_EQ(f.runL(a.data(), 16, b.data(), 16, nullptr, INT64_MIN, {width, 1}, 0), tpxErrNullPointer);
        EXPECT_EQ(f.inPlaceL(a.data(), 16, nullptr, large, {width, 1}, 0), tpxErrNullPointer);
    }
}
TEST(BinaryLarge, StepsBeyondTheShortForm) {
    largeCalls<Tpx8u>();
    largeCalls<Tpx16u>();
    largeCalls<Tpx16s>();
    largeCalls<Tpx32f>();
}

// The bytes of such sizes wrap to few, and their low 32 bits are sizes of pixels.
TEST(BinaryLarge, SizesBelowOneStaySo) {
    constexpr TpxSizeL low = std::numeric_limits<TpxSizeL>::min();
    for (const TpxiSizeL size : {TpxiSizeL{18, low + 63}, {low + 18, 34}}) {
        Tpx32f floats = 1;
        Tpx16s shorts = 1;
        EXPECT_EQ(tpxiSub_32f_AC4IR_L(&floats, 0, &floats, 0, size), tpxOk);
        EXPECT_EQ(tpxiAdd_16s_C4IRSfs_L(&shorts, 0, &shorts, 0, size, 0), tpxOk);
        EXPECT_EQ(floats, 1);
        EXPECT_EQ(shorts, 1);
    }
}

// Rows of several chunks, with steps of 0 so that all rows are the same memory.
TEST(BinaryLarge, RowsOfSeveralChunks) {
    constexpr TpxSizeL width = 0x40000000 + 5; // one chunk of 8 bits is 0x3FFFFFFF
    Tpx8u* const image = static_cast<Tpx8u*>(mmap(nullptr, size_t(width), PROT_READ | PROT_WRITE,
                                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    if (image == MAP_FAILED) GTEST_SKIP() << "no room for a row of 1 GiB";
    image[0] = 1;
    image[0x3FFFFFFE] = 2;
    image[0x3FFFFFFF] = 3;
    image[width - 1] = 4;
    // The bytes of the image exceed the short form by its two rows; in place every row doubles.
    EXPECT_EQ(tpxiAdd_8u_C1IRSfs_L(image, 0, image, 0, {width, 2}, 0), tpxOk);
    EXPECT_EQ(image[0], 4);
    EXPECT_EQ(image[0x3FFFFFFE], 8);
    EXPECT_EQ(image[0x3FFFFFFF], 12);
    EXPECT_EQ(image[width - 1], 16);
    munmap(image, size_t(width));
}

} // namespace
