// SPDX-License-Identifier: Apache-2.0
// The functions of tpxi.hpp on images: their tables hold what the headers declare, every entry can be called,
// and a call gives what the C function gives.
#include "tests/cpp/sweep.h"

using namespace tpxi;
using namespace tpxi::test;

// Each line: all that the headers declare under a name is in the table, and each entry is called.
TEST(CppCalls, TablesAreWhole) {
    EXPECT_EQ(sweep<op::Abs>([](auto a, auto b, auto) { abs(a, b); }), exported("tpxiAbs_", "R"));
    EXPECT_EQ(sweep<op::Abs::InPlace>([](auto a, auto, auto) { abs(a); }), exported("tpxiAbs_", "IR"));

#define EXPECT_WHOLE_UNARY(name, Operation, stem)                    \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto) {        \
                  if constexpr (isFloat<decltype(a)>)                \
                      name(a, b);                                    \
                  else                                               \
                      name(a, b, 2);                                 \
              }),                                                    \
              exported(stem, "R") + exported(stem, "RSfs"));         \
    EXPECT_EQ(sweep<op::Operation::InPlace>([](auto a, auto, auto) { \
                  if constexpr (isFloat<decltype(a)>)                \
                      name(a);                                       \
                  else                                               \
                      name(a, 2);                                    \
              }),                                                    \
              exported(stem, "IR") + exported(stem, "IRSfs"));
    EXPECT_WHOLE_UNARY(sqr, Sqr, "tpxiSqr_")
    EXPECT_WHOLE_UNARY(sqrt, Sqrt, "tpxiSqrt_")
    EXPECT_WHOLE_UNARY(ln, Ln, "tpxiLn_")
    EXPECT_WHOLE_UNARY(exp, Exp, "tpxiExp_")

#define EXPECT_WHOLE_BINARY(name, Operation, stem)                     \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto c) {        \
                  if constexpr (isFloat<decltype(a)>)                  \
                      name(a, b, c);                                   \
                  else                                                 \
                      name(a, b, c, 1);                                \
              }),                                                      \
              exported(stem, "R") + exported(stem, "RSfs"));           \
    EXPECT_EQ(sweep<op::Operation::InPlace>([](auto a, auto b, auto) { \
                  if constexpr (isFloat<decltype(a)>)                  \
                      name(a, b);                                      \
                  else                                                 \
                      name(a, b, 1);                                   \
              }),                                                      \
              exported(stem, "IR") + exported(stem, "IRSfs"));
    EXPECT_WHOLE_BINARY(add, Add, "tpxiAdd_")
    EXPECT_WHOLE_BINARY(sub, Sub, "tpxiSub_")
    EXPECT_WHOLE_BINARY(mul, Mul, "tpxiMul_")

    EXPECT_EQ(sweep<op::Copy>([](auto a, auto b, auto) { copy(a, b); }), exported("tpxiCopy_", "R"));
    Picture<Tpx8u, C1> mask(9);
    EXPECT_EQ(sweep<op::CopyMasked>([&](auto a, auto b, auto) { copy(a, b, mask.view()); }),
              exported("tpxiCopy_", "MR"));
    EXPECT_EQ(sweep<op::CopyChannel>([](auto a, auto b, auto) { copyChannel(a, 1, b, 2); }),
              exported("tpxiCopy_", "CR"));
    EXPECT_EQ(sweep<op::Set>([](auto a, auto, auto) { set({}, a); }), exported("tpxiSet_", "R"));
    EXPECT_EQ(sweep<op::SetMasked>([&](auto a, auto, auto) { set({}, a, mask.view()); }),
              exported("tpxiSet_", "MR"));
    EXPECT_EQ(sweep<op::SwapChannels>([](auto a, auto b, auto) {
                  swapChannels(a, b, {2, 1, 0});
              }),
              exported("tpxiSwapChannels_", "R"));
    EXPECT_EQ(sweep<op::SwapChannels::InPlace>([](auto a, auto, auto) {
                  swapChannels(a, {2, 1, 0});
              }),
              exported("tpxiSwapChannels_", "IR"));

    const auto inner = [](auto a) { return a.sub(0, 0, 5, 4); };
    EXPECT_EQ(sweep<op::CopyConstBorder>([&](auto a, auto b, auto) { copyConstBorder(inner(a), b, 2, 3, {}); }),
              exported("tpxiCopyConstBorder_", "R"));
