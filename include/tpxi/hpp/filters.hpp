// SPDX-License-Identifier: Apache-2.0
// Neighbourhood filters: filters_box.h, filters_fixed.h, filters_general.h, filters_median.h.
#ifndef TPXI_HPP_FILTERS_HPP
#define TPXI_HPP_FILTERS_HPP

#include "../filters_box.h"
#include "../filters_fixed.h"
#include "../filters_general.h"
#include "../filters_median.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct FilterBoxBorder {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiFilterBoxBorder_, R)
};
struct FilterMedianBorder {
    TPXI_8U_16U_16S(TPXI_NAMES_134A, tpxiFilterMedianBorder_, R)
    TPXI_NAME(tpxiFilterMedianBorder_, 32f, C1, R)
};
struct FilterMedianCross {
    TPXI_8U_16U_16S(TPXI_NAMES_13A, tpxiFilterMedianCross_, R)
};
#define TPXI_COLOUR_MEDIAN(type) \
    TPXI_NAME(tpxiFilterMedianColor_, type, C3, R) TPXI_NAME(tpxiFilterMedianColor_, type, AC4, R)
struct FilterMedianColor {
    TPXI_COLOUR_MEDIAN(8u)
    TPXI_COLOUR_MEDIAN(16s)
    TPXI_COLOUR_MEDIAN(32f)
};
#undef TPXI_COLOUR_MEDIAN
struct FilterMedianWeightedCenter3x3 {
    TPXI_NAME(tpxiFilterMedianWeightedCenter3x3_, 8u, C1, R)
};
struct FilterBorder {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiFilterBorder_, R)
};

