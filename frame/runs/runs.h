// SPDX-License-Identifier: Apache-2.0
// Loops over one run of contiguous samples: the bulk, its ends, and runs shorter than a register.
//
// A rule sees nothing but whole registers, at every length. The first and the last register of a run may
// overlap the bulk: both are computed before the bulk is stored and are stored after it, so a sample that is
// covered twice gets the same value twice, in place too. A run shorter than a register is padded with copies
// of its first sample. So there is no scalar form of a rule that could disagree with the vector form, and a
// rule may gather flags ("a negative sample was seen"), which a repeated sample does not change.
#pragma once

#include "frame/entry/checks.h"
#include "frame/simd/simd.h"

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

// Copies a few registers, which do not overlap.
inline void copyBlock(void* dst, const void* src, ptrdiff_t bytes) {
    auto d = static_cast<char*>(dst);
    auto s = static_cast<const char*>(src);
    for (; bytes >= 32; bytes -= 32, d += 32, s += 32) __builtin_memcpy(d, s, 32);
    copyShort(d, s, bytes);
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

// How many whole samples lie between `p` and the next boundary of a register's size.
template <class T>
inline ptrdiff_t samplesToBoundary(const T* p) {
    return ptrdiff_t((-reinterpret_cast<uintptr_t>(p) & (sizeof(Vec<T>) - 1)) / sizeof(T));
}

// The same where a register begins with a pixel of N samples; 0 where no pixel begins on a boundary.
template <int N, class T>
inline ptrdiff_t pixelsToBoundary(const T* p) {
    const ptrdiff_t samples = samplesToBoundary(p);
    return samples % N ? 0 : samples;
}

struct NoFetch {
    void operator()(ptrdiff_t, ptrdiff_t) const {}
};

// A rule of so few operations that its loops are bounded by their stores, of which processors do one a cycle
// whatever its width. Registers of 16 bytes are then joined and stored by two, which costs other rules an
// operation that they have no room for.
template <class Rule>
struct Light : Rule {
    using Rule::operator();
};
template <class Rule>
Light(Rule) -> Light<Rule>;
template <class Rule>
inline constexpr bool kIsLight = false;
template <class Rule>
inline constexpr bool kIsLight<Light<Rule>> = true;

template <bool Join, class T>
inline void storeTwo(T* p, Vec<T> a, Vec<T> b) {
    if constexpr (Join) {
        store(p, joined(a, b));
    } else {
        store(p, a);
        store(p + kLanes<T>, b);
    }
}

// dst[i...] = at(i), a register from sample i on; whole() makes the register of a run that does not fill one.
// Registers start at `begin`, the first sample on a boundary or 0, and the head is cut if that is not 0. Where
// they are joined, one is stored before the first two that begin on a boundary of theirs.
// fetch(i, n) asks for what comes some way behind n samples; none is worth it where much is written of little.
template <bool IsLight = false, class T, class At, class Whole, class Fetch = NoFetch>
[[gnu::always_inline]] inline void writeRun(T* dst, ptrdiff_t len, ptrdiff_t begin, At at, Whole whole,
                                            Fetch fetch = {}) {
    constexpr ptrdiff_t L = kLanes<T>;
    constexpr bool kJoin = IsLight && sizeof(Vec<T>) < sizeof(Joined);
    if (len < L) {
        const Vec<T> v = whole();
        copyShort(dst, &v, len * ptrdiff_t(sizeof(T)));
        return;
    }
    const bool cutTail = (len - begin) % L != 0;
    Vec<T> head{}, tail{};
    if (begin) head = at(0);
    if (cutTail) tail = at(len - L);
    ptrdiff_t i = begin;
    if (kJoin && i + L <= len && reinterpret_cast<uintptr_t>(dst + i) % sizeof(Joined) != 0) {
        store(dst + i, at(i));
        i += L;
    }
    for (; i + 4 * L <= len; i += 4 * L) {
        fetch(i, 4 * L);
        const Vec<T> a = at(i), b = at(i + L), c = at(i + 2 * L), d = at(i + 3 * L);
        storeTwo<kJoin>(dst + i, a, b);
        storeTwo<kJoin>(dst + i + 2 * L, c, d);
    }
    for (; i + L <= len; i += L) store(dst + i, at(i));
    if (cutTail) store(dst + len - L, tail);
    if (begin) store(dst, head);
}

// dst[i] = rule(src[i], ...), from one source or more. A source may be the destination. Registers begin with
// pixels of N samples.
template <int N = 1, class T, class Rule, class... Src>
[[gnu::always_inline]] inline void applyRun(T* dst, ptrdiff_t len, Rule&& rule, const Src*... src) {
    writeRun<kIsLight<std::remove_cvref_t<Rule>>>(
        dst, len, pixelsToBoundary<N>(dst), [&](ptrdiff_t i) { return rule(load(src + i)...); },
        [&] { return rule(loadShort(src, len)...); },
        [&](ptrdiff_t i, ptrdiff_t n) { (fetchAhead(src + i, n * ptrdiff_t(sizeof(T))), ...); });
}
template <class T, class Rule>
inline void mapRun(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    applyRun(dst, len, rule, src);
}

// The same on pixels of four samples of type T, whose fourth is left as it was. Registers stay on whole pixels.
// R is T, or float where samples are only moved; the length is in R.
template <class T, class R, class Rule, class... Src>
[[gnu::always_inline]] inline void applyKeepingAlpha(R* dst, ptrdiff_t len, Rule&& rule, const Src*... src) {
    writeRun<kIsLight<std::remove_cvref_t<Rule>>>(
        dst, len, 0, [&](ptrdiff_t i) { return keepAlpha<T>(load(dst + i), rule(load(src + i)...)); },
        [&] { return keepAlpha<T>(loadShort(dst, len), rule(loadShort(src, len)...)); },
        [&](ptrdiff_t i, ptrdiff_t n) { (fetchAhead(src + i, n * ptrdiff_t(sizeof(R))), ...); });
}
template <class T, class R, class Rule>
inline void mapKeepingAlpha(const R* src, R* dst, ptrdiff_t len, Rule&& rule) {
    applyKeepingAlpha<T>(dst, len, rule, src);
}

// Moves pixels of four samples of type T but for the fourth.
template <class T, class Rule>
inline void moveKeepingAlpha(const T* src, T* dst, ptrdiff_t pixels, Rule&& rule) {
    mapKeepingAlpha<T>(reinterpret_cast<const Tpx32f*>(src), reinterpret_cast<Tpx32f*>(dst),
                       pixels * ptrdiff_t(sizeof(T)), rule);
}

// dst[i] = rule(src[i], k), where k counts registers within groups of G: rules whose constants repeat with
// pixels of three samples have three registers of them. Runs are of whole pixels, and groups begin with one:
// the first behind the boundary that begins a pixel, and those of the ends, which may overlap the bulk.
template <int G, class T, class Rule>
[[gnu::always_inline]] inline void mapGroups(const T* src, T* dst, ptrdiff_t len, Rule&& rule) {
    constexpr ptrdiff_t L = kLanes<T>;
    const auto group = [&](const T* s, T* d) __attribute__((always_inline)) {
        Vec<T> v[G];
#pragma GCC unroll 3
        for (int k = 0; k < G; k++) v[k] = rule(load(s + k * L), k);
#pragma GCC unroll 3
        for (int k = 0; k < G; k++) store(d + k * L, v[k]);
    };
    if (len < G * L) {
        T block[G * L];
        for (int k = 0; k < G; k++) store(block + k * L, Vec<T>{});
        copyBlock(block, src, len * ptrdiff_t(sizeof(T)));
        group(block, block);
        copyBlock(dst, block, len * ptrdiff_t(sizeof(T)));
        return;
    }
    ptrdiff_t begin = samplesToBoundary(dst);
    while (begin % G) begin += L;
    const bool cutTail = (len - begin) % (G * L) != 0;
    T head[G * L], tail[G * L];
    if (begin) group(src, head);
    if (cutTail) group(src + len - G * L, tail);
    for (ptrdiff_t i = begin; i + G * L <= len; i += G * L) {
        fetchAhead(src + i, G * L * ptrdiff_t(sizeof(T)));
        group(src + i, dst + i);
    }
    if (cutTail) __builtin_memcpy(dst + len - G * L, tail, sizeof tail);
    if (begin) __builtin_memcpy(dst, head, sizeof head);
}

// N samples from fewer; the others repeat the last.
template <int N, class T>
inline void padRun(T (&padded)[N], const T* src, ptrdiff_t len) {
    for (ptrdiff_t i = 0; i < N; i++) __builtin_memcpy(padded + i, src + (i < len ? i : len - 1), sizeof(T));
}

// dst[i...] = rule(src + i), where both have samples of their own types: rule(p) makes a register of results
// from as many samples at p. It is copied: what a caller's rule holds would be loaded, or made, anew after
// every store.
template <class D, class S, class Rule>
inline Vec<D> convertShort(const S* src, ptrdiff_t len, Rule&& rule) {
    S padded[kLanes<D>];
    padRun(padded, src, len);
    return rule(padded);
}
template <bool IsLight = false, class S, class D, class Rule>
inline void convertRun(const S* src, D* dst, ptrdiff_t len, Rule rule) {
    writeRun<IsLight>(
        dst, len, samplesToBoundary(dst), [&](ptrdiff_t i) { return rule(src + i); },
        [&] { return convertShort<D>(src, len, rule); });
}

// The same on pixels of four samples, whose fourth is left as it was; the length is in samples.
template <bool IsLight = false, class S, class D, class Rule>
inline void convertKeepingAlpha(const S* src, D* dst, ptrdiff_t len, Rule rule) {
    writeRun<IsLight>(
        dst, len, 0, [&](ptrdiff_t i) { return keepAlpha<D>(load(dst + i), rule(src + i)); },
        [&] { return keepAlpha<D>(loadShort(dst, len), convertShort<D>(src, len, rule)); });
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
