// SPDX-License-Identifier: Apache-2.0
// Warps of one destination sample at a time, in double precision.
#pragma once

#include <tpxi.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <type_traits>

namespace tpx::model {

struct WarpPlace {
    double x, y;
};

struct AffineWarp {
    double toSource[2][3];
    TpxiSize src;
    TpxInterpolationType interpolation;
    double B, C; // of cubic
    TpxBorderType border;
    double value[4]; // of a constant border, as samples have it

    WarpPlace place(int x, int y) const {
        const auto along = [&](const double(&c)[3]) { return c[0] * x + c[1] * y + c[2]; };
        return {along(toSource[0]), along(toSource[1])};
    }
    // Whether the map has a place for a pixel.
    bool reaches(int, int) const { return true; }
    bool leaves() const { return border == tpxBorderInMemAll || (border & 15) == tpxBorderTransparent; }
    // Whether a place lies in the image, or as far outside as the slack says.
    bool isMapped(WarpPlace at, double slack = 0) const {
        return at.x >= -slack && at.y >= -slack && at.x <= src.width - 1 + slack &&
               at.y <= src.height - 1 + slack;
    }

    // What lies there. image(x, y) gives source samples, and those beyond a side in memory that are asked for.
    template <class Image>
    double sample(WarpPlace at, int channel, Image image) const {
        const bool cubic = interpolation == tpxInterpolationCubic;
        const auto beyond = [&](unsigned side) { return int(cubic && leaves() && (border & side)); };
        const auto limited = [](int i, int first, int last) { return i < first ? first : i > last ? last : i; };
        const auto tap = [&](int x, int y) -> double {
            const int nx = limited(x, -beyond(tpxBorderInMemLeft), src.width - 1 + beyond(tpxBorderInMemRight));
            const int ny =
                limited(y, -beyond(tpxBorderInMemTop), src.height - 1 + beyond(tpxBorderInMemBottom));
            if ((nx != x || ny != y) && (border & 15) == tpxBorderConstant) return value[channel];
            return image(nx, ny);
        };
        const auto whole = [](double s, int size) { return int(std::floor(std::clamp(s, -4.0, size + 4.0))); };
        if (interpolation == tpxInterpolationNearest)
            return tap(whole(at.x + 0.5, src.width), whole(at.y + 0.5, src.height));
        const int x = whole(at.x, src.width), y = whole(at.y, src.height);
        const double fx = std::clamp(at.x - x, 0.0, 1.0), fy = std::clamp(at.y - y, 0.0, 1.0);
        double sum = 0;
        for (int k = cubic ? -1 : 0; k <= (cubic ? 2 : 1); k++)
            for (int i = cubic ? -1 : 0; i <= (cubic ? 2 : 1); i++)
                sum += weight(k - fy) * weight(i - fx) * tap(x + i, y + k);
        return sum;
    }

    // The weight of a tap by its distance from the position.
    double weight(double distance) const {
        const double d = distance < 0 ? -distance : distance;
        if (interpolation == tpxInterpolationLinear) return 1 - d;
        const double inner = ((12 - 9 * B - 6 * C) * d + (-18 + 12 * B + 6 * C)) * d * d + 6 - 2 * B;
        const double outer =
            ((-B - 6 * C) * d + (6 * B + 30 * C)) * d * d + (-12 * B - 48 * C) * d + 8 * B + 24 * C;
        return (d < 1 ? inner : outer) / 6;
    }
};

// Divisors are positive on the valid side of the horizon.
struct PerspectiveWarp : AffineWarp {
    double divisor[3];

    double divisorAt(int x, int y) const { return divisor[0] * x + divisor[1] * y + divisor[2]; }
    // Pixels beyond the horizon are far outside any image; a constant border is all that is seen there.
    WarpPlace place(int x, int y) const {
        const double d = divisorAt(x, y);
        const WarpPlace at = AffineWarp::place(x, y);
        return d > 0 ? WarpPlace{at.x / d, at.y / d} : WarpPlace{1e9, 1e9};
    }
    bool reaches(int x, int y) const { return divisorAt(x, y) > 0 || (border & 15) == tpxBorderConstant; }
};

// The sample that a value becomes.
template <class T>
T warpSample(double v) {
    if constexpr (std::is_floating_point_v<T>)
        return T(v);
    else
        return T(std::clamp(std::nearbyint(v), double(std::numeric_limits<T>::min()),
                            double(std::numeric_limits<T>::max())));
}

// A whole destination. Steps are in samples.
template <typename T, typename Warp>
void warpImage(const Warp& warp, const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, int channels,
               TpxiSize size);

} // namespace tpx::model
