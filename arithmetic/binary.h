// What the binary operations share: the rule of the scale factor, checks, the walk of rows, the 64-bit forms.
//
// An operation is a class with
//   saturated(a, b)        the result with factor 0, in registers of T
//   exact(a, b)            the exact result: a pair of registers of wider lanes, or one where T's lanes hold it
//   halved(a, b)           the result with factor 1, which needs no wider lanes; optional
//   kZeroFrom<T>           the smallest factor at which every result is 0
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/simd/rounding.h"

namespace tpx {

// ---- The rule of the scale factor: s * 2^-n, rounded to nearest with ties to even, saturated ------------

template <class W>
struct ExactLanes {
    using type = W;
    template <class T, class Rule>
    static Vec<T> map(W s, Rule rule) {
        return rule(s);
    }
};
template <class W>
struct ExactLanes<Pair<W>> {
    using type = W;
    template <class T, class Rule>
    static Vec<T> map(Pair<W> s, Rule rule) {
        return narrow<T>(Pair<W>{rule(s.low), rule(s.high)});
    }
};

// Picks the rule of the call's regime once: body(rule), for factors below kZeroFrom.
template <class Op, class T, class Body>
inline void withScaledRule(int n, Body body) {
    if constexpr (std::is_same_v<T, float>) {
        body([](V32f a, V32f b) { return Op::saturated(a, b); });
    } else if (n == 0) {
        body([](Vec<T> a, Vec<T> b) { return Op::saturated(a, b); });
    } else if (n > 0) {
        if constexpr (requires { Op::halved(Vec<T>{}, Vec<T>{}); })
            if (n == 1) return body([](Vec<T> a, Vec<T> b) { return Op::halved(a, b); });
        using Lanes = ExactLanes<decltype(Op::exact(Vec<T>{}, Vec<T>{}))>;
        const RoundedShift<tpxRoundNearestEven, typename Lanes::type, Headroom::Half> halfEven(n);
        body([halfEven](Vec<T> a, Vec<T> b) { return Lanes::template map<T>(Op::exact(a, b), halfEven); });
    } else if (n == -1) {
        body([](Vec<T> a, Vec<T> b) {
            const Vec<T> s = Op::saturated(a, b);
            return addSat(s, s);
        });
    } else {
        const int k = n < -kValueBits<T> ? kValueBits<T> : -n;
        body([k](Vec<T> a, Vec<T> b) { return shiftLeftSat(Op::saturated(a, b), k); });
    }
}

// ---- Runs and images ------------------------------------------------------------------------------------

// From this many samples on a fill with zero may go past the caches.
inline constexpr uint64_t kZeroFillFloor = 0x80000;

// What a factor from kZeroFrom on leaves; no source is read.
template <bool KeepAlpha, class T>
void fillZero(T* dst, ptrdiff_t dstStep, ptrdiff_t len, ptrdiff_t height) {
    if constexpr (KeepAlpha) {
        walkRows(dst, dstStep, height,
                 [&](T* d) { moveKeepingAlpha(d, d, len / 4, [](auto) { return V32f{}; }); });
    } else {
        joinRows(len, height, sizeof(T), dstStep);
        const bool stream = fillsCache(uint64_t(len) * uint64_t(height), kZeroFillFloor);
        const T zero = 0;
        const Pattern zeros = makePattern(&zero, sizeof zero);
        walkRows(dst, dstStep, height, [&](T* d) {
            stream ? fillRowStreaming(d, len * sizeof(T), zeros) : fillRow(d, len * sizeof(T), zeros);
        });
        if (stream) streamFence();
    }
}

// The work, once the arguments have passed their checks. `len` is in samples.
template <class Op, bool KeepAlpha, class T>
TpxStatus binaryRows(const TwoImages<T>& a, ptrdiff_t len, ptrdiff_t height, int n) {
    if constexpr (!std::is_same_v<T, float>) {
        if (n >= Op::template kZeroFrom<T>) {
            fillZero<KeepAlpha>(a.dst, a.dstStep, len, height);
            return tpxOk;
        }
    }
    withScaledRule<Op, T>(n, [&](auto rule) { combineImages<KeepAlpha, true>(a, len, height, rule); });
    return tpxOk;
}

// The short forms. A size is in pixels.
template <class Op, Layout L, class T>
TpxStatus binary(const TwoImages<T>& a, TpxiSize roi, int n = 0) {
    // Layouts of several channels look at the width before everything else.
    if ((L == Layout::C3 || L == Layout::C4) && roi.width < 1) return tpxErrSize;
    if (anyNull(a.src1, a.src2, a.dst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    return binaryRows<Op, L == Layout::AC4>(a, ptrdiff_t(roi.width) * channelsOf(L), roi.height, n);
}

// ---- 64-bit forms ---------------------------------------------------------------------------------------

// A call fits the short form if every step and the image's bytes have a magnitude below 2^31 - 1. Products
// wrap.
template <class T, class... Steps>
inline bool fitsShortForm(TpxiSizeL roi, int channels, Steps... steps) {
    const auto small = [](TpxSizeL x) { return x < 0x7FFFFFFF && x > -0x7FFFFFFF; };
    const uint64_t bytes = uint64_t(roi.width) * uint64_t(roi.height) * uint64_t(channels) * sizeof(T);
    return (... && small(steps)) && small(TpxSizeL(bytes));
}

// The pixels of the chunks into which the rows of larger calls are cut.
template <class T>
constexpr TpxSizeL chunkOf(int channels) {
    const TpxSizeL pixels = 0x3FFFFFFF / (channels * int(sizeof(T)));
    return channels == 3 ? pixels - 1 : pixels;
}

// A call that fits goes to the short form, with its checks. Any other is walked in chunks: the first negative
// status of a chunk ends it, else the last chunk's status is returned. With nothing to walk that is tpxOk,
// whatever the pointers.
template <class Op, Layout L, class T>
TpxStatus binaryLong(const TwoImages<T>& a, TpxiSizeL roi, int n = 0) {
    constexpr int channels = channelsOf(L);
    if (fitsShortForm<T>(roi, channels, a.src1Step, a.src2Step, a.dstStep))
        return binary<Op, L, T>(a, {int(roi.width), int(roi.height)}, n);
    if (isEmpty(roi)) return tpxOk;
    if (anyNull(a.src1, a.src2, a.dst)) return tpxErrNullPointer;
    constexpr TpxSizeL chunk = chunkOf<T>(channels);
    TpxStatus status = tpxOk;
    TwoImages<T> row = a;
    for (TpxSizeL y = 0; y < roi.height; y++) {
        TwoImages<T> part = row;
        for (TpxSizeL rest = roi.width; rest > 0; rest -= chunk) {
            status = binary<Op, L, T>(part, {int(rest < chunk ? rest : chunk), 1}, n);
            if (status < 0) return status;
            part.src1 += chunk * channels;
            part.src2 += chunk * channels;
            part.dst += chunk * channels;
        }
        row.src1 = addBytes(row.src1, row.src1Step);
        row.src2 = addBytes(row.src2, row.src2Step);
        row.dst = addBytes(row.dst, row.dstStep);
    }
    return status;
}

} // namespace tpx

// The entries of a type and layout: two sources to a destination and in place, short and 64-bit. The scale
// factor's name comes last, where there is one.
#define TPX_BINARY_FORM(Op, T, L, R, IR, Step, Size, work, ...)                                          \
    TPX_ENTRY(tpxi##Op##_##T##_##L##R)                                                                   \
    (const Tpx##T* pSrc1, Step src1Step, const Tpx##T* pSrc2, Step src2Step, Tpx##T* pDst, Step dstStep, \
     Size roiSize __VA_OPT__(, int __VA_ARGS__)) {                                                       \
        using namespace tpx;                                                                             \
        return work<Op, Layout::L, Tpx##T>({pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep},            \
                                           roiSize __VA_OPT__(, __VA_ARGS__));                           \
    }                                                                                                    \
    TPX_ENTRY(tpxi##Op##_##T##_##L##IR)                                                                  \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pSrcDst, Step srcDstStep,                                 \
     Size roiSize __VA_OPT__(, int __VA_ARGS__)) {                                                       \
        using namespace tpx;                                                                             \
        return work<Op, Layout::L, Tpx##T>({pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep},    \
                                           roiSize __VA_OPT__(, __VA_ARGS__));                           \
    }
#define TPX_BINARY_SFS(Op, T, L)                                               \
    TPX_BINARY_FORM(Op, T, L, RSfs, IRSfs, int, TpxiSize, binary, scaleFactor) \
    TPX_BINARY_FORM(Op, T, L, RSfs_L, IRSfs_L, TpxSizeL, TpxiSizeL, binaryLong, scaleFactor)
#define TPX_BINARY_LAYOUT(Op, L)                              \
    TPX_BINARY_SFS(Op, 8u, L)                                 \
    TPX_BINARY_SFS(Op, 16u, L)                                \
    TPX_BINARY_SFS(Op, 16s, L)                                \
    TPX_BINARY_FORM(Op, 32f, L, R, IR, int, TpxiSize, binary) \
    TPX_BINARY_FORM(Op, 32f, L, R_L, IR_L, TpxSizeL, TpxiSizeL, binaryLong)
#define TPX_BINARY(Op)        \
    TPX_BINARY_LAYOUT(Op, C1) \
    TPX_BINARY_LAYOUT(Op, C3) \
    TPX_BINARY_LAYOUT(Op, C4) \
    TPX_BINARY_LAYOUT(Op, AC4)
