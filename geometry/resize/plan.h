// The plan of a resize: the record behind TpxiResizeSpec, where it lies, and what its queries, initialisers and
// the processing calls share. Inside, every length is 64-bit; the short and the _L forms of a call differ in
// their records and in the tag of the plans that they take.
#pragma once

#include <stddef.h>

#include "frame/runs/routines.h"
#include "frame/simd/core.h"
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
    // The tables follow.
};

static_assert(sizeof(TpxiResizeAxis) == 64 && sizeof(TpxiResizeSpec) == 168);

namespace tpx {

struct ShortForm {
    static constexpr bool kLong = false;
    static constexpr Tpx32u kTag = 0x4b617389;
    using Length = int;
    using Size = TpxiSize;
    using Point = TpxiPoint;
    using Border = TpxiBorderSize;
};

struct LongForm {
    static constexpr bool kLong = true;
    static constexpr Tpx32u kTag = 0x4b61738c;
    using Length = TpxSizeL;
    using Size = TpxiSizeL;
    using Point = TpxiPointL;
    using Border = TpxiBorderSizeL;
};

// The next address that is a multiple of `alignment`. Callers' plans and buffers may lie anywhere and have
// spare bytes for it.
template <class T>
inline T* alignUp(T* p, uintptr_t alignment) {
    return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(p) + alignment - 1) & -alignment);
}

// The record inside the caller's block. The caller's own pointer must not be dereferenced.
inline TpxiResizeSpec* planIn(TpxiResizeSpec* spec) { return alignUp(spec, 64); }
inline const TpxiResizeSpec* planIn(const TpxiResizeSpec* spec) { return alignUp(spec, 64); }

inline double scaleOf(const TpxiResizeAxis& axis) { return double(axis.srcRatio) / double(axis.dstRatio); }

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

// ---- Checks that several calls share --------------------------------------------------------------------

template <class Size>
inline bool isZero(Size size) {
    return size.width == 0 || size.height == 0;
}

template <class Point>
inline bool isOutside(Point offset, const TpxiResizeSpec& plan) {
    return offset.x < 0 || offset.x >= plan.axisX.dstLen || offset.y < 0 || offset.y >= plan.axisY.dstLen;
}

template <class Size>
inline bool isLarger(Size tile, const TpxiResizeSpec& plan) {
    return tile.width > plan.axisX.dstLen || tile.height > plan.axisY.dstLen;
}

} // namespace tpx
