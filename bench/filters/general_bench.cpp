// SPDX-License-Identifier: Apache-2.0
// The general filter: kernels of integers with small and with large coefficients, and kernels of floats.
#include "../families.h"
#include "filter_race.h"
#include "models/filters.h"

namespace bench {
namespace {

// Rows of Pascal's triangle, as a column times a row.
std::vector<int> binomial(int side, int times) {
    std::vector<int> row = {1};
    while (int(row.size()) < side) {
        row.push_back(0);
        for (size_t i = row.size() - 1; i > 0; --i) row[i] += row[i - 1];
    }
    std::vector<int> kernel;
    for (int a : row)
        for (int b : row) kernel.push_back(a * b * times);
    return kernel;
}

template <typename T>
using General = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxBorderType, const T*,
                              const TpxiFilterBorderBlock*, Tpx8u*);

// `times` makes coefficients larger: sums of bytes then leave 16 bits.
template <typename T>
void add(const char* function, General<T> filter, int channels, int side, bool floats, int times, Sizes sizes) {
    const std::vector<int> weights = binomial(side, times);
    const int sum = times << 2 * (side - 1);
    const TpxiSize kernel = {side, side};
    const auto bytesOf = [=](TpxiSize size, bool ofBlock) {
        int block = 0, buffer = 0;
        check(tpxiFilterBorderGetSize(kernel, size, kTypeOf<T>, floats ? tpxDataType32f : tpxDataType16s,
                                      channels, &block, &buffer));
        return ofBlock ? block : buffer;
    };
    const auto block = std::make_shared<std::vector<Tpx8u>>(size_t(bytesOf({64, 64}, true)));
    const auto spec = reinterpret_cast<TpxiFilterBorderBlock*>(block->data());
    std::vector<Tpx32f> k;
    for (int w : weights) k.push_back(float(w) / float(sum));
    if (floats) {
        check(tpxiFilterBorderInit_32f(k.data(), kernel, kTypeOf<T>, channels, tpxRoundNearestEven, spec));
    } else {
        const std::vector<Tpx16s> integers(weights.begin(), weights.end());
        check(tpxiFilterBorderInit_16s(integers.data(), kernel, sum, kTypeOf<T>, channels, tpxRoundNearestEven,
                                       spec));
    }
    addFilter<T, T>(
        {.group = "General filter",
         .function = std::string(function) + ", " +
                     (floats      ? "floats "
                      : times > 1 ? "large integers "
                                  : "integers ") +
                     std::to_string(side) + "x" + std::to_string(side),
         .channels = channels,
         .reach = side / 2,
         .tolerance = std::is_floating_point_v<T> ? 1e-5 : 0,
         .sizes = sizes},
        [=](const T* src, int srcStep, T* dst, int dstStep, TpxiSize size, Tpx8u* buffer) {
            return filter(src, srcStep, dst, dstStep, size, tpxBorderReplicate, nullptr,
                          reinterpret_cast<TpxiFilterBorderBlock*>(block->data()), buffer);
        },
        [=](TpxiSize size) { return bytesOf(size, false); },
        [=](const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize size) {
            tpx::model::correlate(src, srcStep, dst, dstStep, size, channels, weights.data(), side,
                                  1 / float(sum));
        },
        {Operand(k, side)});
}

} // namespace

#define GENERAL(T, channels, side, floats, times, sizes)                                                    \
    add<Tpx##T>("tpxiFilterBorder_" #T "_C" #channels "R", tpxiFilterBorder_##T##_C##channels##R, channels, \
                side, floats, times, Sizes::sizes)

void addGeneralFilters() {
    GENERAL(8u, 1, 3, false, 1, all);
    GENERAL(8u, 1, 3, false, 256, middle);
    GENERAL(8u, 1, 5, false, 1, withinCache);
    GENERAL(8u, 1, 5, false, 16, middle);
    GENERAL(8u, 1, 7, false, 1, withinCache);
    GENERAL(8u, 3, 3, false, 256, middle);
    GENERAL(8u, 3, 5, false, 16, middle);
    GENERAL(8u, 3, 7, false, 1, middle);
    GENERAL(16s, 1, 5, false, 1, middle);
    GENERAL(8u, 1, 5, true, 1, middle);
    GENERAL(16u, 1, 5, true, 1, middle);
    GENERAL(32f, 1, 3, true, 1, withinCache);
    GENERAL(32f, 1, 5, true, 1, middle);
    GENERAL(32f, 1, 7, true, 1, middle);
}

} // namespace bench
