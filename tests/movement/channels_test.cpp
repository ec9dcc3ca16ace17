// SPDX-License-Identifier: Apache-2.0
// Single channels, planes, duplicates; the copies with 64-bit sizes and with flags.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <memory>

#include "tests/support/samples.h"

namespace {

using namespace tpx::test;

template <class T>
struct CopyForm {
    const char* name;
    int from, to;
    TpxStatus (*run)(const T*, int, T*, int, TpxiSize);
};
template <class T>
struct SetForm {
    int channels;
    TpxStatus (*run)(T, T*, int, TpxiSize);
};
template <class T>
struct PlanesForm {
    int channels;
    TpxStatus (*split)(const T*, int, T* const*, int, TpxiSize);
    TpxStatus (*join)(const T* const*, int, T*, int, TpxiSize);
};

#define NAMES(t)                                                                                     \
    struct Names##t {                                                                                \
        using T = Tpx##t;                                                                            \
        static constexpr CopyForm<T> channel[] = {                                                   \
            {"C3C", 3, 3, tpxiCopy_##t##_C3CR},   {"C4C", 4, 4, tpxiCopy_##t##_C4CR},                \
            {"C3C1", 3, 1, tpxiCopy_##t##_C3C1R}, {"C4C1", 4, 1, tpxiCopy_##t##_C4C1R},              \
            {"C1C3", 1, 3, tpxiCopy_##t##_C1C3R}, {"C1C4", 1, 4, tpxiCopy_##t##_C1C4R}};             \
        static constexpr SetForm<T> set[] = {{3, tpxiSet_##t##_C3CR}, {4, tpxiSet_##t##_C4CR}};      \
        static constexpr PlanesForm<T> planes[] = {{3, tpxiCopy_##t##_C3P3R, tpxiCopy_##t##_P3C3R},  \
                                                   {4, tpxiCopy_##t##_C4P4R, tpxiCopy_##t##_P4C4R}}; \
    };
NAMES(8u)
NAMES(16u)
NAMES(16s)
NAMES(32s)
NAMES(32f)

template <class Names>
class Channels : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(Channels, AllNames);

// The rows of one channel, from its first sample to its last: what lies outside is not the call's.
template <class T>
GuardedImage<T> channelOnly(int width, int height, int channels, Lie lie) {
    return {(width - 1) * channels + 1, height, 1, lie};
}

TYPED_TEST(Channels, OneChannelIsMovedAndNothingAroundItTouched) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::channel) {
        SCOPED_TRACE(form.name);
        sweepOddShapes([&](int width, Lie srcLie, Lie dstLie) {
            auto src = channelOnly<T>(width, 3, form.from, srcLie),
                 dst = channelOnly<T>(width, 3, form.to, dstLie);
            auto old = channelOnly<T>(width, 3, form.to, {});
            randomBits(src, unsigned(width));
            old.copySamplesFrom(randomBits(dst, 99));
            ASSERT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), {width, 3}), tpxOk);
            ASSERT_TRUE(matches(dst, [&](int x, int y, int) {
                return x % form.to ? old.at(x, y) : src.at(x / form.to * form.from, y);
            }));
        });
    }
    for (const auto& form : TypeParam::set)
        sweepOddShapes([&](int width, Lie, Lie lie) {
            auto dst = channelOnly<T>(width, 3, form.channels, lie),
                 old = channelOnly<T>(width, 3, form.channels, {});
            old.copySamplesFrom(randomBits(dst, 9));
            const T value = old.at(0, 1);
            ASSERT_EQ(form.run(value, dst.data(), dst.step(), {width, 3}), tpxOk);
            ASSERT_TRUE(
                matches(dst, [&](int x, int y, int) { return x % form.channels ? old.at(x, y) : value; }));
        });
}

TYPED_TEST(Channels, BetweenChannelsOfOneImage) {
    using T = typename TypeParam::T;
    for (int width : {1, 5, 16, 37}) {
        GuardedImage<T> image(width, 2, 3), old(width, 2, 3);
        old.copySamplesFrom(randomBits(image, 3));
        ASSERT_EQ(
            TypeParam::channel[0].run(image.data() + 2, image.step(), image.data(), image.step(), {width, 2}),
            tpxOk);
        ASSERT_TRUE(matches(image, [&](int x, int y, int c) { return old.at(x, y, c == 0 ? 2 : c); }));
    }
}

TYPED_TEST(Channels, PlanesOfEveryShapeAndBack) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::planes)
        sweepOddShapes([&](int width, Lie srcLie, Lie dstLie) {
            const int n = form.channels;
            GuardedImage<T> pixels(width, 3, n, srcLie), back(width, 3, n, dstLie);
            randomBits(pixels, unsigned(width));
            std::vector<std::unique_ptr<GuardedImage<T>>> planes;
            std::vector<T*> pointers;
            for (int c = 0; c < n; c++) { // apart by odd numbers of bytes
                const Lie lie{dstLie.padding, dstLie.edge, dstLie.misalign + c * srcLie.misalign};
                planes.push_back(std::make_unique<GuardedImage<T>>(width, 3, 1, lie));
                pointers.push_back(planes.back()->data());
            }
            const int step = planes[0]->step();
            ASSERT_EQ(form.split(pixels.data(), pixels.step(), pointers.data(), step, {width, 3}), tpxOk);
            for (int c = 0; c < n; c++)
                ASSERT_TRUE(matches(*planes[size_t(c)], [&](int x, int y, int) { return pixels.at(x, y, c); }));
            ASSERT_EQ(form.join(pointers.data(), step, back.data(), back.step(), {width, 3}), tpxOk);
            ASSERT_TRUE(matches(back, [&](int x, int y, int c) { return pixels.at(x, y, c); }));
        });
}

TYPED_TEST(Channels, EveryPlaneIsNeeded) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::planes)
        for (int missing = 0; missing < form.channels; missing++) {
            T pixel[4] = {1, 2, 3, 4};
            T* planes[4] = {pixel, pixel + 1, pixel + 2, pixel + 3};
            planes[missing] = nullptr;
            EXPECT_EQ(form.split(pixel, 16, planes, 4, {0, 1}), tpxErrNullPointer);
            EXPECT_EQ(form.join(planes, 4, pixel, 16, {0, 1}), tpxErrNullPointer);
        }
}

