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
        using Side = Channel<T, N>;
        constexpr int kSample = sizeof(T);
        for (int k = 0; k < N; k++)
            for (int i = 0; i < kBlockBytes; i++) {
                const int wanted = i / kSample * N * kSample + i % kSample - int(Side::offset(k));
                toPlane[k][i] = Tpx8u(wanted >= 0 && wanted < kBlockBytes ? wanted : 0x80);
                const int byte = int(Side::offset(k)) + i, inPixel = byte % (N * kSample);
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
TpxStatus copyChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const Channel<const T, From> src(pSrc, srcStep);
    const Channel<T, To> dst(pDst, dstStep);
    if constexpr (To == 1)
        mapPixels(roi, false, Extract<T, From>(), dst, src);
    else if constexpr (From == 1)
        mapPixels(roi, false, Insert<T, To>(), dst, src, dst);
    else
        mapPixels(roi, false, Replace<T, To>(), dst, src, dst);
    return tpxOk;
}

template <int N, class T>
TpxStatus setChannel(T value, T* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const Block<1> plane{{bitsAs<V8u>(splat<Vec<T>>(value))}};
    const Channel<T, N> dst(pDst, dstStep);
    mapPixels(
        roi, false, [=](const Block<N>& old) { return Insert<T, N>()(plane, old); }, dst, dst);
    return tpxOk;
}

// ---- Planes ---------------------------------------------------------------------------------------------

// When results go past the caches: by the traffic in bytes (reads and writes), and for the narrow samples also
// by how the rows lie.
template <int N, class T>
bool streamsPlanes(bool toPlanes, ptrdiff_t pixelStep, ptrdiff_t planeStep, TpxiSize roi) {
    constexpr uint64_t kWideFloor = 524288, kNarrowFloor = 6291456;
    const uint64_t traffic = 2 * N * sizeof(T) * uint64_t(roi.width) * uint64_t(roi.height);
    if (sizeof(T) == 4) return fillsCache(traffic, kWideFloor);
    const bool contiguous = planeStep == ptrdiff_t(sizeof(T)) * roi.width && pixelStep == N * planeStep;
    if (toPlanes) return contiguous && exceedsCache(traffic, kNarrowFloor);
    return (contiguous || roi.width >= 512) && exceedsCache(traffic, 0);
}

template <int N, class T>
TpxStatus checkPlanes(const void* pixels, const T* const planes[], TpxiSize roi) {
    if (anyNull(pixels, planes)) return tpxErrNullPointer;
    for (int k = 0; k < N; k++)
        if (anyNull(planes[k])) return tpxErrNullPointer;
    return isEmpty(roi) ? tpxErrSize : tpxOk;
}

template <class T, int N>
[[gnu::noinline]] void split(Interleaved<const T, N> src, Planes<T, N> dst, TpxiSize roi) {
    mapPixels(
        roi, streamsPlanes<N, T>(true, src.step, dst.step, roi),
        [](const Block<N>& pixels) { return deinterleave<sizeof(T)>(pixels); }, dst, src);
}
template <class T, int N>
[[gnu::noinline]] void join(Planes<const T, N> src, Interleaved<T, N> dst, TpxiSize roi) {
    mapPixels(
        roi, streamsPlanes<N, T>(false, dst.step, src.step, roi),
        [](const Block<N>& planes) { return interleave<sizeof(T)>(planes); }, dst, src);
}

// Bits is the unsigned integer of T's width.
template <class Bits, int N, class T>
TpxStatus pixelsToPlanes(const T* pSrc, int srcStep, T* const pDst[], int dstStep, TpxiSize roi) {
    const TpxStatus status = checkPlanes<N>(pSrc, pDst, roi);
    if (status == tpxOk) split<Bits, N>({pSrc, srcStep}, {pDst, dstStep}, roi);
    return status;
}
template <class Bits, int N, class T>
TpxStatus planesToPixels(const T* const pSrc[], int srcStep, T* pDst, int dstStep, TpxiSize roi) {
    const TpxStatus status = checkPlanes<N>(pDst, pSrc, roi);
    if (status == tpxOk) join<Bits, N>({pSrc, srcStep}, {pDst, dstStep}, roi);
    return status;
}

