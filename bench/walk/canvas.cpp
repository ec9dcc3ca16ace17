// SPDX-License-Identifier: Apache-2.0
#include "canvas.h"

#include <cstdlib>
#include <cstring>
#include <map>
#include <new>
#include <stdexcept>

#include "bench/frame/image.h"

namespace bench::walk {
namespace {

constexpr size_t kLine = 64, kPage = 4096;
constexpr int kRowsAround = 8;

size_t roundUp(size_t bytes, size_t unit) { return (bytes + unit - 1) / unit * unit; }

template <typename T>
void repeatNoise(Tpx8u* to, size_t bytes, Range range) {
    static std::map<std::pair<double, double>, std::vector<T>> made;
    std::vector<T>& samples = made[{range.low, range.high}];
    if (samples.empty()) samples = noise<T>(range.low, range.high);
    const size_t period = samples.size() * sizeof(T);
    for (size_t at = 0; at < bytes; at += period)
        std::memcpy(to + at, samples.data(), std::min(period, bytes - at));
}

// By the names of types; bits are filled as bytes, and both parts of complex numbers alike.
const std::map<std::string, void (*)(Tpx8u*, size_t, Range)> kFill = {
    {"1u", repeatNoise<Tpx8u>},   {"8u", repeatNoise<Tpx8u>},    {"8s", repeatNoise<Tpx8s>},
    {"16u", repeatNoise<Tpx16u>}, {"16s", repeatNoise<Tpx16s>},  {"32u", repeatNoise<Tpx32u>},
    {"32s", repeatNoise<Tpx32s>}, {"64s", repeatNoise<Tpx64s>},  {"64f", repeatNoise<Tpx64f>},
    {"32f", repeatNoise<Tpx32f>}, {"32fc", repeatNoise<Tpx32f>},
};

} // namespace

void Canvas::Free::operator()(void* p) const { std::free(p); }

Canvas::Canvas(size_t rowBytes, int rows, size_t gap)
    : rowBytes_(rowBytes), rows_(rows), step_(static_cast<int>(roundUp(rowBytes + gap, kLine))) {
    const size_t around = gap ? roundUp(gap, kLine) + static_cast<size_t>(step_) * kRowsAround : 0;
    all_ = roundUp(static_cast<size_t>(step_) * rows + 2 * around + kLine, kPage);
    memory_.reset(static_cast<Tpx8u*>(std::aligned_alloc(kPage, all_)));
    if (!memory_) throw std::bad_alloc();
    data_ = memory_.get() + around;
    std::memset(memory_.get(), 0, all_); // maps every page
}

void Canvas::fill(const std::string& type, Range range) {
    const auto at = kFill.find(type);
    if (at == kFill.end()) throw std::logic_error("no samples of type " + type);
    at->second(memory_.get(), all_, range);
}

} // namespace bench::walk
