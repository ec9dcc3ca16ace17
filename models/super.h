// SPDX-License-Identifier: Apache-2.0
// Super-sampling resize: the mean of what a destination pixel covers, in plain floats.
#pragma once

#include <vector>

#include "models/resize.h"

namespace tpx::model {

// The source pixels that a destination position covers, and how much of each.
struct Overlaps {
    int first;
    std::vector<float> parts;
};

inline Overlaps overlapsOf(int i, int src, int dst) {
    const int64_t from = int64_t(i) * src, to = from + src; // in parts of 1 / dst
    Overlaps overlaps{int(from / dst), {}};
    for (int64_t p = from / dst; p * dst < to; p++)
        overlaps.parts.push_back(
            float(double(std::min(to, (p + 1) * dst) - std::max(from, p * dst)) / double(dst)));
    return overlaps;
}

inline std::vector<Overlaps> overlapsOfAll(int src, int dst) {
    std::vector<Overlaps> all;
    for (int i = 0; i < dst; i++) all.push_back(overlapsOf(i, src, dst));
    return all;
}

inline float superFactor(TpxiSize src, TpxiSize dst) {
    return float(double(dst.width) / src.width * (double(dst.height) / src.height));
}

// The mean of what both axes cover: along x first, then along y, then the factor. at(x, y) gives source
// samples.
template <class T, class At>
T superSample(const Overlaps& x, const Overlaps& y, float factor, At at) {
    float sum = 0;
    for (size_t j = 0; j < y.parts.size(); j++) {
        float row = 0;
        for (size_t i = 0; i < x.parts.size(); i++)
            row += x.parts[i] * float(at(x.first + int(i), y.first + int(j)));
        sum += y.parts[j] * row;
    }
    if constexpr (std::is_same_v<T, Tpx32f>)
        return sum * factor;
    else
        return sampleOf<T>(sum * factor);
}

// A whole image. Steps are in samples.
template <class T>
void resizeSuper(const T* src, ptrdiff_t srcStep, TpxiSize srcSize, T* dst, ptrdiff_t dstStep, TpxiSize dstSize,
                 int channels, const std::vector<Overlaps>& x, const std::vector<Overlaps>& y) {
    const float factor = superFactor(srcSize, dstSize);
    for (const Overlaps& rows : y) {
        for (size_t i = 0; i < x.size(); i++)
            for (int c = 0; c < channels; c++)
                dst[i * size_t(channels) + size_t(c)] = superSample<T>(
                    x[i], rows, factor, [&](int sx, int sy) { return src[sy * srcStep + sx * channels + c]; });
        dst += dstStep;
    }
}

} // namespace tpx::model
