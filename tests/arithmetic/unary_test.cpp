// SPDX-License-Identifier: Apache-2.0
// tpxiAbs, tpxiSqr, tpxiSqrt, tpxiLn, tpxiExp through their exported names.
#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <string>

#include "models/models.h"
#include "tests/support/cache.h"
#include "tests/support/guarded.h"
#include "tests/support/ulps.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
struct Unary {
    const char* name;
    int channels;
    bool keepsAlpha;
    bool seesAlpha;
    std::function<TpxStatus(const T*, int, T*, int, TpxiSize, int)> run;
    std::function<TpxStatus(T*, int, TpxiSize, int)> runInPlace;
};

#define WITH_FACTOR(op, T, L, channels, alpha)                                                            \
    Unary<Tpx##T> {                                                                                       \
#op "_" #T "_" #L, channels, alpha, true, tpxi##op##_##T##_##L##RSfs, tpxi##op##_##T##_##L##IRSfs \
    }
#define WITHOUT_FACTOR(op, T, L, channels, alpha, sees)                                               \
    Unary<Tpx##T> {                                                                                   \
#op "_" #T "_" #L, channels, alpha, sees,                                                           \
            [](const Tpx##T* s, int ss, Tpx##T* d, int ds, TpxiSize z, int) {                               \
                return tpxi##op##_##T##_##L##R(s, ss, d, ds, z);                                            \
            },                                                                                              \
            [](Tpx##T* d, int ds, TpxiSize z, int) { return tpxi##op##_##T##_##L##IR(d, ds, z); } \
    }
#define INTEGER(op, T) WITH_FACTOR(op, T, C1, 1, false), WITH_FACTOR(op, T, C3, 3, false)
#define FLOATING(op, T) WITHOUT_FACTOR(op, T, C1, 1, false, true), WITHOUT_FACTOR(op, T, C3, 3, false, true)

template <class T>
std::vector<Unary<T>> functions();

template <>
std::vector<Unary<Tpx8u>> functions() {
    return {INTEGER(Sqr, 8u),  WITH_FACTOR(Sqr, 8u, C4, 4, false),  WITH_FACTOR(Sqr, 8u, AC4, 4, true),
            INTEGER(Sqrt, 8u), WITH_FACTOR(Sqrt, 8u, AC4, 4, true), INTEGER(Ln, 8u),
            INTEGER(Exp, 8u)};
}
template <>
std::vector<Unary<Tpx16u>> functions() {
    return {INTEGER(Sqr, 16u),  WITH_FACTOR(Sqr, 16u, C4, 4, false),  WITH_FACTOR(Sqr, 16u, AC4, 4, true),
            INTEGER(Sqrt, 16u), WITH_FACTOR(Sqrt, 16u, AC4, 4, true), INTEGER(Ln, 16u),
            INTEGER(Exp, 16u)};
}
template <>
std::vector<Unary<Tpx16s>> functions() {
    return {INTEGER(Sqr, 16s),
            WITH_FACTOR(Sqr, 16s, C4, 4, false),
            WITH_FACTOR(Sqr, 16s, AC4, 4, true),
            INTEGER(Sqrt, 16s),
            WITH_FACTOR(Sqrt, 16s, AC4, 4, true),
            INTEGER(Ln, 16s),
            INTEGER(Exp, 16s),
            FLOATING(Abs, 16s),
            WITHOUT_FACTOR(Abs, 16s, C4, 4, false, true),
            WITHOUT_FACTOR(Abs, 16s, AC4, 4, true, true)};
}
template <>
std::vector<Unary<Tpx32f>> functions() {
    Unary<Tpx32f> rootC4{
        "Sqrt_32f_C4", 4,       false,
        true,          nullptr, [](Tpx32f* d, int ds, TpxiSize z, int) {
                             return tpxiSqrt_32f_C4IR(d, ds, z); }};
    return {FLOATING(Abs, 32f),
            WITHOUT_FACTOR(Abs, 32f, C4, 4, false, true),
            WITHOUT_FACTOR(Abs, 32f, AC4, 4, true, true),
            FLOATING(Sqr, 32f),
            WITHOUT_FACTOR(Sqr, 32f, C4, 4, false, true),
            WITHOUT_FACTOR(Sqr, 32f, AC4, 4, true, true),
            FLOATING(Sqrt, 32f),
            WITHOUT_FACTOR(Sqrt, 32f, AC4, 4, true, false),
            rootC4,
            FLOATING(Ln, 32f),
            FLOATING(Exp, 32f)};
}

