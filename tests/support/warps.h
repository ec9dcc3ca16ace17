// SPDX-License-Identifier: Apache-2.0
// What tests of warps share: a request, its plan between unreadable pages, sources that hold just what may be
// read, and the comparison with the model.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "models/warp.h"
#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace tpx::test {

using namespace tpx::model;

inline constexpr TpxInterpolationType kKinds[] = {tpxInterpolationNearest, tpxInterpolationLinear,
                                                  tpxInterpolationCubic};

// What is asked of a warp.
template <class Coefficients>
struct WarpJob {
    TpxiSize src, dst;
    Coefficients coeffs;
    int direction = 1;
    TpxInterpolationType kind = tpxInterpolationLinear;
    TpxBorderType border = tpxBorderTransparent;
    int channels = 1;
    double B = 0, C = 0.5;
    int smoothEdge = 0;
};
inline constexpr double kValue[4] = {17.4, 301.5, -40, 88}; // of constant borders

// ---- The functions of each type --------------------------------------------------------------------------

template <class T>
using WarpCall = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiWarpSpec*, Tpx8u*);

// Of an interpolation, by channels.
#define TPX_WARP_CALLS(stem) \
    { stem##C1R, stem##C3R, stem##C4R }

// A type's names add kType, kGetSize, kInitialise and kCalls.
template <class Sample, class JobOfMap>
struct WarpNames {
    using T = Sample;
    using Job = JobOfMap;
    static WarpCall<T> call(const WarpCall<T> (&calls)[3][3], TpxInterpolationType kind, int channels) {
        return calls[kind == tpxInterpolationNearest  ? 0
                     : kind == tpxInterpolationLinear ? 1
                                                      : 2][channels == 1 ? 0 : channels - 2];
    }
};

// A plan in memory of exactly the size asked for, between unreadable pages, at an odd address.
template <class Names>
class WarpPlan {
 public:
    using T = typename Names::T;

    using Job = typename Names::Job;

    explicit WarpPlan(const Job& job, int misalign = 1) : job_(job), misalign_(misalign) {
        int bytes = 0, init = 0;
        EXPECT_EQ(tpxOk, Names::kGetSize(job, Names::kType, &bytes, &init));
        memory_ = std::make_unique<GuardedBytes>(size_t(bytes), size_t(misalign));
        memory_->fill(0xCD);
        GuardedBytes work{size_t(init)};
        status = Names::kInitialise(job, Names::kType, kValue, spec(), work.data());
    }
    TpxiWarpSpec* spec() const { return reinterpret_cast<TpxiWarpSpec*>(memory_->data()); }
    size_t bytes() const { return memory_->size(); }

    // A tile whose first pixel is the first of `dst`. `src` is the source's first pixel.
    TpxStatus run(const T* src, int srcStep, T* dst, int dstStep, TpxiRect tile) const {
        int bytes = 0;
        EXPECT_GE(tpxiWarpGetBufferSize(spec(), {tile.width, tile.height}, &bytes), tpxOk);
        GuardedBytes work{size_t(bytes), size_t(misalign_)};
        return Names::call(Names::kCalls, job_.kind, job_.channels)(
            src, srcStep, dst, dstStep, {tile.x, tile.y}, {tile.width, tile.height}, spec(), work.data());
    }
    TpxStatus run(const GuardedImage<T>& src, GuardedImage<T>& dst) const {
        return run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, dst.width(), dst.height()});
    }
    TpxStatus status;

 private:
    Job job_;
    int misalign_;
    std::unique_ptr<GuardedBytes> memory_;
};

// ---- Order of checks -------------------------------------------------------------------------------------

template <class T>
struct WarpCallArgs {
    const T* src;
    T* dst;
    const TpxiWarpSpec* spec;
    Tpx8u* buffer;
    TpxiPoint at;
    TpxiSize size;
    int srcStep, dstStep;
};

