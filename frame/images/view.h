// SPDX-License-Identifier: Apache-2.0
// A region of an image as the kernels see it: the first pixel's address, and how far its rows are apart.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "tpxi/types.h"

namespace tpx {

template <class T>
using ByteLike = std::conditional_t<std::is_const_v<T>, const Tpx8u, Tpx8u>;

// A step may be negative and need not be a whole number of samples. Addresses on the way need not be memory
// that the caller handed.
template <class T>
inline T* addBytes(T* p, ptrdiff_t bytes) {
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) + uintptr_t(bytes));
}

template <class T>
struct ImageView {
    static constexpr ptrdiff_t kUnitBytes = sizeof(T); // of what widths count

    T* data;
    ptrdiff_t step; // bytes

    T* row(ptrdiff_t y) const { return addBytes(data, ptrdiff_t(uintptr_t(y) * uintptr_t(step))); }
    // The region that begins so many samples further right and rows further down.
    ImageView from(ptrdiff_t samples, ptrdiff_t rows) const {
        return {addBytes(row(rows), ptrdiff_t(uintptr_t(samples) * sizeof(T))), step};
    }
    // Whether rows of so many samples follow each other without a gap.
    bool isGapless(ptrdiff_t samples) const { return step == samples * ptrdiff_t(sizeof(T)); }

    operator ImageView<const T>() const { return {data, step}; }
};

// The bytes of an image; widths count them.
template <class T>
inline ImageView<ByteLike<T>> bytesOf(ImageView<T> image) {
    return {reinterpret_cast<ByteLike<T>*>(image.data), image.step};
}

// A step rounded down to a whole number of samples.
template <class T>
inline ImageView<T> wholeSteps(ImageView<T> image) {
    return {image.data, image.step & -ptrdiff_t(sizeof(T))};
}

} // namespace tpx
