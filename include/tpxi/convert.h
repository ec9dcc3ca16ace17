/* SPDX-License-Identifier: Apache-2.0 */
/* clang-format off */
/** @file
 * Changing the type of samples, images of bits included. */
#ifndef TPXI_CONVERT_H
#define TPXI_CONVERT_H

#include "types.h"

TPX_EXTERN_C_BEGIN

/** @name Conversion to a wider type: tpxiConvert
 * @{ */

/**
 * Changes the type of samples to a wider one, or to floats. Names give the source's type, then the
 * destination's. Values stay exactly as they are, but that 32s32f and 32u32f round with the thread's rounding
 * mode. AC4 converts three channels and keeps the destination's fourth.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiConvert_8u16u_C1R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16u_C3R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16u_C4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16u_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16s_C1R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16s_C3R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16s_C4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u16s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32s_C1R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32s_C3R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32s_C4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32s_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32f_C1R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32f_C3R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32f_C4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8u32f_AC4R(const Tpx8u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32s_C1R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32s_C3R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32s_C4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32s_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32f_C1R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32f_C3R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32f_C4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32f_AC4R(const Tpx8s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32s_C1R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32s_C3R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32s_C4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32s_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32f_C1R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32f_C3R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32f_C4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32f_AC4R(const Tpx16u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32s_C1R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32s_C3R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32s_C4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32s_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32f_C1R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32f_C3R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32f_C4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32f_AC4R(const Tpx16s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s16s_C1R(const Tpx8s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u32u_C1R(const Tpx16u* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s32f_C1R(const Tpx32s* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32u32f_C1R(const Tpx32u* pSrc, int srcStep, Tpx32f* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s64f_C1R(const Tpx8s* pSrc, int srcStep, Tpx64f* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Conversion to a narrower integer: tpxiConvert
 * @{ */

/**
 * Changes integer samples to a narrower integer type, saturated. Names give the source's type, then the
 * destination's. AC4 converts three channels and keeps the destination's fourth.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiConvert_16u8u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u8u_C3R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u8u_C4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16u8u_AC4R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s8u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s8u_C3R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s8u_C4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s8u_AC4R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8u_C1R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8u_C3R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8u_C4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8u_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8s_C1R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8s_C3R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8s_C4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s8s_AC4R(const Tpx32s* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Conversion of floats to small integers: tpxiConvert
 * @{ */

/**
 * Rounds floats to integers of 8 or 16 bits, saturated. NaN gives the destination's maximum. The thread's
 * rounding mode has no part in it, and its floating-point control and flags come back as they were. AC4
 * converts three channels and keeps the destination's fourth.
 *
 * @param pSrc      first pixel of the source
 * @param srcStep   bytes from one row of the source to the next
 * @param pDst      first pixel of the destination
 * @param dstStep   bytes from one row of the destination to the next
 * @param roiSize   width and height of the region in pixels
 * @param roundMode tpxRoundTowardZero, tpxRoundNearestEven, or any other value for ties away from zero
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxOk.
 */
TPX_API TpxStatus
    tpxiConvert_32f8u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8u_C3R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8u_C4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f8s_C1R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8s_C3R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8s_C4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                          TpxRoundMode roundMode),
    tpxiConvert_32f8s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16u_C1R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16u_C3R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16u_C4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16u_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                            TpxRoundMode roundMode),
    tpxiConvert_32f16s_C1R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16s_C3R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16s_C4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                           TpxRoundMode roundMode),
    tpxiConvert_32f16s_AC4R(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                            TpxRoundMode roundMode);

/** @} */

/** @name Conversion of signed to unsigned integers: tpxiConvert
 * @{ */

/**
 * Changes signed samples to unsigned ones; negative samples give 0. Names give the source's type, then the
 * destination's. Steps are not tested.
 *
 * @param pSrc    first pixel of the source
 * @param srcStep bytes from one row of the source to the next
 * @param pDst    first pixel of the destination
 * @param dstStep bytes from one row of the destination to the next
 * @param roiSize width and height of the region in pixels
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiConvert_8s8u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s16u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_8s32u_C1Rs(const Tpx8s* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s16u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_16s32u_C1Rs(const Tpx16s* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize),
    tpxiConvert_32s32u_C1Rs(const Tpx32s* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize);

/** @} */

/** @name Conversion with a scale factor: tpxiConvert
 * @{ */

/**
 * Changes the type of samples times 2^-scaleFactor, rounded as roundMode says and saturated. Names give the
 * source's type, then the destination's. In place (I) the destination's samples stand where the source's
 * stood.
 *
 * From integers, factors beyond a limit of each form give 0 (8u8s above 8, 16s8s 17, 16u8s 15, 16u16s
 * 16, 32s16s 31, 32s16u 31, 32u8s 15, 32u8u 15, 32u16s 31, 32u16u 33, 32u32s 32). NaN gives the destination's
 * maximum, but in 32f32s by its sign the largest or the smallest. 32f32u: a scaled sample of exactly 2^32
 * gives 0, a larger one the maximum. The thread's rounding mode has no part in it, and its floating-point
 * control and flags come back as they were. Steps are not tested.
 *
 * @param pSrc        first pixel of the source
 * @param srcStep     bytes from one row of the source to the next
 * @param pDst        first pixel of the destination
 * @param dstStep     bytes from one row of the destination to the next
 * @param roiSize     width and height of the region in pixels
 * @param roundMode   tpxRoundTowardZero, tpxRoundNearestEven, or any other value for ties away from zero
 * @param scaleFactor n: results are multiplied by 2^-n, for any number n
 * @param pSrcDst     first pixel of the image that is read and written
 * @param srcDstStep  bytes from one of its rows to the next
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxOk.
 */
