// SPDX-License-Identifier: Apache-2.0
// tpxiBinToGray, tpxiGrayToBin: images of one bit a pixel, least significant bit first.
//
// From bits, 16 samples of 8, 16 and 32 bits take 4, 8 and 8 operations besides loads and stores, three a cycle
// or more (measured 1.3 to 1.6, 2.6 to 3.1 and 2.7 to 3.1 cycles). To bits they take 1, 1 and 2 collections of
// a comparison's lanes, of which there is one a cycle at most (measured 1.3, 1.4 to 1.7 and 3.1 to 3.9).
#include "frame/entry/entry.h"
#include "frame/images/walk.h"
#include "frame/runs/memory_runs.h"
#include "frame/simd/control.h"
#include "frame/simd/through_real.h"

namespace tpx {
namespace {

constexpr int kByteBits = 8;

// An image of bits as a side of a walk (frame/images/walk.h); widths count bits.
template <class Byte>
struct BitImage {
    ImageView<Byte> bytes;
    int offset; // of the first bit, from 0 to 7

    BitImage(ImageView<Byte> image, int bitOffset) : bytes(image), offset(bitOffset % kByteBits) {}
    Byte* row(ptrdiff_t y) const { return bytes.row(y); }
    bool isGapless(ptrdiff_t bits) const {
        return offset == 0 && bits % kByteBits == 0 && bytes.isGapless(bits / kByteBits);
    }
};

template <class Src, class Dst>
TpxStatus checkBits(ImageView<Src> src, ImageView<Dst> dst, TpxiSizeL roi, int bitOffset) {
    if (anyNull(src.data, dst.data)) return tpxErrNullPointer;
    if (isEmpty(roi)) return tpxErrSize;
    if (src.step < 1 || dst.step < 1) return tpxErrStep;
    return bitOffset < 0 ? tpxErrSize : tpxOk;
}

// ---- From bits ------------------------------------------------------------------------------------------

// One of two values by each bit.
template <class T>
struct Unpack {
    using V = Vec<T>;
    static constexpr int L = kLanes<T>;
    V low, high;

