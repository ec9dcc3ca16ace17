// SPDX-License-Identifier: Apache-2.0
// Sizing, initialising and querying resize plans through the exported names, and the weights in their tables.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "geometry/resize/plan.h"
#include "models/resize.h"
#include "tests/support/checks.h"
#include "tests/support/guarded.h"
#include "tests/support/resize_plan.h"

namespace {

using namespace tpx::model;
using namespace tpx::test;

constexpr auto kNearest = tpxInterpolationNearest, kLinear = tpxInterpolationLinear,
               kCubic = tpxInterpolationCubic, kSuper = tpxInterpolationSuper,
               kLanczos = tpxInterpolationLanczos;

TpxiSizeL wide(TpxiSize s) { return {s.width, s.height}; }

// A plan of any kind, between unreadable pages and with no byte to spare.
class AnyPlan {
 public:
    AnyPlan(TpxInterpolationType kind, TpxiSize src, TpxiSize dst, bool longForm = false, Tpx32u lobes = 3,
            Tpx32f b = 0, Tpx32f c = 0.5f, size_t misalign = 1) {
        TpxSizeL bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(wide(src), wide(dst), tpxDataType32f, kind, 0, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes), misalign);
        GuardedBytes temporary{size_t(init), misalign};
        const auto type = tpxDataType32f;
        const TpxStatus status =
            longForm
                ? kind == kNearest  ? tpxiResizeNearestInit_L(wide(src), wide(dst), type, spec())
                  : kind == kLinear ? tpxiResizeLinearInit_L(wide(src), wide(dst), type, spec())
                  : kind == kCubic
                      ? tpxiResizeCubicInit_L(wide(src), wide(dst), type, b, c, spec(), temporary.data())
                  : kind == kSuper
                      ? tpxiResizeSuperInit_L(wide(src), wide(dst), type, spec())
                      : tpxiResizeLanczosInit_L(wide(src), wide(dst), type, lobes, spec(), temporary.data())
            : kind == kNearest ? tpxiResizeNearestInit_32f(src, dst, spec())
            : kind == kLinear  ? tpxiResizeLinearInit_32f(src, dst, spec())
            : kind == kCubic   ? tpxiResizeCubicInit_32f(src, dst, b, c, spec(), temporary.data())
            : kind == kSuper   ? tpxiResizeSuperInit_32f(src, dst, spec())
                               : tpxiResizeLanczosInit_32f(src, dst, lobes, spec(), temporary.data());
        EXPECT_EQ(tpxOk, status);
    }
    TpxiResizeSpec* spec() const { return reinterpret_cast<TpxiResizeSpec*>(memory_->data()); }
    const TpxiResizeSpec& record() const { return *tpx::planIn(spec()); }

 private:
    std::unique_ptr<GuardedBytes> memory_;
};

// ---- Sizes of plans -----------------------------------------------------------------------------------

TEST(ResizePlan, SizesOfPlansAndInitialisationBuffers) {
    struct Case {
        TpxiSize src, dst;
        TpxDataType type;
        TpxInterpolationType kind;
        Tpx32u antialiasing;
        TpxStatus status;
        int spec, init;
    };
    const auto f = tpxDataType32f, d = tpxDataType64f;
    const TpxiSize vga{640, 480}, half{320, 240}, odd{30, 45};
    for (const Case& c : {
             Case{vga, half, f, kNearest, 0, tpxOk, 2600, 64},
             {{1, 1}, {1, 1}, f, kNearest, 0, tpxOk, 552, 64},
             {vga, half, f, kLinear, 0, tpxOk, 4904, 64},
             {vga, half, d, kLinear, 0, tpxOk, 7168, 64},
             {vga, half, f, kCubic, 0, tpxOk, 12328, 2368},
             {vga, half, f, kLanczos, 0, tpxOk, 17320, 2368},
             {{5, 5}, half, f, kLanczos, 0, tpxOk, 17320, 2368},
             {vga, half, f, kSuper, 0, tpxOk, 568, 64},
             {{50, 60}, odd, f, kSuper, 0, tpxOk, 612, 64}, // 5 to 3 in 9 entries, 4 to 3 in 6
             {{30, 45}, odd, f, kSuper, 0, tpxOk, 560, 64},
             {vga, half, f, kLinear, 1, tpxOk, 20520, 4672},
             {{100, 100}, {150, 120}, f, kLinear, 1, tpxOk, 4232, 2368},
             {{100, 100}, {30, 40}, f, kCubic, 1, tpxOk, 7240, 832},
             {{100, 100}, {150, 120}, f, kLanczos, 7, tpxOk, 7944, 2368},
             {vga, half, f, kNearest, 1, tpxWarnNoAntialiasing, 2600, 64},
             {vga, half, f, kSuper, 1, tpxWarnNoAntialiasing, 568, 64},
             {vga, half, f, 0, 0, tpxErrUnsupportedMode, -1, -1},
             {vga, half, f, 0, 1, tpxErrUnsupportedMode, -1, -1},
             {{1, 2}, half, f, kLinear, 0, tpxErrSize, -1, -1},
             {{3, 9}, half, f, kCubic, 0, tpxErrSize, -1, -1},
             {{9, 3}, half, f, kLanczos, 1, tpxErrSize, -1, -1},
             {{640, 239}, half, f, kSuper, 0, tpxErrSize, -1, -1},
             {{2, 1}, half, d, kLinear, 0, tpxErrSize, -1, -1},
         }) {
        int spec = -1, init = -1;
        const auto call = c.type == d ? tpxiResizeGetSize_64f : tpxiResizeGetSize_8u;
        EXPECT_EQ(c.status, call(c.src, c.dst, c.kind, c.antialiasing, &spec, &init));
        EXPECT_EQ(c.spec, spec) << "kind " << c.kind << ", antialiasing " << c.antialiasing;
        EXPECT_EQ(c.init, init);
        TpxSizeL specL = -1, initL = -1;
        EXPECT_EQ(c.status, tpxiResizeGetSize_L(wide(c.src), wide(c.dst), c.type, c.kind, c.antialiasing,
                                                &specL, &initL));
        EXPECT_EQ(c.spec, specL);
        EXPECT_EQ(c.init, initL);
    }
    int spec = -1, init = -1;
    EXPECT_EQ(tpxErrUnsupportedMode, tpxiResizeGetSize_64f(vga, half, kLinear, 1, &spec, &init));
    EXPECT_EQ(tpxErrUnsupportedMode, tpxiResizeGetSize_64f(vga, half, kCubic, 0, &spec, &init));
    EXPECT_EQ(tpxErrUnsupportedMode, tpxiResizeGetSize_64f({1, 1}, half, kNearest, 0, &spec, &init));
    EXPECT_EQ(-1, spec);
}

