// SPDX-License-Identifier: Apache-2.0
// Integer samples through floating point: widened, given to a rule on real registers, rounded to nearest with
// ties to even whatever the control register says, and saturated.
#pragma once

#include "frame/simd/rounding.h"

namespace tpx {

// rule(x) on registers of F, which is float or double.
template <class F, class Rule>
inline V16u throughReal(V16u x, Rule rule);
template <class F, class Rule>
inline V16s throughReal(V16s x, Rule rule);

template <class F, class T, class Rule>
inline Vec<T> throughReal16(Vec<T> x, Rule rule) {
    const auto wide = widen(x);
    const Pair<V32s> w{V32s(wide.low), V32s(wide.high)};
    if constexpr (std::is_same_v<F, float>)
        return toSamples<T>(Several<V32f, 1>{rule(toFloat(w))});
    else
        return toSamples<T>(Several<V64f, 2>{rule(toDouble(w.low)), rule(toDouble(w.high))});
}
template <class F, class Rule>
inline V16u throughReal(V16u x, Rule rule) {
    return throughReal16<F, Tpx16u>(x, rule);
}
template <class F, class Rule>
inline V16s throughReal(V16s x, Rule rule) {
    return throughReal16<F, Tpx16s>(x, rule);
}
template <class F, class Rule>
inline V8u throughReal(V8u x, Rule rule) {
    const Pair<V16u> w = widen(x);
    return narrow<Tpx8u>(
        Pair<V16s>{throughReal16<F, Tpx16s>(V16s(w.low), rule), throughReal16<F, Tpx16s>(V16s(w.high), rule)});
}

} // namespace tpx
