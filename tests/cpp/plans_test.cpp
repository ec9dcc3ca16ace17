// SPDX-License-Identifier: Apache-2.0
// Plans, kernels, tables and buffers of tpxi.hpp as values: they give what the C protocol gives, whole and in
// tiles, and after they have moved.
#include "tests/cpp/sweep.h"

#include <vector>

using namespace tpxi;
using namespace tpxi::test;

static_assert(std::is_nothrow_move_constructible_v<ResizePlan<Tpx8u>> &&
              !std::is_copy_constructible_v<ResizePlan<Tpx8u>>);
static_assert(std::is_nothrow_move_assignable_v<WarpAffine<Tpx8u, C3>> &&
              std::is_nothrow_move_assignable_v<FftReal>);

namespace {

constexpr TpxiSize kSmall = {11, 7};
constexpr TpxiSize kMask = {3, 3};

// A tile in the middle of the destination, by plan.tile(src, dst, offset, ...), is that part of the whole.
template <class Whole, class Tile>
void expectTile(const Whole& whole, Tile compute) {
    using Sample = detail::SampleOf<Whole>;
    Image<Sample, Whole::channels> tile(5, 3);
    compute(tile, TpxiPoint{4, 2});
    for (int y = 0; y < 3; ++y)
        EXPECT_EQ(std::memcmp(tile.row(y), whole.row(y + 2) + 4 * Whole::channels,
                              sizeof(Sample) * 5 * Whole::channels),
                  0)
            << "row " << y;
}

// The C protocol for 16u_C3, whose steps are the same in all kinds.
template <class Init, class Run>
Image<Tpx16u, C3> resizeByC(Picture<Tpx16u, C3>& src, TpxInterpolationType interpolation, Tpx32u antialiasing,
                            Init init, Run run) {
    int specBytes = 0;
    int initBytes = 0;
    int bytes = 0;
    check(tpxiResizeGetSize_16u(kSize, kSmall, interpolation, antialiasing, &specBytes, &initBytes));
    std::vector<Tpx8u> memory(static_cast<std::size_t>(specBytes));
    std::vector<Tpx8u> temporary(static_cast<std::size_t>(initBytes) + 1);
    auto* const spec = reinterpret_cast<TpxiResizeSpec*>(memory.data());
    check(init(spec, temporary.data()));
    check(tpxiResizeGetBufferSize_16u(spec, kSmall, 3, &bytes));
    std::vector<Tpx8u> buffer(static_cast<std::size_t>(bytes) + 1);
    Image<Tpx16u, C3> dst(kSmall);
    check(run(src.memory.data(), src.memory.step(), dst.data(), dst.step(), spec, buffer.data()));
    return dst;
}

} // namespace