// Sizes are formulas that callers know; what initialisers lay out must fit below, at whatever remainders
// lengths leave.
TEST(ResizePlan, TablesFitIntoTheSizes) {
    constexpr TpxSizeL kLongest = 0x1fffffff;
    const auto check = [&](TpxiSizeL dst, TpxDataType type, TpxInterpolationType kind, bool antialiasing) {
        const TpxiSizeL src = kind == kSuper ? TpxiSizeL{dst.width + dst.height % 7, dst.height * 3 + 1}
                              : antialiasing ? TpxiSizeL{dst.width * 49, dst.height + dst.width + 4}
                                             : TpxiSizeL{1000, 6};
        if (src.width > kLongest || src.height > kLongest) return;
        TpxSizeL bytes = 0, init = 0;
        ASSERT_EQ(tpxOk, tpxiResizeGetSize_L(src, dst, type, kind, antialiasing, &bytes, &init));
        TpxiResizeSpec plan = {};
        plan.interpolation = kind;
        plan.antialiasing = antialiasing;
        plan.axisX = tpx::axisOf(src.width, dst.width);
        plan.axisY = tpx::axisOf(src.height, dst.height);
        const int lobes = kind == kCubic ? 2 : kind == kLanczos ? 3 : 1;
        plan.lobesX = antialiasing ? tpx::stretchOf(plan.axisX, lobes).lobes : lobes;
        plan.lobesY = antialiasing ? tpx::stretchOf(plan.axisY, lobes).lobes : lobes;
        tpx::BlockLayout block;
        tpx::takeTables(plan, antialiasing ? tpx::Weights::Single : tpx::weightsFor(type, kind), block);
        ASSERT_LE(block.bytesAnywhere(), uint64_t(bytes))
            << dst.width << " by " << dst.height << ", kind " << kind << ", type " << type;
    };
    for (TpxSizeL w = 1; w <= 70; w++)
        for (TpxSizeL h = 1; h <= 70; h++)
            for (const TpxiSizeL dst :
                 {TpxiSizeL{w, h}, {kLongest - w, h}, {w, kLongest - h}, {w * 100, h * 77}}) {
                for (const auto kind : {kNearest, kLinear, kCubic, kLanczos, kSuper})
                    check(dst, tpxDataType32f, kind, false);
                check(dst, tpxDataType8u, kLinear, false);
                check(dst, tpxDataType64f, kLinear, false);
                for (const auto kind : {kLinear, kCubic, kLanczos}) check(dst, tpxDataType8u, kind, true);
            }
}

TEST(ResizePlan, SizesBeyondTheResultAreRefused) {
    const int most = 0x7fffffff;
    for (const TpxiSize dst : {TpxiSize{most, 1}, {1, most}, {most, most}})
        for (const auto kind : {kLinear, kCubic, kLanczos, kSuper})
            for (const Tpx32u antialiasing : {0u, 1u}) {
                if (kind == kSuper && dst.width == dst.height) continue; // one entry along each axis
                int spec = -1, init = -1;
                EXPECT_EQ(tpxErrSizeTooLarge,
                          tpxiResizeGetSize_8u({most, most}, dst, kind, antialiasing, &spec, &init));
                EXPECT_EQ(-1, spec);
                EXPECT_EQ(-1, init);
            }
    // 4 * (A(n) + 32) + 296 is 0x7ffffffc for the largest n that is served.
    int spec = -1, init = -1;
    const int largest = (0x7ffffffe - 296) / 4 / 32 * 32 - 32;
    EXPECT_EQ(tpxOk, tpxiResizeGetSize_8u({1, 1}, {largest, 1}, kNearest, 0, &spec, &init));
    EXPECT_EQ(4 * (largest + 32) + 296, spec);
    EXPECT_EQ(tpxErrSizeTooLarge, tpxiResizeGetSize_8u({1, 1}, {largest + 1, 1}, kNearest, 0, &spec, &init));

    TpxSizeL specL = 0, initL = 0;
    const TpxSizeL limit = 0x1fffffff;
    EXPECT_EQ(tpxOk,
              tpxiResizeGetSize_L({limit, limit}, {limit, 1}, tpxDataType8u, kLanczos, 1, &specL, &initL));
    // 6 taps at ratio 1 along x, 2 * 6 * limit along y, both in multiples of 32 bytes.
    EXPECT_EQ((24 * limit + 24) + (48 * limit + 16) + 4 * (limit + 33) + 232 + 64, specL);
    EXPECT_EQ(tpxErrSizeTooLarge,
              tpxiResizeGetSize_L({limit + 1, 1}, {1, 1}, tpxDataType8u, kNearest, 0, &specL, &initL));
    EXPECT_EQ(tpxErrSizeTooLarge,
              tpxiResizeGetSize_L({1, 1}, {1, limit + 1}, tpxDataType8u, kNearest, 0, &specL, &initL));
}

// ---- Order of checks ----------------------------------------------------------------------------------

struct SizeArgs {
    TpxiSizeL src{40, 40}, dst{20, 20};
    TpxDataType type = tpxDataType8u;
    TpxInterpolationType kind = kLinear;
    bool noResult = false;
};

template <class Args>
std::vector<Fault<Args>> sizeFaults() {
    return {
        {"source width", [](Args& a) { a.src.width = 0; }, tpxWarnNoOperation},
        {"source height", [](Args& a) { a.src.height = 0; }, tpxWarnNoOperation},
        {"destination width", [](Args& a) { a.dst.width = 0; }, tpxWarnNoOperation},
        {"destination height", [](Args& a) { a.dst.height = 0; }, tpxWarnNoOperation},
        {"source width", [](Args& a) { a.src.width = -1; }, tpxErrSize},
        {"source height", [](Args& a) { a.src.height = -1; }, tpxErrSize},
        {"destination width", [](Args& a) { a.dst.width = -1; }, tpxErrSize},
        {"destination height", [](Args& a) { a.dst.height = -1; }, tpxErrSize},
    };
}

template <class T>
void append(std::vector<T>& to, std::initializer_list<T> more) {
    to.insert(to.end(), more);
}

