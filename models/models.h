// SPDX-License-Identifier: Apache-2.0
// The rules of the library in their plain scalar form: loops over samples, compiled without vectorisation.
// Tests compare with them; benchmarks tell how many times faster the library is.
#pragma once

#include <tpxi.h>

#include <cstddef>
#include <type_traits>
#include <vector>

#include "resize.h"

namespace tpx::model {

template <typename T>
void copy(const T* src, T* dst, size_t length);
template <typename T>
void copyKeepAlpha(const T* src, T* dst, size_t length);
// The pixel of `channels` samples repeats.
template <typename T>
void set(const T* pixel, size_t channels, T* dst, size_t length);

// dst[k][x * dstStride] = src[k][x * srcStride] for each of so many channels; under a mask, if there is one,
// where it is not zero.
template <typename T>
void moveChannels(const T* const* src, ptrdiff_t srcStride, T* const* dst, ptrdiff_t dstStride, size_t channels,
                  const Tpx8u* mask, size_t pixels);

// Integers are cast, and saturated where they do not fit. The other has a rounding mode and a scale factor;
// from integers the mode is nearest and the factor above 0.
template <typename S, typename D>
void convertInteger(const S* src, D* dst, size_t length);
template <typename S, typename D>
void convertRounded(const S* src, D* dst, size_t length, int mode, int scaleFactor);
// Bits to two values, and samples above a threshold to bits.
template <typename T>
void unpackBits(const Tpx8u* src, T* dst, size_t length, T low, T high);
template <typename T>
void packBits(const T* src, Tpx8u* dst, size_t length, T threshold);

// Of a row: the sums of samples, of products, of absolute values or differences; the place of the first
// smallest sample, and the largest one.
template <typename T>
double sum(const T* src, size_t length);
template <typename T>
double sumOfProducts(const T* src1, const T* src2, size_t length);
template <typename T>
double sumOfMagnitudes(const T* src1, const T* src2, size_t length); // src2 may be null
template <typename T>
size_t least(const T* src, size_t length);
template <typename T>
T most(const T* src, size_t length);

template <typename T>
void abs(const T* src, T* dst, size_t length);
// Integer samples are scaled by any factor, rounded and saturated; floats take none. Real is what results are
// computed in: tests ask for more digits than the library may lose.
template <typename T>
using RealOf = std::conditional_t<std::is_floating_point_v<T>, T, double>;
template <typename T>
void sqr(const T* src, T* dst, size_t length, int scaleFactor);
template <typename T, typename Real = RealOf<T>>
void sqrt(const T* src, T* dst, size_t length, int scaleFactor);
template <typename T, typename Real = RealOf<T>>
void ln(const T* src, T* dst, size_t length, int scaleFactor);
template <typename T, typename Real = RealOf<T>>
void exp(const T* src, T* dst, size_t length, int scaleFactor);

// The second less the first. Integer samples are scaled, rounded and saturated as above.
template <typename T>
void add(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor);
template <typename T>
void sub(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor);
template <typename T>
void mul(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor);
// On pixels of four samples, whose fourth stays.
template <typename T>
void addKeepAlpha(const T* src1, const T* src2, T* dst, size_t length, int scaleFactor);

// Constants of `channels` entries, one a channel; the channels from `computed` on stay as they are.
template <typename T>
struct Thresholds {
    size_t channels, computed;
    const T *low, *lowValue, *high, *highValue;
};
template <typename T>
void thresholdGt(const T* src, T* dst, size_t length, const Thresholds<T>& by);
template <typename T>
void thresholdLt(const T* src, T* dst, size_t length, const Thresholds<T>& by);
template <typename T>
void thresholdGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by);
template <typename T>
void thresholdLtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by);
template <typename T>
void thresholdLtValGtVal(const T* src, T* dst, size_t length, const Thresholds<T>& by);

// The smaller and the larger of two samples, of floats that do not compare the second; the extremes of blocks,
// row by row, whose steps are in samples.
template <typename T>
void minEvery(const T* src1, const T* src2, T* dst, size_t length);
template <typename T>
void maxEvery(const T* src1, const T* src2, T* dst, size_t length);
template <typename T>
void maxEveryKeepAlpha(const T* src1, const T* src2, T* dst, size_t length);
template <typename T>
void blockMinMax(const T* src, ptrdiff_t srcStep, TpxiSize size, TpxiSize block, T* min, T* max);

// Counts the samples of pixels: bytes by value, others between levels that rise, for each channel.
void countBytes(const Tpx8u* src, size_t channels, size_t length, Tpx32u* const* tables);
template <typename T>
void countBetween(const T* src, size_t channels, size_t length, const std::vector<float>& levels,
                  Tpx32u* const* hist);

// Entries of tables by the bits of samples, a table a channel; entries of some bytes; and the values between
// levels that rise, or the lines through them.
template <typename T>
void lookup(const T* src, T* dst, size_t length, size_t channels, const std::vector<T>* tables);
template <int entryBytes, typename S>
void lookupPacked(const S* src, Tpx8u* dst, size_t length, const Tpx8u* table);
void lookupBetween(const Tpx32f* src, Tpx32f* dst, size_t length, bool linear,
                   const std::vector<Tpx32f>& levels, const std::vector<Tpx32f>& values);

// The two source pixels of each destination position along one side.
struct Axis {
    std::vector<Position> first;
    std::vector<int> second;
    Axis(int srcLength, int dstLength);
};
std::vector<int> nearestAxis(int srcLength, int dstLength);

// Steps are in samples here.
// Along y first, a column of sums for each row.
template <typename T>
void resizeTaps(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels, TpxiSize srcSize,
                const TapAxis& x, const TapAxis& y);
template <typename T>
void resizeLinear(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels, const Axis& x,
                  const Axis& y);
template <typename T>
void resizeNearest(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels,
                   const std::vector<int>& x, const std::vector<int>& y);

} // namespace tpx::model
