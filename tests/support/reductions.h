// SPDX-License-Identifier: Apache-2.0
// What the tests of reductions share: images as calls are told of them, and the faults of calls.
#pragma once

#include <climits>

#include "tests/support/checks.h"
#include "tests/support/samples.h"

namespace tpx::test {

// An image as a call is told of it; the step may be zero, negative or odd.
template <class T>
struct View {
    const T* data;
    int step;

    View(const T* samples, int stepInBytes) : data(samples), step(stepInBytes) {}
    View(const GuardedImage<T>& image) : View(image.data(), image.step()) {}

    const T* row(int y) const {
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(data) + ptrdiff_t(y) * step);
    }
    T at(ptrdiff_t sample, int y) const {
        T v;
        std::memcpy(&v, reinterpret_cast<const char*>(row(y)) + sample * ptrdiff_t(sizeof v), sizeof v);
        return v;
    }
    View fromBelow(int height) const { return {row(height - 1), -step}; }
};

// Rows of one value, more of them than any lane has room for: check(a, b, size), where `a` is full of p and `b`
// of q. A row starts a pixel behind the one above, which sees the same values in a few kilobytes. Floats only
// have to outlast the partial sums in single precision.
template <class T, class Check>
void checkManyRows(int channels, T p, T q, Check check) {
    const int rows = std::is_floating_point_v<T> ? 120 : channels == 1 && sizeof(T) == 1 ? 10000 : 600;
    const TpxiSize size = {4099, rows};
    const int pixel = channels * int(sizeof(T));
    const size_t samples = size_t(size.width + size.height) * size_t(channels);
    const std::vector<T> a(samples, p), b(samples, q);
    check(View<T>(a.data(), pixel), View<T>(b.data(), pixel), size);
}

// More samples than any lane has room for, most of which lie at the ends of the type's range: sums of pairs
// wrap around now and then.
template <class T>
void fillWithExtremes(GuardedImage<T>& image, unsigned seed) {
    const T low = std::numeric_limits<T>::lowest(), high = std::numeric_limits<T>::max();
    const T choices[] = {low, low, low, T(low + 1), high, high, T(high - 1), T(0)};
    image.fill([&](int, int, int) {
        seed = seed * 1664525 + 1013904223;
        return choices[seed >> 29];
    });
}
// check(a, b, channels) on such images of short samples, with every number of channels.
template <class T, class Check>
void checkExtremesAmongOthers(Check check) {
    constexpr TpxiSize kBeyondLanes = {1031, 600};
    if constexpr (sizeof(T) < 4)
        for (int channels : {1, 3, 4}) {
            GuardedImage<T> a(kBeyondLanes.width, kBeyondLanes.height, channels),
                b(kBeyondLanes.width, kBeyondLanes.height, channels);
            fillWithExtremes(a, 1), fillWithExtremes(b, 2);
            check(a, b, channels);
        }
}

// Results have more room than a call has values for; the rest has to keep this.
inline constexpr int kRoom = 5, kUnwritten = 77;

struct Call {
    bool null[6] = {};
    TpxiSize size = {2, 2};
    int steps[2] = {32, 32};
};

inline std::vector<Fault<Call>> faultsOf(std::vector<int> pointers, bool zeroSteps) {
    std::vector<Fault<Call>> list;
    for (int i : pointers) list.push_back({"pointer", [=](Call& c) { c.null[i] = true; }, tpxErrNullPointer});
    for (int bad : {0, -1, INT_MIN}) {
        list.push_back({"width", [=](Call& c) { c.size.width = bad; }, tpxErrSize});
        list.push_back({"height", [=](Call& c) { c.size.height = bad; }, tpxErrSize});
    }
    for (int i = 0; i < 2 && zeroSteps; i++)
        list.push_back({"step", [=](Call& c) { c.steps[i] = 0; }, tpxErrSize});
    return list;
}

} // namespace tpx::test
