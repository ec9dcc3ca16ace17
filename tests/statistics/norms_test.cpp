// SPDX-License-Identifier: Apache-2.0
// tpxiNorm, tpxiNormDiff and tpxiNormRel through the exported names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

#include "tests/support/reductions.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

enum class Of { Norm, NormDiff, NormRel };
enum class Kind { Inf, L1, L2 };

template <class T>
struct Form {
    const char* name;
    Of of;
    Kind kind;
    int channels;
    bool accurate; // in double precision
    TpxStatus (*run)(View<T>, View<T>, TpxiSize, double*);
};

#define FORM(of, K, T, channels, accurate, sources, ...)                                               \
    Form<Tpx##T> {                                                                                     \
        "tpxi" #of "_" #K "_" #T "_C" #channels #__VA_ARGS__, Of::of, Kind::K, channels, accurate,     \
            [](View<Tpx##T> a, [[maybe_unused]] View<Tpx##T> b, TpxiSize z, double* v) {               \
                return tpxi##of##_##K##_##T##_C##channels##R(sources, z, v __VA_OPT__(, __VA_ARGS__)); \
            }                                                                                          \
    }
#define ONE_SOURCE a.data, a.step
#define TWO_SOURCES a.data, a.step, b.data, b.step
#define OF_CHANNELS(K, T, channels, accurate, ...)                                       \
    FORM(Norm, K, T, channels, accurate, ONE_SOURCE __VA_OPT__(, __VA_ARGS__)),          \
        FORM(NormDiff, K, T, channels, accurate, TWO_SOURCES __VA_OPT__(, __VA_ARGS__)), \
        FORM(NormRel, K, T, channels, accurate, TWO_SOURCES __VA_OPT__(, __VA_ARGS__))
#define OF_KIND(K, T, ...) \
    OF_CHANNELS(K, T, 1, __VA_ARGS__), OF_CHANNELS(K, T, 3, __VA_ARGS__), OF_CHANNELS(K, T, 4, __VA_ARGS__)
#define FORMS(T, ...)                                                \
    template <>                                                      \
    const std::vector<Form<Tpx##T>>& forms() {                       \
        static const std::vector<Form<Tpx##T>> list = {__VA_ARGS__}; \
        return list;                                                 \
    }
template <class T>
const std::vector<Form<T>>& forms();
FORMS(8u, OF_KIND(Inf, 8u, true), OF_KIND(L1, 8u, true), OF_KIND(L2, 8u, true))
FORMS(16u, OF_KIND(Inf, 16u, true), OF_KIND(L1, 16u, true), OF_KIND(L2, 16u, true))
FORMS(16s, OF_KIND(Inf, 16s, true), OF_KIND(L1, 16s, true), OF_KIND(L2, 16s, true))
FORMS(32f, OF_KIND(Inf, 32f, false), OF_KIND(L1, 32f, true, 2), OF_KIND(L2, 32f, true, 2),
      OF_KIND(L1, 32f, false, 1), OF_KIND(L2, 32f, false, 1), OF_KIND(L1, 32f, false, -2),
      OF_KIND(L2, 32f, false, 0))

// ---- Models -----------------------------------------------------------------------------------------------

// The largest |x|, or the sum of |x| or of x^2, in 64 bits of digits: exact for integers.
template <class X>
long double gather(Kind kind, TpxiSize size, X x) {
    long double all = 0;
    for (int row = 0; row < size.height; row++)
        for (int column = 0; column < size.width; column++) {
            const long double v = std::fabs(x(column, row));
            if (kind == Kind::Inf)
                all = v > all ? v : all; // not where v is NaN
            else
                all += kind == Kind::L1 ? v : v * v;
        }
    return all;
}

struct Value {
    double value;
    TpxStatus status;
};

template <class T>
Value model(const Form<T>& form, View<T> a, View<T> b, TpxiSize size, double images, int c) {
    const auto sample = [&](View<T> v, int x, int y) { return v.at(ptrdiff_t(x) * form.channels + c, y); };
    const auto difference = [&](int x, int y) -> long double {
        const T p = sample(a, x, y), q = sample(b, x, y);
        if (std::is_floating_point_v<T> && !form.accurate) return float(p) - float(q);
        return (long double)p - q;
    };
    const auto root = [&](double x) { return form.kind == Kind::L2 ? std::sqrt(x) : x; };
    const long double times = form.kind == Kind::Inf ? 1 : images;
    const double first =
        double(times * gather(form.kind, size, [&](int x, int y) -> long double { return sample(a, x, y); }));
    if (form.of == Of::Norm) return {root(first), tpxOk};
    const double over = double(times * gather(form.kind, size, difference));
    if (form.of == Of::NormDiff) return {root(over), tpxOk};
    const double under =
        double(times * gather(form.kind, size, [&](int x, int y) -> long double { return sample(b, x, y); }));
    const auto isZero = [](double x) { return std::is_integral_v<T> ? x == 0 : x < 2.2250738585072014e-308; };
    if (!isZero(under)) return {root(over / under), tpxOk};
    double minusNaN;
    const uint64_t bits = 0xFFF8000000000000;
    std::memcpy(&minusNaN, &bits, sizeof bits);
    return {isZero(over) ? minusNaN : double(INFINITY), tpxWarnDivByZero};
}

