/*
 * Sample types, records, statuses and selectors shared by every family of the library.
 *
 * Units used throughout: a *step* is the distance in bytes from the start of one row to the start of the
 * next, whatever the sample type; sizes and offsets are in pixels; a *run* is counted in samples.
 */
#ifndef TPXI_TYPES_H
#define TPXI_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
#define TPX_EXTERN_C_BEGIN extern "C" {
#define TPX_EXTERN_C_END }
#else
#define TPX_EXTERN_C_BEGIN
#define TPX_EXTERN_C_END
#endif

/* Marks a function of the boundary. The build reads the exported names from the lines that begin with it. */
#define TPX_API extern

/* ---- Samples -------------------------------------------------------------------------------------- */

typedef uint8_t Tpx8u;
typedef int8_t Tpx8s;
typedef uint16_t Tpx16u;
typedef int16_t Tpx16s;
typedef uint32_t Tpx32u;
typedef int32_t Tpx32s;
typedef uint64_t Tpx64u;
typedef int64_t Tpx64s;
typedef float Tpx32f;
typedef double Tpx64f;

/* Complex samples, real part first. */
typedef struct {
    Tpx32f re;
    Tpx32f im;
} Tpx32fc;
typedef struct {
    Tpx32s re;
    Tpx32s im;
} Tpx32sc;

/* ---- Records: 32-bit for the short forms, 64-bit for the _L forms; passed by value ----------------- */

typedef Tpx64s TpxSizeL;

typedef struct {
    int width;
    int height;
} TpxiSize;
typedef struct {
    TpxSizeL width;
    TpxSizeL height;
} TpxiSizeL;

typedef struct {
    int x;
    int y;
} TpxiPoint;
typedef struct {
    TpxSizeL x;
    TpxSizeL y;
} TpxiPointL;

typedef struct {
    int x;
    int y;
    int width;
    int height;
} TpxiRect;
typedef struct {
    TpxSizeL x;
    TpxSizeL y;
    TpxSizeL width;
    TpxSizeL height;
} TpxiRectL;

/* Margins around a rectangle, in pixels. */
typedef struct {
    int left;
    int top;
    int right;
    int bottom;
} TpxiBorderSize;
typedef struct {
    TpxSizeL left;
    TpxSizeL top;
    TpxSizeL right;
    TpxSizeL bottom;
} TpxiBorderSizeL;

/* What tpxiGetLibVersion points at. */
typedef struct {
    int major;
    int minor;
    int update;
    int revision;
    char targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} TpxLibraryVersion;

/* ---- Statuses --------------------------------------------------------------------------------------
 * 0 is success. A negative status means that the operation stopped at a failed check, having written
 * nothing. A positive status is a warning: the operation ran to its end and its result is defined.
 *
 * The list makes the enumerators here, and their names and texts in status_text.h. The last entry is called
 * apart, since an enumeration may not end with a comma in C89. */

typedef int TpxStatus;

