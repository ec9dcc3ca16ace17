// SPDX-License-Identifier: Apache-2.0
// Nearest and linear resize of one destination pixel at a time, in plain integers and floats.
#pragma once

#include <tpxi.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace tpx::model {

// Where a destination position of an interpolating resize lies along one axis.
struct Position {
    int index;
    double fraction;
    float single;
    int q;              // of 14 bits
    bool before, after; // a tap of linear lies before the first or behind the last source pixel
};

// Positions are fractions of whole numbers, whatever way the library computes them. Pixel i of the destination
// has its centre at (i + 1/2) src / dst, and that of pixel k of the source is at k + 1/2.
inline Position linearPosition(int i, int src, int dst) {
    const int64_t unit = 2 * int64_t(dst), at = (2 * int64_t(i) + 1) * src - dst;
    const int64_t index = at < 0 ? -1 : at / unit, rest = at - index * unit;
    const double fraction = double(rest) / double(unit);
    return {int(index), fraction, float(fraction), int(rest * 16384 / unit), at < 0, at >= (src - 1) * unit};
}

// The pixel in which the centre lies; on the border of two the one before.
inline int nearestIndex(int i, int src, int dst) {
    return int(((2 * int64_t(i) + 1) * src - 1) / (2 * int64_t(dst)));
}

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

// ---- Weighted taps: cubic, Lanczos, antialiasing -----------------------------------------------------------

struct Kernel {
    int lobes; // that it reaches to either side
    bool normalised;
    double (*at)(double x, double B, double C); // of a distance from 0 up
    double B, C;
};

// D. Mitchell, A. Netravali, "Reconstruction Filters in Computer Graphics", 1988, equation 8.
inline double cubicAt(double x, double B, double C) {
    if (x < 1) return ((12 - 9 * B - 6 * C) * x * x * x + (-18 + 12 * B + 6 * C) * x * x + (6 - 2 * B)) / 6;
    if (x >= 2) return 0;
    return ((-B - 6 * C) * x * x * x + (6 * B + 30 * C) * x * x + (-12 * B - 48 * C) * x + (8 * B + 24 * C)) /
           6;
}
inline double lanczosAt(double x, double lobes) {
    const double pi = 3.14159265358979323846;
    if (x >= lobes) return 0;
    return x == 0 ? 1 : std::sin(pi * x) * std::sin(pi * x / lobes) * lobes / (pi * pi * x * x);
}
// Between the samples of a table, as plans without antialiasing have it.
template <int Lobes, int PerUnit>
double lanczosFromTable(double x, double, double) {
    const double whole = std::floor(x * PerUnit);
    const double low = lanczosAt(whole / PerUnit, Lobes), high = lanczosAt((whole + 1) / PerUnit, Lobes);
    return x >= Lobes ? 0 : low + (high - low) * (x * PerUnit - whole);
}
template <int Lobes>
double lanczosDirect(double x, double, double) {
    return lanczosAt(x, Lobes);
}
inline double triangleAt(double x, double, double) { return x < 1 ? 1 - x : 0; }
inline Kernel triangleKernel() { return {1, true, triangleAt, 0, 0}; }
inline Kernel cubicKernel(double B, double C) { return {2, false, cubicAt, B, C}; }
inline Kernel lanczosKernel(int lobes) {
    return {lobes, true, lobes == 2 ? lanczosFromTable<2, 200> : lanczosFromTable<3, 100>, 0, 0};
}
inline Kernel directLanczosKernel(int lobes) {
    return {lobes, true, lobes == 2 ? lanczosDirect<2> : lanczosDirect<3>, 0, 0};
}

// The source positions and weights that make the positions of one axis.
struct TapAxis {
    int taps;
    std::vector<int> first;      // the first tap of each position
    std::vector<double> weights; // `taps` of each position

    // Antialiasing stretches the kernel by the ratio of a reduction.
    TapAxis(int src, int dst, const Kernel& kernel, bool antialiasing = false) {
        const bool stretched = antialiasing && src > dst;
        const double scale = stretched ? double(dst) / src : 1;
        const int lobes = kernel.lobes * (stretched ? (src + dst - 1) / dst : 1);
        taps = 2 * lobes;
        for (int i = 0; i < dst; i++) {
            const Position p = linearPosition(i, src, dst);
            first.push_back(p.index + 1 - lobes);
            double sum = 0;
            for (int k = 0; k < taps; k++) {
                const double distance = std::fabs(1 - lobes + k - p.fraction) * scale;
                weights.push_back(kernel.at(distance, kernel.B, kernel.C));
                sum += weights.back();
            }
            if (kernel.normalised || antialiasing)
                for (int k = 0; k < taps; k++) weights[weights.size() - taps + k] /= sum;
        }
    }
};

// The exact value at (x, y); at(x, y) gives source samples, from outside the source too.
template <class At>
double tapSample(const TapAxis& ax, const TapAxis& ay, int x, int y, At at) {
    double sum = 0;
    for (int j = 0; j < ay.taps; j++)
        for (int i = 0; i < ax.taps; i++)
            sum += ay.weights[y * ay.taps + j] * ax.weights[x * ax.taps + i] *
                   double(at(ax.first[x] + i, ay.first[y] + j));
    return sum;
}

} // namespace tpx::model
