// SPDX-License-Identifier: Apache-2.0
// The plan of a resize: the record behind TpxiResizeSpec, where it and its tables lie, and what its queries,
// its initialisers and the processing calls share.
#pragma once

#include "frame/entry/checks.h"
#include "frame/images/gather.h"
#include "frame/memory/caller_memory.h"
#include "frame/runs/routines.h"
#include "tpxi/geometry.h"

// One axis: where each destination position lies in the source, and with which weights.
struct TpxiResizeAxis {
    Tpx32u srcLen;
    Tpx32s dstLen;
    Tpx32u srcRatio; // srcLen / dstLen in lowest terms
    Tpx32u dstRatio;
    Tpx32s* pIndex;
    // One of the three on an interpolating axis. Q14: pairs (16384 - q, q) along x, q alone along y.
    Tpx32f* pCoef32f;
    Tpx64f* pCoef64f;
    Tpx16s* pCoefQ14;
    void* pCoefAux;
    // Destination positions at either end whose taps reach outside the source.
    Tpx32u leadCount;
    Tpx32u trailCount;
};

struct TpxiResizeSpec {
    Tpx32u tag;
    TpxDataType dataType; // tpxDataType64f, or tpxDataType32f for every other type
    TpxInterpolationType interpolation;
    Tpx32s lobesX;
    Tpx32s lobesY;
    Tpx32s antialiasing;
    TpxiBorderSize border;
    TpxiResizeAxis axisY;
    TpxiResizeAxis axisX;
    // The tables follow (takeTables).
};

static_assert(sizeof(TpxiResizeAxis) == 64 && sizeof(TpxiResizeSpec) == 168);

