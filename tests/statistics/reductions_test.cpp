// SPDX-License-Identifier: Apache-2.0
// tpxiSum, tpxiMean and tpxiDotProd through the exported names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/support/reductions.h"

namespace {

using namespace tpx::test;

// ---- The functions as data -----------------------------------------------------------------------

enum class Kind { Sum, Mean, Product, SingleProduct };

template <class T>
struct Form {
    const char* name;
    Kind kind;
    int channels, results;
    TpxStatus (*run)(View<T>, View<T>, TpxiSize, double*);

    bool takesTwo() const { return kind == Kind::Product || kind == Kind::SingleProduct; }
};

#define ONE(word, T, channels, ...)                                                                       \
    Form<Tpx##T> {                                                                                        \
        "tpxi" #word "_" #T "_C" #channels, Kind::word, channels, channels,                               \
            [](View<Tpx##T> a, View<Tpx##T>, TpxiSize z, double* v) {                                     \
                return tpxi##word##_##T##_C##channels##R(a.data, a.step, z, v __VA_OPT__(, __VA_ARGS__)); \
            }                                                                                             \
    }
#define ONES(word, T, ...) \
    ONE(word, T, 1, __VA_ARGS__), ONE(word, T, 3, __VA_ARGS__), ONE(word, T, 4, __VA_ARGS__)
#define TWO(kind, T, L, channels, results, ...)                                       \
    Form<Tpx##T> {                                                                    \
        "tpxiDotProd_" #T "_" #L#__VA_ARGS__, Kind::kind, channels, results,          \
            [](View<Tpx##T> a, View<Tpx##T> b, TpxiSize z, double* v) {               \
                return tpxiDotProd_##T##64f_##L##R(a.data, a.step, b.data, b.step, z, \
                                                   v __VA_OPT__(, __VA_ARGS__));      \
            }                                                                         \
    }
#define TWOS(kind, T, ...)                                                    \
    TWO(kind, T, C1, 1, 1, __VA_ARGS__), TWO(kind, T, C3, 3, 3, __VA_ARGS__), \
        TWO(kind, T, C4, 4, 4, __VA_ARGS__), TWO(kind, T, AC4, 4, 3, __VA_ARGS__)
#define FORMS(T, ...)                                                \
    template <>                                                      \
    const std::vector<Form<Tpx##T>>& forms() {                       \
        static const std::vector<Form<Tpx##T>> list = {__VA_ARGS__}; \
        return list;                                                 \
    }
template <class T>
const std::vector<Form<T>>& forms();
FORMS(8u, ONES(Sum, 8u), ONES(Mean, 8u), TWOS(Product, 8u))
FORMS(16u, ONES(Sum, 16u), ONES(Mean, 16u), TWOS(Product, 16u))
FORMS(16s, ONES(Sum, 16s), ONES(Mean, 16s), TWOS(Product, 16s))
FORMS(32u, TWOS(Product, 32u))
FORMS(32s, TWOS(Product, 32s))
FORMS(32f, ONES(Sum, 32f, 1), ONES(Sum, 32f, 2), ONES(Mean, 32f, -3), ONES(Mean, 32f, 2), TWOS(Product, 32f, 2),
      TWOS(SingleProduct, 32f, 1), TWOS(SingleProduct, 32f, -2))

// 64 bits of digits: exact for samples of up to 16 bits.
struct Total {
    long double sum = 0, magnitudes = 0;
};

template <class T>
Total total(const Form<T>& form, View<T> a, View<T> b, TpxiSize size, int c) {
    Total t;
    for (int y = 0; y < size.height; y++)
        for (int x = 0; x < size.width; x++) {
            const ptrdiff_t i = ptrdiff_t(x) * form.channels + c;
            long double term = a.at(i, y);
            if (form.kind == Kind::Product) term *= b.at(i, y);
            if (form.kind == Kind::SingleProduct) term = float(a.at(i, y)) * float(b.at(i, y));
            t.sum += term;
            t.magnitudes += std::fabs(term);
        }
    return t;
}

// `repeats` stands for as many images below each other, of which `size` is one.
template <class T>
void check(const Form<T>& form, View<T> a, View<T> b, TpxiSize size, TpxiSize repeats = {1, 1}) {
    const TpxiSize all = {size.width * repeats.width, size.height * repeats.height};
    const double pixels = double(all.width) * all.height, images = double(repeats.width) * repeats.height;
    double got[kRoom];
    std::fill_n(got, kRoom, kUnwritten);
    ASSERT_EQ(form.run(a, b, all, got), tpxOk) << form.name;
    for (int c = 0; c < form.results; c++) {
        const Total t = total(form, a, b, size, c);
        double want = double(t.sum * images), tolerance = double(t.magnitudes * images) * 1e-12;
        if (form.kind == Kind::Mean) want = form.channels == 1 ? want / pixels : want * (1 / pixels);
        if (form.kind == Kind::Mean) tolerance /= pixels;
        if (sizeof(T) < 4) tolerance = 0;
        ASSERT_NEAR(got[c], want, tolerance)
            << form.name << ", channel " << c << " of " << all.width << " x " << all.height;
    }
    for (int c = form.results; c < kRoom; c++) ASSERT_EQ(got[c], kUnwritten) << form.name;
}

