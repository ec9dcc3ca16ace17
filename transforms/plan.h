// SPDX-License-Identifier: Apache-2.0
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

// Columns of two groups are taken at a time, and rows of all channels.
inline constexpr int kColumnGroups = 2, kMostChannels = 4;
inline constexpr int groupsOf(Domain domain) { return domain == Domain::Real ? kMostChannels : kColumnGroups; }

// A work buffer holds the buffers of groups or a long line and, of real transforms, column 0 and the last
// column of each channel. Where all lines are short they are on the stack.
struct WorkParts {
    float *buffers, *edges;
};
inline constexpr uint64_t kEdges = 2 * kMostChannels;
inline WorkParts layOutWork(BlockLayout& block, uint64_t bufferBytes, Domain domain, uint64_t height) {
    WorkParts parts;
    parts.buffers = block.take<float>(bufferBytes / sizeof(float));
    parts.edges = block.take<float>(domain == Domain::Real ? kEdges * height : 0);
    return parts;
}
inline constexpr uint64_t kShortBytes = (kMostChannels + 1) * kShortLine * Group::kFloats * sizeof(float);

// What a processing call knows of its plan.
struct Transform : WorkParts {
    Extent size;
    const Line *rows, *columns;

    // The first column of a channel, or the last.
    float* edge(int channel, bool last) const { return edges + (2 * channel + last) * size.height; }
};

// What results are multiplied by.
inline float scaleOf(const Line& line, bool inverse) {
    return (inverse ? line.doInvScale : line.doFwdScale) ? line.scale : 1;
}

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

    const Line* const columns = spec->columns ? spec->columns : spec->rows;
    const auto lengthOf = [](Tpx32s x) { return kIsPowerOfTwo<Spec> ? ptrdiff_t(1) << x : ptrdiff_t(x); };
    const Extent size = {lengthOf(spec->lenX), lengthOf(spec->lenY)};
    alignas(kBlockAlignment) Tpx8u shortWork[kShortBytes + kEdges * kShortLine * sizeof(float)];
    const auto bytes = uint64_t(maxOf(spec->rows->bufSize, columns->bufSize));
    BlockLayout block(bytes ? alignUp(buffer) : shortWork);
    const Transform plan = {
        layOutWork(block, bytes ? bytes : kShortBytes, kDomainOf<Spec>, uint64_t(size.height)), size,
        spec->rows, columns};
    process(plan, ImageView<const float>{src, srcStep}, ImageView<float>{dst, dstStep});
    return tpxOk;
}

} // namespace tpx
