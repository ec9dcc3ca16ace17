// SPDX-License-Identifier: Apache-2.0
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
TpxStatus palette(ImageView<const S> src, ImageView<D> dst, TpxiSizeL roi, const D* const* tables, int bits) {
    if (anyNull(src.data) || anyNull(dst.data) || anyNull(tables)) return tpxErrNullPointer;
    Tables byChannel{};
    for (int c = 0; c < coloursOf(L); c++) {
        if (!tables[c]) return tpxErrNullPointer;
        byChannel.at[c] = reinterpret_cast<const Tpx8u*>(tables[c]);
    }
    if (isEmpty(roi)) return tpxErrSize;
    if (bits < 1 || bits > int(8 * sizeof(S))) return tpxErrOutOfRange;
    const ptrdiff_t len = roi.width * channelsOf(L);
    if (src.step < len * ptrdiff_t(sizeof(S)) || dst.step < len * EntryBytes) return tpxErrStep;
    byChannel.mask = indexMask<S>(bits);
    mapImageByTables<L, EntryBytes>(roi, byChannel, src, dst.data, dst.step);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ---------------------------------------------------------------------------------------------

// From samples to entries of their type.
#define TPX_PALETTE(T, L)                                                                               \
    TPX_ENTRY(tpxiLUTPalette_##T##_##L##R)                                                              \
    (const Tpx##T* pSrc, int srcStep, Tpx##T* pDst, int dstStep, TpxiSize roiSize,                      \
     Given<Layout::L, const Tpx##T*> pTable, int nBitSize) {                                            \
        return palette<Layout::L, sizeof(Tpx##T), Tpx##T, Tpx##T>(                                      \
            {pSrc, srcStep}, {pDst, dstStep}, wide(roiSize), arrayOf<const Tpx##T*>(pTable), nBitSize); \
    }
// From samples S to packed entries of so many bytes, of type D or of several bytes; `types` names both.
#define TPX_PALETTE_PACKED(types, S, D, entryBytes)                                                      \
    TPX_ENTRY(tpxiLUTPalette_##types##_C1R)                                                              \
    (const Tpx##S* pSrc, int srcStep, Tpx##D* pDst, int dstStep, TpxiSize roiSize, const Tpx##D* pTable, \
     int nBitSize) {                                                                                     \
        return palette<Layout::C1, entryBytes, Tpx##S, Tpx##D>({pSrc, srcStep}, {pDst, dstStep},         \
                                                               wide(roiSize), &pTable, nBitSize);        \
    }
#define TPX_PALETTE_LAYOUTS(T) \
    TPX_PALETTE(T, C1)         \
    TPX_PALETTE(T, C3)         \
    TPX_PALETTE(T, C4)         \
    TPX_PALETTE(T, AC4)
TPX_PALETTE_LAYOUTS(8u)
TPX_PALETTE_LAYOUTS(16u)
TPX_PALETTE_PACKED(8u24u, 8u, 8u, 3)
TPX_PALETTE_PACKED(8u32u, 8u, 32u, 4)
TPX_PALETTE_PACKED(16u8u, 16u, 8u, 1)
TPX_PALETTE_PACKED(16u24u, 16u, 8u, 3)
TPX_PALETTE_PACKED(16u32u, 16u, 32u, 4)
#undef TPX_PALETTE
#undef TPX_PALETTE_PACKED
#undef TPX_PALETTE_LAYOUTS