#define EXPECT_WHOLE_BORDER(name, Operation, stem)                                          \
    EXPECT_EQ(sweep<op::Operation>([&](auto a, auto b, auto) { name(inner(a), b, 2, 3); }), \
              exported(stem, "R"));                                                         \
    EXPECT_EQ(sweep<op::Operation::InPlace>([](auto a, auto, auto) {                        \
                  name(a, TpxiRect{3, 2, 5, 4});                                            \
              }),                                                                           \
              exported(stem, "IR"));
    EXPECT_WHOLE_BORDER(copyReplicateBorder, CopyReplicateBorder, "tpxiCopyReplicateBorder_")
    EXPECT_WHOLE_BORDER(copyMirrorBorder, CopyMirrorBorder, "tpxiCopyMirrorBorder_")
    EXPECT_WHOLE_BORDER(copyWrapBorder, CopyWrapBorder, "tpxiCopyWrapBorder_")

#define EXPECT_WHOLE_THRESHOLD(name, Operation, stem, ...)                                     \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto) { name(a, b, __VA_ARGS__); }),     \
              exported(stem, "R"));                                                            \
    EXPECT_EQ(sweep<op::Operation::InPlace>([](auto a, auto, auto) { name(a, __VA_ARGS__); }), \
              exported(stem, "IR"));
    EXPECT_WHOLE_THRESHOLD(threshold, Threshold, "tpxiThreshold_", {}, tpxCmpLess)
    EXPECT_WHOLE_THRESHOLD(thresholdGT, ThresholdGT, "tpxiThreshold_GT_", {})
    EXPECT_WHOLE_THRESHOLD(thresholdLT, ThresholdLT, "tpxiThreshold_LT_", {})
    EXPECT_WHOLE_THRESHOLD(thresholdVal, ThresholdVal, "tpxiThreshold_Val_", {}, {}, tpxCmpLess)
    EXPECT_WHOLE_THRESHOLD(thresholdGTVal, ThresholdGTVal, "tpxiThreshold_GTVal_", {}, {})
    EXPECT_WHOLE_THRESHOLD(thresholdLTVal, ThresholdLTVal, "tpxiThreshold_LTVal_", {}, {})
    EXPECT_WHOLE_THRESHOLD(thresholdLTValGTVal, ThresholdLTValGTVal, "tpxiThreshold_LTValGTVal_", {}, {}, {},
                           {})
}

