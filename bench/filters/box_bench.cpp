// SPDX-License-Identifier: Apache-2.0
// Box filters.
#include "../families.h"
#include "filter_race.h"
#include "models/filters.h"

namespace bench {
namespace {

template <typename T>
using Box = TpxStatus (*)(const T*, int, T*, int, TpxiSize, TpxiSize, TpxBorderType, const T*, Tpx8u*);

template <typename T>
void add(const char* function, Box<T> filter, TpxDataType type, int channels, int side, Sizes sizes) {
    addFilter<T, T>(
        {.group = "Box filters",
         .function = std::string(function) + ", " + std::to_string(side) + "x" + std::to_string(side),
         .channels = channels,
         .reach = side / 2,
         .tolerance = std::is_floating_point_v<T> ? 1e-3 : 0,
         .sizes = sizes},
        [=](const T* src, int srcStep, T* dst, int dstStep, TpxiSize size, Tpx8u* buffer) {
            return filter(src, srcStep, dst, dstStep, size, {side, side}, tpxBorderReplicate, nullptr, buffer);
        },
        [=](TpxiSize size) {
            int bytes = 0;
            check(tpxiFilterBoxBorderGetBufferSize(size, {side, side}, type, channels, &bytes));
            return bytes;
        },
        [=](const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize size) {
            const std::vector<int> ones(size_t(side) * size_t(side), 1);
            tpx::model::correlate(src, srcStep, dst, dstStep, size, channels, ones.data(), side,
                                  1.0f / float(side * side));
        });
}

} // namespace

#define BOX(T, channels, side, sizes)                                                                   \
    add<Tpx##T>("tpxiFilterBoxBorder_" #T "_C" #channels "R", tpxiFilterBoxBorder_##T##_C##channels##R, \
                tpxDataType##T, channels, side, Sizes::sizes)

void addBoxes() {
    BOX(8u, 1, 3, all);
    BOX(8u, 1, 5, withinCache);
    BOX(8u, 1, 15, middle);
    BOX(8u, 1, 31, middle);
    BOX(8u, 3, 5, middle);
    BOX(8u, 4, 15, middle);
    BOX(16u, 1, 3, withinCache);
    BOX(16u, 1, 15, middle);
    BOX(16s, 3, 5, middle);
    BOX(32f, 1, 3, withinCache);
    BOX(32f, 1, 15, middle);
    BOX(32f, 4, 5, middle);
}

} // namespace bench
