// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

namespace bench {
namespace {

// Thresholds that differ between the channels and divide the samples, of which there are as many below as
// above.
template <typename T>
inline constexpr T kLow[] = {50, 60, 70};
template <typename T>
inline constexpr T kLowValue[] = {0, 1, 2}; // in a single channel as OpenCV has it
template <typename T>
inline constexpr T kHigh[] = {90, 80, 75};
template <typename T>
inline constexpr T kHighValue[] = {120, 110, 100};

template <typename T>
using Rule = void (*)(const T*, T*, size_t, const tpx::model::Thresholds<T>&);

template <typename T>
void addThreshold(const char* function, size_t channels, Sizes sizes, Process<T> ours, Rule<T> rule) {
    const tpx::model::Thresholds<T> by = {
        channels, std::min<size_t>(channels, 3), kLow<T>, kLowValue<T>, kHigh<T>, kHighValue<T>};
    addPointwise<T>(
        {.group = "Thresholds", .function = function, .channels = int(channels), .high = 127, .sizes = sizes},
        ours, [=](const T* src, T* dst, size_t length) { rule(src, dst, length, by); }, {},
        {Operand(std::vector<double>{kLow<T>[0]}, 1)});
}

} // namespace

// C1 takes its constants as values (at is *), the others as arrays.
#define FORM(word, rule, T, L, channels, sizes, ...)                                                   \
    addThreshold<Tpx##T>(                                                                              \
        "tpxiThreshold_" #word "_" #T "_" #L "R", channels, Sizes::sizes,                              \
        [](const Tpx##T* src, int srcStep, Tpx##T* dst, int dstStep, TpxiSize size) {                  \
            return tpxiThreshold_##word##_##T##_##L##R(src, srcStep, dst, dstStep, size, __VA_ARGS__); \
        },                                                                                             \
        tpx::model::threshold##rule<Tpx##T>);
#define LAYOUT(T, L, channels, at, sizes)                                                      \
    FORM(GT, Gt, T, L, channels, sizes, at kLow<Tpx##T>)                                       \
    FORM(LT, Lt, T, L, channels, middle, at kLow<Tpx##T>)                                      \
    FORM(GTVal, GtVal, T, L, channels, middle, at kLow<Tpx##T>, at kLowValue<Tpx##T>)          \
    FORM(LTVal, LtVal, T, L, channels, sizes, at kLow<Tpx##T>, at kLowValue<Tpx##T>)           \
    FORM(LTValGTVal, LtValGtVal, T, L, channels, sizes, at kLow<Tpx##T>, at kLowValue<Tpx##T>, \
         at kHigh<Tpx##T>, at kHighValue<Tpx##T>)

void addThresholds() {
    LAYOUT(8u, C1, 1, *, all)
    LAYOUT(8u, C3, 3, , middle)
    LAYOUT(8u, AC4, 4, , middle)
    LAYOUT(16s, C1, 1, *, middle)
    LAYOUT(16s, C3, 3, , middle)
    LAYOUT(16u, C1, 1, *, middle)
    LAYOUT(32f, C1, 1, *, middle)
    LAYOUT(32f, C3, 3, , middle)
}

} // namespace bench
