// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

#include <array>

namespace bench {
namespace {

template <typename T>
void addCopy(const char* name, Process<T> ours, int channels, ScalarRow<T> scalar,
             Sizes sizes = Sizes::middle) {
    addPointwise<T>(
        {.group = "Copy and set", .function = name, .channels = channels, .high = 100, .sizes = sizes}, ours,
        scalar);
}

// The copy beside it reads as well as writes; std::memset fills as many bytes, though with one value.
template <typename T, typename F, typename Value>
void addSet(const char* name, F function, int channels, const Value& value, Sizes sizes = Sizes::middle) {
    const auto fill = [](const Image<T>&, const Image<T>& dst) {
        if (dst.rowBytes() == static_cast<size_t>(dst.step())) {
            std::memset(dst.data(), 7, dst.rowBytes() * dst.size().height);
            return;
        }
        for (int y = 0; y < dst.size().height; ++y) std::memset(dst.row(y), 7, dst.rowBytes());
    };
    addPointwise<T>(
        {.group = "Copy and set",
         .function = name,
         .channels = channels,
         .high = 100,
         .sizes = sizes,
         .reads = false},
        [=](const T*, int, T* dst, int step, TpxiSize size) {
            if constexpr (std::is_arithmetic_v<Value>)
                return function(value, dst, step, size);
            else
                return function(value.data(), dst, step, size);
        },
        [=](const T*, T* dst, size_t length) {
            if constexpr (std::is_arithmetic_v<Value>)
                tpx::model::set(&value, 1, dst, length);
            else
                tpx::model::set(value.data(), value.size(), dst, length);
        },
        {{kMemset, fill}});
}

} // namespace

void addCopies() {
    addCopy<Tpx8u>("tpxiCopy_8u_C1R", tpxiCopy_8u_C1R, 1, tpx::model::copy<Tpx8u>, Sizes::all);
    addCopy<Tpx8u>("tpxiCopy_8u_C3R", tpxiCopy_8u_C3R, 3, tpx::model::copy<Tpx8u>);
    addCopy<Tpx8u>("tpxiCopy_8u_AC4R", tpxiCopy_8u_AC4R, 4, tpx::model::copyKeepAlpha<Tpx8u>);
    addCopy<Tpx16s>("tpxiCopy_16s_C1R", tpxiCopy_16s_C1R, 1, tpx::model::copy<Tpx16s>);
    addCopy<Tpx32f>("tpxiCopy_32f_C1R", tpxiCopy_32f_C1R, 1, tpx::model::copy<Tpx32f>, Sizes::all);
    addCopy<Tpx32f>("tpxiCopy_32f_C3R", tpxiCopy_32f_C3R, 3, tpx::model::copy<Tpx32f>);

    addSet<Tpx8u>("tpxiSet_8u_C1R", tpxiSet_8u_C1R, 1, Tpx8u{7}, Sizes::all);
    addSet<Tpx8u>("tpxiSet_8u_C3R", tpxiSet_8u_C3R, 3, std::array<Tpx8u, 3>{7, 8, 9});
    addSet<Tpx32f>("tpxiSet_32f_C1R", tpxiSet_32f_C1R, 1, Tpx32f{7}, Sizes::all);
    addSet<Tpx32f>("tpxiSet_32f_C3R", tpxiSet_32f_C3R, 3, std::array<Tpx32f, 3>{7, 8, 9});
}

} // namespace bench