TEST(CppPlans, Resize) {
    using Plan = ResizePlan<Tpx16u>;
    Picture<Tpx16u, C3> src(1);
    const auto expectPlan = [&](const char* what, Plan made, const Image<Tpx16u, C3>& expected) {
        SCOPED_TRACE(what);
        Plan other = Plan::nearest(kSmall, kSmall);
        other = std::move(made); // a plan points into itself: what moves is its owner
        const Plan plan(std::move(other));
        const Buffer buffer = plan.buffer(3);
        Image<Tpx16u, C3> dst(plan.dstSize());
        EXPECT_EQ(plan(src.memory, dst, buffer), tpxOk);
        EXPECT_TRUE(same(dst, expected));
        expectTile(dst, [&](Image<Tpx16u, C3>& tile, TpxiPoint offset) {
            const TpxiPoint at = plan.srcOffset(offset);
            const auto from =
                View<const Tpx16u, C3>(src.memory.view().pixel(at.x, at.y), src.memory.step(), kSize);
            EXPECT_EQ(plan.tile(from, tile, offset, tpxBorderInMemAll, plan.buffer(3, tile.size())), tpxOk);
        });
        EXPECT_THROW(plan(dst, src.memory, buffer), Error);
    };
#define WITH_BORDER(name)                                                                                   \
    [](auto* src, int srcStep, auto* dst, int dstStep, auto* spec, Tpx8u* buffer) {                         \
        return name(src, srcStep, dst, dstStep, {0, 0}, kSmall, tpxBorderReplicate, nullptr, spec, buffer); \
    }
#define WITHOUT_BORDER(name)                                                        \
    [](auto* src, int srcStep, auto* dst, int dstStep, auto* spec, Tpx8u* buffer) { \
        return name(src, srcStep, dst, dstStep, {0, 0}, kSmall, spec, buffer);      \
    }
    expectPlan("nearest", Plan::nearest(kSize, kSmall),
               resizeByC(
                   src, tpxInterpolationNearest, 0,
                   [](auto* spec, Tpx8u*) { return tpxiResizeNearestInit_16u(kSize, kSmall, spec); },
                   WITHOUT_BORDER(tpxiResizeNearest_16u_C3R)));
    expectPlan("linear", Plan::linear(kSize, kSmall),
               resizeByC(
                   src, tpxInterpolationLinear, 0,
                   [](auto* spec, Tpx8u*) { return tpxiResizeLinearInit_16u(kSize, kSmall, spec); },
                   WITH_BORDER(tpxiResizeLinear_16u_C3R)));
    expectPlan("cubic", Plan::cubic(kSize, kSmall, 0.25F, 0.375F),
               resizeByC(
                   src, tpxInterpolationCubic, 0,
                   [](auto* spec, Tpx8u* temporary) {
                       return tpxiResizeCubicInit_16u(kSize, kSmall, 0.25F, 0.375F, spec, temporary);
                   },
                   WITH_BORDER(tpxiResizeCubic_16u_C3R)));
    expectPlan("Lanczos", Plan::lanczos(kSize, kSmall, 2),
               resizeByC(
                   src, tpxInterpolationLanczos, 0,
                   [](auto* spec, Tpx8u* temporary) {
                       return tpxiResizeLanczosInit_16u(kSize, kSmall, 2, spec, temporary);
                   },
                   WITH_BORDER(tpxiResizeLanczos_16u_C3R)));
    expectPlan("super", Plan::super(kSize, kSmall),
               resizeByC(
                   src, tpxInterpolationSuper, 0,
                   [](auto* spec, Tpx8u*) { return tpxiResizeSuperInit_16u(kSize, kSmall, spec); },
                   WITHOUT_BORDER(tpxiResizeSuper_16u_C3R)));
    expectPlan("antialiasing, linear", Plan::antialiasingLinear(kSize, kSmall),
               resizeByC(
                   src, tpxInterpolationLinear, 1,
                   [](auto* spec, Tpx8u* temporary) {
                       return tpxiResizeAntialiasingLinearInit(kSize, kSmall, spec, temporary);
                   },
                   WITH_BORDER(tpxiResizeAntialiasing_16u_C3R)));
    expectPlan("antialiasing, cubic", Plan::antialiasingCubic(kSize, kSmall, 0.25F, 0.375F),
               resizeByC(
                   src, tpxInterpolationCubic, 1,
                   [](auto* spec, Tpx8u* temporary) {
                       return tpxiResizeAntialiasingCubicInit(kSize, kSmall, 0.25F, 0.375F, spec, temporary);
                   },
                   WITH_BORDER(tpxiResizeAntialiasing_16u_C3R)));
    expectPlan("antialiasing, Lanczos", Plan::antialiasingLanczos(kSize, kSmall, 2),
               resizeByC(
                   src, tpxInterpolationLanczos, 1,
                   [](auto* spec, Tpx8u* temporary) {
                       return tpxiResizeAntialiasingLanczosInit(kSize, kSmall, 2, spec, temporary);
                   },
                   WITH_BORDER(tpxiResizeAntialiasing_16u_C3R)));

    const TpxiRect roi = Plan::linear(kSize, kSmall).srcRoi({0, 0, kSmall.width, kSmall.height});
    EXPECT_EQ(roi.width, kSize.width);
    EXPECT_EQ(roi.height, kSize.height);
    EXPECT_EQ(Plan::lanczos(kSize, kSmall, 2).borderSize().left, 2);
    EXPECT_THROW(Plan::linear({0, 5}, kSmall), Error); // C warns of nothing to be done
    EXPECT_THROW(Plan::super(kSmall, kSize), Error);
}

