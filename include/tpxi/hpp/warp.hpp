// SPDX-License-Identifier: Apache-2.0
// Affine and perspective warps: warp.h, transforms.h.
#ifndef TPXI_HPP_WARP_HPP
#define TPXI_HPP_WARP_HPP

#include "../transforms.h"
#include "../warp.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct WarpAffineNearest {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpAffineNearest_, R)
    TPXI_NAMES_134(tpxiWarpAffineNearest_, 64f, R)
};
struct WarpAffineLinear {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpAffineLinear_, R)
    TPXI_NAMES_134(tpxiWarpAffineLinear_, 64f, R)
};
struct WarpAffineCubic {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpAffineCubic_, R)
    TPXI_NAMES_134(tpxiWarpAffineCubic_, 64f, R)
};
struct WarpPerspectiveNearest {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpPerspectiveNearest_, R)
};
struct WarpPerspectiveLinear {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpPerspectiveLinear_, R)
};
struct WarpPerspectiveCubic {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiWarpPerspectiveCubic_, R)
};

} // namespace op

// ---- Warps: tpxiWarpAffine, tpxiWarpPerspective, tpxiWarpQuad ------------------------------------------
// How a warp samples, and what becomes of pixels that the source does not cover.
struct WarpOptions {
    TpxInterpolationType interpolation = tpxInterpolationLinear; // nearest, linear or cubic
    TpxBorderType border = tpxBorderTransparent;
    std::array<Tpx64f, 4> borderValue{}; // a channel each, for tpxBorderConstant
    int direction = 0;                   // 0: the map takes source to destination, 1: destination to source
    bool smoothEdge = false;
    float cubicB = 0; // of cubic interpolation
    float cubicC = 0.5F;
};

// What the plans of warps have in common. A plan is for images of one type, layout and pair of sizes; it serves
// any tiles of the destination, and any number of threads, each with a work buffer of its own. status() is the
// warning of its making, if there was one.
template <class Sample, int layout, class Nearest, class Linear, class Cubic>
class WarpPlan {
 public:
    TpxStatus status() const noexcept { return status_; }
    TpxiSize srcSize() const noexcept { return srcSize_; }
    TpxiSize dstSize() const noexcept { return dstSize_; }

    // The work buffer of one call: for the whole destination, or for tiles of up to a size.
    Buffer buffer() const { return buffer(dstSize_); }
    Buffer buffer(TpxiSize tile) const {
        int bytes = 0;
        check(tpxiWarpGetBufferSize(spec(), tile, &bytes), "WarpPlan::buffer");
        return Buffer(bytes);
    }

    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus operator()(const Src& src, Dst&& dst, const Buffer& buffer) const {
        detail::expectSameSize(dst.size(), dstSize_, "WarpPlan");
        return tile(src, dst, {0, 0}, buffer);
    }
    // The tile `dst` of the destination, which begins at dstOffset; `src` is the whole source.
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus tile(const Src& src, Dst&& dst, TpxiPoint dstOffset, const Buffer& buffer) const {
        using K = detail::KeyOf<Src, Dst>;
        static_assert(std::is_same_v<K, Key<Sample, layout>>, "an image of another type than the plan's");
        const auto from = detail::readable(src);
        const auto to = detail::writable(dst);
        detail::expectSameSize(from.size(), srcSize_, "WarpPlan");
        const auto function = interpolation_ == tpxInterpolationNearest  ? detail::find<Nearest, K>()
                              : interpolation_ == tpxInterpolationLinear ? detail::find<Linear, K>()
                                                                         : detail::find<Cubic, K>();
        return check(function(from.data(), from.step(), to.data(), to.step(), dstOffset, to.size(), spec(),
                              buffer.data()),
                     "WarpPlan");
    }

 protected:
    WarpPlan(TpxiSize src, TpxiSize dst, const WarpOptions& options)
        : interpolation_(options.interpolation), srcSize_(src), dstSize_(dst) {}

    TpxiWarpSpec* spec() const { return reinterpret_cast<TpxiWarpSpec*>(spec_.data()); }

    TpxInterpolationType interpolation_;
    TpxiSize srcSize_;
    TpxiSize dstSize_;
    Buffer spec_;
    TpxStatus status_ = tpxOk;
};

