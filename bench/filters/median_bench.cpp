// SPDX-License-Identifier: Apache-2.0
// Medians: networks of 3x3 to 9x9, and counting beyond.
#include "../families.h"
#include "filter_race.h"
#include "models/filters.h"

namespace bench {
namespace {

template <typename T>
using Median = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxiSize, TpxBorderType, T, Tpx8u*);

template <typename T>
void add(const char* function, Median<T> median, TpxDataType type, int channels, int side, Sizes sizes) {
    addFilter<T, T>(
        {.group = "Medians",
         .function = std::string(function) + ", " + std::to_string(side) + "x" + std::to_string(side),
         .channels = channels,
         .reach = side / 2,
         .high = sizeof(T) == 1 ? 255 : 65535,
         .sizes = sizes},
        [=](const T* src, int srcStep, T* dst, int dstStep, TpxiSize size, Tpx8u* buffer) {
            return median(src, srcStep, dst, dstStep, size, {side, side}, tpxBorderReplicate, 0, buffer);
        },
        [=](TpxiSize size) {
            int bytes = 0;
            check(tpxiFilterMedianBorderGetBufferSize(size, {side, side}, type, channels, &bytes));
            return bytes;
        },
        [=](const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize size) {
            tpx::model::median(src, srcStep, dst, dstStep, size, channels, {side, side});
        });
}

} // namespace

#define MEDIAN(T, channels, side, sizes)                                                                      \
    add<Tpx##T>("tpxiFilterMedianBorder_" #T "_C" #channels "R", tpxiFilterMedianBorder_##T##_C##channels##R, \
                tpxDataType##T, channels, side, Sizes::sizes)

void addMedians() {
    MEDIAN(8u, 1, 3, withinCache);
    MEDIAN(8u, 1, 5, withinCache);
    MEDIAN(8u, 1, 7, middle);
    MEDIAN(8u, 1, 9, middle);
    MEDIAN(8u, 1, 15, middle);
    MEDIAN(8u, 1, 31, middle);
    MEDIAN(8u, 3, 3, middle);
    MEDIAN(8u, 3, 5, middle);
    MEDIAN(16u, 1, 3, middle);
    MEDIAN(16u, 1, 5, middle);
    MEDIAN(16u, 1, 15, middle);
    MEDIAN(32f, 1, 3, middle);
    MEDIAN(32f, 1, 5, middle);
    MEDIAN(32f, 1, 15, middle);
}

} // namespace bench
