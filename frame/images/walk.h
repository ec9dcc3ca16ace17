// Layouts, checks that every family shares, and the walk of rows.
#pragma once

#include <stddef.h>

#include "tpxi/types.h"

namespace tpx {

// ---- Layouts -------------------------------------------------------------------------------------------

// How channels lie in a pixel. AC4 stores four and computes three; the destination's fourth is kept.
enum class Layout { C1, C3, C4, AC4 };

constexpr int channelsOf(Layout layout) { return layout == Layout::C1 ? 1 : layout == Layout::C3 ? 3 : 4; }

// ---- Checks --------------------------------------------------------------------------------------------

template <class... P>
inline bool anyNull(const P*... pointers) {
    return (... || (pointers == nullptr));
}

template <class Size>
inline bool isEmpty(Size size) {
    return size.width < 1 || size.height < 1;
}

// ---- Rows ------------------------------------------------------------------------------------------------

// A step may be negative and need not be a whole number of samples.
template <class T>
inline T* addBytes(T* p, ptrdiff_t bytes) {
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(bytes));
}

// A step rounded down to a whole number of samples.
template <class T>
constexpr ptrdiff_t wholeStep(ptrdiff_t step) {
    return step & -ptrdiff_t(sizeof(T));
}

// Rows that follow each other without a gap in every image become one: all steps are the row's length in bytes.
template <class... Steps>
inline void joinRows(ptrdiff_t& len, ptrdiff_t& height, ptrdiff_t sampleBytes, Steps... steps) {
    const bool gapless = (... && (steps == len * sampleBytes));
    if (gapless) {
        len *= height;
        height = 1;
    }
}

// Calls row(src, dst) for each of `height` pairs of rows.
template <class S, class D, class Row>
inline void walkRows(const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, ptrdiff_t height, Row row) {
    for (ptrdiff_t y = 0; y < height; y++) {
        row(src, dst);
        src = addBytes(src, srcStep);
        dst = addBytes(dst, dstStep);
    }
}

// Likewise for rows of two sources.
template <class S, class D, class Row>
inline void walkRows(const S* src1, ptrdiff_t src1Step, const S* src2, ptrdiff_t src2Step, D* dst,
                     ptrdiff_t dstStep, ptrdiff_t height, Row row) {
    for (ptrdiff_t y = 0; y < height; y++) {
        row(src1, src2, dst);
        src1 = addBytes(src1, src1Step);
        src2 = addBytes(src2, src2Step);
        dst = addBytes(dst, dstStep);
    }
}

template <class D, class Row>
inline void walkRows(D* dst, ptrdiff_t dstStep, ptrdiff_t height, Row row) {
    for (ptrdiff_t y = 0; y < height; y++) {
        row(dst);
        dst = addBytes(dst, dstStep);
    }
}

} // namespace tpx
