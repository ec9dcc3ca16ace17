// SPDX-License-Identifier: Apache-2.0
// Interpolation: from sites to samples. One kernel each of nearest, linear and cubic for every type and number
// of channels, whatever the coordinates came from.
//
// A kernel reads the taps of each site and nothing else, and stores as many pixels as it is told.
#pragma once

#include "geometry/warp/sites.h"

namespace tpx {

// The weights of four taps as polynomials of the fraction: power[k][tap] goes with f^k.
template <class Real>
struct CubicWeights {
    Real power[4][4];
};

// Of the kernels with parameters B and C.
template <class Real>
constexpr CubicWeights<Real> cubicWeights(double B, double C) {
    const double rise = 2 - 1.5 * B - C, outer = B / 6 + C, slope = B / 2 + C;
    const double power[4][4] = {{B / 6, 1 - B / 3, B / 6, 0},
                                {-slope, 0, slope, 0},
                                {B / 2 + 2 * C, 2 * B + C - 3, 3 - 2.5 * B - 2 * C, -C},
                                {-outer, rise, -rise, outer}};
    CubicWeights<Real> weights{};
    for (int k = 0; k < 4; k++)
        for (int tap = 0; tap < 4; tap++) weights.power[k][tap] = Real(power[k][tap]);
    return weights;
}

// What a kernel works on. `first` is the address of the image's pixel that is the first tap of position 0, 0,
// without the bias of places.
template <class Real>
struct Taps {
    const Tpx8u* first;
    ptrdiff_t step;
    const Sites<Real>& sites;
    const CubicWeights<Real>& cubic;
};

// An interpolation of one type and layout: its kernel, and what others need to know of it. Sites have fractions
// in single precision, of samples of 64 bits in double.
template <class Real>
struct Interpolation {
    Footprint footprint;
    int pixelBytes;
    // The first pixels of the sites, in their order.
    void (*interpolate)(const Taps<Real>& taps, Tpx8u* dst, int count);
    // dst + (src - dst) * share for each pixel.
    void (*mix)(const Tpx8u* src, const Real* share, Tpx8u* dst, int count);
    CubicWeights<Real> cubic = {};
};

// The kernels (nearest.cpp, linear.cpp, cubic.cpp, lanczos.cpp, bytes.cpp). Pixels of one size share theirs of
// nearest.
//
// A fraction is that of the pixel below the position, but where the taps were moved to lie in the image: then
// it is the distance from the pixel that is where the one below would be, less than 0 or more than 1.
template <int PixelBytes>
void interpolateNearest(const Taps<Tpx32f>& taps, Tpx8u* dst, int count);
template <class T, int N>
void interpolateLinear(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count);
template <class T, int N>
void interpolateCubic(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count);

// Those whose taps may have been moved: the cubic through four samples; Catmull-Rom splines, which are the
// former there; six taps of Lanczos.
template <class T, int N>
void interpolateThroughSamples(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count);
template <class T, int N>
void interpolateCatmullRom(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count);
template <class T, int N>
void interpolateLanczos(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count);

// Of bytes, in integers. Fractions of cubic are distances from the first tap.
template <int N>
void interpolateLinearBytes(const Taps<Tpx32f>& taps, Tpx8u* dst, int count);
template <int N>
void interpolateCubicBytes(const Taps<Tpx32f>& taps, Tpx8u* dst, int count);

template <class T, int N, class Real>
void mixPixels(const Tpx8u* src, const Real* share, Tpx8u* dst, int count);

template <class T, int N>
constexpr Interpolation<Tpx32f> nearestOf() {
    return {kOnePixel, int(sizeof(T)) * N, interpolateNearest<int(sizeof(T)) * N>, mixPixels<T, N, Tpx32f>};
}
template <class T, int N>
constexpr Interpolation<RealOf<T>> linearOf() {
    return {kTwoTaps, int(sizeof(T)) * N, interpolateLinear<T, N>, mixPixels<T, N, RealOf<T>>};
}
template <class T, int N>
constexpr Interpolation<RealOf<T>> cubicOf(double B, double C) {
    return {kFourTaps, int(sizeof(T)) * N, interpolateCubic<T, N>, mixPixels<T, N, RealOf<T>>,
            cubicWeights<RealOf<T>>(B, C)};
}

} // namespace tpx
