// SPDX-License-Identifier: Apache-2.0
// Image memory: rows on 64-byte boundaries.
#include "frame/entry/entry.h"
#include "tpxcore.h"

namespace {

constexpr uint64_t kRowAlignment = 64;

constexpr uint64_t roundRow(uint64_t bytes) { return (bytes + (kRowAlignment - 1)) & ~(kRowAlignment - 1); }

template <int kPixelBytes>
void* mallocImage(int width, int height, int* pStepBytes) {
    constexpr int64_t kLongestRow = 0x7FFFFFFF;
    constexpr uint64_t kBlockLimit = 0x80000000;

    if (!pStepBytes) return nullptr;
    *pStepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    const int64_t rowBytes = int64_t{width} * kPixelBytes;
    if (rowBytes > kLongestRow) return nullptr;

    // A row in the last 63 bytes below the limit rounds to 2^31 and leaves a negative step. Its product with
    // the height, read as unsigned, is vast, so such a row always stops at the block's limit.
    const int step = static_cast<int>(static_cast<uint32_t>(roundRow(static_cast<uint64_t>(rowBytes))));
    *pStepBytes = step;
    const uint64_t blockBytes = static_cast<uint64_t>(int64_t{height} * step);
    if (blockBytes >= kBlockLimit) return nullptr;
    return tpxMalloc(static_cast<int>(blockBytes));
}

// Whether the product of two halves has a positive high half. The factors are of 32 bits, signed or not, and
// never both unsigned with the top bit set, so the product itself does not overflow.
constexpr bool highHalfIsPositive(int64_t a, int64_t b) { return (a * b) >> 32 > 0; }

constexpr int64_t highHalf(uint64_t x) { return static_cast<int64_t>(x >> 32); }
constexpr int64_t signedLowHalf(uint64_t x) { return static_cast<int32_t>(static_cast<uint32_t>(x)); }

// All arithmetic wraps at 64 bits and is tested by halves. The tests are coarse by contract: what passes
// them, the allocator judges by the wrapped length.
template <int kPixelBytes>
void* mallocImage(TpxSizeL width, TpxSizeL height, TpxSizeL* pStepBytes) {
    if (!pStepBytes) return nullptr;
    *pStepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    const auto pixels = static_cast<uint64_t>(width);
    const auto rows = static_cast<uint64_t>(height);

    // The high half alone times the pixel's bytes reaches 2^64. Pixels of 1 and 2 bytes cannot; those of 3
    // and 6 can, but are let through, and so is what the low half carries over the edge: such rows wrap.
    if (kPixelBytes % 4 == 0 && highHalf(pixels) * kPixelBytes >> 32 != 0) return nullptr;

    // Rounding up left the positive numbers. A product that is negative already, a row of 2^63 bytes or more,
    // passes: for heights below 2^31 the tests of the block or the allocator refuse it.
    const uint64_t rowBytes = pixels * kPixelBytes;
    const uint64_t step = roundRow(rowBytes);
    if (static_cast<int64_t>(step) < static_cast<int64_t>(rowBytes)) return nullptr;
    *pStepBytes = static_cast<TpxSizeL>(step);

    // Step times height leaves 64 bits if both high halves meet, or if one of them meets the other's low half
    // and overflows 32 bits. A low half from 2^31 counts as negative and is let through by its test.
    const uint64_t padded = rowBytes + (kRowAlignment - 1);
    if (highHalfIsPositive(highHalf(padded), highHalf(rows)) ||
        highHalfIsPositive(highHalf(padded), signedLowHalf(rows)) ||
        highHalfIsPositive(signedLowHalf(padded), highHalf(rows))) {
        return nullptr;
    }
    return tpxMalloc_L(static_cast<TpxSizeL>(step * rows));
}

} // namespace

#define TPX_MALLOC_FORM(type, layout, channels, suffix, Size)                                                 \
    TPX_ENTRY(tpxiMalloc_##type##_##layout##suffix)(Size width, Size height, Size * pStepBytes) {             \
        return static_cast<Tpx##type*>(mallocImage<channels * sizeof(Tpx##type)>(width, height, pStepBytes)); \
    }
#define TPX_MALLOC_LAYOUT(type, layout, channels)  \
    TPX_MALLOC_FORM(type, layout, channels, , int) \
    TPX_MALLOC_FORM(type, layout, channels, _L, TpxSizeL)
#define TPX_MALLOC(type)           \
    TPX_MALLOC_LAYOUT(type, C1, 1) \
    TPX_MALLOC_LAYOUT(type, C2, 2) \
    TPX_MALLOC_LAYOUT(type, C3, 3) \
    TPX_MALLOC_LAYOUT(type, C4, 4) \
    TPX_MALLOC_LAYOUT(type, AC4, 4)

TPX_MALLOC(8u)
TPX_MALLOC(16u)
TPX_MALLOC(16s)
TPX_MALLOC(32s)
TPX_MALLOC(32f)
TPX_MALLOC(32sc)
TPX_MALLOC(32fc)

TPX_ENTRY(tpxiFree)(void* p) { tpxFree(p); }