// Of all calls of a type. `good` is of one channel and leaves pixels outside alone; `missing` is the same, but
// maps the source to nowhere in the destination. `Other` has the names of another type.
template <class Names, class Other, class Job>
void expectProcessingChecks(const Job& good, const Job& missing) {
    using T = typename Names::T;
    using Args = WarpCallArgs<T>;
    using F = Fault<Args>;
    for (TpxInterpolationType kind : kKinds)
        for (int channels : {1, 3, 4}) {
            const auto with = [&](Job job, TpxInterpolationType k, int c) {
                job.kind = k;
                job.channels = c;
                return job;
            };
            const TpxInterpolationType otherKind =
                kind == tpxInterpolationLinear ? tpxInterpolationCubic : tpxInterpolationLinear;
            const WarpPlan<Names> plan(with(good, kind, channels)), miss(with(missing, kind, channels)),
                ofKind(with(good, otherKind, channels)), ofChannels(with(good, kind, channels == 3 ? 4 : 3));
            const WarpPlan<Other> ofType(with(good, kind, channels));
            GuardedImage<T> src(good.src.width, good.src.height, channels),
                dst(good.dst.width, good.dst.height, channels);
            std::vector<Tpx8u> buffer(1 << 16);
            const auto [width, height] = good.dst;
            const auto plans = [](const TpxiWarpSpec* spec) { return [spec](Args& a) { a.spec = spec; }; };
            const auto sizes = [](int w, int h) { return [w, h](Args& a) { a.size = {w, h}; }; };
            std::vector<F> faults = {
                {"source", [](Args& a) { a.src = nullptr; }, tpxErrNullPointer},
                {"destination", [](Args& a) { a.dst = nullptr; }, tpxErrNullPointer},
                {"plan", [](Args& a) { a.spec = nullptr; }, tpxErrNullPointer},
                {"buffer", [](Args& a) { a.buffer = nullptr; }, tpxErrNullPointer},
                {"size", sizes(0, height), tpxWarnNoOperation},
                {"size", sizes(width, 0), tpxWarnNoOperation},
                {"size", sizes(0, 0), tpxWarnNoOperation},
                {"plan", plans(ofType.spec()), tpxErrContext},
                {"plan", plans(ofKind.spec()), tpxErrContext},
                {"plan", plans(ofChannels.spec()), tpxErrContext},
                {"size", sizes(-1, 0), tpxErrSize},
                {"size", sizes(0, -1), tpxErrSize},
                {"size", sizes(5, -1), tpxErrSize},
                {"offset", [](Args& a) { a.at.x = -1; }, tpxErrOutOfRange},
                {"offset", [](Args& a) { a.at.y = -1; }, tpxErrOutOfRange},
                {"offset", [w = width](Args& a) { a.at.x = w; }, tpxErrOutOfRange},
                {"offset", [h = height](Args& a) { a.at.y = h; }, tpxErrOutOfRange},
                {"plan", plans(miss.spec()), tpxWarnNoQuadOverlap},
            };
            if (sizeof(T) > 1)
                faults.insert(faults.begin() + 13,
                              {{"source step", [](Args& a) { a.srcStep++; }, tpxErrStep},
                               {"destination step", [](Args& a) { a.dstStep += sizeof(T) / 2; }, tpxErrStep}});
            const Args args{src.data(), dst.data(), plan.spec(), buffer.data(),
                            {0, 0},     good.dst,   src.step(),  dst.step()};
            const auto call = [&](const Args& a) {
                return Names::call(Names::kCalls, kind, channels)(a.src, a.srcStep, a.dst, a.dstStep, a.at,
                                                                  a.size, a.spec, a.buffer);
            };
            EXPECT_EQ(tpxOk, call(args));
            expectCheckOrder(args, faults, call);
            // Tiles that are too large are cut.
            for (TpxiSize larger : {TpxiSize{width + 1, height}, {width, height + 1}}) {
                Args one = args;
                one.size = larger;
                EXPECT_EQ(tpxWarnValueAdjusted, call(one));
                EXPECT_TRUE(dst.paddingIntact());
            }
        }
}

// ---- Beside the model ------------------------------------------------------------------------------------

// How far samples may be from the model's, apart from rounding: fractions and weights have 24 bits, or 53.
template <class T>
constexpr double toleranceOf() {
    const double range = std::is_integral_v<T> ? double(std::numeric_limits<T>::max()) : 1000;
    return range * (sizeof(T) == 8 ? 1e-11 : 2e-6) + (std::is_integral_v<T> ? 0.5 : 0);
}

