// SPDX-License-Identifier: Apache-2.0
// tpxiFilterBorderGetSize, tpxiFilterBorderInit, tpxiFilterBorderSetMode: the block of the general filter.
#include "filters/general_block.h"

#include "frame/entry/entry.h"
#include "frame/simd/core.h"

namespace tpx {
namespace {

static_assert(offsetof(FilterBlock, scaleBase64) == 40 && offsetof(FilterBlock, kernel16) == 72 &&
                  offsetof(FilterBlock, numChannels) == 108 && sizeof(FilterBlock) <= kFilterHead,
              "the record is contract");

// ---- Checks -----------------------------------------------------------------------------------------------

constexpr bool isInteger(TpxDataType type) {
    return type == tpxDataType8u || type == tpxDataType16u || type == tpxDataType16s;
}
constexpr int sampleBytes(TpxDataType type) {
    return type == tpxDataType8u ? 1 : type == tpxDataType32f ? 4 : 2;
}
constexpr bool isExact(TpxRoundMode mode) { return (mode & tpxRoundExactFlag) != 0; }
constexpr bool isRoundMode(TpxRoundMode mode) {
    const TpxRoundMode plain = mode & ~tpxRoundExactFlag;
    return plain >= tpxRoundTowardZero && plain <= tpxRoundHalfAway;
}
constexpr bool isChannelCount(int channels) { return channels >= 1 && channels <= 4; }

// What both initialisers check alike.
TpxStatus checkKernel(bool isType, int channels, TpxRoundMode mode) {
    if (!isType) return tpxErrDataType;
    if (!isChannelCount(channels)) return tpxErrChannelIndex;
    return isRoundMode(mode) ? tpxOk : tpxErrRoundMode;
}

// ---- Kernels of integers ----------------------------------------------------------------------------------

void setDivisor(FilterBlock& b, Tpx32s divisor) {
    const bool oneBit = divisor > 0 && (divisor & (divisor - 1)) == 0;
    b.divisor = divisor;
    b.divisorF = Tpx32f(divisor);
    b.divisorClass = divisor == 1 ? DivisorClass::One : oneBit ? DivisorClass::PowerOfTwo : DivisorClass::Other;
    const bool power = b.divisorClass == DivisorClass::PowerOfTwo;
    b.shift = power ? __builtin_ctz(Tpx32u(divisor)) : 0;
    b.half = power ? divisor >> 1 : 0;
    b.lowMask = power ? divisor - 1 : 0;
    b.inverse = 1.0f / b.divisorF;
    b.scaleBase = power ? b.inverse : b.divisorF;
    b.scaleBase64 = b.scaleBase;
}

// Two coefficients beside each other, one in front of the other in memory.
constexpr Tpx32s packPair(int low, int high) { return Tpx32s((Tpx32u(high) << 16) | (Tpx32u(low) & 0xFFFF)); }
constexpr Tpx32s packBytePairs(int low, int high) {
    return Tpx32s(0x10001 * ((Tpx32u(high & 0xFF) << 8) | Tpx32u(low & 0xFF)));
}

void makePairTable(FilterBlock& b, const Tpx16s* kernel) {
    Tpx32s* out = b.pairTable;
    b.pairsUsable = 0;
    for (int y = 0; y < b.kernelHeight; y++)
        for (int x = 0; x < b.kernelWidth; x += 2) {
            const Tpx16s* const at = kernel + ptrdiff_t(y) * b.kernelWidth + x;
            const int low = peek(at), high = x + 1 < b.kernelWidth ? peek(at + 1) : 0;
            const auto fits = [](int k) { return k >= -32767 && k <= 32766; };
            if (!fits(low) || !fits(high)) return;
            for (int copy = 0; copy < 4; copy++) *out++ = packPair(low, high);
        }
    b.pairsUsable = 1;
}

// Sums of bytes fit 16 bits if all of them lie in a range of 65536 values and no pair, which saturates, leaves
// those of signed ones; coefficients are signed bytes then.
void chooseSumWidth(FilterBlock& b, const Tpx16s* kernel) {
    int64_t positive = 0, negative = 0;
    bool pairsFit = b.kind == FilterKind::Integers8u;
    for (int y = 0; y <= b.kernelHeight; y++)
        for (int x = 0; x < b.kernelWidth; x++) {
            const auto at = [&](int row) {
                return row < 0 || row >= b.kernelHeight
                           ? 0
                           : int(peek(kernel + ptrdiff_t(row) * b.kernelWidth + x));
            };
            const int upper = at(y - 1), lower = at(y);
            (lower > 0 ? positive : negative) += lower;
            const int rise = (upper > 0 ? upper : 0) + (lower > 0 ? lower : 0),
                      fall = (upper < 0 ? upper : 0) + (lower < 0 ? lower : 0);
            pairsFit = pairsFit && upper < 128 && lower < 128 && rise <= 128 && fall >= -128;
        }
    const int64_t magnitude = positive - negative;
    b.sumBias = b.sumMost = 0;
    if (pairsFit && magnitude * 255 <= 65535) {
        b.sumWidth = SumWidth::Bits16;
        b.sumBias = Tpx32s(-negative * 255);
        b.sumMost = Tpx32s(positive * 255);
    } else {
        b.sumWidth =
            b.kind == FilterKind::Integers8u || magnitude < 65536 ? SumWidth::Bits32 : SumWidth::Bits64;
    }
}

void makeRowPairTable(FilterBlock& b, const Tpx16s* kernel) {
    Tpx32s* out = const_cast<Tpx32s*>(rowPairTable(b));
    for (int pair = 0; pair < rowPairsOf(b.kernelHeight); pair++)
        for (int x = 0; x < b.kernelWidth; x++) {
            const auto at = [&](int row) {
                return row < 0 || row >= b.kernelHeight
                           ? 0
                           : int(peek(kernel + ptrdiff_t(row) * b.kernelWidth + x));
            };
            for (int result = 0; result < 2; result++) {
                const int upper = at(2 * pair - result), lower = at(2 * pair + 1 - result);
                *out++ = b.sumWidth == SumWidth::Bits16 ? packBytePairs(upper, lower) : packPair(upper, lower);
            }
        }
}

FilterBlock& beginBlock(TpxiFilterBorderBlock* spec, TpxiSize kernel, int channels) {
    FilterBlock& b = *blockIn(spec);
    b = FilterBlock{};
    b.kernelWidth = kernel.width;
    b.kernelHeight = kernel.height;
    b.numChannels = channels;
    return b;
}

void initIntegers(FilterBlock& b, const Tpx16s* kernel, FilterKind kind, int divisor, TpxRoundMode mode) {
    const int64_t n = int64_t(b.kernelWidth) * b.kernelHeight;
    b.kind = kind;
    b.roundMode = mode;
    b.kernel16 = firstArea<Tpx16s>(&b);
    for (int64_t i = 0; i < n; i++) b.kernel16[n - 1 - i] = peek(kernel + i);
    setDivisor(b, divisor);
    b.pairTable = secondArea<Tpx32s>(&b, n, sizeof(Tpx16s));
    makePairTable(b, kernel);
    chooseSumWidth(b, kernel);
    makeRowPairTable(b, kernel);
}

// ---- Kernels of floats ------------------------------------------------------------------------------------

constexpr FilterKind floatKind(TpxDataType type) {
    return type == tpxDataType8u    ? FilterKind::Floats8u
           : type == tpxDataType16u ? FilterKind::Floats16u
           : type == tpxDataType16s ? FilterKind::Floats16s
                                    : FilterKind::Floats32f;
}

// The kernel may be the block's own area: coefficients then change places two by two.
void initFloats(FilterBlock& b, const Tpx32f* kernel, TpxDataType type, TpxRoundMode mode) {
    const int64_t n = int64_t(b.kernelWidth) * b.kernelHeight;
    b.kind = floatKind(type);
    b.roundMode = mode & ~tpxRoundExactFlag;
    b.kernel32 = firstArea<Tpx32f>(&b);
    for (int64_t i = 0, j = n - 1; i <= j; i++, j--) {
        const Tpx32f first = peek(kernel + i), last = peek(kernel + j);
        b.kernel32[j] = first;
        b.kernel32[i] = last;
    }
    if (!isInteger(type) || b.numChannels == 2) return;
    b.kernelExpanded = secondArea<Tpx32f>(&b, n, sizeof(Tpx32f));
    const Tpx32f scale = type == tpxDataType16s ? 0x1p-16f : 1.0f;
    for (int64_t i = 0; i < n; i++)
        for (int copy = 0; copy < 4; copy++) b.kernelExpanded[4 * i + copy] = b.kernel32[n - 1 - i] * scale;
}

TpxStatus init32f(const Tpx32f* kernel, TpxiSize size, TpxDataType type, int channels, TpxRoundMode mode,
                  TpxiFilterBorderBlock* spec) {
    if (anyNull(kernel) || anyNull(spec)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    const TpxStatus status = checkKernel(isInteger(type) || type == tpxDataType32f, channels, mode);
    if (status != tpxOk) return status;
    initFloats(beginBlock(spec, size, channels), kernel, type, mode);
    return isExact(mode) ? tpxWarnExactIgnored : tpxOk;
}

TpxStatus init16s(const Tpx16s* kernel, TpxiSize size, int divisor, TpxDataType type, int channels,
                  TpxRoundMode mode, TpxiFilterBorderBlock* spec) {
    if (anyNull(kernel) || anyNull(spec)) return tpxErrNullPointer;
    if (isEmpty(size)) return tpxErrSize;
    const TpxStatus status = checkKernel(isInteger(type), channels, mode);
    if (status != tpxOk) return status;
    if (divisor == 0) return tpxErrDivisor;

    if (becomesFloat(size, type, channels)) {
        Tpx32f* const own = firstArea<Tpx32f>(blockIn(spec));
        const Tpx64f reciprocal = 1.0 / divisor;
        for (int64_t i = 0; i < int64_t(size.width) * size.height; i++)
            own[i] = Tpx32f(peek(kernel + i) * reciprocal);
        return init32f(own, size, type, channels, mode, spec);
    }
    const bool bytes = type == tpxDataType8u;
    initIntegers(beginBlock(spec, size, channels), kernel,
                 bytes ? FilterKind::Integers8u : FilterKind::Integers16s, divisor, mode);
    return isExact(mode) && !bytes && channels != 1 ? tpxWarnExactIgnored : tpxOk;
}

TpxStatus setMode(TpxHintAlgorithm hint, int offset, TpxiFilterBorderBlock* spec) {
    if (anyNull(spec)) return tpxErrNullPointer;
    FilterBlock& b = *blockIn(spec);
    const bool bytes = b.kind == FilterKind::Integers8u, words = b.kind == FilterKind::Integers16s;
    if (offset != 0 && (words || b.kind == FilterKind::Floats16s || b.kind == FilterKind::Floats32f))
        return tpxErrUnsupportedMode;
    if (hint != tpxHintAccurate)
        b.roundMode &= 3;
    else if (bytes || (words && b.numChannels == 1))
        b.roundMode |= tpxRoundExactFlag;
    b.offset = offset;
    const bool integers = bytes || words || b.kind == FilterKind::Integers16u;
    b.offsetF = integers ? Tpx32f(offset) * b.scaleBase : Tpx32f(offset);
    b.hint = hint;
    return tpxOk;
}

TpxStatus sizes(TpxiSize kernel, TpxiSize roi, TpxDataType type, TpxDataType kernelType, int channels,
                int* pSpecSize, int* pBufferSize) {
    if (isEmpty(kernel) || isEmpty(roi)) return tpxErrSize;
    if (!isInteger(type) && type != tpxDataType32f) return tpxErrDataType;
    if (kernelType != tpxDataType16s && kernelType != tpxDataType32f) return tpxErrDataType;
    if (!isChannelCount(channels)) return tpxErrChannelIndex;
    if (anyNull(pSpecSize, pBufferSize)) return tpxErrNullPointer;

    const bool floats = kernelType == tpxDataType32f || becomesFloat(kernel, type, channels);
    const int64_t block = blockBytes(wide(kernel), floats),
                  buffer = stripBytes(wide(kernel), wide(roi), sampleBytes(type), channels) +
                           kernelWorkBytes(wide(kernel), roi.width, type, floats, channels) + 63;
    if (block > int64_t(kLongestBlock) || buffer > int64_t(kLongestBlock)) {
        *pBufferSize = 0;
        return tpxErrSizeTooLarge;
    }
    *pSpecSize = int(block);
    *pBufferSize = int(buffer);
    return tpxOk;
}

} // namespace
} // namespace tpx

using namespace tpx;

// ---- Entries ----------------------------------------------------------------------------------------------

TPX_ENTRY(tpxiFilterBorderGetSize)
(TpxiSize kernelSize, TpxiSize roiSize, TpxDataType dataType, TpxDataType kernelType, int numChannels,
 int* pSpecSize, int* pBufferSize) {
    return sizes(kernelSize, roiSize, dataType, kernelType, numChannels, pSpecSize, pBufferSize);
}
TPX_ENTRY(tpxiFilterBorderInit_16s)
(const Tpx16s* pKernel, TpxiSize kernelSize, int divisor, TpxDataType dataType, int numChannels,
 TpxRoundMode roundMode, TpxiFilterBorderBlock* pSpec) {
    return init16s(pKernel, kernelSize, divisor, dataType, numChannels, roundMode, pSpec);
}
TPX_ENTRY(tpxiFilterBorderInit_32f)
(const Tpx32f* pKernel, TpxiSize kernelSize, TpxDataType dataType, int numChannels, TpxRoundMode roundMode,
 TpxiFilterBorderBlock* pSpec) {
    return init32f(pKernel, kernelSize, dataType, numChannels, roundMode, pSpec);
}
TPX_ENTRY(tpxiFilterBorderSetMode)
(TpxHintAlgorithm hint, int offset, TpxiFilterBorderBlock* pSpec) { return setMode(hint, offset, pSpec); }
