// SPDX-License-Identifier: Apache-2.0
// Resizing, remapping: geometry.h, resize_taps.h, remap.h.
#ifndef TPXI_HPP_RESIZE_HPP
#define TPXI_HPP_RESIZE_HPP

#include "../geometry.h"
#include "../remap.h"
#include "../resize_taps.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

#define TPXI_TYPED_NAMES(stem) \
    TPXI_TYPED_NAME(stem, 8u) TPXI_TYPED_NAME(stem, 16u) TPXI_TYPED_NAME(stem, 16s) TPXI_TYPED_NAME(stem, 32f)
struct ResizeGetSize {
    TPXI_TYPED_NAMES(tpxiResizeGetSize_)
    TPXI_TYPED_NAME(tpxiResizeGetSize_, 64f)
};
struct ResizeGetBufferSize {
    TPXI_TYPED_NAMES(tpxiResizeGetBufferSize_)
    TPXI_TYPED_NAME(tpxiResizeGetBufferSize_, 64f)
};
struct ResizeGetBorderSize {
    TPXI_TYPED_NAMES(tpxiResizeGetBorderSize_)
    TPXI_TYPED_NAME(tpxiResizeGetBorderSize_, 64f)
};
struct ResizeGetSrcOffset {
    TPXI_TYPED_NAMES(tpxiResizeGetSrcOffset_)
    TPXI_TYPED_NAME(tpxiResizeGetSrcOffset_, 64f)
};
struct ResizeGetSrcRoi {
    TPXI_TYPED_NAMES(tpxiResizeGetSrcRoi_)
    TPXI_TYPED_NAME(tpxiResizeGetSrcRoi_, 64f)
};
struct ResizeLinearInit {
    TPXI_TYPED_NAMES(tpxiResizeLinearInit_)
    TPXI_TYPED_NAME(tpxiResizeLinearInit_, 64f)
};
struct ResizeNearestInit {
    TPXI_TYPED_NAMES(tpxiResizeNearestInit_)
};
struct ResizeCubicInit {
    TPXI_TYPED_NAMES(tpxiResizeCubicInit_)
};
struct ResizeLanczosInit {
    TPXI_TYPED_NAMES(tpxiResizeLanczosInit_)
};
struct ResizeSuperInit {
    TPXI_TYPED_NAMES(tpxiResizeSuperInit_)
};
#undef TPXI_TYPED_NAMES

struct ResizeNearest {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeNearest_, R)
};
struct ResizeLinear {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeLinear_, R)
    TPXI_NAMES_134(tpxiResizeLinear_, 64f, R)
};
struct ResizeCubic {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeCubic_, R)
};
struct ResizeLanczos {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeLanczos_, R)
};
struct ResizeSuper {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeSuper_, R)
};
struct ResizeAntialiasing {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiResizeAntialiasing_, R)
};
struct Remap {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiRemap_, R)
    TPXI_NAMES_134A(tpxiRemap_, 64f, R)
};

} // namespace op

