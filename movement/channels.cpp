// SPDX-License-Identifier: Apache-2.0
// tpxiCopy between pixels and single channels or planes, tpxiSet of one channel, tpxiDup.
#include "frame/entry/entry.h"
#include "frame/images/pixels.h"

namespace tpx {
namespace {

// ---- One channel of interest ----------------------------------------------------------------------------

// The bytes of a channel's samples in a block that begins with the first and ends with the last of them.
template <class T, int N>
struct ChannelPlaces {
    alignas(16) Tpx8u toPlane[N][kBlockBytes]; // of register k, the byte that byte i of the plane comes from
    alignas(16) Tpx8u toBlock[N][kBlockBytes]; // the byte of the plane that goes to byte i of register k
    alignas(16) Tpx8u others[N][kBlockBytes];  // 0xFF in the bytes of other channels
    constexpr ChannelPlaces() : toPlane{}, toBlock{}, others{} {
        using Samples = Channel<T, N>;
        constexpr int kSample = sizeof(T);
        for (int k = 0; k < N; k++)
            for (int i = 0; i < kBlockBytes; i++) {
                const int wanted = i / kSample * N * kSample + i % kSample - int(Samples::offset(k));
                toPlane[k][i] = Tpx8u(wanted >= 0 && wanted < kBlockBytes ? wanted : 0x80);
                const int byte = int(Samples::offset(k)) + i, inPixel = byte % (N * kSample);
                const bool ours = inPixel < kSample;
                toBlock[k][i] = Tpx8u(ours ? byte / (N * kSample) * kSample + inPixel : 0x80);
                others[k][i] = ours ? 0 : 0xFF;
            }
    }
};
template <class T, int N>
inline constexpr ChannelPlaces<T, N> kChannelPlaces;

template <class T, int N>
struct Extract {
    Block<1> operator()(const Block<N>& a) const {
        Block<1> b{};
        for (int k = 0; k < N; k++) b.at[0] |= shuffleBytes(a.at[k], load(kChannelPlaces<T, N>.toPlane[k]));
        return b;
    }
};
template <class T, int N>
struct Insert {
    Block<N> operator()(const Block<1>& a, const Block<N>& old) const {
        Block<N> b;
        for (int k = 0; k < N; k++)
            b.at[k] = shuffleBytes(a.at[0], load(kChannelPlaces<T, N>.toBlock[k])) |
                      (old.at[k] & load(kChannelPlaces<T, N>.others[k]));
        return b;
    }
};
template <class T, int N>
struct Replace {
    Block<N> operator()(const Block<N>& a, const Block<N>& old) const {
        Block<N> b;
        for (int k = 0; k < N; k++) {
            const V8u others = load(kChannelPlaces<T, N>.others[k]);
            b.at[k] = (a.at[k] & ~others) | (old.at[k] & others);
        }
        return b;
    }
};

// The channel of pixels of From samples to the channel of pixels of To samples; 1 is a plane.
template <int From, int To, class T>
TpxStatus copyChannel(Channel<const T, From> src, Channel<T, To> dst, TpxiSizeL roi) {
    if (anyNull(src.p, dst.p)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if constexpr (To == 1)
        mapPixels(roi, Extract<T, From>(), dst, src);
    else if constexpr (From == 1)
        mapPixels(roi, Insert<T, To>(), dst, src, dst);
    else
        mapPixels(roi, Replace<T, To>(), dst, src, dst);
    return tpxOk;
}

template <int N, class T>
TpxStatus setChannel(T value, Channel<T, N> dst, TpxiSizeL roi) {
    if (anyNull(dst.p)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const Block<1> plane{{bitsAs<V8u>(splat<Vec<T>>(value))}};
    const auto rule = [=](const Block<N>& old) { return Insert<T, N>()(plane, old); };
    mapPixels(roi, rule, dst, dst);
    return tpxOk;
}

// ---- Planes ---------------------------------------------------------------------------------------------

// When results go past the caches: by the traffic, and for the narrow samples also by how the rows lie. From
// planes rows of 512 pixels and more do, wherever they lie.
template <class T, int N>
bool streamsPlanes(bool toPlanes, const Interleaved<T, N>& pixels, ptrdiff_t planeStep, TpxiSizeL roi) {
    const uint64_t traffic = trafficOf(samplesOf(roi, 1), pixels, pixels);
    if (sizeof(T) == 4) return goesPastCaches(kStreamWidePlanes, traffic);
    const bool gapless = pixels.isGapless(roi.width) && pixels.step == N * planeStep;
    if (toPlanes) return gapless && goesPastCaches(kStreamToPlanes, traffic);
    return (gapless || roi.width >= 512) && goesPastCaches(kStreamFromPlanes, traffic);
}

// The array of planes may be null itself.
template <int N, class T>
TpxStatus checkPlanes(const void* pixels, const T* const planes[], TpxiSizeL roi) {
    if (anyNull(pixels, planes)) return tpxErrNullPointer;
    for (int k = 0; k < N; k++)
        if (anyNull(planes[k])) return tpxErrNullPointer;
    return isEmpty(roi) ? tpxErrSize : tpxOk;
}

template <class T, int N>
[[gnu::noinline]] void split(Interleaved<const T, N> src, Planes<T, N> dst, TpxiSizeL roi) {
    const auto rule = [](const Block<N>& pixels) { return deinterleave<sizeof(T)>(pixels); };
    mapPixels(roi, streamsPlanes(true, src, dst.step, roi), rule, dst, src);
}
template <class T, int N>
[[gnu::noinline]] void join(Planes<const T, N> src, Interleaved<T, N> dst, TpxiSizeL roi) {
    const auto rule = [](const Block<N>& planes) { return interleave<sizeof(T)>(planes); };
    mapPixels(roi, streamsPlanes(false, dst, src.step, roi), rule, dst, src);
}

template <int N, class T>
TpxStatus pixelsToPlanes(const T* pSrc, ptrdiff_t srcStep, T* const pDst[], ptrdiff_t dstStep, TpxiSizeL roi) {
    const TpxStatus status = checkPlanes<N>(pSrc, pDst, roi);
    if (status == tpxOk) split<UnsignedOf<T>, N>({pSrc, srcStep}, {pDst, dstStep}, roi);
    return status;
}
template <int N, class T>
TpxStatus planesToPixels(const T* const pSrc[], ptrdiff_t srcStep, T* pDst, ptrdiff_t dstStep, TpxiSizeL roi) {
    const TpxStatus status = checkPlanes<N>(pDst, pSrc, roi);
    if (status == tpxOk) join<UnsignedOf<T>, N>({pSrc, srcStep}, {pDst, dstStep}, roi);
    return status;
}

// ---- Duplicates -----------------------------------------------------------------------------------------

template <int N>
struct DuplicatePlaces {
    alignas(16) Tpx8u from[N][kBlockBytes];
    constexpr DuplicatePlaces() : from{} {
        for (int i = 0; i < N * kBlockBytes; i++) from[i / kBlockBytes][i % kBlockBytes] = Tpx8u(i / N);
    }
};
template <int N>
inline constexpr DuplicatePlaces<N> kDuplicatePlaces;

template <int N>
TpxStatus duplicate(Interleaved<const Tpx8u, 1> src, Interleaved<Tpx8u, N> dst, TpxiSizeL roi) {
    if (anyNull(src.p, dst.p)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const auto repeat = [](const Block<1>& a) {
        Block<N> b;
        for (int k = 0; k < N; k++) b.at[k] = shuffleBytes(a.at[0], load(kDuplicatePlaces<N>.from[k]));
        return b;
    };
    mapPixels(roi, goesPastCaches(kStreamPointwise, trafficOf(samplesOf(roi, 1), dst, src)), repeat, dst, src);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_COPY_CHANNEL(T, L, From, To)                                                                   \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                                       \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {                       \
        return copyChannel<From, To, UnsignedOf<Tpx##T>>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize)); \
    }
#define TPX_SET_CHANNEL(T, L, N)                                                                     \
    TPX_ENTRY(tpxiSet_##T##_##L##R)(Tpx##T value, Tpx##T * pDst, int dstStep, TpxiSize roiSize) {    \
        using Bits = UnsignedOf<Tpx##T>;                                                             \
        return setChannel<N, Bits>(__builtin_bit_cast(Bits, value), {pDst, dstStep}, wide(roiSize)); \
    }
#define TPX_COPY_TO_PLANES(T, L, N)                                                          \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                         \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* const pDst[], int dstStep, TpxiSize roiSize) { \
        return pixelsToPlanes<N>(pSrc, srcStep, pDst, dstStep, wide(roiSize));               \
    }
#define TPX_COPY_FROM_PLANES(T, L, N)                                                        \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                         \
    (const Tpx##T* const pSrc[], int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) { \
        return planesToPixels<N>(pSrc, srcStep, pDst, dstStep, wide(roiSize));               \
    }
#define TPX_CHANNELS(T)              \
    TPX_COPY_CHANNEL(T, C3C, 3, 3)   \
    TPX_COPY_CHANNEL(T, C4C, 4, 4)   \
    TPX_COPY_CHANNEL(T, C3C1, 3, 1)  \
    TPX_COPY_CHANNEL(T, C4C1, 4, 1)  \
    TPX_COPY_CHANNEL(T, C1C3, 1, 3)  \
    TPX_COPY_CHANNEL(T, C1C4, 1, 4)  \
    TPX_SET_CHANNEL(T, C3C, 3)       \
    TPX_SET_CHANNEL(T, C4C, 4)       \
    TPX_COPY_TO_PLANES(T, C3P3, 3)   \
    TPX_COPY_TO_PLANES(T, C4P4, 4)   \
    TPX_COPY_FROM_PLANES(T, P3C3, 3) \
    TPX_COPY_FROM_PLANES(T, P4C4, 4)
TPX_CHANNELS(8u)
TPX_CHANNELS(16u)
TPX_CHANNELS(16s)
TPX_CHANNELS(32s)
TPX_CHANNELS(32f)
#undef TPX_COPY_CHANNEL
#undef TPX_SET_CHANNEL
#undef TPX_COPY_TO_PLANES
#undef TPX_COPY_FROM_PLANES
#undef TPX_CHANNELS

TPX_ENTRY(tpxiDup_8u_C1C3R)(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize) {
    return duplicate<3>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize));
}
TPX_ENTRY(tpxiDup_8u_C1C4R)(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize) {
    return duplicate<4>({pSrc, srcStep}, {pDst, dstStep}, wide(roiSize));
}
