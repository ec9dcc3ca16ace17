// SPDX-License-Identifier: Apache-2.0
// What a caller asks about resizes: the sizes of plans, of initialisation and of work buffers, and which part
// of the source a tile needs.
#include "frame/entry/entry.h"
#include "geometry/resize/plan.h"

namespace tpx {
namespace {

constexpr int64_t kSpare = kBlockAlignment; // for rounding the caller's address up

// Lengths of tables, in entries or bytes, as the formulas count them.
constexpr int64_t padded(int64_t n) { return int64_t(roundUp(uint64_t(n), 32)); }

// ---- Sizes of a plan ------------------------------------------------------------------------------------

// Taps that the plan of an antialiased resize has room for along an axis.
int64_t antialiasingTaps(int64_t src, int64_t dst, int kernelTaps) {
    const double ratio = double(src) / double(dst);
    return ratio <= 1 ? kernelTaps : 2 * ceilOf(kernelTaps * ratio);
}

int64_t superEntries(int64_t src, int64_t dst) {
    const int64_t divisor = commonDivisor(src, dst);
    return dst / divisor * superRun(src / divisor, dst / divisor);
}

// The sizes are fixed by contract, and callers may have computed them, so they are written as formulas instead
// of being counted from takeTables; a test holds the tables below them. With S for the two padded lengths:
// - 232 = 168 for the record, and 64 to align tables in; the record of a plan of 64f ends at 192, aligned to
// 64;
// - 4 * S are the two tables of indices. Linear has weights of no more than 4 bytes for each position along
//   either axis (Q14: 2 along y, 4 along x), so 8 * S, and 12 * S with weights of 8 bytes;
// - cubic and Lanczos have 4 and 6 floats for each position, and room for 96 and 160 more along either axis, in
//   which the length is padded and aligned. Lanczos of 2 lobes leaves a third unused;
// - super-sampling has the tables of one period alone, indices padded;
// - antialiasing counts its taps by the ratio.
TpxStatus planSizes(TpxiSizeL src, TpxiSizeL dst, TpxDataType dataType, TpxInterpolationType interpolation,
                    bool antialiasing, int64_t& specSize, int64_t& initSize) {
    const int64_t S = padded(dst.width) + padded(dst.height);
    const auto weightRoom = [&](int64_t perPosition, int64_t more) {
        return 4 * (padded(perPosition * dst.width + more) + padded(perPosition * dst.height + more));
    };
    specSize = 4 * S + 232;
    initSize = 0;

    if (dataType == tpxDataType64f) {
        if (antialiasing || interpolation != tpxInterpolationLinear) return tpxErrUnsupportedMode;
        if (isSmaller(src, squareOf(2))) return tpxErrSize;
        specSize = 12 * S + 192;
    } else {
        switch (interpolation) {
            case tpxInterpolationNearest:
                break;
            case tpxInterpolationLinear:
                if (isSmaller(src, squareOf(2))) return tpxErrSize;
                specSize = 8 * S + 232;
                break;
            case tpxInterpolationCubic:
            case tpxInterpolationLanczos:
                if (isSmaller(src, squareOf(4))) return tpxErrSize;
                specSize += interpolation == tpxInterpolationCubic ? weightRoom(4, 96) : weightRoom(6, 160);
                initSize = 4 * S;
                break;
            case tpxInterpolationSuper: {
                if (isSmaller(src, dst)) return tpxErrSize;
                const int64_t tx = superEntries(src.width, dst.width),
                              ty = superEntries(src.height, dst.height);
                specSize = 232 + 4 * (padded(tx) + padded(ty) + tx + ty);
                break;
            }
            default:
                return tpxErrUnsupportedMode;
        }
        const bool plainOnly =
            interpolation == tpxInterpolationNearest || interpolation == tpxInterpolationSuper;
        if (antialiasing && !plainOnly) {
            const int taps = interpolation == tpxInterpolationLinear  ? 2
                             : interpolation == tpxInterpolationCubic ? 4
                                                                      : 6;
            specSize = padded(4 * dst.width * antialiasingTaps(src.width, dst.width, taps)) +
                       padded(4 * dst.height * antialiasingTaps(src.height, dst.height, taps)) + 4 * S + 232;
            if (taps == 2 && src.width <= dst.width) specSize += padded(4 * dst.width);
            initSize = 8 * S;
        }
        antialiasing = antialiasing && plainOnly;
    }
    specSize += kSpare;
    initSize += kSpare;
    return antialiasing ? tpxWarnNoAntialiasing : tpxOk;
}

template <class Length>
TpxStatus getSize(TpxiSizeL src, TpxiSizeL dst, TpxDataType dataType, TpxInterpolationType interpolation,
                  Tpx32u antialiasing, Length* pSpecSize, Length* pInitBufSize) {
    constexpr bool kLong = kFormOf<Length> == Form::Long;
    if (anyNull(pSpecSize, pInitBufSize)) return tpxErrNullPointer;
    if (isZero(src) || isZero(dst)) return tpxWarnNoOperation;
    if (isEmpty(src) || isEmpty(dst)) return tpxErrSize;
    if (interpolation != 0 && interpolation != tpxInterpolationNearest &&
        interpolation != tpxInterpolationLinear && interpolation != tpxInterpolationCubic &&
        interpolation != tpxInterpolationSuper && interpolation != tpxInterpolationLanczos)
        return tpxErrInterpolation;
    if (kLong && !isPlanType(dataType, interpolation)) return tpxErrDataType;
    if (kLong && (isTooLong(src) || isTooLong(dst))) return tpxErrSizeTooLarge;
    int64_t specSize, initSize;
    const TpxStatus status =
        planSizes(src, dst, dataType, interpolation, antialiasing != 0, specSize, initSize);
    if (status < 0) return status;
    if (!kLong && (specSize > 0x7ffffffe || initSize > 0x7ffffffe)) return tpxErrSizeTooLarge;
    *pSpecSize = Length(specSize);
    *pInitBufSize = Length(initSize);
    return status;
}

// ---- Sizes of work buffers, fixed by contract likewise ---------------------------------------------------

// Bytes of the work buffer for a tile of the plan, or a negative status.
int64_t workSize(const TpxiResizeSpec& plan, TpxiSizeL tile, int64_t channels) {
    const TpxiResizeAxis &x = plan.axisX, &y = plan.axisY;
    const int64_t w = minOf<int64_t>(tile.width, x.dstLen), h = minOf<int64_t>(tile.height, y.dstLen);
    const int64_t lobesX = plan.lobesX, lobesY = plan.lobesY;

    if (plan.dataType == tpxDataType64f) {
        if (plan.interpolation != tpxInterpolationLinear) return tpxErrUnsupportedMode;
        return kSpare + 8 * channels * padded(2 * w + 32) + 4 * (padded(w) + padded(h));
    }
    int64_t bytes = kSpare + padded(4 * w) + padded(4 * h);
    switch (plan.interpolation) {
        case tpxInterpolationNearest:
            return bytes;
        case tpxInterpolationLinear:
        case tpxInterpolationCubic:
        case tpxInterpolationLanczos: {
            const int64_t row = padded(4 * channels * w);
            bytes += 2 * lobesY * row;
            if (plan.antialiasing)
                bytes += padded(16 * lobesY + 8) + padded(16 * lobesX * x.leadCount) +
                         padded(16 * lobesX * x.trailCount) + padded(16 * lobesY * y.leadCount) +
                         padded(16 * lobesY * y.trailCount) + row;
            return bytes;
        }
        case tpxInterpolationSuper: {
            const float covered = Tpx32f(x.srcRatio) * Tpx32f(w) / Tpx32f(x.dstRatio) + 3.0f;
            const int64_t columns = minOf<int64_t>(int64_t(covered), x.srcLen);
            const int64_t rows = minOf<int64_t>(y.dstRatio, tile.height);
            int64_t ring;
            if (__builtin_mul_overflow(4 * channels * padded(columns) + 8, rows, &ring) ||
                __builtin_add_overflow(bytes + 32, ring, &bytes))
                return tpxErrSizeTooLarge;
            return bytes;
        }
        default:
            return tpxErrUnsupportedMode;
    }
}

template <class Length>
TpxStatus getBufferSize(const TpxiResizeSpec* pSpec, TpxiSizeL tile, Tpx32u numChannels, Length* pBufSize) {
    constexpr Form kForm = kFormOf<Length>;
    if (anyNull(pSpec) || anyNull(pBufSize)) return tpxErrNullPointer;
    if (isZero(tile)) return tpxWarnNoOperation;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (!isFor(kForm, plan)) return tpxErrContext;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return tpxErrChannelCount;
    if (isEmpty(tile)) return tpxErrSize;
    const int64_t bytes = workSize(plan, tile, numChannels);
    if (bytes < 0) return TpxStatus(bytes);
    if (kForm == Form::Short && bytes >= 0x7fffffff) return tpxErrSizeTooLarge;
    *pBufSize = Length(bytes);
    return isLarger(tile, plan) ? tpxWarnValueAdjusted : tpxOk;
}

// ---- Places in the source -------------------------------------------------------------------------------

template <class BorderSize>
TpxStatus getBorderSize(const TpxiResizeSpec* pSpec, BorderSize* pBorderSize) {
    if (anyNull(pSpec) || anyNull(pBorderSize)) return tpxErrNullPointer;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (!isFor(kFormOf<BorderSize>, plan)) return tpxErrContext;
    *pBorderSize = {plan.border.left, plan.border.top, plan.border.right, plan.border.bottom};
    return tpxOk;
}

template <class Point>
TpxStatus getSrcOffset(const TpxiResizeSpec* pSpec, TpxiPointL dstOffset, Point* pSrcOffset) {
    using Length = decltype(Point::x);
    if (anyNull(pSpec) || anyNull(pSrcOffset)) return tpxErrNullPointer;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (!isFor(kFormOf<Point>, plan)) return tpxErrContext;
    if (isOutside(dstOffset, plan)) return tpxErrOutOfRange;
    *pSrcOffset = {Length(srcOffset(plan, plan.axisX, dstOffset.x)),
                   Length(srcOffset(plan, plan.axisY, dstOffset.y))};
    return tpxOk;
}

// The extent along an axis of the source of `len` destination positions beginning at `d`, from `offset`.
int64_t srcExtent(const TpxiResizeSpec& plan, const TpxiResizeAxis& axis, int64_t d, int64_t len,
                  int64_t offset) {
    const int64_t end = d + len;
    if (plan.interpolation != tpxInterpolationSuper)
        return end == axis.dstLen ? axis.srcLen - offset : axis.pIndex[end - 1] - offset + 1;
    const int64_t run = superRun(axis.srcRatio, axis.dstRatio), r = end % axis.dstRatio;
    const int64_t last = r == 0 ? int64_t(axis.srcRatio) - 1 : axis.pIndex[r * run - 1];
    return axis.srcRatio * ((end - 1) / axis.dstRatio) - offset + 1 + last;
}

template <class Point, class Size>
TpxStatus getSrcRoi(const TpxiResizeSpec* pSpec, TpxiPointL dstRoiOffset, TpxiSizeL dstRoiSize,
                    Point* pSrcRoiOffset, Size* pSrcRoiSize) {
    using Length = decltype(Point::x);
    if (anyNull(pSpec) || anyNull(pSrcRoiOffset) || anyNull(pSrcRoiSize)) return tpxErrNullPointer;
    if (isEmpty(dstRoiSize)) return tpxErrSize;
    const TpxiResizeSpec& plan = *planIn(pSpec);
    if (!isFor(kFormOf<Point>, plan)) return tpxErrContext;
    if (isOutside(dstRoiOffset, plan)) return tpxErrOutOfRange;
    const auto along = [&](const TpxiResizeAxis& axis, int64_t d, int64_t len, Length& offset, Length& extent) {
        const int64_t from = srcOffset(plan, axis, d);
        offset = Length(from);
        extent = Length(srcExtent(plan, axis, d, minOf(len, axis.dstLen - d), from));
    };
    along(plan.axisX, dstRoiOffset.x, dstRoiSize.width, pSrcRoiOffset->x, pSrcRoiSize->width);
    along(plan.axisY, dstRoiOffset.y, dstRoiSize.height, pSrcRoiOffset->y, pSrcRoiSize->height);
    return isLarger(dstRoiSize, plan) ? tpxWarnValueAdjusted : tpxOk;
}

} // namespace
} // namespace tpx

