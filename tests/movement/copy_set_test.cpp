// tpxiCopy and tpxiSet of whole pixels through their exported names.
#include <gtest/gtest.h>
#include <tpxcore.h>

#include <cmath>

#include "tests/support/checks.h"
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

#define COPIES(T)                                                                     \
    {"C1", 1, 1, tpxiCopy_##T##_C1R, false}, {"C3", 3, 3, tpxiCopy_##T##_C3R, false}, \
        {"C4", 4, 4, tpxiCopy_##T##_C4R, false}, {                                    \
        "AC4", 4, 4, tpxiCopy_##T##_AC4R, true                                        \
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
    static std::vector<CopyForm<T>> copies() {
        return {COPIES(32f),
                {"AC4C3", 4, 3, tpxiCopy_32f_AC4C3R, false},
                {"C3AC4", 3, 4, tpxiCopy_32f_C3AC4R, true}};
    }
    static std::vector<SetForm<T>> sets() { return {SETS(32f)}; }
};

template <class Names>
class CopySet : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(CopySet, AllNames);

TYPED_TEST(CopySet, CopyEveryShape) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::copies()) {
        SCOPED_TRACE(form.name);
        sweepShapes([&](int width, Lie srcLie, Lie dstLie) {
            constexpr int height = 3;
            GuardedImage<T> src(width, height, form.from, srcLie), dst(width, height, form.to, dstLie);
            GuardedImage<T> old(width, height, form.to);
            randomBits(src, unsigned(width));
            old.copySamplesFrom(randomBits(dst, 99));
            EXPECT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size()), tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int c) {
                return form.keepsAlpha && c == 3 ? old.at(x, y, 3) : src.at(x, y, c);
            }));
        });
    }
}

TYPED_TEST(CopySet, SetEveryShapeReadingNoMoreValuesThanTheLayoutComputes) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::sets()) {
        SCOPED_TRACE(form.name);
        GuardedImage<T> value(form.values, 1, 1);
        randomBits(value, 5);
        sweepShapes([&](int width, Lie, Lie lie) {
            GuardedImage<T> dst(width, 3, form.channels, lie), old(width, 3, form.channels);
            old.copySamplesFrom(randomBits(dst, 7));
            EXPECT_EQ(form.run(value.data(), dst.data(), dst.step(), dst.size()), tpxOk);
            ASSERT_TRUE(matches(
                dst, [&](int x, int y, int c) { return c < form.values ? value.at(c, 0) : old.at(x, y, c); }));
        });
    }
}

TYPED_TEST(CopySet, OrderOfChecks) {
    using T = typename TypeParam::T;
    struct Args {
        T src[4] = {1, 2, 3, 4}, dst[4] = {9, 9, 9, 9};
        bool nullSrc = false, nullDst = false;
        TpxiSize size = {1, 1};
    };
    const std::vector<Fault<Args>> faults = {
        {"source", [](Args& a) { a.nullSrc = true; }, tpxErrNullPointer},
        {"destination", [](Args& a) { a.nullDst = true; }, tpxErrNullPointer},
        {"size", [](Args& a) { a.size.width = -1; }, tpxErrSize},
        {"size", [](Args& a) { a.size.height = 0; }, tpxErrSize}};
    for (const auto& form : TypeParam::copies())
        expectCheckOrder(Args{}, faults, [&](Args a) {
            const TpxStatus s =
                form.run(a.nullSrc ? nullptr : a.src, 16, a.nullDst ? nullptr : a.dst, 16, a.size);
            EXPECT_EQ(a.dst[0], T(9));
            return s;
        });
    for (const auto& form : TypeParam::sets())
        expectCheckOrder(Args{}, faults, [&](Args a) {
            return form.run(a.nullSrc ? nullptr : a.src, a.nullDst ? nullptr : a.dst, 16, a.size);
        });
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

// The switch between plain and traffic-aware copies, and images beyond the largest cache where that is small
// enough to be gone beyond: the same bytes on every path.
TEST(CopySetLarge, EveryPathMovesTheSameBytes) {
    int cache = 0;
    const bool known = tpxGetMaxCacheSizeB(&cache) == tpxOk && cache <= (1 << 29);
    for (int width : {1023, 1024, 1025, 40001}) {
        const int height = known && width == 40001 ? cache / 40001 + 2 : 9;
        for (int padding : {0, 13}) {
            GuardedImage<Tpx8u> src(width, height, 1, {padding}),
                dst(width, height, 1, {padding, Edge::Start, 3});
            for (int y = 0; y < height; y++)
                for (int x = 0; x < width; x += 7) src.set(x, y, 0, Tpx8u(x * 31 + y));
            EXPECT_EQ(tpxiCopy_8u_C1R(src.data(), src.step(), dst.data(), dst.step(), dst.size()), tpxOk);
            for (int y = 0; y < height; y++)
                ASSERT_EQ(std::memcmp(src.data() + ptrdiff_t(y) * src.step(),
                                      dst.data() + ptrdiff_t(y) * dst.step(), size_t(width)),
                          0)
                    << width << " row " << y;
            EXPECT_TRUE(dst.paddingIntact());

            const Tpx8u colour[3] = {1, 2, 3};
            const int pixels = width / 3;
            EXPECT_EQ(tpxiSet_8u_C3R(colour, dst.data(), dst.step(), {pixels, height}), tpxOk);
            for (int y = 0; y < height; y++)
                for (int x = 0; x < pixels * 3; x++)
                    ASSERT_EQ(dst.at(x, y), x % 3 + 1) << width << " row " << y << " sample " << x;
            EXPECT_TRUE(dst.paddingIntact());
            EXPECT_EQ(dst.at(width - 1, 0), width % 3 ? src.at(width - 1, 0) : 3);
        }
    }
}

} // namespace
