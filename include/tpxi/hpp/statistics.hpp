// SPDX-License-Identifier: Apache-2.0
// Measuring images, lookup tables: statistics.h.
#ifndef TPXI_HPP_STATISTICS_HPP
#define TPXI_HPP_STATISTICS_HPP

#include <tuple>

#include "../statistics.h"
#include "call.hpp"

namespace tpxi {

// ---- Tables --------------------------------------------------------------------------------------------
namespace op {

struct Sum {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiSum_, R)
};
struct Mean {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiMean_, R)
};
struct Min {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMin_, R)
};
struct Max {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMax_, R)
};
struct MinMax {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMinMax_, R)
};
struct MinIndx {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMinIndx_, R)
};
struct MaxIndx {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMaxIndx_, R)
};
struct NormInf {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNorm_Inf_, R)
};
struct NormL1 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNorm_L1_, R)
};
struct NormL2 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNorm_L2_, R)
};
struct NormDiffInf {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormDiff_Inf_, R)
};
struct NormDiffL1 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormDiff_L1_, R)
};
struct NormDiffL2 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormDiff_L2_, R)
};
struct NormRelInf {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormRel_Inf_, R)
};
struct NormRelL1 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormRel_L1_, R)
};
struct NormRelL2 {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiNormRel_L2_, R)
};
#define TPXI_DOT_PROD(type, layout) \
    static constexpr auto of(Key<Tpx##type, layout>) { return &tpxiDotProd_##type##64f_##layout##R; }
#define TPXI_DOT_PROD_134A(type) \
    TPXI_DOT_PROD(type, C1) TPXI_DOT_PROD(type, C3) TPXI_DOT_PROD(type, C4) TPXI_DOT_PROD(type, AC4)
struct DotProd {
    TPXI_DOT_PROD_134A(8u)
    TPXI_DOT_PROD_134A(16u)
    TPXI_DOT_PROD_134A(16s)
    TPXI_DOT_PROD_134A(32u)
    TPXI_DOT_PROD_134A(32s)
    TPXI_DOT_PROD_134A(32f)
};
#undef TPXI_DOT_PROD
#undef TPXI_DOT_PROD_134A
struct MinEvery {
    TPXI_NAME(tpxiMinEvery_, 8u, C1, R)
    TPXI_NAME(tpxiMinEvery_, 16u, C1, R)
    TPXI_NAME(tpxiMinEvery_, 32f, C1, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMinEvery_, IR)
    };
};
struct MaxEvery {
    TPXI_NAME(tpxiMaxEvery_, 8u, C1, R)
    TPXI_NAME(tpxiMaxEvery_, 16u, C1, R)
    TPXI_NAME(tpxiMaxEvery_, 32f, C1, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiMaxEvery_, IR)
    };
};
struct Histogram {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134, tpxiHistogram_, R)
};
struct Lut {
    TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiLUT_, R)
    struct InPlace {
        TPXI_8U_16U_16S_32F(TPXI_NAMES_134A, tpxiLUT_, IR)
    };
    struct Init {
        TPXI_TYPED_NAME(tpxiLUT_Init_, 8u)
        TPXI_TYPED_NAME(tpxiLUT_Init_, 16u)
        TPXI_TYPED_NAME(tpxiLUT_Init_, 16s)
        TPXI_TYPED_NAME(tpxiLUT_Init_, 32f)
    };
};
struct LutPalette {
    TPXI_NAMES_134A(tpxiLUTPalette_, 8u, R)
    TPXI_NAMES_134A(tpxiLUTPalette_, 16u, R)
};

} // namespace op

