// SPDX-License-Identifier: Apache-2.0
// The values of the statuses are part of the boundary, and every one has its name and its text.
#include <tpxi/status_text.h>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace {

struct Status {
    const char* name;
    TpxStatus enumerator;
    TpxStatus value;
};

const Status kStatuses[] = {
    // clang-format off
    {"tpxErrUnsupportedMode", tpxErrUnsupportedMode, -9999},
    {"tpxErrWarpTransform", tpxErrWarpTransform, -233},
    {"tpxErrSizeTooLarge", tpxErrSizeTooLarge, -232},
    {"tpxErrWarpDirection", tpxErrWarpDirection, -231},
    {"tpxErrAlgorithm", tpxErrAlgorithm, -228},
    {"tpxErrYuvSize", tpxErrYuvSize, -227},
    {"tpxErrBorder", tpxErrBorder, -225},
    {"tpxErrRoundMode", tpxErrRoundMode, -213},
    {"tpxErrDecimation", tpxErrDecimation, -212},
    {"tpxErrWeight", tpxErrWeight, -211},
    {"tpxErrZeroDenominator", tpxErrZeroDenominator, -210},
    {"tpxErrNoiseValue", tpxErrNoiseValue, -125},
    {"tpxErrStepNotMultiple", tpxErrStepNotMultiple, -108},
    {"tpxErrHistogramLevels", tpxErrHistogramLevels, -107},
    {"tpxErrLutLevels", tpxErrLutLevels, -106},
    {"tpxErrChannelOrder", tpxErrChannelOrder, -60},
    {"tpxErrQuad", tpxErrQuad, -58},
    {"tpxErrRect", tpxErrRect, -57},
    {"tpxErrCoefficient", tpxErrCoefficient, -56},
    {"tpxErrChannelCount", tpxErrChannelCount, -53},
    {"tpxErrDivisor", tpxErrDivisor, -51},
    {"tpxErrAlphaType", tpxErrAlphaType, -50},
    {"tpxErrChannelIndex", tpxErrChannelIndex, -47},
    {"tpxErrStepTooSmall", tpxErrStepTooSmall, -37},
    {"tpxErrEpsilon", tpxErrEpsilon, -36},
    {"tpxErrAnchor", tpxErrAnchor, -34},
    {"tpxErrMaskSize", tpxErrMaskSize, -33},
    {"tpxErrResizeFactor", tpxErrResizeFactor, -23},
    {"tpxErrInterpolation", tpxErrInterpolation, -22},
    {"tpxErrMirrorAxis", tpxErrMirrorAxis, -21},
    {"tpxErrMoment00Zero", tpxErrMoment00Zero, -20},
    {"tpxErrThresholdBounds", tpxErrThresholdBounds, -18},
    {"tpxErrContext", tpxErrContext, -17},
    {"tpxErrFftFlag", tpxErrFftFlag, -16},
    {"tpxErrFftOrder", tpxErrFftOrder, -15},
    {"tpxErrStep", tpxErrStep, -14},
    {"tpxErrScaleRange", tpxErrScaleRange, -13},
    {"tpxErrDataType", tpxErrDataType, -12},
    {"tpxErrOutOfRange", tpxErrOutOfRange, -11},
    {"tpxErrDivByZero", tpxErrDivByZero, -10},
    {"tpxErrMemAlloc", tpxErrMemAlloc, -9},
    {"tpxErrNullPointer", tpxErrNullPointer, -8},
    {"tpxErrRange", tpxErrRange, -7},
    {"tpxErrSize", tpxErrSize, -6},
    {"tpxErrBadArgument", tpxErrBadArgument, -5},
    {"tpxOk", tpxOk, 0},
    {"tpxWarnNoOperation", tpxWarnNoOperation, 1},
    {"tpxWarnSqrtNegArg", tpxWarnSqrtNegArg, 3},
    {"tpxWarnDivByZero", tpxWarnDivByZero, 6},
    {"tpxWarnLnZeroArg", tpxWarnLnZeroArg, 7},
    {"tpxWarnLnNegArg", tpxWarnLnNegArg, 8},
    {"tpxWarnNotParallelogram", tpxWarnNotParallelogram, 28},
    {"tpxWarnNoRoiOverlap", tpxWarnNoRoiOverlap, 29},
    {"tpxWarnNoQuadOverlap", tpxWarnNoQuadOverlap, 30},
    {"tpxWarnEvenWeight", tpxWarnEvenWeight, 39},
    {"tpxWarnNoVolumeOverlap", tpxWarnNoVolumeOverlap, 40},
    {"tpxWarnNoAntialiasing", tpxWarnNoAntialiasing, 46},
    {"tpxWarnValueAdjusted", tpxWarnValueAdjusted, 48},
    {"tpxWarnExactIgnored", tpxWarnExactIgnored, 52},
    // clang-format on
};

} // namespace

TEST(StatusText, EveryStatusHasItsValueNameAndText) {
    std::set<std::string> texts;
    for (const Status& status : kStatuses) {
        EXPECT_EQ(status.enumerator, status.value) << status.name;
        EXPECT_STREQ(tpxStatusName(status.value), status.name);
        const std::string text = tpxStatusText(status.value);
        EXPECT_GE(text.size(), 7u) << status.name;
        EXPECT_TRUE(texts.insert(text).second) << status.name << " shares its text: " << text;
    }
    EXPECT_STREQ(tpxStatusText(tpxOk), "success");
    EXPECT_STREQ(tpxStatusText(tpxErrNullPointer), "a required pointer is null");
}

// Nothing but the statuses above has a name: one that is added to the list is added here.
TEST(StatusText, OtherNumbersHaveNone) {
    std::set<TpxStatus> known;
    for (const Status& status : kStatuses) known.insert(status.value);
    for (TpxStatus status = -11000; status < 1000; ++status) {
        if (known.count(status) != 0) continue;
        EXPECT_STREQ(tpxStatusName(status), "unknown") << status;
        EXPECT_STREQ(tpxStatusText(status), "no status of this library") << status;
    }
}