TEST(CppPlans, ResizeTablesAreWhole) {
#define EXPECT_WHOLE_RESIZE(kind, Operation, stem)                           \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto, auto) {                  \
                  using V = decltype(a);                                     \
                  using Sample = detail::SampleOf<V>;                        \
                  const auto plan = ResizePlan<Sample>::kind(kSize, kSmall); \
                  Image<Sample, V::channels> dst(kSmall);                    \
                  plan(a, dst, plan.buffer(V::channels));                    \
              }),                                                            \
              exported(stem, "R"))
    EXPECT_WHOLE_RESIZE(nearest, ResizeNearest, "tpxiResizeNearest_");
    EXPECT_WHOLE_RESIZE(linear, ResizeLinear, "tpxiResizeLinear_");
    EXPECT_WHOLE_RESIZE(cubic, ResizeCubic, "tpxiResizeCubic_");
    EXPECT_WHOLE_RESIZE(lanczos, ResizeLanczos, "tpxiResizeLanczos_");
    EXPECT_WHOLE_RESIZE(super, ResizeSuper, "tpxiResizeSuper_");
    EXPECT_WHOLE_RESIZE(antialiasingCubic, ResizeAntialiasing, "tpxiResizeAntialiasing_");

    const auto remapped = [](auto a, auto b, auto) {
        using Map = std::conditional_t<std::is_same_v<detail::SampleOf<decltype(a)>, Tpx64f>, Tpx64f, Tpx32f>;
        Image<Map, C1> x(kSize);
        Image<Map, C1> y(kSize);
        for (int row = 0; row < kSize.height; ++row)
            for (int column = 0; column < kSize.width; ++column) {
                x.row(row)[column] = static_cast<Map>(kSize.width - 1 - column);
                y.row(row)[column] = static_cast<Map>(row);
            }
        remap(a, {0, 0, kSize.width, kSize.height}, x, y, b, tpxInterpolationNearest);
        EXPECT_EQ(std::memcmp(a.pixel(3, 4), b.pixel(kSize.width - 4, 4), sizeof(*a.data())), 0);
    };
    EXPECT_EQ(sweep<op::Remap>(remapped), exported("tpxiRemap_", "R"));
}

