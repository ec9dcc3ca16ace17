// SPDX-License-Identifier: Apache-2.0
// Views, images, buffers and errors of tpxi.hpp.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <tpxi.hpp>

using namespace tpxi;

// What the types refuse and promise by themselves.
static_assert(std::is_trivially_copyable_v<View<Tpx8u, C3>>);
static_assert(std::is_convertible_v<View<Tpx8u, C3>, View<const Tpx8u, C3>>);
static_assert(!std::is_convertible_v<View<const Tpx8u, C3>, View<Tpx8u, C3>>);
static_assert(!std::is_convertible_v<View<Tpx8u, C3>, View<Tpx8u, C4>>);
static_assert(std::is_convertible_v<Image<Tpx8u, C3>&, View<Tpx8u, C3>>);
static_assert(std::is_convertible_v<const Image<Tpx8u, C3>&, View<const Tpx8u, C3>>);
static_assert(!std::is_convertible_v<const Image<Tpx8u, C3>&, View<Tpx8u, C3>>);
static_assert(!std::is_copy_constructible_v<Image<Tpx8u, C3>> && !std::is_copy_constructible_v<Buffer>);
static_assert(std::is_nothrow_move_constructible_v<Image<Tpx8u, C3>> &&
              std::is_nothrow_move_assignable_v<Image<Tpx8u, C3>>);
static_assert(std::is_nothrow_move_constructible_v<Buffer> && std::is_nothrow_move_assignable_v<Buffer>);
static_assert(std::is_nothrow_destructible_v<Image<Tpx64f, C1>> && std::is_nothrow_destructible_v<Buffer>);

namespace {

template <class Body>
void expectError(TpxStatus code, const char* what, Body body) {
    try {
        body();
        FAIL() << "nothing thrown, not " << what;
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), code);
        EXPECT_STREQ(error.what(), what);
        EXPECT_STREQ(error.name(), tpxStatusName(code));
        EXPECT_STREQ(error.text(), tpxStatusText(code));
    }
}

// Memory of any sample type has rows on 64 bytes, room for its samples, and moves without being copied.
template <class Sample, int layout>
void expectImage() {
    Image<Sample, layout> image(37, 5);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(image.data()) % 64, 0U);
    EXPECT_EQ(image.step() % 64, 0);
    EXPECT_GE(image.step(), 37 * layout * static_cast<int>(sizeof(Sample)));
    EXPECT_EQ(reinterpret_cast<char*>(image.row(4)) - reinterpret_cast<char*>(image.data()), 4 * image.step());
    for (int y = 0; y < 5; ++y)
        for (int i = 0; i < 37 * layout; ++i) image.row(y)[i] = Sample{}; // a sanitizer watches

    Sample* const data = image.data();
    Image<Sample, layout> taken(std::move(image));
    EXPECT_EQ(taken.data(), data);
    EXPECT_EQ(image.data(), nullptr);
    EXPECT_EQ(image.width(), 0);
    Image<Sample, layout> other(8, 8);
    other = std::move(taken);
    EXPECT_EQ(other.data(), data);
    EXPECT_EQ(other.width(), 37);
    EXPECT_EQ(taken.data(), nullptr);
}

} // namespace

TEST(CppImage, OwnsItsMemory) {
    expectImage<Tpx8u, C1>();
    expectImage<Tpx8s, C3>();
    expectImage<Tpx16s, C2>();
    expectImage<Tpx32u, C4>();
    expectImage<Tpx32f, C3>();
    expectImage<Tpx64f, C4>();
    expectImage<Tpx32fc, C1>();

    const Image<Tpx8u, C1> none;
    EXPECT_EQ(none.data(), nullptr);
    EXPECT_EQ(none.view().data(), nullptr);
}

TEST(CppImage, RefusesSizes) {
    expectError(tpxErrSize,
                "Image: tpxErrSize (-6): width or height below 1, or sizes that do not fit together",
                [] { Image<Tpx8u, C3>(0, 4); });
    expectError(tpxErrMemAlloc, "Image: tpxErrMemAlloc (-9): a work buffer could not be had",
                [] { Image<Tpx32f, C4>(1 << 27, 1 << 20); });
}

TEST(CppImage, SubViews) {
    Image<Tpx16u, C3> image(20, 10);
    const View<Tpx16u, C3> part = image.sub(4, 3, 16, 7);
    EXPECT_EQ(part.data(), image.row(3) + 4 * 3);
    EXPECT_EQ(part.step(), image.step());
    EXPECT_EQ(part.width(), 16);
    EXPECT_EQ(part.height(), 7);
    EXPECT_EQ(part.sub(1, 1, 2, 2).data(), image.row(4) + 5 * 3);
    EXPECT_EQ(part.pixel(2, 5), image.row(8) + 6 * 3);
    for (const TpxiRect r : {TpxiRect{-1, 0, 2, 2},
                             {0, -1, 2, 2},
                             {0, 0, 17, 1},
                             {0, 0, 1, 8},
                             {16, 0, 1, 1},
                             {1, 0, 2147483647, 1},
                             {0, 2147483647, 1, 1},
                             {0, 0, -1, 1}})
        expectError(tpxErrRect, "sub: tpxErrRect (-57): rectangle not accepted", [&] { part.sub(r); });

    // A view walks any step, downwards too.
    const View<Tpx16u, C3> flipped(image.row(9), -image.step(), image.size());
    EXPECT_EQ(flipped.row(9), image.row(0));
}

TEST(CppImage, CheckThrowsErrorsAlone) {
    EXPECT_EQ(check(tpxOk), tpxOk);
    EXPECT_EQ(check(tpxWarnLnZeroArg), tpxWarnLnZeroArg);
    expectError(tpxErrNullPointer, "tpxErrNullPointer (-8): a required pointer is null", [] {
        check(tpxiSet_8u_C1R(0, nullptr, 1, {1, 1}));
    });
    expectError(-12345, "here: unknown (-12345): no status of this library", [] { check(-12345, "here"); });
}

TEST(CppImage, Buffers) {
    Buffer buffer(100);
    EXPECT_EQ(buffer.size(), 100);
    Tpx8u* const data = buffer.data();
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(data) % 64, 0U);
    data[99] = 1;
    Buffer taken;
    taken = std::move(buffer);
    EXPECT_EQ(taken.data(), data);
    EXPECT_EQ(buffer.data(), nullptr);
    EXPECT_EQ(buffer.size(), 0);
    EXPECT_EQ(Buffer().data(), nullptr);
    EXPECT_NE(Buffer(0).data(), nullptr);
    EXPECT_THROW(Buffer{-1}, Error);
    EXPECT_THROW(Buffer{std::numeric_limits<TpxSizeL>::max()}, Error);
}
