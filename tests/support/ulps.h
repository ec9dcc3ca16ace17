// SPDX-License-Identifier: Apache-2.0
// How far a result is from the exact value, in units in the last place of the result's type.
#pragma once

#include <cmath>
#include <limits>

namespace tpxtest {

// `exact` is known to more digits than T holds. Of a denormal value the unit is the smallest number. A result
// that is NaN or infinite must be so exactly when `exact`, rounded to T, is; otherwise the error is infinite.
template <class T>
double ulps(T result, long double exact) {
    using Limits = std::numeric_limits<T>;
    const double wrong = std::numeric_limits<double>::infinity();
    const T rounded = T(exact);
    if (std::isnan(rounded) || std::isnan(result)) return std::isnan(rounded) == std::isnan(result) ? 0 : wrong;
    if (std::isinf(rounded) || std::isinf(result)) return rounded == result ? 0 : wrong;
    int exponent = Limits::min_exponent;
    if (std::fabs(exact) >= Limits::min()) std::frexp(exact, &exponent);
    return double(std::fabs(result - exact) / std::ldexp(1.0L, exponent - Limits::digits));
}

} // namespace tpxtest