TEST(Dup, EveryChannelIsTheSample) {
    const CopyForm<Tpx8u> forms[] = {{"C1C3", 1, 3, tpxiDup_8u_C1C3R}, {"C1C4", 1, 4, tpxiDup_8u_C1C4R}};
    for (const auto& form : forms) {
        GuardedImage<Tpx8u> src(37, 3, 1), dst(37, 3, form.to, {1});
        src.randomise(1);
        EXPECT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), {37, 3}), tpxOk);
        EXPECT_TRUE(matches(dst, [&](int x, int y, int) { return src.at(x, y); }));
    }
}

// Flags say how, not what; unknown ones say nothing.
TEST(CopyManaged, EveryFlagMovesTheSameBytes) {
    for (int flags : {0, 1, 2, 3, 4, -1})
        for (int width : {1, 63, 64, 65, 127, 128, 191, 300, 4096, 20011})
            for (const Lie& lie : {Lie{}, Lie{13, Edge::Start, 5}}) {
                GuardedImage<Tpx8u> src(width, 3, 1, lie),
                    dst(width, 3, 1, {lie.padding, Edge::End, width % 64});
                src.randomise(unsigned(width));
                ASSERT_EQ(
                    tpxiCopyManaged_8u_C1R(src.data(), src.step(), dst.data(), dst.step(), {width, 3}, flags),
                    tpxOk);
                ASSERT_TRUE(matches(dst, [&](int x, int y, int) { return src.at(x, y); }));
            }
}

template <class T>
void copyRowsFarApart(TpxStatus (*copy)(const T*, TpxSizeL, T*, TpxSizeL, TpxiSizeL), int channels,
                      bool keepsAlpha) {
    constexpr TpxSizeL step = (TpxSizeL(1) << 32) + 4099; // more than 32 bits, odd
    const size_t bytes = size_t(step) + (1 << 16);
    const auto map = [&] {
        return static_cast<Tpx8u*>(
            mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    };
    Tpx8u *src = map(), *dst = map();
    ASSERT_NE(static_cast<void*>(src), MAP_FAILED);
    ASSERT_NE(static_cast<void*>(dst), MAP_FAILED);
    const int width = 301, row = width * channels * int(sizeof(T));
    for (TpxSizeL y : {0, 1})
        for (int i = 0; i < row; i++) {
            src[y * step + i] = Tpx8u(i * 7 + y);
            dst[y * step + i] = 0xEE;
        }
    ASSERT_EQ(copy(reinterpret_cast<T*>(src), step, reinterpret_cast<T*>(dst), step, {width, 2}), tpxOk);
    for (TpxSizeL y : {0, 1}) {
        for (int i = 0; i < row; i++) {
            const bool kept = keepsAlpha && i / int(sizeof(T)) % 4 == 3;
            ASSERT_EQ(dst[y * step + i], kept ? 0xEE : Tpx8u(i * 7 + y)) << y << " " << i;
        }
        EXPECT_EQ(dst[y * step + row], 0);
    }
    T* const s = reinterpret_cast<T*>(src);
    EXPECT_EQ(copy(nullptr, 1, s, 1, {0, 1}), tpxErrNullPointer);
    EXPECT_EQ(copy(s, 1, nullptr, 1, {0, 1}), tpxErrNullPointer);
    EXPECT_EQ(copy(s, 1, s, 1, {-(TpxSizeL(1) << 32) + 1, 1}), tpxErrSize);
    EXPECT_EQ(copy(s, 1, s, 1, {1, TpxSizeL(-1) << 40}), tpxErrSize);
    munmap(src, bytes);
    munmap(dst, bytes);
}

TEST(CopyLong, StepsAndSizesAreNotCutTo32Bits) {
    copyRowsFarApart(tpxiCopy_8u_C1R_L, 1, false);
    copyRowsFarApart(tpxiCopy_8u_C3R_L, 3, false);
    copyRowsFarApart(tpxiCopy_8u_C4R_L, 4, false);
    copyRowsFarApart(tpxiCopy_8u_AC4R_L, 4, true);
    copyRowsFarApart(tpxiCopy_32f_C1R_L, 1, false);
    copyRowsFarApart(tpxiCopy_32f_C3R_L, 3, false);
    copyRowsFarApart(tpxiCopy_32f_C4R_L, 4, false);
    copyRowsFarApart(tpxiCopy_32f_AC4R_L, 4, true);
}

} // namespace
