// SPDX-License-Identifier: Apache-2.0
// Derivatives, Laplacians and sharpening.
#include <cmath>

#include "../families.h"
#include "filter_race.h"
#include "models/filters.h"

namespace bench {
namespace {

using Weights = std::vector<int>;

Weights outer(const Weights& column, const Weights& row) {
    Weights w;
    for (int c : column)
        for (int r : row) w.push_back(c * r);
    return w;
}
Weights centreLessOnes(int side, int centre) {
    Weights w(size_t(side) * size_t(side), -1);
    w[w.size() / 2] = centre;
    return w;
}

template <typename S, typename D>
using FixedMask = TpxStatus (*)(const S*, int, D*, int, TpxiSize, int, TpxBorderType, S, Tpx8u*);
using SizeCall = TpxStatus (*)(TpxiSize, int, TpxDataType, TpxDataType, int, int*);

template <typename S, typename D>
void add(const char* function, FixedMask<S, D> filter, SizeCall bufferSize, int channels, int mask,
         Weights weights, float scale, Sizes sizes) {
    const int side = mask == 33 ? 3 : 5;
    constexpr double kMost = 255;
    double gain = 0; // floats are added in another order: each sum may be off by its last bits
    for (const auto weight : weights) gain += std::abs(double(weight)) * scale;
    addFilter<S, D>(
        {.group = "Filters with fixed masks",
         .function = std::string(function) + ", " + std::to_string(side) + "x" + std::to_string(side),
         .channels = channels,
         .reach = side / 2,
         .high = kMost,
         .tolerance = std::is_floating_point_v<D> ? gain * kMost * 0x1p-22 : 0,
         .sizes = sizes},
        [=](const S* src, int srcStep, D* dst, int dstStep, TpxiSize size, Tpx8u* buffer) {
            return filter(src, srcStep, dst, dstStep, size, mask, tpxBorderReplicate, 0, buffer);
        },
        [=](TpxiSize size) {
            int bytes = 0;
            check(bufferSize(size, mask, kTypeOf<S>, kTypeOf<D>, channels, &bytes));
            return bytes;
        },
        [=](const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, TpxiSize size) {
            tpx::model::correlate(src, srcStep, dst, dstStep, size, channels, weights.data(), side, scale);
        });
}

} // namespace

#define GRADIENT(name, types, S, D, mask, weights, sizes)                                                   \
    add<Tpx##S, Tpx##D>("tpxiFilter" #name "Border_" #types "_C1R", tpxiFilter##name##Border_##types##_C1R, \
                        tpxiFilter##name##BorderGetBufferSize, 1, mask, weights, 1, Sizes::sizes)
#define ENHANCEMENT(name, T, channels, mask, weights, scale, sizes)                                           \
    add<Tpx##T, Tpx##T>("tpxiFilter" #name "Border_" #T "_C" #channels "R",                                   \
                        tpxiFilter##name##Border_##T##_C##channels##R, tpxiFilter##name##BorderGetBufferSize, \
                        channels, mask, weights, scale, Sizes::sizes)

void addFixedMasks() {
    GRADIENT(SobelVert, 8u16s, 8u, 16s, 33, outer({1, 2, 1}, {1, 0, -1}), all);
    GRADIENT(SobelHoriz, 8u16s, 8u, 16s, 33, outer({-1, 0, 1}, {1, 2, 1}), middle);
    GRADIENT(SobelVert, 8u16s, 8u, 16s, 55, outer({1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}), withinCache);
    GRADIENT(ScharrHorizMask, 8u16s, 8u, 16s, 33, outer({-1, 0, 1}, {3, 10, 3}), middle);
    GRADIENT(SobelVert, 16s, 16s, 16s, 33, outer({1, 2, 1}, {1, 0, -1}), middle);
    GRADIENT(SobelVert, 32f, 32f, 32f, 33, outer({1, 2, 1}, {1, 0, -1}), middle);
    GRADIENT(SobelVert, 32f, 32f, 32f, 55, outer({1, 4, 6, 4, 1}, {1, 2, 0, -2, -1}), middle);
    ENHANCEMENT(Laplace, 8u, 1, 33, centreLessOnes(3, 8), 1, withinCache);
    ENHANCEMENT(Hipass, 8u, 1, 55, centreLessOnes(5, 24), 1, withinCache);
    ENHANCEMENT(Sharpen, 8u, 1, 33, centreLessOnes(3, 16), 0.125f, all);
    ENHANCEMENT(Sharpen, 8u, 3, 33, centreLessOnes(3, 16), 0.125f, middle);
    ENHANCEMENT(Sharpen, 32f, 1, 33, centreLessOnes(3, 16), 0.125f, middle);
}

} // namespace bench
