// SPDX-License-Identifier: Apache-2.0
// tpxiCopy and tpxiSet under a mask: only pixels whose mask byte is not zero are changed.
#include "frame/entry/entry.h"
#include "frame/images/pixels.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// ---- Rules -----------------------------------------------------------------------------------------------

// Which mask byte of a block each byte of its registers stands under.
template <int N, class T>
struct MaskPlaces {
    alignas(16) Tpx8u pixel[N][kBlockBytes];
    constexpr MaskPlaces() : pixel{} {
        for (int i = 0; i < N * kBlockBytes; i++)
            pixel[i / kBlockBytes][i % kBlockBytes] = Tpx8u(i / (N * int(sizeof(T))));
    }
};
template <int N, class T>
inline constexpr MaskPlaces<N, T> kMaskPlaces;

// A zero of the mask takes the old pixel, and so does kept alpha everywhere.
template <Layout L, class T>
struct SelectPixels {
    static constexpr int N = channelsOf(L);
    Block<N> operator()(const Block<1>& mask, const Block<N>& a, const Block<N>& old) const {
        const V8u zero = V8u(mask.at[0] == V8u{});
        Block<N> b;
        for (int k = 0; k < N; k++) {
            V8u keep = N * sizeof(T) == 1 ? zero : shuffleBytes(zero, load(kMaskPlaces<N, T>.pixel[k]));
            if (L == Layout::AC4) keep |= bitsAs<V8u>(load(kAlphaMask<T>.words));
            b.at[k] = select(V8s(keep), old.at[k], a.at[k]);
        }
        return b;
    }
};

template <class T>
using Mask = Interleaved<const Tpx8u, 1, kBlockPixels<T>>;
template <Layout L, class T>
using Pixels = Interleaved<T, channelsOf(L)>;

// ---- Operations ------------------------------------------------------------------------------------------

template <Layout L, class T>
TpxStatus copyMasked(Pixels<L, const T> src, Pixels<L, T> dst, TpxiSizeL roi, Mask<T> mask) {
    if (anyNull(src.p, dst.p, mask.p)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    mapPixels(roi, SelectPixels<L, T>(), dst, mask, src, dst);
    return tpxOk;
}

// `value` holds as many samples as the layout computes; no more are read.
template <Layout L, class T>
TpxStatus setMasked(const void* value, Pixels<L, T> dst, TpxiSizeL roi, Mask<T> mask) {
    constexpr int N = channelsOf(L);
    if (anyNull(value, dst.p, mask.p)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    T pixel[N] = {};
    __builtin_memcpy(pixel, value, coloursOf(L) * sizeof(T));
    const Pattern pattern = makePattern(pixel, sizeof pixel);
    Block<N> fill;
    for (int k = 0; k < N; k++) fill.at[k] = load(pattern.bytes + k * kBlockBytes);
    const auto rule = [=](const Block<1>& bits, const Block<N>& old) {
        return SelectPixels<L, T>()(bits, fill, old);
    };
    mapPixels(roi, rule, dst, mask, dst);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_COPY_MASKED(T, L)                                                                             \
    TPX_ENTRY(tpxiCopy_##T##_##L##MR)                                                                     \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,    \
     int maskStep) {                                                                                      \
        return copyMasked<Layout::L, UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), \
                                                         {pMask, maskStep});                              \
    }
#define TPX_SET_MASKED(T, L)                                                                            \
    TPX_ENTRY(tpxiSet_##T##_##L##MR)                                                                    \
    (Given<Layout::L, Tpx##T> value, Tpx##T * pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,  \
     int maskStep) {                                                                                    \
        return setMasked<Layout::L, UnsignedOf<Tpx##T>>(arrayOf(value), {pDst, dstStep}, wide(roiSize), \
                                                        {pMask, maskStep});                             \
    }
#define TPX_LAYOUTS(INSTANCE, T) \
    INSTANCE(T, C1)              \
    INSTANCE(T, C3)              \
    INSTANCE(T, C4)              \
    INSTANCE(T, AC4)
TPX_LAYOUTS(TPX_COPY_MASKED, 8u)
TPX_LAYOUTS(TPX_COPY_MASKED, 16u)
TPX_LAYOUTS(TPX_COPY_MASKED, 16s)
TPX_LAYOUTS(TPX_COPY_MASKED, 32s)
TPX_LAYOUTS(TPX_COPY_MASKED, 32f)
TPX_LAYOUTS(TPX_SET_MASKED, 8u)
TPX_LAYOUTS(TPX_SET_MASKED, 16u)
TPX_LAYOUTS(TPX_SET_MASKED, 16s)
TPX_LAYOUTS(TPX_SET_MASKED, 32s)
TPX_LAYOUTS(TPX_SET_MASKED, 32f)
#undef TPX_COPY_MASKED
#undef TPX_SET_MASKED
#undef TPX_LAYOUTS