// ---- Resize: tpxiResize<Kind> --------------------------------------------------------------------------
// A plan for one pair of sizes: ResizePlan<Tpx8u>::lanczos(from, to). It serves images of any number of
// channels, any tiles of the destination, and any number of threads, each with a work buffer of its own. A plan
// that is made antialiased keeps fine detail from turning into false patterns where an image becomes smaller.
template <class Sample>
class ResizePlan {
 public:
    static ResizePlan nearest(TpxiSize src, TpxiSize dst) {
        ResizePlan plan(Kind::nearest, tpxInterpolationNearest, 0, src, dst);
        return plan.init(detail::find<op::ResizeNearestInit, Type>());
    }
    static ResizePlan linear(TpxiSize src, TpxiSize dst) {
        ResizePlan plan(Kind::linear, tpxInterpolationLinear, 0, src, dst);
        return plan.init(detail::find<op::ResizeLinearInit, Type>());
    }
    // The kernels of Mitchell and Netravali; b = 0, c = 0.5 are Catmull-Rom splines.
    static ResizePlan cubic(TpxiSize src, TpxiSize dst, float b = 0, float c = 0.5F) {
        ResizePlan plan(Kind::cubic, tpxInterpolationCubic, 0, src, dst);
        return plan.initWithBuffer(detail::find<op::ResizeCubicInit, Type>(), b, c);
    }
    static ResizePlan lanczos(TpxiSize src, TpxiSize dst, Tpx32u lobes = 3) {
        ResizePlan plan(Kind::lanczos, tpxInterpolationLanczos, 0, src, dst);
        return plan.initWithBuffer(detail::find<op::ResizeLanczosInit, Type>(), lobes);
    }
    // Means of the pixels that are covered; only makes smaller.
    static ResizePlan super(TpxiSize src, TpxiSize dst) {
        ResizePlan plan(Kind::super, tpxInterpolationSuper, 0, src, dst);
        return plan.init(detail::find<op::ResizeSuperInit, Type>());
    }
    static ResizePlan antialiasingLinear(TpxiSize src, TpxiSize dst) {
        ResizePlan plan(Kind::antialiasing, tpxInterpolationLinear, 1, src, dst);
        return plan.initWithBuffer(&tpxiResizeAntialiasingLinearInit);
    }
    static ResizePlan antialiasingCubic(TpxiSize src, TpxiSize dst, float b = 0, float c = 0.5F) {
        ResizePlan plan(Kind::antialiasing, tpxInterpolationCubic, 1, src, dst);
        return plan.initWithBuffer(&tpxiResizeAntialiasingCubicInit, b, c);
    }
    static ResizePlan antialiasingLanczos(TpxiSize src, TpxiSize dst, Tpx32u lobes = 3) {
        ResizePlan plan(Kind::antialiasing, tpxInterpolationLanczos, 1, src, dst);
        return plan.initWithBuffer(&tpxiResizeAntialiasingLanczosInit, lobes);
    }

    TpxiSize srcSize() const noexcept { return srcSize_; }
    TpxiSize dstSize() const noexcept { return dstSize_; }

    // The work buffer of one call: for the whole destination, or for tiles of up to a size.
    Buffer buffer(int channels) const { return buffer(channels, dstSize_); }
    Buffer buffer(int channels, TpxiSize tile) const {
        int bytes = 0;
        const auto query = detail::find<op::ResizeGetBufferSize, Type>();
        check(query(spec(), tile, static_cast<Tpx32u>(channels), &bytes), "ResizePlan::buffer");
        return Buffer(bytes);
    }

    // The whole image; its edge is repeated where pixels beyond it are asked for.
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus operator()(const Src& src, Dst&& dst, const Buffer& buffer) const {
        detail::expectSameSize(src.size(), srcSize_, "ResizePlan");
        detail::expectSameSize(dst.size(), dstSize_, "ResizePlan");
        return tile(src, dst, {0, 0}, tpxBorderReplicate, buffer);
    }

    // The tile of the destination that begins at dstOffset: `dst` is the tile, `src` begins at
    // srcOffset(dstOffset) of the source. `border` has flags for the sides on which the source goes on beyond
    // srcRoi(), by borderSize().
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus tile(const Src& src, Dst&& dst, TpxiPoint dstOffset, TpxBorderType border,
                   const Buffer& buffer) const {
        switch (kind_) {
            case Kind::nearest:
                return run<op::ResizeNearest>(src, dst, dstOffset, buffer);
            case Kind::super:
                return run<op::ResizeSuper>(src, dst, dstOffset, buffer);
            case Kind::linear:
                return run<op::ResizeLinear>(src, dst, dstOffset, buffer, border);
            case Kind::cubic:
                return run<op::ResizeCubic>(src, dst, dstOffset, buffer, border);
            case Kind::lanczos:
                return run<op::ResizeLanczos>(src, dst, dstOffset, buffer, border);
            case Kind::antialiasing:
                return run<op::ResizeAntialiasing>(src, dst, dstOffset, buffer, border);
        }
        return check(tpxErrContext, "ResizePlan"); // there is no other kind
    }

