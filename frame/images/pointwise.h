// Pointwise work on two images, sample by sample.
#pragma once

#include "frame/runs/memory_runs.h"

namespace tpx {

template <class T>
struct TwoImages {
    const T* src1;
    ptrdiff_t src1Step;
    const T* src2;
    ptrdiff_t src2Step;
    T* dst;
    ptrdiff_t dstStep;
};

// Above this traffic in bytes (reads and writes) the cache's size is asked for.
inline constexpr uint64_t kTwoImagesFloor = 4194304;

// dst = rule(src1, src2). `len` is in samples. The destination's alpha stays as it was where it is to be kept;
// else results may go past the caches, if the family lets them.
template <bool KeepAlpha, bool MayStream, class T, class Rule>
void combineImages(const TwoImages<T>& a, ptrdiff_t len, ptrdiff_t height, Rule rule) {
    joinRows(len, height, sizeof(T), a.src1Step, a.src2Step, a.dstStep);
    const uint64_t traffic = 3 * uint64_t(len) * uint64_t(height) * sizeof(T);
    const bool inPlace = a.src1 == a.dst || a.src2 == a.dst; // its lines are in the cache already
    const bool stream = !KeepAlpha && MayStream && !inPlace && exceedsCache(traffic, kTwoImagesFloor);
    walkRows(a.src1, a.src1Step, a.src2, a.src2Step, a.dst, a.dstStep, height,
             [&](const T* x, const T* y, T* d) {
                 if constexpr (KeepAlpha)
                     applyColours<T>(d, len, rule, x, y);
                 else if (MayStream && stream)
                     streamRun(d, len, rule, x, y);
                 else
                     applyRun(d, len, rule, x, y);
             });
    if (stream) streamFence();
}

} // namespace tpx
