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
 * nothing. A positive status is a warning: the operation ran to its end and its result is defined. */

typedef int TpxStatus;

enum {
    tpxErrUnsupportedMode = -9999, /* a mode, or a mode and layout together, that is not offered */
    tpxErrWarpTransform = -233,    /* transform selector of a quadrangle warp neither 0 nor 1 */
    tpxErrSizeTooLarge = -232,     /* a size leaves the range of 32 bits (31 for a few), or of a plan */
    tpxErrWarpDirection = -231,    /* warp direction other than 0 or 1 */
    tpxErrAlgorithm = -228,        /* algorithm selector not accepted */
    tpxErrYuvSize = -227,          /* an odd value where YUV resize needs an even one */
    tpxErrBorder = -225,           /* border word not accepted */
    tpxErrRoundMode = -213,        /* rounding mode not accepted */
    tpxErrDecimation = -212,       /* decimation selector outside 0 to 4 */
    tpxErrWeight = -211,           /* centre weight below 1 */
    tpxErrZeroDenominator = -210,  /* the denominator of a quality index is nearly zero */
    tpxErrNoiseValue = -125,       /* noise level outside 0 up to, not including, 1 */
    tpxErrStepNotMultiple = -108,  /* a step that is not a whole number of samples */
    tpxErrHistogramLevels = -107,  /* fewer than 2 histogram levels in a channel */
    tpxErrLutLevels = -106,        /* fewer than 2 lookup levels in a channel */
    tpxErrChannelOrder = -60,      /* channel order entry at or above the number of channels */
    tpxErrQuad = -58,              /* quadrangle not well formed */
    tpxErrRect = -57,              /* rectangle not accepted */
    tpxErrCoefficient = -56,       /* coefficients that describe no usable transform */
    tpxErrChannelCount = -53,      /* number of channels not accepted */
    tpxErrDivisor = -51,           /* filter divisor of zero */
    tpxErrAlphaType = -50,         /* compositing operator not accepted */
    tpxErrChannelIndex = -47,      /* channel code or index not accepted */
    tpxErrStepTooSmall = -37,      /* a step smaller than the row it must hold */
    tpxErrEpsilon = -36,           /* negative epsilon */
    tpxErrAnchor = -34,            /* anchor outside the mask */
    tpxErrMaskSize = -33,          /* mask size not accepted */
    tpxErrResizeFactor = -23,      /* resize factor of a volume not positive */
    tpxErrInterpolation = -22,     /* interpolation selector not accepted */
    tpxErrMirrorAxis = -21,        /* mirror axis not accepted */
    tpxErrMoment00Zero = -20,      /* the zeroth moment is nearly zero */
    tpxErrThresholdBounds = -18,   /* upper threshold below lower threshold */
    tpxErrContext = -17,           /* a plan or spec that was not made for the operation */
    tpxErrFftFlag = -16,           /* FFT normalisation flag other than 1, 2, 4 or 8 */
    tpxErrFftOrder = -15,          /* FFT order above 29 or negative */
    tpxErrStep = -14,              /* a step below 1, or not accepted */
    tpxErrScaleRange = -13,        /* span between maximum and minimum not positive */
    tpxErrDataType = -12,          /* TpxDataType not accepted */
    tpxErrOutOfRange = -11,        /* a value leaves its stated range */
    tpxErrDivByZero = -10,         /* constant divisor of zero */
    tpxErrMemAlloc = -9,           /* a work buffer could not be had */
    tpxErrNullPointer = -8,        /* a required pointer is null */
    tpxErrRange = -7,              /* bounds out of order */
    tpxErrSize = -6,               /* width or height below 1, or sizes that do not fit together */
    tpxErrBadArgument = -5,        /* a parameter outside its domain with no status of its own */

    tpxOk = 0,

    tpxWarnNoOperation = 1,       /* nothing was to be done: a size of exactly 0 */
    tpxWarnSqrtNegArg = 3,        /* a negative sample went into a square root */
    tpxWarnDivByZero = 6,         /* a zero divisor, or a zero denominator of a relative norm */
    tpxWarnLnZeroArg = 7,         /* a zero sample went into a logarithm */
    tpxWarnLnNegArg = 8,          /* a negative sample went into a logarithm */
    tpxWarnNotParallelogram = 28, /* the quadrangle is no parallelogram; coefficients are computed */
    tpxWarnNoRoiOverlap = 29,     /* the source region does not meet the source image */
    tpxWarnNoQuadOverlap = 30,    /* the mapped quadrangle does not meet the image */
    tpxWarnEvenWeight = 39,       /* an even centre weight was reduced by one */
    tpxWarnNoVolumeOverlap = 40,  /* a volume region does not meet the volume */
    tpxWarnNoAntialiasing = 46,   /* antialiasing was asked for where there is none, and was dropped */
    tpxWarnValueAdjusted = 48,    /* an input was adjusted and the work went on */
    tpxWarnExactIgnored = 52      /* the exact flag was dropped for this data type */
};

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