    TpxiPoint srcOffset(TpxiPoint dstOffset) const {
        TpxiPoint offset{};
        const auto query = detail::find<op::ResizeGetSrcOffset, Type>();
        check(query(spec(), dstOffset, &offset), "ResizePlan::srcOffset");
        return offset;
    }
    TpxiRect srcRoi(TpxiRect tile) const {
        TpxiPoint offset{};
        TpxiSize size{};
        const auto query = detail::find<op::ResizeGetSrcRoi, Type>();
        check(query(spec(), {tile.x, tile.y}, {tile.width, tile.height}, &offset, &size), "ResizePlan::srcRoi");
        return {offset.x, offset.y, size.width, size.height};
    }
    TpxiBorderSize borderSize() const {
        TpxiBorderSize border{};
        const auto query = detail::find<op::ResizeGetBorderSize, Type>();
        check(query(spec(), &border), "ResizePlan::borderSize");
        return border;
    }

 private:
    using Type = Key<Sample, C1>;
    enum class Kind { nearest, linear, cubic, lanczos, super, antialiasing };

    ResizePlan(Kind kind, TpxInterpolationType interpolation, Tpx32u antialiasing, TpxiSize src, TpxiSize dst)
        : kind_(kind), srcSize_(src), dstSize_(dst) {
        int bytes = 0;
        const auto query = detail::find<op::ResizeGetSize, Type>();
        const TpxStatus status =
            check(query(src, dst, interpolation, antialiasing, &bytes, &initBytes_), "ResizePlan");
        if (status == tpxWarnNoOperation)
            detail::fail(tpxErrSize, "ResizePlan"); // there is no plan of no pixels
        spec_ = Buffer(bytes);
    }
    template <class Function, class... Parameters>
    ResizePlan&& init(Function function, Parameters... parameters) {
        check(function(srcSize_, dstSize_, parameters..., spec()), "ResizePlan");
        return std::move(*this);
    }
    template <class Function, class... Parameters>
    ResizePlan&& initWithBuffer(Function function, Parameters... parameters) {
        const Buffer temporary(initBytes_);
        check(function(srcSize_, dstSize_, parameters..., spec(), temporary.data()), "ResizePlan");
        return std::move(*this);
    }

    template <class Operation, class Src, class Dst, class... Border>
    TpxStatus run(const Src& src, Dst&& dst, TpxiPoint dstOffset, const Buffer& buffer,
                  Border... border) const {
        using K = detail::KeyOf<Src, Dst>;
        static_assert(std::is_same_v<detail::SampleOf<Dst>, Sample>,
                      "an image of another type than the plan's");
        if constexpr (offers<Operation, K> || !std::is_same_v<Sample, Tpx64f>) {
            const auto from = detail::readable(src);
            const auto to = detail::writable(dst);
            const auto function = detail::find<Operation, K>();
            const auto call = [&](auto... words) {
                return function(from.data(), from.step(), to.data(), to.step(), dstOffset, to.size(), words...,
                                spec(), buffer.data());
            };
            const Sample* const borderValue = nullptr; // is not read
            if constexpr (sizeof...(border) > 0)
                return check(call(border..., borderValue), "ResizePlan");
            else
                return check(call(), "ResizePlan");
        } else {
            return check(tpxErrContext, "ResizePlan"); // 64f has linear plans alone
        }
    }

    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(spec_.data()); }

    Kind kind_;
    TpxiSize srcSize_;
    TpxiSize dstSize_;
    Buffer spec_;
    int initBytes_ = 0;
};

// ---- Remap: tpxiRemap ----------------------------------------------------------------------------------
// xMap and yMap hold the position in the source of each pixel of the destination.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus remap(
    const Src& src, TpxiRect srcRoi,
    View<const std::conditional_t<std::is_same_v<detail::SampleOf<Dst>, Tpx64f>, Tpx64f, Tpx32f>, C1> xMap,
    View<const std::conditional_t<std::is_same_v<detail::SampleOf<Dst>, Tpx64f>, Tpx64f, Tpx32f>, C1> yMap,
    Dst&& dst, int interpolation) {
    const auto from = detail::readable(src);
    const auto to = detail::writable(dst);
    detail::expectSameSize(xMap.size(), to.size(), "remap");
    detail::expectSameSize(yMap.size(), to.size(), "remap");
    const auto function = detail::find<op::Remap, detail::KeyOf<Src, Dst>>();
    return check(function(from.data(), from.size(), from.step(), srcRoi, xMap.data(), xMap.step(), yMap.data(),
                          yMap.step(), to.data(), to.step(), to.size(), interpolation),
                 "remap");
}

} // namespace tpxi

#endif
