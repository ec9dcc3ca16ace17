// SPDX-License-Identifier: Apache-2.0
// Linear resize: what its two passes work in, and the weights that they find in a plan.
#pragma once

#include "geometry/resize/plan.h"

namespace tpx {

// What a horizontal pass keeps, and the type of the weights. 8u: 6 fraction bits, weights of 14 bits.
template <class T>
struct Linear {
    using Row = Tpx32f;
    using Weight = Tpx32f;
};
template <>
struct Linear<Tpx8u> {
    using Row = Tpx16s;
    using Weight = Tpx16s;
};
template <>
struct Linear<Tpx64f> {
    using Row = Tpx64f;
    using Weight = Tpx64f;
};
template <class T>
using RowOf = typename Linear<T>::Row;
template <class T>
using WeightOf = typename Linear<T>::Weight;

// The weights of an axis, whatever type the plan was made for; a caller who mixes types gets what they say.
template <class T>
const WeightOf<T>* weightsOf(const TpxiResizeAxis& axis) {
    const void* weights = axis.pCoef32f;
    if (!weights) weights = axis.pCoefQ14;
    if (!weights) weights = axis.pCoef64f;
    return static_cast<const WeightOf<T>*>(weights);
}

// The weight of the right-hand pixel at position j.
template <class T>
WeightOf<T> weightAlongX(const WeightOf<T>* weights, int64_t j) {
    return peek(std::is_same_v<T, Tpx8u> ? weights + 2 * j + 1 : weights + j);
}

} // namespace tpx
