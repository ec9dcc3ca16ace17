// Nearest and linear resize written for reading: one destination pixel at a time, in plain integers and floats.
// Also a plan in guarded memory, as a caller would make one.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numeric>
#include <type_traits>

#include "tests/support/guarded.h"

namespace tpx::test {

// Where a destination position of an interpolating resize lies along one axis.
struct Position {
    int index;
    double fraction;
    float single;
    int q;              // of 14 bits
    bool before, after; // a tap of linear lies before the first or behind the last source pixel
};

inline Position linearPosition(int i, int src, int dst) {
    const int divisor = std::gcd(src, dst);
    const double c = (i + 0.5) * (double(src / divisor) / double(dst / divisor)) - 0.5;
    const double fraction = c - std::floor(c);
    return {int(std::floor(c)), fraction, float(fraction), int(fraction * 16384.0 + 1e-07), c < 0,
            c >= src - 1};
}

inline int nearestIndex(int i, int src, int dst) { return int(double(src) / dst * (i + 0.5) - 1e-10); }

// Rounds with the thread's mode and saturates.
template <class T>
T sampleOf(float x) {
    const long i = std::lrint(x), least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
    return T(std::clamp(i, least, most));
}

// The one blend of a strip.
template <class T>
T stripBlend(T p0, T p1, const Position& at) {
    if constexpr (std::is_same_v<T, Tpx8u>) {
        const int u = (16384 - at.q) * p0 + at.q * p1;
        return T((u + 8192 + ((u >> 14) & 1)) >> 14);
    } else if constexpr (std::is_same_v<T, Tpx64f>) {
        return p0 + (p1 - p0) * at.fraction;
    } else {
        const float a = p0, b = p1, blend = a + (b - a) * at.single;
        if constexpr (std::is_same_v<T, Tpx32f>)
            return blend;
        else
            return sampleOf<T>(blend);
    }
}

// The two blends inside, of the four pixels p[row][column].
template <class T>
T insideBlend(const T (&p)[2][2], const Position& px, const Position& py) {
    if constexpr (std::is_same_v<T, Tpx8u>) {
        const auto row = [&](const T* s) { return (s[0] * (16384 - px.q) + s[1] * px.q + 128) >> 8; };
        const int v = (row(p[0]) * (16384 - py.q) + row(p[1]) * py.q + 524288) >> 20;
        return T(std::clamp(v, 0, 255));
    } else if constexpr (std::is_same_v<T, Tpx64f>) {
        return stripBlend(stripBlend(p[0][0], p[0][1], px), stripBlend(p[1][0], p[1][1], px), py);
    } else {
        const auto row = [&](const T* s) { return stripBlend<float>(s[0], s[1], px); };
        const float blend = stripBlend<float>(row(p[0]), row(p[1]), py);
        if constexpr (std::is_same_v<T, Tpx32f>)
            return blend;
        else
            return sampleOf<T>(blend);
    }
}

// The destination sample at (px, py) of a linear resize. at(x, y) gives source samples; on sides that `border`
// declares in memory it is asked for samples outside the source.
template <class T, class At>
T linearSample(const Position& px, const Position& py, TpxiSize src, TpxBorderType border, At at) {
    const bool left = px.before && !(border & tpxBorderInMemLeft);
    const bool right = px.after && !(border & tpxBorderInMemRight);
    const bool top = py.before && !(border & tpxBorderInMemTop);
    const bool bottom = py.after && !(border & tpxBorderInMemBottom);
    const int x0 = left ? 0 : right ? src.width - 1 : px.index, x1 = left || right ? x0 : x0 + 1;
    const int y0 = top ? 0 : bottom ? src.height - 1 : py.index, y1 = top || bottom ? y0 : y0 + 1;
    if (y0 == y1) return stripBlend<T>(at(x0, y0), at(x1, y0), px);
    if (x0 == x1) return stripBlend<T>(at(x0, y0), at(x0, y1), py);
    const T p[2][2] = {{at(x0, y0), at(x1, y0)}, {at(x0, y1), at(x1, y1)}};
    return insideBlend(p, px, py);
}

template <class T, class At>
T linearSample(int x, int y, TpxiSize src, TpxiSize dst, TpxBorderType border, At at) {
    return linearSample<T>(linearPosition(x, src.width, dst.width), linearPosition(y, src.height, dst.height),
                           src, border, at);
}

// The plan of a linear or nearest resize in memory of exactly the size asked for, between unreadable pages,
// with the calls of one width. Names gives the functions of one sample type (see resize_test.cpp).
template <class Names>
class Plan {
 public:
    using T = typename Names::T;