std::string operationOf(const char* name) { return std::string(name).substr(0, std::string(name).find('_')); }

// ---- The mathematical results ---------------------------------------------------------------------------

// With more digits than a result may lose.
template <class T>
void model(const std::string& operation, const std::vector<T>& src, std::vector<T>& want, int scaleFactor) {
    if (operation == "Abs") {
        if constexpr (std::is_signed_v<T>) tpx::model::abs(src.data(), want.data(), src.size());
        return;
    }
    (operation == "Sqr"    ? tpx::model::sqr<T>
     : operation == "Sqrt" ? tpx::model::sqrt<T, long double>
     : operation == "Ln"   ? tpx::model::ln<T, long double>
                           : tpx::model::exp<T, long double>)(src.data(), want.data(), src.size(), scaleFactor);
}

// ---- Integers: every sample, every scale factor ---------------------------------------------------------

// In images of `repeats` times all samples.
template <class T>
void everySampleAndFactor(int repeats = 1) {
    using L = std::numeric_limits<T>;
    const int count = (int(L::max()) - int(L::min()) + 1) * repeats;
    std::vector<T> src(count), dst(count), want(count);
    for (int i = 0; i < count; i++) src[i] = T(int(L::min()) + i);
    for (const Unary<T>& f : functions<T>()) {
        if (f.channels != 1) continue;
        const std::string operation = operationOf(f.name);
        std::vector<int> factors = {INT_MIN, INT_MIN + 1, -100000, -1000, 1000, 100000, INT_MAX};
        for (int n = -40; n <= 45; n++) factors.push_back(n);
        // The exponential of a large sample needs a large factor: the windows of some of them.
        if (operation == "Exp")
            for (int n = -47300; n <= 94600; n += 1237) factors.push_back(n);
        for (int n : factors) {
            f.run(src.data(), count * int(sizeof(T)), dst.data(), count * int(sizeof(T)), {count, 1}, n);
            model(operation, src, want, n);
            for (int i = 0; i < count; i++) {
                if (dst[i] != want[i]) {
                    ADD_FAILURE() << f.name << " of " << +src[i] << ", factor " << n << ": got " << +dst[i]
                                  << ", expected " << +want[i];
                    break;
                }
            }
        }
    }
}
TEST(UnaryIntegers, EverySampleAndFactor8u) { everySampleAndFactor<Tpx8u>(); }
TEST(UnaryIntegers, EverySampleAndFactorOfLargeImages8u) { everySampleAndFactor<Tpx8u>(5); }
TEST(UnaryIntegers, EverySampleAndFactor16u) { everySampleAndFactor<Tpx16u>(); }
TEST(UnaryIntegers, EverySampleAndFactor16s) { everySampleAndFactor<Tpx16s>(); }

// ---- Floats ---------------------------------------------------------------------------------------------

TEST(UnaryFloats, StrideOfAllBitPatterns) {
    std::vector<float> src;
    for (uint64_t bits = 0; bits < uint64_t(1) << 32; bits += 9973) {
        const uint32_t b = uint32_t(bits);
        float x;
        std::memcpy(&x, &b, 4);
        src.push_back(x);
    }
    const float edges[] = {0.0f,          -0.0f,       INFINITY,    -INFINITY,   NAN,
                           -NAN,          1.0f,        -1.0f,       FLT_MIN,     FLT_TRUE_MIN,
                           -FLT_TRUE_MIN, FLT_MAX,     -FLT_MAX,    88.72283f,   88.72284f,
                           -87.33654f,    -103.97208f, -103.97209f, 0.99999994f, 1.0000001f};
    src.insert(src.end(), std::begin(edges), std::end(edges));
    std::vector<float> dst(src.size()), want(src.size());
    const TpxiSize size = {int(src.size()), 1};
    const int step = int(src.size() * 4);
    for (const auto& f : functions<Tpx32f>()) {
        if (f.channels != 1) continue;
        f.run(src.data(), step, dst.data(), step, size, 0);
        const std::string operation = operationOf(f.name);
        model(operation, src, want, 0);
        const double bound = operation == "Ln" || operation == "Exp" ? 2 : 0;
        double worst = 0;
        for (size_t i = 0; i < src.size(); i++) {
            const double error = tpxtest::ulps(dst[i], want[i]);
            if (error > worst) {
                worst = error;
                EXPECT_LE(worst, bound) << f.name << " of " << src[i] << ": " << dst[i];
            }
        }
    }
    // Bits, where a value does not tell them.
    float x = -0.0f, y;
    tpxiSqrt_32f_C1R(&x, 4, &y, 4, {1, 1});
    EXPECT_TRUE(sameBits(y, -0.0f));
    x = -NAN;
    tpxiAbs_32f_C1R(&x, 4, &y, 4, {1, 1});
    EXPECT_FALSE(std::signbit(y));
}

