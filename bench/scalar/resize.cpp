#include "scalar.h"

#include <algorithm>
#include <cmath>

namespace bench::scalar {
namespace {

constexpr int kWeightBits = 14;
constexpr int kRowFraction = 6; // bits that the blend of a row keeps

// Blends a b along a row, c d along the next, and both between the rows.
Tpx8u blend(Tpx8u a, Tpx8u b, Tpx8u c, Tpx8u d, int wx, int wy) {
    constexpr int kOne = 1 << kWeightBits;
    constexpr int kDropped = kWeightBits - kRowFraction;
    constexpr int kLast = kWeightBits + kRowFraction;
    const int upper = (a * (kOne - wx) + b * wx + (1 << (kDropped - 1))) >> kDropped;
    const int lower = (c * (kOne - wx) + d * wx + (1 << (kDropped - 1))) >> kDropped;
    return static_cast<Tpx8u>((upper * (kOne - wy) + lower * wy + (1 << (kLast - 1))) >> kLast);
}

template <typename T>
T blend(T a, T b, T c, T d, float wx, float wy) {
    const float upper = a + (static_cast<float>(b) - a) * wx;
    const float lower = c + (static_cast<float>(d) - c) * wx;
    const float value = upper + (lower - upper) * wy;
    if constexpr (std::is_integral_v<T>)
        return static_cast<T>(std::lrint(value)); // between the samples, so inside their range
    else
        return value;
}

} // namespace

template <typename T>
Axis<T>::Axis(int srcLength, int dstLength) {
    for (int i = 0; i < dstLength; ++i) {
        const double at = std::clamp((i + 0.5) * srcLength / dstLength - 0.5, 0.0, srcLength - 1.0);
        first.push_back(static_cast<int>(at));
        second.push_back(std::min(first.back() + 1, srcLength - 1));
        const double fraction = at - first.back();
        if constexpr (std::is_same_v<Weight<T>, int>)
            weight.push_back(static_cast<int>(std::lrint(fraction * (1 << kWeightBits))));
        else
            weight.push_back(static_cast<float>(fraction));
    }
}

std::vector<int> nearestAxis(int srcLength, int dstLength) {
    constexpr double kBelow = 1e-10; // a position on the boundary of two pixels takes the lower one
    std::vector<int> axis;
    const double ratio = static_cast<double>(srcLength) / dstLength;
    for (int i = 0; i < dstLength; ++i)
        axis.push_back(std::min(static_cast<int>(ratio * (i + 0.5) - kBelow), srcLength - 1));
    return axis;
}

template <typename T>
void resizeLinear(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels, const Axis<T>& x,
                  const Axis<T>& y) {
    for (size_t j = 0; j < y.first.size(); ++j, dst += dstStep) {
        const T* upper = src + y.first[j] * srcStep;
        const T* lower = src + y.second[j] * srcStep;
        for (size_t i = 0; i < x.first.size(); ++i) {
            const int left = x.first[i] * channels;
            const int right = x.second[i] * channels;
            for (int channel = 0; channel < channels; ++channel)
                dst[i * channels + channel] =
                    blend(upper[left + channel], upper[right + channel], lower[left + channel],
                          lower[right + channel], x.weight[i], y.weight[j]);
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

#define RESIZE(T)                                                                                        \
    template struct Axis<T>;                                                                             \
    template void resizeLinear(const T*, ptrdiff_t, T*, ptrdiff_t, int, const Axis<T>&, const Axis<T>&); \
    template void resizeNearest(const T*, ptrdiff_t, T*, ptrdiff_t, int, const std::vector<int>&,        \
                                const std::vector<int>&);
RESIZE(Tpx8u) RESIZE(Tpx16u) RESIZE(Tpx32f)

} // namespace bench::scalar