/* clang-format off */
#define TPX_STATUSES(status, last)                                                                       \
    status(tpxErrUnsupportedMode, -9999, "a mode, or a mode and layout together, that is not offered")   \
    status(tpxErrWarpTransform, -233, "transform selector of a quadrangle warp neither 0 nor 1")         \
    status(tpxErrSizeTooLarge, -232, "a size leaves the range of 32 bits (31 for a few), or of a plan")  \
    status(tpxErrWarpDirection, -231, "warp direction other than 0 or 1")                                \
    status(tpxErrAlgorithm, -228, "algorithm selector not accepted")                                     \
    status(tpxErrYuvSize, -227, "an odd value where YUV resize needs an even one")                       \
    status(tpxErrBorder, -225, "border word not accepted")                                               \
    status(tpxErrRoundMode, -213, "rounding mode not accepted")                                          \
    status(tpxErrDecimation, -212, "decimation selector outside 0 to 4")                                 \
    status(tpxErrWeight, -211, "centre weight below 1")                                                  \
    status(tpxErrZeroDenominator, -210, "the denominator of a quality index is nearly zero")             \
    status(tpxErrNoiseValue, -125, "noise level outside 0 up to, not including, 1")                      \
    status(tpxErrStepNotMultiple, -108, "a step that is not a whole number of samples")                  \
    status(tpxErrHistogramLevels, -107, "fewer than 2 histogram levels in a channel")                    \
    status(tpxErrLutLevels, -106, "fewer than 2 lookup levels in a channel")                             \
    status(tpxErrChannelOrder, -60, "channel order entry at or above the number of channels")            \
    status(tpxErrQuad, -58, "quadrangle not well formed")                                                \
    status(tpxErrRect, -57, "rectangle not accepted")                                                    \
    status(tpxErrCoefficient, -56, "coefficients that describe no usable transform")                     \
    status(tpxErrChannelCount, -53, "number of channels not accepted")                                   \
    status(tpxErrDivisor, -51, "filter divisor of zero")                                                 \
    status(tpxErrAlphaType, -50, "compositing operator not accepted")                                    \
    status(tpxErrChannelIndex, -47, "channel code or index not accepted")                                \
    status(tpxErrStepTooSmall, -37, "a step smaller than the row it must hold")                          \
    status(tpxErrEpsilon, -36, "negative epsilon")                                                       \
    status(tpxErrAnchor, -34, "anchor outside the mask")                                                 \
    status(tpxErrMaskSize, -33, "mask size not accepted")                                                \
    status(tpxErrResizeFactor, -23, "resize factor of a volume not positive")                            \
    status(tpxErrInterpolation, -22, "interpolation selector not accepted")                              \
    status(tpxErrMirrorAxis, -21, "mirror axis not accepted")                                            \
    status(tpxErrMoment00Zero, -20, "the zeroth moment is nearly zero")                                  \
    status(tpxErrThresholdBounds, -18, "upper threshold below lower threshold")                          \
    status(tpxErrContext, -17, "a plan or spec that was not made for the operation")                     \
    status(tpxErrFftFlag, -16, "FFT normalisation flag other than 1, 2, 4 or 8")                         \
    status(tpxErrFftOrder, -15, "FFT order above 29 or negative")                                        \
    status(tpxErrStep, -14, "a step below 1, or not accepted")                                           \
    status(tpxErrScaleRange, -13, "span between maximum and minimum not positive")                       \
    status(tpxErrDataType, -12, "TpxDataType not accepted")                                              \
    status(tpxErrOutOfRange, -11, "a value leaves its stated range")                                     \
    status(tpxErrDivByZero, -10, "constant divisor of zero")                                             \
    status(tpxErrMemAlloc, -9, "a work buffer could not be had")                                         \
    status(tpxErrNullPointer, -8, "a required pointer is null")                                          \
    status(tpxErrRange, -7, "bounds out of order")                                                       \
    status(tpxErrSize, -6, "width or height below 1, or sizes that do not fit together")                 \
    status(tpxErrBadArgument, -5, "a parameter outside its domain with no status of its own")            \
    status(tpxOk, 0, "success")                                                                          \
    status(tpxWarnNoOperation, 1, "nothing was to be done: a size of exactly 0")                         \
    status(tpxWarnSqrtNegArg, 3, "a negative sample went into a square root")                            \
    status(tpxWarnDivByZero, 6, "a zero divisor, or a zero denominator of a relative norm")              \
    status(tpxWarnLnZeroArg, 7, "a zero sample went into a logarithm")                                   \
    status(tpxWarnLnNegArg, 8, "a negative sample went into a logarithm")                                \
    status(tpxWarnNotParallelogram, 28, "the quadrangle is no parallelogram; coefficients are computed") \
    status(tpxWarnNoRoiOverlap, 29, "the source region does not meet the source image")                  \
    status(tpxWarnNoQuadOverlap, 30, "the mapped quadrangle does not meet the image")                    \
    status(tpxWarnEvenWeight, 39, "an even centre weight was reduced by one")                            \
    status(tpxWarnNoVolumeOverlap, 40, "a volume region does not meet the volume")                       \
    status(tpxWarnNoAntialiasing, 46, "antialiasing was asked for where there is none, and was dropped") \
    status(tpxWarnValueAdjusted, 48, "an input was adjusted and the work went on")                       \
    last(tpxWarnExactIgnored, 52, "the exact flag was dropped for this data type")
/* clang-format on */

#define TPX_STATUS(name, value, text) name = value,
#define TPX_LAST_STATUS(name, value, text) name = value
enum { TPX_STATUSES(TPX_STATUS, TPX_LAST_STATUS) };
#undef TPX_STATUS
#undef TPX_LAST_STATUS

/* ---- Selectors --------------------------------------------------------------------------------------
 * Plain integers, so that a value outside the set can be passed and is answered with a status. */

typedef int TpxDataType;
enum { tpxDataType8u = 1, tpxDataType16u = 5, tpxDataType16s = 7, tpxDataType32f = 13, tpxDataType64f = 19 };

typedef int TpxChannelCode;
enum { tpxChannelC1 = 1, tpxChannelC3 = 3, tpxChannelC4 = 4, tpxChannelAC4 = 9 };

/* The low nibble is the border kind, the high nibble says on which sides the pixels beyond the region are
 * valid memory and are read there. tpxBorderInMemAll stands alone and needs no kind. */
typedef Tpx32u TpxBorderType;
enum {
    tpxBorderReplicate = 1,
    tpxBorderMirror = 3,
    tpxBorderConstant = 6,
    tpxBorderTransparent = 7,
    tpxBorderInMemTop = 0x10,
    tpxBorderInMemBottom = 0x20,
    tpxBorderInMemLeft = 0x40,
    tpxBorderInMemRight = 0x80,
    tpxBorderInMemAll = 0xF0
};

typedef int TpxInterpolationType;
enum {
    tpxInterpolationNearest = 1,
    tpxInterpolationLinear = 2,
    tpxInterpolationCubic = 6,
    tpxInterpolationSuper = 8,
    tpxInterpolationLanczos = 16
};

typedef int TpxRoundMode;
enum { tpxRoundTowardZero = 0, tpxRoundNearestEven = 1, tpxRoundHalfAway = 2, tpxRoundExactFlag = 0x10 };

typedef int TpxCmpOp;
enum { tpxCmpLess = 0, tpxCmpLessEq = 1, tpxCmpEq = 2, tpxCmpGreaterEq = 3, tpxCmpGreater = 4 };

typedef int TpxHintAlgorithm;
enum { tpxHintFast = 1, tpxHintAccurate = 2 };

/* How tpxiCopyManaged moves memory: a set of bits. */
typedef int TpxCopyFlags;
enum { tpxCopyNonTemporalStore = 1, tpxCopyNonTemporalLoad = 2 };

/* Where an FFT divides by the number of samples. */
typedef int TpxFftFlag;
enum { tpxFftDivForward = 1, tpxFftDivInverse = 2, tpxFftDivBySqrt = 4, tpxFftNoDivide = 8 };

#endif