    // All of a row's registers begin at the same bit of a byte. Four bytes are read for each; the row's last
    // ones are read from a copy, which has bytes behind them.
    template <bool Stream>
    void row(const Tpx8u* bits, ptrdiff_t from, T* dst, ptrdiff_t len) const {
        if constexpr (Stream) {
            const ptrdiff_t toLine = bytesToLine(dst) / ptrdiff_t(sizeof(T)),
                            head = len < toLine ? len : toLine;
            row<false>(bits, from, dst, head);
            from += head;
            dst += head;
            len -= head;
        }
        bits += from / kByteBits;
        const int first = int(from % kByteBits);
        const auto values = [mask = LaneMask<T>(first), low = low, high = high](const Tpx8u* p) {
            return select(mask(loadFront<4>(p)), high, low);
        };
        const auto at = [=](ptrdiff_t i, int = 0) { return values(bits + size_t(i) / kByteBits); };

        const ptrdiff_t spare = (first + len + kByteBits - 1) / kByteBits - 4;
        const ptrdiff_t readable = spare < 0 ? 0 : spare * kByteBits + L;
        const ptrdiff_t bulk = (len < readable ? len : readable) / L * L;
        // Whole registers. Their bytes are counted: a division of each index would be half of the work.
        const auto plain = [=](ptrdiff_t i, ptrdiff_t n) {
            constexpr int kBytes = L / kByteBits;
            const Tpx8u* p = bits + size_t(i) / kByteBits;
            T* d = dst + i;
            for (; n >= 4 * L; n -= 4 * L, d += 4 * L, p += 4 * kBytes) {
                const V v[4] = {values(p), values(p + kBytes), values(p + 2 * kBytes), values(p + 3 * kBytes)};
                for (int k = 0; k < 4; k++) store(d + k * L, v[k]);
            }
            for (; n > 0; n -= L, d += L, p += kBytes) store(d, values(p));
        };
        if constexpr (Stream)
            writeRunStreaming(
                dst, bulk, at, [=](ptrdiff_t i, int n) { fetchAhead(bits + i / kByteBits, n / kByteBits); },
                plain);
        else
            plain(0, bulk);

        const ptrdiff_t rest = len - bulk;
        Tpx8u last[32] = {};
        copyShort(last, bits + bulk / kByteBits, (first + rest + kByteBits - 1) / kByteBits);
        for (ptrdiff_t i = 0; i < rest; i += L) {
            const V v = values(last + i / kByteBits);
            copyBlock(dst + bulk + i, &v, (rest - i < L ? rest - i : L) * ptrdiff_t(sizeof(T)));
        }
    }
};

template <class T>
TpxStatus unpack(ImageView<const Tpx8u> src, int bitOffset, ImageView<T> dst, TpxiSizeL roi, T low, T high) {
    if (const TpxStatus status = checkBits(src, dst, roi, bitOffset)) return status;
    const BitImage<const Tpx8u> bits(src, bitOffset);
    const Unpack<T> values{splat<Vec<T>>(low), splat<Vec<T>>(high)};
    const Extent e = samplesOf(roi, 1);
    const uint64_t traffic = trafficOf(e, dst) + uint64_t(e.width) * uint64_t(e.height) / kByteBits;
    walkStreaming(
        goesPastCaches(kStreamConversion, traffic), e,
        [=](ptrdiff_t len, T* d, const Tpx8u* s) { values.template row<false>(s, bits.offset, d, len); },
        [=](ptrdiff_t len, T* d, const Tpx8u* s) { values.template row<true>(s, bits.offset, d, len); }, dst,
        bits);
    return tpxOk;
}

// ---- To bits --------------------------------------------------------------------------------------------

// Bits of one or two comparisons, which are written at a time: putting more together takes longer than a store.
template <class T>
constexpr int kBitGroup = sizeof(T) == 4 ? 8 : 16;
template <class T>
using BitGroup = std::conditional_t<kBitGroup<T> == 8, Tpx8u, Tpx16u>;

// Bits of the samples of a group that are greater than the threshold; of a NaN, or all if the threshold is one,
// NanAbove.
template <bool NanAbove, class T>
inline Tpx32u bitsAbove(const T* p, T threshold) {
    const auto t = splat<Vec<T>>(threshold);
    constexpr bool inverted = std::is_floating_point_v<T> && NanAbove;
    const auto compare = [&](Vec<T> x) {
        if constexpr (inverted) {
            return x <= t;
        } else if constexpr (std::is_unsigned_v<T>) {
            // The processor compares signed lanes: both are lower by half of the range.
            using Signed = Vec<std::make_signed_t<T>>;
            const auto half = splat<Vec<T>>(T(kMax<T> / 2 + 1));
            return bitsAs<Signed>(x ^ half) > bitsAs<Signed>(t ^ half);
        } else {
            return x > t;
        }
    };
    using M = MaskOf<T>;
    Tpx32u bits;
    if constexpr (kLanes<T> == kBitGroup<T>)
        bits = laneBits(M(compare(load(p))));
    else
        bits = laneBits(Pair<M>{M(compare(load(p))), M(compare(load(p + kLanes<T>)))});
    return inverted ? ~bits : bits;
}

// The bits under the mask are written, the others kept.
inline void mergeBits(Tpx8u* dst, Tpx32u bits, Tpx32u mask) { *dst = Tpx8u((*dst & ~mask) | (bits & mask)); }

// The bits up to a byte's boundary, whole bytes, and the bits that are left.
template <bool NanAbove, class T>
void packRow(const T* src, Tpx8u* dst, int offset, ptrdiff_t len, T threshold) {
    const auto above = [=](const T* p) { return bitsAbove<NanAbove>(p, threshold); };
    constexpr int kGroup = kBitGroup<T>;
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
    const auto groups = [=]<int Bits>(std::integral_constant<int, Bits>, const T* from, Tpx8u* to) {
#pragma GCC unroll 4
        for (int k = 0; k < Bits; k += kGroup)
            poke(reinterpret_cast<BitGroup<T>*>(to + k / kByteBits), BitGroup<T>(above(from + k)));
    };
    constexpr ptrdiff_t kPage = 4096 / sizeof(T);
    constexpr int kLine = int(kLineBytes / sizeof(T)), kSeveral = 4 * kGroup;
    const ptrdiff_t bulk = walkFourStreams(len, kLine, kPage, 16 * kPage, [=](ptrdiff_t i, ptrdiff_t apart) {
        for (ptrdiff_t at = i; at < i + 4 * apart; at += apart) {
            fetchAhead(src + at, kLineBytes);
            groups(std::integral_constant<int, kLine>{}, src + at, dst + size_t(at) / kByteBits);
        }
    });
    src += bulk;
    dst += bulk / kByteBits;
    len -= bulk;
    for (; len >= kSeveral; src += kSeveral, dst += kSeveral / kByteBits, len -= kSeveral)
        groups(std::integral_constant<int, kSeveral>{}, src, dst);
    for (; len >= kGroup; src += kGroup, dst += kGroup / kByteBits, len -= kGroup)
        poke(reinterpret_cast<BitGroup<T>*>(dst), BitGroup<T>(above(src)));
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
void packRows(ImageView<const T> src, const BitImage<Tpx8u>& dst, TpxiSizeL roi, T threshold) {
    walkJoined(
        samplesOf(roi, 1),
        [=, offset = dst.offset](ptrdiff_t len, Tpx8u* d, const T* s) {
            packRow<NanAbove>(s, d, offset, len, threshold);
        },
        dst, src);
}

template <class T>
TpxStatus pack(ImageView<const T> src, ImageView<Tpx8u> dst, int bitOffset, TpxiSizeL roi, T threshold) {
    if (const TpxStatus status = checkBits(src, dst, roi, bitOffset)) return status;
    const BitImage<Tpx8u> bits(dst, bitOffset);
    if constexpr (std::is_floating_point_v<T>) {
        const FloatControl control(roundingAs(Rounding::OfThread));
        if (bits.offset == 0)
            packRows<true>(src, bits, roi, threshold);
        else
            packRows<false>(src, bits, roi, threshold);
    } else {
        packRows<false>(src, bits, roi, threshold);
    }
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_FROM_BITS(T)                                                                                    \
    TPX_ENTRY(tpxiBinToGray_1u##T##_C1R)                                                                    \
    (const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx##T* pDst, int dstStep, TpxiSize roiSize,         \
     Tpx##T loVal, Tpx##T hiVal) {                                                                          \
        return unpack<Tpx##T>({pSrc, srcStep}, srcBitOffset, {pDst, dstStep}, wide(roiSize), loVal, hiVal); \
    }
TPX_FROM_BITS(8u)
TPX_FROM_BITS(16u)
TPX_FROM_BITS(16s)
TPX_FROM_BITS(32f)
#undef TPX_FROM_BITS

#define TPX_TO_BITS(T)                                                                                 \
    TPX_ENTRY(tpxiGrayToBin_##T##1u_C1R)                                                               \
    (const Tpx##T* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset, TpxiSize roiSize,    \
     Tpx##T threshold) {                                                                               \
        return pack<Tpx##T>({pSrc, srcStep}, {pDst, dstStep}, dstBitOffset, wide(roiSize), threshold); \
    }
TPX_TO_BITS(8u)
TPX_TO_BITS(16u)
TPX_TO_BITS(16s)
TPX_TO_BITS(32f)
#undef TPX_TO_BITS