// The root of a sum that was rounded once is the same to the last bit. A sum of real numbers is rounded at
// every addition.
template <class T>
bool isNorm(const Form<T>& form, TpxiSize size, double got, double want) {
    if (got == want || sameBits(got, want)) return true;
    if (std::is_integral_v<T> || form.kind == Kind::Inf || !std::isfinite(want)) return false;
    return std::fabs(got - want) <= want * (form.accurate ? 1e-14 + 0x1p-53 * size.width * size.height : 1e-5);
}

// `repeats` stands for as many images below each other, of which `size` is one.
template <class T>
void check(const Form<T>& form, View<T> a, View<T> b, TpxiSize size, TpxiSize repeats = {1, 1}) {
    const TpxiSize all = {size.width * repeats.width, size.height * repeats.height};
    double got[kRoom];
    std::fill_n(got, kRoom, kUnwritten);
    const TpxStatus status = form.run(a, b, all, got);
    TpxStatus expected = tpxOk;
    for (int c = 0; c < kRoom; c++) {
        Value want = {kUnwritten, tpxOk};
        if (c < form.channels) want = model(form, a, b, size, double(repeats.width) * repeats.height, c);
        if (want.status != tpxOk) expected = want.status;
        ASSERT_TRUE(isNorm(form, all, got[c], want.value))
            << form.name << ", channel " << c << " of " << all.width << " x " << all.height << ": got "
            << got[c] << ", expected " << want.value;
    }
    ASSERT_EQ(status, expected) << form.name;
}

template <class T>
class Norms : public testing::Test {};
using NormTypes = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Norms, NormTypes);

// ---- Samples ----------------------------------------------------------------------------------------------

TYPED_TEST(Norms, EveryShape) {
    using T = TypeParam;
    const auto checkShape = [&](const Form<T>& form, int width, int height, Lie lie, Lie otherLie) {
        GuardedImage<T> a(width, height, form.channels, lie), b(width, height, form.channels, otherLie);
        a.randomise(unsigned(width)), b.randomise(unsigned(width + 1000));
        check(form, View<T>(a), View<T>(b), a.size());
        check(form, View<T>(b), View<T>(a), a.size());
    };
    for (const Form<T>& form : forms<T>()) {
        sweepOddShapes([&](int width, Lie lie, Lie otherLie) {
            for (int height = 1; height <= 3 && !this->HasFatalFailure(); height++)
                checkShape(form, width, height, lie, otherLie);
        });
        for (int width : {1023, 1024, 1025, 3071, 3072, 3073, 6147, 32769, 70001}) // long runs
            if (!this->HasFatalFailure())
                checkShape(form, width, 2, Lie{3, Edge::End, 0}, Lie{0, Edge::Start, 1});
    }
}

// The largest |x| at every place, under one of the other sign that is a little smaller.
TYPED_TEST(Norms, LargestAtEveryPlace) {
    using T = TypeParam;
    const bool isSigned = std::is_signed_v<T>;
    for (const Form<T>& form : forms<T>())
        for (int place = 0; place < 101 && form.kind == Kind::Inf && !this->HasFatalFailure(); place++) {
            GuardedImage<T> a(101, 1, form.channels), b(101, 1, form.channels);
            a.fill(
                [&](int x, int, int c) { return x == (place + 7 * c) % 101 ? (isSigned ? -90 : 90) : 89 - c; });
            b.fill([&](int x, int, int) { return x % 3; });
            check(form, View<T>(a), View<T>(b), a.size());
            check(form, View<T>(b), View<T>(a), a.size());
        }
}

TYPED_TEST(Norms, SaturatedSamplesBeyondEveryLane) {
    using T = TypeParam;
    const bool real = std::is_floating_point_v<T>;
    const T low = real ? T(-0.7) : std::numeric_limits<T>::lowest(),
            high = real ? T(0.1) : std::numeric_limits<T>::max();
    const T pairs[][2] = {{low, high}, {high, low}, {high, high}, {low, low}, {high, T(high / 2)}};
    for (const Form<T>& form : forms<T>())
        for (const auto& [p, q] : pairs) {
            if (this->HasFatalFailure()) return;
            checkManyRows(form.channels, p, q, [&](View<T> a, View<T> b, TpxiSize size) {
                check(form, a, b, {1, 1}, size);
            });
        }
}

