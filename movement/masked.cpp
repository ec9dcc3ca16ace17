// tpxiCopy and tpxiSet under a mask: only pixels whose mask byte is not zero are changed.
#include "frame/entry/entry.h"
#include "frame/images/pixels.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

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
TpxStatus copyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi, const Tpx8u* pMask,
                     int maskStep) {
    constexpr int N = channelsOf(L);
    if (anyNull(pSrc, pDst) || anyNull(pMask)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const Interleaved<T, N> dst(pDst, dstStep);
    mapPixels(roi, false, SelectPixels<L, T>(), dst, Mask<T>(pMask, maskStep),
              Interleaved<const T, N>(pSrc, srcStep), dst);
    return tpxOk;
}

// `value` holds as many samples as the layout computes; no more are read.
template <Layout L, class T>
TpxStatus setMasked(const void* value, T* pDst, int dstStep, TpxiSize roi, const Tpx8u* pMask, int maskStep) {
    constexpr int N = channelsOf(L);
    if (anyNull(value) || anyNull(pDst) || anyNull(pMask)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    T pixel[N] = {};
    __builtin_memcpy(pixel, value, (L == Layout::AC4 ? 3 : N) * sizeof(T));
    const Pattern pattern = makePattern(pixel, sizeof pixel);
    Block<N> fill;
    for (int k = 0; k < N; k++) fill.at[k] = load(pattern.bytes + k * kBlockBytes);
    const Interleaved<T, N> dst(pDst, dstStep);
    mapPixels(
        roi, false,
        [=](const Block<1>& mask, const Block<N>& old) { return SelectPixels<L, T>()(mask, fill, old); }, dst,
        Mask<T>(pMask, maskStep), dst);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// Samples are moved as bits: Bits is the unsigned integer of their width.
#define TPX_COPY_MASKED(T, Bits, L)                                                                          \
    TPX_ENTRY(tpxiCopy_##T##_##L##MR)                                                                        \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,       \
     int maskStep) {                                                                                         \
        return copyMasked<Layout::L>(reinterpret_cast<const Tpx##Bits*>(pSrc), srcStep,                      \
                                     reinterpret_cast<Tpx##Bits*>(pDst), dstStep, roiSize, pMask, maskStep); \
    }
#define TPX_SET_MASKED(T, Bits, L, declaration, value)                                                  \
    TPX_ENTRY(tpxiSet_##T##_##L##MR)                                                                    \
    (const Tpx##T declaration, Tpx##T* pDst, int dstStep, TpxiSize roiSize, const Tpx8u* pMask,         \
     int maskStep) {                                                                                    \
        return setMasked<Layout::L>(value, reinterpret_cast<Tpx##Bits*>(pDst), dstStep, roiSize, pMask, \
                                    maskStep);                                                          \
    }
#define TPX_MASKED(T, Bits, L)  \
    TPX_COPY_MASKED(T, Bits, L) \
    TPX_SET_MASKED(T, Bits, L, value[], value)
#define TPX_MASKED_LAYOUTS(T, Bits)            \
    TPX_COPY_MASKED(T, Bits, C1)               \
    TPX_SET_MASKED(T, Bits, C1, value, &value) \
    TPX_MASKED(T, Bits, C3)                    \
    TPX_MASKED(T, Bits, C4)                    \
    TPX_MASKED(T, Bits, AC4)
TPX_MASKED_LAYOUTS(8u, 8u)
TPX_MASKED_LAYOUTS(16u, 16u)
TPX_MASKED_LAYOUTS(16s, 16u)
TPX_MASKED_LAYOUTS(32s, 32u)
TPX_MASKED_LAYOUTS(32f, 32u)
