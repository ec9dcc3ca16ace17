// SPDX-License-Identifier: Apache-2.0
// Changing the type of samples: convert.h.
#ifndef TPXI_HPP_CONVERT_HPP
#define TPXI_HPP_CONVERT_HPP

#include "../convert.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

#define TPXI_CONVERT(from, to, layout, tail)                            \
    static constexpr auto of(Key<Tpx##from, layout, Tpx##to, layout>) { \
        return &tpxiConvert_##from##to##_##layout##tail;                \
    }
#define TPXI_CONVERT_134A(from, to) \
    TPXI_CONVERT(from, to, C1, R)   \
    TPXI_CONVERT(from, to, C3, R) TPXI_CONVERT(from, to, C4, R) TPXI_CONVERT(from, to, AC4, R)
struct Convert {
    TPXI_CONVERT_134A(8u, 16u)
    TPXI_CONVERT_134A(8u, 16s)
    TPXI_CONVERT_134A(8u, 32s)
    TPXI_CONVERT_134A(8u, 32f)
    TPXI_CONVERT_134A(8s, 32s)
    TPXI_CONVERT_134A(8s, 32f)
    TPXI_CONVERT_134A(16u, 32s)
    TPXI_CONVERT_134A(16u, 32f)
    TPXI_CONVERT_134A(16s, 32s)
    TPXI_CONVERT_134A(16s, 32f)
    TPXI_CONVERT_134A(16u, 8u)
    TPXI_CONVERT_134A(16s, 8u)
    TPXI_CONVERT_134A(32s, 8u)
    TPXI_CONVERT_134A(32s, 8s)
    TPXI_CONVERT(8s, 16s, C1, R)
    TPXI_CONVERT(16u, 32u, C1, R)
    TPXI_CONVERT(32s, 32f, C1, R)
    TPXI_CONVERT(32u, 32f, C1, R)
    TPXI_CONVERT(8s, 64f, C1, R)
    TPXI_CONVERT(8s, 8u, C1, Rs)
    TPXI_CONVERT(8s, 16u, C1, Rs)
    TPXI_CONVERT(8s, 32u, C1, Rs)
    TPXI_CONVERT(16s, 16u, C1, Rs)
    TPXI_CONVERT(16s, 32u, C1, Rs)
    TPXI_CONVERT(32s, 32u, C1, Rs)
};
struct ConvertRounded {
    TPXI_CONVERT_134A(32f, 8u)
    TPXI_CONVERT_134A(32f, 8s)
    TPXI_CONVERT_134A(32f, 16u)
    TPXI_CONVERT_134A(32f, 16s)
};
struct ConvertScaled {
    TPXI_CONVERT(8u, 8s, C1, RSfs)
    TPXI_CONVERT(16s, 8s, C1, RSfs)
    TPXI_CONVERT(16u, 8s, C1, RSfs)
    TPXI_CONVERT(16u, 16s, C1, RSfs)
    TPXI_CONVERT(32s, 16s, C1, RSfs)
    TPXI_CONVERT(32s, 16u, C1, RSfs)
    TPXI_CONVERT(32u, 8s, C1, RSfs)
    TPXI_CONVERT(32u, 8u, C1, RSfs)
    TPXI_CONVERT(32u, 16s, C1, RSfs)
    TPXI_CONVERT(32u, 16u, C1, RSfs)
    TPXI_CONVERT(32u, 32s, C1, RSfs)
    TPXI_CONVERT(32f, 8s, C1, RSfs)
    TPXI_CONVERT(32f, 8u, C1, RSfs)
    TPXI_CONVERT(32f, 16s, C1, RSfs)
    TPXI_CONVERT(32f, 16u, C1, RSfs)
    TPXI_CONVERT(32f, 32s, C1, RSfs)
    TPXI_CONVERT(32f, 32u, C1, RSfs)
    TPXI_CONVERT(64f, 8s, C1, RSfs)
    TPXI_CONVERT(64f, 8u, C1, RSfs)
    TPXI_CONVERT(64f, 16s, C1, RSfs)
    TPXI_CONVERT(64f, 16u, C1, RSfs)
};
#undef TPXI_CONVERT
#undef TPXI_CONVERT_134A

} // namespace op

// ---- Convert: tpxiConvert ------------------------------------------------------------------------------
// The destination says the type. Widening is exact (but 32s to 32f and 32u to 32f), narrowing of integers
// saturates, signed to unsigned gives 0 for what is negative.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus convert(const Src& src, Dst&& dst) {
    return detail::map<op::Convert>("convert", src, dst);
}
// 32f to integers of 8 and 16 bits.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus convert(const Src& src, Dst&& dst, TpxRoundMode roundMode) {
    return detail::map<op::ConvertRounded>("convert", src, dst, roundMode);
}
// C1: the sample times 2^-scaleFactor.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus convert(const Src& src, Dst&& dst, TpxRoundMode roundMode, int scaleFactor) {
    return detail::map<op::ConvertScaled>("convert", src, dst, roundMode, scaleFactor);
}

} // namespace tpxi

#endif
