// SPDX-License-Identifier: Apache-2.0
// Functions that read images and leave a value per channel. Beside them stands a plain read of the same memory.
#include "../families.h"
#include "../frame/pointwise.h"
#include "../frame/reading.h"
#include "models/models.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace bench {
namespace {

constexpr const char* kGroup = "Reductions";

// The value of the first channel, of one image or two.
template <typename T>
using Reduce = std::function<double(const Image<T>& src1, const Image<T>& src2)>;

struct What {
    const char* function;
    int sources = 1;
    int channels = 1;
    Sizes sizes = Sizes::middle;
    double low = 0, high = 200;
};

template <typename T>
void addReduction(const What& what, Reduce<T> ours, Reduce<T> scalar) {
    for (const TpxiSize size : sizes(what.sizes, what.channels * sizeof(T))) {
        const double samples = static_cast<double>(size.width) * size.height * what.channels;
        addJob({kGroup, what.function, text(size), samples, samples * sizeof(T) * what.sources}, [=] {
            const auto src1 = std::make_shared<Image<T>>(size, what.channels, what.low, what.high);
            const auto src2 = std::make_shared<Image<T>>(size, what.channels, what.low, what.high);
            for (int y = 0; y < size.height; ++y) std::reverse(src2->row(y), src2->row(y) + src2->rowSamples());
            const double got = ours(*src1, *src2), expected = scalar(*src1, *src2);
            if (what.channels == 1 && !(std::fabs(got - expected) <= 1e-3 * std::fabs(expected)))
                throw std::runtime_error(std::to_string(got) + ", the scalar form " + std::to_string(expected));
            const auto read = [=] {
                readImage(*src1);
                if (what.sources == 2) readImage(*src2);
            };
            const auto keep = [=](const Reduce<T>& reduce) {
                return [=] {
                    double value = reduce(*src1, *src2);
                    benchmark::DoNotOptimize(value);
                };
            };
            std::vector<Contender> list = {{kOurs, keep(ours)}, {kRead, read}, {kScalar, keep(scalar)}};
            joinOpencv(list, what.function, {*src1, *src2}, {}, got);
            return list;
        });
    }
}

// Reductions of one image: (source, step, size, result...).
template <typename T, typename R, typename F, typename... Last>
Reduce<T> one(F function, Last... last) {
    return [=](const Image<T>& src, const Image<T>&) {
        R values[4] = {};
        check(function(src.data(), src.step(), src.size(), values, last...));
        return static_cast<double>(values[0]);
    };
}
template <typename T, typename F, typename... Last>
Reduce<T> two(F function, Last... last) {
    return [=](const Image<T>& src1, const Image<T>& src2) {
        double values[4] = {};
        check(function(src1.data(), src1.step(), src2.data(), src2.step(), src1.size(), values, last...));
        return values[0];
    };
}

template <typename T>
double sumOfRows(const Image<T>& src1, const Image<T>& src2, double (*row)(const T*, const T*, size_t)) {
    double total = 0;
    for (int y = 0; y < src1.size().height; ++y) total += row(src1.row(y), src2.row(y), src1.rowSamples());
    return total;
}
template <typename T>
double plainSum(const Image<T>& src, const Image<T>& other) {
    return sumOfRows<T>(src, other, [](const T* x, const T*, size_t n) { return tpx::model::sum(x, n); });
}
template <typename T>
double plainProducts(const Image<T>& src1, const Image<T>& src2) {
    return sumOfRows<T>(src1, src2, tpx::model::sumOfProducts<T>);
}
template <typename T>
double plainL1(const Image<T>& src, const Image<T>& other) {
    return sumOfRows<T>(src, other, [](const T* x, const T*, size_t n) {
        return tpx::model::sumOfMagnitudes<T>(x, nullptr, n);
    });
}
template <typename T>
double plainL1Diff(const Image<T>& src1, const Image<T>& src2) {
    return sumOfRows<T>(src1, src2, tpx::model::sumOfMagnitudes<T>);
}
template <typename T>
double plainL2(const Image<T>& src, const Image<T>&) {
    return std::sqrt(plainProducts(src, src));
}
template <typename T>
double plainLeast(const Image<T>& src, const Image<T>&) {
    T best = *src.row(0);
    for (int y = 0; y < src.size().height; ++y)
        best = std::min(best, src.row(y)[tpx::model::least(src.row(y), src.rowSamples())]);
    return best;
}

template <typename T>
double plainMost(const Image<T>& src, const Image<T>&) {
    T best = *src.row(0);
    for (int y = 0; y < src.size().height; ++y)
        best = std::max(best, tpx::model::most(src.row(y), src.rowSamples()));
    return best;
}

template <typename T, typename F>
Reduce<T> place(F function) {
    return [=](const Image<T>& src, const Image<T>&) {
        T values[4] = {};
        int x[4], y[4];
        check(function(src.data(), src.step(), src.size(), values, x, y));
        return static_cast<double>(values[0]);
    };
}
template <typename T, typename F>
Reduce<T> both(F function) {
    return [=](const Image<T>& src, const Image<T>&) {
        T least[4] = {}, most[4];
        check(function(src.data(), src.step(), src.size(), least, most));
        return static_cast<double>(least[0]);
    };
}

} // namespace