TEST(CppPlans, Warps) {
    Picture<Tpx8u, C3> src(1);
    const Picture<Tpx8u, C3> untouched(2);
    const Tpx64f affine[2][3] = {{0.8, 0.3, 1}, {-0.2, 0.9, 3}};
    const Tpx64f perspective[3][3] = {{0.9, 0.1, 1}, {0, 0.8, 1}, {0.001, 0.01, 1}};
    for (const TpxInterpolationType kind :
         {tpxInterpolationNearest, tpxInterpolationLinear, tpxInterpolationCubic}) {
        SCOPED_TRACE(kind);
        WarpOptions options;
        options.interpolation = kind;
        options.border = tpxBorderConstant;
        options.borderValue = {10, 20, 30};
        options.cubicB = 1;
        options.cubicC = 0;
        const auto expectPlan = [&](auto made, auto init, auto run) {
            const auto plan = std::move(made);
            std::vector<Tpx8u> memory(1 << 16); // room for any plan of these sizes
            std::vector<Tpx8u> temporary(1 << 16);
            auto* const spec = reinterpret_cast<TpxiWarpSpec*>(memory.data());
            EXPECT_EQ(init(spec, temporary.data()), plan.status());
            Picture<Tpx8u, C3> expected(2);
            Picture<Tpx8u, C3> actual(2);
            const Buffer buffer = plan.buffer();
            EXPECT_EQ(plan(src.memory, actual.memory, buffer),
                      run(src.memory.data(), src.memory.step(), expected.memory.data(), expected.memory.step(),
                          TpxiPoint{0, 0}, kSize, spec, buffer.data()));
            EXPECT_TRUE(same(actual.memory, expected.memory));
            EXPECT_FALSE(same(actual.memory, untouched.memory));
            expectTile(actual.memory, [&](Image<Tpx8u, C3>& tile, TpxiPoint offset) {
                plan.tile(src.memory, tile, offset, plan.buffer(tile.size()));
            });
        };
        const Tpx64f* const value = options.borderValue.data();
        expectPlan(
            WarpAffine<Tpx8u, C3>(kSize, kSize, affine, options),
            [&](TpxiWarpSpec* spec, Tpx8u* temporary) {
                return kind == tpxInterpolationNearest
                           ? tpxiWarpAffineNearestInit(kSize, kSize, tpxDataType8u, affine, 0, 3,
                                                       options.border, value, 0, spec)
                       : kind == tpxInterpolationLinear
                           ? tpxiWarpAffineLinearInit(kSize, kSize, tpxDataType8u, affine, 0, 3, options.border,
                                                      value, 0, spec)
                           : tpxiWarpAffineCubicInit(kSize, kSize, tpxDataType8u, affine, 0, 3, 1, 0,
                                                     options.border, value, 0, spec, temporary);
            },
            kind == tpxInterpolationNearest  ? tpxiWarpAffineNearest_8u_C3R
            : kind == tpxInterpolationLinear ? tpxiWarpAffineLinear_8u_C3R
                                             : tpxiWarpAffineCubic_8u_C3R);
        const auto runPerspective = kind == tpxInterpolationNearest  ? tpxiWarpPerspectiveNearest_8u_C3R
                                    : kind == tpxInterpolationLinear ? tpxiWarpPerspectiveLinear_8u_C3R
                                                                     : tpxiWarpPerspectiveCubic_8u_C3R;
        const TpxiRect all = tpxiWarpGetRectInfinite();
        expectPlan(
            WarpPerspective<Tpx8u, C3>(kSize, kSize, perspective, options),
            [&](TpxiWarpSpec* spec, Tpx8u* temporary) {
                const auto init = [&](auto function, auto... bc) {
                    return function(kSize, all, kSize, tpxDataType8u, perspective, 0, 3, bc..., options.border,
                                    value, 0, spec, temporary);
                };
                return kind == tpxInterpolationNearest  ? init(tpxiWarpPerspectiveNearestInit)
                       : kind == tpxInterpolationLinear ? init(tpxiWarpPerspectiveLinearInit)
                                                        : init(tpxiWarpPerspectiveCubicInit, 1.F, 0.F);
            },
            runPerspective);
        const Tpx64f from[4][2] = {{0, 0}, {18, 0}, {18, 12}, {0, 12}};
        const Tpx64f to[4][2] = {{1, 2}, {17, 0}, {18, 11}, {3, 12}};
        const TpxiRect whole = {0, 0, kSize.width, kSize.height};
        expectPlan(
            WarpQuad<Tpx8u, C3>(kSize, all, from, whole, to, 1, options),
            [&](TpxiWarpSpec* spec, Tpx8u* temporary) {
                const auto init = [&](auto function, auto... bc) {
                    return function(kSize, all, from, whole, to, 1, tpxDataType8u, 3, bc..., options.border,
                                    value, 0, spec, temporary);
                };
                return kind == tpxInterpolationNearest  ? init(tpxiWarpQuadNearestInit)
                       : kind == tpxInterpolationLinear ? init(tpxiWarpQuadLinearInit)
                                                        : init(tpxiWarpQuadCubicInit, 1.F, 0.F);
            },
            runPerspective);
    }
    EXPECT_THROW((WarpAffine<Tpx8u, C3>(kSize, kSize, {{1, 1, 0}, {1, 1, 0}})), Error);
    WarpOptions far;
    far.interpolation = 99;
    EXPECT_THROW((WarpAffine<Tpx8u, C3>(kSize, kSize, affine, far)), Error);
    EXPECT_EQ((WarpAffine<Tpx8u, C3>(kSize, kSize, {{1, 0, 500}, {0, 1, 0}}).status()), tpxWarnNoQuadOverlap);
}

TEST(CppPlans, WarpTablesAreWhole) {
#define EXPECT_WHOLE_WARP(Plan, kind, Operation, stem, ...)                                              \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto) {                                            \
                  using V = decltype(a);                                                                 \
                  WarpOptions options;                                                                   \
                  options.interpolation = kind;                                                          \
                  const Plan<detail::SampleOf<V>, V::channels> plan(kSize, kSize, __VA_ARGS__, options); \
                  plan(a, b, plan.buffer());                                                             \
              }),                                                                                        \
              exported(stem, "R"))
