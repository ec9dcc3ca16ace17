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
    const auto of = [&]<typename T>(T) { repeatNoise<T>(memory_.get(), all_, range); };
    if (type == "8u" || type == "1u")
        of(Tpx8u());
    else if (type == "8s")
        of(Tpx8s());
    else if (type == "16u")
        of(Tpx16u());
    else if (type == "16s")
        of(Tpx16s());
    else if (type == "32u")
        of(Tpx32u());
    else if (type == "32s")
        of(Tpx32s());
    else if (type == "64s")
        of(Tpx64s());
    else if (type == "64f")
        of(Tpx64f());
    else if (type == "32f" || type == "32fc")
        of(Tpx32f());
    else
        throw std::logic_error("no samples of type " + type);
}

} // namespace bench::walk
