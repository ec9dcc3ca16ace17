// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

namespace bench {
namespace {

constexpr const char* kGroup = "Arithmetic of two images";

// Samples of the sources lie in low..high, so that the results spread over the range of the type.
template <typename T, typename F, typename G>
void addScaled(const char* name, F ours, G scalar, int scaleFactor, double low, double high, Sizes sizes,
               int channels = 1) {
    addCombining<T>(
        {.group = kGroup, .function = name, .channels = channels, .low = low, .high = high, .sizes = sizes},
        withLast(ours, scaleFactor), withLast(scalar, scaleFactor));
}

template <typename G>
void addFloat(const char* function, Combine<Tpx32f> ours, G scalar, Sizes sizes = Sizes::middle) {
    addCombining<Tpx32f>({.group = kGroup, .function = function, .low = -100, .high = 100, .sizes = sizes},
                         ours, withLast(scalar, 0));
}

} // namespace

#define SCALED(Op, rule, T, factor, low, high, sizes)                                 \
    addScaled<Tpx##T>("tpxi" #Op "_" #T "_C1RSfs, " #factor, tpxi##Op##_##T##_C1RSfs, \
                      tpx::model::rule<Tpx##T>, factor, low, high, Sizes::sizes)

void addBinary() {
    SCALED(Add, add, 8u, 0, 0, 255, all);
    SCALED(Add, add, 8u, 1, 0, 255, all);
    SCALED(Add, add, 8u, -1, 0, 60, middle);
    SCALED(Add, add, 16s, 0, -32768, 32767, all);
    SCALED(Add, add, 16s, 1, -32768, 32767, middle);
    SCALED(Add, add, 16u, 0, 0, 65535, middle);
    SCALED(Sub, sub, 8u, 0, 0, 255, middle);
    SCALED(Sub, sub, 8u, 1, 0, 255, middle);
    SCALED(Sub, sub, 8u, -1, 0, 120, middle);
    SCALED(Sub, sub, 16s, 0, -32768, 32767, middle);
    SCALED(Sub, sub, 16s, 1, -32768, 32767, middle);
    SCALED(Sub, sub, 16u, 0, 0, 65535, middle);
    SCALED(Mul, mul, 8u, 0, 0, 20, all);
    SCALED(Mul, mul, 8u, 1, 0, 25, middle);
    SCALED(Mul, mul, 8u, 8, 0, 255, middle);
    SCALED(Mul, mul, 16s, 0, -200, 200, all);
    SCALED(Mul, mul, 16s, 1, -250, 250, middle);
    SCALED(Mul, mul, 16u, 0, 0, 300, middle);
    addScaled<Tpx8u>("tpxiAdd_8u_C3RSfs, 0", tpxiAdd_8u_C3RSfs, tpx::model::add<Tpx8u>, 0, 0, 255,
                     Sizes::middle, 3);
    addScaled<Tpx8u>("tpxiAdd_8u_AC4RSfs, 0", tpxiAdd_8u_AC4RSfs, tpx::model::addKeepAlpha<Tpx8u>, 0, 0, 255,
                     Sizes::middle, 4);
    addFloat("tpxiAdd_32f_C1R", tpxiAdd_32f_C1R, tpx::model::add<Tpx32f>, Sizes::all);
    addFloat("tpxiSub_32f_C1R", tpxiSub_32f_C1R, tpx::model::sub<Tpx32f>);
    addFloat("tpxiMul_32f_C1R", tpxiMul_32f_C1R, tpx::model::mul<Tpx32f>);
}

} // namespace bench
