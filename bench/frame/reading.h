// SPDX-License-Identifier: Apache-2.0
// A plain read of an image: the yardstick of functions that write little.
#pragma once

#include "image.h"

#include <benchmark/benchmark.h>

namespace bench {

// Loads of 32 bytes, each of which is used.
[[gnu::noinline, gnu::target("avx")]] inline void readRun(const void* memory, size_t bytes) {
    typedef long long Register __attribute__((vector_size(32)));
    Register seen[4] = {};
    const auto* at = static_cast<const char*>(memory);
    for (; bytes >= sizeof seen; bytes -= sizeof seen, at += sizeof seen)
        for (int k = 0; k < 4; ++k) {
            Register x;
            std::memcpy(&x, at + k * sizeof x, sizeof x);
            seen[k] |= x;
        }
    Register all = seen[0] | seen[1] | seen[2] | seen[3];
    benchmark::DoNotOptimize(all);
}

template <typename T>
void readImage(const Image<T>& image) {
    if (image.rowBytes() == static_cast<size_t>(image.step())) {
        readRun(image.data(), image.rowBytes() * image.size().height);
        return;
    }
    for (int y = 0; y < image.size().height; ++y) readRun(image.row(y), image.rowBytes());
}

} // namespace bench