TEST(CppCalls, TablesOfMeasurementsAreWhole) {
#define EXPECT_WHOLE(name, Operation, stem) \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto, auto) { (void)name(a); }), exported(stem, "R"))
    EXPECT_WHOLE(sum, Sum, "tpxiSum_");
    EXPECT_WHOLE(mean, Mean, "tpxiMean_");
    EXPECT_WHOLE(min, Min, "tpxiMin_");
    EXPECT_WHOLE(max, Max, "tpxiMax_");
    EXPECT_WHOLE(minMax, MinMax, "tpxiMinMax_");
    EXPECT_WHOLE(minIndx, MinIndx, "tpxiMinIndx_");
    EXPECT_WHOLE(maxIndx, MaxIndx, "tpxiMaxIndx_");
    EXPECT_WHOLE(normInf, NormInf, "tpxiNorm_Inf_");
    EXPECT_WHOLE(normL1, NormL1, "tpxiNorm_L1_");
    EXPECT_WHOLE(normL2, NormL2, "tpxiNorm_L2_");
#undef EXPECT_WHOLE
#define EXPECT_WHOLE(name, Operation, stem) \
    EXPECT_EQ(sweep<op::Operation>([](auto a, auto b, auto) { (void)name(a, b); }), exported(stem, "R"))
    EXPECT_WHOLE(normDiffInf, NormDiffInf, "tpxiNormDiff_Inf_");
    EXPECT_WHOLE(normDiffL1, NormDiffL1, "tpxiNormDiff_L1_");
    EXPECT_WHOLE(normDiffL2, NormDiffL2, "tpxiNormDiff_L2_");
    EXPECT_WHOLE(normRelInf, NormRelInf, "tpxiNormRel_Inf_");
    EXPECT_WHOLE(normRelL1, NormRelL1, "tpxiNormRel_L1_");
    EXPECT_WHOLE(normRelL2, NormRelL2, "tpxiNormRel_L2_");
    EXPECT_WHOLE(dotProd, DotProd, "tpxiDotProd_");
#undef EXPECT_WHOLE
    EXPECT_EQ(sweep<op::MinEvery>([](auto a, auto b, auto c) { minEvery(a, b, c); }),
              exported("tpxiMinEvery_", "R"));
    EXPECT_EQ(sweep<op::MinEvery::InPlace>([](auto a, auto b, auto) { minEvery(a, b); }),
              exported("tpxiMinEvery_", "IR"));
    EXPECT_EQ(sweep<op::MaxEvery>([](auto a, auto b, auto c) { maxEvery(a, b, c); }),
              exported("tpxiMaxEvery_", "R"));
    EXPECT_EQ(sweep<op::MaxEvery::InPlace>([](auto a, auto b, auto) { maxEvery(a, b); }),
              exported("tpxiMaxEvery_", "IR"));
}

namespace {

// The conversions between all pairs of types.
template <class Operation, int layout, class From, class To, class Body>
void convertOne(int& count, Body body) {
    if constexpr (!std::is_same_v<From, To> && offers<Operation, Key<From, layout, To, layout>>) {
        Picture<From, layout> from(1);
        Picture<To, layout> to(2);
        EXPECT_NO_THROW(body(from.view(), to.view()));
        ++count;
    }
}
template <class Operation, class From, class Body, class... To>
void convertFrom(int& count, Body body, Samples<To...>) {
    (convertOne<Operation, C1, From, To>(count, body), ...);
    (convertOne<Operation, C3, From, To>(count, body), ...);
    (convertOne<Operation, C4, From, To>(count, body), ...);
    (convertOne<Operation, AC4, From, To>(count, body), ...);
}
template <class Operation, class Body, class... From>
int convertAll(Body body, Samples<From...>) {
    int count = 0;
    (convertFrom<Operation, From>(count, body, All{}), ...);
    return count;
}

} // namespace

TEST(CppCalls, ConversionsAreWhole) {
    const int plain = convertAll<op::Convert>([](auto a, auto b) { convert(a, b); }, All{});
    const int rounded =
        convertAll<op::ConvertRounded>([](auto a, auto b) { convert(a, b, tpxRoundNearestEven); }, All{});
    EXPECT_EQ(plain + rounded, exported("tpxiConvert_", "R") + exported("tpxiConvert_", "Rs"));
    EXPECT_EQ(
        convertAll<op::ConvertScaled>([](auto a, auto b) { convert(a, b, tpxRoundNearestEven, 1); }, All{}),
        exported("tpxiConvert_", "RSfs"));
}