TEST(ResizePlan, GetSizeChecksInOrder) {
    for (const bool longForm : {false, true}) {
        std::vector<Fault<SizeArgs>> faults{
            {"result", [](SizeArgs& a) { a.noResult = true; }, tpxErrNullPointer}};
        for (const auto& fault : sizeFaults<SizeArgs>()) faults.push_back(fault);
        for (int kind : {-1, 3, 4, 5, 7, 9, 17})
            faults.push_back({"kind", [=](SizeArgs& a) { a.kind = kind; }, tpxErrInterpolation});
        if (longForm) {
            for (int type : {0, 2, 6, 20})
                faults.push_back({"type", [=](SizeArgs& a) { a.type = type; }, tpxErrDataType});
            faults.push_back(
                {"destination width", [](SizeArgs& a) { a.dst.width = 0x20000000; }, tpxErrSizeTooLarge});
            faults.push_back(
                {"source height", [](SizeArgs& a) { a.src.height = 0x20000000; }, tpxErrSizeTooLarge});
        }
        faults.push_back({"kind", [](SizeArgs& a) { a.kind = 0; }, tpxErrUnsupportedMode});
        faults.push_back({"source width", [](SizeArgs& a) { a.src.width = 1; }, tpxErrSize});
        expectCheckOrder(SizeArgs{}, faults, [&](const SizeArgs& a) {
            int spec = -1, init = -1;
            TpxSizeL specL = -1, initL = -1;
            const TpxiSize src{int(a.src.width), int(a.src.height)}, dst{int(a.dst.width), int(a.dst.height)};
            const TpxStatus status =
                longForm ? tpxiResizeGetSize_L(a.src, a.dst, a.type, a.kind, 0, &specL,
                                               a.noResult ? nullptr : &initL)
                         : tpxiResizeGetSize_16s(src, dst, a.kind, 0, a.noResult ? nullptr : &spec, &init);
            if (status != tpxOk) {
                EXPECT_EQ(-1, spec);
                EXPECT_EQ(-1, specL);
            }
            return status;
        });
    }
}

bool isPositive(TpxiSizeL size) { return size.width > 0 && size.height > 0; }

struct InitArgs : SizeArgs {
    Tpx32u lobes = 2;
    bool noPlan = false, noBuffer = false;
};

TEST(ResizePlan, InitialisersCheckInOrder) {
    using A = InitArgs;
    GuardedBytes memory(20000), temporary(20000);
    for (const auto kind : {kNearest, kLinear, kCubic, kSuper, kLanczos})
        for (const bool longForm : {false, true}) {
            std::vector<Fault<A>> faults{{"plan", [](A& a) { a.noPlan = true; }, tpxErrNullPointer}};
            if (kind == kCubic || kind == kLanczos)
                faults.push_back({"buffer", [](A& a) { a.noBuffer = true; }, tpxErrNullPointer});
            for (const auto& fault : sizeFaults<A>()) faults.push_back(fault);

            const auto small = kind == kLinear ? 1 : kind == kSuper ? 19 : 3;
            const std::initializer_list<Fault<A>> sources = {
                {"source width", [=](A& a) { a.src.width = small; }, tpxErrSize},
                {"source height", [=](A& a) { a.src.height = small; }, tpxErrSize}};
            const std::initializer_list<Fault<A>> lobes = {
                {"lobes", [](A& a) { a.lobes = 1; }, tpxErrUnsupportedMode},
                {"lobes", [](A& a) { a.lobes = 4; }, tpxErrUnsupportedMode}};
            const std::initializer_list<Fault<A>> types = {{"type", [](A& a) { a.type = 2; }, tpxErrDataType}};
            if (kind == kLanczos) append(faults, lobes);
            if (kind == kLanczos && longForm) append(faults, types);
            if (kind != kNearest) append(faults, sources);
            if (kind != kLanczos && longForm) append(faults, types);
            if (longForm && kind != kLinear && kind != kLanczos)
                faults.push_back({"type", [](A& a) { a.type = tpxDataType64f; }, tpxErrDataType});
            if (longForm)
                faults.push_back({"source width", [](A& a) { a.src.width = 0x20000000; }, tpxErrSizeTooLarge});

            expectCheckOrder(A{}, faults, [&](const A& a) {
                memory.fill(0x55);
                const auto spec = a.noPlan ? nullptr : reinterpret_cast<TpxiResizeSpec*>(memory.data());
                Tpx8u* const init = a.noBuffer ? nullptr : temporary.data();
                const TpxiSize src{int(a.src.width), int(a.src.height)},
                    dst{int(a.dst.width), int(a.dst.height)};
                const auto run = [&]() -> TpxStatus {
                    if (longForm) switch (kind) {
                            case kNearest:
                                return tpxiResizeNearestInit_L(a.src, a.dst, a.type, spec);
                            case kLinear:
                                return tpxiResizeLinearInit_L(a.src, a.dst, a.type, spec);
                            case kCubic:
                                return tpxiResizeCubicInit_L(a.src, a.dst, a.type, 1, 0, spec, init);
                            case kSuper:
                                return tpxiResizeSuperInit_L(a.src, a.dst, a.type, spec);
                            default:
                                return tpxiResizeLanczosInit_L(a.src, a.dst, a.type, a.lobes, spec, init);
                        }
                    switch (kind) {
                        case kNearest:
                            return tpxiResizeNearestInit_16u(src, dst, spec);
                        case kLinear:
                            return tpxiResizeLinearInit_16u(src, dst, spec);
                        case kCubic:
                            return tpxiResizeCubicInit_16u(src, dst, 1, 0, spec, init);
                        case kSuper:
                            return tpxiResizeSuperInit_16u(src, dst, spec);
                        default:
                            return tpxiResizeLanczosInit_16u(src, dst, a.lobes, spec, init);
                    }
                };
                const unsigned control = _mm_getcsr();
                const TpxStatus status = run();
                _mm_setcsr(control);
                // The short forms of Lanczos begin the plan before they look at lobes and source.
                const bool begun = kind == kLanczos && !longForm &&
                                   (status == tpxErrUnsupportedMode ||
                                    (status == tpxErrSize && isPositive(a.src) && isPositive(a.dst)));
                if (status != tpxOk && !begun)
                    EXPECT_EQ(memory.size(),
                              size_t(std::count(memory.data(), memory.data() + memory.size(), 0x55)));
                return status;
            });
        }
}

// Three lobes need a source of 6, though the sizing call does not know the lobes.
TEST(ResizePlan, ThreeLobesNeedALargerSource) {
    GuardedBytes memory(20000), temporary(20000);
    const auto spec = reinterpret_cast<TpxiResizeSpec*>(memory.data());
    EXPECT_EQ(tpxOk, tpxiResizeLanczosInit_8u({4, 4}, {8, 8}, 2, spec, temporary.data()));
    EXPECT_EQ(tpxOk, tpxiResizeLanczosInit_8u({6, 6}, {8, 8}, 3, spec, temporary.data()));
    for (const TpxiSize src : {TpxiSize{5, 6}, {6, 5}}) {
        EXPECT_EQ(tpxErrSize, tpxiResizeLanczosInit_8u(src, {8, 8}, 3, spec, temporary.data()));
        EXPECT_EQ(tpxErrSize,
                  tpxiResizeLanczosInit_L(wide(src), {8, 8}, tpxDataType8u, 3, spec, temporary.data()));
    }
}

