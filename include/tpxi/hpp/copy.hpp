// SPDX-License-Identifier: Apache-2.0
// Copying and setting samples, planes and channels, borders: copy.h, borders.h.
#ifndef TPXI_HPP_COPY_HPP
#define TPXI_HPP_COPY_HPP

#include "../borders.h"
#include "../copy.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

#define TPXI_NAME_BETWEEN(type, from, to, name) \
    static constexpr auto of(Key<Tpx##type, from, Tpx##type, to>) { return &name; }
#define TPXI_COPY(type)                                        \
    TPXI_NAMES_134A(tpxiCopy_, type, R)                        \
    TPXI_NAME_BETWEEN(type, C3, AC4, tpxiCopy_##type##_C3AC4R) \
    TPXI_NAME_BETWEEN(type, C4, C3, tpxiCopy_##type##_AC4C3R)
struct Copy {
    TPXI_COPY(8u)
    TPXI_COPY(16u)
    TPXI_COPY(16s)
    TPXI_COPY(32s)
    TPXI_COPY(32f)
};

#define TPXI_COPY_CHANNEL(type)                              \
    TPXI_NAME_BETWEEN(type, C3, C3, tpxiCopy_##type##_C3CR)  \
    TPXI_NAME_BETWEEN(type, C4, C4, tpxiCopy_##type##_C4CR)  \
    TPXI_NAME_BETWEEN(type, C3, C1, tpxiCopy_##type##_C3C1R) \
    TPXI_NAME_BETWEEN(type, C4, C1, tpxiCopy_##type##_C4C1R) \
    TPXI_NAME_BETWEEN(type, C1, C3, tpxiCopy_##type##_C1C3R) \
    TPXI_NAME_BETWEEN(type, C1, C4, tpxiCopy_##type##_C1C4R)
struct CopyChannel {
    TPXI_COPY_CHANNEL(8u)
    TPXI_COPY_CHANNEL(16u)
    TPXI_COPY_CHANNEL(16s)
    TPXI_COPY_CHANNEL(32s)
    TPXI_COPY_CHANNEL(32f)
};

#define TPXI_COPY_PLANES(type)                               \
    TPXI_NAME_BETWEEN(type, C3, C1, tpxiCopy_##type##_C3P3R) \
    TPXI_NAME_BETWEEN(type, C4, C1, tpxiCopy_##type##_C4P4R) \
    TPXI_NAME_BETWEEN(type, C1, C3, tpxiCopy_##type##_P3C3R) \
    TPXI_NAME_BETWEEN(type, C1, C4, tpxiCopy_##type##_P4C4R)
struct CopyPlanes {
    TPXI_COPY_PLANES(8u)
    TPXI_COPY_PLANES(16u)
    TPXI_COPY_PLANES(16s)
    TPXI_COPY_PLANES(32s)
    TPXI_COPY_PLANES(32f)
};

struct CopyMasked {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiCopy_, MR)
};
struct Set {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiSet_, R)
};
struct SetMasked {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiSet_, MR)
};

struct Dup {
    TPXI_NAME_BETWEEN(8u, C1, C3, tpxiDup_8u_C1C3R)
    TPXI_NAME_BETWEEN(8u, C1, C4, tpxiDup_8u_C1C4R)
};

#define TPXI_SWAP_CHANNELS(type)                                     \
    TPXI_NAME(tpxiSwapChannels_, type, C3, R)                        \
    TPXI_NAME(tpxiSwapChannels_, type, C4, R)                        \
    TPXI_NAME(tpxiSwapChannels_, type, AC4, R)                       \
    TPXI_NAME_BETWEEN(type, C4, C3, tpxiSwapChannels_##type##_C4C3R) \
    TPXI_NAME_BETWEEN(type, C3, C4, tpxiSwapChannels_##type##_C3C4R)
struct SwapChannels {
    TPXI_SWAP_CHANNELS(8u)
    TPXI_SWAP_CHANNELS(16u)
    TPXI_SWAP_CHANNELS(16s)
    TPXI_SWAP_CHANNELS(32s)
    TPXI_SWAP_CHANNELS(32f)
    struct InPlace {
        TPXI_NAME(tpxiSwapChannels_, 8u, C3, IR)
        TPXI_NAME(tpxiSwapChannels_, 8u, C4, IR)
    };
};

struct CopyConstBorder {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiCopyConstBorder_, R)
};
struct CopyReplicateBorder {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiCopyReplicateBorder_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134A, tpxiCopyReplicateBorder_, IR)
    };
};
struct CopyMirrorBorder {
    TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134, tpxiCopyMirrorBorder_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32S_32F(TPXI_NAMES_134, tpxiCopyMirrorBorder_, IR)
    };
};
struct CopyWrapBorder {
    TPXI_NAME(tpxiCopyWrapBorder_, 32s, C1, R)
    TPXI_NAME(tpxiCopyWrapBorder_, 32f, C1, R)
    struct InPlace {
        TPXI_NAME(tpxiCopyWrapBorder_, 32s, C1, IR)
        TPXI_NAME(tpxiCopyWrapBorder_, 32f, C1, IR)
    };
};

#undef TPXI_NAME_BETWEEN
#undef TPXI_COPY
#undef TPXI_COPY_CHANNEL
#undef TPXI_COPY_PLANES
#undef TPXI_SWAP_CHANNELS

} // namespace op

// ---- Copy: tpxiCopy ------------------------------------------------------------------------------------
// To the same layout, from C3 to AC4, or from C4 to C3 (which drops the fourth channel).
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus copy(const Src& src, Dst&& dst) {
    return detail::map<op::Copy>("copy", src, dst);
}

// The pixels whose mask is not zero.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus copy(const Src& src, Dst&& dst, View<const Tpx8u, C1> mask) {
    detail::expectSameSize(mask.size(), dst.size(), "copy");
    return detail::map<op::CopyMasked>("copy", src, dst, mask.data(), mask.step());
}

// Channel srcChannel of the source to channel dstChannel of the destination, whose other channels stay. One of
// the two may be a plane, whose only channel is 0. Throws tpxErrChannelIndex for a channel that there is not.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus copyChannel(const Src& src, int srcChannel, Dst&& dst, int dstChannel) {
    const auto from = detail::readable(src);
    const auto to = detail::writable(dst);
    detail::expectSameSize(from.size(), to.size(), "copyChannel");
    if (srcChannel < 0 || srcChannel >= from.channels || dstChannel < 0 || dstChannel >= to.channels)
        detail::fail(tpxErrChannelIndex, "copyChannel");
    const auto function = detail::find<op::CopyChannel, detail::KeyOf<Src, Dst>>();
    return check(function(from.data() + srcChannel, from.step(), to.data() + dstChannel, to.step(), to.size()),
                 "copyChannel");
}

// Interleaved channels to planes and back. All planes have one step and the size of the interleaved image.
template <class Src, class Sample, std::size_t n, detail::Images<Src> = 0>
TpxStatus copy(const Src& src, const std::array<View<Sample, C1>, n>& planes) {
    static_assert(n == std::size_t{coloursOf(detail::layoutOf<Src>)}, "a plane for each channel");
    const auto from = detail::readable(src);
    std::array<Sample*, n> pointers;
    for (std::size_t c = 0; c < n; ++c) {
        detail::expectSameSize(planes[c].size(), from.size(), "copy");
        if (planes[c].step() != planes[0].step()) detail::fail(tpxErrStep, "copy");
        pointers[c] = planes[c].data();
    }
    const auto function = detail::find<op::CopyPlanes, detail::KeyOf<Src, View<Sample, C1>>>();
    return check(function(from.data(), from.step(), pointers.data(), planes[0].step(), from.size()), "copy");
}
template <class Sample, std::size_t n, class Dst, detail::Images<Dst> = 0>
TpxStatus copy(const std::array<View<Sample, C1>, n>& planes, Dst&& dst) {
    static_assert(n == std::size_t{coloursOf(detail::layoutOf<Dst>)}, "a plane for each channel");
    const auto to = detail::writable(dst);
    std::array<const Sample*, n> pointers;
    for (std::size_t c = 0; c < n; ++c) {
        detail::expectSameSize(planes[c].size(), to.size(), "copy");
        if (planes[c].step() != planes[0].step()) detail::fail(tpxErrStep, "copy");
        pointers[c] = planes[c].data();
    }
    const auto function = detail::find<op::CopyPlanes, detail::KeyOf<View<Sample, C1>, Dst>>();
    return check(function(pointers.data(), planes[0].step(), to.data(), to.step(), to.size()), "copy");
}

// ---- Set: tpxiSet --------------------------------------------------------------------------------------
// One pixel value everywhere, or where the mask is not zero: set({255, 0, 0}, image).
template <class Dst, detail::Images<Dst> = 0>
TpxStatus set(const PixelOf<Dst>& value, Dst&& dst) {
    const auto to = detail::writable(dst);
    const auto function = detail::find<op::Set, detail::KeyOfOne<Dst>>();
    return check(function(detail::raw(value), to.data(), to.step(), to.size()), "set");
}
template <class Dst, detail::Images<Dst> = 0>
TpxStatus set(const PixelOf<Dst>& value, Dst&& dst, View<const Tpx8u, C1> mask) {
    const auto to = detail::writable(dst);
    detail::expectSameSize(mask.size(), to.size(), "set");
    const auto function = detail::find<op::SetMasked, detail::KeyOfOne<Dst>>();
    return check(function(detail::raw(value), to.data(), to.step(), to.size(), mask.data(), mask.step()),
                 "set");
}

// ---- Channels: tpxiDup, tpxiSwapChannels ---------------------------------------------------------------
// Each source sample into all channels of the destination's pixel.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus dup(const Src& src, Dst&& dst) {
    return detail::map<op::Dup>("dup", src, dst);
}

// Entry k of the order names the source channel that becomes channel k: swapChannels(rgb, bgr, {2, 1, 0}). From
// C3 to C4 an order of 3 gives `value`.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus swapChannels(const Src& src, Dst&& dst,
                       const std::array<int, std::size_t{coloursOf(detail::layoutOf<Dst>)}>& order) {
    return detail::map<op::SwapChannels>("swapChannels", src, dst, order.data());
}
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus swapChannels(const Src& src, Dst&& dst, const std::array<int, 4>& order,
                       detail::SampleOf<Dst> value) {
    return detail::map<op::SwapChannels>("swapChannels", src, dst, order.data(), value);
}
template <class SrcDst, detail::Images<SrcDst> = 0>
TpxStatus swapChannels(SrcDst&& srcDst,
                       const std::array<int, std::size_t{coloursOf(detail::layoutOf<SrcDst>)}>& order) {
    return detail::mapInPlace<op::SwapChannels>("swapChannels", srcDst, order.data());
}

// ---- Borders: tpxiCopyConstBorder, tpxiCopyReplicateBorder, tpxiCopyMirrorBorder, tpxiCopyWrapBorder --------
// Into a larger image, `top` rows and `left` columns from its first pixel, with the margin filled. In place,
// the source is the rectangle `inner` of the image.
namespace detail {
template <class Operation, class Src, class Dst, class... Rest>
TpxStatus copyBorder(const char* where, const Src& src, Dst&& dst, int top, int left, Rest... rest) {
    const auto from = readable(src);
    const auto to = writable(dst);
    const auto function = find<Operation, KeyOf<Src, Dst>>();
    return check(
        function(from.data(), from.step(), from.size(), to.data(), to.step(), to.size(), top, left, rest...),
        where);
}
template <class Operation, class SrcDst>
TpxStatus copyBorderInPlace(const char* where, SrcDst&& srcDst, TpxiRect inner) {
    const auto image = writable(srcDst);
    const auto source = image.sub(inner);
    const auto function = find<typename Operation::InPlace, KeyOfOne<SrcDst>>();
    return check(function(source.data(), source.step(), source.size(), image.size(), inner.y, inner.x), where);
}
} // namespace detail

template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus copyConstBorder(const Src& src, Dst&& dst, int top, int left, const PixelOf<Dst>& value) {
    return detail::copyBorder<op::CopyConstBorder>("copyConstBorder", src, dst, top, left, detail::raw(value));
}

#define TPXI_BORDER(name, Operation)                                           \
    template <class Src, class Dst, detail::Images<Src, Dst> = 0>              \
    TpxStatus name(const Src& src, Dst&& dst, int top, int left) {             \
        return detail::copyBorder<op::Operation>(#name, src, dst, top, left);  \
    }                                                                          \
    template <class SrcDst, detail::Images<SrcDst> = 0>                        \
    TpxStatus name(SrcDst&& srcDst, TpxiRect inner) {                          \
        return detail::copyBorderInPlace<op::Operation>(#name, srcDst, inner); \
    }
TPXI_BORDER(copyReplicateBorder, CopyReplicateBorder)
TPXI_BORDER(copyMirrorBorder, CopyMirrorBorder)
TPXI_BORDER(copyWrapBorder, CopyWrapBorder)
#undef TPXI_BORDER

} // namespace tpxi

#endif
