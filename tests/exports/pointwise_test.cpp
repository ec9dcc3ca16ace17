// SPDX-License-Identifier: Apache-2.0
// Every form of a pointwise operation gives what its plainest form gives of every sample alone: in all layouts,
// in place, with 64-bit sizes, under every mask, however the images lie.
#include <algorithm>

#include "tests/exports/images.h"

namespace {

using namespace tpx::test;

constexpr int kHeight = 3, kMostColumns = 257;

// The shortest form of one channel from images to an image, if there is one; else what is nearest to it.
const Export& plainest(const Export& e) {
    std::string outOfPlace = e.flags;
    if (e.isInPlace()) outOfPlace.erase(outOfPlace.find('I'), 1);
    const std::string stem = "tpxi" + e.operation + "_" + e.types + "_";
    for (const std::string& layout :
         {e.from == e.to && e.layout.size() < 4 ? std::string("C1") : e.layout, e.layout})
        for (const std::string& flags : {outOfPlace, e.flags})
            if (const Export* found = findExport(stem + layout + flags)) return *found;
    return e;
}

// What a call leaves in the destination, sample by sample. `images` has the sources' content and the
// destination's.
void expect(const Export& e, const Export& plain, Content (&images)[kSides], int width, int variant) {
    Places whole;
    for (int side = 0; side < kSides; side++) whole.of[side] = images[side].place();
    // In place the destination is the last source. A function of one channel is called for each.
    Content old = images[kDst];
    Side like[kSides] = {kFirst, kSecond, kMask, kDst}; // whose pixels an image has
    if (e.isInPlace() && !plain.isInPlace()) {
        const Side side = imageParam(plain, kSecond) ? kSecond : kFirst;
        whole[side] = old.place();
        like[side] = kDst;
    }
    const bool isAlone = plain.from == 1 && plain.to == 1 && !e.layout.starts_with("C1");
    const int channels = !isAlone ? 1 : e.keepsAlpha() ? 3 : e.to;
    for (int y = 0; y < kHeight; y++)
        for (int x = 0; x < width; x++)
            for (int c = 0; c < channels; c++) {
                Places one = whole;
                int bit = -1;
                for (Side side : {kFirst, kSecond, kMask, kDst}) {
                    const int bits = bitsPerPixel(e, like[side]);
                    const int at = bits == 1 ? bitOffset(variant) % 8 + x : x * bits;
                    if (bits == 1) bit = at % 8;
                    one[side].data +=
                        y * one[side].step + at / 8 + (side == kMask || !isAlone ? 0 : c * bits / 8 / e.to);
                }
                ASSERT_GE(call(plain, one, 1, 1, variant, nullptr, c, bit), tpxOk) << plain.name;
            }
}

// Images are laid into memory that is kept, since to ask for guarded memory costs more than most calls.
class Room {
 public:
    // Shows `width` columns of the content.
    Place lay(const Export& e, Side side, const Content& content, int width, int variant, const Lie& lie) {
        row_ = rowBytes(e, side, width, variant);
        step_ = row_ + lie.padding;
        rows_ = content.rows();
        const size_t bytes = size_t(step_) * size_t(rows_ - 1) + size_t(row_);
        at_ = lie.edge == Edge::Start ? memory_.data() + lie.misalign
                                      : memory_.data() + memory_.size() - bytes - size_t(lie.misalign);
        std::memset(memory_.data(), kAround, memory_.size());
        for (int y = 0; y < rows_; y++) std::memcpy(at_ + y * step_, content.row(y), size_t(row_));
        return {at_, step_, ptrdiff_t(step_) * rows_ / planesOf(e, side)};
    }
    // Whether the rows show `content` and nothing around them has changed.
    bool shows(const Content& content) const {
        const auto untouched = [](const Tpx8u* from, const Tpx8u* to) {
            return std::all_of(from, to, [](Tpx8u v) { return v == kAround; });
        };
        const Tpx8u* before = memory_.data();
        for (int y = 0; y < rows_; y++) {
            const Tpx8u* const row = at_ + y * step_;
            if (!untouched(before, row) || std::memcmp(row, content.row(y), size_t(row_)) != 0) return false;
            before = row + row_;
        }
        return untouched(before, memory_.data() + memory_.size());
    }