struct QueryArgs {
    const TpxiResizeSpec* spec;
    TpxiPoint at{0, 0};
    TpxiSize size{4, 4};
    Tpx32u channels = 3;
    bool noResult = false;
};

TEST(ResizePlan, QueriesCheckInOrder) {
    using A = QueryArgs;
    for (const bool longForm : {false, true}) {
        const AnyPlan plan(kLinear, {40, 40}, {20, 20}, longForm),
            other(kLinear, {40, 40}, {20, 20}, !longForm);
        const A good{plan.spec()};
        const Fault<A> noPlan{"plan", [](A& a) { a.spec = nullptr; }, tpxErrNullPointer};
        const Fault<A> noResult{"result", [](A& a) { a.noResult = true; }, tpxErrNullPointer};
        const Fault<A> wrongPlan{"plan", [&](A& a) { a.spec = other.spec(); }, tpxErrContext};
        const std::vector<Fault<A>> outside = {{"x", [](A& a) { a.at.x = -1; }, tpxErrOutOfRange},
                                               {"x", [](A& a) { a.at.x = 20; }, tpxErrOutOfRange},
                                               {"y", [](A& a) { a.at.y = -1; }, tpxErrOutOfRange},
                                               {"y", [](A& a) { a.at.y = 20; }, tpxErrOutOfRange}};

        expectCheckOrder(good,
                         {noPlan,
                          noResult,
                          {"width", [](A& a) { a.size.width = 0; }, tpxWarnNoOperation},
                          {"height", [](A& a) { a.size.height = 0; }, tpxWarnNoOperation},
                          wrongPlan,
                          {"channels", [](A& a) { a.channels = 0; }, tpxErrChannelCount},
                          {"channels", [](A& a) { a.channels = 2; }, tpxErrChannelCount},
                          {"channels", [](A& a) { a.channels = 5; }, tpxErrChannelCount},
                          {"width", [](A& a) { a.size.width = -1; }, tpxErrSize},
                          {"height", [](A& a) { a.size.height = -1; }, tpxErrSize}},
                         [&](const A& a) {
                             int bytes;
                             TpxSizeL bytesL;
                             return longForm ? tpxiResizeGetBufferSize_L(a.spec, wide(a.size), a.channels,
                                                                         a.noResult ? nullptr : &bytesL)
                                             : tpxiResizeGetBufferSize_8u(a.spec, a.size, a.channels,
                                                                          a.noResult ? nullptr : &bytes);
                         });
        expectCheckOrder(good, {noPlan, noResult, wrongPlan}, [&](const A& a) {
            TpxiBorderSize border;
            TpxiBorderSizeL borderL;
            return longForm ? tpxiResizeGetBorderSize_L(a.spec, a.noResult ? nullptr : &borderL)
                            : tpxiResizeGetBorderSize_64f(a.spec, a.noResult ? nullptr : &border);
        });
        std::vector<Fault<A>> offsetFaults{noPlan, noResult, wrongPlan};
        offsetFaults.insert(offsetFaults.end(), outside.begin(), outside.end());
        expectCheckOrder(good, offsetFaults, [&](const A& a) {
            TpxiPoint at;
            TpxiPointL atL;
            return longForm ? tpxiResizeGetSrcOffset_L(a.spec, {a.at.x, a.at.y}, a.noResult ? nullptr : &atL)
                            : tpxiResizeGetSrcOffset_16u(a.spec, a.at, a.noResult ? nullptr : &at);
        });
        std::vector<Fault<A>> roiFaults{noPlan,
                                        noResult,
                                        {"width", [](A& a) { a.size.width = 0; }, tpxErrSize},
                                        {"height", [](A& a) { a.size.height = -1; }, tpxErrSize},
                                        wrongPlan};
        roiFaults.insert(roiFaults.end(), outside.begin(), outside.end());
        expectCheckOrder(good, roiFaults, [&](const A& a) {
            TpxiPoint at;
            TpxiPointL atL;
            TpxiSize size;
            TpxiSizeL sizeL;
            return longForm ? tpxiResizeGetSrcRoi_L(a.spec, {a.at.x, a.at.y}, wide(a.size), &atL,
                                                    a.noResult ? nullptr : &sizeL)
                            : tpxiResizeGetSrcRoi_32f(a.spec, a.at, a.size, a.noResult ? nullptr : &at, &size);
        });
    }
}

// ---- Queries ------------------------------------------------------------------------------------------

struct Doubles {
    using T = Tpx64f;
    static constexpr TpxDataType kType = tpxDataType64f;
    static constexpr auto getSize = tpxiResizeGetSize_64f;
    static constexpr auto initLinear = tpxiResizeLinearInit_64f, initNearest = initLinear;
};

TEST(ResizePlan, SizesOfWorkBuffers) {
    struct Case {
        TpxInterpolationType kind;
        Tpx32u lobes;
        TpxiSize src, dst, tile;
        Tpx32u channels;
        TpxStatus status;
        int bytes;
    };
    const TpxiSize vga{640, 480}, half{320, 240}, tile{100, 50};
    for (const Case& c :
         {Case{kNearest, 0, vga, half, tile, 3, tpxOk, 704},
          {kLinear, 0, vga, half, tile, 3, tpxOk, 3136},
          {kCubic, 0, vga, half, tile, 3, tpxOk, 5568},
          {kLanczos, 2, vga, half, tile, 3, tpxOk, 5568},
          {kLanczos, 3, vga, half, tile, 3, tpxOk, 8000},
          {kSuper, 0, vga, half, tile, 3, tpxOk, 3432},
          {kSuper, 0, {50, 60}, {30, 45}, {30, 45}, 1, tpxOk, 1208},
          {kSuper, 0, {50, 60}, {30, 45}, {30, 2}, 1, tpxOk, 784},
          {kLinear, 0, vga, half, {321, 240}, 1, tpxWarnValueAdjusted, 1280 + 960 + 2 * 1280 + 64},
          {kNearest, 0, vga, half, {1, 0x7fffffff}, 4, tpxWarnValueAdjusted, 32 + 960 + 64}})
        for (const bool longForm : {false, true}) {
            const AnyPlan plan(c.kind, c.src, c.dst, longForm, c.lobes);
            int bytes = -1;
            TpxSizeL bytesL = -1;
            EXPECT_EQ(c.status, longForm
                                    ? tpxiResizeGetBufferSize_L(plan.spec(), wide(c.tile), c.channels, &bytesL)
                                    : tpxiResizeGetBufferSize_16s(plan.spec(), c.tile, c.channels, &bytes));
            EXPECT_EQ(c.bytes, longForm ? bytesL : bytes) << "kind " << c.kind;
        }

    const Plan<Doubles> doubles(true, vga, half);
    int bytes = -1;
    EXPECT_EQ(tpxOk, tpxiResizeGetBufferSize_64f(doubles.spec(), tile, 3, &bytes));
    EXPECT_EQ(6976, bytes);
}