// ---- Entries ---------------------------------------------------------------------------------------------

#define TPX_RESIZE_GET_SIZE(T)                                                                     \
    TPX_ENTRY(tpxiResizeGetSize_##T)                                                               \
    (TpxiSize srcSize, TpxiSize dstSize, TpxInterpolationType interpolation, Tpx32u antialiasing,  \
     int* pSpecSize, int* pInitBufSize) {                                                          \
        return tpx::getSize(tpx::wide(srcSize), tpx::wide(dstSize), tpxDataType##T, interpolation, \
                            antialiasing, pSpecSize, pInitBufSize);                                \
    }
#define TPX_RESIZE_GET_BUFFER_SIZE(T)                                                    \
    TPX_ENTRY(tpxiResizeGetBufferSize_##T)                                               \
    (const TpxiResizeSpec* pSpec, TpxiSize dstSize, Tpx32u numChannels, int* pBufSize) { \
        return tpx::getBufferSize(pSpec, tpx::wide(dstSize), numChannels, pBufSize);     \
    }
#define TPX_RESIZE_GET_BORDER_SIZE(T)                                                                  \
    TPX_ENTRY(tpxiResizeGetBorderSize_##T)(const TpxiResizeSpec* pSpec, TpxiBorderSize* pBorderSize) { \
        return tpx::getBorderSize(pSpec, pBorderSize);                                                 \
    }
#define TPX_RESIZE_GET_SRC_OFFSET(T)                                            \
    TPX_ENTRY(tpxiResizeGetSrcOffset_##T)                                       \
    (const TpxiResizeSpec* pSpec, TpxiPoint dstOffset, TpxiPoint* pSrcOffset) { \
        return tpx::getSrcOffset(pSpec, tpx::wide(dstOffset), pSrcOffset);      \
    }
#define TPX_RESIZE_GET_SRC_ROI(T)                                                                        \
    TPX_ENTRY(tpxiResizeGetSrcRoi_##T)                                                                   \
    (const TpxiResizeSpec* pSpec, TpxiPoint dstRoiOffset, TpxiSize dstRoiSize, TpxiPoint* pSrcRoiOffset, \
     TpxiSize* pSrcRoiSize) {                                                                            \
        return tpx::getSrcRoi(pSpec, tpx::wide(dstRoiOffset), tpx::wide(dstRoiSize), pSrcRoiOffset,      \
                              pSrcRoiSize);                                                              \
    }
#define TPX_FIVE_TYPES(INSTANCE) INSTANCE(8u) INSTANCE(16u) INSTANCE(16s) INSTANCE(32f) INSTANCE(64f)

TPX_FIVE_TYPES(TPX_RESIZE_GET_SIZE)
TPX_ENTRY(tpxiResizeGetSize_L)
(TpxiSizeL srcSize, TpxiSizeL dstSize, TpxDataType dataType, TpxInterpolationType interpolation,
 Tpx32u antialiasing, TpxSizeL* pSpecSize, TpxSizeL* pInitBufSize) {
    return tpx::getSize(srcSize, dstSize, dataType, interpolation, antialiasing, pSpecSize, pInitBufSize);
}

TPX_FIVE_TYPES(TPX_RESIZE_GET_BUFFER_SIZE)
TPX_ENTRY(tpxiResizeGetBufferSize_L)
(const TpxiResizeSpec* pSpec, TpxiSizeL dstSize, Tpx32u numChannels, TpxSizeL* pBufSize) {
    return tpx::getBufferSize(pSpec, dstSize, numChannels, pBufSize);
}

TPX_FIVE_TYPES(TPX_RESIZE_GET_BORDER_SIZE)
TPX_ENTRY(tpxiResizeGetBorderSize_L)(const TpxiResizeSpec* pSpec, TpxiBorderSizeL* pBorderSize) {
    return tpx::getBorderSize(pSpec, pBorderSize);
}

TPX_FIVE_TYPES(TPX_RESIZE_GET_SRC_OFFSET)
TPX_ENTRY(tpxiResizeGetSrcOffset_L)
(const TpxiResizeSpec* pSpec, TpxiPointL dstOffset, TpxiPointL* pSrcOffset) {
    return tpx::getSrcOffset(pSpec, dstOffset, pSrcOffset);
}

TPX_FIVE_TYPES(TPX_RESIZE_GET_SRC_ROI)
TPX_ENTRY(tpxiResizeGetSrcRoi_L)
(const TpxiResizeSpec* pSpec, TpxiPointL dstRoiOffset, TpxiSizeL dstRoiSize, TpxiPointL* pSrcRoiOffset,
 TpxiSizeL* pSrcRoiSize) {
    return tpx::getSrcRoi(pSpec, dstRoiOffset, dstRoiSize, pSrcRoiOffset, pSrcRoiSize);
}
#undef TPX_RESIZE_GET_SIZE
#undef TPX_RESIZE_GET_BUFFER_SIZE
#undef TPX_RESIZE_GET_BORDER_SIZE
#undef TPX_RESIZE_GET_SRC_OFFSET
#undef TPX_RESIZE_GET_SRC_ROI
#undef TPX_FIVE_TYPES
