// SPDX-License-Identifier: Apache-2.0
// Neighbourhood filters, read plainly: a source whose pixels beyond the region come from memory or from the
// border rule, and the sweep of borders, sides in memory, shapes and guard pages that every filter has to
// stand.
#pragma once

#include "tests/support/guarded.h"

namespace tpx::test {

template <class T>
constexpr TpxDataType typeOf() {
    return std::is_same_v<T, Tpx8u>    ? tpxDataType8u
           : std::is_same_v<T, Tpx16u> ? tpxDataType16u
           : std::is_same_v<T, Tpx16s> ? tpxDataType16s
                                       : tpxDataType32f;
}

struct FilterMask {
    int width, height;
    int left() const { return (width - 1) / 2; }
    int top() const { return (height - 1) / 2; }
    int right() const { return width - 1 - left(); }
    int bottom() const { return height - 1 - top(); }
};

// A region and its surroundings. Just the pixels that a filter may read are memory: those of the region, and as
// far as the mask reaches on the sides that the border word says.
template <class T>
class FilterSource {
 public:
    FilterSource(int width, int height, int channels, FilterMask mask, unsigned border, Lie lie, unsigned seed)
        : width_(width),
          height_(height),
          border_(border),
          left_(border & tpxBorderInMemLeft ? mask.left() : 0),
          top_(border & tpxBorderInMemTop ? mask.top() : 0),
          image_(width + left_ + (border & tpxBorderInMemRight ? mask.right() : 0),
                 height + top_ + (border & tpxBorderInMemBottom ? mask.bottom() : 0), channels, lie) {
        image_.randomise(seed);
        for (int c = 0; c < 4; c++) value[c] = T(17 + 50 * c);
    }

    const T* data() const {
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(image_.data()) +
                                          ptrdiff_t(top_) * image_.step()) +
               left_ * image_.channels();
    }
    int step() const { return image_.step(); }
    TpxiSize size() const { return {width_, height_}; }
    GuardedImage<T>& image() { return image_; }

    // The sample of the region's coordinates, which may lie outside it.
    T at(int x, int y, int c) const {
        const int kind = border_ & 15, ix = x + left_, iy = y + top_;
        const bool inside = ix >= 0 && ix < image_.width() && iy >= 0 && iy < image_.height();
        if (inside) return image_.at(ix, iy, c);
        if (kind == tpxBorderConstant) return value[c];
        return image_.at(source(ix, image_.width(), kind), source(iy, image_.height(), kind), c);
    }

    T value[4]; // of a constant border

 private:
    // Walks there step by step, turning around at the edges.
    static int source(int i, int n, int kind) {
        if (kind == tpxBorderReplicate) return i < 0 ? 0 : i >= n ? n - 1 : i;
        while (n > 1 && (i < 0 || i >= n)) i = i < 0 ? -i : 2 * (n - 1) - i;
        return n > 1 ? i : 0;
    }

    int width_, height_;
    unsigned border_;
    int left_, top_;
    GuardedImage<T> image_;
};

struct FilterCase {
    int width, height;
    unsigned border;
    Lie srcLie, dstLie;
    unsigned seed;
};

// Every border kind with every set of sides in memory, over regions smaller than masks and larger than lanes,
// at both ends of memory. Small regions meet all words; larger ones take turns.
template <class Body>
void sweepFilterCases(std::vector<unsigned> kinds, Body body) {
    std::vector<unsigned> words = {tpxBorderInMemAll};
    for (unsigned kind : kinds)
        for (unsigned sides = 0; sides < 16; sides++) words.push_back(kind | sides << 4);
    unsigned turn = 0;
    const auto visit = [&](int width, int height, unsigned word) {
        const Lie src =
            turn % 2 ? Lie{int(turn % 3) * 8, Edge::End, 0} : Lie{16, Edge::Start, int(turn % 4) * 4};
        const Lie dst = turn % 3 ? Lie{8, Edge::End, int(turn % 2) * 4} : Lie{24, Edge::Start, 0};
        body(FilterCase{width, height, word, src, dst, ++turn});
    };
    for (int width : {1, 2, 3, 4, 5, 6, 9})
        for (int height : {1, 2, 3, 4, 5, 7})
            for (unsigned word : words) visit(width, height, word);
    for (int width : {7, 8, 10, 15, 16, 17, 18, 20, 31, 32, 33, 35, 36, 47, 64, 67, 130})
        for (int height : {1, 3, 6, 40})
            for (int k = 0; k < 5; k++)
                visit(width, height, words[(turn * 7 + unsigned(k) * 11) % words.size()]);
    // Rows that kernels take in several stretches.
    for (int width : {513, 530, 1100}) visit(width, 3, words[turn * 7 % words.size()]);
}

} // namespace tpx::test