TEST(ResizePlan, BordersFollowTheKind) {
    struct Case {
        TpxInterpolationType kind;
        Tpx32u lobes;
        int border;
    };
    for (const Case& c : {Case{kNearest, 0, 0},
                          {kLinear, 0, 1},
                          {kCubic, 0, 2},
                          {kLanczos, 2, 2},
                          {kLanczos, 3, 3},
                          {kSuper, 0, 0}}) {
        const AnyPlan plan(c.kind, {9, 9}, {7, 7}, false, c.lobes),
            planL(c.kind, {9, 9}, {7, 7}, true, c.lobes);
        TpxiBorderSize border{-1, -1, -1, -1};
        TpxiBorderSizeL borderL{-1, -1, -1, -1};
        EXPECT_EQ(tpxOk, tpxiResizeGetBorderSize_8u(plan.spec(), &border));
        EXPECT_EQ(tpxOk, tpxiResizeGetBorderSize_L(planL.spec(), &borderL));
        for (int side : {border.left, border.top, border.right, border.bottom, int(borderL.left),
                         int(borderL.top), int(borderL.right), int(borderL.bottom)})
            EXPECT_EQ(c.border, side);
    }
}

TEST(ResizePlan, SourceRectanglesOfTiles) {
    struct Case {
        TpxInterpolationType kind;
        TpxiSize src, dst;
        TpxiRect tile, from;
        TpxStatus status;
    };
    for (const Case& c : {
             Case{kLinear, {640, 480}, {320, 240}, {10, 7, 5, 4}, {20, 14, 9, 7}, tpxOk},
             {kLinear, {640, 480}, {320, 240}, {310, 230, 10, 10}, {620, 460, 20, 20}, tpxOk},
             // Past the edge but no larger than the destination, and larger.
             {kLinear, {640, 480}, {320, 240}, {310, 230, 300, 11}, {620, 460, 20, 20}, tpxOk},
             {kLinear, {640, 480}, {320, 240}, {310, 230, 321, 10}, {620, 460, 20, 20}, tpxWarnValueAdjusted},
             {kLinear, {640, 480}, {320, 240}, {0, 0, 1, 241}, {0, 0, 1, 480}, tpxWarnValueAdjusted},
             // The first position lies before the source: nothing of the rectangle is its own.
             {kLinear, {4, 4}, {8, 8}, {0, 0, 1, 1}, {0, 0, 0, 0}, tpxOk},
             {kLinear, {4, 4}, {8, 8}, {2, 3, 1, 2}, {1, 1, 0, 1}, tpxOk},
             {kNearest, {10, 10}, {5, 5}, {1, 2, 2, 1}, {2, 4, 3, 1}, tpxOk},
             {kCubic, {30, 30}, {20, 20}, {3, 0, 4, 20}, {4, 0, 6, 30}, tpxOk},
             // Super-sampling 5 to 3: one period reads 0 1, 1 2 3, 3 4.
             {kSuper, {20, 20}, {12, 12}, {1, 0, 1, 3}, {1, 0, 3, 5}, tpxOk},
             {kSuper, {20, 20}, {12, 12}, {4, 5, 3, 2}, {6, 8, 6, 4}, tpxOk},
             {kSuper, {20, 20}, {12, 12}, {9, 9, 3, 12}, {15, 15, 5, 5}, tpxOk},
             {kSuper, {7, 8}, {7, 2}, {3, 1, 2, 1}, {3, 4, 2, 4}, tpxOk},
         }) {
        for (const bool longForm : {false, true}) {
            const AnyPlan plan(c.kind, c.src, c.dst, longForm);
            TpxiRect from{-9, -9, -9, -9};
            TpxiPoint offset{-9, -9};
            if (longForm) {
                TpxiPointL at, atL;
                TpxiSizeL size;
                EXPECT_EQ(c.status, tpxiResizeGetSrcRoi_L(plan.spec(), {c.tile.x, c.tile.y},
                                                          {c.tile.width, c.tile.height}, &at, &size));
                EXPECT_EQ(tpxOk, tpxiResizeGetSrcOffset_L(plan.spec(), {c.tile.x, c.tile.y}, &atL));
                from = {int(at.x), int(at.y), int(size.width), int(size.height)};
                offset = {int(atL.x), int(atL.y)};
            } else {
                TpxiPoint at;
                TpxiSize size;
                EXPECT_EQ(c.status, tpxiResizeGetSrcRoi_8u(plan.spec(), {c.tile.x, c.tile.y},
                                                           {c.tile.width, c.tile.height}, &at, &size));
                EXPECT_EQ(tpxOk, tpxiResizeGetSrcOffset_8u(plan.spec(), {c.tile.x, c.tile.y}, &offset));
                from = {at.x, at.y, size.width, size.height};
            }
            const auto text = [](TpxiRect r) {
                return std::to_string(r.x) + " " + std::to_string(r.y) + " " + std::to_string(r.width) + " " +
                       std::to_string(r.height);
            };
            EXPECT_EQ(text(c.from), text(from)) << "kind " << c.kind;
            EXPECT_EQ(c.from.x, offset.x);
            EXPECT_EQ(c.from.y, offset.y);
        }
    }
}

// ---- Weights ------------------------------------------------------------------------------------------

// The family of cubic kernels is spanned by three: Hermite interpolation with level tangents, what tangents
// along the neighbours add to it, and the uniform B-spline, from its truncated powers.
double cubicWeight(int k, double f, double b, double c) {
    const double level = f * f * (3 - 2 * f), first = f * (1 - f) * (1 - f), second = f * f * (f - 1);
    const double levels[] = {0, 1 - level, level, 0}, tangents[] = {-first, -second, first, second};
    const int binomial[] = {1, -4, 6, -4, 1};
    double spline = 0;
    for (int i = 0; i < 5; i++) spline += binomial[i] * std::pow(std::max(0.0, k - 1 - f + 2 - i), 3) / 6;
    return (1 - b) * levels[k] + c * tangents[k] + b * spline;
}

