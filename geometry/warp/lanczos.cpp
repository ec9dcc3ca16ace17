// SPDX-License-Identifier: Apache-2.0
#include "frame/simd/math.h"
#include "geometry/warp/weighted.h"

namespace tpx {
namespace {

// The weight at distance d below 3 is L(d) = 3 sin(pi d) sin(pi d / 3) / (pi d)^2. With h the distance from the
// nearer of both pixels beside the position, all taps are at h, h + 1, h + 2 or 1 - h, 2 - h, 3 - h. All sines
// of whole turns are then sin(pi h) or its opposite; as weights are divided by their sum, all are taken by
// sin(pi h) / (pi h) larger. The sine and cosine of a third of the angle, series in h^2 up to h = 1/2, serve
// all distances. At the pixels weights are exactly 0 and 1.
template <class Real>
struct Series {
    static constexpr int kTerms = sizeof(Real) == 8 ? 9 : 5;
    static constexpr double kPi = 3.14159265358979323846;
    Real sine[kTerms], cosine[kTerms]; // of x = pi h / 3: sin(x) / x and cos(x)

    constexpr Series() : sine{}, cosine{} {
        constexpr double kSquare = kPi * kPi / 9;
        double s = 1, c = 1;
        for (int k = 0; k < kTerms; k++) {
            sine[k] = Real(s);
            cosine[k] = Real(c);
            const double next = 2 * k + 2;
            s *= -kSquare / (next * (next + 1));
            c *= -kSquare / (next * (next - 1));
        }
    }
};
template <class Real>
inline constexpr Series<Real> kSeries;

// Where the taps were moved by whole pixels: weights go to the taps that are there, others are lost, and the
// sum is 1 again.
template <class Real>
[[gnu::noinline]] void moveWeights(Vec<Real> by, Several<Vec<Real>, 6>& weights) {
    constexpr int L = kLanes<Real>;
    for (int lane = 0; lane < L; lane++) {
        const int shift = int(by[lane]);
        if (shift == 0) continue;
        const auto at = [&](int tap) { return reinterpret_cast<Real*>(&weights.at[tap]) + lane; };
        Real moved[6], sum = 0;
        for (int tap = 0; tap < 6; tap++) {
            const int from = tap - shift;
            sum += moved[tap] = from >= 0 && from < 6 ? peek(at(from)) : 0;
        }
        for (int tap = 0; tap < 6; tap++) poke(at(tap), moved[tap] / sum);
    }
}

template <class Real>
inline Several<Vec<Real>, 6> weighLanczos(Vec<Real> t) {
    using V = Vec<Real>;
    constexpr const Series<Real>& series = kSeries<Real>;
    constexpr Real kPi = Real(Series<Real>::kPi), kRoot = Real(0.86602540378443864676); // sin(pi / 3)
    const V whole = rounded<Rounding::Down>(t), f = t - whole, h = minOf(f, 1 - f), g = 1 - h, u = h * h;
    const V sine = polynomial(u, series.sine), scaled = h * (3 / kPi);
    const V hs = h * (kPi / 3) * sine, hc = polynomial(u, series.cosine); // of pi h / 3
    const V gs = hc * kRoot - hs * Real(0.5), gc = hc * Real(0.5) + hs * kRoot;

    // Of the pixel n further away than d, whose third of the angle has that sine and cosine.
    const auto further = [&](int n, V d, V s, V c) {
        const V turned = c * kRoot + s * Real(n == 1 ? 0.5 : -0.5), distance = d + Real(n);
        const V weight = scaled * turned / (distance * distance);
        return n == 1 ? -weight : weight;
    };
    const V near[3] = {sine, further(1, h, hs, hc), further(2, h, hs, hc)};
    const V far[3] = {scaled * gs / (g * g), further(1, g, gs, gc), further(2, g, gs, gc)};

    const auto isNearLeft = lessOrEqual(f, h);
    Several<V, 6> weights;
    V sum = {};
    for (int n = 0; n < 3; n++) {
        weights.at[2 - n] = select(isNearLeft, near[n], far[n]);
        weights.at[3 + n] = select(isNearLeft, far[n], near[n]);
        sum += weights.at[2 - n] + weights.at[3 + n];
    }
    const V factor = 1 / sum;
    for (V& weight : weights.at) weight *= factor;
    if (any(whole != V{})) moveWeights<Real>(whole, weights);
    return weights;
}

} // namespace

template <class T, int N>
void interpolateLanczos(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    interpolateWeighted<T, N, 6>(taps, dst, count, [](RealVec<T> t) { return weighLanczos<RealOf<T>>(t); });
}

#define TPX_LANCZOS(T)                                                           \
    template void interpolateLanczos<T, 1>(const Taps<RealOf<T>>&, Tpx8u*, int); \
    template void interpolateLanczos<T, 3>(const Taps<RealOf<T>>&, Tpx8u*, int); \
    template void interpolateLanczos<T, 4>(const Taps<RealOf<T>>&, Tpx8u*, int);
TPX_LANCZOS(Tpx8u)
TPX_LANCZOS(Tpx16u)
TPX_LANCZOS(Tpx16s)
TPX_LANCZOS(Tpx32f)
TPX_LANCZOS(Tpx64f)
#undef TPX_LANCZOS

} // namespace tpx
