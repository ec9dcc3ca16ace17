// Loops that reverse a run of samples.
#pragma once

#include "frame/runs.h"

namespace tpx {

// A run shorter than a register. All is read before anything is written.
template <class T>
inline void reverseShort(const T* src, T* dst, ptrdiff_t len) {
    const Vec<T> v = reverseLanes(loadShort(src, len));
    copyShort(dst, reinterpret_cast<const T*>(&v) + kLanes<T> - len, len * ptrdiff_t(sizeof(T)));
}

// dst[i] = src[len - 1 - i]. The runs do not overlap.
template <class T>
inline void reverseRun(const T* src, T* dst, ptrdiff_t len) {
    constexpr ptrdiff_t L = kLanes<T>;
    if (len < L) return reverseShort(src, dst, len);
    const auto at = [&](ptrdiff_t i) { return reverseLanes(load(src + len - L - i)); };
    writeRun(dst, len, samplesToBoundary(dst), at, [&] { return at(0); });
}

// The same in place: registers change places from both ends inwards. The last pair may overlap.
template <class T>
inline void reverseRun(T* srcDst, ptrdiff_t len) {
    constexpr ptrdiff_t L = kLanes<T>;
    T *low = srcDst, *high = srcDst + len;
    for (; high - low >= L; low += L, high -= L) {
        const Vec<T> a = load(low), b = load(high - L);
        store(low, reverseLanes(b));
        store(high - L, reverseLanes(a));
        if (high - low < 2 * L) return;
    }
    if (low < high) reverseShort(low, low, high - low);
}

} // namespace tpx
