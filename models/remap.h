// SPDX-License-Identifier: Apache-2.0
// Remap, one destination sample at a time.
#pragma once

#include <tpxi.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <type_traits>

#include "warp.h"

namespace tpx::model {

struct Remap {
    TpxiSize src;
    TpxiRect roi;
    int interpolation;

    // What the image is large enough for.
    int kind() const {
        int kind = interpolation & 0x7FFFFFFF;
        const int least = std::min(src.width, src.height);
        if (kind == 16 && least < 6) kind = 4;
        if ((kind == 4 || kind == 6) && least < 4) kind = 2;
        return least < 2 ? 1 : kind;
    }
    double right() const { return std::min<double>(double(roi.x) + roi.width, src.width) - 1; }
    double bottom() const { return std::min<double>(double(roi.y) + roi.height, src.height) - 1; }

    // The taps of one axis and their weights. `last` is the rectangle's, n the image's length.
    struct Taps {
        int first, count;
        double weight[6];
    };
    Taps taps(double s, double last, int n) const {
        const int below = int(s);
        switch (kind()) {
            case 1:
                return {int(s + 0.5), 1, {1}};
            case 2: {
                const int first = below == last && below > 0 ? below - 1 : below;
                return {first, 2, {1 - (s - first), s - first}};
            }
            case 16: {
                const int first = std::clamp(below - 2, 0, n - 6);
                Taps taps{first, 6, {}};
                double sum = 0;
                for (int k = 0; k < 6; ++k) sum += taps.weight[k] = lanczos(s - (first + k));
                for (double& weight : taps.weight) weight /= sum;
                return taps;
            }
            default: {
                const int first = std::clamp(below - 1, 0, n - 4);
                const double f = s - below, t = s - first;
                if (kind() == 6 && first == below - 1)
                    return {first,
                            4,
                            {-0.5 * f * (f - 1) * (f - 1), 1 + f * f * (1.5 * f - 2.5),
                             0.5 * f * (1 + 4 * f - 3 * f * f), 0.5 * f * f * (f - 1)}};
                return {first,
                        4,
                        {(t - 1) * (t - 2) * (t - 3) / -6, t * (t - 2) * (t - 3) / 2,
                         t * (t - 1) * (t - 3) / -2, t * (t - 1) * (t - 2) / 6}};
            }
        }
    }
    static double lanczos(double d) {
        const double p = std::numbers::pi * d;
        return std::abs(d) >= 3 ? 0 : d == 0 ? 1 : 3 * std::sin(p) * std::sin(p / 3) / (p * p);
    }

    // The sample at a position inside. image(x, y) gives those of the source.
    template <class T, class Image>
    T sample(double x, double y, Image image) const {
        const Taps alongX = taps(x, right(), src.width), alongY = taps(y, bottom(), src.height);
        if (kind() == 1) return image(alongX.first, alongY.first);
        if (std::is_same_v<T, Tpx8u> && (kind() == 2 || kind() == 4)) {
            const bool linear = kind() == 2;
            const auto weights = [&](const Taps& taps, double s, int(&to)[4]) {
                const int q = int((s - taps.first) * 16384);
                if (linear) to[0] = 16384 - q, to[1] = q;
                const double t = int((s - taps.first) * 512) / 512.0;
                if (!linear)
                    to[0] = weight14((t - 1) * (t - 2) * (t - 3) / -6),
                    to[1] = weight14(t * (t - 2) * (t - 3) / 2), to[2] = weight14(t * (t - 1) * (t - 3) / -2),
                    to[3] = weight14(t * (t - 1) * (t - 2) / 6);
            };
            int wx[4], wy[4];
            weights(alongX, x, wx);
            weights(alongY, y, wy);
            int sum = linear ? 33 : 1 << 19;
            for (int r = 0; r < alongY.count; ++r) {
                int row = 0;
                for (int k = 0; k < alongX.count; ++k) row += image(alongX.first + k, alongY.first + r) * wx[k];
                sum += (row >> 8) * wy[r];
            }
            return T(std::clamp(sum >> 20, 0, 255));
        }
        double sum = 0;
        for (int r = 0; r < alongY.count; ++r)
            for (int k = 0; k < alongX.count; ++k)
                sum += alongY.weight[r] * alongX.weight[k] *
                       static_cast<double>(image(alongX.first + k, alongY.first + r));
        return warpSample<T>(sum);
    }
    static int weight14(double weight) { return int(std::floor(weight * 16384 + 0.5)); }

    // How much of the old sample stays.
    double share(double x, double y) const {
        const auto outside = [](double s, double low, double high) { return std::max(low - s, s - high); };
        const double dx = outside(x, roi.x, right()), dy = outside(y, roi.y, bottom());
        if (dx <= 0 && dy <= 0) return 0;
        if (interpolation > 0 || !(dx <= 1 && dy <= 1)) return 1;
        return dx <= 0 ? dy : dy <= 0 ? dx : 1 - (1 - dx) * (1 - dy);
    }

    // What becomes of a sample that was `old`.
    template <class T, class Image>
    T operator()(double x, double y, T old, Image image) const {
        const double f = share(x, y);
        if (f == 0 || f == 1) return f == 0 ? sample<T>(x, y, image) : old;
        const double s =
            image(int(std::clamp<double>(x, roi.x, right())), int(std::clamp<double>(y, roi.y, bottom())));
        return warpSample<T>(s + (static_cast<double>(old) - s) * f);
    }
};

// A whole destination. Steps are in samples.
template <typename T, typename Map>
void remap(const Remap& how, const T* src, ptrdiff_t srcStep, const Map* xMap, const Map* yMap,
           ptrdiff_t mapStep, T* dst, ptrdiff_t dstStep, int channels, TpxiSize size);

} // namespace tpx::model