double lanczosKernel(double x, int lobes) {
    const auto sinc = [](double t) { return t == 0 ? 1 : std::sin(M_PI * t) / (M_PI * t); };
    return std::fabs(x) < lobes ? sinc(x) * sinc(x / lobes) : 0;
}

TEST(ResizePlan, CubicWeightsAreTheKernels) {
    for (const auto& [b, c] :
         {std::pair{0.f, 0.5f}, {1.f, 0.f}, {0.5f, 0.3f}, {1 / 3.f, 1 / 3.f}, {0.f, 0.75f}}) {
        const AnyPlan plan(kCubic, {40, 31}, {97, 17}, false, 0, b, c);
        for (const TpxiResizeAxis* axis : {&plan.record().axisX, &plan.record().axisY})
            for (int i = 0; i < axis->dstLen; i++) {
                const Position at = linearPosition(i, int(axis->srcLen), axis->dstLen);
                ASSERT_EQ(at.index, axis->pIndex[i]);
                for (int k = 0; k < 4; k++)
                    EXPECT_NEAR(cubicWeight(k, at.fraction, b, c), axis->pCoef32f[4 * i + k], 1e-6);
            }
    }
    const AnyPlan same(kCubic, {8, 8}, {8, 8});
    for (int i = 0; i < 8 * 4; i++) EXPECT_EQ(i % 4 == 1 ? 1.f : 0.f, same.record().axisX.pCoef32f[i]);
}

TEST(ResizePlan, LanczosWeightsAreTheNormalisedKernel) {
    for (const int lobes : {2, 3}) {
        const AnyPlan plan(kLanczos, {40, 31}, {97, 17}, true, Tpx32u(lobes));
        for (const TpxiResizeAxis* axis : {&plan.record().axisX, &plan.record().axisY})
            for (int i = 0; i < axis->dstLen; i++) {
                const Tpx32f* const weights = axis->pCoef32f + 2 * lobes * i;
                const double f = linearPosition(i, int(axis->srcLen), axis->dstLen).fraction;
                double kernelSum = 0, sum = 0;
                for (int k = 0; k < 2 * lobes; k++) kernelSum += lanczosKernel(k + 1 - lobes - f, lobes);
                for (int k = 0; k < 2 * lobes; k++) {
                    // The kernel's table is read between its samples.
                    EXPECT_NEAR(lanczosKernel(k + 1 - lobes - f, lobes) / kernelSum, weights[k], 1e-4);
                    sum += weights[k];
                }
                EXPECT_NEAR(1, sum, 1e-6);
            }
        const AnyPlan same(kLanczos, {8, 8}, {8, 8}, false, Tpx32u(lobes));
        for (int i = 0; i < 8 * 2 * lobes; i++)
            EXPECT_EQ(i % (2 * lobes) == lobes - 1 ? 1.f : 0.f, same.record().axisX.pCoef32f[i]);
    }
}

// A row and a column of equal samples, summed as the passes do, are that sample once rounded to an integer.
TEST(ResizePlan, LanczosWeightsKeepConstantImages) {
    for (const Tpx32u lobes : {2u, 3u})
        for (const TpxiSize dst : {TpxiSize{97, 17}, {1000, 39}, {7, 333}}) {
            const AnyPlan plan(kLanczos, {40, 31}, dst, false, lobes);
            const TpxiResizeAxis &x = plan.record().axisX, &y = plan.record().axisY;
            const int taps = int(2 * lobes);
            for (const Tpx32f value : {1.f, 255.f, -32768.f, 65535.f})
                for (int i = 0; i < dst.height; i++) {
                    const auto sum = [&](const TpxiResizeAxis& axis, int at, Tpx32f sample) {
                        Tpx32f s = 0;
                        for (int k = 0; k < taps; k++) s += axis.pCoef32f[taps * at + k] * sample;
                        return s;
                    };
                    for (int j = 0; j < dst.width; j++)
                        ASSERT_EQ(value, std::nearbyint(sum(y, i, sum(x, j, value)))) << j << " " << i;
                }
        }
}

// Every position covers exactly its part of the source, and no index leaves the period.
TEST(ResizePlan, SuperSamplingWeightsAreOverlaps) {
    for (const auto& [src, dst] :
         {std::pair{5, 3}, {4, 3}, {7, 7}, {8, 2}, {1000, 999}, {97, 31}, {61, 1}, {12, 9}}) {
        const AnyPlan plan(kSuper, {src, src}, {dst, dst});
        const TpxiResizeAxis& axis = plan.record().axisX;
        const int s = int(axis.srcRatio), d = int(axis.dstRatio), rest = s % d,
                  run = s / d + (rest > 1 ? 2 : rest);
        for (int i = 0; i < d; i++) {
            std::vector<double> covered(size_t(s), 0.0);
            for (int k = 0; k < run; k++) {
                ASSERT_GE(axis.pIndex[i * run + k], 0);
                ASSERT_LT(axis.pIndex[i * run + k], s);
                covered[size_t(axis.pIndex[i * run + k])] += axis.pCoef32f[i * run + k];
            }
            const double from = double(s) * i / d, to = double(s) * (i + 1) / d;
            for (int p = 0; p < s; p++)
                ASSERT_NEAR(std::max(0.0, std::min(to, p + 1.0) - std::max(from, double(p))),
                            covered[size_t(p)], 1e-6)
                    << src << " to " << dst << ", position " << i;
        }
    }
}

TEST(ResizePlan, TapsOutsideTheSourceAreCounted) {
    for (const auto& [src, dst] : {std::pair{4, 8}, {8, 4}, {6, 6}, {6, 100}, {100, 7}, {17, 31}})
        for (const auto kind : {kLinear, kCubic, kLanczos}) {
            const AnyPlan plan(kind, {src, src}, {dst, dst}, false, 2);
            const int reach = kind == kLinear ? 1 : 2;
            Tpx32u lead = 0, trail = 0;
            for (int i = 0; i < dst; i++) {
                const double c = (i + 0.5) * src / dst - 0.5;
                lead += c < reach - 1;
                trail += c >= src - reach;
            }
            EXPECT_EQ(lead, plan.record().axisX.leadCount);
            EXPECT_EQ(trail, plan.record().axisY.trailCount);
        }
}

// ---- Antialiasing -------------------------------------------------------------------------------------

