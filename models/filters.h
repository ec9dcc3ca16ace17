// SPDX-License-Identifier: Apache-2.0
// Neighbourhood filters in their plain form: a loop over the mask for each sample.
#pragma once

#include <tpxi.h>

#include <cmath>
#include <cstddef>
#include <type_traits>

namespace tpx::model {

// The sum over the mask, times the scale, rounded to nearest with ties to even and saturated. Weights lie in
// rows from the top; the source goes on around the region. Steps are in samples.
template <typename S, typename D>
void correlate(const S* src, ptrdiff_t srcStep, D* dst, ptrdiff_t dstStep, TpxiSize size, int channels,
               const int* weights, int side, float scale);

// The middle one of the samples under the mask, which is centred and has odd sides.
template <typename T>
void median(const T* src, ptrdiff_t srcStep, T* dst, ptrdiff_t dstStep, TpxiSize size, int channels,
            TpxiSize mask);

} // namespace tpx::model
