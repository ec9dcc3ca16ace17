// SPDX-License-Identifier: Apache-2.0
#include "geometry/warp/weighted.h"

namespace tpx {
namespace {

template <class Real>
inline Several<Vec<Real>, 4> weigh(const CubicWeights<Real>& cubic, Vec<Real> f) {
    Several<Vec<Real>, 4> weights;
    for (int tap = 0; tap < 4; tap++) {
        const auto factor = [&](int k) { return splat<Vec<Real>>(cubic.power[k][tap]); };
        weights.at[tap] = ((factor(3) * f + factor(2)) * f + factor(1)) * f + factor(0);
    }
    return weights;
}

// Of the cubic through the samples at -1, 0, 1 and 2. At these, weights are exactly 0 and 1.
template <class V>
inline Several<V, 4> weighThroughSamples(V f) {
    using Real = LaneOf<V>;
    const V a = f + 1, c = f - 1, d = f - 2, af = a * f, cd = c * d;
    return {{f * cd * Real(-1. / 6), a * cd * Real(0.5), af * d * Real(-0.5), af * c * Real(1. / 6)}};
}

template <class V>
inline Several<V, 4> weighCatmullRom(V f) {
    using Real = LaneOf<V>;
    const V half = f * Real(0.5), c = f - 1, square = f * f;
    Several<V, 4> weights = {{-half * (c * c), square * (f * Real(1.5) - Real(2.5)) + 1,
                              half * (f * (4 - f * 3) + 1), half * f * c}};
    const auto isMoved = (f < V{}) | (f > splat<V>(1));
    if (any(isMoved)) {
        const Several<V, 4> outermost = weighThroughSamples(f);
        for (int tap = 0; tap < 4; tap++) weights.at[tap] = select(isMoved, outermost.at[tap], weights.at[tap]);
    }
    return weights;
}

} // namespace

template <class T, int N>
void interpolateCubic(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    const CubicWeights<RealOf<T>> cubic = taps.cubic;
    interpolateWeighted<T, N, 4>(taps, dst, count, [&](RealVec<T> f) { return weigh(cubic, f); });
}
template <class T, int N>
void interpolateThroughSamples(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    interpolateWeighted<T, N, 4>(taps, dst, count, [](RealVec<T> f) { return weighThroughSamples(f); });
}
template <class T, int N>
void interpolateCatmullRom(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    interpolateWeighted<T, N, 4>(taps, dst, count, [](RealVec<T> f) { return weighCatmullRom(f); });
}

#define TPX_CUBIC(T, N)                                                                 \
    template void interpolateCubic<T, N>(const Taps<RealOf<T>>&, Tpx8u*, int);          \
    template void interpolateThroughSamples<T, N>(const Taps<RealOf<T>>&, Tpx8u*, int); \
    template void interpolateCatmullRom<T, N>(const Taps<RealOf<T>>&, Tpx8u*, int);
#define TPX_CUBIC_TYPE(T) TPX_CUBIC(T, 1) TPX_CUBIC(T, 3) TPX_CUBIC(T, 4)
TPX_CUBIC_TYPE(Tpx8u)
TPX_CUBIC_TYPE(Tpx16u)
TPX_CUBIC_TYPE(Tpx16s)
TPX_CUBIC_TYPE(Tpx32f)
TPX_CUBIC_TYPE(Tpx64f)
#undef TPX_CUBIC
#undef TPX_CUBIC_TYPE

} // namespace tpx
