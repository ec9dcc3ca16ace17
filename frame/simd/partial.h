// SPDX-License-Identifier: Apache-2.0
// Loads and stores of some lanes of a register of floats: those where the mask's top bit is set. What the
// others stand for is neither read nor written.
#pragma once

#include "frame/simd/core.h"

namespace tpx {

inline V32f loadLanes(const float* p, B32f mask) { return V32f(_mm256_maskload_ps(p, __m256i(mask))); }
inline void storeLanes(float* p, B32f mask, V32f v) { _mm256_maskstore_ps(p, __m256i(mask), v); }

// The lanes 0 to n - 1; all if n is 8 or more, none if it is below 1.
inline B32f firstLanes(ptrdiff_t n) {
    static constexpr Tpx32s kMasks[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
    const ptrdiff_t lanes = n < 0 ? 0 : n < 8 ? n : 8;
    B32f mask;
    __builtin_memcpy(&mask, kMasks + (8 - lanes), sizeof mask);
    return mask;
}

} // namespace tpx