template <class T>
class Sums : public testing::Test {};
using SumTypes = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32u, Tpx32s, Tpx32f>;
TYPED_TEST_SUITE(Sums, SumTypes);

TYPED_TEST(Sums, EveryShape) {
    using T = TypeParam;
    for (const Form<T>& form : forms<T>())
        sweepOddShapes([&](int width, Lie lie, Lie otherLie) {
            for (int height = 1; height <= 3 && !this->HasFatalFailure(); height++) {
                GuardedImage<T> a(width, height, form.channels, lie), b(width, height, form.channels, otherLie);
                a.randomise(unsigned(width)), b.randomise(unsigned(width + 1000));
                check(form, View<T>(a), View<T>(b), a.size());
                check(form, View<T>(a), View<T>(b).fromBelow(height), a.size());
                check(form, View<T>(b).fromBelow(height), View<T>(a), a.size());
                if (!form.takesTwo()) check(form, View<T>(b.data(), 0), View<T>(a), b.size());
            }
        });
}

TYPED_TEST(Sums, SaturatedSamplesBeyondEveryLane) {
    using T = TypeParam;
    const T low = std::numeric_limits<T>::lowest(), high = std::numeric_limits<T>::max();
    const T pairs[][2] = {{high, high}, {low, low}, {high, low}, {low, high}, {high, T(1)}, {T(-1), T(1)}};
    for (const Form<T>& form : forms<T>())
        for (const auto& [p, q] : pairs) {
            if (form.kind == Kind::SingleProduct || this->HasFatalFailure()) continue;
            checkManyRows(form.channels, p, q, [&](View<T> a, View<T> b, TpxiSize size) {
                check(form, a, b, {1, 1}, size);
            });
        }
}

TYPED_TEST(Sums, ExtremesAmongOthers) {
    using T = TypeParam;
    checkExtremesAmongOthers<T>([&](const GuardedImage<T>& a, const GuardedImage<T>& b, int channels) {
        for (const Form<T>& form : forms<T>())
            if (form.channels == channels && !this->HasFatalFailure())
                check(form, View<T>(a), View<T>(b), a.size());
    });
}

TEST(Sum, TenThousandSquareOf255) {
    const std::vector<Tpx8u> row(10000, 255);
    double sum = 0;
    ASSERT_EQ(tpxiSum_8u_C1R(row.data(), 0, {10000, 10000}, &sum), tpxOk);
    EXPECT_EQ(sum, 25500000000.0);
}

TEST(Mean, DividesInOneChannelAndMultipliesByTheReciprocalInSeveral) {
    const std::vector<Tpx8u> ones(4 * 49, 1);
    double one, several[4];
    ASSERT_EQ(tpxiMean_8u_C1R(ones.data(), 49, {49, 1}, &one), tpxOk);
    EXPECT_EQ(one, 1.0);
    ASSERT_EQ(tpxiMean_8u_C4R(ones.data(), 4 * 7, {7, 7}, several), tpxOk);
    for (double mean : several) EXPECT_EQ(mean, 1.0 - 0x1p-53);
}

TEST(Mean, PixelsWrapAroundIn32Bits) {
    const std::vector<Tpx8u> row(65537, 3);
    double mean;
    ASSERT_EQ(tpxiMean_8u_C1R(row.data(), 0, {65537, 32768}, &mean), tpxOk);
    EXPECT_EQ(mean, 3.0 * 65537 * 32768 / (65537.0 * 32768 - 0x1p32));
}

// ---- Statuses -----------------------------------------------------------------------------------------------

TYPED_TEST(Sums, OrderOfChecks) {
    using T = TypeParam;
    const T src[64] = {};
    for (const Form<T>& form : forms<T>())
        expectCheckOrder(Call{},
                         faultsOf(form.takesTwo() ? std::vector{0, 1, 2} : std::vector{0, 2}, form.takesTwo()),
                         [&](const Call& call) {
                             double values[kRoom];
                             std::fill_n(values, kRoom, kUnwritten);
                             const TpxStatus status = form.run({call.null[0] ? nullptr : src, call.steps[0]},
                                                               {call.null[1] ? nullptr : src, call.steps[1]},
                                                               call.size, call.null[2] ? nullptr : values);
                             for (double v : values) EXPECT_EQ(v, kUnwritten) << form.name;
                             return status;
                         });
}

} // namespace
