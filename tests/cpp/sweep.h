// SPDX-License-Identifier: Apache-2.0
// Images of noise in every type and layout, and the exports that the headers declare, for tests of tpxi.hpp.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tpxi.hpp>
#include <type_traits>

namespace tpxi::test {

constexpr TpxiSize kSize = {19, 13};

inline const char* const kExports[] = {
#define EXPORT(name, parameters) #name,
#include "exports.inc"
#undef EXPORT
};

// How many exports are called stem, a type, an underscore, a layout and tail.
inline int exported(const std::string& stem, const std::string& tail) {
    int count = 0;
    for (const std::string name : kExports) {
        if (name.compare(0, stem.size(), stem) != 0) continue;
        const std::string rest = name.substr(stem.size());
        const std::size_t layout = rest.find('_');
        if (layout == std::string::npos || rest[0] < '0' || rest[0] > '9') continue;
        for (const char* word : {"_C1", "_C3", "_C4", "_AC4"}) count += rest.substr(layout) == word + tail;
    }
    return count;
}

template <class... Sample>
struct Samples {};
using All = Samples<Tpx8u, Tpx8s, Tpx16u, Tpx16s, Tpx32u, Tpx32s, Tpx32f, Tpx64f, Tpx32fc>;

// Memory of pixels that are noise; floats are positive, so that nothing warns.
template <class Sample, int layout>
struct Picture {
    explicit Picture(unsigned seed, TpxiSize size = kSize) : memory(size) {
        for (int y = 0; y < size.height; ++y)
            for (int i = 0; i < size.width * memory.channels; ++i) {
                seed = seed * 1664525U + 1013904223U;
                if constexpr (std::is_arithmetic_v<Sample>)
                    memory.row(y)[i] = static_cast<Sample>(1 + (seed >> 26));
                else
                    memory.row(y)[i] = {static_cast<Tpx32f>(seed >> 26), 1};
            }
    }
    View<Sample, layout> view() { return {memory.data(), memory.step(), memory.size()}; }

    Image<Sample, channelsOf(layout)> memory;
};

template <class I>
::testing::AssertionResult same(const I& a, const I& b) {
    for (int y = 0; y < a.height(); ++y)
        if (std::memcmp(a.row(y), b.row(y),
                        sizeof(*a.row(y)) * static_cast<std::size_t>(a.width() * a.channels)) != 0)
            return ::testing::AssertionFailure() << "row " << y << " differs";
    return ::testing::AssertionSuccess();
}

// Calls `body` with three images of every type and layout that Operation has, and tells their number.
template <class Operation, int layout, class Sample, class Body>
void eachLayout(int& count, Body body) {
    if constexpr (offers<Operation, Key<Sample, layout>>) {
        Picture<Sample, layout> a(1);
        Picture<Sample, layout> b(2);
        Picture<Sample, layout> c(3);
        EXPECT_NO_THROW(body(a.view(), b.view(), c.view()));
        ++count;
    }
}
template <class Operation, class Body, class... Sample>
int sweep(Body body, Samples<Sample...>) {
    int count = 0;
    (eachLayout<Operation, C1, Sample>(count, body), ...);
    (eachLayout<Operation, C3, Sample>(count, body), ...);
    (eachLayout<Operation, C4, Sample>(count, body), ...);
    (eachLayout<Operation, AC4, Sample>(count, body), ...);
    return count;
}
template <class Operation, class Body>
int sweep(Body body) {
    return sweep<Operation>(body, All{});
}

template <class V>
constexpr bool isFloat = std::is_floating_point_v<detail::SampleOf<V>>;

} // namespace tpxi::test