 private:
    GuardedBytes memory_{1 << 14};
    Tpx8u* at_;
    int row_, step_, rows_;
};

class Pointwise : public testing::TestWithParam<std::string> {
 protected:
    // One form with one set of arguments, at all widths and in all ways of lying.
    void sweep(const Export& e, int variant) {
        const Export& plain = plainest(e);
        Content images[kSides] = {{e, kFirst, kMostColumns, kHeight, variant},
                                  {e, kSecond, kMostColumns, kHeight, variant},
                                  {e, kMask, kMostColumns, kHeight, variant},
                                  {e, kDst, kMostColumns, kHeight, variant}};
        const Content old = images[kDst];
        expect(e, plain, images, kMostColumns, variant);
        if (HasFatalFailure()) return;
        const Content& expected = images[kDst];
        for (int width = 1; width <= kMostColumns; width += width < 40 ? 1 : width % 16 == 1 ? 14 : 1) {
            if (width > 70 && width % 64 > 1 && width % 64 < 63 && width != kMostColumns) continue;
            for (int lie = 0; lie < 3; lie++) checkLie(e, images, old, expected, width, variant, lie);
            if (HasFailure()) return;
        }
    }

 private:
    void checkLie(const Export& e, const Content (&images)[kSides], const Content& old, const Content& expected,
                  int width, int variant, int lie) {
        // Absolute values, squares and roots round steps down to whole samples.
        const bool mayBeOdd = e.operation != "Abs" && e.operation != "Sqr" && e.operation != "Sqrt";
        const int unit = mayBeOdd ? 1 : 4;
        const Lie from[] = {{}, {7 * unit, Edge::End, 3 * unit}, {16, Edge::Start, 8}};
        const Lie to[] = {{},
                          {unit * (width % 5), Edge::Start, unit * (width % 17)},
                          {24, width % 2 ? Edge::End : Edge::Start, 4 * (width % 3)}};
        Places places{};
        // Rows are joined only if those of every image follow each other without a gap.
        for (Side side : kSources)
            if (imageParam(e, side))
                places[side] = rooms_[side].lay(e, side, images[side], width, variant,
                                                from[side == kMask ? (lie + width % 2) % 3 : lie]);
        places[kDst] = rooms_[kDst].lay(e, kDst, old, width, variant, to[lie]);
        const TpxStatus status = call(e, places, width, kHeight, variant);
        const char* wrong = status < tpxOk ? "fails" : nullptr;
        if (!rooms_[kDst].shows(bitsPerPixel(e, kDst) == 1 ? firstBits(expected, old, width, variant)
                                                           : expected))
            wrong = "differs from its samples, or writes outside the image";
        for (Side side : kSources)
            if (imageParam(e, side) && !rooms_[side].shows(images[side])) wrong = "changes a source";
        if (wrong)
            ADD_FAILURE() << e.name << " " << wrong << ": width " << width << ", lie " << lie << ", arguments "
                          << variant << ", status " << status;
    }

    // The byte in which a row of bits ends keeps the bits behind.
    static Content firstBits(Content expected, const Content& old, int width, int variant) {
        const int end = bitOffset(variant) % 8 + width;
        for (int y = 0; y < kHeight; y++)
            if (const Tpx8u kept = Tpx8u(0xFF << end % 8); end % 8)
                expected.row(y)[end / 8] =
                    Tpx8u((old.row(y)[end / 8] & kept) | (expected.row(y)[end / 8] & ~kept));
        return expected;
    }

    Room rooms_[kSides];
};

TEST_P(Pointwise, EveryFormGivesWhatItsSamplesGive) {
    for (const Export* e : callable(GetParam())) {
        // The fourth channel of a swap depends on the row; see swap_test.cpp.
        if (!imageParam(*e, kDst) || (e->operation == "SwapChannels" && e->keepsAlpha())) continue;
        for (int variant = 0; variant < variantsOf(*e); variant++) sweep(*e, variant);
        if (HasFailure()) return;
    }
}

std::vector<std::string> pointwiseOperations() {
    std::vector<std::string> list = operations();
    std::erase_if(list, [](const std::string& o) {
        return !imageParam(*callable(o)[0], kDst) || isBorder(*callable(o)[0]);
    });
    return list;
}
INSTANTIATE_TEST_SUITE_P(, Pointwise, testing::ValuesIn(pointwiseOperations()),
                         [](const auto& test) { return test.param; });

} // namespace
