// SPDX-License-Identifier: Apache-2.0
// Linear: along the column of either tap pair, then along the row.
#include "geometry/warp/results.h"

namespace tpx {
namespace {

// From a to b. At fraction 1 it is b: integers' differences are exact, those of floats are not.
template <class T, class V>
inline V blend(V a, V b, V f) {
    const V v = a + (b - a) * f;
    if constexpr (std::is_floating_point_v<T>)
        return f == V{} + 1 ? b : v;
    else
        return v;
}

} // namespace

template <class T, int N>
void interpolateLinear(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    using Real = RealOf<T>;
    const Tpx8u *const first = taps.first, *const second = addBytes(first, taps.step);
    const Sites<Real>& sites = taps.sites;
    if constexpr (N == 1) {
        constexpr int L = kLanes<Real>;
        for (int i = 0; i < count; i += L) {
            const auto pairs = [&](const Tpx8u* row) {
                return loadPairs([&](int k) { return tapAt<T>(row, sites.place[i + k]); });
            };
            const Pair<Vec<Real>> p0 = pairs(first), p1 = pairs(second);
            const Vec<Real> fx = load(sites.fx + i), fy = load(sites.fy + i);
            const Vec<Real> a = blend<T>(p0.low, p1.low, fy), b = blend<T>(p0.high, p1.high, fy);
            storeResults<T>(dst + i * int(sizeof(T)), blend<T>(a, b, fx), count - i);
        }
    } else {
        interpolatePixels<T, N>(dst, 0, count, [&](int i) {
            const T *const upper = tapAt<T>(first, sites.place[i]), *const lower =
                                                                        tapAt<T>(second, sites.place[i]);
            const auto fx = fourTimes(sites.fx[i]);
            if constexpr (sizeof(T) == 8) {
                const auto p0 = loadPixels<N, 2>(upper), p1 = loadPixels<N, 2>(lower);
                const V64f fy = fourTimes(sites.fy[i]);
                return blend<T>(blend<T>(p0.at[0], p1.at[0], fy), blend<T>(p0.at[1], p1.at[1], fy), fx);
            } else {
                const PixelPair<N> down =
                    blend<T>(loadTwoPixels<N>(upper), loadTwoPixels<N>(lower), splat<V32f>(sites.fy[i]));
                return blend<T>(down.left(), down.right(), fx);
            }
        });
    }
}

// Of smooth edges. Shares of nearest are in single precision, whatever the samples.
template <class T, int N, class Real>
void mixPixels(const Tpx8u* src, const Real* share, Tpx8u* dst, int count) {
    using Mixed = RealOf<T>;
    for (int i = 0; i < count; i++)
        for (int c = 0; c < N; c++) {
            const int at = i * N + c;
            T* const to = reinterpret_cast<T*>(dst) + at;
            const Mixed s = Mixed(peek(reinterpret_cast<const T*>(src) + at)), d = Mixed(peek(to));
            const Mixed mixed = d + (s - d) * Mixed(share[i]);
            if constexpr (std::is_floating_point_v<T>)
                poke(to, T(mixed));
            else
                poke(to, toSample<T, Rounding::OfThread>(mixed));
        }
}

#define TPX_LINEAR(T, N)                                                        \
    template void interpolateLinear<T, N>(const Taps<RealOf<T>>&, Tpx8u*, int); \
    template void mixPixels<T, N, Tpx32f>(const Tpx8u*, const Tpx32f*, Tpx8u*, int);
#define TPX_LINEAR_TYPE(T) TPX_LINEAR(T, 1) TPX_LINEAR(T, 3) TPX_LINEAR(T, 4)
TPX_LINEAR_TYPE(Tpx8u)
TPX_LINEAR_TYPE(Tpx16u)
TPX_LINEAR_TYPE(Tpx16s)
TPX_LINEAR_TYPE(Tpx32f)
TPX_LINEAR_TYPE(Tpx64f)
#undef TPX_LINEAR
#undef TPX_LINEAR_TYPE
template void mixPixels<Tpx64f, 1, Tpx64f>(const Tpx8u*, const Tpx64f*, Tpx8u*, int);
template void mixPixels<Tpx64f, 3, Tpx64f>(const Tpx8u*, const Tpx64f*, Tpx8u*, int);
template void mixPixels<Tpx64f, 4, Tpx64f>(const Tpx8u*, const Tpx64f*, Tpx8u*, int);

} // namespace tpx
