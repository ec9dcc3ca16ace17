// SPDX-License-Identifier: Apache-2.0
#include "conversion.h"
#include "models.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tpx::model {
namespace {

// rule(i) gives integers; they are multiplied by 2^-scaleFactor, to nearest with ties to even.
template <typename T, typename Rule>
void mapInteger(T* dst, size_t length, int scaleFactor, Rule rule) {
    // Beyond these nothing changes: results have 33 bits at most, and samples 16.
    scaleFactor = std::clamp(scaleFactor, -17, 40);
    if (scaleFactor <= 0) {
        for (size_t i = 0; i < length; ++i) dst[i] = saturate<T>(rule(i) * (int64_t{1} << -scaleFactor));
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

// real(a) with one rounding; of integers to the nearest, with ties to even.
template <typename T, typename Rule>
void mapReal(const T* src, T* dst, size_t length, Rule real) {
    using Limits = std::numeric_limits<T>;
    for (size_t i = 0; i < length; ++i)
        if constexpr (std::is_floating_point_v<T>)
            dst[i] = static_cast<T>(real(src[i]));
        else
            dst[i] = static_cast<T>(
                std::lrint(std::clamp<decltype(real(src[i]))>(real(src[i]), Limits::min(), Limits::max())));
}

// 2^-n, which for n beyond the limits no longer matters.
template <typename Real>
Real scale(int n) {
    return std::ldexp(Real{1}, -std::clamp(n, -1000, 1000));
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

template <typename T, typename Real>
void sqrt(const T* src, T* dst, size_t length, int scaleFactor) {
    mapReal(src, dst, length, [factor = scale<Real>(scaleFactor)](Real a) {
        if constexpr (std::is_floating_point_v<T>)
            return std::sqrt(a);
        else
            return a > 0 ? std::sqrt(a) * factor : Real{0};
    });
}

// What has no logarithm gives the smallest integer.
template <typename T, typename Real>
void ln(const T* src, T* dst, size_t length, int scaleFactor) {
    mapReal(src, dst, length, [factor = scale<Real>(scaleFactor)](Real a) {
        if constexpr (std::is_floating_point_v<T>)
            return std::log(a);
        else
            return a > 0 ? std::log(a) * factor : -std::numeric_limits<Real>::infinity();
    });
}

// There is not always a number without the factor: it goes into the argument. Most results of integers lie far
// outside their 16 bits.
template <typename T, typename Real>
void exp(const T* src, T* dst, size_t length, int scaleFactor) {
    const Real off = static_cast<Real>(std::clamp(scaleFactor, -120000, 120000)) * std::log(Real{2});
    mapReal(src, dst, length, [off](Real a) {
        if constexpr (std::is_floating_point_v<T>)
            return std::exp(a);
        else
            return a - off > 12   ? std::numeric_limits<Real>::infinity()
                   : a - off < -2 ? Real{0}
                                  : std::exp(a - off);
    });
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
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x < by.low[c] ? x : by.low[c]; });
}
template <typename T>
void thresholdLt(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x > by.low[c] ? x : by.low[c]; });
}
template <typename T>
void thresholdGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x > by.low[c] ? by.lowValue[c] : x; });
}
template <typename T>
void thresholdLtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) { return x >= by.low[c] ? x : by.lowValue[c]; });
}
template <typename T>
void thresholdLtValGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by) {
    mapChannels(src, dst, length, by, [&](T x, size_t c) {
        return !(x >= by.low[c]) ? by.lowValue[c] : x > by.high[c] ? by.highValue[c] : x;
    });
}

#define MOVING(T)                                      \
    template void copy(const T*, T*, size_t);          \
    template void copyKeepAlpha(const T*, T*, size_t); \
    template void set(const T*, size_t, T*, size_t);   \
    template void moveChannels(const T* const*, ptrdiff_t, T* const*, ptrdiff_t, size_t, const Tpx8u*, size_t);
#define ROOTS(T, Real)                                      \
    template void sqrt<T, Real>(const T*, T*, size_t, int); \
    template void ln<T, Real>(const T*, T*, size_t, int);   \
    template void exp<T, Real>(const T*, T*, size_t, int);
#define UNARY(T)                                  \
    template void sqr(const T*, T*, size_t, int); \
    ROOTS(T, RealOf<T>)                           \
    ROOTS(T, long double)
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
MOVING(Tpx16u)
MOVING(Tpx16s)
MOVING(Tpx32f)
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
THRESHOLD(Tpx16u)
THRESHOLD(Tpx16s)
THRESHOLD(Tpx32f)

} // namespace tpx::model
