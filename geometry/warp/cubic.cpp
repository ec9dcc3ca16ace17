// Cubic: down each of four columns, then along the row.
#include "geometry/warp/results.h"

namespace tpx {
namespace {

// The weights of four taps for a register of fractions.
template <class Real>
inline Several<Vec<Real>, 4> weigh(const CubicWeights<Real>& cubic, Vec<Real> f) {
    Several<Vec<Real>, 4> weights;
    for (int tap = 0; tap < 4; tap++) {
        const auto factor = [&](int k) { return splat<Vec<Real>>(cubic.power[k][tap]); };
        weights.at[tap] = ((factor(3) * f + factor(2)) * f + factor(1)) * f + factor(0);
    }
    return weights;
}

// What four columns come to along the row, in the one order that all layouts have.
template <class V>
inline V alongRow(const Several<V, 4>& columns, const Several<V, 4>& weights) {
    const auto term = [&](int k) { return columns.at[k] * weights.at[k]; };
    return (term(0) + term(2)) + (term(1) + term(3));
}

} // namespace

template <class T, int N>
void interpolateCubic(const Taps<RealOf<T>>& taps, Tpx8u* dst, int count) {
    using Real = RealOf<T>;
    constexpr int L = kLanes<Real>;
    const Tpx8u* const rows[4] = {taps.first, addBytes(taps.first, taps.step),
                                  addBytes(taps.first, 2 * taps.step), addBytes(taps.first, 3 * taps.step)};
    const Sites<Real>& sites = taps.sites;
    const CubicWeights<Real> cubic = taps.cubic;
    for (int i = 0; i < count; i += L) {
        const auto alongX = weigh(cubic, load(sites.fx + i)), alongY = weigh(cubic, load(sites.fy + i));
        // The weight of a tap at one of the sites.
        const auto at = [i](const Several<Vec<Real>, 4>& weights, int tap, int site) {
            return peek(reinterpret_cast<const Real*>(&weights.at[tap]) + (site - i));
        };
        if constexpr (N == 1) {
            Several<Vec<Real>, 4> columns = {};
            for (int r = 0; r < 4; r++) {
                const auto taps4 = loadQuads([&](int k) { return tapAt<T>(rows[r], sites.place[i + k]); });
                for (int k = 0; k < 4; k++) {
                    const Vec<Real> product = taps4.at[k] * alongY.at[r];
                    columns.at[k] = r == 0 ? product : columns.at[k] + product;
                }
            }
            storeResults<T>(dst + i * int(sizeof(T)), alongRow(columns, alongX), count - i);
        } else if constexpr (sizeof(T) == 8) {
            interpolatePixels<T, N>(dst, i, minOf(i + L, count), [&](int site) {
                Several<V64f, 4> columns = {}, weights = {};
                for (int r = 0; r < 4; r++) {
                    const auto taps4 = loadPixels<N, 4>(tapAt<T>(rows[r], sites.place[site]));
                    const V64f weight = fourTimes(at(alongY, r, site));
                    for (int k = 0; k < 4; k++) {
                        const V64f product = taps4.at[k] * weight;
                        columns.at[k] = r == 0 ? product : columns.at[k] + product;
                    }
                }
                for (int k = 0; k < 4; k++) weights.at[k] = fourTimes(at(alongX, k, site));
                return alongRow(columns, weights);
            });
        } else {
            interpolatePixels<T, N>(dst, i, minOf(i + L, count), [&](int site) {
                V32f left = {}, right = {}; // columns 0 and 1, 2 and 3
                for (int r = 0; r < 4; r++) {
                    const T* const taps4 = tapAt<T>(rows[r], sites.place[site]);
                    const V32f weight = splat<V32f>(at(alongY, r, site));
                    const V32f first = loadTwoPixels<N>(taps4) * weight,
                               last = loadTwoPixels<N>(taps4 + 2 * N) * weight;
                    left = r == 0 ? first : left + first;
                    right = r == 0 ? last : right + last;
                }
                const auto weights = [&](int k) {
                    return joinHalves<V32f>(fourTimes(at(alongX, k, site)), fourTimes(at(alongX, k + 1, site)));
                };
                const PixelPair<N> sums = left * weights(0) + right * weights(2);
                return sums.left() + sums.right();
            });
        }
    }
}

#define TPX_CUBIC(T, N) template void interpolateCubic<T, N>(const Taps<RealOf<T>>&, Tpx8u*, int);
#define TPX_CUBIC_TYPE(T) TPX_CUBIC(T, 1) TPX_CUBIC(T, 3) TPX_CUBIC(T, 4)
TPX_CUBIC_TYPE(Tpx8u)
TPX_CUBIC_TYPE(Tpx16u)
TPX_CUBIC_TYPE(Tpx16s)
TPX_CUBIC_TYPE(Tpx32f)
TPX_CUBIC_TYPE(Tpx64f)
#undef TPX_CUBIC
#undef TPX_CUBIC_TYPE

} // namespace tpx