void addReductions() {
    addReduction<Tpx8u>({"tpxiSum_8u_C1R", 1, 1, Sizes::all}, one<Tpx8u, double>(tpxiSum_8u_C1R),
                        plainSum<Tpx8u>);
    addReduction<Tpx8u>({"tpxiSum_8u_C3R", 1, 3}, one<Tpx8u, double>(tpxiSum_8u_C3R), plainSum<Tpx8u>);
    addReduction<Tpx16u>({"tpxiSum_16u_C1R"}, one<Tpx16u, double>(tpxiSum_16u_C1R), plainSum<Tpx16u>);
    addReduction<Tpx16s>({"tpxiSum_16s_C1R"}, one<Tpx16s, double>(tpxiSum_16s_C1R), plainSum<Tpx16s>);
    addReduction<Tpx32f>({"tpxiSum_32f_C1R", 1, 1, Sizes::all},
                         one<Tpx32f, double>(tpxiSum_32f_C1R, tpxHintAccurate), plainSum<Tpx32f>);

    addReduction<Tpx8u>({"tpxiMin_8u_C1R", 1, 1, Sizes::all, 1}, one<Tpx8u, Tpx8u>(tpxiMin_8u_C1R),
                        plainLeast<Tpx8u>);
    addReduction<Tpx8u>({"tpxiMin_8u_C3R", 1, 3, Sizes::middle, 1}, one<Tpx8u, Tpx8u>(tpxiMin_8u_C3R),
                        plainLeast<Tpx8u>);
    addReduction<Tpx16s>({"tpxiMin_16s_C1R", 1, 1, Sizes::middle, 1}, one<Tpx16s, Tpx16s>(tpxiMin_16s_C1R),
                         plainLeast<Tpx16s>);
    addReduction<Tpx32f>({"tpxiMin_32f_C1R", 1, 1, Sizes::middle, 1}, one<Tpx32f, Tpx32f>(tpxiMin_32f_C1R),
                         plainLeast<Tpx32f>);
    addReduction<Tpx8u>({"tpxiMinMax_8u_C1R", 1, 1, Sizes::middle, 1}, both<Tpx8u>(tpxiMinMax_8u_C1R),
                        plainLeast<Tpx8u>);
    addReduction<Tpx32f>({"tpxiMinMax_32f_C1R", 1, 1, Sizes::middle, 1}, both<Tpx32f>(tpxiMinMax_32f_C1R),
                         plainLeast<Tpx32f>);
    addReduction<Tpx8u>({"tpxiMinIndx_8u_C1R", 1, 1, Sizes::withinCache, 1}, place<Tpx8u>(tpxiMinIndx_8u_C1R),
                        plainLeast<Tpx8u>);
    addReduction<Tpx16s>({"tpxiMinIndx_16s_C1R", 1, 1, Sizes::middle, 1}, place<Tpx16s>(tpxiMinIndx_16s_C1R),
                         plainLeast<Tpx16s>);
    addReduction<Tpx32f>({"tpxiMinIndx_32f_C1R", 1, 1, Sizes::middle, 1}, place<Tpx32f>(tpxiMinIndx_32f_C1R),
                         plainLeast<Tpx32f>);

    addReduction<Tpx8u>({"tpxiDotProd_8u64f_C1R", 2, 1, Sizes::withinCache}, two<Tpx8u>(tpxiDotProd_8u64f_C1R),
                        plainProducts<Tpx8u>);
    addReduction<Tpx8u>({"tpxiDotProd_8u64f_C3R", 2, 3}, two<Tpx8u>(tpxiDotProd_8u64f_C3R),
                        plainProducts<Tpx8u>);
    addReduction<Tpx16u>({"tpxiDotProd_16u64f_C1R", 2, 1, Sizes::withinCache},
                         two<Tpx16u>(tpxiDotProd_16u64f_C1R), plainProducts<Tpx16u>);
    addReduction<Tpx16s>({"tpxiDotProd_16s64f_C1R", 2, 1, Sizes::withinCache},
                         two<Tpx16s>(tpxiDotProd_16s64f_C1R), plainProducts<Tpx16s>);
    addReduction<Tpx32s>({"tpxiDotProd_32s64f_C1R", 2}, two<Tpx32s>(tpxiDotProd_32s64f_C1R),
                         plainProducts<Tpx32s>);
    addReduction<Tpx32f>({"tpxiDotProd_32f64f_C1R fast", 2, 1, Sizes::withinCache},
                         two<Tpx32f>(tpxiDotProd_32f64f_C1R, tpxHintFast), plainProducts<Tpx32f>);
    addReduction<Tpx32f>({"tpxiDotProd_32f64f_C1R accurate", 2, 1, Sizes::withinCache},
                         two<Tpx32f>(tpxiDotProd_32f64f_C1R, tpxHintAccurate), plainProducts<Tpx32f>);

    addReduction<Tpx8u>({"tpxiNorm_Inf_8u_C1R"}, one<Tpx8u, double>(tpxiNorm_Inf_8u_C1R), plainMost<Tpx8u>);
    addReduction<Tpx16s>({"tpxiNorm_L1_16s_C1R", 1, 1, Sizes::middle, -200},
                         one<Tpx16s, double>(tpxiNorm_L1_16s_C1R), plainL1<Tpx16s>);
    addReduction<Tpx32f>({"tpxiNorm_L1_32f_C1R fast"}, one<Tpx32f, double>(tpxiNorm_L1_32f_C1R, tpxHintFast),
                         plainL1<Tpx32f>);
    addReduction<Tpx8u>({"tpxiNorm_L2_8u_C1R", 1, 1, Sizes::withinCache},
                        one<Tpx8u, double>(tpxiNorm_L2_8u_C1R), plainL2<Tpx8u>);
    addReduction<Tpx8u>({"tpxiNorm_L2_8u_C3R", 1, 3}, one<Tpx8u, double>(tpxiNorm_L2_8u_C3R), plainL2<Tpx8u>);
    addReduction<Tpx16u>({"tpxiNorm_L2_16u_C1R"}, one<Tpx16u, double>(tpxiNorm_L2_16u_C1R), plainL2<Tpx16u>);
    addReduction<Tpx16s>({"tpxiNorm_L2_16s_C1R"}, one<Tpx16s, double>(tpxiNorm_L2_16s_C1R), plainL2<Tpx16s>);
    addReduction<Tpx32f>({"tpxiNorm_L2_32f_C1R fast"}, one<Tpx32f, double>(tpxiNorm_L2_32f_C1R, tpxHintFast),
                         plainL2<Tpx32f>);
    addReduction<Tpx32f>({"tpxiNorm_L2_32f_C1R accurate"},
                         one<Tpx32f, double>(tpxiNorm_L2_32f_C1R, tpxHintAccurate), plainL2<Tpx32f>);
    addReduction<Tpx8u>({"tpxiNormDiff_L1_8u_C1R", 2, 1, Sizes::withinCache, 0, 250},
                        two<Tpx8u>(tpxiNormDiff_L1_8u_C1R), plainL1Diff<Tpx8u>);
    addReduction<Tpx16s>({"tpxiNormDiff_L1_16s_C1R", 2, 1, Sizes::middle, -200},
                         two<Tpx16s>(tpxiNormDiff_L1_16s_C1R), plainL1Diff<Tpx16s>);
}

} // namespace bench