// A plan of the size that is told, between unreadable pages.
class AntialiasingPlan {
 public:
    AntialiasingPlan(TpxInterpolationType kind, TpxiSize src, TpxiSize dst, bool longForm, Tpx32u lobes = 3,
                     Tpx32f b = 0, Tpx32f c = 0.5f) {
        TpxSizeL bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, tpxiResizeGetSize_L(wide(src), wide(dst), tpxDataType8u, kind, 1, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes), 1);
        GuardedBytes temporary{size_t(init), 1};
        const auto spec = reinterpret_cast<TpxiResizeSpec*>(memory_->data());
        Tpx8u* const work = temporary.data();
        const auto type = tpxDataType8u;
        EXPECT_EQ(tpxOk,
                  longForm
                      ? kind == kLinear
                            ? tpxiResizeAntialiasingLinearInit_L(wide(src), wide(dst), type, spec, work)
                        : kind == kCubic
                            ? tpxiResizeAntialiasingCubicInit_L(wide(src), wide(dst), type, b, c, spec, work)
                            : tpxiResizeAntialiasingLanczosInit_L(wide(src), wide(dst), type, lobes, spec, work)
                  : kind == kLinear ? tpxiResizeAntialiasingLinearInit(src, dst, spec, work)
                  : kind == kCubic  ? tpxiResizeAntialiasingCubicInit(src, dst, b, c, spec, work)
                                    : tpxiResizeAntialiasingLanczosInit(src, dst, lobes, spec, work));
    }
    const TpxiResizeSpec& record() const {
        return *tpx::planIn(reinterpret_cast<TpxiResizeSpec*>(memory_->data()));
    }

 private:
    std::unique_ptr<GuardedBytes> memory_;
};

// The kernel's value at a distance in destination pixels, or in source pixels if those are the wider ones.
double antialiasingKernel(TpxInterpolationType kind, double x, int lobes, double b, double c) {
    if (kind == kLinear) return std::max(0.0, 1 - x);
    if (kind == kLanczos) return lanczosKernel(x, lobes);
    return x >= 2 ? 0 : x >= 1 ? cubicWeight(3, 2 - x, b, c) : cubicWeight(1, x, b, c);
}

TEST(ResizePlan, AntialiasingWeightsAreTheStretchedKernels) {
    struct Case {
        TpxInterpolationType kind;
        Tpx32u lobes;
        Tpx32f b, c;
    };
    for (const Case& kernel : {Case{kLinear, 1, 0, 0},
                               {kCubic, 2, 0, 0.5f},
                               {kCubic, 2, 1, 0},
                               {kCubic, 2, 0.5f, 0.3f},
                               {kCubic, 2, 0.1f, 0.2f},
                               {kLanczos, 2, 0, 0},
                               {kLanczos, 3, 0, 0}})
        for (const auto& [src, dst] :
             {std::pair{40, 17}, {30, 10}, {9, 50}, {12, 12}, {90, 89}, {700, 9}, {7, 1}}) {
            // Reduced along one axis and magnified along the other.
            const bool longForm = dst % 2;
            const AntialiasingPlan made(kernel.kind, {src, dst + 4}, {dst, src + 5}, longForm, kernel.lobes,
                                        kernel.b, kernel.c);
            const TpxiResizeSpec& plan = made.record();
            EXPECT_EQ(longForm ? 0x4b61738cu : 0x4b617389u, plan.tag);
            EXPECT_EQ(1, plan.antialiasing);
            EXPECT_EQ(kernel.kind, plan.interpolation);
            const TpxiBorderSize border = plan.border;
            EXPECT_TRUE(border.left == plan.lobesX && border.right == plan.lobesX &&
                        border.top == plan.lobesY && border.bottom == plan.lobesY);
            for (const TpxiResizeAxis* axis : {&plan.axisX, &plan.axisY}) {
                const int lobes = axis == &plan.axisX ? plan.lobesX : plan.lobesY;
                const int from = int(axis->srcLen), to = axis->dstLen;
                EXPECT_EQ((from > to ? (from + to - 1) / to : 1) * int(kernel.lobes), lobes);
                const double factor = std::min(1.0, double(axis->dstLen) / double(axis->srcLen));
                Tpx32u lead = 0, trail = 0;
                for (int i = 0; i < axis->dstLen; i++) {
                    const Position at = linearPosition(i, int(axis->srcLen), axis->dstLen);
                    // Where centres meet, doubles may be just below.
                    const int index = axis->pIndex[i];
                    const double fraction = at.fraction + (at.index - index);
                    ASSERT_TRUE(index == at.index || (index == at.index - 1 && at.fraction == 0));
                    lead += index < lobes - 1;
                    trail += index + lobes >= int(axis->srcLen);
                    std::vector<double> values;
                    double sum = 0;
                    for (int k = 0; k < 2 * lobes; k++) {
                        const double x = factor * std::fabs(k + 1 - lobes - fraction);
                        values.push_back(
                            antialiasingKernel(kernel.kind, x, int(kernel.lobes), kernel.b, kernel.c));
                        sum += values.back();
                    }
                    for (int k = 0; k < 2 * lobes; k++)
                        ASSERT_NEAR(values[size_t(k)] / sum, axis->pCoef32f[2 * lobes * i + k], 2e-6)
                            << src << " to " << dst << ", position " << i << ", tap " << k;
                }
                EXPECT_EQ(lead, axis->leadCount);
                EXPECT_EQ(trail, axis->trailCount);
            }
        }
}

