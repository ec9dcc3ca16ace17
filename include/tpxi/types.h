/* SPDX-License-Identifier: Apache-2.0 */
/** @file
 * Sample types, records, statuses and selectors shared by every family of the library.
 *
 * Units used throughout: a *step* is the distance in bytes from the start of one row to the start of the
 * next, whatever the sample type; sizes and offsets are in pixels; a *run* is counted in samples. */
#ifndef TPXI_TYPES_H
#define TPXI_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
#define TPX_LINKAGE_BEGIN extern "C" {
#define TPX_LINKAGE_END }
#else
#define TPX_LINKAGE_BEGIN
#define TPX_LINKAGE_END
#endif

/* Around the prototypes of a header. A family's text names the parameters of all its forms, of which one form
 * has some: clang's check of comments takes each prototype by itself. */
#ifdef __clang__
#define TPX_EXTERN_C_BEGIN \
    _Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Wdocumentation\"") TPX_LINKAGE_BEGIN
#define TPX_EXTERN_C_END TPX_LINKAGE_END _Pragma("clang diagnostic pop")
#else
#define TPX_EXTERN_C_BEGIN TPX_LINKAGE_BEGIN
#define TPX_EXTERN_C_END TPX_LINKAGE_END
#endif

/* Begins a declaration of the boundary. One declaration has all functions of a family, so that the comment in
 * front of it is that of each. The build reads the exported names from these declarations. clang-format takes
 * them for products of types and pointers, and is off in the headers that have them. */
#define TPX_API extern

/** @name Samples
 * @{ */

typedef uint8_t Tpx8u;   /**< a sample of 8 bits, unsigned */
typedef int8_t Tpx8s;    /**< a sample of 8 bits, signed */
typedef uint16_t Tpx16u; /**< a sample of 16 bits, unsigned */
typedef int16_t Tpx16s;  /**< a sample of 16 bits, signed */
typedef uint32_t Tpx32u; /**< a sample of 32 bits, unsigned */
typedef int32_t Tpx32s;  /**< a sample of 32 bits, signed */
typedef uint64_t Tpx64u; /**< a number of 64 bits, unsigned */
typedef int64_t Tpx64s;  /**< a number of 64 bits, signed */
typedef float Tpx32f;    /**< a sample in single precision */
typedef double Tpx64f;   /**< a sample in double precision */

/** A complex sample in single precision. */
typedef struct {
    Tpx32f re; /**< the real part */
    Tpx32f im; /**< the imaginary part */
} Tpx32fc;

/** A complex sample of 32-bit integers. */
typedef struct {
    Tpx32s re; /**< the real part */
    Tpx32s im; /**< the imaginary part */
} Tpx32sc;

/** @} */

/** @name Records: of 32 bits for the short forms, of 64 bits for the _L forms; passed by value
 * @{ */

/** A size, step or offset of 64 bits. */
typedef Tpx64s TpxSizeL;

/** The size of an image or a region. */
typedef struct {
    int width;  /**< pixels of a row */
    int height; /**< number of rows */
} TpxiSize;

/** The size of an image or a region, of 64 bits. */
typedef struct {
    TpxSizeL width;  /**< pixels of a row */
    TpxSizeL height; /**< number of rows */
} TpxiSizeL;

/** A place in an image, which counts from its first pixel. */
typedef struct {
    int x; /**< column in pixels */
    int y; /**< row */
} TpxiPoint;

/** A place in an image, of 64 bits. */
typedef struct {
    TpxSizeL x; /**< column in pixels */
    TpxSizeL y; /**< row */
} TpxiPointL;

/** A rectangle of an image. */
typedef struct {
    int x;      /**< first column in pixels */
    int y;      /**< first row */
    int width;  /**< pixels of a row */
    int height; /**< number of rows */
} TpxiRect;

/** A rectangle of an image, of 64 bits. */
typedef struct {
    TpxSizeL x;      /**< first column in pixels */
    TpxSizeL y;      /**< first row */
    TpxSizeL width;  /**< pixels of a row */
    TpxSizeL height; /**< number of rows */
} TpxiRectL;

/** Margins around a rectangle. */
typedef struct {
    int left;   /**< pixels on the left */
    int top;    /**< pixels above */
    int right;  /**< pixels on the right */
    int bottom; /**< pixels below */
} TpxiBorderSize;

/** Margins around a rectangle, of 64 bits. */
typedef struct {
    TpxSizeL left;   /**< pixels on the left */
    TpxSizeL top;    /**< pixels above */
    TpxSizeL right;  /**< pixels on the right */
    TpxSizeL bottom; /**< pixels below */
} TpxiBorderSizeL;

