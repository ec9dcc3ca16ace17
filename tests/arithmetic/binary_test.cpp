// tpxiAdd, tpxiSub, tpxiMul through their exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "tests/support/checks.h"
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
    std::function<TpxStatus(const T*, int, T*, int, TpxiSize, int)> inPlace;
    std::function<TpxStatus(const T*, TpxSizeL, const T*, TpxSizeL, T*, TpxSizeL, TpxiSizeL, int)> runL;
    std::function<TpxStatus(const T*, TpxSizeL, T*, TpxSizeL, TpxiSizeL, int)> inPlaceL;
    std::string name() const {
        return std::string(1, operation) + " C" + std::to_string(channels) +
               (keepsAlpha ? " keeping alpha" : "");
    }
};

#define SCALED(op, sign, T, L, n, alpha)                                                                       \
    Binary<Tpx##T> {                                                                                           \
        sign, n, alpha, tpxi##op##_##T##_##L##RSfs, tpxi##op##_##T##_##L##IRSfs, tpxi##op##_##T##_##L##RSfs_L, \
            tpxi##op##_##T##_##L##IRSfs_L                                                                      \
    }
template <class F>
auto withoutFactor(F f) {
    return [f](auto... a) {
        return [&]<size_t... I>(std::index_sequence<I...>, auto all) { return f(std::get<I>(all)...); }
        (std::make_index_sequence<sizeof...(a) - 1>{}, std::make_tuple(a...));
    };
}
#define PLAIN(op, sign, T, L, n, alpha)                                                                  \
    Binary<Tpx##T> {                                                                                     \
        sign, n, alpha, withoutFactor(tpxi##op##_##T##_##L##R), withoutFactor(tpxi##op##_##T##_##L##IR), \
            withoutFactor(tpxi##op##_##T##_##L##R_L), withoutFactor(tpxi##op##_##T##_##L##IR_L)          \
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

// ---- The mathematical result ----------------------------------------------------------------------------

// first and second source; the difference is the second less the first.
template <class T>
T model(char operation, T first, T second, int n) {
    if constexpr (std::is_same_v<T, float>) {
        return operation == '+' ? first + second : operation == '-' ? second - first : first * second;
    } else {
        using L = std::numeric_limits<T>;
        const int64_t a = first, b = second;
        const int64_t exact = operation == '+' ? a + b : operation == '-' ? b - a : a * b;
        // Nearest with ties to even, exactly: long double holds every value that does not saturate.
        const long double scaled = nearbyintl(ldexpl((long double)exact, -std::max(-100, std::min(100, n))));
        return scaled < L::min() ? L::min() : scaled > L::max() ? L::max() : T(scaled);
    }
}

const int kFactors[] = {INT_MIN, INT_MIN + 1, -1000, -33, -32, -18, -17, -16, -15, -14,  -9,     -8, -7,
                        -6,      -5,          -4,    -3,  -2,  -1,  0,   1,   2,   3,    4,      5,  6,
                        7,       8,           9,     10,  11,  12,  13,  14,  15,  16,   17,     18, 19,
                        29,      30,          31,    32,  33,  34,  35,  63,  64,  1000, INT_MAX};

// Every pair of `values` under every factor, in one image a factor.
template <class T>
void everyPair(const std::vector<T>& values) {
    const int n = int(values.size());
    std::vector<T> first(n * n), second(n * n), dst(n * n);
    for (int i = 0; i < n * n; i++) first[i] = values[i / n], second[i] = values[i % n];
    for (const auto& f : functions<T>()) {
        if (f.channels != 1) continue;
        for (int factor : kFactors) {
            ASSERT_EQ(f.run(first.data(), n * int(sizeof(T)), second.data(), n * int(sizeof(T)), dst.data(),
                            n * int(sizeof(T)), {n, n}, factor),
                      tpxOk);
            for (int i = 0; i < n * n; i++)
                if (dst[i] != model(f.operation, first[i], second[i], factor)) {
                    ADD_FAILURE() << +first[i] << " " << f.operation << " " << +second[i] << ", factor "
                                  << factor << ": got " << +dst[i] << ", expected "
                                  << +model(f.operation, first[i], second[i], factor);
                    break;
                }
        }
    }
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

// ---- Shapes, alignments, layouts, in place, both widths of the interface --------------------------------

template <class T>
void everyShape() {
    for (const auto& f : functions<T>()) {
        SCOPED_TRACE(f.name());
        sweepShapes([&](int width, Lie srcLie, Lie dstLie) {
            if (width > 70 && f.channels > 1) return;
            constexpr int height = 2;
            const int n = width % 4 - 1; // growing, plain, shrinking
            GuardedImage<T> a(width, height, f.channels, srcLie), b(width, height, f.channels, {3 * 8}),
                dst(width, height, f.channels, dstLie), old(width, height, f.channels);
            a.randomise(unsigned(width));
            b.randomise(unsigned(width) + 1);
            old.copySamplesFrom(dst.randomise(2));
            const auto want = [&](const GuardedImage<T>& kept) {
                return [&](int x, int y, int c) {
                    return f.keepsAlpha && c == 3 ? kept.at(x, y, c)
                                                  : model(f.operation, a.at(x, y, c), b.at(x, y, c), n);
                };
            };
            f.run(a.data(), a.step(), b.data(), b.step(), dst.data(), dst.step(), dst.size(), n);
            ASSERT_TRUE(matches(dst, want(old)));
            dst.copySamplesFrom(old);
            f.runL(a.data(), a.step(), b.data(), b.step(), dst.data(), dst.step(), {width, height}, n);
            ASSERT_TRUE(matches(dst, want(old)));
            for (bool wide : {false, true}) {
                dst.copySamplesFrom(b);
                if (wide)
                    f.inPlaceL(a.data(), a.step(), dst.data(), dst.step(), {width, height}, n);
                else
                    f.inPlace(a.data(), a.step(), dst.data(), dst.step(), dst.size(), n);
                ASSERT_TRUE(matches(dst, want(b)));
            }
        });
    }
}
TEST(BinaryShapes, EveryShape8u) { everyShape<Tpx8u>(); }
TEST(BinaryShapes, EveryShape16u) { everyShape<Tpx16u>(); }
TEST(BinaryShapes, EveryShape16s) { everyShape<Tpx16s>(); }
TEST(BinaryShapes, EveryShape32f) { everyShape<Tpx32f>(); }

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

// ---- Statuses -------------------------------------------------------------------------------------------

template <class T>
void checkOrder() {
    struct Args {
        T buffer[8] = {1, 1, 1, 1, 1, 1, 1, 1};
        bool null[3] = {};
        TpxiSize size = {1, 1};
    };
    using F = Fault<Args>;
    const F width = {"width", [](Args& a) { a.size.width = 0; }, tpxErrSize};
    const std::vector<F> rest = {{"first", [](Args& a) { a.null[0] = true; }, tpxErrNullPointer},
                                 {"second", [](Args& a) { a.null[1] = true; }, tpxErrNullPointer},
                                 {"destination", [](Args& a) { a.null[2] = true; }, tpxErrNullPointer},
                                 {"height", [](Args& a) { a.size.height = -1; }, tpxErrSize}};
    for (const auto& f : functions<T>()) {
        SCOPED_TRACE(f.name());
        const bool widthFirst = f.channels > 1 && !f.keepsAlpha;
        std::vector<F> faults = rest;
        faults.insert(widthFirst ? faults.begin() : faults.end(), width);
        const auto pointer = [](Args& a, int i) { return a.null[i] ? nullptr : a.buffer; };
        expectCheckOrder(Args{}, faults, [&](Args a) {
            T out[8] = {7, 7, 7, 7, 7, 7, 7, 7};
            T* const dst = a.null[2] ? nullptr : out;
            const TpxStatus status = f.run(pointer(a, 0), 16, pointer(a, 1), 16, dst, 16, a.size, 0);
            EXPECT_EQ(f.runL(pointer(a, 0), 16, pointer(a, 1), 16, dst, 16, {a.size.width, a.size.height}, 0),
                      status);
            for (T x : out) EXPECT_EQ(x, T(7));
            return status;
        });
        faults.erase(faults.begin() + (widthFirst ? 2 : 1)); // in place there is no second source
        expectCheckOrder(Args{}, faults, [&](Args a) {
            T* const dst = a.null[2] ? nullptr : a.buffer;
            const TpxStatus status = f.inPlace(pointer(a, 0), 16, dst, 16, a.size, 0);
            EXPECT_EQ(f.inPlaceL(pointer(a, 0), 16, dst, 16, {a.size.width, a.size.height}, 0), status);
            return status;
        });
    }
}
TEST(BinaryStatus, OrderOfChecks) {
    checkOrder<Tpx8u>();
    checkOrder<Tpx16u>();
    checkOrder<Tpx16s>();
    checkOrder<Tpx32f>();
}

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
            return f.keepsAlpha && c == 3 ? T(5) : model(f.operation, a.at(x, y, c), b.at(x, y, c), 1);
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