TEST(ResizePlan, AntialiasingInitialisersCheckInOrder) {
    using A = InitArgs;
    GuardedBytes memory(20000), temporary(20000);
    for (const auto kind : {kLinear, kCubic, kLanczos})
        for (const bool longForm : {false, true}) {
            std::vector<Fault<A>> faults{{"plan", [](A& a) { a.noPlan = true; }, tpxErrNullPointer},
                                         {"buffer", [](A& a) { a.noBuffer = true; }, tpxErrNullPointer}};
            for (const auto& fault : sizeFaults<A>()) faults.push_back(fault);
            const int small = kind == kLinear ? 1 : 3;
            std::vector<Fault<A>> sources = {
                {"source width", [=](A& a) { a.src.width = small; }, tpxErrSize},
                {"source height", [=](A& a) { a.src.height = small; }, tpxErrSize}};
            std::vector<Fault<A>> types;
            for (const int type : {2, int(tpxDataType64f)})
                if (longForm) types.push_back({"type", [=](A& a) { a.type = type; }, tpxErrDataType});
            if (kind == kLanczos) {
                for (const Tpx32u lobes : {1u, 4u})
                    faults.push_back({"lobes", [=](A& a) { a.lobes = lobes; }, tpxErrUnsupportedMode});
                std::swap(sources, types);
            }
            faults.insert(faults.end(), sources.begin(), sources.end());
            faults.insert(faults.end(), types.begin(), types.end());
            if (longForm)
                faults.push_back(
                    {"source height", [](A& a) { a.src.height = 0x20000000; }, tpxErrSizeTooLarge});

            expectCheckOrder(A{}, faults, [&](const A& a) {
                memory.fill(0x55);
                const auto spec = a.noPlan ? nullptr : reinterpret_cast<TpxiResizeSpec*>(memory.data());
                Tpx8u* const init = a.noBuffer ? nullptr : temporary.data();
                const TpxiSize src{int(a.src.width), int(a.src.height)},
                    dst{int(a.dst.width), int(a.dst.height)};
                const unsigned control = _mm_getcsr();
                const TpxStatus status =
                    kind == kLinear ? longForm
                                          ? tpxiResizeAntialiasingLinearInit_L(a.src, a.dst, a.type, spec, init)
                                          : tpxiResizeAntialiasingLinearInit(src, dst, spec, init)
                    : kind == kCubic
                        ? longForm ? tpxiResizeAntialiasingCubicInit_L(a.src, a.dst, a.type, 0, 1, spec, init)
                                   : tpxiResizeAntialiasingCubicInit(src, dst, 0, 1, spec, init)
                    : longForm ? tpxiResizeAntialiasingLanczosInit_L(a.src, a.dst, a.type, a.lobes, spec, init)
                               : tpxiResizeAntialiasingLanczosInit(src, dst, a.lobes, spec, init);
                EXPECT_EQ(control & ~0x3Fu, _mm_getcsr() & ~0x3Fu);
                if (status != tpxOk)
                    EXPECT_EQ(memory.size(),
                              size_t(std::count(memory.data(), memory.data() + memory.size(), 0x55)));
                return status;
            });
        }
    // Unlike the plain kernel, that of 3 lobes needs no more than 4.
    const auto spec = reinterpret_cast<TpxiResizeSpec*>(memory.data());
    EXPECT_EQ(tpxOk, tpxiResizeAntialiasingLanczosInit({4, 4}, {8, 8}, 3, spec, temporary.data()));
}

// ---- The thread's floating-point control --------------------------------------------------------------

TEST(ResizePlan, InitialisersLeaveTheControlRegisterAsItWas) {
    constexpr unsigned kFlush = 0x8000, kUnderflowMask = 0x800, kUnderflow = 0x10;
    GuardedBytes memory(40000), temporary(20000);
    const auto spec = reinterpret_cast<TpxiResizeSpec*>(memory.data());
    const unsigned before = _mm_getcsr();
    for (const unsigned set :
         {0u, kFlush, kUnderflowMask, kUnderflowMask | kUnderflow, kFlush | kUnderflowMask}) {
        const unsigned mine = (before & ~(kFlush | kUnderflowMask | kUnderflow)) | set;
        const auto expectKept = [&](TpxStatus status, auto call) {
            _mm_setcsr(mine);
            const TpxStatus got = call();
            const unsigned after = _mm_getcsr();
            _mm_setcsr(before);
            EXPECT_EQ(status, got);
            const unsigned kept = kFlush | kUnderflowMask | kUnderflow | 0x7000;
            EXPECT_EQ(mine & kept, after & kept);
        };
        expectKept(tpxOk, [&] {
            return tpxiResizeCubicInit_8u({9, 9}, {50, 50}, 0.2f, 1e-38f, spec, temporary.data());
        });
        expectKept(tpxOk, [&] {
            return tpxiResizeLanczosInit_8u({9, 9}, {50, 50}, 3, spec, temporary.data());
        });
        expectKept(tpxErrSize, [&] {
            return tpxiResizeLanczosInit_L({5, 5}, {50, 50}, tpxDataType8u, 3, spec, temporary.data());
        });
        expectKept(tpxErrUnsupportedMode, [&] {
            return tpxiResizeLanczosInit_L({9, 9}, {50, 50}, tpxDataType8u, 5, spec, temporary.data());
        });
    }
}

// The short forms of Lanczos find lobes and source unfit when the plan is begun and the control register is
// set.
TEST(ResizePlan, LateErrorsOfLanczosLeaveABegunPlanAndTheControlRegisterSet) {
    constexpr unsigned kFlush = 0x8000, kUnderflowMask = 0x800, kUnderflow = 0x10;
    const auto inits = {tpxiResizeLanczosInit_8u, tpxiResizeLanczosInit_16u, tpxiResizeLanczosInit_16s,
                        tpxiResizeLanczosInit_32f};
    struct Case {
        TpxiSize src;
        Tpx32u lobes;
        TpxStatus status;
    };
    const unsigned before = _mm_getcsr();
    for (const auto init : inits)
        for (const Case& c : {Case{{5, 9}, 3, tpxErrSize},
                              {{9, 5}, 3, tpxErrSize},
                              {{3, 9}, 2, tpxErrSize},
                              {{9, 9}, 5, tpxErrUnsupportedMode},
                              {{9, 9}, 0, tpxErrUnsupportedMode}})
            for (const unsigned set : {0u, kFlush, kUnderflowMask | kUnderflow}) {
                // Room for the fixed part alone: no table may be written.
                GuardedBytes memory(64 + sizeof(TpxiResizeSpec), 1), temporary(1);
                memory.fill(0x55);
                const auto spec = reinterpret_cast<TpxiResizeSpec*>(memory.data());
                const unsigned mine = (before & ~(kFlush | kUnderflowMask | kUnderflow)) | set;
                _mm_setcsr(mine);
                const TpxStatus status = init(c.src, {60, 40}, c.lobes, spec, temporary.data());
                const unsigned after = _mm_getcsr();
                _mm_setcsr(before);
                EXPECT_EQ(c.status, status);
                EXPECT_EQ(mine | kFlush | kUnderflowMask, after);
                const TpxiResizeSpec& plan = *tpx::planIn(spec);
                EXPECT_EQ(0x4b617389u, plan.tag);
                EXPECT_EQ(tpxDataType32f, plan.dataType);
                EXPECT_EQ(kLanczos, plan.interpolation);
                EXPECT_EQ(Tpx32s(c.lobes), plan.lobesX);
                EXPECT_EQ(60, plan.axisX.dstLen);
                EXPECT_EQ(Tpx32u(c.src.height), plan.axisY.srcLen);
                EXPECT_EQ(nullptr, plan.axisX.pCoef32f);
            }
}

// No plan outgrows the size that was told for it, wherever it lies.
TEST(ResizePlan, PlansFitTheirSizes) {
    for (const auto kind : {kNearest, kLinear, kCubic, kLanczos, kSuper})
        for (int w : {1, 7, 31, 32, 33, 64, 100, 127})
            for (int h : {1, 8, 32, 63, 96})
                for (size_t misalign : {size_t(0), size_t(1), size_t(63)})
                    AnyPlan(kind, {131, 101}, {w, h}, (w + h) % 2, 3, 0, 0.5f, misalign);
}

} // namespace