#define EXPECT_WHOLE_WARPS(Plan, ...)                                                                      \
    EXPECT_WHOLE_WARP(Plan, tpxInterpolationNearest, Plan##Nearest, "tpxi" #Plan "Nearest_", __VA_ARGS__); \
    EXPECT_WHOLE_WARP(Plan, tpxInterpolationLinear, Plan##Linear, "tpxi" #Plan "Linear_", __VA_ARGS__);    \
    EXPECT_WHOLE_WARP(Plan, tpxInterpolationCubic, Plan##Cubic, "tpxi" #Plan "Cubic_", __VA_ARGS__)
    EXPECT_WHOLE_WARPS(WarpAffine, {{0.8, 0.3, 1}, {-0.2, 0.9, 3}});
    EXPECT_WHOLE_WARPS(WarpPerspective, {{0.9, 0.1, 1}, {0, 0.8, 1}, {0.001, 0.01, 1}});
}

TEST(CppPlans, Filters) {
#define EXPECT_WHOLE_FILTER(name, Operation, mask)                                    \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto) {                         \
                  name(a, b, mask, tpxBorderReplicate, {}, name##Buffer(a, b, mask)); \
              }),                                                                     \
              exported("tpxi" #Operation "_", "R") - widening(#Operation))
    // Derivatives of 8u are 16s: they have their line below.
    const auto widening = [](const std::string& name) {
        int count = 0;
        for (const std::string exportName : kExports) count += exportName == "tpxi" + name + "_8u16s_C1R";
        return count;
    };
    EXPECT_WHOLE_FILTER(filterBoxBorder, FilterBoxBorder, kMask);
    EXPECT_WHOLE_FILTER(filterMedianBorder, FilterMedianBorder, kMask);
    EXPECT_WHOLE_FILTER(filterLaplaceBorder, FilterLaplaceBorder, 33);
    EXPECT_WHOLE_FILTER(filterHipassBorder, FilterHipassBorder, 55);
    EXPECT_WHOLE_FILTER(filterSharpenBorder, FilterSharpenBorder, 33);
    Picture<Tpx8u, C1> bytes(1);
    Image<Tpx16s, C1> slopes(kSize);
#define EXPECT_WHOLE_DERIVATIVE(name, Operation) \
    EXPECT_WHOLE_FILTER(name, Operation, 33);    \
    EXPECT_EQ(widening(#Operation), 1);          \
    EXPECT_EQ(name(bytes.memory, slopes, 33, tpxBorderMirror, 0, name##Buffer(bytes.memory, slopes, 33)), tpxOk)
    EXPECT_WHOLE_DERIVATIVE(filterSobelVertBorder, FilterSobelVertBorder);
    EXPECT_WHOLE_DERIVATIVE(filterSobelHorizBorder, FilterSobelHorizBorder);
    EXPECT_WHOLE_DERIVATIVE(filterSobelNegVertBorder, FilterSobelNegVertBorder);
    EXPECT_WHOLE_DERIVATIVE(filterSobelVertSecondBorder, FilterSobelVertSecondBorder);
    EXPECT_WHOLE_DERIVATIVE(filterSobelHorizSecondBorder, FilterSobelHorizSecondBorder);
    EXPECT_WHOLE_DERIVATIVE(filterScharrVertMaskBorder, FilterScharrVertMaskBorder);
    EXPECT_WHOLE_DERIVATIVE(filterScharrHorizMaskBorder, FilterScharrHorizMaskBorder);
    EXPECT_WHOLE_DERIVATIVE(filterPrewittVertBorder, FilterPrewittVertBorder);
    EXPECT_WHOLE_DERIVATIVE(filterPrewittHorizBorder, FilterPrewittHorizBorder);
    EXPECT_WHOLE_DERIVATIVE(filterRobertsUpBorder, FilterRobertsUpBorder);
    EXPECT_WHOLE_DERIVATIVE(filterRobertsDownBorder, FilterRobertsDownBorder);

    const auto around = [](auto a) { return a.sub(2, 2, kSize.width - 4, kSize.height - 4); };
    EXPECT_EQ(sweep<op::FilterMedianCross>(
                  [&](auto a, auto b, auto) { filterMedianCross(around(a), around(b), 55); }),
              exported("tpxiFilterMedianCross_", "R"));
    EXPECT_EQ(sweep<op::FilterMedianColor>(
                  [&](auto a, auto b, auto) { filterMedianColor(around(a), around(b), 55); }),
              exported("tpxiFilterMedianColor_", "R"));
    EXPECT_EQ(filterMedianWeightedCenter3x3(around(bytes.view()), around(Picture<Tpx8u, C1>(2).view()), 2),
              tpxWarnEvenWeight);

    const Tpx32f weights[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    EXPECT_EQ(sweep<op::FilterBorder>([&](auto a, auto b, auto) {
                  using V = decltype(a);
                  FilterKernel<detail::SampleOf<V>, V::channels> kernel(weights, kMask, kSize);
                  kernel(a, b, tpxBorderReplicate, {}, kernel.buffer());
              }),
              exported("tpxiFilterBorder_", "R"));

    // Values: a constant border of three colours, and a kernel of integers with its offset.
    Image<Tpx8u, C3> flat(4, 4);
    Image<Tpx8u, C3> result(4, 4);
    set({0, 0, 0}, flat);
    filterBoxBorder(flat, result, {3, 3}, tpxBorderConstant, {9, 90, 180},
                    filterBoxBorderBuffer(flat, result, {3, 3}));
    EXPECT_EQ(result.row(0)[0], 5); // five of the nine pixels lie outside
    EXPECT_EQ(result.row(0)[2], 100);
    const Tpx16s box[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    FilterKernel<Tpx8u, C3> kernel(box, {3, 3}, 9, flat.size());
    EXPECT_EQ(kernel.status(), tpxOk);
    kernel.setMode(tpxHintFast, 7);
    kernel(flat, result, tpxBorderReplicate, {}, kernel.buffer());
    EXPECT_EQ(result.row(2)[7], 7);
    EXPECT_EQ((FilterKernel<Tpx16u, C1>(box, {3, 3}, 9, kSize, tpxRoundExactFlag).status()),
              tpxWarnExactIgnored);
    EXPECT_THROW((FilterKernel<Tpx8u, C3>(box, {3, 3}, 0, kSize)), Error);
}

namespace {

// There and back, from image to image and in place; a spectrum's first number is the sum of the pixels.
template <class Plan, class V>
void expectThereAndBack(Plan made, V a, V b) {
    const Plan plan(std::move(made));
    const Buffer buffer = plan.buffer();
    const auto first = [](const auto* pixel) { return *reinterpret_cast<const Tpx32f*>(pixel); };
    Tpx64f sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) sum += first(a.pixel(x, y));
    plan.forward(a, b, buffer);
    EXPECT_NEAR(first(b.data()), sum, 1e-2);
    plan.inverse(b, buffer);
    for (int x = 0; x < a.width(); ++x) EXPECT_NEAR(first(b.pixel(x, 3)), first(a.pixel(x, 3)), 1e-3);
    plan.forward(a, buffer);
    plan.inverse(a, a, buffer);
    for (int x = 0; x < a.width(); ++x) EXPECT_NEAR(first(b.pixel(x, 3)), first(a.pixel(x, 3)), 1e-3);
    EXPECT_THROW(plan.forward(a.sub(0, 0, 4, 4), b, buffer), Error);
}

} // namespace

TEST(CppPlans, Fourier) {
#define EXPECT_WHOLE_FOURIER(plan, Operation, forward, inverse)                  \
    EXPECT_EQ(sweep<op::Operation::Forward>([](auto a, auto b, auto) {           \
                  const TpxiSize size = plan.size();                             \
                  expectThereAndBack(plan, a.sub(0, 0, size.width, size.height), \
                                     b.sub(0, 0, size.width, size.height));      \
              }),                                                                \
              exported("tpxi" forward "_", "R"));                                \
    EXPECT_EQ(exported("tpxi" inverse "_", "R"), exported("tpxi" forward "_", "R"))
    EXPECT_WHOLE_FOURIER(FftReal(4, 3), FftReal, "FFTFwd_RToPack", "FFTInv_PackToR");
    EXPECT_WHOLE_FOURIER(FftComplex(4, 3), FftComplex, "FFTFwd_CToC", "FFTInv_CToC");
    EXPECT_WHOLE_FOURIER(DftReal({15, 7}), DftReal, "DFTFwd_RToPack", "DFTInv_PackToR");
    EXPECT_WHOLE_FOURIER(DftComplex({15, 7}), DftComplex, "DFTFwd_CToC", "DFTInv_CToC");
    // The division is where the flag says.
    Image<Tpx32f, C1> image(16, 8);
    set(2, image);
    const FftReal plan(4, 3, tpxFftDivForward);
    plan.forward(image, plan.buffer());
    EXPECT_FLOAT_EQ(image.row(0)[0], 2);
    EXPECT_THROW(FftReal(3, 40), Error);
    EXPECT_THROW(DftReal({0, 4}), Error);
}

TEST(CppPlans, HistogramsAndTables) {
    EXPECT_EQ(sweep<op::Histogram>([](auto a, auto, auto) {
                  using V = decltype(a);
                  constexpr int channels = V::channels;
                  using Sample = detail::SampleOf<V>;
                  std::array<Tpx32f, channels> lower{};
                  std::array<Tpx32f, channels> upper{};
                  std::array<int, channels> levels{};
                  std::array<Tpx32u, channels * 4> bins{};
                  std::array<Tpx32u*, channels> counters{};
                  const Tpx32f edges[5] = {0, 16, 32, 48, 65};
                  std::array<const Tpx32f*, channels> given{};
                  for (std::size_t c = 0; c < channels; ++c) {
                      lower[c] = 0;
                      upper[c] = 128;
                      levels[c] = 5;
                      counters[c] = &bins[4 * c];
                      given[c] = edges;
                  }
                  const auto total = [&](const Histogram<Sample, channels>& histogram) {
                      bins.fill(0);
                      histogram(a, counters, histogram.buffer());
                      return bins[0] + bins[1] + bins[2] + bins[3];
                  };
                  EXPECT_EQ(total(Histogram<Sample, channels>(kSize, lower, upper, levels)), 19U * 13U);
                  EXPECT_EQ(total(Histogram<Sample, channels>(kSize, given, levels)), 19U * 13U);
                  EXPECT_GT(bins[3], 0U); // the samples are 1 to 64
              }),
              exported("tpxiHistogram_", "R"));

    const auto invert = [](auto a, auto b, auto inPlace) {
        using V = decltype(a);
        constexpr int layout = detail::layoutOf<V>;
        using Table = Lut<detail::SampleOf<V>, layout>;
        const typename Table::Value levels[2] = {0, 256};
        const typename Table::Value values[2] = {256, 0};
        typename Table::template Each<const typename Table::Value*> x{};
        typename Table::template Each<const typename Table::Value*> y{};
        typename Table::template Each<int> n{};
        x.fill(levels);
        y.fill(values);
        n.fill(2);
        const Table table(tpxInterpolationLinear, y, x, n);
        const auto before = *a.pixel(2, 3);
        if constexpr (inPlace)
            table(a);
        else
            table(a, b);
        const auto after = inPlace ? *a.pixel(2, 3) : *b.pixel(2, 3);
        EXPECT_NEAR(static_cast<double>(after), 256 - static_cast<double>(before), 1.01);
    };
    EXPECT_EQ(sweep<op::Lut>([&](auto a, auto b, auto) { invert(a, b, std::false_type{}); }),
              exported("tpxiLUT_", "R"));
    EXPECT_EQ(sweep<op::Lut::InPlace>([&](auto a, auto b, auto) { invert(a, b, std::true_type{}); }),
              exported("tpxiLUT_", "IR"));

    Picture<Tpx8u, C3> image(1);
    Tpx8u table[256];
    for (int i = 0; i < 256; ++i) table[i] = static_cast<Tpx8u>(255 - i);
    const Tpx8u before = image.memory.row(4)[7];
    lutPalette(image.memory, image.memory, {table, table, table}, 8);
    EXPECT_EQ(image.memory.row(4)[7], 255 - before);
}
