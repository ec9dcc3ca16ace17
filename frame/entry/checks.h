// SPDX-License-Identifier: Apache-2.0
// Layouts, and the checks that all families share.
#pragma once

#include <stddef.h>

#include <type_traits>

#include "tpxi/types.h"

namespace tpx {

// ---- Layouts -------------------------------------------------------------------------------------------

// How channels lie in a pixel. AC4 stores four and computes three; the destination's fourth is kept.
enum class Layout { C1, C3, C4, AC4 };

constexpr int channelsOf(Layout layout) { return layout == Layout::C1 ? 1 : layout == Layout::C3 ? 3 : 4; }

// The channels that are computed, and so the constants that a caller gives.
constexpr int coloursOf(Layout layout) { return layout == Layout::C1 ? 1 : layout == Layout::C4 ? 4 : 3; }

// As callers give constants: a sample for C1, an array for layouts of several channels.
template <Layout L, class T>
using Given = std::conditional_t<L == Layout::C1, T, const T*>;
template <class T>
constexpr const T* arrayOf(const T& sample) {
    return &sample;
}
template <class T>
constexpr const T* arrayOf(const T* const& samples) {
    return samples;
}

// ---- Codes of the types of samples -----------------------------------------------------------------------

constexpr bool isDataType(TpxDataType type) {
    return type == tpxDataType8u || type == tpxDataType16u || type == tpxDataType16s || type == tpxDataType32f;
}
template <class T>
inline constexpr TpxDataType kDataType = std::is_same_v<T, Tpx8u>    ? tpxDataType8u
                                         : std::is_same_v<T, Tpx16u> ? tpxDataType16u
                                         : std::is_same_v<T, Tpx16s> ? tpxDataType16s
                                         : std::is_same_v<T, Tpx64f> ? tpxDataType64f
                                                                     : tpxDataType32f;

// ---- One length inside: entries widen what the short forms are given -------------------------------------

constexpr TpxiSizeL wide(TpxiSize size) { return {size.width, size.height}; }
constexpr TpxiSizeL wide(TpxiSizeL size) { return size; }
constexpr TpxiPointL wide(TpxiPoint point) { return {point.x, point.y}; }
constexpr TpxiPointL wide(TpxiPointL point) { return point; }

// ---- Checks --------------------------------------------------------------------------------------------

template <class... P>
inline bool anyNull(const P*... pointers) {
    return (... || (pointers == nullptr));
}

template <class Size>
constexpr bool isEmpty(Size size) {
    return size.width < 1 || size.height < 1;
}

} // namespace tpx
