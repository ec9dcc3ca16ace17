// SPDX-License-Identifier: Apache-2.0
// Rows with margins of any width, against the rule of each coordinate.
#include "frame/images/padded_row.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace tpx {
namespace {

constexpr Tpx8u kUntouched = 0xEE;

// A row of `shape` between bytes that must survive; its own pixels are numbered, in another place or in theirs.
template <int PixelBytes>
struct Case {
    static constexpr ptrdiff_t kRoom = 40;

    RowShape shape;
    bool inPlace;
    std::vector<Tpx8u> memory, source;

    Case(RowShape row, bool isInPlace)
        : shape(row),
          inPlace(isInPlace),
          memory(size_t(row.pixels() * PixelBytes + 2 * kRoom), kUntouched),
          source(size_t(row.width * PixelBytes)) {
        for (size_t i = 0; i < source.size(); i++) source[i] = Tpx8u(i * 37 + 1);
        if (inPlace) std::memcpy(own(), source.data(), source.size());
    }
    Tpx8u* own() { return memory.data() + kRoom + shape.left * PixelBytes; }

    template <class Padded>
    void build(const Padded& padded) {
        padded.build(inPlace ? own() : source.data(), own(), [&] {
            if (!inPlace) std::memcpy(own(), source.data(), source.size());
        });
    }
    // expected(c) gives the bytes of the pixel at coordinate c.
    template <class Expected>
    void check(Expected expected) {
        for (ptrdiff_t c = -shape.left; c < shape.width + shape.right; c++)
            ASSERT_EQ(std::memcmp(own() + c * PixelBytes, expected(c), PixelBytes), 0)
                << PixelBytes << " bytes, coordinate " << c << " of " << shape.left << "+" << shape.width << "+"
                << shape.right;
        for (ptrdiff_t i = 0; i < kRoom; i++) {
            ASSERT_EQ(memory[size_t(i)], kUntouched);
            ASSERT_EQ(memory[memory.size() - 1 - size_t(i)], kUntouched);
        }
    }
};

// Margins shorter and longer than the row, a register and the rule's period.
template <int PixelBytes, class Body>
void forShapes(Body body) {
    for (ptrdiff_t width : {1, 2, 3, 5, 7, 8, 15, 16, 17, 33, 70})
        for (ptrdiff_t left : {0, 1, 2, 4, 6, 15, 16, 17, 40, 150})
            for (ptrdiff_t right : {ptrdiff_t(0), left, left / 2 + 1, ptrdiff_t(23)})
                for (bool inPlace : {false, true}) body(Case<PixelBytes>({left, width, right}, inPlace));
}

template <Border B, int PixelBytes>
void checkRule() {
    forShapes<PixelBytes>([](Case<PixelBytes> test) {
        test.build(RulePaddedRow<B, PixelBytes>(test.shape));
        test.check([&](ptrdiff_t c) {
            return test.source.data() + borderSource<B>(c, test.shape.width) * PixelBytes;
        });
    });
}
template <int PixelBytes>
void checkAll() {
    checkRule<Border::Replicate, PixelBytes>();
    checkRule<Border::Mirror, PixelBytes>();
    checkRule<Border::Wrap, PixelBytes>();
    const Tpx8u pixel[16] = {201, 202, 203, 204, 205, 206, 207, 208, 209, 210, 211, 212, 213, 214, 215, 216};
    forShapes<PixelBytes>([&](Case<PixelBytes> test) {
        const RowShape& row = test.shape;
        const ConstantPaddedRow<PixelBytes> padded(row, pixel);
        test.build(padded);
        test.check(
            [&](ptrdiff_t c) { return c < 0 || c >= row.width ? pixel : test.source.data() + c * PixelBytes; });
        padded.fill(test.own());
        test.check([&](ptrdiff_t) { return pixel; });
    });
}

TEST(PaddedRow, EveryPixelComesFromWhereTheRuleSays) {
    checkAll<1>();
    checkAll<2>();
    checkAll<3>();
    checkAll<4>();
    checkAll<6>();
    checkAll<8>();
    checkAll<12>();
    checkAll<16>();
}

} // namespace
} // namespace tpx