// ---- Duplicates -----------------------------------------------------------------------------------------

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
constexpr uint64_t kDuplicateFloor = 4194304;

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
TpxStatus duplicate(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roi) {
    if (anyNull(pSrc, pDst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    const uint64_t traffic = uint64_t(roi.width) * uint64_t(roi.height) * (1 + N);
    const auto repeat = [](const Block<1>& a) {
        Block<N> b;
        for (int k = 0; k < N; k++) b.at[k] = shuffleBytes(a.at[0], load(kDuplicatePlaces<N>.from[k]));
        return b;
    };
    mapPixels(roi, exceedsCache(traffic, kDuplicateFloor), repeat, Interleaved<Tpx8u, N>(pDst, dstStep),
              Interleaved<const Tpx8u, 1>(pSrc, srcStep));
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// Samples are moved as bits: Bits is the unsigned integer of their width.
#define TPX_COPY_CHANNEL(T, Bits, L, From, To)                                              \
    TPX_ENTRY(tpxiCopy_##T##_##L##R)                                                        \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) {        \
        return copyChannel<From, To>(reinterpret_cast<const Tpx##Bits*>(pSrc), srcStep,     \
                                     reinterpret_cast<Tpx##Bits*>(pDst), dstStep, roiSize); \
    }
#define TPX_COPY_PLANES(T, Bits, N)                                                          \
    TPX_ENTRY(tpxiCopy_##T##_C##N##P##N##R)                                                  \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* const pDst[], int dstStep, TpxiSize roiSize) { \
        return pixelsToPlanes<Tpx##Bits, N>(pSrc, srcStep, pDst, dstStep, roiSize);          \
    }                                                                                        \
    TPX_ENTRY(tpxiCopy_##T##_P##N##C##N##R)                                                  \
    (const Tpx##T* const pSrc[], int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize) { \
        return planesToPixels<Tpx##Bits, N>(pSrc, srcStep, pDst, dstStep, roiSize);          \
    }
#define TPX_SET_CHANNEL(T, Bits, N)                                                                    \
    TPX_ENTRY(tpxiSet_##T##_C##N##CR)(Tpx##T value, Tpx##T * pDst, int dstStep, TpxiSize roiSize) {    \
        return setChannel<N>(__builtin_bit_cast(Tpx##Bits, value), reinterpret_cast<Tpx##Bits*>(pDst), \
                             dstStep, roiSize);                                                        \
    }
#define TPX_CHANNELS(T, Bits)             \
    TPX_COPY_CHANNEL(T, Bits, C3C, 3, 3)  \
    TPX_COPY_CHANNEL(T, Bits, C4C, 4, 4)  \
    TPX_COPY_CHANNEL(T, Bits, C3C1, 3, 1) \
    TPX_COPY_CHANNEL(T, Bits, C4C1, 4, 1) \
    TPX_COPY_CHANNEL(T, Bits, C1C3, 1, 3) \
    TPX_COPY_CHANNEL(T, Bits, C1C4, 1, 4) \
    TPX_COPY_PLANES(T, Bits, 3)           \
    TPX_COPY_PLANES(T, Bits, 4)           \
    TPX_SET_CHANNEL(T, Bits, 3)           \
    TPX_SET_CHANNEL(T, Bits, 4)
TPX_CHANNELS(8u, 8u)
TPX_CHANNELS(16u, 16u)
TPX_CHANNELS(16s, 16u)
TPX_CHANNELS(32s, 32u)
TPX_CHANNELS(32f, 32u)

TPX_ENTRY(tpxiDup_8u_C1C3R)(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize) {
    return duplicate<3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
TPX_ENTRY(tpxiDup_8u_C1C4R)(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize) {
    return duplicate<4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
