// SPDX-License-Identifier: Apache-2.0
// An image for a race: allocated by the library, filled before anybody is timed.
#pragma once

#include <tpxi.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include "tpxcore.h"

namespace bench {

inline std::string text(TpxiSize size) {
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

template <typename T>
inline constexpr TpxDataType kTypeOf = std::is_same_v<T, Tpx8u>    ? tpxDataType8u
                                       : std::is_same_v<T, Tpx16u> ? tpxDataType16u
                                       : std::is_same_v<T, Tpx16s> ? tpxDataType16s
                                       : std::is_same_v<T, Tpx32f> ? tpxDataType32f
                                                                   : tpxDataType64f;

// A period of noise in low..high, a prime number of samples.
template <typename T>
std::vector<T> noise(double low, double high) {
    std::vector<T> samples(65521);
    uint64_t state = 0x9E3779B97F4A7C15u;
    for (T& sample : samples) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        const double unit = static_cast<double>(state >> 11) * 0x1p-53;
        // Integers: high is reached as often as any other value.
        sample = static_cast<T>(low + unit * (high - low + std::is_integral_v<T>));
    }
    return samples;
}

template <typename T>
class Image {
 public:
    Image(TpxiSize size, int channels) : size_(size), channels_(channels) {
        data_ = tpxiMalloc_8u_C1(size.width * channels * static_cast<int>(sizeof(T)), size.height, &step_);
        if (!data_) throw std::bad_alloc();
        std::memset(data_, 0, static_cast<size_t>(step_) * size.height); // maps every page
    }
    Image(TpxiSize size, int channels, double low, double high) : Image(size, channels) { fill(low, high); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    ~Image() { tpxiFree(data_); }

    T* row(int y) const { return reinterpret_cast<T*>(data_ + static_cast<ptrdiff_t>(step_) * y); }
    T* data() const { return row(0); }
    int step() const { return step_; }
    TpxiSize size() const { return size_; }
    int channels() const { return channels_; }
    size_t rowSamples() const { return static_cast<size_t>(size_.width) * channels_; }
    size_t rowBytes() const { return rowSamples() * sizeof(T); }
    double samples() const { return static_cast<double>(rowSamples()) * size_.height; }
    double bytes() const { return samples() * sizeof(T); }

    // Rows differ, since the period of noise has no common factor with them.
    void fill(double low, double high) const {
        const std::vector<T> samples = noise<T>(low, high);
        size_t at = 0;
        for (int y = 0; y < size_.height; ++y)
            for (size_t x = 0; x < rowSamples();) {
                const size_t run = std::min(samples.size() - at, rowSamples() - x);
                std::memcpy(row(y) + x, samples.data() + at, run * sizeof(T));
                x += run;
                at = (at + run) % samples.size();
            }
    }

 private:
    TpxiSize size_;
    int channels_;
    int step_ = 0;
    Tpx8u* data_ = nullptr;
};

// Of an image that is larger than the largest cache that the processor tells.
inline double beyondCacheBytes() {
    constexpr int kLeast = 256 << 20, kMost = 1 << 30;
    int cache = 0;
    tpxGetMaxCacheSizeB(&cache);
    return std::clamp(cache / 100 * 105, kLeast, kMost);
}

// The copy that everything is held against: the same bytes with the same steps, in one piece where rows are.
template <typename T>
void copyRows(const Image<T>& src, const Image<T>& dst, int rows) {
    const size_t length = src.rowBytes();
    if (length == static_cast<size_t>(src.step()) && src.step() == dst.step()) {
        std::memcpy(dst.data(), src.data(), length * rows);
        return;
    }
    for (int y = 0; y < rows; ++y) std::memcpy(dst.row(y), src.row(y), length);
}
template <typename T>
void copyImage(const Image<T>& src, const Image<T>& dst) {
    copyRows(src, dst, src.size().height);
}

// The farthest two samples of equal place are apart; relative to the expected one where that is above 1 in
// floating point.
template <typename T>
double distance(const Image<T>& got, const Image<T>& expected) {
    double worst = 0;
    for (int y = 0; y < got.size().height; ++y)
        for (size_t x = 0; x < got.rowSamples(); ++x) {
            const double want = expected.row(y)[x];
            double off = got.row(y)[x] - want;
            off = off < 0 ? -off : off;
            const double size = want < 0 ? -want : want;
            if (std::is_floating_point_v<T> && size > 1) off /= size;
            if (!(off <= worst)) worst = off;
        }
    return worst;
}

} // namespace bench
