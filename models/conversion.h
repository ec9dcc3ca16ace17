// SPDX-License-Identifier: Apache-2.0
// Conversions of one sample, exactly, with any factor and in every rounding mode.
#pragma once

#include <tpxi.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace tpx::model {

template <class D, class Wide>
D saturate(Wide v) {
    using L = std::numeric_limits<D>;
    return v < Wide(L::min()) ? L::min() : v > Wide(L::max()) ? L::max() : D(v);
}

// Integers times 2^-n.
template <class D, class S>
D scaled(S sample, int mode, int n, int zeroAbove) {
    const __int128 x = sample, one = 1;
    if (n > zeroAbove) return 0;
    if (n <= 0) return saturate<D>(x * (one << std::min(n < -64 ? 64 : -n, 64)));
    const __int128 q = x >> n, r = x & ((one << n) - 1), m = x < 0 ? -x : x;
    if (mode == 1) return saturate<D>(q + ((r + (one << (n - 1)) - 1 + (q & 1)) >> n));
    const __int128 nearest = mode == 0 ? m >> n : ((m >> (n - 1)) + 1) >> 1;
    return saturate<D>(x < 0 ? -nearest : nearest);
}

inline long double rounded(long double v, int mode) {
    const long double m = std::fabs(v), whole = std::floor(m), rest = m - whole;
    const bool up = mode == 0   ? false
                    : mode == 1 ? rest > 0.5L || (rest == 0.5L && std::fmod(whole, 2) == 1)
                                : rest >= 0.5L;
    return std::copysign(up ? whole + 1 : whole, v);
}

// Floats times 2^-n, where the factor of singles runs out of numbers.
template <class D, class S>
D real(S sample, int mode, int n) {
    if constexpr (std::is_same_v<D, Tpx32u>) {
        if (std::isnan(sample)) return UINT32_MAX;
        const long double v = std::ldexp((long double)sample, n == INT_MIN ? INT_MAX : -n);
        if (!(v > 0)) return 0;
        return v > 0x1p32L ? UINT32_MAX : D(Tpx64u(rounded(v, mode)));
    } else {
        const int last = sizeof(S) == 8 ? 1022 : 149, first = sizeof(S) == 8 ? -1008 : -127;
        long double factor = std::ldexp(1.0L, -std::clamp(n, first, last));
        if (sizeof(S) == 4 && n > last) factor = 0;
        if (sizeof(S) == 4 && n < first) factor = std::numeric_limits<long double>::infinity();
        const long double v = sample * factor;
        if (std::isnan(v)) {
            // What the processor makes of 0 times infinity is a negative NaN.
            const bool negative = std::isnan(sample) ? std::signbit(sample) : true;
            return sizeof(D) == 4 && negative ? std::numeric_limits<D>::min() : std::numeric_limits<D>::max();
        }
        return saturate<D>(rounded(v, mode));
    }
}

} // namespace tpx::model
