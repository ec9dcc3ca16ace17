// tpxiBinToGray, tpxiGrayToBin: images of one bit a pixel, least significant bit first.
#include "frame/control.h"
#include "frame/entry.h"
#include "frame/memory_runs.h"

namespace tpx {
namespace {

constexpr int kByteBits = 8;

TpxStatus checkBits(const void* src, int srcStep, const void* dst, int dstStep, TpxiSize roi, int bitOffset) {
    if (anyNull(src, dst)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (srcStep < 1 || dstStep < 1) return tpxErrStep;
    return bitOffset < 0 ? tpxErrSize : tpxOk;
}

// Rows of whole bytes that follow each other without a gap become one; `step` and `len` are the samples'.
void joinBitRows(ptrdiff_t& len, ptrdiff_t& height, int bitOffset, int bitStep, ptrdiff_t sampleBytes,
                 int step) {
    if (bitOffset == 0 && len % kByteBits == 0 && bitStep == len / kByteBits)
        joinRows(len, height, sampleBytes, step);
}

// ---- From bits ------------------------------------------------------------------------------------------

// `Count` bits from bit `at` on; no byte is read that has none of them.
template <int Count>
inline Tpx32u bitsFrom(const Tpx8u* bits, ptrdiff_t at) {
    static_assert(Count == 8 || Count == 16);
    std::conditional_t<Count == 8, Tpx8u, Tpx16u> first;
    const size_t from = size_t(at);
    __builtin_memcpy(&first, bits + from / kByteBits, sizeof first);
    const Tpx32u last = bits[(from + Count - 1) / kByteBits];
    return (first | last << Count) >> (from % kByteBits);
}

// One of two values by each bit.
template <class T>
struct Unpack {
    using V = Vec<T>;
    using B = decltype(laneMask<T>(0));
    static constexpr int L = kLanes<T>;
    B low, flips;
    V operator()(const Tpx8u* bits, ptrdiff_t at) const {
        return bitsAs<V>(low ^ (laneMask<T>(bitsFrom<L>(bits, at)) & flips));
    }
    void row(const Tpx8u* bits, ptrdiff_t from, T* dst, ptrdiff_t len) const {
        writeRun(
            dst, len, samplesToBoundary(dst), [=, this](ptrdiff_t i) { return (*this)(bits, from + i); },
            [=, this] {
                const ptrdiff_t byte = from / kByteBits, offset = from % kByteBits;
                Tpx8u some[L / kByteBits + 1] = {};
                copyShort(some, bits + byte, (offset + len + kByteBits - 1) / kByteBits);
                return (*this)(some, offset);
            });
    }
    void rowStreaming(const Tpx8u* bits, ptrdiff_t from, T* dst, ptrdiff_t len) const {
        writeRunStreaming(
            dst, len, [=, this](ptrdiff_t i, int) { return (*this)(bits, from + i); },
            [=](ptrdiff_t i, int n) { fetchAhead(bits + (from + i) / kByteBits, n / kByteBits); },
            [=, this](ptrdiff_t i, ptrdiff_t n) { row(bits, from + i, dst + i, n); });
    }
};

// Above this traffic in bytes the cache's size is asked for.
constexpr uint64_t kUnpackFloor = 524288;

template <class T>
TpxStatus unpack(const Tpx8u* src, int srcStep, int bitOffset, T* dst, int dstStep, TpxiSize roi, T low,
                 T high) {
    const TpxStatus status = checkBits(src, srcStep, dst, dstStep, roi, bitOffset);
    if (status != tpxOk) return status;
    const int offset = bitOffset % kByteBits;
    ptrdiff_t len = roi.width, height = roi.height;
    joinBitRows(len, height, offset, srcStep, sizeof(T), dstStep);
    using B = typename Unpack<T>::B;
    const B lowBits = bitsAs<B>(splat<Vec<T>>(low));
    const Unpack<T> values{lowBits, lowBits ^ bitsAs<B>(splat<Vec<T>>(high))};
    const uint64_t samples = uint64_t(len) * uint64_t(height);
    if (exceedsCache(samples * sizeof(T) + samples / kByteBits, kUnpackFloor)) {
        walkRows(src, srcStep, dst, dstStep, height,
                 [=](const Tpx8u* s, T* d) { values.rowStreaming(s, offset, d, len); });
        streamFence();
    } else {
        walkRows(src, srcStep, dst, dstStep, height,
                 [=](const Tpx8u* s, T* d) { values.row(s, offset, d, len); });
    }
    return tpxOk;
}

// ---- To bits --------------------------------------------------------------------------------------------

constexpr int kGroup = 16;

// Bits of the samples of a group that are greater than the threshold; of a NaN, or all if the threshold is one,
// NanAbove.
template <bool NanAbove, class T>
inline Tpx32u bitsAbove(const T* p, T threshold) {
    const auto t = splat<Vec<T>>(threshold);
    // The processor compares unsigned lanes by their minimum, and so finds those that are not above.
    constexpr bool inverted = std::is_floating_point_v<T> ? NanAbove : std::is_unsigned_v<T>;
    const auto compare = [&](Vec<T> x) {
        if constexpr (inverted)
            return x <= t;
        else
            return x > t;
    };
    using M = decltype(laneMask<T>(0));
    Tpx32u bits;
    if constexpr (kLanes<T> == kGroup)
        bits = laneBits(M(compare(load(p))));
    else
        bits = laneBits(Pair<M>{M(compare(load(p))), M(compare(load(p + kLanes<T>)))});
    return inverted ? bits ^ 0xFFFF : bits;
}

// The bits under the mask are written, the others kept.
inline void mergeBits(Tpx8u* dst, Tpx32u bits, Tpx32u mask) { *dst = Tpx8u((*dst & ~mask) | (bits & mask)); }

// The bits up to a byte's boundary, whole bytes, and the bits that are left.
template <bool NanAbove, class T>
void packRow(const T* src, Tpx8u* dst, int offset, ptrdiff_t len, T threshold) {
    const auto above = [=](const T* p) { return bitsAbove<NanAbove>(p, threshold); };
    T padded[kGroup];
    const bool isShort = len < kGroup;
    if (isShort) {
        padRun(padded, src, len);
        src = padded;
    }
    if (offset) {
        const ptrdiff_t head = len < kByteBits - offset ? len : kByteBits - offset;
        mergeBits(dst++, above(src) << offset, ((1u << head) - 1) << offset);
        src += head;
        len -= head;
    }
    const auto groups = [=](const T* from, Tpx8u* to, int count) {
        for (int i = 0; i < count; i++) {
            const Tpx16u both = Tpx16u(above(from + i * kGroup));
            __builtin_memcpy(to + i * int(sizeof both), &both, sizeof both);
        }
    };
    // Memory serves four pages side by side faster than one.
    constexpr ptrdiff_t kPage = 4096 / sizeof(T), kLine = kLineBytes / sizeof(T);
    for (; len >= 4 * kPage; src += 4 * kPage, dst += 4 * kPage / kByteBits, len -= 4 * kPage)
        for (ptrdiff_t i = 0; i < kPage; i += kLine)
            for (ptrdiff_t at = i; at < i + 4 * kPage; at += kPage) {
                fetchAhead(src + at, kLineBytes);
                groups(src + at, dst + at / kByteBits, kLine / kGroup);
            }
    for (; len >= kGroup; src += kGroup, dst += kGroup / kByteBits, len -= kGroup) groups(src, dst, 1);
    if (len == 0) return;
    // The group that ends where the row ends; a padded one goes on behind it.
    Tpx32u rest = isShort ? above(padded) >> (src - padded) : above(src + len - kGroup) >> (kGroup - len);
    if (len >= kByteBits) {
        *dst++ = Tpx8u(rest);
        rest >>= kByteBits;
        len -= kByteBits;
    }
    if (len) mergeBits(dst, rest, (1u << len) - 1);
}

template <bool NanAbove, class T>
void packRows(const T* src, int srcStep, Tpx8u* dst, int dstStep, int offset, TpxiSize roi, T threshold) {
    ptrdiff_t len = roi.width, height = roi.height;
    joinBitRows(len, height, offset, dstStep, sizeof(T), srcStep);
    walkRows(src, srcStep, dst, dstStep, height,
             [=](const T* s, Tpx8u* d) { packRow<NanAbove>(s, d, offset, len, threshold); });
}

template <class T>
TpxStatus pack(const T* src, int srcStep, Tpx8u* dst, int dstStep, int bitOffset, TpxiSize roi, T threshold) {
    const TpxStatus status = checkBits(src, srcStep, dst, dstStep, roi, bitOffset);
    if (status != tpxOk) return status;
    const int offset = bitOffset % kByteBits;
    if constexpr (std::is_floating_point_v<T>) {
        const FloatControl control(Rounding::OfThread);
        if (offset == 0)
            packRows<true>(src, srcStep, dst, dstStep, offset, roi, threshold);
        else
            packRows<false>(src, srcStep, dst, dstStep, offset, roi, threshold);
    } else {
        packRows<false>(src, srcStep, dst, dstStep, offset, roi, threshold);
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

#define TPX_BITS(T)                                                                                 \
    TPX_ENTRY(tpxiBinToGray_1u##T##_C1R)                                                            \
    (const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx##T* pDst, int dstStep, TpxiSize roiSize, \
     Tpx##T loVal, Tpx##T hiVal) {                                                                  \
        return tpx::unpack(pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize, loVal, hiVal);      \
    }                                                                                               \
    TPX_ENTRY(tpxiGrayToBin_##T##1u_C1R)                                                            \
    (const Tpx##T* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset, TpxiSize roiSize, \
     Tpx##T threshold) {                                                                            \
        return tpx::pack(pSrc, srcStep, pDst, dstStep, dstBitOffset, roiSize, threshold);           \
    }
TPX_BITS(8u)
TPX_BITS(16u)
TPX_BITS(16s)
TPX_BITS(32f)
