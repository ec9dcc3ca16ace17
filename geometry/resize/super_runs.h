// SPDX-License-Identifier: Apache-2.0
// The runs of source positions that super-sampling averages.
#pragma once

#include "geometry/resize/tile.h"

namespace tpx {

// The source positions that a destination position covers. All but the first and the last are covered whole.
struct CoveredRun {
    int64_t first, count;
    Tpx32f firstWeight, lastWeight;

    Tpx32f weight(int64_t k) const { return k == 0 ? firstWeight : k < count - 1 ? 1 : lastWeight; }
    int64_t end() const { return first + count; }
};

// Walks the destination positions of an axis, from any one on. The tables of one period serve them all.
class Runs {
 public:
    Runs(const TpxiResizeAxis& axis, int64_t d)
        : taps(superRun<int64_t>(axis.srcRatio, axis.dstRatio)),
          axis_(axis),
          phase_(d % axis.dstRatio),
          base_(d / axis.dstRatio * axis.srcRatio) {}

    const int64_t taps;

    // The source position of tap 0; the others follow it one by one.
    int64_t first() const { return base_ + axis_.pIndex[phase_ * taps]; }
    // A tap of weight 0 may lie outside the source.
    const Tpx32f* weights() const { return axis_.pCoef32f + phase_ * taps; }
    Tpx32f weight(int64_t k) const { return weights()[k]; }
    // The last source position that has a weight.
    int64_t last() const {
        int64_t k = taps - 1;
        while (k > 0 && weight(k) == 0) k--;
        return first() + k;
    }
    CoveredRun covered() const {
        const int64_t begin = weight(0) == 0, end = last();
        return {first() + begin, end + 1 - first() - begin, weight(begin), weight(end - first())};
    }
    void next() {
        if (++phase_ < axis_.dstRatio) return;
        phase_ = 0;
        base_ += axis_.srcRatio;
    }

 private:
    const TpxiResizeAxis& axis_;
    int64_t phase_, base_;
};

// What turns the sum of a destination pixel into a mean.
inline Tpx32f superFactor(const TpxiResizeSpec& plan) {
    const auto part = [](const TpxiResizeAxis& axis) { return double(axis.dstRatio) / double(axis.srcRatio); };
    return Tpx32f(part(plan.axisX) * part(plan.axisY));
}

} // namespace tpx
