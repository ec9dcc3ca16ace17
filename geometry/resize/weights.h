// SPDX-License-Identifier: Apache-2.0
// What the initialisers write into a plan's tables: positions, fractions, and the kernels' weights.
//
// Positions are the plain double expressions below. They must not be rewritten in exact integers: callers rely
// on the same positions for the same sizes, rounding included.
#pragma once

#include "geometry/resize/plan.h"

namespace tpx {

// Fills the index table of an interpolating axis, counts the positions at either end whose taps reach outside
// the source, and gives store(i, fraction) the distance from the index.
template <class Store>
inline void buildPositions(TpxiResizeAxis& axis, int lobes, Store store) {
    const double scale = scaleOf(axis), first = double(lobes) - 1, last = double(axis.srcLen) - lobes;
    axis.leadCount = axis.trailCount = 0;
    for (int64_t i = 0; i < axis.dstLen; i++) {
        const double c = (double(i) + 0.5) * scale - 0.5, whole = TPXS(FloorOne)(c);
        axis.pIndex[i] = Tpx32s(whole);
        axis.leadCount += c < first;
        axis.trailCount += c >= last;
        store(i, c - whole);
    }
}

void buildNearest(TpxiResizeAxis& axis);

void buildLinearQ14(TpxiResizeAxis& axis, bool inPairs);
void buildFractions(TpxiResizeAxis& axis, int lobes, Tpx32f* fractions);
void buildFractions(TpxiResizeAxis& axis, int lobes, Tpx64f* fractions);

// Four weights for each fraction, from the left or the top.
void buildCubic(const Tpx32f* fractions, int64_t count, Tpx32f valueB, Tpx32f valueC, Tpx32f* weights);
// Twice `lobes` weights for each fraction. `lobes` is 2 or 3.
void buildLanczos(const Tpx32f* fractions, int64_t count, int lobes, Tpx32f* weights);

// Twice as many normalised weights as the axis has lobes, for each fraction, of a kernel that reaches over all
// source pixels of a destination pixel (stretchOf). Quotients are true ones, not estimates, so that plans are
// the same on all processors. `lobes` are the kernel's own, 2 or 3.
void buildStretchedLinear(const Tpx64f* fractions, TpxiResizeAxis& axis);
void buildStretchedCubic(const Tpx64f* fractions, TpxiResizeAxis& axis, Tpx32f valueB, Tpx32f valueC);
void buildStretchedLanczos(const Tpx64f* fractions, TpxiResizeAxis& axis, int lobes);

// Indices and weights of one period of super-sampling.
void buildSuper(TpxiResizeAxis& axis);

} // namespace tpx