// Most samples of an image take a short way, and registers or blocks with others among them a long one. Every
// sample's result is the one that it has alone, in runs of all lengths, from every place in a register.
TEST(UnaryFloats, ResultsDoNotDependOnNeighbours) {
    const float others[] = {0,       -0.0f,   -3,    INFINITY, -INFINITY, NAN,    1e-40f,  FLT_MIN,
                            FLT_MAX, 2e38f,   1e38f, 200,      -200,      -87.2f, -87.33f, -87.34f,
                            -95,     -103.9f, -104,  87.2f,    88.7f,     88.73f, -1e-40f, FLT_MIN * 1.5f};
    for (const auto& f : functions<Tpx32f>()) {
        const std::string operation = operationOf(f.name);
        if (f.channels != 1 || (operation != "Ln" && operation != "Exp")) continue;
        for (const int rarity : {1, 3, 40, 400}) {
            std::vector<float> src(300), alone(src.size()), dst(src.size() + 1);
            for (size_t i = 0; i < src.size(); i++) {
                const unsigned random = unsigned(i + 1) * 2654435761u >> 8;
                src[i] = random / 7 % rarity ? float(random % 8000) * 0.01f + 0.3f
                                             : others[random % std::size(others)];
                f.run(&src[i], 4, &alone[i], 4, {1, 1}, 0);
            }
            for (int begin = 0; begin < 9; begin++)
                for (int len = 1; begin + len <= int(src.size()); len += len < 150 ? 1 : 37)
                    for (const bool inPlace : {false, true}) {
                        std::fill(dst.begin(), dst.end(), 5.0f);
                        float* to = dst.data() + begin;
                        if (inPlace) std::copy_n(src.data() + begin, len, to);
                        f.run(inPlace ? to : src.data() + begin, 4 * len, to, 4 * len, {len, 1}, 0);
                        ASSERT_EQ(std::memcmp(to, alone.data() + begin, 4 * size_t(len)), 0)
                            << f.name << " of " << len << " from " << begin << ", one in " << rarity;
                        ASSERT_EQ(to[len], 5.0f);
                    }
        }
    }
}

// ---- Steps ----------------------------------------------------------------------------------------------

TEST(UnarySteps, OddStepIsRoundedDownInAbsSqrSqrtAndUsedAsItIsInLnExp) {
    const Tpx16s src[] = {-5, -6, -7, -8};
    Tpx16s dst[4] = {};
    EXPECT_EQ(tpxiAbs_16s_C1R(src, 5, dst, 5, {1, 2}), tpxOk);
    EXPECT_EQ(dst[0], 5);
    EXPECT_EQ(dst[1], 0);
    EXPECT_EQ(dst[2], 7);

    uint8_t bytes[16] = {}, out[16] = {};
    const Tpx16s one = 1, two = 2;
    std::memcpy(bytes, &one, 2);
    std::memcpy(bytes + 3, &two, 2);
    EXPECT_EQ(
        tpxiExp_16s_C1RSfs(reinterpret_cast<Tpx16s*>(bytes), 3, reinterpret_cast<Tpx16s*>(out), 5, {1, 2}, 0),
        tpxOk);
    Tpx16s first, second;
    std::memcpy(&first, out, 2);
    std::memcpy(&second, out + 5, 2);
    EXPECT_EQ(first, 3);
    EXPECT_EQ(second, 7);
}

// ---- Statuses -------------------------------------------------------------------------------------------

// Where in an image of 3 rows the samples that warn stand, and what the call then returns.
template <class T>
TpxStatus statusOf(const Unary<T>& f, std::initializer_list<std::pair<int, T>> samples) {
    constexpr int width = 40;
    GuardedImage<T> image(width, 3, f.channels);
    image.fill([](int, int, int) { return 1; });
    for (auto [at, value] : samples)
        image.set(at % (width * f.channels) / f.channels, at / (width * f.channels), at % f.channels, value);
    if (f.run) {
        GuardedImage<T> dst(width, 3, f.channels);
        const TpxStatus status = f.run(image.data(), image.step(), dst.data(), dst.step(), dst.size(), 0);
        const TpxStatus inPlace = f.runInPlace(image.data(), image.step(), image.size(), 0);
        if (f.seesAlpha) EXPECT_EQ(status, inPlace) << f.name;
        return status;
    }
    return f.runInPlace(image.data(), image.step(), image.size(), 0);
}