// One of each shape beside its C function, in a region of larger images, whose surroundings stay.
TEST(CppCalls, AreTheCallsOfC) {
    Picture<Tpx8u, C3> source(5);
    Picture<Tpx8u, C3> actual(6);
    Picture<Tpx8u, C3> expected(6);
    const View<const Tpx8u, C3> src = source.memory.sub(2, 1, 14, 9);
    const View<Tpx8u, C3> to = actual.memory.sub(1, 3, 14, 9);
    const View<Tpx8u, C3> c = expected.memory.sub(1, 3, 14, 9);
    const TpxiSize size = src.size();
    const auto expectSame = [&](const char* what) {
        EXPECT_TRUE(same(actual.memory, expected.memory)) << what;
    };

    EXPECT_EQ(sqr(src, to, 3), tpxiSqr_8u_C3RSfs(src.data(), src.step(), c.data(), c.step(), size, 3));
    expectSame("sqr");
    EXPECT_EQ(sub(src, to, 1), tpxiSub_8u_C3IRSfs(src.data(), src.step(), c.data(), c.step(), size, 1));
    expectSame("sub in place");
    EXPECT_EQ(sub(src, to, to, 0),
              tpxiSub_8u_C3RSfs(src.data(), src.step(), c.data(), c.step(), c.data(), c.step(), size, 0));
    expectSame("sub");
    const Tpx8u low[3] = {10, 20, 30};
    const Tpx8u high[3] = {40, 50, 60};
    EXPECT_EQ(thresholdLTVal(src, to, {10, 20, 30}, {40, 50, 60}),
              tpxiThreshold_LTVal_8u_C3R(src.data(), src.step(), c.data(), c.step(), size, low, high));
    expectSame("thresholdLTVal");
    const int order[3] = {2, 0, 1};
    EXPECT_EQ(swapChannels(src, to, {2, 0, 1}),
              tpxiSwapChannels_8u_C3R(src.data(), src.step(), c.data(), c.step(), size, order));
    expectSame("swapChannels");
    EXPECT_EQ(copyChannel(src, 2, to, 0),
              tpxiCopy_8u_C3CR(src.data() + 2, src.step(), c.data(), c.step(), size));
    expectSame("copyChannel");
    EXPECT_EQ(set({1, 2, 3}, to.sub(1, 1, 3, 2)), tpxOk);
    const Tpx8u value[3] = {1, 2, 3};
    tpxiSet_8u_C3R(value, c.sub(1, 1, 3, 2).data(), c.step(), {3, 2});
    expectSame("set");

    Tpx64f sums[3];
    tpxiSum_8u_C3R(src.data(), src.step(), size, sums);
    EXPECT_EQ(sum(src), (std::array<Tpx64f, 3>{sums[0], sums[1], sums[2]}));
    Tpx8u extremes[3];
    int x[3];
    int y[3];
    tpxiMaxIndx_8u_C3R(src.data(), src.step(), size, extremes, x, y);
    const auto largest = maxIndx(src);
    EXPECT_EQ(largest.value, (std::array<Tpx8u, 3>{extremes[0], extremes[1], extremes[2]}));
    EXPECT_EQ(largest.x, (std::array<int, 3>{x[0], x[1], x[2]}));
    EXPECT_EQ(largest.y, (std::array<int, 3>{y[0], y[1], y[2]}));
}

TEST(CppCalls, LayoutsOfCopies) {
    Picture<Tpx16u, C4> four(1);
    Picture<Tpx16u, C3> three(2);
    const Picture<Tpx16u, C4> before(3);
    Picture<Tpx16u, C4> target(3);
    // Alpha stays in a destination that keeps it, whatever the source.
    copy(four.memory, target.memory.keepingAlpha());
    EXPECT_EQ(target.memory.row(3)[4 * 5 + 2], four.memory.row(3)[4 * 5 + 2]);
    EXPECT_EQ(target.memory.row(3)[4 * 5 + 3], before.memory.row(3)[4 * 5 + 3]);
    copy(three.memory, target.memory.keepingAlpha());
    EXPECT_EQ(target.memory.row(3)[4 * 5 + 2], three.memory.row(3)[3 * 5 + 2]);
    EXPECT_EQ(target.memory.row(3)[4 * 5 + 3], before.memory.row(3)[4 * 5 + 3]);
    copy(four.memory, three.memory);
    EXPECT_EQ(three.memory.row(3)[3 * 5 + 1], four.memory.row(3)[4 * 5 + 1]);
    copy(four.memory, target.memory);
    EXPECT_TRUE(same(four.memory, target.memory));

    // Planes, and back.
    Picture<Tpx16u, C1> planes[3] = {Picture<Tpx16u, C1>(4), Picture<Tpx16u, C1>(5), Picture<Tpx16u, C1>(6)};
    const std::array<View<Tpx16u, C1>, 3> views = {planes[0].view(), planes[1].view(), planes[2].view()};
    copy(three.memory, views);
    EXPECT_EQ(planes[2].memory.row(7)[11], three.memory.row(7)[3 * 11 + 2]);
    Picture<Tpx16u, C3> joined(7);
    copy(views, joined.memory);
    EXPECT_TRUE(same(joined.memory, three.memory));
    copyChannel(planes[0].memory, 0, joined.memory, 2);
    EXPECT_EQ(joined.memory.row(7)[3 * 11 + 2], planes[0].memory.row(7)[11]);
    EXPECT_THROW(copyChannel(joined.memory, 3, planes[0].memory, 0), Error);
    EXPECT_THROW(copyChannel(joined.memory, -1, planes[0].memory, 0), Error);

    Picture<Tpx8u, C3> dark(8);
    Picture<Tpx8u, C4> opaque(9);
    swapChannels(dark.memory, opaque.memory, {2, 1, 0, 3}, 255);
    EXPECT_EQ(opaque.memory.row(2)[4 * 6], dark.memory.row(2)[3 * 6 + 2]);
    EXPECT_EQ(opaque.memory.row(2)[4 * 6 + 3], 255);
}

