// tpxiLUTPalette: samples replaced by the entries of the caller's tables.
#include "frame/entry/entry.h"
#include "frame/images/pointwise.h"

namespace tpx {
namespace {

// All ones in the low bits of every sample of a word.
template <class S>
constexpr Tpx64u indexMask(int bits) {
    constexpr Tpx64u kLowest = ~Tpx64u(0) / S(~0);
    return kLowest * ((Tpx64u(1) << bits) - 1);
}

// A table for each channel that is computed; D is the sample of the destination, of which an entry has
// EntryBytes bytes.
template <Layout L, int EntryBytes, class S, class D>
TpxStatus palette(const S* src, int srcStep, D* dst, int dstStep, TpxiSize roi, const D* const* tables,
                  int bits) {
    if (anyNull(src, dst, tables)) return tpxErrNullPointer;
    Tables byChannel{};
    for (int c = 0; c < (L == Layout::AC4 ? 3 : channelsOf(L)); c++) {
        if (!tables[c]) return tpxErrNullPointer;
        byChannel.at[c] = reinterpret_cast<const Tpx8u*>(tables[c]);
    }
    if (isEmpty(roi)) return tpxErrSize;
    if (bits < 1 || bits > int(8 * sizeof(S))) return tpxErrOutOfRange;
    const ptrdiff_t len = ptrdiff_t(roi.width) * channelsOf(L);
    if (srcStep < len * ptrdiff_t(sizeof(S)) || dstStep < len * EntryBytes) return tpxErrStep;
    byChannel.mask = indexMask<S>(bits);
    lookupImage<L, EntryBytes>(src, srcStep, dst, dstStep, roi, byChannel);
    return tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

// Types of source and destination, and bytes of an entry.
#define TPX_PALETTE(types, S, D, entryBytes, L, tableType, at)                                             \
    TPX_ENTRY(tpxiLUTPalette_##types##_##L##R)                                                             \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, tableType pTable,       \
     int nBitSize) {                                                                                       \
        using namespace tpx;                                                                               \
        return palette<Layout::L, entryBytes>(pSrc, srcStep, pDst, dstStep, roiSize, at pTable, nBitSize); \
    }
#define TPX_PACKED(types, S, D, entryBytes) TPX_PALETTE(types, S, D, entryBytes, C1, const Tpx##D*, &)
#define TPX_ARRAY(T, L) TPX_PALETTE(T, T, T, sizeof(Tpx##T), L, const Tpx##T* const*, )
#define TPX_TYPE(T)                     \
    TPX_PACKED(T, T, T, sizeof(Tpx##T)) \
    TPX_ARRAY(T, C3)                    \
    TPX_ARRAY(T, C4)                    \
    TPX_ARRAY(T, AC4)
TPX_TYPE(8u)
TPX_TYPE(16u)
TPX_PACKED(8u24u, 8u, 8u, 3)
TPX_PACKED(8u32u, 8u, 32u, 4)
TPX_PACKED(16u8u, 16u, 8u, 1)
TPX_PACKED(16u24u, 16u, 8u, 3)
TPX_PACKED(16u32u, 16u, 32u, 4)
