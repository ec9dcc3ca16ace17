// SPDX-License-Identifier: Apache-2.0
// tpxiMinEvery, tpxiMaxEvery through their exported names.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "models/models.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;

// ---- The functions as data ------------------------------------------------------------------------------

template <class T>
struct Form {
    const char* name;
    bool max;
    int channels;
    bool alpha;
    TpxStatus (*inPlace)(const T*, int, T*, int, TpxiSize);
    TpxStatus (*run)(const T*, int, const T*, int, T*, int, TpxiSize) = nullptr;
};

#define FORM(Op, T, L, channels, ...)                                                          \
    Form<Tpx##T> {                                                                             \
#Op " " #L, std::string(#Op) == "Max", channels, std::string(#L) == "AC4",             \
            tpxi##Op##Every_##T##_##L##IR __VA_OPT__(, tpxi##Op##Every_##T##_##L##__VA_ARGS__) \
    }
#define LAYOUTS(Op, T, ...) \
    FORM(Op, T, C1, 1 __VA_OPT__(, __VA_ARGS__)), FORM(Op, T, C3, 3), FORM(Op, T, C4, 4), FORM(Op, T, AC4, 4)
#define FORMS(T, ...)                                                                                  \
    template <>                                                                                        \
    std::vector<Form<Tpx##T>> forms() {                                                                \
        return {LAYOUTS(Min, T __VA_OPT__(, __VA_ARGS__)), LAYOUTS(Max, T __VA_OPT__(, __VA_ARGS__))}; \
    }
template <class T>
std::vector<Form<T>> forms();
FORMS(8u, R)
FORMS(16u, R)
FORMS(16s)
FORMS(32f, R)

template <class T>
T model(bool max, T first, T second) {
    T result;
    (max ? tpx::model::maxEvery<T> : tpx::model::minEvery<T>)(&first, &second, &result, 1);
    return result;
}

// Few different samples, so that many are equal; the limits; and what floats have beyond numbers.
template <class T>
void fill(GuardedImage<T>& image, unsigned seed) {
    std::mt19937 random(seed);
    image.fill([&](int, int, int) {
        if (std::is_integral_v<T>) return random() % 2 ? T(random()) : T(int(random() % 4) - 2);
        const float special[] = {NAN, -NAN, INFINITY, -INFINITY, 0.0f, -0.0f, 1e-45f, -1e-45f, 3e38f, 7.5f};
        return T(special[random() % std::size(special)]);
    });
}

template <class T>
void checkImage(const Form<T>& form, int width, int height, Lie firstLie, Lie secondLie, Lie dstLie) {
    GuardedImage<T> first(width, height, form.channels, firstLie),
        second(width, height, form.channels, secondLie), dst(width, height, form.channels, dstLie);
    fill(first, unsigned(width));
    fill(second, unsigned(width) + 1);
    const auto expected = [&](int x, int y, int c) {
        const T old = second.at(x, y, c);
        return form.alpha && c == 3 ? old : model(form.max, first.at(x, y, c), old);
    };
    if (form.run) {
        ASSERT_EQ(form.run(first.data(), first.step(), second.data(), second.step(), dst.data(), dst.step(),
                           dst.size()),
                  tpxOk);
        ASSERT_TRUE(matches(dst, expected)) << form.name;
    }
    dst.copySamplesFrom(second);
    ASSERT_EQ(form.inPlace(first.data(), first.step(), dst.data(), dst.step(), dst.size()), tpxOk);
    ASSERT_TRUE(matches(dst, expected)) << form.name << " in place";
}

template <class T>
class Every : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx16s, Tpx32f>;
TYPED_TEST_SUITE(Every, Types);

// ---- Samples --------------------------------------------------------------------------------------------

TYPED_TEST(Every, EveryForm) {
    for (const auto& form : forms<TypeParam>()) {
        checkImage(form, 50, 4, Lie{3, Edge::End, 1}, Lie{1, Edge::Start, 7}, Lie{5, Edge::Start, 3});
        if (this->HasFatalFailure()) return;
    }
}

TEST(EveryPair, Of8Bits) {
    for (const auto& form : forms<Tpx8u>()) {
        std::vector<Tpx8u> first(65536), second(65536);
        for (int i = 0; i < 65536; i++) first[i] = Tpx8u(i), second[i] = Tpx8u(i >> 8);
        std::vector<Tpx8u> dst = second;
        form.inPlace(first.data(), 65536, dst.data(), 65536, {65536 / form.channels, 1});
        for (int i = 0; i < 65536 / form.channels * form.channels; i++)
            ASSERT_EQ(dst[i], form.alpha && i % 4 == 3 ? second[i] : model(form.max, first[i], second[i]));
    }
}

} // namespace