namespace tpx {

// Inside, every length is 64-bit. The short and the _L forms of a call differ in the tag of the plans that they
// take, and in what they refuse.
enum class Form : Tpx32u { Short = 0x4b617389, Long = 0x4b61738c };
template <class Record>
inline constexpr Form kFormOf =
    std::is_same_v<Record, TpxSizeL> || std::is_same_v<Record, TpxiSizeL> ||
            std::is_same_v<Record, TpxiPointL> || std::is_same_v<Record, TpxiBorderSizeL>
        ? Form::Long
        : Form::Short;

inline bool isFor(Form form, const TpxiResizeSpec& plan) { return plan.tag == Tpx32u(form); }

// The record inside the caller's block. The caller's own pointer must not be dereferenced.
inline TpxiResizeSpec* planIn(TpxiResizeSpec* spec) { return alignUp(spec); }
inline const TpxiResizeSpec* planIn(const TpxiResizeSpec* spec) { return alignUp(spec); }

// ---- Axes ------------------------------------------------------------------------------------------------

constexpr int64_t commonDivisor(int64_t a, int64_t b) {
    while (b != 0) {
        const int64_t r = a % b;
        a = b;
        b = r;
    }
    return a;
}

inline TpxiResizeAxis axisOf(int64_t src, int64_t dst) {
    const int64_t divisor = commonDivisor(src, dst);
    TpxiResizeAxis axis = {};
    axis.srcLen = Tpx32u(src);
    axis.dstLen = Tpx32s(dst);
    axis.srcRatio = Tpx32u(src / divisor);
    axis.dstRatio = Tpx32u(dst / divisor);
    return axis;
}

inline double scaleOf(const TpxiResizeAxis& axis) { return double(axis.srcRatio) / double(axis.dstRatio); }

constexpr int64_t ceilOf(double x) {
    const auto whole = int64_t(x);
    return whole + (double(whole) != x);
}

// How antialiasing stretches a kernel: distances are multiplied by the factor, and so many lobes hold it.
struct Stretch {
    double factor;
    Tpx32s lobes;
};
inline Stretch stretchOf(const TpxiResizeAxis& axis, int kernelLobes) {
    const double factor = double(axis.dstLen) / double(axis.srcLen);
    if (factor >= 1) return {1, kernelLobes};
    return {factor, Tpx32s(kernelLobes * ceilOf(1 / factor))};
}

// How many taps super-sampling keeps for each position. A position covers as many source pixels as the ratio
// says, and up to two more in part.
template <class Int>
constexpr Int superRun(Int srcRatio, Int dstRatio) {
    const Int remainder = srcRatio % dstRatio;
    return srcRatio / dstRatio + (remainder > 1 ? 2 : remainder);
}

// The source position that a processing call's source pointer stands for, for a tile beginning at `d`.
inline int64_t srcOffset(const TpxiResizeSpec& plan, const TpxiResizeAxis& axis, int64_t d) {
    if (plan.interpolation != tpxInterpolationSuper) return int64_t(TPXS(FloorOne)(double(d) * scaleOf(axis)));
    const int64_t run = superRun(axis.srcRatio, axis.dstRatio);
    return d / axis.dstRatio * axis.srcRatio + axis.pIndex[d % axis.dstRatio * run];
}

// ---- Tables ----------------------------------------------------------------------------------------------

// What the weights of a plan are.
enum class Weights { Q14, Single, Double };

constexpr Weights weightsFor(TpxDataType dataType, TpxInterpolationType interpolation) {
    if (dataType == tpxDataType64f) return Weights::Double;
    return dataType == tpxDataType8u && interpolation == tpxInterpolationLinear ? Weights::Q14
                                                                                : Weights::Single;
}

// Entries of a super-sampling axis, whose tables are those of one period.
inline int64_t entriesOf(const TpxiResizeAxis& axis) {
    return axis.dstRatio * superRun<int64_t>(axis.srcRatio, axis.dstRatio);
}

// Takes the tables of a plan from the block that begins with it; its kind, lobes and axes are set. Alignments
// count from the plan.
inline void takeTables(TpxiResizeSpec& plan, Weights weights, BlockLayout& block) {
    TpxiResizeAxis &y = plan.axisY, &x = plan.axisX;
    block.take<TpxiResizeSpec>(1);
    if (plan.interpolation == tpxInterpolationSuper) {
        y.pIndex = block.take<Tpx32s>(entriesOf(y));
        x.pIndex = block.take<Tpx32s>(entriesOf(x));
        y.pCoef32f = block.take<Tpx32f>(entriesOf(y), 32);
        x.pCoef32f = block.take<Tpx32f>(entriesOf(x), 32);
        return;
    }
    y.pIndex = block.take<Tpx32s>(y.dstLen);
    x.pIndex = block.take<Tpx32s>(x.dstLen);
    if (plan.interpolation == tpxInterpolationNearest) return;
    if (weights == Weights::Q14) {
        y.pCoefQ14 = block.take<Tpx16s>(y.dstLen);
        x.pCoefQ14 = block.take<Tpx16s>(2 * int64_t(x.dstLen));
    } else if (weights == Weights::Double) {
        y.pCoef64f = block.take<Tpx64f>(y.dstLen, 64);
        x.pCoef64f = block.take<Tpx64f>(x.dstLen, 64);
    } else if (plan.interpolation == tpxInterpolationLinear && !plan.antialiasing) {
        y.pCoef32f = block.take<Tpx32f>(y.dstLen);
        x.pCoef32f = block.take<Tpx32f>(x.dstLen);
    } else { // a weight for each tap, of which there may be more than an int counts
        y.pCoef32f = block.take<Tpx32f>(2 * int64_t(plan.lobesY) * y.dstLen, 32);
        x.pCoef32f = block.take<Tpx32f>(2 * int64_t(plan.lobesX) * x.dstLen, 32);
    }
}

// ---- Checks that several calls share ---------------------------------------------------------------------

// The data types of the _L calls; only linear has plans of 64f.
constexpr bool isPlanType(TpxDataType type, TpxInterpolationType interpolation) {
    return isDataType(type) || (type == tpxDataType64f && interpolation == tpxInterpolationLinear);
}

// The _L calls serve lengths below 0x20000000.
constexpr bool isTooLong(TpxiSizeL size) { return size.width > 0x1fffffff || size.height > 0x1fffffff; }

constexpr bool isSmaller(TpxiSizeL size, TpxiSizeL than) {
    return size.width < than.width || size.height < than.height;
}

// The smallest source of a kind that reads `taps` source pixels for a destination pixel.
constexpr TpxiSizeL squareOf(int taps) { return {taps, taps}; }

constexpr bool isZero(TpxiSizeL size) { return size.width == 0 || size.height == 0; }

inline bool isOutside(TpxiPointL offset, const TpxiResizeSpec& plan) {
    return offset.x < 0 || offset.x >= plan.axisX.dstLen || offset.y < 0 || offset.y >= plan.axisY.dstLen;
}

inline bool isLarger(TpxiSizeL tile, const TpxiResizeSpec& plan) {
    return tile.width > plan.axisX.dstLen || tile.height > plan.axisY.dstLen;
}

} // namespace tpx
