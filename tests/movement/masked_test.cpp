// SPDX-License-Identifier: Apache-2.0
// Copy and set under a mask.
#include <gtest/gtest.h>

#include "tests/support/samples.h"

namespace {

using namespace tpx::test;

template <class T>
struct Form {
    const char* name;
    int channels, values; // stored, changed
    TpxStatus (*copy)(const T*, int, T*, int, TpxiSize, const Tpx8u*, int);
    TpxStatus (*set)(const T*, T*, int, TpxiSize, const Tpx8u*, int);
};

#define NAMES(t)                                                                                    \
    struct Names##t {                                                                               \
        using T = Tpx##t;                                                                           \
        static constexpr Form<T> forms[] = {                                                        \
            {"C1", 1, 1, tpxiCopy_##t##_C1MR,                                                       \
             [](const T* v, T* d, int ds, TpxiSize z, const Tpx8u* m, int ms) {                     \
                 return v ? tpxiSet_##t##_C1MR(*v, d, ds, z, m, ms) : TpxStatus(tpxErrNullPointer); \
             }},                                                                                    \
            {"C3", 3, 3, tpxiCopy_##t##_C3MR, tpxiSet_##t##_C3MR},                                  \
            {"C4", 4, 4, tpxiCopy_##t##_C4MR, tpxiSet_##t##_C4MR},                                  \
            {"AC4", 4, 3, tpxiCopy_##t##_AC4MR, tpxiSet_##t##_AC4MR}};                              \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32s)
NAMES(32f)

template <class Names>
class Masked : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(Masked, AllNames);

// Zero in half of the pixels; elsewhere every other value, not only 255.
void makeMask(GuardedImage<Tpx8u>& mask, unsigned seed) {
    std::mt19937 random(seed);
    mask.fill([&](int, int, int) { return random() % 2 ? 0 : 1 + random() % 255; });
}

TYPED_TEST(Masked, EveryShape) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::forms) {
        SCOPED_TRACE(form.name);
        GuardedImage<T> value(form.values, 1, 1);
        randomBits(value, 5);
        sweepOddShapes([&](int width, Lie srcLie, Lie dstLie) {
            GuardedImage<T> src(width, 3, form.channels, srcLie), dst(width, 3, form.channels, dstLie);
            GuardedImage<T> old(width, 3, form.channels);
            GuardedImage<Tpx8u> mask(width, 3, 1, {dstLie.padding, srcLie.edge, srcLie.misalign});
            makeMask(mask, unsigned(width));
            randomBits(src, unsigned(width));
            old.copySamplesFrom(randomBits(dst, 99));
            const auto expectIn = [&](auto changed) {
                return matches(dst, [&](int x, int y, int c) {
                    return mask.at(x, y) && c < form.values ? changed(x, y, c) : old.at(x, y, c);
                });
            };
            ASSERT_EQ(
                form.copy(src.data(), src.step(), dst.data(), dst.step(), dst.size(), mask.data(), mask.step()),
                tpxOk);
            ASSERT_TRUE(expectIn([&](int x, int y, int c) { return src.at(x, y, c); }));
            ASSERT_EQ(form.set(value.data(), dst.data(), dst.step(), dst.size(), mask.data(), mask.step()),
                      tpxOk);
            ASSERT_TRUE(expectIn([&](int, int, int c) { return value.at(c, 0); }));
        });
    }
}

} // namespace