    Plan(bool linear, TpxiSize src, TpxiSize dst, bool longForm = false, int misalign = 1)
        : linear_(linear), long_(longForm), src_(src), dst_(dst), misalign_(misalign) {
        const auto kind = linear ? tpxInterpolationLinear : tpxInterpolationNearest;
        const TpxiSizeL srcL{src.width, src.height}, dstL{dst.width, dst.height};
        int bytes = 0, init = 0;
        TpxSizeL bytesL = 0, initL = 0;
        if (longForm)
            EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(srcL, dstL, Names::kType, kind, 0, &bytesL, &initL));
        else
            EXPECT_EQ(tpxOk, Names::getSize(src, dst, kind, 0, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes + bytesL), size_t(misalign));
        const TpxStatus status = longForm ? (linear ? tpxiResizeLinearInit_L : tpxiResizeNearestInit_L)(
                                                srcL, dstL, Names::kType, spec())
                                          : (linear ? Names::initLinear : Names::initNearest)(src, dst, spec());
        EXPECT_EQ(tpxOk, status);
    }

    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(memory_->data()); }
    GuardedBytes& memory() const { return *memory_; }
    TpxiSize src() const { return src_; }
    TpxiSize dst() const { return dst_; }

    TpxiRect srcRect(TpxiRect tile) const {
        if (long_) {
            TpxiPointL at;
            TpxiSizeL size;
            const TpxStatus status =
                tpxiResizeGetSrcRoi_L(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size);
            EXPECT_GE(status, tpxOk);
            return {int(at.x), int(at.y), int(size.width), int(size.height)};
        }
        TpxiPoint at;
        TpxiSize size;
        EXPECT_GE(tpxiResizeGetSrcRoi_8u(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &at, &size),
                  tpxOk);
        return {at.x, at.y, size.width, size.height};
    }

    // Processes one tile with a work buffer of exactly the size asked for.
    TpxStatus run(int channels, const T* src, int srcStep, T* dst, int dstStep, TpxiRect tile,
                  TpxBorderType border) const {
        const int n = channels == 1 ? 0 : channels == 3 ? 1 : 2;
        if (long_) {
            const TpxiPointL at{tile.x, tile.y};
            const TpxiSizeL size{tile.width, tile.height};
            TpxSizeL bytes = 0;
            EXPECT_GE(tpxiResizeGetBufferSize_L(spec(), size, Tpx32u(channels), &bytes), tpxOk);
            GuardedBytes work{size_t(bytes), size_t(misalign_)};
            work.fill(0xFF);
            return linear_ ? Names::linearL()[n](src, srcStep, dst, dstStep, at, size, border, nullptr, spec(),
                                                 work.data())
                           : Names::nearestL()[n](src, srcStep, dst, dstStep, at, size, spec(), work.data());
        }
        const TpxiPoint at{tile.x, tile.y};
        const TpxiSize size{tile.width, tile.height};
        int bytes = 0;
        EXPECT_GE(tpxiResizeGetBufferSize_8u(spec(), size, Tpx32u(channels), &bytes), tpxOk);
        GuardedBytes work{size_t(bytes), size_t(misalign_)};
        work.fill(0xFF);
        return linear_ ? Names::linear()[n](src, srcStep, dst, dstStep, at, size, border, nullptr, spec(),
                                            work.data())
                       : Names::nearest()[n](src, srcStep, dst, dstStep, at, size, spec(), work.data());
    }

 private:
    bool linear_, long_;
    TpxiSize src_, dst_;
    int misalign_;
    std::unique_ptr<GuardedBytes> memory_;
};

} // namespace tpx::test