template <class T>
void warnings() {
    for (const Unary<T>& f : functions<T>()) {
        SCOPED_TRACE(f.name);
        const std::string operation = operationOf(f.name);
        const int row = 40 * f.channels;
        const bool isSigned = std::is_signed_v<T>, root = operation == "Sqrt", ln = operation == "Ln";
        const T zero = T(0), negative = T(-3);
        for (int at : {0, 5, row - 1, row, 2 * row + 33, 3 * row - 1}) {
            if (f.keepsAlpha && at % 4 == 3) continue;
            EXPECT_EQ(statusOf<T>(f, {{at, zero}}), ln ? tpxWarnLnZeroArg : tpxOk) << at;
            if (isSigned)
                EXPECT_EQ(statusOf<T>(f, {{at, negative}}), ln     ? tpxWarnLnNegArg
                                                            : root ? tpxWarnSqrtNegArg
                                                                   : tpxOk)
                    << at;
        }
        if (ln && isSigned) {
            // The first in row-major order decides.
            EXPECT_EQ(statusOf<T>(f, {{3, zero}, {30, negative}}), tpxWarnLnZeroArg);
            EXPECT_EQ(statusOf<T>(f, {{3, negative}, {30, zero}}), tpxWarnLnNegArg);
            EXPECT_EQ(statusOf<T>(f, {{row + 1, negative}, {2 * row, zero}}), tpxWarnLnNegArg);
            EXPECT_EQ(statusOf<T>(f, {{row - 1, zero}, {row, negative}}), tpxWarnLnZeroArg);
        }
        if (root && isSigned && f.keepsAlpha)
            EXPECT_EQ(statusOf<T>(f, {{7, negative}}), f.seesAlpha ? tpxWarnSqrtNegArg : tpxOk);
    }
}
TEST(UnaryStatus, Warnings) {
    warnings<Tpx8u>();
    warnings<Tpx16u>();
    warnings<Tpx16s>();
    warnings<Tpx32f>();
}

// What goes past the caches is worked on at several places at a time.
TEST(UnaryStatus, FirstOfManyDecidesInLargeImages) {
    const int len = 600000;
    std::vector<float> src(len, 2.0f), dst(len);
    const SmallCache small;
    for (const int zero : {0, 17, 130000, 310000, 599999})
        for (const int negative : {1, 24, 129999, 460000, 599998}) {
            src[zero] = 0;
            src[negative] = -1;
            const int step = len * 4;
            EXPECT_EQ(tpxiLn_32f_C1R(src.data(), step, dst.data(), step, {len, 1}),
                      zero < negative ? tpxWarnLnZeroArg : tpxWarnLnNegArg)
                << zero << ' ' << negative;
            EXPECT_EQ(tpxiLn_32f_C1R(src.data(), step / 2, dst.data(), step / 2, {len / 2, 2}),
                      zero < negative ? tpxWarnLnZeroArg : tpxWarnLnNegArg);
            src[zero] = src[negative] = 2;
        }
    EXPECT_GT(small.queries(), 0);
}

TEST(UnaryStatus, FloatWarningsDoNotCountNanNorNegativeZeroInARoot) {
    const auto all = functions<Tpx32f>();
    for (const auto& f : all) {
        const std::string operation = operationOf(f.name);
        if (operation == "Sqrt") {
            EXPECT_EQ(statusOf<Tpx32f>(f, {{3 - f.channels % 2, NAN}}), tpxOk);
            EXPECT_EQ(statusOf<Tpx32f>(f, {{0, -0.0f}}), tpxOk);
        }
        if (operation == "Ln") {
            EXPECT_EQ(statusOf<Tpx32f>(f, {{3, NAN}}), tpxOk);
            EXPECT_EQ(statusOf<Tpx32f>(f, {{3, -0.0f}}), tpxWarnLnZeroArg);
        }
    }
    // In place the root of a four-channel image without its own alpha does see alpha.
    Tpx32f pixel[4] = {1, 1, 1, -1};
    EXPECT_EQ(tpxiSqrt_32f_AC4IR(pixel, 16, {1, 1}), tpxWarnSqrtNegArg);
    EXPECT_EQ(pixel[3], -1.0f);
}

} // namespace
