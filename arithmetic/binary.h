// SPDX-License-Identifier: Apache-2.0
// What the binary operations share: the rule of the scale factor, checks, the 64-bit forms, and the entries.
//
// An operation is a class with
//   saturated(a, b)        the result with factor 0, in registers of T
//   exact(a, b)            the exact result, a pair of registers of wider lanes
//   halved(a, b)           the result with factor 1, where that is shorter; optional
//   shrunk<V>(n)           a rule for factors from 1 to 15 in V's lanes, or for all if there is no exact();
//                          optional
//   kIsLight               whether saturated() has few operations: see Light of frame/runs/runs.h
//   kZeroFrom<T>           the smallest factor at which every result is 0
#pragma once

#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"
#include "frame/simd/rounding.h"

namespace tpx {

template <class T>
struct BinaryImages {
    ImageView<const T> src1, src2;
    ImageView<T> dst;

    BinaryImages from(ptrdiff_t samples, ptrdiff_t rows) const {
        return {src1.from(samples, rows), src2.from(samples, rows), dst.from(samples, rows)};
    }
};

// ---- The rule of the scale factor: s * 2^-n, rounded to nearest with ties to even, saturated ------------

// What a factor from kZeroFrom on leaves; no source is read.
template <Layout L, class T>
void fillZero(Extent e, const ImageView<T>& dst) {
    if constexpr (L == Layout::AC4) {
        const auto zero = [](auto) { return V32f{}; };
        walkJoined(
            e, [&](ptrdiff_t len, T* d) { moveKeepingAlpha(d, d, len / 4, zero); }, dst);
    } else {
        const T zero = 0;
        const Pattern zeros = makePattern(&zero, sizeof zero);
        walkStreaming(
            goesPastCaches(kStreamFill, uint64_t(e.width) * uint64_t(e.height)), e, // counted in samples
            [&](ptrdiff_t len, T* d) { fillRow(d, len * ptrdiff_t(sizeof(T)), zeros); },
            [&](ptrdiff_t len, T* d) { fillRowStreaming(d, len * ptrdiff_t(sizeof(T)), zeros); }, dst);
    }
}

// A function for each rule: in one of all of them even small images pay for its frame.
template <Layout L, class T, class Rule>
[[gnu::noinline]] void mapImages(const BinaryImages<T>& a, Extent e, Rule rule) {
    mapImage<L>(e, rule, a.dst, a.src1, a.src2);
}

// The work, once the arguments have passed their checks.
template <class Op, Layout L, class T>
TpxStatus binaryRows(const BinaryImages<T>& a, Extent e, int n) {
    const auto map = [&](auto rule) { mapImages<L>(a, e, rule); };
    const auto mapShort = [&](auto rule) {
        if constexpr (Op::kIsLight)
            map(Light{rule});
        else
            map(rule);
    };
    using V = Vec<T>;
    if constexpr (std::is_same_v<T, float>) {
        map([](V x, V y) { return Op::saturated(x, y); });
    } else if (n >= Op::template kZeroFrom<T>) {
        fillZero<L>(e, a.dst);
    } else if (n == 0) {
        mapShort([](V x, V y) { return Op::saturated(x, y); });
    } else if (n > 0) {
        if constexpr (requires { Op::halved(V{}, V{}); }) {
            if (n == 1) {
                map([](V x, V y) { return Op::halved(x, y); });
                return tpxOk;
            }
        }
        constexpr bool kHasExact = requires { Op::exact(V{}, V{}); };
        if constexpr (requires { Op::template shrunk<V>(n); }) {
            if (n <= 15 || !kHasExact) {
                map(Op::template shrunk<V>(n));
                return tpxOk;
            }
        }
        if constexpr (kHasExact) {
            using W = decltype(Op::exact(V{}, V{}).low);
            const RoundedShift<tpxRoundNearestEven, W, Headroom::Half> shift(n); // its constants made once
            map([shift](V x, V y) {
                const Pair<W> s = Op::exact(x, y);
                return narrow<T>(Pair<W>{shift(s.low), shift(s.high)});
            });
        }
    } else if (n == -1) {
        mapShort([](V x, V y) {
            const V s = Op::saturated(x, y);
            return addSat(s, s);
        });
    } else {
        const int k = n < -kValueBits<T> ? kValueBits<T> : -n;
        map([k](V x, V y) { return shiftLeftSat(Op::saturated(x, y), k); });
    }
    return tpxOk;
}

// ---- Calls ------------------------------------------------------------------------------------------------

// The short forms.
template <class Op, Layout L, class T>
TpxStatus binary(const BinaryImages<T>& a, TpxiSize roi, int n = 0) {
    // Layouts of several channels look at the width before everything else.
    if ((L == Layout::C3 || L == Layout::C4) && roi.width < 1) return tpxErrSize;
    if (anyNull(a.src1.data, a.src2.data, a.dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    return binaryRows<Op, pointwiseLayout(L)>(a, samplesOf(roi, channelsOf(L)), n);
}

// A 64-bit call fits the short form if every step and the image's bytes have a magnitude below 2^31 - 1.
// Products wrap, so that sizes may be cut; what is below 1 must stay so, since nothing was handed over then.
template <class T>
inline bool fitsShortForm(const BinaryImages<T>& a, TpxiSizeL roi, int channels) {
    const auto small = [](TpxSizeL x) { return x < 0x7FFFFFFF && x > -0x7FFFFFFF; };
    const uint64_t bytes = uint64_t(roi.width) * uint64_t(roi.height) * uint64_t(channels) * sizeof(T);
    const auto keepsSign = [](TpxSizeL x) { return x > 0 || x == int(x); };
    return small(a.src1.step) && small(a.src2.step) && small(a.dst.step) && small(TpxSizeL(bytes)) &&
           keepsSign(roi.width) && keepsSign(roi.height);
}

// The pixels of the chunks into which the rows of larger calls are cut.
template <class T>
constexpr TpxSizeL chunkOf(int channels) {
    const TpxSizeL pixels = 0x3FFFFFFF / (channels * int(sizeof(T)));
    return channels == 3 ? pixels - 1 : pixels;
}

// The 64-bit forms, whose statuses are those of parts. A call that fits is the short form, checks and all. Any
// other is walked in chunks: the first negative status of a chunk ends it, else the last chunk's status is
// returned. With nothing to walk that is tpxOk, whatever the pointers.
template <class Op, Layout L, class T>
TpxStatus binary(const BinaryImages<T>& a, TpxiSizeL roi, int n = 0) {
    constexpr int channels = channelsOf(L);
    if (fitsShortForm(a, roi, channels)) return binary<Op, L>(a, TpxiSize{int(roi.width), int(roi.height)}, n);
    if (isEmpty(roi)) return tpxOk;
    if (anyNull(a.src1.data, a.src2.data, a.dst.data)) return tpxErrNullPointer;
    constexpr TpxSizeL chunk = chunkOf<T>(channels);
    TpxStatus status = tpxOk;
    for (TpxSizeL y = 0; y < roi.height; y++) {
        for (TpxSizeL x = 0; x < roi.width; x += chunk) {
            const TpxSizeL pixels = roi.width - x < chunk ? roi.width - x : chunk;
            status = binaryRows<Op, pointwiseLayout(L)>(a.from(x * channels, y), {pixels * channels, 1}, n);
            if (status < 0) return status;
        }
    }
    return status;
}

} // namespace tpx

// ---- Entries ----------------------------------------------------------------------------------------------

// Two sources to a destination, and in place. `name` is the exported names' stem.
#define TPX_BINARY(T, L, name, Op, R, IR, Step, Size)                                                         \
    TPX_ENTRY(name##T##_##L##R)                                                                               \
    (const Tpx##T* pSrc1, Step src1Step, const Tpx##T* pSrc2, Step src2Step, Tpx##T* pDst, Step dstStep,      \
     Size roiSize) {                                                                                          \
        using namespace tpx;                                                                                  \
        return binary<Op, Layout::L, Tpx##T>({{pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}},         \
                                             roiSize);                                                        \
    }                                                                                                         \
    TPX_ENTRY(name##T##_##L##IR)                                                                              \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pSrcDst, Step srcDstStep, Size roiSize) {                      \
        using namespace tpx;                                                                                  \
        return binary<Op, Layout::L, Tpx##T>({{pSrc, srcStep}, {pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}}, \
                                             roiSize);                                                        \
    }
#define TPX_BINARY_SFS(T, L, name, Op, R, IR, Step, Size)                                                      \
    TPX_ENTRY(name##T##_##L##R)                                                                                \
    (const Tpx##T* pSrc1, Step src1Step, const Tpx##T* pSrc2, Step src2Step, Tpx##T* pDst, Step dstStep,       \
     Size roiSize, int scaleFactor) {                                                                          \
        using namespace tpx;                                                                                   \
        return binary<Op, Layout::L, Tpx##T>({{pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}}, roiSize, \
                                             scaleFactor);                                                     \
    }                                                                                                          \
    TPX_ENTRY(name##T##_##L##IR)                                                                               \
    (const Tpx##T* pSrc, Step srcStep, Tpx##T* pSrcDst, Step srcDstStep, Size roiSize, int scaleFactor) {      \
        using namespace tpx;                                                                                   \
        return binary<Op, Layout::L, Tpx##T>({{pSrc, srcStep}, {pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}},  \
                                             roiSize, scaleFactor);                                            \
    }
#define TPX_BINARY_TYPES(L, name, Op)                                      \
    TPX_BINARY_SFS(8u, L, name, Op, RSfs, IRSfs, int, TpxiSize)            \
    TPX_BINARY_SFS(16u, L, name, Op, RSfs, IRSfs, int, TpxiSize)           \
    TPX_BINARY_SFS(16s, L, name, Op, RSfs, IRSfs, int, TpxiSize)           \
    TPX_BINARY(32f, L, name, Op, R, IR, int, TpxiSize)                     \
    TPX_BINARY_SFS(8u, L, name, Op, RSfs_L, IRSfs_L, TpxSizeL, TpxiSizeL)  \
    TPX_BINARY_SFS(16u, L, name, Op, RSfs_L, IRSfs_L, TpxSizeL, TpxiSizeL) \
    TPX_BINARY_SFS(16s, L, name, Op, RSfs_L, IRSfs_L, TpxSizeL, TpxiSizeL) \
    TPX_BINARY(32f, L, name, Op, R_L, IR_L, TpxSizeL, TpxiSizeL)
