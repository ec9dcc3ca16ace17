// SPDX-License-Identifier: Apache-2.0
#include "geometry/resize/weights.h"

namespace tpx {

void buildNearest(TpxiResizeAxis& axis) {
    // A position on the boundary of two pixels goes to the lower one.
    constexpr double kBelow = 1e-10;
    const double scale = double(axis.srcLen) / double(axis.dstLen);
    for (int64_t i = 0; i < axis.dstLen; i++) axis.pIndex[i] = Tpx32s(scale * (double(i) + 0.5) - kBelow);
}

// ---- Linear -------------------------------------------------------------------------------------------

void buildLinearQ14(TpxiResizeAxis& axis, bool inPairs) {
    buildPositions(axis, 1, [&](int64_t i, double fraction) {
        const auto q = Tpx16s(fraction * 16384.0 + 1e-07);
        if (inPairs) {
            axis.pCoefQ14[2 * i] = Tpx16s(16384 - q);
            axis.pCoefQ14[2 * i + 1] = q;
        } else {
            axis.pCoefQ14[i] = q;
        }
    });
}

void buildFractions(TpxiResizeAxis& axis, int lobes, Tpx32f* fractions) {
    buildPositions(axis, lobes, [&](int64_t i, double fraction) { fractions[i] = Tpx32f(fraction); });
}

void buildFractions(TpxiResizeAxis& axis, int lobes, Tpx64f* fractions) {
    buildPositions(axis, lobes, [&](int64_t i, double fraction) { fractions[i] = fraction; });
}

// ---- Cubic --------------------------------------------------------------------------------------------

namespace {

template <class F>
inline F magnitudeOf(F t) {
    return t < 0 ? -t : t;
}

// Calls use(kernel) with the kernel of B and C, a function of the distance. It is two pieces: below distance 1,
// and from 1 up to 2.
template <class Use>
void withCubicKernel(Tpx32f B, Tpx32f C, Use use) {
    const auto pieces = [&](auto inner, auto outer) {
        use([=](Tpx32f x) -> Tpx32f { return x < 1 ? inner(x) : x < 2 ? outer(x) : 0; });
    };

    // The three usual members of the family have literal coefficients, which can differ from the general ones
    // in the last bit of a weight.
    if (B == 0 && C == 0.5f) {
        pieces([](Tpx32f x) { return (1.5f * x - 2.5f) * (x * x) + 1; },
               [](Tpx32f x) { return ((-0.5f * x + 2.5f) * x - 4) * x + 2; });
    } else if (B == 1 && C == 0) {
        pieces([](Tpx32f x) { return (0.5f * x * x - x) * x + 0.6666667f; },
               [](Tpx32f x) { return (-0.16666667f * x * x + x) * x + ((1.3333334f - x) - x); });
    } else if (B == 0.5f && C == 0.3f) {
        pieces([](Tpx32f x) { return (0.95f * x - 1.7f) * (x * x) + 0.8333333f; },
               [](Tpx32f x) { return ((-0.38333333f * x + 2) * x - 3.4f) * x + 1.8666667f; });
    } else {
        const Tpx32f in3 = 2 - 1.5f * B - C, in2 = 2 * B + C - 3, in0 = 1 - B * 0.33333334f;
        const Tpx32f out3 = -B * 0.16666667f - C, out2 = B + 5 * C, out1 = 2 * B + 8 * C,
                     out0 = 1.3333334f * B + 4 * C;
        pieces([=](Tpx32f x) { return (in3 * x + in2) * (x * x) + in0; },
               [=](Tpx32f x) { return ((out3 * x + out2) * x - out1) * x + out0; });
    }
}

} // namespace

void buildCubic(const Tpx32f* fractions, int64_t count, Tpx32f valueB, Tpx32f valueC, Tpx32f* weights) {
    withCubicKernel(valueB, valueC, [&](auto kernel) {
        for (int64_t i = 0; i < count; i++) {
            Tpx32f t = -1 - fractions[i];
            for (int k = 0; k < 4; k++, t += 1) weights[4 * i + k] = kernel(magnitudeOf(t));
        }
    });
}

// ---- Lanczos ------------------------------------------------------------------------------------------

namespace {

// sin(pi * n / d) for n >= 0. The reduction is exact, so whole multiples of pi give exactly 0, and no -0.
constexpr double sinPi(int n, int d) {
    n %= 2 * d;
    const bool negative = n >= d;
    if (negative) n -= d;
    if (2 * n > d) n = d - n;
    const double x = 3.14159265358979323846 * n / d;
    double term = x, sum = x;
    for (int k = 2; k < 26; k += 2) {
        term *= -x * x / (k * (k + 1));
        sum += term;
    }
    return negative ? 0 - sum : sum;
}

constexpr double sinc(int n, int d) { return n == 0 ? 1 : sinPi(n, d) / (3.14159265358979323846 * n / d); }

// sinc(x) * sinc(x / lobes) in steps of 1 / PerUnit, with a zero behind the end for interpolation.
template <int Lobes, int PerUnit>
struct LanczosTable {
    static constexpr int kPerUnit = PerUnit;
    Tpx32f values[Lobes * PerUnit + 2];
    constexpr LanczosTable() : values{} {
        for (int i = 0; i <= Lobes * PerUnit; i++)
            values[i] = Tpx32f(sinc(i, PerUnit) * sinc(i, PerUnit * Lobes));
    }
};

constexpr LanczosTable<2, 200> kLanczos2;
constexpr LanczosTable<3, 100> kLanczos3;

template <int Lobes, class Table>
void fillLanczos(const Tpx32f* fractions, int64_t count, const Table& table, Tpx32f* weights) {
    for (int64_t i = 0; i < count; i++, weights += 2 * Lobes) {
        Tpx32f t = 1 - Lobes - fractions[i], sum = 0;
        for (int k = 0; k < 2 * Lobes; k++, t += 1) {
            Tpx32f weight = 0;
            if (t > -Lobes && t < Lobes) {
                const Tpx32f u = magnitudeOf(t) * Table::kPerUnit;
                const int n = int(u);
                weight = table.values[n] + (table.values[n + 1] - table.values[n]) * (u - Tpx32f(n));
            }
            weights[k] = weight;
            sum += weight;
        }
        // Each is divided, not multiplied by an estimate of 1 / sum, which processors make differently: plans
        // are the same bytes everywhere, and where the sum is 1 the weights stay as they are.
        for (int k = 0; k < 2 * Lobes; k++) weights[k] /= sum;
    }
}

} // namespace

void buildLanczos(const Tpx32f* fractions, int64_t count, int lobes, Tpx32f* weights) {
    if (lobes == 2)
        fillLanczos<2>(fractions, count, kLanczos2, weights);
    else
        fillLanczos<3>(fractions, count, kLanczos3, weights);
}

// ---- Antialiasing -------------------------------------------------------------------------------------

namespace {

// Distances are floats, what the kernel gets is their product with the factor in double precision.
template <class Kernel>
void fillStretched(const Tpx64f* fractions, TpxiResizeAxis& axis, int kernelLobes, Kernel kernel) {
    const Stretch stretch = stretchOf(axis, kernelLobes);
    const int64_t taps = 2 * int64_t(stretch.lobes);
    Tpx32f* weights = axis.pCoef32f;
    for (int64_t i = 0; i < axis.dstLen; i++, weights += taps) {
        Tpx32f t = Tpx32f(1.0 - stretch.lobes - fractions[i]), sum = 0;
        for (int64_t k = 0; k < taps; k++, t += 1) {
            weights[k] = Tpx32f(stretch.factor * kernel(magnitudeOf(stretch.factor * t)));
            sum += weights[k];
        }
        for (int64_t k = 0; k < taps; k++) weights[k] /= sum;
    }
}

} // namespace

void buildStretchedLinear(const Tpx64f* fractions, TpxiResizeAxis& axis) {
    fillStretched(fractions, axis, 1, [](double x) { return x < 1 ? 1 - x : 0; });
}

void buildStretchedCubic(const Tpx64f* fractions, TpxiResizeAxis& axis, Tpx32f valueB, Tpx32f valueC) {
    withCubicKernel(valueB, valueC, [&](auto kernel) {
        fillStretched(fractions, axis, 2, [=](double x) { return kernel(Tpx32f(x)); });
    });
}

void buildStretchedLanczos(const Tpx64f* fractions, TpxiResizeAxis& axis, int lobes) {
    const auto sincOf = [](double x) {
        const double angle = x * 3.1415927f;
        return x == 0 ? 1 : TPXS(SinOne)(angle) / angle;
    };
    fillStretched(fractions, axis, lobes,
                  [=](double x) { return x < lobes ? sincOf(x) * sincOf(x / lobes) : 0; });
}

// ---- Super-sampling -----------------------------------------------------------------------------------

void buildSuper(TpxiResizeAxis& axis) {
    if (axis.srcRatio == axis.dstRatio) {
        axis.pIndex[0] = 0;
        axis.pCoef32f[0] = 1;
        return;
    }
    const int64_t run = superRun(axis.srcRatio, axis.dstRatio), last = int64_t(axis.srcRatio) - 1;
    const double scale = scaleOf(axis);
    double uncovered = 1; // of the source pixel in which the position begins
    for (int64_t i = 0; i < axis.dstRatio; i++) {
        Tpx32s* const index = axis.pIndex + i * run;
        Tpx32f* const weight = axis.pCoef32f + i * run;
        int64_t at = int64_t(scale * double(i)), k = 0;
        const auto put = [&](double w) {
            index[k] = Tpx32s(minOf(at, last)); // only a weight of zero may lie past the period
            weight[k++] = w <= 1e-07 ? 0 : Tpx32f(w);
        };
        put(uncovered);
        double rest = scale - uncovered;
        while (k < run - 1 && rest >= 1) {
            at++;
            put(1);
            rest -= 1;
        }
        at++;
        put(rest);
        uncovered = 1 - rest;
        while (k < run) put(0);
    }
}

} // namespace tpx