/** What tpxiGetLibVersion points at. */
typedef struct {
    int major;             /**< first number of the version */
    int minor;             /**< second number */
    int update;            /**< third number */
    int revision;          /**< revision of the build */
    char targetCpu[4];     /**< code of the instruction set */
    const char* name;      /**< name of the library */
    const char* version;   /**< the version in words */
    const char* buildDate; /**< day of the build */
} TpxLibraryVersion;

/** @} */

/* The list of statuses makes the enumerators here, and their names and texts in status_text.h. The last entry
 * is called apart, since an enumeration may not end with a comma in C89. */

/** What a call returns: 0 is success, a negative number an error, a positive one a warning. tpxi.h tells what
 * has been written then, status_text.h gives names and texts. */
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
    status(tpxErrChannelOrder, -60, "channel order entry that is no channel")                            \
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
    status(tpxErrFftOrder, -15, "FFT order negative or too large")                                       \
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

/** @name Selectors: plain integers, so that a value outside the set can be passed and is answered with a status
 * @{ */

typedef int TpxDataType; /**< the type of samples */
enum {
    tpxDataType8u = 1,   /**< Tpx8u */
    tpxDataType16u = 5,  /**< Tpx16u */
    tpxDataType16s = 7,  /**< Tpx16s */
    tpxDataType32f = 13, /**< Tpx32f */
    tpxDataType64f = 19  /**< Tpx64f */
};

typedef int TpxChannelCode; /**< the channels of a pixel */
enum {
    tpxChannelC1 = 1, /**< one */
    tpxChannelC3 = 3, /**< three */
    tpxChannelC4 = 4, /**< four */
    tpxChannelAC4 = 9 /**< four, of which the destination keeps the fourth */
};

/** The low nibble is the border kind, the high nibble says on which sides the pixels beyond the region are
 * valid memory and are read there. tpxBorderInMemAll stands alone and needs no kind. */
typedef Tpx32u TpxBorderType;
enum {
    tpxBorderReplicate = 1,      /**< the nearest pixel of the edge */
    tpxBorderMirror = 3,         /**< the image mirrored about its edge, which is not repeated */
    tpxBorderConstant = 6,       /**< a constant pixel */
    tpxBorderTransparent = 7,    /**< destination pixels outside stay as they were */
    tpxBorderInMemTop = 0x10,    /**< the rows above are in memory */
    tpxBorderInMemBottom = 0x20, /**< the rows below are in memory */
    tpxBorderInMemLeft = 0x40,   /**< the columns on the left are in memory */
    tpxBorderInMemRight = 0x80,  /**< the columns on the right are in memory */
    tpxBorderInMemAll = 0xF0     /**< all of them are */
};

typedef int TpxInterpolationType; /**< how a value between pixels is made */
enum {
    tpxInterpolationNearest = 1, /**< the nearest pixel */
    tpxInterpolationLinear = 2,  /**< linear */
    tpxInterpolationCubic = 6,   /**< cubic */
    tpxInterpolationSuper = 8,   /**< means of areas, for reductions */
    tpxInterpolationLanczos = 16 /**< windowed sinc */
};

typedef int TpxRoundMode; /**< how fractions are rounded */
enum {
    tpxRoundTowardZero = 0,  /**< cut off */
    tpxRoundNearestEven = 1, /**< to nearest, ties to even */
    tpxRoundHalfAway = 2,    /**< to nearest, ties away from zero */
    tpxRoundExactFlag = 0x10 /**< flag of the general filter: of the exact quotient */
};

typedef int TpxCmpOp; /**< a comparison; thresholds take tpxCmpLess and tpxCmpGreater */
enum {
    tpxCmpLess = 0,      /**< less */
    tpxCmpLessEq = 1,    /**< less or equal */
    tpxCmpEq = 2,        /**< equal */
    tpxCmpGreaterEq = 3, /**< greater or equal */
    tpxCmpGreater = 4    /**< greater */
};

typedef int TpxHintAlgorithm; /**< what a caller prefers, where a family has a choice */
enum {
    tpxHintFast = 1,    /**< speed */
    tpxHintAccurate = 2 /**< accuracy */
};

typedef int TpxCopyFlags; /**< how tpxiCopyManaged moves memory: a set of bits */
enum {
    tpxCopyNonTemporalStore = 1, /**< write past the caches */
    tpxCopyNonTemporalLoad = 2   /**< read past the caches */
};

typedef int TpxFftFlag; /**< where a Fourier transform divides by the number of pixels */
enum {
    tpxFftDivForward = 1, /**< in forward transforms */
    tpxFftDivInverse = 2, /**< in inverse ones */
    tpxFftDivBySqrt = 4,  /**< by its square root in both */
    tpxFftNoDivide = 8    /**< nowhere */
};

/** @} */

#endif
