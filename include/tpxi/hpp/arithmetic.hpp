// SPDX-License-Identifier: Apache-2.0
// Pointwise arithmetic: arithmetic.h.
#ifndef TPXI_HPP_ARITHMETIC_HPP
#define TPXI_HPP_ARITHMETIC_HPP

#include "../arithmetic.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct Abs {
    TPXI_NAMES_134A(tpxiAbs_, 16s, R)
    TPXI_NAMES_134A(tpxiAbs_, 32f, R)
    struct InPlace {
        TPXI_NAMES_134A(tpxiAbs_, 16s, IR)
        TPXI_NAMES_134A(tpxiAbs_, 32f, IR)
    };
};
struct Sqr {
    TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiSqr_, RSfs)
    TPXI_NAMES_134A(tpxiSqr_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiSqr_, IRSfs)
        TPXI_NAMES_134A(tpxiSqr_, 32f, IR)
    };
};
struct Sqrt {
    TPXI_8U_16U_16S(TPXI_NAMES_13A, tpxiSqrt_, RSfs)
    TPXI_NAMES_13A(tpxiSqrt_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_13A, tpxiSqrt_, IRSfs)
        TPXI_NAMES_134A(tpxiSqrt_, 32f, IR)
    };
};
struct Ln {
    TPXI_8U_16U_16S(TPXI_NAMES_13, tpxiLn_, RSfs)
    TPXI_NAMES_13(tpxiLn_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_13, tpxiLn_, IRSfs)
        TPXI_NAMES_13(tpxiLn_, 32f, IR)
    };
};
struct Exp {
    TPXI_8U_16U_16S(TPXI_NAMES_13, tpxiExp_, RSfs)
    TPXI_NAMES_13(tpxiExp_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_13, tpxiExp_, IRSfs)
        TPXI_NAMES_13(tpxiExp_, 32f, IR)
    };
};
struct Add {
    TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiAdd_, RSfs)
    TPXI_NAMES_134A(tpxiAdd_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiAdd_, IRSfs)
        TPXI_NAMES_134A(tpxiAdd_, 32f, IR)
    };
};
struct Sub {
    TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiSub_, RSfs)
    TPXI_NAMES_134A(tpxiSub_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiSub_, IRSfs)
        TPXI_NAMES_134A(tpxiSub_, 32f, IR)
    };
};
struct Mul {
    TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiMul_, RSfs)
    TPXI_NAMES_134A(tpxiMul_, 32f, R)
    struct InPlace {
        TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiMul_, IRSfs)
        TPXI_NAMES_134A(tpxiMul_, 32f, IR)
    };
};

} // namespace op

// ---- Unary math: tpxiAbs, tpxiSqr, tpxiSqrt, tpxiLn, tpxiExp -------------------------------------------
// From a source to a destination, or in place. Integers take a scale factor: f(a) * 2^-scaleFactor. Warnings
// about arguments (roots and logarithms of negative samples, logarithms of zero) are the result.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus abs(const Src& src, Dst&& dst) {
    return detail::map<op::Abs>("abs", src, dst);
}
template <class SrcDst, detail::Images<SrcDst> = 0>
TpxStatus abs(SrcDst&& srcDst) {
    return detail::mapInPlace<op::Abs>("abs", srcDst);
}

#define TPXI_UNARY(name, Operation)                                                     \
    template <class Src, class Dst, detail::Images<Src> = 0, detail::Floats<Dst> = 0>   \
    TpxStatus name(const Src& src, Dst&& dst) {                                         \
        return detail::map<op::Operation>(#name, src, dst);                             \
    }                                                                                   \
    template <class Src, class Dst, detail::Images<Src> = 0, detail::Integers<Dst> = 0> \
    TpxStatus name(const Src& src, Dst&& dst, int scaleFactor) {                        \
        return detail::map<op::Operation>(#name, src, dst, scaleFactor);                \
    }                                                                                   \
    template <class SrcDst, detail::Floats<SrcDst> = 0>                                 \
    TpxStatus name(SrcDst&& srcDst) {                                                   \
        return detail::mapInPlace<op::Operation>(#name, srcDst);                        \
    }                                                                                   \
    template <class SrcDst, detail::Integers<SrcDst> = 0>                               \
    TpxStatus name(SrcDst&& srcDst, int scaleFactor) {                                  \
        return detail::mapInPlace<op::Operation>(#name, srcDst, scaleFactor);           \
    }
TPXI_UNARY(sqr, Sqr)
TPXI_UNARY(sqrt, Sqrt)
TPXI_UNARY(ln, Ln)
TPXI_UNARY(exp, Exp)
#undef TPXI_UNARY

// ---- Two images: tpxiAdd, tpxiSub, tpxiMul -------------------------------------------------------------
// add(a, b, dst), sub(a, b, dst) and mul(a, b, dst) are those of the C functions for pSrc1 = a and pSrc2 = b;
// in place, add(src, srcDst) and the others. Integers take a scale factor.
#define TPXI_BINARY(name, Operation)                                                                        \
    template <class Src1, class Src2, class Dst, detail::Images<Src1, Src2> = 0, detail::Floats<Dst> = 0>   \
    TpxStatus name(const Src1& src1, const Src2& src2, Dst&& dst) {                                         \
        return detail::combine<op::Operation>(#name, src1, src2, dst);                                      \
    }                                                                                                       \
    template <class Src1, class Src2, class Dst, detail::Images<Src1, Src2> = 0, detail::Integers<Dst> = 0> \
    TpxStatus name(const Src1& src1, const Src2& src2, Dst&& dst, int scaleFactor) {                        \
        return detail::combine<op::Operation>(#name, src1, src2, dst, scaleFactor);                         \
    }                                                                                                       \
    template <class Src, class SrcDst, detail::Images<Src> = 0, detail::Floats<SrcDst> = 0>                 \
    TpxStatus name(const Src& src, SrcDst&& srcDst) {                                                       \
        return detail::combineInPlace<op::Operation>(#name, src, srcDst);                                   \
    }                                                                                                       \
    template <class Src, class SrcDst, detail::Images<Src> = 0, detail::Integers<SrcDst> = 0>               \
    TpxStatus name(const Src& src, SrcDst&& srcDst, int scaleFactor) {                                      \
        return detail::combineInPlace<op::Operation>(#name, src, srcDst, scaleFactor);                      \
    }
TPXI_BINARY(add, Add)
TPXI_BINARY(sub, Sub)
TPXI_BINARY(mul, Mul)
#undef TPXI_BINARY

} // namespace tpxi

#endif