TPX_API TpxStatus
    tpxiConvert_8u8s_C1RSfs(const Tpx8u* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                            TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_16s8s_C1RSfs(const Tpx16s* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_16u8s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_16u16s_C1RSfs(const Tpx16u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32s16s_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32s16u_C1RSfs(const Tpx32s* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32u8s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32u8u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32u16s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32u16u_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32u32s_C1RSfs(const Tpx32u* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f8s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f8u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f16s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f16u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f32s_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_32f32u_C1RSfs(const Tpx32f* pSrc, int srcStep, Tpx32u* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_64f8s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8s* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_64f8u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, TpxiSize roiSize,
                             TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_64f16s_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16s* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),
    tpxiConvert_64f16u_C1RSfs(const Tpx64f* pSrc, int srcStep, Tpx16u* pDst, int dstStep, TpxiSize roiSize,
                              TpxRoundMode roundMode, int scaleFactor),

    tpxiConvert_32f32u_C1IRSfs(Tpx32u* pSrcDst, int srcDstStep, TpxiSize roiSize, TpxRoundMode roundMode,
                               int scaleFactor);

/** @} */

/** @name Bits to samples: tpxiBinToGray
 * @{ */

/**
 * Turns an image of bits, one a pixel, into samples: loVal for a bit of 0, hiVal for a bit of 1. The least
 * significant bit of a byte is its first pixel.
 *
 * @param pSrc         byte of the source that holds the first pixel
 * @param srcStep      bytes from one row of the source to the next
 * @param srcBitOffset bit of the first pixel in its byte; only the low three bits count, and pSrc is not
 *     moved
 * @param pDst         first pixel of the destination
 * @param dstStep      bytes from one row of the destination to the next
 * @param roiSize      width and height of the region in pixels
 * @param loVal        sample for a bit of 0
 * @param hiVal        sample for a bit of 1
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxErrSize (a negative bit offset); tpxOk.
 */
TPX_API TpxStatus
    tpxiBinToGray_1u8u_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx8u* pDst, int dstStep,
                           TpxiSize roiSize, Tpx8u loVal, Tpx8u hiVal),
    tpxiBinToGray_1u16u_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx16u* pDst, int dstStep,
                            TpxiSize roiSize, Tpx16u loVal, Tpx16u hiVal),
    tpxiBinToGray_1u16s_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx16s* pDst, int dstStep,
                            TpxiSize roiSize, Tpx16s loVal, Tpx16s hiVal),
    tpxiBinToGray_1u32f_C1R(const Tpx8u* pSrc, int srcStep, int srcBitOffset, Tpx32f* pDst, int dstStep,
                            TpxiSize roiSize, Tpx32f loVal, Tpx32f hiVal);

/** @} */

/** @name Samples to bits: tpxiGrayToBin
 * @{ */

/**
 * Turns samples into an image of bits, one a pixel: 1 where the sample is greater than the threshold. The
 * least significant bit of a byte is its first pixel; bits outside the row are kept. A NaN gives 1 where the
 * bit offset is a multiple of 8, and 0 elsewhere.
 *
 * @param pSrc         first pixel of the source
 * @param srcStep      bytes from one row of the source to the next
 * @param pDst         byte of the destination that holds the first pixel
 * @param dstStep      bytes from one row of the destination to the next
 * @param dstBitOffset bit of the first pixel in its byte; only the low three bits count, and pDst is not
 *     moved
 * @param roiSize      width and height of the region in pixels
 * @param threshold    samples above it become 1
 * @return The first of these that applies: tpxErrNullPointer (an image); tpxErrSize (width or height below
 *     1); tpxErrStep (a step below 1); tpxErrSize (a negative bit offset); tpxOk.
 */
TPX_API TpxStatus
    tpxiGrayToBin_8u1u_C1R(const Tpx8u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset,
                           TpxiSize roiSize, Tpx8u threshold),
    tpxiGrayToBin_16u1u_C1R(const Tpx16u* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset,
                            TpxiSize roiSize, Tpx16u threshold),
    tpxiGrayToBin_16s1u_C1R(const Tpx16s* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset,
                            TpxiSize roiSize, Tpx16s threshold),
    tpxiGrayToBin_32f1u_C1R(const Tpx32f* pSrc, int srcStep, Tpx8u* pDst, int dstStep, int dstBitOffset,
                            TpxiSize roiSize, Tpx32f threshold);

/** @} */

TPX_EXTERN_C_END

#endif
