// SPDX-License-Identifier: Apache-2.0
// Races of functions that go from sample to sample: one line registers a function at every size.
#pragma once

#include "image.h"
#include "opencv.h"
#include "race.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace bench {

inline void check(TpxStatus status) {
    if (status != tpxOk) throw std::runtime_error("status " + std::to_string(status));
}

template <typename T>
void checkSame(const Image<T>& got, const Image<T>& expected, double tolerance) {
    const double off = distance(got, expected);
    if (!(off <= tolerance)) throw std::runtime_error("the scalar form differs by " + std::to_string(off));
}

// The leading functions of a family run at all sizes, from an image that fits the first-level cache to one that
// is beyond the largest cache that the processor tells. Slow functions are compute-bound at every size, and
// leave the last one out. Variants, in other types and layouts, run at the middle sizes.
enum class Sizes { all, withinCache, middle };

inline std::vector<TpxiSize> sizes(Sizes which, size_t pixelBytes) {
    std::vector<TpxiSize> list = {{640, 480}, {1920, 1080}};
    if (which != Sizes::middle) list.insert(list.begin(), {64, 64});
    if (which == Sizes::all)
        list.push_back({16384, static_cast<int>(beyondCacheBytes() / 16384 / static_cast<double>(pixelBytes))});
    return list;
}

struct Pointwise {
    const char* group;
    const char* function;
    int channels = 1;
    double low = 0; // samples of the source
    double high = 1;
    double tolerance = 0; // between the library's samples and the scalar form's
    Sizes sizes = Sizes::middle;
    bool reads = true; // false: only the destination counts
};

// `ours` is called with (source, its step, destination, its step, size in pixels), `scalar` with (source,
// destination, number of samples) for each row. Further contenders get (source image, destination image);
// OpenCV also gets the constants.
template <typename T>
using Process = std::function<TpxStatus(const T*, int, T*, int, TpxiSize)>;
template <typename T>
using ScalarRow = std::function<void(const T*, T*, size_t)>;
template <typename T>
struct Other {
    const char* name;
    std::function<void(const Image<T>&, const Image<T>&)> run;
};

template <typename T>
void addPointwise(const Pointwise& what, Process<T> ours, ScalarRow<T> scalar,
                  std::vector<Other<T>> others = {}, Operands constants = {}) {
    for (const TpxiSize size : sizes(what.sizes, what.channels * sizeof(T))) {
        const double samples = static_cast<double>(size.width) * size.height * what.channels;
        const Job job{what.group, what.function, text(size), samples,
                      samples * sizeof(T) * (what.reads ? 2 : 1)};
        addJob(job, [=] {
            const auto src = std::make_shared<Image<T>>(size, what.channels, what.low, what.high);
            const auto dst = std::make_shared<Image<T>>(size, what.channels);
            const auto runOurs = [=](const Image<T>& to) {
                return ours(src->data(), src->step(), to.data(), to.step(), size);
            };
            const auto runScalar = [=] {
                for (int y = 0; y < size.height; ++y) scalar(src->row(y), dst->row(y), src->rowSamples());
            };
            if (src->bytes() < beyondCacheBytes() / 2) {
                const Image<T> got(size, what.channels);
                check(runOurs(got));
                runScalar();
                checkSame(got, *dst, what.tolerance);
            }
            std::vector<Contender> list = {
                {kOurs, [=] { runOurs(*dst); }}, {kCopy, [=] { copyImage(*src, *dst); }}, {kScalar, runScalar}};
            for (const auto& other : others) list.push_back({other.name, [=] { other.run(*src, *dst); }});
            Operands from = constants;
            from.insert(from.begin(), *src);
            joinOpencv(list, what.function, from, {*dst});
            return list;
        });
    }
}

// From two sources to a destination. The copy beside it moves as many bytes as are read and written, half as
// many again as an image has: the first source to the destination, then the upper half of the second source.
template <typename T>
using Combine = std::function<TpxStatus(const T*, int, const T*, int, T*, int, TpxiSize)>;
template <typename T>
using ScalarCombine = std::function<void(const T*, const T*, T*, size_t)>;

template <typename T>
void addCombining(const Pointwise& what, Combine<T> ours, ScalarCombine<T> scalar) {
    for (const TpxiSize size : sizes(what.sizes, what.channels * sizeof(T))) {
        const double samples = static_cast<double>(size.width) * size.height * what.channels;
        addJob({what.group, what.function, text(size), samples, samples * sizeof(T) * 3}, [=] {
            const auto src1 = std::make_shared<Image<T>>(size, what.channels, what.low, what.high);
            const auto src2 = std::make_shared<Image<T>>(size, what.channels, what.low, what.high);
            for (int y = 0; y < size.height; ++y) std::reverse(src2->row(y), src2->row(y) + src2->rowSamples());
            const auto dst = std::make_shared<Image<T>>(size, what.channels);
            const auto runOurs = [=](const Image<T>& to) {
                return ours(src1->data(), src1->step(), src2->data(), src2->step(), to.data(), to.step(), size);
            };
            const auto runScalar = [=] {
                for (int y = 0; y < size.height; ++y)
                    scalar(src1->row(y), src2->row(y), dst->row(y), dst->rowSamples());
            };
            if (dst->bytes() < beyondCacheBytes() / 2) {
                const Image<T> got(size, what.channels);
                check(runOurs(got));
                runScalar();
                checkSame(got, *dst, what.tolerance);
            }
            const auto runCopy = [=] {
                copyImage(*src1, *dst);
                copyRows(*src2, *dst, size.height / 2);
            };
            std::vector<Contender> list = {
                {kOurs, [=] { runOurs(*dst); }}, {kCopy, runCopy}, {kScalar, runScalar}};
            joinOpencv(list, what.function, {*src1, *src2}, {*dst});
            return list;
        });
    }
}

// A function and a last argument for it, for functions that take a scale factor.
template <typename F>
auto withLast(F function, int last) {
    return [=](auto... arguments) { return function(arguments..., last); };
}

} // namespace bench