TYPED_TEST(Norms, ExtremesAmongOthers) {
    using T = TypeParam;
    checkExtremesAmongOthers<T>([&](const GuardedImage<T>& a, const GuardedImage<T>& b, int channels) {
        for (const Form<T>& form : forms<T>())
            if (form.channels == channels && !this->HasFatalFailure())
                check(form, View<T>(a), View<T>(b), a.size());
    });
}

// One channel of the reference is zero, and the difference in it is zero or not.
TYPED_TEST(Norms, ZeroReferences) {
    using T = TypeParam;
    for (const Form<T>& form : forms<T>())
        for (int zero = 0; zero < form.channels; zero++)
            for (int others : {0, 3}) {
                GuardedImage<T> a(5, 2, form.channels), b(5, 2, form.channels);
                a.fill([&](int x, int y, int c) { return c == zero ? others : 20 + 3 * x + y + c; });
                b.fill([&](int x, int y, int c) { return c == zero ? 0 : 7 + x + 9 * y + 2 * c; });
                check(form, View<T>(a), View<T>(b), a.size());
                check(form, View<T>(b), View<T>(a), a.size());
            }
}

// ---- Real numbers -------------------------------------------------------------------------------------------

TEST(NormsOfFloats, InfPassesOverNaN) {
    for (const auto& form : forms<Tpx32f>())
        for (float others : {NAN, 2.0f, -INFINITY, FLT_MAX})
            for (int place : {0, 8, 31, 98}) {
                GuardedImage<float> a(33, 3, form.channels), b(33, 3, form.channels);
                a.fill(
                    [&](int x, int y, int c) { return y * 33 + x == place ? (c % 2 ? -NAN : -3.0f) : others; });
                b.fill([](int x, int, int) { return x % 2 ? 0.5f : -FLT_MAX; });
                if (form.kind != Kind::Inf || HasFatalFailure()) continue;
                // Infinity over infinity is left open.
                check(form, View<float>(a), View<float>(b), a.size());
                if (form.of != Of::NormRel || std::isfinite(others))
                    check(form, View<float>(b), View<float>(a), a.size());
            }
}

// What single precision cannot hold, double precision can: large and tiny squares, large sums, denormal
// samples.
TEST(NormsOfFloats, RangeOfTheHints) {
    const struct {
        float sample, reference;
        bool terms, squares; // in single precision these hold up
    } cases[] = {{3e30f, 1e30f, true, false},   {FLT_MAX, FLT_MAX / 2, false, false},
                 {3e-30f, 1e-30f, true, false}, {3e-45f, 1e-45f, true, false},
                 {1e-45f, 1e-45f, true, false}, {30.0f, 10.0f, true, true}};
    for (const auto& form : forms<Tpx32f>())
        for (const auto& one : cases) {
            if (form.kind == Kind::Inf || HasFatalFailure()) continue;
            GuardedImage<float> a(301, 3, form.channels), b(301, 3, form.channels);
            a.fill([&](int, int, int) { return one.sample; });
            b.fill([&](int, int, int) { return one.reference; });
            if (form.accurate || (form.kind == Kind::L1 ? one.terms : one.squares)) {
                check(form, View<float>(a), View<float>(b), a.size());
            } else if (form.of == Of::Norm) {
                double values[4];
                ASSERT_EQ(form.run(a, b, a.size(), values), tpxOk);
                ASSERT_EQ(values[form.channels - 1], one.sample > 1 ? INFINITY : 0) << form.name;
            } else if (form.of == Of::NormRel && one.sample < 1) {
                double values[4];
                ASSERT_EQ(form.run(a, b, a.size(), values), tpxWarnDivByZero);
                ASSERT_TRUE(std::isnan(values[0]) && std::signbit(values[0])) << form.name;
            }
        }
}

// ---- Statuses -----------------------------------------------------------------------------------------------

TYPED_TEST(Norms, OrderOfChecks) {
    using T = TypeParam;
    const T src[64] = {};
    for (const Form<T>& form : forms<T>()) {
        const bool two = form.of != Of::Norm;
        std::vector<Fault<Call>> faults = faultsOf(two ? std::vector{0, 1, 2} : std::vector{0, 2}, false);
        for (int i = 0; i <= int(two); i++)
            for (int bad : {0, -32, INT_MIN})
                faults.push_back({"step", [=](Call& c) { c.steps[i] = bad; }, tpxErrStep});
        expectCheckOrder(Call{}, faults, [&](const Call& call) {
            double values[kRoom];
            std::fill_n(values, kRoom, kUnwritten);
            const TpxStatus status = form.run({call.null[0] ? nullptr : src, call.steps[0]},
                                              {call.null[1] ? nullptr : src, call.steps[1]}, call.size,
                                              call.null[2] ? nullptr : values);
            for (double v : values) EXPECT_EQ(v, kUnwritten) << form.name;
            return status;
        });
    }
}

} // namespace
