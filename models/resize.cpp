// SPDX-License-Identifier: Apache-2.0
#include "models.h"

namespace tpx::model {

// Beyond the outermost centres the edge's pixel counts alone.
Axis::Axis(int srcLength, int dstLength) {
    for (int i = 0; i < dstLength; ++i) {
        Position p = linearPosition(i, srcLength, dstLength);
        if (p.before) p = {0, 0, 0, 0, true, false};
        second.push_back(std::min(p.index + 1, srcLength - 1));
        first.push_back(p);
    }
}

std::vector<int> nearestAxis(int srcLength, int dstLength) {
    std::vector<int> axis;
    for (int i = 0; i < dstLength; ++i) axis.push_back(nearestIndex(i, srcLength, dstLength));
    return axis;
}

template <typename T>
void resizeLinear(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels, const Axis& x,
                  const Axis& y) {
    for (size_t j = 0; j < y.first.size(); ++j, dst += dstStep) {
        const T* upper = src + y.first[j].index * srcStep;
        const T* lower = src + y.second[j] * srcStep;
        for (size_t i = 0; i < x.first.size(); ++i) {
            const int left = x.first[i].index * channels;
            const int right = x.second[i] * channels;
            for (int channel = 0; channel < channels; ++channel) {
                const T four[2][2] = {{upper[left + channel], upper[right + channel]},
                                      {lower[left + channel], lower[right + channel]}};
                dst[i * channels + channel] = insideBlend(four, x.first[i], y.first[j]);
            }
        }
    }
}

template <typename T>
void resizeNearest(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels,
                   const std::vector<int>& x, const std::vector<int>& y) {
    for (size_t j = 0; j < y.size(); ++j, dst += dstStep)
        for (size_t i = 0; i < x.size(); ++i)
            for (int channel = 0; channel < channels; ++channel)
                dst[i * channels + channel] = src[y[j] * srcStep + x[i] * channels + channel];
}

template <typename T>
void resizeTaps(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels, TpxiSize srcSize,
                const TapAxis& x, const TapAxis& y) {
    std::vector<float> column(size_t(srcSize.width) * channels);
    for (size_t j = 0; j < y.first.size(); ++j, dst += dstStep) {
        for (size_t i = 0; i < column.size(); ++i) {
            float sum = 0;
            for (int k = 0; k < y.taps; ++k)
                sum += float(y.weights[j * y.taps + k]) *
                       float(src[std::clamp(y.first[j] + k, 0, srcSize.height - 1) * srcStep + ptrdiff_t(i)]);
            column[i] = sum;
        }
        for (size_t i = 0; i < x.first.size(); ++i)
            for (int channel = 0; channel < channels; ++channel) {
                float sum = 0;
                for (int k = 0; k < x.taps; ++k)
                    sum += float(x.weights[i * x.taps + k]) *
                           column[std::clamp(x.first[i] + k, 0, srcSize.width - 1) * channels + channel];
                if constexpr (std::is_floating_point_v<T>)
                    dst[i * channels + channel] = sum;
                else
                    dst[i * channels + channel] = sampleOf<T>(sum);
            }
    }
}

#define RESIZE(T)                                                                                  \
    template void resizeLinear(const T*, ptrdiff_t, T*, ptrdiff_t, int, const Axis&, const Axis&); \
    template void resizeNearest(const T*, ptrdiff_t, T*, ptrdiff_t, int, const std::vector<int>&,  \
                                const std::vector<int>&);                                          \
    template void resizeTaps(const T*, ptrdiff_t, T*, ptrdiff_t, int, TpxiSize, const TapAxis&, const TapAxis&);
RESIZE(Tpx8u) RESIZE(Tpx16u) RESIZE(Tpx32f)

} // namespace tpx::model
