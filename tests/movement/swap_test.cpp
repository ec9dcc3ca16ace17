// SPDX-License-Identifier: Apache-2.0
// tpxiSwapChannels: every order, every shape, and the three orders of checks.
#include <gtest/gtest.h>

#include "tests/support/checks.h"
#include "tests/support/samples.h"

namespace {

using namespace tpx::test;

enum class Checks { SizeThenStep, StepThenSize, StepThenSizeThenOrder };

template <class T>
struct Form {
    const char* name;
    int from, to, entries, bound;
    TpxStatus (*run)(const T*, int, T*, int, TpxiSize, const int*);
    Checks checks;
};

#define NAMES(t, checksOfC3)                                                                \
    struct Names##t {                                                                       \
        using T = Tpx##t;                                                                   \
        static constexpr Form<T> plain[] = {                                                \
            {"C3", 3, 3, 3, 3, tpxiSwapChannels_##t##_C3R, Checks::checksOfC3},             \
            {"C4", 4, 4, 4, 4, tpxiSwapChannels_##t##_C4R, Checks::StepThenSizeThenOrder},  \
            {"C4C3", 4, 3, 3, 4, tpxiSwapChannels_##t##_C4C3R, Checks::SizeThenStep}};      \
        static constexpr Form<T> ac4 = {                                                    \
            "AC4", 4, 4, 3, 3, tpxiSwapChannels_##t##_AC4R, Checks::StepThenSizeThenOrder}; \
        static constexpr auto c3c4 = tpxiSwapChannels_##t##_C3C4R;                          \
    };
NAMES(8u, SizeThenStep)
NAMES(16u, SizeThenStep)
NAMES(16s, SizeThenStep)
NAMES(32s, SizeThenStep)
NAMES(32f, StepThenSizeThenOrder)

template <class Names>
class Swap : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(Swap, AllNames);

// Order number `n` of `entries` entries below `bound`, in memory that ends behind the last entry.
struct Order {
    Order(int n, int entries, int bound) : image(entries, 1, 1) {
        for (int k = 0; k < entries; k++, n /= bound) image.set(k, 0, 0, n % bound);
    }
    static int count(int entries, int bound) {
        int n = 1;
        while (entries--) n *= bound;
        return n;
    }
    const int* data() const { return image.data(); }
    int operator[](int k) const { return image.at(k, 0); }
    GuardedImage<int> image;
};

TYPED_TEST(Swap, EveryOrder) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::plain) {
        SCOPED_TRACE(form.name);
        const auto expectRight = [&](int n) {
            const Order order(n, form.entries, form.bound);
            GuardedImage<T> src(21, 2, form.from), dst(21, 2, form.to);
            randomBits(src, unsigned(n));
            ASSERT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size(), order.data()),
                      tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int c) { return src.at(x, y, order[c]); })) << n;
        };
        const int orders = Order::count(form.entries, form.bound);
        for (int n = 0; n < orders; n++) expectRight(n);
    }
}

// Fourth channels of whole blocks are cleared, in each row anew; the others stay.
TYPED_TEST(Swap, AlphaOfBlocks) {
    using T = typename TypeParam::T;
    const int block = 16 / int(sizeof(T));
    const auto& form = TypeParam::ac4;
    sweepOddShapes([&](int width, Lie srcLie, Lie dstLie) {
        const Order order(width % 27, 3, 3);
        GuardedImage<T> src(width, 3, 4, srcLie), dst(width, 3, 4, dstLie), old(width, 3, 4);
        randomBits(src, unsigned(width));
        old.copySamplesFrom(randomBits(dst, 99));
        ASSERT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size(), order.data()), tpxOk);
        ASSERT_TRUE(matches(dst, [&](int x, int y, int c) {
            return c < 3 ? src.at(x, y, order[c]) : x < width - width % block ? T(0) : old.at(x, y, 3);
        }));
    });
}

// Entries of an order to four channels: a source channel, 3 the constant, larger ones keep.
TYPED_TEST(Swap, ThreeChannelsToFour) {
    using T = typename TypeParam::T;
    constexpr int kEntries[] = {0, 1, 2, 3, 4, 0x7FFFFFFF};
    for (int n = 0; n < Order::count(4, 6); n++) {
        const Order digits(n, 4, 6);
        int order[4];
        for (int k = 0; k < 4; k++) order[k] = kEntries[digits[k]];
        GuardedImage<T> src(17, 2, 3), dst(17, 2, 4), old(17, 2, 4);
        randomBits(src, unsigned(n));
        old.copySamplesFrom(randomBits(dst, 99));
        const T val = old.at(0, 0, 2);
        ASSERT_EQ(TypeParam::c3c4(src.data(), src.step(), dst.data(), dst.step(), dst.size(), order, val),
                  tpxOk);
        ASSERT_TRUE(matches(dst, [&](int x, int y, int c) {
            return order[c] < 3 ? src.at(x, y, order[c]) : order[c] == 3 ? val : old.at(x, y, c);
        })) << n;
    }
}

