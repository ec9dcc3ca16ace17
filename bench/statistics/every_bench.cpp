// SPDX-License-Identifier: Apache-2.0
// Extremes of two images, and of blocks of one.
#include "../families.h"
#include "../frame/pointwise.h"
#include "../frame/reading.h"
#include "models/models.h"

namespace bench {
namespace {

template <typename T>
void addEvery(const char* function, Combine<T> ours, Sizes sizes) {
    addCombining<T>({.group = "Extremes of two images", .function = function, .high = 100, .sizes = sizes},
                    ours, tpx::model::minEvery<T>);
}

// In place: the destination holds the result of the round before. The copy does not read its own.
template <typename T>
void addEveryInPlace(const char* function, int channels, Process<T> ours, ScalarCombine<T> rule) {
    addPointwise<T>(
        {.group = "Extremes of two images", .function = function, .channels = channels, .high = 100}, ours,
        [=](const T* src, T* dst, size_t length) { rule(src, dst, dst, length); });
}

// The extremes of blocks, beside a plain read of the image.
template <typename T>
using BlockMinMax = TpxStatus (*)(const T*, int, TpxiSize, T*, int, T*, int, TpxiSize, T*, T*);

template <typename T>
void addBlocks(const char* function, BlockMinMax<T> ours, int side, Sizes which) {
    const TpxiSize block = {side, side};
    for (const TpxiSize size : sizes(which, sizeof(T))) {
        const double samples = static_cast<double>(size.width) * size.height;
        const std::string name = std::string(function) + ", " + text(block);
        addJob({"Extremes of blocks", name, text(size), samples, samples * sizeof(T)}, [=] {
            const TpxiSize grid = {(size.width + side - 1) / side, (size.height + side - 1) / side};
            const size_t blocks = static_cast<size_t>(grid.width) * grid.height;
            struct Images {
                Image<T> src;
                std::vector<T> min, max, scalarMin, scalarMax;
            };
            const std::vector<T> none(blocks);
            const std::shared_ptr<Images> i(new Images{{size, 1, 0, 250}, none, none, none, none});
            const int step = grid.width * static_cast<int>(sizeof(T));
            const auto runOurs = [=] {
                return ours(i->src.data(), i->src.step(), size, i->min.data(), step, i->max.data(), step, block,
                            nullptr, nullptr);
            };
            const auto runScalar = [=] {
                tpx::model::blockMinMax(i->src.data(), i->src.step() / ptrdiff_t(sizeof(T)), size, block,
                                        i->scalarMin.data(), i->scalarMax.data());
            };
            check(runOurs());
            runScalar();
            if (i->min != i->scalarMin || i->max != i->scalarMax)
                throw std::runtime_error("the scalar form differs");
            return std::vector<Contender>{
                {kOurs, [=] { runOurs(); }}, {kRead, [=] { readImage(i->src); }}, {kScalar, runScalar}};
        });
    }
}

} // namespace

#define IN_PLACE(T, L, channels, rule) \
    addEveryInPlace<Tpx##T>("tpxiMaxEvery_" #T "_" #L "IR", channels, tpxiMaxEvery_##T##_##L##IR, rule)
#define BLOCKS(T, side, sizes) \
    addBlocks<Tpx##T>("tpxiBlockMinMax_" #T "_C1R", tpxiBlockMinMax_##T##_C1R, side, Sizes::sizes)

void addExtremesOfTwoAndBlocks() {
    addEvery<Tpx8u>("tpxiMinEvery_8u_C1R", tpxiMinEvery_8u_C1R, Sizes::all);
    addEvery<Tpx32f>("tpxiMinEvery_32f_C1R", tpxiMinEvery_32f_C1R, Sizes::all);
    IN_PLACE(8u, C3, 3, tpx::model::maxEvery<Tpx8u>);
    IN_PLACE(8u, AC4, 4, tpx::model::maxEveryKeepAlpha<Tpx8u>);
    IN_PLACE(16s, C1, 1, tpx::model::maxEvery<Tpx16s>);
    BLOCKS(8u, 16, all);
    BLOCKS(8u, 8, withinCache);
    BLOCKS(8u, 2, middle);
    BLOCKS(16s, 16, middle);
    BLOCKS(32f, 16, withinCache);
    BLOCKS(32f, 8, middle);
}

} // namespace bench
