// SPDX-License-Identifier: Apache-2.0
// Loops that reverse a run of samples.
#pragma once

#include "frame/runs/runs.h"

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

// ---- Pixels of several samples: their samples keep their order ------------------------------------------

// A register of whole pixels, as many as fit, and what it takes to turn their order around.
template <int PixelBytes>
struct PixelOrder {
    static constexpr int kPixels = int(sizeof(V8u)) / PixelBytes;
    static constexpr int kBytes = kPixels * PixelBytes;
    static constexpr int kSlack = int(sizeof(V8u)) - kBytes;
    alignas(16) Tpx8u reversed[sizeof(V8u)], reversedBehindSlack[sizeof(V8u)];
    constexpr PixelOrder() : reversed{}, reversedBehindSlack{} {
        for (int i = 0; i < kBytes; i++) {
            reversed[i] = Tpx8u((kPixels - 1 - i / PixelBytes) * PixelBytes + i % PixelBytes);
            reversedBehindSlack[i] = Tpx8u(reversed[i] + kSlack);
        }
    }
};
template <int PixelBytes>
inline constexpr PixelOrder<PixelBytes> kPixelOrder;

// The first Bytes of a register, 8 or more, as two overlapping halves that leave it without a turn in memory.
template <int Bytes>
inline void storeFront(Tpx8u* dst, V8u v) {
    if constexpr (Bytes == sizeof v) return store(dst, v);
    constexpr int k = Bytes - 8;
    const V8u end = __builtin_shufflevector(v, v, k, k + 1, k + 2, k + 3, k + 4, k + 5, k + 6, k + 7, 0, 0, 0,
                                            0, 0, 0, 0, 0);
    const Tpx64u halves[2] = {V64u(v)[0], V64u(end)[0]};
    __builtin_memcpy(dst, &halves[0], 8);
    __builtin_memcpy(dst + k, &halves[1], 8);
}

// Which neighbour of a run may be read as well.
enum class Neighbour { Before, After };

// dst[i] = src[pixels - 1 - i] in pixels. The runs do not overlap; they have at least as many pixels as a
// register holds, and another pixel of the source is next to its run.
template <int PixelBytes, Neighbour N>
inline void reversePixels(const Tpx8u* src, Tpx8u* dst, ptrdiff_t pixels) {
    using Order = PixelOrder<PixelBytes>;
    const Table16<Tpx8u> order(N == Neighbour::Before ? kPixelOrder<PixelBytes>.reversedBehindSlack
                                                      : kPixelOrder<PixelBytes>.reversed);
    if constexpr (N == Neighbour::Before) src -= Order::kSlack;
    const ptrdiff_t last = pixels * PixelBytes - Order::kBytes;
    const auto at = [&](ptrdiff_t i) { return lookup(Table16<Tpx8u>(src + last - i), order.bytes); };
    for (ptrdiff_t i = 0; i < last; i += Order::kBytes) store(dst + i, at(i));
    storeFront<Order::kBytes>(dst + last, at(last));
}

} // namespace tpx
