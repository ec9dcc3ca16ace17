#include "scalar.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bench::scalar {
namespace {

template <typename T>
T saturate(int64_t value) {
    using Limits = std::numeric_limits<T>;
    return static_cast<T>(std::clamp<int64_t>(value, Limits::min(), Limits::max()));
}

// rule(i) gives integers; they are multiplied by 2^-scaleFactor, to nearest with ties to even.
template <typename T, typename Rule>
void mapInteger(T* dst, size_t length, int scaleFactor, Rule rule) {
    if (scaleFactor <= 0) {
        for (size_t i = 0; i < length; ++i) dst[i] = saturate<T>(rule(i) << -scaleFactor);
        return;
    }
    const int64_t belowHalf = (int64_t{1} << (scaleFactor - 1)) - 1;
    for (size_t i = 0; i < length; ++i) {
        const int64_t value = rule(i);
        dst[i] = saturate<T>((value + belowHalf + ((value >> scaleFactor) & 1)) >> scaleFactor);
    }
}

template <typename T, typename Rule>
void combine(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor, Rule rule) {
    if constexpr (std::is_floating_point_v<T>)
        for (size_t i = 0; i < length; ++i) dst[i] = rule(src1[i], src2[i]);
    else
        mapInteger(dst, length, scaleFactor,
                   [=](size_t i) { return rule(int64_t{src1[i]}, int64_t{src2[i]}); });
}

template <typename T, typename Rule>
void mapChannels(const T* src, T* dst, size_t length, const Thresholds<T>& by, Rule rule) {
    for (size_t i = 0; i < length; i += by.channels)
        for (size_t c = 0; c < by.computed; ++c) dst[i + c] = rule(src[i + c], c);
}

// Integers go through double precision; float forms take `single`.
template <typename T, typename Double, typename Single>
void map(const T* src, T* dst, size_t length, int scaleFactor, Double exact, Single single) {
    if constexpr (std::is_floating_point_v<T>) {
        for (size_t i = 0; i < length; ++i) dst[i] = single(src[i]);
    } else {
        using Limits = std::numeric_limits<T>;
        const double factor = std::ldexp(1.0, -scaleFactor);
        for (size_t i = 0; i < length; ++i) {
            const double value = exact(static_cast<double>(src[i])) * factor;
            dst[i] = static_cast<T>(std::lrint(std::clamp<double>(value, Limits::min(), Limits::max())));
        }
    }
}

} // namespace

template <typename T>
void copy(const T* src, T* dst, size_t length) {
    for (size_t i = 0; i < length; ++i) dst[i] = src[i];
}

template <typename T>
void copyKeepAlpha(const T* src, T* dst, size_t length) {
    for (size_t i = 0; i < length; i += 4)
        for (size_t channel = 0; channel < 3; ++channel) dst[i + channel] = src[i + channel];
}

template <typename T>
void set(const T* pixel, size_t channels, T* dst, size_t length) {
    for (size_t i = 0; i < length; i += channels)
        for (size_t channel = 0; channel < channels; ++channel) dst[i + channel] = pixel[channel];
}

template <typename T, size_t Channels>
void moveFixed(const T* const* from, ptrdiff_t srcStride, T* const* to, ptrdiff_t dstStride, const Tpx8u* mask,
               size_t pixels) {
    const T* src[Channels];
    T* dst[Channels];
    for (size_t k = 0; k < Channels; ++k) src[k] = from[k], dst[k] = to[k];
    for (size_t x = 0; x < pixels; ++x) {
        if (mask && !mask[x]) continue;
        const ptrdiff_t at = static_cast<ptrdiff_t>(x);
        for (size_t k = 0; k < Channels; ++k) dst[k][at * dstStride] = src[k][at * srcStride];
    }
}

template <typename T>
void moveChannels(const T* const* src, ptrdiff_t srcStride, T* const* dst, ptrdiff_t dstStride, size_t channels,
                  const Tpx8u* mask, size_t pixels) {
    if (channels == 1) moveFixed<T, 1>(src, srcStride, dst, dstStride, mask, pixels);
    if (channels == 3) moveFixed<T, 3>(src, srcStride, dst, dstStride, mask, pixels);
    if (channels == 4) moveFixed<T, 4>(src, srcStride, dst, dstStride, mask, pixels);
}

template <typename T>
void abs(const T* src, T* dst, size_t length) {
    for (size_t i = 0; i < length; ++i) {
        if constexpr (std::is_floating_point_v<T>)
            dst[i] = std::fabs(src[i]);
        else
            dst[i] = saturate<T>(src[i] < 0 ? -int64_t{src[i]} : src[i]);
    }
}

