// SPDX-License-Identifier: Apache-2.0
// Spans of a row, and where along a row positions lie in a range.
#pragma once

#include "frame/simd/real.h"

namespace tpx {

// Pixels begin to end - 1; none where end is not above begin.
struct Span {
    int64_t begin, end;

    constexpr bool isEmpty() const { return end <= begin; }
};
constexpr Span meet(Span a, Span b) { return {maxOf(a.begin, b.begin), minOf(a.end, b.end)}; }

// low <= x < end along either axis.
struct Range {
    double low, end;
};
struct Region {
    Range x, y;

    constexpr bool has(double px, double py) const {
        return px >= x.low && px < x.end && py >= y.low && py < y.end;
    }
};

// The first pixel of a span for which holds(x), which is false up to there and true from there on; else the
// span's end. Looked for from the guess, which may be anything, in steps that double.
template <class Holds>
inline int64_t firstWhere(Span span, double guess, Holds holds) {
    if (span.isEmpty()) return span.end;
    int64_t no = span.begin - 1, yes = span.end;
    int64_t at = int64_t(clampTo(guess, double(span.begin), double(span.end - 1)));
    for (int64_t step = 1; yes - no > 1; step *= 2) {
        const bool held = holds(at);
        (held ? yes : no) = at;
        if (held ? no >= span.begin : yes < span.end) break; // halving is faster from here on
        at = held ? maxOf(at - step, no + 1) : minOf(at + step, yes - 1);
    }
    while (yes - no > 1) {
        const int64_t middle = no + (yes - no) / 2;
        (holds(middle) ? yes : no) = middle;
    }
    return yes;
}

// The pixels of a span whose coordinate, perPixel * x + start in double precision as rounded, lies in a range.
inline Span spanOf(double perPixel, double start, Range range, Span within) {
    const auto at = [=](int64_t x) { return perPixel * double(x) + start; };
    if (perPixel == 0) return at(0) >= range.low && at(0) < range.end ? within : Span{0, 0};
    const double low = (range.low - start) / perPixel, end = (range.end - start) / perPixel;
    if (perPixel > 0) {
        const int64_t begin = firstWhere(within, low + 1, [=](int64_t x) { return at(x) >= range.low; });
        return {begin, firstWhere({begin, within.end}, end + 1, [=](int64_t x) { return at(x) >= range.end; })};
    }
    const int64_t begin = firstWhere(within, end + 1, [=](int64_t x) { return at(x) < range.end; });
    return {begin, firstWhere({begin, within.end}, low + 1, [=](int64_t x) { return at(x) < range.low; })};
}

} // namespace tpx