// The in-place forms, and the form with two images given one.
TEST(SwapInPlace, EveryOrder) {
    const auto expectRight = [](int n, int channels, auto run) {
        const Order order(n, channels, channels);
        GuardedImage<Tpx8u> image(37, 3, channels, {1}), old(37, 3, channels);
        old.copySamplesFrom(randomBits(image, unsigned(n)));
        ASSERT_EQ(run(image.data(), image.step(), image.size(), order.data()), tpxOk);
        ASSERT_TRUE(matches(image, [&](int x, int y, int c) { return old.at(x, y, order[c]); })) << n;
    };
    const auto same = [](Tpx8u* p, int step, TpxiSize size, const int* order) {
        return tpxiSwapChannels_8u_C3R(p, step, p, step, size, order);
    };
    for (int n = 0; n < 27; n++) {
        expectRight(n, 3, tpxiSwapChannels_8u_C3IR);
        expectRight(n, 3, same);
    }
    for (int n = 0; n < 256; n++) expectRight(n, 4, tpxiSwapChannels_8u_C4IR);
}

template <class T>
struct SwapArgs {
    T src[4] = {1, 2, 3, 4}, dst[4] = {9, 9, 9, 9};
    bool nullSrc = false, nullDst = false, nullOrder = false;
    int srcStep = 16, dstStep = 16;
    int order[4] = {2, 1, 0, 1};
    TpxiSize size = {1, 1};
};

// The faults in their order; an image in place has no source.
template <class T>
std::vector<Fault<SwapArgs<T>>> faults(Checks checks, int entries, int bound, bool inPlace = false) {
    using Args = SwapArgs<T>;
    std::vector<Fault<Args>> list;
    const auto pointer = [&](const char* name, bool Args::*p) {
        list.push_back({name, [p](Args& a) { a.*p = true; }, tpxErrNullPointer});
    };
    const auto order = [&] { pointer("order", &Args::nullOrder); };
    const auto sizes = [&] {
        list.push_back({"size", [](Args& a) { a.size.width = 0; }, tpxErrSize});
        list.push_back({"size", [](Args& a) { a.size.height = -1; }, tpxErrSize});
    };
    const auto steps = [&] {
        if (!inPlace) list.push_back({"source's step", [](Args& a) { a.srcStep = 0; }, tpxErrStep});
        list.push_back({"step", [](Args& a) { a.dstStep = 0; }, tpxErrStep});
    };
    if (!inPlace) pointer("source", &Args::nullSrc);
    pointer("destination", &Args::nullDst);
    if (checks != Checks::StepThenSizeThenOrder) order();
    if (checks == Checks::SizeThenStep) sizes();
    steps();
    if (checks != Checks::SizeThenStep) sizes();
    if (checks == Checks::StepThenSizeThenOrder) order();
    for (int k = 0; k < entries; k++)
        for (int bad : {-1, int(0x80000000), bound})
            if (bad < 0 || bound)
                list.push_back({"entry", [=](Args& a) { a.order[k] = bad; }, tpxErrChannelOrder});
    return list;
}

TYPED_TEST(Swap, OrderOfChecks) {
    using T = typename TypeParam::T;
    using Args = SwapArgs<T>;
    const auto expectOrder = [](Checks checks, int entries, int bound, auto run) {
        expectCheckOrder(Args{}, faults<T>(checks, entries, bound), [&](Args a) {
            const TpxStatus s = run(a.nullSrc ? nullptr : a.src, a.srcStep, a.nullDst ? nullptr : a.dst,
                                    a.dstStep, a.size, a.nullOrder ? nullptr : a.order);
            EXPECT_EQ(a.dst[0], T(9));
            return s;
        });
    };
    for (const auto& form : TypeParam::plain) expectOrder(form.checks, form.entries, form.bound, form.run);
    const auto& ac4 = TypeParam::ac4;
    expectOrder(ac4.checks, ac4.entries, ac4.bound, ac4.run);
    expectOrder(Checks::SizeThenStep, 4, 0, [](const T* s, int ss, T* d, int ds, TpxiSize z, const int* order) {
        return TypeParam::c3c4(s, ss, d, ds, z, order, T(1));
    });
}

TEST(SwapInPlace, OrderOfChecks) {
    using Args = SwapArgs<Tpx8u>;
    const auto call = [](auto run) {
        return [run](Args a) {
            return run(a.nullDst ? nullptr : a.dst, a.dstStep, a.size, a.nullOrder ? nullptr : a.order);
        };
    };
    expectCheckOrder(Args{}, faults<Tpx8u>(Checks::StepThenSizeThenOrder, 3, 3, true),
                     call(tpxiSwapChannels_8u_C3IR));
    expectCheckOrder(Args{}, faults<Tpx8u>(Checks::StepThenSize, 4, 4, true), call(tpxiSwapChannels_8u_C4IR));
}

} // namespace