template <typename T>
void sqr(const T* src, T* dst, size_t length, int scaleFactor) {
    if constexpr (std::is_floating_point_v<T>)
        for (size_t i = 0; i < length; ++i) dst[i] = src[i] * src[i];
    else
        mapInteger(dst, length, scaleFactor, [=](size_t i) { return int64_t{src[i]} * src[i]; });
}

template <typename T>
void sqrt(const T* src, T* dst, size_t length, int scaleFactor) {
    map(
        src, dst, length, scaleFactor, [](double a) { return std::sqrt(a); },
        [](float a) { return std::sqrt(a); });
}

template <typename T>
void ln(const T* src, T* dst, size_t length, int scaleFactor) {
    map(
        src, dst, length, scaleFactor, [](double a) { return std::log(a); },
        [](float a) { return std::log(a); });
}

template <typename T>
void exp(const T* src, T* dst, size_t length, int scaleFactor) {
    map(
        src, dst, length, scaleFactor, [](double a) { return std::exp(a); },
        [](float a) { return std::exp(a); });
}

template <typename T>
void add(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor) {
    combine(src1, src2, dst, length, scaleFactor, [](auto a, auto b) { return a + b; });
}
template <typename T>
void sub(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor) {
    combine(src1, src2, dst, length, scaleFactor, [](auto a, auto b) { return b - a; });
}
template <typename T>
void mul(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor) {
    combine(src1, src2, dst, length, scaleFactor, [](auto a, auto b) { return a * b; });
}

template <typename T>
void addKeepAlpha(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor) {
    for (size_t i = 0; i < length; i += 4) add(src1 + i, src2 + i, dst + i, 3, scaleFactor);
}

template <typename T>
void thresholdGt(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x > by.low[c] ? by.low[c] : x; });
}
template <typename T>
void thresholdLt(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x < by.low[c] ? by.low[c] : x; });
}
template <typename T>
void thresholdGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x > by.low[c] ? by.lowValue[c] : x; });
}
template <typename T>
void thresholdLtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x < by.low[c] ? by.lowValue[c] : x; });
}
template <typename T>
void thresholdLtValGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) {
        return x < by.low[c] ? by.lowValue[c] : x > by.high[c] ? by.highValue[c] : x;
    });
}

#define MOVING(T)                                      \
    template void copy(const T*, T*, size_t);          \
    template void copyKeepAlpha(const T*, T*, size_t); \
    template void set(const T*, size_t, T*, size_t);   \
    CHANNELS(T)
#define CHANNELS(T) \
    template void moveChannels(const T* const*, ptrdiff_t, T* const*, ptrdiff_t, size_t, const Tpx8u*, size_t);
#define UNARY(T)                                   \
    template void sqr(const T*, T*, size_t, int);  \
    template void sqrt(const T*, T*, size_t, int); \
    template void ln(const T*, T*, size_t, int);   \
    template void exp(const T*, T*, size_t, int);
#define SIGNED(T) template void abs(const T*, T*, size_t);
#define BINARY(T)                                           \
    template void add(const T*, const T*, T*, size_t, int); \
    template void sub(const T*, const T*, T*, size_t, int); \
    template void mul(const T*, const T*, T*, size_t, int);
#define THRESHOLD(T)                                                          \
    template void thresholdGt(const T*, T*, size_t, const Thresholds<T>&);    \
    template void thresholdLt(const T*, T*, size_t, const Thresholds<T>&);    \
    template void thresholdGtVal(const T*, T*, size_t, const Thresholds<T>&); \
    template void thresholdLtVal(const T*, T*, size_t, const Thresholds<T>&); \
    template void thresholdLtValGtVal(const T*, T*, size_t, const Thresholds<T>&);
MOVING(Tpx8u)
MOVING(Tpx16s)
MOVING(Tpx32f)
CHANNELS(Tpx16u)
UNARY(Tpx8u)
UNARY(Tpx16u)
UNARY(Tpx16s)
UNARY(Tpx32f)
SIGNED(Tpx16s)
SIGNED(Tpx32f)
BINARY(Tpx8u)
BINARY(Tpx16u)
BINARY(Tpx16s)
BINARY(Tpx32f)
template void addKeepAlpha(const Tpx8u*, const Tpx8u*, Tpx8u*, size_t, int);
THRESHOLD(Tpx8u)
THRESHOLD(Tpx16s)
THRESHOLD(Tpx32f)

} // namespace bench::scalar