namespace detail {
// Calls a measurement, whose results C takes the addresses of between the size and the rest.
template <class Operation, class Src, class Results, class... Rest>
void measure(const char* where, const Src& src, Results results, Rest... rest) {
    const auto from = readable(src);
    const auto function = find<Operation, KeyOfOne<Src>>();
    std::apply(
        [&](auto*... result) {
            check(function(from.data(), from.step(), from.size(), result..., rest...), where);
        },
        results);
}
template <class Operation, class Src, class... Rest>
auto measureOne(const char* where, const Src& src, Rest... rest) {
    Pixel<Tpx64f, layoutOf<Src>> result{};
    measure<Operation>(where, src, std::tuple(address(result)), rest...);
    return result;
}
template <class Operation, class Src1, class Src2, class... Rest>
auto compareTwo(const char* where, const Src1& src1, const Src2& src2, Rest... rest) {
    static_assert(std::is_same_v<KeyOfOne<Src1>, KeyOfOne<Src2>>, "both images have one type and layout");
    const auto a = readable(src1);
    const auto b = readable(src2);
    expectSameSize(a.size(), b.size(), where);
    Pixel<Tpx64f, layoutOf<Src1>> result{};
    const auto function = find<Operation, KeyOfOne<Src1>>();
    check(function(a.data(), a.step(), b.data(), b.step(), a.size(), address(result), rest...), where);
    return result;
}
} // namespace detail

