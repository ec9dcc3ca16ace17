// Loops over one run of contiguous samples: the bulk, its ends, and runs shorter than a register.
//
// A rule sees nothing but whole registers, at every length. The first and the last register of a run may
// overlap the bulk: both are computed before the bulk is stored and stored after it, so a sample that is
// covered twice gets the same value twice, in place too. A run shorter than a register is padded with copies
// of its first sample. So there is no scalar form of a rule that could disagree with the vector form, and a
// rule may gather flags ("a negative sample was seen"), which a repeated sample does not change.
#pragma once

#include "frame/simd.h"
#include "frame/walk.h"

namespace tpx {

// Copies fewer than 32 bytes. Pieces overlap; all are loaded before any is stored.
inline void copyShort(void* dst, const void* src, ptrdiff_t bytes) {
    auto d = static_cast<char*>(dst);
    auto s = static_cast<const char*>(src);
    const auto ends = [&](auto piece) {
        decltype(piece) first, last;
        const ptrdiff_t at = bytes - ptrdiff_t(sizeof piece);
        __builtin_memcpy(&first, s, sizeof piece);
        __builtin_memcpy(&last, s + at, sizeof piece);
        __builtin_memcpy(d, &first, sizeof piece);
        __builtin_memcpy(d + at, &last, sizeof piece);
    };
    if (bytes >= 16)
        ends(V8u{});
    else if (bytes >= 8)
        ends(Tpx64u{});
    else if (bytes >= 4)
        ends(Tpx32u{});
    else if (bytes >= 2)
        ends(Tpx16u{});
    else if (bytes == 1)
        ends(Tpx8u{});
}

// A register from fewer samples than it holds; the other lanes repeat the first sample.
template <class T>
inline Vec<T> loadShort(const T* src, ptrdiff_t len) {
    T first;
    __builtin_memcpy(&first, src, sizeof first);
    Vec<T> v = splat<Vec<T>>(first);
    copyShort(&v, src, len * ptrdiff_t(sizeof(T)));
    return v;
}

// How many samples of a register stored at `p` come before the next boundary of a register's size.
template <class T>
inline ptrdiff_t samplesToBoundary(const T* p) {
    return ptrdiff_t((-reinterpret_cast<uintptr_t>(p) & (sizeof(Vec<T>) - 1)) / sizeof(T));
}

// dst[i ...] = at(i), a register of what belongs there; from the second register on they start at `boundary`.
template <class T, class At>
inline void writeRun(T* dst, ptrdiff_t len, ptrdiff_t boundary, At&& at) {
    constexpr ptrdiff_t L = kLanes<T>;
    const Vec<T> head = at(0), tail = at(len - L);
    ptrdiff_t i = boundary;
    for (; i + 4 * L <= len; i += 4 * L) {
        const Vec<T> a = at(i), b = at(i + L), c = at(i + 2 * L), d = at(i + 3 * L);
        store(dst + i, a);
        store(dst + i + L, b);
        store(dst + i + 2 * L, c);
        store(dst + i + 3 * L, d);
    }
    for (; i + L <= len; i += L) store(dst + i, at(i));
    store(dst + len - L, tail);
    store(dst, head);
}

// dst[i] = rule(src[i]). With KeepAlpha the run is one of four-channel pixels whose fourth is left as it was.
template <bool KeepAlpha = false, class T, class Rule>
inline void mapRun(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    constexpr ptrdiff_t L = kLanes<T>;
    const auto at = [&](ptrdiff_t i) {
        Vec<T> v = rule(load(src + i));
        if constexpr (KeepAlpha) v = keepAlpha<T>(load(dst + i), v);
        return v;
    };
    if (len < L) {
        Vec<T> v = rule(loadShort(src, len));
        if constexpr (KeepAlpha) v = keepAlpha<T>(loadShort(dst, len), v);
        copyShort(dst, &v, len * ptrdiff_t(sizeof(T)));
        return;
    }
    writeRun(dst, len, KeepAlpha ? L : samplesToBoundary(dst), at);
}

// srcDst[i] = rule(src[i], srcDst[i]).
template <class T, class Rule>
inline void mapRun2(const T* src, T* srcDst, ptrdiff_t len, Rule&& rule) {
    if (len < kLanes<T>) {
        const Vec<T> v = rule(loadShort(src, len), loadShort(srcDst, len));
        copyShort(srcDst, &v, len * ptrdiff_t(sizeof(T)));
        return;
    }
    writeRun(srcDst, len, samplesToBoundary(srcDst),
             [&](ptrdiff_t i) { return rule(load(src + i), load(srcDst + i)); });
}

// A run shorter than a register, reversed. All is read before anything is written.
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
    writeRun(dst, len, samplesToBoundary(dst),
             [&](ptrdiff_t i) { return reverseLanes(load(src + len - L - i)); });
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

// The index of the first sample whose lane of test(x) is set, or -1.
template <class T, class Test>
inline ptrdiff_t findRun(const T* src, ptrdiff_t len, Test test) {
    constexpr ptrdiff_t L = kLanes<T>;
    const auto firstIn = [&](Vec<T> x, ptrdiff_t base) -> ptrdiff_t {
        const auto mask = test(x);
        for (ptrdiff_t i = 0; i < L; i++)
            if (mask[i]) return base + i;
        return -1;
    };
    if (len < L) return firstIn(loadShort(src, len), 0);
    ptrdiff_t i = 0;
    for (; i + 4 * L <= len; i += 4 * L)
        if (any(test(load(src + i)) | test(load(src + i + L)) | test(load(src + i + 2 * L)) |
                test(load(src + i + 3 * L))))
            break;
    for (; i + L <= len; i += L)
        if (any(test(load(src + i)))) return firstIn(load(src + i), i);
    return firstIn(load(src + len - L), len - L);
}

} // namespace tpx
