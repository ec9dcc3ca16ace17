// SPDX-License-Identifier: Apache-2.0
// Sites: a stretch of positions made ready for the kernels. Of each position there is the place of its first
// tap in memory, and its fractions.
#pragma once

#include "frame/images/gather.h"
#include "frame/simd/doubles.h"
#include "geometry/warp/coordinates.h"

namespace tpx {

// A row is worked on in stretches of so many pixels. Kernels take so many sites at a time, or fewer.
inline constexpr int kStretch = 256, kSitesUnit = 8;
constexpr int wholeUnits(int count) { return (count + kSitesUnit - 1) / kSitesUnit * kSitesUnit; }

template <class Real>
struct Sites {
    // Bytes from the image's first pixel to that below the position, and kPlaceBias. As registers of kernels
    // are whole, the last one is filled up with sites that may be read (kSitesUnit).
    alignas(32) Tpx64s place[kStretch];
    alignas(32) Real fx[kStretch], fy[kStretch];
};

// Whole numbers become integers by adding 1.5 * 2^52, whose lowest bit counts ones; the sum's bits are the
// integer and this constant, which the kernels' base address takes off again.
inline constexpr double kPlaceMagic = 0x1.8p52;
inline constexpr Tpx64s kPlaceBias = 0x4338000000000000;

template <class T>
inline T* withoutBias(T* p) {
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(p) - uintptr_t(kPlaceBias));
}

// Along one axis: positions are limited to low..high, and the pixel below them to `last`. So the taps lie among
// the pixels first to end - 1, whatever the position, and where the pixel below is limited the fraction is 1.
struct Window {
    double low, high, last;
};
constexpr Window windowOf(Footprint footprint, int64_t first, int64_t end) {
    const auto last = double(end - 1 - footprint.last());
    return {double(first - footprint.offset), last + 1, last};
}

inline void storeFractions(Tpx64f* to, V64f f) { store(to, f); }
inline void storeFractions(Tpx32f* to, V32f f) { store(to, f); }
inline void storeFractions(Tpx32f* to, V64f f) { storeFour(to, toFloat(f)); }

struct Grid {
    Window x, y;
    double pixelBytes, step;
};

// The sites of the pixels from x on; of nearest without fractions.
template <bool HasFractions, class Real, class Row>
inline void locate(const Row& row, int64_t x, int count, const Grid& grid, Sites<Real>& sites) {
    const auto limited = [](V64f s, const Window& window) {
        return minOf(maxOf(s, splat<V64f>(window.low)), splat<V64f>(window.high)); // NaN becomes low
    };
    const auto below = [](V64f s, const Window& window) {
        return minOf(rounded<Rounding::Down>(s), splat<V64f>(window.last));
    };
    const V64f pixelBytes = splat<V64f>(grid.pixelBytes), step = splat<V64f>(grid.step);
    V64f at = splat<V64f>(double(x)) + V64f{0, 1, 2, 3};
    for (int i = 0; i < wholeUnits(count); i += 4, at += splat<V64f>(4)) {
        const auto p = row.at(at);
        const V64f sx = limited(p.x, grid.x), sy = limited(p.y, grid.y);
        const V64f x0 = below(sx, grid.x), y0 = below(sy, grid.y);
        const V64f place = x0 * pixelBytes + y0 * step + splat<V64f>(kPlaceMagic);
        store(reinterpret_cast<Tpx64f*>(sites.place + i), place);
        if constexpr (HasFractions) {
            storeFractions(sites.fx + i, sx - x0);
            storeFractions(sites.fy + i, sy - y0);
        }
    }
}

} // namespace tpx