// Fails at the first sample that is neither the model's nor, if it may be that, what was there before. `image`
// gives source samples as doubles.
template <class Model, class T, class Image>
::testing::AssertionResult fits(const Model& model, const GuardedImage<T>& dst, const GuardedImage<T>& before,
                                const Image& image) {
    constexpr double kNear = 1e-6; // of an edge, where either is right
    const bool nearest = model.interpolation == tpxInterpolationNearest;
    for (int y = 0; y < dst.height(); y++)
        for (int x = 0; x < dst.width(); x++) {
            const WarpPlace at = model.place(x, y);
            const bool mayStay = (model.leaves() && !model.isMapped(at, -kNear)) || !model.reaches(x, y);
            const bool mayChange = (!model.leaves() || model.isMapped(at, kNear)) && model.reaches(x, y);
            for (int c = 0; c < dst.channels(); c++) {
                const T got = dst.at(x, y, c);
                if (mayStay && sameBits(got, before.at(x, y, c))) continue;
                double want = 0;
                bool found = false;
                for (int i = nearest ? -1 : 0; i <= int(nearest); i++)
                    for (int k = nearest ? -1 : 0; k <= int(nearest); k++) {
                        want = model.sample({at.x + i * kNear, at.y + k * kNear}, c,
                                            [&](int sx, int sy) { return image(sx, sy, c); });
                        want = nearest                 ? want
                               : std::is_integral_v<T> ? std::clamp(want, double(std::numeric_limits<T>::min()),
                                                                    double(std::numeric_limits<T>::max()))
                                                       : want;
                        const double off = std::fabs(double(got) - want);
                        found = found || (nearest ? off == 0 : off <= toleranceOf<T>());
                    }
                if (!mayChange || !found)
                    return ::testing::AssertionFailure()
                           << "at " << x << ", " << y << ", channel " << c << ", position " << at.x << ", "
                           << at.y << " of " << model.src.width << " x " << model.src.height << ", kind "
                           << model.interpolation << ", border " << std::hex << model.border << ": got " << +got
                           << ", expected " << (mayChange ? want : double(before.at(x, y, c)));
            }
        }
    if (!dst.paddingIntact()) return ::testing::AssertionFailure() << "bytes between rows were written";
    return ::testing::AssertionSuccess();
}

inline std::vector<TpxBorderType> borders() {
    std::vector<TpxBorderType> words = {tpxBorderInMemAll};
    for (unsigned kind : {tpxBorderReplicate, tpxBorderConstant, tpxBorderTransparent})
        for (unsigned sides : {0u, 0x10u, 0x20u, 0x40u, 0x80u, 0xA0u, 0xF0u}) words.push_back(kind | sides);
    return words;
}

// The source of a job with just the pixels that may be read: a rectangle of it, or all, and one pixel further
// on sides in memory. The border is the one that the warp comes to.
template <class T>
class WarpSource {
 public:
    template <class Job>
    WarpSource(const Job& job, Lie lie, unsigned seed) : WarpSource(job, job.border, wholeOf(job), lie, seed) {}
    template <class Job>
    WarpSource(const Job& job, TpxBorderType border, TpxiRect part, Lie lie, unsigned seed)
        : left_(part.x - further(job, border, tpxBorderInMemLeft)),
          top_(part.y - further(job, border, tpxBorderInMemTop)),
          image_(part.x + part.width + further(job, border, tpxBorderInMemRight) - left_,
                 part.y + part.height + further(job, border, tpxBorderInMemBottom) - top_, job.channels, lie) {
        image_.randomise(seed);
    }
    // Of the source's first pixel, be it there or not.
    const T* data() const {
        const ptrdiff_t before = left_ * ptrdiff_t(sizeof(T)) * image_.channels() + ptrdiff_t(top_) * step();
        return reinterpret_cast<const T*>(reinterpret_cast<uintptr_t>(image_.data()) - uintptr_t(before));
    }
    int step() const { return image_.step(); }
    double operator()(int x, int y, int c) const { return double(image_.at(x - left_, y - top_, c)); }

