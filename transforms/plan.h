// Plans of two-dimensional transforms: the records in callers' blocks, and the checks of processing calls.
#pragma once

#include "frame/entry/checks.h"
#include "frame/images/walk.h"
#include "tpxi/fourier.h"
#include "transforms/groups.h"

// A plan of real transforms; lengths are orders in those of powers of two.
struct TpxiFFT2DSpec_R {
    Tpx32s tag, lenX, lenY, flag, workSize;
    const tpx::Line *columns, *rows, *realColumns; // the last one null if width and height are equal
};
struct TpxiDFT2DSpec_R : TpxiFFT2DSpec_R {};

struct TpxiFFT2DSpec_C {
    Tpx32s tag, lenX, lenY, flag, workSize;
    const tpx::Line *rows, *columns; // the second one null if width and height are equal
};
struct TpxiDFT2DSpec_C : TpxiFFT2DSpec_C {};

namespace tpx {

enum class Domain { Complex, Real };

template <class Spec>
inline constexpr Domain kDomainOf = std::is_base_of_v<TpxiFFT2DSpec_R, Spec> ? Domain::Real : Domain::Complex;
template <class Spec>
inline constexpr bool kIsPowerOfTwo =
    std::is_same_v<Spec, TpxiFFT2DSpec_R> || std::is_same_v<Spec, TpxiFFT2DSpec_C>;
template <class Spec>
inline constexpr Tpx32s kTagOf = (kIsPowerOfTwo<Spec> ? 25 : 27) + (kDomainOf<Spec> == Domain::Real);

// What a processing call knows of its plan.
struct Transform {
    Extent size;
    const Line *rows, *columns;
    Work work;

    // Where a forward transform is scaled, and an inverse one; 1 elsewhere.
    static float scaleOf(const Line& line, bool inverse) {
        return (inverse ? line.doInvScale : line.doFwdScale) ? line.scale : 1;
    }
};

// Checks the arguments of a processing call in their order, then process(transform, src, dst).
template <class Spec, class Process>
inline TpxStatus runPlan(const float* src, int srcStep, float* dst, int dstStep, const Spec* callersSpec,
                         Tpx8u* buffer, Process process) {
    if (anyNull(callersSpec)) return tpxErrNullPointer;
    const Spec* const spec = alignUp(callersSpec);
    if (spec->tag != kTagOf<Spec> || !spec->rows) return tpxErrContext; // null if its making failed
    if (anyNull(src, dst)) return tpxErrNullPointer;
    if (srcStep < 1 || dstStep < 1) return tpxErrStep;
    if (anyNull(buffer) && spec->workSize != 0) return tpxErrNullPointer;

    Transform plan;
    const auto lengthOf = [](Tpx32s x) { return kIsPowerOfTwo<Spec> ? ptrdiff_t(1) << x : ptrdiff_t(x); };
    plan.size = {lengthOf(spec->lenX), lengthOf(spec->lenY)};
    plan.rows = spec->rows;
    plan.columns = spec->columns ? spec->columns : spec->rows;
    alignas(kBlockAlignment) float shortWork[kShortFloats];
    const auto bytes = uint64_t(maxOf(plan.rows->bufSize, plan.columns->bufSize));
    BlockLayout block(bytes ? static_cast<void*>(alignUp(buffer)) : shortWork);
    plan.work = layOutWork(block, bytes ? bytes : groupBytes(kShortLine), uint64_t(plan.size.height));
    process(plan, ImageView<const float>{src, srcStep}, ImageView<float>{dst, dstStep});
    return tpxOk;
}

} // namespace tpx
