// SPDX-License-Identifier: Apache-2.0
// tpxiCopy and tpxiSet of whole pixels through their exported names.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/samples.h"

namespace {

using namespace tpx::test;

template <class T>
struct CopyForm {
    const char* name;
    int from, to; // channels stored
    TpxStatus (*run)(const T*, int, T*, int, TpxiSize);
    bool keepsAlpha;
};

template <class T>
struct SetForm {
    const char* name;
    int channels, values;
    std::function<TpxStatus(const T*, T*, int, TpxiSize)> run;
};

#define COPIES(T)                                                                          \
    {"C1", 1, 1, tpxiCopy_##T##_C1R, false}, {"C3", 3, 3, tpxiCopy_##T##_C3R, false},      \
        {"C4", 4, 4, tpxiCopy_##T##_C4R, false}, {"AC4", 4, 4, tpxiCopy_##T##_AC4R, true}, \
        {"AC4C3", 4, 3, tpxiCopy_##T##_AC4C3R, false}, {                                   \
        "C3AC4", 3, 4, tpxiCopy_##T##_C3AC4R, true                                         \
    }
#define SETS(T)                                                             \
    {"C1", 1, 1,                                                            \
     [](const Tpx##T* v, Tpx##T* d, int ds, TpxiSize z) {                   \
         return v ? tpxiSet_##T##_C1R(*v, d, ds, z) : tpxErrNullPointer;    \
     }},                                                                    \
        {"C3", 3, 3, tpxiSet_##T##_C3R}, {"C4", 4, 4, tpxiSet_##T##_C4R}, { \
        "AC4", 4, 3, tpxiSet_##T##_AC4R                                     \
    }

// A type for every set of names, since 16u and 16s, 32s and 32f are functions of their own.
struct Names8u {
    using T = Tpx8u;
    static std::vector<CopyForm<T>> copies() { return {COPIES(8u)}; }
    static std::vector<SetForm<T>> sets() { return {SETS(8u)}; }
};
struct Names16u {
    using T = Tpx16u;
    static std::vector<CopyForm<T>> copies() { return {COPIES(16u)}; }
    static std::vector<SetForm<T>> sets() { return {SETS(16u)}; }
};
struct Names16s {
    using T = Tpx16s;
    static std::vector<CopyForm<T>> copies() { return {COPIES(16s)}; }
    static std::vector<SetForm<T>> sets() { return {SETS(16s)}; }
};
struct Names32s {
    using T = Tpx32s;
    static std::vector<CopyForm<T>> copies() { return {COPIES(32s)}; }
    static std::vector<SetForm<T>> sets() { return {SETS(32s)}; }
};
struct Names32f {
    using T = Tpx32f;
    static std::vector<CopyForm<T>> copies() { return {COPIES(32f)}; }
    static std::vector<SetForm<T>> sets() { return {SETS(32f)}; }
};

template <class Names>
class CopySet : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(CopySet, AllNames);

TYPED_TEST(CopySet, CopyMovesSamples) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::copies()) {
        constexpr int width = 37, height = 3;
        GuardedImage<T> src(width, height, form.from, {13}), dst(width, height, form.to, {7, Edge::Start, 1});
        GuardedImage<T> old(width, height, form.to);
        randomBits(src, 1);
        old.copySamplesFrom(randomBits(dst, 99));
        EXPECT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size()), tpxOk);
        EXPECT_TRUE(matches(dst, [&](int x, int y, int c) {
            return form.keepsAlpha && c == 3 ? old.at(x, y, 3) : src.at(x, y, c);
        })) << form.name;
    }
}

TYPED_TEST(CopySet, SetReadsNoMoreValuesThanTheLayoutComputes) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::sets()) {
        GuardedImage<T> value(form.values, 1, 1);
        randomBits(value, 5);
        GuardedImage<T> dst(37, 3, form.channels, {13}), old(37, 3, form.channels);
        old.copySamplesFrom(randomBits(dst, 7));
        EXPECT_EQ(form.run(value.data(), dst.data(), dst.step(), dst.size()), tpxOk);
        EXPECT_TRUE(matches(dst, [&](int x, int y, int c) {
            return c < form.values ? value.at(c, 0) : old.at(x, y, c);
        })) << form.name;
    }
}

TYPED_TEST(CopySet, ZeroAndNegativeStepsWalkTheMemoryAsGiven) {
    using T = typename TypeParam::T;
    const T rows[3][2] = {{1, 2}, {3, 4}, {5, 6}};
    T out[3][2] = {};
    const auto copy = TypeParam::copies()[0].run;
    constexpr int step = 2 * int(sizeof(T));
    EXPECT_EQ(copy(rows[2], -step, out[0], step, {2, 3}), tpxOk);
    EXPECT_EQ(out[0][0], T(5));
    EXPECT_EQ(out[2][1], T(2));
    EXPECT_EQ(copy(rows[0], step, out[0], 0, {2, 3}), tpxOk);
    EXPECT_EQ(out[0][1], T(6));
    const T value = 8;
    EXPECT_EQ(TypeParam::sets()[0].run(&value, out[2], -step, {1, 3}), tpxOk);
    EXPECT_EQ(out[0][0], T(8));
    EXPECT_EQ(out[1][1], T(4));
    EXPECT_EQ(out[2][0], T(8));
}

} // namespace
