// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

namespace bench {
namespace {

constexpr const char* kGroup = "Arithmetic";
constexpr double kFewUlps = 4 * 0x1p-23; // ln and exp of 32f are good to 2 units, the platform's to about 1

// Integer forms; sources and scale factor are such that the results spread over the range of the samples.
template <typename T, typename F, typename G>
void addScaled(const char* name, F ours, G scalar, double low, double high, int scaleFactor,
               Sizes sizes = Sizes::middle) {
    addPointwise<T>({.group = kGroup, .function = name, .low = low, .high = high, .sizes = sizes},
                    withLast(ours, scaleFactor), withLast(scalar, scaleFactor));
}

template <typename F, typename G>
void addFloat(const char* name, F ours, G scalar, double low, double high, Sizes sizes, double tolerance = 0) {
    addPointwise<Tpx32f>(
        {.group = kGroup, .function = name, .low = low, .high = high, .tolerance = tolerance, .sizes = sizes},
        ours, scalar);
}

} // namespace

void addUnary() {
    addPointwise<Tpx16s>(
        {.group = kGroup, .function = "tpxiAbs_16s_C1R", .low = -32768, .high = 32767, .sizes = Sizes::all},
        tpxiAbs_16s_C1R, tpx::model::abs<Tpx16s>);
    addFloat("tpxiAbs_32f_C1R", tpxiAbs_32f_C1R, tpx::model::abs<Tpx32f>, -100, 100, Sizes::all);

    // With factor 0, where few samples do not saturate, and with the factor that keeps the largest ones.
    addScaled<Tpx8u>("tpxiSqr_8u_C1RSfs, 0", tpxiSqr_8u_C1RSfs, tpx::model::sqr<Tpx8u>, 0, 20, 0, Sizes::all);
    addScaled<Tpx16s>("tpxiSqr_16s_C1RSfs, 0", tpxiSqr_16s_C1RSfs, tpx::model::sqr<Tpx16s>, -200, 200, 0,
                      Sizes::all);
    addScaled<Tpx8u>("tpxiSqr_8u_C1RSfs", tpxiSqr_8u_C1RSfs, tpx::model::sqr<Tpx8u>, 0, 255, 8);
    addScaled<Tpx16u>("tpxiSqr_16u_C1RSfs", tpxiSqr_16u_C1RSfs, tpx::model::sqr<Tpx16u>, 0, 65535, 16);
    addScaled<Tpx16s>("tpxiSqr_16s_C1RSfs", tpxiSqr_16s_C1RSfs, tpx::model::sqr<Tpx16s>, -32768, 32767, 15);
    addFloat("tpxiSqr_32f_C1R", tpxiSqr_32f_C1R, withLast(tpx::model::sqr<Tpx32f>, 0), -100, 100, Sizes::all);

    addScaled<Tpx8u>("tpxiSqrt_8u_C1RSfs", tpxiSqrt_8u_C1RSfs, tpx::model::sqrt<Tpx8u>, 0, 255, -4,
                     Sizes::withinCache);
    addScaled<Tpx16u>("tpxiSqrt_16u_C1RSfs", tpxiSqrt_16u_C1RSfs, tpx::model::sqrt<Tpx16u>, 0, 65535, -8);
    addScaled<Tpx16s>("tpxiSqrt_16s_C1RSfs", tpxiSqrt_16s_C1RSfs, tpx::model::sqrt<Tpx16s>, 0, 32767, -7);
    addFloat("tpxiSqrt_32f_C1R", tpxiSqrt_32f_C1R, withLast(tpx::model::sqrt<Tpx32f>, 0), 0, 1000, Sizes::all);

    addScaled<Tpx8u>("tpxiLn_8u_C1RSfs", tpxiLn_8u_C1RSfs, tpx::model::ln<Tpx8u>, 1, 255, -5,
                     Sizes::withinCache);
    addScaled<Tpx16u>("tpxiLn_16u_C1RSfs", tpxiLn_16u_C1RSfs, tpx::model::ln<Tpx16u>, 1, 65535, -12);
    addScaled<Tpx16s>("tpxiLn_16s_C1RSfs", tpxiLn_16s_C1RSfs, tpx::model::ln<Tpx16s>, 1, 32767, -11);
    addFloat("tpxiLn_32f_C1R", tpxiLn_32f_C1R, withLast(tpx::model::ln<Tpx32f>, 0), 0.001, 1000,
             Sizes::withinCache, kFewUlps);

    addScaled<Tpx8u>("tpxiExp_8u_C1RSfs", tpxiExp_8u_C1RSfs, tpx::model::exp<Tpx8u>, 0, 5, 0,
                     Sizes::withinCache);
    addScaled<Tpx16u>("tpxiExp_16u_C1RSfs", tpxiExp_16u_C1RSfs, tpx::model::exp<Tpx16u>, 0, 11, 0);
    addScaled<Tpx16s>("tpxiExp_16s_C1RSfs", tpxiExp_16s_C1RSfs, tpx::model::exp<Tpx16s>, -1, 10, 0);
    addFloat("tpxiExp_32f_C1R", tpxiExp_32f_C1R, withLast(tpx::model::exp<Tpx32f>, 0), -10, 10,
             Sizes::withinCache, kFewUlps);
}

} // namespace bench