TEST(CppCalls, WarningsAreReturnedAndErrorsThrown) {
    Image<Tpx16s, C1> image(5, 4);
    set(-4, image);
    EXPECT_EQ(sqrt(image, 0), tpxWarnSqrtNegArg);
    EXPECT_EQ(ln(image, 0), tpxWarnLnZeroArg);
    Image<Tpx16s, C1> larger(6, 4);
    EXPECT_THROW(copy(image, larger), Error);
    EXPECT_THROW(copy(larger, image), Error);
    EXPECT_THROW(add(larger, image, image, 0), Error);
    EXPECT_THROW(add(image, larger, image, 0), Error);
    EXPECT_THROW(dotProd(image, larger), Error);
    EXPECT_THROW(set(1, View<Tpx16s, C1>()), Error);
    try {
        thresholdLTValGTVal(image, 5, 0, 4, 0);
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(),
                     "thresholdLTValGTVal: tpxErrThresholdBounds (-18): upper threshold below lower threshold");
    }
}

namespace {

// What the compiler refuses: whether the expression compiles for these types.
template <class... T>
using Sqr3 = decltype(sqr(std::declval<T>()..., 0));
template <class... T>
using Sqr2 = decltype(sqr(std::declval<T>()...));
template <template <class...> class Expression, class Void, class... T>
constexpr bool kCompiles = false;
template <template <class...> class Expression, class... T>
constexpr bool kCompiles<Expression, std::void_t<Expression<T...>>, T...> = true;
template <template <class...> class Expression, class... T>
constexpr bool compiles = kCompiles<Expression, void, T...>;

using Bytes = Image<Tpx8u, C3>&;
using Reals = Image<Tpx32f, C3>&;
static_assert(compiles<Sqr3, Bytes, Bytes> && compiles<Sqr2, Reals, Reals> && compiles<Sqr2, Reals>);
static_assert(!compiles<Sqr2, Bytes, Bytes> && !compiles<Sqr2, Bytes>, "integers take a scale factor");
static_assert(!compiles<Sqr3, Reals, Reals> && !compiles<Sqr3, Reals>, "floats take none");
static_assert(!compiles<Sqr3, int*, Bytes> && !compiles<Sqr2, int>, "images, and nothing else");

static_assert(offers<op::Abs, Key<Tpx16s, C3>> && !offers<op::Abs, Key<Tpx8u, C3>>);
static_assert(offers<op::Sqrt::InPlace, Key<Tpx32f, C4>> && !offers<op::Sqrt, Key<Tpx32f, C4>>);
static_assert(offers<op::Copy, Key<Tpx8u, C4, Tpx8u, C3>> && !offers<op::Copy, Key<Tpx8u, C1, Tpx8u, C3>>);
static_assert(offers<op::Convert, Key<Tpx8u, C1, Tpx32f, C1>> &&
              !offers<op::Convert, Key<Tpx32f, C1, Tpx8u, C1>>);

} // namespace
