// Loops over one run of contiguous samples: the bulk, its ends, and runs shorter than a register.
//
// A rule sees nothing but whole registers, at every length. The first and the last register of a run may
// overlap the bulk: both are computed before the bulk is stored and are stored after it, so a sample that is
// covered twice gets the same value twice, in place too. A run shorter than a register is padded with copies
// of its first sample. So there is no scalar form of a rule that could disagree with the vector form, and a
// rule may gather flags ("a negative sample was seen"), which a repeated sample does not change.
#pragma once

#include "frame/simd.h"
#include "frame/streaming.h"
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

// What lies between `p` and the next boundary of a register's size: in bytes, and in whole samples.
template <class T>
inline size_t bytesToBoundary(const T* p) {
    return -reinterpret_cast<uintptr_t>(p) & (sizeof(Vec<T>) - 1);
}
template <class T>
inline ptrdiff_t samplesToBoundary(const T* p) {
    return ptrdiff_t(bytesToBoundary(p) / sizeof(T));
}

// How the results of a run are written: all lanes into the caches, all but the alphas of four-channel pixels,
// or all lanes past the caches (the caller decides once a call, and fences after its last row).
enum class Write { Cached, KeepAlpha, Streaming };

// dst[i...] = at(i), a register from sample i on; whole() makes the register of a run that does not fill one.
template <Write W, class T, class At, class Whole>
inline void writeRun(T* dst, ptrdiff_t len, At at, Whole whole) {
    constexpr ptrdiff_t L = kLanes<T>;
    if (len < L) {
        const Vec<T> v = whole();
        copyShort(dst, &v, len * ptrdiff_t(sizeof(T)));
        return;
    }
    const auto put = [dst](ptrdiff_t i, Vec<T> v) {
        if constexpr (W == Write::Streaming)
            streamStore(dst + i, v);
        else
            store(dst + i, v);
    };
    // Registers of pixels stay on whole pixels, so they begin where the run does.
    const ptrdiff_t begin = W == Write::KeepAlpha ? 0 : samplesToBoundary(dst);
    const bool cutTail = (len - begin) % L != 0;
    Vec<T> head, tail;
    if (begin) head = at(0);
    if (cutTail) tail = at(len - L);
    ptrdiff_t i = begin;
    for (; i + 4 * L <= len; i += 4 * L) {
        const Vec<T> a = at(i), b = at(i + L), c = at(i + 2 * L), d = at(i + 3 * L);
        put(i, a);
        put(i + L, b);
        put(i + 2 * L, c);
        put(i + 3 * L, d);
    }
    for (; i + L <= len; i += L) put(i, at(i));
    if (cutTail) store(dst + len - L, tail);
    if (begin) store(dst, head);
}

// dst[i] = rule(src[i]).
template <Write W = Write::Cached, class T, class Rule>
inline void mapRun(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    if constexpr (W == Write::Streaming)
        if (samplesToBoundary(dst) * sizeof(T) != bytesToBoundary(dst)) return mapRun(src, dst, len, rule);
    const auto keep = [](Vec<T> old, Vec<T> v) {
        if constexpr (W == Write::KeepAlpha)
            return keepAlpha<T>(old, v);
        else
            return v;
    };
    writeRun<W>(
        dst, len, [&](ptrdiff_t i) { return keep(load(dst + i), rule(load(src + i))); },
        [&] { return keep(loadShort(dst, len), rule(loadShort(src, len))); });
}

// srcDst[i] = rule(src[i], srcDst[i]).
template <class T, class Rule>
inline void mapRun2(const T* src, T* srcDst, ptrdiff_t len, Rule&& rule) {
    writeRun<Write::Cached>(
        srcDst, len, [&](ptrdiff_t i) { return rule(load(src + i), load(srcDst + i)); },
        [&] { return rule(loadShort(src, len), loadShort(srcDst, len)); });
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