// Derivatives widen 8u to 16s.
#define TPXI_DERIVATIVE(stem) \
    static constexpr auto of(Key<Tpx8u, C1, Tpx16s, C1>) { return &stem##8u16s_C1R; }
struct FilterSobelVertBorder {
    TPXI_DERIVATIVE(tpxiFilterSobelVertBorder_)
    TPXI_NAME(tpxiFilterSobelVertBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterSobelVertBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterSobelVertBorderGetBufferSize;
};
struct FilterSobelHorizBorder {
    TPXI_DERIVATIVE(tpxiFilterSobelHorizBorder_)
    TPXI_NAME(tpxiFilterSobelHorizBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterSobelHorizBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterSobelHorizBorderGetBufferSize;
};
struct FilterSobelNegVertBorder {
    TPXI_DERIVATIVE(tpxiFilterSobelNegVertBorder_)
    TPXI_NAME(tpxiFilterSobelNegVertBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterSobelNegVertBorderGetBufferSize;
};
struct FilterSobelVertSecondBorder {
    TPXI_DERIVATIVE(tpxiFilterSobelVertSecondBorder_)
    TPXI_NAME(tpxiFilterSobelVertSecondBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterSobelVertSecondBorderGetBufferSize;
};
struct FilterSobelHorizSecondBorder {
    TPXI_DERIVATIVE(tpxiFilterSobelHorizSecondBorder_)
    TPXI_NAME(tpxiFilterSobelHorizSecondBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterSobelHorizSecondBorderGetBufferSize;
};
struct FilterScharrVertMaskBorder {
    TPXI_DERIVATIVE(tpxiFilterScharrVertMaskBorder_)
    TPXI_NAME(tpxiFilterScharrVertMaskBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterScharrVertMaskBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterScharrVertMaskBorderGetBufferSize;
};
struct FilterScharrHorizMaskBorder {
    TPXI_DERIVATIVE(tpxiFilterScharrHorizMaskBorder_)
    TPXI_NAME(tpxiFilterScharrHorizMaskBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterScharrHorizMaskBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterScharrHorizMaskBorderGetBufferSize;
};
struct FilterPrewittVertBorder {
    TPXI_DERIVATIVE(tpxiFilterPrewittVertBorder_)
    TPXI_NAME(tpxiFilterPrewittVertBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterPrewittVertBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterPrewittVertBorderGetBufferSize;
};
struct FilterPrewittHorizBorder {
    TPXI_DERIVATIVE(tpxiFilterPrewittHorizBorder_)
    TPXI_NAME(tpxiFilterPrewittHorizBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterPrewittHorizBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterPrewittHorizBorderGetBufferSize;
};
struct FilterRobertsUpBorder {
    TPXI_DERIVATIVE(tpxiFilterRobertsUpBorder_)
    TPXI_NAME(tpxiFilterRobertsUpBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterRobertsUpBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterRobertsUpBorderGetBufferSize;
};
struct FilterRobertsDownBorder {
    TPXI_DERIVATIVE(tpxiFilterRobertsDownBorder_)
    TPXI_NAME(tpxiFilterRobertsDownBorder_, 16s, C1, R)
    TPXI_NAME(tpxiFilterRobertsDownBorder_, 32f, C1, R)
    static constexpr auto bufferSize = &tpxiFilterRobertsDownBorderGetBufferSize;
};
#undef TPXI_DERIVATIVE
struct FilterLaplaceBorder {
    TPXI_NAMES_134A(tpxiFilterLaplaceBorder_, 8u, R)
    TPXI_NAMES_134A(tpxiFilterLaplaceBorder_, 16s, R)
    TPXI_NAMES_134A(tpxiFilterLaplaceBorder_, 32f, R)
    static constexpr auto bufferSize = &tpxiFilterLaplaceBorderGetBufferSize;
};
struct FilterHipassBorder {
    TPXI_NAMES_134A(tpxiFilterHipassBorder_, 8u, R)
    TPXI_NAMES_134A(tpxiFilterHipassBorder_, 16s, R)
    TPXI_NAMES_134A(tpxiFilterHipassBorder_, 32f, R)
    static constexpr auto bufferSize = &tpxiFilterHipassBorderGetBufferSize;
};
struct FilterSharpenBorder {
    TPXI_NAMES_134A(tpxiFilterSharpenBorder_, 8u, R)
    TPXI_NAMES_134A(tpxiFilterSharpenBorder_, 16s, R)
    TPXI_NAMES_134A(tpxiFilterSharpenBorder_, 32f, R)
    static constexpr auto bufferSize = &tpxiFilterSharpenBorderGetBufferSize;
};

} // namespace op

// ---- Borders and buffers -------------------------------------------------------------------------------
// `border` is a border word (tpxBorderReplicate, tpxBorderMirror, tpxBorderConstant, with in-memory flags, or
// tpxBorderInMemAll), borderValue is read for tpxBorderConstant alone. <filter>Buffer(src, dst, mask) makes the
// work buffer of <filter>(src, dst, mask, ...), which serves one call at a time.

// ---- Mean over a mask: tpxiFilterBoxBorder -------------------------------------------------------------
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
Buffer filterBoxBorderBuffer(const Src&, const Dst& dst, TpxiSize mask) {
    constexpr int channels = channelsOf(detail::layoutOf<Dst>);
    int bytes = 0;
    check(tpxiFilterBoxBorderGetBufferSize(dst.size(), mask, dataType<detail::SampleOf<Src>>, channels, &bytes),
          "filterBoxBorderBuffer");
    return Buffer(bytes);
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus filterBoxBorder(const Src& src, Dst&& dst, TpxiSize mask, TpxBorderType border,
                          const PixelOf<Dst>& borderValue, const Buffer& buffer) {
    return detail::map<op::FilterBoxBorder>("filterBoxBorder", src, dst, mask, border,
                                            detail::address(borderValue), buffer.data());
}

// ---- Medians: tpxiFilterMedianBorder, tpxiFilterMedianCross, tpxiFilterMedianColor ---------------------
// borderValue is the sample of every channel.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
Buffer filterMedianBorderBuffer(const Src&, const Dst& dst, TpxiSize mask) {
    constexpr int channels = channelsOf(detail::layoutOf<Dst>);
    int bytes = 0;
    check(tpxiFilterMedianBorderGetBufferSize(dst.size(), mask, dataType<detail::SampleOf<Src>>, channels,
                                              &bytes),
          "filterMedianBorderBuffer");
    return Buffer(bytes);
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus filterMedianBorder(const Src& src, Dst&& dst, TpxiSize mask, TpxBorderType border,
                             detail::SampleOf<Dst> borderValue, const Buffer& buffer) {
    return detail::map<op::FilterMedianBorder>("filterMedianBorder", src, dst, mask, border, borderValue,
                                               buffer.data());
}

// These read the pixels around the region from memory: src is a sub-view with at least the mask's reach around
// it. mask is 33 for 3x3 or 55 for 5x5.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus filterMedianCross(const Src& src, Dst&& dst, int mask) {
    return detail::map<op::FilterMedianCross>("filterMedianCross", src, dst, mask);
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus filterMedianColor(const Src& src, Dst&& dst, int mask) {
    return detail::map<op::FilterMedianColor>("filterMedianColor", src, dst, mask);
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus filterMedianWeightedCenter3x3(const Src& src, Dst&& dst, int weight) {
    return detail::map<op::FilterMedianWeightedCenter3x3>("filterMedianWeightedCenter3x3", src, dst, weight);
}

// ---- Derivatives, Laplacians, sharpening: tpxiFilter<Name>Border ---------------------------------------
// mask is 33 for 3x3 or 55 for 5x5; borderValue is the sample of every channel.
namespace detail {
template <class Operation, class Src, class Dst>
Buffer fixedBuffer(const char* where, const Src&, const Dst& dst, int mask) {
    constexpr int channels = channelsOf(layoutOf<Dst>);
    int bytes = 0;
    check(Operation::bufferSize(dst.size(), mask, dataType<SampleOf<Src>>, dataType<SampleOf<Dst>>, channels,
                                &bytes),
          where);
    return Buffer(bytes);
}
} // namespace detail

#define TPXI_FIXED_FILTER(name, Operation)                                                            \
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>                                     \
    Buffer name##Buffer(const Src& src, const Dst& dst, int mask) {                                   \
        return detail::fixedBuffer<op::Operation>(#name "Buffer", src, dst, mask);                    \
    }                                                                                                 \
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>                                     \
    TpxStatus name(const Src& src, Dst&& dst, int mask, TpxBorderType border,                         \
                   detail::SampleOf<Src> borderValue, const Buffer& buffer) {                         \
        return detail::map<op::Operation>(#name, src, dst, mask, border, borderValue, buffer.data()); \
    }
TPXI_FIXED_FILTER(filterSobelVertBorder, FilterSobelVertBorder)
TPXI_FIXED_FILTER(filterSobelHorizBorder, FilterSobelHorizBorder)
TPXI_FIXED_FILTER(filterSobelNegVertBorder, FilterSobelNegVertBorder)
TPXI_FIXED_FILTER(filterSobelVertSecondBorder, FilterSobelVertSecondBorder)
TPXI_FIXED_FILTER(filterSobelHorizSecondBorder, FilterSobelHorizSecondBorder)
TPXI_FIXED_FILTER(filterScharrVertMaskBorder, FilterScharrVertMaskBorder)
TPXI_FIXED_FILTER(filterScharrHorizMaskBorder, FilterScharrHorizMaskBorder)
TPXI_FIXED_FILTER(filterPrewittVertBorder, FilterPrewittVertBorder)
TPXI_FIXED_FILTER(filterPrewittHorizBorder, FilterPrewittHorizBorder)
TPXI_FIXED_FILTER(filterRobertsUpBorder, FilterRobertsUpBorder)
TPXI_FIXED_FILTER(filterRobertsDownBorder, FilterRobertsDownBorder)
TPXI_FIXED_FILTER(filterLaplaceBorder, FilterLaplaceBorder)
TPXI_FIXED_FILTER(filterHipassBorder, FilterHipassBorder)
TPXI_FIXED_FILTER(filterSharpenBorder, FilterSharpenBorder)
#undef TPXI_FIXED_FILTER

// ---- Any kernel: tpxiFilterBorder ----------------------------------------------------------------------
// A kernel made for images of a type, up to a size. Threads may share it, each with a work buffer of its own.
template <class Sample, int layout>
class FilterKernel {
 public:
    // Integers with a divisor, or floats, row by row. A roundMode may carry tpxRoundExactFlag; status() says
    // whether the flag was dropped.
    FilterKernel(const Tpx16s* kernel, TpxiSize kernelSize, int divisor, TpxiSize imageSize,
                 TpxRoundMode roundMode = tpxRoundNearestEven)
        : FilterKernel(kernelSize, imageSize, tpxDataType16s) {
        status_ = check(
            tpxiFilterBorderInit_16s(kernel, kernelSize, divisor, dataType<Sample>, layout, roundMode, block()),
            "FilterKernel");
    }
    FilterKernel(const Tpx32f* kernel, TpxiSize kernelSize, TpxiSize imageSize,
                 TpxRoundMode roundMode = tpxRoundNearestEven)
        : FilterKernel(kernelSize, imageSize, tpxDataType32f) {
        status_ =
            check(tpxiFilterBorderInit_32f(kernel, kernelSize, dataType<Sample>, layout, roundMode, block()),
                  "FilterKernel");
    }

    TpxStatus status() const noexcept { return status_; }
    // An offset that is added to the results (8u), and tpxHintAccurate for exact rounding where it is to be
    // had.
    TpxStatus setMode(TpxHintAlgorithm hint, int offset) {
        return check(tpxiFilterBorderSetMode(hint, offset, block()), "FilterKernel");
    }

    Buffer buffer() const { return Buffer(bufferBytes_); }

    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus operator()(const Src& src, Dst&& dst, TpxBorderType border, const PixelOf<Dst>& borderValue,
                         const Buffer& buffer) const {
        static_assert(std::is_same_v<detail::KeyOfOne<Dst>, Key<Sample, layout>>, "an image of another type");
        return detail::map<op::FilterBorder>("FilterKernel", src, dst, border, detail::address(borderValue),
                                             block(), buffer.data());
    }

 private:
    FilterKernel(TpxiSize kernelSize, TpxiSize imageSize, TpxDataType kernelType) {
        int bytes = 0;
        check(tpxiFilterBorderGetSize(kernelSize, imageSize, dataType<Sample>, kernelType, layout, &bytes,
                                      &bufferBytes_),
              "FilterKernel");
        block_ = Buffer(bytes);
    }
    TpxiFilterBorderBlock* block() const { return reinterpret_cast<TpxiFilterBorderBlock*>(block_.data()); }

    Buffer block_;
    int bufferBytes_ = 0;
    TpxStatus status_ = tpxOk;
};

} // namespace tpxi

#endif
