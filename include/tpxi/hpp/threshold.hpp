// SPDX-License-Identifier: Apache-2.0
// Thresholds: threshold.h.
#ifndef TPXI_HPP_THRESHOLD_HPP
#define TPXI_HPP_THRESHOLD_HPP

#include "../threshold.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct Threshold {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_, IR)
    };
};
struct ThresholdGT {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_GT_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_GT_, IR)
    };
};
struct ThresholdLT {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_LT_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_LT_, IR)
    };
};
struct ThresholdVal {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_Val_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_Val_, IR)
    };
};
struct ThresholdGTVal {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiThreshold_GTVal_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiThreshold_GTVal_, IR)
    };
};
struct ThresholdLTVal {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiThreshold_LTVal_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiThreshold_LTVal_, IR)
    };
};
struct ThresholdLTValGTVal {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_LTValGTVal_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_13A, tpxiThreshold_LTValGTVal_, IR)
    };
};

} // namespace op

// ---- Thresholds: tpxiThreshold -------------------------------------------------------------------------
// thresholdGT clamps samples above the threshold to it, thresholdLT those below; thresholdGTVal, thresholdLTVal
// and thresholdLTValGTVal put a value in their place; threshold and thresholdVal take the comparison as an
// argument. Thresholds and values are a sample for C1 and one a colour for the others:
// thresholdGT(src, dst, {200, 210, 220}).
#define TPXI_THRESHOLD(name, Operation)                                                  \
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>                        \
    TpxStatus name(const Src& src, Dst&& dst, const PixelOf<Dst>& threshold) {           \
        return detail::map<op::Operation>(#name, src, dst, detail::raw(threshold));      \
    }                                                                                    \
    template <class SrcDst, detail::Images<SrcDst> = 0>                                  \
    TpxStatus name(SrcDst&& srcDst, const PixelOf<SrcDst>& threshold) {                  \
        return detail::mapInPlace<op::Operation>(#name, srcDst, detail::raw(threshold)); \
    }
TPXI_THRESHOLD(thresholdGT, ThresholdGT)
TPXI_THRESHOLD(thresholdLT, ThresholdLT)
#undef TPXI_THRESHOLD

#define TPXI_THRESHOLD_VALUE(name, Operation)                                                                \
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>                                            \
    TpxStatus name(const Src& src, Dst&& dst, const PixelOf<Dst>& threshold, const PixelOf<Dst>& value) {    \
        return detail::map<op::Operation>(#name, src, dst, detail::raw(threshold), detail::raw(value));      \
    }                                                                                                        \
    template <class SrcDst, detail::Images<SrcDst> = 0>                                                      \
    TpxStatus name(SrcDst&& srcDst, const PixelOf<SrcDst>& threshold, const PixelOf<SrcDst>& value) {        \
        return detail::mapInPlace<op::Operation>(#name, srcDst, detail::raw(threshold), detail::raw(value)); \
    }
TPXI_THRESHOLD_VALUE(thresholdGTVal, ThresholdGTVal)
TPXI_THRESHOLD_VALUE(thresholdLTVal, ThresholdLTVal)
#undef TPXI_THRESHOLD_VALUE

template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus threshold(const Src& src, Dst&& dst, const PixelOf<Dst>& threshold, TpxCmpOp cmpOp) {
    return detail::map<op::Threshold>("threshold", src, dst, detail::raw(threshold), cmpOp);
}
template <class SrcDst, detail::Images<SrcDst> = 0>
TpxStatus threshold(SrcDst&& srcDst, const PixelOf<SrcDst>& threshold, TpxCmpOp cmpOp) {
    return detail::mapInPlace<op::Threshold>("threshold", srcDst, detail::raw(threshold), cmpOp);
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus thresholdVal(const Src& src, Dst&& dst, const PixelOf<Dst>& threshold, const PixelOf<Dst>& value,
                       TpxCmpOp cmpOp) {
    return detail::map<op::ThresholdVal>("thresholdVal", src, dst, detail::raw(threshold), detail::raw(value),
                                         cmpOp);
}
template <class SrcDst, detail::Images<SrcDst> = 0>
TpxStatus thresholdVal(SrcDst&& srcDst, const PixelOf<SrcDst>& threshold, const PixelOf<SrcDst>& value,
                       TpxCmpOp cmpOp) {
    return detail::mapInPlace<op::ThresholdVal>("thresholdVal", srcDst, detail::raw(threshold),
                                                detail::raw(value), cmpOp);
}

template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus thresholdLTValGTVal(const Src& src, Dst&& dst, const PixelOf<Dst>& thresholdLT,
                              const PixelOf<Dst>& valueLT, const PixelOf<Dst>& thresholdGT,
                              const PixelOf<Dst>& valueGT) {
    return detail::map<op::ThresholdLTValGTVal>("thresholdLTValGTVal", src, dst, detail::raw(thresholdLT),
                                                detail::raw(valueLT), detail::raw(thresholdGT),
                                                detail::raw(valueGT));
}
template <class SrcDst, detail::Images<SrcDst> = 0>
TpxStatus thresholdLTValGTVal(SrcDst&& srcDst, const PixelOf<SrcDst>& thresholdLT,
                              const PixelOf<SrcDst>& valueLT, const PixelOf<SrcDst>& thresholdGT,
                              const PixelOf<SrcDst>& valueGT) {
    return detail::mapInPlace<op::ThresholdLTValGTVal>("thresholdLTValGTVal", srcDst, detail::raw(thresholdLT),
                                                       detail::raw(valueLT), detail::raw(thresholdGT),
                                                       detail::raw(valueGT));
}

} // namespace tpxi

#endif
