// SPDX-License-Identifier: Apache-2.0
#include "opencv.h"

#ifdef TPX_HAVE_OPENCV

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <regex>
#include <stdexcept>

namespace bench {
namespace {

// ---- Who does which work -----------------------------------------------------------------------------------

using From = const std::vector<cv::Mat>&;
using To = std::vector<cv::Mat>&;

// Jobs by a regular expression. Samples may be apart by `parts` of the largest one, integers further by
// `units`.
struct ToImages {
    const char* jobs;
    void (*run)(From, To);
    double units = 0;
    double parts = 0;
};
struct ToValue {
    const char* jobs;
    double (*run)(From);
};

constexpr double kFewUlps = 8 * 0x1p-23; // of logarithms and exponentials
constexpr double kOtherSums = 1e-5;      // of floats that are added in another order
constexpr double kCoarse = 1e-4;         // weights of fewer bits
constexpr double kOther = INFINITY;      // as much work, but other pixels or weights are chosen

constexpr int kEdge = cv::BORDER_REPLICATE;

template <int border>
void addMargins(From from, To to) {
    const int x = (to[0].cols - from[0].cols) / 2, y = (to[0].rows - from[0].rows) / 2;
    cv::copyMakeBorder(from[0], to[0], y, y, x, x, border, {7, 8, 9});
}
template <int code>
void recolour(From from, To to) {
    cv::cvtColor(from[0], to[0], code);
}
// The threshold is the first operand behind the image.
template <int rule>
void threshold(From from, To to) {
    cv::threshold(from[0], to[0], from[1].at<double>(0), 0, rule);
}
template <int interpolation>
void resize(From from, To to) {
    cv::resize(from[0], to[0], to[0].size(), 0, 0, interpolation);
}
template <int side>
void box(From from, To to) {
    cv::blur(from[0], to[0], {side, side}, {-1, -1}, kEdge);
}
template <int side>
void median(From from, To to) {
    cv::medianBlur(from[0], to[0], side);
}
template <int dx, int dy, int side, int sign>
void sobel(From from, To to) {
    cv::Sobel(from[0], to[0], to[0].depth(), dx, dy, side, sign, 0, kEdge);
}
// Levels at even distances from 0 to the second operand.
void histogram(From from, To to) {
    static cv::Mat counts; // floats
    const int channel = 0, bins = to[0].cols;
    const float range[] = {0, static_cast<float>(from[1].at<double>(0))}, *ranges = range;
    cv::calcHist(from.data(), 1, &channel, {}, counts, 1, &bins, &ranges);
    counts.reshape(1, 1).convertTo(to[0], CV_32S);
}
template <int interpolation>
void affine(From from, To to) {
    cv::warpAffine(from[0], to[0], from[1], to[0].size(), interpolation | cv::WARP_INVERSE_MAP,
                   cv::BORDER_TRANSPARENT);
}
template <int interpolation>
void perspective(From from, To to) {
    cv::warpPerspective(from[0], to[0], from[1], to[0].size(), interpolation | cv::WARP_INVERSE_MAP,
                        cv::BORDER_TRANSPARENT);
}
template <int interpolation>
void remap(From from, To to) {
    cv::remap(from[0], to[0], from[1], from[2], interpolation, cv::BORDER_TRANSPARENT);
}

const ToImages kToImages[] = {
    {"tpxiCopy_.*_C[13]R", [](From from, To to) { from[0].copyTo(to[0]); }},
    {"tpxiCopy_.*_C[13]MR", [](From from, To to) { from[0].copyTo(to[0], from[1]); }},
    {"tpxiCopy_.*_C.P.R", [](From from, To to) { cv::split(from[0], to.data()); }},
    {"tpxiCopy_.*_P.C.R", [](From from, To to) { cv::merge(from.data(), from.size(), to[0]); }},
    {"tpxiCopy_.*_C[34]C1R", [](From from, To to) { cv::extractChannel(from[0], to[0], 0); }},
    {"tpxiCopy_.*_C1C3R", [](From from, To to) { cv::insertChannel(from[0], to[0], 0); }},
    {"tpxiCopy_.*_AC4C3R", recolour<cv::COLOR_BGRA2BGR>},
    {"tpxiDup_.*_C1C3R", recolour<cv::COLOR_GRAY2BGR>},
    {"tpxiSwapChannels_.*_C3R", recolour<cv::COLOR_BGR2RGB>},
    {"tpxiSwapChannels_.*_C4R", recolour<cv::COLOR_BGRA2RGBA>},
    {"tpxiSet_.*", [](From, To to) { to[0].setTo(cv::Scalar(7, 8, 9)); }},

    {"tpxiCopyConstBorder_.*", addMargins<cv::BORDER_CONSTANT>},
    {"tpxiCopyReplicateBorder_.*", addMargins<kEdge>},
    {"tpxiCopyMirrorBorder_.*", addMargins<cv::BORDER_REFLECT_101>},
    {"tpxiCopyWrapBorder_.*", addMargins<cv::BORDER_WRAP>},

    {"tpxiConvert_(8u|16u|16s|32s|32f)(8u|16u|16s|32s|32f)_C.R( nearest)?",
     [](From from, To to) { from[0].convertTo(to[0], to[0].depth()); }},

    {"tpxiSqr_32f_C1R", [](From from, To to) { cv::multiply(from[0], from[0], to[0]); }},
    {"tpxiSqrt_32f_C1R", [](From from, To to) { cv::sqrt(from[0], to[0]); }},
    {"tpxiLn_32f_C1R", [](From from, To to) { cv::log(from[0], to[0]); }, 0, kFewUlps},
    {"tpxiExp_32f_C1R", [](From from, To to) { cv::exp(from[0], to[0]); }, 0, kFewUlps},
    {"tpxiAdd_(.*_C.RSfs, 0|32f_C1R)", [](From from, To to) { cv::add(from[0], from[1], to[0]); }},
    {"tpxiSub_(.*_C.RSfs, 0|32f_C1R)", [](From from, To to) { cv::subtract(from[1], from[0], to[0]); }},
    {"tpxiMul_(.*_C.RSfs, 0|32f_C1R)", [](From from, To to) { cv::multiply(from[0], from[1], to[0]); }},
    {"tpxiMinEvery_.*_C1R", [](From from, To to) { cv::min(from[0], from[1], to[0]); }},

    {"tpxiThreshold_GT_.*_C1R", threshold<cv::THRESH_TRUNC>},
    {"tpxiThreshold_LT_.*_C1R", [](From from, To to) { cv::max(from[0], from[1].at<double>(0), to[0]); }},
    {"tpxiThreshold_GTVal_.*_C1R", threshold<cv::THRESH_TOZERO_INV>},
    {"tpxiThreshold_LTVal_.*_C1R",
     [](From from, To to) { // it keeps what is above, the library also what is equal
         const auto level = static_cast<float>(from[1].at<double>(0));
         const float below = from[0].depth() == CV_32F ? std::nextafter(level, 0.f) : level - 1;
         cv::threshold(from[0], to[0], below, 0, cv::THRESH_TOZERO);
     }},

    {"tpxiHistogram_.*_C1R( one value)? 257 levels", histogram},
    {"tpxiLUT_8u_.*", [](From from, To to) { cv::LUT(from[0], from[1], to[0]); }},

    {"tpxiResizeLinear_.*", resize<cv::INTER_LINEAR>, 1, kCoarse},
    {"tpxiResizeNearest_.*", resize<cv::INTER_NEAREST>, kOther, kOther},
    {"tpxiResizeCubic_.*", resize<cv::INTER_CUBIC>, kOther, kOther},
    {"tpxiResizeSuper_.*", resize<cv::INTER_AREA>, 1, kOtherSums},

    {"tpxiFilterBoxBorder_.*, 3x3", box<3>, 1, kOtherSums},
    {"tpxiFilterBoxBorder_.*, 5x5", box<5>, 1, kOtherSums},
    {"tpxiFilterBoxBorder_.*, 15x15", box<15>, 1, kOtherSums},
    {"tpxiFilterMedianBorder_.*, 3x3", median<3>},
    {"tpxiFilterMedianBorder_.*, 5x5", median<5>},
    {"tpxiFilterMedianBorder_8u_.*, 7x7", median<7>},
    {"tpxiFilterMedianBorder_8u_.*, 15x15", median<15>},
    {"tpxiFilterSobelVertBorder_.*, 3x3", sobel<1, 0, 3, -1>, 0, kOtherSums},
    {"tpxiFilterSobelVertBorder_.*, 5x5", sobel<1, 0, 5, -1>, 0, kOtherSums},
    {"tpxiFilterSobelHorizBorder_.*, 3x3", sobel<0, 1, 3, 1>},
    {"tpxiFilterScharrHorizMaskBorder_.*, 3x3", sobel<0, 1, cv::FILTER_SCHARR, 1>},
    {"tpxiFilterBorder_.*",
     [](From from, To to) {
         cv::filter2D(from[0], to[0], to[0].depth(), from[1], {-1, -1}, 0, kEdge);
     },
     1, kOtherSums},

    {"tpxiWarpAffineNearest_.*", affine<cv::INTER_NEAREST>, kOther, kOther},
    {"tpxiWarpAffineLinear_.*", affine<cv::INTER_LINEAR>, kOther, kOther},
    {"tpxiWarpAffineCubic_.*", affine<cv::INTER_CUBIC>, kOther, kOther},
    {"tpxiWarpPerspectiveNearest_.*", perspective<cv::INTER_NEAREST>, kOther, kOther},
    {"tpxiWarpPerspectiveLinear_.*", perspective<cv::INTER_LINEAR>, kOther, kOther},
    {"tpxiWarpPerspectiveCubic_.*", perspective<cv::INTER_CUBIC>, kOther, kOther},
    {"tpxiRemap_(8u|16u|32f)_.*, nearest", remap<cv::INTER_NEAREST>, kOther, kOther},
    {"tpxiRemap_(8u|16u|32f)_.*, linear", remap<cv::INTER_LINEAR>, kOther, kOther},
    {"tpxiRemap_(8u|16u|32f)_.*, Catmull-Rom", remap<cv::INTER_CUBIC>, kOther, kOther},
};

const ToValue kToValue[] = {
    {"tpxiSum_.*", [](From from) { return cv::sum(from[0])[0]; }},
    {"tpxiMin(Max)?_.*_C1R",
     [](From from) {
         double least, most;
         cv::minMaxLoc(from[0], &least, &most);
         return least;
     }},
    {"tpxiMinIndx_.*_C1R",
     [](From from) {
         double least, most;
         cv::Point leastAt, mostAt;
         cv::minMaxLoc(from[0], &least, &most, &leastAt, &mostAt);
         return least;
     }},
    {"tpxiDotProd_.*_C1R.*", [](From from) { return from[0].dot(from[1]); }},
    {"tpxiNorm_Inf_.*_C1R", [](From from) { return cv::norm(from[0], cv::NORM_INF); }},
    {"tpxiNorm_L1_.*_C1R.*", [](From from) { return cv::norm(from[0], cv::NORM_L1); }},
    {"tpxiNorm_L2_.*_C1R.*", [](From from) { return cv::norm(from[0], cv::NORM_L2); }},
    {"tpxiNormDiff_L1_.*_C1R", [](From from) { return cv::norm(from[0], from[1], cv::NORM_L1); }},
};

// ---- The race ----------------------------------------------------------------------------------------------

constexpr const char* kName = "OpenCV";

bool leftOut = false;

bool isOf(const std::string& function, const char* jobs) {
    return std::regex_match(function, std::regex(jobs));
}
template <typename Peer, size_t count>
const Peer* find(const Peer (&peers)[count], const std::string& function) {
    for (const Peer& peer : peers)
        if (isOf(function, peer.jobs)) return &peer;
    return nullptr;
}

// Counts of 32 bits stay below half of their range.
int depthOf(const Operand& o) {
    if (o.isFloat) return o.sampleBytes == 4 ? CV_32F : CV_64F;
    if (o.sampleBytes == 1) return o.isSigned ? CV_8S : CV_8U;
    if (o.sampleBytes == 2) return o.isSigned ? CV_16S : CV_16U;
    return CV_32S;
}

std::vector<cv::Mat> matsOf(const Operands& operands) {
    std::vector<cv::Mat> mats;
    for (const Operand& o : operands)
        mats.emplace_back(o.size.height, o.size.width, CV_MAKETYPE(depthOf(o), o.channels), o.data,
                          static_cast<size_t>(o.step));
    return mats;
}

void complain(double off) { throw std::runtime_error("OpenCV's result differs by " + std::to_string(off)); }

// Both leave theirs in `to`, one after the other.
void checkImages(const Contender& ours, const ToImages& peer, From from, To to) {
    std::vector<cv::Mat> expected;
    ours.run();
    for (const cv::Mat& image : to) expected.push_back(image.clone());
    peer.run(from, to);
    for (size_t i = 0; i < to.size(); ++i) {
        const double off = cv::norm(to[i], expected[i], cv::NORM_INF);
        const double allowed = peer.parts * std::max(1.0, cv::norm(expected[i], cv::NORM_INF)) +
                               (to[i].depth() < CV_32F ? peer.units : 0);
        if (!(off <= allowed)) complain(off);
    }
}

} // namespace

void joinOpencv(std::vector<Contender>& list, const std::string& function, const Operands& from,
                const Operands& to, double value) {
    if (leftOut) return;
    cv::setNumThreads(1);
    const std::vector<cv::Mat> sources = matsOf(from);
    std::vector<cv::Mat> destinations = matsOf(to);
    if (const ToImages* peer = to.empty() ? nullptr : find(kToImages, function)) {
        const std::vector<cv::Mat> given = destinations;
        if (given[0].total() * given[0].elemSize() < beyondCacheBytes() / 4)
            checkImages(list.front(), *peer, sources, destinations);
        peer->run(sources, destinations);
        for (size_t i = 0; i < given.size(); ++i)
            if (destinations[i].data != given[i].data)
                throw std::runtime_error("OpenCV made an image of its own");
        list.push_back({kName, [=, owner = from]() mutable { peer->run(sources, destinations); }});
    } else if (const ToValue* peer = to.empty() ? find(kToValue, function) : nullptr) {
        const double off = std::fabs(peer->run(sources) - value);
        if (!(off <= 1e-5 * std::fabs(value))) complain(off);
        list.push_back({kName, [=] {
                            volatile double kept = peer->run(sources);
                            static_cast<void>(kept);
                        }});
    }
}

std::vector<std::string> strayOpencv(const std::vector<std::string>& functions) {
    std::vector<std::string> stray;
    const auto look = [&](const char* jobs) {
        if (std::none_of(functions.begin(), functions.end(),
                         [&](const std::string& function) { return isOf(function, jobs); }))
            stray.push_back(jobs);
    };
    for (const ToImages& peer : kToImages) look(peer.jobs);
    for (const ToValue& peer : kToValue) look(peer.jobs);
    return stray;
}

void leaveOutOpencv() { leftOut = true; }

std::string opencvVersion() { return std::string("OpenCV ") + (leftOut ? "left out" : CV_VERSION); }

} // namespace bench

#else

namespace bench {

void joinOpencv(std::vector<Contender>&, const std::string&, const Operands&, const Operands&, double) {}
std::vector<std::string> strayOpencv(const std::vector<std::string>&) { return {}; }
void leaveOutOpencv() {}
std::string opencvVersion() { return "OpenCV not found"; }

} // namespace bench

#endif
