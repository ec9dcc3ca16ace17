// SPDX-License-Identifier: Apache-2.0
// Samples of every type as bits, for operations that only move them.
#pragma once

#include "tests/support/guarded.h"

namespace tpx::test {

// Random bits in every type: among floats NaN with every payload.
template <class T>
GuardedImage<T>& randomBits(GuardedImage<T>& image, unsigned seed) {
    std::mt19937 random(seed);
    return image.fill([&](int, int, int) {
        const uint32_t bits = uint32_t(random());
        T v;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    });
}

// Widths around the lane counts of every type; tight, padded, and odd steps and addresses.
template <class Body>
void sweepOddShapes(Body body) {
    std::vector<int> widths;
    for (int w = 1; w <= 52; w++) widths.push_back(w);
    for (int w : {63, 64, 65, 127, 130, 257}) widths.push_back(w);
    for (int w : widths) {
        body(w, Lie{}, Lie{0, Edge::Start, 0});
        body(w, Lie{13, Edge::End, 0}, Lie{7, Edge::Start, 0});
        body(w, Lie{7, Edge::Start, 3}, Lie{1, Edge::End, w % 17});
    }
}

} // namespace tpx::test
