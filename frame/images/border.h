// Where the pixels around an image come from: the rule of the border copies, and of whatever else reads beyond
// an edge.
#pragma once

#include <stdint.h>

namespace tpx {

enum class Border { Const, Replicate, Mirror, Wrap };

// The index, 0 to n - 1, that coordinate c takes its pixel from along an axis of n pixels. A constant border
// takes its pixels from nowhere. Margins within the rule's first turn cost no division.
template <Border B>
constexpr int64_t borderSource(int64_t c, int64_t n) {
    static_assert(B != Border::Const);
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