 private:
    template <class Job>
    static TpxiRect wholeOf(const Job& job) {
        return {0, 0, job.src.width, job.src.height};
    }
    template <class Job>
    static int further(const Job& job, TpxBorderType border, unsigned side) {
        const bool leaves = border == tpxBorderInMemAll || (border & 15) == tpxBorderTransparent;
        return job.kind == tpxInterpolationCubic && leaves && (border & side) != 0;
    }
    int left_, top_; // of the pixels that there are
    GuardedImage<T> image_;
};

// A rectangle of a source that begins in it, and the part of it that there is.
struct WarpPart {
    TpxiRect roi, part;

    WarpPart(TpxiSize src, unsigned random) {
        roi = {int(random % unsigned(src.width)), int(random / 16 % unsigned(src.height)),
               2 + int(random / 256 % 16), 2 + int(random / 4096 % 16)};
        part = {roi.x, roi.y, std::min(roi.width, src.width - roi.x), std::min(roi.height, src.height - roi.y)};
    }
    // Pixels outside a rectangle's image stay as they were.
    static TpxBorderType border(TpxBorderType given) { return (given & ~15u) | tpxBorderTransparent; }
};

// ---- Whole destinations and tiles ------------------------------------------------------------------------

// One call beside the model, at places and addresses that change with the turn.
template <class Names, class Model>
void expectFits(const typename Names::Job& job, const Model& model, unsigned turn) {
    using T = typename Names::T;
    const Lie kLies[] = {{0, Edge::End, 0}, {24, Edge::Start, 1}, {8, Edge::End, 3}};
    const WarpSource<T> src(job, kLies[turn % 3], turn);
    GuardedImage<T> dst(job.dst.width, job.dst.height, job.channels, kLies[(turn + 1) % 3]);
    dst.randomise(turn + 77);
    GuardedImage<T> before(job.dst.width, job.dst.height, job.channels);
    before.copySamplesFrom(dst);
    const WarpPlan<Names> plan(job, int(turn % 5));
    ASSERT_TRUE(plan.status == tpxOk || plan.status == tpxWarnNoQuadOverlap) << plan.status;
    const TpxStatus status =
        plan.run(src.data(), src.step(), dst.data(), dst.step(), {0, 0, dst.width(), dst.height()});
    ASSERT_TRUE(status == tpxOk || status == tpxWarnNoQuadOverlap) << status;
    ASSERT_TRUE(fits(model, dst, before, src)) << "turn " << turn;
}

// Tiles of any sizes, the last ones running past the destination, are the bytes of one call.
template <class Names>
void expectTilesEqualOneCall(const typename Names::Job& job, std::mt19937& random) {
    using T = typename Names::T;
    const auto [width, height] = job.dst;
    const WarpPlan<Names> plan(job);
    GuardedImage<T> src(job.src.width, job.src.height, job.channels), whole(width, height, job.channels),
        tiled(width, height, job.channels);
    src.randomise(1);
    whole.randomise(2);
    tiled.copySamplesFrom(whole);
    EXPECT_EQ(tpxOk, plan.run(src, whole));
    for (int y = 0, rows; y < height; y += rows) {
        rows = 1 + int(random() % 40);
        for (int x = 0, columns; x < width; x += columns) {
            columns = 1 + int(random() % 50);
            T* const at =
                reinterpret_cast<T*>(reinterpret_cast<char*>(tiled.data()) + ptrdiff_t(y) * tiled.step()) +
                x * job.channels;
            const TpxStatus status = plan.run(src.data(), src.step(), at, tiled.step(), {x, y, columns, rows});
            const bool isCut = x + columns > width || y + rows > height;
            EXPECT_TRUE(status == tpxWarnNoQuadOverlap || status == (isCut ? tpxWarnValueAdjusted : tpxOk))
                << status;
        }
    }
    EXPECT_TRUE(matches(tiled, [&](int x, int y, int c) { return whole.at(x, y, c); }))
        << "kind " << job.kind << ", border " << job.border << ", smooth " << job.smoothEdge;
}

} // namespace tpx::test