// ---- Results -------------------------------------------------------------------------------------------
// A result is a value for C1, and a std::array with an entry a colour for the others.
//
// ---- Sums, means, norms, dot products: tpxiSum, tpxiMean, tpxiNorm, tpxiNormDiff, tpxiNormRel, tpxiDotProd
// ---- In double precision. Those of 32f take a hint, which says in what precision norms and dot products are
// computed.
#define TPXI_MEASURE(name, Operation)                                    \
    template <class Src, detail::Integers<Src> = 0>                      \
    auto name(const Src& src) {                                          \
        return detail::measureOne<op::Operation>(#name, src);            \
    }                                                                    \
    template <class Src, detail::Floats<Src> = 0>                        \
    auto name(const Src& src, TpxHintAlgorithm hint = tpxHintAccurate) { \
        return detail::measureOne<op::Operation>(#name, src, hint);      \
    }
TPXI_MEASURE(sum, Sum)
TPXI_MEASURE(mean, Mean)
TPXI_MEASURE(normL1, NormL1)
TPXI_MEASURE(normL2, NormL2)
#undef TPXI_MEASURE

template <class Src, detail::Images<Src> = 0>
auto normInf(const Src& src) {
    return detail::measureOne<op::NormInf>("normInf", src);
}

// normRel: of src1 - src2, over the norm of src2; where that is zero the value is infinite or NaN.
#define TPXI_COMPARE(name, Operation)                                                        \
    template <class Src1, class Src2, detail::Images<Src1> = 0, detail::Integers<Src2> = 0>  \
    auto name(const Src1& src1, const Src2& src2) {                                          \
        return detail::compareTwo<op::Operation>(#name, src1, src2);                         \
    }                                                                                        \
    template <class Src1, class Src2, detail::Images<Src1> = 0, detail::Floats<Src2> = 0>    \
    auto name(const Src1& src1, const Src2& src2, TpxHintAlgorithm hint = tpxHintAccurate) { \
        return detail::compareTwo<op::Operation>(#name, src1, src2, hint);                   \
    }
TPXI_COMPARE(normDiffL1, NormDiffL1)
TPXI_COMPARE(normDiffL2, NormDiffL2)
TPXI_COMPARE(normRelL1, NormRelL1)
TPXI_COMPARE(normRelL2, NormRelL2)
TPXI_COMPARE(dotProd, DotProd)
#undef TPXI_COMPARE

template <class Src1, class Src2, detail::Images<Src1, Src2> = 0>
auto normDiffInf(const Src1& src1, const Src2& src2) {
    return detail::compareTwo<op::NormDiffInf>("normDiffInf", src1, src2);
}
template <class Src1, class Src2, detail::Images<Src1, Src2> = 0>
auto normRelInf(const Src1& src1, const Src2& src2) {
    return detail::compareTwo<op::NormRelInf>("normRelInf", src1, src2);
}

// ---- Extremes: tpxiMin, tpxiMax, tpxiMinMax, tpxiMinIndx, tpxiMaxIndx ----------------------------------
template <class Value>
struct MinMax {
    Value min;
    Value max;
};
template <class Value, class Index>
struct Extreme {
    Value value;
    Index x;
    Index y;
};

template <class Src, detail::Images<Src> = 0>
PixelOf<Src> min(const Src& src) {
    PixelOf<Src> result{};
    detail::measure<op::Min>("min", src, std::tuple(detail::address(result)));
    return result;
}
template <class Src, detail::Images<Src> = 0>
PixelOf<Src> max(const Src& src) {
    PixelOf<Src> result{};
    detail::measure<op::Max>("max", src, std::tuple(detail::address(result)));
    return result;
}
template <class Src, detail::Images<Src> = 0>
MinMax<PixelOf<Src>> minMax(const Src& src) {
    MinMax<PixelOf<Src>> result{};
    detail::measure<op::MinMax>("minMax", src,
                                std::tuple(detail::address(result.min), detail::address(result.max)));
    return result;
}

// With the place of the first such pixel.
namespace detail {
template <class Operation, class Src>
auto extreme(const char* where, const Src& src) {
    Extreme<PixelOf<Src>, Pixel<int, layoutOf<Src>>> result{};
    measure<Operation>(where, src, std::tuple(address(result.value), address(result.x), address(result.y)));
    return result;
}
} // namespace detail
template <class Src, detail::Images<Src> = 0>
auto minIndx(const Src& src) {
    return detail::extreme<op::MinIndx>("minIndx", src);
}
template <class Src, detail::Images<Src> = 0>
auto maxIndx(const Src& src) {
    return detail::extreme<op::MaxIndx>("maxIndx", src);
}

// ---- Extremes of two images: tpxiMinEvery, tpxiMaxEvery ------------------------------------------------
template <class Src1, class Src2, class Dst, detail::Images<Src1, Src2, Dst> = 0>
TpxStatus minEvery(const Src1& src1, const Src2& src2, Dst&& dst) {
    return detail::combine<op::MinEvery>("minEvery", src1, src2, dst);
}
template <class Src, class SrcDst, detail::Images<Src, SrcDst> = 0>
TpxStatus minEvery(const Src& src, SrcDst&& srcDst) {
    return detail::combineInPlace<op::MinEvery>("minEvery", src, srcDst);
}
template <class Src1, class Src2, class Dst, detail::Images<Src1, Src2, Dst> = 0>
TpxStatus maxEvery(const Src1& src1, const Src2& src2, Dst&& dst) {
    return detail::combine<op::MaxEvery>("maxEvery", src1, src2, dst);
}
template <class Src, class SrcDst, detail::Images<Src, SrcDst> = 0>
TpxStatus maxEvery(const Src& src, SrcDst&& srcDst) {
    return detail::combineInPlace<op::MaxEvery>("maxEvery", src, srcDst);
}

// ---- Histograms: tpxiHistogram -------------------------------------------------------------------------
// The levels of each channel, made once for images of up to a size. Threads may share a histogram, each with a
// work buffer of its own. `counters` are nLevels - 1 a channel.
template <class Sample, int layout>
class Histogram {
 public:
    template <class T>
    using Each = std::array<T, std::size_t{layout}>;

    Histogram(TpxiSize size, const Each<const Tpx32f*>& levels, const Each<int>& nLevels)
        : Histogram(size, nLevels, 0) {
        check(tpxiHistogramInit(dataType<Sample>, levels.data(), nLevels.data(), layout, spec()), "Histogram");
    }
    // Levels at even distances, from lower to upper.
    Histogram(TpxiSize size, const Each<Tpx32f>& lower, const Each<Tpx32f>& upper, const Each<int>& nLevels)
        : Histogram(size, nLevels, 1) {
        check(tpxiHistogramUniformInit(dataType<Sample>, lower.data(), upper.data(), nLevels.data(), layout,
                                       spec()),
              "Histogram");
    }

    Buffer buffer() const { return Buffer(bufferBytes_); }

    template <class Src, detail::Images<Src> = 0>
    TpxStatus operator()(const Src& src, const Each<Tpx32u*>& counters, const Buffer& buffer) const {
        static_assert(std::is_same_v<detail::KeyOfOne<Src>, Key<Sample, layout>>, "an image of another type");
        const auto from = detail::readable(src);
        const auto function = detail::find<op::Histogram, Key<Sample, layout>>();
        const auto pointers = [&] {
            if constexpr (layout == C1)
                return counters[0];
            else
                return counters.data();
        }();
        return check(function(from.data(), from.step(), from.size(), pointers, spec(), buffer.data()),
                     "Histogram");
    }

 private:
    Histogram(TpxiSize size, const Each<int>& nLevels, int uniform) {
        int bytes = 0;
        check(tpxiHistogramGetBufferSize(dataType<Sample>, size, nLevels.data(), layout, uniform, &bytes,
                                         &bufferBytes_),
              "Histogram");
        spec_ = Buffer(bytes);
    }
    TpxHistogramSpec* spec() const { return reinterpret_cast<TpxHistogramSpec*>(spec_.data()); }

    Buffer spec_;
    int bufferBytes_ = 0;
};

// ---- Lookup tables: tpxiLUT, tpxiLUTPalette ------------------------------------------------------------
// Levels and values of each channel (of AC4: three), made once. Values and levels are 32s, those of 32f are
// 32f.
template <class Sample, int layout>
class Lut {
 public:
    using Value = std::conditional_t<std::is_same_v<Sample, Tpx32f>, Tpx32f, Tpx32s>;
    template <class T>
    using Each = std::array<T, std::size_t{coloursOf(layout)}>;

    Lut(TpxInterpolationType interpolation, const Each<const Value*>& values, const Each<const Value*>& levels,
        const Each<int>& nLevels) {
        const TpxiSize any = {1, 1}; // the size does not matter
        int bytes = 0;
        check(tpxiLUT_GetSize(interpolation, dataType<Sample>, layout, any, nLevels.data(), &bytes), "Lut");
        spec_ = Buffer(bytes);
        const auto init = detail::find<op::Lut::Init, Key<Sample, C1>>();
        check(init(interpolation, layout, any, values.data(), levels.data(), nLevels.data(), spec()), "Lut");
    }

    template <class Src, class Dst, detail::Images<Src, Dst> = 0>
    TpxStatus operator()(const Src& src, Dst&& dst) const {
        static_assert(std::is_same_v<detail::KeyOfOne<Dst>, Key<Sample, layout>>, "an image of another type");
        return detail::map<op::Lut>("Lut", src, dst, spec());
    }
    template <class SrcDst, detail::Images<SrcDst> = 0>
    TpxStatus operator()(SrcDst&& srcDst) const {
        static_assert(std::is_same_v<detail::KeyOfOne<SrcDst>, Key<Sample, layout>>,
                      "an image of another type");
        return detail::mapInPlace<op::Lut>("Lut", srcDst, spec());
    }

 private:
    TpxiLUT_Spec* spec() const { return reinterpret_cast<TpxiLUT_Spec*>(spec_.data()); }

    Buffer spec_;
};

// A table of 2^bits entries for each colour.
template <class Src, class Dst, detail::Images<Src, Dst> = 0>
TpxStatus lutPalette(const Src& src, Dst&& dst,
                     const Pixel<const detail::SampleOf<Dst>*, detail::layoutOf<Dst>>& tables, int bits) {
    return detail::map<op::LutPalette>("lutPalette", src, dst, detail::raw(tables), bits);
}

} // namespace tpxi

#endif
