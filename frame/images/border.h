// SPDX-License-Identifier: Apache-2.0
// What lies around an image: how a border word reads, and where a coordinate beyond an edge takes its pixel
// from. The border copies, the strips of resizes, the filters and the warps share it.
#pragma once

#include <stdint.h>

#include "tpxi/types.h"

namespace tpx {

enum class Border { Const, Replicate, Mirror, Wrap, Transparent, InMemory };

// As a word has it; wrapping has no word.
constexpr TpxBorderType codeOf(Border kind) {
    switch (kind) {
        case Border::Const:
            return tpxBorderConstant;
        case Border::Replicate:
            return tpxBorderReplicate;
        case Border::Mirror:
            return tpxBorderMirror;
        case Border::Transparent:
            return tpxBorderTransparent;
        default:
            return tpxBorderInMemAll;
    }
}

// A border word: a kind in the low four bits, and the sides on which the image goes on in memory.
struct BorderWord {
    bool valid;
    Border kind; // InMemory if there is none
    bool left, top, right, bottom;

    bool allInMemory() const { return left && top && right && bottom; }
};

// All four sides alone need no kind; any other word has one of those that the family takes.
template <Border... Kinds>
constexpr BorderWord readBorder(TpxBorderType word) {
    const auto has = [word](unsigned flag) { return (unsigned(word) & flag) != 0; };
    BorderWord b = {unsigned(word) == unsigned(tpxBorderInMemAll),
                    Border::InMemory,
                    has(tpxBorderInMemLeft),
                    has(tpxBorderInMemTop),
                    has(tpxBorderInMemRight),
                    has(tpxBorderInMemBottom)};
    if (unsigned(word) > 0xFF) return b;
    const auto take = [&](Border kind) {
        if ((unsigned(word) & 0xF) != unsigned(codeOf(kind))) return;
        b.valid = true;
        b.kind = kind;
    };
    (take(Kinds), ...);
    return b;
}

// The index, 0 to n - 1, that coordinate c takes its pixel from along an axis of n pixels. A constant border
// takes its pixels from nowhere. Margins within the rule's first period cost no division.
template <Border B>
constexpr int64_t borderSource(int64_t c, int64_t n) {
    static_assert(B == Border::Replicate || B == Border::Mirror || B == Border::Wrap);
    if constexpr (B == Border::Replicate) {
        return c < 0 ? 0 : c < n ? c : n - 1;
    } else if constexpr (B == Border::Mirror) {
        const int64_t period = 2 * n - 2;
        int64_t m = c < 0 ? -c : c;
        if (m > period) m = period > 0 ? m % period : 0;
        return m < n ? m : period - m;
    } else {
        if (c < -n || c >= 2 * n) c %= n;
        return c < 0 ? c + n : c < n ? c : c - n;
    }
}

// How many pixels on either side of the axis the rule fills before it repeats what is there already, and the
// distance at which it repeats.
template <Border B>
constexpr int64_t borderReach(int64_t n) {
    return B == Border::Mirror ? n - 1 : B == Border::Wrap ? n : 0;
}
template <Border B>
constexpr int64_t borderPeriod(int64_t n) {
    return B == Border::Wrap ? n : B == Border::Mirror && n > 1 ? 2 * n - 2 : 1;
}

} // namespace tpx