// By the coefficients of an affine map, as tpxiGetAffineTransform and tpxiGetRotateTransform make them.
template <class Sample, int layout>
class WarpAffine
    : public WarpPlan<Sample, layout, op::WarpAffineNearest, op::WarpAffineLinear, op::WarpAffineCubic> {
    using Base = WarpPlan<Sample, layout, op::WarpAffineNearest, op::WarpAffineLinear, op::WarpAffineCubic>;
    using Base::spec;

 public:
    WarpAffine(TpxiSize src, TpxiSize dst, const Tpx64f (&coeffs)[2][3], const WarpOptions& options = {})
        : Base(src, dst, options) {
        const WarpOptions& o = options;
        int bytes = 0;
        int initBytes = 0;
        check(tpxiWarpAffineGetSize(src, dst, dataType<Sample>, coeffs, o.interpolation, o.direction, o.border,
                                    &bytes, &initBytes),
              "WarpAffine");
        this->spec_ = Buffer(bytes);
        const Buffer temporary(initBytes);
        const auto init = [&](auto function, auto... more) {
            return function(src, dst, dataType<Sample>, coeffs, o.direction, layout, more...);
        };
        const Tpx64f* const value = o.borderValue.data();
        TpxStatus status;
        if (o.interpolation == tpxInterpolationNearest)
            status = init(&tpxiWarpAffineNearestInit, o.border, value, o.smoothEdge, spec());
        else if (o.interpolation == tpxInterpolationLinear)
            status = init(&tpxiWarpAffineLinearInit, o.border, value, o.smoothEdge, spec());
        else
            status = init(&tpxiWarpAffineCubicInit, o.cubicB, o.cubicC, o.border, value, o.smoothEdge, spec(),
                          temporary.data());
        this->status_ = check(status, "WarpAffine");
    }
};

// By the coefficients of a perspective map, from the rectangle srcRoi of the source or from all of it.
template <class Sample, int layout>
class WarpPerspective : public WarpPlan<Sample, layout, op::WarpPerspectiveNearest, op::WarpPerspectiveLinear,
                                        op::WarpPerspectiveCubic> {
    using Base = WarpPlan<Sample, layout, op::WarpPerspectiveNearest, op::WarpPerspectiveLinear,
                          op::WarpPerspectiveCubic>;
    using Base::spec;

 public:
    WarpPerspective(TpxiSize src, TpxiSize dst, const Tpx64f (&coeffs)[3][3], const WarpOptions& options = {})
        : WarpPerspective(src, tpxiWarpGetRectInfinite(), dst, coeffs, options) {}
    WarpPerspective(TpxiSize src, TpxiRect srcRoi, TpxiSize dst, const Tpx64f (&coeffs)[3][3],
                    const WarpOptions& options = {})
        : Base(src, dst, options) {
        const WarpOptions& o = options;
        int bytes = 0;
        int initBytes = 0;
        check(tpxiWarpPerspectiveGetSize(src, srcRoi, dst, dataType<Sample>, coeffs, o.interpolation,
                                         o.direction, o.border, &bytes, &initBytes),
              "WarpPerspective");
        this->spec_ = Buffer(bytes);
        const Buffer temporary(initBytes);
        const auto init = [&](auto function, auto... kernel) {
            return function(src, srcRoi, dst, dataType<Sample>, coeffs, o.direction, layout, kernel...,
                            o.border, o.borderValue.data(), o.smoothEdge, spec(), temporary.data());
        };
        this->status_ = check(o.interpolation == tpxInterpolationNearest ? init(&tpxiWarpPerspectiveNearestInit)
                              : o.interpolation == tpxInterpolationLinear
                                  ? init(&tpxiWarpPerspectiveLinearInit)
                                  : init(&tpxiWarpPerspectiveCubicInit, o.cubicB, o.cubicC),
                              "WarpPerspective");
    }
};

// From a quadrangle of the source to one of the destination, corner by corner, within two rectangles. transform
// 1: perspective, 0: the affine map by the first three corners.
template <class Sample, int layout>
class WarpQuad : public WarpPlan<Sample, layout, op::WarpPerspectiveNearest, op::WarpPerspectiveLinear,
                                 op::WarpPerspectiveCubic> {
    using Base = WarpPlan<Sample, layout, op::WarpPerspectiveNearest, op::WarpPerspectiveLinear,
                          op::WarpPerspectiveCubic>;
    using Base::spec;

 public:
    using Corners = Tpx64f[4][2];

    WarpQuad(TpxiSize src, TpxiRect srcRoi, const Corners& srcQuad, TpxiRect dstRoi, const Corners& dstQuad,
             int transform = 1, const WarpOptions& options = {})
        : Base(src, {}, options) {
        const WarpOptions& o = options;
        int bytes = 0;
        int initBytes = 0;
        check(tpxiWarpQuadGetSize(src, srcRoi, srcQuad, dstRoi, dstQuad, transform, dataType<Sample>,
                                  o.interpolation, o.border, &bytes, &initBytes),
              "WarpQuad");
        this->dstSize_ = {dstRoi.x + dstRoi.width, dstRoi.y + dstRoi.height};
        this->spec_ = Buffer(bytes);
        const Buffer temporary(initBytes);
        const auto init = [&](auto function, auto... kernel) {
            return function(src, srcRoi, srcQuad, dstRoi, dstQuad, transform, dataType<Sample>, layout,
                            kernel..., o.border, o.borderValue.data(), o.smoothEdge, spec(), temporary.data());
        };
        this->status_ = check(o.interpolation == tpxInterpolationNearest ? init(&tpxiWarpQuadNearestInit)
                              : o.interpolation == tpxInterpolationLinear
                                  ? init(&tpxiWarpQuadLinearInit)
                                  : init(&tpxiWarpQuadCubicInit, o.cubicB, o.cubicC),
                              "WarpQuad");
    }
};

} // namespace tpxi

#endif
